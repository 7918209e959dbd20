<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ro" sourcelanguage="en">
<context>
    <name>About</name>
    <message>
        <source>Windows, files and connections</source>
        <translation>Ferestre, fișiere și conexiuni</translation>
    </message>
    <message>
        <source>The file of the settings</source>
        <translation>Fișierul setărilor</translation>
    </message>
    <message>
        <source>Profiles of settings</source>
        <translation>Profiluri de setări</translation>
    </message>
    <message>
        <source>Files for support</source>
        <translation>Fișiere pentru asistență</translation>
    </message>
    <message>
        <source>Sunrise and sunset</source>
        <translation>Răsărit și apus de soare</translation>
    </message>
    <message>
        <source>Boundaries and zones</source>
        <translation>Contururi și zone</translation>
    </message>
    <message>
        <source>Software</source>
        <translation>Software</translation>
    </message>
    <message>
        <source>The software of this display</source>
        <translation>Software-ul acestui terminal</translation>
    </message>
    <message>
        <source>Settings, units and logs</source>
        <translation>Setări, unități și jurnale</translation>
    </message>
</context>
<context>
    <name>Clock</name>
    <message>
        <source>The clock of the machine; nothing has set it.</source>
        <translation>Ceasul aparatului; nu a fost potrivit.</translation>
    </message>
    <message>
        <source>The clock was set by hand.</source>
        <translation>Ceasul a fost potrivit manual.</translation>
    </message>
    <message>
        <source>The receiver sets the clock.</source>
        <translation>Receptorul potrivește ceasul.</translation>
    </message>
    <message>
        <source>There is no such date or time.</source>
        <translation>Această dată sau oră nu există.</translation>
    </message>
    <message>
        <source>The date is more than 68 years from the clock of the machine.</source>
        <translation>Data este la peste 68 de ani de ceasul aparatului.</translation>
    </message>
    <message>
        <source>The clock could not be stored.</source>
        <translation>Ceasul nu a putut fi salvat.</translation>
    </message>
</context>
<context>
    <name>ClockEntry</name>
    <message>
        <source>Year</source>
        <translation>An</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>Lună</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Zi</translation>
    </message>
    <message>
        <source>Hour</source>
        <translation>Oră</translation>
    </message>
    <message>
        <source>Minute</source>
        <translation>Minut</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>Data și ora</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Ora</translation>
    </message>
    <message>
        <source>%1: more</source>
        <translation>%1: mai mult</translation>
    </message>
    <message>
        <source>%1: less</source>
        <translation>%1: mai puțin</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anulare</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>Confirmare</translation>
    </message>
</context>
<context>
    <name>ColorBar</name>
    <message>
        <source>%1: less</source>
        <translation>%1: mai puțin</translation>
    </message>
    <message>
        <source>%1: more</source>
        <translation>%1: mai mult</translation>
    </message>
</context>
<context>
    <name>ColorPage</name>
    <message>
        <source>Former</source>
        <translation>Anterioară</translation>
    </message>
    <message>
        <source>Former colour</source>
        <translation>Culoare anterioară</translation>
    </message>
    <message>
        <source>First value</source>
        <translation>Din fabrică</translation>
    </message>
    <message>
        <source>Digits of the colour</source>
        <translation>Cifrele culorii</translation>
    </message>
    <message>
        <source>Hue</source>
        <translation>Nuanță</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Saturație</translation>
    </message>
    <message>
        <source>Lightness</source>
        <translation>Luminozitate</translation>
    </message>
</context>
<context>
    <name>ColorsPage</name>
    <message>
        <source>Day</source>
        <translation>Zi</translation>
    </message>
    <message>
        <source>Night</source>
        <translation>Noapte</translation>
    </message>
</context>
<context>
    <name>Contrasts</name>
    <message>
        <source>on %1: %2</source>
        <translation>pe %1: %2</translation>
    </message>
    <message>
        <source>under %1: %2</source>
        <translation>sub %1: %2</translation>
    </message>
    <message>
        <source>%1, too low: at least %2</source>
        <translation>%1, prea mic: cel puțin %2</translation>
    </message>
</context>
<context>
    <name>Difference</name>
    <message>
        <source>Changed on both sides</source>
        <translation>Schimbat în ambele</translation>
    </message>
    <message>
        <source>Here</source>
        <translation>Aici</translation>
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
        <translation>Repornire</translation>
    </message>
    <message>
        <source>The fonts of the display</source>
        <translation>Fonturile terminalului</translation>
    </message>
    <message>
        <source>The keyboard on the screen</source>
        <translation>Tastatura de pe ecran</translation>
    </message>
</context>
<context>
    <name>DoorBand</name>
    <message>
        <source>Work</source>
        <translation>Lucru</translation>
    </message>
    <message>
        <source>Fields</source>
        <translation>Parcele</translation>
    </message>
    <message>
        <source>Receiver</source>
        <translation>Receptor</translation>
    </message>
    <message>
        <source>Logs</source>
        <translation>Jurnale</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Setări</translation>
    </message>
</context>
<context>
    <name>Drives</name>
    <message>
        <source>%1 free of %2</source>
        <translation>%1 liberi din %2</translation>
    </message>
    <message>
        <source>Not known</source>
        <translation>Necunoscut</translation>
    </message>
    <message>
        <source>No stick</source>
        <translation>Fără stick</translation>
    </message>
</context>
<context>
    <name>FieldsPage</name>
    <message>
        <source>Clients</source>
        <translation>Clienți</translation>
    </message>
    <message>
        <source>New client</source>
        <translation>Client nou</translation>
    </message>
    <message>
        <source>No client yet.</source>
        <translation>Încă niciun client.</translation>
    </message>
    <message>
        <source>Farms</source>
        <translation>Ferme</translation>
    </message>
    <message>
        <source>New farm</source>
        <translation>Fermă nouă</translation>
    </message>
    <message>
        <source>No farm yet.</source>
        <translation>Încă nicio fermă.</translation>
    </message>
    <message>
        <source>Fields</source>
        <translation>Parcele</translation>
    </message>
    <message>
        <source>New field</source>
        <translation>Parcelă nouă</translation>
    </message>
    <message>
        <source>No field yet.</source>
        <translation>Încă nicio parcelă.</translation>
    </message>
    <message>
        <source>Jobs</source>
        <translation>Lucrări</translation>
    </message>
    <message>
        <source>New job</source>
        <translation>Lucrare nouă</translation>
    </message>
    <message>
        <source>No job yet.</source>
        <translation>Încă nicio lucrare.</translation>
    </message>
    <message>
        <source>Remove %1 with everything in it?</source>
        <translation>Se șterge %1 cu tot conținutul?</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Rename or remove %1</source>
        <translation>Redenumire sau ștergere: %1</translation>
    </message>
    <message>
        <source>Rename %1</source>
        <translation>Redenumire: %1</translation>
    </message>
    <message>
        <source>Remove everything</source>
        <translation>Ștergere totală</translation>
    </message>
