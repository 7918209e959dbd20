#include "StoreTestSupport.h"
#include "stores/TMemoryStore.h"
#include "stores/TParameterWatch.h"
#include "stores/TPersistenceHold.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QThread>
#include <QtTest>

#include <atomic>
#include <functional>
#include <memory>
#include <thread>
#include <vector>

// Beside its type, where the tests' own functions find it.
static bool operator==(const tagParameterChange& one, const tagParameterChange& other)
{
    return one.number == other.number && one.oldValue.userType() == other.oldValue.userType() &&
           one.newValue.userType() == other.newValue.userType() && one.oldValue == other.oldValue &&
           one.newValue == other.newValue;
}

namespace {

const int ThreadCount = 4;
const int ParameterCount = 10;
const int Rounds = 2000;

const QLatin1String SetInChild("set-in-child");

/// What a watch has told.
class TTold
{
public:
    explicit TTold(TParameterWatch& watch)
    {
        QObject::connect(&watch, &TParameterWatch::Changed,
                         [this](const tagParameterChange& change) { m_Changes.append(change); });
    }

    /// All that has been told, after everything that is on its way has arrived.
    QVector<tagParameterChange> Changes()
    {
        QCoreApplication::processEvents();
        return m_Changes;
    }

private:
    QVector<tagParameterChange> m_Changes;
};

using TChanges = QVector<tagParameterChange>;

// Opens the store and sets a parameter, as another program does.
int RunChild(const QString& path)
{
    const auto store = OpenStore(path);
    return store && store->SetParameter(PARAM_AREA_UNIT, 1, true) ? 0 : 1;
}

template <typename TTask>
std::vector<std::thread> StartThreads(TTask task)
{
    std::vector<std::thread> threads;
    for (int thread = 0; thread < ThreadCount; ++thread)
        threads.emplace_back(task, thread);
    return threads;
}

} // namespace

Q_DECLARE_METATYPE(std::function<void(TParameterStore&)>)

class ParameterWatch : public QObject
{
    Q_OBJECT

private slots:
    void everyKindOfChangeIsTold_data();
    void everyKindOfChangeIsTold();
    void whatChangesNothingIsNotTold_data();
    void whatChangesNothingIsNotTold();
    void changesOfOneParameterAreToldAsOne();
    void changesAreToldInTheOrderInWhichTheyBegan();
    void aWatchOnNumbersTellsOfTheseAlone();
    void everyWatchIsTold();
    void aHoldIsToldAtOnceAndItsAbandonmentTakesItBack();
    void changesOfAnotherStoreArrive_data();
    void changesOfAnotherStoreArrive();
    void aChangeOfAnotherProgramArrives();
    void whatAnotherStoreSetsInMemoryAloneDoesNotArrive();

    void aReceiverMayChangeParameters();
    void aReceiverMayDeleteTheWatch();
    void aReceiverMayRunAnEventLoop();
    void theSignalComesInTheThreadOfTheWatch();
    void aSlowReceiverMissesIntermediateValuesOnly();
    void aWatchMayGoWhileParametersChange();
};

void ParameterWatch::everyKindOfChangeIsTold_data()
{
    using TAction = std::function<void(TParameterStore&)>;
    QTest::addColumn<QVariant>("before");
    QTest::addColumn<TAction>("action");
    QTest::addColumn<QVariant>("after");
    const auto set = [](const QVariant& value, bool persist) -> TAction {
        return [=](TParameterStore& store) { store.SetParameter(PARAM_AREA_UNIT, value, persist); };
    };
    QTest::newRow("a new one") << QVariant() << set(1, true) << QVariant(1);
    QTest::newRow("another value") << QVariant(1) << set(2, true) << QVariant(2);
    QTest::newRow("another type") << QVariant(1) << set(true, true) << QVariant(true);
    QTest::newRow("a removal") << QVariant(1) << set(QVariant(), true) << QVariant();
    QTest::newRow("memory alone") << QVariant(1) << set(2, false) << QVariant(2);
    QTest::newRow("a removal from memory alone") << QVariant(1) << set(QVariant(), false) << QVariant();
    QTest::newRow("zero becomes negative zero") << QVariant(0.0) << set(-0.0, true) << QVariant(-0.0);
    QTest::newRow("within a hold") << QVariant(1) << TAction([](TParameterStore& store) {
        const TPersistenceHold hold(store);
        store.SetParameter(PARAM_AREA_UNIT, 2, true);
    }) << QVariant(2);
    QTest::newRow("in another thread") << QVariant(1) << TAction([](TParameterStore& store) {
        std::thread([&] { store.SetParameter(PARAM_AREA_UNIT, 2, true); }).join();
    }) << QVariant(2);
}

