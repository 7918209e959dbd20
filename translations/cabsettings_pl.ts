<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl" sourcelanguage="en">
<context>
    <name>About</name>
    <message>
        <source>Windows, files and connections</source>
        <translation>Okna, pliki i połączenia</translation>
    </message>
    <message>
        <source>The file of the settings</source>
        <translation>Plik ustawień</translation>
    </message>
    <message>
        <source>Profiles of settings</source>
        <translation>Profile ustawień</translation>
    </message>
    <message>
        <source>Files for support</source>
        <translation>Pliki dla serwisu</translation>
    </message>
    <message>
        <source>Sunrise and sunset</source>
        <translation>Wschód i zachód słońca</translation>
    </message>
    <message>
        <source>Boundaries and zones</source>
        <translation>Granice i strefy</translation>
    </message>
    <message>
        <source>Software</source>
        <translation>Oprogramowanie</translation>
    </message>
    <message>
        <source>The software of this display</source>
        <translation>Oprogramowanie tego wyświetlacza</translation>
    </message>
    <message>
        <source>Settings, units and logs</source>
        <translation>Ustawienia, jednostki i dzienniki</translation>
    </message>
</context>
<context>
    <name>Clock</name>
    <message>
        <source>The clock of the machine; nothing has set it.</source>
        <translation>Zegar urządzenia; nie został ustawiony.</translation>
    </message>
    <message>
        <source>The clock was set by hand.</source>
        <translation>Zegar ustawiono ręcznie.</translation>
    </message>
    <message>
        <source>The receiver sets the clock.</source>
        <translation>Zegar ustawia odbiornik.</translation>
    </message>
    <message>
        <source>There is no such date or time.</source>
        <translation>Taka data lub godzina nie istnieje.</translation>
    </message>
    <message>
        <source>The date is more than 68 years from the clock of the machine.</source>
        <translation>Data różni się o ponad 68 lat od zegara urządzenia.</translation>
    </message>
    <message>
        <source>The clock could not be stored.</source>
        <translation>Nie udało się zapisać ustawienia zegara.</translation>
    </message>
</context>
<context>
    <name>ClockEntry</name>
    <message>
        <source>Year</source>
        <translation>Rok</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>Miesiąc</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Dzień</translation>
    </message>
    <message>
        <source>Hour</source>
        <translation>Godzina</translation>
    </message>
    <message>
        <source>Minute</source>
        <translation>Minuta</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>Data i godzina</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Czas</translation>
    </message>
    <message>
        <source>%1: more</source>
        <translation>%1: więcej</translation>
    </message>
    <message>
        <source>%1: less</source>
        <translation>%1: mniej</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>Ustaw</translation>
    </message>
</context>
<context>
    <name>ColorBar</name>
    <message>
        <source>%1: less</source>
        <translation>%1: mniej</translation>
    </message>
    <message>
        <source>%1: more</source>
        <translation>%1: więcej</translation>
    </message>
</context>
<context>
    <name>ColorPage</name>
    <message>
        <source>Former</source>
        <translation>Poprzedni</translation>
    </message>
    <message>
        <source>Former colour</source>
        <translation>Poprzedni kolor</translation>
    </message>
    <message>
        <source>First value</source>
        <translation>Domyślny</translation>
    </message>
    <message>
        <source>Digits of the colour</source>
        <translation>Cyfry koloru</translation>
    </message>
    <message>
        <source>Hue</source>
        <translation>Odcień</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Nasycenie</translation>
    </message>
    <message>
        <source>Lightness</source>
        <translation>Jasność</translation>
    </message>
</context>
<context>
    <name>ColorsPage</name>
    <message>
        <source>Day</source>
        <translation>Dzień</translation>
    </message>
    <message>
        <source>Night</source>
        <translation>Noc</translation>
    </message>
</context>
<context>
    <name>Contrasts</name>
    <message>
        <source>on %1: %2</source>
        <translation>na „%1”: %2</translation>
    </message>
    <message>
        <source>under %1: %2</source>
        <translation>pod „%1”: %2</translation>
    </message>
    <message>
        <source>%1, too low: at least %2</source>
        <translation>%1, za mało: co najmniej %2</translation>
    </message>
</context>
<context>
    <name>Difference</name>
    <message>
        <source>Changed on both sides</source>
        <translation>Zmienione po obu stronach</translation>
    </message>
    <message>
        <source>Here</source>
        <translation>Tutaj</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>Profil</translation>
    </message>
</context>
<context>
    <name>Display</name>
    <message>
        <source>Restart</source>
        <translation>Restart</translation>
    </message>
    <message>
        <source>The fonts of the display</source>
        <translation>Czcionki wyświetlacza</translation>
    </message>
    <message>
        <source>The keyboard on the screen</source>
        <translation>Klawiatura ekranowa</translation>
    </message>
</context>
<context>
    <name>DoorBand</name>
    <message>
        <source>Work</source>
        <translation>Praca</translation>
    </message>
    <message>
        <source>Fields</source>
        <translation>Pola</translation>
    </message>
    <message>
        <source>Receiver</source>
        <translation>Odbiornik</translation>
    </message>
    <message>
        <source>Logs</source>
        <translation>Dzienniki</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ustawienia</translation>
    </message>
</context>
<context>
    <name>Drives</name>
    <message>
        <source>%1 free of %2</source>
        <translation>%1 wolne z %2</translation>
    </message>
    <message>
        <source>Not known</source>
        <translation>Nieznane</translation>
    </message>
    <message>
        <source>No stick</source>
        <translation>Brak USB</translation>
    </message>
</context>
<context>
    <name>FieldsPage</name>
    <message>
        <source>Clients</source>
        <translation>Klienci</translation>
    </message>
    <message>
        <source>New client</source>
        <translation>Nowy klient</translation>
    </message>
    <message>
        <source>No client yet.</source>
        <translation>Na razie brak klientów.</translation>
    </message>
    <message>
        <source>Farms</source>
        <translation>Gospodarstwa</translation>
    </message>
    <message>
        <source>New farm</source>
        <translation>Nowe gospodarstwo</translation>
    </message>
    <message>
        <source>No farm yet.</source>
        <translation>Na razie brak gospodarstw.</translation>
    </message>
    <message>
        <source>Fields</source>
        <translation>Pola</translation>
    </message>
    <message>
        <source>New field</source>
        <translation>Nowe pole</translation>
    </message>
    <message>
        <source>No field yet.</source>
        <translation>Na razie brak pól.</translation>
    </message>
    <message>
        <source>Jobs</source>
        <translation>Zlecenia</translation>
    </message>
    <message>
        <source>New job</source>
        <translation>Nowe zlecenie</translation>
    </message>
    <message>
        <source>No job yet.</source>
        <translation>Na razie brak zleceń.</translation>
    </message>
    <message>
        <source>Remove %1 with everything in it?</source>
        <translation>Usunąć %1 z całą zawartością?</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Rename or remove %1</source>
        <translation>Zmień nazwę lub usuń: %1</translation>
    </message>
    <message>
        <source>Rename %1</source>
        <translation>Zmień nazwę: %1</translation>
    </message>
    <message>
        <source>Remove everything</source>
        <translation>Usuń wszystko</translation>
    </message>
