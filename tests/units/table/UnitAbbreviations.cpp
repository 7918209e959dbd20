#include "CoreTest.h"
#include "Latin1.h"

#include "units/TUnitAbbreviations.h"

#include <QMap>
#include <QPair>
#include <QStringList>
#include <QTranslator>

#include <climits>
#include <functional>

namespace {

struct tagUnit
{
    int number;
    EUnitsType type;
    const char* abbreviation;
};

// clang-format off
const tagUnit Units[] = {
    {0, UNITS_NONE, ""},
    {1, UNITS_METERS, "m"},
    {2, UNITS_KILOMETERS, "km"},
    {3, UNITS_CENTIMETERS, "cm"},
    {4, UNITS_MILLIMETERS, "mm"},
    {5, UNITS_FEET, "'"},
    {6, UNITS_MILES, "miles"},
    {7, UNITS_INCHES, "\""},
    {8, UNITS_HECTARES, "ha"},
    {9, UNITS_ACRES, "ac"},
    {10, UNITS_METERS_PER_MIN, "m/min"},
    {11, UNITS_FEET_PER_MIN, "ft/min"},
    {12, UNITS_METERS_PER_SECOND, ""},
    {13, UNITS_KPH, "kph"},
    {14, UNITS_MPH, "mph"},
    {15, UNITS_HZ_PER_KPH, "Hz/kph"},
    {16, UNITS_HZ_PER_MPH, "Hz/mph"},
    {17, UNITS_ACRES_PER_HOUR, "ac/hr"},
    {18, UNITS_HECTARES_PER_HOUR, "ha/hr"},
    {19, UNITS_LITERS, "L"},
    {20, UNITS_GALLONS, "gal"},
    {21, UNITS_MILLILITERS, "mL"},
    {22, UNITS_FLUID_OUNCES, "fl.oz"},
    {23, UNITS_CUBIC_METERS, "m\u00b3"},
    {24, UNITS_CUBIC_FEET, "ft\u00b3"},
    {25, UNITS_TONNES, "t"},
    {26, UNITS_US_BUSHELS, "US bu"},
    {27, UNITS_UK_BUSHELS, "UK bu"},
    {28, UNITS_L_PER_HA, "L/ha"},
    {29, UNITS_L_PER_AC, "L/ac"},
    {30, UNITS_ML_PER_HA, "mL/ha"},
    {31, UNITS_ML_PER_AC, "mL/ac"},
    {32, UNITS_GAL_PER_HA, "gal/ha"},
    {33, UNITS_GAL_PER_AC, "gal/ac"},
    {34, UNITS_US_GAL_PER_HA, "gal/ha (US)"},
    {35, UNITS_US_GAL_PER_AC, "gal/ac (US)"},
    {36, UNITS_FLOZ_PER_AC, "fl.oz/ac"},
    {37, UNITS_FLOZ_PER_HA, "fl.oz/ha"},
    {38, UNITS_US_FLOZ_PER_AC, "fl.oz/ac (US)"},
    {39, UNITS_US_FLOZ_PER_HA, "fl.oz/ha (US)"},
    {40, UNITS_M3_PER_HA, "m\u00b3/ha"},
    {41, UNITS_M3_PER_AC, "m\u00b3/ac"},
    {42, UNITS_FT3_PER_HA, "ft\u00b3/ha"},
    {43, UNITS_FT3_PER_AC, "ft\u00b3/ac"},
    {44, UNITS_T_PER_HA, "t/ha"},
    {45, UNITS_T_PER_AC, "t/ac"},
    {46, UNITS_L_PER_100M, "L/100m"},
    {47, UNITS_GAL_PER_100YD, "gal/100yd"},
    {48, UNITS_US_GAL_PER_100YD, "gal/100yd (US)"},
    {49, UNITS_L_PER_MIN, "L/min"},
    {50, UNITS_GAL_PER_MIN, "gal/min"},
    {51, UNITS_ML_PER_MIN, "mL/min"},
    {52, UNITS_FLOZ_PER_MIN, "fl.oz/min"},
    {53, UNITS_M3_PER_MIN, "m\u00b3/min"},
    {54, UNITS_FT3_PER_MIN, "ft\u00b3/min"},
    {55, UNITS_T_PER_MIN, "t/min"},
    {56, UNITS_L_PER_REV, "L/rev"},
    {57, UNITS_GAL_PER_REV, "gal/rev"},
    {58, UNITS_KPA, "kPa"},
    {59, UNITS_PSI, "psi"},
    {60, UNITS_BAR, "bar"},
    {61, UNITS_M_PER_PULSE, "m/pulse"},
    {62, UNITS_FT_PER_PULSE, "ft/pulse"},
    {63, UNITS_PULSES_PER_L, "pulses/L"},
    {64, UNITS_PULSES_PER_GAL, "pulses/gal"},
    {65, UNITS_PULSES_PER_ML, "pulses/mL"},
    {66, UNITS_PULSES_PER_FLOZ, "pulses/fl.oz"},
    {67, UNITS_PULSES_PER_M3, "pulses/m\u00b3"},
    {68, UNITS_PULSES_PER_FT3, "pulses/ft\u00b3"},
    {69, UNITS_PULSES_PER_T, "pulses/t"},
    {70, UNITS_PULSES_PER_LB, "pulses/lb"},
    {71, UNITS_KG, "kg"},
    {72, UNITS_LB, "lb"},
    {73, UNITS_KG_N, "kgN"},
    {74, UNITS_LB_N, "lbN"},
    {75, UNITS_KG_PER_HA, "kg/ha"},
    {76, UNITS_KG_PER_AC, "kg/ac"},
    {77, UNITS_LB_PER_AC, "lb/ac"},
    {78, UNITS_LB_PER_HA, "lb/ha"},
    {79, UNITS_G_PER_HA, "g/ha"},
    {80, UNITS_KG_N_PER_HA, "kgN/ha"},
    {81, UNITS_KG_N_PER_AC, "kgN/ac"},
    {82, UNITS_LB_N_PER_AC, "lbN/ac"},
    {83, UNITS_LB_N_PER_HA, "lbN/ha"},
    {84, UNITS_KG_PER_MIN, "kg/min"},
    {85, UNITS_LB_PER_MIN, "lb/min"},
    {86, UNITS_KG_N_PER_MIN, "kgN/min"},
    {87, UNITS_LB_N_PER_MIN, "lbN/min"},
    {88, UNITS_KG_PER_REV, "kg/rev"},
    {89, UNITS_LB_PER_REV, "lb/rev"},
    {90, UNITS_KG_PER_L, "kg/L"},
    {91, UNITS_LB_PER_GAL, "lb/gal"},
    {92, UNITS_KG_PER_M3, "kg/m\u00b3"},
    {93, UNITS_LB_PER_FT3, "lb/ft\u00b3"},
    {94, UNITS_KG_PER_US_BU, "kg/US bu"},
    {95, UNITS_KG_PER_UK_BU, "kg/UK bu"},
    {96, UNITS_LB_PER_US_BU, "lb/US bu"},
    {97, UNITS_LB_PER_UK_BU, "lb/UK bu"},
    {98, UNITS_PULSES_PER_KG_N, "pulses/kgN"},
    {99, UNITS_PULSES_PER_LB_N, "pulses/lbN"},
    {100, UNITS_KSEEDS_PER_HA, "KS/ha"},
    {101, UNITS_KSEEDS_PER_AC, "KS/ac"},
    {102, UNITS_SECONDS, "s"},
    {103, UNITS_MILLISECONDS, "ms"},
    {104, UNITS_MINUTES, "min"},
    {105, UNITS_HOURS, "hrs"},
    {106, UNITS_HERTZ, "Hz"},
    {107, UNITS_CELSIUS, "\u00b0C"},
    {108, UNITS_FAHRENHEIT, "\u00b0F"},
    {109, UNITS_RPM, "rpm"},
    {110, UNITS_AMPERES, "A"},
    {111, UNITS_WATTS, "W"},
    {112, UNITS_MILLIWATTS, "mW"},
    {113, UNITS_LATITUDE, ""},
    {114, UNITS_LONGITUDE, ""},
};
// clang-format on

const int UnitCount = 115;

const char* const MonthNames[] = {"Jan", "Feb", "Mar", "Apr", "May", "Jun", "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};

/// Whether the abbreviation is a sign or made of others, rather than translated itself.
bool IsBuilt(int number) { return number == 7 || number == 15 || number == 16 || number == 107 || number == 108; }

const char* CommentOf(int number)
{
    switch (number) {
    case 110:
        return "Ampere Abbreviation";
    case 111:
        return "Watt Abbreviation";
    case 112:
        return "milliWatt Abbreviation";
    default:
        return "";
    }
}

QString Utf8(const char* text) { return QString::fromUtf8(text); }

/// Asks @p translate for every text of the abbreviations, as long as it lives.
class TDictionary : public QTranslator
{
public:
    using TTranslate = std::function<QString(const QString& text, const QString& comment)>;

    explicit TDictionary(const TTranslate& translate) : m_Translate(translate)
    {
        QCoreApplication::installTranslator(this);
    }

    ~TDictionary() override { QCoreApplication::removeTranslator(this); }

    bool isEmpty() const override { return false; }

#if QT_VERSION < 0x050000
    QString translate(const char* context, const char* text, const char* comment) const override
#else
    QString translate(const char* context, const char* text, const char* comment, int) const override
#endif
    {
        const bool isKnown = Latin1(context) == Latin1("TUnitAbbreviations");
        return isKnown ? m_Translate(Utf8(text), comment ? Utf8(comment) : QString()) : QString();
    }

private:
    TTranslate m_Translate;
};

/// All texts at once.
QStringList AllTexts()
{
    QStringList texts;
    for (const QString& abbreviation : TUnitAbbreviations::UnitAbbreviations)
        texts << abbreviation;
    for (const QString& month : TUnitAbbreviations::Months)
        texts << month;
    return texts;
}

EUnitsType Unit(int number) { return static_cast<EUnitsType>(number); }

} // namespace

class UnitAbbreviations : public QObject
{
    Q_OBJECT

private slots:
    void init() { TUnitAbbreviations::Initialize(); }

