<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="hu" sourcelanguage="en">
<context>
    <name>About</name>
    <message>
        <source>Windows, files and connections</source>
        <translation>Ablakok, fájlok és kapcsolatok</translation>
    </message>
    <message>
        <source>The file of the settings</source>
        <translation>A beállítások fájlja</translation>
    </message>
    <message>
        <source>Profiles of settings</source>
        <translation>Beállítási profilok</translation>
    </message>
    <message>
        <source>Files for support</source>
        <translation>Fájlok a szerviznek</translation>
    </message>
    <message>
        <source>Sunrise and sunset</source>
        <translation>Napkelte és napnyugta</translation>
    </message>
    <message>
        <source>Boundaries and zones</source>
        <translation>Határok és zónák</translation>
    </message>
    <message>
        <source>Software</source>
        <translation>Szoftver</translation>
    </message>
    <message>
        <source>The software of this display</source>
        <translation>A terminál szoftvere</translation>
    </message>
    <message>
        <source>Settings, units and logs</source>
        <translation>Beállítások, egységek és naplók</translation>
    </message>
</context>
<context>
    <name>Clock</name>
    <message>
        <source>The clock of the machine; nothing has set it.</source>
        <translation>A készülék órája; nem állították be.</translation>
    </message>
    <message>
        <source>The clock was set by hand.</source>
        <translation>Az órát kézzel állították be.</translation>
    </message>
    <message>
        <source>The receiver sets the clock.</source>
        <translation>Az órát a vevő állítja.</translation>
    </message>
    <message>
        <source>There is no such date or time.</source>
        <translation>Nincs ilyen dátum vagy idő.</translation>
    </message>
    <message>
        <source>The date is more than 68 years from the clock of the machine.</source>
        <translation>A dátum több mint 68 évre van a készülék órájától.</translation>
    </message>
    <message>
        <source>The clock could not be stored.</source>
        <translation>Az órát nem sikerült menteni.</translation>
    </message>
</context>
<context>
    <name>ClockEntry</name>
    <message>
        <source>Year</source>
        <translation>Év</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>Hónap</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Nap</translation>
    </message>
    <message>
        <source>Hour</source>
        <translation>Óra</translation>
    </message>
    <message>
        <source>Minute</source>
        <translation>Perc</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>Dátum és idő</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Idő</translation>
    </message>
    <message>
        <source>%1: more</source>
        <translation>%1: több</translation>
    </message>
    <message>
        <source>%1: less</source>
        <translation>%1: kevesebb</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Mégse</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>Elfogadás</translation>
    </message>
</context>
<context>
    <name>ColorBar</name>
    <message>
        <source>%1: less</source>
        <translation>%1: kevesebb</translation>
    </message>
    <message>
        <source>%1: more</source>
        <translation>%1: több</translation>
    </message>
</context>
<context>
    <name>ColorPage</name>
    <message>
        <source>Former</source>
        <translation>Előző</translation>
    </message>
    <message>
        <source>Former colour</source>
        <translation>Előző szín</translation>
    </message>
    <message>
        <source>First value</source>
        <translation>Gyári érték</translation>
    </message>
    <message>
        <source>Digits of the colour</source>
        <translation>A szín számjegyei</translation>
    </message>
    <message>
        <source>Hue</source>
        <translation>Árnyalat</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Telítettség</translation>
    </message>
    <message>
        <source>Lightness</source>
        <translation>Világosság</translation>
    </message>
</context>
<context>
    <name>ColorsPage</name>
    <message>
        <source>Day</source>
        <translation>Nappal</translation>
    </message>
    <message>
        <source>Night</source>
        <translation>Éjjel</translation>
    </message>
</context>
<context>
    <name>Contrasts</name>
    <message>
        <source>on %1: %2</source>
        <translation>%1 alapon: %2</translation>
    </message>
    <message>
        <source>under %1: %2</source>
        <translation>%1 alatt: %2</translation>
    </message>
    <message>
        <source>%1, too low: at least %2</source>
        <translation>%1, túl kevés: legalább %2</translation>
    </message>
</context>
<context>
    <name>Difference</name>
    <message>
        <source>Changed on both sides</source>
        <translation>Mindkét helyen módosult</translation>
    </message>
    <message>
        <source>Here</source>
        <translation>Itt</translation>
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
        <translation>Újraindítás</translation>
    </message>
    <message>
        <source>The fonts of the display</source>
        <translation>A terminál betűtípusai</translation>
    </message>
    <message>
        <source>The keyboard on the screen</source>
        <translation>Képernyő-billentyűzet</translation>
    </message>
</context>
<context>
    <name>DoorBand</name>
    <message>
        <source>Work</source>
        <translation>Munka</translation>
    </message>
    <message>
        <source>Fields</source>
        <translation>Táblák</translation>
    </message>
    <message>
        <source>Receiver</source>
        <translation>Vevő</translation>
    </message>
    <message>
        <source>Logs</source>
        <translation>Naplók</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Beállítások</translation>
    </message>
</context>
<context>
    <name>Drives</name>
    <message>
        <source>%1 free of %2</source>
        <translation>szabad: %1 / %2</translation>
    </message>
    <message>
        <source>Not known</source>
        <translation>Ismeretlen</translation>
    </message>
    <message>
        <source>No stick</source>
        <translation>Nincs pendrive</translation>
    </message>
</context>
<context>
    <name>FieldsPage</name>
    <message>
        <source>Clients</source>
        <translation>Ügyfelek</translation>
    </message>
    <message>
        <source>New client</source>
        <translation>Új ügyfél</translation>
    </message>
    <message>
        <source>No client yet.</source>
        <translation>Még nincs ügyfél.</translation>
    </message>
    <message>
        <source>Farms</source>
        <translation>Gazdaságok</translation>
    </message>
    <message>
        <source>New farm</source>
        <translation>Új gazdaság</translation>
    </message>
    <message>
        <source>No farm yet.</source>
        <translation>Még nincs gazdaság.</translation>
    </message>
    <message>
        <source>Fields</source>
        <translation>Táblák</translation>
    </message>
    <message>
        <source>New field</source>
        <translation>Új tábla</translation>
    </message>
    <message>
        <source>No field yet.</source>
        <translation>Még nincs tábla.</translation>
    </message>
    <message>
        <source>Jobs</source>
        <translation>Feladatok</translation>
    </message>
    <message>
        <source>New job</source>
        <translation>Új feladat</translation>
    </message>
    <message>
        <source>No job yet.</source>
        <translation>Még nincs feladat.</translation>
    </message>
    <message>
        <source>Remove %1 with everything in it?</source>
        <translation>%1 törlése teljes tartalmával?</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Rename or remove %1</source>
        <translation>Átnevezés vagy törlés: %1</translation>
    </message>
    <message>
        <source>Rename %1</source>
        <translation>Átnevezés: %1</translation>
    </message>
    <message>
        <source>Remove everything</source>
        <translation>Minden törlése</translation>
    </message>
