#include "TConsole.h"

#include <QtTest>

class ConsoleUsage : public QObject
{
    Q_OBJECT

private slots:
    void wrongUsageSaysWhatIsAccepted_data();
    void wrongUsageSaysWhatIsAccepted();
    void everyCommandHasHelp_data();
    void everyCommandHasHelp();
    void versionIsPrinted();
    void outputThatCannotBeWrittenIsAFailure();

private:
    TConsole m_Console;
};

void ConsoleUsage::wrongUsageSaysWhatIsAccepted_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("named");
    QTest::addColumn<QString>("accepted");
    const auto row = [](const char* name, const char* arguments, const char* named, const char* accepted) {
        QTest::newRow(name) << QString::fromUtf8(arguments).split(QLatin1Char(' '), Qt::SkipEmptyParts)
                            << QString::fromUtf8(named) << QString::fromUtf8(accepted);
    };
    row("no command", "", "a command is missing", "run, simulate, get, set, reset, list, describe, ");
    row("unknown command", "fly", "\"fly\"", "run, simulate, get, set, reset, list, describe, ");
    row("unknown log command", "log burn", "\"burn\"", "add, tail, list, export");
    row("no log command", "log", "a command is missing", "add, tail, list, export");
    row("unknown option", "list --colour", "colour", "list --help");
    row("get without a parameter", "get", "missing", "PARAMETER");
    row("get of a negative number", "get -- -5", "\"-5\"", "a name or a number");
    row("get of two", "get 1 2", "\"2\"", "PARAMETER");
    row("set without value", "set 8953", "missing", "PARAMETER VALUE");
    row("reset of two", "reset 1 2", "\"2\"", "PARAMETER");
    row("describe of nothing", "describe", "missing", "PARAMETER");
    row("list of two", "list a b", "\"b\"", "[PATTERN]");
    row("set of an absent parameter", "set 77 1", "77", "--type");
    row("paths with a word", "paths Smith", "\"Smith\"", "paths --help");
    row("paths without value", "paths --client", "client", "paths --help");
    row("log add without text", "log add", "missing", "TEXT");
    row("log add with a bad component", "log add --component 9 x", "--component", "0 to 4");
    row("log add with a bad type", "log add --type x y", "--type", "0 to 2");
    row("log add with a bad code", "log add --code -1 y", "--code", "0 to 2147483647");
    row("log export without folder", "log export", "missing", "DIR");
    row("run without stream", "run", "--nmea", "a file, or -");
    row("run with a bad speed", "run --nmea x --speed fast", "\"fast\"", "0 to 1000");
    row("run with a negative speed", "run --nmea x --speed -1", "\"-1\"", "0 to 1000");
    row("simulate with a bad rate", "simulate --rate 0", "rate (Hz): 0", "1 to 20");
    row("simulate with a bad latitude", "simulate --lat 91", "latitude (degrees): 91", "-85 to 85");
    row("simulate with a bad time", "simulate --start yesterday", "\"yesterday\"", "2026-");
}

void ConsoleUsage::wrongUsageSaysWhatIsAccepted()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, named);
    QFETCH(QString, accepted);
    const TConsole::tagResult result = m_Console.Run(arguments);
    QCOMPARE(result.status, 2);
    QVERIFY2(result.errors.startsWith(QLatin1String("cabsettings: ")), qPrintable(result.errors));
    QVERIFY2(result.errors.contains(named), qPrintable(result.errors));
    QVERIFY2(result.errors.contains(accepted), qPrintable(result.errors));
    QCOMPARE(result.errors.count(QLatin1Char('\n')), 1);
    QCOMPARE(result.output, QString());
}

void ConsoleUsage::everyCommandHasHelp_data()
{
    QTest::addColumn<QStringList>("command");
    for (const char* command :
         {"run",        "simulate",  "get",       "set",     "reset",      "list",     "describe",  "colors",
          "clock show", "clock set", "clock utc", "select",  "selections", "paths",    "storage",   "units",
          "convert",    "show",      "dump",      "log add", "log tail",   "log list", "log export"})
        QTest::newRow(command) << QString::fromLatin1(command).split(QLatin1Char(' '));
    QTest::newRow("the program") << QStringList();
    QTest::newRow("clock") << QStringList{QLatin1String("clock")};
    QTest::newRow("log") << QStringList{QLatin1String("log")};
}

void ConsoleUsage::everyCommandHasHelp()
{
    QFETCH(QStringList, command);
    const TConsole::tagResult result = m_Console.Run(command + QStringList{QLatin1String("--help")});
    QCOMPARE(result.status, 0);
    QCOMPARE(result.errors, QString());
    QVERIFY2(result.output.startsWith(QLatin1String("Usage: cabsettings")), qPrintable(result.output));
    QVERIFY(result.output.contains(command.join(QLatin1Char(' '))));
}

void ConsoleUsage::versionIsPrinted()
{
    const TConsole::tagResult result = m_Console.Run({QLatin1String("--version")});
    QCOMPARE(result.status, 0);
    QVERIFY(result.output.startsWith(QLatin1String("cabsettings 1.")));
}

void ConsoleUsage::outputThatCannotBeWrittenIsAFailure()
{
    QProcess process;
    process.setStandardOutputFile(QLatin1String("/dev/full"));
    process.start(QLatin1String(CABSETTINGS_PROGRAM), {QLatin1String("--version")});
    QVERIFY(process.waitForFinished());
    QCOMPARE(process.exitCode(), 1);
    QVERIFY(process.readAllStandardError().contains("standard output"));
}

QTEST_GUILESS_MAIN(ConsoleUsage)
#include "ConsoleUsage.moc"
