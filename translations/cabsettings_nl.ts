<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nl" sourcelanguage="en">
<context>
    <name>About</name>
    <message>
        <source>Windows, files and connections</source>
        <translation>Vensters, bestanden en verbindingen</translation>
    </message>
    <message>
        <source>The file of the settings</source>
        <translation>Het bestand met de instellingen</translation>
    </message>
    <message>
        <source>Profiles of settings</source>
        <translation>Profielen van instellingen</translation>
    </message>
    <message>
        <source>Files for support</source>
        <translation>Bestanden voor de service</translation>
    </message>
    <message>
        <source>Sunrise and sunset</source>
        <translation>Zonsopgang en zonsondergang</translation>
    </message>
    <message>
        <source>Boundaries and zones</source>
        <translation>Grenzen en zones</translation>
    </message>
    <message>
        <source>Software</source>
        <translation>Software</translation>
    </message>
    <message>
        <source>The software of this display</source>
        <translation>De software van dit display</translation>
    </message>
    <message>
        <source>Settings, units and logs</source>
        <translation>Instellingen, eenheden en logs</translation>
    </message>
</context>
<context>
    <name>Clock</name>
    <message>
        <source>The clock of the machine; nothing has set it.</source>
        <translation>De klok van het apparaat; die is nog niet gezet.</translation>
    </message>
    <message>
        <source>The clock was set by hand.</source>
        <translation>De klok is handmatig gezet.</translation>
    </message>
    <message>
        <source>The receiver sets the clock.</source>
        <translation>De ontvanger zet de klok.</translation>
    </message>
    <message>
        <source>There is no such date or time.</source>
        <translation>Deze datum of tijd bestaat niet.</translation>
    </message>
    <message>
        <source>The date is more than 68 years from the clock of the machine.</source>
        <translation>De datum ligt meer dan 68 jaar van de klok van het apparaat.</translation>
    </message>
    <message>
        <source>The clock could not be stored.</source>
        <translation>De kloktijd kon niet worden opgeslagen.</translation>
    </message>
</context>
<context>
    <name>ClockEntry</name>
    <message>
        <source>Year</source>
        <translation>Jaar</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>Maand</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Dag</translation>
    </message>
    <message>
        <source>Hour</source>
        <translation>Uur</translation>
    </message>
    <message>
        <source>Minute</source>
        <translation>Minuut</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>Datum en tijd</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Tijd</translation>
    </message>
    <message>
        <source>%1: more</source>
        <translation>%1: meer</translation>
    </message>
    <message>
        <source>%1: less</source>
        <translation>%1: minder</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuleren</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>Instellen</translation>
    </message>
</context>
<context>
    <name>ColorBar</name>
    <message>
        <source>%1: less</source>
        <translation>%1: minder</translation>
    </message>
    <message>
        <source>%1: more</source>
        <translation>%1: meer</translation>
    </message>
</context>
<context>
    <name>ColorPage</name>
    <message>
        <source>Former</source>
        <translation>Vorige</translation>
    </message>
    <message>
        <source>Former colour</source>
        <translation>Vorige kleur</translation>
    </message>
    <message>
        <source>First value</source>
        <translation>Beginwaarde</translation>
    </message>
    <message>
        <source>Digits of the colour</source>
        <translation>Cijfers van de kleur</translation>
    </message>
    <message>
        <source>Hue</source>
        <translation>Kleurtoon</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Verzadiging</translation>
    </message>
    <message>
        <source>Lightness</source>
        <translation>Helderheid</translation>
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
        <translation>Nacht</translation>
    </message>
</context>
<context>
    <name>Contrasts</name>
    <message>
        <source>on %1: %2</source>
        <translation>op %1: %2</translation>
    </message>
    <message>
        <source>under %1: %2</source>
        <translation>onder %1: %2</translation>
    </message>
    <message>
        <source>%1, too low: at least %2</source>
        <translation>%1, te laag: minstens %2</translation>
    </message>
</context>
<context>
    <name>Difference</name>
    <message>
        <source>Changed on both sides</source>
        <translation>Aan beide kanten gewijzigd</translation>
    </message>
    <message>
        <source>Here</source>
        <translation>Hier</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>Profiel</translation>
    </message>
</context>
<context>
    <name>Display</name>
    <message>
        <source>Restart</source>
        <translation>Herstarten</translation>
    </message>
    <message>
        <source>The fonts of the display</source>
        <translation>De lettertypen van het display</translation>
    </message>
    <message>
        <source>The keyboard on the screen</source>
        <translation>Het toetsenbord op het scherm</translation>
    </message>
</context>
<context>
    <name>DoorBand</name>
    <message>
        <source>Work</source>
        <translation>Werk</translation>
    </message>
    <message>
        <source>Fields</source>
        <translation>Percelen</translation>
    </message>
    <message>
        <source>Receiver</source>
        <translation>Ontvanger</translation>
    </message>
    <message>
        <source>Logs</source>
        <translation>Logs</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Instellingen</translation>
    </message>
</context>
<context>
    <name>Drives</name>
    <message>
        <source>%1 free of %2</source>
        <translation>%1 vrij van %2</translation>
    </message>
    <message>
        <source>Not known</source>
        <translation>Niet bekend</translation>
    </message>
    <message>
        <source>No stick</source>
        <translation>Geen stick</translation>
    </message>
</context>
<context>
    <name>FieldsPage</name>
    <message>
        <source>Clients</source>
        <translation>Klanten</translation>
    </message>
    <message>
        <source>New client</source>
        <translation>Nieuwe klant</translation>
    </message>
    <message>
        <source>No client yet.</source>
        <translation>Nog geen klant.</translation>
    </message>
    <message>
        <source>Farms</source>
        <translation>Bedrijven</translation>
    </message>
    <message>
        <source>New farm</source>
        <translation>Nieuw bedrijf</translation>
    </message>
    <message>
        <source>No farm yet.</source>
        <translation>Nog geen bedrijf.</translation>
    </message>
    <message>
        <source>Fields</source>
        <translation>Percelen</translation>
    </message>
    <message>
        <source>New field</source>
        <translation>Nieuw perceel</translation>
    </message>
    <message>
        <source>No field yet.</source>
        <translation>Nog geen perceel.</translation>
    </message>
    <message>
        <source>Jobs</source>
        <translation>Taken</translation>
    </message>
    <message>
        <source>New job</source>
        <translation>Nieuwe taak</translation>
    </message>
    <message>
        <source>No job yet.</source>
        <translation>Nog geen taak.</translation>
    </message>
    <message>
        <source>Remove %1 with everything in it?</source>
        <translation>%1 met de hele inhoud verwijderen?</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Rename or remove %1</source>
        <translation>%1 hernoemen of verwijderen</translation>
    </message>
    <message>
        <source>Rename %1</source>
        <translation>%1 hernoemen</translation>
    </message>
    <message>
        <source>Remove everything</source>
        <translation>Alles verwijderen</translation>
    </message>
