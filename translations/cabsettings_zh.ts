<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh" sourcelanguage="en">
<context>
    <name>About</name>
    <message>
        <source>Windows, files and connections</source>
        <translation>窗口、文件和连接</translation>
    </message>
    <message>
        <source>The file of the settings</source>
        <translation>设置文件</translation>
    </message>
    <message>
        <source>Profiles of settings</source>
        <translation>设置的配置文件</translation>
    </message>
    <message>
        <source>Files for support</source>
        <translation>技术支持文件</translation>
    </message>
    <message>
        <source>Sunrise and sunset</source>
        <translation>日出和日落</translation>
    </message>
    <message>
        <source>Boundaries and zones</source>
        <translation>边界和区域</translation>
    </message>
    <message>
        <source>Software</source>
        <translation>软件</translation>
    </message>
    <message>
        <source>The software of this display</source>
        <translation>本显示屏的软件</translation>
    </message>
    <message>
        <source>Settings, units and logs</source>
        <translation>设置、单位和日志</translation>
    </message>
</context>
<context>
    <name>Clock</name>
    <message>
        <source>The clock of the machine; nothing has set it.</source>
        <translation>本机时钟；尚未设定。</translation>
    </message>
    <message>
        <source>The clock was set by hand.</source>
        <translation>时钟已手动设定。</translation>
    </message>
    <message>
        <source>The receiver sets the clock.</source>
        <translation>时钟由接收机设定。</translation>
    </message>
    <message>
        <source>There is no such date or time.</source>
        <translation>没有这个日期或时间。</translation>
    </message>
    <message>
        <source>The date is more than 68 years from the clock of the machine.</source>
        <translation>日期与本机时钟相差超过68年。</translation>
    </message>
    <message>
        <source>The clock could not be stored.</source>
        <translation>时钟无法保存。</translation>
    </message>
</context>
<context>
    <name>ClockEntry</name>
    <message>
        <source>Year</source>
        <translation>年</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>月</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>日</translation>
    </message>
    <message>
        <source>Hour</source>
        <translation>时</translation>
    </message>
    <message>
        <source>Minute</source>
        <translation>分</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>日期和时间</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>时间</translation>
    </message>
    <message>
        <source>%1: more</source>
        <translation>%1：增加</translation>
    </message>
    <message>
        <source>%1: less</source>
        <translation>%1：减少</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>确定</translation>
    </message>
</context>
<context>
    <name>ColorBar</name>
    <message>
        <source>%1: less</source>
        <translation>%1：减少</translation>
    </message>
    <message>
        <source>%1: more</source>
        <translation>%1：增加</translation>
    </message>
</context>
<context>
    <name>ColorPage</name>
    <message>
        <source>Former</source>
        <translation>原值</translation>
    </message>
    <message>
        <source>Former colour</source>
        <translation>原来的颜色</translation>
    </message>
    <message>
        <source>First value</source>
        <translation>默认值</translation>
    </message>
    <message>
        <source>Digits of the colour</source>
        <translation>颜色数值</translation>
    </message>
    <message>
        <source>Hue</source>
        <translation>色相</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>饱和度</translation>
    </message>
    <message>
        <source>Lightness</source>
        <translation>明度</translation>
    </message>
</context>
<context>
    <name>ColorsPage</name>
    <message>
        <source>Day</source>
        <translation>白天</translation>
    </message>
    <message>
        <source>Night</source>
        <translation>夜间</translation>
    </message>
</context>
<context>
    <name>Contrasts</name>
    <message>
        <source>on %1: %2</source>
        <translation>%1上：%2</translation>
    </message>
    <message>
        <source>under %1: %2</source>
        <translation>%1下：%2</translation>
    </message>
    <message>
        <source>%1, too low: at least %2</source>
        <translation>%1，过低：至少 %2</translation>
    </message>
</context>
<context>
    <name>Difference</name>
    <message>
        <source>Changed on both sides</source>
        <translation>两边都已更改</translation>
    </message>
    <message>
        <source>Here</source>
        <translation>本机</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>配置文件</translation>
    </message>
</context>
<context>
    <name>Display</name>
    <message>
        <source>Restart</source>
        <translation>重启</translation>
    </message>
    <message>
        <source>The fonts of the display</source>
        <translation>显示屏的字体</translation>
    </message>
    <message>
        <source>The keyboard on the screen</source>
        <translation>屏幕键盘</translation>
    </message>
</context>
<context>
    <name>DoorBand</name>
    <message>
        <source>Work</source>
        <translation>作业</translation>
    </message>
    <message>
        <source>Fields</source>
        <translation>地块</translation>
    </message>
    <message>
        <source>Receiver</source>
        <translation>接收机</translation>
    </message>
    <message>
        <source>Logs</source>
        <translation>日志</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>设置</translation>
    </message>
</context>
<context>
    <name>Drives</name>
    <message>
        <source>%1 free of %2</source>
        <translation>可用 %1，共 %2</translation>
    </message>
    <message>
        <source>Not known</source>
        <translation>未知</translation>
    </message>
    <message>
        <source>No stick</source>
        <translation>无U盘</translation>
    </message>
</context>
<context>
    <name>FieldsPage</name>
    <message>
        <source>Clients</source>
        <translation>客户</translation>
    </message>
    <message>
        <source>New client</source>
        <translation>新建客户</translation>
    </message>
    <message>
        <source>No client yet.</source>
        <translation>还没有客户。</translation>
    </message>
    <message>
        <source>Farms</source>
        <translation>农场</translation>
    </message>
    <message>
        <source>New farm</source>
        <translation>新建农场</translation>
    </message>
    <message>
        <source>No farm yet.</source>
        <translation>还没有农场。</translation>
    </message>
    <message>
        <source>Fields</source>
        <translation>地块</translation>
    </message>
    <message>
        <source>New field</source>
        <translation>新建地块</translation>
    </message>
    <message>
        <source>No field yet.</source>
        <translation>还没有地块。</translation>
    </message>
    <message>
        <source>Jobs</source>
        <translation>任务</translation>
    </message>
    <message>
        <source>New job</source>
        <translation>新建任务</translation>
    </message>
    <message>
        <source>No job yet.</source>
        <translation>还没有任务。</translation>
    </message>
    <message>
        <source>Remove %1 with everything in it?</source>
        <translation>删除 %1 及其全部内容？</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Rename or remove %1</source>
        <translation>重命名或删除 %1</translation>
    </message>
    <message>
        <source>Rename %1</source>
        <translation>重命名 %1</translation>
    </message>
    <message>
        <source>Remove everything</source>
        <translation>全部删除</translation>
    </message>
