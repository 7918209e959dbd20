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
#include <memory>
#include <random>
#include <set>

namespace {

/// Random states of the disk that are tried for each step, and states that are tried in all in a run of usual length:
/// for an operation of usual cost, and at least.
constexpr int RandomStates = 20;
constexpr int UsualStates = 120;
constexpr int LeastStates = 4;

// A sanitizer makes each look at a state several times as slow. The thread sanitizer has little to find in a disk.
#if defined(__SANITIZE_THREAD__)
constexpr int Slowness = 16;
#elif defined(__SANITIZE_ADDRESS__)
constexpr int Slowness = 4;
#else
constexpr int Slowness = 1;
#endif

/// A state of the disk after a power cut.
struct tagState
{
    std::size_t steps;
    TFolderContent content;
};

std::string Text(const TFolderContent& content)
{
    std::string text;
    for (const auto& [path, bytes] : content)
        text += path + '\0' + (bytes ? std::to_string(bytes->size()) + ':' + *bytes : std::string("/")) + '\0';
    return text;
}

} // namespace

/// The power fails at every step of every file operation of the host. What was not synced by then is gone, there, there
/// in part, or in another order; TDiskRecord tells what is possible. Each row tries some of these states; all of them
/// with CABSETTINGS_TEST_LENGTH=2.
class PowerCuts : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();

    void whatWasPromisedIsThere_data();
    void whatWasPromisedIsThere();

private:
    std::vector<tagState> States(const TDiskRecord& record, std::mt19937& random) const;

    const std::vector<tagOperation> m_Operations = AllOperations();
    TPromises m_Promises;
    std::unique_ptr<TTemporaryFolder> m_Folder;
    std::unique_ptr<TMemoryDrive> m_Stick;
    QString m_Room;
};

void PowerCuts::initTestCase()
{
    KeepTemporaryFilesInMemory();
    m_Folder = std::make_unique<TTemporaryFolder>();
    // A stick, on which the room is the folder of the clients.
    m_Stick = std::make_unique<TMemoryDrive>(m_Folder->Path(), "size=100m");
    m_Room = m_Folder->Path(QLatin1String("Clients"));
}

void PowerCuts::whatWasPromisedIsThere_data()
{
    QTest::addColumn<int>("operation");
    for (int operation = 0; operation < static_cast<int>(m_Operations.size()); ++operation)
        QTest::newRow(m_Operations[static_cast<std::size_t>(operation)].name) << operation;
}

/// Each state once for the same promises, in the order of the steps.
std::vector<tagState> PowerCuts::States(const TDiskRecord& record, std::mt19937& random) const
{
    std::vector<tagState> states;
    std::set<std::pair<std::size_t, std::size_t>> known;
    for (std::size_t steps = 0; steps <= record.Steps(); ++steps) {
        for (TFolderContent& content : record.AfterPowerCut(steps, RandomStates, random)) {
            const std::size_t promises = m_Promises.Before(steps).size();
            if (known.insert({promises, std::hash<std::string>()(Text(content))}).second)
                states.push_back({steps, std::move(content)});
        }
    }
    return states;
}

void PowerCuts::whatWasPromisedIsThere()
{
    QFETCH(int, operation);
    const tagOperation& tried = m_Operations[static_cast<std::size_t>(operation)];
    if (tried.needsStick && !m_Stick->IsMounted())
        QSKIP("a stick needs mounts of its own");
    const TSilence silence;
    const std::string room = QFile::encodeName(m_Room).toStdString();
    WriteFolder(room, {});
    tried.prepare(m_Room);
    TDiskRecord record(room);
    FileCalls::Watch(QFile::encodeName(m_Room));
    m_Promises.Begin(&record);
    const bool isDone = tried.run(
        m_Room, [&record] { FileCalls::Record(&record); }, m_Promises);
    FileCalls::Ignore();
    QVERIFY(isDone);

    std::mt19937 random(TestSeed() + static_cast<unsigned>(operation));
    std::vector<tagState> states = States(record, random);
    const std::size_t all = states.size();
    QVERIFY2(all > record.Steps() / 2, "too few states");
    const std::size_t most = static_cast<std::size_t>(std::max(UsualStates / tried.cost / Slowness, LeastStates));
    if (TestLength() == 1 && all > most) {
        std::shuffle(states.begin(), states.end(), random);
        states.resize(most);
    }

    tagFaultResult result = {"PowerCuts", tried.name, "power lost", 0, 0, 0};
    for (const tagState& state : states) {
        WriteFolder(room, state.content);
        const std::vector<int> promises = m_Promises.Before(state.steps);
        const QByteArray broken = tried.broken(m_Room, {INTERRUPTION_OF_POWER, promises, false, 0});
        ++result.points;
        result.done += promises.size() == m_Promises.All().size() ? 1 : 0;
        if (broken.isEmpty())
            continue;
        ++result.broken;
        QTest::qFail((broken + ", after step " + QByteArray::number(static_cast<int>(state.steps)) + " of " +
                      QByteArray::number(static_cast<int>(record.Steps())))
                         .constData(),
                     __FILE__, __LINE__);
    }
    qInfo("%d states of %d, %d steps", result.points, static_cast<int>(all), static_cast<int>(record.Steps()));
    result.Append();
}

int main(int argc, char** argv)
{
    PrivateMounts::Enter();
    const QCoreApplication application(argc, argv);
    PowerCuts test;
    return QTest::qExec(&test, argc, argv);
}
#include "PowerCuts.moc"
