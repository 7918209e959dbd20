#include "TConsole.h"

#include "parameters/TParameterCatalogue.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QtTest>

class ConsoleParameters : public QObject
{
    Q_OBJECT

private slots:
    void whatIsSetIsRead_data();
    void whatIsSetIsRead();
    void aFirstStartHasValues_data();
    void aFirstStartHasValues();
    void wrongValuesAreRefusedAndLeaveNoTrace_data();
    void wrongValuesAreRefusedAndLeaveNoTrace();
    void unknownNamesSuggestNearOnes_data();
    void unknownNamesSuggestNearOnes();
    void resettingBringsTheFirstValueBack_data();
    void resettingBringsTheFirstValueBack();
    void theListShowsNumberNameTypeAndValue();
    void patternsChooseWhatIsListed_data();
    void patternsChooseWhatIsListed();
    void theListAsJsonHoldsEverything();
    void parametersAreDescribed();
    void onesOfTheHostAreDescribedAsSuch();
    void theDocumentedTableIsTheCatalogue();
    void anAbsentParameterIsAFailure();
    void aFolderThatCannotBeMadeIsAFailure();
    void aFileThatIsNoStoreIsRefusedAndKept();
};

void ConsoleParameters::whatIsSetIsRead_data()
{
    QTest::addColumn<QStringList>("set");
    QTest::addColumn<QString>("number");
    QTest::addColumn<QString>("read");
    const auto row = [](const char* name, const QStringList& set, const char* number, const char* read) {
        QTest::newRow(name) << set << QString::fromUtf8(number) << QString::fromUtf8(read);
    };
    const auto words = [](const char* text) { return QString::fromUtf8(text).split(QLatin1Char(' ')); };
    row("bool", words("8953 false"), "8953", "false");
    row("bool as 1", words("8954 1"), "8954", "true");
    row("int", words("8960 1"), "8960", "1");
    row("negative int", words("8949 -5"), "8949", "-5");
    row("greatest int", words("8951 2147483647"), "8951", "2147483647");
    row("string", words("8932 Müller"), "8932", "Müller");
    row("string with blanks", {QLatin1String("8933"), QLatin1String("Upper North  Farm")}, "8933", "Upper North  Farm");
    row("empty string", {QLatin1String("8934"), QString()}, "8934", "");
    row("colour", words("9064 #ff8040"), "9064", "#ff8040");
    row("translucent colour", words("9064 #80ff8040"), "9064", "#80ff8040");
    row("colour by name", words("9065 navy"), "9065", "#000080");
    row("a parameter of the host's own", words("--type double 20000 0.1"), "20000", "0.1");
    row("its own type", words("--type int 8960 1"), "8960", "1");
    row("by name", words("units.metric off"), "units.metric", "false");
    row("choice by name", words("units.area acre"), "units.area", "acre");
    row("choice by number, read by name", words("8960 1"), "units.area", "acre");
    row("choice by name, read by number", words("units.area acre"), "8960", "1");
    row("a name of a job", words("active.job J_030524_1405"), "active.job", "J_030524_1405");
}

void ConsoleParameters::whatIsSetIsRead()
{
    QFETCH(QStringList, set);
    QFETCH(QString, number);
    QFETCH(QString, read);
    const TConsole console;
    const TConsole::tagResult stored = console.Run(QStringList{QLatin1String("set")} + set);
    QCOMPARE(stored.errors, QString());
    QCOMPARE(stored.status, 0);
    const TConsole::tagResult got = console.Run({QLatin1String("get"), number});
    QCOMPARE(got.status, 0);
    QCOMPARE(got.output, read + QLatin1Char('\n'));
}

void ConsoleParameters::aFirstStartHasValues_data()
{
    QTest::addColumn<QString>("number");
    QTest::addColumn<QString>("value");
    QTest::newRow("metric") << "8953"
                            << "true";
    QTest::newRow("language") << "9009"
                              << "0";
    QTest::newRow("24-hour clock") << "9011"
                                   << "true";
    QTest::newRow("day mode") << "9060"
                              << "true";
    QTest::newRow("client") << "8932"
                            << "";
}

void ConsoleParameters::aFirstStartHasValues()
{
    QFETCH(QString, number);
    QFETCH(QString, value);
    const TConsole console;
    const TConsole::tagResult got = console.Run({QLatin1String("get"), number});
    QCOMPARE(got.errors, QString());
    QCOMPARE(got.output, value + QLatin1Char('\n'));
}

