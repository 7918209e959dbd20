#include "logs/TNEMADiagnosticLogProxy.h"
#include "logs/TUserLogAccessor.h"
#include "platform/TLocalTime.h"
#include "region/TRegionSettingsProxy.h"
#include "settings/TSettings.h"
#include "stores/TChangeAuthor.h"
#include "stores/TMemoryStore.h"
#include "system/TSystemSettingsProxy.h"
#include "terminal/DataFolder.h"
#include "terminal/TTerminal.h"

#include <QtTest>

class TerminalStart : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void startPublishesAndStopTakesBack();
    void theOperatorsSelectionsAreBack_data();
    void theOperatorsSelectionsAreBack();
    void whatWasNeverSelectedIsWhatADisplayStartsWith();
    void nothingIsStoredBeforeEverythingIsInPlace();
    void theFolderTreeIsMade();
    void theVersionAndTheClientRootAreInThePaths();
    void theVersionIsTheApplicationsUnlessAnotherIsGiven();
    void logsAreOpenUntilTheStop();
    void theLogItselfChangesItsNumber();
    void theClockOffsetIsBack();
    void textsFollowTheLanguage_data();
    void textsFollowTheLanguage();
    void itStartsAgain();

private:
    QString Folder() const { return m_Folder->path(); }

    QScopedPointer<QTemporaryDir> m_Folder;
};

namespace {

/// Records the transactions that would be written to a disk.
class TRecordingStore : public TParameterStore
{
public:
    QList<QMap<int, QVariant>> persisted;

protected:
    bool Persist(const QMap<int, QVariant>& changes) override
    {
        persisted.append(changes);
        return true;
    }
};

const int FirstSelection = 8919;
const int LastSelection = 8931;

/// Notes who has changed which parameter last.
class TAuthorStore : public TParameterStore
{
public:
    QMap<int, EChangeAuthor> authors;

protected:
    bool Persist(const QMap<int, QVariant>& changes) override
    {
        for (auto change = changes.constBegin(); change != changes.constEnd(); ++change)
            authors.insert(change.key(), AuthorOf(change.key()));
        return true;
    }
};

} // namespace

void TerminalStart::init() { m_Folder.reset(new QTemporaryDir); }

void TerminalStart::startPublishesAndStopTakesBack()
{
    TMemoryStore store;
    TTerminal terminal(store);
    QVERIFY(!Settings && !ConfigManager && !UserLogAccessorPtr);
    QString error;
    QVERIFY2(terminal.Start(Folder(), &error), qPrintable(error));
    QVERIFY(Settings && UserLogAccessorPtr);
    QVERIFY(ConfigManager);
    store.SetParameter(PARAM_AREA_UNIT, 4711, false);
    QCOMPARE(ConfigManager->GetParameter(PARAM_AREA_UNIT), QVariant(4711));
    QVERIFY(ConfigManager->SetParameter(PARAM_CLIENT, QLatin1String("Smith"), true));
    QCOMPARE(store.GetParameter(PARAM_CLIENT), QVariant(QLatin1String("Smith")));
    QCOMPARE(TRegionSettings::GetLanguageString(LANGUAGE_GERMAN), QString::fromLatin1("Deutsch"));
    QVERIFY(UserLogAccessorPtr->AddEntry(DIAG_COMPONENT_CONSOLE, DIAG_TYPE_DTC, 1, QString(), QString()));
    terminal.Stop();
    QVERIFY(!Settings && !ConfigManager && !UserLogAccessorPtr);
    terminal.Stop();
}

void TerminalStart::theOperatorsSelectionsAreBack_data()
{
    QTest::addColumn<int>("parameter");
    for (int number = FirstSelection; number <= LastSelection; ++number)
        QTest::newRow(qPrintable(QString::number(number))) << number;
}

void TerminalStart::theOperatorsSelectionsAreBack()
{
    QFETCH(int, parameter);
    const EParamID id = static_cast<EParamID>(parameter);
    TMemoryStore store;
    store.SetParameter(id, QLatin1String("Chosen"), true);
    for (int start = 0; start < 2; ++start) {
        TTerminal terminal(store);
        QString error;
        QVERIFY(terminal.Start(Folder(), &error));
        QCOMPARE(store.GetParameter(id), QVariant(QLatin1String("Chosen")));
    }
    QCOMPARE(store.GetParameter(id), QVariant(QLatin1String("Chosen")));
}

