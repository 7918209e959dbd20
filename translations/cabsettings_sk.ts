<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="sk" sourcelanguage="en">
<context>
    <name>About</name>
    <message>
        <source>Windows, files and connections</source>
        <translation>Okná, súbory a spojenia</translation>
    </message>
    <message>
        <source>The file of the settings</source>
        <translation>Súbor nastavení</translation>
    </message>
    <message>
        <source>Profiles of settings</source>
        <translation>Profily nastavení</translation>
    </message>
    <message>
        <source>Files for support</source>
        <translation>Súbory pre podporu</translation>
    </message>
    <message>
        <source>Sunrise and sunset</source>
        <translation>Východ a západ slnka</translation>
    </message>
    <message>
        <source>Boundaries and zones</source>
        <translation>Hranice a zóny</translation>
    </message>
    <message>
        <source>Software</source>
        <translation>Softvér</translation>
    </message>
    <message>
        <source>The software of this display</source>
        <translation>Softvér tohto displeja</translation>
    </message>
    <message>
        <source>Settings, units and logs</source>
        <translation>Nastavenia, jednotky a záznamy</translation>
    </message>
</context>
<context>
    <name>Clock</name>
    <message>
        <source>The clock of the machine; nothing has set it.</source>
        <translation>Hodiny zariadenia; nie sú nastavené.</translation>
    </message>
    <message>
        <source>The clock was set by hand.</source>
        <translation>Hodiny sú nastavené ručne.</translation>
    </message>
    <message>
        <source>The receiver sets the clock.</source>
        <translation>Hodiny nastavuje prijímač.</translation>
    </message>
    <message>
        <source>There is no such date or time.</source>
        <translation>Taký dátum alebo čas neexistuje.</translation>
    </message>
    <message>
        <source>The date is more than 68 years from the clock of the machine.</source>
        <translation>Dátum je od hodín zariadenia vzdialený viac než 68 rokov.</translation>
    </message>
    <message>
        <source>The clock could not be stored.</source>
        <translation>Čas hodín sa nepodarilo uložiť.</translation>
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
        <translation>Mesiac</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Deň</translation>
    </message>
    <message>
        <source>Hour</source>
        <translation>Hodina</translation>
    </message>
    <message>
        <source>Minute</source>
        <translation>Minúta</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>Dátum a čas</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Čas</translation>
    </message>
    <message>
        <source>%1: more</source>
        <translation>%1: viac</translation>
    </message>
    <message>
        <source>%1: less</source>
        <translation>%1: menej</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Zrušiť</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>Nastaviť</translation>
    </message>
</context>
<context>
    <name>ColorBar</name>
    <message>
        <source>%1: less</source>
        <translation>%1: menej</translation>
    </message>
    <message>
        <source>%1: more</source>
        <translation>%1: viac</translation>
    </message>
</context>
<context>
    <name>ColorPage</name>
    <message>
        <source>Former</source>
        <translation>Predošlá</translation>
    </message>
    <message>
        <source>Former colour</source>
        <translation>Predošlá farba</translation>
    </message>
    <message>
        <source>First value</source>
        <translation>Predvolená</translation>
    </message>
    <message>
        <source>Digits of the colour</source>
        <translation>Číslice farby</translation>
    </message>
    <message>
        <source>Hue</source>
        <translation>Odtieň</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Sýtosť</translation>
    </message>
    <message>
        <source>Lightness</source>
        <translation>Svetlosť</translation>
    </message>
</context>
<context>
    <name>ColorsPage</name>
    <message>
        <source>Day</source>
        <translation>Deň</translation>
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
        <translation>%1, primálo: aspoň %2</translation>
    </message>
</context>
<context>
    <name>Difference</name>
    <message>
        <source>Changed on both sides</source>
        <translation>Zmenené na oboch stranách</translation>
    </message>
    <message>
        <source>Here</source>
        <translation>Tu</translation>
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
        <translation>Reštartovať</translation>
    </message>
    <message>
        <source>The fonts of the display</source>
        <translation>Písma displeja</translation>
    </message>
    <message>
        <source>The keyboard on the screen</source>
        <translation>Klávesnica na obrazovke</translation>
    </message>
</context>
<context>
    <name>DoorBand</name>
    <message>
        <source>Work</source>
        <translation>Práca</translation>
    </message>
    <message>
        <source>Fields</source>
        <translation>Polia</translation>
    </message>
    <message>
        <source>Receiver</source>
        <translation>Prijímač</translation>
    </message>
    <message>
        <source>Logs</source>
        <translation>Záznamy</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Nastavenia</translation>
    </message>
</context>
<context>
    <name>Drives</name>
    <message>
        <source>%1 free of %2</source>
        <translation>voľné %1 z %2</translation>
    </message>
    <message>
        <source>Not known</source>
        <translation>Neznáme</translation>
    </message>
    <message>
        <source>No stick</source>
        <translation>Bez USB kľúča</translation>
    </message>
</context>
<context>
    <name>FieldsPage</name>
    <message>
        <source>Clients</source>
        <translation>Klienti</translation>
    </message>
    <message>
        <source>New client</source>
        <translation>Nový klient</translation>
    </message>
    <message>
        <source>No client yet.</source>
        <translation>Zatiaľ žiadny klient.</translation>
    </message>
    <message>
        <source>Farms</source>
        <translation>Podniky</translation>
    </message>
    <message>
        <source>New farm</source>
        <translation>Nový podnik</translation>
    </message>
    <message>
        <source>No farm yet.</source>
        <translation>Zatiaľ žiadny podnik.</translation>
    </message>
    <message>
        <source>Fields</source>
        <translation>Polia</translation>
    </message>
    <message>
        <source>New field</source>
        <translation>Nové pole</translation>
    </message>
    <message>
        <source>No field yet.</source>
        <translation>Zatiaľ žiadne pole.</translation>
    </message>
    <message>
        <source>Jobs</source>
        <translation>Úlohy</translation>
    </message>
    <message>
        <source>New job</source>
        <translation>Nová úloha</translation>
    </message>
    <message>
        <source>No job yet.</source>
        <translation>Zatiaľ žiadna úloha.</translation>
    </message>
    <message>
        <source>Remove %1 with everything in it?</source>
        <translation>Odstrániť %1 s celým obsahom?</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Rename or remove %1</source>
        <translation>Premenovať/odstrániť: %1</translation>
    </message>
    <message>
        <source>Rename %1</source>
        <translation>Premenovať: %1</translation>
    </message>
    <message>
        <source>Remove everything</source>
        <translation>Odstrániť všetko</translation>
    </message>