</context>
<context>
    <name>Host</name>
    <message>
        <source>Details for the support: %1</source>
        <translation>供技术支持的详情：%1</translation>
    </message>
    <message>
        <source>%3 Try: %4</source>
        <translation>%3可用：%4</translation>
    </message>
    <message>
        <source>This name is not possible.</source>
        <translation>这个名称无效。</translation>
    </message>
    <message>
        <source>The name is empty.</source>
        <translation>名称为空。</translation>
    </message>
    <message>
        <source>This name stands for another folder.</source>
        <translation>这个名称指向另一个文件夹。</translation>
    </message>
    <message>
        <source>The name must not contain %1.</source>
        <translation>名称不能含有 %1。</translation>
    </message>
    <message>
        <source>The name contains a sign that cannot be seen.</source>
        <translation>名称含有看不见的字符。</translation>
    </message>
    <message>
        <source>The name contains a sign that is not complete.</source>
        <translation>名称含有不完整的字符。</translation>
    </message>
    <message>
        <source>The name must not end in a full stop or a blank.</source>
        <translation>名称不能以句点或空格结尾。</translation>
    </message>
    <message>
        <source>The name must not begin with a blank.</source>
        <translation>名称不能以空格开头。</translation>
    </message>
    <message>
        <source>A stick cannot hold a file with this name.</source>
        <translation>U盘不能存放这个名称的文件。</translation>
    </message>
    <message>
        <source>The name is too long.</source>
        <translation>名称过长。</translation>
    </message>
    <message>
        <source>%2 exists already.</source>
        <translation>%2 已存在。</translation>
    </message>
    <message numerus="yes">
        <source>%2 is active and holds %n file(s).</source>
        <translation>
            <numerusform>%2 是当前项，含有 %n 个文件。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%2 holds %n file(s).</source>
        <translation>
            <numerusform>%2 含有 %n 个文件。</numerusform>
        </translation>
    </message>
    <message>
        <source>%2 is active.</source>
        <translation>%2 是当前项。</translation>
    </message>
    <message>
        <source>%2 is no longer there.</source>
        <translation>%2 已不存在。</translation>
    </message>
    <message>
        <source>A stick cannot tell %2 from %3.</source>
        <translation>U盘无法区分 %2 和 %3。</translation>
    </message>
    <message>
        <source>Another program is working on the fields. Try again later.</source>
        <translation>另一个程序正在处理地块。请稍后再试。</translation>
    </message>
    <message>
        <source>The selection could not be stored.</source>
        <translation>选择无法保存。</translation>
    </message>
    <message>
        <source>%1 is neither a file nor a folder.</source>
        <translation>%1 既不是文件也不是文件夹。</translation>
    </message>
    <message>
        <source>The file was edited or is damaged.</source>
        <translation>文件已被修改或损坏。</translation>
    </message>
    <message>
        <source>%1 cannot be read. %2</source>
        <translation>无法读取 %1。%2</translation>
    </message>
    <message>
        <source>The file is of another kind.</source>
        <translation>文件类型不符。</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>文件为空。</translation>
    </message>
    <message>
        <source>The end of the file is missing.</source>
        <translation>文件缺少结尾。</translation>
    </message>
    <message>
        <source>The file is damaged.</source>
        <translation>文件已损坏。</translation>
    </message>
    <message>
        <source>The file is not complete.</source>
        <translation>文件不完整。</translation>
    </message>
    <message>
        <source>The file is from another version of the software.</source>
        <translation>文件来自另一个软件版本。</translation>
    </message>
    <message>
        <source>The file has a value that is not possible: %2</source>
        <translation>文件中有无效的值：%2</translation>
    </message>
    <message>
        <source>The file has a value twice: %2</source>
        <translation>文件中有重复的设置项：%2</translation>
    </message>
    <message>
        <source>This address is not possible: %1</source>
        <translation>地址无效：%1</translation>
    </message>
    <message>
        <source>The device is not there.</source>
        <translation>设备未连接。</translation>
    </message>
    <message>
        <source>It is not permitted, or another program uses it.</source>
        <translation>没有权限，或另一个程序正在使用。</translation>
    </message>
    <message>
        <source>Another program uses it.</source>
        <translation>另一个程序正在使用。</translation>
    </message>
    <message>
        <source>It cannot be read.</source>
        <translation>无法读取。</translation>
    </message>
    <message>
        <source>It was unplugged.</source>
        <translation>设备已被拔出。</translation>
    </message>
    <message>
        <source>It is not a serial device, or it cannot have this speed.</source>
        <translation>这不是串口设备，或不支持这个速度。</translation>
    </message>
    <message>
        <source>The serial port has a fault (number %1).</source>
        <translation>串口有故障（编号 %1）。</translation>
    </message>
    <message>
        <source>%1 is damaged or of another kind.</source>
        <translation>%1 已损坏或类型不符。</translation>
    </message>
    <message>
        <source>%1 is from another version of the software.</source>
        <translation>%1 来自另一个软件版本。</translation>
    </message>
    <message>
        <source>%1 is damaged.</source>
        <translation>%1 已损坏。</translation>
    </message>
    <message>
        <source>%1 has other coordinates than WGS84.</source>
        <translation>%1 的坐标不是WGS84。</translation>
    </message>
    <message>
        <source>%1 is not complete. %2 is missing.</source>
        <translation>%1 不完整。缺少 %2。</translation>
    </message>
    <message>
        <source>%1 has no areas.</source>
        <translation>%1 中没有区域。</translation>
    </message>
    <message>
        <source>Another program uses %1.</source>
        <translation>另一个程序正在使用 %1。</translation>
    </message>
    <message>
        <source>A and B are too close together or too far apart.</source>
        <translation>A和B相距过近或过远。</translation>
    </message>
    <message>
        <source>Another program has locked it.</source>
        <translation>已被另一个程序锁定。</translation>
    </message>
    <message>
        <source>It is no longer there.</source>
        <translation>已不存在。</translation>
    </message>
    <message>
        <source>%1 is no longer there.</source>
        <translation>%1 已不存在。</translation>
    </message>
    <message>
        <source>%1 cannot be written. %2</source>
        <translation>无法写入 %1。%2</translation>
    </message>
    <message>
        <source>%1 cannot be written.</source>
        <translation>无法写入 %1。</translation>
    </message>
    <message>
        <source>The file of the settings has a fault (number %1).</source>
        <translation>设置文件有错误（编号 %1）。</translation>
    </message>
    <message>
        <source>%1 cannot be opened. %2</source>
        <translation>无法打开 %1。%2</translation>
    </message>
    <message>
        <source>%1 cannot be created. %2</source>
        <translation>无法创建 %1。%2</translation>
    </message>
    <message>
        <source>%1 cannot be copied. %2</source>
        <translation>无法复制 %1。%2</translation>
    </message>
    <message>
        <source>%1 cannot be renamed. %2</source>
        <translation>无法重命名 %1。%2</translation>
    </message>
    <message>
        <source>%1 cannot be removed. %2</source>
        <translation>无法删除 %1。%2</translation>
    </message>
    <message>
        <source>The drive is full.</source>
        <translation>磁盘已满。</translation>
    </message>
    <message>
        <source>The drive has a fault.</source>
        <translation>磁盘有故障。</translation>
    </message>
    <message>
        <source>The drive can only be read.</source>
        <translation>磁盘为只读。</translation>
    </message>
    <message>
        <source>It is not permitted.</source>
        <translation>没有权限。</translation>
    </message>
    <message>
        <source>It cannot be opened.</source>
        <translation>无法打开。</translation>
    </message>
    <message>
        <source>It is damaged.</source>
        <translation>已损坏。</translation>
    </message>
    <message>
        <source>It is not there.</source>
        <translation>不存在。</translation>
    </message>
    <message>
        <source>It exists already.</source>
        <translation>已存在。</translation>
    </message>
    <message>
        <source>It is a folder.</source>
        <translation>这是文件夹。</translation>
    </message>
    <message>
        <source>It is not a folder.</source>
        <translation>这不是文件夹。</translation>
    </message>
    <message>
        <source>The folder is not empty.</source>
        <translation>文件夹不是空的。</translation>
    </message>
    <message>
        <source>The file is too large.</source>
        <translation>文件过大。</translation>
    </message>
    <message>
        <source>Too many files are open.</source>
        <translation>打开的文件过多。</translation>
    </message>
    <message>
        <source>There is too little memory.</source>
        <translation>内存不足。</translation>
    </message>
    <message>
        <source>It is not possible there.</source>
        <translation>该处不支持此操作。</translation>
    </message>
    <message>
        <source>The device refuses the connection.</source>
        <translation>设备拒绝连接。</translation>
    </message>
    <message>
        <source>The device has closed the connection.</source>
        <translation>设备已关闭连接。</translation>
    </message>
    <message>
        <source>There is no device with this address.</source>
        <translation>这个地址没有设备。</translation>
    </message>
    <message>
        <source>The network cannot be reached.</source>
        <translation>无法连接到网络。</translation>
    </message>
    <message>
        <source>The device does not answer.</source>
        <translation>设备没有响应。</translation>
    </message>
    <message>
        <source>It is a link to another place.</source>
        <translation>这是指向别处的链接。</translation>
    </message>
    <message>
        <source>There are too many links to it.</source>
        <translation>指向它的链接过多。</translation>
    </message>
</context>
<context>
    <name>ItemActions</name>
    <message>
        <source>Rename</source>
        <translation>重命名</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>ItemPage</name>
    <message>
        <source>New</source>
        <translation>新建</translation>
    </message>
</context>
<context>
    <name>Keypad</name>
    <message>
        <source>%1 to %2 %3</source>
        <translation>%1 至 %2 %3</translation>
    </message>
    <message>
        <source>At least %1 %2</source>
        <translation>至少 %1 %2</translation>
    </message>
    <message>
        <source>At most %1 %2</source>
        <translation>至多 %1 %2</translation>
    </message>
    <message>
        <source>This is not a number yet.</source>
        <translation>这还不是数字。</translation>
    </message>
    <message>
        <source>Too large.
%1</source>
        <translation>过大。
%1</translation>
    </message>
    <message>
        <source>Too small.
%1</source>
        <translation>过小。
%1</translation>
    </message>
    <message>
        <source>now %1</source>
        <translation>当前 %1</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Decimal sign</source>
        <translation>小数分隔符</translation>
    </message>
    <message>
        <source>Plus or minus</source>
        <translation>正负号</translation>
    </message>
    <message>
        <source>Remove the last sign</source>
        <translation>删除最后一个字符</translation>
    </message>
    <message>
        <source>C</source>
        <comment>key that clears the entry</comment>
        <translation>C</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>清除</translation>
    </message>
</context>
<context>
    <name>LineButtons</name>
    <message>
        <source>A</source>
        <comment>one end of the guidance line</comment>
        <translation>A</translation>
    </message>
    <message>
        <source>Set A, the first end of the line, here</source>
        <translation>在此设定A，线的起点</translation>
    </message>
    <message>
        <source>B</source>
        <comment>the other end of the guidance line</comment>
        <translation>B</translation>
    </message>
    <message>
        <source>Set B, the other end of the line, here</source>
        <translation>在此设定B，线的终点</translation>
    </message>
    <message>
        <source>Set a flag here</source>
        <translation>在此设置标记</translation>
    </message>
</context>
<context>
    <name>LineChoice</name>
    <message>
        <source>New</source>
        <translation>新建</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
</context>
<context>
    <name>LinePanel</name>
    <message>
        <source>%1 to the left</source>
        <translation>向左 %1</translation>
    </message>
    <message>
        <source>%1 to the right</source>
        <translation>向右 %1</translation>
    </message>
</context>
<context>
    <name>LockLayer</name>
    <message>
        <source>The screen is locked. Hold the button to unlock it.</source>
        <translation>屏幕已锁定。按住按钮解锁。</translation>
    </message>
    <message>
        <source>Unlock</source>
        <translation>解锁</translation>
    </message>
</context>
<context>
    <name>LogsPage</name>
    <message>
        <source>Logs</source>
        <translation>日志</translation>
    </message>
    <message>
        <source>Events</source>
        <translation>事件</translation>
    </message>
    <message>
        <source>Receiver</source>
        <translation>接收机</translation>
    </message>
    <message>
        <source>Go on</source>
        <translation>继续</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>暂停</translation>
    </message>
    <message>
        <source>No line yet.</source>
        <translation>还没有记录。</translation>
    </message>