void TerminalStart::whatWasNeverSelectedIsWhatADisplayStartsWith()
{
    TMemoryStore store;
    TTerminal terminal(store);
    QString error;
    QVERIFY(terminal.Start(Folder(), &error));
    const TSystemSettingsProxy system;
    QCOMPARE(system.GetActiveJob(), QString());
    QCOMPARE(system.GetActiveVehicle(), QString::fromLatin1("No Vehicle"));
    QCOMPARE(system.GetActiveImplement(), QString::fromLatin1("No Implement"));
    QCOMPARE(system.GetActiveSprayer(), QString::fromLatin1("No Profile"));
}

void TerminalStart::nothingIsStoredBeforeEverythingIsInPlace()
{
    TRecordingStore store;
    store.SetParameter(PARAM_ACTIVE_JOB, QLatin1String("J_1"), true);
    store.SetParameter(PARAM_METRIC, false, true);
    store.persisted.clear();

    TTerminal terminal(store);
    QString error;
    QVERIFY(terminal.Start(Folder(), &error));
    QCOMPARE(store.persisted.size(), 1);
    QVERIFY(!store.persisted.first().contains(PARAM_ACTIVE_JOB)); // the disk keeps the value it had
    QVERIFY(!store.persisted.first().contains(PARAM_METRIC));
    QVERIFY(store.persisted.first().contains(PARAM_ACTIVE_VEHICLE));

    terminal.Stop();
    store.persisted.clear();
    QVERIFY(terminal.Start(Folder(), &error));
    QVERIFY2(store.persisted.isEmpty() || store.persisted.first().isEmpty(), "a second start changes nothing");
}

void TerminalStart::theFolderTreeIsMade()
{
    TMemoryStore store;
    TTerminal terminal(store);
    QString error;
    QVERIFY(terminal.Start(Folder(), &error));
    const QDir drive(DataFolder::InternalDrive(Folder()));
    for (const char* folder : {"Jobs", "Clients", "Boundaries/ShapefilesForBoundary", "Diagnostics/PerformanceTest",
                               "WaterManagementProjects", "VelmorUploads", "RemoteView"})
        QVERIFY2(drive.exists(QLatin1String(folder)), folder);
    // Farms and fields are shown as folders, but have none.
    QVERIFY(!drive.exists(QLatin1String("Farms")));
    QVERIFY(!drive.exists(QLatin1String("Fields")));
}

void TerminalStart::theVersionAndTheClientRootAreInThePaths()
{
    TMemoryStore store;
    store.SetParameter(PARAM_EXTERNAL_DRIVE, QLatin1String("/proc"), true); // a mount point
    store.SetParameter(PARAM_ACTIVE_IMPLEMENT, QLatin1String("Seeder"), true);
    TTerminal terminal(store);
    QString error;
    for (const char* version : {"2.1.4-r7", "2.1.5-r12"}) {
        QVERIFY2(terminal.Start(Folder(), &error, {QLatin1String(version), QLatin1String("tasks")}), qPrintable(error));
        const TSystemSettingsProxy system;
        QCOMPARE(system.GetSoftwareVersion(false), QLatin1String(version));
        QCOMPARE(system.GetPackageName(), QLatin1String("kdm740-") + QLatin1String(version));
        const QString shown = system.GetSoftwareVersion(true);
        QVERIFY(system.GetActivePerformanceTestLogPath(QLatin1String("tag"))
                    .endsWith(QString::fromLatin1("_tag_%1_Seeder.csv").arg(shown)));
        QCOMPARE(system.GetCFFRoot(), QLatin1String("tasks"));
        QCOMPARE(system.GetFlagPointsFilePath(QLatin1String("c"), QLatin1String("f"), QLatin1String("g")),
                 Folder() + QLatin1String("/internal/tasks/Clients/c/f/g/flagpoints.ini"));
    }
    QVERIFY(terminal.Start(Folder(), &error));
    QCOMPARE(TSystemSettingsProxy().GetCFFRoot(), QString());
}