</context>
<context>
    <name>Host</name>
    <message>
        <source>Details for the support: %1</source>
        <translation>Podrobnosti pre podporu: %1</translation>
    </message>
    <message>
        <source>%3 Try: %4</source>
        <translation>%3 Návrh: %4</translation>
    </message>
    <message>
        <source>This name is not possible.</source>
        <translation>Tento názov nie je možný.</translation>
    </message>
    <message>
        <source>The name is empty.</source>
        <translation>Názov je prázdny.</translation>
    </message>
    <message>
        <source>This name stands for another folder.</source>
        <translation>Tento názov označuje iný priečinok.</translation>
    </message>
    <message>
        <source>The name must not contain %1.</source>
        <translation>Názov nesmie obsahovať %1.</translation>
    </message>
    <message>
        <source>The name contains a sign that cannot be seen.</source>
        <translation>Názov obsahuje neviditeľný znak.</translation>
    </message>
    <message>
        <source>The name contains a sign that is not complete.</source>
        <translation>Názov obsahuje neúplný znak.</translation>
    </message>
    <message>
        <source>The name must not end in a full stop or a blank.</source>
        <translation>Názov sa nesmie končiť bodkou ani medzerou.</translation>
    </message>
    <message>
        <source>The name must not begin with a blank.</source>
        <translation>Názov sa nesmie začínať medzerou.</translation>
    </message>
    <message>
        <source>A stick cannot hold a file with this name.</source>
        <translation>Na USB kľúči nemôže byť súbor s týmto názvom.</translation>
    </message>
    <message>
        <source>The name is too long.</source>
        <translation>Názov je príliš dlhý.</translation>
    </message>
    <message>
        <source>%2 exists already.</source>
        <translation>Už existuje: %2.</translation>
    </message>
    <message numerus="yes">
        <source>%2 is active and holds %n file(s).</source>
        <translation>
            <numerusform>Aktívne: %2, obsahuje %n súbor.</numerusform>
            <numerusform>Aktívne: %2, obsahuje %n súbory.</numerusform>
            <numerusform>Aktívne: %2, obsahuje %n súborov.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%2 holds %n file(s).</source>
        <translation>
            <numerusform>%2: obsahuje %n súbor.</numerusform>
            <numerusform>%2: obsahuje %n súbory.</numerusform>
            <numerusform>%2: obsahuje %n súborov.</numerusform>
        </translation>
    </message>
    <message>
        <source>%2 is active.</source>
        <translation>Aktívne: %2.</translation>
    </message>
    <message>
        <source>%2 is no longer there.</source>
        <translation>Už neexistuje: %2.</translation>
    </message>
    <message>
        <source>A stick cannot tell %2 from %3.</source>
        <translation>USB kľúč nerozlišuje %2 a %3.</translation>
    </message>
    <message>
        <source>Another program is working on the fields. Try again later.</source>
        <translation>S poľami pracuje iný program. Skúsiť znova neskôr.</translation>
    </message>
    <message>
        <source>The selection could not be stored.</source>
        <translation>Výber sa nepodarilo uložiť.</translation>
    </message>
    <message>
        <source>%1 is neither a file nor a folder.</source>
        <translation>%1 nie je súbor ani priečinok.</translation>
    </message>
    <message>
        <source>The file was edited or is damaged.</source>
        <translation>Súbor bol upravený alebo je poškodený.</translation>
    </message>
    <message>
        <source>%1 cannot be read. %2</source>
        <translation>Nedá sa čítať: %1. %2</translation>
    </message>
    <message>
        <source>The file is of another kind.</source>
        <translation>Súbor je iného druhu.</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>Súbor je prázdny.</translation>
    </message>
    <message>
        <source>The end of the file is missing.</source>
        <translation>Chýba koniec súboru.</translation>
    </message>
    <message>
        <source>The file is damaged.</source>
        <translation>Súbor je poškodený.</translation>
    </message>
    <message>
        <source>The file is not complete.</source>
        <translation>Súbor nie je úplný.</translation>
    </message>
    <message>
        <source>The file is from another version of the software.</source>
        <translation>Súbor je z inej verzie softvéru.</translation>
    </message>
    <message>
        <source>The file has a value that is not possible: %2</source>
        <translation>Súbor má neprípustnú hodnotu: %2</translation>
    </message>
    <message>
        <source>The file has a value twice: %2</source>
        <translation>Nastavenie je v súbore dvakrát: %2</translation>
    </message>
    <message>
        <source>This address is not possible: %1</source>
        <translation>Táto adresa nie je možná: %1</translation>
    </message>
    <message>
        <source>The device is not there.</source>
        <translation>Zariadenie nie je pripojené.</translation>
    </message>
    <message>
        <source>It is not permitted, or another program uses it.</source>
        <translation>Nie je to povolené alebo to používa iný program.</translation>
    </message>
    <message>
        <source>Another program uses it.</source>
        <translation>Používa to iný program.</translation>
    </message>
    <message>
        <source>It cannot be read.</source>
        <translation>Nedá sa čítať.</translation>
    </message>
    <message>
        <source>It was unplugged.</source>
        <translation>Zariadenie bolo odpojené.</translation>
    </message>
    <message>
        <source>It is not a serial device, or it cannot have this speed.</source>
        <translation>Nie je to sériové zariadenie alebo nemôže mať túto rýchlosť.</translation>
    </message>
    <message>
        <source>The serial port has a fault (number %1).</source>
        <translation>Sériový port má poruchu (číslo %1).</translation>
    </message>
    <message>
        <source>%1 is damaged or of another kind.</source>
        <translation>Poškodené alebo iného druhu: %1.</translation>
    </message>
    <message>
        <source>%1 is from another version of the software.</source>
        <translation>Z inej verzie softvéru: %1.</translation>
    </message>
    <message>
        <source>%1 is damaged.</source>
        <translation>Poškodené: %1.</translation>
    </message>
    <message>
        <source>%1 has other coordinates than WGS84.</source>
        <translation>Súradnice nie sú WGS84: %1.</translation>
    </message>
    <message>
        <source>%1 is not complete. %2 is missing.</source>
        <translation>Neúplné: %1. Chýba: %2.</translation>
    </message>
    <message>
        <source>%1 has no areas.</source>
        <translation>Neobsahuje plochy: %1.</translation>
    </message>
    <message>
        <source>Another program uses %1.</source>
        <translation>Používa to iný program: %1.</translation>
    </message>
    <message>
        <source>A and B are too close together or too far apart.</source>
        <translation>A a B sú príliš blízko alebo príliš ďaleko od seba.</translation>
    </message>
    <message>
        <source>Another program has locked it.</source>
        <translation>Zamkol to iný program.</translation>
    </message>
    <message>
        <source>It is no longer there.</source>
        <translation>Už neexistuje.</translation>
    </message>
    <message>
        <source>%1 is no longer there.</source>
        <translation>Už neexistuje: %1.</translation>
    </message>
    <message>
        <source>%1 cannot be written. %2</source>
        <translation>Nedá sa zapísať: %1. %2</translation>
    </message>
    <message>
        <source>%1 cannot be written.</source>
        <translation>Nedá sa zapísať: %1.</translation>
    </message>
    <message>
        <source>The file of the settings has a fault (number %1).</source>
        <translation>Súbor nastavení má chybu (číslo %1).</translation>
    </message>
    <message>
        <source>%1 cannot be opened. %2</source>
        <translation>Nedá sa otvoriť: %1. %2</translation>
    </message>
    <message>
        <source>%1 cannot be created. %2</source>
        <translation>Nedá sa vytvoriť: %1. %2</translation>
    </message>
    <message>
        <source>%1 cannot be copied. %2</source>
        <translation>Nedá sa kopírovať: %1. %2</translation>
    </message>
    <message>
        <source>%1 cannot be renamed. %2</source>
        <translation>Nedá sa premenovať: %1. %2</translation>
    </message>
    <message>
        <source>%1 cannot be removed. %2</source>
        <translation>Nedá sa odstrániť: %1. %2</translation>
    </message>
    <message>
        <source>The drive is full.</source>
        <translation>Disk je plný.</translation>
    </message>
    <message>
        <source>The drive has a fault.</source>
        <translation>Disk má poruchu.</translation>
    </message>
    <message>
        <source>The drive can only be read.</source>
        <translation>Disk je len na čítanie.</translation>
    </message>
    <message>
        <source>It is not permitted.</source>
        <translation>Nie je to povolené.</translation>
    </message>
    <message>
        <source>It cannot be opened.</source>
        <translation>Nedá sa otvoriť.</translation>
    </message>
    <message>
        <source>It is damaged.</source>
        <translation>Je to poškodené.</translation>
    </message>
    <message>
        <source>It is not there.</source>
        <translation>Neexistuje.</translation>
    </message>
    <message>
        <source>It exists already.</source>
        <translation>Už existuje.</translation>
    </message>
    <message>
        <source>It is a folder.</source>
        <translation>Je to priečinok.</translation>
    </message>
    <message>
        <source>It is not a folder.</source>
        <translation>Nie je to priečinok.</translation>
    </message>
    <message>
        <source>The folder is not empty.</source>
        <translation>Priečinok nie je prázdny.</translation>
    </message>
    <message>
        <source>The file is too large.</source>
        <translation>Súbor je príliš veľký.</translation>
    </message>
    <message>
        <source>Too many files are open.</source>
        <translation>Je otvorených priveľa súborov.</translation>
    </message>
    <message>
        <source>There is too little memory.</source>
        <translation>Nedostatok pamäte.</translation>
    </message>
    <message>
        <source>It is not possible there.</source>
        <translation>Tam to nie je možné.</translation>
    </message>
    <message>
        <source>The device refuses the connection.</source>
        <translation>Zariadenie odmieta spojenie.</translation>
    </message>
    <message>
        <source>The device has closed the connection.</source>
        <translation>Zariadenie ukončilo spojenie.</translation>
    </message>
    <message>
        <source>There is no device with this address.</source>
        <translation>Zariadenie s touto adresou neexistuje.</translation>
    </message>
    <message>
        <source>The network cannot be reached.</source>
        <translation>Sieť je nedostupná.</translation>
    </message>
    <message>
        <source>The device does not answer.</source>
        <translation>Zariadenie neodpovedá.</translation>
    </message>
    <message>
        <source>It is a link to another place.</source>
        <translation>Je to odkaz na iné miesto.</translation>
    </message>
    <message>
        <source>There are too many links to it.</source>
        <translation>Vedie na to priveľa odkazov.</translation>
    </message>
