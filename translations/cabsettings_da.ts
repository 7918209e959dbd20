<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="da" sourcelanguage="en">
<context>
    <name>About</name>
    <message>
        <source>Windows, files and connections</source>
        <translation>Vinduer, filer og forbindelser</translation>
    </message>
    <message>
        <source>The file of the settings</source>
        <translation>Filen med indstillingerne</translation>
    </message>
    <message>
        <source>Profiles of settings</source>
        <translation>Profiler af indstillinger</translation>
    </message>
    <message>
        <source>Files for support</source>
        <translation>Filer til service</translation>
    </message>
    <message>
        <source>Sunrise and sunset</source>
        <translation>Solopgang og solnedgang</translation>
    </message>
    <message>
        <source>Boundaries and zones</source>
        <translation>Grænser og zoner</translation>
    </message>
    <message>
        <source>Software</source>
        <translation>Software</translation>
    </message>
    <message>
        <source>The software of this display</source>
        <translation>Softwaren i dette display</translation>
    </message>
    <message>
        <source>Settings, units and logs</source>
        <translation>Indstillinger, enheder og logge</translation>
    </message>
</context>
<context>
    <name>Clock</name>
    <message>
        <source>The clock of the machine; nothing has set it.</source>
        <translation>Terminalens ur; det er ikke stillet.</translation>
    </message>
    <message>
        <source>The clock was set by hand.</source>
        <translation>Uret er stillet manuelt.</translation>
    </message>
    <message>
        <source>The receiver sets the clock.</source>
        <translation>Modtageren stiller uret.</translation>
    </message>
    <message>
        <source>There is no such date or time.</source>
        <translation>Denne dato eller tid findes ikke.</translation>
    </message>
    <message>
        <source>The date is more than 68 years from the clock of the machine.</source>
        <translation>Datoen ligger mere end 68 år fra terminalens ur.</translation>
    </message>
    <message>
        <source>The clock could not be stored.</source>
        <translation>Uret kunne ikke gemmes.</translation>
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
        <translation>Måned</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Dag</translation>
    </message>
    <message>
        <source>Hour</source>
        <translation>Time</translation>
    </message>
    <message>
        <source>Minute</source>
        <translation>Minut</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>Dato og tid</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Tid</translation>
    </message>
    <message>
        <source>%1: more</source>
        <translation>%1: mere</translation>
    </message>
    <message>
        <source>%1: less</source>
        <translation>%1: mindre</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuller</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>Indstil</translation>
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
        <translation>%1: mere</translation>
    </message>
</context>
<context>
    <name>ColorPage</name>
    <message>
        <source>Former</source>
        <translation>Tidligere</translation>
    </message>
    <message>
        <source>Former colour</source>
        <translation>Tidligere farve</translation>
    </message>
    <message>
        <source>First value</source>
        <translation>Startværdi</translation>
    </message>
    <message>
        <source>Digits of the colour</source>
        <translation>Farvens cifre</translation>
    </message>
    <message>
        <source>Hue</source>
        <translation>Farvetone</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Mætning</translation>
    </message>
    <message>
        <source>Lightness</source>
        <translation>Lyshed</translation>
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
        <translation>Nat</translation>
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
        <translation>%1, for lav: mindst %2</translation>
    </message>
</context>
<context>
    <name>Difference</name>
    <message>
        <source>Changed on both sides</source>
        <translation>Ændret på begge sider</translation>
    </message>
    <message>
        <source>Here</source>
        <translation>Her</translation>
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
        <translation>Genstart</translation>
    </message>
    <message>
        <source>The fonts of the display</source>
        <translation>Displayets skrifttyper</translation>
    </message>
    <message>
        <source>The keyboard on the screen</source>
        <translation>Tastaturet på skærmen</translation>
    </message>
</context>
<context>
    <name>DoorBand</name>
    <message>
        <source>Work</source>
        <translation>Arbejde</translation>
    </message>
    <message>
        <source>Fields</source>
        <translation>Marker</translation>
    </message>
    <message>
        <source>Receiver</source>
        <translation>Modtager</translation>
    </message>
    <message>
        <source>Logs</source>
        <translation>Log</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Opsætning</translation>
    </message>
</context>
<context>
    <name>Drives</name>
    <message>
        <source>%1 free of %2</source>
        <translation>%1 fri af %2</translation>
    </message>
    <message>
        <source>Not known</source>
        <translation>Ukendt</translation>
    </message>
    <message>
        <source>No stick</source>
        <translation>Ingen USB-nøgle</translation>
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
        <translation>Ny kunde</translation>
    </message>
    <message>
        <source>No client yet.</source>
        <translation>Ingen kunde endnu.</translation>
    </message>
    <message>
        <source>Farms</source>
        <translation>Bedrifter</translation>
    </message>
    <message>
        <source>New farm</source>
        <translation>Ny bedrift</translation>
    </message>
    <message>
        <source>No farm yet.</source>
        <translation>Ingen bedrift endnu.</translation>
    </message>
    <message>
        <source>Fields</source>
        <translation>Marker</translation>
    </message>
    <message>
        <source>New field</source>
        <translation>Ny mark</translation>
    </message>
    <message>
        <source>No field yet.</source>
        <translation>Ingen mark endnu.</translation>
    </message>
    <message>
        <source>Jobs</source>
        <translation>Job</translation>
    </message>
    <message>
        <source>New job</source>
        <translation>Nyt job</translation>
    </message>
    <message>
        <source>No job yet.</source>
        <translation>Intet job endnu.</translation>
    </message>
    <message>
        <source>Remove %1 with everything in it?</source>
        <translation>Fjern %1 med alt indhold?</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Rename or remove %1</source>
        <translation>Omdøb eller fjern %1</translation>
    </message>
    <message>
        <source>Rename %1</source>
        <translation>Omdøb %1</translation>
    </message>
    <message>
        <source>Remove everything</source>
        <translation>Fjern alt</translation>
    </message>
