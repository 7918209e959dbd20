#include "Latin1.h"
#include "TClockTest.h"

/// The date and the time that the operator sets.
class ClockSetByHand : public QObject, private TClockTest
{
    Q_OBJECT

private slots:
    void init() { MakeDisplay(); }
    void cleanup() { RemoveDisplay(); }

    void aUserDateKeepsTheTime();
    void aUserDateCallsTheHostInOrder();
    void aUserDateWithoutEffectCallsNobody_data();
    void aUserDateWithoutEffectCallsNobody();

    void aUserTimeBeforeGPSSetsTheClock();
    void aUserTimeBeforeGPSCallsTheHostInOrder();
    void aUserTimeAfterGPSSetsTheOffset_data();
    void aUserTimeAfterGPSSetsTheOffset();
    void aUserTimeAfterGPSCallsTheHostInOrder();

    void aUserDateAndTimeBeforeGPSSetTheClock();
    void aUserDateAndTimeBeforeGPSNeedAValidDate_data();
    void aUserDateAndTimeBeforeGPSNeedAValidDate();
    void aUserDateAndTimeAfterGPSIgnoreTheDate_data();
    void aUserDateAndTimeAfterGPSIgnoreTheDate();
};

void ClockSetByHand::aUserDateKeepsTheTime()
{
    StoreOffset(5, 30, true);
    m_Region->SetUserDate(2024, 2, 29);
    QCOMPARE(TTestClock::date, QDate(2024, 2, 29));
    QCOMPARE(TTestClock::time, QTime(14, 5, 9));
    QCOMPARE(m_Store->values[PARAM_UTC_OFFSET_SET_BY_USER], QVariant(false));
    QCOMPARE(m_Store->values[PARAM_UTC_OFFSET_HOURS], QVariant(0));
    QCOMPARE(m_Store->values[PARAM_UTC_OFFSET_MINUTES], QVariant(0));
    QCOMPARE(m_Store->values[PARAM_CLOCK_OFFSET], QVariant(4711));
    QVERIFY(m_Store->allWritesPersist);
}

void ClockSetByHand::aUserDateCallsTheHostInOrder()
{
    m_Region->SetUserDate(2024, 2, 29);
    QCOMPARE(m_Store->calls, QStringList()
                                 << Latin1("currentTime") << Latin1("read 8952")
                                 << Latin1("SetDateTime 2024 2 29 14 5 9") << Latin1("write 8951 4711")
                                 << Latin1("write 8952 false") << Latin1("write 8949 0") << Latin1("write 8950 0"));
}

void ClockSetByHand::aUserDateWithoutEffectCallsNobody_data()
{
    QTest::addColumn<bool>("isGPSKnown");
    QTest::addColumn<int>("year");
    QTest::addColumn<int>("month");
    QTest::addColumn<int>("day");

    QTest::newRow("valid, after GPS time") << true << 2024 << 2 << 28;
    QTest::newRow("invalid, after GPS time") << true << 2023 << 2 << 29;
    QTest::newRow("no leap year") << false << 2023 << 2 << 29;
    QTest::newRow("no leap year at a century") << false << 1900 << 2 << 29;
    QTest::newRow("day 0") << false << 2024 << 2 << 0;
    QTest::newRow("day 32") << false << 2024 << 1 << 32;
    QTest::newRow("day 31 of a short month") << false << 2024 << 4 << 31;
    QTest::newRow("month 0") << false << 2024 << 0 << 1;
    QTest::newRow("month 13") << false << 2024 << 13 << 1;
    QTest::newRow("year 0") << false << 0 << 1 << 1;
    QTest::newRow("negative day") << false << 2024 << 1 << -1;
}

void ClockSetByHand::aUserDateWithoutEffectCallsNobody()
{
    QFETCH(bool, isGPSKnown);
    QFETCH(int, year);
    QFETCH(int, month);
    QFETCH(int, day);
    if (isGPSKnown)
        ReceiveGPSTime(QTime(10, 0), QDate(2024, 3, 5));
    m_Store->calls.clear();
    m_Region->SetUserDate(year, month, day);
    QCOMPARE(m_Store->calls, QStringList());
}