</context>
<context>
    <name>Host</name>
    <message>
        <source>Details for the support: %1</source>
        <translation>Részletek a szerviznek: %1</translation>
    </message>
    <message>
        <source>%3 Try: %4</source>
        <translation>%3 Lehetséges: %4</translation>
    </message>
    <message>
        <source>This name is not possible.</source>
        <translation>Ez a név nem lehetséges.</translation>
    </message>
    <message>
        <source>The name is empty.</source>
        <translation>A név üres.</translation>
    </message>
    <message>
        <source>This name stands for another folder.</source>
        <translation>Ez a név egy másik mappát jelöl.</translation>
    </message>
    <message>
        <source>The name must not contain %1.</source>
        <translation>A névben nem lehet %1.</translation>
    </message>
    <message>
        <source>The name contains a sign that cannot be seen.</source>
        <translation>A névben láthatatlan karakter van.</translation>
    </message>
    <message>
        <source>The name contains a sign that is not complete.</source>
        <translation>A névben hiányos karakter van.</translation>
    </message>
    <message>
        <source>The name must not end in a full stop or a blank.</source>
        <translation>A név nem végződhet pontra vagy szóközre.</translation>
    </message>
    <message>
        <source>The name must not begin with a blank.</source>
        <translation>A név nem kezdődhet szóközzel.</translation>
    </message>
    <message>
        <source>A stick cannot hold a file with this name.</source>
        <translation>Egy pendrive nem fogad el ilyen nevű fájlt.</translation>
    </message>
    <message>
        <source>The name is too long.</source>
        <translation>A név túl hosszú.</translation>
    </message>
    <message>
        <source>%2 exists already.</source>
        <translation>%2 már létezik.</translation>
    </message>
    <message numerus="yes">
        <source>%2 is active and holds %n file(s).</source>
        <translation>
            <numerusform>%2 aktív, és %n fájl van benne.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%2 holds %n file(s).</source>
        <translation>
            <numerusform>%2: %n fájl van benne.</numerusform>
        </translation>
    </message>
    <message>
        <source>%2 is active.</source>
        <translation>%2 aktív.</translation>
    </message>
    <message>
        <source>%2 is no longer there.</source>
        <translation>%2 már nincs meg.</translation>
    </message>
    <message>
        <source>A stick cannot tell %2 from %3.</source>
        <translation>Egy pendrive-on ez a kettő ugyanaz: %2, %3.</translation>
    </message>
    <message>
        <source>Another program is working on the fields. Try again later.</source>
        <translation>Egy másik program dolgozik a táblákon. Később érdemes újrapróbálni.</translation>
    </message>
    <message>
        <source>The selection could not be stored.</source>
        <translation>A kiválasztást nem sikerült menteni.</translation>
    </message>
    <message>
        <source>%1 is neither a file nor a folder.</source>
        <translation>%1: se nem fájl, se nem mappa.</translation>
    </message>
    <message>
        <source>The file was edited or is damaged.</source>
        <translation>A fájlt módosították, vagy megsérült.</translation>
    </message>
    <message>
        <source>%1 cannot be read. %2</source>
        <translation>Nem olvasható: %1. %2</translation>
    </message>
    <message>
        <source>The file is of another kind.</source>
        <translation>A fájl más fajtájú.</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>A fájl üres.</translation>
    </message>
    <message>
        <source>The end of the file is missing.</source>
        <translation>A fájl vége hiányzik.</translation>
    </message>
    <message>
        <source>The file is damaged.</source>
        <translation>A fájl sérült.</translation>
    </message>
    <message>
        <source>The file is not complete.</source>
        <translation>A fájl nem teljes.</translation>
    </message>
    <message>
        <source>The file is from another version of the software.</source>
        <translation>A fájl a szoftver más verziójából való.</translation>
    </message>
    <message>
        <source>The file has a value that is not possible: %2</source>
        <translation>A fájlban lehetetlen érték van: %2</translation>
    </message>
    <message>
        <source>The file has a value twice: %2</source>
        <translation>A fájlban egy beállítás kétszer szerepel: %2</translation>
    </message>
    <message>
        <source>This address is not possible: %1</source>
        <translation>Ez a cím nem lehetséges: %1</translation>
    </message>
    <message>
        <source>The device is not there.</source>
        <translation>Az eszköz nincs ott.</translation>
    </message>
    <message>
        <source>It is not permitted, or another program uses it.</source>
        <translation>Nincs engedélyezve, vagy egy másik program használja.</translation>
    </message>
    <message>
        <source>Another program uses it.</source>
        <translation>Egy másik program használja.</translation>
    </message>
    <message>
        <source>It cannot be read.</source>
        <translation>Nem olvasható.</translation>
    </message>
    <message>
        <source>It was unplugged.</source>
        <translation>Kihúzták.</translation>
    </message>
    <message>
        <source>It is not a serial device, or it cannot have this speed.</source>
        <translation>Nem soros eszköz, vagy nem tudja ezt a sebességet.</translation>
    </message>
    <message>
        <source>The serial port has a fault (number %1).</source>
        <translation>A soros port hibás (szám: %1).</translation>
    </message>
    <message>
        <source>%1 is damaged or of another kind.</source>
        <translation>Ez a fájl sérült, vagy más fajtájú: %1.</translation>
    </message>
    <message>
        <source>%1 is from another version of the software.</source>
        <translation>Ez a fájl a szoftver más verziójából való: %1.</translation>
    </message>
    <message>
        <source>%1 is damaged.</source>
        <translation>Ez a fájl sérült: %1.</translation>
    </message>
    <message>
        <source>%1 has other coordinates than WGS84.</source>
        <translation>Ennek a fájlnak nem WGS84 koordinátái vannak: %1.</translation>
    </message>
    <message>
        <source>%1 is not complete. %2 is missing.</source>
        <translation>Ez a fájl nem teljes: %1. Hiányzik: %2.</translation>
    </message>
    <message>
        <source>%1 has no areas.</source>
        <translation>Ebben a fájlban nincs terület: %1.</translation>
    </message>
    <message>
        <source>Another program uses %1.</source>
        <translation>Egy másik program használja: %1.</translation>
    </message>
    <message>
        <source>A and B are too close together or too far apart.</source>
        <translation>Az A és a B túl közel vagy túl messze van egymástól.</translation>
    </message>
    <message>
        <source>Another program has locked it.</source>
        <translation>Egy másik program zárolta.</translation>
    </message>
    <message>
        <source>It is no longer there.</source>
        <translation>A fájl már nincs meg.</translation>
    </message>
    <message>
        <source>%1 is no longer there.</source>
        <translation>%1 már nincs ott.</translation>
    </message>
    <message>
        <source>%1 cannot be written. %2</source>
        <translation>Nem írható: %1. %2</translation>
    </message>
    <message>
        <source>%1 cannot be written.</source>
        <translation>Nem írható: %1.</translation>
    </message>
    <message>
        <source>The file of the settings has a fault (number %1).</source>
        <translation>A beállítások fájlja hibás (szám: %1).</translation>
    </message>
    <message>
        <source>%1 cannot be opened. %2</source>
        <translation>Nem nyitható meg: %1. %2</translation>
    </message>
    <message>
        <source>%1 cannot be created. %2</source>
        <translation>Nem hozható létre: %1. %2</translation>
    </message>
    <message>
        <source>%1 cannot be copied. %2</source>
        <translation>Nem másolható: %1. %2</translation>
    </message>
    <message>
        <source>%1 cannot be renamed. %2</source>
        <translation>Nem nevezhető át: %1. %2</translation>
    </message>
    <message>
        <source>%1 cannot be removed. %2</source>
        <translation>Nem törölhető: %1. %2</translation>
    </message>
    <message>
        <source>The drive is full.</source>
        <translation>A meghajtó megtelt.</translation>
    </message>
    <message>
        <source>The drive has a fault.</source>
        <translation>A meghajtó hibás.</translation>
    </message>
    <message>
        <source>The drive can only be read.</source>
        <translation>A meghajtó csak olvasható.</translation>
    </message>
    <message>
        <source>It is not permitted.</source>
        <translation>Nincs engedélyezve.</translation>
    </message>
    <message>
        <source>It cannot be opened.</source>
        <translation>Nem nyitható meg.</translation>
    </message>
    <message>
        <source>It is damaged.</source>
        <translation>A fájl sérült.</translation>
    </message>
    <message>
        <source>It is not there.</source>
        <translation>Az útvonal nem található.</translation>
    </message>
    <message>
        <source>It exists already.</source>
        <translation>A név már foglalt.</translation>
    </message>
    <message>
        <source>It is a folder.</source>
        <translation>Ez egy mappa.</translation>
    </message>
    <message>
        <source>It is not a folder.</source>
        <translation>Ez nem mappa.</translation>
    </message>
    <message>
        <source>The folder is not empty.</source>
        <translation>A mappa nem üres.</translation>
    </message>
    <message>
        <source>The file is too large.</source>
        <translation>A fájl túl nagy.</translation>
    </message>
    <message>
        <source>Too many files are open.</source>
        <translation>Túl sok fájl van nyitva.</translation>
    </message>
    <message>
        <source>There is too little memory.</source>
        <translation>Kevés a memória.</translation>
    </message>
    <message>
        <source>It is not possible there.</source>
        <translation>Ott ez nem lehetséges.</translation>
    </message>
    <message>
        <source>The device refuses the connection.</source>
        <translation>Az eszköz elutasítja a kapcsolatot.</translation>
    </message>
    <message>
        <source>The device has closed the connection.</source>
        <translation>Az eszköz bontotta a kapcsolatot.</translation>
    </message>
    <message>
        <source>There is no device with this address.</source>
        <translation>Ezen a címen nincs eszköz.</translation>
    </message>
    <message>
        <source>The network cannot be reached.</source>
        <translation>A hálózat nem érhető el.</translation>
    </message>
    <message>
        <source>The device does not answer.</source>
        <translation>Az eszköz nem válaszol.</translation>
    </message>
    <message>
        <source>It is a link to another place.</source>
        <translation>Ez egy másik helyre mutató hivatkozás.</translation>
    </message>
    <message>
        <source>There are too many links to it.</source>
        <translation>Túl sok hivatkozás mutat rá.</translation>
    </message>
</context>
<context>
    <name>ItemActions</name>
    <message>
        <source>Rename</source>
        <translation>Átnevezés</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Törlés</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Mégse</translation>
    </message>
</context>
<context>
    <name>ItemPage</name>
    <message>
        <source>New</source>
        <translation>Új</translation>
    </message>
