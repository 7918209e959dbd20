<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>About</name>
    <message>
        <source>Windows, files and connections</source>
        <translation>Fenêtres, fichiers et connexions</translation>
    </message>
    <message>
        <source>The file of the settings</source>
        <translation>Le fichier des réglages</translation>
    </message>
    <message>
        <source>Profiles of settings</source>
        <translation>Profils de réglages</translation>
    </message>
    <message>
        <source>Files for support</source>
        <translation>Fichiers pour l&apos;assistance</translation>
    </message>
    <message>
        <source>Sunrise and sunset</source>
        <translation>Lever et coucher du soleil</translation>
    </message>
    <message>
        <source>Boundaries and zones</source>
        <translation>Contours et zones</translation>
    </message>
    <message>
        <source>Software</source>
        <translation>Logiciel</translation>
    </message>
    <message>
        <source>The software of this display</source>
        <translation>Le logiciel de ce terminal</translation>
    </message>
    <message>
        <source>Settings, units and logs</source>
        <translation>Réglages, unités et journaux</translation>
    </message>
</context>
<context>
    <name>Clock</name>
    <message>
        <source>The clock of the machine; nothing has set it.</source>
        <translation>L&apos;horloge de l&apos;appareil&#xa0;; elle n&apos;a pas été réglée.</translation>
    </message>
    <message>
        <source>The clock was set by hand.</source>
        <translation>L&apos;horloge a été réglée à la main.</translation>
    </message>
    <message>
        <source>The receiver sets the clock.</source>
        <translation>Le récepteur règle l&apos;horloge.</translation>
    </message>
    <message>
        <source>There is no such date or time.</source>
        <translation>Cette date ou cette heure n&apos;existe pas.</translation>
    </message>
    <message>
        <source>The date is more than 68 years from the clock of the machine.</source>
        <translation>La date est à plus de 68 ans de l&apos;horloge de l&apos;appareil.</translation>
    </message>
    <message>
        <source>The clock could not be stored.</source>
        <translation>L&apos;horloge n&apos;a pas pu être enregistrée.</translation>
    </message>
</context>
<context>
    <name>ClockEntry</name>
    <message>
        <source>Year</source>
        <translation>Année</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>Mois</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Jour</translation>
    </message>
    <message>
        <source>Hour</source>
        <translation>Heure</translation>
    </message>
    <message>
        <source>Minute</source>
        <translation>Minute</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>Date et heure</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Heure</translation>
    </message>
    <message>
        <source>%1: more</source>
        <translation>%1&#xa0;: plus</translation>
    </message>
    <message>
        <source>%1: less</source>
        <translation>%1&#xa0;: moins</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>Valider</translation>
    </message>
</context>
<context>
    <name>ColorBar</name>
    <message>
        <source>%1: less</source>
        <translation>%1&#xa0;: moins</translation>
    </message>
    <message>
        <source>%1: more</source>
        <translation>%1&#xa0;: plus</translation>
    </message>
</context>
<context>
    <name>ColorPage</name>
    <message>
        <source>Former</source>
        <translation>Avant</translation>
    </message>
    <message>
        <source>Former colour</source>
        <translation>Couleur précédente</translation>
    </message>
    <message>
        <source>First value</source>
        <translation>Valeur d&apos;usine</translation>
    </message>
    <message>
        <source>Digits of the colour</source>
        <translation>Chiffres de la couleur</translation>
    </message>
    <message>
        <source>Hue</source>
        <translation>Teinte</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Saturation</translation>
    </message>
    <message>
        <source>Lightness</source>
        <translation>Clarté</translation>
    </message>
</context>
<context>
    <name>ColorsPage</name>
    <message>
        <source>Day</source>
        <translation>Jour</translation>
    </message>
    <message>
        <source>Night</source>
        <translation>Nuit</translation>
    </message>
</context>
<context>
    <name>Contrasts</name>
    <message>
        <source>on %1: %2</source>
        <translation>sur %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>under %1: %2</source>
        <translation>sous %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>%1, too low: at least %2</source>
        <translation>%1, trop faible&#xa0;: au moins %2</translation>
    </message>
</context>
<context>
    <name>Difference</name>
    <message>
        <source>Changed on both sides</source>
        <translation>Modifié des deux côtés</translation>
    </message>
    <message>
        <source>Here</source>
        <translation>Ici</translation>
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
        <translation>Redémarrer</translation>
    </message>
    <message>
        <source>The fonts of the display</source>
        <translation>Les polices du terminal</translation>
    </message>
    <message>
        <source>The keyboard on the screen</source>
        <translation>Le clavier à l&apos;écran</translation>
    </message>
</context>
<context>
    <name>DoorBand</name>
    <message>
        <source>Work</source>
        <translation>Travail</translation>
    </message>
    <message>
        <source>Fields</source>
        <translation>Parcelles</translation>
    </message>
    <message>
        <source>Receiver</source>
        <translation>Récepteur</translation>
    </message>
    <message>
        <source>Logs</source>
        <translation>Journaux</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Réglages</translation>
    </message>
</context>
<context>
    <name>Drives</name>
    <message>
        <source>%1 free of %2</source>
        <translation>%1 libres sur %2</translation>
    </message>
    <message>
        <source>Not known</source>
        <translation>Inconnu</translation>
    </message>
    <message>
        <source>No stick</source>
        <translation>Pas de clé USB</translation>
    </message>
</context>
<context>
    <name>FieldsPage</name>
    <message>
        <source>Clients</source>
        <translation>Clients</translation>
    </message>
    <message>
        <source>New client</source>
        <translation>Nouveau client</translation>
    </message>
    <message>
        <source>No client yet.</source>
        <translation>Pas encore de client.</translation>
    </message>
    <message>
        <source>Farms</source>
        <translation>Fermes</translation>
    </message>
    <message>
        <source>New farm</source>
        <translation>Nouvelle ferme</translation>
    </message>
    <message>
        <source>No farm yet.</source>
        <translation>Pas encore de ferme.</translation>
    </message>
    <message>
        <source>Fields</source>
        <translation>Parcelles</translation>
    </message>
    <message>
        <source>New field</source>
        <translation>Nouvelle parcelle</translation>
    </message>
    <message>
        <source>No field yet.</source>
        <translation>Pas encore de parcelle.</translation>
    </message>
    <message>
        <source>Jobs</source>
        <translation>Tâches</translation>
    </message>
    <message>
        <source>New job</source>
        <translation>Nouvelle tâche</translation>
    </message>
    <message>
        <source>No job yet.</source>
        <translation>Pas encore de tâche.</translation>
    </message>
    <message>
        <source>Remove %1 with everything in it?</source>
        <translation>Supprimer %1 avec tout son contenu&#xa0;?</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Rename or remove %1</source>
        <translation>Renommer ou supprimer %1</translation>
    </message>
    <message>
        <source>Rename %1</source>
        <translation>Renommer %1</translation>
    </message>
    <message>
        <source>Remove everything</source>
        <translation>Tout supprimer</translation>
    </message>
