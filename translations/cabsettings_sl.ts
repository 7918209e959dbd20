<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="sl" sourcelanguage="en">
<context>
    <name>About</name>
    <message>
        <source>Windows, files and connections</source>
        <translation>Okna, datoteke in povezave</translation>
    </message>
    <message>
        <source>The file of the settings</source>
        <translation>Datoteka nastavitev</translation>
    </message>
    <message>
        <source>Profiles of settings</source>
        <translation>Profili nastavitev</translation>
    </message>
    <message>
        <source>Files for support</source>
        <translation>Datoteke za podporo</translation>
    </message>
    <message>
        <source>Sunrise and sunset</source>
        <translation>Sončni vzhod in zahod</translation>
    </message>
    <message>
        <source>Boundaries and zones</source>
        <translation>Meje in območja</translation>
    </message>
    <message>
        <source>Software</source>
        <translation>Programje</translation>
    </message>
    <message>
        <source>The software of this display</source>
        <translation>Programje tega zaslona</translation>
    </message>
    <message>
        <source>Settings, units and logs</source>
        <translation>Nastavitve, enote in dnevniki</translation>
    </message>
</context>
<context>
    <name>Clock</name>
    <message>
        <source>The clock of the machine; nothing has set it.</source>
        <translation>Ura naprave; ni nastavljena.</translation>
    </message>
    <message>
        <source>The clock was set by hand.</source>
        <translation>Ura je nastavljena ročno.</translation>
    </message>
    <message>
        <source>The receiver sets the clock.</source>
        <translation>Uro nastavlja sprejemnik.</translation>
    </message>
    <message>
        <source>There is no such date or time.</source>
        <translation>Takega datuma ali takega časa ni.</translation>
    </message>
    <message>
        <source>The date is more than 68 years from the clock of the machine.</source>
        <translation>Datum je več kot 68 let oddaljen od ure naprave.</translation>
    </message>
    <message>
        <source>The clock could not be stored.</source>
        <translation>Časa ure ni bilo mogoče shraniti.</translation>
    </message>
</context>
<context>
    <name>ClockEntry</name>
    <message>
        <source>Year</source>
        <translation>Leto</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>Mesec</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Dan</translation>
    </message>
    <message>
        <source>Hour</source>
        <translation>Ura</translation>
    </message>
    <message>
        <source>Minute</source>
        <translation>Minuta</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>Datum in čas</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Čas</translation>
    </message>
    <message>
        <source>%1: more</source>
        <translation>%1: več</translation>
    </message>
    <message>
        <source>%1: less</source>
        <translation>%1: manj</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Prekliči</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>Nastavi</translation>
    </message>
</context>
<context>
    <name>ColorBar</name>
    <message>
        <source>%1: less</source>
        <translation>%1: manj</translation>
    </message>
    <message>
        <source>%1: more</source>
        <translation>%1: več</translation>
    </message>
</context>
<context>
    <name>ColorPage</name>
    <message>
        <source>Former</source>
        <translation>Prejšnja</translation>
    </message>
    <message>
        <source>Former colour</source>
        <translation>Prejšnja barva</translation>
    </message>
    <message>
        <source>First value</source>
        <translation>Začetna</translation>
    </message>
    <message>
        <source>Digits of the colour</source>
        <translation>Številke barve</translation>
    </message>
    <message>
        <source>Hue</source>
        <translation>Odtenek</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Nasičenost</translation>
    </message>
    <message>
        <source>Lightness</source>
        <translation>Svetlost</translation>
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
        <translation>Noč</translation>
    </message>
</context>
<context>
    <name>Contrasts</name>
    <message>
        <source>on %1: %2</source>
        <translation>na »%1«: %2</translation>
    </message>
    <message>
        <source>under %1: %2</source>
        <translation>pod »%1«: %2</translation>
    </message>
    <message>
        <source>%1, too low: at least %2</source>
        <translation>%1, premalo: vsaj %2</translation>
    </message>
</context>
<context>
    <name>Difference</name>
    <message>
        <source>Changed on both sides</source>
        <translation>Spremenjeno na obeh straneh</translation>
    </message>
    <message>
        <source>Here</source>
        <translation>Tukaj</translation>
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
        <translation>Znova zaženi</translation>
    </message>
    <message>
        <source>The fonts of the display</source>
        <translation>Pisave zaslona</translation>
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
        <translation>Delo</translation>
    </message>
    <message>
        <source>Fields</source>
        <translation>Njive</translation>
    </message>
    <message>
        <source>Receiver</source>
        <translation>Sprejemnik</translation>
    </message>
    <message>
        <source>Logs</source>
        <translation>Dnevniki</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Nastavitve</translation>
    </message>
</context>
<context>
    <name>Drives</name>
    <message>
        <source>%1 free of %2</source>
        <translation>prosto %1 od %2</translation>
    </message>
    <message>
        <source>Not known</source>
        <translation>Ni znano</translation>
    </message>
    <message>
        <source>No stick</source>
        <translation>Ni USB-ključka</translation>
    </message>
</context>
<context>
    <name>FieldsPage</name>
    <message>
        <source>Clients</source>
        <translation>Stranke</translation>
    </message>
    <message>
        <source>New client</source>
        <translation>Nova stranka</translation>
    </message>
    <message>
        <source>No client yet.</source>
        <translation>Ni še strank.</translation>
    </message>
    <message>
        <source>Farms</source>
        <translation>Kmetije</translation>
    </message>
    <message>
        <source>New farm</source>
        <translation>Nova kmetija</translation>
    </message>
    <message>
        <source>No farm yet.</source>
        <translation>Ni še kmetij.</translation>
    </message>
    <message>
        <source>Fields</source>
        <translation>Njive</translation>
    </message>
    <message>
        <source>New field</source>
        <translation>Nova njiva</translation>
    </message>
    <message>
        <source>No field yet.</source>
        <translation>Ni še njiv.</translation>
    </message>
    <message>
        <source>Jobs</source>
        <translation>Naloge</translation>
    </message>
    <message>
        <source>New job</source>
        <translation>Nova naloga</translation>
    </message>
    <message>
        <source>No job yet.</source>
        <translation>Ni še nalog.</translation>
    </message>
    <message>
        <source>Remove %1 with everything in it?</source>
        <translation>Odstraniti %1 z vso vsebino?</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>V redu</translation>
    </message>
    <message>
        <source>Rename or remove %1</source>
        <translation>Preimenuj/odstrani: %1</translation>
    </message>
    <message>
        <source>Rename %1</source>
        <translation>Preimenuj: %1</translation>
    </message>
    <message>
        <source>Remove everything</source>
        <translation>Odstrani vse</translation>
    </message>