</context>
<context>
    <name>Host</name>
    <message>
        <source>Details for the support: %1</source>
        <translation>Detalii pentru asistență: %1</translation>
    </message>
    <message>
        <source>%3 Try: %4</source>
        <translation>%3 Sugestie: %4</translation>
    </message>
    <message>
        <source>This name is not possible.</source>
        <translation>Acest nume nu este posibil.</translation>
    </message>
    <message>
        <source>The name is empty.</source>
        <translation>Numele este gol.</translation>
    </message>
    <message>
        <source>This name stands for another folder.</source>
        <translation>Acest nume desemnează alt dosar.</translation>
    </message>
    <message>
        <source>The name must not contain %1.</source>
        <translation>Numele nu poate conține %1.</translation>
    </message>
    <message>
        <source>The name contains a sign that cannot be seen.</source>
        <translation>Numele conține un caracter invizibil.</translation>
    </message>
    <message>
        <source>The name contains a sign that is not complete.</source>
        <translation>Numele conține un caracter incomplet.</translation>
    </message>
    <message>
        <source>The name must not end in a full stop or a blank.</source>
        <translation>Numele nu se poate termina cu punct sau spațiu.</translation>
    </message>
    <message>
        <source>The name must not begin with a blank.</source>
        <translation>Numele nu poate începe cu spațiu.</translation>
    </message>
    <message>
        <source>A stick cannot hold a file with this name.</source>
        <translation>Un stick nu poate păstra un fișier cu acest nume.</translation>
    </message>
    <message>
        <source>The name is too long.</source>
        <translation>Numele este prea lung.</translation>
    </message>
    <message>
        <source>%2 exists already.</source>
        <translation>%2 există deja.</translation>
    </message>
    <message numerus="yes">
        <source>%2 is active and holds %n file(s).</source>
        <translation>
            <numerusform>%2 este în uz și conține %n fișier.</numerusform>
            <numerusform>%2 este în uz și conține %n fișiere.</numerusform>
            <numerusform>%2 este în uz și conține %n de fișiere.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%2 holds %n file(s).</source>
        <translation>
            <numerusform>%2 conține %n fișier.</numerusform>
            <numerusform>%2 conține %n fișiere.</numerusform>
            <numerusform>%2 conține %n de fișiere.</numerusform>
        </translation>
    </message>
    <message>
        <source>%2 is active.</source>
        <translation>%2 este în uz.</translation>
    </message>
    <message>
        <source>%2 is no longer there.</source>
        <translation>%2 nu mai există.</translation>
    </message>
    <message>
        <source>A stick cannot tell %2 from %3.</source>
        <translation>Un stick nu deosebește %2 de %3.</translation>
    </message>
    <message>
        <source>Another program is working on the fields. Try again later.</source>
        <translation>Alt program lucrează la parcele. A se încerca din nou mai târziu.</translation>
    </message>
    <message>
        <source>The selection could not be stored.</source>
        <translation>Selecția nu a putut fi salvată.</translation>
    </message>
    <message>
        <source>%1 is neither a file nor a folder.</source>
        <translation>%1 nu este nici fișier, nici dosar.</translation>
    </message>
    <message>
        <source>The file was edited or is damaged.</source>
        <translation>Fișierul a fost modificat sau este deteriorat.</translation>
    </message>
    <message>
        <source>%1 cannot be read. %2</source>
        <translation>Nu se poate citi %1. %2</translation>
    </message>
    <message>
        <source>The file is of another kind.</source>
        <translation>Fișierul este de alt tip.</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>Fișierul este gol.</translation>
    </message>
    <message>
        <source>The end of the file is missing.</source>
        <translation>Lipsește sfârșitul fișierului.</translation>
    </message>
    <message>
        <source>The file is damaged.</source>
        <translation>Fișierul este deteriorat.</translation>
    </message>
    <message>
        <source>The file is not complete.</source>
        <translation>Fișierul nu este complet.</translation>
    </message>
    <message>
        <source>The file is from another version of the software.</source>
        <translation>Fișierul este din altă versiune a software-ului.</translation>
    </message>
    <message>
        <source>The file has a value that is not possible: %2</source>
        <translation>Fișierul are o valoare imposibilă: %2</translation>
    </message>
    <message>
        <source>The file has a value twice: %2</source>
        <translation>Fișierul conține o setare de două ori: %2</translation>
    </message>
    <message>
        <source>This address is not possible: %1</source>
        <translation>Această adresă nu este posibilă: %1</translation>
    </message>
    <message>
        <source>The device is not there.</source>
        <translation>Dispozitivul lipsește.</translation>
    </message>
    <message>
        <source>It is not permitted, or another program uses it.</source>
        <translation>Nu este permis sau este folosit de alt program.</translation>
    </message>
    <message>
        <source>Another program uses it.</source>
        <translation>Este folosit de alt program.</translation>
    </message>
    <message>
        <source>It cannot be read.</source>
        <translation>Nu poate fi citit.</translation>
    </message>
    <message>
        <source>It was unplugged.</source>
        <translation>A fost deconectat.</translation>
    </message>
    <message>
        <source>It is not a serial device, or it cannot have this speed.</source>
        <translation>Nu este un dispozitiv serial sau nu poate avea această viteză.</translation>
    </message>
    <message>
        <source>The serial port has a fault (number %1).</source>
        <translation>Portul serial are o defecțiune (numărul %1).</translation>
    </message>
    <message>
        <source>%1 is damaged or of another kind.</source>
        <translation>Fișierul %1 este deteriorat sau de alt tip.</translation>
    </message>
    <message>
        <source>%1 is from another version of the software.</source>
        <translation>Fișierul %1 este din altă versiune a software-ului.</translation>
    </message>
    <message>
        <source>%1 is damaged.</source>
        <translation>Fișierul %1 este deteriorat.</translation>
    </message>
    <message>
        <source>%1 has other coordinates than WGS84.</source>
        <translation>Fișierul %1 are alte coordonate decât WGS84.</translation>
    </message>
    <message>
        <source>%1 is not complete. %2 is missing.</source>
        <translation>Fișierul %1 nu este complet. Lipsește %2.</translation>
    </message>
    <message>
        <source>%1 has no areas.</source>
        <translation>Fișierul %1 nu are suprafețe.</translation>
    </message>
    <message>
        <source>Another program uses %1.</source>
        <translation>Alt program folosește %1.</translation>
    </message>
    <message>
        <source>A and B are too close together or too far apart.</source>
        <translation>A și B sunt prea apropiate sau prea depărtate.</translation>
    </message>
    <message>
        <source>Another program has locked it.</source>
        <translation>Este blocat de alt program.</translation>
    </message>
    <message>
        <source>It is no longer there.</source>
        <translation>Fișierul nu mai există.</translation>
    </message>
    <message>
        <source>%1 is no longer there.</source>
        <translation>%1 nu mai există.</translation>
    </message>
    <message>
        <source>%1 cannot be written. %2</source>
        <translation>Nu se poate scrie %1. %2</translation>
    </message>
    <message>
        <source>%1 cannot be written.</source>
        <translation>Nu se poate scrie %1.</translation>
    </message>
    <message>
        <source>The file of the settings has a fault (number %1).</source>
        <translation>Fișierul setărilor are o eroare (numărul %1).</translation>
    </message>
    <message>
        <source>%1 cannot be opened. %2</source>
        <translation>Nu se poate deschide %1. %2</translation>
    </message>
    <message>
        <source>%1 cannot be created. %2</source>
        <translation>Nu se poate crea %1. %2</translation>
    </message>
    <message>
        <source>%1 cannot be copied. %2</source>
        <translation>Nu se poate copia %1. %2</translation>
    </message>
    <message>
        <source>%1 cannot be renamed. %2</source>
        <translation>Nu se poate redenumi %1. %2</translation>
    </message>
    <message>
        <source>%1 cannot be removed. %2</source>
        <translation>Nu se poate șterge %1. %2</translation>
    </message>
    <message>
        <source>The drive is full.</source>
        <translation>Discul este plin.</translation>
    </message>
    <message>
        <source>The drive has a fault.</source>
        <translation>Discul are o defecțiune.</translation>
    </message>
    <message>
        <source>The drive can only be read.</source>
        <translation>Discul poate fi doar citit.</translation>
    </message>
    <message>
        <source>It is not permitted.</source>
        <translation>Nu este permis.</translation>
    </message>
    <message>
        <source>It cannot be opened.</source>
        <translation>Nu poate fi deschis.</translation>
    </message>
    <message>
        <source>It is damaged.</source>
        <translation>Fișierul este deteriorat.</translation>
    </message>
    <message>
        <source>It is not there.</source>
        <translation>Calea nu există.</translation>
    </message>
    <message>
        <source>It exists already.</source>
        <translation>Numele există deja.</translation>
    </message>
    <message>
        <source>It is a folder.</source>
        <translation>Este un dosar.</translation>
    </message>
    <message>
        <source>It is not a folder.</source>
        <translation>Nu este un dosar.</translation>
    </message>
    <message>
        <source>The folder is not empty.</source>
        <translation>Dosarul nu este gol.</translation>
    </message>
    <message>
        <source>The file is too large.</source>
        <translation>Fișierul este prea mare.</translation>
    </message>
    <message>
        <source>Too many files are open.</source>
        <translation>Sunt prea multe fișiere deschise.</translation>
    </message>
    <message>
        <source>There is too little memory.</source>
        <translation>Este prea puțină memorie.</translation>
    </message>
    <message>
        <source>It is not possible there.</source>
        <translation>Nu este posibil acolo.</translation>
    </message>
    <message>
        <source>The device refuses the connection.</source>
        <translation>Dispozitivul refuză conexiunea.</translation>
    </message>
    <message>
        <source>The device has closed the connection.</source>
        <translation>Dispozitivul a închis conexiunea.</translation>
    </message>
    <message>
        <source>There is no device with this address.</source>
        <translation>Niciun dispozitiv nu are această adresă.</translation>
    </message>
    <message>
        <source>The network cannot be reached.</source>
        <translation>Rețeaua nu este accesibilă.</translation>
    </message>
    <message>
        <source>The device does not answer.</source>
        <translation>Dispozitivul nu răspunde.</translation>
    </message>
    <message>
        <source>It is a link to another place.</source>
        <translation>Este o legătură către alt loc.</translation>
    </message>
    <message>
        <source>There are too many links to it.</source>
        <translation>Prea multe legături duc acolo.</translation>
    </message>
