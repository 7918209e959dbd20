<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
<context>
    <name>About</name>
    <message>
        <source>Windows, files and connections</source>
        <translation>Finestre, file e collegamenti</translation>
    </message>
    <message>
        <source>The file of the settings</source>
        <translation>Il file delle impostazioni</translation>
    </message>
    <message>
        <source>Profiles of settings</source>
        <translation>Profili di impostazioni</translation>
    </message>
    <message>
        <source>Files for support</source>
        <translation>File per l&apos;assistenza</translation>
    </message>
    <message>
        <source>Sunrise and sunset</source>
        <translation>Alba e tramonto</translation>
    </message>
    <message>
        <source>Boundaries and zones</source>
        <translation>Confini e zone</translation>
    </message>
    <message>
        <source>Software</source>
        <translation>Software</translation>
    </message>
    <message>
        <source>The software of this display</source>
        <translation>Il software di questo terminale</translation>
    </message>
    <message>
        <source>Settings, units and logs</source>
        <translation>Impostazioni, unità e registri</translation>
    </message>
</context>
<context>
    <name>Clock</name>
    <message>
        <source>The clock of the machine; nothing has set it.</source>
        <translation>L&apos;orologio dell&apos;apparecchio; non è stato regolato.</translation>
    </message>
    <message>
        <source>The clock was set by hand.</source>
        <translation>L&apos;orologio è stato regolato a mano.</translation>
    </message>
    <message>
        <source>The receiver sets the clock.</source>
        <translation>Il ricevitore regola l&apos;orologio.</translation>
    </message>
    <message>
        <source>There is no such date or time.</source>
        <translation>Questa data o quest&apos;ora non esiste.</translation>
    </message>
    <message>
        <source>The date is more than 68 years from the clock of the machine.</source>
        <translation>La data dista più di 68 anni dall&apos;orologio dell&apos;apparecchio.</translation>
    </message>
    <message>
        <source>The clock could not be stored.</source>
        <translation>Impossibile salvare l&apos;orologio.</translation>
    </message>
</context>
<context>
    <name>ClockEntry</name>
    <message>
        <source>Year</source>
        <translation>Anno</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>Mese</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Giorno</translation>
    </message>
    <message>
        <source>Hour</source>
        <translation>Ora</translation>
    </message>
    <message>
        <source>Minute</source>
        <translation>Minuto</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>Data e ora</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Ora</translation>
    </message>
    <message>
        <source>%1: more</source>
        <translation>%1: più</translation>
    </message>
    <message>
        <source>%1: less</source>
        <translation>%1: meno</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>Conferma</translation>
    </message>
</context>
<context>
    <name>ColorBar</name>
    <message>
        <source>%1: less</source>
        <translation>%1: meno</translation>
    </message>
    <message>
        <source>%1: more</source>
        <translation>%1: più</translation>
    </message>
</context>
<context>
    <name>ColorPage</name>
    <message>
        <source>Former</source>
        <translation>Preced.</translation>
    </message>
    <message>
        <source>Former colour</source>
        <translation>Colore precedente</translation>
    </message>
    <message>
        <source>First value</source>
        <translation>Val. di fabbrica</translation>
    </message>
    <message>
        <source>Digits of the colour</source>
        <translation>Cifre del colore</translation>
    </message>
    <message>
        <source>Hue</source>
        <translation>Tonalità</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Saturazione</translation>
    </message>
    <message>
        <source>Lightness</source>
        <translation>Luminosità</translation>
    </message>
</context>
<context>
    <name>ColorsPage</name>
    <message>
        <source>Day</source>
        <translation>Giorno</translation>
    </message>
    <message>
        <source>Night</source>
        <translation>Notte</translation>
    </message>
</context>
<context>
    <name>Contrasts</name>
    <message>
        <source>on %1: %2</source>
        <translation>su %1: %2</translation>
    </message>
    <message>
        <source>under %1: %2</source>
        <translation>sotto %1: %2</translation>
    </message>
    <message>
        <source>%1, too low: at least %2</source>
        <translation>%1, troppo basso: almeno %2</translation>
    </message>
</context>
<context>
    <name>Difference</name>
    <message>
        <source>Changed on both sides</source>
        <translation>Modificato in entrambi</translation>
    </message>
    <message>
        <source>Here</source>
        <translation>Qui</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>Profilo</translation>
    </message>
</context>
<context>
    <name>Display</name>
    <message>
        <source>Restart</source>
        <translation>Riavvia</translation>
    </message>
    <message>
        <source>The fonts of the display</source>
        <translation>I caratteri del terminale</translation>
    </message>
    <message>
        <source>The keyboard on the screen</source>
        <translation>La tastiera sullo schermo</translation>
    </message>
</context>
<context>
    <name>DoorBand</name>
    <message>
        <source>Work</source>
        <translation>Lavoro</translation>
    </message>
    <message>
        <source>Fields</source>
        <translation>Campi</translation>
    </message>
    <message>
        <source>Receiver</source>
        <translation>Ricevitore</translation>
    </message>
    <message>
        <source>Logs</source>
        <translation>Registri</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Impostaz.</translation>
    </message>
</context>
<context>
    <name>Drives</name>
    <message>
        <source>%1 free of %2</source>
        <translation>%1 liberi di %2</translation>
    </message>
    <message>
        <source>Not known</source>
        <translation>Sconosciuto</translation>
    </message>
    <message>
        <source>No stick</source>
        <translation>USB assente</translation>
    </message>
</context>
<context>
    <name>FieldsPage</name>
    <message>
        <source>Clients</source>
        <translation>Clienti</translation>
    </message>
    <message>
        <source>New client</source>
        <translation>Nuovo cliente</translation>
    </message>
    <message>
        <source>No client yet.</source>
        <translation>Ancora nessun cliente.</translation>
    </message>
    <message>
        <source>Farms</source>
        <translation>Aziende</translation>
    </message>
    <message>
        <source>New farm</source>
        <translation>Nuova azienda</translation>
    </message>
    <message>
        <source>No farm yet.</source>
        <translation>Ancora nessuna azienda.</translation>
    </message>
    <message>
        <source>Fields</source>
        <translation>Campi</translation>
    </message>
    <message>
        <source>New field</source>
        <translation>Nuovo campo</translation>
    </message>
    <message>
        <source>No field yet.</source>
        <translation>Ancora nessun campo.</translation>
    </message>
    <message>
        <source>Jobs</source>
        <translation>Lavori</translation>
    </message>
    <message>
        <source>New job</source>
        <translation>Nuovo lavoro</translation>
    </message>
    <message>
        <source>No job yet.</source>
        <translation>Ancora nessun lavoro.</translation>
    </message>
    <message>
        <source>Remove %1 with everything in it?</source>
        <translation>Eliminare %1 con tutto il contenuto?</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Rename or remove %1</source>
        <translation>Rinomina o elimina: %1</translation>
    </message>
    <message>
        <source>Rename %1</source>
        <translation>Rinomina: %1</translation>
    </message>
    <message>
        <source>Remove everything</source>
        <translation>Elimina tutto</translation>
    </message>