</context>
<context>
    <name>Host</name>
    <message>
        <source>Details for the support: %1</source>
        <translation>Détails pour l&apos;assistance&#xa0;: %1</translation>
    </message>
    <message>
        <source>%3 Try: %4</source>
        <translation>%3 Nom possible&#xa0;: %4</translation>
    </message>
    <message>
        <source>This name is not possible.</source>
        <translation>Ce nom est impossible.</translation>
    </message>
    <message>
        <source>The name is empty.</source>
        <translation>Le nom est vide.</translation>
    </message>
    <message>
        <source>This name stands for another folder.</source>
        <translation>Ce nom désigne un autre dossier.</translation>
    </message>
    <message>
        <source>The name must not contain %1.</source>
        <translation>Le nom ne doit pas contenir %1.</translation>
    </message>
    <message>
        <source>The name contains a sign that cannot be seen.</source>
        <translation>Le nom contient un caractère invisible.</translation>
    </message>
    <message>
        <source>The name contains a sign that is not complete.</source>
        <translation>Le nom contient un caractère incomplet.</translation>
    </message>
    <message>
        <source>The name must not end in a full stop or a blank.</source>
        <translation>Le nom ne doit pas finir par un point ou une espace.</translation>
    </message>
    <message>
        <source>The name must not begin with a blank.</source>
        <translation>Le nom ne doit pas commencer par une espace.</translation>
    </message>
    <message>
        <source>A stick cannot hold a file with this name.</source>
        <translation>Une clé USB n&apos;accepte pas de fichier portant ce nom.</translation>
    </message>
    <message>
        <source>The name is too long.</source>
        <translation>Le nom est trop long.</translation>
    </message>
    <message>
        <source>%2 exists already.</source>
        <translation>%2 existe déjà.</translation>
    </message>
    <message numerus="yes">
        <source>%2 is active and holds %n file(s).</source>
        <translation>
            <numerusform>%2 est en cours d&apos;utilisation et contient %n fichier.</numerusform>
            <numerusform>%2 est en cours d&apos;utilisation et contient %n fichiers.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%2 holds %n file(s).</source>
        <translation>
            <numerusform>%2 contient %n fichier.</numerusform>
            <numerusform>%2 contient %n fichiers.</numerusform>
        </translation>
    </message>
    <message>
        <source>%2 is active.</source>
        <translation>%2 est en cours d&apos;utilisation.</translation>
    </message>
    <message>
        <source>%2 is no longer there.</source>
        <translation>%2 n&apos;existe plus.</translation>
    </message>
    <message>
        <source>A stick cannot tell %2 from %3.</source>
        <translation>Une clé USB ne distingue pas %2 de %3.</translation>
    </message>
    <message>
        <source>Another program is working on the fields. Try again later.</source>
        <translation>Un autre programme travaille sur les parcelles. Réessayer plus tard.</translation>
    </message>
    <message>
        <source>The selection could not be stored.</source>
        <translation>La sélection n&apos;a pas pu être enregistrée.</translation>
    </message>
    <message>
        <source>%1 is neither a file nor a folder.</source>
        <translation>%1 n&apos;est ni un fichier ni un dossier.</translation>
    </message>
    <message>
        <source>The file was edited or is damaged.</source>
        <translation>Le fichier a été modifié ou est endommagé.</translation>
    </message>
    <message>
        <source>%1 cannot be read. %2</source>
        <translation>Impossible de lire %1. %2</translation>
    </message>
    <message>
        <source>The file is of another kind.</source>
        <translation>Le fichier est d&apos;un autre type.</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>Le fichier est vide.</translation>
    </message>
    <message>
        <source>The end of the file is missing.</source>
        <translation>La fin du fichier manque.</translation>
    </message>
    <message>
        <source>The file is damaged.</source>
        <translation>Le fichier est endommagé.</translation>
    </message>
    <message>
        <source>The file is not complete.</source>
        <translation>Le fichier est incomplet.</translation>
    </message>
    <message>
        <source>The file is from another version of the software.</source>
        <translation>Le fichier vient d&apos;une autre version du logiciel.</translation>
    </message>
    <message>
        <source>The file has a value that is not possible: %2</source>
        <translation>Le fichier contient une valeur impossible&#xa0;: %2</translation>
    </message>
    <message>
        <source>The file has a value twice: %2</source>
        <translation>Un réglage figure deux fois dans le fichier&#xa0;: %2</translation>
    </message>
    <message>
        <source>This address is not possible: %1</source>
        <translation>Cette adresse est impossible&#xa0;: %1</translation>
    </message>
    <message>
        <source>The device is not there.</source>
        <translation>L&apos;appareil est absent.</translation>
    </message>
    <message>
        <source>It is not permitted, or another program uses it.</source>
        <translation>L&apos;accès n&apos;est pas permis, ou un autre programme utilise l&apos;appareil.</translation>
    </message>
    <message>
        <source>Another program uses it.</source>
        <translation>Un autre programme l&apos;utilise.</translation>
    </message>
    <message>
        <source>It cannot be read.</source>
        <translation>Lecture impossible.</translation>
    </message>
    <message>
        <source>It was unplugged.</source>
        <translation>L&apos;appareil a été débranché.</translation>
    </message>
    <message>
        <source>It is not a serial device, or it cannot have this speed.</source>
        <translation>Ce n&apos;est pas un appareil série, ou cette vitesse lui est impossible.</translation>
    </message>
    <message>
        <source>The serial port has a fault (number %1).</source>
        <translation>Le port série a un défaut (numéro %1).</translation>
    </message>
    <message>
        <source>%1 is damaged or of another kind.</source>
        <translation>Le fichier %1 est endommagé ou d&apos;un autre type.</translation>
    </message>
    <message>
        <source>%1 is from another version of the software.</source>
        <translation>Le fichier %1 vient d&apos;une autre version du logiciel.</translation>
    </message>
    <message>
        <source>%1 is damaged.</source>
        <translation>Le fichier %1 est endommagé.</translation>
    </message>
    <message>
        <source>%1 has other coordinates than WGS84.</source>
        <translation>Le fichier %1 a d&apos;autres coordonnées que WGS84.</translation>
    </message>
    <message>
        <source>%1 is not complete. %2 is missing.</source>
        <translation>Le fichier %1 est incomplet. Il manque %2.</translation>
    </message>
    <message>
        <source>%1 has no areas.</source>
        <translation>Le fichier %1 ne contient pas de surface.</translation>
    </message>
    <message>
        <source>Another program uses %1.</source>
        <translation>Un autre programme utilise %1.</translation>
    </message>
    <message>
        <source>A and B are too close together or too far apart.</source>
        <translation>A et B sont trop proches ou trop éloignés l&apos;un de l&apos;autre.</translation>
    </message>
    <message>
        <source>Another program has locked it.</source>
        <translation>Un autre programme en bloque l&apos;accès.</translation>
    </message>
    <message>
        <source>It is no longer there.</source>
        <translation>Le fichier n&apos;existe plus.</translation>
    </message>
    <message>
        <source>%1 is no longer there.</source>
        <translation>%1 n&apos;existe plus.</translation>
    </message>
    <message>
        <source>%1 cannot be written. %2</source>
        <translation>Impossible d&apos;écrire %1. %2</translation>
    </message>
    <message>
        <source>%1 cannot be written.</source>
        <translation>Impossible d&apos;écrire %1.</translation>
    </message>
    <message>
        <source>The file of the settings has a fault (number %1).</source>
        <translation>Le fichier des réglages a un défaut (numéro %1).</translation>
    </message>
    <message>
        <source>%1 cannot be opened. %2</source>
        <translation>Impossible d&apos;ouvrir %1. %2</translation>
    </message>
    <message>
        <source>%1 cannot be created. %2</source>
        <translation>Impossible de créer %1. %2</translation>
    </message>
    <message>
        <source>%1 cannot be copied. %2</source>
        <translation>Impossible de copier %1. %2</translation>
    </message>
    <message>
        <source>%1 cannot be renamed. %2</source>
        <translation>Impossible de renommer %1. %2</translation>
    </message>
    <message>
        <source>%1 cannot be removed. %2</source>
        <translation>Impossible de supprimer %1. %2</translation>
    </message>
    <message>
        <source>The drive is full.</source>
        <translation>Le disque est plein.</translation>
    </message>
    <message>
        <source>The drive has a fault.</source>
        <translation>Le disque a un défaut.</translation>
    </message>
    <message>
        <source>The drive can only be read.</source>
        <translation>Le disque est en lecture seule.</translation>
    </message>
    <message>
        <source>It is not permitted.</source>
        <translation>L&apos;accès n&apos;est pas permis.</translation>
    </message>
    <message>
        <source>It cannot be opened.</source>
        <translation>Ouverture impossible.</translation>
    </message>
    <message>
        <source>It is damaged.</source>
        <translation>Le fichier est endommagé.</translation>
    </message>
    <message>
        <source>It is not there.</source>
        <translation>Le chemin est introuvable.</translation>
    </message>
    <message>
        <source>It exists already.</source>
        <translation>Le nom existe déjà.</translation>
    </message>
    <message>
        <source>It is a folder.</source>
        <translation>C&apos;est un dossier.</translation>
    </message>
    <message>
        <source>It is not a folder.</source>
        <translation>Ce n&apos;est pas un dossier.</translation>
    </message>
    <message>
        <source>The folder is not empty.</source>
        <translation>Le dossier n&apos;est pas vide.</translation>
    </message>
    <message>
        <source>The file is too large.</source>
        <translation>Le fichier est trop grand.</translation>
    </message>
    <message>
        <source>Too many files are open.</source>
        <translation>Trop de fichiers sont ouverts.</translation>
    </message>
    <message>
        <source>There is too little memory.</source>
        <translation>La mémoire est insuffisante.</translation>
    </message>
    <message>
        <source>It is not possible there.</source>
        <translation>C&apos;est impossible à cet endroit.</translation>
    </message>
    <message>
        <source>The device refuses the connection.</source>
        <translation>L&apos;appareil refuse la connexion.</translation>
    </message>
    <message>
        <source>The device has closed the connection.</source>
        <translation>L&apos;appareil a fermé la connexion.</translation>
    </message>
    <message>
        <source>There is no device with this address.</source>
        <translation>Aucun appareil n&apos;a cette adresse.</translation>
    </message>
    <message>
        <source>The network cannot be reached.</source>
        <translation>Le réseau est inaccessible.</translation>
    </message>
    <message>
        <source>The device does not answer.</source>
        <translation>L&apos;appareil ne répond pas.</translation>
    </message>
    <message>
        <source>It is a link to another place.</source>
        <translation>C&apos;est un lien vers un autre endroit.</translation>
    </message>
    <message>
        <source>There are too many links to it.</source>
        <translation>Trop de liens y mènent.</translation>
    </message>
