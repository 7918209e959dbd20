#include "CoreTest.h"
#include "TBracketTranslator.h"
#include "TChosenUnits.h"

#include <cfloat>
#include <cmath>
#include <limits>

class DurationsAndDates : public QObject
{
    Q_OBJECT

private slots:
    void hoursAreShownInTheUnitThatSuitsThem_data();
    void hoursAreShownInTheUnitThatSuitsThem();
    void minutesAreShownAsHoursAndMinutes_data();
    void minutesAreShownAsHoursAndMinutes();
    void everyMinuteUpToTheMostIsShown();
    void datesHaveTheNameOfTheirMonth_data();
    void datesHaveTheNameOfTheirMonth();
    void namesFollowTheLanguage();

private:
    TChosenUnits m_Store;
};

void DurationsAndDates::hoursAreShownInTheUnitThatSuitsThem_data()
{
    QTest::addColumn<float>("hours");
    QTest::addColumn<QString>("text");

    const float minute = 0.016666668F;
    const float infinity = std::numeric_limits<float>::infinity();
    QTest::newRow("36 seconds") << 0.01F << Utf8("36 s");
    QTest::newRow("nothing") << 0.0F << Utf8("0 s");
    QTest::newRow("a second back") << -1.0F / 3600 << Utf8("-1 s");
    QTest::newRow("almost a minute") << 0.016526F << Utf8("59 s"); // 59.494
    QTest::newRow("just below a minute") << std::nextafter(minute, 0.0F) << Utf8("60 s");
    QTest::newRow("a minute") << minute << Utf8("1 min");
    QTest::newRow("just below a minute back") << -std::nextafter(minute, 0.0F) << Utf8("-60 s");
    QTest::newRow("a minute back") << -minute << Utf8("-1 min");
    QTest::newRow("half an hour") << 0.5F << Utf8("30 min");
    QTest::newRow("half an hour back") << -0.5F << Utf8("-30 min");
    QTest::newRow("minutes are rounded") << 0.51F << Utf8("31 min");
    QTest::newRow("just below an hour") << std::nextafter(1.0F, 0.0F) << Utf8("60 min");
    QTest::newRow("an hour") << 1.0F << Utf8("1.0 hrs");
    QTest::newRow("an hour back") << -1.0F << Utf8("-1.0 hrs");
    QTest::newRow("hours") << 2.5F << Utf8("2.5 hrs");
    QTest::newRow("hours are rounded") << 12.36F << Utf8("12.4 hrs");
    QTest::newRow("many hours") << 12345.0F << Utf8("12345.0 hrs");
    QTest::newRow("NaN") << std::numeric_limits<float>::quiet_NaN() << Utf8("nan hrs");
    QTest::newRow("without end") << infinity << Utf8("inf hrs");
    QTest::newRow("without beginning") << -infinity << Utf8("-inf hrs");
    QTest::newRow("least") << 1e-45F << Utf8("0 s");
}

void DurationsAndDates::hoursAreShownInTheUnitThatSuitsThem()
{
    QFETCH(float, hours);
    QFETCH(QString, text);
    QCOMPARE(TUnits::GetDurationString(hours), text);
}

void DurationsAndDates::minutesAreShownAsHoursAndMinutes_data()
{
    QTest::addColumn<double>("minutes");
    QTest::addColumn<QString>("text");

    const double infinity = std::numeric_limits<double>::infinity();
    QTest::newRow("nothing") << 0.0 << Utf8("00:00 hrs");
    QTest::newRow("two hours five") << 125.0 << Utf8("02:05 hrs");
    QTest::newRow("almost an hour") << 59.9 << Utf8("00:59 hrs");
    QTest::newRow("an hour") << 60.0 << Utf8("01:00 hrs");
    QTest::newRow("part of a minute is cut") << 60.99 << Utf8("01:00 hrs");
    QTest::newRow("ten hours") << 600.0 << Utf8("10:00 hrs");
    QTest::newRow("a hundred hours") << 6000.0 << Utf8("100:00 hrs");
    QTest::newRow("the most") << 6059.0 << Utf8("100:59 hrs");
    QTest::newRow("part of a minute beyond the most") << 6059.99 << Utf8("100:59 hrs");
    QTest::newRow("one more") << 6060.0 << Utf8("> 100 hrs");
    QTest::newRow("many more") << 1e6 << Utf8("> 100 hrs");
    QTest::newRow("beyond an int") << 1e18 << Utf8("> 100 hrs");
    QTest::newRow("without end") << infinity << Utf8("> 100 hrs");
    QTest::newRow("greatest") << DBL_MAX << Utf8("> 100 hrs");
    QTest::newRow("part of a minute back") << -0.5 << Utf8("00:00 hrs");
    QTest::newRow("five minutes back") << -5.0 << Utf8("00:-5 hrs");
    QTest::newRow("half an hour back") << -30.0 << Utf8("00:-30 hrs");
    QTest::newRow("hours back") << -125.0 << Utf8("-2:-5 hrs");
    QTest::newRow("NaN") << std::numeric_limits<double>::quiet_NaN() << Utf8("00:00 hrs");
    QTest::newRow("without beginning") << -infinity << QString();
    QTest::newRow("least") << -DBL_MAX << QString();
}