</context>
<context>
    <name>Host</name>
    <message>
        <source>Details for the support: %1</source>
        <translation>Gegevens voor de service: %1</translation>
    </message>
    <message>
        <source>%3 Try: %4</source>
        <translation>%3 Voorstel: %4</translation>
    </message>
    <message>
        <source>This name is not possible.</source>
        <translation>Deze naam is niet mogelijk.</translation>
    </message>
    <message>
        <source>The name is empty.</source>
        <translation>De naam is leeg.</translation>
    </message>
    <message>
        <source>This name stands for another folder.</source>
        <translation>Deze naam staat voor een andere map.</translation>
    </message>
    <message>
        <source>The name must not contain %1.</source>
        <translation>De naam mag geen %1 bevatten.</translation>
    </message>
    <message>
        <source>The name contains a sign that cannot be seen.</source>
        <translation>De naam bevat een onzichtbaar teken.</translation>
    </message>
    <message>
        <source>The name contains a sign that is not complete.</source>
        <translation>De naam bevat een onvolledig teken.</translation>
    </message>
    <message>
        <source>The name must not end in a full stop or a blank.</source>
        <translation>De naam mag niet op een punt of spatie eindigen.</translation>
    </message>
    <message>
        <source>The name must not begin with a blank.</source>
        <translation>De naam mag niet met een spatie beginnen.</translation>
    </message>
    <message>
        <source>A stick cannot hold a file with this name.</source>
        <translation>Een stick kan geen bestand met deze naam bevatten.</translation>
    </message>
    <message>
        <source>The name is too long.</source>
        <translation>De naam is te lang.</translation>
    </message>
    <message>
        <source>%2 exists already.</source>
        <translation>%2 bestaat al.</translation>
    </message>
    <message numerus="yes">
        <source>%2 is active and holds %n file(s).</source>
        <translation>
            <numerusform>%2 is actief en bevat %n bestand.</numerusform>
            <numerusform>%2 is actief en bevat %n bestanden.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%2 holds %n file(s).</source>
        <translation>
            <numerusform>%2 bevat %n bestand.</numerusform>
            <numerusform>%2 bevat %n bestanden.</numerusform>
        </translation>
    </message>
    <message>
        <source>%2 is active.</source>
        <translation>%2 is actief.</translation>
    </message>
    <message>
        <source>%2 is no longer there.</source>
        <translation>%2 is er niet meer.</translation>
    </message>
    <message>
        <source>A stick cannot tell %2 from %3.</source>
        <translation>Een stick kan %2 niet van %3 onderscheiden.</translation>
    </message>
    <message>
        <source>Another program is working on the fields. Try again later.</source>
        <translation>Een ander programma werkt aan de percelen. Later opnieuw proberen.</translation>
    </message>
    <message>
        <source>The selection could not be stored.</source>
        <translation>De selectie kon niet worden opgeslagen.</translation>
    </message>
    <message>
        <source>%1 is neither a file nor a folder.</source>
        <translation>%1 is geen bestand en geen map.</translation>
    </message>
    <message>
        <source>The file was edited or is damaged.</source>
        <translation>Het bestand is bewerkt of beschadigd.</translation>
    </message>
    <message>
        <source>%1 cannot be read. %2</source>
        <translation>%1 is niet te lezen. %2</translation>
    </message>
    <message>
        <source>The file is of another kind.</source>
        <translation>Het bestand is van een andere soort.</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>Het bestand is leeg.</translation>
    </message>
    <message>
        <source>The end of the file is missing.</source>
        <translation>Het einde van het bestand ontbreekt.</translation>
    </message>
    <message>
        <source>The file is damaged.</source>
        <translation>Het bestand is beschadigd.</translation>
    </message>
    <message>
        <source>The file is not complete.</source>
        <translation>Het bestand is niet volledig.</translation>
    </message>
    <message>
        <source>The file is from another version of the software.</source>
        <translation>Het bestand is van een andere versie van de software.</translation>
    </message>
    <message>
        <source>The file has a value that is not possible: %2</source>
        <translation>Het bestand bevat een onmogelijke waarde: %2</translation>
    </message>
    <message>
        <source>The file has a value twice: %2</source>
        <translation>Een instelling staat twee keer in het bestand: %2</translation>
    </message>
    <message>
        <source>This address is not possible: %1</source>
        <translation>Dit adres is niet mogelijk: %1</translation>
    </message>
    <message>
        <source>The device is not there.</source>
        <translation>Het apparaat is er niet.</translation>
    </message>
    <message>
        <source>It is not permitted, or another program uses it.</source>
        <translation>Niet toegestaan, of een ander programma gebruikt het.</translation>
    </message>
    <message>
        <source>Another program uses it.</source>
        <translation>Een ander programma gebruikt het.</translation>
    </message>
    <message>
        <source>It cannot be read.</source>
        <translation>Het is niet te lezen.</translation>
    </message>
    <message>
        <source>It was unplugged.</source>
        <translation>Het is losgekoppeld.</translation>
    </message>
    <message>
        <source>It is not a serial device, or it cannot have this speed.</source>
        <translation>Geen serieel apparaat, of deze snelheid is niet mogelijk.</translation>
    </message>
    <message>
        <source>The serial port has a fault (number %1).</source>
        <translation>De seriële poort heeft een storing (nummer %1).</translation>
    </message>
    <message>
        <source>%1 is damaged or of another kind.</source>
        <translation>%1 is beschadigd of van een andere soort.</translation>
    </message>
    <message>
        <source>%1 is from another version of the software.</source>
        <translation>%1 is van een andere versie van de software.</translation>
    </message>
    <message>
        <source>%1 is damaged.</source>
        <translation>%1 is beschadigd.</translation>
    </message>
    <message>
        <source>%1 has other coordinates than WGS84.</source>
        <translation>%1 heeft andere coördinaten dan WGS84.</translation>
    </message>
    <message>
        <source>%1 is not complete. %2 is missing.</source>
        <translation>%1 is niet volledig. %2 ontbreekt.</translation>
    </message>
    <message>
        <source>%1 has no areas.</source>
        <translation>%1 bevat geen vlakken.</translation>
    </message>
    <message>
        <source>Another program uses %1.</source>
        <translation>Een ander programma gebruikt %1.</translation>
    </message>
    <message>
        <source>A and B are too close together or too far apart.</source>
        <translation>A en B liggen te dicht bij elkaar of te ver uit elkaar.</translation>
    </message>
    <message>
        <source>Another program has locked it.</source>
        <translation>Een ander programma heeft het vergrendeld.</translation>
    </message>
    <message>
        <source>It is no longer there.</source>
        <translation>Het is er niet meer.</translation>
    </message>
    <message>
        <source>%1 is no longer there.</source>
        <translation>%1 is er niet meer.</translation>
    </message>
    <message>
        <source>%1 cannot be written. %2</source>
        <translation>%1 is niet te schrijven. %2</translation>
    </message>
    <message>
        <source>%1 cannot be written.</source>
        <translation>%1 is niet te schrijven.</translation>
    </message>
    <message>
        <source>The file of the settings has a fault (number %1).</source>
        <translation>Het bestand met de instellingen heeft een fout (nummer %1).</translation>
    </message>
    <message>
        <source>%1 cannot be opened. %2</source>
        <translation>%1 is niet te openen. %2</translation>
    </message>
    <message>
        <source>%1 cannot be created. %2</source>
        <translation>%1 is niet te maken. %2</translation>
    </message>
    <message>
        <source>%1 cannot be copied. %2</source>
        <translation>%1 is niet te kopiëren. %2</translation>
    </message>
    <message>
        <source>%1 cannot be renamed. %2</source>
        <translation>%1 is niet te hernoemen. %2</translation>
    </message>
    <message>
        <source>%1 cannot be removed. %2</source>
        <translation>%1 is niet te verwijderen. %2</translation>
    </message>
    <message>
        <source>The drive is full.</source>
        <translation>De schijf is vol.</translation>
    </message>
    <message>
        <source>The drive has a fault.</source>
        <translation>De schijf heeft een storing.</translation>
    </message>
    <message>
        <source>The drive can only be read.</source>
        <translation>De schijf kan alleen worden gelezen.</translation>
    </message>
    <message>
        <source>It is not permitted.</source>
        <translation>Het is niet toegestaan.</translation>
    </message>
    <message>
        <source>It cannot be opened.</source>
        <translation>Het is niet te openen.</translation>
    </message>
    <message>
        <source>It is damaged.</source>
        <translation>Het is beschadigd.</translation>
    </message>
    <message>
        <source>It is not there.</source>
        <translation>Het is er niet.</translation>
    </message>
    <message>
        <source>It exists already.</source>
        <translation>Het bestaat al.</translation>
    </message>
    <message>
        <source>It is a folder.</source>
        <translation>Het is een map.</translation>
    </message>
    <message>
        <source>It is not a folder.</source>
        <translation>Het is geen map.</translation>
    </message>
    <message>
        <source>The folder is not empty.</source>
        <translation>De map is niet leeg.</translation>
    </message>
    <message>
        <source>The file is too large.</source>
        <translation>Het bestand is te groot.</translation>
    </message>
    <message>
        <source>Too many files are open.</source>
        <translation>Er zijn te veel bestanden open.</translation>
    </message>
    <message>
        <source>There is too little memory.</source>
        <translation>Er is te weinig geheugen.</translation>
    </message>
    <message>
        <source>It is not possible there.</source>
        <translation>Het is daar niet mogelijk.</translation>
    </message>
    <message>
        <source>The device refuses the connection.</source>
        <translation>Het apparaat weigert de verbinding.</translation>
    </message>
    <message>
        <source>The device has closed the connection.</source>
        <translation>Het apparaat heeft de verbinding verbroken.</translation>
    </message>
    <message>
        <source>There is no device with this address.</source>
        <translation>Er is geen apparaat met dit adres.</translation>
    </message>
    <message>
        <source>The network cannot be reached.</source>
        <translation>Het netwerk is niet bereikbaar.</translation>
    </message>
    <message>
        <source>The device does not answer.</source>
        <translation>Het apparaat antwoordt niet.</translation>
    </message>
    <message>
        <source>It is a link to another place.</source>
        <translation>Het is een koppeling naar een andere plaats.</translation>
    </message>
    <message>
        <source>There are too many links to it.</source>
        <translation>Te veel koppelingen verwijzen hiernaar.</translation>
    </message>
