<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="sv" sourcelanguage="en">
<context>
    <name>About</name>
    <message>
        <source>Windows, files and connections</source>
        <translation>Fönster, filer och anslutningar</translation>
    </message>
    <message>
        <source>The file of the settings</source>
        <translation>Filen med inställningarna</translation>
    </message>
    <message>
        <source>Profiles of settings</source>
        <translation>Profiler med inställningar</translation>
    </message>
    <message>
        <source>Files for support</source>
        <translation>Filer för service</translation>
    </message>
    <message>
        <source>Sunrise and sunset</source>
        <translation>Soluppgång och solnedgång</translation>
    </message>
    <message>
        <source>Boundaries and zones</source>
        <translation>Gränser och zoner</translation>
    </message>
    <message>
        <source>Software</source>
        <translation>Programvara</translation>
    </message>
    <message>
        <source>The software of this display</source>
        <translation>Programvaran i denna display</translation>
    </message>
    <message>
        <source>Settings, units and logs</source>
        <translation>Inställningar, enheter och loggar</translation>
    </message>
</context>
<context>
    <name>Clock</name>
    <message>
        <source>The clock of the machine; nothing has set it.</source>
        <translation>Terminalens klocka; den är inte ställd.</translation>
    </message>
    <message>
        <source>The clock was set by hand.</source>
        <translation>Klockan är ställd för hand.</translation>
    </message>
    <message>
        <source>The receiver sets the clock.</source>
        <translation>Mottagaren ställer klockan.</translation>
    </message>
    <message>
        <source>There is no such date or time.</source>
        <translation>Datumet eller tiden finns inte.</translation>
    </message>
    <message>
        <source>The date is more than 68 years from the clock of the machine.</source>
        <translation>Datumet ligger mer än 68 år från terminalens klocka.</translation>
    </message>
    <message>
        <source>The clock could not be stored.</source>
        <translation>Klockan kunde inte sparas.</translation>
    </message>
</context>
<context>
    <name>ClockEntry</name>
    <message>
        <source>Year</source>
        <translation>År</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>Månad</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Dag</translation>
    </message>
    <message>
        <source>Hour</source>
        <translation>Timme</translation>
    </message>
    <message>
        <source>Minute</source>
        <translation>Minut</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>Datum och tid</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Tid</translation>
    </message>
    <message>
        <source>%1: more</source>
        <translation>%1: mer</translation>
    </message>
    <message>
        <source>%1: less</source>
        <translation>%1: mindre</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Avbryt</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>Ange</translation>
    </message>
</context>
<context>
    <name>ColorBar</name>
    <message>
        <source>%1: less</source>
        <translation>%1: mindre</translation>
    </message>
    <message>
        <source>%1: more</source>
        <translation>%1: mer</translation>
    </message>
</context>
<context>
    <name>ColorPage</name>
    <message>
        <source>Former</source>
        <translation>Tidigare</translation>
    </message>
    <message>
        <source>Former colour</source>
        <translation>Tidigare färg</translation>
    </message>
    <message>
        <source>First value</source>
        <translation>Startvärde</translation>
    </message>
    <message>
        <source>Digits of the colour</source>
        <translation>Färgens siffror</translation>
    </message>
    <message>
        <source>Hue</source>
        <translation>Nyans</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Mättnad</translation>
    </message>
    <message>
        <source>Lightness</source>
        <translation>Ljushet</translation>
    </message>
</context>
<context>
    <name>ColorsPage</name>
    <message>
        <source>Day</source>
        <translation>Dag</translation>
    </message>
    <message>
        <source>Night</source>
        <translation>Natt</translation>
    </message>
</context>
<context>
    <name>Contrasts</name>
    <message>
        <source>on %1: %2</source>
        <translation>på %1: %2</translation>
    </message>
    <message>
        <source>under %1: %2</source>
        <translation>under %1: %2</translation>
    </message>
    <message>
        <source>%1, too low: at least %2</source>
        <translation>%1, för låg: minst %2</translation>
    </message>
</context>
<context>
    <name>Difference</name>
    <message>
        <source>Changed on both sides</source>
        <translation>Ändrat på båda sidor</translation>
    </message>
    <message>
        <source>Here</source>
        <translation>Här</translation>
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
        <translation>Starta om</translation>
    </message>
    <message>
        <source>The fonts of the display</source>
        <translation>Displayens typsnitt</translation>
    </message>
    <message>
        <source>The keyboard on the screen</source>
        <translation>Tangentbordet på skärmen</translation>
    </message>
</context>
<context>
    <name>DoorBand</name>
    <message>
        <source>Work</source>
        <translation>Arbete</translation>
    </message>
    <message>
        <source>Fields</source>
        <translation>Fält</translation>
    </message>
    <message>
        <source>Receiver</source>
        <translation>Mottagare</translation>
    </message>
    <message>
        <source>Logs</source>
        <translation>Loggar</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Inställn.</translation>
    </message>
</context>
<context>
    <name>Drives</name>
    <message>
        <source>%1 free of %2</source>
        <translation>%1 ledigt av %2</translation>
    </message>
    <message>
        <source>Not known</source>
        <translation>Okänt</translation>
    </message>
    <message>
        <source>No stick</source>
        <translation>Inget USB-minne</translation>
    </message>
</context>
<context>
    <name>FieldsPage</name>
    <message>
        <source>Clients</source>
        <translation>Kunder</translation>
    </message>
    <message>
        <source>New client</source>
        <translation>Ny kund</translation>
    </message>
    <message>
        <source>No client yet.</source>
        <translation>Ingen kund ännu.</translation>
    </message>
    <message>
        <source>Farms</source>
        <translation>Gårdar</translation>
    </message>
    <message>
        <source>New farm</source>
        <translation>Ny gård</translation>
    </message>
    <message>
        <source>No farm yet.</source>
        <translation>Ingen gård ännu.</translation>
    </message>
    <message>
        <source>Fields</source>
        <translation>Fält</translation>
    </message>
    <message>
        <source>New field</source>
        <translation>Nytt fält</translation>
    </message>
    <message>
        <source>No field yet.</source>
        <translation>Inget fält ännu.</translation>
    </message>
    <message>
        <source>Jobs</source>
        <translation>Jobb</translation>
    </message>
    <message>
        <source>New job</source>
        <translation>Nytt jobb</translation>
    </message>
    <message>
        <source>No job yet.</source>
        <translation>Inget jobb ännu.</translation>
    </message>
    <message>
        <source>Remove %1 with everything in it?</source>
        <translation>Ta bort %1 med allt innehåll?</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Rename or remove %1</source>
        <translation>Byt namn på eller ta bort %1</translation>
    </message>
    <message>
        <source>Rename %1</source>
        <translation>Byt namn på %1</translation>
    </message>
    <message>
        <source>Remove everything</source>
        <translation>Ta bort allt</translation>
    </message>
