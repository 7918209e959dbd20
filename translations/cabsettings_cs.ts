<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="cs" sourcelanguage="en">
<context>
    <name>About</name>
    <message>
        <source>Windows, files and connections</source>
        <translation>Okna, soubory a připojení</translation>
    </message>
    <message>
        <source>The file of the settings</source>
        <translation>Soubor nastavení</translation>
    </message>
    <message>
        <source>Profiles of settings</source>
        <translation>Profily nastavení</translation>
    </message>
    <message>
        <source>Files for support</source>
        <translation>Soubory pro podporu</translation>
    </message>
    <message>
        <source>Sunrise and sunset</source>
        <translation>Východ a západ slunce</translation>
    </message>
    <message>
        <source>Boundaries and zones</source>
        <translation>Hranice a zóny</translation>
    </message>
    <message>
        <source>Software</source>
        <translation>Software</translation>
    </message>
    <message>
        <source>The software of this display</source>
        <translation>Software tohoto displeje</translation>
    </message>
    <message>
        <source>Settings, units and logs</source>
        <translation>Nastavení, jednotky a protokoly</translation>
    </message>
</context>
<context>
    <name>Clock</name>
    <message>
        <source>The clock of the machine; nothing has set it.</source>
        <translation>Hodiny stroje; nebyly nastaveny.</translation>
    </message>
    <message>
        <source>The clock was set by hand.</source>
        <translation>Hodiny byly nastaveny ručně.</translation>
    </message>
    <message>
        <source>The receiver sets the clock.</source>
        <translation>Hodiny nastavuje přijímač.</translation>
    </message>
    <message>
        <source>There is no such date or time.</source>
        <translation>Takové datum nebo čas neexistuje.</translation>
    </message>
    <message>
        <source>The date is more than 68 years from the clock of the machine.</source>
        <translation>Datum se liší o více než 68 let od hodin stroje.</translation>
    </message>
    <message>
        <source>The clock could not be stored.</source>
        <translation>Čas hodin se nepodařilo uložit.</translation>
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
        <translation>Měsíc</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Den</translation>
    </message>
    <message>
        <source>Hour</source>
        <translation>Hodina</translation>
    </message>
    <message>
        <source>Minute</source>
        <translation>Minuta</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>Datum a čas</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Čas</translation>
    </message>
    <message>
        <source>%1: more</source>
        <translation>%1: více</translation>
    </message>
    <message>
        <source>%1: less</source>
        <translation>%1: méně</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Zrušit</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>Nastavit</translation>
    </message>
</context>
<context>
    <name>ColorBar</name>
    <message>
        <source>%1: less</source>
        <translation>%1: méně</translation>
    </message>
    <message>
        <source>%1: more</source>
        <translation>%1: více</translation>
    </message>
</context>
<context>
    <name>ColorPage</name>
    <message>
        <source>Former</source>
        <translation>Předchozí</translation>
    </message>
    <message>
        <source>Former colour</source>
        <translation>Předchozí barva</translation>
    </message>
    <message>
        <source>First value</source>
        <translation>Výchozí</translation>
    </message>
    <message>
        <source>Digits of the colour</source>
        <translation>Číslice barvy</translation>
    </message>
    <message>
        <source>Hue</source>
        <translation>Odstín</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Sytost</translation>
    </message>
    <message>
        <source>Lightness</source>
        <translation>Světlost</translation>
    </message>
</context>
<context>
    <name>ColorsPage</name>
    <message>
        <source>Day</source>
        <translation>Den</translation>
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
        <translation>na „%1“: %2</translation>
    </message>
    <message>
        <source>under %1: %2</source>
        <translation>pod „%1“: %2</translation>
    </message>
    <message>
        <source>%1, too low: at least %2</source>
        <translation>%1, příliš nízký: nejméně %2</translation>
    </message>
</context>
<context>
    <name>Difference</name>
    <message>
        <source>Changed on both sides</source>
        <translation>Změněno na obou stranách</translation>
    </message>
    <message>
        <source>Here</source>
        <translation>Zde</translation>
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
        <translation>Restartovat</translation>
    </message>
    <message>
        <source>The fonts of the display</source>
        <translation>Písma displeje</translation>
    </message>
    <message>
        <source>The keyboard on the screen</source>
        <translation>Klávesnice na obrazovce</translation>
    </message>
</context>
<context>
    <name>DoorBand</name>
    <message>
        <source>Work</source>
        <translation>Práce</translation>
    </message>
    <message>
        <source>Fields</source>
        <translation>Pole</translation>
    </message>
    <message>
        <source>Receiver</source>
        <translation>Přijímač</translation>
    </message>
    <message>
        <source>Logs</source>
        <translation>Protokoly</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Nastavení</translation>
    </message>
</context>
<context>
    <name>Drives</name>
    <message>
        <source>%1 free of %2</source>
        <translation>%1 volných z %2</translation>
    </message>
    <message>
        <source>Not known</source>
        <translation>Není známo</translation>
    </message>
    <message>
        <source>No stick</source>
        <translation>Není USB</translation>
    </message>
</context>
<context>
    <name>FieldsPage</name>
    <message>
        <source>Clients</source>
        <translation>Zákazníci</translation>
    </message>
    <message>
        <source>New client</source>
        <translation>Nový zákazník</translation>
    </message>
    <message>
        <source>No client yet.</source>
        <translation>Zatím žádný zákazník.</translation>
    </message>
    <message>
        <source>Farms</source>
        <translation>Farmy</translation>
    </message>
    <message>
        <source>New farm</source>
        <translation>Nová farma</translation>
    </message>
    <message>
        <source>No farm yet.</source>
        <translation>Zatím žádná farma.</translation>
    </message>
    <message>
        <source>Fields</source>
        <translation>Pole</translation>
    </message>
    <message>
        <source>New field</source>
        <translation>Nové pole</translation>
    </message>
    <message>
        <source>No field yet.</source>
        <translation>Zatím žádné pole.</translation>
    </message>
    <message>
        <source>Jobs</source>
        <translation>Zakázky</translation>
    </message>
    <message>
        <source>New job</source>
        <translation>Nová zakázka</translation>
    </message>
    <message>
        <source>No job yet.</source>
        <translation>Zatím žádná zakázka.</translation>
    </message>
    <message>
        <source>Remove %1 with everything in it?</source>
        <translation>Odstranit %1 s celým obsahem?</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Rename or remove %1</source>
        <translation>Přejmenovat/odstranit: %1</translation>
    </message>
    <message>
        <source>Rename %1</source>
        <translation>Přejmenovat: %1</translation>
    </message>
    <message>
        <source>Remove everything</source>
        <translation>Odstranit vše</translation>
    </message>
