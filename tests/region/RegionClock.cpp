#include "Latin1.h"
#include "TClockTest.h"

#include <cstdlib>

namespace {

const int MinutesPerDay = 1440;

} // namespace

class RegionClock : public QObject, private TClockTest
{
    Q_OBJECT

private slots:
    void init() { MakeDisplay(); }
    void cleanup() { RemoveDisplay(); }

    void theClockIsTheHosts();

    void offsetsTakeTheNearerWayRoundTheClock_data();
    void offsetsTakeTheNearerWayRoundTheClock();
    void offsetsOfEveryDifferenceAreConsistent();

    void utcIsUnknownBeforeGPSTime();
    void utcIsLocalTimeWithoutTheOffset_data();
    void utcIsLocalTimeWithoutTheOffset();
    void readingUTCAsksTheHostInOrder();

    void gpsTimeIsReceivedOnceAndForAll();
    void theFirstGPSTimeGivesTheOffset_data();
    void theFirstGPSTimeGivesTheOffset();
    void gpsTimeSetsTheClockByTheOffset_data();
    void gpsTimeSetsTheClockByTheOffset();
    void laterGPSTimeKeepsTheOffset();
    void aTimeNotFromGPSIsLocalBeforeGPSTime();
    void aTimeNotFromGPSIsUTCAfterGPSTime();
    void settingTheTimeCallsTheHostInOrder_data();
    void settingTheTimeCallsTheHostInOrder();

    void theUsersOffsetOutlivesARestart();
    void restoreAppliesTheStoredClockOffset_data();
    void restoreAppliesTheStoredClockOffset();
    void restoreLeavesAnOffsetInForce();
};

void RegionClock::theClockIsTheHosts()
{
    QCOMPARE(m_Region->GetDate(), QDate(2024, 3, 5));
    QCOMPARE(m_Region->GetTime(), QTime(14, 5, 9, 42));
    QCOMPARE(m_Region->GetDateTime(), QDateTime(QDate(2024, 3, 5), QTime(14, 5, 9, 42), Qt::UTC));
    QCOMPARE(m_Store->calls, QStringList()
                                 << Latin1("currentDate") << Latin1("currentTime") << Latin1("currentDateTime"));
}

void RegionClock::offsetsTakeTheNearerWayRoundTheClock_data()
{
    QTest::addColumn<QTime>("local");
    QTest::addColumn<QTime>("utc");
    QTest::addColumn<int>("hours");
    QTest::addColumn<int>("minutes");

    QTest::newRow("none") << QTime(10, 0) << QTime(10, 0) << 0 << 0;
    QTest::newRow("one minute") << QTime(10, 1) << QTime(10, 0) << 0 << 1;
    QTest::newRow("minus one minute") << QTime(9, 59) << QTime(10, 0) << 0 << -1;
    QTest::newRow("east") << QTime(15, 30) << QTime(10, 0) << 5 << 30;
    QTest::newRow("west") << QTime(4, 30) << QTime(10, 0) << -5 << -30;
    QTest::newRow("one hour") << QTime(11, 0) << QTime(10, 0) << 1 << 0;
    QTest::newRow("minus one hour") << QTime(9, 0) << QTime(10, 0) << -1 << 0;
    QTest::newRow("less than an hour west") << QTime(9, 1) << QTime(10, 0) << 0 << -59;
    QTest::newRow("past midnight") << QTime(0, 10) << QTime(23, 50) << 0 << 20;
    QTest::newRow("before midnight") << QTime(23, 50) << QTime(0, 10) << 0 << -20;
    QTest::newRow("half a day ahead") << QTime(12, 0) << QTime(0, 0) << 12 << 0;
    QTest::newRow("half a day behind") << QTime(0, 0) << QTime(12, 0) << -12 << 0;
    QTest::newRow("a minute more than half a day ahead") << QTime(12, 1) << QTime(0, 0) << -11 << -59;
    QTest::newRow("a minute more than half a day behind") << QTime(0, 0) << QTime(12, 1) << 11 << 59;
    QTest::newRow("a minute less than half a day ahead") << QTime(11, 59) << QTime(0, 0) << 11 << 59;
    QTest::newRow("a minute less than half a day behind") << QTime(0, 0) << QTime(11, 59) << -11 << -59;
    QTest::newRow("the whole day") << QTime(23, 59) << QTime(0, 0) << 0 << -1;
    QTest::newRow("the whole day back") << QTime(0, 0) << QTime(23, 59) << 0 << 1;
}

