#pragma once

#include <QFileInfoList>
#include <QString>
#include <QStringList>

#include <optional>

/// The names by which people know the diagnostic logs: "user" and "nmea".
QStringList LogNames();

/// Folder, stem and extension of a log's series on the internal drive. @param logName one of LogNames().
QString LogBasePath(const QString& logName, const QString& internalDrive);

/// The files of a diagnostic log, the oldest first: by number, 00001 following 99999. Their times do not count, since
/// the machine's clock is set back now and then. Files without a number come before the others.
///
/// @param basePath as the log was restored with: folder, stem and extension of the series.
QFileInfoList LogFiles(const QString& basePath);

/// The number of a file of the series; nothing when its name has none.
std::optional<int> LogFileNumber(const QString& basePath, const QFileInfo& file);
