// sun: when the sun rises and sets.

#include "console/commands/Commands.h"
#include "console/line/CommandLine.h"
#include "console/line/Messages.h"
#include "console/line/Number.h"
#include "console/line/Output.h"
#include "console/terminal/Session.h"

#include "nmea/LoggedPosition.h"
#include "region/TRegionSettingsProxy.h"
#include "sun/SunTimes.h"
#include "system/TSystemSettingsProxy.h"

#include <QJsonObject>
#include <QRegularExpression>

#include <optional>

namespace {

const char* const AtOption = "at";
const char* const DateOption = "date";
const char* const PlaceForm = "LAT,LON in degrees, from -90 to 90 and from -180 to 180, such as 52.2,10.5";
const int CoordinateDecimals = 7; // about a centimetre

/// What the table and the object call the two levels.
struct tagLevelName
{
    ESunLevel level;
    const char* name;
};

constexpr tagLevelName Levels[] = {{SUN_LEVEL_HORIZON, "sun"}, {SUN_LEVEL_TWILIGHT, "twilight"}};

constexpr const char* DayNames[] = {"rises or sets", "stays up", "stays down", "unknown"}; // by ESunDay

std::optional<tagSunPlace> ReadPlace(const QString& text)
{
    const QStringList parts = text.split(QLatin1Char(','));
    const auto latitude = FiniteNumber(parts.value(0).trimmed());
    const auto longitude = FiniteNumber(parts.value(1).trimmed());
    if (parts.size() != 2 || !latitude || !longitude || !IsSunPlace({*latitude, *longitude}))
        return std::nullopt;
    return tagSunPlace{*latitude, *longitude};
}

QDate ReadDate(const QString& text)
{
    const QRegularExpression shape(QLatin1String("^\\d{4}-\\d{2}-\\d{2}$"));
    return shape.match(text).hasMatch() ? QDate::fromString(text, Qt::ISODate) : QDate();
}

QString Degrees(double value) { return QString::number(value, 'f', CoordinateDecimals); }

QString TimeText(const QDateTime& utc) { return utc.isValid() ? utc.toString(Qt::ISODate) : QLatin1String("-"); }

void PrintTimes(const tagSunPlace& place, const QDate& date)
{
    QList<QStringList> rows = {{QString(), QLatin1String("rise"), QLatin1String("set")}};
    for (const tagLevelName& row : Levels) {
        const tagSunTimes times = SunTimes(place, date, row.level);
        if (times.day == SUN_RISES_OR_SETS)
            rows.append({QLatin1String(row.name), TimeText(times.rise), TimeText(times.set)});
        else
            rows.append({QLatin1String(row.name), QLatin1String(DayNames[times.day]), QString()});
    }
    PrintLine(QString::fromLatin1("%1 at %2, %3\n")
                  .arg(date.toString(Qt::ISODate), Degrees(place.latitude), Degrees(place.longitude)));
    PrintTable(rows);
}

QJsonObject Json(const tagSunPlace& place, const QDate& date)
{
    QJsonObject object{{QLatin1String("date"), date.toString(Qt::ISODate)},
                       {QLatin1String("latitude"), place.latitude},
                       {QLatin1String("longitude"), place.longitude}};
    const auto value = [](const QDateTime& utc) { return utc.isValid() ? QJsonValue(TimeText(utc)) : QJsonValue(); };
    for (const tagLevelName& row : Levels) {
        const tagSunTimes times = SunTimes(place, date, row.level);
        object.insert(QLatin1String(row.name), QJsonObject{{QLatin1String("day"), QLatin1String(DayNames[times.day])},
                                                           {QLatin1String("rise"), value(times.rise)},
                                                           {QLatin1String("set"), value(times.set)}});
    }
    return object;
}

} // namespace

int RunSun(const tagContext& context, const QStringList& arguments)
{
    TCommandLine line(
        QLatin1String("sun"), QString(),
        QLatin1String("Prints when the sun rises and sets, and when civil twilight begins and ends, with the sun 6 "
                      "degrees below the horizon: the times, in UTC, that fall on a date of UTC. The display switches "
                      "its colours at one of the two, as display.day-switching says."),
        QLatin1String("cabsettings sun --at 52.2,10.5 --date 2026-06-21"));
    line.AddOption(QLatin1String(AtOption),
                   QLatin1String("The place, in degrees, north and east positive; by default the last position in the "
                                 "NMEA log."),
                   QLatin1String("LAT,LON"));
    line.AddOption(QLatin1String(DateOption), QLatin1String("The date, YYYY-MM-DD; by default that of the display."),
                   QLatin1String("DATE"));
    line.AddJsonOption(
        QLatin1String("Prints an object: date, latitude, longitude, and for sun and twilight an object: "
                      "day (rises or sets, stays up, stays down), rise, set (null when there is none)."));
    if (const auto status = line.Read(arguments, 0, 0))
        return *status;
    std::optional<tagSunPlace> place;
    if (line.IsSet(QLatin1String(AtOption))) {
        place = ReadPlace(line.Value(QLatin1String(AtOption)));
        if (!place)
            return line.InvalidValue(QLatin1String(AtOption), QLatin1String(PlaceForm));
    }
    QDate date;
    if (line.IsSet(QLatin1String(DateOption))) {
        date = ReadDate(line.Value(QLatin1String(DateOption)));
        if (!date.isValid())
            return line.InvalidValue(QLatin1String(DateOption), QLatin1String("YYYY-MM-DD, such as 2026-02-28"));
    }

    TSession session;
    if ((!place || !date.isValid()) && !session.Open(context, SESSION_TERMINAL))
        return STATUS_FAILED;
    if (!place) {
        const auto logged = LastLoggedPosition(TSystemSettingsProxy().GetInternalNemaLogPath());
        if (!logged)
            return Fail(QLatin1String("sun: no position in the NMEA log; --at LAT,LON gives one"));
        place = tagSunPlace{logged->latitude, logged->longitude};
    }
    if (!date.isValid())
        date = TRegionSettingsProxy().GetDate();
    if (line.WantsJson())
        PrintJson(Json(*place, date));
    else
        PrintTimes(*place, date);
    return STATUS_DONE;
}