</context>
<context>
    <name>Keypad</name>
    <message>
        <source>%1 to %2 %3</source>
        <translation>%1 – %2 %3</translation>
    </message>
    <message>
        <source>At least %1 %2</source>
        <translation>Legalább %1 %2</translation>
    </message>
    <message>
        <source>At most %1 %2</source>
        <translation>Legfeljebb %1 %2</translation>
    </message>
    <message>
        <source>This is not a number yet.</source>
        <translation>Ez még nem szám.</translation>
    </message>
    <message>
        <source>Too large.
%1</source>
        <translation>Túl nagy.
%1</translation>
    </message>
    <message>
        <source>Too small.
%1</source>
        <translation>Túl kicsi.
%1</translation>
    </message>
    <message>
        <source>now %1</source>
        <translation>most %1</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Mégse</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>Elfogadás</translation>
    </message>
    <message>
        <source>Decimal sign</source>
        <translation>Tizedesjel</translation>
    </message>
    <message>
        <source>Plus or minus</source>
        <translation>Plusz vagy mínusz</translation>
    </message>
    <message>
        <source>Remove the last sign</source>
        <translation>Utolsó karakter törlése</translation>
    </message>
    <message>
        <source>C</source>
        <comment>key that clears the entry</comment>
        <translation>C</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Törlés</translation>
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
        <translation>Az A pont (a vonal első vége) kijelölése itt</translation>
    </message>
    <message>
        <source>B</source>
        <comment>the other end of the guidance line</comment>
        <translation>B</translation>
    </message>
    <message>
        <source>Set B, the other end of the line, here</source>
        <translation>A B pont (a vonal másik vége) kijelölése itt</translation>
    </message>
    <message>
        <source>Set a flag here</source>
        <translation>Zászló kitűzése itt</translation>
    </message>
</context>
<context>
    <name>LineChoice</name>
    <message>
        <source>New</source>
        <translation>Új</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Mégse</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Leállítás</translation>
    </message>
</context>
<context>
    <name>LinePanel</name>
    <message>
        <source>%1 to the left</source>
        <translation>%1 balra</translation>
    </message>
    <message>
        <source>%1 to the right</source>
        <translation>%1 jobbra</translation>
    </message>
</context>
<context>
    <name>LockLayer</name>
    <message>
        <source>The screen is locked. Hold the button to unlock it.</source>
        <translation>A képernyő zárolva van. Feloldás a gomb nyomva tartásával.</translation>
    </message>
    <message>
        <source>Unlock</source>
        <translation>Feloldás</translation>
    </message>
</context>
<context>
    <name>LogsPage</name>
    <message>
        <source>Logs</source>
        <translation>Naplók</translation>
    </message>
    <message>
        <source>Events</source>
        <translation>Események</translation>
    </message>
    <message>
        <source>Receiver</source>
        <translation>Vevő</translation>
    </message>
    <message>
        <source>Go on</source>
        <translation>Folytatás</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Szünet</translation>
    </message>
    <message>
        <source>No line yet.</source>
        <translation>Még nincs sor.</translation>
    </message>
</context>
<context>
    <name>MachinePage</name>
    <message>
        <source>Implement width</source>
        <translation>Munkagép szélessége</translation>
    </message>
    <message>
        <source>Decides the guidance lines beside each other, and the area done</source>
        <translation>Meghatározza az egymás melletti nyomvonalakat és a kész területet</translation>
    </message>
    <message>
        <source>Implement behind the antenna</source>
        <translation>Munkagép az antenna mögött</translation>
    </message>
    <message>
        <source>How far the ground is covered behind the vehicle&apos;s place</source>
        <translation>Milyen messze van a fedett terület a jármű pozíciója mögött</translation>
    </message>
</context>
<context>
    <name>Main</name>
    <message>
        <source>Cab display</source>
        <translation>Kabinterminál</translation>
    </message>
</context>
<context>
    <name>MapButtons</name>
    <message>
        <source>Zoom in</source>
        <translation>Nagyítás</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Kicsinyítés</translation>
    </message>
    <message>
        <source>The heading is up. Turn north up</source>
        <translation>A haladási irány van fent. Forgatás: észak fent</translation>
    </message>
    <message>
        <source>North is up. Turn the heading up</source>
        <translation>Észak van fent. Forgatás: haladási irány fent</translation>
    </message>
    <message>
        <source>Centre the vehicle</source>
        <translation>Jármű középre</translation>
    </message>
</context>
<context>
    <name>NameEntry</name>
    <message>
        <source>Cancel</source>
        <translation>Mégse</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>Elfogadás</translation>
    </message>
</context>
<context>
    <name>PageTurner</name>
    <message>
        <source>Rows above</source>
        <translation>Sorok feljebb</translation>
    </message>
    <message>
        <source>Rows below</source>
        <translation>Sorok lejjebb</translation>
    </message>
</context>
<context>
    <name>ParameterRow</name>
    <message>
        <source>%1: back to the first value</source>
        <translation>%1: vissza a gyári értékre</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Megnyitás</translation>
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
        <translation>egy abszolút útvonal, amelynek vége &quot;/&quot;, de nem maga a &quot;/&quot;</translation>
    </message>
    <message>
        <source>an absolute path</source>
        <translation>egy abszolút útvonal</translation>
    </message>
    <message>
        <source>a UUID in small letters, such as 6ba7b810-9dad-41d1-80b4-00c04fd430c8</source>
        <translation>egy UUID kisbetűkkel, például 6ba7b810-9dad-41d1-80b4-00c04fd430c8</translation>
    </message>
    <message>
        <source>simulator, tcp://HOST:PORT, serial:///dev/NAME?baud=N or an absolute path</source>
        <translation>simulator, tcp://HOST:PORT, serial:///dev/NAME?baud=N vagy egy abszolút útvonal</translation>
    </message>
    <message>
        <source>true or false</source>
        <translation>true vagy false</translation>
    </message>
    <message>
        <source>a time in UTC, such as 2026-03-05T13:05:09Z</source>
        <translation>egy idő UTC-ben, például 2026-03-05T13:05:09Z</translation>
    </message>
    <message>
        <source>a colour: #rrggbb, #aarrggbb or a name such as navy</source>
        <translation>egy szín: #rrggbb, #aarrggbb vagy egy név, például navy</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 – %2</translation>
    </message>
    <message>
        <source>Not a whole number.</source>
        <translation>Nem egész szám.</translation>
    </message>
    <message>
        <source>Below the least value.</source>
        <translation>A legkisebb érték alatt.</translation>
    </message>
    <message>
        <source>Above the greatest value.</source>
        <translation>A legnagyobb érték felett.</translation>
    </message>
    <message>
        <source>This cannot be the name of a file. Try: %1</source>
        <translation>Ez nem lehet fájlnév. Lehetséges: %1</translation>
    </message>
    <message>
        <source>Not accepted. Expected: %1.</source>
        <translation>Nem fogadható el. Várt érték: %1.</translation>
    </message>
    <message>
        <source>a name without %1</source>
        <translation>egy név %1 nélkül</translation>
    </message>
    <message>
        <source>a whole number</source>
        <translation>egy egész szám</translation>
    </message>
    <message>
        <source>At least %1</source>
        <translation>Legalább %1</translation>
    </message>
