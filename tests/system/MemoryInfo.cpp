#include "CoreTest.h"
#include "TDisplay.h"

#include "system/TSystemSettings.h"
#include "system/TSystemSettingsProxy.h"

#include <QTemporaryFile>
#include <QtTest>

#include <dlfcn.h>

#include <cstdio>
#include <cstring>
#include <fstream>

using System = TSystemSettings;
using Proxy = TSystemSettingsProxy;

namespace {

/// The file that is read in place of the machine's; null for the machine's own.
const char* meminfo = nullptr;

} // namespace

/// Takes the place of the C library's function, by which streams open files.
extern "C" __attribute__((visibility("default"))) FILE* fopen64(const char* path, const char* mode)
{
    static const auto original = reinterpret_cast<FILE* (*)(const char*, const char*)>(dlsym(RTLD_NEXT, "fopen64"));
    const bool isReplaced = meminfo != nullptr && std::strcmp(path, "/proc/meminfo") == 0;
    return original(isReplaced ? meminfo : path, mode);
}

class MemoryInfo : public QObject
{
    Q_OBJECT

private slots:
    void freeMemoryIncludesBuffersAndCache_data();
    void freeMemoryIncludesBuffersAndCache();
    void aMachineThatDoesNotTellHasNone();
    void theMachinesMemoryIsTold();
};

void MemoryInfo::freeMemoryIncludesBuffersAndCache_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<uint>("expectedTotal");
    QTest::addColumn<uint>("expectedFree");

    const struct
    {
        const char* name;
        const char* text;
        uint total;
        uint free;
    } rows[] = {
        {"four keys", "MemTotal: 1000 kB\nMemFree: 100 kB\nBuffers: 20 kB\nCached: 30 kB\n", 1000, 150},
        {"other order", "Cached: 30 kB\nBuffers: 20 kB\nMemTotal: 1000 kB\nMemFree: 100 kB\n", 1000, 150},
        {"aligned", "MemTotal:        1000 kB\nMemFree:\t  100 kB\nBuffers: 20 kB\nCached: 30 kB\n", 1000, 150},
        {"other keys between",
         "MemTotal: 1000 kB\nMemFree: 100 kB\nMemAvailable: 500 kB\nBuffers: 20 kB\nShmem: 7 kB\nCached: 30 kB\n", 1000,
         150},
        {"keys that look alike",
         "MemTotal: 1000 kB\nSwapTotal: 5 kB\nSwapFree: 6 kB\nSwapCached: 7 kB\nMemFree: 100 kB\ncached: 8 kB\n"
         "Buffers: 20 kB\nCached: 30 kB\n",
         1000, 150},
        {"more behind the fourth key",
         "MemTotal: 1000 kB\nMemFree: 100 kB\nBuffers: 20 kB\nCached: 30 kB\nMemTotal: 5 kB\nCached: 6 kB\n", 1000,
         150},
        {"a key twice among the four",
         "MemFree: 100 kB\nMemFree: 100 kB\nBuffers: 20 kB\nCached: 30 kB\nMemTotal: 1000 kB\n", 0, 250},
        {"total alone", "MemTotal: 1000 kB\n", 1000, 0},
        {"no total", "MemFree: 100 kB\nBuffers: 20 kB\nCached: 30 kB\n", 0, 150},
        {"no buffers", "MemTotal: 1000 kB\nMemFree: 100 kB\nCached: 30 kB\n", 1000, 130},
        {"no line end", "MemTotal: 1000 kB\nMemFree: 100 kB", 1000, 100},
        {"no unit at the end", "MemTotal: 1000 kB\nMemFree: 100", 1000, 100},
        {"no value at the end", "MemTotal: 1000 kB\nMemFree:", 1000, 0},
        {"greatest", "MemTotal: 4294967295 kB\n", 4294967295U, 0},
        {"empty", "", 0, 0},
        {"blank lines", "\n\n  \n", 0, 0},
        {"garbage", "there is no such thing here", 0, 0},
        {"garbage for a value", "MemTotal: plenty kB\nMemFree: 100 kB\n", 0, 0},
        {"garbage behind good lines", "MemTotal: 1000 kB\nMemFree: 100 kB\n%&/( )= ?", 1000, 100},
    };
    for (const auto& row : rows)
        QTest::newRow(row.name) << QByteArray(row.text) << row.total << row.free;
}

void MemoryInfo::freeMemoryIncludesBuffersAndCache()
{
    QFETCH(QByteArray, text);
    QFETCH(uint, expectedTotal);
    QFETCH(uint, expectedFree);
    QTemporaryFile file;
    QVERIFY(file.open());
    QCOMPARE(file.write(text), static_cast<qint64>(text.size()));
    file.close();
    const QByteArray name = QFile::encodeName(file.fileName());

    unsigned total = 77;
    unsigned free = 77;
    meminfo = name.constData();
    System::GetLinuxMemory(&total, &free);
    meminfo = nullptr;
    QCOMPARE(total, expectedTotal);
    QCOMPARE(free, expectedFree);
}

void MemoryInfo::aMachineThatDoesNotTellHasNone()
{
    unsigned total = 77;
    unsigned free = 77;
    meminfo = "/nonexistent/meminfo";
    System::GetLinuxMemory(&total, &free);
    meminfo = nullptr;
    QCOMPARE(total, 0U);
    QCOMPARE(free, 0U);
}

void MemoryInfo::theMachinesMemoryIsTold()
{
    std::ifstream file("/proc/meminfo");
    std::string key;
    unsigned expectedTotal = 0;
    file >> key >> expectedTotal;
    QVERIFY(key == "MemTotal:");

    const TDisplay display;
    unsigned total = 0;
    unsigned free = 0;
    System::GetLinuxMemory(&total, &free);
    QCOMPARE(total, expectedTotal);
    QVERIFY(free > 0 && free <= total);

    total = 0;
    free = 0;
    QCOMPARE(System().GetMainMemoryInfo(&total, &free), 0);
    QCOMPARE(total, expectedTotal);
    QVERIFY(free > 0 && free <= total);

    total = 0;
    free = 0;
    QCOMPARE(Proxy().GetMainMemoryInfo(&total, &free), 0);
    QCOMPARE(total, expectedTotal);
    QVERIFY(free > 0 && free <= total);
}

int main(int argc, char** argv) { return RunCoreTest<MemoryInfo>(argc, argv); }

#include "MemoryInfo.moc"