</context>
<context>
    <name>ItemActions</name>
    <message>
        <source>Rename</source>
        <translation>Hernoemen</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Verwijderen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuleren</translation>
    </message>
</context>
<context>
    <name>ItemPage</name>
    <message>
        <source>New</source>
        <translation>Nieuw</translation>
    </message>
</context>
<context>
    <name>Keypad</name>
    <message>
        <source>%1 to %2 %3</source>
        <translation>%1 tot %2 %3</translation>
    </message>
    <message>
        <source>At least %1 %2</source>
        <translation>Minstens %1 %2</translation>
    </message>
    <message>
        <source>At most %1 %2</source>
        <translation>Hoogstens %1 %2</translation>
    </message>
    <message>
        <source>This is not a number yet.</source>
        <translation>Dit is nog geen getal.</translation>
    </message>
    <message>
        <source>Too large.
%1</source>
        <translation>Te groot.
%1</translation>
    </message>
    <message>
        <source>Too small.
%1</source>
        <translation>Te klein.
%1</translation>
    </message>
    <message>
        <source>now %1</source>
        <translation>nu %1</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuleren</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>Instellen</translation>
    </message>
    <message>
        <source>Decimal sign</source>
        <translation>Decimaalteken</translation>
    </message>
    <message>
        <source>Plus or minus</source>
        <translation>Plus of min</translation>
    </message>
    <message>
        <source>Remove the last sign</source>
        <translation>Laatste teken wissen</translation>
    </message>
    <message>
        <source>C</source>
        <comment>key that clears the entry</comment>
        <translation>C</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Wissen</translation>
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
        <translation>A, het ene einde van de lijn, hier zetten</translation>
    </message>
    <message>
        <source>B</source>
        <comment>the other end of the guidance line</comment>
        <translation>B</translation>
    </message>
    <message>
        <source>Set B, the other end of the line, here</source>
        <translation>B, het andere einde van de lijn, hier zetten</translation>
    </message>
    <message>
        <source>Set a flag here</source>
        <translation>Hier een vlag zetten</translation>
    </message>
</context>
<context>
    <name>LineChoice</name>
    <message>
        <source>New</source>
        <translation>Nieuw</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuleren</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Stoppen</translation>
    </message>
</context>
<context>
    <name>LinePanel</name>
    <message>
        <source>%1 to the left</source>
        <translation>%1 naar links</translation>
    </message>
    <message>
        <source>%1 to the right</source>
        <translation>%1 naar rechts</translation>
    </message>
</context>
<context>
    <name>LockLayer</name>
    <message>
        <source>The screen is locked. Hold the button to unlock it.</source>
        <translation>Het scherm is vergrendeld. Houd de knop ingedrukt om te ontgrendelen.</translation>
    </message>
    <message>
        <source>Unlock</source>
        <translation>Ontgrendelen</translation>
    </message>
</context>
<context>
    <name>LogsPage</name>
    <message>
        <source>Logs</source>
        <translation>Logs</translation>
    </message>
    <message>
        <source>Events</source>
        <translation>Meldingen</translation>
    </message>
    <message>
        <source>Receiver</source>
        <translation>Ontvanger</translation>
    </message>
    <message>
        <source>Go on</source>
        <translation>Verder</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pauze</translation>
    </message>
    <message>
        <source>No line yet.</source>
        <translation>Nog geen regel.</translation>
    </message>
</context>
<context>
    <name>MachinePage</name>
    <message>
        <source>Implement width</source>
        <translation>Werktuigbreedte</translation>
    </message>
    <message>
        <source>Decides the guidance lines beside each other, and the area done</source>
        <translation>Bepaalt de werklijnen naast elkaar en de bewerkte oppervlakte</translation>
    </message>
    <message>
        <source>Implement behind the antenna</source>
        <translation>Werktuig achter de antenne</translation>
    </message>
    <message>
        <source>How far the ground is covered behind the vehicle&apos;s place</source>
        <translation>Hoe ver achter de positie van het voertuig de grond wordt bewerkt</translation>
    </message>
</context>
<context>
    <name>Main</name>
    <message>
        <source>Cab display</source>
        <translation>Cabinedisplay</translation>
    </message>
</context>
<context>
    <name>MapButtons</name>
    <message>
        <source>Zoom in</source>
        <translation>Inzoomen</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Uitzoomen</translation>
    </message>
    <message>
        <source>The heading is up. Turn north up</source>
        <translation>Rijrichting boven. Noorden naar boven draaien</translation>
    </message>
    <message>
        <source>North is up. Turn the heading up</source>
        <translation>Noorden boven. Rijrichting naar boven draaien</translation>
    </message>
    <message>
        <source>Centre the vehicle</source>
        <translation>Voertuig centreren</translation>
    </message>
</context>
<context>
    <name>NameEntry</name>
    <message>
        <source>Cancel</source>
        <translation>Annuleren</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>Opslaan</translation>
    </message>
</context>
<context>
    <name>PageTurner</name>
    <message>
        <source>Rows above</source>
        <translation>Rijen boven</translation>
    </message>
    <message>
        <source>Rows below</source>
        <translation>Rijen onder</translation>
    </message>
</context>
<context>
    <name>ParameterRow</name>
    <message>
        <source>%1: back to the first value</source>
        <translation>%1: terug naar de beginwaarde</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Openen</translation>
    </message>
</context>
<context>
    <name>ParameterTexts</name>
    <message>
        <source>h</source>
        <translation>u</translation>
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
        <translation>een absoluut pad dat op &quot;/&quot; eindigt en niet &quot;/&quot; is</translation>
    </message>
    <message>
        <source>an absolute path</source>
        <translation>een absoluut pad</translation>
    </message>
    <message>
        <source>a UUID in small letters, such as 6ba7b810-9dad-41d1-80b4-00c04fd430c8</source>
        <translation>een UUID in kleine letters, zoals 6ba7b810-9dad-41d1-80b4-00c04fd430c8</translation>
    </message>
    <message>
        <source>simulator, tcp://HOST:PORT, serial:///dev/NAME?baud=N or an absolute path</source>
        <translation>simulator, tcp://HOST:PORT, serial:///dev/NAME?baud=N of een absoluut pad</translation>
    </message>
    <message>
        <source>true or false</source>
        <translation>true of false</translation>
    </message>
    <message>
        <source>a time in UTC, such as 2026-03-05T13:05:09Z</source>
        <translation>een tijd in UTC, zoals 2026-03-05T13:05:09Z</translation>
    </message>
    <message>
        <source>a colour: #rrggbb, #aarrggbb or a name such as navy</source>
        <translation>een kleur: #rrggbb, #aarrggbb of een naam zoals navy</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 tot %2</translation>
    </message>
    <message>
        <source>Not a whole number.</source>
        <translation>Geen geheel getal.</translation>
    </message>
    <message>
        <source>Below the least value.</source>
        <translation>Onder de kleinste waarde.</translation>
    </message>
    <message>
        <source>Above the greatest value.</source>
        <translation>Boven de grootste waarde.</translation>
    </message>
    <message>
        <source>This cannot be the name of a file. Try: %1</source>
        <translation>Zo kan een bestand niet heten. Voorstel: %1</translation>
    </message>
    <message>
        <source>Not accepted. Expected: %1.</source>
        <translation>Niet mogelijk. Verwacht: %1.</translation>
    </message>
    <message>
        <source>a name without %1</source>
        <translation>een naam zonder %1</translation>
    </message>
    <message>
        <source>a whole number</source>
        <translation>een geheel getal</translation>
    </message>
    <message>
        <source>At least %1</source>
        <translation>Minstens %1</translation>
    </message>
