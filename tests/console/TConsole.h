#pragma once

#include <QByteArray>
#include <QProcess>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

/// The program itself, run on a data folder of its own.
class TConsole
{
public:
    struct tagResult
    {
        int status;
        QString output;
        QString errors;
    };

    tagResult Run(const QStringList& arguments, const QByteArray& input = QByteArray()) const
    {
        QProcess process;
        process.start(QLatin1String(CABSETTINGS_PROGRAM),
                      QStringList{QLatin1String("--data"), DataFolder()} + arguments);
        process.write(input);
        process.closeWriteChannel();
        if (!process.waitForFinished(60000) || process.exitStatus() != QProcess::NormalExit)
            return {-1, QString(), QLatin1String("did not end")};
        return {process.exitCode(), QString::fromUtf8(process.readAllStandardOutput()),
                QString::fromUtf8(process.readAllStandardError())};
    }

    /// For sh: the program with room for 64 MiB of data, and its arguments behind it.
    static QStringList WithLittleMemory(const QStringList& arguments)
    {
        return QStringList{QLatin1String("-c"), QLatin1String("ulimit -d 65536; exec \"$@\""), QLatin1String("sh"),
                           QLatin1String(CABSETTINGS_PROGRAM)} +
               arguments;
    }

    QString DataFolder() const { return m_Folder.filePath(QLatin1String("terminal")); }
    QString Path(const char* name) const { return m_Folder.filePath(QLatin1String(name)); }

private:
    QTemporaryDir m_Folder;
};
