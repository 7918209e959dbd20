// The factor functions. Each constant is a 32-bit float, and each result is computed in extended precision from those
// floats: recorded data was computed so, and exact factors would shift it.

#include "units/TUnits.h"

namespace {

using Wide = long double;

constexpr double Narrow(Wide value) { return static_cast<double>(value); }

constexpr float AcresPerHectare = 2.4710538f;
constexpr float BarPerKilopascal = 0.01f;
constexpr float CelsiusPerFahrenheit = 0.55555558f;
constexpr float CubicFeetPerCubicMeter = 35.314667f;
constexpr float CubicFeetPerLiter = 0.035314668f;
constexpr float EnglishFluidOuncesPerAcrePerMilliLiterPerHectare = 0.014242992f;
constexpr float EnglishFluidOuncesPerEnglishGallon = 160.0f;
constexpr float EnglishFluidOuncesPerLiter = 35.19508f;
constexpr float EnglishFluidOuncesPerMilliLiter = 0.035195f;
constexpr float EnglishGallonsPerAcrePerLiterPerHectare = 0.089018703f;
constexpr float EnglishGallonsPerLiter = 0.21996924f;
constexpr float FeetPerMeter = 3.2808399f;
constexpr float FreezingPointFahrenheit = 32.0f;
constexpr float HectaresPerAcre = 0.40468565f;
constexpr float HectaresPerSqMeter = 0.0001f;
constexpr float Hundred = 100.0f;
constexpr float InchesPerMeter = 39.370079f;
constexpr float InchesPerMillimeter = 0.039370079f;
constexpr float KilometersPerMeter = 0.001f;
constexpr float KilometersPerMile = 1.609344f;
constexpr float KphPerMeterPerSecond = 3.5999999f;
constexpr float LitersPerUKBushel = 36.368736f;
constexpr float LitersPerUSBushel = 35.239071f;
constexpr float MetersPerFoot = 0.3048f;
constexpr float MetersPerMile = 1609.344f;
constexpr float MilesPerKilometer = 0.62137121f;
constexpr float MilesPerMeter = 0.0006213712f;
constexpr float MphPerMeterPerSecond = 2.2369363f;
constexpr float PoundsPerKilogram = 2.2046225f;
constexpr float PoundsPerTonne = 2204.6226f;
constexpr float PsiPerKilopascal = 0.14504001f;
constexpr float SqMetersPerAcre = 4046.8564f;
constexpr float SqMetersPerHectare = 10000.0f;
constexpr float Thousand = 1000.0f;
constexpr float USFluidOuncesPerAcrePerMilliLiterPerHectare = 0.0136832f;
constexpr float USFluidOuncesPerLiter = 33.814022f;
constexpr float USFluidOuncesPerMilliLiter = 0.033814002f;
constexpr float USFluidOuncesPerUSGallon = 128.0f;
constexpr float USGallonsPerAcrePerLiterPerHectare = 0.1069f;
constexpr float USGallonsPerLiter = 0.26416999f;
constexpr float YardsPer100Meters = 109.36133f;

} // namespace

// Lengths

double TUnits::ConvertMillimetersToInches(float x) { return Narrow(Wide(x) * InchesPerMillimeter); }
double TUnits::ConvertInchesToMillimeters(float x) { return Narrow(Wide(x) / InchesPerMillimeter); }
double TUnits::ConvertMetersToMillimeters(float x) { return Narrow(Wide(x) * Thousand); }
double TUnits::ConvertMillimetersToMeters(float x) { return Narrow(Wide(x) / Thousand); }
double TUnits::ConvertMetersToCentimeters(float x) { return Narrow(Wide(x) * Hundred); }
double TUnits::ConvertCentimetersToMeters(float x) { return Narrow(Wide(x) / Hundred); }
double TUnits::ConvertMetersToFeet(float x) { return Narrow(Wide(x) * FeetPerMeter); }
double TUnits::ConvertFeetToMeters(float x) { return Narrow(Wide(x) * MetersPerFoot); }
double TUnits::ConvertMetersToInches(float x) { return Narrow(Wide(x) * InchesPerMeter); }
double TUnits::ConvertInchesToMeters(float x) { return Narrow(Wide(x) / InchesPerMeter); }
double TUnits::ConvertMetersToKilometers(float x) { return Narrow(Wide(x) * KilometersPerMeter); }
double TUnits::ConvertMetersToMiles(float x) { return Narrow(Wide(x) * MilesPerMeter); }
double TUnits::ConvertKilometersToMiles(float x) { return Narrow(Wide(x) * MilesPerKilometer); }
double TUnits::ConvertKilometersPerHourToMilesPerHour(float x) { return Narrow(Wide(x) * MilesPerKilometer); }
double TUnits::ConvertMilesToKilometers(float x) { return Narrow(Wide(x) * KilometersPerMile); }
double TUnits::ConvertMilesPerHourToKilometersPerHour(float x) { return Narrow(Wide(x) * KilometersPerMile); }
double TUnits::ConvertMilesToMeters(float x) { return Narrow(Wide(x) * MetersPerMile); }

