#include "StoreTestSupport.h"
#include "stores/TPersistenceHold.h"

#include <QFile>
#include <QtTest>

#include <atomic>
#include <thread>
#include <vector>

/// Several stores of one program on one file. They know as little of each other as stores of several programs.
class StoresShareOneFile : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void aChangeIsSeenByTheOthersWithinASecond_data();
    void aChangeIsSeenByTheOthersWithinASecond();
    void aChangeOfManyIsSeenAtOnceOrNotAtAll();
    void aLateComerStartsWithWhatIsThere();
    void writersOfDifferentParametersLoseNothing();
    void writersOfOneParameterEndWithOneValue();
    void aStaleValueDoesNotSwallowAWrite();

    void aValueInMemoryAloneStaysUntilOthersChangeIt();
    void aValueInMemoryAloneIsNotSeenByOthers();
    void aHoldKeepsOthersChangesOut();
    void selectionsThatAreWrittenBackDoNotUndoOthersChoice();

    void theRevisionTellsOfOthersChanges();
    void aRowThatBecomesUnreadableIsSaidAndAbsent();
    void aRowThatDoesNotMatchItsDigestIsNotTaken();
    void theNextWriteRepairsARowThatDoesNotMatchItsDigest();

private:
    TSqliteStore& Open();

    std::unique_ptr<QTemporaryDir> m_Folder;
    QString m_Path;
    std::vector<std::unique_ptr<TSqliteStore>> m_Stores;
};

void StoresShareOneFile::init()
{
    m_Folder = MakeFolder();
    m_Path = m_Folder->filePath(QLatin1String("settings.db"));
}

void StoresShareOneFile::cleanup() { m_Stores.clear(); }

TSqliteStore& StoresShareOneFile::Open()
{
    m_Stores.push_back(OpenStore(m_Path));
    return *m_Stores.back();
}

void StoresShareOneFile::aChangeIsSeenByTheOthersWithinASecond_data()
{
    QTest::addColumn<QVariant>("before");
    QTest::addColumn<QVariant>("after");
    QTest::newRow("a new one") << QVariant() << QVariant(1);
    QTest::newRow("another value") << QVariant(1) << QVariant(2);
    QTest::newRow("another type") << QVariant(1) << QVariant(QLatin1String("1"));
    QTest::newRow("a removal") << QVariant(1) << QVariant();
}

void StoresShareOneFile::aChangeIsSeenByTheOthersWithinASecond()
{
    QFETCH(QVariant, before);
    QFETCH(QVariant, after);
    TSqliteStore& one = Open();
    QVERIFY(one.SetParameter(PARAM_AREA_UNIT, before, true));
    TSqliteStore& another = Open();
    TSqliteStore& third = Open();
    QCOMPARE(another.GetParameter(PARAM_AREA_UNIT), before);

    QVERIFY(another.SetParameter(PARAM_AREA_UNIT, after, true));
    QTRY_COMPARE_WITH_TIMEOUT(one.GetParameter(PARAM_AREA_UNIT), after, SharingMilliseconds);
    QTRY_COMPARE_WITH_TIMEOUT(third.GetParameter(PARAM_AREA_UNIT), after, SharingMilliseconds);
    QCOMPARE(one.HasParameter(PARAM_AREA_UNIT), after.isValid());
}

void StoresShareOneFile::aChangeOfManyIsSeenAtOnceOrNotAtAll()
{
    const int count = 50;
    const int rounds = 40;
    TSqliteStore& one = Open();
    TSqliteStore& another = Open();
    std::atomic<bool> isFailed{false};
    std::atomic<bool> isEnded{false};
    std::thread writer([&] {
        for (int round = 0; round < rounds; ++round) {
            TPersistenceHold hold(one);
            for (int id = 0; id < count; ++id)
                one.SetParameter(Param(id), round, true);
            if (!hold.Release())
                isFailed = true;
        }
        isEnded = true;
    });
    int mixtures = 0;
    while (!isEnded) {
        // A write takes in the changes that the store has not seen yet.
        another.SetParameter(PARAM_METRIC, !another.GetParameter(PARAM_METRIC).toBool(), true);
        QMap<int, QVariant> values = another.Values();
        values.remove(PARAM_METRIC);
        for (const QVariant& value : std::as_const(values))
            if (values.size() != count || value != values.first())
                ++mixtures;
    }
    writer.join();
    QVERIFY(!isFailed);
    QCOMPARE(mixtures, 0);
    QTRY_COMPARE_WITH_TIMEOUT(another.GetParameter(Param(0)), QVariant(rounds - 1), SoonMilliseconds);
}

