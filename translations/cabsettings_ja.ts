<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>About</name>
    <message>
        <source>Windows, files and connections</source>
        <translation>ウィンドウ、ファイル、接続</translation>
    </message>
    <message>
        <source>The file of the settings</source>
        <translation>設定ファイル</translation>
    </message>
    <message>
        <source>Profiles of settings</source>
        <translation>設定のプロファイル</translation>
    </message>
    <message>
        <source>Files for support</source>
        <translation>サポート用ファイル</translation>
    </message>
    <message>
        <source>Sunrise and sunset</source>
        <translation>日の出と日の入り</translation>
    </message>
    <message>
        <source>Boundaries and zones</source>
        <translation>境界と区域</translation>
    </message>
    <message>
        <source>Software</source>
        <translation>ソフトウェア</translation>
    </message>
    <message>
        <source>The software of this display</source>
        <translation>このディスプレイのソフトウェア</translation>
    </message>
    <message>
        <source>Settings, units and logs</source>
        <translation>設定、単位、ログ</translation>
    </message>
</context>
<context>
    <name>Clock</name>
    <message>
        <source>The clock of the machine; nothing has set it.</source>
        <translation>本機の時計です。設定されていません。</translation>
    </message>
    <message>
        <source>The clock was set by hand.</source>
        <translation>時計は手動で設定されました。</translation>
    </message>
    <message>
        <source>The receiver sets the clock.</source>
        <translation>受信機が時計を合わせます。</translation>
    </message>
    <message>
        <source>There is no such date or time.</source>
        <translation>この日付または時刻はありません。</translation>
    </message>
    <message>
        <source>The date is more than 68 years from the clock of the machine.</source>
        <translation>日付が本機の時計から68年以上離れています。</translation>
    </message>
    <message>
        <source>The clock could not be stored.</source>
        <translation>時計を保存できませんでした。</translation>
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
        <translation>時</translation>
    </message>
    <message>
        <source>Minute</source>
        <translation>分</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>日付と時刻</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>時刻</translation>
    </message>
    <message>
        <source>%1: more</source>
        <translation>%1：増やす</translation>
    </message>
    <message>
        <source>%1: less</source>
        <translation>%1：減らす</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>決定</translation>
    </message>
</context>
<context>
    <name>ColorBar</name>
    <message>
        <source>%1: less</source>
        <translation>%1：減らす</translation>
    </message>
    <message>
        <source>%1: more</source>
        <translation>%1：増やす</translation>
    </message>
</context>
<context>
    <name>ColorPage</name>
    <message>
        <source>Former</source>
        <translation>変更前</translation>
    </message>
    <message>
        <source>Former colour</source>
        <translation>変更前の色</translation>
    </message>
    <message>
        <source>First value</source>
        <translation>初期値</translation>
    </message>
    <message>
        <source>Digits of the colour</source>
        <translation>色の数値</translation>
    </message>
    <message>
        <source>Hue</source>
        <translation>色相</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>彩度</translation>
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
        <translation>昼</translation>
    </message>
    <message>
        <source>Night</source>
        <translation>夜</translation>
    </message>
</context>
<context>
    <name>Contrasts</name>
    <message>
        <source>on %1: %2</source>
        <translation>%1の上：%2</translation>
    </message>
    <message>
        <source>under %1: %2</source>
        <translation>%1の下：%2</translation>
    </message>
    <message>
        <source>%1, too low: at least %2</source>
        <translation>%1、不足：%2 以上</translation>
    </message>
</context>
<context>
    <name>Difference</name>
    <message>
        <source>Changed on both sides</source>
        <translation>両側で変更</translation>
    </message>
    <message>
        <source>Here</source>
        <translation>本機</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>プロファイル</translation>
    </message>
</context>
<context>
    <name>Display</name>
    <message>
        <source>Restart</source>
        <translation>再起動</translation>
    </message>
    <message>
        <source>The fonts of the display</source>
        <translation>ディスプレイの書体</translation>
    </message>
    <message>
        <source>The keyboard on the screen</source>
        <translation>画面キーボード</translation>
    </message>
</context>
<context>
    <name>DoorBand</name>
    <message>
        <source>Work</source>
        <translation>作業</translation>
    </message>
    <message>
        <source>Fields</source>
        <translation>圃場</translation>
    </message>
    <message>
        <source>Receiver</source>
        <translation>受信機</translation>
    </message>
    <message>
        <source>Logs</source>
        <translation>ログ</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
</context>
<context>
    <name>Drives</name>
    <message>
        <source>%1 free of %2</source>
        <translation>空き %1 / %2</translation>
    </message>
    <message>
        <source>Not known</source>
        <translation>不明</translation>
    </message>
    <message>
        <source>No stick</source>
        <translation>USBなし</translation>
    </message>
</context>
<context>
    <name>FieldsPage</name>
    <message>
        <source>Clients</source>
        <translation>顧客</translation>
    </message>
    <message>
        <source>New client</source>
        <translation>新しい顧客</translation>
    </message>
    <message>
        <source>No client yet.</source>
        <translation>顧客はまだありません。</translation>
    </message>
    <message>
        <source>Farms</source>
        <translation>農場</translation>
    </message>
    <message>
        <source>New farm</source>
        <translation>新しい農場</translation>
    </message>
    <message>
        <source>No farm yet.</source>
        <translation>農場はまだありません。</translation>
    </message>
    <message>
        <source>Fields</source>
        <translation>圃場</translation>
    </message>
    <message>
        <source>New field</source>
        <translation>新しい圃場</translation>
    </message>
    <message>
        <source>No field yet.</source>
        <translation>圃場はまだありません。</translation>
    </message>
    <message>
        <source>Jobs</source>
        <translation>タスク</translation>
    </message>
    <message>
        <source>New job</source>
        <translation>新しいタスク</translation>
    </message>
    <message>
        <source>No job yet.</source>
        <translation>タスクはまだありません。</translation>
    </message>
    <message>
        <source>Remove %1 with everything in it?</source>
        <translation>%1 を内容ごと削除しますか？</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Rename or remove %1</source>
        <translation>%1 の名前変更または削除</translation>
    </message>
    <message>
        <source>Rename %1</source>
        <translation>%1 の名前変更</translation>
    </message>
    <message>
        <source>Remove everything</source>
        <translation>すべて削除</translation>
    </message>
