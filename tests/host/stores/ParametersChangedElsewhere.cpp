#include "TRecordingStore.h"
#include "stores/TPersistenceHold.h"

#include <QElapsedTimer>
#include <QtTest>

#include <atomic>
#include <functional>
#include <thread>
#include <vector>

Q_DECLARE_METATYPE(std::function<void(TRecordingStore&)>)

/// What other programs change, damage or make unreadable on the disk.
class ParametersChangedElsewhere : public QObject
{
    Q_OBJECT

private slots:
    void memoryFollowsWhatOthersChange_data();
    void memoryFollowsWhatOthersChange();
    void aValueOnItsWayToTheDiskIsLaterThanTheirs();
    void aWriteThatOthersMadeNecessaryIsDone();
    void aWriteThatOthersHaveDoneIsNotDoneAgain();
    void onlyWhatChangedIsWrittenOverTheirs();
    void aHoldTakesNothingOfOthers();
    void whatAHoldPutsBackDoesNotUndoOthersChanges();
    void whatAHoldChangesIsLaterThanTheirs();
    void aDamagedValueStaysInMemoryAndTheNextWriteRepairsIt();
    void theLastChanceRepairsADamagedValue();
    void aDamagedValueCanBeSetAgain_data();
    void aDamagedValueCanBeSetAgain();
    void aDamagedValueThatOthersSetOrRemoveIsTheirs_data();
    void aDamagedValueThatOthersSetOrRemoveIsTheirs();
    void aRepairThatFailsIsTriedAgain();
    void aDiskThatCannotBeReadIsNotWritten();
    void thoseWhoWaitForADiskThatCannotBeReadWaitTogether();
    void theRevisionGrowsWithEveryChange_data();
    void theRevisionGrowsWithEveryChange();

    void aParameterThatOthersMakeUnreadableIsAbsent();
    void anUnreadableParameterThatOthersSetIsThere();
    void anUnreadableParameterStaysUntilItIsSet();
    void anUnreadableParameterCanBeRemoved();
};

void ParametersChangedElsewhere::memoryFollowsWhatOthersChange_data()
{
    QTest::addColumn<TChanges>("changes");
    QTest::addColumn<TChanges>("expected");
    const TChanges before{{PARAM_AREA_UNIT, 0}, {PARAM_CLIENT, QLatin1String("mine alone")}};
    const auto row = [&before](const char* name, const TChanges& changes, const TChanges& differences) {
        TChanges expected = before;
        Apply(differences, &expected);
        QTest::newRow(name) << changes << expected;
    };
    const QVariant none;
    row("nothing", {}, {});
    row("a new one", {{PARAM_METRIC, true}}, {{PARAM_METRIC, true}});
    row("another value", {{PARAM_AREA_UNIT, 1}}, {{PARAM_AREA_UNIT, 1}});
    row("another type", {{PARAM_AREA_UNIT, false}}, {{PARAM_AREA_UNIT, false}});
    row("a removal", {{PARAM_AREA_UNIT, none}}, {{PARAM_AREA_UNIT, none}});
    row("what memory covers", {{PARAM_CLIENT, QLatin1String("theirs")}}, {{PARAM_CLIENT, QLatin1String("theirs")}});
    row("what memory covers, removed", {{PARAM_CLIENT, none}}, {{PARAM_CLIENT, none}});
    row("what memory covers, the same again", {{PARAM_CLIENT, QLatin1String("stored")}}, {});
    row("several", {{PARAM_AREA_UNIT, none}, {PARAM_METRIC, true}, {PARAM_FARM, 1}},
        {{PARAM_AREA_UNIT, none}, {PARAM_METRIC, true}, {PARAM_FARM, 1}});
}

void ParametersChangedElsewhere::memoryFollowsWhatOthersChange()
{
    QFETCH(TChanges, changes);
    QFETCH(TChanges, expected);
    TRecordingStore store;
    store.SetParameter(PARAM_AREA_UNIT, 0, true);
    store.SetParameter(PARAM_CLIENT, QLatin1String("stored"), true);
    store.SetParameter(PARAM_CLIENT, QLatin1String("mine alone"), false);
    store.ChangeElsewhere(changes);
    store.LookAtDisk();
    QCOMPARE(store.Values(), expected);
    QCOMPARE(store.transactions.size(), 2);
}

