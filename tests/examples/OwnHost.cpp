#include "CoreTest.h"
#include "TStore.h"
#include "TTemporaryFolder.h"
#include "platform/TFileSystemHelper.h"

#include <atomic>
#include <thread>
#include <vector>

class OwnHost : public QObject
{
    Q_OBJECT

private slots:
    void theStoreServesSeveralThreads();
    void anExistingFileIsReplacedOnlyWhenAllowed_data();
    void anExistingFileIsReplacedOnlyWhenAllowed();
    void whatCannotBeCopiedLeavesTheTarget();
};

namespace {

const QLatin1String Source("source");
const QLatin1String Target("target");

} // namespace

void OwnHost::theStoreServesSeveralThreads()
{
    const int threads = 4;
    const int rounds = 5000;
    TStore store;
    std::atomic<int> wrong{0};
    std::vector<std::thread> workers;
    for (int number = 0; number < threads; ++number)
        workers.emplace_back([&store, &wrong, number] {
            for (int round = 0; round < rounds; ++round) {
                const EParamID mine = static_cast<EParamID>(number * rounds + round);
                const EParamID another = static_cast<EParamID>((number * rounds + round * 7) % (threads * rounds));
                store.SetParameter(mine, QString::number(mine), true);
                const QVariant value = store.GetParameter(another);
                const bool isRight = !value.isValid() || value == QVariant(QString::number(another));
                wrong += isRight && store.HasParameter(mine) ? 0 : 1;
            }
        });
    for (std::thread& worker : workers)
        worker.join();
    QCOMPARE(wrong.load(), 0);
    for (int id = 0; id < threads * rounds; ++id)
        QCOMPARE(store.GetParameter(static_cast<EParamID>(id)), QVariant(QString::number(id)));
}

void OwnHost::anExistingFileIsReplacedOnlyWhenAllowed_data()
{
    QTest::addColumn<bool>("isThere");
    QTest::addColumn<bool>("overwrite");
    QTest::addColumn<bool>("isCopied");
    QTest::newRow("there, allowed") << true << true << true;
    QTest::newRow("there, not allowed") << true << false << false;
    QTest::newRow("not there, allowed") << false << true << true;
    QTest::newRow("not there, not allowed") << false << false << true;
}

void OwnHost::anExistingFileIsReplacedOnlyWhenAllowed()
{
    QFETCH(bool, isThere);
    QFETCH(bool, overwrite);
    QFETCH(bool, isCopied);
    const TTemporaryFolder folder;
    folder.MakeFile(Source, "new");
    if (isThere)
        folder.MakeFile(Target, "old and longer");
    QCOMPARE(TFileSystemHelper::FileCopy(folder.Path(Source), folder.Path(Target), overwrite), isCopied);
    QCOMPARE(folder.Content(Target), isCopied ? QByteArray("new") : QByteArray("old and longer"));
    QCOMPARE(folder.Entries(), QStringList() << Source << Target);
}

void OwnHost::whatCannotBeCopiedLeavesTheTarget()
{
    const TTemporaryFolder folder;
    folder.MakeFile(Target, "old");
    QVERIFY(!TFileSystemHelper::FileCopy(folder.Path(Source), folder.Path(Target), true));
    QVERIFY(!TFileSystemHelper::FileCopy(folder.Path(), folder.Path(Target), true));
    QVERIFY(!TFileSystemHelper::FileCopy(folder.Path(Target), folder.Path(QLatin1String("nowhere/target")), true));
    QCOMPARE(folder.Content(Target), QByteArray("old"));
    QCOMPARE(folder.Entries(), QStringList(Target));
}

int main(int argc, char** argv) { return RunCoreTest<OwnHost>(argc, argv); }
#include "OwnHost.moc"
