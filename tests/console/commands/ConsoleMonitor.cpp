#include "ConsoleTest.h"

#include <csignal>

using namespace ConsoleTest;

namespace {

const int DeadlineMs = 30000;

/// A monitor that runs while a test changes parameters.
class TMonitor
{
public:
    TMonitor(const TConsole& console, const char* words)
    {
        m_Process.start(QLatin1String(CABSETTINGS_PROGRAM),
                        QStringList{Utf8("--data"), console.DataFolder()} + Words(words));
    }

    /// What it says when it is ready.
    QString Ready()
    {
        while (!m_Errors.endsWith('\n') && m_Process.waitForReadyRead(DeadlineMs))
            m_Errors += m_Process.readAllStandardError();
        return QString::fromUtf8(m_Errors);
    }

    QString Output()
    {
        QCoreApplication::processEvents();
        m_Output += m_Process.readAllStandardOutput();
        return QString::fromUtf8(m_Output);
    }

    /// Its status at its end; -1 when it does not end in good order.
    int Status()
    {
        const bool isEnded = (m_Process.state() == QProcess::NotRunning || m_Process.waitForFinished(DeadlineMs)) &&
                             m_Process.exitStatus() == QProcess::NormalExit;
        return isEnded ? m_Process.exitCode() : -1;
    }

    int StatusAfter(int signal)
    {
        ::kill(static_cast<pid_t>(m_Process.processId()), signal);
        return Status();
    }

    void CloseOutput() { m_Process.closeReadChannel(QProcess::StandardOutput); }

private:
    struct tagSeparated : QProcess
    {
        tagSeparated() { setReadChannel(StandardError); }
    };

    tagSeparated m_Process;
    QByteArray m_Errors;
    QByteArray m_Output;
};

} // namespace

class ConsoleMonitor : public QObject
{
    Q_OBJECT

private slots:
    void changesOfOtherProgramsArePrinted_data();
    void changesOfOtherProgramsArePrinted();
    void aSignalEndsItInGoodOrder_data();
    void aSignalEndsItInGoodOrder();
    void itEndsAfterTheCount();
    void jsonHasOldAndNew();
    void aHostsOwnParameterHasNoName();
    void controlCharactersDoNotReachTheTerminal();
    void aPatternThatFitsNothingIsAFailure();
    void wrongUsageSaysWhatIsAccepted_data();
    void wrongUsageSaysWhatIsAccepted();
};

void ConsoleMonitor::changesOfOtherProgramsArePrinted_data()
{
    QTest::addColumn<QString>("words");
    QTest::addColumn<QString>("ready");
    QTest::addColumn<QString>("printed");
    const int all = static_cast<int>(TParameterCatalogue::Parameters().size());
    QTest::newRow("all") << Utf8("monitor") << Utf8("watching %1 parameters").arg(all)
                         << Utf8("active.farm: (none) -> Hill\nunits.area: hectare -> acre\n");
    QTest::newRow("a part of a name") << Utf8("monitor units") << Utf8("watching 10 parameters")
                                      << Utf8("units.area: hectare -> acre\n");
    QTest::newRow("a wildcard") << Utf8("monitor active.f*") << Utf8("watching 2 parameters")
                                << Utf8("active.farm: (none) -> Hill\n");
    QTest::newRow("a number") << Utf8("monitor 8960") << Utf8("watching 1 parameter")
                              << Utf8("units.area: hectare -> acre\n");
}

void ConsoleMonitor::changesOfOtherProgramsArePrinted()
{
    QFETCH(QString, words);
    QFETCH(QString, ready);
    QFETCH(QString, printed);
    const TConsole console;
    TMonitor monitor(console, words.toLatin1().constData());
    QCOMPARE(monitor.Ready(), Utf8("cabsettings: %1\n").arg(ready));
    // In the order of their numbers, in which changes that arrive together are told.
    QCOMPARE(Run(console, "set active.farm Hill").status, 0);
    QCOMPARE(Run(console, "set units.area acre").status, 0);
    QTRY_COMPARE_WITH_TIMEOUT(monitor.Output(), printed, DeadlineMs);
    QCOMPARE(monitor.StatusAfter(SIGINT), 0);
    QCOMPARE(monitor.Output(), printed);
}

