#include "StoreTestSupport.h"

#include <QCoreApplication>
#include <QFile>
#include <QtTest>

#include <atomic>
#include <fcntl.h>
#include <memory>
#include <sys/file.h>
#include <thread>
#include <unistd.h>
#include <vector>

namespace {

const QLatin1String OpenAndWait("open-and-wait");
const QLatin1String OpenTellAndClose("open-tell-and-close");
const QLatin1String Good(".good");
const QLatin1String Lock(".lock");
const QLatin1String Log("-wal");
const QLatin1String FirstAside(".damaged-1");
const QLatin1String SecondAside(".damaged-2");

const int Impatience = 50; // milliseconds
const int OpenerCount = 3;

// What a child does: it opens the store and reports the number of parameters.
int Stay(const QString& path)
{
    const auto store = OpenStore(path);
    TChild::Tell(store ? static_cast<int>(store->Values().size()) : -1);
    for (;;)
        pause();
}

int Leave(const QString& path)
{
    const auto store = OpenStore(path);
    TChild::Tell(store ? static_cast<int>(store->Values().size()) : -1);
    return 0;
}

// Holds the lock of a store without being a store.
class TLockHolder
{
public:
    TLockHolder(const QString& path, int kind, const QByteArray& note)
        : m_Path(path), m_File(open(QFile::encodeName(path).constData(), O_RDWR | O_CREAT | O_CLOEXEC, 0644))
    {
        if (flock(m_File, kind | LOCK_NB) != 0 || write(m_File, note.constData(), size_t(note.size())) != note.size())
            qFatal("cannot lock %s", qPrintable(path));
    }

    ~TLockHolder() { close(m_File); }

    TLockHolder(const TLockHolder&) = delete;
    TLockHolder& operator=(const TLockHolder&) = delete;

private:
    QString m_Path;
    int m_File;
};

} // namespace

class StoreHasSeveralUsers : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void oneOfManyMakesAMissingFile();
    void oneOfManyRepairsADamagedFile();
    void programsThatStartAtOnceFindOneFile();
    void anOpenerWaitsForOneWhoRepairs();
    void anOpenerDoesNotWaitForEver();
    void aLockThatIsSharedBeforeTheFileIsReadyDoesNotCount_data();
    void aLockThatIsSharedBeforeTheFileIsReadyDoesNotCount();
    void theLockOfADeadProgramDoesNotCount();
    void aLockFileThatNobodyHoldsDoesNotCount();
    void aLockFileWithAnotherNameIsReplaced();
    void aLockFileThatIsHeldAndGetsAnotherNameIsShared();

    void theLastOneMakesTheGoodCopy();
    void ofThoseWhoCloseAtOnceOneMakesTheGoodCopy();
    void openingAndClosingAtOnceLosesNothing();
    void theOneWhoIsLeftByADeadProgramIsTheLast();

    void aRowThatIsDamagedWhileOthersUseItIsAbsentUntilTheyWrite();
    void aFileThatIsDamagedWhileOthersUseItIsRefused_data();
    void aFileThatIsDamagedWhileOthersUseItIsRefused();
    void aFileThatIsDamagedBelowOthersIsRefused();
    void aFileThatIsNotTheOneOthersUseIsRefused_data();
    void aFileThatIsNotTheOneOthersUseIsRefused();
    void aStoreThatClosesLeavesTheOthersTheirLocks();

private:
    std::unique_ptr<QTemporaryDir> m_Folder;
    QString m_Path;
};

void StoreHasSeveralUsers::init()
{
    m_Folder = MakeFolder();
    m_Path = m_Folder->filePath(QLatin1String("settings.db"));
}

void StoreHasSeveralUsers::oneOfManyMakesAMissingFile()
{
    for (int round = 0; round < 20; ++round) {
        init();
        TStandardErrorCapture standardError;
        std::vector<std::unique_ptr<TSqliteStore>> stores(OpenerCount);
        std::vector<std::thread> openers;
        for (auto& store : stores)
            openers.emplace_back([&] { store = OpenStore(m_Path); });
        for (std::thread& opener : openers)
            opener.join();
        for (size_t index = 0; index < stores.size(); ++index) {
            QVERIFY(stores[index] != nullptr);
            QVERIFY(stores[index]->SetParameter(Param(static_cast<int>(index)), round, true));
        }
        for (const auto& store : stores)
            QTRY_COMPARE_WITH_TIMEOUT(store->Values().size(), OpenerCount, SoonMilliseconds);
        QCOMPARE(standardError.Lines(), QStringList());
    }
}

