#include "../platform/FolderSyncError.h"
#include "StoreTestSupport.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

#include <fcntl.h>
#include <sched.h>
#include <sys/mount.h>
#include <unistd.h>

#include <cerrno>

namespace {

const QLatin1String Good(".good");

bool WriteSystemFile(const char* path, const QByteArray& text)
{
    const int file = open(path, O_WRONLY | O_CLOEXEC);
    const bool isWritten = file >= 0 && write(file, text.constData(), static_cast<size_t>(text.size())) == text.size();
    if (file >= 0)
        close(file);
    return isWritten;
}

// Gives this process its own mounts, which end with it. Must be called before a second thread exists.
bool SeparateMounts()
{
    const uid_t user = getuid();
    const gid_t group = getgid();
    if (user != 0) {
        if (unshare(CLONE_NEWUSER | CLONE_NEWNS) != 0)
            return false;
        const bool isMapped = WriteSystemFile("/proc/self/uid_map", "0 " + QByteArray::number(user) + " 1") &&
                              WriteSystemFile("/proc/self/setgroups", "deny") &&
                              WriteSystemFile("/proc/self/gid_map", "0 " + QByteArray::number(group) + " 1");
        if (!isMapped)
            return false;
    } else if (unshare(CLONE_NEWNS) != 0) {
        return false;
    }
    return mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0;
}

bool HasMounts = false;

} // namespace

class StoreWriteFailures : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void aFullDiskIsSaidOnceAndMemoryGoesOn();
    void aValueTooLargeForTheDiskDoesNotKeepOthersFromIt();
    void aReleaseOnAFullDiskIsAllOrNothing();
    void openingNeedsNoMoreRoomThanThereIs_data();
    void openingNeedsNoMoreRoomThanThereIs();
    void recoveringWithoutRoomLosesNothing_data();
    void recoveringWithoutRoomLosesNothing();
    void repairingARowWithoutRoomLosesNothing_data();
    void repairingARowWithoutRoomLosesNothing();
    void aDriveThatCannotSyncFoldersIsAccepted_data();
    void aDriveThatCannotSyncFoldersIsAccepted();
    void aDriveThatIsGoneIsSaid();
    void aReadOnlyDriveIsRefusedAtOpening();

    void aFolderThatIsRemovedIsSaid();
    void aFileThatIsReplacedIsSaid();
    void aFolderThatComesBackIsWrittenAgain();
    void anotherReasonIsSaidAgain();

private:
    bool Mount(const char* options);
    void Fill();
    void MakeRoom();

    std::unique_ptr<QTemporaryDir> m_Folder;
    QString m_Drive;
    QString m_Path;
};

void StoreWriteFailures::init()
{
    m_Folder = std::make_unique<QTemporaryDir>();
    m_Drive = m_Folder->filePath(QLatin1String("drive"));
    QVERIFY(QDir().mkdir(m_Drive));
    m_Path = m_Drive + QLatin1String("/settings.db");
}

void StoreWriteFailures::cleanup() { umount2(QFile::encodeName(m_Drive).constData(), MNT_DETACH); }

bool StoreWriteFailures::Mount(const char* options)
{
    return HasMounts && mount("tmpfs", QFile::encodeName(m_Drive).constData(), "tmpfs", 0, options) == 0;
}

// Fills the drive.
void StoreWriteFailures::Fill()
{
    QFile filler(m_Drive + QLatin1String("/filler"));
    QVERIFY(filler.open(QIODevice::WriteOnly | QIODevice::Append | QIODevice::Unbuffered));
    const QByteArray block(4096, 'x');
    while (filler.write(block) == block.size()) {
    }
}

void StoreWriteFailures::MakeRoom() { QVERIFY(QFile::remove(m_Drive + QLatin1String("/filler"))); }

