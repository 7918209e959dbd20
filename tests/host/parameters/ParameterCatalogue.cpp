#include "parameters/HostParameters.h"
#include "parameters/ParameterText.h"
#include "parameters/TParameterCatalogue.h"
#include "region/TRegionSettings.h"

#include <QColor>
#include <QFile>
#include <QRegularExpression>
#include <QSet>
#include <QtTest>

/// The list of all parameters is complete and consistent, and texts are checked by it.
class ParameterCatalogue : public QObject
{
    Q_OBJECT

private slots:
    void everyEnumeratorHasARow();
    void everyRowIsWhole_data();
    void everyRowIsWhole();
    void namesAndNumbersAreUnique();
    void languagesAreTheLibrarys();
    void nightFollowsDay();

    void parametersAreFound_data();
    void parametersAreFound();
    void nearNamesAreSuggested_data();
    void nearNamesAreSuggested();

    void acceptedTextsAreRead_data();
    void acceptedTextsAreRead();
    void otherTextsAreRefused_data();
    void otherTextsAreRefused();
    void everyFirstValueIsAccepted_data();
    void everyFirstValueIsAccepted();
    void valuesOfAnotherTypeAreShownAsTheyAre();

private:
    static void AddParameters()
    {
        QTest::addColumn<int>("number");
        for (const tagParameter& parameter : TParameterCatalogue::Parameters())
            QTest::newRow(qPrintable(parameter.name)) << static_cast<int>(parameter.id);
    }
};

namespace {

QString Utf8(const char* text) { return QString::fromUtf8(text); }

const int MetaTypes[] = {QMetaType::Bool, QMetaType::Int, QMetaType::QString, QMetaType::QColor}; // by EParameterType

} // namespace

void ParameterCatalogue::everyEnumeratorHasARow()
{
    QFile header(Utf8(CABSETTINGS_ENUMERATORS));
    QVERIFY(header.open(QIODevice::ReadOnly));
    const QRegularExpression enumerator(Utf8("^\\s+PARAM_\\w+ = (\\d+),"), QRegularExpression::MultilineOption);
    QList<int> expected;
    QRegularExpressionMatchIterator matches = enumerator.globalMatch(QString::fromUtf8(header.readAll()));
    while (matches.hasNext())
        expected.append(matches.next().captured(1).toInt());
    std::sort(expected.begin(), expected.end());
    QVERIFY(expected.size() > 50);

    QList<int> found;
    for (const tagParameter& parameter : TParameterCatalogue::Parameters()) {
        if (parameter.id < PARAM_DAY_SWITCHING) // the host's own parameters follow
            found.append(parameter.id);
    }
    QCOMPARE(found, expected);
}

void ParameterCatalogue::everyRowIsWhole_data() { AddParameters(); }

void ParameterCatalogue::everyRowIsWhole()
{
    QFETCH(int, number);
    const tagParameter* const parameter = TParameterCatalogue::Find(number);
    QVERIFY(parameter);
    QVERIFY(QRegularExpression(Utf8("^[a-z]+(\\.[a-z0-9-]+)+$")).match(parameter->name).hasMatch());
    QVERIFY(!parameter->meaning.isEmpty());
    QVERIFY(!parameter->readers.isEmpty());
    QVERIFY(!parameter->accepts.isEmpty());
    QVERIFY(!parameter->meaning.endsWith(QLatin1Char('.')));
    if (parameter->firstValue.isValid())
        QCOMPARE(parameter->firstValue.userType(), MetaTypes[parameter->type]);
    if (parameter->type == PARAMETER_INT)
        QVERIFY(!parameter->choices.isEmpty() || parameter->least < parameter->greatest);
    else
        QVERIFY(parameter->choices.isEmpty());
}

void ParameterCatalogue::namesAndNumbersAreUnique()
{
    QSet<QString> names;
    int last = -1;
    for (const tagParameter& parameter : TParameterCatalogue::Parameters()) {
        QVERIFY2(!names.contains(parameter.name), qPrintable(parameter.name));
        names.insert(parameter.name);
        QVERIFY(parameter.id > last);
        last = parameter.id;
        QSet<QString> choices;
        for (const tagParameterChoice& choice : parameter.choices)
            choices.insert(choice.name);
        QCOMPARE(choices.size(), parameter.choices.size());
    }
}