</context>
<context>
    <name>Host</name>
    <message>
        <source>Details for the support: %1</source>
        <translation>サポート用の詳細：%1</translation>
    </message>
    <message>
        <source>%3 Try: %4</source>
        <translation>%3使える名前：%4</translation>
    </message>
    <message>
        <source>This name is not possible.</source>
        <translation>この名前は使えません。</translation>
    </message>
    <message>
        <source>The name is empty.</source>
        <translation>名前が空です。</translation>
    </message>
    <message>
        <source>This name stands for another folder.</source>
        <translation>この名前は別のフォルダを指します。</translation>
    </message>
    <message>
        <source>The name must not contain %1.</source>
        <translation>名前に %1 は使えません。</translation>
    </message>
    <message>
        <source>The name contains a sign that cannot be seen.</source>
        <translation>名前に見えない文字が含まれています。</translation>
    </message>
    <message>
        <source>The name contains a sign that is not complete.</source>
        <translation>名前に不完全な文字が含まれています。</translation>
    </message>
    <message>
        <source>The name must not end in a full stop or a blank.</source>
        <translation>名前の最後にピリオドや空白は使えません。</translation>
    </message>
    <message>
        <source>The name must not begin with a blank.</source>
        <translation>名前の最初に空白は使えません。</translation>
    </message>
    <message>
        <source>A stick cannot hold a file with this name.</source>
        <translation>この名前のファイルはUSBメモリに保存できません。</translation>
    </message>
    <message>
        <source>The name is too long.</source>
        <translation>名前が長すぎます。</translation>
    </message>
    <message>
        <source>%2 exists already.</source>
        <translation>%2 はすでにあります。</translation>
    </message>
    <message numerus="yes">
        <source>%2 is active and holds %n file(s).</source>
        <translation>
            <numerusform>%2 は選択中で、%n個のファイルを含みます。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%2 holds %n file(s).</source>
        <translation>
            <numerusform>%2 は%n個のファイルを含みます。</numerusform>
        </translation>
    </message>
    <message>
        <source>%2 is active.</source>
        <translation>%2 は選択中です。</translation>
    </message>
    <message>
        <source>%2 is no longer there.</source>
        <translation>%2 はもうありません。</translation>
    </message>
    <message>
        <source>A stick cannot tell %2 from %3.</source>
        <translation>USBメモリでは %2 と %3 を区別できません。</translation>
    </message>
    <message>
        <source>Another program is working on the fields. Try again later.</source>
        <translation>別のプログラムが圃場を処理しています。後でもう一度試してください。</translation>
    </message>
    <message>
        <source>The selection could not be stored.</source>
        <translation>選択を保存できませんでした。</translation>
    </message>
    <message>
        <source>%1 is neither a file nor a folder.</source>
        <translation>%1 はファイルでもフォルダでもありません。</translation>
    </message>
    <message>
        <source>The file was edited or is damaged.</source>
        <translation>ファイルが編集されたか、破損しています。</translation>
    </message>
    <message>
        <source>%1 cannot be read. %2</source>
        <translation>%1 を読み取れません。%2</translation>
    </message>
    <message>
        <source>The file is of another kind.</source>
        <translation>ファイルの種類が違います。</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>ファイルが空です。</translation>
    </message>
    <message>
        <source>The end of the file is missing.</source>
        <translation>ファイルの終わりがありません。</translation>
    </message>
    <message>
        <source>The file is damaged.</source>
        <translation>ファイルが破損しています。</translation>
    </message>
    <message>
        <source>The file is not complete.</source>
        <translation>ファイルが不完全です。</translation>
    </message>
    <message>
        <source>The file is from another version of the software.</source>
        <translation>別のバージョンのソフトウェアのファイルです。</translation>
    </message>
    <message>
        <source>The file has a value that is not possible: %2</source>
        <translation>ファイルに使えない値があります：%2</translation>
    </message>
    <message>
        <source>The file has a value twice: %2</source>
        <translation>ファイルに同じ項目が2回あります：%2</translation>
    </message>
    <message>
        <source>This address is not possible: %1</source>
        <translation>このアドレスは使えません：%1</translation>
    </message>
    <message>
        <source>The device is not there.</source>
        <translation>機器が接続されていません。</translation>
    </message>
    <message>
        <source>It is not permitted, or another program uses it.</source>
        <translation>許可されていないか、別のプログラムが使用しています。</translation>
    </message>
    <message>
        <source>Another program uses it.</source>
        <translation>別のプログラムが使用しています。</translation>
    </message>
    <message>
        <source>It cannot be read.</source>
        <translation>読み取れません。</translation>
    </message>
    <message>
        <source>It was unplugged.</source>
        <translation>接続が外れました。</translation>
    </message>
    <message>
        <source>It is not a serial device, or it cannot have this speed.</source>
        <translation>シリアル機器ではないか、この速度に対応していません。</translation>
    </message>
    <message>
        <source>The serial port has a fault (number %1).</source>
        <translation>シリアルポートに異常があります（番号 %1）。</translation>
    </message>
    <message>
        <source>%1 is damaged or of another kind.</source>
        <translation>%1 は破損しているか、種類が違います。</translation>
    </message>
    <message>
        <source>%1 is from another version of the software.</source>
        <translation>%1 は別のバージョンのソフトウェアのものです。</translation>
    </message>
    <message>
        <source>%1 is damaged.</source>
        <translation>%1 は破損しています。</translation>
    </message>
    <message>
        <source>%1 has other coordinates than WGS84.</source>
        <translation>%1 の座標がWGS84ではありません。</translation>
    </message>
    <message>
        <source>%1 is not complete. %2 is missing.</source>
        <translation>%1 は不完全です。%2 がありません。</translation>
    </message>
    <message>
        <source>%1 has no areas.</source>
        <translation>%1 に領域がありません。</translation>
    </message>
    <message>
        <source>Another program uses %1.</source>
        <translation>%1 は別のプログラムが使用しています。</translation>
    </message>
    <message>
        <source>A and B are too close together or too far apart.</source>
        <translation>AとBが近すぎるか、離れすぎています。</translation>
    </message>
    <message>
        <source>Another program has locked it.</source>
        <translation>別のプログラムがロックしています。</translation>
    </message>
    <message>
        <source>It is no longer there.</source>
        <translation>もうありません。</translation>
    </message>
    <message>
        <source>%1 is no longer there.</source>
        <translation>%1 はもうありません。</translation>
    </message>
    <message>
        <source>%1 cannot be written. %2</source>
        <translation>%1 に書き込めません。%2</translation>
    </message>
    <message>
        <source>%1 cannot be written.</source>
        <translation>%1 に書き込めません。</translation>
    </message>
    <message>
        <source>The file of the settings has a fault (number %1).</source>
        <translation>設定ファイルに異常があります（番号 %1）。</translation>
    </message>
    <message>
        <source>%1 cannot be opened. %2</source>
        <translation>%1 を開けません。%2</translation>
    </message>
    <message>
        <source>%1 cannot be created. %2</source>
        <translation>%1 を作成できません。%2</translation>
    </message>
    <message>
        <source>%1 cannot be copied. %2</source>
        <translation>%1 をコピーできません。%2</translation>
    </message>
    <message>
        <source>%1 cannot be renamed. %2</source>
        <translation>%1 の名前を変更できません。%2</translation>
    </message>
    <message>
        <source>%1 cannot be removed. %2</source>
        <translation>%1 を削除できません。%2</translation>
    </message>
    <message>
        <source>The drive is full.</source>
        <translation>ドライブがいっぱいです。</translation>
    </message>
    <message>
        <source>The drive has a fault.</source>
        <translation>ドライブに異常があります。</translation>
    </message>
    <message>
        <source>The drive can only be read.</source>
        <translation>ドライブは読み取り専用です。</translation>
    </message>
    <message>
        <source>It is not permitted.</source>
        <translation>許可されていません。</translation>
    </message>
    <message>
        <source>It cannot be opened.</source>
        <translation>開けません。</translation>
    </message>
    <message>
        <source>It is damaged.</source>
        <translation>破損しています。</translation>
    </message>
    <message>
        <source>It is not there.</source>
        <translation>存在しません。</translation>
    </message>
    <message>
        <source>It exists already.</source>
        <translation>すでにあります。</translation>
    </message>
    <message>
        <source>It is a folder.</source>
        <translation>フォルダです。</translation>
    </message>
    <message>
        <source>It is not a folder.</source>
        <translation>フォルダではありません。</translation>
    </message>
    <message>
        <source>The folder is not empty.</source>
        <translation>フォルダが空ではありません。</translation>
    </message>
    <message>
        <source>The file is too large.</source>
        <translation>ファイルが大きすぎます。</translation>
    </message>
    <message>
        <source>Too many files are open.</source>
        <translation>開いているファイルが多すぎます。</translation>
    </message>
    <message>
        <source>There is too little memory.</source>
        <translation>メモリが足りません。</translation>
    </message>
    <message>
        <source>It is not possible there.</source>
        <translation>そこではできません。</translation>
    </message>
    <message>
        <source>The device refuses the connection.</source>
        <translation>機器が接続を拒否しました。</translation>
    </message>
    <message>
        <source>The device has closed the connection.</source>
        <translation>機器が接続を切断しました。</translation>
    </message>
    <message>
        <source>There is no device with this address.</source>
        <translation>このアドレスの機器はありません。</translation>
    </message>
    <message>
        <source>The network cannot be reached.</source>
        <translation>ネットワークに接続できません。</translation>
    </message>
    <message>
        <source>The device does not answer.</source>
        <translation>機器が応答しません。</translation>
    </message>
    <message>
        <source>It is a link to another place.</source>
        <translation>別の場所へのリンクです。</translation>
    </message>
    <message>
        <source>There are too many links to it.</source>
        <translation>リンクが多すぎます。</translation>
    </message>
</context>
<context>
    <name>ItemActions</name>
    <message>
        <source>Rename</source>
        <translation>名前変更</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
</context>
<context>
    <name>ItemPage</name>
    <message>
        <source>New</source>
        <translation>新規</translation>
    </message>
