<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="et" sourcelanguage="en">
<context>
    <name>About</name>
    <message>
        <source>Windows, files and connections</source>
        <translation>Aknad, failid ja ühendused</translation>
    </message>
    <message>
        <source>The file of the settings</source>
        <translation>Sätete fail</translation>
    </message>
    <message>
        <source>Profiles of settings</source>
        <translation>Sätete profiilid</translation>
    </message>
    <message>
        <source>Files for support</source>
        <translation>Klienditoe failid</translation>
    </message>
    <message>
        <source>Sunrise and sunset</source>
        <translation>Päikesetõus ja -loojang</translation>
    </message>
    <message>
        <source>Boundaries and zones</source>
        <translation>Piirid ja tsoonid</translation>
    </message>
    <message>
        <source>Software</source>
        <translation>Tarkvara</translation>
    </message>
    <message>
        <source>The software of this display</source>
        <translation>Selle kuvari tarkvara</translation>
    </message>
    <message>
        <source>Settings, units and logs</source>
        <translation>Sätted, ühikud ja logid</translation>
    </message>
</context>
<context>
    <name>Clock</name>
    <message>
        <source>The clock of the machine; nothing has set it.</source>
        <translation>Terminali kell; seda ei ole seatud.</translation>
    </message>
    <message>
        <source>The clock was set by hand.</source>
        <translation>Kell on seatud käsitsi.</translation>
    </message>
    <message>
        <source>The receiver sets the clock.</source>
        <translation>Vastuvõtja seab kella.</translation>
    </message>
    <message>
        <source>There is no such date or time.</source>
        <translation>Sellist kuupäeva või aega ei ole.</translation>
    </message>
    <message>
        <source>The date is more than 68 years from the clock of the machine.</source>
        <translation>Kuupäev on terminali kellast üle 68 aasta kaugusel.</translation>
    </message>
    <message>
        <source>The clock could not be stored.</source>
        <translation>Kella ei saanud salvestada.</translation>
    </message>
</context>
<context>
    <name>ClockEntry</name>
    <message>
        <source>Year</source>
        <translation>Aasta</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>Kuu</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Päev</translation>
    </message>
    <message>
        <source>Hour</source>
        <translation>Tund</translation>
    </message>
    <message>
        <source>Minute</source>
        <translation>Minut</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>Kuupäev ja aeg</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Aeg</translation>
    </message>
    <message>
        <source>%1: more</source>
        <translation>%1: rohkem</translation>
    </message>
    <message>
        <source>%1: less</source>
        <translation>%1: vähem</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Loobu</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>Määra</translation>
    </message>
</context>
<context>
    <name>ColorBar</name>
    <message>
        <source>%1: less</source>
        <translation>%1: vähem</translation>
    </message>
    <message>
        <source>%1: more</source>
        <translation>%1: rohkem</translation>
    </message>
</context>
<context>
    <name>ColorPage</name>
    <message>
        <source>Former</source>
        <translation>Endine</translation>
    </message>
    <message>
        <source>Former colour</source>
        <translation>Endine värv</translation>
    </message>
    <message>
        <source>First value</source>
        <translation>Algväärtus</translation>
    </message>
    <message>
        <source>Digits of the colour</source>
        <translation>Värvi numbrid</translation>
    </message>
    <message>
        <source>Hue</source>
        <translation>Värvitoon</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Küllastus</translation>
    </message>
    <message>
        <source>Lightness</source>
        <translation>Heledus</translation>
    </message>
</context>
<context>
    <name>ColorsPage</name>
    <message>
        <source>Day</source>
        <translation>Päev</translation>
    </message>
    <message>
        <source>Night</source>
        <translation>Öö</translation>
    </message>
</context>
<context>
    <name>Contrasts</name>
    <message>
        <source>on %1: %2</source>
        <translation>„%1“ peal: %2</translation>
    </message>
    <message>
        <source>under %1: %2</source>
        <translation>„%1“ all: %2</translation>
    </message>
    <message>
        <source>%1, too low: at least %2</source>
        <translation>%1, liiga madal: vähemalt %2</translation>
    </message>
</context>
<context>
    <name>Difference</name>
    <message>
        <source>Changed on both sides</source>
        <translation>Muudetud mõlemal pool</translation>
    </message>
    <message>
        <source>Here</source>
        <translation>Siin</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>Profiil</translation>
    </message>
</context>
<context>
    <name>Display</name>
    <message>
        <source>Restart</source>
        <translation>Taaskäivita</translation>
    </message>
    <message>
        <source>The fonts of the display</source>
        <translation>Kuvari kirjatüübid</translation>
    </message>
    <message>
        <source>The keyboard on the screen</source>
        <translation>Ekraaniklaviatuur</translation>
    </message>
</context>
<context>
    <name>DoorBand</name>
    <message>
        <source>Work</source>
        <translation>Töö</translation>
    </message>
    <message>
        <source>Fields</source>
        <translation>Põllud</translation>
    </message>
    <message>
        <source>Receiver</source>
        <translation>Vastuvõtja</translation>
    </message>
    <message>
        <source>Logs</source>
        <translation>Logid</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Sätted</translation>
    </message>
</context>
<context>
    <name>Drives</name>
    <message>
        <source>%1 free of %2</source>
        <translation>vaba %1 / %2</translation>
    </message>
    <message>
        <source>Not known</source>
        <translation>Teadmata</translation>
    </message>
    <message>
        <source>No stick</source>
        <translation>Mälupulka pole</translation>
    </message>
</context>
<context>
    <name>FieldsPage</name>
    <message>
        <source>Clients</source>
        <translation>Kliendid</translation>
    </message>
    <message>
        <source>New client</source>
        <translation>Uus klient</translation>
    </message>
    <message>
        <source>No client yet.</source>
        <translation>Kliente pole.</translation>
    </message>
    <message>
        <source>Farms</source>
        <translation>Talud</translation>
    </message>
    <message>
        <source>New farm</source>
        <translation>Uus talu</translation>
    </message>
    <message>
        <source>No farm yet.</source>
        <translation>Talusid pole.</translation>
    </message>
    <message>
        <source>Fields</source>
        <translation>Põllud</translation>
    </message>
    <message>
        <source>New field</source>
        <translation>Uus põld</translation>
    </message>
    <message>
        <source>No field yet.</source>
        <translation>Põlde pole.</translation>
    </message>
    <message>
        <source>Jobs</source>
        <translation>Ülesanded</translation>
    </message>
    <message>
        <source>New job</source>
        <translation>Uus ülesanne</translation>
    </message>
    <message>
        <source>No job yet.</source>
        <translation>Ülesandeid pole.</translation>
    </message>
    <message>
        <source>Remove %1 with everything in it?</source>
        <translation>Kas eemaldada %1 koos kogu sisuga?</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Rename or remove %1</source>
        <translation>Nimeta ümber või eemalda: %1</translation>
    </message>
    <message>
        <source>Rename %1</source>
        <translation>Nimeta ümber: %1</translation>
    </message>
    <message>
        <source>Remove everything</source>
        <translation>Eemalda kõik</translation>
    </message>