// Areas

double TUnits::ConvertHectaresToAcres(float x) { return Narrow(Wide(x) * AcresPerHectare); }
double TUnits::ConvertPerAcreToPerHectare(float x) { return Narrow(Wide(x) * AcresPerHectare); }
double TUnits::ConvertAcresToHectares(float x) { return Narrow(Wide(x) * HectaresPerAcre); }
double TUnits::ConvertPerHectareToPerAcre(float x) { return Narrow(Wide(x) * HectaresPerAcre); }
double TUnits::ConvertSqMetersToHectares(float x) { return Narrow(Wide(x) * HectaresPerSqMeter); }
double TUnits::ConvertSqMetersToAcres(float x) { return Narrow(Wide(x) / SqMetersPerAcre); }
double TUnits::ConvertHectaresToSqMeters(float x) { return Narrow(Wide(x) * SqMetersPerHectare); }

// Speeds

double TUnits::ConvertMetersPerSecondToKilometersPerHour(float x) { return Narrow(Wide(x) * KphPerMeterPerSecond); }
double TUnits::ConvertMetersPerSecondToMilesPerHour(float x) { return Narrow(Wide(x) * MphPerMeterPerSecond); }

// Volumes, masses, densities and counts, by powers of ten

double TUnits::ConvertLitersToMilliLiters(float x) { return Narrow(Wide(x) * Thousand); }
double TUnits::ConvertPerMilliLiterToPerLiter(float x) { return Narrow(Wide(x) * Thousand); }
double TUnits::ConvertCubicMetersToLiters(float x) { return Narrow(Wide(x) * Thousand); }
double TUnits::ConvertTonnesToLiters(float x) { return Narrow(Wide(x) * Thousand); }
double TUnits::ConvertPulsesPerLiterToPulsesPerCubicMeter(float x) { return Narrow(Wide(x) * Thousand); }
double TUnits::ConvertPulsesPerLiterToPulsesPerTonne(float x) { return Narrow(Wide(x) * Thousand); }
double TUnits::ConvertKilogramsPerLiterToKilogramsPerCubicMeter(float x) { return Narrow(Wide(x) * Thousand); }
double TUnits::ConvertMilliLitersToLiters(float x) { return Narrow(Wide(x) / Thousand); }
double TUnits::ConvertPerLiterToPerMilliLiter(float x) { return Narrow(Wide(x) / Thousand); }
double TUnits::ConvertLitersToCubicMeters(float x) { return Narrow(Wide(x) / Thousand); }
double TUnits::ConvertLitersToTonnes(float x) { return Narrow(Wide(x) / Thousand); }
double TUnits::ConvertPulsesPerCubicMeterToPulsesPerLiter(float x) { return Narrow(Wide(x) / Thousand); }
double TUnits::ConvertPulsesPerTonneToPulsesPerLiter(float x) { return Narrow(Wide(x) / Thousand); }
double TUnits::ConvertKilogramsPerCubicMeterToKilogramsPerLiter(float x) { return Narrow(Wide(x) / Thousand); }

// Volumes and what is counted or weighed by volume