</context>
<context>
    <name>ItemActions</name>
    <message>
        <source>Rename</source>
        <translation>Redenumire</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Ștergere</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anulare</translation>
    </message>
</context>
<context>
    <name>ItemPage</name>
    <message>
        <source>New</source>
        <translation>Nou</translation>
    </message>
</context>
<context>
    <name>Keypad</name>
    <message>
        <source>%1 to %2 %3</source>
        <translation>De la %1 la %2 %3</translation>
    </message>
    <message>
        <source>At least %1 %2</source>
        <translation>Cel puțin %1 %2</translation>
    </message>
    <message>
        <source>At most %1 %2</source>
        <translation>Cel mult %1 %2</translation>
    </message>
    <message>
        <source>This is not a number yet.</source>
        <translation>Încă nu este un număr.</translation>
    </message>
    <message>
        <source>Too large.
%1</source>
        <translation>Prea mare.
%1</translation>
    </message>
    <message>
        <source>Too small.
%1</source>
        <translation>Prea mic.
%1</translation>
    </message>
    <message>
        <source>now %1</source>
        <translation>acum %1</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anulare</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>Confirmare</translation>
    </message>
    <message>
        <source>Decimal sign</source>
        <translation>Separator zecimal</translation>
    </message>
    <message>
        <source>Plus or minus</source>
        <translation>Plus sau minus</translation>
    </message>
    <message>
        <source>Remove the last sign</source>
        <translation>Ștergerea ultimului caracter</translation>
    </message>
    <message>
        <source>C</source>
        <comment>key that clears the entry</comment>
        <translation>C</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Ștergere</translation>
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
        <translation>Fixarea punctului A (primul capăt al liniei) aici</translation>
    </message>
    <message>
        <source>B</source>
        <comment>the other end of the guidance line</comment>
        <translation>B</translation>
    </message>
    <message>
        <source>Set B, the other end of the line, here</source>
        <translation>Fixarea punctului B (celălalt capăt al liniei) aici</translation>
    </message>
    <message>
        <source>Set a flag here</source>
        <translation>Fixarea unui steguleț aici</translation>
    </message>
</context>
<context>
    <name>LineChoice</name>
    <message>
        <source>New</source>
        <translation>Nouă</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anulare</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Oprire</translation>
    </message>
</context>
<context>
    <name>LinePanel</name>
    <message>
        <source>%1 to the left</source>
        <translation>%1 la stânga</translation>
    </message>
    <message>
        <source>%1 to the right</source>
        <translation>%1 la dreapta</translation>
    </message>
</context>
<context>
    <name>LockLayer</name>
    <message>
        <source>The screen is locked. Hold the button to unlock it.</source>
        <translation>Ecranul este blocat. Pentru deblocare se ține apăsat butonul.</translation>
    </message>
    <message>
        <source>Unlock</source>
        <translation>Deblocare</translation>
    </message>
</context>
<context>
    <name>LogsPage</name>
    <message>
        <source>Logs</source>
        <translation>Jurnale</translation>
    </message>
    <message>
        <source>Events</source>
        <translation>Evenimente</translation>
    </message>
    <message>
        <source>Receiver</source>
        <translation>Receptor</translation>
    </message>
    <message>
        <source>Go on</source>
        <translation>Continuare</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pauză</translation>
    </message>
    <message>
        <source>No line yet.</source>
        <translation>Încă nicio linie.</translation>
    </message>
</context>
<context>
    <name>MachinePage</name>
    <message>
        <source>Implement width</source>
        <translation>Lățimea utilajului</translation>
    </message>
    <message>
        <source>Decides the guidance lines beside each other, and the area done</source>
        <translation>Stabilește liniile de ghidare alăturate și suprafața lucrată</translation>
    </message>
    <message>
        <source>Implement behind the antenna</source>
        <translation>Utilaj în spatele antenei</translation>
    </message>
    <message>
        <source>How far the ground is covered behind the vehicle&apos;s place</source>
        <translation>Cât de departe în spatele poziției vehiculului este acoperit solul</translation>
    </message>
</context>
<context>
    <name>Main</name>
    <message>
        <source>Cab display</source>
        <translation>Terminal cabină</translation>
    </message>
</context>
<context>
    <name>MapButtons</name>
    <message>
        <source>Zoom in</source>
        <translation>Mărire</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Micșorare</translation>
    </message>
    <message>
        <source>The heading is up. Turn north up</source>
        <translation>Direcția de mers este sus. Nordul în sus</translation>
    </message>
    <message>
        <source>North is up. Turn the heading up</source>
        <translation>Nordul este sus. Direcția de mers în sus</translation>
    </message>
    <message>
        <source>Centre the vehicle</source>
        <translation>Centrarea vehiculului</translation>
    </message>
</context>
<context>
    <name>NameEntry</name>
    <message>
        <source>Cancel</source>
        <translation>Anulare</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>Confirmare</translation>
    </message>
</context>
<context>
    <name>PageTurner</name>
    <message>
        <source>Rows above</source>
        <translation>Rândurile de sus</translation>
    </message>
    <message>
        <source>Rows below</source>
        <translation>Rândurile de jos</translation>
    </message>
</context>
<context>
    <name>ParameterRow</name>
    <message>
        <source>%1: back to the first value</source>
        <translation>%1: înapoi la valoarea din fabrică</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Deschidere</translation>
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
        <translation>o cale absolută care se termină cu &quot;/&quot; și nu este &quot;/&quot;</translation>
    </message>
    <message>
        <source>an absolute path</source>
        <translation>o cale absolută</translation>
    </message>
    <message>
        <source>a UUID in small letters, such as 6ba7b810-9dad-41d1-80b4-00c04fd430c8</source>
        <translation>un UUID cu litere mici, ca 6ba7b810-9dad-41d1-80b4-00c04fd430c8</translation>
    </message>
    <message>
        <source>simulator, tcp://HOST:PORT, serial:///dev/NAME?baud=N or an absolute path</source>
        <translation>simulator, tcp://HOST:PORT, serial:///dev/NAME?baud=N sau o cale absolută</translation>
    </message>
    <message>
        <source>true or false</source>
        <translation>true sau false</translation>
    </message>
    <message>
        <source>a time in UTC, such as 2026-03-05T13:05:09Z</source>
        <translation>o oră în UTC, ca 2026-03-05T13:05:09Z</translation>
    </message>
    <message>
        <source>a colour: #rrggbb, #aarrggbb or a name such as navy</source>
        <translation>o culoare: #rrggbb, #aarrggbb sau un nume ca navy</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>de la %1 la %2</translation>
    </message>
    <message>
        <source>Not a whole number.</source>
        <translation>Nu este un număr întreg.</translation>
    </message>
    <message>
        <source>Below the least value.</source>
        <translation>Sub valoarea minimă.</translation>
    </message>
    <message>
        <source>Above the greatest value.</source>
        <translation>Peste valoarea maximă.</translation>
    </message>
    <message>
        <source>This cannot be the name of a file. Try: %1</source>
        <translation>Nu poate fi nume de fișier. Sugestie: %1</translation>
    </message>
    <message>
        <source>Not accepted. Expected: %1.</source>
        <translation>Neacceptat. Se așteaptă: %1.</translation>
    </message>
    <message>
        <source>a name without %1</source>
        <translation>un nume fără %1</translation>
    </message>
    <message>
        <source>a whole number</source>
        <translation>un număr întreg</translation>
    </message>
    <message>
        <source>At least %1</source>
        <translation>Cel puțin %1</translation>
    </message>