</context>
<context>
    <name>Host</name>
    <message>
        <source>Details for the support: %1</source>
        <translation>Oplysninger til service: %1</translation>
    </message>
    <message>
        <source>%3 Try: %4</source>
        <translation>%3 Prøv: %4</translation>
    </message>
    <message>
        <source>This name is not possible.</source>
        <translation>Dette navn er ikke muligt.</translation>
    </message>
    <message>
        <source>The name is empty.</source>
        <translation>Navnet er tomt.</translation>
    </message>
    <message>
        <source>This name stands for another folder.</source>
        <translation>Dette navn står for en anden mappe.</translation>
    </message>
    <message>
        <source>The name must not contain %1.</source>
        <translation>Navnet må ikke indeholde %1.</translation>
    </message>
    <message>
        <source>The name contains a sign that cannot be seen.</source>
        <translation>Navnet indeholder et usynligt tegn.</translation>
    </message>
    <message>
        <source>The name contains a sign that is not complete.</source>
        <translation>Navnet indeholder et ufuldstændigt tegn.</translation>
    </message>
    <message>
        <source>The name must not end in a full stop or a blank.</source>
        <translation>Navnet må ikke ende på et punktum eller et mellemrum.</translation>
    </message>
    <message>
        <source>The name must not begin with a blank.</source>
        <translation>Navnet må ikke begynde med et mellemrum.</translation>
    </message>
    <message>
        <source>A stick cannot hold a file with this name.</source>
        <translation>En USB-nøgle kan ikke rumme en fil med dette navn.</translation>
    </message>
    <message>
        <source>The name is too long.</source>
        <translation>Navnet er for langt.</translation>
    </message>
    <message>
        <source>%2 exists already.</source>
        <translation>%2 findes allerede.</translation>
    </message>
    <message numerus="yes">
        <source>%2 is active and holds %n file(s).</source>
        <translation>
            <numerusform>%2 er i brug og indeholder %n fil.</numerusform>
            <numerusform>%2 er i brug og indeholder %n filer.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%2 holds %n file(s).</source>
        <translation>
            <numerusform>%2 indeholder %n fil.</numerusform>
            <numerusform>%2 indeholder %n filer.</numerusform>
        </translation>
    </message>
    <message>
        <source>%2 is active.</source>
        <translation>%2 er i brug.</translation>
    </message>
    <message>
        <source>%2 is no longer there.</source>
        <translation>%2 findes ikke længere.</translation>
    </message>
    <message>
        <source>A stick cannot tell %2 from %3.</source>
        <translation>En USB-nøgle kan ikke skelne %2 fra %3.</translation>
    </message>
    <message>
        <source>Another program is working on the fields. Try again later.</source>
        <translation>Et andet program arbejder på markerne. Prøv igen senere.</translation>
    </message>
    <message>
        <source>The selection could not be stored.</source>
        <translation>Valget kunne ikke gemmes.</translation>
    </message>
    <message>
        <source>%1 is neither a file nor a folder.</source>
        <translation>%1 er hverken en fil eller en mappe.</translation>
    </message>
    <message>
        <source>The file was edited or is damaged.</source>
        <translation>Filen er redigeret eller beskadiget.</translation>
    </message>
    <message>
        <source>%1 cannot be read. %2</source>
        <translation>%1 kan ikke læses. %2</translation>
    </message>
    <message>
        <source>The file is of another kind.</source>
        <translation>Filen er af en anden slags.</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>Filen er tom.</translation>
    </message>
    <message>
        <source>The end of the file is missing.</source>
        <translation>Slutningen af filen mangler.</translation>
    </message>
    <message>
        <source>The file is damaged.</source>
        <translation>Filen er beskadiget.</translation>
    </message>
    <message>
        <source>The file is not complete.</source>
        <translation>Filen er ikke fuldstændig.</translation>
    </message>
    <message>
        <source>The file is from another version of the software.</source>
        <translation>Filen er fra en anden version af softwaren.</translation>
    </message>
    <message>
        <source>The file has a value that is not possible: %2</source>
        <translation>Filen har en værdi, der ikke er mulig: %2</translation>
    </message>
    <message>
        <source>The file has a value twice: %2</source>
        <translation>En indstilling står to gange i filen: %2</translation>
    </message>
    <message>
        <source>This address is not possible: %1</source>
        <translation>Denne adresse er ikke mulig: %1</translation>
    </message>
    <message>
        <source>The device is not there.</source>
        <translation>Apparatet findes ikke.</translation>
    </message>
    <message>
        <source>It is not permitted, or another program uses it.</source>
        <translation>Det er ikke tilladt, eller et andet program bruger det.</translation>
    </message>
    <message>
        <source>Another program uses it.</source>
        <translation>Et andet program bruger det.</translation>
    </message>
    <message>
        <source>It cannot be read.</source>
        <translation>Det kan ikke læses.</translation>
    </message>
    <message>
        <source>It was unplugged.</source>
        <translation>Stikket er trukket ud.</translation>
    </message>
    <message>
        <source>It is not a serial device, or it cannot have this speed.</source>
        <translation>Det er ikke et serielt apparat, eller denne hastighed er ikke mulig.</translation>
    </message>
    <message>
        <source>The serial port has a fault (number %1).</source>
        <translation>Den serielle port har en fejl (nummer %1).</translation>
    </message>
    <message>
        <source>%1 is damaged or of another kind.</source>
        <translation>%1 er beskadiget eller af en anden slags.</translation>
    </message>
    <message>
        <source>%1 is from another version of the software.</source>
        <translation>%1 er fra en anden version af softwaren.</translation>
    </message>
    <message>
        <source>%1 is damaged.</source>
        <translation>%1 er beskadiget.</translation>
    </message>
    <message>
        <source>%1 has other coordinates than WGS84.</source>
        <translation>%1 har andre koordinater end WGS84.</translation>
    </message>
    <message>
        <source>%1 is not complete. %2 is missing.</source>
        <translation>Der mangler noget i %1: %2.</translation>
    </message>
    <message>
        <source>%1 has no areas.</source>
        <translation>%1 har ingen arealer.</translation>
    </message>
    <message>
        <source>Another program uses %1.</source>
        <translation>Et andet program bruger %1.</translation>
    </message>
    <message>
        <source>A and B are too close together or too far apart.</source>
        <translation>A og B ligger for tæt sammen eller for langt fra hinanden.</translation>
    </message>
    <message>
        <source>Another program has locked it.</source>
        <translation>Et andet program har låst det.</translation>
    </message>
    <message>
        <source>It is no longer there.</source>
        <translation>Det findes ikke længere.</translation>
    </message>
    <message>
        <source>%1 is no longer there.</source>
        <translation>%1 findes ikke længere.</translation>
    </message>
    <message>
        <source>%1 cannot be written. %2</source>
        <translation>%1 kan ikke skrives. %2</translation>
    </message>
    <message>
        <source>%1 cannot be written.</source>
        <translation>%1 kan ikke skrives.</translation>
    </message>
    <message>
        <source>The file of the settings has a fault (number %1).</source>
        <translation>Filen med indstillingerne har en fejl (nummer %1).</translation>
    </message>
    <message>
        <source>%1 cannot be opened. %2</source>
        <translation>%1 kan ikke åbnes. %2</translation>
    </message>
    <message>
        <source>%1 cannot be created. %2</source>
        <translation>%1 kan ikke oprettes. %2</translation>
    </message>
    <message>
        <source>%1 cannot be copied. %2</source>
        <translation>%1 kan ikke kopieres. %2</translation>
    </message>
    <message>
        <source>%1 cannot be renamed. %2</source>
        <translation>%1 kan ikke omdøbes. %2</translation>
    </message>
    <message>
        <source>%1 cannot be removed. %2</source>
        <translation>%1 kan ikke fjernes. %2</translation>
    </message>
    <message>
        <source>The drive is full.</source>
        <translation>Drevet er fuldt.</translation>
    </message>
    <message>
        <source>The drive has a fault.</source>
        <translation>Drevet har en fejl.</translation>
    </message>
    <message>
        <source>The drive can only be read.</source>
        <translation>Drevet kan kun læses.</translation>
    </message>
    <message>
        <source>It is not permitted.</source>
        <translation>Det er ikke tilladt.</translation>
    </message>
    <message>
        <source>It cannot be opened.</source>
        <translation>Det kan ikke åbnes.</translation>
    </message>
    <message>
        <source>It is damaged.</source>
        <translation>Indholdet er beskadiget.</translation>
    </message>
    <message>
        <source>It is not there.</source>
        <translation>Det findes ikke.</translation>
    </message>
    <message>
        <source>It exists already.</source>
        <translation>Det findes allerede.</translation>
    </message>
    <message>
        <source>It is a folder.</source>
        <translation>Det er en mappe.</translation>
    </message>
    <message>
        <source>It is not a folder.</source>
        <translation>Det er ikke en mappe.</translation>
    </message>
    <message>
        <source>The folder is not empty.</source>
        <translation>Mappen er ikke tom.</translation>
    </message>
    <message>
        <source>The file is too large.</source>
        <translation>Filen er for stor.</translation>
    </message>
    <message>
        <source>Too many files are open.</source>
        <translation>For mange filer er åbne.</translation>
    </message>
    <message>
        <source>There is too little memory.</source>
        <translation>Der er for lidt hukommelse.</translation>
    </message>
    <message>
        <source>It is not possible there.</source>
        <translation>Det er ikke muligt der.</translation>
    </message>
    <message>
        <source>The device refuses the connection.</source>
        <translation>Apparatet afviser forbindelsen.</translation>
    </message>
    <message>
        <source>The device has closed the connection.</source>
        <translation>Apparatet har afbrudt forbindelsen.</translation>
    </message>
    <message>
        <source>There is no device with this address.</source>
        <translation>Der er intet apparat med denne adresse.</translation>
    </message>
    <message>
        <source>The network cannot be reached.</source>
        <translation>Netværket kan ikke nås.</translation>
    </message>
    <message>
        <source>The device does not answer.</source>
        <translation>Apparatet svarer ikke.</translation>
    </message>
    <message>
        <source>It is a link to another place.</source>
        <translation>Det er et link til et andet sted.</translation>
    </message>
    <message>
        <source>There are too many links to it.</source>
        <translation>Der er for mange links til det.</translation>
    </message>
