#include "CoreTest.h"
#include "FacadeOperations.h"
#include "Latin1.h"
#include "TWorkingDisplay.h"
#include "TargetOf.h"

#include "colors/TColorSettingsProxy.h"
#include "logs/TNEMADiagnosticLogProxy.h"
#include "logs/TUserDiagnosticLogProxy.h"
#include "logs/TUserLogAccessor.h"
#include "region/TRegionSettingsProxy.h"
#include "system/TSystemSettingsProxy.h"

#include <QtTest>

#include <type_traits>

namespace {

/// The façade of any log, its lock replaced by a record.
class TRecordingLogProxy : public TDiagnosticLogProxy
{
public:
    explicit TRecordingLogProxy(TDiagnosticLog& log, TJournal& journal)
        : TDiagnosticLogProxy(log), m_Calls(journal.calls)
    {}

    void Lock() override { m_Calls.append(Latin1("Lock")); }
    void Unlock() override { m_Calls.append(Latin1("Unlock")); }

private:
    QStringList& m_Calls;
};

/// Everything a call leaves behind.
struct tagTrace
{
    QStringList told;
    QStringList hostCalls;
    QStringList state;
    QStringList files;
};

QStringList StateOf(const TSystemSettings& system)
{
    return QStringList() << QString::number(system.IsLowRAMRecordingOff())
                         << QString::number(system.IsLowFlashRecordingOff()) << system.GetCFFRoot()
                         << TSystemSettings::SoftwareVersion;
}

QStringList StateOf(const TRegionSettings& region)
{
    return QStringList() << QString::number(region.IsGPSTimeRecieved());
}

QStringList StateOf(const TColorSettings&) { return QStringList(); }
QStringList StateOf(const TDiagnosticLog&) { return QStringList(); }

/// Makes @p call and traces it; the display's own folder, another one each time, is told as "<drive>".
template <class Target, class Call>
tagTrace Traced(TWorkingDisplay& display, Target& target, Call call)
{
    display.store.calls.clear();
    tagTrace trace;
    trace.told = call();
    trace.hostCalls = display.store.calls;
    trace.state = StateOf(target);
    trace.files = display.Files();
    TNEMADiagnosticLogProxy().Close(); // what was staged tells too
    trace.files += display.Files();

    for (QStringList* texts : {&trace.told, &trace.hostCalls, &trace.state, &trace.files})
        texts->replaceInStrings(display.drive.Path(), Latin1("<drive>"));
    return trace;
}

enum EPreparation : int
{
    WithStick,
    WithoutStick,
    AfterGPSTime,
    AtNight,
    WithEntries,
};

void Prepare(EPreparation preparation)
{
    if (preparation == AfterGPSTime) {
        QTime time(14, 0);
        QDate date(2024, 3, 5);
        TRegionSettingsProxy().SetUTCTimeAndDate(time, date, true);
    } else if (preparation == AtNight) {
        TColorSettingsProxy().SetDayMode(false);
    } else if (preparation == WithEntries) {
        TUserDiagnosticLogProxy().LogDiagnostic("user entry", 10);
        TNEMADiagnosticLogProxy().LogDiagnostic("nmea entry", 10);
    }
}

/// Makes the same call in two displays alike, directly and through @p Facade.
template <class Facade, class Target, class Declared>
void CompareTraces(const tagOperation<Target, Declared>& operation, EPreparation preparation)
{
    tagTrace direct;
    tagTrace forwarded;
    {
        TWorkingDisplay display(preparation != WithoutStick);
        Prepare(preparation);
        Target& target = TargetOf<Target>(Facade());
        direct = Traced(display, target, [&] { return operation.onTarget(target); });
    }
    {
        TWorkingDisplay display(preparation != WithoutStick);
        Prepare(preparation);
        Facade facade;
        Target& target = TargetOf<Target>(facade);
        forwarded = Traced(display, target, [&] { return operation.onFacade(facade); });
    }
    QCOMPARE(forwarded.told, direct.told);
    QCOMPARE(forwarded.hostCalls, direct.hostCalls);
    QCOMPARE(forwarded.state, direct.state);
    QCOMPARE(forwarded.files, direct.files);
}

template <class Operation>
void AddOperations(const std::vector<Operation>& operations, EPreparation preparation, const char* preparationName)
{
    for (const Operation& operation : operations)
        QTest::newRow((QByteArray(operation.name) + ", " + preparationName).constData()) << &operation << preparation;
}

template <class Operation>
void AddColumns()
{
    QTest::addColumn<const Operation*>("operation");
    QTest::addColumn<EPreparation>("preparation");
}

} // namespace

