#include "sun/SunTimes.h"

#include <QtTest>

#include <cmath>
#include <limits>

// Every figure comes from the tables of the Astronomical Applications Department of the United States Naval
// Observatory ("Rise and Set for the Sun", "Civil Twilight"; one table for a place and a year, rounded to a minute).
// Each row of the test names its table. Tables in a zone time are given here in UTC: where the time of a row is on
// another date of UTC, it is that of the neighbouring line of the table.

namespace {

const qint64 Tolerance = 60; // seconds; the tables are rounded

const double NaN = std::numeric_limits<double>::quiet_NaN();
const double Infinity = std::numeric_limits<double>::infinity();

QDateTime At(const QDate& date, const char* time)
{
    return *time ? QDateTime(date, QTime::fromString(QLatin1String(time), QLatin1String("HH:mm")), Qt::UTC)
                 : QDateTime();
}

} // namespace

/// Rise and set agree with published tables within a minute.
class SunTimesOfAlmanac : public QObject
{
    Q_OBJECT

private slots:
    void theSunRisesAndSetsAsPublished_data();
    void theSunRisesAndSetsAsPublished();
    void theSunIsUpBetweenRiseAndSet();
    void eachCrossingIsFound();
    void aSunThatGrazesTheHorizonIsSeen();
    void theDateLineIsOnePlace();
    void theSunOfThePolesStaysUpHalfTheYear();
    void whatIsInvalidIsUnknown_data();
    void whatIsInvalidIsUnknown();
};

