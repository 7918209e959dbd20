// The hub of a quantity is the unit in which the host stores it. Each hub has a table of the units that it converts to
// and from; a value in any other unit is handed back as it is.

#include "units/TUnits.h"

#include "units/NumberText.h"
#include "units/Routes.h"
#include "units/UnitSystem.h"
#include "units/UnitTable.h"

#include <cstddef>

namespace {

using namespace UnitFactors;
using NumberText::Stored;
using Routes::By;
using Routes::TConversion;
using Routes::Unchanged;

/// By a factor where one is all it takes, so that most conversions are data; by a function otherwise.
struct tagConversion
{
    constexpr tagConversion(tagFactor aFactor) : factor(aFactor) {}
    constexpr tagConversion(TConversion aRoute = Unchanged, bool onlyImperial = false)
        : route(aRoute), isImperial(onlyImperial)
    {}

    double operator()(double value) const
    {
        if (route)
            return route(value);
        // Products too: a branch that spares them the division is mispredicted, which costs more.
        return Narrow(Widen(static_cast<float>(value)) * Wide(factor.times) / Wide(factor.over));
    }

    tagFactor factor = Times(1.0f);
    TConversion route = nullptr;
    bool isImperial = false; ///< the metric system has no such unit, and leaves the value alone
};

template <TConversion US, TConversion English>
double ByMeasures(double value)
{
    if (UnitSystem::IsMetric())
        return value;
    return UnitSystem::IsUS() ? US(value) : English(value);
}

/// Gallons and fluid ounces leave open whose they are: the measures in use tell.
template <TConversion US, TConversion English>
constexpr tagConversion Imperial = {ByMeasures<US, English>, true};

struct tagHubRow
{
    EUnitsType unit;
    tagConversion out;
    tagConversion in;
};

// Ways that no factor function goes. Their divisors are those of recorded data: two of them shorter than the factors of
// the way out.
double KilometersToMeters(double value) { return Narrow(Wide(Stored(value)) / Wide(KilometersPerMeter)); }
double KphToMetersPerSecond(double value) { return value / 3.6; }
double MphToMetersPerSecond(double value) { return Narrow(Wide(Stored(value)) / Wide(MphPerMeterPerSecond)); }
double PsiToKilopascals(double value) { return value / 0.14504; }

using U = TUnits;

// clang-format off
constexpr tagHubRow MeterRows[] = {
    {UNITS_KILOMETERS,  MetersToKilometers,  {KilometersToMeters}},
    {UNITS_CENTIMETERS, MetersToCentimeters, CentimetersToMeters},
    {UNITS_MILLIMETERS, MetersToMillimeters, MillimetersToMeters},
    {UNITS_FEET,        MetersToFeet,        FeetToMeters},
    {UNITS_MILES,       MetersToMiles,       MilesToMeters},
    {UNITS_INCHES,      MetersToInches,      InchesToMeters},
};

constexpr tagHubRow HectareRows[] = {
    {UNITS_ACRES, HectaresToAcres, AcresToHectares},
};

constexpr tagHubRow MetersPerMinRows[] = {
    {UNITS_FEET_PER_MIN, MetersToFeet, FeetToMeters},
};

constexpr tagHubRow MetersPerSecondRows[] = {
    {UNITS_KPH, MetersPerSecondToKilometersPerHour, {KphToMetersPerSecond}},
    {UNITS_MPH, MetersPerSecondToMilesPerHour,      {MphToMetersPerSecond}},
};

constexpr tagHubRow PulsesPerKilometerPerHourRows[] = {
    {UNITS_HZ_PER_MPH, PulsesPerKPHToPulsesPerMPH, PulsesPerMPHToPulsesPerKPH},
};

constexpr tagHubRow LiterRows[] = {
    {UNITS_GALLONS,      Imperial<By<U::ConvertLitersToUSGallons>, By<U::ConvertLitersToEnglishGallons>>,
                         Imperial<By<U::ConvertUSGallonsToLiters>, By<U::ConvertEnglishGallonsToLiters>>},
    {UNITS_MILLILITERS,  LitersToMilliLiters,            MilliLitersToLiters},
    {UNITS_FLUID_OUNCES, Imperial<By<U::ConvertLitersToUSFluidOunces>, By<U::ConvertLitersToEnglishFluidOunces>>,
                         Imperial<By<U::ConvertUSFluidOuncesToLiters>, By<U::ConvertEnglishFluidOuncesToLiters>>},
    {UNITS_CUBIC_METERS, LitersToCubicMeters,            CubicMetersToLiters},
    {UNITS_CUBIC_FEET,   LitersToCubicFeet,              CubicFeetToLiters},
    {UNITS_TONNES,       LitersToTonnes,                 TonnesToLiters},
    {UNITS_US_BUSHELS,   LitersToUSBushels,              USBushelsToLiters},
    {UNITS_UK_BUSHELS,   LitersToUKBushels,              UKBushelsToLiters},
    {UNITS_LB,           {By<U::ConvertLitersToPounds>}, {By<U::ConvertPoundsToLiters>}},
};

constexpr tagHubRow LitersPerHectareRows[] = {
    {UNITS_L_PER_AC,         PerHectareToPerAcre,                                    PerAcreToPerHectare},
    {UNITS_ML_PER_HA,        LitersToMilliLiters,                                    MilliLitersToLiters},
    {UNITS_ML_PER_AC,        {By<U::ConvertLitersPerHectareToMilliLitersPerAcre>},   MilliLitersPerAcreToLitersPerHectare},
    {UNITS_GAL_PER_HA,       Imperial<By<U::ConvertLitersToUSGallons>, By<U::ConvertLitersToEnglishGallons>>,
                             Imperial<By<U::ConvertUSGallonsToLiters>, By<U::ConvertEnglishGallonsToLiters>>},
    {UNITS_GAL_PER_AC,       Imperial<By<U::ConvertLitersPerHectareToUSGallonsPerAcre>, By<U::ConvertLitersPerHectareToEnglishGallonsPerAcre>>,
                             Imperial<By<U::ConvertUSGallonsPerAcreToLitersPerHectare>, By<U::ConvertEnglishGallonsPerAcreToLitersPerHectare>>},
    {UNITS_US_GAL_PER_HA,    LitersToUSGallons,                                      USGallonsToLiters},
    {UNITS_US_GAL_PER_AC,    LitersPerHectareToUSGallonsPerAcre,                     USGallonsPerAcreToLitersPerHectare},
    {UNITS_FLOZ_PER_AC,      Imperial<By<U::ConvertLitersPerHectareToUSFluidOuncesPerAcre>, By<U::ConvertLitersPerHectareToEnglishFluidOuncesPerAcre>>,
                             Imperial<By<U::ConvertUSFluidOuncesPerAcreToLitersPerHectare>, By<U::ConvertEnglishFluidOuncesPerAcreToLitersPerHectare>>},
    {UNITS_FLOZ_PER_HA,      Imperial<By<U::ConvertLitersToUSFluidOunces>, By<U::ConvertLitersToEnglishFluidOunces>>,
                             Imperial<By<U::ConvertUSFluidOuncesToLiters>, By<U::ConvertEnglishFluidOuncesToLiters>>},
    {UNITS_US_FLOZ_PER_AC,   {By<U::ConvertLitersPerHectareToUSFluidOuncesPerAcre>},
                             {By<U::ConvertUSFluidOuncesPerAcreToLitersPerHectare>}},
    {UNITS_US_FLOZ_PER_HA,   LitersToUSFluidOunces,                                  USFluidOuncesToLiters},
    {UNITS_M3_PER_HA,        LitersPerHectareToCubicMetersPerHectare,                CubicMetersPerHectareToLitersPerHectare},
    {UNITS_M3_PER_AC,        LitersPerHectareToCubicMetersPerAcre,
                             {By<U::ConvertCubicMetersPerAcreToLitersPerHectare>}},
    {UNITS_FT3_PER_HA,       LitersToCubicFeet,                                      CubicFeetToLiters},
    {UNITS_FT3_PER_AC,       {By<U::ConvertLitersPerHectareToCubicFeetPerAcre>},     CubicFeetPerAcreToLitersPerHectare},
    {UNITS_T_PER_HA,         LitersPerHectareToTonnesPerHectare,                     TonnesPerHectareToLitersPerHectare},
    {UNITS_T_PER_AC,         LitersPerHectareToTonnesPerAcre,
                             {By<U::ConvertTonnesPerAcreToLitersPerHectare>}},
    {UNITS_GAL_PER_100YD,    Imperial<By<U::ConvertLitersPerHectareToUSGallonsPer100Yards>, By<U::ConvertLitersPerHectareToEnglishGallonsPer100Yards>>,
                             Imperial<By<U::ConvertUSGallonsPer100YardsToLitersPerHectare>, By<U::ConvertEnglishGallonsPer100YardsToLitersPerHectare>>},
    {UNITS_US_GAL_PER_100YD, LitersPerHectareToUSGallonsPer100Yards,                 USGallonsPer100YardsToLitersPerHectare},
    {UNITS_LB_PER_AC,        {By<U::ConvertLitersPerHectareToPoundsPerAcre>},
                             {By<U::ConvertPoundsPerAcreToTonnesPerHectare, U::ConvertTonnesPerHectareToLitersPerHectare>}},
    {UNITS_LB_PER_HA,        {By<U::ConvertLitersToPounds>},                         {By<U::ConvertPoundsToLiters>}},
};

constexpr tagHubRow LitersPerMinuteRows[] = {
    {UNITS_GAL_PER_MIN,  Imperial<By<U::ConvertLitersToUSGallons>, By<U::ConvertLitersToEnglishGallons>>,
                         Imperial<By<U::ConvertUSGallonsToLiters>, By<U::ConvertEnglishGallonsToLiters>>},
    {UNITS_ML_PER_MIN,   LitersToMilliLiters, MilliLitersToLiters},
    {UNITS_FLOZ_PER_MIN, Imperial<By<U::ConvertLitersToUSFluidOunces>, By<U::ConvertLitersToEnglishFluidOunces>>,
                         Imperial<By<U::ConvertUSFluidOuncesToLiters>, By<U::ConvertEnglishFluidOuncesToLiters>>},
    {UNITS_M3_PER_MIN,   LitersToCubicMeters, CubicMetersToLiters},
    {UNITS_FT3_PER_MIN,  LitersToCubicFeet,   CubicFeetToLiters},
    {UNITS_T_PER_MIN,    LitersToTonnes,      TonnesToLiters},
};

constexpr tagHubRow LitersPerRevRows[] = {
    {UNITS_GAL_PER_REV, Imperial<By<U::ConvertLitersToUSGallons>, By<U::ConvertLitersToEnglishGallons>>,
                        Imperial<By<U::ConvertUSGallonsToLiters>, By<U::ConvertEnglishGallonsToLiters>>},
};

constexpr tagHubRow KiloPascalsRows[] = {
    {UNITS_PSI, KilopascalsToPoundsPerSquareInch, {PsiToKilopascals}},
    {UNITS_BAR, KilopascalsToBar,                 BarToKilopascals},
};

constexpr tagHubRow MetersPerPulseRows[] = {
    {UNITS_FT_PER_PULSE, MetersToFeet, FeetToMeters},
};

constexpr tagHubRow PulsesPerLiterRows[] = {
    {UNITS_PULSES_PER_GAL,  Imperial<By<U::ConvertPulsesPerLiterToPulsesPerUSGallon>, By<U::ConvertPulsesPerLiterToPulsesPerEnglishGallon>>,
                            Imperial<By<U::ConvertPulsesPerUSGallonToPulsesPerLiter>, By<U::ConvertPulsesPerEnglishGallonToPulsesPerLiter>>},
    {UNITS_PULSES_PER_ML,   PerLiterToPerMilliLiter,             PerMilliLiterToPerLiter},
    {UNITS_PULSES_PER_FLOZ, Imperial<By<U::ConvertPerLiterToPerUSFluidOunce>, By<U::ConvertPerLiterToPerEnglishFluidOunce>>,
                            Imperial<By<U::ConvertPerUSFluidOunceToPerLiter>, By<U::ConvertPerEnglishFluidOunceToPerLiter>>},
    {UNITS_PULSES_PER_M3,   PulsesPerLiterToPulsesPerCubicMeter, PulsesPerCubicMeterToPulsesPerLiter},
    {UNITS_PULSES_PER_FT3,  {By<U::ConvertPulsesPerLiterToPulsesPerCubicMeter, U::ConvertPulsesPerCubicMeterToPulsesPerCubicFeet>},
                            {By<U::ConvertPulsesPerCubicFootToPulsesPerCubicMeter, U::ConvertPulsesPerCubicMeterToPulsesPerLiter>}},
    {UNITS_PULSES_PER_T,    PulsesPerLiterToPulsesPerTonne,      PulsesPerTonneToPulsesPerLiter},
    {UNITS_PULSES_PER_LB,   {By<U::ConvertPulsesPerLiterToPulsesPerTonne, U::ConvertPulsesPerTonneToPulsesPerPound>},
                            {By<U::ConvertPulsesPerPoundToPulsesPerTonne, U::ConvertPulsesPerTonneToPulsesPerLiter>}},
};

constexpr tagHubRow KilogramRows[] = {
    {UNITS_LB,           KilogramsToPounds, PoundsToKilograms},
    {UNITS_LB_N,         KilogramsToPounds, PoundsToKilograms},
    {UNITS_LB_PER_MIN,   KilogramsToPounds, PoundsToKilograms},
    {UNITS_LB_N_PER_MIN, KilogramsToPounds, PoundsToKilograms},
    {UNITS_LB_PER_REV,   KilogramsToPounds, PoundsToKilograms},
};

constexpr tagHubRow KilogramsPerHectareRows[] = {
    {UNITS_KG_PER_AC,     PerHectareToPerAcre,                PerAcreToPerHectare},
    {UNITS_KG_N_PER_AC,   PerHectareToPerAcre,                PerAcreToPerHectare},
    {UNITS_KSEEDS_PER_AC, PerHectareToPerAcre,                PerAcreToPerHectare},
    {UNITS_LB_PER_HA,     KilogramsToPounds,                  PoundsToKilograms},
    {UNITS_LB_N_PER_HA,   KilogramsToPounds,                  PoundsToKilograms},
    {UNITS_LB_PER_AC,     KilogramsPerHectareToPoundsPerAcre, PoundsPerAcreToKilogramsPerHectare},
    {UNITS_LB_N_PER_AC,   KilogramsPerHectareToPoundsPerAcre, PoundsPerAcreToKilogramsPerHectare},
};

constexpr tagHubRow KilogramsPerLiterRows[] = {
    {UNITS_LB_PER_GAL,   Imperial<By<U::ConvertKilogramsPerLiterToPoundsPerUSGallon>, By<U::ConvertKilogramsPerLiterToPoundsPerGallon>>,
                         Imperial<By<U::ConvertPoundsPerUSGallonToKilogramsPerLiter>, By<U::ConvertPoundsPerGallonToKilogramsPerLiter>>},
    {UNITS_KG_PER_M3,    KilogramsPerLiterToKilogramsPerCubicMeter,            KilogramsPerCubicMeterToKilogramsPerLiter},
    {UNITS_LB_PER_FT3,   KilogramsPerLiterToPoundsPerCubicFoot,
                         {By<U::ConvertPoundsPerCubicFootToKilogramsPerCubicMeter, U::ConvertKilogramsPerCubicMeterToKilogramsPerLiter>}},
    {UNITS_KG_PER_US_BU, KilogramsPerLiterToKilogramsPerUSBushel,              KilogramsPerUSBushelToKilogramsPerLiter},
    {UNITS_KG_PER_UK_BU, KilogramsPerLiterToKilogramsPerUKBushel,              KilogramsPerUKBushelToKilogramsPerLiter},
    {UNITS_LB_PER_US_BU, {By<U::ConvertKilogramsPerLiterToPoundsPerUSBushel>},
                         {By<U::ConvertPoundsToKilograms, U::ConvertKilogramsPerUSBushelToKilogramsPerLiter>}},
    {UNITS_LB_PER_UK_BU, {By<U::ConvertKilogramsPerLiterToPoundsPerUKBushel>},
                         {By<U::ConvertPoundsToKilograms, U::ConvertKilogramsPerUKBushelToKilogramsPerLiter>}},
};

/// Counts per weight: the smaller the weight, the smaller the count.
constexpr tagHubRow PulsesPerKilogramNitrogenRows[] = {
    {UNITS_PULSES_PER_LB_N, PoundsToKilograms, KilogramsToPounds},
};
// clang-format on

constexpr std::size_t MostHubs = 5;

/// Quantities that convert in the same way, each with a hub of its own.
struct tagQuantity
{
    const tagHubRow* rows;
    std::size_t rowCount;
    EUnitsType hubs[MostHubs]; ///< up to UNITS_NONE
};

template <std::size_t Count, class... Hub>
constexpr tagQuantity Quantity(const tagHubRow (&rows)[Count], Hub... hubs)
{
    return {rows, Count, {hubs...}};
}

// Areas per hour are not among them: they have never been converted, and recorded productivities rely on it.
constexpr tagQuantity Quantities[] = {
    Quantity(MeterRows, UNITS_METERS),
    Quantity(HectareRows, UNITS_HECTARES),
    Quantity(MetersPerMinRows, UNITS_METERS_PER_MIN),
    Quantity(MetersPerSecondRows, UNITS_METERS_PER_SECOND),
    Quantity(PulsesPerKilometerPerHourRows, UNITS_HZ_PER_KPH),
    Quantity(LiterRows, UNITS_LITERS),
    Quantity(LitersPerHectareRows, UNITS_L_PER_HA),
    Quantity(LitersPerMinuteRows, UNITS_L_PER_MIN),
    Quantity(LitersPerRevRows, UNITS_L_PER_REV),
    Quantity(KiloPascalsRows, UNITS_KPA),
    Quantity(MetersPerPulseRows, UNITS_M_PER_PULSE),
    Quantity(PulsesPerLiterRows, UNITS_PULSES_PER_L),
    Quantity(KilogramRows, UNITS_KG, UNITS_KG_N, UNITS_KG_PER_MIN, UNITS_KG_N_PER_MIN, UNITS_KG_PER_REV),
    Quantity(KilogramsPerHectareRows, UNITS_KG_PER_HA, UNITS_KG_N_PER_HA, UNITS_KSEEDS_PER_HA),
    Quantity(KilogramsPerLiterRows, UNITS_KG_PER_L),
    Quantity(PulsesPerKilogramNitrogenRows, UNITS_PULSES_PER_KG_N),
};

constexpr std::size_t CountConversions()
{
    std::size_t count = 1;
    for (const tagQuantity& quantity : Quantities)
        count += 2 * quantity.rowCount;
    return count;
}

static_assert(CountConversions() <= 256, "the ways are numbered by a byte");

/// The tables above, laid out by pairs of units so that the way from one to another is found at once.
class TMap
{
public:
    constexpr TMap()
    {
        std::size_t next = 1; // the first one leaves the value as it is
        for (const tagQuantity& quantity : Quantities) {
            for (std::size_t i = 0; i < quantity.rowCount; ++i) {
                const tagHubRow& row = quantity.rows[i];
                m_Conversions[next] = row.out;
                m_Conversions[next + 1] = row.in;
                for (const EUnitsType hub : quantity.hubs) {
                    if (hub == UNITS_NONE)
                        break;
                    m_Ways[hub][row.unit] = static_cast<unsigned char>(next);
                    m_Ways[row.unit][hub] = static_cast<unsigned char>(next + 1);
                }
                next += 2;
            }
        }
    }