</context>
<context>
    <name>ItemActions</name>
    <message>
        <source>Rename</source>
        <translation>Renommer</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>ItemPage</name>
    <message>
        <source>New</source>
        <translation>Nouveau</translation>
    </message>
</context>
<context>
    <name>Keypad</name>
    <message>
        <source>%1 to %2 %3</source>
        <translation>%1 à %2 %3</translation>
    </message>
    <message>
        <source>At least %1 %2</source>
        <translation>Au moins %1 %2</translation>
    </message>
    <message>
        <source>At most %1 %2</source>
        <translation>Au plus %1 %2</translation>
    </message>
    <message>
        <source>This is not a number yet.</source>
        <translation>Ce n&apos;est pas encore un nombre.</translation>
    </message>
    <message>
        <source>Too large.
%1</source>
        <translation>Trop grand.
%1</translation>
    </message>
    <message>
        <source>Too small.
%1</source>
        <translation>Trop petit.
%1</translation>
    </message>
    <message>
        <source>now %1</source>
        <translation>actuel&#xa0;: %1</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>Valider</translation>
    </message>
    <message>
        <source>Decimal sign</source>
        <translation>Séparateur décimal</translation>
    </message>
    <message>
        <source>Plus or minus</source>
        <translation>Plus ou moins</translation>
    </message>
    <message>
        <source>Remove the last sign</source>
        <translation>Effacer le dernier caractère</translation>
    </message>
    <message>
        <source>C</source>
        <comment>key that clears the entry</comment>
        <translation>C</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Effacer</translation>
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
        <translation>Placer ici A, la première extrémité de la ligne</translation>
    </message>
    <message>
        <source>B</source>
        <comment>the other end of the guidance line</comment>
        <translation>B</translation>
    </message>
    <message>
        <source>Set B, the other end of the line, here</source>
        <translation>Placer ici B, l&apos;autre extrémité de la ligne</translation>
    </message>
    <message>
        <source>Set a flag here</source>
        <translation>Poser un drapeau ici</translation>
    </message>
</context>
<context>
    <name>LineChoice</name>
    <message>
        <source>New</source>
        <translation>Nouvelle</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Arrêter</translation>
    </message>
</context>
<context>
    <name>LinePanel</name>
    <message>
        <source>%1 to the left</source>
        <translation>%1 vers la gauche</translation>
    </message>
    <message>
        <source>%1 to the right</source>
        <translation>%1 vers la droite</translation>
    </message>
</context>
<context>
    <name>LockLayer</name>
    <message>
        <source>The screen is locked. Hold the button to unlock it.</source>
        <translation>L&apos;écran est verrouillé. Maintenir le bouton appuyé pour déverrouiller.</translation>
    </message>
    <message>
        <source>Unlock</source>
        <translation>Déverrouiller</translation>
    </message>
</context>
<context>
    <name>LogsPage</name>
    <message>
        <source>Logs</source>
        <translation>Journaux</translation>
    </message>
    <message>
        <source>Events</source>
        <translation>Événements</translation>
    </message>
    <message>
        <source>Receiver</source>
        <translation>Récepteur</translation>
    </message>
    <message>
        <source>Go on</source>
        <translation>Reprendre</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>No line yet.</source>
        <translation>Pas encore de ligne.</translation>
    </message>
</context>
<context>
    <name>MachinePage</name>
    <message>
        <source>Implement width</source>
        <translation>Largeur de l&apos;outil</translation>
    </message>
    <message>
        <source>Decides the guidance lines beside each other, and the area done</source>
        <translation>Détermine les lignes de guidage voisines et la surface faite</translation>
    </message>
    <message>
        <source>Implement behind the antenna</source>
        <translation>Outil derrière l&apos;antenne</translation>
    </message>
    <message>
        <source>How far the ground is covered behind the vehicle&apos;s place</source>
        <translation>À quelle distance derrière la position du véhicule le sol est couvert</translation>
    </message>
</context>
<context>
    <name>Main</name>
    <message>
        <source>Cab display</source>
        <translation>Terminal de cabine</translation>
    </message>
</context>
<context>
    <name>MapButtons</name>
    <message>
        <source>Zoom in</source>
        <translation>Agrandir</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Réduire</translation>
    </message>
    <message>
        <source>The heading is up. Turn north up</source>
        <translation>Le cap est en haut. Mettre le nord en haut</translation>
    </message>
    <message>
        <source>North is up. Turn the heading up</source>
        <translation>Le nord est en haut. Mettre le cap en haut</translation>
    </message>
    <message>
        <source>Centre the vehicle</source>
        <translation>Centrer le véhicule</translation>
    </message>
</context>
<context>
    <name>NameEntry</name>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>Valider</translation>
    </message>
</context>
<context>
    <name>PageTurner</name>
    <message>
        <source>Rows above</source>
        <translation>Lignes au-dessus</translation>
    </message>
    <message>
        <source>Rows below</source>
        <translation>Lignes au-dessous</translation>
    </message>
</context>
<context>
    <name>ParameterRow</name>
    <message>
        <source>%1: back to the first value</source>
        <translation>%1&#xa0;: retour à la valeur d&apos;usine</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Ouvrir</translation>
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
        <translation>un chemin absolu qui finit par &quot;/&quot; et n&apos;est pas &quot;/&quot;</translation>
    </message>
    <message>
        <source>an absolute path</source>
        <translation>un chemin absolu</translation>
    </message>
    <message>
        <source>a UUID in small letters, such as 6ba7b810-9dad-41d1-80b4-00c04fd430c8</source>
        <translation>un UUID en minuscules, comme 6ba7b810-9dad-41d1-80b4-00c04fd430c8</translation>
    </message>
    <message>
        <source>simulator, tcp://HOST:PORT, serial:///dev/NAME?baud=N or an absolute path</source>
        <translation>simulator, tcp://HOST:PORT, serial:///dev/NAME?baud=N ou un chemin absolu</translation>
    </message>
    <message>
        <source>true or false</source>
        <translation>true ou false</translation>
    </message>
    <message>
        <source>a time in UTC, such as 2026-03-05T13:05:09Z</source>
        <translation>une heure en UTC, comme 2026-03-05T13:05:09Z</translation>
    </message>
    <message>
        <source>a colour: #rrggbb, #aarrggbb or a name such as navy</source>
        <translation>une couleur&#xa0;: #rrggbb, #aarrggbb ou un nom comme navy</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 à %2</translation>
    </message>
    <message>
        <source>Not a whole number.</source>
        <translation>Pas un nombre entier.</translation>
    </message>
    <message>
        <source>Below the least value.</source>
        <translation>Sous la valeur minimale.</translation>
    </message>
    <message>
        <source>Above the greatest value.</source>
        <translation>Au-dessus de la valeur maximale.</translation>
    </message>
    <message>
        <source>This cannot be the name of a file. Try: %1</source>
        <translation>Ce nom de fichier est impossible. Nom possible&#xa0;: %1</translation>
    </message>
    <message>
        <source>Not accepted. Expected: %1.</source>
        <translation>Refusé. Attendu&#xa0;: %1.</translation>
    </message>
    <message>
        <source>a name without %1</source>
        <translation>un nom sans %1</translation>
    </message>
    <message>
        <source>a whole number</source>
        <translation>un nombre entier</translation>
    </message>
    <message>
        <source>At least %1</source>
        <translation>Au moins %1</translation>
    </message>