</context>
<context>
    <name>Parameters</name>
    <message>
        <source>the operator has chosen the offset from UTC; GPS time keeps it instead of computing it</source>
        <translation>de bediener heeft het verschil met UTC gekozen; de gps-tijd berekent het dan niet</translation>
    </message>
    <message>
        <source>metric units; otherwise US or English units</source>
        <translation>metrische eenheden; anders Amerikaanse of Engelse eenheden</translation>
    </message>
    <message>
        <source>US measures when units are not metric; otherwise English measures</source>
        <translation>Amerikaanse maten als de eenheden niet metrisch zijn; anders Engelse maten</translation>
    </message>
    <message>
        <source>positions in degrees, minutes and seconds; otherwise in decimal degrees</source>
        <translation>posities in graden, minuten en seconden; anders in decimale graden</translation>
    </message>
    <message>
        <source>24-hour clock; otherwise 12 hours with am and pm</source>
        <translation>24-uursklok; anders 12 uur met am en pm</translation>
    </message>
    <message>
        <source>dates with the month before the day</source>
        <translation>datums met de maand voor de dag</translation>
    </message>
    <message>
        <source>colours for day; otherwise for night</source>
        <translation>kleuren voor de dag; anders voor de nacht</translation>
    </message>
    <message>
        <source>the map turns with the vehicle; otherwise north is up</source>
        <translation>de kaart draait met het voertuig mee; anders is het noorden boven</translation>
    </message>
    <message>
        <source>unit of pressures</source>
        <translation>eenheid van druk</translation>
    </message>
    <message>
        <source>unit of areas, and of rates per area</source>
        <translation>eenheid van oppervlakte en afgifte per oppervlakte</translation>
    </message>
    <message>
        <source>unit of short distances: widths, offsets</source>
        <translation>eenheid van korte afstanden: breedten, verschuivingen</translation>
    </message>
    <message>
        <source>unit of granular volumes</source>
        <translation>eenheid van granulaatvolume</translation>
    </message>
    <message>
        <source>unit of granular densities</source>
        <translation>eenheid van granulaatdichtheid</translation>
    </message>
    <message>
        <source>unit of liquid volumes, flows and rates</source>
        <translation>eenheid van volume, debiet en afgifte bij vloeistof</translation>
    </message>
    <message>
        <source>language of the display&apos;s texts; a change needs a restart</source>
        <translation>taal van het display; een wijziging vereist een herstart</translation>
    </message>
    <message>
        <source>decimal point or comma; a change needs a restart</source>
        <translation>decimale punt of komma; een wijziging vereist een herstart</translation>
    </message>
    <message>
        <source>when the colours switch between day and night: only by hand, at sunrise and sunset, or with the sun 6 degrees below the horizon</source>
        <translation>wanneer de kleuren wisselen tussen dag en nacht: alleen handmatig, bij zonsopgang en zonsondergang, of als de zon 6 graden onder de horizon staat</translation>
    </message>
    <message>
        <source>what set the display&apos;s clock</source>
        <translation>waarmee de displayklok is gezet</translation>
    </message>
    <message>
        <source>local time less UTC, whole hours</source>
        <translation>plaatselijke tijd min UTC, hele uren</translation>
    </message>
    <message>
        <source>local time less UTC, minutes beyond the hours, with the sign of the hours</source>
        <translation>plaatselijke tijd min UTC, minuten na de uren, met het teken van de uren</translation>
    </message>
    <message>
        <source>brightness of the lightbar at night</source>
        <translation>helderheid van de lichtbalk bij nacht</translation>
    </message>
    <message>
        <source>brightness of the screen at night</source>
        <translation>helderheid van het scherm bij nacht</translation>
    </message>
    <message>
        <source>brightness of the button lights at night</source>
        <translation>helderheid van de knopverlichting bij nacht</translation>
    </message>
    <message>
        <source>4: implements are kept in the folder of their vehicle; other numbers: in their own folder</source>
        <translation>4: werktuigen staan in de map van hun voertuig; andere getallen: in een eigen map</translation>
    </message>
    <message>
        <source>number of the next file of the NMEA log</source>
        <translation>nummer van het volgende bestand van de NMEA-log</translation>
    </message>
    <message>
        <source>number of the next file of the user log</source>
        <translation>nummer van het volgende bestand van de gebruikerslog</translation>
    </message>
    <message>
        <source>the display&apos;s clock less UTC</source>
        <translation>de klok van het display min UTC</translation>
    </message>
    <message>
        <source>folder of the internal drive; by default in the data folder</source>
        <translation>map van de interne schijf; standaard in de gegevensmap</translation>
    </message>
    <message>
        <source>mount point of the removable drive; by default in the data folder</source>
        <translation>koppelpunt van de verwisselbare schijf; standaard in de gegevensmap</translation>
    </message>
    <message>
        <source>the identity of the terminal, which its profiles carry</source>
        <translation>het kenmerk van de terminal, dat in zijn profielen staat</translation>
    </message>
    <message>
        <source>where the sentences of the receiver come from</source>
        <translation>waar de berichten van de ontvanger vandaan komen</translation>
    </message>
    <message>
        <source>the figures beside the map, in this order</source>
        <translation>de waarden naast de kaart, in deze volgorde</translation>
    </message>
    <message>
        <source>the newest time of a receiver, as of the last day on which one was seen</source>
        <translation>de nieuwste tijd van een ontvanger, van de laatste dag waarop er een was</translation>
    </message>
    <message>
        <source>when the sun switched the colours last</source>
        <translation>wanneer de zon de kleuren het laatst omschakelde</translation>
    </message>
    <message>
        <source>the active job</source>
        <translation>de actieve taak</translation>
    </message>
    <message>
        <source>the active boundary</source>
        <translation>de actieve perceelsgrens</translation>
    </message>
    <message>
        <source>the active straight guidance line</source>
        <translation>de actieve rechte werklijn</translation>
    </message>
    <message>
        <source>the active pivot</source>
        <translation>de actieve pivot</translation>
    </message>
    <message>
        <source>the active guidance curve</source>
        <translation>de actieve gebogen werklijn</translation>
    </message>
    <message>
        <source>the active shape file of optimal lines</source>
        <translation>het actieve shapebestand met optimale lijnen</translation>
    </message>
    <message>
        <source>the active shape file of project lines</source>
        <translation>het actieve shapebestand met projectlijnen</translation>
    </message>
    <message>
        <source>the active shape file of zones</source>
        <translation>het actieve shapebestand met zones</translation>
    </message>
    <message>
        <source>the active steering profile</source>
        <translation>het actieve stuurprofiel</translation>
    </message>
    <message>
        <source>the active implement</source>
        <translation>het actieve werktuig</translation>
    </message>
    <message>
        <source>the active vehicle</source>
        <translation>het actieve voertuig</translation>
    </message>
    <message>
        <source>the active sprayer</source>
        <translation>de actieve spuit</translation>
    </message>
    <message>
        <source>the active boom leveller</source>
        <translation>de actieve spuitboomgeleiding</translation>
    </message>
    <message>
        <source>the active client</source>
        <translation>de actieve klant</translation>
    </message>
    <message>
        <source>the active farm</source>
        <translation>het actieve bedrijf</translation>
    </message>
    <message>
        <source>the active field</source>
        <translation>het actieve perceel</translation>
    </message>
    <message>
        <source>Measures</source>
        <translation>Maatstelsel</translation>
    </message>
    <message>
        <source>Gallons and bushels</source>
        <translation>Gallons en bushels</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>Oppervlakte</translation>
    </message>
    <message>
        <source>Pressure</source>
        <translation>Druk</translation>
    </message>
    <message>
        <source>Short distances</source>
        <translation>Korte afstanden</translation>
    </message>
    <message>
        <source>Liquid</source>
        <translation>Vloeistof</translation>
    </message>
    <message>
        <source>Granular volume</source>
        <translation>Granulaatvolume</translation>
    </message>
    <message>
        <source>Granular density</source>
        <translation>Granulaatdichtheid</translation>
    </message>
    <message>
        <source>Positions</source>
        <translation>Posities</translation>
    </message>
    <message>
        <source>Rate per travel</source>
        <translation>Afgifte per rijafstand</translation>
    </message>
    <message>
        <source>Basis of rates</source>
        <translation>Basis van afgifte</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Taal</translation>
    </message>
    <message>
        <source>Decimal sign</source>
        <translation>Decimaalteken</translation>
    </message>
    <message>
        <source>Time of day</source>
        <translation>Kloktijd</translation>
    </message>
    <message>
        <source>Dates</source>
        <translation>Datums</translation>
    </message>
    <message>
        <source>Time zone set by hand</source>
        <translation>Tijdzone handmatig</translation>
    </message>
    <message>
        <source>Time zone, hours</source>
        <translation>Tijdzone, uren</translation>
    </message>
    <message>
        <source>Time zone, minutes</source>
        <translation>Tijdzone, minuten</translation>
    </message>
    <message>
        <source>Clock less UTC</source>
        <translation>Klok t.o.v. UTC</translation>
    </message>
    <message>
        <source>Source of the time</source>
        <translation>Bron van de tijd</translation>
    </message>
    <message>
        <source>Source of the time since</source>
        <translation>Bron van de tijd sinds</translation>
    </message>
    <message>
        <source>Newest receiver time</source>
        <translation>Laatste ontvangertijd</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>Kleuren</translation>
    </message>
    <message>
        <source>Day and night</source>
        <translation>Dag en nacht</translation>
    </message>
    <message>
        <source>Map direction</source>
        <translation>Kaartrichting</translation>
    </message>
    <message>
        <source>Tiles</source>
        <translation>Tegels</translation>
    </message>
    <message>
        <source>Light bar at night</source>
        <translation>Lichtbalk bij nacht</translation>
    </message>
    <message>
        <source>Screen at night</source>
        <translation>Scherm bij nacht</translation>
    </message>
    <message>
        <source>Button lights at night</source>
        <translation>Knopverlichting bij nacht</translation>
    </message>
    <message>
        <source>Switched by the sun</source>
        <translation>Door de zon geschakeld</translation>
    </message>
    <message>
        <source>Client</source>
        <translation>Klant</translation>
    </message>
    <message>
        <source>Farm</source>
        <translation>Bedrijf</translation>
    </message>
    <message>
        <source>Field</source>
        <translation>Perceel</translation>
    </message>
    <message>
        <source>Job</source>
        <translation>Taak</translation>
    </message>
    <message>
        <source>Vehicle</source>
        <translation>Voertuig</translation>
    </message>
    <message>
        <source>Implement</source>
        <translation>Werktuig</translation>
    </message>
    <message>
        <source>Sprayer</source>
        <translation>Spuit</translation>
    </message>
    <message>
        <source>Boom leveller</source>
        <translation>Spuitboomgeleiding</translation>
    </message>
    <message>
        <source>Steering profile</source>
        <translation>Stuurprofiel</translation>
    </message>
    <message>
        <source>Boundary</source>
        <translation>Perceelsgrens</translation>
    </message>
    <message>
        <source>A-B line</source>
        <translation>A-B-lijn</translation>
    </message>
    <message>
        <source>Pivot</source>
        <translation>Pivot</translation>
    </message>
    <message>
        <source>Curve</source>
        <translation>Curve</translation>
    </message>
    <message>
        <source>Optimal lines</source>
        <translation>Optimale lijnen</translation>
    </message>
    <message>
        <source>Project lines</source>
        <translation>Projectlijnen</translation>
    </message>
    <message>
        <source>Zones</source>
        <translation>Zones</translation>
    </message>
    <message>
        <source>Receiver address</source>
        <translation>Ontvangeradres</translation>
    </message>
    <message>
        <source>Internal drive</source>
        <translation>Interne schijf</translation>
    </message>
    <message>
        <source>Stick</source>
        <translation>Stick</translation>
    </message>
    <message>
        <source>Implement folder</source>
        <translation>Werktuigmap</translation>
    </message>
    <message>
        <source>Next NMEA log</source>
        <translation>Volgende NMEA-log</translation>
    </message>
    <message>
        <source>Next user log</source>
        <translation>Volgende gebruikerslog</translation>
    </message>
    <message>
        <source>Identity</source>
        <translation>Kenmerk</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Tekst</translation>
    </message>
    <message>
        <source>Colour of texts</source>
        <translation>Kleur van teksten</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>Colour of titles</source>
        <translation>Kleur van titels</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Achtergrond</translation>
    </message>
    <message>
        <source>Colour of the background</source>
        <translation>Kleur van de achtergrond</translation>
    </message>
    <message>
        <source>Button</source>
        <translation>Knop</translation>
    </message>
    <message>
        <source>Colour of buttons</source>
        <translation>Kleur van knoppen</translation>
    </message>
    <message>
        <source>Button text</source>
        <translation>Knoptekst</translation>
    </message>
    <message>
        <source>Colour of texts on buttons</source>
        <translation>Kleur van teksten op knoppen</translation>
    </message>
    <message>
        <source>Map</source>
        <translation>Kaart</translation>
    </message>
    <message>
        <source>Colour of the map&apos;s ground</source>
        <translation>Kleur van de grond op de kaart</translation>
    </message>
    <message>
        <source>Grid</source>
        <translation>Raster</translation>
    </message>
    <message>
        <source>Colour of the map&apos;s grid</source>
        <translation>Kleur van het raster op de kaart</translation>
    </message>
    <message>
        <source>Coverage</source>
        <translation>Bewerkt</translation>
    </message>
    <message>
        <source>Colour of covered ground</source>
        <translation>Kleur van bewerkte grond</translation>
    </message>
    <message>
        <source>Vehicle on the map</source>
        <translation>Voertuig op de kaart</translation>
    </message>
    <message>
        <source>Colour of the vehicle</source>
        <translation>Kleur van het voertuig</translation>
    </message>
    <message>
        <source>Guidance line</source>
        <translation>Werklijn</translation>
    </message>
    <message>
        <source>Colour of the guidance line</source>
        <translation>Kleur van de werklijn</translation>
    </message>
    <message>
        <source>Cross hairs</source>
        <translation>Dradenkruis</translation>
    </message>
    <message>
        <source>Colour of the cross hairs</source>
        <translation>Kleur van het dradenkruis</translation>
    </message>
    <message>
        <source>Outer boundary</source>
        <translation>Buitengrens</translation>
    </message>
    <message>
        <source>Colour of the outer boundary of the field</source>
        <translation>Kleur van de buitengrens van het perceel</translation>
    </message>
    <message>
        <source>Inner boundary</source>
        <translation>Binnengrens</translation>
    </message>
    <message>
        <source>Colour of boundaries within the field</source>
        <translation>Kleur van grenzen binnen het perceel</translation>
    </message>
    <message>
        <source>Other boundaries</source>
        <translation>Andere grenzen</translation>
    </message>
    <message>
        <source>Colour of boundaries that are not active</source>
        <translation>Kleur van niet actieve grenzen</translation>
    </message>
    <message>
        <source>Exclusion zone</source>
        <translation>Uitsluitzone</translation>
    </message>
    <message>
        <source>Colour of zones to keep out of</source>
        <translation>Kleur van te mijden zones</translation>
    </message>
    <message>
        <source>Background picture</source>
        <translation>Achtergrondafbeelding</translation>
    </message>
    <message>
        <source>Number of the background picture</source>
        <translation>Nummer van de achtergrondafbeelding</translation>
    </message>
    <message>
        <source>what the sprayer&apos;s rates are related to</source>
        <translation>waar de afgifte van de spuit op is gebaseerd</translation>
    </message>
    <message>
        <source>liquid rates per 100 m or 100 yd of travel, while travel is their basis</source>
        <translation>vloeistofafgifte per 100 m of 100 yd rijafstand, zolang die de basis is</translation>
    </message>
    <message>
        <source>since when the clock has its time from there</source>
        <translation>sinds wanneer de klok de tijd daarvandaan heeft</translation>
    </message>
    <message>
        <source>Metric</source>
        <translation>Metrisch</translation>
    </message>
    <message>
        <source>US or English</source>
        <translation>US of Engels</translation>
    </message>
    <message>
        <source>US</source>
        <translation>US</translation>
    </message>
    <message>
        <source>English</source>
        <translation>Engels</translation>
    </message>
    <message>
        <source>Deg., min., s</source>
        <translation>Grad., min, s</translation>
    </message>
    <message>
        <source>Degrees</source>
        <translation>Graden</translation>
    </message>
    <message>
        <source>24 hours</source>
        <translation>24 uur</translation>
    </message>
    <message>
        <source>am, pm</source>
        <translation>am, pm</translation>
    </message>
    <message>
        <source>Month first</source>
        <translation>Maand eerst</translation>
    </message>
    <message>
        <source>Day first</source>
        <translation>Dag eerst</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Dag</translation>
    </message>
    <message>
        <source>Night</source>
        <translation>Nacht</translation>
    </message>
    <message>
        <source>Heading up</source>
        <translation>Rijrichting</translation>
    </message>
    <message>
        <source>North up</source>
        <translation>Noord boven</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Aan</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Uit</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nee</translation>
    </message>
    <message>
        <source>Travel</source>
        <translation>Rijafstand</translation>
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
        <translation>Hectare</translation>
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
        <translation>Inch</translation>
    </message>
    <message>
        <source>Foot</source>
        <translation>Voet</translation>
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
        <translation>Punt</translation>
    </message>
    <message>
        <source>Comma</source>
        <translation>Komma</translation>
    </message>
    <message>
        <source>By hand</source>
        <translation>Handmatig</translation>
    </message>
    <message>
        <source>Sunset</source>
        <translation>Zonsondergang</translation>
    </message>
    <message>
        <source>Twilight</source>
        <translation>Schemering</translation>
    </message>
    <message>
        <source>Not set</source>
        <translation>Niet gezet</translation>
    </message>
    <message>
        <source>Operator</source>
        <translation>Bediener</translation>
    </message>
    <message>
        <source>Receiver</source>
        <translation>Ontvanger</translation>
    </message>
    <message>
        <source>Rate</source>
        <translation>Afgifte</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Snelheid</translation>
    </message>
    <message>
        <source>Area done</source>
        <translation>Bewerkte oppervlakte</translation>
    </message>
    <message>
        <source>Area left</source>
        <translation>Resterende oppervlakte</translation>
    </message>
    <message>
        <source>Productivity</source>
        <translation>Capaciteit</translation>
    </message>
    <message>
        <source>Flow</source>
        <translation>Debiet</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperatuur</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>Afstand</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Positie</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Tijd</translation>
    </message>
    <message>
        <source>Units</source>
        <translation>Eenheden</translation>
    </message>
    <message>
        <source>Rates</source>
        <translation>Afgiften</translation>
    </message>
    <message>
        <source>Region</source>
        <translation>Regio</translation>
    </message>
    <message>
        <source>Clock</source>
        <translation>Klok</translation>
    </message>
    <message>
        <source>Colours of the schemes</source>
        <translation>Kleurenschema&apos;s</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Display</translation>
    </message>
    <message>
        <source>Selections</source>
        <translation>Selecties</translation>
    </message>
    <message>
        <source>Storage</source>
        <translation>Opslag</translation>
    </message>
    <message>
        <source>Logs</source>
        <translation>Logs</translation>
    </message>
    <message>
        <source>Terminal</source>
        <translation>Terminal</translation>
    </message>
    <message>
        <source>%1, by day</source>
        <translation>%1, overdag</translation>
    </message>
    <message>
        <source>%1, by night</source>
        <translation>%1, &apos;s nachts</translation>
    </message>
