#include "CoreTest.h"
#include "TCapturedErrors.h"
#include "TDisplay.h"
#include "TPrivateMounts.h"

#include "system/TSystemSettings.h"
#include "system/TSystemSettingsProxy.h"

#include <QtTest>

#include <sys/statvfs.h>

namespace {

using System = TSystemSettings;
using Proxy = TSystemSettingsProxy;

const char* const DriveOptions = "size=64k";

/// A display with a stick in it, the only thing of its kind mounted in this process.
struct TDisplayWithStick : TDisplay
{
    explicit TDisplayWithStick(const QString& folderName = QLatin1String("usb"))
        : mountPoint(folder.Path(folderName)), stick((folder.MakeFolder(folderName), mountPoint), DriveOptions)
    {
        store.values[8911] = mountPoint;
        System().SetSoftwareVersion(QLatin1String("N/A"));
    }

    QString OnStick(const QString& relative) const { return mountPoint + QLatin1Char('/') + relative; }

    QString mountPoint;
    TMemoryDrive stick;
};

struct tagPath
{
    const char* name;
    bool (System::*get)(QString&) const;
    bool (Proxy::*proxyGet)(QString&) const;
    const char* path; ///< on the stick
    const char* made;
};

// clang-format off
const tagPath Paths[] = {
    {"user log", &System::GetExternalUserLogPath, &Proxy::GetExternalUserLogPath, "Diagnostics/User.csv", "usb/Diagnostics/"},
    {"NMEA log", &System::GetExternalNemaLogPath, &Proxy::GetExternalNemaLogPath, "Diagnostics/NMEA.csv", "usb/Diagnostics/"},
    {"package", &System::GetReprogrammingPackagePath, &Proxy::GetReprogrammingPackagePath, "kdm740_update.ipk", nullptr},
    {"checksum", &System::GetReprogrammingChecksumPath, &Proxy::GetReprogrammingChecksumPath, "kdm740_update.idx", nullptr},
};
// clang-format on

} // namespace

Q_DECLARE_METATYPE(const tagPath*)

class RemovableDrive : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void aStickIsThereUntilItIsPulled_data();
    void aStickIsThereUntilItIsPulled();
    void aFolderOnAStickIsNoStick();
    void aStickTellsItsSize();
    void anInternalDriveTellsItsSize();

    void filesOnTheStick_data();
    void filesOnTheStick();
    void anyLogMayLieOnTheStick();
    void performanceTestsAreNamedAfterTheirCircumstances_data();
    void performanceTestsAreNamedAfterTheirCircumstances();
};

void RemovableDrive::init()
{
    if (!PrivateMounts::ArePermitted())
        QSKIP("Mounting is not permitted here.", SkipAll);
}

void RemovableDrive::aStickIsThereUntilItIsPulled_data()
{
    QTest::addColumn<QString>("folderName");
    QTest::newRow("plain name") << QString::fromLatin1("usb");
    QTest::newRow("other letters") << QString::fromUtf8("Stick Größe-поле-畑");
}

void RemovableDrive::aStickIsThereUntilItIsPulled()
{
    QFETCH(QString, folderName);
    TDisplayWithStick display(folderName);
    QVERIFY(display.stick.IsMounted());
    const QByteArray path = display.mountPoint.toUtf8();
    const TCapturedErrors errors;

    QCOMPARE(System::IsMountingPointWErr(path.constData()), 1);
    QVERIFY(System().IsExternalDrivePresent());
    QVERIFY(Proxy().IsExternalDrivePresent());

    display.stick.Pull();
    QVERIFY(QFileInfo(display.mountPoint).isDir());
    QCOMPARE(System::IsMountingPointWErr(path.constData()), 0);
    QVERIFY(!System().IsExternalDrivePresent());
    QVERIFY(!Proxy().IsExternalDrivePresent());
    QCOMPARE(errors.Text(), QByteArray());
}

void RemovableDrive::aFolderOnAStickIsNoStick()
{
    TDisplayWithStick display;
    display.folder.MakeFolder(QLatin1String("usb/folder"));
    display.store.values[8911] = display.OnStick(QLatin1String("folder"));
    QVERIFY(!System().IsExternalDrivePresent());
}

void RemovableDrive::aStickTellsItsSize()
{
    TDisplayWithStick display;
    struct statvfs info;
    QCOMPARE(statvfs(display.mountPoint.toUtf8().constData(), &info), 0);
    const int wholeStick = static_cast<int>(64 * 1024 / info.f_frsize);
    int total = 0;
    int free = 0;
    const TCapturedErrors errors;
    QCOMPARE(System().GetUSBMemoryInfo(&total, &free), 1);
    QCOMPARE(total, wholeStick);
    QCOMPARE(static_cast<fsblkcnt_t>(free), info.f_bfree);

    display.folder.MakeFile(QLatin1String("usb/file"), QByteArray(static_cast<int>(3 * info.f_frsize), 'x'));
    int freeThen = 0;
    QCOMPARE(Proxy().GetUSBMemoryInfo(&total, &freeThen), 1);
    QCOMPARE(total, wholeStick);
    QCOMPARE(freeThen, free - 3);

    display.stick.Pull();
    total = 47;
    free = 11;
    QCOMPARE(System().GetUSBMemoryInfo(&total, &free), 0);
    QCOMPARE(total, 47);
    QCOMPARE(free, 11);
    QCOMPARE(errors.Text(), QByteArray());
}