</context>
<context>
    <name>Host</name>
    <message>
        <source>Details for the support: %1</source>
        <translation>Dettagli per l&apos;assistenza: %1</translation>
    </message>
    <message>
        <source>%3 Try: %4</source>
        <translation>%3 Possibile: %4</translation>
    </message>
    <message>
        <source>This name is not possible.</source>
        <translation>Questo nome non è possibile.</translation>
    </message>
    <message>
        <source>The name is empty.</source>
        <translation>Il nome è vuoto.</translation>
    </message>
    <message>
        <source>This name stands for another folder.</source>
        <translation>Questo nome indica un&apos;altra cartella.</translation>
    </message>
    <message>
        <source>The name must not contain %1.</source>
        <translation>Il nome non deve contenere %1.</translation>
    </message>
    <message>
        <source>The name contains a sign that cannot be seen.</source>
        <translation>Il nome contiene un carattere invisibile.</translation>
    </message>
    <message>
        <source>The name contains a sign that is not complete.</source>
        <translation>Il nome contiene un carattere incompleto.</translation>
    </message>
    <message>
        <source>The name must not end in a full stop or a blank.</source>
        <translation>Il nome non deve finire con un punto o uno spazio.</translation>
    </message>
    <message>
        <source>The name must not begin with a blank.</source>
        <translation>Il nome non deve iniziare con uno spazio.</translation>
    </message>
    <message>
        <source>A stick cannot hold a file with this name.</source>
        <translation>Una chiavetta non può contenere un file con questo nome.</translation>
    </message>
    <message>
        <source>The name is too long.</source>
        <translation>Il nome è troppo lungo.</translation>
    </message>
    <message>
        <source>%2 exists already.</source>
        <translation>%2 esiste già.</translation>
    </message>
    <message numerus="yes">
        <source>%2 is active and holds %n file(s).</source>
        <translation>
            <numerusform>%2 è in uso e contiene %n file.</numerusform>
            <numerusform>%2 è in uso e contiene %n file.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%2 holds %n file(s).</source>
        <translation>
            <numerusform>%2 contiene %n file.</numerusform>
            <numerusform>%2 contiene %n file.</numerusform>
        </translation>
    </message>
    <message>
        <source>%2 is active.</source>
        <translation>%2 è in uso.</translation>
    </message>
    <message>
        <source>%2 is no longer there.</source>
        <translation>%2 non esiste più.</translation>
    </message>
    <message>
        <source>A stick cannot tell %2 from %3.</source>
        <translation>Una chiavetta non distingue %2 da %3.</translation>
    </message>
    <message>
        <source>Another program is working on the fields. Try again later.</source>
        <translation>Un altro programma sta lavorando sui campi. Riprovare più tardi.</translation>
    </message>
    <message>
        <source>The selection could not be stored.</source>
        <translation>Impossibile salvare la selezione.</translation>
    </message>
    <message>
        <source>%1 is neither a file nor a folder.</source>
        <translation>%1 non è né un file né una cartella.</translation>
    </message>
    <message>
        <source>The file was edited or is damaged.</source>
        <translation>Il file è stato modificato o è danneggiato.</translation>
    </message>
    <message>
        <source>%1 cannot be read. %2</source>
        <translation>Impossibile leggere %1. %2</translation>
    </message>
    <message>
        <source>The file is of another kind.</source>
        <translation>Il file è di un altro tipo.</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>Il file è vuoto.</translation>
    </message>
    <message>
        <source>The end of the file is missing.</source>
        <translation>Manca la fine del file.</translation>
    </message>
    <message>
        <source>The file is damaged.</source>
        <translation>Il file è danneggiato.</translation>
    </message>
    <message>
        <source>The file is not complete.</source>
        <translation>Il file è incompleto.</translation>
    </message>
    <message>
        <source>The file is from another version of the software.</source>
        <translation>Il file è di un&apos;altra versione del software.</translation>
    </message>
    <message>
        <source>The file has a value that is not possible: %2</source>
        <translation>Il file ha un valore impossibile: %2</translation>
    </message>
    <message>
        <source>The file has a value twice: %2</source>
        <translation>Un&apos;impostazione compare due volte nel file: %2</translation>
    </message>
    <message>
        <source>This address is not possible: %1</source>
        <translation>Questo indirizzo non è possibile: %1</translation>
    </message>
    <message>
        <source>The device is not there.</source>
        <translation>Il dispositivo non c&apos;è.</translation>
    </message>
    <message>
        <source>It is not permitted, or another program uses it.</source>
        <translation>Non è permesso, oppure è usato da un altro programma.</translation>
    </message>
    <message>
        <source>Another program uses it.</source>
        <translation>È usato da un altro programma.</translation>
    </message>
    <message>
        <source>It cannot be read.</source>
        <translation>Lettura impossibile.</translation>
    </message>
    <message>
        <source>It was unplugged.</source>
        <translation>È stato scollegato.</translation>
    </message>
    <message>
        <source>It is not a serial device, or it cannot have this speed.</source>
        <translation>Non è un dispositivo seriale, oppure non ammette questa velocità.</translation>
    </message>
    <message>
        <source>The serial port has a fault (number %1).</source>
        <translation>La porta seriale ha un guasto (numero %1).</translation>
    </message>
    <message>
        <source>%1 is damaged or of another kind.</source>
        <translation>Il file %1 è danneggiato o di un altro tipo.</translation>
    </message>
    <message>
        <source>%1 is from another version of the software.</source>
        <translation>Il file %1 è di un&apos;altra versione del software.</translation>
    </message>
    <message>
        <source>%1 is damaged.</source>
        <translation>Il file %1 è danneggiato.</translation>
    </message>
    <message>
        <source>%1 has other coordinates than WGS84.</source>
        <translation>Il file %1 non ha coordinate WGS84.</translation>
    </message>
    <message>
        <source>%1 is not complete. %2 is missing.</source>
        <translation>Il file %1 è incompleto. Manca %2.</translation>
    </message>
    <message>
        <source>%1 has no areas.</source>
        <translation>Il file %1 non contiene aree.</translation>
    </message>
    <message>
        <source>Another program uses %1.</source>
        <translation>Un altro programma usa %1.</translation>
    </message>
    <message>
        <source>A and B are too close together or too far apart.</source>
        <translation>A e B sono troppo vicini o troppo lontani tra loro.</translation>
    </message>
    <message>
        <source>Another program has locked it.</source>
        <translation>È bloccato da un altro programma.</translation>
    </message>
    <message>
        <source>It is no longer there.</source>
        <translation>Il file non esiste più.</translation>
    </message>
    <message>
        <source>%1 is no longer there.</source>
        <translation>%1 non esiste più.</translation>
    </message>
    <message>
        <source>%1 cannot be written. %2</source>
        <translation>Impossibile scrivere %1. %2</translation>
    </message>
    <message>
        <source>%1 cannot be written.</source>
        <translation>Impossibile scrivere %1.</translation>
    </message>
    <message>
        <source>The file of the settings has a fault (number %1).</source>
        <translation>Il file delle impostazioni ha un difetto (numero %1).</translation>
    </message>
    <message>
        <source>%1 cannot be opened. %2</source>
        <translation>Impossibile aprire %1. %2</translation>
    </message>
    <message>
        <source>%1 cannot be created. %2</source>
        <translation>Impossibile creare %1. %2</translation>
    </message>
    <message>
        <source>%1 cannot be copied. %2</source>
        <translation>Impossibile copiare %1. %2</translation>
    </message>
    <message>
        <source>%1 cannot be renamed. %2</source>
        <translation>Impossibile rinominare %1. %2</translation>
    </message>
    <message>
        <source>%1 cannot be removed. %2</source>
        <translation>Impossibile eliminare %1. %2</translation>
    </message>
    <message>
        <source>The drive is full.</source>
        <translation>Il disco è pieno.</translation>
    </message>
    <message>
        <source>The drive has a fault.</source>
        <translation>Il disco ha un guasto.</translation>
    </message>
    <message>
        <source>The drive can only be read.</source>
        <translation>Il disco è di sola lettura.</translation>
    </message>
    <message>
        <source>It is not permitted.</source>
        <translation>Non è permesso.</translation>
    </message>
    <message>
        <source>It cannot be opened.</source>
        <translation>Apertura impossibile.</translation>
    </message>
    <message>
        <source>It is damaged.</source>
        <translation>Il file è danneggiato.</translation>
    </message>
    <message>
        <source>It is not there.</source>
        <translation>Il percorso non esiste.</translation>
    </message>
    <message>
        <source>It exists already.</source>
        <translation>Il nome esiste già.</translation>
    </message>
    <message>
        <source>It is a folder.</source>
        <translation>È una cartella.</translation>
    </message>
    <message>
        <source>It is not a folder.</source>
        <translation>Non è una cartella.</translation>
    </message>
    <message>
        <source>The folder is not empty.</source>
        <translation>La cartella non è vuota.</translation>
    </message>
    <message>
        <source>The file is too large.</source>
        <translation>Il file è troppo grande.</translation>
    </message>
    <message>
        <source>Too many files are open.</source>
        <translation>Troppi file sono aperti.</translation>
    </message>
    <message>
        <source>There is too little memory.</source>
        <translation>La memoria è insufficiente.</translation>
    </message>
    <message>
        <source>It is not possible there.</source>
        <translation>In quella posizione non è possibile.</translation>
    </message>
    <message>
        <source>The device refuses the connection.</source>
        <translation>Il dispositivo rifiuta la connessione.</translation>
    </message>
    <message>
        <source>The device has closed the connection.</source>
        <translation>Il dispositivo ha chiuso la connessione.</translation>
    </message>
    <message>
        <source>There is no device with this address.</source>
        <translation>Nessun dispositivo ha questo indirizzo.</translation>
    </message>
    <message>
        <source>The network cannot be reached.</source>
        <translation>La rete non è raggiungibile.</translation>
    </message>
    <message>
        <source>The device does not answer.</source>
        <translation>Il dispositivo non risponde.</translation>
    </message>
    <message>
        <source>It is a link to another place.</source>
        <translation>È un collegamento a un&apos;altra posizione.</translation>
    </message>
    <message>
        <source>There are too many links to it.</source>
        <translation>Ci sono troppi collegamenti a questo file.</translation>
    </message>
