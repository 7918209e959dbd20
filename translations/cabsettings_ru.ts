<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru" sourcelanguage="en">
<context>
    <name>About</name>
    <message>
        <source>Windows, files and connections</source>
        <translation>Окна, файлы и соединения</translation>
    </message>
    <message>
        <source>The file of the settings</source>
        <translation>Файл настроек</translation>
    </message>
    <message>
        <source>Profiles of settings</source>
        <translation>Профили настроек</translation>
    </message>
    <message>
        <source>Files for support</source>
        <translation>Файлы для техподдержки</translation>
    </message>
    <message>
        <source>Sunrise and sunset</source>
        <translation>Восход и закат солнца</translation>
    </message>
    <message>
        <source>Boundaries and zones</source>
        <translation>Границы и зоны</translation>
    </message>
    <message>
        <source>Software</source>
        <translation>Программа</translation>
    </message>
    <message>
        <source>The software of this display</source>
        <translation>Программа этого дисплея</translation>
    </message>
    <message>
        <source>Settings, units and logs</source>
        <translation>Настройки, единицы и журналы</translation>
    </message>
</context>
<context>
    <name>Clock</name>
    <message>
        <source>The clock of the machine; nothing has set it.</source>
        <translation>Часы устройства; они не установлены.</translation>
    </message>
    <message>
        <source>The clock was set by hand.</source>
        <translation>Часы установлены вручную.</translation>
    </message>
    <message>
        <source>The receiver sets the clock.</source>
        <translation>Часы устанавливает приёмник.</translation>
    </message>
    <message>
        <source>There is no such date or time.</source>
        <translation>Такой даты или такого времени нет.</translation>
    </message>
    <message>
        <source>The date is more than 68 years from the clock of the machine.</source>
        <translation>Дата отстоит от часов устройства более чем на 68 лет.</translation>
    </message>
    <message>
        <source>The clock could not be stored.</source>
        <translation>Не удалось сохранить установку часов.</translation>
    </message>
</context>
<context>
    <name>ClockEntry</name>
    <message>
        <source>Year</source>
        <translation>Год</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>Месяц</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>День</translation>
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
        <translation>Дата и время</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Время</translation>
    </message>
    <message>
        <source>%1: more</source>
        <translation>%1: больше</translation>
    </message>
    <message>
        <source>%1: less</source>
        <translation>%1: меньше</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>Задать</translation>
    </message>
</context>
<context>
    <name>ColorBar</name>
    <message>
        <source>%1: less</source>
        <translation>%1: меньше</translation>
    </message>
    <message>
        <source>%1: more</source>
        <translation>%1: больше</translation>
    </message>
</context>
<context>
    <name>ColorPage</name>
    <message>
        <source>Former</source>
        <translation>Прежний</translation>
    </message>
    <message>
        <source>Former colour</source>
        <translation>Прежний цвет</translation>
    </message>
    <message>
        <source>First value</source>
        <translation>Исходный</translation>
    </message>
    <message>
        <source>Digits of the colour</source>
        <translation>Цифры цвета</translation>
    </message>
    <message>
        <source>Hue</source>
        <translation>Тон</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Насыщенность</translation>
    </message>
    <message>
        <source>Lightness</source>
        <translation>Светлота</translation>
    </message>
</context>
<context>
    <name>ColorsPage</name>
    <message>
        <source>Day</source>
        <translation>День</translation>
    </message>
    <message>
        <source>Night</source>
        <translation>Ночь</translation>
    </message>
</context>
<context>
    <name>Contrasts</name>
    <message>
        <source>on %1: %2</source>
        <translation>на «%1»: %2</translation>
    </message>
    <message>
        <source>under %1: %2</source>
        <translation>под «%1»: %2</translation>
    </message>
    <message>
        <source>%1, too low: at least %2</source>
        <translation>%1, слишком мало: не менее %2</translation>
    </message>
</context>
<context>
    <name>Difference</name>
    <message>
        <source>Changed on both sides</source>
        <translation>Изменено с обеих сторон</translation>
    </message>
    <message>
        <source>Here</source>
        <translation>Здесь</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>Профиль</translation>
    </message>
</context>
<context>
    <name>Display</name>
    <message>
        <source>Restart</source>
        <translation>Перезапуск</translation>
    </message>
    <message>
        <source>The fonts of the display</source>
        <translation>Шрифты дисплея</translation>
    </message>
    <message>
        <source>The keyboard on the screen</source>
        <translation>Экранная клавиатура</translation>
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
        <translation>Поля</translation>
    </message>
    <message>
        <source>Receiver</source>
        <translation>Приёмник</translation>
    </message>
    <message>
        <source>Logs</source>
        <translation>Журналы</translation>
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
        <translation>%1 свободно из %2</translation>
    </message>
    <message>
        <source>Not known</source>
        <translation>Неизвестно</translation>
    </message>
    <message>
        <source>No stick</source>
        <translation>Нет флешки</translation>
    </message>
</context>
<context>
    <name>FieldsPage</name>
    <message>
        <source>Clients</source>
        <translation>Клиенты</translation>
    </message>
    <message>
        <source>New client</source>
        <translation>Новый клиент</translation>
    </message>
    <message>
        <source>No client yet.</source>
        <translation>Клиентов пока нет.</translation>
    </message>
    <message>
        <source>Farms</source>
        <translation>Хозяйства</translation>
    </message>
    <message>
        <source>New farm</source>
        <translation>Новое хозяйство</translation>
    </message>
    <message>
        <source>No farm yet.</source>
        <translation>Хозяйств пока нет.</translation>
    </message>
    <message>
        <source>Fields</source>
        <translation>Поля</translation>
    </message>
    <message>
        <source>New field</source>
        <translation>Новое поле</translation>
    </message>
    <message>
        <source>No field yet.</source>
        <translation>Полей пока нет.</translation>
    </message>
    <message>
        <source>Jobs</source>
        <translation>Задания</translation>
    </message>
    <message>
        <source>New job</source>
        <translation>Новое задание</translation>
    </message>
    <message>
        <source>No job yet.</source>
        <translation>Заданий пока нет.</translation>
    </message>
    <message>
        <source>Remove %1 with everything in it?</source>
        <translation>Удалить %1 со всем содержимым?</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Rename or remove %1</source>
        <translation>Переименовать/удалить: %1</translation>
    </message>
    <message>
        <source>Rename %1</source>
        <translation>Переименовать: %1</translation>
    </message>
    <message>
        <source>Remove everything</source>
        <translation>Удалить всё</translation>
    </message>
