<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="lv" sourcelanguage="en">
<context>
    <name>About</name>
    <message>
        <source>Windows, files and connections</source>
        <translation>Logi, faili un savienojumi</translation>
    </message>
    <message>
        <source>The file of the settings</source>
        <translation>Iestatījumu fails</translation>
    </message>
    <message>
        <source>Profiles of settings</source>
        <translation>Iestatījumu profili</translation>
    </message>
    <message>
        <source>Files for support</source>
        <translation>Faili atbalstam</translation>
    </message>
    <message>
        <source>Sunrise and sunset</source>
        <translation>Saullēkts un saulriets</translation>
    </message>
    <message>
        <source>Boundaries and zones</source>
        <translation>Robežas un zonas</translation>
    </message>
    <message>
        <source>Software</source>
        <translation>Programmatūra</translation>
    </message>
    <message>
        <source>The software of this display</source>
        <translation>Šī displeja programmatūra</translation>
    </message>
    <message>
        <source>Settings, units and logs</source>
        <translation>Iestatījumi, mērvienības un žurnāli</translation>
    </message>
</context>
<context>
    <name>Clock</name>
    <message>
        <source>The clock of the machine; nothing has set it.</source>
        <translation>Ierīces pulkstenis; tas nav iestatīts.</translation>
    </message>
    <message>
        <source>The clock was set by hand.</source>
        <translation>Pulkstenis iestatīts ar roku.</translation>
    </message>
    <message>
        <source>The receiver sets the clock.</source>
        <translation>Pulksteni iestata uztvērējs.</translation>
    </message>
    <message>
        <source>There is no such date or time.</source>
        <translation>Šāda datuma vai laika nav.</translation>
    </message>
    <message>
        <source>The date is more than 68 years from the clock of the machine.</source>
        <translation>Datums atšķiras no ierīces pulksteņa par vairāk nekā 68 gadiem.</translation>
    </message>
    <message>
        <source>The clock could not be stored.</source>
        <translation>Pulksteņa laiku neizdevās saglabāt.</translation>
    </message>
</context>
<context>
    <name>ClockEntry</name>
    <message>
        <source>Year</source>
        <translation>Gads</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>Mēnesis</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Diena</translation>
    </message>
    <message>
        <source>Hour</source>
        <translation>Stunda</translation>
    </message>
    <message>
        <source>Minute</source>
        <translation>Minūte</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>Datums un laiks</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Laiks</translation>
    </message>
    <message>
        <source>%1: more</source>
        <translation>%1: vairāk</translation>
    </message>
    <message>
        <source>%1: less</source>
        <translation>%1: mazāk</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Atcelt</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>Iestatīt</translation>
    </message>
</context>
<context>
    <name>ColorBar</name>
    <message>
        <source>%1: less</source>
        <translation>%1: mazāk</translation>
    </message>
    <message>
        <source>%1: more</source>
        <translation>%1: vairāk</translation>
    </message>
</context>
<context>
    <name>ColorPage</name>
    <message>
        <source>Former</source>
        <translation>Iepriekšējā</translation>
    </message>
    <message>
        <source>Former colour</source>
        <translation>Iepriekšējā krāsa</translation>
    </message>
    <message>
        <source>First value</source>
        <translation>Sākumvērtība</translation>
    </message>
    <message>
        <source>Digits of the colour</source>
        <translation>Krāsas cipari</translation>
    </message>
    <message>
        <source>Hue</source>
        <translation>Tonis</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Piesātinājums</translation>
    </message>
    <message>
        <source>Lightness</source>
        <translation>Gaišums</translation>
    </message>
</context>
<context>
    <name>ColorsPage</name>
    <message>
        <source>Day</source>
        <translation>Diena</translation>
    </message>
    <message>
        <source>Night</source>
        <translation>Nakts</translation>
    </message>
</context>
<context>
    <name>Contrasts</name>
    <message>
        <source>on %1: %2</source>
        <translation>uz „%1”: %2</translation>
    </message>
    <message>
        <source>under %1: %2</source>
        <translation>zem „%1”: %2</translation>
    </message>
    <message>
        <source>%1, too low: at least %2</source>
        <translation>%1, par maz: vismaz %2</translation>
    </message>
</context>
<context>
    <name>Difference</name>
    <message>
        <source>Changed on both sides</source>
        <translation>Mainīts abās pusēs</translation>
    </message>
    <message>
        <source>Here</source>
        <translation>Šeit</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>Profils</translation>
    </message>
</context>
<context>
    <name>Display</name>
    <message>
        <source>Restart</source>
        <translation>Restartēt</translation>
    </message>
    <message>
        <source>The fonts of the display</source>
        <translation>Displeja fonti</translation>
    </message>
    <message>
        <source>The keyboard on the screen</source>
        <translation>Ekrāna tastatūra</translation>
    </message>
</context>
<context>
    <name>DoorBand</name>
    <message>
        <source>Work</source>
        <translation>Darbs</translation>
    </message>
    <message>
        <source>Fields</source>
        <translation>Lauki</translation>
    </message>
    <message>
        <source>Receiver</source>
        <translation>Uztvērējs</translation>
    </message>
    <message>
        <source>Logs</source>
        <translation>Žurnāli</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Iestatījumi</translation>
    </message>
</context>
<context>
    <name>Drives</name>
    <message>
        <source>%1 free of %2</source>
        <translation>%1 brīvi no %2</translation>
    </message>
    <message>
        <source>Not known</source>
        <translation>Nav zināms</translation>
    </message>
    <message>
        <source>No stick</source>
        <translation>Nav USB</translation>
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
        <translation>Jauns klients</translation>
    </message>
    <message>
        <source>No client yet.</source>
        <translation>Klientu vēl nav.</translation>
    </message>
    <message>
        <source>Farms</source>
        <translation>Saimniecības</translation>
    </message>
    <message>
        <source>New farm</source>
        <translation>Jauna saimniecība</translation>
    </message>
    <message>
        <source>No farm yet.</source>
        <translation>Saimniecību nav.</translation>
    </message>
    <message>
        <source>Fields</source>
        <translation>Lauki</translation>
    </message>
    <message>
        <source>New field</source>
        <translation>Jauns lauks</translation>
    </message>
    <message>
        <source>No field yet.</source>
        <translation>Lauku vēl nav.</translation>
    </message>
    <message>
        <source>Jobs</source>
        <translation>Uzdevumi</translation>
    </message>
    <message>
        <source>New job</source>
        <translation>Jauns uzdevums</translation>
    </message>
    <message>
        <source>No job yet.</source>
        <translation>Uzdevumu nav.</translation>
    </message>
    <message>
        <source>Remove %1 with everything in it?</source>
        <translation>Dzēst %1 ar visu saturu?</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Labi</translation>
    </message>
    <message>
        <source>Rename or remove %1</source>
        <translation>Pārdēvēt vai dzēst: %1</translation>
    </message>
    <message>
        <source>Rename %1</source>
        <translation>Pārdēvēt: %1</translation>
    </message>
    <message>
        <source>Remove everything</source>
        <translation>Dzēst visu</translation>
    </message>
