#pragma once

#include "HostExport.h"
#include "logs/TLogSeries.h"

#include <QByteArray>
#include <QChar>
#include <QHash>
#include <QList>
#include <QString>

#include <vector>

/// One line of a log, without its end.
struct tagLogLine
{
    QString file; ///< the file in which the line begins
    QString text;
};

/// Reads the files of a log as one text, also while the log is written. The files are in the order of TLogSeries,
/// except that a new file comes after the file read last, even when the machine's clock was set back and the new file
/// seems to be older.
///
/// @code
/// TLogTail tail(TSystemSettingsProxy().GetInternalUserLogPath());
/// for (const tagLogLine& line : tail.Read(&error))
///     Show(line.text);
/// @endcode
///
/// Lines that a running terminal has staged in memory are not seen. Use it from one thread at a time.
class CABHOST_EXPORT TLogTail
{
public:
    /// Bytes of a line. Of a longer one the text has these bytes and CutMark.
    static constexpr int LongestLine = 0x10000;

    /// An ellipsis. The logs are in Latin-1, which does not have it: no other text ends in it.
    static constexpr QChar CutMark = QChar(0x2026);

    /// @param basePath see TLogSeries.
    /// @param firstBytes how much of the newest text the first Read() takes, at most; the line in which that begins is
    ///        left out. Everything when it is negative.
    explicit TLogTail(const QString& basePath, qint64 firstBytes = -1);

    /// The complete lines that have come since the last call; all that there are at the first.
    /// @param error says which file cannot be read; empty when all could be.
    QList<tagLogLine> Read(QString* error);

    /// The text after the last complete line; empty when there is none.
    tagLogLine Unfinished() const;

private:
    void Split(const QString& file, const QByteArray& bytes, QList<tagLogLine>* lines);

    void SkipTo(qint64 bytes, const std::vector<TLogSeries::tagFile>& files);

    QString m_BasePath;
    qint64 m_FirstBytes;           ///< negative: everything, and after the first Read()
    bool m_SkipsLine = false;      ///< the next line has lost its beginning
    QHash<QString, qint64> m_Read; ///< how much of each file has been read
    QString m_LastFile;            ///< the file of the newest bytes
    QString m_RestFile;
    QByteArray m_Rest; ///< the beginning of an incomplete line
};
