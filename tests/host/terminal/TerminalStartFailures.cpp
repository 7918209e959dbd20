#include "logs/TUserLogAccessor.h"
#include "platform/TConfigManager.h"
#include "platform/TLocalTime.h"
#include "settings/TSettings.h"
#include "stores/TMemoryStore.h"
#include "system/TSystemSettingsProxy.h"
#include "terminal/TTerminal.h"

#include <QtTest>

#include <sys/syscall.h>
#include <unistd.h>

#include <stdexcept>

namespace {

int LogsClosed = 0;
int LogsClosedWhilePublished = 0;

} // namespace

/// Takes the place of the C library's function: counts the log files that are closed.
extern "C" __attribute__((visibility("default"))) int close(int fd)
{
    if (QFile::symLinkTarget(QString::fromLatin1("/proc/self/fd/%1").arg(fd)).endsWith(QLatin1String(".csv"))) {
        ++LogsClosed;
        LogsClosedWhilePublished += Settings ? 1 : 0;
    }
    return static_cast<int>(syscall(SYS_close, fd));
}

/// A start that fails leaves nothing behind, and a terminal that does not run changes nothing of a running one.
class TerminalStartFailures : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void aFolderThatCannotBeMadeIsNamed();
    void aStartThatFailsStoresNothing();
    void aVersionThatNoFileCanHaveIsRefused_data();
    void aVersionThatNoFileCanHaveIsRefused();
    void aStartThatThrowsLeavesNothing();
    void aTerminalThatIsNotRunningLeavesARunningOneAlone();
    void aSecondTerminalIsRefusedWhileOneRuns();
    void settingsAreTakenBackBeforeTheyGo();

private:
    QString Folder() const { return m_Folder->path(); }
    void PutAFileInTheWay();

    QScopedPointer<QTemporaryDir> m_Folder;
};

namespace {

/// Records the transactions that would be written to a disk. Can throw at one of its calls.
class TFaultyStore : public TParameterStore
{
public:
    QList<QMap<int, QVariant>> persisted;
    int callsUntilThrow = 0; ///< 0: never

    bool SetParameter(EParamID id, const QVariant& value, bool persist) override
    {
        Count();
        return TParameterStore::SetParameter(id, value, persist);
    }

    QVariant GetParameter(EParamID id) override
    {
        Count();
        return TParameterStore::GetParameter(id);
    }

    bool HasParameter(EParamID id) override
    {
        Count();
        return TParameterStore::HasParameter(id);
    }

protected:
    bool Persist(const QMap<int, QVariant>& changes) override
    {
        persisted.append(changes);
        return true;
    }

private:
    void Count()
    {
        if (callsUntilThrow > 0 && --callsUntilThrow == 0)
            throw std::runtime_error("the store fails");
    }
};

bool IsNothingPublished() { return !Settings && !ConfigManager && !UserLogAccessorPtr; }

} // namespace

void TerminalStartFailures::init() { m_Folder.reset(new QTemporaryDir); }

void TerminalStartFailures::PutAFileInTheWay()
{
    QFile file(Folder() + QLatin1String("/internal"));
    QVERIFY(file.open(QIODevice::WriteOnly));
}

void TerminalStartFailures::aFolderThatCannotBeMadeIsNamed()
{
    PutAFileInTheWay();
    TMemoryStore store;
    TTerminal terminal(store);
    QString error;
    QVERIFY(!terminal.Start(Folder(), &error));
    QVERIFY2(error.contains(Folder() + QLatin1String("/internal/Jobs")), qPrintable(error));
    QVERIFY(IsNothingPublished());
}

void TerminalStartFailures::aStartThatFailsStoresNothing()
{
    PutAFileInTheWay();
    TFaultyStore store;
    store.SetParameter(PARAM_ACTIVE_JOB, QLatin1String("Harvest"), true);
    store.persisted.clear();
    const QMap<int, QVariant> values = store.Values();
    TTerminal terminal(store);
    QString error;
    QVERIFY(!terminal.Start(Folder(), &error));
    QCOMPARE(store.Values(), values);
    QVERIFY(store.SetParameter(PARAM_CLIENT, QLatin1String("Smith"), true));
    QCOMPARE(store.persisted, (QList<QMap<int, QVariant>>{{{PARAM_CLIENT, QLatin1String("Smith")}}}));

    QVERIFY(QFile::remove(Folder() + QLatin1String("/internal")));
    store.persisted.clear();
    QVERIFY2(terminal.Start(Folder(), &error), qPrintable(error));
    QCOMPARE(store.persisted.size(), 1);
    QVERIFY(store.persisted.first().contains(PARAM_METRIC)); // the values of the failed start are not in the store
    QCOMPARE(TSystemSettingsProxy().GetActiveJob(), QLatin1String("Harvest"));
}

