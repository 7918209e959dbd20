<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nb" sourcelanguage="en">
<context>
    <name>About</name>
    <message>
        <source>Windows, files and connections</source>
        <translation>Vinduer, filer og forbindelser</translation>
    </message>
    <message>
        <source>The file of the settings</source>
        <translation>Filen med innstillingene</translation>
    </message>
    <message>
        <source>Profiles of settings</source>
        <translation>Profiler med innstillinger</translation>
    </message>
    <message>
        <source>Files for support</source>
        <translation>Filer til service</translation>
    </message>
    <message>
        <source>Sunrise and sunset</source>
        <translation>Soloppgang og solnedgang</translation>
    </message>
    <message>
        <source>Boundaries and zones</source>
        <translation>Grenser og soner</translation>
    </message>
    <message>
        <source>Software</source>
        <translation>Programvare</translation>
    </message>
    <message>
        <source>The software of this display</source>
        <translation>Programvaren i dette displayet</translation>
    </message>
    <message>
        <source>Settings, units and logs</source>
        <translation>Innstillinger, enheter og logger</translation>
    </message>
</context>
<context>
    <name>Clock</name>
    <message>
        <source>The clock of the machine; nothing has set it.</source>
        <translation>Terminalens klokke; den er ikke stilt.</translation>
    </message>
    <message>
        <source>The clock was set by hand.</source>
        <translation>Klokken er stilt manuelt.</translation>
    </message>
    <message>
        <source>The receiver sets the clock.</source>
        <translation>Mottakeren stiller klokken.</translation>
    </message>
    <message>
        <source>There is no such date or time.</source>
        <translation>Denne datoen eller tiden finnes ikke.</translation>
    </message>
    <message>
        <source>The date is more than 68 years from the clock of the machine.</source>
        <translation>Datoen ligger mer enn 68 år fra terminalens klokke.</translation>
    </message>
    <message>
        <source>The clock could not be stored.</source>
        <translation>Klokken kunne ikke lagres.</translation>
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
        <translation>Minutt</translation>
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
        <translation>Angi</translation>
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
        <translation>Forrige</translation>
    </message>
    <message>
        <source>Former colour</source>
        <translation>Forrige farge</translation>
    </message>
    <message>
        <source>First value</source>
        <translation>Startverdi</translation>
    </message>
    <message>
        <source>Digits of the colour</source>
        <translation>Fargens sifre</translation>
    </message>
    <message>
        <source>Hue</source>
        <translation>Fargetone</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Metning</translation>
    </message>
    <message>
        <source>Lightness</source>
        <translation>Lyshet</translation>
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
        <translation>%1, for lav: minst %2</translation>
    </message>
</context>
<context>
    <name>Difference</name>
    <message>
        <source>Changed on both sides</source>
        <translation>Endret på begge sider</translation>
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
        <translation>Start på nytt</translation>
    </message>
    <message>
        <source>The fonts of the display</source>
        <translation>Skriftene i displayet</translation>
    </message>
    <message>
        <source>The keyboard on the screen</source>
        <translation>Tastaturet på skjermen</translation>
    </message>
</context>
<context>
    <name>DoorBand</name>
    <message>
        <source>Work</source>
        <translation>Arbeid</translation>
    </message>
    <message>
        <source>Fields</source>
        <translation>Skifter</translation>
    </message>
    <message>
        <source>Receiver</source>
        <translation>Mottaker</translation>
    </message>
    <message>
        <source>Logs</source>
        <translation>Logger</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Innstillinger</translation>
    </message>
