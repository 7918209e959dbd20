<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="hr" sourcelanguage="en">
<context>
    <name>About</name>
    <message>
        <source>Windows, files and connections</source>
        <translation>Prozori, datoteke i veze</translation>
    </message>
    <message>
        <source>The file of the settings</source>
        <translation>Datoteka postavki</translation>
    </message>
    <message>
        <source>Profiles of settings</source>
        <translation>Profili postavki</translation>
    </message>
    <message>
        <source>Files for support</source>
        <translation>Datoteke za podršku</translation>
    </message>
    <message>
        <source>Sunrise and sunset</source>
        <translation>Izlazak i zalazak sunca</translation>
    </message>
    <message>
        <source>Boundaries and zones</source>
        <translation>Granice i zone</translation>
    </message>
    <message>
        <source>Software</source>
        <translation>Softver</translation>
    </message>
    <message>
        <source>The software of this display</source>
        <translation>Softver ovog zaslona</translation>
    </message>
    <message>
        <source>Settings, units and logs</source>
        <translation>Postavke, jedinice i dnevnici</translation>
    </message>
</context>
<context>
    <name>Clock</name>
    <message>
        <source>The clock of the machine; nothing has set it.</source>
        <translation>Sat uređaja; nije podešen.</translation>
    </message>
    <message>
        <source>The clock was set by hand.</source>
        <translation>Sat je podešen ručno.</translation>
    </message>
    <message>
        <source>The receiver sets the clock.</source>
        <translation>Prijamnik podešava sat.</translation>
    </message>
    <message>
        <source>There is no such date or time.</source>
        <translation>Takav datum ili takvo vrijeme ne postoji.</translation>
    </message>
    <message>
        <source>The date is more than 68 years from the clock of the machine.</source>
        <translation>Datum je više od 68 godina udaljen od sata uređaja.</translation>
    </message>
    <message>
        <source>The clock could not be stored.</source>
        <translation>Vrijeme sata nije se moglo spremiti.</translation>
    </message>
</context>
<context>
    <name>ClockEntry</name>
    <message>
        <source>Year</source>
        <translation>Godina</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>Mjesec</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Dan</translation>
    </message>
    <message>
        <source>Hour</source>
        <translation>Sat</translation>
    </message>
    <message>
        <source>Minute</source>
        <translation>Minuta</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>Datum i vrijeme</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Vrijeme</translation>
    </message>
    <message>
        <source>%1: more</source>
        <translation>%1: više</translation>
    </message>
    <message>
        <source>%1: less</source>
        <translation>%1: manje</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Odustani</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>Postavi</translation>
    </message>
</context>
<context>
    <name>ColorBar</name>
    <message>
        <source>%1: less</source>
        <translation>%1: manje</translation>
    </message>
    <message>
        <source>%1: more</source>
        <translation>%1: više</translation>
    </message>
</context>
<context>
    <name>ColorPage</name>
    <message>
        <source>Former</source>
        <translation>Prijašnja</translation>
    </message>
    <message>
        <source>Former colour</source>
        <translation>Prijašnja boja</translation>
    </message>
    <message>
        <source>First value</source>
        <translation>Početna</translation>
    </message>
    <message>
        <source>Digits of the colour</source>
        <translation>Znamenke boje</translation>
    </message>
    <message>
        <source>Hue</source>
        <translation>Ton</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Zasićenost</translation>
    </message>
    <message>
        <source>Lightness</source>
        <translation>Svjetlina</translation>
    </message>
</context>
<context>
    <name>ColorsPage</name>
    <message>
        <source>Day</source>
        <translation>Dan</translation>
    </message>
    <message>
        <source>Night</source>
        <translation>Noć</translation>
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
        <translation>%1, premalo: najmanje %2</translation>
    </message>
</context>
<context>
    <name>Difference</name>
    <message>
        <source>Changed on both sides</source>
        <translation>Izmijenjeno na obje strane</translation>
    </message>
    <message>
        <source>Here</source>
        <translation>Ovdje</translation>
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
        <translation>Ponovno pokreni</translation>
    </message>
    <message>
        <source>The fonts of the display</source>
        <translation>Fontovi zaslona</translation>
    </message>
    <message>
        <source>The keyboard on the screen</source>
        <translation>Tipkovnica na zaslonu</translation>
    </message>
</context>
<context>
    <name>DoorBand</name>
    <message>
        <source>Work</source>
        <translation>Rad</translation>
    </message>
    <message>
        <source>Fields</source>
        <translation>Parcele</translation>
    </message>
    <message>
        <source>Receiver</source>
        <translation>Prijamnik</translation>
    </message>
    <message>
        <source>Logs</source>
        <translation>Dnevnici</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Postavke</translation>
    </message>
</context>
<context>
    <name>Drives</name>
    <message>
        <source>%1 free of %2</source>
        <translation>slobodno %1 od %2</translation>
    </message>
    <message>
        <source>Not known</source>
        <translation>Nepoznato</translation>
    </message>
    <message>
        <source>No stick</source>
        <translation>Nema sticka</translation>
    </message>
</context>
<context>
    <name>FieldsPage</name>
    <message>
        <source>Clients</source>
        <translation>Klijenti</translation>
    </message>
    <message>
        <source>New client</source>
        <translation>Novi klijent</translation>
    </message>
    <message>
        <source>No client yet.</source>
        <translation>Još nema klijenata.</translation>
    </message>
    <message>
        <source>Farms</source>
        <translation>Gospodarstva</translation>
    </message>
    <message>
        <source>New farm</source>
        <translation>Novo gospodarstvo</translation>
    </message>
    <message>
        <source>No farm yet.</source>
        <translation>Još nema gospodarstava.</translation>
    </message>
    <message>
        <source>Fields</source>
        <translation>Parcele</translation>
    </message>
    <message>
        <source>New field</source>
        <translation>Nova parcela</translation>
    </message>
    <message>
        <source>No field yet.</source>
        <translation>Još nema parcela.</translation>
    </message>
    <message>
        <source>Jobs</source>
        <translation>Zadaci</translation>
    </message>
    <message>
        <source>New job</source>
        <translation>Novi zadatak</translation>
    </message>
    <message>
        <source>No job yet.</source>
        <translation>Još nema zadataka.</translation>
    </message>
    <message>
        <source>Remove %1 with everything in it?</source>
        <translation>Ukloniti %1 sa svim sadržajem?</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Rename or remove %1</source>
        <translation>Preimenuj ili ukloni: %1</translation>
    </message>
    <message>
        <source>Rename %1</source>
        <translation>Preimenuj: %1</translation>
    </message>
    <message>
        <source>Remove everything</source>
        <translation>Ukloni sve</translation>
    </message>