</context>
<context>
    <name>Host</name>
    <message>
        <source>Details for the support: %1</source>
        <translation>Podrobnosti za podporo: %1</translation>
    </message>
    <message>
        <source>%3 Try: %4</source>
        <translation>%3 Predlog: %4</translation>
    </message>
    <message>
        <source>This name is not possible.</source>
        <translation>To ime ni mogoče.</translation>
    </message>
    <message>
        <source>The name is empty.</source>
        <translation>Ime je prazno.</translation>
    </message>
    <message>
        <source>This name stands for another folder.</source>
        <translation>To ime pomeni drugo mapo.</translation>
    </message>
    <message>
        <source>The name must not contain %1.</source>
        <translation>Ime ne sme vsebovati %1.</translation>
    </message>
    <message>
        <source>The name contains a sign that cannot be seen.</source>
        <translation>Ime vsebuje neviden znak.</translation>
    </message>
    <message>
        <source>The name contains a sign that is not complete.</source>
        <translation>Ime vsebuje nepopoln znak.</translation>
    </message>
    <message>
        <source>The name must not end in a full stop or a blank.</source>
        <translation>Ime se ne sme končati s piko ali presledkom.</translation>
    </message>
    <message>
        <source>The name must not begin with a blank.</source>
        <translation>Ime se ne sme začeti s presledkom.</translation>
    </message>
    <message>
        <source>A stick cannot hold a file with this name.</source>
        <translation>USB-ključek ne more imeti datoteke s tem imenom.</translation>
    </message>
    <message>
        <source>The name is too long.</source>
        <translation>Ime je predolgo.</translation>
    </message>
    <message>
        <source>%2 exists already.</source>
        <translation>Že obstaja: %2.</translation>
    </message>
    <message numerus="yes">
        <source>%2 is active and holds %n file(s).</source>
        <translation>
            <numerusform>Aktivno: %2, vsebuje %n datoteko.</numerusform>
            <numerusform>Aktivno: %2, vsebuje %n datoteki.</numerusform>
            <numerusform>Aktivno: %2, vsebuje %n datoteke.</numerusform>
            <numerusform>Aktivno: %2, vsebuje %n datotek.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%2 holds %n file(s).</source>
        <translation>
            <numerusform>%2: vsebuje %n datoteko.</numerusform>
            <numerusform>%2: vsebuje %n datoteki.</numerusform>
            <numerusform>%2: vsebuje %n datoteke.</numerusform>
            <numerusform>%2: vsebuje %n datotek.</numerusform>
        </translation>
    </message>
    <message>
        <source>%2 is active.</source>
        <translation>Aktivno: %2.</translation>
    </message>
    <message>
        <source>%2 is no longer there.</source>
        <translation>Ne obstaja več: %2.</translation>
    </message>
    <message>
        <source>A stick cannot tell %2 from %3.</source>
        <translation>USB-ključek ne loči %2 od %3.</translation>
    </message>
    <message>
        <source>Another program is working on the fields. Try again later.</source>
        <translation>Drug program dela z njivami. Poskusite znova pozneje.</translation>
    </message>
    <message>
        <source>The selection could not be stored.</source>
        <translation>Izbire ni bilo mogoče shraniti.</translation>
    </message>
    <message>
        <source>%1 is neither a file nor a folder.</source>
        <translation>%1 ni ne datoteka ne mapa.</translation>
    </message>
    <message>
        <source>The file was edited or is damaged.</source>
        <translation>Datoteka je spremenjena ali poškodovana.</translation>
    </message>
    <message>
        <source>%1 cannot be read. %2</source>
        <translation>Ni mogoče brati: %1. %2</translation>
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
        <translation>Konec datoteke manjka.</translation>
    </message>
    <message>
        <source>The file is damaged.</source>
        <translation>Datoteka je poškodovana.</translation>
    </message>
    <message>
        <source>The file is not complete.</source>
        <translation>Datoteka ni popolna.</translation>
    </message>
    <message>
        <source>The file is from another version of the software.</source>
        <translation>Datoteka je iz druge različice programa.</translation>
    </message>
    <message>
        <source>The file has a value that is not possible: %2</source>
        <translation>Datoteka ima nemogočo vrednost: %2</translation>
    </message>
    <message>
        <source>The file has a value twice: %2</source>
        <translation>Nastavitev je v datoteki dvakrat: %2</translation>
    </message>
    <message>
        <source>This address is not possible: %1</source>
        <translation>Ta naslov ni mogoč: %1</translation>
    </message>
    <message>
        <source>The device is not there.</source>
        <translation>Naprava ni priključena.</translation>
    </message>
    <message>
        <source>It is not permitted, or another program uses it.</source>
        <translation>Ni dovoljeno ali pa je v uporabi v drugem programu.</translation>
    </message>
    <message>
        <source>Another program uses it.</source>
        <translation>V uporabi v drugem programu.</translation>
    </message>
    <message>
        <source>It cannot be read.</source>
        <translation>Ni mogoče brati.</translation>
    </message>
    <message>
        <source>It was unplugged.</source>
        <translation>Vtič je izvlečen.</translation>
    </message>
    <message>
        <source>It is not a serial device, or it cannot have this speed.</source>
        <translation>To ni serijska naprava ali pa ne more imeti te hitrosti.</translation>
    </message>
    <message>
        <source>The serial port has a fault (number %1).</source>
        <translation>Serijska vrata imajo napako (številka %1).</translation>
    </message>
    <message>
        <source>%1 is damaged or of another kind.</source>
        <translation>Poškodovano ali druge vrste: %1.</translation>
    </message>
    <message>
        <source>%1 is from another version of the software.</source>
        <translation>Iz druge različice programa: %1.</translation>
    </message>
    <message>
        <source>%1 is damaged.</source>
        <translation>Poškodovano: %1.</translation>
    </message>
    <message>
        <source>%1 has other coordinates than WGS84.</source>
        <translation>Koordinate niso WGS84: %1.</translation>
    </message>
    <message>
        <source>%1 is not complete. %2 is missing.</source>
        <translation>Nepopolno: %1. Manjka: %2.</translation>
    </message>
    <message>
        <source>%1 has no areas.</source>
        <translation>Ne vsebuje površin: %1.</translation>
    </message>
    <message>
        <source>Another program uses %1.</source>
        <translation>V uporabi v drugem programu: %1.</translation>
    </message>
    <message>
        <source>A and B are too close together or too far apart.</source>
        <translation>A in B sta preblizu ali predaleč narazen.</translation>
    </message>
    <message>
        <source>Another program has locked it.</source>
        <translation>Zaklenjeno v drugem programu.</translation>
    </message>
    <message>
        <source>It is no longer there.</source>
        <translation>Ne obstaja več.</translation>
    </message>
    <message>
        <source>%1 is no longer there.</source>
        <translation>Ne obstaja več: %1.</translation>
    </message>
    <message>
        <source>%1 cannot be written. %2</source>
        <translation>Ni mogoče zapisati: %1. %2</translation>
    </message>
    <message>
        <source>%1 cannot be written.</source>
        <translation>Ni mogoče zapisati: %1.</translation>
    </message>
    <message>
        <source>The file of the settings has a fault (number %1).</source>
        <translation>Datoteka nastavitev ima napako (številka %1).</translation>
    </message>
    <message>
        <source>%1 cannot be opened. %2</source>
        <translation>Ni mogoče odpreti: %1. %2</translation>
    </message>
    <message>
        <source>%1 cannot be created. %2</source>
        <translation>Ni mogoče ustvariti: %1. %2</translation>
    </message>
    <message>
        <source>%1 cannot be copied. %2</source>
        <translation>Ni mogoče kopirati: %1. %2</translation>
    </message>
    <message>
        <source>%1 cannot be renamed. %2</source>
        <translation>Ni mogoče preimenovati: %1. %2</translation>
    </message>
    <message>
        <source>%1 cannot be removed. %2</source>
        <translation>Ni mogoče odstraniti: %1. %2</translation>
    </message>
    <message>
        <source>The drive is full.</source>
        <translation>Disk je poln.</translation>
    </message>
    <message>
        <source>The drive has a fault.</source>
        <translation>Disk ima napako.</translation>
    </message>
    <message>
        <source>The drive can only be read.</source>
        <translation>Disk je samo za branje.</translation>
    </message>
    <message>
        <source>It is not permitted.</source>
        <translation>Ni dovoljeno.</translation>
    </message>
    <message>
        <source>It cannot be opened.</source>
        <translation>Ni mogoče odpreti.</translation>
    </message>
    <message>
        <source>It is damaged.</source>
        <translation>Poškodovano je.</translation>
    </message>
    <message>
        <source>It is not there.</source>
        <translation>Ne obstaja.</translation>
    </message>
    <message>
        <source>It exists already.</source>
        <translation>Že obstaja.</translation>
    </message>
    <message>
        <source>It is a folder.</source>
        <translation>To je mapa.</translation>
    </message>
    <message>
        <source>It is not a folder.</source>
        <translation>To ni mapa.</translation>
    </message>
    <message>
        <source>The folder is not empty.</source>
        <translation>Mapa ni prazna.</translation>
    </message>
    <message>
        <source>The file is too large.</source>
        <translation>Datoteka je prevelika.</translation>
    </message>
    <message>
        <source>Too many files are open.</source>
        <translation>Odprtih je preveč datotek.</translation>
    </message>
    <message>
        <source>There is too little memory.</source>
        <translation>Premalo pomnilnika.</translation>
    </message>
    <message>
        <source>It is not possible there.</source>
        <translation>Tam to ni mogoče.</translation>
    </message>
    <message>
        <source>The device refuses the connection.</source>
        <translation>Naprava zavrača povezavo.</translation>
    </message>
    <message>
        <source>The device has closed the connection.</source>
        <translation>Naprava je prekinila povezavo.</translation>
    </message>
    <message>
        <source>There is no device with this address.</source>
        <translation>Naprave s tem naslovom ni.</translation>
    </message>
    <message>
        <source>The network cannot be reached.</source>
        <translation>Omrežje ni dosegljivo.</translation>
    </message>
    <message>
        <source>The device does not answer.</source>
        <translation>Naprava se ne odziva.</translation>
    </message>
    <message>
        <source>It is a link to another place.</source>
        <translation>To je povezava na drugo mesto.</translation>
    </message>
    <message>
        <source>There are too many links to it.</source>
        <translation>Na to kaže preveč povezav.</translation>
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
        <translation>Odstrani</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Prekliči</translation>
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
        <translation>Najmanj %1 %2</translation>
    </message>
    <message>
        <source>At most %1 %2</source>
        <translation>Največ %1 %2</translation>
    </message>
    <message>
        <source>This is not a number yet.</source>
        <translation>To še ni število.</translation>
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
        <translation>Premajhno.