</context>
<context>
    <name>ItemActions</name>
    <message>
        <source>Rename</source>
        <translation>Rinomina</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Elimina</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
</context>
<context>
    <name>ItemPage</name>
    <message>
        <source>New</source>
        <translation>Nuovo</translation>
    </message>
</context>
<context>
    <name>Keypad</name>
    <message>
        <source>%1 to %2 %3</source>
        <translation>Da %1 a %2 %3</translation>
    </message>
    <message>
        <source>At least %1 %2</source>
        <translation>Almeno %1 %2</translation>
    </message>
    <message>
        <source>At most %1 %2</source>
        <translation>Al massimo %1 %2</translation>
    </message>
    <message>
        <source>This is not a number yet.</source>
        <translation>Non è ancora un numero.</translation>
    </message>
    <message>
        <source>Too large.
%1</source>
        <translation>Troppo grande.
%1</translation>
    </message>
    <message>
        <source>Too small.
%1</source>
        <translation>Troppo piccolo.
%1</translation>
    </message>
    <message>
        <source>now %1</source>
        <translation>ora %1</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>Conferma</translation>
    </message>
    <message>
        <source>Decimal sign</source>
        <translation>Separatore decimale</translation>
    </message>
    <message>
        <source>Plus or minus</source>
        <translation>Più o meno</translation>
    </message>
    <message>
        <source>Remove the last sign</source>
        <translation>Cancella l&apos;ultimo carattere</translation>
    </message>
    <message>
        <source>C</source>
        <comment>key that clears the entry</comment>
        <translation>C</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Cancella</translation>
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
        <translation>Fissare qui A, il primo estremo della linea</translation>
    </message>
    <message>
        <source>B</source>
        <comment>the other end of the guidance line</comment>
        <translation>B</translation>
    </message>
    <message>
        <source>Set B, the other end of the line, here</source>
        <translation>Fissare qui B, l&apos;altro estremo della linea</translation>
    </message>
    <message>
        <source>Set a flag here</source>
        <translation>Mettere qui una bandierina</translation>
    </message>
</context>
<context>
    <name>LineChoice</name>
    <message>
        <source>New</source>
        <translation>Nuova</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Ferma</translation>
    </message>
</context>
<context>
    <name>LinePanel</name>
    <message>
        <source>%1 to the left</source>
        <translation>%1 a sinistra</translation>
    </message>
    <message>
        <source>%1 to the right</source>
        <translation>%1 a destra</translation>
    </message>
</context>
<context>
    <name>LockLayer</name>
    <message>
        <source>The screen is locked. Hold the button to unlock it.</source>
        <translation>Lo schermo è bloccato. Tenere premuto il pulsante per sbloccarlo.</translation>
    </message>
    <message>
        <source>Unlock</source>
        <translation>Sblocca</translation>
    </message>
</context>
<context>
    <name>LogsPage</name>
    <message>
        <source>Logs</source>
        <translation>Registri</translation>
    </message>
    <message>
        <source>Events</source>
        <translation>Eventi</translation>
    </message>
    <message>
        <source>Receiver</source>
        <translation>Ricevitore</translation>
    </message>
    <message>
        <source>Go on</source>
        <translation>Continua</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausa</translation>
    </message>
    <message>
        <source>No line yet.</source>
        <translation>Ancora nessuna riga.</translation>
    </message>
</context>
<context>
    <name>MachinePage</name>
    <message>
        <source>Implement width</source>
        <translation>Larghezza attrezzo</translation>
    </message>
    <message>
        <source>Decides the guidance lines beside each other, and the area done</source>
        <translation>Determina le linee di guida vicine e l&apos;area lavorata</translation>
    </message>
    <message>
        <source>Implement behind the antenna</source>
        <translation>Attrezzo dietro l&apos;antenna</translation>
    </message>
    <message>
        <source>How far the ground is covered behind the vehicle&apos;s place</source>
        <translation>A che distanza dietro la posizione del veicolo viene coperto il terreno</translation>
    </message>
</context>
<context>
    <name>Main</name>
    <message>
        <source>Cab display</source>
        <translation>Terminale cabina</translation>
    </message>
</context>
<context>
    <name>MapButtons</name>
    <message>
        <source>Zoom in</source>
        <translation>Ingrandisci</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Riduci</translation>
    </message>
    <message>
        <source>The heading is up. Turn north up</source>
        <translation>Direzione di marcia in alto. Mettere il nord in alto</translation>
    </message>
    <message>
        <source>North is up. Turn the heading up</source>
        <translation>Nord in alto. Mettere la direzione di marcia in alto</translation>
    </message>
    <message>
        <source>Centre the vehicle</source>
        <translation>Centra il veicolo</translation>
    </message>
</context>
<context>
    <name>NameEntry</name>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>Conferma</translation>
    </message>
</context>
<context>
    <name>PageTurner</name>
    <message>
        <source>Rows above</source>
        <translation>Righe sopra</translation>
    </message>
    <message>
        <source>Rows below</source>
        <translation>Righe sotto</translation>
    </message>
</context>
<context>
    <name>ParameterRow</name>
    <message>
        <source>%1: back to the first value</source>
        <translation>%1: torna al valore di fabbrica</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Apri</translation>
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
        <translation>un percorso assoluto che finisce con &quot;/&quot; e non è &quot;/&quot;</translation>
    </message>
    <message>
        <source>an absolute path</source>
        <translation>un percorso assoluto</translation>
    </message>
    <message>
        <source>a UUID in small letters, such as 6ba7b810-9dad-41d1-80b4-00c04fd430c8</source>
        <translation>un UUID in lettere minuscole, come 6ba7b810-9dad-41d1-80b4-00c04fd430c8</translation>
    </message>
    <message>
        <source>simulator, tcp://HOST:PORT, serial:///dev/NAME?baud=N or an absolute path</source>
        <translation>simulator, tcp://HOST:PORT, serial:///dev/NAME?baud=N o un percorso assoluto</translation>
    </message>
    <message>
        <source>true or false</source>
        <translation>true o false</translation>
    </message>
    <message>
        <source>a time in UTC, such as 2026-03-05T13:05:09Z</source>
        <translation>un&apos;ora in UTC, come 2026-03-05T13:05:09Z</translation>
    </message>
    <message>
        <source>a colour: #rrggbb, #aarrggbb or a name such as navy</source>
        <translation>un colore: #rrggbb, #aarrggbb o un nome come navy</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>da %1 a %2</translation>
    </message>
    <message>
        <source>Not a whole number.</source>
        <translation>Non è un numero intero.</translation>
    </message>
    <message>
        <source>Below the least value.</source>
        <translation>Sotto il valore minimo.</translation>
    </message>
    <message>
        <source>Above the greatest value.</source>
        <translation>Sopra il valore massimo.</translation>
    </message>
    <message>
        <source>This cannot be the name of a file. Try: %1</source>
        <translation>Nome di file non ammesso. Possibile: %1</translation>
    </message>
    <message>
        <source>Not accepted. Expected: %1.</source>
        <translation>Non accettato. Previsto: %1.</translation>
    </message>
    <message>
        <source>a name without %1</source>
        <translation>un nome senza %1</translation>
    </message>
    <message>
        <source>a whole number</source>
        <translation>un numero intero</translation>
    </message>
    <message>
        <source>At least %1</source>
        <translation>Almeno %1</translation>
    </message>