void ParametersChangedElsewhere::aValueOnItsWayToTheDiskIsLaterThanTheirs()
{
    TRecordingStore store;
    store.accepts = Refuse;
    QVERIFY(!store.SetParameter(PARAM_AREA_UNIT, 1, true));
    store.ChangeElsewhere({{PARAM_AREA_UNIT, 2}});
    store.LookAtDisk();
    QCOMPARE(store.GetParameter(PARAM_AREA_UNIT), QVariant(1));

    store.accepts = Accept;
    QVERIFY(store.SetParameter(PARAM_METRIC, true, true));
    QCOMPARE(store.disk, store.Values());
    QCOMPARE(store.disk[PARAM_AREA_UNIT], QVariant(1));
}

void ParametersChangedElsewhere::aWriteThatOthersMadeNecessaryIsDone()
{
    TRecordingStore store;
    store.SetParameter(PARAM_AREA_UNIT, 1, true);
    store.ChangeElsewhere({{PARAM_AREA_UNIT, 2}});
    QVERIFY(store.SetParameter(PARAM_AREA_UNIT, 1, true));
    QCOMPARE(store.disk, (TChanges{{PARAM_AREA_UNIT, 1}}));
}

void ParametersChangedElsewhere::aWriteThatOthersHaveDoneIsNotDoneAgain()
{
    TRecordingStore store;
    store.ChangeElsewhere({{PARAM_AREA_UNIT, 1}});
    QVERIFY(store.SetParameter(PARAM_AREA_UNIT, 1, true));
    QVERIFY(store.transactions.isEmpty());
}

void ParametersChangedElsewhere::onlyWhatChangedIsWrittenOverTheirs()
{
    TRecordingStore store;
    store.SetParameter(PARAM_AREA_UNIT, 1, true);
    store.SetParameter(PARAM_METRIC, true, true);
    store.ChangeElsewhere({{PARAM_AREA_UNIT, 2}});
    QVERIFY(store.SetParameter(PARAM_METRIC, false, true));
    QCOMPARE(store.transactions.last(), (TChanges{{PARAM_METRIC, false}}));
    QCOMPARE(store.Values(), (TChanges{{PARAM_AREA_UNIT, 2}, {PARAM_METRIC, false}}));
}

void ParametersChangedElsewhere::aHoldTakesNothingOfOthers()
{
    TRecordingStore store;
    store.SetParameter(PARAM_AREA_UNIT, 1, true);
    TPersistenceHold hold(store);
    store.ChangeElsewhere({{PARAM_AREA_UNIT, 2}});
    store.LookAtDisk();
    QCOMPARE(store.GetParameter(PARAM_AREA_UNIT), QVariant(1));
    QVERIFY(hold.Release());
    QCOMPARE(store.GetParameter(PARAM_AREA_UNIT), QVariant(2));
}

void ParametersChangedElsewhere::whatAHoldPutsBackDoesNotUndoOthersChanges()
{
    TRecordingStore store;
    store.SetParameter(PARAM_ACTIVE_JOB, QLatin1String("north"), true);
    store.SetParameter(PARAM_FARM, QLatin1String("Hill"), true);
    store.transactions.clear();
    {
        const TPersistenceHold hold(store);
        store.SetParameter(PARAM_ACTIVE_JOB, QLatin1String("built in"), true);
        store.SetParameter(PARAM_FARM, QVariant(), true);
        store.ChangeElsewhere({{PARAM_ACTIVE_JOB, QLatin1String("south")}, {PARAM_FARM, QLatin1String("Dale")}});
        store.SetParameter(PARAM_ACTIVE_JOB, QLatin1String("north"), true);
        store.SetParameter(PARAM_FARM, QLatin1String("Hill"), true);
    }
    QVERIFY(store.transactions.isEmpty());
    QCOMPARE(store.Values(),
             (TChanges{{PARAM_ACTIVE_JOB, QLatin1String("south")}, {PARAM_FARM, QLatin1String("Dale")}}));
}

