#include "ConsoleTest.h"

#include "parameters/TParameterCatalogue.h"

#include <QColor>

#include <fcntl.h>
#include <unistd.h>

using namespace ConsoleTest;

namespace {

const char* const Patch = "\033[48;2;";

/// A terminal that nobody looks at, to be some program's standard output.
class TPseudoTerminal
{
public:
    TPseudoTerminal() : m_Fd(posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC))
    {
        if (m_Fd < 0 || grantpt(m_Fd) != 0 || unlockpt(m_Fd) != 0)
            qFatal("there is no pseudo-terminal");
    }
    ~TPseudoTerminal() { close(m_Fd); }
    TPseudoTerminal(const TPseudoTerminal&) = delete;
    TPseudoTerminal& operator=(const TPseudoTerminal&) = delete;

    QString Name() const { return QFile::decodeName(ptsname(m_Fd)); }

    /// What has been written, once the last writer is gone.
    QString ReadAll() const
    {
        QByteArray all;
        char buffer[4096];
        for (ssize_t count = read(m_Fd, buffer, sizeof buffer); count > 0; count = read(m_Fd, buffer, sizeof buffer))
            all.append(buffer, static_cast<int>(count));
        return QString::fromUtf8(all).remove(QLatin1Char('\r'));
    }

private:
    int m_Fd;
};

} // namespace

class ConsoleColors : public QObject
{
    Q_OBJECT

private slots:
    void everyColourOfTheCatalogueIsShown();
    void oneSchemeIsShownAlone_data();
    void oneSchemeIsShownAlone();
    void theActiveSchemeIsTold();
    void whatIsSetIsShown();
    void numbersAndLevelsAreShown();
    void valuesThatAreNoColoursAreReadAsTheDisplayReadsThem_data();
    void valuesThatAreNoColoursAreReadAsTheDisplayReadsThem();
    void theBuiltInColoursPassTheCheck_data();
    void theBuiltInColoursPassTheCheck();
    void anOperatorsPoorColoursAreAWarning();
    void theCheckCanBeHadAsJson();
    void samplesAreNotPartOfTheCheck();
    void patchesArePaintedWhereTheyCanBeSeen_data();
    void patchesArePaintedWhereTheyCanBeSeen();
    void aPatchHasItsColour();
    void wrongUsageSaysWhatIsAccepted_data();
    void wrongUsageSaysWhatIsAccepted();
    void aStoreThatCannotBeOpenedIsAFailure();
};

void ConsoleColors::everyColourOfTheCatalogueIsShown()
{
    const TConsole console;
    const TConsole::tagResult table = Run(console, "colors");
    QCOMPARE(table.errors, QString());
    QCOMPARE(table.status, 0);
    const QJsonArray colors = Object(Run(console, "colors --json")).value(Utf8("colors")).toArray();
    int count = 0;
    for (const tagParameter& parameter : TParameterCatalogue::Parameters()) {
        if (parameter.type != PARAMETER_COLOR)
            continue;
        ++count;
        const QString mode = parameter.name.section(QLatin1Char('.'), 1, 1);
        const QString element = parameter.name.section(QLatin1Char('.'), 2);
        const QString color = parameter.firstValue.value<QColor>().name();
        QCOMPARE(Find(colors, "name", element).value(mode).toString(), color);
        QVERIFY2(table.output.contains(QRegularExpression(Utf8("\n%1 .*%2").arg(element, color))),
                 qPrintable(parameter.name));
    }
    QVERIFY(count > 0);
    QCOMPARE(static_cast<int>(colors.size()) * 2, count);
    QVERIFY(!table.output.contains(QLatin1Char('\033')));
}

void ConsoleColors::oneSchemeIsShownAlone_data()
{
    QTest::addColumn<QString>("shown");
    QTest::addColumn<QString>("left");
    QTest::addColumn<int>("levels");
    QTest::newRow("day") << Utf8("day") << Utf8("night") << 0;
    QTest::newRow("night") << Utf8("night") << Utf8("day") << 3;
}

