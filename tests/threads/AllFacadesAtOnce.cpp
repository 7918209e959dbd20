#include "CoreTest.h"
#include "FacadeWorks.h"
#include "HeldLocks.h"
#include "Latin1.h"
#include "LockOrder.h"
#include "LockRecord.h"
#include "TTemporaryFolder.h"
#include "TWatchdog.h"
#include "TestLength.h"
#include "TestResults.h"
#include "TestSeed.h"
#include "ThreadHost.h"

#include "region/TRegionSettings.h"
#include "settings/TSettings.h"
#include "system/TSystemSettings.h"
#include "units/TUnitAbbreviations.h"

#include <QRegularExpression>
#include <QtTest>

#include <algorithm>
#include <array>
#include <memory>
#include <random>
#include <thread>
#include <vector>

namespace {

constexpr int MostThreads = 8;
constexpr std::chrono::minutes WatchdogLimit{2}; // under helgrind too, a call takes less than a second

const std::array<const char*, MostThreads> ThreadNames = {"thread 0", "thread 1", "thread 2", "thread 3",
                                                          "thread 4", "thread 5", "thread 6", "thread 7"};

/// One display in mid-work, on a drive of its own.
class TDisplay
{
public:
    TDisplay()
    {
        LockRecord::NameLock(&store.Lock(), "store");
        ResetClock();
        for (int id = PARAM_ACTIVE_JOB; id <= PARAM_FIELD; ++id)
            store.SetParameter(static_cast<EParamID>(id), Latin1(FirstName), true);
        store.SetParameter(PARAM_INTERNAL_DRIVE, drive.Path() + QLatin1Char('/'), true);
        store.SetParameter(PARAM_EXTERNAL_DRIVE, Latin1("/proc"), true); // mounted everywhere, and cannot be written
        drive.MakeFolder(Latin1("Logs"));
        drive.MakeFolder(Latin1("Jobs"));
        TSystemSettings::SoftwareVersion = Latin1(FirstName);
        Settings = &settings;
        settings.Initialise();
        TUserDiagnosticLogProxy().Restore(UserLogPath(drive.Path()), 0, 0);
        TNEMADiagnosticLogProxy().Restore(NMEALogPath(drive.Path()), 0, 0);
    }

    ~TDisplay() { Settings = nullptr; }

    TDisplay(const TDisplay&) = delete;
    TDisplay& operator=(const TDisplay&) = delete;

    /// The files of a log, the oldest first.
    QStringList Files(const char* stem) const
    {
        return QDir(drive.Path(Latin1("Logs"))).entryList({Latin1(stem) + QLatin1Char('*')}, QDir::Files, QDir::Name);
    }

    /// The lines of all these files, without line ends. One more, "no line end", for each file that does not end with
    /// one.
    QByteArrayList Lines(const char* stem) const
    {
        QByteArrayList lines;
        for (const QString& name : Files(stem)) {
            QByteArray content = drive.Content(QLatin1String("Logs/") + name);
            content.replace("\r\n", "\n");
            QByteArrayList ofFile = content.split('\n');
            if (!ofFile.takeLast().isEmpty())
                ofFile.append("no line end");
            lines += ofFile;
        }
        return lines;
    }

