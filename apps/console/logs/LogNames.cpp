#include "console/logs/LogNames.h"

#include "system/TSystemSettings.h"

#include <QDir>

namespace {

struct tagLog
{
    const char* name;
    const char* const* prefix;
};

const tagLog Logs[] = {
    {"user", &TSystemSettings::UserPrefix},
    {"nmea", &TSystemSettings::NEMAPrefix},
};

} // namespace

QStringList LogNames()
{
    QStringList names;
    for (const tagLog& log : Logs)
        names.append(QLatin1String(log.name));
    return names;
}

QString LogBasePath(const QString& logName, const QString& internalDrive)
{
    const auto log = LogNames().indexOf(logName);
    const QDir folder(QDir(internalDrive).absoluteFilePath(QLatin1String(TSystemSettings::DiagnosticsFolder)));
    return folder.absoluteFilePath(QLatin1String(*Logs[log].prefix) + QLatin1String(TSystemSettings::CSVExtension));
}