</context>
<context>
    <name>Drives</name>
    <message>
        <source>%1 free of %2</source>
        <translation>%1 ledig av %2</translation>
    </message>
    <message>
        <source>Not known</source>
        <translation>Ukjent</translation>
    </message>
    <message>
        <source>No stick</source>
        <translation>Ingen minnepinne</translation>
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
        <translation>Ingen kunde ennå.</translation>
    </message>
    <message>
        <source>Farms</source>
        <translation>Gårder</translation>
    </message>
    <message>
        <source>New farm</source>
        <translation>Ny gård</translation>
    </message>
    <message>
        <source>No farm yet.</source>
        <translation>Ingen gård ennå.</translation>
    </message>
    <message>
        <source>Fields</source>
        <translation>Skifter</translation>
    </message>
    <message>
        <source>New field</source>
        <translation>Nytt skifte</translation>
    </message>
    <message>
        <source>No field yet.</source>
        <translation>Ingen skifter ennå.</translation>
    </message>
    <message>
        <source>Jobs</source>
        <translation>Jobber</translation>
    </message>
    <message>
        <source>New job</source>
        <translation>Ny jobb</translation>
    </message>
    <message>
        <source>No job yet.</source>
        <translation>Ingen jobb ennå.</translation>
    </message>
    <message>
        <source>Remove %1 with everything in it?</source>
        <translation>Fjerne %1 med alt innhold?</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Rename or remove %1</source>
        <translation>Endre navn på eller fjern %1</translation>
    </message>
    <message>
        <source>Rename %1</source>
        <translation>Endre navn på %1</translation>
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
        <translation>Opplysninger til service: %1</translation>
    </message>
    <message>
        <source>%3 Try: %4</source>
        <translation>%3 Forslag: %4</translation>
    </message>
    <message>
        <source>This name is not possible.</source>
        <translation>Dette navnet er ikke mulig.</translation>
    </message>
    <message>
        <source>The name is empty.</source>
        <translation>Navnet er tomt.</translation>
    </message>
    <message>
        <source>This name stands for another folder.</source>
        <translation>Dette navnet står for en annen mappe.</translation>
    </message>
    <message>
        <source>The name must not contain %1.</source>
        <translation>Navnet kan ikke inneholde %1.</translation>
    </message>
    <message>
        <source>The name contains a sign that cannot be seen.</source>
        <translation>Navnet inneholder et usynlig tegn.</translation>
    </message>
    <message>
        <source>The name contains a sign that is not complete.</source>
        <translation>Navnet inneholder et ufullstendig tegn.</translation>
    </message>
    <message>
        <source>The name must not end in a full stop or a blank.</source>
        <translation>Navnet kan ikke slutte med punktum eller mellomrom.</translation>
    </message>
    <message>
        <source>The name must not begin with a blank.</source>
        <translation>Navnet kan ikke begynne med mellomrom.</translation>
    </message>
    <message>
        <source>A stick cannot hold a file with this name.</source>
        <translation>En minnepinne kan ikke romme en fil med dette navnet.</translation>
    </message>
    <message>
        <source>The name is too long.</source>
        <translation>Navnet er for langt.</translation>
    </message>
    <message>
        <source>%2 exists already.</source>
        <translation>%2 finnes allerede.</translation>
    </message>
    <message numerus="yes">
        <source>%2 is active and holds %n file(s).</source>
        <translation>
            <numerusform>%2 er i bruk og inneholder %n fil.</numerusform>
            <numerusform>%2 er i bruk og inneholder %n filer.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%2 holds %n file(s).</source>
        <translation>
            <numerusform>%2 inneholder %n fil.</numerusform>
            <numerusform>%2 inneholder %n filer.</numerusform>
        </translation>
    </message>
    <message>
        <source>%2 is active.</source>
        <translation>%2 er i bruk.</translation>
    </message>
    <message>
        <source>%2 is no longer there.</source>
        <translation>%2 finnes ikke lenger.</translation>
    </message>
    <message>
        <source>A stick cannot tell %2 from %3.</source>
        <translation>En minnepinne kan ikke skille %2 fra %3.</translation>
    </message>
    <message>
        <source>Another program is working on the fields. Try again later.</source>
        <translation>Et annet program arbeider med skiftene. Prøv igjen senere.</translation>
    </message>
    <message>
        <source>The selection could not be stored.</source>
        <translation>Valget kunne ikke lagres.</translation>
    </message>
    <message>
        <source>%1 is neither a file nor a folder.</source>
        <translation>%1 er verken en fil eller en mappe.</translation>
    </message>
    <message>
        <source>The file was edited or is damaged.</source>
        <translation>Filen er redigert eller skadet.</translation>
    </message>
    <message>
        <source>%1 cannot be read. %2</source>
        <translation>%1 kan ikke leses. %2</translation>
    </message>
    <message>
        <source>The file is of another kind.</source>
        <translation>Filen er av et annet slag.</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>Filen er tom.</translation>
    </message>
    <message>
        <source>The end of the file is missing.</source>
        <translation>Slutten av filen mangler.</translation>
    </message>
    <message>
        <source>The file is damaged.</source>
        <translation>Filen er skadet.</translation>
    </message>
    <message>
        <source>The file is not complete.</source>
        <translation>Filen er ikke fullstendig.</translation>
    </message>
    <message>
        <source>The file is from another version of the software.</source>
        <translation>Filen er fra en annen versjon av programvaren.</translation>
    </message>
    <message>
        <source>The file has a value that is not possible: %2</source>
        <translation>Filen har en verdi som ikke er mulig: %2</translation>
    </message>
    <message>
        <source>The file has a value twice: %2</source>
        <translation>En innstilling står to ganger i filen: %2</translation>
    </message>
    <message>
        <source>This address is not possible: %1</source>
        <translation>Denne adressen er ikke mulig: %1</translation>
    </message>
    <message>
        <source>The device is not there.</source>
        <translation>Apparatet er ikke der.</translation>
    </message>
    <message>
        <source>It is not permitted, or another program uses it.</source>
        <translation>Det er ikke tillatt, eller et annet program bruker det.</translation>
    </message>
    <message>
        <source>Another program uses it.</source>
        <translation>Et annet program bruker det.</translation>
    </message>
    <message>
        <source>It cannot be read.</source>
        <translation>Det kan ikke leses.</translation>
    </message>
    <message>
        <source>It was unplugged.</source>
        <translation>Kontakten er trukket ut.</translation>
    </message>
    <message>
        <source>It is not a serial device, or it cannot have this speed.</source>
        <translation>Det er ikke et serielt apparat, eller denne hastigheten er ikke mulig.</translation>
    </message>
    <message>
        <source>The serial port has a fault (number %1).</source>
        <translation>Den serielle porten har en feil (nummer %1).</translation>
    </message>
    <message>
        <source>%1 is damaged or of another kind.</source>
        <translation>%1 er skadet eller av et annet slag.</translation>
    </message>
    <message>
        <source>%1 is from another version of the software.</source>
        <translation>%1 er fra en annen versjon av programvaren.</translation>
    </message>
    <message>
        <source>%1 is damaged.</source>
        <translation>%1 er skadet.</translation>
    </message>
    <message>
        <source>%1 has other coordinates than WGS84.</source>
        <translation>%1 har andre koordinater enn WGS84.</translation>
    </message>
    <message>
        <source>%1 is not complete. %2 is missing.</source>
        <translation>Noe mangler i %1: %2.</translation>
    </message>
    <message>
        <source>%1 has no areas.</source>
        <translation>%1 har ingen arealer.</translation>
    </message>
    <message>
        <source>Another program uses %1.</source>
        <translation>Et annet program bruker %1.</translation>
    </message>
    <message>
        <source>A and B are too close together or too far apart.</source>
        <translation>A og B ligger for nær hverandre eller for langt fra hverandre.</translation>
    </message>
    <message>
        <source>Another program has locked it.</source>
        <translation>Et annet program har låst det.</translation>
    </message>
    <message>
        <source>It is no longer there.</source>
        <translation>Det finnes ikke lenger.</translation>
    </message>
    <message>
        <source>%1 is no longer there.</source>
        <translation>%1 finnes ikke lenger.</translation>
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
        <translation>Filen med innstillingene har en feil (nummer %1).</translation>
    </message>
    <message>
        <source>%1 cannot be opened. %2</source>
        <translation>%1 kan ikke åpnes. %2</translation>
    </message>
    <message>
        <source>%1 cannot be created. %2</source>
        <translation>%1 kan ikke lages. %2</translation>
    </message>
    <message>
        <source>%1 cannot be copied. %2</source>
        <translation>%1 kan ikke kopieres. %2</translation>
    </message>
    <message>
        <source>%1 cannot be renamed. %2</source>
        <translation>%1 kan ikke få nytt navn. %2</translation>
    </message>
    <message>
        <source>%1 cannot be removed. %2</source>
        <translation>%1 kan ikke fjernes. %2</translation>
    </message>
    <message>
        <source>The drive is full.</source>
        <translation>Disken er full.</translation>
    </message>
    <message>
        <source>The drive has a fault.</source>
        <translation>Disken har en feil.</translation>
    </message>
    <message>
        <source>The drive can only be read.</source>
        <translation>Disken kan bare leses.</translation>
    </message>
    <message>
        <source>It is not permitted.</source>
        <translation>Det er ikke tillatt.</translation>
    </message>
    <message>
        <source>It cannot be opened.</source>
        <translation>Det kan ikke åpnes.</translation>
    </message>
    <message>
        <source>It is damaged.</source>
        <translation>Innholdet er skadet.</translation>
    </message>
    <message>
        <source>It is not there.</source>
        <translation>Det finnes ikke.</translation>
    </message>
    <message>
        <source>It exists already.</source>
        <translation>Det finnes allerede.</translation>
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
        <translation>For mange filer er åpne.</translation>
    </message>
    <message>
        <source>There is too little memory.</source>
        <translation>Det er for lite arbeidsminne.</translation>
    </message>
    <message>
        <source>It is not possible there.</source>
        <translation>Det er ikke mulig der.</translation>
    </message>
    <message>
        <source>The device refuses the connection.</source>
        <translation>Apparatet avviser forbindelsen.</translation>
    </message>
    <message>
        <source>The device has closed the connection.</source>
        <translation>Apparatet har brutt forbindelsen.</translation>
    </message>
    <message>
        <source>There is no device with this address.</source>
        <translation>Det er ikke noe apparat med denne adressen.</translation>
    </message>
    <message>
        <source>The network cannot be reached.</source>
        <translation>Nettverket kan ikke nås.</translation>
    </message>
    <message>
        <source>The device does not answer.</source>
        <translation>Apparatet svarer ikke.</translation>
    </message>
    <message>
        <source>It is a link to another place.</source>
        <translation>Det er en lenke til et annet sted.</translation>
    </message>
    <message>
        <source>There are too many links to it.</source>
        <translation>For mange lenker fører dit.</translation>
    </message>