</context>
<context>
    <name>Host</name>
    <message>
        <source>Details for the support: %1</source>
        <translation>Podrobnosti pro podporu: %1</translation>
    </message>
    <message>
        <source>%3 Try: %4</source>
        <translation>%3 Lze použít: %4</translation>
    </message>
    <message>
        <source>This name is not possible.</source>
        <translation>Tento název není možný.</translation>
    </message>
    <message>
        <source>The name is empty.</source>
        <translation>Název je prázdný.</translation>
    </message>
    <message>
        <source>This name stands for another folder.</source>
        <translation>Tento název označuje jinou složku.</translation>
    </message>
    <message>
        <source>The name must not contain %1.</source>
        <translation>Název nesmí obsahovat %1.</translation>
    </message>
    <message>
        <source>The name contains a sign that cannot be seen.</source>
        <translation>Název obsahuje znak, který není vidět.</translation>
    </message>
    <message>
        <source>The name contains a sign that is not complete.</source>
        <translation>Název obsahuje neúplný znak.</translation>
    </message>
    <message>
        <source>The name must not end in a full stop or a blank.</source>
        <translation>Název nesmí končit tečkou ani mezerou.</translation>
    </message>
    <message>
        <source>The name must not begin with a blank.</source>
        <translation>Název nesmí začínat mezerou.</translation>
    </message>
    <message>
        <source>A stick cannot hold a file with this name.</source>
        <translation>Na USB disku nemůže být soubor s tímto názvem.</translation>
    </message>
    <message>
        <source>The name is too long.</source>
        <translation>Název je příliš dlouhý.</translation>
    </message>
    <message>
        <source>%2 exists already.</source>
        <translation>%2 už existuje.</translation>
    </message>
    <message numerus="yes">
        <source>%2 is active and holds %n file(s).</source>
        <translation>
            <numerusform>%2 je aktivní a obsahuje %n soubor.</numerusform>
            <numerusform>%2 je aktivní a obsahuje %n soubory.</numerusform>
            <numerusform>%2 je aktivní a obsahuje %n souborů.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%2 holds %n file(s).</source>
        <translation>
            <numerusform>%2 obsahuje %n soubor.</numerusform>
            <numerusform>%2 obsahuje %n soubory.</numerusform>
            <numerusform>%2 obsahuje %n souborů.</numerusform>
        </translation>
    </message>
    <message>
        <source>%2 is active.</source>
        <translation>%2 je aktivní.</translation>
    </message>
    <message>
        <source>%2 is no longer there.</source>
        <translation>%2 už neexistuje.</translation>
    </message>
    <message>
        <source>A stick cannot tell %2 from %3.</source>
        <translation>Na USB disku nelze rozlišit %2 a %3.</translation>
    </message>
    <message>
        <source>Another program is working on the fields. Try again later.</source>
        <translation>S poli pracuje jiný program. Zkusit později znovu.</translation>
    </message>
    <message>
        <source>The selection could not be stored.</source>
        <translation>Výběr se nepodařilo uložit.</translation>
    </message>
    <message>
        <source>%1 is neither a file nor a folder.</source>
        <translation>%1 není soubor ani složka.</translation>
    </message>
    <message>
        <source>The file was edited or is damaged.</source>
        <translation>Soubor byl změněn nebo je poškozen.</translation>
    </message>
    <message>
        <source>%1 cannot be read. %2</source>
        <translation>%1 nelze přečíst. %2</translation>
    </message>
    <message>
        <source>The file is of another kind.</source>
        <translation>Soubor je jiného druhu.</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>Soubor je prázdný.</translation>
    </message>
    <message>
        <source>The end of the file is missing.</source>
        <translation>Chybí konec souboru.</translation>
    </message>
    <message>
        <source>The file is damaged.</source>
        <translation>Soubor je poškozen.</translation>
    </message>
    <message>
        <source>The file is not complete.</source>
        <translation>Soubor není úplný.</translation>
    </message>
    <message>
        <source>The file is from another version of the software.</source>
        <translation>Soubor je z jiné verze softwaru.</translation>
    </message>
    <message>
        <source>The file has a value that is not possible: %2</source>
        <translation>Soubor obsahuje hodnotu, která není možná: %2</translation>
    </message>
    <message>
        <source>The file has a value twice: %2</source>
        <translation>Nastavení je v souboru dvakrát: %2</translation>
    </message>
    <message>
        <source>This address is not possible: %1</source>
        <translation>Tato adresa není možná: %1</translation>
    </message>
    <message>
        <source>The device is not there.</source>
        <translation>Zařízení není připojeno.</translation>
    </message>
    <message>
        <source>It is not permitted, or another program uses it.</source>
        <translation>Není to povoleno, nebo to používá jiný program.</translation>
    </message>
    <message>
        <source>Another program uses it.</source>
        <translation>Používá to jiný program.</translation>
    </message>
    <message>
        <source>It cannot be read.</source>
        <translation>Nelze přečíst.</translation>
    </message>
    <message>
        <source>It was unplugged.</source>
        <translation>Zařízení bylo odpojeno.</translation>
    </message>
    <message>
        <source>It is not a serial device, or it cannot have this speed.</source>
        <translation>Není to sériové zařízení, nebo nemůže mít tuto rychlost.</translation>
    </message>
    <message>
        <source>The serial port has a fault (number %1).</source>
        <translation>Sériový port má závadu (číslo %1).</translation>
    </message>
    <message>
        <source>%1 is damaged or of another kind.</source>
        <translation>%1: data jsou poškozena nebo jiného druhu.</translation>
    </message>
    <message>
        <source>%1 is from another version of the software.</source>
        <translation>%1: data jsou z jiné verze softwaru.</translation>
    </message>
    <message>
        <source>%1 is damaged.</source>
        <translation>%1: data jsou poškozena.</translation>
    </message>
    <message>
        <source>%1 has other coordinates than WGS84.</source>
        <translation>%1: jiné souřadnice než WGS84.</translation>
    </message>
    <message>
        <source>%1 is not complete. %2 is missing.</source>
        <translation>%1: data nejsou úplná. Chybí %2.</translation>
    </message>
    <message>
        <source>%1 has no areas.</source>
        <translation>%1: žádné plochy.</translation>
    </message>
    <message>
        <source>Another program uses %1.</source>
        <translation>%1 používá jiný program.</translation>
    </message>
    <message>
        <source>A and B are too close together or too far apart.</source>
        <translation>A a B jsou příliš blízko nebo příliš daleko od sebe.</translation>
    </message>
    <message>
        <source>Another program has locked it.</source>
        <translation>Zamkl to jiný program.</translation>
    </message>
    <message>
        <source>It is no longer there.</source>
        <translation>Už neexistuje.</translation>
    </message>
    <message>
        <source>%1 is no longer there.</source>
        <translation>%1 už neexistuje.</translation>
    </message>
    <message>
        <source>%1 cannot be written. %2</source>
        <translation>%1 nelze zapsat. %2</translation>
    </message>
    <message>
        <source>%1 cannot be written.</source>
        <translation>%1 nelze zapsat.</translation>
    </message>
    <message>
        <source>The file of the settings has a fault (number %1).</source>
        <translation>Soubor nastavení má závadu (číslo %1).</translation>
    </message>
    <message>
        <source>%1 cannot be opened. %2</source>
        <translation>%1 nelze otevřít. %2</translation>
    </message>
    <message>
        <source>%1 cannot be created. %2</source>
        <translation>%1 nelze vytvořit. %2</translation>
    </message>
    <message>
        <source>%1 cannot be copied. %2</source>
        <translation>%1 nelze zkopírovat. %2</translation>
    </message>
    <message>
        <source>%1 cannot be renamed. %2</source>
        <translation>%1 nelze přejmenovat. %2</translation>
    </message>
    <message>
        <source>%1 cannot be removed. %2</source>
        <translation>%1 nelze odstranit. %2</translation>
    </message>
    <message>
        <source>The drive is full.</source>
        <translation>Disk je plný.</translation>
    </message>
    <message>
        <source>The drive has a fault.</source>
        <translation>Disk má závadu.</translation>
    </message>
    <message>
        <source>The drive can only be read.</source>
        <translation>Z disku lze pouze číst.</translation>
    </message>
    <message>
        <source>It is not permitted.</source>
        <translation>Není to povoleno.</translation>
    </message>
    <message>
        <source>It cannot be opened.</source>
        <translation>Nelze otevřít.</translation>
    </message>
    <message>
        <source>It is damaged.</source>
        <translation>Je poškozeno.</translation>
    </message>
    <message>
        <source>It is not there.</source>
        <translation>Cesta neexistuje.</translation>
    </message>
    <message>
        <source>It exists already.</source>
        <translation>Už existuje.</translation>
    </message>
    <message>
        <source>It is a folder.</source>
        <translation>Je to složka.</translation>
    </message>
    <message>
        <source>It is not a folder.</source>
        <translation>Není to složka.</translation>
    </message>
    <message>
        <source>The folder is not empty.</source>
        <translation>Složka není prázdná.</translation>
    </message>
    <message>
        <source>The file is too large.</source>
        <translation>Soubor je příliš velký.</translation>
    </message>
    <message>
        <source>Too many files are open.</source>
        <translation>Je otevřeno příliš mnoho souborů.</translation>
    </message>
    <message>
        <source>There is too little memory.</source>
        <translation>Je příliš málo paměti.</translation>
    </message>
    <message>
        <source>It is not possible there.</source>
        <translation>Tam to není možné.</translation>
    </message>
    <message>
        <source>The device refuses the connection.</source>
        <translation>Zařízení odmítá spojení.</translation>
    </message>
    <message>
        <source>The device has closed the connection.</source>
        <translation>Zařízení ukončilo spojení.</translation>
    </message>
    <message>
        <source>There is no device with this address.</source>
        <translation>Zařízení s touto adresou neexistuje.</translation>
    </message>
    <message>
        <source>The network cannot be reached.</source>
        <translation>Síť je nedostupná.</translation>
    </message>
    <message>
        <source>The device does not answer.</source>
        <translation>Zařízení neodpovídá.</translation>
    </message>
    <message>
        <source>It is a link to another place.</source>
        <translation>Je to odkaz na jiné místo.</translation>
    </message>
    <message>
        <source>There are too many links to it.</source>
        <translation>Vede na to příliš mnoho odkazů.</translation>
    </message>
