// Conversions into the units of area, pressure and short distance that the operator chose.

#include "units/Routes.h"
#include "units/TUnits.h"
#include "units/UnitSystem.h"

namespace {

using Routes::By;
using Routes::TConversion;

/// @p value by the factor functions while acres are chosen; otherwise as it is.
template <double (*... Factors)(float)>
double InAcres(double value)
{
    return UnitSystem::Area() == UnitSystem::Acres ? By<Factors...>(value) : value;
}

/// The conversions of one type for each kind of measures.
struct tagMeasures
{
    TConversion metric;
    TConversion us;
    TConversion english;

    double operator()(double value) const
    {
        const bool isUS = UnitSystem::IsUS();
        if (UnitSystem::IsMetric())
            return metric(value);
        return isUS ? us(value) : english(value);
    }
};

using U = TUnits;

struct tagAreaRow
{
    EUnitsType type;
    tagMeasures in;
    tagMeasures out;
};

constexpr tagMeasures PerAreaIn = {U::ConvertPerHectareToPerSpecifiedAreaUnit,
                                   U::ConvertPerHectareToPerSpecifiedAreaUnit,
                                   U::ConvertPerHectareToPerSpecifiedAreaUnit};
constexpr tagMeasures PerAreaOut = {U::ConvertPerSpecifiedAreaUnitToPerHectare,
                                    U::ConvertPerSpecifiedAreaUnitToPerHectare,
                                    U::ConvertPerSpecifiedAreaUnitToPerHectare};
constexpr tagMeasures MassPerAreaIn = {U::ConvertPerHectareToPerSpecifiedAreaUnit,
                                       U::ConvertKilogramsPerHectareToPoundsPerSpecifiedAreaUnit,
                                       U::ConvertKilogramsPerHectareToPoundsPerSpecifiedAreaUnit};
constexpr tagMeasures MassPerAreaOut = {U::ConvertPerSpecifiedAreaUnitToPerHectare,
                                        U::ConvertPoundsPerSpecifiedAreaUnitToKilogramsPerHectare,
                                        U::ConvertPoundsPerSpecifiedAreaUnitToKilogramsPerHectare};

constexpr tagAreaRow AreaRows[] = {
    {UNITS_L_PER_HA,
     {U::ConvertPerHectareToPerSpecifiedAreaUnit, U::ConvertLitersPerHectareToUSGallonsPerSpecifiedAreaUnit,
      U::ConvertLitersPerHectareToEnglishGallonsPerSpecifiedAreaUnit},
     {U::ConvertPerSpecifiedAreaUnitToPerHectare, U::ConvertUSGallonsPerSpecifiedAreaUnitToLitersPerHectare,
      U::ConvertEnglishGallonsPerSpecifiedAreaUnitToLitersPerHectare}},
    {UNITS_ML_PER_HA,
     {U::ConvertLitersPerHectareToMilliLitersPerSpecifiedAreaUnit,
      U::ConvertLitersPerHectareToUSFluidOuncesPerSpecifiedAreaUnit,
      U::ConvertLitersPerHectareToEnglishFluidOuncesPerSpecifiedAreaUnit},
     {U::ConvertMilliLitersPerSpecifiedAreaUnitToLitersPerHectare,
      U::ConvertUSFluidOuncesPerSpecifiedAreaUnitToLitersPerHectare,
      U::ConvertEnglishFluidOuncesPerSpecifiedAreaUnitToLitersPerHectare}},
    {UNITS_M3_PER_HA,
     {U::ConvertLitersPerHectareToCubicMetersPerSpecifiedAreaUnit,
      U::ConvertLitersPerHectareToCubicFeetPerSpecifiedAreaUnit,
      U::ConvertLitersPerHectareToCubicFeetPerSpecifiedAreaUnit},
     {U::ConvertCubicMetersPerSpecifiedAreaUnitToLitersPerHectare,
      U::ConvertCubicFeetPerSpecifiedAreaUnitToLitersPerHectare,
      U::ConvertCubicFeetPerSpecifiedAreaUnitToLitersPerHectare}},
    {UNITS_T_PER_HA,
     {U::ConvertLitersPerHectareToTonnesPerSpecifiedAreaUnit, U::ConvertLitersPerHectareToPoundsPerSpecifiedAreaUnit,
      U::ConvertLitersPerHectareToPoundsPerSpecifiedAreaUnit},
     {U::ConvertTonnesPerSpecifiedAreaUnitToLitersPerHectare, U::ConvertPoundsPerSpecifiedAreaUnitToLitersPerHectare,
      U::ConvertPoundsPerSpecifiedAreaUnitToLitersPerHectare}},
    {UNITS_KG_PER_HA, MassPerAreaIn, MassPerAreaOut},
    {UNITS_KG_N_PER_HA, MassPerAreaIn, MassPerAreaOut},
    {UNITS_KSEEDS_PER_HA, PerAreaIn, PerAreaOut},
};

constexpr tagMeasures PerTravelIn = {By<U::ConvertLitersPerHectareToLitersPer100Meters>,
                                     By<U::ConvertLitersPerHectareToUSGallonsPer100Yards>,
                                     By<U::ConvertLitersPerHectareToEnglishGallonsPer100Yards>};
constexpr tagMeasures PerTravelOut = {By<U::ConvertLitersPer100MetersToLitersPerHectare>,
                                      By<U::ConvertUSGallonsPer100YardsToLitersPerHectare>,
                                      By<U::ConvertEnglishGallonsPer100YardsToLitersPerHectare>};

const tagAreaRow* FindAreaRow(EUnitsType type)
{
    for (const tagAreaRow& row : AreaRows) {
        if (row.type == type)
            return &row;
    }
    return nullptr;
}

/// The factor from metres into feet or inches, as both type and PARAM_SHORT_DISTANCE_UNIT ask; UNITS_METERS for none.
EUnitsType ShortDistance(EUnitsType type)
{
    const int choice = Parameters::ReadInt(PARAM_SHORT_DISTANCE_UNIT);
    if (choice != 1 && choice != 2)
        return UNITS_METERS;
    if (type == UNITS_FEET || type == UNITS_INCHES)
        return type;
    return type != UNITS_METERS ? UNITS_METERS : choice == 1 ? UNITS_INCHES : UNITS_FEET;
}

} // namespace