</context>
<context>
    <name>ItemActions</name>
    <message>
        <source>Rename</source>
        <translation>Premenovať</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Odstrániť</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Zrušiť</translation>
    </message>
</context>
<context>
    <name>ItemPage</name>
    <message>
        <source>New</source>
        <translation>Pridať</translation>
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
        <translation>Najmenej %1 %2</translation>
    </message>
    <message>
        <source>At most %1 %2</source>
        <translation>Najviac %1 %2</translation>
    </message>
    <message>
        <source>This is not a number yet.</source>
        <translation>Toto ešte nie je číslo.</translation>
    </message>
    <message>
        <source>Too large.
%1</source>
        <translation>Príliš veľké.
%1</translation>
    </message>
    <message>
        <source>Too small.
%1</source>
        <translation>Príliš malé.
%1</translation>
    </message>
    <message>
        <source>now %1</source>
        <translation>teraz %1</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Zrušiť</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>Nastaviť</translation>
    </message>
    <message>
        <source>Decimal sign</source>
        <translation>Desatinný znak</translation>
    </message>
    <message>
        <source>Plus or minus</source>
        <translation>Plus alebo mínus</translation>
    </message>
    <message>
        <source>Remove the last sign</source>
        <translation>Odstrániť posledný znak</translation>
    </message>
    <message>
        <source>C</source>
        <comment>key that clears the entry</comment>
        <translation>C</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Vymazať</translation>
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
        <translation>Umiestniť A, prvý koniec línie, sem</translation>
    </message>
    <message>
        <source>B</source>
        <comment>the other end of the guidance line</comment>
        <translation>B</translation>
    </message>
    <message>
        <source>Set B, the other end of the line, here</source>
        <translation>Umiestniť B, druhý koniec línie, sem</translation>
    </message>
    <message>
        <source>Set a flag here</source>
        <translation>Umiestniť vlajku sem</translation>
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
        <translation>Zrušiť</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Stop</translation>
    </message>
</context>
<context>
    <name>LinePanel</name>
    <message>
        <source>%1 to the left</source>
        <translation>%1 doľava</translation>
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
        <translation>Obrazovka je zamknutá. Na odomknutie podržať tlačidlo.</translation>
    </message>
    <message>
        <source>Unlock</source>
        <translation>Odomknúť</translation>
    </message>
</context>
<context>
    <name>LogsPage</name>
    <message>
        <source>Logs</source>
        <translation>Záznamy</translation>
    </message>
    <message>
        <source>Events</source>
        <translation>Udalosti</translation>
    </message>
    <message>
        <source>Receiver</source>
        <translation>Prijímač</translation>
    </message>
    <message>
        <source>Go on</source>
        <translation>Pokračovať</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pauza</translation>
    </message>
    <message>
        <source>No line yet.</source>
        <translation>Zatiaľ žiadny riadok.</translation>
    </message>
</context>
<context>
    <name>MachinePage</name>
    <message>
        <source>Implement width</source>
        <translation>Záber náradia</translation>
    </message>
    <message>
        <source>Decides the guidance lines beside each other, and the area done</source>
        <translation>Určuje susedné navádzacie línie a spracovanú plochu</translation>
    </message>
    <message>
        <source>Implement behind the antenna</source>
        <translation>Náradie za anténou</translation>
    </message>
    <message>
        <source>How far the ground is covered behind the vehicle&apos;s place</source>
        <translation>Ako ďaleko za vozidlom sa spracúva plocha</translation>
    </message>
</context>
<context>
    <name>Main</name>
    <message>
        <source>Cab display</source>
        <translation>Displej v kabíne</translation>
    </message>
</context>
<context>
    <name>MapButtons</name>
    <message>
        <source>Zoom in</source>
        <translation>Priblížiť</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Oddialiť</translation>
    </message>
    <message>
        <source>The heading is up. Turn north up</source>
        <translation>Smer jazdy je hore. Otočiť sever nahor</translation>
    </message>
    <message>
        <source>North is up. Turn the heading up</source>
        <translation>Sever je hore. Otočiť smer jazdy nahor</translation>
    </message>
    <message>
        <source>Centre the vehicle</source>
        <translation>Vozidlo do stredu</translation>
    </message>
</context>
<context>
    <name>NameEntry</name>
    <message>
        <source>Cancel</source>
        <translation>Zrušiť</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>Nastaviť</translation>
    </message>
</context>
<context>
    <name>PageTurner</name>
    <message>
        <source>Rows above</source>
        <translation>Riadky vyššie</translation>
    </message>
    <message>
        <source>Rows below</source>
        <translation>Riadky nižšie</translation>
    </message>
</context>
<context>
    <name>ParameterRow</name>
    <message>
        <source>%1: back to the first value</source>
        <translation>%1: späť na predvolenú hodnotu</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Otvoriť</translation>
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
        <translation>absolútna cesta, ktorá sa končí na „/“ a nie je „/“</translation>
    </message>
    <message>
        <source>an absolute path</source>
        <translation>absolútna cesta</translation>
    </message>
    <message>
        <source>a UUID in small letters, such as 6ba7b810-9dad-41d1-80b4-00c04fd430c8</source>
        <translation>UUID malými písmenami, napr. 6ba7b810-9dad-41d1-80b4-00c04fd430c8</translation>
    </message>
    <message>
        <source>simulator, tcp://HOST:PORT, serial:///dev/NAME?baud=N or an absolute path</source>
        <translation>simulator, tcp://HOST:PORT, serial:///dev/NAME?baud=N alebo absolútna cesta</translation>
    </message>
    <message>
        <source>true or false</source>
        <translation>true alebo false</translation>
    </message>
    <message>
        <source>a time in UTC, such as 2026-03-05T13:05:09Z</source>
        <translation>čas v UTC, napr. 2026-03-05T13:05:09Z</translation>
    </message>
    <message>
        <source>a colour: #rrggbb, #aarrggbb or a name such as navy</source>
        <translation>farba: #rrggbb, #aarrggbb alebo názov, napr. navy</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>od %1 do %2</translation>
    </message>
    <message>
        <source>Not a whole number.</source>
        <translation>Nie je to celé číslo.</translation>
    </message>
    <message>
        <source>Below the least value.</source>
        <translation>Pod najmenšou hodnotou.</translation>
    </message>
    <message>
        <source>Above the greatest value.</source>
        <translation>Nad najväčšou hodnotou.</translation>
    </message>
    <message>
        <source>This cannot be the name of a file. Try: %1</source>
        <translation>Súbor sa takto nemôže volať. Návrh: %1</translation>
    </message>
    <message>
        <source>Not accepted. Expected: %1.</source>
        <translation>Neprijaté. Očakáva sa: %1.</translation>
    </message>
    <message>
        <source>a name without %1</source>
        <translation>názov bez %1</translation>
    </message>
    <message>
        <source>a whole number</source>
        <translation>celé číslo</translation>
    </message>
    <message>
        <source>At least %1</source>
        <translation>Najmenej %1</translation>
    </message>