</context>
<context>
    <name>Host</name>
    <message>
        <source>Details for the support: %1</source>
        <translation>Szczegóły dla serwisu: %1</translation>
    </message>
    <message>
        <source>%3 Try: %4</source>
        <translation>%3 Propozycja: %4</translation>
    </message>
    <message>
        <source>This name is not possible.</source>
        <translation>Ta nazwa nie jest możliwa.</translation>
    </message>
    <message>
        <source>The name is empty.</source>
        <translation>Nazwa jest pusta.</translation>
    </message>
    <message>
        <source>This name stands for another folder.</source>
        <translation>Ta nazwa oznacza inny folder.</translation>
    </message>
    <message>
        <source>The name must not contain %1.</source>
        <translation>Nazwa nie może zawierać %1.</translation>
    </message>
    <message>
        <source>The name contains a sign that cannot be seen.</source>
        <translation>Nazwa zawiera niewidoczny znak.</translation>
    </message>
    <message>
        <source>The name contains a sign that is not complete.</source>
        <translation>Nazwa zawiera niepełny znak.</translation>
    </message>
    <message>
        <source>The name must not end in a full stop or a blank.</source>
        <translation>Nazwa nie może kończyć się kropką ani spacją.</translation>
    </message>
    <message>
        <source>The name must not begin with a blank.</source>
        <translation>Nazwa nie może zaczynać się spacją.</translation>
    </message>
    <message>
        <source>A stick cannot hold a file with this name.</source>
        <translation>Na nośniku USB nie może być pliku o tej nazwie.</translation>
    </message>
    <message>
        <source>The name is too long.</source>
        <translation>Nazwa jest za długa.</translation>
    </message>
    <message>
        <source>%2 exists already.</source>
        <translation>%2 już istnieje.</translation>
    </message>
    <message numerus="yes">
        <source>%2 is active and holds %n file(s).</source>
        <translation>
            <numerusform>Element %2 jest aktywny i zawiera %n plik.</numerusform>
            <numerusform>Element %2 jest aktywny i zawiera %n pliki.</numerusform>
            <numerusform>Element %2 jest aktywny i zawiera %n plików.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%2 holds %n file(s).</source>
        <translation>
            <numerusform>%2 zawiera %n plik.</numerusform>
            <numerusform>%2 zawiera %n pliki.</numerusform>
            <numerusform>%2 zawiera %n plików.</numerusform>
        </translation>
    </message>
    <message>
        <source>%2 is active.</source>
        <translation>Element %2 jest aktywny.</translation>
    </message>
    <message>
        <source>%2 is no longer there.</source>
        <translation>%2 już nie istnieje.</translation>
    </message>
    <message>
        <source>A stick cannot tell %2 from %3.</source>
        <translation>Na nośniku USB nie można odróżnić nazw %2 i %3.</translation>
    </message>
    <message>
        <source>Another program is working on the fields. Try again later.</source>
        <translation>Inny program pracuje na polach. Spróbuj później.</translation>
    </message>
    <message>
        <source>The selection could not be stored.</source>
        <translation>Nie udało się zapisać wyboru.</translation>
    </message>
    <message>
        <source>%1 is neither a file nor a folder.</source>
        <translation>%1 nie jest plikiem ani folderem.</translation>
    </message>
    <message>
        <source>The file was edited or is damaged.</source>
        <translation>Plik został zmieniony lub jest uszkodzony.</translation>
    </message>
    <message>
        <source>%1 cannot be read. %2</source>
        <translation>Nie można odczytać: %1. %2</translation>
    </message>
    <message>
        <source>The file is of another kind.</source>
        <translation>Plik jest innego rodzaju.</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>Plik jest pusty.</translation>
    </message>
    <message>
        <source>The end of the file is missing.</source>
        <translation>Brakuje końca pliku.</translation>
    </message>
    <message>
        <source>The file is damaged.</source>
        <translation>Plik jest uszkodzony.</translation>
    </message>
    <message>
        <source>The file is not complete.</source>
        <translation>Plik jest niekompletny.</translation>
    </message>
    <message>
        <source>The file is from another version of the software.</source>
        <translation>Plik pochodzi z innej wersji oprogramowania.</translation>
    </message>
    <message>
        <source>The file has a value that is not possible: %2</source>
        <translation>Plik zawiera niemożliwą wartość: %2</translation>
    </message>
    <message>
        <source>The file has a value twice: %2</source>
        <translation>Ustawienie jest w pliku dwa razy: %2</translation>
    </message>
    <message>
        <source>This address is not possible: %1</source>
        <translation>Ten adres nie jest możliwy: %1</translation>
    </message>
    <message>
        <source>The device is not there.</source>
        <translation>Brak urządzenia.</translation>
    </message>
    <message>
        <source>It is not permitted, or another program uses it.</source>
        <translation>Brak uprawnień lub korzysta z tego inny program.</translation>
    </message>
    <message>
        <source>Another program uses it.</source>
        <translation>Korzysta z tego inny program.</translation>
    </message>
    <message>
        <source>It cannot be read.</source>
        <translation>Nie można odczytać.</translation>
    </message>
    <message>
        <source>It was unplugged.</source>
        <translation>Urządzenie odłączono.</translation>
    </message>
    <message>
        <source>It is not a serial device, or it cannot have this speed.</source>
        <translation>To nie jest urządzenie szeregowe lub nie może mieć tej prędkości.</translation>
    </message>
    <message>
        <source>The serial port has a fault (number %1).</source>
        <translation>Port szeregowy ma usterkę (numer %1).</translation>
    </message>
    <message>
        <source>%1 is damaged or of another kind.</source>
        <translation>%1: dane są uszkodzone lub innego rodzaju.</translation>
    </message>
    <message>
        <source>%1 is from another version of the software.</source>
        <translation>%1: dane pochodzą z innej wersji oprogramowania.</translation>
    </message>
    <message>
        <source>%1 is damaged.</source>
        <translation>%1: dane są uszkodzone.</translation>
    </message>
    <message>
        <source>%1 has other coordinates than WGS84.</source>
        <translation>%1: inne współrzędne niż WGS84.</translation>
    </message>
    <message>
        <source>%1 is not complete. %2 is missing.</source>
        <translation>%1: dane są niekompletne. Brakuje: %2.</translation>
    </message>
    <message>
        <source>%1 has no areas.</source>
        <translation>%1: brak obszarów.</translation>
    </message>
    <message>
        <source>Another program uses %1.</source>
        <translation>Inny program korzysta z: %1.</translation>
    </message>
    <message>
        <source>A and B are too close together or too far apart.</source>
        <translation>A i B są zbyt blisko lub zbyt daleko od siebie.</translation>
    </message>
    <message>
        <source>Another program has locked it.</source>
        <translation>Zablokował to inny program.</translation>
    </message>
    <message>
        <source>It is no longer there.</source>
        <translation>Już nie istnieje.</translation>
    </message>
    <message>
        <source>%1 is no longer there.</source>
        <translation>%1 już nie istnieje.</translation>
    </message>
    <message>
        <source>%1 cannot be written. %2</source>
        <translation>Nie można zapisać: %1. %2</translation>
    </message>
    <message>
        <source>%1 cannot be written.</source>
        <translation>Nie można zapisać: %1.</translation>
    </message>
    <message>
        <source>The file of the settings has a fault (number %1).</source>
        <translation>Plik ustawień ma usterkę (numer %1).</translation>
    </message>
    <message>
        <source>%1 cannot be opened. %2</source>
        <translation>Nie można otworzyć: %1. %2</translation>
    </message>
    <message>
        <source>%1 cannot be created. %2</source>
        <translation>Nie można utworzyć: %1. %2</translation>
    </message>
    <message>
        <source>%1 cannot be copied. %2</source>
        <translation>Nie można skopiować: %1. %2</translation>
    </message>
    <message>
        <source>%1 cannot be renamed. %2</source>
        <translation>Nie można zmienić nazwy: %1. %2</translation>
    </message>
    <message>
        <source>%1 cannot be removed. %2</source>
        <translation>Nie można usunąć: %1. %2</translation>
    </message>
    <message>
        <source>The drive is full.</source>
        <translation>Dysk jest pełny.</translation>
    </message>
    <message>
        <source>The drive has a fault.</source>
        <translation>Dysk ma usterkę.</translation>
    </message>
    <message>
        <source>The drive can only be read.</source>
        <translation>Dysk jest tylko do odczytu.</translation>
    </message>
    <message>
        <source>It is not permitted.</source>
        <translation>Brak uprawnień.</translation>
    </message>
    <message>
        <source>It cannot be opened.</source>
        <translation>Nie można otworzyć.</translation>
    </message>
    <message>
        <source>It is damaged.</source>
        <translation>Dane są uszkodzone.</translation>
    </message>
    <message>
        <source>It is not there.</source>
        <translation>Nie istnieje.</translation>
    </message>
    <message>
        <source>It exists already.</source>
        <translation>Już istnieje.</translation>
    </message>
    <message>
        <source>It is a folder.</source>
        <translation>To jest folder.</translation>
    </message>
    <message>
        <source>It is not a folder.</source>
        <translation>To nie jest folder.</translation>
    </message>
    <message>
        <source>The folder is not empty.</source>
        <translation>Folder nie jest pusty.</translation>
    </message>
    <message>
        <source>The file is too large.</source>
        <translation>Plik jest za duży.</translation>
    </message>
    <message>
        <source>Too many files are open.</source>
        <translation>Otwartych jest za dużo plików.</translation>
    </message>
    <message>
        <source>There is too little memory.</source>
        <translation>Jest za mało pamięci.</translation>
    </message>
    <message>
        <source>It is not possible there.</source>
        <translation>Tam nie jest to możliwe.</translation>
    </message>
    <message>
        <source>The device refuses the connection.</source>
        <translation>Urządzenie odmawia połączenia.</translation>
    </message>
    <message>
        <source>The device has closed the connection.</source>
        <translation>Urządzenie zamknęło połączenie.</translation>
    </message>
    <message>
        <source>There is no device with this address.</source>
        <translation>Nie ma urządzenia o tym adresie.</translation>
    </message>
    <message>
        <source>The network cannot be reached.</source>
        <translation>Sieć jest nieosiągalna.</translation>
    </message>
    <message>
        <source>The device does not answer.</source>
        <translation>Urządzenie nie odpowiada.</translation>
    </message>
    <message>
        <source>It is a link to another place.</source>
        <translation>To jest dowiązanie do innego miejsca.</translation>
    </message>
    <message>
        <source>There are too many links to it.</source>
        <translation>Prowadzi tam za dużo dowiązań.</translation>
    </message>
</context>
<context>
    <name>ItemActions</name>
    <message>
        <source>Rename</source>
        <translation>Zmień nazwę</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Usuń</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
</context>
<context>
    <name>ItemPage</name>
    <message>
        <source>New</source>
        <translation>Dodaj</translation>
    </message>
</context>
<context>
    <name>Keypad</name>
    <message>
        <source>%1 to %2 %3</source>
        <translation>Od %1 do %2 %3</translation>
    </message>
    <message>
        <source>At least %1 %2</source>
        <translation>Co najmniej %1 %2</translation>
    </message>
    <message>
        <source>At most %1 %2</source>
        <translation>Najwyżej %1 %2</translation>
    </message>
    <message>
        <source>This is not a number yet.</source>
        <translation>To jeszcze nie jest liczba.</translation>
    </message>
    <message>
        <source>Too large.