    void everyUnitHasItsNumber_data() { AddUnits(); }
    void everyUnitHasItsNumber();
    void everyUnitHasItsAbbreviation_data() { AddUnits(); }
    void everyUnitHasItsAbbreviation();
    void aUnitIsFoundByItsAbbreviation_data() { AddUnits(); }
    void aUnitIsFoundByItsAbbreviation();
    void noTwoUnitsShareAnAbbreviation_data() { AddUnits(); }
    void noTwoUnitsShareAnAbbreviation();
    void theFirstOfTwoUnitsWithOneAbbreviationIsFound();
    void aTextThatIsNoAbbreviationIsNoUnit_data();
    void aTextThatIsNoAbbreviationIsNoUnit();
    void aNumberThatIsNoUnitHasNoAbbreviation_data();
    void aNumberThatIsNoUnitHasNoAbbreviation();
    void feetInchesAndDegreesStandCloseToTheNumber_data() { AddUnits(); }
    void feetInchesAndDegreesStandCloseToTheNumber();
    void numbersThatAreNoUnitTakeASpace_data() { aNumberThatIsNoUnitHasNoAbbreviation_data(); }
    void numbersThatAreNoUnitTakeASpace();
    void monthsStartWithJanuary_data();
    void monthsStartWithJanuary();