</context>
<context>
    <name>Parameters</name>
    <message>
        <source>the operator has chosen the offset from UTC; GPS time keeps it instead of computing it</source>
        <translation>obsluha zvolila posun od UTC; čas GPS ho ponechá a nevypočíta</translation>
    </message>
    <message>
        <source>metric units; otherwise US or English units</source>
        <translation>metrické jednotky; inak americké alebo anglické</translation>
    </message>
    <message>
        <source>US measures when units are not metric; otherwise English measures</source>
        <translation>americké miery, ak jednotky nie sú metrické; inak anglické</translation>
    </message>
    <message>
        <source>positions in degrees, minutes and seconds; otherwise in decimal degrees</source>
        <translation>polohy v stupňoch, minútach a sekundách; inak v desatinných stupňoch</translation>
    </message>
    <message>
        <source>24-hour clock; otherwise 12 hours with am and pm</source>
        <translation>24-hodinové zobrazenie; inak 12 hodín s am a pm</translation>
    </message>
    <message>
        <source>dates with the month before the day</source>
        <translation>dátumy s mesiacom pred dňom</translation>
    </message>
    <message>
        <source>colours for day; otherwise for night</source>
        <translation>denné farby; inak nočné</translation>
    </message>
    <message>
        <source>the map turns with the vehicle; otherwise north is up</source>
        <translation>mapa sa otáča s vozidlom; inak je sever hore</translation>
    </message>
    <message>
        <source>unit of pressures</source>
        <translation>jednotka tlaku</translation>
    </message>
    <message>
        <source>unit of areas, and of rates per area</source>
        <translation>jednotka plochy a dávok na plochu</translation>
    </message>
    <message>
        <source>unit of short distances: widths, offsets</source>
        <translation>jednotka krátkych vzdialeností: šírky, posuny</translation>
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
        <translation>jednotka objemu, prietoku a dávky kvapaliny</translation>
    </message>
    <message>
        <source>language of the display&apos;s texts; a change needs a restart</source>
        <translation>jazyk textov displeja; zmena vyžaduje reštart</translation>
    </message>
    <message>
        <source>decimal point or comma; a change needs a restart</source>
        <translation>desatinná bodka alebo čiarka; zmena vyžaduje reštart</translation>
    </message>
    <message>
        <source>when the colours switch between day and night: only by hand, at sunrise and sunset, or with the sun 6 degrees below the horizon</source>
        <translation>kedy sa farby prepínajú medzi dňom a nocou: len ručne, pri východe a západe slnka alebo keď je slnko 6 stupňov pod obzorom</translation>
    </message>
    <message>
        <source>what set the display&apos;s clock</source>
        <translation>podľa čoho sú nastavené hodiny displeja</translation>
    </message>
    <message>
        <source>local time less UTC, whole hours</source>
        <translation>miestny čas mínus UTC, celé hodiny</translation>
    </message>
    <message>
        <source>local time less UTC, minutes beyond the hours, with the sign of the hours</source>
        <translation>miestny čas mínus UTC, minúty nad hodiny, so znamienkom hodín</translation>
    </message>
    <message>
        <source>brightness of the lightbar at night</source>
        <translation>jas svetelnej lišty v noci</translation>
    </message>
    <message>
        <source>brightness of the screen at night</source>
        <translation>jas obrazovky v noci</translation>
    </message>
    <message>
        <source>brightness of the button lights at night</source>
        <translation>jas svetla tlačidiel v noci</translation>
    </message>
    <message>
        <source>4: implements are kept in the folder of their vehicle; other numbers: in their own folder</source>
        <translation>4: náradie je v priečinku svojho vozidla; iné čísla: vo vlastnom priečinku</translation>
    </message>
    <message>
        <source>number of the next file of the NMEA log</source>
        <translation>číslo ďalšieho súboru záznamu NMEA</translation>
    </message>
    <message>
        <source>number of the next file of the user log</source>
        <translation>číslo ďalšieho súboru záznamu obsluhy</translation>
    </message>
    <message>
        <source>the display&apos;s clock less UTC</source>
        <translation>hodiny displeja mínus UTC</translation>
    </message>
    <message>
        <source>folder of the internal drive; by default in the data folder</source>
        <translation>priečinok vnútorného disku; predvolene v priečinku údajov</translation>
    </message>
    <message>
        <source>mount point of the removable drive; by default in the data folder</source>
        <translation>bod pripojenia vymeniteľného disku; predvolene v priečinku údajov</translation>
    </message>
    <message>
        <source>the identity of the terminal, which its profiles carry</source>
        <translation>označenie terminálu, ktoré je v jeho profiloch</translation>
    </message>
    <message>
        <source>where the sentences of the receiver come from</source>
        <translation>odkiaľ prichádzajú správy prijímača</translation>
    </message>
    <message>
        <source>the figures beside the map, in this order</source>
        <translation>hodnoty vedľa mapy, v tomto poradí</translation>
    </message>
    <message>
        <source>the newest time of a receiver, as of the last day on which one was seen</source>
        <translation>najnovší čas prijímača, z posledného dňa s prijímačom</translation>
    </message>
    <message>
        <source>when the sun switched the colours last</source>
        <translation>kedy slnko naposledy prepnulo farby</translation>
    </message>
    <message>
        <source>the active job</source>
        <translation>aktívna úloha</translation>
    </message>
    <message>
        <source>the active boundary</source>
        <translation>aktívna hranica</translation>
    </message>
    <message>
        <source>the active straight guidance line</source>
        <translation>aktívna rovná navádzacia línia</translation>
    </message>
    <message>
        <source>the active pivot</source>
        <translation>aktívny kruh</translation>
    </message>
    <message>
        <source>the active guidance curve</source>
        <translation>aktívna navádzacia krivka</translation>
    </message>
    <message>
        <source>the active shape file of optimal lines</source>
        <translation>aktívny súbor shape optimálnych línií</translation>
    </message>
    <message>
        <source>the active shape file of project lines</source>
        <translation>aktívny súbor shape línií projektu</translation>
    </message>
    <message>
        <source>the active shape file of zones</source>
        <translation>aktívny súbor shape zón</translation>
    </message>
    <message>
        <source>the active steering profile</source>
        <translation>aktívny profil riadenia</translation>
    </message>
    <message>
        <source>the active implement</source>
        <translation>aktívne náradie</translation>
    </message>
    <message>
        <source>the active vehicle</source>
        <translation>aktívne vozidlo</translation>
    </message>
    <message>
        <source>the active sprayer</source>
        <translation>aktívny postrekovač</translation>
    </message>
    <message>
        <source>the active boom leveller</source>
        <translation>aktívna nivelácia ramien</translation>
    </message>
    <message>
        <source>the active client</source>
        <translation>aktívny klient</translation>
    </message>
    <message>
        <source>the active farm</source>
        <translation>aktívny podnik</translation>
    </message>
    <message>
        <source>the active field</source>
        <translation>aktívne pole</translation>
    </message>
    <message>
        <source>Measures</source>
        <translation>Merné jednotky</translation>
    </message>
    <message>
        <source>Gallons and bushels</source>
        <translation>Galóny a bušle</translation>
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
        <translation>Krátke vzdialenosti</translation>
    </message>
    <message>
        <source>Liquid</source>
        <translation>Kvapalina</translation>
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
        <translation>Dávka na dráhu</translation>
    </message>
    <message>
        <source>Basis of rates</source>
        <translation>Základ dávok</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Jazyk</translation>
    </message>
    <message>
        <source>Decimal sign</source>
        <translation>Desatinný znak</translation>
    </message>
    <message>
        <source>Time of day</source>
        <translation>Formát času</translation>
    </message>
    <message>
        <source>Dates</source>
        <translation>Formát dátumu</translation>
    </message>
    <message>
        <source>Time zone set by hand</source>
        <translation>Časové pásmo ručne</translation>
    </message>
    <message>
        <source>Time zone, hours</source>
        <translation>Časové pásmo, hodiny</translation>
    </message>
    <message>
        <source>Time zone, minutes</source>
        <translation>Časové pásmo, minúty</translation>
    </message>
    <message>
        <source>Clock less UTC</source>
        <translation>Hodiny mínus UTC</translation>
    </message>
    <message>
        <source>Source of the time</source>
        <translation>Zdroj času</translation>
    </message>
    <message>
        <source>Source of the time since</source>
        <translation>Zdroj času, odkedy</translation>
    </message>
    <message>
        <source>Newest receiver time</source>
        <translation>Najnovší čas prijímača</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>Farby</translation>
    </message>
    <message>
        <source>Day and night</source>
        <translation>Deň a noc</translation>
    </message>
    <message>
        <source>Map direction</source>
        <translation>Smer mapy</translation>
    </message>
    <message>
        <source>Tiles</source>
        <translation>Dlaždice</translation>
    </message>
    <message>
        <source>Light bar at night</source>
        <translation>Svetelná lišta v noci</translation>
    </message>
    <message>
        <source>Screen at night</source>
        <translation>Obrazovka v noci</translation>
    </message>
    <message>
        <source>Button lights at night</source>
        <translation>Svetlo tlačidiel v noci</translation>
    </message>
    <message>
        <source>Switched by the sun</source>
        <translation>Prepnuté podľa slnka</translation>
    </message>
    <message>
        <source>Client</source>
        <translation>Klient</translation>
    </message>
    <message>
        <source>Farm</source>
        <translation>Podnik</translation>
    </message>
    <message>
        <source>Field</source>
        <translation>Pole</translation>
    </message>
    <message>
        <source>Job</source>
        <translation>Úloha</translation>
    </message>
    <message>
        <source>Vehicle</source>
        <translation>Vozidlo</translation>
    </message>
    <message>
        <source>Implement</source>
        <translation>Náradie</translation>
    </message>
    <message>
        <source>Sprayer</source>
        <translation>Postrekovač</translation>
    </message>
    <message>
        <source>Boom leveller</source>
        <translation>Nivelácia ramien</translation>
    </message>
    <message>
        <source>Steering profile</source>
        <translation>Profil riadenia</translation>
    </message>
    <message>
        <source>Boundary</source>
        <translation>Hranica</translation>
    </message>
    <message>
        <source>A-B line</source>
        <translation>Línia A-B</translation>
    </message>
    <message>
        <source>Pivot</source>
        <translation>Kruh</translation>
    </message>
    <message>
        <source>Curve</source>
        <translation>Krivka</translation>
    </message>
    <message>
        <source>Optimal lines</source>
        <translation>Optimálne línie</translation>
    </message>
    <message>
        <source>Project lines</source>
        <translation>Línie projektu</translation>
    </message>
    <message>
        <source>Zones</source>
        <translation>Zóny</translation>
    </message>
    <message>
        <source>Receiver address</source>
        <translation>Adresa prijímača</translation>
    </message>
    <message>
        <source>Internal drive</source>
        <translation>Vnútorný disk</translation>
    </message>
    <message>
        <source>Stick</source>
        <translation>USB kľúč</translation>
    </message>
    <message>
        <source>Implement folder</source>
        <translation>Priečinok náradia</translation>
    </message>
    <message>
        <source>Next NMEA log</source>
        <translation>Ďalší záznam NMEA</translation>
    </message>
    <message>
        <source>Next user log</source>
        <translation>Ďalší záznam obsluhy</translation>
    </message>
    <message>
        <source>Identity</source>
        <translation>Označenie</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Colour of texts</source>
        <translation>Farba textov</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Nadpis</translation>
    </message>
    <message>
        <source>Colour of titles</source>
        <translation>Farba nadpisov</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Pozadie</translation>
    </message>
    <message>
        <source>Colour of the background</source>
        <translation>Farba pozadia</translation>
    </message>
    <message>
        <source>Button</source>
        <translation>Tlačidlo</translation>
    </message>
    <message>
        <source>Colour of buttons</source>
        <translation>Farba tlačidiel</translation>
    </message>
    <message>
        <source>Button text</source>
        <translation>Text tlačidla</translation>
    </message>
    <message>
        <source>Colour of texts on buttons</source>
        <translation>Farba textov na tlačidlách</translation>
    </message>
    <message>
        <source>Map</source>
        <translation>Mapa</translation>
    </message>
    <message>
        <source>Colour of the map&apos;s ground</source>
        <translation>Farba podkladu mapy</translation>
    </message>
    <message>
        <source>Grid</source>
        <translation>Mriežka</translation>
    </message>
    <message>
        <source>Colour of the map&apos;s grid</source>
        <translation>Farba mriežky mapy</translation>
    </message>
    <message>
        <source>Coverage</source>
        <translation>Spracovaná plocha</translation>
    </message>
    <message>
        <source>Colour of covered ground</source>
        <translation>Farba spracovanej plochy</translation>
    </message>
    <message>
        <source>Vehicle on the map</source>
        <translation>Vozidlo na mape</translation>
    </message>
    <message>
        <source>Colour of the vehicle</source>
        <translation>Farba vozidla</translation>
    </message>
    <message>
        <source>Guidance line</source>
        <translation>Navádzacia línia</translation>
    </message>
    <message>
        <source>Colour of the guidance line</source>
        <translation>Farba navádzacej línie</translation>
    </message>
    <message>
        <source>Cross hairs</source>
        <translation>Nitkový kríž</translation>
    </message>
    <message>
        <source>Colour of the cross hairs</source>
        <translation>Farba nitkového kríža</translation>
    </message>
    <message>
        <source>Outer boundary</source>
        <translation>Vonkajšia hranica</translation>
    </message>
    <message>
        <source>Colour of the outer boundary of the field</source>
        <translation>Farba vonkajšej hranice poľa</translation>
    </message>
    <message>
        <source>Inner boundary</source>
        <translation>Vnútorná hranica</translation>
    </message>
    <message>
        <source>Colour of boundaries within the field</source>
        <translation>Farba hraníc vnútri poľa</translation>
    </message>
    <message>
        <source>Other boundaries</source>
        <translation>Iné hranice</translation>
    </message>
    <message>
        <source>Colour of boundaries that are not active</source>
        <translation>Farba neaktívnych hraníc</translation>
    </message>
    <message>
        <source>Exclusion zone</source>
        <translation>Zakázaná zóna</translation>
    </message>
    <message>
        <source>Colour of zones to keep out of</source>
        <translation>Farba zakázaných zón</translation>
    </message>
    <message>
        <source>Background picture</source>
        <translation>Obrázok pozadia</translation>
    </message>
    <message>
        <source>Number of the background picture</source>
        <translation>Číslo obrázka pozadia</translation>
    </message>
    <message>
        <source>what the sprayer&apos;s rates are related to</source>
        <translation>na čo sa vzťahujú dávky postrekovača</translation>
    </message>
    <message>
        <source>liquid rates per 100 m or 100 yd of travel, while travel is their basis</source>
        <translation>dávky kvapaliny na 100 m alebo 100 yardov dráhy, kým je ich základom dráha</translation>
    </message>
    <message>
        <source>since when the clock has its time from there</source>
        <translation>odkedy majú hodiny čas odtiaľ</translation>
    </message>
    <message>
        <source>Metric</source>
        <translation>Metrické</translation>
    </message>
    <message>
        <source>US or English</source>
        <translation>US alebo anglické</translation>
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
        <translation>Stup., min., s</translation>
    </message>
    <message>
        <source>Degrees</source>
        <translation>Stupne</translation>
    </message>
    <message>
        <source>24 hours</source>
        <translation>24 hodín</translation>
    </message>
    <message>
        <source>am, pm</source>
        <translation>am, pm</translation>
    </message>
    <message>
        <source>Month first</source>
        <translation>Najprv mesiac</translation>
    </message>
    <message>
        <source>Day first</source>
        <translation>Najprv deň</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Deň</translation>
    </message>
    <message>
        <source>Night</source>
        <translation>Noc</translation>
    </message>
    <message>
        <source>Heading up</source>
        <translation>Smer jazdy</translation>
    </message>
    <message>
        <source>North up</source>
        <translation>Sever hore</translation>
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
        <translation>Áno</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nie</translation>
    </message>
    <message>
        <source>Travel</source>
        <translation>Dráha</translation>
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
        <translation>Hektár</translation>
    </message>
    <message>
        <source>Acre</source>
        <translation>Aker</translation>
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
        <translation>Bušel US</translation>
    </message>
    <message>
        <source>UK bushel</source>
        <translation>Bušel UK</translation>
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
        <translation>Bodka</translation>
    </message>
    <message>
        <source>Comma</source>
        <translation>Čiarka</translation>
    </message>
    <message>
        <source>By hand</source>
        <translation>Ručne</translation>
    </message>
    <message>
        <source>Sunset</source>
        <translation>Západ slnka</translation>
    </message>
    <message>
        <source>Twilight</source>
        <translation>Súmrak</translation>
    </message>
    <message>
        <source>Not set</source>
        <translation>Nenastavené</translation>
    </message>
    <message>
        <source>Operator</source>
        <translation>Obsluha</translation>
    </message>
    <message>
        <source>Receiver</source>
        <translation>Prijímač</translation>
    </message>
    <message>
        <source>Rate</source>
        <translation>Dávka</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Rýchlosť</translation>
    </message>
    <message>
        <source>Area done</source>
        <translation>Spracovaná plocha</translation>
    </message>
    <message>
        <source>Area left</source>
        <translation>Zvyšná plocha</translation>
    </message>
    <message>
        <source>Productivity</source>
        <translation>Výkonnosť</translation>
    </message>
    <message>
        <source>Flow</source>
        <translation>Prietok</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Teplota</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>Vzdialenosť</translation>
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
        <translation>Región</translation>
    </message>
    <message>
        <source>Clock</source>
        <translation>Hodiny</translation>
    </message>
    <message>
        <source>Colours of the schemes</source>
        <translation>Farby schém</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Displej</translation>
    </message>
    <message>
        <source>Selections</source>
        <translation>Výber</translation>
    </message>
    <message>
        <source>Storage</source>
        <translation>Úložisko</translation>
    </message>
    <message>
        <source>Logs</source>
        <translation>Záznamy</translation>
    </message>
    <message>
        <source>Terminal</source>
        <translation>Terminál</translation>
    </message>
    <message>
        <source>%1, by day</source>
        <translation>%1, cez deň</translation>
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
        <translation>Záznamy strácajú riadky: ich disk je plný alebo sa naň nedá zapisovať.</translation>
    </message>
    <message>
        <source>Recording is off, because there is too little room.</source>
        <translation>Zaznamenávanie je vypnuté, lebo je málo miesta.</translation>
    </message>
    <message>
        <source>Changes of settings are not stored yet. %1</source>
        <translation>Zmeny nastavení ešte nie sú uložené. %1</translation>
    </message>
    <message>
        <source>The drive of the terminal is nearly full. Free: %1</source>
        <translation>Disk terminálu je takmer plný. Voľné: %1</translation>
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
        <translation>Displej už tieto nastavenia má.</translation>
    </message>
    <message>
        <source>Changed here and in the profile</source>
        <translation>Zmenené tu aj v profile</translation>
    </message>
    <message>
        <source>Which value the settings below shall have</source>
        <translation>Akú hodnotu majú mať nastavenia nižšie</translation>
    </message>
    <message>
        <source>Ours</source>
        <translation>Z displeja</translation>
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
        <translation>Na USB kľúči nie je žiadny profil.</translation>
    </message>
    <message>
        <source>No stick is plugged in.</source>
        <translation>USB kľúč nie je zasunutý.</translation>
    </message>
    <message>
        <source>Name of the profile</source>
        <translation>Názov profilu</translation>
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
        <translation>Výkonnosť</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Rýchlosť</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>Vzdialenosť</translation>
    </message>
    <message>
        <source>Small distance</source>
        <translation>Malá vzdialenosť</translation>
    </message>
    <message>
        <source>Travelled distance</source>
        <translation>Prejdená vzdialenosť</translation>
    </message>
    <message>
        <source>Altitude</source>
        <translation>Výška</translation>
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
        <translation>Dávka a odchýlka</translation>
    </message>
    <message>
        <source>Small rate</source>
        <translation>Malá dávka</translation>
    </message>
    <message>
        <source>Flow</source>
        <translation>Prietok</translation>
    </message>
    <message>
        <source>Small flow</source>
        <translation>Malý prietok</translation>
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
        <translation>Hmotnosť</translation>
    </message>
    <message>
        <source>Weight per area</source>
        <translation>Hmotnosť na plochu</translation>
    </message>
    <message>
        <source>Weight per area and error</source>
        <translation>Hmotnosť na plochu a odchýlka</translation>
    </message>
    <message>
        <source>Discharge</source>
        <translation>Výdaj</translation>
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
        <translation>Semená na plochu</translation>
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
        <translation>Hmotnosť na otáčku</translation>
    </message>
    <message>
        <source>Flow meter</source>
        <translation>Prietokomer</translation>
    </message>
    <message>
        <source>Wheel sensor</source>
        <translation>Snímač kolesa</translation>
    </message>
    <message>
        <source>Speed sensor</source>
        <translation>Snímač rýchlosti</translation>
    </message>
    <message>
        <source>Latitude</source>
        <translation>Zem. šírka</translation>
    </message>
    <message>
        <source>Longitude</source>
        <translation>Zem. dĺžka</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Trvanie</translation>
    </message>
    <message>
        <source>Percent</source>
        <translation>Percento</translation>
    </message>
