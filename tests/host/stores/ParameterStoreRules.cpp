#include "TRecordingStore.h"
#include "diagnostics/DiagnosticTexts.h"
#include "stores/TPersistenceHold.h"

#include <QColor>
#include <QtTest>

#include <atomic>
#include <limits>
#include <thread>
#include <utility>
#include <vector>

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