    TTemporaryFolder drive;
    TSlowStore store;
    TSettings settings;
};

/// Each thread makes every plain call @p rounds times, in an order of its own each time, and a work after each.
void Work(tagWorker& worker, TWatchdog& watchdog, int rounds)
{
    LockRecord::NameThread(ThreadNames[static_cast<std::size_t>(worker.number)]);
    SeedPauses(worker.number);
    std::vector<tagFacadeCall> calls = FacadeCalls();
    std::vector<const tagWork*> works;
    for (const tagWork& work : FacadeWorks())
        works.insert(works.end(), static_cast<std::size_t>(work.weight), &work);

    for (int round = 0; round < rounds; ++round) {
        std::shuffle(calls.begin(), calls.end(), worker.random);
        for (const tagFacadeCall& call : calls) {
            watchdog.Begins(worker.number, call.name);
            call.call();
            const tagWork& work = *works[static_cast<std::size_t>(worker.Draw(static_cast<int>(works.size())))];
            watchdog.Begins(worker.number, work.name);
            if (!work.work(worker))
                worker.faults += Latin1("thread %1, round %2: %3").arg(worker.number).arg(round).arg(Latin1(work.name));
            worker.calls += 2;
        }
    }
    watchdog.Ends(worker.number);
}

/// Without the stamp, if the line has one.
QByteArray WithoutStamp(const QByteArray& line)
{
    static const QRegularExpression stamp(Latin1(R"(^\d{4}\.\d\d\.\d\d-\d\d:\d\d:\d\d:\d{3},)"));
    return stamp.match(Latin1(line)).hasMatch() ? line.mid(StampLength) : line;
}

/// What each thread has logged, from the lines of the files; what belongs to no thread is in the last list.
std::array<QByteArrayList, MostThreads + 1> ByThread(const QByteArrayList& lines)
{
    static const QRegularExpression text(Latin1("(?:^|,)([0-7])-[0-9]+-[a-h]*(?:,|$)"));
    std::array<QByteArrayList, MostThreads + 1> threads;
    for (const QByteArray& line : lines) {
        const QRegularExpressionMatch match = text.match(Latin1(line));
        threads[match.hasMatch() ? match.captured(1).toUInt() : MostThreads] += line;
    }
    return threads;
}

} // namespace

/// Eight threads call every operation of every façade, while the store answers slowly at random.
class AllFacadesAtOnce : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void eightThreadsLoseAndMixNothing_data();
    void eightThreadsLoseAndMixNothing();
    void locksAreTakenInTheDocumentedOrder();
    void cleanupTestCase();

private:
    void RunDisplay(int threadCount, int rounds);
    void CheckLog(const QByteArrayList& lines, const tagWorker::tagLogged tagWorker::*log, TDiagnosticLogProxy& facade);
    void CheckQuantities();

    QByteArray m_Hint;
    std::array<std::mt19937, MostThreads> m_Random;
    std::vector<tagWorker> m_Workers; ///< of the last display
    long m_Rounds = 0;
    long m_Calls = 0;
    long m_Lines = 0;
    int m_Failures = 0;
};

void AllFacadesAtOnce::initTestCase()
{
    m_Hint = QByteArray(TestSeedVariable) + '=' + QByteArray::number(TestSeed());
    TRegionSettings::InitializeLanguageStrings();
    TUnitAbbreviations::Initialize();
    LockRecord::NameThread("the main thread");
    for (const tagLock& lock : Locks)
        LockRecord::NameLock(lock.mutex, lock.name);
}

void AllFacadesAtOnce::eightThreadsLoseAndMixNothing_data()
{
    QTest::addColumn<int>("displays");
    QTest::addColumn<int>("threads");
    QTest::addColumn<int>("rounds");
    // First, so that also the first use of everything is by several threads.
    QTest::newRow("eight threads") << TestLength() << MostThreads << 4;
    // For tools that do not know how the first use of a static variable is guarded.
    QTest::newRow("one thread") << 1 << 1 << 1;
    QTest::newRow("eight threads after one") << 1 << MostThreads << 1;
}

void AllFacadesAtOnce::eightThreadsLoseAndMixNothing()
{
    QFETCH(int, displays);
    QFETCH(int, threads);
    QFETCH(int, rounds);
    for (int display = 0; display < displays; ++display) {
        RunDisplay(threads, rounds);
        if (QTest::currentTestFailed()) {
            ++m_Failures;
            return;
        }
    }
}

