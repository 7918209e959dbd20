#include "../system/TPrivateMounts.h"
#include "DiskRecord.h"
#include "FaultResults.h"
#include "FileCalls.h"
#include "MemoryFolder.h"
#include "Operations.h"
#include "TSilence.h"
#include "TTemporaryFolder.h"
#include "TestLength.h"
#include "TestSeed.h"

#include <QtTest>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <memory>
#include <numeric>
#include <random>

#include <sched.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

using namespace FileCalls;

constexpr unsigned Names = CALL_RENAME | CALL_REMOVE | CALL_FOLDER;
constexpr unsigned Changes = CALL_MAKE | CALL_ALTER | CALL_WRITE | CALL_CUT | CALL_SYNC | Names;
constexpr unsigned AllCalls = Changes | CALL_OPEN | CALL_READ | CALL_LIST | CALL_LOCK;
constexpr unsigned Interruptible = CALL_OPEN | CALL_MAKE | CALL_ALTER | CALL_READ | CALL_WRITE | CALL_CUT | CALL_LOCK;

constexpr tagFault Faults[] = {
    {"input or output fails once", STOP_ERROR, EIO, AllCalls},
    {"input and output fail from then on", STOP_ERROR_ON, EIO, AllCalls},
    {"no room from then on", STOP_ERROR_ON, ENOSPC, CALL_MAKE | CALL_WRITE | CALL_CUT | CALL_SYNC | CALL_FOLDER},
    {"no room in the middle of a write", STOP_SHORT_FULL, ENOSPC, CALL_WRITE},
    {"no access once", STOP_ERROR, EACCES, CALL_OPEN | CALL_MAKE | CALL_ALTER | CALL_LIST | Names},
    {"read-only from then on", STOP_ERROR_ON, EROFS, Changes},
    {"interrupted by a signal", STOP_ERROR, EINTR, Interruptible | CALL_SYNC},
    {"a part is written", STOP_SHORT, 0, CALL_WRITE},
    {"killed", STOP_KILL, 0, Changes},
};

/// What the caller must not notice: the call is to be made again, or to be made for the rest.
bool IsInvisible(const tagFault& fault) { return fault.error == EINTR || fault.stop == STOP_SHORT; }

/// Points tried in a run of usual length: of an operation of usual cost, and at least.
constexpr int UsualPoints = 14;
constexpr int LeastPoints = 3;

/// A store looks at its file once a second, in a thread of its own: one run may make so many calls more than another.
constexpr int VaryingCalls = 8;

constexpr unsigned SecondsOfChild = 100;

// A sanitizer makes each run several times as slow.
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
constexpr int Slowness = 4;
#else
constexpr int Slowness = 1;
#endif

// With the thread sanitizer, the child of a program that has threads, as every test has, may not start any.
#if defined(__SANITIZE_THREAD__)
constexpr bool CanKill = false;
#else
constexpr bool CanKill = true;
#endif

/// The calls at which an operation is stopped that makes @p calls: all, or the first and some others.
std::vector<int> Points(int calls, int most, std::mt19937& random)
{
    std::vector<int> points(static_cast<std::size_t>(calls));
    std::iota(points.begin(), points.end(), 1);
    if (TestLength() > 1 || calls <= most)
        return points;
    std::shuffle(points.begin() + 1, points.end(), random);
    points.resize(static_cast<std::size_t>(most));
    std::sort(points.begin(), points.end());
    return points;
}

/// How a child has ended.
enum EChildEnd
{
    CHILD_DONE,   ///< the operation has returned true
    CHILD_FAILED, ///< it has returned false
    CHILD_KILLED,
};

int Threads() { return static_cast<int>(QDir(QLatin1String("/proc/self/task")).entryList(QDir::Dirs).size()); }

} // namespace

/// Every file operation of the host is stopped at its first, second, third... call to the system, in every way in which
/// files fail. Each row tries some of these points; all of them with CABSETTINGS_TEST_LENGTH=2.
class FailingFiles : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();

    void nothingIsLostAtAnyCall_data();
    void nothingIsLostAtAnyCall();

private:
    tagAftermath Stop(const tagOperation& operation, const tagFault& fault, int nth, bool* isReached);
    EChildEnd RunInChild(const tagOperation& operation, const tagFault& fault, int nth);

    const std::vector<tagOperation> m_Operations = AllOperations();
    TPromises m_Promises;
    std::unique_ptr<TTemporaryFolder> m_Folder;
    std::unique_ptr<TMemoryDrive> m_Stick;
    QString m_Room;
    int m_Threads = 0; ///< of this process, without those of a store
};

void FailingFiles::initTestCase()
{
    KeepTemporaryFilesInMemory();
    m_Folder = std::make_unique<TTemporaryFolder>();
    // A stick, on which the room is the folder of the clients.
    m_Stick = std::make_unique<TMemoryDrive>(m_Folder->Path(), "size=100m");
    m_Room = m_Folder->Path(QLatin1String("Clients"));
    m_Threads = Threads();
}

