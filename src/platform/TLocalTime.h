#pragma once

#include "platform/Export.h"

#include <QDate>
#include <QDateTime>
#include <QTime>

/// The local clock of the display. The host defines these operations:
///
///     QTime TLocalTime::currentTime() { return currentDateTime().time(); }
///
/// They are called from several threads at the same time, and twice for each line of a log, so they should be fast.
class CABSETTINGS_EXPORT TLocalTime
{
public:
    static QDate currentDate();
    static QTime currentTime();
    static QDateTime currentDateTime();

    /// Sets the clock and returns its new offset, in a unit of the host's choice. The library stores the offset and
    /// passes it to SetOffset() at the next start.
    ///
    /// While time comes from GPS this is called once a second, with whole seconds whose lines are early or late by
    /// parts of a second. The clock must not follow them to and fro. The ready host's clock stays as it is while it is
    /// less than a second ahead, or less than half a second behind; and it stands still rather than run backwards by
    /// less than two seconds.
    static int SetDateTime(int year, int month, int day, int hour, int minute, int second);

    /// The current offset; 0 when none has been applied.
    static int GetOffset();
    static void SetOffset(int offset);
};