</context>
<context>
    <name>Problems</name>
    <message>
        <source>The logs lose lines: their drive is full or cannot be written.</source>
        <translation>De logs verliezen regels: hun schijf is vol of kan niet worden beschreven.</translation>
    </message>
    <message>
        <source>Recording is off, because there is too little room.</source>
        <translation>De registratie is uit, omdat er te weinig ruimte is.</translation>
    </message>
    <message>
        <source>Changes of settings are not stored yet. %1</source>
        <translation>Wijzigingen van instellingen zijn nog niet opgeslagen. %1</translation>
    </message>
    <message>
        <source>The drive of the terminal is nearly full. Free: %1</source>
        <translation>De schijf van de terminal is bijna vol. Vrij: %1</translation>
    </message>
</context>
<context>
    <name>ProfilePage</name>
    <message>
        <source>Import</source>
        <translation>Importeren</translation>
    </message>
    <message>
        <source>The display has these settings already.</source>
        <translation>Het display heeft deze instellingen al.</translation>
    </message>
    <message>
        <source>Changed here and in the profile</source>
        <translation>Hier en in het profiel gewijzigd</translation>
    </message>
    <message>
        <source>Which value the settings below shall have</source>
        <translation>Welke waarde de onderstaande instellingen krijgen</translation>
    </message>
    <message>
        <source>Ours</source>
        <translation>Hier</translation>
    </message>
    <message>
        <source>Theirs</source>
        <translation>Profiel</translation>
    </message>
