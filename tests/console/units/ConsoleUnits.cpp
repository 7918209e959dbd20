#include "TConsole.h"

#include "platform/TConfigManager.h"
#include "stores/TMemoryStore.h"
#include "units/TUnits.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QtTest>

#include <sys/resource.h>

class ConsoleUnits : public QObject
{
    Q_OBJECT

private slots:
    void valuesAreConverted_data();
    void valuesAreConverted();
    void theDecisionNamesWhoseGallonItIs_data();
    void theDecisionNamesWhoseGallonItIs();
    void valuesGoThroughTheHub_data();
    void valuesGoThroughTheHub();
    void whatIsNotConvertedIsRefused_data();
    void whatIsNotConvertedIsRefused();
    void valuesAreShownAsTheOperatorSeesThem_data();
    void valuesAreShownAsTheOperatorSeesThem();
    void everyShownValueIsATextInJson();
    void aDynamicPrecisionLeavesOtherUnitsAlone();
    void theStoredUnitIsTold_data();
    void theStoredUnitIsTold();
    void theStoredSettingsDecide();
    void unitsAreListed();
    void jsonHoldsTheSame();
    void aColumnIsConverted_data();
    void aColumnIsConverted();
    void everyByteOfATableIsKept_data();
    void everyByteOfATableIsKept();
    void aTableThatCannotBeReadIsSaid_data();
    void aTableThatCannotBeReadIsSaid();
    void aMillionRowsTakeNoMoreMemory();
    void wrongUsageSaysWhatIsAccepted_data();
    void wrongUsageSaysWhatIsAccepted();

private:
    static QStringList Words(const char* text)
    {
        QStringList words;
        const QStringList parts = QString::fromUtf8(text).split(QLatin1Char(' '));
        for (QString part : parts)
            words.append(part.replace(QLatin1Char('~'), QLatin1Char(' ')));
        return words;
    }

    TConsole m_Console;
};

void ConsoleUnits::valuesAreConverted_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("output");
    const auto row = [](const char* arguments, const char* output) {
        QTest::newRow(arguments) << (QStringList{QLatin1String("convert")} + Words(arguments))
                                 << QString::fromUtf8(output);
    };
    const char* const us = "(US measures, because parameter 8953 (metric) is false and 8954 (US) is true)\n";
    const char* const english = "(English measures, because parameter 8953 (metric) is false and 8954 (US) is false)\n";
    row("1 m km", "1 m = 0.001 km\n");
    row("2 km cm", "2 km = 200000 cm\n");
    row("-5 °C °F", "-5 °C = 23 °F\n");
    row("212 °F °C", "212 °F = 100 °C\n");
    row("36 kph mph --digits 3", "36 kph = 22.4 mph\n");
    row("10 kph mph", "10 kph = 6.213712 mph\n");
    row("100 kPa bar", "100 kPa = 1 bar\n");
    row("7 ha ha", "7 ha = 7 ha\n");
    row("5 ' \"", "5 ' = 60 \"\n");
    row("1 19 23", "1 L = 0.001 m³\n");
    row("100 kg/ha lb/ac", "100 kg/ha = 89.21791 lb/ac\n");
    QTest::newRow("gallons US") << (QStringList{QLatin1String("convert")} + Words("--system us 12.5 L/ha gal/ac"))
                                << QString::fromUtf8("12.5 L/ha = 1.33625 gal/ac\n") + QLatin1String(us);
    QTest::newRow("gallons English") << (QStringList{QLatin1String("convert")} +
                                         Words("12.5 L/ha gal/ac --system english"))
                                     << QString::fromUtf8("12.5 L/ha = 1.112734 gal/ac\n") + QLatin1String(english);
    row("12.5 L/ha gal/ac~(US)", "12.5 L/ha = 1.33625 gal/ac (US)\n");
    row("10 gal/ha gal/ha", "10 gal/ha = 10 gal/ha\n");
    row("5 kgN lbN", "5 kgN = 11.02311 lbN\n");
}

void ConsoleUnits::valuesAreConverted()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, output);
    const TConsole::tagResult result = m_Console.Run(arguments);
    QCOMPARE(result.errors, QString());
    QCOMPARE(result.output, output);
    QCOMPARE(result.status, 0);
}