</context>
<context>
    <name>Host</name>
    <message>
        <source>Details for the support: %1</source>
        <translation>Informācija atbalstam: %1</translation>
    </message>
    <message>
        <source>%3 Try: %4</source>
        <translation>%3 Iespējamais nosaukums: %4</translation>
    </message>
    <message>
        <source>This name is not possible.</source>
        <translation>Šāds nosaukums nav iespējams.</translation>
    </message>
    <message>
        <source>The name is empty.</source>
        <translation>Nosaukums ir tukšs.</translation>
    </message>
    <message>
        <source>This name stands for another folder.</source>
        <translation>Šis nosaukums apzīmē citu mapi.</translation>
    </message>
    <message>
        <source>The name must not contain %1.</source>
        <translation>Nosaukumā nedrīkst būt %1.</translation>
    </message>
    <message>
        <source>The name contains a sign that cannot be seen.</source>
        <translation>Nosaukumā ir neredzama zīme.</translation>
    </message>
    <message>
        <source>The name contains a sign that is not complete.</source>
        <translation>Nosaukumā ir nepilnīga zīme.</translation>
    </message>
    <message>
        <source>The name must not end in a full stop or a blank.</source>
        <translation>Nosaukums nedrīkst beigties ar punktu vai atstarpi.</translation>
    </message>
    <message>
        <source>The name must not begin with a blank.</source>
        <translation>Nosaukums nedrīkst sākties ar atstarpi.</translation>
    </message>
    <message>
        <source>A stick cannot hold a file with this name.</source>
        <translation>USB diskā nevar būt faila ar šādu nosaukumu.</translation>
    </message>
    <message>
        <source>The name is too long.</source>
        <translation>Nosaukums ir par garu.</translation>
    </message>
    <message>
        <source>%2 exists already.</source>
        <translation>%2 jau ir.</translation>
    </message>
    <message numerus="yes">
        <source>%2 is active and holds %n file(s).</source>
        <translation>
            <numerusform>Elements %2 ir aktīvs, tajā ir %n fails.</numerusform>
            <numerusform>Elements %2 ir aktīvs, tajā ir %n faili.</numerusform>
            <numerusform>Elements %2 ir aktīvs, tajā ir %n failu.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%2 holds %n file(s).</source>
        <translation>
            <numerusform>Elementā %2 ir %n fails.</numerusform>
            <numerusform>Elementā %2 ir %n faili.</numerusform>
            <numerusform>Elementā %2 ir %n failu.</numerusform>
        </translation>
    </message>
    <message>
        <source>%2 is active.</source>
        <translation>Elements %2 ir aktīvs.</translation>
    </message>
    <message>
        <source>%2 is no longer there.</source>
        <translation>%2 vairs nav.</translation>
    </message>
    <message>
        <source>A stick cannot tell %2 from %3.</source>
        <translation>USB diskā nevar atšķirt %2 un %3.</translation>
    </message>
    <message>
        <source>Another program is working on the fields. Try again later.</source>
        <translation>Ar laukiem strādā cita programma. Mēģināt vēlāk vēlreiz.</translation>
    </message>
    <message>
        <source>The selection could not be stored.</source>
        <translation>Izvēli neizdevās saglabāt.</translation>
    </message>
    <message>
        <source>%1 is neither a file nor a folder.</source>
        <translation>%1 nav ne fails, ne mape.</translation>
    </message>
    <message>
        <source>The file was edited or is damaged.</source>
        <translation>Fails ir mainīts vai bojāts.</translation>
    </message>
    <message>
        <source>%1 cannot be read. %2</source>
        <translation>%1 nevar nolasīt. %2</translation>
    </message>
    <message>
        <source>The file is of another kind.</source>
        <translation>Fails ir cita veida.</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>Fails ir tukšs.</translation>
    </message>
    <message>
        <source>The end of the file is missing.</source>
        <translation>Trūkst faila beigu.</translation>
    </message>
    <message>
        <source>The file is damaged.</source>
        <translation>Fails ir bojāts.</translation>
    </message>
    <message>
        <source>The file is not complete.</source>
        <translation>Fails nav pilnīgs.</translation>
    </message>
    <message>
        <source>The file is from another version of the software.</source>
        <translation>Fails ir no citas programmatūras versijas.</translation>
    </message>
    <message>
        <source>The file has a value that is not possible: %2</source>
        <translation>Failā ir neiespējama vērtība: %2</translation>
    </message>
    <message>
        <source>The file has a value twice: %2</source>
        <translation>Failā iestatījums ir divreiz: %2</translation>
    </message>
    <message>
        <source>This address is not possible: %1</source>
        <translation>Šī adrese nav iespējama: %1</translation>
    </message>
    <message>
        <source>The device is not there.</source>
        <translation>Ierīces nav.</translation>
    </message>
    <message>
        <source>It is not permitted, or another program uses it.</source>
        <translation>Tas nav atļauts, vai to izmanto cita programma.</translation>
    </message>
    <message>
        <source>Another program uses it.</source>
        <translation>To izmanto cita programma.</translation>
    </message>
    <message>
        <source>It cannot be read.</source>
        <translation>To nevar nolasīt.</translation>
    </message>
    <message>
        <source>It was unplugged.</source>
        <translation>Ierīce tika atvienota.</translation>
    </message>
    <message>
        <source>It is not a serial device, or it cannot have this speed.</source>
        <translation>Tā nav seriālā ierīce, vai tai nevar būt šāds ātrums.</translation>
    </message>
    <message>
        <source>The serial port has a fault (number %1).</source>
        <translation>Seriālajam portam ir kļūme (numurs %1).</translation>
    </message>
    <message>
        <source>%1 is damaged or of another kind.</source>
        <translation>%1: dati ir bojāti vai cita veida.</translation>
    </message>
    <message>
        <source>%1 is from another version of the software.</source>
        <translation>%1: dati ir no citas programmatūras versijas.</translation>
    </message>
    <message>
        <source>%1 is damaged.</source>
        <translation>%1: dati bojāti.</translation>
    </message>
    <message>
        <source>%1 has other coordinates than WGS84.</source>
        <translation>%1: koordinātas nav WGS84.</translation>
    </message>
    <message>
        <source>%1 is not complete. %2 is missing.</source>
        <translation>%1: dati nav pilnīgi. Trūkst: %2.</translation>
    </message>
    <message>
        <source>%1 has no areas.</source>
        <translation>%1: nav laukumu.</translation>
    </message>
    <message>
        <source>Another program uses %1.</source>
        <translation>%1 izmanto cita programma.</translation>
    </message>
    <message>
        <source>A and B are too close together or too far apart.</source>
        <translation>A un B ir pārāk tuvu vai pārāk tālu viens no otra.</translation>
    </message>
    <message>
        <source>Another program has locked it.</source>
        <translation>To ir bloķējusi cita programma.</translation>
    </message>
    <message>
        <source>It is no longer there.</source>
        <translation>Tā vairs nav.</translation>
    </message>
    <message>
        <source>%1 is no longer there.</source>
        <translation>%1 vairs nav.</translation>
    </message>
    <message>
        <source>%1 cannot be written. %2</source>
        <translation>%1 nevar ierakstīt. %2</translation>
    </message>
    <message>
        <source>%1 cannot be written.</source>
        <translation>%1 nevar ierakstīt.</translation>
    </message>
    <message>
        <source>The file of the settings has a fault (number %1).</source>
        <translation>Iestatījumu failam ir kļūme (numurs %1).</translation>
    </message>
    <message>
        <source>%1 cannot be opened. %2</source>
        <translation>%1 nevar atvērt. %2</translation>
    </message>
    <message>
        <source>%1 cannot be created. %2</source>
        <translation>%1 nevar izveidot. %2</translation>
    </message>
    <message>
        <source>%1 cannot be copied. %2</source>
        <translation>%1 nevar kopēt. %2</translation>
    </message>
    <message>
        <source>%1 cannot be renamed. %2</source>
        <translation>%1 nevar pārdēvēt. %2</translation>
    </message>
    <message>
        <source>%1 cannot be removed. %2</source>
        <translation>%1 nevar izdzēst. %2</translation>
    </message>
    <message>
        <source>The drive is full.</source>
        <translation>Disks ir pilns.</translation>
    </message>
    <message>
        <source>The drive has a fault.</source>
        <translation>Diskam ir kļūme.</translation>
    </message>
    <message>
        <source>The drive can only be read.</source>
        <translation>Disku var tikai lasīt.</translation>
    </message>
    <message>
        <source>It is not permitted.</source>
        <translation>Tas nav atļauts.</translation>
    </message>
    <message>
        <source>It cannot be opened.</source>
        <translation>To nevar atvērt.</translation>
    </message>
    <message>
        <source>It is damaged.</source>
        <translation>Dati ir bojāti.</translation>
    </message>
    <message>
        <source>It is not there.</source>
        <translation>Šāda ceļa nav.</translation>
    </message>
    <message>
        <source>It exists already.</source>
        <translation>Tas jau ir.</translation>
    </message>
    <message>
        <source>It is a folder.</source>
        <translation>Tā ir mape.</translation>
    </message>
    <message>
        <source>It is not a folder.</source>
        <translation>Tā nav mape.</translation>
    </message>
    <message>
        <source>The folder is not empty.</source>
        <translation>Mape nav tukša.</translation>
    </message>
    <message>
        <source>The file is too large.</source>
        <translation>Fails ir par lielu.</translation>
    </message>
    <message>
        <source>Too many files are open.</source>
        <translation>Atvērts pārāk daudz failu.</translation>
    </message>
    <message>
        <source>There is too little memory.</source>
        <translation>Ir par maz atmiņas.</translation>
    </message>
    <message>
        <source>It is not possible there.</source>
        <translation>Tur tas nav iespējams.</translation>
    </message>
    <message>
        <source>The device refuses the connection.</source>
        <translation>Ierīce atsaka savienojumu.</translation>
    </message>
    <message>
        <source>The device has closed the connection.</source>
        <translation>Ierīce pārtrauca savienojumu.</translation>
    </message>
    <message>
        <source>There is no device with this address.</source>
        <translation>Nav ierīces ar šo adresi.</translation>
    </message>
    <message>
        <source>The network cannot be reached.</source>
        <translation>Tīkls nav sasniedzams.</translation>
    </message>
    <message>
        <source>The device does not answer.</source>
        <translation>Ierīce neatbild.</translation>
    </message>
    <message>
        <source>It is a link to another place.</source>
        <translation>Tā ir saite uz citu vietu.</translation>
    </message>
    <message>
        <source>There are too many links to it.</source>
        <translation>Uz to ved pārāk daudz saišu.</translation>
    </message>