</context>
<context>
    <name>Host</name>
    <message>
        <source>Details for the support: %1</source>
        <translation>Andmed klienditoele: %1</translation>
    </message>
    <message>
        <source>%3 Try: %4</source>
        <translation>%3 Proovi: %4</translation>
    </message>
    <message>
        <source>This name is not possible.</source>
        <translation>See nimi ei ole võimalik.</translation>
    </message>
    <message>
        <source>The name is empty.</source>
        <translation>Nimi on tühi.</translation>
    </message>
    <message>
        <source>This name stands for another folder.</source>
        <translation>See nimi tähistab teist kausta.</translation>
    </message>
    <message>
        <source>The name must not contain %1.</source>
        <translation>Nimes ei tohi olla %1.</translation>
    </message>
    <message>
        <source>The name contains a sign that cannot be seen.</source>
        <translation>Nimes on nähtamatu märk.</translation>
    </message>
    <message>
        <source>The name contains a sign that is not complete.</source>
        <translation>Nimes on poolik märk.</translation>
    </message>
    <message>
        <source>The name must not end in a full stop or a blank.</source>
        <translation>Nime lõpus ei tohi olla punkti ega tühikut.</translation>
    </message>
    <message>
        <source>The name must not begin with a blank.</source>
        <translation>Nime alguses ei tohi olla tühikut.</translation>
    </message>
    <message>
        <source>A stick cannot hold a file with this name.</source>
        <translation>Mälupulgal ei saa olla sellise nimega faili.</translation>
    </message>
    <message>
        <source>The name is too long.</source>
        <translation>Nimi on liiga pikk.</translation>
    </message>
    <message>
        <source>%2 exists already.</source>
        <translation>%2 on juba olemas.</translation>
    </message>
    <message numerus="yes">
        <source>%2 is active and holds %n file(s).</source>
        <translation>
            <numerusform>%2 on aktiivne ja sisaldab %n faili.</numerusform>
            <numerusform>%2 on aktiivne ja sisaldab %n faili.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%2 holds %n file(s).</source>
        <translation>
            <numerusform>%2 sisaldab %n faili.</numerusform>
            <numerusform>%2 sisaldab %n faili.</numerusform>
        </translation>
    </message>
    <message>
        <source>%2 is active.</source>
        <translation>%2 on aktiivne.</translation>
    </message>
    <message>
        <source>%2 is no longer there.</source>
        <translation>%2 ei ole enam olemas.</translation>
    </message>
    <message>
        <source>A stick cannot tell %2 from %3.</source>
        <translation>Mälupulk ei erista neid: %2, %3.</translation>
    </message>
    <message>
        <source>Another program is working on the fields. Try again later.</source>
        <translation>Teine programm töötab põldudega. Proovi hiljem uuesti.</translation>
    </message>
    <message>
        <source>The selection could not be stored.</source>
        <translation>Valikut ei saanud salvestada.</translation>
    </message>
    <message>
        <source>%1 is neither a file nor a folder.</source>
        <translation>%1 ei ole fail ega kaust.</translation>
    </message>
    <message>
        <source>The file was edited or is damaged.</source>
        <translation>Faili on muudetud või see on rikutud.</translation>
    </message>
    <message>
        <source>%1 cannot be read. %2</source>
        <translation>%1 ei ole loetav. %2</translation>
    </message>
    <message>
        <source>The file is of another kind.</source>
        <translation>Fail on teist liiki.</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>Fail on tühi.</translation>
    </message>
    <message>
        <source>The end of the file is missing.</source>
        <translation>Faili lõpp puudub.</translation>
    </message>
    <message>
        <source>The file is damaged.</source>
        <translation>Fail on rikutud.</translation>
    </message>
    <message>
        <source>The file is not complete.</source>
        <translation>Fail ei ole täielik.</translation>
    </message>
    <message>
        <source>The file is from another version of the software.</source>
        <translation>Fail on tarkvara teisest versioonist.</translation>
    </message>
    <message>
        <source>The file has a value that is not possible: %2</source>
        <translation>Failis on võimatu väärtus: %2</translation>
    </message>
    <message>
        <source>The file has a value twice: %2</source>
        <translation>Failis on säte kaks korda: %2</translation>
    </message>
    <message>
        <source>This address is not possible: %1</source>
        <translation>See aadress ei ole võimalik: %1</translation>
    </message>
    <message>
        <source>The device is not there.</source>
        <translation>Seadet ei leitud.</translation>
    </message>
    <message>
        <source>It is not permitted, or another program uses it.</source>
        <translation>See ei ole lubatud või kasutab seda teine programm.</translation>
    </message>
    <message>
        <source>Another program uses it.</source>
        <translation>Seda kasutab teine programm.</translation>
    </message>
    <message>
        <source>It cannot be read.</source>
        <translation>Seda ei saa lugeda.</translation>
    </message>
    <message>
        <source>It was unplugged.</source>
        <translation>See on lahti ühendatud.</translation>
    </message>
    <message>
        <source>It is not a serial device, or it cannot have this speed.</source>
        <translation>See ei ole jadaseade või ei ole see kiirus võimalik.</translation>
    </message>
    <message>
        <source>The serial port has a fault (number %1).</source>
        <translation>Jadapordil on rike (number %1).</translation>
    </message>
    <message>
        <source>%1 is damaged or of another kind.</source>
        <translation>%1 on rikutud või teist liiki.</translation>
    </message>
    <message>
        <source>%1 is from another version of the software.</source>
        <translation>%1 on tarkvara teisest versioonist.</translation>
    </message>
    <message>
        <source>%1 is damaged.</source>
        <translation>%1 on rikutud.</translation>
    </message>
    <message>
        <source>%1 has other coordinates than WGS84.</source>
        <translation>%1 ei kasuta WGS84 koordinaate.</translation>
    </message>
    <message>
        <source>%1 is not complete. %2 is missing.</source>
        <translation>%1 ei ole täielik. Puudub %2.</translation>
    </message>
    <message>
        <source>%1 has no areas.</source>
        <translation>%1 ei sisalda alasid.</translation>
    </message>
    <message>
        <source>Another program uses %1.</source>
        <translation>%1 on teise programmi kasutuses.</translation>
    </message>
    <message>
        <source>A and B are too close together or too far apart.</source>
        <translation>A ja B on teineteisele liiga lähedal või teineteisest liiga kaugel.</translation>
    </message>
    <message>
        <source>Another program has locked it.</source>
        <translation>Teine programm on selle lukustanud.</translation>
    </message>
    <message>
        <source>It is no longer there.</source>
        <translation>Seda ei ole enam olemas.</translation>
    </message>
    <message>
        <source>%1 is no longer there.</source>
        <translation>%1 ei ole enam olemas.</translation>
    </message>
    <message>
        <source>%1 cannot be written. %2</source>
        <translation>%1 ei ole kirjutatav. %2</translation>
    </message>
    <message>
        <source>%1 cannot be written.</source>
        <translation>%1 ei ole kirjutatav.</translation>
    </message>
    <message>
        <source>The file of the settings has a fault (number %1).</source>
        <translation>Sätete failis on viga (number %1).</translation>
    </message>
    <message>
        <source>%1 cannot be opened. %2</source>
        <translation>%1 ei avane. %2</translation>
    </message>
    <message>
        <source>%1 cannot be created. %2</source>
        <translation>%1: loomine ei õnnestu. %2</translation>
    </message>
    <message>
        <source>%1 cannot be copied. %2</source>
        <translation>%1: kopeerimine ei õnnestu. %2</translation>
    </message>
    <message>
        <source>%1 cannot be renamed. %2</source>
        <translation>%1: nime ei saa muuta. %2</translation>
    </message>
    <message>
        <source>%1 cannot be removed. %2</source>
        <translation>%1: eemaldamine ei õnnestu. %2</translation>
    </message>
    <message>
        <source>The drive is full.</source>
        <translation>Ketas on täis.</translation>
    </message>
    <message>
        <source>The drive has a fault.</source>
        <translation>Kettal on rike.</translation>
    </message>
    <message>
        <source>The drive can only be read.</source>
        <translation>Ketast saab ainult lugeda.</translation>
    </message>
    <message>
        <source>It is not permitted.</source>
        <translation>See ei ole lubatud.</translation>
    </message>
    <message>
        <source>It cannot be opened.</source>
        <translation>Seda ei saa avada.</translation>
    </message>
    <message>
        <source>It is damaged.</source>
        <translation>See on rikutud.</translation>
    </message>
    <message>
        <source>It is not there.</source>
        <translation>Seda ei ole.</translation>
    </message>
    <message>
        <source>It exists already.</source>
        <translation>See on juba olemas.</translation>
    </message>
    <message>
        <source>It is a folder.</source>
        <translation>See on kaust.</translation>
    </message>
    <message>
        <source>It is not a folder.</source>
        <translation>See ei ole kaust.</translation>
    </message>
    <message>
        <source>The folder is not empty.</source>
        <translation>Kaust ei ole tühi.</translation>
    </message>
    <message>
        <source>The file is too large.</source>
        <translation>Fail on liiga suur.</translation>
    </message>
    <message>
        <source>Too many files are open.</source>
        <translation>Liiga palju faile on avatud.</translation>
    </message>
    <message>
        <source>There is too little memory.</source>
        <translation>Muutmälu on liiga vähe.</translation>
    </message>
    <message>
        <source>It is not possible there.</source>
        <translation>See ei ole seal võimalik.</translation>
    </message>
    <message>
        <source>The device refuses the connection.</source>
        <translation>Seade keeldub ühendusest.</translation>
    </message>
    <message>
        <source>The device has closed the connection.</source>
        <translation>Seade on ühenduse katkestanud.</translation>
    </message>
    <message>
        <source>There is no device with this address.</source>
        <translation>Sellel aadressil ei ole seadet.</translation>
    </message>
    <message>
        <source>The network cannot be reached.</source>
        <translation>Võrguga ei saa ühendust.</translation>
    </message>
    <message>
        <source>The device does not answer.</source>
        <translation>Seade ei vasta.</translation>
    </message>
    <message>
        <source>It is a link to another place.</source>
        <translation>See on link teise kohta.</translation>
    </message>
    <message>
        <source>There are too many links to it.</source>
        <translation>Sellele viitab liiga palju linke.</translation>
    </message>
</context>
<context>
    <name>ItemActions</name>
    <message>
        <source>Rename</source>
        <translation>Nimeta ümber</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Eemalda</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Loobu</translation>
    </message>