double TUnits::ConvertPerHectareToPerSpecifiedAreaUnit(double x) { return InAcres<ConvertPerHectareToPerAcre>(x); }
double TUnits::ConvertPerSpecifiedAreaUnitToPerHectare(double x) { return InAcres<ConvertPerAcreToPerHectare>(x); }

double TUnits::ConvertLitersPerHectareToUSGallonsPerSpecifiedAreaUnit(double x)
{
    return InAcres<ConvertLitersPerHectareToUSGallonsPerAcre>(x);
}
double TUnits::ConvertUSGallonsPerSpecifiedAreaUnitToLitersPerHectare(double x)
{
    return InAcres<ConvertUSGallonsPerAcreToLitersPerHectare>(x);
}

double TUnits::ConvertLitersPerHectareToEnglishGallonsPerSpecifiedAreaUnit(double x)
{
    return InAcres<ConvertLitersPerHectareToEnglishGallonsPerAcre>(x);
}
double TUnits::ConvertEnglishGallonsPerSpecifiedAreaUnitToLitersPerHectare(double x)
{
    return InAcres<ConvertEnglishGallonsPerAcreToLitersPerHectare>(x);
}

double TUnits::ConvertLitersPerHectareToMilliLitersPerSpecifiedAreaUnit(double x)
{
    return InAcres<ConvertLitersPerHectareToMilliLitersPerAcre>(x);
}
double TUnits::ConvertMilliLitersPerSpecifiedAreaUnitToLitersPerHectare(double x)
{
    return InAcres<ConvertMilliLitersPerAcreToLitersPerHectare>(x);
}

double TUnits::ConvertLitersPerHectareToUSFluidOuncesPerSpecifiedAreaUnit(double x)
{
    return InAcres<ConvertLitersPerHectareToUSFluidOuncesPerAcre>(x);
}
double TUnits::ConvertUSFluidOuncesPerSpecifiedAreaUnitToLitersPerHectare(double x)
{
    return InAcres<ConvertUSFluidOuncesPerAcreToLitersPerHectare>(x);
}

double TUnits::ConvertLitersPerHectareToEnglishFluidOuncesPerSpecifiedAreaUnit(double x)
{
    return InAcres<ConvertLitersPerHectareToEnglishFluidOuncesPerAcre>(x);
}
double TUnits::ConvertEnglishFluidOuncesPerSpecifiedAreaUnitToLitersPerHectare(double x)
{
    return InAcres<ConvertEnglishFluidOuncesPerAcreToLitersPerHectare>(x);
}