</context>
<context>
    <name>MachinePage</name>
    <message>
        <source>Implement width</source>
        <translation>作业幅宽</translation>
    </message>
    <message>
        <source>Decides the guidance lines beside each other, and the area done</source>
        <translation>决定相邻导航线的间距和已作业面积</translation>
    </message>
    <message>
        <source>Implement behind the antenna</source>
        <translation>农具在天线后方的距离</translation>
    </message>
    <message>
        <source>How far the ground is covered behind the vehicle&apos;s place</source>
        <translation>已作业地面在车辆位置后方的距离</translation>
    </message>
</context>
<context>
    <name>Main</name>
    <message>
        <source>Cab display</source>
        <translation>驾驶室显示屏</translation>
    </message>
</context>
<context>
    <name>MapButtons</name>
    <message>
        <source>Zoom in</source>
        <translation>放大</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>缩小</translation>
    </message>
    <message>
        <source>The heading is up. Turn north up</source>
        <translation>航向朝上。改为北朝上</translation>
    </message>
    <message>
        <source>North is up. Turn the heading up</source>
        <translation>北朝上。改为航向朝上</translation>
    </message>
    <message>
        <source>Centre the vehicle</source>
        <translation>车辆居中</translation>
    </message>
</context>
<context>
    <name>NameEntry</name>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>确定</translation>
    </message>
</context>
<context>
    <name>PageTurner</name>
    <message>
        <source>Rows above</source>
        <translation>上面的行</translation>
    </message>
    <message>
        <source>Rows below</source>
        <translation>下面的行</translation>
    </message>
</context>
<context>
    <name>ParameterRow</name>
    <message>
        <source>%1: back to the first value</source>
        <translation>%1：恢复默认值</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>打开</translation>
    </message>
</context>
<context>
    <name>ParameterTexts</name>
    <message>
        <source>h</source>
        <translation>小时</translation>
    </message>
    <message>
        <source>min</source>
        <translation>分钟</translation>
    </message>
    <message>
        <source>s</source>
        <translation>秒</translation>
    </message>
    <message>
        <source>an absolute path that ends in &quot;/&quot; and is not &quot;/&quot;</source>
        <translation>以 &quot;/&quot; 结尾且不只是 &quot;/&quot; 的绝对路径</translation>
    </message>
    <message>
        <source>an absolute path</source>
        <translation>绝对路径</translation>
    </message>
    <message>
        <source>a UUID in small letters, such as 6ba7b810-9dad-41d1-80b4-00c04fd430c8</source>
        <translation>小写字母的UUID，如 6ba7b810-9dad-41d1-80b4-00c04fd430c8</translation>
    </message>
    <message>
        <source>simulator, tcp://HOST:PORT, serial:///dev/NAME?baud=N or an absolute path</source>
        <translation>simulator、tcp://HOST:PORT、serial:///dev/NAME?baud=N 或绝对路径</translation>
    </message>
    <message>
        <source>true or false</source>
        <translation>true 或 false</translation>
    </message>
    <message>
        <source>a time in UTC, such as 2026-03-05T13:05:09Z</source>
        <translation>UTC时间，如 2026-03-05T13:05:09Z</translation>
    </message>
    <message>
        <source>a colour: #rrggbb, #aarrggbb or a name such as navy</source>
        <translation>颜色：#rrggbb、#aarrggbb 或名称（如 navy）</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 至 %2</translation>
    </message>
    <message>
        <source>Not a whole number.</source>
        <translation>不是整数。</translation>
    </message>
    <message>
        <source>Below the least value.</source>
        <translation>低于最小值。</translation>
    </message>
    <message>
        <source>Above the greatest value.</source>
        <translation>高于最大值。</translation>
    </message>
    <message>
        <source>This cannot be the name of a file. Try: %1</source>
        <translation>文件不能用这个名称。可用：%1</translation>
    </message>
    <message>
        <source>Not accepted. Expected: %1.</source>
        <translation>不接受。应为：%1。</translation>
    </message>
    <message>
        <source>a name without %1</source>
        <translation>不含 %1 的名称</translation>
    </message>
    <message>
        <source>a whole number</source>
        <translation>整数</translation>
    </message>
    <message>
        <source>At least %1</source>
        <translation>至少 %1</translation>
    </message>