</context>
<context>
    <name>Parameters</name>
    <message>
        <source>the operator has chosen the offset from UTC; GPS time keeps it instead of computing it</source>
        <translation>a kezelő választotta az eltérést az UTC-től; a GPS-idő ezt megtartja, nem számítja</translation>
    </message>
    <message>
        <source>metric units; otherwise US or English units</source>
        <translation>metrikus egységek; egyébként amerikai vagy angol egységek</translation>
    </message>
    <message>
        <source>US measures when units are not metric; otherwise English measures</source>
        <translation>amerikai mértékek, ha az egységek nem metrikusak; egyébként angol mértékek</translation>
    </message>
    <message>
        <source>positions in degrees, minutes and seconds; otherwise in decimal degrees</source>
        <translation>pozíciók fokban, percben és másodpercben; egyébként tizedes fokban</translation>
    </message>
    <message>
        <source>24-hour clock; otherwise 12 hours with am and pm</source>
        <translation>24 órás óra; egyébként 12 órás, am és pm jelzéssel</translation>
    </message>
    <message>
        <source>dates with the month before the day</source>
        <translation>dátum, a hónap a nap előtt</translation>
    </message>
    <message>
        <source>colours for day; otherwise for night</source>
        <translation>nappali színek; egyébként éjjeliek</translation>
    </message>
    <message>
        <source>the map turns with the vehicle; otherwise north is up</source>
        <translation>a térkép a járművel forog; egyébként észak van fent</translation>
    </message>
    <message>
        <source>unit of pressures</source>
        <translation>a nyomás egysége</translation>
    </message>
    <message>
        <source>unit of areas, and of rates per area</source>
        <translation>a terület és a területre vetített dózis egysége</translation>
    </message>
    <message>
        <source>unit of short distances: widths, offsets</source>
        <translation>a kis távolságok egysége: szélességek, eltolások</translation>
    </message>
    <message>
        <source>unit of granular volumes</source>
        <translation>a granulátumtérfogat egysége</translation>
    </message>
    <message>
        <source>unit of granular densities</source>
        <translation>a granulátumsűrűség egysége</translation>
    </message>
    <message>
        <source>unit of liquid volumes, flows and rates</source>
        <translation>a folyadék térfogatának, átfolyásának és dózisának egysége</translation>
    </message>
    <message>
        <source>language of the display&apos;s texts; a change needs a restart</source>
        <translation>a terminál szövegeinek nyelve; a módosításhoz újraindítás kell</translation>
    </message>
    <message>
        <source>decimal point or comma; a change needs a restart</source>
        <translation>tizedespont vagy tizedesvessző; a módosításhoz újraindítás kell</translation>
    </message>
    <message>
        <source>when the colours switch between day and night: only by hand, at sunrise and sunset, or with the sun 6 degrees below the horizon</source>
        <translation>mikor váltanak a színek nappal és éjjel között: csak kézzel, napkeltekor és napnyugtakor, vagy ha a Nap 6 fokkal a látóhatár alatt van</translation>
    </message>
    <message>
        <source>what set the display&apos;s clock</source>
        <translation>mi állította be a terminál óráját</translation>
    </message>
    <message>
        <source>local time less UTC, whole hours</source>
        <translation>helyi idő mínusz UTC, egész óra</translation>
    </message>
    <message>
        <source>local time less UTC, minutes beyond the hours, with the sign of the hours</source>
        <translation>helyi idő mínusz UTC, percek az órákon felül, az órák előjelével</translation>
    </message>
    <message>
        <source>brightness of the lightbar at night</source>
        <translation>a fénysor fényereje éjjel</translation>
    </message>
    <message>
        <source>brightness of the screen at night</source>
        <translation>a képernyő fényereje éjjel</translation>
    </message>
    <message>
        <source>brightness of the button lights at night</source>
        <translation>a gombfény fényereje éjjel</translation>
    </message>
    <message>
        <source>4: implements are kept in the folder of their vehicle; other numbers: in their own folder</source>
        <translation>4: a munkagépek a járművük mappájában vannak; más számok: saját mappában</translation>
    </message>
    <message>
        <source>number of the next file of the NMEA log</source>
        <translation>az NMEA-napló következő fájljának száma</translation>
    </message>
    <message>
        <source>number of the next file of the user log</source>
        <translation>a kezelői napló következő fájljának száma</translation>
    </message>
    <message>
        <source>the display&apos;s clock less UTC</source>
        <translation>a terminál órája mínusz UTC</translation>
    </message>
    <message>
        <source>folder of the internal drive; by default in the data folder</source>
        <translation>a belső meghajtó mappája; alapértelmezés szerint az adatmappában</translation>
    </message>
    <message>
        <source>mount point of the removable drive; by default in the data folder</source>
        <translation>a cserélhető meghajtó csatolási pontja; alapértelmezés szerint az adatmappában</translation>
    </message>
    <message>
        <source>the identity of the terminal, which its profiles carry</source>
        <translation>a terminál azonosítója, amely a profiljaiban áll</translation>
    </message>
    <message>
        <source>where the sentences of the receiver come from</source>
        <translation>honnan jönnek a vevő mondatai</translation>
    </message>
    <message>
        <source>the figures beside the map, in this order</source>
        <translation>a térkép melletti értékek, ebben a sorrendben</translation>
    </message>
    <message>
        <source>the newest time of a receiver, as of the last day on which one was seen</source>
        <translation>egy vevő legújabb ideje, az utolsó napról, amikor volt vevő</translation>
    </message>
    <message>
        <source>when the sun switched the colours last</source>
        <translation>mikor kapcsolta át utoljára a Nap a színeket</translation>
    </message>
    <message>
        <source>the active job</source>
        <translation>az aktív feladat</translation>
    </message>
    <message>
        <source>the active boundary</source>
        <translation>az aktív határ</translation>
    </message>
    <message>
        <source>the active straight guidance line</source>
        <translation>az aktív egyenes nyomvonal</translation>
    </message>
    <message>
        <source>the active pivot</source>
        <translation>az aktív pivot</translation>
    </message>
    <message>
        <source>the active guidance curve</source>
        <translation>az aktív görbe nyomvonal</translation>
    </message>
    <message>
        <source>the active shape file of optimal lines</source>
        <translation>az optimális vonalak aktív shape-fájlja</translation>
    </message>
    <message>
        <source>the active shape file of project lines</source>
        <translation>a projektvonalak aktív shape-fájlja</translation>
    </message>
    <message>
        <source>the active shape file of zones</source>
        <translation>a zónák aktív shape-fájlja</translation>
    </message>
    <message>
        <source>the active steering profile</source>
        <translation>az aktív kormányzási profil</translation>
    </message>
    <message>
        <source>the active implement</source>
        <translation>az aktív munkagép</translation>
    </message>
    <message>
        <source>the active vehicle</source>
        <translation>az aktív jármű</translation>
    </message>
    <message>
        <source>the active sprayer</source>
        <translation>az aktív permetező</translation>
    </message>
    <message>
        <source>the active boom leveller</source>
        <translation>az aktív keretszintező</translation>
    </message>
    <message>
        <source>the active client</source>
        <translation>az aktív ügyfél</translation>
    </message>
    <message>
        <source>the active farm</source>
        <translation>az aktív gazdaság</translation>
    </message>
    <message>
        <source>the active field</source>
        <translation>az aktív tábla</translation>
    </message>
    <message>
        <source>Measures</source>
        <translation>Mértékrendszer</translation>
    </message>
    <message>
        <source>Gallons and bushels</source>
        <translation>Gallon és bushel</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>Terület</translation>
    </message>
    <message>
        <source>Pressure</source>
        <translation>Nyomás</translation>
    </message>
    <message>
        <source>Short distances</source>
        <translation>Kis távolságok</translation>
    </message>
    <message>
        <source>Liquid</source>
        <translation>Folyadék</translation>
    </message>
    <message>
        <source>Granular volume</source>
        <translation>Granulátumtérfogat</translation>
    </message>
    <message>
        <source>Granular density</source>
        <translation>Granulátumsűrűség</translation>
    </message>
    <message>
        <source>Positions</source>
        <translation>Pozíciók</translation>
    </message>
    <message>
        <source>Rate per travel</source>
        <translation>Dózis útra vetítve</translation>
    </message>
    <message>
        <source>Basis of rates</source>
        <translation>Dózisok alapja</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Nyelv</translation>
    </message>
    <message>
        <source>Decimal sign</source>
        <translation>Tizedesjel</translation>
    </message>
    <message>
        <source>Time of day</source>
        <translation>Időformátum</translation>
    </message>
    <message>
        <source>Dates</source>
        <translation>Dátum</translation>
    </message>
    <message>
        <source>Time zone set by hand</source>
        <translation>Időzóna kézzel</translation>
    </message>
    <message>
        <source>Time zone, hours</source>
        <translation>Időzóna, óra</translation>
    </message>
    <message>
        <source>Time zone, minutes</source>
        <translation>Időzóna, perc</translation>
    </message>
    <message>
        <source>Clock less UTC</source>
        <translation>Óra mínusz UTC</translation>
    </message>
    <message>
        <source>Source of the time</source>
        <translation>Az idő forrása</translation>
    </message>
    <message>
        <source>Source of the time since</source>
        <translation>Az idő forrása, mióta</translation>
    </message>
    <message>
        <source>Newest receiver time</source>
        <translation>Legutóbbi vevőidő</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>Színek</translation>
    </message>
    <message>
        <source>Day and night</source>
        <translation>Nappal és éjjel</translation>
    </message>
    <message>
        <source>Map direction</source>
        <translation>A térkép iránya</translation>
    </message>
    <message>
        <source>Tiles</source>
        <translation>Csempék</translation>
    </message>
    <message>
        <source>Light bar at night</source>
        <translation>Fénysor éjjel</translation>
    </message>
    <message>
        <source>Screen at night</source>
        <translation>Képernyő éjjel</translation>
    </message>
    <message>
        <source>Button lights at night</source>
        <translation>Gombfény éjjel</translation>
    </message>
    <message>
        <source>Switched by the sun</source>
        <translation>Váltás napállás szerint</translation>
    </message>
    <message>
        <source>Client</source>
        <translation>Ügyfél</translation>
    </message>
    <message>
        <source>Farm</source>
        <translation>Gazdaság</translation>
    </message>
    <message>
        <source>Field</source>
        <translation>Tábla</translation>
    </message>
    <message>
        <source>Job</source>
        <translation>Feladat</translation>
    </message>
    <message>
        <source>Vehicle</source>
        <translation>Jármű</translation>
    </message>
    <message>
        <source>Implement</source>
        <translation>Munkagép</translation>
    </message>
    <message>
        <source>Sprayer</source>
        <translation>Permetező</translation>
    </message>
    <message>
        <source>Boom leveller</source>
        <translation>Keretszintező</translation>
    </message>
    <message>
        <source>Steering profile</source>
        <translation>Kormányzási profil</translation>
    </message>
    <message>
        <source>Boundary</source>
        <translation>Határ</translation>
    </message>
    <message>
        <source>A-B line</source>
        <translation>A-B vonal</translation>
    </message>
    <message>
        <source>Pivot</source>
        <translation>Pivot</translation>
    </message>
    <message>
        <source>Curve</source>
        <translation>Görbe</translation>
    </message>
    <message>
        <source>Optimal lines</source>
        <translation>Optimális vonalak</translation>
    </message>
    <message>
        <source>Project lines</source>
        <translation>Projektvonalak</translation>
    </message>
    <message>
        <source>Zones</source>
        <translation>Zónák</translation>
    </message>
    <message>
        <source>Receiver address</source>
        <translation>A vevő címe</translation>
    </message>
    <message>
        <source>Internal drive</source>
        <translation>Belső meghajtó</translation>
    </message>
    <message>
        <source>Stick</source>
        <translation>Pendrive</translation>
    </message>
    <message>
        <source>Implement folder</source>
        <translation>Munkagépmappa</translation>
    </message>
    <message>
        <source>Next NMEA log</source>
        <translation>Következő NMEA-napló</translation>
    </message>
    <message>
        <source>Next user log</source>
        <translation>Következő kezelői napló</translation>
    </message>
    <message>
        <source>Identity</source>
        <translation>Azonosító</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Szöveg</translation>
    </message>
    <message>
        <source>Colour of texts</source>
        <translation>A szövegek színe</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Címsor</translation>
    </message>
    <message>
        <source>Colour of titles</source>
        <translation>A címsorok színe</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Háttér</translation>
    </message>
    <message>
        <source>Colour of the background</source>
        <translation>A háttér színe</translation>
    </message>
    <message>
        <source>Button</source>
        <translation>Gomb</translation>
    </message>
    <message>
        <source>Colour of buttons</source>
        <translation>A gombok színe</translation>
    </message>
    <message>
        <source>Button text</source>
        <translation>Gombszöveg</translation>
    </message>
    <message>
        <source>Colour of texts on buttons</source>
        <translation>A gombszövegek színe</translation>
    </message>
    <message>
        <source>Map</source>
        <translation>Térkép</translation>
    </message>
    <message>
        <source>Colour of the map&apos;s ground</source>
        <translation>A térképalap színe</translation>
    </message>
    <message>
        <source>Grid</source>
        <translation>Rács</translation>
    </message>
    <message>
        <source>Colour of the map&apos;s grid</source>
        <translation>A térképrács színe</translation>
    </message>
    <message>
        <source>Coverage</source>
        <translation>Lefedettség</translation>
    </message>
    <message>
        <source>Colour of covered ground</source>
        <translation>A fedett talaj színe</translation>
    </message>
    <message>
        <source>Vehicle on the map</source>
        <translation>Jármű a térképen</translation>
    </message>
    <message>
        <source>Colour of the vehicle</source>
        <translation>A jármű színe</translation>
    </message>
    <message>
        <source>Guidance line</source>
        <translation>Nyomvonal</translation>
    </message>
    <message>
        <source>Colour of the guidance line</source>
        <translation>A nyomvonal színe</translation>
    </message>
    <message>
        <source>Cross hairs</source>
        <translation>Szálkereszt</translation>
    </message>
    <message>
        <source>Colour of the cross hairs</source>
        <translation>A szálkereszt színe</translation>
    </message>
    <message>
        <source>Outer boundary</source>
        <translation>Külső határ</translation>
    </message>
    <message>
        <source>Colour of the outer boundary of the field</source>
        <translation>A tábla külső határának színe</translation>
    </message>
    <message>
        <source>Inner boundary</source>
        <translation>Belső határ</translation>
    </message>
    <message>
        <source>Colour of boundaries within the field</source>
        <translation>A táblán belüli határok színe</translation>
    </message>
    <message>
        <source>Other boundaries</source>
        <translation>Más határok</translation>
    </message>
    <message>
        <source>Colour of boundaries that are not active</source>
        <translation>A nem aktív határok színe</translation>
    </message>
    <message>
        <source>Exclusion zone</source>
        <translation>Kizárt zóna</translation>
    </message>
    <message>
        <source>Colour of zones to keep out of</source>
        <translation>Az elkerülendő zónák színe</translation>
    </message>
    <message>
        <source>Background picture</source>
        <translation>Háttérkép</translation>
    </message>
    <message>
        <source>Number of the background picture</source>
        <translation>A háttérkép száma</translation>
    </message>
    <message>
        <source>what the sprayer&apos;s rates are related to</source>
        <translation>mire vonatkoznak a permetező dózisai</translation>
    </message>
    <message>
        <source>liquid rates per 100 m or 100 yd of travel, while travel is their basis</source>
        <translation>folyadékdózis 100 m vagy 100 yd útra, amíg az út az alapja</translation>
    </message>
    <message>
        <source>since when the clock has its time from there</source>
        <translation>mióta onnan kapja az óra az időt</translation>
    </message>
    <message>
        <source>Metric</source>
        <translation>Metrikus</translation>
    </message>
    <message>
        <source>US or English</source>
        <translation>US vagy angol</translation>
    </message>
    <message>
        <source>US</source>
        <translation>US</translation>
    </message>
    <message>
        <source>English</source>
        <translation>Angol</translation>
    </message>
    <message>
        <source>Deg., min., s</source>
        <translation>Fok, min, s</translation>
    </message>
    <message>
        <source>Degrees</source>
        <translation>Fok</translation>
    </message>
    <message>
        <source>24 hours</source>
        <translation>24 óra</translation>
    </message>
    <message>
        <source>am, pm</source>
        <translation>am, pm</translation>
    </message>
    <message>
        <source>Month first</source>
        <translation>Elöl a hónap</translation>
    </message>
    <message>
        <source>Day first</source>
        <translation>Elöl a nap</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Nappal</translation>
    </message>
    <message>
        <source>Night</source>
        <translation>Éjjel</translation>
    </message>
    <message>
        <source>Heading up</source>
        <translation>Haladási irány</translation>
    </message>
    <message>
        <source>North up</source>
        <translation>Észak fent</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Be</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Ki</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Igen</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nem</translation>
    </message>
    <message>
        <source>Travel</source>
        <translation>Megtett út</translation>
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
        <translation>Acre</translation>
    </message>
    <message>
        <source>m, mm</source>
        <translation>m, mm</translation>
    </message>
    <message>
        <source>Inch</source>
        <translation>Hüvelyk</translation>
    </message>
    <message>
        <source>Foot</source>
        <translation>Láb</translation>
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
        <translation>US bushel</translation>
    </message>
    <message>
        <source>UK bushel</source>
        <translation>UK bushel</translation>
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
        <translation>Pont</translation>
    </message>
    <message>
        <source>Comma</source>
        <translation>Vessző</translation>
    </message>
    <message>
        <source>By hand</source>
        <translation>Kézzel</translation>
    </message>
    <message>
        <source>Sunset</source>
        <translation>Napnyugta</translation>
    </message>
    <message>
        <source>Twilight</source>
        <translation>Szürkület</translation>
    </message>
    <message>
        <source>Not set</source>
        <translation>Nincs beállítva</translation>
    </message>
    <message>
        <source>Operator</source>
        <translation>Kezelő</translation>
    </message>
    <message>
        <source>Receiver</source>
        <translation>Vevő</translation>
    </message>
    <message>
        <source>Rate</source>
        <translation>Dózis</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Sebesség</translation>
    </message>
    <message>
        <source>Area done</source>
        <translation>Kész terület</translation>
    </message>
    <message>
        <source>Area left</source>
        <translation>Maradék terület</translation>
    </message>
    <message>
        <source>Productivity</source>
        <translation>Területteljesítmény</translation>
    </message>
    <message>
        <source>Flow</source>
        <translation>Átfolyás</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Hőmérséklet</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>Távolság</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Pozíció</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Idő</translation>
    </message>
    <message>
        <source>Units</source>
        <translation>Egységek</translation>
    </message>
    <message>
        <source>Rates</source>
        <translation>Dózisok</translation>
    </message>
    <message>
        <source>Region</source>
        <translation>Régió</translation>
    </message>
    <message>
        <source>Clock</source>
        <translation>Óra</translation>
    </message>
    <message>
        <source>Colours of the schemes</source>
        <translation>A sémák színei</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Kijelző</translation>
    </message>
    <message>
        <source>Selections</source>
        <translation>Kiválasztás</translation>
    </message>
    <message>
        <source>Storage</source>
        <translation>Tárhely</translation>
    </message>
    <message>
        <source>Logs</source>
        <translation>Naplók</translation>
    </message>
    <message>
        <source>Terminal</source>
        <translation>Terminál</translation>
    </message>
    <message>
        <source>%1, by day</source>
        <translation>%1, nappal</translation>
    </message>
    <message>
        <source>%1, by night</source>
        <translation>%1, éjjel</translation>
    </message>
