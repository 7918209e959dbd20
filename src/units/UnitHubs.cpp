// The hub of a quantity is the unit in which the host stores it. Each hub has a table of the units that it converts to
// and from; a value in any other unit is handed back as it is.

#include "units/TUnits.h"

#include "units/Routes.h"
#include "units/UnitSystem.h"

namespace {

using Routes::By;
using Routes::TConversion;

/// Conversions of one unit. Those for English measures are there when "gallon" and "fluid ounce" leave open which one
/// is meant: the others are then for US measures.
struct tagHubRow
{
    EUnitsType unit;
    TConversion out;
    TConversion in;
    TConversion outEnglish = nullptr;
    TConversion inEnglish = nullptr;
};

// Ways that no factor function goes. Their divisors are those of recorded data: two of them shorter than the factors of
// the way out.
double KilometersToMeters(double value) { return static_cast<double>(static_cast<long double>(value) / 0.001f); }
double KphToMetersPerSecond(double value) { return value / 3.6; }
double MphToMetersPerSecond(double value) { return static_cast<double>(static_cast<long double>(value) / 2.2369363f); }
double PsiToKilopascals(double value) { return value / 0.14504; }

using U = TUnits;

// clang-format off
constexpr tagHubRow MeterRows[] = {
    {UNITS_KILOMETERS,  By<U::ConvertMetersToKilometers>,  KilometersToMeters},
    {UNITS_CENTIMETERS, By<U::ConvertMetersToCentimeters>, By<U::ConvertCentimetersToMeters>},
    {UNITS_MILLIMETERS, By<U::ConvertMetersToMillimeters>, By<U::ConvertMillimetersToMeters>},
    {UNITS_FEET,        By<U::ConvertMetersToFeet>,        By<U::ConvertFeetToMeters>},
    {UNITS_MILES,       By<U::ConvertMetersToMiles>,       By<U::ConvertMilesToMeters>},
    {UNITS_INCHES,      By<U::ConvertMetersToInches>,      By<U::ConvertInchesToMeters>},
};

constexpr tagHubRow HectareRows[] = {
    {UNITS_ACRES, By<U::ConvertHectaresToAcres>, By<U::ConvertAcresToHectares>},
};

constexpr tagHubRow MetersPerMinRows[] = {
    {UNITS_FEET_PER_MIN, By<U::ConvertMetersToFeet>, By<U::ConvertFeetToMeters>},
};

constexpr tagHubRow MetersPerSecondRows[] = {
    {UNITS_KPH, By<U::ConvertMetersPerSecondToKilometersPerHour>, KphToMetersPerSecond},
    {UNITS_MPH, By<U::ConvertMetersPerSecondToMilesPerHour>,      MphToMetersPerSecond},
};

constexpr tagHubRow PulsesPerKilometerPerHourRows[] = {
    {UNITS_HZ_PER_MPH, By<U::ConvertPulsesPerKPHToPulsesPerMPH>, By<U::ConvertPulsesPerMPHToPulsesPerKPH>},
};

constexpr tagHubRow LiterRows[] = {
    {UNITS_GALLONS,      By<U::ConvertLitersToUSGallons>,          By<U::ConvertUSGallonsToLiters>,
                         By<U::ConvertLitersToEnglishGallons>,     By<U::ConvertEnglishGallonsToLiters>},
    {UNITS_MILLILITERS,  By<U::ConvertLitersToMilliLiters>,        By<U::ConvertMilliLitersToLiters>},
    {UNITS_FLUID_OUNCES, By<U::ConvertLitersToUSFluidOunces>,      By<U::ConvertUSFluidOuncesToLiters>,
                         By<U::ConvertLitersToEnglishFluidOunces>, By<U::ConvertEnglishFluidOuncesToLiters>},
    {UNITS_CUBIC_METERS, By<U::ConvertLitersToCubicMeters>,        By<U::ConvertCubicMetersToLiters>},
    {UNITS_CUBIC_FEET,   By<U::ConvertLitersToCubicFeet>,          By<U::ConvertCubicFeetToLiters>},
    {UNITS_TONNES,       By<U::ConvertLitersToTonnes>,             By<U::ConvertTonnesToLiters>},
    {UNITS_US_BUSHELS,   By<U::ConvertLitersToUSBushels>,          By<U::ConvertUSBushelsToLiters>},
    {UNITS_UK_BUSHELS,   By<U::ConvertLitersToUKBushels>,          By<U::ConvertUKBushelsToLiters>},
    {UNITS_LB,           By<U::ConvertLitersToPounds>,             By<U::ConvertPoundsToLiters>},
};

constexpr tagHubRow LitersPerHectareRows[] = {
    {UNITS_L_PER_AC,         By<U::ConvertPerHectareToPerAcre>,                         By<U::ConvertPerAcreToPerHectare>},
    {UNITS_ML_PER_HA,        By<U::ConvertLitersToMilliLiters>,                         By<U::ConvertMilliLitersToLiters>},
    {UNITS_ML_PER_AC,        By<U::ConvertLitersPerHectareToMilliLitersPerAcre>,        By<U::ConvertMilliLitersPerAcreToLitersPerHectare>},
    {UNITS_GAL_PER_HA,       By<U::ConvertLitersToUSGallons>,                           By<U::ConvertUSGallonsToLiters>,
                             By<U::ConvertLitersToEnglishGallons>,                      By<U::ConvertEnglishGallonsToLiters>},
    {UNITS_GAL_PER_AC,       By<U::ConvertLitersPerHectareToUSGallonsPerAcre>,          By<U::ConvertUSGallonsPerAcreToLitersPerHectare>,
                             By<U::ConvertLitersPerHectareToEnglishGallonsPerAcre>,     By<U::ConvertEnglishGallonsPerAcreToLitersPerHectare>},
    {UNITS_US_GAL_PER_HA,    By<U::ConvertLitersToUSGallons>,                           By<U::ConvertUSGallonsToLiters>},
    {UNITS_US_GAL_PER_AC,    By<U::ConvertLitersPerHectareToUSGallonsPerAcre>,          By<U::ConvertUSGallonsPerAcreToLitersPerHectare>},
    {UNITS_FLOZ_PER_AC,      By<U::ConvertLitersPerHectareToUSFluidOuncesPerAcre>,      By<U::ConvertUSFluidOuncesPerAcreToLitersPerHectare>,
                             By<U::ConvertLitersPerHectareToEnglishFluidOuncesPerAcre>, By<U::ConvertEnglishFluidOuncesPerAcreToLitersPerHectare>},
    {UNITS_FLOZ_PER_HA,      By<U::ConvertLitersToUSFluidOunces>,                       By<U::ConvertUSFluidOuncesToLiters>,
                             By<U::ConvertLitersToEnglishFluidOunces>,                  By<U::ConvertEnglishFluidOuncesToLiters>},
    {UNITS_US_FLOZ_PER_AC,   By<U::ConvertLitersPerHectareToUSFluidOuncesPerAcre>,      By<U::ConvertUSFluidOuncesPerAcreToLitersPerHectare>},
    {UNITS_US_FLOZ_PER_HA,   By<U::ConvertLitersToUSFluidOunces>,                       By<U::ConvertUSFluidOuncesToLiters>},
    {UNITS_M3_PER_HA,        By<U::ConvertLitersPerHectareToCubicMetersPerHectare>,     By<U::ConvertCubicMetersPerHectareToLitersPerHectare>},
    {UNITS_M3_PER_AC,        By<U::ConvertLitersPerHectareToCubicMetersPerAcre>,        By<U::ConvertCubicMetersPerAcreToLitersPerHectare>},
    {UNITS_FT3_PER_HA,       By<U::ConvertLitersToCubicFeet>,                           By<U::ConvertCubicFeetToLiters>},
    {UNITS_FT3_PER_AC,       By<U::ConvertLitersPerHectareToCubicFeetPerAcre>,          By<U::ConvertCubicFeetPerAcreToLitersPerHectare>},
    {UNITS_T_PER_HA,         By<U::ConvertLitersPerHectareToTonnesPerHectare>,          By<U::ConvertTonnesPerHectareToLitersPerHectare>},
    {UNITS_T_PER_AC,         By<U::ConvertLitersPerHectareToTonnesPerAcre>,             By<U::ConvertTonnesPerAcreToLitersPerHectare>},
    {UNITS_GAL_PER_100YD,    By<U::ConvertLitersPerHectareToUSGallonsPer100Yards>,      By<U::ConvertUSGallonsPer100YardsToLitersPerHectare>,
                             By<U::ConvertLitersPerHectareToEnglishGallonsPer100Yards>, By<U::ConvertEnglishGallonsPer100YardsToLitersPerHectare>},
    {UNITS_US_GAL_PER_100YD, By<U::ConvertLitersPerHectareToUSGallonsPer100Yards>,      By<U::ConvertUSGallonsPer100YardsToLitersPerHectare>},
    {UNITS_LB_PER_AC,        By<U::ConvertLitersPerHectareToPoundsPerAcre>,             By<U::ConvertPoundsPerAcreToTonnesPerHectare, U::ConvertTonnesPerHectareToLitersPerHectare>},
    {UNITS_LB_PER_HA,        By<U::ConvertLitersToPounds>,                              By<U::ConvertPoundsToLiters>},
};

constexpr tagHubRow LitersPerMinuteRows[] = {
    {UNITS_GAL_PER_MIN,  By<U::ConvertLitersToUSGallons>,          By<U::ConvertUSGallonsToLiters>,
                         By<U::ConvertLitersToEnglishGallons>,     By<U::ConvertEnglishGallonsToLiters>},
    {UNITS_ML_PER_MIN,   By<U::ConvertLitersToMilliLiters>,        By<U::ConvertMilliLitersToLiters>},
    {UNITS_FLOZ_PER_MIN, By<U::ConvertLitersToUSFluidOunces>,      By<U::ConvertUSFluidOuncesToLiters>,
                         By<U::ConvertLitersToEnglishFluidOunces>, By<U::ConvertEnglishFluidOuncesToLiters>},
    {UNITS_M3_PER_MIN,   By<U::ConvertLitersToCubicMeters>,        By<U::ConvertCubicMetersToLiters>},
    {UNITS_FT3_PER_MIN,  By<U::ConvertLitersToCubicFeet>,          By<U::ConvertCubicFeetToLiters>},
    {UNITS_T_PER_MIN,    By<U::ConvertLitersToTonnes>,             By<U::ConvertTonnesToLiters>},
};

constexpr tagHubRow LitersPerRevRows[] = {
    {UNITS_GAL_PER_REV, By<U::ConvertLitersToUSGallons>,      By<U::ConvertUSGallonsToLiters>,
                        By<U::ConvertLitersToEnglishGallons>, By<U::ConvertEnglishGallonsToLiters>},
};

constexpr tagHubRow KiloPascalsRows[] = {
    {UNITS_PSI, By<U::ConvertKilopascalsToPoundsPerSquareInch>, PsiToKilopascals},
    {UNITS_BAR, By<U::ConvertKilopascalsToBar>,                 By<U::ConvertBarToKilopascals>},
};

constexpr tagHubRow MetersPerPulseRows[] = {
    {UNITS_FT_PER_PULSE, By<U::ConvertMetersToFeet>, By<U::ConvertFeetToMeters>},
};

constexpr tagHubRow PulsesPerLiterRows[] = {
    {UNITS_PULSES_PER_GAL,  By<U::ConvertPulsesPerLiterToPulsesPerUSGallon>,      By<U::ConvertPulsesPerUSGallonToPulsesPerLiter>,
                            By<U::ConvertPulsesPerLiterToPulsesPerEnglishGallon>, By<U::ConvertPulsesPerEnglishGallonToPulsesPerLiter>},
    {UNITS_PULSES_PER_ML,   By<U::ConvertPerLiterToPerMilliLiter>,                By<U::ConvertPerMilliLiterToPerLiter>},
    {UNITS_PULSES_PER_FLOZ, By<U::ConvertPerLiterToPerUSFluidOunce>,              By<U::ConvertPerUSFluidOunceToPerLiter>,
                            By<U::ConvertPerLiterToPerEnglishFluidOunce>,         By<U::ConvertPerEnglishFluidOunceToPerLiter>},
    {UNITS_PULSES_PER_M3,   By<U::ConvertPulsesPerLiterToPulsesPerCubicMeter>,    By<U::ConvertPulsesPerCubicMeterToPulsesPerLiter>},
    {UNITS_PULSES_PER_FT3,  By<U::ConvertPulsesPerLiterToPulsesPerCubicMeter, U::ConvertPulsesPerCubicMeterToPulsesPerCubicFeet>,
                            By<U::ConvertPulsesPerCubicFootToPulsesPerCubicMeter, U::ConvertPulsesPerCubicMeterToPulsesPerLiter>},
    {UNITS_PULSES_PER_T,    By<U::ConvertPulsesPerLiterToPulsesPerTonne>,         By<U::ConvertPulsesPerTonneToPulsesPerLiter>},
    {UNITS_PULSES_PER_LB,   By<U::ConvertPulsesPerLiterToPulsesPerTonne, U::ConvertPulsesPerTonneToPulsesPerPound>,
                            By<U::ConvertPulsesPerPoundToPulsesPerTonne, U::ConvertPulsesPerTonneToPulsesPerLiter>},
};

constexpr tagHubRow KilogramRows[] = {
    {UNITS_LB,           By<U::ConvertKilogramsToPounds>, By<U::ConvertPoundsToKilograms>},
    {UNITS_LB_N,         By<U::ConvertKilogramsToPounds>, By<U::ConvertPoundsToKilograms>},
    {UNITS_LB_PER_MIN,   By<U::ConvertKilogramsToPounds>, By<U::ConvertPoundsToKilograms>},
    {UNITS_LB_N_PER_MIN, By<U::ConvertKilogramsToPounds>, By<U::ConvertPoundsToKilograms>},
    {UNITS_LB_PER_REV,   By<U::ConvertKilogramsToPounds>, By<U::ConvertPoundsToKilograms>},
};

constexpr tagHubRow KilogramsPerHectareRows[] = {
    {UNITS_KG_PER_AC,     By<U::ConvertPerHectareToPerAcre>,                By<U::ConvertPerAcreToPerHectare>},
    {UNITS_KG_N_PER_AC,   By<U::ConvertPerHectareToPerAcre>,                By<U::ConvertPerAcreToPerHectare>},
    {UNITS_KSEEDS_PER_AC, By<U::ConvertPerHectareToPerAcre>,                By<U::ConvertPerAcreToPerHectare>},
    {UNITS_LB_PER_HA,     By<U::ConvertKilogramsToPounds>,                  By<U::ConvertPoundsToKilograms>},
    {UNITS_LB_N_PER_HA,   By<U::ConvertKilogramsToPounds>,                  By<U::ConvertPoundsToKilograms>},
    {UNITS_LB_PER_AC,     By<U::ConvertKilogramsPerHectareToPoundsPerAcre>, By<U::ConvertPoundsPerAcreToKilogramsPerHectare>},
    {UNITS_LB_N_PER_AC,   By<U::ConvertKilogramsPerHectareToPoundsPerAcre>, By<U::ConvertPoundsPerAcreToKilogramsPerHectare>},
};

constexpr tagHubRow KilogramsPerLiterRows[] = {
    {UNITS_LB_PER_GAL,   By<U::ConvertKilogramsPerLiterToPoundsPerUSGallon>,     By<U::ConvertPoundsPerUSGallonToKilogramsPerLiter>,
                         By<U::ConvertKilogramsPerLiterToPoundsPerGallon>,       By<U::ConvertPoundsPerGallonToKilogramsPerLiter>},
    {UNITS_KG_PER_M3,    By<U::ConvertKilogramsPerLiterToKilogramsPerCubicMeter>, By<U::ConvertKilogramsPerCubicMeterToKilogramsPerLiter>},
    {UNITS_LB_PER_FT3,   By<U::ConvertKilogramsPerLiterToPoundsPerCubicFoot>,    By<U::ConvertPoundsPerCubicFootToKilogramsPerCubicMeter, U::ConvertKilogramsPerCubicMeterToKilogramsPerLiter>},
    {UNITS_KG_PER_US_BU, By<U::ConvertKilogramsPerLiterToKilogramsPerUSBushel>,  By<U::ConvertKilogramsPerUSBushelToKilogramsPerLiter>},
    {UNITS_KG_PER_UK_BU, By<U::ConvertKilogramsPerLiterToKilogramsPerUKBushel>,  By<U::ConvertKilogramsPerUKBushelToKilogramsPerLiter>},
    {UNITS_LB_PER_US_BU, By<U::ConvertKilogramsPerLiterToPoundsPerUSBushel>,     By<U::ConvertPoundsToKilograms, U::ConvertKilogramsPerUSBushelToKilogramsPerLiter>},
    {UNITS_LB_PER_UK_BU, By<U::ConvertKilogramsPerLiterToPoundsPerUKBushel>,     By<U::ConvertPoundsToKilograms, U::ConvertKilogramsPerUKBushelToKilogramsPerLiter>},
};

/// Counts per weight: the smaller the weight, the smaller the count.
constexpr tagHubRow PulsesPerKilogramNitrogenRows[] = {
    {UNITS_PULSES_PER_LB_N, By<U::ConvertPoundsToKilograms>, By<U::ConvertKilogramsToPounds>},
};
// clang-format on

/// The row's conversion in the direction of @p us and @p english, as the measures in use resolve the unit; null when
/// they leave the value alone.
TConversion Resolve(const tagHubRow& row, TConversion us, TConversion english)
{
    if (!row.outEnglish)
        return us;
    if (UnitSystem::IsMetric())
        return nullptr; // no gallons in the metric system
    return UnitSystem::IsUS() ? us : english;
}

template <std::size_t Count>
const tagHubRow* Find(const tagHubRow (&rows)[Count], EUnitsType unit)
{
    for (const tagHubRow& row : rows) {
        if (row.unit == unit)
            return &row;
    }
    return nullptr;
}

template <std::size_t Count>
double Out(const tagHubRow (&rows)[Count], double value, EUnitsType to)
{
    const tagHubRow* const row = Find(rows, to);
    const TConversion conversion = row ? Resolve(*row, row->out, row->outEnglish) : nullptr;
    return conversion ? conversion(value) : value;
}

template <std::size_t Count>
double In(const tagHubRow (&rows)[Count], double value, EUnitsType from)
{
    const tagHubRow* const row = Find(rows, from);
    const TConversion conversion = row ? Resolve(*row, row->in, row->inEnglish) : nullptr;
    return conversion ? conversion(value) : value;
}

} // namespace

