<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="el" sourcelanguage="en">
<context>
    <name>About</name>
    <message>
        <source>Windows, files and connections</source>
        <translation>Παράθυρα, αρχεία και συνδέσεις</translation>
    </message>
    <message>
        <source>The file of the settings</source>
        <translation>Το αρχείο των ρυθμίσεων</translation>
    </message>
    <message>
        <source>Profiles of settings</source>
        <translation>Προφίλ ρυθμίσεων</translation>
    </message>
    <message>
        <source>Files for support</source>
        <translation>Αρχεία για υποστήριξη</translation>
    </message>
    <message>
        <source>Sunrise and sunset</source>
        <translation>Ανατολή και δύση ηλίου</translation>
    </message>
    <message>
        <source>Boundaries and zones</source>
        <translation>Όρια και ζώνες</translation>
    </message>
    <message>
        <source>Software</source>
        <translation>Λογισμικό</translation>
    </message>
    <message>
        <source>The software of this display</source>
        <translation>Το λογισμικό αυτού του τερματικού</translation>
    </message>
    <message>
        <source>Settings, units and logs</source>
        <translation>Ρυθμίσεις, μονάδες και καταγραφές</translation>
    </message>
</context>
<context>
    <name>Clock</name>
    <message>
        <source>The clock of the machine; nothing has set it.</source>
        <translation>Το ρολόι της συσκευής. Δεν έχει ρυθμιστεί.</translation>
    </message>
    <message>
        <source>The clock was set by hand.</source>
        <translation>Το ρολόι ρυθμίστηκε με το χέρι.</translation>
    </message>
    <message>
        <source>The receiver sets the clock.</source>
        <translation>Ο δέκτης ρυθμίζει το ρολόι.</translation>
    </message>
    <message>
        <source>There is no such date or time.</source>
        <translation>Δεν υπάρχει τέτοια ημερομηνία ή ώρα.</translation>
    </message>
    <message>
        <source>The date is more than 68 years from the clock of the machine.</source>
        <translation>Η ημερομηνία απέχει πάνω από 68 χρόνια από το ρολόι της συσκευής.</translation>
    </message>
    <message>
        <source>The clock could not be stored.</source>
        <translation>Δεν ήταν δυνατή η αποθήκευση του ρολογιού.</translation>
    </message>
</context>
<context>
    <name>ClockEntry</name>
    <message>
        <source>Year</source>
        <translation>Έτος</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>Μήνας</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Ημέρα</translation>
    </message>
    <message>
        <source>Hour</source>
        <translation>Ώρα</translation>
    </message>
    <message>
        <source>Minute</source>
        <translation>Λεπτό</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>Ημερομηνία, ώρα</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Ώρα</translation>
    </message>
    <message>
        <source>%1: more</source>
        <translation>%1: αύξηση</translation>
    </message>
    <message>
        <source>%1: less</source>
        <translation>%1: μείωση</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Ακύρωση</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>Αποδοχή</translation>
    </message>
</context>
<context>
    <name>ColorBar</name>
    <message>
        <source>%1: less</source>
        <translation>%1: μείωση</translation>
    </message>
    <message>
        <source>%1: more</source>
        <translation>%1: αύξηση</translation>
    </message>
</context>
<context>
    <name>ColorPage</name>
    <message>
        <source>Former</source>
        <translation>Πριν</translation>
    </message>
    <message>
        <source>Former colour</source>
        <translation>Προηγ. χρώμα</translation>
    </message>
    <message>
        <source>First value</source>
        <translation>Εργοστ. τιμή</translation>
    </message>
    <message>
        <source>Digits of the colour</source>
        <translation>Ψηφία του χρώματος</translation>
    </message>
    <message>
        <source>Hue</source>
        <translation>Απόχρωση</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Κορεσμός</translation>
    </message>
    <message>
        <source>Lightness</source>
        <translation>Φωτεινότητα</translation>
    </message>
</context>
<context>
    <name>ColorsPage</name>
    <message>
        <source>Day</source>
        <translation>Ημέρα</translation>
    </message>
    <message>
        <source>Night</source>
        <translation>Νύχτα</translation>
    </message>
</context>
<context>
    <name>Contrasts</name>
    <message>
        <source>on %1: %2</source>
        <translation>σε «%1»: %2</translation>
    </message>
    <message>
        <source>under %1: %2</source>
        <translation>κάτω από «%1»: %2</translation>
    </message>
    <message>
        <source>%1, too low: at least %2</source>
        <translation>%1, πολύ χαμηλό: τουλάχιστον %2</translation>
    </message>
</context>
<context>
    <name>Difference</name>
    <message>
        <source>Changed on both sides</source>
        <translation>Αλλαγή και στα δύο</translation>
    </message>
    <message>
        <source>Here</source>
        <translation>Εδώ</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>Προφίλ</translation>
    </message>
</context>
<context>
    <name>Display</name>
    <message>
        <source>Restart</source>
        <translation>Επανεκκίνηση</translation>
    </message>
    <message>
        <source>The fonts of the display</source>
        <translation>Οι γραμματοσειρές του τερματικού</translation>
    </message>
    <message>
        <source>The keyboard on the screen</source>
        <translation>Το πληκτρολόγιο στην οθόνη</translation>
    </message>
</context>
<context>
    <name>DoorBand</name>
    <message>
        <source>Work</source>
        <translation>Λειτουργία</translation>
    </message>
    <message>
        <source>Fields</source>
        <translation>Αγροί</translation>
    </message>
    <message>
        <source>Receiver</source>
        <translation>Δέκτης</translation>
    </message>
    <message>
        <source>Logs</source>
        <translation>Καταγραφές</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ρυθμίσεις</translation>
    </message>
</context>
<context>
    <name>Drives</name>
    <message>
        <source>%1 free of %2</source>
        <translation>ελεύθερα %1 από %2</translation>
    </message>
    <message>
        <source>Not known</source>
        <translation>Άγνωστο</translation>
    </message>
    <message>
        <source>No stick</source>
        <translation>Χωρίς στικ</translation>
    </message>
</context>
<context>
    <name>FieldsPage</name>
    <message>
        <source>Clients</source>
        <translation>Πελάτες</translation>
    </message>
    <message>
        <source>New client</source>
        <translation>Νέος πελάτης</translation>
    </message>
    <message>
        <source>No client yet.</source>
        <translation>Κανένας πελάτης ακόμη.</translation>
    </message>
    <message>
        <source>Farms</source>
        <translation>Αγροκτήματα</translation>
    </message>
    <message>
        <source>New farm</source>
        <translation>Νέο αγρόκτημα</translation>
    </message>
    <message>
        <source>No farm yet.</source>
        <translation>Κανένα αγρόκτημα ακόμη.</translation>
    </message>
    <message>
        <source>Fields</source>
        <translation>Αγροί</translation>
    </message>
    <message>
        <source>New field</source>
        <translation>Νέος αγρός</translation>
    </message>
    <message>
        <source>No field yet.</source>
        <translation>Κανένας αγρός ακόμη.</translation>
    </message>
    <message>
        <source>Jobs</source>
        <translation>Εργασίες</translation>
    </message>
    <message>
        <source>New job</source>
        <translation>Νέα εργασία</translation>
    </message>
    <message>
        <source>No job yet.</source>
        <translation>Καμία εργασία ακόμη.</translation>
    </message>
    <message>
        <source>Remove %1 with everything in it?</source>
        <translation>Διαγραφή: %1 με όλο το περιεχόμενο;</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Rename or remove %1</source>
        <translation>Μετονομασία ή διαγραφή: %1</translation>
    </message>
    <message>
        <source>Rename %1</source>
        <translation>Μετονομασία: %1</translation>
    </message>
    <message>
        <source>Remove everything</source>
        <translation>Διαγραφή όλων</translation>
    </message>