</context>
<context>
    <name>Keypad</name>
    <message>
        <source>%1 to %2 %3</source>
        <translation>%1～%2 %3</translation>
    </message>
    <message>
        <source>At least %1 %2</source>
        <translation>%1 %2 以上</translation>
    </message>
    <message>
        <source>At most %1 %2</source>
        <translation>%1 %2 以下</translation>
    </message>
    <message>
        <source>This is not a number yet.</source>
        <translation>まだ数値になっていません。</translation>
    </message>
    <message>
        <source>Too large.
%1</source>
        <translation>大きすぎます。
%1</translation>
    </message>
    <message>
        <source>Too small.
%1</source>
        <translation>小さすぎます。
%1</translation>
    </message>
    <message>
        <source>now %1</source>
        <translation>現在 %1</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>決定</translation>
    </message>
    <message>
        <source>Decimal sign</source>
        <translation>小数点記号</translation>
    </message>
    <message>
        <source>Plus or minus</source>
        <translation>プラスまたはマイナス</translation>
    </message>
    <message>
        <source>Remove the last sign</source>
        <translation>最後の文字を削除</translation>
    </message>
    <message>
        <source>C</source>
        <comment>key that clears the entry</comment>
        <translation>C</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>クリア</translation>
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
        <translation>ラインの始点Aをここに設定</translation>
    </message>
    <message>
        <source>B</source>
        <comment>the other end of the guidance line</comment>
        <translation>B</translation>
    </message>
    <message>
        <source>Set B, the other end of the line, here</source>
        <translation>ラインの終点Bをここに設定</translation>
    </message>
    <message>
        <source>Set a flag here</source>
        <translation>ここに目印を設定</translation>
    </message>
</context>
<context>
    <name>LineChoice</name>
    <message>
        <source>New</source>
        <translation>新規</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
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
        <translation>左へ %1</translation>
    </message>
    <message>
        <source>%1 to the right</source>
        <translation>右へ %1</translation>
    </message>
</context>
<context>
    <name>LockLayer</name>
    <message>
        <source>The screen is locked. Hold the button to unlock it.</source>
        <translation>画面はロックされています。ボタンの長押しで解除します。</translation>
    </message>
    <message>
        <source>Unlock</source>
        <translation>ロック解除</translation>
    </message>
</context>
<context>
    <name>LogsPage</name>
    <message>
        <source>Logs</source>
        <translation>ログ</translation>
    </message>
    <message>
        <source>Events</source>
        <translation>イベント</translation>
    </message>
    <message>
        <source>Receiver</source>
        <translation>受信機</translation>
    </message>
    <message>
        <source>Go on</source>
        <translation>再開</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>一時停止</translation>
    </message>
    <message>
        <source>No line yet.</source>
        <translation>行はまだありません。</translation>
    </message>
</context>
<context>
    <name>MachinePage</name>
    <message>
        <source>Implement width</source>
        <translation>作業幅</translation>
    </message>
    <message>
        <source>Decides the guidance lines beside each other, and the area done</source>
        <translation>ガイダンスラインの間隔と作業済み面積を決めます</translation>
    </message>
    <message>
        <source>Implement behind the antenna</source>
        <translation>アンテナ後方の作業機までの距離</translation>
    </message>
    <message>
        <source>How far the ground is covered behind the vehicle&apos;s place</source>
        <translation>車両の位置から後方の作業位置までの距離</translation>
    </message>
</context>
<context>
    <name>Main</name>
    <message>
        <source>Cab display</source>
        <translation>キャブ用ディスプレイ</translation>
    </message>
</context>
<context>
    <name>MapButtons</name>
    <message>
        <source>Zoom in</source>
        <translation>拡大</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>縮小</translation>
    </message>
    <message>
        <source>The heading is up. Turn north up</source>
        <translation>進行方向が上です。北を上にする</translation>
    </message>
    <message>
        <source>North is up. Turn the heading up</source>
        <translation>北が上です。進行方向を上にする</translation>
    </message>
    <message>
        <source>Centre the vehicle</source>
        <translation>車両を中央に表示</translation>
    </message>
</context>
<context>
    <name>NameEntry</name>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>決定</translation>
    </message>
</context>
<context>
    <name>PageTurner</name>
    <message>
        <source>Rows above</source>
        <translation>上の行</translation>
    </message>
    <message>
        <source>Rows below</source>
        <translation>下の行</translation>
    </message>
</context>
<context>
    <name>ParameterRow</name>
    <message>
        <source>%1: back to the first value</source>
        <translation>%1：初期値に戻す</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>開く</translation>
    </message>
</context>
<context>
    <name>ParameterTexts</name>
    <message>
        <source>h</source>
        <translation>時間</translation>
    </message>
    <message>
        <source>min</source>
        <translation>分</translation>
    </message>
    <message>
        <source>s</source>
        <translation>秒</translation>
    </message>
    <message>
        <source>an absolute path that ends in &quot;/&quot; and is not &quot;/&quot;</source>
        <translation>&quot;/&quot; で終わる絶対パス（&quot;/&quot; だけは不可）</translation>
    </message>
    <message>
        <source>an absolute path</source>
        <translation>絶対パス</translation>
    </message>
    <message>
        <source>a UUID in small letters, such as 6ba7b810-9dad-41d1-80b4-00c04fd430c8</source>
        <translation>小文字のUUID（例：6ba7b810-9dad-41d1-80b4-00c04fd430c8）</translation>
    </message>
    <message>
        <source>simulator, tcp://HOST:PORT, serial:///dev/NAME?baud=N or an absolute path</source>
        <translation>simulator、tcp://HOST:PORT、serial:///dev/NAME?baud=N、または絶対パス</translation>
    </message>
    <message>
        <source>true or false</source>
        <translation>true または false</translation>
    </message>
    <message>
        <source>a time in UTC, such as 2026-03-05T13:05:09Z</source>
        <translation>UTCの時刻（例：2026-03-05T13:05:09Z）</translation>
    </message>
    <message>
        <source>a colour: #rrggbb, #aarrggbb or a name such as navy</source>
        <translation>色：#rrggbb、#aarrggbb、または navy などの名前</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1～%2</translation>
    </message>
    <message>
        <source>Not a whole number.</source>
        <translation>整数ではありません。</translation>
    </message>
    <message>
        <source>Below the least value.</source>
        <translation>最小値を下回っています。</translation>
    </message>
    <message>
        <source>Above the greatest value.</source>
        <translation>最大値を上回っています。</translation>
    </message>
    <message>
        <source>This cannot be the name of a file. Try: %1</source>
        <translation>この名前はファイルに使えません。使える名前：%1</translation>
    </message>
    <message>
        <source>Not accepted. Expected: %1.</source>
        <translation>使えません。使える値：%1。</translation>
    </message>
    <message>
        <source>a name without %1</source>
        <translation>%1 を含まない名前</translation>
    </message>
    <message>
        <source>a whole number</source>
        <translation>整数</translation>
    </message>
    <message>
        <source>At least %1</source>
        <translation>%1 以上</translation>
    </message>