</context>
<context>
    <name>Host</name>
    <message>
        <source>Details for the support: %1</source>
        <translation>Сведения для техподдержки: %1</translation>
    </message>
    <message>
        <source>%3 Try: %4</source>
        <translation>%3 Вариант: %4</translation>
    </message>
    <message>
        <source>This name is not possible.</source>
        <translation>Такое имя невозможно.</translation>
    </message>
    <message>
        <source>The name is empty.</source>
        <translation>Имя не задано.</translation>
    </message>
    <message>
        <source>This name stands for another folder.</source>
        <translation>Это имя обозначает другую папку.</translation>
    </message>
    <message>
        <source>The name must not contain %1.</source>
        <translation>Имя не должно содержать %1.</translation>
    </message>
    <message>
        <source>The name contains a sign that cannot be seen.</source>
        <translation>Имя содержит невидимый знак.</translation>
    </message>
    <message>
        <source>The name contains a sign that is not complete.</source>
        <translation>Имя содержит неполный знак.</translation>
    </message>
    <message>
        <source>The name must not end in a full stop or a blank.</source>
        <translation>Имя не должно заканчиваться точкой или пробелом.</translation>
    </message>
    <message>
        <source>The name must not begin with a blank.</source>
        <translation>Имя не должно начинаться с пробела.</translation>
    </message>
    <message>
        <source>A stick cannot hold a file with this name.</source>
        <translation>Файл с таким именем на флешке невозможен.</translation>
    </message>
    <message>
        <source>The name is too long.</source>
        <translation>Имя слишком длинное.</translation>
    </message>
    <message>
        <source>%2 exists already.</source>
        <translation>Уже существует: %2.</translation>
    </message>
    <message numerus="yes">
        <source>%2 is active and holds %n file(s).</source>
        <translation>
            <numerusform>Используется: %2, внутри %n файл.</numerusform>
            <numerusform>Используется: %2, внутри %n файла.</numerusform>
            <numerusform>Используется: %2, внутри %n файлов.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%2 holds %n file(s).</source>
        <translation>
            <numerusform>%2: внутри %n файл.</numerusform>
            <numerusform>%2: внутри %n файла.</numerusform>
            <numerusform>%2: внутри %n файлов.</numerusform>
        </translation>
    </message>
    <message>
        <source>%2 is active.</source>
        <translation>Используется: %2.</translation>
    </message>
    <message>
        <source>%2 is no longer there.</source>
        <translation>Больше не существует: %2.</translation>
    </message>
    <message>
        <source>A stick cannot tell %2 from %3.</source>
        <translation>Флешка не различает %2 и %3.</translation>
    </message>
    <message>
        <source>Another program is working on the fields. Try again later.</source>
        <translation>С полями работает другая программа. Повторить попытку позже.</translation>
    </message>
    <message>
        <source>The selection could not be stored.</source>
        <translation>Не удалось сохранить выбор.</translation>
    </message>
    <message>
        <source>%1 is neither a file nor a folder.</source>
        <translation>%1 — не файл и не папка.</translation>
    </message>
    <message>
        <source>The file was edited or is damaged.</source>
        <translation>Файл изменён вручную или повреждён.</translation>
    </message>
    <message>
        <source>%1 cannot be read. %2</source>
        <translation>Не удалось прочитать: %1. %2</translation>
    </message>
    <message>
        <source>The file is of another kind.</source>
        <translation>Файл другого вида.</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>Файл пуст.</translation>
    </message>
    <message>
        <source>The end of the file is missing.</source>
        <translation>Нет конца файла.</translation>
    </message>
    <message>
        <source>The file is damaged.</source>
        <translation>Файл повреждён.</translation>
    </message>
    <message>
        <source>The file is not complete.</source>
        <translation>Файл неполный.</translation>
    </message>
    <message>
        <source>The file is from another version of the software.</source>
        <translation>Файл из другой версии программы.</translation>
    </message>
    <message>
        <source>The file has a value that is not possible: %2</source>
        <translation>В файле недопустимое значение: %2</translation>
    </message>
    <message>
        <source>The file has a value twice: %2</source>
        <translation>Настройка указана в файле дважды: %2</translation>
    </message>
    <message>
        <source>This address is not possible: %1</source>
        <translation>Такой адрес невозможен: %1</translation>
    </message>
    <message>
        <source>The device is not there.</source>
        <translation>Устройство не подключено.</translation>
    </message>
    <message>
        <source>It is not permitted, or another program uses it.</source>
        <translation>Нет разрешения, или занято другой программой.</translation>
    </message>
    <message>
        <source>Another program uses it.</source>
        <translation>Занято другой программой.</translation>
    </message>
    <message>
        <source>It cannot be read.</source>
        <translation>Не читается.</translation>
    </message>
    <message>
        <source>It was unplugged.</source>
        <translation>Разъём отсоединён.</translation>
    </message>
    <message>
        <source>It is not a serial device, or it cannot have this speed.</source>
        <translation>Это не последовательное устройство, или такая скорость для него невозможна.</translation>
    </message>
    <message>
        <source>The serial port has a fault (number %1).</source>
        <translation>Сбой последовательного порта (номер %1).</translation>
    </message>
    <message>
        <source>%1 is damaged or of another kind.</source>
        <translation>Повреждено или другого вида: %1.</translation>
    </message>
    <message>
        <source>%1 is from another version of the software.</source>
        <translation>Из другой версии программы: %1.</translation>
    </message>
    <message>
        <source>%1 is damaged.</source>
        <translation>Повреждено: %1.</translation>
    </message>
    <message>
        <source>%1 has other coordinates than WGS84.</source>
        <translation>Координаты не в WGS84: %1.</translation>
    </message>
    <message>
        <source>%1 is not complete. %2 is missing.</source>
        <translation>Неполно: %1. Не хватает: %2.</translation>
    </message>
    <message>
        <source>%1 has no areas.</source>
        <translation>Не содержит площадей: %1.</translation>
    </message>
    <message>
        <source>Another program uses %1.</source>
        <translation>Занято другой программой: %1.</translation>
    </message>
    <message>
        <source>A and B are too close together or too far apart.</source>
        <translation>A и B слишком близко или слишком далеко друг от друга.</translation>
    </message>
    <message>
        <source>Another program has locked it.</source>
        <translation>Заблокировано другой программой.</translation>
    </message>
    <message>
        <source>It is no longer there.</source>
        <translation>Больше не существует.</translation>
    </message>
    <message>
        <source>%1 is no longer there.</source>
        <translation>Больше не существует: %1.</translation>
    </message>
    <message>
        <source>%1 cannot be written. %2</source>
        <translation>Не удалось записать: %1. %2</translation>
    </message>
    <message>
        <source>%1 cannot be written.</source>
        <translation>Не удалось записать: %1.</translation>
    </message>
    <message>
        <source>The file of the settings has a fault (number %1).</source>
        <translation>Сбой файла настроек (номер %1).</translation>
    </message>
    <message>
        <source>%1 cannot be opened. %2</source>
        <translation>Не удалось открыть: %1. %2</translation>
    </message>
    <message>
        <source>%1 cannot be created. %2</source>
        <translation>Не удалось создать: %1. %2</translation>
    </message>
    <message>
        <source>%1 cannot be copied. %2</source>
        <translation>Не удалось скопировать: %1. %2</translation>
    </message>
    <message>
        <source>%1 cannot be renamed. %2</source>
        <translation>Не удалось переименовать: %1. %2</translation>
    </message>
    <message>
        <source>%1 cannot be removed. %2</source>
        <translation>Не удалось удалить: %1. %2</translation>
    </message>
    <message>
        <source>The drive is full.</source>
        <translation>Диск заполнен.</translation>
    </message>
    <message>
        <source>The drive has a fault.</source>
        <translation>Сбой диска.</translation>
    </message>
    <message>
        <source>The drive can only be read.</source>
        <translation>Диск доступен только для чтения.</translation>
    </message>
    <message>
        <source>It is not permitted.</source>
        <translation>Нет разрешения.</translation>
    </message>
    <message>
        <source>It cannot be opened.</source>
        <translation>Не открывается.</translation>
    </message>
    <message>
        <source>It is damaged.</source>
        <translation>Повреждено.</translation>
    </message>
    <message>
        <source>It is not there.</source>
        <translation>Отсутствует.</translation>
    </message>
    <message>
        <source>It exists already.</source>
        <translation>Уже существует.</translation>
    </message>
    <message>
        <source>It is a folder.</source>
        <translation>Это папка.</translation>
    </message>
    <message>
        <source>It is not a folder.</source>
        <translation>Это не папка.</translation>
    </message>
    <message>
        <source>The folder is not empty.</source>
        <translation>Папка не пуста.</translation>
    </message>
    <message>
        <source>The file is too large.</source>
        <translation>Файл слишком большой.</translation>
    </message>
    <message>
        <source>Too many files are open.</source>
        <translation>Открыто слишком много файлов.</translation>
    </message>
    <message>
        <source>There is too little memory.</source>
        <translation>Слишком мало памяти.</translation>
    </message>
    <message>
        <source>It is not possible there.</source>
        <translation>Там это невозможно.</translation>
    </message>
    <message>
        <source>The device refuses the connection.</source>
        <translation>Устройство отклоняет соединение.</translation>
    </message>
    <message>
        <source>The device has closed the connection.</source>
        <translation>Устройство закрыло соединение.</translation>
    </message>
    <message>
        <source>There is no device with this address.</source>
        <translation>Нет устройства с таким адресом.</translation>
    </message>
    <message>
        <source>The network cannot be reached.</source>
        <translation>Сеть недоступна.</translation>
    </message>
    <message>
        <source>The device does not answer.</source>
        <translation>Устройство не отвечает.</translation>
    </message>
    <message>
        <source>It is a link to another place.</source>
        <translation>Это ссылка на другое место.</translation>
    </message>
    <message>
        <source>There are too many links to it.</source>
        <translation>На это ведёт слишком много ссылок.</translation>
    </message>
</context>
<context>
    <name>ItemActions</name>
    <message>
        <source>Rename</source>
        <translation>Переименовать</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Удалить</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
</context>
<context>
    <name>ItemPage</name>
    <message>
        <source>New</source>
        <translation>Создать</translation>
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
        <translation>Не менее %1 %2</translation>
    </message>
    <message>
        <source>At most %1 %2</source>
        <translation>Не более %1 %2</translation>
    </message>
    <message>
        <source>This is not a number yet.</source>
        <translation>Это ещё не число.</translation>
    </message>
    <message>
        <source>Too large.
%1</source>
        <translation>Слишком большое.
%1</translation>
    </message>
    <message>
        <source>Too small.
%1</source>
        <translation>Слишком малое.