void AllFacadesAtOnce::RunDisplay(int threadCount, int rounds)
{
    TDisplay display;
    const std::size_t calls = FacadeCalls().size();
    m_Workers.clear();
    for (int number = 0; number < threadCount; ++number) {
        std::mt19937& random = m_Random[static_cast<std::size_t>(number)];
        random.seed(TestSeed() + static_cast<unsigned>(m_Rounds) * MostThreads + static_cast<unsigned>(number));
        m_Workers.push_back({number, display.drive.Path(), random, {}, {}, {}, {}});
    }
    {
        TWatchdog watchdog(threadCount, WatchdogLimit, m_Hint.constData());
        std::vector<std::thread> threads;
        for (tagWorker& worker : m_Workers)
            threads.emplace_back([&worker, &watchdog, rounds] { Work(worker, watchdog, rounds); });
        for (std::thread& thread : threads)
            thread.join();
    }
    m_Rounds += rounds;
    for (const tagWorker& worker : m_Workers) {
        m_Calls += worker.calls;
        QCOMPARE(worker.calls, 2L * rounds * static_cast<long>(calls));
        QVERIFY2(worker.faults.isEmpty(), qPrintable(worker.faults.join(QLatin1Char('\n'))));
    }

    TUserDiagnosticLogProxy user;
    TNEMADiagnosticLogProxy nmea;
    user.Close();
    nmea.Close(); // writes what is staged
    QByteArrayList userLines;
    for (const QByteArray& line : display.Lines("User")) {
        userLines += WithoutStamp(line);
        QVERIFY2(userLines.last() != line, line.constData());
    }
    CheckLog(userLines, &tagWorker::user, user);
    CheckLog(display.Lines("NMEA"), &tagWorker::nmea, nmea);
    CheckQuantities();
    const bool isLong = rounds > 1;
    QCOMPARE(display.Files("User").size() > 1, isLong);
    QCOMPARE(display.Files("NMEA").size() > 1, isLong);
}

void AllFacadesAtOnce::CheckLog(const QByteArrayList& lines, const tagWorker::tagLogged tagWorker::*log,
                                TDiagnosticLogProxy& facade)
{
    const std::array<QByteArrayList, MostThreads + 1> written = ByThread(lines);
    QCOMPARE(written.back(), QByteArrayList());
    long refused = 0;
    for (const tagWorker& worker : m_Workers) {
        const QByteArrayList& found = written[static_cast<std::size_t>(worker.number)];
        QCOMPARE(found, (worker.*log).lines); // each line whole and once, in the order of the calls
        refused += (worker.*log).refused;
        m_Lines += static_cast<long>(found.size());
    }
    QCOMPARE(static_cast<long>(facade.GetState().lostLines), refused);
}

void AllFacadesAtOnce::CheckQuantities()
{
    std::set<std::pair<int, QString>> possible;
    for (int bits = 0; bits < MeasureChoices; ++bits) {
        ChooseMeasures(bits);
        for (int unit = 0; unit < TUnitAbbreviations::UnitCount; ++unit)
            possible.emplace(unit, QuantityText(unit));
    }
    for (const tagWorker& worker : m_Workers) {
        QVERIFY(!worker.quantities.empty());
        for (const auto& shown : worker.quantities)
            QVERIFY2(possible.count(shown) > 0, qPrintable(shown.second));
    }
}

void AllFacadesAtOnce::locksAreTakenInTheDocumentedOrder()
{
    if (!LockRecord::SeesLocks)
        QSKIP("Qt 6 locks inline, so that its locks cannot be seen");
    const auto documented = LockOrder::Documented(Latin1(CABSETTINGS_THREADS_PAGE), "Order of locks");
    QVERIFY(!documented.empty());
    const QStringList faults = LockOrder::Faults(documented, LockRecord::Pairs());
    m_Failures += static_cast<int>(faults.size());
    QVERIFY2(faults.isEmpty(), qPrintable(faults.join(QLatin1Char('\n'))));
}

void AllFacadesAtOnce::cleanupTestCase()
{
    AppendTestResult("threads", {QByteArray::number(MostThreads), QByteArray::number(static_cast<qlonglong>(m_Rounds)),
                                 QByteArray::number(static_cast<qlonglong>(m_Calls)),
                                 QByteArray::number(static_cast<qlonglong>(m_Lines)),
                                 QByteArray::number(static_cast<qlonglong>(LockRecord::Acquisitions())),
                                 QByteArray::number(static_cast<qlonglong>(LockRecord::Pairs().size())),
                                 QByteArray::number(m_Failures)});
}

int main(int argc, char** argv) { return RunCoreTest<AllFacadesAtOnce>(argc, argv); }
#include "AllFacadesAtOnce.moc"