</context>
<context>
    <name>ItemActions</name>
    <message>
        <source>Rename</source>
        <translation>Endre navn</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Fjern</translation>
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
        <translation>%1 til %2 %3</translation>
    </message>
    <message>
        <source>At least %1 %2</source>
        <translation>Minst %1 %2</translation>
    </message>
    <message>
        <source>At most %1 %2</source>
        <translation>Høyst %1 %2</translation>
    </message>
    <message>
        <source>This is not a number yet.</source>
        <translation>Dette er ikke et tall ennå.</translation>
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
        <translation>For lite.
%1</translation>
    </message>
    <message>
        <source>now %1</source>
        <translation>nå %1</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Avbryt</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>Angi</translation>
    </message>
    <message>
        <source>Decimal sign</source>
        <translation>Desimaltegn</translation>
    </message>
    <message>
        <source>Plus or minus</source>
        <translation>Pluss eller minus</translation>
    </message>
    <message>
        <source>Remove the last sign</source>
        <translation>Slett siste tegn</translation>
    </message>
    <message>
        <source>C</source>
        <comment>key that clears the entry</comment>
        <translation>C</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Slett</translation>
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
        <translation>Sett A, den ene enden av linjen, her</translation>
    </message>
    <message>
        <source>B</source>
        <comment>the other end of the guidance line</comment>
        <translation>B</translation>
    </message>
    <message>
        <source>Set B, the other end of the line, here</source>
        <translation>Sett B, den andre enden av linjen, her</translation>
    </message>
    <message>
        <source>Set a flag here</source>
        <translation>Sett et flagg her</translation>
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
        <translation>Stopp</translation>
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
        <translation>%1 til høyre</translation>
    </message>
</context>
<context>
    <name>LockLayer</name>
    <message>
        <source>The screen is locked. Hold the button to unlock it.</source>
        <translation>Skjermen er låst. Hold knappen inne for å låse opp.</translation>
    </message>
    <message>
        <source>Unlock</source>
        <translation>Lås opp</translation>
    </message>
</context>
<context>
    <name>LogsPage</name>
    <message>
        <source>Logs</source>
        <translation>Logger</translation>
    </message>
    <message>
        <source>Events</source>
        <translation>Hendelser</translation>
    </message>
    <message>
        <source>Receiver</source>
        <translation>Mottaker</translation>
    </message>
    <message>
        <source>Go on</source>
        <translation>Fortsett</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>No line yet.</source>
        <translation>Ingen linje ennå.</translation>
    </message>
</context>
<context>
    <name>MachinePage</name>
    <message>
        <source>Implement width</source>
        <translation>Redskapsbredde</translation>
    </message>
    <message>
        <source>Decides the guidance lines beside each other, and the area done</source>
        <translation>Bestemmer kjørelinjene ved siden av hverandre og det ferdige arealet</translation>
    </message>
    <message>
        <source>Implement behind the antenna</source>
        <translation>Redskap bak antennen</translation>
    </message>
    <message>
        <source>How far the ground is covered behind the vehicle&apos;s place</source>
        <translation>Hvor langt bak kjøretøyets posisjon bakken blir behandlet</translation>
    </message>
</context>
<context>
    <name>Main</name>
    <message>
        <source>Cab display</source>
        <translation>Førerhusdisplay</translation>
    </message>
</context>
<context>
    <name>MapButtons</name>
    <message>
        <source>Zoom in</source>
        <translation>Zoom inn</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Zoom ut</translation>
    </message>
    <message>
        <source>The heading is up. Turn north up</source>
        <translation>Kjøreretning opp. Vri nord opp</translation>
    </message>
    <message>
        <source>North is up. Turn the heading up</source>
        <translation>Nord opp. Vri kjøreretningen opp</translation>
    </message>
    <message>
        <source>Centre the vehicle</source>
        <translation>Midtstill kjøretøyet</translation>
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
        <translation>Angi</translation>
    </message>
</context>
<context>
    <name>PageTurner</name>
    <message>
        <source>Rows above</source>
        <translation>Rader over</translation>
    </message>
    <message>
        <source>Rows below</source>
        <translation>Rader under</translation>
    </message>