</context>
<context>
    <name>ItemActions</name>
    <message>
        <source>Rename</source>
        <translation>Omdøb</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Fjern</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuller</translation>
    </message>
</context>
<context>
    <name>ItemPage</name>
    <message>
        <source>New</source>
        <translation>Opret</translation>
    </message>
</context>
<context>
    <name>Keypad</name>
    <message>
        <source>%1 to %2 %3</source>
        <translation>%1 til %2 %3</translation>
    </message>
    <message>
        <source>At least %1 %2</source>
        <translation>Mindst %1 %2</translation>
    </message>
    <message>
        <source>At most %1 %2</source>
        <translation>Højst %1 %2</translation>
    </message>
    <message>
        <source>This is not a number yet.</source>
        <translation>Dette er ikke et tal endnu.</translation>
    </message>
    <message>
        <source>Too large.
%1</source>
        <translation>For stort.
%1</translation>
    </message>
    <message>
        <source>Too small.
%1</source>
        <translation>For lille.
%1</translation>
    </message>
    <message>
        <source>now %1</source>
        <translation>nu %1</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuller</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>Indstil</translation>
    </message>
    <message>
        <source>Decimal sign</source>
        <translation>Decimaltegn</translation>
    </message>
    <message>
        <source>Plus or minus</source>
        <translation>Plus eller minus</translation>
    </message>
    <message>
        <source>Remove the last sign</source>
        <translation>Slet det sidste tegn</translation>
    </message>
    <message>
        <source>C</source>
        <comment>key that clears the entry</comment>
        <translation>C</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Slet</translation>
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
        <translation>Sæt A, linjens ene ende, her</translation>
    </message>
    <message>
        <source>B</source>
        <comment>the other end of the guidance line</comment>
        <translation>B</translation>
    </message>
    <message>
        <source>Set B, the other end of the line, here</source>
        <translation>Sæt B, linjens anden ende, her</translation>
    </message>
    <message>
        <source>Set a flag here</source>
        <translation>Sæt et flag her</translation>
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
        <translation>Annuller</translation>
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
        <translation>%1 til venstre</translation>
    </message>
    <message>
        <source>%1 to the right</source>
        <translation>%1 til højre</translation>
    </message>
</context>
<context>
    <name>LockLayer</name>
    <message>
        <source>The screen is locked. Hold the button to unlock it.</source>
        <translation>Skærmen er låst. Hold knappen nede for at låse op.</translation>
    </message>
    <message>
        <source>Unlock</source>
        <translation>Lås op</translation>
    </message>
</context>
<context>
    <name>LogsPage</name>
    <message>
        <source>Logs</source>
        <translation>Log</translation>
    </message>
    <message>
        <source>Events</source>
        <translation>Hændelser</translation>
    </message>
    <message>
        <source>Receiver</source>
        <translation>Modtager</translation>
    </message>
    <message>
        <source>Go on</source>
        <translation>Fortsæt</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>No line yet.</source>
        <translation>Ingen linje endnu.</translation>
    </message>
</context>
<context>
    <name>MachinePage</name>
    <message>
        <source>Implement width</source>
        <translation>Redskabsbredde</translation>
    </message>
    <message>
        <source>Decides the guidance lines beside each other, and the area done</source>
        <translation>Bestemmer kørelinjernes afstand og det færdige areal</translation>
    </message>
    <message>
        <source>Implement behind the antenna</source>
        <translation>Redskab bag antennen</translation>
    </message>
    <message>
        <source>How far the ground is covered behind the vehicle&apos;s place</source>
        <translation>Hvor langt bag køretøjets position jorden bliver behandlet</translation>
    </message>
</context>
<context>
    <name>Main</name>
    <message>
        <source>Cab display</source>
        <translation>Kabinedisplay</translation>
    </message>
</context>
<context>
    <name>MapButtons</name>
    <message>
        <source>Zoom in</source>
        <translation>Zoom ind</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Zoom ud</translation>
    </message>
    <message>
        <source>The heading is up. Turn north up</source>
        <translation>Køreretning opad. Drej nord opad</translation>
    </message>
    <message>
        <source>North is up. Turn the heading up</source>
        <translation>Nord opad. Drej køreretningen opad</translation>
    </message>
    <message>
        <source>Centre the vehicle</source>
        <translation>Centrer køretøjet</translation>
    </message>
</context>
<context>
    <name>NameEntry</name>
    <message>
        <source>Cancel</source>
        <translation>Annuller</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>Gem</translation>
    </message>
</context>
<context>
    <name>PageTurner</name>
    <message>
        <source>Rows above</source>
        <translation>Rækker over</translation>
    </message>
    <message>
        <source>Rows below</source>
        <translation>Rækker under</translation>
    </message>
</context>
<context>
    <name>ParameterRow</name>
    <message>
        <source>%1: back to the first value</source>
        <translation>%1: tilbage til startværdien</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Åbn</translation>
    </message>
</context>
<context>
    <name>ParameterTexts</name>
    <message>
        <source>h</source>
        <translation>timer</translation>
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
        <translation>en absolut sti, der ender på &quot;/&quot; og ikke er &quot;/&quot;</translation>
    </message>
    <message>
        <source>an absolute path</source>
        <translation>en absolut sti</translation>
    </message>
    <message>
        <source>a UUID in small letters, such as 6ba7b810-9dad-41d1-80b4-00c04fd430c8</source>
        <translation>et UUID med små bogstaver, som 6ba7b810-9dad-41d1-80b4-00c04fd430c8</translation>
    </message>
    <message>
        <source>simulator, tcp://HOST:PORT, serial:///dev/NAME?baud=N or an absolute path</source>
        <translation>simulator, tcp://HOST:PORT, serial:///dev/NAME?baud=N eller en absolut sti</translation>
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
        <translation>en farve: #rrggbb, #aarrggbb eller et navn som navy</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 til %2</translation>
    </message>
    <message>
        <source>Not a whole number.</source>
        <translation>Ikke et helt tal.</translation>
    </message>
    <message>
        <source>Below the least value.</source>
        <translation>Under den mindste værdi.</translation>
    </message>
    <message>
        <source>Above the greatest value.</source>
        <translation>Over den største værdi.</translation>
    </message>
    <message>
        <source>This cannot be the name of a file. Try: %1</source>
        <translation>Sådan kan en fil ikke hedde. Prøv: %1</translation>
    </message>
    <message>
        <source>Not accepted. Expected: %1.</source>
        <translation>Ikke muligt. Forventet: %1.</translation>
    </message>
    <message>
        <source>a name without %1</source>
        <translation>et navn uden %1</translation>
    </message>
    <message>
        <source>a whole number</source>
        <translation>et helt tal</translation>
    </message>
    <message>
        <source>At least %1</source>
        <translation>Mindst %1</translation>
    </message>