</context>
<context>
    <name>ItemActions</name>
    <message>
        <source>Rename</source>
        <translation>Pārdēvēt</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Dzēst</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Atcelt</translation>
    </message>
</context>
<context>
    <name>ItemPage</name>
    <message>
        <source>New</source>
        <translation>Jauns</translation>
    </message>
</context>
<context>
    <name>Keypad</name>
    <message>
        <source>%1 to %2 %3</source>
        <translation>No %1 līdz %2 %3</translation>
    </message>
    <message>
        <source>At least %1 %2</source>
        <translation>Vismaz %1 %2</translation>
    </message>
    <message>
        <source>At most %1 %2</source>
        <translation>Līdz %1 %2</translation>
    </message>
    <message>
        <source>This is not a number yet.</source>
        <translation>Tas vēl nav skaitlis.</translation>
    </message>
    <message>
        <source>Too large.
%1</source>
        <translation>Par lielu.
%1</translation>
    </message>
    <message>
        <source>Too small.
%1</source>
        <translation>Par mazu.
%1</translation>
    </message>
    <message>
        <source>now %1</source>
        <translation>tagad %1</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Atcelt</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>Iestatīt</translation>
    </message>
    <message>
        <source>Decimal sign</source>
        <translation>Decimālatdalītājs</translation>
    </message>
    <message>
        <source>Plus or minus</source>
        <translation>Plus vai mīnus</translation>
    </message>
    <message>
        <source>Remove the last sign</source>
        <translation>Dzēst pēdējo zīmi</translation>
    </message>
    <message>
        <source>C</source>
        <comment>key that clears the entry</comment>
        <translation>C</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Notīrīt</translation>
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
        <translation>Iestatīt šeit A, līnijas pirmo galu</translation>
    </message>
    <message>
        <source>B</source>
        <comment>the other end of the guidance line</comment>
        <translation>B</translation>
    </message>
    <message>
        <source>Set B, the other end of the line, here</source>
        <translation>Iestatīt šeit B, līnijas otro galu</translation>
    </message>
    <message>
        <source>Set a flag here</source>
        <translation>Likt šeit karodziņu</translation>
    </message>
</context>
<context>
    <name>LineChoice</name>
    <message>
        <source>New</source>
        <translation>Jauna</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Atcelt</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Apturēt</translation>
    </message>
</context>
<context>
    <name>LinePanel</name>
    <message>
        <source>%1 to the left</source>
        <translation>%1 pa kreisi</translation>
    </message>
    <message>
        <source>%1 to the right</source>
        <translation>%1 pa labi</translation>
    </message>
</context>
<context>
    <name>LockLayer</name>
    <message>
        <source>The screen is locked. Hold the button to unlock it.</source>
        <translation>Ekrāns ir bloķēts. Lai atbloķētu, turēt pogu nospiestu.</translation>
    </message>
    <message>
        <source>Unlock</source>
        <translation>Atbloķēt</translation>
    </message>
</context>
<context>
    <name>LogsPage</name>
    <message>
        <source>Logs</source>
        <translation>Žurnāli</translation>
    </message>
    <message>
        <source>Events</source>
        <translation>Notikumi</translation>
    </message>
    <message>
        <source>Receiver</source>
        <translation>Uztvērējs</translation>
    </message>
    <message>
        <source>Go on</source>
        <translation>Turpināt</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pauze</translation>
    </message>
    <message>
        <source>No line yet.</source>
        <translation>Rindu vēl nav.</translation>
    </message>
</context>
<context>
    <name>MachinePage</name>
    <message>
        <source>Implement width</source>
        <translation>Darba platums</translation>
    </message>
    <message>
        <source>Decides the guidance lines beside each other, and the area done</source>
        <translation>Nosaka apstrādāto platību un attālumu starp vadlīnijām</translation>
    </message>
    <message>
        <source>Implement behind the antenna</source>
        <translation>Agregāts aiz antenas</translation>
    </message>
    <message>
        <source>How far the ground is covered behind the vehicle&apos;s place</source>
        <translation>Cik tālu aiz spēkrata vietas tiek apstrādāta zeme</translation>
    </message>
</context>
<context>
    <name>Main</name>
    <message>
        <source>Cab display</source>
        <translation>Kabīnes displejs</translation>
    </message>
</context>
<context>
    <name>MapButtons</name>
    <message>
        <source>Zoom in</source>
        <translation>Tuvināt</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Tālināt</translation>
    </message>
    <message>
        <source>The heading is up. Turn north up</source>
        <translation>Virziens augšā. Pagriezt ziemeļus augšup</translation>
    </message>
    <message>
        <source>North is up. Turn the heading up</source>
        <translation>Ziemeļi augšā. Pagriezt virzienu augšup</translation>
    </message>
    <message>
        <source>Centre the vehicle</source>
        <translation>Spēkrats centrā</translation>
    </message>
</context>
<context>
    <name>NameEntry</name>
    <message>
        <source>Cancel</source>
        <translation>Atcelt</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>Iestatīt</translation>
    </message>
</context>
<context>
    <name>PageTurner</name>
    <message>
        <source>Rows above</source>
        <translation>Rindas augstāk</translation>
    </message>
    <message>
        <source>Rows below</source>
        <translation>Rindas zemāk</translation>
    </message>
</context>
<context>
    <name>ParameterRow</name>
    <message>
        <source>%1: back to the first value</source>
        <translation>%1: atpakaļ uz sākumvērtību</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Atvērt</translation>
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
        <translation>absolūts ceļš, kas beidzas ar „/” un nav „/”</translation>
    </message>
    <message>
        <source>an absolute path</source>
        <translation>absolūts ceļš</translation>
    </message>
    <message>
        <source>a UUID in small letters, such as 6ba7b810-9dad-41d1-80b4-00c04fd430c8</source>
        <translation>UUID ar mazajiem burtiem, piem., 6ba7b810-9dad-41d1-80b4-00c04fd430c8</translation>
    </message>
    <message>
        <source>simulator, tcp://HOST:PORT, serial:///dev/NAME?baud=N or an absolute path</source>
        <translation>simulator, tcp://HOST:PORT, serial:///dev/NAME?baud=N vai absolūts ceļš</translation>
    </message>
    <message>
        <source>true or false</source>
        <translation>true vai false</translation>
    </message>
    <message>
        <source>a time in UTC, such as 2026-03-05T13:05:09Z</source>
        <translation>laiks UTC, piem., 2026-03-05T13:05:09Z</translation>
    </message>
    <message>
        <source>a colour: #rrggbb, #aarrggbb or a name such as navy</source>
        <translation>krāsa: #rrggbb, #aarrggbb vai nosaukums, piem., navy</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>no %1 līdz %2</translation>
    </message>
    <message>
        <source>Not a whole number.</source>
        <translation>Nav vesels skaitlis.</translation>
    </message>
    <message>
        <source>Below the least value.</source>
        <translation>Zem mazākās vērtības.</translation>
    </message>
    <message>
        <source>Above the greatest value.</source>
        <translation>Virs lielākās vērtības.</translation>
    </message>
    <message>
        <source>This cannot be the name of a file. Try: %1</source>
        <translation>Failam nevar būt šāds nosaukums. Iespējamais nosaukums: %1</translation>
    </message>
    <message>
        <source>Not accepted. Expected: %1.</source>
        <translation>Nav pieņemts. Jābūt: %1.</translation>
    </message>
    <message>
        <source>a name without %1</source>
        <translation>nosaukums bez %1</translation>
    </message>
    <message>
        <source>a whole number</source>
        <translation>vesels skaitlis</translation>
    </message>
    <message>
        <source>At least %1</source>
        <translation>Vismaz %1</translation>
    </message>