void StoresShareOneFile::aLateComerStartsWithWhatIsThere()
{
    TSqliteStore& one = Open();
    for (int id = 0; id < 10; ++id) {
        QVERIFY(one.SetParameter(Param(id), id, true));
        QCOMPARE(Open().Values(), one.Values());
    }
}

void StoresShareOneFile::writersOfDifferentParametersLoseNothing()
{
    const int storeCount = 4;
    const int rounds = 100;
    QMap<int, QVariant> expected;
    for (int store = 0; store < storeCount; ++store)
        Open();
    std::atomic<int> failures{0};
    std::vector<std::thread> threads;
    for (int store = 0; store < storeCount; ++store) {
        expected[store] = rounds - 1;
        threads.emplace_back([&, store] {
            for (int round = 0; round < rounds; ++round)
                if (!m_Stores.at(static_cast<size_t>(store))->SetParameter(Param(store), round, true))
                    ++failures;
        });
    }
    for (std::thread& thread : threads)
        thread.join();
    QCOMPARE(failures.load(), 0);
    for (const auto& store : m_Stores)
        QTRY_COMPARE_WITH_TIMEOUT(store->Values(), expected, SoonMilliseconds);
    cleanup();
    QCOMPARE(StoredValues(m_Path), expected);
}

void StoresShareOneFile::writersOfOneParameterEndWithOneValue()
{
    const int storeCount = 3;
    const int rounds = 100;
    for (int store = 0; store < storeCount; ++store)
        Open();
    std::vector<std::thread> threads;
    for (int store = 0; store < storeCount; ++store)
        threads.emplace_back([&, store] {
            for (int round = 0; round < rounds; ++round)
                m_Stores.at(static_cast<size_t>(store))->SetParameter(PARAM_AREA_UNIT, store * rounds + round, true);
        });
    for (std::thread& thread : threads)
        thread.join();

    const QVariant last = Open().GetParameter(PARAM_AREA_UNIT);
    QCOMPARE(last.toInt() % rounds, rounds - 1); // the last value of one of the stores
    for (const auto& store : m_Stores)
        QTRY_COMPARE_WITH_TIMEOUT(store->GetParameter(PARAM_AREA_UNIT), last, SoonMilliseconds);
}

void StoresShareOneFile::aStaleValueDoesNotSwallowAWrite()
{
    TSqliteStore& one = Open();
    TSqliteStore& another = Open();
    // Faster than the stores look at the file by themselves.
    for (int round = 0; round < 100; ++round) {
        QVERIFY(one.SetParameter(PARAM_AREA_UNIT, 1, true));
        QVERIFY(another.SetParameter(PARAM_AREA_UNIT, 2, true));
    }
    QVERIFY(one.SetParameter(PARAM_AREA_UNIT, 1, true));
    QCOMPARE(Open().GetParameter(PARAM_AREA_UNIT), QVariant(1));
}