</context>
<context>
    <name>Problems</name>
    <message>
        <source>The logs lose lines: their drive is full or cannot be written.</source>
        <translation>A naplók sorokat veszítenek: a meghajtójuk megtelt vagy nem írható.</translation>
    </message>
    <message>
        <source>Recording is off, because there is too little room.</source>
        <translation>A rögzítés ki van kapcsolva, mert kevés a hely.</translation>
    </message>
    <message>
        <source>Changes of settings are not stored yet. %1</source>
        <translation>A beállítások módosításai még nincsenek mentve. %1</translation>
    </message>
    <message>
        <source>The drive of the terminal is nearly full. Free: %1</source>
        <translation>A terminál meghajtója majdnem megtelt. Szabad: %1</translation>
    </message>
</context>
<context>
    <name>ProfilePage</name>
    <message>
        <source>Import</source>
        <translation>Importálás</translation>
    </message>
    <message>
        <source>The display has these settings already.</source>
        <translation>A terminálon már ezek a beállítások vannak.</translation>
    </message>
    <message>
        <source>Changed here and in the profile</source>
        <translation>Itt és a profilban is módosult</translation>
    </message>
    <message>
        <source>Which value the settings below shall have</source>
        <translation>Milyen értéke legyen az alábbi beállításoknak</translation>
    </message>
    <message>
        <source>Ours</source>
        <translation>Itteni</translation>
    </message>
    <message>
        <source>Theirs</source>
        <translation>Profil</translation>
    </message>
