#include "StoreTestSupport.h"
#include "TestSeed.h"
#include "stores/TPersistenceHold.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QElapsedTimer>
#include <QRandomGenerator>
#include <QThread>
#include <QtTest>

#include <vector>

// Several programs change one store at the same time. The changes of each follow from its seed, so the test knows the
// last ones. The children run this program.
namespace {

const int ProgramCount = 3;
const int ChangeCount = 1500; // made by each program
const int KillPoints = 15;

// Parameters that every program changes, parameters of each program alone, and one that says that the program is done.
const int SharedCount = 20;
const int OwnCount = 10;
const int FirstShared = 100;
const int FirstOwn = 1000;
const int FirstDone = 9000;

const QLatin1String ChangeAtRandom("change-at-random");
const QLatin1String ChangeForEver("change-for-ever");
const QLatin1String ComeAndGoForEver("come-and-go-for-ever");

// Parameters that are set together.
using TChange = QMap<int, QVariant>;

// The changes of a program. They are the same for the same number and seed.
class TChanges
{
public:
    TChanges(int program, quint32 seed) : m_Program(program), m_Count(0), m_Random(seed + quint32(program)) {}

    TChange Next()
    {
        TChange change;
        const int size = m_Random.bounded(10) == 0 ? 1 + m_Random.bounded(5) : 1;
        for (int part = 0; part < size; ++part)
            change.insert(NextParameter(), NextValue());
        return change;
    }

private:
    int NextParameter()
    {
        return m_Random.bounded(2) == 0 ? FirstShared + m_Random.bounded(SharedCount)
                                        : FirstOwn * (m_Program + 1) + m_Random.bounded(OwnCount);
    }

    // All values differ, in all programs. Some changes remove the parameter.
    QVariant NextValue()
    {
        ++m_Count;
        return m_Random.bounded(8) == 0 ? QVariant()
                                        : QVariant(QString::fromLatin1("%1 of %2").arg(m_Count).arg(m_Program));
    }

    int m_Program;
    int m_Count;
    QRandomGenerator m_Random;
};

bool Set(TSqliteStore& store, const TChange& change)
{
    bool isStored = true;
    if (change.size() == 1) {
        isStored = store.SetParameter(Param(change.firstKey()), change.first(), true);
    } else {
        TPersistenceHold hold(store);
        for (auto part = change.constBegin(); part != change.constEnd(); ++part)
            store.SetParameter(Param(part.key()), part.value(), true);
        isStored = hold.Release();
    }
    return isStored;
}

bool AreAllDone(TSqliteStore& store)
{
    for (int program = 0; program < ProgramCount; ++program)
        if (!store.HasParameter(Param(FirstDone + program)))
            return false;
    return true;
}

int Fingerprint(const QMap<int, QVariant>& values)
{
    QByteArray text;
    for (auto value = values.constBegin(); value != values.constEnd(); ++value)
        text += QByteArray::number(value.key()) + ' ' + value->toString().toUtf8() + '\n';
    const int digits = 7; // of a number that is not negative
    return QCryptographicHash::hash(text, QCryptographicHash::Sha256).toHex().left(digits).toInt(nullptr, 16);
}

// Makes its changes and waits until the other programs have made theirs. Reports three numbers: 1 when it has begun,
// the number of changes that failed, and a fingerprint of its memory, or -1 when it has not seen the changes of the
// others.
int Change(TSqliteStore& store, int program, quint32 seed)
{
    TChild::Tell(1);
    TChanges changes(program, seed);
    int failures = 0;
    for (int count = 0; count < ChangeCount; ++count)
        failures += Set(store, changes.Next()) ? 0 : 1;
    failures += store.SetParameter(Param(FirstDone + program), true, true) ? 0 : 1;
    TChild::Tell(failures);

    QElapsedTimer timer;
    timer.start();
    while (!AreAllDone(store) && timer.elapsed() < SoonMilliseconds)
        QThread::msleep(1);
    TChild::Tell(AreAllDone(store) ? Fingerprint(store.Values()) : -1);
    return 0;
}

// Reports the number of each change that is stored.
int ChangeAndTell(TSqliteStore& store, int program, quint32 seed)
{
    TChanges changes(program, seed);
    for (int count = 1; Set(store, changes.Next()); ++count)
        TChild::Tell(count);
    return 1;
}

// Opens, changes and closes the store in a loop. Reports the number of each round.
int ComeAndGo(const QString& path, int program)
{
    for (int count = 1;; ++count) {
        const auto store = OpenStore(path);
        if (!store || !store->SetParameter(Param(FirstOwn * (program + 1)), count, true))
            return 1;
        TChild::Tell(count);
    }
}

int RunChild(const QStringList& arguments)
{
    const int program = arguments.at(3).toInt();
    const quint32 seed = arguments.at(4).toUInt();
    if (arguments.at(1) == ComeAndGoForEver)
        return ComeAndGo(arguments.at(2), program);
    const auto store = OpenStore(arguments.at(2));
    if (!store)
        return 1;
    return arguments.at(1) == ChangeAtRandom ? Change(*store, program, seed) : ChangeAndTell(*store, program, seed);
}

// The last value of each parameter that a program has changed.
TChange LastOf(int program, quint32 seed, int count)
{
    TChanges changes(program, seed);
    TChange last;
    for (int change = 0; change < count; ++change) {
        const TChange next = changes.Next();
        for (auto part = next.constBegin(); part != next.constEnd(); ++part)
            last.insert(part.key(), part.value());
    }
    return last;
}

} // namespace