void ConsoleUnits::theDecisionNamesWhoseGallonItIs_data()
{
    QTest::addColumn<QString>("unit");
    QTest::addColumn<QString>("hub");
    const auto row = [](const char* unit, const char* hub) {
        QTest::newRow(unit) << QString::fromLatin1(unit) << QString::fromLatin1(hub);
    };
    row("gal", "L");
    row("fl.oz", "L");
    row("gal/ha", "L/ha");
    row("gal/ac", "L/ha");
    row("fl.oz/ha", "L/ha");
    row("fl.oz/ac", "L/ha");
    row("gal/100yd", "L/ha");
    row("gal/min", "L/min");
    row("fl.oz/min", "L/min");
    row("gal/rev", "L/rev");
    row("pulses/gal", "pulses/L");
    row("pulses/fl.oz", "pulses/L");
    row("lb/gal", "kg/L");
}

/// The list of units, the result and its explanation tell the same.
void ConsoleUnits::theDecisionNamesWhoseGallonItIs()
{
    QFETCH(QString, unit);
    QFETCH(QString, hub);
    const auto converted = [&](const char* system) {
        const TConsole::tagResult result =
            m_Console.Run({QLatin1String("convert"), QLatin1String("--json"), QLatin1String("--system"),
                           QLatin1String(system), QLatin1String("10"), unit, hub});
        return QJsonDocument::fromJson(result.output.toUtf8()).object();
    };
    const QJsonObject us = converted("us");
    const QJsonObject english = converted("english");
    QVERIFY(us.value(QLatin1String("decision")).toString().startsWith(QLatin1String("US measures")));
    QVERIFY(english.value(QLatin1String("decision")).toString().startsWith(QLatin1String("English measures")));
    QVERIFY(us.value(QLatin1String("result")) != english.value(QLatin1String("result")));

    const TConsole::tagResult units = m_Console.Run({QLatin1String("units"), QLatin1String("--json")});
    const QJsonArray rows = QJsonDocument::fromJson(units.output.toUtf8()).array();
    for (const QJsonValue& row : rows) {
        if (row.toObject().value(QLatin1String("abbreviation")).toString() == unit)
            QCOMPARE(row.toObject().value(QLatin1String("family")).toString(), QLatin1String("imperial or US"));
    }
}

void ConsoleUnits::valuesGoThroughTheHub_data()
{
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("hub");
    QTest::addColumn<int>("to");
    const auto row = [](const char* name, EUnitsType from, EUnitsType hub, EUnitsType to) {
        QTest::newRow(name) << static_cast<int>(from) << static_cast<int>(hub) << static_cast<int>(to);
    };
    row("a speed", UNITS_MPH, UNITS_METERS_PER_SECOND, UNITS_KPH);
    row("a distance", UNITS_MILES, UNITS_METERS, UNITS_INCHES);
    row("a weight rate", UNITS_KG_PER_AC, UNITS_KG_PER_HA, UNITS_LB_PER_AC);
    row("a nitrogen rate", UNITS_LB_N_PER_AC, UNITS_KG_N_PER_HA, UNITS_KG_N_PER_AC);
    row("nitrogen", UNITS_LB_N, UNITS_KG_N, UNITS_KG_N);
    row("nitrogen per minute", UNITS_LB_N_PER_MIN, UNITS_KG_N_PER_MIN, UNITS_KG_N_PER_MIN);
    row("a liquid rate", UNITS_US_GAL_PER_AC, UNITS_L_PER_HA, UNITS_M3_PER_AC);
    row("a density", UNITS_KG_PER_M3, UNITS_KG_PER_L, UNITS_LB_PER_FT3);
    row("a flow", UNITS_ML_PER_MIN, UNITS_L_PER_MIN, UNITS_FT3_PER_MIN);
    row("pulses", UNITS_PULSES_PER_T, UNITS_PULSES_PER_L, UNITS_PULSES_PER_LB);
}

void ConsoleUnits::valuesGoThroughTheHub()
{
    QFETCH(int, from);
    QFETCH(int, hub);
    QFETCH(int, to);
    TMemoryStore store;
    ConfigManager = &store;
    const double value = 7.3;
    const auto type = [](int number) { return static_cast<EUnitsType>(number); };
    const double expected = TUnits::ConvertUnit(TUnits::ConvertUnit(value, type(from), type(hub)), type(hub), type(to));
    const TConsole::tagResult result =
        m_Console.Run({QLatin1String("convert"), QLatin1String("--json"), QString::number(value), QString::number(from),
                       QString::number(to)});
    QCOMPARE(result.errors, QString());
    const double converted =
        QJsonDocument::fromJson(result.output.toUtf8()).object().value(QLatin1String("result")).toDouble();
    QCOMPARE(QString::number(converted, 'g', 17), QString::number(expected, 'g', 17));
}