</context>
<context>
    <name>Host</name>
    <message>
        <source>Details for the support: %1</source>
        <translation>Pojedinosti za podršku: %1</translation>
    </message>
    <message>
        <source>%3 Try: %4</source>
        <translation>%3 Prijedlog: %4</translation>
    </message>
    <message>
        <source>This name is not possible.</source>
        <translation>Ovo ime nije moguće.</translation>
    </message>
    <message>
        <source>The name is empty.</source>
        <translation>Ime je prazno.</translation>
    </message>
    <message>
        <source>This name stands for another folder.</source>
        <translation>Ovo ime označava drugu mapu.</translation>
    </message>
    <message>
        <source>The name must not contain %1.</source>
        <translation>Ime ne smije sadržavati %1.</translation>
    </message>
    <message>
        <source>The name contains a sign that cannot be seen.</source>
        <translation>Ime sadrži nevidljiv znak.</translation>
    </message>
    <message>
        <source>The name contains a sign that is not complete.</source>
        <translation>Ime sadrži nepotpun znak.</translation>
    </message>
    <message>
        <source>The name must not end in a full stop or a blank.</source>
        <translation>Ime ne smije završavati točkom ili razmakom.</translation>
    </message>
    <message>
        <source>The name must not begin with a blank.</source>
        <translation>Ime ne smije počinjati razmakom.</translation>
    </message>
    <message>
        <source>A stick cannot hold a file with this name.</source>
        <translation>Stick ne može sadržavati datoteku s ovim imenom.</translation>
    </message>
    <message>
        <source>The name is too long.</source>
        <translation>Ime je predugo.</translation>
    </message>
    <message>
        <source>%2 exists already.</source>
        <translation>Već postoji: %2.</translation>
    </message>
    <message numerus="yes">
        <source>%2 is active and holds %n file(s).</source>
        <translation>
            <numerusform>Aktivno: %2, sadrži %n datoteku.</numerusform>
            <numerusform>Aktivno: %2, sadrži %n datoteke.</numerusform>
            <numerusform>Aktivno: %2, sadrži %n datoteka.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%2 holds %n file(s).</source>
        <translation>
            <numerusform>%2: sadrži %n datoteku.</numerusform>
            <numerusform>%2: sadrži %n datoteke.</numerusform>
            <numerusform>%2: sadrži %n datoteka.</numerusform>
        </translation>
    </message>
    <message>
        <source>%2 is active.</source>
        <translation>Aktivno: %2.</translation>
    </message>
    <message>
        <source>%2 is no longer there.</source>
        <translation>Više ne postoji: %2.</translation>
    </message>
    <message>
        <source>A stick cannot tell %2 from %3.</source>
        <translation>Stick ne razlikuje %2 od %3.</translation>
    </message>
    <message>
        <source>Another program is working on the fields. Try again later.</source>
        <translation>Drugi program radi s parcelama. Pokušati ponovno kasnije.</translation>
    </message>
    <message>
        <source>The selection could not be stored.</source>
        <translation>Odabir se nije mogao spremiti.</translation>
    </message>
    <message>
        <source>%1 is neither a file nor a folder.</source>
        <translation>%1 nije ni datoteka ni mapa.</translation>
    </message>
    <message>
        <source>The file was edited or is damaged.</source>
        <translation>Datoteka je mijenjana ili je oštećena.</translation>
    </message>
    <message>
        <source>%1 cannot be read. %2</source>
        <translation>Čitanje nije uspjelo: %1. %2</translation>
    </message>
    <message>
        <source>The file is of another kind.</source>
        <translation>Datoteka je druge vrste.</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>Datoteka je prazna.</translation>
    </message>
    <message>
        <source>The end of the file is missing.</source>
        <translation>Nedostaje kraj datoteke.</translation>
    </message>
    <message>
        <source>The file is damaged.</source>
        <translation>Datoteka je oštećena.</translation>
    </message>
    <message>
        <source>The file is not complete.</source>
        <translation>Datoteka nije potpuna.</translation>
    </message>
    <message>
        <source>The file is from another version of the software.</source>
        <translation>Datoteka je iz druge verzije softvera.</translation>
    </message>
    <message>
        <source>The file has a value that is not possible: %2</source>
        <translation>Datoteka ima nemoguću vrijednost: %2</translation>
    </message>
    <message>
        <source>The file has a value twice: %2</source>
        <translation>Postavka je u datoteci dvaput: %2</translation>
    </message>
    <message>
        <source>This address is not possible: %1</source>
        <translation>Ova adresa nije moguća: %1</translation>
    </message>
    <message>
        <source>The device is not there.</source>
        <translation>Uređaj nije povezan.</translation>
    </message>
    <message>
        <source>It is not permitted, or another program uses it.</source>
        <translation>Nije dopušteno ili je u uporabi u drugom programu.</translation>
    </message>
    <message>
        <source>Another program uses it.</source>
        <translation>U uporabi u drugom programu.</translation>
    </message>
    <message>
        <source>It cannot be read.</source>
        <translation>Ne može se čitati.</translation>
    </message>
    <message>
        <source>It was unplugged.</source>
        <translation>Utikač je izvučen.</translation>
    </message>
    <message>
        <source>It is not a serial device, or it cannot have this speed.</source>
        <translation>Nije serijski uređaj ili ne može imati ovu brzinu.</translation>
    </message>
    <message>
        <source>The serial port has a fault (number %1).</source>
        <translation>Serijski priključak ima grešku (broj %1).</translation>
    </message>
    <message>
        <source>%1 is damaged or of another kind.</source>
        <translation>Oštećeno ili druge vrste: %1.</translation>
    </message>
    <message>
        <source>%1 is from another version of the software.</source>
        <translation>Iz druge verzije softvera: %1.</translation>
    </message>
    <message>
        <source>%1 is damaged.</source>
        <translation>Oštećeno: %1.</translation>
    </message>
    <message>
        <source>%1 has other coordinates than WGS84.</source>
        <translation>Koordinate nisu WGS84: %1.</translation>
    </message>
    <message>
        <source>%1 is not complete. %2 is missing.</source>
        <translation>Nepotpuno: %1. Nedostaje: %2.</translation>
    </message>
    <message>
        <source>%1 has no areas.</source>
        <translation>Ne sadrži površine: %1.</translation>
    </message>
    <message>
        <source>Another program uses %1.</source>
        <translation>U uporabi u drugom programu: %1.</translation>
    </message>
    <message>
        <source>A and B are too close together or too far apart.</source>
        <translation>A i B su preblizu ili predaleko jedno od drugoga.</translation>
    </message>
    <message>
        <source>Another program has locked it.</source>
        <translation>Zaključano u drugom programu.</translation>
    </message>
    <message>
        <source>It is no longer there.</source>
        <translation>Više ne postoji.</translation>
    </message>
    <message>
        <source>%1 is no longer there.</source>
        <translation>Više ne postoji: %1.</translation>
    </message>
    <message>
        <source>%1 cannot be written. %2</source>
        <translation>Zapis nije uspio: %1. %2</translation>
    </message>
    <message>
        <source>%1 cannot be written.</source>
        <translation>Zapis nije uspio: %1.</translation>
    </message>
    <message>
        <source>The file of the settings has a fault (number %1).</source>
        <translation>Datoteka postavki ima grešku (broj %1).</translation>
    </message>
    <message>
        <source>%1 cannot be opened. %2</source>
        <translation>Otvaranje nije uspjelo: %1. %2</translation>
    </message>
    <message>
        <source>%1 cannot be created. %2</source>
        <translation>Stvaranje nije uspjelo: %1. %2</translation>
    </message>
    <message>
        <source>%1 cannot be copied. %2</source>
        <translation>Kopiranje nije uspjelo: %1. %2</translation>
    </message>
    <message>
        <source>%1 cannot be renamed. %2</source>
        <translation>Preimenovanje nije uspjelo: %1. %2</translation>
    </message>
    <message>
        <source>%1 cannot be removed. %2</source>
        <translation>Uklanjanje nije uspjelo: %1. %2</translation>
    </message>
    <message>
        <source>The drive is full.</source>
        <translation>Disk je pun.</translation>
    </message>
    <message>
        <source>The drive has a fault.</source>
        <translation>Disk ima grešku.</translation>
    </message>
    <message>
        <source>The drive can only be read.</source>
        <translation>Disk se može samo čitati.</translation>
    </message>
    <message>
        <source>It is not permitted.</source>
        <translation>Nije dopušteno.</translation>
    </message>
    <message>
        <source>It cannot be opened.</source>
        <translation>Ne može se otvoriti.</translation>
    </message>
    <message>
        <source>It is damaged.</source>
        <translation>Oštećeno je.</translation>
    </message>
    <message>
        <source>It is not there.</source>
        <translation>Ne postoji.</translation>
    </message>
    <message>
        <source>It exists already.</source>
        <translation>Već postoji.</translation>
    </message>
    <message>
        <source>It is a folder.</source>
        <translation>To je mapa.</translation>
    </message>
    <message>
        <source>It is not a folder.</source>
        <translation>To nije mapa.</translation>
    </message>
    <message>
        <source>The folder is not empty.</source>
        <translation>Mapa nije prazna.</translation>
    </message>
    <message>
        <source>The file is too large.</source>
        <translation>Datoteka je prevelika.</translation>
    </message>
    <message>
        <source>Too many files are open.</source>
        <translation>Previše je datoteka otvoreno.</translation>
    </message>
    <message>
        <source>There is too little memory.</source>
        <translation>Nema dovoljno memorije.</translation>
    </message>
    <message>
        <source>It is not possible there.</source>
        <translation>Ondje to nije moguće.</translation>
    </message>
    <message>
        <source>The device refuses the connection.</source>
        <translation>Uređaj odbija vezu.</translation>
    </message>
    <message>
        <source>The device has closed the connection.</source>
        <translation>Uređaj je prekinuo vezu.</translation>
    </message>
    <message>
        <source>There is no device with this address.</source>
        <translation>Nema uređaja s ovom adresom.</translation>
    </message>
    <message>
        <source>The network cannot be reached.</source>
        <translation>Mreža nije dostupna.</translation>
    </message>
    <message>
        <source>The device does not answer.</source>
        <translation>Uređaj ne odgovara.</translation>
    </message>
    <message>
        <source>It is a link to another place.</source>
        <translation>To je poveznica na drugo mjesto.</translation>
    </message>
    <message>
        <source>There are too many links to it.</source>
        <translation>Previše poveznica vodi do toga.</translation>
    </message>
