<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="bg" sourcelanguage="en">
<context>
    <name>About</name>
    <message>
        <source>Windows, files and connections</source>
        <translation>Прозорци, файлове и връзки</translation>
    </message>
    <message>
        <source>The file of the settings</source>
        <translation>Файлът с настройките</translation>
    </message>
    <message>
        <source>Profiles of settings</source>
        <translation>Профили с настройки</translation>
    </message>
    <message>
        <source>Files for support</source>
        <translation>Файлове за поддръжката</translation>
    </message>
    <message>
        <source>Sunrise and sunset</source>
        <translation>Изгрев и залез</translation>
    </message>
    <message>
        <source>Boundaries and zones</source>
        <translation>Граници и зони</translation>
    </message>
    <message>
        <source>Software</source>
        <translation>Софтуер</translation>
    </message>
    <message>
        <source>The software of this display</source>
        <translation>Софтуерът на този дисплей</translation>
    </message>
    <message>
        <source>Settings, units and logs</source>
        <translation>Настройки, единици и дневници</translation>
    </message>
</context>
<context>
    <name>Clock</name>
    <message>
        <source>The clock of the machine; nothing has set it.</source>
        <translation>Часовникът на устройството; не е сверен.</translation>
    </message>
    <message>
        <source>The clock was set by hand.</source>
        <translation>Часовникът е сверен ръчно.</translation>
    </message>
    <message>
        <source>The receiver sets the clock.</source>
        <translation>Приемникът сверява часовника.</translation>
    </message>
    <message>
        <source>There is no such date or time.</source>
        <translation>Няма такава дата или такъв час.</translation>
    </message>
    <message>
        <source>The date is more than 68 years from the clock of the machine.</source>
        <translation>Датата се различава с повече от 68 години от часовника на устройството.</translation>
    </message>
    <message>
        <source>The clock could not be stored.</source>
        <translation>Времето на часовника не можа да бъде записано.</translation>
    </message>
</context>
<context>
    <name>ClockEntry</name>
    <message>
        <source>Year</source>
        <translation>Година</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>Месец</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Ден</translation>
    </message>
    <message>
        <source>Hour</source>
        <translation>Час</translation>
    </message>
    <message>
        <source>Minute</source>
        <translation>Минута</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>Дата и час</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Час</translation>
    </message>
    <message>
        <source>%1: more</source>
        <translation>%1: повече</translation>
    </message>
    <message>
        <source>%1: less</source>
        <translation>%1: по-малко</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отказ</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>Задаване</translation>
    </message>
</context>
<context>
    <name>ColorBar</name>
    <message>
        <source>%1: less</source>
        <translation>%1: по-малко</translation>
    </message>
    <message>
        <source>%1: more</source>
        <translation>%1: повече</translation>
    </message>
</context>
<context>
    <name>ColorPage</name>
    <message>
        <source>Former</source>
        <translation>Предишен</translation>
    </message>
    <message>
        <source>Former colour</source>
        <translation>Предишен цвят</translation>
    </message>
    <message>
        <source>First value</source>
        <translation>Начален</translation>
    </message>
    <message>
        <source>Digits of the colour</source>
        <translation>Цифри на цвета</translation>
    </message>
    <message>
        <source>Hue</source>
        <translation>Тон</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Наситеност</translation>
    </message>
    <message>
        <source>Lightness</source>
        <translation>Светлост</translation>
    </message>
</context>
<context>
    <name>ColorsPage</name>
    <message>
        <source>Day</source>
        <translation>Ден</translation>
    </message>
    <message>
        <source>Night</source>
        <translation>Нощ</translation>
    </message>
</context>
<context>
    <name>Contrasts</name>
    <message>
        <source>on %1: %2</source>
        <translation>на „%1“: %2</translation>
    </message>
    <message>
        <source>under %1: %2</source>
        <translation>под „%1“: %2</translation>
    </message>
    <message>
        <source>%1, too low: at least %2</source>
        <translation>%1, твърде нисък: поне %2</translation>
    </message>
</context>
<context>
    <name>Difference</name>
    <message>
        <source>Changed on both sides</source>
        <translation>Променено от двете страни</translation>
    </message>
    <message>
        <source>Here</source>
        <translation>Тук</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>Профил</translation>
    </message>
</context>
<context>
    <name>Display</name>
    <message>
        <source>Restart</source>
        <translation>Рестарт</translation>
    </message>
    <message>
        <source>The fonts of the display</source>
        <translation>Шрифтовете на дисплея</translation>
    </message>
    <message>
        <source>The keyboard on the screen</source>
        <translation>Екранна клавиатура</translation>
    </message>
</context>
<context>
    <name>DoorBand</name>
    <message>
        <source>Work</source>
        <translation>Работа</translation>
    </message>
    <message>
        <source>Fields</source>
        <translation>Полета</translation>
    </message>
    <message>
        <source>Receiver</source>
        <translation>Приемник</translation>
    </message>
    <message>
        <source>Logs</source>
        <translation>Дневници</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Настройки</translation>
    </message>
</context>
<context>
    <name>Drives</name>
    <message>
        <source>%1 free of %2</source>
        <translation>%1 свободни от %2</translation>
    </message>
    <message>
        <source>Not known</source>
        <translation>Неизвестно</translation>
    </message>
    <message>
        <source>No stick</source>
        <translation>Няма флашка</translation>
    </message>
</context>
<context>
    <name>FieldsPage</name>
    <message>
        <source>Clients</source>
        <translation>Клиенти</translation>
    </message>
    <message>
        <source>New client</source>
        <translation>Нов клиент</translation>
    </message>
    <message>
        <source>No client yet.</source>
        <translation>Още няма клиент.</translation>
    </message>
    <message>
        <source>Farms</source>
        <translation>Стопанства</translation>
    </message>
    <message>
        <source>New farm</source>
        <translation>Ново стопанство</translation>
    </message>
    <message>
        <source>No farm yet.</source>
        <translation>Още няма стопанство.</translation>
    </message>
    <message>
        <source>Fields</source>
        <translation>Полета</translation>
    </message>
    <message>
        <source>New field</source>
        <translation>Ново поле</translation>
    </message>
    <message>
        <source>No field yet.</source>
        <translation>Още няма поле.</translation>
    </message>
    <message>
        <source>Jobs</source>
        <translation>Задачи</translation>
    </message>
    <message>
        <source>New job</source>
        <translation>Нова задача</translation>
    </message>
    <message>
        <source>No job yet.</source>
        <translation>Още няма задача.</translation>
    </message>
    <message>
        <source>Remove %1 with everything in it?</source>
        <translation>Изтриване на %1 с цялото съдържание?</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Rename or remove %1</source>
        <translation>Преименуване/изтриване: %1</translation>
    </message>
    <message>
        <source>Rename %1</source>
        <translation>Преименуване: %1</translation>
    </message>
    <message>
        <source>Remove everything</source>
        <translation>Изтриване на всичко</translation>
    </message>
