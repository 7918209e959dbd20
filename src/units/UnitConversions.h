#pragma once

#include "units/TUnits.h"

// The factor functions, as part of units/TUnits.h: inline, so that whoever knows his units pays for the arithmetic
// alone.

// Lengths

inline double TUnits::ConvertMillimetersToInches(float x) { return UnitFactors::MillimetersToInches(x); }
inline double TUnits::ConvertInchesToMillimeters(float x) { return UnitFactors::InchesToMillimeters(x); }
inline double TUnits::ConvertMetersToMillimeters(float x) { return UnitFactors::MetersToMillimeters(x); }
inline double TUnits::ConvertMillimetersToMeters(float x) { return UnitFactors::MillimetersToMeters(x); }
inline double TUnits::ConvertMetersToCentimeters(float x) { return UnitFactors::MetersToCentimeters(x); }
inline double TUnits::ConvertCentimetersToMeters(float x) { return UnitFactors::CentimetersToMeters(x); }
inline double TUnits::ConvertMetersToFeet(float x) { return UnitFactors::MetersToFeet(x); }
inline double TUnits::ConvertFeetToMeters(float x) { return UnitFactors::FeetToMeters(x); }
inline double TUnits::ConvertMetersToInches(float x) { return UnitFactors::MetersToInches(x); }
inline double TUnits::ConvertInchesToMeters(float x) { return UnitFactors::InchesToMeters(x); }
inline double TUnits::ConvertMetersToKilometers(float x) { return UnitFactors::MetersToKilometers(x); }
inline double TUnits::ConvertMetersToMiles(float x) { return UnitFactors::MetersToMiles(x); }
inline double TUnits::ConvertKilometersToMiles(float x) { return UnitFactors::KilometersToMiles(x); }
inline double TUnits::ConvertKilometersPerHourToMilesPerHour(float x)
{
    return UnitFactors::KilometersPerHourToMilesPerHour(x);
}
inline double TUnits::ConvertMilesToKilometers(float x) { return UnitFactors::MilesToKilometers(x); }
inline double TUnits::ConvertMilesPerHourToKilometersPerHour(float x)
{
    return UnitFactors::MilesPerHourToKilometersPerHour(x);
}
inline double TUnits::ConvertMilesToMeters(float x) { return UnitFactors::MilesToMeters(x); }

// Areas

inline double TUnits::ConvertHectaresToAcres(float x) { return UnitFactors::HectaresToAcres(x); }
inline double TUnits::ConvertPerAcreToPerHectare(float x) { return UnitFactors::PerAcreToPerHectare(x); }
inline double TUnits::ConvertAcresToHectares(float x) { return UnitFactors::AcresToHectares(x); }
inline double TUnits::ConvertPerHectareToPerAcre(float x) { return UnitFactors::PerHectareToPerAcre(x); }
inline double TUnits::ConvertSqMetersToHectares(float x) { return UnitFactors::SqMetersToHectares(x); }
inline double TUnits::ConvertSqMetersToAcres(float x) { return UnitFactors::SqMetersToAcres(x); }
inline double TUnits::ConvertHectaresToSqMeters(float x) { return UnitFactors::HectaresToSqMeters(x); }

// Speeds

inline double TUnits::ConvertMetersPerSecondToKilometersPerHour(float x)
{
    return UnitFactors::MetersPerSecondToKilometersPerHour(x);
}
inline double TUnits::ConvertMetersPerSecondToMilesPerHour(float x)
{
    return UnitFactors::MetersPerSecondToMilesPerHour(x);
}

// Volumes, masses, densities and counts, by powers of ten