</context>
<context>
    <name>Parameters</name>
    <message>
        <source>the operator has chosen the offset from UTC; GPS time keeps it instead of computing it</source>
        <translation>操作员选定了与UTC的时差；GPS时间沿用它，不再计算</translation>
    </message>
    <message>
        <source>metric units; otherwise US or English units</source>
        <translation>公制单位；否则为美制或英制单位</translation>
    </message>
    <message>
        <source>US measures when units are not metric; otherwise English measures</source>
        <translation>单位非公制时用美制；否则用英制</translation>
    </message>
    <message>
        <source>positions in degrees, minutes and seconds; otherwise in decimal degrees</source>
        <translation>位置用度、分、秒；否则用十进制度</translation>
    </message>
    <message>
        <source>24-hour clock; otherwise 12 hours with am and pm</source>
        <translation>24小时制时钟；否则为12小时制，带 am 和 pm</translation>
    </message>
    <message>
        <source>dates with the month before the day</source>
        <translation>日期中月在日之前</translation>
    </message>
    <message>
        <source>colours for day; otherwise for night</source>
        <translation>白天颜色；否则为夜间颜色</translation>
    </message>
    <message>
        <source>the map turns with the vehicle; otherwise north is up</source>
        <translation>地图随车辆转动；否则北朝上</translation>
    </message>
    <message>
        <source>unit of pressures</source>
        <translation>压力的单位</translation>
    </message>
    <message>
        <source>unit of areas, and of rates per area</source>
        <translation>面积和单位面积用量的单位</translation>
    </message>
    <message>
        <source>unit of short distances: widths, offsets</source>
        <translation>短距离的单位：宽度、偏移</translation>
    </message>
    <message>
        <source>unit of granular volumes</source>
        <translation>颗粒体积的单位</translation>
    </message>
    <message>
        <source>unit of granular densities</source>
        <translation>颗粒密度的单位</translation>
    </message>
    <message>
        <source>unit of liquid volumes, flows and rates</source>
        <translation>液体体积、流量和用量的单位</translation>
    </message>
    <message>
        <source>language of the display&apos;s texts; a change needs a restart</source>
        <translation>显示屏的语言；更改后须重启</translation>
    </message>
    <message>
        <source>decimal point or comma; a change needs a restart</source>
        <translation>小数点或逗号；更改后须重启</translation>
    </message>
    <message>
        <source>when the colours switch between day and night: only by hand, at sunrise and sunset, or with the sun 6 degrees below the horizon</source>
        <translation>颜色何时在白天和夜间之间切换：仅手动，日出和日落时，或太阳在地平线下6度时</translation>
    </message>
    <message>
        <source>what set the display&apos;s clock</source>
        <translation>显示屏时钟由什么设定</translation>
    </message>
    <message>
        <source>local time less UTC, whole hours</source>
        <translation>本地时间减UTC，整小时</translation>
    </message>
    <message>
        <source>local time less UTC, minutes beyond the hours, with the sign of the hours</source>
        <translation>本地时间减UTC，整小时之外的分钟，正负与小时相同</translation>
    </message>
    <message>
        <source>brightness of the lightbar at night</source>
        <translation>夜间灯条亮度</translation>
    </message>
    <message>
        <source>brightness of the screen at night</source>
        <translation>夜间屏幕亮度</translation>
    </message>
    <message>
        <source>brightness of the button lights at night</source>
        <translation>夜间按键灯亮度</translation>
    </message>
    <message>
        <source>4: implements are kept in the folder of their vehicle; other numbers: in their own folder</source>
        <translation>4：农具存放在所属车辆的文件夹；其他数字：存放在单独的文件夹</translation>
    </message>
    <message>
        <source>number of the next file of the NMEA log</source>
        <translation>NMEA日志下一个文件的编号</translation>
    </message>
    <message>
        <source>number of the next file of the user log</source>
        <translation>用户日志下一个文件的编号</translation>
    </message>
    <message>
        <source>the display&apos;s clock less UTC</source>
        <translation>显示屏时钟减UTC</translation>
    </message>
    <message>
        <source>folder of the internal drive; by default in the data folder</source>
        <translation>内部磁盘的文件夹；默认在数据文件夹中</translation>
    </message>
    <message>
        <source>mount point of the removable drive; by default in the data folder</source>
        <translation>可移动磁盘的挂载点；默认在数据文件夹中</translation>
    </message>
    <message>
        <source>the identity of the terminal, which its profiles carry</source>
        <translation>终端的标识，写在其配置文件中</translation>
    </message>
    <message>
        <source>where the sentences of the receiver come from</source>
        <translation>接收机语句的来源</translation>
    </message>
    <message>
        <source>the figures beside the map, in this order</source>
        <translation>地图旁的数值，按此顺序</translation>
    </message>
    <message>
        <source>the newest time of a receiver, as of the last day on which one was seen</source>
        <translation>接收机的最新时间，取自最近有接收机的一天</translation>
    </message>
    <message>
        <source>when the sun switched the colours last</source>
        <translation>太阳最近一次切换颜色的时间</translation>
    </message>
    <message>
        <source>the active job</source>
        <translation>当前任务</translation>
    </message>
    <message>
        <source>the active boundary</source>
        <translation>当前边界</translation>
    </message>
    <message>
        <source>the active straight guidance line</source>
        <translation>当前直线导航线</translation>
    </message>
    <message>
        <source>the active pivot</source>
        <translation>当前圆形线</translation>
    </message>
    <message>
        <source>the active guidance curve</source>
        <translation>当前导航曲线</translation>
    </message>
    <message>
        <source>the active shape file of optimal lines</source>
        <translation>当前优化线的shape文件</translation>
    </message>
    <message>
        <source>the active shape file of project lines</source>
        <translation>当前项目线的shape文件</translation>
    </message>
    <message>
        <source>the active shape file of zones</source>
        <translation>当前区域的shape文件</translation>
    </message>
    <message>
        <source>the active steering profile</source>
        <translation>当前转向配置</translation>
    </message>
    <message>
        <source>the active implement</source>
        <translation>当前农具</translation>
    </message>
    <message>
        <source>the active vehicle</source>
        <translation>当前车辆</translation>
    </message>
    <message>
        <source>the active sprayer</source>
        <translation>当前喷雾机</translation>
    </message>
    <message>
        <source>the active boom leveller</source>
        <translation>当前喷杆调平</translation>
    </message>
    <message>
        <source>the active client</source>
        <translation>当前客户</translation>
    </message>
    <message>
        <source>the active farm</source>
        <translation>当前农场</translation>
    </message>
    <message>
        <source>the active field</source>
        <translation>当前地块</translation>
    </message>
    <message>
        <source>Measures</source>
        <translation>度量制</translation>
    </message>
    <message>
        <source>Gallons and bushels</source>
        <translation>加仑和蒲式耳</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>面积</translation>
    </message>
    <message>
        <source>Pressure</source>
        <translation>压力</translation>
    </message>
    <message>
        <source>Short distances</source>
        <translation>短距离</translation>
    </message>
    <message>
        <source>Liquid</source>
        <translation>液体</translation>
    </message>
    <message>
        <source>Granular volume</source>
        <translation>颗粒体积</translation>
    </message>
    <message>
        <source>Granular density</source>
        <translation>颗粒密度</translation>
    </message>
    <message>
        <source>Positions</source>
        <translation>位置</translation>
    </message>
    <message>
        <source>Rate per travel</source>
        <translation>单位距离用量</translation>
    </message>
    <message>
        <source>Basis of rates</source>
        <translation>用量基准</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>语言</translation>
    </message>
    <message>
        <source>Decimal sign</source>
        <translation>小数分隔符</translation>
    </message>
    <message>
        <source>Time of day</source>
        <translation>时间格式</translation>
    </message>
    <message>
        <source>Dates</source>
        <translation>日期格式</translation>
    </message>
    <message>
        <source>Time zone set by hand</source>
        <translation>手动设定时区</translation>
    </message>
    <message>
        <source>Time zone, hours</source>
        <translation>时区，小时</translation>
    </message>
    <message>
        <source>Time zone, minutes</source>
        <translation>时区，分钟</translation>
    </message>
    <message>
        <source>Clock less UTC</source>
        <translation>时钟减UTC</translation>
    </message>
    <message>
        <source>Source of the time</source>
        <translation>时间来源</translation>
    </message>
    <message>
        <source>Source of the time since</source>
        <translation>时间来源起始</translation>
    </message>
    <message>
        <source>Newest receiver time</source>
        <translation>接收机最新时间</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>颜色</translation>
    </message>
    <message>
        <source>Day and night</source>
        <translation>白天和夜间</translation>
    </message>
    <message>
        <source>Map direction</source>
        <translation>地图方向</translation>
    </message>
    <message>
        <source>Tiles</source>
        <translation>卡片</translation>
    </message>
    <message>
        <source>Light bar at night</source>
        <translation>夜间灯条</translation>
    </message>
    <message>
        <source>Screen at night</source>
        <translation>夜间屏幕</translation>
    </message>
    <message>
        <source>Button lights at night</source>
        <translation>夜间按键灯</translation>
    </message>
    <message>
        <source>Switched by the sun</source>
        <translation>太阳上次切换</translation>
    </message>
    <message>
        <source>Client</source>
        <translation>客户</translation>
    </message>
    <message>
        <source>Farm</source>
        <translation>农场</translation>
    </message>
    <message>
        <source>Field</source>
        <translation>地块</translation>
    </message>
    <message>
        <source>Job</source>
        <translation>任务</translation>
    </message>
    <message>
        <source>Vehicle</source>
        <translation>车辆</translation>
    </message>
    <message>
        <source>Implement</source>
        <translation>农具</translation>
    </message>
    <message>
        <source>Sprayer</source>
        <translation>喷雾机</translation>
    </message>
    <message>
        <source>Boom leveller</source>
        <translation>喷杆调平</translation>
    </message>
    <message>
        <source>Steering profile</source>
        <translation>转向配置</translation>
    </message>
    <message>
        <source>Boundary</source>
        <translation>边界</translation>
    </message>
    <message>
        <source>A-B line</source>
        <translation>AB线</translation>
    </message>
    <message>
        <source>Pivot</source>
        <translation>圆形线</translation>
    </message>
    <message>
        <source>Curve</source>
        <translation>曲线</translation>
    </message>
    <message>
        <source>Optimal lines</source>
        <translation>优化线</translation>
    </message>
    <message>
        <source>Project lines</source>
        <translation>项目线</translation>
    </message>
    <message>
        <source>Zones</source>
        <translation>区域</translation>
    </message>
    <message>
        <source>Receiver address</source>
        <translation>接收机地址</translation>
    </message>
    <message>
        <source>Internal drive</source>
        <translation>内部磁盘</translation>
    </message>
    <message>
        <source>Stick</source>
        <translation>U盘</translation>
    </message>
    <message>
        <source>Implement folder</source>
        <translation>农具文件夹</translation>
    </message>
    <message>
        <source>Next NMEA log</source>
        <translation>下一个NMEA日志</translation>
    </message>
    <message>
        <source>Next user log</source>
        <translation>下一个用户日志</translation>
    </message>
    <message>
        <source>Identity</source>
        <translation>标识</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>文字</translation>
    </message>
    <message>
        <source>Colour of texts</source>
        <translation>文字的颜色</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>标题</translation>
    </message>
    <message>
        <source>Colour of titles</source>
        <translation>标题的颜色</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>背景</translation>
    </message>
    <message>
        <source>Colour of the background</source>
        <translation>背景的颜色</translation>
    </message>
    <message>
        <source>Button</source>
        <translation>按钮</translation>
    </message>
    <message>
        <source>Colour of buttons</source>
        <translation>按钮的颜色</translation>
    </message>
    <message>
        <source>Button text</source>
        <translation>按钮文字</translation>
    </message>
    <message>
        <source>Colour of texts on buttons</source>
        <translation>按钮文字的颜色</translation>
    </message>
    <message>
        <source>Map</source>
        <translation>地图</translation>
    </message>
    <message>
        <source>Colour of the map&apos;s ground</source>
        <translation>地图底色的颜色</translation>
    </message>
    <message>
        <source>Grid</source>
        <translation>网格</translation>
    </message>
    <message>
        <source>Colour of the map&apos;s grid</source>
        <translation>地图网格的颜色</translation>
    </message>
    <message>
        <source>Coverage</source>
        <translation>已作业</translation>
    </message>
    <message>
        <source>Colour of covered ground</source>
        <translation>已作业地面的颜色</translation>
    </message>
    <message>
        <source>Vehicle on the map</source>
        <translation>地图上的车辆</translation>
    </message>
    <message>
        <source>Colour of the vehicle</source>
        <translation>车辆的颜色</translation>
    </message>
    <message>
        <source>Guidance line</source>
        <translation>导航线</translation>
    </message>
    <message>
        <source>Colour of the guidance line</source>
        <translation>导航线的颜色</translation>
    </message>
    <message>
        <source>Cross hairs</source>
        <translation>十字线</translation>
    </message>
    <message>
        <source>Colour of the cross hairs</source>
        <translation>十字线的颜色</translation>
    </message>
    <message>
        <source>Outer boundary</source>
        <translation>外边界</translation>
    </message>
    <message>
        <source>Colour of the outer boundary of the field</source>
        <translation>地块外边界的颜色</translation>
    </message>
    <message>
        <source>Inner boundary</source>
        <translation>内边界</translation>
    </message>
    <message>
        <source>Colour of boundaries within the field</source>
        <translation>地块内部边界的颜色</translation>
    </message>
    <message>
        <source>Other boundaries</source>
        <translation>其他边界</translation>
    </message>
    <message>
        <source>Colour of boundaries that are not active</source>
        <translation>非当前边界的颜色</translation>
    </message>
    <message>
        <source>Exclusion zone</source>
        <translation>禁入区域</translation>
    </message>
    <message>
        <source>Colour of zones to keep out of</source>
        <translation>禁入区域的颜色</translation>
    </message>
    <message>
        <source>Background picture</source>
        <translation>背景图片</translation>
    </message>
    <message>
        <source>Number of the background picture</source>
        <translation>背景图片的编号</translation>
    </message>
    <message>
        <source>what the sprayer&apos;s rates are related to</source>
        <translation>喷雾机用量以什么为基准</translation>
    </message>
    <message>
        <source>liquid rates per 100 m or 100 yd of travel, while travel is their basis</source>
        <translation>以行驶距离为基准时，每 100 m 或 100 yd 的液体用量</translation>
    </message>
    <message>
        <source>since when the clock has its time from there</source>
        <translation>时钟从何时起采用该来源的时间</translation>
    </message>
    <message>
        <source>Metric</source>
        <translation>公制</translation>
    </message>
    <message>
        <source>US or English</source>
        <translation>美制或英制</translation>
    </message>
    <message>
        <source>US</source>
        <translation>美制</translation>
    </message>
    <message>
        <source>English</source>
        <translation>英制</translation>
    </message>
    <message>
        <source>Deg., min., s</source>
        <translation>度、分、秒</translation>
    </message>
    <message>
        <source>Degrees</source>
        <translation>度</translation>
    </message>
    <message>
        <source>24 hours</source>
        <translation>24小时</translation>
    </message>
    <message>
        <source>am, pm</source>
        <translation>am、pm</translation>
    </message>
    <message>
        <source>Month first</source>
        <translation>月在前</translation>
    </message>
    <message>
        <source>Day first</source>
        <translation>日在前</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>白天</translation>
    </message>
    <message>
        <source>Night</source>
        <translation>夜间</translation>
    </message>
    <message>
        <source>Heading up</source>
        <translation>航向朝上</translation>
    </message>
    <message>
        <source>North up</source>
        <translation>北朝上</translation>
    </message>
    <message>
        <source>On</source>
        <translation>开</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>关</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>是</translation>
    </message>
    <message>
        <source>No</source>
        <translation>否</translation>
    </message>
    <message>
        <source>Travel</source>
        <translation>行驶距离</translation>
    </message>
    <message>
        <source>kPa</source>
        <translation>kPa</translation>
    </message>
    <message>
        <source>psi</source>
        <translation>psi</translation>
    </message>
    <message>
        <source>bar</source>
        <translation>bar</translation>
    </message>
    <message>
        <source>Hectare</source>
        <translation>公顷</translation>
    </message>
    <message>
        <source>Acre</source>
        <translation>英亩</translation>
    </message>
    <message>
        <source>m, mm</source>
        <translation>m, mm</translation>
    </message>
    <message>
        <source>Inch</source>
        <translation>英寸</translation>
    </message>
    <message>
        <source>Foot</source>
        <translation>英尺</translation>
    </message>
    <message>
        <source>L</source>
        <translation>L</translation>
    </message>
    <message>
        <source>kg</source>
        <translation>kg</translation>
    </message>
    <message>
        <source>m³</source>
        <translation>m³</translation>
    </message>
    <message>
        <source>US bushel</source>
        <translation>美制蒲式耳</translation>
    </message>
    <message>
        <source>UK bushel</source>
        <translation>英制蒲式耳</translation>
    </message>
    <message>
        <source>kg/L</source>
        <translation>kg/L</translation>
    </message>
    <message>
        <source>kg/m³</source>
        <translation>kg/m³</translation>
    </message>
    <message>
        <source>kg/US bu</source>
        <translation>kg/US bu</translation>
    </message>
    <message>
        <source>kg/UK bu</source>
        <translation>kg/UK bu</translation>
    </message>
    <message>
        <source>t</source>
        <translation>t</translation>
    </message>
    <message>
        <source>Point</source>
        <translation>点</translation>
    </message>
    <message>
        <source>Comma</source>
        <translation>逗号</translation>
    </message>
    <message>
        <source>By hand</source>
        <translation>手动</translation>
    </message>
    <message>
        <source>Sunset</source>
        <translation>日落</translation>
    </message>
    <message>
        <source>Twilight</source>
        <translation>暮光</translation>
    </message>
    <message>
        <source>Not set</source>
        <translation>未设定</translation>
    </message>
    <message>
        <source>Operator</source>
        <translation>操作员</translation>
    </message>
    <message>
        <source>Receiver</source>
        <translation>接收机</translation>
    </message>
    <message>
        <source>Rate</source>
        <translation>用量</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>速度</translation>
    </message>
    <message>
        <source>Area done</source>
        <translation>已作业面积</translation>
    </message>
    <message>
        <source>Area left</source>
        <translation>剩余面积</translation>
    </message>
    <message>
        <source>Productivity</source>
        <translation>作业效率</translation>
    </message>
    <message>
        <source>Flow</source>
        <translation>流量</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>温度</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>行驶距离</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>位置</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>时间</translation>
    </message>
    <message>
        <source>Units</source>
        <translation>单位</translation>
    </message>
    <message>
        <source>Rates</source>
        <translation>用量</translation>
    </message>
    <message>
        <source>Region</source>
        <translation>地区</translation>
    </message>
    <message>
        <source>Clock</source>
        <translation>时钟</translation>
    </message>
    <message>
        <source>Colours of the schemes</source>
        <translation>方案颜色</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>显示</translation>
    </message>
    <message>
        <source>Selections</source>
        <translation>选择</translation>
    </message>
    <message>
        <source>Storage</source>
        <translation>存储</translation>
    </message>
    <message>
        <source>Logs</source>
        <translation>日志</translation>
    </message>
    <message>
        <source>Terminal</source>
        <translation>终端</translation>
    </message>
    <message>
        <source>%1, by day</source>
        <translation>%1（白天）</translation>
    </message>
    <message>
        <source>%1, by night</source>
        <translation>%1（夜间）</translation>
    </message>