class StoreAmongPrograms : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void randomChangesEndWithTheSameValuesEverywhere();
    void aKilledProgramLosesNothingThatItHasTold_data() { AddRandomPoints(); }
    void aKilledProgramLosesNothingThatItHasTold();
    void aProgramKilledAsItComesOrGoesHindersNobody_data() { AddRandomPoints(); }
    void aProgramKilledAsItComesOrGoesHindersNobody();

private:
    static void AddRandomPoints();
    std::unique_ptr<TChild> Child(const QString& task, int program, quint32 seed);

    std::unique_ptr<QTemporaryDir> m_Folder;
    QString m_Path;
};

void StoreAmongPrograms::init()
{
    m_Folder = MakeFolder();
    m_Path = m_Folder->filePath(QLatin1String("settings.db"));
}

std::unique_ptr<TChild> StoreAmongPrograms::Child(const QString& task, int program, quint32 seed)
{
    return std::make_unique<TChild>(QStringList{task, m_Path, QString::number(program), QString::number(seed)});
}

void StoreAmongPrograms::randomChangesEndWithTheSameValuesEverywhere()
{
    const quint32 seed = TestSeed();
    std::vector<std::unique_ptr<TChild>> children;
    for (int program = 0; program < ProgramCount; ++program)
        children.push_back(Child(ChangeAtRandom, program, seed));
    std::vector<int> fingerprints;
    for (const auto& child : children) {
        QCOMPARE(child->NextNumber(), 1);
        QCOMPARE(child->NextNumber(), 0);
        fingerprints.push_back(child->NextNumber());
    }
    for (const auto& child : children)
        QCOMPARE(child->NextNumber(), -1); // the child has closed the store

    const QMap<int, QVariant> values = StoredValues(m_Path);
    for (const int fingerprint : fingerprints)
        QCOMPARE(fingerprint, Fingerprint(values));

    QMap<int, QVector<QVariant>> candidates; // for each parameter the last value of each writer
    for (int program = 0; program < ProgramCount; ++program) {
        const TChange last = LastOf(program, seed, ChangeCount);
        for (auto part = last.constBegin(); part != last.constEnd(); ++part)
            candidates[part.key()] += part.value();
    }
    QVERIFY(candidates.size() > SharedCount + OwnCount);
    for (auto candidate = candidates.constBegin(); candidate != candidates.constEnd(); ++candidate) {
        const int id = candidate.key();
        QVERIFY2(candidate->contains(values.value(id)),
                 qPrintable(QString::fromLatin1("parameter %1: %2").arg(id).arg(values.value(id).toString())));
        QVERIFY(id < FirstOwn || candidate->size() == 1);
    }
    for (auto value = values.constBegin(); value != values.constEnd(); ++value)
        QVERIFY(value.key() >= FirstDone || candidates.contains(value.key()));
}