double TUnits::ConvertLitersToCubicFeet(float x) { return Narrow(Wide(x) * CubicFeetPerLiter); }
double TUnits::ConvertCubicFeetToLiters(float x) { return Narrow(Wide(x) / CubicFeetPerLiter); }
double TUnits::ConvertCubicMetersToCubicFeet(float x) { return Narrow(Wide(x) * CubicFeetPerCubicMeter); }
double TUnits::ConvertCubicFeetToCubicMeters(float x) { return Narrow(Wide(x) / CubicFeetPerCubicMeter); }
double TUnits::ConvertPulsesPerCubicFootToPulsesPerCubicMeter(float x)
{
    return Narrow(Wide(x) * CubicFeetPerCubicMeter);
}
double TUnits::ConvertPulsesPerCubicMeterToPulsesPerCubicFeet(float x)
{
    return Narrow(Wide(x) / CubicFeetPerCubicMeter);
}
double TUnits::ConvertUSBushelsToLiters(float x) { return Narrow(Wide(x) * LitersPerUSBushel); }
double TUnits::ConvertLitersToUSBushels(float x) { return Narrow(Wide(x) / LitersPerUSBushel); }
double TUnits::ConvertKilogramsPerLiterToKilogramsPerUSBushel(float x) { return Narrow(Wide(x) * LitersPerUSBushel); }
double TUnits::ConvertKilogramsPerUSBushelToKilogramsPerLiter(float x) { return Narrow(Wide(x) / LitersPerUSBushel); }
double TUnits::ConvertUKBushelsToLiters(float x) { return Narrow(Wide(x) * LitersPerUKBushel); }
double TUnits::ConvertLitersToUKBushels(float x) { return Narrow(Wide(x) / LitersPerUKBushel); }
double TUnits::ConvertKilogramsPerLiterToKilogramsPerUKBushel(float x) { return Narrow(Wide(x) * LitersPerUKBushel); }
double TUnits::ConvertKilogramsPerUKBushelToKilogramsPerLiter(float x) { return Narrow(Wide(x) / LitersPerUKBushel); }
double TUnits::ConvertLitersToUSGallons(float x) { return Narrow(Wide(x) * USGallonsPerLiter); }
double TUnits::ConvertPerUSGallonToPerLiter(float x) { return Narrow(Wide(x) * USGallonsPerLiter); }
double TUnits::ConvertPulsesPerUSGallonToPulsesPerLiter(float x) { return Narrow(Wide(x) * USGallonsPerLiter); }
double TUnits::ConvertUSGallonsToLiters(float x) { return Narrow(Wide(x) / USGallonsPerLiter); }
double TUnits::ConvertPulsesPerLiterToPulsesPerUSGallon(float x) { return Narrow(Wide(x) / USGallonsPerLiter); }
double TUnits::ConvertLitersToEnglishGallons(float x) { return Narrow(Wide(x) * EnglishGallonsPerLiter); }
double TUnits::ConvertPerEnglishGallonToPerLiter(float x) { return Narrow(Wide(x) * EnglishGallonsPerLiter); }
double TUnits::ConvertPulsesPerEnglishGallonToPulsesPerLiter(float x)
{
    return Narrow(Wide(x) * EnglishGallonsPerLiter);
}
double TUnits::ConvertEnglishGallonsToLiters(float x) { return Narrow(Wide(x) / EnglishGallonsPerLiter); }
double TUnits::ConvertPulsesPerLiterToPulsesPerEnglishGallon(float x)
{
    return Narrow(Wide(x) / EnglishGallonsPerLiter);
}
double TUnits::ConvertLitersToUSFluidOunces(float x) { return Narrow(Wide(x) * USFluidOuncesPerLiter); }
double TUnits::ConvertPerUSFluidOunceToPerLiter(float x) { return Narrow(Wide(x) * USFluidOuncesPerLiter); }
double TUnits::ConvertUSFluidOuncesToLiters(float x) { return Narrow(Wide(x) / USFluidOuncesPerLiter); }
double TUnits::ConvertPerLiterToPerUSFluidOunce(float x) { return Narrow(Wide(x) / USFluidOuncesPerLiter); }
double TUnits::ConvertMilliLitersToUSFluidOunces(float x) { return Narrow(Wide(x) * USFluidOuncesPerMilliLiter); }
double TUnits::ConvertPerUSFluidOunceToPerMilliLiter(float x) { return Narrow(Wide(x) * USFluidOuncesPerMilliLiter); }
double TUnits::ConvertUSFluidOuncesToMilliLiters(float x) { return Narrow(Wide(x) / USFluidOuncesPerMilliLiter); }
double TUnits::ConvertPerMilliLiterToPerUSFluidOunce(float x) { return Narrow(Wide(x) / USFluidOuncesPerMilliLiter); }
double TUnits::ConvertLitersToEnglishFluidOunces(float x) { return Narrow(Wide(x) * EnglishFluidOuncesPerLiter); }
double TUnits::ConvertPerEnglishFluidOunceToPerLiter(float x) { return Narrow(Wide(x) * EnglishFluidOuncesPerLiter); }
double TUnits::ConvertEnglishFluidOuncesToLiters(float x) { return Narrow(Wide(x) / EnglishFluidOuncesPerLiter); }
double TUnits::ConvertPerLiterToPerEnglishFluidOunce(float x) { return Narrow(Wide(x) / EnglishFluidOuncesPerLiter); }
double TUnits::ConvertMilliLitersToEnglishFluidOunces(float x)
{
    return Narrow(Wide(x) * EnglishFluidOuncesPerMilliLiter);
}
double TUnits::ConvertPerEnglishFluidOunceToPerMilliLiter(float x)
{
    return Narrow(Wide(x) * EnglishFluidOuncesPerMilliLiter);
}
double TUnits::ConvertEnglishFluidOuncesToMilliLiters(float x)
{
    return Narrow(Wide(x) / EnglishFluidOuncesPerMilliLiter);
}
double TUnits::ConvertPerMilliLiterToPerEnglishFluidOunce(float x)
{
    return Narrow(Wide(x) / EnglishFluidOuncesPerMilliLiter);
}