%1</source>
        <translation>Za duże.
%1</translation>
    </message>
    <message>
        <source>Too small.
%1</source>
        <translation>Za małe.
%1</translation>
    </message>
    <message>
        <source>now %1</source>
        <translation>teraz %1</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>Ustaw</translation>
    </message>
    <message>
        <source>Decimal sign</source>
        <translation>Znak dziesiętny</translation>
    </message>
    <message>
        <source>Plus or minus</source>
        <translation>Plus lub minus</translation>
    </message>
    <message>
        <source>Remove the last sign</source>
        <translation>Usuń ostatni znak</translation>
    </message>
    <message>
        <source>C</source>
        <comment>key that clears the entry</comment>
        <translation>C</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Wyczyść</translation>
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
        <translation>Ustaw tutaj A, pierwszy koniec linii</translation>
    </message>
    <message>
        <source>B</source>
        <comment>the other end of the guidance line</comment>
        <translation>B</translation>
    </message>
    <message>
        <source>Set B, the other end of the line, here</source>
        <translation>Ustaw tutaj B, drugi koniec linii</translation>
    </message>
    <message>
        <source>Set a flag here</source>
        <translation>Ustaw tutaj flagę</translation>
    </message>
</context>
<context>
    <name>LineChoice</name>
    <message>
        <source>New</source>
        <translation>Nowa</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Zatrzymaj</translation>
    </message>
</context>
<context>
    <name>LinePanel</name>
    <message>
        <source>%1 to the left</source>
        <translation>%1 w lewo</translation>
    </message>
    <message>
        <source>%1 to the right</source>
        <translation>%1 w prawo</translation>
    </message>
</context>
<context>
    <name>LockLayer</name>
    <message>
        <source>The screen is locked. Hold the button to unlock it.</source>
        <translation>Ekran jest zablokowany. Aby odblokować, przytrzymaj przycisk.</translation>
    </message>
    <message>
        <source>Unlock</source>
        <translation>Odblokuj</translation>
    </message>
</context>
<context>
    <name>LogsPage</name>
    <message>
        <source>Logs</source>
        <translation>Dzienniki</translation>
    </message>
    <message>
        <source>Events</source>
        <translation>Zdarzenia</translation>
    </message>
    <message>
        <source>Receiver</source>
        <translation>Odbiornik</translation>
    </message>
    <message>
        <source>Go on</source>
        <translation>Wznów</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Wstrzymaj</translation>
    </message>
    <message>
        <source>No line yet.</source>
        <translation>Na razie brak wierszy.</translation>
    </message>
</context>
<context>
    <name>MachinePage</name>
    <message>
        <source>Implement width</source>
        <translation>Szerokość robocza</translation>
    </message>
    <message>
        <source>Decides the guidance lines beside each other, and the area done</source>
        <translation>Określa odstęp linii prowadzenia i obrobioną powierzchnię</translation>
    </message>
    <message>
        <source>Implement behind the antenna</source>
        <translation>Narzędzie za anteną</translation>
    </message>
    <message>
        <source>How far the ground is covered behind the vehicle&apos;s place</source>
        <translation>Jak daleko za pozycją pojazdu obrabiany jest grunt</translation>
    </message>
</context>
<context>
    <name>Main</name>
    <message>
        <source>Cab display</source>
        <translation>Wyświetlacz w kabinie</translation>
    </message>
</context>
<context>
    <name>MapButtons</name>
    <message>
        <source>Zoom in</source>
        <translation>Powiększ</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Pomniejsz</translation>
    </message>
    <message>
        <source>The heading is up. Turn north up</source>
        <translation>Kierunek jazdy na górze. Obróć północą do góry</translation>
    </message>
    <message>
        <source>North is up. Turn the heading up</source>
        <translation>Północ na górze. Obróć kierunkiem jazdy do góry</translation>
    </message>
    <message>
        <source>Centre the vehicle</source>
        <translation>Wyśrodkuj pojazd</translation>
    </message>
</context>
<context>
    <name>NameEntry</name>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>Ustaw</translation>
    </message>
</context>
<context>
    <name>PageTurner</name>
    <message>
        <source>Rows above</source>
        <translation>Wiersze wyżej</translation>
    </message>
    <message>
        <source>Rows below</source>
        <translation>Wiersze niżej</translation>
    </message>
</context>
<context>
    <name>ParameterRow</name>
    <message>
        <source>%1: back to the first value</source>
        <translation>%1: powrót do wartości domyślnej</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Otwórz</translation>
    </message>
</context>
<context>
    <name>ParameterTexts</name>
    <message>
        <source>h</source>
        <translation>h</translation>
    </message>
    <message>
        <source>min</source>
        <translation>min</translation>
    </message>
    <message>
        <source>s</source>
        <translation>s</translation>
    </message>
    <message>
        <source>an absolute path that ends in &quot;/&quot; and is not &quot;/&quot;</source>
        <translation>ścieżka bezwzględna, która kończy się na „/” i nie jest „/”</translation>
    </message>
    <message>
        <source>an absolute path</source>
        <translation>ścieżka bezwzględna</translation>
    </message>
    <message>
        <source>a UUID in small letters, such as 6ba7b810-9dad-41d1-80b4-00c04fd430c8</source>
        <translation>UUID małymi literami, np. 6ba7b810-9dad-41d1-80b4-00c04fd430c8</translation>
    </message>
    <message>
        <source>simulator, tcp://HOST:PORT, serial:///dev/NAME?baud=N or an absolute path</source>
        <translation>simulator, tcp://HOST:PORT, serial:///dev/NAME?baud=N lub ścieżka bezwzględna</translation>
    </message>
    <message>
        <source>true or false</source>
        <translation>true lub false</translation>
    </message>
    <message>
        <source>a time in UTC, such as 2026-03-05T13:05:09Z</source>
        <translation>czas w UTC, np. 2026-03-05T13:05:09Z</translation>
    </message>
    <message>
        <source>a colour: #rrggbb, #aarrggbb or a name such as navy</source>
        <translation>kolor: #rrggbb, #aarrggbb lub nazwa, np. navy</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>od %1 do %2</translation>
    </message>
    <message>
        <source>Not a whole number.</source>
        <translation>Nie jest liczbą całkowitą.</translation>
    </message>
    <message>
        <source>Below the least value.</source>
        <translation>Poniżej minimum.</translation>
    </message>
    <message>
        <source>Above the greatest value.</source>
        <translation>Powyżej maksimum.</translation>
    </message>
    <message>
        <source>This cannot be the name of a file. Try: %1</source>
        <translation>Plik nie może mieć takiej nazwy. Propozycja: %1</translation>
    </message>
    <message>
        <source>Not accepted. Expected: %1.</source>
        <translation>Nie przyjęto. Oczekiwane: %1.</translation>
    </message>
    <message>
        <source>a name without %1</source>
        <translation>nazwa bez %1</translation>
    </message>
    <message>
        <source>a whole number</source>
        <translation>liczba całkowita</translation>
    </message>
    <message>
        <source>At least %1</source>
        <translation>Co najmniej %1</translation>
    </message>