</context>
<context>
    <name>Host</name>
    <message>
        <source>Details for the support: %1</source>
        <translation>Λεπτομέρειες για υποστήριξη: %1</translation>
    </message>
    <message>
        <source>%3 Try: %4</source>
        <translation>%3 Δυνατό όνομα: %4</translation>
    </message>
    <message>
        <source>This name is not possible.</source>
        <translation>Αυτό το όνομα δεν είναι δυνατό.</translation>
    </message>
    <message>
        <source>The name is empty.</source>
        <translation>Το όνομα είναι κενό.</translation>
    </message>
    <message>
        <source>This name stands for another folder.</source>
        <translation>Αυτό το όνομα δηλώνει άλλον φάκελο.</translation>
    </message>
    <message>
        <source>The name must not contain %1.</source>
        <translation>Το όνομα δεν πρέπει να περιέχει %1.</translation>
    </message>
    <message>
        <source>The name contains a sign that cannot be seen.</source>
        <translation>Το όνομα περιέχει έναν αόρατο χαρακτήρα.</translation>
    </message>
    <message>
        <source>The name contains a sign that is not complete.</source>
        <translation>Το όνομα περιέχει έναν ελλιπή χαρακτήρα.</translation>
    </message>
    <message>
        <source>The name must not end in a full stop or a blank.</source>
        <translation>Το όνομα δεν πρέπει να τελειώνει με τελεία ή κενό.</translation>
    </message>
    <message>
        <source>The name must not begin with a blank.</source>
        <translation>Το όνομα δεν πρέπει να αρχίζει με κενό.</translation>
    </message>
    <message>
        <source>A stick cannot hold a file with this name.</source>
        <translation>Ένα στικ δεν δέχεται αρχείο με αυτό το όνομα.</translation>
    </message>
    <message>
        <source>The name is too long.</source>
        <translation>Το όνομα είναι πολύ μεγάλο.</translation>
    </message>
    <message>
        <source>%2 exists already.</source>
        <translation>%2 υπάρχει ήδη.</translation>
    </message>
    <message numerus="yes">
        <source>%2 is active and holds %n file(s).</source>
        <translation>
            <numerusform>%2 είναι σε χρήση και περιέχει %n αρχείο.</numerusform>
            <numerusform>%2 είναι σε χρήση και περιέχει %n αρχεία.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%2 holds %n file(s).</source>
        <translation>
            <numerusform>%2 περιέχει %n αρχείο.</numerusform>
            <numerusform>%2 περιέχει %n αρχεία.</numerusform>
        </translation>
    </message>
    <message>
        <source>%2 is active.</source>
        <translation>%2 είναι σε χρήση.</translation>
    </message>
    <message>
        <source>%2 is no longer there.</source>
        <translation>%2 δεν υπάρχει πια.</translation>
    </message>
    <message>
        <source>A stick cannot tell %2 from %3.</source>
        <translation>Ένα στικ δεν ξεχωρίζει %2 από %3.</translation>
    </message>
    <message>
        <source>Another program is working on the fields. Try again later.</source>
        <translation>Άλλο πρόγραμμα εργάζεται στους αγρούς. Νέα προσπάθεια αργότερα.</translation>
    </message>
    <message>
        <source>The selection could not be stored.</source>
        <translation>Δεν ήταν δυνατή η αποθήκευση της επιλογής.</translation>
    </message>
    <message>
        <source>%1 is neither a file nor a folder.</source>
        <translation>%1 δεν είναι ούτε αρχείο ούτε φάκελος.</translation>
    </message>
    <message>
        <source>The file was edited or is damaged.</source>
        <translation>Το αρχείο τροποποιήθηκε ή είναι κατεστραμμένο.</translation>
    </message>
    <message>
        <source>%1 cannot be read. %2</source>
        <translation>Αδύνατη η ανάγνωση: %1. %2</translation>
    </message>
    <message>
        <source>The file is of another kind.</source>
        <translation>Το αρχείο είναι άλλου είδους.</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>Το αρχείο είναι κενό.</translation>
    </message>
    <message>
        <source>The end of the file is missing.</source>
        <translation>Λείπει το τέλος του αρχείου.</translation>
    </message>
    <message>
        <source>The file is damaged.</source>
        <translation>Το αρχείο είναι κατεστραμμένο.</translation>
    </message>
    <message>
        <source>The file is not complete.</source>
        <translation>Το αρχείο δεν είναι πλήρες.</translation>
    </message>
    <message>
        <source>The file is from another version of the software.</source>
        <translation>Το αρχείο είναι από άλλη έκδοση του λογισμικού.</translation>
    </message>
    <message>
        <source>The file has a value that is not possible: %2</source>
        <translation>Το αρχείο έχει μη αποδεκτή τιμή: %2</translation>
    </message>
    <message>
        <source>The file has a value twice: %2</source>
        <translation>Το αρχείο έχει μια ρύθμιση δύο φορές: %2</translation>
    </message>
    <message>
        <source>This address is not possible: %1</source>
        <translation>Αυτή η διεύθυνση δεν είναι δυνατή: %1</translation>
    </message>
    <message>
        <source>The device is not there.</source>
        <translation>Η συσκευή λείπει.</translation>
    </message>
    <message>
        <source>It is not permitted, or another program uses it.</source>
        <translation>Δεν επιτρέπεται ή χρησιμοποιείται από άλλο πρόγραμμα.</translation>
    </message>
    <message>
        <source>Another program uses it.</source>
        <translation>Χρησιμοποιείται από άλλο πρόγραμμα.</translation>
    </message>
    <message>
        <source>It cannot be read.</source>
        <translation>Αδύνατη η ανάγνωση.</translation>
    </message>
    <message>
        <source>It was unplugged.</source>
        <translation>Αποσυνδέθηκε.</translation>
    </message>
    <message>
        <source>It is not a serial device, or it cannot have this speed.</source>
        <translation>Δεν είναι σειριακή συσκευή ή δεν μπορεί να έχει αυτή την ταχύτητα.</translation>
    </message>
    <message>
        <source>The serial port has a fault (number %1).</source>
        <translation>Η σειριακή θύρα έχει βλάβη (αριθμός %1).</translation>
    </message>
    <message>
        <source>%1 is damaged or of another kind.</source>
        <translation>Το αρχείο %1 είναι κατεστραμμένο ή άλλου είδους.</translation>
    </message>
    <message>
        <source>%1 is from another version of the software.</source>
        <translation>Το αρχείο %1 είναι από άλλη έκδοση του λογισμικού.</translation>
    </message>
    <message>
        <source>%1 is damaged.</source>
        <translation>Το αρχείο %1 είναι κατεστραμμένο.</translation>
    </message>
    <message>
        <source>%1 has other coordinates than WGS84.</source>
        <translation>Το αρχείο %1 δεν έχει συντεταγμένες WGS84.</translation>
    </message>
    <message>
        <source>%1 is not complete. %2 is missing.</source>
        <translation>Το αρχείο %1 δεν είναι πλήρες. Λείπει: %2.</translation>
    </message>
    <message>
        <source>%1 has no areas.</source>
        <translation>Το αρχείο %1 δεν έχει εκτάσεις.</translation>
    </message>
    <message>
        <source>Another program uses %1.</source>
        <translation>Άλλο πρόγραμμα χρησιμοποιεί: %1.</translation>
    </message>
    <message>
        <source>A and B are too close together or too far apart.</source>
        <translation>Τα A και B είναι πολύ κοντά ή πολύ μακριά μεταξύ τους.</translation>
    </message>
    <message>
        <source>Another program has locked it.</source>
        <translation>Είναι κλειδωμένο από άλλο πρόγραμμα.</translation>
    </message>
    <message>
        <source>It is no longer there.</source>
        <translation>Το αρχείο δεν υπάρχει πια.</translation>
    </message>
    <message>
        <source>%1 is no longer there.</source>
        <translation>%1 δεν υπάρχει πια.</translation>
    </message>
    <message>
        <source>%1 cannot be written. %2</source>
        <translation>Αδύνατη η εγγραφή: %1. %2</translation>
    </message>
    <message>
        <source>%1 cannot be written.</source>
        <translation>Αδύνατη η εγγραφή: %1.</translation>
    </message>
    <message>
        <source>The file of the settings has a fault (number %1).</source>
        <translation>Το αρχείο των ρυθμίσεων έχει σφάλμα (αριθμός %1).</translation>
    </message>
    <message>
        <source>%1 cannot be opened. %2</source>
        <translation>Αδύνατο το άνοιγμα: %1. %2</translation>
    </message>
    <message>
        <source>%1 cannot be created. %2</source>
        <translation>Αδύνατη η δημιουργία: %1. %2</translation>
    </message>
    <message>
        <source>%1 cannot be copied. %2</source>
        <translation>Αδύνατη η αντιγραφή: %1. %2</translation>
    </message>
    <message>
        <source>%1 cannot be renamed. %2</source>
        <translation>Αδύνατη η μετονομασία: %1. %2</translation>
    </message>
    <message>
        <source>%1 cannot be removed. %2</source>
        <translation>Αδύνατη η διαγραφή: %1. %2</translation>
    </message>
    <message>
        <source>The drive is full.</source>
        <translation>Ο δίσκος είναι γεμάτος.</translation>
    </message>
    <message>
        <source>The drive has a fault.</source>
        <translation>Ο δίσκος έχει βλάβη.</translation>
    </message>
    <message>
        <source>The drive can only be read.</source>
        <translation>Ο δίσκος είναι μόνο για ανάγνωση.</translation>
    </message>
    <message>
        <source>It is not permitted.</source>
        <translation>Δεν επιτρέπεται.</translation>
    </message>
    <message>
        <source>It cannot be opened.</source>
        <translation>Αδύνατο το άνοιγμα.</translation>
    </message>
    <message>
        <source>It is damaged.</source>
        <translation>Το αρχείο είναι κατεστραμμένο.</translation>
    </message>
    <message>
        <source>It is not there.</source>
        <translation>Η διαδρομή δεν υπάρχει.</translation>
    </message>
    <message>
        <source>It exists already.</source>
        <translation>Το όνομα υπάρχει ήδη.</translation>
    </message>
    <message>
        <source>It is a folder.</source>
        <translation>Είναι φάκελος.</translation>
    </message>
    <message>
        <source>It is not a folder.</source>
        <translation>Δεν είναι φάκελος.</translation>
    </message>
    <message>
        <source>The folder is not empty.</source>
        <translation>Ο φάκελος δεν είναι άδειος.</translation>
    </message>
    <message>
        <source>The file is too large.</source>
        <translation>Το αρχείο είναι πολύ μεγάλο.</translation>
    </message>
    <message>
        <source>Too many files are open.</source>
        <translation>Είναι ανοιχτά πάρα πολλά αρχεία.</translation>
    </message>
    <message>
        <source>There is too little memory.</source>
        <translation>Η μνήμη δεν επαρκεί.</translation>
    </message>
    <message>
        <source>It is not possible there.</source>
        <translation>Δεν είναι δυνατό εκεί.</translation>
    </message>
    <message>
        <source>The device refuses the connection.</source>
        <translation>Η συσκευή αρνείται τη σύνδεση.</translation>
    </message>
    <message>
        <source>The device has closed the connection.</source>
        <translation>Η συσκευή έκλεισε τη σύνδεση.</translation>
    </message>
    <message>
        <source>There is no device with this address.</source>
        <translation>Καμία συσκευή δεν έχει αυτή τη διεύθυνση.</translation>
    </message>
    <message>
        <source>The network cannot be reached.</source>
        <translation>Το δίκτυο δεν είναι προσβάσιμο.</translation>
    </message>
    <message>
        <source>The device does not answer.</source>
        <translation>Η συσκευή δεν απαντά.</translation>
    </message>
    <message>
        <source>It is a link to another place.</source>
        <translation>Είναι σύνδεσμος προς άλλη θέση.</translation>
    </message>
    <message>
        <source>There are too many links to it.</source>
        <translation>Υπάρχουν πάρα πολλοί σύνδεσμοι προς αυτό.</translation>
    </message>
