<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="lt" sourcelanguage="en">
<context>
    <name>About</name>
    <message>
        <source>Windows, files and connections</source>
        <translation>Langai, failai ir ryšiai</translation>
    </message>
    <message>
        <source>The file of the settings</source>
        <translation>Nuostatų failas</translation>
    </message>
    <message>
        <source>Profiles of settings</source>
        <translation>Nuostatų profiliai</translation>
    </message>
    <message>
        <source>Files for support</source>
        <translation>Failai servisui</translation>
    </message>
    <message>
        <source>Sunrise and sunset</source>
        <translation>Saulėtekis ir saulėlydis</translation>
    </message>
    <message>
        <source>Boundaries and zones</source>
        <translation>Ribos ir zonos</translation>
    </message>
    <message>
        <source>Software</source>
        <translation>Programa</translation>
    </message>
    <message>
        <source>The software of this display</source>
        <translation>Šio ekrano programa</translation>
    </message>
    <message>
        <source>Settings, units and logs</source>
        <translation>Nuostatos, vienetai ir žurnalai</translation>
    </message>
</context>
<context>
    <name>Clock</name>
    <message>
        <source>The clock of the machine; nothing has set it.</source>
        <translation>Prietaiso laikrodis; jis nenustatytas.</translation>
    </message>
    <message>
        <source>The clock was set by hand.</source>
        <translation>Laikrodis nustatytas ranka.</translation>
    </message>
    <message>
        <source>The receiver sets the clock.</source>
        <translation>Laikrodį nustato imtuvas.</translation>
    </message>
    <message>
        <source>There is no such date or time.</source>
        <translation>Tokios datos ar laiko nėra.</translation>
    </message>
    <message>
        <source>The date is more than 68 years from the clock of the machine.</source>
        <translation>Data nuo prietaiso laikrodžio skiriasi daugiau kaip 68 metais.</translation>
    </message>
    <message>
        <source>The clock could not be stored.</source>
        <translation>Laikrodžio laiko įrašyti nepavyko.</translation>
    </message>
</context>
<context>
    <name>ClockEntry</name>
    <message>
        <source>Year</source>
        <translation>Metai</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>Mėnuo</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Diena</translation>
    </message>
    <message>
        <source>Hour</source>
        <translation>Valanda</translation>
    </message>
    <message>
        <source>Minute</source>
        <translation>Minutė</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>Data ir laikas</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Laikas</translation>
    </message>
    <message>
        <source>%1: more</source>
        <translation>%1: daugiau</translation>
    </message>
    <message>
        <source>%1: less</source>
        <translation>%1: mažiau</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Atšaukti</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>Nustatyti</translation>
    </message>
</context>
<context>
    <name>ColorBar</name>
    <message>
        <source>%1: less</source>
        <translation>%1: mažiau</translation>
    </message>
    <message>
        <source>%1: more</source>
        <translation>%1: daugiau</translation>
    </message>
</context>
<context>
    <name>ColorPage</name>
    <message>
        <source>Former</source>
        <translation>Ankstesnė</translation>
    </message>
    <message>
        <source>Former colour</source>
        <translation>Ankstesnė spalva</translation>
    </message>
    <message>
        <source>First value</source>
        <translation>Pradinė</translation>
    </message>
    <message>
        <source>Digits of the colour</source>
        <translation>Spalvos skaitmenys</translation>
    </message>
    <message>
        <source>Hue</source>
        <translation>Atspalvis</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Sodrumas</translation>
    </message>
    <message>
        <source>Lightness</source>
        <translation>Šviesumas</translation>
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
        <translation>Naktis</translation>
    </message>
</context>
<context>
    <name>Contrasts</name>
    <message>
        <source>on %1: %2</source>
        <translation>ant „%1“: %2</translation>
    </message>
    <message>
        <source>under %1: %2</source>
        <translation>po „%1“: %2</translation>
    </message>
    <message>
        <source>%1, too low: at least %2</source>
        <translation>%1, per mažai: bent %2</translation>
    </message>
</context>
<context>
    <name>Difference</name>
    <message>
        <source>Changed on both sides</source>
        <translation>Pakeista abiejose pusėse</translation>
    </message>
    <message>
        <source>Here</source>
        <translation>Čia</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>Profilis</translation>
    </message>
</context>
<context>
    <name>Display</name>
    <message>
        <source>Restart</source>
        <translation>Paleisti iš naujo</translation>
    </message>
    <message>
        <source>The fonts of the display</source>
        <translation>Ekrano šriftai</translation>
    </message>
    <message>
        <source>The keyboard on the screen</source>
        <translation>Ekraninė klaviatūra</translation>
    </message>
</context>
<context>
    <name>DoorBand</name>
    <message>
        <source>Work</source>
        <translation>Darbas</translation>
    </message>
    <message>
        <source>Fields</source>
        <translation>Laukai</translation>
    </message>
    <message>
        <source>Receiver</source>
        <translation>Imtuvas</translation>
    </message>
    <message>
        <source>Logs</source>
        <translation>Žurnalai</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Nuostatos</translation>
    </message>
</context>
<context>
    <name>Drives</name>
    <message>
        <source>%1 free of %2</source>
        <translation>%1 laisva iš %2</translation>
    </message>
    <message>
        <source>Not known</source>
        <translation>Nežinoma</translation>
    </message>
    <message>
        <source>No stick</source>
        <translation>Nėra USB</translation>
    </message>
</context>
<context>
    <name>FieldsPage</name>
    <message>
        <source>Clients</source>
        <translation>Klientai</translation>
    </message>
    <message>
        <source>New client</source>
        <translation>Naujas klientas</translation>
    </message>
    <message>
        <source>No client yet.</source>
        <translation>Klientų dar nėra.</translation>
    </message>
    <message>
        <source>Farms</source>
        <translation>Ūkiai</translation>
    </message>
    <message>
        <source>New farm</source>
        <translation>Naujas ūkis</translation>
    </message>
    <message>
        <source>No farm yet.</source>
        <translation>Ūkių dar nėra.</translation>
    </message>
    <message>
        <source>Fields</source>
        <translation>Laukai</translation>
    </message>
    <message>
        <source>New field</source>
        <translation>Naujas laukas</translation>
    </message>
    <message>
        <source>No field yet.</source>
        <translation>Laukų dar nėra.</translation>
    </message>
    <message>
        <source>Jobs</source>
        <translation>Užduotys</translation>
    </message>
    <message>
        <source>New job</source>
        <translation>Nauja užduotis</translation>
    </message>
    <message>
        <source>No job yet.</source>
        <translation>Užduočių dar nėra.</translation>
    </message>
    <message>
        <source>Remove %1 with everything in it?</source>
        <translation>Šalinti %1 su visu turiniu?</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Gerai</translation>
    </message>
    <message>
        <source>Rename or remove %1</source>
        <translation>Pervadinti ar šalinti: %1</translation>
    </message>
    <message>
        <source>Rename %1</source>
        <translation>Pervadinti: %1</translation>
    </message>
    <message>
        <source>Remove everything</source>
        <translation>Šalinti viską</translation>
    </message>
