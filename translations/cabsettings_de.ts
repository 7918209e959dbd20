<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>About</name>
    <message>
        <source>Windows, files and connections</source>
        <translation>Fenster, Dateien und Verbindungen</translation>
    </message>
    <message>
        <source>The file of the settings</source>
        <translation>Die Datei der Einstellungen</translation>
    </message>
    <message>
        <source>Profiles of settings</source>
        <translation>Profile der Einstellungen</translation>
    </message>
    <message>
        <source>Files for support</source>
        <translation>Dateien für den Kundendienst</translation>
    </message>
    <message>
        <source>Sunrise and sunset</source>
        <translation>Sonnenauf- und -untergang</translation>
    </message>
    <message>
        <source>Boundaries and zones</source>
        <translation>Grenzen und Zonen</translation>
    </message>
    <message>
        <source>Software</source>
        <translation>Software</translation>
    </message>
    <message>
        <source>The software of this display</source>
        <translation>Die Software dieses Terminals</translation>
    </message>
    <message>
        <source>Settings, units and logs</source>
        <translation>Einstellungen, Einheiten und Protokolle</translation>
    </message>
</context>
<context>
    <name>Clock</name>
    <message>
        <source>The clock of the machine; nothing has set it.</source>
        <translation>Die Uhr des Geräts; sie wurde nicht gestellt.</translation>
    </message>
    <message>
        <source>The clock was set by hand.</source>
        <translation>Die Uhr wurde von Hand gestellt.</translation>
    </message>
    <message>
        <source>The receiver sets the clock.</source>
        <translation>Der Empfänger stellt die Uhr.</translation>
    </message>
    <message>
        <source>There is no such date or time.</source>
        <translation>Dieses Datum oder diese Zeit gibt es nicht.</translation>
    </message>
    <message>
        <source>The date is more than 68 years from the clock of the machine.</source>
        <translation>Das Datum liegt mehr als 68 Jahre von der Uhr des Geräts entfernt.</translation>
    </message>
    <message>
        <source>The clock could not be stored.</source>
        <translation>Die Uhrzeit konnte nicht gespeichert werden.</translation>
    </message>
</context>
<context>
    <name>ClockEntry</name>
    <message>
        <source>Year</source>
        <translation>Jahr</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>Monat</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Tag</translation>
    </message>
    <message>
        <source>Hour</source>
        <translation>Stunde</translation>
    </message>
    <message>
        <source>Minute</source>
        <translation>Minute</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>Datum und Uhrzeit</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Uhrzeit</translation>
    </message>
    <message>
        <source>%1: more</source>
        <translation>%1: mehr</translation>
    </message>
    <message>
        <source>%1: less</source>
        <translation>%1: weniger</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>Setzen</translation>
    </message>
</context>
<context>
    <name>ColorBar</name>
    <message>
        <source>%1: less</source>
        <translation>%1: weniger</translation>
    </message>
    <message>
        <source>%1: more</source>
        <translation>%1: mehr</translation>
    </message>
</context>
<context>
    <name>ColorPage</name>
    <message>
        <source>Former</source>
        <translation>Vorher</translation>
    </message>
    <message>
        <source>Former colour</source>
        <translation>Vorherige Farbe</translation>
    </message>
    <message>
        <source>First value</source>
        <translation>Werkswert</translation>
    </message>
    <message>
        <source>Digits of the colour</source>
        <translation>Ziffern der Farbe</translation>
    </message>
    <message>
        <source>Hue</source>
        <translation>Farbton</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Sättigung</translation>
    </message>
    <message>
        <source>Lightness</source>
        <translation>Helligkeit</translation>
    </message>
</context>
<context>
    <name>ColorsPage</name>
    <message>
        <source>Day</source>
        <translation>Tag</translation>
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
        <translation>auf %1: %2</translation>
    </message>
    <message>
        <source>under %1: %2</source>
        <translation>unter %1: %2</translation>
    </message>
    <message>
        <source>%1, too low: at least %2</source>
        <translation>%1, zu gering: mindestens %2</translation>
    </message>
</context>
<context>
    <name>Difference</name>
    <message>
        <source>Changed on both sides</source>
        <translation>Auf beiden Seiten geändert</translation>
    </message>
    <message>
        <source>Here</source>
        <translation>Hier</translation>
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
        <translation>Neu starten</translation>
    </message>
    <message>
        <source>The fonts of the display</source>
        <translation>Die Schriften des Terminals</translation>
    </message>
    <message>
        <source>The keyboard on the screen</source>
        <translation>Die Tastatur auf dem Bildschirm</translation>
    </message>
</context>
<context>
    <name>DoorBand</name>
    <message>
        <source>Work</source>
        <translation>Arbeit</translation>
    </message>
    <message>
        <source>Fields</source>
        <translation>Felder</translation>
    </message>
    <message>
        <source>Receiver</source>
        <translation>Empfänger</translation>
    </message>
    <message>
        <source>Logs</source>
        <translation>Protokolle</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Optionen</translation>
    </message>
</context>
<context>
    <name>Drives</name>
    <message>
        <source>%1 free of %2</source>
        <translation>%1 frei von %2</translation>
    </message>
    <message>
        <source>Not known</source>
        <translation>Nicht bekannt</translation>
    </message>
    <message>
        <source>No stick</source>
        <translation>Kein Stick</translation>
    </message>
</context>
<context>
    <name>FieldsPage</name>
    <message>
        <source>Clients</source>
        <translation>Kunden</translation>
    </message>
    <message>
        <source>New client</source>
        <translation>Neuer Kunde</translation>
    </message>
    <message>
        <source>No client yet.</source>
        <translation>Noch kein Kunde.</translation>
    </message>
    <message>
        <source>Farms</source>
        <translation>Betriebe</translation>
    </message>
    <message>
        <source>New farm</source>
        <translation>Neuer Betrieb</translation>
    </message>
    <message>
        <source>No farm yet.</source>
        <translation>Noch kein Betrieb.</translation>
    </message>
    <message>
        <source>Fields</source>
        <translation>Felder</translation>
    </message>
    <message>
        <source>New field</source>
        <translation>Neues Feld</translation>
    </message>
    <message>
        <source>No field yet.</source>
        <translation>Noch kein Feld.</translation>
    </message>
    <message>
        <source>Jobs</source>
        <translation>Aufträge</translation>
    </message>
    <message>
        <source>New job</source>
        <translation>Neuer Auftrag</translation>
    </message>
    <message>
        <source>No job yet.</source>
        <translation>Noch kein Auftrag.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Rename or remove %1</source>
        <translation>%1 umbenennen oder löschen</translation>
    </message>
    <message>
        <source>Rename %1</source>
        <translation>%1 umbenennen</translation>
    </message>
    <message>
        <source>Remove everything</source>
        <translation>Alles löschen</translation>
    </message>
    <message>
        <source>Remove %1 with everything in it?</source>
        <translation>%1 mit allem Inhalt löschen?</translation>
    </message>