</context>
<context>
    <name>ItemPage</name>
    <message>
        <source>New</source>
        <translation>Uus</translation>
    </message>
</context>
<context>
    <name>Keypad</name>
    <message>
        <source>%1 to %2 %3</source>
        <translation>%1 kuni %2 %3</translation>
    </message>
    <message>
        <source>At least %1 %2</source>
        <translation>Vähemalt %1 %2</translation>
    </message>
    <message>
        <source>At most %1 %2</source>
        <translation>Kuni %1 %2</translation>
    </message>
    <message>
        <source>This is not a number yet.</source>
        <translation>See ei ole veel arv.</translation>
    </message>
    <message>
        <source>Too large.
%1</source>
        <translation>Liiga suur.
%1</translation>
    </message>
    <message>
        <source>Too small.
%1</source>
        <translation>Liiga väike.
%1</translation>
    </message>
    <message>
        <source>now %1</source>
        <translation>praegu %1</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Loobu</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>Määra</translation>
    </message>
    <message>
        <source>Decimal sign</source>
        <translation>Kümnenderaldaja</translation>
    </message>
    <message>
        <source>Plus or minus</source>
        <translation>Pluss või miinus</translation>
    </message>
    <message>
        <source>Remove the last sign</source>
        <translation>Kustuta viimane märk</translation>
    </message>
    <message>
        <source>C</source>
        <comment>key that clears the entry</comment>
        <translation>C</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Tühjenda</translation>
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
        <translation>Määra siia A, joone üks ots</translation>
    </message>
    <message>
        <source>B</source>
        <comment>the other end of the guidance line</comment>
        <translation>B</translation>
    </message>
    <message>
        <source>Set B, the other end of the line, here</source>
        <translation>Määra siia B, joone teine ots</translation>
    </message>
    <message>
        <source>Set a flag here</source>
        <translation>Pane siia lipp</translation>
    </message>
</context>
<context>
    <name>LineChoice</name>
    <message>
        <source>New</source>
        <translation>Uus</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Loobu</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Peata</translation>
    </message>
</context>
<context>
    <name>LinePanel</name>
    <message>
        <source>%1 to the left</source>
        <translation>%1 vasakule</translation>
    </message>
    <message>
        <source>%1 to the right</source>
        <translation>%1 paremale</translation>
    </message>
</context>
<context>
    <name>LockLayer</name>
    <message>
        <source>The screen is locked. Hold the button to unlock it.</source>
        <translation>Ekraan on lukus. Avamiseks hoia nuppu all.</translation>
    </message>
    <message>
        <source>Unlock</source>
        <translation>Ava lukk</translation>
    </message>
</context>
<context>
    <name>LogsPage</name>
    <message>
        <source>Logs</source>
        <translation>Logid</translation>
    </message>
    <message>
        <source>Events</source>
        <translation>Sündmused</translation>
    </message>
    <message>
        <source>Receiver</source>
        <translation>Vastuvõtja</translation>
    </message>
    <message>
        <source>Go on</source>
        <translation>Jätka</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Paus</translation>
    </message>
    <message>
        <source>No line yet.</source>
        <translation>Ridu veel pole.</translation>
    </message>
</context>
<context>
    <name>MachinePage</name>
    <message>
        <source>Implement width</source>
        <translation>Haakeriista laius</translation>
    </message>
    <message>
        <source>Decides the guidance lines beside each other, and the area done</source>
        <translation>Määrab juhtjoonte vahe ja töödeldud pindala</translation>
    </message>
    <message>
        <source>Implement behind the antenna</source>
        <translation>Haakeriist antenni taga</translation>
    </message>
    <message>
        <source>How far the ground is covered behind the vehicle&apos;s place</source>
        <translation>Kui kaugel sõiduki asukoha taga maad töödeldakse</translation>
    </message>
</context>
<context>
    <name>Main</name>
    <message>
        <source>Cab display</source>
        <translation>Kabiinikuvar</translation>
    </message>
</context>
<context>
    <name>MapButtons</name>
    <message>
        <source>Zoom in</source>
        <translation>Suurenda</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Vähenda</translation>
    </message>
    <message>
        <source>The heading is up. Turn north up</source>
        <translation>Sõidusuund üleval. Pööra põhi üles</translation>
    </message>
    <message>
        <source>North is up. Turn the heading up</source>
        <translation>Põhi üleval. Pööra sõidusuund üles</translation>
    </message>
    <message>
        <source>Centre the vehicle</source>
        <translation>Sõiduk keskele</translation>
    </message>
</context>
<context>
    <name>NameEntry</name>
    <message>
        <source>Cancel</source>
        <translation>Loobu</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>Määra</translation>
    </message>
</context>
<context>
    <name>PageTurner</name>
    <message>
        <source>Rows above</source>
        <translation>Read üles</translation>
    </message>
    <message>
        <source>Rows below</source>
        <translation>Read alla</translation>
    </message>
</context>
<context>
    <name>ParameterRow</name>
    <message>
        <source>%1: back to the first value</source>
        <translation>%1: tagasi algväärtusele</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Ava</translation>
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
        <translation>absoluutne tee, mille lõpus on &quot;/&quot; ja mis ei ole &quot;/&quot;</translation>
    </message>
    <message>
        <source>an absolute path</source>
        <translation>absoluutne tee</translation>
    </message>
    <message>
        <source>a UUID in small letters, such as 6ba7b810-9dad-41d1-80b4-00c04fd430c8</source>
        <translation>väiketähtedega UUID, nt 6ba7b810-9dad-41d1-80b4-00c04fd430c8</translation>
    </message>
    <message>
        <source>simulator, tcp://HOST:PORT, serial:///dev/NAME?baud=N or an absolute path</source>
        <translation>simulator, tcp://HOST:PORT, serial:///dev/NAME?baud=N või absoluutne tee</translation>
    </message>
    <message>
        <source>true or false</source>
        <translation>true või false</translation>
    </message>
    <message>
        <source>a time in UTC, such as 2026-03-05T13:05:09Z</source>
        <translation>aeg UTC järgi, nt 2026-03-05T13:05:09Z</translation>
    </message>
    <message>
        <source>a colour: #rrggbb, #aarrggbb or a name such as navy</source>
        <translation>värv: #rrggbb, #aarrggbb või nimi, nt navy</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 kuni %2</translation>
    </message>
    <message>
        <source>Not a whole number.</source>
        <translation>Ei ole täisarv.</translation>
    </message>
    <message>
        <source>Below the least value.</source>
        <translation>Väiksem kui vähim väärtus.</translation>
    </message>
    <message>
        <source>Above the greatest value.</source>
        <translation>Suurem kui suurim väärtus.</translation>
    </message>
    <message>
        <source>This cannot be the name of a file. Try: %1</source>
        <translation>Nii ei saa faili nimetada. Proovi: %1</translation>
    </message>
    <message>
        <source>Not accepted. Expected: %1.</source>
        <translation>Ei sobi. Oodatakse: %1.</translation>
    </message>
    <message>
        <source>a name without %1</source>
        <translation>nimi, milles ei ole %1</translation>
    </message>
    <message>
        <source>a whole number</source>
        <translation>täisarv</translation>
    </message>
    <message>
        <source>At least %1</source>
        <translation>Vähemalt %1</translation>
    </message>