// Liquid rates per area

double TUnits::ConvertLitersPerHectareToUSGallonsPerAcre(float x)
{
    return Narrow(Wide(x) * USGallonsPerAcrePerLiterPerHectare);
}
double TUnits::ConvertUSGallonsPerAcreToLitersPerHectare(float x)
{
    return Narrow(Wide(x) / USGallonsPerAcrePerLiterPerHectare);
}
double TUnits::ConvertLitersPerHectareToEnglishGallonsPerAcre(float x)
{
    return Narrow(Wide(x) * EnglishGallonsPerAcrePerLiterPerHectare);
}
double TUnits::ConvertEnglishGallonsPerAcreToLitersPerHectare(float x)
{
    return Narrow(Wide(x) / EnglishGallonsPerAcrePerLiterPerHectare);
}
double TUnits::ConvertMilliLitersPerHectareToUSFluidOuncesPerAcre(float x)
{
    return Narrow(Wide(x) * USFluidOuncesPerAcrePerMilliLiterPerHectare);
}
double TUnits::ConvertUSFluidOuncesPerAcreToMilliLitersPerHectare(float x)
{
    return Narrow(Wide(x) / USFluidOuncesPerAcrePerMilliLiterPerHectare);
}
double TUnits::ConvertMilliLitersPerHectareToEnglishFluidOuncesPerAcre(float x)
{
    return Narrow(Wide(x) * EnglishFluidOuncesPerAcrePerMilliLiterPerHectare);
}
double TUnits::ConvertEnglishFluidOuncesPerAcreToMilliLitersPerHectare(float x)
{
    return Narrow(Wide(x) / EnglishFluidOuncesPerAcrePerMilliLiterPerHectare);
}
double TUnits::ConvertLitersPerHectareToUSFluidOuncesPerAcre(float x)
{
    return Narrow(Wide(ConvertLitersPerHectareToUSGallonsPerAcre(x)) * USFluidOuncesPerUSGallon);
}
double TUnits::ConvertLitersPerHectareToEnglishFluidOuncesPerAcre(float x)
{
    return Narrow(Wide(ConvertLitersPerHectareToEnglishGallonsPerAcre(x)) * EnglishFluidOuncesPerEnglishGallon);
}
double TUnits::ConvertUSFluidOuncesPerAcreToLitersPerHectare(float x)
{
    return ConvertMilliLitersToLiters(static_cast<float>(ConvertUSFluidOuncesPerAcreToMilliLitersPerHectare(x)));
}
double TUnits::ConvertEnglishFluidOuncesPerAcreToLitersPerHectare(float x)
{
    return ConvertMilliLitersToLiters(static_cast<float>(ConvertEnglishFluidOuncesPerAcreToMilliLitersPerHectare(x)));
}

// Pressures