</context>
<context>
    <name>Host</name>
    <message>
        <source>Details for the support: %1</source>
        <translation>Angaben für den Kundendienst: %1</translation>
    </message>
    <message>
        <source>%3 Try: %4</source>
        <translation>%3 Vorschlag: %4</translation>
    </message>
    <message>
        <source>This name is not possible.</source>
        <translation>Dieser Name ist nicht möglich.</translation>
    </message>
    <message>
        <source>The name is empty.</source>
        <translation>Der Name ist leer.</translation>
    </message>
    <message>
        <source>This name stands for another folder.</source>
        <translation>Dieser Name steht für einen anderen Ordner.</translation>
    </message>
    <message>
        <source>The name must not contain %1.</source>
        <translation>Der Name darf %1 nicht enthalten.</translation>
    </message>
    <message>
        <source>The name contains a sign that cannot be seen.</source>
        <translation>Der Name enthält ein unsichtbares Zeichen.</translation>
    </message>
    <message>
        <source>The name contains a sign that is not complete.</source>
        <translation>Der Name enthält ein unvollständiges Zeichen.</translation>
    </message>
    <message>
        <source>The name must not end in a full stop or a blank.</source>
        <translation>Der Name darf nicht mit Punkt oder Leerzeichen enden.</translation>
    </message>
    <message>
        <source>The name must not begin with a blank.</source>
        <translation>Der Name darf nicht mit einem Leerzeichen beginnen.</translation>
    </message>
    <message>
        <source>A stick cannot hold a file with this name.</source>
        <translation>Ein Stick kann keine Datei mit diesem Namen aufnehmen.</translation>
    </message>
    <message>
        <source>The name is too long.</source>
        <translation>Der Name ist zu lang.</translation>
    </message>
    <message>
        <source>%2 exists already.</source>
        <translation>%2 gibt es schon.</translation>
    </message>
    <message numerus="yes">
        <source>%2 is active and holds %n file(s).</source>
        <translation>
            <numerusform>%2 ist aktiv und enthält %n Datei.</numerusform>
            <numerusform>%2 ist aktiv und enthält %n Dateien.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%2 holds %n file(s).</source>
        <translation>
            <numerusform>%2 enthält %n Datei.</numerusform>
            <numerusform>%2 enthält %n Dateien.</numerusform>
        </translation>
    </message>
    <message>
        <source>%2 is active.</source>
        <translation>%2 ist aktiv.</translation>
    </message>
    <message>
        <source>%2 is no longer there.</source>
        <translation>%2 ist nicht mehr da.</translation>
    </message>
    <message>
        <source>A stick cannot tell %2 from %3.</source>
        <translation>Ein Stick kann %2 und %3 nicht unterscheiden.</translation>
    </message>
    <message>
        <source>Another program is working on the fields. Try again later.</source>
        <translation>Ein anderes Programm arbeitet an den Feldern. Später noch einmal versuchen.</translation>
    </message>
    <message>
        <source>The selection could not be stored.</source>
        <translation>Die Auswahl konnte nicht gespeichert werden.</translation>
    </message>
    <message>
        <source>%1 is neither a file nor a folder.</source>
        <translation>%1 ist weder Datei noch Ordner.</translation>
    </message>
    <message>
        <source>The file was edited or is damaged.</source>
        <translation>Die Datei wurde bearbeitet oder ist beschädigt.</translation>
    </message>
    <message>
        <source>%1 cannot be read. %2</source>
        <translation>%1 kann nicht gelesen werden. %2</translation>
    </message>
    <message>
        <source>The file is of another kind.</source>
        <translation>Die Datei ist von anderer Art.</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>Die Datei ist leer.</translation>
    </message>
    <message>
        <source>The end of the file is missing.</source>
        <translation>Das Ende der Datei fehlt.</translation>
    </message>
    <message>
        <source>The file is damaged.</source>
        <translation>Die Datei ist beschädigt.</translation>
    </message>
    <message>
        <source>The file is not complete.</source>
        <translation>Die Datei ist nicht vollständig.</translation>
    </message>
    <message>
        <source>The file is from another version of the software.</source>
        <translation>Die Datei stammt von einem anderen Softwarestand.</translation>
    </message>
    <message>
        <source>The file has a value that is not possible: %2</source>
        <translation>Ein Wert der Datei ist nicht möglich: %2</translation>
    </message>
    <message>
        <source>The file has a value twice: %2</source>
        <translation>Eine Einstellung steht zweimal in der Datei: %2</translation>
    </message>
    <message>
        <source>This address is not possible: %1</source>
        <translation>Diese Adresse ist nicht möglich: %1</translation>
    </message>
    <message>
        <source>The device is not there.</source>
        <translation>Das Gerät ist nicht angeschlossen.</translation>
    </message>
    <message>
        <source>It is not permitted, or another program uses it.</source>
        <translation>Der Zugriff ist nicht erlaubt, oder ein anderes Programm benutzt das Gerät.</translation>
    </message>
    <message>
        <source>Another program uses it.</source>
        <translation>Ein anderes Programm greift gerade darauf zu.</translation>
    </message>
    <message>
        <source>It cannot be read.</source>
        <translation>Das Lesen ist nicht möglich.</translation>
    </message>
    <message>
        <source>It was unplugged.</source>
        <translation>Der Stecker wurde gezogen.</translation>
    </message>
    <message>
        <source>It is not a serial device, or it cannot have this speed.</source>
        <translation>Es ist kein serielles Gerät, oder es kann diese Geschwindigkeit nicht.</translation>
    </message>
    <message>
        <source>The serial port has a fault (number %1).</source>
        <translation>Die serielle Schnittstelle hat einen Fehler (Nummer %1).</translation>
    </message>
    <message>
        <source>%1 is damaged or of another kind.</source>
        <translation>%1 ist beschädigt oder von anderer Art.</translation>
    </message>
    <message>
        <source>%1 is from another version of the software.</source>
        <translation>%1 stammt von einem anderen Softwarestand.</translation>
    </message>
    <message>
        <source>%1 is damaged.</source>
        <translation>%1 ist beschädigt.</translation>
    </message>
    <message>
        <source>%1 has other coordinates than WGS84.</source>
        <translation>%1 hat andere Koordinaten als WGS84.</translation>
    </message>
    <message>
        <source>%1 is not complete. %2 is missing.</source>
        <translation>%1 ist nicht vollständig. %2 fehlt.</translation>
    </message>
    <message>
        <source>%1 has no areas.</source>
        <translation>%1 enthält keine Flächen.</translation>
    </message>
    <message>
        <source>Another program uses %1.</source>
        <translation>Ein anderes Programm benutzt %1.</translation>
    </message>
    <message>
        <source>A and B are too close together or too far apart.</source>
        <translation>A und B liegen zu nah beieinander oder zu weit auseinander.</translation>
    </message>
    <message>
        <source>Another program has locked it.</source>
        <translation>Ein anderes Programm hat den Zugriff gesperrt.</translation>
    </message>
    <message>
        <source>It is no longer there.</source>
        <translation>Die Datei ist nicht mehr da.</translation>
    </message>
    <message>
        <source>%1 is no longer there.</source>
        <translation>%1 ist nicht mehr da.</translation>
    </message>
    <message>
        <source>%1 cannot be written. %2</source>
        <translation>%1 kann nicht geschrieben werden. %2</translation>
    </message>
    <message>
        <source>%1 cannot be written.</source>
        <translation>%1 kann nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>The file of the settings has a fault (number %1).</source>
        <translation>Die Datei der Einstellungen hat einen Fehler (Nummer %1).</translation>
    </message>
    <message>
        <source>%1 cannot be opened. %2</source>
        <translation>%1 kann nicht geöffnet werden. %2</translation>
    </message>
    <message>
        <source>%1 cannot be created. %2</source>
        <translation>%1 kann nicht angelegt werden. %2</translation>
    </message>
    <message>
        <source>%1 cannot be copied. %2</source>
        <translation>%1 kann nicht kopiert werden. %2</translation>
    </message>
    <message>
        <source>%1 cannot be renamed. %2</source>
        <translation>%1 kann nicht umbenannt werden. %2</translation>
    </message>
    <message>
        <source>%1 cannot be removed. %2</source>
        <translation>%1 kann nicht gelöscht werden. %2</translation>
    </message>
    <message>
        <source>The drive is full.</source>
        <translation>Das Laufwerk ist voll.</translation>
    </message>
    <message>
        <source>The drive has a fault.</source>
        <translation>Das Laufwerk hat einen Fehler.</translation>
    </message>
    <message>
        <source>The drive can only be read.</source>
        <translation>Das Laufwerk ist schreibgeschützt.</translation>
    </message>
    <message>
        <source>It is not permitted.</source>
        <translation>Der Zugriff ist nicht erlaubt.</translation>
    </message>
    <message>
        <source>It cannot be opened.</source>
        <translation>Das Öffnen ist nicht möglich.</translation>
    </message>
    <message>
        <source>It is damaged.</source>
        <translation>Die Datei ist beschädigt.</translation>
    </message>
    <message>
        <source>It is not there.</source>
        <translation>Der Pfad ist nicht vorhanden.</translation>
    </message>
    <message>
        <source>It exists already.</source>
        <translation>Der Name ist schon vergeben.</translation>
    </message>
    <message>
        <source>It is a folder.</source>
        <translation>Es ist ein Ordner.</translation>
    </message>
    <message>
        <source>It is not a folder.</source>
        <translation>Es ist kein Ordner.</translation>
    </message>
    <message>
        <source>The folder is not empty.</source>
        <translation>Der Ordner ist nicht leer.</translation>
    </message>
    <message>
        <source>The file is too large.</source>
        <translation>Die Datei ist zu groß.</translation>
    </message>
    <message>
        <source>Too many files are open.</source>
        <translation>Es sind zu viele Dateien offen.</translation>
    </message>
    <message>
        <source>There is too little memory.</source>
        <translation>Der Arbeitsspeicher reicht nicht.</translation>
    </message>
    <message>
        <source>It is not possible there.</source>
        <translation>Das ist dort nicht möglich.</translation>
    </message>
    <message>
        <source>The device refuses the connection.</source>
        <translation>Das Gerät lehnt die Verbindung ab.</translation>
    </message>
    <message>
        <source>The device has closed the connection.</source>
        <translation>Das Gerät hat die Verbindung beendet.</translation>
    </message>
    <message>
        <source>There is no device with this address.</source>
        <translation>Unter dieser Adresse ist kein Gerät.</translation>
    </message>
    <message>
        <source>The network cannot be reached.</source>
        <translation>Das Netz ist nicht erreichbar.</translation>
    </message>
    <message>
        <source>The device does not answer.</source>
        <translation>Das Gerät antwortet nicht.</translation>
    </message>
    <message>
        <source>It is a link to another place.</source>
        <translation>Es ist eine Verknüpfung zu einem anderen Ort.</translation>
    </message>
    <message>
        <source>There are too many links to it.</source>
        <translation>Es gibt zu viele Verknüpfungen dorthin.</translation>
    </message>