void StoreHasSeveralUsers::oneOfManyRepairsADamagedFile()
{
    OpenStore(m_Path)->SetParameter(PARAM_METRIC, true, true);
    const QByteArray good = FileBytes(m_Path + Good);
    for (int round = 0; round < 20; ++round) {
        init();
        SetFileBytes(m_Path, good.left(5000));
        SetFileBytes(m_Path + Good, good);
        TStandardErrorCapture standardError;
        std::vector<std::unique_ptr<TSqliteStore>> stores(OpenerCount);
        std::vector<std::thread> openers;
        for (auto& store : stores)
            openers.emplace_back([&] { store = OpenStore(m_Path); });
        for (std::thread& opener : openers)
            opener.join();
        for (const auto& store : stores) {
            QVERIFY(store != nullptr);
            QCOMPARE(store->GetParameter(PARAM_METRIC), QVariant(true));
        }
        QVERIFY(QFile::exists(m_Path + FirstAside));
        QVERIFY(!QFile::exists(m_Path + SecondAside));
        QCOMPARE(standardError.Lines().size(), 2); // from the store that has repaired the file
    }
}

void StoreHasSeveralUsers::programsThatStartAtOnceFindOneFile()
{
    OpenStore(m_Path)->SetParameter(PARAM_METRIC, true, true);
    SetFileBytes(m_Path, FileBytes(m_Path).left(5000));
    TStandardErrorCapture standardError;
    std::vector<std::unique_ptr<TChild>> children;
    for (int child = 0; child < OpenerCount; ++child)
        children.push_back(std::make_unique<TChild>(QStringList{OpenTellAndClose, m_Path}));
    for (const auto& child : children)
        QCOMPARE(child->NextNumber(), 1);
    children.clear();
    QVERIFY(!QFile::exists(m_Path + SecondAside));
    const QStringList lines = standardError.Lines();
    QVERIFY2(lines.size() == 2, qPrintable(lines.join(QLatin1Char('\n'))));
    QCOMPARE(StoredValues(m_Path), (QMap<int, QVariant>{{PARAM_METRIC, true}}));
}

void StoreHasSeveralUsers::anOpenerWaitsForOneWhoRepairs()
{
    OpenStore(m_Path)->SetParameter(PARAM_METRIC, true, true);
    const QString away = m_Path + QLatin1String(".away");
    auto repairing = std::make_unique<TLockHolder>(m_Path + Lock, LOCK_EX, QByteArray());
    QVERIFY(QFile::rename(m_Path, away));
    std::unique_ptr<TSqliteStore> store;
    TStandardErrorCapture standardError;
    QString error;
    std::thread opener([&] { store = TSqliteStore::Open(m_Path, &error, SoonMilliseconds); });
    // A store that does not wait would find the file missing and say so.
    QString otherError;
    const bool isRefused = !TSqliteStore::Open(m_Path, &otherError, Impatience);
    QFile::rename(away, m_Path);
    repairing.reset();
    opener.join();
    QVERIFY(isRefused);
    QVERIFY2(store != nullptr, qPrintable(error));
    QCOMPARE(store->GetParameter(PARAM_METRIC), QVariant(true));
    QCOMPARE(standardError.Lines(), QStringList());
}

void StoreHasSeveralUsers::anOpenerDoesNotWaitForEver()
{
    OpenStore(m_Path);
    const TLockHolder repairing(m_Path + Lock, LOCK_EX, QByteArray());
    const QStringList names = NamesBeside(m_Path);
    QString error;
    QVERIFY(!TSqliteStore::Open(m_Path, &error, Impatience));
    QCOMPARE(error,
             QString::fromLatin1("%1 cannot be used: another program has locked %1.lock for longer than the timeout")
                 .arg(m_Path));
    QCOMPARE(NamesBeside(m_Path), names);
}

void StoreHasSeveralUsers::aLockThatIsSharedBeforeTheFileIsReadyDoesNotCount_data()
{
    QTest::addColumn<QByteArray>("note");
    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("a number") << QByteArray("412\n");
    QTest::newRow("half") << QByteArray("412 7");
    QTest::newRow("no numbers") << QByteArray("device file\n");
    QTest::newRow("one too many") << QByteArray("1 2 3\n");
}