</context>
<context>
    <name>Question</name>
    <message>
        <source>Cancel</source>
        <translation>Zrušiť</translation>
    </message>
</context>
<context>
    <name>RateTile</name>
    <message>
        <source>set %1</source>
        <comment>the rate that is set</comment>
        <translation>zadaná %1</translation>
    </message>
</context>
<context>
    <name>Receiver</name>
    <message>
        <source>Off</source>
        <translation>Vyp.</translation>
    </message>
    <message>
        <source>Connecting</source>
        <translation>Pripájanie</translation>
    </message>
    <message>
        <source>Receiving</source>
        <translation>Prijíma</translation>
    </message>
    <message>
        <source>Silent</source>
        <translation>Bez údajov</translation>
    </message>
    <message>
        <source>Lost</source>
        <translation>Stratený</translation>
    </message>
    <message>
        <source>Ended</source>
        <translation>Ukončené</translation>
    </message>
    <message>
        <source>No fix</source>
        <translation>Bez polohy</translation>
    </message>
    <message>
        <source>RTK float</source>
        <translation>RTK Float</translation>
    </message>
    <message>
        <source>Estimated</source>
        <translation>Odhadnuté</translation>
    </message>
    <message>
        <source>By hand</source>
        <translation>Ručne</translation>
    </message>
    <message>
        <source>Simulated</source>
        <translation>Simulované</translation>
    </message>
    <message>
        <source>The receiver sends nothing.</source>
        <translation>Prijímač nič neposiela.</translation>
    </message>
    <message>
        <source>The receiver is lost and is being looked for. %1</source>
        <translation>Prijímač je stratený a hľadá sa. %1</translation>
    </message>
    <message>
        <source>The receiver cannot be read. %1</source>
        <translation>Prijímač sa nedá čítať. %1</translation>
    </message>
    <message>
        <source>The simulated field is done.</source>
        <translation>Simulované pole je hotové.</translation>
    </message>
    <message>
        <source>The recording of the receiver is over.</source>
        <translation>Záznam prijímača sa skončil.</translation>
    </message>