%1</translation>
    </message>
    <message>
        <source>now %1</source>
        <translation>сейчас %1</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>Задать</translation>
    </message>
    <message>
        <source>Decimal sign</source>
        <translation>Десятичный разделитель</translation>
    </message>
    <message>
        <source>Plus or minus</source>
        <translation>Плюс или минус</translation>
    </message>
    <message>
        <source>Remove the last sign</source>
        <translation>Удалить последний знак</translation>
    </message>
    <message>
        <source>C</source>
        <comment>key that clears the entry</comment>
        <translation>C</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Очистить</translation>
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
        <translation>Поставить здесь A — первый конец линии</translation>
    </message>
    <message>
        <source>B</source>
        <comment>the other end of the guidance line</comment>
        <translation>B</translation>
    </message>
    <message>
        <source>Set B, the other end of the line, here</source>
        <translation>Поставить здесь B — второй конец линии</translation>
    </message>
    <message>
        <source>Set a flag here</source>
        <translation>Поставить здесь флажок</translation>
    </message>
</context>
<context>
    <name>LineChoice</name>
    <message>
        <source>New</source>
        <translation>Создать</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
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
        <translation>%1 влево</translation>
    </message>
    <message>
        <source>%1 to the right</source>
        <translation>%1 вправо</translation>
    </message>
</context>
<context>
    <name>LockLayer</name>
    <message>
        <source>The screen is locked. Hold the button to unlock it.</source>
        <translation>Экран заблокирован. Для разблокировки удерживать кнопку.</translation>
    </message>
    <message>
        <source>Unlock</source>
        <translation>Разблокировать</translation>
    </message>
</context>
<context>
    <name>LogsPage</name>
    <message>
        <source>Logs</source>
        <translation>Журналы</translation>
    </message>
    <message>
        <source>Events</source>
        <translation>События</translation>
    </message>
    <message>
        <source>Receiver</source>
        <translation>Приёмник</translation>
    </message>
    <message>
        <source>Go on</source>
        <translation>Продолжить</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Пауза</translation>
    </message>
    <message>
        <source>No line yet.</source>
        <translation>Строк пока нет.</translation>
    </message>
</context>
<context>
    <name>MachinePage</name>
    <message>
        <source>Implement width</source>
        <translation>Ширина захвата</translation>
    </message>
    <message>
        <source>Decides the guidance lines beside each other, and the area done</source>
        <translation>Определяет соседние направляющие линии и обработанную площадь</translation>
    </message>
    <message>
        <source>Implement behind the antenna</source>
        <translation>Орудие позади антенны</translation>
    </message>
    <message>
        <source>How far the ground is covered behind the vehicle&apos;s place</source>
        <translation>На сколько позади машины обрабатывается поле</translation>
    </message>
</context>
<context>
    <name>Main</name>
    <message>
        <source>Cab display</source>
        <translation>Дисплей кабины</translation>
    </message>
</context>
<context>
    <name>MapButtons</name>
    <message>
        <source>Zoom in</source>
        <translation>Увеличить</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Уменьшить</translation>
    </message>
    <message>
        <source>The heading is up. Turn north up</source>
        <translation>Курс вверху. Повернуть севером вверх</translation>
    </message>
    <message>
        <source>North is up. Turn the heading up</source>
        <translation>Север вверху. Повернуть курсом вверх</translation>
    </message>
    <message>
        <source>Centre the vehicle</source>
        <translation>Машину в центр</translation>
    </message>
</context>
<context>
    <name>NameEntry</name>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>Задать</translation>
    </message>
</context>
<context>
    <name>PageTurner</name>
    <message>
        <source>Rows above</source>
        <translation>Строки выше</translation>
    </message>
    <message>
        <source>Rows below</source>
        <translation>Строки ниже</translation>
    </message>
</context>
<context>
    <name>ParameterRow</name>
    <message>
        <source>%1: back to the first value</source>
        <translation>%1: вернуть исходное значение</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Открыть</translation>
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
        <translation>абсолютный путь, который оканчивается на «/» и не равен «/»</translation>
    </message>
    <message>
        <source>an absolute path</source>
        <translation>абсолютный путь</translation>
    </message>
    <message>
        <source>a UUID in small letters, such as 6ba7b810-9dad-41d1-80b4-00c04fd430c8</source>
        <translation>UUID строчными буквами, например 6ba7b810-9dad-41d1-80b4-00c04fd430c8</translation>
    </message>
    <message>
        <source>simulator, tcp://HOST:PORT, serial:///dev/NAME?baud=N or an absolute path</source>
        <translation>simulator, tcp://HOST:PORT, serial:///dev/NAME?baud=N или абсолютный путь</translation>
    </message>
    <message>
        <source>true or false</source>
        <translation>true или false</translation>
    </message>
    <message>
        <source>a time in UTC, such as 2026-03-05T13:05:09Z</source>
        <translation>время в UTC, например 2026-03-05T13:05:09Z</translation>
    </message>
    <message>
        <source>a colour: #rrggbb, #aarrggbb or a name such as navy</source>
        <translation>цвет: #rrggbb, #aarrggbb или имя, например navy</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>от %1 до %2</translation>
    </message>
    <message>
        <source>Not a whole number.</source>
        <translation>Не целое число.</translation>
    </message>
    <message>
        <source>Below the least value.</source>
        <translation>Меньше наименьшего значения.</translation>
    </message>
    <message>
        <source>Above the greatest value.</source>
        <translation>Больше наибольшего значения.</translation>
    </message>
    <message>
        <source>This cannot be the name of a file. Try: %1</source>
        <translation>Такое имя файла невозможно. Вариант: %1</translation>
    </message>
    <message>
        <source>Not accepted. Expected: %1.</source>
        <translation>Не принято. Ожидается: %1.</translation>
    </message>
    <message>
        <source>a name without %1</source>
        <translation>имя без %1</translation>
    </message>
    <message>
        <source>a whole number</source>
        <translation>целое число</translation>
    </message>
    <message>
        <source>At least %1</source>
        <translation>Не менее %1</translation>
    </message>