void StoreHasSeveralUsers::aLockThatIsSharedBeforeTheFileIsReadyDoesNotCount()
{
    QFETCH(QByteArray, note);
    const TLockHolder strange(m_Path + Lock, LOCK_SH, note);
    QString error;
    QVERIFY(!TSqliteStore::Open(m_Path, &error, Impatience));
    QVERIFY2(error.contains(QLatin1String("another program has locked")), qPrintable(error));
    QVERIFY(!QFile::exists(m_Path));
}

void StoreHasSeveralUsers::theLockOfADeadProgramDoesNotCount()
{
    TChild child({OpenAndWait, m_Path});
    QCOMPARE(child.NextNumber(), 0);
    child.Kill();
    QVERIFY(child.WasKilled());
    QVERIFY(QFile::exists(m_Path + Lock));
    QVERIFY(OpenStore(m_Path) != nullptr);
    QVERIFY(!QFile::exists(m_Path + Lock));
}

void StoreHasSeveralUsers::aLockFileThatNobodyHoldsDoesNotCount()
{
    SetFileBytes(m_Path + Lock, "1 2\n");
    QVERIFY(OpenStore(m_Path) != nullptr);
}

void StoreHasSeveralUsers::aLockFileWithAnotherNameIsReplaced()
{
    const QString other = m_Folder->filePath(QLatin1String("other"));
    QVERIFY(OpenStore(m_Path)->SetParameter(PARAM_METRIC, true, true));
    SetFileBytes(m_Path + Good, "older");
    SetFileBytes(other, "1 2\n");
    QCOMPARE(link(QFile::encodeName(other).constData(), QFile::encodeName(m_Path + Lock).constData()), 0);
    auto store = OpenStore(m_Path);
    QVERIFY(store != nullptr);
    QCOMPARE(StoredValues(m_Path + Good), (QMap<int, QVariant>{{PARAM_METRIC, true}})); // its holder had died
    QVERIFY(OpenStore(m_Path) != nullptr);
    QVERIFY(store->SetParameter(PARAM_METRIC, false, true));
    store.reset();
    QCOMPARE(FileBytes(other), QByteArray("1 2\n"));
    QVERIFY(!QFile::exists(m_Path + Lock));
}

/// As a backup of the folder makes it that links the files.
void StoreHasSeveralUsers::aLockFileThatIsHeldAndGetsAnotherNameIsShared()
{
    const QString other = m_Folder->filePath(QLatin1String("other"));
    auto first = OpenStore(m_Path);
    QCOMPARE(link(QFile::encodeName(m_Path + Lock).constData(), QFile::encodeName(other).constData()), 0);
    const QByteArray before = FileBytes(other);
    auto second = OpenStore(m_Path);
    QVERIFY(second != nullptr);
    QVERIFY(second->SetParameter(PARAM_METRIC, true, true));
    QCOMPARE(FileBytes(other), before);
    QTRY_COMPARE_WITH_TIMEOUT(first->GetParameter(PARAM_METRIC), QVariant(true), SoonMilliseconds);
    first.reset();
    second.reset();
    QCOMPARE(StoredValues(m_Path + Good), (QMap<int, QVariant>{{PARAM_METRIC, true}}));
    QVERIFY(!QFile::exists(m_Path + Lock));
    QVERIFY(OpenStore(m_Path) != nullptr);
}

void StoreHasSeveralUsers::theLastOneMakesTheGoodCopy()
{
    auto first = OpenStore(m_Path);
    auto second = OpenStore(m_Path);
    auto third = OpenStore(m_Path);
    const QByteArray empty = FileBytes(m_Path + Good);
    QVERIFY(second->SetParameter(PARAM_METRIC, true, true));
    first.reset();
    third.reset();
    QCOMPARE(FileBytes(m_Path + Good), empty);
    QVERIFY(QFile::exists(m_Path + Lock));
    second.reset();
    QCOMPARE(StoredValues(m_Path + Good), (QMap<int, QVariant>{{PARAM_METRIC, true}}));
    QVERIFY(!QFile::exists(m_Path + Lock));
}

void StoreHasSeveralUsers::ofThoseWhoCloseAtOnceOneMakesTheGoodCopy()
{
    const QString select = QLatin1String("SELECT value FROM parameters WHERE id = 8960");
    for (int round = 0; round < 30; ++round) {
        std::vector<std::unique_ptr<TSqliteStore>> stores(OpenerCount);
        for (auto& store : stores)
            store = OpenStore(m_Path);
        QVERIFY(stores.front()->SetParameter(PARAM_AREA_UNIT, round, true));
        TStandardErrorCapture standardError;
        std::vector<std::thread> closers;
        for (auto& store : stores)
            closers.emplace_back([&] { store.reset(); });
        for (std::thread& closer : closers)
            closer.join();
        QCOMPARE(RunSql(m_Path + Good, select).toInt(), round);
        QVERIFY(!QFile::exists(m_Path + Lock));
        QCOMPARE(standardError.Lines(), QStringList());
    }
}