void ConsoleParameters::wrongValuesAreRefusedAndLeaveNoTrace_data()
{
    QTest::addColumn<QStringList>("set");
    QTest::addColumn<QString>("error");
    const auto row = [](const char* name, const QStringList& set, const char* error) {
        QTest::newRow(name) << set << QString::fromUtf8(error);
    };
    const auto words = [](const char* text) { return QString::fromUtf8(text).split(QLatin1Char(' ')); };
    row("no bool", words("units.metric maybe"), "invalid value \"maybe\" for units.metric; expected true or false");
    row("no choice", words("8960 2"), "invalid value \"2\" for units.area; expected hectare (0) or acre (1)");
    row("out of range", words("clock.offset-hours 24"),
        "invalid value \"24\" for clock.offset-hours; expected a whole number from -23 to 23");
    row("no colour", words("colors.day.map blurple"), "expected a colour: #rrggbb, #aarrggbb or a name");
    row("a relative drive", words("system.internal-drive drive/"), "expected an absolute path");
    row("a drive without its stroke", words("system.internal-drive /drive"),
        "expected an absolute path that ends in \"/\"");
    row("a name that leaves", words("active.field ../F1"), "contains the separator \"/\"");
    row("a name, and what would do", words("active.field a:b"), "did you mean \"a_b\"?");
    row("a reserved name", words("active.client nul"), "is reserved");
    row("another type", words("--type string 8960 two"), "invalid type \"string\" for units.area; expected int");
    row("an unknown type", words("--type float 20000 1"), "unknown type \"float\"; expected bool, int, double");
    row("no type yet", words("20000 1"), "has no value yet; expected --type bool, int, double");
    row("not of its type", words("--type int 20000 x"), "invalid value \"x\"; expected a whole number");
}

void ConsoleParameters::wrongValuesAreRefusedAndLeaveNoTrace()
{
    QFETCH(QStringList, set);
    QFETCH(QString, error);
    const TConsole console;
    const TConsole::tagResult before = console.Run({QLatin1String("list"), QLatin1String("--json")});
    const TConsole::tagResult refused = console.Run(QStringList{QLatin1String("set")} + set);
    QCOMPARE(refused.status, 2);
    QVERIFY2(refused.errors.contains(error), qPrintable(refused.errors));
    QCOMPARE(refused.errors.count(QLatin1Char('\n')), 1);
    QCOMPARE(console.Run({QLatin1String("list"), QLatin1String("--json")}).output, before.output);
}

void ConsoleParameters::unknownNamesSuggestNearOnes_data()
{
    QTest::addColumn<QString>("command");
    for (const char* command : {"get", "describe", "reset"})
        QTest::newRow(command) << QString::fromLatin1(command);
}

void ConsoleParameters::unknownNamesSuggestNearOnes()
{
    QFETCH(QString, command);
    const TConsole console;
    const TConsole::tagResult near = console.Run({command, QLatin1String("units.metrik")});
    QCOMPARE(near.status, 2);
    QVERIFY2(near.errors.contains(QLatin1String("unknown parameter \"units.metrik\"; did you mean \"units.metric\"?")),
             qPrintable(near.errors));
    const TConsole::tagResult far = console.Run({command, QLatin1String("xyzzy-plugh")});
    QCOMPARE(far.status, 2);
    QVERIFY2(far.errors.contains(QLatin1String("a name or a number that `cabsettings list` prints")),
             qPrintable(far.errors));
}

void ConsoleParameters::resettingBringsTheFirstValueBack_data()
{
    QTest::addColumn<QString>("parameter");
    QTest::addColumn<QString>("other");
    QTest::addColumn<QString>("first"); // null for none
    QTest::newRow("bool") << QStringLiteral("units.metric") << QStringLiteral("false") << QStringLiteral("true");
    QTest::newRow("choice") << QStringLiteral("units.area") << QStringLiteral("acre") << QStringLiteral("hectare");
    QTest::newRow("number") << QStringLiteral("display.night-backlight") << QStringLiteral("99")
                            << QStringLiteral("20");
    QTest::newRow("colour") << QStringLiteral("colors.day.map") << QStringLiteral("navy") << QStringLiteral("#e6e2d3");
    QTest::newRow("name") << QStringLiteral("active.client") << QStringLiteral("Smith") << QStringLiteral("");
    QTest::newRow("what the terminal finds") << QStringLiteral("active.job") << QStringLiteral("J_1") << QString();
}