</context>
<context>
    <name>Host</name>
    <message>
        <source>Details for the support: %1</source>
        <translation>Подробности за поддръжката: %1</translation>
    </message>
    <message>
        <source>%3 Try: %4</source>
        <translation>%3 Предложение: %4</translation>
    </message>
    <message>
        <source>This name is not possible.</source>
        <translation>Това име не е възможно.</translation>
    </message>
    <message>
        <source>The name is empty.</source>
        <translation>Името е празно.</translation>
    </message>
    <message>
        <source>This name stands for another folder.</source>
        <translation>Това име означава друга папка.</translation>
    </message>
    <message>
        <source>The name must not contain %1.</source>
        <translation>Името не може да съдържа %1.</translation>
    </message>
    <message>
        <source>The name contains a sign that cannot be seen.</source>
        <translation>Името съдържа невидим знак.</translation>
    </message>
    <message>
        <source>The name contains a sign that is not complete.</source>
        <translation>Името съдържа непълен знак.</translation>
    </message>
    <message>
        <source>The name must not end in a full stop or a blank.</source>
        <translation>Името не може да завършва с точка или интервал.</translation>
    </message>
    <message>
        <source>The name must not begin with a blank.</source>
        <translation>Името не може да започва с интервал.</translation>
    </message>
    <message>
        <source>A stick cannot hold a file with this name.</source>
        <translation>На флашка не може да има файл с това име.</translation>
    </message>
    <message>
        <source>The name is too long.</source>
        <translation>Името е твърде дълго.</translation>
    </message>
    <message>
        <source>%2 exists already.</source>
        <translation>Вече съществува: %2.</translation>
    </message>
    <message numerus="yes">
        <source>%2 is active and holds %n file(s).</source>
        <translation>
            <numerusform>%2 се използва и съдържа %n файл.</numerusform>
            <numerusform>%2 се използва и съдържа %n файла.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%2 holds %n file(s).</source>
        <translation>
            <numerusform>%2: вътре %n файл.</numerusform>
            <numerusform>%2: вътре %n файла.</numerusform>
        </translation>
    </message>
    <message>
        <source>%2 is active.</source>
        <translation>%2 се използва.</translation>
    </message>
    <message>
        <source>%2 is no longer there.</source>
        <translation>Вече не съществува: %2.</translation>
    </message>
    <message>
        <source>A stick cannot tell %2 from %3.</source>
        <translation>Флашката не различава %2 от %3.</translation>
    </message>
    <message>
        <source>Another program is working on the fields. Try again later.</source>
        <translation>Друга програма работи с полетата. Да се опита отново по-късно.</translation>
    </message>
    <message>
        <source>The selection could not be stored.</source>
        <translation>Изборът не можа да бъде записан.</translation>
    </message>
    <message>
        <source>%1 is neither a file nor a folder.</source>
        <translation>%1 не е нито файл, нито папка.</translation>
    </message>
    <message>
        <source>The file was edited or is damaged.</source>
        <translation>Файлът е редактиран или повреден.</translation>
    </message>
    <message>
        <source>%1 cannot be read. %2</source>
        <translation>Неуспешно четене: %1. %2</translation>
    </message>
    <message>
        <source>The file is of another kind.</source>
        <translation>Файлът е от друг вид.</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>Файлът е празен.</translation>
    </message>
    <message>
        <source>The end of the file is missing.</source>
        <translation>Краят на файла липсва.</translation>
    </message>
    <message>
        <source>The file is damaged.</source>
        <translation>Файлът е повреден.</translation>
    </message>
    <message>
        <source>The file is not complete.</source>
        <translation>Файлът не е пълен.</translation>
    </message>
    <message>
        <source>The file is from another version of the software.</source>
        <translation>Файлът е от друга версия на софтуера.</translation>
    </message>
    <message>
        <source>The file has a value that is not possible: %2</source>
        <translation>Файлът има недопустима стойност: %2</translation>
    </message>
    <message>
        <source>The file has a value twice: %2</source>
        <translation>Във файла една настройка се среща два пъти: %2</translation>
    </message>
    <message>
        <source>This address is not possible: %1</source>
        <translation>Този адрес не е възможен: %1</translation>
    </message>
    <message>
        <source>The device is not there.</source>
        <translation>Устройството не е свързано.</translation>
    </message>
    <message>
        <source>It is not permitted, or another program uses it.</source>
        <translation>Няма разрешение или се използва от друга програма.</translation>
    </message>
    <message>
        <source>Another program uses it.</source>
        <translation>Използва се от друга програма.</translation>
    </message>
    <message>
        <source>It cannot be read.</source>
        <translation>Не може да се прочете.</translation>
    </message>
    <message>
        <source>It was unplugged.</source>
        <translation>Устройството е извадено.</translation>
    </message>
    <message>
        <source>It is not a serial device, or it cannot have this speed.</source>
        <translation>Не е серийно устройство или не поддържа тази скорост.</translation>
    </message>
    <message>
        <source>The serial port has a fault (number %1).</source>
        <translation>Серийният порт има грешка (номер %1).</translation>
    </message>
    <message>
        <source>%1 is damaged or of another kind.</source>
        <translation>Файлът %1 е повреден или от друг вид.</translation>
    </message>
    <message>
        <source>%1 is from another version of the software.</source>
        <translation>Файлът %1 е от друга версия на софтуера.</translation>
    </message>
    <message>
        <source>%1 is damaged.</source>
        <translation>Файлът %1 е повреден.</translation>
    </message>
    <message>
        <source>%1 has other coordinates than WGS84.</source>
        <translation>Координатите не са в WGS84: %1.</translation>
    </message>
    <message>
        <source>%1 is not complete. %2 is missing.</source>
        <translation>Файлът %1 не е пълен. Липсва: %2.</translation>
    </message>
    <message>
        <source>%1 has no areas.</source>
        <translation>Не съдържа площи: %1.</translation>
    </message>
    <message>
        <source>Another program uses %1.</source>
        <translation>Използва се от друга програма: %1.</translation>
    </message>
    <message>
        <source>A and B are too close together or too far apart.</source>
        <translation>A и B са твърде близо или твърде далеч една от друга.</translation>
    </message>
    <message>
        <source>Another program has locked it.</source>
        <translation>Заключено от друга програма.</translation>
    </message>
    <message>
        <source>It is no longer there.</source>
        <translation>Вече не съществува.</translation>
    </message>
    <message>
        <source>%1 is no longer there.</source>
        <translation>Вече не съществува: %1.</translation>
    </message>
    <message>
        <source>%1 cannot be written. %2</source>
        <translation>Неуспешен запис: %1. %2</translation>
    </message>
    <message>
        <source>%1 cannot be written.</source>
        <translation>Неуспешен запис: %1.</translation>
    </message>
    <message>
        <source>The file of the settings has a fault (number %1).</source>
        <translation>Файлът с настройките има грешка (номер %1).</translation>
    </message>
    <message>
        <source>%1 cannot be opened. %2</source>
        <translation>Неуспешно отваряне: %1. %2</translation>
    </message>
    <message>
        <source>%1 cannot be created. %2</source>
        <translation>Неуспешно създаване: %1. %2</translation>
    </message>
    <message>
        <source>%1 cannot be copied. %2</source>
        <translation>Неуспешно копиране: %1. %2</translation>
    </message>
    <message>
        <source>%1 cannot be renamed. %2</source>
        <translation>Неуспешно преименуване: %1. %2</translation>
    </message>
    <message>
        <source>%1 cannot be removed. %2</source>
        <translation>Неуспешно изтриване: %1. %2</translation>
    </message>
    <message>
        <source>The drive is full.</source>
        <translation>Дискът е пълен.</translation>
    </message>
    <message>
        <source>The drive has a fault.</source>
        <translation>Дискът има грешка.</translation>
    </message>
    <message>
        <source>The drive can only be read.</source>
        <translation>Дискът е само за четене.</translation>
    </message>
    <message>
        <source>It is not permitted.</source>
        <translation>Няма разрешение.</translation>
    </message>
    <message>
        <source>It cannot be opened.</source>
        <translation>Не може да се отвори.</translation>
    </message>
    <message>
        <source>It is damaged.</source>
        <translation>Файлът е повреден.</translation>
    </message>
    <message>
        <source>It is not there.</source>
        <translation>Липсва.</translation>
    </message>
    <message>
        <source>It exists already.</source>
        <translation>Вече съществува.</translation>
    </message>
    <message>
        <source>It is a folder.</source>
        <translation>Това е папка.</translation>
    </message>
    <message>
        <source>It is not a folder.</source>
        <translation>Това не е папка.</translation>
    </message>
    <message>
        <source>The folder is not empty.</source>
        <translation>Папката не е празна.</translation>
    </message>
    <message>
        <source>The file is too large.</source>
        <translation>Файлът е твърде голям.</translation>
    </message>
    <message>
        <source>Too many files are open.</source>
        <translation>Отворени са твърде много файлове.</translation>
    </message>
    <message>
        <source>There is too little memory.</source>
        <translation>Паметта не достига.</translation>
    </message>
    <message>
        <source>It is not possible there.</source>
        <translation>Там това не е възможно.</translation>
    </message>
    <message>
        <source>The device refuses the connection.</source>
        <translation>Устройството отказва връзката.</translation>
    </message>
    <message>
        <source>The device has closed the connection.</source>
        <translation>Устройството прекъсна връзката.</translation>
    </message>
    <message>
        <source>There is no device with this address.</source>
        <translation>Няма устройство с този адрес.</translation>
    </message>
    <message>
        <source>The network cannot be reached.</source>
        <translation>Мрежата е недостъпна.</translation>
    </message>
    <message>
        <source>The device does not answer.</source>
        <translation>Устройството не отговаря.</translation>
    </message>
    <message>
        <source>It is a link to another place.</source>
        <translation>Това е връзка към друго място.</translation>
    </message>
    <message>
        <source>There are too many links to it.</source>
        <translation>Към него има твърде много връзки.</translation>
    </message>
</context>
<context>
    <name>ItemActions</name>
    <message>
        <source>Rename</source>
        <translation>Преименуване</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Изтриване</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отказ</translation>
    </message>
</context>
<context>
    <name>ItemPage</name>
    <message>
        <source>New</source>
        <translation>Създаване</translation>
    </message>
</context>
<context>
    <name>Keypad</name>
    <message>
        <source>%1 to %2 %3</source>
        <translation>От %1 до %2 %3</translation>
    </message>
    <message>
        <source>At least %1 %2</source>
        <translation>Поне %1 %2</translation>
    </message>
    <message>
        <source>At most %1 %2</source>
        <translation>Най-много %1 %2</translation>
    </message>
    <message>
        <source>This is not a number yet.</source>
        <translation>Това още не е число.</translation>
    </message>
    <message>
        <source>Too large.
%1</source>
        <translation>Твърде голямо.
%1</translation>
    </message>
    <message>
        <source>Too small.
%1</source>
        <translation>Твърде малко.
%1</translation>
    </message>
    <message>
        <source>now %1</source>
        <translation>сега %1</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отказ</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>Задаване</translation>
    </message>
    <message>
        <source>Decimal sign</source>
        <translation>Десетичен знак</translation>
    </message>
    <message>
        <source>Plus or minus</source>
        <translation>Плюс или минус</translation>
    </message>
    <message>
        <source>Remove the last sign</source>
        <translation>Изтриване на последния знак</translation>
    </message>
    <message>
        <source>C</source>
        <comment>key that clears the entry</comment>
        <translation>C</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Изчистване</translation>
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
        <translation>Поставяне на A тук — първия край на линията</translation>
    </message>
    <message>
        <source>B</source>
        <comment>the other end of the guidance line</comment>
        <translation>B</translation>
    </message>
    <message>
        <source>Set B, the other end of the line, here</source>
        <translation>Поставяне на B тук — другия край на линията</translation>
    </message>
    <message>
        <source>Set a flag here</source>
        <translation>Поставяне на флагче тук</translation>
    </message>
</context>
<context>
    <name>LineChoice</name>
    <message>
        <source>New</source>
        <translation>Създаване</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отказ</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Стоп</translation>
    </message>
</context>
<context>
    <name>LinePanel</name>
    <message>
        <source>%1 to the left</source>
        <translation>%1 наляво</translation>
    </message>
    <message>
        <source>%1 to the right</source>
        <translation>%1 надясно</translation>
    </message>
</context>
<context>
    <name>LockLayer</name>
    <message>
        <source>The screen is locked. Hold the button to unlock it.</source>
        <translation>Екранът е заключен. За отключване бутонът се задържа.</translation>
    </message>
    <message>
        <source>Unlock</source>
        <translation>Отключване</translation>
    </message>