</context>
<context>
    <name>Parameters</name>
    <message>
        <source>the operator has chosen the offset from UTC; GPS time keeps it instead of computing it</source>
        <translation>operators ir izvēlējies nobīdi no UTC; GPS laiks to saglabā, nevis aprēķina</translation>
    </message>
    <message>
        <source>metric units; otherwise US or English units</source>
        <translation>metriskās mērvienības; citādi ASV vai angļu</translation>
    </message>
    <message>
        <source>US measures when units are not metric; otherwise English measures</source>
        <translation>ASV mēri, ja mērvienības nav metriskās; citādi angļu mēri</translation>
    </message>
    <message>
        <source>positions in degrees, minutes and seconds; otherwise in decimal degrees</source>
        <translation>pozīcijas grādos, minūtēs un sekundēs; citādi decimālgrādos</translation>
    </message>
    <message>
        <source>24-hour clock; otherwise 12 hours with am and pm</source>
        <translation>24 stundu pulkstenis; citādi 12 stundas ar am un pm</translation>
    </message>
    <message>
        <source>dates with the month before the day</source>
        <translation>datumi ar mēnesi pirms dienas</translation>
    </message>
    <message>
        <source>colours for day; otherwise for night</source>
        <translation>dienas krāsas; citādi nakts krāsas</translation>
    </message>
    <message>
        <source>the map turns with the vehicle; otherwise north is up</source>
        <translation>karte griežas līdzi spēkratam; citādi ziemeļi ir augšā</translation>
    </message>
    <message>
        <source>unit of pressures</source>
        <translation>spiediena mērvienība</translation>
    </message>
    <message>
        <source>unit of areas, and of rates per area</source>
        <translation>platības un devu uz platību mērvienība</translation>
    </message>
    <message>
        <source>unit of short distances: widths, offsets</source>
        <translation>īsu attālumu mērvienība: platumi, nobīdes</translation>
    </message>
    <message>
        <source>unit of granular volumes</source>
        <translation>granulu tilpuma mērvienība</translation>
    </message>
    <message>
        <source>unit of granular densities</source>
        <translation>granulu blīvuma mērvienība</translation>
    </message>
    <message>
        <source>unit of liquid volumes, flows and rates</source>
        <translation>šķidruma tilpuma, plūsmas un devu mērvienība</translation>
    </message>
    <message>
        <source>language of the display&apos;s texts; a change needs a restart</source>
        <translation>displeja tekstu valoda; pēc maiņas jārestartē</translation>
    </message>
    <message>
        <source>decimal point or comma; a change needs a restart</source>
        <translation>decimālpunkts vai komats; pēc maiņas jārestartē</translation>
    </message>
    <message>
        <source>when the colours switch between day and night: only by hand, at sunrise and sunset, or with the sun 6 degrees below the horizon</source>
        <translation>kad krāsas pārslēdzas starp dienu un nakti: tikai ar roku, saullēktā un saulrietā vai kad saule ir 6 grādus zem horizonta</translation>
    </message>
    <message>
        <source>what set the display&apos;s clock</source>
        <translation>pēc kā iestatīts displeja pulkstenis</translation>
    </message>
    <message>
        <source>local time less UTC, whole hours</source>
        <translation>vietējais laiks mīnus UTC, veselas stundas</translation>
    </message>
    <message>
        <source>local time less UTC, minutes beyond the hours, with the sign of the hours</source>
        <translation>vietējais laiks mīnus UTC, minūtes virs stundām, ar stundu zīmi</translation>
    </message>
    <message>
        <source>brightness of the lightbar at night</source>
        <translation>gaismas joslas spilgtums naktī</translation>
    </message>
    <message>
        <source>brightness of the screen at night</source>
        <translation>ekrāna spilgtums naktī</translation>
    </message>
    <message>
        <source>brightness of the button lights at night</source>
        <translation>pogu gaismas spilgtums naktī</translation>
    </message>
    <message>
        <source>4: implements are kept in the folder of their vehicle; other numbers: in their own folder</source>
        <translation>4: agregāti ir sava spēkrata mapē; citi skaitļi: savā mapē</translation>
    </message>
    <message>
        <source>number of the next file of the NMEA log</source>
        <translation>NMEA žurnāla nākamā faila numurs</translation>
    </message>
    <message>
        <source>number of the next file of the user log</source>
        <translation>lietotāja žurnāla nākamā faila numurs</translation>
    </message>
    <message>
        <source>the display&apos;s clock less UTC</source>
        <translation>displeja pulkstenis mīnus UTC</translation>
    </message>
    <message>
        <source>folder of the internal drive; by default in the data folder</source>
        <translation>iekšējā diska mape; pēc noklusējuma datu mapē</translation>
    </message>
    <message>
        <source>mount point of the removable drive; by default in the data folder</source>
        <translation>noņemamā diska montēšanas punkts; pēc noklusējuma datu mapē</translation>
    </message>
    <message>
        <source>the identity of the terminal, which its profiles carry</source>
        <translation>termināļa identitāte, kas ir tā profilos</translation>
    </message>
    <message>
        <source>where the sentences of the receiver come from</source>
        <translation>no kurienes nāk uztvērēja teikumi</translation>
    </message>
    <message>
        <source>the figures beside the map, in this order</source>
        <translation>vērtības blakus kartei, šādā secībā</translation>
    </message>
    <message>
        <source>the newest time of a receiver, as of the last day on which one was seen</source>
        <translation>jaunākais uztvērēja laiks, no pēdējās dienas ar uztvērēju</translation>
    </message>
    <message>
        <source>when the sun switched the colours last</source>
        <translation>kad saule pēdējo reizi pārslēdza krāsas</translation>
    </message>
    <message>
        <source>the active job</source>
        <translation>aktīvais uzdevums</translation>
    </message>
    <message>
        <source>the active boundary</source>
        <translation>aktīvā robeža</translation>
    </message>
    <message>
        <source>the active straight guidance line</source>
        <translation>aktīvā taisnā vadlīnija</translation>
    </message>
    <message>
        <source>the active pivot</source>
        <translation>aktīvā apļa līnija</translation>
    </message>
    <message>
        <source>the active guidance curve</source>
        <translation>aktīvā vadlīnija (līkne)</translation>
    </message>
    <message>
        <source>the active shape file of optimal lines</source>
        <translation>aktīvais optimālo līniju shape fails</translation>
    </message>
    <message>
        <source>the active shape file of project lines</source>
        <translation>aktīvais projekta līniju shape fails</translation>
    </message>
    <message>
        <source>the active shape file of zones</source>
        <translation>aktīvais zonu shape fails</translation>
    </message>
    <message>
        <source>the active steering profile</source>
        <translation>aktīvais stūrēšanas profils</translation>
    </message>
    <message>
        <source>the active implement</source>
        <translation>aktīvais agregāts</translation>
    </message>
    <message>
        <source>the active vehicle</source>
        <translation>aktīvais spēkrats</translation>
    </message>
    <message>
        <source>the active sprayer</source>
        <translation>aktīvais smidzinātājs</translation>
    </message>
    <message>
        <source>the active boom leveller</source>
        <translation>aktīvais stieņu līmeņotājs</translation>
    </message>
    <message>
        <source>the active client</source>
        <translation>aktīvais klients</translation>
    </message>
    <message>
        <source>the active farm</source>
        <translation>aktīvā saimniecība</translation>
    </message>
    <message>
        <source>the active field</source>
        <translation>aktīvais lauks</translation>
    </message>
    <message>
        <source>Measures</source>
        <translation>Mēru sistēma</translation>
    </message>
    <message>
        <source>Gallons and bushels</source>
        <translation>Galoni un bušeļi</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>Platība</translation>
    </message>
    <message>
        <source>Pressure</source>
        <translation>Spiediens</translation>
    </message>
    <message>
        <source>Short distances</source>
        <translation>Īsi attālumi</translation>
    </message>
    <message>
        <source>Liquid</source>
        <translation>Šķidrums</translation>
    </message>
    <message>
        <source>Granular volume</source>
        <translation>Granulu tilpums</translation>
    </message>
    <message>
        <source>Granular density</source>
        <translation>Granulu blīvums</translation>
    </message>
    <message>
        <source>Positions</source>
        <translation>Pozīcijas</translation>
    </message>
    <message>
        <source>Rate per travel</source>
        <translation>Deva uz nobraukto ceļu</translation>
    </message>
    <message>
        <source>Basis of rates</source>
        <translation>Devu pamats</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Valoda</translation>
    </message>
    <message>
        <source>Decimal sign</source>
        <translation>Decimālatdalītājs</translation>
    </message>
    <message>
        <source>Time of day</source>
        <translation>Pulksteņlaiks</translation>
    </message>
    <message>
        <source>Dates</source>
        <translation>Datumi</translation>
    </message>
    <message>
        <source>Time zone set by hand</source>
        <translation>Laika josla ar roku</translation>
    </message>
    <message>
        <source>Time zone, hours</source>
        <translation>Laika josla, stundas</translation>
    </message>
    <message>
        <source>Time zone, minutes</source>
        <translation>Laika josla, minūtes</translation>
    </message>
    <message>
        <source>Clock less UTC</source>
        <translation>Pulkstenis – UTC</translation>
    </message>
    <message>
        <source>Source of the time</source>
        <translation>Laika avots</translation>
    </message>
    <message>
        <source>Source of the time since</source>
        <translation>Laika avots kopš</translation>
    </message>
    <message>
        <source>Newest receiver time</source>
        <translation>Jaunākais uztvērēja laiks</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>Krāsas</translation>
    </message>
    <message>
        <source>Day and night</source>
        <translation>Diena un nakts</translation>
    </message>
    <message>
        <source>Map direction</source>
        <translation>Kartes virziens</translation>
    </message>
    <message>
        <source>Tiles</source>
        <translation>Flīzes</translation>
    </message>
    <message>
        <source>Light bar at night</source>
        <translation>Gaismas josla naktī</translation>
    </message>
    <message>
        <source>Screen at night</source>
        <translation>Ekrāns naktī</translation>
    </message>
    <message>
        <source>Button lights at night</source>
        <translation>Pogu gaisma naktī</translation>
    </message>
    <message>
        <source>Switched by the sun</source>
        <translation>Saule pārslēdza</translation>
    </message>
    <message>
        <source>Client</source>
        <translation>Klients</translation>
    </message>
    <message>
        <source>Farm</source>
        <translation>Saimniecība</translation>
    </message>
    <message>
        <source>Field</source>
        <translation>Lauks</translation>
    </message>
    <message>
        <source>Job</source>
        <translation>Uzdevums</translation>
    </message>
    <message>
        <source>Vehicle</source>
        <translation>Spēkrats</translation>
    </message>
    <message>
        <source>Implement</source>
        <translation>Agregāts</translation>
    </message>
    <message>
        <source>Sprayer</source>
        <translation>Smidzinātājs</translation>
    </message>
    <message>
        <source>Boom leveller</source>
        <translation>Stieņu līmeņotājs</translation>
    </message>
    <message>
        <source>Steering profile</source>
        <translation>Stūrēšanas profils</translation>
    </message>
    <message>
        <source>Boundary</source>
        <translation>Robeža</translation>
    </message>
    <message>
        <source>A-B line</source>
        <translation>A-B līnija</translation>
    </message>
    <message>
        <source>Pivot</source>
        <translation>Apļa līnija</translation>
    </message>
    <message>
        <source>Curve</source>
        <translation>Līkne</translation>
    </message>
    <message>
        <source>Optimal lines</source>
        <translation>Optimālās līnijas</translation>
    </message>
    <message>
        <source>Project lines</source>
        <translation>Projekta līnijas</translation>
    </message>
    <message>
        <source>Zones</source>
        <translation>Zonas</translation>
    </message>
    <message>
        <source>Receiver address</source>
        <translation>Uztvērēja adrese</translation>
    </message>
    <message>
        <source>Internal drive</source>
        <translation>Iekšējais disks</translation>
    </message>
    <message>
        <source>Stick</source>
        <translation>USB disks</translation>
    </message>
    <message>
        <source>Implement folder</source>
        <translation>Agregāta mape</translation>
    </message>
    <message>
        <source>Next NMEA log</source>
        <translation>Nākamais NMEA žurnāls</translation>
    </message>
    <message>
        <source>Next user log</source>
        <translation>Nākamais lietotāja žurnāls</translation>
    </message>
    <message>
        <source>Identity</source>
        <translation>Identitāte</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Teksts</translation>
    </message>
    <message>
        <source>Colour of texts</source>
        <translation>Tekstu krāsa</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Virsraksts</translation>
    </message>
    <message>
        <source>Colour of titles</source>
        <translation>Virsrakstu krāsa</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Fons</translation>
    </message>
    <message>
        <source>Colour of the background</source>
        <translation>Fona krāsa</translation>
    </message>
    <message>
        <source>Button</source>
        <translation>Poga</translation>
    </message>
    <message>
        <source>Colour of buttons</source>
        <translation>Pogu krāsa</translation>
    </message>
    <message>
        <source>Button text</source>
        <translation>Pogas teksts</translation>
    </message>
    <message>
        <source>Colour of texts on buttons</source>
        <translation>Pogu tekstu krāsa</translation>
    </message>
    <message>
        <source>Map</source>
        <translation>Karte</translation>
    </message>
    <message>
        <source>Colour of the map&apos;s ground</source>
        <translation>Kartes pamata krāsa</translation>
    </message>
    <message>
        <source>Grid</source>
        <translation>Režģis</translation>
    </message>
    <message>
        <source>Colour of the map&apos;s grid</source>
        <translation>Kartes režģa krāsa</translation>
    </message>
    <message>
        <source>Coverage</source>
        <translation>Apstrādāts</translation>
    </message>
    <message>
        <source>Colour of covered ground</source>
        <translation>Apstrādātās zemes krāsa</translation>
    </message>
    <message>
        <source>Vehicle on the map</source>
        <translation>Spēkrats kartē</translation>
    </message>
    <message>
        <source>Colour of the vehicle</source>
        <translation>Spēkrata krāsa</translation>
    </message>
    <message>
        <source>Guidance line</source>
        <translation>Vadlīnija</translation>
    </message>
    <message>
        <source>Colour of the guidance line</source>
        <translation>Vadlīnijas krāsa</translation>
    </message>
    <message>
        <source>Cross hairs</source>
        <translation>Tēmēklis</translation>
    </message>
    <message>
        <source>Colour of the cross hairs</source>
        <translation>Tēmēkļa krāsa</translation>
    </message>
    <message>
        <source>Outer boundary</source>
        <translation>Ārējā robeža</translation>
    </message>
    <message>
        <source>Colour of the outer boundary of the field</source>
        <translation>Lauka ārējās robežas krāsa</translation>
    </message>
    <message>
        <source>Inner boundary</source>
        <translation>Iekšējā robeža</translation>
    </message>
    <message>
        <source>Colour of boundaries within the field</source>
        <translation>Robežu krāsa lauka iekšpusē</translation>
    </message>
    <message>
        <source>Other boundaries</source>
        <translation>Citas robežas</translation>
    </message>
    <message>
        <source>Colour of boundaries that are not active</source>
        <translation>Neaktīvo robežu krāsa</translation>
    </message>
    <message>
        <source>Exclusion zone</source>
        <translation>Aizlieguma zona</translation>
    </message>
    <message>
        <source>Colour of zones to keep out of</source>
        <translation>Aizlieguma zonu krāsa</translation>
    </message>
    <message>
        <source>Background picture</source>
        <translation>Fona attēls</translation>
    </message>
    <message>
        <source>Number of the background picture</source>
        <translation>Fona attēla numurs</translation>
    </message>
    <message>
        <source>what the sprayer&apos;s rates are related to</source>
        <translation>uz ko attiecas smidzinātāja devas</translation>
    </message>
    <message>
        <source>liquid rates per 100 m or 100 yd of travel, while travel is their basis</source>
        <translation>šķidruma devas uz 100 m vai 100 yd nobrauktā ceļa, kamēr tās attiecas uz nobraukto ceļu</translation>
    </message>
    <message>
        <source>since when the clock has its time from there</source>
        <translation>kopš kura brīža pulksteņa laiks ir no šī avota</translation>
    </message>
    <message>
        <source>Metric</source>
        <translation>Metriskā</translation>
    </message>
    <message>
        <source>US or English</source>
        <translation>ASV vai angļu</translation>
    </message>
    <message>
        <source>US</source>
        <translation>ASV</translation>
    </message>
    <message>
        <source>English</source>
        <translation>Angļu</translation>
    </message>
    <message>
        <source>Deg., min., s</source>
        <translation>Gr., min, s</translation>
    </message>
    <message>
        <source>Degrees</source>
        <translation>Grādi</translation>
    </message>
    <message>
        <source>24 hours</source>
        <translation>24 stundas</translation>
    </message>
    <message>
        <source>am, pm</source>
        <translation>am, pm</translation>
    </message>
    <message>
        <source>Month first</source>
        <translation>Mēnesis, diena</translation>
    </message>
    <message>
        <source>Day first</source>
        <translation>Diena, mēnesis</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Diena</translation>
    </message>
    <message>
        <source>Night</source>
        <translation>Nakts</translation>
    </message>
    <message>
        <source>Heading up</source>
        <translation>Virziens augšā</translation>
    </message>
    <message>
        <source>North up</source>
        <translation>Ziemeļi augšā</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Iesl.</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Izsl.</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Jā</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nē</translation>
    </message>
    <message>
        <source>Travel</source>
        <translation>Ceļš</translation>
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
        <translation>Hektārs</translation>
    </message>
    <message>
        <source>Acre</source>
        <translation>Akrs</translation>
    </message>
    <message>
        <source>m, mm</source>
        <translation>m, mm</translation>
    </message>
    <message>
        <source>Inch</source>
        <translation>Colla</translation>
    </message>
    <message>
        <source>Foot</source>
        <translation>Pēda</translation>
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
        <translation>ASV bušelis</translation>
    </message>
    <message>
        <source>UK bushel</source>
        <translation>AK bušelis</translation>
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
        <translation>Punkts</translation>
    </message>
    <message>
        <source>Comma</source>
        <translation>Komats</translation>
    </message>
    <message>
        <source>By hand</source>
        <translation>Ar roku</translation>
    </message>
    <message>
        <source>Sunset</source>
        <translation>Saulriets</translation>
    </message>
    <message>
        <source>Twilight</source>
        <translation>Krēsla</translation>
    </message>
    <message>
        <source>Not set</source>
        <translation>Nav iestatīts</translation>
    </message>
    <message>
        <source>Operator</source>
        <translation>Operators</translation>
    </message>
    <message>
        <source>Receiver</source>
        <translation>Uztvērējs</translation>
    </message>
    <message>
        <source>Rate</source>
        <translation>Deva</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Ātrums</translation>
    </message>
    <message>
        <source>Area done</source>
        <translation>Gatavā platība</translation>
    </message>
    <message>
        <source>Area left</source>
        <translation>Atl. platība</translation>
    </message>
    <message>
        <source>Productivity</source>
        <translation>Ražīgums</translation>
    </message>
    <message>
        <source>Flow</source>
        <translation>Plūsma</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperatūra</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>Attālums</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Pozīcija</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Laiks</translation>
    </message>
    <message>
        <source>Units</source>
        <translation>Mērvienības</translation>
    </message>
    <message>
        <source>Rates</source>
        <translation>Devas</translation>
    </message>
    <message>
        <source>Region</source>
        <translation>Reģions</translation>
    </message>
    <message>
        <source>Clock</source>
        <translation>Pulkstenis</translation>
    </message>
    <message>
        <source>Colours of the schemes</source>
        <translation>Shēmu krāsas</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Attēlojums</translation>
    </message>
    <message>
        <source>Selections</source>
        <translation>Izvēle</translation>
    </message>
    <message>
        <source>Storage</source>
        <translation>Krātuve</translation>
    </message>
    <message>
        <source>Logs</source>
        <translation>Žurnāli</translation>
    </message>
    <message>
        <source>Terminal</source>
        <translation>Terminālis</translation>
    </message>
    <message>
        <source>%1, by day</source>
        <translation>%1, dienā</translation>
    </message>
    <message>
        <source>%1, by night</source>
        <translation>%1, naktī</translation>
    </message>