</context>
<context>
    <name>ItemActions</name>
    <message>
        <source>Rename</source>
        <translation>Umbenennen</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>ItemPage</name>
    <message>
        <source>New</source>
        <translation>Neu</translation>
    </message>
</context>
<context>
    <name>Keypad</name>
    <message>
        <source>%1 to %2 %3</source>
        <translation>%1 bis %2 %3</translation>
    </message>
    <message>
        <source>At least %1 %2</source>
        <translation>Mindestens %1 %2</translation>
    </message>
    <message>
        <source>At most %1 %2</source>
        <translation>Höchstens %1 %2</translation>
    </message>
    <message>
        <source>This is not a number yet.</source>
        <translation>Das ist noch keine Zahl.</translation>
    </message>
    <message>
        <source>Too large.
%1</source>
        <translation>Zu groß.
%1</translation>
    </message>
    <message>
        <source>Too small.
%1</source>
        <translation>Zu klein.
%1</translation>
    </message>
    <message>
        <source>now %1</source>
        <translation>jetzt %1</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>Setzen</translation>
    </message>
    <message>
        <source>Decimal sign</source>
        <translation>Dezimalzeichen</translation>
    </message>
    <message>
        <source>Plus or minus</source>
        <translation>Plus oder minus</translation>
    </message>
    <message>
        <source>Remove the last sign</source>
        <translation>Letztes Zeichen löschen</translation>
    </message>
    <message>
        <source>C</source>
        <comment>key that clears the entry</comment>
        <translation>C</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Löschen</translation>
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
        <translation>A, das erste Ende der Linie, hier setzen</translation>
    </message>
    <message>
        <source>B</source>
        <comment>the other end of the guidance line</comment>
        <translation>B</translation>
    </message>
    <message>
        <source>Set B, the other end of the line, here</source>
        <translation>B, das andere Ende der Linie, hier setzen</translation>
    </message>
    <message>
        <source>Set a flag here</source>
        <translation>Hier eine Markierung setzen</translation>
    </message>
</context>
<context>
    <name>LineChoice</name>
    <message>
        <source>New</source>
        <translation>Neu</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
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
        <translation>%1 nach links</translation>
    </message>
    <message>
        <source>%1 to the right</source>
        <translation>%1 nach rechts</translation>
    </message>
</context>
<context>
    <name>LockLayer</name>
    <message>
        <source>The screen is locked. Hold the button to unlock it.</source>
        <translation>Der Bildschirm ist gesperrt. Zum Entsperren die Taste halten.</translation>
    </message>
    <message>
        <source>Unlock</source>
        <translation>Entsperren</translation>
    </message>
</context>
<context>
    <name>LogsPage</name>
    <message>
        <source>Logs</source>
        <translation>Protokolle</translation>
    </message>
    <message>
        <source>Events</source>
        <translation>Ereignisse</translation>
    </message>
    <message>
        <source>Receiver</source>
        <translation>Empfänger</translation>
    </message>
    <message>
        <source>Go on</source>
        <translation>Weiter</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Anhalten</translation>
    </message>
    <message>
        <source>No line yet.</source>
        <translation>Noch keine Zeile.</translation>
    </message>
</context>
<context>
    <name>MachinePage</name>
    <message>
        <source>Implement width</source>
        <translation>Arbeitsbreite</translation>
    </message>
    <message>
        <source>Decides the guidance lines beside each other, and the area done</source>
        <translation>Bestimmt den Abstand der Leitlinien und die bearbeitete Fläche</translation>
    </message>
    <message>
        <source>Implement behind the antenna</source>
        <translation>Gerät hinter der Antenne</translation>
    </message>
    <message>
        <source>How far the ground is covered behind the vehicle&apos;s place</source>
        <translation>Abstand der bearbeiteten Fläche hinter der Position des Fahrzeugs</translation>
    </message>
</context>
<context>
    <name>Main</name>
    <message>
        <source>Cab display</source>
        <translation>Kabinenterminal</translation>
    </message>
</context>
<context>
    <name>MapButtons</name>
    <message>
        <source>Zoom in</source>
        <translation>Vergrößern</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Verkleinern</translation>
    </message>
    <message>
        <source>The heading is up. Turn north up</source>
        <translation>Fahrtrichtung oben. Norden nach oben drehen</translation>
    </message>
    <message>
        <source>North is up. Turn the heading up</source>
        <translation>Norden oben. Fahrtrichtung nach oben drehen</translation>
    </message>
    <message>
        <source>Centre the vehicle</source>
        <translation>Fahrzeug in die Mitte</translation>
    </message>
</context>
<context>
    <name>NameEntry</name>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>PageTurner</name>
    <message>
        <source>Rows above</source>
        <translation>Zeilen darüber</translation>
    </message>
    <message>
        <source>Rows below</source>
        <translation>Zeilen darunter</translation>
    </message>
</context>
<context>
    <name>ParameterRow</name>
    <message>
        <source>%1: back to the first value</source>
        <translation>%1: zurück zum Werkswert</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
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
        <translation>ein absoluter Pfad, der auf &quot;/&quot; endet und nicht &quot;/&quot; ist</translation>
    </message>
    <message>
        <source>an absolute path</source>
        <translation>ein absoluter Pfad</translation>
    </message>
    <message>
        <source>a UUID in small letters, such as 6ba7b810-9dad-41d1-80b4-00c04fd430c8</source>
        <translation>eine UUID in Kleinbuchstaben, etwa 6ba7b810-9dad-41d1-80b4-00c04fd430c8</translation>
    </message>
    <message>
        <source>simulator, tcp://HOST:PORT, serial:///dev/NAME?baud=N or an absolute path</source>
        <translation>simulator, tcp://HOST:PORT, serial:///dev/NAME?baud=N oder ein absoluter Pfad</translation>
    </message>
    <message>
        <source>true or false</source>
        <translation>true oder false</translation>
    </message>
    <message>
        <source>a time in UTC, such as 2026-03-05T13:05:09Z</source>
        <translation>eine Zeit in UTC, etwa 2026-03-05T13:05:09Z</translation>
    </message>
    <message>
        <source>a colour: #rrggbb, #aarrggbb or a name such as navy</source>
        <translation>eine Farbe: #rrggbb, #aarrggbb oder ein Name wie navy</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 bis %2</translation>
    </message>
    <message>
        <source>Not a whole number.</source>
        <translation>Keine ganze Zahl.</translation>
    </message>
    <message>
        <source>Below the least value.</source>
        <translation>Unter dem kleinsten Wert.</translation>
    </message>
    <message>
        <source>Above the greatest value.</source>
        <translation>Über dem größten Wert.</translation>
    </message>
    <message>
        <source>This cannot be the name of a file. Try: %1</source>
        <translation>So kann keine Datei heißen. Vorschlag: %1</translation>
    </message>
    <message>
        <source>Not accepted. Expected: %1.</source>
        <translation>Nicht möglich. Erwartet: %1.</translation>
    </message>
    <message>
        <source>a name without %1</source>
        <translation>ein Name ohne %1</translation>
    </message>
    <message>
        <source>a whole number</source>
        <translation>eine ganze Zahl</translation>
    </message>
    <message>
        <source>At least %1</source>
        <translation>Mindestens %1</translation>
    </message>