</context>
<context>
    <name>ItemActions</name>
    <message>
        <source>Rename</source>
        <translation>Přejmenovat</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Odstranit</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Zrušit</translation>
    </message>
</context>
<context>
    <name>ItemPage</name>
    <message>
        <source>New</source>
        <translation>Přidat</translation>
    </message>
</context>
<context>
    <name>Keypad</name>
    <message>
        <source>%1 to %2 %3</source>
        <translation>%1 až %2 %3</translation>
    </message>
    <message>
        <source>At least %1 %2</source>
        <translation>Nejméně %1 %2</translation>
    </message>
    <message>
        <source>At most %1 %2</source>
        <translation>Nejvýše %1 %2</translation>
    </message>
    <message>
        <source>This is not a number yet.</source>
        <translation>Toto ještě není číslo.</translation>
    </message>
    <message>
        <source>Too large.
%1</source>
        <translation>Příliš velké.
%1</translation>
    </message>
    <message>
        <source>Too small.
%1</source>
        <translation>Příliš malé.
%1</translation>
    </message>
    <message>
        <source>now %1</source>
        <translation>nyní %1</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Zrušit</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>Nastavit</translation>
    </message>
    <message>
        <source>Decimal sign</source>
        <translation>Desetinný znak</translation>
    </message>
    <message>
        <source>Plus or minus</source>
        <translation>Plus nebo minus</translation>
    </message>
    <message>
        <source>Remove the last sign</source>
        <translation>Odstranit poslední znak</translation>
    </message>
    <message>
        <source>C</source>
        <comment>key that clears the entry</comment>
        <translation>C</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Vymazat</translation>
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
        <translation>Nastavit zde A, první konec linie</translation>
    </message>
    <message>
        <source>B</source>
        <comment>the other end of the guidance line</comment>
        <translation>B</translation>
    </message>
    <message>
        <source>Set B, the other end of the line, here</source>
        <translation>Nastavit zde B, druhý konec linie</translation>
    </message>
    <message>
        <source>Set a flag here</source>
        <translation>Umístit zde značku</translation>
    </message>
</context>
<context>
    <name>LineChoice</name>
    <message>
        <source>New</source>
        <translation>Nová</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Zrušit</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Zastavit</translation>
    </message>
</context>
<context>
    <name>LinePanel</name>
    <message>
        <source>%1 to the left</source>
        <translation>%1 doleva</translation>
    </message>
    <message>
        <source>%1 to the right</source>
        <translation>%1 doprava</translation>
    </message>
</context>
<context>
    <name>LockLayer</name>
    <message>
        <source>The screen is locked. Hold the button to unlock it.</source>
        <translation>Obrazovka je zamčená. K odemčení podržet tlačítko.</translation>
    </message>
    <message>
        <source>Unlock</source>
        <translation>Odemknout</translation>
    </message>
</context>
<context>
    <name>LogsPage</name>
    <message>
        <source>Logs</source>
        <translation>Protokoly</translation>
    </message>
    <message>
        <source>Events</source>
        <translation>Události</translation>
    </message>
    <message>
        <source>Receiver</source>
        <translation>Přijímač</translation>
    </message>
    <message>
        <source>Go on</source>
        <translation>Pokračovat</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pozastavit</translation>
    </message>
    <message>
        <source>No line yet.</source>
        <translation>Zatím žádný řádek.</translation>
    </message>
</context>
<context>
    <name>MachinePage</name>
    <message>
        <source>Implement width</source>
        <translation>Pracovní záběr</translation>
    </message>
    <message>
        <source>Decides the guidance lines beside each other, and the area done</source>
        <translation>Určuje rozestup naváděcích linií a zpracovanou plochu</translation>
    </message>
    <message>
        <source>Implement behind the antenna</source>
        <translation>Nářadí za anténou</translation>
    </message>
    <message>
        <source>How far the ground is covered behind the vehicle&apos;s place</source>
        <translation>Jak daleko za polohou vozidla se půda zpracovává</translation>
    </message>
</context>
<context>
    <name>Main</name>
    <message>
        <source>Cab display</source>
        <translation>Displej v kabině</translation>
    </message>
</context>
<context>
    <name>MapButtons</name>
    <message>
        <source>Zoom in</source>
        <translation>Přiblížit</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Oddálit</translation>
    </message>
    <message>
        <source>The heading is up. Turn north up</source>
        <translation>Směr jízdy je nahoře. Otočit severem nahoru</translation>
    </message>
    <message>
        <source>North is up. Turn the heading up</source>
        <translation>Sever je nahoře. Otočit směrem jízdy nahoru</translation>
    </message>
    <message>
        <source>Centre the vehicle</source>
        <translation>Vozidlo do středu</translation>
    </message>
</context>
<context>
    <name>NameEntry</name>
    <message>
        <source>Cancel</source>
        <translation>Zrušit</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>Nastavit</translation>
    </message>
</context>
<context>
    <name>PageTurner</name>
    <message>
        <source>Rows above</source>
        <translation>Řádky výše</translation>
    </message>
    <message>
        <source>Rows below</source>
        <translation>Řádky níže</translation>
    </message>
</context>
<context>
    <name>ParameterRow</name>
    <message>
        <source>%1: back to the first value</source>
        <translation>%1: zpět na výchozí hodnotu</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Otevřít</translation>
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
        <translation>absolutní cesta, která končí „/“ a není „/“</translation>
    </message>
    <message>
        <source>an absolute path</source>
        <translation>absolutní cesta</translation>
    </message>
    <message>
        <source>a UUID in small letters, such as 6ba7b810-9dad-41d1-80b4-00c04fd430c8</source>
        <translation>UUID malými písmeny, např. 6ba7b810-9dad-41d1-80b4-00c04fd430c8</translation>
    </message>
    <message>
        <source>simulator, tcp://HOST:PORT, serial:///dev/NAME?baud=N or an absolute path</source>
        <translation>simulator, tcp://HOST:PORT, serial:///dev/NAME?baud=N nebo absolutní cesta</translation>
    </message>
    <message>
        <source>true or false</source>
        <translation>true nebo false</translation>
    </message>
    <message>
        <source>a time in UTC, such as 2026-03-05T13:05:09Z</source>
        <translation>čas v UTC, např. 2026-03-05T13:05:09Z</translation>
    </message>
    <message>
        <source>a colour: #rrggbb, #aarrggbb or a name such as navy</source>
        <translation>barva: #rrggbb, #aarrggbb nebo název, např. navy</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 až %2</translation>
    </message>
    <message>
        <source>Not a whole number.</source>
        <translation>Není celé číslo.</translation>
    </message>
    <message>
        <source>Below the least value.</source>
        <translation>Pod nejmenší hodnotou.</translation>
    </message>
    <message>
        <source>Above the greatest value.</source>
        <translation>Nad největší hodnotou.</translation>
    </message>
    <message>
        <source>This cannot be the name of a file. Try: %1</source>
        <translation>Soubor nemůže mít tento název. Lze použít: %1</translation>
    </message>
    <message>
        <source>Not accepted. Expected: %1.</source>
        <translation>Nelze přijmout. Očekává se: %1.</translation>
    </message>
    <message>
        <source>a name without %1</source>
        <translation>název bez %1</translation>
    </message>
    <message>
        <source>a whole number</source>
        <translation>celé číslo</translation>
    </message>
    <message>
        <source>At least %1</source>
        <translation>Nejméně %1</translation>
    </message>