</context>
<context>
    <name>LogsPage</name>
    <message>
        <source>Logs</source>
        <translation>Дневници</translation>
    </message>
    <message>
        <source>Events</source>
        <translation>Събития</translation>
    </message>
    <message>
        <source>Receiver</source>
        <translation>Приемник</translation>
    </message>
    <message>
        <source>Go on</source>
        <translation>Продължаване</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Пауза</translation>
    </message>
    <message>
        <source>No line yet.</source>
        <translation>Още няма ред.</translation>
    </message>
</context>
<context>
    <name>MachinePage</name>
    <message>
        <source>Implement width</source>
        <translation>Ширина на инвентара</translation>
    </message>
    <message>
        <source>Decides the guidance lines beside each other, and the area done</source>
        <translation>Определя съседните водещи линии и обработената площ</translation>
    </message>
    <message>
        <source>Implement behind the antenna</source>
        <translation>Инвентар зад антената</translation>
    </message>
    <message>
        <source>How far the ground is covered behind the vehicle&apos;s place</source>
        <translation>На какво разстояние зад мястото на машината е обработената площ</translation>
    </message>
</context>
<context>
    <name>Main</name>
    <message>
        <source>Cab display</source>
        <translation>Кабинен дисплей</translation>
    </message>
</context>
<context>
    <name>MapButtons</name>
    <message>
        <source>Zoom in</source>
        <translation>Увеличаване</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Намаляване</translation>
    </message>
    <message>
        <source>The heading is up. Turn north up</source>
        <translation>Курсът е нагоре. Завъртане със север нагоре</translation>
    </message>
    <message>
        <source>North is up. Turn the heading up</source>
        <translation>Север е нагоре. Завъртане с курса нагоре</translation>
    </message>
    <message>
        <source>Centre the vehicle</source>
        <translation>Машината в центъра</translation>
    </message>
</context>
<context>
    <name>NameEntry</name>
    <message>
        <source>Cancel</source>
        <translation>Отказ</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>Задаване</translation>
    </message>
</context>
<context>
    <name>PageTurner</name>
    <message>
        <source>Rows above</source>
        <translation>Горни редове</translation>
    </message>
    <message>
        <source>Rows below</source>
        <translation>Долни редове</translation>
    </message>
</context>
<context>
    <name>ParameterRow</name>
    <message>
        <source>%1: back to the first value</source>
        <translation>%1: обратно към началната стойност</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Отваряне</translation>
    </message>
</context>
<context>
    <name>ParameterTexts</name>
    <message>
        <source>h</source>
        <translation>ч</translation>
    </message>
    <message>
        <source>min</source>
        <translation>мин</translation>
    </message>
    <message>
        <source>s</source>
        <translation>с</translation>
    </message>
    <message>
        <source>an absolute path that ends in &quot;/&quot; and is not &quot;/&quot;</source>
        <translation>абсолютен път, който завършва на „/“ и не е „/“</translation>
    </message>
    <message>
        <source>an absolute path</source>
        <translation>абсолютен път</translation>
    </message>
    <message>
        <source>a UUID in small letters, such as 6ba7b810-9dad-41d1-80b4-00c04fd430c8</source>
        <translation>UUID с малки букви, например 6ba7b810-9dad-41d1-80b4-00c04fd430c8</translation>
    </message>
    <message>
        <source>simulator, tcp://HOST:PORT, serial:///dev/NAME?baud=N or an absolute path</source>
        <translation>simulator, tcp://HOST:PORT, serial:///dev/NAME?baud=N или абсолютен път</translation>
    </message>
    <message>
        <source>true or false</source>
        <translation>true или false</translation>
    </message>
    <message>
        <source>a time in UTC, such as 2026-03-05T13:05:09Z</source>
        <translation>време в UTC, например 2026-03-05T13:05:09Z</translation>
    </message>
    <message>
        <source>a colour: #rrggbb, #aarrggbb or a name such as navy</source>
        <translation>цвят: #rrggbb, #aarrggbb или име, например navy</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>от %1 до %2</translation>
    </message>
    <message>
        <source>Not a whole number.</source>
        <translation>Не е цяло число.</translation>
    </message>
    <message>
        <source>Below the least value.</source>
        <translation>Под най-малката стойност.</translation>
    </message>
    <message>
        <source>Above the greatest value.</source>
        <translation>Над най-голямата стойност.</translation>
    </message>
    <message>
        <source>This cannot be the name of a file. Try: %1</source>
        <translation>Файл не може да се казва така. Предложение: %1</translation>
    </message>
    <message>
        <source>Not accepted. Expected: %1.</source>
        <translation>Не се приема. Очаква се: %1.</translation>
    </message>
    <message>
        <source>a name without %1</source>
        <translation>име без %1</translation>
    </message>
    <message>
        <source>a whole number</source>
        <translation>цяло число</translation>
    </message>
    <message>
        <source>At least %1</source>
        <translation>Поне %1</translation>
    </message>
