#include "console/logs/LogFiles.h"

#include "system/TSystemSettings.h"

#include <QDir>

#include <algorithm>

namespace {

const int LastNumber = 99999;

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

std::optional<int> LogFileNumber(const QString& basePath, const QFileInfo& file)
{
    bool isNumber = false;
    const int number = file.completeBaseName().mid(QFileInfo(basePath).completeBaseName().size()).toInt(&isNumber);
    return isNumber ? std::optional<int>(number) : std::nullopt;
}

QFileInfoList LogFiles(const QString& basePath)
{
    const QFileInfo base(basePath);
    const QString pattern = base.completeBaseName() + QLatin1String("*.") + base.suffix();
    QFileInfoList files = base.dir().entryInfoList({pattern}, QDir::Files, QDir::Name);

    int greatest = 0;
    for (const QFileInfo& file : files)
        greatest = std::max(greatest, LogFileNumber(basePath, file).value_or(0));
    // A series has few files: numbers far below the greatest are those of one that has gone round.
    const auto rank = [&basePath, greatest](const QFileInfo& file) {
        const int number = LogFileNumber(basePath, file).value_or(-1);
        return number >= 0 && greatest - number > LastNumber / 2 ? number + LastNumber : number;
    };
    std::stable_sort(files.begin(), files.end(),
                     [&rank](const QFileInfo& left, const QFileInfo& right) { return rank(left) < rank(right); });
    return files;
}