</context>
<context>
    <name>Parameters</name>
    <message>
        <source>the operator has chosen the offset from UTC; GPS time keeps it instead of computing it</source>
        <translation>operaator on vahe UTC-ga ise valinud; GPS-aeg seda siis ei arvuta</translation>
    </message>
    <message>
        <source>metric units; otherwise US or English units</source>
        <translation>meetrilised ühikud; muidu USA või inglise ühikud</translation>
    </message>
    <message>
        <source>US measures when units are not metric; otherwise English measures</source>
        <translation>USA mõõdud, kui ühikud ei ole meetrilised; muidu inglise mõõdud</translation>
    </message>
    <message>
        <source>positions in degrees, minutes and seconds; otherwise in decimal degrees</source>
        <translation>asukohad kraadides, minutites ja sekundites; muidu kümnendkraadides</translation>
    </message>
    <message>
        <source>24-hour clock; otherwise 12 hours with am and pm</source>
        <translation>24 tunni kell; muidu 12 tundi ning am ja pm</translation>
    </message>
    <message>
        <source>dates with the month before the day</source>
        <translation>kuupäevad, kus kuu on enne päeva</translation>
    </message>
    <message>
        <source>colours for day; otherwise for night</source>
        <translation>päeva värvid; muidu öö värvid</translation>
    </message>
    <message>
        <source>the map turns with the vehicle; otherwise north is up</source>
        <translation>kaart pöördub koos sõidukiga; muidu on põhi üleval</translation>
    </message>
    <message>
        <source>unit of pressures</source>
        <translation>rõhu ühik</translation>
    </message>
    <message>
        <source>unit of areas, and of rates per area</source>
        <translation>pindala ja pindalapõhise kulunormi ühik</translation>
    </message>
    <message>
        <source>unit of short distances: widths, offsets</source>
        <translation>lühikeste vahemaade ühik: laiused, nihked</translation>
    </message>
    <message>
        <source>unit of granular volumes</source>
        <translation>graanulite mahu ühik</translation>
    </message>
    <message>
        <source>unit of granular densities</source>
        <translation>graanulite tiheduse ühik</translation>
    </message>
    <message>
        <source>unit of liquid volumes, flows and rates</source>
        <translation>vedeliku mahu, vooluhulga ja kulunormi ühik</translation>
    </message>
    <message>
        <source>language of the display&apos;s texts; a change needs a restart</source>
        <translation>kuvari keel; muudatus nõuab taaskäivitust</translation>
    </message>
    <message>
        <source>decimal point or comma; a change needs a restart</source>
        <translation>kümnendpunkt või -koma; muudatus nõuab taaskäivitust</translation>
    </message>
    <message>
        <source>when the colours switch between day and night: only by hand, at sunrise and sunset, or with the sun 6 degrees below the horizon</source>
        <translation>millal värvid päeva ja öö vahel vahetuvad: ainult käsitsi, päikese tõusul ja loojangul või kui päike on 6 kraadi allpool horisonti</translation>
    </message>
    <message>
        <source>what set the display&apos;s clock</source>
        <translation>mille järgi kuvari kell on seatud</translation>
    </message>
    <message>
        <source>local time less UTC, whole hours</source>
        <translation>kohaliku aja vahe UTC-ga, täistunnid</translation>
    </message>
    <message>
        <source>local time less UTC, minutes beyond the hours, with the sign of the hours</source>
        <translation>kohaliku aja vahe UTC-ga, minutid lisaks tundidele, tundide märgiga</translation>
    </message>
    <message>
        <source>brightness of the lightbar at night</source>
        <translation>valgusriba heledus öösel</translation>
    </message>
    <message>
        <source>brightness of the screen at night</source>
        <translation>ekraani heledus öösel</translation>
    </message>
    <message>
        <source>brightness of the button lights at night</source>
        <translation>nuppude valguse heledus öösel</translation>
    </message>
    <message>
        <source>4: implements are kept in the folder of their vehicle; other numbers: in their own folder</source>
        <translation>4: haakeriistad on oma sõiduki kaustas; muud arvud: oma kaustas</translation>
    </message>
    <message>
        <source>number of the next file of the NMEA log</source>
        <translation>NMEA-logi järgmise faili number</translation>
    </message>
    <message>
        <source>number of the next file of the user log</source>
        <translation>kasutajalogi järgmise faili number</translation>
    </message>
    <message>
        <source>the display&apos;s clock less UTC</source>
        <translation>kuvari kella vahe UTC-ga</translation>
    </message>
    <message>
        <source>folder of the internal drive; by default in the data folder</source>
        <translation>sisemise ketta kaust; vaikimisi andmekaustas</translation>
    </message>
    <message>
        <source>mount point of the removable drive; by default in the data folder</source>
        <translation>eemaldatava ketta ühenduspunkt; vaikimisi andmekaustas</translation>
    </message>
    <message>
        <source>the identity of the terminal, which its profiles carry</source>
        <translation>terminali tunnus, mis on selle profiilides</translation>
    </message>
    <message>
        <source>where the sentences of the receiver come from</source>
        <translation>kust vastuvõtja teated tulevad</translation>
    </message>
    <message>
        <source>the figures beside the map, in this order</source>
        <translation>väärtused kaardi kõrval, selles järjekorras</translation>
    </message>
    <message>
        <source>the newest time of a receiver, as of the last day on which one was seen</source>
        <translation>vastuvõtja uusim aeg viimasest päevast, mil vastuvõtja oli ühendatud</translation>
    </message>
    <message>
        <source>when the sun switched the colours last</source>
        <translation>millal päike viimati värve vahetas</translation>
    </message>
    <message>
        <source>the active job</source>
        <translation>aktiivne ülesanne</translation>
    </message>
    <message>
        <source>the active boundary</source>
        <translation>aktiivne põllu piir</translation>
    </message>
    <message>
        <source>the active straight guidance line</source>
        <translation>aktiivne sirge juhtjoon</translation>
    </message>
    <message>
        <source>the active pivot</source>
        <translation>aktiivne ringjoon</translation>
    </message>
    <message>
        <source>the active guidance curve</source>
        <translation>aktiivne juhtkõver</translation>
    </message>
    <message>
        <source>the active shape file of optimal lines</source>
        <translation>aktiivne optimaalsete joonte shape-fail</translation>
    </message>
    <message>
        <source>the active shape file of project lines</source>
        <translation>aktiivne projekti joonte shape-fail</translation>
    </message>
    <message>
        <source>the active shape file of zones</source>
        <translation>aktiivne tsoonide shape-fail</translation>
    </message>
    <message>
        <source>the active steering profile</source>
        <translation>aktiivne roolimisprofiil</translation>
    </message>
    <message>
        <source>the active implement</source>
        <translation>aktiivne haakeriist</translation>
    </message>
    <message>
        <source>the active vehicle</source>
        <translation>aktiivne sõiduk</translation>
    </message>
    <message>
        <source>the active sprayer</source>
        <translation>aktiivne prits</translation>
    </message>
    <message>
        <source>the active boom leveller</source>
        <translation>aktiivne poomi tasandus</translation>
    </message>
    <message>
        <source>the active client</source>
        <translation>aktiivne klient</translation>
    </message>
    <message>
        <source>the active farm</source>
        <translation>aktiivne talu</translation>
    </message>
    <message>
        <source>the active field</source>
        <translation>aktiivne põld</translation>
    </message>
    <message>
        <source>Measures</source>
        <translation>Mõõdustik</translation>
    </message>
    <message>
        <source>Gallons and bushels</source>
        <translation>Gallonid ja buššelid</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>Pindala</translation>
    </message>
    <message>
        <source>Pressure</source>
        <translation>Rõhk</translation>
    </message>
    <message>
        <source>Short distances</source>
        <translation>Lühikesed vahemaad</translation>
    </message>
    <message>
        <source>Liquid</source>
        <translation>Vedelik</translation>
    </message>
    <message>
        <source>Granular volume</source>
        <translation>Graanulite maht</translation>
    </message>
    <message>
        <source>Granular density</source>
        <translation>Graanulite tihedus</translation>
    </message>
    <message>
        <source>Positions</source>
        <translation>Asukohad</translation>
    </message>
    <message>
        <source>Rate per travel</source>
        <translation>Norm teepikkuse kohta</translation>
    </message>
    <message>
        <source>Basis of rates</source>
        <translation>Normide alus</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Keel</translation>
    </message>
    <message>
        <source>Decimal sign</source>
        <translation>Kümnenderaldaja</translation>
    </message>
    <message>
        <source>Time of day</source>
        <translation>Kellaaeg</translation>
    </message>
    <message>
        <source>Dates</source>
        <translation>Kuupäevad</translation>
    </message>
    <message>
        <source>Time zone set by hand</source>
        <translation>Ajavöönd käsitsi</translation>
    </message>
    <message>
        <source>Time zone, hours</source>
        <translation>Ajavöönd, tunnid</translation>
    </message>
    <message>
        <source>Time zone, minutes</source>
        <translation>Ajavöönd, minutid</translation>
    </message>
    <message>
        <source>Clock less UTC</source>
        <translation>Kella vahe UTC-ga</translation>
    </message>
    <message>
        <source>Source of the time</source>
        <translation>Aja allikas</translation>
    </message>
    <message>
        <source>Source of the time since</source>
        <translation>Aja allikas alates</translation>
    </message>
    <message>
        <source>Newest receiver time</source>
        <translation>Vastuvõtja uusim aeg</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>Värvid</translation>
    </message>
    <message>
        <source>Day and night</source>
        <translation>Päev ja öö</translation>
    </message>
    <message>
        <source>Map direction</source>
        <translation>Kaardi suund</translation>
    </message>
    <message>
        <source>Tiles</source>
        <translation>Paanid</translation>
    </message>
    <message>
        <source>Light bar at night</source>
        <translation>Valgusriba öösel</translation>
    </message>
    <message>
        <source>Screen at night</source>
        <translation>Ekraan öösel</translation>
    </message>
    <message>
        <source>Button lights at night</source>
        <translation>Nuppude valgus öösel</translation>
    </message>
    <message>
        <source>Switched by the sun</source>
        <translation>Päike vahetas viimati</translation>
    </message>
    <message>
        <source>Client</source>
        <translation>Klient</translation>
    </message>
    <message>
        <source>Farm</source>
        <translation>Talu</translation>
    </message>
    <message>
        <source>Field</source>
        <translation>Põld</translation>
    </message>
    <message>
        <source>Job</source>
        <translation>Ülesanne</translation>
    </message>
    <message>
        <source>Vehicle</source>
        <translation>Sõiduk</translation>
    </message>
    <message>
        <source>Implement</source>
        <translation>Haakeriist</translation>
    </message>
    <message>
        <source>Sprayer</source>
        <translation>Prits</translation>
    </message>
    <message>
        <source>Boom leveller</source>
        <translation>Poomi tasandus</translation>
    </message>
    <message>
        <source>Steering profile</source>
        <translation>Roolimisprofiil</translation>
    </message>
    <message>
        <source>Boundary</source>
        <translation>Põllu piir</translation>
    </message>
    <message>
        <source>A-B line</source>
        <translation>A-B-joon</translation>
    </message>
    <message>
        <source>Pivot</source>
        <translation>Ringjoon</translation>
    </message>
    <message>
        <source>Curve</source>
        <translation>Kõver</translation>
    </message>
    <message>
        <source>Optimal lines</source>
        <translation>Optimaalsed jooned</translation>
    </message>
    <message>
        <source>Project lines</source>
        <translation>Projekti jooned</translation>
    </message>
    <message>
        <source>Zones</source>
        <translation>Tsoonid</translation>
    </message>
    <message>
        <source>Receiver address</source>
        <translation>Vastuvõtja aadress</translation>
    </message>
    <message>
        <source>Internal drive</source>
        <translation>Sisemine ketas</translation>
    </message>
    <message>
        <source>Stick</source>
        <translation>Mälupulk</translation>
    </message>
    <message>
        <source>Implement folder</source>
        <translation>Haakeriista kaust</translation>
    </message>
    <message>
        <source>Next NMEA log</source>
        <translation>Järgmine NMEA-logi</translation>
    </message>
    <message>
        <source>Next user log</source>
        <translation>Järgmine kasutajalogi</translation>
    </message>
    <message>
        <source>Identity</source>
        <translation>Tunnus</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Tekst</translation>
    </message>
    <message>
        <source>Colour of texts</source>
        <translation>Tekstide värv</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Pealkiri</translation>
    </message>
    <message>
        <source>Colour of titles</source>
        <translation>Pealkirjade värv</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Taust</translation>
    </message>
    <message>
        <source>Colour of the background</source>
        <translation>Tausta värv</translation>
    </message>
    <message>
        <source>Button</source>
        <translation>Nupp</translation>
    </message>
    <message>
        <source>Colour of buttons</source>
        <translation>Nuppude värv</translation>
    </message>
    <message>
        <source>Button text</source>
        <translation>Nupu tekst</translation>
    </message>
    <message>
        <source>Colour of texts on buttons</source>
        <translation>Nuputekstide värv</translation>
    </message>
    <message>
        <source>Map</source>
        <translation>Kaart</translation>
    </message>
    <message>
        <source>Colour of the map&apos;s ground</source>
        <translation>Kaardi aluspinna värv</translation>
    </message>
    <message>
        <source>Grid</source>
        <translation>Ruudustik</translation>
    </message>
    <message>
        <source>Colour of the map&apos;s grid</source>
        <translation>Kaardi ruudustiku värv</translation>
    </message>
    <message>
        <source>Coverage</source>
        <translation>Töödeldud</translation>
    </message>
    <message>
        <source>Colour of covered ground</source>
        <translation>Töödeldud ala värv</translation>
    </message>
    <message>
        <source>Vehicle on the map</source>
        <translation>Sõiduk kaardil</translation>
    </message>
    <message>
        <source>Colour of the vehicle</source>
        <translation>Sõiduki värv</translation>
    </message>
    <message>
        <source>Guidance line</source>
        <translation>Juhtjoon</translation>
    </message>
    <message>
        <source>Colour of the guidance line</source>
        <translation>Juhtjoone värv</translation>
    </message>
    <message>
        <source>Cross hairs</source>
        <translation>Niitrist</translation>
    </message>
    <message>
        <source>Colour of the cross hairs</source>
        <translation>Niitristi värv</translation>
    </message>
    <message>
        <source>Outer boundary</source>
        <translation>Välispiir</translation>
    </message>
    <message>
        <source>Colour of the outer boundary of the field</source>
        <translation>Põllu välispiiri värv</translation>
    </message>
    <message>
        <source>Inner boundary</source>
        <translation>Sisepiir</translation>
    </message>
    <message>
        <source>Colour of boundaries within the field</source>
        <translation>Põllusiseste piiride värv</translation>
    </message>
    <message>
        <source>Other boundaries</source>
        <translation>Muud piirid</translation>
    </message>
    <message>
        <source>Colour of boundaries that are not active</source>
        <translation>Mitteaktiivsete piiride värv</translation>
    </message>
    <message>
        <source>Exclusion zone</source>
        <translation>Keelutsoon</translation>
    </message>
    <message>
        <source>Colour of zones to keep out of</source>
        <translation>Välditavate tsoonide värv</translation>
    </message>
    <message>
        <source>Background picture</source>
        <translation>Taustapilt</translation>
    </message>
    <message>
        <source>Number of the background picture</source>
        <translation>Taustapildi number</translation>
    </message>
    <message>
        <source>what the sprayer&apos;s rates are related to</source>
        <translation>mille järgi pritsi kulunorm arvutatakse</translation>
    </message>
    <message>
        <source>liquid rates per 100 m or 100 yd of travel, while travel is their basis</source>
        <translation>vedeliku kulunorm 100 m või 100 yd teepikkuse kohta, kui teepikkus on selle alus</translation>
    </message>
    <message>
        <source>since when the clock has its time from there</source>
        <translation>mis ajast kell sealt aja saab</translation>
    </message>
    <message>
        <source>Metric</source>
        <translation>Meetriline</translation>
    </message>
    <message>
        <source>US or English</source>
        <translation>USA või inglise</translation>
    </message>
    <message>
        <source>US</source>
        <translation>USA</translation>
    </message>
    <message>
        <source>English</source>
        <translation>Inglise</translation>
    </message>
    <message>
        <source>Deg., min., s</source>
        <translation>Kraad, min, s</translation>
    </message>
    <message>
        <source>Degrees</source>
        <translation>Kraadid</translation>
    </message>
    <message>
        <source>24 hours</source>
        <translation>24 tundi</translation>
    </message>
    <message>
        <source>am, pm</source>
        <translation>am, pm</translation>
    </message>
    <message>
        <source>Month first</source>
        <translation>Kuu ees</translation>
    </message>
    <message>
        <source>Day first</source>
        <translation>Päev ees</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Päev</translation>
    </message>
    <message>
        <source>Night</source>
        <translation>Öö</translation>
    </message>
    <message>
        <source>Heading up</source>
        <translation>Sõidusuund üles</translation>
    </message>
    <message>
        <source>North up</source>
        <translation>Põhi üles</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Sees</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Väljas</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Jah</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Ei</translation>
    </message>
    <message>
        <source>Travel</source>
        <translation>Teepikkus</translation>
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
        <translation>Aaker</translation>
    </message>
    <message>
        <source>m, mm</source>
        <translation>m, mm</translation>
    </message>
    <message>
        <source>Inch</source>
        <translation>Toll</translation>
    </message>
    <message>
        <source>Foot</source>
        <translation>Jalg</translation>
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
        <translation>US-buššel</translation>
    </message>
    <message>
        <source>UK bushel</source>
        <translation>UK-buššel</translation>
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
        <translation>Punkt</translation>
    </message>
    <message>
        <source>Comma</source>
        <translation>Koma</translation>
    </message>
    <message>
        <source>By hand</source>
        <translation>Käsitsi</translation>
    </message>
    <message>
        <source>Sunset</source>
        <translation>Päikeseloojang</translation>
    </message>
    <message>
        <source>Twilight</source>
        <translation>Hämarik</translation>
    </message>
    <message>
        <source>Not set</source>
        <translation>Seadmata</translation>
    </message>
    <message>
        <source>Operator</source>
        <translation>Operaator</translation>
    </message>
    <message>
        <source>Receiver</source>
        <translation>Vastuvõtja</translation>
    </message>
    <message>
        <source>Rate</source>
        <translation>Kulunorm</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Kiirus</translation>
    </message>
    <message>
        <source>Area done</source>
        <translation>Töödeldud pindala</translation>
    </message>
    <message>
        <source>Area left</source>
        <translation>Pindala jääk</translation>
    </message>
    <message>
        <source>Productivity</source>
        <translation>Jõudlus</translation>
    </message>
    <message>
        <source>Flow</source>
        <translation>Vooluhulk</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperatuur</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>Vahemaa</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Asukoht</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Aeg</translation>
    </message>
    <message>
        <source>Units</source>
        <translation>Ühikud</translation>
    </message>
    <message>
        <source>Rates</source>
        <translation>Normid</translation>
    </message>
    <message>
        <source>Region</source>
        <translation>Piirkond</translation>
    </message>
    <message>
        <source>Clock</source>
        <translation>Kell</translation>
    </message>
    <message>
        <source>Colours of the schemes</source>
        <translation>Värviskeemid</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Kuvar</translation>
    </message>
    <message>
        <source>Selections</source>
        <translation>Valikud</translation>
    </message>
    <message>
        <source>Storage</source>
        <translation>Salvestusruum</translation>
    </message>
    <message>
        <source>Logs</source>
        <translation>Logid</translation>
    </message>
    <message>
        <source>Terminal</source>
        <translation>Terminal</translation>
    </message>
    <message>
        <source>%1, by day</source>
        <translation>%1, päeval</translation>
    </message>
    <message>
        <source>%1, by night</source>
        <translation>%1, öösel</translation>
    </message>