</context>
<context>
    <name>Parameters</name>
    <message>
        <source>the operator has chosen the offset from UTC; GPS time keeps it instead of computing it</source>
        <translation>l&apos;opérateur a choisi l&apos;écart à UTC&#xa0;; l&apos;heure GPS le garde au lieu de le calculer</translation>
    </message>
    <message>
        <source>metric units; otherwise US or English units</source>
        <translation>unités métriques&#xa0;; sinon unités US ou impériales</translation>
    </message>
    <message>
        <source>US measures when units are not metric; otherwise English measures</source>
        <translation>mesures US si les unités ne sont pas métriques&#xa0;; sinon mesures impériales</translation>
    </message>
    <message>
        <source>positions in degrees, minutes and seconds; otherwise in decimal degrees</source>
        <translation>positions en degrés, minutes et secondes&#xa0;; sinon en degrés décimaux</translation>
    </message>
    <message>
        <source>24-hour clock; otherwise 12 hours with am and pm</source>
        <translation>horloge sur 24 heures&#xa0;; sinon 12 heures avec am et pm</translation>
    </message>
    <message>
        <source>dates with the month before the day</source>
        <translation>dates avec le mois avant le jour</translation>
    </message>
    <message>
        <source>colours for day; otherwise for night</source>
        <translation>couleurs de jour&#xa0;; sinon de nuit</translation>
    </message>
    <message>
        <source>the map turns with the vehicle; otherwise north is up</source>
        <translation>la carte tourne avec le véhicule&#xa0;; sinon le nord est en haut</translation>
    </message>
    <message>
        <source>unit of pressures</source>
        <translation>unité des pressions</translation>
    </message>
    <message>
        <source>unit of areas, and of rates per area</source>
        <translation>unité des surfaces et des doses par surface</translation>
    </message>
    <message>
        <source>unit of short distances: widths, offsets</source>
        <translation>unité des petites distances&#xa0;: largeurs, décalages</translation>
    </message>
    <message>
        <source>unit of granular volumes</source>
        <translation>unité des volumes de granulés</translation>
    </message>
    <message>
        <source>unit of granular densities</source>
        <translation>unité des densités de granulés</translation>
    </message>
    <message>
        <source>unit of liquid volumes, flows and rates</source>
        <translation>unité des volumes, débits et doses de liquide</translation>
    </message>
    <message>
        <source>language of the display&apos;s texts; a change needs a restart</source>
        <translation>langue des textes du terminal&#xa0;; un changement demande un redémarrage</translation>
    </message>
    <message>
        <source>decimal point or comma; a change needs a restart</source>
        <translation>point ou virgule décimale&#xa0;; un changement demande un redémarrage</translation>
    </message>
    <message>
        <source>when the colours switch between day and night: only by hand, at sunrise and sunset, or with the sun 6 degrees below the horizon</source>
        <translation>quand les couleurs changent entre jour et nuit&#xa0;: à la main seulement, au lever et au coucher du soleil, ou avec le soleil 6 degrés sous l&apos;horizon</translation>
    </message>
    <message>
        <source>what set the display&apos;s clock</source>
        <translation>ce qui a réglé l&apos;horloge du terminal</translation>
    </message>
    <message>
        <source>local time less UTC, whole hours</source>
        <translation>heure locale moins UTC, heures entières</translation>
    </message>
    <message>
        <source>local time less UTC, minutes beyond the hours, with the sign of the hours</source>
        <translation>heure locale moins UTC, minutes en plus des heures, avec le signe des heures</translation>
    </message>
    <message>
        <source>brightness of the lightbar at night</source>
        <translation>luminosité de la barre lumineuse la nuit</translation>
    </message>
    <message>
        <source>brightness of the screen at night</source>
        <translation>luminosité de l&apos;écran la nuit</translation>
    </message>
    <message>
        <source>brightness of the button lights at night</source>
        <translation>luminosité de l&apos;éclairage des boutons la nuit</translation>
    </message>
    <message>
        <source>4: implements are kept in the folder of their vehicle; other numbers: in their own folder</source>
        <translation>4&#xa0;: les outils sont dans le dossier de leur véhicule&#xa0;; autres nombres&#xa0;: dans leur propre dossier</translation>
    </message>
    <message>
        <source>number of the next file of the NMEA log</source>
        <translation>numéro du prochain fichier du journal NMEA</translation>
    </message>
    <message>
        <source>number of the next file of the user log</source>
        <translation>numéro du prochain fichier du journal opérateur</translation>
    </message>
    <message>
        <source>the display&apos;s clock less UTC</source>
        <translation>l&apos;horloge du terminal moins UTC</translation>
    </message>
    <message>
        <source>folder of the internal drive; by default in the data folder</source>
        <translation>dossier du disque interne&#xa0;; par défaut dans le dossier des données</translation>
    </message>
    <message>
        <source>mount point of the removable drive; by default in the data folder</source>
        <translation>point de montage du disque amovible&#xa0;; par défaut dans le dossier des données</translation>
    </message>
    <message>
        <source>the identity of the terminal, which its profiles carry</source>
        <translation>l&apos;identifiant du terminal, que portent ses profils</translation>
    </message>
    <message>
        <source>where the sentences of the receiver come from</source>
        <translation>d&apos;où viennent les trames du récepteur</translation>
    </message>
    <message>
        <source>the figures beside the map, in this order</source>
        <translation>les valeurs à côté de la carte, dans cet ordre</translation>
    </message>
    <message>
        <source>the newest time of a receiver, as of the last day on which one was seen</source>
        <translation>l&apos;heure la plus récente d&apos;un récepteur, le dernier jour où il y en avait un</translation>
    </message>
    <message>
        <source>when the sun switched the colours last</source>
        <translation>quand le soleil a commuté les couleurs pour la dernière fois</translation>
    </message>
    <message>
        <source>the active job</source>
        <translation>la tâche active</translation>
    </message>
    <message>
        <source>the active boundary</source>
        <translation>le contour actif</translation>
    </message>
    <message>
        <source>the active straight guidance line</source>
        <translation>la ligne de guidage droite active</translation>
    </message>
    <message>
        <source>the active pivot</source>
        <translation>le pivot actif</translation>
    </message>
    <message>
        <source>the active guidance curve</source>
        <translation>la courbe de guidage active</translation>
    </message>
    <message>
        <source>the active shape file of optimal lines</source>
        <translation>le fichier shape actif des lignes optimales</translation>
    </message>
    <message>
        <source>the active shape file of project lines</source>
        <translation>le fichier shape actif des lignes de projet</translation>
    </message>
    <message>
        <source>the active shape file of zones</source>
        <translation>le fichier shape actif des zones</translation>
    </message>
    <message>
        <source>the active steering profile</source>
        <translation>le profil de direction actif</translation>
    </message>
    <message>
        <source>the active implement</source>
        <translation>l&apos;outil actif</translation>
    </message>
    <message>
        <source>the active vehicle</source>
        <translation>le véhicule actif</translation>
    </message>
    <message>
        <source>the active sprayer</source>
        <translation>le pulvérisateur actif</translation>
    </message>
    <message>
        <source>the active boom leveller</source>
        <translation>le correcteur de rampe actif</translation>
    </message>
    <message>
        <source>the active client</source>
        <translation>le client actif</translation>
    </message>
    <message>
        <source>the active farm</source>
        <translation>la ferme active</translation>
    </message>
    <message>
        <source>the active field</source>
        <translation>la parcelle active</translation>
    </message>
    <message>
        <source>Measures</source>
        <translation>Système de mesure</translation>
    </message>
    <message>
        <source>Gallons and bushels</source>
        <translation>Gallons et boisseaux</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>Surface</translation>
    </message>
    <message>
        <source>Pressure</source>
        <translation>Pression</translation>
    </message>
    <message>
        <source>Short distances</source>
        <translation>Petites distances</translation>
    </message>
    <message>
        <source>Liquid</source>
        <translation>Liquide</translation>
    </message>
    <message>
        <source>Granular volume</source>
        <translation>Volume de granulés</translation>
    </message>
    <message>
        <source>Granular density</source>
        <translation>Densité de granulés</translation>
    </message>
    <message>
        <source>Positions</source>
        <translation>Positions</translation>
    </message>
    <message>
        <source>Rate per travel</source>
        <translation>Dose par distance</translation>
    </message>
    <message>
        <source>Basis of rates</source>
        <translation>Base des doses</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Langue</translation>
    </message>
    <message>
        <source>Decimal sign</source>
        <translation>Séparateur décimal</translation>
    </message>
    <message>
        <source>Time of day</source>
        <translation>Heure</translation>
    </message>
    <message>
        <source>Dates</source>
        <translation>Dates</translation>
    </message>
    <message>
        <source>Time zone set by hand</source>
        <translation>Fuseau horaire manuel</translation>
    </message>
    <message>
        <source>Time zone, hours</source>
        <translation>Fuseau, heures</translation>
    </message>
    <message>
        <source>Time zone, minutes</source>
        <translation>Fuseau, minutes</translation>
    </message>
    <message>
        <source>Clock less UTC</source>
        <translation>Horloge moins UTC</translation>
    </message>
    <message>
        <source>Source of the time</source>
        <translation>Source de l&apos;heure</translation>
    </message>
    <message>
        <source>Source of the time since</source>
        <translation>Source de l&apos;heure depuis</translation>
    </message>
    <message>
        <source>Newest receiver time</source>
        <translation>Dernière heure récepteur</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>Couleurs</translation>
    </message>
    <message>
        <source>Day and night</source>
        <translation>Jour et nuit</translation>
    </message>
    <message>
        <source>Map direction</source>
        <translation>Orientation carte</translation>
    </message>
    <message>
        <source>Tiles</source>
        <translation>Tuiles</translation>
    </message>
    <message>
        <source>Light bar at night</source>
        <translation>Barre lumineuse la nuit</translation>
    </message>
    <message>
        <source>Screen at night</source>
        <translation>Écran la nuit</translation>
    </message>
    <message>
        <source>Button lights at night</source>
        <translation>Éclairage des boutons la nuit</translation>
    </message>
    <message>
        <source>Switched by the sun</source>
        <translation>Commutation par le soleil</translation>
    </message>
    <message>
        <source>Client</source>
        <translation>Client</translation>
    </message>
    <message>
        <source>Farm</source>
        <translation>Ferme</translation>
    </message>
    <message>
        <source>Field</source>
        <translation>Parcelle</translation>
    </message>
    <message>
        <source>Job</source>
        <translation>Tâche</translation>
    </message>
    <message>
        <source>Vehicle</source>
        <translation>Véhicule</translation>
    </message>
    <message>
        <source>Implement</source>
        <translation>Outil</translation>
    </message>
    <message>
        <source>Sprayer</source>
        <translation>Pulvérisateur</translation>
    </message>
    <message>
        <source>Boom leveller</source>
        <translation>Correcteur de rampe</translation>
    </message>
    <message>
        <source>Steering profile</source>
        <translation>Profil de direction</translation>
    </message>
    <message>
        <source>Boundary</source>
        <translation>Contour</translation>
    </message>
    <message>
        <source>A-B line</source>
        <translation>Ligne A-B</translation>
    </message>
    <message>
        <source>Pivot</source>
        <translation>Pivot</translation>
    </message>
    <message>
        <source>Curve</source>
        <translation>Courbe</translation>
    </message>
    <message>
        <source>Optimal lines</source>
        <translation>Lignes optimales</translation>
    </message>
    <message>
        <source>Project lines</source>
        <translation>Lignes de projet</translation>
    </message>
    <message>
        <source>Zones</source>
        <translation>Zones</translation>
    </message>
    <message>
        <source>Receiver address</source>
        <translation>Adresse du récepteur</translation>
    </message>
    <message>
        <source>Internal drive</source>
        <translation>Disque interne</translation>
    </message>
    <message>
        <source>Stick</source>
        <translation>Clé USB</translation>
    </message>
    <message>
        <source>Implement folder</source>
        <translation>Dossier de l&apos;outil</translation>
    </message>
    <message>
        <source>Next NMEA log</source>
        <translation>Prochain journal NMEA</translation>
    </message>
    <message>
        <source>Next user log</source>
        <translation>Prochain journal opérateur</translation>
    </message>
    <message>
        <source>Identity</source>
        <translation>Identifiant</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texte</translation>
    </message>
    <message>
        <source>Colour of texts</source>
        <translation>Couleur des textes</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titre</translation>
    </message>
    <message>
        <source>Colour of titles</source>
        <translation>Couleur des titres</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Arrière-plan</translation>
    </message>
    <message>
        <source>Colour of the background</source>
        <translation>Couleur de l&apos;arrière-plan</translation>
    </message>
    <message>
        <source>Button</source>
        <translation>Bouton</translation>
    </message>
    <message>
        <source>Colour of buttons</source>
        <translation>Couleur des boutons</translation>
    </message>
    <message>
        <source>Button text</source>
        <translation>Texte du bouton</translation>
    </message>
    <message>
        <source>Colour of texts on buttons</source>
        <translation>Couleur des textes des boutons</translation>
    </message>
    <message>
        <source>Map</source>
        <translation>Carte</translation>
    </message>
    <message>
        <source>Colour of the map&apos;s ground</source>
        <translation>Couleur du fond de la carte</translation>
    </message>
    <message>
        <source>Grid</source>
        <translation>Grille</translation>
    </message>
    <message>
        <source>Colour of the map&apos;s grid</source>
        <translation>Couleur de la grille de la carte</translation>
    </message>
    <message>
        <source>Coverage</source>
        <translation>Couverture</translation>
    </message>
    <message>
        <source>Colour of covered ground</source>
        <translation>Couleur du sol couvert</translation>
    </message>
    <message>
        <source>Vehicle on the map</source>
        <translation>Véhicule sur la carte</translation>
    </message>
    <message>
        <source>Colour of the vehicle</source>
        <translation>Couleur du véhicule</translation>
    </message>
    <message>
        <source>Guidance line</source>
        <translation>Ligne de guidage</translation>
    </message>
    <message>
        <source>Colour of the guidance line</source>
        <translation>Couleur de la ligne de guidage</translation>
    </message>
    <message>
        <source>Cross hairs</source>
        <translation>Réticule</translation>
    </message>
    <message>
        <source>Colour of the cross hairs</source>
        <translation>Couleur du réticule</translation>
    </message>
    <message>
        <source>Outer boundary</source>
        <translation>Contour extérieur</translation>
    </message>
    <message>
        <source>Colour of the outer boundary of the field</source>
        <translation>Couleur du contour extérieur de la parcelle</translation>
    </message>
    <message>
        <source>Inner boundary</source>
        <translation>Contour intérieur</translation>
    </message>
    <message>
        <source>Colour of boundaries within the field</source>
        <translation>Couleur des contours dans la parcelle</translation>
    </message>
    <message>
        <source>Other boundaries</source>
        <translation>Autres contours</translation>
    </message>
    <message>
        <source>Colour of boundaries that are not active</source>
        <translation>Couleur des contours non actifs</translation>
    </message>
    <message>
        <source>Exclusion zone</source>
        <translation>Zone d&apos;exclusion</translation>
    </message>
    <message>
        <source>Colour of zones to keep out of</source>
        <translation>Couleur des zones à éviter</translation>
    </message>
    <message>
        <source>Background picture</source>
        <translation>Image de fond</translation>
    </message>
    <message>
        <source>Number of the background picture</source>
        <translation>Numéro de l&apos;image de fond</translation>
    </message>
    <message>
        <source>what the sprayer&apos;s rates are related to</source>
        <translation>ce à quoi se rapportent les doses du pulvérisateur</translation>
    </message>
    <message>
        <source>liquid rates per 100 m or 100 yd of travel, while travel is their basis</source>
        <translation>doses de liquide pour 100 m ou 100 yd parcourus, tant que la distance est leur base</translation>
    </message>
    <message>
        <source>since when the clock has its time from there</source>
        <translation>depuis quand l&apos;horloge reçoit son heure de cette source</translation>
    </message>
    <message>
        <source>Metric</source>
        <translation>Métrique</translation>
    </message>
    <message>
        <source>US or English</source>
        <translation>US ou impérial</translation>
    </message>
    <message>
        <source>US</source>
        <translation>US</translation>
    </message>
    <message>
        <source>English</source>
        <translation>Impérial</translation>
    </message>
    <message>
        <source>Deg., min., s</source>
        <translation>Degrés, min, s</translation>
    </message>
    <message>
        <source>Degrees</source>
        <translation>Degrés</translation>
    </message>
    <message>
        <source>24 hours</source>
        <translation>24 heures</translation>
    </message>
    <message>
        <source>am, pm</source>
        <translation>am, pm</translation>
    </message>
    <message>
        <source>Month first</source>
        <translation>Mois d&apos;abord</translation>
    </message>
    <message>
        <source>Day first</source>
        <translation>Jour d&apos;abord</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Jour</translation>
    </message>
    <message>
        <source>Night</source>
        <translation>Nuit</translation>
    </message>
    <message>
        <source>Heading up</source>
        <translation>Cap en haut</translation>
    </message>
    <message>
        <source>North up</source>
        <translation>Nord en haut</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Marche</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Arrêt</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Oui</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Non</translation>
    </message>
    <message>
        <source>Travel</source>
        <translation>Distance</translation>
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
        <translation>Pouce</translation>
    </message>
    <message>
        <source>Foot</source>
        <translation>Pied</translation>
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
        <translation>Boisseau US</translation>
    </message>
    <message>
        <source>UK bushel</source>
        <translation>Boisseau UK</translation>
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
        <translation>Point</translation>
    </message>
    <message>
        <source>Comma</source>
        <translation>Virgule</translation>
    </message>
    <message>
        <source>By hand</source>
        <translation>Manuel</translation>
    </message>
    <message>
        <source>Sunset</source>
        <translation>Coucher du soleil</translation>
    </message>
    <message>
        <source>Twilight</source>
        <translation>Crépuscule</translation>
    </message>
    <message>
        <source>Not set</source>
        <translation>Non réglé</translation>
    </message>
    <message>
        <source>Operator</source>
        <translation>Opérateur</translation>
    </message>
    <message>
        <source>Receiver</source>
        <translation>Récepteur</translation>
    </message>
    <message>
        <source>Rate</source>
        <translation>Dose</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Vitesse</translation>
    </message>
    <message>
        <source>Area done</source>
        <translation>Surface faite</translation>
    </message>
    <message>
        <source>Area left</source>
        <translation>Surface restante</translation>
    </message>
    <message>
        <source>Productivity</source>
        <translation>Débit de chantier</translation>
    </message>
    <message>
        <source>Flow</source>
        <translation>Débit</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Température</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>Distance</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Heure</translation>
    </message>
    <message>
        <source>Units</source>
        <translation>Unités</translation>
    </message>
    <message>
        <source>Rates</source>
        <translation>Doses</translation>
    </message>
    <message>
        <source>Region</source>
        <translation>Région</translation>
    </message>
    <message>
        <source>Clock</source>
        <translation>Horloge</translation>
    </message>
    <message>
        <source>Colours of the schemes</source>
        <translation>Couleurs des thèmes</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Affichage</translation>
    </message>
    <message>
        <source>Selections</source>
        <translation>Sélection</translation>
    </message>
    <message>
        <source>Storage</source>
        <translation>Stockage</translation>
    </message>
    <message>
        <source>Logs</source>
        <translation>Journaux</translation>
    </message>
    <message>
        <source>Terminal</source>
        <translation>Terminal</translation>
    </message>
    <message>
        <source>%1, by day</source>
        <translation>%1, de jour</translation>
    </message>
    <message>
        <source>%1, by night</source>
        <translation>%1, de nuit</translation>
    </message>
