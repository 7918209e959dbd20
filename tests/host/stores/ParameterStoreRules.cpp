#include "StoreTestSupport.h"
#include "diagnostics/DiagnosticTexts.h"
#include "stores/TMemoryStore.h"
#include "stores/TPersistenceHold.h"

#include <QColor>
#include <QElapsedTimer>
#include <QtTest>

#include <atomic>
#include <functional>
#include <limits>
#include <thread>
#include <utility>
#include <vector>

namespace {

using TChanges = QMap<int, QVariant>;

void Apply(const TChanges& changes, TChanges* values)
{
    for (auto change = changes.begin(); change != changes.end(); ++change) {
        values->insert(change.key(), change.value());
        if (!change.value().isValid())
            values->remove(change.key());
    }
}

// A store whose disk can fail and can be changed by other programs. Records the transactions.
class TRecordingStore : public TParameterStore
{
public:
    using TParameterStore::LookAtDisk;
    using TParameterStore::PersistOutstanding;
    using TParameterStore::TakeStored;

    std::function<bool(const TChanges&)> accepts = [](const TChanges&) { return true; };
    QList<TChanges> transactions; ///< including those that failed
    TChanges disk;
    QSet<int> unreadable;
    QSet<int> damaged;
    bool isReadable = true;
    std::function<void()> whileItIsRead = [] {};

    void Damage(int id)
    {
        damaged.insert(id);
        ChangeElsewhere({{id, QVariant()}});
    }

    void ChangeElsewhere(const TChanges& changes)
    {
        Apply(changes, &disk);
        m_IsChanged = true;
    }

protected:
    bool CatchUp() override
    {
        whileItIsRead();
        if (isReadable && m_IsChanged) {
            TakeStored(disk, unreadable, damaged);
            m_IsChanged = false;
        }
        return isReadable;
    }

    bool Persist(const TChanges& changes) override
    {
        transactions.append(changes);
        if (!accepts(changes))
            return false;
        for (const int id : changes.keys())
            damaged.remove(id);
        Apply(changes, &disk);
        return true;
    }

private:
    bool m_IsChanged = false;
};

bool Refuse(const TChanges&) { return false; }
bool Accept(const TChanges&) { return true; }

} // namespace

Q_DECLARE_METATYPE(std::function<void(TRecordingStore&)>)

class ParameterStoreRules : public QObject
{
    Q_OBJECT

private slots:
    void anAbsentParameterReadsAsInvalid();
    void whatIsSetIsReadAndHeld();
    void anInvalidValueRemovesTheParameter();
    void aValueThatIsNotToPersistStaysInMemory();
    void whatIsOnTheDiskAlreadyIsNotWrittenAgain_data();
    void whatIsOnTheDiskAlreadyIsNotWrittenAgain();
    void aValueThatOnlyLooksTheSameIsWritten_data();
    void aValueThatOnlyLooksTheSameIsWritten();

    void memoryTakesWhatTheDiskRefuses();
    void aRefusedValueIsTriedAgainAfterTheNextSuccess();
    void aValueThatCanNeverBeWrittenDoesNotKeepOthersFromTheDisk();
    void afterAFailureTheOldValueIsWrittenToo();
    void theLastChanceTakesEverythingInOneTransaction();

    void aHoldKeepsEverythingOffTheDisk();
    void theReleaseWritesTheDifferencesInOneTransaction();
    void holdsNest();
    void aGuardReleasesAtTheEndOfItsScope();
    void aReleasedGuardDoesNotReleaseAgain();
    void aReleaseTellsWhetherTheDiskTookIt();
    void aReleaseWithoutAHoldDoesNoHarm();

    void anAbandonedHoldLeavesNothing();
    void anAbandonedHoldLeavesWhatAnOuterOneHolds();
    void anAbandonedOuterHoldTakesTheInnerOneAlong();
    void anAbandonedHoldTakesInWhatOthersHaveChanged();
    void anAbandonedHoldStillWritesWhatWasSetBefore();
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
    void aSnapshotDoesNotChange();
    void diagnosticTextsAreTheHosts();
    void aMemoryStoreTakesEveryType();
    void memoryAndDiskAgreeWhateverTheThreadsDo();
};