</context>
<context>
    <name>Parameters</name>
    <message>
        <source>the operator has chosen the offset from UTC; GPS time keeps it instead of computing it</source>
        <translation>obsluha zvolila posun od UTC; čas GPS jej zachová a nepočítá</translation>
    </message>
    <message>
        <source>metric units; otherwise US or English units</source>
        <translation>metrické jednotky; jinak americké nebo anglické</translation>
    </message>
    <message>
        <source>US measures when units are not metric; otherwise English measures</source>
        <translation>americké míry, pokud jednotky nejsou metrické; jinak anglické</translation>
    </message>
    <message>
        <source>positions in degrees, minutes and seconds; otherwise in decimal degrees</source>
        <translation>polohy ve stupních, minutách a sekundách; jinak v desetinných stupních</translation>
    </message>
    <message>
        <source>24-hour clock; otherwise 12 hours with am and pm</source>
        <translation>24hodinový formát; jinak 12 hodin s am a pm</translation>
    </message>
    <message>
        <source>dates with the month before the day</source>
        <translation>datum s měsícem před dnem</translation>
    </message>
    <message>
        <source>colours for day; otherwise for night</source>
        <translation>barvy pro den; jinak pro noc</translation>
    </message>
    <message>
        <source>the map turns with the vehicle; otherwise north is up</source>
        <translation>mapa se otáčí s vozidlem; jinak je sever nahoře</translation>
    </message>
    <message>
        <source>unit of pressures</source>
        <translation>jednotka tlaku</translation>
    </message>
    <message>
        <source>unit of areas, and of rates per area</source>
        <translation>jednotka plochy a dávek na plochu</translation>
    </message>
    <message>
        <source>unit of short distances: widths, offsets</source>
        <translation>jednotka krátkých vzdáleností: záběry, posuny</translation>
    </message>
    <message>
        <source>unit of granular volumes</source>
        <translation>jednotka objemu granulátu</translation>
    </message>
    <message>
        <source>unit of granular densities</source>
        <translation>jednotka hustoty granulátu</translation>
    </message>
    <message>
        <source>unit of liquid volumes, flows and rates</source>
        <translation>jednotka objemu, průtoku a dávek kapalin</translation>
    </message>
    <message>
        <source>language of the display&apos;s texts; a change needs a restart</source>
        <translation>jazyk textů displeje; změna vyžaduje restart</translation>
    </message>
    <message>
        <source>decimal point or comma; a change needs a restart</source>
        <translation>desetinná tečka nebo čárka; změna vyžaduje restart</translation>
    </message>
    <message>
        <source>when the colours switch between day and night: only by hand, at sunrise and sunset, or with the sun 6 degrees below the horizon</source>
        <translation>kdy se barvy přepínají mezi dnem a nocí: jen ručně, při východu a západu slunce, nebo když je slunce 6 stupňů pod obzorem</translation>
    </message>
    <message>
        <source>what set the display&apos;s clock</source>
        <translation>podle čeho jdou hodiny displeje</translation>
    </message>
    <message>
        <source>local time less UTC, whole hours</source>
        <translation>místní čas minus UTC, celé hodiny</translation>
    </message>
    <message>
        <source>local time less UTC, minutes beyond the hours, with the sign of the hours</source>
        <translation>místní čas minus UTC, minuty nad celé hodiny, se znaménkem hodin</translation>
    </message>
    <message>
        <source>brightness of the lightbar at night</source>
        <translation>jas světelné lišty v noci</translation>
    </message>
    <message>
        <source>brightness of the screen at night</source>
        <translation>jas obrazovky v noci</translation>
    </message>
    <message>
        <source>brightness of the button lights at night</source>
        <translation>jas světel tlačítek v noci</translation>
    </message>
    <message>
        <source>4: implements are kept in the folder of their vehicle; other numbers: in their own folder</source>
        <translation>4: nářadí je ve složce svého vozidla; jiná čísla: ve vlastní složce</translation>
    </message>
    <message>
        <source>number of the next file of the NMEA log</source>
        <translation>číslo dalšího souboru protokolu NMEA</translation>
    </message>
    <message>
        <source>number of the next file of the user log</source>
        <translation>číslo dalšího souboru protokolu obsluhy</translation>
    </message>
    <message>
        <source>the display&apos;s clock less UTC</source>
        <translation>hodiny displeje minus UTC</translation>
    </message>
    <message>
        <source>folder of the internal drive; by default in the data folder</source>
        <translation>složka vnitřního disku; výchozí je ve složce dat</translation>
    </message>
    <message>
        <source>mount point of the removable drive; by default in the data folder</source>
        <translation>přípojný bod USB disku; výchozí je ve složce dat</translation>
    </message>
    <message>
        <source>the identity of the terminal, which its profiles carry</source>
        <translation>označení terminálu, které nesou jeho profily</translation>
    </message>
    <message>
        <source>where the sentences of the receiver come from</source>
        <translation>odkud přicházejí věty přijímače</translation>
    </message>
    <message>
        <source>the figures beside the map, in this order</source>
        <translation>hodnoty vedle mapy, v tomto pořadí</translation>
    </message>
    <message>
        <source>the newest time of a receiver, as of the last day on which one was seen</source>
        <translation>nejnovější čas přijímače, z posledního dne s přijímačem</translation>
    </message>
    <message>
        <source>when the sun switched the colours last</source>
        <translation>kdy slunce naposledy přepnulo barvy</translation>
    </message>
    <message>
        <source>the active job</source>
        <translation>aktivní zakázka</translation>
    </message>
    <message>
        <source>the active boundary</source>
        <translation>aktivní hranice</translation>
    </message>
    <message>
        <source>the active straight guidance line</source>
        <translation>aktivní přímá naváděcí linie</translation>
    </message>
    <message>
        <source>the active pivot</source>
        <translation>aktivní kruhová linie</translation>
    </message>
    <message>
        <source>the active guidance curve</source>
        <translation>aktivní naváděcí křivka</translation>
    </message>
    <message>
        <source>the active shape file of optimal lines</source>
        <translation>aktivní soubor shape s optimálními liniemi</translation>
    </message>
    <message>
        <source>the active shape file of project lines</source>
        <translation>aktivní soubor shape s projektovými liniemi</translation>
    </message>
    <message>
        <source>the active shape file of zones</source>
        <translation>aktivní soubor shape se zónami</translation>
    </message>
    <message>
        <source>the active steering profile</source>
        <translation>aktivní profil řízení</translation>
    </message>
    <message>
        <source>the active implement</source>
        <translation>aktivní nářadí</translation>
    </message>
    <message>
        <source>the active vehicle</source>
        <translation>aktivní vozidlo</translation>
    </message>
    <message>
        <source>the active sprayer</source>
        <translation>aktivní postřikovač</translation>
    </message>
    <message>
        <source>the active boom leveller</source>
        <translation>aktivní vyrovnání ramen</translation>
    </message>
    <message>
        <source>the active client</source>
        <translation>aktivní zákazník</translation>
    </message>
    <message>
        <source>the active farm</source>
        <translation>aktivní farma</translation>
    </message>
    <message>
        <source>the active field</source>
        <translation>aktivní pole</translation>
    </message>
    <message>
        <source>Measures</source>
        <translation>Systém měr</translation>
    </message>
    <message>
        <source>Gallons and bushels</source>
        <translation>Galony a bušly</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>Plocha</translation>
    </message>
    <message>
        <source>Pressure</source>
        <translation>Tlak</translation>
    </message>
    <message>
        <source>Short distances</source>
        <translation>Krátké vzdálenosti</translation>
    </message>
    <message>
        <source>Liquid</source>
        <translation>Kapalina</translation>
    </message>
    <message>
        <source>Granular volume</source>
        <translation>Objem granulátu</translation>
    </message>
    <message>
        <source>Granular density</source>
        <translation>Hustota granulátu</translation>
    </message>
    <message>
        <source>Positions</source>
        <translation>Polohy</translation>
    </message>
    <message>
        <source>Rate per travel</source>
        <translation>Dávka na ujetou dráhu</translation>
    </message>
    <message>
        <source>Basis of rates</source>
        <translation>Základ dávek</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Jazyk</translation>
    </message>
    <message>
        <source>Decimal sign</source>
        <translation>Desetinný znak</translation>
    </message>
    <message>
        <source>Time of day</source>
        <translation>Formát času</translation>
    </message>
    <message>
        <source>Dates</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Time zone set by hand</source>
        <translation>Časové pásmo ručně</translation>
    </message>
    <message>
        <source>Time zone, hours</source>
        <translation>Časové pásmo, hodiny</translation>
    </message>
    <message>
        <source>Time zone, minutes</source>
        <translation>Časové pásmo, minuty</translation>
    </message>
    <message>
        <source>Clock less UTC</source>
        <translation>Hodiny minus UTC</translation>
    </message>
    <message>
        <source>Source of the time</source>
        <translation>Zdroj času</translation>
    </message>
    <message>
        <source>Source of the time since</source>
        <translation>Zdroj času od</translation>
    </message>
    <message>
        <source>Newest receiver time</source>
        <translation>Nejnovější čas přijímače</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>Barvy</translation>
    </message>
    <message>
        <source>Day and night</source>
        <translation>Den a noc</translation>
    </message>
    <message>
        <source>Map direction</source>
        <translation>Směr mapy</translation>
    </message>
    <message>
        <source>Tiles</source>
        <translation>Dlaždice</translation>
    </message>
    <message>
        <source>Light bar at night</source>
        <translation>Světelná lišta v noci</translation>
    </message>
    <message>
        <source>Screen at night</source>
        <translation>Obrazovka v noci</translation>
    </message>
    <message>
        <source>Button lights at night</source>
        <translation>Světla tlačítek v noci</translation>
    </message>
    <message>
        <source>Switched by the sun</source>
        <translation>Přepnuto sluncem</translation>
    </message>
    <message>
        <source>Client</source>
        <translation>Zákazník</translation>
    </message>
    <message>
        <source>Farm</source>
        <translation>Farma</translation>
    </message>
    <message>
        <source>Field</source>
        <translation>Pole</translation>
    </message>
    <message>
        <source>Job</source>
        <translation>Zakázka</translation>
    </message>
    <message>
        <source>Vehicle</source>
        <translation>Vozidlo</translation>
    </message>
    <message>
        <source>Implement</source>
        <translation>Nářadí</translation>
    </message>
    <message>
        <source>Sprayer</source>
        <translation>Postřikovač</translation>
    </message>
    <message>
        <source>Boom leveller</source>
        <translation>Vyrovnání ramen</translation>
    </message>
    <message>
        <source>Steering profile</source>
        <translation>Profil řízení</translation>
    </message>
    <message>
        <source>Boundary</source>
        <translation>Hranice</translation>
    </message>
    <message>
        <source>A-B line</source>
        <translation>Linie A-B</translation>
    </message>
    <message>
        <source>Pivot</source>
        <translation>Kruhová linie</translation>
    </message>
    <message>
        <source>Curve</source>
        <translation>Křivka</translation>
    </message>
    <message>
        <source>Optimal lines</source>
        <translation>Optimální linie</translation>
    </message>
    <message>
        <source>Project lines</source>
        <translation>Projektové linie</translation>
    </message>
    <message>
        <source>Zones</source>
        <translation>Zóny</translation>
    </message>
    <message>
        <source>Receiver address</source>
        <translation>Adresa přijímače</translation>
    </message>
    <message>
        <source>Internal drive</source>
        <translation>Vnitřní disk</translation>
    </message>
    <message>
        <source>Stick</source>
        <translation>USB disk</translation>
    </message>
    <message>
        <source>Implement folder</source>
        <translation>Složka nářadí</translation>
    </message>
    <message>
        <source>Next NMEA log</source>
        <translation>Další protokol NMEA</translation>
    </message>
    <message>
        <source>Next user log</source>
        <translation>Další protokol obsluhy</translation>
    </message>
    <message>
        <source>Identity</source>
        <translation>Označení</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Colour of texts</source>
        <translation>Barva textů</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Nadpis</translation>
    </message>
    <message>
        <source>Colour of titles</source>
        <translation>Barva nadpisů</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Pozadí</translation>
    </message>
    <message>
        <source>Colour of the background</source>
        <translation>Barva pozadí</translation>
    </message>
    <message>
        <source>Button</source>
        <translation>Tlačítko</translation>
    </message>
    <message>
        <source>Colour of buttons</source>
        <translation>Barva tlačítek</translation>
    </message>
    <message>
        <source>Button text</source>
        <translation>Text tlačítka</translation>
    </message>
    <message>
        <source>Colour of texts on buttons</source>
        <translation>Barva textů na tlačítkách</translation>
    </message>
    <message>
        <source>Map</source>
        <translation>Mapa</translation>
    </message>
    <message>
        <source>Colour of the map&apos;s ground</source>
        <translation>Barva podkladu mapy</translation>
    </message>
    <message>
        <source>Grid</source>
        <translation>Mřížka</translation>
    </message>
    <message>
        <source>Colour of the map&apos;s grid</source>
        <translation>Barva mřížky mapy</translation>
    </message>
    <message>
        <source>Coverage</source>
        <translation>Zpracováno</translation>
    </message>
    <message>
        <source>Colour of covered ground</source>
        <translation>Barva zpracované půdy</translation>
    </message>
    <message>
        <source>Vehicle on the map</source>
        <translation>Vozidlo na mapě</translation>
    </message>
    <message>
        <source>Colour of the vehicle</source>
        <translation>Barva vozidla</translation>
    </message>
    <message>
        <source>Guidance line</source>
        <translation>Naváděcí linie</translation>
    </message>
    <message>
        <source>Colour of the guidance line</source>
        <translation>Barva naváděcí linie</translation>
    </message>
    <message>
        <source>Cross hairs</source>
        <translation>Nitkový kříž</translation>
    </message>
    <message>
        <source>Colour of the cross hairs</source>
        <translation>Barva nitkového kříže</translation>
    </message>
    <message>
        <source>Outer boundary</source>
        <translation>Vnější hranice</translation>
    </message>
    <message>
        <source>Colour of the outer boundary of the field</source>
        <translation>Barva vnější hranice pole</translation>
    </message>
    <message>
        <source>Inner boundary</source>
        <translation>Vnitřní hranice</translation>
    </message>
    <message>
        <source>Colour of boundaries within the field</source>
        <translation>Barva hranic uvnitř pole</translation>
    </message>
    <message>
        <source>Other boundaries</source>
        <translation>Ostatní hranice</translation>
    </message>
    <message>
        <source>Colour of boundaries that are not active</source>
        <translation>Barva neaktivních hranic</translation>
    </message>
    <message>
        <source>Exclusion zone</source>
        <translation>Zakázaná zóna</translation>
    </message>
    <message>
        <source>Colour of zones to keep out of</source>
        <translation>Barva zón, do kterých se nevjíždí</translation>
    </message>
    <message>
        <source>Background picture</source>
        <translation>Obrázek na pozadí</translation>
    </message>
    <message>
        <source>Number of the background picture</source>
        <translation>Číslo obrázku na pozadí</translation>
    </message>
    <message>
        <source>what the sprayer&apos;s rates are related to</source>
        <translation>k čemu se vztahují dávky postřikovače</translation>
    </message>
    <message>
        <source>liquid rates per 100 m or 100 yd of travel, while travel is their basis</source>
        <translation>dávky kapaliny na 100 m nebo 100 yd ujeté dráhy, pokud je dráha jejich základem</translation>
    </message>
    <message>
        <source>since when the clock has its time from there</source>
        <translation>odkdy mají hodiny čas z tohoto zdroje</translation>
    </message>
    <message>
        <source>Metric</source>
        <translation>Metrické</translation>
    </message>
    <message>
        <source>US or English</source>
        <translation>US nebo anglické</translation>
    </message>
    <message>
        <source>US</source>
        <translation>US</translation>
    </message>
    <message>
        <source>English</source>
        <translation>Anglické</translation>
    </message>
    <message>
        <source>Deg., min., s</source>
        <translation>St., min, s</translation>
    </message>
    <message>
        <source>Degrees</source>
        <translation>Stupně</translation>
    </message>
    <message>
        <source>24 hours</source>
        <translation>24 hodin</translation>
    </message>
    <message>
        <source>am, pm</source>
        <translation>am, pm</translation>
    </message>
    <message>
        <source>Month first</source>
        <translation>Napřed měsíc</translation>
    </message>
    <message>
        <source>Day first</source>
        <translation>Napřed den</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Den</translation>
    </message>
    <message>
        <source>Night</source>
        <translation>Noc</translation>
    </message>
    <message>
        <source>Heading up</source>
        <translation>Směr jízdy nahoře</translation>
    </message>
    <message>
        <source>North up</source>
        <translation>Sever nahoře</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Zap.</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Vyp.</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ano</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Ne</translation>
    </message>
    <message>
        <source>Travel</source>
        <translation>Ujetá dráha</translation>
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
        <translation>Palec</translation>
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
        <translation>US bušl</translation>
    </message>
    <message>
        <source>UK bushel</source>
        <translation>UK bušl</translation>
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
        <translation>Tečka</translation>
    </message>
    <message>
        <source>Comma</source>
        <translation>Čárka</translation>
    </message>
    <message>
        <source>By hand</source>
        <translation>Ručně</translation>
    </message>
    <message>
        <source>Sunset</source>
        <translation>Západ slunce</translation>
    </message>
    <message>
        <source>Twilight</source>
        <translation>Soumrak</translation>
    </message>
    <message>
        <source>Not set</source>
        <translation>Nenastaveno</translation>
    </message>
    <message>
        <source>Operator</source>
        <translation>Obsluha</translation>
    </message>
    <message>
        <source>Receiver</source>
        <translation>Přijímač</translation>
    </message>
    <message>
        <source>Rate</source>
        <translation>Dávka</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Rychlost</translation>
    </message>
    <message>
        <source>Area done</source>
        <translation>Hotová plocha</translation>
    </message>
    <message>
        <source>Area left</source>
        <translation>Zbylá plocha</translation>
    </message>
    <message>
        <source>Productivity</source>
        <translation>Výkonnost</translation>
    </message>
    <message>
        <source>Flow</source>
        <translation>Průtok</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Teplota</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>Vzdálenost</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Poloha</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Čas</translation>
    </message>
    <message>
        <source>Units</source>
        <translation>Jednotky</translation>
    </message>
    <message>
        <source>Rates</source>
        <translation>Dávky</translation>
    </message>
    <message>
        <source>Region</source>
        <translation>Region</translation>
    </message>
    <message>
        <source>Clock</source>
        <translation>Hodiny</translation>
    </message>
    <message>
        <source>Colours of the schemes</source>
        <translation>Barvy schémat</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Zobrazení</translation>
    </message>
    <message>
        <source>Selections</source>
        <translation>Výběr</translation>
    </message>
    <message>
        <source>Storage</source>
        <translation>Úložiště</translation>
    </message>
    <message>
        <source>Logs</source>
        <translation>Protokoly</translation>
    </message>
    <message>
        <source>Terminal</source>
        <translation>Terminál</translation>
    </message>
    <message>
        <source>%1, by day</source>
        <translation>%1, ve dne</translation>
    </message>
    <message>
        <source>%1, by night</source>
        <translation>%1, v noci</translation>
    </message>