Q_DECLARE_METATYPE(const tagSystemOperation*)
Q_DECLARE_METATYPE(const tagRegionOperation*)
Q_DECLARE_METATYPE(const tagColorOperation*)
Q_DECLARE_METATYPE(const tagLogOperation*)
Q_DECLARE_METATYPE(EPreparation)
Q_DECLARE_METATYPE(EDiagnosticComponent)
Q_DECLARE_METATYPE(EDiagnosticType)

class FacadeForwarding : public QObject
{
    Q_OBJECT

private slots:
    void theSystemFacadeForwards_data();
    void theSystemFacadeForwards();
    void theRegionFacadeForwards_data();
    void theRegionFacadeForwards();
    void theColorFacadeForwards_data();
    void theColorFacadeForwards();
    void theUserLogFacadeForwards_data() { AddLogOperations(); }
    void theUserLogFacadeForwards();
    void theNMEALogFacadeForwards_data() { AddLogOperations(); }
    void theNMEALogFacadeForwards();

    void aLogFacadeLocksForwardsAndUnlocks_data() { AddLogOperations(); }
    void aLogFacadeLocksForwardsAndUnlocks();
    void logIsLogDiagnosticByAnotherName();
    void anEventBecomesOneLineOfTheUserLog_data();
    void anEventBecomesOneLineOfTheUserLog();
    void anEntryOfAClosedLogIsReportedAsLost();

    void theKindOfBuildIsThatOfTheSystemSettings();
    void facadesShareTheStateOfTheOneSettings();
    void aFacadeKeepsTheTargetItWasMadeWith();
    void aFacadeIsAVirtualTableAndOnePointer_data();
    void aFacadeIsAVirtualTableAndOnePointer();

private:
    static void AddLogOperations();
};

void FacadeForwarding::theSystemFacadeForwards_data()
{
    AddColumns<tagSystemOperation>();
    AddOperations(SystemOperations(), WithStick, "with a stick");
    AddOperations(SystemOperations(), WithoutStick, "without a stick");
}

void FacadeForwarding::theSystemFacadeForwards()
{
    QFETCH(const tagSystemOperation*, operation);
    QFETCH(EPreparation, preparation);
    CompareTraces<TSystemSettingsProxy>(*operation, preparation);
}

void FacadeForwarding::theRegionFacadeForwards_data()
{
    AddColumns<tagRegionOperation>();
    AddOperations(RegionOperations(), WithStick, "before GPS time");
    AddOperations(RegionOperations(), AfterGPSTime, "after GPS time");
}

void FacadeForwarding::theRegionFacadeForwards()
{
    QFETCH(const tagRegionOperation*, operation);
    QFETCH(EPreparation, preparation);
    CompareTraces<TRegionSettingsProxy>(*operation, preparation);
}

void FacadeForwarding::theColorFacadeForwards_data()
{
    AddColumns<tagColorOperation>();
    AddOperations(ColorOperations(), WithStick, "by day");
    AddOperations(ColorOperations(), AtNight, "at night");
}

void FacadeForwarding::theColorFacadeForwards()
{
    QFETCH(const tagColorOperation*, operation);
    QFETCH(EPreparation, preparation);
    CompareTraces<TColorSettingsProxy>(*operation, preparation);
}

void FacadeForwarding::AddLogOperations()
{
    AddColumns<tagLogOperation>();
    AddOperations(LogOperations(), WithEntries, "with entries");
}

void FacadeForwarding::theUserLogFacadeForwards()
{
    QFETCH(const tagLogOperation*, operation);
    QFETCH(EPreparation, preparation);
    CompareTraces<TUserDiagnosticLogProxy>(*operation, preparation);
}

