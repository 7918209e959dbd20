#include "platform/TLocalTime.h"

#include <QtTest>

#include <ctime>

class DisplayClock : public QObject
{
    Q_OBJECT

private slots:
    void init() { TLocalTime::SetOffset(0); }

    void withoutAnOffsetItShowsTheMachinesUtc();
    void anOffsetMovesDateAndTime_data();
    void anOffsetMovesDateAndTime();
    void itShowsWhatItWasSetTo_data();
    void itShowsWhatItWasSetTo();
    void theOffsetBringsASettingBack();
    void whatDoesNotExistLeavesItAlone_data();
    void whatDoesNotExistLeavesItAlone();
    void offsetsBeyondTheRangeAreCut();
    void theMachinesZoneDoesNotMatter();
    void threadsReadItWhileItIsSet();
};

namespace {

/// The display's time between two looks at the machine's clock, as seconds since 1970 in UTC.
qint64 ShownSeconds() { return TLocalTime::currentDateTime().toMSecsSinceEpoch() / 1000; }
qint64 MachineSeconds() { return std::time(nullptr); }

} // namespace

void DisplayClock::withoutAnOffsetItShowsTheMachinesUtc()
{
    const qint64 before = MachineSeconds();
    const qint64 shown = ShownSeconds();
    const qint64 after = MachineSeconds();
    // time(2) may lag by one tick of the kernel behind the exact clock.
    QVERIFY2(before <= shown && shown <= after + 1, "between the two looks");
    QCOMPARE(TLocalTime::GetOffset(), 0);
}

void DisplayClock::anOffsetMovesDateAndTime_data()
{
    QTest::addColumn<int>("offset");
    QTest::newRow("an hour on") << 3600;
    QTest::newRow("half an hour back") << -1800;
    QTest::newRow("seven years back") << -7 * 365 * 86400;
    QTest::newRow("before 1970") << -2000000000;
    QTest::newRow("sixty years on") << 1893456000;
}

void DisplayClock::anOffsetMovesDateAndTime()
{
    QFETCH(int, offset);
    TLocalTime::SetOffset(offset);
    const qint64 before = MachineSeconds() + offset;
    const QDate date = TLocalTime::currentDate();
    const QTime time = TLocalTime::currentTime();
    const qint64 after = MachineSeconds() + offset;

    QVERIFY(time.isValid());
    const QDateTime first = QDateTime::fromMSecsSinceEpoch(before * 1000, Qt::UTC);
    const QDateTime last = QDateTime::fromMSecsSinceEpoch((after + 2) * 1000, Qt::UTC);
    const QDateTime shown(date, time, Qt::UTC);
    // Date and time are two looks: at midnight the date may be the older one by a day.
    const QDateTime shownNextDay(date.addDays(1), time, Qt::UTC);
    QVERIFY((first <= shown && shown <= last) || (first <= shownNextDay && shownNextDay <= last));
}

void DisplayClock::itShowsWhatItWasSetTo_data()
{
    QTest::addColumn<QDateTime>("wanted");
    const auto at = [](int year, int month, int day, int hour, int minute, int second) {
        return QDateTime(QDate(year, month, day), QTime(hour, minute, second), Qt::UTC);
    };
    QTest::newRow("an ordinary day") << at(2024, 3, 5, 14, 5, 9);
    QTest::newRow("leap day") << at(2024, 2, 29, 23, 59, 50);
    QTest::newRow("the hour that summer time leaves out") << at(2024, 3, 31, 2, 30, 0);
    QTest::newRow("first day of the system's time") << at(1970, 1, 1, 0, 0, 0);
    QTest::newRow("week rollover of GPS") << at(2019, 4, 6, 23, 59, 42);
    QTest::newRow("late") << at(2090, 12, 31, 12, 0, 0);
}

void DisplayClock::itShowsWhatItWasSetTo()
{
    QFETCH(QDateTime, wanted);
    const qint64 before = MachineSeconds();
    const int offset = TLocalTime::SetDateTime(wanted.date().year(), wanted.date().month(), wanted.date().day(),
                                               wanted.time().hour(), wanted.time().minute(), wanted.time().second());
    const qint64 shown = ShownSeconds();
    const qint64 after = MachineSeconds() + 1;
    QCOMPARE(offset, TLocalTime::GetOffset());
    const qint64 passed = shown - wanted.toMSecsSinceEpoch() / 1000;
    QVERIFY2(passed >= 0 && passed <= after - before, qPrintable(QString::number(passed)));
}

void DisplayClock::theOffsetBringsASettingBack()
{
    const int offset = TLocalTime::SetDateTime(2031, 7, 8, 9, 10, 11);
    TLocalTime::SetOffset(0);
    QVERIFY(TLocalTime::currentDate() < QDate(2031, 7, 8));
    TLocalTime::SetOffset(offset);
    QCOMPARE(TLocalTime::currentDate(), QDate(2031, 7, 8));
    QCOMPARE(TLocalTime::currentTime().hour(), 9);
}

void DisplayClock::whatDoesNotExistLeavesItAlone_data()
{
    QTest::addColumn<QList<int>>("fields");
    QTest::newRow("30 February") << (QList<int>() << 2024 << 2 << 30 << 1 << 2 << 3);
    QTest::newRow("month 13") << (QList<int>() << 2024 << 13 << 1 << 1 << 2 << 3);
    QTest::newRow("hour 24") << (QList<int>() << 2024 << 2 << 3 << 24 << 2 << 3);
    QTest::newRow("second 60") << (QList<int>() << 2024 << 2 << 3 << 1 << 2 << 60);
    QTest::newRow("negative minute") << (QList<int>() << 2024 << 2 << 3 << 1 << -2 << 0);
}

void DisplayClock::whatDoesNotExistLeavesItAlone()
{
    QFETCH(QList<int>, fields);
    TLocalTime::SetOffset(77);
    QCOMPARE(TLocalTime::SetDateTime(fields[0], fields[1], fields[2], fields[3], fields[4], fields[5]), 77);
    QCOMPARE(TLocalTime::GetOffset(), 77);
}

void DisplayClock::offsetsBeyondTheRangeAreCut()
{
    QCOMPARE(TLocalTime::SetDateTime(9999, 1, 1, 0, 0, 0), std::numeric_limits<int>::max());
    QCOMPARE(TLocalTime::SetDateTime(1800, 1, 1, 0, 0, 0), std::numeric_limits<int>::min());
    QVERIFY(TLocalTime::currentDate().isValid());
}

void DisplayClock::theMachinesZoneDoesNotMatter()
{
    TLocalTime::SetDateTime(2024, 7, 1, 12, 0, 0);
    qputenv("TZ", "Pacific/Auckland");
    tzset();
    QCOMPARE(TLocalTime::currentDate(), QDate(2024, 7, 1));
    QCOMPARE(TLocalTime::currentTime().hour(), 12);
    qputenv("TZ", "UTC");
    tzset();
}

void DisplayClock::threadsReadItWhileItIsSet()
{
    class TReader : public QThread
    {
    public:
        bool allValid = true;
        void run() override
        {
            for (int i = 0; i < 100000; ++i)
                allValid = allValid && TLocalTime::currentDate().isValid() && TLocalTime::currentTime().isValid();
        }
    };
    TReader reader;
    reader.start();
    for (int i = 0; i < 100000; ++i)
        TLocalTime::SetOffset(i * 20000);
    reader.wait();
    QVERIFY(reader.allValid);
}

QTEST_GUILESS_MAIN(DisplayClock)
#include "DisplayClock.moc"