</context>
<context>
    <name>Parameters</name>
    <message>
        <source>the operator has chosen the offset from UTC; GPS time keeps it instead of computing it</source>
        <translation>operatorul a ales diferența față de UTC; ora GPS o păstrează în loc să o calculeze</translation>
    </message>
    <message>
        <source>metric units; otherwise US or English units</source>
        <translation>unități metrice; altfel unități americane sau imperiale</translation>
    </message>
    <message>
        <source>US measures when units are not metric; otherwise English measures</source>
        <translation>măsuri americane dacă unitățile nu sunt metrice; altfel măsuri imperiale</translation>
    </message>
    <message>
        <source>positions in degrees, minutes and seconds; otherwise in decimal degrees</source>
        <translation>poziții în grade, minute și secunde; altfel în grade zecimale</translation>
    </message>
    <message>
        <source>24-hour clock; otherwise 12 hours with am and pm</source>
        <translation>ceas de 24 de ore; altfel 12 ore cu am și pm</translation>
    </message>
    <message>
        <source>dates with the month before the day</source>
        <translation>date cu luna înaintea zilei</translation>
    </message>
    <message>
        <source>colours for day; otherwise for night</source>
        <translation>culori de zi; altfel de noapte</translation>
    </message>
    <message>
        <source>the map turns with the vehicle; otherwise north is up</source>
        <translation>harta se rotește cu vehiculul; altfel nordul este sus</translation>
    </message>
    <message>
        <source>unit of pressures</source>
        <translation>unitatea presiunilor</translation>
    </message>
    <message>
        <source>unit of areas, and of rates per area</source>
        <translation>unitatea suprafețelor și a dozelor pe suprafață</translation>
    </message>
    <message>
        <source>unit of short distances: widths, offsets</source>
        <translation>unitatea distanțelor scurte: lățimi, decalaje</translation>
    </message>
    <message>
        <source>unit of granular volumes</source>
        <translation>unitatea volumelor de granule</translation>
    </message>
    <message>
        <source>unit of granular densities</source>
        <translation>unitatea densităților de granule</translation>
    </message>
    <message>
        <source>unit of liquid volumes, flows and rates</source>
        <translation>unitatea volumelor, debitelor și dozelor de lichid</translation>
    </message>
    <message>
        <source>language of the display&apos;s texts; a change needs a restart</source>
        <translation>limba textelor terminalului; o schimbare cere o repornire</translation>
    </message>
    <message>
        <source>decimal point or comma; a change needs a restart</source>
        <translation>punct sau virgulă zecimală; o schimbare cere o repornire</translation>
    </message>
    <message>
        <source>when the colours switch between day and night: only by hand, at sunrise and sunset, or with the sun 6 degrees below the horizon</source>
        <translation>când se schimbă culorile între zi și noapte: doar manual, la răsărit și apus, sau cu soarele la 6 grade sub orizont</translation>
    </message>
    <message>
        <source>what set the display&apos;s clock</source>
        <translation>ce a potrivit ceasul terminalului</translation>
    </message>
    <message>
        <source>local time less UTC, whole hours</source>
        <translation>ora locală minus UTC, ore întregi</translation>
    </message>
    <message>
        <source>local time less UTC, minutes beyond the hours, with the sign of the hours</source>
        <translation>ora locală minus UTC, minute peste ore, cu semnul orelor</translation>
    </message>
    <message>
        <source>brightness of the lightbar at night</source>
        <translation>luminozitatea barei luminoase noaptea</translation>
    </message>
    <message>
        <source>brightness of the screen at night</source>
        <translation>luminozitatea ecranului noaptea</translation>
    </message>
    <message>
        <source>brightness of the button lights at night</source>
        <translation>luminozitatea luminii butoanelor noaptea</translation>
    </message>
    <message>
        <source>4: implements are kept in the folder of their vehicle; other numbers: in their own folder</source>
        <translation>4: utilajele sunt în dosarul vehiculului lor; alte numere: în dosarul propriu</translation>
    </message>
    <message>
        <source>number of the next file of the NMEA log</source>
        <translation>numărul următorului fișier al jurnalului NMEA</translation>
    </message>
    <message>
        <source>number of the next file of the user log</source>
        <translation>numărul următorului fișier al jurnalului operatorului</translation>
    </message>
    <message>
        <source>the display&apos;s clock less UTC</source>
        <translation>ceasul terminalului minus UTC</translation>
    </message>
    <message>
        <source>folder of the internal drive; by default in the data folder</source>
        <translation>dosarul discului intern; implicit în dosarul de date</translation>
    </message>
    <message>
        <source>mount point of the removable drive; by default in the data folder</source>
        <translation>punctul de montare al discului detașabil; implicit în dosarul de date</translation>
    </message>
    <message>
        <source>the identity of the terminal, which its profiles carry</source>
        <translation>identificatorul terminalului, pe care îl conțin profilurile lui</translation>
    </message>
    <message>
        <source>where the sentences of the receiver come from</source>
        <translation>de unde vin mesajele receptorului</translation>
    </message>
    <message>
        <source>the figures beside the map, in this order</source>
        <translation>valorile de lângă hartă, în această ordine</translation>
    </message>
    <message>
        <source>the newest time of a receiver, as of the last day on which one was seen</source>
        <translation>cea mai nouă oră a unui receptor, din ultima zi în care a existat unul</translation>
    </message>
    <message>
        <source>when the sun switched the colours last</source>
        <translation>când a comutat soarele culorile ultima dată</translation>
    </message>
    <message>
        <source>the active job</source>
        <translation>lucrarea activă</translation>
    </message>
    <message>
        <source>the active boundary</source>
        <translation>conturul activ</translation>
    </message>
    <message>
        <source>the active straight guidance line</source>
        <translation>linia de ghidare dreaptă activă</translation>
    </message>
    <message>
        <source>the active pivot</source>
        <translation>pivotul activ</translation>
    </message>
    <message>
        <source>the active guidance curve</source>
        <translation>curba de ghidare activă</translation>
    </message>
    <message>
        <source>the active shape file of optimal lines</source>
        <translation>fișierul shape activ al liniilor optime</translation>
    </message>
    <message>
        <source>the active shape file of project lines</source>
        <translation>fișierul shape activ al liniilor de proiect</translation>
    </message>
    <message>
        <source>the active shape file of zones</source>
        <translation>fișierul shape activ al zonelor</translation>
    </message>
    <message>
        <source>the active steering profile</source>
        <translation>profilul de direcție activ</translation>
    </message>
    <message>
        <source>the active implement</source>
        <translation>utilajul activ</translation>
    </message>
    <message>
        <source>the active vehicle</source>
        <translation>vehiculul activ</translation>
    </message>
    <message>
        <source>the active sprayer</source>
        <translation>mașina de erbicidat activă</translation>
    </message>
    <message>
        <source>the active boom leveller</source>
        <translation>nivelatorul de rampă activ</translation>
    </message>
    <message>
        <source>the active client</source>
        <translation>clientul activ</translation>
    </message>
    <message>
        <source>the active farm</source>
        <translation>ferma activă</translation>
    </message>
    <message>
        <source>the active field</source>
        <translation>parcela activă</translation>
    </message>
    <message>
        <source>Measures</source>
        <translation>Sistem de măsură</translation>
    </message>
    <message>
        <source>Gallons and bushels</source>
        <translation>Galoni și busheli</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>Suprafață</translation>
    </message>
    <message>
        <source>Pressure</source>
        <translation>Presiune</translation>
    </message>
    <message>
        <source>Short distances</source>
        <translation>Distanțe scurte</translation>
    </message>
    <message>
        <source>Liquid</source>
        <translation>Lichid</translation>
    </message>
    <message>
        <source>Granular volume</source>
        <translation>Volum de granule</translation>
    </message>
    <message>
        <source>Granular density</source>
        <translation>Densitate de granule</translation>
    </message>
    <message>
        <source>Positions</source>
        <translation>Poziții</translation>
    </message>
    <message>
        <source>Rate per travel</source>
        <translation>Doză pe distanță</translation>
    </message>
    <message>
        <source>Basis of rates</source>
        <translation>Baza dozelor</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Limbă</translation>
    </message>
    <message>
        <source>Decimal sign</source>
        <translation>Separator zecimal</translation>
    </message>
    <message>
        <source>Time of day</source>
        <translation>Formatul orei</translation>
    </message>
    <message>
        <source>Dates</source>
        <translation>Formatul datei</translation>
    </message>
    <message>
        <source>Time zone set by hand</source>
        <translation>Fus orar manual</translation>
    </message>
    <message>
        <source>Time zone, hours</source>
        <translation>Fus orar, ore</translation>
    </message>
    <message>
        <source>Time zone, minutes</source>
        <translation>Fus orar, minute</translation>
    </message>
    <message>
        <source>Clock less UTC</source>
        <translation>Ceas minus UTC</translation>
    </message>
    <message>
        <source>Source of the time</source>
        <translation>Sursa orei</translation>
    </message>
    <message>
        <source>Source of the time since</source>
        <translation>Sursa orei din</translation>
    </message>
    <message>
        <source>Newest receiver time</source>
        <translation>Ultima oră a receptorului</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>Culori</translation>
    </message>
    <message>
        <source>Day and night</source>
        <translation>Zi și noapte</translation>
    </message>
    <message>
        <source>Map direction</source>
        <translation>Direcția hărții</translation>
    </message>
    <message>
        <source>Tiles</source>
        <translation>Casete</translation>
    </message>
    <message>
        <source>Light bar at night</source>
        <translation>Bara luminoasă noaptea</translation>
    </message>
    <message>
        <source>Screen at night</source>
        <translation>Ecranul noaptea</translation>
    </message>
    <message>
        <source>Button lights at night</source>
        <translation>Lumina butoanelor noaptea</translation>
    </message>
    <message>
        <source>Switched by the sun</source>
        <translation>Comutat de soare</translation>
    </message>
    <message>
        <source>Client</source>
        <translation>Client</translation>
    </message>
    <message>
        <source>Farm</source>
        <translation>Fermă</translation>
    </message>
    <message>
        <source>Field</source>
        <translation>Parcelă</translation>
    </message>
    <message>
        <source>Job</source>
        <translation>Lucrare</translation>
    </message>
    <message>
        <source>Vehicle</source>
        <translation>Vehicul</translation>
    </message>
    <message>
        <source>Implement</source>
        <translation>Utilaj</translation>
    </message>
    <message>
        <source>Sprayer</source>
        <translation>Mașină de erbicidat</translation>
    </message>
    <message>
        <source>Boom leveller</source>
        <translation>Nivelator de rampă</translation>
    </message>
    <message>
        <source>Steering profile</source>
        <translation>Profil de direcție</translation>
    </message>
    <message>
        <source>Boundary</source>
        <translation>Contur</translation>
    </message>
    <message>
        <source>A-B line</source>
        <translation>Linie A-B</translation>
    </message>
    <message>
        <source>Pivot</source>
        <translation>Pivot</translation>
    </message>
    <message>
        <source>Curve</source>
        <translation>Curbă</translation>
    </message>
    <message>
        <source>Optimal lines</source>
        <translation>Linii optime</translation>
    </message>
    <message>
        <source>Project lines</source>
        <translation>Linii de proiect</translation>
    </message>
    <message>
        <source>Zones</source>
        <translation>Zone</translation>
    </message>
    <message>
        <source>Receiver address</source>
        <translation>Adresa receptorului</translation>
    </message>
    <message>
        <source>Internal drive</source>
        <translation>Disc intern</translation>
    </message>
    <message>
        <source>Stick</source>
        <translation>Stick</translation>
    </message>
    <message>
        <source>Implement folder</source>
        <translation>Dosarul utilajului</translation>
    </message>
    <message>
        <source>Next NMEA log</source>
        <translation>Următorul jurnal NMEA</translation>
    </message>
    <message>
        <source>Next user log</source>
        <translation>Următorul jurnal operator</translation>
    </message>
    <message>
        <source>Identity</source>
        <translation>Identificator</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Colour of texts</source>
        <translation>Culoarea textelor</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titlu</translation>
    </message>
    <message>
        <source>Colour of titles</source>
        <translation>Culoarea titlurilor</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Fundal</translation>
    </message>
    <message>
        <source>Colour of the background</source>
        <translation>Culoarea fundalului</translation>
    </message>
    <message>
        <source>Button</source>
        <translation>Buton</translation>
    </message>
    <message>
        <source>Colour of buttons</source>
        <translation>Culoarea butoanelor</translation>
    </message>
    <message>
        <source>Button text</source>
        <translation>Text pe buton</translation>
    </message>
    <message>
        <source>Colour of texts on buttons</source>
        <translation>Culoarea textelor de pe butoane</translation>
    </message>
    <message>
        <source>Map</source>
        <translation>Hartă</translation>
    </message>
    <message>
        <source>Colour of the map&apos;s ground</source>
        <translation>Culoarea fondului hărții</translation>
    </message>
    <message>
        <source>Grid</source>
        <translation>Grilă</translation>
    </message>
    <message>
        <source>Colour of the map&apos;s grid</source>
        <translation>Culoarea grilei hărții</translation>
    </message>
    <message>
        <source>Coverage</source>
        <translation>Acoperire</translation>
    </message>
    <message>
        <source>Colour of covered ground</source>
        <translation>Culoarea solului acoperit</translation>
    </message>
    <message>
        <source>Vehicle on the map</source>
        <translation>Vehiculul pe hartă</translation>
    </message>
    <message>
        <source>Colour of the vehicle</source>
        <translation>Culoarea vehiculului</translation>
    </message>
    <message>
        <source>Guidance line</source>
        <translation>Linie de ghidare</translation>
    </message>
    <message>
        <source>Colour of the guidance line</source>
        <translation>Culoarea liniei de ghidare</translation>
    </message>
    <message>
        <source>Cross hairs</source>
        <translation>Reticul</translation>
    </message>
    <message>
        <source>Colour of the cross hairs</source>
        <translation>Culoarea reticulului</translation>
    </message>
    <message>
        <source>Outer boundary</source>
        <translation>Contur exterior</translation>
    </message>
    <message>
        <source>Colour of the outer boundary of the field</source>
        <translation>Culoarea conturului exterior al parcelei</translation>
    </message>
    <message>
        <source>Inner boundary</source>
        <translation>Contur interior</translation>
    </message>
    <message>
        <source>Colour of boundaries within the field</source>
        <translation>Culoarea contururilor din parcelă</translation>
    </message>
    <message>
        <source>Other boundaries</source>
        <translation>Alte contururi</translation>
    </message>
    <message>
        <source>Colour of boundaries that are not active</source>
        <translation>Culoarea contururilor inactive</translation>
    </message>
    <message>
        <source>Exclusion zone</source>
        <translation>Zonă de excludere</translation>
    </message>
    <message>
        <source>Colour of zones to keep out of</source>
        <translation>Culoarea zonelor de ocolit</translation>
    </message>
    <message>
        <source>Background picture</source>
        <translation>Imagine de fundal</translation>
    </message>
    <message>
        <source>Number of the background picture</source>
        <translation>Numărul imaginii de fundal</translation>
    </message>
    <message>
        <source>what the sprayer&apos;s rates are related to</source>
        <translation>la ce se raportează dozele mașinii de erbicidat</translation>
    </message>
    <message>
        <source>liquid rates per 100 m or 100 yd of travel, while travel is their basis</source>
        <translation>doze de lichid la 100 m sau 100 yd parcurși, cât timp distanța este baza lor</translation>
    </message>
    <message>
        <source>since when the clock has its time from there</source>
        <translation>de când își ia ceasul ora din această sursă</translation>
    </message>
    <message>
        <source>Metric</source>
        <translation>Metric</translation>
    </message>
    <message>
        <source>US or English</source>
        <translation>SUA sau imperial</translation>
    </message>
    <message>
        <source>US</source>
        <translation>SUA</translation>
    </message>
    <message>
        <source>English</source>
        <translation>Imperial</translation>
    </message>
    <message>
        <source>Deg., min., s</source>
        <translation>Grade, min, s</translation>
    </message>
    <message>
        <source>Degrees</source>
        <translation>Grade</translation>
    </message>
    <message>
        <source>24 hours</source>
        <translation>24 de ore</translation>
    </message>
    <message>
        <source>am, pm</source>
        <translation>am, pm</translation>
    </message>
    <message>
        <source>Month first</source>
        <translation>Întâi luna</translation>
    </message>
    <message>
        <source>Day first</source>
        <translation>Întâi ziua</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Zi</translation>
    </message>
    <message>
        <source>Night</source>
        <translation>Noapte</translation>
    </message>
    <message>
        <source>Heading up</source>
        <translation>Direcția sus</translation>
    </message>
    <message>
        <source>North up</source>
        <translation>Nordul sus</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Pornit</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Oprit</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Da</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nu</translation>
    </message>
    <message>
        <source>Travel</source>
        <translation>Distanță</translation>
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
        <translation>Hectar</translation>
    </message>
    <message>
        <source>Acre</source>
        <translation>Acru</translation>
    </message>
    <message>
        <source>m, mm</source>
        <translation>m, mm</translation>
    </message>
    <message>
        <source>Inch</source>
        <translation>Țol</translation>
    </message>
    <message>
        <source>Foot</source>
        <translation>Picior</translation>
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
        <translation>Bushel US</translation>
    </message>
    <message>
        <source>UK bushel</source>
        <translation>Bushel UK</translation>
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
        <translation>kg/bu US</translation>
    </message>
    <message>
        <source>kg/UK bu</source>
        <translation>kg/bu UK</translation>
    </message>
    <message>
        <source>t</source>
        <translation>t</translation>
    </message>
    <message>
        <source>Point</source>
        <translation>Punct</translation>
    </message>
    <message>
        <source>Comma</source>
        <translation>Virgulă</translation>
    </message>
    <message>
        <source>By hand</source>
        <translation>Manual</translation>
    </message>
    <message>
        <source>Sunset</source>
        <translation>Apus</translation>
    </message>
    <message>
        <source>Twilight</source>
        <translation>Crepuscul</translation>
    </message>
    <message>
        <source>Not set</source>
        <translation>Nesetat</translation>
    </message>
    <message>
        <source>Operator</source>
        <translation>Operator</translation>
    </message>
    <message>
        <source>Receiver</source>
        <translation>Receptor</translation>
    </message>
    <message>
        <source>Rate</source>
        <translation>Doză</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Viteză</translation>
    </message>
    <message>
        <source>Area done</source>
        <translation>Suprafață lucrată</translation>
    </message>
    <message>
        <source>Area left</source>
        <translation>Suprafață rămasă</translation>
    </message>
    <message>
        <source>Productivity</source>
        <translation>Productivitate</translation>
    </message>
    <message>
        <source>Flow</source>
        <translation>Debit</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperatură</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>Distanță</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Poziție</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Ora</translation>
    </message>
    <message>
        <source>Units</source>
        <translation>Unități</translation>
    </message>
    <message>
        <source>Rates</source>
        <translation>Doze</translation>
    </message>
    <message>
        <source>Region</source>
        <translation>Regiune</translation>
    </message>
    <message>
        <source>Clock</source>
        <translation>Ceas</translation>
    </message>
    <message>
        <source>Colours of the schemes</source>
        <translation>Culorile schemelor</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Ecran</translation>
    </message>
    <message>
        <source>Selections</source>
        <translation>Selecție</translation>
    </message>
    <message>
        <source>Storage</source>
        <translation>Stocare</translation>
    </message>
    <message>
        <source>Logs</source>
        <translation>Jurnale</translation>
    </message>
    <message>
        <source>Terminal</source>
        <translation>Terminal</translation>
    </message>
    <message>
        <source>%1, by day</source>
        <translation>%1, ziua</translation>
    </message>
    <message>
        <source>%1, by night</source>
        <translation>%1, noaptea</translation>
    </message>