%1</translation>
    </message>
    <message>
        <source>now %1</source>
        <translation>zdaj %1</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Prekliči</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>Nastavi</translation>
    </message>
    <message>
        <source>Decimal sign</source>
        <translation>Decimalno ločilo</translation>
    </message>
    <message>
        <source>Plus or minus</source>
        <translation>Plus ali minus</translation>
    </message>
    <message>
        <source>Remove the last sign</source>
        <translation>Odstrani zadnji znak</translation>
    </message>
    <message>
        <source>C</source>
        <comment>key that clears the entry</comment>
        <translation>C</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Počisti</translation>
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
        <translation>Postavi A, prvi konec linije, tukaj</translation>
    </message>
    <message>
        <source>B</source>
        <comment>the other end of the guidance line</comment>
        <translation>B</translation>
    </message>
    <message>
        <source>Set B, the other end of the line, here</source>
        <translation>Postavi B, drugi konec linije, tukaj</translation>
    </message>
    <message>
        <source>Set a flag here</source>
        <translation>Postavi zastavico tukaj</translation>
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
        <translation>Prekliči</translation>
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
        <translation>%1 v levo</translation>
    </message>
    <message>
        <source>%1 to the right</source>
        <translation>%1 v desno</translation>
    </message>
</context>
<context>
    <name>LockLayer</name>
    <message>
        <source>The screen is locked. Hold the button to unlock it.</source>
        <translation>Zaslon je zaklenjen. Za odklepanje držite gumb.</translation>
    </message>
    <message>
        <source>Unlock</source>
        <translation>Odkleni</translation>
    </message>
</context>
<context>
    <name>LogsPage</name>
    <message>
        <source>Logs</source>
        <translation>Dnevniki</translation>
    </message>
    <message>
        <source>Events</source>
        <translation>Dogodki</translation>
    </message>
    <message>
        <source>Receiver</source>
        <translation>Sprejemnik</translation>
    </message>
    <message>
        <source>Go on</source>
        <translation>Nadaljuj</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Premor</translation>
    </message>
    <message>
        <source>No line yet.</source>
        <translation>Ni še vrstic.</translation>
    </message>
</context>
<context>
    <name>MachinePage</name>
    <message>
        <source>Implement width</source>
        <translation>Širina priključka</translation>
    </message>
    <message>
        <source>Decides the guidance lines beside each other, and the area done</source>
        <translation>Določa sosednje vodilne linije in obdelano površino</translation>
    </message>
    <message>
        <source>Implement behind the antenna</source>
        <translation>Odmik priključka za anteno</translation>
    </message>
    <message>
        <source>How far the ground is covered behind the vehicle&apos;s place</source>
        <translation>Kako daleč za mestom vozila se obdelujejo tla</translation>
    </message>
</context>
<context>
    <name>Main</name>
    <message>
        <source>Cab display</source>
        <translation>Zaslon v kabini</translation>
    </message>
</context>
<context>
    <name>MapButtons</name>
    <message>
        <source>Zoom in</source>
        <translation>Povečaj</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Pomanjšaj</translation>
    </message>
    <message>
        <source>The heading is up. Turn north up</source>
        <translation>Smer vožnje je zgoraj. Obrni sever navzgor</translation>
    </message>
    <message>
        <source>North is up. Turn the heading up</source>
        <translation>Sever je zgoraj. Obrni smer vožnje navzgor</translation>
    </message>
    <message>
        <source>Centre the vehicle</source>
        <translation>Vozilo v sredino</translation>
    </message>
</context>
<context>
    <name>NameEntry</name>
    <message>
        <source>Cancel</source>
        <translation>Prekliči</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>V redu</translation>
    </message>
</context>
<context>
    <name>PageTurner</name>
    <message>
        <source>Rows above</source>
        <translation>Vrstice zgoraj</translation>
    </message>
    <message>
        <source>Rows below</source>
        <translation>Vrstice spodaj</translation>
    </message>
</context>
<context>
    <name>ParameterRow</name>
    <message>
        <source>%1: back to the first value</source>
        <translation>%1: nazaj na začetno vrednost</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Odpri</translation>
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
        <translation>absolutna pot, ki se konča z »/« in ni »/«</translation>
    </message>
    <message>
        <source>an absolute path</source>
        <translation>absolutna pot</translation>
    </message>
    <message>
        <source>a UUID in small letters, such as 6ba7b810-9dad-41d1-80b4-00c04fd430c8</source>
        <translation>UUID z malimi črkami, npr. 6ba7b810-9dad-41d1-80b4-00c04fd430c8</translation>
    </message>
    <message>
        <source>simulator, tcp://HOST:PORT, serial:///dev/NAME?baud=N or an absolute path</source>
        <translation>simulator, tcp://HOST:PORT, serial:///dev/NAME?baud=N ali absolutna pot</translation>
    </message>
    <message>
        <source>true or false</source>
        <translation>true ali false</translation>
    </message>
    <message>
        <source>a time in UTC, such as 2026-03-05T13:05:09Z</source>
        <translation>čas v UTC, npr. 2026-03-05T13:05:09Z</translation>
    </message>
    <message>
        <source>a colour: #rrggbb, #aarrggbb or a name such as navy</source>
        <translation>barva: #rrggbb, #aarrggbb ali ime, npr. navy</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>od %1 do %2</translation>
    </message>
    <message>
        <source>Not a whole number.</source>
        <translation>Ni celo število.</translation>
    </message>
    <message>
        <source>Below the least value.</source>
        <translation>Pod najmanjšo vrednostjo.</translation>
    </message>
    <message>
        <source>Above the greatest value.</source>
        <translation>Nad največjo vrednostjo.</translation>
    </message>
    <message>
        <source>This cannot be the name of a file. Try: %1</source>
        <translation>Datoteka se ne more tako imenovati. Predlog: %1</translation>
    </message>
    <message>
        <source>Not accepted. Expected: %1.</source>
        <translation>Ni sprejeto. Pričakovano: %1.</translation>
    </message>
    <message>
        <source>a name without %1</source>
        <translation>ime brez %1</translation>
    </message>
    <message>
        <source>a whole number</source>
        <translation>celo število</translation>
    </message>
    <message>
        <source>At least %1</source>
        <translation>Najmanj %1</translation>
    </message>