void TerminalStart::theVersionIsTheApplicationsUnlessAnotherIsGiven()
{
    TMemoryStore store;
    TTerminal terminal(store);
    QString error;
    QVERIFY(terminal.Start(Folder(), &error));
    QCOMPARE(TSystemSettingsProxy().GetPackageName(), QLatin1String("kdm740-")); // the test has no version
    QCoreApplication::setApplicationVersion(QLatin1String("7.3"));
    QVERIFY(terminal.Start(Folder(), &error));
    QCOMPARE(TSystemSettingsProxy().GetPackageName(), QLatin1String("kdm740-7.3"));
    QCoreApplication::setApplicationVersion(QString());
}

void TerminalStart::logsAreOpenUntilTheStop()
{
    TMemoryStore store;
    TTerminal terminal(store);
    QString error;
    QVERIFY(terminal.Start(Folder(), &error));
    QVERIFY(TNEMADiagnosticLogProxy().Log("staged\r\n", 8));
    QFile log(Folder() + QLatin1String("/internal/Diagnostics/NMEA00001.csv"));
    QVERIFY(log.exists());
    QCOMPARE(log.size(), qint64(0));
    terminal.Stop();
    QVERIFY(log.open(QIODevice::ReadOnly));
    QCOMPARE(log.readAll(), QByteArray("staged\r\n"));
}

void TerminalStart::theLogItselfChangesItsNumber()
{
    TAuthorStore store;
    TTerminal terminal(store);
    QString error;
    QVERIFY2(terminal.Start(Folder(), &error), qPrintable(error));
    store.authors.clear();
    {
        const TChangeAuthor author(CHANGE_AUTHOR_OPERATOR);
        QVERIFY(ConfigManager->SetParameter(PARAM_METRIC, false, true));
        const QByteArray fullFile(0x40001, '\n');
        QVERIFY(TNEMADiagnosticLogProxy().Log(fullFile.constData(), static_cast<int>(fullFile.size())));
        QVERIFY(ConfigManager->SetParameter(PARAM_US_MEASURES, true, true));
    }
    const QMap<int, EChangeAuthor> expected = {{PARAM_METRIC, CHANGE_AUTHOR_OPERATOR},
                                               {PARAM_NMEA_LOG_FILE_NUMBER, CHANGE_AUTHOR_LIBRARY},
                                               {PARAM_US_MEASURES, CHANGE_AUTHOR_OPERATOR}};
    QCOMPARE(store.authors, expected);
}

void TerminalStart::theClockOffsetIsBack()
{
    TMemoryStore store;
    TTerminal terminal(store);
    QString error;
    QVERIFY(terminal.Start(Folder(), &error));
    TRegionSettingsProxy().SetUserDateTime(2030, 1, 2, 3, 4, 5);
    const int offset = TLocalTime::GetOffset();
    QVERIFY(offset != 0);
    terminal.Stop();
    QCOMPARE(TLocalTime::GetOffset(), 0);
    QVERIFY(terminal.Start(Folder(), &error));
    QCOMPARE(TLocalTime::GetOffset(), offset);
}

void TerminalStart::textsFollowTheLanguage_data()
{
    QTest::addColumn<int>("language");
    QTest::addColumn<QString>("march");
    QTest::newRow("English") << 0 << "5 Mar, 2024";
    QTest::newRow("German") << 1 << QString::fromUtf8("5 Mär, 2024");
    QTest::newRow("no language") << 99 << "5 Mar, 2024";
}

void TerminalStart::textsFollowTheLanguage()
{
    QFETCH(int, language);
    QFETCH(QString, march);
    TMemoryStore store;
    store.SetParameter(PARAM_LANGUAGE, language, true);
    TTerminal terminal(store);
    QString error;
    QVERIFY(terminal.Start(Folder(), &error));
    QCOMPARE(TRegionSettingsProxy().GetDateString(QDate(2024, 3, 5)), march);
}

void TerminalStart::itStartsAgain()
{
    TMemoryStore store;
    TTerminal terminal(store);
    QString error;
    for (int start = 0; start < 3; ++start) {
        QVERIFY(terminal.Start(Folder(), &error));
        TSystemSettingsProxy().SetActiveJob(QString::number(start));
    }
    terminal.Stop();
    QCOMPARE(store.GetParameter(PARAM_ACTIVE_JOB), QVariant(QLatin1String("2")));
}

QTEST_GUILESS_MAIN(TerminalStart)
#include "TerminalStart.moc"