</context>
<context>
    <name>Parameters</name>
    <message>
        <source>the operator has chosen the offset from UTC; GPS time keeps it instead of computing it</source>
        <translation>føreren har valgt forskellen til UTC; GPS-tiden beregner den så ikke</translation>
    </message>
    <message>
        <source>metric units; otherwise US or English units</source>
        <translation>metriske enheder; ellers amerikanske eller engelske enheder</translation>
    </message>
    <message>
        <source>US measures when units are not metric; otherwise English measures</source>
        <translation>amerikanske mål, når enhederne ikke er metriske; ellers engelske mål</translation>
    </message>
    <message>
        <source>positions in degrees, minutes and seconds; otherwise in decimal degrees</source>
        <translation>positioner i grader, minutter og sekunder; ellers i decimalgrader</translation>
    </message>
    <message>
        <source>24-hour clock; otherwise 12 hours with am and pm</source>
        <translation>ur med 24 timer; ellers 12 timer med am og pm</translation>
    </message>
    <message>
        <source>dates with the month before the day</source>
        <translation>datoer med måneden før dagen</translation>
    </message>
    <message>
        <source>colours for day; otherwise for night</source>
        <translation>farver til dag; ellers til nat</translation>
    </message>
    <message>
        <source>the map turns with the vehicle; otherwise north is up</source>
        <translation>kortet drejer med køretøjet; ellers er nord opad</translation>
    </message>
    <message>
        <source>unit of pressures</source>
        <translation>enhed for tryk</translation>
    </message>
    <message>
        <source>unit of areas, and of rates per area</source>
        <translation>enhed for areal og for dosering pr. areal</translation>
    </message>
    <message>
        <source>unit of short distances: widths, offsets</source>
        <translation>enhed for korte afstande: bredder, forskydninger</translation>
    </message>
    <message>
        <source>unit of granular volumes</source>
        <translation>enhed for granulatvolumen</translation>
    </message>
    <message>
        <source>unit of granular densities</source>
        <translation>enhed for granulatdensitet</translation>
    </message>
    <message>
        <source>unit of liquid volumes, flows and rates</source>
        <translation>enhed for volumen, flow og dosering af væske</translation>
    </message>
    <message>
        <source>language of the display&apos;s texts; a change needs a restart</source>
        <translation>displayets sprog; en ændring kræver en genstart</translation>
    </message>
    <message>
        <source>decimal point or comma; a change needs a restart</source>
        <translation>decimalpunktum eller -komma; en ændring kræver en genstart</translation>
    </message>
    <message>
        <source>when the colours switch between day and night: only by hand, at sunrise and sunset, or with the sun 6 degrees below the horizon</source>
        <translation>hvornår farverne skifter mellem dag og nat: kun manuelt, ved solopgang og solnedgang, eller når solen står 6 grader under horisonten</translation>
    </message>
    <message>
        <source>what set the display&apos;s clock</source>
        <translation>hvad displayets ur er stillet efter</translation>
    </message>
    <message>
        <source>local time less UTC, whole hours</source>
        <translation>lokal tid minus UTC, hele timer</translation>
    </message>
    <message>
        <source>local time less UTC, minutes beyond the hours, with the sign of the hours</source>
        <translation>lokal tid minus UTC, minutter ud over timerne, med timernes fortegn</translation>
    </message>
    <message>
        <source>brightness of the lightbar at night</source>
        <translation>lysbjælkens lysstyrke om natten</translation>
    </message>
    <message>
        <source>brightness of the screen at night</source>
        <translation>skærmens lysstyrke om natten</translation>
    </message>
    <message>
        <source>brightness of the button lights at night</source>
        <translation>knaplysets styrke om natten</translation>
    </message>
    <message>
        <source>4: implements are kept in the folder of their vehicle; other numbers: in their own folder</source>
        <translation>4: redskaber ligger i køretøjets mappe; andre tal: i deres egen mappe</translation>
    </message>
    <message>
        <source>number of the next file of the NMEA log</source>
        <translation>nummeret på den næste fil i NMEA-loggen</translation>
    </message>
    <message>
        <source>number of the next file of the user log</source>
        <translation>nummeret på den næste fil i brugerloggen</translation>
    </message>
    <message>
        <source>the display&apos;s clock less UTC</source>
        <translation>displayets ur minus UTC</translation>
    </message>
    <message>
        <source>folder of the internal drive; by default in the data folder</source>
        <translation>mappe på det interne drev; som standard i datamappen</translation>
    </message>
    <message>
        <source>mount point of the removable drive; by default in the data folder</source>
        <translation>det flytbare drevs monteringspunkt; som standard i datamappen</translation>
    </message>
    <message>
        <source>the identity of the terminal, which its profiles carry</source>
        <translation>terminalens identitet, som står i dens profiler</translation>
    </message>
    <message>
        <source>where the sentences of the receiver come from</source>
        <translation>hvor modtagerens beskeder kommer fra</translation>
    </message>
    <message>
        <source>the figures beside the map, in this order</source>
        <translation>værdierne ved siden af kortet, i denne rækkefølge</translation>
    </message>
    <message>
        <source>the newest time of a receiver, as of the last day on which one was seen</source>
        <translation>en modtagers nyeste tid, fra den sidste dag med en modtager</translation>
    </message>
    <message>
        <source>when the sun switched the colours last</source>
        <translation>hvornår solen sidst skiftede farverne</translation>
    </message>
    <message>
        <source>the active job</source>
        <translation>det aktive job</translation>
    </message>
    <message>
        <source>the active boundary</source>
        <translation>den aktive markgrænse</translation>
    </message>
    <message>
        <source>the active straight guidance line</source>
        <translation>den aktive lige kørelinje</translation>
    </message>
    <message>
        <source>the active pivot</source>
        <translation>det aktive cirkelspor</translation>
    </message>
    <message>
        <source>the active guidance curve</source>
        <translation>den aktive kurvede kørelinje</translation>
    </message>
    <message>
        <source>the active shape file of optimal lines</source>
        <translation>den aktive shapefil med optimale linjer</translation>
    </message>
    <message>
        <source>the active shape file of project lines</source>
        <translation>den aktive shapefil med projektlinjer</translation>
    </message>
    <message>
        <source>the active shape file of zones</source>
        <translation>den aktive shapefil med zoner</translation>
    </message>
    <message>
        <source>the active steering profile</source>
        <translation>den aktive styreprofil</translation>
    </message>
    <message>
        <source>the active implement</source>
        <translation>det aktive redskab</translation>
    </message>
    <message>
        <source>the active vehicle</source>
        <translation>det aktive køretøj</translation>
    </message>
    <message>
        <source>the active sprayer</source>
        <translation>den aktive sprøjte</translation>
    </message>
    <message>
        <source>the active boom leveller</source>
        <translation>den aktive bomnivellering</translation>
    </message>
    <message>
        <source>the active client</source>
        <translation>den aktive kunde</translation>
    </message>
    <message>
        <source>the active farm</source>
        <translation>den aktive bedrift</translation>
    </message>
    <message>
        <source>the active field</source>
        <translation>den aktive mark</translation>
    </message>
    <message>
        <source>Measures</source>
        <translation>Målesystem</translation>
    </message>
    <message>
        <source>Gallons and bushels</source>
        <translation>Gallons og bushels</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>Areal</translation>
    </message>
    <message>
        <source>Pressure</source>
        <translation>Tryk</translation>
    </message>
    <message>
        <source>Short distances</source>
        <translation>Korte afstande</translation>
    </message>
    <message>
        <source>Liquid</source>
        <translation>Væske</translation>
    </message>
    <message>
        <source>Granular volume</source>
        <translation>Granulatvolumen</translation>
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
        <translation>Dosering pr. strækning</translation>
    </message>
    <message>
        <source>Basis of rates</source>
        <translation>Doseringsgrundlag</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Sprog</translation>
    </message>
    <message>
        <source>Decimal sign</source>
        <translation>Decimaltegn</translation>
    </message>
    <message>
        <source>Time of day</source>
        <translation>Klokkeslæt</translation>
    </message>
    <message>
        <source>Dates</source>
        <translation>Datoer</translation>
    </message>
    <message>
        <source>Time zone set by hand</source>
        <translation>Tidszone manuelt</translation>
    </message>
    <message>
        <source>Time zone, hours</source>
        <translation>Tidszone, timer</translation>
    </message>
    <message>
        <source>Time zone, minutes</source>
        <translation>Tidszone, minutter</translation>
    </message>
    <message>
        <source>Clock less UTC</source>
        <translation>Ur minus UTC</translation>
    </message>
    <message>
        <source>Source of the time</source>
        <translation>Tidskilde</translation>
    </message>
    <message>
        <source>Source of the time since</source>
        <translation>Tidskilde siden</translation>
    </message>
    <message>
        <source>Newest receiver time</source>
        <translation>Nyeste modtagertid</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>Farver</translation>
    </message>
    <message>
        <source>Day and night</source>
        <translation>Dag og nat</translation>
    </message>
    <message>
        <source>Map direction</source>
        <translation>Kortretning</translation>
    </message>
    <message>
        <source>Tiles</source>
        <translation>Felter</translation>
    </message>
    <message>
        <source>Light bar at night</source>
        <translation>Lysbjælke om natten</translation>
    </message>
    <message>
        <source>Screen at night</source>
        <translation>Skærm om natten</translation>
    </message>
    <message>
        <source>Button lights at night</source>
        <translation>Knaplys om natten</translation>
    </message>
    <message>
        <source>Switched by the sun</source>
        <translation>Sidst skiftet af solen</translation>
    </message>
    <message>
        <source>Client</source>
        <translation>Kunde</translation>
    </message>
    <message>
        <source>Farm</source>
        <translation>Bedrift</translation>
    </message>
    <message>
        <source>Field</source>
        <translation>Mark</translation>
    </message>
    <message>
        <source>Job</source>
        <translation>Job</translation>
    </message>
    <message>
        <source>Vehicle</source>
        <translation>Køretøj</translation>
    </message>
    <message>
        <source>Implement</source>
        <translation>Redskab</translation>
    </message>
    <message>
        <source>Sprayer</source>
        <translation>Sprøjte</translation>
    </message>
    <message>
        <source>Boom leveller</source>
        <translation>Bomnivellering</translation>
    </message>
    <message>
        <source>Steering profile</source>
        <translation>Styreprofil</translation>
    </message>
    <message>
        <source>Boundary</source>
        <translation>Markgrænse</translation>
    </message>
    <message>
        <source>A-B line</source>
        <translation>A-B-linje</translation>
    </message>
    <message>
        <source>Pivot</source>
        <translation>Cirkelspor</translation>
    </message>
    <message>
        <source>Curve</source>
        <translation>Kurve</translation>
    </message>
    <message>
        <source>Optimal lines</source>
        <translation>Optimale linjer</translation>
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
        <translation>Modtageradresse</translation>
    </message>
    <message>
        <source>Internal drive</source>
        <translation>Internt drev</translation>
    </message>
    <message>
        <source>Stick</source>
        <translation>USB-nøgle</translation>
    </message>
    <message>
        <source>Implement folder</source>
        <translation>Redskabsmappe</translation>
    </message>
    <message>
        <source>Next NMEA log</source>
        <translation>Næste NMEA-log</translation>
    </message>
    <message>
        <source>Next user log</source>
        <translation>Næste brugerlog</translation>
    </message>
    <message>
        <source>Identity</source>
        <translation>Identitet</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Tekst</translation>
    </message>
    <message>
        <source>Colour of texts</source>
        <translation>Farve på tekster</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>Colour of titles</source>
        <translation>Farve på titler</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Baggrund</translation>
    </message>
    <message>
        <source>Colour of the background</source>
        <translation>Farve på baggrunden</translation>
    </message>
    <message>
        <source>Button</source>
        <translation>Knap</translation>
    </message>
    <message>
        <source>Colour of buttons</source>
        <translation>Farve på knapper</translation>
    </message>
    <message>
        <source>Button text</source>
        <translation>Knaptekst</translation>
    </message>
    <message>
        <source>Colour of texts on buttons</source>
        <translation>Farve på tekst på knapper</translation>
    </message>
    <message>
        <source>Map</source>
        <translation>Kort</translation>
    </message>
    <message>
        <source>Colour of the map&apos;s ground</source>
        <translation>Farve på kortets bund</translation>
    </message>
    <message>
        <source>Grid</source>
        <translation>Gitter</translation>
    </message>
    <message>
        <source>Colour of the map&apos;s grid</source>
        <translation>Farve på kortets gitter</translation>
    </message>
    <message>
        <source>Coverage</source>
        <translation>Behandlet</translation>
    </message>
    <message>
        <source>Colour of covered ground</source>
        <translation>Farve på behandlet jord</translation>
    </message>
    <message>
        <source>Vehicle on the map</source>
        <translation>Køretøj på kortet</translation>
    </message>
    <message>
        <source>Colour of the vehicle</source>
        <translation>Farve på køretøjet</translation>
    </message>
    <message>
        <source>Guidance line</source>
        <translation>Kørelinje</translation>
    </message>
    <message>
        <source>Colour of the guidance line</source>
        <translation>Farve på kørelinjen</translation>
    </message>
    <message>
        <source>Cross hairs</source>
        <translation>Trådkors</translation>
    </message>
    <message>
        <source>Colour of the cross hairs</source>
        <translation>Farve på trådkorset</translation>
    </message>
    <message>
        <source>Outer boundary</source>
        <translation>Ydergrænse</translation>
    </message>
    <message>
        <source>Colour of the outer boundary of the field</source>
        <translation>Farve på markens ydergrænse</translation>
    </message>
    <message>
        <source>Inner boundary</source>
        <translation>Indergrænse</translation>
    </message>
    <message>
        <source>Colour of boundaries within the field</source>
        <translation>Farve på grænser inde i marken</translation>
    </message>
    <message>
        <source>Other boundaries</source>
        <translation>Andre grænser</translation>
    </message>
    <message>
        <source>Colour of boundaries that are not active</source>
        <translation>Farve på grænser, der ikke er aktive</translation>
    </message>
    <message>
        <source>Exclusion zone</source>
        <translation>Spærrezone</translation>
    </message>
    <message>
        <source>Colour of zones to keep out of</source>
        <translation>Farve på zoner, der skal undgås</translation>
    </message>
    <message>
        <source>Background picture</source>
        <translation>Baggrundsbillede</translation>
    </message>
    <message>
        <source>Number of the background picture</source>
        <translation>Baggrundsbilledets nummer</translation>
    </message>
    <message>
        <source>what the sprayer&apos;s rates are related to</source>
        <translation>hvad sprøjtens dosering beregnes efter</translation>
    </message>
    <message>
        <source>liquid rates per 100 m or 100 yd of travel, while travel is their basis</source>
        <translation>væskedosering pr. 100 m eller 100 yd kørt afstand, når den er grundlaget</translation>
    </message>
    <message>
        <source>since when the clock has its time from there</source>
        <translation>siden hvornår uret har sin tid derfra</translation>
    </message>
    <message>
        <source>Metric</source>
        <translation>Metrisk</translation>
    </message>
    <message>
        <source>US or English</source>
        <translation>US eller engelsk</translation>
    </message>
    <message>
        <source>US</source>
        <translation>US</translation>
    </message>
    <message>
        <source>English</source>
        <translation>Engelsk</translation>
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
        <translation>24 timer</translation>
    </message>
    <message>
        <source>am, pm</source>
        <translation>am, pm</translation>
    </message>
    <message>
        <source>Month first</source>
        <translation>Måned først</translation>
    </message>
    <message>
        <source>Day first</source>
        <translation>Dag først</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Dag</translation>
    </message>
    <message>
        <source>Night</source>
        <translation>Nat</translation>
    </message>
    <message>
        <source>Heading up</source>
        <translation>Køreretning op</translation>
    </message>
    <message>
        <source>North up</source>
        <translation>Nord op</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Til</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Fra</translation>
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
        <translation>Kørt afstand</translation>
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
        <translation>Tomme</translation>
    </message>
    <message>
        <source>Foot</source>
        <translation>Fod</translation>
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
        <translation>Punktum</translation>
    </message>
    <message>
        <source>Comma</source>
        <translation>Komma</translation>
    </message>
    <message>
        <source>By hand</source>
        <translation>Manuelt</translation>
    </message>
    <message>
        <source>Sunset</source>
        <translation>Solnedgang</translation>
    </message>
    <message>
        <source>Twilight</source>
        <translation>Tusmørke</translation>
    </message>
    <message>
        <source>Not set</source>
        <translation>Ikke stillet</translation>
    </message>
    <message>
        <source>Operator</source>
        <translation>Fører</translation>
    </message>
    <message>
        <source>Receiver</source>
        <translation>Modtager</translation>
    </message>
    <message>
        <source>Rate</source>
        <translation>Dosering</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Hastighed</translation>
    </message>
    <message>
        <source>Area done</source>
        <translation>Færdigt areal</translation>
    </message>
    <message>
        <source>Area left</source>
        <translation>Restareal</translation>
    </message>
    <message>
        <source>Productivity</source>
        <translation>Kapacitet</translation>
    </message>
    <message>
        <source>Flow</source>
        <translation>Flow</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperatur</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>Afstand</translation>
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
        <translation>Enheder</translation>
    </message>
    <message>
        <source>Rates</source>
        <translation>Doseringer</translation>
    </message>
    <message>
        <source>Region</source>
        <translation>Region</translation>
    </message>
    <message>
        <source>Clock</source>
        <translation>Ur</translation>
    </message>
    <message>
        <source>Colours of the schemes</source>
        <translation>Farveskemaer</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Display</translation>
    </message>
    <message>
        <source>Selections</source>
        <translation>Valg</translation>
    </message>
    <message>
        <source>Storage</source>
        <translation>Lagerplads</translation>
    </message>
    <message>
        <source>Logs</source>
        <translation>Log</translation>
    </message>
    <message>
        <source>Terminal</source>
        <translation>Terminal</translation>
    </message>
    <message>
        <source>%1, by day</source>
        <translation>%1, om dagen</translation>
    </message>
    <message>
        <source>%1, by night</source>
        <translation>%1, om natten</translation>
    </message>
