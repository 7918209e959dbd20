#include "CoreTest.h"
#include "TCapturedErrors.h"
#include "TDisplay.h"

#include "system/TSystemSettings.h"
#include "system/TSystemSettingsProxy.h"

#include <QtTest>

#include <sys/statvfs.h>
#include <sys/sysinfo.h>

#include <cerrno>

namespace {

using System = TSystemSettings;
using Proxy = TSystemSettingsProxy;

/// What the system answers; 0 for no error.
struct tagSystem
{
    int error;
    fsblkcnt_t blocks;
    fsblkcnt_t freeBlocks;
    unsigned long load;
    QByteArray askedPath;
};

tagSystem TheSystem;

int Answered()
{
    errno = TheSystem.error;
    return TheSystem.error == 0 ? 0 : -1;
}

} // namespace

// The program's own definitions come before the C library's, for the library under test as well.
extern "C" {

__attribute__((visibility("default"))) int statvfs(const char* path, struct statvfs* info) noexcept
{
    TheSystem.askedPath = path;
    if (TheSystem.error == 0) {
        *info = {};
        info->f_bsize = 1024 * 1024;
        info->f_frsize = 4096;
        info->f_blocks = TheSystem.blocks;
        info->f_bfree = TheSystem.freeBlocks;
        info->f_bavail = TheSystem.freeBlocks / 2;
        info->f_files = 1;
    }
    return Answered();
}

__attribute__((visibility("default"))) int sysinfo(struct sysinfo* info) noexcept
{
    if (TheSystem.error == 0) {
        *info = {};
        info->loads[0] = TheSystem.load;
        info->loads[1] = 1;
        info->loads[2] = 2;
    }
    return Answered();
}
}

class SystemFigures : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void theLoadIsInSixtyFiveThousandths_data();
    void theLoadIsInSixtyFiveThousandths();
    void aLoadThatIsNotToldIsAnError();

    void drivesAreToldInBlocks_data();
    void drivesAreToldInBlocks();
    void drivesAreAskedForByTheirNames();
    void aMissingDriveIsAnErrorWhateverItsSize();
    void aDriveThatIsNotToldIsAnError_data();
    void aDriveThatIsNotToldIsAnError();
};

void SystemFigures::init() { TheSystem = {0, 1000, 300, 0, QByteArray()}; }

void SystemFigures::theLoadIsInSixtyFiveThousandths_data()
{
    QTest::addColumn<qulonglong>("field");
    QTest::addColumn<float>("load");
    QTest::newRow("idle") << 0ULL << 0.0f;
    QTest::newRow("least") << 1ULL << 1.5258789e-5f;
    QTest::newRow("half") << 32768ULL << 0.5f;
    QTest::newRow("one") << 65536ULL << 1.0f;
    QTest::newRow("one and a half") << 98304ULL << 1.5f;
    QTest::newRow("hundred") << 6553600ULL << 100.0f;
}

void SystemFigures::theLoadIsInSixtyFiveThousandths()
{
    QFETCH(qulonglong, field);
    QFETCH(float, load);
    const TDisplay display;
    TheSystem.load = static_cast<unsigned long>(field);
    const TCapturedErrors errors;
    float told = -1.0f;
    QCOMPARE(System().GetCpuLoadInfo(&told), 0);
    QCOMPARE(told, load);
    told = -1.0f;
    QCOMPARE(Proxy().GetCpuLoadInfo(&told), 0);
    QCOMPARE(told, load);
    QCOMPARE(errors.Text(), QByteArray());
}

void SystemFigures::aLoadThatIsNotToldIsAnError()
{
    const TDisplay display;
    TheSystem.error = EFAULT;
    const TCapturedErrors errors;
    float told = -1.0f;
    QVERIFY(System().GetCpuLoadInfo(&told) < 0);
    QCOMPARE(told, -1.0f);
    QCOMPARE(errors.Text(), QByteArray("Error calling sys_sysinfo(): Bad address\n"));
}

void SystemFigures::drivesAreToldInBlocks_data()
{
    QTest::addColumn<qulonglong>("blocks");
    QTest::addColumn<qulonglong>("freeBlocks");
    QTest::addColumn<uint>("internalTotal");
    QTest::addColumn<uint>("internalFree");
    QTest::addColumn<int>("removableTotal");
    QTest::addColumn<int>("removableFree");

    QTest::newRow("plain") << 1000ULL << 300ULL << 1000U << 300U << 1000 << 300;
    QTest::newRow("empty") << 0ULL << 0ULL << 0U << 0U << 0 << 0;
    QTest::newRow("greatest of int") << 2147483647ULL << 2147483646ULL << 2147483647U << 2147483646U << 2147483647
                                     << 2147483646;
    QTest::newRow("beyond int") << 2147483648ULL << 2147483648ULL << 2147483648U << 2147483648U << 2147483647
                                << 2147483647;
    QTest::newRow("greatest of unsigned")
        << 4294967295ULL << 4294967294ULL << 4294967295U << 4294967294U << 2147483647 << 2147483647;
    QTest::newRow("beyond unsigned") << 4294967296ULL << 4294967297ULL << 4294967295U << 4294967295U << 2147483647
                                     << 2147483647;
}