</context>
<context>
    <name>Parameters</name>
    <message>
        <source>the operator has chosen the offset from UTC; GPS time keeps it instead of computing it</source>
        <translation>operator wybrał różnicę względem UTC; czas GPS ją zachowuje i nie oblicza jej</translation>
    </message>
    <message>
        <source>metric units; otherwise US or English units</source>
        <translation>jednostki metryczne; w innym razie amerykańskie lub angielskie</translation>
    </message>
    <message>
        <source>US measures when units are not metric; otherwise English measures</source>
        <translation>miary amerykańskie, gdy jednostki nie są metryczne; w innym razie angielskie</translation>
    </message>
    <message>
        <source>positions in degrees, minutes and seconds; otherwise in decimal degrees</source>
        <translation>pozycje w stopniach, minutach i sekundach; w innym razie w stopniach dziesiętnych</translation>
    </message>
    <message>
        <source>24-hour clock; otherwise 12 hours with am and pm</source>
        <translation>zegar 24-godzinny; w innym razie 12 godzin z am i pm</translation>
    </message>
    <message>
        <source>dates with the month before the day</source>
        <translation>data z miesiącem przed dniem</translation>
    </message>
    <message>
        <source>colours for day; otherwise for night</source>
        <translation>kolory na dzień; w innym razie na noc</translation>
    </message>
    <message>
        <source>the map turns with the vehicle; otherwise north is up</source>
        <translation>mapa obraca się z pojazdem; w innym razie północ jest u góry</translation>
    </message>
    <message>
        <source>unit of pressures</source>
        <translation>jednostka ciśnienia</translation>
    </message>
    <message>
        <source>unit of areas, and of rates per area</source>
        <translation>jednostka powierzchni i dawek na powierzchnię</translation>
    </message>
    <message>
        <source>unit of short distances: widths, offsets</source>
        <translation>jednostka małych odległości: szerokości, przesunięcia</translation>
    </message>
    <message>
        <source>unit of granular volumes</source>
        <translation>jednostka objętości granulatu</translation>
    </message>
    <message>
        <source>unit of granular densities</source>
        <translation>jednostka gęstości granulatu</translation>
    </message>
    <message>
        <source>unit of liquid volumes, flows and rates</source>
        <translation>jednostka objętości, przepływu i dawek cieczy</translation>
    </message>
    <message>
        <source>language of the display&apos;s texts; a change needs a restart</source>
        <translation>język tekstów wyświetlacza; zmiana wymaga restartu</translation>
    </message>
    <message>
        <source>decimal point or comma; a change needs a restart</source>
        <translation>kropka lub przecinek dziesiętny; zmiana wymaga restartu</translation>
    </message>
    <message>
        <source>when the colours switch between day and night: only by hand, at sunrise and sunset, or with the sun 6 degrees below the horizon</source>
        <translation>kiedy kolory przełączają się między dniem a nocą: tylko ręcznie, o wschodzie i zachodzie słońca albo gdy słońce jest 6 stopni pod horyzontem</translation>
    </message>
    <message>
        <source>what set the display&apos;s clock</source>
        <translation>co ustawiło zegar wyświetlacza</translation>
    </message>
    <message>
        <source>local time less UTC, whole hours</source>
        <translation>czas lokalny minus UTC, pełne godziny</translation>
    </message>
    <message>
        <source>local time less UTC, minutes beyond the hours, with the sign of the hours</source>
        <translation>czas lokalny minus UTC, minuty ponad godziny, ze znakiem godzin</translation>
    </message>
    <message>
        <source>brightness of the lightbar at night</source>
        <translation>jasność listwy świetlnej nocą</translation>
    </message>
    <message>
        <source>brightness of the screen at night</source>
        <translation>jasność ekranu nocą</translation>
    </message>
    <message>
        <source>brightness of the button lights at night</source>
        <translation>jasność podświetlenia przycisków nocą</translation>
    </message>
    <message>
        <source>4: implements are kept in the folder of their vehicle; other numbers: in their own folder</source>
        <translation>4: narzędzia są w folderze swojego pojazdu; inne liczby: we własnym folderze</translation>
    </message>
    <message>
        <source>number of the next file of the NMEA log</source>
        <translation>numer następnego pliku dziennika NMEA</translation>
    </message>
    <message>
        <source>number of the next file of the user log</source>
        <translation>numer następnego pliku dziennika obsługi</translation>
    </message>
    <message>
        <source>the display&apos;s clock less UTC</source>
        <translation>zegar wyświetlacza minus UTC</translation>
    </message>
    <message>
        <source>folder of the internal drive; by default in the data folder</source>
        <translation>folder dysku wewnętrznego; domyślnie w folderze danych</translation>
    </message>
    <message>
        <source>mount point of the removable drive; by default in the data folder</source>
        <translation>punkt montowania nośnika USB; domyślnie w folderze danych</translation>
    </message>
    <message>
        <source>the identity of the terminal, which its profiles carry</source>
        <translation>oznaczenie terminala, zapisane w jego profilach</translation>
    </message>
    <message>
        <source>where the sentences of the receiver come from</source>
        <translation>skąd pochodzą zdania odbiornika</translation>
    </message>
    <message>
        <source>the figures beside the map, in this order</source>
        <translation>wartości obok mapy, w tej kolejności</translation>
    </message>
    <message>
        <source>the newest time of a receiver, as of the last day on which one was seen</source>
        <translation>najnowszy czas odbiornika, z ostatniego dnia z odbiornikiem</translation>
    </message>
    <message>
        <source>when the sun switched the colours last</source>
        <translation>kiedy słońce ostatnio przełączyło kolory</translation>
    </message>
    <message>
        <source>the active job</source>
        <translation>aktywne zlecenie</translation>
    </message>
    <message>
        <source>the active boundary</source>
        <translation>aktywna granica</translation>
    </message>
    <message>
        <source>the active straight guidance line</source>
        <translation>aktywna prosta linia prowadzenia</translation>
    </message>
    <message>
        <source>the active pivot</source>
        <translation>aktywna linia kołowa</translation>
    </message>
    <message>
        <source>the active guidance curve</source>
        <translation>aktywna krzywa prowadzenia</translation>
    </message>
    <message>
        <source>the active shape file of optimal lines</source>
        <translation>aktywny plik shape linii optymalnych</translation>
    </message>
    <message>
        <source>the active shape file of project lines</source>
        <translation>aktywny plik shape linii projektu</translation>
    </message>
    <message>
        <source>the active shape file of zones</source>
        <translation>aktywny plik shape stref</translation>
    </message>
    <message>
        <source>the active steering profile</source>
        <translation>aktywny profil kierowania</translation>
    </message>
    <message>
        <source>the active implement</source>
        <translation>aktywne narzędzie</translation>
    </message>
    <message>
        <source>the active vehicle</source>
        <translation>aktywny pojazd</translation>
    </message>
    <message>
        <source>the active sprayer</source>
        <translation>aktywny opryskiwacz</translation>
    </message>
    <message>
        <source>the active boom leveller</source>
        <translation>aktywne poziomowanie belki</translation>
    </message>
    <message>
        <source>the active client</source>
        <translation>aktywny klient</translation>
    </message>
    <message>
        <source>the active farm</source>
        <translation>aktywne gospodarstwo</translation>
    </message>
    <message>
        <source>the active field</source>
        <translation>aktywne pole</translation>
    </message>
    <message>
        <source>Measures</source>
        <translation>System miar</translation>
    </message>
    <message>
        <source>Gallons and bushels</source>
        <translation>Galony i buszle</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>Powierzchnia</translation>
    </message>
    <message>
        <source>Pressure</source>
        <translation>Ciśnienie</translation>
    </message>
    <message>
        <source>Short distances</source>
        <translation>Małe odległości</translation>
    </message>
    <message>
        <source>Liquid</source>
        <translation>Ciecz</translation>
    </message>
    <message>
        <source>Granular volume</source>
        <translation>Objętość granulatu</translation>
    </message>
    <message>
        <source>Granular density</source>
        <translation>Gęstość granulatu</translation>
    </message>
    <message>
        <source>Positions</source>
        <translation>Pozycje</translation>
    </message>
    <message>
        <source>Rate per travel</source>
        <translation>Dawka na drogę</translation>
    </message>
    <message>
        <source>Basis of rates</source>
        <translation>Podstawa dawek</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Język</translation>
    </message>
    <message>
        <source>Decimal sign</source>
        <translation>Znak dziesiętny</translation>
    </message>
    <message>
        <source>Time of day</source>
        <translation>Format godziny</translation>
    </message>
    <message>
        <source>Dates</source>
        <translation>Data</translation>
    </message>
    <message>
        <source>Time zone set by hand</source>
        <translation>Strefa czasowa ręcznie</translation>
    </message>
    <message>
        <source>Time zone, hours</source>
        <translation>Strefa czas., godziny</translation>
    </message>
    <message>
        <source>Time zone, minutes</source>
        <translation>Strefa czas., minuty</translation>
    </message>
    <message>
        <source>Clock less UTC</source>
        <translation>Zegar minus UTC</translation>
    </message>
    <message>
        <source>Source of the time</source>
        <translation>Źródło czasu</translation>
    </message>
    <message>
        <source>Source of the time since</source>
        <translation>Źródło czasu od</translation>
    </message>
    <message>
        <source>Newest receiver time</source>
        <translation>Najnowszy czas odbiornika</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>Kolory</translation>
    </message>
    <message>
        <source>Day and night</source>
        <translation>Dzień i noc</translation>
    </message>
    <message>
        <source>Map direction</source>
        <translation>Kierunek mapy</translation>
    </message>
    <message>
        <source>Tiles</source>
        <translation>Kafelki</translation>
    </message>
    <message>
        <source>Light bar at night</source>
        <translation>Listwa świetlna nocą</translation>
    </message>
    <message>
        <source>Screen at night</source>
        <translation>Ekran nocą</translation>
    </message>
    <message>
        <source>Button lights at night</source>
        <translation>Podświetlenie przycisków nocą</translation>
    </message>
    <message>
        <source>Switched by the sun</source>
        <translation>Przełączone przez słońce</translation>
    </message>
    <message>
        <source>Client</source>
        <translation>Klient</translation>
    </message>
    <message>
        <source>Farm</source>
        <translation>Gospodarstwo</translation>
    </message>
    <message>
        <source>Field</source>
        <translation>Pole</translation>
    </message>
    <message>
        <source>Job</source>
        <translation>Zlecenie</translation>
    </message>
    <message>
        <source>Vehicle</source>
        <translation>Pojazd</translation>
    </message>
    <message>
        <source>Implement</source>
        <translation>Narzędzie</translation>
    </message>
    <message>
        <source>Sprayer</source>
        <translation>Opryskiwacz</translation>
    </message>
    <message>
        <source>Boom leveller</source>
        <translation>Poziomowanie belki</translation>
    </message>
    <message>
        <source>Steering profile</source>
        <translation>Profil kierowania</translation>
    </message>
    <message>
        <source>Boundary</source>
        <translation>Granica</translation>
    </message>
    <message>
        <source>A-B line</source>
        <translation>Linia A-B</translation>
    </message>
    <message>
        <source>Pivot</source>
        <translation>Linia kołowa</translation>
    </message>
    <message>
        <source>Curve</source>
        <translation>Krzywa</translation>
    </message>
    <message>
        <source>Optimal lines</source>
        <translation>Linie optymalne</translation>
    </message>
    <message>
        <source>Project lines</source>
        <translation>Linie projektu</translation>
    </message>
    <message>
        <source>Zones</source>
        <translation>Strefy</translation>
    </message>
    <message>
        <source>Receiver address</source>
        <translation>Adres odbiornika</translation>
    </message>
    <message>
        <source>Internal drive</source>
        <translation>Dysk wewnętrzny</translation>
    </message>
    <message>
        <source>Stick</source>
        <translation>Nośnik USB</translation>
    </message>
    <message>
        <source>Implement folder</source>
        <translation>Folder narzędzia</translation>
    </message>
    <message>
        <source>Next NMEA log</source>
        <translation>Następny dziennik NMEA</translation>
    </message>
    <message>
        <source>Next user log</source>
        <translation>Następny dziennik obsługi</translation>
    </message>
    <message>
        <source>Identity</source>
        <translation>Oznaczenie</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Tekst</translation>
    </message>
    <message>
        <source>Colour of texts</source>
        <translation>Kolor tekstów</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Tytuł</translation>
    </message>
    <message>
        <source>Colour of titles</source>
        <translation>Kolor tytułów</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Tło</translation>
    </message>
    <message>
        <source>Colour of the background</source>
        <translation>Kolor tła</translation>
    </message>
    <message>
        <source>Button</source>
        <translation>Przycisk</translation>
    </message>
    <message>
        <source>Colour of buttons</source>
        <translation>Kolor przycisków</translation>
    </message>
    <message>
        <source>Button text</source>
        <translation>Tekst przycisku</translation>
    </message>
    <message>
        <source>Colour of texts on buttons</source>
        <translation>Kolor tekstów na przyciskach</translation>
    </message>
    <message>
        <source>Map</source>
        <translation>Mapa</translation>
    </message>
    <message>
        <source>Colour of the map&apos;s ground</source>
        <translation>Kolor podłoża mapy</translation>
    </message>
    <message>
        <source>Grid</source>
        <translation>Siatka</translation>
    </message>
    <message>
        <source>Colour of the map&apos;s grid</source>
        <translation>Kolor siatki mapy</translation>
    </message>
    <message>
        <source>Coverage</source>
        <translation>Obrobione</translation>
    </message>
    <message>
        <source>Colour of covered ground</source>
        <translation>Kolor obrobionej ziemi</translation>
    </message>
    <message>
        <source>Vehicle on the map</source>
        <translation>Pojazd na mapie</translation>
    </message>
    <message>
        <source>Colour of the vehicle</source>
        <translation>Kolor pojazdu</translation>
    </message>
    <message>
        <source>Guidance line</source>
        <translation>Linia prowadzenia</translation>
    </message>
    <message>
        <source>Colour of the guidance line</source>
        <translation>Kolor linii prowadzenia</translation>
    </message>
    <message>
        <source>Cross hairs</source>
        <translation>Celownik</translation>
    </message>
    <message>
        <source>Colour of the cross hairs</source>
        <translation>Kolor celownika</translation>
    </message>
    <message>
        <source>Outer boundary</source>
        <translation>Granica zewnętrzna</translation>
    </message>
    <message>
        <source>Colour of the outer boundary of the field</source>
        <translation>Kolor granicy zewnętrznej pola</translation>
    </message>
    <message>
        <source>Inner boundary</source>
        <translation>Granica wewnętrzna</translation>
    </message>
    <message>
        <source>Colour of boundaries within the field</source>
        <translation>Kolor granic wewnątrz pola</translation>
    </message>
    <message>
        <source>Other boundaries</source>
        <translation>Inne granice</translation>
    </message>
    <message>
        <source>Colour of boundaries that are not active</source>
        <translation>Kolor nieaktywnych granic</translation>
    </message>
    <message>
        <source>Exclusion zone</source>
        <translation>Strefa zakazana</translation>
    </message>
    <message>
        <source>Colour of zones to keep out of</source>
        <translation>Kolor stref zakazanych</translation>
    </message>
    <message>
        <source>Background picture</source>
        <translation>Obraz tła</translation>
    </message>
    <message>
        <source>Number of the background picture</source>
        <translation>Numer obrazu tła</translation>
    </message>
    <message>
        <source>what the sprayer&apos;s rates are related to</source>
        <translation>do czego odnoszą się dawki opryskiwacza</translation>
    </message>
    <message>
        <source>liquid rates per 100 m or 100 yd of travel, while travel is their basis</source>
        <translation>dawki cieczy na 100 m lub 100 yd przejechanej drogi, gdy droga jest ich podstawą</translation>
    </message>
    <message>
        <source>since when the clock has its time from there</source>
        <translation>od kiedy zegar ma czas z tego źródła</translation>
    </message>
    <message>
        <source>Metric</source>
        <translation>Metryczny</translation>
    </message>
    <message>
        <source>US or English</source>
        <translation>US lub angielski</translation>
    </message>
    <message>
        <source>US</source>
        <translation>US</translation>
    </message>
    <message>
        <source>English</source>
        <translation>Angielskie</translation>
    </message>
    <message>
        <source>Deg., min., s</source>
        <translation>St., min, s</translation>
    </message>
    <message>
        <source>Degrees</source>
        <translation>Stopnie</translation>
    </message>
    <message>
        <source>24 hours</source>
        <translation>24 godziny</translation>
    </message>
    <message>
        <source>am, pm</source>
        <translation>am, pm</translation>
    </message>
    <message>
        <source>Month first</source>
        <translation>Mies., dzień</translation>
    </message>
    <message>
        <source>Day first</source>
        <translation>Dzień, mies.</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Dzień</translation>
    </message>
    <message>
        <source>Night</source>
        <translation>Noc</translation>
    </message>
    <message>
        <source>Heading up</source>
        <translation>Kierunek jazdy</translation>
    </message>
    <message>
        <source>North up</source>
        <translation>Północ u góry</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Wł.</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Wył.</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Tak</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nie</translation>
    </message>
    <message>
        <source>Travel</source>
        <translation>Droga</translation>
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
        <translation>Hektar</translation>
    </message>
    <message>
        <source>Acre</source>
        <translation>Akr</translation>
    </message>
    <message>
        <source>m, mm</source>
        <translation>m, mm</translation>
    </message>
    <message>
        <source>Inch</source>
        <translation>Cal</translation>
    </message>
    <message>
        <source>Foot</source>
        <translation>Stopa</translation>
    </message>
    <message>
        <source>L</source>
        <translation>l</translation>
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
        <translation>Buszel US</translation>
    </message>
    <message>
        <source>UK bushel</source>
        <translation>Buszel UK</translation>
    </message>
    <message>
        <source>kg/L</source>
        <translation>kg/l</translation>
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
        <translation>Kropka</translation>
    </message>
    <message>
        <source>Comma</source>
        <translation>Przecinek</translation>
    </message>
    <message>
        <source>By hand</source>
        <translation>Ręcznie</translation>
    </message>
    <message>
        <source>Sunset</source>
        <translation>Zachód słońca</translation>
    </message>
    <message>
        <source>Twilight</source>
        <translation>Zmierzch</translation>
    </message>
    <message>
        <source>Not set</source>
        <translation>Nieustawiony</translation>
    </message>
    <message>
        <source>Operator</source>
        <translation>Operator</translation>
    </message>
    <message>
        <source>Receiver</source>
        <translation>Odbiornik</translation>
    </message>
    <message>
        <source>Rate</source>
        <translation>Dawka</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Prędkość</translation>
    </message>
    <message>
        <source>Area done</source>
        <translation>Pow. obrobiona</translation>
    </message>
    <message>
        <source>Area left</source>
        <translation>Pozost. pow.</translation>
    </message>
    <message>
        <source>Productivity</source>
        <translation>Wydajność</translation>
    </message>
    <message>
        <source>Flow</source>
        <translation>Przepływ</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperatura</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>Odległość</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Pozycja</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Czas</translation>
    </message>
    <message>
        <source>Units</source>
        <translation>Jednostki</translation>
    </message>
    <message>
        <source>Rates</source>
        <translation>Dawki</translation>
    </message>
    <message>
        <source>Region</source>
        <translation>Region</translation>
    </message>
    <message>
        <source>Clock</source>
        <translation>Zegar</translation>
    </message>
    <message>
        <source>Colours of the schemes</source>
        <translation>Kolory schematów</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Wyświetlanie</translation>
    </message>
    <message>
        <source>Selections</source>
        <translation>Wybór</translation>
    </message>
    <message>
        <source>Storage</source>
        <translation>Pamięć</translation>
    </message>
    <message>
        <source>Logs</source>
        <translation>Dzienniki</translation>
    </message>
    <message>
        <source>Terminal</source>
        <translation>Terminal</translation>
    </message>
    <message>
        <source>%1, by day</source>
        <translation>%1, w dzień</translation>
    </message>
    <message>
        <source>%1, by night</source>
        <translation>%1, w nocy</translation>
    </message>