</context>
<context>
    <name>ItemActions</name>
    <message>
        <source>Rename</source>
        <translation>Μετονομασία</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Διαγραφή</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Ακύρωση</translation>
    </message>
</context>
<context>
    <name>ItemPage</name>
    <message>
        <source>New</source>
        <translation>Νέο</translation>
    </message>
</context>
<context>
    <name>Keypad</name>
    <message>
        <source>%1 to %2 %3</source>
        <translation>%1 έως %2 %3</translation>
    </message>
    <message>
        <source>At least %1 %2</source>
        <translation>Τουλάχιστον %1 %2</translation>
    </message>
    <message>
        <source>At most %1 %2</source>
        <translation>Το πολύ %1 %2</translation>
    </message>
    <message>
        <source>This is not a number yet.</source>
        <translation>Δεν είναι ακόμη αριθμός.</translation>
    </message>
    <message>
        <source>Too large.
%1</source>
        <translation>Πολύ μεγάλο.
%1</translation>
    </message>
    <message>
        <source>Too small.
%1</source>
        <translation>Πολύ μικρό.
%1</translation>
    </message>
    <message>
        <source>now %1</source>
        <translation>τώρα %1</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Ακύρωση</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>Αποδοχή</translation>
    </message>
    <message>
        <source>Decimal sign</source>
        <translation>Υποδιαστολή</translation>
    </message>
    <message>
        <source>Plus or minus</source>
        <translation>Συν ή πλην</translation>
    </message>
    <message>
        <source>Remove the last sign</source>
        <translation>Σβήσιμο τελευταίου χαρακτήρα</translation>
    </message>
    <message>
        <source>C</source>
        <comment>key that clears the entry</comment>
        <translation>C</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Σβήσιμο</translation>
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
        <translation>Ορισμός του A, του πρώτου άκρου της γραμμής, εδώ</translation>
    </message>
    <message>
        <source>B</source>
        <comment>the other end of the guidance line</comment>
        <translation>B</translation>
    </message>
    <message>
        <source>Set B, the other end of the line, here</source>
        <translation>Ορισμός του B, του άλλου άκρου της γραμμής, εδώ</translation>
    </message>
    <message>
        <source>Set a flag here</source>
        <translation>Σημαία εδώ</translation>
    </message>
</context>
<context>
    <name>LineChoice</name>
    <message>
        <source>New</source>
        <translation>Νέα</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Ακύρωση</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Διακοπή</translation>
    </message>
</context>
<context>
    <name>LinePanel</name>
    <message>
        <source>%1 to the left</source>
        <translation>%1 αριστερά</translation>
    </message>
    <message>
        <source>%1 to the right</source>
        <translation>%1 δεξιά</translation>
    </message>
</context>
<context>
    <name>LockLayer</name>
    <message>
        <source>The screen is locked. Hold the button to unlock it.</source>
        <translation>Η οθόνη είναι κλειδωμένη. Ξεκλείδωμα με παρατεταμένο πάτημα του κουμπιού.</translation>
    </message>
    <message>
        <source>Unlock</source>
        <translation>Ξεκλείδωμα</translation>
    </message>
</context>
<context>
    <name>LogsPage</name>
    <message>
        <source>Logs</source>
        <translation>Καταγραφές</translation>
    </message>
    <message>
        <source>Events</source>
        <translation>Συμβάντα</translation>
    </message>
    <message>
        <source>Receiver</source>
        <translation>Δέκτης</translation>
    </message>
    <message>
        <source>Go on</source>
        <translation>Συνέχεια</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Παύση</translation>
    </message>
    <message>
        <source>No line yet.</source>
        <translation>Καμία γραμμή ακόμη.</translation>
    </message>
</context>
<context>
    <name>MachinePage</name>
    <message>
        <source>Implement width</source>
        <translation>Πλάτος παρελκόμενου</translation>
    </message>
    <message>
        <source>Decides the guidance lines beside each other, and the area done</source>
        <translation>Καθορίζει τις διπλανές γραμμές καθοδήγησης και την καλυμμένη έκταση</translation>
    </message>
    <message>
        <source>Implement behind the antenna</source>
        <translation>Παρελκόμενο πίσω από κεραία</translation>
    </message>
    <message>
        <source>How far the ground is covered behind the vehicle&apos;s place</source>
        <translation>Πόσο πίσω από τη θέση του οχήματος καλύπτεται το έδαφος</translation>
    </message>
</context>
<context>
    <name>Main</name>
    <message>
        <source>Cab display</source>
        <translation>Τερματικό καμπίνας</translation>
    </message>
</context>
<context>
    <name>MapButtons</name>
    <message>
        <source>Zoom in</source>
        <translation>Μεγέθυνση</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Σμίκρυνση</translation>
    </message>
    <message>
        <source>The heading is up. Turn north up</source>
        <translation>Πορεία επάνω. Αλλαγή σε βορρά επάνω</translation>
    </message>
    <message>
        <source>North is up. Turn the heading up</source>
        <translation>Βορράς επάνω. Αλλαγή σε πορεία επάνω</translation>
    </message>
    <message>
        <source>Centre the vehicle</source>
        <translation>Όχημα στο κέντρο</translation>
    </message>
</context>
<context>
    <name>NameEntry</name>
    <message>
        <source>Cancel</source>
        <translation>Ακύρωση</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>Αποδοχή</translation>
    </message>
</context>
<context>
    <name>PageTurner</name>
    <message>
        <source>Rows above</source>
        <translation>Γραμμές πάνω</translation>
    </message>
    <message>
        <source>Rows below</source>
        <translation>Γραμμές κάτω</translation>
    </message>
</context>
<context>
    <name>ParameterRow</name>
    <message>
        <source>%1: back to the first value</source>
        <translation>%1: επιστροφή στην εργοστασιακή τιμή</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Άνοιγμα</translation>
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
        <translation>μια απόλυτη διαδρομή που τελειώνει σε &quot;/&quot; και δεν είναι &quot;/&quot;</translation>
    </message>
    <message>
        <source>an absolute path</source>
        <translation>μια απόλυτη διαδρομή</translation>
    </message>
    <message>
        <source>a UUID in small letters, such as 6ba7b810-9dad-41d1-80b4-00c04fd430c8</source>
        <translation>ένα UUID με μικρά γράμματα, όπως 6ba7b810-9dad-41d1-80b4-00c04fd430c8</translation>
    </message>
    <message>
        <source>simulator, tcp://HOST:PORT, serial:///dev/NAME?baud=N or an absolute path</source>
        <translation>simulator, tcp://HOST:PORT, serial:///dev/NAME?baud=N ή μια απόλυτη διαδρομή</translation>
    </message>
    <message>
        <source>true or false</source>
        <translation>true ή false</translation>
    </message>
    <message>
        <source>a time in UTC, such as 2026-03-05T13:05:09Z</source>
        <translation>μια ώρα σε UTC, όπως 2026-03-05T13:05:09Z</translation>
    </message>
    <message>
        <source>a colour: #rrggbb, #aarrggbb or a name such as navy</source>
        <translation>ένα χρώμα: #rrggbb, #aarrggbb ή ένα όνομα όπως navy</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 έως %2</translation>
    </message>
    <message>
        <source>Not a whole number.</source>
        <translation>Δεν είναι ακέραιος αριθμός.</translation>
    </message>
    <message>
        <source>Below the least value.</source>
        <translation>Κάτω από την ελάχιστη τιμή.</translation>
    </message>
    <message>
        <source>Above the greatest value.</source>
        <translation>Πάνω από τη μέγιστη τιμή.</translation>
    </message>
    <message>
        <source>This cannot be the name of a file. Try: %1</source>
        <translation>Δεν μπορεί να είναι όνομα αρχείου. Δυνατό όνομα: %1</translation>
    </message>
    <message>
        <source>Not accepted. Expected: %1.</source>
        <translation>Δεν έγινε δεκτό. Αναμένεται: %1.</translation>
    </message>
    <message>
        <source>a name without %1</source>
        <translation>ένα όνομα χωρίς %1</translation>
    </message>
    <message>
        <source>a whole number</source>
        <translation>ένας ακέραιος αριθμός</translation>
    </message>
    <message>
        <source>At least %1</source>
        <translation>Τουλάχιστον %1</translation>
    </message>