</context>
<context>
    <name>Parameters</name>
    <message>
        <source>the operator has chosen the offset from UTC; GPS time keeps it instead of computing it</source>
        <translation>der Bediener hat den Abstand zu UTC gewählt; die GPS-Zeit lässt ihn, wie er ist</translation>
    </message>
    <message>
        <source>metric units; otherwise US or English units</source>
        <translation>metrische Einheiten; sonst US- oder britische</translation>
    </message>
    <message>
        <source>US measures when units are not metric; otherwise English measures</source>
        <translation>US-Maße, wenn die Einheiten nicht metrisch sind; sonst britische</translation>
    </message>
    <message>
        <source>positions in degrees, minutes and seconds; otherwise in decimal degrees</source>
        <translation>Positionen in Grad, Minuten und Sekunden; sonst in Dezimalgrad</translation>
    </message>
    <message>
        <source>24-hour clock; otherwise 12 hours with am and pm</source>
        <translation>Uhr mit 24 Stunden; sonst 12 Stunden mit am und pm</translation>
    </message>
    <message>
        <source>dates with the month before the day</source>
        <translation>Datum mit dem Monat vor dem Tag</translation>
    </message>
    <message>
        <source>colours for day; otherwise for night</source>
        <translation>Farben für den Tag; sonst für die Nacht</translation>
    </message>
    <message>
        <source>the map turns with the vehicle; otherwise north is up</source>
        <translation>die Karte dreht sich mit dem Fahrzeug; sonst ist Norden oben</translation>
    </message>
    <message>
        <source>unit of pressures</source>
        <translation>Einheit für Drücke</translation>
    </message>
    <message>
        <source>unit of areas, and of rates per area</source>
        <translation>Einheit der Flächen und der Mengen je Fläche</translation>
    </message>
    <message>
        <source>unit of short distances: widths, offsets</source>
        <translation>Einheit kurzer Strecken: Breiten, Abstände</translation>
    </message>
    <message>
        <source>unit of granular volumes</source>
        <translation>Einheit der Granulatvolumen</translation>
    </message>
    <message>
        <source>unit of granular densities</source>
        <translation>Einheit der Granulatdichten</translation>
    </message>
    <message>
        <source>unit of liquid volumes, flows and rates</source>
        <translation>Einheit von Volumen, Durchfluss und Menge bei Flüssigkeiten</translation>
    </message>
    <message>
        <source>language of the display&apos;s texts; a change needs a restart</source>
        <translation>Sprache des Terminals; eine Änderung wirkt nach einem Neustart</translation>
    </message>
    <message>
        <source>decimal point or comma; a change needs a restart</source>
        <translation>Dezimalpunkt oder Komma; eine Änderung wirkt nach einem Neustart</translation>
    </message>
    <message>
        <source>when the colours switch between day and night: only by hand, at sunrise and sunset, or with the sun 6 degrees below the horizon</source>
        <translation>wann die Farben zwischen Tag und Nacht wechseln: nur von Hand, bei Sonnenauf- und -untergang, oder wenn die Sonne 6 Grad unter dem Horizont steht</translation>
    </message>
    <message>
        <source>what set the display&apos;s clock</source>
        <translation>wonach die Uhr gestellt ist</translation>
    </message>
    <message>
        <source>local time less UTC, whole hours</source>
        <translation>Ortszeit minus UTC, ganze Stunden</translation>
    </message>
    <message>
        <source>local time less UTC, minutes beyond the hours, with the sign of the hours</source>
        <translation>Ortszeit minus UTC, Minuten über die Stunden hinaus, mit deren Vorzeichen</translation>
    </message>
    <message>
        <source>brightness of the lightbar at night</source>
        <translation>Helligkeit des Lichtbalkens bei Nacht</translation>
    </message>
    <message>
        <source>brightness of the screen at night</source>
        <translation>Helligkeit des Bildschirms bei Nacht</translation>
    </message>
    <message>
        <source>brightness of the button lights at night</source>
        <translation>Helligkeit der Tastenbeleuchtung bei Nacht</translation>
    </message>
    <message>
        <source>4: implements are kept in the folder of their vehicle; other numbers: in their own folder</source>
        <translation>4: Geräte liegen im Ordner ihres Fahrzeugs; andere Zahlen: in einem eigenen Ordner</translation>
    </message>
    <message>
        <source>number of the next file of the NMEA log</source>
        <translation>Nummer der nächsten Datei des NMEA-Protokolls</translation>
    </message>
    <message>
        <source>number of the next file of the user log</source>
        <translation>Nummer der nächsten Datei des Bedienprotokolls</translation>
    </message>
    <message>
        <source>the display&apos;s clock less UTC</source>
        <translation>Uhr des Terminals minus UTC</translation>
    </message>
    <message>
        <source>folder of the internal drive; by default in the data folder</source>
        <translation>Ordner des internen Laufwerks; ohne Angabe im Datenordner</translation>
    </message>
    <message>
        <source>mount point of the removable drive; by default in the data folder</source>
        <translation>Einhängepunkt des Sticks; ohne Angabe im Datenordner</translation>
    </message>
    <message>
        <source>the identity of the terminal, which its profiles carry</source>
        <translation>die Kennung des Terminals, die in seinen Profilen steht</translation>
    </message>
    <message>
        <source>where the sentences of the receiver come from</source>
        <translation>woher die Datensätze des Empfängers kommen</translation>
    </message>
    <message>
        <source>the figures beside the map, in this order</source>
        <translation>die Werte neben der Karte, in dieser Reihenfolge</translation>
    </message>
    <message>
        <source>the newest time of a receiver, as of the last day on which one was seen</source>
        <translation>die neueste Zeit eines Empfängers, vom letzten Tag mit einem Empfänger</translation>
    </message>
    <message>
        <source>when the sun switched the colours last</source>
        <translation>wann die Sonne die Farben zuletzt umgeschaltet hat</translation>
    </message>
    <message>
        <source>the active job</source>
        <translation>der aktive Auftrag</translation>
    </message>
    <message>
        <source>the active boundary</source>
        <translation>die aktive Feldgrenze</translation>
    </message>
    <message>
        <source>the active straight guidance line</source>
        <translation>die aktive gerade Leitlinie</translation>
    </message>
    <message>
        <source>the active pivot</source>
        <translation>die aktive Kreisspur</translation>
    </message>
    <message>
        <source>the active guidance curve</source>
        <translation>die aktive Leitkurve</translation>
    </message>
    <message>
        <source>the active shape file of optimal lines</source>
        <translation>die aktive Shape-Datei der optimalen Linien</translation>
    </message>
    <message>
        <source>the active shape file of project lines</source>
        <translation>die aktive Shape-Datei der Projektlinien</translation>
    </message>
    <message>
        <source>the active shape file of zones</source>
        <translation>die aktive Shape-Datei der Zonen</translation>
    </message>
    <message>
        <source>the active steering profile</source>
        <translation>das aktive Lenkprofil</translation>
    </message>
    <message>
        <source>the active implement</source>
        <translation>das aktive Gerät</translation>
    </message>
    <message>
        <source>the active vehicle</source>
        <translation>das aktive Fahrzeug</translation>
    </message>
    <message>
        <source>the active sprayer</source>
        <translation>die aktive Spritze</translation>
    </message>
    <message>
        <source>the active boom leveller</source>
        <translation>die aktive Gestängeführung</translation>
    </message>
    <message>
        <source>the active client</source>
        <translation>der aktive Kunde</translation>
    </message>
    <message>
        <source>the active farm</source>
        <translation>der aktive Betrieb</translation>
    </message>
    <message>
        <source>the active field</source>
        <translation>das aktive Feld</translation>
    </message>
    <message>
        <source>Measures</source>
        <translation>Maßsystem</translation>
    </message>
    <message>
        <source>Gallons and bushels</source>
        <translation>Gallonen und Bushel</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>Fläche</translation>
    </message>
    <message>
        <source>Pressure</source>
        <translation>Druck</translation>
    </message>
    <message>
        <source>Short distances</source>
        <translation>Kurze Strecken</translation>
    </message>
    <message>
        <source>Liquid</source>
        <translation>Flüssigkeit</translation>
    </message>
    <message>
        <source>Granular volume</source>
        <translation>Granulatvolumen</translation>
    </message>
    <message>
        <source>Granular density</source>
        <translation>Granulatdichte</translation>
    </message>
    <message>
        <source>Positions</source>
        <translation>Positionen</translation>
    </message>
    <message>
        <source>Rate per travel</source>
        <translation>Menge je Strecke</translation>
    </message>
    <message>
        <source>Basis of rates</source>
        <translation>Bezug der Ausbringmenge</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>Decimal sign</source>
        <translation>Dezimalzeichen</translation>
    </message>
    <message>
        <source>Time of day</source>
        <translation>Uhrzeit</translation>
    </message>
    <message>
        <source>Dates</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Time zone set by hand</source>
        <translation>Zeitzone von Hand</translation>
    </message>
    <message>
        <source>Time zone, hours</source>
        <translation>Zeitzone, Stunden</translation>
    </message>
    <message>
        <source>Time zone, minutes</source>
        <translation>Zeitzone, Minuten</translation>
    </message>
    <message>
        <source>Clock less UTC</source>
        <translation>Abstand zu UTC</translation>
    </message>
    <message>
        <source>Source of the time</source>
        <translation>Quelle der Zeit</translation>
    </message>
    <message>
        <source>Source of the time since</source>
        <translation>Quelle der Zeit seit</translation>
    </message>
    <message>
        <source>Newest receiver time</source>
        <translation>Neueste Empfängerzeit</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>Farben</translation>
    </message>
    <message>
        <source>Day and night</source>
        <translation>Tag und Nacht</translation>
    </message>
    <message>
        <source>Map direction</source>
        <translation>Kartenrichtung</translation>
    </message>
    <message>
        <source>Tiles</source>
        <translation>Kacheln</translation>
    </message>
    <message>
        <source>Light bar at night</source>
        <translation>Lichtbalken bei Nacht</translation>
    </message>
    <message>
        <source>Screen at night</source>
        <translation>Bildschirm bei Nacht</translation>
    </message>
    <message>
        <source>Button lights at night</source>
        <translation>Tastenlicht bei Nacht</translation>
    </message>
    <message>
        <source>Switched by the sun</source>
        <translation>Von der Sonne geschaltet</translation>
    </message>
    <message>
        <source>Client</source>
        <translation>Kunde</translation>
    </message>
    <message>
        <source>Farm</source>
        <translation>Betrieb</translation>
    </message>
    <message>
        <source>Field</source>
        <translation>Feld</translation>
    </message>
    <message>
        <source>Job</source>
        <translation>Auftrag</translation>
    </message>
    <message>
        <source>Vehicle</source>
        <translation>Fahrzeug</translation>
    </message>
    <message>
        <source>Implement</source>
        <translation>Gerät</translation>
    </message>
    <message>
        <source>Sprayer</source>
        <translation>Spritze</translation>
    </message>
    <message>
        <source>Boom leveller</source>
        <translation>Gestängeführung</translation>
    </message>
    <message>
        <source>Steering profile</source>
        <translation>Lenkprofil</translation>
    </message>
    <message>
        <source>Boundary</source>
        <translation>Feldgrenze</translation>
    </message>
    <message>
        <source>A-B line</source>
        <translation>A-B-Linie</translation>
    </message>
    <message>
        <source>Pivot</source>
        <translation>Kreisspur</translation>
    </message>
    <message>
        <source>Curve</source>
        <translation>Kurve</translation>
    </message>
    <message>
        <source>Optimal lines</source>
        <translation>Optimale Linien</translation>
    </message>
    <message>
        <source>Project lines</source>
        <translation>Projektlinien</translation>
    </message>
    <message>
        <source>Zones</source>
        <translation>Zonen</translation>
    </message>
    <message>
        <source>Receiver address</source>
        <translation>Empfängeradresse</translation>
    </message>
    <message>
        <source>Internal drive</source>
        <translation>Internes Laufwerk</translation>
    </message>
    <message>
        <source>Stick</source>
        <translation>Stick</translation>
    </message>
    <message>
        <source>Implement folder</source>
        <translation>Geräteordner</translation>
    </message>
    <message>
        <source>Next NMEA log</source>
        <translation>Nächstes NMEA-Protokoll</translation>
    </message>
    <message>
        <source>Next user log</source>
        <translation>Nächstes Bedienprotokoll</translation>
    </message>
    <message>
        <source>Identity</source>
        <translation>Kennung</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Colour of texts</source>
        <translation>Farbe der Texte</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>Colour of titles</source>
        <translation>Farbe der Titel</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Hintergrund</translation>
    </message>
    <message>
        <source>Colour of the background</source>
        <translation>Farbe des Hintergrunds</translation>
    </message>
    <message>
        <source>Button</source>
        <translation>Taste</translation>
    </message>
    <message>
        <source>Colour of buttons</source>
        <translation>Farbe der Tasten</translation>
    </message>
    <message>
        <source>Button text</source>
        <translation>Tastentext</translation>
    </message>
    <message>
        <source>Colour of texts on buttons</source>
        <translation>Farbe der Texte auf Tasten</translation>
    </message>
    <message>
        <source>Map</source>
        <translation>Karte</translation>
    </message>
    <message>
        <source>Colour of the map&apos;s ground</source>
        <translation>Farbe des Kartengrunds</translation>
    </message>
    <message>
        <source>Grid</source>
        <translation>Gitter</translation>
    </message>
    <message>
        <source>Colour of the map&apos;s grid</source>
        <translation>Farbe des Kartengitters</translation>
    </message>
    <message>
        <source>Coverage</source>
        <translation>Bearbeitete Fläche</translation>
    </message>
    <message>
        <source>Colour of covered ground</source>
        <translation>Farbe der bearbeiteten Fläche</translation>
    </message>
    <message>
        <source>Vehicle on the map</source>
        <translation>Fahrzeug auf der Karte</translation>
    </message>
    <message>
        <source>Colour of the vehicle</source>
        <translation>Farbe des Fahrzeugs</translation>
    </message>
    <message>
        <source>Guidance line</source>
        <translation>Leitlinie</translation>
    </message>
    <message>
        <source>Colour of the guidance line</source>
        <translation>Farbe der Leitlinie</translation>
    </message>
    <message>
        <source>Cross hairs</source>
        <translation>Fadenkreuz</translation>
    </message>
    <message>
        <source>Colour of the cross hairs</source>
        <translation>Farbe des Fadenkreuzes</translation>
    </message>
    <message>
        <source>Outer boundary</source>
        <translation>Außengrenze</translation>
    </message>
    <message>
        <source>Colour of the outer boundary of the field</source>
        <translation>Farbe der Außengrenze des Feldes</translation>
    </message>
    <message>
        <source>Inner boundary</source>
        <translation>Innengrenze</translation>
    </message>
    <message>
        <source>Colour of boundaries within the field</source>
        <translation>Farbe der Grenzen im Feld</translation>
    </message>
    <message>
        <source>Other boundaries</source>
        <translation>Andere Grenzen</translation>
    </message>
    <message>
        <source>Colour of boundaries that are not active</source>
        <translation>Farbe der Grenzen, die nicht aktiv sind</translation>
    </message>
    <message>
        <source>Exclusion zone</source>
        <translation>Sperrzone</translation>
    </message>
    <message>
        <source>Colour of zones to keep out of</source>
        <translation>Farbe der Sperrzonen</translation>
    </message>
    <message>
        <source>Background picture</source>
        <translation>Hintergrundbild</translation>
    </message>
    <message>
        <source>Number of the background picture</source>
        <translation>Nummer des Hintergrundbilds</translation>
    </message>
    <message>
        <source>what the sprayer&apos;s rates are related to</source>
        <translation>worauf sich die Ausbringmengen der Spritze beziehen</translation>
    </message>
    <message>
        <source>liquid rates per 100 m or 100 yd of travel, while travel is their basis</source>
        <translation>Flüssigkeitsmengen je 100 m oder 100 yd, solange sie sich auf die Fahrstrecke beziehen</translation>
    </message>
    <message>
        <source>since when the clock has its time from there</source>
        <translation>seit wann die Uhr ihre Zeit von dort hat</translation>
    </message>
    <message>
        <source>Metric</source>
        <translation>Metrisch</translation>
    </message>
    <message>
        <source>US or English</source>
        <translation>US oder britisch</translation>
    </message>
    <message>
        <source>US</source>
        <translation>US</translation>
    </message>
    <message>
        <source>English</source>
        <translation>Britisch</translation>
    </message>
    <message>
        <source>Deg., min., s</source>
        <translation>Grad, min, s</translation>
    </message>
    <message>
        <source>Degrees</source>
        <translation>Grad</translation>
    </message>
    <message>
        <source>24 hours</source>
        <translation>24 Stunden</translation>
    </message>
    <message>
        <source>am, pm</source>
        <translation>am, pm</translation>
    </message>
    <message>
        <source>Month first</source>
        <translation>Monat zuerst</translation>
    </message>
    <message>
        <source>Day first</source>
        <translation>Tag zuerst</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Tag</translation>
    </message>
    <message>
        <source>Night</source>
        <translation>Nacht</translation>
    </message>
    <message>
        <source>Heading up</source>
        <translation>Fahrtrichtung oben</translation>
    </message>
    <message>
        <source>North up</source>
        <translation>Norden oben</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Ein</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Aus</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nein</translation>
    </message>
    <message>
        <source>Travel</source>
        <translation>Fahrstrecke</translation>
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
        <translation>Zoll</translation>
    </message>
    <message>
        <source>Foot</source>
        <translation>Fuß</translation>
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
        <translation>US-Bushel</translation>
    </message>
    <message>
        <source>UK bushel</source>
        <translation>UK-Bushel</translation>
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
        <translation>Von Hand</translation>
    </message>
    <message>
        <source>Sunset</source>
        <translation>Sonnenuntergang</translation>
    </message>
    <message>
        <source>Twilight</source>
        <translation>Dämmerung</translation>
    </message>
    <message>
        <source>Not set</source>
        <translation>Nicht gestellt</translation>
    </message>
    <message>
        <source>Operator</source>
        <translation>Bediener</translation>
    </message>
    <message>
        <source>Receiver</source>
        <translation>Empfänger</translation>
    </message>
    <message>
        <source>Rate</source>
        <translation>Ausbringmenge</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Geschwindigkeit</translation>
    </message>
    <message>
        <source>Area done</source>
        <translation>Bearbeitete Fläche</translation>
    </message>
    <message>
        <source>Area left</source>
        <translation>Restfläche</translation>
    </message>
    <message>
        <source>Productivity</source>
        <translation>Leistung</translation>
    </message>
    <message>
        <source>Flow</source>
        <translation>Durchfluss</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperatur</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>Strecke</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>Units</source>
        <translation>Einheiten</translation>
    </message>
    <message>
        <source>Rates</source>
        <translation>Ausbringmengen</translation>
    </message>
    <message>
        <source>Region</source>
        <translation>Region</translation>
    </message>
    <message>
        <source>Clock</source>
        <translation>Uhr</translation>
    </message>
    <message>
        <source>Colours of the schemes</source>
        <translation>Farbschemata</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Anzeige</translation>
    </message>
    <message>
        <source>Selections</source>
        <translation>Auswahl</translation>
    </message>
    <message>
        <source>Storage</source>
        <translation>Speicher</translation>
    </message>
    <message>
        <source>Logs</source>
        <translation>Protokolle</translation>
    </message>
    <message>
        <source>Terminal</source>
        <translation>Terminal</translation>
    </message>
    <message>
        <source>%1, by day</source>
        <translation>%1, bei Tag</translation>
    </message>
    <message>
        <source>%1, by night</source>
        <translation>%1, bei Nacht</translation>
    </message>
