// What the watchdog and the record of locks must say of faults. Each fault is planted in a process of its own, which is
// this program, called with the name of the fault.

#include "CoreTest.h"
#include "LockOrder.h"
#include "LockRecord.h"
#include "TTemporaryFolder.h"
#include "TWatchdog.h"

#include <QMutex>
#include <QMutexLocker>
#include <QProcess>
#include <QtTest>

#include <atomic>
#include <cstdio>
#include <cstring>
#include <thread>

namespace {

QMutex First;
QMutex Second;

const char* const Hint = "the hint";
constexpr std::chrono::seconds WatchdogLimit{1};

const std::vector<LockOrder::FPair> FirstThenSecond = {{"first", "second"}};

/// Both threads hold a lock each before they ask for the other's.
int WaitForEachOther()
{
    TWatchdog watchdog(2, WatchdogLimit, Hint);
    std::atomic<int> holders{0};
    std::atomic<int> watched{0};
    const auto lockBoth = [&](int thread, const char* name, QMutex& outer, QMutex& inner) {
        LockRecord::NameThread(name);
        outer.lock();
        ++holders;
        while (holders < 2 || watched < thread) // the first thread is the first that is watched, and reported
            std::this_thread::yield();
        watchdog.Begins(thread, "LockBoth");
        ++watched;
        inner.lock();
    };
    std::thread one(lockBoth, 0, "thread 0", std::ref(First), std::ref(Second));
    std::thread other(lockBoth, 1, "thread 1", std::ref(Second), std::ref(First));
    one.join();
    other.join();
    return EXIT_SUCCESS;
}

int WaitForItself()
{
    TWatchdog watchdog(1, WatchdogLimit, Hint);
    std::thread one([&watchdog] {
        LockRecord::NameThread("thread 0");
        watchdog.Begins(0, "LockTwice");
        First.lock();
        First.lock();
    });
    one.join();
    return EXIT_SUCCESS;
}

void LockIn(QMutex& outer, QMutex& inner)
{
    std::thread one([&outer, &inner] {
        const QMutexLocker outerLock(&outer);
        const QMutexLocker innerLock(&inner);
    });
    one.join();
}

int Judge()
{
    const QStringList faults = LockOrder::Faults(FirstThenSecond, LockRecord::Pairs());
    for (const QString& fault : faults)
        std::fprintf(stderr, "%s\n", qPrintable(fault));
    return faults.isEmpty() ? EXIT_SUCCESS : EXIT_FAILURE;
}

int LockInOrder()
{
    LockIn(First, Second);
    return Judge();
}

int LockInBothOrders()
{
    LockIn(First, Second);
    LockIn(Second, First);
    return Judge();
}

int LockInNoOrder() { return Judge(); }

int LockWithoutName()
{
    QMutex own;
    LockIn(First, Second);
    LockIn(First, own);
    return Judge();
}

struct tagPlan
{
    const char* name;
    int (*run)();
};

constexpr tagPlan Plans[] = {
    {"wait-for-each-other", WaitForEachOther}, {"wait-for-itself", WaitForItself}, {"in-order", LockInOrder},
    {"in-both-orders", LockInBothOrders},      {"in-no-order", LockInNoOrder},     {"without-name", LockWithoutName},
};

int RunPlan(const char* name)
{
    LockRecord::NameLock(&First, "first");
    LockRecord::NameLock(&Second, "second");
    for (const tagPlan& plan : Plans) {
        if (std::strcmp(plan.name, name) == 0)
            return plan.run();
    }
    std::fprintf(stderr, "no plan %s\n", name);
    return EXIT_FAILURE;
}

QString Text(const char* text) { return QString::fromLatin1(text); }

} // namespace

using FPairs = std::vector<LockOrder::FPair>;

Q_DECLARE_METATYPE(FPairs)

class LockFaults : public QObject
{
    Q_OBJECT

private slots:
    void aPlantedFaultIsReported_data();
    void aPlantedFaultIsReported();
    void theOrderIsJudged_data();
    void theOrderIsJudged();
    void theOrderIsReadFromThePage();
    void whatCannotWaitForEverMakesNoPair();
    void aLockIsNamedByTheCallThatTakesIt();
};

void LockFaults::aPlantedFaultIsReported_data()
{
    QTest::addColumn<int>("exitCode");
    QTest::addColumn<QStringList>("lines");

    QTest::newRow("wait-for-each-other")
        << EXIT_FAILURE
        << QStringList{
               Text("thread 0 has not returned from LockBoth for 1 s; the hint"),
               Text("thread 0 holds \"first\" and waits for \"second\", which thread 1 holds"),
               Text("thread 1 holds \"second\" and waits for \"first\", which thread 0 holds"),
           };
    QTest::newRow("wait-for-itself")
        << EXIT_FAILURE
        << QStringList{
               Text("thread 0 has not returned from LockTwice for 1 s; the hint"),
               Text("thread 0 holds \"first\" and waits for \"first\", which thread 0 holds"),
           };
    QTest::newRow("in-order") << EXIT_SUCCESS << QStringList();
    QTest::newRow("in-both-orders") << EXIT_FAILURE
                                    << QStringList{Text(
                                           "\"first\" was taken while \"second\" was held, which is not documented")};
    QTest::newRow("in-no-order") << EXIT_FAILURE
                                 << QStringList{
                                        Text("\"second\" was never taken while \"first\" was held, although that is "
                                             "documented")};
    QTest::newRow("without-name") << EXIT_FAILURE
                                  << QStringList{
                                         Text("\"a lock without a name\" was taken while \"first\" was held, which is "
                                              "not documented")};
}

