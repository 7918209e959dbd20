#include "TConsole.h"

#include <QtTest>

/// What the shell offers while a line is typed, and the manual page: both come from the commands themselves.
class ConsoleCompletion : public QObject
{
    Q_OBJECT

private slots:
    void theNextWordIsOffered_data();
    void theNextWordIsOffered();
    void nothingIsDoneMeanwhile();
    void bashCompletes_data();
    void bashCompletes();
    void theManualTellsOfEveryCommandAndOption();

private:
    QStringList Offered(const QStringList& typed) const
    {
        return m_Console.Run(typed + QStringList{QLatin1String("--complete")})
            .output.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    }

    TConsole m_Console;
};

void ConsoleCompletion::theNextWordIsOffered_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("offered");
    QTest::addColumn<QString>("notOffered");
    const auto row = [](const char* typed, const char* offered, const char* notOffered) {
        QTest::newRow(*typed ? typed : "nothing")
            << QString::fromUtf8(typed) << QString::fromUtf8(offered) << QString::fromUtf8(notOffered);
    };
    row("", "get set reset list describe log run", "units.metric --json");
    row("get", "units.metric active.job colors.day.map --json --help", "get true");
    row("get units.metric", "--json", "units.area true");
    row("set", "units.metric --type", "true");
    row("set units.metric", "true false", "units.area");
    row("set units.area", "hectare acre", "true");
    row("set 8957", "kPa psi bar", "true");
    row("set active.job", "--type", "true hectare");
    row("set active.job J_1", "--type", "true hectare");
    row("list", "units.metric --json", "true");
    row("backup", "list now restore", "units.metric");
    row("backup restore", "--dry-run --json", "units.metric");
    row("history", "units.metric --json --count", "true");
    row("undo", "--json", "units.metric");
    row("monitor", "units.metric --json --count", "true");
    row("select", "job field boom-leveller", "active.job");
    row("convert 10", "ha ac km", "units.area");
    row("convert 10 ha", "ha ac km", "units.area");
    row("log", "add tail list export", "units.area");
    row("log tail", "user nmea", "units.area");
    row("log add", "--component --type --code", "user");
    row("export", "--groups --json", "units.area");
    row("import", "--groups --dry-run --ours --theirs --edited --json", "units.area");
    row("fields", "list add rename remove copy", "--force");
    row("fields remove", "--force --json", "units.area");
    row("run", "--nmea --speed", "get");
}

void ConsoleCompletion::theNextWordIsOffered()
{
    QFETCH(QString, typed);
    QFETCH(QString, offered);
    QFETCH(QString, notOffered);
    const QStringList words = Offered(typed.split(QLatin1Char(' '), Qt::SkipEmptyParts));
    for (const QString& word : offered.split(QLatin1Char(' ')))
        QVERIFY2(words.contains(word),
                 qPrintable(word + QLatin1String(" is not among ") + words.join(QLatin1Char(' '))));
    for (const QString& word : notOffered.split(QLatin1Char(' ')))
        QVERIFY2(!words.contains(word), qPrintable(word));
}

void ConsoleCompletion::nothingIsDoneMeanwhile()
{
    Offered({QLatin1String("set"), QLatin1String("units.metric"), QLatin1String("false")});
    QVERIFY(!QFileInfo::exists(m_Console.DataFolder()));
}

void ConsoleCompletion::bashCompletes_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("completed");
    QTest::newRow("command") << QStringLiteral("sele") << QStringLiteral("select selections");
    QTest::newRow("parameter") << QStringLiteral("get units.met") << QStringLiteral("units.metric");
    QTest::newRow("choice") << QStringLiteral("set units.area h") << QStringLiteral("hectare");
    QTest::newRow("option") << QStringLiteral("get --j") << QStringLiteral("--json");
    QTest::newRow("after --data") << QStringLiteral("--data /tmp get units.met") << QStringLiteral("units.metric");
}

void ConsoleCompletion::bashCompletes()
{
    QFETCH(QString, line);
    QFETCH(QString, completed);
    QProcess bash;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("LC_ALL"),
                       QStringLiteral("C")); // bash complains of a locale that is not installed
    bash.setProcessEnvironment(environment);
    bash.start(QStringLiteral("bash"),
               {QStringLiteral("--norc"), QStringLiteral("-c"),
                QStringLiteral(". \"$1\"; COMP_WORDS=(\"$2\" $3); COMP_CWORD=$((${#COMP_WORDS[@]} - 1)); _cabsettings; "
                               "echo \"${COMPREPLY[*]}\""),
                QStringLiteral("bash"), QStringLiteral(CABSETTINGS_COMPLETION), QStringLiteral(CABSETTINGS_PROGRAM),
                line});
    QVERIFY(bash.waitForFinished());
    QCOMPARE(QString::fromUtf8(bash.readAllStandardError()), QString());
    QCOMPARE(QString::fromUtf8(bash.readAllStandardOutput()).trimmed(), completed);
}

void ConsoleCompletion::theManualTellsOfEveryCommandAndOption()
{
    const TConsole console;
    QProcess program;
    program.start(QStringLiteral(CABSETTINGS_PROGRAM), {QStringLiteral("--manual")});
    QVERIFY(program.waitForFinished());
    QCOMPARE(program.exitCode(), 0);
    const QString manual = QString::fromUtf8(program.readAllStandardOutput()).remove(QStringLiteral("\\fB"));
    QVERIFY(manual.startsWith(QStringLiteral(".TH CABSETTINGS 1")));
    QVERIFY(manual.contains(QStringLiteral(".SH EXIT STATUS")));
    for (const QString& command : Offered({})) {
        QVERIFY2(manual.contains(QStringLiteral(".SS ") + command), qPrintable(command));
        for (const QString& word : Offered({command})) {
            if (word.startsWith(QLatin1Char('-')))
                QVERIFY2(manual.contains(QString(word).replace(QLatin1Char('-'), QStringLiteral("\\-"))),
                         qPrintable(word));
        }
    }
}

QTEST_GUILESS_MAIN(ConsoleCompletion)
#include "ConsoleCompletion.moc"
