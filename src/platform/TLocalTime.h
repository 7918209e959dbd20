#pragma once

#include "platform/Export.h"

#include <QDate>
#include <QDateTime>
#include <QTime>

/// The display's local clock. Imported: the host defines these operations. They are called from several threads at
/// once, and twice for every log line, so they should be cheap.
class CABSETTINGS_EXPORT TLocalTime
{
public:
    static QDate currentDate();
    static QTime currentTime();
    static QDateTime currentDateTime();

    /// Sets the clock and returns the offset that now applies to it, in the host's own measure; the library stores the
    /// offset and hands it back to SetOffset() at the next start.
    ///
    /// While time comes from GPS this is called once a second, with whole seconds whose lines are early or late by
    /// parts of a second. The clock must not follow them to and fro: the ready host's clock changes only when it is
    /// wrong by a second or more, and stands still rather than run backwards by less than two seconds.
    static int SetDateTime(int year, int month, int day, int hour, int minute, int second);

    /// The offset in force; 0 means that none has been applied yet.
    static int GetOffset();
    static void SetOffset(int offset);
};