void StoresShareOneFile::aValueInMemoryAloneStaysUntilOthersChangeIt()
{
    TSqliteStore& one = Open();
    TSqliteStore& another = Open();
    QVERIFY(one.SetParameter(PARAM_INTERNAL_DRIVE, QLatin1String("/mnt/a/"), true));
    QVERIFY(one.SetParameter(PARAM_INTERNAL_DRIVE, QLatin1String("/mnt/b/"), false));
    QVERIFY(another.SetParameter(PARAM_METRIC, true, true));
    QTRY_COMPARE_WITH_TIMEOUT(one.GetParameter(PARAM_METRIC), QVariant(true), SoonMilliseconds);
    QCOMPARE(one.GetParameter(PARAM_INTERNAL_DRIVE), QVariant(QLatin1String("/mnt/b/")));

    QVERIFY(another.SetParameter(PARAM_INTERNAL_DRIVE, QLatin1String("/mnt/c/"), true));
    QTRY_COMPARE_WITH_TIMEOUT(one.GetParameter(PARAM_INTERNAL_DRIVE), QVariant(QLatin1String("/mnt/c/")),
                              SoonMilliseconds);
}

void StoresShareOneFile::aValueInMemoryAloneIsNotSeenByOthers()
{
    TSqliteStore& one = Open();
    TSqliteStore& another = Open();
    QVERIFY(one.SetParameter(PARAM_FARM, QLatin1String("Hill"), false));
    QVERIFY(one.SetParameter(PARAM_METRIC, true, true));
    QTRY_COMPARE_WITH_TIMEOUT(another.GetParameter(PARAM_METRIC), QVariant(true), SoonMilliseconds);
    QVERIFY(!another.HasParameter(PARAM_FARM));
}

void StoresShareOneFile::aHoldKeepsOthersChangesOut()
{
    TSqliteStore& one = Open();
    TSqliteStore& another = Open();
    TSqliteStore& third = Open();
    TPersistenceHold hold(one);
    QVERIFY(another.SetParameter(PARAM_AREA_UNIT, 2, true));
    // The other store looks at the file as often, and has had time to look twice.
    QTRY_COMPARE_WITH_TIMEOUT(third.GetParameter(PARAM_AREA_UNIT), QVariant(2), SoonMilliseconds);
    QVERIFY(another.SetParameter(PARAM_AREA_UNIT, 3, true));
    QTRY_COMPARE_WITH_TIMEOUT(third.GetParameter(PARAM_AREA_UNIT), QVariant(3), SoonMilliseconds);
    QVERIFY(!one.HasParameter(PARAM_AREA_UNIT));
    QVERIFY(hold.Release());
    QCOMPARE(one.GetParameter(PARAM_AREA_UNIT), QVariant(3));
}

void StoresShareOneFile::selectionsThatAreWrittenBackDoNotUndoOthersChoice()
{
    TSqliteStore& running = Open();
    QVERIFY(running.SetParameter(PARAM_ACTIVE_JOB, QLatin1String("north"), true));
    QVERIFY(running.SetParameter(PARAM_ACTIVE_VEHICLE, QLatin1String("old tractor"), true));
    TSqliteStore& starting = Open();
    {
        const TPersistenceHold hold(starting);
        const QVariant job = starting.GetParameter(PARAM_ACTIVE_JOB);
        starting.SetParameter(PARAM_ACTIVE_JOB, QLatin1String("built in"), true);
        starting.SetParameter(PARAM_ACTIVE_VEHICLE, QLatin1String("new tractor"), true);
        QVERIFY(running.SetParameter(PARAM_ACTIVE_JOB, QLatin1String("south"), true));
        starting.SetParameter(PARAM_ACTIVE_JOB, job, true);
    }
    const QMap<int, QVariant> expected{{PARAM_ACTIVE_JOB, QLatin1String("south")},
                                       {PARAM_ACTIVE_VEHICLE, QLatin1String("new tractor")}};
    QCOMPARE(starting.Values(), expected);
    QTRY_COMPARE_WITH_TIMEOUT(running.Values(), expected, SoonMilliseconds);
}

void StoresShareOneFile::theRevisionTellsOfOthersChanges()
{
    TSqliteStore& one = Open();
    TSqliteStore& another = Open();
    const quint64 before = one.Revision();
    QVERIFY(another.SetParameter(PARAM_METRIC, true, true));
    QTRY_VERIFY_WITH_TIMEOUT(one.Revision() > before, SoonMilliseconds);
    QCOMPARE(one.GetParameter(PARAM_METRIC), QVariant(true));
}