void ParametersChangedElsewhere::whatAHoldChangesIsLaterThanTheirs()
{
    TRecordingStore store;
    store.SetParameter(PARAM_AREA_UNIT, 0, true);
    {
        const TPersistenceHold hold(store);
        store.SetParameter(PARAM_AREA_UNIT, 1, true);
        store.SetParameter(PARAM_METRIC, true, true);
        store.ChangeElsewhere({{PARAM_AREA_UNIT, 2}, {PARAM_METRIC, true}, {PARAM_FARM, QLatin1String("Hill")}});
    }
    QCOMPARE(store.transactions.last(), (TChanges{{PARAM_AREA_UNIT, 1}})); // the other value is on the disk already
    QCOMPARE(store.Values(), store.disk);
    QCOMPARE(store.disk, (TChanges{{PARAM_AREA_UNIT, 1}, {PARAM_METRIC, true}, {PARAM_FARM, QLatin1String("Hill")}}));
}

void ParametersChangedElsewhere::aDamagedValueStaysInMemoryAndTheNextWriteRepairsIt()
{
    TRecordingStore store;
    store.SetParameter(PARAM_CLIENT, QLatin1String("Smith"), true);
    store.SetParameter(PARAM_FARM, QLatin1String("Hill"), true);
    store.SetParameter(PARAM_FARM, QLatin1String("Dale"), false); // differs from the value on the disk
    store.Damage(PARAM_CLIENT);
    store.Damage(PARAM_FARM);
    store.LookAtDisk();
    QCOMPARE(store.Values(), (TChanges{{PARAM_CLIENT, QLatin1String("Smith")}, {PARAM_FARM, QLatin1String("Dale")}}));
    QVERIFY(store.disk.isEmpty());
    QVERIFY(store.SetParameter(PARAM_METRIC, true, true));
    QCOMPARE(
        store.disk,
        (TChanges{{PARAM_CLIENT, QLatin1String("Smith")}, {PARAM_FARM, QLatin1String("Hill")}, {PARAM_METRIC, true}}));
    store.transactions.clear();
    QVERIFY(store.PersistOutstanding());
    QVERIFY(store.transactions.isEmpty());
}

void ParametersChangedElsewhere::theLastChanceRepairsADamagedValue()
{
    TRecordingStore store;
    store.SetParameter(PARAM_CLIENT, QLatin1String("Smith"), true);
    store.Damage(PARAM_CLIENT);
    store.LookAtDisk();
    QVERIFY(store.PersistOutstanding());
    QCOMPARE(store.disk, (TChanges{{PARAM_CLIENT, QLatin1String("Smith")}}));
}

void ParametersChangedElsewhere::aDamagedValueCanBeSetAgain_data()
{
    QTest::addColumn<bool>("isKnown");
    QTest::newRow("read before") << true;
    QTest::newRow("never read") << false;
}

void ParametersChangedElsewhere::aDamagedValueCanBeSetAgain()
{
    QFETCH(bool, isKnown);
    TRecordingStore store;
    if (isKnown)
        store.SetParameter(PARAM_CLIENT, QLatin1String("Smith"), true);
    store.Damage(PARAM_CLIENT);
    store.LookAtDisk();
    QCOMPARE(store.HasParameter(PARAM_CLIENT), isKnown);
    QVERIFY(store.SetParameter(PARAM_CLIENT, QLatin1String("Smith"), true));
    QCOMPARE(store.disk, (TChanges{{PARAM_CLIENT, QLatin1String("Smith")}}));
}

void ParametersChangedElsewhere::aDamagedValueThatOthersSetOrRemoveIsTheirs_data()
{
    QTest::addColumn<QVariant>("theirs");
    QTest::newRow("set") << QVariant(QLatin1String("Jones"));
    QTest::newRow("set to the same") << QVariant(QLatin1String("Smith"));
    QTest::newRow("removed") << QVariant();
}