</context>
<context>
    <name>Parameters</name>
    <message>
        <source>the operator has chosen the offset from UTC; GPS time keeps it instead of computing it</source>
        <translation>ο χειριστής επέλεξε τη διαφορά από το UTC, η ώρα GPS την κρατά αντί να την υπολογίζει</translation>
    </message>
    <message>
        <source>metric units; otherwise US or English units</source>
        <translation>μετρικές μονάδες, αλλιώς μονάδες ΗΠΑ ή αγγλικές</translation>
    </message>
    <message>
        <source>US measures when units are not metric; otherwise English measures</source>
        <translation>μονάδες ΗΠΑ όταν οι μονάδες δεν είναι μετρικές, αλλιώς αγγλικές</translation>
    </message>
    <message>
        <source>positions in degrees, minutes and seconds; otherwise in decimal degrees</source>
        <translation>θέσεις σε μοίρες, λεπτά και δευτερόλεπτα, αλλιώς σε δεκαδικές μοίρες</translation>
    </message>
    <message>
        <source>24-hour clock; otherwise 12 hours with am and pm</source>
        <translation>ρολόι 24 ωρών, αλλιώς 12 ωρών με am και pm</translation>
    </message>
    <message>
        <source>dates with the month before the day</source>
        <translation>ημερομηνίες με τον μήνα πριν από την ημέρα</translation>
    </message>
    <message>
        <source>colours for day; otherwise for night</source>
        <translation>χρώματα ημέρας, αλλιώς νύχτας</translation>
    </message>
    <message>
        <source>the map turns with the vehicle; otherwise north is up</source>
        <translation>ο χάρτης στρέφεται με το όχημα, αλλιώς ο βορράς είναι επάνω</translation>
    </message>
    <message>
        <source>unit of pressures</source>
        <translation>μονάδα των πιέσεων</translation>
    </message>
    <message>
        <source>unit of areas, and of rates per area</source>
        <translation>μονάδα των εκτάσεων και των δόσεων ανά έκταση</translation>
    </message>
    <message>
        <source>unit of short distances: widths, offsets</source>
        <translation>μονάδα μικρών αποστάσεων: πλάτη, μετατοπίσεις</translation>
    </message>
    <message>
        <source>unit of granular volumes</source>
        <translation>μονάδα όγκων κοκκώδους</translation>
    </message>
    <message>
        <source>unit of granular densities</source>
        <translation>μονάδα πυκνοτήτων κοκκώδους</translation>
    </message>
    <message>
        <source>unit of liquid volumes, flows and rates</source>
        <translation>μονάδα όγκων, παροχών και δόσεων υγρού</translation>
    </message>
    <message>
        <source>language of the display&apos;s texts; a change needs a restart</source>
        <translation>γλώσσα των κειμένων του τερματικού, η αλλαγή απαιτεί επανεκκίνηση</translation>
    </message>
    <message>
        <source>decimal point or comma; a change needs a restart</source>
        <translation>τελεία ή κόμμα ως υποδιαστολή, η αλλαγή απαιτεί επανεκκίνηση</translation>
    </message>
    <message>
        <source>when the colours switch between day and night: only by hand, at sunrise and sunset, or with the sun 6 degrees below the horizon</source>
        <translation>πότε αλλάζουν τα χρώματα μεταξύ ημέρας και νύχτας: μόνο με το χέρι, με ανατολή και δύση ηλίου, ή με τον ήλιο 6 μοίρες κάτω από τον ορίζοντα</translation>
    </message>
    <message>
        <source>what set the display&apos;s clock</source>
        <translation>τι ρύθμισε το ρολόι του τερματικού</translation>
    </message>
    <message>
        <source>local time less UTC, whole hours</source>
        <translation>τοπική ώρα μείον UTC, ακέραιες ώρες</translation>
    </message>
    <message>
        <source>local time less UTC, minutes beyond the hours, with the sign of the hours</source>
        <translation>τοπική ώρα μείον UTC, λεπτά πέρα από τις ώρες, με το πρόσημο των ωρών</translation>
    </message>
    <message>
        <source>brightness of the lightbar at night</source>
        <translation>φωτεινότητα της φωτεινής μπάρας τη νύχτα</translation>
    </message>
    <message>
        <source>brightness of the screen at night</source>
        <translation>φωτεινότητα της οθόνης τη νύχτα</translation>
    </message>
    <message>
        <source>brightness of the button lights at night</source>
        <translation>φωτεινότητα των φώτων των κουμπιών τη νύχτα</translation>
    </message>
    <message>
        <source>4: implements are kept in the folder of their vehicle; other numbers: in their own folder</source>
        <translation>4: τα παρελκόμενα είναι στον φάκελο του οχήματός τους, άλλοι αριθμοί: σε δικό τους φάκελο</translation>
    </message>
    <message>
        <source>number of the next file of the NMEA log</source>
        <translation>αριθμός του επόμενου αρχείου της καταγραφής NMEA</translation>
    </message>
    <message>
        <source>number of the next file of the user log</source>
        <translation>αριθμός του επόμενου αρχείου της καταγραφής χειριστή</translation>
    </message>
    <message>
        <source>the display&apos;s clock less UTC</source>
        <translation>το ρολόι του τερματικού μείον UTC</translation>
    </message>
    <message>
        <source>folder of the internal drive; by default in the data folder</source>
        <translation>φάκελος του εσωτερικού δίσκου, από προεπιλογή στον φάκελο δεδομένων</translation>
    </message>
    <message>
        <source>mount point of the removable drive; by default in the data folder</source>
        <translation>σημείο προσάρτησης του αφαιρούμενου δίσκου, από προεπιλογή στον φάκελο δεδομένων</translation>
    </message>
    <message>
        <source>the identity of the terminal, which its profiles carry</source>
        <translation>η ταυτότητα του τερματικού, που φέρουν τα προφίλ του</translation>
    </message>
    <message>
        <source>where the sentences of the receiver come from</source>
        <translation>από πού έρχονται οι προτάσεις του δέκτη</translation>
    </message>
    <message>
        <source>the figures beside the map, in this order</source>
        <translation>οι τιμές δίπλα στον χάρτη, με αυτή τη σειρά</translation>
    </message>
    <message>
        <source>the newest time of a receiver, as of the last day on which one was seen</source>
        <translation>η νεότερη ώρα ενός δέκτη, από την τελευταία ημέρα με δέκτη</translation>
    </message>
    <message>
        <source>when the sun switched the colours last</source>
        <translation>πότε άλλαξε ο ήλιος τα χρώματα τελευταία φορά</translation>
    </message>
    <message>
        <source>the active job</source>
        <translation>η ενεργή εργασία</translation>
    </message>
    <message>
        <source>the active boundary</source>
        <translation>το ενεργό όριο</translation>
    </message>
    <message>
        <source>the active straight guidance line</source>
        <translation>η ενεργή ευθεία γραμμή καθοδήγησης</translation>
    </message>
    <message>
        <source>the active pivot</source>
        <translation>το ενεργό πίβοτ</translation>
    </message>
    <message>
        <source>the active guidance curve</source>
        <translation>η ενεργή καμπύλη καθοδήγησης</translation>
    </message>
    <message>
        <source>the active shape file of optimal lines</source>
        <translation>το ενεργό αρχείο shape των βέλτιστων γραμμών</translation>
    </message>
    <message>
        <source>the active shape file of project lines</source>
        <translation>το ενεργό αρχείο shape των γραμμών έργου</translation>
    </message>
    <message>
        <source>the active shape file of zones</source>
        <translation>το ενεργό αρχείο shape των ζωνών</translation>
    </message>
    <message>
        <source>the active steering profile</source>
        <translation>το ενεργό προφίλ οδήγησης</translation>
    </message>
    <message>
        <source>the active implement</source>
        <translation>το ενεργό παρελκόμενο</translation>
    </message>
    <message>
        <source>the active vehicle</source>
        <translation>το ενεργό όχημα</translation>
    </message>
    <message>
        <source>the active sprayer</source>
        <translation>το ενεργό ψεκαστικό</translation>
    </message>
    <message>
        <source>the active boom leveller</source>
        <translation>η ενεργή οριζοντίωση ιστού</translation>
    </message>
    <message>
        <source>the active client</source>
        <translation>ο ενεργός πελάτης</translation>
    </message>
    <message>
        <source>the active farm</source>
        <translation>το ενεργό αγρόκτημα</translation>
    </message>
    <message>
        <source>the active field</source>
        <translation>ο ενεργός αγρός</translation>
    </message>
    <message>
        <source>Measures</source>
        <translation>Σύστημα μονάδων</translation>
    </message>
    <message>
        <source>Gallons and bushels</source>
        <translation>Γαλόνια και μπούσελ</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>Έκταση</translation>
    </message>
    <message>
        <source>Pressure</source>
        <translation>Πίεση</translation>
    </message>
    <message>
        <source>Short distances</source>
        <translation>Μικρές αποστάσεις</translation>
    </message>
    <message>
        <source>Liquid</source>
        <translation>Υγρό</translation>
    </message>
    <message>
        <source>Granular volume</source>
        <translation>Όγκος κοκκώδους</translation>
    </message>
    <message>
        <source>Granular density</source>
        <translation>Πυκνότητα κοκκώδους</translation>
    </message>
    <message>
        <source>Positions</source>
        <translation>Θέσεις</translation>
    </message>
    <message>
        <source>Rate per travel</source>
        <translation>Δόση ανά διαδρομή</translation>
    </message>
    <message>
        <source>Basis of rates</source>
        <translation>Βάση των δόσεων</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Γλώσσα</translation>
    </message>
    <message>
        <source>Decimal sign</source>
        <translation>Υποδιαστολή</translation>
    </message>
    <message>
        <source>Time of day</source>
        <translation>Ώρα της ημέρας</translation>
    </message>
    <message>
        <source>Dates</source>
        <translation>Ημερομηνίες</translation>
    </message>
    <message>
        <source>Time zone set by hand</source>
        <translation>Ζώνη ώρας με το χέρι</translation>
    </message>
    <message>
        <source>Time zone, hours</source>
        <translation>Ζώνη ώρας, ώρες</translation>
    </message>
    <message>
        <source>Time zone, minutes</source>
        <translation>Ζώνη ώρας, λεπτά</translation>
    </message>
    <message>
        <source>Clock less UTC</source>
        <translation>Ρολόι μείον UTC</translation>
    </message>
    <message>
        <source>Source of the time</source>
        <translation>Πηγή της ώρας</translation>
    </message>
    <message>
        <source>Source of the time since</source>
        <translation>Πηγή της ώρας από</translation>
    </message>
    <message>
        <source>Newest receiver time</source>
        <translation>Τελευταία ώρα δέκτη</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>Χρώματα</translation>
    </message>
    <message>
        <source>Day and night</source>
        <translation>Ημέρα και νύχτα</translation>
    </message>
    <message>
        <source>Map direction</source>
        <translation>Φορά του χάρτη</translation>
    </message>
    <message>
        <source>Tiles</source>
        <translation>Πλακίδια</translation>
    </message>
    <message>
        <source>Light bar at night</source>
        <translation>Φωτεινή μπάρα τη νύχτα</translation>
    </message>
    <message>
        <source>Screen at night</source>
        <translation>Οθόνη τη νύχτα</translation>
    </message>
    <message>
        <source>Button lights at night</source>
        <translation>Φως κουμπιών τη νύχτα</translation>
    </message>
    <message>
        <source>Switched by the sun</source>
        <translation>Αλλαγή με τον ήλιο</translation>
    </message>
    <message>
        <source>Client</source>
        <translation>Πελάτης</translation>
    </message>
    <message>
        <source>Farm</source>
        <translation>Αγρόκτημα</translation>
    </message>
    <message>
        <source>Field</source>
        <translation>Αγρός</translation>
    </message>
    <message>
        <source>Job</source>
        <translation>Εργασία</translation>
    </message>
    <message>
        <source>Vehicle</source>
        <translation>Όχημα</translation>
    </message>
    <message>
        <source>Implement</source>
        <translation>Παρελκόμενο</translation>
    </message>
    <message>
        <source>Sprayer</source>
        <translation>Ψεκαστικό</translation>
    </message>
    <message>
        <source>Boom leveller</source>
        <translation>Οριζοντίωση ιστού</translation>
    </message>
    <message>
        <source>Steering profile</source>
        <translation>Προφίλ οδήγησης</translation>
    </message>
    <message>
        <source>Boundary</source>
        <translation>Όριο</translation>
    </message>
    <message>
        <source>A-B line</source>
        <translation>Γραμμή A-B</translation>
    </message>
    <message>
        <source>Pivot</source>
        <translation>Πίβοτ</translation>
    </message>
    <message>
        <source>Curve</source>
        <translation>Καμπύλη</translation>
    </message>
    <message>
        <source>Optimal lines</source>
        <translation>Βέλτιστες γραμμές</translation>
    </message>
    <message>
        <source>Project lines</source>
        <translation>Γραμμές έργου</translation>
    </message>
    <message>
        <source>Zones</source>
        <translation>Ζώνες</translation>
    </message>
    <message>
        <source>Receiver address</source>
        <translation>Διεύθυνση δέκτη</translation>
    </message>
    <message>
        <source>Internal drive</source>
        <translation>Εσωτερικός δίσκος</translation>
    </message>
    <message>
        <source>Stick</source>
        <translation>Στικ USB</translation>
    </message>
    <message>
        <source>Implement folder</source>
        <translation>Φάκελος παρελκόμενου</translation>
    </message>
    <message>
        <source>Next NMEA log</source>
        <translation>Επόμενη καταγραφή NMEA</translation>
    </message>
    <message>
        <source>Next user log</source>
        <translation>Επόμενη καταγραφή χειριστή</translation>
    </message>
    <message>
        <source>Identity</source>
        <translation>Ταυτότητα</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Κείμενο</translation>
    </message>
    <message>
        <source>Colour of texts</source>
        <translation>Χρώμα κειμένων</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Τίτλος</translation>
    </message>
    <message>
        <source>Colour of titles</source>
        <translation>Χρώμα τίτλων</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Φόντο</translation>
    </message>
    <message>
        <source>Colour of the background</source>
        <translation>Χρώμα φόντου</translation>
    </message>
    <message>
        <source>Button</source>
        <translation>Κουμπί</translation>
    </message>
    <message>
        <source>Colour of buttons</source>
        <translation>Χρώμα κουμπιών</translation>
    </message>
    <message>
        <source>Button text</source>
        <translation>Κείμενο κουμπιού</translation>
    </message>
    <message>
        <source>Colour of texts on buttons</source>
        <translation>Χρώμα κειμένων στα κουμπιά</translation>
    </message>
    <message>
        <source>Map</source>
        <translation>Χάρτης</translation>
    </message>
    <message>
        <source>Colour of the map&apos;s ground</source>
        <translation>Χρώμα φόντου του χάρτη</translation>
    </message>
    <message>
        <source>Grid</source>
        <translation>Πλέγμα</translation>
    </message>
    <message>
        <source>Colour of the map&apos;s grid</source>
        <translation>Χρώμα πλέγματος του χάρτη</translation>
    </message>
    <message>
        <source>Coverage</source>
        <translation>Κάλυψη</translation>
    </message>
    <message>
        <source>Colour of covered ground</source>
        <translation>Χρώμα καλυμμένου εδάφους</translation>
    </message>
    <message>
        <source>Vehicle on the map</source>
        <translation>Όχημα στον χάρτη</translation>
    </message>
    <message>
        <source>Colour of the vehicle</source>
        <translation>Χρώμα οχήματος</translation>
    </message>
    <message>
        <source>Guidance line</source>
        <translation>Γραμμή καθοδήγησης</translation>
    </message>
    <message>
        <source>Colour of the guidance line</source>
        <translation>Χρώμα γραμμής καθοδήγησης</translation>
    </message>
    <message>
        <source>Cross hairs</source>
        <translation>Σταυρόνημα</translation>
    </message>
    <message>
        <source>Colour of the cross hairs</source>
        <translation>Χρώμα σταυρονήματος</translation>
    </message>
    <message>
        <source>Outer boundary</source>
        <translation>Εξωτερικό όριο</translation>
    </message>
    <message>
        <source>Colour of the outer boundary of the field</source>
        <translation>Χρώμα εξωτερικού ορίου του αγρού</translation>
    </message>
    <message>
        <source>Inner boundary</source>
        <translation>Εσωτερικό όριο</translation>
    </message>
    <message>
        <source>Colour of boundaries within the field</source>
        <translation>Χρώμα ορίων μέσα στον αγρό</translation>
    </message>
    <message>
        <source>Other boundaries</source>
        <translation>Άλλα όρια</translation>
    </message>
    <message>
        <source>Colour of boundaries that are not active</source>
        <translation>Χρώμα μη ενεργών ορίων</translation>
    </message>
    <message>
        <source>Exclusion zone</source>
        <translation>Ζώνη αποκλεισμού</translation>
    </message>
    <message>
        <source>Colour of zones to keep out of</source>
        <translation>Χρώμα ζωνών αποκλεισμού</translation>
    </message>
    <message>
        <source>Background picture</source>
        <translation>Εικόνα φόντου</translation>
    </message>
    <message>
        <source>Number of the background picture</source>
        <translation>Αριθμός της εικόνας φόντου</translation>
    </message>
    <message>
        <source>what the sprayer&apos;s rates are related to</source>
        <translation>σε τι αναφέρονται οι δόσεις του ψεκαστικού</translation>
    </message>
    <message>
        <source>liquid rates per 100 m or 100 yd of travel, while travel is their basis</source>
        <translation>δόσεις υγρού ανά 100 m ή 100 yd διαδρομής, όσο η διαδρομή είναι η βάση τους</translation>
    </message>
    <message>
        <source>since when the clock has its time from there</source>
        <translation>από πότε το ρολόι παίρνει την ώρα από εκεί</translation>
    </message>
    <message>
        <source>Metric</source>
        <translation>Μετρικά</translation>
    </message>
    <message>
        <source>US or English</source>
        <translation>ΗΠΑ ή αγγλικά</translation>
    </message>
    <message>
        <source>US</source>
        <translation>ΗΠΑ</translation>
    </message>
    <message>
        <source>English</source>
        <translation>Αγγλικά</translation>
    </message>
    <message>
        <source>Deg., min., s</source>
        <translation>Μοίρες, min, s</translation>
    </message>
    <message>
        <source>Degrees</source>
        <translation>Μοίρες</translation>
    </message>
    <message>
        <source>24 hours</source>
        <translation>24 ώρες</translation>
    </message>
    <message>
        <source>am, pm</source>
        <translation>am, pm</translation>
    </message>
    <message>
        <source>Month first</source>
        <translation>Πρώτα ο μήνας</translation>
    </message>
    <message>
        <source>Day first</source>
        <translation>Πρώτα η ημέρα</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Ημέρα</translation>
    </message>
    <message>
        <source>Night</source>
        <translation>Νύχτα</translation>
    </message>
    <message>
        <source>Heading up</source>
        <translation>Πορεία επάνω</translation>
    </message>
    <message>
        <source>North up</source>
        <translation>Βορράς επάνω</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Ενεργό</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Ανενεργό</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ναι</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Όχι</translation>
    </message>
    <message>
        <source>Travel</source>
        <translation>Διαδρομή</translation>
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
        <translation>Εκτάριο</translation>
    </message>
    <message>
        <source>Acre</source>
        <translation>Έικρ</translation>
    </message>
    <message>
        <source>m, mm</source>
        <translation>m, mm</translation>
    </message>
    <message>
        <source>Inch</source>
        <translation>Ίντσα</translation>
    </message>
    <message>
        <source>Foot</source>
        <translation>Πόδι</translation>
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
        <translation>Μπούσελ ΗΠΑ</translation>
    </message>
    <message>
        <source>UK bushel</source>
        <translation>Μπούσελ UK</translation>
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
        <translation>Τελεία</translation>
    </message>
    <message>
        <source>Comma</source>
        <translation>Κόμμα</translation>
    </message>
    <message>
        <source>By hand</source>
        <translation>Με το χέρι</translation>
    </message>
    <message>
        <source>Sunset</source>
        <translation>Δύση ηλίου</translation>
    </message>
    <message>
        <source>Twilight</source>
        <translation>Λυκόφως</translation>
    </message>
    <message>
        <source>Not set</source>
        <translation>Δεν ορίστηκε</translation>
    </message>
    <message>
        <source>Operator</source>
        <translation>Χειριστής</translation>
    </message>
    <message>
        <source>Receiver</source>
        <translation>Δέκτης</translation>
    </message>
    <message>
        <source>Rate</source>
        <translation>Δόση</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Ταχύτητα</translation>
    </message>
    <message>
        <source>Area done</source>
        <translation>Καλυμμένη έκταση</translation>
    </message>
    <message>
        <source>Area left</source>
        <translation>Υπόλοιπη έκταση</translation>
    </message>
    <message>
        <source>Productivity</source>
        <translation>Ωριαία απόδοση</translation>
    </message>
    <message>
        <source>Flow</source>
        <translation>Παροχή</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Θερμοκρασία</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>Απόσταση</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Θέση</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Ώρα</translation>
    </message>
    <message>
        <source>Units</source>
        <translation>Μονάδες</translation>
    </message>
    <message>
        <source>Rates</source>
        <translation>Δόσεις</translation>
    </message>
    <message>
        <source>Region</source>
        <translation>Περιοχή</translation>
    </message>
    <message>
        <source>Clock</source>
        <translation>Ρολόι</translation>
    </message>
    <message>
        <source>Colours of the schemes</source>
        <translation>Χρώματα θεμάτων</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Οθόνη</translation>
    </message>
    <message>
        <source>Selections</source>
        <translation>Επιλογή</translation>
    </message>
    <message>
        <source>Storage</source>
        <translation>Δεδομένα</translation>
    </message>
    <message>
        <source>Logs</source>
        <translation>Καταγραφές</translation>
    </message>
    <message>
        <source>Terminal</source>
        <translation>Τερματικό</translation>
    </message>
    <message>
        <source>%1, by day</source>
        <translation>%1, ημέρα</translation>
    </message>
    <message>
        <source>%1, by night</source>
        <translation>%1, νύχτα</translation>
    </message>