</context>
<context>
    <name>Parameters</name>
    <message>
        <source>the operator has chosen the offset from UTC; GPS time keeps it instead of computing it</source>
        <translation>l&apos;operatore ha scelto la differenza da UTC; l&apos;ora GPS la mantiene invece di calcolarla</translation>
    </message>
    <message>
        <source>metric units; otherwise US or English units</source>
        <translation>unità metriche; altrimenti unità US o imperiali</translation>
    </message>
    <message>
        <source>US measures when units are not metric; otherwise English measures</source>
        <translation>misure US se le unità non sono metriche; altrimenti misure imperiali</translation>
    </message>
    <message>
        <source>positions in degrees, minutes and seconds; otherwise in decimal degrees</source>
        <translation>posizioni in gradi, minuti e secondi; altrimenti in gradi decimali</translation>
    </message>
    <message>
        <source>24-hour clock; otherwise 12 hours with am and pm</source>
        <translation>orologio a 24 ore; altrimenti a 12 ore con am e pm</translation>
    </message>
    <message>
        <source>dates with the month before the day</source>
        <translation>date con il mese prima del giorno</translation>
    </message>
    <message>
        <source>colours for day; otherwise for night</source>
        <translation>colori per il giorno; altrimenti per la notte</translation>
    </message>
    <message>
        <source>the map turns with the vehicle; otherwise north is up</source>
        <translation>la mappa gira con il veicolo; altrimenti il nord è in alto</translation>
    </message>
    <message>
        <source>unit of pressures</source>
        <translation>unità delle pressioni</translation>
    </message>
    <message>
        <source>unit of areas, and of rates per area</source>
        <translation>unità delle aree e delle dosi per area</translation>
    </message>
    <message>
        <source>unit of short distances: widths, offsets</source>
        <translation>unità delle distanze brevi: larghezze, scostamenti</translation>
    </message>
    <message>
        <source>unit of granular volumes</source>
        <translation>unità dei volumi di granulari</translation>
    </message>
    <message>
        <source>unit of granular densities</source>
        <translation>unità delle densità di granulari</translation>
    </message>
    <message>
        <source>unit of liquid volumes, flows and rates</source>
        <translation>unità di volumi, portate e dosi di liquido</translation>
    </message>
    <message>
        <source>language of the display&apos;s texts; a change needs a restart</source>
        <translation>lingua dei testi del terminale; un cambio richiede un riavvio</translation>
    </message>
    <message>
        <source>decimal point or comma; a change needs a restart</source>
        <translation>punto o virgola decimale; un cambio richiede un riavvio</translation>
    </message>
    <message>
        <source>when the colours switch between day and night: only by hand, at sunrise and sunset, or with the sun 6 degrees below the horizon</source>
        <translation>quando i colori cambiano tra giorno e notte: solo a mano, all&apos;alba e al tramonto, o con il sole 6 gradi sotto l&apos;orizzonte</translation>
    </message>
    <message>
        <source>what set the display&apos;s clock</source>
        <translation>che cosa ha regolato l&apos;orologio del terminale</translation>
    </message>
    <message>
        <source>local time less UTC, whole hours</source>
        <translation>ora locale meno UTC, ore intere</translation>
    </message>
    <message>
        <source>local time less UTC, minutes beyond the hours, with the sign of the hours</source>
        <translation>ora locale meno UTC, minuti oltre le ore, con il segno delle ore</translation>
    </message>
    <message>
        <source>brightness of the lightbar at night</source>
        <translation>luminosità della barra luminosa di notte</translation>
    </message>
    <message>
        <source>brightness of the screen at night</source>
        <translation>luminosità dello schermo di notte</translation>
    </message>
    <message>
        <source>brightness of the button lights at night</source>
        <translation>luminosità delle luci dei pulsanti di notte</translation>
    </message>
    <message>
        <source>4: implements are kept in the folder of their vehicle; other numbers: in their own folder</source>
        <translation>4: gli attrezzi stanno nella cartella del loro veicolo; altri numeri: in una cartella propria</translation>
    </message>
    <message>
        <source>number of the next file of the NMEA log</source>
        <translation>numero del prossimo file del registro NMEA</translation>
    </message>
    <message>
        <source>number of the next file of the user log</source>
        <translation>numero del prossimo file del registro utente</translation>
    </message>
    <message>
        <source>the display&apos;s clock less UTC</source>
        <translation>l&apos;orologio del terminale meno UTC</translation>
    </message>
    <message>
        <source>folder of the internal drive; by default in the data folder</source>
        <translation>cartella del disco interno; se non indicata, nella cartella dei dati</translation>
    </message>
    <message>
        <source>mount point of the removable drive; by default in the data folder</source>
        <translation>punto di montaggio del disco rimovibile; se non indicato, nella cartella dei dati</translation>
    </message>
    <message>
        <source>the identity of the terminal, which its profiles carry</source>
        <translation>l&apos;identificativo del terminale, riportato nei suoi profili</translation>
    </message>
    <message>
        <source>where the sentences of the receiver come from</source>
        <translation>da dove vengono le stringhe del ricevitore</translation>
    </message>
    <message>
        <source>the figures beside the map, in this order</source>
        <translation>i valori accanto alla mappa, in quest&apos;ordine</translation>
    </message>
    <message>
        <source>the newest time of a receiver, as of the last day on which one was seen</source>
        <translation>l&apos;ora più recente di un ricevitore, dell&apos;ultimo giorno in cui ce n&apos;era uno</translation>
    </message>
    <message>
        <source>when the sun switched the colours last</source>
        <translation>quando il sole ha cambiato i colori l&apos;ultima volta</translation>
    </message>
    <message>
        <source>the active job</source>
        <translation>il lavoro attivo</translation>
    </message>
    <message>
        <source>the active boundary</source>
        <translation>il confine attivo</translation>
    </message>
    <message>
        <source>the active straight guidance line</source>
        <translation>la linea di guida diritta attiva</translation>
    </message>
    <message>
        <source>the active pivot</source>
        <translation>il pivot attivo</translation>
    </message>
    <message>
        <source>the active guidance curve</source>
        <translation>la curva di guida attiva</translation>
    </message>
    <message>
        <source>the active shape file of optimal lines</source>
        <translation>il file shape attivo delle linee ottimali</translation>
    </message>
    <message>
        <source>the active shape file of project lines</source>
        <translation>il file shape attivo delle linee progetto</translation>
    </message>
    <message>
        <source>the active shape file of zones</source>
        <translation>il file shape attivo delle zone</translation>
    </message>
    <message>
        <source>the active steering profile</source>
        <translation>il profilo di sterzo attivo</translation>
    </message>
    <message>
        <source>the active implement</source>
        <translation>l&apos;attrezzo attivo</translation>
    </message>
    <message>
        <source>the active vehicle</source>
        <translation>il veicolo attivo</translation>
    </message>
    <message>
        <source>the active sprayer</source>
        <translation>l&apos;irroratrice attiva</translation>
    </message>
    <message>
        <source>the active boom leveller</source>
        <translation>il livellatore della barra attivo</translation>
    </message>
    <message>
        <source>the active client</source>
        <translation>il cliente attivo</translation>
    </message>
    <message>
        <source>the active farm</source>
        <translation>l&apos;azienda attiva</translation>
    </message>
    <message>
        <source>the active field</source>
        <translation>il campo attivo</translation>
    </message>
    <message>
        <source>Measures</source>
        <translation>Sistema di misura</translation>
    </message>
    <message>
        <source>Gallons and bushels</source>
        <translation>Galloni e bushel</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>Area</translation>
    </message>
    <message>
        <source>Pressure</source>
        <translation>Pressione</translation>
    </message>
    <message>
        <source>Short distances</source>
        <translation>Distanze brevi</translation>
    </message>
    <message>
        <source>Liquid</source>
        <translation>Liquido</translation>
    </message>
    <message>
        <source>Granular volume</source>
        <translation>Volume di granulari</translation>
    </message>
    <message>
        <source>Granular density</source>
        <translation>Densità di granulari</translation>
    </message>
    <message>
        <source>Positions</source>
        <translation>Posizioni</translation>
    </message>
    <message>
        <source>Rate per travel</source>
        <translation>Dose per percorso</translation>
    </message>
    <message>
        <source>Basis of rates</source>
        <translation>Base delle dosi</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Lingua</translation>
    </message>
    <message>
        <source>Decimal sign</source>
        <translation>Separatore decimale</translation>
    </message>
    <message>
        <source>Time of day</source>
        <translation>Formato ora</translation>
    </message>
    <message>
        <source>Dates</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>Time zone set by hand</source>
        <translation>Fuso orario manuale</translation>
    </message>
    <message>
        <source>Time zone, hours</source>
        <translation>Fuso orario, ore</translation>
    </message>
    <message>
        <source>Time zone, minutes</source>
        <translation>Fuso orario, minuti</translation>
    </message>
    <message>
        <source>Clock less UTC</source>
        <translation>Orologio meno UTC</translation>
    </message>
    <message>
        <source>Source of the time</source>
        <translation>Origine dell&apos;ora</translation>
    </message>
    <message>
        <source>Source of the time since</source>
        <translation>Origine dell&apos;ora da</translation>
    </message>
    <message>
        <source>Newest receiver time</source>
        <translation>Ultima ora ricevitore</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>Colori</translation>
    </message>
    <message>
        <source>Day and night</source>
        <translation>Giorno e notte</translation>
    </message>
    <message>
        <source>Map direction</source>
        <translation>Orientamento mappa</translation>
    </message>
    <message>
        <source>Tiles</source>
        <translation>Riquadri</translation>
    </message>
    <message>
        <source>Light bar at night</source>
        <translation>Barra luminosa di notte</translation>
    </message>
    <message>
        <source>Screen at night</source>
        <translation>Schermo di notte</translation>
    </message>
    <message>
        <source>Button lights at night</source>
        <translation>Luce pulsanti di notte</translation>
    </message>
    <message>
        <source>Switched by the sun</source>
        <translation>Cambio secondo il sole</translation>
    </message>
    <message>
        <source>Client</source>
        <translation>Cliente</translation>
    </message>
    <message>
        <source>Farm</source>
        <translation>Azienda</translation>
    </message>
    <message>
        <source>Field</source>
        <translation>Campo</translation>
    </message>
    <message>
        <source>Job</source>
        <translation>Lavoro</translation>
    </message>
    <message>
        <source>Vehicle</source>
        <translation>Veicolo</translation>
    </message>
    <message>
        <source>Implement</source>
        <translation>Attrezzo</translation>
    </message>
    <message>
        <source>Sprayer</source>
        <translation>Irroratrice</translation>
    </message>
    <message>
        <source>Boom leveller</source>
        <translation>Livellatore barra</translation>
    </message>
    <message>
        <source>Steering profile</source>
        <translation>Profilo di sterzo</translation>
    </message>
    <message>
        <source>Boundary</source>
        <translation>Confine</translation>
    </message>
    <message>
        <source>A-B line</source>
        <translation>Linea A-B</translation>
    </message>
    <message>
        <source>Pivot</source>
        <translation>Pivot</translation>
    </message>
    <message>
        <source>Curve</source>
        <translation>Curva</translation>
    </message>
    <message>
        <source>Optimal lines</source>
        <translation>Linee ottimali</translation>
    </message>
    <message>
        <source>Project lines</source>
        <translation>Linee progetto</translation>
    </message>
    <message>
        <source>Zones</source>
        <translation>Zone</translation>
    </message>
    <message>
        <source>Receiver address</source>
        <translation>Indirizzo ricevitore</translation>
    </message>
    <message>
        <source>Internal drive</source>
        <translation>Disco interno</translation>
    </message>
    <message>
        <source>Stick</source>
        <translation>Chiavetta</translation>
    </message>
    <message>
        <source>Implement folder</source>
        <translation>Cartella attrezzo</translation>
    </message>
    <message>
        <source>Next NMEA log</source>
        <translation>Prossimo registro NMEA</translation>
    </message>
    <message>
        <source>Next user log</source>
        <translation>Prossimo registro utente</translation>
    </message>
    <message>
        <source>Identity</source>
        <translation>Identificativo</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Testo</translation>
    </message>
    <message>
        <source>Colour of texts</source>
        <translation>Colore dei testi</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titolo</translation>
    </message>
    <message>
        <source>Colour of titles</source>
        <translation>Colore dei titoli</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Sfondo</translation>
    </message>
    <message>
        <source>Colour of the background</source>
        <translation>Colore dello sfondo</translation>
    </message>
    <message>
        <source>Button</source>
        <translation>Pulsante</translation>
    </message>
    <message>
        <source>Colour of buttons</source>
        <translation>Colore dei pulsanti</translation>
    </message>
    <message>
        <source>Button text</source>
        <translation>Testo pulsante</translation>
    </message>
    <message>
        <source>Colour of texts on buttons</source>
        <translation>Colore dei testi sui pulsanti</translation>
    </message>
    <message>
        <source>Map</source>
        <translation>Mappa</translation>
    </message>
    <message>
        <source>Colour of the map&apos;s ground</source>
        <translation>Colore del fondo della mappa</translation>
    </message>
    <message>
        <source>Grid</source>
        <translation>Griglia</translation>
    </message>
    <message>
        <source>Colour of the map&apos;s grid</source>
        <translation>Colore della griglia della mappa</translation>
    </message>
    <message>
        <source>Coverage</source>
        <translation>Copertura</translation>
    </message>
    <message>
        <source>Colour of covered ground</source>
        <translation>Colore del terreno coperto</translation>
    </message>
    <message>
        <source>Vehicle on the map</source>
        <translation>Veicolo sulla mappa</translation>
    </message>
    <message>
        <source>Colour of the vehicle</source>
        <translation>Colore del veicolo</translation>
    </message>
    <message>
        <source>Guidance line</source>
        <translation>Linea di guida</translation>
    </message>
    <message>
        <source>Colour of the guidance line</source>
        <translation>Colore della linea di guida</translation>
    </message>
    <message>
        <source>Cross hairs</source>
        <translation>Mirino</translation>
    </message>
    <message>
        <source>Colour of the cross hairs</source>
        <translation>Colore del mirino</translation>
    </message>
    <message>
        <source>Outer boundary</source>
        <translation>Confine esterno</translation>
    </message>
    <message>
        <source>Colour of the outer boundary of the field</source>
        <translation>Colore del confine esterno del campo</translation>
    </message>
    <message>
        <source>Inner boundary</source>
        <translation>Confine interno</translation>
    </message>
    <message>
        <source>Colour of boundaries within the field</source>
        <translation>Colore dei confini dentro il campo</translation>
    </message>
    <message>
        <source>Other boundaries</source>
        <translation>Altri confini</translation>
    </message>
    <message>
        <source>Colour of boundaries that are not active</source>
        <translation>Colore dei confini non attivi</translation>
    </message>
    <message>
        <source>Exclusion zone</source>
        <translation>Zona di esclusione</translation>
    </message>
    <message>
        <source>Colour of zones to keep out of</source>
        <translation>Colore delle zone da evitare</translation>
    </message>
    <message>
        <source>Background picture</source>
        <translation>Immagine di sfondo</translation>
    </message>
    <message>
        <source>Number of the background picture</source>
        <translation>Numero dell&apos;immagine di sfondo</translation>
    </message>
    <message>
        <source>what the sprayer&apos;s rates are related to</source>
        <translation>a che cosa si riferiscono le dosi dell&apos;irroratrice</translation>
    </message>
    <message>
        <source>liquid rates per 100 m or 100 yd of travel, while travel is their basis</source>
        <translation>dosi di liquido per 100 m o 100 yd di percorso, finché il percorso è la loro base</translation>
    </message>
    <message>
        <source>since when the clock has its time from there</source>
        <translation>da quando l&apos;orologio prende l&apos;ora da quell&apos;origine</translation>
    </message>
    <message>
        <source>Metric</source>
        <translation>Metrico</translation>
    </message>
    <message>
        <source>US or English</source>
        <translation>US o imperiale</translation>
    </message>
    <message>
        <source>US</source>
        <translation>US</translation>
    </message>
    <message>
        <source>English</source>
        <translation>Imperiali</translation>
    </message>
    <message>
        <source>Deg., min., s</source>
        <translation>Gradi, min, s</translation>
    </message>
    <message>
        <source>Degrees</source>
        <translation>Gradi</translation>
    </message>
    <message>
        <source>24 hours</source>
        <translation>24 ore</translation>
    </message>
    <message>
        <source>am, pm</source>
        <translation>am, pm</translation>
    </message>
    <message>
        <source>Month first</source>
        <translation>Prima il mese</translation>
    </message>
    <message>
        <source>Day first</source>
        <translation>Prima il giorno</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Giorno</translation>
    </message>
    <message>
        <source>Night</source>
        <translation>Notte</translation>
    </message>
    <message>
        <source>Heading up</source>
        <translation>Direzione in alto</translation>
    </message>
    <message>
        <source>North up</source>
        <translation>Nord in alto</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Acceso</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Spento</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Sì</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
    </message>
    <message>
        <source>Travel</source>
        <translation>Percorso</translation>
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
        <translation>Ettaro</translation>
    </message>
    <message>
        <source>Acre</source>
        <translation>Acro</translation>
    </message>
    <message>
        <source>m, mm</source>
        <translation>m, mm</translation>
    </message>
    <message>
        <source>Inch</source>
        <translation>Pollice</translation>
    </message>
    <message>
        <source>Foot</source>
        <translation>Piede</translation>
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
        <translation>Punto</translation>
    </message>
    <message>
        <source>Comma</source>
        <translation>Virgola</translation>
    </message>
    <message>
        <source>By hand</source>
        <translation>A mano</translation>
    </message>
    <message>
        <source>Sunset</source>
        <translation>Tramonto</translation>
    </message>
    <message>
        <source>Twilight</source>
        <translation>Crepuscolo</translation>
    </message>
    <message>
        <source>Not set</source>
        <translation>Non impostato</translation>
    </message>
    <message>
        <source>Operator</source>
        <translation>Operatore</translation>
    </message>
    <message>
        <source>Receiver</source>
        <translation>Ricevitore</translation>
    </message>
    <message>
        <source>Rate</source>
        <translation>Dose</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Velocità</translation>
    </message>
    <message>
        <source>Area done</source>
        <translation>Area lavorata</translation>
    </message>
    <message>
        <source>Area left</source>
        <translation>Area restante</translation>
    </message>
    <message>
        <source>Productivity</source>
        <translation>Produttività</translation>
    </message>
    <message>
        <source>Flow</source>
        <translation>Portata</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperatura</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>Distanza</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Posizione</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Ora</translation>
    </message>
    <message>
        <source>Units</source>
        <translation>Unità</translation>
    </message>
    <message>
        <source>Rates</source>
        <translation>Dosi</translation>
    </message>
    <message>
        <source>Region</source>
        <translation>Regione</translation>
    </message>
    <message>
        <source>Clock</source>
        <translation>Orologio</translation>
    </message>
    <message>
        <source>Colours of the schemes</source>
        <translation>Colori dei temi</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Schermo</translation>
    </message>
    <message>
        <source>Selections</source>
        <translation>Selezione</translation>
    </message>
    <message>
        <source>Storage</source>
        <translation>Archiviazione</translation>
    </message>
    <message>
        <source>Logs</source>
        <translation>Registri</translation>
    </message>
    <message>
        <source>Terminal</source>
        <translation>Terminale</translation>
    </message>
    <message>
        <source>%1, by day</source>
        <translation>%1, di giorno</translation>
    </message>
    <message>
        <source>%1, by night</source>
        <translation>%1, di notte</translation>
    </message>