</context>
<context>
    <name>Problems</name>
    <message>
        <source>The logs lose lines: their drive is full or cannot be written.</source>
        <translation>Protokoly ztrácejí řádky: jejich disk je plný nebo na něj nelze zapisovat.</translation>
    </message>
    <message>
        <source>Recording is off, because there is too little room.</source>
        <translation>Záznam je vypnut, protože je málo místa.</translation>
    </message>
    <message>
        <source>Changes of settings are not stored yet. %1</source>
        <translation>Změny nastavení ještě nejsou uloženy. %1</translation>
    </message>
    <message>
        <source>The drive of the terminal is nearly full. Free: %1</source>
        <translation>Disk terminálu je téměř plný. Volné: %1</translation>
    </message>
</context>
<context>
    <name>ProfilePage</name>
    <message>
        <source>Import</source>
        <translation>Import</translation>
    </message>
    <message>
        <source>The display has these settings already.</source>
        <translation>Displej už tato nastavení má.</translation>
    </message>
    <message>
        <source>Changed here and in the profile</source>
        <translation>Změněno zde i v profilu</translation>
    </message>
    <message>
        <source>Which value the settings below shall have</source>
        <translation>Která hodnota má platit pro nastavení níže</translation>
    </message>
    <message>
        <source>Ours</source>
        <translation>Zde</translation>
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
        <translation>Profily</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Export</translation>
    </message>
    <message>
        <source>There is no profile on the stick.</source>
        <translation>Na USB disku není žádný profil.</translation>
    </message>
    <message>
        <source>No stick is plugged in.</source>
        <translation>Není zasunut žádný USB disk.</translation>
    </message>
    <message>
        <source>Name of the profile</source>
        <translation>Název profilu</translation>
    </message>