void StoreWriteFailures::aFullDiskIsSaidOnceAndMemoryGoesOn()
{
    if (!Mount("size=512k"))
        QSKIP("no permission to mount");
    auto store = OpenStore(m_Path);
    QVERIFY(store->SetParameter(PARAM_METRIC, false, true));
    Fill();
    TStandardErrorCapture standardError;
    for (int id = 1; id <= 10; ++id)
        QVERIFY(!store->SetParameter(Param(id), QString(5000, QLatin1Char('x')), true));
    QCOMPARE(store->Values().size(), 11);
    QCOMPARE(standardError.Lines(),
             QStringList(m_Path + QLatin1String(" cannot be written: database or disk is full")));

    MakeRoom();
    QVERIFY(store->SetParameter(PARAM_METRIC, true, true));
    QCOMPARE(standardError.Lines().size(), 1);
    Fill();
    QVERIFY(!store->SetParameter(PARAM_FARM, QString(5000, QLatin1Char('y')), true));
    QCOMPARE(standardError.Lines().size(), 2);
    MakeRoom();

    const QMap<int, QVariant> memory = store->Values();
    store.reset();
    QCOMPARE(StoredValues(m_Path), memory);
}

void StoreWriteFailures::aValueTooLargeForTheDiskDoesNotKeepOthersFromIt()
{
    if (!Mount("size=512k"))
        QSKIP("no permission to mount");
    const auto store = OpenStore(m_Path);
    TStandardErrorCapture standardError;
    QVERIFY(!store->SetParameter(PARAM_CLIENT, QString(1000000, QLatin1Char('x')), true));
    QVERIFY(store->SetParameter(PARAM_METRIC, true, true));
    QVERIFY(store->SetParameter(PARAM_AREA_UNIT, 1, true));
    // One line when it was set, and one when it was tried again after a write that succeeded.
    QCOMPARE(standardError.Lines().size(), 2);
    QVERIFY(store->SetParameter(PARAM_CLIENT, QLatin1String("Smith"), true));
}

void StoreWriteFailures::aReleaseOnAFullDiskIsAllOrNothing()
{
    if (!Mount("size=512k"))
        QSKIP("no permission to mount");
    auto store = OpenStore(m_Path);
    QVERIFY(store->SetParameter(PARAM_METRIC, false, true));
    store->HoldPersistence();
    store->SetParameter(PARAM_METRIC, true, true);
    for (int id = 1; id <= 30; ++id)
        store->SetParameter(Param(id), QString(20000, QLatin1Char('x')), true);
    TStandardErrorCapture standardError;
    QVERIFY(!store->ReleasePersistence());
    QCOMPARE(store->GetParameter(PARAM_METRIC), QVariant(true));
    store.reset();
    QCOMPARE(StoredValues(m_Path), (QMap<int, QVariant>{{PARAM_METRIC, false}}));
}

void StoreWriteFailures::openingNeedsNoMoreRoomThanThereIs_data()
{
    QTest::addColumn<int>("pages");
    for (int pages = 1; pages <= 30; ++pages)
        QTest::addRow("%d pages", pages) << pages;
}

void StoreWriteFailures::openingNeedsNoMoreRoomThanThereIs()
{
    QFETCH(int, pages);
    if (!Mount(QByteArray("size=" + QByteArray::number(pages * 4) + 'k').constData()))
        QSKIP("no permission to mount");
    QMap<int, QVariant> told;
    {
        TStandardErrorCapture standardError;
        QString error;
        const auto store = TSqliteStore::Open(m_Path, &error);
        QVERIFY(store || error.startsWith(m_Path));
        for (int id = 1; store && id <= 5; ++id)
            if (store->SetParameter(Param(id), id, true))
                told[id] = id;
        QVERIFY(!store || told.size() == 5 || !standardError.Lines().isEmpty());
    }
    QVERIFY(mount("tmpfs", QFile::encodeName(m_Drive).constData(), "tmpfs", MS_REMOUNT, "size=1m") == 0);
    const QMap<int, QVariant> stored = StoredValues(m_Path);
    for (auto parameter = told.constBegin(); parameter != told.constEnd(); ++parameter)
        QCOMPARE(stored[parameter.key()], parameter.value());
}

void StoreWriteFailures::recoveringWithoutRoomLosesNothing_data()
{
    QTest::addColumn<int>("pages");
    for (int pages = 0; pages <= 20; ++pages)
        QTest::addRow("%d pages", pages) << pages;
}