</context>
<context>
    <name>ItemActions</name>
    <message>
        <source>Rename</source>
        <translation>Preimenuj</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Ukloni</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Odustani</translation>
    </message>
</context>
<context>
    <name>ItemPage</name>
    <message>
        <source>New</source>
        <translation>Novo</translation>
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
        <translation>Najmanje %1 %2</translation>
    </message>
    <message>
        <source>At most %1 %2</source>
        <translation>Najviše %1 %2</translation>
    </message>
    <message>
        <source>This is not a number yet.</source>
        <translation>Ovo još nije broj.</translation>
    </message>
    <message>
        <source>Too large.
%1</source>
        <translation>Preveliko.
%1</translation>
    </message>
    <message>
        <source>Too small.
%1</source>
        <translation>Premalo.
%1</translation>
    </message>
    <message>
        <source>now %1</source>
        <translation>sada %1</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Odustani</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>Postavi</translation>
    </message>
    <message>
        <source>Decimal sign</source>
        <translation>Decimalni znak</translation>
    </message>
    <message>
        <source>Plus or minus</source>
        <translation>Plus ili minus</translation>
    </message>
    <message>
        <source>Remove the last sign</source>
        <translation>Ukloni zadnji znak</translation>
    </message>
    <message>
        <source>C</source>
        <comment>key that clears the entry</comment>
        <translation>C</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Izbriši</translation>
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
        <translation>Postavi A, prvi kraj linije, ovdje</translation>
    </message>
    <message>
        <source>B</source>
        <comment>the other end of the guidance line</comment>
        <translation>B</translation>
    </message>
    <message>
        <source>Set B, the other end of the line, here</source>
        <translation>Postavi B, drugi kraj linije, ovdje</translation>
    </message>
    <message>
        <source>Set a flag here</source>
        <translation>Postavi zastavicu ovdje</translation>
    </message>
</context>
<context>
    <name>LineChoice</name>
    <message>
        <source>New</source>
        <translation>Nova</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Odustani</translation>
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
        <translation>%1 ulijevo</translation>
    </message>
    <message>
        <source>%1 to the right</source>
        <translation>%1 udesno</translation>
    </message>
</context>
<context>
    <name>LockLayer</name>
    <message>
        <source>The screen is locked. Hold the button to unlock it.</source>
        <translation>Zaslon je zaključan. Za otključavanje držati tipku.</translation>
    </message>
    <message>
        <source>Unlock</source>
        <translation>Otključaj</translation>
    </message>
</context>
<context>
    <name>LogsPage</name>
    <message>
        <source>Logs</source>
        <translation>Dnevnici</translation>
    </message>
    <message>
        <source>Events</source>
        <translation>Događaji</translation>
    </message>
    <message>
        <source>Receiver</source>
        <translation>Prijamnik</translation>
    </message>
    <message>
        <source>Go on</source>
        <translation>Nastavi</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pauza</translation>
    </message>
    <message>
        <source>No line yet.</source>
        <translation>Još nema redaka.</translation>
    </message>
</context>
<context>
    <name>MachinePage</name>
    <message>
        <source>Implement width</source>
        <translation>Širina oruđa</translation>
    </message>
    <message>
        <source>Decides the guidance lines beside each other, and the area done</source>
        <translation>Određuje susjedne linije vođenja i obrađenu površinu</translation>
    </message>
    <message>
        <source>Implement behind the antenna</source>
        <translation>Oruđe iza antene</translation>
    </message>
    <message>
        <source>How far the ground is covered behind the vehicle&apos;s place</source>
        <translation>Koliko se daleko iza mjesta vozila obrađuje tlo</translation>
    </message>
</context>
<context>
    <name>Main</name>
    <message>
        <source>Cab display</source>
        <translation>Zaslon u kabini</translation>
    </message>
</context>
<context>
    <name>MapButtons</name>
    <message>
        <source>Zoom in</source>
        <translation>Povećaj</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Smanji</translation>
    </message>
    <message>
        <source>The heading is up. Turn north up</source>
        <translation>Smjer vožnje je gore. Okreni sjever gore</translation>
    </message>
    <message>
        <source>North is up. Turn the heading up</source>
        <translation>Sjever je gore. Okreni smjer vožnje gore</translation>
    </message>
    <message>
        <source>Centre the vehicle</source>
        <translation>Vozilo u sredinu</translation>
    </message>
</context>
<context>
    <name>NameEntry</name>
    <message>
        <source>Cancel</source>
        <translation>Odustani</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>Postavi</translation>
    </message>
</context>
<context>
    <name>PageTurner</name>
    <message>
        <source>Rows above</source>
        <translation>Retci iznad</translation>
    </message>
    <message>
        <source>Rows below</source>
        <translation>Retci ispod</translation>
    </message>
</context>
<context>
    <name>ParameterRow</name>
    <message>
        <source>%1: back to the first value</source>
        <translation>%1: natrag na početnu vrijednost</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Otvori</translation>
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
        <translation>apsolutna putanja koja završava s „/” i nije „/”</translation>
    </message>
    <message>
        <source>an absolute path</source>
        <translation>apsolutna putanja</translation>
    </message>
    <message>
        <source>a UUID in small letters, such as 6ba7b810-9dad-41d1-80b4-00c04fd430c8</source>
        <translation>UUID malim slovima, npr. 6ba7b810-9dad-41d1-80b4-00c04fd430c8</translation>
    </message>
    <message>
        <source>simulator, tcp://HOST:PORT, serial:///dev/NAME?baud=N or an absolute path</source>
        <translation>simulator, tcp://HOST:PORT, serial:///dev/NAME?baud=N ili apsolutna putanja</translation>
    </message>
    <message>
        <source>true or false</source>
        <translation>true ili false</translation>
    </message>
    <message>
        <source>a time in UTC, such as 2026-03-05T13:05:09Z</source>
        <translation>vrijeme u UTC, npr. 2026-03-05T13:05:09Z</translation>
    </message>
    <message>
        <source>a colour: #rrggbb, #aarrggbb or a name such as navy</source>
        <translation>boja: #rrggbb, #aarrggbb ili ime, npr. navy</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>od %1 do %2</translation>
    </message>
    <message>
        <source>Not a whole number.</source>
        <translation>Nije cijeli broj.</translation>
    </message>
    <message>
        <source>Below the least value.</source>
        <translation>Ispod najmanje vrijednosti.</translation>
    </message>
    <message>
        <source>Above the greatest value.</source>
        <translation>Iznad najveće vrijednosti.</translation>
    </message>
    <message>
        <source>This cannot be the name of a file. Try: %1</source>
        <translation>Datoteka se ne može tako zvati. Prijedlog: %1</translation>
    </message>
    <message>
        <source>Not accepted. Expected: %1.</source>
        <translation>Nije prihvaćeno. Očekuje se: %1.</translation>
    </message>
    <message>
        <source>a name without %1</source>
        <translation>ime bez %1</translation>
    </message>
    <message>
        <source>a whole number</source>
        <translation>cijeli broj</translation>
    </message>
    <message>
        <source>At least %1</source>
        <translation>Najmanje %1</translation>
    </message>
