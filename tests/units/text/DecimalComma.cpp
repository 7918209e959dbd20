#include "CoreTest.h"
#include "TChosenUnits.h"
#include "TestSeed.h"

#include <QRegExp>

#include <random>

/// Texts on a display that shows a decimal comma.
class DecimalComma : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { m_Store.values[9010] = 1; }

    void pointsInsideNumbersAreShownAsCommas_data();
    void pointsInsideNumbersAreShownAsCommas();
    void commasBehindDigitsAreReadAsPoints_data();
    void commasBehindDigitsAreReadAsPoints();
    void everyTextChangesAsItsPatternTells();
    void anyLengthOfTextIsConverted();
    void theArgumentIsLeftAlone();
    void aTextThatStaysIsNotCopied();
    void abbreviationsMayHoldNumbers();
    void positionsKeepTheirFullStopExceptAsQuantities();

private:
    TChosenUnits m_Store;
};

namespace {

/// What every match of @p pattern in @p text becomes, written over its span.
QString ByPattern(const QString& text, const char* pattern, QChar from, QChar to)
{
    const QRegExp expression(QString::fromLatin1(pattern), Qt::CaseSensitive);
    QString result = text;
    int position = 0;
    while ((position = expression.indexIn(text, position)) != -1) {
        QString number = expression.cap(1);
        result.replace(position, expression.matchedLength(), number.replace(from, to));
        position += expression.matchedLength();
    }
    return result;
}

} // namespace

void DecimalComma::pointsInsideNumbersAreShownAsCommas_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("shown");

    const struct
    {
        const char* name;
        const char* text;
        const char* shown;
    } rows[] = {
        {"a quantity", "12.50 kg/ha", "12,50 kg/ha"},
        {"nothing", "", ""},
        {"no number", "kg/ha", "kg/ha"},
        {"no decimals", "12", "12"},
        {"a version", "Version 1.2.3", "Version 1,2.3"},
        {"four parts", "1.2.3.4", "1,2.3,4"},
        {"longer parts", "10.20.30.40.50", "10,20.30,40.50"},
        {"a point behind digits", "1.", "1."},
        {"a point before digits", ".5", ".5"},
        {"the end of a sentence", "Rate is 5. Go on.", "Rate is 5. Go on."},
        {"a point alone", ".", "."},
        {"points in a row", "1..2", "1..2"},
        {"several numbers", "1.5 2.5;3.5-4.5", "1,5 2,5;3,5-4,5"},
        {"signs", "-1.5 +2.5", "-1,5 +2,5"},
        {"an exponent", "1.5e+06", "1,5e+06"},
        {"letters around", "a1.5b", "a1,5b"},
        {"a comma stays", "1,5", "1,5"},
        {"comma and point", "1,234.5", "1,234,5"},
        {"letters where digits belong", "a.5 5.a", "a.5 5.a"},
        {"line ends", "1.5\n2.5", "1,5\n2,5"},
        {"a blank at the point", "1 .5 1. 5", "1 .5 1. 5"},
        {"digits of another script", "\u0661.\u0662", "\u0661.\u0662"},
        {"another script's digit before", "\u06611.5", "\u06611,5"},
        {"another script's digit behind the point", "1.\u06625", "1.\u06625"},
        {"full-width digits", "\uff11.\uff12", "\uff11.\uff12"},
        {"full-width point", "1\uff0e5", "1\uff0e5"},
        {"superscripts", "2.5 m\u00b3 1.\u00b2", "2,5 m\u00b3 1.\u00b2"},
        {"beyond the first plane", "\U0001f33e1.5\U0001f33e", "\U0001f33e1,5\U0001f33e"},
        {"neighbours of the digits", "/.5 5./ :.5 5.:", "/.5 5./ :.5 5.:"},
        {"all digits", "0123456789.9876543210", "0123456789,9876543210"},
    };
    for (const auto& row : rows)
        QTest::newRow(row.name) << Utf8(row.text) << Utf8(row.shown);
}

void DecimalComma::pointsInsideNumbersAreShownAsCommas()
{
    QFETCH(QString, text);
    QFETCH(QString, shown);
    QCOMPARE(TUnits::InternalToDisplayableFloatStr(text), shown);
}

void DecimalComma::commasBehindDigitsAreReadAsPoints_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("read");

    const struct
    {
        const char* name;
        const char* text;
        const char* read;
    } rows[] = {
        {"a quantity", "12,50 kg/ha", "12.50 kg/ha"},
        {"a number being typed", "12,", "12."},
        {"decimals", "1,5", "1.5"},
        {"no digits before", ",5", ",5"},
        {"a comma alone", ",", ","},
        {"nothing", "", ""},
        {"no decimals", "12", "12"},
        {"three parts", "1,2,3", "1.2,3"},
        {"four parts", "1,2,3,4", "1.2,3.4"},
        {"commas in a row", "1,,2", "1.,2"},
        {"more commas in a row", "1,,,2,", "1.,,2."},
        {"several numbers", "1,5 2,5; 3,", "1.5 2.5; 3."},
        {"a list", "1, 2, 3", "1. 2. 3"},
        {"a point stays", "1.5", "1.5"},
        {"point and comma", "1.234,5", "1.234.5"},
        {"sign", "-0,25", "-0.25"},
        {"letters behind", "5,a", "5.a"},
        {"digits of another script", "\u0661,\u0662", "\u0661,\u0662"},
        {"another script's digit behind the comma", "1,\u0662", "1.\u0662"},
        {"another script's comma", "1\u066b5", "1\u066b5"},
        {"full-width digits", "\uff11,", "\uff11,"},
    };
    for (const auto& row : rows)
        QTest::newRow(row.name) << Utf8(row.text) << Utf8(row.read);
}