</context>
<context>
    <name>Host</name>
    <message>
        <source>Details for the support: %1</source>
        <translation>Informacija servisui: %1</translation>
    </message>
    <message>
        <source>%3 Try: %4</source>
        <translation>%3 Galimas: %4</translation>
    </message>
    <message>
        <source>This name is not possible.</source>
        <translation>Šis pavadinimas negalimas.</translation>
    </message>
    <message>
        <source>The name is empty.</source>
        <translation>Pavadinimas tuščias.</translation>
    </message>
    <message>
        <source>This name stands for another folder.</source>
        <translation>Šis pavadinimas reiškia kitą aplanką.</translation>
    </message>
    <message>
        <source>The name must not contain %1.</source>
        <translation>Pavadinime negali būti %1.</translation>
    </message>
    <message>
        <source>The name contains a sign that cannot be seen.</source>
        <translation>Pavadinime yra nematomas ženklas.</translation>
    </message>
    <message>
        <source>The name contains a sign that is not complete.</source>
        <translation>Pavadinime yra neužbaigtas ženklas.</translation>
    </message>
    <message>
        <source>The name must not end in a full stop or a blank.</source>
        <translation>Pavadinimas negali baigtis tašku ar tarpu.</translation>
    </message>
    <message>
        <source>The name must not begin with a blank.</source>
        <translation>Pavadinimas negali prasidėti tarpu.</translation>
    </message>
    <message>
        <source>A stick cannot hold a file with this name.</source>
        <translation>USB atmintinėje negali būti failo tokiu pavadinimu.</translation>
    </message>
    <message>
        <source>The name is too long.</source>
        <translation>Pavadinimas per ilgas.</translation>
    </message>
    <message>
        <source>%2 exists already.</source>
        <translation>%2 jau yra.</translation>
    </message>
    <message numerus="yes">
        <source>%2 is active and holds %n file(s).</source>
        <translation>
            <numerusform>%2: aktyvu, turi %n failą.</numerusform>
            <numerusform>%2: aktyvu, turi %n failus.</numerusform>
            <numerusform>%2: aktyvu, turi %n failų.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%2 holds %n file(s).</source>
        <translation>
            <numerusform>%2 turi %n failą.</numerusform>
            <numerusform>%2 turi %n failus.</numerusform>
            <numerusform>%2 turi %n failų.</numerusform>
        </translation>
    </message>
    <message>
        <source>%2 is active.</source>
        <translation>%2: aktyvu.</translation>
    </message>
    <message>
        <source>%2 is no longer there.</source>
        <translation>%2 nebėra.</translation>
    </message>
    <message>
        <source>A stick cannot tell %2 from %3.</source>
        <translation>USB atmintinė neskiria %2 ir %3.</translation>
    </message>
    <message>
        <source>Another program is working on the fields. Try again later.</source>
        <translation>Su laukais dirba kita programa. Vėliau bandyti dar kartą.</translation>
    </message>
    <message>
        <source>The selection could not be stored.</source>
        <translation>Pasirinkimo įrašyti nepavyko.</translation>
    </message>
    <message>
        <source>%1 is neither a file nor a folder.</source>
        <translation>%1 nėra nei failas, nei aplankas.</translation>
    </message>
    <message>
        <source>The file was edited or is damaged.</source>
        <translation>Failas pakeistas arba sugadintas.</translation>
    </message>
    <message>
        <source>%1 cannot be read. %2</source>
        <translation>Negalima nuskaityti %1. %2</translation>
    </message>
    <message>
        <source>The file is of another kind.</source>
        <translation>Failas kitos rūšies.</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>Failas tuščias.</translation>
    </message>
    <message>
        <source>The end of the file is missing.</source>
        <translation>Trūksta failo pabaigos.</translation>
    </message>
    <message>
        <source>The file is damaged.</source>
        <translation>Failas sugadintas.</translation>
    </message>
    <message>
        <source>The file is not complete.</source>
        <translation>Faile ne visi duomenys.</translation>
    </message>
    <message>
        <source>The file is from another version of the software.</source>
        <translation>Failas sukurtas kita programos versija.</translation>
    </message>
    <message>
        <source>The file has a value that is not possible: %2</source>
        <translation>Faile yra neįmanoma reikšmė: %2</translation>
    </message>
    <message>
        <source>The file has a value twice: %2</source>
        <translation>Nuostata faile yra du kartus: %2</translation>
    </message>
    <message>
        <source>This address is not possible: %1</source>
        <translation>Šis adresas neįmanomas: %1</translation>
    </message>
    <message>
        <source>The device is not there.</source>
        <translation>Įrenginio nėra.</translation>
    </message>
    <message>
        <source>It is not permitted, or another program uses it.</source>
        <translation>Tai neleidžiama arba tai naudoja kita programa.</translation>
    </message>
    <message>
        <source>Another program uses it.</source>
        <translation>Tai naudoja kita programa.</translation>
    </message>
    <message>
        <source>It cannot be read.</source>
        <translation>Nuskaityti negalima.</translation>
    </message>
    <message>
        <source>It was unplugged.</source>
        <translation>Įrenginys atjungtas.</translation>
    </message>
    <message>
        <source>It is not a serial device, or it cannot have this speed.</source>
        <translation>Tai ne nuoseklusis įrenginys arba toks greitis negalimas.</translation>
    </message>
    <message>
        <source>The serial port has a fault (number %1).</source>
        <translation>Nuosekliojo prievado gedimas (numeris %1).</translation>
    </message>
    <message>
        <source>%1 is damaged or of another kind.</source>
        <translation>%1: duomenys sugadinti arba kitos rūšies.</translation>
    </message>
    <message>
        <source>%1 is from another version of the software.</source>
        <translation>%1: duomenys sukurti kita programos versija.</translation>
    </message>
    <message>
        <source>%1 is damaged.</source>
        <translation>%1: sugadinta.</translation>
    </message>
    <message>
        <source>%1 has other coordinates than WGS84.</source>
        <translation>%1: koordinatės ne WGS84.</translation>
    </message>
    <message>
        <source>%1 is not complete. %2 is missing.</source>
        <translation>%1: ne visi duomenys. Trūksta: %2.</translation>
    </message>
    <message>
        <source>%1 has no areas.</source>
        <translation>%1: plotų nėra.</translation>
    </message>
    <message>
        <source>Another program uses %1.</source>
        <translation>%1 naudoja kita programa.</translation>
    </message>
    <message>
        <source>A and B are too close together or too far apart.</source>
        <translation>A ir B per arti arba per toli vienas nuo kito.</translation>
    </message>
    <message>
        <source>Another program has locked it.</source>
        <translation>Tai užrakino kita programa.</translation>
    </message>
    <message>
        <source>It is no longer there.</source>
        <translation>To nebėra.</translation>
    </message>
    <message>
        <source>%1 is no longer there.</source>
        <translation>%1 nebėra.</translation>
    </message>
    <message>
        <source>%1 cannot be written. %2</source>
        <translation>Negalima įrašyti %1. %2</translation>
    </message>
    <message>
        <source>%1 cannot be written.</source>
        <translation>Negalima įrašyti %1.</translation>
    </message>
    <message>
        <source>The file of the settings has a fault (number %1).</source>
        <translation>Nuostatų failo klaida (numeris %1).</translation>
    </message>
    <message>
        <source>%1 cannot be opened. %2</source>
        <translation>Negalima atverti %1. %2</translation>
    </message>
    <message>
        <source>%1 cannot be created. %2</source>
        <translation>Negalima sukurti %1. %2</translation>
    </message>
    <message>
        <source>%1 cannot be copied. %2</source>
        <translation>Negalima kopijuoti %1. %2</translation>
    </message>
    <message>
        <source>%1 cannot be renamed. %2</source>
        <translation>Negalima pervadinti %1. %2</translation>
    </message>
    <message>
        <source>%1 cannot be removed. %2</source>
        <translation>Negalima pašalinti %1. %2</translation>
    </message>
    <message>
        <source>The drive is full.</source>
        <translation>Diskas pilnas.</translation>
    </message>
    <message>
        <source>The drive has a fault.</source>
        <translation>Disko gedimas.</translation>
    </message>
    <message>
        <source>The drive can only be read.</source>
        <translation>Diską galima tik skaityti.</translation>
    </message>
    <message>
        <source>It is not permitted.</source>
        <translation>Tai neleidžiama.</translation>
    </message>
    <message>
        <source>It cannot be opened.</source>
        <translation>Atverti negalima.</translation>
    </message>
    <message>
        <source>It is damaged.</source>
        <translation>Sugadinta.</translation>
    </message>
    <message>
        <source>It is not there.</source>
        <translation>Tokio kelio nėra.</translation>
    </message>
    <message>
        <source>It exists already.</source>
        <translation>Toks jau yra.</translation>
    </message>
    <message>
        <source>It is a folder.</source>
        <translation>Tai aplankas.</translation>
    </message>
    <message>
        <source>It is not a folder.</source>
        <translation>Tai ne aplankas.</translation>
    </message>
    <message>
        <source>The folder is not empty.</source>
        <translation>Aplankas netuščias.</translation>
    </message>
    <message>
        <source>The file is too large.</source>
        <translation>Failas per didelis.</translation>
    </message>
    <message>
        <source>Too many files are open.</source>
        <translation>Atverta per daug failų.</translation>
    </message>
    <message>
        <source>There is too little memory.</source>
        <translation>Per mažai atminties.</translation>
    </message>
    <message>
        <source>It is not possible there.</source>
        <translation>Ten tai neįmanoma.</translation>
    </message>
    <message>
        <source>The device refuses the connection.</source>
        <translation>Įrenginys atmeta ryšį.</translation>
    </message>
    <message>
        <source>The device has closed the connection.</source>
        <translation>Įrenginys nutraukė ryšį.</translation>
    </message>
    <message>
        <source>There is no device with this address.</source>
        <translation>Įrenginio šiuo adresu nėra.</translation>
    </message>
    <message>
        <source>The network cannot be reached.</source>
        <translation>Tinklas nepasiekiamas.</translation>
    </message>
    <message>
        <source>The device does not answer.</source>
        <translation>Įrenginys neatsako.</translation>
    </message>
    <message>
        <source>It is a link to another place.</source>
        <translation>Tai nuoroda į kitą vietą.</translation>
    </message>
    <message>
        <source>There are too many links to it.</source>
        <translation>Į tai veda per daug nuorodų.</translation>
    </message>
</context>
<context>
    <name>ItemActions</name>
    <message>
        <source>Rename</source>
        <translation>Pervadinti</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Šalinti</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Atšaukti</translation>
    </message>