</context>
<context>
    <name>Problems</name>
    <message>
        <source>The logs lose lines: their drive is full or cannot be written.</source>
        <translation>Žurnāli zaudē rindas: to disks ir pilns vai tajā nevar rakstīt.</translation>
    </message>
    <message>
        <source>Recording is off, because there is too little room.</source>
        <translation>Ieraksts ir izslēgts, jo ir pārāk maz vietas.</translation>
    </message>
    <message>
        <source>Changes of settings are not stored yet. %1</source>
        <translation>Iestatījumu izmaiņas vēl nav saglabātas. %1</translation>
    </message>
    <message>
        <source>The drive of the terminal is nearly full. Free: %1</source>
        <translation>Termināļa disks ir gandrīz pilns. Brīvs: %1</translation>
    </message>
</context>
<context>
    <name>ProfilePage</name>
    <message>
        <source>Import</source>
        <translation>Importēt</translation>
    </message>
    <message>
        <source>The display has these settings already.</source>
        <translation>Displejam šie iestatījumi jau ir.</translation>
    </message>
    <message>
        <source>Changed here and in the profile</source>
        <translation>Mainīts šeit un profilā</translation>
    </message>
    <message>
        <source>Which value the settings below shall have</source>
        <translation>Kura vērtība jāizmanto tālāk norādītajiem iestatījumiem</translation>
    </message>
    <message>
        <source>Ours</source>
        <translation>Šejienes</translation>
    </message>
    <message>
        <source>Theirs</source>
        <translation>Profila</translation>
    </message>
