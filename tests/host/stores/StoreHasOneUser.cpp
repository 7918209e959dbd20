#include "StoreTestSupport.h"

#include <QCoreApplication>
#include <QFile>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QTemporaryDir>
#include <QtTest>

#include <thread>
#include <unistd.h>

namespace {

const QLatin1String OpenAndWait("open-and-wait");

// The child: opens the store, says so and stays.
int Stay(const QString& path)
{
    const auto store = OpenStore(path);
    TChild::Tell(store ? 1 : -1);
    for (;;)
        pause();
}

} // namespace

class StoreHasOneUser : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void aSecondStoreInTheSameProgramIsRefused();
    void aStoreInAnotherProgramIsRefused();
    void aSecondStoreWaitsForTheFirstToClose();
    void theLockOfADeadProgramDoesNotCount();
    void aLockFileThatNobodyHoldsDoesNotCount();
    void aBusyDatabaseIsSaidAfterAWhile();

private:
    std::unique_ptr<QTemporaryDir> m_Folder;
    QString m_Path;
};

void StoreHasOneUser::init()
{
    m_Folder = std::make_unique<QTemporaryDir>();
    m_Path = m_Folder->filePath(QLatin1String("settings.db"));
}

void StoreHasOneUser::aSecondStoreInTheSameProgramIsRefused()
{
    const auto store = OpenStore(m_Path);
    QString error;
    QVERIFY(!TSqliteStore::Open(m_Path, &error));
    QCOMPARE(error, QString::fromLatin1("%1 cannot be used: in use by another program: %1.lock is locked").arg(m_Path));
    QVERIFY(store->SetParameter(PARAM_METRIC, true, true));
}

void StoreHasOneUser::aStoreInAnotherProgramIsRefused()
{
    TChild child({OpenAndWait, m_Path});
    QCOMPARE(child.NextNumber(), 1);
    const QStringList names = NamesBeside(m_Path);
    QString error;
    QVERIFY(!TSqliteStore::Open(m_Path, &error));
    QVERIFY(error.contains(QLatin1String("in use by another program")));
    QCOMPARE(NamesBeside(m_Path), names);
}

void StoreHasOneUser::aSecondStoreWaitsForTheFirstToClose()
{
    auto first = OpenStore(m_Path);
    first->SetParameter(PARAM_METRIC, true, true);
    std::unique_ptr<TSqliteStore> second;
    std::thread opening([&] { second = OpenStore(m_Path); });
    first.reset();
    opening.join();
    QVERIFY(second != nullptr);
    QCOMPARE(second->GetParameter(PARAM_METRIC), QVariant(true));
}

void StoreHasOneUser::theLockOfADeadProgramDoesNotCount()
{
    TChild child({OpenAndWait, m_Path});
    QCOMPARE(child.NextNumber(), 1);
    child.Kill();
    QVERIFY(child.WasKilled());
    QVERIFY(QFile::exists(m_Path + QLatin1String(".lock")));
    QVERIFY(OpenStore(m_Path) != nullptr);
    QVERIFY(!QFile::exists(m_Path + QLatin1String(".lock")));
}

void StoreHasOneUser::aLockFileThatNobodyHoldsDoesNotCount()
{
    SetFileBytes(m_Path + QLatin1String(".lock"), "412\n");
    QVERIFY(OpenStore(m_Path) != nullptr);
}

void StoreHasOneUser::aBusyDatabaseIsSaidAfterAWhile()
{
    const auto store = OpenStore(m_Path);
    TStandardErrorCapture standardError;
    {
        QSqlDatabase other = QSqlDatabase::addDatabase(QLatin1String("QSQLITE"), QLatin1String("other"));
        other.setDatabaseName(m_Path);
        QVERIFY(other.open());
        QVERIFY(QSqlQuery(other).exec(QLatin1String("BEGIN IMMEDIATE")));
        QVERIFY(!store->SetParameter(PARAM_METRIC, true, true));
        QCOMPARE(store->GetParameter(PARAM_METRIC), QVariant(true));
        QCOMPARE(standardError.Lines(),
                 QStringList(m_Path + QLatin1String(" cannot be written: in use by another program")));
        QVERIFY(QSqlQuery(other).exec(QLatin1String("ROLLBACK")));
    }
    QSqlDatabase::removeDatabase(QLatin1String("other"));
    QVERIFY(store->SetParameter(PARAM_METRIC, true, true));
    QCOMPARE(standardError.Lines().size(), 1);
}

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1) == OpenAndWait)
        return Stay(arguments.value(2));
    StoreHasOneUser test;
    return QTest::qExec(&test, argc, argv);
}
#include "StoreHasOneUser.moc"