</context>
<context>
    <name>Parameters</name>
    <message>
        <source>the operator has chosen the offset from UTC; GPS time keeps it instead of computing it</source>
        <translation>rukovatelj je odabrao pomak od UTC; GPS vrijeme ga zadržava umjesto da ga računa</translation>
    </message>
    <message>
        <source>metric units; otherwise US or English units</source>
        <translation>metričke jedinice; inače američke ili engleske</translation>
    </message>
    <message>
        <source>US measures when units are not metric; otherwise English measures</source>
        <translation>američke mjere kad jedinice nisu metričke; inače engleske</translation>
    </message>
    <message>
        <source>positions in degrees, minutes and seconds; otherwise in decimal degrees</source>
        <translation>položaji u stupnjevima, minutama i sekundama; inače u decimalnim stupnjevima</translation>
    </message>
    <message>
        <source>24-hour clock; otherwise 12 hours with am and pm</source>
        <translation>24-satni prikaz; inače 12 sati s am i pm</translation>
    </message>
    <message>
        <source>dates with the month before the day</source>
        <translation>datumi s mjesecom ispred dana</translation>
    </message>
    <message>
        <source>colours for day; otherwise for night</source>
        <translation>dnevne boje; inače noćne</translation>
    </message>
    <message>
        <source>the map turns with the vehicle; otherwise north is up</source>
        <translation>karta se okreće s vozilom; inače je sjever gore</translation>
    </message>
    <message>
        <source>unit of pressures</source>
        <translation>jedinica tlaka</translation>
    </message>
    <message>
        <source>unit of areas, and of rates per area</source>
        <translation>jedinica površine i normi po površini</translation>
    </message>
    <message>
        <source>unit of short distances: widths, offsets</source>
        <translation>jedinica malih udaljenosti: širine, pomaci</translation>
    </message>
    <message>
        <source>unit of granular volumes</source>
        <translation>jedinica volumena granulata</translation>
    </message>
    <message>
        <source>unit of granular densities</source>
        <translation>jedinica gustoće granulata</translation>
    </message>
    <message>
        <source>unit of liquid volumes, flows and rates</source>
        <translation>jedinica volumena, protoka i normi tekućine</translation>
    </message>
    <message>
        <source>language of the display&apos;s texts; a change needs a restart</source>
        <translation>jezik tekstova zaslona; promjena traži ponovno pokretanje</translation>
    </message>
    <message>
        <source>decimal point or comma; a change needs a restart</source>
        <translation>decimalna točka ili zarez; promjena traži ponovno pokretanje</translation>
    </message>
    <message>
        <source>when the colours switch between day and night: only by hand, at sunrise and sunset, or with the sun 6 degrees below the horizon</source>
        <translation>kad se boje mijenjaju između dana i noći: samo ručno, pri izlasku i zalasku sunca ili kad je sunce 6 stupnjeva ispod obzora</translation>
    </message>
    <message>
        <source>what set the display&apos;s clock</source>
        <translation>po čemu je podešen sat zaslona</translation>
    </message>
    <message>
        <source>local time less UTC, whole hours</source>
        <translation>lokalno vrijeme minus UTC, cijeli sati</translation>
    </message>
    <message>
        <source>local time less UTC, minutes beyond the hours, with the sign of the hours</source>
        <translation>lokalno vrijeme minus UTC, minute povrh sati, s predznakom sati</translation>
    </message>
    <message>
        <source>brightness of the lightbar at night</source>
        <translation>svjetlina svjetlosne trake noću</translation>
    </message>
    <message>
        <source>brightness of the screen at night</source>
        <translation>svjetlina zaslona noću</translation>
    </message>
    <message>
        <source>brightness of the button lights at night</source>
        <translation>jačina svjetla tipki noću</translation>
    </message>
    <message>
        <source>4: implements are kept in the folder of their vehicle; other numbers: in their own folder</source>
        <translation>4: oruđa su u mapi svojeg vozila; drugi brojevi: u vlastitoj mapi</translation>
    </message>
    <message>
        <source>number of the next file of the NMEA log</source>
        <translation>broj sljedeće datoteke NMEA dnevnika</translation>
    </message>
    <message>
        <source>number of the next file of the user log</source>
        <translation>broj sljedeće datoteke dnevnika rukovatelja</translation>
    </message>
    <message>
        <source>the display&apos;s clock less UTC</source>
        <translation>sat zaslona minus UTC</translation>
    </message>
    <message>
        <source>folder of the internal drive; by default in the data folder</source>
        <translation>mapa unutarnjeg diska; zadano u mapi podataka</translation>
    </message>
    <message>
        <source>mount point of the removable drive; by default in the data folder</source>
        <translation>točka montiranja prijenosnog diska; zadano u mapi podataka</translation>
    </message>
    <message>
        <source>the identity of the terminal, which its profiles carry</source>
        <translation>oznaka terminala, koju nose njegovi profili</translation>
    </message>
    <message>
        <source>where the sentences of the receiver come from</source>
        <translation>odakle dolaze poruke prijamnika</translation>
    </message>
    <message>
        <source>the figures beside the map, in this order</source>
        <translation>vrijednosti uz kartu, ovim redom</translation>
    </message>
    <message>
        <source>the newest time of a receiver, as of the last day on which one was seen</source>
        <translation>najnovije vrijeme prijamnika, od zadnjeg dana s prijamnikom</translation>
    </message>
    <message>
        <source>when the sun switched the colours last</source>
        <translation>kad je sunce zadnji put promijenilo boje</translation>
    </message>
    <message>
        <source>the active job</source>
        <translation>aktivni zadatak</translation>
    </message>
    <message>
        <source>the active boundary</source>
        <translation>aktivna granica</translation>
    </message>
    <message>
        <source>the active straight guidance line</source>
        <translation>aktivna ravna linija vođenja</translation>
    </message>
    <message>
        <source>the active pivot</source>
        <translation>aktivni krug</translation>
    </message>
    <message>
        <source>the active guidance curve</source>
        <translation>aktivna krivulja vođenja</translation>
    </message>
    <message>
        <source>the active shape file of optimal lines</source>
        <translation>aktivna shape datoteka optimalnih linija</translation>
    </message>
    <message>
        <source>the active shape file of project lines</source>
        <translation>aktivna shape datoteka linija projekta</translation>
    </message>
    <message>
        <source>the active shape file of zones</source>
        <translation>aktivna shape datoteka zona</translation>
    </message>
    <message>
        <source>the active steering profile</source>
        <translation>aktivni profil upravljanja</translation>
    </message>
    <message>
        <source>the active implement</source>
        <translation>aktivno oruđe</translation>
    </message>
    <message>
        <source>the active vehicle</source>
        <translation>aktivno vozilo</translation>
    </message>
    <message>
        <source>the active sprayer</source>
        <translation>aktivna prskalica</translation>
    </message>
    <message>
        <source>the active boom leveller</source>
        <translation>aktivna nivelacija krila</translation>
    </message>
    <message>
        <source>the active client</source>
        <translation>aktivni klijent</translation>
    </message>
    <message>
        <source>the active farm</source>
        <translation>aktivno gospodarstvo</translation>
    </message>
    <message>
        <source>the active field</source>
        <translation>aktivna parcela</translation>
    </message>
    <message>
        <source>Measures</source>
        <translation>Mjerni sustav</translation>
    </message>
    <message>
        <source>Gallons and bushels</source>
        <translation>Galoni i bušeli</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>Površina</translation>
    </message>
    <message>
        <source>Pressure</source>
        <translation>Tlak</translation>
    </message>
    <message>
        <source>Short distances</source>
        <translation>Male udaljenosti</translation>
    </message>
    <message>
        <source>Liquid</source>
        <translation>Tekućina</translation>
    </message>
    <message>
        <source>Granular volume</source>
        <translation>Volumen granulata</translation>
    </message>
    <message>
        <source>Granular density</source>
        <translation>Gustoća granulata</translation>
    </message>
    <message>
        <source>Positions</source>
        <translation>Položaji</translation>
    </message>
    <message>
        <source>Rate per travel</source>
        <translation>Norma po putu</translation>
    </message>
    <message>
        <source>Basis of rates</source>
        <translation>Osnova normi</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Jezik</translation>
    </message>
    <message>
        <source>Decimal sign</source>
        <translation>Decimalni znak</translation>
    </message>
    <message>
        <source>Time of day</source>
        <translation>Format vremena</translation>
    </message>
    <message>
        <source>Dates</source>
        <translation>Datumi</translation>
    </message>
    <message>
        <source>Time zone set by hand</source>
        <translation>Vremenska zona ručno</translation>
    </message>
    <message>
        <source>Time zone, hours</source>
        <translation>Vremenska zona, sati</translation>
    </message>
    <message>
        <source>Time zone, minutes</source>
        <translation>Vremenska zona, minute</translation>
    </message>
    <message>
        <source>Clock less UTC</source>
        <translation>Sat minus UTC</translation>
    </message>
    <message>
        <source>Source of the time</source>
        <translation>Izvor vremena</translation>
    </message>
    <message>
        <source>Source of the time since</source>
        <translation>Izvor vremena, otkad</translation>
    </message>
    <message>
        <source>Newest receiver time</source>
        <translation>Najnovije vrijeme prijamnika</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>Boje</translation>
    </message>
    <message>
        <source>Day and night</source>
        <translation>Dan i noć</translation>
    </message>
    <message>
        <source>Map direction</source>
        <translation>Smjer karte</translation>
    </message>
    <message>
        <source>Tiles</source>
        <translation>Pločice</translation>
    </message>
    <message>
        <source>Light bar at night</source>
        <translation>Svjetlosna traka noću</translation>
    </message>
    <message>
        <source>Screen at night</source>
        <translation>Zaslon noću</translation>
    </message>
    <message>
        <source>Button lights at night</source>
        <translation>Svjetlo tipki noću</translation>
    </message>
    <message>
        <source>Switched by the sun</source>
        <translation>Promijenjeno prema suncu</translation>
    </message>
    <message>
        <source>Client</source>
        <translation>Klijent</translation>
    </message>
    <message>
        <source>Farm</source>
        <translation>Gospodarstvo</translation>
    </message>
    <message>
        <source>Field</source>
        <translation>Parcela</translation>
    </message>
    <message>
        <source>Job</source>
        <translation>Zadatak</translation>
    </message>
    <message>
        <source>Vehicle</source>
        <translation>Vozilo</translation>
    </message>
    <message>
        <source>Implement</source>
        <translation>Oruđe</translation>
    </message>
    <message>
        <source>Sprayer</source>
        <translation>Prskalica</translation>
    </message>
    <message>
        <source>Boom leveller</source>
        <translation>Nivelacija krila</translation>
    </message>
    <message>
        <source>Steering profile</source>
        <translation>Profil upravljanja</translation>
    </message>
    <message>
        <source>Boundary</source>
        <translation>Granica</translation>
    </message>
    <message>
        <source>A-B line</source>
        <translation>A-B linija</translation>
    </message>
    <message>
        <source>Pivot</source>
        <translation>Krug</translation>
    </message>
    <message>
        <source>Curve</source>
        <translation>Krivulja</translation>
    </message>
    <message>
        <source>Optimal lines</source>
        <translation>Optimalne linije</translation>
    </message>
    <message>
        <source>Project lines</source>
        <translation>Linije projekta</translation>
    </message>
    <message>
        <source>Zones</source>
        <translation>Zone</translation>
    </message>
    <message>
        <source>Receiver address</source>
        <translation>Adresa prijamnika</translation>
    </message>
    <message>
        <source>Internal drive</source>
        <translation>Unutarnji disk</translation>
    </message>
    <message>
        <source>Stick</source>
        <translation>Stick</translation>
    </message>
    <message>
        <source>Implement folder</source>
        <translation>Mapa oruđa</translation>
    </message>
    <message>
        <source>Next NMEA log</source>
        <translation>Sljedeći NMEA dnevnik</translation>
    </message>
    <message>
        <source>Next user log</source>
        <translation>Sljedeći dnevnik rukovatelja</translation>
    </message>
    <message>
        <source>Identity</source>
        <translation>Oznaka</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Tekst</translation>
    </message>
    <message>
        <source>Colour of texts</source>
        <translation>Boja tekstova</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Naslov</translation>
    </message>
    <message>
        <source>Colour of titles</source>
        <translation>Boja naslova</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Pozadina</translation>
    </message>
    <message>
        <source>Colour of the background</source>
        <translation>Boja pozadine</translation>
    </message>
    <message>
        <source>Button</source>
        <translation>Tipka</translation>
    </message>
    <message>
        <source>Colour of buttons</source>
        <translation>Boja tipki</translation>
    </message>
    <message>
        <source>Button text</source>
        <translation>Tekst tipke</translation>
    </message>
    <message>
        <source>Colour of texts on buttons</source>
        <translation>Boja teksta na tipkama</translation>
    </message>
    <message>
        <source>Map</source>
        <translation>Karta</translation>
    </message>
    <message>
        <source>Colour of the map&apos;s ground</source>
        <translation>Boja podloge karte</translation>
    </message>
    <message>
        <source>Grid</source>
        <translation>Mreža</translation>
    </message>
    <message>
        <source>Colour of the map&apos;s grid</source>
        <translation>Boja mreže karte</translation>
    </message>
    <message>
        <source>Coverage</source>
        <translation>Obrađeno</translation>
    </message>
    <message>
        <source>Colour of covered ground</source>
        <translation>Boja obrađene površine</translation>
    </message>
    <message>
        <source>Vehicle on the map</source>
        <translation>Vozilo na karti</translation>
    </message>
    <message>
        <source>Colour of the vehicle</source>
        <translation>Boja vozila</translation>
    </message>
    <message>
        <source>Guidance line</source>
        <translation>Linija vođenja</translation>
    </message>
    <message>
        <source>Colour of the guidance line</source>
        <translation>Boja linije vođenja</translation>
    </message>
    <message>
        <source>Cross hairs</source>
        <translation>Križić</translation>
    </message>
    <message>
        <source>Colour of the cross hairs</source>
        <translation>Boja križića</translation>
    </message>
    <message>
        <source>Outer boundary</source>
        <translation>Vanjska granica</translation>
    </message>
    <message>
        <source>Colour of the outer boundary of the field</source>
        <translation>Boja vanjske granice parcele</translation>
    </message>
    <message>
        <source>Inner boundary</source>
        <translation>Unutarnja granica</translation>
    </message>
    <message>
        <source>Colour of boundaries within the field</source>
        <translation>Boja granica unutar parcele</translation>
    </message>
    <message>
        <source>Other boundaries</source>
        <translation>Druge granice</translation>
    </message>
    <message>
        <source>Colour of boundaries that are not active</source>
        <translation>Boja neaktivnih granica</translation>
    </message>
    <message>
        <source>Exclusion zone</source>
        <translation>Zabranjena zona</translation>
    </message>
    <message>
        <source>Colour of zones to keep out of</source>
        <translation>Boja zabranjenih zona</translation>
    </message>
    <message>
        <source>Background picture</source>
        <translation>Slika pozadine</translation>
    </message>
    <message>
        <source>Number of the background picture</source>
        <translation>Broj slike pozadine</translation>
    </message>
    <message>
        <source>what the sprayer&apos;s rates are related to</source>
        <translation>na što se odnose norme prskalice</translation>
    </message>
    <message>
        <source>liquid rates per 100 m or 100 yd of travel, while travel is their basis</source>
        <translation>norme tekućine na 100 m ili 100 jarda puta, dok im je put osnova</translation>
    </message>
    <message>
        <source>since when the clock has its time from there</source>
        <translation>otkad sat ima vrijeme odande</translation>
    </message>
    <message>
        <source>Metric</source>
        <translation>Metrički</translation>
    </message>
    <message>
        <source>US or English</source>
        <translation>US ili engleski</translation>
    </message>
    <message>
        <source>US</source>
        <translation>US</translation>
    </message>
    <message>
        <source>English</source>
        <translation>Engleski</translation>
    </message>
    <message>
        <source>Deg., min., s</source>
        <translation>Stup., min., s</translation>
    </message>
    <message>
        <source>Degrees</source>
        <translation>Stupnjevi</translation>
    </message>
    <message>
        <source>24 hours</source>
        <translation>24 sata</translation>
    </message>
    <message>
        <source>am, pm</source>
        <translation>am, pm</translation>
    </message>
    <message>
        <source>Month first</source>
        <translation>Prvo mjesec</translation>
    </message>
    <message>
        <source>Day first</source>
        <translation>Prvo dan</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Dan</translation>
    </message>
    <message>
        <source>Night</source>
        <translation>Noć</translation>
    </message>
    <message>
        <source>Heading up</source>
        <translation>Smjer vožnje</translation>
    </message>
    <message>
        <source>North up</source>
        <translation>Sjever gore</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Uklj.</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Isklj.</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Da</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Ne</translation>
    </message>
    <message>
        <source>Travel</source>
        <translation>Put</translation>
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
        <translation>Inč</translation>
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
        <translation>US bušel</translation>
    </message>
    <message>
        <source>UK bushel</source>
        <translation>UK bušel</translation>
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
        <translation>Točka</translation>
    </message>
    <message>
        <source>Comma</source>
        <translation>Zarez</translation>
    </message>
    <message>
        <source>By hand</source>
        <translation>Ručno</translation>
    </message>
    <message>
        <source>Sunset</source>
        <translation>Zalazak sunca</translation>
    </message>
    <message>
        <source>Twilight</source>
        <translation>Sumrak</translation>
    </message>
    <message>
        <source>Not set</source>
        <translation>Nije podešeno</translation>
    </message>
    <message>
        <source>Operator</source>
        <translation>Rukovatelj</translation>
    </message>
    <message>
        <source>Receiver</source>
        <translation>Prijamnik</translation>
    </message>
    <message>
        <source>Rate</source>
        <translation>Norma</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Brzina</translation>
    </message>
    <message>
        <source>Area done</source>
        <translation>Obrađeno</translation>
    </message>
    <message>
        <source>Area left</source>
        <translation>Preostalo</translation>
    </message>
    <message>
        <source>Productivity</source>
        <translation>Učinak</translation>
    </message>
    <message>
        <source>Flow</source>
        <translation>Protok</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperatura</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>Udaljenost</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Položaj</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Vrijeme</translation>
    </message>
    <message>
        <source>Units</source>
        <translation>Jedinice</translation>
    </message>
    <message>
        <source>Rates</source>
        <translation>Norme</translation>
    </message>
    <message>
        <source>Region</source>
        <translation>Regija</translation>
    </message>
    <message>
        <source>Clock</source>
        <translation>Sat</translation>
    </message>
    <message>
        <source>Colours of the schemes</source>
        <translation>Boje shema</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Zaslon</translation>
    </message>
    <message>
        <source>Selections</source>
        <translation>Odabir</translation>
    </message>
    <message>
        <source>Storage</source>
        <translation>Pohrana</translation>
    </message>
    <message>
        <source>Logs</source>
        <translation>Dnevnici</translation>
    </message>
    <message>
        <source>Terminal</source>
        <translation>Terminal</translation>
    </message>
    <message>
        <source>%1, by day</source>
        <translation>%1, danju</translation>
    </message>
    <message>
        <source>%1, by night</source>
        <translation>%1, noću</translation>
    </message>