inline double TUnits::ConvertLitersToMilliLiters(float x) { return UnitFactors::LitersToMilliLiters(x); }
inline double TUnits::ConvertPerMilliLiterToPerLiter(float x) { return UnitFactors::PerMilliLiterToPerLiter(x); }
inline double TUnits::ConvertCubicMetersToLiters(float x) { return UnitFactors::CubicMetersToLiters(x); }
inline double TUnits::ConvertTonnesToLiters(float x) { return UnitFactors::TonnesToLiters(x); }
inline double TUnits::ConvertPulsesPerLiterToPulsesPerCubicMeter(float x)
{
    return UnitFactors::PulsesPerLiterToPulsesPerCubicMeter(x);
}
inline double TUnits::ConvertPulsesPerLiterToPulsesPerTonne(float x)
{
    return UnitFactors::PulsesPerLiterToPulsesPerTonne(x);
}
inline double TUnits::ConvertKilogramsPerLiterToKilogramsPerCubicMeter(float x)
{
    return UnitFactors::KilogramsPerLiterToKilogramsPerCubicMeter(x);
}
inline double TUnits::ConvertMilliLitersToLiters(float x) { return UnitFactors::MilliLitersToLiters(x); }
inline double TUnits::ConvertPerLiterToPerMilliLiter(float x) { return UnitFactors::PerLiterToPerMilliLiter(x); }
inline double TUnits::ConvertLitersToCubicMeters(float x) { return UnitFactors::LitersToCubicMeters(x); }
inline double TUnits::ConvertLitersToTonnes(float x) { return UnitFactors::LitersToTonnes(x); }
inline double TUnits::ConvertPulsesPerCubicMeterToPulsesPerLiter(float x)
{
    return UnitFactors::PulsesPerCubicMeterToPulsesPerLiter(x);
}
inline double TUnits::ConvertPulsesPerTonneToPulsesPerLiter(float x)
{
    return UnitFactors::PulsesPerTonneToPulsesPerLiter(x);
}
inline double TUnits::ConvertKilogramsPerCubicMeterToKilogramsPerLiter(float x)
{
    return UnitFactors::KilogramsPerCubicMeterToKilogramsPerLiter(x);
}

// Volumes and what is counted or weighed by volume