void ClockSetByHand::aUserTimeBeforeGPSSetsTheClock()
{
    StoreOffset(5, 30, true);
    m_Region->SetUserTime(23, 59, 58);
    QCOMPARE(TTestClock::time, QTime(23, 59, 58));
    QCOMPARE(TTestClock::date, QDate(2024, 3, 5));
    QCOMPARE(m_Store->values[PARAM_UTC_OFFSET_SET_BY_USER], QVariant(false));
    QCOMPARE(m_Store->values[PARAM_UTC_OFFSET_HOURS], QVariant(0));
    QCOMPARE(m_Store->values[PARAM_UTC_OFFSET_MINUTES], QVariant(0));
    QVERIFY(m_Store->allWritesPersist);
}

void ClockSetByHand::aUserTimeBeforeGPSCallsTheHostInOrder()
{
    m_Region->SetUserTime(8, 0, 1);
    QCOMPARE(m_Store->calls, QStringList()
                                 << Latin1("currentDate") << Latin1("read 8952") << Latin1("SetDateTime 2024 3 5 8 0 1")
                                 << Latin1("write 8951 4711") << Latin1("write 8952 false") << Latin1("write 8949 0")
                                 << Latin1("write 8950 0"));
}

void ClockSetByHand::aUserTimeAfterGPSSetsTheOffset_data()
{
    QTest::addColumn<QTime>("local");
    QTest::addColumn<int>("oldHours");
    QTest::addColumn<int>("oldMinutes");
    QTest::addColumn<QTime>("wanted");
    QTest::addColumn<int>("offsetHours");
    QTest::addColumn<int>("offsetMinutes");
    QTest::addColumn<QTime>("clock");
    QTest::addColumn<QDate>("clockDate");

    const QDate day(2024, 3, 5);
    const QDate before(2024, 3, 4);
    const QDate after(2024, 3, 6);
    QTest::newRow("from UTC to the west") << QTime(13, 0) << 0 << 0 << QTime(8, 0) << -5 << 0 << QTime(8, 0) << day;
    QTest::newRow("from UTC to the east") << QTime(13, 0) << 0 << 0 << QTime(18, 45) << 5 << 45 << QTime(18, 45) << day;
    QTest::newRow("from one offset to another")
        << QTime(15, 0) << 2 << 0 << QTime(8, 30) << -4 << -30 << QTime(8, 30) << day;
    QTest::newRow("no change") << QTime(15, 0) << 2 << 0 << QTime(15, 0) << 2 << 0 << QTime(15, 0) << day;
    QTest::newRow("seconds stay those of GPS")
        << QTime(13, 0, 7, 8) << 0 << 0 << QTime(8, 0, 59) << -5 << 0 << QTime(8, 0, 7) << day;
    QTest::newRow("into the next day") << QTime(23, 0) << 0 << 0 << QTime(1, 0) << 2 << 0 << QTime(1, 0) << after;
    QTest::newRow("into the day before") << QTime(1, 0) << 0 << 0 << QTime(23, 0) << -2 << 0 << QTime(23, 0) << before;
    QTest::newRow("farther than half a day")
        << QTime(13, 0) << 0 << 0 << QTime(0, 30) << 11 << 30 << QTime(0, 30) << after;
    QTest::newRow("half a day ahead") << QTime(1, 0) << 0 << 0 << QTime(13, 0) << 12 << 0 << QTime(13, 0) << day;
    QTest::newRow("half a day behind") << QTime(13, 0) << 0 << 0 << QTime(1, 0) << -12 << 0 << QTime(1, 0) << day;
    QTest::newRow("UTC on another day") << QTime(1, 0) << 5 << 0 << QTime(2, 0) << 6 << 0 << QTime(2, 0) << day;
}

void ClockSetByHand::aUserTimeAfterGPSSetsTheOffset()
{
    QFETCH(QTime, local);
    QFETCH(int, oldHours);
    QFETCH(int, oldMinutes);
    QFETCH(QTime, wanted);
    QFETCH(int, offsetHours);
    QFETCH(int, offsetMinutes);
    QFETCH(QTime, clock);
    QFETCH(QDate, clockDate);
    BeInGPSTime(local, QDate(2024, 3, 5), oldHours, oldMinutes);
    m_Region->SetUserTime(wanted.hour(), wanted.minute(), wanted.second());
    QCOMPARE(m_Store->values[PARAM_UTC_OFFSET_HOURS], QVariant(offsetHours));
    QCOMPARE(m_Store->values[PARAM_UTC_OFFSET_MINUTES], QVariant(offsetMinutes));
    QCOMPARE(m_Store->values[PARAM_UTC_OFFSET_SET_BY_USER], QVariant(true));
    QCOMPARE(TTestClock::time, clock);
    QCOMPARE(TTestClock::date, clockDate);
    QVERIFY(m_Store->allWritesPersist);
}