</context>
<context>
    <name>ProfilesPage</name>
    <message>
        <source>Profiles</source>
        <translation>Profielen</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exporteren</translation>
    </message>
    <message>
        <source>There is no profile on the stick.</source>
        <translation>Er staat geen profiel op de stick.</translation>
    </message>
    <message>
        <source>No stick is plugged in.</source>
        <translation>Er zit geen stick in.</translation>
    </message>
    <message>
        <source>Name of the profile</source>
        <translation>Naam van het profiel</translation>
    </message>
</context>
<context>
    <name>Quantities</name>
    <message>
        <source>Area</source>
        <translation>Oppervlakte</translation>
    </message>
    <message>
        <source>Productivity</source>
        <translation>Capaciteit</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Snelheid</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>Afstand</translation>
    </message>
    <message>
        <source>Small distance</source>
        <translation>Kleine afstand</translation>
    </message>
    <message>
        <source>Travelled distance</source>
        <translation>Rijafstand</translation>
    </message>
    <message>
        <source>Altitude</source>
        <translation>Hoogte</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperatuur</translation>
    </message>
    <message>
        <source>Pressure</source>
        <translation>Druk</translation>
    </message>
    <message>
        <source>Rate</source>
        <translation>Afgifte</translation>
    </message>
    <message>
        <source>Requested rate</source>
        <translation>Gewenste afgifte</translation>
    </message>
    <message>
        <source>Rate and error</source>
        <translation>Afgifte en afwijking</translation>
    </message>
    <message>
        <source>Small rate</source>
        <translation>Kleine afgifte</translation>
    </message>
    <message>
        <source>Flow</source>
        <translation>Debiet</translation>
    </message>
    <message>
        <source>Small flow</source>
        <translation>Klein debiet</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volume</translation>
    </message>
    <message>
        <source>Small volume</source>
        <translation>Klein volume</translation>
    </message>
    <message>
        <source>Granular volume</source>
        <translation>Granulaatvolume</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>Gewicht</translation>
    </message>
    <message>
        <source>Weight per area</source>
        <translation>Gewicht per opp.</translation>
    </message>
    <message>
        <source>Weight per area and error</source>
        <translation>Gewicht per opp. en afwijking</translation>
    </message>
    <message>
        <source>Discharge</source>
        <translation>Uitstroom</translation>
    </message>
    <message>
        <source>Nitrogen</source>
        <translation>Stikstof</translation>
    </message>
    <message>
        <source>Nitrogen per area</source>
        <translation>Stikstof per opp.</translation>
    </message>
    <message>
        <source>Seeds per area</source>
        <translation>Zaden per opp.</translation>
    </message>
    <message>
        <source>Density</source>
        <translation>Dichtheid</translation>
    </message>
    <message>
        <source>Granular density</source>
        <translation>Granulaatdichtheid</translation>
    </message>
    <message>
        <source>Volume per revolution</source>
        <translation>Volume per omwenteling</translation>
    </message>
    <message>
        <source>Weight per revolution</source>
        <translation>Gewicht per omwenteling</translation>
    </message>
    <message>
        <source>Flow meter</source>
        <translation>Debietmeter</translation>
    </message>
    <message>
        <source>Wheel sensor</source>
        <translation>Wielsensor</translation>
    </message>
    <message>
        <source>Speed sensor</source>
        <translation>Snelheidssensor</translation>
    </message>
    <message>
        <source>Latitude</source>
        <translation>Breedtegraad</translation>
    </message>
    <message>
        <source>Longitude</source>
        <translation>Lengtegraad</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Duur</translation>
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
        <translation>Annuleren</translation>
    </message>
</context>
<context>
    <name>RateTile</name>
    <message>
        <source>set %1</source>
        <comment>the rate that is set</comment>
        <translation>doel %1</translation>
    </message>
</context>
<context>
    <name>Receiver</name>
    <message>
        <source>Off</source>
        <translation>Uit</translation>
    </message>
    <message>
        <source>Connecting</source>
        <translation>Verbindt</translation>
    </message>
    <message>
        <source>Receiving</source>
        <translation>Ontvangst</translation>
    </message>
    <message>
        <source>Silent</source>
        <translation>Stil</translation>
    </message>
    <message>
        <source>Lost</source>
        <translation>Verloren</translation>
    </message>
    <message>
        <source>Ended</source>
        <translation>Beëindigd</translation>
    </message>
    <message>
        <source>No fix</source>
        <translation>Geen fix</translation>
    </message>
    <message>
        <source>RTK float</source>
        <translation>RTK float</translation>
    </message>
    <message>
        <source>Estimated</source>
        <translation>Geschat</translation>
    </message>
    <message>
        <source>By hand</source>
        <translation>Handmatig</translation>
    </message>
    <message>
        <source>Simulated</source>
        <translation>Gesimuleerd</translation>
    </message>
    <message>
        <source>The receiver sends nothing.</source>
        <translation>De ontvanger stuurt niets.</translation>
    </message>
    <message>
        <source>The receiver is lost and is being looked for. %1</source>
        <translation>De ontvanger is weg en wordt gezocht. %1</translation>
    </message>
    <message>
        <source>The receiver cannot be read. %1</source>
        <translation>De ontvanger kan niet worden gelezen. %1</translation>
    </message>
    <message>
        <source>The simulated field is done.</source>
        <translation>Het gesimuleerde perceel is klaar.</translation>
    </message>
    <message>
        <source>The recording of the receiver is over.</source>
        <translation>De opname van de ontvanger is afgelopen.</translation>
    </message>