double TUnits::ConvertFromMeter(double value, EUnitsType to) { return Out(MeterRows, value, to); }
double TUnits::ConvertToMeter(double value, EUnitsType from) { return In(MeterRows, value, from); }

double TUnits::ConvertFromHectare(double value, EUnitsType to) { return Out(HectareRows, value, to); }
double TUnits::ConvertToHectare(double value, EUnitsType from) { return In(HectareRows, value, from); }

double TUnits::ConvertFromMetersPerMin(double value, EUnitsType to) { return Out(MetersPerMinRows, value, to); }
double TUnits::ConvertToMetersPerMin(double value, EUnitsType from) { return In(MetersPerMinRows, value, from); }

double TUnits::ConvertFromMetersPerSecond(double value, EUnitsType to) { return Out(MetersPerSecondRows, value, to); }
double TUnits::ConvertToMetersPerSecond(double value, EUnitsType from) { return In(MetersPerSecondRows, value, from); }

double TUnits::ConvertFromPulsesPerKilometerPerHour(double value, EUnitsType to)
{
    return Out(PulsesPerKilometerPerHourRows, value, to);
}
double TUnits::ConvertToPulsesPerKilometerPerHour(double value, EUnitsType from)
{
    return In(PulsesPerKilometerPerHourRows, value, from);
}