</context>
<context>
    <name>ProfilesPage</name>
    <message>
        <source>Profiles</source>
        <translation>Profilok</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exportálás</translation>
    </message>
    <message>
        <source>There is no profile on the stick.</source>
        <translation>Nincs profil a pendrive-on.</translation>
    </message>
    <message>
        <source>No stick is plugged in.</source>
        <translation>Nincs pendrive csatlakoztatva.</translation>
    </message>
    <message>
        <source>Name of the profile</source>
        <translation>A profil neve</translation>
    </message>
</context>
<context>
    <name>Quantities</name>
    <message>
        <source>Area</source>
        <translation>Terület</translation>
    </message>
    <message>
        <source>Productivity</source>
        <translation>Területteljesítmény</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Sebesség</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>Távolság</translation>
    </message>
    <message>
        <source>Small distance</source>
        <translation>Kis távolság</translation>
    </message>
    <message>
        <source>Travelled distance</source>
        <translation>Megtett távolság</translation>
    </message>
    <message>
        <source>Altitude</source>
        <translation>Magasság</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Hőmérséklet</translation>
    </message>
    <message>
        <source>Pressure</source>
        <translation>Nyomás</translation>
    </message>
    <message>
        <source>Rate</source>
        <translation>Dózis</translation>
    </message>
    <message>
        <source>Requested rate</source>
        <translation>Előírt dózis</translation>
    </message>
    <message>
        <source>Rate and error</source>
        <translation>Dózis és eltérés</translation>
    </message>
    <message>
        <source>Small rate</source>
        <translation>Kis dózis</translation>
    </message>
    <message>
        <source>Flow</source>
        <translation>Átfolyás</translation>
    </message>
    <message>
        <source>Small flow</source>
        <translation>Kis átfolyás</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Térfogat</translation>
    </message>
    <message>
        <source>Small volume</source>
        <translation>Kis térfogat</translation>
    </message>
    <message>
        <source>Granular volume</source>
        <translation>Granulátumtérfogat</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>Tömeg</translation>
    </message>
    <message>
        <source>Weight per area</source>
        <translation>Tömeg területre</translation>
    </message>
    <message>
        <source>Weight per area and error</source>
        <translation>Tömeg területre és eltérés</translation>
    </message>
    <message>
        <source>Discharge</source>
        <translation>Tömegáram</translation>
    </message>
    <message>
        <source>Nitrogen</source>
        <translation>Nitrogén</translation>
    </message>
    <message>
        <source>Nitrogen per area</source>
        <translation>Nitrogén területre</translation>
    </message>
    <message>
        <source>Seeds per area</source>
        <translation>Magszám területre</translation>
    </message>
    <message>
        <source>Density</source>
        <translation>Sűrűség</translation>
    </message>
    <message>
        <source>Granular density</source>
        <translation>Granulátumsűrűség</translation>
    </message>
    <message>
        <source>Volume per revolution</source>
        <translation>Térfogat/fordulat</translation>
    </message>
    <message>
        <source>Weight per revolution</source>
        <translation>Tömeg/fordulat</translation>
    </message>
    <message>
        <source>Flow meter</source>
        <translation>Átfolyásmérő</translation>
    </message>
    <message>
        <source>Wheel sensor</source>
        <translation>Kerékszenzor</translation>
    </message>
    <message>
        <source>Speed sensor</source>
        <translation>Sebességszenzor</translation>
    </message>
    <message>
        <source>Latitude</source>
        <translation>Földr. szélesség</translation>
    </message>
    <message>
        <source>Longitude</source>
        <translation>Földr. hosszúság</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Időtartam</translation>
    </message>
    <message>
        <source>Percent</source>
        <translation>Százalék</translation>
    </message>
</context>
<context>
    <name>Question</name>
    <message>
        <source>Cancel</source>
        <translation>Mégse</translation>
    </message>
</context>
<context>
    <name>RateTile</name>
    <message>
        <source>set %1</source>
        <comment>the rate that is set</comment>
        <translation>előírt %1</translation>
    </message>
</context>
<context>
    <name>Receiver</name>
    <message>
        <source>Off</source>
        <translation>Ki</translation>
    </message>
    <message>
        <source>Connecting</source>
        <translation>Kapcsolódás</translation>
    </message>
    <message>
        <source>Receiving</source>
        <translation>Vétel</translation>
    </message>
    <message>
        <source>Silent</source>
        <translation>Néma</translation>
    </message>
    <message>
        <source>Lost</source>
        <translation>Elveszett</translation>
    </message>
    <message>
        <source>Ended</source>
        <translation>Vége</translation>
    </message>
    <message>
        <source>No fix</source>
        <translation>Nincs pozíció</translation>
    </message>
    <message>
        <source>RTK float</source>
        <translation>RTK float</translation>
    </message>
    <message>
        <source>Estimated</source>
        <translation>Becsült</translation>
    </message>
    <message>
        <source>By hand</source>
        <translation>Kézi</translation>
    </message>
    <message>
        <source>Simulated</source>
        <translation>Szimulált</translation>
    </message>
    <message>
        <source>The receiver sends nothing.</source>
        <translation>A vevő nem küld semmit.</translation>
    </message>
    <message>
        <source>The receiver is lost and is being looked for. %1</source>
        <translation>A vevő elveszett, keresés folyamatban. %1</translation>
    </message>
    <message>
        <source>The receiver cannot be read. %1</source>
        <translation>A vevő nem olvasható. %1</translation>
    </message>
    <message>
        <source>The simulated field is done.</source>
        <translation>A szimulált tábla elkészült.</translation>
    </message>
    <message>
        <source>The recording of the receiver is over.</source>
        <translation>A vevő felvétele véget ért.</translation>
    </message>