void RegionClock::offsetsTakeTheNearerWayRoundTheClock()
{
    QFETCH(QTime, local);
    QFETCH(QTime, utc);
    QFETCH(int, hours);
    QFETCH(int, minutes);
    m_Region->ComputeTimeOffsets(local.hour(), local.minute(), utc.hour(), utc.minute());
    QCOMPARE(m_Store->calls, QStringList()
                                 << Latin1("write 8949 %1").arg(hours) << Latin1("write 8950 %1").arg(minutes));
    QCOMPARE(m_Store->values[PARAM_UTC_OFFSET_HOURS], QVariant(hours));
    QCOMPARE(m_Store->values[PARAM_UTC_OFFSET_MINUTES], QVariant(minutes));
    QVERIFY(m_Store->allWritesPersist);
}

void RegionClock::offsetsOfEveryDifferenceAreConsistent()
{
    for (int difference = 1 - MinutesPerDay; difference < MinutesPerDay; ++difference) {
        const int local = qMax(difference, 0);
        const int utc = local - difference;
        m_Region->ComputeTimeOffsets(local / 60, local % 60, utc / 60, utc % 60);
        const int hours = Stored(PARAM_UTC_OFFSET_HOURS);
        const int minutes = Stored(PARAM_UTC_OFFSET_MINUTES);
        const int offset = 60 * hours + minutes;
        const QByteArray where = QByteArray::number(difference);
        QVERIFY2((difference - offset) % MinutesPerDay == 0, where.constData());
        QVERIFY2(std::abs(offset) <= MinutesPerDay / 2, where.constData());
        QVERIFY2(std::abs(minutes) < 60 && hours * minutes >= 0, where.constData());
    }
}

void RegionClock::utcIsUnknownBeforeGPSTime()
{
    StoreOffset(1, 0);
    QTime time(1, 2, 3, 4);
    QDate date(2001, 2, 3);
    QVERIFY(!m_Region->GetUTCTimeAndDate(time, date));
    QCOMPARE(time, QTime(1, 2, 3, 4));
    QCOMPARE(date, QDate(2001, 2, 3));
    QVERIFY(m_Store->calls.isEmpty());
}

void RegionClock::utcIsLocalTimeWithoutTheOffset_data()
{
    QTest::addColumn<QTime>("local");
    QTest::addColumn<QDate>("localDate");
    QTest::addColumn<int>("offsetHours");
    QTest::addColumn<int>("offsetMinutes");
    QTest::addColumn<QTime>("utc");
    QTest::addColumn<QDate>("utcDate");

    const QDate day(2024, 3, 5);
    QTest::newRow("no offset") << QTime(14, 5, 9, 42) << day << 0 << 0 << QTime(14, 5, 9, 42) << day;
    QTest::newRow("east") << QTime(14, 35, 9, 42) << day << 5 << 30 << QTime(9, 5, 9, 42) << day;
    QTest::newRow("west") << QTime(14, 15, 9, 42) << day << -5 << -30 << QTime(19, 45, 9, 42) << day;
    QTest::newRow("borrowing an hour") << QTime(14, 29) << day << 5 << 30 << QTime(8, 59) << day;
    QTest::newRow("no hour to borrow") << QTime(14, 30) << day << 5 << 30 << QTime(9, 0) << day;
    QTest::newRow("carrying an hour") << QTime(14, 30) << day << -5 << -30 << QTime(20, 0) << day;
    QTest::newRow("no hour to carry") << QTime(14, 29) << day << -5 << -30 << QTime(19, 59) << day;
    QTest::newRow("first minute of the day") << QTime(5, 30) << day << 5 << 30 << QTime(0, 0) << day;
    QTest::newRow("last minute of the day before")
        << QTime(5, 29) << day << 5 << 30 << QTime(23, 59) << QDate(2024, 3, 4);
    QTest::newRow("last minute of the day") << QTime(18, 29) << day << -5 << -30 << QTime(23, 59) << day;
    QTest::newRow("first minute of the day after")
        << QTime(18, 30) << day << -5 << -30 << QTime(0, 0) << QDate(2024, 3, 6);
    QTest::newRow("the day before by minutes alone")
        << QTime(0, 0) << day << 0 << 1 << QTime(23, 59) << QDate(2024, 3, 4);
    QTest::newRow("the day after by minutes alone")
        << QTime(23, 59) << day << 0 << -1 << QTime(0, 0) << QDate(2024, 3, 6);
    QTest::newRow("half a day ahead") << QTime(6, 0) << day << 12 << 0 << QTime(18, 0) << QDate(2024, 3, 4);
    QTest::newRow("half a day behind") << QTime(18, 0) << day << -12 << 0 << QTime(6, 0) << QDate(2024, 3, 6);
    QTest::newRow("into a leap day") << QTime(0, 30) << QDate(2024, 3, 1) << 1 << 0 << QTime(23, 30)
                                     << QDate(2024, 2, 29);
    QTest::newRow("no leap day to go to")
        << QTime(0, 30) << QDate(2023, 3, 1) << 1 << 0 << QTime(23, 30) << QDate(2023, 2, 28);
    QTest::newRow("into the old year") << QTime(0, 30) << QDate(2024, 1, 1) << 1 << 0 << QTime(23, 30)
                                       << QDate(2023, 12, 31);
    QTest::newRow("into the new year") << QTime(23, 30) << QDate(2023, 12, 31) << -1 << 0 << QTime(0, 30)
                                       << QDate(2024, 1, 1);
    QTest::newRow("hours and minutes of unlike sign") << QTime(14, 15) << day << -5 << 30 << QTime(18, 45) << day;
    QTest::newRow("the greatest offset") << QTime(0, 0) << day << 23 << 59 << QTime(0, 1) << QDate(2024, 3, 4);
    QTest::newRow("the least offset") << QTime(23, 59) << day << -23 << -59 << QTime(23, 58) << QDate(2024, 3, 6);
}