</context>
<context>
    <name>Parameters</name>
    <message>
        <source>the operator has chosen the offset from UTC; GPS time keeps it instead of computing it</source>
        <translation>upravljavec je izbral odmik od UTC; čas GPS ga ohrani in ga ne izračuna</translation>
    </message>
    <message>
        <source>metric units; otherwise US or English units</source>
        <translation>metrične enote; sicer ameriške ali angleške</translation>
    </message>
    <message>
        <source>US measures when units are not metric; otherwise English measures</source>
        <translation>ameriške mere, če enote niso metrične; sicer angleške</translation>
    </message>
    <message>
        <source>positions in degrees, minutes and seconds; otherwise in decimal degrees</source>
        <translation>položaji v stopinjah, minutah in sekundah; sicer v decimalnih stopinjah</translation>
    </message>
    <message>
        <source>24-hour clock; otherwise 12 hours with am and pm</source>
        <translation>24-urni prikaz; sicer 12 ur z am in pm</translation>
    </message>
    <message>
        <source>dates with the month before the day</source>
        <translation>datumi z mesecem pred dnevom</translation>
    </message>
    <message>
        <source>colours for day; otherwise for night</source>
        <translation>dnevne barve; sicer nočne</translation>
    </message>
    <message>
        <source>the map turns with the vehicle; otherwise north is up</source>
        <translation>karta se obrača z vozilom; sicer je sever zgoraj</translation>
    </message>
    <message>
        <source>unit of pressures</source>
        <translation>enota tlaka</translation>
    </message>
    <message>
        <source>unit of areas, and of rates per area</source>
        <translation>enota površine in odmerkov na površino</translation>
    </message>
    <message>
        <source>unit of short distances: widths, offsets</source>
        <translation>enota kratkih razdalj: širine, odmiki</translation>
    </message>
    <message>
        <source>unit of granular volumes</source>
        <translation>enota volumna granulata</translation>
    </message>
    <message>
        <source>unit of granular densities</source>
        <translation>enota gostote granulata</translation>
    </message>
    <message>
        <source>unit of liquid volumes, flows and rates</source>
        <translation>enota volumna, pretoka in odmerka tekočine</translation>
    </message>
    <message>
        <source>language of the display&apos;s texts; a change needs a restart</source>
        <translation>jezik besedil zaslona; sprememba zahteva ponovni zagon</translation>
    </message>
    <message>
        <source>decimal point or comma; a change needs a restart</source>
        <translation>decimalna pika ali vejica; sprememba zahteva ponovni zagon</translation>
    </message>
    <message>
        <source>when the colours switch between day and night: only by hand, at sunrise and sunset, or with the sun 6 degrees below the horizon</source>
        <translation>kdaj se barve zamenjajo med dnem in nočjo: samo ročno, ob sončnem vzhodu in zahodu ali ko je sonce 6 stopinj pod obzorjem</translation>
    </message>
    <message>
        <source>what set the display&apos;s clock</source>
        <translation>po čem je nastavljena ura zaslona</translation>
    </message>
    <message>
        <source>local time less UTC, whole hours</source>
        <translation>krajevni čas minus UTC, cele ure</translation>
    </message>
    <message>
        <source>local time less UTC, minutes beyond the hours, with the sign of the hours</source>
        <translation>krajevni čas minus UTC, minute poleg ur, s predznakom ur</translation>
    </message>
    <message>
        <source>brightness of the lightbar at night</source>
        <translation>svetlost svetlobnega traku ponoči</translation>
    </message>
    <message>
        <source>brightness of the screen at night</source>
        <translation>svetlost zaslona ponoči</translation>
    </message>
    <message>
        <source>brightness of the button lights at night</source>
        <translation>svetlost osvetlitve tipk ponoči</translation>
    </message>
    <message>
        <source>4: implements are kept in the folder of their vehicle; other numbers: in their own folder</source>
        <translation>4: priključki so v mapi svojega vozila; druga števila: v lastni mapi</translation>
    </message>
    <message>
        <source>number of the next file of the NMEA log</source>
        <translation>številka naslednje datoteke dnevnika NMEA</translation>
    </message>
    <message>
        <source>number of the next file of the user log</source>
        <translation>številka naslednje datoteke dnevnika upravljavca</translation>
    </message>
    <message>
        <source>the display&apos;s clock less UTC</source>
        <translation>ura zaslona minus UTC</translation>
    </message>
    <message>
        <source>folder of the internal drive; by default in the data folder</source>
        <translation>mapa notranjega diska; privzeto v mapi podatkov</translation>
    </message>
    <message>
        <source>mount point of the removable drive; by default in the data folder</source>
        <translation>priklopna točka izmenljivega diska; privzeto v mapi podatkov</translation>
    </message>
    <message>
        <source>the identity of the terminal, which its profiles carry</source>
        <translation>oznaka terminala, ki je v njegovih profilih</translation>
    </message>
    <message>
        <source>where the sentences of the receiver come from</source>
        <translation>od kod prihajajo sporočila sprejemnika</translation>
    </message>
    <message>
        <source>the figures beside the map, in this order</source>
        <translation>vrednosti ob karti, v tem vrstnem redu</translation>
    </message>
    <message>
        <source>the newest time of a receiver, as of the last day on which one was seen</source>
        <translation>najnovejši čas sprejemnika, z zadnjega dne s sprejemnikom</translation>
    </message>
    <message>
        <source>when the sun switched the colours last</source>
        <translation>kdaj je sonce nazadnje zamenjalo barve</translation>
    </message>
    <message>
        <source>the active job</source>
        <translation>aktivna naloga</translation>
    </message>
    <message>
        <source>the active boundary</source>
        <translation>aktivna meja</translation>
    </message>
    <message>
        <source>the active straight guidance line</source>
        <translation>aktivna ravna vodilna linija</translation>
    </message>
    <message>
        <source>the active pivot</source>
        <translation>aktivni krog</translation>
    </message>
    <message>
        <source>the active guidance curve</source>
        <translation>aktivna vodilna krivulja</translation>
    </message>
    <message>
        <source>the active shape file of optimal lines</source>
        <translation>aktivna datoteka shape optimalnih linij</translation>
    </message>
    <message>
        <source>the active shape file of project lines</source>
        <translation>aktivna datoteka shape linij projekta</translation>
    </message>
    <message>
        <source>the active shape file of zones</source>
        <translation>aktivna datoteka shape območij</translation>
    </message>
    <message>
        <source>the active steering profile</source>
        <translation>aktivni profil krmiljenja</translation>
    </message>
    <message>
        <source>the active implement</source>
        <translation>aktivni priključek</translation>
    </message>
    <message>
        <source>the active vehicle</source>
        <translation>aktivno vozilo</translation>
    </message>
    <message>
        <source>the active sprayer</source>
        <translation>aktivna škropilnica</translation>
    </message>
    <message>
        <source>the active boom leveller</source>
        <translation>aktivna izravnava letev</translation>
    </message>
    <message>
        <source>the active client</source>
        <translation>aktivna stranka</translation>
    </message>
    <message>
        <source>the active farm</source>
        <translation>aktivna kmetija</translation>
    </message>
    <message>
        <source>the active field</source>
        <translation>aktivna njiva</translation>
    </message>
    <message>
        <source>Measures</source>
        <translation>Merske enote</translation>
    </message>
    <message>
        <source>Gallons and bushels</source>
        <translation>Galone in bušli</translation>
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
        <translation>Kratke razdalje</translation>
    </message>
    <message>
        <source>Liquid</source>
        <translation>Tekočina</translation>
    </message>
    <message>
        <source>Granular volume</source>
        <translation>Volumen granulata</translation>
    </message>
    <message>
        <source>Granular density</source>
        <translation>Gostota granulata</translation>
    </message>
    <message>
        <source>Positions</source>
        <translation>Položaji</translation>
    </message>
    <message>
        <source>Rate per travel</source>
        <translation>Odmerek na pot</translation>
    </message>
    <message>
        <source>Basis of rates</source>
        <translation>Osnova odmerkov</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Jezik</translation>
    </message>
    <message>
        <source>Decimal sign</source>
        <translation>Decimalno ločilo</translation>
    </message>
    <message>
        <source>Time of day</source>
        <translation>Zapis časa</translation>
    </message>
    <message>
        <source>Dates</source>
        <translation>Zapis datuma</translation>
    </message>
    <message>
        <source>Time zone set by hand</source>
        <translation>Časovni pas ročno</translation>
    </message>
    <message>
        <source>Time zone, hours</source>
        <translation>Časovni pas, ure</translation>
    </message>
    <message>
        <source>Time zone, minutes</source>
        <translation>Časovni pas, minute</translation>
    </message>
    <message>
        <source>Clock less UTC</source>
        <translation>Ura minus UTC</translation>
    </message>
    <message>
        <source>Source of the time</source>
        <translation>Vir časa</translation>
    </message>
    <message>
        <source>Source of the time since</source>
        <translation>Vir časa, od kdaj</translation>
    </message>
    <message>
        <source>Newest receiver time</source>
        <translation>Najnovejši čas sprejemnika</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>Barve</translation>
    </message>
    <message>
        <source>Day and night</source>
        <translation>Dan in noč</translation>
    </message>
    <message>
        <source>Map direction</source>
        <translation>Smer karte</translation>
    </message>
    <message>
        <source>Tiles</source>
        <translation>Ploščice</translation>
    </message>
    <message>
        <source>Light bar at night</source>
        <translation>Svetlobni trak ponoči</translation>
    </message>
    <message>
        <source>Screen at night</source>
        <translation>Zaslon ponoči</translation>
    </message>
    <message>
        <source>Button lights at night</source>
        <translation>Osvetlitev tipk ponoči</translation>
    </message>
    <message>
        <source>Switched by the sun</source>
        <translation>Preklopljeno po soncu</translation>
    </message>
    <message>
        <source>Client</source>
        <translation>Stranka</translation>
    </message>
    <message>
        <source>Farm</source>
        <translation>Kmetija</translation>
    </message>
    <message>
        <source>Field</source>
        <translation>Njiva</translation>
    </message>
    <message>
        <source>Job</source>
        <translation>Naloga</translation>
    </message>
    <message>
        <source>Vehicle</source>
        <translation>Vozilo</translation>
    </message>
    <message>
        <source>Implement</source>
        <translation>Priključek</translation>
    </message>
    <message>
        <source>Sprayer</source>
        <translation>Škropilnica</translation>
    </message>
    <message>
        <source>Boom leveller</source>
        <translation>Izravnava letev</translation>
    </message>
    <message>
        <source>Steering profile</source>
        <translation>Profil krmiljenja</translation>
    </message>
    <message>
        <source>Boundary</source>
        <translation>Meja</translation>
    </message>
    <message>
        <source>A-B line</source>
        <translation>Linija A-B</translation>
    </message>
    <message>
        <source>Pivot</source>
        <translation>Krog</translation>
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
        <translation>Območja</translation>
    </message>
    <message>
        <source>Receiver address</source>
        <translation>Naslov sprejemnika</translation>
    </message>
    <message>
        <source>Internal drive</source>
        <translation>Notranji disk</translation>
    </message>
    <message>
        <source>Stick</source>
        <translation>USB-ključek</translation>
    </message>
    <message>
        <source>Implement folder</source>
        <translation>Mapa priključka</translation>
    </message>
    <message>
        <source>Next NMEA log</source>
        <translation>Naslednji dnevnik NMEA</translation>
    </message>
    <message>
        <source>Next user log</source>
        <translation>Naslednji dnevnik upravljavca</translation>
    </message>
    <message>
        <source>Identity</source>
        <translation>Oznaka</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Besedilo</translation>
    </message>
    <message>
        <source>Colour of texts</source>
        <translation>Barva besedil</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Naslov</translation>
    </message>
    <message>
        <source>Colour of titles</source>
        <translation>Barva naslovov</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Ozadje</translation>
    </message>
    <message>
        <source>Colour of the background</source>
        <translation>Barva ozadja</translation>
    </message>
    <message>
        <source>Button</source>
        <translation>Gumb</translation>
    </message>
    <message>
        <source>Colour of buttons</source>
        <translation>Barva gumbov</translation>
    </message>
    <message>
        <source>Button text</source>
        <translation>Besedilo gumba</translation>
    </message>
    <message>
        <source>Colour of texts on buttons</source>
        <translation>Barva besedil na gumbih</translation>
    </message>
    <message>
        <source>Map</source>
        <translation>Karta</translation>
    </message>
    <message>
        <source>Colour of the map&apos;s ground</source>
        <translation>Barva podlage karte</translation>
    </message>
    <message>
        <source>Grid</source>
        <translation>Mreža</translation>
    </message>
    <message>
        <source>Colour of the map&apos;s grid</source>
        <translation>Barva mreže karte</translation>
    </message>
    <message>
        <source>Coverage</source>
        <translation>Obdelano</translation>
    </message>
    <message>
        <source>Colour of covered ground</source>
        <translation>Barva obdelane površine</translation>
    </message>
    <message>
        <source>Vehicle on the map</source>
        <translation>Vozilo na karti</translation>
    </message>
    <message>
        <source>Colour of the vehicle</source>
        <translation>Barva vozila</translation>
    </message>
    <message>
        <source>Guidance line</source>
        <translation>Vodilna linija</translation>
    </message>
    <message>
        <source>Colour of the guidance line</source>
        <translation>Barva vodilne linije</translation>
    </message>
    <message>
        <source>Cross hairs</source>
        <translation>Namerilni križ</translation>
    </message>
    <message>
        <source>Colour of the cross hairs</source>
        <translation>Barva namerilnega križa</translation>
    </message>
    <message>
        <source>Outer boundary</source>
        <translation>Zunanja meja</translation>
    </message>
    <message>
        <source>Colour of the outer boundary of the field</source>
        <translation>Barva zunanje meje njive</translation>
    </message>
    <message>
        <source>Inner boundary</source>
        <translation>Notranja meja</translation>
    </message>
    <message>
        <source>Colour of boundaries within the field</source>
        <translation>Barva meja znotraj njive</translation>
    </message>
    <message>
        <source>Other boundaries</source>
        <translation>Druge meje</translation>
    </message>
    <message>
        <source>Colour of boundaries that are not active</source>
        <translation>Barva neaktivnih meja</translation>
    </message>
    <message>
        <source>Exclusion zone</source>
        <translation>Prepovedano območje</translation>
    </message>
    <message>
        <source>Colour of zones to keep out of</source>
        <translation>Barva prepovedanih območij</translation>
    </message>
    <message>
        <source>Background picture</source>
        <translation>Slika ozadja</translation>
    </message>
    <message>
        <source>Number of the background picture</source>
        <translation>Številka slike ozadja</translation>
    </message>
    <message>
        <source>what the sprayer&apos;s rates are related to</source>
        <translation>na kaj se nanašajo odmerki škropilnice</translation>
    </message>
    <message>
        <source>liquid rates per 100 m or 100 yd of travel, while travel is their basis</source>
        <translation>odmerki tekočine na 100 m ali 100 jardov poti, dokler je pot njihova osnova</translation>
    </message>
    <message>
        <source>since when the clock has its time from there</source>
        <translation>od kdaj ima ura čas od tam</translation>
    </message>
    <message>
        <source>Metric</source>
        <translation>Metrične</translation>
    </message>
    <message>
        <source>US or English</source>
        <translation>Ameriške ali angleške</translation>
    </message>
    <message>
        <source>US</source>
        <translation>Ameriške</translation>
    </message>
    <message>
        <source>English</source>
        <translation>Angleške</translation>
    </message>
    <message>
        <source>Deg., min., s</source>
        <translation>Stop., min., s</translation>
    </message>
    <message>
        <source>Degrees</source>
        <translation>Stopinje</translation>
    </message>
    <message>
        <source>24 hours</source>
        <translation>24 ur</translation>
    </message>
    <message>
        <source>am, pm</source>
        <translation>am, pm</translation>
    </message>
    <message>
        <source>Month first</source>
        <translation>Najprej mesec</translation>
    </message>
    <message>
        <source>Day first</source>
        <translation>Najprej dan</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Dan</translation>
    </message>
    <message>
        <source>Night</source>
        <translation>Noč</translation>
    </message>
    <message>
        <source>Heading up</source>
        <translation>Smer vožnje</translation>
    </message>
    <message>
        <source>North up</source>
        <translation>Sever zgoraj</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Vklj.</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Izklj.</translation>
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
        <translation>Pot</translation>
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
        <translation>Čevelj</translation>
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
        <translation>Pika</translation>
    </message>
    <message>
        <source>Comma</source>
        <translation>Vejica</translation>
    </message>
    <message>
        <source>By hand</source>
        <translation>Ročno</translation>
    </message>
    <message>
        <source>Sunset</source>
        <translation>Sončni zahod</translation>
    </message>
    <message>
        <source>Twilight</source>
        <translation>Somrak</translation>
    </message>
    <message>
        <source>Not set</source>
        <translation>Ni nastavljeno</translation>
    </message>
    <message>
        <source>Operator</source>
        <translation>Upravljavec</translation>
    </message>
    <message>
        <source>Receiver</source>
        <translation>Sprejemnik</translation>
    </message>
    <message>
        <source>Rate</source>
        <translation>Odmerek</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Hitrost</translation>
    </message>
    <message>
        <source>Area done</source>
        <translation>Obdelana površina</translation>
    </message>
    <message>
        <source>Area left</source>
        <translation>Ostanek</translation>
    </message>
    <message>
        <source>Productivity</source>
        <translation>Učinek</translation>
    </message>
    <message>
        <source>Flow</source>
        <translation>Pretok</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperatura</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>Prevožena razdalja</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Položaj</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Čas</translation>
    </message>
    <message>
        <source>Units</source>
        <translation>Enote</translation>
    </message>
    <message>
        <source>Rates</source>
        <translation>Odmerki</translation>
    </message>
    <message>
        <source>Region</source>
        <translation>Regija</translation>
    </message>
    <message>
        <source>Clock</source>
        <translation>Ura</translation>
    </message>
    <message>
        <source>Colours of the schemes</source>
        <translation>Barve shem</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Zaslon</translation>
    </message>
    <message>
        <source>Selections</source>
        <translation>Izbira</translation>
    </message>
    <message>
        <source>Storage</source>
        <translation>Shramba</translation>
    </message>
    <message>
        <source>Logs</source>
        <translation>Dnevniki</translation>
    </message>
    <message>
        <source>Terminal</source>
        <translation>Terminal</translation>
    </message>
    <message>
        <source>%1, by day</source>
        <translation>%1, podnevi</translation>
    </message>
    <message>
        <source>%1, by night</source>
        <translation>%1, ponoči</translation>
    </message>