</context>
<context>
    <name>ParameterRow</name>
    <message>
        <source>%1: back to the first value</source>
        <translation>%1: tilbake til startverdien</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Åpne</translation>
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
        <translation>en absolutt filbane som slutter på &quot;/&quot; og ikke er &quot;/&quot;</translation>
    </message>
    <message>
        <source>an absolute path</source>
        <translation>en absolutt filbane</translation>
    </message>
    <message>
        <source>a UUID in small letters, such as 6ba7b810-9dad-41d1-80b4-00c04fd430c8</source>
        <translation>en UUID med små bokstaver, som 6ba7b810-9dad-41d1-80b4-00c04fd430c8</translation>
    </message>
    <message>
        <source>simulator, tcp://HOST:PORT, serial:///dev/NAME?baud=N or an absolute path</source>
        <translation>simulator, tcp://HOST:PORT, serial:///dev/NAME?baud=N eller en absolutt filbane</translation>
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
        <translation>en farge: #rrggbb, #aarrggbb eller et navn som navy</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 til %2</translation>
    </message>
    <message>
        <source>Not a whole number.</source>
        <translation>Ikke et helt tall.</translation>
    </message>
    <message>
        <source>Below the least value.</source>
        <translation>Under den minste verdien.</translation>
    </message>
    <message>
        <source>Above the greatest value.</source>
        <translation>Over den største verdien.</translation>
    </message>
    <message>
        <source>This cannot be the name of a file. Try: %1</source>
        <translation>En fil kan ikke hete dette. Forslag: %1</translation>
    </message>
    <message>
        <source>Not accepted. Expected: %1.</source>
        <translation>Ikke mulig. Forventet: %1.</translation>
    </message>
    <message>
        <source>a name without %1</source>
        <translation>et navn uten %1</translation>
    </message>
    <message>
        <source>a whole number</source>
        <translation>et helt tall</translation>
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
        <translation>føreren har valgt forskjellen til UTC; GPS-tiden beregner den da ikke</translation>
    </message>
    <message>
        <source>metric units; otherwise US or English units</source>
        <translation>metriske enheter; ellers amerikanske eller engelske enheter</translation>
    </message>
    <message>
        <source>US measures when units are not metric; otherwise English measures</source>
        <translation>amerikanske mål når enhetene ikke er metriske; ellers engelske mål</translation>
    </message>
    <message>
        <source>positions in degrees, minutes and seconds; otherwise in decimal degrees</source>
        <translation>posisjoner i grader, minutter og sekunder; ellers i desimalgrader</translation>
    </message>
    <message>
        <source>24-hour clock; otherwise 12 hours with am and pm</source>
        <translation>24-timersklokke; ellers 12 timer med am og pm</translation>
    </message>
    <message>
        <source>dates with the month before the day</source>
        <translation>datoer med måneden før dagen</translation>
    </message>
    <message>
        <source>colours for day; otherwise for night</source>
        <translation>farger for dag; ellers for natt</translation>
    </message>
    <message>
        <source>the map turns with the vehicle; otherwise north is up</source>
        <translation>kartet dreier med kjøretøyet; ellers er nord opp</translation>
    </message>
    <message>
        <source>unit of pressures</source>
        <translation>enhet for trykk</translation>
    </message>
    <message>
        <source>unit of areas, and of rates per area</source>
        <translation>enhet for areal og for mengde per areal</translation>
    </message>
    <message>
        <source>unit of short distances: widths, offsets</source>
        <translation>enhet for korte avstander: bredder, forskyvninger</translation>
    </message>
    <message>
        <source>unit of granular volumes</source>
        <translation>enhet for granulatvolum</translation>
    </message>
    <message>
        <source>unit of granular densities</source>
        <translation>enhet for granulattetthet</translation>
    </message>
    <message>
        <source>unit of liquid volumes, flows and rates</source>
        <translation>enhet for volum, strømning og mengde av væske</translation>
    </message>
    <message>
        <source>language of the display&apos;s texts; a change needs a restart</source>
        <translation>språket i displayet; en endring krever en omstart</translation>
    </message>
    <message>
        <source>decimal point or comma; a change needs a restart</source>
        <translation>desimalpunktum eller -komma; en endring krever en omstart</translation>
    </message>
    <message>
        <source>when the colours switch between day and night: only by hand, at sunrise and sunset, or with the sun 6 degrees below the horizon</source>
        <translation>når fargene skifter mellom dag og natt: bare manuelt, ved soloppgang og solnedgang, eller når solen står 6 grader under horisonten</translation>
    </message>
    <message>
        <source>what set the display&apos;s clock</source>
        <translation>hva klokken i displayet er stilt etter</translation>
    </message>
    <message>
        <source>local time less UTC, whole hours</source>
        <translation>lokal tid minus UTC, hele timer</translation>
    </message>
    <message>
        <source>local time less UTC, minutes beyond the hours, with the sign of the hours</source>
        <translation>lokal tid minus UTC, minutter utover timene, med fortegnet til timene</translation>
    </message>
    <message>
        <source>brightness of the lightbar at night</source>
        <translation>lysstyrken til lysbjelken om natten</translation>
    </message>
    <message>
        <source>brightness of the screen at night</source>
        <translation>lysstyrken til skjermen om natten</translation>
    </message>
    <message>
        <source>brightness of the button lights at night</source>
        <translation>lysstyrken til knappelysene om natten</translation>
    </message>
    <message>
        <source>4: implements are kept in the folder of their vehicle; other numbers: in their own folder</source>
        <translation>4: redskaper ligger i mappen til kjøretøyet; andre tall: i sin egen mappe</translation>
    </message>
    <message>
        <source>number of the next file of the NMEA log</source>
        <translation>nummeret til neste fil i NMEA-loggen</translation>
    </message>
    <message>
        <source>number of the next file of the user log</source>
        <translation>nummeret til neste fil i brukerloggen</translation>
    </message>
    <message>
        <source>the display&apos;s clock less UTC</source>
        <translation>klokken i displayet minus UTC</translation>
    </message>
    <message>
        <source>folder of the internal drive; by default in the data folder</source>
        <translation>mappe på den interne disken; som standard i datamappen</translation>
    </message>
    <message>
        <source>mount point of the removable drive; by default in the data folder</source>
        <translation>monteringspunkt for den flyttbare disken; som standard i datamappen</translation>
    </message>
    <message>
        <source>the identity of the terminal, which its profiles carry</source>
        <translation>identiteten til terminalen, som står i profilene</translation>
    </message>
    <message>
        <source>where the sentences of the receiver come from</source>
        <translation>hvor meldingene fra mottakeren kommer fra</translation>
    </message>
    <message>
        <source>the figures beside the map, in this order</source>
        <translation>verdiene ved siden av kartet, i denne rekkefølgen</translation>
    </message>
    <message>
        <source>the newest time of a receiver, as of the last day on which one was seen</source>
        <translation>den nyeste tiden fra en mottaker, fra den siste dagen med en mottaker</translation>
    </message>
    <message>
        <source>when the sun switched the colours last</source>
        <translation>når solen sist skiftet fargene</translation>
    </message>
    <message>
        <source>the active job</source>
        <translation>den aktive jobben</translation>
    </message>
    <message>
        <source>the active boundary</source>
        <translation>den aktive skiftegrensen</translation>
    </message>
    <message>
        <source>the active straight guidance line</source>
        <translation>den aktive rette kjørelinjen</translation>
    </message>
    <message>
        <source>the active pivot</source>
        <translation>det aktive sirkelsporet</translation>
    </message>
    <message>
        <source>the active guidance curve</source>
        <translation>den aktive kurvede kjørelinjen</translation>
    </message>
    <message>
        <source>the active shape file of optimal lines</source>
        <translation>den aktive shapefilen med optimale linjer</translation>
    </message>
    <message>
        <source>the active shape file of project lines</source>
        <translation>den aktive shapefilen med prosjektlinjer</translation>
    </message>
    <message>
        <source>the active shape file of zones</source>
        <translation>den aktive shapefilen med soner</translation>
    </message>
    <message>
        <source>the active steering profile</source>
        <translation>den aktive styreprofilen</translation>
    </message>
    <message>
        <source>the active implement</source>
        <translation>det aktive redskapet</translation>
    </message>
    <message>
        <source>the active vehicle</source>
        <translation>det aktive kjøretøyet</translation>
    </message>
    <message>
        <source>the active sprayer</source>
        <translation>den aktive sprøyten</translation>
    </message>
    <message>
        <source>the active boom leveller</source>
        <translation>den aktive bomnivelleringen</translation>
    </message>
    <message>
        <source>the active client</source>
        <translation>den aktive kunden</translation>
    </message>
    <message>
        <source>the active farm</source>
        <translation>den aktive gården</translation>
    </message>
    <message>
        <source>the active field</source>
        <translation>det aktive skiftet</translation>
    </message>
    <message>
        <source>Measures</source>
        <translation>Målesystem</translation>
    </message>
    <message>
        <source>Gallons and bushels</source>
        <translation>Gallon og bushel</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>Areal</translation>
    </message>
    <message>
        <source>Pressure</source>
        <translation>Trykk</translation>
    </message>
    <message>
        <source>Short distances</source>
        <translation>Korte avstander</translation>
    </message>
    <message>
        <source>Liquid</source>
        <translation>Væske</translation>
    </message>
    <message>
        <source>Granular volume</source>
        <translation>Granulatvolum</translation>
    </message>
    <message>
        <source>Granular density</source>
        <translation>Granulattetthet</translation>
    </message>
    <message>
        <source>Positions</source>
        <translation>Posisjoner</translation>
    </message>
    <message>
        <source>Rate per travel</source>
        <translation>Mengde per strekning</translation>
    </message>
    <message>
        <source>Basis of rates</source>
        <translation>Mengdegrunnlag</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Språk</translation>
    </message>
    <message>
        <source>Decimal sign</source>
        <translation>Desimaltegn</translation>
    </message>
    <message>
        <source>Time of day</source>
        <translation>Klokkeslett</translation>
    </message>
    <message>
        <source>Dates</source>
        <translation>Datoer</translation>
    </message>
    <message>
        <source>Time zone set by hand</source>
        <translation>Tidssone manuelt</translation>
    </message>
    <message>
        <source>Time zone, hours</source>
        <translation>Tidssone, timer</translation>
    </message>
    <message>
        <source>Time zone, minutes</source>
        <translation>Tidssone, minutter</translation>
    </message>
    <message>
        <source>Clock less UTC</source>
        <translation>Klokke minus UTC</translation>
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
        <translation>Nyeste mottakertid</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>Farger</translation>
    </message>
    <message>
        <source>Day and night</source>
        <translation>Dag og natt</translation>
    </message>
    <message>
        <source>Map direction</source>
        <translation>Kartretning</translation>
    </message>
    <message>
        <source>Tiles</source>
        <translation>Fliser</translation>
    </message>
    <message>
        <source>Light bar at night</source>
        <translation>Lysbjelke om natten</translation>
    </message>
    <message>
        <source>Screen at night</source>
        <translation>Skjerm om natten</translation>
    </message>
    <message>
        <source>Button lights at night</source>
        <translation>Knappelys om natten</translation>
    </message>
    <message>
        <source>Switched by the sun</source>
        <translation>Sist skiftet av solen</translation>
    </message>
    <message>
        <source>Client</source>
        <translation>Kunde</translation>
    </message>
    <message>
        <source>Farm</source>
        <translation>Gård</translation>
    </message>
    <message>
        <source>Field</source>
        <translation>Skifte</translation>
    </message>
    <message>
        <source>Job</source>
        <translation>Jobb</translation>
    </message>
    <message>
        <source>Vehicle</source>
        <translation>Kjøretøy</translation>
    </message>
    <message>
        <source>Implement</source>
        <translation>Redskap</translation>
    </message>
    <message>
        <source>Sprayer</source>
        <translation>Sprøyte</translation>
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
        <translation>Skiftegrense</translation>
    </message>
    <message>
        <source>A-B line</source>
        <translation>A-B-linje</translation>
    </message>
    <message>
        <source>Pivot</source>
        <translation>Sirkelspor</translation>
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
        <translation>Prosjektlinjer</translation>
    </message>
    <message>
        <source>Zones</source>
        <translation>Soner</translation>
    </message>
    <message>
        <source>Receiver address</source>
        <translation>Mottakeradresse</translation>
    </message>
    <message>
        <source>Internal drive</source>
        <translation>Intern disk</translation>
    </message>
    <message>
        <source>Stick</source>
        <translation>Minnepinne</translation>
    </message>
    <message>
        <source>Implement folder</source>
        <translation>Redskapsmappe</translation>
    </message>
    <message>
        <source>Next NMEA log</source>
        <translation>Neste NMEA-logg</translation>
    </message>
    <message>
        <source>Next user log</source>
        <translation>Neste brukerlogg</translation>
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
        <translation>Farge på tekster</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Tittel</translation>
    </message>
    <message>
        <source>Colour of titles</source>
        <translation>Farge på titler</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Bakgrunn</translation>
    </message>
    <message>
        <source>Colour of the background</source>
        <translation>Farge på bakgrunnen</translation>
    </message>
    <message>
        <source>Button</source>
        <translation>Knapp</translation>
    </message>
    <message>
        <source>Colour of buttons</source>
        <translation>Farge på knapper</translation>
    </message>
    <message>
        <source>Button text</source>
        <translation>Knappetekst</translation>
    </message>
    <message>
        <source>Colour of texts on buttons</source>
        <translation>Farge på tekst på knapper</translation>
    </message>
    <message>
        <source>Map</source>
        <translation>Kart</translation>
    </message>
    <message>
        <source>Colour of the map&apos;s ground</source>
        <translation>Farge på bakken på kartet</translation>
    </message>
    <message>
        <source>Grid</source>
        <translation>Rutenett</translation>
    </message>
    <message>
        <source>Colour of the map&apos;s grid</source>
        <translation>Farge på rutenettet på kartet</translation>
    </message>
    <message>
        <source>Coverage</source>
        <translation>Behandlet</translation>
    </message>
    <message>
        <source>Colour of covered ground</source>
        <translation>Farge på behandlet areal</translation>
    </message>
    <message>
        <source>Vehicle on the map</source>
        <translation>Kjøretøy på kartet</translation>
    </message>
    <message>
        <source>Colour of the vehicle</source>
        <translation>Farge på kjøretøyet</translation>
    </message>
    <message>
        <source>Guidance line</source>
        <translation>Kjørelinje</translation>
    </message>
    <message>
        <source>Colour of the guidance line</source>
        <translation>Farge på kjørelinjen</translation>
    </message>
    <message>
        <source>Cross hairs</source>
        <translation>Trådkors</translation>
    </message>
    <message>
        <source>Colour of the cross hairs</source>
        <translation>Farge på trådkorset</translation>
    </message>
    <message>
        <source>Outer boundary</source>
        <translation>Yttergrense</translation>
    </message>
    <message>
        <source>Colour of the outer boundary of the field</source>
        <translation>Farge på yttergrensen til skiftet</translation>
    </message>
    <message>
        <source>Inner boundary</source>
        <translation>Innergrense</translation>
    </message>
    <message>
        <source>Colour of boundaries within the field</source>
        <translation>Farge på grenser inne i skiftet</translation>
    </message>
    <message>
        <source>Other boundaries</source>
        <translation>Andre grenser</translation>
    </message>
    <message>
        <source>Colour of boundaries that are not active</source>
        <translation>Farge på grenser som ikke er aktive</translation>
    </message>
    <message>
        <source>Exclusion zone</source>
        <translation>Sperresone</translation>
    </message>
    <message>
        <source>Colour of zones to keep out of</source>
        <translation>Farge på soner som skal unngås</translation>
    </message>
    <message>
        <source>Background picture</source>
        <translation>Bakgrunnsbilde</translation>
    </message>
    <message>
        <source>Number of the background picture</source>
        <translation>Nummeret til bakgrunnsbildet</translation>
    </message>
    <message>
        <source>what the sprayer&apos;s rates are related to</source>
        <translation>hva sprøytemengden beregnes etter</translation>
    </message>
    <message>
        <source>liquid rates per 100 m or 100 yd of travel, while travel is their basis</source>
        <translation>væskemengde per 100 m eller 100 yd kjørt strekning, når den er grunnlaget</translation>
    </message>
    <message>
        <source>since when the clock has its time from there</source>
        <translation>siden når klokken har tiden derfra</translation>
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
        <translation>Natt</translation>
    </message>
    <message>
        <source>Heading up</source>
        <translation>Kjøreretning</translation>
    </message>
    <message>
        <source>North up</source>
        <translation>Nord opp</translation>
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
        <translation>Nei</translation>
    </message>
    <message>
        <source>Travel</source>
        <translation>Strekning</translation>
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
        <translation>Tussmørke</translation>
    </message>
    <message>
        <source>Not set</source>
        <translation>Ikke stilt</translation>
    </message>
    <message>
        <source>Operator</source>
        <translation>Fører</translation>
    </message>
    <message>
        <source>Receiver</source>
        <translation>Mottaker</translation>
    </message>
    <message>
        <source>Rate</source>
        <translation>Mengde</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Hastighet</translation>
    </message>
    <message>
        <source>Area done</source>
        <translation>Ferdig areal</translation>
    </message>
    <message>
        <source>Area left</source>
        <translation>Restareal</translation>
    </message>
    <message>
        <source>Productivity</source>
        <translation>Kapasitet</translation>
    </message>
    <message>
        <source>Flow</source>
        <translation>Strømning</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperatur</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>Avstand</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Posisjon</translation>
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
        <translation>Mengder</translation>
    </message>
    <message>
        <source>Region</source>
        <translation>Region</translation>
    </message>
    <message>
        <source>Clock</source>
        <translation>Klokke</translation>
    </message>
    <message>
        <source>Colours of the schemes</source>
        <translation>Fargeskjemaer</translation>
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
        <translation>Lagring</translation>
    </message>
    <message>
        <source>Logs</source>
        <translation>Logger</translation>
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
        <translation>Loggene mister linjer: disken er full, eller det er ikke mulig å skrive til den.</translation>
    </message>
    <message>
        <source>Recording is off, because there is too little room.</source>
        <translation>Registreringen er av, fordi det er for lite plass.</translation>
    </message>
    <message>
        <source>Changes of settings are not stored yet. %1</source>
        <translation>Endringer av innstillinger er ikke lagret ennå. %1</translation>
    </message>
    <message>
        <source>The drive of the terminal is nearly full. Free: %1</source>
        <translation>Disken i terminalen er nesten full. Ledig: %1</translation>
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
        <translation>Displayet har allerede disse innstillingene.</translation>
    </message>
    <message>
        <source>Changed here and in the profile</source>
        <translation>Endret her og i profilen</translation>
    </message>
    <message>
        <source>Which value the settings below shall have</source>
        <translation>Hvilken verdi innstillingene nedenfor skal ha</translation>
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
        <translation>Det er ingen profil på minnepinnen.</translation>
    </message>
    <message>
        <source>No stick is plugged in.</source>
        <translation>Ingen minnepinne er satt i.</translation>
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
        <translation>Kapasitet</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Hastighet</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>Avstand</translation>
    </message>
    <message>
        <source>Small distance</source>
        <translation>Liten avstand</translation>
    </message>
    <message>
        <source>Travelled distance</source>
        <translation>Kjørt strekning</translation>
    </message>
    <message>
        <source>Altitude</source>
        <translation>Høyde</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperatur</translation>
    </message>
    <message>
        <source>Pressure</source>
        <translation>Trykk</translation>
    </message>
    <message>
        <source>Rate</source>
        <translation>Mengde</translation>
    </message>
    <message>
        <source>Requested rate</source>
        <translation>Ønsket mengde</translation>
    </message>
    <message>
        <source>Rate and error</source>
        <translation>Mengde og avvik</translation>
    </message>
    <message>
        <source>Small rate</source>
        <translation>Liten mengde</translation>
    </message>
    <message>
        <source>Flow</source>
        <translation>Strømning</translation>
    </message>
    <message>
        <source>Small flow</source>
        <translation>Liten strømning</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volum</translation>
    </message>
    <message>
        <source>Small volume</source>
        <translation>Lite volum</translation>
    </message>
    <message>
        <source>Granular volume</source>
        <translation>Granulatvolum</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>Vekt</translation>
    </message>
    <message>
        <source>Weight per area</source>
        <translation>Vekt per areal</translation>
    </message>
    <message>
        <source>Weight per area and error</source>
        <translation>Vekt per areal og avvik</translation>
    </message>
    <message>
        <source>Discharge</source>
        <translation>Utmating</translation>
    </message>
    <message>
        <source>Nitrogen</source>
        <translation>Nitrogen</translation>
    </message>
    <message>
        <source>Nitrogen per area</source>
        <translation>Nitrogen per areal</translation>
    </message>
    <message>
        <source>Seeds per area</source>
        <translation>Frø per areal</translation>
    </message>
    <message>
        <source>Density</source>
        <translation>Tetthet</translation>
    </message>
    <message>
        <source>Granular density</source>
        <translation>Granulattetthet</translation>
    </message>
    <message>
        <source>Volume per revolution</source>
        <translation>Volum per omdreining</translation>
    </message>
    <message>
        <source>Weight per revolution</source>
        <translation>Vekt per omdreining</translation>
    </message>
    <message>
        <source>Flow meter</source>
        <translation>Strømningsmåler</translation>
    </message>
    <message>
        <source>Wheel sensor</source>
        <translation>Hjulsensor</translation>
    </message>
    <message>
        <source>Speed sensor</source>
        <translation>Hastighetssensor</translation>
    </message>
    <message>
        <source>Latitude</source>
        <translation>Breddegrad</translation>
    </message>
    <message>
        <source>Longitude</source>
        <translation>Lengdegrad</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Varighet</translation>
    </message>
    <message>
        <source>Percent</source>
        <translation>Prosent</translation>
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
        <translation>ønsket %1</translation>
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
        <translation>Kobler til</translation>
    </message>
    <message>
        <source>Receiving</source>
        <translation>Mottar</translation>
    </message>
    <message>
        <source>Silent</source>
        <translation>Taus</translation>
    </message>
    <message>
        <source>Lost</source>
        <translation>Borte</translation>
    </message>
    <message>
        <source>Ended</source>
        <translation>Avsluttet</translation>
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
        <translation>Anslått</translation>
    </message>
    <message>
        <source>By hand</source>
        <translation>Manuelt</translation>
    </message>
    <message>
        <source>Simulated</source>
        <translation>Simulert</translation>
    </message>
    <message>
        <source>The receiver sends nothing.</source>
        <translation>Mottakeren sender ingenting.</translation>
    </message>
    <message>
        <source>The receiver is lost and is being looked for. %1</source>
        <translation>Mottakeren er borte og søkes etter. %1</translation>
    </message>
    <message>
        <source>The receiver cannot be read. %1</source>
        <translation>Mottakeren kan ikke leses. %1</translation>
    </message>
    <message>
        <source>The simulated field is done.</source>
        <translation>Det simulerte skiftet er ferdig.</translation>
    </message>
    <message>
        <source>The recording of the receiver is over.</source>
        <translation>Opptaket av mottakeren er slutt.</translation>
    </message>