void ParameterWatch::everyKindOfChangeIsTold()
{
    QFETCH(QVariant, before);
    QFETCH(std::function<void(TParameterStore&)>, action);
    QFETCH(QVariant, after);
    TMemoryStore store;
    store.SetParameter(PARAM_AREA_UNIT, before, true);
    TParameterWatch watch(store);
    TTold told(watch);
    action(store);
    QCOMPARE(told.Changes(), (TChanges{{PARAM_AREA_UNIT, before, after}}));
    QCOMPARE(told.Changes().size(), 1); // and not again
}

void ParameterWatch::whatChangesNothingIsNotTold_data()
{
    using TAction = std::function<void(TParameterStore&)>;
    QTest::addColumn<TAction>("action");
    QTest::newRow("the same value") << TAction(
        [](TParameterStore& store) { store.SetParameter(PARAM_AREA_UNIT, 1, true); });
    QTest::newRow("the removal of an absent one")
        << TAction([](TParameterStore& store) { store.SetParameter(PARAM_CLIENT, QVariant(), true); });
    QTest::newRow("there and back") << TAction([](TParameterStore& store) {
        store.SetParameter(PARAM_AREA_UNIT, 2, true);
        store.SetParameter(PARAM_AREA_UNIT, QVariant(), true);
        store.SetParameter(PARAM_AREA_UNIT, 1, true);
    });
    QTest::newRow("an abandoned hold") << TAction([](TParameterStore& store) {
        TPersistenceHold hold(store);
        store.SetParameter(PARAM_AREA_UNIT, 2, true);
        store.SetParameter(PARAM_CLIENT, QLatin1String("Smith"), true);
        hold.Abandon();
    });
}

void ParameterWatch::whatChangesNothingIsNotTold()
{
    QFETCH(std::function<void(TParameterStore&)>, action);
    TMemoryStore store;
    store.SetParameter(PARAM_AREA_UNIT, 1, true);
    TParameterWatch watch(store);
    TTold told(watch);
    action(store);
    QCOMPARE(told.Changes(), TChanges());
    // The watch is not stuck by what it did not tell.
    store.SetParameter(PARAM_METRIC, true, true);
    QCOMPARE(told.Changes(), (TChanges{{PARAM_METRIC, QVariant(), true}}));
}

void ParameterWatch::changesOfOneParameterAreToldAsOne()
{
    TMemoryStore store;
    TParameterWatch watch(store);
    TTold told(watch);
    for (int value = 1; value <= 5; ++value)
        store.SetParameter(PARAM_AREA_UNIT, value, true);
    QCOMPARE(told.Changes(), (TChanges{{PARAM_AREA_UNIT, QVariant(), 5}}));
    store.SetParameter(PARAM_AREA_UNIT, 6, true);
    QCOMPARE(told.Changes().last(), (tagParameterChange{PARAM_AREA_UNIT, 5, 6}));
}

void ParameterWatch::changesAreToldInTheOrderInWhichTheyBegan()
{
    TMemoryStore store;
    TParameterWatch watch(store);
    TTold told(watch);
    for (const int number : {7, 3, 9, 1})
        store.SetParameter(Param(number), number, true);
    store.SetParameter(Param(3), 4, true);
    store.SetParameter(Param(7), QVariant(), true); // back
    store.SetParameter(Param(7), 8, true);          // begins again
    QCOMPARE(told.Changes(),
             (TChanges{{3, QVariant(), 4}, {9, QVariant(), 9}, {1, QVariant(), 1}, {7, QVariant(), 8}}));
}

void ParameterWatch::aWatchOnNumbersTellsOfTheseAlone()
{
    TMemoryStore store;
    TParameterWatch watch(store, QSet<int>{PARAM_METRIC, PARAM_FARM});
    TTold told(watch);
    TParameterWatch watchOnNone(store, QSet<int>());
    TTold toldOfNone(watchOnNone);
    store.SetParameter(PARAM_AREA_UNIT, 1, true);
    store.SetParameter(PARAM_FARM, QLatin1String("Hill"), true);
    QCOMPARE(told.Changes(), (TChanges{{PARAM_FARM, QVariant(), QLatin1String("Hill")}}));
    QCOMPARE(toldOfNone.Changes(), TChanges());
}

void ParameterWatch::everyWatchIsTold()
{
    TMemoryStore store;
    TParameterWatch one(store);
    TParameterWatch another(store);
    TTold toldByOne(one);
    TTold toldByAnother(another);
    {
        TParameterWatch gone(store);
    }
    store.SetParameter(PARAM_AREA_UNIT, 1, true);
    const TChanges expected{{PARAM_AREA_UNIT, QVariant(), 1}};
    QCOMPARE(toldByOne.Changes(), expected);
    QCOMPARE(toldByAnother.Changes(), expected);
}