</context>
<context>
    <name>Parameters</name>
    <message>
        <source>the operator has chosen the offset from UTC; GPS time keeps it instead of computing it</source>
        <translation>UTCとの差をオペレータが選択。GPS時刻でも計算せずに維持</translation>
    </message>
    <message>
        <source>metric units; otherwise US or English units</source>
        <translation>メートル法の単位。それ以外は米国または英国の単位</translation>
    </message>
    <message>
        <source>US measures when units are not metric; otherwise English measures</source>
        <translation>メートル法でない場合は米国の単位。それ以外は英国の単位</translation>
    </message>
    <message>
        <source>positions in degrees, minutes and seconds; otherwise in decimal degrees</source>
        <translation>位置を度分秒で表示。それ以外は10進の度</translation>
    </message>
    <message>
        <source>24-hour clock; otherwise 12 hours with am and pm</source>
        <translation>24時間の時計。それ以外は am と pm の12時間</translation>
    </message>
    <message>
        <source>dates with the month before the day</source>
        <translation>日付で月を日より先に表示</translation>
    </message>
    <message>
        <source>colours for day; otherwise for night</source>
        <translation>昼の色。それ以外は夜の色</translation>
    </message>
    <message>
        <source>the map turns with the vehicle; otherwise north is up</source>
        <translation>地図が車両とともに回転。それ以外は北が上</translation>
    </message>
    <message>
        <source>unit of pressures</source>
        <translation>圧力の単位</translation>
    </message>
    <message>
        <source>unit of areas, and of rates per area</source>
        <translation>面積と面積当たり散布量の単位</translation>
    </message>
    <message>
        <source>unit of short distances: widths, offsets</source>
        <translation>短い距離の単位（幅、ずれ）</translation>
    </message>
    <message>
        <source>unit of granular volumes</source>
        <translation>粒状物の体積の単位</translation>
    </message>
    <message>
        <source>unit of granular densities</source>
        <translation>粒状物の密度の単位</translation>
    </message>
    <message>
        <source>unit of liquid volumes, flows and rates</source>
        <translation>液体の体積、流量、散布量の単位</translation>
    </message>
    <message>
        <source>language of the display&apos;s texts; a change needs a restart</source>
        <translation>ディスプレイの言語。変更には再起動が必要</translation>
    </message>
    <message>
        <source>decimal point or comma; a change needs a restart</source>
        <translation>小数点のピリオドまたはコンマ。変更には再起動が必要</translation>
    </message>
    <message>
        <source>when the colours switch between day and night: only by hand, at sunrise and sunset, or with the sun 6 degrees below the horizon</source>
        <translation>昼と夜の色の切替：手動のみ、日の出と日の入り、または太陽が地平線下6度のとき</translation>
    </message>
    <message>
        <source>what set the display&apos;s clock</source>
        <translation>ディスプレイの時計の設定元</translation>
    </message>
    <message>
        <source>local time less UTC, whole hours</source>
        <translation>現地時刻とUTCの差（時）</translation>
    </message>
    <message>
        <source>local time less UTC, minutes beyond the hours, with the sign of the hours</source>
        <translation>現地時刻とUTCの差の分。符号は時と同じ</translation>
    </message>
    <message>
        <source>brightness of the lightbar at night</source>
        <translation>夜のライトバーの明るさ</translation>
    </message>
    <message>
        <source>brightness of the screen at night</source>
        <translation>夜の画面の明るさ</translation>
    </message>
    <message>
        <source>brightness of the button lights at night</source>
        <translation>夜のボタン照明の明るさ</translation>
    </message>
    <message>
        <source>4: implements are kept in the folder of their vehicle; other numbers: in their own folder</source>
        <translation>4：作業機を車両のフォルダに保存。他の数：専用のフォルダに保存</translation>
    </message>
    <message>
        <source>number of the next file of the NMEA log</source>
        <translation>次のNMEAログファイルの番号</translation>
    </message>
    <message>
        <source>number of the next file of the user log</source>
        <translation>次の操作ログファイルの番号</translation>
    </message>
    <message>
        <source>the display&apos;s clock less UTC</source>
        <translation>ディスプレイの時計とUTCの差</translation>
    </message>
    <message>
        <source>folder of the internal drive; by default in the data folder</source>
        <translation>内部ドライブのフォルダ。既定ではデータフォルダ内</translation>
    </message>
    <message>
        <source>mount point of the removable drive; by default in the data folder</source>
        <translation>取り外しドライブのマウント先。既定ではデータフォルダ内</translation>
    </message>
    <message>
        <source>the identity of the terminal, which its profiles carry</source>
        <translation>端末の識別ID。そのプロファイルに記録</translation>
    </message>
    <message>
        <source>where the sentences of the receiver come from</source>
        <translation>受信機のセンテンスの取得元</translation>
    </message>
    <message>
        <source>the figures beside the map, in this order</source>
        <translation>地図の横の値（この順序）</translation>
    </message>
    <message>
        <source>the newest time of a receiver, as of the last day on which one was seen</source>
        <translation>最後に受信機があった日の、受信機の最新時刻</translation>
    </message>
    <message>
        <source>when the sun switched the colours last</source>
        <translation>太陽の高さに応じて最後に色が切り替わった時刻</translation>
    </message>
    <message>
        <source>the active job</source>
        <translation>選択中のタスク</translation>
    </message>
    <message>
        <source>the active boundary</source>
        <translation>選択中の境界</translation>
    </message>
    <message>
        <source>the active straight guidance line</source>
        <translation>選択中の直線ガイダンスライン</translation>
    </message>
    <message>
        <source>the active pivot</source>
        <translation>選択中の円形ライン</translation>
    </message>
    <message>
        <source>the active guidance curve</source>
        <translation>選択中のガイダンスカーブ</translation>
    </message>
    <message>
        <source>the active shape file of optimal lines</source>
        <translation>選択中の最適ラインのシェープファイル</translation>
    </message>
    <message>
        <source>the active shape file of project lines</source>
        <translation>選択中のプロジェクトラインのシェープファイル</translation>
    </message>
    <message>
        <source>the active shape file of zones</source>
        <translation>選択中の区域のシェープファイル</translation>
    </message>
    <message>
        <source>the active steering profile</source>
        <translation>選択中の操舵プロファイル</translation>
    </message>
    <message>
        <source>the active implement</source>
        <translation>選択中の作業機</translation>
    </message>
    <message>
        <source>the active vehicle</source>
        <translation>選択中の車両</translation>
    </message>
    <message>
        <source>the active sprayer</source>
        <translation>選択中のスプレーヤ</translation>
    </message>
    <message>
        <source>the active boom leveller</source>
        <translation>選択中のブーム水平制御</translation>
    </message>
    <message>
        <source>the active client</source>
        <translation>選択中の顧客</translation>
    </message>
    <message>
        <source>the active farm</source>
        <translation>選択中の農場</translation>
    </message>
    <message>
        <source>the active field</source>
        <translation>選択中の圃場</translation>
    </message>
    <message>
        <source>Measures</source>
        <translation>単位系</translation>
    </message>
    <message>
        <source>Gallons and bushels</source>
        <translation>ガロンとブッシェル</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>面積</translation>
    </message>
    <message>
        <source>Pressure</source>
        <translation>圧力</translation>
    </message>
    <message>
        <source>Short distances</source>
        <translation>短い距離</translation>
    </message>
    <message>
        <source>Liquid</source>
        <translation>液体</translation>
    </message>
    <message>
        <source>Granular volume</source>
        <translation>粒状物の体積</translation>
    </message>
    <message>
        <source>Granular density</source>
        <translation>粒状物の密度</translation>
    </message>
    <message>
        <source>Positions</source>
        <translation>位置</translation>
    </message>
    <message>
        <source>Rate per travel</source>
        <translation>走行当たり散布量</translation>
    </message>
    <message>
        <source>Basis of rates</source>
        <translation>散布量の基準</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>言語</translation>
    </message>
    <message>
        <source>Decimal sign</source>
        <translation>小数点記号</translation>
    </message>
    <message>
        <source>Time of day</source>
        <translation>時刻の表示</translation>
    </message>
    <message>
        <source>Dates</source>
        <translation>日付の表示</translation>
    </message>
    <message>
        <source>Time zone set by hand</source>
        <translation>タイムゾーンを手動</translation>
    </message>
    <message>
        <source>Time zone, hours</source>
        <translation>タイムゾーン（時）</translation>
    </message>
    <message>
        <source>Time zone, minutes</source>
        <translation>タイムゾーン（分）</translation>
    </message>
    <message>
        <source>Clock less UTC</source>
        <translation>時計とUTCの差</translation>
    </message>
    <message>
        <source>Source of the time</source>
        <translation>時刻の取得元</translation>
    </message>
    <message>
        <source>Source of the time since</source>
        <translation>時刻の取得元の開始</translation>
    </message>
    <message>
        <source>Newest receiver time</source>
        <translation>受信機の最新時刻</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>色</translation>
    </message>
    <message>
        <source>Day and night</source>
        <translation>昼と夜</translation>
    </message>
    <message>
        <source>Map direction</source>
        <translation>地図の向き</translation>
    </message>
    <message>
        <source>Tiles</source>
        <translation>タイル</translation>
    </message>
    <message>
        <source>Light bar at night</source>
        <translation>夜のライトバー</translation>
    </message>
    <message>
        <source>Screen at night</source>
        <translation>夜の画面</translation>
    </message>
    <message>
        <source>Button lights at night</source>
        <translation>夜のボタン照明</translation>
    </message>
    <message>
        <source>Switched by the sun</source>
        <translation>太陽による最終切替</translation>
    </message>
    <message>
        <source>Client</source>
        <translation>顧客</translation>
    </message>
    <message>
        <source>Farm</source>
        <translation>農場</translation>
    </message>
    <message>
        <source>Field</source>
        <translation>圃場</translation>
    </message>
    <message>
        <source>Job</source>
        <translation>タスク</translation>
    </message>
    <message>
        <source>Vehicle</source>
        <translation>車両</translation>
    </message>
    <message>
        <source>Implement</source>
        <translation>作業機</translation>
    </message>
    <message>
        <source>Sprayer</source>
        <translation>スプレーヤ</translation>
    </message>
    <message>
        <source>Boom leveller</source>
        <translation>ブーム水平制御</translation>
    </message>
    <message>
        <source>Steering profile</source>
        <translation>操舵プロファイル</translation>
    </message>
    <message>
        <source>Boundary</source>
        <translation>境界</translation>
    </message>
    <message>
        <source>A-B line</source>
        <translation>ABライン</translation>
    </message>
    <message>
        <source>Pivot</source>
        <translation>円形ライン</translation>
    </message>
    <message>
        <source>Curve</source>
        <translation>カーブ</translation>
    </message>
    <message>
        <source>Optimal lines</source>
        <translation>最適ライン</translation>
    </message>
    <message>
        <source>Project lines</source>
        <translation>プロジェクトライン</translation>
    </message>
    <message>
        <source>Zones</source>
        <translation>区域</translation>
    </message>
    <message>
        <source>Receiver address</source>
        <translation>受信機のアドレス</translation>
    </message>
    <message>
        <source>Internal drive</source>
        <translation>内部ドライブ</translation>
    </message>
    <message>
        <source>Stick</source>
        <translation>USBメモリ</translation>
    </message>
    <message>
        <source>Implement folder</source>
        <translation>作業機フォルダ</translation>
    </message>
    <message>
        <source>Next NMEA log</source>
        <translation>次のNMEAログ</translation>
    </message>
    <message>
        <source>Next user log</source>
        <translation>次の操作ログ</translation>
    </message>
    <message>
        <source>Identity</source>
        <translation>識別ID</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>文字</translation>
    </message>
    <message>
        <source>Colour of texts</source>
        <translation>文字の色</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>見出し</translation>
    </message>
    <message>
        <source>Colour of titles</source>
        <translation>見出しの色</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>背景</translation>
    </message>
    <message>
        <source>Colour of the background</source>
        <translation>背景の色</translation>
    </message>
    <message>
        <source>Button</source>
        <translation>ボタン</translation>
    </message>
    <message>
        <source>Colour of buttons</source>
        <translation>ボタンの色</translation>
    </message>
    <message>
        <source>Button text</source>
        <translation>ボタンの文字</translation>
    </message>
    <message>
        <source>Colour of texts on buttons</source>
        <translation>ボタンの文字の色</translation>
    </message>
    <message>
        <source>Map</source>
        <translation>地図</translation>
    </message>
    <message>
        <source>Colour of the map&apos;s ground</source>
        <translation>地図の地面の色</translation>
    </message>
    <message>
        <source>Grid</source>
        <translation>格子</translation>
    </message>
    <message>
        <source>Colour of the map&apos;s grid</source>
        <translation>地図の格子の色</translation>
    </message>
    <message>
        <source>Coverage</source>
        <translation>作業済み</translation>
    </message>
    <message>
        <source>Colour of covered ground</source>
        <translation>作業済みの地面の色</translation>
    </message>
    <message>
        <source>Vehicle on the map</source>
        <translation>地図上の車両</translation>
    </message>
    <message>
        <source>Colour of the vehicle</source>
        <translation>車両の色</translation>
    </message>
    <message>
        <source>Guidance line</source>
        <translation>ガイダンスライン</translation>
    </message>
    <message>
        <source>Colour of the guidance line</source>
        <translation>ガイダンスラインの色</translation>
    </message>
    <message>
        <source>Cross hairs</source>
        <translation>十字線</translation>
    </message>
    <message>
        <source>Colour of the cross hairs</source>
        <translation>十字線の色</translation>
    </message>
    <message>
        <source>Outer boundary</source>
        <translation>外側境界</translation>
    </message>
    <message>
        <source>Colour of the outer boundary of the field</source>
        <translation>圃場の外側境界の色</translation>
    </message>
    <message>
        <source>Inner boundary</source>
        <translation>内側境界</translation>
    </message>
    <message>
        <source>Colour of boundaries within the field</source>
        <translation>圃場の中の境界の色</translation>
    </message>
    <message>
        <source>Other boundaries</source>
        <translation>その他の境界</translation>
    </message>
    <message>
        <source>Colour of boundaries that are not active</source>
        <translation>選択していない境界の色</translation>
    </message>
    <message>
        <source>Exclusion zone</source>
        <translation>進入禁止区域</translation>
    </message>
    <message>
        <source>Colour of zones to keep out of</source>
        <translation>進入禁止区域の色</translation>
    </message>
    <message>
        <source>Background picture</source>
        <translation>背景画像</translation>
    </message>
    <message>
        <source>Number of the background picture</source>
        <translation>背景画像の番号</translation>
    </message>
    <message>
        <source>what the sprayer&apos;s rates are related to</source>
        <translation>スプレーヤの散布量の基準</translation>
    </message>
    <message>
        <source>liquid rates per 100 m or 100 yd of travel, while travel is their basis</source>
        <translation>走行距離を基準とするときの、100 m または 100 yd 当たりの液体散布量</translation>
    </message>
    <message>
        <source>since when the clock has its time from there</source>
        <translation>時計がその取得元の時刻になった時点</translation>
    </message>
    <message>
        <source>Metric</source>
        <translation>メートル法</translation>
    </message>
    <message>
        <source>US or English</source>
        <translation>米国または英国</translation>
    </message>
    <message>
        <source>US</source>
        <translation>米国</translation>
    </message>
    <message>
        <source>English</source>
        <translation>英国</translation>
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
        <translation>24時間</translation>
    </message>
    <message>
        <source>am, pm</source>
        <translation>am、pm</translation>
    </message>
    <message>
        <source>Month first</source>
        <translation>月が先</translation>
    </message>
    <message>
        <source>Day first</source>
        <translation>日が先</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>昼</translation>
    </message>
    <message>
        <source>Night</source>
        <translation>夜</translation>
    </message>
    <message>
        <source>Heading up</source>
        <translation>進行方向が上</translation>
    </message>
    <message>
        <source>North up</source>
        <translation>北が上</translation>
    </message>
    <message>
        <source>On</source>
        <translation>オン</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>オフ</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>はい</translation>
    </message>
    <message>
        <source>No</source>
        <translation>いいえ</translation>
    </message>
    <message>
        <source>Travel</source>
        <translation>走行距離</translation>
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
        <translation>ヘクタール</translation>
    </message>
    <message>
        <source>Acre</source>
        <translation>エーカー</translation>
    </message>
    <message>
        <source>m, mm</source>
        <translation>m, mm</translation>
    </message>
    <message>
        <source>Inch</source>
        <translation>インチ</translation>
    </message>
    <message>
        <source>Foot</source>
        <translation>フィート</translation>
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
        <translation>米国ブッシェル</translation>
    </message>
    <message>
        <source>UK bushel</source>
        <translation>英国ブッシェル</translation>
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
        <translation>ピリオド</translation>
    </message>
    <message>
        <source>Comma</source>
        <translation>コンマ</translation>
    </message>
    <message>
        <source>By hand</source>
        <translation>手動</translation>
    </message>
    <message>
        <source>Sunset</source>
        <translation>日の入り</translation>
    </message>
    <message>
        <source>Twilight</source>
        <translation>薄明</translation>
    </message>
    <message>
        <source>Not set</source>
        <translation>未設定</translation>
    </message>
    <message>
        <source>Operator</source>
        <translation>オペレータ</translation>
    </message>
    <message>
        <source>Receiver</source>
        <translation>受信機</translation>
    </message>
    <message>
        <source>Rate</source>
        <translation>散布量</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>速度</translation>
    </message>
    <message>
        <source>Area done</source>
        <translation>作業済み面積</translation>
    </message>
    <message>
        <source>Area left</source>
        <translation>残り面積</translation>
    </message>
    <message>
        <source>Productivity</source>
        <translation>作業能率</translation>
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
        <translation>距離</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>位置</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>時刻</translation>
    </message>
    <message>
        <source>Units</source>
        <translation>単位</translation>
    </message>
    <message>
        <source>Rates</source>
        <translation>散布量</translation>
    </message>
    <message>
        <source>Region</source>
        <translation>地域</translation>
    </message>
    <message>
        <source>Clock</source>
        <translation>時計</translation>
    </message>
    <message>
        <source>Colours of the schemes</source>
        <translation>配色の色</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>表示</translation>
    </message>
    <message>
        <source>Selections</source>
        <translation>選択</translation>
    </message>
    <message>
        <source>Storage</source>
        <translation>ストレージ</translation>
    </message>
    <message>
        <source>Logs</source>
        <translation>ログ</translation>
    </message>
    <message>
        <source>Terminal</source>
        <translation>端末</translation>
    </message>
    <message>
        <source>%1, by day</source>
        <translation>%1（昼）</translation>
    </message>
    <message>
        <source>%1, by night</source>
        <translation>%1（夜）</translation>
    </message>