</context>
<context>
    <name>Parameters</name>
    <message>
        <source>the operator has chosen the offset from UTC; GPS time keeps it instead of computing it</source>
        <translation>оператор выбрал смещение от UTC; время GPS сохраняет его, а не вычисляет</translation>
    </message>
    <message>
        <source>metric units; otherwise US or English units</source>
        <translation>метрические единицы; иначе американские или английские</translation>
    </message>
    <message>
        <source>US measures when units are not metric; otherwise English measures</source>
        <translation>американские меры, если единицы не метрические; иначе английские</translation>
    </message>
    <message>
        <source>positions in degrees, minutes and seconds; otherwise in decimal degrees</source>
        <translation>позиции в градусах, минутах и секундах; иначе в десятичных градусах</translation>
    </message>
    <message>
        <source>24-hour clock; otherwise 12 hours with am and pm</source>
        <translation>24-часовой формат; иначе 12 часов с am и pm</translation>
    </message>
    <message>
        <source>dates with the month before the day</source>
        <translation>даты с месяцем перед днём</translation>
    </message>
    <message>
        <source>colours for day; otherwise for night</source>
        <translation>дневные цвета; иначе ночные</translation>
    </message>
    <message>
        <source>the map turns with the vehicle; otherwise north is up</source>
        <translation>карта поворачивается вместе с машиной; иначе север вверху</translation>
    </message>
    <message>
        <source>unit of pressures</source>
        <translation>единица давления</translation>
    </message>
    <message>
        <source>unit of areas, and of rates per area</source>
        <translation>единица площади и норм на площадь</translation>
    </message>
    <message>
        <source>unit of short distances: widths, offsets</source>
        <translation>единица малых расстояний: ширина, смещения</translation>
    </message>
    <message>
        <source>unit of granular volumes</source>
        <translation>единица объёма сыпучих</translation>
    </message>
    <message>
        <source>unit of granular densities</source>
        <translation>единица плотности сыпучих</translation>
    </message>
    <message>
        <source>unit of liquid volumes, flows and rates</source>
        <translation>единица объёма, расхода и норм жидкости</translation>
    </message>
    <message>
        <source>language of the display&apos;s texts; a change needs a restart</source>
        <translation>язык текстов дисплея; для изменения нужен перезапуск</translation>
    </message>
    <message>
        <source>decimal point or comma; a change needs a restart</source>
        <translation>десятичная точка или запятая; для изменения нужен перезапуск</translation>
    </message>
    <message>
        <source>when the colours switch between day and night: only by hand, at sunrise and sunset, or with the sun 6 degrees below the horizon</source>
        <translation>когда цвета переключаются между днём и ночью: только вручную, на восходе и закате или когда солнце на 6 градусов ниже горизонта</translation>
    </message>
    <message>
        <source>what set the display&apos;s clock</source>
        <translation>чем установлены часы дисплея</translation>
    </message>
    <message>
        <source>local time less UTC, whole hours</source>
        <translation>местное время минус UTC, целые часы</translation>
    </message>
    <message>
        <source>local time less UTC, minutes beyond the hours, with the sign of the hours</source>
        <translation>местное время минус UTC, минуты сверх часов, со знаком часов</translation>
    </message>
    <message>
        <source>brightness of the lightbar at night</source>
        <translation>яркость световой панели ночью</translation>
    </message>
    <message>
        <source>brightness of the screen at night</source>
        <translation>яркость экрана ночью</translation>
    </message>
    <message>
        <source>brightness of the button lights at night</source>
        <translation>яркость подсветки кнопок ночью</translation>
    </message>
    <message>
        <source>4: implements are kept in the folder of their vehicle; other numbers: in their own folder</source>
        <translation>4: орудия хранятся в папке своей машины; другие числа: в отдельной папке</translation>
    </message>
    <message>
        <source>number of the next file of the NMEA log</source>
        <translation>номер следующего файла журнала NMEA</translation>
    </message>
    <message>
        <source>number of the next file of the user log</source>
        <translation>номер следующего файла журнала оператора</translation>
    </message>
    <message>
        <source>the display&apos;s clock less UTC</source>
        <translation>часы дисплея минус UTC</translation>
    </message>
    <message>
        <source>folder of the internal drive; by default in the data folder</source>
        <translation>папка внутреннего диска; по умолчанию в папке данных</translation>
    </message>
    <message>
        <source>mount point of the removable drive; by default in the data folder</source>
        <translation>точка подключения съёмного диска; по умолчанию в папке данных</translation>
    </message>
    <message>
        <source>the identity of the terminal, which its profiles carry</source>
        <translation>идентификатор терминала, который записан в его профилях</translation>
    </message>
    <message>
        <source>where the sentences of the receiver come from</source>
        <translation>откуда приходят сообщения приёмника</translation>
    </message>
    <message>
        <source>the figures beside the map, in this order</source>
        <translation>показатели рядом с картой, в этом порядке</translation>
    </message>
    <message>
        <source>the newest time of a receiver, as of the last day on which one was seen</source>
        <translation>последнее время приёмника за последний день, когда приёмник был на связи</translation>
    </message>
    <message>
        <source>when the sun switched the colours last</source>
        <translation>когда солнце переключило цвета в последний раз</translation>
    </message>
    <message>
        <source>the active job</source>
        <translation>активное задание</translation>
    </message>
    <message>
        <source>the active boundary</source>
        <translation>активная граница</translation>
    </message>
    <message>
        <source>the active straight guidance line</source>
        <translation>активная прямая направляющая линия</translation>
    </message>
    <message>
        <source>the active pivot</source>
        <translation>активный круг</translation>
    </message>
    <message>
        <source>the active guidance curve</source>
        <translation>активная направляющая кривая</translation>
    </message>
    <message>
        <source>the active shape file of optimal lines</source>
        <translation>активный shape-файл оптимальных линий</translation>
    </message>
    <message>
        <source>the active shape file of project lines</source>
        <translation>активный shape-файл линий проекта</translation>
    </message>
    <message>
        <source>the active shape file of zones</source>
        <translation>активный shape-файл зон</translation>
    </message>
    <message>
        <source>the active steering profile</source>
        <translation>активный профиль руления</translation>
    </message>
    <message>
        <source>the active implement</source>
        <translation>активное орудие</translation>
    </message>
    <message>
        <source>the active vehicle</source>
        <translation>активная машина</translation>
    </message>
    <message>
        <source>the active sprayer</source>
        <translation>активный опрыскиватель</translation>
    </message>
    <message>
        <source>the active boom leveller</source>
        <translation>активное выравнивание штанги</translation>
    </message>
    <message>
        <source>the active client</source>
        <translation>активный клиент</translation>
    </message>
    <message>
        <source>the active farm</source>
        <translation>активное хозяйство</translation>
    </message>
    <message>
        <source>the active field</source>
        <translation>активное поле</translation>
    </message>
    <message>
        <source>Measures</source>
        <translation>Система мер</translation>
    </message>
    <message>
        <source>Gallons and bushels</source>
        <translation>Галлоны и бушели</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>Площадь</translation>
    </message>
    <message>
        <source>Pressure</source>
        <translation>Давление</translation>
    </message>
    <message>
        <source>Short distances</source>
        <translation>Малые расстояния</translation>
    </message>
    <message>
        <source>Liquid</source>
        <translation>Жидкость</translation>
    </message>
    <message>
        <source>Granular volume</source>
        <translation>Объём сыпучих</translation>
    </message>
    <message>
        <source>Granular density</source>
        <translation>Плотность сыпучих</translation>
    </message>
    <message>
        <source>Positions</source>
        <translation>Позиции</translation>
    </message>
    <message>
        <source>Rate per travel</source>
        <translation>Норма на длину пути</translation>
    </message>
    <message>
        <source>Basis of rates</source>
        <translation>Основа норм</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Язык</translation>
    </message>
    <message>
        <source>Decimal sign</source>
        <translation>Десятичный разделитель</translation>
    </message>
    <message>
        <source>Time of day</source>
        <translation>Формат времени</translation>
    </message>
    <message>
        <source>Dates</source>
        <translation>Формат даты</translation>
    </message>
    <message>
        <source>Time zone set by hand</source>
        <translation>Часовой пояс вручную</translation>
    </message>
    <message>
        <source>Time zone, hours</source>
        <translation>Часовой пояс, часы</translation>
    </message>
    <message>
        <source>Time zone, minutes</source>
        <translation>Часовой пояс, минуты</translation>
    </message>
    <message>
        <source>Clock less UTC</source>
        <translation>Часы минус UTC</translation>
    </message>
    <message>
        <source>Source of the time</source>
        <translation>Источник времени</translation>
    </message>
    <message>
        <source>Source of the time since</source>
        <translation>Источник времени с</translation>
    </message>
    <message>
        <source>Newest receiver time</source>
        <translation>Последнее время приёмника</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>Цвета</translation>
    </message>
    <message>
        <source>Day and night</source>
        <translation>День и ночь</translation>
    </message>
    <message>
        <source>Map direction</source>
        <translation>Ориентация карты</translation>
    </message>
    <message>
        <source>Tiles</source>
        <translation>Плитки</translation>
    </message>
    <message>
        <source>Light bar at night</source>
        <translation>Световая панель ночью</translation>
    </message>
    <message>
        <source>Screen at night</source>
        <translation>Экран ночью</translation>
    </message>
    <message>
        <source>Button lights at night</source>
        <translation>Подсветка кнопок ночью</translation>
    </message>
    <message>
        <source>Switched by the sun</source>
        <translation>Переключено по солнцу</translation>
    </message>
    <message>
        <source>Client</source>
        <translation>Клиент</translation>
    </message>
    <message>
        <source>Farm</source>
        <translation>Хозяйство</translation>
    </message>
    <message>
        <source>Field</source>
        <translation>Поле</translation>
    </message>
    <message>
        <source>Job</source>
        <translation>Задание</translation>
    </message>
    <message>
        <source>Vehicle</source>
        <translation>Машина</translation>
    </message>
    <message>
        <source>Implement</source>
        <translation>Орудие</translation>
    </message>
    <message>
        <source>Sprayer</source>
        <translation>Опрыскиватель</translation>
    </message>
    <message>
        <source>Boom leveller</source>
        <translation>Выравнивание штанги</translation>
    </message>
    <message>
        <source>Steering profile</source>
        <translation>Профиль руления</translation>
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
        <translation>Круг</translation>
    </message>
    <message>
        <source>Curve</source>
        <translation>Кривая</translation>
    </message>
    <message>
        <source>Optimal lines</source>
        <translation>Оптимальные линии</translation>
    </message>
    <message>
        <source>Project lines</source>
        <translation>Линии проекта</translation>
    </message>
    <message>
        <source>Zones</source>
        <translation>Зоны</translation>
    </message>
    <message>
        <source>Receiver address</source>
        <translation>Адрес приёмника</translation>
    </message>
    <message>
        <source>Internal drive</source>
        <translation>Внутренний диск</translation>
    </message>
    <message>
        <source>Stick</source>
        <translation>Флешка</translation>
    </message>
    <message>
        <source>Implement folder</source>
        <translation>Папка орудия</translation>
    </message>
    <message>
        <source>Next NMEA log</source>
        <translation>Следующий журнал NMEA</translation>
    </message>
    <message>
        <source>Next user log</source>
        <translation>Следующий журнал оператора</translation>
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
        <translation>Цвет текстов</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Заголовок</translation>
    </message>
    <message>
        <source>Colour of titles</source>
        <translation>Цвет заголовков</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Фон</translation>
    </message>
    <message>
        <source>Colour of the background</source>
        <translation>Цвет фона</translation>
    </message>
    <message>
        <source>Button</source>
        <translation>Кнопка</translation>
    </message>
    <message>
        <source>Colour of buttons</source>
        <translation>Цвет кнопок</translation>
    </message>
    <message>
        <source>Button text</source>
        <translation>Текст кнопки</translation>
    </message>
    <message>
        <source>Colour of texts on buttons</source>
        <translation>Цвет текстов на кнопках</translation>
    </message>
    <message>
        <source>Map</source>
        <translation>Карта</translation>
    </message>
    <message>
        <source>Colour of the map&apos;s ground</source>
        <translation>Цвет основы карты</translation>
    </message>
    <message>
        <source>Grid</source>
        <translation>Сетка</translation>
    </message>
    <message>
        <source>Colour of the map&apos;s grid</source>
        <translation>Цвет сетки карты</translation>
    </message>
    <message>
        <source>Coverage</source>
        <translation>Обработано</translation>
    </message>
    <message>
        <source>Colour of covered ground</source>
        <translation>Цвет обработанной площади</translation>
    </message>
    <message>
        <source>Vehicle on the map</source>
        <translation>Машина на карте</translation>
    </message>
    <message>
        <source>Colour of the vehicle</source>
        <translation>Цвет машины</translation>
    </message>
    <message>
        <source>Guidance line</source>
        <translation>Направляющая</translation>
    </message>
    <message>
        <source>Colour of the guidance line</source>
        <translation>Цвет направляющей</translation>
    </message>
    <message>
        <source>Cross hairs</source>
        <translation>Перекрестие</translation>
    </message>
    <message>
        <source>Colour of the cross hairs</source>
        <translation>Цвет перекрестия</translation>
    </message>
    <message>
        <source>Outer boundary</source>
        <translation>Внешняя граница</translation>
    </message>
    <message>
        <source>Colour of the outer boundary of the field</source>
        <translation>Цвет внешней границы поля</translation>
    </message>
    <message>
        <source>Inner boundary</source>
        <translation>Внутренняя граница</translation>
    </message>
    <message>
        <source>Colour of boundaries within the field</source>
        <translation>Цвет границ внутри поля</translation>
    </message>
    <message>
        <source>Other boundaries</source>
        <translation>Другие границы</translation>
    </message>
    <message>
        <source>Colour of boundaries that are not active</source>
        <translation>Цвет неактивных границ</translation>
    </message>
    <message>
        <source>Exclusion zone</source>
        <translation>Запретная зона</translation>
    </message>
    <message>
        <source>Colour of zones to keep out of</source>
        <translation>Цвет запретных зон</translation>
    </message>
    <message>
        <source>Background picture</source>
        <translation>Фоновое изображение</translation>
    </message>
    <message>
        <source>Number of the background picture</source>
        <translation>Номер фонового изображения</translation>
    </message>
    <message>
        <source>what the sprayer&apos;s rates are related to</source>
        <translation>к чему относятся нормы опрыскивателя</translation>
    </message>
    <message>
        <source>liquid rates per 100 m or 100 yd of travel, while travel is their basis</source>
        <translation>нормы жидкости на 100 м или 100 ярдов пути, пока их основа — путь</translation>
    </message>
    <message>
        <source>since when the clock has its time from there</source>
        <translation>с какого момента время часов оттуда</translation>
    </message>
    <message>
        <source>Metric</source>
        <translation>Метрическая</translation>
    </message>
    <message>
        <source>US or English</source>
        <translation>Амер. или англ.</translation>
    </message>
    <message>
        <source>US</source>
        <translation>США</translation>
    </message>
    <message>
        <source>English</source>
        <translation>Английские</translation>
    </message>
    <message>
        <source>Deg., min., s</source>
        <translation>Град., мин., с</translation>
    </message>
    <message>
        <source>Degrees</source>
        <translation>Градусы</translation>
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
        <translation>Сначала месяц</translation>
    </message>
    <message>
        <source>Day first</source>
        <translation>Сначала день</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>День</translation>
    </message>
    <message>
        <source>Night</source>
        <translation>Ночь</translation>
    </message>
    <message>
        <source>Heading up</source>
        <translation>По курсу</translation>
    </message>
    <message>
        <source>North up</source>
        <translation>Север вверху</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Вкл.</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Выкл.</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Да</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Нет</translation>
    </message>
    <message>
        <source>Travel</source>
        <translation>Путь</translation>
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
        <translation>Гектар</translation>
    </message>
    <message>
        <source>Acre</source>
        <translation>Акр</translation>
    </message>
    <message>
        <source>m, mm</source>
        <translation>м, мм</translation>
    </message>
    <message>
        <source>Inch</source>
        <translation>Дюйм</translation>
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
        <translation>Бушель США</translation>
    </message>
    <message>
        <source>UK bushel</source>
        <translation>Англ. бушель</translation>
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
        <translation>кг/буш.США</translation>
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
        <translation>Запятая</translation>
    </message>
    <message>
        <source>By hand</source>
        <translation>Вручную</translation>
    </message>
    <message>
        <source>Sunset</source>
        <translation>Закат</translation>
    </message>
    <message>
        <source>Twilight</source>
        <translation>Сумерки</translation>
    </message>
    <message>
        <source>Not set</source>
        <translation>Не задано</translation>
    </message>
    <message>
        <source>Operator</source>
        <translation>Оператор</translation>
    </message>
    <message>
        <source>Receiver</source>
        <translation>Приёмник</translation>
    </message>
    <message>
        <source>Rate</source>
        <translation>Норма</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Скорость</translation>
    </message>
    <message>
        <source>Area done</source>
        <translation>Обработанная площадь</translation>
    </message>
    <message>
        <source>Area left</source>
        <translation>Остаток площади</translation>
    </message>
    <message>
        <source>Productivity</source>
        <translation>Производительность</translation>
    </message>
    <message>
        <source>Flow</source>
        <translation>Расход</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Температура</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>Расстояние</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Позиция</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Время</translation>
    </message>
    <message>
        <source>Units</source>
        <translation>Единицы</translation>
    </message>
    <message>
        <source>Rates</source>
        <translation>Нормы</translation>
    </message>
    <message>
        <source>Region</source>
        <translation>Регион</translation>
    </message>
    <message>
        <source>Clock</source>
        <translation>Часы</translation>
    </message>
    <message>
        <source>Colours of the schemes</source>
        <translation>Цвета схем</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Дисплей</translation>
    </message>
    <message>
        <source>Selections</source>
        <translation>Выбор</translation>
    </message>
    <message>
        <source>Storage</source>
        <translation>Память</translation>
    </message>
    <message>
        <source>Logs</source>
        <translation>Журналы</translation>
    </message>
    <message>
        <source>Terminal</source>
        <translation>Терминал</translation>
    </message>
    <message>
        <source>%1, by day</source>
        <translation>%1, днём</translation>
    </message>
    <message>
        <source>%1, by night</source>
        <translation>%1, ночью</translation>
    </message>
