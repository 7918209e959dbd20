#include "../../system/TPrivateMounts.h"
#include "StoreTestSupport.h"
#include "copies/StoreCopies.h"
#include "stores/ChangeJournal.h"
#include "stores/TPersistenceHold.h"

#include <QCoreApplication>
#include <QDir>
#include <QtTest>

namespace {

const int ParameterCount = 40;
const int PageSize = 4096;
const int MostPages = 120; // that a restore needs
const int Step = 15;

/// Values that fill pages, so that a restore needs room.
bool SetAll(TSqliteStore& store, char letter)
{
    TPersistenceHold hold(store);
    for (int number = 0; number < ParameterCount; ++number)
        store.SetParameter(Param(number), QString(2000, QLatin1Char(letter)), true);
    return hold.Release();
}

} // namespace

/// Restores that find no room on the disk, or that may not write to it.
class RestoreFailures : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup() { m_Drive.reset(); }

    void aFullDiskIsSaidAndTheStoreStaysWhole();
    void aProgramRestoresAllOrNothing_data();
    void aProgramRestoresAllOrNothing();
    void aReadOnlyDriveIsSaidAndTheStoreStaysWhole();

private:
    void Fill(int pagesLeft) const;
    void MakeRoom() const { QVERIFY(QFile::remove(m_Folder->filePath(QLatin1String("drive/filler")))); }
    int Restores() const;

    std::unique_ptr<QTemporaryDir> m_Folder;
    std::unique_ptr<TMemoryDrive> m_Drive; ///< in the folder
    QString m_Path;
    QString m_Copy;
    QByteArray m_StoreBytes;
    QByteArray m_CopyBytes;
    QMap<int, QVariant> m_Old;
    QMap<int, QVariant> m_New;
};

// A store, and a copy with other values.
void RestoreFailures::initTestCase()
{
    const auto folder = MakeFolder();
    const QString path = folder->filePath(QLatin1String("settings.db"));
    QVERIFY(SetAll(*OpenStore(path), 'n'));
    m_CopyBytes = FileBytes(path + QLatin1String(".good"));
    m_New = StoredValues(path);
    QVERIFY(SetAll(*OpenStore(path), 'o'));
    m_StoreBytes = FileBytes(path);
    m_Old = StoredValues(path);
    QVERIFY(m_Old.size() == m_New.size() && m_Old != m_New);
}

// Both on a drive of their own.
void RestoreFailures::init()
{
    if (!PrivateMounts::ArePermitted())
        QSKIP("Mounting is not permitted here.");
    m_Folder = MakeFolder();
    const QString drive = m_Folder->filePath(QLatin1String("drive"));
    QVERIFY(QDir().mkdir(drive));
    m_Drive = std::make_unique<TMemoryDrive>(drive, "size=4m");
    QVERIFY(m_Drive->IsMounted());
    m_Path = drive + QLatin1String("/settings.db");
    m_Copy = m_Path + QLatin1String(".copies/2001-02-03.db"); // an old one, which no program makes anew
    SetFileBytes(m_Path, m_StoreBytes);
    QVERIFY(OpenStore(m_Path)); // makes the copies that every store has
    SetFileBytes(m_Copy, m_CopyBytes);
}

void RestoreFailures::Fill(int pagesLeft) const
{
    const QString room = m_Folder->filePath(QLatin1String("drive/room"));
    SetFileBytes(room, QByteArray(pagesLeft * PageSize, 'x'));
    QFile filler(m_Folder->filePath(QLatin1String("drive/filler")));
    QVERIFY(filler.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
    const QByteArray page(PageSize, 'x');
    while (filler.write(page) == page.size()) {
    }
    QVERIFY(QFile::remove(room));
}

/// The number of changes that the journal says are of a restore.
int RestoreFailures::Restores() const
{
    const auto store = OpenStore(m_Path);
    ChangeJournal::tagJournal journal;
    QString error;
    if (!ChangeJournal::Read(*store, {std::nullopt, 10000}, &journal, &error) || !journal.damaged.isEmpty())
        return -1;
    int count = 0;
    for (const ChangeJournal::tagEntry& entry : std::as_const(journal.entries))
        count += entry.author == QLatin1String("restore") ? 1 : 0;
    return count;
}

void RestoreFailures::aFullDiskIsSaidAndTheStoreStaysWhole()
{
    auto store = OpenStore(m_Path);
    const auto copy = StoreCopies::List(m_Path).last();
    Fill(0);
    TStandardErrorCapture standardError;
    QList<StoreCopies::tagDifference> changed;
    QString error;
    QVERIFY(!StoreCopies::Restore(*store, copy, &changed, &error));
    QCOMPARE(error, QString(QString::fromLatin1("%1 cannot be restored: the parameters cannot be stored").arg(m_Copy)));
    QCOMPARE(standardError.Lines(),
             QStringList(m_Path + QLatin1String(" cannot be written: database or disk is full")));
    QVERIFY(changed.isEmpty());
    QCOMPARE(store->Values(), m_Old);
    // With room again, a later write does not bring the restore after all.
    MakeRoom();
    QVERIFY(store->SetParameter(Param(ParameterCount), 1, true));
    QMap<int, QVariant> expected = m_Old;
    expected.insert(ParameterCount, 1);
    QCOMPARE(store->Values(), expected);
    store.reset();
    QCOMPARE(StoredValues(m_Path), expected);
    QCOMPARE(Restores(), 0);
}

void RestoreFailures::aProgramRestoresAllOrNothing_data()
{
    QTest::addColumn<int>("pages");
    for (int pages = 0; pages <= MostPages; pages += Step)
        QTest::addRow("%d pages", pages) << pages;
}

// Opens the store, restores and closes it with so many pages left on the disk.
void RestoreFailures::aProgramRestoresAllOrNothing()
{
    QFETCH(int, pages);
    Fill(pages);
    bool isRestored = false;
    QString error;
    {
        TStandardErrorCapture standardError;
        const auto store = TSqliteStore::Open(m_Path, &error);
        QList<StoreCopies::tagDifference> changed;
        isRestored = store && StoreCopies::Restore(*store, StoreCopies::List(m_Path).last(), &changed, &error);
    }
    QVERIFY2(isRestored || error.startsWith(m_Path), qPrintable(error));
    QVERIFY2(isRestored || pages < MostPages, qPrintable(error));
    QVERIFY(!isRestored || pages > 0);
    MakeRoom();
    QVERIFY(StoredValues(m_Path) == (isRestored ? m_New : m_Old));
    QCOMPARE(Restores(), isRestored ? ParameterCount : 0);
    QCOMPARE(NamesBeside(m_Path).filter(QLatin1String(".new")), QStringList());
}

void RestoreFailures::aReadOnlyDriveIsSaidAndTheStoreStaysWhole()
{
    QVERIFY(m_Drive->MountAgain(MS_RDONLY, "size=4m"));
    QString error;
    QVERIFY(!TSqliteStore::Open(m_Path, &error));
    QCOMPARE(error,
             QString(QString::fromLatin1("%1 cannot be used: cannot make %1.lock: Read-only file system").arg(m_Path)));
    QVERIFY(m_Drive->MountAgain(0, "size=4m"));
    QCOMPARE(StoredValues(m_Path), m_Old);
    QCOMPARE(Restores(), 0);
}

int main(int argc, char** argv)
{
    PrivateMounts::Enter();
    const QCoreApplication application(argc, argv);
    RestoreFailures test;
    return QTest::qExec(&test, argc, argv);
}
#include "RestoreFailures.moc"