</context>
<context>
    <name>Problems</name>
    <message>
        <source>The logs lose lines: their drive is full or cannot be written.</source>
        <translation>I registri perdono righe: il loro disco è pieno o non scrivibile.</translation>
    </message>
    <message>
        <source>Recording is off, because there is too little room.</source>
        <translation>La registrazione è ferma per mancanza di spazio.</translation>
    </message>
    <message>
        <source>Changes of settings are not stored yet. %1</source>
        <translation>Le modifiche alle impostazioni non sono ancora salvate. %1</translation>
    </message>
    <message>
        <source>The drive of the terminal is nearly full. Free: %1</source>
        <translation>Il disco del terminale è quasi pieno. Liberi: %1</translation>
    </message>
</context>
<context>
    <name>ProfilePage</name>
    <message>
        <source>Import</source>
        <translation>Importa</translation>
    </message>
    <message>
        <source>The display has these settings already.</source>
        <translation>Il terminale ha già queste impostazioni.</translation>
    </message>
    <message>
        <source>Changed here and in the profile</source>
        <translation>Modificato qui e nel profilo</translation>
    </message>
    <message>
        <source>Which value the settings below shall have</source>
        <translation>Quale valore devono avere le impostazioni seguenti</translation>
    </message>
    <message>
        <source>Ours</source>
        <translation>Di qui</translation>
    </message>
    <message>
        <source>Theirs</source>
        <translation>Profilo</translation>
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
        <translation>Esporta</translation>
    </message>
    <message>
        <source>There is no profile on the stick.</source>
        <translation>Sulla chiavetta non c&apos;è nessun profilo.</translation>
    </message>
    <message>
        <source>No stick is plugged in.</source>
        <translation>Nessuna chiavetta inserita.</translation>
    </message>
    <message>
        <source>Name of the profile</source>
        <translation>Nome del profilo</translation>
    </message>