</context>
<context>
    <name>Problems</name>
    <message>
        <source>The logs lose lines: their drive is full or cannot be written.</source>
        <translation>Журналы теряют строки: их диск заполнен или недоступен для записи.</translation>
    </message>
    <message>
        <source>Recording is off, because there is too little room.</source>
        <translation>Запись выключена: слишком мало места.</translation>
    </message>
    <message>
        <source>Changes of settings are not stored yet. %1</source>
        <translation>Изменения настроек ещё не сохранены. %1</translation>
    </message>
    <message>
        <source>The drive of the terminal is nearly full. Free: %1</source>
        <translation>Диск терминала почти заполнен. Свободно: %1</translation>
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
        <translation>Эти настройки на дисплее уже есть.</translation>
    </message>
    <message>
        <source>Changed here and in the profile</source>
        <translation>Изменено здесь и в профиле</translation>
    </message>
    <message>
        <source>Which value the settings below shall have</source>
        <translation>Какое значение получат настройки ниже</translation>
    </message>
    <message>
        <source>Ours</source>
        <translation>С дисплея</translation>
    </message>
    <message>
        <source>Theirs</source>
        <translation>Из профиля</translation>
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
        <translation>Экспорт</translation>
    </message>
    <message>
        <source>There is no profile on the stick.</source>
        <translation>На флешке нет профилей.</translation>
    </message>
    <message>
        <source>No stick is plugged in.</source>
        <translation>Флешка не вставлена.</translation>
    </message>
    <message>
        <source>Name of the profile</source>
        <translation>Имя профиля</translation>
    </message>