void ConsoleUnits::whatIsNotConvertedIsRefused_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("reason");
    const auto row = [](const char* arguments, const char* reason) {
        QTest::newRow(arguments) << (QStringList{QLatin1String("convert")} + Words(arguments))
                                 << QString::fromUtf8(reason);
    };
    row("1 kg L", "kg measures weight and L measures volume");
    row("1 kg lb/min", "lb/min measures discharge");
    row("1 kg/ha KS/ac", "KS/ac measures seed rate");
    row("1 ha/hr ac/hr", "cannot convert ha/hr to ac/hr");
    row("1 L/ha gal/ac", "8953 (metric) is true");
    row("1 kph m/min", "kph measures speed and m/min measures speed per minute");
    row("1 s min", "cannot convert s to min");
    row("1 kg/ac L/ha", "kg/ac measures weight rate and L/ha measures liquid rate");
    row("100 L lb", "L measures volume and lb measures weight");
    row("100 L/ha lb/ac", "L/ha measures liquid rate and lb/ac measures weight rate");
    // Nitrogen is another substance than the product that carries it.
    row("1 kgN kg", "kgN measures nitrogen weight and kg measures weight");
    row("1 kg lbN", "kg measures weight and lbN measures nitrogen weight");
    row("1 lb lbN", "lb measures weight and lbN measures nitrogen weight");
    row("1 kgN/ha kg/ha", "kgN/ha measures nitrogen rate and kg/ha measures weight rate");
    row("1 lb/ac lbN/ac", "lb/ac measures weight rate and lbN/ac measures nitrogen rate");
    row("1 kgN/min kg/min", "kgN/min measures nitrogen discharge and kg/min measures discharge");
    // The hub has no conversion for them.
    row("1 g/ha kg/ha", "cannot convert g/ha to kg/ha: the display has no conversion");
    row("1 L/100m L/ha", "cannot convert L/100m to L/ha: the display has no conversion");
    // What is beyond the numbers of the display.
    row("1e308 km mm", "cannot convert 1e+308 km to mm: the result is too large");
    row("-1e308 km mm", "cannot convert -1e+308 km to mm: the result is too large");
    row("1e308 km mm --json", "cannot convert 1e+308 km to mm: the result is too large");
    row("1e39 lb kg", "cannot convert 1e+39 lb to kg: the result is too large");
}

void ConsoleUnits::whatIsNotConvertedIsRefused()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, reason);
    const TConsole::tagResult result = m_Console.Run(arguments);
    QCOMPARE(result.status, 1);
    QVERIFY2(result.errors.contains(reason), qPrintable(result.errors));
    QCOMPARE(result.output, QString());
}

void ConsoleUnits::valuesAreShownAsTheOperatorSeesThem_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("output");
    const auto row = [](const char* arguments, const char* output) {
        QTest::newRow(arguments) << (QStringList{QLatin1String("show")} + Words(arguments))
                                 << QString::fromUtf8(output);
    };
    row("12.25 L/ha --precision dynamic", "12.3 L/ha\n");
    row("12 L/ha --precision dynamic", "12 L/ha\n");
    row("12.345 ha", "12.35 ha\n");
    row("12.345 ha --precision 0", "12 ha\n");
    row("12.345 kg --precision 3 --threshold 10:0", "12 kg\n");
    row("9.345 kg --precision 3 --threshold 10:0", "9.345 kg\n");
    row("-40 °C --system us", "-40 °F\n");
    row("2.5 mm", "2500 mm\n");   // distances are stored in metres
    row("2.5 mL", "2500.0 mL\n"); // volumes are stored in litres
    row("2500 m³", "2.50 m³\n");
    row("2500 t", "2.50 t\n");
    row("10 UNITS_KPH", "36.0 kph\n"); // speeds are stored in metres per second
    row("51.5 113", "51.50000000\n");
    row("100 L --system english", "22.0 gal\n");
}