    void everyTextIsTranslatedOnceWithItsComment();
    void signsAreNeverTranslated();
    void builtAbbreviationsFollowTheirTranslatedParts();
    void aTranslatedAbbreviationIsFound();
    void callingAgainFollowsTheLanguage();
    void callingAgainMendsEveryText();
    void unitsWithoutAbbreviationAreNeverAssigned();

private:
    static void AddUnits();
};

void UnitAbbreviations::AddUnits()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("abbreviation");
    int next = 0;
    for (const tagUnit& unit : Units) {
        QCOMPARE(unit.number, next++);
        QTest::newRow(QByteArray::number(unit.number) + ' ' + unit.abbreviation)
            << unit.number << static_cast<int>(unit.type) << Utf8(unit.abbreviation);
    }
    QCOMPARE(next, UnitCount);
}

void UnitAbbreviations::everyUnitHasItsNumber()
{
    QFETCH(int, number);
    QFETCH(int, type);
    QCOMPARE(type, number);
}

void UnitAbbreviations::everyUnitHasItsAbbreviation()
{
    QFETCH(int, number);
    QFETCH(QString, abbreviation);
    QCOMPARE(TUnitAbbreviations::UnitAbbreviations[number], abbreviation);
    QCOMPARE(TUnitAbbreviations::GetStringFromUnitType(Unit(number), false), abbreviation);
    QCOMPARE(TUnitAbbreviations::GetStringFromUnitType(Unit(number), true), abbreviation);
}