void RegionClock::utcIsLocalTimeWithoutTheOffset()
{
    QFETCH(QTime, local);
    QFETCH(QDate, localDate);
    QFETCH(int, offsetHours);
    QFETCH(int, offsetMinutes);
    QFETCH(QTime, utc);
    QFETCH(QDate, utcDate);
    BeInGPSTime(local, localDate, offsetHours, offsetMinutes);
    QTime time;
    QDate date;
    QVERIFY(m_Region->GetUTCTimeAndDate(time, date));
    QCOMPARE(time, utc);
    QCOMPARE(date, utcDate);
}

void RegionClock::readingUTCAsksTheHostInOrder()
{
    BeInGPSTime(QTime(12, 0), QDate(2024, 3, 5), 1, 0);
    QTime time;
    QDate date;
    m_Region->GetUTCTimeAndDate(time, date);
    QCOMPARE(m_Store->calls, QStringList() << Latin1("currentTime") << Latin1("currentDate") << Latin1("read 8949")
                                           << Latin1("read 8950"));
}

void RegionClock::gpsTimeIsReceivedOnceAndForAll()
{
    QVERIFY(!m_Region->IsGPSTimeRecieved());
    QTime time(10, 0);
    QDate date(2024, 3, 5);
    m_Region->SetUTCTimeAndDate(time, date, false);
    QVERIFY(!m_Region->IsGPSTimeRecieved());
    m_Region->SetUTCTimeAndDate(time, date, true);
    QVERIFY(m_Region->IsGPSTimeRecieved());

    m_Region->SetUTCTimeAndDate(time, date, false);
    m_Region->SetUserDate(2001, 1, 1);
    m_Region->SetUserTime(1, 1, 1);
    m_Region->SetUserDateTime(2001, 1, 1, 1, 1, 1);
    m_Region->Restore();
    QVERIFY(m_Region->IsGPSTimeRecieved());
    QVERIFY(!TRegionSettings().IsGPSTimeRecieved());
}

void RegionClock::theFirstGPSTimeGivesTheOffset_data()
{
    QTest::addColumn<QTime>("local");
    QTest::addColumn<QTime>("utc");
    QTest::addColumn<int>("offsetHours");
    QTest::addColumn<int>("offsetMinutes");
    QTest::addColumn<QTime>("clock");
    QTest::addColumn<QDate>("clockDate");

    const QDate day(2024, 3, 5); // of the GPS time
    QTest::newRow("east") << QTime(15, 30) << QTime(10, 0) << 5 << 30 << QTime(15, 30) << day;
    QTest::newRow("west") << QTime(4, 30) << QTime(10, 0) << -5 << -30 << QTime(4, 30) << day;
    QTest::newRow("past midnight") << QTime(0, 10) << QTime(23, 50) << 0 << 20 << QTime(0, 10) << QDate(2024, 3, 6);
    QTest::newRow("before midnight") << QTime(23, 50) << QTime(0, 10) << 0 << -20 << QTime(23, 50) << QDate(2024, 3, 4);
    QTest::newRow("seconds come from GPS")
        << QTime(15, 30, 59) << QTime(10, 0, 1) << 5 << 30 << QTime(15, 30, 1) << day;
    QTest::newRow("milliseconds are dropped")
        << QTime(10, 0, 0, 999) << QTime(10, 0, 1, 999) << 0 << 0 << QTime(10, 0, 1) << day;
    QTest::newRow("half a day ahead") << QTime(13, 0) << QTime(1, 0) << 12 << 0 << QTime(13, 0) << day;
    QTest::newRow("half a day behind") << QTime(1, 0) << QTime(13, 0) << -12 << 0 << QTime(1, 0) << day;
}

