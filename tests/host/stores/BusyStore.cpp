#include "StoreTestSupport.h"

#include <QElapsedTimer>
#include <QtTest>

#include <atomic>
#include <thread>
#include <vector>

namespace {

const int Impatience = 50; // milliseconds
const QLatin1String WrittenByOther("BEGIN IMMEDIATE");
const QLatin1String Released("ROLLBACK");

} // namespace

class BusyStore : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void aBusyFileIsSaidAfterAWhile();
    void whatIsNotWrittenIsKnownUntilItIs();
    void aBusyFileIsWaitedFor();
    void othersWaitNoLongerThanTheFirst();
    void readsDoNotWait();
    void whatOthersChangedIsSeenWhileItIsBusy();
    void aReleaseOnABusyFileChangesNothing();
    void aClosingStoreLosesOnlyWhatItHasSaid();

    void openingABusyFileIsSaidAfterAWhile();
    void openingABusyFileWaits();

private:
    std::unique_ptr<TSqliteStore> Open(int patience);

    std::unique_ptr<QTemporaryDir> m_Folder;
    QString m_Path;
    QString m_Said;
};

void BusyStore::init()
{
    m_Folder = MakeFolder();
    m_Path = m_Folder->filePath(QLatin1String("settings.db"));
    m_Said = m_Path + QLatin1String(" cannot be written: another program has locked it for longer than the timeout");
}

std::unique_ptr<TSqliteStore> BusyStore::Open(int patience)
{
    QString error;
    return TSqliteStore::Open(m_Path, &error, patience);
}

void BusyStore::aBusyFileIsSaidAfterAWhile()
{
    const auto store = Open(Impatience);
    TStandardErrorCapture standardError;
    {
        TOtherProgram other(m_Path);
        other.Run(WrittenByOther);
        QVERIFY(!store->SetParameter(PARAM_METRIC, true, true));
        QVERIFY(!store->SetParameter(PARAM_AREA_UNIT, 1, true));
        QCOMPARE(store->Values(), (QMap<int, QVariant>{{PARAM_METRIC, true}, {PARAM_AREA_UNIT, 1}}));
        QCOMPARE(standardError.Lines(), QStringList(m_Said));
        other.Run(Released);
    }
    QVERIFY(store->SetParameter(PARAM_FARM, QLatin1String("Hill"), true));
    QCOMPARE(standardError.Lines().size(), 1);
    QCOMPARE(OpenStore(m_Path)->Values(), store->Values());
}

void BusyStore::whatIsNotWrittenIsKnownUntilItIs()
{
    const auto store = Open(Impatience);
    TStandardErrorCapture standardError;
    QCOMPARE(store->WriteFailure(), QString());
    QVERIFY(store->WriteOutstanding());
    {
        TOtherProgram other(m_Path);
        other.Run(WrittenByOther);
        QVERIFY(!store->SetParameter(PARAM_METRIC, true, true));
        QCOMPARE(store->WriteFailure(), m_Said);
        QVERIFY(!store->WriteOutstanding());
        QCOMPARE(store->WriteFailure(), m_Said);
        other.Run(Released);
    }
    QVERIFY(store->WriteOutstanding());
    QCOMPARE(store->WriteFailure(), QString());
    QCOMPARE(OpenStore(m_Path)->Values(), store->Values());
}

void BusyStore::aBusyFileIsWaitedFor()
{
    const auto store = Open(SoonMilliseconds);
    TStandardErrorCapture standardError;
    TOtherProgram other(m_Path);
    other.Run(WrittenByOther);
    std::atomic<bool> isStored{false};
    std::atomic<bool> isReturned{false};
    std::thread setter([&] {
        isStored = store->SetParameter(PARAM_METRIC, true, true);
        isReturned = true;
    });
    QTRY_VERIFY_WITH_TIMEOUT(store->HasParameter(PARAM_METRIC), SoonMilliseconds);
    QVERIFY(!isReturned);
    other.Run(Released);
    setter.join();
    QVERIFY(isStored);
    QCOMPARE(standardError.Lines(), QStringList());
}

void BusyStore::othersWaitNoLongerThanTheFirst()
{
    const int threadCount = 8;
    const int patience = 500;
    const auto store = Open(patience);
    TStandardErrorCapture standardError;
    TOtherProgram other(m_Path);
    other.Run(WrittenByOther);
    QElapsedTimer timer;
    timer.start();
    std::atomic<int> failures{0};
    std::vector<std::thread> threads;
    for (int thread = 0; thread < threadCount; ++thread)
        threads.emplace_back([&, thread] {
            if (!store->SetParameter(Param(thread), thread, true))
                ++failures;
        });
    for (std::thread& thread : threads)
        thread.join();
    // One thread's write goes first. The others wait together and share one transaction.
    QVERIFY2(timer.elapsed() < threadCount * patience, qPrintable(QString::number(timer.elapsed())));
    QCOMPARE(failures.load(), threadCount);
    QCOMPARE(standardError.Lines(), QStringList(m_Said));
    other.Run(Released);
    QVERIFY(store->SetParameter(PARAM_METRIC, true, true));
    QCOMPARE(OpenStore(m_Path)->Values(), store->Values());
}

