#include "FacadeThreads.h"
#include "HeldLocks.h"
#include "Latin1.h"
#include "LockOrder.h"
#include "LockRecord.h"
#include "StoreTestSupport.h"
#include "TestLength.h"
#include "TestResults.h"
#include "TestSeed.h"

#include "copies/StoreCopies.h"
#include "diagnostics/DiagnosticTexts.h"
#include "diagnostics/EConsoleEvent.h"
#include "diagnostics/KeptLogs.h"
#include "diagnostics/UserLogEntries.h"
#include "stores/ChangeJournal.h"
#include "stores/TParameterWatch.h"
#include "stores/TPersistenceHold.h"
#include "terminal/DataFolder.h"
#include "terminal/TTerminal.h"

#include <QTemporaryDir>
#include <QtTest>

#include <algorithm>
#include <array>
#include <atomic>
#include <map>
#include <memory>
#include <random>
#include <set>
#include <thread>
#include <vector>

namespace {

/// The lines that are logged before the threads begin.
const char* const FirstLine = "first";

TSqliteStore* Store = nullptr; // of the terminal that runs; the works have no other way to it

bool LogByKeepers(tagWorker& worker)
{
    const QByteArray text = LineText(worker, worker.user);
    const bool isLogged =
        AddUserLogEntry(DIAG_COMPONENT_IMPLEMENT, DIAG_TYPE_DTC, worker.number, Latin1(text), QString());
    NoteLine(worker.user, "Implement,DTC," + QByteArray::number(worker.number) + ',' + text + ',', isLogged);
    return true;
}

bool CopyStore(tagWorker&)
{
    StoreCopies::tagCopy copy;
    QString error;
    return StoreCopies::Make(*Store, &copy, &error);
}

bool ReadJournal(tagWorker&)
{
    ChangeJournal::tagJournal journal;
    QString error;
    return ChangeJournal::Read(*Store, {}, &journal, &error) && journal.damaged.isEmpty();
}

bool HoldStore(tagWorker& worker)
{
    TPersistenceHold hold(*Store);
    Store->SetParameter(PARAM_SPRAYER_RATE_BASIS, worker.Draw(2), true);
    return hold.Release() && Store->WriteFailure().isEmpty();
}

/// Changes a parameter, which goes all the way to the watches and to the disk.
void Toggle(TSqliteStore& store, EParamID id) { store.SetParameter(id, !store.GetParameter(id).toBool(), true); }

/// What the host has beside the façades.
const std::vector<tagWork>& HostWorks()
{
    static const std::vector<tagWork> works = {
        {"AddUserLogEntry", 6, LogByKeepers},
        {"StoreCopies::Make", 1, CopyStore},
        {"ChangeJournal::Read", 1, ReadJournal},
        {"TPersistenceHold", 2, HoldStore},
    };
    return works;
}

/// The changes of the store as a watch tells them. Each begins where the one before has ended.
class TToldChanges
{
public:
    explicit TToldChanges(TSqliteStore& store) : m_Store(store), m_Watch(store)
    {
        QObject::connect(&m_Watch, &TParameterWatch::Changed, [this](const tagParameterChange& change) {
            const auto before = m_Last.find(change.number);
            m_IsChain = m_IsChain && (before == m_Last.end() || before->second == change.oldValue);
            m_Last[change.number] = change.newValue;
        });
    }

    /// Whether nothing was left out, up to the values of the store now.
    bool IsComplete() const
    {
        return m_IsChain && !m_Last.empty() && std::all_of(m_Last.begin(), m_Last.end(), [this](const auto& last) {
                   return m_Store.GetParameter(Param(last.first)) == last.second;
               });
    }

private:
    TSqliteStore& m_Store;
    TParameterWatch m_Watch;
    std::map<int, QVariant> m_Last;
    bool m_IsChain = true;
};

} // namespace

/// The ready host under eight threads: a terminal on a store on the disk, with its journal, its copies and a watch.
class TerminalAtOnce : public QObject
{
    Q_OBJECT

private slots:
    void eightThreadsLoseAndMixNothing();
    void locksAreTakenInTheDocumentedOrder();
    void cleanupTestCase();

private:
    void RunTerminal();
    void NameLocks(TSqliteStore& store);
    void FillLogs();
    void CheckLog(const char* stem, const tagWorker::tagLogged tagWorker::*log, const QByteArray& gap);

