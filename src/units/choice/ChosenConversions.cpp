// Conversions into the units of area, pressure and short distance that the operator chose.

#include "platform/EShortDistanceUnit.h"
#include "units/TUnits.h"
#include "units/choice/Choices.h"
#include "units/conversion/HistoricWays.h"
#include "units/conversion/Measures.h"
#include "units/conversion/UnitWays.h"

namespace {

using namespace Conversions;

/// @p value by @p route while acres are chosen; otherwise as it is.
double InAcres(const TRoute& route, double value) { return Choices::Area() == AREA_UNIT_ACRE ? route(value) : value; }

/// The unit per area in which a value of @p type is typed; UNITS_NONE where it is typed as it is stored. In hectares
/// the unit of volume or mass stays what it is, too.
EUnitsType UnitPerArea(EUnitsType type, bool metric)
{
    if (type == UNITS_HECTARES) // anything but hectares counts as acres here
        return Choices::Area() == AREA_UNIT_HECTARE ? UNITS_NONE : UNITS_ACRES;
    if (type == UNITS_L_PER_HA && Choices::ShowsRatesPerTravel())
        return Choices::PerTravel(metric);
    return Choices::Area() == AREA_UNIT_ACRE ? Choices::PerArea(Choices::InSystem(type, metric), AREA_UNIT_ACRE)
                                             : UNITS_NONE;
}

double FromStored(double value, EUnitsType stored, EUnitsType shown, bool us)
{
    const tagConversion* const historic = HistoricWays::Find(HistoricWays::IN_ENTRIES, stored, shown);
    return historic ? historic->out(value) : UnitWays::Convert(value, stored, shown, us);
}

double ToStored(double value, EUnitsType stored, EUnitsType shown, bool us)
{
    const tagConversion* const historic = HistoricWays::Find(HistoricWays::IN_ENTRIES, stored, shown);
    return historic ? historic->in(value) : UnitWays::Convert(value, shown, stored, us);
}

/// The unit of a short distance of @p type; UNITS_METERS where it is not converted.
EUnitsType ShortDistance(EUnitsType type)
{
    const int choice = Parameters::ReadInt(PARAM_SHORT_DISTANCE_UNIT);
    if (choice != SHORT_DISTANCE_UNIT_INCH && choice != SHORT_DISTANCE_UNIT_FOOT)
        return UNITS_METERS;
    if (type == UNITS_FEET || type == UNITS_INCHES)
        return type;
    return type != UNITS_METERS ? UNITS_METERS : choice == SHORT_DISTANCE_UNIT_INCH ? UNITS_INCHES : UNITS_FEET;
}

} // namespace