inline double TUnits::ConvertLitersToCubicFeet(float x) { return UnitFactors::LitersToCubicFeet(x); }
inline double TUnits::ConvertCubicFeetToLiters(float x) { return UnitFactors::CubicFeetToLiters(x); }
inline double TUnits::ConvertCubicMetersToCubicFeet(float x) { return UnitFactors::CubicMetersToCubicFeet(x); }
inline double TUnits::ConvertCubicFeetToCubicMeters(float x) { return UnitFactors::CubicFeetToCubicMeters(x); }
inline double TUnits::ConvertPulsesPerCubicFootToPulsesPerCubicMeter(float x)
{
    return UnitFactors::PulsesPerCubicFootToPulsesPerCubicMeter(x);
}
inline double TUnits::ConvertPulsesPerCubicMeterToPulsesPerCubicFeet(float x)
{
    return UnitFactors::PulsesPerCubicMeterToPulsesPerCubicFeet(x);
}
inline double TUnits::ConvertUSBushelsToLiters(float x) { return UnitFactors::USBushelsToLiters(x); }
inline double TUnits::ConvertLitersToUSBushels(float x) { return UnitFactors::LitersToUSBushels(x); }
inline double TUnits::ConvertKilogramsPerLiterToKilogramsPerUSBushel(float x)
{
    return UnitFactors::KilogramsPerLiterToKilogramsPerUSBushel(x);
}
inline double TUnits::ConvertKilogramsPerUSBushelToKilogramsPerLiter(float x)
{
    return UnitFactors::KilogramsPerUSBushelToKilogramsPerLiter(x);
}
inline double TUnits::ConvertUKBushelsToLiters(float x) { return UnitFactors::UKBushelsToLiters(x); }
inline double TUnits::ConvertLitersToUKBushels(float x) { return UnitFactors::LitersToUKBushels(x); }
inline double TUnits::ConvertKilogramsPerLiterToKilogramsPerUKBushel(float x)
{
    return UnitFactors::KilogramsPerLiterToKilogramsPerUKBushel(x);
}
inline double TUnits::ConvertKilogramsPerUKBushelToKilogramsPerLiter(float x)
{
    return UnitFactors::KilogramsPerUKBushelToKilogramsPerLiter(x);
}
inline double TUnits::ConvertLitersToUSGallons(float x) { return UnitFactors::LitersToUSGallons(x); }
inline double TUnits::ConvertPerUSGallonToPerLiter(float x) { return UnitFactors::PerUSGallonToPerLiter(x); }
inline double TUnits::ConvertPulsesPerUSGallonToPulsesPerLiter(float x)
{
    return UnitFactors::PulsesPerUSGallonToPulsesPerLiter(x);
}
inline double TUnits::ConvertUSGallonsToLiters(float x) { return UnitFactors::USGallonsToLiters(x); }
inline double TUnits::ConvertPulsesPerLiterToPulsesPerUSGallon(float x)
{
    return UnitFactors::PulsesPerLiterToPulsesPerUSGallon(x);
}
inline double TUnits::ConvertLitersToEnglishGallons(float x) { return UnitFactors::LitersToEnglishGallons(x); }
inline double TUnits::ConvertPerEnglishGallonToPerLiter(float x) { return UnitFactors::PerEnglishGallonToPerLiter(x); }
inline double TUnits::ConvertPulsesPerEnglishGallonToPulsesPerLiter(float x)
{
    return UnitFactors::PulsesPerEnglishGallonToPulsesPerLiter(x);
}
inline double TUnits::ConvertEnglishGallonsToLiters(float x) { return UnitFactors::EnglishGallonsToLiters(x); }
inline double TUnits::ConvertPulsesPerLiterToPulsesPerEnglishGallon(float x)
{
    return UnitFactors::PulsesPerLiterToPulsesPerEnglishGallon(x);
}
inline double TUnits::ConvertLitersToUSFluidOunces(float x) { return UnitFactors::LitersToUSFluidOunces(x); }
inline double TUnits::ConvertPerUSFluidOunceToPerLiter(float x) { return UnitFactors::PerUSFluidOunceToPerLiter(x); }
inline double TUnits::ConvertUSFluidOuncesToLiters(float x) { return UnitFactors::USFluidOuncesToLiters(x); }
inline double TUnits::ConvertPerLiterToPerUSFluidOunce(float x) { return UnitFactors::PerLiterToPerUSFluidOunce(x); }
inline double TUnits::ConvertMilliLitersToUSFluidOunces(float x) { return UnitFactors::MilliLitersToUSFluidOunces(x); }
inline double TUnits::ConvertPerUSFluidOunceToPerMilliLiter(float x)
{
    return UnitFactors::PerUSFluidOunceToPerMilliLiter(x);
}
inline double TUnits::ConvertUSFluidOuncesToMilliLiters(float x) { return UnitFactors::USFluidOuncesToMilliLiters(x); }
inline double TUnits::ConvertPerMilliLiterToPerUSFluidOunce(float x)
{
    return UnitFactors::PerMilliLiterToPerUSFluidOunce(x);
}
inline double TUnits::ConvertLitersToEnglishFluidOunces(float x) { return UnitFactors::LitersToEnglishFluidOunces(x); }
inline double TUnits::ConvertPerEnglishFluidOunceToPerLiter(float x)
{
    return UnitFactors::PerEnglishFluidOunceToPerLiter(x);
}
inline double TUnits::ConvertEnglishFluidOuncesToLiters(float x) { return UnitFactors::EnglishFluidOuncesToLiters(x); }
inline double TUnits::ConvertPerLiterToPerEnglishFluidOunce(float x)
{
    return UnitFactors::PerLiterToPerEnglishFluidOunce(x);
}
inline double TUnits::ConvertMilliLitersToEnglishFluidOunces(float x)
{
    return UnitFactors::MilliLitersToEnglishFluidOunces(x);
}
inline double TUnits::ConvertPerEnglishFluidOunceToPerMilliLiter(float x)
{
    return UnitFactors::PerEnglishFluidOunceToPerMilliLiter(x);
}
inline double TUnits::ConvertEnglishFluidOuncesToMilliLiters(float x)
{
    return UnitFactors::EnglishFluidOuncesToMilliLiters(x);
}
inline double TUnits::ConvertPerMilliLiterToPerEnglishFluidOunce(float x)
{
    return UnitFactors::PerMilliLiterToPerEnglishFluidOunce(x);
}

// Liquid rates per area