</context>
<context>
    <name>Problems</name>
    <message>
        <source>The logs lose lines: their drive is full or cannot be written.</source>
        <translation>Jurnalele pierd linii: discul lor este plin sau nu poate fi scris.</translation>
    </message>
    <message>
        <source>Recording is off, because there is too little room.</source>
        <translation>Înregistrarea este oprită din lipsă de spațiu.</translation>
    </message>
    <message>
        <source>Changes of settings are not stored yet. %1</source>
        <translation>Modificările setărilor nu sunt încă salvate. %1</translation>
    </message>
    <message>
        <source>The drive of the terminal is nearly full. Free: %1</source>
        <translation>Discul terminalului este aproape plin. Liber: %1</translation>
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
        <translation>Terminalul are deja aceste setări.</translation>
    </message>
    <message>
        <source>Changed here and in the profile</source>
        <translation>Schimbat aici și în profil</translation>
    </message>
    <message>
        <source>Which value the settings below shall have</source>
        <translation>Ce valoare vor avea setările de mai jos</translation>
    </message>
    <message>
        <source>Ours</source>
        <translation>De aici</translation>
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
        <translation>Profiluri</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Export</translation>
    </message>
    <message>
        <source>There is no profile on the stick.</source>
        <translation>Pe stick nu este niciun profil.</translation>
    </message>
    <message>
        <source>No stick is plugged in.</source>
        <translation>Niciun stick introdus.</translation>
    </message>
    <message>
        <source>Name of the profile</source>
        <translation>Numele profilului</translation>
    </message>