</context>
<context>
    <name>Problems</name>
    <message>
        <source>The logs lose lines: their drive is full or cannot be written.</source>
        <translation>Dzienniki tracą wiersze: ich dysk jest pełny lub nie można na nim zapisywać.</translation>
    </message>
    <message>
        <source>Recording is off, because there is too little room.</source>
        <translation>Zapis jest wyłączony, bo jest za mało miejsca.</translation>
    </message>
    <message>
        <source>Changes of settings are not stored yet. %1</source>
        <translation>Zmiany ustawień nie są jeszcze zapisane. %1</translation>
    </message>
    <message>
        <source>The drive of the terminal is nearly full. Free: %1</source>
        <translation>Dysk terminala jest prawie pełny. Wolne: %1</translation>
    </message>
</context>
<context>
    <name>ProfilePage</name>
    <message>
        <source>Import</source>
        <translation>Importuj</translation>
    </message>
    <message>
        <source>The display has these settings already.</source>
        <translation>Wyświetlacz ma już te ustawienia.</translation>
    </message>
    <message>
        <source>Changed here and in the profile</source>
        <translation>Zmienione tutaj i w profilu</translation>
    </message>
    <message>
        <source>Which value the settings below shall have</source>
        <translation>Którą wartość mają mieć poniższe ustawienia</translation>
    </message>
    <message>
        <source>Ours</source>
        <translation>Tutejsza</translation>
    </message>
    <message>
        <source>Theirs</source>
        <translation>Z profilu</translation>
    </message>