void ConsoleColors::oneSchemeIsShownAlone()
{
    QFETCH(QString, shown);
    QFETCH(QString, left);
    QFETCH(int, levels);
    const TConsole console;
    const QJsonObject both = Object(Run(console, "colors --json"));
    const TConsole::tagResult result = console.Run({Utf8("colors"), shown, Utf8("--json")});
    QCOMPARE(result.status, 0);
    const QJsonObject object = Object(result);
    QCOMPARE(static_cast<int>(object.value(Utf8("levels")).toArray().size()), levels);
    for (const char* group : {"colors", "numbers"}) {
        const QJsonArray all = both.value(Utf8(group)).toArray();
        const QJsonArray alone = object.value(Utf8(group)).toArray();
        QCOMPARE(alone.size(), all.size());
        for (int i = 0; i < static_cast<int>(all.size()); ++i) {
            QJsonObject expected = all.at(i).toObject();
            expected.remove(left);
            QCOMPARE(alone.at(i).toObject(), expected);
        }
    }

    const QString table = console.Run({Utf8("colors"), shown}).output;
    const QJsonObject map = Find(both.value(Utf8("colors")).toArray(), "name", Utf8("map"));
    QVERIFY2(table.contains(map.value(shown).toString()), qPrintable(table));
    QVERIFY2(!table.contains(map.value(left).toString()), qPrintable(table));
}

void ConsoleColors::theActiveSchemeIsTold()
{
    const TConsole console;
    QCOMPARE(Object(Run(console, "colors --json")).value(Utf8("mode")).toString(), Utf8("day"));
    QVERIFY(Run(console, "colors night").output.startsWith(Utf8("Active: day\n")));
    QCOMPARE(Run(console, "set display.day false").status, 0);
    QCOMPARE(Object(Run(console, "colors --json")).value(Utf8("mode")).toString(), Utf8("night"));
    QVERIFY(Run(console, "colors day").output.startsWith(Utf8("Active: night\n")));
}

void ConsoleColors::whatIsSetIsShown()
{
    const TConsole console;
    QCOMPARE(Run(console, "set colors.day.map #010203").status, 0);
    QCOMPARE(Run(console, "set colors.night.map #80040506").status, 0);
    const QString table = Run(console, "colors").output;
    QVERIFY2(table.contains(Utf8("\nmap                  #010203    #80040506\n")), qPrintable(table));
    const QJsonArray colors = Object(Run(console, "colors --json")).value(Utf8("colors")).toArray();
    QCOMPARE(
        Find(colors, "name", Utf8("map")),
        (QJsonObject{{Utf8("name"), Utf8("map")}, {Utf8("day"), Utf8("#010203")}, {Utf8("night"), Utf8("#80040506")}}));
}

void ConsoleColors::numbersAndLevelsAreShown()
{
    const TConsole console;
    Store(console, Utf8("colors.night.background-number=7|display.night-backlight=45"));
    const QJsonObject object = Object(Run(console, "colors --json"));
    QCOMPARE(
        object.value(Utf8("numbers")).toArray(),
        (QJsonArray{QJsonObject{{Utf8("name"), Utf8("background-number")}, {Utf8("day"), 1}, {Utf8("night"), 7}}}));
    const auto level = [](const char* name, int value) {
        return QJsonObject{{Utf8("name"), Utf8(name)}, {Utf8("value"), value}, {Utf8("unit"), Utf8("%")}};
    };
    QCOMPARE(object.value(Utf8("levels")).toArray(),
             (QJsonArray{level("lightbar", 30), level("backlight", 45), level("buttons", 10)}));
    const QString table = Run(console, "colors").output;
    QVERIFY2(table.contains(Utf8("\nbackground-number    1          7\n")), qPrintable(table));
    QVERIFY2(table.endsWith(Utf8("\nlightbar   30 %\nbacklight  45 %\nbuttons    10 %\n")), qPrintable(table));
}

void ConsoleColors::valuesThatAreNoColoursAreReadAsTheDisplayReadsThem_data()
{
    QTest::addColumn<QString>("stored");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<bool>("isPainted");
    QTest::newRow("a name") << Utf8("red") << Utf8("#ff0000") << true;
    QTest::newRow("digits") << Utf8("#0a0b0c") << Utf8("#0a0b0c") << true;
    QTest::newRow("another text") << Utf8("dusk") << Utf8("invalid") << false;
}

void ConsoleColors::valuesThatAreNoColoursAreReadAsTheDisplayReadsThem()
{
    QFETCH(QString, stored);
    QFETCH(QString, shown);
    QFETCH(bool, isPainted);
    const TConsole console;
    Store(console, QMap<EParamID, QVariant>{{PARAM_TEXT_COLOR_DAY, stored}});
    const QJsonArray colors = Object(Run(console, "colors --json")).value(Utf8("colors")).toArray();
    QCOMPARE(Find(colors, "name", Utf8("text")).value(Utf8("day")).toString(), shown);
    const QString line = Run(console, "colors day --color always").output.section(QLatin1Char('\n'), 3, 3);
    QVERIFY2(line.startsWith(Utf8("text ")) && line.endsWith(QLatin1Char(' ') + shown), qPrintable(line));
    QCOMPARE(line.contains(Utf8(Patch)), isPainted);
}

