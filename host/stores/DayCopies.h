#pragma once

#include "stores/TSqliteConnection.h"

#include <QDate>
#include <QList>
#include <QSet>
#include <QString>

/// When the copy of a day is made.
enum EDayCopy : int
{
    DAY_COPY_MISSING, ///< when there is none yet
    DAY_COPY_CHANGED, ///< when it is not the same as the last good copy
    DAY_COPY_ALWAYS,
};

/// The copies of a store's file in the folder beside it: one for each day, named "2026-05-04.db", and those that were
/// made on demand, "2026-05-04-1.db", "2026-05-04-2.db" and so on. Days are those of the terminal's clock.
namespace DayCopies {

constexpr int MostDays = 7;
constexpr int MostWeeks = 4;
constexpr int MostOnDemand = 7;

struct tagCopyName
{
    QDate day;
    int number; ///< 0 for the copy of the day, else that of a copy on demand

    bool operator==(const tagCopyName& other) const { return day == other.day && number == other.number; }

    /// "2026-05-04" or "2026-05-04-1"
    QString Text() const;
};

QString Folder(const QString& storeFile);

QString File(const QString& storeFile, const tagCopyName& name);

/// All copies, those of the newest day first, and of a day the highest number first.
QList<tagCopyName> Names(const QString& storeFile);

/// Those of @p days whose copies are kept: the newest MostDays, and the newest of each of the newest MostWeeks weeks,
/// which begin on Mondays. Weeks and days without a copy do not count.
QSet<QDate> Kept(QList<QDate> days);

/// The day on the terminal's clock; the clock's offset is @p offset in seconds, or that of the parameters in the file.
QDate Today(int offset);
QDate Today(TSqliteConnection& connection);

/// Makes the copy of @p day, and removes the copies that are not kept and what a killed program has left behind. One
/// program at a time does so; others wait. @return false with a reason when the copy is not on the disk.
bool Make(TSqliteConnection& source, const QString& storeFile, const QDate& day, EDayCopy when, QString* reason);

/// Makes a copy of today with the next free number, and removes as Make() does. The newest MostOnDemand are kept.
bool MakeOnDemand(TSqliteConnection& source, const QString& storeFile, tagCopyName* name, QString* reason);

} // namespace DayCopies