</context>
<context>
    <name>ReceiverPage</name>
    <message>
        <source>Receiver</source>
        <translation>Vevő</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Leállítás</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Indítás</translation>
    </message>
    <message>
        <source>Simulator</source>
        <translation>Szimulátor</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fájl</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Hálózat</translation>
    </message>
    <message>
        <source>Serial</source>
        <translation>Soros</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Cím</translation>
    </message>
    <message>
        <source>Fix</source>
        <translation>Pozíció fajtája</translation>
    </message>
    <message>
        <source>Age</source>
        <translation>Kor</translation>
    </message>
    <message>
        <source>Satellites</source>
        <translation>Műholdak</translation>
    </message>
    <message>
        <source>HDOP</source>
        <translation>HDOP</translation>
    </message>
    <message>
        <source>Time (UTC)</source>
        <translation>Idő (UTC)</translation>
    </message>
    <message>
        <source>Lines</source>
        <translation>Sorok</translation>
    </message>
    <message>
        <source>Sentences</source>
        <translation>Mondatok</translation>
    </message>
    <message>
        <source>Bad checksums</source>
        <translation>Hibás checksum</translation>
    </message>
    <message>
        <source>Damaged lines</source>
        <translation>Sérült sorok</translation>
    </message>
    <message>
        <source>Address of the receiver</source>
        <translation>A vevő címe</translation>
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
        <translation>Idő</translation>
    </message>
    <message>
        <source>Time zone</source>
        <translation>Időzóna</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>Dátum és idő</translation>
    </message>
    <message>
        <source>Set by hand</source>
        <translation>Kézi beállítás</translation>
    </message>
</context>
<context>
    <name>SearchPage</name>
    <message>
        <source>Search</source>
        <translation>Keresés</translation>
    </message>
    <message>
        <source>Words of a setting</source>
        <translation>Keresett szavak</translation>
    </message>
    <message>
        <source>No setting has these words.</source>
        <translation>Nincs beállítás ezekkel a szavakkal.</translation>
    </message>
</context>
<context>
    <name>SettingsPage</name>
    <message>
        <source>Units</source>
        <translation>Egységek</translation>
    </message>
    <message>
        <source>Region</source>
        <translation>Régió</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>Színek</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Kijelző</translation>
    </message>
    <message>
        <source>Machine</source>
        <translation>Gép</translation>
    </message>
    <message>
        <source>Storage</source>
        <translation>Tárhely</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Névjegy</translation>
    </message>
    <message>
        <source>Tiles</source>
        <translation>Csempék</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>Profilok</translation>
    </message>
    <message>
        <source>All settings</source>
        <translation>Összes beállítás</translation>
    </message>
</context>
<context>
    <name>SettingsPanel</name>
    <message>
        <source>Back</source>
        <translation>Vissza</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Keresés</translation>
    </message>
</context>
<context>
    <name>Sizes</name>
    <message numerus="yes">
        <source>%n byte(s)</source>
        <translation>
            <numerusform>%n bájt</numerusform>
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
        <translation>Nincs feladat</translation>
    </message>
    <message>
        <source>Receiver: %1</source>
        <translation>Vevő: %1</translation>
    </message>
    <message>
        <source>The stick is plugged in</source>
        <translation>Pendrive csatlakoztatva</translation>
    </message>
    <message>
        <source>Lock the screen</source>
        <translation>Képernyő zárolása</translation>
    </message>
    <message>
        <source>Colours of the night</source>
        <translation>Éjjeli színek</translation>
    </message>
    <message>
        <source>Colours of the day</source>
        <translation>Nappali színek</translation>
    </message>
</context>
<context>
    <name>StoragePage</name>
    <message>
        <source>Open</source>
        <translation>Megnyitás</translation>
    </message>
    <message>
        <source>Internal drive</source>
        <translation>Belső meghajtó</translation>
    </message>
    <message>
        <source>Stick</source>
        <translation>Pendrive</translation>
    </message>
    <message>
        <source>No stick is plugged in.</source>
        <translation>Nincs pendrive csatlakoztatva.</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Memória</translation>
    </message>
    <message>
        <source>Logs</source>
        <translation>Naplók</translation>
    </message>
    <message>
        <source>Writes all log files to the stick</source>
        <translation>Minden naplót a pendrive-ra ír</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exportálás</translation>
    </message>
    <message>
        <source>Export the logs</source>
        <translation>Naplók exportálása</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>Profilok</translation>
    </message>
    <message>
        <source>Takes the settings to another display, or brings them back from the stick</source>
        <translation>A beállításokat átviszi egy másik terminálra, vagy visszahozza a pendrive-ról</translation>
    </message>
    <message>
        <source>Open the profiles</source>
        <translation>Profilok megnyitása</translation>
    </message>
    <message>
        <source>Support</source>
        <translation>Szerviz</translation>
    </message>
    <message>
        <source>Writes logs, settings and versions in one file; without the names of clients, farms and fields</source>
        <translation>Naplókat, beállításokat és verziókat ír egy fájlba; az ügyfelek, gazdaságok és táblák neve nélkül</translation>
    </message>
    <message>
        <source>Write</source>
        <translation>Írás</translation>
    </message>
    <message>
        <source>Write the file for support without names</source>
        <translation>Fájl írása a szerviznek, nevek nélkül</translation>
    </message>
    <message>
        <source>Support, with names</source>
        <translation>Szerviz, nevekkel</translation>
    </message>
    <message>
        <source>The same file, with all names and places</source>
        <translation>Ugyanaz a fájl, minden névvel és hellyel</translation>
    </message>
    <message>
        <source>Write the file for support with names</source>
        <translation>Fájl írása a szerviznek, nevekkel</translation>
    </message>
</context>
<context>
    <name>TFieldTreeModel</name>
    <message>
        <source>A job holds no items.</source>
        <translation>A feladatokban nincsenek további elemek.</translation>
    </message>
    <message>
        <source>There is one with this name already.</source>
        <translation>Ilyen név már van.</translation>
    </message>
    <message numerus="yes">
        <source>%n file(s), %1</source>
        <translation>
            <numerusform>%n fájl, %1</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>TParameter</name>
    <message>
        <source>The setting could not be written to the disk yet.</source>
        <translation>A beállítást még nem sikerült a meghajtóra írni.</translation>
    </message>
    <message>
        <source>There is no value to set.</source>
        <translation>Nincs beállítható érték.</translation>
    </message>
</context>
<context>
    <name>TRegionSettings</name>
    <message>
        <source>Jan</source>
        <translation>jan.</translation>
    </message>
    <message>
        <source>Feb</source>
        <translation>febr.</translation>
    </message>
    <message>
        <source>Mar</source>
        <translation>márc.</translation>
    </message>
    <message>
        <source>Apr</source>
        <translation>ápr.</translation>
    </message>
    <message>
        <source>May</source>
        <translation>máj.</translation>
    </message>
    <message>
        <source>Jun</source>
        <translation>jún.</translation>
    </message>
    <message>
        <source>Jul</source>
        <translation>júl.</translation>
    </message>
    <message>
        <source>Aug</source>
        <translation>aug.</translation>
    </message>
    <message>
        <source>Sep</source>
        <translation>szept.</translation>
    </message>
    <message>
        <source>Oct</source>
        <translation>okt.</translation>
    </message>
    <message>
        <source>Nov</source>
        <translation>nov.</translation>
    </message>
    <message>
        <source>Dec</source>
        <translation>dec.</translation>
    </message>
</context>
<context>
    <name>TRestart</name>
    <message>
        <source>The new language is shown after a restart.</source>
        <translation>Az új nyelv újraindítás után jelenik meg.</translation>
    </message>
    <message>
        <source>The new decimal sign is shown after a restart.</source>
        <translation>Az új tizedesjel újraindítás után jelenik meg.</translation>
    </message>
</context>
<context>
    <name>TSelections</name>
    <message>
        <source>The selection could not be stored.</source>
        <translation>A kiválasztást nem sikerült menteni.</translation>
    </message>
</context>
<context>
    <name>TSystemSettings</name>
    <message>
        <source>J_</source>
        <translation>F_</translation>
    </message>
    <message>
        <source>B_</source>
        <translation>H_</translation>
    </message>
    <message>
        <source>L_</source>
        <translation>V_</translation>
    </message>
    <message>
        <source>P_</source>
        <translation>P_</translation>
    </message>
    <message>
        <source>C_</source>
        <translation>G_</translation>
    </message>
    <message>
        <source>O_</source>
        <translation>O_</translation>
    </message>
    <message>
        <source>No Vehicle</source>
        <translation>Nincs jármű</translation>
    </message>
    <message>
        <source>No Profile</source>
        <translation>Nincs profil</translation>
    </message>
    <message>
        <source>No Implement</source>
        <translation>Nincs munkagép</translation>
    </message>
    <message>
        <source>Pivoted_</source>
        <translation>Vontatott_</translation>
    </message>
</context>
<context>
    <name>TTransfer</name>
    <message>
        <source>The name is empty.</source>
        <translation>A név üres.</translation>
    </message>
