#include "CoreTest.h"
#include "TCapturedErrors.h"
#include "TDisplay.h"

#include "system/TSystemSettings.h"
#include "system/TSystemSettingsProxy.h"

#include <QtTest>

#include <sys/stat.h>
#include <sys/statvfs.h>
#include <unistd.h>

#include <climits>

namespace {

using System = TSystemSettings;
using Proxy = TSystemSettingsProxy;

const char* const StatFailed = "Error calling sys_stat(path): ";

QByteArray Message(const char* text, const char* reason) { return QByteArray(text) + reason + '\n'; }

/// Folders in one another, entered one by one, since their path may be longer than the system takes.
class TDeepFolder
{
public:
    explicit TDeepFolder(const QString& top)
        : m_FolderBefore(QDir::currentPath())
        , m_Path(QFile::encodeName(top))
        , m_Depth(0)
        , m_IsThere(QDir::setCurrent(top))
    {}

    ~TDeepFolder()
    {
        for (; m_Depth > 0 && m_IsThere; --m_Depth) {
            const int nameStart = static_cast<int>(m_Path.lastIndexOf('/')) + 1;
            m_IsThere = chdir("..") == 0 && rmdir(m_Path.constData() + nameStart) == 0;
            m_Path.truncate(nameStart - 1);
        }
        QDir::setCurrent(m_FolderBefore);
    }

    TDeepFolder(const TDeepFolder&) = delete;
    TDeepFolder& operator=(const TDeepFolder&) = delete;

    /// Goes down until the path has @p length characters.
    bool GrowTo(int length)
    {
        const int nameLength = 200;
        while (m_IsThere && m_Path.size() < length) {
            const int rest = length - static_cast<int>(m_Path.size()) - 1;
            const QByteArray name(rest > 2 * nameLength ? nameLength : rest > nameLength ? rest / 2 : rest, 'x');
            m_IsThere = mkdir(name.constData(), 0700) == 0 && chdir(name.constData()) == 0;
            m_Path += '/' + name;
            ++m_Depth;
        }
        return m_IsThere;
    }

    const QByteArray& Path() const { return m_Path; }

private:
    QString m_FolderBefore;
    QByteArray m_Path;
    int m_Depth;
    bool m_IsThere;
};

} // namespace

class MountPoints : public QObject
{
    Q_OBJECT

private slots:
    void aPathIsAMountPointOrNotOrInError_data();
    void aPathIsAMountPointOrNotOrInError();
    void pathsOfAnyLengthAreTold_data();
    void pathsOfAnyLengthAreTold();

    void theInternalDriveIsNamedByTheStore_data();
    void theInternalDriveIsNamedByTheStore();
    void theRemovableDriveIsThereWhenItIsMounted_data();
    void theRemovableDriveIsThereWhenItIsMounted();
    void everyTestOfAMissingFolderIsPrinted();

    void theInternalDrivesSizeIsThatOfItsFileSystem();
    void aMissingInternalDriveHasNoSize();
    void anEmptyFolderInPlaceOfTheRemovableDriveHasNoSize();
    void aMissingFolderOfTheRemovableDriveIsAnError();
};

void MountPoints::aPathIsAMountPointOrNotOrInError_data()
{
    QTest::addColumn<QString>("path"); // absolute, or in the temporary folder
    QTest::addColumn<int>("result");
    QTest::addColumn<QByteArray>("message");

    const QByteArray missing = Message(StatFailed, "No such file or directory");
    const QByteArray belowFile = Message(StatFailed, "Not a directory");
    QTest::newRow("root") << QString::fromLatin1("/") << 1 << QByteArray();
    QTest::newRow("root by another name") << QString::fromLatin1("/../") << 1 << QByteArray();
    QTest::newRow("mounted file system") << QString::fromLatin1("/proc") << 1 << QByteArray();
    QTest::newRow("mounted file system, with '/'") << QString::fromLatin1("/proc/") << 1 << QByteArray();
    QTest::newRow("folder of a mounted file system") << QString::fromLatin1("/proc/self") << 0 << QByteArray();
    QTest::newRow("folder") << QString::fromLatin1("folder") << 0 << QByteArray();
    QTest::newRow("folder, with '/'") << QString::fromLatin1("folder/") << 0 << QByteArray();
    QTest::newRow("folder, other letters") << QString::fromUtf8("Größe-поле-畑") << 0 << QByteArray();
    QTest::newRow("link to root") << QString::fromLatin1("link") << 1 << QByteArray();
    QTest::newRow("file") << QString::fromLatin1("file") << 0 << QByteArray();
    QTest::newRow("file, other letters") << QString::fromUtf8("Größe.txt") << 0 << QByteArray();
    QTest::newRow("device") << QString::fromLatin1("/dev/null") << 0 << QByteArray();
    QTest::newRow("missing") << QString::fromLatin1("missing") << -1 << missing;
    QTest::newRow("missing, other letters") << QString::fromUtf8("fehlt-ä") << -1 << missing;
    QTest::newRow("below a missing folder") << QString::fromLatin1("missing/folder") << -1 << missing;
    QTest::newRow("below a file") << QString::fromLatin1("file/folder") << -1 << belowFile;
    QTest::newRow("link to nowhere") << QString::fromLatin1("stale link") << -1 << missing;
}

