#include "CoreTest.h"
#include "HeldLocks.h"
#include "HostFailures.h"
#include "Latin1.h"
#include "TTemporaryFolder.h"
#include "TargetOf.h"

#include "colors/TColorSettingsProxy.h"
#include "logs/TUserLogAccessor.h"
#include "settings/TSettings.h"

#include <QScopedPointer>
#include <QtTest>

#include <functional>

namespace {

// Taken before main() runs.
const bool wasSettingsNullAtLoad = Settings == nullptr;
const bool wasAccessorNullAtLoad = UserLogAccessorPtr == nullptr;

} // namespace

class SettingsAggregate : public QObject
{
    Q_OBJECT

public slots:
    void noteDestroyed(QObject* object) { m_Destroyed.append(object); }

private slots:
    void init();
    void cleanup();

    void thePointersAreNullAtLoad();
    void constructionReadsTheFileNumbersOfTheLogs();
    void aFailingConstructionPassesTheFailureOn();
    void membersLieInTheirOrder();
    void initialiseNamesTheItemsInMemoryOnly();
    void restoreRunsItsStepsInOrder();
    void restoreTwiceKeepsTheLogsOpen();
    void aFailureDuringRestoreIsPassedOnAndLeavesNoLockBehind();
    void theLogsHaveTheirLimits_data();
    void theLogsHaveTheirLimits();
    void destructionWritesWhatTheLogsStaged();
    void destructionRunsAgainstConstruction();

private:
    QScopedPointer<TTemporaryFolder> m_Folder;
    QScopedPointer<TJournal> m_Store;
    QScopedPointer<TSettings> m_Settings;
    QList<QObject*> m_Destroyed;
};

void SettingsAggregate::init()
{
    m_Folder.reset(new TTemporaryFolder);
    m_Store.reset(new TJournal);
    m_Store->values[PARAM_INTERNAL_DRIVE] = m_Folder->Path(Latin1("flash/data/"));
    m_Store->values[PARAM_EXTERNAL_DRIVE] = m_Folder->Path(Latin1("media/stick"));
    m_Store->values[PARAM_USER_LOG_FILE_NUMBER] = 7;
    m_Store->values[PARAM_NMEA_LOG_FILE_NUMBER] = 3;
    m_Settings.reset(new TSettings);
    Settings = m_Settings.data();
    m_Destroyed.clear();
}

void SettingsAggregate::cleanup()
{
    ReleaseLocks();
    m_Settings.reset();
    Settings = nullptr;
    m_Store.reset();
    m_Folder.reset();
}

void SettingsAggregate::thePointersAreNullAtLoad()
{
    QVERIFY(wasSettingsNullAtLoad);
    QVERIFY(wasAccessorNullAtLoad);
}

void SettingsAggregate::constructionReadsTheFileNumbersOfTheLogs()
{
    QCOMPARE(m_Store->calls, QStringList() << Latin1("read 10472") << Latin1("read 10471"));
    QCOMPARE(Settings, m_Settings.data()); // published by the host, not by the constructor
    TSettings another;
    QCOMPARE(Settings, m_Settings.data());
}

void SettingsAggregate::aFailingConstructionPassesTheFailureOn()
{
    QCOMPARE(FailAtEveryCallOfTheHost(
                 *m_Store, [] { TSettings(); }, [] { return true; }),
             2);
}

void SettingsAggregate::membersLieInTheirOrder()
{
    // What lies first in an object is constructed first and destroyed last.
    const void* const members[] = {
        m_Settings.data(),
        &TargetOf<TColorSettings>(TColorSettingsProxy()),
        &TargetOf<TRegionSettings>(TRegionSettingsProxy()),
        &TargetOf<TSystemSettings>(TSystemSettingsProxy()),
        &TargetOf<TDiagnosticLog>(TUserDiagnosticLogProxy()),
        &TargetOf<TDiagnosticLog>(TNEMADiagnosticLogProxy()),
        m_Settings.data() + 1,
    };
    for (std::size_t i = 1; i < sizeof members / sizeof *members; ++i)
        QVERIFY2(std::less<const void*>()(members[i - 1], members[i]), QByteArray::number(int(i)).constData());
}