    QString m_Logs;
    std::array<std::mt19937, FacadeThreads::Most> m_Random;
    std::vector<tagWorker> m_Workers; ///< of the last terminal
    long m_Rounds = 0;
    long m_Calls = 0;
    long m_Lines = 0;
    std::vector<LockRecord::tagPair> m_Pairs; ///< of all terminals
    int m_Failures = 0;
};

void TerminalAtOnce::NameLocks(TSqliteStore& store)
{
    LockRecord::ForgetNames();
    for (const tagLock& lock : Locks)
        LockRecord::NameLock(lock.mutex, lock.name);
    if (!LockRecord::SeesLocks)
        return;
    // Each call takes only locks that have a name by then, and the one that it names.
    QVERIFY(LockRecord::NameFirstLockOf([&] { store.GetParameter(PARAM_METRIC); }, "store memory"));
    QVERIFY(LockRecord::NameFirstLockOf([&] { TPersistenceHold(store).Abandon(); }, "store disk"));
    QVERIFY(LockRecord::NameFirstLockOf([&] { store.WriteFailure(); }, "write failure"));
    QVERIFY(LockRecord::NameFirstLockOf([&] { Toggle(store, PARAM_METRIC); }, "watch"));
    QVERIFY(LockRecord::NameFirstLockOf([&] { Toggle(store, PARAM_US_MEASURES); }, "disk thread"));
    QVERIFY(LockRecord::NameFirstLockOf([&] { ConfigManager->GetParameter(PARAM_INTERNAL_DRIVE); }, "drives"));
    QVERIFY(LockRecord::NameFirstLockOf([] { WriteNmeaLine(QByteArray(FirstLine) + "\r\n"); }, "NMEA log keeper"));
    QVERIFY(LockRecord::NameFirstLockOf(
        [] { AddUserLogEntry(DIAG_COMPONENT_CONSOLE, DIAG_TYPE_DTC, 0, Latin1(FirstLine), QString()); },
        "user log keeper"));
    LockRecord::ForgetPairs();
}

/// Lets both logs go on to another file. The works alone do not fill one.
void TerminalAtOnce::FillLogs()
{
    const QByteArray line = FirstLine + QByteArray(0x100000, 'x') + "\r\n";
    TUserDiagnosticLogProxy user;
    QVERIFY(user.LogDiagnostic(line.constData(), static_cast<int>(line.size())));
    QCOMPARE(WriteNmeaLine(line), qint64(0));
}

void TerminalAtOnce::RunTerminal()
{
    const std::unique_ptr<QTemporaryDir> folder = MakeFolder();
    const std::unique_ptr<TSqliteStore> store = OpenStore(DataFolder::StoreFile(folder->path()));
    QVERIFY(store);
    Store = store.get();
    for (int id = PARAM_ACTIVE_JOB; id <= PARAM_FIELD; ++id)
        store->SetParameter(Param(id), Latin1(FirstName), true);
    for (const EParamID id : {PARAM_MAP_COLOR_DAY, PARAM_MAP_COLOR_NIGHT})
        store->SetParameter(id, FirstColor(), true);
    TTerminal terminal(*store);
    QString error;
    QVERIFY2(terminal.Start(folder->path(), &error, {Latin1(FirstName), QString()}), qPrintable(error));
    m_Logs = DataFolder::InternalDrive(folder->path()) + QLatin1String("Diagnostics");
    TToldChanges told(*store);
    NameLocks(*store);
    FillLogs();

    m_Workers.clear();
    for (int number = 0; number < FacadeThreads::Most; ++number) {
        std::mt19937& random = m_Random[static_cast<std::size_t>(number)];
        random.seed(TestSeed() + static_cast<unsigned>(m_Rounds) * FacadeThreads::Most + static_cast<unsigned>(number));
        const QString& event = DiagnosticText(DIAG_COMPONENT_CONSOLE, DIAG_TYPE_EVENT, number);
        m_Workers.push_back({number,
                             folder->filePath(Latin1("Exported%1").arg(number)),
                             m_Logs + QLatin1String("/User.csv"),
                             m_Logs + QLatin1String("/NMEA.csv"),
                             event.toLatin1(),
                             random,
                             {},
                             {},
                             {},
                             {}});
    }
    const std::vector<tagFacadeCall> calls = FacadeCalls();
    std::vector<tagWork> works = FacadeWorks();
    works.insert(works.end(), HostWorks().begin(), HostWorks().end());

    const QByteArray hint = QByteArray(TestSeedVariable) + '=' + QByteArray::number(TestSeed());
    std::atomic<bool> haveEnded{false};
    std::thread runner([&] {
        FacadeThreads::Run(
            m_Workers, 1, calls, works, [](int) {}, hint.constData());
        haveEnded = true;
    });
    // A loop that the other thread ends by an event is a race to the thread sanitizer, which does not know Qt's locks.
    while (!haveEnded)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents | QEventLoop::AllEvents, 20);
    runner.join();
    const std::vector<LockRecord::tagPair> pairs = LockRecord::Pairs();
    m_Pairs.insert(m_Pairs.end(), pairs.begin(), pairs.end());
    QCoreApplication::processEvents();
    ++m_Rounds;
    for (const tagWorker& worker : m_Workers) {
        m_Calls += worker.calls;
        QVERIFY2(worker.faults.isEmpty(), qPrintable(worker.faults.join(QLatin1Char('\n'))));
    }
    QVERIFY(told.IsComplete());
    QVERIFY(store->WriteOutstanding());
    const QMap<int, QVariant> memory = store->Values();
    QCOMPARE(StoredValues(store->Path()), memory);

    terminal.Stop(); // writes what is staged
    const QString lost = DiagnosticText(DIAG_COMPONENT_CONSOLE, DIAG_TYPE_EVENT, CONSOLE_EVENT_LINES_LOST);
    CheckLog("User", &tagWorker::user, lost.toLatin1());
    CheckLog("NMEA", &tagWorker::nmea, "Lines lost");
}