</context>
<context>
    <name>ReceiverPage</name>
    <message>
        <source>Receiver</source>
        <translation>Prijímač</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Stop</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Štart</translation>
    </message>
    <message>
        <source>Simulator</source>
        <translation>Simulátor</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Súbor</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Sieť</translation>
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
        <translation>Typ polohy</translation>
    </message>
    <message>
        <source>Age</source>
        <translation>Vek</translation>
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
        <translation>Riadky</translation>
    </message>
    <message>
        <source>Sentences</source>
        <translation>Správy</translation>
    </message>
    <message>
        <source>Bad checksums</source>
        <translation>Chybné kontr. súčty</translation>
    </message>
    <message>
        <source>Damaged lines</source>
        <translation>Chybné riadky</translation>
    </message>
    <message>
        <source>Address of the receiver</source>
        <translation>Adresa prijímača</translation>
    </message>
</context>
<context>
    <name>RegionPage</name>
    <message>
        <source>Date</source>
        <translation>Dátum</translation>
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
        <translation>Dátum a čas</translation>
    </message>
    <message>
        <source>Set by hand</source>
        <translation>Nastaviť ručne</translation>
    </message>
</context>
<context>
    <name>SearchPage</name>
    <message>
        <source>Search</source>
        <translation>Hľadať</translation>
    </message>
    <message>
        <source>Words of a setting</source>
        <translation>Hľadať nastavenie</translation>
    </message>
    <message>
        <source>No setting has these words.</source>
        <translation>Žiadne nastavenie nemá tieto slová.</translation>
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
        <translation>Región</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>Farby</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Displej</translation>
    </message>
    <message>
        <source>Machine</source>
        <translation>Stroj</translation>
    </message>
    <message>
        <source>Storage</source>
        <translation>Úložisko</translation>
    </message>
    <message>
        <source>About</source>
        <translation>O programe</translation>
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
        <translation>Všetky nastavenia</translation>
    </message>