void SunTimesOfAlmanac::theSunRisesAndSetsAsPublished_data()
{
    QTest::addColumn<double>("latitude");
    QTest::addColumn<double>("longitude");
    QTest::addColumn<QDate>("date");
    QTest::addColumn<int>("level");
    QTest::addColumn<int>("day");
    QTest::addColumn<QDateTime>("rise");
    QTest::addColumn<QDateTime>("set");

    struct tagPlaceOfTable
    {
        const char* name;
        double latitude;
        double longitude;
    };
    const auto add = [](const tagPlaceOfTable& place, const QDate& date, ESunLevel level, ESunDay day, const char* rise,
                        const char* set) {
        const QByteArray name =
            QByteArray(place.name) + ' ' + date.toString(Qt::ISODate).toLatin1() + (level ? " twilight" : "");
        QTest::newRow(name.constData()) << place.latitude << place.longitude << date << int{level} << int{day}
                                        << At(date, rise) << At(date, set);
    };
    const auto sun = [&](const tagPlaceOfTable& place, const QDate& date, const char* rise, const char* set) {
        add(place, date, SUN_LEVEL_HORIZON, SUN_RISES_OR_SETS, rise, set);
    };
    const auto twilight = [&](const tagPlaceOfTable& place, const QDate& date, const char* rise, const char* set) {
        add(place, date, SUN_LEVEL_TWILIGHT, SUN_RISES_OR_SETS, rise, set);
    };
    const auto staysUp = [&](const tagPlaceOfTable& place, const QDate& date, ESunLevel level = SUN_LEVEL_HORIZON) {
        add(place, date, level, SUN_STAYS_UP, "", "");
    };
    const auto staysDown = [&](const tagPlaceOfTable& place, const QDate& date) {
        add(place, date, SUN_LEVEL_HORIZON, SUN_STAYS_DOWN, "", "");
    };

    // Source: USNO tables, W149 52, N61 13, 2020, Universal Time.
    const tagPlaceOfTable anchorage = {"Anchorage", 61.0 + 13.0 / 60, -(149.0 + 52.0 / 60)};
    sun(anchorage, QDate(2020, 1, 5), "19:11", "00:57");
    sun(anchorage, QDate(2020, 3, 5), "16:46", "03:35");
    sun(anchorage, QDate(2020, 6, 15), "12:21", "07:40");
    twilight(anchorage, QDate(2020, 1, 5), "18:11", "01:58");
    twilight(anchorage, QDate(2020, 6, 5), "10:24", "09:32");
    staysUp(anchorage, QDate(2020, 6, 25), SUN_LEVEL_TWILIGHT);

    // Source: USNO tables, E174 48, S36 50, 2020 (sun) and 2023 (twilight), Universal Time. Near the date line.
    const tagPlaceOfTable auckland = {"Auckland", -(36.0 + 50.0 / 60), 174.8};
    sun(auckland, QDate(2020, 1, 5), "17:09", "07:44");
    sun(auckland, QDate(2020, 6, 25), "19:34", "05:13");
    twilight(auckland, QDate(2023, 1, 5), "16:38", "08:14");
    twilight(auckland, QDate(2023, 6, 25), "19:05", "05:42");

    // Source: USNO tables, W047 51, S15 48, 2020 (sun) and 2023 (twilight), Universal Time.
    const tagPlaceOfTable brasilia = {"Brasilia", -15.8, -47.85};
    sun(brasilia, QDate(2020, 3, 5), "09:13", "21:33");
    sun(brasilia, QDate(2020, 12, 25), "08:40", "21:44");
    twilight(brasilia, QDate(2023, 9, 5), "08:53", "21:28");

    // Source: USNO tables, E103 50, N01 17, 2020 (sun) and 2023 (twilight), Universal Time.
    const tagPlaceOfTable singapore = {"Singapore", 1.0 + 17.0 / 60, 103.0 + 50.0 / 60};
    sun(singapore, QDate(2020, 2, 15), "23:17", "11:21");
    sun(singapore, QDate(2020, 9, 15), "22:56", "11:03");
    twilight(singapore, QDate(2023, 5, 15), "22:34", "11:28");

    // Source: USNO table, E015 38, N78 13, 2020, Universal Time.
    const tagPlaceOfTable longyearbyen = {"Longyearbyen", 78.0 + 13.0 / 60, 15.0 + 38.0 / 60};
    staysDown(longyearbyen, QDate(2020, 1, 5));
    sun(longyearbyen, QDate(2020, 2, 25), "08:11", "14:13");
    sun(longyearbyen, QDate(2020, 4, 15), "00:38", "21:33");
    staysUp(longyearbyen, QDate(2020, 4, 25));
    staysUp(longyearbyen, QDate(2020, 8, 15));
    sun(longyearbyen, QDate(2020, 10, 25), "09:50", "11:31");
    staysDown(longyearbyen, QDate(2020, 11, 5));

    // Source: USNO table, W112 31, N36 57, 2023, zone 7 h west of Greenwich.
    const tagPlaceOfTable fredonia = {"Fredonia", 36.0 + 57.0 / 60, -(112.0 + 31.0 / 60)};
    sun(fredonia, QDate(2023, 3, 2), "14:00", "01:24");
    sun(fredonia, QDate(2023, 11, 30), "14:23", "00:14");

    // Source: USNO table, W122 26, N37 46, 2012, Pacific Standard Time. A leap day.
    const tagPlaceOfTable sanFrancisco = {"San Francisco", 37.0 + 46.0 / 60, -(122.0 + 26.0 / 60)};
    sun(sanFrancisco, QDate(2012, 2, 29), "14:42", "02:02");
    sun(sanFrancisco, QDate(2012, 12, 31), "15:25", "01:01");

    // Source: USNO table, W079 25, N43 40, 2001, zone 4 h west of Greenwich.
    const tagPlaceOfTable toronto = {"Toronto", 43.0 + 40.0 / 60, -(79.0 + 25.0 / 60)};
    sun(toronto, QDate(2001, 4, 1), "10:59", "23:45");
    sun(toronto, QDate(2001, 4, 10), "10:43", "23:55");

    // Source: USNO table, 000 00, N60 00, 2019, Universal Time.
    const tagPlaceOfTable northOnGreenwich = {"N60 Greenwich", 60, 0};
    sun(northOnGreenwich, QDate(2019, 6, 21), "02:36", "21:28");
    sun(northOnGreenwich, QDate(2019, 12, 21), "09:02", "14:54");

    // Source: USNO table, W150 00, S60 00, 2019, Universal Time.
    const tagPlaceOfTable south = {"S60 W150", -60, -150};
    sun(south, QDate(2019, 6, 21), "19:06", "00:58");
    sun(south, QDate(2019, 12, 21), "12:32", "07:24");

    // Source: USNO table, W150 00, S80 00, 2019, Universal Time. On April 14 the sun sets twice, on August 28 not at
    // all.
    const tagPlaceOfTable farSouth = {"S80 W150", -80, -150};
    staysUp(farSouth, QDate(2019, 1, 15));
    sun(farSouth, QDate(2019, 2, 25), "10:37", "09:52");
    sun(farSouth, QDate(2019, 3, 20), "15:46", "04:33");
    sun(farSouth, QDate(2019, 4, 14), "20:01", "00:13");
    sun(farSouth, QDate(2019, 4, 17), "21:11", "22:46");
    staysDown(farSouth, QDate(2019, 7, 1));
    sun(farSouth, QDate(2019, 8, 28), "20:05", "");
    staysUp(farSouth, QDate(2019, 10, 17));

    // Source: USNO, data of one day, Bluffton, Ohio (N40 53.6, W083 53.5), 2018-09-12, zone 4 h west of Greenwich.
    sun({"Bluffton", 40.8939, -83.8917}, QDate(2018, 9, 12), "11:13", "23:50");

    // Source: USNO, data of one day, Atlanta, Georgia (W84.4, N33.8), 2009-09-06, zone 4 h west of Greenwich.
    sun({"Atlanta", 33.8, -84.4}, QDate(2009, 9, 6), "11:15", "23:56");
}