</context>
<context>
    <name>Problems</name>
    <message>
        <source>The logs lose lines: their drive is full or cannot be written.</source>
        <translation>Dnevnici gube retke: njihov je disk pun ili se na njega ne može pisati.</translation>
    </message>
    <message>
        <source>Recording is off, because there is too little room.</source>
        <translation>Snimanje je isključeno jer nema dovoljno mjesta.</translation>
    </message>
    <message>
        <source>Changes of settings are not stored yet. %1</source>
        <translation>Izmjene postavki još nisu spremljene. %1</translation>
    </message>
    <message>
        <source>The drive of the terminal is nearly full. Free: %1</source>
        <translation>Disk terminala gotovo je pun. Slobodno: %1</translation>
    </message>
</context>
<context>
    <name>ProfilePage</name>
    <message>
        <source>Import</source>
        <translation>Uvezi</translation>
    </message>
    <message>
        <source>The display has these settings already.</source>
        <translation>Zaslon već ima ove postavke.</translation>
    </message>
    <message>
        <source>Changed here and in the profile</source>
        <translation>Izmijenjeno ovdje i u profilu</translation>
    </message>
    <message>
        <source>Which value the settings below shall have</source>
        <translation>Koju vrijednost dobivaju postavke ispod</translation>
    </message>
    <message>
        <source>Ours</source>
        <translation>Sa zaslona</translation>
    </message>
    <message>
        <source>Theirs</source>
        <translation>Iz profila</translation>
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
        <translation>Izvezi</translation>
    </message>
    <message>
        <source>There is no profile on the stick.</source>
        <translation>Na sticku nema profila.</translation>
    </message>
    <message>
        <source>No stick is plugged in.</source>
        <translation>Stick nije umetnut.</translation>
    </message>
    <message>
        <source>Name of the profile</source>
        <translation>Ime profila</translation>
    </message>