void StoreWriteFailures::recoveringWithoutRoomLosesNothing()
{
    QFETCH(int, pages);
    if (!Mount("size=1m"))
        QSKIP("no permission to mount");
    OpenStore(m_Path)->SetParameter(PARAM_CLIENT, QLatin1String("Smith"), true);
    const QByteArray damaged = FileBytes(m_Path).left(5000);
    SetFileBytes(m_Path, damaged);
    SetFileBytes(m_Drive + QLatin1String("/room"), QByteArray(pages * 4096, 'x'));
    Fill();
    QVERIFY(pages == 0 || QFile::remove(m_Drive + QLatin1String("/room")));

    const QMap<int, QVariant> values{{PARAM_CLIENT, QLatin1String("Smith")}};
    TStandardErrorCapture standardError;
    {
        QString error;
        const auto store = TSqliteStore::Open(m_Path, &error);
        QVERIFY(store ? store->Values() == values : !error.isEmpty());
    }
    MakeRoom();
    QCOMPARE(StoredValues(m_Path), values);
    QCOMPARE(FileBytes(m_Path + QLatin1String(".damaged-1")), damaged);
}

void StoreWriteFailures::repairingARowWithoutRoomLosesNothing_data() { recoveringWithoutRoomLosesNothing_data(); }

void StoreWriteFailures::repairingARowWithoutRoomLosesNothing()
{
    QFETCH(int, pages);
    if (!Mount("size=1m"))
        QSKIP("no permission to mount");
    OpenStore(m_Path)->SetParameter(PARAM_CLIENT, QLatin1String("Smith"), true);
    {
        const auto store = OpenStore(m_Path);
        store->SetParameter(PARAM_FARM, QLatin1String("Hill"), true);
        store->SetParameter(PARAM_FIELD, QLatin1String("West"), true);
    }
    const QByteArray damaged = FileBytes(m_Path).replace("Hill", "Hull");
    SetFileBytes(m_Path, damaged);
    const QByteArray good = FileBytes(m_Path + Good).replace("Hill", "Hell"); // its row is damaged too
    SetFileBytes(m_Path + Good, good);
    SetFileBytes(m_Drive + QLatin1String("/room"), QByteArray(pages * 4096, 'x'));
    Fill();
    QVERIFY(pages == 0 || QFile::remove(m_Drive + QLatin1String("/room")));

    const QMap<int, QVariant> values{{PARAM_CLIENT, QLatin1String("Smith")}, {PARAM_FIELD, QLatin1String("West")}};
    TStandardErrorCapture standardError;
    {
        QString error;
        const auto store = TSqliteStore::Open(m_Path, &error);
        QVERIFY(store ? store->Values() == values : !error.isEmpty());
    }
    MakeRoom();
    QCOMPARE(StoredValues(m_Path), values);
    QCOMPARE(FileBytes(m_Path + QLatin1String(".damaged-1")), damaged);
    QCOMPARE(QDir(m_Drive).entryList({QLatin1String(".*"), QLatin1String("*.new")}, QDir::Files | QDir::Hidden),
             QStringList());
}

void StoreWriteFailures::aDriveThatCannotSyncFoldersIsAccepted_data()
{
    QTest::addColumn<int>("error");
    QTest::addColumn<bool>("isAccepted");
    QTest::newRow("EINVAL") << EINVAL << true;
    QTest::newRow("ENOTSUP") << ENOTSUP << true;
    QTest::newRow("ENOSYS") << ENOSYS << true;
    QTest::newRow("EIO") << EIO << false;
}

void StoreWriteFailures::aDriveThatCannotSyncFoldersIsAccepted()
{
    QFETCH(int, error);
    QFETCH(bool, isAccepted);
    OpenStore(m_Path)->SetParameter(PARAM_METRIC, true, true);
    SetFileBytes(m_Path, "text"); // will be moved aside and replaced by the good copy
    TStandardErrorCapture standardError;
    FolderSyncError = error;
    QString reason;
    const auto store = TSqliteStore::Open(m_Path, &reason);
    FolderSyncError = 0;
    QCOMPARE(store != nullptr, isAccepted);
    if (isAccepted)
        QCOMPARE(store->Values(), (QMap<int, QVariant>{{PARAM_METRIC, true}}));
    else
        QVERIFY2(reason.contains(QLatin1String("cannot sync") + QLatin1Char(' ') + m_Drive), qPrintable(reason));
}