</context>
<context>
    <name>Quantities</name>
    <message>
        <source>Area</source>
        <translation>Plocha</translation>
    </message>
    <message>
        <source>Productivity</source>
        <translation>Výkonnost</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Rychlost</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>Vzdálenost</translation>
    </message>
    <message>
        <source>Small distance</source>
        <translation>Malá vzdálenost</translation>
    </message>
    <message>
        <source>Travelled distance</source>
        <translation>Ujetá vzdálenost</translation>
    </message>
    <message>
        <source>Altitude</source>
        <translation>Nadm. výška</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Teplota</translation>
    </message>
    <message>
        <source>Pressure</source>
        <translation>Tlak</translation>
    </message>
    <message>
        <source>Rate</source>
        <translation>Dávka</translation>
    </message>
    <message>
        <source>Requested rate</source>
        <translation>Požadovaná dávka</translation>
    </message>
    <message>
        <source>Rate and error</source>
        <translation>Dávka a odchylka</translation>
    </message>
    <message>
        <source>Small rate</source>
        <translation>Malá dávka</translation>
    </message>
    <message>
        <source>Flow</source>
        <translation>Průtok</translation>
    </message>
    <message>
        <source>Small flow</source>
        <translation>Malý průtok</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Objem</translation>
    </message>
    <message>
        <source>Small volume</source>
        <translation>Malý objem</translation>
    </message>
    <message>
        <source>Granular volume</source>
        <translation>Objem granulátu</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>Hmotnost</translation>
    </message>
    <message>
        <source>Weight per area</source>
        <translation>Hmotnost na plochu</translation>
    </message>
    <message>
        <source>Weight per area and error</source>
        <translation>Hmotnost na plochu a odchylka</translation>
    </message>
    <message>
        <source>Discharge</source>
        <translation>Výdej</translation>
    </message>
    <message>
        <source>Nitrogen</source>
        <translation>Dusík</translation>
    </message>
    <message>
        <source>Nitrogen per area</source>
        <translation>Dusík na plochu</translation>
    </message>
    <message>
        <source>Seeds per area</source>
        <translation>Zrna na plochu</translation>
    </message>
    <message>
        <source>Density</source>
        <translation>Hustota</translation>
    </message>
    <message>
        <source>Granular density</source>
        <translation>Hustota granulátu</translation>
    </message>
    <message>
        <source>Volume per revolution</source>
        <translation>Objem na otáčku</translation>
    </message>
    <message>
        <source>Weight per revolution</source>
        <translation>Hmotnost na otáčku</translation>
    </message>
    <message>
        <source>Flow meter</source>
        <translation>Průtokoměr</translation>
    </message>
    <message>
        <source>Wheel sensor</source>
        <translation>Snímač kola</translation>
    </message>
    <message>
        <source>Speed sensor</source>
        <translation>Snímač rychlosti</translation>
    </message>
    <message>
        <source>Latitude</source>
        <translation>Zem. šířka</translation>
    </message>
    <message>
        <source>Longitude</source>
        <translation>Zem. délka</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Trvání</translation>
    </message>
    <message>
        <source>Percent</source>
        <translation>Procento</translation>
    </message>
</context>
<context>
    <name>Question</name>
    <message>
        <source>Cancel</source>
        <translation>Zrušit</translation>
    </message>
</context>
<context>
    <name>RateTile</name>
    <message>
        <source>set %1</source>
        <comment>the rate that is set</comment>
        <translation>požad. %1</translation>
    </message>
</context>
<context>
    <name>Receiver</name>
    <message>
        <source>Off</source>
        <translation>Vypnuto</translation>
    </message>
    <message>
        <source>Connecting</source>
        <translation>Připojování</translation>
    </message>
    <message>
        <source>Receiving</source>
        <translation>Přijímá</translation>
    </message>
    <message>
        <source>Silent</source>
        <translation>Mlčí</translation>
    </message>
    <message>
        <source>Lost</source>
        <translation>Ztraceno</translation>
    </message>
    <message>
        <source>Ended</source>
        <translation>Ukončeno</translation>
    </message>
    <message>
        <source>No fix</source>
        <translation>Bez polohy</translation>
    </message>
    <message>
        <source>RTK float</source>
        <translation>RTK float</translation>
    </message>
    <message>
        <source>Estimated</source>
        <translation>Odhad</translation>
    </message>
    <message>
        <source>By hand</source>
        <translation>Ručně</translation>
    </message>
    <message>
        <source>Simulated</source>
        <translation>Simulace</translation>
    </message>
    <message>
        <source>The receiver sends nothing.</source>
        <translation>Přijímač nic nevysílá.</translation>
    </message>
    <message>
        <source>The receiver is lost and is being looked for. %1</source>
        <translation>Spojení s přijímačem se ztratilo, přijímač se hledá. %1</translation>
    </message>
    <message>
        <source>The receiver cannot be read. %1</source>
        <translation>Z přijímače nelze číst. %1</translation>
    </message>
    <message>
        <source>The simulated field is done.</source>
        <translation>Simulované pole je hotovo.</translation>
    </message>
    <message>
        <source>The recording of the receiver is over.</source>
        <translation>Záznam přijímače skončil.</translation>
    </message>