</context>
<context>
    <name>ProfilesPage</name>
    <message>
        <source>Profiles</source>
        <translation>Profili</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Eksportēt</translation>
    </message>
    <message>
        <source>There is no profile on the stick.</source>
        <translation>USB diskā nav profila.</translation>
    </message>
    <message>
        <source>No stick is plugged in.</source>
        <translation>USB disks nav pievienots.</translation>
    </message>
    <message>
        <source>Name of the profile</source>
        <translation>Profila nosaukums</translation>
    </message>
</context>
<context>
    <name>Quantities</name>
    <message>
        <source>Area</source>
        <translation>Platība</translation>
    </message>
    <message>
        <source>Productivity</source>
        <translation>Ražīgums</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Ātrums</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>Attālums</translation>
    </message>
    <message>
        <source>Small distance</source>
        <translation>Mazs attālums</translation>
    </message>
    <message>
        <source>Travelled distance</source>
        <translation>Nobrauktais attālums</translation>
    </message>
    <message>
        <source>Altitude</source>
        <translation>Augstums</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperatūra</translation>
    </message>
    <message>
        <source>Pressure</source>
        <translation>Spiediens</translation>
    </message>
    <message>
        <source>Rate</source>
        <translation>Deva</translation>
    </message>
    <message>
        <source>Requested rate</source>
        <translation>Uzdotā deva</translation>
    </message>
    <message>
        <source>Rate and error</source>
        <translation>Deva un novirze</translation>
    </message>
    <message>
        <source>Small rate</source>
        <translation>Maza deva</translation>
    </message>
    <message>
        <source>Flow</source>
        <translation>Plūsma</translation>
    </message>
    <message>
        <source>Small flow</source>
        <translation>Maza plūsma</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Tilpums</translation>
    </message>
    <message>
        <source>Small volume</source>
        <translation>Mazs tilpums</translation>
    </message>
    <message>
        <source>Granular volume</source>
        <translation>Granulu tilpums</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>Masa</translation>
    </message>
    <message>
        <source>Weight per area</source>
        <translation>Masa uz platību</translation>
    </message>
    <message>
        <source>Weight per area and error</source>
        <translation>Masa uz platību un novirze</translation>
    </message>
    <message>
        <source>Discharge</source>
        <translation>Padeve</translation>
    </message>
    <message>
        <source>Nitrogen</source>
        <translation>Slāpeklis</translation>
    </message>
    <message>
        <source>Nitrogen per area</source>
        <translation>Slāpeklis uz platību</translation>
    </message>
    <message>
        <source>Seeds per area</source>
        <translation>Sēklas uz platību</translation>
    </message>
    <message>
        <source>Density</source>
        <translation>Blīvums</translation>
    </message>
    <message>
        <source>Granular density</source>
        <translation>Granulu blīvums</translation>
    </message>
    <message>
        <source>Volume per revolution</source>
        <translation>Tilpums uz apgriezienu</translation>
    </message>
    <message>
        <source>Weight per revolution</source>
        <translation>Masa uz apgriezienu</translation>
    </message>
    <message>
        <source>Flow meter</source>
        <translation>Plūsmas mērītājs</translation>
    </message>
    <message>
        <source>Wheel sensor</source>
        <translation>Riteņa sensors</translation>
    </message>
    <message>
        <source>Speed sensor</source>
        <translation>Ātruma sensors</translation>
    </message>
    <message>
        <source>Latitude</source>
        <translation>Ģ. platums</translation>
    </message>
    <message>
        <source>Longitude</source>
        <translation>Ģ. garums</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Ilgums</translation>
    </message>
    <message>
        <source>Percent</source>
        <translation>Procenti</translation>
    </message>
</context>
<context>
    <name>Question</name>
    <message>
        <source>Cancel</source>
        <translation>Atcelt</translation>
    </message>
</context>
<context>
    <name>RateTile</name>
    <message>
        <source>set %1</source>
        <comment>the rate that is set</comment>
        <translation>uzd. %1</translation>
    </message>
</context>
<context>
    <name>Receiver</name>
    <message>
        <source>Off</source>
        <translation>Izslēgts</translation>
    </message>
    <message>
        <source>Connecting</source>
        <translation>Savienojas</translation>
    </message>
    <message>
        <source>Receiving</source>
        <translation>Uztver</translation>
    </message>
    <message>
        <source>Silent</source>
        <translation>Klusē</translation>
    </message>
    <message>
        <source>Lost</source>
        <translation>Zaudēts</translation>
    </message>
    <message>
        <source>Ended</source>
        <translation>Beidzies</translation>
    </message>
    <message>
        <source>No fix</source>
        <translation>Nav pozīcijas</translation>
    </message>
    <message>
        <source>RTK float</source>
        <translation>RTK float</translation>
    </message>
    <message>
        <source>Estimated</source>
        <translation>Novērtēta</translation>
    </message>
    <message>
        <source>By hand</source>
        <translation>Ar roku</translation>
    </message>
    <message>
        <source>Simulated</source>
        <translation>Simulēta</translation>
    </message>
    <message>
        <source>The receiver sends nothing.</source>
        <translation>Uztvērējs neko nesūta.</translation>
    </message>
    <message>
        <source>The receiver is lost and is being looked for. %1</source>
        <translation>Uztvērējs ir zaudēts un tiek meklēts. %1</translation>
    </message>
    <message>
        <source>The receiver cannot be read. %1</source>
        <translation>No uztvērēja nevar nolasīt. %1</translation>
    </message>
    <message>
        <source>The simulated field is done.</source>
        <translation>Simulētais lauks ir pabeigts.</translation>
    </message>
    <message>
        <source>The recording of the receiver is over.</source>
        <translation>Uztvērēja ieraksts ir beidzies.</translation>
    </message>
