#include "region/TRegionSettings.h"

#include "access/Parameters.h"
#include "platform/QtCompat.h"

#include <QLocale>

namespace {

const char* const MonthNames[] = {
    QT_TRANSLATE_NOOP("TRegionSettings", "Jan"), QT_TRANSLATE_NOOP("TRegionSettings", "Feb"),
    QT_TRANSLATE_NOOP("TRegionSettings", "Mar"), QT_TRANSLATE_NOOP("TRegionSettings", "Apr"),
    QT_TRANSLATE_NOOP("TRegionSettings", "May"), QT_TRANSLATE_NOOP("TRegionSettings", "Jun"),
    QT_TRANSLATE_NOOP("TRegionSettings", "Jul"), QT_TRANSLATE_NOOP("TRegionSettings", "Aug"),
    QT_TRANSLATE_NOOP("TRegionSettings", "Sep"), QT_TRANSLATE_NOOP("TRegionSettings", "Oct"),
    QT_TRANSLATE_NOOP("TRegionSettings", "Nov"), QT_TRANSLATE_NOOP("TRegionSettings", "Dec"),
};

} // namespace

// QLocale::c() formats the times: in Qt 5, QTime::toString() and QDate::toString() use the digits and the am and pm of
// the machine's locale.

QString TRegionSettings::GetTimeString() const
{
    const char* const format = Parameters::ReadBool(PARAM_24_HOUR_CLOCK) ? "HH:mm:ss" : "hh:mm:ss ap";
    return QLocale::c().toString(GetTime(), QLatin1String(format));
}

QString TRegionSettings::GetDateString(QDate date) const
{
    const QtCompat::tagDateParts parts = QtCompat::Parts(date);
    const QString monthText = parts.month == 0 ? QString() : tr(MonthNames[parts.month - 1]);
    const QString day = QString::number(parts.day);
    const QString dayAndMonth = Parameters::ReadBool(PARAM_MONTH_FIRST) ? monthText + QLatin1Char(' ') + day
                                                                        : day + QLatin1Char(' ') + monthText;
    return dayAndMonth + QLatin1String(", ") + QString::number(parts.year);
}

QString TRegionSettings::GetDateString() const { return GetDateString(GetDate()); }
QString TRegionSettings::GetDateTimeString() const { return StampedWith("hhmm"); }
QString TRegionSettings::GetDateTimeStringWithSeconds() const { return StampedWith("hhmmss"); }

QString TRegionSettings::StampedWith(const char* timeFormat) const
{
    const QString time = QLocale::c().toString(GetTime(), QLatin1String(timeFormat));
    const char* const dateFormat = Parameters::ReadBool(PARAM_MONTH_FIRST) ? "MMddyy" : "ddMMyy";
    return QLocale::c().toString(GetDate(), QLatin1String(dateFormat)) + QLatin1Char('_') + time;
}