void UnitAbbreviations::aUnitIsFoundByItsAbbreviation()
{
    QFETCH(int, number);
    QFETCH(QString, abbreviation);
    const int expected = abbreviation.isEmpty() ? 0 : number;
    const QString spellings[] = {abbreviation, abbreviation.toUpper(), abbreviation.toLower()};
    for (const QString& spelling : spellings) {
        QCOMPARE(static_cast<int>(TUnitAbbreviations::GetUnitTypeFromString(spelling, false)), expected);
        QCOMPARE(static_cast<int>(TUnitAbbreviations::GetUnitTypeFromString(spelling, true)), expected);
    }
}

// Not even in upper and lower case: the way back from a text must be certain.
void UnitAbbreviations::noTwoUnitsShareAnAbbreviation()
{
    QFETCH(int, number);
    QFETCH(QString, abbreviation);
    if (abbreviation.isEmpty())
        return;
    int sharing = 0;
    for (const QString& other : TUnitAbbreviations::UnitAbbreviations)
        sharing += other.compare(abbreviation, Qt::CaseInsensitive) == 0;
    QCOMPARE(sharing, 1);
    QCOMPARE(static_cast<int>(TUnitAbbreviations::GetUnitTypeFromString(abbreviation, true)), number);
}

void UnitAbbreviations::theFirstOfTwoUnitsWithOneAbbreviationIsFound()
{
    const TDictionary dictionary([](const QString& text, const QString&) {
        return text == Latin1("gal") || text == Latin1("L") ? Latin1("volume") : QString();
    });
    TUnitAbbreviations::Initialize();
    QCOMPARE(TUnitAbbreviations::GetUnitTypeFromString(Latin1("volume"), false), UNITS_LITERS);
    QCOMPARE(TUnitAbbreviations::GetUnitTypeFromString(Latin1("VOLUME"), false), UNITS_LITERS);
}

void UnitAbbreviations::aTextThatIsNoAbbreviationIsNoUnit_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("null") << QString();
    QTest::newRow("empty") << QString::fromLatin1("");
    QTest::newRow("unknown") << Latin1("furlongs");
    QTest::newRow("blank") << Latin1(" ");
    QTest::newRow("blank before") << Latin1(" ha");
    QTest::newRow("blank behind") << Latin1("ha ");
    QTest::newRow("beginning of one") << Latin1("mile");
    QTest::newRow("more than one") << Latin1("miles/");
    QTest::newRow("plain three") << Latin1("m3");
    QTest::newRow("degrees without sign") << Latin1("C");
    QTest::newRow("two apostrophes") << Latin1("''");
}