void ConsoleParameters::resettingBringsTheFirstValueBack()
{
    QFETCH(QString, parameter);
    QFETCH(QString, other);
    QFETCH(QString, first);
    const TConsole console;
    QCOMPARE(console.Run({QLatin1String("set"), parameter, other}).status, 0);
    const TConsole::tagResult reset = console.Run({QLatin1String("reset"), parameter});
    QCOMPARE(reset.errors, QString());
    QCOMPARE(reset.status, 0);
    const TConsole::tagResult got = console.Run({QLatin1String("get"), parameter});
    QCOMPARE(got.status, first.isNull() ? 1 : 0);
    QCOMPARE(got.output, first.isNull() ? QString() : first + QLatin1Char('\n'));
    const TConsole::tagResult own = console.Run({QLatin1String("reset"), QLatin1String("20000")});
    QCOMPARE(own.status, 2);
    QVERIFY2(own.errors.contains(QLatin1String("belongs to the host")), qPrintable(own.errors));
}

void ConsoleParameters::theListShowsNumberNameTypeAndValue()
{
    const TConsole console;
    console.Run({QLatin1String("set"), QLatin1String("8932"), QLatin1String("Smith")});
    const TConsole::tagResult list = console.Run({QLatin1String("list")});
    QCOMPARE(list.status, 0);
    const QStringList lines = list.output.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    QVERIFY(lines.size() > 50);
    for (const char* row : {"8932   active.client                     string  Smith",
                            "8953   units.metric                      bool    true",
                            "8919   active.job                        string  (not set)",
                            "8960   units.area                        int     hectare",
                            "9064   colors.day.text                   color   #101418"})
        QVERIFY2(lines.contains(QLatin1String(row)), row);
    int previous = -1;
    for (const QString& line : lines) {
        const int number = line.section(QLatin1Char(' '), 0, 0).toInt();
        QVERIFY(number > previous);
        previous = number;
    }
}

void ConsoleParameters::patternsChooseWhatIsListed_data()
{
    QTest::addColumn<QString>("pattern");
    QTest::addColumn<int>("count");
    QTest::newRow("group") << QStringLiteral("clock") << 8;
    QTest::newRow("part") << QStringLiteral("offset-m") << 1;
    QTest::newRow("capitals") << QStringLiteral("CLOCK.") << 7;
    QTest::newRow("number") << QStringLiteral("8953") << 1;
    QTest::newRow("numbers") << QStringLiteral("895?") << 7;
    QTest::newRow("wildcard") << QStringLiteral("colors.*.map") << 2;
    QTest::newRow("everything") << QStringLiteral("*")
                                << static_cast<int>(TParameterCatalogue::Parameters().size()) + 1;
    QTest::newRow("the host's own") << QStringLiteral("20000") << 1;
    QTest::newRow("nothing") << QStringLiteral("frobozz") << 0;
}

void ConsoleParameters::patternsChooseWhatIsListed()
{
    QFETCH(QString, pattern);
    QFETCH(int, count);
    const TConsole console;
    console.Run({QLatin1String("set"), QLatin1String("--type"), QLatin1String("double"), QLatin1String("20000"),
                 QLatin1String("1.5")});
    const TConsole::tagResult list = console.Run({QLatin1String("list"), pattern});
    QCOMPARE(static_cast<int>(list.output.count(QLatin1Char('\n'))), count);
    QCOMPARE(list.status, count > 0 ? 0 : 1);
    QCOMPARE(list.errors.contains(QLatin1String("no parameter matches \"frobozz\"")), count == 0);
}

void ConsoleParameters::theListAsJsonHoldsEverything()
{
    const TConsole console;
    console.Run({QLatin1String("set"), QLatin1String("units.area"), QLatin1String("acre")});
    const TConsole::tagResult list = console.Run({QLatin1String("list"), QLatin1String("--json")});
    QCOMPARE(list.status, 0);
    const QJsonArray array = QJsonDocument::fromJson(list.output.toUtf8()).array();
    QVERIFY(array.size() > 50);
    QJsonObject area;
    QJsonObject job;
    for (const QJsonValue& value : array) {
        const QJsonObject object = value.toObject();
        for (const char* field : {"number", "name", "type", "value", "default", "accepts", "meaning"})
            QVERIFY2(object.contains(QLatin1String(field)), field);
        if (object.value(QLatin1String("number")).toInt() == 8960)
            area = object;
        if (object.value(QLatin1String("name")).toString() == QLatin1String("active.job"))
            job = object;
    }
    QCOMPARE(area.value(QLatin1String("name")).toString(), QLatin1String("units.area"));
    QCOMPARE(area.value(QLatin1String("type")).toString(), QLatin1String("int"));
    QCOMPARE(area.value(QLatin1String("value")), QJsonValue(1));
    QCOMPARE(area.value(QLatin1String("default")), QJsonValue(0));
    QCOMPARE(area.value(QLatin1String("text")).toString(), QLatin1String("acre"));
    QCOMPARE(area.value(QLatin1String("accepts")).toString(), QLatin1String("hectare (0) or acre (1)"));
    QVERIFY(job.value(QLatin1String("value")).isNull());
    QVERIFY(job.value(QLatin1String("default")).isNull());

    const TConsole::tagResult one =
        console.Run({QLatin1String("get"), QLatin1String("units.area"), QLatin1String("--json")});
    QCOMPARE(QJsonDocument::fromJson(one.output.toUtf8()).object(), area);
}