</context>
<context>
    <name>ProfilesPage</name>
    <message>
        <source>Profiles</source>
        <translation>Profile</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Eksportuj</translation>
    </message>
    <message>
        <source>There is no profile on the stick.</source>
        <translation>Na nośniku USB nie ma profilu.</translation>
    </message>
    <message>
        <source>No stick is plugged in.</source>
        <translation>Nie włożono nośnika USB.</translation>
    </message>
    <message>
        <source>Name of the profile</source>
        <translation>Nazwa profilu</translation>
    </message>
</context>
<context>
    <name>Quantities</name>
    <message>
        <source>Area</source>
        <translation>Powierzchnia</translation>
    </message>
    <message>
        <source>Productivity</source>
        <translation>Wydajność</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Prędkość</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>Odległość</translation>
    </message>
    <message>
        <source>Small distance</source>
        <translation>Mała odległość</translation>
    </message>
    <message>
        <source>Travelled distance</source>
        <translation>Przejechana odległość</translation>
    </message>
    <message>
        <source>Altitude</source>
        <translation>Wysokość</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperatura</translation>
    </message>
    <message>
        <source>Pressure</source>
        <translation>Ciśnienie</translation>
    </message>
    <message>
        <source>Rate</source>
        <translation>Dawka</translation>
    </message>
    <message>
        <source>Requested rate</source>
        <translation>Dawka zadana</translation>
    </message>
    <message>
        <source>Rate and error</source>
        <translation>Dawka i odchyłka</translation>
    </message>
    <message>
        <source>Small rate</source>
        <translation>Mała dawka</translation>
    </message>
    <message>
        <source>Flow</source>
        <translation>Przepływ</translation>
    </message>
    <message>
        <source>Small flow</source>
        <translation>Mały przepływ</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Objętość</translation>
    </message>
    <message>
        <source>Small volume</source>
        <translation>Mała objętość</translation>
    </message>
    <message>
        <source>Granular volume</source>
        <translation>Objętość granulatu</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>Masa</translation>
    </message>
    <message>
        <source>Weight per area</source>
        <translation>Masa na powierzchnię</translation>
    </message>
    <message>
        <source>Weight per area and error</source>
        <translation>Masa na powierzchnię i odchyłka</translation>
    </message>
    <message>
        <source>Discharge</source>
        <translation>Wydatek</translation>
    </message>
    <message>
        <source>Nitrogen</source>
        <translation>Azot</translation>
    </message>
    <message>
        <source>Nitrogen per area</source>
        <translation>Azot na powierzchnię</translation>
    </message>
    <message>
        <source>Seeds per area</source>
        <translation>Nasiona na pow.</translation>
    </message>
    <message>
        <source>Density</source>
        <translation>Gęstość</translation>
    </message>
    <message>
        <source>Granular density</source>
        <translation>Gęstość granulatu</translation>
    </message>
    <message>
        <source>Volume per revolution</source>
        <translation>Objętość na obrót</translation>
    </message>
    <message>
        <source>Weight per revolution</source>
        <translation>Masa na obrót</translation>
    </message>
    <message>
        <source>Flow meter</source>
        <translation>Przepływomierz</translation>
    </message>
    <message>
        <source>Wheel sensor</source>
        <translation>Czujnik koła</translation>
    </message>
    <message>
        <source>Speed sensor</source>
        <translation>Czujnik prędkości</translation>
    </message>
    <message>
        <source>Latitude</source>
        <translation>Szer. geogr.</translation>
    </message>
    <message>
        <source>Longitude</source>
        <translation>Dł. geogr.</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Czas trwania</translation>
    </message>
    <message>
        <source>Percent</source>
        <translation>Procent</translation>
    </message>
</context>
<context>
    <name>Question</name>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
</context>
<context>
    <name>RateTile</name>
    <message>
        <source>set %1</source>
        <comment>the rate that is set</comment>
        <translation>zad. %1</translation>
    </message>
</context>
<context>
    <name>Receiver</name>
    <message>
        <source>Off</source>
        <translation>Wyłączony</translation>
    </message>
    <message>
        <source>Connecting</source>
        <translation>Łączenie</translation>
    </message>
    <message>
        <source>Receiving</source>
        <translation>Odbiera</translation>
    </message>
    <message>
        <source>Silent</source>
        <translation>Milczy</translation>
    </message>
    <message>
        <source>Lost</source>
        <translation>Utracony</translation>
    </message>
    <message>
        <source>Ended</source>
        <translation>Zakończony</translation>
    </message>
    <message>
        <source>No fix</source>
        <translation>Brak pozycji</translation>
    </message>
    <message>
        <source>RTK float</source>
        <translation>RTK float</translation>
    </message>
    <message>
        <source>Estimated</source>
        <translation>Szacowana</translation>
    </message>
    <message>
        <source>By hand</source>
        <translation>Ręcznie</translation>
    </message>
    <message>
        <source>Simulated</source>
        <translation>Symulowana</translation>
    </message>
    <message>
        <source>The receiver sends nothing.</source>
        <translation>Odbiornik nic nie wysyła.</translation>
    </message>
    <message>
        <source>The receiver is lost and is being looked for. %1</source>
        <translation>Odbiornik został utracony i jest szukany. %1</translation>
    </message>
    <message>
        <source>The receiver cannot be read. %1</source>
        <translation>Nie można czytać z odbiornika. %1</translation>
    </message>
    <message>
        <source>The simulated field is done.</source>
        <translation>Symulowane pole jest ukończone.</translation>
    </message>
    <message>
        <source>The recording of the receiver is over.</source>
        <translation>Zapis odbiornika się skończył.</translation>
    </message>
</context>
<context>
    <name>ReceiverPage</name>
    <message>
        <source>Receiver</source>
        <translation>Odbiornik</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Zatrzymaj</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Uruchom</translation>
    </message>
    <message>
        <source>Simulator</source>
        <translation>Symulator</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Plik</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Sieć</translation>
    </message>
    <message>
        <source>Serial</source>
        <translation>Szeregowy</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adres</translation>
    </message>
    <message>
        <source>Fix</source>
        <translation>Rodzaj poz.</translation>
    </message>
    <message>
        <source>Age</source>
        <translation>Wiek</translation>
    </message>
    <message>
        <source>Satellites</source>
        <translation>Satelity</translation>
    </message>
    <message>
        <source>HDOP</source>
        <translation>HDOP</translation>
    </message>
    <message>
        <source>Time (UTC)</source>
        <translation>Czas (UTC)</translation>
    </message>
    <message>
        <source>Lines</source>
        <translation>Wiersze</translation>
    </message>
    <message>
        <source>Sentences</source>
        <translation>Zdania</translation>
    </message>
    <message>
        <source>Bad checksums</source>
        <translation>Błędne sumy</translation>
    </message>
    <message>
        <source>Damaged lines</source>
        <translation>Uszkodz. wiersze</translation>
    </message>
    <message>
        <source>Address of the receiver</source>
        <translation>Adres odbiornika</translation>
    </message>
</context>
<context>
    <name>RegionPage</name>
    <message>
        <source>Date</source>
        <translation>Data</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Czas</translation>
    </message>
    <message>
        <source>Time zone</source>
        <translation>Strefa czasowa</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>Data i godzina</translation>
    </message>
    <message>
        <source>Set by hand</source>
        <translation>Ustaw ręcznie</translation>
    </message>
</context>
<context>
    <name>SearchPage</name>
    <message>
        <source>Search</source>
        <translation>Szukaj</translation>
    </message>
    <message>
        <source>Words of a setting</source>
        <translation>Szukane słowa</translation>
    </message>
    <message>
        <source>No setting has these words.</source>
        <translation>Nie znaleziono takich ustawień.</translation>
    </message>
</context>
<context>
    <name>SettingsPage</name>
    <message>
        <source>Units</source>
        <translation>Jednostki</translation>
    </message>
    <message>
        <source>Region</source>
        <translation>Region</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>Kolory</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Wyświetlanie</translation>
    </message>
    <message>
        <source>Machine</source>
        <translation>Maszyna</translation>
    </message>
    <message>
        <source>Storage</source>
        <translation>Pamięć</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Informacje</translation>
    </message>
    <message>
        <source>Tiles</source>
        <translation>Kafelki</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>Profile</translation>
    </message>
    <message>
        <source>All settings</source>
        <translation>Wszystkie ustawienia</translation>
    </message>
