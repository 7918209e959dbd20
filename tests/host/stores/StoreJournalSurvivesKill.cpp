#include "StoreTestSupport.h"
#include "TestSeed.h"
#include "stores/ChangeJournal.h"
#include "stores/TPersistenceHold.h"

#include <QCoreApplication>
#include <QRandomGenerator>
#include <QtTest>

// A child, which runs this program, changes parameters until it is killed.
namespace {

const int ParameterCount = 5;
const int MostEntries = 10000; // as ChangeJournal.h says
const QLatin1String ChangeForEver("change-for-ever");

int RunChild(const QString& path)
{
    const auto store = OpenStore(path);
    if (!store)
        return 1;
    for (int round = 1;; ++round) {
        TPersistenceHold hold(*store);
        for (int number = 0; number <= round % ParameterCount; ++number)
            store->SetParameter(Param(number), QString::fromLatin1("round %1").arg(round), true);
        if (!hold.Release())
            return 1;
        TChild::Tell(round);
    }
}

// The bytes of a store whose journal is full. The parameters are removed again, so that it is read quickly.
QByteArray FullJournal()
{
    const auto folder = MakeFolder();
    const QString path = folder->filePath(QLatin1String("settings.db"));
    {
        const auto store = OpenStore(path);
        for (const bool isSet : {true, false}) {
            const TPersistenceHold hold(*store);
            for (int number = 0; number < MostEntries / 2; ++number)
                store->SetParameter(Param(1000 + number), isSet ? QVariant(number) : QVariant(), true);
        }
    }
    return FileBytes(path);
}

} // namespace

class StoreJournalSurvivesKill : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { m_FullJournal = FullJournal(); }

    void journalAndParametersAgreeWheneverTheKillComes_data();
    void journalAndParametersAgreeWheneverTheKillComes();

private:
    QByteArray m_FullJournal;
};

void StoreJournalSurvivesKill::journalAndParametersAgreeWheneverTheKillComes_data()
{
    QTest::addColumn<bool>("isFull");
    QTest::addColumn<int>("told");
    QTest::addColumn<int>("spins");
    QRandomGenerator random(TestSeed());
    for (int point = 0; point < 30; ++point) // a full journal takes long to read
        QTest::addRow("point %d", point) << (point % 6 == 0) << random.bounded(1, 40) << random.bounded(300000);
}

void StoreJournalSurvivesKill::journalAndParametersAgreeWheneverTheKillComes()
{
    QFETCH(bool, isFull);
    QFETCH(int, told);
    QFETCH(int, spins);
    const auto folder = MakeFolder();
    const QString path = folder->filePath(QLatin1String("settings.db"));
    if (isFull)
        SetFileBytes(path, m_FullJournal);
    TChild child({ChangeForEver, path});
    int last = 0;
    for (int number = child.NextNumber(); number > 0; number = child.NextNumber()) {
        last = number;
        if (number != told)
            continue;
        for (volatile int spin = 0; spin < spins;)
            spin = spin + 1;
        child.Kill();
    }
    QVERIFY(child.WasKilled());

    TStandardErrorCapture standardError;
    const auto store = OpenStore(path);
    ChangeJournal::tagJournal journal;
    QString error;
    QVERIFY2(ChangeJournal::Read(*store, {std::nullopt, 2 * MostEntries}, &journal, &error), qPrintable(error));
    QCOMPARE(static_cast<int>(journal.damaged.size()), 0);
    QVERIFY(!journal.entries.isEmpty());
    QCOMPARE(journal.entries.size() == MostEntries, isFull);
    // Each round that was told is in the journal, and the numbers have no gap.
    qint64 expected = isFull ? MostEntries : 0;
    for (int round = 1; round <= last; ++round)
        expected += round % ParameterCount + 1;
    const qint64 newest = journal.entries.first().number;
    QVERIFY(newest == expected || newest == expected + (last + 1) % ParameterCount + 1);
    QMap<int, QVariant> newestValues;
    for (int index = 0; index < journal.entries.size(); ++index) {
        const ChangeJournal::tagEntry& entry = journal.entries.at(index);
        QCOMPARE(entry.number, newest - index);
        if (newestValues.contains(entry.parameter))
            continue;
        newestValues.insert(entry.parameter, entry.newValue);
        QCOMPARE(store->GetParameter(Param(entry.parameter)), entry.newValue);
    }
    QMap<int, QVariant> values;
    for (auto value = newestValues.cbegin(); value != newestValues.cend(); ++value)
        if (value->isValid())
            values.insert(value.key(), *value);
    QCOMPARE(values, store->Values());
    QCOMPARE(standardError.Lines(), QStringList());
}

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1) == ChangeForEver)
        return RunChild(arguments.at(2));
    StoreJournalSurvivesKill test;
    return QTest::qExec(&test, argc, argv);
}
#include "StoreJournalSurvivesKill.moc"