</context>
<context>
    <name>ReceiverPage</name>
    <message>
        <source>Receiver</source>
        <translation>Mottaker</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Stopp</translation>
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
        <translation>Nettverk</translation>
    </message>
    <message>
        <source>Serial</source>
        <translation>Seriell</translation>
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
        <translation>Meldinger</translation>
    </message>
    <message>
        <source>Bad checksums</source>
        <translation>Feil kontrollsum</translation>
    </message>
    <message>
        <source>Damaged lines</source>
        <translation>Skadde linjer</translation>
    </message>
    <message>
        <source>Address of the receiver</source>
        <translation>Mottakerens adresse</translation>
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
        <translation>Tidssone</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>Dato og tid</translation>
    </message>
    <message>
        <source>Set by hand</source>
        <translation>Still manuelt</translation>
    </message>
</context>
<context>
    <name>SearchPage</name>
    <message>
        <source>Search</source>
        <translation>Søk</translation>
    </message>
    <message>
        <source>Words of a setting</source>
        <translation>Søkeord</translation>
    </message>
    <message>
        <source>No setting has these words.</source>
        <translation>Ingen innstilling har disse ordene.</translation>
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
        <translation>Farger</translation>
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
        <translation>Fliser</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>Profiler</translation>
    </message>
    <message>
        <source>All settings</source>
        <translation>Alle innstillinger</translation>
    </message>