</context>
<context>
    <name>ReceiverPage</name>
    <message>
        <source>Receiver</source>
        <translation>Uztvērējs</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Apturēt</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Sākt</translation>
    </message>
    <message>
        <source>Simulator</source>
        <translation>Simulators</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fails</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Tīkls</translation>
    </message>
    <message>
        <source>Serial</source>
        <translation>Seriālais</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adrese</translation>
    </message>
    <message>
        <source>Fix</source>
        <translation>Pozīc. veids</translation>
    </message>
    <message>
        <source>Age</source>
        <translation>Vecums</translation>
    </message>
    <message>
        <source>Satellites</source>
        <translation>Satelīti</translation>
    </message>
    <message>
        <source>HDOP</source>
        <translation>HDOP</translation>
    </message>
    <message>
        <source>Time (UTC)</source>
        <translation>Laiks (UTC)</translation>
    </message>
    <message>
        <source>Lines</source>
        <translation>Rindas</translation>
    </message>
    <message>
        <source>Sentences</source>
        <translation>Teikumi</translation>
    </message>
    <message>
        <source>Bad checksums</source>
        <translation>Kļūdainas summas</translation>
    </message>
    <message>
        <source>Damaged lines</source>
        <translation>Bojātas rindas</translation>
    </message>
    <message>
        <source>Address of the receiver</source>
        <translation>Uztvērēja adrese</translation>
    </message>
</context>
<context>
    <name>RegionPage</name>
    <message>
        <source>Date</source>
        <translation>Datums</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Laiks</translation>
    </message>
    <message>
        <source>Time zone</source>
        <translation>Laika josla</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>Datums un laiks</translation>
    </message>
    <message>
        <source>Set by hand</source>
        <translation>Iestatīt ar roku</translation>
    </message>
</context>
<context>
    <name>SearchPage</name>
    <message>
        <source>Search</source>
        <translation>Meklēt</translation>
    </message>
    <message>
        <source>Words of a setting</source>
        <translation>Meklējamie vārdi</translation>
    </message>
    <message>
        <source>No setting has these words.</source>
        <translation>Nav iestatījuma ar šādiem vārdiem.</translation>
    </message>
</context>
<context>
    <name>SettingsPage</name>
    <message>
        <source>Units</source>
        <translation>Mērvienības</translation>
    </message>
    <message>
        <source>Region</source>
        <translation>Reģions</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>Krāsas</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Attēlojums</translation>
    </message>
    <message>
        <source>Machine</source>
        <translation>Mašīna</translation>
    </message>
    <message>
        <source>Storage</source>
        <translation>Krātuve</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Par displeju</translation>
    </message>
    <message>
        <source>Tiles</source>
        <translation>Flīzes</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>Profili</translation>
    </message>
    <message>
        <source>All settings</source>
        <translation>Visi iestatījumi</translation>
    </message>
</context>
<context>
    <name>SettingsPanel</name>
    <message>
        <source>Back</source>
        <translation>Atpakaļ</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Meklēt</translation>
    </message>
</context>
<context>
    <name>Sizes</name>
    <message numerus="yes">
        <source>%n byte(s)</source>
        <translation>
            <numerusform>%n baits</numerusform>
            <numerusform>%n baiti</numerusform>
            <numerusform>%n baitu</numerusform>
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
        <translation>Nav uzdevuma</translation>
    </message>
    <message>
        <source>Receiver: %1</source>
        <translation>Uztvērējs: %1</translation>
    </message>
    <message>
        <source>The stick is plugged in</source>
        <translation>USB disks ir pievienots</translation>
    </message>
    <message>
        <source>Lock the screen</source>
        <translation>Bloķēt ekrānu</translation>
    </message>
    <message>
        <source>Colours of the night</source>
        <translation>Nakts krāsas</translation>
    </message>
    <message>
        <source>Colours of the day</source>
        <translation>Dienas krāsas</translation>
    </message>
</context>
<context>
    <name>StoragePage</name>
    <message>
        <source>Open</source>
        <translation>Atvērt</translation>
    </message>
    <message>
        <source>Internal drive</source>
        <translation>Iekšējais disks</translation>
    </message>
    <message>
        <source>Stick</source>
        <translation>USB disks</translation>
    </message>
    <message>
        <source>No stick is plugged in.</source>
        <translation>USB disks nav pievienots.</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Atmiņa</translation>
    </message>
    <message>
        <source>Logs</source>
        <translation>Žurnāli</translation>
    </message>
    <message>
        <source>Writes all log files to the stick</source>
        <translation>Ieraksta visus žurnālu failus USB diskā</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Eksportēt</translation>
    </message>
    <message>
        <source>Export the logs</source>
        <translation>Eksportēt žurnālus</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>Profili</translation>
    </message>
    <message>
        <source>Takes the settings to another display, or brings them back from the stick</source>
        <translation>Pārnes iestatījumus uz citu displeju vai ielādē tos atpakaļ no USB diska</translation>
    </message>
    <message>
        <source>Open the profiles</source>
        <translation>Atvērt profilus</translation>
    </message>
    <message>
        <source>Support</source>
        <translation>Atbalsts</translation>
    </message>
    <message>
        <source>Writes logs, settings and versions in one file; without the names of clients, farms and fields</source>
        <translation>Ieraksta žurnālus, iestatījumus un versijas vienā failā; bez klientu, saimniecību un lauku nosaukumiem</translation>
    </message>
    <message>
        <source>Write</source>
        <translation>Rakstīt</translation>
    </message>
    <message>
        <source>Write the file for support without names</source>
        <translation>Rakstīt failu atbalstam bez nosaukumiem</translation>
    </message>
    <message>
        <source>Support, with names</source>
        <translation>Atbalsts, ar nosaukumiem</translation>
    </message>
    <message>
        <source>The same file, with all names and places</source>
        <translation>Tas pats fails ar visiem nosaukumiem un vietām</translation>
    </message>
    <message>
        <source>Write the file for support with names</source>
        <translation>Rakstīt failu atbalstam ar nosaukumiem</translation>
    </message>
</context>
<context>
    <name>TFieldTreeModel</name>
    <message>
        <source>A job holds no items.</source>
        <translation>Uzdevumā nav citu elementu.</translation>
    </message>
    <message>
        <source>There is one with this name already.</source>
        <translation>Šāds nosaukums jau ir.</translation>
    </message>
    <message numerus="yes">
        <source>%n file(s), %1</source>
        <translation>
            <numerusform>%n fails, %1</numerusform>
            <numerusform>%n faili, %1</numerusform>
            <numerusform>%n failu, %1</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>TParameter</name>
    <message>
        <source>The setting could not be written to the disk yet.</source>
        <translation>Iestatījumu vēl neizdevās ierakstīt diskā.</translation>
    </message>
    <message>
        <source>There is no value to set.</source>
        <translation>Nav iestatāmas vērtības.</translation>
    </message>
</context>
<context>
    <name>TRegionSettings</name>
    <message>
        <source>Jan</source>
        <translation>janv.</translation>
    </message>
    <message>
        <source>Feb</source>
        <translation>febr.</translation>
    </message>
    <message>
        <source>Mar</source>
        <translation>marts</translation>
    </message>
    <message>
        <source>Apr</source>
        <translation>apr.</translation>
    </message>
    <message>
        <source>May</source>
        <translation>maijs</translation>
    </message>
    <message>
        <source>Jun</source>
        <translation>jūn.</translation>
    </message>
    <message>
        <source>Jul</source>
        <translation>jūl.</translation>
    </message>
    <message>
        <source>Aug</source>
        <translation>aug.</translation>
    </message>
    <message>
        <source>Sep</source>
        <translation>sept.</translation>
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
        <translation>Jaunā valoda būs redzama pēc restartēšanas.</translation>
    </message>
    <message>
        <source>The new decimal sign is shown after a restart.</source>
        <translation>Jaunais decimālatdalītājs būs redzams pēc restartēšanas.</translation>
    </message>
</context>
<context>
    <name>TSelections</name>
    <message>
        <source>The selection could not be stored.</source>
        <translation>Izvēli neizdevās saglabāt.</translation>
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
        <translation>R_</translation>
    </message>
    <message>
        <source>L_</source>
        <translation>L_</translation>
    </message>
    <message>
        <source>P_</source>
        <translation>A_</translation>
    </message>
    <message>
        <source>C_</source>
        <translation>LK_</translation>
    </message>
    <message>
        <source>O_</source>
        <translation>O_</translation>
    </message>
    <message>
        <source>No Vehicle</source>
        <translation>Nav spēkrata</translation>
    </message>
    <message>
        <source>No Profile</source>
        <translation>Nav profila</translation>
    </message>
    <message>
        <source>No Implement</source>
        <translation>Nav agregāta</translation>
    </message>
    <message>
        <source>Pivoted_</source>
        <translation>Piekabināms_</translation>
    </message>
</context>
<context>
    <name>TTransfer</name>
    <message>
        <source>The name is empty.</source>
        <translation>Nosaukums ir tukšs.</translation>
    </message>