void SystemFigures::drivesAreToldInBlocks()
{
    QFETCH(qulonglong, blocks);
    QFETCH(qulonglong, freeBlocks);
    QFETCH(uint, internalTotal);
    QFETCH(uint, internalFree);
    QFETCH(int, removableTotal);
    QFETCH(int, removableFree);
    TDisplay display;
    display.store.values[8911] = QLatin1String("/proc"); // is mounted
    TheSystem.blocks = static_cast<fsblkcnt_t>(blocks);
    TheSystem.freeBlocks = static_cast<fsblkcnt_t>(freeBlocks);
    const TCapturedErrors errors;

    unsigned total = 0;
    unsigned free = 0;
    QCOMPARE(System().GetFileSystemInfo(&total, &free), 0);
    QCOMPARE(total, internalTotal);
    QCOMPARE(free, internalFree);

    int totalOfStick = 0;
    int freeOfStick = 0;
    QCOMPARE(System().GetUSBMemoryInfo(&totalOfStick, &freeOfStick), 1);
    QCOMPARE(totalOfStick, removableTotal);
    QCOMPARE(freeOfStick, removableFree);
    QCOMPARE(errors.Text(), QByteArray());
}

void SystemFigures::drivesAreAskedForByTheirNames()
{
    TDisplay display;
    display.store.values[8910] = QString::fromUtf8("/Größe/畑/");
    display.store.values[8911] = QLatin1String("/proc");
    unsigned total = 0;
    unsigned free = 0;
    System().GetFileSystemInfo(&total, &free);
    QCOMPARE(TheSystem.askedPath, QByteArray("/Größe/畑/"));
    int totalOfStick = 0;
    int freeOfStick = 0;
    System().GetUSBMemoryInfo(&totalOfStick, &freeOfStick);
    QCOMPARE(TheSystem.askedPath, QByteArray("/proc"));
}

void SystemFigures::aMissingDriveIsAnErrorWhateverItsSize()
{
    TDisplay display;
    display.store.values[8911] = display.folder.Path(QLatin1String("missing"));
    int total = 47;
    int free = 11;
    const TCapturedErrors errors;
    QCOMPARE(System().GetUSBMemoryInfo(&total, &free), -1);
    QCOMPARE(total, 47);
    QCOMPARE(free, 11);
    QVERIFY(TheSystem.askedPath.isEmpty());
    QVERIFY(errors.Text().startsWith("Error calling sys_stat(path): No such file or directory\n"
                                     "Error calling sys_statvfs(externalPath): "));
}

void SystemFigures::aDriveThatIsNotToldIsAnError_data()
{
    QTest::addColumn<int>("error");
    QTest::addColumn<QByteArray>("reason");
    QTest::newRow("broken") << EIO << QByteArray("Input/output error");
    QTest::newRow("too large to tell") << EOVERFLOW << QByteArray("Value too large for defined data type");
}

void SystemFigures::aDriveThatIsNotToldIsAnError()
{
    QFETCH(int, error);
    QFETCH(QByteArray, reason);
    TDisplay display;
    display.store.values[8911] = QLatin1String("/proc");
    TheSystem.error = error;
    {
        unsigned total = 47;
        unsigned free = 11;
        const TCapturedErrors errors;
        QCOMPARE(System().GetFileSystemInfo(&total, &free), -1);
        QCOMPARE(total, 47U);
        QCOMPARE(free, 11U);
        QCOMPARE(errors.Text(), QByteArray("Error calling sys_statvfs(internalPath): " + reason + '\n'));
    }
    int total = 47;
    int free = 11;
    const TCapturedErrors errors;
    QCOMPARE(System().GetUSBMemoryInfo(&total, &free), -1);
    QCOMPARE(total, 47);
    QCOMPARE(free, 11);
    QCOMPARE(errors.Text(), QByteArray("Error calling sys_statvfs(externalPath): " + reason + '\n'));
}

int main(int argc, char** argv) { return RunCoreTest<SystemFigures>(argc, argv); }

#include "SystemFigures.moc"