</context>
<context>
    <name>Problems</name>
    <message>
        <source>The logs lose lines: their drive is full or cannot be written.</source>
        <translation>ログの行が失われています。ドライブがいっぱいか、書き込めません。</translation>
    </message>
    <message>
        <source>Recording is off, because there is too little room.</source>
        <translation>空き容量が足りないため、記録はオフです。</translation>
    </message>
    <message>
        <source>Changes of settings are not stored yet. %1</source>
        <translation>設定の変更はまだ保存されていません。%1</translation>
    </message>
    <message>
        <source>The drive of the terminal is nearly full. Free: %1</source>
        <translation>端末のドライブの空きがわずかです。空き：%1</translation>
    </message>
</context>
<context>
    <name>ProfilePage</name>
    <message>
        <source>Import</source>
        <translation>取り込み</translation>
    </message>
    <message>
        <source>The display has these settings already.</source>
        <translation>ディスプレイはすでにこの設定です。</translation>
    </message>
    <message>
        <source>Changed here and in the profile</source>
        <translation>本機とプロファイルの両方で変更</translation>
    </message>
    <message>
        <source>Which value the settings below shall have</source>
        <translation>下の設定に使う値</translation>
    </message>
    <message>
        <source>Ours</source>
        <translation>本機</translation>
    </message>
    <message>
        <source>Theirs</source>
        <translation>プロファイル</translation>
    </message>