void StoreWriteFailures::aDriveThatIsGoneIsSaid()
{
    if (!Mount("size=512k"))
        QSKIP("no permission to mount");
    const auto store = OpenStore(m_Path);
    QCOMPARE(umount2(QFile::encodeName(m_Drive).constData(), MNT_DETACH), 0);
    TStandardErrorCapture standardError;
    QVERIFY(!store->SetParameter(PARAM_METRIC, true, true));
    QVERIFY(!store->SetParameter(PARAM_METRIC, true, true));
    QCOMPARE(standardError.Lines(), QStringList(m_Path + QLatin1String(" cannot be written: it is no longer there")));
}

void StoreWriteFailures::aReadOnlyDriveIsRefusedAtOpening()
{
    if (!Mount("size=512k"))
        QSKIP("no permission to mount");
    OpenStore(m_Path)->SetParameter(PARAM_METRIC, true, true);
    const QByteArray drive = QFile::encodeName(m_Drive);
    QCOMPARE(mount("tmpfs", drive.constData(), "tmpfs", MS_REMOUNT | MS_RDONLY, nullptr), 0);
    QString error;
    QVERIFY(!TSqliteStore::Open(m_Path, &error));
    QVERIFY2(error.contains(QLatin1String("Read-only file system")), qPrintable(error));
    QCOMPARE(mount("tmpfs", drive.constData(), "tmpfs", MS_REMOUNT, nullptr), 0);
    QCOMPARE(StoredValues(m_Path), (QMap<int, QVariant>{{PARAM_METRIC, true}}));
}

void StoreWriteFailures::aFolderThatIsRemovedIsSaid()
{
    const auto store = OpenStore(m_Path);
    QVERIFY(QDir(m_Drive).removeRecursively());
    TStandardErrorCapture standardError;
    QVERIFY(!store->SetParameter(PARAM_METRIC, true, true));
    QCOMPARE(store->GetParameter(PARAM_METRIC), QVariant(true));
    QVERIFY(!store->SetParameter(PARAM_METRIC, false, true));
    QCOMPARE(standardError.Lines(), QStringList(m_Path + QLatin1String(" cannot be written: it is no longer there")));
}

void StoreWriteFailures::aFileThatIsReplacedIsSaid()
{
    const auto store = OpenStore(m_Path);
    QVERIFY(QFile::rename(m_Path, m_Path + QLatin1String(".away")));
    QVERIFY(QFile::copy(m_Path + Good, m_Path));
    TStandardErrorCapture standardError;
    QVERIFY(!store->SetParameter(PARAM_METRIC, true, true));
    QCOMPARE(standardError.Lines().size(), 1);
}

void StoreWriteFailures::aFolderThatComesBackIsWrittenAgain()
{
    auto store = OpenStore(m_Path);
    const QString away = m_Folder->filePath(QLatin1String("away"));
    QVERIFY(QDir().rename(m_Drive, away));
    TStandardErrorCapture standardError;
    QVERIFY(!store->SetParameter(PARAM_METRIC, true, true));
    QVERIFY(QDir().rename(away, m_Drive));
    QVERIFY(store->SetParameter(PARAM_METRIC, true, true));
    QCOMPARE(standardError.Lines().size(), 1);
    store.reset();
    QCOMPARE(StoredValues(m_Path), (QMap<int, QVariant>{{PARAM_METRIC, true}}));
}

void StoreWriteFailures::anotherReasonIsSaidAgain()
{
    if (!Mount("size=512k"))
        QSKIP("no permission to mount");
    const auto store = OpenStore(m_Path);
    TStandardErrorCapture standardError;
    Fill();
    for (int value = 0; value < 3; ++value)
        QVERIFY(!store->SetParameter(PARAM_CLIENT, QString(5000 + value, QLatin1Char('x')), true));
    MakeRoom();
    QCOMPARE(umount2(QFile::encodeName(m_Drive).constData(), MNT_DETACH), 0);
    for (int value = 0; value < 3; ++value)
        QVERIFY(!store->SetParameter(PARAM_CLIENT, value, true));
    QCOMPARE(standardError.Lines().size(), 2);
}

int main(int argc, char** argv)
{
    HasMounts = SeparateMounts();
    const QCoreApplication application(argc, argv);
    StoreWriteFailures test;
    return QTest::qExec(&test, argc, argv);
}
#include "StoreWriteFailures.moc"