void DurationsAndDates::minutesAreShownAsHoursAndMinutes()
{
    QFETCH(double, minutes);
    QFETCH(QString, text);
    const QString shown = TUnits::GetFormattedDurationString(minutes);
    if (text.isEmpty()) // no duration, but a text all the same
        QVERIFY(shown.endsWith(QLatin1String(" hrs")));
    else
        QCOMPARE(shown, text);
}

void DurationsAndDates::everyMinuteUpToTheMostIsShown()
{
    for (int minutes = 0; minutes < 6060; ++minutes) {
        const QString hours = QString::number(minutes / 60).rightJustified(2, QLatin1Char('0'));
        const QString rest = QString::number(minutes % 60).rightJustified(2, QLatin1Char('0'));
        QCOMPARE(TUnits::GetFormattedDurationString(minutes), hours + QLatin1Char(':') + rest + Utf8(" hrs"));
    }
}

void DurationsAndDates::datesHaveTheNameOfTheirMonth_data()
{
    QTest::addColumn<QDate>("date");
    QTest::addColumn<QString>("monthFirst");
    QTest::addColumn<QString>("dayFirst");

    const char* const months[] = {"Jan", "Feb", "Mar", "Apr", "May", "Jun", "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
    int month = 0;
    for (const char* name : months) {
        ++month;
        QTest::newRow(name) << QDate(2014, month, 3) << Utf8(name) + Utf8(" 3, 2014")
                            << Utf8("3 ") + Utf8(name) + Utf8(", 2014");
    }
    QTest::newRow("two digits") << QDate(1999, 12, 31) << Utf8("Dec 31, 1999") << Utf8("31 Dec, 1999");
    QTest::newRow("leap day") << QDate(2024, 2, 29) << Utf8("Feb 29, 2024") << Utf8("29 Feb, 2024");
    QTest::newRow("a year of three digits") << QDate(476, 9, 4) << Utf8("Sep 4, 476") << Utf8("4 Sep, 476");
    QTest::newRow("no date") << QDate() << Utf8(" 0, 0") << Utf8("0 , 0");
    QTest::newRow("no such day") << QDate(2023, 2, 29) << Utf8(" 0, 0") << Utf8("0 , 0");
}

void DurationsAndDates::datesHaveTheNameOfTheirMonth()
{
    QFETCH(QDate, date);
    QFETCH(QString, monthFirst);
    QFETCH(QString, dayFirst);
    QCOMPARE(TUnits::GetDateString(true, date), monthFirst);
    QCOMPARE(TUnits::GetDateString(false, date), dayFirst);
}

void DurationsAndDates::namesFollowTheLanguage()
{
    {
        const TBracketTranslator translator("TUnitAbbreviations");
        TUnitAbbreviations::Initialize();
    }
    const QString date = TUnits::GetDateString(true, QDate(2014, 3, 3));
    const QString hours = TUnits::GetDurationString(2.5F);
    const QString minutes = TUnits::GetFormattedDurationString(6060);
    TUnitAbbreviations::Initialize();
    QCOMPARE(date, Utf8("[Mar] 3, 2014"));
    QCOMPARE(hours, Utf8("2.5 [hrs]"));
    QCOMPARE(minutes, Utf8("> 100 [hrs]"));
    QCOMPARE(TUnits::GetDateString(true, QDate(2014, 3, 3)), Utf8("Mar 3, 2014"));
}

int main(int argc, char** argv) { return RunCoreTest<DurationsAndDates>(argc, argv); }
#include "DurationsAndDates.moc"