</context>
<context>
    <name>ProfilesPage</name>
    <message>
        <source>Profiles</source>
        <translation>プロファイル</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>書き出し</translation>
    </message>
    <message>
        <source>There is no profile on the stick.</source>
        <translation>USBメモリにプロファイルがありません。</translation>
    </message>
    <message>
        <source>No stick is plugged in.</source>
        <translation>USBメモリが差し込まれていません。</translation>
    </message>
    <message>
        <source>Name of the profile</source>
        <translation>プロファイル名</translation>
    </message>
</context>
<context>
    <name>Quantities</name>
    <message>
        <source>Area</source>
        <translation>面積</translation>
    </message>
    <message>
        <source>Productivity</source>
        <translation>作業能率</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>速度</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>距離</translation>
    </message>
    <message>
        <source>Small distance</source>
        <translation>短い距離</translation>
    </message>
    <message>
        <source>Travelled distance</source>
        <translation>走行距離</translation>
    </message>
    <message>
        <source>Altitude</source>
        <translation>標高</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>温度</translation>
    </message>
    <message>
        <source>Pressure</source>
        <translation>圧力</translation>
    </message>
    <message>
        <source>Rate</source>
        <translation>散布量</translation>
    </message>
    <message>
        <source>Requested rate</source>
        <translation>目標散布量</translation>
    </message>
    <message>
        <source>Rate and error</source>
        <translation>散布量と誤差</translation>
    </message>
    <message>
        <source>Small rate</source>
        <translation>少ない散布量</translation>
    </message>
    <message>
        <source>Flow</source>
        <translation>流量</translation>
    </message>
    <message>
        <source>Small flow</source>
        <translation>少ない流量</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>体積</translation>
    </message>
    <message>
        <source>Small volume</source>
        <translation>小さい体積</translation>
    </message>
    <message>
        <source>Granular volume</source>
        <translation>粒状物の体積</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>重量</translation>
    </message>
    <message>
        <source>Weight per area</source>
        <translation>面積当たり重量</translation>
    </message>
    <message>
        <source>Weight per area and error</source>
        <translation>面積当たり重量と誤差</translation>
    </message>
    <message>
        <source>Discharge</source>
        <translation>繰出量</translation>
    </message>
    <message>
        <source>Nitrogen</source>
        <translation>窒素</translation>
    </message>
    <message>
        <source>Nitrogen per area</source>
        <translation>面積当たり窒素</translation>
    </message>
    <message>
        <source>Seeds per area</source>
        <translation>面積当たり種子数</translation>
    </message>
    <message>
        <source>Density</source>
        <translation>密度</translation>
    </message>
    <message>
        <source>Granular density</source>
        <translation>粒状物の密度</translation>
    </message>
    <message>
        <source>Volume per revolution</source>
        <translation>1回転当たり体積</translation>
    </message>
    <message>
        <source>Weight per revolution</source>
        <translation>1回転当たり重量</translation>
    </message>
    <message>
        <source>Flow meter</source>
        <translation>流量計</translation>
    </message>
    <message>
        <source>Wheel sensor</source>
        <translation>車輪センサ</translation>
    </message>
    <message>
        <source>Speed sensor</source>
        <translation>速度センサ</translation>
    </message>
    <message>
        <source>Latitude</source>
        <translation>緯度</translation>
    </message>
    <message>
        <source>Longitude</source>
        <translation>経度</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>継続時間</translation>
    </message>
    <message>
        <source>Percent</source>
        <translation>パーセント</translation>
    </message>
</context>
<context>
    <name>Question</name>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
</context>
<context>
    <name>RateTile</name>
    <message>
        <source>set %1</source>
        <comment>the rate that is set</comment>
        <translation>目標 %1</translation>
    </message>
</context>
<context>
    <name>Receiver</name>
    <message>
        <source>Off</source>
        <translation>オフ</translation>
    </message>
    <message>
        <source>Connecting</source>
        <translation>接続中</translation>
    </message>
    <message>
        <source>Receiving</source>
        <translation>受信中</translation>
    </message>
    <message>
        <source>Silent</source>
        <translation>無信号</translation>
    </message>
    <message>
        <source>Lost</source>
        <translation>切断</translation>
    </message>
    <message>
        <source>Ended</source>
        <translation>終了</translation>
    </message>
    <message>
        <source>No fix</source>
        <translation>測位なし</translation>
    </message>
    <message>
        <source>RTK float</source>
        <translation>RTKフロート</translation>
    </message>
    <message>
        <source>Estimated</source>
        <translation>推定</translation>
    </message>
    <message>
        <source>By hand</source>
        <translation>手動</translation>
    </message>
    <message>
        <source>Simulated</source>
        <translation>模擬</translation>
    </message>
    <message>
        <source>The receiver sends nothing.</source>
        <translation>受信機から何も届きません。</translation>
    </message>
    <message>
        <source>The receiver is lost and is being looked for. %1</source>
        <translation>受信機を見失い、探しています。%1</translation>
    </message>
    <message>
        <source>The receiver cannot be read. %1</source>
        <translation>受信機を読み取れません。%1</translation>
    </message>
    <message>
        <source>The simulated field is done.</source>
        <translation>シミュレーションの圃場が終わりました。</translation>
    </message>
    <message>
        <source>The recording of the receiver is over.</source>
        <translation>受信機の記録が終わりました。</translation>
    </message>