void StoreHasSeveralUsers::openingAndClosingAtOnceLosesNothing()
{
    const int rounds = 40;
    std::vector<std::thread> threads;
    std::atomic<int> failures{0};
    TStandardErrorCapture standardError;
    for (int thread = 0; thread < OpenerCount; ++thread)
        threads.emplace_back([&, thread] {
            for (int round = 0; round < rounds; ++round) {
                const auto store = OpenStore(m_Path);
                const bool hasLast = round == 0 || (store && store->GetParameter(Param(thread)) == QVariant(round - 1));
                if (!hasLast || !store->SetParameter(Param(thread), round, true))
                    ++failures;
            }
        });
    for (std::thread& thread : threads)
        thread.join();
    QCOMPARE(standardError.Lines(), QStringList());
    QCOMPARE(failures.load(), 0);
    QMap<int, QVariant> expected;
    for (int thread = 0; thread < OpenerCount; ++thread)
        expected[thread] = rounds - 1;
    QCOMPARE(StoredValues(m_Path + Good), expected);
    QCOMPARE(StoredValues(m_Path), expected);
}

void StoreHasSeveralUsers::theOneWhoIsLeftByADeadProgramIsTheLast()
{
    TChild child({OpenAndWait, m_Path});
    QCOMPARE(child.NextNumber(), 0);
    auto store = OpenStore(m_Path);
    child.Kill();
    QVERIFY(child.WasKilled());
    QVERIFY(store->SetParameter(PARAM_METRIC, true, true));
    store.reset();
    QCOMPARE(StoredValues(m_Path + Good), (QMap<int, QVariant>{{PARAM_METRIC, true}}));
    QVERIFY(!QFile::exists(m_Path + Lock));
}

void StoreHasSeveralUsers::aRowThatIsDamagedWhileOthersUseItIsAbsentUntilTheyWrite()
{
    const auto first = OpenStore(m_Path);
    QVERIFY(first->SetParameter(PARAM_CLIENT, QLatin1String("Smith"), true));
    QVERIFY(first->SetParameter(PARAM_FARM, QLatin1String("Hill"), true));
    TStandardErrorCapture standardError;
    RunSql(m_Path, QLatin1String("UPDATE parameters SET value = 'Smyth' WHERE id = 8932"));
    const auto second = OpenStore(m_Path);
    QVERIFY(second);
    QCOMPARE(second->Values(), (QMap<int, QVariant>{{PARAM_FARM, QLatin1String("Hill")}}));
    QVERIFY(
        standardError.Lines().contains(QLatin1String("parameter 8932 cannot be read: it does not match its digest")));
    QVERIFY(!QFile::exists(m_Path + FirstAside));

    QVERIFY(first->SetParameter(PARAM_METRIC, true, true));
    QTRY_COMPARE_WITH_TIMEOUT(second->GetParameter(PARAM_CLIENT), QVariant(QLatin1String("Smith")), SoonMilliseconds);
}

void StoreHasSeveralUsers::aFileThatIsDamagedWhileOthersUseItIsRefused_data()
{
    QTest::addColumn<QString>("statement");
    QTest::addColumn<QString>("found");
    const QString found = QLatin1String("its schema is missing or broken");
    QTest::newRow("schema") << QString::fromLatin1("ALTER TABLE parameters ADD COLUMN unit") << found;
    QTest::newRow("no schema number") << QString::fromLatin1("PRAGMA user_version = 0") << found;
}

void StoreHasSeveralUsers::aFileThatIsDamagedWhileOthersUseItIsRefused()
{
    QFETCH(QString, statement);
    QFETCH(QString, found);
    auto first = OpenStore(m_Path);
    QVERIFY(first->SetParameter(PARAM_CLIENT, QLatin1String("Smith"), true));
    first.reset();
    first = OpenStore(m_Path);
    TStandardErrorCapture standardError;
    RunSql(m_Path, statement);
    const QStringList names = NamesBeside(m_Path);
    QString error;
    QVERIFY(!TSqliteStore::Open(m_Path, &error));
    QCOMPARE(error, QString::fromLatin1("%1 cannot be used: %2; it can be repaired when no other program uses it")
                        .arg(m_Path, found));
    QCOMPARE(NamesBeside(m_Path), names);
    QCOMPARE(first->GetParameter(PARAM_CLIENT), QVariant(QLatin1String("Smith")));

    first.reset();
    QCOMPARE(StoredValues(m_Path), (QMap<int, QVariant>{{PARAM_CLIENT, QLatin1String("Smith")}}));
    QVERIFY(QFile::exists(m_Path + FirstAside));
}