</context>
<context>
    <name>Host</name>
    <message>
        <source>Details for the support: %1</source>
        <translation>Uppgifter för service: %1</translation>
    </message>
    <message>
        <source>%3 Try: %4</source>
        <translation>%3 Förslag: %4</translation>
    </message>
    <message>
        <source>This name is not possible.</source>
        <translation>Namnet är inte möjligt.</translation>
    </message>
    <message>
        <source>The name is empty.</source>
        <translation>Namnet är tomt.</translation>
    </message>
    <message>
        <source>This name stands for another folder.</source>
        <translation>Namnet står för en annan mapp.</translation>
    </message>
    <message>
        <source>The name must not contain %1.</source>
        <translation>Namnet får inte innehålla %1.</translation>
    </message>
    <message>
        <source>The name contains a sign that cannot be seen.</source>
        <translation>Namnet innehåller ett osynligt tecken.</translation>
    </message>
    <message>
        <source>The name contains a sign that is not complete.</source>
        <translation>Namnet innehåller ett ofullständigt tecken.</translation>
    </message>
    <message>
        <source>The name must not end in a full stop or a blank.</source>
        <translation>Namnet får inte sluta med punkt eller mellanslag.</translation>
    </message>
    <message>
        <source>The name must not begin with a blank.</source>
        <translation>Namnet får inte börja med mellanslag.</translation>
    </message>
    <message>
        <source>A stick cannot hold a file with this name.</source>
        <translation>Ett USB-minne kan inte ha en fil med detta namn.</translation>
    </message>
    <message>
        <source>The name is too long.</source>
        <translation>Namnet är för långt.</translation>
    </message>
    <message>
        <source>%2 exists already.</source>
        <translation>%2 finns redan.</translation>
    </message>
    <message numerus="yes">
        <source>%2 is active and holds %n file(s).</source>
        <translation>
            <numerusform>%2 används och innehåller %n fil.</numerusform>
            <numerusform>%2 används och innehåller %n filer.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%2 holds %n file(s).</source>
        <translation>
            <numerusform>%2 innehåller %n fil.</numerusform>
            <numerusform>%2 innehåller %n filer.</numerusform>
        </translation>
    </message>
    <message>
        <source>%2 is active.</source>
        <translation>%2 används.</translation>
    </message>
    <message>
        <source>%2 is no longer there.</source>
        <translation>%2 finns inte längre.</translation>
    </message>
    <message>
        <source>A stick cannot tell %2 from %3.</source>
        <translation>Ett USB-minne kan inte skilja %2 från %3.</translation>
    </message>
    <message>
        <source>Another program is working on the fields. Try again later.</source>
        <translation>Ett annat program arbetar med fälten. Försök igen senare.</translation>
    </message>
    <message>
        <source>The selection could not be stored.</source>
        <translation>Valet kunde inte sparas.</translation>
    </message>
    <message>
        <source>%1 is neither a file nor a folder.</source>
        <translation>%1 är varken en fil eller en mapp.</translation>
    </message>
    <message>
        <source>The file was edited or is damaged.</source>
        <translation>Filen har ändrats eller är skadad.</translation>
    </message>
    <message>
        <source>%1 cannot be read. %2</source>
        <translation>%1 kan inte läsas. %2</translation>
    </message>
    <message>
        <source>The file is of another kind.</source>
        <translation>Filen är av ett annat slag.</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>Filen är tom.</translation>
    </message>
    <message>
        <source>The end of the file is missing.</source>
        <translation>Slutet av filen saknas.</translation>
    </message>
    <message>
        <source>The file is damaged.</source>
        <translation>Filen är skadad.</translation>
    </message>
    <message>
        <source>The file is not complete.</source>
        <translation>Filen är inte fullständig.</translation>
    </message>
    <message>
        <source>The file is from another version of the software.</source>
        <translation>Filen är från en annan version av programvaran.</translation>
    </message>
    <message>
        <source>The file has a value that is not possible: %2</source>
        <translation>Filen har ett värde som inte är möjligt: %2</translation>
    </message>
    <message>
        <source>The file has a value twice: %2</source>
        <translation>Filen har en inställning två gånger: %2</translation>
    </message>
    <message>
        <source>This address is not possible: %1</source>
        <translation>Adressen är inte möjlig: %1</translation>
    </message>
    <message>
        <source>The device is not there.</source>
        <translation>Apparaten finns inte där.</translation>
    </message>
    <message>
        <source>It is not permitted, or another program uses it.</source>
        <translation>Det är inte tillåtet, eller ett annat program använder det.</translation>
    </message>
    <message>
        <source>Another program uses it.</source>
        <translation>Ett annat program använder det.</translation>
    </message>
    <message>
        <source>It cannot be read.</source>
        <translation>Det kan inte läsas.</translation>
    </message>
    <message>
        <source>It was unplugged.</source>
        <translation>Kontakten har dragits ur.</translation>
    </message>
    <message>
        <source>It is not a serial device, or it cannot have this speed.</source>
        <translation>Det är ingen seriell apparat, eller så är hastigheten inte möjlig.</translation>
    </message>
    <message>
        <source>The serial port has a fault (number %1).</source>
        <translation>Den seriella porten har ett fel (nummer %1).</translation>
    </message>
    <message>
        <source>%1 is damaged or of another kind.</source>
        <translation>%1 har skador eller är av ett annat slag.</translation>
    </message>
    <message>
        <source>%1 is from another version of the software.</source>
        <translation>%1 är från en annan version av programvaran.</translation>
    </message>
    <message>
        <source>%1 is damaged.</source>
        <translation>%1 har skador.</translation>
    </message>
    <message>
        <source>%1 has other coordinates than WGS84.</source>
        <translation>%1 har andra koordinater än WGS84.</translation>
    </message>
    <message>
        <source>%1 is not complete. %2 is missing.</source>
        <translation>Något saknas i %1: %2.</translation>
    </message>
    <message>
        <source>%1 has no areas.</source>
        <translation>%1 innehåller inga ytor.</translation>
    </message>
    <message>
        <source>Another program uses %1.</source>
        <translation>Ett annat program använder %1.</translation>
    </message>
    <message>
        <source>A and B are too close together or too far apart.</source>
        <translation>A och B ligger för nära varandra eller för långt ifrån varandra.</translation>
    </message>
    <message>
        <source>Another program has locked it.</source>
        <translation>Ett annat program har låst det.</translation>
    </message>
    <message>
        <source>It is no longer there.</source>
        <translation>Det finns inte längre.</translation>
    </message>
    <message>
        <source>%1 is no longer there.</source>
        <translation>%1 finns inte längre.</translation>
    </message>
    <message>
        <source>%1 cannot be written. %2</source>
        <translation>%1 kan inte skrivas. %2</translation>
    </message>
    <message>
        <source>%1 cannot be written.</source>
        <translation>%1 kan inte skrivas.</translation>
    </message>
    <message>
        <source>The file of the settings has a fault (number %1).</source>
        <translation>Filen med inställningarna har ett fel (nummer %1).</translation>
    </message>
    <message>
        <source>%1 cannot be opened. %2</source>
        <translation>%1 kan inte öppnas. %2</translation>
    </message>
    <message>
        <source>%1 cannot be created. %2</source>
        <translation>%1 kan inte skapas. %2</translation>
    </message>
    <message>
        <source>%1 cannot be copied. %2</source>
        <translation>%1 kan inte kopieras. %2</translation>
    </message>
    <message>
        <source>%1 cannot be renamed. %2</source>
        <translation>%1 kan inte döpas om. %2</translation>
    </message>
    <message>
        <source>%1 cannot be removed. %2</source>
        <translation>%1 kan inte tas bort. %2</translation>
    </message>
    <message>
        <source>The drive is full.</source>
        <translation>Disken är full.</translation>
    </message>
    <message>
        <source>The drive has a fault.</source>
        <translation>Disken har ett fel.</translation>
    </message>
    <message>
        <source>The drive can only be read.</source>
        <translation>Disken kan bara läsas.</translation>
    </message>
    <message>
        <source>It is not permitted.</source>
        <translation>Det är inte tillåtet.</translation>
    </message>
    <message>
        <source>It cannot be opened.</source>
        <translation>Det kan inte öppnas.</translation>
    </message>
    <message>
        <source>It is damaged.</source>
        <translation>Innehållet är skadat.</translation>
    </message>
    <message>
        <source>It is not there.</source>
        <translation>Det finns inte.</translation>
    </message>
    <message>
        <source>It exists already.</source>
        <translation>Det finns redan.</translation>
    </message>
    <message>
        <source>It is a folder.</source>
        <translation>Det är en mapp.</translation>
    </message>
    <message>
        <source>It is not a folder.</source>
        <translation>Det är ingen mapp.</translation>
    </message>
    <message>
        <source>The folder is not empty.</source>
        <translation>Mappen är inte tom.</translation>
    </message>
    <message>
        <source>The file is too large.</source>
        <translation>Filen är för stor.</translation>
    </message>
    <message>
        <source>Too many files are open.</source>
        <translation>För många filer är öppna.</translation>
    </message>
    <message>
        <source>There is too little memory.</source>
        <translation>Det finns för lite arbetsminne.</translation>
    </message>
    <message>
        <source>It is not possible there.</source>
        <translation>Det är inte möjligt där.</translation>
    </message>
    <message>
        <source>The device refuses the connection.</source>
        <translation>Apparaten nekar anslutningen.</translation>
    </message>
    <message>
        <source>The device has closed the connection.</source>
        <translation>Apparaten har brutit anslutningen.</translation>
    </message>
    <message>
        <source>There is no device with this address.</source>
        <translation>Det finns ingen apparat med denna adress.</translation>
    </message>
    <message>
        <source>The network cannot be reached.</source>
        <translation>Nätverket kan inte nås.</translation>
    </message>
    <message>
        <source>The device does not answer.</source>
        <translation>Apparaten svarar inte.</translation>
    </message>
    <message>
        <source>It is a link to another place.</source>
        <translation>Det är en länk till en annan plats.</translation>
    </message>
    <message>
        <source>There are too many links to it.</source>
        <translation>För många länkar leder dit.</translation>
    </message>