</context>
<context>
    <name>Problems</name>
    <message>
        <source>The logs lose lines: their drive is full or cannot be written.</source>
        <translation>Loggene mister linjer: drevet er fuldt, eller der kan ikke skrives til det.</translation>
    </message>
    <message>
        <source>Recording is off, because there is too little room.</source>
        <translation>Registreringen er slået fra, fordi der er for lidt plads.</translation>
    </message>
    <message>
        <source>Changes of settings are not stored yet. %1</source>
        <translation>Ændringer af indstillinger er ikke gemt endnu. %1</translation>
    </message>
    <message>
        <source>The drive of the terminal is nearly full. Free: %1</source>
        <translation>Terminalens drev er næsten fuldt. Fri: %1</translation>
    </message>
</context>
<context>
    <name>ProfilePage</name>
    <message>
        <source>Import</source>
        <translation>Importer</translation>
    </message>
    <message>
        <source>The display has these settings already.</source>
        <translation>Displayet har allerede disse indstillinger.</translation>
    </message>
    <message>
        <source>Changed here and in the profile</source>
        <translation>Ændret her og i profilen</translation>
    </message>
    <message>
        <source>Which value the settings below shall have</source>
        <translation>Hvilken værdi indstillingerne nedenfor skal have</translation>
    </message>
    <message>
        <source>Ours</source>
        <translation>Her</translation>
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
        <translation>Eksporter</translation>
    </message>
    <message>
        <source>There is no profile on the stick.</source>
        <translation>Der er ingen profil på USB-nøglen.</translation>
    </message>
    <message>
        <source>No stick is plugged in.</source>
        <translation>Ingen USB-nøgle er sat i.</translation>
    </message>
    <message>
        <source>Name of the profile</source>
        <translation>Profilens navn</translation>
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
        <translation>Hastighed</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>Afstand</translation>
    </message>
    <message>
        <source>Small distance</source>
        <translation>Lille afstand</translation>
    </message>
    <message>
        <source>Travelled distance</source>
        <translation>Kørt afstand</translation>
    </message>
    <message>
        <source>Altitude</source>
        <translation>Højde</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperatur</translation>
    </message>
    <message>
        <source>Pressure</source>
        <translation>Tryk</translation>
    </message>
    <message>
        <source>Rate</source>
        <translation>Dosering</translation>
    </message>
    <message>
        <source>Requested rate</source>
        <translation>Ønsket dosering</translation>
    </message>
    <message>
        <source>Rate and error</source>
        <translation>Dosering og afvigelse</translation>
    </message>
    <message>
        <source>Small rate</source>
        <translation>Lille dosering</translation>
    </message>
    <message>
        <source>Flow</source>
        <translation>Flow</translation>
    </message>
    <message>
        <source>Small flow</source>
        <translation>Lille flow</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volumen</translation>
    </message>
    <message>
        <source>Small volume</source>
        <translation>Lille volumen</translation>
    </message>
    <message>
        <source>Granular volume</source>
        <translation>Granulatvolumen</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>Vægt</translation>
    </message>
    <message>
        <source>Weight per area</source>
        <translation>Vægt pr. areal</translation>
    </message>
    <message>
        <source>Weight per area and error</source>
        <translation>Vægt pr. areal og afvigelse</translation>
    </message>
    <message>
        <source>Discharge</source>
        <translation>Udmadning</translation>
    </message>
    <message>
        <source>Nitrogen</source>
        <translation>Kvælstof</translation>
    </message>
    <message>
        <source>Nitrogen per area</source>
        <translation>Kvælstof pr. areal</translation>
    </message>
    <message>
        <source>Seeds per area</source>
        <translation>Frø pr. areal</translation>
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
        <translation>Volumen pr. omdrejning</translation>
    </message>
    <message>
        <source>Weight per revolution</source>
        <translation>Vægt pr. omdrejning</translation>
    </message>
    <message>
        <source>Flow meter</source>
        <translation>Flowmåler</translation>
    </message>
    <message>
        <source>Wheel sensor</source>
        <translation>Hjulsensor</translation>
    </message>
    <message>
        <source>Speed sensor</source>
        <translation>Hastighedssensor</translation>
    </message>
    <message>
        <source>Latitude</source>
        <translation>Breddegrad</translation>
    </message>
    <message>
        <source>Longitude</source>
        <translation>Længdegrad</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Varighed</translation>
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
        <translation>Annuller</translation>
    </message>