</context>
<context>
    <name>TUnitAbbreviations</name>
    <message>
        <source>Jan</source>
        <translation>jan.</translation>
    </message>
    <message>
        <source>Feb</source>
        <translation>febr.</translation>
    </message>
    <message>
        <source>Mar</source>
        <translation>márc.</translation>
    </message>
    <message>
        <source>Apr</source>
        <translation>ápr.</translation>
    </message>
    <message>
        <source>May</source>
        <translation>máj.</translation>
    </message>
    <message>
        <source>Jun</source>
        <translation>jún.</translation>
    </message>
    <message>
        <source>Jul</source>
        <translation>júl.</translation>
    </message>
    <message>
        <source>Aug</source>
        <translation>aug.</translation>
    </message>
    <message>
        <source>Sep</source>
        <translation>szept.</translation>
    </message>
    <message>
        <source>Oct</source>
        <translation>okt.</translation>
    </message>
    <message>
        <source>Nov</source>
        <translation>nov.</translation>
    </message>
    <message>
        <source>Dec</source>
        <translation>dec.</translation>
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
        <translation>mérföld</translation>
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
        <translation>l/ford</translation>
    </message>
    <message>
        <source>gal/rev</source>
        <translation>gal/ford</translation>
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
        <translation>kg/ford</translation>
    </message>
    <message>
        <source>lb/rev</source>
        <translation>lb/ford</translation>
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
        <translation>ezer mag/ha</translation>
    </message>
    <message>
        <source>KS/ac</source>
        <translation>ezer mag/ac</translation>
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
        <translation>ford/min</translation>
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
        <translation>Kritikus</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normál</translation>
    </message>
    <message>
        <source>Trivial</source>
        <translation>Csekély</translation>
    </message>
</context>
<context>
    <name>TWork</name>
    <message>
        <source>An implement cannot have this width.</source>
        <translation>Munkagépnek nem lehet ilyen szélessége.</translation>
    </message>
    <message>
        <source>A file of this job cannot be used. %1</source>
        <translation>A feladat egyik fájlja nem használható. %1</translation>
    </message>
    <message>
        <source>Coverage was not complete and was left out: strips %1, bytes %2</source>
        <translation>A lefedettség adatai nem voltak teljesek, és kimaradtak: sáv %1, bájt %2</translation>
    </message>
    <message>
        <source>The file of the flags is damaged; new flags are not stored.</source>
        <translation>A zászlók fájlja sérült; az új zászlók nincsenek mentve.</translation>
    </message>
    <message>
        <source>A file could not be stored. %1</source>
        <translation>Egy fájlt nem sikerült menteni. %1</translation>
    </message>
    <message>
        <source>The file of the implement cannot be used. %1</source>
        <translation>A munkagép fájlja nem használható. %1</translation>
    </message>
    <message>
        <source>There is no line.</source>
        <translation>Nincs vonal.</translation>
    </message>
    <message>
        <source>The line has no name.</source>
        <translation>A vonalnak nincs neve.</translation>
    </message>
    <message>
        <source>The guidance line cannot be used. %1</source>
        <translation>A nyomvonal nem használható. %1</translation>
    </message>
    <message>
        <source>No job is chosen</source>
        <translation>Nincs feladat kiválasztva</translation>
    </message>
    <message>
        <source>No job is chosen: what is covered is not stored.</source>
        <translation>Nincs feladat kiválasztva: a fedett terület nincs mentve.</translation>
    </message>
    <message>
        <source>The coverage of this job cannot be used: what is covered is not stored.</source>
        <translation>A feladat lefedettsége nem használható: a fedett terület nincs mentve.</translation>
    </message>
    <message>
        <source>The coverage cannot be stored, and strips are lost: %1</source>
        <translation>A lefedettség nem menthető, és sávok vesznek el: %1</translation>
    </message>
    <message>
        <source>The coverage is kept in memory until it can be stored. %1</source>
        <translation>A lefedettség a memóriában marad, amíg menthető nem lesz. %1</translation>
    </message>
    <message>
        <source>The job is still being read.</source>
        <translation>A feladat beolvasása még tart.</translation>
    </message>
</context>
<context>
    <name>TileTurner</name>
    <message>
        <source>Tiles</source>
        <translation>Csempék</translation>
    </message>
</context>
<context>
    <name>Tiles</name>
    <message>
        <source>Rate</source>
        <translation>Dózis</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Sebesség</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>Terület</translation>
    </message>
    <message>
        <source>Left</source>
        <comment>area that is left to work</comment>
        <translation>Maradék</translation>
    </message>
    <message>
        <source>Work</source>
        <comment>area per hour</comment>
        <translation>Telj.</translation>
    </message>
    <message>
        <source>Flow</source>
        <translation>Átfolyás</translation>
    </message>
    <message>
        <source>Press.</source>
        <comment>pressure</comment>
        <translation>Nyomás</translation>
    </message>
    <message>
        <source>Temp.</source>
        <comment>temperature</comment>
        <translation>Hőm.</translation>
    </message>
    <message>
        <source>Driven</source>
        <translation>Út</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Pozíció</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Idő</translation>
    </message>
</context>
<context>
    <name>TilesPage</name>
    <message>
        <source>Back to the first choice</source>
        <translation>Vissza az első választásra</translation>
    </message>
    <message>
        <source>%1 further ahead</source>
        <translation>%1: előrébb</translation>
    </message>
    <message>
        <source>Shown</source>
        <translation>Látható</translation>
    </message>
    <message>
        <source>Hidden</source>
        <translation>Rejtett</translation>
    </message>
</context>
<context>
    <name>Transfer</name>
    <message>
        <source>Nothing is imported: some settings were changed here and in the profile.</source>
        <translation>Nem történt importálás: egyes beállítások itt és a profilban is módosultak.</translation>
    </message>
    <message>
        <source>No stick is plugged in.</source>
        <translation>Nincs pendrive csatlakoztatva.</translation>
    </message>
    <message>
        <source>The stick was removed before everything was on it.</source>
        <translation>A pendrive-ot kihúzták, mielőtt minden rákerült.</translation>
    </message>
    <message>
        <source>The stick could not be written to the end.</source>
        <translation>A pendrive írása nem fejeződött be.</translation>
    </message>
    <message>
        <source>The folder %1 cannot be made.</source>
        <translation>A mappa nem hozható létre: %1.</translation>
    </message>
    <message>
        <source>The file %1 cannot be written.</source>
        <translation>A fájl nem írható: %1.</translation>
    </message>
    <message>
        <source>The logs are on the stick (files: %1).</source>
        <translation>A naplók a pendrive-on vannak (fájlok: %1).</translation>
    </message>
    <message>
        <source>The profile cannot be used. %1</source>
        <translation>A profil nem használható. %1</translation>
    </message>
    <message>
        <source>Nothing is imported. %1</source>
        <translation>Nem történt importálás. %1</translation>
    </message>
    <message>
        <source>This display</source>
        <translation>Ez a terminál</translation>
    </message>
    <message>
        <source>Another display</source>
        <translation>Más terminál</translation>
    </message>
    <message>
        <source>The profile is not on the stick. %1</source>
        <translation>A profil nincs a pendrive-on. %1</translation>
    </message>
    <message>
        <source>The profile is on the stick: %1.</source>
        <translation>A profil a pendrive-on van: %1.</translation>
    </message>
    <message>
        <source>The file for support is not on the stick. %1</source>
        <translation>A szerviznek szánt fájl nincs a pendrive-on. %1</translation>
    </message>
    <message>
        <source>The file for support is on the stick: %1.</source>
        <translation>A szerviznek szánt fájl a pendrive-on van: %1.</translation>
    </message>
    <message>
        <source>The profile is imported (settings changed: %1).</source>
        <translation>A profil importálva (módosult beállítások: %1).</translation>
    </message>
    <message>
        <source>It cannot be used.</source>
        <translation>Nem használható.</translation>
    </message>
</context>
<context>
    <name>TransferState</name>
    <message>
        <source>Reading</source>
        <translation>Olvasás</translation>
    </message>
    <message>
        <source>Writing</source>
        <translation>Írás</translation>
    </message>
    <message>
        <source>Leave the stick where it is until this is done.</source>
        <translation>A pendrive maradjon a helyén, amíg ez be nem fejeződik.</translation>
    </message>
</context>
<context>
    <name>WorkPage</name>
    <message>
        <source>Waiting for a position</source>
        <translation>Várakozás pozícióra</translation>
    </message>
    <message>
        <source>Map</source>
        <translation>Térkép</translation>
    </message>
</context>
<context>
    <name>WorkingButton</name>
    <message>
        <source>Working</source>
        <translation>Dolgozik</translation>
    </message>
    <message>
        <source>Not working</source>
        <translation>Nem dolgozik</translation>
    </message>
    <message>
        <source>Working. Switch the implement off</source>
        <translation>Dolgozik. Munkagép kikapcsolása</translation>
    </message>
    <message>
        <source>Not working. Switch the implement on</source>
        <translation>Nem dolgozik. Munkagép bekapcsolása</translation>
    </message>
</context>
</TS>
