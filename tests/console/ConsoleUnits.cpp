#include "TConsole.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QtTest>

class ConsoleUnits : public QObject
{
    Q_OBJECT

private slots:
    void valuesAreConverted_data();
    void valuesAreConverted();
    void whatIsNotConvertedIsRefused_data();
    void whatIsNotConvertedIsRefused();
    void valuesAreShownAsTheOperatorSeesThem_data();
    void valuesAreShownAsTheOperatorSeesThem();
    void theStoredSettingsDecide();
    void unitsAreListed();
    void jsonHoldsTheSame();
    void aColumnIsConverted_data();
    void aColumnIsConverted();
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
    row("100 L/ha lb/ac", "100 L/ha = 89.21791 lb/ac\n");
    QTest::newRow("gallons US") << (QStringList{QLatin1String("convert")} + Words("--system us 12.5 L/ha gal/ac"))
                                << QString::fromUtf8("12.5 L/ha = 1.33625 gal/ac\n") + QLatin1String(us);
    QTest::newRow("gallons English") << (QStringList{QLatin1String("convert")} +
                                         Words("12.5 L/ha gal/ac --system english"))
                                     << QString::fromUtf8("12.5 L/ha = 1.112734 gal/ac\n") + QLatin1String(english);
    row("12.5 L/ha gal/ac~(US)", "12.5 L/ha = 1.33625 gal/ac (US)\n");
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
    row("1 ha/hr ac/hr", "ha/hr is not converted to ac/hr");
    row("1 L/ha gal/ac", "8953 (metric) is true");
    row("1 kph m/min", "kph measures speed and m/min measures speed per minute");
    row("1 s min", "s is not converted to min");
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
    QCOMPARE(row, QString::fromLatin1("33 UNITS_GAL_PER_AC gal/ac imperial liquid rate L/ha 1"));

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
        "cabsettings: line 2: \"x\" is not a number with a full stop; kept unchanged\n"
        "cabsettings: line 4: \"\" is not a number with a full stop; kept unchanged\n"
        "cabsettings: 2 of 4 lines were kept unchanged\n");
    row("short rows stay", "2", "1\n1,1500\n", "1\n1,1.5\n",
        "cabsettings: line 1: there are 1 fields, column 2 is wanted; kept unchanged\n"
        "cabsettings: 1 of 2 lines were kept unchanged\n");
    row("an open quote stays", "1", "\"1500\n3\n", "\"1500\n0.003\n",
        "cabsettings: line 1: a quoted field does not end on the line; kept unchanged\n"
        "cabsettings: 1 of 2 lines were kept unchanged\n");
    row("infinities stay", "1", "inf\n", "inf\n",
        "cabsettings: line 1: \"inf\" is not a number with a full stop; kept unchanged\n"
        "cabsettings: 1 of 1 lines were kept unchanged\n");
    row("unknown column", "speed", "id,distance\n1,2\n", "",
        "cabsettings: there is no column \"speed\" in line 1; it has id, distance\n");
    row("nothing, by name", "d", "", "", "cabsettings: there is no column \"d\": the input is empty\n");
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
    process.start(QLatin1String("sh"),
                  {QLatin1String("-c"), QLatin1String("ulimit -d 65536; exec \"$@\""), QLatin1String("sh"),
                   QLatin1String(CABSETTINGS_PROGRAM), QLatin1String("--data"), m_Console.DataFolder(),
                   QLatin1String("convert"), QLatin1String("--csv"), QLatin1String("1"), QLatin1String("m"),
                   QLatin1String("km")});
    QVERIFY(process.waitForFinished(60000));
    const QByteArray errors = process.readAllStandardError();
    if (errors.contains("Sanitizer failed to allocate"))
        QSKIP("a sanitizer needs more than that for itself");
    QVERIFY2(process.exitCode() == 0, errors.constData());
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
    row("convert 1 m", "VALUE, FROM and TO");
    row("convert x m km", "\"x\" is not a number");
    row("convert nan m km", "\"nan\" is not a number");
    row("convert 1,5 m km", "digits with a full stop");
    row("convert 1 m furlong", "\"furlong\"");
    row("convert 1 115 m", "cabsettings units");
    row("convert --digits 18 1 m km", "1 to 17");
    row("convert --system imperial 1 m km", "metric, us or english");
    row("convert --csv 0 m km", "number from 1");
    row("convert --csv 1 2 m km", "FROM and TO");
    row("show 1", "VALUE and UNIT");
    row("show --all 1 m", "no UNIT");
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