void ParameterStoreRules::anAbsentParameterReadsAsInvalid()
{
    TRecordingStore store;
    QVERIFY(!store.HasParameter(PARAM_METRIC));
    QVERIFY(!store.GetParameter(PARAM_METRIC).isValid());
    QVERIFY(store.Values().isEmpty());
}

void ParameterStoreRules::whatIsSetIsReadAndHeld()
{
    TRecordingStore store;
    QVERIFY(store.SetParameter(PARAM_METRIC, true, true));
    QVERIFY(store.HasParameter(PARAM_METRIC));
    QCOMPARE(store.GetParameter(PARAM_METRIC), QVariant(true));
    QCOMPARE(store.Values(), (TChanges{{PARAM_METRIC, true}}));
    QCOMPARE(store.disk, (TChanges{{PARAM_METRIC, true}}));
}

void ParameterStoreRules::anInvalidValueRemovesTheParameter()
{
    TRecordingStore store;
    store.SetParameter(PARAM_METRIC, true, true);
    QVERIFY(store.SetParameter(PARAM_METRIC, QVariant(), true));
    QVERIFY(!store.HasParameter(PARAM_METRIC));
    QVERIFY(store.disk.isEmpty());

    QVERIFY(store.SetParameter(PARAM_METRIC, QVariant(), true));
    QCOMPARE(store.transactions.size(), 2);
}

void ParameterStoreRules::aValueThatIsNotToPersistStaysInMemory()
{
    TRecordingStore store;
    store.SetParameter(PARAM_AREA_UNIT, 0, true);
    QVERIFY(store.SetParameter(PARAM_AREA_UNIT, 1, false));
    QCOMPARE(store.GetParameter(PARAM_AREA_UNIT), QVariant(1));
    QCOMPARE(store.disk, (TChanges{{PARAM_AREA_UNIT, 0}}));

    QVERIFY(store.SetParameter(PARAM_AREA_UNIT, QVariant(), false));
    QVERIFY(!store.HasParameter(PARAM_AREA_UNIT));
    QVERIFY(store.SetParameter(PARAM_AREA_UNIT, 0, true));
    QCOMPARE(store.GetParameter(PARAM_AREA_UNIT), QVariant(0));
    QCOMPARE(store.transactions.size(), 1);
}

void ParameterStoreRules::whatIsOnTheDiskAlreadyIsNotWrittenAgain_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::newRow("bool") << QVariant(true);
    QTest::newRow("text") << QVariant(QLatin1String("north"));
    QTest::newRow("colour") << QVariant(QColor(1, 2, 3));
    QTest::newRow("not a number") << QVariant(std::numeric_limits<double>::quiet_NaN());
    QTest::newRow("a type without a text") << QVariant(QStringList(QLatin1String("north")));
}

void ParameterStoreRules::whatIsOnTheDiskAlreadyIsNotWrittenAgain()
{
    QFETCH(QVariant, value);
    TRecordingStore store;
    QVERIFY(store.SetParameter(PARAM_CLIENT, value, true));
    QVERIFY(store.SetParameter(PARAM_CLIENT, value, true));
    QCOMPARE(store.transactions.size(), 1);
}

void ParameterStoreRules::aValueThatOnlyLooksTheSameIsWritten_data()
{
    QTest::addColumn<QVariant>("first");
    QTest::addColumn<QVariant>("second");
    QTest::newRow("text of a number") << QVariant(1) << QVariant(QLatin1String("1"));
    QTest::newRow("truth and one") << QVariant(1) << QVariant(true);
    QTest::newRow("negative zero") << QVariant(0.0) << QVariant(-0.0);
    QTest::newRow("neighbouring numbers") << QVariant(1.0) << QVariant(1.0 + std::numeric_limits<double>::epsilon());
    QTest::newRow("neighbouring colours")
        << QVariant(QColor::fromHslF(0.5F, 0.5F, 0.5F)) << QVariant(QColor::fromHslF(0.5F, 0.5001F, 0.5F));
    QTest::newRow("colour in another notation") << QVariant(QColor(1, 2, 3)) << QVariant(QColor(1, 2, 3).toHsv());
}

