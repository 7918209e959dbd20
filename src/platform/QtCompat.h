#pragma once

#include <QCoreApplication>
#include <QDate>
#include <QString>

/// Differences between the versions of Qt that the library is built with: 4.8, 5.15 and 6.4.
namespace QtCompat {

/// The translation of @p text, which is UTF-8.
inline QString Translate(const char* context, const char* text, const char* comment)
{
#if QT_VERSION < 0x050000
    return QCoreApplication::translate(context, text, comment, QCoreApplication::UnicodeUTF8);
#else
    return QCoreApplication::translate(context, text, comment);
#endif
}

/// Whether fixed notation rounds a tie away from zero, 0.125 to 0.13; Qt 4 rounds it to the even digit.
#if QT_VERSION < 0x050000
constexpr bool RoundsTiesAwayFromZero = false;
#else
constexpr bool RoundsTiesAwayFromZero = true;
#endif

struct tagDateParts
{
    int year;
    int month;
    int day;
};

/// Zeros when @p date is invalid: Qt 4 gives the year -4713 for such a date.
inline tagDateParts Parts(const QDate& date)
{
    const tagDateParts parts = {date.year(), date.month(), date.day()};
    const tagDateParts none = {0, 0, 0};
    return date.isValid() ? parts : none;
}

/// @p year in at least four digits: "0007", "2024", "-0044". The "yyyy" of Qt 4 leaves the zeros out.
inline QString YearText(int year)
{
    const int width = year < 0 ? 5 : 4;
    return QString::fromLatin1("%1").arg(year, width, 10, QLatin1Char('0'));
}

} // namespace QtCompat