</context>
<context>
    <name>SettingsPanel</name>
    <message>
        <source>Back</source>
        <translation>Wstecz</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Szukaj</translation>
    </message>
</context>
<context>
    <name>Sizes</name>
    <message numerus="yes">
        <source>%n byte(s)</source>
        <translation>
            <numerusform>%n bajt</numerusform>
            <numerusform>%n bajty</numerusform>
            <numerusform>%n bajtów</numerusform>
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
        <translation>Brak zlecenia</translation>
    </message>
    <message>
        <source>Receiver: %1</source>
        <translation>Odbiornik: %1</translation>
    </message>
    <message>
        <source>The stick is plugged in</source>
        <translation>Nośnik USB jest włożony</translation>
    </message>
    <message>
        <source>Lock the screen</source>
        <translation>Zablokuj ekran</translation>
    </message>
    <message>
        <source>Colours of the night</source>
        <translation>Kolory nocne</translation>
    </message>
    <message>
        <source>Colours of the day</source>
        <translation>Kolory dzienne</translation>
    </message>
</context>
<context>
    <name>StoragePage</name>
    <message>
        <source>Open</source>
        <translation>Otwórz</translation>
    </message>
    <message>
        <source>Internal drive</source>
        <translation>Dysk wewnętrzny</translation>
    </message>
    <message>
        <source>Stick</source>
        <translation>Nośnik USB</translation>
    </message>
    <message>
        <source>No stick is plugged in.</source>
        <translation>Nie włożono nośnika USB.</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Pamięć RAM</translation>
    </message>
    <message>
        <source>Logs</source>
        <translation>Dzienniki</translation>
    </message>
    <message>
        <source>Writes all log files to the stick</source>
        <translation>Zapisuje wszystkie dzienniki na nośniku USB</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Eksportuj</translation>
    </message>
    <message>
        <source>Export the logs</source>
        <translation>Eksportuj dzienniki</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>Profile</translation>
    </message>
    <message>
        <source>Takes the settings to another display, or brings them back from the stick</source>
        <translation>Przenosi ustawienia na inny wyświetlacz lub przywraca je z nośnika USB</translation>
    </message>
    <message>
        <source>Open the profiles</source>
        <translation>Otwórz profile</translation>
    </message>
    <message>
        <source>Support</source>
        <translation>Serwis</translation>
    </message>
    <message>
        <source>Writes logs, settings and versions in one file; without the names of clients, farms and fields</source>
        <translation>Zapisuje dzienniki, ustawienia i wersje w jednym pliku; bez nazw klientów, gospodarstw i pól</translation>
    </message>
    <message>
        <source>Write</source>
        <translation>Zapisz</translation>
    </message>
    <message>
        <source>Write the file for support without names</source>
        <translation>Zapisz plik dla serwisu bez nazw</translation>
    </message>
    <message>
        <source>Support, with names</source>
        <translation>Serwis, z nazwami</translation>
    </message>
    <message>
        <source>The same file, with all names and places</source>
        <translation>Ten sam plik, ze wszystkimi nazwami i miejscami</translation>
    </message>
    <message>
        <source>Write the file for support with names</source>
        <translation>Zapisz plik dla serwisu z nazwami</translation>
    </message>
</context>
<context>
    <name>TFieldTreeModel</name>
    <message>
        <source>A job holds no items.</source>
        <translation>Zlecenie nie ma elementów.</translation>
    </message>
    <message>
        <source>There is one with this name already.</source>
        <translation>Ta nazwa już istnieje.</translation>
    </message>
    <message numerus="yes">
        <source>%n file(s), %1</source>
        <translation>
            <numerusform>%n plik, %1</numerusform>
            <numerusform>%n pliki, %1</numerusform>
            <numerusform>%n plików, %1</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>TParameter</name>
    <message>
        <source>The setting could not be written to the disk yet.</source>
        <translation>Ustawienia nie udało się jeszcze zapisać na dysku.</translation>
    </message>
    <message>
        <source>There is no value to set.</source>
        <translation>Nie ma wartości do ustawienia.</translation>
    </message>
</context>
<context>
    <name>TRegionSettings</name>
    <message>
        <source>Jan</source>
        <translation>sty</translation>
    </message>
    <message>
        <source>Feb</source>
        <translation>lut</translation>
    </message>
    <message>
        <source>Mar</source>
        <translation>mar</translation>
    </message>
    <message>
        <source>Apr</source>
        <translation>kwi</translation>
    </message>
    <message>
        <source>May</source>
        <translation>maj</translation>
    </message>
    <message>
        <source>Jun</source>
        <translation>cze</translation>
    </message>
    <message>
        <source>Jul</source>
        <translation>lip</translation>
    </message>
    <message>
        <source>Aug</source>
        <translation>sie</translation>
    </message>
    <message>
        <source>Sep</source>
        <translation>wrz</translation>
    </message>
    <message>
        <source>Oct</source>
        <translation>paź</translation>
    </message>
    <message>
        <source>Nov</source>
        <translation>lis</translation>
    </message>
    <message>
        <source>Dec</source>
        <translation>gru</translation>
    </message>
</context>
<context>
    <name>TRestart</name>
    <message>
        <source>The new language is shown after a restart.</source>
        <translation>Nowy język pojawi się po restarcie.</translation>
    </message>
    <message>
        <source>The new decimal sign is shown after a restart.</source>
        <translation>Nowy znak dziesiętny pojawi się po restarcie.</translation>
    </message>
</context>
<context>
    <name>TSelections</name>
    <message>
        <source>The selection could not be stored.</source>
        <translation>Nie udało się zapisać wyboru.</translation>
    </message>
</context>
<context>
    <name>TSystemSettings</name>
    <message>
        <source>J_</source>
        <translation>Z_</translation>
    </message>
    <message>
        <source>B_</source>
        <translation>G_</translation>
    </message>
    <message>
        <source>L_</source>
        <translation>L_</translation>
    </message>
    <message>
        <source>P_</source>
        <translation>LK_</translation>
    </message>
    <message>
        <source>C_</source>
        <translation>K_</translation>
    </message>
    <message>
        <source>O_</source>
        <translation>O_</translation>
    </message>
    <message>
        <source>No Vehicle</source>
        <translation>Brak pojazdu</translation>
    </message>
    <message>
        <source>No Profile</source>
        <translation>Brak profilu</translation>
    </message>
    <message>
        <source>No Implement</source>
        <translation>Brak narzędzia</translation>
    </message>
    <message>
        <source>Pivoted_</source>
        <translation>Ciągnione_</translation>
    </message>
</context>
<context>
    <name>TTransfer</name>
    <message>
        <source>The name is empty.</source>
        <translation>Nazwa jest pusta.</translation>
    </message>
</context>
<context>
    <name>TUnitAbbreviations</name>
    <message>
        <source>Jan</source>
        <translation>sty</translation>
    </message>
    <message>
        <source>Feb</source>
        <translation>lut</translation>
    </message>
    <message>
        <source>Mar</source>
        <translation>mar</translation>
    </message>
    <message>
        <source>Apr</source>
        <translation>kwi</translation>
    </message>
    <message>
        <source>May</source>
        <translation>maj</translation>
    </message>
    <message>
        <source>Jun</source>
        <translation>cze</translation>
    </message>
    <message>
        <source>Jul</source>
        <translation>lip</translation>
    </message>
    <message>
        <source>Aug</source>
        <translation>sie</translation>
    </message>
    <message>
        <source>Sep</source>
        <translation>wrz</translation>
    </message>
    <message>
        <source>Oct</source>
        <translation>paź</translation>
    </message>
    <message>
        <source>Nov</source>
        <translation>lis</translation>
    </message>
    <message>
        <source>Dec</source>
        <translation>gru</translation>
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
        <translation>mil</translation>
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
        <translation>l</translation>
    </message>
    <message>
        <source>gal</source>
        <translation>gal</translation>
    </message>
    <message>
        <source>mL</source>
        <translation>ml</translation>
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
        <translation>l/ha</translation>
    </message>
    <message>
        <source>L/ac</source>
        <translation>l/ac</translation>
    </message>
    <message>
        <source>mL/ha</source>
        <translation>ml/ha</translation>
    </message>
    <message>
        <source>mL/ac</source>
        <translation>ml/ac</translation>
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
        <translation>l/100m</translation>
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
        <translation>l/min</translation>
    </message>
    <message>
        <source>gal/min</source>
        <translation>gal/min</translation>
    </message>
    <message>
        <source>mL/min</source>
        <translation>ml/min</translation>
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
        <translation>l/obr</translation>
    </message>
    <message>
        <source>gal/rev</source>
        <translation>gal/obr</translation>
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
        <translation>m/imp</translation>
    </message>
    <message>
        <source>ft/pulse</source>
        <translation>ft/imp</translation>
    </message>
    <message>
        <source>pulses/L</source>
        <translation>imp/l</translation>
    </message>
    <message>
        <source>pulses/gal</source>
        <translation>imp/gal</translation>
    </message>
    <message>
        <source>pulses/mL</source>
        <translation>imp/ml</translation>
    </message>
    <message>
        <source>pulses/fl.oz</source>
        <translation>imp/fl.oz</translation>
    </message>
    <message>
        <source>pulses/m³</source>
        <translation>imp/m³</translation>
    </message>
    <message>
        <source>pulses/ft³</source>
        <translation>imp/ft³</translation>
    </message>
    <message>
        <source>pulses/t</source>
        <translation>imp/t</translation>
    </message>
    <message>
        <source>pulses/lb</source>
        <translation>imp/lb</translation>
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
        <translation>kg/obr</translation>
    </message>
    <message>
        <source>lb/rev</source>
        <translation>lb/obr</translation>
    </message>
    <message>
        <source>kg/L</source>
        <translation>kg/l</translation>
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
        <translation>imp/kgN</translation>
    </message>
    <message>
        <source>pulses/lbN</source>
        <translation>imp/lbN</translation>
    </message>
    <message>
        <source>KS/ha</source>
        <translation>tys./ha</translation>
    </message>
    <message>
        <source>KS/ac</source>
        <translation>tys./ac</translation>
    </message>
    <message>
        <source>s</source>
        <translation>s</translation>
    </message>
    <message>
        <source>ms</source>
        <translation>ms</translation>
    </message>
    <message>
        <source>min</source>
        <translation>min</translation>
    </message>
    <message>
        <source>hrs</source>
        <translation>h</translation>
    </message>
    <message>
        <source>Hz</source>
        <translation>Hz</translation>
    </message>
    <message>
        <source>rpm</source>
        <translation>obr/min</translation>
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
        <translation>Krytyczne</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Zwykłe</translation>
    </message>
    <message>
        <source>Trivial</source>
        <translation>Nieistotne</translation>
    </message>