</context>
<context>
    <name>ReceiverPage</name>
    <message>
        <source>Receiver</source>
        <translation>受信機</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>開始</translation>
    </message>
    <message>
        <source>Simulator</source>
        <translation>シミュレータ</translation>
    </message>
    <message>
        <source>File</source>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>ネットワーク</translation>
    </message>
    <message>
        <source>Serial</source>
        <translation>シリアル</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>アドレス</translation>
    </message>
    <message>
        <source>Fix</source>
        <translation>測位</translation>
    </message>
    <message>
        <source>Age</source>
        <translation>経過時間</translation>
    </message>
    <message>
        <source>Satellites</source>
        <translation>衛星</translation>
    </message>
    <message>
        <source>HDOP</source>
        <translation>HDOP</translation>
    </message>
    <message>
        <source>Time (UTC)</source>
        <translation>時刻 (UTC)</translation>
    </message>
    <message>
        <source>Lines</source>
        <translation>行</translation>
    </message>
    <message>
        <source>Sentences</source>
        <translation>センテンス</translation>
    </message>
    <message>
        <source>Bad checksums</source>
        <translation>チェックサム不良</translation>
    </message>
    <message>
        <source>Damaged lines</source>
        <translation>破損した行</translation>
    </message>
    <message>
        <source>Address of the receiver</source>
        <translation>受信機のアドレス</translation>
    </message>
</context>
<context>
    <name>RegionPage</name>
    <message>
        <source>Date</source>
        <translation>日付</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>時刻</translation>
    </message>
    <message>
        <source>Time zone</source>
        <translation>タイムゾーン</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>日付と時刻</translation>
    </message>
    <message>
        <source>Set by hand</source>
        <translation>手動で設定</translation>
    </message>
</context>
<context>
    <name>SearchPage</name>
    <message>
        <source>Search</source>
        <translation>検索</translation>
    </message>
    <message>
        <source>Words of a setting</source>
        <translation>設定を検索</translation>
    </message>
    <message>
        <source>No setting has these words.</source>
        <translation>この語句を含む設定はありません。</translation>
    </message>
</context>
<context>
    <name>SettingsPage</name>
    <message>
        <source>Units</source>
        <translation>単位</translation>
    </message>
    <message>
        <source>Region</source>
        <translation>地域</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>色</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>表示</translation>
    </message>
    <message>
        <source>Machine</source>
        <translation>機械</translation>
    </message>
    <message>
        <source>Storage</source>
        <translation>ストレージ</translation>
    </message>
    <message>
        <source>About</source>
        <translation>情報</translation>
    </message>
    <message>
        <source>Tiles</source>
        <translation>タイル</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>プロファイル</translation>
    </message>
    <message>
        <source>All settings</source>
        <translation>すべての設定</translation>
    </message>
</context>
<context>
    <name>SettingsPanel</name>
    <message>
        <source>Back</source>
        <translation>戻る</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>検索</translation>
    </message>
</context>
<context>
    <name>Sizes</name>
    <message numerus="yes">
        <source>%n byte(s)</source>
        <translation>
            <numerusform>%nバイト</numerusform>
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
        <translation>タスクなし</translation>
    </message>
    <message>
        <source>Receiver: %1</source>
        <translation>受信機：%1</translation>
    </message>
    <message>
        <source>The stick is plugged in</source>
        <translation>USBメモリが差し込まれています</translation>
    </message>
    <message>
        <source>Lock the screen</source>
        <translation>画面をロック</translation>
    </message>
    <message>
        <source>Colours of the night</source>
        <translation>夜の色</translation>
    </message>
    <message>
        <source>Colours of the day</source>
        <translation>昼の色</translation>
    </message>
</context>
<context>
    <name>StoragePage</name>
    <message>
        <source>Open</source>
        <translation>開く</translation>
    </message>
    <message>
        <source>Internal drive</source>
        <translation>内部ドライブ</translation>
    </message>
    <message>
        <source>Stick</source>
        <translation>USBメモリ</translation>
    </message>
    <message>
        <source>No stick is plugged in.</source>
        <translation>USBメモリが差し込まれていません。</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>メモリ</translation>
    </message>
    <message>
        <source>Logs</source>
        <translation>ログ</translation>
    </message>
    <message>
        <source>Writes all log files to the stick</source>
        <translation>すべてのログファイルをUSBメモリに書き込みます</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>書き出し</translation>
    </message>
    <message>
        <source>Export the logs</source>
        <translation>ログを書き出す</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>プロファイル</translation>
    </message>
    <message>
        <source>Takes the settings to another display, or brings them back from the stick</source>
        <translation>設定を別のディスプレイに移すか、USBメモリから戻します</translation>
    </message>
    <message>
        <source>Open the profiles</source>
        <translation>プロファイルを開く</translation>
    </message>
    <message>
        <source>Support</source>
        <translation>サポート</translation>
    </message>
    <message>
        <source>Writes logs, settings and versions in one file; without the names of clients, farms and fields</source>
        <translation>ログ、設定、バージョンを1つのファイルに書き込みます。顧客、農場、圃場の名前は含みません</translation>
    </message>
    <message>
        <source>Write</source>
        <translation>書き込む</translation>
    </message>
    <message>
        <source>Write the file for support without names</source>
        <translation>名前なしでサポート用ファイルを書き込む</translation>
    </message>
    <message>
        <source>Support, with names</source>
        <translation>サポート（名前あり）</translation>
    </message>
    <message>
        <source>The same file, with all names and places</source>
        <translation>同じファイル。すべての名前と場所を含みます</translation>
    </message>
    <message>
        <source>Write the file for support with names</source>
        <translation>名前ありでサポート用ファイルを書き込む</translation>
    </message>
</context>
<context>
    <name>TFieldTreeModel</name>
    <message>
        <source>A job holds no items.</source>
        <translation>タスクの中に項目はありません。</translation>
    </message>
    <message>
        <source>There is one with this name already.</source>
        <translation>この名前はすでにあります。</translation>
    </message>
    <message numerus="yes">
        <source>%n file(s), %1</source>
        <translation>
            <numerusform>%nファイル、%1</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>TParameter</name>
    <message>
        <source>The setting could not be written to the disk yet.</source>
        <translation>設定をまだディスクに書き込めません。</translation>
    </message>
    <message>
        <source>There is no value to set.</source>
        <translation>設定する値がありません。</translation>
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
        <translation>新しい言語は再起動後に表示されます。</translation>
    </message>
    <message>
        <source>The new decimal sign is shown after a restart.</source>
        <translation>新しい小数点記号は再起動後に表示されます。</translation>
    </message>
</context>
<context>
    <name>TSelections</name>
    <message>
        <source>The selection could not be stored.</source>
        <translation>選択を保存できませんでした。</translation>
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
        <translation>車両なし</translation>
    </message>
    <message>
        <source>No Profile</source>
        <translation>プロファイルなし</translation>
    </message>
    <message>
        <source>No Implement</source>
        <translation>作業機なし</translation>
    </message>
    <message>
        <source>Pivoted_</source>
        <translation>牽引_</translation>
    </message>
</context>
<context>
    <name>TTransfer</name>
    <message>
        <source>The name is empty.</source>
        <translation>名前が空です。</translation>
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
        <translation>マイル</translation>
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
        <translation>L/回転</translation>
    </message>
    <message>
        <source>gal/rev</source>
        <translation>gal/回転</translation>
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
        <translation>m/パルス</translation>
    </message>
    <message>
        <source>ft/pulse</source>
        <translation>ft/パルス</translation>
    </message>
    <message>
        <source>pulses/L</source>
        <translation>パルス/L</translation>
    </message>
    <message>
        <source>pulses/gal</source>
        <translation>パルス/gal</translation>
    </message>
    <message>
        <source>pulses/mL</source>
        <translation>パルス/mL</translation>
    </message>
    <message>
        <source>pulses/fl.oz</source>
        <translation>パルス/fl.oz</translation>
    </message>
    <message>
        <source>pulses/m³</source>
        <translation>パルス/m³</translation>
    </message>
    <message>
        <source>pulses/ft³</source>
        <translation>パルス/ft³</translation>
    </message>
    <message>
        <source>pulses/t</source>
        <translation>パルス/t</translation>
    </message>
    <message>
        <source>pulses/lb</source>
        <translation>パルス/lb</translation>
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
        <translation>kg/回転</translation>
    </message>
    <message>
        <source>lb/rev</source>
        <translation>lb/回転</translation>
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
        <translation>パルス/kgN</translation>
    </message>
    <message>
        <source>pulses/lbN</source>
        <translation>パルス/lbN</translation>
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
        <translation>分</translation>
    </message>
    <message>
        <source>hrs</source>
        <translation>時間</translation>
    </message>
    <message>
        <source>Hz</source>
        <translation>Hz</translation>
    </message>
    <message>
        <source>rpm</source>
        <translation>rpm</translation>
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
        <translation>重大</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>通常</translation>
    </message>
    <message>
        <source>Trivial</source>
        <translation>軽微</translation>
    </message>
