#pragma once

#include <QString>
#include <QStringList>

/// The names by which people know the diagnostic logs: "user" and "nmea".
QStringList LogNames();

/// Base path of a log's series on the internal drive, as TLogSeries takes it. @param logName one of LogNames().
QString LogBasePath(const QString& logName, const QString& internalDrive);
