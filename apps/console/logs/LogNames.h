#pragma once

#include <QString>
#include <QStringList>

/// The names of the diagnostic logs on the command line: "user" and "nmea".
QStringList LogNames();

/// Base path of a log's series on the internal drive, as TLogSeries takes it. @param logName one of LogNames().
QString LogBasePath(const QString& logName, const QString& internalDrive);