void DecimalComma::commasBehindDigitsAreReadAsPoints()
{
    QFETCH(QString, text);
    QFETCH(QString, read);
    QCOMPARE(TUnits::DisplayableToInternalFloatStr(text), read);
}

void DecimalComma::everyTextChangesAsItsPatternTells()
{
    std::mt19937 random(TestSeed());
    const QString alphabet = Utf8("0123456789,.,.,.1 2-e\u0661\u00b3a");
    std::uniform_int_distribution<int> letter(0, static_cast<int>(alphabet.size()) - 1);
    std::uniform_int_distribution<int> size(0, 24);
    for (int i = 0; i < 20000; ++i) {
        QString text;
        for (int left = size(random); left > 0; --left)
            text += alphabet.at(letter(random));
        QCOMPARE(TUnits::InternalToDisplayableFloatStr(text),
                 ByPattern(text, "([0-9]+\\.[0-9]+)", QLatin1Char('.'), QLatin1Char(',')));
        QCOMPARE(TUnits::DisplayableToInternalFloatStr(text),
                 ByPattern(text, "([0-9]+\\,[0-9]*)", QLatin1Char(','), QLatin1Char('.')));
    }
}

void DecimalComma::anyLengthOfTextIsConverted()
{
    const int count = 100000;
    const QString digits(count, QLatin1Char('7'));
    QCOMPARE(TUnits::InternalToDisplayableFloatStr(digits + QLatin1Char('.') + digits),
             digits + QLatin1Char(',') + digits);
    QCOMPARE(TUnits::DisplayableToInternalFloatStr(digits + QLatin1Char(',')), digits + QLatin1Char('.'));
    QCOMPARE(TUnits::InternalToDisplayableFloatStr(QString::fromLatin1("1.5 ").repeated(count)),
             QString::fromLatin1("1,5 ").repeated(count));
    QCOMPARE(TUnits::DisplayableToInternalFloatStr(QString(count, QLatin1Char(','))), QString(count, QLatin1Char(',')));
}

void DecimalComma::theArgumentIsLeftAlone()
{
    const QString text = QString::fromLatin1("1.5 2,5");
    TUnits::InternalToDisplayableFloatStr(text);
    TUnits::DisplayableToInternalFloatStr(text);
    QCOMPARE(text, QString::fromLatin1("1.5 2,5"));
}

void DecimalComma::aTextThatStaysIsNotCopied()
{
    for (const char* letters : {"12 kg", "Go on.", ".5 1. a.b"}) {
        const QString text = Utf8(letters);
        QVERIFY(TUnits::InternalToDisplayableFloatStr(text).constData() == text.constData());
    }
}

void DecimalComma::abbreviationsMayHoldNumbers()
{
    TUnitAbbreviations::UnitAbbreviations[UNITS_ACRES] = Utf8(".5 2.5 .");
    TUnitAbbreviations::UnitAbbreviations[UNITS_FEET] = Utf8("5.2");
    TUnitAbbreviations::UnitAbbreviations[UNITS_INCHES] = Utf8(".5.5");
    QCOMPARE(TUnits::GetValueString(12.25, UNITS_ACRES, 2, nullptr), Utf8("12,25 .5 2,5 ."));
    QCOMPARE(TUnits::GetDistanceStringAdaptive(false, 1.7F, false, false), Utf8("55,26.5,5"));
    QCOMPARE(TUnits::GetDistanceStringAdaptive(false, 0.5F, false, false), Utf8("19,69.5,5"));
    TUnitAbbreviations::Initialize();
}

void DecimalComma::positionsKeepTheirFullStopExceptAsQuantities()
{
    const double position = -0.1275;
    QCOMPARE(TUnits::GetLongitudeString(position), Utf8("-0.12750000"));
    QCOMPARE(TUnits::GetValueString(position, UNITS_LATITUDE, 3, nullptr), Utf8("-0,12750000"));
    QCOMPARE(TUnits::GetValueString(position, UNITS_LONGITUDE, -1, nullptr), Utf8("-0,12750000"));

    m_Store.values[PARAM_DEGREES_MINUTES_SECONDS] = true;
    QCOMPARE(TUnits::GetLongitudeString(position), Utf8("0\u00b007'39.00\"W"));
    QCOMPARE(TUnits::GetValueString(position, UNITS_LATITUDE, 3, nullptr), Utf8("0\u00b007'39,00\"S"));
    QCOMPARE(TUnits::GetValueString(position, UNITS_LONGITUDE, 100, nullptr), Utf8("0\u00b007'39,00\"W"));
    m_Store.values.remove(PARAM_DEGREES_MINUTES_SECONDS);
}

int main(int argc, char** argv) { return RunCoreTest<DecimalComma>(argc, argv); }
#include "DecimalComma.moc"