// clang-format off
double TUnits::ConvertPerHectareToPerSpecifiedAreaUnit(double x)                         { return InAcres(Per(Acres).out, x); }
double TUnits::ConvertPerSpecifiedAreaUnitToPerHectare(double x)                         { return InAcres(Per(Acres).in, x); }
double TUnits::ConvertLitersPerHectareToUSGallonsPerSpecifiedAreaUnit(double x)          { return InAcres(USGallonsPerAcre.out, x); }
double TUnits::ConvertUSGallonsPerSpecifiedAreaUnitToLitersPerHectare(double x)          { return InAcres(USGallonsPerAcre.in, x); }
double TUnits::ConvertLitersPerHectareToEnglishGallonsPerSpecifiedAreaUnit(double x)     { return InAcres(EnglishGallonsPerAcre.out, x); }
double TUnits::ConvertEnglishGallonsPerSpecifiedAreaUnitToLitersPerHectare(double x)     { return InAcres(EnglishGallonsPerAcre.in, x); }
double TUnits::ConvertLitersPerHectareToMilliLitersPerSpecifiedAreaUnit(double x)        { return InAcres(ThousandthsPerAcre.out, x); }
double TUnits::ConvertMilliLitersPerSpecifiedAreaUnitToLitersPerHectare(double x)        { return InAcres(ThousandthsPerAcre.in, x); }
double TUnits::ConvertLitersPerHectareToUSFluidOuncesPerSpecifiedAreaUnit(double x)      { return InAcres(USFluidOuncesPerAcre.out, x); }
double TUnits::ConvertUSFluidOuncesPerSpecifiedAreaUnitToLitersPerHectare(double x)      { return InAcres(USFluidOuncesPerAcre.in, x); }
double TUnits::ConvertLitersPerHectareToEnglishFluidOuncesPerSpecifiedAreaUnit(double x) { return InAcres(EnglishFluidOuncesPerAcre.out, x); }
double TUnits::ConvertEnglishFluidOuncesPerSpecifiedAreaUnitToLitersPerHectare(double x) { return InAcres(EnglishFluidOuncesPerAcre.in, x); }
double TUnits::ConvertLitersPerHectareToCubicMetersPerSpecifiedAreaUnit(double x)        { return InAcres(ThousandsPerAcre.out, x); }
double TUnits::ConvertCubicMetersPerSpecifiedAreaUnitToLitersPerHectare(double x)        { return InAcres(ThousandsPerAcre.in, x); }
double TUnits::ConvertLitersPerHectareToCubicFeetPerSpecifiedAreaUnit(double x)          { return InAcres(CubicFeetPerAcre.out, x); }
double TUnits::ConvertCubicFeetPerSpecifiedAreaUnitToLitersPerHectare(double x)          { return InAcres(CubicFeetPerAcre.in, x); }
double TUnits::ConvertLitersPerHectareToTonnesPerSpecifiedAreaUnit(double x)             { return InAcres(ThousandsPerAcre.out, x); }
double TUnits::ConvertTonnesPerSpecifiedAreaUnitToLitersPerHectare(double x)             { return InAcres(ThousandsPerAcre.in, x); }
double TUnits::ConvertLitersPerHectareToPoundsPerSpecifiedAreaUnit(double x)             { return InAcres(PoundsPerAcreOfLiters.out, x); }
double TUnits::ConvertPoundsPerSpecifiedAreaUnitToLitersPerHectare(double x)             { return InAcres(PoundsPerAcreOfLiters.in, x); }
double TUnits::ConvertKilogramsPerHectareToPoundsPerSpecifiedAreaUnit(double x)          { return InAcres(PoundsPerAcre.out, x); }
double TUnits::ConvertPoundsPerSpecifiedAreaUnitToKilogramsPerHectare(double x)          { return InAcres(PoundsPerAcre.in, x); }
// clang-format on

double TUnits::ConvertSpecifiedAreaUnitIn(double value, EUnitsType type)
{
    if (!IsSpecifiedAreaUnit(type))
        return value;
    const bool us = Measures::IsUS();
    const EUnitsType shown = UnitPerArea(type, Measures::IsMetric());
    return shown == UNITS_NONE ? value : FromStored(value, GetStoredUnit(type), shown, us);
}

double TUnits::ConvertSpecifiedAreaUnitOut(double value, EUnitsType type)
{
    if (!IsSpecifiedAreaUnit(type))
        return value;
    const bool us = Measures::IsUS();
    const EUnitsType shown = UnitPerArea(type, Measures::IsMetric());
    return shown == UNITS_NONE ? value : ToStored(value, GetStoredUnit(type), shown, us);
}

double TUnits::ConvertSpecifiedPressureUnitIn(double value)
{
    return FromStored(value, UNITS_KPA, DetermineActualUnitFromUnitsType(UNITS_KPA), false);
}

double TUnits::ConvertSpecifiedPressureUnitOut(double value)
{
    return ToStored(value, UNITS_KPA, DetermineActualUnitFromUnitsType(UNITS_KPA), false);
}

double TUnits::ConvertSpecifiedShortDistanceUnitIn(double value, EUnitsType type)
{
    return ConvertFromMeter(value, ShortDistance(type));
}

double TUnits::ConvertSpecifiedShortDistanceUnitOut(double value, EUnitsType type)
{
    return ConvertToMeter(value, ShortDistance(type));
}
