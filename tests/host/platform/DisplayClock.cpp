#include "SystemClock.h"

#include "platform/TLocalTime.h"
#include "region/TRegionSettingsProxy.h"
#include "stores/TParameterStore.h"
#include "terminal/TTerminal.h"

#include <QtTest>

#include <atomic>
#include <ctime>

namespace {

const qint64 Running = -1;

/// Milliseconds since 1970 at which the machine's clock stands still, or Running.
std::atomic<qint64> StoppedAt{Running};

} // namespace

/// Takes the place of the C library's function, for the host's library too.
extern "C" __attribute__((visibility("default"))) int clock_gettime(clockid_t clock, timespec* now) noexcept
{
    const qint64 stoppedAt = StoppedAt;
    if (clock != CLOCK_REALTIME || stoppedAt == Running)
        return ReadSystemClock(clock, now);
    now->tv_sec = static_cast<time_t>(stoppedAt / 1000);
    now->tv_nsec = static_cast<decltype(now->tv_nsec)>(stoppedAt % 1000 * 1000000);
    return 0;
}

class DisplayClock : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { StoppedAt = Running; }

    void withoutAnOffsetItShowsTheMachinesUtc();
    void anOffsetMovesDateAndTime_data();
    void anOffsetMovesDateAndTime();
    void itShowsWhatItWasSetTo_data();
    void itShowsWhatItWasSetTo();
    void theOffsetBringsASettingBack();
    void jitterNeverMovesIt_data();
    void jitterNeverMovesIt();
    void jitterNeverTurnsItBack_data();
    void jitterNeverTurnsItBack();
    void linesThatArriveTogetherDoNotTurnItBack_data();
    void linesThatArriveTogetherDoNotTurnItBack();
    void jitterWritesNothingToTheStore();
    void anErrorOfASecondIsMended_data();
    void anErrorOfASecondIsMended();
    void aClockThatStandsStillCanBeSet();
    void aStoredOffsetShowsTheSameSecondOrTheNext_data();
    void aStoredOffsetShowsTheSameSecondOrTheNext();
    void whatDoesNotExistLeavesItAlone_data();
    void whatDoesNotExistLeavesItAlone();
    void offsetsBeyondTheRangeAreCut();
    void theMachinesZoneDoesNotMatter();
    void threadsReadItWhileItIsSet();
};

namespace {

/// 2024-03-05 14:05:00 UTC.
const qint64 Base = 1709647500000;

/// The machine's milliseconds at which the first line of a receiver arrives, and by how much later lines are early or
/// late.
const QList<int> Phases = {0, 1, 2, 250, 500, 750, 997, 998, 999};
const QList<int> Jitter = {0, 1, -1, 2, -2, 3, 400, -400, 600, -499, 999, -499};

/// The time between two lines; early and late ones stay in order.
const qint64 Step = 2000;

/// The display's time in milliseconds since 1970.
qint64 Shown() { return TLocalTime::currentDateTime().toMSecsSinceEpoch(); }

int Set(const QDateTime& utc)
{
    const QDate date = utc.date();
    const QTime time = utc.time();
    return TLocalTime::SetDateTime(date.year(), date.month(), date.day(), time.hour(), time.minute(), time.second());
}

QDateTime Utc(qint64 milliseconds) { return QDateTime::fromMSecsSinceEpoch(milliseconds, Qt::UTC); }

/// Counts the transactions that would be written to a disk.
class TCountingStore : public TParameterStore
{
public:
    int transactions = 0;

protected:
    bool Persist(const QMap<int, QVariant>&) override
    {
        ++transactions;
        return true;
    }
};

/// The times of the display and of the machine, in seconds since 1970.
qint64 ShownSeconds() { return TLocalTime::currentDateTime().toMSecsSinceEpoch() / 1000; }
qint64 MachineSeconds() { return std::time(nullptr); }

} // namespace

void DisplayClock::init()
{
    StoppedAt = Running;
    TLocalTime::SetOffset(0);
}