</context>
<context>
    <name>Quantities</name>
    <message>
        <source>Area</source>
        <translation>Suprafață</translation>
    </message>
    <message>
        <source>Productivity</source>
        <translation>Productivitate</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Viteză</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>Distanță</translation>
    </message>
    <message>
        <source>Small distance</source>
        <translation>Distanță mică</translation>
    </message>
    <message>
        <source>Travelled distance</source>
        <translation>Distanță parcursă</translation>
    </message>
    <message>
        <source>Altitude</source>
        <translation>Altitudine</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperatură</translation>
    </message>
    <message>
        <source>Pressure</source>
        <translation>Presiune</translation>
    </message>
    <message>
        <source>Rate</source>
        <translation>Doză</translation>
    </message>
    <message>
        <source>Requested rate</source>
        <translation>Doză cerută</translation>
    </message>
    <message>
        <source>Rate and error</source>
        <translation>Doză și abatere</translation>
    </message>
    <message>
        <source>Small rate</source>
        <translation>Doză mică</translation>
    </message>
    <message>
        <source>Flow</source>
        <translation>Debit</translation>
    </message>
    <message>
        <source>Small flow</source>
        <translation>Debit mic</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volum</translation>
    </message>
    <message>
        <source>Small volume</source>
        <translation>Volum mic</translation>
    </message>
    <message>
        <source>Granular volume</source>
        <translation>Volum de granule</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>Greutate</translation>
    </message>
    <message>
        <source>Weight per area</source>
        <translation>Greutate pe supr.</translation>
    </message>
    <message>
        <source>Weight per area and error</source>
        <translation>Greutate pe suprafață și abatere</translation>
    </message>
    <message>
        <source>Discharge</source>
        <translation>Debit masic</translation>
    </message>
    <message>
        <source>Nitrogen</source>
        <translation>Azot</translation>
    </message>
    <message>
        <source>Nitrogen per area</source>
        <translation>Azot pe suprafață</translation>
    </message>
    <message>
        <source>Seeds per area</source>
        <translation>Semințe pe supr.</translation>
    </message>
    <message>
        <source>Density</source>
        <translation>Densitate</translation>
    </message>
    <message>
        <source>Granular density</source>
        <translation>Densitate de granule</translation>
    </message>
    <message>
        <source>Volume per revolution</source>
        <translation>Volum pe rotație</translation>
    </message>
    <message>
        <source>Weight per revolution</source>
        <translation>Greutate pe rotație</translation>
    </message>
    <message>
        <source>Flow meter</source>
        <translation>Debitmetru</translation>
    </message>
    <message>
        <source>Wheel sensor</source>
        <translation>Senzor de roată</translation>
    </message>
    <message>
        <source>Speed sensor</source>
        <translation>Senzor de viteză</translation>
    </message>
    <message>
        <source>Latitude</source>
        <translation>Latitudine</translation>
    </message>
    <message>
        <source>Longitude</source>
        <translation>Longitudine</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Durată</translation>
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
        <translation>Anulare</translation>
    </message>
</context>
<context>
    <name>RateTile</name>
    <message>
        <source>set %1</source>
        <comment>the rate that is set</comment>
        <translation>cerută %1</translation>
    </message>
</context>
<context>
    <name>Receiver</name>
    <message>
        <source>Off</source>
        <translation>Oprit</translation>
    </message>
    <message>
        <source>Connecting</source>
        <translation>Conectare</translation>
    </message>
    <message>
        <source>Receiving</source>
        <translation>Recepție</translation>
    </message>
    <message>
        <source>Silent</source>
        <translation>Fără date</translation>
    </message>
    <message>
        <source>Lost</source>
        <translation>Pierdut</translation>
    </message>
    <message>
        <source>Ended</source>
        <translation>Încheiat</translation>
    </message>
    <message>
        <source>No fix</source>
        <translation>Fără poziție</translation>
    </message>
    <message>
        <source>RTK float</source>
        <translation>RTK float</translation>
    </message>
    <message>
        <source>Estimated</source>
        <translation>Estimare</translation>
    </message>
    <message>
        <source>By hand</source>
        <translation>Manual</translation>
    </message>
    <message>
        <source>Simulated</source>
        <translation>Simulare</translation>
    </message>
    <message>
        <source>The receiver sends nothing.</source>
        <translation>Receptorul nu trimite nimic.</translation>
    </message>
    <message>
        <source>The receiver is lost and is being looked for. %1</source>
        <translation>Receptorul este pierdut și este căutat. %1</translation>
    </message>
    <message>
        <source>The receiver cannot be read. %1</source>
        <translation>Receptorul nu poate fi citit. %1</translation>
    </message>
    <message>
        <source>The simulated field is done.</source>
        <translation>Parcela simulată este gata.</translation>
    </message>
    <message>
        <source>The recording of the receiver is over.</source>
        <translation>Înregistrarea receptorului s-a încheiat.</translation>
    </message>