</context>
<context>
    <name>ReceiverPage</name>
    <message>
        <source>Receiver</source>
        <translation>Ontvanger</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Stoppen</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Starten</translation>
    </message>
    <message>
        <source>Simulator</source>
        <translation>Simulator</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Bestand</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Netwerk</translation>
    </message>
    <message>
        <source>Serial</source>
        <translation>Serieel</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adres</translation>
    </message>
    <message>
        <source>Fix</source>
        <translation>Fix</translation>
    </message>
    <message>
        <source>Age</source>
        <translation>Leeftijd</translation>
    </message>
    <message>
        <source>Satellites</source>
        <translation>Satellieten</translation>
    </message>
    <message>
        <source>HDOP</source>
        <translation>HDOP</translation>
    </message>
    <message>
        <source>Time (UTC)</source>
        <translation>Tijd (UTC)</translation>
    </message>
    <message>
        <source>Lines</source>
        <translation>Regels</translation>
    </message>
    <message>
        <source>Sentences</source>
        <translation>Berichten</translation>
    </message>
    <message>
        <source>Bad checksums</source>
        <translation>Foute checksums</translation>
    </message>
    <message>
        <source>Damaged lines</source>
        <translation>Defecte regels</translation>
    </message>
    <message>
        <source>Address of the receiver</source>
        <translation>Adres van de ontvanger</translation>
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
        <translation>Tijd</translation>
    </message>
    <message>
        <source>Time zone</source>
        <translation>Tijdzone</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>Datum en tijd</translation>
    </message>
    <message>
        <source>Set by hand</source>
        <translation>Zelf instellen</translation>
    </message>
</context>
<context>
    <name>SearchPage</name>
    <message>
        <source>Search</source>
        <translation>Zoeken</translation>
    </message>
    <message>
        <source>Words of a setting</source>
        <translation>Zoekwoorden</translation>
    </message>
    <message>
        <source>No setting has these words.</source>
        <translation>Geen instelling heeft deze woorden.</translation>
    </message>
</context>
<context>
    <name>SettingsPage</name>
    <message>
        <source>Units</source>
        <translation>Eenheden</translation>
    </message>
    <message>
        <source>Region</source>
        <translation>Regio</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>Kleuren</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Display</translation>
    </message>
    <message>
        <source>Machine</source>
        <translation>Machine</translation>
    </message>
    <message>
        <source>Storage</source>
        <translation>Opslag</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Info</translation>
    </message>
    <message>
        <source>Tiles</source>
        <translation>Tegels</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>Profielen</translation>
    </message>
    <message>
        <source>All settings</source>
        <translation>Alle instellingen</translation>
    </message>
</context>
<context>
    <name>SettingsPanel</name>
    <message>
        <source>Back</source>
        <translation>Terug</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Zoeken</translation>
    </message>
</context>
<context>
    <name>Sizes</name>
    <message numerus="yes">
        <source>%n byte(s)</source>
        <translation>
            <numerusform>%n byte</numerusform>
            <numerusform>%n bytes</numerusform>
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
        <translation>Geen taak</translation>
    </message>
    <message>
        <source>Receiver: %1</source>
        <translation>Ontvanger: %1</translation>
    </message>
    <message>
        <source>The stick is plugged in</source>
        <translation>De stick zit erin</translation>
    </message>
    <message>
        <source>Lock the screen</source>
        <translation>Scherm vergrendelen</translation>
    </message>
    <message>
        <source>Colours of the night</source>
        <translation>Kleuren voor de nacht</translation>
    </message>
    <message>
        <source>Colours of the day</source>
        <translation>Kleuren voor de dag</translation>
    </message>
</context>
<context>
    <name>StoragePage</name>
    <message>
        <source>Open</source>
        <translation>Openen</translation>
    </message>
    <message>
        <source>Internal drive</source>
        <translation>Interne schijf</translation>
    </message>
    <message>
        <source>Stick</source>
        <translation>Stick</translation>
    </message>
    <message>
        <source>No stick is plugged in.</source>
        <translation>Er zit geen stick in.</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Geheugen</translation>
    </message>
    <message>
        <source>Logs</source>
        <translation>Logs</translation>
    </message>
    <message>
        <source>Writes all log files to the stick</source>
        <translation>Schrijft alle logbestanden naar de stick</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exporteren</translation>
    </message>
    <message>
        <source>Export the logs</source>
        <translation>Logs exporteren</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>Profielen</translation>
    </message>
    <message>
        <source>Takes the settings to another display, or brings them back from the stick</source>
        <translation>Brengt de instellingen naar een ander display, of haalt ze terug van de stick</translation>
    </message>
    <message>
        <source>Open the profiles</source>
        <translation>Profielen openen</translation>
    </message>
    <message>
        <source>Support</source>
        <translation>Service</translation>
    </message>
    <message>
        <source>Writes logs, settings and versions in one file; without the names of clients, farms and fields</source>
        <translation>Schrijft logs, instellingen en versies in één bestand; zonder de namen van klanten, bedrijven en percelen</translation>
    </message>
    <message>
        <source>Write</source>
        <translation>Schrijven</translation>
    </message>
    <message>
        <source>Write the file for support without names</source>
        <translation>Bestand voor de service zonder namen schrijven</translation>
    </message>
    <message>
        <source>Support, with names</source>
        <translation>Service, met namen</translation>
    </message>
    <message>
        <source>The same file, with all names and places</source>
        <translation>Hetzelfde bestand, met alle namen en plaatsen</translation>
    </message>
    <message>
        <source>Write the file for support with names</source>
        <translation>Bestand voor de service met namen schrijven</translation>
    </message>
</context>
<context>
    <name>TFieldTreeModel</name>
    <message>
        <source>A job holds no items.</source>
        <translation>Een taak bevat verder niets.</translation>
    </message>
    <message>
        <source>There is one with this name already.</source>
        <translation>Deze naam bestaat al.</translation>
    </message>
    <message numerus="yes">
        <source>%n file(s), %1</source>
        <translation>
            <numerusform>%n bestand, %1</numerusform>
            <numerusform>%n bestanden, %1</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>TParameter</name>
    <message>
        <source>The setting could not be written to the disk yet.</source>
        <translation>De instelling kon nog niet worden opgeslagen.</translation>
    </message>
    <message>
        <source>There is no value to set.</source>
        <translation>Er is geen waarde om in te stellen.</translation>
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
        <translation>mrt</translation>
    </message>
    <message>
        <source>Apr</source>
        <translation>apr</translation>
    </message>
    <message>
        <source>May</source>
        <translation>mei</translation>
    </message>
    <message>
        <source>Jun</source>
        <translation>jun</translation>
    </message>
    <message>
        <source>Jul</source>
        <translation>jul</translation>
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
        <translation>De nieuwe taal geldt na een herstart.</translation>
    </message>
    <message>
        <source>The new decimal sign is shown after a restart.</source>
        <translation>Het nieuwe decimaalteken geldt na een herstart.</translation>
    </message>
</context>
<context>
    <name>TSelections</name>
    <message>
        <source>The selection could not be stored.</source>
        <translation>De selectie kon niet worden opgeslagen.</translation>
    </message>
</context>
<context>
    <name>TSystemSettings</name>
    <message>
        <source>J_</source>
        <translation>T_</translation>
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
        <translation>Geen voertuig</translation>
    </message>
    <message>
        <source>No Profile</source>
        <translation>Geen profiel</translation>
    </message>
    <message>
        <source>No Implement</source>
        <translation>Geen werktuig</translation>
    </message>
    <message>
        <source>Pivoted_</source>
        <translation>Getrokken_</translation>
    </message>