void ParametersChangedElsewhere::aDamagedValueThatOthersSetOrRemoveIsTheirs()
{
    QFETCH(QVariant, theirs);
    TRecordingStore store;
    store.SetParameter(PARAM_CLIENT, QLatin1String("Smith"), true);
    store.Damage(PARAM_CLIENT);
    store.LookAtDisk();
    store.damaged.clear();
    store.ChangeElsewhere({{PARAM_CLIENT, theirs}});
    store.transactions.clear();
    QVERIFY(store.SetParameter(PARAM_METRIC, true, true));
    QCOMPARE(store.transactions, (QList<TChanges>{{{PARAM_METRIC, true}}}));
    QCOMPARE(store.GetParameter(PARAM_CLIENT), theirs);
    // The content of the disk is known again, so setting the same value writes nothing.
    QVERIFY(store.SetParameter(PARAM_CLIENT, theirs, true));
    QCOMPARE(store.transactions.size(), 1);
}

void ParametersChangedElsewhere::aRepairThatFailsIsTriedAgain()
{
    TRecordingStore store;
    store.SetParameter(PARAM_CLIENT, QLatin1String("Smith"), true);
    store.Damage(PARAM_CLIENT);
    store.accepts = Refuse;
    QVERIFY(!store.SetParameter(PARAM_METRIC, true, true));
    store.accepts = Accept;
    QVERIFY(store.SetParameter(PARAM_METRIC, false, true));
    QCOMPARE(store.disk, (TChanges{{PARAM_CLIENT, QLatin1String("Smith")}, {PARAM_METRIC, false}}));
}

void ParametersChangedElsewhere::aDiskThatCannotBeReadIsNotWritten()
{
    TRecordingStore store;
    store.SetParameter(PARAM_AREA_UNIT, 0, true);
    store.isReadable = false;
    // Not even a value that was on the disk before: another program may have changed it.
    QVERIFY(!store.SetParameter(PARAM_AREA_UNIT, 0, true));
    QVERIFY(!store.SetParameter(PARAM_METRIC, true, true));
    QCOMPARE(store.transactions.size(), 1);
    QCOMPARE(store.GetParameter(PARAM_METRIC), QVariant(true));

    store.isReadable = true;
    QVERIFY(store.SetParameter(PARAM_FARM, QLatin1String("Hill"), true));
    QCOMPARE(store.disk, store.Values());
}

void ParametersChangedElsewhere::thoseWhoWaitForADiskThatCannotBeReadWaitTogether()
{
    const int threadCount = 8;
    TRecordingStore store;
    store.isReadable = false;
    int reads = 0;
    store.whileItIsRead = [&] {
        ++reads;
        QElapsedTimer timer;
        timer.start();
        while (store.Values().size() < threadCount && timer.elapsed() < SoonMilliseconds)
            std::this_thread::yield();
    };
    std::atomic<int> failures{0};
    std::vector<std::thread> threads;
    for (int thread = 0; thread < threadCount; ++thread)
        threads.emplace_back([&, thread] { failures += store.SetParameter(Param(thread), thread, true) ? 0 : 1; });
    for (std::thread& thread : threads)
        thread.join();
    QCOMPARE(failures.load(), threadCount);
    QCOMPARE(reads, 1);

    store.isReadable = true;
    QVERIFY(store.SetParameter(PARAM_METRIC, true, true));
    QCOMPARE(store.disk, store.Values());
}