    /// Leaves the value as it is where there is no way, and for numbers that are no unit.
    constexpr const tagConversion& operator()(EUnitsType from, EUnitsType to) const
    {
        const auto row = static_cast<unsigned>(from);
        const auto column = static_cast<unsigned>(to);
        return m_Conversions[(row | column) < Side ? m_Ways[row][column] : 0];
    }

private:
    tagConversion m_Conversions[CountConversions()] = {};
    /// A power of two, so that one look tells whether both numbers are below it.
    static constexpr unsigned Side = 128;
    static_assert(UnitCount <= Side, "each unit has its row");

    unsigned char m_Ways[Side][Side] = {}; ///< from, to; an index into the conversions
};

constexpr TMap Conversion;

double Convert(double value, EUnitsType from, EUnitsType to) { return Conversion(from, to)(value); }

} // namespace

double TUnits::ConvertFromMeter(double value, EUnitsType to) { return Convert(value, UNITS_METERS, to); }
double TUnits::ConvertToMeter(double value, EUnitsType from) { return Convert(value, from, UNITS_METERS); }

double TUnits::ConvertFromHectare(double value, EUnitsType to) { return Convert(value, UNITS_HECTARES, to); }
double TUnits::ConvertToHectare(double value, EUnitsType from) { return Convert(value, from, UNITS_HECTARES); }