void StoresShareOneFile::aRowThatBecomesUnreadableIsSaidAndAbsent()
{
    TSqliteStore& one = Open();
    QVERIFY(one.SetParameter(PARAM_CLIENT, QLatin1String("Smith"), true));
    TStandardErrorCapture standardError;
    RunSql(m_Path, QLatin1String("UPDATE parameters SET type = 'date', digest = NULL"));
    QTRY_VERIFY_WITH_TIMEOUT(!one.HasParameter(PARAM_CLIENT), SoonMilliseconds);
    for (int value = 0; value < 3; ++value) {
        RunSql(m_Path, QString::fromLatin1("INSERT OR REPLACE INTO parameters (id, type, value) "
                                           "VALUES (8960, 'int', '%1')")
                           .arg(value));
        QTRY_COMPARE_WITH_TIMEOUT(one.GetParameter(PARAM_AREA_UNIT), QVariant(value), SoonMilliseconds);
    }
    QCOMPARE(standardError.Lines(), QStringList(QLatin1String("parameter 8932 cannot be read: date \"Smith\"")));
    QVERIFY(one.SetParameter(PARAM_CLIENT, QLatin1String("Jones"), true));
    QCOMPARE(Open().GetParameter(PARAM_CLIENT), QVariant(QLatin1String("Jones")));
}

void StoresShareOneFile::aRowThatDoesNotMatchItsDigestIsNotTaken()
{
    TSqliteStore& one = Open();
    QVERIFY(one.SetParameter(PARAM_CLIENT, QLatin1String("Smith"), true));
    TStandardErrorCapture standardError;
    RunSql(m_Path, QLatin1String("UPDATE parameters SET value = 'Smyth'"));
    const QStringList said(QLatin1String("parameter 8932 cannot be read: it does not match its digest"));
    QTRY_COMPARE_WITH_TIMEOUT(standardError.Lines(), said, SoonMilliseconds);
    QCOMPARE(one.GetParameter(PARAM_CLIENT), QVariant(QLatin1String("Smith")));

    RunSql(m_Path, QLatin1String("UPDATE parameters SET digest = NULL"));
    QTRY_COMPARE_WITH_TIMEOUT(one.GetParameter(PARAM_CLIENT), QVariant(QLatin1String("Smyth")), SoonMilliseconds);
    QVERIFY(one.SetParameter(PARAM_METRIC, false, true));
    QCOMPARE(standardError.Lines(), said);
}

void StoresShareOneFile::theNextWriteRepairsARowThatDoesNotMatchItsDigest()
{
    const QString select = QLatin1String("SELECT value FROM parameters WHERE id = 8932");
    TSqliteStore& one = Open();
    TSqliteStore& another = Open();
    QVERIFY(one.SetParameter(PARAM_CLIENT, QLatin1String("Smith"), true));
    QTRY_COMPARE_WITH_TIMEOUT(another.GetParameter(PARAM_CLIENT), QVariant(QLatin1String("Smith")), SoonMilliseconds);
    TStandardErrorCapture standardError;
    RunSql(m_Path, QLatin1String("UPDATE parameters SET value = 'Smyth'"));
    QVERIFY(one.SetParameter(PARAM_METRIC, true, true));
    QCOMPARE(RunSql(m_Path, select).toString(), QLatin1String("Smith"));
    QTRY_COMPARE_WITH_TIMEOUT(another.GetParameter(PARAM_METRIC), QVariant(true), SoonMilliseconds);
    QCOMPARE(another.GetParameter(PARAM_CLIENT), QVariant(QLatin1String("Smith")));
    QCOMPARE(Open().GetParameter(PARAM_CLIENT), QVariant(QLatin1String("Smith")));
}

QTEST_GUILESS_MAIN(StoresShareOneFile)
#include "StoresShareOneFile.moc"