void ParameterStoreRules::aValueThatOnlyLooksTheSameIsWritten()
{
    QFETCH(QVariant, first);
    QFETCH(QVariant, second);
    TRecordingStore store;
    store.SetParameter(PARAM_CLIENT, first, true);
    store.SetParameter(PARAM_CLIENT, second, true);
    QCOMPARE(store.transactions.size(), 2);
    QCOMPARE(store.disk[PARAM_CLIENT].userType(), second.userType());
}

void ParameterStoreRules::memoryTakesWhatTheDiskRefuses()
{
    TRecordingStore store;
    store.accepts = Refuse;
    QVERIFY(!store.SetParameter(PARAM_METRIC, true, true));
    QCOMPARE(store.GetParameter(PARAM_METRIC), QVariant(true));
    QVERIFY(!store.SetParameter(PARAM_METRIC, true, true));
    store.accepts = Accept;
    QVERIFY(store.SetParameter(PARAM_METRIC, true, true));
    QCOMPARE(store.disk, store.Values());
}

void ParameterStoreRules::aRefusedValueIsTriedAgainAfterTheNextSuccess()
{
    TRecordingStore store;
    store.accepts = Refuse;
    store.SetParameter(PARAM_METRIC, true, true);
    store.SetParameter(PARAM_AREA_UNIT, 1, true);
    store.accepts = Accept;
    QVERIFY(store.SetParameter(PARAM_FARM, QLatin1String("Hill"), true));
    QCOMPARE(store.disk, store.Values());
    QCOMPARE(store.disk.size(), 3);
}

void ParameterStoreRules::aValueThatCanNeverBeWrittenDoesNotKeepOthersFromTheDisk()
{
    TRecordingStore store;
    store.accepts = [](const TChanges& changes) { return !changes.contains(PARAM_FIELD); };
    QVERIFY(!store.SetParameter(PARAM_FIELD, QLatin1String("too large"), true));
    QVERIFY(store.SetParameter(PARAM_METRIC, true, true));
    QVERIFY(store.SetParameter(PARAM_AREA_UNIT, 1, true));
    QCOMPARE(store.disk.keys(), (QList<int>{PARAM_METRIC, PARAM_AREA_UNIT}));
    // It was tried when it was set and once more. Now it waits until it is set again or the store is closed.
    int attempts = 0;
    for (const TChanges& transaction : std::as_const(store.transactions))
        attempts += transaction.contains(PARAM_FIELD) ? 1 : 0;
    QCOMPARE(attempts, 2);
    QVERIFY(store.SetParameter(PARAM_FIELD, QVariant(), false));
}

void ParameterStoreRules::afterAFailureTheOldValueIsWrittenToo()
{
    TRecordingStore store;
    store.SetParameter(PARAM_AREA_UNIT, 0, true);
    store.accepts = Refuse;
    store.SetParameter(PARAM_AREA_UNIT, 1, true);
    store.accepts = Accept;
    // The effect of the failed transaction on the disk is not known.
    QVERIFY(store.SetParameter(PARAM_AREA_UNIT, 0, true));
    QCOMPARE(store.transactions.size(), 3);
    QCOMPARE(store.disk, (TChanges{{PARAM_AREA_UNIT, 0}}));
}