</context>
<context>
    <name>Problems</name>
    <message>
        <source>The logs lose lines: their drive is full or cannot be written.</source>
        <translation>Logidest läheb ridu kaduma: ketas on täis või sellele ei saa kirjutada.</translation>
    </message>
    <message>
        <source>Recording is off, because there is too little room.</source>
        <translation>Salvestus on väljas, sest ruumi on liiga vähe.</translation>
    </message>
    <message>
        <source>Changes of settings are not stored yet. %1</source>
        <translation>Sätete muudatused ei ole veel salvestatud. %1</translation>
    </message>
    <message>
        <source>The drive of the terminal is nearly full. Free: %1</source>
        <translation>Terminali ketas on peaaegu täis. Vaba: %1</translation>
    </message>
</context>
<context>
    <name>ProfilePage</name>
    <message>
        <source>Import</source>
        <translation>Impordi</translation>
    </message>
    <message>
        <source>The display has these settings already.</source>
        <translation>Kuvaril on need sätted juba olemas.</translation>
    </message>
    <message>
        <source>Changed here and in the profile</source>
        <translation>Muudetud siin ja profiilis</translation>
    </message>
    <message>
        <source>Which value the settings below shall have</source>
        <translation>Millise väärtuse allolevad sätted saavad</translation>
    </message>
    <message>
        <source>Ours</source>
        <translation>Siin</translation>
    </message>
    <message>
        <source>Theirs</source>
        <translation>Profiil</translation>
    </message>