</context>
<context>
    <name>ReceiverPage</name>
    <message>
        <source>Receiver</source>
        <translation>Přijímač</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Zastavit</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Spustit</translation>
    </message>
    <message>
        <source>Simulator</source>
        <translation>Simulátor</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Soubor</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Síť</translation>
    </message>
    <message>
        <source>Serial</source>
        <translation>Sériový</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adresa</translation>
    </message>
    <message>
        <source>Fix</source>
        <translation>Druh polohy</translation>
    </message>
    <message>
        <source>Age</source>
        <translation>Stáří</translation>
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
        <translation>Čas (UTC)</translation>
    </message>
    <message>
        <source>Lines</source>
        <translation>Řádky</translation>
    </message>
    <message>
        <source>Sentences</source>
        <translation>Věty</translation>
    </message>
    <message>
        <source>Bad checksums</source>
        <translation>Chybné součty</translation>
    </message>
    <message>
        <source>Damaged lines</source>
        <translation>Poškozené řádky</translation>
    </message>
    <message>
        <source>Address of the receiver</source>
        <translation>Adresa přijímače</translation>
    </message>
</context>
<context>
    <name>RegionPage</name>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Čas</translation>
    </message>
    <message>
        <source>Time zone</source>
        <translation>Časové pásmo</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>Datum a čas</translation>
    </message>
    <message>
        <source>Set by hand</source>
        <translation>Ručně</translation>
    </message>
</context>
<context>
    <name>SearchPage</name>
    <message>
        <source>Search</source>
        <translation>Hledat</translation>
    </message>
    <message>
        <source>Words of a setting</source>
        <translation>Slova z nastavení</translation>
    </message>
    <message>
        <source>No setting has these words.</source>
        <translation>Takové nastavení se nenašlo.</translation>
    </message>
</context>
<context>
    <name>SettingsPage</name>
    <message>
        <source>Units</source>
        <translation>Jednotky</translation>
    </message>
    <message>
        <source>Region</source>
        <translation>Region</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>Barvy</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Zobrazení</translation>
    </message>
    <message>
        <source>Machine</source>
        <translation>Stroj</translation>
    </message>
    <message>
        <source>Storage</source>
        <translation>Úložiště</translation>
    </message>
    <message>
        <source>About</source>
        <translation>O displeji</translation>
    </message>
    <message>
        <source>Tiles</source>
        <translation>Dlaždice</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>Profily</translation>
    </message>
    <message>
        <source>All settings</source>
        <translation>Všechna nastavení</translation>
    </message>
</context>
<context>
    <name>SettingsPanel</name>
    <message>
        <source>Back</source>
        <translation>Zpět</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Hledat</translation>
    </message>
</context>
<context>
    <name>Sizes</name>
    <message numerus="yes">
        <source>%n byte(s)</source>
        <translation>
            <numerusform>%n bajt</numerusform>
            <numerusform>%n bajty</numerusform>
            <numerusform>%n bajtů</numerusform>
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
        <translation>Žádná zakázka</translation>
    </message>
    <message>
        <source>Receiver: %1</source>
        <translation>Přijímač: %1</translation>
    </message>
    <message>
        <source>The stick is plugged in</source>
        <translation>USB disk je zasunut</translation>
    </message>
    <message>
        <source>Lock the screen</source>
        <translation>Zamknout obrazovku</translation>
    </message>
    <message>
        <source>Colours of the night</source>
        <translation>Noční barvy</translation>
    </message>
    <message>
        <source>Colours of the day</source>
        <translation>Denní barvy</translation>
    </message>
</context>
<context>
    <name>StoragePage</name>
    <message>
        <source>Open</source>
        <translation>Otevřít</translation>
    </message>
    <message>
        <source>Internal drive</source>
        <translation>Vnitřní disk</translation>
    </message>
    <message>
        <source>Stick</source>
        <translation>USB disk</translation>
    </message>
    <message>
        <source>No stick is plugged in.</source>
        <translation>Není zasunut žádný USB disk.</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Paměť</translation>
    </message>
    <message>
        <source>Logs</source>
        <translation>Protokoly</translation>
    </message>
    <message>
        <source>Writes all log files to the stick</source>
        <translation>Zapíše všechny soubory protokolů na USB disk</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Export</translation>
    </message>
    <message>
        <source>Export the logs</source>
        <translation>Exportovat protokoly</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>Profily</translation>
    </message>
    <message>
        <source>Takes the settings to another display, or brings them back from the stick</source>
        <translation>Přenese nastavení na jiný displej nebo je načte zpět z USB disku</translation>
    </message>
    <message>
        <source>Open the profiles</source>
        <translation>Otevřít profily</translation>
    </message>
    <message>
        <source>Support</source>
        <translation>Podpora</translation>
    </message>
    <message>
        <source>Writes logs, settings and versions in one file; without the names of clients, farms and fields</source>
        <translation>Zapíše protokoly, nastavení a verze do jednoho souboru; bez jmen zákazníků, farem a polí</translation>
    </message>
    <message>
        <source>Write</source>
        <translation>Zapsat</translation>
    </message>
    <message>
        <source>Write the file for support without names</source>
        <translation>Zapsat soubor pro podporu bez jmen</translation>
    </message>
    <message>
        <source>Support, with names</source>
        <translation>Podpora, se jmény</translation>
    </message>
    <message>
        <source>The same file, with all names and places</source>
        <translation>Stejný soubor, se všemi jmény a místy</translation>
    </message>
    <message>
        <source>Write the file for support with names</source>
        <translation>Zapsat soubor pro podporu se jmény</translation>
    </message>
</context>
<context>
    <name>TFieldTreeModel</name>
    <message>
        <source>A job holds no items.</source>
        <translation>Zakázka neobsahuje žádné položky.</translation>
    </message>
    <message>
        <source>There is one with this name already.</source>
        <translation>Tento název už existuje.</translation>
    </message>
    <message numerus="yes">
        <source>%n file(s), %1</source>
        <translation>
            <numerusform>%n soubor, %1</numerusform>
            <numerusform>%n soubory, %1</numerusform>
            <numerusform>%n souborů, %1</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>TParameter</name>
    <message>
        <source>The setting could not be written to the disk yet.</source>
        <translation>Nastavení se zatím nepodařilo zapsat na disk.</translation>
    </message>
    <message>
        <source>There is no value to set.</source>
        <translation>Není žádná hodnota k nastavení.</translation>
    </message>
</context>
<context>
    <name>TRegionSettings</name>
    <message>
        <source>Jan</source>
        <translation>led</translation>
    </message>
    <message>
        <source>Feb</source>
        <translation>úno</translation>
    </message>
    <message>
        <source>Mar</source>
        <translation>bře</translation>
    </message>
    <message>
        <source>Apr</source>
        <translation>dub</translation>
    </message>
    <message>
        <source>May</source>
        <translation>kvě</translation>
    </message>
    <message>
        <source>Jun</source>
        <translation>čvn</translation>
    </message>
    <message>
        <source>Jul</source>
        <translation>čvc</translation>
    </message>
    <message>
        <source>Aug</source>
        <translation>srp</translation>
    </message>
    <message>
        <source>Sep</source>
        <translation>zář</translation>
    </message>
    <message>
        <source>Oct</source>
        <translation>říj</translation>
    </message>
    <message>
        <source>Nov</source>
        <translation>lis</translation>
    </message>
    <message>
        <source>Dec</source>
        <translation>pro</translation>
    </message>
</context>
<context>
    <name>TRestart</name>
    <message>
        <source>The new language is shown after a restart.</source>
        <translation>Nový jazyk se zobrazí po restartu.</translation>
    </message>
    <message>
        <source>The new decimal sign is shown after a restart.</source>
        <translation>Nový desetinný znak se zobrazí po restartu.</translation>
    </message>
</context>
<context>
    <name>TSelections</name>
    <message>
        <source>The selection could not be stored.</source>
        <translation>Výběr se nepodařilo uložit.</translation>
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
        <translation>H_</translation>
    </message>
    <message>
        <source>L_</source>
        <translation>L_</translation>
    </message>
    <message>
        <source>P_</source>
        <translation>KL_</translation>
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
        <translation>Bez vozidla</translation>
    </message>
    <message>
        <source>No Profile</source>
        <translation>Bez profilu</translation>
    </message>
    <message>
        <source>No Implement</source>
        <translation>Bez nářadí</translation>
    </message>
    <message>
        <source>Pivoted_</source>
        <translation>Tažené_</translation>
    </message>
</context>
<context>
    <name>TTransfer</name>
    <message>
        <source>The name is empty.</source>
        <translation>Název je prázdný.</translation>
    </message>