</context>
<context>
    <name>RateTile</name>
    <message>
        <source>set %1</source>
        <comment>the rate that is set</comment>
        <translation>ønsket %1</translation>
    </message>
</context>
<context>
    <name>Receiver</name>
    <message>
        <source>Off</source>
        <translation>Fra</translation>
    </message>
    <message>
        <source>Connecting</source>
        <translation>Forbinder</translation>
    </message>
    <message>
        <source>Receiving</source>
        <translation>Modtager data</translation>
    </message>
    <message>
        <source>Silent</source>
        <translation>Tavs</translation>
    </message>
    <message>
        <source>Lost</source>
        <translation>Væk</translation>
    </message>
    <message>
        <source>Ended</source>
        <translation>Afsluttet</translation>
    </message>
    <message>
        <source>No fix</source>
        <translation>Intet fix</translation>
    </message>
    <message>
        <source>RTK float</source>
        <translation>RTK float</translation>
    </message>
    <message>
        <source>Estimated</source>
        <translation>Anslået</translation>
    </message>
    <message>
        <source>By hand</source>
        <translation>Manuelt</translation>
    </message>
    <message>
        <source>Simulated</source>
        <translation>Simuleret</translation>
    </message>
    <message>
        <source>The receiver sends nothing.</source>
        <translation>Modtageren sender intet.</translation>
    </message>
    <message>
        <source>The receiver is lost and is being looked for. %1</source>
        <translation>Modtageren er væk og eftersøges. %1</translation>
    </message>
    <message>
        <source>The receiver cannot be read. %1</source>
        <translation>Modtageren kan ikke læses. %1</translation>
    </message>
    <message>
        <source>The simulated field is done.</source>
        <translation>Den simulerede mark er færdig.</translation>
    </message>
    <message>
        <source>The recording of the receiver is over.</source>
        <translation>Optagelsen af modtageren er slut.</translation>
    </message>