void FacadeForwarding::theNMEALogFacadeForwards()
{
    QFETCH(const tagLogOperation*, operation);
    QFETCH(EPreparation, preparation);
    CompareTraces<TNEMADiagnosticLogProxy>(*operation, preparation);
}

void FacadeForwarding::aLogFacadeLocksForwardsAndUnlocks()
{
    QFETCH(const tagLogOperation*, operation);
    TWorkingDisplay display;
    TDiagnosticLog log(0, 0x1000, 4, PARAM_USER_LOG_FILE_NUMBER);
    QVERIFY(log.Restore(display.drive.Path(Latin1("Logs/Own.csv")), 0, 0));
    TRecordingLogProxy facade(log, display.store);
    display.store.calls.clear();
    operation->onFacade(facade);

    // "Restore of a closed log" closes it through the façade first, so that there may be several pairs.
    const QStringList& calls = display.store.calls;
    QVERIFY(calls.size() >= 2);
    QCOMPARE(calls.first(), Latin1("Lock"));
    QCOMPARE(calls.last(), Latin1("Unlock"));
    bool isLocked = false;
    for (const QString& call : calls) {
        if (call == Latin1("Lock") || call == Latin1("Unlock")) {
            QCOMPARE(call, Latin1(isLocked ? "Unlock" : "Lock"));
            isLocked = !isLocked;
        } else {
            QVERIFY2(isLocked, qPrintable(call));
        }
    }
}

void FacadeForwarding::logIsLogDiagnosticByAnotherName()
{
    TWorkingDisplay display;
    TNEMADiagnosticLogProxy nmeaLog;
    QVERIFY(nmeaLog.Log("$GPGGA,1234", 6)); // the length counts, not the end of the text
    nmeaLog.Close();
    QCOMPARE(display.drive.Content(Latin1("Logs/NMEA00000.csv")), QByteArray("$GPGGA"));
    QVERIFY(!nmeaLog.Log("$GPGGA", 6));
}

void FacadeForwarding::anEventBecomesOneLineOfTheUserLog_data()
{
    QTest::addColumn<EDiagnosticComponent>("component");
    QTest::addColumn<EDiagnosticType>("type");
    QTest::addColumn<QString>("text1");
    QTest::addColumn<QString>("text2");
    QTest::addColumn<QString>("line");

    const QString plain = Latin1("text");
    const QString commas = Latin1(",a,,b,");
    QTest::newRow("event") << DIAG_COMPONENT_GPS_RECEIVER << DIAG_TYPE_EVENT << plain << plain
                           << Latin1("GPS Receiver,Event,1/1/512,text,text");
    QTest::newRow("parameter") << DIAG_COMPONENT_CONSOLE << DIAG_TYPE_PARAM << plain << plain
                               << Latin1("Console,Param,0/0/512,text,text");
    QTest::newRow("trouble code") << DIAG_COMPONENT_STEERING_CONTROLLER << DIAG_TYPE_DTC << plain << plain
                                  << Latin1("Steering Controller,DTC,512,text,text");
    QTest::newRow("no component") << DIAG_COMPONENT_NONE << DIAG_TYPE_DTC << plain << plain
                                  << Latin1(",DTC,512,text,text");
    QTest::newRow("commas") << DIAG_COMPONENT_IMPLEMENT << DIAG_TYPE_DTC << commas << commas
                            << Latin1("Implement,DTC,512, a  b , a  b ");
    QTest::newRow("no texts") << DIAG_COMPONENT_IMPLEMENT << DIAG_TYPE_DTC << QString() << QString()
                              << Latin1("Implement,DTC,512,,");
}

void FacadeForwarding::anEventBecomesOneLineOfTheUserLog()
{
    QFETCH(EDiagnosticComponent, component);
    QFETCH(EDiagnosticType, type);
    QFETCH(QString, text1);
    QFETCH(QString, text2);
    QFETCH(QString, line);
    TWorkingDisplay display;
    QVERIFY(TUserDiagnosticLogProxy().AddEntry(component, type, 512, text1, text2));
    QVERIFY(TUserLogAccessor().AddEntry(component, type, 512, text1, text2));

    const QByteArray entry = "2024.03.05-14:05:09:042," + line.toLatin1() + "\r\n";
    QCOMPARE(display.drive.Content(Latin1("Logs/User00000.csv")), entry + entry);
    const bool asksForName = type != DIAG_TYPE_DTC;
    QCOMPARE(!display.store.calls.filter(Latin1("text ")).isEmpty(), asksForName);
}