</context>
<context>
    <name>Problems</name>
    <message>
        <source>The logs lose lines: their drive is full or cannot be written.</source>
        <translation>Les journaux perdent des lignes&#xa0;: leur disque est plein ou l&apos;écriture est impossible.</translation>
    </message>
    <message>
        <source>Recording is off, because there is too little room.</source>
        <translation>L&apos;enregistrement est arrêté, faute de place.</translation>
    </message>
    <message>
        <source>Changes of settings are not stored yet. %1</source>
        <translation>Des réglages modifiés ne sont pas encore enregistrés. %1</translation>
    </message>
    <message>
        <source>The drive of the terminal is nearly full. Free: %1</source>
        <translation>Le disque du terminal est presque plein. Libres&#xa0;: %1</translation>
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
        <translation>Le terminal a déjà ces réglages.</translation>
    </message>
    <message>
        <source>Changed here and in the profile</source>
        <translation>Modifié ici et dans le profil</translation>
    </message>
    <message>
        <source>Which value the settings below shall have</source>
        <translation>Quelle valeur les réglages ci-dessous doivent prendre</translation>
    </message>
    <message>
        <source>Ours</source>
        <translation>Ici</translation>
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
        <translation>Profils</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exporter</translation>
    </message>
    <message>
        <source>There is no profile on the stick.</source>
        <translation>Il n&apos;y a pas de profil sur la clé USB.</translation>
    </message>
    <message>
        <source>No stick is plugged in.</source>
        <translation>Aucune clé USB n&apos;est branchée.</translation>
    </message>
    <message>
        <source>Name of the profile</source>
        <translation>Nom du profil</translation>
    </message>