</context>
<context>
    <name>ReceiverPage</name>
    <message>
        <source>Receiver</source>
        <translation>Modtager</translation>
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
        <translation>Fil</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Netværk</translation>
    </message>
    <message>
        <source>Serial</source>
        <translation>Seriel</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adresse</translation>
    </message>
    <message>
        <source>Fix</source>
        <translation>Fix</translation>
    </message>
    <message>
        <source>Age</source>
        <translation>Alder</translation>
    </message>
    <message>
        <source>Satellites</source>
        <translation>Satellitter</translation>
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
        <translation>Linjer</translation>
    </message>
    <message>
        <source>Sentences</source>
        <translation>Beskeder</translation>
    </message>
    <message>
        <source>Bad checksums</source>
        <translation>Kontrolsumfejl</translation>
    </message>
    <message>
        <source>Damaged lines</source>
        <translation>Defekte linjer</translation>
    </message>
    <message>
        <source>Address of the receiver</source>
        <translation>Modtagerens adresse</translation>
    </message>
</context>
<context>
    <name>RegionPage</name>
    <message>
        <source>Date</source>
        <translation>Dato</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Tid</translation>
    </message>
    <message>
        <source>Time zone</source>
        <translation>Tidszone</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>Dato og tid</translation>
    </message>
    <message>
        <source>Set by hand</source>
        <translation>Manuelt</translation>
    </message>
</context>
<context>
    <name>SearchPage</name>
    <message>
        <source>Search</source>
        <translation>Søg</translation>
    </message>
    <message>
        <source>Words of a setting</source>
        <translation>Søgeord</translation>
    </message>
    <message>
        <source>No setting has these words.</source>
        <translation>Ingen indstilling har disse ord.</translation>
    </message>
</context>
<context>
    <name>SettingsPage</name>
    <message>
        <source>Units</source>
        <translation>Enheder</translation>
    </message>
    <message>
        <source>Region</source>
        <translation>Region</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>Farver</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Display</translation>
    </message>
    <message>
        <source>Machine</source>
        <translation>Maskine</translation>
    </message>
    <message>
        <source>Storage</source>
        <translation>Lagerplads</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Om</translation>
    </message>
    <message>
        <source>Tiles</source>
        <translation>Felter</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>Profiler</translation>
    </message>
    <message>
        <source>All settings</source>
        <translation>Alle indstillinger</translation>
    </message>
</context>
<context>
    <name>SettingsPanel</name>
    <message>
        <source>Back</source>
        <translation>Tilbage</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Søg</translation>
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
        <translation>Intet job</translation>
    </message>
    <message>
        <source>Receiver: %1</source>
        <translation>Modtager: %1</translation>
    </message>
    <message>
        <source>The stick is plugged in</source>
        <translation>USB-nøglen sidder i</translation>
    </message>
    <message>
        <source>Lock the screen</source>
        <translation>Lås skærmen</translation>
    </message>
    <message>
        <source>Colours of the night</source>
        <translation>Natfarver</translation>
    </message>
    <message>
        <source>Colours of the day</source>
        <translation>Dagfarver</translation>
    </message>
</context>
<context>
    <name>StoragePage</name>
    <message>
        <source>Open</source>
        <translation>Åbn</translation>
    </message>
    <message>
        <source>Internal drive</source>
        <translation>Internt drev</translation>
    </message>
    <message>
        <source>Stick</source>
        <translation>USB-nøgle</translation>
    </message>
    <message>
        <source>No stick is plugged in.</source>
        <translation>Ingen USB-nøgle er sat i.</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Hukommelse</translation>
    </message>
    <message>
        <source>Logs</source>
        <translation>Log</translation>
    </message>
    <message>
        <source>Writes all log files to the stick</source>
        <translation>Skriver alle logfiler til USB-nøglen</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Eksporter</translation>
    </message>
    <message>
        <source>Export the logs</source>
        <translation>Eksporter loggene</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>Profiler</translation>
    </message>
    <message>
        <source>Takes the settings to another display, or brings them back from the stick</source>
        <translation>Overfører indstillingerne til et andet display eller henter dem tilbage fra USB-nøglen</translation>
    </message>
    <message>
        <source>Open the profiles</source>
        <translation>Åbn profilerne</translation>
    </message>
    <message>
        <source>Support</source>
        <translation>Service</translation>
    </message>
    <message>
        <source>Writes logs, settings and versions in one file; without the names of clients, farms and fields</source>
        <translation>Skriver logge, indstillinger og versioner i én fil; uden navne på kunder, bedrifter og marker</translation>
    </message>
    <message>
        <source>Write</source>
        <translation>Skriv</translation>
    </message>
    <message>
        <source>Write the file for support without names</source>
        <translation>Skriv filen til service uden navne</translation>
    </message>
    <message>
        <source>Support, with names</source>
        <translation>Service, med navne</translation>
    </message>
    <message>
        <source>The same file, with all names and places</source>
        <translation>Den samme fil, med alle navne og steder</translation>
    </message>
    <message>
        <source>Write the file for support with names</source>
        <translation>Skriv filen til service med navne</translation>
    </message>
</context>
<context>
    <name>TFieldTreeModel</name>
    <message>
        <source>A job holds no items.</source>
        <translation>Et job indeholder ikke mere.</translation>
    </message>
    <message>
        <source>There is one with this name already.</source>
        <translation>Navnet findes allerede.</translation>
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
        <translation>Indstillingen kunne ikke gemmes endnu.</translation>
    </message>
    <message>
        <source>There is no value to set.</source>
        <translation>Der er ingen værdi at indstille.</translation>
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
        <translation>Det nye sprog vises efter en genstart.</translation>
    </message>
    <message>
        <source>The new decimal sign is shown after a restart.</source>
        <translation>Det nye decimaltegn vises efter en genstart.</translation>
    </message>
</context>
<context>
    <name>TSelections</name>
    <message>
        <source>The selection could not be stored.</source>
        <translation>Valget kunne ikke gemmes.</translation>
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
        <translation>Intet køretøj</translation>
    </message>
    <message>
        <source>No Profile</source>
        <translation>Ingen profil</translation>
    </message>
    <message>
        <source>No Implement</source>
        <translation>Intet redskab</translation>
    </message>
    <message>
        <source>Pivoted_</source>
        <translation>Bugseret_</translation>
    </message>
</context>
<context>
    <name>TTransfer</name>
    <message>
        <source>The name is empty.</source>
        <translation>Navnet er tomt.</translation>
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
        <translation>km/t</translation>
    </message>
    <message>
        <source>mph</source>
        <translation>mph</translation>
    </message>
    <message>
        <source>ac/hr</source>
        <translation>ac/t</translation>
    </message>
    <message>
        <source>ha/hr</source>
        <translation>ha/t</translation>
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
        <translation>L/omdr</translation>
    </message>
    <message>
        <source>gal/rev</source>
        <translation>gal/omdr</translation>
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
        <translation>kg/omdr</translation>
    </message>
    <message>
        <source>lb/rev</source>
        <translation>lb/omdr</translation>
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
        <translation>kfrø/ha</translation>
    </message>
    <message>
        <source>KS/ac</source>
        <translation>kfrø/ac</translation>
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
        <translation>timer</translation>
    </message>
    <message>
        <source>Hz</source>
        <translation>Hz</translation>
    </message>
    <message>
        <source>rpm</source>
        <translation>omdr/min</translation>
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
        <translation>Kritisk</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Trivial</source>
        <translation>Ubetydelig</translation>
    </message>