</context>
<context>
    <name>ProfilesPage</name>
    <message>
        <source>Profiles</source>
        <translation>Profiilid</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Ekspordi</translation>
    </message>
    <message>
        <source>There is no profile on the stick.</source>
        <translation>Mälupulgal ei ole profiili.</translation>
    </message>
    <message>
        <source>No stick is plugged in.</source>
        <translation>Mälupulk ei ole sees.</translation>
    </message>
    <message>
        <source>Name of the profile</source>
        <translation>Profiili nimi</translation>
    </message>
</context>
<context>
    <name>Quantities</name>
    <message>
        <source>Area</source>
        <translation>Pindala</translation>
    </message>
    <message>
        <source>Productivity</source>
        <translation>Jõudlus</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Kiirus</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>Vahemaa</translation>
    </message>
    <message>
        <source>Small distance</source>
        <translation>Väike vahemaa</translation>
    </message>
    <message>
        <source>Travelled distance</source>
        <translation>Läbitud vahemaa</translation>
    </message>
    <message>
        <source>Altitude</source>
        <translation>Kõrgus</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperatuur</translation>
    </message>
    <message>
        <source>Pressure</source>
        <translation>Rõhk</translation>
    </message>
    <message>
        <source>Rate</source>
        <translation>Kulunorm</translation>
    </message>
    <message>
        <source>Requested rate</source>
        <translation>Soovitud kulunorm</translation>
    </message>
    <message>
        <source>Rate and error</source>
        <translation>Kulunorm ja hälve</translation>
    </message>
    <message>
        <source>Small rate</source>
        <translation>Väike norm</translation>
    </message>
    <message>
        <source>Flow</source>
        <translation>Vooluhulk</translation>
    </message>
    <message>
        <source>Small flow</source>
        <translation>Väike vooluhulk</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Maht</translation>
    </message>
    <message>
        <source>Small volume</source>
        <translation>Väike maht</translation>
    </message>
    <message>
        <source>Granular volume</source>
        <translation>Graanulite maht</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>Kaal</translation>
    </message>
    <message>
        <source>Weight per area</source>
        <translation>Kaal pinnaühiku kohta</translation>
    </message>
    <message>
        <source>Weight per area and error</source>
        <translation>Kaal pinnaühiku kohta ja hälve</translation>
    </message>
    <message>
        <source>Discharge</source>
        <translation>Väljutus</translation>
    </message>
    <message>
        <source>Nitrogen</source>
        <translation>Lämmastik</translation>
    </message>
    <message>
        <source>Nitrogen per area</source>
        <translation>Lämmastik pinnaühiku kohta</translation>
    </message>
    <message>
        <source>Seeds per area</source>
        <translation>Seemneid pinnaühiku kohta</translation>
    </message>
    <message>
        <source>Density</source>
        <translation>Tihedus</translation>
    </message>
    <message>
        <source>Granular density</source>
        <translation>Graanulite tihedus</translation>
    </message>
    <message>
        <source>Volume per revolution</source>
        <translation>Maht pöörde kohta</translation>
    </message>
    <message>
        <source>Weight per revolution</source>
        <translation>Kaal pöörde kohta</translation>
    </message>
    <message>
        <source>Flow meter</source>
        <translation>Vooluhulgamõõtur</translation>
    </message>
    <message>
        <source>Wheel sensor</source>
        <translation>Rattaandur</translation>
    </message>
    <message>
        <source>Speed sensor</source>
        <translation>Kiirusandur</translation>
    </message>
    <message>
        <source>Latitude</source>
        <translation>Laiuskraad</translation>
    </message>
    <message>
        <source>Longitude</source>
        <translation>Pikkuskraad</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Kestus</translation>
    </message>
    <message>
        <source>Percent</source>
        <translation>Protsent</translation>
    </message>
</context>
<context>
    <name>Question</name>
    <message>
        <source>Cancel</source>
        <translation>Loobu</translation>
    </message>
</context>
<context>
    <name>RateTile</name>
    <message>
        <source>set %1</source>
        <comment>the rate that is set</comment>
        <translation>siht %1</translation>
    </message>
</context>
<context>
    <name>Receiver</name>
    <message>
        <source>Off</source>
        <translation>Väljas</translation>
    </message>
    <message>
        <source>Connecting</source>
        <translation>Ühendab</translation>
    </message>
    <message>
        <source>Receiving</source>
        <translation>Võtab vastu</translation>
    </message>
    <message>
        <source>Silent</source>
        <translation>Vaikib</translation>
    </message>
    <message>
        <source>Lost</source>
        <translation>Kadunud</translation>
    </message>
    <message>
        <source>Ended</source>
        <translation>Lõppenud</translation>
    </message>
    <message>
        <source>No fix</source>
        <translation>Lahend puudub</translation>
    </message>
    <message>
        <source>RTK float</source>
        <translation>RTK float</translation>
    </message>
    <message>
        <source>Estimated</source>
        <translation>Hinnatud</translation>
    </message>
    <message>
        <source>By hand</source>
        <translation>Käsitsi</translation>
    </message>
    <message>
        <source>Simulated</source>
        <translation>Simuleeritud</translation>
    </message>
    <message>
        <source>The receiver sends nothing.</source>
        <translation>Vastuvõtja ei saada midagi.</translation>
    </message>
    <message>
        <source>The receiver is lost and is being looked for. %1</source>
        <translation>Vastuvõtja on kadunud ja seda otsitakse. %1</translation>
    </message>
    <message>
        <source>The receiver cannot be read. %1</source>
        <translation>Vastuvõtjat ei saa lugeda. %1</translation>
    </message>
    <message>
        <source>The simulated field is done.</source>
        <translation>Simuleeritud põld on valmis.</translation>
    </message>
    <message>
        <source>The recording of the receiver is over.</source>
        <translation>Vastuvõtja salvestis on lõppenud.</translation>
    </message>