double TUnits::ConvertFromMetersPerMin(double value, EUnitsType to) { return Convert(value, UNITS_METERS_PER_MIN, to); }
double TUnits::ConvertToMetersPerMin(double value, EUnitsType from)
{
    return Convert(value, from, UNITS_METERS_PER_MIN);
}

double TUnits::ConvertFromMetersPerSecond(double value, EUnitsType to)
{
    return Convert(value, UNITS_METERS_PER_SECOND, to);
}
double TUnits::ConvertToMetersPerSecond(double value, EUnitsType from)
{
    return Convert(value, from, UNITS_METERS_PER_SECOND);
}

double TUnits::ConvertFromPulsesPerKilometerPerHour(double value, EUnitsType to)
{
    return Convert(value, UNITS_HZ_PER_KPH, to);
}
double TUnits::ConvertToPulsesPerKilometerPerHour(double value, EUnitsType from)
{
    return Convert(value, from, UNITS_HZ_PER_KPH);
}

double TUnits::ConvertFromLiter(double value, EUnitsType to) { return Convert(value, UNITS_LITERS, to); }
double TUnits::ConvertToLiter(double value, EUnitsType from) { return Convert(value, from, UNITS_LITERS); }

double TUnits::ConvertFromLitersPerHectare(double value, EUnitsType to) { return Convert(value, UNITS_L_PER_HA, to); }
double TUnits::ConvertToLitersPerHectare(double value, EUnitsType from) { return Convert(value, from, UNITS_L_PER_HA); }