</context>
<context>
    <name>TUnitAbbreviations</name>
    <message>
        <source>Jan</source>
        <translation>janv.</translation>
    </message>
    <message>
        <source>Feb</source>
        <translation>febr.</translation>
    </message>
    <message>
        <source>Mar</source>
        <translation>marts</translation>
    </message>
    <message>
        <source>Apr</source>
        <translation>apr.</translation>
    </message>
    <message>
        <source>May</source>
        <translation>maijs</translation>
    </message>
    <message>
        <source>Jun</source>
        <translation>jūn.</translation>
    </message>
    <message>
        <source>Jul</source>
        <translation>jūl.</translation>
    </message>
    <message>
        <source>Aug</source>
        <translation>aug.</translation>
    </message>
    <message>
        <source>Sep</source>
        <translation>sept.</translation>
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
        <translation>jūdzes</translation>
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
        <translation>l/apgr.</translation>
    </message>
    <message>
        <source>gal/rev</source>
        <translation>gal/apgr.</translation>
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
        <translation>kg/apgr.</translation>
    </message>
    <message>
        <source>lb/rev</source>
        <translation>lb/apgr.</translation>
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
        <translation>tūkst./ha</translation>
    </message>
    <message>
        <source>KS/ac</source>
        <translation>tūkst./ac</translation>
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
        <translation>apgr./min</translation>
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
        <translation>Kritisks</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Parasts</translation>
    </message>
    <message>
        <source>Trivial</source>
        <translation>Nebūtisks</translation>
    </message>
</context>
<context>
    <name>TWork</name>
    <message>
        <source>An implement cannot have this width.</source>
        <translation>Šāds darba platums nav iespējams.</translation>
    </message>
    <message>
        <source>A file of this job cannot be used. %1</source>
        <translation>Šī uzdevuma failu nevar izmantot. %1</translation>
    </message>
    <message>
        <source>Coverage was not complete and was left out: strips %1, bytes %2</source>
        <translation>Apstrādātās platības dati nebija pilnīgi, un daļa izlaista: joslas %1, baiti %2</translation>
    </message>
    <message>
        <source>The file of the flags is damaged; new flags are not stored.</source>
        <translation>Karodziņu fails ir bojāts; jauni karodziņi netiek saglabāti.</translation>
    </message>
    <message>
        <source>A file could not be stored. %1</source>
        <translation>Failu neizdevās saglabāt. %1</translation>
    </message>
    <message>
        <source>The file of the implement cannot be used. %1</source>
        <translation>Agregāta failu nevar izmantot. %1</translation>
    </message>
    <message>
        <source>There is no line.</source>
        <translation>Līnijas nav.</translation>
    </message>
    <message>
        <source>The line has no name.</source>
        <translation>Līnijai nav nosaukuma.</translation>
    </message>
    <message>
        <source>The guidance line cannot be used. %1</source>
        <translation>Vadlīniju nevar izmantot. %1</translation>
    </message>
    <message>
        <source>No job is chosen</source>
        <translation>Nav izvēlēts uzdevums</translation>
    </message>
    <message>
        <source>No job is chosen: what is covered is not stored.</source>
        <translation>Nav izvēlēts uzdevums: apstrādātā platība netiek saglabāta.</translation>
    </message>
    <message>
        <source>The coverage of this job cannot be used: what is covered is not stored.</source>
        <translation>Šī uzdevuma apstrādāto platību nevar izmantot: apstrādātā platība netiek saglabāta.</translation>
    </message>
    <message>
        <source>The coverage cannot be stored, and strips are lost: %1</source>
        <translation>Apstrādāto platību nevar saglabāt, joslas tiek zaudētas: %1</translation>
    </message>
    <message>
        <source>The coverage is kept in memory until it can be stored. %1</source>
        <translation>Apstrādātā platība paliek atmiņā, līdz to varēs saglabāt. %1</translation>
    </message>
    <message>
        <source>The job is still being read.</source>
        <translation>Uzdevums vēl tiek nolasīts.</translation>
    </message>
</context>
<context>
    <name>TileTurner</name>
    <message>
        <source>Tiles</source>
        <translation>Flīzes</translation>
    </message>
</context>
<context>
    <name>Tiles</name>
    <message>
        <source>Rate</source>
        <translation>Deva</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Ātrums</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>Platība</translation>
    </message>
    <message>
        <source>Left</source>
        <comment>area that is left to work</comment>
        <translation>Atlicis</translation>
    </message>
    <message>
        <source>Work</source>
        <comment>area per hour</comment>
        <translation>Ražīg.</translation>
    </message>
    <message>
        <source>Flow</source>
        <translation>Plūsma</translation>
    </message>
    <message>
        <source>Press.</source>
        <comment>pressure</comment>
        <translation>Spied.</translation>
    </message>
    <message>
        <source>Temp.</source>
        <comment>temperature</comment>
        <translation>Temp.</translation>
    </message>
    <message>
        <source>Driven</source>
        <translation>Nobraukts</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Pozīcija</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Laiks</translation>
    </message>
</context>
<context>
    <name>TilesPage</name>
    <message>
        <source>Back to the first choice</source>
        <translation>Atpakaļ uz sākuma izvēli</translation>
    </message>
    <message>
        <source>%1 further ahead</source>
        <translation>Pārvietot augšup: %1</translation>
    </message>
    <message>
        <source>Shown</source>
        <translation>Redzams</translation>
    </message>
    <message>
        <source>Hidden</source>
        <translation>Paslēpts</translation>
    </message>
</context>
<context>
    <name>Transfer</name>
    <message>
        <source>Nothing is imported: some settings were changed here and in the profile.</source>
        <translation>Nekas netika importēts: daži iestatījumi mainīti gan šeit, gan profilā.</translation>
    </message>
    <message>
        <source>No stick is plugged in.</source>
        <translation>USB disks nav pievienots.</translation>
    </message>
    <message>
        <source>The stick was removed before everything was on it.</source>
        <translation>USB disks tika izņemts, pirms viss bija tajā ierakstīts.</translation>
    </message>
    <message>
        <source>The stick could not be written to the end.</source>
        <translation>USB diskā neizdevās ierakstīt līdz galam.</translation>
    </message>
    <message>
        <source>The folder %1 cannot be made.</source>
        <translation>Mapi %1 nevar izveidot.</translation>
    </message>
    <message>
        <source>The file %1 cannot be written.</source>
        <translation>Failu %1 nevar ierakstīt.</translation>
    </message>
    <message>
        <source>The logs are on the stick (files: %1).</source>
        <translation>Žurnāli ir USB diskā (faili: %1).</translation>
    </message>
    <message>
        <source>The profile cannot be used. %1</source>
        <translation>Profilu nevar izmantot. %1</translation>
    </message>
    <message>
        <source>Nothing is imported. %1</source>
        <translation>Nekas netika importēts. %1</translation>
    </message>
    <message>
        <source>This display</source>
        <translation>Šis displejs</translation>
    </message>
    <message>
        <source>Another display</source>
        <translation>Cits displejs</translation>
    </message>
    <message>
        <source>The profile is not on the stick. %1</source>
        <translation>Profila nav USB diskā. %1</translation>
    </message>
    <message>
        <source>The profile is on the stick: %1.</source>
        <translation>Profils ir USB diskā: %1.</translation>
    </message>
    <message>
        <source>The file for support is not on the stick. %1</source>
        <translation>Faila atbalstam nav USB diskā. %1</translation>
    </message>
    <message>
        <source>The file for support is on the stick: %1.</source>
        <translation>Fails atbalstam ir USB diskā: %1.</translation>
    </message>
    <message>
        <source>The profile is imported (settings changed: %1).</source>
        <translation>Profils importēts (mainītie iestatījumi: %1).</translation>
    </message>
    <message>
        <source>It cannot be used.</source>
        <translation>Nevar izmantot.</translation>
    </message>
</context>
<context>
    <name>TransferState</name>
    <message>
        <source>Reading</source>
        <translation>Lasa</translation>
    </message>
    <message>
        <source>Writing</source>
        <translation>Raksta</translation>
    </message>
    <message>
        <source>Leave the stick where it is until this is done.</source>
        <translation>Neizņemt USB disku, līdz darbība ir pabeigta.</translation>
    </message>
</context>
<context>
    <name>WorkPage</name>
    <message>
        <source>Waiting for a position</source>
        <translation>Gaida pozīciju</translation>
    </message>
    <message>
        <source>Map</source>
        <translation>Karte</translation>
    </message>
</context>
<context>
    <name>WorkingButton</name>
    <message>
        <source>Working</source>
        <translation>Strādā</translation>
    </message>
    <message>
        <source>Not working</source>
        <translation>Nestrādā</translation>
    </message>
    <message>
        <source>Working. Switch the implement off</source>
        <translation>Strādā. Izslēgt agregātu</translation>
    </message>
    <message>
        <source>Not working. Switch the implement on</source>
        <translation>Nestrādā. Ieslēgt agregātu</translation>
    </message>
</context>
</TS>