double TUnits::ConvertKilopascalsToPoundsPerSquareInch(float x) { return Narrow(Wide(x) * PsiPerKilopascal); }
double TUnits::ConvertPoundsPerSquareInchToKilopascals(float x) { return Narrow(Wide(x) / PsiPerKilopascal); }
double TUnits::ConvertKilopascalsToBar(float x) { return Narrow(Wide(x) * BarPerKilopascal); }
double TUnits::ConvertBarToKilopascals(float x) { return Narrow(Wide(x) / BarPerKilopascal); }

// Masses, and what is counted or weighed by mass

double TUnits::ConvertPulsesPerTonneToPulsesPerPound(float x) { return Narrow(Wide(x) / PoundsPerTonne); }
double TUnits::ConvertPulsesPerPoundToPulsesPerTonne(float x) { return Narrow(Wide(x) * PoundsPerTonne); }
double TUnits::ConvertPulsesPerKPHToPulsesPerMPH(float x) { return Narrow(Wide(x) / MilesPerKilometer); }
double TUnits::ConvertPulsesPerMPHToPulsesPerKPH(float x) { return Narrow(Wide(x) * MilesPerKilometer); }
double TUnits::ConvertKilogramsToPounds(float x) { return Narrow(Wide(x) * PoundsPerKilogram); }
double TUnits::ConvertPoundsToKilograms(float x) { return Narrow(Wide(x) / PoundsPerKilogram); }
double TUnits::ConvertTonnesToPounds(float x) { return Narrow(Wide(x) * PoundsPerTonne); }
double TUnits::ConvertPoundsToTonnes(float x) { return Narrow(Wide(x) / PoundsPerTonne); }
double TUnits::ConvertKilogramsPerHectareToPoundsPerAcre(float x)
{
    return Narrow(Wide(x) * PoundsPerKilogram / AcresPerHectare);
}
double TUnits::ConvertPoundsPerAcreToKilogramsPerHectare(float x)
{
    return Narrow(Wide(x) * AcresPerHectare / PoundsPerKilogram);
}
double TUnits::ConvertKilogramsPerLiterToPoundsPerGallon(float x)
{
    return Narrow(Wide(x) * PoundsPerKilogram / EnglishGallonsPerLiter);
}
double TUnits::ConvertKilogramsPerLiterToPoundsPerUSGallon(float x)
{
    return Narrow(Wide(x) * PoundsPerKilogram / USGallonsPerLiter);
}
double TUnits::ConvertPoundsPerGallonToKilogramsPerLiter(float x)
{
    return Narrow(Wide(x) * EnglishGallonsPerLiter / PoundsPerKilogram);
}
double TUnits::ConvertPoundsPerUSGallonToKilogramsPerLiter(float x)
{
    return Narrow(Wide(x) * USGallonsPerLiter / PoundsPerKilogram);
}
double TUnits::ConvertKilogramsPerLiterToPoundsPerCubicFoot(float x)
{
    return Narrow(Wide(x) * PoundsPerKilogram / CubicFeetPerLiter);
}
double TUnits::ConvertKilogramsPerCubicMeterToPoundsPerCubicFoot(float x)
{
    return Narrow(Wide(x) * PoundsPerKilogram / CubicFeetPerCubicMeter);
}
double TUnits::ConvertPoundsPerCubicFootToKilogramsPerCubicMeter(float x)
{
    return Narrow(Wide(x) * CubicFeetPerCubicMeter / PoundsPerKilogram);
}
double TUnits::ConvertKilogramsPerLiterToPoundsPerUSBushel(float x)
{
    return Narrow(Wide(x) * PoundsPerKilogram * LitersPerUSBushel);
}
double TUnits::ConvertKilogramsPerLiterToPoundsPerUKBushel(float x)
{
    return Narrow(Wide(x) * PoundsPerKilogram * LitersPerUKBushel);
}

// Seeds

double TUnits::ConvertKiloseedsPerHectareToKiloseedsPerAcre(float x) { return Narrow(Wide(x) / AcresPerHectare); }
double TUnits::ConvertKiloseedsPerAcreToKiloseedsPerHectare(float x) { return Narrow(Wide(x) * AcresPerHectare); }

// Temperatures

double TUnits::ConvertCelsiusToFahrenheit(float x)
{
    return Narrow(Wide(x) / CelsiusPerFahrenheit + FreezingPointFahrenheit);
}
double TUnits::ConvertFahrenheitToCelsius(float x)
{
    return Narrow((Wide(x) - FreezingPointFahrenheit) * CelsiusPerFahrenheit);
}