</context>
<context>
    <name>Parameters</name>
    <message>
        <source>the operator has chosen the offset from UTC; GPS time keeps it instead of computing it</source>
        <translation>операторът е избрал отместването от UTC; времето от GPS го запазва, вместо да го изчислява</translation>
    </message>
    <message>
        <source>metric units; otherwise US or English units</source>
        <translation>метрични единици; иначе американски или английски</translation>
    </message>
    <message>
        <source>US measures when units are not metric; otherwise English measures</source>
        <translation>американски мерки, когато единиците не са метрични; иначе английски</translation>
    </message>
    <message>
        <source>positions in degrees, minutes and seconds; otherwise in decimal degrees</source>
        <translation>позиции в градуси, минути и секунди; иначе в десетични градуси</translation>
    </message>
    <message>
        <source>24-hour clock; otherwise 12 hours with am and pm</source>
        <translation>часовник с 24 часа; иначе 12 часа с am и pm</translation>
    </message>
    <message>
        <source>dates with the month before the day</source>
        <translation>дати с месеца преди деня</translation>
    </message>
    <message>
        <source>colours for day; otherwise for night</source>
        <translation>дневни цветове; иначе нощни</translation>
    </message>
    <message>
        <source>the map turns with the vehicle; otherwise north is up</source>
        <translation>картата се върти с машината; иначе север е нагоре</translation>
    </message>
    <message>
        <source>unit of pressures</source>
        <translation>единица за налягане</translation>
    </message>
    <message>
        <source>unit of areas, and of rates per area</source>
        <translation>единица за площ и за норми на площ</translation>
    </message>
    <message>
        <source>unit of short distances: widths, offsets</source>
        <translation>единица за малки разстояния: ширини, отмествания</translation>
    </message>
    <message>
        <source>unit of granular volumes</source>
        <translation>единица за обем на гранулата</translation>
    </message>
    <message>
        <source>unit of granular densities</source>
        <translation>единица за плътност на гранулата</translation>
    </message>
    <message>
        <source>unit of liquid volumes, flows and rates</source>
        <translation>единица за обем, дебит и норма на течности</translation>
    </message>
    <message>
        <source>language of the display&apos;s texts; a change needs a restart</source>
        <translation>език на текстовете на дисплея; промяната изисква рестарт</translation>
    </message>
    <message>
        <source>decimal point or comma; a change needs a restart</source>
        <translation>десетична точка или запетая; промяната изисква рестарт</translation>
    </message>
    <message>
        <source>when the colours switch between day and night: only by hand, at sunrise and sunset, or with the sun 6 degrees below the horizon</source>
        <translation>кога цветовете се сменят между ден и нощ: само ръчно, при изгрев и залез или когато слънцето е на 6 градуса под хоризонта</translation>
    </message>
    <message>
        <source>what set the display&apos;s clock</source>
        <translation>по какво е сверен часовникът на дисплея</translation>
    </message>
    <message>
        <source>local time less UTC, whole hours</source>
        <translation>местно време минус UTC, цели часове</translation>
    </message>
    <message>
        <source>local time less UTC, minutes beyond the hours, with the sign of the hours</source>
        <translation>местно време минус UTC, минути над часовете, със знака на часовете</translation>
    </message>
    <message>
        <source>brightness of the lightbar at night</source>
        <translation>яркост на светлинната лента нощем</translation>
    </message>
    <message>
        <source>brightness of the screen at night</source>
        <translation>яркост на екрана нощем</translation>
    </message>
    <message>
        <source>brightness of the button lights at night</source>
        <translation>яркост на осветлението на бутоните нощем</translation>
    </message>
    <message>
        <source>4: implements are kept in the folder of their vehicle; other numbers: in their own folder</source>
        <translation>4: инвентарът е в папката на своята машина; други числа: в отделна папка</translation>
    </message>
    <message>
        <source>number of the next file of the NMEA log</source>
        <translation>номер на следващия файл на дневника NMEA</translation>
    </message>
    <message>
        <source>number of the next file of the user log</source>
        <translation>номер на следващия файл на дневника на оператора</translation>
    </message>
    <message>
        <source>the display&apos;s clock less UTC</source>
        <translation>часовникът на дисплея минус UTC</translation>
    </message>
    <message>
        <source>folder of the internal drive; by default in the data folder</source>
        <translation>папка на вътрешния диск; по подразбиране в папката с данни</translation>
    </message>
    <message>
        <source>mount point of the removable drive; by default in the data folder</source>
        <translation>точка на монтиране на сменяемия диск; по подразбиране в папката с данни</translation>
    </message>
    <message>
        <source>the identity of the terminal, which its profiles carry</source>
        <translation>идентификаторът на терминала, който стои в профилите му</translation>
    </message>
    <message>
        <source>where the sentences of the receiver come from</source>
        <translation>откъде идват съобщенията на приемника</translation>
    </message>
    <message>
        <source>the figures beside the map, in this order</source>
        <translation>показателите до картата, в този ред</translation>
    </message>
    <message>
        <source>the newest time of a receiver, as of the last day on which one was seen</source>
        <translation>най-новото време от приемник, от последния ден с приемник</translation>
    </message>
    <message>
        <source>when the sun switched the colours last</source>
        <translation>кога слънцето е сменило цветовете за последно</translation>
    </message>
    <message>
        <source>the active job</source>
        <translation>активната задача</translation>
    </message>
    <message>
        <source>the active boundary</source>
        <translation>активната граница</translation>
    </message>
    <message>
        <source>the active straight guidance line</source>
        <translation>активната права водеща линия</translation>
    </message>
    <message>
        <source>the active pivot</source>
        <translation>активният кръг</translation>
    </message>
    <message>
        <source>the active guidance curve</source>
        <translation>активната водеща крива</translation>
    </message>
    <message>
        <source>the active shape file of optimal lines</source>
        <translation>активният shape файл с оптимални линии</translation>
    </message>
    <message>
        <source>the active shape file of project lines</source>
        <translation>активният shape файл с линии на проекта</translation>
    </message>
    <message>
        <source>the active shape file of zones</source>
        <translation>активният shape файл със зони</translation>
    </message>
    <message>
        <source>the active steering profile</source>
        <translation>активният профил на управление</translation>
    </message>
    <message>
        <source>the active implement</source>
        <translation>активният инвентар</translation>
    </message>
    <message>
        <source>the active vehicle</source>
        <translation>активната машина</translation>
    </message>
    <message>
        <source>the active sprayer</source>
        <translation>активната пръскачка</translation>
    </message>
    <message>
        <source>the active boom leveller</source>
        <translation>активното нивелиране на щангата</translation>
    </message>
    <message>
        <source>the active client</source>
        <translation>активният клиент</translation>
    </message>
    <message>
        <source>the active farm</source>
        <translation>активното стопанство</translation>
    </message>
    <message>
        <source>the active field</source>
        <translation>активното поле</translation>
    </message>
    <message>
        <source>Measures</source>
        <translation>Мерни единици</translation>
    </message>
    <message>
        <source>Gallons and bushels</source>
        <translation>Галони и бушели</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>Площ</translation>
    </message>
    <message>
        <source>Pressure</source>
        <translation>Налягане</translation>
    </message>
    <message>
        <source>Short distances</source>
        <translation>Малки разстояния</translation>
    </message>
    <message>
        <source>Liquid</source>
        <translation>Течност</translation>
    </message>
    <message>
        <source>Granular volume</source>
        <translation>Обем на гранулата</translation>
    </message>
    <message>
        <source>Granular density</source>
        <translation>Плътност на гранулата</translation>
    </message>
    <message>
        <source>Positions</source>
        <translation>Позиции</translation>
    </message>
    <message>
        <source>Rate per travel</source>
        <translation>Норма на изминат път</translation>
    </message>
    <message>
        <source>Basis of rates</source>
        <translation>База на нормите</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Език</translation>
    </message>
    <message>
        <source>Decimal sign</source>
        <translation>Десетичен знак</translation>
    </message>
    <message>
        <source>Time of day</source>
        <translation>Формат на часа</translation>
    </message>
    <message>
        <source>Dates</source>
        <translation>Дати</translation>
    </message>
    <message>
        <source>Time zone set by hand</source>
        <translation>Ръчна часова зона</translation>
    </message>
    <message>
        <source>Time zone, hours</source>
        <translation>Часова зона, часове</translation>
    </message>
    <message>
        <source>Time zone, minutes</source>
        <translation>Часова зона, минути</translation>
    </message>
    <message>
        <source>Clock less UTC</source>
        <translation>Часовник минус UTC</translation>
    </message>
    <message>
        <source>Source of the time</source>
        <translation>Източник на времето</translation>
    </message>
    <message>
        <source>Source of the time since</source>
        <translation>Източник на времето, откога</translation>
    </message>
    <message>
        <source>Newest receiver time</source>
        <translation>Най-ново време от приемника</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>Цветове</translation>
    </message>
    <message>
        <source>Day and night</source>
        <translation>Ден и нощ</translation>
    </message>
    <message>
        <source>Map direction</source>
        <translation>Посока на картата</translation>
    </message>
    <message>
        <source>Tiles</source>
        <translation>Плочки</translation>
    </message>
    <message>
        <source>Light bar at night</source>
        <translation>Светлинна лента нощем</translation>
    </message>
    <message>
        <source>Screen at night</source>
        <translation>Екран нощем</translation>
    </message>
    <message>
        <source>Button lights at night</source>
        <translation>Осветление на бутоните нощем</translation>
    </message>
    <message>
        <source>Switched by the sun</source>
        <translation>Превключено по слънцето</translation>
    </message>
    <message>
        <source>Client</source>
        <translation>Клиент</translation>
    </message>
    <message>
        <source>Farm</source>
        <translation>Стопанство</translation>
    </message>
    <message>
        <source>Field</source>
        <translation>Поле</translation>
    </message>
    <message>
        <source>Job</source>
        <translation>Задача</translation>
    </message>
    <message>
        <source>Vehicle</source>
        <translation>Машина</translation>
    </message>
    <message>
        <source>Implement</source>
        <translation>Инвентар</translation>
    </message>
    <message>
        <source>Sprayer</source>
        <translation>Пръскачка</translation>
    </message>
    <message>
        <source>Boom leveller</source>
        <translation>Нивелиране на щангата</translation>
    </message>
    <message>
        <source>Steering profile</source>
        <translation>Профил на управление</translation>
    </message>
    <message>
        <source>Boundary</source>
        <translation>Граница</translation>
    </message>
    <message>
        <source>A-B line</source>
        <translation>Линия A-B</translation>
    </message>
    <message>
        <source>Pivot</source>
        <translation>Кръг</translation>
    </message>
    <message>
        <source>Curve</source>
        <translation>Крива</translation>
    </message>
    <message>
        <source>Optimal lines</source>
        <translation>Оптимални линии</translation>
    </message>
    <message>
        <source>Project lines</source>
        <translation>Линии на проекта</translation>
    </message>
    <message>
        <source>Zones</source>
        <translation>Зони</translation>
    </message>
    <message>
        <source>Receiver address</source>
        <translation>Адрес на приемника</translation>
    </message>
    <message>
        <source>Internal drive</source>
        <translation>Вътрешен диск</translation>
    </message>
    <message>
        <source>Stick</source>
        <translation>Флашка</translation>
    </message>
    <message>
        <source>Implement folder</source>
        <translation>Папка на инвентара</translation>
    </message>
    <message>
        <source>Next NMEA log</source>
        <translation>Следващ дневник NMEA</translation>
    </message>
    <message>
        <source>Next user log</source>
        <translation>Следващ дневник на оператора</translation>
    </message>
    <message>
        <source>Identity</source>
        <translation>Идентификатор</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Текст</translation>
    </message>
    <message>
        <source>Colour of texts</source>
        <translation>Цвят на текстовете</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Заглавие</translation>
    </message>
    <message>
        <source>Colour of titles</source>
        <translation>Цвят на заглавията</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Фон</translation>
    </message>
    <message>
        <source>Colour of the background</source>
        <translation>Цвят на фона</translation>
    </message>
    <message>
        <source>Button</source>
        <translation>Бутон</translation>
    </message>
    <message>
        <source>Colour of buttons</source>
        <translation>Цвят на бутоните</translation>
    </message>
    <message>
        <source>Button text</source>
        <translation>Текст на бутон</translation>
    </message>
    <message>
        <source>Colour of texts on buttons</source>
        <translation>Цвят на текста на бутоните</translation>
    </message>
    <message>
        <source>Map</source>
        <translation>Карта</translation>
    </message>
    <message>
        <source>Colour of the map&apos;s ground</source>
        <translation>Цвят на основата на картата</translation>
    </message>
    <message>
        <source>Grid</source>
        <translation>Мрежа</translation>
    </message>
    <message>
        <source>Colour of the map&apos;s grid</source>
        <translation>Цвят на мрежата на картата</translation>
    </message>
    <message>
        <source>Coverage</source>
        <translation>Обработено</translation>
    </message>
    <message>
        <source>Colour of covered ground</source>
        <translation>Цвят на обработеното</translation>
    </message>
    <message>
        <source>Vehicle on the map</source>
        <translation>Машина на картата</translation>
    </message>
    <message>
        <source>Colour of the vehicle</source>
        <translation>Цвят на машината</translation>
    </message>
    <message>
        <source>Guidance line</source>
        <translation>Водеща линия</translation>
    </message>
    <message>
        <source>Colour of the guidance line</source>
        <translation>Цвят на водещата линия</translation>
    </message>
    <message>
        <source>Cross hairs</source>
        <translation>Мерник</translation>
    </message>
    <message>
        <source>Colour of the cross hairs</source>
        <translation>Цвят на мерника</translation>
    </message>
    <message>
        <source>Outer boundary</source>
        <translation>Външна граница</translation>
    </message>
    <message>
        <source>Colour of the outer boundary of the field</source>
        <translation>Цвят на външната граница на полето</translation>
    </message>
    <message>
        <source>Inner boundary</source>
        <translation>Вътрешна граница</translation>
    </message>
    <message>
        <source>Colour of boundaries within the field</source>
        <translation>Цвят на границите в полето</translation>
    </message>
    <message>
        <source>Other boundaries</source>
        <translation>Други граници</translation>
    </message>
    <message>
        <source>Colour of boundaries that are not active</source>
        <translation>Цвят на неактивните граници</translation>
    </message>
    <message>
        <source>Exclusion zone</source>
        <translation>Забранена зона</translation>
    </message>
    <message>
        <source>Colour of zones to keep out of</source>
        <translation>Цвят на забранените зони</translation>
    </message>
    <message>
        <source>Background picture</source>
        <translation>Фоново изображение</translation>
    </message>
    <message>
        <source>Number of the background picture</source>
        <translation>Номер на фоновото изображение</translation>
    </message>
    <message>
        <source>what the sprayer&apos;s rates are related to</source>
        <translation>към какво се отнасят нормите на пръскачката</translation>
    </message>
    <message>
        <source>liquid rates per 100 m or 100 yd of travel, while travel is their basis</source>
        <translation>норми за течност на 100 м или 100 ярда път, докато пътят е тяхна база</translation>
    </message>
    <message>
        <source>since when the clock has its time from there</source>
        <translation>откога часовникът взема времето си оттам</translation>
    </message>
    <message>
        <source>Metric</source>
        <translation>Метрични</translation>
    </message>
    <message>
        <source>US or English</source>
        <translation>САЩ или английски</translation>
    </message>
    <message>
        <source>US</source>
        <translation>САЩ</translation>
    </message>
    <message>
        <source>English</source>
        <translation>Английски</translation>
    </message>
    <message>
        <source>Deg., min., s</source>
        <translation>Град., мин, с</translation>
    </message>
    <message>
        <source>Degrees</source>
        <translation>Градуси</translation>
    </message>
    <message>
        <source>24 hours</source>
        <translation>24 часа</translation>
    </message>
    <message>
        <source>am, pm</source>
        <translation>am, pm</translation>
    </message>
    <message>
        <source>Month first</source>
        <translation>Първо месец</translation>
    </message>
    <message>
        <source>Day first</source>
        <translation>Първо ден</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Ден</translation>
    </message>
    <message>
        <source>Night</source>
        <translation>Нощ</translation>
    </message>
    <message>
        <source>Heading up</source>
        <translation>Курс нагоре</translation>
    </message>
    <message>
        <source>North up</source>
        <translation>Север нагоре</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Вкл.</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Изкл.</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Да</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Не</translation>
    </message>
    <message>
        <source>Travel</source>
        <translation>Изминат път</translation>
    </message>
    <message>
        <source>kPa</source>
        <translation>кПа</translation>
    </message>
    <message>
        <source>psi</source>
        <translation>psi</translation>
    </message>
    <message>
        <source>bar</source>
        <translation>бар</translation>
    </message>
    <message>
        <source>Hectare</source>
        <translation>Хектар</translation>
    </message>
    <message>
        <source>Acre</source>
        <translation>Акър</translation>
    </message>
    <message>
        <source>m, mm</source>
        <translation>м, мм</translation>
    </message>
    <message>
        <source>Inch</source>
        <translation>Инч</translation>
    </message>
    <message>
        <source>Foot</source>
        <translation>Фут</translation>
    </message>
    <message>
        <source>L</source>
        <translation>л</translation>
    </message>
    <message>
        <source>kg</source>
        <translation>кг</translation>
    </message>
    <message>
        <source>m³</source>
        <translation>м³</translation>
    </message>
    <message>
        <source>US bushel</source>
        <translation>Бушел САЩ</translation>
    </message>
    <message>
        <source>UK bushel</source>
        <translation>Англ. бушел</translation>
    </message>
    <message>
        <source>kg/L</source>
        <translation>кг/л</translation>
    </message>
    <message>
        <source>kg/m³</source>
        <translation>кг/м³</translation>
    </message>
    <message>
        <source>kg/US bu</source>
        <translation>кг/буш.САЩ</translation>
    </message>
    <message>
        <source>kg/UK bu</source>
        <translation>кг/буш.англ.</translation>
    </message>
    <message>
        <source>t</source>
        <translation>т</translation>
    </message>
    <message>
        <source>Point</source>
        <translation>Точка</translation>
    </message>
    <message>
        <source>Comma</source>
        <translation>Запетая</translation>
    </message>
    <message>
        <source>By hand</source>
        <translation>Ръчно</translation>
    </message>
    <message>
        <source>Sunset</source>
        <translation>Залез</translation>
    </message>
    <message>
        <source>Twilight</source>
        <translation>Здрач</translation>
    </message>
    <message>
        <source>Not set</source>
        <translation>Не е зададено</translation>
    </message>
    <message>
        <source>Operator</source>
        <translation>Оператор</translation>
    </message>
    <message>
        <source>Receiver</source>
        <translation>Приемник</translation>
    </message>
    <message>
        <source>Rate</source>
        <translation>Норма</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Скорост</translation>
    </message>
    <message>
        <source>Area done</source>
        <translation>Обработена площ</translation>
    </message>
    <message>
        <source>Area left</source>
        <translation>Оставаща площ</translation>
    </message>
    <message>
        <source>Productivity</source>
        <translation>Производителност</translation>
    </message>
    <message>
        <source>Flow</source>
        <translation>Дебит</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Температура</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>Разстояние</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Позиция</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Час</translation>
    </message>
    <message>
        <source>Units</source>
        <translation>Единици</translation>
    </message>
    <message>
        <source>Rates</source>
        <translation>Норми</translation>
    </message>
    <message>
        <source>Region</source>
        <translation>Регион</translation>
    </message>
    <message>
        <source>Clock</source>
        <translation>Часовник</translation>
    </message>
    <message>
        <source>Colours of the schemes</source>
        <translation>Цветове на схемите</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Дисплей</translation>
    </message>
    <message>
        <source>Selections</source>
        <translation>Избор</translation>
    </message>
    <message>
        <source>Storage</source>
        <translation>Съхранение</translation>
    </message>
    <message>
        <source>Logs</source>
        <translation>Дневници</translation>
    </message>
    <message>
        <source>Terminal</source>
        <translation>Терминал</translation>
    </message>
    <message>
        <source>%1, by day</source>
        <translation>%1, през деня</translation>
    </message>
    <message>
        <source>%1, by night</source>
        <translation>%1, през нощта</translation>
    </message>