void TerminalStartFailures::aVersionThatNoFileCanHaveIsRefused_data()
{
    QTest::addColumn<QString>("version");
    QTest::newRow("a separator") << "N/A";
    QTest::newRow("another folder") << "..";
    QTest::newRow("a line break") << "2.1\n";
}

void TerminalStartFailures::aVersionThatNoFileCanHaveIsRefused()
{
    QFETCH(QString, version);
    TFaultyStore store;
    TTerminal terminal(store);
    QString error;
    QVERIFY(!terminal.Start(Folder(), &error, {version}));
    QVERIFY2(error.startsWith(QString::fromLatin1("invalid software version \"%1\": ").arg(version)),
             qPrintable(error));
    QVERIFY(IsNothingPublished());
    QVERIFY(store.persisted.isEmpty() && store.Values().isEmpty());
}

void TerminalStartFailures::aStartThatThrowsLeavesNothing()
{
    TFaultyStore store;
    store.SetParameter(PARAM_ACTIVE_JOB, QLatin1String("Harvest"), true);
    const QMap<int, QVariant> values = store.Values();
    TTerminal terminal(store);
    QString error;
    int failures = 0;
    bool isStarted = false;
    while (!isStarted) {
        store.persisted.clear();
        store.callsUntilThrow = failures + 1;
        try {
            isStarted = terminal.Start(Folder(), &error);
            QVERIFY2(isStarted, qPrintable(error));
        } catch (const std::runtime_error&) {
            ++failures;
            QVERIFY(IsNothingPublished());
            QVERIFY(store.persisted.isEmpty());
            QCOMPARE(store.Values(), values);
            QCOMPARE(TLocalTime::GetOffset(), 0);
        }
        store.callsUntilThrow = 0;
    }
    QVERIFY(failures > 100);
    QCOMPARE(TSystemSettingsProxy().GetActiveJob(), QLatin1String("Harvest"));
}

void TerminalStartFailures::aTerminalThatIsNotRunningLeavesARunningOneAlone()
{
    TMemoryStore store;
    TTerminal terminal(store);
    QString error;
    QVERIFY(terminal.Start(Folder(), &error));
    TLocalTime::SetOffset(4711);
    TSettings* const settings = Settings;
    TConfigManager* const parameters = ConfigManager;
    TUserLogAccessor* const accessor = UserLogAccessorPtr;
    {
        TTerminal other(store);
        other.Stop();
    }
    QCOMPARE(Settings, settings);
    QCOMPARE(ConfigManager, parameters);
    QCOMPARE(UserLogAccessorPtr, accessor);
    QCOMPARE(TLocalTime::GetOffset(), 4711);
}

void TerminalStartFailures::aSecondTerminalIsRefusedWhileOneRuns()
{
    TMemoryStore store;
    TFaultyStore otherStore;
    TTerminal terminal(store);
    QString error;
    QVERIFY(terminal.Start(Folder(), &error));
    TSettings* const settings = Settings;
    {
        TTerminal other(otherStore);
        QVERIFY(!other.Start(Folder(), &error));
        QCOMPARE(error, QLatin1String("another terminal is running in this program"));
    }
    QCOMPARE(Settings, settings);
    QVERIFY(otherStore.Values().isEmpty());
    TSystemSettingsProxy().SetActiveJob(QLatin1String("Harvest"));
    QCOMPARE(store.GetParameter(PARAM_ACTIVE_JOB), QVariant(QLatin1String("Harvest")));
    terminal.Stop();
    TTerminal other(otherStore);
    QVERIFY2(other.Start(Folder(), &error), qPrintable(error));
}

void TerminalStartFailures::settingsAreTakenBackBeforeTheyGo()
{
    TMemoryStore store;
    TTerminal terminal(store);
    QString error;
    QVERIFY(terminal.Start(Folder(), &error));
    LogsClosed = 0;
    LogsClosedWhilePublished = 0;
    terminal.Stop();
    QVERIFY(IsNothingPublished());
    QCOMPARE(LogsClosed, 2);
    QCOMPARE(LogsClosedWhilePublished, 0);
}

QTEST_GUILESS_MAIN(TerminalStartFailures)
#include "TerminalStartFailures.moc"