</context>
<context>
    <name>SettingsPanel</name>
    <message>
        <source>Back</source>
        <translation>Tilbake</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Søk</translation>
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
        <translation>Ingen jobb</translation>
    </message>
    <message>
        <source>Receiver: %1</source>
        <translation>Mottaker: %1</translation>
    </message>
    <message>
        <source>The stick is plugged in</source>
        <translation>Minnepinnen sitter i</translation>
    </message>
    <message>
        <source>Lock the screen</source>
        <translation>Lås skjermen</translation>
    </message>
    <message>
        <source>Colours of the night</source>
        <translation>Nattfarger</translation>
    </message>
    <message>
        <source>Colours of the day</source>
        <translation>Dagfarger</translation>
    </message>
</context>
<context>
    <name>StoragePage</name>
    <message>
        <source>Open</source>
        <translation>Åpne</translation>
    </message>
    <message>
        <source>Internal drive</source>
        <translation>Intern disk</translation>
    </message>
    <message>
        <source>Stick</source>
        <translation>Minnepinne</translation>
    </message>
    <message>
        <source>No stick is plugged in.</source>
        <translation>Ingen minnepinne er satt i.</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Arbeidsminne</translation>
    </message>
    <message>
        <source>Logs</source>
        <translation>Logger</translation>
    </message>
    <message>
        <source>Writes all log files to the stick</source>
        <translation>Skriver alle loggfiler til minnepinnen</translation>
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
        <translation>Overfører innstillingene til et annet display eller henter dem tilbake fra minnepinnen</translation>
    </message>
    <message>
        <source>Open the profiles</source>
        <translation>Åpne profilene</translation>
    </message>
    <message>
        <source>Support</source>
        <translation>Service</translation>
    </message>
    <message>
        <source>Writes logs, settings and versions in one file; without the names of clients, farms and fields</source>
        <translation>Skriver logger, innstillinger og versjoner i én fil; uten navn på kunder, gårder og skifter</translation>
    </message>
    <message>
        <source>Write</source>
        <translation>Skriv</translation>
    </message>
    <message>
        <source>Write the file for support without names</source>
        <translation>Skriv filen til service uten navn</translation>
    </message>
    <message>
        <source>Support, with names</source>
        <translation>Service, med navn</translation>
    </message>
    <message>
        <source>The same file, with all names and places</source>
        <translation>Den samme filen, med alle navn og steder</translation>
    </message>
    <message>
        <source>Write the file for support with names</source>
        <translation>Skriv filen til service med navn</translation>
    </message>