void MountPoints::aPathIsAMountPointOrNotOrInError()
{
    QFETCH(QString, path);
    QFETCH(int, result);
    QFETCH(QByteArray, message);
    const TTemporaryFolder folder;
    folder.MakeFolder(QLatin1String("folder"));
    folder.MakeFolder(QString::fromUtf8("Größe-поле-畑"));
    folder.MakeFile(QLatin1String("file"));
    folder.MakeFile(QString::fromUtf8("Größe.txt"));
    QVERIFY(QFile::link(QLatin1String("/"), folder.Path(QLatin1String("link"))));
    QVERIFY(QFile::link(folder.Path(QLatin1String("nowhere")), folder.Path(QLatin1String("stale link"))));
    const QByteArray fullPath = (path.startsWith(QLatin1Char('/')) ? path : folder.Path(path)).toUtf8();
    {
        const TCapturedErrors errors;
        QCOMPARE(System::IsMountingPointWErr(fullPath.constData()), result);
        QCOMPARE(errors.Text(), message);
    }
    const TCapturedErrors errors;
    QCOMPARE(System::IsMountingPoint(fullPath.constData()), result == 1);
    QCOMPARE(errors.Text(), message);
}

void MountPoints::pathsOfAnyLengthAreTold_data()
{
    QTest::addColumn<int>("length");
    QTest::addColumn<bool>("isTold");

    // The system takes paths shorter than PATH_MAX, and the parent's is three characters longer.
    QTest::newRow("long") << 1000 << true;
    QTest::newRow("as long as can be told") << PATH_MAX - 4 << true;
    QTest::newRow("parent too long") << PATH_MAX - 3 << false;
    QTest::newRow("as long as the system takes") << PATH_MAX - 1 << false;
    QTest::newRow("too long") << PATH_MAX << false;
    QTest::newRow("far too long") << PATH_MAX + 2000 << false;
}

void MountPoints::pathsOfAnyLengthAreTold()
{
    QFETCH(int, length);
    QFETCH(bool, isTold);
    const TTemporaryFolder folder;
    TDeepFolder deep(folder.Path());
    QVERIFY(deep.GrowTo(length));
    QCOMPARE(static_cast<int>(deep.Path().size()), length);
    const TCapturedErrors errors;
    QCOMPARE(System::IsMountingPointWErr(deep.Path().constData()), isTold ? 0 : -1);
    QCOMPARE(errors.Text(), isTold ? QByteArray() : Message(StatFailed, "File name too long"));
}

void MountPoints::theInternalDriveIsNamedByTheStore_data()
{
    QTest::addColumn<QString>("stored");
    QTest::addColumn<QString>("path");

    const QString here = QDir::currentPath();
    QTest::newRow("with '/'") << QString::fromLatin1("/data/") << QString::fromLatin1("/data/");
    QTest::newRow("without") << QString::fromLatin1("/data") << QString::fromLatin1("/data");
    QTest::newRow("root") << QString::fromLatin1("/") << QString::fromLatin1("/");
    QTest::newRow("relative") << QString::fromLatin1("data/") << here + QLatin1String("/data/");
    QTest::newRow("other letters") << QString::fromUtf8("/Größe/畑/") << QString::fromUtf8("/Größe/畑/");
}

void MountPoints::theInternalDriveIsNamedByTheStore()
{
    QFETCH(QString, stored);
    QFETCH(QString, path);
    TDisplay display;
    display.store.values[8910] = stored;
    QCOMPARE(System().GetInternalDrive().filePath(), stored);
    QCOMPARE(System().GetInternalDrivePath(), path);
    QCOMPARE(Proxy().GetInternalDrive().filePath(), stored);
    QCOMPARE(Proxy().GetInternalDrivePath(), path);
}

void MountPoints::theRemovableDriveIsThereWhenItIsMounted_data()
{
    QTest::addColumn<QString>("stored"); // absolute, or in the temporary folder
    QTest::addColumn<bool>("isThere");
    QTest::newRow("mounted") << QString::fromLatin1("/proc") << true;
    QTest::newRow("mounted, with '/'") << QString::fromLatin1("/proc/") << true;
    QTest::newRow("empty folder") << QString::fromLatin1("usb") << false;
    QTest::newRow("empty folder, other letters") << QString::fromUtf8("Größe-畑") << false;
    QTest::newRow("file") << QString::fromLatin1("file") << false;
    QTest::newRow("missing") << QString::fromLatin1("missing") << false;
}

