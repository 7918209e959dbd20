#include "StoreTestSupport.h"
#include "stores/TPersistenceHold.h"

#include <QTemporaryDir>
#include <QtTest>

#include <atomic>
#include <thread>
#include <vector>

namespace {

const int ThreadCount = 8;
const int Rounds = 150;

// Runs the task once in each thread and waits until all have ended.
template <typename TTask>
void InThreads(TTask task)
{
    std::vector<std::thread> threads;
    for (int thread = 0; thread < ThreadCount; ++thread)
        threads.emplace_back(task, thread);
    for (std::thread& thread : threads)
        thread.join();
}

} // namespace

class StoreUnderThreads : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void writesOfOneParameterEndWithDiskAndMemoryAgreeing();
    void everyThreadsOwnWritesArrive();
    void readersAlwaysSeeAValueThatWasSet();
    void holdsOfSeveralThreadsLoseNothing();

private:
    std::unique_ptr<QTemporaryDir> m_Folder;
    QString m_Path;
};

void StoreUnderThreads::init()
{
    m_Folder = std::make_unique<QTemporaryDir>();
    m_Path = m_Folder->filePath(QLatin1String("settings.db"));
}

void StoreUnderThreads::writesOfOneParameterEndWithDiskAndMemoryAgreeing()
{
    auto store = OpenStore(m_Path);
    std::atomic<int> failures{0};
    InThreads([&](int thread) {
        for (int round = 0; round < Rounds; ++round) {
            const QVariant value = round % 5 == thread % 5 ? QVariant() : QVariant(thread * Rounds + round);
            if (!store->SetParameter(PARAM_AREA_UNIT, value, true))
                ++failures;
        }
    });
    const QMap<int, QVariant> memory = store->Values();
    store.reset();
    QCOMPARE(failures.load(), 0);
    QCOMPARE(StoredValues(m_Path), memory);
}

void StoreUnderThreads::everyThreadsOwnWritesArrive()
{
    auto store = OpenStore(m_Path);
    std::atomic<int> failures{0};
    InThreads([&](int thread) {
        for (int round = 0; round < Rounds; ++round)
            if (!store->SetParameter(Param(thread), round, true) ||
                store->GetParameter(Param(thread)) != QVariant(round))
                ++failures;
    });
    store.reset();
    QCOMPARE(failures.load(), 0);
    QMap<int, QVariant> expected;
    for (int thread = 0; thread < ThreadCount; ++thread)
        expected[thread] = Rounds - 1;
    QCOMPARE(StoredValues(m_Path), expected);
}

void StoreUnderThreads::readersAlwaysSeeAValueThatWasSet()
{
    const auto store = OpenStore(m_Path);
    store->SetParameter(PARAM_CLIENT, QString(0, QLatin1Char('x')), true);
    std::atomic<int> oddities{0};
    InThreads([&](int thread) {
        for (int round = 0; round < Rounds; ++round) {
            if (thread == 0)
                store->SetParameter(PARAM_CLIENT, QString(round, QLatin1Char('x')), true);
            const QString text = store->GetParameter(PARAM_CLIENT).toString();
            if (text.count(QLatin1Char('x')) != text.size() || !store->HasParameter(PARAM_CLIENT) ||
                store->Values().size() != 1)
                ++oddities;
        }
    });
    QCOMPARE(oddities.load(), 0);
}

void StoreUnderThreads::holdsOfSeveralThreadsLoseNothing()
{
    auto store = OpenStore(m_Path);
    std::atomic<int> failures{0};
    InThreads([&](int thread) {
        for (int round = 0; round < Rounds / 10; ++round) {
            TPersistenceHold hold(*store);
            for (int id = 0; id < 10; ++id)
                store->SetParameter(Param(id), thread * Rounds + round, true);
            if (!hold.Release())
                ++failures;
        }
    });
    const QMap<int, QVariant> memory = store->Values();
    store.reset();
    QCOMPARE(failures.load(), 0);
    QCOMPARE(StoredValues(m_Path), memory);
}

QTEST_GUILESS_MAIN(StoreUnderThreads)
#include "StoreUnderThreads.moc"