</context>
<context>
    <name>Problems</name>
    <message>
        <source>The logs lose lines: their drive is full or cannot be written.</source>
        <translation>Дневниците губят редове: дискът им е пълен или не може да се записва.</translation>
    </message>
    <message>
        <source>Recording is off, because there is too little room.</source>
        <translation>Записът е изключен, защото няма достатъчно място.</translation>
    </message>
    <message>
        <source>Changes of settings are not stored yet. %1</source>
        <translation>Промените в настройките още не са записани. %1</translation>
    </message>
    <message>
        <source>The drive of the terminal is nearly full. Free: %1</source>
        <translation>Дискът на терминала е почти пълен. Свободни: %1</translation>
    </message>
</context>
<context>
    <name>ProfilePage</name>
    <message>
        <source>Import</source>
        <translation>Импорт</translation>
    </message>
    <message>
        <source>The display has these settings already.</source>
        <translation>Дисплеят вече има тези настройки.</translation>
    </message>
    <message>
        <source>Changed here and in the profile</source>
        <translation>Променено тук и в профила</translation>
    </message>
    <message>
        <source>Which value the settings below shall have</source>
        <translation>Коя стойност да получат настройките по-долу</translation>
    </message>
    <message>
        <source>Ours</source>
        <translation>От дисплея</translation>
    </message>
    <message>
        <source>Theirs</source>
        <translation>От профила</translation>
    </message>
</context>
<context>
    <name>ProfilesPage</name>
    <message>
        <source>Profiles</source>
        <translation>Профили</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Експорт</translation>
    </message>
    <message>
        <source>There is no profile on the stick.</source>
        <translation>На флашката няма профил.</translation>
    </message>
    <message>
        <source>No stick is plugged in.</source>
        <translation>Няма поставена флашка.</translation>
    </message>
    <message>
        <source>Name of the profile</source>
        <translation>Име на профила</translation>
    </message>
</context>
<context>
    <name>Quantities</name>
    <message>
        <source>Area</source>
        <translation>Площ</translation>
    </message>
    <message>
        <source>Productivity</source>
        <translation>Производителност</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Скорост</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>Разстояние</translation>
    </message>
    <message>
        <source>Small distance</source>
        <translation>Малко разстояние</translation>
    </message>
    <message>
        <source>Travelled distance</source>
        <translation>Изминато разстояние</translation>
    </message>
    <message>
        <source>Altitude</source>
        <translation>Височина</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Температура</translation>
    </message>
    <message>
        <source>Pressure</source>
        <translation>Налягане</translation>
    </message>
    <message>
        <source>Rate</source>
        <translation>Норма</translation>
    </message>
    <message>
        <source>Requested rate</source>
        <translation>Зададена норма</translation>
    </message>
    <message>
        <source>Rate and error</source>
        <translation>Норма и отклонение</translation>
    </message>
    <message>
        <source>Small rate</source>
        <translation>Малка норма</translation>
    </message>
    <message>
        <source>Flow</source>
        <translation>Дебит</translation>
    </message>
    <message>
        <source>Small flow</source>
        <translation>Малък дебит</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Обем</translation>
    </message>
    <message>
        <source>Small volume</source>
        <translation>Малък обем</translation>
    </message>
    <message>
        <source>Granular volume</source>
        <translation>Обем на гранулата</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>Тегло</translation>
    </message>
    <message>
        <source>Weight per area</source>
        <translation>Тегло на площ</translation>
    </message>
    <message>
        <source>Weight per area and error</source>
        <translation>Тегло на площ и отклонение</translation>
    </message>
    <message>
        <source>Discharge</source>
        <translation>Подаване</translation>
    </message>
    <message>
        <source>Nitrogen</source>
        <translation>Азот</translation>
    </message>
    <message>
        <source>Nitrogen per area</source>
        <translation>Азот на площ</translation>
    </message>
    <message>
        <source>Seeds per area</source>
        <translation>Семена на площ</translation>
    </message>
    <message>
        <source>Density</source>
        <translation>Плътност</translation>
    </message>
    <message>
        <source>Granular density</source>
        <translation>Плътност на гранулата</translation>
    </message>
    <message>
        <source>Volume per revolution</source>
        <translation>Обем на оборот</translation>
    </message>
    <message>
        <source>Weight per revolution</source>
        <translation>Тегло на оборот</translation>
    </message>
    <message>
        <source>Flow meter</source>
        <translation>Дебитомер</translation>
    </message>
    <message>
        <source>Wheel sensor</source>
        <translation>Колесен датчик</translation>
    </message>
    <message>
        <source>Speed sensor</source>
        <translation>Датчик за скорост</translation>
    </message>
    <message>
        <source>Latitude</source>
        <translation>Геогр. шир.</translation>
    </message>
    <message>
        <source>Longitude</source>
        <translation>Геогр. дълж.</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Времетраене</translation>
    </message>
    <message>
        <source>Percent</source>
        <translation>Процент</translation>
    </message>