</context>
<context>
    <name>Quantities</name>
    <message>
        <source>Area</source>
        <translation>Площадь</translation>
    </message>
    <message>
        <source>Productivity</source>
        <translation>Производительность</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Скорость</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>Расстояние</translation>
    </message>
    <message>
        <source>Small distance</source>
        <translation>Малое расстояние</translation>
    </message>
    <message>
        <source>Travelled distance</source>
        <translation>Пройденное расстояние</translation>
    </message>
    <message>
        <source>Altitude</source>
        <translation>Высота</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Температура</translation>
    </message>
    <message>
        <source>Pressure</source>
        <translation>Давление</translation>
    </message>
    <message>
        <source>Rate</source>
        <translation>Норма</translation>
    </message>
    <message>
        <source>Requested rate</source>
        <translation>Заданная норма</translation>
    </message>
    <message>
        <source>Rate and error</source>
        <translation>Норма и отклонение</translation>
    </message>
    <message>
        <source>Small rate</source>
        <translation>Малая норма</translation>
    </message>
    <message>
        <source>Flow</source>
        <translation>Расход</translation>
    </message>
    <message>
        <source>Small flow</source>
        <translation>Малый расход</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Объём</translation>
    </message>
    <message>
        <source>Small volume</source>
        <translation>Малый объём</translation>
    </message>
    <message>
        <source>Granular volume</source>
        <translation>Объём сыпучих</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>Масса</translation>
    </message>
    <message>
        <source>Weight per area</source>
        <translation>Масса на площадь</translation>
    </message>
    <message>
        <source>Weight per area and error</source>
        <translation>Масса на площадь и отклонение</translation>
    </message>
    <message>
        <source>Discharge</source>
        <translation>Подача</translation>
    </message>
    <message>
        <source>Nitrogen</source>
        <translation>Азот</translation>
    </message>
    <message>
        <source>Nitrogen per area</source>
        <translation>Азот на площадь</translation>
    </message>
    <message>
        <source>Seeds per area</source>
        <translation>Семян на площадь</translation>
    </message>
    <message>
        <source>Density</source>
        <translation>Плотность</translation>
    </message>
    <message>
        <source>Granular density</source>
        <translation>Плотность сыпучих</translation>
    </message>
    <message>
        <source>Volume per revolution</source>
        <translation>Объём на оборот</translation>
    </message>
    <message>
        <source>Weight per revolution</source>
        <translation>Масса на оборот</translation>
    </message>
    <message>
        <source>Flow meter</source>
        <translation>Расходомер</translation>
    </message>
    <message>
        <source>Wheel sensor</source>
        <translation>Датчик колеса</translation>
    </message>
    <message>
        <source>Speed sensor</source>
        <translation>Датчик скорости</translation>
    </message>
    <message>
        <source>Latitude</source>
        <translation>Широта</translation>
    </message>
    <message>
        <source>Longitude</source>
        <translation>Долгота</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Длительность</translation>
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
        <translation>Отмена</translation>
    </message>
</context>
<context>
    <name>RateTile</name>
    <message>
        <source>set %1</source>
        <comment>the rate that is set</comment>
        <translation>задано %1</translation>
    </message>
</context>
<context>
    <name>Receiver</name>
    <message>
        <source>Off</source>
        <translation>Выкл.</translation>
    </message>
    <message>
        <source>Connecting</source>
        <translation>Соединяется</translation>
    </message>
    <message>
        <source>Receiving</source>
        <translation>Приём</translation>
    </message>
    <message>
        <source>Silent</source>
        <translation>Молчит</translation>
    </message>
    <message>
        <source>Lost</source>
        <translation>Потерян</translation>
    </message>
    <message>
        <source>Ended</source>
        <translation>Окончено</translation>
    </message>
    <message>
        <source>No fix</source>
        <translation>Нет позиции</translation>
    </message>
    <message>
        <source>RTK float</source>
        <translation>RTK Float</translation>
    </message>
    <message>
        <source>Estimated</source>
        <translation>Расчётная</translation>
    </message>
    <message>
        <source>By hand</source>
        <translation>Вручную</translation>
    </message>
    <message>
        <source>Simulated</source>
        <translation>Симуляция</translation>
    </message>
    <message>
        <source>The receiver sends nothing.</source>
        <translation>Приёмник ничего не передаёт.</translation>
    </message>
    <message>
        <source>The receiver is lost and is being looked for. %1</source>
        <translation>Приёмник потерян, идёт поиск. %1</translation>
    </message>
    <message>
        <source>The receiver cannot be read. %1</source>
        <translation>Приёмник не читается. %1</translation>
    </message>
    <message>
        <source>The simulated field is done.</source>
        <translation>Поле симулятора обработано.</translation>
    </message>
    <message>
        <source>The recording of the receiver is over.</source>
        <translation>Запись приёмника закончилась.</translation>
    </message>
</context>
<context>
    <name>ReceiverPage</name>
    <message>
        <source>Receiver</source>
        <translation>Приёмник</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Стоп</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Пуск</translation>
    </message>
    <message>
        <source>Simulator</source>
        <translation>Симулятор</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Файл</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Сеть</translation>
    </message>
    <message>
        <source>Serial</source>
        <translation>COM-порт</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Адрес</translation>
    </message>
    <message>
        <source>Fix</source>
        <translation>Тип позиции</translation>
    </message>
    <message>
        <source>Age</source>
        <translation>Возраст</translation>
    </message>
    <message>
        <source>Satellites</source>
        <translation>Спутники</translation>
    </message>
    <message>
        <source>HDOP</source>
        <translation>HDOP</translation>
    </message>
    <message>
        <source>Time (UTC)</source>
        <translation>Время (UTC)</translation>
    </message>
    <message>
        <source>Lines</source>
        <translation>Строки</translation>
    </message>
    <message>
        <source>Sentences</source>
        <translation>Сообщения</translation>
    </message>
    <message>
        <source>Bad checksums</source>
        <translation>Ошибки контр. сумм</translation>
    </message>
    <message>
        <source>Damaged lines</source>
        <translation>Сбойные строки</translation>
    </message>
    <message>
        <source>Address of the receiver</source>
        <translation>Адрес приёмника</translation>
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
        <translation>Время</translation>
    </message>
    <message>
        <source>Time zone</source>
        <translation>Часовой пояс</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>Дата и время</translation>
    </message>
    <message>
        <source>Set by hand</source>
        <translation>Задать вручную</translation>
    </message>
</context>
<context>
    <name>SearchPage</name>
    <message>
        <source>Search</source>
        <translation>Поиск</translation>
    </message>
    <message>
        <source>Words of a setting</source>
        <translation>Поиск настройки</translation>
    </message>
    <message>
        <source>No setting has these words.</source>
        <translation>Настройки с такими словами нет.</translation>
    </message>
</context>
<context>
    <name>SettingsPage</name>
    <message>
        <source>Units</source>
        <translation>Единицы</translation>
    </message>
    <message>
        <source>Region</source>
        <translation>Регион</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>Цвета</translation>
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
        <translation>Память</translation>
    </message>
    <message>
        <source>About</source>
        <translation>О программе</translation>
    </message>
    <message>
        <source>Tiles</source>
        <translation>Плитки</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>Профили</translation>
    </message>
    <message>
        <source>All settings</source>
        <translation>Все настройки</translation>
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
        <translation>Поиск</translation>
    </message>
</context>
<context>
    <name>Sizes</name>
    <message numerus="yes">
        <source>%n byte(s)</source>
        <translation>
            <numerusform>%n байт</numerusform>
            <numerusform>%n байта</numerusform>
            <numerusform>%n байт</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 kB</source>
        <translation>%1 кБ</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1 МБ</translation>
    </message>
    <message>
        <source>%1 GB</source>
        <translation>%1 ГБ</translation>
    </message>
    <message>
        <source>%1 TB</source>
        <translation>%1 ТБ</translation>
    </message>
</context>
<context>
    <name>StateBand</name>
    <message>
        <source>No job</source>
        <translation>Нет задания</translation>
    </message>
    <message>
        <source>Receiver: %1</source>
        <translation>Приёмник: %1</translation>
    </message>
    <message>
        <source>The stick is plugged in</source>
        <translation>Флешка вставлена</translation>
    </message>
    <message>
        <source>Lock the screen</source>
        <translation>Заблокировать экран</translation>
    </message>
    <message>
        <source>Colours of the night</source>
        <translation>Ночные цвета</translation>
    </message>
    <message>
        <source>Colours of the day</source>
        <translation>Дневные цвета</translation>
    </message>
