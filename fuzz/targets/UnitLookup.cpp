// Units by their abbreviations and numbers, and conversions between any two numbers of units.

#include "support/FuzzTarget.h"
#include "support/TFuzzInput.h"
#include "support/TFuzzRoom.h"
#include "units/TUnitAbbreviations.h"
#include "units/TUnits.h"

#include <cmath>
#include <cstring>

namespace {

// The way back of a value of everyday size; the factors are 32-bit floats.
const double LeastValue = 1e-6;
const double GreatestValue = 1e6;
const double RelativeError = 1e-4;
const double AbsoluteError = 1e-3; // temperatures are moved, not only scaled

bool IsUnit(int number) { return number >= 0 && number < TUnitAbbreviations::UnitCount; }

bool AreSame(double one, double other)
{
    return std::memcmp(&one, &other, sizeof one) == 0 || (std::isnan(one) && std::isnan(other));
}

void CheckAbbreviation(const QString& text)
{
    const EUnitsType found = TUnitAbbreviations::GetUnitTypeFromString(text, true);
    Expect(IsUnit(found), "a unit that is found exists", text);
    int first = 0;
    while (first < TUnitAbbreviations::UnitCount &&
           TUnitAbbreviations::UnitAbbreviations[first].compare(text, Qt::CaseInsensitive) != 0)
        ++first;
    const bool isAbbreviation = first < TUnitAbbreviations::UnitCount && !text.isEmpty();
    Expect(!isAbbreviation || found == first, "the first unit with the abbreviation is found", text);
    Expect(isAbbreviation || found == UNITS_NONE || text.isEmpty(), "no unit is found for another text", text);
}

void CheckNumber(EUnitsType unit)
{
    const QString abbreviation = TUnitAbbreviations::GetStringFromUnitType(unit, true);
    Expect(IsUnit(unit) || abbreviation.isEmpty(), "a number that is no unit has no abbreviation");
    const EUnitsType others[] = {TUnits::GetConversionHub(unit), TUnits::GetStoredUnit(unit),
                                 TUnits::DetermineDefaultUnitFromUnitsType(unit)};
    for (const EUnitsType other : others)
        Expect(IsUnit(unit) ? IsUnit(other) : other == unit, "a number that is no unit stays what it is");
    Expect(IsUnit(TUnits::DetermineActualUnitFromUnitsType(unit)) || !IsUnit(unit), "the unit shown exists");
    Expect(IsUnit(unit) || !TUnits::DependsOnUSMeasures(unit), "a number that is no unit depends on nothing");
    Expect(TUnits::GetDefaultPrecision(unit) >= -1, "a default precision is -1 or a number of decimals");
}

void CheckConversion(double value, EUnitsType from, EUnitsType to)
{
    const double converted = TUnits::ConvertUnit(value, from, to);
    if (!TUnits::CanConvert(from, to))
        Expect(AreSame(converted, value), "without a conversion the value stays as it is");
    const double magnitude = std::abs(value);
    if (!TUnits::CanConvert(from, to) || !TUnits::CanConvert(to, from) || !(magnitude >= LeastValue) ||
        magnitude > GreatestValue)
        return;
    const double back = TUnits::ConvertUnit(converted, to, from);
    Expect(std::abs(back - value) <= magnitude * RelativeError + AbsoluteError, "a conversion has its way back",
           QString::fromLatin1("%1 from %2 to %3 is %4, and back %5")
               .arg(value)
               .arg(from)
               .arg(to)
               .arg(converted)
               .arg(back));
}

void Check(const QByteArray& bytes)
{
    TFuzzInput input(bytes);
    SetMeasures(input);
    const double value = input.Double();
    // Most numbers are units, some are any numbers.
    const bool isAny = input.Byte() == 255;
    const auto from = static_cast<EUnitsType>(isAny ? input.Int() : input.Byte());
    const auto to = static_cast<EUnitsType>(isAny ? input.Int() : input.Byte());
    const QString text = QString::fromUtf8(input.Rest());

    CheckAbbreviation(text);
    CheckNumber(from);
    CheckConversion(value, from, to);
    CheckConversion(value, from, TUnits::GetConversionHub(from));
    const double factor = TUnits::GetConversionFactor(from, text);
    const bool isKnown = TUnitAbbreviations::GetUnitTypeFromString(text, true) != UNITS_NONE;
    Expect(std::isfinite(factor) && (isKnown || factor == 1), "a factor is a number, and 1 for an unknown unit", text);
}

QList<QByteArray> Seeds()
{
    QList<QByteArray> seeds;
    for (int unit = 0; unit < TUnitAbbreviations::UnitCount; unit += 6) {
        const QByteArray text = TUnitAbbreviations::UnitAbbreviations[unit].toUtf8();
        seeds.append(TFuzzSeed()
                         .Rest("\x01\x01\x01\x01\x01\x01\x01\x01")
                         .Double(12.5)
                         .Byte(0)
                         .Byte(unit)
                         .Byte(unit + 1)
                         .Rest(text));
    }
    return seeds;
}

} // namespace

namespace FuzzTargets {

tagFuzzTarget UnitLookup() { return {"UnitLookup", Check, Seeds}; }

} // namespace FuzzTargets