double TUnits::ConvertFromLitersPerMinute(double value, EUnitsType to) { return Convert(value, UNITS_L_PER_MIN, to); }
double TUnits::ConvertToLitersPerMinute(double value, EUnitsType from) { return Convert(value, from, UNITS_L_PER_MIN); }

double TUnits::ConvertFromLitersPerRev(double value, EUnitsType to) { return Convert(value, UNITS_L_PER_REV, to); }
double TUnits::ConvertToLitersPerRev(double value, EUnitsType from) { return Convert(value, from, UNITS_L_PER_REV); }

double TUnits::ConvertFromKiloPascals(double value, EUnitsType to) { return Convert(value, UNITS_KPA, to); }
double TUnits::ConvertToKiloPascals(double value, EUnitsType from) { return Convert(value, from, UNITS_KPA); }

double TUnits::ConvertFromMetersPerPulse(double value, EUnitsType to) { return Convert(value, UNITS_M_PER_PULSE, to); }
double TUnits::ConvertToMetersPerPulse(double value, EUnitsType from)
{
    return Convert(value, from, UNITS_M_PER_PULSE);
}

double TUnits::ConvertFromPulsesPerLiter(double value, EUnitsType to) { return Convert(value, UNITS_PULSES_PER_L, to); }
double TUnits::ConvertToPulsesPerLiter(double value, EUnitsType from)
{
    return Convert(value, from, UNITS_PULSES_PER_L);
}