void ConsoleUnits::valuesAreShownAsTheOperatorSeesThem()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, output);
    const TConsole::tagResult result = m_Console.Run(arguments);
    QCOMPARE(result.errors, QString());
    QCOMPARE(result.output, output);
}

void ConsoleUnits::everyShownValueIsATextInJson()
{
    const TConsole::tagResult result =
        m_Console.Run({QLatin1String("show"), QLatin1String("--all"), QLatin1String("--json"), QLatin1String("12")});
    const QJsonArray rows = QJsonDocument::fromJson(result.output.toUtf8()).array();
    QCOMPARE(rows.size(), 115);
    for (const QJsonValue& row : rows) {
        QVERIFY(row.toObject().value(QLatin1String("number")).isDouble());
        for (const char* field : {"name", "stored", "shown"})
            QVERIFY2(row.toObject().value(QLatin1String(field)).isString(), field);
    }
}

void ConsoleUnits::aDynamicPrecisionLeavesOtherUnitsAlone()
{
    const auto shown = [this](const QStringList& options) {
        const TConsole::tagResult result = m_Console.Run(QStringList{QLatin1String("show"), QLatin1String("--all"),
                                                                     QLatin1String("--json"), QLatin1String("12.25")} +
                                                         options);
        return QJsonDocument::fromJson(result.output.toUtf8()).array();
    };
    const QJsonArray plain = shown({});
    const QJsonArray dynamic = shown({QLatin1String("--precision"), QLatin1String("dynamic")});
    QCOMPARE(dynamic.size(), 115);
    const QList<int> rates = {UNITS_L_PER_HA, UNITS_KG_PER_HA, UNITS_KG_N_PER_HA};
    for (int i = 0; i < dynamic.size(); ++i) {
        if (!rates.contains(i))
            QCOMPARE(dynamic.at(i), plain.at(i));
    }
    QCOMPARE(dynamic.at(UNITS_L_PER_HA).toObject().value(QLatin1String("shown")).toString(),
             QLatin1String("12.3 L/ha"));
}

void ConsoleUnits::theStoredUnitIsTold_data()
{
    QTest::addColumn<QString>("unit");
    QTest::addColumn<QString>("stored");
    const auto row = [](const char* unit, const char* stored) {
        QTest::newRow(unit) << QString::fromUtf8(unit) << QString::fromUtf8(stored);
    };
    row("kph", "UNITS_METERS_PER_SECOND");
    row("mm", "m");
    row("mL", "L");
    row("m³", "L");
    row("t", "L");
    row("US bu", "L");
    row("UK bu", "L");
    row("mL/min", "L/min");
    row("t/ha", "L/ha");
    row("kg/m³", "kg/L");
    row("ha", "ha");
    row("ac", "ac");
    row("kgN/ha", "kgN/ha");
}

/// The list of units and show tell in which unit a value is given, and show takes it so.
void ConsoleUnits::theStoredUnitIsTold()
{
    QFETCH(QString, unit);
    QFETCH(QString, stored);
    const QJsonArray units =
        QJsonDocument::fromJson(m_Console.Run({QLatin1String("units"), QLatin1String("--json")}).output.toUtf8())
            .array();
    int found = 0;
    for (const QJsonValue& row : units) {
        if (row.toObject().value(QLatin1String("abbreviation")).toString() != unit)
            continue;
        QCOMPARE(row.toObject().value(QLatin1String("stored")).toString(), stored);
        ++found;
    }
    QCOMPARE(found, 1);
    const QJsonArray shown =
        QJsonDocument::fromJson(
            m_Console.Run({QLatin1String("show"), QLatin1String("--json"), QLatin1String("1"), unit}).output.toUtf8())
            .array();
    QCOMPARE(shown.at(0).toObject().value(QLatin1String("stored")).toString(), stored);
}

void ConsoleUnits::theStoredSettingsDecide()
{
    const TConsole console;
    console.Run(QStringList{QLatin1String("set"), QLatin1String("8960"), QLatin1String("1")});
    console.Run(QStringList{QLatin1String("set"), QLatin1String("9010"), QLatin1String("1")});
    QCOMPARE(console.Run({QLatin1String("show"), QLatin1String("2"), QLatin1String("ha")}).output,
             QString::fromLatin1("4,94 ac\n"));
    console.Run(QStringList{QLatin1String("set"), QLatin1String("9009"), QLatin1String("1")});
    QCOMPARE(console.Run({QLatin1String("show"), QLatin1String("10"), QLatin1String("kph")}).output,
             QString::fromLatin1("36,0 km/h\n"));
}