void ConsoleColors::theBuiltInColoursPassTheCheck_data()
{
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<int>("pairs");
    QTest::newRow("both schemes") << Utf8("colors --check") << 34;
    QTest::newRow("the day") << Utf8("colors day --check") << 17;
    QTest::newRow("the night") << Utf8("colors --check night") << 17;
}

void ConsoleColors::theBuiltInColoursPassTheCheck()
{
    QFETCH(QString, arguments);
    QFETCH(int, pairs);
    const TConsole console;
    const TConsole::tagResult result = console.Run(arguments.split(QLatin1Char(' ')));
    QCOMPARE(result.errors, QString());
    QCOMPARE(result.status, 0);
    QCOMPARE(static_cast<int>(result.output.count(Utf8("  ok  "))), pairs);
    QVERIFY2(result.output.endsWith(QString::fromLatin1("\nAll %1 pairs are legible.\n").arg(pairs)),
             qPrintable(result.output));
}

void ConsoleColors::anOperatorsPoorColoursAreAWarning()
{
    const TConsole console;
    QCOMPARE(Run(console, "set colors.night.track #181a1c").status, 0);
    const TConsole::tagResult result = Run(console, "colors night --check");
    QCOMPARE(result.status, 0);
    QCOMPARE(result.errors, QString());
    const QStringList rows = result.output.split(QLatin1Char('\n')).filter(Utf8("too low"));
    QCOMPARE(static_cast<int>(rows.size()), 2); // and the last line
    QVERIFY2(rows.first().simplified().startsWith(Utf8("track map night 1.07 3.0 too low WCAG 2.1")),
             qPrintable(rows.first()));
    QVERIFY(result.output.endsWith(Utf8("\n\nWarning: the contrast is too low in 1 of 17 pairs.\n")));
}

void ConsoleColors::theCheckCanBeHadAsJson()
{
    const TConsole console;
    Store(console, QMap<EParamID, QVariant>{{PARAM_GRID_COLOR_NIGHT, 7}});
    const QJsonArray checks = Array(Run(console, "colors night --check --json"));
    QCOMPARE(static_cast<int>(checks.size()), 17);
    const QJsonObject vehicle = Find(checks, "element", Utf8("vehicle"));
    QCOMPARE(vehicle, (QJsonObject{{Utf8("element"), Utf8("vehicle")},
                                   {Utf8("ground"), Utf8("map")},
                                   {Utf8("scheme"), Utf8("night")},
                                   {Utf8("color"), Utf8("#f08a3c")},
                                   {Utf8("groundColor"), Utf8("#101214")},
                                   {Utf8("ratio"), 7.51},
                                   {Utf8("bound"), 3},
                                   {Utf8("origin"), Utf8("WCAG 2.1, 1.4.11: controls and graphics")},
                                   {Utf8("verdict"), Utf8("ok")}}));
    const QJsonObject grid = Find(checks, "element", Utf8("grid"));
    QVERIFY(grid.value(Utf8("ratio")).isNull());
    QCOMPARE(grid.value(Utf8("verdict")).toString(), Utf8("no colour"));
}

void ConsoleColors::samplesAreNotPartOfTheCheck()
{
    const TConsole console;
    VerifyMisused(Run(console, "colors --check --color always"), Utf8("--color"), Utf8("--check shows no samples"));
    QVERIFY(!QFile::exists(console.DataFolder()));
}

void ConsoleColors::patchesArePaintedWhereTheyCanBeSeen_data()
{
    QTest::addColumn<QString>("option");
    QTest::addColumn<QString>("environment");
    QTest::addColumn<bool>("isTerminal");
    QTest::addColumn<bool>("isPainted");
    const auto row = [](const char* name, const char* option, const char* environment, bool isTerminal,
                        bool isPainted) {
        QTest::newRow(name) << Utf8(option) << Utf8(environment) << isTerminal << isPainted;
    };
    row("a terminal", "", "TERM=xterm", true, true);
    row("a terminal, asked for", "--color=auto", "TERM=xterm", true, true);
    row("a pipe", "", "TERM=xterm", false, false);
    row("a dumb terminal", "", "TERM=dumb", true, false);
    row("a terminal of no name", "", "TERM=", true, false);
    row("colours are not wanted", "", "TERM=xterm NO_COLOR=1", true, false);
    row("an empty wish", "", "TERM=xterm NO_COLOR=", true, true);
    row("always, in a pipe", "--color=always", "TERM=dumb NO_COLOR=1", false, true);
    row("never, on a terminal", "--color=never", "TERM=xterm", true, false);
    row("objects", "--color=always --json", "TERM=xterm", true, false);
}