void LockFaults::aPlantedFaultIsReported()
{
    QFETCH(int, exitCode);
    QFETCH(QStringList, lines);
    QProcess process;
    process.start(QCoreApplication::applicationFilePath(), {Text(QTest::currentDataTag())});
    QVERIFY(process.waitForFinished(-1));
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
    const QStringList printed = QString::fromLocal8Bit(process.readAllStandardError()).split(QLatin1Char('\n'));
    for (const QString& line : lines)
        QVERIFY2(printed.contains(line), qPrintable(printed.join(QLatin1Char('\n'))));
#if !defined(__SANITIZE_THREAD__) // which has its own exit code, and says more
    QCOMPARE(process.exitCode(), exitCode);
    QCOMPARE(printed.size() - 1, lines.size());
#else
    QVERIFY(exitCode == EXIT_SUCCESS || process.exitCode() != EXIT_SUCCESS);
#endif
}

void LockFaults::theOrderIsJudged_data()
{
    QTest::addColumn<FPairs>("documented");
    QTest::addColumn<FPairs>("recorded");
    QTest::addColumn<QStringList>("faults");

    const FPairs chain = {{"a", "b"}, {"b", "c"}};
    QTest::newRow("as documented") << chain << chain << QStringList();
    QTest::newRow("by way of another") << chain << FPairs{{"a", "b"}, {"b", "c"}, {"a", "c"}} << QStringList();
    QTest::newRow("one pair more") << chain << FPairs{{"a", "b"}, {"b", "c"}, {"b", "a"}}
                                   << QStringList{
                                          Text("\"a\" was taken while \"b\" was held, which is not documented")};
    QTest::newRow("one pair less") << chain << FPairs{{"b", "c"}}
                                   << QStringList{Text(
                                          "\"b\" was never taken while \"a\" was held, although that is documented")};
    const FPairs circle = {{"a", "b"}, {"b", "c"}, {"c", "a"}};
    QTest::newRow("a circle is documented") << circle << circle
                                            << QStringList{Text("\"a\" and \"b\" are documented in both orders"),
                                                           Text("\"b\" and \"c\" are documented in both orders"),
                                                           Text("\"c\" and \"a\" are documented in both orders")};
    const FPairs self = {{"a", "a"}};
    QTest::newRow("a lock inside itself")
        << self << self << QStringList{Text("\"a\" and \"a\" are documented in both orders")};
}

void LockFaults::theOrderIsJudged()
{
    QFETCH(FPairs, documented);
    QFETCH(FPairs, recorded);
    QFETCH(QStringList, faults);
    std::vector<LockRecord::tagPair> pairs;
    for (const LockOrder::FPair& pair : recorded)
        pairs.push_back({pair.first, pair.second, 1});
    QCOMPARE(LockOrder::Faults(documented, pairs), faults);
}

void LockFaults::theOrderIsReadFromThePage()
{
    const TTemporaryFolder folder;
    const QString page = folder.Path(Text("page.md"));
    folder.MakeFile(Text("page.md"),
                    "# Page\n\n## Other\n\n| A | B |\n|---|---|\n| x | y |\n\n"
                    "## Order\n\nSome words.\n\n| Held | Taken | When |\n|---|---|---|\n"
                    "| one lock | two | always |\n|two|three||\n\n## Next\n\n| v | w |\n|---|---|\n| p | q |\n");
    QCOMPARE(LockOrder::Documented(page, "Order"), (FPairs{{"one lock", "two"}, {"two", "three"}}));
    QCOMPARE(LockOrder::Documented(page, "Missing"), FPairs());
    QCOMPARE(LockOrder::Documented(folder.Path(Text("missing.md")), "Order"), FPairs());
}

void LockFaults::whatCannotWaitForEverMakesNoPair()
{
    const long before = LockRecord::Acquisitions();
    First.lock();
    QVERIFY(Second.tryLock());
    QCOMPARE(LockRecord::Threads().size(), std::size_t(1));
    QCOMPARE(LockRecord::Threads().front().holds.size(), 2);
    First.unlock();
    QCOMPARE(LockRecord::Threads().front().holds.size(), 1);
    Second.unlock();
    QCOMPARE(LockRecord::Threads().size(), std::size_t(0));
    QCOMPARE(LockRecord::Pairs().size(), std::size_t(0));
    QCOMPARE(LockRecord::Acquisitions() - before, 2L);
}

void LockFaults::aLockIsNamedByTheCallThatTakesIt()
{
    QMutex known;
    QMutex hidden;
    LockRecord::NameLock(&known, "known");
    const auto lockBoth = [&known, &hidden] {
        const QMutexLocker outer(&known);
        const QMutexLocker inner(&hidden);
    };
    QVERIFY(LockRecord::NameFirstLockOf(lockBoth, "hidden"));
    QVERIFY(!LockRecord::NameFirstLockOf(lockBoth, "another"));
    QCOMPARE(LockRecord::Pairs().size(), std::size_t(2)); // before it had its name, and with it
    LockRecord::ForgetPairs();
    QCOMPARE(LockRecord::Pairs().size(), std::size_t(0));
    lockBoth();
    QCOMPARE(LockRecord::Pairs().size(), std::size_t(1));
    QCOMPARE(LockRecord::Pairs().front().held, QByteArray("known"));
    QCOMPARE(LockRecord::Pairs().front().taken, QByteArray("hidden"));
    LockRecord::ForgetPairs();
}

int main(int argc, char** argv)
{
    const bool isPlan = argc == 2 && argv[1][0] != '-' && std::strchr(argv[1], '-');
    return isPlan ? RunPlan(argv[1]) : RunCoreTest<LockFaults>(argc, argv);
}
#include "LockFaults.moc"