</context>
<context>
    <name>Quantities</name>
    <message>
        <source>Area</source>
        <translation>Area</translation>
    </message>
    <message>
        <source>Productivity</source>
        <translation>Produttività</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Velocità</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>Distanza</translation>
    </message>
    <message>
        <source>Small distance</source>
        <translation>Distanza piccola</translation>
    </message>
    <message>
        <source>Travelled distance</source>
        <translation>Distanza percorsa</translation>
    </message>
    <message>
        <source>Altitude</source>
        <translation>Altitudine</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperatura</translation>
    </message>
    <message>
        <source>Pressure</source>
        <translation>Pressione</translation>
    </message>
    <message>
        <source>Rate</source>
        <translation>Dose</translation>
    </message>
    <message>
        <source>Requested rate</source>
        <translation>Dose richiesta</translation>
    </message>
    <message>
        <source>Rate and error</source>
        <translation>Dose e scarto</translation>
    </message>
    <message>
        <source>Small rate</source>
        <translation>Dose piccola</translation>
    </message>
    <message>
        <source>Flow</source>
        <translation>Portata</translation>
    </message>
    <message>
        <source>Small flow</source>
        <translation>Portata piccola</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volume</translation>
    </message>
    <message>
        <source>Small volume</source>
        <translation>Volume piccolo</translation>
    </message>
    <message>
        <source>Granular volume</source>
        <translation>Volume di granulari</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>Peso</translation>
    </message>
    <message>
        <source>Weight per area</source>
        <translation>Peso per area</translation>
    </message>
    <message>
        <source>Weight per area and error</source>
        <translation>Peso per area e scarto</translation>
    </message>
    <message>
        <source>Discharge</source>
        <translation>Portata massica</translation>
    </message>
    <message>
        <source>Nitrogen</source>
        <translation>Azoto</translation>
    </message>
    <message>
        <source>Nitrogen per area</source>
        <translation>Azoto per area</translation>
    </message>
    <message>
        <source>Seeds per area</source>
        <translation>Semi per area</translation>
    </message>
    <message>
        <source>Density</source>
        <translation>Densità</translation>
    </message>
    <message>
        <source>Granular density</source>
        <translation>Densità di granulari</translation>
    </message>
    <message>
        <source>Volume per revolution</source>
        <translation>Volume per giro</translation>
    </message>
    <message>
        <source>Weight per revolution</source>
        <translation>Peso per giro</translation>
    </message>
    <message>
        <source>Flow meter</source>
        <translation>Flussometro</translation>
    </message>
    <message>
        <source>Wheel sensor</source>
        <translation>Sensore ruota</translation>
    </message>
    <message>
        <source>Speed sensor</source>
        <translation>Sensore velocità</translation>
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
        <translation>Durata</translation>
    </message>
    <message>
        <source>Percent</source>
        <translation>Percentuale</translation>
    </message>
</context>
<context>
    <name>Question</name>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
</context>
<context>
    <name>RateTile</name>
    <message>
        <source>set %1</source>
        <comment>the rate that is set</comment>
        <translation>richiesta %1</translation>
    </message>
</context>
<context>
    <name>Receiver</name>
    <message>
        <source>Off</source>
        <translation>Spento</translation>
    </message>
    <message>
        <source>Connecting</source>
        <translation>Connessione</translation>
    </message>
    <message>
        <source>Receiving</source>
        <translation>Ricezione</translation>
    </message>
    <message>
        <source>Silent</source>
        <translation>Nessun dato</translation>
    </message>
    <message>
        <source>Lost</source>
        <translation>Perso</translation>
    </message>
    <message>
        <source>Ended</source>
        <translation>Terminato</translation>
    </message>
    <message>
        <source>No fix</source>
        <translation>Senza posizione</translation>
    </message>
    <message>
        <source>RTK float</source>
        <translation>RTK float</translation>
    </message>
    <message>
        <source>Estimated</source>
        <translation>Stima</translation>
    </message>
    <message>
        <source>By hand</source>
        <translation>A mano</translation>
    </message>
    <message>
        <source>Simulated</source>
        <translation>Simulazione</translation>
    </message>
    <message>
        <source>The receiver sends nothing.</source>
        <translation>Il ricevitore non invia nulla.</translation>
    </message>
    <message>
        <source>The receiver is lost and is being looked for. %1</source>
        <translation>Ricevitore perso, ricerca in corso. %1</translation>
    </message>
    <message>
        <source>The receiver cannot be read. %1</source>
        <translation>Impossibile leggere il ricevitore. %1</translation>
    </message>
    <message>
        <source>The simulated field is done.</source>
        <translation>Il campo simulato è finito.</translation>
    </message>
    <message>
        <source>The recording of the receiver is over.</source>
        <translation>La registrazione del ricevitore è finita.</translation>
    </message>