</context>
<context>
    <name>SettingsPanel</name>
    <message>
        <source>Back</source>
        <translation>Späť</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Hľadať</translation>
    </message>
</context>
<context>
    <name>Sizes</name>
    <message numerus="yes">
        <source>%n byte(s)</source>
        <translation>
            <numerusform>%n bajt</numerusform>
            <numerusform>%n bajty</numerusform>
            <numerusform>%n bajtov</numerusform>
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
        <translation>Žiadna úloha</translation>
    </message>
    <message>
        <source>Receiver: %1</source>
        <translation>Prijímač: %1</translation>
    </message>
    <message>
        <source>The stick is plugged in</source>
        <translation>USB kľúč je zasunutý</translation>
    </message>
    <message>
        <source>Lock the screen</source>
        <translation>Zamknúť obrazovku</translation>
    </message>
    <message>
        <source>Colours of the night</source>
        <translation>Nočné farby</translation>
    </message>
    <message>
        <source>Colours of the day</source>
        <translation>Denné farby</translation>
    </message>
</context>
<context>
    <name>StoragePage</name>
    <message>
        <source>Open</source>
        <translation>Otvoriť</translation>
    </message>
    <message>
        <source>Internal drive</source>
        <translation>Vnútorný disk</translation>
    </message>
    <message>
        <source>Stick</source>
        <translation>USB kľúč</translation>
    </message>
    <message>
        <source>No stick is plugged in.</source>
        <translation>USB kľúč nie je zasunutý.</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Pamäť</translation>
    </message>
    <message>
        <source>Logs</source>
        <translation>Záznamy</translation>
    </message>
    <message>
        <source>Writes all log files to the stick</source>
        <translation>Zapíše všetky súbory záznamov na USB kľúč</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Export</translation>
    </message>
    <message>
        <source>Export the logs</source>
        <translation>Export záznamov</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>Profily</translation>
    </message>
    <message>
        <source>Takes the settings to another display, or brings them back from the stick</source>
        <translation>Prenesie nastavenia na iný displej alebo ich vráti z USB kľúča</translation>
    </message>
    <message>
        <source>Open the profiles</source>
        <translation>Otvoriť profily</translation>
    </message>
    <message>
        <source>Support</source>
        <translation>Podpora</translation>
    </message>
    <message>
        <source>Writes logs, settings and versions in one file; without the names of clients, farms and fields</source>
        <translation>Zapíše záznamy, nastavenia a verzie do jedného súboru; bez mien klientov, podnikov a polí</translation>
    </message>
    <message>
        <source>Write</source>
        <translation>Zapísať</translation>
    </message>
    <message>
        <source>Write the file for support without names</source>
        <translation>Zapísať súbor pre podporu bez mien</translation>
    </message>
    <message>
        <source>Support, with names</source>
        <translation>Podpora, s menami</translation>
    </message>
    <message>
        <source>The same file, with all names and places</source>
        <translation>Ten istý súbor, so všetkými menami a miestami</translation>
    </message>
    <message>
        <source>Write the file for support with names</source>
        <translation>Zapísať súbor pre podporu s menami</translation>
    </message>
</context>
<context>
    <name>TFieldTreeModel</name>
    <message>
        <source>A job holds no items.</source>
        <translation>Úloha neobsahuje ďalšie položky.</translation>
    </message>
    <message>
        <source>There is one with this name already.</source>
        <translation>Taký názov už existuje.</translation>
    </message>
    <message numerus="yes">
        <source>%n file(s), %1</source>
        <translation>
            <numerusform>%n súbor, %1</numerusform>
            <numerusform>%n súbory, %1</numerusform>
            <numerusform>%n súborov, %1</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>TParameter</name>
    <message>
        <source>The setting could not be written to the disk yet.</source>
        <translation>Nastavenie sa zatiaľ nepodarilo zapísať na disk.</translation>
    </message>
    <message>
        <source>There is no value to set.</source>
        <translation>Nie je čo nastaviť.</translation>
    </message>
</context>
<context>
    <name>TRegionSettings</name>
    <message>
        <source>Jan</source>
        <translation>jan</translation>
    </message>
    <message>
        <source>Feb</source>
        <translation>feb</translation>
    </message>
    <message>
        <source>Mar</source>
        <translation>mar</translation>
    </message>
    <message>
        <source>Apr</source>
        <translation>apr</translation>
    </message>
    <message>
        <source>May</source>
        <translation>máj</translation>
    </message>
    <message>
        <source>Jun</source>
        <translation>jún</translation>
    </message>
    <message>
        <source>Jul</source>
        <translation>júl</translation>
    </message>
    <message>
        <source>Aug</source>
        <translation>aug</translation>
    </message>
    <message>
        <source>Sep</source>
        <translation>sep</translation>
    </message>
    <message>
        <source>Oct</source>
        <translation>okt</translation>
    </message>
    <message>
        <source>Nov</source>
        <translation>nov</translation>
    </message>
    <message>
        <source>Dec</source>
        <translation>dec</translation>
    </message>
</context>
<context>
    <name>TRestart</name>
    <message>
        <source>The new language is shown after a restart.</source>
        <translation>Nový jazyk sa zobrazí po reštarte.</translation>
    </message>
    <message>
        <source>The new decimal sign is shown after a restart.</source>
        <translation>Nový desatinný znak sa zobrazí po reštarte.</translation>
    </message>
</context>
<context>
    <name>TSelections</name>
    <message>
        <source>The selection could not be stored.</source>
        <translation>Výber sa nepodarilo uložiť.</translation>
    </message>
</context>
<context>
    <name>TSystemSettings</name>
    <message>
        <source>J_</source>
        <translation>U_</translation>
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
        <translation>KR_</translation>
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
        <translation>Bez náradia</translation>
    </message>
    <message>
        <source>Pivoted_</source>
        <translation>Ťahané_</translation>
    </message>
</context>
<context>
    <name>TTransfer</name>
    <message>
        <source>The name is empty.</source>
        <translation>Názov je prázdny.</translation>
    </message>