</context>
<context>
    <name>Problems</name>
    <message>
        <source>The logs lose lines: their drive is full or cannot be written.</source>
        <translation>Dnevniki izgubljajo vrstice: njihov disk je poln ali nanj ni mogoče pisati.</translation>
    </message>
    <message>
        <source>Recording is off, because there is too little room.</source>
        <translation>Snemanje je izklopljeno, ker je premalo prostora.</translation>
    </message>
    <message>
        <source>Changes of settings are not stored yet. %1</source>
        <translation>Spremembe nastavitev še niso shranjene. %1</translation>
    </message>
    <message>
        <source>The drive of the terminal is nearly full. Free: %1</source>
        <translation>Disk terminala je skoraj poln. Prosto: %1</translation>
    </message>
</context>
<context>
    <name>ProfilePage</name>
    <message>
        <source>Import</source>
        <translation>Uvozi</translation>
    </message>
    <message>
        <source>The display has these settings already.</source>
        <translation>Zaslon že ima te nastavitve.</translation>
    </message>
    <message>
        <source>Changed here and in the profile</source>
        <translation>Spremenjeno tukaj in v profilu</translation>
    </message>
    <message>
        <source>Which value the settings below shall have</source>
        <translation>Katero vrednost dobijo spodnje nastavitve</translation>
    </message>
    <message>
        <source>Ours</source>
        <translation>Z zaslona</translation>
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
        <translation>Izvozi</translation>
    </message>
    <message>
        <source>There is no profile on the stick.</source>
        <translation>Na USB-ključku ni profila.</translation>
    </message>
    <message>
        <source>No stick is plugged in.</source>
        <translation>USB-ključek ni vstavljen.</translation>
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
        <translation>Učinek</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Hitrost</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>Razdalja</translation>
    </message>
    <message>
        <source>Small distance</source>
        <translation>Majhna razdalja</translation>
    </message>
    <message>
        <source>Travelled distance</source>
        <translation>Prevožena razdalja</translation>
    </message>
    <message>
        <source>Altitude</source>
        <translation>Višina</translation>
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
        <translation>Odmerek</translation>
    </message>
    <message>
        <source>Requested rate</source>
        <translation>Želeni odmerek</translation>
    </message>
    <message>
        <source>Rate and error</source>
        <translation>Odmerek in odstopanje</translation>
    </message>
    <message>
        <source>Small rate</source>
        <translation>Majhen odmerek</translation>
    </message>
    <message>
        <source>Flow</source>
        <translation>Pretok</translation>
    </message>
    <message>
        <source>Small flow</source>
        <translation>Majhen pretok</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volumen</translation>
    </message>
    <message>
        <source>Small volume</source>
        <translation>Majhen volumen</translation>
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
        <translation>Masa na površino</translation>
    </message>
    <message>
        <source>Weight per area and error</source>
        <translation>Masa na površino in odstopanje</translation>
    </message>
    <message>
        <source>Discharge</source>
        <translation>Iztok</translation>
    </message>
    <message>
        <source>Nitrogen</source>
        <translation>Dušik</translation>
    </message>
    <message>
        <source>Nitrogen per area</source>
        <translation>Dušik na površino</translation>
    </message>
    <message>
        <source>Seeds per area</source>
        <translation>Semena na površino</translation>
    </message>
    <message>
        <source>Density</source>
        <translation>Gostota</translation>
    </message>
    <message>
        <source>Granular density</source>
        <translation>Gostota granulata</translation>
    </message>
    <message>
        <source>Volume per revolution</source>
        <translation>Volumen na vrtljaj</translation>
    </message>
    <message>
        <source>Weight per revolution</source>
        <translation>Masa na vrtljaj</translation>
    </message>
    <message>
        <source>Flow meter</source>
        <translation>Merilnik pretoka</translation>
    </message>
    <message>
        <source>Wheel sensor</source>
        <translation>Senzor kolesa</translation>
    </message>
    <message>
        <source>Speed sensor</source>
        <translation>Senzor hitrosti</translation>
    </message>
    <message>
        <source>Latitude</source>
        <translation>Geo. širina</translation>
    </message>
    <message>
        <source>Longitude</source>
        <translation>Geo. dolžina</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Trajanje</translation>
    </message>
    <message>
        <source>Percent</source>
        <translation>Odstotek</translation>
    </message>