</context>
<context>
    <name>Question</name>
    <message>
        <source>Cancel</source>
        <translation>Отказ</translation>
    </message>
</context>
<context>
    <name>RateTile</name>
    <message>
        <source>set %1</source>
        <comment>the rate that is set</comment>
        <translation>зададена %1</translation>
    </message>
</context>
<context>
    <name>Receiver</name>
    <message>
        <source>Off</source>
        <translation>Изкл.</translation>
    </message>
    <message>
        <source>Connecting</source>
        <translation>Свързване</translation>
    </message>
    <message>
        <source>Receiving</source>
        <translation>Приемане</translation>
    </message>
    <message>
        <source>Silent</source>
        <translation>Няма данни</translation>
    </message>
    <message>
        <source>Lost</source>
        <translation>Изгубен</translation>
    </message>
    <message>
        <source>Ended</source>
        <translation>Приключено</translation>
    </message>
    <message>
        <source>No fix</source>
        <translation>Няма позиция</translation>
    </message>
    <message>
        <source>RTK float</source>
        <translation>RTK Float</translation>
    </message>
    <message>
        <source>Estimated</source>
        <translation>Изчислена</translation>
    </message>
    <message>
        <source>By hand</source>
        <translation>Ръчно</translation>
    </message>
    <message>
        <source>Simulated</source>
        <translation>Симулация</translation>
    </message>
    <message>
        <source>The receiver sends nothing.</source>
        <translation>Приемникът не изпраща нищо.</translation>
    </message>
    <message>
        <source>The receiver is lost and is being looked for. %1</source>
        <translation>Приемникът е изгубен и се търси. %1</translation>
    </message>
    <message>
        <source>The receiver cannot be read. %1</source>
        <translation>Приемникът не може да бъде прочетен. %1</translation>
    </message>
    <message>
        <source>The simulated field is done.</source>
        <translation>Симулираното поле е готово.</translation>
    </message>
    <message>
        <source>The recording of the receiver is over.</source>
        <translation>Записът на приемника свърши.</translation>
    </message>
</context>
<context>
    <name>ReceiverPage</name>
    <message>
        <source>Receiver</source>
        <translation>Приемник</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Стоп</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Старт</translation>
    </message>
    <message>
        <source>Simulator</source>
        <translation>Симулатор</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Файл</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Мрежа</translation>
    </message>
    <message>
        <source>Serial</source>
        <translation>Сериен порт</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Адрес</translation>
    </message>
    <message>
        <source>Fix</source>
        <translation>Вид позиция</translation>
    </message>
    <message>
        <source>Age</source>
        <translation>Възраст</translation>
    </message>
    <message>
        <source>Satellites</source>
        <translation>Сателити</translation>
    </message>
    <message>
        <source>HDOP</source>
        <translation>HDOP</translation>
    </message>
    <message>
        <source>Time (UTC)</source>
        <translation>Време (UTC)</translation>
    </message>
    <message>
        <source>Lines</source>
        <translation>Редове</translation>
    </message>
    <message>
        <source>Sentences</source>
        <translation>Съобщения</translation>
    </message>
    <message>
        <source>Bad checksums</source>
        <translation>Грешни контр. суми</translation>
    </message>
    <message>
        <source>Damaged lines</source>
        <translation>Повредени редове</translation>
    </message>
    <message>
        <source>Address of the receiver</source>
        <translation>Адрес на приемника</translation>
    </message>
</context>
<context>
    <name>RegionPage</name>
    <message>
        <source>Date</source>
        <translation>Дата</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Час</translation>
    </message>
    <message>
        <source>Time zone</source>
        <translation>Часова зона</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>Дата и час</translation>
    </message>
    <message>
        <source>Set by hand</source>
        <translation>Ръчно задаване</translation>
    </message>
</context>
<context>
    <name>SearchPage</name>
    <message>
        <source>Search</source>
        <translation>Търсене</translation>
    </message>
    <message>
        <source>Words of a setting</source>
        <translation>Думи от настройка</translation>
    </message>
    <message>
        <source>No setting has these words.</source>
        <translation>Няма настройка с тези думи.</translation>
    </message>
</context>
<context>
    <name>SettingsPage</name>
    <message>
        <source>Units</source>
        <translation>Единици</translation>
    </message>
    <message>
        <source>Region</source>
        <translation>Регион</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>Цветове</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Дисплей</translation>
    </message>
    <message>
        <source>Machine</source>
        <translation>Агрегат</translation>
    </message>
    <message>
        <source>Storage</source>
        <translation>Съхранение</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Относно</translation>
    </message>
    <message>
        <source>Tiles</source>
        <translation>Плочки</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>Профили</translation>
    </message>
    <message>
        <source>All settings</source>
        <translation>Всички настройки</translation>
    </message>
</context>
<context>
    <name>SettingsPanel</name>
    <message>
        <source>Back</source>
        <translation>Назад</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Търсене</translation>
    </message>
</context>
<context>
    <name>Sizes</name>
    <message numerus="yes">
        <source>%n byte(s)</source>
        <translation>
            <numerusform>%n байт</numerusform>
            <numerusform>%n байта</numerusform>
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
        <translation>Няма задача</translation>
    </message>
    <message>
        <source>Receiver: %1</source>
        <translation>Приемник: %1</translation>
    </message>
    <message>
        <source>The stick is plugged in</source>
        <translation>Флашката е поставена</translation>
    </message>
    <message>
        <source>Lock the screen</source>
        <translation>Заключване на екрана</translation>
    </message>
    <message>
        <source>Colours of the night</source>
        <translation>Нощни цветове</translation>
    </message>
    <message>
        <source>Colours of the day</source>
        <translation>Дневни цветове</translation>
    </message>
</context>
<context>
    <name>StoragePage</name>
    <message>
        <source>Open</source>
        <translation>Отваряне</translation>
    </message>
    <message>
        <source>Internal drive</source>
        <translation>Вътрешен диск</translation>
    </message>
    <message>
        <source>Stick</source>
        <translation>Флашка</translation>
    </message>
    <message>
        <source>No stick is plugged in.</source>
        <translation>Няма поставена флашка.</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Памет</translation>
    </message>
    <message>
        <source>Logs</source>
        <translation>Дневници</translation>
    </message>
    <message>
        <source>Writes all log files to the stick</source>
        <translation>Записва всички дневници на флашката</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Експорт</translation>
    </message>
    <message>
        <source>Export the logs</source>
        <translation>Експорт на дневниците</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>Профили</translation>
    </message>
    <message>
        <source>Takes the settings to another display, or brings them back from the stick</source>
        <translation>Пренася настройките на друг дисплей или ги връща от флашката</translation>
    </message>
    <message>
        <source>Open the profiles</source>
        <translation>Отваряне на профилите</translation>
    </message>
    <message>
        <source>Support</source>
        <translation>Поддръжка</translation>
    </message>
    <message>
        <source>Writes logs, settings and versions in one file; without the names of clients, farms and fields</source>
        <translation>Записва дневници, настройки и версии в един файл; без имената на клиенти, стопанства и полета</translation>
    </message>
    <message>
        <source>Write</source>
        <translation>Запис</translation>
    </message>
    <message>
        <source>Write the file for support without names</source>
        <translation>Запис на файла за поддръжката без имена</translation>
    </message>
    <message>
        <source>Support, with names</source>
        <translation>Поддръжка, с имена</translation>
    </message>
    <message>
        <source>The same file, with all names and places</source>
        <translation>Същият файл с всички имена и места</translation>
    </message>
    <message>
        <source>Write the file for support with names</source>
        <translation>Запис на файла за поддръжката с имена</translation>
    </message>
</context>
<context>
    <name>TFieldTreeModel</name>
    <message>
        <source>A job holds no items.</source>
        <translation>Задачата не съдържа други елементи.</translation>
    </message>
    <message>
        <source>There is one with this name already.</source>
        <translation>Това име вече съществува.</translation>
    </message>
    <message numerus="yes">
        <source>%n file(s), %1</source>
        <translation>
            <numerusform>%n файл, %1</numerusform>
            <numerusform>%n файла, %1</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>TParameter</name>
    <message>
        <source>The setting could not be written to the disk yet.</source>
        <translation>Настройката още не можа да бъде записана на диска.</translation>
    </message>
    <message>
        <source>There is no value to set.</source>
        <translation>Няма стойност за задаване.</translation>
    </message>
