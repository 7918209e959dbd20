#pragma once

#include <QString>

/// What the terminal writes by itself while it runs, such as the numbers in which its logs count on.
inline bool IsWrittenByTheTerminal(const QString& name)
{
    return name == QLatin1String("clock.source-since") || name == QLatin1String("display.day-switched") ||
           name.startsWith(QLatin1String("log."));
}