</context>
<context>
    <name>ItemPage</name>
    <message>
        <source>New</source>
        <translation>Pridėti</translation>
    </message>
</context>
<context>
    <name>Keypad</name>
    <message>
        <source>%1 to %2 %3</source>
        <translation>Nuo %1 iki %2 %3</translation>
    </message>
    <message>
        <source>At least %1 %2</source>
        <translation>Bent %1 %2</translation>
    </message>
    <message>
        <source>At most %1 %2</source>
        <translation>Daugiausia %1 %2</translation>
    </message>
    <message>
        <source>This is not a number yet.</source>
        <translation>Tai dar ne skaičius.</translation>
    </message>
    <message>
        <source>Too large.
%1</source>
        <translation>Per didelis.
%1</translation>
    </message>
    <message>
        <source>Too small.
%1</source>
        <translation>Per mažas.
%1</translation>
    </message>
    <message>
        <source>now %1</source>
        <translation>dabar %1</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Atšaukti</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>Nustatyti</translation>
    </message>
    <message>
        <source>Decimal sign</source>
        <translation>Dešimt. ženklas</translation>
    </message>
    <message>
        <source>Plus or minus</source>
        <translation>Pliusas / minusas</translation>
    </message>
    <message>
        <source>Remove the last sign</source>
        <translation>Šalinti paskutinį ženklą</translation>
    </message>
    <message>
        <source>C</source>
        <comment>key that clears the entry</comment>
        <translation>C</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Išvalyti</translation>
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
        <translation>Nustatyti čia A, pirmąjį linijos galą</translation>
    </message>
    <message>
        <source>B</source>
        <comment>the other end of the guidance line</comment>
        <translation>B</translation>
    </message>
    <message>
        <source>Set B, the other end of the line, here</source>
        <translation>Nustatyti čia B, antrąjį linijos galą</translation>
    </message>
    <message>
        <source>Set a flag here</source>
        <translation>Statyti čia vėliavėlę</translation>
    </message>
</context>
<context>
    <name>LineChoice</name>
    <message>
        <source>New</source>
        <translation>Nauja</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Atšaukti</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Stabdyti</translation>
    </message>
</context>
<context>
    <name>LinePanel</name>
    <message>
        <source>%1 to the left</source>
        <translation>%1 į kairę</translation>
    </message>
    <message>
        <source>%1 to the right</source>
        <translation>%1 į dešinę</translation>
    </message>
</context>
<context>
    <name>LockLayer</name>
    <message>
        <source>The screen is locked. Hold the button to unlock it.</source>
        <translation>Ekranas užrakintas. Norint atrakinti, laikyti mygtuką nuspaustą.</translation>
    </message>
    <message>
        <source>Unlock</source>
        <translation>Atrakinti</translation>
    </message>
</context>
<context>
    <name>LogsPage</name>
    <message>
        <source>Logs</source>
        <translation>Žurnalai</translation>
    </message>
    <message>
        <source>Events</source>
        <translation>Įvykiai</translation>
    </message>
    <message>
        <source>Receiver</source>
        <translation>Imtuvas</translation>
    </message>
    <message>
        <source>Go on</source>
        <translation>Tęsti</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pauzė</translation>
    </message>
    <message>
        <source>No line yet.</source>
        <translation>Eilučių dar nėra.</translation>
    </message>
</context>
<context>
    <name>MachinePage</name>
    <message>
        <source>Implement width</source>
        <translation>Darbinis plotis</translation>
    </message>
    <message>
        <source>Decides the guidance lines beside each other, and the area done</source>
        <translation>Nustato apdirbtą plotą ir atstumą tarp navigavimo linijų</translation>
    </message>
    <message>
        <source>Implement behind the antenna</source>
        <translation>Padargas už antenos</translation>
    </message>
    <message>
        <source>How far the ground is covered behind the vehicle&apos;s place</source>
        <translation>Kaip toli už mašinos vietos dirbama žemė</translation>
    </message>
</context>
<context>
    <name>Main</name>
    <message>
        <source>Cab display</source>
        <translation>Kabinos ekranas</translation>
    </message>
</context>
<context>
    <name>MapButtons</name>
    <message>
        <source>Zoom in</source>
        <translation>Didinti</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Mažinti</translation>
    </message>
    <message>
        <source>The heading is up. Turn north up</source>
        <translation>Viršuje kryptis. Pasukti šiaure į viršų</translation>
    </message>
    <message>
        <source>North is up. Turn the heading up</source>
        <translation>Viršuje šiaurė. Pasukti kryptimi į viršų</translation>
    </message>
    <message>
        <source>Centre the vehicle</source>
        <translation>Mašina centre</translation>
    </message>
</context>
<context>
    <name>NameEntry</name>
    <message>
        <source>Cancel</source>
        <translation>Atšaukti</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>Nustatyti</translation>
    </message>
</context>
<context>
    <name>PageTurner</name>
    <message>
        <source>Rows above</source>
        <translation>Eilutės aukščiau</translation>
    </message>
    <message>
        <source>Rows below</source>
        <translation>Eilutės žemiau</translation>
    </message>
</context>
<context>
    <name>ParameterRow</name>
    <message>
        <source>%1: back to the first value</source>
        <translation>%1: grįžti prie pradinės reikšmės</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Atverti</translation>
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
        <translation>absoliutus kelias, kuris baigiasi „/“ ir nėra „/“</translation>
    </message>
    <message>
        <source>an absolute path</source>
        <translation>absoliutus kelias</translation>
    </message>
    <message>
        <source>a UUID in small letters, such as 6ba7b810-9dad-41d1-80b4-00c04fd430c8</source>
        <translation>UUID mažosiomis raidėmis, pvz., 6ba7b810-9dad-41d1-80b4-00c04fd430c8</translation>
    </message>
    <message>
        <source>simulator, tcp://HOST:PORT, serial:///dev/NAME?baud=N or an absolute path</source>
        <translation>simulator, tcp://HOST:PORT, serial:///dev/NAME?baud=N arba absoliutus kelias</translation>
    </message>
    <message>
        <source>true or false</source>
        <translation>true arba false</translation>
    </message>
    <message>
        <source>a time in UTC, such as 2026-03-05T13:05:09Z</source>
        <translation>laikas UTC, pvz., 2026-03-05T13:05:09Z</translation>
    </message>
    <message>
        <source>a colour: #rrggbb, #aarrggbb or a name such as navy</source>
        <translation>spalva: #rrggbb, #aarrggbb arba pavadinimas, pvz., navy</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>nuo %1 iki %2</translation>
    </message>
    <message>
        <source>Not a whole number.</source>
        <translation>Ne sveikasis skaičius.</translation>
    </message>
    <message>
        <source>Below the least value.</source>
        <translation>Mažiau už mažiausią reikšmę.</translation>
    </message>
    <message>
        <source>Above the greatest value.</source>
        <translation>Daugiau už didžiausią reikšmę.</translation>
    </message>
    <message>
        <source>This cannot be the name of a file. Try: %1</source>
        <translation>Failas negali turėti tokio pavadinimo. Galimas: %1</translation>
    </message>
    <message>
        <source>Not accepted. Expected: %1.</source>
        <translation>Nepriimta. Laukiama: %1.</translation>
    </message>
    <message>
        <source>a name without %1</source>
        <translation>pavadinimas be %1</translation>
    </message>
    <message>
        <source>a whole number</source>
        <translation>sveikasis skaičius</translation>
    </message>
    <message>
        <source>At least %1</source>
        <translation>Bent %1</translation>
    </message>