</context>
<context>
    <name>Question</name>
    <message>
        <source>Cancel</source>
        <translation>Prekliči</translation>
    </message>
</context>
<context>
    <name>RateTile</name>
    <message>
        <source>set %1</source>
        <comment>the rate that is set</comment>
        <translation>želeno %1</translation>
    </message>
</context>
<context>
    <name>Receiver</name>
    <message>
        <source>Off</source>
        <translation>Izklj.</translation>
    </message>
    <message>
        <source>Connecting</source>
        <translation>Povezovanje</translation>
    </message>
    <message>
        <source>Receiving</source>
        <translation>Sprejema</translation>
    </message>
    <message>
        <source>Silent</source>
        <translation>Ni podatkov</translation>
    </message>
    <message>
        <source>Lost</source>
        <translation>Izgubljen</translation>
    </message>
    <message>
        <source>Ended</source>
        <translation>Končano</translation>
    </message>
    <message>
        <source>No fix</source>
        <translation>Ni položaja</translation>
    </message>
    <message>
        <source>RTK float</source>
        <translation>RTK Float</translation>
    </message>
    <message>
        <source>Estimated</source>
        <translation>Ocenjeno</translation>
    </message>
    <message>
        <source>By hand</source>
        <translation>Ročno</translation>
    </message>
    <message>
        <source>Simulated</source>
        <translation>Simulirano</translation>
    </message>
    <message>
        <source>The receiver sends nothing.</source>
        <translation>Sprejemnik ne pošilja ničesar.</translation>
    </message>
    <message>
        <source>The receiver is lost and is being looked for. %1</source>
        <translation>Sprejemnik je izgubljen, iskanje poteka. %1</translation>
    </message>
    <message>
        <source>The receiver cannot be read. %1</source>
        <translation>Sprejemnika ni mogoče brati. %1</translation>
    </message>
    <message>
        <source>The simulated field is done.</source>
        <translation>Simulirana njiva je končana.</translation>
    </message>
    <message>
        <source>The recording of the receiver is over.</source>
        <translation>Posnetek sprejemnika je končan.</translation>
    </message>