</context>
<context>
    <name>ItemActions</name>
    <message>
        <source>Rename</source>
        <translation>Byt namn</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Ta bort</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Avbryt</translation>
    </message>
</context>
<context>
    <name>ItemPage</name>
    <message>
        <source>New</source>
        <translation>Nytt</translation>
    </message>
</context>
<context>
    <name>Keypad</name>
    <message>
        <source>%1 to %2 %3</source>
        <translation>%1 till %2 %3</translation>
    </message>
    <message>
        <source>At least %1 %2</source>
        <translation>Minst %1 %2</translation>
    </message>
    <message>
        <source>At most %1 %2</source>
        <translation>Högst %1 %2</translation>
    </message>
    <message>
        <source>This is not a number yet.</source>
        <translation>Detta är inget tal än.</translation>
    </message>
    <message>
        <source>Too large.
%1</source>
        <translation>För stort.
%1</translation>
    </message>
    <message>
        <source>Too small.
%1</source>
        <translation>För litet.
%1</translation>
    </message>
    <message>
        <source>now %1</source>
        <translation>nu %1</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Avbryt</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>Ange</translation>
    </message>
    <message>
        <source>Decimal sign</source>
        <translation>Decimaltecken</translation>
    </message>
    <message>
        <source>Plus or minus</source>
        <translation>Plus eller minus</translation>
    </message>
    <message>
        <source>Remove the last sign</source>
        <translation>Radera sista tecknet</translation>
    </message>
    <message>
        <source>C</source>
        <comment>key that clears the entry</comment>
        <translation>C</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Rensa</translation>
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
        <translation>Sätt A, linjens ena ände, här</translation>
    </message>
    <message>
        <source>B</source>
        <comment>the other end of the guidance line</comment>
        <translation>B</translation>
    </message>
    <message>
        <source>Set B, the other end of the line, here</source>
        <translation>Sätt B, linjens andra ände, här</translation>
    </message>
    <message>
        <source>Set a flag here</source>
        <translation>Sätt en flagga här</translation>
    </message>
</context>
<context>
    <name>LineChoice</name>
    <message>
        <source>New</source>
        <translation>Ny</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Avbryt</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Stoppa</translation>
    </message>
</context>
<context>
    <name>LinePanel</name>
    <message>
        <source>%1 to the left</source>
        <translation>%1 åt vänster</translation>
    </message>
    <message>
        <source>%1 to the right</source>
        <translation>%1 åt höger</translation>
    </message>
</context>
<context>
    <name>LockLayer</name>
    <message>
        <source>The screen is locked. Hold the button to unlock it.</source>
        <translation>Skärmen är låst. Håll in knappen för att låsa upp.</translation>
    </message>
    <message>
        <source>Unlock</source>
        <translation>Lås upp</translation>
    </message>
</context>
<context>
    <name>LogsPage</name>
    <message>
        <source>Logs</source>
        <translation>Loggar</translation>
    </message>
    <message>
        <source>Events</source>
        <translation>Händelser</translation>
    </message>
    <message>
        <source>Receiver</source>
        <translation>Mottagare</translation>
    </message>
    <message>
        <source>Go on</source>
        <translation>Fortsätt</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Paus</translation>
    </message>
    <message>
        <source>No line yet.</source>
        <translation>Ingen rad ännu.</translation>
    </message>
</context>
<context>
    <name>MachinePage</name>
    <message>
        <source>Implement width</source>
        <translation>Redskapsbredd</translation>
    </message>
    <message>
        <source>Decides the guidance lines beside each other, and the area done</source>
        <translation>Bestämmer körlinjerna bredvid varandra och den färdiga arealen</translation>
    </message>
    <message>
        <source>Implement behind the antenna</source>
        <translation>Redskap bakom antennen</translation>
    </message>
    <message>
        <source>How far the ground is covered behind the vehicle&apos;s place</source>
        <translation>Hur långt bakom fordonet ytan bearbetas</translation>
    </message>
</context>
<context>
    <name>Main</name>
    <message>
        <source>Cab display</source>
        <translation>Hyttdisplay</translation>
    </message>
</context>
<context>
    <name>MapButtons</name>
    <message>
        <source>Zoom in</source>
        <translation>Zooma in</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Zooma ut</translation>
    </message>
    <message>
        <source>The heading is up. Turn north up</source>
        <translation>Körriktning uppåt. Vrid norr uppåt</translation>
    </message>
    <message>
        <source>North is up. Turn the heading up</source>
        <translation>Norr uppåt. Vrid körriktningen uppåt</translation>
    </message>
    <message>
        <source>Centre the vehicle</source>
        <translation>Centrera fordonet</translation>
    </message>
</context>
<context>
    <name>NameEntry</name>
    <message>
        <source>Cancel</source>
        <translation>Avbryt</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>Ange</translation>
    </message>
</context>
<context>
    <name>PageTurner</name>
    <message>
        <source>Rows above</source>
        <translation>Rader ovan</translation>
    </message>
    <message>
        <source>Rows below</source>
        <translation>Rader nedan</translation>
    </message>
</context>
<context>
    <name>ParameterRow</name>
    <message>
        <source>%1: back to the first value</source>
        <translation>%1: tillbaka till startvärdet</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öppna</translation>
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
        <translation>en absolut sökväg som slutar med &quot;/&quot; och inte är &quot;/&quot;</translation>
    </message>
    <message>
        <source>an absolute path</source>
        <translation>en absolut sökväg</translation>
    </message>
    <message>
        <source>a UUID in small letters, such as 6ba7b810-9dad-41d1-80b4-00c04fd430c8</source>
        <translation>ett UUID med små bokstäver, som 6ba7b810-9dad-41d1-80b4-00c04fd430c8</translation>
    </message>
    <message>
        <source>simulator, tcp://HOST:PORT, serial:///dev/NAME?baud=N or an absolute path</source>
        <translation>simulator, tcp://HOST:PORT, serial:///dev/NAME?baud=N eller en absolut sökväg</translation>
    </message>
    <message>
        <source>true or false</source>
        <translation>true eller false</translation>
    </message>
    <message>
        <source>a time in UTC, such as 2026-03-05T13:05:09Z</source>
        <translation>en tid i UTC, som 2026-03-05T13:05:09Z</translation>
    </message>
    <message>
        <source>a colour: #rrggbb, #aarrggbb or a name such as navy</source>
        <translation>en färg: #rrggbb, #aarrggbb eller ett namn som navy</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 till %2</translation>
    </message>
    <message>
        <source>Not a whole number.</source>
        <translation>Inget heltal.</translation>
    </message>
    <message>
        <source>Below the least value.</source>
        <translation>Under minsta värdet.</translation>
    </message>
    <message>
        <source>Above the greatest value.</source>
        <translation>Över största värdet.</translation>
    </message>
    <message>
        <source>This cannot be the name of a file. Try: %1</source>
        <translation>Så kan en fil inte heta. Förslag: %1</translation>
    </message>
    <message>
        <source>Not accepted. Expected: %1.</source>
        <translation>Godtas inte. Ange: %1.</translation>
    </message>
    <message>
        <source>a name without %1</source>
        <translation>ett namn utan %1</translation>
    </message>
    <message>
        <source>a whole number</source>
        <translation>ett heltal</translation>
    </message>
    <message>
        <source>At least %1</source>
        <translation>Minst %1</translation>
    </message>
