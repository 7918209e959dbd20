// KUnitConversion, package libkf5unitconversion-dev.

#include "Pairs.h"
#include "Rows.h"

#include <KUnitConversion/Converter>
#include <KUnitConversion/Value>

#include <iterator>

namespace {

using namespace KUnitConversion;

struct tagUnitId
{
    EUnitsType ours;
    UnitId theirs;
};

constexpr tagUnitId UnitIds[] = {
    {UNITS_METERS, Meter},
    {UNITS_KILOMETERS, Kilometer},
    {UNITS_CENTIMETERS, Centimeter},
    {UNITS_MILLIMETERS, Millimeter},
    {UNITS_FEET, Foot},
    {UNITS_MILES, Mile},
    {UNITS_INCHES, Inch},
    {UNITS_HECTARES, SquareHectometer},
    {UNITS_ACRES, Acre},
    {UNITS_METERS_PER_SECOND, MeterPerSecond},
    {UNITS_KPH, KilometerPerHour},
    {UNITS_MPH, MilePerHour},
    {UNITS_LITERS, Liter},
    {UNITS_MILLILITERS, Milliliter},
    {UNITS_CUBIC_METERS, CubicMeter},
    {UNITS_CUBIC_FEET, CubicFoot},
    {UNITS_KPA, Kilopascal},
    {UNITS_PSI, PoundForcePerSquareInch},
    {UNITS_BAR, Bar},
    {UNITS_KG, Kilogram},
    {UNITS_LB, Pound},
    {UNITS_KG_PER_L, KilogramPerLiter},
    {UNITS_KG_PER_M3, KilogramsPerCubicMeter},
    {UNITS_LB_PER_FT3, PoundPerCubicFoot},
};

UnitId IdOf(EUnitsType unit)
{
    const auto* const found =
        std::find_if(std::begin(UnitIds), std::end(UnitIds), [unit](const tagUnitId& id) { return id.ours == unit; });
    return found != std::end(UnitIds) ? found->theirs : InvalidUnit;
}

struct tagIds
{
    UnitId from;
    UnitId to;
};

double Converted(unsigned number)
{
    static const Converter converter;
    static const std::array<tagIds, Inputs::Count> ids = [] {
        std::array<tagIds, Inputs::Count> all;
        std::transform(ShuffledUnits.begin(), ShuffledUnits.end(), all.begin(), [](const tagUnits& pair) {
            return tagIds{IdOf(pair.from), IdOf(pair.to)};
        });
        return all;
    }();
    const tagIds& pair = ids[number % Inputs::Count];
    return converter.convert(Value(Inputs::Value(number), pair.from), pair.to).number();
}

const TRows Rows = {
    {"convert.mix", ROW_PEER, "KUnitConversion", Timed<Converted>},
};

} // namespace