</context>
<context>
    <name>StoragePage</name>
    <message>
        <source>Open</source>
        <translation>Открыть</translation>
    </message>
    <message>
        <source>Internal drive</source>
        <translation>Внутренний диск</translation>
    </message>
    <message>
        <source>Stick</source>
        <translation>Флешка</translation>
    </message>
    <message>
        <source>No stick is plugged in.</source>
        <translation>Флешка не вставлена.</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>ОЗУ</translation>
    </message>
    <message>
        <source>Logs</source>
        <translation>Журналы</translation>
    </message>
    <message>
        <source>Writes all log files to the stick</source>
        <translation>Записывает все файлы журналов на флешку</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Экспорт</translation>
    </message>
    <message>
        <source>Export the logs</source>
        <translation>Экспорт журналов</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>Профили</translation>
    </message>
    <message>
        <source>Takes the settings to another display, or brings them back from the stick</source>
        <translation>Переносит настройки на другой дисплей или возвращает их с флешки</translation>
    </message>
    <message>
        <source>Open the profiles</source>
        <translation>Открыть профили</translation>
    </message>
    <message>
        <source>Support</source>
        <translation>Техподдержка</translation>
    </message>
    <message>
        <source>Writes logs, settings and versions in one file; without the names of clients, farms and fields</source>
        <translation>Записывает журналы, настройки и версии в один файл; без имён клиентов, хозяйств и полей</translation>
    </message>
    <message>
        <source>Write</source>
        <translation>Записать</translation>
    </message>
    <message>
        <source>Write the file for support without names</source>
        <translation>Записать файл для техподдержки без имён</translation>
    </message>
    <message>
        <source>Support, with names</source>
        <translation>Техподдержка, с именами</translation>
    </message>
    <message>
        <source>The same file, with all names and places</source>
        <translation>Тот же файл, со всеми именами и местами</translation>
    </message>
    <message>
        <source>Write the file for support with names</source>
        <translation>Записать файл для техподдержки с именами</translation>
    </message>
</context>
<context>
    <name>TFieldTreeModel</name>
    <message>
        <source>A job holds no items.</source>
        <translation>Задание не содержит других элементов.</translation>
    </message>
    <message>
        <source>There is one with this name already.</source>
        <translation>Такое имя уже есть.</translation>
    </message>
    <message numerus="yes">
        <source>%n file(s), %1</source>
        <translation>
            <numerusform>%n файл, %1</numerusform>
            <numerusform>%n файла, %1</numerusform>
            <numerusform>%n файлов, %1</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>TParameter</name>
    <message>
        <source>The setting could not be written to the disk yet.</source>
        <translation>Настройку пока не удалось записать на диск.</translation>
    </message>
    <message>
        <source>There is no value to set.</source>
        <translation>Нет значения для установки.</translation>
    </message>
</context>
<context>
    <name>TRegionSettings</name>
    <message>
        <source>Jan</source>
        <translation>янв.</translation>
    </message>
    <message>
        <source>Feb</source>
        <translation>февр.</translation>
    </message>
    <message>
        <source>Mar</source>
        <translation>мар.</translation>
    </message>
    <message>
        <source>Apr</source>
        <translation>апр.</translation>
    </message>
    <message>
        <source>May</source>
        <translation>мая</translation>
    </message>
    <message>
        <source>Jun</source>
        <translation>июн.</translation>
    </message>
    <message>
        <source>Jul</source>
        <translation>июл.</translation>
    </message>
    <message>
        <source>Aug</source>
        <translation>авг.</translation>
    </message>
    <message>
        <source>Sep</source>
        <translation>сент.</translation>
    </message>
    <message>
        <source>Oct</source>
        <translation>окт.</translation>
    </message>
    <message>
        <source>Nov</source>
        <translation>нояб.</translation>
    </message>
    <message>
        <source>Dec</source>
        <translation>дек.</translation>
    </message>
</context>
<context>
    <name>TRestart</name>
    <message>
        <source>The new language is shown after a restart.</source>
        <translation>Новый язык будет показан после перезапуска.</translation>
    </message>
    <message>
        <source>The new decimal sign is shown after a restart.</source>
        <translation>Новый десятичный разделитель будет показан после перезапуска.</translation>
    </message>
</context>
<context>
    <name>TSelections</name>
    <message>
        <source>The selection could not be stored.</source>
        <translation>Не удалось сохранить выбор.</translation>
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
        <translation>Нет машины</translation>
    </message>
    <message>
        <source>No Profile</source>
        <translation>Нет профиля</translation>
    </message>
    <message>
        <source>No Implement</source>
        <translation>Нет орудия</translation>
    </message>
    <message>
        <source>Pivoted_</source>
        <translation>Прицепное_</translation>
    </message>
</context>
<context>
    <name>TTransfer</name>
    <message>
        <source>The name is empty.</source>
        <translation>Имя не задано.</translation>
    </message>
</context>
<context>
    <name>TUnitAbbreviations</name>
    <message>
        <source>Jan</source>
        <translation>янв.</translation>
    </message>
    <message>
        <source>Feb</source>
        <translation>февр.</translation>
    </message>
    <message>
        <source>Mar</source>
        <translation>мар.</translation>
    </message>
    <message>
        <source>Apr</source>
        <translation>апр.</translation>
    </message>
    <message>
        <source>May</source>
        <translation>мая</translation>
    </message>
    <message>
        <source>Jun</source>
        <translation>июн.</translation>
    </message>
    <message>
        <source>Jul</source>
        <translation>июл.</translation>
    </message>
    <message>
        <source>Aug</source>
        <translation>авг.</translation>
    </message>
    <message>
        <source>Sep</source>
        <translation>сент.</translation>
    </message>
    <message>
        <source>Oct</source>
        <translation>окт.</translation>
    </message>
    <message>
        <source>Nov</source>
        <translation>нояб.</translation>
    </message>
    <message>
        <source>Dec</source>
        <translation>дек.</translation>
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
        <translation>миль</translation>
    </message>
    <message>
        <source>ha</source>
        <translation>га</translation>
    </message>
    <message>
        <source>ac</source>
        <translation>акр</translation>
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
        <translation>миль/ч</translation>
    </message>
    <message>
        <source>ac/hr</source>
        <translation>акр/ч</translation>
    </message>
    <message>
        <source>ha/hr</source>
        <translation>га/ч</translation>
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
        <translation>ж.унц</translation>
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
        <translation>буш.США</translation>
    </message>
    <message>
        <source>UK bu</source>
        <translation>буш.англ.</translation>
    </message>
    <message>
        <source>L/ha</source>
        <translation>л/га</translation>
    </message>
    <message>
        <source>L/ac</source>
        <translation>л/акр</translation>
    </message>
    <message>
        <source>mL/ha</source>
        <translation>мл/га</translation>
    </message>
    <message>
        <source>mL/ac</source>
        <translation>мл/акр</translation>
    </message>
    <message>
        <source>gal/ha</source>
        <translation>гал/га</translation>
    </message>
    <message>
        <source>gal/ac</source>
        <translation>гал/акр</translation>
    </message>
    <message>
        <source>gal/ha (US)</source>
        <translation>гал/га (США)</translation>
    </message>
    <message>
        <source>gal/ac (US)</source>
        <translation>гал/акр (США)</translation>
    </message>
    <message>
        <source>fl.oz/ac</source>
        <translation>ж.унц/акр</translation>
    </message>
    <message>
        <source>fl.oz/ha</source>
        <translation>ж.унц/га</translation>
    </message>
    <message>
        <source>fl.oz/ac (US)</source>
        <translation>ж.унц/акр (США)</translation>
    </message>
    <message>
        <source>fl.oz/ha (US)</source>
        <translation>ж.унц/га (США)</translation>
    </message>
    <message>
        <source>m³/ha</source>
        <translation>м³/га</translation>
    </message>
    <message>
        <source>m³/ac</source>
        <translation>м³/акр</translation>
    </message>
    <message>
        <source>ft³/ha</source>
        <translation>фут³/га</translation>
    </message>
    <message>
        <source>ft³/ac</source>
        <translation>фут³/акр</translation>
    </message>
    <message>
        <source>t/ha</source>
        <translation>т/га</translation>
    </message>
    <message>
        <source>t/ac</source>
        <translation>т/акр</translation>
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
        <translation>гал/100ярд (США)</translation>
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
        <translation>ж.унц/мин</translation>
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
        <translation>имп/ж.унц</translation>
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
        <translation>кг/га</translation>
    </message>
    <message>
        <source>kg/ac</source>
        <translation>кг/акр</translation>
    </message>
    <message>
        <source>lb/ac</source>
        <translation>фунт/акр</translation>
    </message>
    <message>
        <source>lb/ha</source>
        <translation>фунт/га</translation>
    </message>
    <message>
        <source>g/ha</source>
        <translation>г/га</translation>
    </message>
    <message>
        <source>kgN/ha</source>
        <translation>кгN/га</translation>
    </message>
    <message>
        <source>kgN/ac</source>
        <translation>кгN/акр</translation>
    </message>
    <message>
        <source>lbN/ac</source>
        <translation>фунтN/акр</translation>
    </message>
    <message>
        <source>lbN/ha</source>
        <translation>фунтN/га</translation>
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
        <translation>кг/буш.США</translation>
    </message>
    <message>
        <source>kg/UK bu</source>
        <translation>кг/буш.англ.</translation>
    </message>
    <message>
        <source>lb/US bu</source>
        <translation>фунт/буш.США</translation>
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
        <translation>тыс.шт/га</translation>
    </message>
    <message>
        <source>KS/ac</source>
        <translation>тыс.шт/акр</translation>
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
        <translation>Гц</translation>
    </message>
    <message>
        <source>rpm</source>
        <translation>об/мин</translation>
    </message>
    <message>
        <source>A</source>
        <comment>Ampere Abbreviation</comment>
        <translation>А</translation>
    </message>
    <message>
        <source>W</source>
        <comment>Watt Abbreviation</comment>
        <translation>Вт</translation>
    </message>
    <message>
        <source>mW</source>
        <comment>milliWatt Abbreviation</comment>
        <translation>мВт</translation>
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
        <translation>Обычно</translation>
    </message>
    <message>
        <source>Trivial</source>
        <translation>Неважно</translation>
    </message>