void FailingFiles::nothingIsLostAtAnyCall_data()
{
    QTest::addColumn<int>("operation");
    QTest::addColumn<int>("fault");
    for (int operation = 0; operation < static_cast<int>(m_Operations.size()); ++operation) {
        for (int fault = 0; fault < static_cast<int>(std::size(Faults)); ++fault) {
            if (Faults[fault].stop == STOP_KILL && !CanKill)
                continue;
            QTest::addRow("%s: %s", m_Operations[static_cast<std::size_t>(operation)].name, Faults[fault].name)
                << operation << fault;
        }
    }
}

/// In a process of its own, since it is killed. A thread of a store that is closed ends a little later, and may have a
/// lock of Qt until then, which the child would never get.
EChildEnd FailingFiles::RunInChild(const tagOperation& operation, const tagFault& fault, int nth)
{
    while (Threads() > m_Threads)
        sched_yield();
    const pid_t child = fork();
    if (child == 0) {
        alarm(SecondsOfChild);
        const bool isDone = operation.run(
            m_Room, [&] { Arm(fault, nth); }, m_Promises);
        _exit(isDone ? EXIT_SUCCESS : EXIT_FAILURE);
    }
    int status = 0;
    if (child < 0 || waitpid(child, &status, 0) != child)
        qFatal("no child");
    if (WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL)
        return CHILD_KILLED;
    const int result = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    if (result != EXIT_SUCCESS && result != EXIT_FAILURE)
        qFatal("the child has ended with status %d", status);
    return result == EXIT_SUCCESS ? CHILD_DONE : CHILD_FAILED;
}

tagAftermath FailingFiles::Stop(const tagOperation& operation, const tagFault& fault, int nth, bool* isReached)
{
    m_Promises.Begin();
    bool isDone = false;
    if (fault.stop == STOP_KILL) {
        const EChildEnd end = RunInChild(operation, fault, nth);
        isDone = end == CHILD_DONE;
        *isReached = end == CHILD_KILLED;
    } else {
        isDone = operation.run(
            m_Room, [&] { Arm(fault, nth); }, m_Promises);
        *isReached = Disarm();
    }
    return {INTERRUPTION_OF_PROGRAM, m_Promises.All(), isDone, Refused(CALL_LIST | CALL_REMOVE)};
}

void FailingFiles::nothingIsLostAtAnyCall()
{
    QFETCH(int, operation);
    QFETCH(int, fault);
    const tagOperation& tried = m_Operations[static_cast<std::size_t>(operation)];
    tagFault stopped = Faults[fault];
    if (tried.isOfDatabase && stopped.error == EINTR)
        stopped.calls &= ~unsigned{CALL_SYNC};
    if (tried.needsStick && !m_Stick->IsMounted())
        QSKIP("a stick needs mounts of its own");
    const TSilence silence;
    const std::string room = QFile::encodeName(m_Room).toStdString();
    WriteFolder(room, {});
    tried.prepare(m_Room);
    const TFolderContent before = ReadFolder(room);
    Watch(QFile::encodeName(m_Room));

    m_Promises.Begin();
    QVERIFY(tried.run(
        m_Room,
        [&] {
            Arm({"", STOP_ERROR, 0, stopped.calls}, INT_MAX);
        },
        m_Promises));
    const int calls = Counted();
    Disarm();
    QVERIFY(calls > 0);
    if (stopped.stop == STOP_KILL) { // a child that is not killed does it too
        WriteFolder(room, before);
        QCOMPARE(RunInChild(tried, stopped, INT_MAX), CHILD_DONE);
    }
    std::mt19937 random(TestSeed() + static_cast<unsigned>(operation * 100 + fault));
    const std::vector<int> points = Points(calls, std::max(UsualPoints / tried.cost / Slowness, LeastPoints), random);

    tagFaultResult result = {"FailingFiles", tried.name, stopped.name};
    for (const int nth : points) {
        WriteFolder(room, before);
        bool isReached = false;
        const tagAftermath after = Stop(tried, stopped, nth, &isReached);
        QByteArray broken = tried.broken(m_Room, after);
        if (broken.isEmpty() && IsInvisible(stopped) && !after.isDone)
            broken = "the caller is told of what is to be repeated";
        const bool mayBeMissing = tried.isOfDatabase && nth > calls - VaryingCalls;
        if (broken.isEmpty() && !isReached && !mayBeMissing)
            broken = "the call was not made";
        result.points += isReached ? 1 : 0;
        result.done += isReached && after.isDone ? 1 : 0;
        result.broken += broken.isEmpty() ? 0 : 1;
        if (!broken.isEmpty())
            QTest::qFail(
                ("call " + QByteArray::number(nth) + " of " + QByteArray::number(calls) + ": " + broken).constData(),
                __FILE__, __LINE__);
    }
    Ignore();
    QVERIFY(result.points > 0);
    result.Append();
}

int main(int argc, char** argv)
{
    PrivateMounts::Enter();
    const QCoreApplication application(argc, argv);
    FailingFiles test;
    return QTest::qExec(&test, argc, argv);
}
#include "FailingFiles.moc"
