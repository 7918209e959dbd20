#include "CoreTest.h"
#include "FacadeThreads.h"
#include "HeldLocks.h"
#include "Latin1.h"
#include "LockOrder.h"
#include "LockRecord.h"
#include "TTemporaryFolder.h"
#include "TestLength.h"
#include "TestResults.h"
#include "TestSeed.h"
#include "ThreadHost.h"

#include "region/TRegionSettings.h"
#include "settings/TSettings.h"
#include "system/TSystemSettings.h"
#include "units/TUnitAbbreviations.h"

#include <QtTest>

#include <array>
#include <random>
#include <vector>

namespace {

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
        TUserDiagnosticLogProxy().Restore(Logs() + QLatin1String("/User.csv"), 0, 0);
        TNEMADiagnosticLogProxy().Restore(Logs() + QLatin1String("/NMEA.csv"), 0, 0);
    }

    ~TDisplay() { Settings = nullptr; }

    TDisplay(const TDisplay&) = delete;
    TDisplay& operator=(const TDisplay&) = delete;

    QString Logs() const { return drive.Path(Latin1("Logs")); }

    TTemporaryFolder drive;
    TSlowStore store;
    TSettings settings;
};

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
    std::array<std::mt19937, FacadeThreads::Most> m_Random;
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
    QTest::newRow("eight threads") << TestLength() << FacadeThreads::Most << 6;
    // For tools that do not know how the first use of a static variable is guarded.
    QTest::newRow("one thread") << 1 << 1 << 1;
    QTest::newRow("eight threads after one") << 1 << FacadeThreads::Most << 1;
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
    m_Workers.clear();
    for (int number = 0; number < threadCount; ++number) {
        std::mt19937& random = m_Random[static_cast<std::size_t>(number)];
        random.seed(TestSeed() + static_cast<unsigned>(m_Rounds) * FacadeThreads::Most + static_cast<unsigned>(number));
        m_Workers.push_back({number,
                             display.drive.Path(Latin1("Exported%1").arg(number)),
                             display.Logs() + QLatin1String("/User.csv"),
                             display.Logs() + QLatin1String("/NMEA.csv"),
                             TSlowStore::DiagnosticText,
                             random,
                             {},
                             {},
                             {},
                             {}});
    }
    const std::vector<tagFacadeCall> calls = FacadeCalls();
    FacadeThreads::Run(m_Workers, rounds, calls, FacadeWorks(), SeedPauses, m_Hint.constData());
    m_Rounds += rounds;
    for (const tagWorker& worker : m_Workers) {
        m_Calls += worker.calls;
        QCOMPARE(worker.calls, 2L * rounds * static_cast<long>(calls.size()));
        QVERIFY2(worker.faults.isEmpty(), qPrintable(worker.faults.join(QLatin1Char('\n'))));
    }

    TUserDiagnosticLogProxy user;
    TNEMADiagnosticLogProxy nmea;
    user.Close();
    nmea.Close(); // writes what is staged
    QByteArrayList userLines;
    for (const QByteArray& line : FacadeThreads::LogLines(display.Logs(), "User")) {
        userLines += FacadeThreads::WithoutStamp(line);
        QVERIFY2(userLines.last() != line, line.constData());
    }
    CheckLog(userLines, &tagWorker::user, user);
    CheckLog(FacadeThreads::LogLines(display.Logs(), "NMEA"), &tagWorker::nmea, nmea);
    CheckQuantities();
    const bool isLong = rounds > 1;
    QCOMPARE(FacadeThreads::LogFiles(display.Logs(), "User").size() > 1, isLong);
    QCOMPARE(FacadeThreads::LogFiles(display.Logs(), "NMEA").size() > 1, isLong);
}

void AllFacadesAtOnce::CheckLog(const QByteArrayList& lines, const tagWorker::tagLogged tagWorker::*log,
                                TDiagnosticLogProxy& facade)
{
    const std::array<QByteArrayList, FacadeThreads::Most + 1> written = FacadeThreads::ByThread(lines);
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
        QSKIP("the locks cannot be told from those of Qt, or not be seen");
    const auto documented = LockOrder::Documented(Latin1(CABSETTINGS_THREADS_PAGE), "Order of locks");
    QVERIFY(!documented.empty());
    const QStringList faults = LockOrder::Faults(documented, LockRecord::Pairs());
    m_Failures += static_cast<int>(faults.size());
    for (const QString& fault : faults)
        qWarning("%s", qPrintable(fault));
    QVERIFY(faults.isEmpty());
}

void AllFacadesAtOnce::cleanupTestCase()
{
    AppendTestResult(
        "threads",
        {QByteArray::number(FacadeThreads::Most), QByteArray::number(static_cast<qlonglong>(m_Rounds)),
         QByteArray::number(static_cast<qlonglong>(m_Calls)), QByteArray::number(static_cast<qlonglong>(m_Lines)),
         QByteArray::number(static_cast<qlonglong>(LockRecord::Acquisitions())),
         QByteArray::number(static_cast<qlonglong>(LockRecord::Pairs().size())), QByteArray::number(m_Failures)});
}

int main(int argc, char** argv) { return RunCoreTest<AllFacadesAtOnce>(argc, argv); }
#include "AllFacadesAtOnce.moc"
