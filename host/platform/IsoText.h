#pragma once

#include <QDateTime>
#include <QLatin1String>
#include <QLocale>
#include <QString>

/// Date and time to the second, without a zone: "2026-03-05T14:05:09". The same whatever the machine's language.
inline QString IsoText(const QDateTime& time)
{
    return QLocale::c().toString(time, QLatin1String("yyyy-MM-dd'T'HH:mm:ss"));
}