</context>
<context>
    <name>Quantities</name>
    <message>
        <source>Area</source>
        <translation>Površina</translation>
    </message>
    <message>
        <source>Productivity</source>
        <translation>Učinak</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Brzina</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>Udaljenost</translation>
    </message>
    <message>
        <source>Small distance</source>
        <translation>Mala udaljenost</translation>
    </message>
    <message>
        <source>Travelled distance</source>
        <translation>Prijeđeni put</translation>
    </message>
    <message>
        <source>Altitude</source>
        <translation>Visina</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperatura</translation>
    </message>
    <message>
        <source>Pressure</source>
        <translation>Tlak</translation>
    </message>
    <message>
        <source>Rate</source>
        <translation>Norma</translation>
    </message>
    <message>
        <source>Requested rate</source>
        <translation>Zadana norma</translation>
    </message>
    <message>
        <source>Rate and error</source>
        <translation>Norma i odstupanje</translation>
    </message>
    <message>
        <source>Small rate</source>
        <translation>Mala norma</translation>
    </message>
    <message>
        <source>Flow</source>
        <translation>Protok</translation>
    </message>
    <message>
        <source>Small flow</source>
        <translation>Mali protok</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volumen</translation>
    </message>
    <message>
        <source>Small volume</source>
        <translation>Mali volumen</translation>
    </message>
    <message>
        <source>Granular volume</source>
        <translation>Volumen granulata</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>Masa</translation>
    </message>
    <message>
        <source>Weight per area</source>
        <translation>Masa po površini</translation>
    </message>
    <message>
        <source>Weight per area and error</source>
        <translation>Masa po površini i odstupanje</translation>
    </message>
    <message>
        <source>Discharge</source>
        <translation>Izbacivanje</translation>
    </message>
    <message>
        <source>Nitrogen</source>
        <translation>Dušik</translation>
    </message>
    <message>
        <source>Nitrogen per area</source>
        <translation>Dušik po površini</translation>
    </message>
    <message>
        <source>Seeds per area</source>
        <translation>Zrna po površini</translation>
    </message>
    <message>
        <source>Density</source>
        <translation>Gustoća</translation>
    </message>
    <message>
        <source>Granular density</source>
        <translation>Gustoća granulata</translation>
    </message>
    <message>
        <source>Volume per revolution</source>
        <translation>Volumen po okretaju</translation>
    </message>
    <message>
        <source>Weight per revolution</source>
        <translation>Masa po okretaju</translation>
    </message>
    <message>
        <source>Flow meter</source>
        <translation>Mjerač protoka</translation>
    </message>
    <message>
        <source>Wheel sensor</source>
        <translation>Senzor kotača</translation>
    </message>
    <message>
        <source>Speed sensor</source>
        <translation>Senzor brzine</translation>
    </message>
    <message>
        <source>Latitude</source>
        <translation>Geo. širina</translation>
    </message>
    <message>
        <source>Longitude</source>
        <translation>Geo. dužina</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Trajanje</translation>
    </message>
    <message>
        <source>Percent</source>
        <translation>Postotak</translation>
    </message>
</context>
<context>
    <name>Question</name>
    <message>
        <source>Cancel</source>
        <translation>Odustani</translation>
    </message>
</context>
<context>
    <name>RateTile</name>
    <message>
        <source>set %1</source>
        <comment>the rate that is set</comment>
        <translation>zadano %1</translation>
    </message>
</context>
<context>
    <name>Receiver</name>
    <message>
        <source>Off</source>
        <translation>Isklj.</translation>
    </message>
    <message>
        <source>Connecting</source>
        <translation>Povezivanje</translation>
    </message>
    <message>
        <source>Receiving</source>
        <translation>Prima</translation>
    </message>
    <message>
        <source>Silent</source>
        <translation>Bez podataka</translation>
    </message>
    <message>
        <source>Lost</source>
        <translation>Izgubljen</translation>
    </message>
    <message>
        <source>Ended</source>
        <translation>Završeno</translation>
    </message>
    <message>
        <source>No fix</source>
        <translation>Nema položaja</translation>
    </message>
    <message>
        <source>RTK float</source>
        <translation>RTK Float</translation>
    </message>
    <message>
        <source>Estimated</source>
        <translation>Procijenjeno</translation>
    </message>
    <message>
        <source>By hand</source>
        <translation>Ručno</translation>
    </message>
    <message>
        <source>Simulated</source>
        <translation>Simulirano</translation>
    </message>
    <message>
        <source>The receiver sends nothing.</source>
        <translation>Prijamnik ništa ne šalje.</translation>
    </message>
    <message>
        <source>The receiver is lost and is being looked for. %1</source>
        <translation>Prijamnik je izgubljen i traži se. %1</translation>
    </message>
    <message>
        <source>The receiver cannot be read. %1</source>
        <translation>Prijamnik se ne može čitati. %1</translation>
    </message>
    <message>
        <source>The simulated field is done.</source>
        <translation>Simulirana parcela je gotova.</translation>
    </message>
    <message>
        <source>The recording of the receiver is over.</source>
        <translation>Snimka prijamnika je završena.</translation>
    </message>