</context>
<context>
    <name>Problems</name>
    <message>
        <source>The logs lose lines: their drive is full or cannot be written.</source>
        <translation>Die Protokolle verlieren Zeilen: Das Laufwerk ist voll oder kann nicht beschrieben werden.</translation>
    </message>
    <message>
        <source>Recording is off, because there is too little room.</source>
        <translation>Die Aufzeichnung ist aus, weil zu wenig Platz ist.</translation>
    </message>
    <message>
        <source>Changes of settings are not stored yet. %1</source>
        <translation>Geänderte Einstellungen sind noch nicht gespeichert. %1</translation>
    </message>
    <message>
        <source>The drive of the terminal is nearly full. Free: %1</source>
        <translation>Das Laufwerk des Terminals ist fast voll. Frei: %1</translation>
    </message>
</context>
<context>
    <name>ProfilePage</name>
    <message>
        <source>Import</source>
        <translation>Einlesen</translation>
    </message>
    <message>
        <source>The display has these settings already.</source>
        <translation>Das Terminal hat diese Einstellungen schon.</translation>
    </message>
    <message>
        <source>Changed here and in the profile</source>
        <translation>Hier und im Profil geändert</translation>
    </message>
    <message>
        <source>Which value the settings below shall have</source>
        <translation>Welchen Wert die Einstellungen darunter haben sollen</translation>
    </message>
    <message>
        <source>Ours</source>
        <translation>Hier</translation>
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
        <translation>Profile</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Ausgeben</translation>
    </message>
    <message>
        <source>There is no profile on the stick.</source>
        <translation>Auf dem Stick ist kein Profil.</translation>
    </message>
    <message>
        <source>No stick is plugged in.</source>
        <translation>Es steckt kein Stick.</translation>
    </message>
    <message>
        <source>Name of the profile</source>
        <translation>Name des Profils</translation>
    </message>