void RegionClock::theFirstGPSTimeGivesTheOffset()
{
    QFETCH(QTime, local);
    QFETCH(QTime, utc);
    QFETCH(int, offsetHours);
    QFETCH(int, offsetMinutes);
    QFETCH(QTime, clock);
    QFETCH(QDate, clockDate);
    StoreOffset(7, 7); // of an earlier run
    TTestClock::time = local;
    TTestClock::date = QDate(1970, 1, 1); // the date is of no account
    QTime time = utc;
    QDate date(2024, 3, 5);
    QVERIFY(m_Region->SetUTCTimeAndDate(time, date, true));

    QCOMPARE(Stored(PARAM_UTC_OFFSET_HOURS), offsetHours);
    QCOMPARE(Stored(PARAM_UTC_OFFSET_MINUTES), offsetMinutes);
    QCOMPARE(Stored(PARAM_CLOCK_OFFSET), 4711);
    QVERIFY(!m_Store->values[PARAM_UTC_OFFSET_SET_BY_USER].toBool());
    QCOMPARE(TTestClock::time, clock);
    QCOMPARE(TTestClock::date, clockDate);
    QCOMPARE(date, clockDate);
    QCOMPARE(time, utc);
    QVERIFY(m_Region->IsGPSTimeRecieved());
    QVERIFY(m_Store->allWritesPersist);
}

void RegionClock::gpsTimeSetsTheClockByTheOffset_data()
{
    QTest::addColumn<QTime>("utc");
    QTest::addColumn<QDate>("utcDate");
    QTest::addColumn<int>("offsetHours");
    QTest::addColumn<int>("offsetMinutes");
    QTest::addColumn<QTime>("clock");
    QTest::addColumn<QDate>("clockDate");

    const QDate day(2024, 3, 5);
    QTest::newRow("no offset") << QTime(14, 5, 9) << day << 0 << 0 << QTime(14, 5, 9) << day;
    QTest::newRow("east") << QTime(9, 5, 9) << day << 5 << 30 << QTime(14, 35, 9) << day;
    QTest::newRow("carrying an hour") << QTime(9, 30) << day << 5 << 30 << QTime(15, 0) << day;
    QTest::newRow("no hour to carry") << QTime(9, 29) << day << 5 << 30 << QTime(14, 59) << day;
    QTest::newRow("borrowing an hour") << QTime(9, 29) << day << -5 << -30 << QTime(3, 59) << day;
    QTest::newRow("no hour to borrow") << QTime(9, 30) << day << -5 << -30 << QTime(4, 0) << day;
    QTest::newRow("last minute of the day") << QTime(18, 29) << day << 5 << 30 << QTime(23, 59) << day;
    QTest::newRow("first minute of the day after")
        << QTime(18, 30) << day << 5 << 30 << QTime(0, 0) << QDate(2024, 3, 6);
    QTest::newRow("first minute of the day") << QTime(5, 30) << day << -5 << -30 << QTime(0, 0) << day;
    QTest::newRow("last minute of the day before")
        << QTime(5, 29) << day << -5 << -30 << QTime(23, 59) << QDate(2024, 3, 4);
    QTest::newRow("into a leap day") << QTime(2, 10) << QDate(2024, 3, 1) << -5 << -30 << QTime(20, 40)
                                     << QDate(2024, 2, 29);
    QTest::newRow("no leap day to go to")
        << QTime(2, 10) << QDate(2023, 3, 1) << -5 << -30 << QTime(20, 40) << QDate(2023, 2, 28);
    QTest::newRow("out of a leap day") << QTime(23, 0) << QDate(2024, 2, 29) << 1 << 0 << QTime(0, 0)
                                       << QDate(2024, 3, 1);
    QTest::newRow("into the old year") << QTime(0, 30) << QDate(2024, 1, 1) << -1 << 0 << QTime(23, 30)
                                       << QDate(2023, 12, 31);
    QTest::newRow("into the new year") << QTime(23, 30) << QDate(2023, 12, 31) << 1 << 0 << QTime(0, 30)
                                       << QDate(2024, 1, 1);
    QTest::newRow("the greatest offset") << QTime(23, 59) << day << 23 << 59 << QTime(23, 58) << QDate(2024, 3, 6);
    QTest::newRow("the least offset") << QTime(0, 0) << day << -23 << -59 << QTime(0, 1) << QDate(2024, 3, 4);
    QTest::newRow("milliseconds are dropped") << QTime(9, 5, 9, 999) << day << 0 << 0 << QTime(9, 5, 9) << day;
}