void SettingsAggregate::initialiseNamesTheItemsInMemoryOnly()
{
    m_Store->values[PARAM_MONTH_FIRST] = true;
    m_Store->calls.clear();
    m_Settings->Initialise();

    QStringList expected;
    for (int item = 0; item < 10; ++item)
        expected << Latin1("currentTime") << Latin1("read 9012") << Latin1("currentDate");
    QCOMPARE(m_Store->calls, expected);
    QVERIFY(m_Store->writes.isEmpty());
    QVERIFY(m_Folder->Entries().isEmpty());
    QCOMPARE(TSystemSettingsProxy().GetActiveJob(), Latin1("J_030524_1405"));
    QCOMPARE(TSystemSettingsProxy().GetActiveVehicle(), Latin1("030524_1405"));
    QCOMPARE(TSystemSettingsProxy().GetActiveShapeFile(), QString());
    QCOMPARE(TSystemSettingsProxy().GetActiveSprayer(), QString());
}

void SettingsAggregate::restoreRunsItsStepsInOrder()
{
    m_Store->values[PARAM_CLOCK_OFFSET] = 1234;
    m_Store->values[PARAM_ACTIVE_JOB] = Latin1("Harvest");
    m_Store->values[PARAM_ACTIVE_ZONES_SHAPE_FILE] = Latin1("Stones");
    m_Settings->Initialise();

    // Every call of the host with the lock it comes under, and before it the files made since the last one.
    QStringList steps;
    QStringList entries;
    const auto noteFiles = [&] {
        for (const QString& entry : m_Folder->Entries()) {
            if (!entries.contains(entry))
                steps.append(Latin1("made ") + entry);
        }
        entries = m_Folder->Entries();
    };
    m_Store->calls.clear();
    m_Store->onNote = [&] {
        noteFiles();
        steps.append(HeldLocks().join(Latin1(" and ")));
    };
    m_Settings->Restore();
    m_Store->onNote = nullptr;
    noteFiles();

    // Behind each lock stands the call that was made under it.
    QStringList calls = m_Store->calls;
    for (QString& step : steps) {
        if (!step.startsWith(Latin1("made ")))
            step += Latin1(": ") + calls.takeFirst();
    }
    QVERIFY(calls.isEmpty());

    const char* const expected[] = {
        "region: GetOffset",
        "region: read 8951",
        "region: SetOffset 1234",

        "system: has 8919",
        "system: read 8919",
        "system: write 8919 ",
        "system: has 8920",
        "system: write 8920 ",
        "system: has 8921",
        "system: write 8921 ",
        "system: has 8922",
        "system: write 8922 ",
        "system: has 8923",
        "system: write 8923 ",
        "system: has 8924",
        "system: write 8924 ",
        "system: has 8925",
        "system: write 8925 ",
        "system: has 8927",
        "system: write 8927 No Profile",
        "system: has 8928",
        "system: write 8928 No Implement",
        "system: has 8929",
        "system: write 8929 No Vehicle",
        "system: has 8926",
        "system: read 8926",
        "system: write 8926 Stones",
        "system: has 8930",
        "system: write 8930 No Profile",
        "system: read 8910",
        "made flash/",
        "made flash/data/",
        "system: read 8911",
        "made media/",

        "system: read 8910",
        "made flash/data/Diagnostics/",
        "user log: write 10472 8",
        "made flash/data/Diagnostics/User00007.csv",
        "system: read 8910",
        "NMEA log: write 10471 4",
        "made flash/data/Diagnostics/NMEA00003.csv",
    };
    QStringList expectedSteps;
    for (const char* step : expected)
        expectedSteps.append(Latin1(step));
    QCOMPARE(steps, expectedSteps);
}

void SettingsAggregate::restoreTwiceKeepsTheLogsOpen()
{
    m_Settings->Restore();
    QVERIFY(TUserDiagnosticLogProxy().LogDiagnostic("one", 3));
    m_Store->calls.clear();
    m_Settings->Restore();
    QVERIFY(m_Store->calls.filter(Latin1(" 1047")).isEmpty());
    QVERIFY(TUserDiagnosticLogProxy().LogDiagnostic("two", 3));
    QCOMPARE(m_Folder->Content(Latin1("flash/data/Diagnostics/User00007.csv")), QByteArray("onetwo"));
}

void SettingsAggregate::aFailureDuringRestoreIsPassedOnAndLeavesNoLockBehind()
{
    const int failures = FailAtEveryCallOfTheHost(
        *m_Store, [this] { m_Settings->Restore(); }, [] { return HeldLocks().isEmpty(); });
    QVERIFY(failures > 30); // the calls of a whole Restore()
    QVERIFY(TUserDiagnosticLogProxy().LogDiagnostic("open", 4));
    QVERIFY(TNEMADiagnosticLogProxy().LogDiagnostic("open", 4));
}