void BusyStore::readsDoNotWait()
{
    const auto store = Open(SoonMilliseconds);
    QVERIFY(store->SetParameter(PARAM_AREA_UNIT, 1, true));
    TOtherProgram other(m_Path);
    other.Run(WrittenByOther);
    std::atomic<bool> isReturned{false};
    std::thread setter([&] {
        store->SetParameter(PARAM_METRIC, true, true);
        isReturned = true;
    });
    QTRY_VERIFY_WITH_TIMEOUT(store->HasParameter(PARAM_METRIC), SoonMilliseconds);
    for (int read = 0; read < 1000; ++read) {
        QCOMPARE(store->GetParameter(PARAM_AREA_UNIT), QVariant(1));
        QCOMPARE(store->Values().size(), 2);
        QVERIFY(store->Revision() >= 2);
        QVERIFY(store->SetParameter(PARAM_FARM, QLatin1String("Hill"), false));
        store->SetParameter(PARAM_FARM, QVariant(), false);
    }
    QVERIFY(!isReturned);
    other.Run(Released);
    setter.join();
}

void BusyStore::whatOthersChangedIsSeenWhileItIsBusy()
{
    const auto store = Open(SoonMilliseconds);
    const auto another = Open(Impatience);
    QVERIFY(another->SetParameter(PARAM_METRIC, true, true));
    TOtherProgram other(m_Path);
    other.Run(WrittenByOther);
    QTRY_COMPARE_WITH_TIMEOUT(store->GetParameter(PARAM_METRIC), QVariant(true), SoonMilliseconds);
    QCOMPARE(Open(Impatience)->GetParameter(PARAM_METRIC), QVariant(true));
    other.Run(Released);
}

void BusyStore::aReleaseOnABusyFileChangesNothing()
{
    const auto store = Open(Impatience);
    QVERIFY(store->SetParameter(PARAM_METRIC, false, true));
    TStandardErrorCapture standardError;
    TOtherProgram other(m_Path);
    other.Run(WrittenByOther);
    store->HoldPersistence();
    store->SetParameter(PARAM_METRIC, true, true);
    store->SetParameter(PARAM_AREA_UNIT, 1, true);
    QVERIFY(!store->ReleasePersistence());
    QCOMPARE(standardError.Lines(), QStringList(m_Said));
    QCOMPARE(OpenStore(m_Path)->Values(), (QMap<int, QVariant>{{PARAM_METRIC, false}}));
    other.Run(Released);
    QVERIFY(store->SetParameter(PARAM_FARM, QLatin1String("Hill"), true));
    QCOMPARE(OpenStore(m_Path)->Values(), store->Values());
}

void BusyStore::aClosingStoreLosesOnlyWhatItHasSaid()
{
    auto store = Open(Impatience);
    QVERIFY(store->SetParameter(PARAM_METRIC, true, true));
    TStandardErrorCapture standardError;
    {
        TOtherProgram other(m_Path);
        other.Run(WrittenByOther);
        QVERIFY(!store->SetParameter(PARAM_AREA_UNIT, 1, true));
        store.reset();
        QCOMPARE(standardError.Lines(), QStringList(m_Said));
        other.Run(Released);
    }
    QCOMPARE(StoredValues(m_Path), (QMap<int, QVariant>{{PARAM_METRIC, true}}));
    QCOMPARE(StoredValues(m_Path + QLatin1String(".good")), (QMap<int, QVariant>{{PARAM_METRIC, true}}));
}

void BusyStore::openingABusyFileIsSaidAfterAWhile()
{
    OpenStore(m_Path)->SetParameter(PARAM_METRIC, true, true);
    TOtherProgram other(m_Path);
    other.Run(QLatin1String("PRAGMA locking_mode = EXCLUSIVE"));
    other.Run(QLatin1String("UPDATE parameters SET value = 'false', digest = NULL"));
    QString error;
    QVERIFY(!TSqliteStore::Open(m_Path, &error, Impatience));
    QCOMPARE(error,
             m_Path + QLatin1String(" cannot be used: another program has locked it for longer than the timeout"));
}

void BusyStore::openingABusyFileWaits()
{
    OpenStore(m_Path)->SetParameter(PARAM_METRIC, true, true);
    auto other = std::make_unique<TOtherProgram>(m_Path);
    other->Run(QLatin1String("PRAGMA locking_mode = EXCLUSIVE"));
    other->Run(QLatin1String("UPDATE parameters SET value = 'false', digest = NULL"));
    std::unique_ptr<TSqliteStore> store;
    std::thread opener([&] { store = Open(SoonMilliseconds); });
    QTRY_VERIFY_WITH_TIMEOUT(NamesBeside(m_Path).contains(QLatin1String("settings.db.lock")), SoonMilliseconds);
    other.reset();
    opener.join();
    QVERIFY(store != nullptr);
    QCOMPARE(store->GetParameter(PARAM_METRIC), QVariant(false));
}

QTEST_GUILESS_MAIN(BusyStore)
#include "BusyStore.moc"