</context>
<context>
    <name>Quantities</name>
    <message>
        <source>Area</source>
        <translation>Surface</translation>
    </message>
    <message>
        <source>Productivity</source>
        <translation>Débit de chantier</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Vitesse</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>Distance</translation>
    </message>
    <message>
        <source>Small distance</source>
        <translation>Petite distance</translation>
    </message>
    <message>
        <source>Travelled distance</source>
        <translation>Distance parcourue</translation>
    </message>
    <message>
        <source>Altitude</source>
        <translation>Altitude</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Température</translation>
    </message>
    <message>
        <source>Pressure</source>
        <translation>Pression</translation>
    </message>
    <message>
        <source>Rate</source>
        <translation>Dose</translation>
    </message>
    <message>
        <source>Requested rate</source>
        <translation>Dose de consigne</translation>
    </message>
    <message>
        <source>Rate and error</source>
        <translation>Dose et écart</translation>
    </message>
    <message>
        <source>Small rate</source>
        <translation>Petite dose</translation>
    </message>
    <message>
        <source>Flow</source>
        <translation>Débit</translation>
    </message>
    <message>
        <source>Small flow</source>
        <translation>Petit débit</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volume</translation>
    </message>
    <message>
        <source>Small volume</source>
        <translation>Petit volume</translation>
    </message>
    <message>
        <source>Granular volume</source>
        <translation>Volume de granulés</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>Poids</translation>
    </message>
    <message>
        <source>Weight per area</source>
        <translation>Poids par surface</translation>
    </message>
    <message>
        <source>Weight per area and error</source>
        <translation>Poids par surface et écart</translation>
    </message>
    <message>
        <source>Discharge</source>
        <translation>Débit massique</translation>
    </message>
    <message>
        <source>Nitrogen</source>
        <translation>Azote</translation>
    </message>
    <message>
        <source>Nitrogen per area</source>
        <translation>Azote par surface</translation>
    </message>
    <message>
        <source>Seeds per area</source>
        <translation>Grains par surface</translation>
    </message>
    <message>
        <source>Density</source>
        <translation>Densité</translation>
    </message>
    <message>
        <source>Granular density</source>
        <translation>Densité de granulés</translation>
    </message>
    <message>
        <source>Volume per revolution</source>
        <translation>Volume par tour</translation>
    </message>
    <message>
        <source>Weight per revolution</source>
        <translation>Poids par tour</translation>
    </message>
    <message>
        <source>Flow meter</source>
        <translation>Débitmètre</translation>
    </message>
    <message>
        <source>Wheel sensor</source>
        <translation>Capteur de roue</translation>
    </message>
    <message>
        <source>Speed sensor</source>
        <translation>Capteur de vitesse</translation>
    </message>
    <message>
        <source>Latitude</source>
        <translation>Latitude</translation>
    </message>
    <message>
        <source>Longitude</source>
        <translation>Longitude</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Durée</translation>
    </message>
    <message>
        <source>Percent</source>
        <translation>Pourcentage</translation>
    </message>
</context>
<context>
    <name>Question</name>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>RateTile</name>
    <message>
        <source>set %1</source>
        <comment>the rate that is set</comment>
        <translation>consigne %1</translation>
    </message>
</context>
<context>
    <name>Receiver</name>
    <message>
        <source>Off</source>
        <translation>Arrêt</translation>
    </message>
    <message>
        <source>Connecting</source>
        <translation>Connexion</translation>
    </message>
    <message>
        <source>Receiving</source>
        <translation>Réception</translation>
    </message>
    <message>
        <source>Silent</source>
        <translation>Sans données</translation>
    </message>
    <message>
        <source>Lost</source>
        <translation>Perdu</translation>
    </message>
    <message>
        <source>Ended</source>
        <translation>Terminé</translation>
    </message>
    <message>
        <source>No fix</source>
        <translation>Sans position</translation>
    </message>
    <message>
        <source>RTK float</source>
        <translation>RTK flottant</translation>
    </message>
    <message>
        <source>Estimated</source>
        <translation>Estimation</translation>
    </message>
    <message>
        <source>By hand</source>
        <translation>Manuel</translation>
    </message>
    <message>
        <source>Simulated</source>
        <translation>Simulation</translation>
    </message>
    <message>
        <source>The receiver sends nothing.</source>
        <translation>Le récepteur n&apos;envoie rien.</translation>
    </message>
    <message>
        <source>The receiver is lost and is being looked for. %1</source>
        <translation>Le récepteur est perdu et recherché. %1</translation>
    </message>
    <message>
        <source>The receiver cannot be read. %1</source>
        <translation>Le récepteur ne peut pas être lu. %1</translation>
    </message>
    <message>
        <source>The simulated field is done.</source>
        <translation>La parcelle simulée est terminée.</translation>
    </message>
    <message>
        <source>The recording of the receiver is over.</source>
        <translation>L&apos;enregistrement du récepteur est terminé.</translation>
    </message>