</context>
<context>
    <name>TWork</name>
    <message>
        <source>An implement cannot have this width.</source>
        <translation>この作業幅にはできません。</translation>
    </message>
    <message>
        <source>A file of this job cannot be used. %1</source>
        <translation>このタスクのファイルを使えません。%1</translation>
    </message>
    <message>
        <source>Coverage was not complete and was left out: strips %1, bytes %2</source>
        <translation>作業済みの記録が不完全なため、一部を除きました：作業帯 %1、バイト %2</translation>
    </message>
    <message>
        <source>The file of the flags is damaged; new flags are not stored.</source>
        <translation>目印のファイルが破損しています。新しい目印は保存されません。</translation>
    </message>
    <message>
        <source>A file could not be stored. %1</source>
        <translation>ファイルを保存できませんでした。%1</translation>
    </message>
    <message>
        <source>The file of the implement cannot be used. %1</source>
        <translation>作業機のファイルを使えません。%1</translation>
    </message>
    <message>
        <source>There is no line.</source>
        <translation>ラインがありません。</translation>
    </message>
    <message>
        <source>The line has no name.</source>
        <translation>ラインに名前がありません。</translation>
    </message>
    <message>
        <source>The guidance line cannot be used. %1</source>
        <translation>ガイダンスラインを使えません。%1</translation>
    </message>
    <message>
        <source>No job is chosen</source>
        <translation>タスクが選択されていません</translation>
    </message>
    <message>
        <source>No job is chosen: what is covered is not stored.</source>
        <translation>タスクが選択されていません。作業済みの場所は保存されません。</translation>
    </message>
    <message>
        <source>The coverage of this job cannot be used: what is covered is not stored.</source>
        <translation>このタスクの作業済み記録を使えません。作業済みの場所は保存されません。</translation>
    </message>
    <message>
        <source>The coverage cannot be stored, and strips are lost: %1</source>
        <translation>作業済みの記録を保存できず、作業帯が失われます：%1</translation>
    </message>
    <message>
        <source>The coverage is kept in memory until it can be stored. %1</source>
        <translation>作業済みの記録は、保存できるまでメモリに保持されます。%1</translation>
    </message>
    <message>
        <source>The job is still being read.</source>
        <translation>タスクはまだ読み込み中です。</translation>
    </message>
</context>
<context>
    <name>TileTurner</name>
    <message>
        <source>Tiles</source>
        <translation>タイル</translation>
    </message>
</context>
<context>
    <name>Tiles</name>
    <message>
        <source>Rate</source>
        <translation>散布量</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>速度</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>面積</translation>
    </message>
    <message>
        <source>Left</source>
        <comment>area that is left to work</comment>
        <translation>残り</translation>
    </message>
    <message>
        <source>Work</source>
        <comment>area per hour</comment>
        <translation>能率</translation>
    </message>
    <message>
        <source>Flow</source>
        <translation>流量</translation>
    </message>
    <message>
        <source>Press.</source>
        <comment>pressure</comment>
        <translation>圧力</translation>
    </message>
    <message>
        <source>Temp.</source>
        <comment>temperature</comment>
        <translation>温度</translation>
    </message>
    <message>
        <source>Driven</source>
        <translation>走行距離</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>位置</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>時刻</translation>
    </message>
</context>
<context>
    <name>TilesPage</name>
    <message>
        <source>Back to the first choice</source>
        <translation>初期の選択に戻す</translation>
    </message>
    <message>
        <source>%1 further ahead</source>
        <translation>%1 を前へ</translation>
    </message>
    <message>
        <source>Shown</source>
        <translation>表示</translation>
    </message>
    <message>
        <source>Hidden</source>
        <translation>非表示</translation>
    </message>
</context>
<context>
    <name>Transfer</name>
    <message>
        <source>Nothing is imported: some settings were changed here and in the profile.</source>
        <translation>何も取り込まれませんでした。一部の設定が本機とプロファイルの両方で変更されています。</translation>
    </message>
    <message>
        <source>No stick is plugged in.</source>
        <translation>USBメモリが差し込まれていません。</translation>
    </message>
    <message>
        <source>The stick was removed before everything was on it.</source>
        <translation>書き込みが終わる前にUSBメモリが抜かれました。</translation>
    </message>
    <message>
        <source>The stick could not be written to the end.</source>
        <translation>USBメモリに最後まで書き込めませんでした。</translation>
    </message>
    <message>
        <source>The folder %1 cannot be made.</source>
        <translation>フォルダ %1 を作成できません。</translation>
    </message>
    <message>
        <source>The file %1 cannot be written.</source>
        <translation>ファイル %1 を書き込めません。</translation>
    </message>
    <message>
        <source>The logs are on the stick (files: %1).</source>
        <translation>ログをUSBメモリに保存しました（ファイル：%1）。</translation>
    </message>
    <message>
        <source>The profile cannot be used. %1</source>
        <translation>プロファイルを使えません。%1</translation>
    </message>
    <message>
        <source>Nothing is imported. %1</source>
        <translation>何も取り込まれませんでした。%1</translation>
    </message>
    <message>
        <source>This display</source>
        <translation>このディスプレイ</translation>
    </message>
    <message>
        <source>Another display</source>
        <translation>別のディスプレイ</translation>
    </message>
    <message>
        <source>The profile is not on the stick. %1</source>
        <translation>プロファイルはUSBメモリにありません。%1</translation>
    </message>
    <message>
        <source>The profile is on the stick: %1.</source>
        <translation>プロファイルはUSBメモリにあります：%1。</translation>
    </message>
    <message>
        <source>The file for support is not on the stick. %1</source>
        <translation>サポート用ファイルはUSBメモリにありません。%1</translation>
    </message>
    <message>
        <source>The file for support is on the stick: %1.</source>
        <translation>サポート用ファイルはUSBメモリにあります：%1。</translation>
    </message>
    <message>
        <source>The profile is imported (settings changed: %1).</source>
        <translation>プロファイルを取り込みました（変更された設定：%1）。</translation>
    </message>
    <message>
        <source>It cannot be used.</source>
        <translation>使えません。</translation>
    </message>
</context>
<context>
    <name>TransferState</name>
    <message>
        <source>Reading</source>
        <translation>読み込み中</translation>
    </message>
    <message>
        <source>Writing</source>
        <translation>書き込み中</translation>
    </message>
    <message>
        <source>Leave the stick where it is until this is done.</source>
        <translation>終わるまでUSBメモリを抜かないでください。</translation>
    </message>
</context>
<context>
    <name>WorkPage</name>
    <message>
        <source>Waiting for a position</source>
        <translation>位置を待っています</translation>
    </message>
    <message>
        <source>Map</source>
        <translation>地図</translation>
    </message>
</context>
<context>
    <name>WorkingButton</name>
    <message>
        <source>Working</source>
        <translation>作業中</translation>
    </message>
    <message>
        <source>Not working</source>
        <translation>非作業中</translation>
    </message>
    <message>
        <source>Working. Switch the implement off</source>
        <translation>作業中です。作業機をオフにする</translation>
    </message>
    <message>
        <source>Not working. Switch the implement on</source>
        <translation>作業していません。作業機をオンにする</translation>
    </message>
</context>
</TS>