void ConsoleMonitor::aSignalEndsItInGoodOrder_data()
{
    QTest::addColumn<int>("signal");
    QTest::newRow("interrupt") << SIGINT;
    QTest::newRow("termination") << SIGTERM;
}

void ConsoleMonitor::aSignalEndsItInGoodOrder()
{
    QFETCH(int, signal);
    const TConsole console;
    TMonitor monitor(console, "monitor");
    QVERIFY(!monitor.Ready().isEmpty());
    QCOMPARE(monitor.StatusAfter(signal), 0);
    QCOMPARE(monitor.Output(), QString());
    QVERIFY(!QFileInfo::exists(DataFolder::StoreFile(console.DataFolder()) + Utf8(".lock")));
}

void ConsoleMonitor::itEndsAfterTheCount()
{
    const TConsole console;
    TMonitor monitor(console, "monitor --count 2 units");
    QVERIFY(!monitor.Ready().isEmpty());
    Store(console, Utf8("units.area=acre|units.metric=false|units.us=true"));
    QCOMPARE(monitor.Status(), 0);
    QCOMPARE(monitor.Output(), Utf8("units.metric: true -> false\nunits.us: false -> true\n"));
}

void ConsoleMonitor::jsonHasOldAndNew()
{
    const TConsole console;
    TMonitor monitor(console, "monitor --json --count 1 units.area");
    QVERIFY(!monitor.Ready().isEmpty());
    QCOMPARE(Run(console, "set units.area acre").status, 0);
    QCOMPARE(monitor.Status(), 0);
    const QString output = monitor.Output();
    QCOMPARE(output.count(QLatin1Char('\n')), 1);
    const QJsonObject expected{{Utf8("number"), 8960}, {Utf8("name"), Utf8("units.area")},
                               {Utf8("old"), 0},       {Utf8("oldText"), Utf8("hectare")},
                               {Utf8("new"), 1},       {Utf8("newText"), Utf8("acre")}};
    QCOMPARE(QJsonDocument::fromJson(output.toUtf8()).object(), expected);
}

void ConsoleMonitor::aHostsOwnParameterHasNoName()
{
    const TConsole console;
    TMonitor monitor(console, "monitor --count 1 30000");
    QCOMPARE(monitor.Ready(), Utf8("cabsettings: watching 1 parameter\n"));
    QCOMPARE(Run(console, "set 30000 7 --type int").status, 0);
    QCOMPARE(monitor.Status(), 0);
    QCOMPARE(monitor.Output(), Utf8("30000: (not set) -> 7\n"));
}

void ConsoleMonitor::controlCharactersDoNotReachTheTerminal()
{
    const TConsole console;
    TMonitor monitor(console, "monitor --count 1 30000");
    QVERIFY(!monitor.Ready().isEmpty());
    Store(console, {{static_cast<EParamID>(30000), QLatin1String("a\nb\x1b[2J")}});
    QCOMPARE(monitor.Status(), 0);
    QCOMPARE(monitor.Output(), Utf8("30000: (not set) -> a\\x0ab\\x1b[2J\n"));
}

void ConsoleMonitor::aPatternThatFitsNothingIsAFailure()
{
    const TConsole console;
    const TConsole::tagResult result = Run(console, "monitor quux");
    QCOMPARE(result.status, 1);
    QCOMPARE(result.output, QString());
    QCOMPARE(result.errors, Utf8("cabsettings: no parameter matches \"quux\"\n"));
}

void ConsoleMonitor::wrongUsageSaysWhatIsAccepted_data()
{
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<QString>("named");
    QTest::addColumn<QString>("accepted");
    QTest::newRow("two patterns") << Utf8("monitor a b") << Utf8("\"b\"") << Utf8("[PATTERN]");
    QTest::newRow("no count") << Utf8("monitor --count 0") << Utf8("\"0\"") << Utf8("a whole number from 1");
}

void ConsoleMonitor::wrongUsageSaysWhatIsAccepted()
{
    QFETCH(QString, arguments);
    QFETCH(QString, named);
    QFETCH(QString, accepted);
    const TConsole console;
    VerifyMisused(console.Run(arguments.split(QLatin1Char(' '))), named, accepted);
}

QTEST_GUILESS_MAIN(ConsoleMonitor)
#include "ConsoleMonitor.moc"