void ParameterCatalogue::languagesAreTheLibrarys()
{
    TRegionSettings::InitializeLanguageStrings();
    const QList<tagParameterChoice>& choices = TParameterCatalogue::Find(PARAM_LANGUAGE)->choices;
    QCOMPARE(static_cast<int>(choices.size()), static_cast<int>(TRegionSettings::LanguageCount));
    for (const tagParameterChoice& choice : choices)
        QCOMPARE(QLatin1Char('_') + choice.name, TRegionSettings::LanguageExtensions[choice.value]);
}

void ParameterCatalogue::nightFollowsDay()
{
    int pairs = 0;
    for (const tagParameter& parameter : TParameterCatalogue::Parameters()) {
        if (!parameter.name.startsWith(Utf8("colors.day.")))
            continue;
        ++pairs;
        const tagParameter* const night = TParameterCatalogue::Find(parameter.id + 16);
        QVERIFY(night);
        QCOMPARE(night->name, QString(parameter.name).replace(Utf8(".day."), Utf8(".night.")));
        QCOMPARE(static_cast<int>(night->type), static_cast<int>(parameter.type));
    }
    QCOMPARE(pairs, 16);
}

void ParameterCatalogue::parametersAreFound_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("number"); // -1 for none
    QTest::newRow("name") << Utf8("units.metric") << 8953;
    QTest::newRow("name in capitals") << Utf8("Units.Metric") << 8953;
    QTest::newRow("number") << Utf8("8953") << 8953;
    QTest::newRow("first") << Utf8("1929") << 1929;
    QTest::newRow("last") << Utf8("10472") << 10472;
    QTest::newRow("number between") << Utf8("8956") << -1;
    QTest::newRow("beyond the last") << Utf8("10473") << -1;
    QTest::newRow("part of a name") << Utf8("metric") << -1;
    QTest::newRow("empty") << QString() << -1;
}

void ParameterCatalogue::parametersAreFound()
{
    QFETCH(QString, text);
    QFETCH(int, number);
    const tagParameter* const found = TParameterCatalogue::Find(text);
    QCOMPARE(found ? static_cast<int>(found->id) : -1, number);
}

void ParameterCatalogue::nearNamesAreSuggested_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("nearest");
    QTest::newRow("a letter missing") << Utf8("unts.metric") << Utf8("units.metric");
    QTest::newRow("a letter wrong") << Utf8("units.matric") << Utf8("units.metric");
    QTest::newRow("letters swapped") << Utf8("units.mertic") << Utf8("units.metric");
    QTest::newRow("group missing") << Utf8("language") << Utf8("region.language");
    QTest::newRow("group wrong") << Utf8("display.metric") << Utf8("units.metric");
    QTest::newRow("capitals") << Utf8("METRC") << Utf8("units.metric");
    QTest::newRow("nothing like it") << Utf8("xyzzy-plugh-frobozz") << QString();
    QTest::newRow("empty") << QString() << QString();
}

void ParameterCatalogue::nearNamesAreSuggested()
{
    QFETCH(QString, text);
    QFETCH(QString, nearest);
    const QStringList near = TParameterCatalogue::Near(text);
    QCOMPARE(near.value(0), nearest);
    QVERIFY(near.size() <= 4);
}