inline double TUnits::ConvertLitersPerHectareToUSGallonsPerAcre(float x)
{
    return UnitFactors::LitersPerHectareToUSGallonsPerAcre(x);
}
inline double TUnits::ConvertUSGallonsPerAcreToLitersPerHectare(float x)
{
    return UnitFactors::USGallonsPerAcreToLitersPerHectare(x);
}
inline double TUnits::ConvertLitersPerHectareToEnglishGallonsPerAcre(float x)
{
    return UnitFactors::LitersPerHectareToEnglishGallonsPerAcre(x);
}
inline double TUnits::ConvertEnglishGallonsPerAcreToLitersPerHectare(float x)
{
    return UnitFactors::EnglishGallonsPerAcreToLitersPerHectare(x);
}
inline double TUnits::ConvertMilliLitersPerHectareToUSFluidOuncesPerAcre(float x)
{
    return UnitFactors::MilliLitersPerHectareToUSFluidOuncesPerAcre(x);
}
inline double TUnits::ConvertUSFluidOuncesPerAcreToMilliLitersPerHectare(float x)
{
    return UnitFactors::USFluidOuncesPerAcreToMilliLitersPerHectare(x);
}
inline double TUnits::ConvertMilliLitersPerHectareToEnglishFluidOuncesPerAcre(float x)
{
    return UnitFactors::MilliLitersPerHectareToEnglishFluidOuncesPerAcre(x);
}
inline double TUnits::ConvertEnglishFluidOuncesPerAcreToMilliLitersPerHectare(float x)
{
    return UnitFactors::EnglishFluidOuncesPerAcreToMilliLitersPerHectare(x);
}
inline double TUnits::ConvertLitersPerHectareToUSFluidOuncesPerAcre(float x)
{
    using namespace UnitFactors;
    return Narrow(Wide(ConvertLitersPerHectareToUSGallonsPerAcre(x)) * Wide(USFluidOuncesPerUSGallon));
}
inline double TUnits::ConvertLitersPerHectareToEnglishFluidOuncesPerAcre(float x)
{
    using namespace UnitFactors;
    return Narrow(Wide(ConvertLitersPerHectareToEnglishGallonsPerAcre(x)) * Wide(EnglishFluidOuncesPerEnglishGallon));
}
inline double TUnits::ConvertUSFluidOuncesPerAcreToLitersPerHectare(float x)
{
    return ConvertMilliLitersToLiters(static_cast<float>(ConvertUSFluidOuncesPerAcreToMilliLitersPerHectare(x)));
}
inline double TUnits::ConvertEnglishFluidOuncesPerAcreToLitersPerHectare(float x)
{
    return ConvertMilliLitersToLiters(static_cast<float>(ConvertEnglishFluidOuncesPerAcreToMilliLitersPerHectare(x)));
}

// Pressures

inline double TUnits::ConvertKilopascalsToPoundsPerSquareInch(float x)
{
    return UnitFactors::KilopascalsToPoundsPerSquareInch(x);
}
inline double TUnits::ConvertPoundsPerSquareInchToKilopascals(float x)
{
    return UnitFactors::PoundsPerSquareInchToKilopascals(x);
}
inline double TUnits::ConvertKilopascalsToBar(float x) { return UnitFactors::KilopascalsToBar(x); }
inline double TUnits::ConvertBarToKilopascals(float x) { return UnitFactors::BarToKilopascals(x); }

// Masses, and what is counted or weighed by mass