void RegionClock::gpsTimeSetsTheClockByTheOffset()
{
    QFETCH(QTime, utc);
    QFETCH(QDate, utcDate);
    QFETCH(int, offsetHours);
    QFETCH(int, offsetMinutes);
    QFETCH(QTime, clock);
    QFETCH(QDate, clockDate);
    for (int count = 1; count <= 2; ++count) { // the first GPS time, and a later one
        StoreOffset(offsetHours, offsetMinutes, true);
        QTime time = utc;
        QDate date = utcDate;
        QVERIFY(m_Region->SetUTCTimeAndDate(time, date, true));
        QCOMPARE(TTestClock::time, clock);
        QCOMPARE(TTestClock::date, clockDate);
        QCOMPARE(date, clockDate);
        QCOMPARE(time, utc);
        QCOMPARE(Stored(PARAM_UTC_OFFSET_HOURS), offsetHours);
        QCOMPARE(Stored(PARAM_UTC_OFFSET_MINUTES), offsetMinutes);
        QCOMPARE(m_Store->values[PARAM_UTC_OFFSET_SET_BY_USER].toBool(), true);
    }
}

void RegionClock::laterGPSTimeKeepsTheOffset()
{
    TTestClock::time = QTime(15, 30);
    ReceiveGPSTime(QTime(10, 0), QDate(2024, 3, 5));
    TTestClock::time = QTime(3, 0); // a clock that has gone astray
    ReceiveGPSTime(QTime(11, 0), QDate(2024, 3, 5));
    QCOMPARE(Stored(PARAM_UTC_OFFSET_HOURS), 5);
    QCOMPARE(Stored(PARAM_UTC_OFFSET_MINUTES), 30);
    QCOMPARE(TTestClock::time, QTime(16, 30));
}

void RegionClock::aTimeNotFromGPSIsLocalBeforeGPSTime()
{
    StoreOffset(5, 30);
    QTime time(23, 50, 7, 8);
    QDate date(2024, 2, 29);
    QVERIFY(m_Region->SetUTCTimeAndDate(time, date, false));
    QCOMPARE(TTestClock::time, QTime(23, 50, 7));
    QCOMPARE(TTestClock::date, QDate(2024, 2, 29));
    QCOMPARE(date, QDate(2024, 2, 29));
    QCOMPARE(Stored(PARAM_CLOCK_OFFSET), 4711);
    QCOMPARE(Stored(PARAM_UTC_OFFSET_HOURS), 5);
    QCOMPARE(Stored(PARAM_UTC_OFFSET_MINUTES), 30);
}

void RegionClock::aTimeNotFromGPSIsUTCAfterGPSTime()
{
    BeInGPSTime(QTime(12, 0), QDate(2024, 3, 5), 5, 30);
    QTime time(23, 50, 7, 8);
    QDate date(2024, 2, 29);
    QVERIFY(m_Region->SetUTCTimeAndDate(time, date, false));
    QCOMPARE(TTestClock::time, QTime(5, 20, 7));
    QCOMPARE(TTestClock::date, QDate(2024, 3, 1));
    QCOMPARE(date, QDate(2024, 3, 1));
    QCOMPARE(time, QTime(23, 50, 7, 8));
}

