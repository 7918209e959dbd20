// clock: prints the display's clock, and sets it by hand or from UTC.

#include "console/commands/Commands.h"
#include "console/line/CommandLine.h"
#include "console/line/Messages.h"
#include "console/line/Output.h"
#include "console/terminal/Session.h"
#include "platform/UtcOffset.h"

#include "parameters/HostParameters.h"
#include "parameters/TParameterCatalogue.h"
#include "platform/TimeSource.h"
#include "region/TRegionSettingsProxy.h"
#include "stores/TPersistenceHold.h"

#include <QDateTime>
#include <QJsonObject>
#include <QLocale>
#include <QRegularExpression>

#include <cstdlib>
#include <functional>
#include <limits>
#include <optional>

namespace {

const int SecondsPerHour = 60 * 60;

/// The store holds the distance between the display's clock and the machine's in seconds; a day is left for the offset
/// from UTC.
const qint64 GreatestDistance = std::numeric_limits<int>::max() - 24 * SecondsPerHour;

/// What has set the offset from UTC.
struct tagOffsetSource
{
    const char* name;
    const char* words;
    bool isInUse; ///< UTC is local time less the offset; else the machine's
};

constexpr tagOffsetSource ByOperator = {"operator", "chosen by the operator", true};
constexpr tagOffsetSource ByReceiver = {"receiver", "clock less UTC when the first GPS time came", true};
constexpr tagOffsetSource ByNobody = {"nobody", "not set", false};

/// With a receiver, an offset of 0 is one too.
tagOffsetSource OffsetSource(TParameterStore& store)
{
    if (store.GetParameter(PARAM_UTC_OFFSET_SET_BY_USER).toBool())
        return ByOperator;
    const bool hasReceiver = store.GetParameter(PARAM_TIME_SOURCE).toInt() == TIME_SOURCE_RECEIVER;
    return hasReceiver || StoredUtcOffset(store).Seconds() != 0 ? ByReceiver : ByNobody;
}

/// "receiver"
QString SourceName(TParameterStore& store)
{
    return TParameterCatalogue::Text(*TParameterCatalogue::Find(PARAM_TIME_SOURCE),
                                     store.GetParameter(PARAM_TIME_SOURCE));
}

/// "receiver, since 2026-03-05T13:05:09Z"
QString SourceWords(TParameterStore& store)
{
    const QString since = store.GetParameter(PARAM_TIME_SOURCE_SINCE).toString();
    if (store.GetParameter(PARAM_TIME_SOURCE).toInt() == TIME_SOURCE_NONE)
        return QLatin1String("none: the machine's clock, which nothing has set");
    return since.isEmpty() ? SourceName(store) : QString::fromLatin1("%1, since %2").arg(SourceName(store), since);
}

int RunShowClock(const tagContext& context, const QStringList& arguments)
{
    TCommandLine line(
        QLatin1String("clock show"), QString(),
        QLatin1String("Prints the display's date and time, UTC, the offset between them and what set it, and "
                      "where the time comes from, and since when, by the clock itself."),
        QLatin1String("cabsettings clock"));
    line.AddJsonOption(
        QLatin1String("Prints an object: date and time as the display shows them, local, utc, utcFrom (offset "
                      "or machine), source (none, operator, receiver), since (UTC; null without a source), "
                      "offsetHours, offsetMinutes, offsetSetBy (operator, receiver, nobody), machineOffset (the clock "
                      "less the machine's, in seconds)."));
    if (const auto status = line.Read(arguments, 0, 0))
        return *status;

    TSession session;
    if (!session.Open(context, SESSION_TERMINAL))
        return STATUS_FAILED;
    TParameterStore& store = session.Store();
    const TRegionSettingsProxy region;
    const tagUtcOffset offset = StoredUtcOffset(store);
    const tagOffsetSource offsetSource = OffsetSource(store);
    const QString since = store.GetParameter(PARAM_TIME_SOURCE_SINCE).toString();
    const QDateTime local = region.GetDateTime();
    const QDateTime utc = offsetSource.isInUse ? local.addSecs(-offset.Seconds()) : QDateTime::currentDateTimeUtc();
    const QString localText = QLocale::c().toString(local, QLatin1String("yyyy-MM-dd'T'HH:mm:ss"));
    const QString utcText = utc.toString(Qt::ISODate);
    if (line.WantsJson()) {
        const QJsonObject object{
            {QLatin1String("date"), region.GetDateString()},
            {QLatin1String("time"), region.GetTimeString()},
            {QLatin1String("local"), localText},
            {QLatin1String("utc"), utcText},
            {QLatin1String("utcFrom"), QLatin1String(offsetSource.isInUse ? "offset" : "machine")},
            {QLatin1String("source"), SourceName(store)},
            {QLatin1String("since"), since.isEmpty() ? QJsonValue() : QJsonValue(since)},
            {QLatin1String("offsetHours"), offset.hours},
            {QLatin1String("offsetMinutes"), offset.minutes},
            {QLatin1String("offsetSetBy"), QLatin1String(offsetSource.name)},
            {QLatin1String("machineOffset"), store.GetParameter(PARAM_CLOCK_OFFSET).toInt()},
        };
        PrintJson(object);
        return STATUS_DONE;
    }
    PrintTable({
        {QLatin1String("local"), region.GetDateString() + QLatin1Char(' ') + region.GetTimeString()},
        {QLatin1String("UTC"),
         QString::fromLatin1("%1 (%2)").arg(
             utcText, QLatin1String(offsetSource.isInUse ? "local less the offset" : "the machine's clock"))},
        {QLatin1String("offset"), QString::fromLatin1("%1 (%2)").arg(offset.Text(), QLatin1String(offsetSource.words))},
        {QLatin1String("source"), SourceWords(store)},
    });
    return STATUS_DONE;
}

const char* const DateShape = "^\\d{4}-\\d{2}-\\d{2}$";
const char* const TimeShape = "^\\d{2}:\\d{2}(:\\d{2})?$";

bool HasShape(const QString& text, const char* shape)
{
    return QRegularExpression(QLatin1String(shape)).match(text).hasMatch();
}

/// Invalid, after a message, when the text is not a date of the calendar or a time of the day.
QDate ReadDate(const QString& text, const TCommandLine& line)
{
    const QDate date = HasShape(text, DateShape) ? QDate::fromString(text, QLatin1String("yyyy-MM-dd")) : QDate();
    if (!date.isValid())
        line.Misused(Messages::Invalid(QLatin1String("date"), text, QLatin1String("YYYY-MM-DD, such as 2026-02-28")));
    return date;
}

QTime ReadTime(const QString& text, const TCommandLine& line)
{
    // Not by Qt's ISO form, which takes 24:00 for 00:00.
    const QString format = QLatin1String(text.count(QLatin1Char(':')) == 1 ? "HH:mm" : "HH:mm:ss");
    const QTime time = HasShape(text, TimeShape) ? QTime::fromString(text, format) : QTime();
    if (!time.isValid())
        line.Misused(
            Messages::Invalid(QLatin1String("time"), text, QLatin1String("HH:MM or HH:MM:SS from 00:00 to 23:59:59")));
    return time;
}

/// Whether the store can hold the distance to the machine's clock. Prints a message when it cannot.
bool IsInReach(const QDateTime& wanted, const TCommandLine& line)
{
    const qint64 distance = QDateTime::currentDateTimeUtc().secsTo(wanted);
    if (std::abs(distance) <= GreatestDistance)
        return true;
    line.Misused(Messages::Invalid(QLatin1String("date"), wanted.date().toString(Qt::ISODate),
                                   QLatin1String("a date within 68 years of the machine's clock")));
    return false;
}

/// The clock's time in UTC, as far as the offset is known.
QDateTime ClockUtc(TParameterStore& store)
{
    return TRegionSettingsProxy().GetDateTime().addSecs(-StoredUtcOffset(store).Seconds());
}

/// Sets the clock of a terminal on the data folder.
int SetClock(const tagContext& context, ETimeSource source,
             const std::function<void(TRegionSettingsProxy& region)>& set)
{
    TSession session;
    if (!session.Open(context, SESSION_TERMINAL))
        return STATUS_FAILED;
    // The façade returns nothing; the end of a hold tells whether the clock is on the disk.
    TPersistenceHold hold(session.Store());
    TRegionSettingsProxy region;
    set(region);
    KeepTimeSource(source, ClockUtc(session.Store()));
    return hold.Release() ? STATUS_DONE : Fail(QLatin1String("cannot store the clock"));
}

int RunSetByHand(const tagContext& context, const QStringList& arguments)
{
    TCommandLine line(
        QLatin1String("clock set"), QLatin1String("[DATE] [TIME]"),
        QLatin1String("Sets the display's clock by hand, as the operator does before the first GPS time. DATE is "
                      "YYYY-MM-DD, TIME is HH:MM or HH:MM:SS in local time. The offset from UTC becomes 0 until GPS "
                      "time sets it. To choose an offset, set clock.offset-hours, clock.offset-minutes and "
                      "clock.offset-by-operator. A terminal that is running keeps its own clock."),
        QLatin1String("cabsettings clock set 2026-03-05 14:05"));
    if (const auto status = line.Read(arguments, 1, 2))
        return *status;
    const QStringList words = line.Words().join(QLatin1Char('T')).split(QLatin1Char('T'));
    if (words.size() > 2)
        return line.Misused(Messages::Unexpected(words.at(2), QLatin1String("[DATE] [TIME]")));
    const bool hasTime = words.size() == 2 || words.first().contains(QLatin1Char(':'));
    const bool hasDate = words.size() == 2 || !hasTime;
    const QDate date = hasDate ? ReadDate(words.first(), line) : QDate();
    if (hasDate && (!date.isValid() || !IsInReach(QDateTime(date, QTime(0, 0), Qt::UTC), line)))
        return STATUS_MISUSED;
    const QTime time = hasTime ? ReadTime(words.last(), line) : QTime();
    if (hasTime && !time.isValid())
        return STATUS_MISUSED;

    return SetClock(context, TIME_SOURCE_OPERATOR, [&](TRegionSettingsProxy& region) {
        if (hasDate && hasTime)
            region.SetUserDateTime(date.year(), date.month(), date.day(), time.hour(), time.minute(), time.second());
        else if (hasDate)
            region.SetUserDate(date.year(), date.month(), date.day());
        else
            region.SetUserTime(time.hour(), time.minute(), time.second());
    });
}

int RunSetUtc(const tagContext& context, const QStringList& arguments)
{
    TCommandLine line(
        QLatin1String("clock utc"), QLatin1String("DATETIME"),
        QLatin1String("Sets the display's clock from UTC, as a GPS receiver does. DATETIME is "
                      "YYYY-MM-DDTHH:MM:SSZ. Unless the operator has chosen an offset, the offset "
                      "becomes the clock less UTC. The time counts as a receiver's, and is not checked. A terminal "
                      "that is running keeps its own clock."),
        QLatin1String("cabsettings clock utc 2026-03-05T13:05:09Z"));
    if (const auto status = line.Read(arguments, 1, 1))
        return *status;
    const QString text = line.Words().first();
    const QStringList parts = text.left(text.size() - 1).split(QLatin1Char('T'));
    if (!text.endsWith(QLatin1Char('Z')) || parts.size() != 2)
        return line.Misused(Messages::Invalid(QLatin1String("time"), text, QLatin1String("YYYY-MM-DDTHH:MM:SSZ")));
    QDate date = ReadDate(parts.first(), line);
    if (!date.isValid())
        return STATUS_MISUSED;
    QTime time = ReadTime(parts.last(), line);
    if (!time.isValid() || !IsInReach(QDateTime(date, time, Qt::UTC), line))
        return STATUS_MISUSED;
    return SetClock(context, TIME_SOURCE_RECEIVER,
                    [&](TRegionSettingsProxy& region) { region.SetUTCTimeAndDate(time, date, true); });
}

const std::vector<tagCommand> Commands = {
    {"show", "Prints the clock; the default.", RunShowClock},
    {"set", "Sets the clock by hand.", RunSetByHand},
    {"utc", "Sets the clock as a GPS receiver does.", RunSetUtc},
};

} // namespace

int RunClock(const tagContext& context, const QStringList& arguments)
{
    const QString word = arguments.value(1);
    if (word.isEmpty() || word == QLatin1String("--json"))
        return RunShowClock(context, arguments);
    return Dispatch(QLatin1String("clock"), Commands, context, arguments.mid(1));
}
