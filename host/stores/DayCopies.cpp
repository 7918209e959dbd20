#include "stores/DayCopies.h"

#include "platform/EParamID.h"
#include "stores/DurableFiles.h"
#include "stores/DurableFolder.h"
#include "stores/StoreFileCopy.h"
#include "stores/TStoreLock.h"

#include <QDateTime>
#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QRegularExpression>

#include <algorithm>
#include <functional>

namespace DayCopies {

namespace {

const QString NameEnd = QLatin1String(".db");
const QLatin1String LockName("lock");
const int LockPatience = 5000; // milliseconds

// Of a file that is not a copy, the day is invalid.
tagCopyName Parse(const QString& fileName)
{
    static const QRegularExpression form(QLatin1String("^([0-9]{4}-[0-9]{2}-[0-9]{2})(?:-([1-9][0-9]{0,5}))?\\.db$"));
    const QRegularExpressionMatch match = form.match(fileName);
    return {QDate::fromString(match.captured(1), Qt::ISODate), match.captured(2).toInt()};
}

QStringList FileNames(const QString& storeFile)
{
    return QDir(Folder(storeFile)).entryList(QDir::Files | QDir::Hidden, QDir::Name);
}

bool AreTheSame(const QString& one, const QString& other)
{
    QFile first(one);
    QFile second(other);
    return first.open(QIODevice::ReadOnly) && second.open(QIODevice::ReadOnly) && first.size() == second.size() &&
           first.readAll() == second.readAll();
}

bool IsDue(const QString& storeFile, const QDate& day, EDayCopy when)
{
    const QString file = File(storeFile, {day, 0});
    if (when == DAY_COPY_MISSING)
        return !DurableFiles::Exists(file);
    return when == DAY_COPY_ALWAYS || !AreTheSame(file, storeFile + QLatin1String(".good"));
}

QList<tagCopyName> NamesOf(const QStringList& fileNames)
{
    QList<tagCopyName> names;
    for (const QString& fileName : fileNames)
        if (Parse(fileName).day.isValid())
            names.append(Parse(fileName));
    std::sort(names.begin(), names.end(), [](const tagCopyName& one, const tagCopyName& other) {
        return one.day == other.day ? one.number > other.number : one.day > other.day;
    });
    return names;
}

// What stays because it cannot be removed is removed another time. The folder is read once: what a second look alone
// found would count as not to be kept.
void Prune(const QString& storeFile)
{
    QList<QDate> days;
    QList<tagCopyName> kept;
    const QStringList fileNames = FileNames(storeFile);
    for (const tagCopyName& name : NamesOf(fileNames)) {
        if (name.number == 0)
            days.append(name.day);
        else if (kept.size() < MostOnDemand)
            kept.append(name);
    }
    for (const QDate& day : Kept(days))
        kept.append({day, 0});
    for (const QString& fileName : fileNames)
        if (fileName != LockName && !kept.contains(Parse(fileName))) {
            QString ignored;
            DurableFiles::Remove(Folder(storeFile) + QLatin1Char('/') + fileName, &ignored);
        }
}

// Returns false with a reason when the folder cannot be made or another program keeps it locked.
bool Lock(const QString& storeFile, TStoreLock* lock, QString* reason)
{
    return MakeFolderDurably(Folder(storeFile), reason) && lock->Take(QDeadlineTimer(LockPatience), reason);
}

QString LockFile(const QString& storeFile) { return Folder(storeFile) + QLatin1Char('/') + LockName; }

bool CopyAndPrune(TSqliteConnection& source, const QString& storeFile, const tagCopyName& name, QString* reason)
{
    if (!StoreFileCopy::CopyTo(source, File(storeFile, name), StoreFileCopy::DAMAGED_ROWS_REFUSED, reason))
        return false;
    Prune(storeFile);
    return true;
}

} // namespace

QString Folder(const QString& storeFile) { return storeFile + QLatin1String(".copies"); }

QString tagCopyName::Text() const
{
    const QString text = day.toString(Qt::ISODate);
    return number == 0 ? text : QString::fromLatin1("%1-%2").arg(text).arg(number);
}

QString File(const QString& storeFile, const tagCopyName& name)
{
    return Folder(storeFile) + QLatin1Char('/') + name.Text() + NameEnd;
}

QList<tagCopyName> Names(const QString& storeFile) { return NamesOf(FileNames(storeFile)); }

QSet<QDate> Kept(QList<QDate> days)
{
    std::sort(days.begin(), days.end(), std::greater<QDate>());
    QSet<QDate> kept;
    QList<qint64> weeks;
    for (const QDate& day : std::as_const(days)) {
        const qint64 monday = day.addDays(1 - day.dayOfWeek()).toJulianDay();
        const bool isNewestOfWeek = !weeks.contains(monday);
        if (isNewestOfWeek)
            weeks.append(monday);
        if (kept.size() < MostDays || (isNewestOfWeek && weeks.size() <= MostWeeks))
            kept.insert(day);
    }
    return kept;
}

QDate Today(int offset) { return QDateTime::currentDateTimeUtc().addSecs(offset).date(); }

QDate Today(TSqliteConnection& connection)
{
    const auto rows = connection.Run(QLatin1String("SELECT value FROM parameters WHERE id = ? AND type = 'int'"),
                                     {int{PARAM_CLOCK_OFFSET}});
    return Today(rows.isEmpty() ? 0 : rows.first().value(0).toInt());
}

bool Make(TSqliteConnection& source, const QString& storeFile, const QDate& day, EDayCopy when, QString* reason)
{
    if (!IsDue(storeFile, day, when))
        return true;
    TStoreLock lock(LockFile(storeFile));
    return Lock(storeFile, &lock, reason) && CopyAndPrune(source, storeFile, {day, 0}, reason);
}

bool MakeOnDemand(TSqliteConnection& source, const QString& storeFile, tagCopyName* name, QString* reason)
{
    TStoreLock lock(LockFile(storeFile));
    if (!Lock(storeFile, &lock, reason))
        return false;
    *name = {Today(source), 1};
    for (const tagCopyName& existing : Names(storeFile))
        if (existing.day == name->day)
            name->number = std::max(name->number, existing.number + 1);
    return CopyAndPrune(source, storeFile, *name, reason);
}

} // namespace DayCopies
