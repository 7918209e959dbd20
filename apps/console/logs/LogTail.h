#pragma once

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QString>

/// One line of a log, without its end.
struct tagLogLine
{
    QString file; ///< in which it begins
    QString text;
};

/// Reads a log's files one after the other as the one text that they are, while the log goes on from file to file. The
/// files follow one another as TLogSeries orders them; but the file read last comes before any new one, even if the
/// machine's clock was set back and the new one seems to be older.
class TLogTail
{
public:
    /// @param basePath see TLogSeries.
    explicit TLogTail(const QString& basePath);

    /// The complete lines that have come since the last call; all that there are at the first.
    /// @param error says which file cannot be read; empty when all could be.
    QList<tagLogLine> Read(QString* error);

    /// What stands behind the last complete line; nothing when its text is empty.
    tagLogLine Unfinished() const;

private:
    void Split(const QString& file, const QByteArray& bytes, QList<tagLogLine>* lines);

    QString m_BasePath;
    QHash<QString, qint64> m_Read; ///< how much of each file has been read
    QString m_LastFile;            ///< from which the newest bytes came
    QString m_RestFile;
    QByteArray m_Rest; ///< a line that has begun
};