void ParameterStoreRules::theLastChanceTakesEverythingInOneTransaction()
{
    TRecordingStore store;
    store.accepts = Refuse;
    store.SetParameter(PARAM_METRIC, true, true);
    store.SetParameter(PARAM_AREA_UNIT, 1, true);
    store.accepts = Accept;
    store.transactions.clear();
    QVERIFY(store.PersistOutstanding());
    QCOMPARE(store.transactions.size(), 1);
    QCOMPARE(store.disk, store.Values());

    store.HoldPersistence();
    store.SetParameter(PARAM_AREA_UNIT, 0, true);
    QVERIFY(!store.PersistOutstanding());
    QCOMPARE(store.transactions.size(), 1);
}

void ParameterStoreRules::aHoldKeepsEverythingOffTheDisk()
{
    TRecordingStore store;
    store.SetParameter(PARAM_ACTIVE_JOB, QLatin1String("north"), true);
    store.HoldPersistence();
    QVERIFY(store.SetParameter(PARAM_ACTIVE_JOB, QLatin1String("built in"), true));
    QVERIFY(store.SetParameter(PARAM_CLIENT, QLatin1String("Smith"), true));
    QCOMPARE(store.GetParameter(PARAM_ACTIVE_JOB), QVariant(QLatin1String("built in")));
    QCOMPARE(store.disk, (TChanges{{PARAM_ACTIVE_JOB, QLatin1String("north")}}));
}

void ParameterStoreRules::theReleaseWritesTheDifferencesInOneTransaction()
{
    TRecordingStore store;
    store.SetParameter(PARAM_ACTIVE_JOB, QLatin1String("north"), true);
    store.SetParameter(PARAM_FARM, QLatin1String("Hill"), true);
    store.SetParameter(PARAM_AREA_UNIT, 0, true);
    store.transactions.clear();

    store.HoldPersistence();
    store.SetParameter(PARAM_ACTIVE_JOB, QLatin1String("built in"), true); // changed, and changed back below
    store.SetParameter(PARAM_ACTIVE_JOB, QLatin1String("north"), true);
    store.SetParameter(PARAM_FARM, QVariant(), true);
    store.SetParameter(PARAM_CLIENT, QLatin1String("Smith"), true);
    store.SetParameter(PARAM_METRIC, true, false);
    store.SetParameter(PARAM_FIELD, QLatin1String("West"), true); // persistent, then changed in memory alone
    store.SetParameter(PARAM_FIELD, QLatin1String("East"), false);
    QVERIFY(store.ReleasePersistence());

    const TChanges differences{
        {PARAM_FARM, QVariant()}, {PARAM_CLIENT, QLatin1String("Smith")}, {PARAM_FIELD, QLatin1String("West")}};
    QCOMPARE(store.transactions, QList<TChanges>{differences});
    QCOMPARE(store.GetParameter(PARAM_FIELD), QVariant(QLatin1String("East")));
}

void ParameterStoreRules::holdsNest()
{
    TRecordingStore store;
    store.HoldPersistence();
    store.HoldPersistence();
    store.SetParameter(PARAM_METRIC, true, true);
    QVERIFY(store.ReleasePersistence());
    QVERIFY(store.transactions.isEmpty());
    QVERIFY(store.ReleasePersistence());
    QCOMPARE(store.transactions.size(), 1);
}

void ParameterStoreRules::aGuardReleasesAtTheEndOfItsScope()
{
    TRecordingStore store;
    {
        const TPersistenceHold hold(store);
        store.SetParameter(PARAM_METRIC, true, true);
        QVERIFY(store.disk.isEmpty());
    }
    QCOMPARE(store.disk, store.Values());
}

void ParameterStoreRules::aReleasedGuardDoesNotReleaseAgain()
{
    TRecordingStore store;
    const TPersistenceHold outer(store);
    {
        TPersistenceHold inner(store);
        QVERIFY(inner.Release());
        QVERIFY(inner.Release());
    }
    store.SetParameter(PARAM_METRIC, true, true);
    QVERIFY(store.disk.isEmpty());
}