</context>
<context>
    <name>ReceiverPage</name>
    <message>
        <source>Receiver</source>
        <translation>Receptor</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Oprire</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Pornire</translation>
    </message>
    <message>
        <source>Simulator</source>
        <translation>Simulator</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fișier</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Rețea</translation>
    </message>
    <message>
        <source>Serial</source>
        <translation>Serial</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adresă</translation>
    </message>
    <message>
        <source>Fix</source>
        <translation>Tip de poziție</translation>
    </message>
    <message>
        <source>Age</source>
        <translation>Vechime</translation>
    </message>
    <message>
        <source>Satellites</source>
        <translation>Sateliți</translation>
    </message>
    <message>
        <source>HDOP</source>
        <translation>HDOP</translation>
    </message>
    <message>
        <source>Time (UTC)</source>
        <translation>Ora (UTC)</translation>
    </message>
    <message>
        <source>Lines</source>
        <translation>Linii</translation>
    </message>
    <message>
        <source>Sentences</source>
        <translation>Mesaje</translation>
    </message>
    <message>
        <source>Bad checksums</source>
        <translation>Sume de control greșite</translation>
    </message>
    <message>
        <source>Damaged lines</source>
        <translation>Linii deteriorate</translation>
    </message>
    <message>
        <source>Address of the receiver</source>
        <translation>Adresa receptorului</translation>
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
        <translation>Ora</translation>
    </message>
    <message>
        <source>Time zone</source>
        <translation>Fus orar</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>Data și ora</translation>
    </message>
    <message>
        <source>Set by hand</source>
        <translation>Setare manuală</translation>
    </message>
</context>
<context>
    <name>SearchPage</name>
    <message>
        <source>Search</source>
        <translation>Căutare</translation>
    </message>
    <message>
        <source>Words of a setting</source>
        <translation>Căutare setare</translation>
    </message>
    <message>
        <source>No setting has these words.</source>
        <translation>Nicio setare nu are aceste cuvinte.</translation>
    </message>
</context>
<context>
    <name>SettingsPage</name>
    <message>
        <source>Units</source>
        <translation>Unități</translation>
    </message>
    <message>
        <source>Region</source>
        <translation>Regiune</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>Culori</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Ecran</translation>
    </message>
    <message>
        <source>Machine</source>
        <translation>Mașină</translation>
    </message>
    <message>
        <source>Storage</source>
        <translation>Stocare</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Despre</translation>
    </message>
    <message>
        <source>Tiles</source>
        <translation>Casete</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>Profiluri</translation>
    </message>
    <message>
        <source>All settings</source>
        <translation>Toate setările</translation>
    </message>
</context>
<context>
    <name>SettingsPanel</name>
    <message>
        <source>Back</source>
        <translation>Înapoi</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Căutare</translation>
    </message>
</context>
<context>
    <name>Sizes</name>
    <message numerus="yes">
        <source>%n byte(s)</source>
        <translation>
            <numerusform>%n octet</numerusform>
            <numerusform>%n octeți</numerusform>
            <numerusform>%n de octeți</numerusform>
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
        <translation>Fără lucrare</translation>
    </message>
    <message>
        <source>Receiver: %1</source>
        <translation>Receptor: %1</translation>
    </message>
    <message>
        <source>The stick is plugged in</source>
        <translation>Stickul este introdus</translation>
    </message>
    <message>
        <source>Lock the screen</source>
        <translation>Blocarea ecranului</translation>
    </message>
    <message>
        <source>Colours of the night</source>
        <translation>Culori de noapte</translation>
    </message>
    <message>
        <source>Colours of the day</source>
        <translation>Culori de zi</translation>
    </message>
</context>
<context>
    <name>StoragePage</name>
    <message>
        <source>Open</source>
        <translation>Deschidere</translation>
    </message>
    <message>
        <source>Internal drive</source>
        <translation>Disc intern</translation>
    </message>
    <message>
        <source>Stick</source>
        <translation>Stick</translation>
    </message>
    <message>
        <source>No stick is plugged in.</source>
        <translation>Niciun stick introdus.</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Memorie RAM</translation>
    </message>
    <message>
        <source>Logs</source>
        <translation>Jurnale</translation>
    </message>
    <message>
        <source>Writes all log files to the stick</source>
        <translation>Scrie toate jurnalele pe stick</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Export</translation>
    </message>
    <message>
        <source>Export the logs</source>
        <translation>Exportul jurnalelor</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>Profiluri</translation>
    </message>
    <message>
        <source>Takes the settings to another display, or brings them back from the stick</source>
        <translation>Duce setările pe alt terminal sau le aduce înapoi de pe stick</translation>
    </message>
    <message>
        <source>Open the profiles</source>
        <translation>Deschidere profiluri</translation>
    </message>
    <message>
        <source>Support</source>
        <translation>Asistență</translation>
    </message>
    <message>
        <source>Writes logs, settings and versions in one file; without the names of clients, farms and fields</source>
        <translation>Scrie jurnale, setări și versiuni într-un fișier; fără numele clienților, fermelor și parcelelor</translation>
    </message>
    <message>
        <source>Write</source>
        <translation>Scriere</translation>
    </message>
    <message>
        <source>Write the file for support without names</source>
        <translation>Scrierea fișierului pentru asistență fără nume</translation>
    </message>
    <message>
        <source>Support, with names</source>
        <translation>Asistență, cu nume</translation>
    </message>
    <message>
        <source>The same file, with all names and places</source>
        <translation>Același fișier, cu toate numele și locurile</translation>
    </message>
    <message>
        <source>Write the file for support with names</source>
        <translation>Scrierea fișierului pentru asistență cu nume</translation>
    </message>
</context>
<context>
    <name>TFieldTreeModel</name>
    <message>
        <source>A job holds no items.</source>
        <translation>O lucrare nu conține altceva.</translation>
    </message>
    <message>
        <source>There is one with this name already.</source>
        <translation>Există deja acest nume.</translation>
    </message>
    <message numerus="yes">
        <source>%n file(s), %1</source>
        <translation>
            <numerusform>%n fișier, %1</numerusform>
            <numerusform>%n fișiere, %1</numerusform>
            <numerusform>%n de fișiere, %1</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>TParameter</name>
    <message>
        <source>The setting could not be written to the disk yet.</source>
        <translation>Setarea nu a putut fi încă scrisă pe disc.</translation>
    </message>
    <message>
        <source>There is no value to set.</source>
        <translation>Nu există nicio valoare de setat.</translation>
    </message>
</context>
<context>
    <name>TRegionSettings</name>
    <message>
        <source>Jan</source>
        <translation>ian.</translation>
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
        <translation>mai</translation>
    </message>
    <message>
        <source>Jun</source>
        <translation>iun.</translation>
    </message>
    <message>
        <source>Jul</source>
        <translation>iul.</translation>
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
        <translation>oct.</translation>
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
        <translation>Limba nouă apare după o repornire.</translation>
    </message>
    <message>
        <source>The new decimal sign is shown after a restart.</source>
        <translation>Separatorul zecimal nou apare după o repornire.</translation>
    </message>
</context>
<context>
    <name>TSelections</name>
    <message>
        <source>The selection could not be stored.</source>
        <translation>Selecția nu a putut fi salvată.</translation>
    </message>
</context>
<context>
    <name>TSystemSettings</name>
    <message>
        <source>J_</source>
        <translation>LC_</translation>
    </message>
    <message>
        <source>B_</source>
        <translation>CT_</translation>
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
        <translation>Fără vehicul</translation>
    </message>
    <message>
        <source>No Profile</source>
        <translation>Fără profil</translation>
    </message>
    <message>
        <source>No Implement</source>
        <translation>Fără utilaj</translation>
    </message>
    <message>
        <source>Pivoted_</source>
        <translation>Tractat_</translation>
    </message>
</context>
<context>
    <name>TTransfer</name>
    <message>
        <source>The name is empty.</source>
        <translation>Numele este gol.</translation>
    </message>