</context>
<context>
    <name>TUnitAbbreviations</name>
    <message>
        <source>Jan</source>
        <translation>led</translation>
    </message>
    <message>
        <source>Feb</source>
        <translation>úno</translation>
    </message>
    <message>
        <source>Mar</source>
        <translation>bře</translation>
    </message>
    <message>
        <source>Apr</source>
        <translation>dub</translation>
    </message>
    <message>
        <source>May</source>
        <translation>kvě</translation>
    </message>
    <message>
        <source>Jun</source>
        <translation>čvn</translation>
    </message>
    <message>
        <source>Jul</source>
        <translation>čvc</translation>
    </message>
    <message>
        <source>Aug</source>
        <translation>srp</translation>
    </message>
    <message>
        <source>Sep</source>
        <translation>zář</translation>
    </message>
    <message>
        <source>Oct</source>
        <translation>říj</translation>
    </message>
    <message>
        <source>Nov</source>
        <translation>lis</translation>
    </message>
    <message>
        <source>Dec</source>
        <translation>pro</translation>
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
        <translation>l/ot</translation>
    </message>
    <message>
        <source>gal/rev</source>
        <translation>gal/ot</translation>
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
        <translation>kg/ot</translation>
    </message>
    <message>
        <source>lb/rev</source>
        <translation>lb/ot</translation>
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
        <translation>tis./ha</translation>
    </message>
    <message>
        <source>KS/ac</source>
        <translation>tis./ac</translation>
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
        <translation>ot/min</translation>
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
        <translation>Kritické</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Běžné</translation>
    </message>
    <message>
        <source>Trivial</source>
        <translation>Nepodstatné</translation>
    </message>
</context>
<context>
    <name>TWork</name>
    <message>
        <source>An implement cannot have this width.</source>
        <translation>Tento pracovní záběr není možný.</translation>
    </message>
    <message>
        <source>A file of this job cannot be used. %1</source>
        <translation>Soubor této zakázky nelze použít. %1</translation>
    </message>
    <message>
        <source>Coverage was not complete and was left out: strips %1, bytes %2</source>
        <translation>Záznam zpracované plochy nebyl úplný a část byla vynechána: pruhy %1, bajty %2</translation>
    </message>
    <message>
        <source>The file of the flags is damaged; new flags are not stored.</source>
        <translation>Soubor značek je poškozen; nové značky se neukládají.</translation>
    </message>
    <message>
        <source>A file could not be stored. %1</source>
        <translation>Soubor se nepodařilo uložit. %1</translation>
    </message>
    <message>
        <source>The file of the implement cannot be used. %1</source>
        <translation>Soubor nářadí nelze použít. %1</translation>
    </message>
    <message>
        <source>There is no line.</source>
        <translation>Není žádná linie.</translation>
    </message>
    <message>
        <source>The line has no name.</source>
        <translation>Linie nemá název.</translation>
    </message>
    <message>
        <source>The guidance line cannot be used. %1</source>
        <translation>Naváděcí linii nelze použít. %1</translation>
    </message>
    <message>
        <source>No job is chosen</source>
        <translation>Není vybrána zakázka</translation>
    </message>
    <message>
        <source>No job is chosen: what is covered is not stored.</source>
        <translation>Není vybrána zakázka: zpracovaná plocha se neukládá.</translation>
    </message>
    <message>
        <source>The coverage of this job cannot be used: what is covered is not stored.</source>
        <translation>Zpracovanou plochu této zakázky nelze použít: zpracovaná plocha se neukládá.</translation>
    </message>
    <message>
        <source>The coverage cannot be stored, and strips are lost: %1</source>
        <translation>Zpracovanou plochu nelze uložit a pruhy se ztrácejí: %1</translation>
    </message>
    <message>
        <source>The coverage is kept in memory until it can be stored. %1</source>
        <translation>Zpracovaná plocha zůstává v paměti, dokud ji nelze uložit. %1</translation>
    </message>
    <message>
        <source>The job is still being read.</source>
        <translation>Zakázka se ještě načítá.</translation>
    </message>
</context>
<context>
    <name>TileTurner</name>
    <message>
        <source>Tiles</source>
        <translation>Dlaždice</translation>
    </message>
</context>
<context>
    <name>Tiles</name>
    <message>
        <source>Rate</source>
        <translation>Dávka</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Rychlost</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>Plocha</translation>
    </message>
    <message>
        <source>Left</source>
        <comment>area that is left to work</comment>
        <translation>Zbývá</translation>
    </message>
    <message>
        <source>Work</source>
        <comment>area per hour</comment>
        <translation>Výkonnost</translation>
    </message>
    <message>
        <source>Flow</source>
        <translation>Průtok</translation>
    </message>
    <message>
        <source>Press.</source>
        <comment>pressure</comment>
        <translation>Tlak</translation>
    </message>
    <message>
        <source>Temp.</source>
        <comment>temperature</comment>
        <translation>Teplota</translation>
    </message>
    <message>
        <source>Driven</source>
        <translation>Ujeto</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Poloha</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Čas</translation>
    </message>
</context>
<context>
    <name>TilesPage</name>
    <message>
        <source>Back to the first choice</source>
        <translation>Zpět na výchozí výběr</translation>
    </message>
    <message>
        <source>%1 further ahead</source>
        <translation>%1: posunout dopředu</translation>
    </message>
    <message>
        <source>Shown</source>
        <translation>Zobrazeno</translation>
    </message>
    <message>
        <source>Hidden</source>
        <translation>Skryto</translation>
    </message>
</context>
<context>
    <name>Transfer</name>
    <message>
        <source>Nothing is imported: some settings were changed here and in the profile.</source>
        <translation>Nic se neimportovalo: některá nastavení byla změněna zde i v profilu.</translation>
    </message>
    <message>
        <source>No stick is plugged in.</source>
        <translation>Není zasunut žádný USB disk.</translation>
    </message>
    <message>
        <source>The stick was removed before everything was on it.</source>
        <translation>USB disk byl vyjmut dříve, než na něm bylo vše.</translation>
    </message>
    <message>
        <source>The stick could not be written to the end.</source>
        <translation>Zápis na USB disk se nepodařilo dokončit.</translation>
    </message>
    <message>
        <source>The folder %1 cannot be made.</source>
        <translation>Složku %1 nelze vytvořit.</translation>
    </message>
    <message>
        <source>The file %1 cannot be written.</source>
        <translation>Soubor %1 nelze zapsat.</translation>
    </message>
    <message>
        <source>The logs are on the stick (files: %1).</source>
        <translation>Protokoly jsou na USB disku (soubory: %1).</translation>
    </message>
    <message>
        <source>The profile cannot be used. %1</source>
        <translation>Profil nelze použít. %1</translation>
    </message>
    <message>
        <source>Nothing is imported. %1</source>
        <translation>Nic se neimportovalo. %1</translation>
    </message>
    <message>
        <source>This display</source>
        <translation>Tento displej</translation>
    </message>
    <message>
        <source>Another display</source>
        <translation>Jiný displej</translation>
    </message>
    <message>
        <source>The profile is not on the stick. %1</source>
        <translation>Profil není na USB disku. %1</translation>
    </message>
    <message>
        <source>The profile is on the stick: %1.</source>
        <translation>Profil je na USB disku: %1.</translation>
    </message>
    <message>
        <source>The file for support is not on the stick. %1</source>
        <translation>Soubor pro podporu není na USB disku. %1</translation>
    </message>
    <message>
        <source>The file for support is on the stick: %1.</source>
        <translation>Soubor pro podporu je na USB disku: %1.</translation>
    </message>
    <message>
        <source>The profile is imported (settings changed: %1).</source>
        <translation>Profil je importován (změněná nastavení: %1).</translation>
    </message>
    <message>
        <source>It cannot be used.</source>
        <translation>Nelze použít.</translation>
    </message>
</context>
<context>
    <name>TransferState</name>
    <message>
        <source>Reading</source>
        <translation>Čtení</translation>
    </message>
    <message>
        <source>Writing</source>
        <translation>Zápis</translation>
    </message>
    <message>
        <source>Leave the stick where it is until this is done.</source>
        <translation>USB disk nevyjímat, dokud není hotovo.</translation>
    </message>
</context>
<context>
    <name>WorkPage</name>
    <message>
        <source>Waiting for a position</source>
        <translation>Čekání na polohu</translation>
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
        <translation>Nepracuje</translation>
    </message>
    <message>
        <source>Working. Switch the implement off</source>
        <translation>Pracuje. Vypnout nářadí</translation>
    </message>
    <message>
        <source>Not working. Switch the implement on</source>
        <translation>Nepracuje. Zapnout nářadí</translation>
    </message>
</context>
</TS>