</context>
<context>
    <name>Problems</name>
    <message>
        <source>The logs lose lines: their drive is full or cannot be written.</source>
        <translation>日志正在丢失记录：磁盘已满或无法写入。</translation>
    </message>
    <message>
        <source>Recording is off, because there is too little room.</source>
        <translation>空间不足，记录已关闭。</translation>
    </message>
    <message>
        <source>Changes of settings are not stored yet. %1</source>
        <translation>设置的更改尚未保存。%1</translation>
    </message>
    <message>
        <source>The drive of the terminal is nearly full. Free: %1</source>
        <translation>终端磁盘快满了。剩余：%1</translation>
    </message>
</context>
<context>
    <name>ProfilePage</name>
    <message>
        <source>Import</source>
        <translation>导入</translation>
    </message>
    <message>
        <source>The display has these settings already.</source>
        <translation>显示屏已有这些设置。</translation>
    </message>
    <message>
        <source>Changed here and in the profile</source>
        <translation>本机和配置文件中都已更改</translation>
    </message>
    <message>
        <source>Which value the settings below shall have</source>
        <translation>下面的设置采用哪个值</translation>
    </message>
    <message>
        <source>Ours</source>
        <translation>本机</translation>
    </message>
    <message>
        <source>Theirs</source>
        <translation>配置文件</translation>
    </message>
</context>
<context>
    <name>ProfilesPage</name>
    <message>
        <source>Profiles</source>
        <translation>配置文件</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>导出</translation>
    </message>
    <message>
        <source>There is no profile on the stick.</source>
        <translation>U盘上没有配置文件。</translation>
    </message>
    <message>
        <source>No stick is plugged in.</source>
        <translation>未插入U盘。</translation>
    </message>
    <message>
        <source>Name of the profile</source>
        <translation>配置文件名称</translation>
    </message>
</context>
<context>
    <name>Quantities</name>
    <message>
        <source>Area</source>
        <translation>面积</translation>
    </message>
    <message>
        <source>Productivity</source>
        <translation>作业效率</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>速度</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>距离</translation>
    </message>
    <message>
        <source>Small distance</source>
        <translation>小距离</translation>
    </message>
    <message>
        <source>Travelled distance</source>
        <translation>行驶距离</translation>
    </message>
    <message>
        <source>Altitude</source>
        <translation>海拔</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>温度</translation>
    </message>
    <message>
        <source>Pressure</source>
        <translation>压力</translation>
    </message>
    <message>
        <source>Rate</source>
        <translation>用量</translation>
    </message>
    <message>
        <source>Requested rate</source>
        <translation>目标用量</translation>
    </message>
    <message>
        <source>Rate and error</source>
        <translation>用量和偏差</translation>
    </message>
    <message>
        <source>Small rate</source>
        <translation>小用量</translation>
    </message>
    <message>
        <source>Flow</source>
        <translation>流量</translation>
    </message>
    <message>
        <source>Small flow</source>
        <translation>小流量</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>体积</translation>
    </message>
    <message>
        <source>Small volume</source>
        <translation>小体积</translation>
    </message>
    <message>
        <source>Granular volume</source>
        <translation>颗粒体积</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>重量</translation>
    </message>
    <message>
        <source>Weight per area</source>
        <translation>单位面积重量</translation>
    </message>
    <message>
        <source>Weight per area and error</source>
        <translation>单位面积重量和偏差</translation>
    </message>
    <message>
        <source>Discharge</source>
        <translation>排出量</translation>
    </message>
    <message>
        <source>Nitrogen</source>
        <translation>氮</translation>
    </message>
    <message>
        <source>Nitrogen per area</source>
        <translation>单位面积氮量</translation>
    </message>
    <message>
        <source>Seeds per area</source>
        <translation>单位面积种子数</translation>
    </message>
    <message>
        <source>Density</source>
        <translation>密度</translation>
    </message>
    <message>
        <source>Granular density</source>
        <translation>颗粒密度</translation>
    </message>
    <message>
        <source>Volume per revolution</source>
        <translation>每转体积</translation>
    </message>
    <message>
        <source>Weight per revolution</source>
        <translation>每转重量</translation>
    </message>
    <message>
        <source>Flow meter</source>
        <translation>流量计</translation>
    </message>
    <message>
        <source>Wheel sensor</source>
        <translation>车轮传感器</translation>
    </message>
    <message>
        <source>Speed sensor</source>
        <translation>速度传感器</translation>
    </message>
    <message>
        <source>Latitude</source>
        <translation>纬度</translation>
    </message>
    <message>
        <source>Longitude</source>
        <translation>经度</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>时长</translation>
    </message>
    <message>
        <source>Percent</source>
        <translation>百分比</translation>
    </message>