</context>
<context>
    <name>TUnitAbbreviations</name>
    <message>
        <source>Jan</source>
        <translation>ian.</translation>
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
        <translation>mai</translation>
    </message>
    <message>
        <source>Jun</source>
        <translation>iun.</translation>
    </message>
    <message>
        <source>Jul</source>
        <translation>iul.</translation>
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
        <translation>oct.</translation>
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
        <translation>mile</translation>
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
        <translation>bu US</translation>
    </message>
    <message>
        <source>UK bu</source>
        <translation>bu UK</translation>
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
        <translation>l/rot</translation>
    </message>
    <message>
        <source>gal/rev</source>
        <translation>gal/rot</translation>
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
        <translation>kg/rot</translation>
    </message>
    <message>
        <source>lb/rev</source>
        <translation>lb/rot</translation>
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
        <translation>kg/bu US</translation>
    </message>
    <message>
        <source>kg/UK bu</source>
        <translation>kg/bu UK</translation>
    </message>
    <message>
        <source>lb/US bu</source>
        <translation>lb/bu US</translation>
    </message>
    <message>
        <source>lb/UK bu</source>
        <translation>lb/bu UK</translation>
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
        <translation>mii sem/ha</translation>
    </message>
    <message>
        <source>KS/ac</source>
        <translation>mii sem/ac</translation>
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
        <translation>rot/min</translation>
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
        <translation>Critic</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Trivial</source>
        <translation>Minor</translation>
    </message>
</context>
<context>
    <name>TWork</name>
    <message>
        <source>An implement cannot have this width.</source>
        <translation>Un utilaj nu poate avea această lățime.</translation>
    </message>
    <message>
        <source>A file of this job cannot be used. %1</source>
        <translation>Un fișier al acestei lucrări nu poate fi folosit. %1</translation>
    </message>
    <message>
        <source>Coverage was not complete and was left out: strips %1, bytes %2</source>
        <translation>Datele acoperirii nu erau complete și au fost lăsate deoparte: fâșii %1, octeți %2</translation>
    </message>
    <message>
        <source>The file of the flags is damaged; new flags are not stored.</source>
        <translation>Fișierul stegulețelor este deteriorat; stegulețele noi nu sunt salvate.</translation>
    </message>
    <message>
        <source>A file could not be stored. %1</source>
        <translation>Un fișier nu a putut fi salvat. %1</translation>
    </message>
    <message>
        <source>The file of the implement cannot be used. %1</source>
        <translation>Fișierul utilajului nu poate fi folosit. %1</translation>
    </message>
    <message>
        <source>There is no line.</source>
        <translation>Nu există linie.</translation>
    </message>
    <message>
        <source>The line has no name.</source>
        <translation>Linia nu are nume.</translation>
    </message>
    <message>
        <source>The guidance line cannot be used. %1</source>
        <translation>Linia de ghidare nu poate fi folosită. %1</translation>
    </message>
    <message>
        <source>No job is chosen</source>
        <translation>Nicio lucrare aleasă</translation>
    </message>
    <message>
        <source>No job is chosen: what is covered is not stored.</source>
        <translation>Nicio lucrare aleasă: ce se acoperă nu este salvat.</translation>
    </message>
    <message>
        <source>The coverage of this job cannot be used: what is covered is not stored.</source>
        <translation>Acoperirea acestei lucrări nu poate fi folosită: ce se acoperă nu este salvat.</translation>
    </message>
    <message>
        <source>The coverage cannot be stored, and strips are lost: %1</source>
        <translation>Acoperirea nu poate fi salvată și se pierd fâșii: %1</translation>
    </message>
    <message>
        <source>The coverage is kept in memory until it can be stored. %1</source>
        <translation>Acoperirea rămâne în memorie până poate fi salvată. %1</translation>
    </message>
    <message>
        <source>The job is still being read.</source>
        <translation>Lucrarea este încă în curs de citire.</translation>
    </message>
</context>
<context>
    <name>TileTurner</name>
    <message>
        <source>Tiles</source>
        <translation>Casete</translation>
    </message>
</context>
<context>
    <name>Tiles</name>
    <message>
        <source>Rate</source>
        <translation>Doză</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Viteză</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>Suprafață</translation>
    </message>
    <message>
        <source>Left</source>
        <comment>area that is left to work</comment>
        <translation>Rest</translation>
    </message>
    <message>
        <source>Work</source>
        <comment>area per hour</comment>
        <translation>Product.</translation>
    </message>
    <message>
        <source>Flow</source>
        <translation>Debit</translation>
    </message>
    <message>
        <source>Press.</source>
        <comment>pressure</comment>
        <translation>Presiune</translation>
    </message>
    <message>
        <source>Temp.</source>
        <comment>temperature</comment>
        <translation>Temp.</translation>
    </message>
    <message>
        <source>Driven</source>
        <translation>Parcurs</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Poziție</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Ora</translation>
    </message>
</context>
<context>
    <name>TilesPage</name>
    <message>
        <source>Back to the first choice</source>
        <translation>Înapoi la alegerea inițială</translation>
    </message>
    <message>
        <source>%1 further ahead</source>
        <translation>%1: mutare în sus</translation>
    </message>
    <message>
        <source>Shown</source>
        <translation>Afișată</translation>
    </message>
    <message>
        <source>Hidden</source>
        <translation>Ascunsă</translation>
    </message>
</context>
<context>
    <name>Transfer</name>
    <message>
        <source>Nothing is imported: some settings were changed here and in the profile.</source>
        <translation>Nu s-a importat nimic: unele setări au fost schimbate aici și în profil.</translation>
    </message>
    <message>
        <source>No stick is plugged in.</source>
        <translation>Niciun stick introdus.</translation>
    </message>
    <message>
        <source>The stick was removed before everything was on it.</source>
        <translation>Stickul a fost scos înainte să fie totul pe el.</translation>
    </message>
    <message>
        <source>The stick could not be written to the end.</source>
        <translation>Scrierea pe stick nu a putut fi terminată.</translation>
    </message>
    <message>
        <source>The folder %1 cannot be made.</source>
        <translation>Dosarul %1 nu poate fi creat.</translation>
    </message>
    <message>
        <source>The file %1 cannot be written.</source>
        <translation>Fișierul %1 nu poate fi scris.</translation>
    </message>
    <message>
        <source>The logs are on the stick (files: %1).</source>
        <translation>Jurnalele sunt pe stick (fișiere: %1).</translation>
    </message>
    <message>
        <source>The profile cannot be used. %1</source>
        <translation>Profilul nu poate fi folosit. %1</translation>
    </message>
    <message>
        <source>Nothing is imported. %1</source>
        <translation>Nu s-a importat nimic. %1</translation>
    </message>
    <message>
        <source>This display</source>
        <translation>Acest terminal</translation>
    </message>
    <message>
        <source>Another display</source>
        <translation>Alt terminal</translation>
    </message>
    <message>
        <source>The profile is not on the stick. %1</source>
        <translation>Profilul nu este pe stick. %1</translation>
    </message>
    <message>
        <source>The profile is on the stick: %1.</source>
        <translation>Profilul este pe stick: %1.</translation>
    </message>
    <message>
        <source>The file for support is not on the stick. %1</source>
        <translation>Fișierul pentru asistență nu este pe stick. %1</translation>
    </message>
    <message>
        <source>The file for support is on the stick: %1.</source>
        <translation>Fișierul pentru asistență este pe stick: %1.</translation>
    </message>
    <message>
        <source>The profile is imported (settings changed: %1).</source>
        <translation>Profilul este importat (setări schimbate: %1).</translation>
    </message>
    <message>
        <source>It cannot be used.</source>
        <translation>Nu poate fi folosit.</translation>
    </message>
</context>
<context>
    <name>TransferState</name>
    <message>
        <source>Reading</source>
        <translation>Citire</translation>
    </message>
    <message>
        <source>Writing</source>
        <translation>Scriere</translation>
    </message>
    <message>
        <source>Leave the stick where it is until this is done.</source>
        <translation>Stickul se lasă la locul lui până la sfârșit.</translation>
    </message>
</context>
<context>
    <name>WorkPage</name>
    <message>
        <source>Waiting for a position</source>
        <translation>Se așteaptă o poziție</translation>
    </message>
    <message>
        <source>Map</source>
        <translation>Hartă</translation>
    </message>
</context>
<context>
    <name>WorkingButton</name>
    <message>
        <source>Working</source>
        <translation>În lucru</translation>
    </message>
    <message>
        <source>Not working</source>
        <translation>Nu lucrează</translation>
    </message>
    <message>
        <source>Working. Switch the implement off</source>
        <translation>În lucru. Oprirea utilajului</translation>
    </message>
    <message>
        <source>Not working. Switch the implement on</source>
        <translation>Nu lucrează. Pornirea utilajului</translation>
    </message>
</context>
</TS>