void ConsoleColors::patchesArePaintedWhereTheyCanBeSeen()
{
    QFETCH(QString, option);
    QFETCH(QString, environment);
    QFETCH(bool, isTerminal);
    QFETCH(bool, isPainted);
    const TConsole console;
    const TPseudoTerminal terminal;
    QProcess process;
    QProcessEnvironment variables = QProcessEnvironment::systemEnvironment();
    variables.remove(Utf8("NO_COLOR"));
    for (const QString& variable : environment.split(QLatin1Char(' ')))
        variables.insert(variable.section(QLatin1Char('='), 0, 0), variable.section(QLatin1Char('='), 1));
    process.setProcessEnvironment(variables);
    if (isTerminal)
        process.setStandardOutputFile(terminal.Name());
    process.start(QLatin1String(CABSETTINGS_PROGRAM),
                  QStringList{Utf8("--data"), console.DataFolder(), Utf8("colors")} +
                      option.split(QLatin1Char(' '), Qt::SkipEmptyParts));
    QVERIFY(process.waitForFinished());
    QCOMPARE(process.exitCode(), 0);
    const QString output = isTerminal ? terminal.ReadAll() : QString::fromUtf8(process.readAllStandardOutput());
    QVERIFY2(output.contains(Utf8("#101418")), qPrintable(output));
    QCOMPARE(output.contains(QLatin1Char('\033')), isPainted);
}

void ConsoleColors::aPatchHasItsColour()
{
    const TConsole console;
    QCOMPARE(Run(console, "set colors.day.text #0a64ff").status, 0);
    const QStringList lines = Run(console, "colors --color always").output.split(QLatin1Char('\n'));
    QCOMPARE(lines.at(3), Utf8("text                 \033[48;2;10;100;255m    \033[0m #0a64ff    "
                               "\033[48;2;216;199;168m    \033[0m #d8c7a8"));
    // Without the patches, the columns are where they are for everybody.
    QString plain = lines.at(3);
    plain.remove(QRegularExpression(Utf8("\033\\[[0-9;]*m")));
    QCOMPARE(plain.indexOf(Utf8("#0a64ff")), lines.at(2).indexOf(Utf8("day")));
    QCOMPARE(plain.indexOf(Utf8("#d8c7a8")), lines.at(2).indexOf(Utf8("night")));
}

void ConsoleColors::wrongUsageSaysWhatIsAccepted_data()
{
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<QString>("named");
    QTest::addColumn<QString>("accepted");
    QTest::newRow("unknown scheme") << Utf8("dusk") << Utf8("\"dusk\"") << Utf8("day or night");
    QTest::newRow("two schemes") << Utf8("day night") << Utf8("\"night\"") << Utf8("[day|night]");
    QTest::newRow("unknown painting") << Utf8("--color maybe") << Utf8("\"maybe\"") << Utf8("always, never or auto");
    QTest::newRow("unknown option") << Utf8("--paint") << Utf8("paint") << Utf8("colors --help");
}

void ConsoleColors::wrongUsageSaysWhatIsAccepted()
{
    QFETCH(QString, arguments);
    QFETCH(QString, named);
    QFETCH(QString, accepted);
    const TConsole console;
    VerifyMisused(console.Run(QStringList{Utf8("colors")} + arguments.split(QLatin1Char(' '))), named, accepted);
}

void ConsoleColors::aStoreThatCannotBeOpenedIsAFailure()
{
    const TConsole console;
    WriteFile(console.DataFolder(), "a file where the folder should be");
    const TConsole::tagResult result = Run(console, "colors");
    QCOMPARE(result.status, 1);
    QCOMPARE(result.output, QString());
    QVERIFY2(result.errors.contains(console.DataFolder()), qPrintable(result.errors));
}

QTEST_GUILESS_MAIN(ConsoleColors)
#include "ConsoleColors.moc"