void ConsoleUnits::unitsAreListed()
{
    const QStringList lines =
        m_Console.Run({QLatin1String("units")}).output.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    QCOMPARE(lines.size(), 116);
    QVERIFY(lines.first().startsWith(QLatin1String("number  name")));
    const QString row = lines.at(34).simplified();
    QCOMPARE(row, QString::fromLatin1("33 UNITS_GAL_PER_AC gal/ac imperial or US liquid rate L/ha gal/ac 1"));

    const QString pressures =
        m_Console.Run({QLatin1String("units"), QLatin1String("--quantity"), QLatin1String("pressure")}).output;
    QCOMPARE(pressures.count(QLatin1Char('\n')), 4);
}

void ConsoleUnits::jsonHoldsTheSame()
{
    const QJsonArray units =
        QJsonDocument::fromJson(m_Console.Run({QLatin1String("units"), QLatin1String("--json")}).output.toUtf8())
            .array();
    QCOMPARE(units.size(), 115);
    const QJsonObject gallons = units.at(33).toObject();
    QCOMPARE(gallons.value(QLatin1String("number")).toInt(), 33);
    QCOMPARE(gallons.value(QLatin1String("abbreviation")).toString(), QString::fromLatin1("gal/ac"));
    QCOMPARE(gallons.value(QLatin1String("hub")).toString(), QString::fromLatin1("L/ha"));

    const QJsonObject converted =
        QJsonDocument::fromJson(m_Console
                                    .Run({QLatin1String("convert"), QLatin1String("--json"), QLatin1String("2"),
                                          QLatin1String("km"), QLatin1String("m")})
                                    .output.toUtf8())
            .object();
    QCOMPARE(converted.value(QLatin1String("to")).toString(), QString::fromLatin1("UNITS_METERS"));
    QVERIFY(qAbs(converted.value(QLatin1String("result")).toDouble() - 2000) < 0.001);

    const QJsonArray shown =
        QJsonDocument::fromJson(
            m_Console.Run({QLatin1String("show"), QLatin1String("--all"), QLatin1String("--json"), QLatin1String("1")})
                .output.toUtf8())
            .array();
    QCOMPARE(shown.size(), 115);
    QCOMPARE(shown.at(71).toObject().value(QLatin1String("shown")).toString(), QString::fromLatin1("1 kg"));
}

void ConsoleUnits::aColumnIsConverted_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QByteArray>("input");
    QTest::addColumn<QString>("output");
    QTest::addColumn<QString>("errors");
    const auto row = [](const char* name, const char* column, const QByteArray& input, const char* output,
                        const char* errors) {
        QTest::newRow(name) << QStringList{QLatin1String("convert"), QLatin1String("--csv"), QString::fromUtf8(column),
                                           QLatin1String("m"), QLatin1String("km")}
                            << input << QString::fromUtf8(output) << QString::fromUtf8(errors);
    };
    row("by name", "distance", "id,distance\n1,1500\n2,-3\n", "id,distance\n1,1.5\n2,-0.003\n", "");
    row("by number", "1", "1500,a\n3,b\n", "1.5,a\n0.003,b\n", "");
    row("carriage returns stay", "1", "1500\r\n3\r\n", "1.5\r\n0.003\r\n", "");
    row("no line end at the end", "1", "1500", "1.5", "");
    row("quoted fields", "d", "\"a, b\",d\n\"x\"\"y\",\"1500\"\n", "\"a, b\",d\n\"x\"\"y\",1.5\n", "");
    row("non-Latin names", "путь", QByteArray("путь\n1500\n"), "путь\n1.5\n", "");
    row("bad rows stay", "d", "d\nx\n1500\n\n", "d\nx\n1.5\n\n",
        "cabsettings: line 2: invalid number \"x\"; expected digits with a full stop, such as 12.5; kept unchanged\n"
        "cabsettings: line 4: invalid number \"\"; expected digits with a full stop, such as 12.5; kept unchanged\n"
        "cabsettings: 2 of 4 lines were kept unchanged\n");
    row("short rows stay", "2", "1\n1,1500\n", "1\n1,1.5\n",
        "cabsettings: line 1: missing column 2; the line has 1; kept unchanged\n"
        "cabsettings: 1 of 2 lines were kept unchanged\n");
    row("an open quote stays", "1", "\"1500\n3\n", "\"1500\n0.003\n",
        "cabsettings: line 1: a quoted field does not end on the line; kept unchanged\n"
        "cabsettings: 1 of 2 lines were kept unchanged\n");
    row("what becomes infinite stays", "1", "1e39\n1500\n", "1e39\n1.5\n",
        "cabsettings: line 1: cannot convert 1e+39 m to km: the result is too large; kept unchanged\n"
        "cabsettings: 1 of 2 lines were kept unchanged\n");
    row("a name that looks like a number", "1.5", "x,1.5\n7,1500\n", "x,1.5\n7,1.5\n", "");
    row("a near name", "distanc", "id,distance\n1,2\n", "",
        "cabsettings: line 1: unknown column \"distanc\"; did you mean \"distance\"?\n");
    row("infinities stay", "1", "inf\n", "inf\n",
        "cabsettings: line 1: invalid number \"inf\"; expected digits with a full stop, such as 12.5; kept unchanged\n"
        "cabsettings: 1 of 1 lines were kept unchanged\n");
    row("unknown column", "speed", "id,distance\n1,2\n", "",
        "cabsettings: line 1: unknown column \"speed\"; expected id or distance\n");
    row("too long a line", "1", QByteArray(1024 * 1024, '1'), "", "cabsettings: line 1 has 1 MiB or more\n");
    row("nothing, by name", "d", "", "", "cabsettings: cannot find column \"d\": the input is empty\n");
    row("nothing, by number", "1", "", "", "");
}