void RegionClock::settingTheTimeCallsTheHostInOrder_data()
{
    QTest::addColumn<bool>("isFromGPS");
    QTest::addColumn<bool>("isGPSKnown");
    QTest::addColumn<bool>("isOffsetUsers");
    QTest::addColumn<QStringList>("expected");

    const QString decide = Latin1("read 8952");
    const QStringList compute = QStringList()
                                << Latin1("currentTime") << Latin1("write 8949 4") << Latin1("write 8950 5");
    const QStringList apply = QStringList() << Latin1("read 8949") << Latin1("read 8950");
    const QStringList set = QStringList() << Latin1("SetDateTime 2024 3 5 10 0 1") << Latin1("write 8951 4711");
    const QStringList setByOffset = QStringList() << Latin1("SetDateTime 2024 3 5 14 5 1") << Latin1("write 8951 4711");

    QTest::newRow("first GPS time") << true << false << false << (QStringList(decide) + compute + apply + setByOffset);
    QTest::newRow("first GPS time, the user's offset")
        << true << false << true << (QStringList(decide) + apply + setByOffset);
    QTest::newRow("later GPS time") << true << true << false << (QStringList(decide) + apply + setByOffset);
    QTest::newRow("later GPS time, the user's offset")
        << true << true << true << (QStringList(decide) + apply + setByOffset);
    QTest::newRow("not from GPS") << false << false << false << (QStringList(decide) + set);
    QTest::newRow("not from GPS, the user's offset") << false << false << true << (QStringList(decide) + set);
    QTest::newRow("not from GPS, GPS known") << false << true << false << (QStringList(decide) + apply + setByOffset);
}

void RegionClock::settingTheTimeCallsTheHostInOrder()
{
    QFETCH(bool, isFromGPS);
    QFETCH(bool, isGPSKnown);
    QFETCH(bool, isOffsetUsers);
    QFETCH(QStringList, expected);
    if (isGPSKnown)
        ReceiveGPSTime(QTime(0, 0), QDate(2024, 3, 5));
    StoreOffset(4, 5, isOffsetUsers);
    TTestClock::time = QTime(14, 5);
    m_Store->calls.clear();
    QTime time(10, 0, 1);
    QDate date(2024, 3, 5);
    m_Region->SetUTCTimeAndDate(time, date, isFromGPS);
    QCOMPARE(m_Store->calls, expected);
}

void RegionClock::theUsersOffsetOutlivesARestart()
{
    BeInGPSTime(QTime(13, 0), QDate(2024, 3, 5), 0, 0);
    m_Region->SetUserTime(8, 0, 0);

    m_Region.reset(new TRegionSettings);
    TTestClock::time = QTime(17, 0); // as some other clock has it
    ReceiveGPSTime(QTime(14, 0), QDate(2024, 3, 5));
    QCOMPARE(Stored(PARAM_UTC_OFFSET_HOURS), -5);
    QCOMPARE(Stored(PARAM_UTC_OFFSET_MINUTES), 0);
    QCOMPARE(TTestClock::time, QTime(9, 0));

    // Setting the clock by hand before GPS time gives the offset up.
    m_Region.reset(new TRegionSettings);
    m_Region->SetUserTime(17, 0, 0);
    ReceiveGPSTime(QTime(14, 0), QDate(2024, 3, 5));
    QCOMPARE(Stored(PARAM_UTC_OFFSET_HOURS), 3);
    QCOMPARE(TTestClock::time, QTime(17, 0));
}

void RegionClock::restoreAppliesTheStoredClockOffset_data()
{
    QTest::addColumn<QVariant>("stored");
    QTest::addColumn<int>("expected");
    QTest::newRow("positive") << QVariant(1234) << 1234;
    QTest::newRow("negative") << QVariant(-1234) << -1234;
    QTest::newRow("absent") << QVariant() << 0;
}

void RegionClock::restoreAppliesTheStoredClockOffset()
{
    QFETCH(QVariant, stored);
    QFETCH(int, expected);
    if (stored.isValid())
        m_Store->values[PARAM_CLOCK_OFFSET] = stored;
    m_Region->Restore();
    QCOMPARE(TTestClock::offset, expected);
    QCOMPARE(m_Store->calls, QStringList()
                                 << Latin1("GetOffset") << Latin1("read 8951") << Latin1("SetOffset %1").arg(expected));
}

void RegionClock::restoreLeavesAnOffsetInForce()
{
    m_Store->values[PARAM_CLOCK_OFFSET] = 1234;
    TTestClock::offset = -1;
    m_Region->Restore();
    QCOMPARE(TTestClock::offset, -1);
    QCOMPARE(m_Store->calls, QStringList(Latin1("GetOffset")));
}

int main(int argc, char** argv) { return RunCoreTest<RegionClock>(argc, argv); }
#include "RegionClock.moc"