void RemovableDrive::anInternalDriveTellsItsSize()
{
    TDisplay display;
    const TMemoryDrive drive(display.OnDrive(), DriveOptions);
    QVERIFY(drive.IsMounted());
    struct statvfs info;
    QCOMPARE(statvfs(display.OnDrive().toUtf8().constData(), &info), 0);
    unsigned total = 0;
    unsigned free = 0;
    QCOMPARE(System().GetFileSystemInfo(&total, &free), 0);
    QCOMPARE(total, static_cast<unsigned>(64 * 1024 / info.f_frsize));
    QCOMPARE(static_cast<fsblkcnt_t>(free), info.f_bfree);

    display.folder.MakeFile(QLatin1String("data/file"), QByteArray(static_cast<int>(5 * info.f_frsize), 'x'));
    unsigned freeThen = 0;
    QCOMPARE(Proxy().GetFileSystemInfo(&total, &freeThen), 0);
    QCOMPARE(freeThen, free - 5);
}

void RemovableDrive::filesOnTheStick_data()
{
    QTest::addColumn<const tagPath*>("path");
    for (const tagPath& path : Paths)
        QTest::newRow(path.name) << &path;
}

void RemovableDrive::filesOnTheStick()
{
    QFETCH(const tagPath*, path);
    TDisplayWithStick display;
    QString found;
    QVERIFY((System().*path->get)(found));
    QCOMPARE(found, display.OnStick(QLatin1String(path->path)));
    found.clear();
    QVERIFY((Proxy().*path->proxyGet)(found));
    QCOMPARE(found, display.OnStick(QLatin1String(path->path)));
    QStringList entries = QStringList() << QLatin1String("data/") << QLatin1String("usb/");
    if (path->made)
        entries << QLatin1String(path->made);
    QCOMPARE(display.folder.Entries(), entries);

    display.stick.Pull();
    found = QLatin1String("untouched");
    QVERIFY(!(System().*path->get)(found));
    QVERIFY(!(Proxy().*path->proxyGet)(found));
    QCOMPARE(found, QString::fromLatin1("untouched"));
    QCOMPARE(display.folder.Entries(), QStringList() << QLatin1String("data/") << QLatin1String("usb/"));
}

void RemovableDrive::anyLogMayLieOnTheStick()
{
    TDisplayWithStick display;
    QString log;
    QVERIFY(System().GetLogPath(log, false, "a/b", "Größe", ".txt"));
    QCOMPARE(log, display.OnStick(QString::fromUtf8("a/b/Größe.txt")));
    QVERIFY(display.folder.Exists(QLatin1String("usb/a/b")));
    QVERIFY(display.DriveContent().isEmpty());

    display.stick.Pull();
    log = QLatin1String("untouched");
    QVERIFY(!System().GetLogPath(log, false, "a/b", "c", ".txt"));
    QCOMPARE(log, QString::fromLatin1("untouched"));
    QVERIFY(!display.folder.Exists(QLatin1String("usb/a")));
}

void RemovableDrive::performanceTestsAreNamedAfterTheirCircumstances_data()
{
    QTest::addColumn<QString>("tag");
    QTest::addColumn<QString>("version");
    QTest::addColumn<QString>("implement");
    QTest::addColumn<bool>("monthFirst");
    QTest::addColumn<QString>("fileName");

    const struct
    {
        const char* name;
        const char* tag;
        const char* version;
        const char* implement;
        bool monthFirst;
        const char* fileName;
    } rows[] = {
        {"day first", "run1", "2.1.0", "Sprayer24", false, "050324_140509_run1_2.1.0_Sprayer24.csv"},
        {"month first", "run1", "2.1.0", "Sprayer24", true, "030524_140509_run1_2.1.0_Sprayer24.csv"},
        {"revision", "run1", "2.1.0-r7", "Sprayer24", false, "050324_140509_run1_2.1.0.07_Sprayer24.csv"},
        {"empty texts", "", "", "", false, "050324_140509___.csv"},
        {"other letters", "Süd", "2.1.0", "畑 24", false, "050324_140509_Süd_2.1.0_畑 24.csv"},
    };
    for (const auto& row : rows) {
        QTest::newRow(row.name) << QString::fromUtf8(row.tag) << QString::fromUtf8(row.version)
                                << QString::fromUtf8(row.implement) << row.monthFirst
                                << QString::fromUtf8(row.fileName);
    }
}

void RemovableDrive::performanceTestsAreNamedAfterTheirCircumstances()
{
    QFETCH(QString, tag);
    QFETCH(QString, version);
    QFETCH(QString, implement);
    QFETCH(bool, monthFirst);
    QFETCH(QString, fileName);
    TDisplayWithStick display;
    display.store.values[8928] = implement;
    display.store.values[9012] = monthFirst;
    System().SetSoftwareVersion(version);
    const QString path = display.OnStick(QLatin1String("Diagnostics/PerformanceTest/")) + fileName;
    QCOMPARE(System().GetActivePerformanceTestLogPath(tag), path);
    QCOMPARE(Proxy().GetActivePerformanceTestLogPath(tag), path);
    QVERIFY(display.folder.Exists(QLatin1String("usb/Diagnostics/PerformanceTest")));

    display.stick.Pull();
    QCOMPARE(System().GetActivePerformanceTestLogPath(tag), QString());
    QVERIFY(!display.folder.Exists(QLatin1String("usb/Diagnostics")));
}

int main(int argc, char** argv)
{
    PrivateMounts::Enter();
    return RunCoreTest<RemovableDrive>(argc, argv);
}

#include "RemovableDrive.moc"
