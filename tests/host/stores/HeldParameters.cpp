#include "TRecordingStore.h"
#include "stores/TPersistenceHold.h"

#include <QtTest>

/// What a hold keeps off the disk, and what becomes of it.
class HeldParameters : public QObject
{
    Q_OBJECT

private slots:
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
};

void HeldParameters::aHoldKeepsEverythingOffTheDisk()
{
    TRecordingStore store;
    store.SetParameter(PARAM_ACTIVE_JOB, QLatin1String("north"), true);
    store.HoldPersistence();
    QVERIFY(store.SetParameter(PARAM_ACTIVE_JOB, QLatin1String("built in"), true));
    QVERIFY(store.SetParameter(PARAM_CLIENT, QLatin1String("Smith"), true));
    QCOMPARE(store.GetParameter(PARAM_ACTIVE_JOB), QVariant(QLatin1String("built in")));
    QCOMPARE(store.disk, (TChanges{{PARAM_ACTIVE_JOB, QLatin1String("north")}}));
}

void HeldParameters::theReleaseWritesTheDifferencesInOneTransaction()
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

void HeldParameters::holdsNest()
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

void HeldParameters::aGuardReleasesAtTheEndOfItsScope()
{
    TRecordingStore store;
    {
        const TPersistenceHold hold(store);
        store.SetParameter(PARAM_METRIC, true, true);
        QVERIFY(store.disk.isEmpty());
    }
    QCOMPARE(store.disk, store.Values());
}

void HeldParameters::aReleasedGuardDoesNotReleaseAgain()
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

void HeldParameters::aReleaseTellsWhetherTheDiskTookIt()
{
    TRecordingStore store;
    store.accepts = Refuse;
    TPersistenceHold hold(store);
    QVERIFY(store.SetParameter(PARAM_METRIC, true, true));
    QVERIFY(!hold.Release());
    QCOMPARE(store.GetParameter(PARAM_METRIC), QVariant(true));
}

void HeldParameters::aReleaseWithoutAHoldDoesNoHarm()
{
    TRecordingStore store;
    QVERIFY(store.ReleasePersistence());
    store.HoldPersistence();
    store.SetParameter(PARAM_METRIC, true, true);
    QVERIFY(store.disk.isEmpty());
    QVERIFY(store.ReleasePersistence());
    QCOMPARE(store.disk, store.Values());
}

void HeldParameters::anAbandonedHoldLeavesNothing()
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

void HeldParameters::anAbandonedHoldLeavesWhatAnOuterOneHolds()
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

void HeldParameters::anAbandonedOuterHoldTakesTheInnerOneAlong()
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

void HeldParameters::anAbandonedHoldTakesInWhatOthersHaveChanged()
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

void HeldParameters::anAbandonedHoldStillWritesWhatWasSetBefore()
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

QTEST_GUILESS_MAIN(HeldParameters)
#include "HeldParameters.moc"