void ParameterWatch::aHoldIsToldAtOnceAndItsAbandonmentTakesItBack()
{
    TMemoryStore store;
    store.SetParameter(PARAM_AREA_UNIT, 1, true);
    TParameterWatch watch(store);
    TTold told(watch);
    TPersistenceHold hold(store);
    store.SetParameter(PARAM_AREA_UNIT, 2, true);
    store.SetParameter(PARAM_CLIENT, QLatin1String("Smith"), true);
    TChanges expected{{PARAM_AREA_UNIT, 1, 2}, {PARAM_CLIENT, QVariant(), QLatin1String("Smith")}};
    QCOMPARE(told.Changes(), expected);
    hold.Abandon();
    expected += {PARAM_CLIENT, QLatin1String("Smith"), QVariant()};
    expected += {PARAM_AREA_UNIT, 2, 1};
    QCOMPARE(told.Changes(), expected);
}

void ParameterWatch::changesOfAnotherStoreArrive_data()
{
    QTest::addColumn<QVariant>("before");
    QTest::addColumn<QVariant>("after");
    QTest::newRow("a new one") << QVariant() << QVariant(1);
    QTest::newRow("another value") << QVariant(1) << QVariant(2);
    QTest::newRow("another type") << QVariant(1) << QVariant(QLatin1String("1"));
    QTest::newRow("a removal") << QVariant(1) << QVariant();
}

void ParameterWatch::changesOfAnotherStoreArrive()
{
    QFETCH(QVariant, before);
    QFETCH(QVariant, after);
    const auto folder = MakeFolder();
    const QString path = folder->filePath(QLatin1String("settings.db"));
    const auto one = OpenStore(path);
    QVERIFY(one->SetParameter(PARAM_AREA_UNIT, before, true));
    const auto another = OpenStore(path);
    TParameterWatch watch(*one);
    TTold told(watch);
    QVERIFY(another->SetParameter(PARAM_AREA_UNIT, after, true));
    QTRY_COMPARE_WITH_TIMEOUT(told.Changes(), (TChanges{{PARAM_AREA_UNIT, before, after}}), SoonMilliseconds);
    // Once: the next change that arrives is the next one.
    QVERIFY(another->SetParameter(PARAM_METRIC, true, true));
    QTRY_COMPARE_WITH_TIMEOUT(told.Changes(),
                              (TChanges{{PARAM_AREA_UNIT, before, after}, {PARAM_METRIC, QVariant(), true}}),
                              SoonMilliseconds);
}

void ParameterWatch::aChangeOfAnotherProgramArrives()
{
    const auto folder = MakeFolder();
    const QString path = folder->filePath(QLatin1String("settings.db"));
    const auto store = OpenStore(path);
    TParameterWatch watch(*store);
    TTold told(watch);
    TChild child({SetInChild, path});
    QCOMPARE(child.NextNumber(), -1); // it has ended
    QTRY_COMPARE_WITH_TIMEOUT(told.Changes(), (TChanges{{PARAM_AREA_UNIT, QVariant(), 1}}), SoonMilliseconds);
}

void ParameterWatch::whatAnotherStoreSetsInMemoryAloneDoesNotArrive()
{
    const auto folder = MakeFolder();
    const QString path = folder->filePath(QLatin1String("settings.db"));
    const auto one = OpenStore(path);
    const auto another = OpenStore(path);
    TParameterWatch watch(*one);
    TTold told(watch);
    QVERIFY(another->SetParameter(PARAM_FARM, QLatin1String("Hill"), false));
    QVERIFY(another->SetParameter(PARAM_METRIC, true, true));
    QTRY_COMPARE_WITH_TIMEOUT(told.Changes(), (TChanges{{PARAM_METRIC, QVariant(), true}}), SoonMilliseconds);
}

void ParameterWatch::aReceiverMayChangeParameters()
{
    TMemoryStore store;
    TParameterWatch watch(store);
    TTold told(watch);
    connect(&watch, &TParameterWatch::Changed, [&](const tagParameterChange& change) {
        if (change.number == PARAM_AREA_UNIT)
            store.SetParameter(PARAM_SHORT_DISTANCE_UNIT, change.newValue, true);
    });
    store.SetParameter(PARAM_AREA_UNIT, 1, true);
    QTRY_COMPARE(told.Changes(),
                 (TChanges{{PARAM_AREA_UNIT, QVariant(), 1}, {PARAM_SHORT_DISTANCE_UNIT, QVariant(), 1}}));
}