</context>
<context>
    <name>ReceiverPage</name>
    <message>
        <source>Receiver</source>
        <translation>Ricevitore</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Ferma</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Avvia</translation>
    </message>
    <message>
        <source>Simulator</source>
        <translation>Simulatore</translation>
    </message>
    <message>
        <source>File</source>
        <translation>File</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Rete</translation>
    </message>
    <message>
        <source>Serial</source>
        <translation>Seriale</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Indirizzo</translation>
    </message>
    <message>
        <source>Fix</source>
        <translation>Tipo posizione</translation>
    </message>
    <message>
        <source>Age</source>
        <translation>Età</translation>
    </message>
    <message>
        <source>Satellites</source>
        <translation>Satelliti</translation>
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
        <translation>Righe</translation>
    </message>
    <message>
        <source>Sentences</source>
        <translation>Stringhe</translation>
    </message>
    <message>
        <source>Bad checksums</source>
        <translation>Checksum errati</translation>
    </message>
    <message>
        <source>Damaged lines</source>
        <translation>Righe danneggiate</translation>
    </message>
    <message>
        <source>Address of the receiver</source>
        <translation>Indirizzo del ricevitore</translation>
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
        <translation>Fuso orario</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>Data e ora</translation>
    </message>
    <message>
        <source>Set by hand</source>
        <translation>Regola a mano</translation>
    </message>
</context>
<context>
    <name>SearchPage</name>
    <message>
        <source>Search</source>
        <translation>Cerca</translation>
    </message>
    <message>
        <source>Words of a setting</source>
        <translation>Parole di un&apos;impostazione</translation>
    </message>
    <message>
        <source>No setting has these words.</source>
        <translation>Nessuna impostazione con queste parole.</translation>
    </message>
</context>
<context>
    <name>SettingsPage</name>
    <message>
        <source>Units</source>
        <translation>Unità</translation>
    </message>
    <message>
        <source>Region</source>
        <translation>Regione</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>Colori</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Schermo</translation>
    </message>
    <message>
        <source>Machine</source>
        <translation>Macchina</translation>
    </message>
    <message>
        <source>Storage</source>
        <translation>Archiviazione</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Info</translation>
    </message>
    <message>
        <source>Tiles</source>
        <translation>Riquadri</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>Profili</translation>
    </message>
    <message>
        <source>All settings</source>
        <translation>Tutte le impostazioni</translation>
    </message>
</context>
<context>
    <name>SettingsPanel</name>
    <message>
        <source>Back</source>
        <translation>Indietro</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Cerca</translation>
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
        <translation>Nessun lavoro</translation>
    </message>
    <message>
        <source>Receiver: %1</source>
        <translation>Ricevitore: %1</translation>
    </message>
    <message>
        <source>The stick is plugged in</source>
        <translation>Chiavetta inserita</translation>
    </message>
    <message>
        <source>Lock the screen</source>
        <translation>Blocca lo schermo</translation>
    </message>
    <message>
        <source>Colours of the night</source>
        <translation>Colori della notte</translation>
    </message>
    <message>
        <source>Colours of the day</source>
        <translation>Colori del giorno</translation>
    </message>
</context>
<context>
    <name>StoragePage</name>
    <message>
        <source>Open</source>
        <translation>Apri</translation>
    </message>
    <message>
        <source>Internal drive</source>
        <translation>Disco interno</translation>
    </message>
    <message>
        <source>Stick</source>
        <translation>Chiavetta</translation>
    </message>
    <message>
        <source>No stick is plugged in.</source>
        <translation>Nessuna chiavetta inserita.</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Memoria RAM</translation>
    </message>
    <message>
        <source>Logs</source>
        <translation>Registri</translation>
    </message>
    <message>
        <source>Writes all log files to the stick</source>
        <translation>Scrive tutti i registri sulla chiavetta</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Esporta</translation>
    </message>
    <message>
        <source>Export the logs</source>
        <translation>Esporta i registri</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>Profili</translation>
    </message>
    <message>
        <source>Takes the settings to another display, or brings them back from the stick</source>
        <translation>Porta le impostazioni su un altro terminale o le riprende dalla chiavetta</translation>
    </message>
    <message>
        <source>Open the profiles</source>
        <translation>Apri i profili</translation>
    </message>
    <message>
        <source>Support</source>
        <translation>Assistenza</translation>
    </message>
    <message>
        <source>Writes logs, settings and versions in one file; without the names of clients, farms and fields</source>
        <translation>Scrive registri, impostazioni e versioni in un file; senza i nomi di clienti, aziende e campi</translation>
    </message>
    <message>
        <source>Write</source>
        <translation>Scrivi</translation>
    </message>
    <message>
        <source>Write the file for support without names</source>
        <translation>Scrivi il file per l&apos;assistenza senza nomi</translation>
    </message>
    <message>
        <source>Support, with names</source>
        <translation>Assistenza, con nomi</translation>
    </message>
    <message>
        <source>The same file, with all names and places</source>
        <translation>Lo stesso file, con tutti i nomi e i luoghi</translation>
    </message>
    <message>
        <source>Write the file for support with names</source>
        <translation>Scrivi il file per l&apos;assistenza con i nomi</translation>
    </message>
</context>
<context>
    <name>TFieldTreeModel</name>
    <message>
        <source>A job holds no items.</source>
        <translation>Un lavoro non contiene altro.</translation>
    </message>
    <message>
        <source>There is one with this name already.</source>
        <translation>Questo nome esiste già.</translation>
    </message>
    <message numerus="yes">
        <source>%n file(s), %1</source>
        <translation>
            <numerusform>%n file, %1</numerusform>
            <numerusform>%n file, %1</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>TParameter</name>
    <message>
        <source>The setting could not be written to the disk yet.</source>
        <translation>Non è stato ancora possibile scrivere l&apos;impostazione sul disco.</translation>
    </message>
    <message>
        <source>There is no value to set.</source>
        <translation>Nessun valore da impostare.</translation>
    </message>
</context>
<context>
    <name>TRegionSettings</name>
    <message>
        <source>Jan</source>
        <translation>gen</translation>
    </message>
    <message>
        <source>Feb</source>
        <translation>feb</translation>
    </message>
    <message>
        <source>Mar</source>
        <translation>mar</translation>
    </message>
    <message>
        <source>Apr</source>
        <translation>apr</translation>
    </message>
    <message>
        <source>May</source>
        <translation>mag</translation>
    </message>
    <message>
        <source>Jun</source>
        <translation>giu</translation>
    </message>
    <message>
        <source>Jul</source>
        <translation>lug</translation>
    </message>
    <message>
        <source>Aug</source>
        <translation>ago</translation>
    </message>
    <message>
        <source>Sep</source>
        <translation>set</translation>
    </message>
    <message>
        <source>Oct</source>
        <translation>ott</translation>
    </message>
    <message>
        <source>Nov</source>
        <translation>nov</translation>
    </message>
    <message>
        <source>Dec</source>
        <translation>dic</translation>
    </message>
</context>
<context>
    <name>TRestart</name>
    <message>
        <source>The new language is shown after a restart.</source>
        <translation>La nuova lingua è visibile dopo il riavvio.</translation>
    </message>
    <message>
        <source>The new decimal sign is shown after a restart.</source>
        <translation>Il nuovo separatore decimale è visibile dopo il riavvio.</translation>
    </message>
</context>
<context>
    <name>TSelections</name>
    <message>
        <source>The selection could not be stored.</source>
        <translation>Impossibile salvare la selezione.</translation>
    </message>
</context>
<context>
    <name>TSystemSettings</name>
    <message>
        <source>J_</source>
        <translation>LV_</translation>
    </message>
    <message>
        <source>B_</source>
        <translation>CF_</translation>
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
        <translation>Nessun veicolo</translation>
    </message>
    <message>
        <source>No Profile</source>
        <translation>Nessun profilo</translation>
    </message>
    <message>
        <source>No Implement</source>
        <translation>Nessun attrezzo</translation>
    </message>
    <message>
        <source>Pivoted_</source>
        <translation>Trainato_</translation>
    </message>
</context>
<context>
    <name>TTransfer</name>
    <message>
        <source>The name is empty.</source>
        <translation>Il nome è vuoto.</translation>
    </message>