void ParameterCatalogue::acceptedTextsAreRead_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QVariant>("value");
    const auto row = [](int number, const char* text, const QVariant& value) {
        QTest::newRow(qPrintable(QString::fromLatin1("%1 %2").arg(number).arg(Utf8(text))))
            << number << Utf8(text) << value;
    };
    for (const char* word : {"true", "yes", "on", "1", "TRUE"})
        row(PARAM_METRIC, word, true);
    for (const char* word : {"false", "no", "off", "0", "Off"})
        row(PARAM_METRIC, word, false);
    row(PARAM_AREA_UNIT, "acre", 1);
    row(PARAM_AREA_UNIT, "ACRE", 1);
    row(PARAM_AREA_UNIT, "0", 0);
    row(PARAM_LANGUAGE, "sl", 27);
    row(PARAM_UTC_OFFSET_HOURS, "-23", -23);
    row(PARAM_UTC_OFFSET_HOURS, "23", 23);
    row(PARAM_UTC_OFFSET_MINUTES, "-59", -59);
    row(PARAM_BACKLIGHT_NIGHT_LEVEL, "100", 100);
    row(PARAM_CLOCK_OFFSET, "-2147483648", std::numeric_limits<int>::min());
    row(PARAM_USER_LOG_FILE_NUMBER, "99999", 99999);
    row(PARAM_CLIENT, "Müller & Söhne", Utf8("Müller & Söhne"));
    row(PARAM_CLIENT, "", QString::fromLatin1(""));
    row(PARAM_ACTIVE_JOB, "1234", Utf8("1234"));
    row(PARAM_INTERNAL_DRIVE, "/media/internal/", Utf8("/media/internal/"));
    row(PARAM_EXTERNAL_DRIVE, "/media/usb", Utf8("/media/usb"));
    row(PARAM_TERMINAL_IDENTITY, "6ba7b810-9dad-41d1-80b4-00c04fd430c8", Utf8("6ba7b810-9dad-41d1-80b4-00c04fd430c8"));
    row(PARAM_DAY_SWITCHING, "twilight", 2);
    row(PARAM_TIME_SOURCE, "Receiver", 2);
    row(PARAM_NEWEST_TIME, "2026-03-05T13:05:09Z", Utf8("2026-03-05T13:05:09Z"));
    for (const char* address :
         {"simulator", "/dev/ttyUSB0", "/home/field.nmea", "tcp://receiver:2947", "serial:///dev/ttyS0?baud=38400"})
        row(PARAM_RECEIVER_ADDRESS, address, Utf8(address));
    for (const char* tiles : {"rate", "time,rate",
                              "rate,speed,area,left,productivity,flow,pressure,temperature,distance,position,time", ""})
        row(PARAM_TILES, tiles, QString::fromLatin1(tiles));
    row(PARAM_MAP_COLOR_NIGHT, "#102030", QColor(0x10, 0x20, 0x30));
    row(PARAM_MAP_COLOR_NIGHT, "navy", QColor(0, 0, 128));
    row(PARAM_MAP_COLOR_NIGHT, "#80102030", QColor(0x10, 0x20, 0x30, 0x80));
}

void ParameterCatalogue::acceptedTextsAreRead()
{
    QFETCH(int, number);
    QFETCH(QString, text);
    QFETCH(QVariant, value);
    QString error;
    const QVariant read = TParameterCatalogue::Read(*TParameterCatalogue::Find(number), text, &error);
    QCOMPARE(error, QString());
    QCOMPARE(read.userType(), value.userType());
    QCOMPARE(read, value);
}