void ParameterStoreRules::aReleaseTellsWhetherTheDiskTookIt()
{
    TRecordingStore store;
    store.accepts = Refuse;
    TPersistenceHold hold(store);
    QVERIFY(store.SetParameter(PARAM_METRIC, true, true));
    QVERIFY(!hold.Release());
    QCOMPARE(store.GetParameter(PARAM_METRIC), QVariant(true));
}

void ParameterStoreRules::aReleaseWithoutAHoldDoesNoHarm()
{
    TRecordingStore store;
    QVERIFY(store.ReleasePersistence());
    store.HoldPersistence();
    store.SetParameter(PARAM_METRIC, true, true);
    QVERIFY(store.disk.isEmpty());
    QVERIFY(store.ReleasePersistence());
    QCOMPARE(store.disk, store.Values());
}

void ParameterStoreRules::anAbandonedHoldLeavesNothing()
{
    TRecordingStore store;
    store.SetParameter(PARAM_ACTIVE_JOB, QLatin1String("north"), true);
    store.SetParameter(PARAM_FARM, QLatin1String("Hill"), true);
    store.SetParameter(PARAM_METRIC, true, false);
    const TChanges values = store.Values();
    const quint64 revision = store.Revision();
    store.transactions.clear();
    {
        TPersistenceHold hold(store);
        store.SetParameter(PARAM_ACTIVE_JOB, QLatin1String("built in"), true);
        store.SetParameter(PARAM_FARM, QVariant(), true);
        store.SetParameter(PARAM_CLIENT, QLatin1String("Smith"), true);
        store.SetParameter(PARAM_METRIC, false, false);
        QVERIFY(hold.Abandon());
        QVERIFY(hold.Abandon());
        QVERIFY(hold.Release());
    }
    QCOMPARE(store.Values(), values);
    QVERIFY(store.Revision() > revision);
    QVERIFY(store.PersistOutstanding());
    QVERIFY(store.transactions.isEmpty());
    QVERIFY(store.SetParameter(PARAM_CLIENT, QLatin1String("Jones"), true));
    QCOMPARE(store.transactions, (QList<TChanges>{{{PARAM_CLIENT, QLatin1String("Jones")}}}));
}

void ParameterStoreRules::anAbandonedHoldLeavesWhatAnOuterOneHolds()
{
    TRecordingStore store;
    store.HoldPersistence();
    store.SetParameter(PARAM_FARM, QLatin1String("Hill"), true);
    store.HoldPersistence();
    store.SetParameter(PARAM_FARM, QLatin1String("Dale"), true);
    QVERIFY(store.AbandonPersistence());
    QVERIFY(store.transactions.isEmpty());
    QVERIFY(store.ReleasePersistence());
    QCOMPARE(store.disk, (TChanges{{PARAM_FARM, QLatin1String("Hill")}}));
    QCOMPARE(store.Values(), store.disk);
}

void ParameterStoreRules::anAbandonedOuterHoldTakesTheInnerOneAlong()
{
    TRecordingStore store;
    store.HoldPersistence();
    store.HoldPersistence();
    store.SetParameter(PARAM_FARM, QLatin1String("Dale"), true);
    QVERIFY(store.ReleasePersistence());
    QVERIFY(store.AbandonPersistence());
    QVERIFY(store.transactions.isEmpty());
    QVERIFY(store.Values().isEmpty());
}

void ParameterStoreRules::anAbandonedHoldTakesInWhatOthersHaveChanged()
{
    TRecordingStore store;
    store.SetParameter(PARAM_AREA_UNIT, 1, true);
    TPersistenceHold hold(store);
    store.SetParameter(PARAM_AREA_UNIT, 0, true);
    store.ChangeElsewhere({{PARAM_AREA_UNIT, 2}});
    QVERIFY(hold.Abandon());
    store.LookAtDisk();
    QCOMPARE(store.GetParameter(PARAM_AREA_UNIT), QVariant(2));
    QCOMPARE(store.disk, (TChanges{{PARAM_AREA_UNIT, 2}}));
}