</context>
<context>
    <name>Parameters</name>
    <message>
        <source>the operator has chosen the offset from UTC; GPS time keeps it instead of computing it</source>
        <translation>föraren har valt skillnaden mot UTC; GPS-tiden räknar då inte ut den</translation>
    </message>
    <message>
        <source>metric units; otherwise US or English units</source>
        <translation>metriska enheter; annars US-enheter eller engelska</translation>
    </message>
    <message>
        <source>US measures when units are not metric; otherwise English measures</source>
        <translation>US-mått när enheterna inte är metriska; annars engelska mått</translation>
    </message>
    <message>
        <source>positions in degrees, minutes and seconds; otherwise in decimal degrees</source>
        <translation>positioner i grader, minuter och sekunder; annars i decimalgrader</translation>
    </message>
    <message>
        <source>24-hour clock; otherwise 12 hours with am and pm</source>
        <translation>24-timmarsklocka; annars 12 timmar med am och pm</translation>
    </message>
    <message>
        <source>dates with the month before the day</source>
        <translation>datum med månaden före dagen</translation>
    </message>
    <message>
        <source>colours for day; otherwise for night</source>
        <translation>färger för dag; annars för natt</translation>
    </message>
    <message>
        <source>the map turns with the vehicle; otherwise north is up</source>
        <translation>kartan vrids med fordonet; annars är norr uppåt</translation>
    </message>
    <message>
        <source>unit of pressures</source>
        <translation>enhet för tryck</translation>
    </message>
    <message>
        <source>unit of areas, and of rates per area</source>
        <translation>enhet för areal och för giva per areal</translation>
    </message>
    <message>
        <source>unit of short distances: widths, offsets</source>
        <translation>enhet för korta sträckor: bredder, förskjutningar</translation>
    </message>
    <message>
        <source>unit of granular volumes</source>
        <translation>enhet för granulatvolym</translation>
    </message>
    <message>
        <source>unit of granular densities</source>
        <translation>enhet för granulatdensitet</translation>
    </message>
    <message>
        <source>unit of liquid volumes, flows and rates</source>
        <translation>enhet för volym, flöde och giva av vätska</translation>
    </message>
    <message>
        <source>language of the display&apos;s texts; a change needs a restart</source>
        <translation>displayens språk; en ändring kräver en omstart</translation>
    </message>
    <message>
        <source>decimal point or comma; a change needs a restart</source>
        <translation>decimalpunkt eller decimalkomma; en ändring kräver en omstart</translation>
    </message>
    <message>
        <source>when the colours switch between day and night: only by hand, at sunrise and sunset, or with the sun 6 degrees below the horizon</source>
        <translation>när färgerna växlar mellan dag och natt: bara för hand, vid soluppgång och solnedgång, eller när solen står 6 grader under horisonten</translation>
    </message>
    <message>
        <source>what set the display&apos;s clock</source>
        <translation>vad displayens klocka är ställd efter</translation>
    </message>
    <message>
        <source>local time less UTC, whole hours</source>
        <translation>lokal tid minus UTC, hela timmar</translation>
    </message>
    <message>
        <source>local time less UTC, minutes beyond the hours, with the sign of the hours</source>
        <translation>lokal tid minus UTC, minuter utöver timmarna, med timmarnas tecken</translation>
    </message>
    <message>
        <source>brightness of the lightbar at night</source>
        <translation>ljusrampens ljusstyrka nattetid</translation>
    </message>
    <message>
        <source>brightness of the screen at night</source>
        <translation>skärmens ljusstyrka nattetid</translation>
    </message>
    <message>
        <source>brightness of the button lights at night</source>
        <translation>knappljusens ljusstyrka nattetid</translation>
    </message>
    <message>
        <source>4: implements are kept in the folder of their vehicle; other numbers: in their own folder</source>
        <translation>4: redskap ligger i sitt fordons mapp; andra tal: i en egen mapp</translation>
    </message>
    <message>
        <source>number of the next file of the NMEA log</source>
        <translation>numret på nästa fil i NMEA-loggen</translation>
    </message>
    <message>
        <source>number of the next file of the user log</source>
        <translation>numret på nästa fil i användarloggen</translation>
    </message>
    <message>
        <source>the display&apos;s clock less UTC</source>
        <translation>displayens klocka minus UTC</translation>
    </message>
    <message>
        <source>folder of the internal drive; by default in the data folder</source>
        <translation>mapp på den interna disken; som standard i datamappen</translation>
    </message>
    <message>
        <source>mount point of the removable drive; by default in the data folder</source>
        <translation>den flyttbara diskens monteringspunkt; som standard i datamappen</translation>
    </message>
    <message>
        <source>the identity of the terminal, which its profiles carry</source>
        <translation>terminalens identitet, som står i dess profiler</translation>
    </message>
    <message>
        <source>where the sentences of the receiver come from</source>
        <translation>varifrån mottagarens meddelanden kommer</translation>
    </message>
    <message>
        <source>the figures beside the map, in this order</source>
        <translation>värdena bredvid kartan, i denna ordning</translation>
    </message>
    <message>
        <source>the newest time of a receiver, as of the last day on which one was seen</source>
        <translation>en mottagares senaste tid, från den senaste dagen med en mottagare</translation>
    </message>
    <message>
        <source>when the sun switched the colours last</source>
        <translation>när solen senast växlade färgerna</translation>
    </message>
    <message>
        <source>the active job</source>
        <translation>det aktiva jobbet</translation>
    </message>
    <message>
        <source>the active boundary</source>
        <translation>den aktiva fältgränsen</translation>
    </message>
    <message>
        <source>the active straight guidance line</source>
        <translation>den aktiva raka körlinjen</translation>
    </message>
    <message>
        <source>the active pivot</source>
        <translation>det aktiva cirkelspåret</translation>
    </message>
    <message>
        <source>the active guidance curve</source>
        <translation>den aktiva kurvan att följa</translation>
    </message>
    <message>
        <source>the active shape file of optimal lines</source>
        <translation>den aktiva shapefilen med optimala linjer</translation>
    </message>
    <message>
        <source>the active shape file of project lines</source>
        <translation>den aktiva shapefilen med projektlinjer</translation>
    </message>
    <message>
        <source>the active shape file of zones</source>
        <translation>den aktiva shapefilen med zoner</translation>
    </message>
    <message>
        <source>the active steering profile</source>
        <translation>den aktiva styrprofilen</translation>
    </message>
    <message>
        <source>the active implement</source>
        <translation>det aktiva redskapet</translation>
    </message>
    <message>
        <source>the active vehicle</source>
        <translation>det aktiva fordonet</translation>
    </message>
    <message>
        <source>the active sprayer</source>
        <translation>den aktiva sprutan</translation>
    </message>
    <message>
        <source>the active boom leveller</source>
        <translation>den aktiva rampnivelleringen</translation>
    </message>
    <message>
        <source>the active client</source>
        <translation>den aktiva kunden</translation>
    </message>
    <message>
        <source>the active farm</source>
        <translation>den aktiva gården</translation>
    </message>
    <message>
        <source>the active field</source>
        <translation>det aktiva fältet</translation>
    </message>
    <message>
        <source>Measures</source>
        <translation>Måttsystem</translation>
    </message>
    <message>
        <source>Gallons and bushels</source>
        <translation>Gallon och bushel</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>Areal</translation>
    </message>
    <message>
        <source>Pressure</source>
        <translation>Tryck</translation>
    </message>
    <message>
        <source>Short distances</source>
        <translation>Korta sträckor</translation>
    </message>
    <message>
        <source>Liquid</source>
        <translation>Vätska</translation>
    </message>
    <message>
        <source>Granular volume</source>
        <translation>Granulatvolym</translation>
    </message>
    <message>
        <source>Granular density</source>
        <translation>Granulatdensitet</translation>
    </message>
    <message>
        <source>Positions</source>
        <translation>Positioner</translation>
    </message>
    <message>
        <source>Rate per travel</source>
        <translation>Giva per körsträcka</translation>
    </message>
    <message>
        <source>Basis of rates</source>
        <translation>Grund för givan</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Språk</translation>
    </message>
    <message>
        <source>Decimal sign</source>
        <translation>Decimaltecken</translation>
    </message>
    <message>
        <source>Time of day</source>
        <translation>Tidsformat</translation>
    </message>
    <message>
        <source>Dates</source>
        <translation>Datumformat</translation>
    </message>
    <message>
        <source>Time zone set by hand</source>
        <translation>Tidszon för hand</translation>
    </message>
    <message>
        <source>Time zone, hours</source>
        <translation>Tidszon, timmar</translation>
    </message>
    <message>
        <source>Time zone, minutes</source>
        <translation>Tidszon, minuter</translation>
    </message>
    <message>
        <source>Clock less UTC</source>
        <translation>Klocka minus UTC</translation>
    </message>
    <message>
        <source>Source of the time</source>
        <translation>Tidskälla</translation>
    </message>
    <message>
        <source>Source of the time since</source>
        <translation>Tidskälla sedan</translation>
    </message>
    <message>
        <source>Newest receiver time</source>
        <translation>Senaste mottagartid</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>Färger</translation>
    </message>
    <message>
        <source>Day and night</source>
        <translation>Dag och natt</translation>
    </message>
    <message>
        <source>Map direction</source>
        <translation>Kartriktning</translation>
    </message>
    <message>
        <source>Tiles</source>
        <translation>Paneler</translation>
    </message>
    <message>
        <source>Light bar at night</source>
        <translation>Ljusramp nattetid</translation>
    </message>
    <message>
        <source>Screen at night</source>
        <translation>Skärm nattetid</translation>
    </message>
    <message>
        <source>Button lights at night</source>
        <translation>Knappljus nattetid</translation>
    </message>
    <message>
        <source>Switched by the sun</source>
        <translation>Senast växlat av solen</translation>
    </message>
    <message>
        <source>Client</source>
        <translation>Kund</translation>
    </message>
    <message>
        <source>Farm</source>
        <translation>Gård</translation>
    </message>
    <message>
        <source>Field</source>
        <translation>Fält</translation>
    </message>
    <message>
        <source>Job</source>
        <translation>Jobb</translation>
    </message>
    <message>
        <source>Vehicle</source>
        <translation>Fordon</translation>
    </message>
    <message>
        <source>Implement</source>
        <translation>Redskap</translation>
    </message>
    <message>
        <source>Sprayer</source>
        <translation>Spruta</translation>
    </message>
    <message>
        <source>Boom leveller</source>
        <translation>Rampnivellering</translation>
    </message>
    <message>
        <source>Steering profile</source>
        <translation>Styrprofil</translation>
    </message>
    <message>
        <source>Boundary</source>
        <translation>Fältgräns</translation>
    </message>
    <message>
        <source>A-B line</source>
        <translation>A-B-linje</translation>
    </message>
    <message>
        <source>Pivot</source>
        <translation>Cirkelspår</translation>
    </message>
    <message>
        <source>Curve</source>
        <translation>Kurva</translation>
    </message>
    <message>
        <source>Optimal lines</source>
        <translation>Optimala linjer</translation>
    </message>
    <message>
        <source>Project lines</source>
        <translation>Projektlinjer</translation>
    </message>
    <message>
        <source>Zones</source>
        <translation>Zoner</translation>
    </message>
    <message>
        <source>Receiver address</source>
        <translation>Mottagaradress</translation>
    </message>
    <message>
        <source>Internal drive</source>
        <translation>Intern disk</translation>
    </message>
    <message>
        <source>Stick</source>
        <translation>USB-minne</translation>
    </message>
    <message>
        <source>Implement folder</source>
        <translation>Redskapsmapp</translation>
    </message>
    <message>
        <source>Next NMEA log</source>
        <translation>Nästa NMEA-logg</translation>
    </message>
    <message>
        <source>Next user log</source>
        <translation>Nästa användarlogg</translation>
    </message>
    <message>
        <source>Identity</source>
        <translation>Identitet</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Colour of texts</source>
        <translation>Färg på texter</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Rubrik</translation>
    </message>
    <message>
        <source>Colour of titles</source>
        <translation>Färg på rubriker</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Bakgrund</translation>
    </message>
    <message>
        <source>Colour of the background</source>
        <translation>Färg på bakgrunden</translation>
    </message>
    <message>
        <source>Button</source>
        <translation>Knapp</translation>
    </message>
    <message>
        <source>Colour of buttons</source>
        <translation>Färg på knappar</translation>
    </message>
    <message>
        <source>Button text</source>
        <translation>Knapptext</translation>
    </message>
    <message>
        <source>Colour of texts on buttons</source>
        <translation>Färg på text på knappar</translation>
    </message>
    <message>
        <source>Map</source>
        <translation>Karta</translation>
    </message>
    <message>
        <source>Colour of the map&apos;s ground</source>
        <translation>Färg på kartans mark</translation>
    </message>
    <message>
        <source>Grid</source>
        <translation>Rutnät</translation>
    </message>
    <message>
        <source>Colour of the map&apos;s grid</source>
        <translation>Färg på kartans rutnät</translation>
    </message>
    <message>
        <source>Coverage</source>
        <translation>Bearbetat</translation>
    </message>
    <message>
        <source>Colour of covered ground</source>
        <translation>Färg på bearbetad mark</translation>
    </message>
    <message>
        <source>Vehicle on the map</source>
        <translation>Fordon på kartan</translation>
    </message>
    <message>
        <source>Colour of the vehicle</source>
        <translation>Färg på fordonet</translation>
    </message>
    <message>
        <source>Guidance line</source>
        <translation>Körlinje</translation>
    </message>
    <message>
        <source>Colour of the guidance line</source>
        <translation>Färg på körlinjen</translation>
    </message>
    <message>
        <source>Cross hairs</source>
        <translation>Hårkors</translation>
    </message>
    <message>
        <source>Colour of the cross hairs</source>
        <translation>Färg på hårkorset</translation>
    </message>
    <message>
        <source>Outer boundary</source>
        <translation>Yttergräns</translation>
    </message>
    <message>
        <source>Colour of the outer boundary of the field</source>
        <translation>Färg på fältets yttergräns</translation>
    </message>
    <message>
        <source>Inner boundary</source>
        <translation>Innergräns</translation>
    </message>
    <message>
        <source>Colour of boundaries within the field</source>
        <translation>Färg på gränser inne i fältet</translation>
    </message>
    <message>
        <source>Other boundaries</source>
        <translation>Andra gränser</translation>
    </message>
    <message>
        <source>Colour of boundaries that are not active</source>
        <translation>Färg på gränser som inte är aktiva</translation>
    </message>
    <message>
        <source>Exclusion zone</source>
        <translation>Spärrzon</translation>
    </message>
    <message>
        <source>Colour of zones to keep out of</source>
        <translation>Färg på zoner som ska undvikas</translation>
    </message>
    <message>
        <source>Background picture</source>
        <translation>Bakgrundsbild</translation>
    </message>
    <message>
        <source>Number of the background picture</source>
        <translation>Bakgrundsbildens nummer</translation>
    </message>
    <message>
        <source>what the sprayer&apos;s rates are related to</source>
        <translation>vad sprutans giva räknas efter</translation>
    </message>
    <message>
        <source>liquid rates per 100 m or 100 yd of travel, while travel is their basis</source>
        <translation>vätskegiva per 100 m eller 100 yd körsträcka, när den är grunden</translation>
    </message>
    <message>
        <source>since when the clock has its time from there</source>
        <translation>sedan när klockan har sin tid därifrån</translation>
    </message>
    <message>
        <source>Metric</source>
        <translation>Metriskt</translation>
    </message>
    <message>
        <source>US or English</source>
        <translation>US eller engelskt</translation>
    </message>
    <message>
        <source>US</source>
        <translation>US</translation>
    </message>
    <message>
        <source>English</source>
        <translation>Engelska</translation>
    </message>
    <message>
        <source>Deg., min., s</source>
        <translation>Grad., min, s</translation>
    </message>
    <message>
        <source>Degrees</source>
        <translation>Grader</translation>
    </message>
    <message>
        <source>24 hours</source>
        <translation>24 timmar</translation>
    </message>
    <message>
        <source>am, pm</source>
        <translation>am, pm</translation>
    </message>
    <message>
        <source>Month first</source>
        <translation>Månad först</translation>
    </message>
    <message>
        <source>Day first</source>
        <translation>Dag först</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Dag</translation>
    </message>
    <message>
        <source>Night</source>
        <translation>Natt</translation>
    </message>
    <message>
        <source>Heading up</source>
        <translation>Körriktning</translation>
    </message>
    <message>
        <source>North up</source>
        <translation>Norr uppåt</translation>
    </message>
    <message>
        <source>On</source>
        <translation>På</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Av</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nej</translation>
    </message>
    <message>
        <source>Travel</source>
        <translation>Körsträcka</translation>
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
        <translation>Acre</translation>
    </message>
    <message>
        <source>m, mm</source>
        <translation>m, mm</translation>
    </message>
    <message>
        <source>Inch</source>
        <translation>Tum</translation>
    </message>
    <message>
        <source>Foot</source>
        <translation>Fot</translation>
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
        <translation>US-bushel</translation>
    </message>
    <message>
        <source>UK bushel</source>
        <translation>UK-bushel</translation>
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
        <translation>Komma</translation>
    </message>
    <message>
        <source>By hand</source>
        <translation>För hand</translation>
    </message>
    <message>
        <source>Sunset</source>
        <translation>Solnedgång</translation>
    </message>
    <message>
        <source>Twilight</source>
        <translation>Skymning</translation>
    </message>
    <message>
        <source>Not set</source>
        <translation>Inte ställd</translation>
    </message>
    <message>
        <source>Operator</source>
        <translation>Förare</translation>
    </message>
    <message>
        <source>Receiver</source>
        <translation>Mottagare</translation>
    </message>
    <message>
        <source>Rate</source>
        <translation>Giva</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Hastighet</translation>
    </message>
    <message>
        <source>Area done</source>
        <translation>Färdig areal</translation>
    </message>
    <message>
        <source>Area left</source>
        <translation>Areal kvar</translation>
    </message>
    <message>
        <source>Productivity</source>
        <translation>Kapacitet</translation>
    </message>
    <message>
        <source>Flow</source>
        <translation>Flöde</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperatur</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>Sträcka</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Tid</translation>
    </message>
    <message>
        <source>Units</source>
        <translation>Enheter</translation>
    </message>
    <message>
        <source>Rates</source>
        <translation>Givor</translation>
    </message>
    <message>
        <source>Region</source>
        <translation>Region</translation>
    </message>
    <message>
        <source>Clock</source>
        <translation>Klocka</translation>
    </message>
    <message>
        <source>Colours of the schemes</source>
        <translation>Färgscheman</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Display</translation>
    </message>
    <message>
        <source>Selections</source>
        <translation>Val</translation>
    </message>
    <message>
        <source>Storage</source>
        <translation>Lagring</translation>
    </message>
    <message>
        <source>Logs</source>
        <translation>Loggar</translation>
    </message>
    <message>
        <source>Terminal</source>
        <translation>Terminal</translation>
    </message>
    <message>
        <source>%1, by day</source>
        <translation>%1, på dagen</translation>
    </message>
    <message>
        <source>%1, by night</source>
        <translation>%1, på natten</translation>
    </message>