</context>
<context>
    <name>TWork</name>
    <message>
        <source>An implement cannot have this width.</source>
        <translation>Ta szerokość robocza nie jest możliwa.</translation>
    </message>
    <message>
        <source>A file of this job cannot be used. %1</source>
        <translation>Nie można użyć pliku tego zlecenia. %1</translation>
    </message>
    <message>
        <source>Coverage was not complete and was left out: strips %1, bytes %2</source>
        <translation>Dane obrobionej powierzchni były niepełne i część pominięto: pasy %1, bajty %2</translation>
    </message>
    <message>
        <source>The file of the flags is damaged; new flags are not stored.</source>
        <translation>Plik flag jest uszkodzony; nowe flagi nie są zapisywane.</translation>
    </message>
    <message>
        <source>A file could not be stored. %1</source>
        <translation>Nie udało się zapisać pliku. %1</translation>
    </message>
    <message>
        <source>The file of the implement cannot be used. %1</source>
        <translation>Nie można użyć pliku narzędzia. %1</translation>
    </message>
    <message>
        <source>There is no line.</source>
        <translation>Nie ma linii.</translation>
    </message>
    <message>
        <source>The line has no name.</source>
        <translation>Linia nie ma nazwy.</translation>
    </message>
    <message>
        <source>The guidance line cannot be used. %1</source>
        <translation>Nie można użyć linii prowadzenia. %1</translation>
    </message>
    <message>
        <source>No job is chosen</source>
        <translation>Nie wybrano zlecenia</translation>
    </message>
    <message>
        <source>No job is chosen: what is covered is not stored.</source>
        <translation>Nie wybrano zlecenia: obrobiona powierzchnia nie jest zapisywana.</translation>
    </message>
    <message>
        <source>The coverage of this job cannot be used: what is covered is not stored.</source>
        <translation>Nie można użyć danych obróbki tego zlecenia: obrobiona powierzchnia nie jest zapisywana.</translation>
    </message>
    <message>
        <source>The coverage cannot be stored, and strips are lost: %1</source>
        <translation>Nie można zapisać obrobionej powierzchni, pasy są tracone: %1</translation>
    </message>
    <message>
        <source>The coverage is kept in memory until it can be stored. %1</source>
        <translation>Obrobiona powierzchnia pozostaje w pamięci, aż będzie można ją zapisać. %1</translation>
    </message>
    <message>
        <source>The job is still being read.</source>
        <translation>Zlecenie jest jeszcze wczytywane.</translation>
    </message>
</context>
<context>
    <name>TileTurner</name>
    <message>
        <source>Tiles</source>
        <translation>Kafelki</translation>
    </message>
</context>
<context>
    <name>Tiles</name>
    <message>
        <source>Rate</source>
        <translation>Dawka</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Prędkość</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>Pow.</translation>
    </message>
    <message>
        <source>Left</source>
        <comment>area that is left to work</comment>
        <translation>Zostało</translation>
    </message>
    <message>
        <source>Work</source>
        <comment>area per hour</comment>
        <translation>Wydajn.</translation>
    </message>
    <message>
        <source>Flow</source>
        <translation>Przepływ</translation>
    </message>
    <message>
        <source>Press.</source>
        <comment>pressure</comment>
        <translation>Ciśn.</translation>
    </message>
    <message>
        <source>Temp.</source>
        <comment>temperature</comment>
        <translation>Temp.</translation>
    </message>
    <message>
        <source>Driven</source>
        <translation>Droga</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Pozycja</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Czas</translation>
    </message>
</context>
<context>
    <name>TilesPage</name>
    <message>
        <source>Back to the first choice</source>
        <translation>Powrót do wyboru domyślnego</translation>
    </message>
    <message>
        <source>%1 further ahead</source>
        <translation>%1: przesuń do przodu</translation>
    </message>
    <message>
        <source>Shown</source>
        <translation>Widoczny</translation>
    </message>
    <message>
        <source>Hidden</source>
        <translation>Ukryty</translation>
    </message>
</context>
<context>
    <name>Transfer</name>
    <message>
        <source>Nothing is imported: some settings were changed here and in the profile.</source>
        <translation>Nic nie zaimportowano: niektóre ustawienia zmieniono tutaj i w profilu.</translation>
    </message>
    <message>
        <source>No stick is plugged in.</source>
        <translation>Nie włożono nośnika USB.</translation>
    </message>
    <message>
        <source>The stick was removed before everything was on it.</source>
        <translation>Nośnik USB wyjęto, zanim zapisano na nim wszystko.</translation>
    </message>
    <message>
        <source>The stick could not be written to the end.</source>
        <translation>Nie udało się dokończyć zapisu na nośniku USB.</translation>
    </message>
    <message>
        <source>The folder %1 cannot be made.</source>
        <translation>Nie można utworzyć folderu %1.</translation>
    </message>
    <message>
        <source>The file %1 cannot be written.</source>
        <translation>Nie można zapisać pliku %1.</translation>
    </message>
    <message>
        <source>The logs are on the stick (files: %1).</source>
        <translation>Dzienniki są na nośniku USB (pliki: %1).</translation>
    </message>
    <message>
        <source>The profile cannot be used. %1</source>
        <translation>Nie można użyć profilu. %1</translation>
    </message>
    <message>
        <source>Nothing is imported. %1</source>
        <translation>Nic nie zaimportowano. %1</translation>
    </message>
    <message>
        <source>This display</source>
        <translation>Ten wyświetlacz</translation>
    </message>
    <message>
        <source>Another display</source>
        <translation>Inny wyświetlacz</translation>
    </message>
    <message>
        <source>The profile is not on the stick. %1</source>
        <translation>Profilu nie ma na nośniku USB. %1</translation>
    </message>
    <message>
        <source>The profile is on the stick: %1.</source>
        <translation>Profil jest na nośniku USB: %1.</translation>
    </message>
    <message>
        <source>The file for support is not on the stick. %1</source>
        <translation>Pliku dla serwisu nie ma na nośniku USB. %1</translation>
    </message>
    <message>
        <source>The file for support is on the stick: %1.</source>
        <translation>Plik dla serwisu jest na nośniku USB: %1.</translation>
    </message>
    <message>
        <source>The profile is imported (settings changed: %1).</source>
        <translation>Profil zaimportowano (zmienione ustawienia: %1).</translation>
    </message>
    <message>
        <source>It cannot be used.</source>
        <translation>Nie można użyć.</translation>
    </message>
</context>
<context>
    <name>TransferState</name>
    <message>
        <source>Reading</source>
        <translation>Odczytywanie</translation>
    </message>
    <message>
        <source>Writing</source>
        <translation>Zapisywanie</translation>
    </message>
    <message>
        <source>Leave the stick where it is until this is done.</source>
        <translation>Nie wyjmuj nośnika USB do zakończenia operacji.</translation>
    </message>
</context>
<context>
    <name>WorkPage</name>
    <message>
        <source>Waiting for a position</source>
        <translation>Oczekiwanie na pozycję</translation>
    </message>
    <message>
        <source>Map</source>
        <translation>Mapa</translation>
    </message>
</context>
<context>
    <name>WorkingButton</name>
    <message>
        <source>Working</source>
        <translation>Pracuje</translation>
    </message>
    <message>
        <source>Not working</source>
        <translation>Nie pracuje</translation>
    </message>
    <message>
        <source>Working. Switch the implement off</source>
        <translation>Pracuje. Wyłącz narzędzie</translation>
    </message>
    <message>
        <source>Not working. Switch the implement on</source>
        <translation>Nie pracuje. Włącz narzędzie</translation>
    </message>
</context>
</TS>