</context>
<context>
    <name>TUnitAbbreviations</name>
    <message>
        <source>Jan</source>
        <translation>jan</translation>
    </message>
    <message>
        <source>Feb</source>
        <translation>feb</translation>
    </message>
    <message>
        <source>Mar</source>
        <translation>mar</translation>
    </message>
    <message>
        <source>Apr</source>
        <translation>apr</translation>
    </message>
    <message>
        <source>May</source>
        <translation>máj</translation>
    </message>
    <message>
        <source>Jun</source>
        <translation>jún</translation>
    </message>
    <message>
        <source>Jul</source>
        <translation>júl</translation>
    </message>
    <message>
        <source>Aug</source>
        <translation>aug</translation>
    </message>
    <message>
        <source>Sep</source>
        <translation>sep</translation>
    </message>
    <message>
        <source>Oct</source>
        <translation>okt</translation>
    </message>
    <message>
        <source>Nov</source>
        <translation>nov</translation>
    </message>
    <message>
        <source>Dec</source>
        <translation>dec</translation>
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
        <translation>míľ</translation>
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
        <translation>tis.sem/ha</translation>
    </message>
    <message>
        <source>KS/ac</source>
        <translation>tis.sem/ac</translation>
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
        <translation>Bežné</translation>
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
        <translation>Náradie nemôže mať takýto záber.</translation>
    </message>
    <message>
        <source>A file of this job cannot be used. %1</source>
        <translation>Súbor tejto úlohy sa nedá použiť. %1</translation>
    </message>
    <message>
        <source>Coverage was not complete and was left out: strips %1, bytes %2</source>
        <translation>Údaje o spracovanej ploche neboli úplné a boli vynechané: pásy %1, bajty %2</translation>
    </message>
    <message>
        <source>The file of the flags is damaged; new flags are not stored.</source>
        <translation>Súbor vlajok je poškodený; nové vlajky sa neukladajú.</translation>
    </message>
    <message>
        <source>A file could not be stored. %1</source>
        <translation>Súbor sa nepodarilo uložiť. %1</translation>
    </message>
    <message>
        <source>The file of the implement cannot be used. %1</source>
        <translation>Súbor náradia sa nedá použiť. %1</translation>
    </message>
    <message>
        <source>There is no line.</source>
        <translation>Nie je žiadna línia.</translation>
    </message>
    <message>
        <source>The line has no name.</source>
        <translation>Línia nemá názov.</translation>
    </message>
    <message>
        <source>The guidance line cannot be used. %1</source>
        <translation>Navádzacia línia sa nedá použiť. %1</translation>
    </message>
    <message>
        <source>No job is chosen</source>
        <translation>Úloha nie je vybraná</translation>
    </message>
    <message>
        <source>No job is chosen: what is covered is not stored.</source>
        <translation>Úloha nie je vybraná: spracovaná plocha sa neukladá.</translation>
    </message>
    <message>
        <source>The coverage of this job cannot be used: what is covered is not stored.</source>
        <translation>Údaje o spracovanej ploche v tejto úlohe sa nedajú použiť: spracovaná plocha sa neukladá.</translation>
    </message>
    <message>
        <source>The coverage cannot be stored, and strips are lost: %1</source>
        <translation>Spracovaná plocha sa nedá uložiť a pásy sa strácajú: %1</translation>
    </message>
    <message>
        <source>The coverage is kept in memory until it can be stored. %1</source>
        <translation>Spracovaná plocha zostáva v pamäti, kým sa nedá uložiť. %1</translation>
    </message>
    <message>
        <source>The job is still being read.</source>
        <translation>Úloha sa ešte načítava.</translation>
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
        <translation>Rýchlosť</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>Plocha</translation>
    </message>
    <message>
        <source>Left</source>
        <comment>area that is left to work</comment>
        <translation>Zvyšok</translation>
    </message>
    <message>
        <source>Work</source>
        <comment>area per hour</comment>
        <translation>Výkonnosť</translation>
    </message>
    <message>
        <source>Flow</source>
        <translation>Prietok</translation>
    </message>
    <message>
        <source>Press.</source>
        <comment>pressure</comment>
        <translation>Tlak</translation>
    </message>
    <message>
        <source>Temp.</source>
        <comment>temperature</comment>
        <translation>Tepl.</translation>
    </message>
    <message>
        <source>Driven</source>
        <translation>Dráha</translation>
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
        <translation>Späť na predvolený výber</translation>
    </message>
    <message>
        <source>%1 further ahead</source>
        <translation>%1: posunúť dopredu</translation>
    </message>
    <message>
        <source>Shown</source>
        <translation>Zobrazené</translation>
    </message>
    <message>
        <source>Hidden</source>
        <translation>Skryté</translation>
    </message>
</context>
<context>
    <name>Transfer</name>
    <message>
        <source>Nothing is imported: some settings were changed here and in the profile.</source>
        <translation>Nič sa neimportovalo: niektoré nastavenia boli zmenené tu aj v profile.</translation>
    </message>
    <message>
        <source>No stick is plugged in.</source>
        <translation>USB kľúč nie je zasunutý.</translation>
    </message>
    <message>
        <source>The stick was removed before everything was on it.</source>
        <translation>USB kľúč bol vybratý skôr, než na ňom bolo všetko.</translation>
    </message>
    <message>
        <source>The stick could not be written to the end.</source>
        <translation>Zápis na USB kľúč sa nepodarilo dokončiť.</translation>
    </message>
    <message>
        <source>The folder %1 cannot be made.</source>
        <translation>Priečinok %1 sa nedá vytvoriť.</translation>
    </message>
    <message>
        <source>The file %1 cannot be written.</source>
        <translation>Súbor %1 sa nedá zapísať.</translation>
    </message>
    <message>
        <source>The logs are on the stick (files: %1).</source>
        <translation>Záznamy sú na USB kľúči (súbory: %1).</translation>
    </message>
    <message>
        <source>The profile cannot be used. %1</source>
        <translation>Profil sa nedá použiť. %1</translation>
    </message>
    <message>
        <source>Nothing is imported. %1</source>
        <translation>Nič sa neimportovalo. %1</translation>
    </message>
    <message>
        <source>This display</source>
        <translation>Tento displej</translation>
    </message>
    <message>
        <source>Another display</source>
        <translation>Iný displej</translation>
    </message>
    <message>
        <source>The profile is not on the stick. %1</source>
        <translation>Profil nie je na USB kľúči. %1</translation>
    </message>
    <message>
        <source>The profile is on the stick: %1.</source>
        <translation>Profil je na USB kľúči: %1.</translation>
    </message>
    <message>
        <source>The file for support is not on the stick. %1</source>
        <translation>Súbor pre podporu nie je na USB kľúči. %1</translation>
    </message>
    <message>
        <source>The file for support is on the stick: %1.</source>
        <translation>Súbor pre podporu je na USB kľúči: %1.</translation>
    </message>
    <message>
        <source>The profile is imported (settings changed: %1).</source>
        <translation>Profil je importovaný (zmenené nastavenia: %1).</translation>
    </message>
    <message>
        <source>It cannot be used.</source>
        <translation>Nedá sa použiť.</translation>
    </message>
</context>
<context>
    <name>TransferState</name>
    <message>
        <source>Reading</source>
        <translation>Čítanie</translation>
    </message>
    <message>
        <source>Writing</source>
        <translation>Zapisovanie</translation>
    </message>
    <message>
        <source>Leave the stick where it is until this is done.</source>
        <translation>USB kľúč nevyberať, kým sa to nedokončí.</translation>
    </message>
</context>
<context>
    <name>WorkPage</name>
    <message>
        <source>Waiting for a position</source>
        <translation>Čakanie na polohu</translation>
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
        <translation>Pracuje. Vypnúť náradie</translation>
    </message>
    <message>
        <source>Not working. Switch the implement on</source>
        <translation>Nepracuje. Zapnúť náradie</translation>
    </message>
</context>
</TS>