</context>
<context>
    <name>Problems</name>
    <message>
        <source>The logs lose lines: their drive is full or cannot be written.</source>
        <translation>Loggarna tappar rader: disken är full eller går inte att skriva till.</translation>
    </message>
    <message>
        <source>Recording is off, because there is too little room.</source>
        <translation>Registreringen är av, eftersom det är för lite plats.</translation>
    </message>
    <message>
        <source>Changes of settings are not stored yet. %1</source>
        <translation>Ändringar av inställningar är inte sparade än. %1</translation>
    </message>
    <message>
        <source>The drive of the terminal is nearly full. Free: %1</source>
        <translation>Terminalens disk är nästan full. Ledigt: %1</translation>
    </message>
</context>
<context>
    <name>ProfilePage</name>
    <message>
        <source>Import</source>
        <translation>Importera</translation>
    </message>
    <message>
        <source>The display has these settings already.</source>
        <translation>Displayen har redan dessa inställningar.</translation>
    </message>
    <message>
        <source>Changed here and in the profile</source>
        <translation>Ändrat här och i profilen</translation>
    </message>
    <message>
        <source>Which value the settings below shall have</source>
        <translation>Vilket värde inställningarna nedan ska ha</translation>
    </message>
    <message>
        <source>Ours</source>
        <translation>Här</translation>
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
        <translation>Profiler</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exportera</translation>
    </message>
    <message>
        <source>There is no profile on the stick.</source>
        <translation>Det finns ingen profil på USB-minnet.</translation>
    </message>
    <message>
        <source>No stick is plugged in.</source>
        <translation>Inget USB-minne sitter i.</translation>
    </message>
    <message>
        <source>Name of the profile</source>
        <translation>Profilens namn</translation>
    </message>