void ParameterCatalogue::otherTextsAreRefused_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("error");
    const auto row = [](int number, const char* text, const char* error) {
        QTest::newRow(qPrintable(QString::fromLatin1("%1 %2").arg(number).arg(Utf8(text))))
            << number << Utf8(text) << Utf8(error);
    };
    row(PARAM_METRIC, "maybe", "invalid value \"maybe\" for units.metric; expected true or false");
    row(PARAM_METRIC, "2", "invalid value \"2\" for units.metric; expected true or false");
    row(PARAM_METRIC, "", "invalid value \"\" for units.metric; expected true or false");
    row(PARAM_AREA_UNIT, "2", "invalid value \"2\" for units.area; expected hectare (0) or acre (1)");
    row(PARAM_AREA_UNIT, "01", "invalid value \"01\" for units.area; expected hectare (0) or acre (1)");
    row(PARAM_AREA_UNIT, "acres", "invalid value \"acres\" for units.area; expected hectare (0) or acre (1)");
    row(PARAM_UTC_OFFSET_HOURS, "24",
        "invalid value \"24\" for clock.offset-hours; expected a whole number from -23 to 23");
    row(PARAM_UTC_OFFSET_HOURS, "1.5",
        "invalid value \"1.5\" for clock.offset-hours; expected a whole number from -23 to 23");
    row(PARAM_UTC_OFFSET_MINUTES, "60", "expected a whole number from -59 to 59");
    row(PARAM_BACKLIGHT_NIGHT_LEVEL, "101", "expected a whole number from 0 to 100");
    row(PARAM_BACKLIGHT_NIGHT_LEVEL, "-1", "expected a whole number from 0 to 100");
    row(PARAM_CLOCK_OFFSET, "2147483648", "expected a whole number from -2147483648 to 2147483647");
    row(PARAM_USER_LOG_FILE_NUMBER, "0", "expected a whole number from 1 to 99999");
    row(PARAM_USER_LOG_FILE_NUMBER, "100000", "expected a whole number from 1 to 99999");
    row(PARAM_CLIENT, "a/b",
        "invalid value \"a/b\" for active.client: the name contains the separator \"/\"; did you mean \"a_b\"?");
    row(PARAM_ACTIVE_JOB, "..", "the name refers to another folder");
    row(PARAM_INTERNAL_DRIVE, "/media/internal", "expected an absolute path that ends in \"/\"");
    row(PARAM_INTERNAL_DRIVE, "internal/", "expected an absolute path that ends in \"/\"");
    for (const char* root : {"/", "//", "/./", "/../", "/nowhere/../"})
        row(PARAM_INTERNAL_DRIVE, root, "and is not \"/\"");
    row(PARAM_EXTERNAL_DRIVE, "usb", "expected an absolute path");
    row(PARAM_EXTERNAL_DRIVE, "", "expected an absolute path");
    for (const char* uuid : {"", "6ba7b810", "{6ba7b810-9dad-41d1-80b4-00c04fd430c8}",
                             "6BA7B810-9DAD-41D1-80B4-00C04FD430C8", "00000000-0000-0000-0000-000000000000"})
        row(PARAM_TERMINAL_IDENTITY, uuid, "expected a UUID in small letters, such as 6ba7b810-");
    row(PARAM_DAY_SWITCHING, "sunrise", "expected by-hand (0), sunset (1) or twilight (2)");
    for (const EParamID time : {PARAM_TIME_SOURCE_SINCE, PARAM_NEWEST_TIME, PARAM_DAY_SWITCHED}) {
        for (const char* text : {"", "2026-03-05", "2026-03-05T13:05:09", "2026-02-30T13:05:09Z",
                                 "2026-03-05T13:05:09+01:00", "2026-03-05T13:05Z", "20260305T130509Z"})
            row(time, text, "expected a time in UTC, such as 2026-03-05T13:05:09Z");
    }
    for (const char* address :
         {"", "-", "field.nmea", "Simulator", "tcp://receiver", "serial:///dev/ttyS0?baud=7", "http://receiver:80"})
        row(PARAM_RECEIVER_ADDRESS, address, "expected simulator, tcp://HOST:PORT, serial:///dev/NAME?baud=N or an");
    for (const char* tiles : {"rates", "rate,", ",rate", "rate,,speed", "rate, speed", "rate,rate", "Rate"})
        row(PARAM_TILES, tiles,
            "expected names with commas between them, each at most once: rate, speed, area, left, ");
    row(PARAM_MAP_COLOR_NIGHT, "blurple", "expected a colour: #rrggbb, #aarrggbb or a name such as navy");
    row(PARAM_MAP_COLOR_NIGHT, "", "expected a colour");
}

void ParameterCatalogue::otherTextsAreRefused()
{
    QFETCH(int, number);
    QFETCH(QString, text);
    QFETCH(QString, error);
    QString said;
    const QVariant read = TParameterCatalogue::Read(*TParameterCatalogue::Find(number), text, &said);
    QVERIFY(!read.isValid());
    QVERIFY2(said.contains(error), qPrintable(said));
    QVERIFY(said.contains(QLatin1String(" for ") + TParameterCatalogue::Find(number)->name));
}

void ParameterCatalogue::everyFirstValueIsAccepted_data() { AddParameters(); }

void ParameterCatalogue::everyFirstValueIsAccepted()
{
    QFETCH(int, number);
    const tagParameter* const parameter = TParameterCatalogue::Find(number);
    const QVariant first = TParameterCatalogue::FirstValue(*parameter);
    if (!first.isValid())
        return; // depends on the terminal
    QString error;
    const QVariant read = TParameterCatalogue::Read(*parameter, TParameterCatalogue::Text(*parameter, first), &error);
    QCOMPARE(error, QString());
    QCOMPARE(read.userType(), first.userType());
    QCOMPARE(read, first);
}

void ParameterCatalogue::valuesOfAnotherTypeAreShownAsTheyAre()
{
    const tagParameter& area = *TParameterCatalogue::Find(PARAM_AREA_UNIT);
    QCOMPARE(TParameterCatalogue::Text(area, 1), Utf8("acre"));
    QCOMPARE(TParameterCatalogue::Text(area, 7), Utf8("7"));
    QCOMPARE(TParameterCatalogue::Text(area, true), Utf8("true"));
    QCOMPARE(TParameterCatalogue::Text(area, Utf8("acre")), Utf8("acre"));
}

QTEST_APPLESS_MAIN(ParameterCatalogue)
#include "ParameterCatalogue.moc"