void FacadeForwarding::anEntryOfAClosedLogIsReportedAsLost()
{
    TWorkingDisplay display;
    TUserDiagnosticLogProxy log;
    log.Close();
    QVERIFY(!log.AddEntry(DIAG_COMPONENT_CONSOLE, DIAG_TYPE_EVENT, 1, QString(), QString()));
    QVERIFY(!TUserLogAccessor().AddEntry(DIAG_COMPONENT_CONSOLE, DIAG_TYPE_EVENT, 1, QString(), QString()));
}

void FacadeForwarding::theKindOfBuildIsThatOfTheSystemSettings()
{
    TWorkingDisplay display;
    const TSystemSettingsProxy system;
    QCOMPARE(system.IsDevBuild(), bool(TSystemSettings::m_isDevBuild));
    QCOMPARE(system.IsAlphaBuild(), bool(TSystemSettings::m_isAlphaBuild));
    QCOMPARE(system.IsBetaBuild(), bool(TSystemSettings::m_isBetaBuild));
}

void FacadeForwarding::facadesShareTheStateOfTheOneSettings()
{
    TWorkingDisplay display;
    TSystemSettingsProxy().UpdateLowRAMRecordingOff(true);
    QVERIFY(TSystemSettingsProxy().IsLowRAMRecordingOff());
    QVERIFY(!TSystemSettingsProxy().IsLowFlashRecordingOff());

    QTime time(10, 0);
    QDate date(2024, 3, 5);
    TRegionSettingsProxy().SetUTCTimeAndDate(time, date, true);
    QVERIFY(TRegionSettingsProxy().IsGPSTimeRecieved());
}

void FacadeForwarding::aFacadeKeepsTheTargetItWasMadeWith()
{
    TWorkingDisplay display;
    TSystemSettingsProxy first;
    TSettings other;
    Settings = &other;
    TSystemSettingsProxy second;
    first.UpdateLowFlashRecordingOff(true);
    QVERIFY(first.IsLowFlashRecordingOff());
    QVERIFY(!second.IsLowFlashRecordingOff());
}

void FacadeForwarding::aFacadeIsAVirtualTableAndOnePointer_data()
{
    QTest::addColumn<int>("size");
    QTest::addColumn<bool>("hasVirtualDestructor");

    QTest::newRow("colours") << int(sizeof(TColorSettingsProxy)) << std::has_virtual_destructor_v<TColorSettingsProxy>;
    QTest::newRow("region") << int(sizeof(TRegionSettingsProxy)) << std::has_virtual_destructor_v<TRegionSettingsProxy>;
    QTest::newRow("system") << int(sizeof(TSystemSettingsProxy)) << std::has_virtual_destructor_v<TSystemSettingsProxy>;
    QTest::newRow("log") << int(sizeof(TDiagnosticLogProxy)) << std::has_virtual_destructor_v<TDiagnosticLogProxy>;
    QTest::newRow("user log") << int(sizeof(TUserDiagnosticLogProxy))
                              << std::has_virtual_destructor_v<TUserDiagnosticLogProxy>;
    QTest::newRow("NMEA log") << int(sizeof(TNEMADiagnosticLogProxy))
                              << std::has_virtual_destructor_v<TNEMADiagnosticLogProxy>;
}

void FacadeForwarding::aFacadeIsAVirtualTableAndOnePointer()
{
    QFETCH(int, size);
    QFETCH(bool, hasVirtualDestructor);
    QCOMPARE(size, int(2 * sizeof(void*)));
    QVERIFY(hasVirtualDestructor);
}

int main(int argc, char** argv) { return RunCoreTest<FacadeForwarding>(argc, argv); }
#include "FacadeForwarding.moc"