</context>
<context>
    <name>TRegionSettings</name>
    <message>
        <source>Jan</source>
        <translation>яну</translation>
    </message>
    <message>
        <source>Feb</source>
        <translation>фев</translation>
    </message>
    <message>
        <source>Mar</source>
        <translation>март</translation>
    </message>
    <message>
        <source>Apr</source>
        <translation>апр</translation>
    </message>
    <message>
        <source>May</source>
        <translation>май</translation>
    </message>
    <message>
        <source>Jun</source>
        <translation>юни</translation>
    </message>
    <message>
        <source>Jul</source>
        <translation>юли</translation>
    </message>
    <message>
        <source>Aug</source>
        <translation>авг</translation>
    </message>
    <message>
        <source>Sep</source>
        <translation>сеп</translation>
    </message>
    <message>
        <source>Oct</source>
        <translation>окт</translation>
    </message>
    <message>
        <source>Nov</source>
        <translation>ное</translation>
    </message>
    <message>
        <source>Dec</source>
        <translation>дек</translation>
    </message>
</context>
<context>
    <name>TRestart</name>
    <message>
        <source>The new language is shown after a restart.</source>
        <translation>Новият език се показва след рестарт.</translation>
    </message>
    <message>
        <source>The new decimal sign is shown after a restart.</source>
        <translation>Новият десетичен знак се показва след рестарт.</translation>
    </message>
</context>
<context>
    <name>TSelections</name>
    <message>
        <source>The selection could not be stored.</source>
        <translation>Изборът не можа да бъде записан.</translation>
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
        <translation>Няма машина</translation>
    </message>
    <message>
        <source>No Profile</source>
        <translation>Няма профил</translation>
    </message>
    <message>
        <source>No Implement</source>
        <translation>Няма инвентар</translation>
    </message>
    <message>
        <source>Pivoted_</source>
        <translation>Прикачен_</translation>
    </message>
</context>
<context>
    <name>TTransfer</name>
    <message>
        <source>The name is empty.</source>
        <translation>Името е празно.</translation>
    </message>
</context>
<context>
    <name>TUnitAbbreviations</name>
    <message>
        <source>Jan</source>
        <translation>яну</translation>
    </message>
    <message>
        <source>Feb</source>
        <translation>фев</translation>
    </message>
    <message>
        <source>Mar</source>
        <translation>март</translation>
    </message>
    <message>
        <source>Apr</source>
        <translation>апр</translation>
    </message>
    <message>
        <source>May</source>
        <translation>май</translation>
    </message>
    <message>
        <source>Jun</source>
        <translation>юни</translation>
    </message>
    <message>
        <source>Jul</source>
        <translation>юли</translation>
    </message>
    <message>
        <source>Aug</source>
        <translation>авг</translation>
    </message>
    <message>
        <source>Sep</source>
        <translation>сеп</translation>
    </message>
    <message>
        <source>Oct</source>
        <translation>окт</translation>
    </message>
    <message>
        <source>Nov</source>
        <translation>ное</translation>
    </message>
    <message>
        <source>Dec</source>
        <translation>дек</translation>
    </message>
    <message>
        <source>m</source>
        <translation>м</translation>
    </message>
    <message>
        <source>km</source>
        <translation>км</translation>
    </message>
    <message>
        <source>cm</source>
        <translation>см</translation>
    </message>
    <message>
        <source>mm</source>
        <translation>мм</translation>
    </message>
    <message>
        <source>&apos;</source>
        <translation>&apos;</translation>
    </message>
    <message>
        <source>miles</source>
        <translation>мили</translation>
    </message>
    <message>
        <source>ha</source>
        <translation>ха</translation>
    </message>
    <message>
        <source>ac</source>
        <translation>акър</translation>
    </message>
    <message>
        <source>m/min</source>
        <translation>м/мин</translation>
    </message>
    <message>
        <source>ft/min</source>
        <translation>фут/мин</translation>
    </message>
    <message>
        <source>kph</source>
        <translation>км/ч</translation>
    </message>
    <message>
        <source>mph</source>
        <translation>мили/ч</translation>
    </message>
    <message>
        <source>ac/hr</source>
        <translation>акър/ч</translation>
    </message>
    <message>
        <source>ha/hr</source>
        <translation>ха/ч</translation>
    </message>
    <message>
        <source>L</source>
        <translation>л</translation>
    </message>
    <message>
        <source>gal</source>
        <translation>гал</translation>
    </message>
    <message>
        <source>mL</source>
        <translation>мл</translation>
    </message>
    <message>
        <source>fl.oz</source>
        <translation>теч.унц</translation>
    </message>
    <message>
        <source>m³</source>
        <translation>м³</translation>
    </message>
    <message>
        <source>ft³</source>
        <translation>фут³</translation>
    </message>
    <message>
        <source>t</source>
        <translation>т</translation>
    </message>
    <message>
        <source>US bu</source>
        <translation>буш.САЩ</translation>
    </message>
    <message>
        <source>UK bu</source>
        <translation>буш.англ.</translation>
    </message>
    <message>
        <source>L/ha</source>
        <translation>л/ха</translation>
    </message>
    <message>
        <source>L/ac</source>
        <translation>л/акър</translation>
    </message>
    <message>
        <source>mL/ha</source>
        <translation>мл/ха</translation>
    </message>
    <message>
        <source>mL/ac</source>
        <translation>мл/акър</translation>
    </message>
    <message>
        <source>gal/ha</source>
        <translation>гал/ха</translation>
    </message>
    <message>
        <source>gal/ac</source>
        <translation>гал/акър</translation>
    </message>
    <message>
        <source>gal/ha (US)</source>
        <translation>гал/ха (САЩ)</translation>
    </message>
    <message>
        <source>gal/ac (US)</source>
        <translation>гал/акър (САЩ)</translation>
    </message>
    <message>
        <source>fl.oz/ac</source>
        <translation>теч.унц/акър</translation>
    </message>
    <message>
        <source>fl.oz/ha</source>
        <translation>теч.унц/ха</translation>
    </message>
    <message>
        <source>fl.oz/ac (US)</source>
        <translation>теч.унц/акър (САЩ)</translation>
    </message>
    <message>
        <source>fl.oz/ha (US)</source>
        <translation>теч.унц/ха (САЩ)</translation>
    </message>
    <message>
        <source>m³/ha</source>
        <translation>м³/ха</translation>
    </message>
    <message>
        <source>m³/ac</source>
        <translation>м³/акър</translation>
    </message>
    <message>
        <source>ft³/ha</source>
        <translation>фут³/ха</translation>
    </message>
    <message>
        <source>ft³/ac</source>
        <translation>фут³/акър</translation>
    </message>
    <message>
        <source>t/ha</source>
        <translation>т/ха</translation>
    </message>
    <message>
        <source>t/ac</source>
        <translation>т/акър</translation>
    </message>
    <message>
        <source>L/100m</source>
        <translation>л/100м</translation>
    </message>
    <message>
        <source>gal/100yd</source>
        <translation>гал/100ярд</translation>
    </message>
    <message>
        <source>gal/100yd (US)</source>
        <translation>гал/100ярд (САЩ)</translation>
    </message>
    <message>
        <source>L/min</source>
        <translation>л/мин</translation>
    </message>
    <message>
        <source>gal/min</source>
        <translation>гал/мин</translation>
    </message>
    <message>
        <source>mL/min</source>
        <translation>мл/мин</translation>
    </message>
    <message>
        <source>fl.oz/min</source>
        <translation>теч.унц/мин</translation>
    </message>
    <message>
        <source>m³/min</source>
        <translation>м³/мин</translation>
    </message>
    <message>
        <source>ft³/min</source>
        <translation>фут³/мин</translation>
    </message>
    <message>
        <source>t/min</source>
        <translation>т/мин</translation>
    </message>
    <message>
        <source>L/rev</source>
        <translation>л/об</translation>
    </message>
    <message>
        <source>gal/rev</source>
        <translation>гал/об</translation>
    </message>
    <message>
        <source>kPa</source>
        <translation>кПа</translation>
    </message>
    <message>
        <source>psi</source>
        <translation>psi</translation>
    </message>
    <message>
        <source>bar</source>
        <translation>бар</translation>
    </message>
    <message>
        <source>m/pulse</source>
        <translation>м/имп</translation>
    </message>
    <message>
        <source>ft/pulse</source>
        <translation>фут/имп</translation>
    </message>
    <message>
        <source>pulses/L</source>
        <translation>имп/л</translation>
    </message>
    <message>
        <source>pulses/gal</source>
        <translation>имп/гал</translation>
    </message>
    <message>
        <source>pulses/mL</source>
        <translation>имп/мл</translation>
    </message>
    <message>
        <source>pulses/fl.oz</source>
        <translation>имп/теч.унц</translation>
    </message>
    <message>
        <source>pulses/m³</source>
        <translation>имп/м³</translation>
    </message>
    <message>
        <source>pulses/ft³</source>
        <translation>имп/фут³</translation>
    </message>
    <message>
        <source>pulses/t</source>
        <translation>имп/т</translation>
    </message>
    <message>
        <source>pulses/lb</source>
        <translation>имп/фунт</translation>
    </message>
    <message>
        <source>kg</source>
        <translation>кг</translation>
    </message>
    <message>
        <source>lb</source>
        <translation>фунт</translation>
    </message>
    <message>
        <source>kgN</source>
        <translation>кгN</translation>
    </message>
    <message>
        <source>lbN</source>
        <translation>фунтN</translation>
    </message>
    <message>
        <source>kg/ha</source>
        <translation>кг/ха</translation>
    </message>
    <message>
        <source>kg/ac</source>
        <translation>кг/акър</translation>
    </message>
    <message>
        <source>lb/ac</source>
        <translation>фунт/акър</translation>
    </message>
    <message>
        <source>lb/ha</source>
        <translation>фунт/ха</translation>
    </message>
    <message>
        <source>g/ha</source>
        <translation>г/ха</translation>
    </message>
    <message>
        <source>kgN/ha</source>
        <translation>кгN/ха</translation>
    </message>
    <message>
        <source>kgN/ac</source>
        <translation>кгN/акър</translation>
    </message>
    <message>
        <source>lbN/ac</source>
        <translation>фунтN/акър</translation>
    </message>
    <message>
        <source>lbN/ha</source>
        <translation>фунтN/ха</translation>
    </message>
    <message>
        <source>kg/min</source>
        <translation>кг/мин</translation>
    </message>
    <message>
        <source>lb/min</source>
        <translation>фунт/мин</translation>
    </message>
    <message>
        <source>kgN/min</source>
        <translation>кгN/мин</translation>
    </message>
    <message>
        <source>lbN/min</source>
        <translation>фунтN/мин</translation>
    </message>
    <message>
        <source>kg/rev</source>
        <translation>кг/об</translation>
    </message>
    <message>
        <source>lb/rev</source>
        <translation>фунт/об</translation>
    </message>
    <message>
        <source>kg/L</source>
        <translation>кг/л</translation>
    </message>
    <message>
        <source>lb/gal</source>
        <translation>фунт/гал</translation>
    </message>
    <message>
        <source>kg/m³</source>
        <translation>кг/м³</translation>
    </message>
    <message>
        <source>lb/ft³</source>
        <translation>фунт/фут³</translation>
    </message>
    <message>
        <source>kg/US bu</source>
        <translation>кг/буш.САЩ</translation>
    </message>
    <message>
        <source>kg/UK bu</source>
        <translation>кг/буш.англ.</translation>
    </message>
    <message>
        <source>lb/US bu</source>
        <translation>фунт/буш.САЩ</translation>
    </message>
    <message>
        <source>lb/UK bu</source>
        <translation>фунт/буш.англ.</translation>
    </message>
    <message>
        <source>pulses/kgN</source>
        <translation>имп/кгN</translation>
    </message>
    <message>
        <source>pulses/lbN</source>
        <translation>имп/фунтN</translation>
    </message>
    <message>
        <source>KS/ha</source>
        <translation>хил.сем/ха</translation>
    </message>
    <message>
        <source>KS/ac</source>
        <translation>хил.сем/акър</translation>
    </message>
    <message>
        <source>s</source>
        <translation>с</translation>
    </message>
    <message>
        <source>ms</source>
        <translation>мс</translation>
    </message>
    <message>
        <source>min</source>
        <translation>мин</translation>
    </message>
    <message>
        <source>hrs</source>
        <translation>ч</translation>
    </message>
    <message>
        <source>Hz</source>
        <translation>Hz</translation>
    </message>
    <message>
        <source>rpm</source>
        <translation>об/мин</translation>
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
        <translation>Критично</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Нормално</translation>
    </message>
    <message>
        <source>Trivial</source>
        <translation>Маловажно</translation>
    </message>