</context>
<context>
    <name>Quantities</name>
    <message>
        <source>Area</source>
        <translation>Areal</translation>
    </message>
    <message>
        <source>Productivity</source>
        <translation>Kapacitet</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Hastighet</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>Sträcka</translation>
    </message>
    <message>
        <source>Small distance</source>
        <translation>Liten sträcka</translation>
    </message>
    <message>
        <source>Travelled distance</source>
        <translation>Körsträcka</translation>
    </message>
    <message>
        <source>Altitude</source>
        <translation>Höjd</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperatur</translation>
    </message>
    <message>
        <source>Pressure</source>
        <translation>Tryck</translation>
    </message>
    <message>
        <source>Rate</source>
        <translation>Giva</translation>
    </message>
    <message>
        <source>Requested rate</source>
        <translation>Önskad giva</translation>
    </message>
    <message>
        <source>Rate and error</source>
        <translation>Giva och avvikelse</translation>
    </message>
    <message>
        <source>Small rate</source>
        <translation>Liten giva</translation>
    </message>
    <message>
        <source>Flow</source>
        <translation>Flöde</translation>
    </message>
    <message>
        <source>Small flow</source>
        <translation>Litet flöde</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volym</translation>
    </message>
    <message>
        <source>Small volume</source>
        <translation>Liten volym</translation>
    </message>
    <message>
        <source>Granular volume</source>
        <translation>Granulatvolym</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>Vikt</translation>
    </message>
    <message>
        <source>Weight per area</source>
        <translation>Vikt per areal</translation>
    </message>
    <message>
        <source>Weight per area and error</source>
        <translation>Vikt per areal och avvikelse</translation>
    </message>
    <message>
        <source>Discharge</source>
        <translation>Utmatning</translation>
    </message>
    <message>
        <source>Nitrogen</source>
        <translation>Kväve</translation>
    </message>
    <message>
        <source>Nitrogen per area</source>
        <translation>Kväve per areal</translation>
    </message>
    <message>
        <source>Seeds per area</source>
        <translation>Frön per areal</translation>
    </message>
    <message>
        <source>Density</source>
        <translation>Densitet</translation>
    </message>
    <message>
        <source>Granular density</source>
        <translation>Granulatdensitet</translation>
    </message>
    <message>
        <source>Volume per revolution</source>
        <translation>Volym per varv</translation>
    </message>
    <message>
        <source>Weight per revolution</source>
        <translation>Vikt per varv</translation>
    </message>
    <message>
        <source>Flow meter</source>
        <translation>Flödesmätare</translation>
    </message>
    <message>
        <source>Wheel sensor</source>
        <translation>Hjulgivare</translation>
    </message>
    <message>
        <source>Speed sensor</source>
        <translation>Hastighetsgivare</translation>
    </message>
    <message>
        <source>Latitude</source>
        <translation>Latitud</translation>
    </message>
    <message>
        <source>Longitude</source>
        <translation>Longitud</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Varaktighet</translation>
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
        <translation>Avbryt</translation>
    </message>
</context>
<context>
    <name>RateTile</name>
    <message>
        <source>set %1</source>
        <comment>the rate that is set</comment>
        <translation>mål %1</translation>
    </message>
</context>
<context>
    <name>Receiver</name>
    <message>
        <source>Off</source>
        <translation>Av</translation>
    </message>
    <message>
        <source>Connecting</source>
        <translation>Ansluter</translation>
    </message>
    <message>
        <source>Receiving</source>
        <translation>Tar emot</translation>
    </message>
    <message>
        <source>Silent</source>
        <translation>Tyst</translation>
    </message>
    <message>
        <source>Lost</source>
        <translation>Borta</translation>
    </message>
    <message>
        <source>Ended</source>
        <translation>Avslutad</translation>
    </message>
    <message>
        <source>No fix</source>
        <translation>Ingen fix</translation>
    </message>
    <message>
        <source>RTK float</source>
        <translation>RTK float</translation>
    </message>
    <message>
        <source>Estimated</source>
        <translation>Uppskattad</translation>
    </message>
    <message>
        <source>By hand</source>
        <translation>För hand</translation>
    </message>
    <message>
        <source>Simulated</source>
        <translation>Simulerad</translation>
    </message>
    <message>
        <source>The receiver sends nothing.</source>
        <translation>Mottagaren skickar inget.</translation>
    </message>
    <message>
        <source>The receiver is lost and is being looked for. %1</source>
        <translation>Mottagaren är borta och eftersöks. %1</translation>
    </message>
    <message>
        <source>The receiver cannot be read. %1</source>
        <translation>Mottagaren kan inte läsas. %1</translation>
    </message>
    <message>
        <source>The simulated field is done.</source>
        <translation>Det simulerade fältet är klart.</translation>
    </message>
    <message>
        <source>The recording of the receiver is over.</source>
        <translation>Inspelningen av mottagaren är slut.</translation>
    </message>