</context>
<context>
    <name>Quantities</name>
    <message>
        <source>Area</source>
        <translation>Fläche</translation>
    </message>
    <message>
        <source>Productivity</source>
        <translation>Leistung</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Geschwindigkeit</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>Strecke</translation>
    </message>
    <message>
        <source>Small distance</source>
        <translation>Kleine Strecke</translation>
    </message>
    <message>
        <source>Travelled distance</source>
        <translation>Fahrstrecke</translation>
    </message>
    <message>
        <source>Altitude</source>
        <translation>Höhe</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperatur</translation>
    </message>
    <message>
        <source>Pressure</source>
        <translation>Druck</translation>
    </message>
    <message>
        <source>Rate</source>
        <translation>Ausbringmenge</translation>
    </message>
    <message>
        <source>Requested rate</source>
        <translation>Sollmenge</translation>
    </message>
    <message>
        <source>Rate and error</source>
        <translation>Ausbringmenge und Abweichung</translation>
    </message>
    <message>
        <source>Small rate</source>
        <translation>Kleine Ausbringmenge</translation>
    </message>
    <message>
        <source>Flow</source>
        <translation>Durchfluss</translation>
    </message>
    <message>
        <source>Small flow</source>
        <translation>Kleiner Durchfluss</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volumen</translation>
    </message>
    <message>
        <source>Small volume</source>
        <translation>Kleines Volumen</translation>
    </message>
    <message>
        <source>Granular volume</source>
        <translation>Granulatvolumen</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>Gewicht</translation>
    </message>
    <message>
        <source>Weight per area</source>
        <translation>Gewicht je Fläche</translation>
    </message>
    <message>
        <source>Weight per area and error</source>
        <translation>Gewicht je Fläche und Abweichung</translation>
    </message>
    <message>
        <source>Discharge</source>
        <translation>Austrag</translation>
    </message>
    <message>
        <source>Nitrogen</source>
        <translation>Stickstoff</translation>
    </message>
    <message>
        <source>Nitrogen per area</source>
        <translation>Stickstoff je Fläche</translation>
    </message>
    <message>
        <source>Seeds per area</source>
        <translation>Körner je Fläche</translation>
    </message>
    <message>
        <source>Density</source>
        <translation>Dichte</translation>
    </message>
    <message>
        <source>Granular density</source>
        <translation>Granulatdichte</translation>
    </message>
    <message>
        <source>Volume per revolution</source>
        <translation>Volumen je Umdrehung</translation>
    </message>
    <message>
        <source>Weight per revolution</source>
        <translation>Gewicht je Umdrehung</translation>
    </message>
    <message>
        <source>Flow meter</source>
        <translation>Durchflussmesser</translation>
    </message>
    <message>
        <source>Wheel sensor</source>
        <translation>Radsensor</translation>
    </message>
    <message>
        <source>Speed sensor</source>
        <translation>Geschwindigkeitssensor</translation>
    </message>
    <message>
        <source>Latitude</source>
        <translation>Breitengrad</translation>
    </message>
    <message>
        <source>Longitude</source>
        <translation>Längengrad</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Dauer</translation>
    </message>
    <message>
        <source>Percent</source>
        <translation>Prozent</translation>
    </message>
</context>
<context>
    <name>Question</name>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>RateTile</name>
    <message>
        <source>set %1</source>
        <comment>the rate that is set</comment>
        <translation>Soll %1</translation>
    </message>
</context>
<context>
    <name>Receiver</name>
    <message>
        <source>Off</source>
        <translation>Aus</translation>
    </message>
    <message>
        <source>Connecting</source>
        <translation>Verbindet</translation>
    </message>
    <message>
        <source>Receiving</source>
        <translation>Empfängt</translation>
    </message>
    <message>
        <source>Silent</source>
        <translation>Stumm</translation>
    </message>
    <message>
        <source>Lost</source>
        <translation>Verloren</translation>
    </message>
    <message>
        <source>Ended</source>
        <translation>Beendet</translation>
    </message>
    <message>
        <source>No fix</source>
        <translation>Keine Position</translation>
    </message>
    <message>
        <source>RTK float</source>
        <translation>RTK Float</translation>
    </message>
    <message>
        <source>Estimated</source>
        <translation>Geschätzt</translation>
    </message>
    <message>
        <source>By hand</source>
        <translation>Von Hand</translation>
    </message>
    <message>
        <source>Simulated</source>
        <translation>Simuliert</translation>
    </message>
    <message>
        <source>The receiver sends nothing.</source>
        <translation>Der Empfänger sendet nichts.</translation>
    </message>
    <message>
        <source>The receiver is lost and is being looked for. %1</source>
        <translation>Der Empfänger ist verloren und wird gesucht. %1</translation>
    </message>
    <message>
        <source>The receiver cannot be read. %1</source>
        <translation>Der Empfänger kann nicht gelesen werden. %1</translation>
    </message>
    <message>
        <source>The simulated field is done.</source>
        <translation>Das simulierte Feld ist fertig.</translation>
    </message>
    <message>
        <source>The recording of the receiver is over.</source>
        <translation>Die Aufzeichnung des Empfängers ist zu Ende.</translation>
    </message>