double TUnits::ConvertFromKilogram(double value, EUnitsType to) { return Convert(value, UNITS_KG, to); }
double TUnits::ConvertToKilogram(double value, EUnitsType from) { return Convert(value, from, UNITS_KG); }

double TUnits::ConvertFromKilogramsPerHectare(double value, EUnitsType to)
{
    return Convert(value, UNITS_KG_PER_HA, to);
}
double TUnits::ConvertToKilogramsPerHectare(double value, EUnitsType from)
{
    return Convert(value, from, UNITS_KG_PER_HA);
}

double TUnits::ConvertFromKilogramsPerLiter(double value, EUnitsType to) { return Convert(value, UNITS_KG_PER_L, to); }
double TUnits::ConvertToKilogramsPerLiter(double value, EUnitsType from)
{
    return Convert(value, from, UNITS_KG_PER_L);
}

double TUnits::ConvertFromPulsesPerKilogramNitrogen(double value, EUnitsType to)
{
    return Convert(value, UNITS_PULSES_PER_KG_N, to);
}
double TUnits::ConvertToPulsesPerKilogramNitrogen(double value, EUnitsType from)
{
    return Convert(value, from, UNITS_PULSES_PER_KG_N);
}

double TUnits::ConvertFromHectaresPerHour(double value, EUnitsType) { return value; }
double TUnits::ConvertToHectaresPerHour(double value, EUnitsType) { return value; }

