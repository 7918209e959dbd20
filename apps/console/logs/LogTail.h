#pragma once

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QString>

/// One line of a log, without its end.
struct tagLogLine
{
    QString file; ///< the file in which the line begins
    QString text;
};

/// Reads the files of a log as one text, also while the log is written. The files are in the order of TLogSeries,
/// except that a new file comes after the file read last, even when the machine's clock was set back and the new file
/// seems to be older.
class TLogTail
{
public:
    /// @param basePath see TLogSeries.
    explicit TLogTail(const QString& basePath);

    /// The complete lines that have come since the last call; all that there are at the first.
    /// @param error says which file cannot be read; empty when all could be.
    QList<tagLogLine> Read(QString* error);

    /// The text after the last complete line; empty when there is none.
    tagLogLine Unfinished() const;

private:
    void Split(const QString& file, const QByteArray& bytes, QList<tagLogLine>* lines);

    QString m_BasePath;
    QHash<QString, qint64> m_Read; ///< how much of each file has been read
    QString m_LastFile;            ///< the file of the newest bytes
    QString m_RestFile;
    QByteArray m_Rest; ///< the beginning of an incomplete line
};