void MountPoints::theRemovableDriveIsThereWhenItIsMounted()
{
    QFETCH(QString, stored);
    QFETCH(bool, isThere);
    TDisplay display;
    display.folder.MakeFolder(QLatin1String("usb"));
    display.folder.MakeFolder(QString::fromUtf8("Größe-畑"));
    display.folder.MakeFile(QLatin1String("file"));
    const QString drive = stored.startsWith(QLatin1Char('/')) ? stored : display.folder.Path(stored);
    display.store.values[8911] = drive;
    const TCapturedErrors errors;

    // Where it would be is told in any case.
    QFileInfo info(QLatin1String("/somewhere else"));
    QCOMPARE(System().GetExternalDrive(info), isThere);
    QCOMPARE(info.filePath(), drive);
    QString path = QLatin1String("/somewhere else");
    QCOMPARE(System().GetExternalDrivePath(path), isThere);
    QCOMPARE(path, drive);
    QCOMPARE(System().IsExternalDrivePresent(), isThere);

    info = QFileInfo();
    QCOMPARE(Proxy().GetExternalDrive(info), isThere);
    QCOMPARE(info.filePath(), drive);
    path.clear();
    QCOMPARE(Proxy().GetExternalDrivePath(path), isThere);
    QCOMPARE(path, drive);
    QCOMPARE(Proxy().IsExternalDrivePresent(), isThere);
}

void MountPoints::everyTestOfAMissingFolderIsPrinted()
{
    TDisplay display;
    display.store.values[8911] = display.folder.Path(QLatin1String("missing"));
    const QByteArray message = Message(StatFailed, "No such file or directory");
    {
        const TCapturedErrors errors;
        QString path;
        System().GetExternalDrivePath(path);
        QCOMPARE(errors.Text(), message);
    }
    {
        const TCapturedErrors errors;
        QFileInfo info;
        System().GetExternalDrive(info);
        QCOMPARE(errors.Text(), message);
    }
    const TCapturedErrors errors;
    System().IsExternalDrivePresent(); // asks for the drive, and tests it once more
    QCOMPARE(errors.Text(), message + message);
}

void MountPoints::theInternalDrivesSizeIsThatOfItsFileSystem()
{
    TDisplay display;
    struct statvfs info;
    QCOMPARE(statvfs(display.OnDrive().toUtf8().constData(), &info), 0);
    unsigned total = 0;
    unsigned free = 0;
    const TCapturedErrors errors;
    QCOMPARE(System().GetFileSystemInfo(&total, &free), 0);
    QCOMPARE(static_cast<fsblkcnt_t>(total), info.f_blocks);
    QVERIFY(free <= total); // others write to this file system, too
    total = 0;
    QCOMPARE(Proxy().GetFileSystemInfo(&total, &free), 0);
    QCOMPARE(static_cast<fsblkcnt_t>(total), info.f_blocks);
    QCOMPARE(errors.Text(), QByteArray());
}

void MountPoints::aMissingInternalDriveHasNoSize()
{
    TDisplay display;
    display.store.values[8910] = display.folder.Path(QLatin1String("missing/"));
    unsigned total = 47;
    unsigned free = 11;
    const TCapturedErrors errors;
    QCOMPARE(System().GetFileSystemInfo(&total, &free), -1);
    QCOMPARE(total, 47U);
    QCOMPARE(free, 11U);
    QCOMPARE(errors.Text(), Message("Error calling sys_statvfs(internalPath): ", "No such file or directory"));
}

void MountPoints::anEmptyFolderInPlaceOfTheRemovableDriveHasNoSize()
{
    TDisplay display;
    display.folder.MakeFolder(QLatin1String("usb"));
    display.store.values[8911] = display.folder.Path(QLatin1String("usb"));
    int total = 47;
    int free = 11;
    const TCapturedErrors errors;
    QCOMPARE(System().GetUSBMemoryInfo(&total, &free), 0);
    QCOMPARE(Proxy().GetUSBMemoryInfo(&total, &free), 0);
    QCOMPARE(total, 47);
    QCOMPARE(free, 11);
    QCOMPARE(errors.Text(), QByteArray());
}

void MountPoints::aMissingFolderOfTheRemovableDriveIsAnError()
{
    TDisplay display;
    display.store.values[8911] = display.folder.Path(QLatin1String("missing"));
    int total = 47;
    int free = 11;
    const TCapturedErrors errors;
    QCOMPARE(System().GetUSBMemoryInfo(&total, &free), -1);
    QCOMPARE(total, 47);
    QCOMPARE(free, 11);
    QCOMPARE(errors.Text(), Message(StatFailed, "No such file or directory") +
                                Message("Error calling sys_statvfs(externalPath): ", "No such file or directory"));
}

int main(int argc, char** argv) { return RunCoreTest<MountPoints>(argc, argv); }

#include "MountPoints.moc"