</context>
<context>
    <name>TTransfer</name>
    <message>
        <source>The name is empty.</source>
        <translation>De naam is leeg.</translation>
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
        <translation>mrt</translation>
    </message>
    <message>
        <source>Apr</source>
        <translation>apr</translation>
    </message>
    <message>
        <source>May</source>
        <translation>mei</translation>
    </message>
    <message>
        <source>Jun</source>
        <translation>jun</translation>
    </message>
    <message>
        <source>Jul</source>
        <translation>jul</translation>
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
        <translation>mijl</translation>
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
        <translation>km/u</translation>
    </message>
    <message>
        <source>mph</source>
        <translation>mph</translation>
    </message>
    <message>
        <source>ac/hr</source>
        <translation>ac/u</translation>
    </message>
    <message>
        <source>ha/hr</source>
        <translation>ha/u</translation>
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
        <translation>L/omw</translation>
    </message>
    <message>
        <source>gal/rev</source>
        <translation>gal/omw</translation>
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
        <translation>kg/omw</translation>
    </message>
    <message>
        <source>lb/rev</source>
        <translation>lb/omw</translation>
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
        <translation>kzaden/ha</translation>
    </message>
    <message>
        <source>KS/ac</source>
        <translation>kzaden/ac</translation>
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
        <translation>uur</translation>
    </message>
    <message>
        <source>Hz</source>
        <translation>Hz</translation>
    </message>
    <message>
        <source>rpm</source>
        <translation>omw/min</translation>
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
        <translation>Kritiek</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normaal</translation>
    </message>
    <message>
        <source>Trivial</source>
        <translation>Gering</translation>
    </message>
</context>
<context>
    <name>TWork</name>
    <message>
        <source>An implement cannot have this width.</source>
        <translation>Een werktuig kan deze breedte niet hebben.</translation>
    </message>
    <message>
        <source>A file of this job cannot be used. %1</source>
        <translation>Een bestand van deze taak is niet bruikbaar. %1</translation>
    </message>
    <message>
        <source>Coverage was not complete and was left out: strips %1, bytes %2</source>
        <translation>Gegevens van de bewerkte oppervlakte waren onvolledig en zijn weggelaten: stroken %1, bytes %2</translation>
    </message>
    <message>
        <source>The file of the flags is damaged; new flags are not stored.</source>
        <translation>Het bestand met de vlaggen is beschadigd; nieuwe vlaggen worden niet opgeslagen.</translation>
    </message>
    <message>
        <source>A file could not be stored. %1</source>
        <translation>Een bestand kon niet worden opgeslagen. %1</translation>
    </message>
    <message>
        <source>The file of the implement cannot be used. %1</source>
        <translation>Het bestand van het werktuig is niet bruikbaar. %1</translation>
    </message>
    <message>
        <source>There is no line.</source>
        <translation>Er is geen lijn.</translation>
    </message>
    <message>
        <source>The line has no name.</source>
        <translation>De lijn heeft geen naam.</translation>
    </message>
    <message>
        <source>The guidance line cannot be used. %1</source>
        <translation>De werklijn is niet bruikbaar. %1</translation>
    </message>
    <message>
        <source>No job is chosen</source>
        <translation>Geen taak gekozen</translation>
    </message>
    <message>
        <source>No job is chosen: what is covered is not stored.</source>
        <translation>Geen taak gekozen: wat bewerkt is, wordt niet opgeslagen.</translation>
    </message>
    <message>
        <source>The coverage of this job cannot be used: what is covered is not stored.</source>
        <translation>De bewerkte oppervlakte van deze taak is niet bruikbaar: wat bewerkt is, wordt niet opgeslagen.</translation>
    </message>
    <message>
        <source>The coverage cannot be stored, and strips are lost: %1</source>
        <translation>De bewerkte oppervlakte kan niet worden opgeslagen en stroken gaan verloren: %1</translation>
    </message>
    <message>
        <source>The coverage is kept in memory until it can be stored. %1</source>
        <translation>De bewerkte oppervlakte blijft in het geheugen tot ze kan worden opgeslagen. %1</translation>
    </message>
    <message>
        <source>The job is still being read.</source>
        <translation>De taak wordt nog gelezen.</translation>
    </message>
</context>
<context>
    <name>TileTurner</name>
    <message>
        <source>Tiles</source>
        <translation>Tegels</translation>
    </message>
</context>
<context>
    <name>Tiles</name>
    <message>
        <source>Rate</source>
        <translation>Afgifte</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Snelheid</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>Opp.</translation>
    </message>
    <message>
        <source>Left</source>
        <comment>area that is left to work</comment>
        <translation>Rest</translation>
    </message>
    <message>
        <source>Work</source>
        <comment>area per hour</comment>
        <translation>Cap.</translation>
    </message>
    <message>
        <source>Flow</source>
        <translation>Debiet</translation>
    </message>
    <message>
        <source>Press.</source>
        <comment>pressure</comment>
        <translation>Druk</translation>
    </message>
    <message>
        <source>Temp.</source>
        <comment>temperature</comment>
        <translation>Temp.</translation>
    </message>
    <message>
        <source>Driven</source>
        <translation>Gereden</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Positie</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Tijd</translation>
    </message>
</context>
<context>
    <name>TilesPage</name>
    <message>
        <source>Back to the first choice</source>
        <translation>Terug naar de eerste keuze</translation>
    </message>
    <message>
        <source>%1 further ahead</source>
        <translation>%1 verder naar voren</translation>
    </message>
    <message>
        <source>Shown</source>
        <translation>Zichtbaar</translation>
    </message>
    <message>
        <source>Hidden</source>
        <translation>Verborgen</translation>
    </message>
</context>
<context>
    <name>Transfer</name>
    <message>
        <source>Nothing is imported: some settings were changed here and in the profile.</source>
        <translation>Er is niets geïmporteerd: enkele instellingen zijn hier en in het profiel gewijzigd.</translation>
    </message>
    <message>
        <source>No stick is plugged in.</source>
        <translation>Er zit geen stick in.</translation>
    </message>
    <message>
        <source>The stick was removed before everything was on it.</source>
        <translation>De stick is verwijderd voordat alles erop stond.</translation>
    </message>
    <message>
        <source>The stick could not be written to the end.</source>
        <translation>De stick kon niet tot het einde worden beschreven.</translation>
    </message>
    <message>
        <source>The folder %1 cannot be made.</source>
        <translation>De map %1 kan niet worden gemaakt.</translation>
    </message>
    <message>
        <source>The file %1 cannot be written.</source>
        <translation>Het bestand %1 kan niet worden geschreven.</translation>
    </message>
    <message>
        <source>The logs are on the stick (files: %1).</source>
        <translation>De logs staan op de stick (bestanden: %1).</translation>
    </message>
    <message>
        <source>The profile cannot be used. %1</source>
        <translation>Het profiel is niet bruikbaar. %1</translation>
    </message>
    <message>
        <source>Nothing is imported. %1</source>
        <translation>Er is niets geïmporteerd. %1</translation>
    </message>
    <message>
        <source>This display</source>
        <translation>Dit display</translation>
    </message>
    <message>
        <source>Another display</source>
        <translation>Een ander display</translation>
    </message>
    <message>
        <source>The profile is not on the stick. %1</source>
        <translation>Het profiel staat niet op de stick. %1</translation>
    </message>
    <message>
        <source>The profile is on the stick: %1.</source>
        <translation>Het profiel staat op de stick: %1.</translation>
    </message>
    <message>
        <source>The file for support is not on the stick. %1</source>
        <translation>Het bestand voor de service staat niet op de stick. %1</translation>
    </message>
    <message>
        <source>The file for support is on the stick: %1.</source>
        <translation>Het bestand voor de service staat op de stick: %1.</translation>
    </message>
    <message>
        <source>The profile is imported (settings changed: %1).</source>
        <translation>Het profiel is geïmporteerd (gewijzigde instellingen: %1).</translation>
    </message>
    <message>
        <source>It cannot be used.</source>
        <translation>Niet bruikbaar.</translation>
    </message>
</context>
<context>
    <name>TransferState</name>
    <message>
        <source>Reading</source>
        <translation>Bezig met lezen</translation>
    </message>
    <message>
        <source>Writing</source>
        <translation>Bezig met schrijven</translation>
    </message>
    <message>
        <source>Leave the stick where it is until this is done.</source>
        <translation>De stick laten zitten tot dit klaar is.</translation>
    </message>
</context>
<context>
    <name>WorkPage</name>
    <message>
        <source>Waiting for a position</source>
        <translation>Wachten op een positie</translation>
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
        <translation>In werking</translation>
    </message>
    <message>
        <source>Not working</source>
        <translation>Niet in werking</translation>
    </message>
    <message>
        <source>Working. Switch the implement off</source>
        <translation>In werking. Werktuig uitschakelen</translation>
    </message>
    <message>
        <source>Not working. Switch the implement on</source>
        <translation>Niet in werking. Werktuig inschakelen</translation>
    </message>
</context>
</TS>