</context>
<context>
    <name>ReceiverPage</name>
    <message>
        <source>Receiver</source>
        <translation>Mottagare</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Stoppa</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Starta</translation>
    </message>
    <message>
        <source>Simulator</source>
        <translation>Simulator</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fil</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Nätverk</translation>
    </message>
    <message>
        <source>Serial</source>
        <translation>Seriell</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adress</translation>
    </message>
    <message>
        <source>Fix</source>
        <translation>Fix</translation>
    </message>
    <message>
        <source>Age</source>
        <translation>Ålder</translation>
    </message>
    <message>
        <source>Satellites</source>
        <translation>Satelliter</translation>
    </message>
    <message>
        <source>HDOP</source>
        <translation>HDOP</translation>
    </message>
    <message>
        <source>Time (UTC)</source>
        <translation>Tid (UTC)</translation>
    </message>
    <message>
        <source>Lines</source>
        <translation>Rader</translation>
    </message>
    <message>
        <source>Sentences</source>
        <translation>Meddelanden</translation>
    </message>
    <message>
        <source>Bad checksums</source>
        <translation>Fel kontrollsumma</translation>
    </message>
    <message>
        <source>Damaged lines</source>
        <translation>Skadade rader</translation>
    </message>
    <message>
        <source>Address of the receiver</source>
        <translation>Mottagarens adress</translation>
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
        <translation>Tid</translation>
    </message>
    <message>
        <source>Time zone</source>
        <translation>Tidszon</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>Datum och tid</translation>
    </message>
    <message>
        <source>Set by hand</source>
        <translation>Ställ in</translation>
    </message>
</context>
<context>
    <name>SearchPage</name>
    <message>
        <source>Search</source>
        <translation>Sök</translation>
    </message>
    <message>
        <source>Words of a setting</source>
        <translation>Sökord</translation>
    </message>
    <message>
        <source>No setting has these words.</source>
        <translation>Ingen inställning har dessa ord.</translation>
    </message>
</context>
<context>
    <name>SettingsPage</name>
    <message>
        <source>Units</source>
        <translation>Enheter</translation>
    </message>
    <message>
        <source>Region</source>
        <translation>Region</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>Färger</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Display</translation>
    </message>
    <message>
        <source>Machine</source>
        <translation>Maskin</translation>
    </message>
    <message>
        <source>Storage</source>
        <translation>Lagring</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Om</translation>
    </message>
    <message>
        <source>Tiles</source>
        <translation>Paneler</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>Profiler</translation>
    </message>
    <message>
        <source>All settings</source>
        <translation>Alla inställningar</translation>
    </message>
</context>
<context>
    <name>SettingsPanel</name>
    <message>
        <source>Back</source>
        <translation>Tillbaka</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Sök</translation>
    </message>
</context>
<context>
    <name>Sizes</name>
    <message numerus="yes">
        <source>%n byte(s)</source>
        <translation>
            <numerusform>%n byte</numerusform>
            <numerusform>%n byte</numerusform>
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
        <translation>Inget jobb</translation>
    </message>
    <message>
        <source>Receiver: %1</source>
        <translation>Mottagare: %1</translation>
    </message>
    <message>
        <source>The stick is plugged in</source>
        <translation>USB-minnet sitter i</translation>
    </message>
    <message>
        <source>Lock the screen</source>
        <translation>Lås skärmen</translation>
    </message>
    <message>
        <source>Colours of the night</source>
        <translation>Nattfärger</translation>
    </message>
    <message>
        <source>Colours of the day</source>
        <translation>Dagfärger</translation>
    </message>
</context>
<context>
    <name>StoragePage</name>
    <message>
        <source>Open</source>
        <translation>Öppna</translation>
    </message>
    <message>
        <source>Internal drive</source>
        <translation>Intern disk</translation>
    </message>
    <message>
        <source>Stick</source>
        <translation>USB-minne</translation>
    </message>
    <message>
        <source>No stick is plugged in.</source>
        <translation>Inget USB-minne sitter i.</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Arbetsminne</translation>
    </message>
    <message>
        <source>Logs</source>
        <translation>Loggar</translation>
    </message>
    <message>
        <source>Writes all log files to the stick</source>
        <translation>Skriver alla loggfiler till USB-minnet</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exportera</translation>
    </message>
    <message>
        <source>Export the logs</source>
        <translation>Exportera loggarna</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>Profiler</translation>
    </message>
    <message>
        <source>Takes the settings to another display, or brings them back from the stick</source>
        <translation>Överför inställningarna till en annan display eller hämtar dem tillbaka från USB-minnet</translation>
    </message>
    <message>
        <source>Open the profiles</source>
        <translation>Öppna profilerna</translation>
    </message>
    <message>
        <source>Support</source>
        <translation>Service</translation>
    </message>
    <message>
        <source>Writes logs, settings and versions in one file; without the names of clients, farms and fields</source>
        <translation>Skriver loggar, inställningar och versioner i en fil; utan namn på kunder, gårdar och fält</translation>
    </message>
    <message>
        <source>Write</source>
        <translation>Skriv</translation>
    </message>
    <message>
        <source>Write the file for support without names</source>
        <translation>Skriv filen för service utan namn</translation>
    </message>
    <message>
        <source>Support, with names</source>
        <translation>Service, med namn</translation>
    </message>
    <message>
        <source>The same file, with all names and places</source>
        <translation>Samma fil, med alla namn och platser</translation>
    </message>
    <message>
        <source>Write the file for support with names</source>
        <translation>Skriv filen för service med namn</translation>
    </message>
</context>
<context>
    <name>TFieldTreeModel</name>
    <message>
        <source>A job holds no items.</source>
        <translation>Ett jobb innehåller inget mer.</translation>
    </message>
    <message>
        <source>There is one with this name already.</source>
        <translation>Namnet finns redan.</translation>
    </message>
    <message numerus="yes">
        <source>%n file(s), %1</source>
        <translation>
            <numerusform>%n fil, %1</numerusform>
            <numerusform>%n filer, %1</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>TParameter</name>
    <message>
        <source>The setting could not be written to the disk yet.</source>
        <translation>Inställningen kunde inte sparas än.</translation>
    </message>
    <message>
        <source>There is no value to set.</source>
        <translation>Det finns inget värde att ange.</translation>
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
        <translation>mars</translation>
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
        <translation>juni</translation>
    </message>
    <message>
        <source>Jul</source>
        <translation>juli</translation>
    </message>
    <message>
        <source>Aug</source>
        <translation>aug.</translation>
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
        <translation>Det nya språket visas efter en omstart.</translation>
    </message>
    <message>
        <source>The new decimal sign is shown after a restart.</source>
        <translation>Det nya decimaltecknet visas efter en omstart.</translation>
    </message>
</context>
<context>
    <name>TSelections</name>
    <message>
        <source>The selection could not be stored.</source>
        <translation>Valet kunde inte sparas.</translation>
    </message>
</context>
<context>
    <name>TSystemSettings</name>
    <message>
        <source>J_</source>
        <translation>J_</translation>
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
        <translation>C_</translation>
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
        <translation>Inget fordon</translation>
    </message>
    <message>
        <source>No Profile</source>
        <translation>Ingen profil</translation>
    </message>
    <message>
        <source>No Implement</source>
        <translation>Inget redskap</translation>
    </message>
    <message>
        <source>Pivoted_</source>
        <translation>Bogserat_</translation>
    </message>
