#pragma once

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QString>
#include <QStringList>

/// Recorded NMEA streams: those of tests/data, and those in the folders of CABSETTINGS_RECORDINGS.
namespace Recordings {

inline QString Own(const QString& name) { return QLatin1String(CABSETTINGS_TEST_DATA "/") + name; }

/// The paths of all of them. A folder without a recording is a mistake.
inline QStringList All()
{
    QStringList paths;
    QStringList folders = {QLatin1String(CABSETTINGS_TEST_DATA)};
    const QStringList further = QString::fromLocal8Bit(qgetenv("CABSETTINGS_RECORDINGS")).split(QLatin1Char(':'));
    for (const QString& folder : further) {
        if (!folder.isEmpty())
            folders.append(folder);
    }
    for (const QString& folder : folders) {
        const QFileInfoList files = QDir(folder).entryInfoList({QLatin1String("*.nmea")}, QDir::Files, QDir::Name);
        if (files.isEmpty())
            qFatal("CABSETTINGS_RECORDINGS: there is no recording (*.nmea) in %s", qPrintable(folder));
        for (const QFileInfo& file : files)
            paths.append(file.filePath());
    }
    return paths;
}

inline QByteArray Contents(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("%s cannot be read", qPrintable(path));
    return file.readAll();
}

} // namespace Recordings