void SettingsAggregate::theLogsHaveTheirLimits_data()
{
    QTest::addColumn<bool>("isUserLog");
    QTest::addColumn<int>("stagingSize");
    QTest::addColumn<int>("maxFileSize");
    QTest::addColumn<QString>("stem");
    QTest::addColumn<int>("number");

    QTest::newRow("user log") << true << 0 << 0x100000 << Latin1("User") << 7;
    QTest::newRow("NMEA log") << false << 1024 << 0x40000 << Latin1("NMEA") << 3;
}

void SettingsAggregate::theLogsHaveTheirLimits()
{
    QFETCH(bool, isUserLog);
    QFETCH(int, stagingSize);
    QFETCH(int, maxFileSize);
    QFETCH(QString, stem);
    QFETCH(int, number);
    m_Settings->Restore();
    TUserDiagnosticLogProxy userLog;
    TNEMADiagnosticLogProxy nmeaLog;
    TDiagnosticLogProxy& log = isUserLog ? static_cast<TDiagnosticLogProxy&>(userLog) : nmeaLog;

    const auto fileName = [&](int file) {
        return Latin1("flash/data/Diagnostics/") + stem + Latin1("0000") + QString::number(file) + Latin1(".csv");
    };
    const auto sizeOf = [&](int file) { return int(QFileInfo(m_Folder->Path(fileName(file))).size()); };
    const QByteArray data(maxFileSize, 'x');

    // Staged while it is shorter than the room that is left.
    QVERIFY(log.LogDiagnostic(data.constData(), 1));
    QCOMPARE(sizeOf(number), stagingSize > 1 ? 0 : 1);
    QVERIFY(log.LogDiagnostic(data.constData(), qMax(stagingSize - 2, 0)));
    QCOMPARE(sizeOf(number), stagingSize > 1 ? 0 : 1);
    QVERIFY(log.LogDiagnostic(data.constData(), 1));
    const int written = stagingSize > 1 ? stagingSize : 2;
    QCOMPARE(sizeOf(number), written);

    // A file may fill to its limit; what goes past it is the last write of the file.
    QVERIFY(log.LogDiagnostic(data.constData(), maxFileSize - written));
    QVERIFY(!m_Folder->Exists(fileName(number + 1)));
    QVERIFY(log.LogDiagnostic(data.constData(), 1));
    log.FlushTempBuffer();
    QCOMPARE(sizeOf(number), maxFileSize + 1);
    QVERIFY(m_Folder->Exists(fileName(number + 1)));
}

void SettingsAggregate::destructionWritesWhatTheLogsStaged()
{
    m_Settings->Restore();
    QVERIFY(TNEMADiagnosticLogProxy().Log("$GPGGA", 6));
    const QString file = Latin1("flash/data/Diagnostics/NMEA00003.csv");
    QCOMPARE(m_Folder->Content(file), QByteArray());
    m_Settings.reset();
    QCOMPARE(m_Folder->Content(file), QByteArray("$GPGGA"));
}

void SettingsAggregate::destructionRunsAgainstConstruction()
{
    QObject* const region = &TargetOf<TRegionSettings>(TRegionSettingsProxy());
    QObject* const system = &TargetOf<TSystemSettings>(TSystemSettingsProxy());
    connect(region, SIGNAL(destroyed(QObject*)), SLOT(noteDestroyed(QObject*)));
    connect(system, SIGNAL(destroyed(QObject*)), SLOT(noteDestroyed(QObject*)));

    // The NMEA log, filled to its limit but for what it has staged, takes a new number as it is closed: at that moment
    // all that is destroyed after it is still there, the user log with its file open.
    m_Settings->Restore();
    const QByteArray fill(0x40000, 'x');
    QVERIFY(TNEMADiagnosticLogProxy().Log(fill.constData(), int(fill.size())));
    QVERIFY(TNEMADiagnosticLogProxy().Log("$GPGGA", 6));
    bool isUserLogOpen = false;
    m_Store->calls.clear();
    m_Store->onNote = [&] {
        isUserLogOpen = false;
        for (const QFileInfo& open : QDir(Latin1("/proc/self/fd")).entryInfoList(QDir::AllEntries | QDir::System))
            isUserLogOpen = isUserLogOpen || open.symLinkTarget().endsWith(Latin1("User00007.csv"));
        QCOMPARE(m_Destroyed, QList<QObject*>());
    };
    m_Settings.reset();
    m_Store->onNote = nullptr;

    QCOMPARE(m_Store->calls, QStringList(Latin1("write 10471 5")));
    QVERIFY(isUserLogOpen);
    QCOMPARE(m_Destroyed, QList<QObject*>() << system << region);
}

int main(int argc, char** argv) { return RunCoreTest<SettingsAggregate>(argc, argv); }
#include "SettingsAggregate.moc"