</context>
<context>
    <name>TWork</name>
    <message>
        <source>An implement cannot have this width.</source>
        <translation>Et redskab kan ikke have denne bredde.</translation>
    </message>
    <message>
        <source>A file of this job cannot be used. %1</source>
        <translation>En fil i dette job kan ikke bruges. %1</translation>
    </message>
    <message>
        <source>Coverage was not complete and was left out: strips %1, bytes %2</source>
        <translation>Data om det behandlede areal var ufuldstændige og er udeladt: striber %1, bytes %2</translation>
    </message>
    <message>
        <source>The file of the flags is damaged; new flags are not stored.</source>
        <translation>Filen med flagene er beskadiget; nye flag gemmes ikke.</translation>
    </message>
    <message>
        <source>A file could not be stored. %1</source>
        <translation>En fil kunne ikke gemmes. %1</translation>
    </message>
    <message>
        <source>The file of the implement cannot be used. %1</source>
        <translation>Redskabets fil kan ikke bruges. %1</translation>
    </message>
    <message>
        <source>There is no line.</source>
        <translation>Der er ingen linje.</translation>
    </message>
    <message>
        <source>The line has no name.</source>
        <translation>Linjen har intet navn.</translation>
    </message>
    <message>
        <source>The guidance line cannot be used. %1</source>
        <translation>Kørelinjen kan ikke bruges. %1</translation>
    </message>
    <message>
        <source>No job is chosen</source>
        <translation>Intet job valgt</translation>
    </message>
    <message>
        <source>No job is chosen: what is covered is not stored.</source>
        <translation>Intet job valgt: det behandlede areal gemmes ikke.</translation>
    </message>
    <message>
        <source>The coverage of this job cannot be used: what is covered is not stored.</source>
        <translation>Jobbets behandlede areal kan ikke bruges: det nye gemmes ikke.</translation>
    </message>
    <message>
        <source>The coverage cannot be stored, and strips are lost: %1</source>
        <translation>Det behandlede areal kan ikke gemmes, og striber går tabt: %1</translation>
    </message>
    <message>
        <source>The coverage is kept in memory until it can be stored. %1</source>
        <translation>Det behandlede areal holdes i hukommelsen, til det kan gemmes. %1</translation>
    </message>
    <message>
        <source>The job is still being read.</source>
        <translation>Jobbet læses stadig ind.</translation>
    </message>
</context>
<context>
    <name>TileTurner</name>
    <message>
        <source>Tiles</source>
        <translation>Felter</translation>
    </message>
</context>
<context>
    <name>Tiles</name>
    <message>
        <source>Rate</source>
        <translation>Dosering</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Hastighed</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>Areal</translation>
    </message>
    <message>
        <source>Left</source>
        <comment>area that is left to work</comment>
        <translation>Rest</translation>
    </message>
    <message>
        <source>Work</source>
        <comment>area per hour</comment>
        <translation>Kapacitet</translation>
    </message>
    <message>
        <source>Flow</source>
        <translation>Flow</translation>
    </message>
    <message>
        <source>Press.</source>
        <comment>pressure</comment>
        <translation>Tryk</translation>
    </message>
    <message>
        <source>Temp.</source>
        <comment>temperature</comment>
        <translation>Temp.</translation>
    </message>
    <message>
        <source>Driven</source>
        <translation>Kørt</translation>
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
        <translation>Tilbage til første valg</translation>
    </message>
    <message>
        <source>%1 further ahead</source>
        <translation>Flyt %1 op</translation>
    </message>
    <message>
        <source>Shown</source>
        <translation>Vist</translation>
    </message>
    <message>
        <source>Hidden</source>
        <translation>Skjult</translation>
    </message>
</context>
<context>
    <name>Transfer</name>
    <message>
        <source>Nothing is imported: some settings were changed here and in the profile.</source>
        <translation>Intet er importeret: nogle indstillinger er ændret her og i profilen.</translation>
    </message>
    <message>
        <source>No stick is plugged in.</source>
        <translation>Ingen USB-nøgle er sat i.</translation>
    </message>
    <message>
        <source>The stick was removed before everything was on it.</source>
        <translation>USB-nøglen blev taget ud, før alt lå på den.</translation>
    </message>
    <message>
        <source>The stick could not be written to the end.</source>
        <translation>Skrivningen til USB-nøglen blev ikke fuldført.</translation>
    </message>
    <message>
        <source>The folder %1 cannot be made.</source>
        <translation>Mappen %1 kan ikke oprettes.</translation>
    </message>
    <message>
        <source>The file %1 cannot be written.</source>
        <translation>Filen %1 kan ikke skrives.</translation>
    </message>
    <message>
        <source>The logs are on the stick (files: %1).</source>
        <translation>Loggene ligger på USB-nøglen (filer: %1).</translation>
    </message>
    <message>
        <source>The profile cannot be used. %1</source>
        <translation>Profilen kan ikke bruges. %1</translation>
    </message>
    <message>
        <source>Nothing is imported. %1</source>
        <translation>Intet er importeret. %1</translation>
    </message>
    <message>
        <source>This display</source>
        <translation>Dette display</translation>
    </message>
    <message>
        <source>Another display</source>
        <translation>Et andet display</translation>
    </message>
    <message>
        <source>The profile is not on the stick. %1</source>
        <translation>Profilen ligger ikke på USB-nøglen. %1</translation>
    </message>
    <message>
        <source>The profile is on the stick: %1.</source>
        <translation>Profilen ligger på USB-nøglen: %1.</translation>
    </message>
    <message>
        <source>The file for support is not on the stick. %1</source>
        <translation>Filen til service ligger ikke på USB-nøglen. %1</translation>
    </message>
    <message>
        <source>The file for support is on the stick: %1.</source>
        <translation>Filen til service ligger på USB-nøglen: %1.</translation>
    </message>
    <message>
        <source>The profile is imported (settings changed: %1).</source>
        <translation>Profilen er importeret (ændrede indstillinger: %1).</translation>
    </message>
    <message>
        <source>It cannot be used.</source>
        <translation>Kan ikke bruges.</translation>
    </message>
</context>
<context>
    <name>TransferState</name>
    <message>
        <source>Reading</source>
        <translation>Læser</translation>
    </message>
    <message>
        <source>Writing</source>
        <translation>Skriver</translation>
    </message>
    <message>
        <source>Leave the stick where it is until this is done.</source>
        <translation>Lad USB-nøglen sidde, til dette er færdigt.</translation>
    </message>
</context>
<context>
    <name>WorkPage</name>
    <message>
        <source>Waiting for a position</source>
        <translation>Venter på en position</translation>
    </message>
    <message>
        <source>Map</source>
        <translation>Kort</translation>
    </message>
</context>
<context>
    <name>WorkingButton</name>
    <message>
        <source>Working</source>
        <translation>Arbejder</translation>
    </message>
    <message>
        <source>Not working</source>
        <translation>Arbejder ikke</translation>
    </message>
    <message>
        <source>Working. Switch the implement off</source>
        <translation>Arbejder. Slå redskabet fra</translation>
    </message>
    <message>
        <source>Not working. Switch the implement on</source>
        <translation>Arbejder ikke. Slå redskabet til</translation>
    </message>
</context>
</TS>