/// @param gap what is in the lines by which the host tells that lines were lost, while a thread had closed the log.
void TerminalAtOnce::CheckLog(const char* stem, const tagWorker::tagLogged tagWorker::*log, const QByteArray& gap)
{
    QByteArrayList lines;
    for (const QByteArray& line : FacadeThreads::LogLines(m_Logs, stem))
        lines += FacadeThreads::WithoutStamp(line);
    const auto written = FacadeThreads::ByThread(lines);
    for (const QByteArray& line : written.back())
        QVERIFY2(line.contains(gap) || line.contains(FirstLine), line.constData());
    for (const tagWorker& worker : m_Workers) {
        const QByteArrayList& found = written[static_cast<std::size_t>(worker.number)];
        QCOMPARE(found, (worker.*log).lines);
        m_Lines += static_cast<long>(found.size());
    }
}

void TerminalAtOnce::eightThreadsLoseAndMixNothing()
{
    for (int terminal = 0; terminal < TestLength(); ++terminal) {
        RunTerminal();
        if (QTest::currentTestFailed()) {
            ++m_Failures;
            return;
        }
    }
}

void TerminalAtOnce::locksAreTakenInTheDocumentedOrder()
{
    if (!LockRecord::SeesLocks)
        QSKIP("the locks cannot be told from those of Qt, or not be seen");
    const auto documented = LockOrder::Documented(Latin1(CABSETTINGS_THREADS_PAGE), "Order of locks in the ready host");
    QVERIFY(!documented.empty());
    const QStringList faults = LockOrder::Faults(documented, m_Pairs);
    m_Failures += static_cast<int>(faults.size());
    for (const QString& fault : faults)
        qWarning("%s", qPrintable(fault));
    QVERIFY(faults.isEmpty());
}

void TerminalAtOnce::cleanupTestCase()
{
    std::set<LockOrder::FPair> pairs;
    for (const LockRecord::tagPair& pair : m_Pairs)
        pairs.emplace(pair.held, pair.taken);
    AppendTestResult("threads-host",
                     {QByteArray::number(FacadeThreads::Most), QByteArray::number(static_cast<qlonglong>(m_Rounds)),
                      QByteArray::number(static_cast<qlonglong>(m_Calls)),
                      QByteArray::number(static_cast<qlonglong>(m_Lines)),
                      QByteArray::number(static_cast<qlonglong>(LockRecord::Acquisitions())),
                      QByteArray::number(static_cast<qlonglong>(pairs.size())), QByteArray::number(m_Failures)});
}

QTEST_GUILESS_MAIN(TerminalAtOnce)
#include "TerminalAtOnce.moc"