void ConsoleUnits::aColumnIsConverted()
{
    QFETCH(QStringList, arguments);
    QFETCH(QByteArray, input);
    QFETCH(QString, output);
    QFETCH(QString, errors);
    const TConsole::tagResult result = m_Console.Run(arguments, input);
    QCOMPARE(result.output, output);
    QCOMPARE(result.errors, errors);
    QCOMPARE(result.status, errors.isEmpty() ? 0 : 1);
}

void ConsoleUnits::everyByteOfATableIsKept_data()
{
    QTest::addColumn<QByteArray>("field");
    QTest::newRow("zeros") << QByteArray("a\0b\0", 4);
    QTest::newRow("a text in Latin-1") << QByteArray("K\xFChn");
    QTest::newRow("the longest line") << QByteArray(1024 * 1024 - static_cast<int>(strlen(",1500\n")), 'x');
}

void ConsoleUnits::everyByteOfATableIsKept()
{
    QFETCH(QByteArray, field);
    QProcess process;
    process.start(QLatin1String(CABSETTINGS_PROGRAM), Words("--data")
                                                          << m_Console.DataFolder() << Words("convert --csv 2 m km"));
    process.write(field + ",1500\n" + field + ",3\n");
    process.closeWriteChannel();
    QVERIFY(process.waitForFinished(-1)); // ctest ends a test that hangs
    QCOMPARE(process.readAllStandardError(), QByteArray());
    QCOMPARE(process.exitCode(), 0);
    // Compared without QCOMPARE, which would print a long line twice.
    QVERIFY(process.readAllStandardOutput() == field + ",1.5\n" + field + ",0.003\n");
}

void ConsoleUnits::aTableThatCannotBeReadIsSaid_data()
{
    QTest::addColumn<QString>("input");
    QTest::addColumn<QByteArray>("reason");
    QTest::newRow("a folder") << QStringLiteral("</") << QByteArray("Is a directory");
    QTest::newRow("closed") << QStringLiteral("<&-") << QByteArray("Bad file descriptor");
}

void ConsoleUnits::aTableThatCannotBeReadIsSaid()
{
    QFETCH(QString, input);
    QFETCH(QByteArray, reason);
    QProcess process;
    process.start(QLatin1String("sh"), {QLatin1String("-c"), QLatin1String("exec \"$0\" convert --csv 1 m km ") + input,
                                        QLatin1String(CABSETTINGS_PROGRAM)});
    QVERIFY(process.waitForFinished(-1));
    QCOMPARE(process.readAllStandardError(), "cabsettings: cannot read standard input: " + reason + '\n');
    QCOMPARE(process.exitCode(), 1);
}