void ConsoleParameters::parametersAreDescribed()
{
    const TConsole console;
    console.Run({QLatin1String("set"), QLatin1String("display.night-backlight"), QLatin1String("35")});
    const char* const expected = "display.night-backlight (9062): brightness of the screen at night\n"
                                 "\n"
                                 "  Type     int\n"
                                 "  Value    35 %\n"
                                 "  Default  20 %\n"
                                 "  Accepts  a whole number from 0 to 100\n"
                                 "  Changes  the screen\n";
    for (const char* word : {"display.night-backlight", "9062"}) {
        const TConsole::tagResult described = console.Run({QLatin1String("describe"), QLatin1String(word)});
        QCOMPARE(described.output, QString::fromLatin1(expected));
        QCOMPARE(described.status, 0);
    }
    const TConsole::tagResult drive = console.Run({QLatin1String("describe"), QLatin1String("system.internal-drive")});
    QVERIFY(drive.output.contains(QLatin1String("Value    (not set)\n")));
    QVERIFY(drive.output.contains(QLatin1String("Default  chosen by the terminal\n")));
}

void ConsoleParameters::onesOfTheHostAreDescribedAsSuch()
{
    const TConsole console;
    const TConsole::tagResult absent = console.Run({QLatin1String("describe"), QLatin1String("20000")});
    QCOMPARE(absent.status, 1);
    QVERIFY2(absent.errors.contains(QLatin1String("parameter 20000 is not set")), qPrintable(absent.errors));
    console.Run({QLatin1String("set"), QLatin1String("--type"), QLatin1String("int"), QLatin1String("20000"),
                 QLatin1String("5")});
    const TConsole::tagResult described = console.Run({QLatin1String("describe"), QLatin1String("20000")});
    QCOMPARE(described.output, QLatin1String("parameter 20000 belongs to the host; the library does not use it\n"));
    QCOMPARE(described.status, 0);
}

void ConsoleParameters::theDocumentedTableIsTheCatalogue()
{
    QFile document(QLatin1String(CABSETTINGS_DOCUMENTS "/parameters.md"));
    QVERIFY(document.open(QIODevice::ReadOnly));
    const TConsole::tagResult table = TConsole().Run({QLatin1String("list"), QLatin1String("--markdown")});
    QVERIFY2(QString::fromUtf8(document.readAll()).endsWith(table.output),
             "docs/parameters.md ends with what `cabsettings list --markdown` prints");
}

void ConsoleParameters::anAbsentParameterIsAFailure()
{
    const TConsole console;
    const TConsole::tagResult got = console.Run({QLatin1String("get"), QLatin1String("77")});
    QCOMPARE(got.status, 1);
    QCOMPARE(got.errors, QString::fromLatin1("cabsettings: parameter 77 is not set\n"));
}

void ConsoleParameters::aFolderThatCannotBeMadeIsAFailure()
{
    const TConsole console;
    QFile file(console.DataFolder());
    QVERIFY(file.open(QIODevice::WriteOnly));
    const TConsole::tagResult got = console.Run({QLatin1String("list")});
    QCOMPARE(got.status, 1);
    QVERIFY2(got.errors.contains(console.DataFolder()), qPrintable(got.errors));
    QCOMPARE(got.errors.count(QLatin1Char('\n')), 1);
}

void ConsoleParameters::aFileThatIsNoStoreIsRefusedAndKept()
{
    const TConsole console;
    QVERIFY(QDir().mkpath(console.DataFolder()));
    QFile file(console.DataFolder() + QLatin1String("/settings.db"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write("a shopping list\n"), 16);
    file.close();
    const TConsole::tagResult got = console.Run({QLatin1String("set"), QLatin1String("8953"), QLatin1String("true")});
    QCOMPARE(got.status, 1);
    QVERIFY2(got.errors.contains(QLatin1String("settings.db")), qPrintable(got.errors));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), QByteArray("a shopping list\n"));
}

QTEST_GUILESS_MAIN(ConsoleParameters)
#include "ConsoleParameters.moc"