</context>
<context>
    <name>Parameters</name>
    <message>
        <source>the operator has chosen the offset from UTC; GPS time keeps it instead of computing it</source>
        <translation>operatorius pasirinko skirtumą nuo UTC; GPS laikas jį palieka, o ne skaičiuoja</translation>
    </message>
    <message>
        <source>metric units; otherwise US or English units</source>
        <translation>metriniai vienetai; kitaip JAV arba angliški</translation>
    </message>
    <message>
        <source>US measures when units are not metric; otherwise English measures</source>
        <translation>JAV matai, kai vienetai nemetriniai; kitaip angliški</translation>
    </message>
    <message>
        <source>positions in degrees, minutes and seconds; otherwise in decimal degrees</source>
        <translation>padėtys laipsniais, minutėmis ir sekundėmis; kitaip dešimtainiais laipsniais</translation>
    </message>
    <message>
        <source>24-hour clock; otherwise 12 hours with am and pm</source>
        <translation>24 valandų laikrodis; kitaip 12 valandų su am ir pm</translation>
    </message>
    <message>
        <source>dates with the month before the day</source>
        <translation>datos su mėnesiu prieš dieną</translation>
    </message>
    <message>
        <source>colours for day; otherwise for night</source>
        <translation>dienos spalvos; kitaip nakties</translation>
    </message>
    <message>
        <source>the map turns with the vehicle; otherwise north is up</source>
        <translation>žemėlapis sukasi su mašina; kitaip šiaurė viršuje</translation>
    </message>
    <message>
        <source>unit of pressures</source>
        <translation>slėgio vienetas</translation>
    </message>
    <message>
        <source>unit of areas, and of rates per area</source>
        <translation>ploto ir normų pagal plotą vienetas</translation>
    </message>
    <message>
        <source>unit of short distances: widths, offsets</source>
        <translation>trumpų atstumų vienetas: pločiai, poslinkiai</translation>
    </message>
    <message>
        <source>unit of granular volumes</source>
        <translation>granulių tūrio vienetas</translation>
    </message>
    <message>
        <source>unit of granular densities</source>
        <translation>granulių tankio vienetas</translation>
    </message>
    <message>
        <source>unit of liquid volumes, flows and rates</source>
        <translation>skysčio tūrio, srauto ir normų vienetas</translation>
    </message>
    <message>
        <source>language of the display&apos;s texts; a change needs a restart</source>
        <translation>ekrano tekstų kalba; pakeitus reikia perkrauti</translation>
    </message>
    <message>
        <source>decimal point or comma; a change needs a restart</source>
        <translation>dešimtainis taškas arba kablelis; pakeitus reikia perkrauti</translation>
    </message>
    <message>
        <source>when the colours switch between day and night: only by hand, at sunrise and sunset, or with the sun 6 degrees below the horizon</source>
        <translation>kada spalvos persijungia tarp dienos ir nakties: tik ranka, saulei tekant ir leidžiantis arba saulei esant 6 laipsniais žemiau horizonto</translation>
    </message>
    <message>
        <source>what set the display&apos;s clock</source>
        <translation>pagal ką nustatytas ekrano laikrodis</translation>
    </message>
    <message>
        <source>local time less UTC, whole hours</source>
        <translation>vietos laikas minus UTC, sveikos valandos</translation>
    </message>
    <message>
        <source>local time less UTC, minutes beyond the hours, with the sign of the hours</source>
        <translation>vietos laikas minus UTC, minutės virš valandų, su valandų ženklu</translation>
    </message>
    <message>
        <source>brightness of the lightbar at night</source>
        <translation>šviesos juostos ryškumas naktį</translation>
    </message>
    <message>
        <source>brightness of the screen at night</source>
        <translation>ekrano ryškumas naktį</translation>
    </message>
    <message>
        <source>brightness of the button lights at night</source>
        <translation>mygtukų šviesos ryškumas naktį</translation>
    </message>
    <message>
        <source>4: implements are kept in the folder of their vehicle; other numbers: in their own folder</source>
        <translation>4: padargai laikomi savo mašinos aplanke; kiti skaičiai: savame aplanke</translation>
    </message>
    <message>
        <source>number of the next file of the NMEA log</source>
        <translation>NMEA žurnalo kito failo numeris</translation>
    </message>
    <message>
        <source>number of the next file of the user log</source>
        <translation>naudotojo žurnalo kito failo numeris</translation>
    </message>
    <message>
        <source>the display&apos;s clock less UTC</source>
        <translation>ekrano laikrodis minus UTC</translation>
    </message>
    <message>
        <source>folder of the internal drive; by default in the data folder</source>
        <translation>vidinio disko aplankas; numatytasis – duomenų aplanke</translation>
    </message>
    <message>
        <source>mount point of the removable drive; by default in the data folder</source>
        <translation>keičiamojo disko prijungimo taškas; numatytasis – duomenų aplanke</translation>
    </message>
    <message>
        <source>the identity of the terminal, which its profiles carry</source>
        <translation>terminalo tapatybė, nurodyta jo profiliuose</translation>
    </message>
    <message>
        <source>where the sentences of the receiver come from</source>
        <translation>iš kur ateina imtuvo sakiniai</translation>
    </message>
    <message>
        <source>the figures beside the map, in this order</source>
        <translation>reikšmės šalia žemėlapio, šia tvarka</translation>
    </message>
    <message>
        <source>the newest time of a receiver, as of the last day on which one was seen</source>
        <translation>naujausias imtuvo laikas, iš paskutinės dienos su imtuvu</translation>
    </message>
    <message>
        <source>when the sun switched the colours last</source>
        <translation>kada saulė paskutinį kartą perjungė spalvas</translation>
    </message>
    <message>
        <source>the active job</source>
        <translation>aktyvi užduotis</translation>
    </message>
    <message>
        <source>the active boundary</source>
        <translation>aktyvi riba</translation>
    </message>
    <message>
        <source>the active straight guidance line</source>
        <translation>aktyvi tiesi navigavimo linija</translation>
    </message>
    <message>
        <source>the active pivot</source>
        <translation>aktyvus apskritimas</translation>
    </message>
    <message>
        <source>the active guidance curve</source>
        <translation>aktyvi navigavimo kreivė</translation>
    </message>
    <message>
        <source>the active shape file of optimal lines</source>
        <translation>aktyvus optimalių linijų shape failas</translation>
    </message>
    <message>
        <source>the active shape file of project lines</source>
        <translation>aktyvus projekto linijų shape failas</translation>
    </message>
    <message>
        <source>the active shape file of zones</source>
        <translation>aktyvus zonų shape failas</translation>
    </message>
    <message>
        <source>the active steering profile</source>
        <translation>aktyvus vairavimo profilis</translation>
    </message>
    <message>
        <source>the active implement</source>
        <translation>aktyvus padargas</translation>
    </message>
    <message>
        <source>the active vehicle</source>
        <translation>aktyvi mašina</translation>
    </message>
    <message>
        <source>the active sprayer</source>
        <translation>aktyvus purkštuvas</translation>
    </message>
    <message>
        <source>the active boom leveller</source>
        <translation>aktyvus sijos niveliavimas</translation>
    </message>
    <message>
        <source>the active client</source>
        <translation>aktyvus klientas</translation>
    </message>
    <message>
        <source>the active farm</source>
        <translation>aktyvus ūkis</translation>
    </message>
    <message>
        <source>the active field</source>
        <translation>aktyvus laukas</translation>
    </message>
    <message>
        <source>Measures</source>
        <translation>Matų sistema</translation>
    </message>
    <message>
        <source>Gallons and bushels</source>
        <translation>Galonai ir bušeliai</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>Plotas</translation>
    </message>
    <message>
        <source>Pressure</source>
        <translation>Slėgis</translation>
    </message>
    <message>
        <source>Short distances</source>
        <translation>Trumpi atstumai</translation>
    </message>
    <message>
        <source>Liquid</source>
        <translation>Skystis</translation>
    </message>
    <message>
        <source>Granular volume</source>
        <translation>Granulių tūris</translation>
    </message>
    <message>
        <source>Granular density</source>
        <translation>Granulių tankis</translation>
    </message>
    <message>
        <source>Positions</source>
        <translation>Padėtys</translation>
    </message>
    <message>
        <source>Rate per travel</source>
        <translation>Norma pagal kelią</translation>
    </message>
    <message>
        <source>Basis of rates</source>
        <translation>Normų pagrindas</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Kalba</translation>
    </message>
    <message>
        <source>Decimal sign</source>
        <translation>Dešimt. ženklas</translation>
    </message>
    <message>
        <source>Time of day</source>
        <translation>Laiko formatas</translation>
    </message>
    <message>
        <source>Dates</source>
        <translation>Datos</translation>
    </message>
    <message>
        <source>Time zone set by hand</source>
        <translation>Laiko juosta ranka</translation>
    </message>
    <message>
        <source>Time zone, hours</source>
        <translation>Laiko juosta, val.</translation>
    </message>
    <message>
        <source>Time zone, minutes</source>
        <translation>Laiko juosta, min.</translation>
    </message>
    <message>
        <source>Clock less UTC</source>
        <translation>Laikrodis – UTC</translation>
    </message>
    <message>
        <source>Source of the time</source>
        <translation>Laiko šaltinis</translation>
    </message>
    <message>
        <source>Source of the time since</source>
        <translation>Laiko šaltinis nuo</translation>
    </message>
    <message>
        <source>Newest receiver time</source>
        <translation>Naujausias imtuvo laikas</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>Spalvos</translation>
    </message>
    <message>
        <source>Day and night</source>
        <translation>Diena ir naktis</translation>
    </message>
    <message>
        <source>Map direction</source>
        <translation>Žemėlapio kryptis</translation>
    </message>
    <message>
        <source>Tiles</source>
        <translation>Langeliai</translation>
    </message>
    <message>
        <source>Light bar at night</source>
        <translation>Šviesos juosta naktį</translation>
    </message>
    <message>
        <source>Screen at night</source>
        <translation>Ekranas naktį</translation>
    </message>
    <message>
        <source>Button lights at night</source>
        <translation>Mygtukų šviesa naktį</translation>
    </message>
    <message>
        <source>Switched by the sun</source>
        <translation>Saulė perjungė</translation>
    </message>
    <message>
        <source>Client</source>
        <translation>Klientas</translation>
    </message>
    <message>
        <source>Farm</source>
        <translation>Ūkis</translation>
    </message>
    <message>
        <source>Field</source>
        <translation>Laukas</translation>
    </message>
    <message>
        <source>Job</source>
        <translation>Užduotis</translation>
    </message>
    <message>
        <source>Vehicle</source>
        <translation>Mašina</translation>
    </message>
    <message>
        <source>Implement</source>
        <translation>Padargas</translation>
    </message>
    <message>
        <source>Sprayer</source>
        <translation>Purkštuvas</translation>
    </message>
    <message>
        <source>Boom leveller</source>
        <translation>Sijos niveliavimas</translation>
    </message>
    <message>
        <source>Steering profile</source>
        <translation>Vairavimo profilis</translation>
    </message>
    <message>
        <source>Boundary</source>
        <translation>Riba</translation>
    </message>
    <message>
        <source>A-B line</source>
        <translation>A-B linija</translation>
    </message>
    <message>
        <source>Pivot</source>
        <translation>Apskritimas</translation>
    </message>
    <message>
        <source>Curve</source>
        <translation>Kreivė</translation>
    </message>
    <message>
        <source>Optimal lines</source>
        <translation>Optim. linijos</translation>
    </message>
    <message>
        <source>Project lines</source>
        <translation>Projekto linijos</translation>
    </message>
    <message>
        <source>Zones</source>
        <translation>Zonos</translation>
    </message>
    <message>
        <source>Receiver address</source>
        <translation>Imtuvo adresas</translation>
    </message>
    <message>
        <source>Internal drive</source>
        <translation>Vidinis diskas</translation>
    </message>
    <message>
        <source>Stick</source>
        <translation>USB atmintinė</translation>
    </message>
    <message>
        <source>Implement folder</source>
        <translation>Padargo aplankas</translation>
    </message>
    <message>
        <source>Next NMEA log</source>
        <translation>Kitas NMEA žurnalas</translation>
    </message>
    <message>
        <source>Next user log</source>
        <translation>Kitas naudotojo žurnalas</translation>
    </message>
    <message>
        <source>Identity</source>
        <translation>Tapatybė</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Tekstas</translation>
    </message>
    <message>
        <source>Colour of texts</source>
        <translation>Tekstų spalva</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Antraštė</translation>
    </message>
    <message>
        <source>Colour of titles</source>
        <translation>Antraščių spalva</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Fonas</translation>
    </message>
    <message>
        <source>Colour of the background</source>
        <translation>Fono spalva</translation>
    </message>
    <message>
        <source>Button</source>
        <translation>Mygtukas</translation>
    </message>
    <message>
        <source>Colour of buttons</source>
        <translation>Mygtukų spalva</translation>
    </message>
    <message>
        <source>Button text</source>
        <translation>Mygtuko tekstas</translation>
    </message>
    <message>
        <source>Colour of texts on buttons</source>
        <translation>Mygtukų tekstų spalva</translation>
    </message>
    <message>
        <source>Map</source>
        <translation>Žemėlapis</translation>
    </message>
    <message>
        <source>Colour of the map&apos;s ground</source>
        <translation>Žemėlapio pagrindo spalva</translation>
    </message>
    <message>
        <source>Grid</source>
        <translation>Tinklelis</translation>
    </message>
    <message>
        <source>Colour of the map&apos;s grid</source>
        <translation>Žemėlapio tinklelio spalva</translation>
    </message>
    <message>
        <source>Coverage</source>
        <translation>Apdirbta</translation>
    </message>
    <message>
        <source>Colour of covered ground</source>
        <translation>Apdirbtos žemės spalva</translation>
    </message>
    <message>
        <source>Vehicle on the map</source>
        <translation>Mašina žemėlapyje</translation>
    </message>
    <message>
        <source>Colour of the vehicle</source>
        <translation>Mašinos spalva</translation>
    </message>
    <message>
        <source>Guidance line</source>
        <translation>Navigavimo linija</translation>
    </message>
    <message>
        <source>Colour of the guidance line</source>
        <translation>Navigavimo linijos spalva</translation>
    </message>
    <message>
        <source>Cross hairs</source>
        <translation>Taikiklis</translation>
    </message>
    <message>
        <source>Colour of the cross hairs</source>
        <translation>Taikiklio spalva</translation>
    </message>
    <message>
        <source>Outer boundary</source>
        <translation>Išorinė riba</translation>
    </message>
    <message>
        <source>Colour of the outer boundary of the field</source>
        <translation>Lauko išorinės ribos spalva</translation>
    </message>
    <message>
        <source>Inner boundary</source>
        <translation>Vidinė riba</translation>
    </message>
    <message>
        <source>Colour of boundaries within the field</source>
        <translation>Ribų lauko viduje spalva</translation>
    </message>
    <message>
        <source>Other boundaries</source>
        <translation>Kitos ribos</translation>
    </message>
    <message>
        <source>Colour of boundaries that are not active</source>
        <translation>Neaktyvių ribų spalva</translation>
    </message>
    <message>
        <source>Exclusion zone</source>
        <translation>Draudžiama zona</translation>
    </message>
    <message>
        <source>Colour of zones to keep out of</source>
        <translation>Draudžiamų zonų spalva</translation>
    </message>
    <message>
        <source>Background picture</source>
        <translation>Fono paveikslas</translation>
    </message>
    <message>
        <source>Number of the background picture</source>
        <translation>Fono paveikslo numeris</translation>
    </message>
    <message>
        <source>what the sprayer&apos;s rates are related to</source>
        <translation>su kuo siejamos purkštuvo normos</translation>
    </message>
    <message>
        <source>liquid rates per 100 m or 100 yd of travel, while travel is their basis</source>
        <translation>skysčio normos 100 m arba 100 yd nuvažiuoto kelio, kol jos siejamos su keliu</translation>
    </message>
    <message>
        <source>since when the clock has its time from there</source>
        <translation>nuo kada laikrodžio laikas yra iš šio šaltinio</translation>
    </message>
    <message>
        <source>Metric</source>
        <translation>Metrinė</translation>
    </message>
    <message>
        <source>US or English</source>
        <translation>JAV arba angliška</translation>
    </message>
    <message>
        <source>US</source>
        <translation>JAV</translation>
    </message>
    <message>
        <source>English</source>
        <translation>Angliška</translation>
    </message>
    <message>
        <source>Deg., min., s</source>
        <translation>Laipsn., min, s</translation>
    </message>
    <message>
        <source>Degrees</source>
        <translation>Laipsniai</translation>
    </message>
    <message>
        <source>24 hours</source>
        <translation>24 valandos</translation>
    </message>
    <message>
        <source>am, pm</source>
        <translation>am, pm</translation>
    </message>
    <message>
        <source>Month first</source>
        <translation>Mėnuo, diena</translation>
    </message>
    <message>
        <source>Day first</source>
        <translation>Diena, mėnuo</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Diena</translation>
    </message>
    <message>
        <source>Night</source>
        <translation>Naktis</translation>
    </message>
    <message>
        <source>Heading up</source>
        <translation>Važ. kryptis</translation>
    </message>
    <message>
        <source>North up</source>
        <translation>Šiaurė</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Įj.</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Išj.</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Taip</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Ne</translation>
    </message>
    <message>
        <source>Travel</source>
        <translation>Kelias</translation>
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
        <translation>Hektaras</translation>
    </message>
    <message>
        <source>Acre</source>
        <translation>Akras</translation>
    </message>
    <message>
        <source>m, mm</source>
        <translation>m, mm</translation>
    </message>
    <message>
        <source>Inch</source>
        <translation>Colis</translation>
    </message>
    <message>
        <source>Foot</source>
        <translation>Pėda</translation>
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
        <translation>JAV bušelis</translation>
    </message>
    <message>
        <source>UK bushel</source>
        <translation>JK bušelis</translation>
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
        <translation>Taškas</translation>
    </message>
    <message>
        <source>Comma</source>
        <translation>Kablelis</translation>
    </message>
    <message>
        <source>By hand</source>
        <translation>Ranka</translation>
    </message>
    <message>
        <source>Sunset</source>
        <translation>Saulėlydis</translation>
    </message>
    <message>
        <source>Twilight</source>
        <translation>Prieblanda</translation>
    </message>
    <message>
        <source>Not set</source>
        <translation>Nenustatyta</translation>
    </message>
    <message>
        <source>Operator</source>
        <translation>Operatorius</translation>
    </message>
    <message>
        <source>Receiver</source>
        <translation>Imtuvas</translation>
    </message>
    <message>
        <source>Rate</source>
        <translation>Norma</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Greitis</translation>
    </message>
    <message>
        <source>Area done</source>
        <translation>Atlikt. plotas</translation>
    </message>
    <message>
        <source>Area left</source>
        <translation>Likęs plotas</translation>
    </message>
    <message>
        <source>Productivity</source>
        <translation>Našumas</translation>
    </message>
    <message>
        <source>Flow</source>
        <translation>Srautas</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperatūra</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>Atstumas</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Padėtis</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Laikas</translation>
    </message>
    <message>
        <source>Units</source>
        <translation>Vienetai</translation>
    </message>
    <message>
        <source>Rates</source>
        <translation>Normos</translation>
    </message>
    <message>
        <source>Region</source>
        <translation>Regionas</translation>
    </message>
    <message>
        <source>Clock</source>
        <translation>Laikrodis</translation>
    </message>
    <message>
        <source>Colours of the schemes</source>
        <translation>Schemų spalvos</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Rodymas</translation>
    </message>
    <message>
        <source>Selections</source>
        <translation>Pasirinkimai</translation>
    </message>
    <message>
        <source>Storage</source>
        <translation>Saugykla</translation>
    </message>
    <message>
        <source>Logs</source>
        <translation>Žurnalai</translation>
    </message>
    <message>
        <source>Terminal</source>
        <translation>Terminalas</translation>
    </message>
    <message>
        <source>%1, by day</source>
        <translation>%1, dieną</translation>
    </message>
    <message>
        <source>%1, by night</source>
        <translation>%1, naktį</translation>
    </message>
