#include "nmea/FieldPlan.h"

namespace {

QString Number(double value) { return QString::number(value, 'g', 12); }

} // namespace

QString CheckFieldPlan(const tagFieldPlan& plan)
{
    struct tagRow
    {
        const char* name;
        double value;
        double least;
        double most;
    };
    const tagRow rows[] = {
        {"latitude (degrees)", plan.latitude, -85, 85},
        {"longitude (degrees)", plan.longitude, -180, 180},
        {"altitude (m)", plan.altitude, -500, 9000},
        {"heading (degrees)", plan.heading, 0, 360},
        {"pass length (m)", plan.passLength, 1, 5000},
        {"swath width (m)", plan.swathWidth, 0.5, 100},
        {"speed (km/h)", plan.speed, 0.5, 60},
        {"turn speed (km/h)", plan.turnSpeed, 0.5, plan.speed},
        {"smallest turn radius (m)", plan.smallestTurnRadius, 1, 50},
        {"number of passes", static_cast<double>(plan.passes), 1, 1000},
        {"rate (Hz)", static_cast<double>(plan.rate), 1, 20},
        {"position noise (m)", plan.noise, 0, 10},
    };
    for (const tagRow& row : rows) {
        const bool isAccepted = row.value >= row.least && row.value <= row.most; // false for NaN
        if (!isAccepted)
            return QString::fromLatin1("invalid %1 %2; expected a number from %3 to %4")
                .arg(QLatin1String(row.name), Number(row.value), Number(row.least), Number(row.most));
    }

    // RMC gives two digits of the year, which are read as a year from 2000 on. A drive may take weeks.
    const QDate first(2001, 1, 1);
    const QDate last(2098, 12, 31);
    const QDate date = plan.start.toUTC().date();
    if (!plan.start.isValid() || date < first || date > last)
        return QString::fromLatin1("invalid start time \"%1\"; expected a date from %2 to %3")
            .arg(plan.start.toUTC().toString(Qt::ISODate), first.toString(Qt::ISODate), last.toString(Qt::ISODate));
    if (plan.talker != "GN" && plan.talker != "GP")
        return QString::fromLatin1("invalid talker \"%1\"; expected GN or GP").arg(QString::fromUtf8(plan.talker));
    return QString();
}