void ParameterStoreRules::anAbandonedHoldStillWritesWhatWasSetBefore()
{
    TRecordingStore store;
    store.accepts = Refuse;
    store.SetParameter(PARAM_FARM, QLatin1String("Hill"), true);
    store.accepts = Accept;
    TPersistenceHold hold(store);
    store.SetParameter(PARAM_FARM, QLatin1String("Dale"), true);
    QVERIFY(hold.Abandon());
    QCOMPARE(store.disk, (TChanges{{PARAM_FARM, QLatin1String("Hill")}}));
}

void ParameterStoreRules::memoryFollowsWhatOthersChange_data()
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

void ParameterStoreRules::memoryFollowsWhatOthersChange()
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

void ParameterStoreRules::aValueOnItsWayToTheDiskIsLaterThanTheirs()
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

void ParameterStoreRules::aWriteThatOthersMadeNecessaryIsDone()
{
    TRecordingStore store;
    store.SetParameter(PARAM_AREA_UNIT, 1, true);
    store.ChangeElsewhere({{PARAM_AREA_UNIT, 2}});
    QVERIFY(store.SetParameter(PARAM_AREA_UNIT, 1, true));
    QCOMPARE(store.disk, (TChanges{{PARAM_AREA_UNIT, 1}}));
}

void ParameterStoreRules::aWriteThatOthersHaveDoneIsNotDoneAgain()
{
    TRecordingStore store;
    store.ChangeElsewhere({{PARAM_AREA_UNIT, 1}});
    QVERIFY(store.SetParameter(PARAM_AREA_UNIT, 1, true));
    QVERIFY(store.transactions.isEmpty());
}

void ParameterStoreRules::onlyWhatChangedIsWrittenOverTheirs()
{
    TRecordingStore store;
    store.SetParameter(PARAM_AREA_UNIT, 1, true);
    store.SetParameter(PARAM_METRIC, true, true);
    store.ChangeElsewhere({{PARAM_AREA_UNIT, 2}});
    QVERIFY(store.SetParameter(PARAM_METRIC, false, true));
    QCOMPARE(store.transactions.last(), (TChanges{{PARAM_METRIC, false}}));
    QCOMPARE(store.Values(), (TChanges{{PARAM_AREA_UNIT, 2}, {PARAM_METRIC, false}}));
}

void ParameterStoreRules::aHoldTakesNothingOfOthers()
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

void ParameterStoreRules::whatAHoldPutsBackDoesNotUndoOthersChanges()
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

void ParameterStoreRules::whatAHoldChangesIsLaterThanTheirs()
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

void ParameterStoreRules::aDamagedValueStaysInMemoryAndTheNextWriteRepairsIt()
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

void ParameterStoreRules::theLastChanceRepairsADamagedValue()
{
    TRecordingStore store;
    store.SetParameter(PARAM_CLIENT, QLatin1String("Smith"), true);
    store.Damage(PARAM_CLIENT);
    store.LookAtDisk();
    QVERIFY(store.PersistOutstanding());
    QCOMPARE(store.disk, (TChanges{{PARAM_CLIENT, QLatin1String("Smith")}}));
}

void ParameterStoreRules::aDamagedValueCanBeSetAgain_data()
{
    QTest::addColumn<bool>("isKnown");
    QTest::newRow("read before") << true;
    QTest::newRow("never read") << false;
}

void ParameterStoreRules::aDamagedValueCanBeSetAgain()
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

void ParameterStoreRules::aDamagedValueThatOthersSetOrRemoveIsTheirs_data()
{
    QTest::addColumn<QVariant>("theirs");
    QTest::newRow("set") << QVariant(QLatin1String("Jones"));
    QTest::newRow("set to the same") << QVariant(QLatin1String("Smith"));
    QTest::newRow("removed") << QVariant();
}

void ParameterStoreRules::aDamagedValueThatOthersSetOrRemoveIsTheirs()
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

void ParameterStoreRules::aRepairThatFailsIsTriedAgain()
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

void ParameterStoreRules::aDiskThatCannotBeReadIsNotWritten()
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

