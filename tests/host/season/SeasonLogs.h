#pragma once

#include "diagnostics/TLogTail.h"
#include "logs/TLogSeries.h"

#include <QByteArray>
#include <QString>

#include <vector>

/// How many files a log keeps.
constexpr std::size_t MostLogFiles = 4;

/// Compares the files of the NMEA log, one after the other, with every byte that was written to it. Throws TSeasonFault
/// where something is missing, too much, or in the wrong file.
class TNmeaLogCheck
{
public:
    /// @param number of the file that the log begins with.
    TNmeaLogCheck(const QString& basePath, int number) : m_Series(basePath), m_Number(number) {}

    void Wrote(const QByteArray& line) { m_Expected += line; }

    /// Looks at the files that are complete. Call it before the log has filled three more.
    void Look() { Look(false); }

    /// Looks at the newest one, too; nothing may be staged.
    void LookAtAll() { Look(true); }

    int Rotations() const { return m_Rotations; }
    int Number() const { return m_Number; }  ///< of the newest file
    qint64 Bytes() const { return m_Bytes; } ///< of complete files

private:
    void Look(bool isFlushed);
    void TakeComplete(const TLogSeries::tagFile& file);

    TLogSeries m_Series;
    int m_Number;
    int m_Rotations = 0;
    qint64 m_Bytes = 0;
    QByteArray m_Expected; ///< from the beginning of the file with this number on
};

/// Reads the user log while it is written: every entry of the season must come once, in order, at a time that is not
/// before that of the entry before it.
class TUserLogCheck
{
public:
    /// What was read so far.
    struct tagCounts
    {
        qint64 entries = 0; ///< the sum of all, of no other kind too
        qint64 codes = 0;   ///< trouble codes
        qint64 parameters = 0;
        qint64 firstFixes = 0;
        qint64 losses = 0;
        qint64 returns = 0;
        qint64 timesSet = 0;
        qint64 damaged = 0; ///< sentences, as the entries say
        qint64 others = 0;  ///< events of the receiver beside these
    };

    /// Passes over what is in the log.
    explicit TUserLogCheck(const QString& basePath);

    /// The text of the next trouble code.
    static QString Serial(qint64 number) { return QString::number(number).rightJustified(8, QLatin1Char('0')); }

    void Look();

    const tagCounts& Counts() const { return m_Counts; }
    int Rotations() const { return m_Rotations; }
    int Number() const { return m_Number; } ///< of the newest file

private:
    void Take(const QString& line);
    void TakeEvent(const QStringList& fields);
    void LookAtFiles();

    TLogSeries m_Series;
    TLogTail m_Tail;
    tagCounts m_Counts;
    QString m_LastTime;
    int m_Number = 0;
    int m_Rotations = 0;
};