double TUnits::ConvertFromLiter(double value, EUnitsType to) { return Out(LiterRows, value, to); }
double TUnits::ConvertToLiter(double value, EUnitsType from) { return In(LiterRows, value, from); }

double TUnits::ConvertFromLitersPerHectare(double value, EUnitsType to) { return Out(LitersPerHectareRows, value, to); }
double TUnits::ConvertToLitersPerHectare(double value, EUnitsType from)
{
    return In(LitersPerHectareRows, value, from);
}

double TUnits::ConvertFromLitersPerMinute(double value, EUnitsType to) { return Out(LitersPerMinuteRows, value, to); }
double TUnits::ConvertToLitersPerMinute(double value, EUnitsType from) { return In(LitersPerMinuteRows, value, from); }

double TUnits::ConvertFromLitersPerRev(double value, EUnitsType to) { return Out(LitersPerRevRows, value, to); }
double TUnits::ConvertToLitersPerRev(double value, EUnitsType from) { return In(LitersPerRevRows, value, from); }

double TUnits::ConvertFromKiloPascals(double value, EUnitsType to) { return Out(KiloPascalsRows, value, to); }
double TUnits::ConvertToKiloPascals(double value, EUnitsType from) { return In(KiloPascalsRows, value, from); }

double TUnits::ConvertFromMetersPerPulse(double value, EUnitsType to) { return Out(MetersPerPulseRows, value, to); }
double TUnits::ConvertToMetersPerPulse(double value, EUnitsType from) { return In(MetersPerPulseRows, value, from); }