void ParameterWatch::aReceiverMayDeleteTheWatch()
{
    TMemoryStore store;
    auto* const watch = new TParameterWatch(store);
    int count = 0;
    connect(watch, &TParameterWatch::Changed, [&] {
        ++count;
        delete watch;
    });
    store.SetParameter(PARAM_AREA_UNIT, 1, true);
    store.SetParameter(PARAM_METRIC, true, true);
    QCoreApplication::processEvents();
    store.SetParameter(PARAM_METRIC, false, true);
    QCoreApplication::processEvents();
    QCOMPARE(count, 1);
}

void ParameterWatch::aReceiverMayRunAnEventLoop()
{
    TMemoryStore store;
    TParameterWatch watch(store);
    TTold told(watch);
    bool isFirst = true;
    connect(&watch, &TParameterWatch::Changed, [&] {
        if (!isFirst)
            return;
        isFirst = false;
        store.SetParameter(PARAM_METRIC, false, true);
        QCoreApplication::processEvents();
    });
    store.SetParameter(PARAM_AREA_UNIT, 1, true);
    store.SetParameter(PARAM_METRIC, true, true);
    QCOMPARE(told.Changes(), (TChanges{{PARAM_AREA_UNIT, QVariant(), 1}, {PARAM_METRIC, QVariant(), false}}));
}

void ParameterWatch::theSignalComesInTheThreadOfTheWatch()
{
    TMemoryStore store;
    QThread thread;
    std::atomic<bool> isThere{false};
    std::atomic<int> inThread{0};
    std::atomic<int> elsewhere{0};
    QObject context;
    context.moveToThread(&thread);
    std::unique_ptr<TParameterWatch> watch;
    connect(&thread, &QThread::started, &context, [&] {
        watch = std::make_unique<TParameterWatch>(store);
        connect(watch.get(), &TParameterWatch::Changed,
                [&] { ++(QThread::currentThread() == &thread ? inThread : elsewhere); });
        isThere = true;
    });
    connect(
        &thread, &QThread::finished, &context, [&] { watch.reset(); }, Qt::DirectConnection);
    thread.start();
    QTRY_VERIFY_WITH_TIMEOUT(isThere, SoonMilliseconds);
    store.SetParameter(PARAM_AREA_UNIT, 1, true);
    QTRY_COMPARE_WITH_TIMEOUT(inThread.load(), 1, SoonMilliseconds);
    thread.quit();
    QVERIFY(thread.wait());
    QCOMPARE(elsewhere.load(), 0);
    QVERIFY(!watch);
}

void ParameterWatch::aSlowReceiverMissesIntermediateValuesOnly()
{
    TMemoryStore store;
    TParameterWatch watch(store);
    QMap<int, QVariant> known;
    int breaks = 0;
    int count = 0;
    connect(&watch, &TParameterWatch::Changed, [&](const tagParameterChange& change) {
        ++count;
        if (known.value(change.number) != change.oldValue || change.oldValue == change.newValue)
            ++breaks;
        known[change.number] = change.newValue;
    });
    std::atomic<int> running{ThreadCount};
    std::vector<std::thread> threads = StartThreads([&](int thread) {
        for (int round = 1; round <= Rounds; ++round)
            store.SetParameter(Param(round % ParameterCount), thread * Rounds + round, round % 2 == 0);
        --running;
    });
    while (running > 0)
        QCoreApplication::processEvents();
    for (std::thread& thread : threads)
        thread.join();
    QCoreApplication::processEvents();
    QCOMPARE(breaks, 0);
    QCOMPARE(known, store.Values());
    QVERIFY(count >= ParameterCount);
    QVERIFY(count <= ThreadCount * Rounds);
}

void ParameterWatch::aWatchMayGoWhileParametersChange()
{
    TMemoryStore store;
    std::atomic<bool> isEnded{false};
    std::vector<std::thread> threads = StartThreads([&](int thread) {
        for (int round = 0; !isEnded; ++round)
            store.SetParameter(Param(thread), round, false);
    });
    int count = 0;
    for (int round = 0; round < 300 || count == 0; ++round) {
        TParameterWatch watch(store);
        connect(&watch, &TParameterWatch::Changed, [&] { ++count; });
        if (round % 2 == 0)
            QCoreApplication::processEvents();
    }
    isEnded = true;
    for (std::thread& thread : threads)
        thread.join();
    QCoreApplication::processEvents(); // events for watches that are gone do no harm
    QVERIFY(count > 0);
}

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1) == SetInChild)
        return RunChild(arguments.at(2));
    ParameterWatch test;
    return QTest::qExec(&test, argc, argv);
}
#include "ParameterWatch.moc"