</context>
<context>
    <name>ReceiverPage</name>
    <message>
        <source>Receiver</source>
        <translation>Empfänger</translation>
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
        <translation>Datei</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Netz</translation>
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
        <translation>Alter</translation>
    </message>
    <message>
        <source>Satellites</source>
        <translation>Satelliten</translation>
    </message>
    <message>
        <source>HDOP</source>
        <translation>HDOP</translation>
    </message>
    <message>
        <source>Time (UTC)</source>
        <translation>Zeit (UTC)</translation>
    </message>
    <message>
        <source>Lines</source>
        <translation>Zeilen</translation>
    </message>
    <message>
        <source>Sentences</source>
        <translation>Datensätze</translation>
    </message>
    <message>
        <source>Bad checksums</source>
        <translation>Prüfsummenfehler</translation>
    </message>
    <message>
        <source>Damaged lines</source>
        <translation>Defekte Zeilen</translation>
    </message>
    <message>
        <source>Address of the receiver</source>
        <translation>Adresse des Empfängers</translation>
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
        <translation>Uhrzeit</translation>
    </message>
    <message>
        <source>Time zone</source>
        <translation>Zeitzone</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>Datum und Uhrzeit</translation>
    </message>
    <message>
        <source>Set by hand</source>
        <translation>Von Hand</translation>
    </message>
</context>
<context>
    <name>SearchPage</name>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Words of a setting</source>
        <translation>Wörter einer Einstellung</translation>
    </message>
    <message>
        <source>No setting has these words.</source>
        <translation>Keine Einstellung hat diese Wörter.</translation>
    </message>
</context>
<context>
    <name>SettingsPage</name>
    <message>
        <source>Units</source>
        <translation>Einheiten</translation>
    </message>
    <message>
        <source>Region</source>
        <translation>Region</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>Farben</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Anzeige</translation>
    </message>
    <message>
        <source>Machine</source>
        <translation>Maschine</translation>
    </message>
    <message>
        <source>Storage</source>
        <translation>Speicher</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Info</translation>
    </message>
    <message>
        <source>Tiles</source>
        <translation>Kacheln</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>Profile</translation>
    </message>
    <message>
        <source>All settings</source>
        <translation>Alle Einstellungen</translation>
    </message>
</context>
<context>
    <name>SettingsPanel</name>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
</context>
<context>
    <name>Sizes</name>
    <message numerus="yes">
        <source>%n byte(s)</source>
        <translation>
            <numerusform>%n Byte</numerusform>
            <numerusform>%n Byte</numerusform>
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
        <translation>Kein Auftrag</translation>
    </message>
    <message>
        <source>Receiver: %1</source>
        <translation>Empfänger: %1</translation>
    </message>
    <message>
        <source>The stick is plugged in</source>
        <translation>Der Stick steckt</translation>
    </message>
    <message>
        <source>Lock the screen</source>
        <translation>Bildschirm sperren</translation>
    </message>
    <message>
        <source>Colours of the night</source>
        <translation>Farben der Nacht</translation>
    </message>
    <message>
        <source>Colours of the day</source>
        <translation>Farben des Tages</translation>
    </message>
</context>
<context>
    <name>StoragePage</name>
    <message>
        <source>Internal drive</source>
        <translation>Internes Laufwerk</translation>
    </message>
    <message>
        <source>Stick</source>
        <translation>Stick</translation>
    </message>
    <message>
        <source>No stick is plugged in.</source>
        <translation>Es steckt kein Stick.</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Arbeitsspeicher</translation>
    </message>
    <message>
        <source>Logs</source>
        <translation>Protokolle</translation>
    </message>
    <message>
        <source>Writes all log files to the stick</source>
        <translation>Schreibt alle Protokolle auf den Stick</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Ausgeben</translation>
    </message>
    <message>
        <source>Export the logs</source>
        <translation>Protokolle ausgeben</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>Profile</translation>
    </message>
    <message>
        <source>Takes the settings to another display, or brings them back from the stick</source>
        <translation>Bringt die Einstellungen auf ein anderes Terminal oder vom Stick zurück</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Open the profiles</source>
        <translation>Profile öffnen</translation>
    </message>
    <message>
        <source>Support</source>
        <translation>Kundendienst</translation>
    </message>
    <message>
        <source>Writes logs, settings and versions in one file; without the names of clients, farms and fields</source>
        <translation>Schreibt Protokolle, Einstellungen und Softwarestände in eine Datei; ohne die Namen von Kunden, Betrieben und Feldern</translation>
    </message>
    <message>
        <source>Write</source>
        <translation>Schreiben</translation>
    </message>
    <message>
        <source>Write the file for support without names</source>
        <translation>Datei für den Kundendienst ohne Namen schreiben</translation>
    </message>
    <message>
        <source>Support, with names</source>
        <translation>Kundendienst, mit Namen</translation>
    </message>
    <message>
        <source>The same file, with all names and places</source>
        <translation>Dieselbe Datei, mit allen Namen und Orten</translation>
    </message>
    <message>
        <source>Write the file for support with names</source>
        <translation>Datei für den Kundendienst mit Namen schreiben</translation>
    </message>
</context>
<context>
    <name>TFieldTreeModel</name>
    <message>
        <source>A job holds no items.</source>
        <translation>Ein Auftrag enthält nichts weiter.</translation>
    </message>
    <message>
        <source>There is one with this name already.</source>
        <translation>Diesen Namen gibt es schon.</translation>
    </message>
    <message numerus="yes">
        <source>%n file(s), %1</source>
        <translation>
            <numerusform>%n Datei, %1</numerusform>
            <numerusform>%n Dateien, %1</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>TParameter</name>
    <message>
        <source>The setting could not be written to the disk yet.</source>
        <translation>Die Einstellung konnte noch nicht gespeichert werden.</translation>
    </message>
    <message>
        <source>There is no value to set.</source>
        <translation>Es gibt keinen Wert zum Setzen.</translation>
    </message>
</context>
<context>
    <name>TRegionSettings</name>
    <message>
        <source>Jan</source>
        <translation>Jan</translation>
    </message>
    <message>
        <source>Feb</source>
        <translation>Feb</translation>
    </message>
    <message>
        <source>Mar</source>
        <translation>Mär</translation>
    </message>
    <message>
        <source>Apr</source>
        <translation>Apr</translation>
    </message>
    <message>
        <source>May</source>
        <translation>Mai</translation>
    </message>
    <message>
        <source>Jun</source>
        <translation>Jun</translation>
    </message>
    <message>
        <source>Jul</source>
        <translation>Jul</translation>
    </message>
    <message>
        <source>Aug</source>
        <translation>Aug</translation>
    </message>
    <message>
        <source>Sep</source>
        <translation>Sep</translation>
    </message>
    <message>
        <source>Oct</source>
        <translation>Okt</translation>
    </message>
    <message>
        <source>Nov</source>
        <translation>Nov</translation>
    </message>
    <message>
        <source>Dec</source>
        <translation>Dez</translation>
    </message>
</context>
<context>
    <name>TRestart</name>
    <message>
        <source>The new language is shown after a restart.</source>
        <translation>Die neue Sprache gilt nach einem Neustart.</translation>
    </message>
    <message>
        <source>The new decimal sign is shown after a restart.</source>
        <translation>Das neue Dezimalzeichen gilt nach einem Neustart.</translation>
    </message>
</context>
<context>
    <name>TSelections</name>
    <message>
        <source>The selection could not be stored.</source>
        <translation>Die Auswahl konnte nicht gespeichert werden.</translation>
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
        <translation>P_</translation>
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
        <translation>Kein Fahrzeug</translation>
    </message>
    <message>
        <source>No Profile</source>
        <translation>Kein Profil</translation>
    </message>
    <message>
        <source>No Implement</source>
        <translation>Kein Gerät</translation>
    </message>
    <message>
        <source>Pivoted_</source>
        <translation>Gezogen_</translation>
    </message>
</context>
<context>
    <name>TTransfer</name>
    <message>
        <source>The name is empty.</source>
        <translation>Der Name ist leer.</translation>
    </message>