void StoreHasSeveralUsers::aFileThatIsDamagedBelowOthersIsRefused()
{
    {
        const auto store = OpenStore(m_Path);
        store->HoldPersistence();
        for (int id = 0; id < 200; ++id) // fills several pages
            store->SetParameter(Param(id), QString::fromLatin1("value of parameter %1").arg(id), true);
        QVERIFY(store->ReleasePersistence());
    }
    const QMap<int, QVariant> values = StoredValues(m_Path);
    TChild child({OpenAndWait, m_Path});
    QCOMPARE(child.NextNumber(), values.size());
    const QByteArray damaged = FileBytes(m_Path).replace(8192, 4096, QByteArray(4096, 'x'));
    SetFileBytes(m_Path, damaged);
    QString error;
    QVERIFY(!TSqliteStore::Open(m_Path, &error));
    QVERIFY2(error.endsWith(QLatin1String("; it can be repaired when no other program uses it")), qPrintable(error));
    QVERIFY(!QFile::exists(m_Path + FirstAside));

    child.Kill();
    QVERIFY(child.WasKilled());
    TStandardErrorCapture standardError;
    QCOMPARE(StoredValues(m_Path), values);
    QCOMPARE(FileBytes(m_Path + FirstAside), damaged);
}

void StoreHasSeveralUsers::aFileThatIsNotTheOneOthersUseIsRefused_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("none") << QByteArray();
    QTest::newRow("a foreign one") << QByteArray("text");
    QTest::newRow("one of ours") << QByteArray("copy");
}

void StoreHasSeveralUsers::aFileThatIsNotTheOneOthersUseIsRefused()
{
    QFETCH(QByteArray, bytes);
    auto first = OpenStore(m_Path);
    QVERIFY(first->SetParameter(PARAM_METRIC, true, true));
    QVERIFY(QFile::rename(m_Path, m_Path + QLatin1String(".away")));
    if (bytes == "copy")
        bytes = FileBytes(m_Path + Good);
    if (!bytes.isEmpty())
        SetFileBytes(m_Path, bytes);
    const QStringList names = NamesBeside(m_Path);
    TStandardErrorCapture standardError;
    QString error;
    QVERIFY(!TSqliteStore::Open(m_Path, &error));
    QCOMPARE(error, m_Path + QLatin1String(" cannot be used: it is not the file that another program has open"));
    QCOMPARE(NamesBeside(m_Path), names);
    QCOMPARE(FileBytes(m_Path), bytes);

    // The store that has the other file open does not copy it either.
    const QByteArray good = FileBytes(m_Path + Good);
    first.reset();
    QCOMPARE(FileBytes(m_Path + Good), good);
    QCOMPARE(QFile::exists(m_Path), !bytes.isEmpty());
    QCOMPARE(FileBytes(m_Path), bytes);
    QCOMPARE(standardError.Lines(), QStringList());
}

void StoreHasSeveralUsers::aStoreThatClosesLeavesTheOthersTheirLocks()
{
    // A process that closes a file loses all its locks on it. The next program would then remove the log.
    auto stays = OpenStore(m_Path);
    QVERIFY(stays->SetParameter(PARAM_METRIC, true, true));
    QVERIFY(OpenStore(m_Path) != nullptr);
    TChild child({OpenTellAndClose, m_Path});
    QCOMPARE(child.NextNumber(), 1);
    QCOMPARE(child.NextNumber(), -1); // the child has closed the store
    QVERIFY(QFile::exists(m_Path + Log));
    QVERIFY(stays->SetParameter(PARAM_METRIC, false, true));
    stays.reset();
    QCOMPARE(StoredValues(m_Path), (QMap<int, QVariant>{{PARAM_METRIC, false}}));
}

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1) == OpenAndWait)
        return Stay(arguments.value(2));
    if (arguments.value(1) == OpenTellAndClose)
        return Leave(arguments.value(2));
    StoreHasSeveralUsers test;
    return QTest::qExec(&test, argc, argv);
}
#include "StoreHasSeveralUsers.moc"