</context>
<context>
    <name>TWork</name>
    <message>
        <source>An implement cannot have this width.</source>
        <translation>У орудия не может быть такой ширины захвата.</translation>
    </message>
    <message>
        <source>A file of this job cannot be used. %1</source>
        <translation>Файл этого задания непригоден. %1</translation>
    </message>
    <message>
        <source>Coverage was not complete and was left out: strips %1, bytes %2</source>
        <translation>Неполные данные обработки пропущены: полос %1, байт %2</translation>
    </message>
    <message>
        <source>The file of the flags is damaged; new flags are not stored.</source>
        <translation>Файл флажков повреждён; новые флажки не сохраняются.</translation>
    </message>
    <message>
        <source>A file could not be stored. %1</source>
        <translation>Не удалось сохранить файл. %1</translation>
    </message>
    <message>
        <source>The file of the implement cannot be used. %1</source>
        <translation>Файл орудия непригоден. %1</translation>
    </message>
    <message>
        <source>There is no line.</source>
        <translation>Линии нет.</translation>
    </message>
    <message>
        <source>The line has no name.</source>
        <translation>У линии нет имени.</translation>
    </message>
    <message>
        <source>The guidance line cannot be used. %1</source>
        <translation>Направляющая непригодна. %1</translation>
    </message>
    <message>
        <source>No job is chosen</source>
        <translation>Задание не выбрано</translation>
    </message>
    <message>
        <source>No job is chosen: what is covered is not stored.</source>
        <translation>Задание не выбрано: обработанная площадь не сохраняется.</translation>
    </message>
    <message>
        <source>The coverage of this job cannot be used: what is covered is not stored.</source>
        <translation>Данные обработки этого задания непригодны: обработанная площадь не сохраняется.</translation>
    </message>
    <message>
        <source>The coverage cannot be stored, and strips are lost: %1</source>
        <translation>Данные обработки не сохраняются, полосы теряются: %1</translation>
    </message>
    <message>
        <source>The coverage is kept in memory until it can be stored. %1</source>
        <translation>Данные обработки остаются в памяти до сохранения. %1</translation>
    </message>
    <message>
        <source>The job is still being read.</source>
        <translation>Задание ещё читается.</translation>
    </message>
</context>
<context>
    <name>TileTurner</name>
    <message>
        <source>Tiles</source>
        <translation>Плитки</translation>
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
        <translation>Скор.</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>Площадь</translation>
    </message>
    <message>
        <source>Left</source>
        <comment>area that is left to work</comment>
        <translation>Остаток</translation>
    </message>
    <message>
        <source>Work</source>
        <comment>area per hour</comment>
        <translation>Произв.</translation>
    </message>
    <message>
        <source>Flow</source>
        <translation>Расход</translation>
    </message>
    <message>
        <source>Press.</source>
        <comment>pressure</comment>
        <translation>Давл.</translation>
    </message>
    <message>
        <source>Temp.</source>
        <comment>temperature</comment>
        <translation>Темп.</translation>
    </message>
    <message>
        <source>Driven</source>
        <translation>Путь</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Позиция</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Время</translation>
    </message>
</context>
<context>
    <name>TilesPage</name>
    <message>
        <source>Back to the first choice</source>
        <translation>Вернуть исходный выбор</translation>
    </message>
    <message>
        <source>%1 further ahead</source>
        <translation>%1: ближе к началу</translation>
    </message>
    <message>
        <source>Shown</source>
        <translation>Показано</translation>
    </message>
    <message>
        <source>Hidden</source>
        <translation>Скрыто</translation>
    </message>
</context>
<context>
    <name>Transfer</name>
    <message>
        <source>Nothing is imported: some settings were changed here and in the profile.</source>
        <translation>Ничего не импортировано: некоторые настройки изменены и здесь, и в профиле.</translation>
    </message>
    <message>
        <source>No stick is plugged in.</source>
        <translation>Флешка не вставлена.</translation>
    </message>
    <message>
        <source>The stick was removed before everything was on it.</source>
        <translation>Флешку извлекли раньше, чем всё было записано.</translation>
    </message>
    <message>
        <source>The stick could not be written to the end.</source>
        <translation>Не удалось записать флешку до конца.</translation>
    </message>
    <message>
        <source>The folder %1 cannot be made.</source>
        <translation>Не удалось создать папку %1.</translation>
    </message>
    <message>
        <source>The file %1 cannot be written.</source>
        <translation>Не удалось записать файл %1.</translation>
    </message>
    <message>
        <source>The logs are on the stick (files: %1).</source>
        <translation>Журналы записаны на флешку (файлов: %1).</translation>
    </message>
    <message>
        <source>The profile cannot be used. %1</source>
        <translation>Профиль непригоден. %1</translation>
    </message>
    <message>
        <source>Nothing is imported. %1</source>
        <translation>Ничего не импортировано. %1</translation>
    </message>
    <message>
        <source>This display</source>
        <translation>Этот дисплей</translation>
    </message>
    <message>
        <source>Another display</source>
        <translation>Другой дисплей</translation>
    </message>
    <message>
        <source>The profile is not on the stick. %1</source>
        <translation>Профиль не записан на флешку. %1</translation>
    </message>
    <message>
        <source>The profile is on the stick: %1.</source>
        <translation>Профиль записан на флешку: %1.</translation>
    </message>
    <message>
        <source>The file for support is not on the stick. %1</source>
        <translation>Файл для техподдержки не записан на флешку. %1</translation>
    </message>
    <message>
        <source>The file for support is on the stick: %1.</source>
        <translation>Файл для техподдержки записан на флешку: %1.</translation>
    </message>
    <message>
        <source>The profile is imported (settings changed: %1).</source>
        <translation>Профиль импортирован (изменено настроек: %1).</translation>
    </message>
    <message>
        <source>It cannot be used.</source>
        <translation>Непригодно.</translation>
    </message>
</context>
<context>
    <name>TransferState</name>
    <message>
        <source>Reading</source>
        <translation>Чтение</translation>
    </message>
    <message>
        <source>Writing</source>
        <translation>Запись</translation>
    </message>
    <message>
        <source>Leave the stick where it is until this is done.</source>
        <translation>Не вынимать флешку до завершения.</translation>
    </message>
</context>
<context>
    <name>WorkPage</name>
    <message>
        <source>Waiting for a position</source>
        <translation>Ожидание позиции</translation>
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
        <translation>В работе</translation>
    </message>
    <message>
        <source>Not working</source>
        <translation>Не в работе</translation>
    </message>
    <message>
        <source>Working. Switch the implement off</source>
        <translation>В работе. Выключить орудие</translation>
    </message>
    <message>
        <source>Not working. Switch the implement on</source>
        <translation>Не в работе. Включить орудие</translation>
    </message>
</context>
</TS>