double TUnits::ConvertFromPulsesPerLiter(double value, EUnitsType to) { return Out(PulsesPerLiterRows, value, to); }
double TUnits::ConvertToPulsesPerLiter(double value, EUnitsType from) { return In(PulsesPerLiterRows, value, from); }

double TUnits::ConvertFromKilogram(double value, EUnitsType to) { return Out(KilogramRows, value, to); }
double TUnits::ConvertToKilogram(double value, EUnitsType from) { return In(KilogramRows, value, from); }

double TUnits::ConvertFromKilogramsPerHectare(double value, EUnitsType to)
{
    return Out(KilogramsPerHectareRows, value, to);
}
double TUnits::ConvertToKilogramsPerHectare(double value, EUnitsType from)
{
    return In(KilogramsPerHectareRows, value, from);
}

double TUnits::ConvertFromKilogramsPerLiter(double value, EUnitsType to)
{
    return Out(KilogramsPerLiterRows, value, to);
}
double TUnits::ConvertToKilogramsPerLiter(double value, EUnitsType from)
{
    return In(KilogramsPerLiterRows, value, from);
}

double TUnits::ConvertFromPulsesPerKilogramNitrogen(double value, EUnitsType to)
{
    return Out(PulsesPerKilogramNitrogenRows, value, to);
}
double TUnits::ConvertToPulsesPerKilogramNitrogen(double value, EUnitsType from)
{
    return In(PulsesPerKilogramNitrogenRows, value, from);
}