double TUnits::ConvertLitersPerHectareToCubicMetersPerSpecifiedAreaUnit(double x)
{
    return InAcres<ConvertLitersPerHectareToCubicMetersPerAcre>(x);
}
double TUnits::ConvertCubicMetersPerSpecifiedAreaUnitToLitersPerHectare(double x)
{
    return InAcres<ConvertCubicMetersPerAcreToLitersPerHectare>(x);
}

double TUnits::ConvertLitersPerHectareToCubicFeetPerSpecifiedAreaUnit(double x)
{
    return InAcres<ConvertLitersPerHectareToCubicFeetPerAcre>(x);
}
double TUnits::ConvertCubicFeetPerSpecifiedAreaUnitToLitersPerHectare(double x)
{
    return InAcres<ConvertCubicFeetPerAcreToLitersPerHectare>(x);
}

double TUnits::ConvertLitersPerHectareToTonnesPerSpecifiedAreaUnit(double x)
{
    return InAcres<ConvertLitersPerHectareToTonnesPerAcre>(x);
}
double TUnits::ConvertTonnesPerSpecifiedAreaUnitToLitersPerHectare(double x)
{
    return InAcres<ConvertTonnesPerAcreToLitersPerHectare>(x);
}

double TUnits::ConvertLitersPerHectareToPoundsPerSpecifiedAreaUnit(double x)
{
    return InAcres<ConvertLitersPerHectareToPoundsPerAcre>(x);
}
double TUnits::ConvertPoundsPerSpecifiedAreaUnitToLitersPerHectare(double x)
{
    return InAcres<ConvertPoundsPerAcreToTonnesPerHectare, ConvertTonnesPerHectareToLitersPerHectare>(x);
}

double TUnits::ConvertKilogramsPerHectareToPoundsPerSpecifiedAreaUnit(double x)
{
    return InAcres<ConvertKilogramsPerHectareToPoundsPerAcre>(x);
}
double TUnits::ConvertPoundsPerSpecifiedAreaUnitToKilogramsPerHectare(double x)
{
    return InAcres<ConvertPoundsPerAcreToKilogramsPerHectare>(x);
}

double TUnits::ConvertSpecifiedAreaUnitIn(double value, EUnitsType type)
{
    if (type == UNITS_HECTARES) // anything but hectares counts as acres here
        return UnitSystem::Area() == UnitSystem::Hectares ? value : By<ConvertHectaresToAcres>(value);
    if (type == UNITS_L_PER_HA && UnitSystem::ShowsRatesPerTravel())
        return PerTravelIn(value);
    const tagAreaRow* const row = FindAreaRow(type);
    return row ? row->in(value) : value;
}

double TUnits::ConvertSpecifiedAreaUnitOut(double value, EUnitsType type)
{
    if (type == UNITS_HECTARES)
        return UnitSystem::Area() == UnitSystem::Hectares ? value : By<ConvertAcresToHectares>(value);
    if (type == UNITS_L_PER_HA && UnitSystem::ShowsRatesPerTravel())
        return PerTravelOut(value);
    const tagAreaRow* const row = FindAreaRow(type);
    return row ? row->out(value) : value;
}

double TUnits::ConvertSpecifiedPressureUnitIn(double value)
{
    switch (Parameters::ReadInt(PARAM_PRESSURE_UNIT)) {
    case 1:
        return By<ConvertKilopascalsToPoundsPerSquareInch>(value);
    case 2:
        return By<ConvertKilopascalsToBar>(value);
    default:
        return value;
    }
}

double TUnits::ConvertSpecifiedPressureUnitOut(double value)
{
    switch (Parameters::ReadInt(PARAM_PRESSURE_UNIT)) {
    case 1:
        return By<ConvertPoundsPerSquareInchToKilopascals>(value);
    case 2:
        return By<ConvertBarToKilopascals>(value);
    default:
        return value;
    }
}

double TUnits::ConvertSpecifiedShortDistanceUnitIn(double value, EUnitsType type)
{
    return ConvertFromMeter(value, ShortDistance(type));
}

double TUnits::ConvertSpecifiedShortDistanceUnitOut(double value, EUnitsType type)
{
    return ConvertToMeter(value, ShortDistance(type));
}
