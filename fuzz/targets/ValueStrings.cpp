// Both forms of GetValueString(), for any value, number of decimals and threshold.

#include "support/FuzzTarget.h"
#include "support/TFuzzInput.h"
#include "support/TFuzzRoom.h"
#include "units/TUnitAbbreviations.h"
#include "units/TUnits.h"

#include <cmath>
#include <limits>

namespace {

const int ManyDecimals = 3000;
const double ErrorOfSixDigits = 5e-6;
const int MostShownDecimals = 300; // of those that are compared: their last digit is still a double
const double GreatestCompared = 1e15;
const double LeastCompared = 1e-300; // below, a double has fewer digits

/// The number at the beginning of a text that is shown; nothing but digits, sign, comma and exponent belong to it.
double NumberOf(const QString& text, bool* isNumber)
{
    int end = 0;
    const QString letters = QLatin1String("+-0123456789,e");
    while (end < text.size() && letters.contains(text.at(end)))
        ++end;
    return TUnits::DisplayableToInternalFloatStr(text.left(end)).toDouble(isNumber);
}

/// Half a unit of the last decimal, and the error of the number itself.
double Tolerance(double value, int decimals)
{
    if (decimals < 0) // up to six significant digits
        return std::abs(value) * ErrorOfSixDigits * (1 + std::numeric_limits<double>::epsilon());
    return 0.5 * std::pow(10.0, -decimals) + std::abs(value) * std::numeric_limits<double>::epsilon();
}

void CheckNumber(const QString& text, double value, int decimals)
{
    if (std::isnan(value) || std::isinf(value)) {
        Expect(text.contains(QLatin1String(std::isnan(value) ? "nan" : "inf")), "nan and inf are shown as such", text);
        return;
    }
    bool isNumber = false;
    const double shown = NumberOf(text, &isNumber);
    Expect(isNumber, "a number is shown", text);
    if (decimals <= MostShownDecimals && std::abs(value) < GreatestCompared &&
        (value == 0 || std::abs(value) > LeastCompared)) {
        Expect(std::abs(shown - value) <= Tolerance(value, decimals),
               "what is shown is the value, within half a unit of the last decimal",
               QString::fromLatin1("%1 for %2").arg(text).arg(value, 0, 'g', 17));
    }
}

void CheckSplit(const QString& text, const QString& valueText, const QString& unitText)
{
    const bool hasBlank = text.contains(QLatin1Char(' '));
    Expect(text == (hasBlank ? valueText + QLatin1Char(' ') + unitText : valueText), "value and unit are the text",
           text);
}

/// The text with a unit that is given as a text.
void CheckText(double value, const QString& unit, int precision, const TUnits::tagThresholdSpec* spec)
{
    const QString text = TUnits::GetValueString(value, unit, precision, spec);
    QString valueText;
    QString unitText;
    TUnits::GetValueUnitString(value, valueText, unitText, unit, precision, spec);
    CheckSplit(text, valueText, unitText);
    if (unit == QLatin1String("HH:mm:ss") || unit == QLatin1String("DD/MM/YYYY") ||
        (!unit.isEmpty() && !unit.startsWith(QLatin1Char(' '))))
        return; // a unit directly behind the number may begin with digits
    const int decimals = precision < 0 ? -1 : TUnits::GetThresholdPrecision(static_cast<float>(value), spec, precision);
    CheckNumber(text, value, decimals);
}

/// The text of a quantity.
void CheckQuantity(double value, EUnitsType type, int precision, const TUnits::tagThresholdSpec* spec)
{
    const QString text = TUnits::GetValueString(value, type, precision, spec);
    QString valueText;
    QString unitText;
    TUnits::GetValueUnitString(value, valueText, unitText, type, precision, spec);
    CheckSplit(text, valueText, unitText);
    Expect(!text.isEmpty(), "a value has a text");
    const bool isAsItIs = type < 0 || type >= TUnitAbbreviations::UnitCount;
    if (isAsItIs)
        CheckNumber(text, value, precision);
}

/// Any number of decimals. Few are many, because each makes a text of as many digits.
int AnyPrecision(TFuzzInput& input)
{
    const int precision = input.Int();
    return precision < std::numeric_limits<int>::max() ? precision % ManyDecimals : precision;
}

void Check(const QByteArray& bytes)
{
    TFuzzInput input(bytes);
    SetMeasures(input);
    const double value = input.Double();
    // Most precisions are numbers of decimals, some are any numbers; so are the units.
    const bool isAny = input.Byte() == 255;
    const int precision = isAny ? AnyPrecision(input) : input.Byte() - 2;
    const auto type = static_cast<EUnitsType>(isAny ? input.Int() : input.Byte());
    const bool hasSpec = input.Bool();
    const TUnits::tagThresholdSpec spec = {static_cast<float>(input.Double()),
                                           isAny ? AnyPrecision(input) : input.Byte() - 2};
    const QString unit = QString::fromUtf8(input.Rest());

    CheckText(value, unit, precision, hasSpec ? &spec : nullptr);
    CheckQuantity(value, type, precision, hasSpec ? &spec : nullptr);
}

QList<QByteArray> Seeds()
{
    const QByteArray measures("\x01\x01\x01\x01\x01\x01\x01\x01");
    QList<QByteArray> seeds;
    for (int unit = 0; unit < TUnitAbbreviations::UnitCount; unit += 6) {
        const QByteArray text = ' ' + TUnitAbbreviations::UnitAbbreviations[unit].toUtf8();
        seeds.append(TFuzzSeed()
                         .Rest(measures)
                         .Double(1234.5678)
                         .Byte(0)
                         .Byte(unit % 8)
                         .Byte(unit)
                         .Byte(unit % 2)
                         .Double(100)
                         .Byte(2)
                         .Rest(text));
    }
    for (const char* unit : {"HH:mm:ss", "DD/MM/YYYY"})
        seeds.append(
            TFuzzSeed().Rest(measures).Double(7.5).Byte(0).Byte(1).Byte(0).Byte(0).Double(0).Byte(0).Rest(unit));
    seeds.append(TFuzzSeed()
                     .Rest(measures)
                     .Double(1.5)
                     .Byte(255)
                     .Int(std::numeric_limits<int>::max())
                     .Int(std::numeric_limits<int>::max())
                     .Byte(1)
                     .Double(1)
                     .Int(std::numeric_limits<int>::min()));
    return seeds;
}

} // namespace

namespace FuzzTargets {

tagFuzzTarget ValueStrings() { return {"ValueStrings", Check, Seeds}; }

} // namespace FuzzTargets