</context>
<context>
    <name>Problems</name>
    <message>
        <source>The logs lose lines: their drive is full or cannot be written.</source>
        <translation>Οι καταγραφές χάνουν γραμμές: ο δίσκος τους είναι γεμάτος ή δεν γράφεται.</translation>
    </message>
    <message>
        <source>Recording is off, because there is too little room.</source>
        <translation>Η εγγραφή σταμάτησε, επειδή δεν υπάρχει αρκετός χώρος.</translation>
    </message>
    <message>
        <source>Changes of settings are not stored yet. %1</source>
        <translation>Οι αλλαγές ρυθμίσεων δεν έχουν αποθηκευτεί ακόμη. %1</translation>
    </message>
    <message>
        <source>The drive of the terminal is nearly full. Free: %1</source>
        <translation>Ο δίσκος του τερματικού είναι σχεδόν γεμάτος. Ελεύθερα: %1</translation>
    </message>
</context>
<context>
    <name>ProfilePage</name>
    <message>
        <source>Import</source>
        <translation>Εισαγωγή</translation>
    </message>
    <message>
        <source>The display has these settings already.</source>
        <translation>Το τερματικό έχει ήδη αυτές τις ρυθμίσεις.</translation>
    </message>
    <message>
        <source>Changed here and in the profile</source>
        <translation>Αλλαγή εδώ και στο προφίλ</translation>
    </message>
    <message>
        <source>Which value the settings below shall have</source>
        <translation>Ποια τιμή θα έχουν οι παρακάτω ρυθμίσεις</translation>
    </message>
    <message>
        <source>Ours</source>
        <translation>Εδώ</translation>
    </message>
    <message>
        <source>Theirs</source>
        <translation>Προφίλ</translation>
    </message>