</context>
<context>
    <name>TTransfer</name>
    <message>
        <source>The name is empty.</source>
        <translation>Namnet är tomt.</translation>
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
        <translation>mars</translation>
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
        <translation>juni</translation>
    </message>
    <message>
        <source>Jul</source>
        <translation>juli</translation>
    </message>
    <message>
        <source>Aug</source>
        <translation>aug.</translation>
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
        <translation>miles</translation>
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
        <translation>L/varv</translation>
    </message>
    <message>
        <source>gal/rev</source>
        <translation>gal/varv</translation>
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
        <translation>m/puls</translation>
    </message>
    <message>
        <source>ft/pulse</source>
        <translation>ft/puls</translation>
    </message>
    <message>
        <source>pulses/L</source>
        <translation>puls/L</translation>
    </message>
    <message>
        <source>pulses/gal</source>
        <translation>puls/gal</translation>
    </message>
    <message>
        <source>pulses/mL</source>
        <translation>puls/mL</translation>
    </message>
    <message>
        <source>pulses/fl.oz</source>
        <translation>puls/fl.oz</translation>
    </message>
    <message>
        <source>pulses/m³</source>
        <translation>puls/m³</translation>
    </message>
    <message>
        <source>pulses/ft³</source>
        <translation>puls/ft³</translation>
    </message>
    <message>
        <source>pulses/t</source>
        <translation>puls/t</translation>
    </message>
    <message>
        <source>pulses/lb</source>
        <translation>puls/lb</translation>
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
        <translation>kg/varv</translation>
    </message>
    <message>
        <source>lb/rev</source>
        <translation>lb/varv</translation>
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
        <translation>puls/kgN</translation>
    </message>
    <message>
        <source>pulses/lbN</source>
        <translation>puls/lbN</translation>
    </message>
    <message>
        <source>KS/ha</source>
        <translation>kfrö/ha</translation>
    </message>
    <message>
        <source>KS/ac</source>
        <translation>kfrö/ac</translation>
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
        <translation>varv/min</translation>
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
        <translation>Kritiskt</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normalt</translation>
    </message>
    <message>
        <source>Trivial</source>
        <translation>Obetydligt</translation>
    </message>
</context>
<context>
    <name>TWork</name>
    <message>
        <source>An implement cannot have this width.</source>
        <translation>Ett redskap kan inte ha denna bredd.</translation>
    </message>
    <message>
        <source>A file of this job cannot be used. %1</source>
        <translation>En fil i detta jobb kan inte användas. %1</translation>
    </message>
    <message>
        <source>Coverage was not complete and was left out: strips %1, bytes %2</source>
        <translation>Data om bearbetad yta var ofullständiga och utelämnades: remsor %1, byte %2</translation>
    </message>
    <message>
        <source>The file of the flags is damaged; new flags are not stored.</source>
        <translation>Filen med flaggorna är skadad; nya flaggor sparas inte.</translation>
    </message>
    <message>
        <source>A file could not be stored. %1</source>
        <translation>En fil kunde inte sparas. %1</translation>
    </message>
    <message>
        <source>The file of the implement cannot be used. %1</source>
        <translation>Redskapets fil kan inte användas. %1</translation>
    </message>
    <message>
        <source>There is no line.</source>
        <translation>Det finns ingen linje.</translation>
    </message>
    <message>
        <source>The line has no name.</source>
        <translation>Linjen har inget namn.</translation>
    </message>
    <message>
        <source>The guidance line cannot be used. %1</source>
        <translation>Körlinjen kan inte användas. %1</translation>
    </message>
    <message>
        <source>No job is chosen</source>
        <translation>Inget jobb valt</translation>
    </message>
    <message>
        <source>No job is chosen: what is covered is not stored.</source>
        <translation>Inget jobb valt: det bearbetade sparas inte.</translation>
    </message>
    <message>
        <source>The coverage of this job cannot be used: what is covered is not stored.</source>
        <translation>Jobbets bearbetade yta kan inte användas: det nya sparas inte.</translation>
    </message>
    <message>
        <source>The coverage cannot be stored, and strips are lost: %1</source>
        <translation>Den bearbetade ytan kan inte sparas och remsor går förlorade: %1</translation>
    </message>
    <message>
        <source>The coverage is kept in memory until it can be stored. %1</source>
        <translation>Den bearbetade ytan hålls i arbetsminnet tills den kan sparas. %1</translation>
    </message>
    <message>
        <source>The job is still being read.</source>
        <translation>Jobbet läses fortfarande in.</translation>
    </message>
</context>
<context>
    <name>TileTurner</name>
    <message>
        <source>Tiles</source>
        <translation>Paneler</translation>
    </message>
</context>
<context>
    <name>Tiles</name>
    <message>
        <source>Rate</source>
        <translation>Giva</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Hastighet</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>Areal</translation>
    </message>
    <message>
        <source>Left</source>
        <comment>area that is left to work</comment>
        <translation>Kvar</translation>
    </message>
    <message>
        <source>Work</source>
        <comment>area per hour</comment>
        <translation>Kapacitet</translation>
    </message>
    <message>
        <source>Flow</source>
        <translation>Flöde</translation>
    </message>
    <message>
        <source>Press.</source>
        <comment>pressure</comment>
        <translation>Tryck</translation>
    </message>
    <message>
        <source>Temp.</source>
        <comment>temperature</comment>
        <translation>Temp.</translation>
    </message>
    <message>
        <source>Driven</source>
        <translation>Kört</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Tid</translation>
    </message>
</context>
<context>
    <name>TilesPage</name>
    <message>
        <source>Back to the first choice</source>
        <translation>Tillbaka till första valet</translation>
    </message>
    <message>
        <source>%1 further ahead</source>
        <translation>Flytta upp %1</translation>
    </message>
    <message>
        <source>Shown</source>
        <translation>Visas</translation>
    </message>
    <message>
        <source>Hidden</source>
        <translation>Döljs</translation>
    </message>
</context>
<context>
    <name>Transfer</name>
    <message>
        <source>Nothing is imported: some settings were changed here and in the profile.</source>
        <translation>Inget är importerat: några inställningar har ändrats här och i profilen.</translation>
    </message>
    <message>
        <source>No stick is plugged in.</source>
        <translation>Inget USB-minne sitter i.</translation>
    </message>
    <message>
        <source>The stick was removed before everything was on it.</source>
        <translation>USB-minnet togs ur innan allt låg på det.</translation>
    </message>
    <message>
        <source>The stick could not be written to the end.</source>
        <translation>Skrivningen till USB-minnet slutfördes inte.</translation>
    </message>
    <message>
        <source>The folder %1 cannot be made.</source>
        <translation>Mappen %1 kan inte skapas.</translation>
    </message>
    <message>
        <source>The file %1 cannot be written.</source>
        <translation>Filen %1 kan inte skrivas.</translation>
    </message>
    <message>
        <source>The logs are on the stick (files: %1).</source>
        <translation>Loggarna ligger på USB-minnet (filer: %1).</translation>
    </message>
    <message>
        <source>The profile cannot be used. %1</source>
        <translation>Profilen kan inte användas. %1</translation>
    </message>
    <message>
        <source>Nothing is imported. %1</source>
        <translation>Inget är importerat. %1</translation>
    </message>
    <message>
        <source>This display</source>
        <translation>Denna display</translation>
    </message>
    <message>
        <source>Another display</source>
        <translation>En annan display</translation>
    </message>
    <message>
        <source>The profile is not on the stick. %1</source>
        <translation>Profilen ligger inte på USB-minnet. %1</translation>
    </message>
    <message>
        <source>The profile is on the stick: %1.</source>
        <translation>Profilen ligger på USB-minnet: %1.</translation>
    </message>
    <message>
        <source>The file for support is not on the stick. %1</source>
        <translation>Filen för service ligger inte på USB-minnet. %1</translation>
    </message>
    <message>
        <source>The file for support is on the stick: %1.</source>
        <translation>Filen för service ligger på USB-minnet: %1.</translation>
    </message>
    <message>
        <source>The profile is imported (settings changed: %1).</source>
        <translation>Profilen är importerad (ändrade inställningar: %1).</translation>
    </message>
    <message>
        <source>It cannot be used.</source>
        <translation>Kan inte användas.</translation>
    </message>
</context>
<context>
    <name>TransferState</name>
    <message>
        <source>Reading</source>
        <translation>Läser</translation>
    </message>
    <message>
        <source>Writing</source>
        <translation>Skriver</translation>
    </message>
    <message>
        <source>Leave the stick where it is until this is done.</source>
        <translation>Låt USB-minnet sitta kvar tills detta är klart.</translation>
    </message>
</context>
<context>
    <name>WorkPage</name>
    <message>
        <source>Waiting for a position</source>
        <translation>Väntar på en position</translation>
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
        <translation>Arbetar</translation>
    </message>
    <message>
        <source>Not working</source>
        <translation>Arbetar inte</translation>
    </message>
    <message>
        <source>Working. Switch the implement off</source>
        <translation>Arbetar. Slå av redskapet</translation>
    </message>
    <message>
        <source>Not working. Switch the implement on</source>
        <translation>Arbetar inte. Slå på redskapet</translation>
    </message>
</context>
</TS>