void ParameterStoreRules::thoseWhoWaitForADiskThatCannotBeReadWaitTogether()
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

void ParameterStoreRules::theRevisionGrowsWithEveryChange_data()
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

void ParameterStoreRules::theRevisionGrowsWithEveryChange()
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

void ParameterStoreRules::aParameterThatOthersMakeUnreadableIsAbsent()
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

void ParameterStoreRules::anUnreadableParameterThatOthersSetIsThere()
{
    TRecordingStore store;
    store.TakeStored({}, {PARAM_FARM});
    store.ChangeElsewhere({{PARAM_FARM, QLatin1String("Hill")}});
    store.LookAtDisk();
    QCOMPARE(store.GetParameter(PARAM_FARM), QVariant(QLatin1String("Hill")));
    QVERIFY(store.SetParameter(PARAM_FARM, QLatin1String("Hill"), true));
    QVERIFY(store.transactions.isEmpty());
}

void ParameterStoreRules::anUnreadableParameterStaysUntilItIsSet()
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

void ParameterStoreRules::anUnreadableParameterCanBeRemoved()
{
    TRecordingStore store;
    store.TakeStored({}, {PARAM_FARM});
    QVERIFY(store.SetParameter(PARAM_FARM, QVariant(), true));
    QCOMPARE(store.transactions, (QList<TChanges>{{{PARAM_FARM, QVariant()}}}));
}

void ParameterStoreRules::aSnapshotDoesNotChange()
{
    TRecordingStore store;
    store.SetParameter(PARAM_METRIC, true, true);
    const TChanges snapshot = store.Values();
    store.SetParameter(PARAM_METRIC, false, true);
    QCOMPARE(snapshot, (TChanges{{PARAM_METRIC, true}}));
}

void ParameterStoreRules::diagnosticTextsAreTheHosts()
{
    TRecordingStore store;
    const QString& text = store.GetDiagnosticText(DIAG_COMPONENT_GPS_RECEIVER, DIAG_TYPE_EVENT, 1);
    QCOMPARE(&text, &DiagnosticText(DIAG_COMPONENT_GPS_RECEIVER, DIAG_TYPE_EVENT, 1));
}

void ParameterStoreRules::aMemoryStoreTakesEveryType()
{
    TMemoryStore store;
    const QVariant list = QStringList(QLatin1String("north"));
    QVERIFY(store.SetParameter(PARAM_CLIENT, list, true));
    QCOMPARE(store.GetParameter(PARAM_CLIENT), list);
    QVERIFY(store.SetParameter(PARAM_CLIENT, QVariant(), true));
    QVERIFY(!store.HasParameter(PARAM_CLIENT));
}

void ParameterStoreRules::memoryAndDiskAgreeWhateverTheThreadsDo()
{
    const int threadCount = 8;
    const int rounds = 2000;
    const int parameters = 3; // few, so that the threads change the same ones
    TRecordingStore store;
    // The disk fails at times. Later transactions must write the values that were left.
    std::atomic<int> count{0};
    store.accepts = [&count](const TChanges&) { return ++count % 5 != 0; };

    std::vector<std::thread> threads;
    for (int thread = 0; thread < threadCount; ++thread) {
        threads.emplace_back([&store, thread] {
            for (int round = 0; round < rounds; ++round) {
                const EParamID id = Param(round % parameters);
                const bool isRemoval = (round + thread) % 7 == 0;
                store.SetParameter(id, isRemoval ? QVariant() : QVariant(round % 4), true);
                store.GetParameter(id);
                if (round % 50 == thread)
                    const TPersistenceHold hold(store);
            }
        });
    }
    for (std::thread& thread : threads)
        thread.join();
    store.accepts = Accept;
    QVERIFY(store.PersistOutstanding());
    QCOMPARE(store.disk, store.Values());
}

QTEST_GUILESS_MAIN(ParameterStoreRules)
#include "ParameterStoreRules.moc"