</context>
<context>
    <name>ProfilesPage</name>
    <message>
        <source>Profiles</source>
        <translation>Προφίλ</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Εξαγωγή</translation>
    </message>
    <message>
        <source>There is no profile on the stick.</source>
        <translation>Δεν υπάρχει προφίλ στο στικ.</translation>
    </message>
    <message>
        <source>No stick is plugged in.</source>
        <translation>Δεν υπάρχει στικ στη θύρα.</translation>
    </message>
    <message>
        <source>Name of the profile</source>
        <translation>Όνομα του προφίλ</translation>
    </message>
</context>
<context>
    <name>Quantities</name>
    <message>
        <source>Area</source>
        <translation>Έκταση</translation>
    </message>
    <message>
        <source>Productivity</source>
        <translation>Ωριαία απόδοση</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Ταχύτητα</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>Απόσταση</translation>
    </message>
    <message>
        <source>Small distance</source>
        <translation>Μικρή απόσταση</translation>
    </message>
    <message>
        <source>Travelled distance</source>
        <translation>Διανυθείσα απόσταση</translation>
    </message>
    <message>
        <source>Altitude</source>
        <translation>Υψόμετρο</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Θερμοκρασία</translation>
    </message>
    <message>
        <source>Pressure</source>
        <translation>Πίεση</translation>
    </message>
    <message>
        <source>Rate</source>
        <translation>Δόση</translation>
    </message>
    <message>
        <source>Requested rate</source>
        <translation>Επιθυμητή δόση</translation>
    </message>
    <message>
        <source>Rate and error</source>
        <translation>Δόση και απόκλιση</translation>
    </message>
    <message>
        <source>Small rate</source>
        <translation>Μικρή δόση</translation>
    </message>
    <message>
        <source>Flow</source>
        <translation>Παροχή</translation>
    </message>
    <message>
        <source>Small flow</source>
        <translation>Μικρή παροχή</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Όγκος</translation>
    </message>
    <message>
        <source>Small volume</source>
        <translation>Μικρός όγκος</translation>
    </message>
    <message>
        <source>Granular volume</source>
        <translation>Όγκος κοκκώδους</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>Βάρος</translation>
    </message>
    <message>
        <source>Weight per area</source>
        <translation>Βάρος ανά έκταση</translation>
    </message>
    <message>
        <source>Weight per area and error</source>
        <translation>Βάρος ανά έκταση και απόκλιση</translation>
    </message>
    <message>
        <source>Discharge</source>
        <translation>Παροχή μάζας</translation>
    </message>
    <message>
        <source>Nitrogen</source>
        <translation>Άζωτο</translation>
    </message>
    <message>
        <source>Nitrogen per area</source>
        <translation>Άζωτο ανά έκταση</translation>
    </message>
    <message>
        <source>Seeds per area</source>
        <translation>Σπόροι ανά έκταση</translation>
    </message>
    <message>
        <source>Density</source>
        <translation>Πυκνότητα</translation>
    </message>
    <message>
        <source>Granular density</source>
        <translation>Πυκνότητα κοκκώδους</translation>
    </message>
    <message>
        <source>Volume per revolution</source>
        <translation>Όγκος ανά στροφή</translation>
    </message>
    <message>
        <source>Weight per revolution</source>
        <translation>Βάρος ανά στροφή</translation>
    </message>
    <message>
        <source>Flow meter</source>
        <translation>Παροχόμετρο</translation>
    </message>
    <message>
        <source>Wheel sensor</source>
        <translation>Αισθητήρας τροχού</translation>
    </message>
    <message>
        <source>Speed sensor</source>
        <translation>Αισθητήρας ταχύτητας</translation>
    </message>
    <message>
        <source>Latitude</source>
        <translation>Γεωγρ. πλάτος</translation>
    </message>
    <message>
        <source>Longitude</source>
        <translation>Γεωγρ. μήκος</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Διάρκεια</translation>
    </message>
    <message>
        <source>Percent</source>
        <translation>Ποσοστό</translation>
    </message>
</context>
<context>
    <name>Question</name>
    <message>
        <source>Cancel</source>
        <translation>Ακύρωση</translation>
    </message>
</context>
<context>
    <name>RateTile</name>
    <message>
        <source>set %1</source>
        <comment>the rate that is set</comment>
        <translation>στόχος %1</translation>
    </message>
</context>
<context>
    <name>Receiver</name>
    <message>
        <source>Off</source>
        <translation>Κλειστός</translation>
    </message>
    <message>
        <source>Connecting</source>
        <translation>Σύνδεση</translation>
    </message>
    <message>
        <source>Receiving</source>
        <translation>Λήψη</translation>
    </message>
    <message>
        <source>Silent</source>
        <translation>Δεν στέλνει</translation>
    </message>
    <message>
        <source>Lost</source>
        <translation>Χάθηκε</translation>
    </message>
    <message>
        <source>Ended</source>
        <translation>Τέλος</translation>
    </message>
    <message>
        <source>No fix</source>
        <translation>Χωρίς θέση</translation>
    </message>
    <message>
        <source>RTK float</source>
        <translation>RTK float</translation>
    </message>
    <message>
        <source>Estimated</source>
        <translation>Εκτίμηση</translation>
    </message>
    <message>
        <source>By hand</source>
        <translation>Με το χέρι</translation>
    </message>
    <message>
        <source>Simulated</source>
        <translation>Προσομοίωση</translation>
    </message>
    <message>
        <source>The receiver sends nothing.</source>
        <translation>Ο δέκτης δεν στέλνει τίποτα.</translation>
    </message>
    <message>
        <source>The receiver is lost and is being looked for. %1</source>
        <translation>Ο δέκτης χάθηκε και αναζητείται. %1</translation>
    </message>
    <message>
        <source>The receiver cannot be read. %1</source>
        <translation>Αδύνατη η ανάγνωση του δέκτη. %1</translation>
    </message>
    <message>
        <source>The simulated field is done.</source>
        <translation>Ο αγρός της προσομοίωσης τελείωσε.</translation>
    </message>
    <message>
        <source>The recording of the receiver is over.</source>
        <translation>Η εγγραφή του δέκτη τελείωσε.</translation>
    </message>
</context>
<context>
    <name>ReceiverPage</name>
    <message>
        <source>Receiver</source>
        <translation>Δέκτης</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Διακοπή</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Έναρξη</translation>
    </message>
    <message>
        <source>Simulator</source>
        <translation>Προσομοιωτής</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Αρχείο</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Δίκτυο</translation>
    </message>
    <message>
        <source>Serial</source>
        <translation>Σειριακή</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Διεύθυνση</translation>
    </message>
    <message>
        <source>Fix</source>
        <translation>Τύπος θέσης</translation>
    </message>
    <message>
        <source>Age</source>
        <translation>Ηλικία</translation>
    </message>
    <message>
        <source>Satellites</source>
        <translation>Δορυφόροι</translation>
    </message>
    <message>
        <source>HDOP</source>
        <translation>HDOP</translation>
    </message>
    <message>
        <source>Time (UTC)</source>
        <translation>Ώρα (UTC)</translation>
    </message>
    <message>
        <source>Lines</source>
        <translation>Γραμμές</translation>
    </message>
    <message>
        <source>Sentences</source>
        <translation>Προτάσεις</translation>
    </message>
    <message>
        <source>Bad checksums</source>
        <translation>Λάθος checksum</translation>
    </message>
    <message>
        <source>Damaged lines</source>
        <translation>Αλλοιωμένες γραμμές</translation>
    </message>
    <message>
        <source>Address of the receiver</source>
        <translation>Διεύθυνση του δέκτη</translation>
    </message>