</context>
<context>
    <name>TFieldTreeModel</name>
    <message>
        <source>A job holds no items.</source>
        <translation>En jobb inneholder ikke mer.</translation>
    </message>
    <message>
        <source>There is one with this name already.</source>
        <translation>Navnet finnes allerede.</translation>
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
        <translation>Innstillingen kunne ikke lagres ennå.</translation>
    </message>
    <message>
        <source>There is no value to set.</source>
        <translation>Det er ingen verdi å angi.</translation>
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
        <translation>mai</translation>
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
        <translation>des.</translation>
    </message>
</context>
<context>
    <name>TRestart</name>
    <message>
        <source>The new language is shown after a restart.</source>
        <translation>Det nye språket vises etter en omstart.</translation>
    </message>
    <message>
        <source>The new decimal sign is shown after a restart.</source>
        <translation>Det nye desimaltegnet vises etter en omstart.</translation>
    </message>
</context>
<context>
    <name>TSelections</name>
    <message>
        <source>The selection could not be stored.</source>
        <translation>Valget kunne ikke lagres.</translation>
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
        <translation>S_</translation>
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
        <translation>Uten kjøretøy</translation>
    </message>
    <message>
        <source>No Profile</source>
        <translation>Uten profil</translation>
    </message>
    <message>
        <source>No Implement</source>
        <translation>Uten redskap</translation>
    </message>
    <message>
        <source>Pivoted_</source>
        <translation>Slept_</translation>
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
        <translation>mars</translation>
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
        <translation>des.</translation>
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
        <translation>Et redskap kan ikke ha denne bredden.</translation>
    </message>
    <message>
        <source>A file of this job cannot be used. %1</source>
        <translation>En fil i denne jobben kan ikke brukes. %1</translation>
    </message>
    <message>
        <source>Coverage was not complete and was left out: strips %1, bytes %2</source>
        <translation>Data om det behandlede arealet var ufullstendige og er utelatt: striper %1, byte %2</translation>
    </message>
    <message>
        <source>The file of the flags is damaged; new flags are not stored.</source>
        <translation>Filen med flaggene er skadet; nye flagg lagres ikke.</translation>
    </message>
    <message>
        <source>A file could not be stored. %1</source>
        <translation>En fil kunne ikke lagres. %1</translation>
    </message>
    <message>
        <source>The file of the implement cannot be used. %1</source>
        <translation>Redskapets fil kan ikke brukes. %1</translation>
    </message>
    <message>
        <source>There is no line.</source>
        <translation>Det er ingen linje.</translation>
    </message>
    <message>
        <source>The line has no name.</source>
        <translation>Linjen har ikke noe navn.</translation>
    </message>
    <message>
        <source>The guidance line cannot be used. %1</source>
        <translation>Kjørelinjen kan ikke brukes. %1</translation>
    </message>
    <message>
        <source>No job is chosen</source>
        <translation>Ingen jobb valgt</translation>
    </message>
    <message>
        <source>No job is chosen: what is covered is not stored.</source>
        <translation>Ingen jobb valgt: det behandlede arealet lagres ikke.</translation>
    </message>
    <message>
        <source>The coverage of this job cannot be used: what is covered is not stored.</source>
        <translation>Det behandlede arealet i denne jobben kan ikke brukes: det nye lagres ikke.</translation>
    </message>
    <message>
        <source>The coverage cannot be stored, and strips are lost: %1</source>
        <translation>Det behandlede arealet kan ikke lagres, og striper går tapt: %1</translation>
    </message>
    <message>
        <source>The coverage is kept in memory until it can be stored. %1</source>
        <translation>Det behandlede arealet holdes i arbeidsminnet til det kan lagres. %1</translation>
    </message>
    <message>
        <source>The job is still being read.</source>
        <translation>Jobben leses fortsatt inn.</translation>
    </message>