</context>
<context>
    <name>TUnitAbbreviations</name>
    <message>
        <source>Jan</source>
        <translation>Jan</translation>
    </message>
    <message>
        <source>Feb</source>
        <translation>Feb</translation>
    </message>
    <message>
        <source>Mar</source>
        <translation>Mär</translation>
    </message>
    <message>
        <source>Apr</source>
        <translation>Apr</translation>
    </message>
    <message>
        <source>May</source>
        <translation>Mai</translation>
    </message>
    <message>
        <source>Jun</source>
        <translation>Jun</translation>
    </message>
    <message>
        <source>Jul</source>
        <translation>Jul</translation>
    </message>
    <message>
        <source>Aug</source>
        <translation>Aug</translation>
    </message>
    <message>
        <source>Sep</source>
        <translation>Sep</translation>
    </message>
    <message>
        <source>Oct</source>
        <translation>Okt</translation>
    </message>
    <message>
        <source>Nov</source>
        <translation>Nov</translation>
    </message>
    <message>
        <source>Dec</source>
        <translation>Dez</translation>
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
        <translation>Meilen</translation>
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
        <translation>L/U</translation>
    </message>
    <message>
        <source>gal/rev</source>
        <translation>gal/U</translation>
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
        <translation>m/Imp</translation>
    </message>
    <message>
        <source>ft/pulse</source>
        <translation>ft/Imp</translation>
    </message>
    <message>
        <source>pulses/L</source>
        <translation>Imp/L</translation>
    </message>
    <message>
        <source>pulses/gal</source>
        <translation>Imp/gal</translation>
    </message>
    <message>
        <source>pulses/mL</source>
        <translation>Imp/mL</translation>
    </message>
    <message>
        <source>pulses/fl.oz</source>
        <translation>Imp/fl.oz</translation>
    </message>
    <message>
        <source>pulses/m³</source>
        <translation>Imp/m³</translation>
    </message>
    <message>
        <source>pulses/ft³</source>
        <translation>Imp/ft³</translation>
    </message>
    <message>
        <source>pulses/t</source>
        <translation>Imp/t</translation>
    </message>
    <message>
        <source>pulses/lb</source>
        <translation>Imp/lb</translation>
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
        <translation>kg/U</translation>
    </message>
    <message>
        <source>lb/rev</source>
        <translation>lb/U</translation>
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
        <translation>Imp/kgN</translation>
    </message>
    <message>
        <source>pulses/lbN</source>
        <translation>Imp/lbN</translation>
    </message>
    <message>
        <source>KS/ha</source>
        <translation>TK/ha</translation>
    </message>
    <message>
        <source>KS/ac</source>
        <translation>TK/ac</translation>
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
        <translation>U/min</translation>
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
        <translation>Kritisch</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Trivial</source>
        <translation>Geringfügig</translation>
    </message>
</context>
<context>
    <name>TWork</name>
    <message>
        <source>An implement cannot have this width.</source>
        <translation>Diese Arbeitsbreite ist nicht möglich.</translation>
    </message>
    <message>
        <source>A file of this job cannot be used. %1</source>
        <translation>Eine Datei dieses Auftrags ist nicht verwendbar. %1</translation>
    </message>
    <message>
        <source>Coverage was not complete and was left out: strips %1, bytes %2</source>
        <translation>Daten der bearbeiteten Fläche waren unvollständig und wurden weggelassen (Streifen: %1, Bytes: %2)</translation>
    </message>
    <message>
        <source>The file of the flags is damaged; new flags are not stored.</source>
        <translation>Die Datei der Markierungen ist beschädigt; neue Markierungen werden nicht gespeichert.</translation>
    </message>
    <message>
        <source>A file could not be stored. %1</source>
        <translation>Eine Datei konnte nicht gespeichert werden. %1</translation>
    </message>
    <message>
        <source>The file of the implement cannot be used. %1</source>
        <translation>Die Datei des Geräts ist nicht verwendbar. %1</translation>
    </message>
    <message>
        <source>There is no line.</source>
        <translation>Es gibt keine Leitlinie.</translation>
    </message>
    <message>
        <source>The line has no name.</source>
        <translation>Die Leitlinie hat keinen Namen.</translation>
    </message>
    <message>
        <source>The guidance line cannot be used. %1</source>
        <translation>Die Leitlinie ist nicht verwendbar. %1</translation>
    </message>
    <message>
        <source>No job is chosen</source>
        <translation>Kein Auftrag gewählt</translation>
    </message>
    <message>
        <source>No job is chosen: what is covered is not stored.</source>
        <translation>Kein Auftrag gewählt: Die bearbeitete Fläche wird nicht gespeichert.</translation>
    </message>
    <message>
        <source>The coverage of this job cannot be used: what is covered is not stored.</source>
        <translation>Die bearbeitete Fläche dieses Auftrags ist nicht verwendbar: Die neue wird nicht gespeichert.</translation>
    </message>
    <message>
        <source>The coverage cannot be stored, and strips are lost: %1</source>
        <translation>Die bearbeitete Fläche kann nicht gespeichert werden, Streifen gehen verloren: %1</translation>
    </message>
    <message>
        <source>The coverage is kept in memory until it can be stored. %1</source>
        <translation>Die bearbeitete Fläche bleibt im Arbeitsspeicher, bis sie gespeichert werden kann. %1</translation>
    </message>
    <message>
        <source>The job is still being read.</source>
        <translation>Der Auftrag wird noch gelesen.</translation>
    </message>
</context>
<context>
    <name>TileTurner</name>
    <message>
        <source>Tiles</source>
        <translation>Kacheln</translation>
    </message>
</context>
<context>
    <name>Tiles</name>
    <message>
        <source>Rate</source>
        <translation>Menge</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Tempo</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>Fläche</translation>
    </message>
    <message>
        <source>Left</source>
        <comment>area that is left to work</comment>
        <translation>Rest</translation>
    </message>
    <message>
        <source>Work</source>
        <comment>area per hour</comment>
        <translation>Leistung</translation>
    </message>
    <message>
        <source>Flow</source>
        <translation>Durchfl.</translation>
    </message>
    <message>
        <source>Press.</source>
        <comment>pressure</comment>
        <translation>Druck</translation>
    </message>
    <message>
        <source>Temp.</source>
        <comment>temperature</comment>
        <translation>Temp.</translation>
    </message>
    <message>
        <source>Driven</source>
        <translation>Weg</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
</context>
<context>
    <name>TilesPage</name>
    <message>
        <source>Back to the first choice</source>
        <translation>Zurück zur Auswahl ab Werk</translation>
    </message>
    <message>
        <source>%1 further ahead</source>
        <translation>%1 weiter nach vorn</translation>
    </message>
    <message>
        <source>Shown</source>
        <translation>Sichtbar</translation>
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
        <translation>Nichts wurde eingelesen: Einige Einstellungen wurden hier und im Profil geändert.</translation>
    </message>
    <message>
        <source>No stick is plugged in.</source>
        <translation>Es steckt kein Stick.</translation>
    </message>
    <message>
        <source>The stick was removed before everything was on it.</source>
        <translation>Der Stick wurde entfernt, bevor alles darauf war.</translation>
    </message>
    <message>
        <source>The stick could not be written to the end.</source>
        <translation>Der Stick konnte nicht zu Ende beschrieben werden.</translation>
    </message>
    <message>
        <source>The folder %1 cannot be made.</source>
        <translation>Der Ordner %1 kann nicht angelegt werden.</translation>
    </message>
    <message>
        <source>The file %1 cannot be written.</source>
        <translation>Die Datei %1 kann nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>The logs are on the stick (files: %1).</source>
        <translation>Die Protokolle sind auf dem Stick (Dateien: %1).</translation>
    </message>
    <message>
        <source>The profile cannot be used. %1</source>
        <translation>Das Profil ist nicht verwendbar. %1</translation>
    </message>
    <message>
        <source>Nothing is imported. %1</source>
        <translation>Es wurde nichts eingelesen. %1</translation>
    </message>
    <message>
        <source>This display</source>
        <translation>Dieses Terminal</translation>
    </message>
    <message>
        <source>Another display</source>
        <translation>Ein anderes Terminal</translation>
    </message>
    <message>
        <source>The profile is not on the stick. %1</source>
        <translation>Das Profil ist nicht auf dem Stick. %1</translation>
    </message>
    <message>
        <source>The profile is on the stick: %1.</source>
        <translation>Das Profil ist auf dem Stick: %1.</translation>
    </message>
    <message>
        <source>The file for support is not on the stick. %1</source>
        <translation>Die Datei für den Kundendienst ist nicht auf dem Stick. %1</translation>
    </message>
    <message>
        <source>The file for support is on the stick: %1.</source>
        <translation>Die Datei für den Kundendienst ist auf dem Stick: %1.</translation>
    </message>
    <message>
        <source>The profile is imported (settings changed: %1).</source>
        <translation>Das Profil ist eingelesen (geänderte Einstellungen: %1).</translation>
    </message>
    <message>
        <source>It cannot be used.</source>
        <translation>Es kann nicht verwendet werden.</translation>
    </message>
</context>
<context>
    <name>TransferState</name>
    <message>
        <source>Reading</source>
        <translation>Wird gelesen</translation>
    </message>
    <message>
        <source>Writing</source>
        <translation>Wird geschrieben</translation>
    </message>
    <message>
        <source>Leave the stick where it is until this is done.</source>
        <translation>Den Stick stecken lassen, bis der Vorgang beendet ist.</translation>
    </message>
</context>
<context>
    <name>WorkPage</name>
    <message>
        <source>Waiting for a position</source>
        <translation>Warten auf eine Position</translation>
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
        <translation>Arbeitet</translation>
    </message>
    <message>
        <source>Not working</source>
        <translation>Arbeitet nicht</translation>
    </message>
    <message>
        <source>Working. Switch the implement off</source>
        <translation>Arbeitet. Gerät ausschalten</translation>
    </message>
    <message>
        <source>Not working. Switch the implement on</source>
        <translation>Arbeitet nicht. Gerät einschalten</translation>
    </message>
</context>
</TS>