void SunTimesOfAlmanac::theSunRisesAndSetsAsPublished()
{
    QFETCH(double, latitude);
    QFETCH(double, longitude);
    QFETCH(QDate, date);
    QFETCH(int, level);
    QFETCH(int, day);
    QFETCH(QDateTime, rise);
    QFETCH(QDateTime, set);
    const tagSunTimes times = SunTimes({latitude, longitude}, date, static_cast<ESunLevel>(level));
    QCOMPARE(int{times.day}, day);
    const auto verify = [](const QDateTime& found, const QDateTime& published) {
        QCOMPARE(found.isValid(), published.isValid());
        if (published.isValid())
            QVERIFY2(std::abs(found.secsTo(published)) <= Tolerance, qPrintable(found.toString(Qt::ISODate)));
    };
    verify(times.rise, rise);
    verify(times.set, set);
}

void SunTimesOfAlmanac::theSunIsUpBetweenRiseAndSet()
{
    const tagSunPlace place = {52.2, 10.5};
    for (const ESunLevel level : {SUN_LEVEL_HORIZON, SUN_LEVEL_TWILIGHT}) {
        const tagSunTimes times = SunTimes(place, QDate(2026, 3, 5), level);
        QVERIFY(times.rise < times.set);
        QVERIFY(!IsSunUp(place, times.rise.addSecs(-2), level));
        QVERIFY(IsSunUp(place, times.rise, level));
        QVERIFY(IsSunUp(place, times.set.addSecs(-2), level));
        QVERIFY(!IsSunUp(place, times.set, level));
    }
}

void SunTimesOfAlmanac::eachCrossingIsFound()
{
    // Four months around the polar night and the midnight sun: rise and set alternate, and each changes the side.
    const tagSunPlace place = {78.0 + 13.0 / 60, 15.0 + 38.0 / 60};
    const QDateTime from(QDate(2020, 2, 1), QTime(0, 0), Qt::UTC);
    const QList<tagSunCrossing> crossings = SunCrossings(place, from, from.addDays(90), SUN_LEVEL_HORIZON);
    QVERIFY(crossings.size() > 100);
    bool wasUp = false;
    QDateTime last = from;
    for (const tagSunCrossing& crossing : crossings) {
        QVERIFY(crossing.utc > last);
        QCOMPARE(crossing.isRise, !wasUp);
        wasUp = crossing.isRise;
        last = crossing.utc;
    }
    QVERIFY(wasUp); // the midnight sun has begun
}