</context>
<context>
    <name>TileTurner</name>
    <message>
        <source>Tiles</source>
        <translation>Fliser</translation>
    </message>
</context>
<context>
    <name>Tiles</name>
    <message>
        <source>Rate</source>
        <translation>Mengde</translation>
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
        <translation>Rest</translation>
    </message>
    <message>
        <source>Work</source>
        <comment>area per hour</comment>
        <translation>Kapasitet</translation>
    </message>
    <message>
        <source>Flow</source>
        <translation>Strømning</translation>
    </message>
    <message>
        <source>Press.</source>
        <comment>pressure</comment>
        <translation>Trykk</translation>
    </message>
    <message>
        <source>Temp.</source>
        <comment>temperature</comment>
        <translation>Temp.</translation>
    </message>
    <message>
        <source>Driven</source>
        <translation>Kjørt</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Posisjon</translation>
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
        <translation>Tilbake til første valg</translation>
    </message>
    <message>
        <source>%1 further ahead</source>
        <translation>Flytt %1 opp</translation>
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
        <translation>Ingenting er importert: noen innstillinger er endret her og i profilen.</translation>
    </message>
    <message>
        <source>No stick is plugged in.</source>
        <translation>Ingen minnepinne er satt i.</translation>
    </message>
    <message>
        <source>The stick was removed before everything was on it.</source>
        <translation>Minnepinnen ble tatt ut før alt lå på den.</translation>
    </message>
    <message>
        <source>The stick could not be written to the end.</source>
        <translation>Skrivingen til minnepinnen ble ikke fullført.</translation>
    </message>
    <message>
        <source>The folder %1 cannot be made.</source>
        <translation>Mappen %1 kan ikke lages.</translation>
    </message>
    <message>
        <source>The file %1 cannot be written.</source>
        <translation>Filen %1 kan ikke skrives.</translation>
    </message>
    <message>
        <source>The logs are on the stick (files: %1).</source>
        <translation>Loggene ligger på minnepinnen (filer: %1).</translation>
    </message>
    <message>
        <source>The profile cannot be used. %1</source>
        <translation>Profilen kan ikke brukes. %1</translation>
    </message>
    <message>
        <source>Nothing is imported. %1</source>
        <translation>Ingenting er importert. %1</translation>
    </message>
    <message>
        <source>This display</source>
        <translation>Dette displayet</translation>
    </message>
    <message>
        <source>Another display</source>
        <translation>Et annet display</translation>
    </message>
    <message>
        <source>The profile is not on the stick. %1</source>
        <translation>Profilen ligger ikke på minnepinnen. %1</translation>
    </message>
    <message>
        <source>The profile is on the stick: %1.</source>
        <translation>Profilen ligger på minnepinnen: %1.</translation>
    </message>
    <message>
        <source>The file for support is not on the stick. %1</source>
        <translation>Filen til service ligger ikke på minnepinnen. %1</translation>
    </message>
    <message>
        <source>The file for support is on the stick: %1.</source>
        <translation>Filen til service ligger på minnepinnen: %1.</translation>
    </message>
    <message>
        <source>The profile is imported (settings changed: %1).</source>
        <translation>Profilen er importert (endrede innstillinger: %1).</translation>
    </message>
    <message>
        <source>It cannot be used.</source>
        <translation>Kan ikke brukes.</translation>
    </message>
</context>
<context>
    <name>TransferState</name>
    <message>
        <source>Reading</source>
        <translation>Leser</translation>
    </message>
    <message>
        <source>Writing</source>
        <translation>Skriver</translation>
    </message>
    <message>
        <source>Leave the stick where it is until this is done.</source>
        <translation>La minnepinnen sitte i til dette er ferdig.</translation>
    </message>
</context>
<context>
    <name>WorkPage</name>
    <message>
        <source>Waiting for a position</source>
        <translation>Venter på en posisjon</translation>
    </message>
    <message>
        <source>Map</source>
        <translation>Kart</translation>
    </message>
</context>
<context>
    <name>WorkingButton</name>
    <message>
        <source>Working</source>
        <translation>Arbeider</translation>
    </message>
    <message>
        <source>Not working</source>
        <translation>Arbeider ikke</translation>
    </message>
    <message>
        <source>Working. Switch the implement off</source>
        <translation>Arbeider. Slå av redskapet</translation>
    </message>
    <message>
        <source>Not working. Switch the implement on</source>
        <translation>Arbeider ikke. Slå på redskapet</translation>
    </message>
</context>
</TS>