void UnitAbbreviations::aTextThatIsNoAbbreviationIsNoUnit()
{
    QFETCH(QString, text);
    QCOMPARE(TUnitAbbreviations::GetUnitTypeFromString(text, false), UNITS_NONE);
    QCOMPARE(TUnitAbbreviations::GetUnitTypeFromString(text, true), UNITS_NONE);
}

void UnitAbbreviations::aNumberThatIsNoUnitHasNoAbbreviation_data()
{
    QTest::addColumn<int>("number");
    for (const int number : {INT_MIN, -115, -1, 115, 116, 1 << 16, INT_MAX})
        QTest::newRow(QByteArray::number(number)) << number;
}

void UnitAbbreviations::aNumberThatIsNoUnitHasNoAbbreviation()
{
    QFETCH(int, number);
    QCOMPARE(TUnitAbbreviations::GetStringFromUnitType(Unit(number), false), QString());
    QCOMPARE(TUnitAbbreviations::GetStringFromUnitType(Unit(number), true), QString());
}

void UnitAbbreviations::feetInchesAndDegreesStandCloseToTheNumber()
{
    QFETCH(int, number);
    const bool isClose = number == 0 || number == 5 || number == 7 || number == 107 || number == 108;
    QCOMPARE(TUnitAbbreviations::UnitTypeRequiresSpacing(Unit(number)), !isClose);
}

void UnitAbbreviations::numbersThatAreNoUnitTakeASpace()
{
    QFETCH(int, number);
    QVERIFY(TUnitAbbreviations::UnitTypeRequiresSpacing(Unit(number)));
}

void UnitAbbreviations::monthsStartWithJanuary_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("name");
    int index = 0;
    for (const char* const name : MonthNames)
        QTest::newRow(name) << index++ << Latin1(name);
    QCOMPARE(index, 12);
}

void UnitAbbreviations::monthsStartWithJanuary()
{
    QFETCH(int, index);
    QFETCH(QString, name);
    QCOMPARE(TUnitAbbreviations::Months[index], name);
}

void UnitAbbreviations::everyTextIsTranslatedOnceWithItsComment()
{
    using TText = QPair<QString, QString>;
    QMap<TText, int> expected;
    for (const tagUnit& unit : Units) {
        if (*unit.abbreviation && !IsBuilt(unit.number))
            expected[TText(Utf8(unit.abbreviation), Latin1(CommentOf(unit.number)))] = 1;
    }
    for (const char* const month : MonthNames)
        expected[TText(Latin1(month), QString::fromLatin1(""))] = 1;

    QMap<TText, int> asked;
    const TDictionary dictionary([&asked](const QString& text, const QString& comment) {
        ++asked[TText(text, comment.isNull() ? QString::fromLatin1("") : comment)];
        return QString();
    });
    TUnitAbbreviations::Initialize();
    QCOMPARE(asked.keys(), expected.keys());
    QCOMPARE(asked.values(), expected.values());
}

void UnitAbbreviations::signsAreNeverTranslated()
{
    const TDictionary dictionary([](const QString& text, const QString&) { return Latin1("~") + text; });
    TUnitAbbreviations::Initialize();
    QCOMPARE(TUnitAbbreviations::UnitAbbreviations[7], Latin1("\""));
    QCOMPARE(TUnitAbbreviations::UnitAbbreviations[107], QString(QChar(0xB0)) + QLatin1Char('C'));
    QCOMPARE(TUnitAbbreviations::UnitAbbreviations[108], QString(QChar(0xB0)) + QLatin1Char('F'));
    QCOMPARE(TUnitAbbreviations::UnitAbbreviations[5], Latin1("~'"));
    QCOMPARE(TUnitAbbreviations::UnitAbbreviations[23], Latin1("~m\xB3"));
    QCOMPARE(TUnitAbbreviations::Months[4], Latin1("~May"));
}