</context>
<context>
    <name>Question</name>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>RateTile</name>
    <message>
        <source>set %1</source>
        <comment>the rate that is set</comment>
        <translation>目标 %1</translation>
    </message>
</context>
<context>
    <name>Receiver</name>
    <message>
        <source>Off</source>
        <translation>关</translation>
    </message>
    <message>
        <source>Connecting</source>
        <translation>正在连接</translation>
    </message>
    <message>
        <source>Receiving</source>
        <translation>正在接收</translation>
    </message>
    <message>
        <source>Silent</source>
        <translation>无数据</translation>
    </message>
    <message>
        <source>Lost</source>
        <translation>丢失</translation>
    </message>
    <message>
        <source>Ended</source>
        <translation>已结束</translation>
    </message>
    <message>
        <source>No fix</source>
        <translation>无定位</translation>
    </message>
    <message>
        <source>RTK float</source>
        <translation>RTK浮点</translation>
    </message>
    <message>
        <source>Estimated</source>
        <translation>估算</translation>
    </message>
    <message>
        <source>By hand</source>
        <translation>手动</translation>
    </message>
    <message>
        <source>Simulated</source>
        <translation>模拟</translation>
    </message>
    <message>
        <source>The receiver sends nothing.</source>
        <translation>接收机没有发送数据。</translation>
    </message>
    <message>
        <source>The receiver is lost and is being looked for. %1</source>
        <translation>接收机已丢失，正在查找。%1</translation>
    </message>
    <message>
        <source>The receiver cannot be read. %1</source>
        <translation>无法读取接收机。%1</translation>
    </message>
    <message>
        <source>The simulated field is done.</source>
        <translation>模拟的地块已完成。</translation>
    </message>
    <message>
        <source>The recording of the receiver is over.</source>
        <translation>接收机的记录已播完。</translation>
    </message>
</context>
<context>
    <name>ReceiverPage</name>
    <message>
        <source>Receiver</source>
        <translation>接收机</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>开始</translation>
    </message>
    <message>
        <source>Simulator</source>
        <translation>模拟器</translation>
    </message>
    <message>
        <source>File</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>网络</translation>
    </message>
    <message>
        <source>Serial</source>
        <translation>串口</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>地址</translation>
    </message>
    <message>
        <source>Fix</source>
        <translation>定位</translation>
    </message>
    <message>
        <source>Age</source>
        <translation>差分龄期</translation>
    </message>
    <message>
        <source>Satellites</source>
        <translation>卫星</translation>
    </message>
    <message>
        <source>HDOP</source>
        <translation>HDOP</translation>
    </message>
    <message>
        <source>Time (UTC)</source>
        <translation>时间 (UTC)</translation>
    </message>
    <message>
        <source>Lines</source>
        <translation>行数</translation>
    </message>
    <message>
        <source>Sentences</source>
        <translation>语句数</translation>
    </message>
    <message>
        <source>Bad checksums</source>
        <translation>校验和错误</translation>
    </message>
    <message>
        <source>Damaged lines</source>
        <translation>损坏的行</translation>
    </message>
    <message>
        <source>Address of the receiver</source>
        <translation>接收机的地址</translation>
    </message>
</context>
<context>
    <name>RegionPage</name>
    <message>
        <source>Date</source>
        <translation>日期</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>时间</translation>
    </message>
    <message>
        <source>Time zone</source>
        <translation>时区</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>日期和时间</translation>
    </message>
    <message>
        <source>Set by hand</source>
        <translation>手动设定</translation>
    </message>
</context>
<context>
    <name>SearchPage</name>
    <message>
        <source>Search</source>
        <translation>搜索</translation>
    </message>
    <message>
        <source>Words of a setting</source>
        <translation>搜索设置</translation>
    </message>
    <message>
        <source>No setting has these words.</source>
        <translation>没有含这些字词的设置。</translation>
    </message>
</context>
<context>
    <name>SettingsPage</name>
    <message>
        <source>Units</source>
        <translation>单位</translation>
    </message>
    <message>
        <source>Region</source>
        <translation>地区</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>颜色</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>显示</translation>
    </message>
    <message>
        <source>Machine</source>
        <translation>机器</translation>
    </message>
    <message>
        <source>Storage</source>
        <translation>存储</translation>
    </message>
    <message>
        <source>About</source>
        <translation>关于</translation>
    </message>
    <message>
        <source>Tiles</source>
        <translation>卡片</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>配置文件</translation>
    </message>
    <message>
        <source>All settings</source>
        <translation>全部设置</translation>
    </message>
</context>
<context>
    <name>SettingsPanel</name>
    <message>
        <source>Back</source>
        <translation>返回</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>搜索</translation>
    </message>
</context>
<context>
    <name>Sizes</name>
    <message numerus="yes">
        <source>%n byte(s)</source>
        <translation>
            <numerusform>%n 字节</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 kB</source>
        <translation>%1 kB</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1 MB</translation>
    </message>
    <message>
        <source>%1 GB</source>
        <translation>%1 GB</translation>
    </message>
    <message>
        <source>%1 TB</source>
        <translation>%1 TB</translation>
    </message>
</context>
<context>
    <name>StateBand</name>
    <message>
        <source>No job</source>
        <translation>无任务</translation>
    </message>
    <message>
        <source>Receiver: %1</source>
        <translation>接收机：%1</translation>
    </message>
    <message>
        <source>The stick is plugged in</source>
        <translation>已插入U盘</translation>
    </message>
    <message>
        <source>Lock the screen</source>
        <translation>锁定屏幕</translation>
    </message>
    <message>
        <source>Colours of the night</source>
        <translation>夜间颜色</translation>
    </message>
    <message>
        <source>Colours of the day</source>
        <translation>白天颜色</translation>
    </message>
</context>
<context>
    <name>StoragePage</name>
    <message>
        <source>Open</source>
        <translation>打开</translation>
    </message>
    <message>
        <source>Internal drive</source>
        <translation>内部磁盘</translation>
    </message>
    <message>
        <source>Stick</source>
        <translation>U盘</translation>
    </message>
    <message>
        <source>No stick is plugged in.</source>
        <translation>未插入U盘。</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>内存</translation>
    </message>
    <message>
        <source>Logs</source>
        <translation>日志</translation>
    </message>
    <message>
        <source>Writes all log files to the stick</source>
        <translation>把所有日志文件写入U盘</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>导出</translation>
    </message>
    <message>
        <source>Export the logs</source>
        <translation>导出日志</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>配置文件</translation>
    </message>
    <message>
        <source>Takes the settings to another display, or brings them back from the stick</source>
        <translation>把设置带到另一个显示屏，或从U盘取回</translation>
    </message>
    <message>
        <source>Open the profiles</source>
        <translation>打开配置文件</translation>
    </message>
    <message>
        <source>Support</source>
        <translation>技术支持</translation>
    </message>
    <message>
        <source>Writes logs, settings and versions in one file; without the names of clients, farms and fields</source>
        <translation>把日志、设置和版本写入一个文件；不含客户、农场和地块的名称</translation>
    </message>
    <message>
        <source>Write</source>
        <translation>写入</translation>
    </message>
    <message>
        <source>Write the file for support without names</source>
        <translation>写入不含名称的技术支持文件</translation>
    </message>
    <message>
        <source>Support, with names</source>
        <translation>技术支持（含名称）</translation>
    </message>
    <message>
        <source>The same file, with all names and places</source>
        <translation>同一文件，含所有名称和地点</translation>
    </message>
    <message>
        <source>Write the file for support with names</source>
        <translation>写入含名称的技术支持文件</translation>
    </message>
</context>
<context>
    <name>TFieldTreeModel</name>
    <message>
        <source>A job holds no items.</source>
        <translation>任务中没有其他项目。</translation>
    </message>
    <message>
        <source>There is one with this name already.</source>
        <translation>已有这个名称。</translation>
    </message>
    <message numerus="yes">
        <source>%n file(s), %1</source>
        <translation>
            <numerusform>%n 个文件，%1</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>TParameter</name>
    <message>
        <source>The setting could not be written to the disk yet.</source>
        <translation>设置暂时无法写入磁盘。</translation>
    </message>
    <message>
        <source>There is no value to set.</source>
        <translation>没有可设定的值。</translation>
    </message>
</context>
<context>
    <name>TRegionSettings</name>
    <message>
        <source>Jan</source>
        <translation>1月</translation>
    </message>
    <message>
        <source>Feb</source>
        <translation>2月</translation>
    </message>
    <message>
        <source>Mar</source>
        <translation>3月</translation>
    </message>
    <message>
        <source>Apr</source>
        <translation>4月</translation>
    </message>
    <message>
        <source>May</source>
        <translation>5月</translation>
    </message>
    <message>
        <source>Jun</source>
        <translation>6月</translation>
    </message>
    <message>
        <source>Jul</source>
        <translation>7月</translation>
    </message>
    <message>
        <source>Aug</source>
        <translation>8月</translation>
    </message>
    <message>
        <source>Sep</source>
        <translation>9月</translation>
    </message>
    <message>
        <source>Oct</source>
        <translation>10月</translation>
    </message>
    <message>
        <source>Nov</source>
        <translation>11月</translation>
    </message>
    <message>
        <source>Dec</source>
        <translation>12月</translation>
    </message>
</context>
<context>
    <name>TRestart</name>
    <message>
        <source>The new language is shown after a restart.</source>
        <translation>新语言在重启后显示。</translation>
    </message>
    <message>
        <source>The new decimal sign is shown after a restart.</source>
        <translation>新的小数分隔符在重启后显示。</translation>
    </message>