</context>
<context>
    <name>ReceiverPage</name>
    <message>
        <source>Receiver</source>
        <translation>Récepteur</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Arrêter</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Démarrer</translation>
    </message>
    <message>
        <source>Simulator</source>
        <translation>Simulateur</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fichier</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Réseau</translation>
    </message>
    <message>
        <source>Serial</source>
        <translation>Série</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adresse</translation>
    </message>
    <message>
        <source>Fix</source>
        <translation>Type de position</translation>
    </message>
    <message>
        <source>Age</source>
        <translation>Âge</translation>
    </message>
    <message>
        <source>Satellites</source>
        <translation>Satellites</translation>
    </message>
    <message>
        <source>HDOP</source>
        <translation>HDOP</translation>
    </message>
    <message>
        <source>Time (UTC)</source>
        <translation>Heure (UTC)</translation>
    </message>
    <message>
        <source>Lines</source>
        <translation>Lignes</translation>
    </message>
    <message>
        <source>Sentences</source>
        <translation>Trames</translation>
    </message>
    <message>
        <source>Bad checksums</source>
        <translation>Checksums erronés</translation>
    </message>
    <message>
        <source>Damaged lines</source>
        <translation>Lignes altérées</translation>
    </message>
    <message>
        <source>Address of the receiver</source>
        <translation>Adresse du récepteur</translation>
    </message>
</context>
<context>
    <name>RegionPage</name>
    <message>
        <source>Date</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Heure</translation>
    </message>
    <message>
        <source>Time zone</source>
        <translation>Fuseau horaire</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>Date et heure</translation>
    </message>
    <message>
        <source>Set by hand</source>
        <translation>Réglage manuel</translation>
    </message>
</context>
<context>
    <name>SearchPage</name>
    <message>
        <source>Search</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>Words of a setting</source>
        <translation>Mots d&apos;un réglage</translation>
    </message>
    <message>
        <source>No setting has these words.</source>
        <translation>Aucun réglage ne contient ces mots.</translation>
    </message>
</context>
<context>
    <name>SettingsPage</name>
    <message>
        <source>Units</source>
        <translation>Unités</translation>
    </message>
    <message>
        <source>Region</source>
        <translation>Région</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>Couleurs</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Affichage</translation>
    </message>
    <message>
        <source>Machine</source>
        <translation>Machine</translation>
    </message>
    <message>
        <source>Storage</source>
        <translation>Stockage</translation>
    </message>
    <message>
        <source>About</source>
        <translation>À propos</translation>
    </message>
    <message>
        <source>Tiles</source>
        <translation>Tuiles</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>Profils</translation>
    </message>
    <message>
        <source>All settings</source>
        <translation>Tous les réglages</translation>
    </message>
</context>
<context>
    <name>SettingsPanel</name>
    <message>
        <source>Back</source>
        <translation>Retour</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Rechercher</translation>
    </message>
</context>
<context>
    <name>Sizes</name>
    <message numerus="yes">
        <source>%n byte(s)</source>
        <translation>
            <numerusform>%n octet</numerusform>
            <numerusform>%n octets</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 kB</source>
        <translation>%1 ko</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1 Mo</translation>
    </message>
    <message>
        <source>%1 GB</source>
        <translation>%1 Go</translation>
    </message>
    <message>
        <source>%1 TB</source>
        <translation>%1 To</translation>
    </message>
</context>
<context>
    <name>StateBand</name>
    <message>
        <source>No job</source>
        <translation>Pas de tâche</translation>
    </message>
    <message>
        <source>Receiver: %1</source>
        <translation>Récepteur&#xa0;: %1</translation>
    </message>
    <message>
        <source>The stick is plugged in</source>
        <translation>La clé USB est branchée</translation>
    </message>
    <message>
        <source>Lock the screen</source>
        <translation>Verrouiller l&apos;écran</translation>
    </message>
    <message>
        <source>Colours of the night</source>
        <translation>Couleurs de nuit</translation>
    </message>
    <message>
        <source>Colours of the day</source>
        <translation>Couleurs de jour</translation>
    </message>
</context>
<context>
    <name>StoragePage</name>
    <message>
        <source>Open</source>
        <translation>Ouvrir</translation>
    </message>
    <message>
        <source>Internal drive</source>
        <translation>Disque interne</translation>
    </message>
    <message>
        <source>Stick</source>
        <translation>Clé USB</translation>
    </message>
    <message>
        <source>No stick is plugged in.</source>
        <translation>Aucune clé USB n&apos;est branchée.</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Mémoire vive</translation>
    </message>
    <message>
        <source>Logs</source>
        <translation>Journaux</translation>
    </message>
    <message>
        <source>Writes all log files to the stick</source>
        <translation>Écrit tous les journaux sur la clé USB</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exporter</translation>
    </message>
    <message>
        <source>Export the logs</source>
        <translation>Exporter les journaux</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>Profils</translation>
    </message>
    <message>
        <source>Takes the settings to another display, or brings them back from the stick</source>
        <translation>Porte les réglages sur un autre terminal, ou les reprend depuis la clé USB</translation>
    </message>
    <message>
        <source>Open the profiles</source>
        <translation>Ouvrir les profils</translation>
    </message>
    <message>
        <source>Support</source>
        <translation>Assistance</translation>
    </message>
    <message>
        <source>Writes logs, settings and versions in one file; without the names of clients, farms and fields</source>
        <translation>Écrit journaux, réglages et versions dans un seul fichier&#xa0;; sans les noms des clients, fermes et parcelles</translation>
    </message>
    <message>
        <source>Write</source>
        <translation>Écrire</translation>
    </message>
    <message>
        <source>Write the file for support without names</source>
        <translation>Écrire le fichier pour l&apos;assistance sans les noms</translation>
    </message>
    <message>
        <source>Support, with names</source>
        <translation>Assistance, avec noms</translation>
    </message>
    <message>
        <source>The same file, with all names and places</source>
        <translation>Le même fichier, avec tous les noms et lieux</translation>
    </message>
    <message>
        <source>Write the file for support with names</source>
        <translation>Écrire le fichier pour l&apos;assistance avec les noms</translation>
    </message>
</context>
<context>
    <name>TFieldTreeModel</name>
    <message>
        <source>A job holds no items.</source>
        <translation>Une tâche ne contient rien d&apos;autre.</translation>
    </message>
    <message>
        <source>There is one with this name already.</source>
        <translation>Ce nom existe déjà.</translation>
    </message>
    <message numerus="yes">
        <source>%n file(s), %1</source>
        <translation>
            <numerusform>%n fichier, %1</numerusform>
            <numerusform>%n fichiers, %1</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>TParameter</name>
    <message>
        <source>The setting could not be written to the disk yet.</source>
        <translation>Le réglage n&apos;a pas encore pu être écrit sur le disque.</translation>
    </message>
    <message>
        <source>There is no value to set.</source>
        <translation>Il n&apos;y a pas de valeur à régler.</translation>
    </message>
</context>
<context>
    <name>TRegionSettings</name>
    <message>
        <source>Jan</source>
        <translation>janv.</translation>
    </message>
    <message>
        <source>Feb</source>
        <translation>févr.</translation>
    </message>
    <message>
        <source>Mar</source>
        <translation>mars</translation>
    </message>
    <message>
        <source>Apr</source>
        <translation>avr.</translation>
    </message>
    <message>
        <source>May</source>
        <translation>mai</translation>
    </message>
    <message>
        <source>Jun</source>
        <translation>juin</translation>
    </message>
    <message>
        <source>Jul</source>
        <translation>juil.</translation>
    </message>
    <message>
        <source>Aug</source>
        <translation>août</translation>
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
        <translation>déc.</translation>
    </message>
</context>
<context>
    <name>TRestart</name>
    <message>
        <source>The new language is shown after a restart.</source>
        <translation>La nouvelle langue s&apos;affiche après un redémarrage.</translation>
    </message>
    <message>
        <source>The new decimal sign is shown after a restart.</source>
        <translation>Le nouveau séparateur décimal s&apos;affiche après un redémarrage.</translation>
    </message>
</context>
<context>
    <name>TSelections</name>
    <message>
        <source>The selection could not be stored.</source>
        <translation>La sélection n&apos;a pas pu être enregistrée.</translation>
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
        <translation>Aucun véhicule</translation>
    </message>
    <message>
        <source>No Profile</source>
        <translation>Aucun profil</translation>
    </message>
    <message>
        <source>No Implement</source>
        <translation>Aucun outil</translation>
    </message>
    <message>
        <source>Pivoted_</source>
        <translation>Traîné_</translation>
    </message>
</context>
<context>
    <name>TTransfer</name>
    <message>
        <source>The name is empty.</source>
        <translation>Le nom est vide.</translation>
    </message>
