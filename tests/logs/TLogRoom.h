#pragma once

#include "TTemporaryFolder.h"
#include "TestHost.h"

#include "logs/TDiagnosticLog.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <fcntl.h>
#include <sys/stat.h>

/// What a log needs around it: a store, and a folder "logs" for the series user#####.log, whose next number is 1.
struct TLogRoom
{
    TLogRoom()
    {
        TTestClock::Reset();
        TTestFiles::Reset();
        folder.MakeFolder(QLatin1String("logs"));
        store.values[parameter] = 1;
    }

    TLogRoom(const TLogRoom&) = delete;
    TLogRoom& operator=(const TLogRoom&) = delete;

    QString Path(const QString& file) const { return folder.Path(QLatin1String("logs/") + file); }

    /// The base path of the series.
    QString Base() const { return Path(QLatin1String("user.log")); }

    static QString Numbered(int number)
    {
        return QString::fromLatin1("user%1.log").arg(number, 5, 10, QLatin1Char('0'));
    }

    /// Sorted by name.
    QStringList Files() const
    {
        return QDir(folder.Path(QLatin1String("logs"))).entryList(QDir::Files | QDir::Hidden, QDir::Name);
    }

    /// "user00001.log user00002.log".
    QString FileList() const { return Files().join(QLatin1String(" ")); }

    QByteArray Content(const QString& file) const { return folder.Content(QLatin1String("logs/") + file); }
    QByteArray Content(int number) const { return Content(Numbered(number)); }

    /// Makes a file of @p size bytes that was modified @p second seconds after a fixed moment.
    void MakeFile(const QString& file, int size, int second) const
    {
        folder.MakeFile(QLatin1String("logs/") + file, QByteArray(size, 'x'));
        SetModified(file, second);
    }

    void MakeFile(int number, int size, int second) const { MakeFile(Numbered(number), size, second); }

    void SetModified(const QString& file, int second) const
    {
        const time_t moment = 1700000000 + second;
        const timespec times[2] = {{moment, 0}, {moment, 0}};
        utimensat(AT_FDCWD, QFile::encodeName(Path(file)).constData(), times, 0);
    }

    static constexpr EParamID parameter = PARAM_USER_LOG_FILE_NUMBER;

    TTestStore store;
    TTemporaryFolder folder;
};

/// @p length bytes of a sequence in which each stretch of 256 bytes holds every value, the first being @p first.
inline QByteArray Bytes(int length, int first = 0)
{
    QByteArray bytes;
    for (int index = 0; index < length; ++index)
        bytes.append(static_cast<char>((first + index) & 0xFF));
    return bytes;
}

inline bool Log(TDiagnosticLog& log, const QByteArray& bytes)
{
    return log.LogDiagnostic(bytes.constData(), static_cast<int>(bytes.size()));
}