void ClockSetByHand::aUserTimeAfterGPSCallsTheHostInOrder()
{
    BeInGPSTime(QTime(13, 0, 7), QDate(2024, 3, 5), 0, 0);
    m_Region->SetUserTime(8, 0, 0);
    QCOMPARE(m_Store->calls,
             QStringList() << Latin1("currentTime") << Latin1("currentDate") << Latin1("read 8949")
                           << Latin1("read 8950")                               // UTC
                           << Latin1("write 8949 -5") << Latin1("write 8950 0") // the wanted offset
                           << Latin1("read 8952") << Latin1("read 8949") << Latin1("read 8950")
                           << Latin1("SetDateTime 2024 3 5 8 0 7") << Latin1("write 8951 4711") << Latin1("read 8949")
                           << Latin1("read 8950") // what is in force
                           << Latin1("write 8952 true") << Latin1("write 8949 -5") << Latin1("write 8950 0"));
}

void ClockSetByHand::aUserDateAndTimeBeforeGPSSetTheClock()
{
    StoreOffset(5, 30, true);
    m_Region->SetUserDateTime(2024, 2, 29, 23, 59, 58);
    QCOMPARE(TTestClock::date, QDate(2024, 2, 29));
    QCOMPARE(TTestClock::time, QTime(23, 59, 58));
    QCOMPARE(m_Store->calls, QStringList() << Latin1("read 8952") << Latin1("SetDateTime 2024 2 29 23 59 58")
                                           << Latin1("write 8951 4711") << Latin1("write 8952 false")
                                           << Latin1("write 8949 0") << Latin1("write 8950 0"));
    QVERIFY(m_Store->allWritesPersist);
}

void ClockSetByHand::aUserDateAndTimeBeforeGPSNeedAValidDate_data()
{
    QTest::addColumn<int>("year");
    QTest::addColumn<int>("month");
    QTest::addColumn<int>("day");
    QTest::newRow("no leap year") << 2023 << 2 << 29;
    QTest::newRow("month 13") << 2024 << 13 << 1;
    QTest::newRow("day 0") << 2024 << 1 << 0;
}

void ClockSetByHand::aUserDateAndTimeBeforeGPSNeedAValidDate()
{
    QFETCH(int, year);
    QFETCH(int, month);
    QFETCH(int, day);
    m_Region->SetUserDateTime(year, month, day, 8, 0, 0);
    QCOMPARE(m_Store->calls, QStringList());
}

void ClockSetByHand::aUserDateAndTimeAfterGPSIgnoreTheDate_data()
{
    QTest::addColumn<int>("year");
    QTest::addColumn<int>("month");
    QTest::addColumn<int>("day");
    QTest::newRow("valid date") << 2001 << 2 << 3;
    QTest::newRow("invalid date") << 2023 << 2 << 29;
}

void ClockSetByHand::aUserDateAndTimeAfterGPSIgnoreTheDate()
{
    QFETCH(int, year);
    QFETCH(int, month);
    QFETCH(int, day);
    BeInGPSTime(QTime(13, 0), QDate(2024, 3, 5), 0, 0);
    m_Region->SetUserDateTime(year, month, day, 8, 0, 0);
    const QStringList calls = m_Store->calls;
    QCOMPARE(TTestClock::date, QDate(2024, 3, 5));
    QCOMPARE(TTestClock::time, QTime(8, 0));
    QCOMPARE(Stored(PARAM_UTC_OFFSET_HOURS), -5);

    BeInGPSTime(QTime(13, 0), QDate(2024, 3, 5), 0, 0);
    m_Region->SetUserTime(8, 0, 0);
    QCOMPARE(calls, m_Store->calls);
}

int main(int argc, char** argv) { return RunCoreTest<ClockSetByHand>(argc, argv); }
#include "ClockSetByHand.moc"