void ConsoleUnits::aMillionRowsTakeNoMoreMemory()
{
    const QString path = m_Console.Path("million.csv");
    QFile table(path);
    QVERIFY(table.open(QIODevice::WriteOnly));
    for (int row = 0; row < 1000000; ++row)
        table.write(QByteArray::number(row) + '\n');
    table.close();

    // With 64 MiB of data there is no room for the table's ten million bytes as lines of their own.
    QProcess process;
    process.setStandardInputFile(path);
    process.setStandardOutputFile(m_Console.Path("converted.csv"));
    struct rusage before = {};
    getrusage(RUSAGE_CHILDREN, &before);
    process.start(QLatin1String("sh"), TConsole::WithLittleMemory(Words("convert --csv 1 m km")));
    QVERIFY(process.waitForFinished(-1)); // ctest ends a test that hangs
    const QByteArray errors = process.readAllStandardError();
    if (errors.contains("Sanitizer failed to allocate"))
        QSKIP("a sanitizer needs more than that for itself");
    QVERIFY2(process.exitCode() == 0, errors.constData());
    // Nor does a row ask the system for memory of its own, which takes longer than to convert it.
    struct rusage after = {};
    getrusage(RUSAGE_CHILDREN, &after);
    const long pages = after.ru_minflt - before.ru_minflt;
    QVERIFY2(pages < 100000, QByteArray::number(static_cast<qlonglong>(pages)).constData());
    QFile converted(m_Console.Path("converted.csv"));
    QVERIFY(converted.open(QIODevice::ReadOnly));
    const QByteArray result = converted.readAll();
    QCOMPARE(result.count('\n'), 1000000);
    QVERIFY(result.endsWith("\n999.999\n"));
}

void ConsoleUnits::wrongUsageSaysWhatIsAccepted_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("accepted");
    const auto row = [](const char* arguments, const char* accepted) {
        QTest::newRow(arguments) << Words(arguments) << QString::fromUtf8(accepted);
    };
    row("convert 1 m", "VALUE FROM TO");
    row("convert x m km", "invalid number \"x\"");
    row("convert nan m km", "invalid number \"nan\"");
    row("convert 1,5 m km", "digits with a full stop");
    row("convert 1 m furlong", "\"furlong\"");
    row("convert 1 115 m", "cabsettings units");
    row("convert --digits 18 1 m km", "1 to 17");
    row("convert --system imperial 1 m km", "metric, us or english");
    for (const char* column : {"0", "00", "-0", "+0", "-1", "~0", "0~"})
        row(qPrintable(QString::fromLatin1("convert --csv %1 m km").arg(QLatin1String(column))), "number from 1");
    row("convert --csv= m km", "number from 1");
    row("convert --csv 1 m km --system=", "metric, us or english");
    row("show 1 ac --precision dynamic", "for ac; expected 0 to 20, or the unit L/ha, kg/ha or kgN/ha");
    row("show 1 gal --precision dynamic --json", "for gal; expected 0 to 20, or the unit L/ha, kg/ha or kgN/ha");
    row("show 1 m --precision=", "0 to 20 or dynamic");
    row("show 1 m --precision 100", "0 to 20 or dynamic");
    row("convert 1 lbs kg", "unknown unit \"lbs\"; did you mean \"lb\"");
    row("units --quantity sped", "unknown quantity \"sped\"; did you mean \"speed\"?");
    row("convert --csv 1 2 m km", "FROM TO");
    row("show 1", "VALUE UNIT");
    row("show --all 1 m", "VALUE with --all");
    row("show 1 m --precision many", "0 to 20 or dynamic");
    row("show 1 m --precision -1", "0 to 20 or dynamic");
    row("show 1 m --threshold 5", "100:0");
    row("units --quantity taste", "distance, area");
}

void ConsoleUnits::wrongUsageSaysWhatIsAccepted()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, accepted);
    const TConsole::tagResult result = m_Console.Run(arguments);
    QCOMPARE(result.status, 2);
    QVERIFY2(result.errors.contains(accepted), qPrintable(result.errors));
    QCOMPARE(result.errors.count(QLatin1Char('\n')), 1);
    QCOMPARE(result.output, QString());
}

QTEST_GUILESS_MAIN(ConsoleUnits)
#include "ConsoleUnits.moc"