double TUnits::ConvertUnit(double value, EUnitsType from, EUnitsType to) { return Convert(value, from, to); }

bool TUnits::CanConvert(EUnitsType from, EUnitsType to)
{
    if (from == to)
        return true;
    const tagConversion& conversion = Conversion(from, to);
    return conversion.route != Unchanged && !(conversion.isImperial && UnitSystem::IsMetric());
}

bool TUnits::DependsOnUSMeasures(EUnitsType type)
{
    return Conversion(DetermineDefaultUnitFromUnitsType(type), type).isImperial;
}

EUnitsType TUnits::GetConversionHub(EUnitsType type)
{
    switch (type) {
    case UNITS_KPH:
    case UNITS_MPH:
        return UNITS_METERS_PER_SECOND;
    case UNITS_LB_N:
        return UNITS_KG_N;
    case UNITS_KG_N_PER_AC:
    case UNITS_LB_N_PER_AC:
    case UNITS_LB_N_PER_HA:
        return UNITS_KG_N_PER_HA;
    case UNITS_LB_N_PER_MIN:
        return UNITS_KG_N_PER_MIN;
    case UNITS_METERS_PER_SECOND:
    case UNITS_KG_N:
    case UNITS_KG_N_PER_HA:
    case UNITS_KG_N_PER_MIN:
        return type;
    default:
        return DetermineDefaultUnitFromUnitsType(type);
    }
}