</context>
<context>
    <name>Problems</name>
    <message>
        <source>The logs lose lines: their drive is full or cannot be written.</source>
        <translation>Žurnalai praranda eilutes: jų diskas pilnas arba į jį negalima rašyti.</translation>
    </message>
    <message>
        <source>Recording is off, because there is too little room.</source>
        <translation>Įrašymas išjungtas, nes per mažai vietos.</translation>
    </message>
    <message>
        <source>Changes of settings are not stored yet. %1</source>
        <translation>Nuostatų pakeitimai dar neįrašyti. %1</translation>
    </message>
    <message>
        <source>The drive of the terminal is nearly full. Free: %1</source>
        <translation>Terminalo diskas beveik pilnas. Laisva: %1</translation>
    </message>
</context>
<context>
    <name>ProfilePage</name>
    <message>
        <source>Import</source>
        <translation>Importuoti</translation>
    </message>
    <message>
        <source>The display has these settings already.</source>
        <translation>Ekranas šias nuostatas jau turi.</translation>
    </message>
    <message>
        <source>Changed here and in the profile</source>
        <translation>Pakeista čia ir profilyje</translation>
    </message>
    <message>
        <source>Which value the settings below shall have</source>
        <translation>Kurią reikšmę turi gauti toliau nurodytos nuostatos</translation>
    </message>
    <message>
        <source>Ours</source>
        <translation>Vietinė</translation>
    </message>
    <message>
        <source>Theirs</source>
        <translation>Profilio</translation>
    </message>