</context>
<context>
    <name>ReceiverPage</name>
    <message>
        <source>Receiver</source>
        <translation>Vastuvõtja</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Peata</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Käivita</translation>
    </message>
    <message>
        <source>Simulator</source>
        <translation>Simulaator</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fail</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Võrk</translation>
    </message>
    <message>
        <source>Serial</source>
        <translation>Jadaport</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Aadress</translation>
    </message>
    <message>
        <source>Fix</source>
        <translation>Lahend</translation>
    </message>
    <message>
        <source>Age</source>
        <translation>Vanus</translation>
    </message>
    <message>
        <source>Satellites</source>
        <translation>Satelliidid</translation>
    </message>
    <message>
        <source>HDOP</source>
        <translation>HDOP</translation>
    </message>
    <message>
        <source>Time (UTC)</source>
        <translation>Aeg (UTC)</translation>
    </message>
    <message>
        <source>Lines</source>
        <translation>Read</translation>
    </message>
    <message>
        <source>Sentences</source>
        <translation>Teated</translation>
    </message>
    <message>
        <source>Bad checksums</source>
        <translation>Vale kontrollsumma</translation>
    </message>
    <message>
        <source>Damaged lines</source>
        <translation>Vigased read</translation>
    </message>
    <message>
        <source>Address of the receiver</source>
        <translation>Vastuvõtja aadress</translation>
    </message>
</context>
<context>
    <name>RegionPage</name>
    <message>
        <source>Date</source>
        <translation>Kuupäev</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Aeg</translation>
    </message>
    <message>
        <source>Time zone</source>
        <translation>Ajavöönd</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>Kuupäev ja aeg</translation>
    </message>
    <message>
        <source>Set by hand</source>
        <translation>Käsitsi</translation>
    </message>
</context>
<context>
    <name>SearchPage</name>
    <message>
        <source>Search</source>
        <translation>Otsi</translation>
    </message>
    <message>
        <source>Words of a setting</source>
        <translation>Otsisõnad</translation>
    </message>
    <message>
        <source>No setting has these words.</source>
        <translation>Neid sõnu pole üheski sättes.</translation>
    </message>
</context>
<context>
    <name>SettingsPage</name>
    <message>
        <source>Units</source>
        <translation>Ühikud</translation>
    </message>
    <message>
        <source>Region</source>
        <translation>Piirkond</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>Värvid</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Kuvar</translation>
    </message>
    <message>
        <source>Machine</source>
        <translation>Masin</translation>
    </message>
    <message>
        <source>Storage</source>
        <translation>Salvestusruum</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Teave</translation>
    </message>
    <message>
        <source>Tiles</source>
        <translation>Paanid</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>Profiilid</translation>
    </message>
    <message>
        <source>All settings</source>
        <translation>Kõik sätted</translation>
    </message>
</context>
<context>
    <name>SettingsPanel</name>
    <message>
        <source>Back</source>
        <translation>Tagasi</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Otsi</translation>
    </message>
</context>
<context>
    <name>Sizes</name>
    <message numerus="yes">
        <source>%n byte(s)</source>
        <translation>
            <numerusform>%n bait</numerusform>
            <numerusform>%n baiti</numerusform>
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
        <translation>Ülesannet pole</translation>
    </message>
    <message>
        <source>Receiver: %1</source>
        <translation>Vastuvõtja: %1</translation>
    </message>
    <message>
        <source>The stick is plugged in</source>
        <translation>Mälupulk on sees</translation>
    </message>
    <message>
        <source>Lock the screen</source>
        <translation>Lukusta ekraan</translation>
    </message>
    <message>
        <source>Colours of the night</source>
        <translation>Öövärvid</translation>
    </message>
    <message>
        <source>Colours of the day</source>
        <translation>Päevavärvid</translation>
    </message>
</context>
<context>
    <name>StoragePage</name>
    <message>
        <source>Open</source>
        <translation>Ava</translation>
    </message>
    <message>
        <source>Internal drive</source>
        <translation>Sisemine ketas</translation>
    </message>
    <message>
        <source>Stick</source>
        <translation>Mälupulk</translation>
    </message>
    <message>
        <source>No stick is plugged in.</source>
        <translation>Mälupulk ei ole sees.</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Muutmälu</translation>
    </message>
    <message>
        <source>Logs</source>
        <translation>Logid</translation>
    </message>
    <message>
        <source>Writes all log files to the stick</source>
        <translation>Kirjutab kõik logifailid mälupulgale</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Ekspordi</translation>
    </message>
    <message>
        <source>Export the logs</source>
        <translation>Ekspordi logid</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>Profiilid</translation>
    </message>
    <message>
        <source>Takes the settings to another display, or brings them back from the stick</source>
        <translation>Viib sätted teisele kuvarile või toob need mälupulgalt tagasi</translation>
    </message>
    <message>
        <source>Open the profiles</source>
        <translation>Ava profiilid</translation>
    </message>
    <message>
        <source>Support</source>
        <translation>Tugi</translation>
    </message>
    <message>
        <source>Writes logs, settings and versions in one file; without the names of clients, farms and fields</source>
        <translation>Kirjutab logid, sätted ja versioonid ühte faili; klientide, talude ja põldude nimedeta</translation>
    </message>
    <message>
        <source>Write</source>
        <translation>Kirjuta</translation>
    </message>
    <message>
        <source>Write the file for support without names</source>
        <translation>Kirjuta klienditoe fail nimedeta</translation>
    </message>
    <message>
        <source>Support, with names</source>
        <translation>Tugi, nimedega</translation>
    </message>
    <message>
        <source>The same file, with all names and places</source>
        <translation>Sama fail, kõigi nimede ja kohtadega</translation>
    </message>
    <message>
        <source>Write the file for support with names</source>
        <translation>Kirjuta klienditoe fail nimedega</translation>
    </message>
</context>
<context>
    <name>TFieldTreeModel</name>
    <message>
        <source>A job holds no items.</source>
        <translation>Ülesandes ei ole muud.</translation>
    </message>
    <message>
        <source>There is one with this name already.</source>
        <translation>See nimi on juba olemas.</translation>
    </message>
    <message numerus="yes">
        <source>%n file(s), %1</source>
        <translation>
            <numerusform>%n fail, %1</numerusform>
            <numerusform>%n faili, %1</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>TParameter</name>
    <message>
        <source>The setting could not be written to the disk yet.</source>
        <translation>Sätet ei saanud veel salvestada.</translation>
    </message>
    <message>
        <source>There is no value to set.</source>
        <translation>Määratavat väärtust ei ole.</translation>
    </message>
</context>
<context>
    <name>TRegionSettings</name>
    <message>
        <source>Jan</source>
        <translation>jaan</translation>
    </message>
    <message>
        <source>Feb</source>
        <translation>veebr</translation>
    </message>
    <message>
        <source>Mar</source>
        <translation>märts</translation>
    </message>
    <message>
        <source>Apr</source>
        <translation>apr</translation>
    </message>
    <message>
        <source>May</source>
        <translation>mai</translation>
    </message>
    <message>
        <source>Jun</source>
        <translation>juuni</translation>
    </message>
    <message>
        <source>Jul</source>
        <translation>juuli</translation>
    </message>
    <message>
        <source>Aug</source>
        <translation>aug</translation>
    </message>
    <message>
        <source>Sep</source>
        <translation>sept</translation>
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
        <translation>dets</translation>
    </message>
</context>
<context>
    <name>TRestart</name>
    <message>
        <source>The new language is shown after a restart.</source>
        <translation>Uus keel kehtib pärast taaskäivitust.</translation>
    </message>
    <message>
        <source>The new decimal sign is shown after a restart.</source>
        <translation>Uus kümnenderaldaja kehtib pärast taaskäivitust.</translation>
    </message>
</context>
<context>
    <name>TSelections</name>
    <message>
        <source>The selection could not be stored.</source>
        <translation>Valikut ei saanud salvestada.</translation>
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
        <translation>P_</translation>
    </message>
    <message>
        <source>L_</source>
        <translation>J_</translation>
    </message>
    <message>
        <source>P_</source>
        <translation>R_</translation>
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
        <translation>Sõidukit pole</translation>
    </message>
    <message>
        <source>No Profile</source>
        <translation>Profiili pole</translation>
    </message>
    <message>
        <source>No Implement</source>
        <translation>Haakeriista pole</translation>
    </message>
    <message>
        <source>Pivoted_</source>
        <translation>Veetav_</translation>
    </message>
</context>
<context>
    <name>TTransfer</name>
    <message>
        <source>The name is empty.</source>
        <translation>Nimi on tühi.</translation>
    </message>