// Liquids by mass: one litre counts as one kilogram

double TUnits::ConvertLitersToPounds(float x) { return Narrow(Wide(x) / Thousand * PoundsPerTonne); }
double TUnits::ConvertPoundsToLiters(float x) { return Narrow(Wide(x) / PoundsPerTonne * Thousand); }

// Rates per area, across quantities

double TUnits::ConvertLitersPerHectareToCubicMetersPerHectare(float x) { return Narrow(Wide(x) / Thousand); }
double TUnits::ConvertLitersPerHectareToTonnesPerHectare(float x) { return Narrow(Wide(x) / Thousand); }
double TUnits::ConvertCubicMetersPerHectareToLitersPerHectare(float x) { return Narrow(Wide(x) * Thousand); }
double TUnits::ConvertTonnesPerHectareToLitersPerHectare(float x) { return Narrow(Wide(x) * Thousand); }
double TUnits::ConvertCubicMetersPerHectareToCubicFeetPerAcre(float x)
{
    return Narrow(Wide(x) * CubicFeetPerCubicMeter / AcresPerHectare);
}
double TUnits::ConvertCubicFeetPerAcreToCubicMetersPerHectare(float x)
{
    return Narrow(Wide(x) * AcresPerHectare / CubicFeetPerCubicMeter);
}
double TUnits::ConvertCubicFeetPerAcreToLitersPerHectare(float x)
{
    return Narrow(Wide(x) * AcresPerHectare / CubicFeetPerLiter);
}
double TUnits::ConvertTonnesPerHectareToPoundsPerAcre(float x)
{
    return Narrow(Wide(x) * PoundsPerTonne / AcresPerHectare);
}
double TUnits::ConvertPoundsPerAcreToTonnesPerHectare(float x)
{
    return Narrow(Wide(x) * AcresPerHectare / PoundsPerTonne);
}
double TUnits::ConvertMilliLitersPerAcreToLitersPerHectare(float x)
{
    return Narrow(Wide(x) * AcresPerHectare / Thousand);
}
double TUnits::ConvertCubicMetersPerAcreToLitersPerHectare(float x)
{
    return Narrow(Wide(x) * AcresPerHectare * Thousand);
}
double TUnits::ConvertTonnesPerAcreToLitersPerHectare(float x) { return Narrow(Wide(x) * AcresPerHectare * Thousand); }
double TUnits::ConvertLitersPerHectareToCubicMetersPerAcre(float x)
{
    return Narrow(Wide(x) * HectaresPerAcre / Thousand);
}
double TUnits::ConvertLitersPerHectareToTonnesPerAcre(float x) { return Narrow(Wide(x) * HectaresPerAcre / Thousand); }
double TUnits::ConvertLitersPerHectareToCubicFeetPerAcre(float x)
{
    return Narrow(Wide(x) * HectaresPerAcre * CubicFeetPerLiter);
}
double TUnits::ConvertLitersPerHectareToPoundsPerAcre(float x)
{
    return Narrow(Wide(x) * HectaresPerAcre / Thousand * PoundsPerTonne);
}
double TUnits::ConvertLitersPerHectareToMilliLitersPerAcre(float x)
{
    return Narrow(Wide(x) * HectaresPerAcre * Thousand);
}

// Rates per travelled distance

double TUnits::ConvertLitersPerHectareToLitersPer100Meters(float x) { return Narrow(Wide(x) / Hundred); }
double TUnits::ConvertLitersPer100MetersToLitersPerHectare(float x) { return Narrow(Wide(x) * Hundred); }
double TUnits::ConvertLitersPerHectareToEnglishGallonsPer100Yards(float x)
{
    return Narrow(Wide(x) * EnglishGallonsPerLiter / YardsPer100Meters);
}
double TUnits::ConvertLitersPerHectareToUSGallonsPer100Yards(float x)
{
    return Narrow(Wide(x) * USGallonsPerLiter / YardsPer100Meters);
}
double TUnits::ConvertEnglishGallonsPer100YardsToLitersPerHectare(float x)
{
    return Narrow(Wide(x) * YardsPer100Meters / EnglishGallonsPerLiter);
}
double TUnits::ConvertUSGallonsPer100YardsToLitersPerHectare(float x)
{
    return Narrow(Wide(x) * YardsPer100Meters / USGallonsPerLiter);
}
