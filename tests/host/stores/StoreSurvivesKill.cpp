#include "StoreTestSupport.h"
#include "TestSeed.h"
#include "stores/TPersistenceHold.h"

#include <QCoreApplication>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QtTest>

// The children run this program. The first argument is what a child does, the second is the file of the store.
namespace {

const int ParameterCount = 5;

const QLatin1String KillAfterWrites("kill-after-writes");
const QLatin1String WriteForEver("write-for-ever");
const QLatin1String KillWithinHold("kill-within-hold");
const QLatin1String KillAfterRelease("kill-after-release");
const QLatin1String HoldForEver("hold-for-ever");

QVariant ValueOfRound(int round) { return QString::fromLatin1("round %1").arg(round); }

// Writes the rounds 1, 2, 3... each to one of the parameters, and is killed after the given number of rounds.
void WriteRounds(TSqliteStore& store, int count)
{
    for (int round = 1; round <= count; ++round)
        if (!store.SetParameter(Param(round % ParameterCount), ValueOfRound(round), true))
            return;
    TChild::KillMyself();
}

void WriteAndTell(TSqliteStore& store)
{
    for (int round = 1; store.SetParameter(Param(round % ParameterCount), ValueOfRound(round), true); ++round)
        TChild::Tell(round);
}

void ChangeAll(TSqliteStore& store, int round)
{
    for (int id = 0; id < ParameterCount; ++id)
        store.SetParameter(Param(id), ValueOfRound(round), true);
}

void KillHeld(TSqliteStore& store)
{
    store.HoldPersistence();
    ChangeAll(store, 2);
    TChild::KillMyself();
}

void KillReleased(TSqliteStore& store)
{
    store.HoldPersistence();
    ChangeAll(store, 2);
    if (store.ReleasePersistence())
        TChild::KillMyself();
}

void HoldAndTell(TSqliteStore& store)
{
    for (int round = 1;; ++round) {
        TPersistenceHold hold(store);
        ChangeAll(store, round);
        if (!hold.Release())
            return;
        TChild::Tell(round);
    }
}

int RunChild(const QStringList& arguments)
{
    const auto store = OpenStore(arguments.at(2));
    const QString& task = arguments.at(1);
    if (task == KillAfterWrites)
        WriteRounds(*store, arguments.at(3).toInt());
    else if (task == WriteForEver)
        WriteAndTell(*store);
    else if (task == KillWithinHold)
        KillHeld(*store);
    else if (task == KillAfterRelease)
        KillReleased(*store);
    else if (task == HoldForEver)
        HoldAndTell(*store);
    return 1; // not reached: every child is killed
}

// The values of the parameters after a number of rounds.
QMap<int, QVariant> ValuesAfter(int rounds)
{
    QMap<int, QVariant> values;
    for (int round = 1; round <= rounds; ++round)
        values[round % ParameterCount] = ValueOfRound(round);
    return values;
}

QMap<int, QVariant> AllOfRound(int round)
{
    QMap<int, QVariant> values;
    for (int id = 0; id < ParameterCount; ++id)
        values[id] = ValueOfRound(round);
    return values;
}

// Kills a child some work after it has reported @p number. Returns the last number it has reported.
int KillSoonAfter(TChild& child, int told, int spins)
{
    int last = 0;
    for (int number = child.NextNumber(); number > 0; number = child.NextNumber()) {
        last = number;
        if (number != told)
            continue;
        for (volatile int spin = 0; spin < spins;)
            spin = spin + 1;
        child.Kill();
    }
    return last;
}

} // namespace

class StoreSurvivesKill : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void aReturnedWriteIsThere_data();
    void aReturnedWriteIsThere();
    void everyToldWriteIsThereWheneverTheKillComes_data() { AddRandomPoints(); }
    void everyToldWriteIsThereWheneverTheKillComes();
    void aKillWithinAHoldChangesNothing();
    void aKillAfterTheReleaseLosesNothing();
    void aReleaseIsAllOrNothingWheneverTheKillComes_data() { AddRandomPoints(); }
    void aReleaseIsAllOrNothingWheneverTheKillComes();

private:
    static void AddRandomPoints();

    std::unique_ptr<QTemporaryDir> m_Folder;
    QString m_Path;
};

void StoreSurvivesKill::init()
{
    m_Folder = std::make_unique<QTemporaryDir>();
    m_Path = m_Folder->filePath(QLatin1String("settings.db"));
}

void StoreSurvivesKill::AddRandomPoints()
{
    QTest::addColumn<int>("told");
    QTest::addColumn<int>("spins");
    QRandomGenerator random(TestSeed());
    // The kill comes after a random number of writes and some random work, so at any point of the next writes.
    for (int point = 0; point < 20; ++point)
        QTest::addRow("point %d", point) << random.bounded(1, 40) << random.bounded(300000);
}

void StoreSurvivesKill::aReturnedWriteIsThere_data()
{
    QTest::addColumn<int>("writes");
    for (int writes = 1; writes <= 20; ++writes)
        QTest::addRow("%d", writes) << writes;
}

void StoreSurvivesKill::aReturnedWriteIsThere()
{
    QFETCH(int, writes);
    TChild child({KillAfterWrites, m_Path, QString::number(writes)});
    QVERIFY(child.WasKilled());
    TStandardErrorCapture standardError;
    QCOMPARE(StoredValues(m_Path), ValuesAfter(writes));
    QCOMPARE(standardError.Lines(), QStringList());
}

void StoreSurvivesKill::everyToldWriteIsThereWheneverTheKillComes()
{
    QFETCH(int, told);
    QFETCH(int, spins);
    TChild child({WriteForEver, m_Path});
    const int last = KillSoonAfter(child, told, spins);
    QVERIFY(child.WasKilled());

    TStandardErrorCapture standardError;
    const QMap<int, QVariant> values = StoredValues(m_Path);
    // The write that was in progress at the kill is stored or not.
    QVERIFY(values == ValuesAfter(last) || values == ValuesAfter(last + 1));
    QCOMPARE(standardError.Lines(), QStringList());
}

void StoreSurvivesKill::aKillWithinAHoldChangesNothing()
{
    {
        const auto store = OpenStore(m_Path);
        ChangeAll(*store, 1);
    }
    TChild child({KillWithinHold, m_Path});
    QVERIFY(child.WasKilled());
    QCOMPARE(StoredValues(m_Path), AllOfRound(1));
}

void StoreSurvivesKill::aKillAfterTheReleaseLosesNothing()
{
    TChild child({KillAfterRelease, m_Path});
    QVERIFY(child.WasKilled());
    QCOMPARE(StoredValues(m_Path), AllOfRound(2));
}

void StoreSurvivesKill::aReleaseIsAllOrNothingWheneverTheKillComes()
{
    QFETCH(int, told);
    QFETCH(int, spins);
    TChild child({HoldForEver, m_Path});
    const int last = KillSoonAfter(child, told, spins);
    QVERIFY(child.WasKilled());

    const QMap<int, QVariant> values = StoredValues(m_Path);
    QVERIFY(values == AllOfRound(last) || values == AllOfRound(last + 1));
}

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() > 2 && arguments.at(2).endsWith(QLatin1String(".db")))
        return RunChild(arguments);
    StoreSurvivesKill test;
    return QTest::qExec(&test, argc, argv);
}
#include "StoreSurvivesKill.moc"