void DisplayClock::withoutAnOffsetItShowsTheMachinesUtc()
{
    const qint64 before = MachineSeconds();
    const qint64 shown = ShownSeconds();
    const qint64 after = MachineSeconds();
    // time(2) may be behind the exact clock by one tick of the kernel.
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
    // Date and time are read one after the other: at midnight the date may be a day too early.
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

void DisplayClock::jitterNeverMovesIt_data()
{
    QTest::addColumn<int>("phase");
    QTest::addColumn<int>("ahead");
    for (const int phase : Phases) {
        for (const int ahead : {2, 3600, -7200, 1000000000})
            QTest::addRow("at %d ms, %d s ahead", phase, ahead) << phase << ahead;
    }
}

void DisplayClock::jitterNeverMovesIt()
{
    QFETCH(int, phase);
    QFETCH(int, ahead);
    qint64 due = Base + phase;
    StoppedAt = due;
    const int offset = Set(Utc(Base + ahead * 1000LL));
    for (int round = 0; round < 3; ++round) {
        for (const int jitter : Jitter) {
            due += Step;
            StoppedAt = due + jitter;
            const qint64 before = Shown();
            QCOMPARE(Set(Utc(due - phase + ahead * 1000LL)), offset);
            QCOMPARE(Shown(), before);
        }
    }
}

void DisplayClock::jitterNeverTurnsItBack_data()
{
    QTest::addColumn<int>("phase");
    for (const int phase : Phases)
        QTest::addRow("at %d ms", phase) << phase;
}

// A stored offset has whole seconds only, so the clock may be ahead by nearly a second from the start.
void DisplayClock::jitterNeverTurnsItBack()
{
    QFETCH(int, phase);
    TLocalTime::SetOffset(3600);
    qint64 due = Base + phase;
    qint64 last = 0;
    QSet<int> offsets;
    for (int round = 0; round < 3; ++round) {
        for (const int jitter : Jitter) {
            due += Step;
            StoppedAt = due + jitter / 4;
            QVERIFY(Shown() >= last);
            last = Shown();
            offsets += Set(Utc(due - phase + 3600 * 1000));
            QVERIFY(Shown() >= last);
            last = Shown();
        }
    }
    QVERIFY2(offsets.size() <= 2, "the clock changes once at most");
}

void DisplayClock::linesThatArriveTogetherDoNotTurnItBack_data()
{
    QTest::addColumn<int>("late");
    QTest::addColumn<int>("apart");
    for (const int late : {1000, 1001, 1304, 1750, 1999})
        for (const int apart : {0, 1, 30})
            QTest::addRow("%d ms late, the next %d ms after it", late, apart) << late << apart;
}

// A link that stalls hands out two lines at once: the first is late by more than a second, the second is in time.
void DisplayClock::linesThatArriveTogetherDoNotTurnItBack()
{
    QFETCH(int, late);
    QFETCH(int, apart);
    StoppedAt = Base;
    Set(Utc(Base + 60000));
    StoppedAt = Base + 9000 + late;
    Set(Utc(Base + 69000));
    const qint64 shown = Shown();
    StoppedAt = StoppedAt + apart;
    Set(Utc(Base + 70000));
    QVERIFY2(Shown() >= shown, QByteArray::number(Shown() - shown).constData());
    StoppedAt = StoppedAt + 5000;
    QCOMPARE(Shown(), Base + 75000); // the second of the last line began when it came
}

void DisplayClock::jitterWritesNothingToTheStore()
{
    const QTemporaryDir folder;
    TCountingStore store;
    TTerminal terminal(store);
    QString error;
    const int phase = 999;
    const int ahead = 30000; // less than a minute: minutes would go into the offset from UTC
    qint64 due = Base + phase;
    StoppedAt = due;
    QVERIFY2(terminal.Start(folder.path(), &error), qPrintable(error));
    const auto receive = [](qint64 milliseconds) {
        QDate date = Utc(milliseconds).date();
        QTime time = Utc(milliseconds).time();
        TRegionSettingsProxy().SetUTCTimeAndDate(time, date, true);
    };
    receive(Base + ahead);
    store.transactions = 0;
    for (const int jitter : Jitter) {
        due += Step;
        StoppedAt = due + jitter;
        receive(due - phase + ahead);
    }
    QCOMPARE(store.transactions, 0);
}

void DisplayClock::anErrorOfASecondIsMended_data()
{
    QTest::addColumn<int>("error");
    QTest::addColumn<int>("shownError");
    for (const int error : {0, 1, -1, 499, -499, 999})
        QTest::addRow("%d ms, kept", error) << error << error;
    for (const int error : {-500, -999, -1000, 2000, 2001, 60000, -60000, 86400000, -86400000})
        QTest::addRow("%d ms, mended", error) << error << 0;
    for (const int error : {1000, 1001, 1999})
        QTest::addRow("%d ms, stands still", error) << error << error;
}

void DisplayClock::anErrorOfASecondIsMended()
{
    QFETCH(int, error);
    QFETCH(int, shownError);
    StoppedAt = Base + 250;
    Set(Utc(Base + 60000));
    QCOMPARE(Shown(), Base + 60000);
    StoppedAt = Base + 250 + 10000 + error;
    Set(Utc(Base + 70000));
    QCOMPARE(Shown(), Base + 70000 + shownError);
    const bool standsStill = shownError >= 1000;
    StoppedAt = StoppedAt + 500;
    QCOMPARE(Shown(), Base + 70000 + shownError + (standsStill ? 0 : 500));
    StoppedAt = StoppedAt + 2000;
    QCOMPARE(Shown(), Base + 70000 + 2500 + (standsStill ? 0 : shownError));
}

void DisplayClock::aClockThatStandsStillCanBeSet()
{
    StoppedAt = Base;
    Set(Utc(Base + 60000));
    StoppedAt = Base + 1500;
    Set(Utc(Base + 60000)); // stands still
    QCOMPARE(Shown(), Base + 61500);
    Set(Utc(Base + 30000));
    QCOMPARE(Shown(), Base + 30000);
    StoppedAt = Base + 3000;
    Set(Utc(Base + 30000)); // stands still
    QCOMPARE(Shown(), Base + 31500);
    TLocalTime::SetOffset(0);
    QCOMPARE(Shown(), Base + 3000);
}

void DisplayClock::aStoredOffsetShowsTheSameSecondOrTheNext_data()
{
    QTest::addColumn<int>("phase");
    QTest::addColumn<int>("ahead");
    for (const int phase : Phases) {
        for (const int ahead : {2, 3600, -7200})
            QTest::addRow("at %d ms, %d s ahead", phase, ahead) << phase << ahead;
    }
}

void DisplayClock::aStoredOffsetShowsTheSameSecondOrTheNext()
{
    QFETCH(int, phase);
    QFETCH(int, ahead);
    const qint64 wanted = Base + ahead * 1000LL;
    StoppedAt = Base + phase;
    const int offset = Set(Utc(wanted));
    QCOMPARE(Shown(), wanted);
    TLocalTime::SetOffset(offset);
    QCOMPARE(TLocalTime::GetOffset(), offset);
    QVERIFY(Shown() >= wanted && Shown() < wanted + 1000);
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