</context>
<context>
    <name>ReceiverPage</name>
    <message>
        <source>Receiver</source>
        <translation>Sprejemnik</translation>
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
        <translation>Omrežje</translation>
    </message>
    <message>
        <source>Serial</source>
        <translation>Serijsko</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Naslov</translation>
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
        <translation>Čas (UTC)</translation>
    </message>
    <message>
        <source>Lines</source>
        <translation>Vrstice</translation>
    </message>
    <message>
        <source>Sentences</source>
        <translation>Sporočila</translation>
    </message>
    <message>
        <source>Bad checksums</source>
        <translation>Napake kontr. vsot</translation>
    </message>
    <message>
        <source>Damaged lines</source>
        <translation>Poškod. vrstice</translation>
    </message>
    <message>
        <source>Address of the receiver</source>
        <translation>Naslov sprejemnika</translation>
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
        <translation>Časovni pas</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>Datum in čas</translation>
    </message>
    <message>
        <source>Set by hand</source>
        <translation>Nastavi ročno</translation>
    </message>
</context>
<context>
    <name>SearchPage</name>
    <message>
        <source>Search</source>
        <translation>Iskanje</translation>
    </message>
    <message>
        <source>Words of a setting</source>
        <translation>Iskanje nastavitve</translation>
    </message>
    <message>
        <source>No setting has these words.</source>
        <translation>Nobena nastavitev nima teh besed.</translation>
    </message>
</context>
<context>
    <name>SettingsPage</name>
    <message>
        <source>Units</source>
        <translation>Enote</translation>
    </message>
    <message>
        <source>Region</source>
        <translation>Regija</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>Barve</translation>
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
        <translation>Shramba</translation>
    </message>
    <message>
        <source>About</source>
        <translation>O programu</translation>
    </message>
    <message>
        <source>Tiles</source>
        <translation>Ploščice</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>Profili</translation>
    </message>
    <message>
        <source>All settings</source>
        <translation>Vse nastavitve</translation>
    </message>
</context>
<context>
    <name>SettingsPanel</name>
    <message>
        <source>Back</source>
        <translation>Nazaj</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Iskanje</translation>
    </message>
</context>
<context>
    <name>Sizes</name>
    <message numerus="yes">
        <source>%n byte(s)</source>
        <translation>
            <numerusform>%n bajt</numerusform>
            <numerusform>%n bajta</numerusform>
            <numerusform>%n bajti</numerusform>
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
        <translation>Ni naloge</translation>
    </message>
    <message>
        <source>Receiver: %1</source>
        <translation>Sprejemnik: %1</translation>
    </message>
    <message>
        <source>The stick is plugged in</source>
        <translation>USB-ključek je vstavljen</translation>
    </message>
    <message>
        <source>Lock the screen</source>
        <translation>Zakleni zaslon</translation>
    </message>
    <message>
        <source>Colours of the night</source>
        <translation>Nočne barve</translation>
    </message>
    <message>
        <source>Colours of the day</source>
        <translation>Dnevne barve</translation>
    </message>
</context>
<context>
    <name>StoragePage</name>
    <message>
        <source>Open</source>
        <translation>Odpri</translation>
    </message>
    <message>
        <source>Internal drive</source>
        <translation>Notranji disk</translation>
    </message>
    <message>
        <source>Stick</source>
        <translation>USB-ključek</translation>
    </message>
    <message>
        <source>No stick is plugged in.</source>
        <translation>USB-ključek ni vstavljen.</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Pomnilnik</translation>
    </message>
    <message>
        <source>Logs</source>
        <translation>Dnevniki</translation>
    </message>
    <message>
        <source>Writes all log files to the stick</source>
        <translation>Zapiše vse datoteke dnevnikov na USB-ključek</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Izvozi</translation>
    </message>
    <message>
        <source>Export the logs</source>
        <translation>Izvozi dnevnike</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>Profili</translation>
    </message>
    <message>
        <source>Takes the settings to another display, or brings them back from the stick</source>
        <translation>Prenese nastavitve na drug zaslon ali jih vrne s USB-ključka</translation>
    </message>
    <message>
        <source>Open the profiles</source>
        <translation>Odpri profile</translation>
    </message>
    <message>
        <source>Support</source>
        <translation>Podpora</translation>
    </message>
    <message>
        <source>Writes logs, settings and versions in one file; without the names of clients, farms and fields</source>
        <translation>Zapiše dnevnike, nastavitve in različice v eno datoteko; brez imen strank, kmetij in njiv</translation>
    </message>
    <message>
        <source>Write</source>
        <translation>Zapiši</translation>
    </message>
    <message>
        <source>Write the file for support without names</source>
        <translation>Zapiši datoteko za podporo brez imen</translation>
    </message>
    <message>
        <source>Support, with names</source>
        <translation>Podpora, z imeni</translation>
    </message>
    <message>
        <source>The same file, with all names and places</source>
        <translation>Ista datoteka, z vsemi imeni in kraji</translation>
    </message>
    <message>
        <source>Write the file for support with names</source>
        <translation>Zapiši datoteko za podporo z imeni</translation>
    </message>
</context>
<context>
    <name>TFieldTreeModel</name>
    <message>
        <source>A job holds no items.</source>
        <translation>Naloga ne vsebuje drugih postavk.</translation>
    </message>
    <message>
        <source>There is one with this name already.</source>
        <translation>To ime že obstaja.</translation>
    </message>
    <message numerus="yes">
        <source>%n file(s), %1</source>
        <translation>
            <numerusform>%n datoteka, %1</numerusform>
            <numerusform>%n datoteki, %1</numerusform>
            <numerusform>%n datoteke, %1</numerusform>
            <numerusform>%n datotek, %1</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>TParameter</name>
    <message>
        <source>The setting could not be written to the disk yet.</source>
        <translation>Nastavitve še ni bilo mogoče zapisati na disk.</translation>
    </message>
    <message>
        <source>There is no value to set.</source>
        <translation>Ni vrednosti za nastavitev.</translation>
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
        <translation>feb.</translation>
    </message>
    <message>
        <source>Mar</source>
        <translation>mar.</translation>
    </message>
    <message>
        <source>Apr</source>
        <translation>apr.</translation>
    </message>
    <message>
        <source>May</source>
        <translation>maj</translation>
    </message>
    <message>
        <source>Jun</source>
        <translation>jun.</translation>
    </message>
    <message>
        <source>Jul</source>
        <translation>jul.</translation>
    </message>
    <message>
        <source>Aug</source>
        <translation>avg.</translation>
    </message>
    <message>
        <source>Sep</source>
        <translation>sep.</translation>
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
        <translation>Novi jezik velja po ponovnem zagonu.</translation>
    </message>
    <message>
        <source>The new decimal sign is shown after a restart.</source>
        <translation>Novo decimalno ločilo velja po ponovnem zagonu.</translation>
    </message>
</context>
<context>
    <name>TSelections</name>
    <message>
        <source>The selection could not be stored.</source>
        <translation>Izbire ni bilo mogoče shraniti.</translation>
    </message>