inline double TUnits::ConvertPulsesPerTonneToPulsesPerPound(float x)
{
    return UnitFactors::PulsesPerTonneToPulsesPerPound(x);
}
inline double TUnits::ConvertPulsesPerPoundToPulsesPerTonne(float x)
{
    return UnitFactors::PulsesPerPoundToPulsesPerTonne(x);
}
inline double TUnits::ConvertPulsesPerKPHToPulsesPerMPH(float x) { return UnitFactors::PulsesPerKPHToPulsesPerMPH(x); }
inline double TUnits::ConvertPulsesPerMPHToPulsesPerKPH(float x) { return UnitFactors::PulsesPerMPHToPulsesPerKPH(x); }
inline double TUnits::ConvertKilogramsToPounds(float x) { return UnitFactors::KilogramsToPounds(x); }
inline double TUnits::ConvertPoundsToKilograms(float x) { return UnitFactors::PoundsToKilograms(x); }
inline double TUnits::ConvertTonnesToPounds(float x) { return UnitFactors::TonnesToPounds(x); }
inline double TUnits::ConvertPoundsToTonnes(float x) { return UnitFactors::PoundsToTonnes(x); }
inline double TUnits::ConvertKilogramsPerHectareToPoundsPerAcre(float x)
{
    return UnitFactors::KilogramsPerHectareToPoundsPerAcre(x);
}
inline double TUnits::ConvertPoundsPerAcreToKilogramsPerHectare(float x)
{
    return UnitFactors::PoundsPerAcreToKilogramsPerHectare(x);
}
inline double TUnits::ConvertKilogramsPerLiterToPoundsPerGallon(float x)
{
    return UnitFactors::KilogramsPerLiterToPoundsPerGallon(x);
}
inline double TUnits::ConvertKilogramsPerLiterToPoundsPerUSGallon(float x)
{
    return UnitFactors::KilogramsPerLiterToPoundsPerUSGallon(x);
}
inline double TUnits::ConvertPoundsPerGallonToKilogramsPerLiter(float x)
{
    return UnitFactors::PoundsPerGallonToKilogramsPerLiter(x);
}
inline double TUnits::ConvertPoundsPerUSGallonToKilogramsPerLiter(float x)
{
    return UnitFactors::PoundsPerUSGallonToKilogramsPerLiter(x);
}
inline double TUnits::ConvertKilogramsPerLiterToPoundsPerCubicFoot(float x)
{
    return UnitFactors::KilogramsPerLiterToPoundsPerCubicFoot(x);
}
inline double TUnits::ConvertKilogramsPerCubicMeterToPoundsPerCubicFoot(float x)
{
    return UnitFactors::KilogramsPerCubicMeterToPoundsPerCubicFoot(x);
}
inline double TUnits::ConvertPoundsPerCubicFootToKilogramsPerCubicMeter(float x)
{
    return UnitFactors::PoundsPerCubicFootToKilogramsPerCubicMeter(x);
}
inline double TUnits::ConvertKilogramsPerLiterToPoundsPerUSBushel(float x)
{
    using namespace UnitFactors;
    return Narrow(Widen(x) * Wide(PoundsPerKilogram) * Wide(LitersPerUSBushel));
}
inline double TUnits::ConvertKilogramsPerLiterToPoundsPerUKBushel(float x)
{
    using namespace UnitFactors;
    return Narrow(Widen(x) * Wide(PoundsPerKilogram) * Wide(LitersPerUKBushel));
}

// Seeds

inline double TUnits::ConvertKiloseedsPerHectareToKiloseedsPerAcre(float x)
{
    return UnitFactors::KiloseedsPerHectareToKiloseedsPerAcre(x);
}
inline double TUnits::ConvertKiloseedsPerAcreToKiloseedsPerHectare(float x)
{
    return UnitFactors::KiloseedsPerAcreToKiloseedsPerHectare(x);
}

// Temperatures

inline double TUnits::ConvertCelsiusToFahrenheit(float x)
{
    using namespace UnitFactors;
    return Narrow(Widen(x) / Wide(CelsiusPerFahrenheit) + Wide(FreezingPointFahrenheit));
}
inline double TUnits::ConvertFahrenheitToCelsius(float x)
{
    using namespace UnitFactors;
    return Narrow((Widen(x) - Wide(FreezingPointFahrenheit)) * Wide(CelsiusPerFahrenheit));
}

// Liquids by mass: one litre counts as one kilogram

inline double TUnits::ConvertLitersToPounds(float x)
{
    using namespace UnitFactors;
    return Narrow(Widen(x) / Wide(Thousand) * Wide(PoundsPerTonne));
}
inline double TUnits::ConvertPoundsToLiters(float x)
{
    using namespace UnitFactors;
    return Narrow(Widen(x) / Wide(PoundsPerTonne) * Wide(Thousand));
}

// Rates per area, across quantities

