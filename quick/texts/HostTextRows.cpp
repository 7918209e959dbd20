// The texts of the host that can reach a display, and what an operator reads in their place.

#include "texts/HostTextRows.h"

#include <QtGlobal>

#include <iterator>

namespace {

using HostTextRows::tagRow;

/// What is more special stands before what is more general.
constexpr tagRow Host[] = {
    // names
    {"invalid %1 \"%2\": the name %3; did you mean \"%4\"?", QT_TRANSLATE_NOOP("Host", "%3 Try: %4"), 3},
    {"invalid path \"%1\": %2", QT_TRANSLATE_NOOP("Host", "This name is not possible.")},
    {"the name of the %1 is empty", QT_TRANSLATE_NOOP("Host", "The name is empty.")},
    {"refers to another folder", QT_TRANSLATE_NOOP("Host", "This name stands for another folder.")},
    {"contains the separator %1", QT_TRANSLATE_NOOP("Host", "The name must not contain %1.")},
    {"contains the control character U+%1, which FAT file systems do not allow",
     QT_TRANSLATE_NOOP("Host", "The name contains a sign that cannot be seen.")},
    {"contains %1, which FAT file systems do not allow", QT_TRANSLATE_NOOP("Host", "The name must not contain %1.")},
    {"contains an incomplete character", QT_TRANSLATE_NOOP("Host", "The name contains a sign that is not complete.")},
    {"ends in a full stop or a blank, which FAT file systems remove",
     QT_TRANSLATE_NOOP("Host", "The name must not end in a full stop or a blank.")},
    {"begins with a blank", QT_TRANSLATE_NOOP("Host", "The name must not begin with a blank.")},
    {"is reserved on FAT file systems", QT_TRANSLATE_NOOP("Host", "A stick cannot hold a file with this name.")},
    {"has %1 bytes; at most %2 are allowed", QT_TRANSLATE_NOOP("Host", "The name is too long.")},

    // clients, farms, fields and jobs
    {"cannot rename \"%1\": \"%2\" exists already", QT_TRANSLATE_NOOP("Host", "%2 exists already.")},
    {"the %1 \"%2\" exists already", QT_TRANSLATE_NOOP("Host", "%2 exists already.")},
    {"the %1 \"%2\" is active and holds %3 file(s)", QT_TRANSLATE_N_NOOP("Host", "%2 is active and holds %n file(s)."),
     0, 3},
    {"the %1 \"%2\" holds %3 file(s)", QT_TRANSLATE_N_NOOP("Host", "%2 holds %n file(s)."), 0, 3},
    {"the %1 \"%2\" is active", QT_TRANSLATE_NOOP("Host", "%2 is active.")},
    {"there is no %1 \"%2\"; did you mean %3?", QT_TRANSLATE_NOOP("Host", "%2 is no longer there.")},
    {"there is no %1 \"%2\"", QT_TRANSLATE_NOOP("Host", "%2 is no longer there.")},
    {"a stick cannot hold the %1 \"%2\" beside \"%3\": it ignores letter case and the encoding of accents",
     QT_TRANSLATE_NOOP("Host", "A stick cannot tell %2 from %3.")},
    {"another program is working on the fields; try again later",
     QT_TRANSLATE_NOOP("Host", "Another program is working on the fields. Try again later.")},
    {"cannot store the selection", QT_TRANSLATE_NOOP("Host", "The selection could not be stored.")},
    {"\"%1\" is neither a file nor a folder", QT_TRANSLATE_NOOP("Host", "%1 is neither a file nor a folder.")},

    // profiles
    {"%1: its content does not match its hash; it was edited or is damaged",
     QT_TRANSLATE_NOOP("Host", "The file was edited or is damaged.")},
    {"%1: cannot be read: %2", QT_TRANSLATE_NOOP("Host", "%1 cannot be read. %2"), 2},
    {"%1: not a regular file", QT_TRANSLATE_NOOP("Host", "The file is of another kind.")},
    {"%1: the file is empty", QT_TRANSLATE_NOOP("Host", "The file is empty.")},
    {"%1: cut off: %2", QT_TRANSLATE_NOOP("Host", "The end of the file is missing.")},
    {"%1: not a profile%2", QT_TRANSLATE_NOOP("Host", "The file is of another kind.")},
    {"%1: not valid JSON: %2", QT_TRANSLATE_NOOP("Host", "The file is damaged.")},
    {"%1: missing \"%2\"", QT_TRANSLATE_NOOP("Host", "The file is not complete.")},
    {"%1: invalid format; expected 1", QT_TRANSLATE_NOOP("Host", "The file is from another version of the software.")},
    {"%1: invalid %2; expected %3", QT_TRANSLATE_NOOP("Host", "The file has a value that is not possible: %2")},
    {"%1: number %2 and name %3", QT_TRANSLATE_NOOP("Host", "The file has a value that is not possible: %2")},
    {"%1: %2 again; line %3 has it too", QT_TRANSLATE_NOOP("Host", "The file has a value twice: %2")},

    // the receiver
    {"invalid source \"%1\"; expected %2", QT_TRANSLATE_NOOP("Host", "This address is not possible: %1")},
    {"no such device", QT_TRANSLATE_NOOP("Host", "The device is not there.")},
    {"no permission, or in use by another program",
     QT_TRANSLATE_NOOP("Host", "It is not permitted, or another program uses it.")},
    {"it is open already", QT_TRANSLATE_NOOP("Host", "Another program uses it.")},
    {"it cannot be read", QT_TRANSLATE_NOOP("Host", "It cannot be read.")},
    {"it was unplugged", QT_TRANSLATE_NOOP("Host", "It was unplugged.")},
    {"it is not a serial device, or does not take these settings",
     QT_TRANSLATE_NOOP("Host", "It is not a serial device, or it cannot have this speed.")},
    {"serial port error %1", QT_TRANSLATE_NOOP("Host", "The serial port has a fault (number %1).")},

    // the files of a job
    {"%1 is not a file of the kind \"%2\"", QT_TRANSLATE_NOOP("Host", "%1 is damaged or of another kind.")},
    {"%1 has version %2 of the kind \"%3\"; this program has version %4",
     QT_TRANSLATE_NOOP("Host", "%1 is from another version of the software.")},
    {"%1 is a coverage of version %2; this program has version %3",
     QT_TRANSLATE_NOOP("Host", "%1 is from another version of the software.")},
    {"%1 is not a coverage", QT_TRANSLATE_NOOP("Host", "%1 is damaged or of another kind.")},
    {"%1 is damaged (kind \"%2\")", QT_TRANSLATE_NOOP("Host", "%1 is damaged.")},
    {"%1 is damaged: its beginning cannot be read", QT_TRANSLATE_NOOP("Host", "%1 is damaged.")},
    {"%1 is damaged", QT_TRANSLATE_NOOP("Host", "%1 is damaged.")},
    {"%1 has coordinates that are not degrees; expected WGS84",
     QT_TRANSLATE_NOOP("Host", "%1 has other coordinates than WGS84.")},
    {"%1 has no index: there is no %2", QT_TRANSLATE_NOOP("Host", "%1 is not complete. %2 is missing.")},
    {"%1 is too large: it has %2 bytes, %3", QT_TRANSLATE_NOOP("Host", "The file is too large.")},
    {"%1 has no polygons", QT_TRANSLATE_NOOP("Host", "%1 has no areas.")},
    {"another program has %1 open", QT_TRANSLATE_NOOP("Host", "Another program uses %1.")},
    {"invalid guidance line; expected A and B from %1 m to %2 m apart",
     QT_TRANSLATE_NOOP("Host", "A and B are too close together or too far apart.")},

    // the file of the settings
    {"another program has locked it for longer than the timeout",
     QT_TRANSLATE_NOOP("Host", "Another program has locked it.")},
    {"another program has locked %1 for longer than the timeout",
     QT_TRANSLATE_NOOP("Host", "Another program uses %1.")},
    {"the journal of %1 cannot be read: %2", QT_TRANSLATE_NOOP("Host", "%1 cannot be read. %2"), 2},
    {"it is no longer there", QT_TRANSLATE_NOOP("Host", "It is no longer there.")},
    {"%1 is no longer there", QT_TRANSLATE_NOOP("Host", "%1 is no longer there.")},
    {"%1 cannot be read: %2", QT_TRANSLATE_NOOP("Host", "%1 cannot be read. %2"), 2},
    {"%1 cannot be written: %2", QT_TRANSLATE_NOOP("Host", "%1 cannot be written. %2"), 2},
    {"%1 cannot be written", QT_TRANSLATE_NOOP("Host", "%1 cannot be written.")},
    {"error %1 of the database", QT_TRANSLATE_NOOP("Host", "The file of the settings has a fault (number %1).")},

    // any file
    {"cannot read \"%1\": %2", QT_TRANSLATE_NOOP("Host", "%1 cannot be read. %2"), 2},
    {"cannot read %1: %2", QT_TRANSLATE_NOOP("Host", "%1 cannot be read. %2"), 2},
    {"cannot open %1: %2", QT_TRANSLATE_NOOP("Host", "%1 cannot be opened. %2"), 2},
    {"cannot lock %1: %2", QT_TRANSLATE_NOOP("Host", "%1 cannot be opened. %2"), 2},
    {"cannot make the folder %1: %2", QT_TRANSLATE_NOOP("Host", "%1 cannot be created. %2"), 2},
    {"cannot make %1: %2", QT_TRANSLATE_NOOP("Host", "%1 cannot be created. %2"), 2},
    {"cannot create %1: %2", QT_TRANSLATE_NOOP("Host", "%1 cannot be created. %2"), 2},
    {"cannot write %1: %2", QT_TRANSLATE_NOOP("Host", "%1 cannot be written. %2"), 2},
    {"cannot write %1", QT_TRANSLATE_NOOP("Host", "%1 cannot be written.")},
    {"cannot sync %1: %2", QT_TRANSLATE_NOOP("Host", "%1 cannot be written. %2"), 2},
    {"cannot cut off the end of %1: %2", QT_TRANSLATE_NOOP("Host", "%1 cannot be written. %2"), 2},
    {"cannot copy %1: %2", QT_TRANSLATE_NOOP("Host", "%1 cannot be copied. %2"), 2},
    {"cannot rename %1: %2", QT_TRANSLATE_NOOP("Host", "%1 cannot be renamed. %2"), 2},
    {"cannot remove %1: %2", QT_TRANSLATE_NOOP("Host", "%1 cannot be removed. %2"), 2},
};

/// Reasons of the system, of Qt's connections and of SQLite.
constexpr tagRow System[] = {
    {"No space left on device", QT_TRANSLATE_NOOP("Host", "The drive is full.")},
    {"Disk quota exceeded", QT_TRANSLATE_NOOP("Host", "The drive is full.")},
    {"database or disk is full", QT_TRANSLATE_NOOP("Host", "The drive is full.")},
    {"Input/output error", QT_TRANSLATE_NOOP("Host", "The drive has a fault.")},
    {"disk I/O error", QT_TRANSLATE_NOOP("Host", "The drive has a fault.")},
    {"Read-only file system", QT_TRANSLATE_NOOP("Host", "The drive can only be read.")},
    {"Permission denied", QT_TRANSLATE_NOOP("Host", "It is not permitted.")},
    {"Operation not permitted", QT_TRANSLATE_NOOP("Host", "It is not permitted.")},
    {"attempt to write a readonly database", QT_TRANSLATE_NOOP("Host", "It is not permitted.")},
    {"unable to open database file", QT_TRANSLATE_NOOP("Host", "It cannot be opened.")},
    {"database disk image is malformed", QT_TRANSLATE_NOOP("Host", "It is damaged.")},
    {"No such file or directory", QT_TRANSLATE_NOOP("Host", "It is not there.")},
    {"No such device", QT_TRANSLATE_NOOP("Host", "The device is not there.")},
    {"No such device or address", QT_TRANSLATE_NOOP("Host", "The device is not there.")},
    {"File exists", QT_TRANSLATE_NOOP("Host", "It exists already.")},
    {"Is a directory", QT_TRANSLATE_NOOP("Host", "It is a folder.")},
    {"Not a directory", QT_TRANSLATE_NOOP("Host", "It is not a folder.")},
    {"Directory not empty", QT_TRANSLATE_NOOP("Host", "The folder is not empty.")},
    {"Too many levels of symbolic links", QT_TRANSLATE_NOOP("Host", "It is a link to another place.")},
    {"Too many links", QT_TRANSLATE_NOOP("Host", "There are too many links to it.")},
    {"File name too long", QT_TRANSLATE_NOOP("Host", "The name is too long.")},
    {"File too large", QT_TRANSLATE_NOOP("Host", "The file is too large.")},
    {"Device or resource busy", QT_TRANSLATE_NOOP("Host", "Another program uses it.")},
    {"Resource temporarily unavailable", QT_TRANSLATE_NOOP("Host", "Another program uses it.")},
    {"Text file busy", QT_TRANSLATE_NOOP("Host", "Another program uses it.")},
    {"Too many open files", QT_TRANSLATE_NOOP("Host", "Too many files are open.")},
    {"Too many open files in system", QT_TRANSLATE_NOOP("Host", "Too many files are open.")},
    {"Cannot allocate memory", QT_TRANSLATE_NOOP("Host", "There is too little memory.")},
    {"Invalid argument", QT_TRANSLATE_NOOP("Host", "It is not possible there.")},
    {"Connection refused", QT_TRANSLATE_NOOP("Host", "The device refuses the connection.")},
    {"The remote host closed the connection", QT_TRANSLATE_NOOP("Host", "The device has closed the connection.")},
    {"Connection reset by peer", QT_TRANSLATE_NOOP("Host", "The device has closed the connection.")},
    {"Host not found", QT_TRANSLATE_NOOP("Host", "There is no device with this address.")},
    {"Host unreachable", QT_TRANSLATE_NOOP("Host", "There is no device with this address.")},
    {"No route to host", QT_TRANSLATE_NOOP("Host", "There is no device with this address.")},
    {"Network unreachable", QT_TRANSLATE_NOOP("Host", "The network cannot be reached.")},
    {"Network is unreachable", QT_TRANSLATE_NOOP("Host", "The network cannot be reached.")},
    {"Network is down", QT_TRANSLATE_NOOP("Host", "The network cannot be reached.")},
    {"Host is down", QT_TRANSLATE_NOOP("Host", "The device does not answer.")},
    {"Connection timed out", QT_TRANSLATE_NOOP("Host", "The device does not answer.")},
    {"Socket operation timed out", QT_TRANSLATE_NOOP("Host", "The device does not answer.")},
    {"Network operation timed out", QT_TRANSLATE_NOOP("Host", "The device does not answer.")},
};

} // namespace

HostTextRows::tagRows HostTextRows::OfHost() { return {std::begin(Host), std::end(Host)}; }
HostTextRows::tagRows HostTextRows::OfSystem() { return {std::begin(System), std::end(System)}; }