void StoreAmongPrograms::AddRandomPoints()
{
    QTest::addColumn<int>("told");
    QTest::addColumn<int>("spins");
    QTest::addColumn<quint32>("seed");
    QRandomGenerator random(TestSeed());
    for (int point = 0; point < KillPoints; ++point)
        QTest::addRow("point %d", point) << random.bounded(1, 60) << random.bounded(300000) << random.generate();
}

void StoreAmongPrograms::aKilledProgramLosesNothingThatItHasTold()
{
    QFETCH(int, told);
    QFETCH(int, spins);
    QFETCH(quint32, seed);
    const int mine = 1;
    auto store = OpenStore(m_Path);
    TStandardErrorCapture standardError;
    const auto child = Child(ChangeForEver, 0, seed);
    TChanges changes(mine, seed);
    TChange expected;
    int last = 0;
    for (int number = child->NextNumber(); number > 0; number = child->NextNumber()) {
        last = number;
        if (number < told) {
            // Both change the same parameters at the same time, but not the child's own.
            const TChange change = changes.Next();
            QVERIFY(Set(*store, change));
            for (auto part = change.constBegin(); part != change.constEnd(); ++part)
                if (part.key() >= FirstOwn)
                    expected.insert(part.key(), part.value());
        } else if (number == told) {
            for (volatile int spin = 0; spin < spins;)
                spin = spin + 1;
            child->Kill();
        }
    }
    QVERIFY(child->WasKilled());
    QVERIFY(store->SetParameter(PARAM_METRIC, true, true));

    // The change that was in progress at the kill is stored completely or not at all.
    const TChange without = LastOf(0, seed, last);
    const TChange with = LastOf(0, seed, last + 1);
    const auto isThere = [&store](const TChange& change) {
        for (auto part = change.constBegin(); part != change.constEnd(); ++part)
            if (part.key() >= FirstOwn && store->GetParameter(Param(part.key())) != part.value())
                return false;
        return true;
    };
    QVERIFY(isThere(without) || isThere(with));
    QVERIFY(isThere(expected));

    const QMap<int, QVariant> values = store->Values();
    store.reset();
    QCOMPARE(StoredValues(m_Path), values);
    QCOMPARE(StoredValues(m_Path + QLatin1String(".good")), values);
    QCOMPARE(standardError.Lines(), QStringList());
}

void StoreAmongPrograms::aProgramKilledAsItComesOrGoesHindersNobody()
{
    QFETCH(int, told);
    QFETCH(int, spins);
    TStandardErrorCapture standardError;
    // One program is killed, the others continue.
    std::vector<std::unique_ptr<TChild>> children;
    for (int program = 0; program < ProgramCount; ++program)
        children.push_back(Child(ComeAndGoForEver, program, 0));
    std::vector<int> last(ProgramCount, 0);
    while (last.front() < told) {
        last.front() = children.front()->NextNumber();
        QVERIFY(last.front() > 0);
    }
    for (volatile int spin = 0; spin < spins;)
        spin = spin + 1;
    children.front()->Kill();
    for (int program = 0; program < ProgramCount; ++program) {
        const size_t index = static_cast<size_t>(program);
        for (int more = 0; program > 0 && more < 10; ++more) {
            last[index] = children[index]->NextNumber();
            QVERIFY(last[index] > 0);
        }
        children[index]->Kill();
        for (int number = children[index]->NextNumber(); number > 0; number = children[index]->NextNumber())
            last[index] = number;
        QVERIFY(children[index]->WasKilled());
    }

    const QMap<int, QVariant> values = StoredValues(m_Path);
    for (int program = 0; program < ProgramCount; ++program) {
        const int beyond = values.value(FirstOwn * (program + 1)).toInt() - last[static_cast<size_t>(program)];
        QVERIFY(beyond == 0 || beyond == 1); // stored, but killed before the report
    }
    QCOMPARE(NamesBeside(m_Path), (QStringList{QLatin1String("settings.db"), QLatin1String("settings.db.copies"),
                                               QLatin1String("settings.db.good")}));
    QCOMPARE(standardError.Lines(), QStringList());
}

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() == 5)
        return RunChild(arguments);
    StoreAmongPrograms test;
    return QTest::qExec(&test, argc, argv);
}
#include "StoreAmongPrograms.moc"