</context>
<context>
    <name>ReceiverPage</name>
    <message>
        <source>Receiver</source>
        <translation>Prijamnik</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Stop</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>Simulator</source>
        <translation>Simulator</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datoteka</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Mreža</translation>
    </message>
    <message>
        <source>Serial</source>
        <translation>Serijski</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adresa</translation>
    </message>
    <message>
        <source>Fix</source>
        <translation>Tip položaja</translation>
    </message>
    <message>
        <source>Age</source>
        <translation>Starost</translation>
    </message>
    <message>
        <source>Satellites</source>
        <translation>Sateliti</translation>
    </message>
    <message>
        <source>HDOP</source>
        <translation>HDOP</translation>
    </message>
    <message>
        <source>Time (UTC)</source>
        <translation>Vrijeme (UTC)</translation>
    </message>
    <message>
        <source>Lines</source>
        <translation>Retci</translation>
    </message>
    <message>
        <source>Sentences</source>
        <translation>Poruke</translation>
    </message>
    <message>
        <source>Bad checksums</source>
        <translation>Loš kontr. zbroj</translation>
    </message>
    <message>
        <source>Damaged lines</source>
        <translation>Oštećeni retci</translation>
    </message>
    <message>
        <source>Address of the receiver</source>
        <translation>Adresa prijamnika</translation>
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
        <translation>Vrijeme</translation>
    </message>
    <message>
        <source>Time zone</source>
        <translation>Vremenska zona</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>Datum i vrijeme</translation>
    </message>
    <message>
        <source>Set by hand</source>
        <translation>Podesi ručno</translation>
    </message>
</context>
<context>
    <name>SearchPage</name>
    <message>
        <source>Search</source>
        <translation>Traži</translation>
    </message>
    <message>
        <source>Words of a setting</source>
        <translation>Tražene riječi</translation>
    </message>
    <message>
        <source>No setting has these words.</source>
        <translation>Nijedna postavka nema te riječi.</translation>
    </message>
</context>
<context>
    <name>SettingsPage</name>
    <message>
        <source>Units</source>
        <translation>Jedinice</translation>
    </message>
    <message>
        <source>Region</source>
        <translation>Regija</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>Boje</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Zaslon</translation>
    </message>
    <message>
        <source>Machine</source>
        <translation>Stroj</translation>
    </message>
    <message>
        <source>Storage</source>
        <translation>Pohrana</translation>
    </message>
    <message>
        <source>About</source>
        <translation>O programu</translation>
    </message>
    <message>
        <source>Tiles</source>
        <translation>Pločice</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>Profili</translation>
    </message>
    <message>
        <source>All settings</source>
        <translation>Sve postavke</translation>
    </message>
</context>
<context>
    <name>SettingsPanel</name>
    <message>
        <source>Back</source>
        <translation>Natrag</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Traži</translation>
    </message>
</context>
<context>
    <name>Sizes</name>
    <message numerus="yes">
        <source>%n byte(s)</source>
        <translation>
            <numerusform>%n bajt</numerusform>
            <numerusform>%n bajta</numerusform>
            <numerusform>%n bajtova</numerusform>
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
        <translation>Nema zadatka</translation>
    </message>
    <message>
        <source>Receiver: %1</source>
        <translation>Prijamnik: %1</translation>
    </message>
    <message>
        <source>The stick is plugged in</source>
        <translation>Stick je umetnut</translation>
    </message>
    <message>
        <source>Lock the screen</source>
        <translation>Zaključaj zaslon</translation>
    </message>
    <message>
        <source>Colours of the night</source>
        <translation>Noćne boje</translation>
    </message>
    <message>
        <source>Colours of the day</source>
        <translation>Dnevne boje</translation>
    </message>
</context>
<context>
    <name>StoragePage</name>
    <message>
        <source>Open</source>
        <translation>Otvori</translation>
    </message>
    <message>
        <source>Internal drive</source>
        <translation>Unutarnji disk</translation>
    </message>
    <message>
        <source>Stick</source>
        <translation>Stick</translation>
    </message>
    <message>
        <source>No stick is plugged in.</source>
        <translation>Stick nije umetnut.</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Memorija</translation>
    </message>
    <message>
        <source>Logs</source>
        <translation>Dnevnici</translation>
    </message>
    <message>
        <source>Writes all log files to the stick</source>
        <translation>Zapisuje sve datoteke dnevnika na stick</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Izvezi</translation>
    </message>
    <message>
        <source>Export the logs</source>
        <translation>Izvezi dnevnike</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>Profili</translation>
    </message>
    <message>
        <source>Takes the settings to another display, or brings them back from the stick</source>
        <translation>Prenosi postavke na drugi zaslon ili ih vraća sa sticka</translation>
    </message>
    <message>
        <source>Open the profiles</source>
        <translation>Otvori profile</translation>
    </message>
    <message>
        <source>Support</source>
        <translation>Podrška</translation>
    </message>
    <message>
        <source>Writes logs, settings and versions in one file; without the names of clients, farms and fields</source>
        <translation>Zapisuje dnevnike, postavke i verzije u jednu datoteku; bez imena klijenata, gospodarstava i parcela</translation>
    </message>
    <message>
        <source>Write</source>
        <translation>Zapiši</translation>
    </message>
    <message>
        <source>Write the file for support without names</source>
        <translation>Zapiši datoteku za podršku bez imena</translation>
    </message>
    <message>
        <source>Support, with names</source>
        <translation>Podrška, s imenima</translation>
    </message>
    <message>
        <source>The same file, with all names and places</source>
        <translation>Ista datoteka, sa svim imenima i mjestima</translation>
    </message>
    <message>
        <source>Write the file for support with names</source>
        <translation>Zapiši datoteku za podršku s imenima</translation>
    </message>
</context>
<context>
    <name>TFieldTreeModel</name>
    <message>
        <source>A job holds no items.</source>
        <translation>Zadatak ne sadrži druge stavke.</translation>
    </message>
    <message>
        <source>There is one with this name already.</source>
        <translation>To ime već postoji.</translation>
    </message>
    <message numerus="yes">
        <source>%n file(s), %1</source>
        <translation>
            <numerusform>%n datoteka, %1</numerusform>
            <numerusform>%n datoteke, %1</numerusform>
            <numerusform>%n datoteka, %1</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>TParameter</name>
    <message>
        <source>The setting could not be written to the disk yet.</source>
        <translation>Postavka se još nije mogla zapisati na disk.</translation>
    </message>
    <message>
        <source>There is no value to set.</source>
        <translation>Nema vrijednosti za postavljanje.</translation>
    </message>
</context>
<context>
    <name>TRegionSettings</name>
    <message>
        <source>Jan</source>
        <translation>sij</translation>
    </message>
    <message>
        <source>Feb</source>
        <translation>velj</translation>
    </message>
    <message>
        <source>Mar</source>
        <translation>ožu</translation>
    </message>
    <message>
        <source>Apr</source>
        <translation>tra</translation>
    </message>
    <message>
        <source>May</source>
        <translation>svi</translation>
    </message>
    <message>
        <source>Jun</source>
        <translation>lip</translation>
    </message>
    <message>
        <source>Jul</source>
        <translation>srp</translation>
    </message>
    <message>
        <source>Aug</source>
        <translation>kol</translation>
    </message>
    <message>
        <source>Sep</source>
        <translation>ruj</translation>
    </message>
    <message>
        <source>Oct</source>
        <translation>lis</translation>
    </message>
    <message>
        <source>Nov</source>
        <translation>stu</translation>
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
        <translation>Novi jezik prikazuje se nakon ponovnog pokretanja.</translation>
    </message>
    <message>
        <source>The new decimal sign is shown after a restart.</source>
        <translation>Novi decimalni znak prikazuje se nakon ponovnog pokretanja.</translation>
    </message>
</context>
<context>
    <name>TSelections</name>
    <message>
        <source>The selection could not be stored.</source>
        <translation>Odabir se nije mogao spremiti.</translation>
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
        <translation>Nema vozila</translation>
    </message>
    <message>
        <source>No Profile</source>
        <translation>Nema profila</translation>
    </message>
    <message>
        <source>No Implement</source>
        <translation>Nema oruđa</translation>
    </message>
    <message>
        <source>Pivoted_</source>
        <translation>Vučeno_</translation>
    </message>
</context>
<context>
    <name>TTransfer</name>
    <message>
        <source>The name is empty.</source>
        <translation>Ime je prazno.</translation>
    </message>