inline double TUnits::ConvertLitersPerHectareToCubicMetersPerHectare(float x)
{
    return UnitFactors::LitersPerHectareToCubicMetersPerHectare(x);
}
inline double TUnits::ConvertLitersPerHectareToTonnesPerHectare(float x)
{
    return UnitFactors::LitersPerHectareToTonnesPerHectare(x);
}
inline double TUnits::ConvertCubicMetersPerHectareToLitersPerHectare(float x)
{
    return UnitFactors::CubicMetersPerHectareToLitersPerHectare(x);
}
inline double TUnits::ConvertTonnesPerHectareToLitersPerHectare(float x)
{
    return UnitFactors::TonnesPerHectareToLitersPerHectare(x);
}
inline double TUnits::ConvertCubicMetersPerHectareToCubicFeetPerAcre(float x)
{
    return UnitFactors::CubicMetersPerHectareToCubicFeetPerAcre(x);
}
inline double TUnits::ConvertCubicFeetPerAcreToCubicMetersPerHectare(float x)
{
    return UnitFactors::CubicFeetPerAcreToCubicMetersPerHectare(x);
}
inline double TUnits::ConvertCubicFeetPerAcreToLitersPerHectare(float x)
{
    return UnitFactors::CubicFeetPerAcreToLitersPerHectare(x);
}
inline double TUnits::ConvertTonnesPerHectareToPoundsPerAcre(float x)
{
    return UnitFactors::TonnesPerHectareToPoundsPerAcre(x);
}
inline double TUnits::ConvertPoundsPerAcreToTonnesPerHectare(float x)
{
    return UnitFactors::PoundsPerAcreToTonnesPerHectare(x);
}
inline double TUnits::ConvertMilliLitersPerAcreToLitersPerHectare(float x)
{
    return UnitFactors::MilliLitersPerAcreToLitersPerHectare(x);
}
inline double TUnits::ConvertCubicMetersPerAcreToLitersPerHectare(float x)
{
    using namespace UnitFactors;
    return Narrow(Widen(x) * Wide(AcresPerHectare) * Wide(Thousand));
}
inline double TUnits::ConvertTonnesPerAcreToLitersPerHectare(float x)
{
    using namespace UnitFactors;
    return Narrow(Widen(x) * Wide(AcresPerHectare) * Wide(Thousand));
}
inline double TUnits::ConvertLitersPerHectareToCubicMetersPerAcre(float x)
{
    return UnitFactors::LitersPerHectareToCubicMetersPerAcre(x);
}
inline double TUnits::ConvertLitersPerHectareToTonnesPerAcre(float x)
{
    return UnitFactors::LitersPerHectareToTonnesPerAcre(x);
}
inline double TUnits::ConvertLitersPerHectareToCubicFeetPerAcre(float x)
{
    using namespace UnitFactors;
    return Narrow(Widen(x) * Wide(HectaresPerAcre) * Wide(CubicFeetPerLiter));
}
inline double TUnits::ConvertLitersPerHectareToPoundsPerAcre(float x)
{
    using namespace UnitFactors;
    return Narrow(Widen(x) * Wide(HectaresPerAcre) / Wide(Thousand) * Wide(PoundsPerTonne));
}
inline double TUnits::ConvertLitersPerHectareToMilliLitersPerAcre(float x)
{
    using namespace UnitFactors;
    return Narrow(Widen(x) * Wide(HectaresPerAcre) * Wide(Thousand));
}

// Rates per travelled distance

inline double TUnits::ConvertLitersPerHectareToLitersPer100Meters(float x)
{
    return UnitFactors::LitersPerHectareToLitersPer100Meters(x);
}
inline double TUnits::ConvertLitersPer100MetersToLitersPerHectare(float x)
{
    return UnitFactors::LitersPer100MetersToLitersPerHectare(x);
}
inline double TUnits::ConvertLitersPerHectareToEnglishGallonsPer100Yards(float x)
{
    return UnitFactors::LitersPerHectareToEnglishGallonsPer100Yards(x);
}
inline double TUnits::ConvertLitersPerHectareToUSGallonsPer100Yards(float x)
{
    return UnitFactors::LitersPerHectareToUSGallonsPer100Yards(x);
}
inline double TUnits::ConvertEnglishGallonsPer100YardsToLitersPerHectare(float x)
{
    return UnitFactors::EnglishGallonsPer100YardsToLitersPerHectare(x);
}
inline double TUnits::ConvertUSGallonsPer100YardsToLitersPerHectare(float x)
{
    return UnitFactors::USGallonsPer100YardsToLitersPerHectare(x);
}