</context>
<context>
    <name>TWork</name>
    <message>
        <source>An implement cannot have this width.</source>
        <translation>Инвентарът не може да има такава ширина.</translation>
    </message>
    <message>
        <source>A file of this job cannot be used. %1</source>
        <translation>Файл на тази задача не може да се използва. %1</translation>
    </message>
    <message>
        <source>Coverage was not complete and was left out: strips %1, bytes %2</source>
        <translation>Данните за обработеното бяха непълни и са пропуснати: ивици %1, байтове %2</translation>
    </message>
    <message>
        <source>The file of the flags is damaged; new flags are not stored.</source>
        <translation>Файлът с флагчетата е повреден; нови флагчета не се записват.</translation>
    </message>
    <message>
        <source>A file could not be stored. %1</source>
        <translation>Файл не можа да бъде записан. %1</translation>
    </message>
    <message>
        <source>The file of the implement cannot be used. %1</source>
        <translation>Файлът на инвентара не може да се използва. %1</translation>
    </message>
    <message>
        <source>There is no line.</source>
        <translation>Няма линия.</translation>
    </message>
    <message>
        <source>The line has no name.</source>
        <translation>Линията няма име.</translation>
    </message>
    <message>
        <source>The guidance line cannot be used. %1</source>
        <translation>Водещата линия не може да се използва. %1</translation>
    </message>
    <message>
        <source>No job is chosen</source>
        <translation>Няма избрана задача</translation>
    </message>
    <message>
        <source>No job is chosen: what is covered is not stored.</source>
        <translation>Няма избрана задача: обработеното не се записва.</translation>
    </message>
    <message>
        <source>The coverage of this job cannot be used: what is covered is not stored.</source>
        <translation>Данните за обработеното в тази задача не могат да се използват: обработеното не се записва.</translation>
    </message>
    <message>
        <source>The coverage cannot be stored, and strips are lost: %1</source>
        <translation>Данните за обработеното не се записват и се губят ивици: %1</translation>
    </message>
    <message>
        <source>The coverage is kept in memory until it can be stored. %1</source>
        <translation>Данните за обработеното остават в паметта до записването им. %1</translation>
    </message>
    <message>
        <source>The job is still being read.</source>
        <translation>Задачата все още се чете.</translation>
    </message>
</context>
<context>
    <name>TileTurner</name>
    <message>
        <source>Tiles</source>
        <translation>Плочки</translation>
    </message>
</context>
<context>
    <name>Tiles</name>
    <message>
        <source>Rate</source>
        <translation>Норма</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Скорост</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>Площ</translation>
    </message>
    <message>
        <source>Left</source>
        <comment>area that is left to work</comment>
        <translation>Остатък</translation>
    </message>
    <message>
        <source>Work</source>
        <comment>area per hour</comment>
        <translation>Произв.</translation>
    </message>
    <message>
        <source>Flow</source>
        <translation>Дебит</translation>
    </message>
    <message>
        <source>Press.</source>
        <comment>pressure</comment>
        <translation>Наляг.</translation>
    </message>
    <message>
        <source>Temp.</source>
        <comment>temperature</comment>
        <translation>Темп.</translation>
    </message>
    <message>
        <source>Driven</source>
        <translation>Път</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Позиция</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Час</translation>
    </message>
</context>
<context>
    <name>TilesPage</name>
    <message>
        <source>Back to the first choice</source>
        <translation>Обратно към началния избор</translation>
    </message>
    <message>
        <source>%1 further ahead</source>
        <translation>%1: преместване напред</translation>
    </message>
    <message>
        <source>Shown</source>
        <translation>Показано</translation>
    </message>
    <message>
        <source>Hidden</source>
        <translation>Скрито</translation>
    </message>
</context>
<context>
    <name>Transfer</name>
    <message>
        <source>Nothing is imported: some settings were changed here and in the profile.</source>
        <translation>Нищо не е импортирано: някои настройки са променени тук и в профила.</translation>
    </message>
    <message>
        <source>No stick is plugged in.</source>
        <translation>Няма поставена флашка.</translation>
    </message>
    <message>
        <source>The stick was removed before everything was on it.</source>
        <translation>Флашката е извадена, преди да е записано всичко.</translation>
    </message>
    <message>
        <source>The stick could not be written to the end.</source>
        <translation>Записът на флашката не можа да завърши.</translation>
    </message>
    <message>
        <source>The folder %1 cannot be made.</source>
        <translation>Папката %1 не може да бъде създадена.</translation>
    </message>
    <message>
        <source>The file %1 cannot be written.</source>
        <translation>Файлът %1 не може да бъде записан.</translation>
    </message>
    <message>
        <source>The logs are on the stick (files: %1).</source>
        <translation>Дневниците са на флашката (файлове: %1).</translation>
    </message>
    <message>
        <source>The profile cannot be used. %1</source>
        <translation>Профилът не може да се използва. %1</translation>
    </message>
    <message>
        <source>Nothing is imported. %1</source>
        <translation>Нищо не е импортирано. %1</translation>
    </message>
    <message>
        <source>This display</source>
        <translation>Този дисплей</translation>
    </message>
    <message>
        <source>Another display</source>
        <translation>Друг дисплей</translation>
    </message>
    <message>
        <source>The profile is not on the stick. %1</source>
        <translation>Профилът не е на флашката. %1</translation>
    </message>
    <message>
        <source>The profile is on the stick: %1.</source>
        <translation>Профилът е на флашката: %1.</translation>
    </message>
    <message>
        <source>The file for support is not on the stick. %1</source>
        <translation>Файлът за поддръжката не е на флашката. %1</translation>
    </message>
    <message>
        <source>The file for support is on the stick: %1.</source>
        <translation>Файлът за поддръжката е на флашката: %1.</translation>
    </message>
    <message>
        <source>The profile is imported (settings changed: %1).</source>
        <translation>Профилът е импортиран (променени настройки: %1).</translation>
    </message>
    <message>
        <source>It cannot be used.</source>
        <translation>Не може да се използва.</translation>
    </message>
</context>
<context>
    <name>TransferState</name>
    <message>
        <source>Reading</source>
        <translation>Четене</translation>
    </message>
    <message>
        <source>Writing</source>
        <translation>Записване</translation>
    </message>
    <message>
        <source>Leave the stick where it is until this is done.</source>
        <translation>Флашката да не се вади, докато това не приключи.</translation>
    </message>
</context>
<context>
    <name>WorkPage</name>
    <message>
        <source>Waiting for a position</source>
        <translation>Изчакване на позиция</translation>
    </message>
    <message>
        <source>Map</source>
        <translation>Карта</translation>
    </message>
</context>
<context>
    <name>WorkingButton</name>
    <message>
        <source>Working</source>
        <translation>В работа</translation>
    </message>
    <message>
        <source>Not working</source>
        <translation>Не е в работа</translation>
    </message>
    <message>
        <source>Working. Switch the implement off</source>
        <translation>В работа. Изключване на инвентара</translation>
    </message>
    <message>
        <source>Not working. Switch the implement on</source>
        <translation>Не е в работа. Включване на инвентара</translation>
    </message>
</context>
</TS>
