#include "ExpectedConversions.h"

#include <QHash>
#include <QList>

#include <climits>
#include <cmath>
#include <cstring>
#include <iterator>

namespace Expected {

namespace {

using U = TUnits;

// clang-format off
const tagFactor FactorRows[] = {
    {"ConvertMillimetersToInches", &U::ConvertMillimetersToInches, "* 0.039370079"},
    {"ConvertInchesToMillimeters", &U::ConvertInchesToMillimeters, "/ 0.039370079"},
    {"ConvertMetersToMillimeters", &U::ConvertMetersToMillimeters, "* 1000"},
    {"ConvertMillimetersToMeters", &U::ConvertMillimetersToMeters, "/ 1000"},
    {"ConvertMetersToCentimeters", &U::ConvertMetersToCentimeters, "* 100"},
    {"ConvertCentimetersToMeters", &U::ConvertCentimetersToMeters, "/ 100"},
    {"ConvertMetersToFeet", &U::ConvertMetersToFeet, "* 3.2808399"},
    {"ConvertFeetToMeters", &U::ConvertFeetToMeters, "* 0.3048"},
    {"ConvertMetersToInches", &U::ConvertMetersToInches, "* 39.370079"},
    {"ConvertInchesToMeters", &U::ConvertInchesToMeters, "/ 39.370079"},
    {"ConvertMetersToKilometers", &U::ConvertMetersToKilometers, "* 0.001"},
    {"ConvertMetersToMiles", &U::ConvertMetersToMiles, "* 0.0006213712"},
    {"ConvertKilometersToMiles", &U::ConvertKilometersToMiles, "* 0.62137121"},
    {"ConvertKilometersPerHourToMilesPerHour", &U::ConvertKilometersPerHourToMilesPerHour, "* 0.62137121"},
    {"ConvertMilesToKilometers", &U::ConvertMilesToKilometers, "* 1.609344"},
    {"ConvertMilesPerHourToKilometersPerHour", &U::ConvertMilesPerHourToKilometersPerHour, "* 1.609344"},
    {"ConvertMilesToMeters", &U::ConvertMilesToMeters, "* 1609.344"},
    {"ConvertHectaresToAcres", &U::ConvertHectaresToAcres, "* 2.4710538"},
    {"ConvertPerAcreToPerHectare", &U::ConvertPerAcreToPerHectare, "* 2.4710538"},
    {"ConvertAcresToHectares", &U::ConvertAcresToHectares, "* 0.40468565"},
    {"ConvertPerHectareToPerAcre", &U::ConvertPerHectareToPerAcre, "* 0.40468565"},
    {"ConvertSqMetersToHectares", &U::ConvertSqMetersToHectares, "* 0.0001"},
    {"ConvertSqMetersToAcres", &U::ConvertSqMetersToAcres, "/ 4046.8564"},
    {"ConvertHectaresToSqMeters", &U::ConvertHectaresToSqMeters, "* 10000"},
    {"ConvertMetersPerSecondToKilometersPerHour", &U::ConvertMetersPerSecondToKilometersPerHour, "* 3.5999999"},
    {"ConvertMetersPerSecondToMilesPerHour", &U::ConvertMetersPerSecondToMilesPerHour, "* 2.2369363"},
    {"ConvertLitersToMilliLiters", &U::ConvertLitersToMilliLiters, "* 1000"},
    {"ConvertPerMilliLiterToPerLiter", &U::ConvertPerMilliLiterToPerLiter, "* 1000"},
    {"ConvertCubicMetersToLiters", &U::ConvertCubicMetersToLiters, "* 1000"},
    {"ConvertTonnesToLiters", &U::ConvertTonnesToLiters, "* 1000"},
    {"ConvertPulsesPerLiterToPulsesPerCubicMeter", &U::ConvertPulsesPerLiterToPulsesPerCubicMeter, "* 1000"},
    {"ConvertPulsesPerLiterToPulsesPerTonne", &U::ConvertPulsesPerLiterToPulsesPerTonne, "* 1000"},
    {"ConvertKilogramsPerLiterToKilogramsPerCubicMeter", &U::ConvertKilogramsPerLiterToKilogramsPerCubicMeter, "* 1000"},
    {"ConvertMilliLitersToLiters", &U::ConvertMilliLitersToLiters, "/ 1000"},
    {"ConvertPerLiterToPerMilliLiter", &U::ConvertPerLiterToPerMilliLiter, "/ 1000"},
    {"ConvertLitersToCubicMeters", &U::ConvertLitersToCubicMeters, "/ 1000"},
    {"ConvertLitersToTonnes", &U::ConvertLitersToTonnes, "/ 1000"},
    {"ConvertPulsesPerCubicMeterToPulsesPerLiter", &U::ConvertPulsesPerCubicMeterToPulsesPerLiter, "/ 1000"},
    {"ConvertPulsesPerTonneToPulsesPerLiter", &U::ConvertPulsesPerTonneToPulsesPerLiter, "/ 1000"},
    {"ConvertKilogramsPerCubicMeterToKilogramsPerLiter", &U::ConvertKilogramsPerCubicMeterToKilogramsPerLiter, "/ 1000"},
    {"ConvertLitersToCubicFeet", &U::ConvertLitersToCubicFeet, "* 0.035314668"},
    {"ConvertCubicFeetToLiters", &U::ConvertCubicFeetToLiters, "/ 0.035314668"},
    {"ConvertCubicMetersToCubicFeet", &U::ConvertCubicMetersToCubicFeet, "* 35.314667"},
    {"ConvertCubicFeetToCubicMeters", &U::ConvertCubicFeetToCubicMeters, "/ 35.314667"},
    {"ConvertPulsesPerCubicFootToPulsesPerCubicMeter", &U::ConvertPulsesPerCubicFootToPulsesPerCubicMeter, "* 35.314667"},
    {"ConvertPulsesPerCubicMeterToPulsesPerCubicFeet", &U::ConvertPulsesPerCubicMeterToPulsesPerCubicFeet, "/ 35.314667"},
    {"ConvertUSBushelsToLiters", &U::ConvertUSBushelsToLiters, "* 35.239071"},
    {"ConvertLitersToUSBushels", &U::ConvertLitersToUSBushels, "/ 35.239071"},
    {"ConvertKilogramsPerLiterToKilogramsPerUSBushel", &U::ConvertKilogramsPerLiterToKilogramsPerUSBushel, "* 35.239071"},
    {"ConvertKilogramsPerUSBushelToKilogramsPerLiter", &U::ConvertKilogramsPerUSBushelToKilogramsPerLiter, "/ 35.239071"},
    {"ConvertUKBushelsToLiters", &U::ConvertUKBushelsToLiters, "* 36.368736"},
    {"ConvertLitersToUKBushels", &U::ConvertLitersToUKBushels, "/ 36.368736"},
    {"ConvertKilogramsPerLiterToKilogramsPerUKBushel", &U::ConvertKilogramsPerLiterToKilogramsPerUKBushel, "* 36.368736"},
    {"ConvertKilogramsPerUKBushelToKilogramsPerLiter", &U::ConvertKilogramsPerUKBushelToKilogramsPerLiter, "/ 36.368736"},
    {"ConvertLitersToUSGallons", &U::ConvertLitersToUSGallons, "* 0.26416999"},
    {"ConvertPerUSGallonToPerLiter", &U::ConvertPerUSGallonToPerLiter, "* 0.26416999"},
    {"ConvertPulsesPerUSGallonToPulsesPerLiter", &U::ConvertPulsesPerUSGallonToPulsesPerLiter, "* 0.26416999"},
    {"ConvertUSGallonsToLiters", &U::ConvertUSGallonsToLiters, "/ 0.26416999"},
    {"ConvertPulsesPerLiterToPulsesPerUSGallon", &U::ConvertPulsesPerLiterToPulsesPerUSGallon, "/ 0.26416999"},
    {"ConvertLitersToEnglishGallons", &U::ConvertLitersToEnglishGallons, "* 0.21996924"},
    {"ConvertPerEnglishGallonToPerLiter", &U::ConvertPerEnglishGallonToPerLiter, "* 0.21996924"},
    {"ConvertPulsesPerEnglishGallonToPulsesPerLiter", &U::ConvertPulsesPerEnglishGallonToPulsesPerLiter, "* 0.21996924"},
    {"ConvertEnglishGallonsToLiters", &U::ConvertEnglishGallonsToLiters, "/ 0.21996924"},
    {"ConvertPulsesPerLiterToPulsesPerEnglishGallon", &U::ConvertPulsesPerLiterToPulsesPerEnglishGallon, "/ 0.21996924"},
    {"ConvertLitersToUSFluidOunces", &U::ConvertLitersToUSFluidOunces, "* 33.814022"},
    {"ConvertPerUSFluidOunceToPerLiter", &U::ConvertPerUSFluidOunceToPerLiter, "* 33.814022"},
    {"ConvertUSFluidOuncesToLiters", &U::ConvertUSFluidOuncesToLiters, "/ 33.814022"},
    {"ConvertPerLiterToPerUSFluidOunce", &U::ConvertPerLiterToPerUSFluidOunce, "/ 33.814022"},
    {"ConvertMilliLitersToUSFluidOunces", &U::ConvertMilliLitersToUSFluidOunces, "* 0.033814002"},
    {"ConvertPerUSFluidOunceToPerMilliLiter", &U::ConvertPerUSFluidOunceToPerMilliLiter, "* 0.033814002"},
    {"ConvertUSFluidOuncesToMilliLiters", &U::ConvertUSFluidOuncesToMilliLiters, "/ 0.033814002"},
    {"ConvertPerMilliLiterToPerUSFluidOunce", &U::ConvertPerMilliLiterToPerUSFluidOunce, "/ 0.033814002"},
    {"ConvertLitersToEnglishFluidOunces", &U::ConvertLitersToEnglishFluidOunces, "* 35.19508"},
    {"ConvertPerEnglishFluidOunceToPerLiter", &U::ConvertPerEnglishFluidOunceToPerLiter, "* 35.19508"},
    {"ConvertEnglishFluidOuncesToLiters", &U::ConvertEnglishFluidOuncesToLiters, "/ 35.19508"},
    {"ConvertPerLiterToPerEnglishFluidOunce", &U::ConvertPerLiterToPerEnglishFluidOunce, "/ 35.19508"},
    {"ConvertMilliLitersToEnglishFluidOunces", &U::ConvertMilliLitersToEnglishFluidOunces, "* 0.035195"},
    {"ConvertPerEnglishFluidOunceToPerMilliLiter", &U::ConvertPerEnglishFluidOunceToPerMilliLiter, "* 0.035195"},
    {"ConvertEnglishFluidOuncesToMilliLiters", &U::ConvertEnglishFluidOuncesToMilliLiters, "/ 0.035195"},
    {"ConvertPerMilliLiterToPerEnglishFluidOunce", &U::ConvertPerMilliLiterToPerEnglishFluidOunce, "/ 0.035195"},
    {"ConvertLitersPerHectareToUSGallonsPerAcre", &U::ConvertLitersPerHectareToUSGallonsPerAcre, "* 0.1069"},
    {"ConvertUSGallonsPerAcreToLitersPerHectare", &U::ConvertUSGallonsPerAcreToLitersPerHectare, "/ 0.1069"},
    {"ConvertLitersPerHectareToEnglishGallonsPerAcre", &U::ConvertLitersPerHectareToEnglishGallonsPerAcre, "* 0.089018703"},
    {"ConvertEnglishGallonsPerAcreToLitersPerHectare", &U::ConvertEnglishGallonsPerAcreToLitersPerHectare, "/ 0.089018703"},
    {"ConvertMilliLitersPerHectareToUSFluidOuncesPerAcre", &U::ConvertMilliLitersPerHectareToUSFluidOuncesPerAcre, "* 0.0136832"},
    {"ConvertUSFluidOuncesPerAcreToMilliLitersPerHectare", &U::ConvertUSFluidOuncesPerAcreToMilliLitersPerHectare, "/ 0.0136832"},
    {"ConvertMilliLitersPerHectareToEnglishFluidOuncesPerAcre", &U::ConvertMilliLitersPerHectareToEnglishFluidOuncesPerAcre, "* 0.014242992"},
    {"ConvertEnglishFluidOuncesPerAcreToMilliLitersPerHectare", &U::ConvertEnglishFluidOuncesPerAcreToMilliLitersPerHectare, "/ 0.014242992"},
    {"ConvertLitersPerHectareToUSFluidOuncesPerAcre", &U::ConvertLitersPerHectareToUSFluidOuncesPerAcre, "ConvertLitersPerHectareToUSGallonsPerAcre * 128"},
    {"ConvertLitersPerHectareToEnglishFluidOuncesPerAcre", &U::ConvertLitersPerHectareToEnglishFluidOuncesPerAcre, "ConvertLitersPerHectareToEnglishGallonsPerAcre * 160"},
    {"ConvertUSFluidOuncesPerAcreToLitersPerHectare", &U::ConvertUSFluidOuncesPerAcreToLitersPerHectare, "ConvertUSFluidOuncesPerAcreToMilliLitersPerHectare ConvertMilliLitersToLiters"},
    {"ConvertEnglishFluidOuncesPerAcreToLitersPerHectare", &U::ConvertEnglishFluidOuncesPerAcreToLitersPerHectare, "ConvertEnglishFluidOuncesPerAcreToMilliLitersPerHectare ConvertMilliLitersToLiters"},
    {"ConvertKilopascalsToPoundsPerSquareInch", &U::ConvertKilopascalsToPoundsPerSquareInch, "* 0.14504001"},
    {"ConvertPoundsPerSquareInchToKilopascals", &U::ConvertPoundsPerSquareInchToKilopascals, "/ 0.14504001"},
    {"ConvertKilopascalsToBar", &U::ConvertKilopascalsToBar, "* 0.01"},
    {"ConvertBarToKilopascals", &U::ConvertBarToKilopascals, "/ 0.01"},
    {"ConvertPulsesPerTonneToPulsesPerPound", &U::ConvertPulsesPerTonneToPulsesPerPound, "/ 2204.6226"},
    {"ConvertPulsesPerPoundToPulsesPerTonne", &U::ConvertPulsesPerPoundToPulsesPerTonne, "* 2204.6226"},
    {"ConvertPulsesPerKPHToPulsesPerMPH", &U::ConvertPulsesPerKPHToPulsesPerMPH, "/ 0.62137121"},
    {"ConvertPulsesPerMPHToPulsesPerKPH", &U::ConvertPulsesPerMPHToPulsesPerKPH, "* 0.62137121"},
    {"ConvertKilogramsToPounds", &U::ConvertKilogramsToPounds, "* 2.2046225"},
    {"ConvertPoundsToKilograms", &U::ConvertPoundsToKilograms, "/ 2.2046225"},
    {"ConvertTonnesToPounds", &U::ConvertTonnesToPounds, "* 2204.6226"},
    {"ConvertPoundsToTonnes", &U::ConvertPoundsToTonnes, "/ 2204.6226"},
    {"ConvertKilogramsPerHectareToPoundsPerAcre", &U::ConvertKilogramsPerHectareToPoundsPerAcre, "* 2.2046225 / 2.4710538"},
    {"ConvertPoundsPerAcreToKilogramsPerHectare", &U::ConvertPoundsPerAcreToKilogramsPerHectare, "* 2.4710538 / 2.2046225"},
    {"ConvertKilogramsPerLiterToPoundsPerGallon", &U::ConvertKilogramsPerLiterToPoundsPerGallon, "* 2.2046225 / 0.21996924"},
    {"ConvertKilogramsPerLiterToPoundsPerUSGallon", &U::ConvertKilogramsPerLiterToPoundsPerUSGallon, "* 2.2046225 / 0.26416999"},
    {"ConvertPoundsPerGallonToKilogramsPerLiter", &U::ConvertPoundsPerGallonToKilogramsPerLiter, "* 0.21996924 / 2.2046225"},
    {"ConvertPoundsPerUSGallonToKilogramsPerLiter", &U::ConvertPoundsPerUSGallonToKilogramsPerLiter, "* 0.26416999 / 2.2046225"},
    {"ConvertKilogramsPerLiterToPoundsPerCubicFoot", &U::ConvertKilogramsPerLiterToPoundsPerCubicFoot, "* 2.2046225 / 0.035314668"},
    {"ConvertKilogramsPerCubicMeterToPoundsPerCubicFoot", &U::ConvertKilogramsPerCubicMeterToPoundsPerCubicFoot, "* 2.2046225 / 35.314667"},
    {"ConvertPoundsPerCubicFootToKilogramsPerCubicMeter", &U::ConvertPoundsPerCubicFootToKilogramsPerCubicMeter, "* 35.314667 / 2.2046225"},
    {"ConvertKilogramsPerLiterToPoundsPerUSBushel", &U::ConvertKilogramsPerLiterToPoundsPerUSBushel, "* 2.2046225 * 35.239071"},
    {"ConvertKilogramsPerLiterToPoundsPerUKBushel", &U::ConvertKilogramsPerLiterToPoundsPerUKBushel, "* 2.2046225 * 36.368736"},
    {"ConvertKiloseedsPerHectareToKiloseedsPerAcre", &U::ConvertKiloseedsPerHectareToKiloseedsPerAcre, "/ 2.4710538"},
    {"ConvertKiloseedsPerAcreToKiloseedsPerHectare", &U::ConvertKiloseedsPerAcreToKiloseedsPerHectare, "* 2.4710538"},
    {"ConvertCelsiusToFahrenheit", &U::ConvertCelsiusToFahrenheit, "/ 0.55555558 + 32"},
    {"ConvertFahrenheitToCelsius", &U::ConvertFahrenheitToCelsius, "- 32 * 0.55555558"},
    {"ConvertLitersToPounds", &U::ConvertLitersToPounds, "/ 1000 * 2204.6226"},
    {"ConvertPoundsToLiters", &U::ConvertPoundsToLiters, "/ 2204.6226 * 1000"},
    {"ConvertLitersPerHectareToCubicMetersPerHectare", &U::ConvertLitersPerHectareToCubicMetersPerHectare, "/ 1000"},
    {"ConvertLitersPerHectareToTonnesPerHectare", &U::ConvertLitersPerHectareToTonnesPerHectare, "/ 1000"},
    {"ConvertCubicMetersPerHectareToLitersPerHectare", &U::ConvertCubicMetersPerHectareToLitersPerHectare, "* 1000"},
    {"ConvertTonnesPerHectareToLitersPerHectare", &U::ConvertTonnesPerHectareToLitersPerHectare, "* 1000"},
    {"ConvertCubicMetersPerHectareToCubicFeetPerAcre", &U::ConvertCubicMetersPerHectareToCubicFeetPerAcre, "* 35.314667 / 2.4710538"},
    {"ConvertCubicFeetPerAcreToCubicMetersPerHectare", &U::ConvertCubicFeetPerAcreToCubicMetersPerHectare, "* 2.4710538 / 35.314667"},
    {"ConvertCubicFeetPerAcreToLitersPerHectare", &U::ConvertCubicFeetPerAcreToLitersPerHectare, "* 2.4710538 / 0.035314668"},
    {"ConvertTonnesPerHectareToPoundsPerAcre", &U::ConvertTonnesPerHectareToPoundsPerAcre, "* 2204.6226 / 2.4710538"},
    {"ConvertPoundsPerAcreToTonnesPerHectare", &U::ConvertPoundsPerAcreToTonnesPerHectare, "* 2.4710538 / 2204.6226"},
    {"ConvertMilliLitersPerAcreToLitersPerHectare", &U::ConvertMilliLitersPerAcreToLitersPerHectare, "* 2.4710538 / 1000"},
    {"ConvertCubicMetersPerAcreToLitersPerHectare", &U::ConvertCubicMetersPerAcreToLitersPerHectare, "* 2.4710538 * 1000"},
    {"ConvertTonnesPerAcreToLitersPerHectare", &U::ConvertTonnesPerAcreToLitersPerHectare, "* 2.4710538 * 1000"},
    {"ConvertLitersPerHectareToCubicMetersPerAcre", &U::ConvertLitersPerHectareToCubicMetersPerAcre, "* 0.40468565 / 1000"},
    {"ConvertLitersPerHectareToTonnesPerAcre", &U::ConvertLitersPerHectareToTonnesPerAcre, "* 0.40468565 / 1000"},
    {"ConvertLitersPerHectareToCubicFeetPerAcre", &U::ConvertLitersPerHectareToCubicFeetPerAcre, "* 0.40468565 * 0.035314668"},
    {"ConvertLitersPerHectareToPoundsPerAcre", &U::ConvertLitersPerHectareToPoundsPerAcre, "* 0.40468565 / 1000 * 2204.6226"},
    {"ConvertLitersPerHectareToMilliLitersPerAcre", &U::ConvertLitersPerHectareToMilliLitersPerAcre, "* 0.40468565 * 1000"},
    {"ConvertLitersPerHectareToLitersPer100Meters", &U::ConvertLitersPerHectareToLitersPer100Meters, "/ 100"},
    {"ConvertLitersPer100MetersToLitersPerHectare", &U::ConvertLitersPer100MetersToLitersPerHectare, "* 100"},
    {"ConvertLitersPerHectareToEnglishGallonsPer100Yards", &U::ConvertLitersPerHectareToEnglishGallonsPer100Yards, "* 0.21996924 / 109.36133"},
    {"ConvertLitersPerHectareToUSGallonsPer100Yards", &U::ConvertLitersPerHectareToUSGallonsPer100Yards, "* 0.26416999 / 109.36133"},
    {"ConvertEnglishGallonsPer100YardsToLitersPerHectare", &U::ConvertEnglishGallonsPer100YardsToLitersPerHectare, "* 109.36133 / 0.21996924"},
    {"ConvertUSGallonsPer100YardsToLitersPerHectare", &U::ConvertUSGallonsPer100YardsToLitersPerHectare, "* 109.36133 / 0.26416999"},
};

/// A unit of a hub, with the steps out of the hub and into it; two of them are for US and for English measures, of
/// which there are none in the metric system.
struct tagHubUnit
{
    const char* hub;
    EUnitsType unit;
    const char* out;
    const char* in;
    const char* outEnglish;
    const char* inEnglish;
};

const tagHubUnit HubUnits[] = {
    {"Meter", UNITS_KILOMETERS, "ConvertMetersToKilometers", "/ 0.001", nullptr, nullptr},
    {"Meter", UNITS_CENTIMETERS, "ConvertMetersToCentimeters", "ConvertCentimetersToMeters", nullptr, nullptr},
    {"Meter", UNITS_MILLIMETERS, "ConvertMetersToMillimeters", "ConvertMillimetersToMeters", nullptr, nullptr},
    {"Meter", UNITS_FEET, "ConvertMetersToFeet", "ConvertFeetToMeters", nullptr, nullptr},
    {"Meter", UNITS_MILES, "ConvertMetersToMiles", "ConvertMilesToMeters", nullptr, nullptr},
    {"Meter", UNITS_INCHES, "ConvertMetersToInches", "ConvertInchesToMeters", nullptr, nullptr},
    {"Hectare", UNITS_ACRES, "ConvertHectaresToAcres", "ConvertAcresToHectares", nullptr, nullptr},
    {"MetersPerMin", UNITS_FEET_PER_MIN, "ConvertMetersToFeet", "ConvertFeetToMeters", nullptr, nullptr},
    {"MetersPerSecond", UNITS_KPH, "ConvertMetersPerSecondToKilometersPerHour", "/ 3.6d", nullptr, nullptr},
    {"MetersPerSecond", UNITS_MPH, "ConvertMetersPerSecondToMilesPerHour", "/ 2.2369363", nullptr, nullptr},
    {"PulsesPerKilometerPerHour", UNITS_HZ_PER_MPH, "ConvertPulsesPerKPHToPulsesPerMPH", "ConvertPulsesPerMPHToPulsesPerKPH", nullptr, nullptr},
    {"Liter", UNITS_GALLONS, "ConvertLitersToUSGallons", "ConvertUSGallonsToLiters", "ConvertLitersToEnglishGallons", "ConvertEnglishGallonsToLiters"},
    {"Liter", UNITS_MILLILITERS, "ConvertLitersToMilliLiters", "ConvertMilliLitersToLiters", nullptr, nullptr},
    {"Liter", UNITS_FLUID_OUNCES, "ConvertLitersToUSFluidOunces", "ConvertUSFluidOuncesToLiters", "ConvertLitersToEnglishFluidOunces", "ConvertEnglishFluidOuncesToLiters"},
    {"Liter", UNITS_CUBIC_METERS, "ConvertLitersToCubicMeters", "ConvertCubicMetersToLiters", nullptr, nullptr},
    {"Liter", UNITS_CUBIC_FEET, "ConvertLitersToCubicFeet", "ConvertCubicFeetToLiters", nullptr, nullptr},
    {"Liter", UNITS_TONNES, "ConvertLitersToTonnes", "ConvertTonnesToLiters", nullptr, nullptr},
    {"Liter", UNITS_US_BUSHELS, "ConvertLitersToUSBushels", "ConvertUSBushelsToLiters", nullptr, nullptr},
    {"Liter", UNITS_UK_BUSHELS, "ConvertLitersToUKBushels", "ConvertUKBushelsToLiters", nullptr, nullptr},
    {"Liter", UNITS_LB, "ConvertLitersToPounds", "ConvertPoundsToLiters", nullptr, nullptr},
    {"LitersPerHectare", UNITS_L_PER_AC, "ConvertPerHectareToPerAcre", "ConvertPerAcreToPerHectare", nullptr, nullptr},
    {"LitersPerHectare", UNITS_ML_PER_HA, "ConvertLitersToMilliLiters", "ConvertMilliLitersToLiters", nullptr, nullptr},
    {"LitersPerHectare", UNITS_ML_PER_AC, "ConvertLitersPerHectareToMilliLitersPerAcre", "ConvertMilliLitersPerAcreToLitersPerHectare", nullptr, nullptr},
    {"LitersPerHectare", UNITS_GAL_PER_HA, "ConvertLitersToUSGallons", "ConvertUSGallonsToLiters", "ConvertLitersToEnglishGallons", "ConvertEnglishGallonsToLiters"},
    {"LitersPerHectare", UNITS_GAL_PER_AC, "ConvertLitersPerHectareToUSGallonsPerAcre", "ConvertUSGallonsPerAcreToLitersPerHectare", "ConvertLitersPerHectareToEnglishGallonsPerAcre", "ConvertEnglishGallonsPerAcreToLitersPerHectare"},
    {"LitersPerHectare", UNITS_US_GAL_PER_HA, "ConvertLitersToUSGallons", "ConvertUSGallonsToLiters", nullptr, nullptr},
    {"LitersPerHectare", UNITS_US_GAL_PER_AC, "ConvertLitersPerHectareToUSGallonsPerAcre", "ConvertUSGallonsPerAcreToLitersPerHectare", nullptr, nullptr},
    {"LitersPerHectare", UNITS_FLOZ_PER_AC, "ConvertLitersPerHectareToUSFluidOuncesPerAcre", "ConvertUSFluidOuncesPerAcreToLitersPerHectare", "ConvertLitersPerHectareToEnglishFluidOuncesPerAcre", "ConvertEnglishFluidOuncesPerAcreToLitersPerHectare"},
    {"LitersPerHectare", UNITS_FLOZ_PER_HA, "ConvertLitersToUSFluidOunces", "ConvertUSFluidOuncesToLiters", "ConvertLitersToEnglishFluidOunces", "ConvertEnglishFluidOuncesToLiters"},
    {"LitersPerHectare", UNITS_US_FLOZ_PER_AC, "ConvertLitersPerHectareToUSFluidOuncesPerAcre", "ConvertUSFluidOuncesPerAcreToLitersPerHectare", nullptr, nullptr},
    {"LitersPerHectare", UNITS_US_FLOZ_PER_HA, "ConvertLitersToUSFluidOunces", "ConvertUSFluidOuncesToLiters", nullptr, nullptr},
    {"LitersPerHectare", UNITS_M3_PER_HA, "ConvertLitersToCubicMeters", "ConvertCubicMetersToLiters", nullptr, nullptr},
    {"LitersPerHectare", UNITS_M3_PER_AC, "ConvertLitersPerHectareToCubicMetersPerAcre", "ConvertCubicMetersPerAcreToLitersPerHectare", nullptr, nullptr},
    {"LitersPerHectare", UNITS_FT3_PER_HA, "ConvertLitersToCubicFeet", "ConvertCubicFeetToLiters", nullptr, nullptr},
    {"LitersPerHectare", UNITS_FT3_PER_AC, "ConvertLitersPerHectareToCubicFeetPerAcre", "ConvertCubicFeetPerAcreToLitersPerHectare", nullptr, nullptr},
    {"LitersPerHectare", UNITS_T_PER_HA, "ConvertLitersToTonnes", "ConvertTonnesToLiters", nullptr, nullptr},
    {"LitersPerHectare", UNITS_T_PER_AC, "ConvertLitersPerHectareToTonnesPerAcre", "ConvertTonnesPerAcreToLitersPerHectare", nullptr, nullptr},
    {"LitersPerHectare", UNITS_GAL_PER_100YD, "ConvertLitersPerHectareToUSGallonsPer100Yards", "ConvertUSGallonsPer100YardsToLitersPerHectare", "ConvertLitersPerHectareToEnglishGallonsPer100Yards", "ConvertEnglishGallonsPer100YardsToLitersPerHectare"},
    {"LitersPerHectare", UNITS_US_GAL_PER_100YD, "ConvertLitersPerHectareToUSGallonsPer100Yards", "ConvertUSGallonsPer100YardsToLitersPerHectare", nullptr, nullptr},
    {"LitersPerHectare", UNITS_LB_PER_AC, "ConvertLitersPerHectareToPoundsPerAcre", "ConvertPoundsPerAcreToTonnesPerHectare ConvertTonnesPerHectareToLitersPerHectare", nullptr, nullptr},
    {"LitersPerHectare", UNITS_LB_PER_HA, "ConvertLitersToPounds", "ConvertPoundsToLiters", nullptr, nullptr},
    {"LitersPerMinute", UNITS_GAL_PER_MIN, "ConvertLitersToUSGallons", "ConvertUSGallonsToLiters", "ConvertLitersToEnglishGallons", "ConvertEnglishGallonsToLiters"},
    {"LitersPerMinute", UNITS_ML_PER_MIN, "ConvertLitersToMilliLiters", "ConvertMilliLitersToLiters", nullptr, nullptr},
    {"LitersPerMinute", UNITS_FLOZ_PER_MIN, "ConvertLitersToUSFluidOunces", "ConvertUSFluidOuncesToLiters", "ConvertLitersToEnglishFluidOunces", "ConvertEnglishFluidOuncesToLiters"},
    {"LitersPerMinute", UNITS_M3_PER_MIN, "ConvertLitersToCubicMeters", "ConvertCubicMetersToLiters", nullptr, nullptr},
    {"LitersPerMinute", UNITS_FT3_PER_MIN, "ConvertLitersToCubicFeet", "ConvertCubicFeetToLiters", nullptr, nullptr},
    {"LitersPerMinute", UNITS_T_PER_MIN, "ConvertLitersToTonnes", "ConvertTonnesToLiters", nullptr, nullptr},
    {"LitersPerRev", UNITS_GAL_PER_REV, "ConvertLitersToUSGallons", "ConvertUSGallonsToLiters", "ConvertLitersToEnglishGallons", "ConvertEnglishGallonsToLiters"},
    {"KiloPascals", UNITS_PSI, "ConvertKilopascalsToPoundsPerSquareInch", "/ 0.14504d", nullptr, nullptr},
    {"KiloPascals", UNITS_BAR, "ConvertKilopascalsToBar", "ConvertBarToKilopascals", nullptr, nullptr},
    {"MetersPerPulse", UNITS_FT_PER_PULSE, "ConvertMetersToFeet", "ConvertFeetToMeters", nullptr, nullptr},
    {"PulsesPerLiter", UNITS_PULSES_PER_GAL, "ConvertPulsesPerLiterToPulsesPerUSGallon", "ConvertPulsesPerUSGallonToPulsesPerLiter", "ConvertPulsesPerLiterToPulsesPerEnglishGallon", "ConvertPulsesPerEnglishGallonToPulsesPerLiter"},
    {"PulsesPerLiter", UNITS_PULSES_PER_ML, "ConvertPerLiterToPerMilliLiter", "ConvertPerMilliLiterToPerLiter", nullptr, nullptr},
    {"PulsesPerLiter", UNITS_PULSES_PER_FLOZ, "ConvertPerLiterToPerUSFluidOunce", "ConvertPerUSFluidOunceToPerLiter", "ConvertPerLiterToPerEnglishFluidOunce", "ConvertPerEnglishFluidOunceToPerLiter"},
    {"PulsesPerLiter", UNITS_PULSES_PER_M3, "ConvertPulsesPerLiterToPulsesPerCubicMeter", "ConvertPulsesPerCubicMeterToPulsesPerLiter", nullptr, nullptr},
    {"PulsesPerLiter", UNITS_PULSES_PER_FT3, "ConvertPulsesPerLiterToPulsesPerCubicMeter ConvertPulsesPerCubicMeterToPulsesPerCubicFeet", "ConvertPulsesPerCubicFootToPulsesPerCubicMeter ConvertPulsesPerCubicMeterToPulsesPerLiter", nullptr, nullptr},
    {"PulsesPerLiter", UNITS_PULSES_PER_T, "ConvertPulsesPerLiterToPulsesPerTonne", "ConvertPulsesPerTonneToPulsesPerLiter", nullptr, nullptr},
    {"PulsesPerLiter", UNITS_PULSES_PER_LB, "ConvertPulsesPerLiterToPulsesPerTonne ConvertPulsesPerTonneToPulsesPerPound", "ConvertPulsesPerPoundToPulsesPerTonne ConvertPulsesPerTonneToPulsesPerLiter", nullptr, nullptr},
    {"Kilogram", UNITS_LB, "ConvertKilogramsToPounds", "ConvertPoundsToKilograms", nullptr, nullptr},
    {"Kilogram", UNITS_LB_N, "ConvertKilogramsToPounds", "ConvertPoundsToKilograms", nullptr, nullptr},
    {"Kilogram", UNITS_LB_PER_MIN, "ConvertKilogramsToPounds", "ConvertPoundsToKilograms", nullptr, nullptr},
    {"Kilogram", UNITS_LB_N_PER_MIN, "ConvertKilogramsToPounds", "ConvertPoundsToKilograms", nullptr, nullptr},
    {"Kilogram", UNITS_LB_PER_REV, "ConvertKilogramsToPounds", "ConvertPoundsToKilograms", nullptr, nullptr},
    {"KilogramsPerHectare", UNITS_KG_PER_AC, "ConvertPerHectareToPerAcre", "ConvertPerAcreToPerHectare", nullptr, nullptr},
    {"KilogramsPerHectare", UNITS_KG_N_PER_AC, "ConvertPerHectareToPerAcre", "ConvertPerAcreToPerHectare", nullptr, nullptr},
    {"KilogramsPerHectare", UNITS_KSEEDS_PER_AC, "ConvertPerHectareToPerAcre", "ConvertPerAcreToPerHectare", nullptr, nullptr},
    {"KilogramsPerHectare", UNITS_LB_PER_HA, "ConvertKilogramsToPounds", "ConvertPoundsToKilograms", nullptr, nullptr},
    {"KilogramsPerHectare", UNITS_LB_N_PER_HA, "ConvertKilogramsToPounds", "ConvertPoundsToKilograms", nullptr, nullptr},
    {"KilogramsPerHectare", UNITS_LB_PER_AC, "ConvertKilogramsPerHectareToPoundsPerAcre", "ConvertPoundsPerAcreToKilogramsPerHectare", nullptr, nullptr},
    {"KilogramsPerHectare", UNITS_LB_N_PER_AC, "ConvertKilogramsPerHectareToPoundsPerAcre", "ConvertPoundsPerAcreToKilogramsPerHectare", nullptr, nullptr},
    {"KilogramsPerLiter", UNITS_LB_PER_GAL, "ConvertKilogramsPerLiterToPoundsPerUSGallon", "ConvertPoundsPerUSGallonToKilogramsPerLiter", "ConvertKilogramsPerLiterToPoundsPerGallon", "ConvertPoundsPerGallonToKilogramsPerLiter"},
    {"KilogramsPerLiter", UNITS_KG_PER_M3, "ConvertKilogramsPerLiterToKilogramsPerCubicMeter", "ConvertKilogramsPerCubicMeterToKilogramsPerLiter", nullptr, nullptr},
    {"KilogramsPerLiter", UNITS_LB_PER_FT3, "ConvertKilogramsPerLiterToPoundsPerCubicFoot", "ConvertPoundsPerCubicFootToKilogramsPerCubicMeter ConvertKilogramsPerCubicMeterToKilogramsPerLiter", nullptr, nullptr},
    {"KilogramsPerLiter", UNITS_KG_PER_US_BU, "ConvertKilogramsPerLiterToKilogramsPerUSBushel", "ConvertKilogramsPerUSBushelToKilogramsPerLiter", nullptr, nullptr},
    {"KilogramsPerLiter", UNITS_KG_PER_UK_BU, "ConvertKilogramsPerLiterToKilogramsPerUKBushel", "ConvertKilogramsPerUKBushelToKilogramsPerLiter", nullptr, nullptr},
    {"KilogramsPerLiter", UNITS_LB_PER_US_BU, "ConvertKilogramsPerLiterToPoundsPerUSBushel", "ConvertPoundsToKilograms ConvertKilogramsPerUSBushelToKilogramsPerLiter", nullptr, nullptr},
    {"KilogramsPerLiter", UNITS_LB_PER_UK_BU, "ConvertKilogramsPerLiterToPoundsPerUKBushel", "ConvertPoundsToKilograms ConvertKilogramsPerUKBushelToKilogramsPerLiter", nullptr, nullptr},
    {"PulsesPerKilogramNitrogen", UNITS_PULSES_PER_LB_N, "ConvertPoundsToKilograms", "ConvertKilogramsToPounds", nullptr, nullptr},
};

const tagHub HubRows[] = {
    {"Meter", &U::ConvertFromMeter, &U::ConvertToMeter, {UNITS_METERS}},
    {"Hectare", &U::ConvertFromHectare, &U::ConvertToHectare, {UNITS_HECTARES}},
    {"MetersPerMin", &U::ConvertFromMetersPerMin, &U::ConvertToMetersPerMin, {UNITS_METERS_PER_MIN}},
    {"MetersPerSecond", &U::ConvertFromMetersPerSecond, &U::ConvertToMetersPerSecond, {UNITS_METERS_PER_SECOND}},
    {"PulsesPerKilometerPerHour", &U::ConvertFromPulsesPerKilometerPerHour, &U::ConvertToPulsesPerKilometerPerHour, {UNITS_HZ_PER_KPH}},
    {"HectaresPerHour", &U::ConvertFromHectaresPerHour, &U::ConvertToHectaresPerHour, {UNITS_HECTARES_PER_HOUR}},
    {"Liter", &U::ConvertFromLiter, &U::ConvertToLiter, {UNITS_LITERS}},
    {"LitersPerHectare", &U::ConvertFromLitersPerHectare, &U::ConvertToLitersPerHectare, {UNITS_L_PER_HA}},
    {"LitersPerMinute", &U::ConvertFromLitersPerMinute, &U::ConvertToLitersPerMinute, {UNITS_L_PER_MIN}},
    {"LitersPerRev", &U::ConvertFromLitersPerRev, &U::ConvertToLitersPerRev, {UNITS_L_PER_REV}},
    {"KiloPascals", &U::ConvertFromKiloPascals, &U::ConvertToKiloPascals, {UNITS_KPA}},
    {"MetersPerPulse", &U::ConvertFromMetersPerPulse, &U::ConvertToMetersPerPulse, {UNITS_M_PER_PULSE}},
    {"PulsesPerLiter", &U::ConvertFromPulsesPerLiter, &U::ConvertToPulsesPerLiter, {UNITS_PULSES_PER_L}},
    {"Kilogram", &U::ConvertFromKilogram, &U::ConvertToKilogram, {UNITS_KG, UNITS_KG_N, UNITS_KG_PER_MIN, UNITS_KG_N_PER_MIN, UNITS_KG_PER_REV}},
    {"KilogramsPerHectare", &U::ConvertFromKilogramsPerHectare, &U::ConvertToKilogramsPerHectare, {UNITS_KG_PER_HA, UNITS_KG_N_PER_HA, UNITS_KSEEDS_PER_HA}},
    {"KilogramsPerLiter", &U::ConvertFromKilogramsPerLiter, &U::ConvertToKilogramsPerLiter, {UNITS_KG_PER_L}},
    {"PulsesPerKilogramNitrogen", &U::ConvertFromPulsesPerKilogramNitrogen, &U::ConvertToPulsesPerKilogramNitrogen, {UNITS_PULSES_PER_KG_N}},
};
// clang-format on

/// The steps of the factor function of that name; aborts a test that names one there is not.
QByteArray StepsOf(const QByteArray& name)
{
    static const QHash<QByteArray, QByteArray> steps = [] {
        QHash<QByteArray, QByteArray> all;
        for (const tagFactor& factor : FactorRows)
            all.insert(factor.name, factor.steps);
        return all;
    }();
    if (!steps.contains(name))
        qFatal("no factor function %s", name.constData());
    return steps.value(name);
}

long double Number(QByteArray text)
{
    const bool isDouble = text.endsWith('d');
    if (isDouble)
        text.chop(1);
    bool isNumber = false;
    const double number = text.toDouble(&isNumber);
    if (!isNumber)
        qFatal("no number %s", text.constData());
    return isDouble ? static_cast<long double>(number) : static_cast<long double>(static_cast<float>(number));
}

long double Apply(char operation, long double value, long double number)
{
    switch (operation) {
    case '*':
        return value * number;
    case '/':
        return value / number;
    case '+':
        return value + number;
    case '-':
        return value - number;
    default:
        qFatal("no operation %c", operation);
    }
    return value;
}

const tagHub* FindHub(EUnitsType type)
{
    for (const tagHub& hub : HubRows) {
        for (const EUnitsType own : hub.types) {
            if (own == type)
                return &hub;
        }
    }
    return nullptr;
}

/// The steps of @p us and @p english that the measures choose.
double Choose(const char* us, const char* english, double value, const tagMeasures& measures)
{
    if (!english)
        return Evaluate(us, value);
    return measures.metric ? value : Evaluate(measures.us ? us : english, value);
}

const tagHubUnit* FindHubUnit(const tagHub& hub, EUnitsType unit)
{
    for (const tagHubUnit& row : HubUnits) {
        if (std::strcmp(row.hub, hub.name) == 0 && row.unit == unit)
            return &row;
    }
    return nullptr;
}

} // namespace

double Evaluate(const QByteArray& steps, double value)
{
    long double result = static_cast<long double>(value);
    char operation = 0;
    const QList<QByteArray> all = steps.isEmpty() ? QList<QByteArray>() : steps.split(' ');
    for (const QByteArray& step : all) {
        if (step.startsWith("Convert")) {
            const float argument = static_cast<float>(static_cast<double>(result));
            result = static_cast<long double>(Evaluate(StepsOf(step), static_cast<double>(argument)));
        } else if (step.size() == 1 && !(step[0] >= '0' && step[0] <= '9')) {
            operation = step[0];
        } else {
            result = Apply(operation, result, Number(step));
        }
    }
    return static_cast<double>(result);
}

const std::vector<tagFactor>& Factors()
{
    static const std::vector<tagFactor> factors(std::begin(FactorRows), std::end(FactorRows));
    return factors;
}

const std::vector<tagHub>& Hubs()
{
    static const std::vector<tagHub> hubs(std::begin(HubRows), std::end(HubRows));
    return hubs;
}

const tagMeasures AllMeasures[4] = {
    {"metric", true, false},
    {"metric although US", true, true},
    {"English", false, false},
    {"US", false, true},
};

double FromHub(const tagHub& hub, double value, EUnitsType unit, const tagMeasures& measures)
{
    const tagHubUnit* const row = FindHubUnit(hub, unit);
    return row ? Choose(row->out, row->outEnglish, value, measures) : value;
}

double ToHub(const tagHub& hub, double value, EUnitsType unit, const tagMeasures& measures)
{
    const tagHubUnit* const row = FindHubUnit(hub, unit);
    return row ? Choose(row->in, row->inEnglish, value, measures) : value;
}

double ConvertUnit(double value, EUnitsType from, EUnitsType to, const tagMeasures& measures)
{
    if (from == to)
        return value;
    if (const tagHub* const hub = FindHub(from))
        return FromHub(*hub, value, to, measures);
    if (const tagHub* const hub = FindHub(to))
        return ToHub(*hub, value, from, measures);
    return value;
}

bool AreSame(double a, double b)
{
    if (std::isnan(a) || std::isnan(b))
        return std::isnan(a) && std::isnan(b);
    return std::memcmp(&a, &b, sizeof a) == 0;
}

const std::vector<int>& UnitNumbers()
{
    static const std::vector<int> numbers = [] {
        std::vector<int> all = {INT_MIN, -1000, -1};
        for (int unit = 0; unit < 115; ++unit)
            all.push_back(unit);
        for (const int beyond : {115, 116, 127, 128, 129, 255, 65536, INT_MAX})
            all.push_back(beyond);
        return all;
    }();
    return numbers;
}

QByteArray Digits(double value) { return QByteArray::number(value, 'g', 17); }

} // namespace Expected
