#include "TConsole.h"

#include <QtTest>

class ConsoleUsage : public QObject
{
    Q_OBJECT

private slots:
    void wrongUsageSaysWhatIsAccepted_data();
    void wrongUsageSaysWhatIsAccepted();
    void messagesHaveOneForm_data();
    void messagesHaveOneForm();
    void everyCommandHasHelp_data();
    void everyCommandHasHelp();
    void versionIsPrinted();
    void outputThatCannotBeWrittenIsAFailure();
    void noFileGetsTheNumberOfAClosedHandle_data();
    void noFileGetsTheNumberOfAClosedHandle();

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
    row("no command", "", "missing command", "run, simulate, get, set, reset, list, describe, ");
    row("unknown command", "fly", "\"fly\"", "run, simulate, get, set, reset, list, describe, ");
    row("unknown log command", "log burn", "\"burn\"", "add, tail, list or export");
    row("no log command", "log", "missing command", "add, tail, list or export");
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
    row("run without stream", "run", "--nmea", "a file, -");
    row("run with a bad speed", "run --nmea x --speed fast", "\"fast\"", "0 to 1000");
    row("run with a negative speed", "run --nmea x --speed -1", "\"-1\"", "0 to 1000");
    row("simulate with a bad rate", "simulate --rate 0", "rate (Hz) 0", "1 to 20");
    row("simulate with a bad latitude", "simulate --lat 91", "latitude (degrees) 91", "-85 to 85");
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

void ConsoleUsage::messagesHaveOneForm_data()
{
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<QString>("message");
    const auto row = [](const char* arguments, const char* message) {
        QTest::newRow(arguments) << QString::fromUtf8(arguments) << QString::fromUtf8(message);
    };
    row("gte", "unknown command \"gte\"; did you mean \"get\"? (see cabsettings --help)");
    row("log lst", "log: unknown command \"lst\"; did you mean \"list\"? (see cabsettings log --help)");
    row("log burn", "log: unknown command \"burn\"; expected add, tail, list or export (see cabsettings log --help)");
    row("log --json",
        "log: unknown option \"--json\"; expected add, tail, list or export (see cabsettings log --help)");
    row("--data", "missing value; expected --data DIR");
    row("get", "get: missing argument; expected PARAMETER (see cabsettings get --help)");
    row("get a b", "get: unexpected argument \"b\"; expected PARAMETER (see cabsettings get --help)");
    row("paths x", "paths: unexpected argument \"x\"; expected no arguments (see cabsettings paths --help)");
    row("get --jsn", "get: unknown option \"--jsn\"; did you mean \"--json\"? (see cabsettings get --help)");
    row("log tail --all", "log tail: unknown option \"--all\"; expected --help, -n, --follow or --json "
                          "(see cabsettings log tail --help)");
    row("paths --json=1", "paths: unexpected value for --json; it takes none (see cabsettings paths --help)");
    row("paths --client", "paths: missing value; expected --client NAME (see cabsettings paths --help)");
    row("log tail usr", "log tail: unknown log \"usr\"; did you mean \"user\"? (see cabsettings log tail --help)");
    row("select feild F", "select: unknown kind \"feild\"; did you mean \"field\"? (see cabsettings select --help)");
    row("colors dusk", "colors: unknown scheme \"dusk\"; expected day or night (see cabsettings colors --help)");
    row("colors --color x",
        "colors: invalid value \"x\" for --color; expected always, never or auto (see cabsettings colors --help)");
    row("run --nmea x --speed 2x", "run: invalid value \"2x\" for --speed; expected a number from 0 to 1000 "
                                   "(see cabsettings run --help)");
    row("log tail -n few user", "log tail: invalid value \"few\" for -n; expected a whole number from 0 to 2147483647 "
                                "(see cabsettings log tail --help)");
    row("set units.area acres", "set: invalid value \"acres\" for units.area; expected hectare (0) or acre (1) "
                                "(see cabsettings set --help)");
    row("set active.field a/b", "set: invalid value \"a/b\" for active.field: the name contains the separator \"/\"; "
                                "did you mean \"a_b\"? (see cabsettings set --help)");
    row("export p --groups units,color", "export: unknown group \"color\"; did you mean \"colors\"? "
                                         "(see cabsettings export --help)");
    row("import p --groups all", "import: unknown group \"all\"; expected units, region, colors, display, machine, "
                                 "selections or device (see cabsettings import --help)");
    row("import p --ours --theirs", "import: unexpected --theirs beside --ours; expected one of them "
                                    "(see cabsettings import --help)");
    row("clock set 2026-02-30", "clock set: invalid date \"2026-02-30\"; expected YYYY-MM-DD, such as 2026-02-28 "
                                "(see cabsettings clock set --help)");
}

void ConsoleUsage::messagesHaveOneForm()
{
    QFETCH(QString, arguments);
    QFETCH(QString, message);
    QProcess program;
    program.start(QLatin1String(CABSETTINGS_PROGRAM), arguments.split(QLatin1Char(' ')));
    QVERIFY(program.waitForFinished());
    QCOMPARE(QString::fromUtf8(program.readAllStandardError()),
             QLatin1String("cabsettings: ") + message + QLatin1Char('\n'));
    QCOMPARE(program.exitCode(), 2);
}

void ConsoleUsage::everyCommandHasHelp_data()
{
    QTest::addColumn<QStringList>("command");
    for (const char* command :
         {"run",        "simulate",      "get",           "set",        "reset",  "list",       "describe",
          "colors",     "clock show",    "clock set",     "clock utc",  "select", "selections", "paths",
          "storage",    "units",         "convert",       "show",       "dump",   "log add",    "log tail",
          "log list",   "log export",    "sun",           "export",     "import", "support",    "fields list",
          "fields add", "fields rename", "fields remove", "fields copy"})
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
    const QStringList lines = result.output.section(QLatin1String("\nExample:"), 0, 0).split(QLatin1Char('\n'));
    for (const QString& line : lines)
        QVERIFY2(line.size() < 80, qPrintable(line));
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

void ConsoleUsage::noFileGetsTheNumberOfAClosedHandle_data()
{
    QTest::addColumn<QString>("closing");
    QTest::addColumn<QString>("handle");
    QTest::newRow("input") << QStringLiteral("<&-") << QStringLiteral("/proc/self/fd/0");
    QTest::newRow("output") << QStringLiteral(">&-") << QStringLiteral("/proc/self/fd/1");
}

void ConsoleUsage::noFileGetsTheNumberOfAClosedHandle()
{
    QFETCH(QString, closing);
    QFETCH(QString, handle);
    QProcess process;
    process.start(QLatin1String("sh"), {QLatin1String("-c"), QStringLiteral("exec \"$0\" dump \"$1\" ") + closing,
                                        QLatin1String(CABSETTINGS_PROGRAM), handle});
    QVERIFY(process.waitForFinished());
    const QByteArray errors = process.readAllStandardError();
    QVERIFY2(errors.contains("the file is empty"), errors.constData()); // it is /dev/null
}

QTEST_GUILESS_MAIN(ConsoleUsage)
#include "ConsoleUsage.moc"