</context>
<context>
    <name>TUnitAbbreviations</name>
    <message>
        <source>Jan</source>
        <translation>jaan</translation>
    </message>
    <message>
        <source>Feb</source>
        <translation>veebr</translation>
    </message>
    <message>
        <source>Mar</source>
        <translation>märts</translation>
    </message>
    <message>
        <source>Apr</source>
        <translation>apr</translation>
    </message>
    <message>
        <source>May</source>
        <translation>mai</translation>
    </message>
    <message>
        <source>Jun</source>
        <translation>juuni</translation>
    </message>
    <message>
        <source>Jul</source>
        <translation>juuli</translation>
    </message>
    <message>
        <source>Aug</source>
        <translation>aug</translation>
    </message>
    <message>
        <source>Sep</source>
        <translation>sept</translation>
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
        <translation>dets</translation>
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
        <translation>miili</translation>
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
        <translation>L/pööre</translation>
    </message>
    <message>
        <source>gal/rev</source>
        <translation>gal/pööre</translation>
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
        <translation>imp/L</translation>
    </message>
    <message>
        <source>pulses/gal</source>
        <translation>imp/gal</translation>
    </message>
    <message>
        <source>pulses/mL</source>
        <translation>imp/mL</translation>
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
        <translation>kg/pööre</translation>
    </message>
    <message>
        <source>lb/rev</source>
        <translation>lb/pööre</translation>
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
        <translation>imp/kgN</translation>
    </message>
    <message>
        <source>pulses/lbN</source>
        <translation>imp/lbN</translation>
    </message>
    <message>
        <source>KS/ha</source>
        <translation>tuh tk/ha</translation>
    </message>
    <message>
        <source>KS/ac</source>
        <translation>tuh tk/ac</translation>
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
        <translation>p/min</translation>
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
        <translation>Kriitiline</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Tavaline</translation>
    </message>
    <message>
        <source>Trivial</source>
        <translation>Tühine</translation>
    </message>
</context>
<context>
    <name>TWork</name>
    <message>
        <source>An implement cannot have this width.</source>
        <translation>Haakeriistal ei saa olla seda laiust.</translation>
    </message>
    <message>
        <source>A file of this job cannot be used. %1</source>
        <translation>Ülesande faili ei saa kasutada. %1</translation>
    </message>
    <message>
        <source>Coverage was not complete and was left out: strips %1, bytes %2</source>
        <translation>Töödeldud pindala andmed ei olnud täielikud ja jäeti välja: ribad %1, baidid %2</translation>
    </message>
    <message>
        <source>The file of the flags is damaged; new flags are not stored.</source>
        <translation>Lippude fail on rikutud; uusi lippe ei salvestata.</translation>
    </message>
    <message>
        <source>A file could not be stored. %1</source>
        <translation>Faili ei saanud salvestada. %1</translation>
    </message>
    <message>
        <source>The file of the implement cannot be used. %1</source>
        <translation>Haakeriista faili ei saa kasutada. %1</translation>
    </message>
    <message>
        <source>There is no line.</source>
        <translation>Joont ei ole.</translation>
    </message>
    <message>
        <source>The line has no name.</source>
        <translation>Joonel ei ole nime.</translation>
    </message>
    <message>
        <source>The guidance line cannot be used. %1</source>
        <translation>Juhtjoont ei saa kasutada. %1</translation>
    </message>
    <message>
        <source>No job is chosen</source>
        <translation>Ülesanne on valimata</translation>
    </message>
    <message>
        <source>No job is chosen: what is covered is not stored.</source>
        <translation>Ülesanne on valimata: töödeldud pindala ei salvestata.</translation>
    </message>
    <message>
        <source>The coverage of this job cannot be used: what is covered is not stored.</source>
        <translation>Ülesande töödeldud pindala ei saa kasutada: uut ei salvestata.</translation>
    </message>
    <message>
        <source>The coverage cannot be stored, and strips are lost: %1</source>
        <translation>Töödeldud pindala ei saa salvestada ja ribad lähevad kaduma: %1</translation>
    </message>
    <message>
        <source>The coverage is kept in memory until it can be stored. %1</source>
        <translation>Töödeldud pindala hoitakse muutmälus, kuni selle saab salvestada. %1</translation>
    </message>
    <message>
        <source>The job is still being read.</source>
        <translation>Ülesannet alles loetakse.</translation>
    </message>
</context>
<context>
    <name>TileTurner</name>
    <message>
        <source>Tiles</source>
        <translation>Paanid</translation>
    </message>
</context>
<context>
    <name>Tiles</name>
    <message>
        <source>Rate</source>
        <translation>Norm</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Kiirus</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>Pindala</translation>
    </message>
    <message>
        <source>Left</source>
        <comment>area that is left to work</comment>
        <translation>Jääk</translation>
    </message>
    <message>
        <source>Work</source>
        <comment>area per hour</comment>
        <translation>Jõudlus</translation>
    </message>
    <message>
        <source>Flow</source>
        <translation>Vooluhulk</translation>
    </message>
    <message>
        <source>Press.</source>
        <comment>pressure</comment>
        <translation>Rõhk</translation>
    </message>
    <message>
        <source>Temp.</source>
        <comment>temperature</comment>
        <translation>Temp.</translation>
    </message>
    <message>
        <source>Driven</source>
        <translation>Sõidetud</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Asukoht</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Aeg</translation>
    </message>
</context>
<context>
    <name>TilesPage</name>
    <message>
        <source>Back to the first choice</source>
        <translation>Tagasi esimese valiku juurde</translation>
    </message>
    <message>
        <source>%1 further ahead</source>
        <translation>Liiguta üles: %1</translation>
    </message>
    <message>
        <source>Shown</source>
        <translation>Nähtav</translation>
    </message>
    <message>
        <source>Hidden</source>
        <translation>Peidetud</translation>
    </message>
</context>
<context>
    <name>Transfer</name>
    <message>
        <source>Nothing is imported: some settings were changed here and in the profile.</source>
        <translation>Midagi ei imporditud: mõnda sätet on muudetud nii siin kui ka profiilis.</translation>
    </message>
    <message>
        <source>No stick is plugged in.</source>
        <translation>Mälupulk ei ole sees.</translation>
    </message>
    <message>
        <source>The stick was removed before everything was on it.</source>
        <translation>Mälupulk eemaldati enne, kui kõik oli sellel.</translation>
    </message>
    <message>
        <source>The stick could not be written to the end.</source>
        <translation>Mälupulgale ei saanud lõpuni kirjutada.</translation>
    </message>
    <message>
        <source>The folder %1 cannot be made.</source>
        <translation>Kausta %1 ei saa luua.</translation>
    </message>
    <message>
        <source>The file %1 cannot be written.</source>
        <translation>Faili %1 ei saa kirjutada.</translation>
    </message>
    <message>
        <source>The logs are on the stick (files: %1).</source>
        <translation>Logid on mälupulgal (faile: %1).</translation>
    </message>
    <message>
        <source>The profile cannot be used. %1</source>
        <translation>Profiili ei saa kasutada. %1</translation>
    </message>
    <message>
        <source>Nothing is imported. %1</source>
        <translation>Midagi ei imporditud. %1</translation>
    </message>
    <message>
        <source>This display</source>
        <translation>See kuvar</translation>
    </message>
    <message>
        <source>Another display</source>
        <translation>Teine kuvar</translation>
    </message>
    <message>
        <source>The profile is not on the stick. %1</source>
        <translation>Profiil ei ole mälupulgal. %1</translation>
    </message>
    <message>
        <source>The profile is on the stick: %1.</source>
        <translation>Profiil on mälupulgal: %1.</translation>
    </message>
    <message>
        <source>The file for support is not on the stick. %1</source>
        <translation>Klienditoe fail ei ole mälupulgal. %1</translation>
    </message>
    <message>
        <source>The file for support is on the stick: %1.</source>
        <translation>Klienditoe fail on mälupulgal: %1.</translation>
    </message>
    <message>
        <source>The profile is imported (settings changed: %1).</source>
        <translation>Profiil on imporditud (muudetud sätteid: %1).</translation>
    </message>
    <message>
        <source>It cannot be used.</source>
        <translation>Seda ei saa kasutada.</translation>
    </message>
</context>
<context>
    <name>TransferState</name>
    <message>
        <source>Reading</source>
        <translation>Loeb</translation>
    </message>
    <message>
        <source>Writing</source>
        <translation>Kirjutab</translation>
    </message>
    <message>
        <source>Leave the stick where it is until this is done.</source>
        <translation>Ära eemalda mälupulka enne, kui kõik on valmis.</translation>
    </message>
</context>
<context>
    <name>WorkPage</name>
    <message>
        <source>Waiting for a position</source>
        <translation>Asukoha ootel</translation>
    </message>
    <message>
        <source>Map</source>
        <translation>Kaart</translation>
    </message>
</context>
<context>
    <name>WorkingButton</name>
    <message>
        <source>Working</source>
        <translation>Töös</translation>
    </message>
    <message>
        <source>Not working</source>
        <translation>Pole töös</translation>
    </message>
    <message>
        <source>Working. Switch the implement off</source>
        <translation>Töös. Lülita haakeriist välja</translation>
    </message>
    <message>
        <source>Not working. Switch the implement on</source>
        <translation>Pole töös. Lülita haakeriist sisse</translation>
    </message>
</context>
</TS>