void ParametersChangedElsewhere::theRevisionGrowsWithEveryChange_data()
{
    using TAction = std::function<void(TRecordingStore&)>;
    QTest::addColumn<TAction>("action");
    QTest::addColumn<bool>("grows");
    const auto row = [](const char* name, bool grows, const TAction& action) {
        QTest::newRow(name) << action << grows;
    };
    row("a value", true, [](TRecordingStore& store) { store.SetParameter(PARAM_METRIC, false, true); });
    row("the same value", false, [](TRecordingStore& store) { store.SetParameter(PARAM_METRIC, true, true); });
    row("in memory alone", true, [](TRecordingStore& store) { store.SetParameter(PARAM_METRIC, false, false); });
    row("a removal", true, [](TRecordingStore& store) { store.SetParameter(PARAM_METRIC, QVariant(), true); });
    row("a removal of nothing", false,
        [](TRecordingStore& store) { store.SetParameter(PARAM_FARM, QVariant(), true); });
    row("while it is held", true, [](TRecordingStore& store) {
        const TPersistenceHold hold(store);
        store.SetParameter(PARAM_METRIC, false, true);
        store.SetParameter(PARAM_METRIC, true, true);
    });
    row("what the disk refuses", true, [](TRecordingStore& store) {
        store.accepts = Refuse;
        store.SetParameter(PARAM_METRIC, false, true);
    });
    row("by others", true, [](TRecordingStore& store) { store.ChangeElsewhere({{PARAM_METRIC, false}}); });
    row("by others to the same", false, [](TRecordingStore& store) { store.ChangeElsewhere({{PARAM_METRIC, true}}); });
    row("a look", false, [](TRecordingStore&) {});
}

void ParametersChangedElsewhere::theRevisionGrowsWithEveryChange()
{
    QFETCH(std::function<void(TRecordingStore&)>, action);
    QFETCH(bool, grows);
    TRecordingStore store;
    store.SetParameter(PARAM_METRIC, true, true);
    const quint64 before = store.Revision();
    action(store);
    store.LookAtDisk();
    QCOMPARE(store.Revision() > before, grows);
    QVERIFY(store.Revision() >= before);
}

void ParametersChangedElsewhere::aParameterThatOthersMakeUnreadableIsAbsent()
{
    TRecordingStore store;
    store.SetParameter(PARAM_FARM, QLatin1String("Hill"), true);
    store.unreadable = {PARAM_FARM, PARAM_FIELD};
    store.ChangeElsewhere({{PARAM_FARM, QVariant()}});
    store.LookAtDisk();
    QVERIFY(store.Values().isEmpty());
    store.transactions.clear();
    QVERIFY(store.SetParameter(PARAM_FARM, QVariant(), true)); // removes the row
    QVERIFY(store.SetParameter(PARAM_FIELD, QVariant(), true));
    QCOMPARE(store.transactions, (QList<TChanges>{{{PARAM_FARM, QVariant()}}, {{PARAM_FIELD, QVariant()}}}));
}

void ParametersChangedElsewhere::anUnreadableParameterThatOthersSetIsThere()
{
    TRecordingStore store;
    store.TakeStored({}, {PARAM_FARM});
    store.ChangeElsewhere({{PARAM_FARM, QLatin1String("Hill")}});
    store.LookAtDisk();
    QCOMPARE(store.GetParameter(PARAM_FARM), QVariant(QLatin1String("Hill")));
    QVERIFY(store.SetParameter(PARAM_FARM, QLatin1String("Hill"), true));
    QVERIFY(store.transactions.isEmpty());
}

void ParametersChangedElsewhere::anUnreadableParameterStaysUntilItIsSet()
{
    TRecordingStore store;
    store.TakeStored({{PARAM_METRIC, true}}, {PARAM_FARM});
    QVERIFY(!store.HasParameter(PARAM_FARM));
    {
        const TPersistenceHold hold(store);
        store.SetParameter(PARAM_METRIC, true, true);
    }
    QVERIFY(store.transactions.isEmpty());
    QVERIFY(store.SetParameter(PARAM_FARM, QLatin1String("Hill"), true));
    QCOMPARE(store.disk, (TChanges{{PARAM_FARM, QLatin1String("Hill")}}));
}

void ParametersChangedElsewhere::anUnreadableParameterCanBeRemoved()
{
    TRecordingStore store;
    store.TakeStored({}, {PARAM_FARM});
    QVERIFY(store.SetParameter(PARAM_FARM, QVariant(), true));
    QCOMPARE(store.transactions, (QList<TChanges>{{{PARAM_FARM, QVariant()}}}));
}

QTEST_GUILESS_MAIN(ParametersChangedElsewhere)
#include "ParametersChangedElsewhere.moc"