</context>
<context>
    <name>TUnitAbbreviations</name>
    <message>
        <source>Jan</source>
        <translation>janv.</translation>
    </message>
    <message>
        <source>Feb</source>
        <translation>févr.</translation>
    </message>
    <message>
        <source>Mar</source>
        <translation>mars</translation>
    </message>
    <message>
        <source>Apr</source>
        <translation>avr.</translation>
    </message>
    <message>
        <source>May</source>
        <translation>mai</translation>
    </message>
    <message>
        <source>Jun</source>
        <translation>juin</translation>
    </message>
    <message>
        <source>Jul</source>
        <translation>juil.</translation>
    </message>
    <message>
        <source>Aug</source>
        <translation>août</translation>
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
        <translation>déc.</translation>
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
        <translation>bu US</translation>
    </message>
    <message>
        <source>UK bu</source>
        <translation>bu UK</translation>
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
        <translation>L/tr</translation>
    </message>
    <message>
        <source>gal/rev</source>
        <translation>gal/tr</translation>
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
        <translation>kg/tr</translation>
    </message>
    <message>
        <source>lb/rev</source>
        <translation>lb/tr</translation>
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
        <translation>k grains/ha</translation>
    </message>
    <message>
        <source>KS/ac</source>
        <translation>k grains/ac</translation>
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
        <translation>tr/min</translation>
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
        <translation>Critique</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Trivial</source>
        <translation>Mineur</translation>
    </message>
</context>
<context>
    <name>TWork</name>
    <message>
        <source>An implement cannot have this width.</source>
        <translation>Un outil ne peut pas avoir cette largeur.</translation>
    </message>
    <message>
        <source>A file of this job cannot be used. %1</source>
        <translation>Un fichier de cette tâche est inutilisable. %1</translation>
    </message>
    <message>
        <source>Coverage was not complete and was left out: strips %1, bytes %2</source>
        <translation>Des données de couverture étaient incomplètes et ont été écartées&#xa0;: bandes %1, octets %2</translation>
    </message>
    <message>
        <source>The file of the flags is damaged; new flags are not stored.</source>
        <translation>Le fichier des drapeaux est endommagé&#xa0;; les nouveaux drapeaux ne sont pas enregistrés.</translation>
    </message>
    <message>
        <source>A file could not be stored. %1</source>
        <translation>Un fichier n&apos;a pas pu être enregistré. %1</translation>
    </message>
    <message>
        <source>The file of the implement cannot be used. %1</source>
        <translation>Le fichier de l&apos;outil est inutilisable. %1</translation>
    </message>
    <message>
        <source>There is no line.</source>
        <translation>Il n&apos;y a pas de ligne.</translation>
    </message>
    <message>
        <source>The line has no name.</source>
        <translation>La ligne n&apos;a pas de nom.</translation>
    </message>
    <message>
        <source>The guidance line cannot be used. %1</source>
        <translation>La ligne de guidage est inutilisable. %1</translation>
    </message>
    <message>
        <source>No job is chosen</source>
        <translation>Aucune tâche choisie</translation>
    </message>
    <message>
        <source>No job is chosen: what is covered is not stored.</source>
        <translation>Aucune tâche choisie&#xa0;: ce qui est couvert n&apos;est pas enregistré.</translation>
    </message>
    <message>
        <source>The coverage of this job cannot be used: what is covered is not stored.</source>
        <translation>La couverture de cette tâche est inutilisable&#xa0;: ce qui est couvert n&apos;est pas enregistré.</translation>
    </message>
    <message>
        <source>The coverage cannot be stored, and strips are lost: %1</source>
        <translation>La couverture ne peut pas être enregistrée et des bandes sont perdues&#xa0;: %1</translation>
    </message>
    <message>
        <source>The coverage is kept in memory until it can be stored. %1</source>
        <translation>La couverture reste en mémoire jusqu&apos;à ce qu&apos;elle puisse être enregistrée. %1</translation>
    </message>
    <message>
        <source>The job is still being read.</source>
        <translation>La tâche est encore en cours de lecture.</translation>
    </message>
</context>
<context>
    <name>TileTurner</name>
    <message>
        <source>Tiles</source>
        <translation>Tuiles</translation>
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
        <translation>Vitesse</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>Surface</translation>
    </message>
    <message>
        <source>Left</source>
        <comment>area that is left to work</comment>
        <translation>Reste</translation>
    </message>
    <message>
        <source>Work</source>
        <comment>area per hour</comment>
        <translation>Chantier</translation>
    </message>
    <message>
        <source>Flow</source>
        <translation>Débit</translation>
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
        <translation>Distance</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Heure</translation>
    </message>
</context>
<context>
    <name>TilesPage</name>
    <message>
        <source>Back to the first choice</source>
        <translation>Retour au premier choix</translation>
    </message>
    <message>
        <source>%1 further ahead</source>
        <translation>%1&#xa0;: monter</translation>
    </message>
    <message>
        <source>Shown</source>
        <translation>Affichée</translation>
    </message>
    <message>
        <source>Hidden</source>
        <translation>Masquée</translation>
    </message>
</context>
<context>
    <name>Transfer</name>
    <message>
        <source>Nothing is imported: some settings were changed here and in the profile.</source>
        <translation>Rien n&apos;est importé&#xa0;: certains réglages ont été modifiés ici et dans le profil.</translation>
    </message>
    <message>
        <source>No stick is plugged in.</source>
        <translation>Aucune clé USB n&apos;est branchée.</translation>
    </message>
    <message>
        <source>The stick was removed before everything was on it.</source>
        <translation>La clé USB a été retirée avant que tout y soit écrit.</translation>
    </message>
    <message>
        <source>The stick could not be written to the end.</source>
        <translation>L&apos;écriture sur la clé USB n&apos;a pas pu être terminée.</translation>
    </message>
    <message>
        <source>The folder %1 cannot be made.</source>
        <translation>Le dossier %1 ne peut pas être créé.</translation>
    </message>
    <message>
        <source>The file %1 cannot be written.</source>
        <translation>Le fichier %1 ne peut pas être écrit.</translation>
    </message>
    <message>
        <source>The logs are on the stick (files: %1).</source>
        <translation>Les journaux sont sur la clé USB (fichiers&#xa0;: %1).</translation>
    </message>
    <message>
        <source>The profile cannot be used. %1</source>
        <translation>Le profil est inutilisable. %1</translation>
    </message>
    <message>
        <source>Nothing is imported. %1</source>
        <translation>Rien n&apos;est importé. %1</translation>
    </message>
    <message>
        <source>This display</source>
        <translation>Ce terminal</translation>
    </message>
    <message>
        <source>Another display</source>
        <translation>Un autre terminal</translation>
    </message>
    <message>
        <source>The profile is not on the stick. %1</source>
        <translation>Le profil n&apos;est pas sur la clé USB. %1</translation>
    </message>
    <message>
        <source>The profile is on the stick: %1.</source>
        <translation>Le profil est sur la clé USB&#xa0;: %1.</translation>
    </message>
    <message>
        <source>The file for support is not on the stick. %1</source>
        <translation>Le fichier pour l&apos;assistance n&apos;est pas sur la clé USB. %1</translation>
    </message>
    <message>
        <source>The file for support is on the stick: %1.</source>
        <translation>Le fichier pour l&apos;assistance est sur la clé USB&#xa0;: %1.</translation>
    </message>
    <message>
        <source>The profile is imported (settings changed: %1).</source>
        <translation>Le profil est importé (réglages modifiés&#xa0;: %1).</translation>
    </message>
    <message>
        <source>It cannot be used.</source>
        <translation>Utilisation impossible.</translation>
    </message>
</context>
<context>
    <name>TransferState</name>
    <message>
        <source>Reading</source>
        <translation>Lecture</translation>
    </message>
    <message>
        <source>Writing</source>
        <translation>Écriture</translation>
    </message>
    <message>
        <source>Leave the stick where it is until this is done.</source>
        <translation>Laisser la clé USB en place jusqu&apos;à la fin.</translation>
    </message>
</context>
<context>
    <name>WorkPage</name>
    <message>
        <source>Waiting for a position</source>
        <translation>En attente d&apos;une position</translation>
    </message>
    <message>
        <source>Map</source>
        <translation>Carte</translation>
    </message>
</context>
<context>
    <name>WorkingButton</name>
    <message>
        <source>Working</source>
        <translation>En travail</translation>
    </message>
    <message>
        <source>Not working</source>
        <translation>Hors travail</translation>
    </message>
    <message>
        <source>Working. Switch the implement off</source>
        <translation>En travail. Arrêter l&apos;outil</translation>
    </message>
    <message>
        <source>Not working. Switch the implement on</source>
        <translation>Hors travail. Mettre l&apos;outil en marche</translation>
    </message>
</context>
</TS>