</context>
<context>
    <name>TSelections</name>
    <message>
        <source>The selection could not be stored.</source>
        <translation>选择无法保存。</translation>
    </message>
</context>
<context>
    <name>TSystemSettings</name>
    <message>
        <source>J_</source>
        <translation>J_</translation>
    </message>
    <message>
        <source>B_</source>
        <translation>B_</translation>
    </message>
    <message>
        <source>L_</source>
        <translation>L_</translation>
    </message>
    <message>
        <source>P_</source>
        <translation>P_</translation>
    </message>
    <message>
        <source>C_</source>
        <translation>C_</translation>
    </message>
    <message>
        <source>O_</source>
        <translation>O_</translation>
    </message>
    <message>
        <source>No Vehicle</source>
        <translation>无车辆</translation>
    </message>
    <message>
        <source>No Profile</source>
        <translation>无配置</translation>
    </message>
    <message>
        <source>No Implement</source>
        <translation>无农具</translation>
    </message>
    <message>
        <source>Pivoted_</source>
        <translation>牵引_</translation>
    </message>
</context>
<context>
    <name>TTransfer</name>
    <message>
        <source>The name is empty.</source>
        <translation>名称为空。</translation>
    </message>
</context>
<context>
    <name>TUnitAbbreviations</name>
    <message>
        <source>Jan</source>
        <translation>1月</translation>
    </message>
    <message>
        <source>Feb</source>
        <translation>2月</translation>
    </message>
    <message>
        <source>Mar</source>
        <translation>3月</translation>
    </message>
    <message>
        <source>Apr</source>
        <translation>4月</translation>
    </message>
    <message>
        <source>May</source>
        <translation>5月</translation>
    </message>
    <message>
        <source>Jun</source>
        <translation>6月</translation>
    </message>
    <message>
        <source>Jul</source>
        <translation>7月</translation>
    </message>
    <message>
        <source>Aug</source>
        <translation>8月</translation>
    </message>
    <message>
        <source>Sep</source>
        <translation>9月</translation>
    </message>
    <message>
        <source>Oct</source>
        <translation>10月</translation>
    </message>
    <message>
        <source>Nov</source>
        <translation>11月</translation>
    </message>
    <message>
        <source>Dec</source>
        <translation>12月</translation>
    </message>
    <message>
        <source>m</source>
        <translation>m</translation>
    </message>
    <message>
        <source>km</source>
        <translation>km</translation>
    </message>
    <message>
        <source>cm</source>
        <translation>cm</translation>
    </message>
    <message>
        <source>mm</source>
        <translation>mm</translation>
    </message>
    <message>
        <source>&apos;</source>
        <translation>&apos;</translation>
    </message>
    <message>
        <source>miles</source>
        <translation>英里</translation>
    </message>
    <message>
        <source>ha</source>
        <translation>ha</translation>
    </message>
    <message>
        <source>ac</source>
        <translation>ac</translation>
    </message>
    <message>
        <source>m/min</source>
        <translation>m/min</translation>
    </message>
    <message>
        <source>ft/min</source>
        <translation>ft/min</translation>
    </message>
    <message>
        <source>kph</source>
        <translation>km/h</translation>
    </message>
    <message>
        <source>mph</source>
        <translation>mph</translation>
    </message>
    <message>
        <source>ac/hr</source>
        <translation>ac/h</translation>
    </message>
    <message>
        <source>ha/hr</source>
        <translation>ha/h</translation>
    </message>
    <message>
        <source>L</source>
        <translation>L</translation>
    </message>
    <message>
        <source>gal</source>
        <translation>gal</translation>
    </message>
    <message>
        <source>mL</source>
        <translation>mL</translation>
    </message>
    <message>
        <source>fl.oz</source>
        <translation>fl.oz</translation>
    </message>
    <message>
        <source>m³</source>
        <translation>m³</translation>
    </message>
    <message>
        <source>ft³</source>
        <translation>ft³</translation>
    </message>
    <message>
        <source>t</source>
        <translation>t</translation>
    </message>
    <message>
        <source>US bu</source>
        <translation>US bu</translation>
    </message>
    <message>
        <source>UK bu</source>
        <translation>UK bu</translation>
    </message>
    <message>
        <source>L/ha</source>
        <translation>L/ha</translation>
    </message>
    <message>
        <source>L/ac</source>
        <translation>L/ac</translation>
    </message>
    <message>
        <source>mL/ha</source>
        <translation>mL/ha</translation>
    </message>
    <message>
        <source>mL/ac</source>
        <translation>mL/ac</translation>
    </message>
    <message>
        <source>gal/ha</source>
        <translation>gal/ha</translation>
    </message>
    <message>
        <source>gal/ac</source>
        <translation>gal/ac</translation>
    </message>
    <message>
        <source>gal/ha (US)</source>
        <translation>gal/ha (US)</translation>
    </message>
    <message>
        <source>gal/ac (US)</source>
        <translation>gal/ac (US)</translation>
    </message>
    <message>
        <source>fl.oz/ac</source>
        <translation>fl.oz/ac</translation>
    </message>
    <message>
        <source>fl.oz/ha</source>
        <translation>fl.oz/ha</translation>
    </message>
    <message>
        <source>fl.oz/ac (US)</source>
        <translation>fl.oz/ac (US)</translation>
    </message>
    <message>
        <source>fl.oz/ha (US)</source>
        <translation>fl.oz/ha (US)</translation>
    </message>
    <message>
        <source>m³/ha</source>
        <translation>m³/ha</translation>
    </message>
    <message>
        <source>m³/ac</source>
        <translation>m³/ac</translation>
    </message>
    <message>
        <source>ft³/ha</source>
        <translation>ft³/ha</translation>
    </message>
    <message>
        <source>ft³/ac</source>
        <translation>ft³/ac</translation>
    </message>
    <message>
        <source>t/ha</source>
        <translation>t/ha</translation>
    </message>
    <message>
        <source>t/ac</source>
        <translation>t/ac</translation>
    </message>
    <message>
        <source>L/100m</source>
        <translation>L/100m</translation>
    </message>
    <message>
        <source>gal/100yd</source>
        <translation>gal/100yd</translation>
    </message>
    <message>
        <source>gal/100yd (US)</source>
        <translation>gal/100yd (US)</translation>
    </message>
    <message>
        <source>L/min</source>
        <translation>L/min</translation>
    </message>
    <message>
        <source>gal/min</source>
        <translation>gal/min</translation>
    </message>
    <message>
        <source>mL/min</source>
        <translation>mL/min</translation>
    </message>
    <message>
        <source>fl.oz/min</source>
        <translation>fl.oz/min</translation>
    </message>
    <message>
        <source>m³/min</source>
        <translation>m³/min</translation>
    </message>
    <message>
        <source>ft³/min</source>
        <translation>ft³/min</translation>
    </message>
    <message>
        <source>t/min</source>
        <translation>t/min</translation>
    </message>
    <message>
        <source>L/rev</source>
        <translation>L/r</translation>
    </message>
    <message>
        <source>gal/rev</source>
        <translation>gal/r</translation>
    </message>
    <message>
        <source>kPa</source>
        <translation>kPa</translation>
    </message>
    <message>
        <source>psi</source>
        <translation>psi</translation>
    </message>
    <message>
        <source>bar</source>
        <translation>bar</translation>
    </message>
    <message>
        <source>m/pulse</source>
        <translation>m/脉冲</translation>
    </message>
    <message>
        <source>ft/pulse</source>
        <translation>ft/脉冲</translation>
    </message>
    <message>
        <source>pulses/L</source>
        <translation>脉冲/L</translation>
    </message>
    <message>
        <source>pulses/gal</source>
        <translation>脉冲/gal</translation>
    </message>
    <message>
        <source>pulses/mL</source>
        <translation>脉冲/mL</translation>
    </message>
    <message>
        <source>pulses/fl.oz</source>
        <translation>脉冲/fl.oz</translation>
    </message>
    <message>
        <source>pulses/m³</source>
        <translation>脉冲/m³</translation>
    </message>
    <message>
        <source>pulses/ft³</source>
        <translation>脉冲/ft³</translation>
    </message>
    <message>
        <source>pulses/t</source>
        <translation>脉冲/t</translation>
    </message>
    <message>
        <source>pulses/lb</source>
        <translation>脉冲/lb</translation>
    </message>
    <message>
        <source>kg</source>
        <translation>kg</translation>
    </message>
    <message>
        <source>lb</source>
        <translation>lb</translation>
    </message>
    <message>
        <source>kgN</source>
        <translation>kgN</translation>
    </message>
    <message>
        <source>lbN</source>
        <translation>lbN</translation>
    </message>
    <message>
        <source>kg/ha</source>
        <translation>kg/ha</translation>
    </message>
    <message>
        <source>kg/ac</source>
        <translation>kg/ac</translation>
    </message>
    <message>
        <source>lb/ac</source>
        <translation>lb/ac</translation>
    </message>
    <message>
        <source>lb/ha</source>
        <translation>lb/ha</translation>
    </message>
    <message>
        <source>g/ha</source>
        <translation>g/ha</translation>
    </message>
    <message>
        <source>kgN/ha</source>
        <translation>kgN/ha</translation>
    </message>
    <message>
        <source>kgN/ac</source>
        <translation>kgN/ac</translation>
    </message>
    <message>
        <source>lbN/ac</source>
        <translation>lbN/ac</translation>
    </message>
    <message>
        <source>lbN/ha</source>
        <translation>lbN/ha</translation>
    </message>
    <message>
        <source>kg/min</source>
        <translation>kg/min</translation>
    </message>
    <message>
        <source>lb/min</source>
        <translation>lb/min</translation>
    </message>
    <message>
        <source>kgN/min</source>
        <translation>kgN/min</translation>
    </message>
    <message>
        <source>lbN/min</source>
        <translation>lbN/min</translation>
    </message>
    <message>
        <source>kg/rev</source>
        <translation>kg/r</translation>
    </message>
    <message>
        <source>lb/rev</source>
        <translation>lb/r</translation>
    </message>
    <message>
        <source>kg/L</source>
        <translation>kg/L</translation>
    </message>
    <message>
        <source>lb/gal</source>
        <translation>lb/gal</translation>
    </message>
    <message>
        <source>kg/m³</source>
        <translation>kg/m³</translation>
    </message>
    <message>
        <source>lb/ft³</source>
        <translation>lb/ft³</translation>
    </message>
    <message>
        <source>kg/US bu</source>
        <translation>kg/US bu</translation>
    </message>
    <message>
        <source>kg/UK bu</source>
        <translation>kg/UK bu</translation>
    </message>
    <message>
        <source>lb/US bu</source>
        <translation>lb/US bu</translation>
    </message>
    <message>
        <source>lb/UK bu</source>
        <translation>lb/UK bu</translation>
    </message>
    <message>
        <source>pulses/kgN</source>
        <translation>脉冲/kgN</translation>
    </message>
    <message>
        <source>pulses/lbN</source>
        <translation>脉冲/lbN</translation>
    </message>
    <message>
        <source>KS/ha</source>
        <translation>千粒/ha</translation>
    </message>
    <message>
        <source>KS/ac</source>
        <translation>千粒/ac</translation>
    </message>
    <message>
        <source>s</source>
        <translation>秒</translation>
    </message>
    <message>
        <source>ms</source>
        <translation>ms</translation>
    </message>
    <message>
        <source>min</source>
        <translation>分钟</translation>
    </message>
    <message>
        <source>hrs</source>
        <translation>小时</translation>
    </message>
    <message>
        <source>Hz</source>
        <translation>Hz</translation>
    </message>
    <message>
        <source>rpm</source>
        <translation>r/min</translation>
    </message>
    <message>
        <source>A</source>
        <comment>Ampere Abbreviation</comment>
        <translation>A</translation>
    </message>
    <message>
        <source>W</source>
        <comment>Watt Abbreviation</comment>
        <translation>W</translation>
    </message>
    <message>
        <source>mW</source>
        <comment>milliWatt Abbreviation</comment>
        <translation>mW</translation>
    </message>