</context>
<context>
    <name>ProfilesPage</name>
    <message>
        <source>Profiles</source>
        <translation>Profiliai</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Eksportuoti</translation>
    </message>
    <message>
        <source>There is no profile on the stick.</source>
        <translation>USB atmintinėje profilio nėra.</translation>
    </message>
    <message>
        <source>No stick is plugged in.</source>
        <translation>USB atmintinė neprijungta.</translation>
    </message>
    <message>
        <source>Name of the profile</source>
        <translation>Profilio pavadinimas</translation>
    </message>
</context>
<context>
    <name>Quantities</name>
    <message>
        <source>Area</source>
        <translation>Plotas</translation>
    </message>
    <message>
        <source>Productivity</source>
        <translation>Našumas</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Greitis</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>Atstumas</translation>
    </message>
    <message>
        <source>Small distance</source>
        <translation>Mažas atstumas</translation>
    </message>
    <message>
        <source>Travelled distance</source>
        <translation>Nuvažiuotas atstumas</translation>
    </message>
    <message>
        <source>Altitude</source>
        <translation>Aukštis</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperatūra</translation>
    </message>
    <message>
        <source>Pressure</source>
        <translation>Slėgis</translation>
    </message>
    <message>
        <source>Rate</source>
        <translation>Norma</translation>
    </message>
    <message>
        <source>Requested rate</source>
        <translation>Nustatyta norma</translation>
    </message>
    <message>
        <source>Rate and error</source>
        <translation>Norma ir nuokrypis</translation>
    </message>
    <message>
        <source>Small rate</source>
        <translation>Maža norma</translation>
    </message>
    <message>
        <source>Flow</source>
        <translation>Srautas</translation>
    </message>
    <message>
        <source>Small flow</source>
        <translation>Mažas srautas</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Tūris</translation>
    </message>
    <message>
        <source>Small volume</source>
        <translation>Mažas tūris</translation>
    </message>
    <message>
        <source>Granular volume</source>
        <translation>Granulių tūris</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>Masė</translation>
    </message>
    <message>
        <source>Weight per area</source>
        <translation>Masė ploto vienetui</translation>
    </message>
    <message>
        <source>Weight per area and error</source>
        <translation>Masė ploto vienetui ir nuokrypis</translation>
    </message>
    <message>
        <source>Discharge</source>
        <translation>Išbėrimas</translation>
    </message>
    <message>
        <source>Nitrogen</source>
        <translation>Azotas</translation>
    </message>
    <message>
        <source>Nitrogen per area</source>
        <translation>Azotas ploto vienetui</translation>
    </message>
    <message>
        <source>Seeds per area</source>
        <translation>Sėklos ploto vnt.</translation>
    </message>
    <message>
        <source>Density</source>
        <translation>Tankis</translation>
    </message>
    <message>
        <source>Granular density</source>
        <translation>Granulių tankis</translation>
    </message>
    <message>
        <source>Volume per revolution</source>
        <translation>Tūris per apsisukimą</translation>
    </message>
    <message>
        <source>Weight per revolution</source>
        <translation>Masė per apsisukimą</translation>
    </message>
    <message>
        <source>Flow meter</source>
        <translation>Srauto matuoklis</translation>
    </message>
    <message>
        <source>Wheel sensor</source>
        <translation>Rato jutiklis</translation>
    </message>
    <message>
        <source>Speed sensor</source>
        <translation>Greičio jutiklis</translation>
    </message>
    <message>
        <source>Latitude</source>
        <translation>Geogr. plat.</translation>
    </message>
    <message>
        <source>Longitude</source>
        <translation>Geogr. ilg.</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Trukmė</translation>
    </message>
    <message>
        <source>Percent</source>
        <translation>Procentai</translation>
    </message>
</context>
<context>
    <name>Question</name>
    <message>
        <source>Cancel</source>
        <translation>Atšaukti</translation>
    </message>
</context>
<context>
    <name>RateTile</name>
    <message>
        <source>set %1</source>
        <comment>the rate that is set</comment>
        <translation>nust. %1</translation>
    </message>
</context>
<context>
    <name>Receiver</name>
    <message>
        <source>Off</source>
        <translation>Išjungtas</translation>
    </message>
    <message>
        <source>Connecting</source>
        <translation>Jungiamasi</translation>
    </message>
    <message>
        <source>Receiving</source>
        <translation>Priima</translation>
    </message>
    <message>
        <source>Silent</source>
        <translation>Tyli</translation>
    </message>
    <message>
        <source>Lost</source>
        <translation>Prarastas</translation>
    </message>
    <message>
        <source>Ended</source>
        <translation>Baigta</translation>
    </message>
    <message>
        <source>No fix</source>
        <translation>Nėra padėties</translation>
    </message>
    <message>
        <source>RTK float</source>
        <translation>RTK float</translation>
    </message>
    <message>
        <source>Estimated</source>
        <translation>Apytikslė</translation>
    </message>
    <message>
        <source>By hand</source>
        <translation>Ranka</translation>
    </message>
    <message>
        <source>Simulated</source>
        <translation>Simuliuojama</translation>
    </message>
    <message>
        <source>The receiver sends nothing.</source>
        <translation>Imtuvas nieko nesiunčia.</translation>
    </message>
    <message>
        <source>The receiver is lost and is being looked for. %1</source>
        <translation>Imtuvas prarastas ir jo ieškoma. %1</translation>
    </message>
    <message>
        <source>The receiver cannot be read. %1</source>
        <translation>Imtuvo nuskaityti negalima. %1</translation>
    </message>
    <message>
        <source>The simulated field is done.</source>
        <translation>Simuliuojamas laukas baigtas.</translation>
    </message>
    <message>
        <source>The recording of the receiver is over.</source>
        <translation>Imtuvo įrašas baigėsi.</translation>
    </message>