</context>
<context>
    <name>TUnitAbbreviations</name>
    <message>
        <source>Jan</source>
        <translation>sij</translation>
    </message>
    <message>
        <source>Feb</source>
        <translation>velj</translation>
    </message>
    <message>
        <source>Mar</source>
        <translation>ožu</translation>
    </message>
    <message>
        <source>Apr</source>
        <translation>tra</translation>
    </message>
    <message>
        <source>May</source>
        <translation>svi</translation>
    </message>
    <message>
        <source>Jun</source>
        <translation>lip</translation>
    </message>
    <message>
        <source>Jul</source>
        <translation>srp</translation>
    </message>
    <message>
        <source>Aug</source>
        <translation>kol</translation>
    </message>
    <message>
        <source>Sep</source>
        <translation>ruj</translation>
    </message>
    <message>
        <source>Oct</source>
        <translation>lis</translation>
    </message>
    <message>
        <source>Nov</source>
        <translation>stu</translation>
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
        <translation>milja</translation>
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
        <translation>l/okr</translation>
    </message>
    <message>
        <source>gal/rev</source>
        <translation>gal/okr</translation>
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
        <translation>kg/okr</translation>
    </message>
    <message>
        <source>lb/rev</source>
        <translation>lb/okr</translation>
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
        <translation>tis.zrna/ha</translation>
    </message>
    <message>
        <source>KS/ac</source>
        <translation>tis.zrna/ac</translation>
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
        <translation>o/min</translation>
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
        <translation>Kritično</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normalno</translation>
    </message>
    <message>
        <source>Trivial</source>
        <translation>Nevažno</translation>
    </message>
</context>
<context>
    <name>TWork</name>
    <message>
        <source>An implement cannot have this width.</source>
        <translation>Oruđe ne može imati ovu širinu.</translation>
    </message>
    <message>
        <source>A file of this job cannot be used. %1</source>
        <translation>Datoteka ovog zadatka ne može se koristiti. %1</translation>
    </message>
    <message>
        <source>Coverage was not complete and was left out: strips %1, bytes %2</source>
        <translation>Podaci o obrađenoj površini nisu bili potpuni i izostavljeni su: traka %1, bajtova %2</translation>
    </message>
    <message>
        <source>The file of the flags is damaged; new flags are not stored.</source>
        <translation>Datoteka zastavica je oštećena; nove zastavice se ne spremaju.</translation>
    </message>
    <message>
        <source>A file could not be stored. %1</source>
        <translation>Datoteka se nije mogla spremiti. %1</translation>
    </message>
    <message>
        <source>The file of the implement cannot be used. %1</source>
        <translation>Datoteka oruđa ne može se koristiti. %1</translation>
    </message>
    <message>
        <source>There is no line.</source>
        <translation>Nema linije.</translation>
    </message>
    <message>
        <source>The line has no name.</source>
        <translation>Linija nema ime.</translation>
    </message>
    <message>
        <source>The guidance line cannot be used. %1</source>
        <translation>Linija vođenja ne može se koristiti. %1</translation>
    </message>
    <message>
        <source>No job is chosen</source>
        <translation>Nije odabran zadatak</translation>
    </message>
    <message>
        <source>No job is chosen: what is covered is not stored.</source>
        <translation>Nije odabran zadatak: obrađena površina se ne sprema.</translation>
    </message>
    <message>
        <source>The coverage of this job cannot be used: what is covered is not stored.</source>
        <translation>Podaci o obrađenoj površini u ovom zadatku ne mogu se koristiti: površina se ne sprema.</translation>
    </message>
    <message>
        <source>The coverage cannot be stored, and strips are lost: %1</source>
        <translation>Podaci o obrađenoj površini ne mogu se spremiti i trake se gube: %1</translation>
    </message>
    <message>
        <source>The coverage is kept in memory until it can be stored. %1</source>
        <translation>Podaci o obrađenoj površini ostaju u memoriji dok se ne spreme. %1</translation>
    </message>
    <message>
        <source>The job is still being read.</source>
        <translation>Zadatak se još učitava.</translation>
    </message>
</context>
<context>
    <name>TileTurner</name>
    <message>
        <source>Tiles</source>
        <translation>Pločice</translation>
    </message>
</context>
<context>
    <name>Tiles</name>
    <message>
        <source>Rate</source>
        <translation>Norma</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Brzina</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>Površina</translation>
    </message>
    <message>
        <source>Left</source>
        <comment>area that is left to work</comment>
        <translation>Ostatak</translation>
    </message>
    <message>
        <source>Work</source>
        <comment>area per hour</comment>
        <translation>Učinak</translation>
    </message>
    <message>
        <source>Flow</source>
        <translation>Protok</translation>
    </message>
    <message>
        <source>Press.</source>
        <comment>pressure</comment>
        <translation>Tlak</translation>
    </message>
    <message>
        <source>Temp.</source>
        <comment>temperature</comment>
        <translation>Temp.</translation>
    </message>
    <message>
        <source>Driven</source>
        <translation>Put</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Položaj</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Vrijeme</translation>
    </message>
</context>
<context>
    <name>TilesPage</name>
    <message>
        <source>Back to the first choice</source>
        <translation>Natrag na početni odabir</translation>
    </message>
    <message>
        <source>%1 further ahead</source>
        <translation>%1: pomakni naprijed</translation>
    </message>
    <message>
        <source>Shown</source>
        <translation>Prikazano</translation>
    </message>
    <message>
        <source>Hidden</source>
        <translation>Skriveno</translation>
    </message>
</context>
<context>
    <name>Transfer</name>
    <message>
        <source>Nothing is imported: some settings were changed here and in the profile.</source>
        <translation>Ništa nije uvezeno: neke su postavke izmijenjene i ovdje i u profilu.</translation>
    </message>
    <message>
        <source>No stick is plugged in.</source>
        <translation>Stick nije umetnut.</translation>
    </message>
    <message>
        <source>The stick was removed before everything was on it.</source>
        <translation>Stick je izvađen prije nego što je sve zapisano.</translation>
    </message>
    <message>
        <source>The stick could not be written to the end.</source>
        <translation>Zapisivanje na stick nije se moglo dovršiti.</translation>
    </message>
    <message>
        <source>The folder %1 cannot be made.</source>
        <translation>Mapa %1 ne može se stvoriti.</translation>
    </message>
    <message>
        <source>The file %1 cannot be written.</source>
        <translation>Datoteka %1 ne može se zapisati.</translation>
    </message>
    <message>
        <source>The logs are on the stick (files: %1).</source>
        <translation>Dnevnici su na sticku (datoteka: %1).</translation>
    </message>
    <message>
        <source>The profile cannot be used. %1</source>
        <translation>Profil se ne može koristiti. %1</translation>
    </message>
    <message>
        <source>Nothing is imported. %1</source>
        <translation>Ništa nije uvezeno. %1</translation>
    </message>
    <message>
        <source>This display</source>
        <translation>Ovaj zaslon</translation>
    </message>
    <message>
        <source>Another display</source>
        <translation>Drugi zaslon</translation>
    </message>
    <message>
        <source>The profile is not on the stick. %1</source>
        <translation>Profil nije na sticku. %1</translation>
    </message>
    <message>
        <source>The profile is on the stick: %1.</source>
        <translation>Profil je na sticku: %1.</translation>
    </message>
    <message>
        <source>The file for support is not on the stick. %1</source>
        <translation>Datoteka za podršku nije na sticku. %1</translation>
    </message>
    <message>
        <source>The file for support is on the stick: %1.</source>
        <translation>Datoteka za podršku je na sticku: %1.</translation>
    </message>
    <message>
        <source>The profile is imported (settings changed: %1).</source>
        <translation>Profil je uvezen (izmijenjenih postavki: %1).</translation>
    </message>
    <message>
        <source>It cannot be used.</source>
        <translation>Ne može se koristiti.</translation>
    </message>
</context>
<context>
    <name>TransferState</name>
    <message>
        <source>Reading</source>
        <translation>Čitanje</translation>
    </message>
    <message>
        <source>Writing</source>
        <translation>Zapisivanje</translation>
    </message>
    <message>
        <source>Leave the stick where it is until this is done.</source>
        <translation>Ne vaditi stick dok ovo ne završi.</translation>
    </message>
</context>
<context>
    <name>WorkPage</name>
    <message>
        <source>Waiting for a position</source>
        <translation>Čeka se položaj</translation>
    </message>
    <message>
        <source>Map</source>
        <translation>Karta</translation>
    </message>
</context>
<context>
    <name>WorkingButton</name>
    <message>
        <source>Working</source>
        <translation>U radu</translation>
    </message>
    <message>
        <source>Not working</source>
        <translation>Nije u radu</translation>
    </message>
    <message>
        <source>Working. Switch the implement off</source>
        <translation>U radu. Isključi oruđe</translation>
    </message>
    <message>
        <source>Not working. Switch the implement on</source>
        <translation>Nije u radu. Uključi oruđe</translation>
    </message>
</context>
</TS>