</context>
<context>
    <name>RegionPage</name>
    <message>
        <source>Date</source>
        <translation>Ημερομηνία</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Ώρα</translation>
    </message>
    <message>
        <source>Time zone</source>
        <translation>Ζώνη ώρας</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>Ημερομηνία και ώρα</translation>
    </message>
    <message>
        <source>Set by hand</source>
        <translation>Χειροκίνητα</translation>
    </message>
</context>
<context>
    <name>SearchPage</name>
    <message>
        <source>Search</source>
        <translation>Αναζήτηση</translation>
    </message>
    <message>
        <source>Words of a setting</source>
        <translation>Λέξεις μιας ρύθμισης</translation>
    </message>
    <message>
        <source>No setting has these words.</source>
        <translation>Καμία ρύθμιση δεν έχει αυτές τις λέξεις.</translation>
    </message>
</context>
<context>
    <name>SettingsPage</name>
    <message>
        <source>Units</source>
        <translation>Μονάδες</translation>
    </message>
    <message>
        <source>Region</source>
        <translation>Περιοχή</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>Χρώματα</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Οθόνη</translation>
    </message>
    <message>
        <source>Machine</source>
        <translation>Μηχάνημα</translation>
    </message>
    <message>
        <source>Storage</source>
        <translation>Δεδομένα</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Πληροφορίες</translation>
    </message>
    <message>
        <source>Tiles</source>
        <translation>Πλακίδια</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>Προφίλ</translation>
    </message>
    <message>
        <source>All settings</source>
        <translation>Όλες οι ρυθμίσεις</translation>
    </message>
</context>
<context>
    <name>SettingsPanel</name>
    <message>
        <source>Back</source>
        <translation>Πίσω</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Αναζήτηση</translation>
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
        <translation>Χωρίς εργασία</translation>
    </message>
    <message>
        <source>Receiver: %1</source>
        <translation>Δέκτης: %1</translation>
    </message>
    <message>
        <source>The stick is plugged in</source>
        <translation>Το στικ είναι στη θύρα</translation>
    </message>
    <message>
        <source>Lock the screen</source>
        <translation>Κλείδωμα οθόνης</translation>
    </message>
    <message>
        <source>Colours of the night</source>
        <translation>Χρώματα νύχτας</translation>
    </message>
    <message>
        <source>Colours of the day</source>
        <translation>Χρώματα ημέρας</translation>
    </message>
</context>
<context>
    <name>StoragePage</name>
    <message>
        <source>Open</source>
        <translation>Άνοιγμα</translation>
    </message>
    <message>
        <source>Internal drive</source>
        <translation>Εσωτερικός δίσκος</translation>
    </message>
    <message>
        <source>Stick</source>
        <translation>Στικ USB</translation>
    </message>
    <message>
        <source>No stick is plugged in.</source>
        <translation>Δεν υπάρχει στικ στη θύρα.</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Μνήμη RAM</translation>
    </message>
    <message>
        <source>Logs</source>
        <translation>Καταγραφές</translation>
    </message>
    <message>
        <source>Writes all log files to the stick</source>
        <translation>Γράφει όλες τις καταγραφές στο στικ</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Εξαγωγή</translation>
    </message>
    <message>
        <source>Export the logs</source>
        <translation>Εξαγωγή καταγραφών</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>Προφίλ</translation>
    </message>
    <message>
        <source>Takes the settings to another display, or brings them back from the stick</source>
        <translation>Μεταφέρει τις ρυθμίσεις σε άλλο τερματικό ή τις φέρνει πίσω από το στικ</translation>
    </message>
    <message>
        <source>Open the profiles</source>
        <translation>Άνοιγμα των προφίλ</translation>
    </message>
    <message>
        <source>Support</source>
        <translation>Υποστήριξη</translation>
    </message>
    <message>
        <source>Writes logs, settings and versions in one file; without the names of clients, farms and fields</source>
        <translation>Γράφει καταγραφές, ρυθμίσεις και εκδόσεις σε ένα αρχείο, χωρίς τα ονόματα πελατών, αγροκτημάτων και αγρών</translation>
    </message>
    <message>
        <source>Write</source>
        <translation>Εγγραφή</translation>
    </message>
    <message>
        <source>Write the file for support without names</source>
        <translation>Εγγραφή του αρχείου για υποστήριξη χωρίς ονόματα</translation>
    </message>
    <message>
        <source>Support, with names</source>
        <translation>Υποστήριξη, με ονόματα</translation>
    </message>
    <message>
        <source>The same file, with all names and places</source>
        <translation>Το ίδιο αρχείο, με όλα τα ονόματα και τις θέσεις</translation>
    </message>
    <message>
        <source>Write the file for support with names</source>
        <translation>Εγγραφή του αρχείου για υποστήριξη με ονόματα</translation>
    </message>
</context>
<context>
    <name>TFieldTreeModel</name>
    <message>
        <source>A job holds no items.</source>
        <translation>Μια εργασία δεν περιέχει άλλα στοιχεία.</translation>
    </message>
    <message>
        <source>There is one with this name already.</source>
        <translation>Αυτό το όνομα υπάρχει ήδη.</translation>
    </message>
    <message numerus="yes">
        <source>%n file(s), %1</source>
        <translation>
            <numerusform>%n αρχείο, %1</numerusform>
            <numerusform>%n αρχεία, %1</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>TParameter</name>
    <message>
        <source>The setting could not be written to the disk yet.</source>
        <translation>Δεν ήταν ακόμη δυνατή η εγγραφή της ρύθμισης στον δίσκο.</translation>
    </message>
    <message>
        <source>There is no value to set.</source>
        <translation>Δεν υπάρχει τιμή για ρύθμιση.</translation>
    </message>
</context>
<context>
    <name>TRegionSettings</name>
    <message>
        <source>Jan</source>
        <translation>Ιαν</translation>
    </message>
    <message>
        <source>Feb</source>
        <translation>Φεβ</translation>
    </message>
    <message>
        <source>Mar</source>
        <translation>Μαρ</translation>
    </message>
    <message>
        <source>Apr</source>
        <translation>Απρ</translation>
    </message>
    <message>
        <source>May</source>
        <translation>Μαΐ</translation>
    </message>
    <message>
        <source>Jun</source>
        <translation>Ιουν</translation>
    </message>
    <message>
        <source>Jul</source>
        <translation>Ιουλ</translation>
    </message>
    <message>
        <source>Aug</source>
        <translation>Αυγ</translation>
    </message>
    <message>
        <source>Sep</source>
        <translation>Σεπ</translation>
    </message>
    <message>
        <source>Oct</source>
        <translation>Οκτ</translation>
    </message>
    <message>
        <source>Nov</source>
        <translation>Νοε</translation>
    </message>
    <message>
        <source>Dec</source>
        <translation>Δεκ</translation>
    </message>
</context>
<context>
    <name>TRestart</name>
    <message>
        <source>The new language is shown after a restart.</source>
        <translation>Η νέα γλώσσα εμφανίζεται μετά από επανεκκίνηση.</translation>
    </message>
    <message>
        <source>The new decimal sign is shown after a restart.</source>
        <translation>Η νέα υποδιαστολή εμφανίζεται μετά από επανεκκίνηση.</translation>
    </message>
</context>
<context>
    <name>TSelections</name>
    <message>
        <source>The selection could not be stored.</source>
        <translation>Δεν ήταν δυνατή η αποθήκευση της επιλογής.</translation>
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
        <translation>B_</translation>
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
        <translation>Χωρίς όχημα</translation>
    </message>
    <message>
        <source>No Profile</source>
        <translation>Χωρίς προφίλ</translation>
    </message>
    <message>
        <source>No Implement</source>
        <translation>Χωρίς παρελκόμενο</translation>
    </message>
    <message>
        <source>Pivoted_</source>
        <translation>Pivoted_</translation>
    </message>
</context>
<context>
    <name>TTransfer</name>
    <message>
        <source>The name is empty.</source>
        <translation>Το όνομα είναι κενό.</translation>
    </message>
</context>
<context>
    <name>TUnitAbbreviations</name>
    <message>
        <source>Jan</source>
        <translation>Ιαν</translation>
    </message>
    <message>
        <source>Feb</source>
        <translation>Φεβ</translation>
    </message>
    <message>
        <source>Mar</source>
        <translation>Μαρ</translation>
    </message>
    <message>
        <source>Apr</source>
        <translation>Απρ</translation>
    </message>
    <message>
        <source>May</source>
        <translation>Μαΐ</translation>
    </message>
    <message>
        <source>Jun</source>
        <translation>Ιουν</translation>
    </message>
    <message>
        <source>Jul</source>
        <translation>Ιουλ</translation>
    </message>
    <message>
        <source>Aug</source>
        <translation>Αυγ</translation>
    </message>
    <message>
        <source>Sep</source>
        <translation>Σεπ</translation>
    </message>
    <message>
        <source>Oct</source>
        <translation>Οκτ</translation>
    </message>
    <message>
        <source>Nov</source>
        <translation>Νοε</translation>
    </message>
    <message>
        <source>Dec</source>
        <translation>Δεκ</translation>
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
        <translation>μίλια</translation>
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
        <translation>L/στροφή</translation>
    </message>
    <message>
        <source>gal/rev</source>
        <translation>gal/στροφή</translation>
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
        <translation>m/παλμό</translation>
    </message>
    <message>
        <source>ft/pulse</source>
        <translation>ft/παλμό</translation>
    </message>
    <message>
        <source>pulses/L</source>
        <translation>παλμοί/L</translation>
    </message>
    <message>
        <source>pulses/gal</source>
        <translation>παλμοί/gal</translation>
    </message>
    <message>
        <source>pulses/mL</source>
        <translation>παλμοί/mL</translation>
    </message>
    <message>
        <source>pulses/fl.oz</source>
        <translation>παλμοί/fl.oz</translation>
    </message>
    <message>
        <source>pulses/m³</source>
        <translation>παλμοί/m³</translation>
    </message>
    <message>
        <source>pulses/ft³</source>
        <translation>παλμοί/ft³</translation>
    </message>
    <message>
        <source>pulses/t</source>
        <translation>παλμοί/t</translation>
    </message>
    <message>
        <source>pulses/lb</source>
        <translation>παλμοί/lb</translation>
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
        <translation>kg/στροφή</translation>
    </message>
    <message>
        <source>lb/rev</source>
        <translation>lb/στροφή</translation>
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
        <translation>παλμοί/kgN</translation>
    </message>
    <message>
        <source>pulses/lbN</source>
        <translation>παλμοί/lbN</translation>
    </message>
    <message>
        <source>KS/ha</source>
        <translation>χιλ.σπ./ha</translation>
    </message>
    <message>
        <source>KS/ac</source>
        <translation>χιλ.σπ./ac</translation>
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
        <translation>rpm</translation>
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
        <translation>Κρίσιμο</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Κανονικό</translation>
    </message>
    <message>
        <source>Trivial</source>
        <translation>Ασήμαντο</translation>
    </message>