</context>
<context>
    <name>TUserLogAccessor</name>
    <message>
        <source>Critical</source>
        <translation>严重</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>一般</translation>
    </message>
    <message>
        <source>Trivial</source>
        <translation>轻微</translation>
    </message>
</context>
<context>
    <name>TWork</name>
    <message>
        <source>An implement cannot have this width.</source>
        <translation>不能使用这个作业幅宽。</translation>
    </message>
    <message>
        <source>A file of this job cannot be used. %1</source>
        <translation>此任务的一个文件无法使用。%1</translation>
    </message>
    <message>
        <source>Coverage was not complete and was left out: strips %1, bytes %2</source>
        <translation>已作业记录不完整，部分已略去：作业带 %1，字节 %2</translation>
    </message>
    <message>
        <source>The file of the flags is damaged; new flags are not stored.</source>
        <translation>标记文件已损坏；新标记不会保存。</translation>
    </message>
    <message>
        <source>A file could not be stored. %1</source>
        <translation>一个文件无法保存。%1</translation>
    </message>
    <message>
        <source>The file of the implement cannot be used. %1</source>
        <translation>农具文件无法使用。%1</translation>
    </message>
    <message>
        <source>There is no line.</source>
        <translation>没有导航线。</translation>
    </message>
    <message>
        <source>The line has no name.</source>
        <translation>导航线没有名称。</translation>
    </message>
    <message>
        <source>The guidance line cannot be used. %1</source>
        <translation>导航线无法使用。%1</translation>
    </message>
    <message>
        <source>No job is chosen</source>
        <translation>未选择任务</translation>
    </message>
    <message>
        <source>No job is chosen: what is covered is not stored.</source>
        <translation>未选择任务：已作业区域不会保存。</translation>
    </message>
    <message>
        <source>The coverage of this job cannot be used: what is covered is not stored.</source>
        <translation>此任务的已作业记录无法使用：已作业区域不会保存。</translation>
    </message>
    <message>
        <source>The coverage cannot be stored, and strips are lost: %1</source>
        <translation>已作业记录无法保存，作业带正在丢失：%1</translation>
    </message>
    <message>
        <source>The coverage is kept in memory until it can be stored. %1</source>
        <translation>已作业记录保留在内存中，直到可以保存。%1</translation>
    </message>
    <message>
        <source>The job is still being read.</source>
        <translation>任务仍在读取中。</translation>
    </message>
</context>
<context>
    <name>TileTurner</name>
    <message>
        <source>Tiles</source>
        <translation>卡片</translation>
    </message>
</context>
<context>
    <name>Tiles</name>
    <message>
        <source>Rate</source>
        <translation>用量</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>速度</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>面积</translation>
    </message>
    <message>
        <source>Left</source>
        <comment>area that is left to work</comment>
        <translation>剩余</translation>
    </message>
    <message>
        <source>Work</source>
        <comment>area per hour</comment>
        <translation>效率</translation>
    </message>
    <message>
        <source>Flow</source>
        <translation>流量</translation>
    </message>
    <message>
        <source>Press.</source>
        <comment>pressure</comment>
        <translation>压力</translation>
    </message>
    <message>
        <source>Temp.</source>
        <comment>temperature</comment>
        <translation>温度</translation>
    </message>
    <message>
        <source>Driven</source>
        <translation>里程</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>位置</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>时间</translation>
    </message>
</context>
<context>
    <name>TilesPage</name>
    <message>
        <source>Back to the first choice</source>
        <translation>恢复默认选择</translation>
    </message>
    <message>
        <source>%1 further ahead</source>
        <translation>%1 前移</translation>
    </message>
    <message>
        <source>Shown</source>
        <translation>显示</translation>
    </message>
    <message>
        <source>Hidden</source>
        <translation>隐藏</translation>
    </message>
</context>
<context>
    <name>Transfer</name>
    <message>
        <source>Nothing is imported: some settings were changed here and in the profile.</source>
        <translation>未导入任何内容：有些设置在本机和配置文件中都已更改。</translation>
    </message>
    <message>
        <source>No stick is plugged in.</source>
        <translation>未插入U盘。</translation>
    </message>
    <message>
        <source>The stick was removed before everything was on it.</source>
        <translation>全部写完之前U盘已被拔出。</translation>
    </message>
    <message>
        <source>The stick could not be written to the end.</source>
        <translation>U盘未能写完。</translation>
    </message>
    <message>
        <source>The folder %1 cannot be made.</source>
        <translation>无法创建文件夹 %1。</translation>
    </message>
    <message>
        <source>The file %1 cannot be written.</source>
        <translation>无法写入文件 %1。</translation>
    </message>
    <message>
        <source>The logs are on the stick (files: %1).</source>
        <translation>日志已写入U盘（文件：%1）。</translation>
    </message>
    <message>
        <source>The profile cannot be used. %1</source>
        <translation>配置文件无法使用。%1</translation>
    </message>
    <message>
        <source>Nothing is imported. %1</source>
        <translation>未导入任何内容。%1</translation>
    </message>
    <message>
        <source>This display</source>
        <translation>本显示屏</translation>
    </message>
    <message>
        <source>Another display</source>
        <translation>另一个显示屏</translation>
    </message>
    <message>
        <source>The profile is not on the stick. %1</source>
        <translation>配置文件未写入U盘。%1</translation>
    </message>
    <message>
        <source>The profile is on the stick: %1.</source>
        <translation>配置文件已写入U盘：%1。</translation>
    </message>
    <message>
        <source>The file for support is not on the stick. %1</source>
        <translation>技术支持文件未写入U盘。%1</translation>
    </message>
    <message>
        <source>The file for support is on the stick: %1.</source>
        <translation>技术支持文件已写入U盘：%1。</translation>
    </message>
    <message>
        <source>The profile is imported (settings changed: %1).</source>
        <translation>配置文件已导入（更改的设置：%1）。</translation>
    </message>
    <message>
        <source>It cannot be used.</source>
        <translation>无法使用。</translation>
    </message>
</context>
<context>
    <name>TransferState</name>
    <message>
        <source>Reading</source>
        <translation>正在读取</translation>
    </message>
    <message>
        <source>Writing</source>
        <translation>正在写入</translation>
    </message>
    <message>
        <source>Leave the stick where it is until this is done.</source>
        <translation>完成之前不要拔出U盘。</translation>
    </message>
</context>
<context>
    <name>WorkPage</name>
    <message>
        <source>Waiting for a position</source>
        <translation>等待位置</translation>
    </message>
    <message>
        <source>Map</source>
        <translation>地图</translation>
    </message>
</context>
<context>
    <name>WorkingButton</name>
    <message>
        <source>Working</source>
        <translation>作业中</translation>
    </message>
    <message>
        <source>Not working</source>
        <translation>未作业</translation>
    </message>
    <message>
        <source>Working. Switch the implement off</source>
        <translation>作业中。关闭农具</translation>
    </message>
    <message>
        <source>Not working. Switch the implement on</source>
        <translation>未作业。开启农具</translation>
    </message>
</context>
</TS>