</context>
<context>
    <name>ReceiverPage</name>
    <message>
        <source>Receiver</source>
        <translation>Imtuvas</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Stabdyti</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Pradėti</translation>
    </message>
    <message>
        <source>Simulator</source>
        <translation>Simuliatorius</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Failas</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Tinklas</translation>
    </message>
    <message>
        <source>Serial</source>
        <translation>Nuoseklusis</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adresas</translation>
    </message>
    <message>
        <source>Fix</source>
        <translation>Padėt. tipas</translation>
    </message>
    <message>
        <source>Age</source>
        <translation>Amžius</translation>
    </message>
    <message>
        <source>Satellites</source>
        <translation>Palydovai</translation>
    </message>
    <message>
        <source>HDOP</source>
        <translation>HDOP</translation>
    </message>
    <message>
        <source>Time (UTC)</source>
        <translation>Laikas (UTC)</translation>
    </message>
    <message>
        <source>Lines</source>
        <translation>Eilutės</translation>
    </message>
    <message>
        <source>Sentences</source>
        <translation>Sakiniai</translation>
    </message>
    <message>
        <source>Bad checksums</source>
        <translation>Blogos sumos</translation>
    </message>
    <message>
        <source>Damaged lines</source>
        <translation>Blogos eilutės</translation>
    </message>
    <message>
        <source>Address of the receiver</source>
        <translation>Imtuvo adresas</translation>
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
        <translation>Laikas</translation>
    </message>
    <message>
        <source>Time zone</source>
        <translation>Laiko juosta</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>Data ir laikas</translation>
    </message>
    <message>
        <source>Set by hand</source>
        <translation>Nustatyti ranka</translation>
    </message>
</context>
<context>
    <name>SearchPage</name>
    <message>
        <source>Search</source>
        <translation>Ieškoti</translation>
    </message>
    <message>
        <source>Words of a setting</source>
        <translation>Ieškomi žodžiai</translation>
    </message>
    <message>
        <source>No setting has these words.</source>
        <translation>Nuostatos su tokiais žodžiais nėra.</translation>
    </message>
</context>
<context>
    <name>SettingsPage</name>
    <message>
        <source>Units</source>
        <translation>Vienetai</translation>
    </message>
    <message>
        <source>Region</source>
        <translation>Regionas</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>Spalvos</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Rodymas</translation>
    </message>
    <message>
        <source>Machine</source>
        <translation>Technika</translation>
    </message>
    <message>
        <source>Storage</source>
        <translation>Saugykla</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Apie ekraną</translation>
    </message>
    <message>
        <source>Tiles</source>
        <translation>Langeliai</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>Profiliai</translation>
    </message>
    <message>
        <source>All settings</source>
        <translation>Visos nuostatos</translation>
    </message>
</context>
<context>
    <name>SettingsPanel</name>
    <message>
        <source>Back</source>
        <translation>Atgal</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Ieškoti</translation>
    </message>
</context>
<context>
    <name>Sizes</name>
    <message numerus="yes">
        <source>%n byte(s)</source>
        <translation>
            <numerusform>%n baitas</numerusform>
            <numerusform>%n baitai</numerusform>
            <numerusform>%n baitų</numerusform>
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
        <translation>Be užduoties</translation>
    </message>
    <message>
        <source>Receiver: %1</source>
        <translation>Imtuvas: %1</translation>
    </message>
    <message>
        <source>The stick is plugged in</source>
        <translation>USB atmintinė prijungta</translation>
    </message>
    <message>
        <source>Lock the screen</source>
        <translation>Užrakinti ekraną</translation>
    </message>
    <message>
        <source>Colours of the night</source>
        <translation>Nakties spalvos</translation>
    </message>
    <message>
        <source>Colours of the day</source>
        <translation>Dienos spalvos</translation>
    </message>
</context>
<context>
    <name>StoragePage</name>
    <message>
        <source>Open</source>
        <translation>Atverti</translation>
    </message>
    <message>
        <source>Internal drive</source>
        <translation>Vidinis diskas</translation>
    </message>
    <message>
        <source>Stick</source>
        <translation>USB atmintinė</translation>
    </message>
    <message>
        <source>No stick is plugged in.</source>
        <translation>USB atmintinė neprijungta.</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Atmintis</translation>
    </message>
    <message>
        <source>Logs</source>
        <translation>Žurnalai</translation>
    </message>
    <message>
        <source>Writes all log files to the stick</source>
        <translation>Įrašo visus žurnalų failus į USB atmintinę</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Eksportuoti</translation>
    </message>
    <message>
        <source>Export the logs</source>
        <translation>Eksportuoti žurnalus</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>Profiliai</translation>
    </message>
    <message>
        <source>Takes the settings to another display, or brings them back from the stick</source>
        <translation>Perkelia nuostatas į kitą ekraną arba grąžina jas iš USB atmintinės</translation>
    </message>
    <message>
        <source>Open the profiles</source>
        <translation>Atverti profilius</translation>
    </message>
    <message>
        <source>Support</source>
        <translation>Servisas</translation>
    </message>
    <message>
        <source>Writes logs, settings and versions in one file; without the names of clients, farms and fields</source>
        <translation>Įrašo žurnalus, nuostatas ir versijas į vieną failą; be klientų, ūkių ir laukų pavadinimų</translation>
    </message>
    <message>
        <source>Write</source>
        <translation>Rašyti</translation>
    </message>
    <message>
        <source>Write the file for support without names</source>
        <translation>Rašyti failą servisui be pavadinimų</translation>
    </message>
    <message>
        <source>Support, with names</source>
        <translation>Servisas, su pavadinimais</translation>
    </message>
    <message>
        <source>The same file, with all names and places</source>
        <translation>Tas pats failas su visais pavadinimais ir vietomis</translation>
    </message>
    <message>
        <source>Write the file for support with names</source>
        <translation>Rašyti failą servisui su pavadinimais</translation>
    </message>
</context>
<context>
    <name>TFieldTreeModel</name>
    <message>
        <source>A job holds no items.</source>
        <translation>Užduotyje daugiau nieko nėra.</translation>
    </message>
    <message>
        <source>There is one with this name already.</source>
        <translation>Toks pavadinimas jau yra.</translation>
    </message>
    <message numerus="yes">
        <source>%n file(s), %1</source>
        <translation>
            <numerusform>%n failas, %1</numerusform>
            <numerusform>%n failai, %1</numerusform>
            <numerusform>%n failų, %1</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>TParameter</name>
    <message>
        <source>The setting could not be written to the disk yet.</source>
        <translation>Nuostatos dar nepavyko įrašyti į diską.</translation>
    </message>
    <message>
        <source>There is no value to set.</source>
        <translation>Nėra reikšmės, kurią nustatyti.</translation>
    </message>
</context>
<context>
    <name>TRegionSettings</name>
    <message>
        <source>Jan</source>
        <translation>saus.</translation>
    </message>
    <message>
        <source>Feb</source>
        <translation>vas.</translation>
    </message>
    <message>
        <source>Mar</source>
        <translation>kov.</translation>
    </message>
    <message>
        <source>Apr</source>
        <translation>bal.</translation>
    </message>
    <message>
        <source>May</source>
        <translation>geg.</translation>
    </message>
    <message>
        <source>Jun</source>
        <translation>birž.</translation>
    </message>
    <message>
        <source>Jul</source>
        <translation>liep.</translation>
    </message>
    <message>
        <source>Aug</source>
        <translation>rugp.</translation>
    </message>
    <message>
        <source>Sep</source>
        <translation>rugs.</translation>
    </message>
    <message>
        <source>Oct</source>
        <translation>spal.</translation>
    </message>
    <message>
        <source>Nov</source>
        <translation>lapkr.</translation>
    </message>
    <message>
        <source>Dec</source>
        <translation>gruod.</translation>
    </message>
</context>
<context>
    <name>TRestart</name>
    <message>
        <source>The new language is shown after a restart.</source>
        <translation>Nauja kalba bus rodoma paleidus iš naujo.</translation>
    </message>
    <message>
        <source>The new decimal sign is shown after a restart.</source>
        <translation>Naujas dešimtainis ženklas bus rodomas paleidus iš naujo.</translation>
    </message>
</context>
<context>
    <name>TSelections</name>
    <message>
        <source>The selection could not be stored.</source>
        <translation>Pasirinkimo įrašyti nepavyko.</translation>
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
        <translation>K_</translation>
    </message>
    <message>
        <source>O_</source>
        <translation>O_</translation>
    </message>
    <message>
        <source>No Vehicle</source>
        <translation>Be mašinos</translation>
    </message>
    <message>
        <source>No Profile</source>
        <translation>Be profilio</translation>
    </message>
    <message>
        <source>No Implement</source>
        <translation>Be padargo</translation>
    </message>
    <message>
        <source>Pivoted_</source>
        <translation>Prikabinamas_</translation>
    </message>
</context>
<context>
    <name>TTransfer</name>
    <message>
        <source>The name is empty.</source>
        <translation>Pavadinimas tuščias.</translation>
    </message>