</context>
<context>
    <name>TWork</name>
    <message>
        <source>An implement cannot have this width.</source>
        <translation>Ένα παρελκόμενο δεν μπορεί να έχει αυτό το πλάτος.</translation>
    </message>
    <message>
        <source>A file of this job cannot be used. %1</source>
        <translation>Ένα αρχείο αυτής της εργασίας δεν μπορεί να χρησιμοποιηθεί. %1</translation>
    </message>
    <message>
        <source>Coverage was not complete and was left out: strips %1, bytes %2</source>
        <translation>Τα δεδομένα κάλυψης δεν ήταν πλήρη και παραλείφθηκαν: λωρίδες %1, byte %2</translation>
    </message>
    <message>
        <source>The file of the flags is damaged; new flags are not stored.</source>
        <translation>Το αρχείο των σημαιών είναι κατεστραμμένο. Οι νέες σημαίες δεν αποθηκεύονται.</translation>
    </message>
    <message>
        <source>A file could not be stored. %1</source>
        <translation>Δεν ήταν δυνατή η αποθήκευση αρχείου. %1</translation>
    </message>
    <message>
        <source>The file of the implement cannot be used. %1</source>
        <translation>Το αρχείο του παρελκόμενου δεν μπορεί να χρησιμοποιηθεί. %1</translation>
    </message>
    <message>
        <source>There is no line.</source>
        <translation>Δεν υπάρχει γραμμή.</translation>
    </message>
    <message>
        <source>The line has no name.</source>
        <translation>Η γραμμή δεν έχει όνομα.</translation>
    </message>
    <message>
        <source>The guidance line cannot be used. %1</source>
        <translation>Η γραμμή καθοδήγησης δεν μπορεί να χρησιμοποιηθεί. %1</translation>
    </message>
    <message>
        <source>No job is chosen</source>
        <translation>Δεν έχει επιλεγεί εργασία</translation>
    </message>
    <message>
        <source>No job is chosen: what is covered is not stored.</source>
        <translation>Δεν έχει επιλεγεί εργασία: ό,τι καλύπτεται δεν αποθηκεύεται.</translation>
    </message>
    <message>
        <source>The coverage of this job cannot be used: what is covered is not stored.</source>
        <translation>Η κάλυψη αυτής της εργασίας δεν μπορεί να χρησιμοποιηθεί: ό,τι καλύπτεται δεν αποθηκεύεται.</translation>
    </message>
    <message>
        <source>The coverage cannot be stored, and strips are lost: %1</source>
        <translation>Η κάλυψη δεν μπορεί να αποθηκευτεί και χάνονται λωρίδες: %1</translation>
    </message>
    <message>
        <source>The coverage is kept in memory until it can be stored. %1</source>
        <translation>Η κάλυψη μένει στη μνήμη μέχρι να μπορεί να αποθηκευτεί. %1</translation>
    </message>
    <message>
        <source>The job is still being read.</source>
        <translation>Η εργασία διαβάζεται ακόμη.</translation>
    </message>
</context>
<context>
    <name>TileTurner</name>
    <message>
        <source>Tiles</source>
        <translation>Πλακίδια</translation>
    </message>
</context>
<context>
    <name>Tiles</name>
    <message>
        <source>Rate</source>
        <translation>Δόση</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Ταχύτητα</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>Έκταση</translation>
    </message>
    <message>
        <source>Left</source>
        <comment>area that is left to work</comment>
        <translation>Υπόλοιπο</translation>
    </message>
    <message>
        <source>Work</source>
        <comment>area per hour</comment>
        <translation>Απόδοση</translation>
    </message>
    <message>
        <source>Flow</source>
        <translation>Παροχή</translation>
    </message>
    <message>
        <source>Press.</source>
        <comment>pressure</comment>
        <translation>Πίεση</translation>
    </message>
    <message>
        <source>Temp.</source>
        <comment>temperature</comment>
        <translation>Θερμ.</translation>
    </message>
    <message>
        <source>Driven</source>
        <translation>Διαδρομή</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Θέση</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Ώρα</translation>
    </message>
</context>
<context>
    <name>TilesPage</name>
    <message>
        <source>Back to the first choice</source>
        <translation>Επιστροφή στην αρχική επιλογή</translation>
    </message>
    <message>
        <source>%1 further ahead</source>
        <translation>%1: μετακίνηση πάνω</translation>
    </message>
    <message>
        <source>Shown</source>
        <translation>Ορατό</translation>
    </message>
    <message>
        <source>Hidden</source>
        <translation>Κρυφό</translation>
    </message>
</context>
<context>
    <name>Transfer</name>
    <message>
        <source>Nothing is imported: some settings were changed here and in the profile.</source>
        <translation>Δεν εισάγεται τίποτα: μερικές ρυθμίσεις άλλαξαν εδώ και στο προφίλ.</translation>
    </message>
    <message>
        <source>No stick is plugged in.</source>
        <translation>Δεν υπάρχει στικ στη θύρα.</translation>
    </message>
    <message>
        <source>The stick was removed before everything was on it.</source>
        <translation>Το στικ αφαιρέθηκε πριν γραφτούν όλα.</translation>
    </message>
    <message>
        <source>The stick could not be written to the end.</source>
        <translation>Η εγγραφή στο στικ δεν ολοκληρώθηκε.</translation>
    </message>
    <message>
        <source>The folder %1 cannot be made.</source>
        <translation>Αδύνατη η δημιουργία του φακέλου %1.</translation>
    </message>
    <message>
        <source>The file %1 cannot be written.</source>
        <translation>Αδύνατη η εγγραφή του αρχείου %1.</translation>
    </message>
    <message>
        <source>The logs are on the stick (files: %1).</source>
        <translation>Οι καταγραφές είναι στο στικ (αρχεία: %1).</translation>
    </message>
    <message>
        <source>The profile cannot be used. %1</source>
        <translation>Το προφίλ δεν μπορεί να χρησιμοποιηθεί. %1</translation>
    </message>
    <message>
        <source>Nothing is imported. %1</source>
        <translation>Δεν εισάγεται τίποτα. %1</translation>
    </message>
    <message>
        <source>This display</source>
        <translation>Αυτό το τερματικό</translation>
    </message>
    <message>
        <source>Another display</source>
        <translation>Άλλο τερματικό</translation>
    </message>
    <message>
        <source>The profile is not on the stick. %1</source>
        <translation>Το προφίλ δεν είναι στο στικ. %1</translation>
    </message>
    <message>
        <source>The profile is on the stick: %1.</source>
        <translation>Το προφίλ είναι στο στικ: %1.</translation>
    </message>
    <message>
        <source>The file for support is not on the stick. %1</source>
        <translation>Το αρχείο για υποστήριξη δεν είναι στο στικ. %1</translation>
    </message>
    <message>
        <source>The file for support is on the stick: %1.</source>
        <translation>Το αρχείο για υποστήριξη είναι στο στικ: %1.</translation>
    </message>
    <message>
        <source>The profile is imported (settings changed: %1).</source>
        <translation>Το προφίλ εισήχθη (ρυθμίσεις που άλλαξαν: %1).</translation>
    </message>
    <message>
        <source>It cannot be used.</source>
        <translation>Δεν μπορεί να χρησιμοποιηθεί.</translation>
    </message>
</context>
<context>
    <name>TransferState</name>
    <message>
        <source>Reading</source>
        <translation>Ανάγνωση</translation>
    </message>
    <message>
        <source>Writing</source>
        <translation>Εγγραφή</translation>
    </message>
    <message>
        <source>Leave the stick where it is until this is done.</source>
        <translation>Το στικ μένει στη θέση του μέχρι το τέλος.</translation>
    </message>
</context>
<context>
    <name>WorkPage</name>
    <message>
        <source>Waiting for a position</source>
        <translation>Αναμονή για θέση</translation>
    </message>
    <message>
        <source>Map</source>
        <translation>Χάρτης</translation>
    </message>
</context>
<context>
    <name>WorkingButton</name>
    <message>
        <source>Working</source>
        <translation>Εργάζεται</translation>
    </message>
    <message>
        <source>Not working</source>
        <translation>Δεν εργάζεται</translation>
    </message>
    <message>
        <source>Working. Switch the implement off</source>
        <translation>Εργάζεται. Απενεργοποίηση παρελκόμενου</translation>
    </message>
    <message>
        <source>Not working. Switch the implement on</source>
        <translation>Δεν εργάζεται. Ενεργοποίηση παρελκόμενου</translation>
    </message>
</context>
</TS>