// Areas per hour have never been converted here, and recorded productivities rely on it.
double TUnits::ConvertFromHectaresPerHour(double value, EUnitsType) { return value; }
double TUnits::ConvertToHectaresPerHour(double value, EUnitsType) { return value; }

namespace {

using THubConversion = double (*)(double value, EUnitsType unit);

struct tagHub
{
    EUnitsType hub;
    THubConversion from;
    THubConversion to;
    const tagHubRow* rows;
    std::size_t rowCount;
};

template <std::size_t Count>
constexpr tagHub Hub(EUnitsType hub, THubConversion from, THubConversion to, const tagHubRow (&rows)[Count])
{
    return {hub, from, to, rows, Count};
}

// clang-format off
constexpr tagHub Hubs[] = {
    Hub(UNITS_METERS,             U::ConvertFromMeter,                     U::ConvertToMeter,                     MeterRows),
    Hub(UNITS_HECTARES,           U::ConvertFromHectare,                   U::ConvertToHectare,                   HectareRows),
    Hub(UNITS_METERS_PER_MIN,     U::ConvertFromMetersPerMin,              U::ConvertToMetersPerMin,              MetersPerMinRows),
    Hub(UNITS_METERS_PER_SECOND,  U::ConvertFromMetersPerSecond,           U::ConvertToMetersPerSecond,           MetersPerSecondRows),
    Hub(UNITS_HZ_PER_KPH,         U::ConvertFromPulsesPerKilometerPerHour, U::ConvertToPulsesPerKilometerPerHour, PulsesPerKilometerPerHourRows),
    {UNITS_HECTARES_PER_HOUR,      U::ConvertFromHectaresPerHour,       U::ConvertToHectaresPerHour,       nullptr, 0},
    Hub(UNITS_LITERS,             U::ConvertFromLiter,                     U::ConvertToLiter,                     LiterRows),
    Hub(UNITS_L_PER_HA,           U::ConvertFromLitersPerHectare,          U::ConvertToLitersPerHectare,          LitersPerHectareRows),
    Hub(UNITS_L_PER_MIN,          U::ConvertFromLitersPerMinute,           U::ConvertToLitersPerMinute,           LitersPerMinuteRows),
    Hub(UNITS_L_PER_REV,          U::ConvertFromLitersPerRev,              U::ConvertToLitersPerRev,              LitersPerRevRows),
    Hub(UNITS_KPA,                U::ConvertFromKiloPascals,               U::ConvertToKiloPascals,               KiloPascalsRows),
    Hub(UNITS_M_PER_PULSE,        U::ConvertFromMetersPerPulse,            U::ConvertToMetersPerPulse,            MetersPerPulseRows),
    Hub(UNITS_PULSES_PER_L,       U::ConvertFromPulsesPerLiter,            U::ConvertToPulsesPerLiter,            PulsesPerLiterRows),
    Hub(UNITS_KG,                 U::ConvertFromKilogram,                  U::ConvertToKilogram,                  KilogramRows),
    Hub(UNITS_KG_N,               U::ConvertFromKilogram,                  U::ConvertToKilogram,                  KilogramRows),
    Hub(UNITS_KG_PER_MIN,         U::ConvertFromKilogram,                  U::ConvertToKilogram,                  KilogramRows),
    Hub(UNITS_KG_N_PER_MIN,       U::ConvertFromKilogram,                  U::ConvertToKilogram,                  KilogramRows),
    Hub(UNITS_KG_PER_REV,         U::ConvertFromKilogram,                  U::ConvertToKilogram,                  KilogramRows),
    Hub(UNITS_KG_PER_HA,          U::ConvertFromKilogramsPerHectare,       U::ConvertToKilogramsPerHectare,       KilogramsPerHectareRows),
    Hub(UNITS_KG_N_PER_HA,        U::ConvertFromKilogramsPerHectare,       U::ConvertToKilogramsPerHectare,       KilogramsPerHectareRows),
    Hub(UNITS_KSEEDS_PER_HA,      U::ConvertFromKilogramsPerHectare,       U::ConvertToKilogramsPerHectare,       KilogramsPerHectareRows),
    Hub(UNITS_KG_PER_L,           U::ConvertFromKilogramsPerLiter,         U::ConvertToKilogramsPerLiter,         KilogramsPerLiterRows),
    Hub(UNITS_PULSES_PER_KG_N,    U::ConvertFromPulsesPerKilogramNitrogen, U::ConvertToPulsesPerKilogramNitrogen, PulsesPerKilogramNitrogenRows),
};
// clang-format on

const tagHub* FindHub(EUnitsType unit)
{
    for (const tagHub& hub : Hubs) {
        if (hub.hub == unit)
            return &hub;
    }
    return nullptr;
}

/// Whether the hub converts @p unit under the measures in use.
bool Converts(const tagHub& hub, EUnitsType unit)
{
    for (std::size_t i = 0; i < hub.rowCount; ++i) {
        const tagHubRow& row = hub.rows[i];
        if (row.unit == unit)
            return Resolve(row, row.out, row.outEnglish) != nullptr;
    }
    return false;
}

} // namespace

double TUnits::ConvertUnit(double value, EUnitsType from, EUnitsType to)
{
    if (from == to)
        return value;
    if (const tagHub* const hub = FindHub(from))
        return hub->from(value, to);
    if (const tagHub* const hub = FindHub(to))
        return hub->to(value, from);
    return value;
}

bool TUnits::CanConvert(EUnitsType from, EUnitsType to)
{
    if (from == to)
        return true;
    if (const tagHub* const hub = FindHub(from))
        return Converts(*hub, to);
    const tagHub* const hub = FindHub(to);
    return hub && Converts(*hub, from);
}