void SunTimesOfAlmanac::aSunThatGrazesTheHorizonIsSeen()
{
    // Go north on one date until the sun no longer sets. The last nights are shorter than the step of the search.
    const QDateTime from(QDate(2026, 6, 21), QTime(12, 0), Qt::UTC);
    const double step = 0.001; // of latitude
    qint64 shortest = std::numeric_limits<qint64>::max();
    for (double latitude = 65.65; latitude < 65.8; latitude += step) {
        const QList<tagSunCrossing> crossings = SunCrossings({latitude, 15}, from, from.addDays(1), SUN_LEVEL_HORIZON);
        if (crossings.isEmpty())
            break;
        QCOMPARE(static_cast<int>(crossings.size()), 2);
        shortest = crossings.at(0).utc.secsTo(crossings.at(1).utc);
    }
    QVERIFY2(shortest > 0 && shortest < 600, qPrintable(QString::number(shortest)));
}

void SunTimesOfAlmanac::theDateLineIsOnePlace()
{
    const tagSunTimes east = SunTimes({-17.5, 180}, QDate(2024, 2, 29), SUN_LEVEL_HORIZON);
    const tagSunTimes west = SunTimes({-17.5, -180}, QDate(2024, 2, 29), SUN_LEVEL_HORIZON);
    QVERIFY(east.rise.isValid() && east.set.isValid());
    QVERIFY(std::abs(east.rise.secsTo(west.rise)) <= 1);
    QVERIFY(std::abs(east.set.secsTo(west.set)) <= 1);
}

void SunTimesOfAlmanac::theSunOfThePolesStaysUpHalfTheYear()
{
    // At a pole the longitude is nothing, and the sun passes the horizon twice a year.
    for (const double pole : {90.0, -90.0}) {
        const bool isNorth = pole > 0;
        QCOMPARE(int{SunTimes({pole, 0}, QDate(2022, 6, 21), SUN_LEVEL_HORIZON).day},
                 int{isNorth ? SUN_STAYS_UP : SUN_STAYS_DOWN});
        QCOMPARE(int{SunTimes({pole, 0}, QDate(2022, 12, 21), SUN_LEVEL_HORIZON).day},
                 int{isNorth ? SUN_STAYS_DOWN : SUN_STAYS_UP});
        for (const bool isSpring : {true, false}) {
            const QDateTime from(QDate(2022, isSpring ? 3 : 9, 1), QTime(0, 0), Qt::UTC);
            const QList<tagSunCrossing> crossings = SunCrossings({pole, 0}, from, from.addDays(40), SUN_LEVEL_HORIZON);
            QCOMPARE(static_cast<int>(crossings.size()), 1);
            QCOMPARE(crossings.at(0).isRise, isSpring == isNorth);
        }
    }
}

void SunTimesOfAlmanac::whatIsInvalidIsUnknown_data()
{
    QTest::addColumn<double>("latitude");
    QTest::addColumn<double>("longitude");
    QTest::addColumn<QDate>("date");
    const QDate date(2026, 3, 5);
    QTest::newRow("beyond the pole") << 90.1 << 0.0 << date;
    QTest::newRow("beyond the date line") << 0.0 << -180.1 << date;
    QTest::newRow("no latitude") << NaN << 0.0 << date;
    QTest::newRow("no longitude") << 0.0 << NaN << date;
    QTest::newRow("infinity") << 0.0 << Infinity << date;
    QTest::newRow("no date") << 0.0 << 0.0 << QDate();
}

void SunTimesOfAlmanac::whatIsInvalidIsUnknown()
{
    QFETCH(double, latitude);
    QFETCH(double, longitude);
    QFETCH(QDate, date);
    const tagSunTimes times = SunTimes({latitude, longitude}, date, SUN_LEVEL_HORIZON);
    QCOMPARE(int{times.day}, int{SUN_UNKNOWN});
    QVERIFY(!times.rise.isValid());
    QVERIFY(!times.set.isValid());
    const QDateTime from(date, QTime(0, 0), Qt::UTC);
    QVERIFY(SunCrossings({latitude, longitude}, from, from.addDays(1), SUN_LEVEL_HORIZON).isEmpty());
}

QTEST_GUILESS_MAIN(SunTimesOfAlmanac)
#include "SunTimesOfAlmanac.moc"