</context>
<context>
    <name>TUnitAbbreviations</name>
    <message>
        <source>Jan</source>
        <translation>gen</translation>
    </message>
    <message>
        <source>Feb</source>
        <translation>feb</translation>
    </message>
    <message>
        <source>Mar</source>
        <translation>mar</translation>
    </message>
    <message>
        <source>Apr</source>
        <translation>apr</translation>
    </message>
    <message>
        <source>May</source>
        <translation>mag</translation>
    </message>
    <message>
        <source>Jun</source>
        <translation>giu</translation>
    </message>
    <message>
        <source>Jul</source>
        <translation>lug</translation>
    </message>
    <message>
        <source>Aug</source>
        <translation>ago</translation>
    </message>
    <message>
        <source>Sep</source>
        <translation>set</translation>
    </message>
    <message>
        <source>Oct</source>
        <translation>ott</translation>
    </message>
    <message>
        <source>Nov</source>
        <translation>nov</translation>
    </message>
    <message>
        <source>Dec</source>
        <translation>dic</translation>
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
        <translation>miglia</translation>
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
        <translation>l/giro</translation>
    </message>
    <message>
        <source>gal/rev</source>
        <translation>gal/giro</translation>
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
        <translation>kg/giro</translation>
    </message>
    <message>
        <source>lb/rev</source>
        <translation>lb/giro</translation>
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
        <translation>k semi/ha</translation>
    </message>
    <message>
        <source>KS/ac</source>
        <translation>k semi/ac</translation>
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
        <translation>giri/min</translation>
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
        <translation>Critico</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normale</translation>
    </message>
    <message>
        <source>Trivial</source>
        <translation>Lieve</translation>
    </message>
</context>
<context>
    <name>TWork</name>
    <message>
        <source>An implement cannot have this width.</source>
        <translation>Un attrezzo non può avere questa larghezza.</translation>
    </message>
    <message>
        <source>A file of this job cannot be used. %1</source>
        <translation>Impossibile usare un file di questo lavoro. %1</translation>
    </message>
    <message>
        <source>Coverage was not complete and was left out: strips %1, bytes %2</source>
        <translation>Alcuni dati di copertura erano incompleti e sono stati tralasciati: strisce %1, byte %2</translation>
    </message>
    <message>
        <source>The file of the flags is damaged; new flags are not stored.</source>
        <translation>Il file delle bandierine è danneggiato; le nuove bandierine non vengono salvate.</translation>
    </message>
    <message>
        <source>A file could not be stored. %1</source>
        <translation>Impossibile salvare un file. %1</translation>
    </message>
    <message>
        <source>The file of the implement cannot be used. %1</source>
        <translation>Impossibile usare il file dell&apos;attrezzo. %1</translation>
    </message>
    <message>
        <source>There is no line.</source>
        <translation>Non c&apos;è nessuna linea.</translation>
    </message>
    <message>
        <source>The line has no name.</source>
        <translation>La linea non ha nome.</translation>
    </message>
    <message>
        <source>The guidance line cannot be used. %1</source>
        <translation>Impossibile usare la linea di guida. %1</translation>
    </message>
    <message>
        <source>No job is chosen</source>
        <translation>Nessun lavoro scelto</translation>
    </message>
    <message>
        <source>No job is chosen: what is covered is not stored.</source>
        <translation>Nessun lavoro scelto: ciò che viene coperto non è salvato.</translation>
    </message>
    <message>
        <source>The coverage of this job cannot be used: what is covered is not stored.</source>
        <translation>Impossibile usare la copertura di questo lavoro: ciò che viene coperto non è salvato.</translation>
    </message>
    <message>
        <source>The coverage cannot be stored, and strips are lost: %1</source>
        <translation>Impossibile salvare la copertura, si perdono strisce: %1</translation>
    </message>
    <message>
        <source>The coverage is kept in memory until it can be stored. %1</source>
        <translation>La copertura resta in memoria finché non può essere salvata. %1</translation>
    </message>
    <message>
        <source>The job is still being read.</source>
        <translation>Il lavoro è ancora in lettura.</translation>
    </message>
</context>
<context>
    <name>TileTurner</name>
    <message>
        <source>Tiles</source>
        <translation>Riquadri</translation>
    </message>
</context>
<context>
    <name>Tiles</name>
    <message>
        <source>Rate</source>
        <translation>Dose</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Velocità</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>Area</translation>
    </message>
    <message>
        <source>Left</source>
        <comment>area that is left to work</comment>
        <translation>Resta</translation>
    </message>
    <message>
        <source>Work</source>
        <comment>area per hour</comment>
        <translation>Produtt.</translation>
    </message>
    <message>
        <source>Flow</source>
        <translation>Portata</translation>
    </message>
    <message>
        <source>Press.</source>
        <comment>pressure</comment>
        <translation>Press.</translation>
    </message>
    <message>
        <source>Temp.</source>
        <comment>temperature</comment>
        <translation>Temp.</translation>
    </message>
    <message>
        <source>Driven</source>
        <translation>Percorso</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Posizione</translation>
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
        <translation>Torna alla scelta iniziale</translation>
    </message>
    <message>
        <source>%1 further ahead</source>
        <translation>%1: sposta in su</translation>
    </message>
    <message>
        <source>Shown</source>
        <translation>Visibile</translation>
    </message>
    <message>
        <source>Hidden</source>
        <translation>Nascosto</translation>
    </message>
</context>
<context>
    <name>Transfer</name>
    <message>
        <source>Nothing is imported: some settings were changed here and in the profile.</source>
        <translation>Non viene importato nulla: alcune impostazioni sono state modificate qui e nel profilo.</translation>
    </message>
    <message>
        <source>No stick is plugged in.</source>
        <translation>Nessuna chiavetta inserita.</translation>
    </message>
    <message>
        <source>The stick was removed before everything was on it.</source>
        <translation>La chiavetta è stata tolta prima della fine della scrittura.</translation>
    </message>
    <message>
        <source>The stick could not be written to the end.</source>
        <translation>Impossibile terminare la scrittura sulla chiavetta.</translation>
    </message>
    <message>
        <source>The folder %1 cannot be made.</source>
        <translation>Impossibile creare la cartella %1.</translation>
    </message>
    <message>
        <source>The file %1 cannot be written.</source>
        <translation>Impossibile scrivere il file %1.</translation>
    </message>
    <message>
        <source>The logs are on the stick (files: %1).</source>
        <translation>I registri sono sulla chiavetta (file: %1).</translation>
    </message>
    <message>
        <source>The profile cannot be used. %1</source>
        <translation>Impossibile usare il profilo. %1</translation>
    </message>
    <message>
        <source>Nothing is imported. %1</source>
        <translation>Non viene importato nulla. %1</translation>
    </message>
    <message>
        <source>This display</source>
        <translation>Questo terminale</translation>
    </message>
    <message>
        <source>Another display</source>
        <translation>Altro terminale</translation>
    </message>
    <message>
        <source>The profile is not on the stick. %1</source>
        <translation>Il profilo non è sulla chiavetta. %1</translation>
    </message>
    <message>
        <source>The profile is on the stick: %1.</source>
        <translation>Il profilo è sulla chiavetta: %1.</translation>
    </message>
    <message>
        <source>The file for support is not on the stick. %1</source>
        <translation>Il file per l&apos;assistenza non è sulla chiavetta. %1</translation>
    </message>
    <message>
        <source>The file for support is on the stick: %1.</source>
        <translation>Il file per l&apos;assistenza è sulla chiavetta: %1.</translation>
    </message>
    <message>
        <source>The profile is imported (settings changed: %1).</source>
        <translation>Profilo importato (impostazioni modificate: %1).</translation>
    </message>
    <message>
        <source>It cannot be used.</source>
        <translation>Uso impossibile.</translation>
    </message>
</context>
<context>
    <name>TransferState</name>
    <message>
        <source>Reading</source>
        <translation>Lettura</translation>
    </message>
    <message>
        <source>Writing</source>
        <translation>Scrittura</translation>
    </message>
    <message>
        <source>Leave the stick where it is until this is done.</source>
        <translation>Lasciare inserita la chiavetta fino alla fine.</translation>
    </message>
</context>
<context>
    <name>WorkPage</name>
    <message>
        <source>Waiting for a position</source>
        <translation>In attesa di una posizione</translation>
    </message>
    <message>
        <source>Map</source>
        <translation>Mappa</translation>
    </message>
</context>
<context>
    <name>WorkingButton</name>
    <message>
        <source>Working</source>
        <translation>In lavoro</translation>
    </message>
    <message>
        <source>Not working</source>
        <translation>Non in lavoro</translation>
    </message>
    <message>
        <source>Working. Switch the implement off</source>
        <translation>In lavoro. Disattivare l&apos;attrezzo</translation>
    </message>
    <message>
        <source>Not working. Switch the implement on</source>
        <translation>Non in lavoro. Attivare l&apos;attrezzo</translation>
    </message>
</context>
</TS>