</context>
<context>
    <name>TSystemSettings</name>
    <message>
        <source>J_</source>
        <translation>N_</translation>
    </message>
    <message>
        <source>B_</source>
        <translation>M_</translation>
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
        <translation>Ni vozila</translation>
    </message>
    <message>
        <source>No Profile</source>
        <translation>Ni profila</translation>
    </message>
    <message>
        <source>No Implement</source>
        <translation>Ni priključka</translation>
    </message>
    <message>
        <source>Pivoted_</source>
        <translation>Vlečeni_</translation>
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
        <translation>jan.</translation>
    </message>
    <message>
        <source>Feb</source>
        <translation>feb.</translation>
    </message>
    <message>
        <source>Mar</source>
        <translation>mar.</translation>
    </message>
    <message>
        <source>Apr</source>
        <translation>apr.</translation>
    </message>
    <message>
        <source>May</source>
        <translation>maj</translation>
    </message>
    <message>
        <source>Jun</source>
        <translation>jun.</translation>
    </message>
    <message>
        <source>Jul</source>
        <translation>jul.</translation>
    </message>
    <message>
        <source>Aug</source>
        <translation>avg.</translation>
    </message>
    <message>
        <source>Sep</source>
        <translation>sep.</translation>
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
        <translation>milj</translation>
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
        <translation>l/vrt</translation>
    </message>
    <message>
        <source>gal/rev</source>
        <translation>gal/vrt</translation>
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
        <translation>kg/vrt</translation>
    </message>
    <message>
        <source>lb/rev</source>
        <translation>lb/vrt</translation>
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
        <translation>vrt/min</translation>
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
        <translation>Običajno</translation>
    </message>
    <message>
        <source>Trivial</source>
        <translation>Nepomembno</translation>
    </message>
</context>
<context>
    <name>TWork</name>
    <message>
        <source>An implement cannot have this width.</source>
        <translation>Priključek ne more imeti te širine.</translation>
    </message>
    <message>
        <source>A file of this job cannot be used. %1</source>
        <translation>Datoteke te naloge ni mogoče uporabiti. %1</translation>
    </message>
    <message>
        <source>Coverage was not complete and was left out: strips %1, bytes %2</source>
        <translation>Podatki o obdelani površini niso bili popolni in so izpuščeni: pasovi %1, bajti %2</translation>
    </message>
    <message>
        <source>The file of the flags is damaged; new flags are not stored.</source>
        <translation>Datoteka zastavic je poškodovana; nove zastavice se ne shranjujejo.</translation>
    </message>
    <message>
        <source>A file could not be stored. %1</source>
        <translation>Datoteke ni bilo mogoče shraniti. %1</translation>
    </message>
    <message>
        <source>The file of the implement cannot be used. %1</source>
        <translation>Datoteke priključka ni mogoče uporabiti. %1</translation>
    </message>
    <message>
        <source>There is no line.</source>
        <translation>Ni linije.</translation>
    </message>
    <message>
        <source>The line has no name.</source>
        <translation>Linija nima imena.</translation>
    </message>
    <message>
        <source>The guidance line cannot be used. %1</source>
        <translation>Vodilne linije ni mogoče uporabiti. %1</translation>
    </message>
    <message>
        <source>No job is chosen</source>
        <translation>Naloga ni izbrana</translation>
    </message>
    <message>
        <source>No job is chosen: what is covered is not stored.</source>
        <translation>Naloga ni izbrana: obdelana površina se ne shranjuje.</translation>
    </message>
    <message>
        <source>The coverage of this job cannot be used: what is covered is not stored.</source>
        <translation>Podatkov o obdelani površini v tej nalogi ni mogoče uporabiti: površina se ne shranjuje.</translation>
    </message>
    <message>
        <source>The coverage cannot be stored, and strips are lost: %1</source>
        <translation>Podatkov o obdelani površini ni mogoče shraniti in pasovi se izgubljajo: %1</translation>
    </message>
    <message>
        <source>The coverage is kept in memory until it can be stored. %1</source>
        <translation>Podatki o obdelani površini ostanejo v pomnilniku, dokler jih ni mogoče shraniti. %1</translation>
    </message>
    <message>
        <source>The job is still being read.</source>
        <translation>Naloga se še bere.</translation>
    </message>
</context>
<context>
    <name>TileTurner</name>
    <message>
        <source>Tiles</source>
        <translation>Ploščice</translation>
    </message>
</context>
<context>
    <name>Tiles</name>
    <message>
        <source>Rate</source>
        <translation>Odmerek</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Hitrost</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>Površina</translation>
    </message>
    <message>
        <source>Left</source>
        <comment>area that is left to work</comment>
        <translation>Ostanek</translation>
    </message>
    <message>
        <source>Work</source>
        <comment>area per hour</comment>
        <translation>Učinek</translation>
    </message>
    <message>
        <source>Flow</source>
        <translation>Pretok</translation>
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
        <translation>Pot</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Položaj</translation>
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
        <translation>Nazaj na začetno izbiro</translation>
    </message>
    <message>
        <source>%1 further ahead</source>
        <translation>%1: premakni naprej</translation>
    </message>
    <message>
        <source>Shown</source>
        <translation>Prikazano</translation>
    </message>
    <message>
        <source>Hidden</source>
        <translation>Skrito</translation>
    </message>
</context>
<context>
    <name>Transfer</name>
    <message>
        <source>Nothing is imported: some settings were changed here and in the profile.</source>
        <translation>Nič ni uvoženo: nekatere nastavitve so spremenjene tukaj in v profilu.</translation>
    </message>
    <message>
        <source>No stick is plugged in.</source>
        <translation>USB-ključek ni vstavljen.</translation>
    </message>
    <message>
        <source>The stick was removed before everything was on it.</source>
        <translation>USB-ključek je bil odstranjen, preden je bilo vse na njem.</translation>
    </message>
    <message>
        <source>The stick could not be written to the end.</source>
        <translation>Zapisa na USB-ključek ni bilo mogoče dokončati.</translation>
    </message>
    <message>
        <source>The folder %1 cannot be made.</source>
        <translation>Mape %1 ni mogoče ustvariti.</translation>
    </message>
    <message>
        <source>The file %1 cannot be written.</source>
        <translation>Datoteke %1 ni mogoče zapisati.</translation>
    </message>
    <message>
        <source>The logs are on the stick (files: %1).</source>
        <translation>Dnevniki so na USB-ključku (datoteke: %1).</translation>
    </message>
    <message>
        <source>The profile cannot be used. %1</source>
        <translation>Profila ni mogoče uporabiti. %1</translation>
    </message>
    <message>
        <source>Nothing is imported. %1</source>
        <translation>Nič ni uvoženo. %1</translation>
    </message>
    <message>
        <source>This display</source>
        <translation>Ta zaslon</translation>
    </message>
    <message>
        <source>Another display</source>
        <translation>Drug zaslon</translation>
    </message>
    <message>
        <source>The profile is not on the stick. %1</source>
        <translation>Profila ni na USB-ključku. %1</translation>
    </message>
    <message>
        <source>The profile is on the stick: %1.</source>
        <translation>Profil je na USB-ključku: %1.</translation>
    </message>
    <message>
        <source>The file for support is not on the stick. %1</source>
        <translation>Datoteke za podporo ni na USB-ključku. %1</translation>
    </message>
    <message>
        <source>The file for support is on the stick: %1.</source>
        <translation>Datoteka za podporo je na USB-ključku: %1.</translation>
    </message>
    <message>
        <source>The profile is imported (settings changed: %1).</source>
        <translation>Profil je uvožen (spremenjene nastavitve: %1).</translation>
    </message>
    <message>
        <source>It cannot be used.</source>
        <translation>Ni mogoče uporabiti.</translation>
    </message>
</context>
<context>
    <name>TransferState</name>
    <message>
        <source>Reading</source>
        <translation>Branje</translation>
    </message>
    <message>
        <source>Writing</source>
        <translation>Zapisovanje</translation>
    </message>
    <message>
        <source>Leave the stick where it is until this is done.</source>
        <translation>Ne odstranjujte USB-ključka, dokler to ni končano.</translation>
    </message>
</context>
<context>
    <name>WorkPage</name>
    <message>
        <source>Waiting for a position</source>
        <translation>Čakanje na položaj</translation>
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
        <translation>Obdeluje</translation>
    </message>
    <message>
        <source>Not working</source>
        <translation>Ne obdeluje</translation>
    </message>
    <message>
        <source>Working. Switch the implement off</source>
        <translation>Obdeluje. Izklopi priključek</translation>
    </message>
    <message>
        <source>Not working. Switch the implement on</source>
        <translation>Ne obdeluje. Vklopi priključek</translation>
    </message>
</context>
</TS>