</context>
<context>
    <name>TUnitAbbreviations</name>
    <message>
        <source>Jan</source>
        <translation>saus.</translation>
    </message>
    <message>
        <source>Feb</source>
        <translation>vas.</translation>
    </message>
    <message>
        <source>Mar</source>
        <translation>kov.</translation>
    </message>
    <message>
        <source>Apr</source>
        <translation>bal.</translation>
    </message>
    <message>
        <source>May</source>
        <translation>geg.</translation>
    </message>
    <message>
        <source>Jun</source>
        <translation>birž.</translation>
    </message>
    <message>
        <source>Jul</source>
        <translation>liep.</translation>
    </message>
    <message>
        <source>Aug</source>
        <translation>rugp.</translation>
    </message>
    <message>
        <source>Sep</source>
        <translation>rugs.</translation>
    </message>
    <message>
        <source>Oct</source>
        <translation>spal.</translation>
    </message>
    <message>
        <source>Nov</source>
        <translation>lapkr.</translation>
    </message>
    <message>
        <source>Dec</source>
        <translation>gruod.</translation>
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
        <translation>mylios</translation>
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
        <translation>l/aps.</translation>
    </message>
    <message>
        <source>gal/rev</source>
        <translation>gal/aps.</translation>
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
        <translation>kg/aps.</translation>
    </message>
    <message>
        <source>lb/rev</source>
        <translation>lb/aps.</translation>
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
        <translation>aps./min</translation>
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
        <translation>Kritinis</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Įprastas</translation>
    </message>
    <message>
        <source>Trivial</source>
        <translation>Nesvarbus</translation>
    </message>
</context>
<context>
    <name>TWork</name>
    <message>
        <source>An implement cannot have this width.</source>
        <translation>Toks darbinis plotis negalimas.</translation>
    </message>
    <message>
        <source>A file of this job cannot be used. %1</source>
        <translation>Šios užduoties failo naudoti negalima. %1</translation>
    </message>
    <message>
        <source>Coverage was not complete and was left out: strips %1, bytes %2</source>
        <translation>Apdirbto ploto duomenys buvo ne visi, dalis praleista: juostos %1, baitai %2</translation>
    </message>
    <message>
        <source>The file of the flags is damaged; new flags are not stored.</source>
        <translation>Vėliavėlių failas sugadintas; naujos vėliavėlės neįrašomos.</translation>
    </message>
    <message>
        <source>A file could not be stored. %1</source>
        <translation>Failo įrašyti nepavyko. %1</translation>
    </message>
    <message>
        <source>The file of the implement cannot be used. %1</source>
        <translation>Padargo failo naudoti negalima. %1</translation>
    </message>
    <message>
        <source>There is no line.</source>
        <translation>Linijos nėra.</translation>
    </message>
    <message>
        <source>The line has no name.</source>
        <translation>Linija neturi pavadinimo.</translation>
    </message>
    <message>
        <source>The guidance line cannot be used. %1</source>
        <translation>Navigavimo linijos naudoti negalima. %1</translation>
    </message>
    <message>
        <source>No job is chosen</source>
        <translation>Užduotis nepasirinkta</translation>
    </message>
    <message>
        <source>No job is chosen: what is covered is not stored.</source>
        <translation>Užduotis nepasirinkta: apdirbtas plotas neįrašomas.</translation>
    </message>
    <message>
        <source>The coverage of this job cannot be used: what is covered is not stored.</source>
        <translation>Šios užduoties apdirbto ploto naudoti negalima: apdirbtas plotas neįrašomas.</translation>
    </message>
    <message>
        <source>The coverage cannot be stored, and strips are lost: %1</source>
        <translation>Apdirbto ploto įrašyti negalima, juostos prarandamos: %1</translation>
    </message>
    <message>
        <source>The coverage is kept in memory until it can be stored. %1</source>
        <translation>Apdirbtas plotas laikomas atmintyje, kol jį bus galima įrašyti. %1</translation>
    </message>
    <message>
        <source>The job is still being read.</source>
        <translation>Užduotis dar skaitoma.</translation>
    </message>
</context>
<context>
    <name>TileTurner</name>
    <message>
        <source>Tiles</source>
        <translation>Langeliai</translation>
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
        <translation>Greitis</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>Plotas</translation>
    </message>
    <message>
        <source>Left</source>
        <comment>area that is left to work</comment>
        <translation>Liko</translation>
    </message>
    <message>
        <source>Work</source>
        <comment>area per hour</comment>
        <translation>Našumas</translation>
    </message>
    <message>
        <source>Flow</source>
        <translation>Srautas</translation>
    </message>
    <message>
        <source>Press.</source>
        <comment>pressure</comment>
        <translation>Slėgis</translation>
    </message>
    <message>
        <source>Temp.</source>
        <comment>temperature</comment>
        <translation>Temp.</translation>
    </message>
    <message>
        <source>Driven</source>
        <translation>Kelias</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Padėtis</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Laikas</translation>
    </message>
</context>
<context>
    <name>TilesPage</name>
    <message>
        <source>Back to the first choice</source>
        <translation>Grįžti prie pradinio pasirinkimo</translation>
    </message>
    <message>
        <source>%1 further ahead</source>
        <translation>%1: į priekį</translation>
    </message>
    <message>
        <source>Shown</source>
        <translation>Rodoma</translation>
    </message>
    <message>
        <source>Hidden</source>
        <translation>Paslėpta</translation>
    </message>
</context>
<context>
    <name>Transfer</name>
    <message>
        <source>Nothing is imported: some settings were changed here and in the profile.</source>
        <translation>Nieko neimportuota: kai kurios nuostatos pakeistos čia ir profilyje.</translation>
    </message>
    <message>
        <source>No stick is plugged in.</source>
        <translation>USB atmintinė neprijungta.</translation>
    </message>
    <message>
        <source>The stick was removed before everything was on it.</source>
        <translation>USB atmintinė išimta anksčiau, nei į ją viskas įrašyta.</translation>
    </message>
    <message>
        <source>The stick could not be written to the end.</source>
        <translation>Į USB atmintinę nepavyko įrašyti iki galo.</translation>
    </message>
    <message>
        <source>The folder %1 cannot be made.</source>
        <translation>Aplanko %1 sukurti negalima.</translation>
    </message>
    <message>
        <source>The file %1 cannot be written.</source>
        <translation>Failo %1 įrašyti negalima.</translation>
    </message>
    <message>
        <source>The logs are on the stick (files: %1).</source>
        <translation>Žurnalai yra USB atmintinėje (failai: %1).</translation>
    </message>
    <message>
        <source>The profile cannot be used. %1</source>
        <translation>Profilio naudoti negalima. %1</translation>
    </message>
    <message>
        <source>Nothing is imported. %1</source>
        <translation>Nieko neimportuota. %1</translation>
    </message>
    <message>
        <source>This display</source>
        <translation>Šis ekranas</translation>
    </message>
    <message>
        <source>Another display</source>
        <translation>Kitas ekranas</translation>
    </message>
    <message>
        <source>The profile is not on the stick. %1</source>
        <translation>Profilio USB atmintinėje nėra. %1</translation>
    </message>
    <message>
        <source>The profile is on the stick: %1.</source>
        <translation>Profilis yra USB atmintinėje: %1.</translation>
    </message>
    <message>
        <source>The file for support is not on the stick. %1</source>
        <translation>Failo servisui USB atmintinėje nėra. %1</translation>
    </message>
    <message>
        <source>The file for support is on the stick: %1.</source>
        <translation>Failas servisui yra USB atmintinėje: %1.</translation>
    </message>
    <message>
        <source>The profile is imported (settings changed: %1).</source>
        <translation>Profilis importuotas (pakeistos nuostatos: %1).</translation>
    </message>
    <message>
        <source>It cannot be used.</source>
        <translation>Naudoti negalima.</translation>
    </message>
</context>
<context>
    <name>TransferState</name>
    <message>
        <source>Reading</source>
        <translation>Skaitoma</translation>
    </message>
    <message>
        <source>Writing</source>
        <translation>Rašoma</translation>
    </message>
    <message>
        <source>Leave the stick where it is until this is done.</source>
        <translation>Neišimti USB atmintinės, kol nebaigta.</translation>
    </message>
</context>
<context>
    <name>WorkPage</name>
    <message>
        <source>Waiting for a position</source>
        <translation>Laukiama padėties</translation>
    </message>
    <message>
        <source>Map</source>
        <translation>Žemėlapis</translation>
    </message>
</context>
<context>
    <name>WorkingButton</name>
    <message>
        <source>Working</source>
        <translation>Dirba</translation>
    </message>
    <message>
        <source>Not working</source>
        <translation>Nedirba</translation>
    </message>
    <message>
        <source>Working. Switch the implement off</source>
        <translation>Dirba. Išjungti padargą</translation>
    </message>
    <message>
        <source>Not working. Switch the implement on</source>
        <translation>Nedirba. Įjungti padargą</translation>
    </message>
</context>
</TS>