void UnitAbbreviations::builtAbbreviationsFollowTheirTranslatedParts()
{
    const TDictionary dictionary([](const QString& text, const QString&) {
        QMap<QString, QString> texts;
        texts[Latin1("Hz")] = Utf8("\u0413\u0446");
        texts[Latin1("kph")] = Utf8("\u043a\u043c/\u0447");
        return texts.value(text);
    });
    TUnitAbbreviations::Initialize();
    QCOMPARE(TUnitAbbreviations::UnitAbbreviations[106], Utf8("\u0413\u0446"));
    QCOMPARE(TUnitAbbreviations::UnitAbbreviations[15], Utf8("\u0413\u0446/\u043a\u043c/\u0447"));
    QCOMPARE(TUnitAbbreviations::UnitAbbreviations[16], Utf8("\u0413\u0446/mph"));
    QCOMPARE(TUnitAbbreviations::GetUnitTypeFromString(Utf8("\u0433\u0446/\u041a\u041c/\u0427"), true),
             UNITS_HZ_PER_KPH);
}

void UnitAbbreviations::aTranslatedAbbreviationIsFound()
{
    const TDictionary dictionary([](const QString& text, const QString& comment) {
        if (comment == Latin1("Ampere Abbreviation"))
            return Latin1("Amp");
        return text == Latin1("mL/ha") ? Utf8("\u043c\u043b/\u0433\u0430") : QString();
    });
    TUnitAbbreviations::Initialize();
    QCOMPARE(TUnitAbbreviations::GetUnitTypeFromString(Utf8("\u041c\u041b/\u0413\u0410"), false), UNITS_ML_PER_HA);
    QCOMPARE(TUnitAbbreviations::GetUnitTypeFromString(Latin1("mL/ha"), false), UNITS_NONE);
    QCOMPARE(TUnitAbbreviations::GetUnitTypeFromString(Latin1("amp"), false), UNITS_AMPERES);
}

void UnitAbbreviations::callingAgainFollowsTheLanguage()
{
    const QStringList plain = AllTexts();
    {
        const TDictionary dictionary([](const QString& text, const QString&) { return text + QLatin1Char('!'); });
        TUnitAbbreviations::Initialize();
        for (const tagUnit& unit : Units) {
            const QString text = Utf8(unit.abbreviation);
            const QString translated = text.isEmpty() || IsBuilt(unit.number) ? text : text + QLatin1Char('!');
            if (unit.number != 15 && unit.number != 16)
                QCOMPARE(TUnitAbbreviations::UnitAbbreviations[unit.number], translated);
        }
        QCOMPARE(TUnitAbbreviations::UnitAbbreviations[15], Latin1("Hz!/kph!"));
        QCOMPARE(TUnitAbbreviations::UnitAbbreviations[16], Latin1("Hz!/mph!"));
        for (int month = 0; month < 12; ++month)
            QCOMPARE(TUnitAbbreviations::Months[month], Latin1(MonthNames[month]) + QLatin1Char('!'));
    }
    TUnitAbbreviations::Initialize();
    QCOMPARE(AllTexts(), plain);
}

void UnitAbbreviations::callingAgainMendsEveryText()
{
    const QStringList before = AllTexts();
    for (const tagUnit& unit : Units) {
        if (*unit.abbreviation)
            TUnitAbbreviations::UnitAbbreviations[unit.number] = Latin1("spoilt");
    }
    for (QString& month : TUnitAbbreviations::Months)
        month = Latin1("spoilt");
    TUnitAbbreviations::Initialize();
    QCOMPARE(AllTexts(), before);
}

void UnitAbbreviations::unitsWithoutAbbreviationAreNeverAssigned()
{
    const int units[] = {0, 12, 113, 114};
    for (const int unit : units)
        TUnitAbbreviations::UnitAbbreviations[unit] = Latin1("the host's own");
    TUnitAbbreviations::Initialize();
    for (const int unit : units) {
        QCOMPARE(TUnitAbbreviations::UnitAbbreviations[unit], Latin1("the host's own"));
        TUnitAbbreviations::UnitAbbreviations[unit] = QString();
    }
}

int main(int argc, char** argv) { return RunCoreTest<UnitAbbreviations>(argc, argv); }
#include "UnitAbbreviations.moc"
