#pragma once

// The factor functions, as part of units/TUnits.h. Inline, so that whoever knows his units pays for the arithmetic
// alone; and compiled into the library once, for calls by pointer and for programs built when they were not inline yet.
#ifndef CABSETTINGS_FACTOR
#define CABSETTINGS_FACTOR inline
#endif

// Lengths

CABSETTINGS_FACTOR double TUnits::ConvertMillimetersToInches(float x) { return UnitFactors::MillimetersToInches(x); }
CABSETTINGS_FACTOR double TUnits::ConvertInchesToMillimeters(float x) { return UnitFactors::InchesToMillimeters(x); }
CABSETTINGS_FACTOR double TUnits::ConvertMetersToMillimeters(float x) { return UnitFactors::MetersToMillimeters(x); }
CABSETTINGS_FACTOR double TUnits::ConvertMillimetersToMeters(float x) { return UnitFactors::MillimetersToMeters(x); }
CABSETTINGS_FACTOR double TUnits::ConvertMetersToCentimeters(float x) { return UnitFactors::MetersToCentimeters(x); }
CABSETTINGS_FACTOR double TUnits::ConvertCentimetersToMeters(float x) { return UnitFactors::CentimetersToMeters(x); }
CABSETTINGS_FACTOR double TUnits::ConvertMetersToFeet(float x) { return UnitFactors::MetersToFeet(x); }
CABSETTINGS_FACTOR double TUnits::ConvertFeetToMeters(float x) { return UnitFactors::FeetToMeters(x); }
CABSETTINGS_FACTOR double TUnits::ConvertMetersToInches(float x) { return UnitFactors::MetersToInches(x); }
CABSETTINGS_FACTOR double TUnits::ConvertInchesToMeters(float x) { return UnitFactors::InchesToMeters(x); }
CABSETTINGS_FACTOR double TUnits::ConvertMetersToKilometers(float x) { return UnitFactors::MetersToKilometers(x); }
CABSETTINGS_FACTOR double TUnits::ConvertMetersToMiles(float x) { return UnitFactors::MetersToMiles(x); }
CABSETTINGS_FACTOR double TUnits::ConvertKilometersToMiles(float x) { return UnitFactors::KilometersToMiles(x); }
CABSETTINGS_FACTOR double TUnits::ConvertKilometersPerHourToMilesPerHour(float x)
{
    return UnitFactors::KilometersPerHourToMilesPerHour(x);
}
CABSETTINGS_FACTOR double TUnits::ConvertMilesToKilometers(float x) { return UnitFactors::MilesToKilometers(x); }
CABSETTINGS_FACTOR double TUnits::ConvertMilesPerHourToKilometersPerHour(float x)
{
    return UnitFactors::MilesPerHourToKilometersPerHour(x);
}
CABSETTINGS_FACTOR double TUnits::ConvertMilesToMeters(float x) { return UnitFactors::MilesToMeters(x); }

// Areas

CABSETTINGS_FACTOR double TUnits::ConvertHectaresToAcres(float x) { return UnitFactors::HectaresToAcres(x); }
CABSETTINGS_FACTOR double TUnits::ConvertPerAcreToPerHectare(float x) { return UnitFactors::PerAcreToPerHectare(x); }
CABSETTINGS_FACTOR double TUnits::ConvertAcresToHectares(float x) { return UnitFactors::AcresToHectares(x); }
CABSETTINGS_FACTOR double TUnits::ConvertPerHectareToPerAcre(float x) { return UnitFactors::PerHectareToPerAcre(x); }
CABSETTINGS_FACTOR double TUnits::ConvertSqMetersToHectares(float x) { return UnitFactors::SqMetersToHectares(x); }
CABSETTINGS_FACTOR double TUnits::ConvertSqMetersToAcres(float x) { return UnitFactors::SqMetersToAcres(x); }
CABSETTINGS_FACTOR double TUnits::ConvertHectaresToSqMeters(float x) { return UnitFactors::HectaresToSqMeters(x); }

// Speeds

CABSETTINGS_FACTOR double TUnits::ConvertMetersPerSecondToKilometersPerHour(float x)
{
    return UnitFactors::MetersPerSecondToKilometersPerHour(x);
}
CABSETTINGS_FACTOR double TUnits::ConvertMetersPerSecondToMilesPerHour(float x)
{
    return UnitFactors::MetersPerSecondToMilesPerHour(x);
}

// Volumes, masses, densities and counts, by powers of ten

CABSETTINGS_FACTOR double TUnits::ConvertLitersToMilliLiters(float x) { return UnitFactors::LitersToMilliLiters(x); }
CABSETTINGS_FACTOR double TUnits::ConvertPerMilliLiterToPerLiter(float x)
{
    return UnitFactors::PerMilliLiterToPerLiter(x);
}
CABSETTINGS_FACTOR double TUnits::ConvertCubicMetersToLiters(float x) { return UnitFactors::CubicMetersToLiters(x); }
CABSETTINGS_FACTOR double TUnits::ConvertTonnesToLiters(float x) { return UnitFactors::TonnesToLiters(x); }
CABSETTINGS_FACTOR double TUnits::ConvertPulsesPerLiterToPulsesPerCubicMeter(float x)
{
    return UnitFactors::PulsesPerLiterToPulsesPerCubicMeter(x);
}
CABSETTINGS_FACTOR double TUnits::ConvertPulsesPerLiterToPulsesPerTonne(float x)
{
    return UnitFactors::PulsesPerLiterToPulsesPerTonne(x);
}
CABSETTINGS_FACTOR double TUnits::ConvertKilogramsPerLiterToKilogramsPerCubicMeter(float x)
{
    return UnitFactors::KilogramsPerLiterToKilogramsPerCubicMeter(x);
}
CABSETTINGS_FACTOR double TUnits::ConvertMilliLitersToLiters(float x) { return UnitFactors::MilliLitersToLiters(x); }
CABSETTINGS_FACTOR double TUnits::ConvertPerLiterToPerMilliLiter(float x)
{
    return UnitFactors::PerLiterToPerMilliLiter(x);
}
CABSETTINGS_FACTOR double TUnits::ConvertLitersToCubicMeters(float x) { return UnitFactors::LitersToCubicMeters(x); }
CABSETTINGS_FACTOR double TUnits::ConvertLitersToTonnes(float x) { return UnitFactors::LitersToTonnes(x); }
CABSETTINGS_FACTOR double TUnits::ConvertPulsesPerCubicMeterToPulsesPerLiter(float x)
{
    return UnitFactors::PulsesPerCubicMeterToPulsesPerLiter(x);
}
CABSETTINGS_FACTOR double TUnits::ConvertPulsesPerTonneToPulsesPerLiter(float x)
{
    return UnitFactors::PulsesPerTonneToPulsesPerLiter(x);
}
CABSETTINGS_FACTOR double TUnits::ConvertKilogramsPerCubicMeterToKilogramsPerLiter(float x)
{
    return UnitFactors::KilogramsPerCubicMeterToKilogramsPerLiter(x);
}

// Volumes and what is counted or weighed by volume

CABSETTINGS_FACTOR double TUnits::ConvertLitersToCubicFeet(float x) { return UnitFactors::LitersToCubicFeet(x); }
CABSETTINGS_FACTOR double TUnits::ConvertCubicFeetToLiters(float x) { return UnitFactors::CubicFeetToLiters(x); }
CABSETTINGS_FACTOR double TUnits::ConvertCubicMetersToCubicFeet(float x)
{
    return UnitFactors::CubicMetersToCubicFeet(x);
}
CABSETTINGS_FACTOR double TUnits::ConvertCubicFeetToCubicMeters(float x)
{
    return UnitFactors::CubicFeetToCubicMeters(x);
}
CABSETTINGS_FACTOR double TUnits::ConvertPulsesPerCubicFootToPulsesPerCubicMeter(float x)
{
    return UnitFactors::PulsesPerCubicFootToPulsesPerCubicMeter(x);
}
CABSETTINGS_FACTOR double TUnits::ConvertPulsesPerCubicMeterToPulsesPerCubicFeet(float x)
{
    return UnitFactors::PulsesPerCubicMeterToPulsesPerCubicFeet(x);
}
CABSETTINGS_FACTOR double TUnits::ConvertUSBushelsToLiters(float x) { return UnitFactors::USBushelsToLiters(x); }
CABSETTINGS_FACTOR double TUnits::ConvertLitersToUSBushels(float x) { return UnitFactors::LitersToUSBushels(x); }
CABSETTINGS_FACTOR double TUnits::ConvertKilogramsPerLiterToKilogramsPerUSBushel(float x)
{
    return UnitFactors::KilogramsPerLiterToKilogramsPerUSBushel(x);
}
CABSETTINGS_FACTOR double TUnits::ConvertKilogramsPerUSBushelToKilogramsPerLiter(float x)
{
    return UnitFactors::KilogramsPerUSBushelToKilogramsPerLiter(x);
}
CABSETTINGS_FACTOR double TUnits::ConvertUKBushelsToLiters(float x) { return UnitFactors::UKBushelsToLiters(x); }
CABSETTINGS_FACTOR double TUnits::ConvertLitersToUKBushels(float x) { return UnitFactors::LitersToUKBushels(x); }
CABSETTINGS_FACTOR double TUnits::ConvertKilogramsPerLiterToKilogramsPerUKBushel(float x)
{
    return UnitFactors::KilogramsPerLiterToKilogramsPerUKBushel(x);
}
CABSETTINGS_FACTOR double TUnits::ConvertKilogramsPerUKBushelToKilogramsPerLiter(float x)
{
    return UnitFactors::KilogramsPerUKBushelToKilogramsPerLiter(x);
}
CABSETTINGS_FACTOR double TUnits::ConvertLitersToUSGallons(float x) { return UnitFactors::LitersToUSGallons(x); }
CABSETTINGS_FACTOR double TUnits::ConvertPerUSGallonToPerLiter(float x)
{
    return UnitFactors::PerUSGallonToPerLiter(x);
}
CABSETTINGS_FACTOR double TUnits::ConvertPulsesPerUSGallonToPulsesPerLiter(float x)
{
    return UnitFactors::PulsesPerUSGallonToPulsesPerLiter(x);
}
CABSETTINGS_FACTOR double TUnits::ConvertUSGallonsToLiters(float x) { return UnitFactors::USGallonsToLiters(x); }
CABSETTINGS_FACTOR double TUnits::ConvertPulsesPerLiterToPulsesPerUSGallon(float x)
{
    return UnitFactors::PulsesPerLiterToPulsesPerUSGallon(x);
}
CABSETTINGS_FACTOR double TUnits::ConvertLitersToEnglishGallons(float x)
{
    return UnitFactors::LitersToEnglishGallons(x);
}
CABSETTINGS_FACTOR double TUnits::ConvertPerEnglishGallonToPerLiter(float x)
{
    return UnitFactors::PerEnglishGallonToPerLiter(x);
}
CABSETTINGS_FACTOR double TUnits::ConvertPulsesPerEnglishGallonToPulsesPerLiter(float x)
{
    return UnitFactors::PulsesPerEnglishGallonToPulsesPerLiter(x);
}
CABSETTINGS_FACTOR double TUnits::ConvertEnglishGallonsToLiters(float x)
{
    return UnitFactors::EnglishGallonsToLiters(x);
}
CABSETTINGS_FACTOR double TUnits::ConvertPulsesPerLiterToPulsesPerEnglishGallon(float x)
{
    return UnitFactors::PulsesPerLiterToPulsesPerEnglishGallon(x);
}
CABSETTINGS_FACTOR double TUnits::ConvertLitersToUSFluidOunces(float x)
{
    return UnitFactors::LitersToUSFluidOunces(x);
}
CABSETTINGS_FACTOR double TUnits::ConvertPerUSFluidOunceToPerLiter(float x)
{
    return UnitFactors::PerUSFluidOunceToPerLiter(x);
}
CABSETTINGS_FACTOR double TUnits::ConvertUSFluidOuncesToLiters(float x)
{
    return UnitFactors::USFluidOuncesToLiters(x);
}
CABSETTINGS_FACTOR double TUnits::ConvertPerLiterToPerUSFluidOunce(float x)
{
    return UnitFactors::PerLiterToPerUSFluidOunce(x);
}
CABSETTINGS_FACTOR double TUnits::ConvertMilliLitersToUSFluidOunces(float x)
{
    return UnitFactors::MilliLitersToUSFluidOunces(x);
}
CABSETTINGS_FACTOR double TUnits::ConvertPerUSFluidOunceToPerMilliLiter(float x)
{
    return UnitFactors::PerUSFluidOunceToPerMilliLiter(x);
}
CABSETTINGS_FACTOR double TUnits::ConvertUSFluidOuncesToMilliLiters(float x)
{
    return UnitFactors::USFluidOuncesToMilliLiters(x);
}
CABSETTINGS_FACTOR double TUnits::ConvertPerMilliLiterToPerUSFluidOunce(float x)
{
    return UnitFactors::PerMilliLiterToPerUSFluidOunce(x);
}
CABSETTINGS_FACTOR double TUnits::ConvertLitersToEnglishFluidOunces(float x)
{
    return UnitFactors::LitersToEnglishFluidOunces(x);
}
CABSETTINGS_FACTOR double TUnits::ConvertPerEnglishFluidOunceToPerLiter(float x)
{
    return UnitFactors::PerEnglishFluidOunceToPerLiter(x);
}
CABSETTINGS_FACTOR double TUnits::ConvertEnglishFluidOuncesToLiters(float x)
{
    return UnitFactors::EnglishFluidOuncesToLiters(x);
}
CABSETTINGS_FACTOR double TUnits::ConvertPerLiterToPerEnglishFluidOunce(float x)
{
    return UnitFactors::PerLiterToPerEnglishFluidOunce(x);
}
CABSETTINGS_FACTOR double TUnits::ConvertMilliLitersToEnglishFluidOunces(float x)
{
    return UnitFactors::MilliLitersToEnglishFluidOunces(x);
}
CABSETTINGS_FACTOR double TUnits::ConvertPerEnglishFluidOunceToPerMilliLiter(float x)
{
    return UnitFactors::PerEnglishFluidOunceToPerMilliLiter(x);
}
CABSETTINGS_FACTOR double TUnits::ConvertEnglishFluidOuncesToMilliLiters(float x)
{
    return UnitFactors::EnglishFluidOuncesToMilliLiters(x);
}
CABSETTINGS_FACTOR double TUnits::ConvertPerMilliLiterToPerEnglishFluidOunce(float x)
{
    return UnitFactors::PerMilliLiterToPerEnglishFluidOunce(x);
}

// Liquid rates per area

CABSETTINGS_FACTOR double TUnits::ConvertLitersPerHectareToUSGallonsPerAcre(float x)
{
    return UnitFactors::LitersPerHectareToUSGallonsPerAcre(x);
}
CABSETTINGS_FACTOR double TUnits::ConvertUSGallonsPerAcreToLitersPerHectare(float x)
{
    return UnitFactors::USGallonsPerAcreToLitersPerHectare(x);
}
CABSETTINGS_FACTOR double TUnits::ConvertLitersPerHectareToEnglishGallonsPerAcre(float x)
{
    return UnitFactors::LitersPerHectareToEnglishGallonsPerAcre(x);
}
CABSETTINGS_FACTOR double TUnits::ConvertEnglishGallonsPerAcreToLitersPerHectare(float x)
{
    return UnitFactors::EnglishGallonsPerAcreToLitersPerHectare(x);
}
CABSETTINGS_FACTOR double TUnits::ConvertMilliLitersPerHectareToUSFluidOuncesPerAcre(float x)
{
    return UnitFactors::MilliLitersPerHectareToUSFluidOuncesPerAcre(x);
}
CABSETTINGS_FACTOR double TUnits::ConvertUSFluidOuncesPerAcreToMilliLitersPerHectare(float x)
{
    return UnitFactors::USFluidOuncesPerAcreToMilliLitersPerHectare(x);
}
CABSETTINGS_FACTOR double TUnits::ConvertMilliLitersPerHectareToEnglishFluidOuncesPerAcre(float x)
{
    return UnitFactors::MilliLitersPerHectareToEnglishFluidOuncesPerAcre(x);
}
CABSETTINGS_FACTOR double TUnits::ConvertEnglishFluidOuncesPerAcreToMilliLitersPerHectare(float x)
{
    return UnitFactors::EnglishFluidOuncesPerAcreToMilliLitersPerHectare(x);
}
CABSETTINGS_FACTOR double TUnits::ConvertLitersPerHectareToUSFluidOuncesPerAcre(float x)
{
    return UnitFactors::Narrow(UnitFactors::Wide(ConvertLitersPerHectareToUSGallonsPerAcre(x)) *
                               UnitFactors::USFluidOuncesPerUSGallon);
}
CABSETTINGS_FACTOR double TUnits::ConvertLitersPerHectareToEnglishFluidOuncesPerAcre(float x)
{
    return UnitFactors::Narrow(UnitFactors::Wide(ConvertLitersPerHectareToEnglishGallonsPerAcre(x)) *
                               UnitFactors::EnglishFluidOuncesPerEnglishGallon);
}
CABSETTINGS_FACTOR double TUnits::ConvertUSFluidOuncesPerAcreToLitersPerHectare(float x)
{
    return ConvertMilliLitersToLiters(static_cast<float>(ConvertUSFluidOuncesPerAcreToMilliLitersPerHectare(x)));
}
CABSETTINGS_FACTOR double TUnits::ConvertEnglishFluidOuncesPerAcreToLitersPerHectare(float x)
{
    return ConvertMilliLitersToLiters(static_cast<float>(ConvertEnglishFluidOuncesPerAcreToMilliLitersPerHectare(x)));
}

// Pressures

CABSETTINGS_FACTOR double TUnits::ConvertKilopascalsToPoundsPerSquareInch(float x)
{
    return UnitFactors::KilopascalsToPoundsPerSquareInch(x);
}
CABSETTINGS_FACTOR double TUnits::ConvertPoundsPerSquareInchToKilopascals(float x)
{
    return UnitFactors::PoundsPerSquareInchToKilopascals(x);
}
CABSETTINGS_FACTOR double TUnits::ConvertKilopascalsToBar(float x) { return UnitFactors::KilopascalsToBar(x); }
CABSETTINGS_FACTOR double TUnits::ConvertBarToKilopascals(float x) { return UnitFactors::BarToKilopascals(x); }

// Masses, and what is counted or weighed by mass

CABSETTINGS_FACTOR double TUnits::ConvertPulsesPerTonneToPulsesPerPound(float x)
{
    return UnitFactors::PulsesPerTonneToPulsesPerPound(x);
}
CABSETTINGS_FACTOR double TUnits::ConvertPulsesPerPoundToPulsesPerTonne(float x)
{
    return UnitFactors::PulsesPerPoundToPulsesPerTonne(x);
}
CABSETTINGS_FACTOR double TUnits::ConvertPulsesPerKPHToPulsesPerMPH(float x)
{
    return UnitFactors::PulsesPerKPHToPulsesPerMPH(x);
}
CABSETTINGS_FACTOR double TUnits::ConvertPulsesPerMPHToPulsesPerKPH(float x)
{
    return UnitFactors::PulsesPerMPHToPulsesPerKPH(x);
}
CABSETTINGS_FACTOR double TUnits::ConvertKilogramsToPounds(float x) { return UnitFactors::KilogramsToPounds(x); }
CABSETTINGS_FACTOR double TUnits::ConvertPoundsToKilograms(float x) { return UnitFactors::PoundsToKilograms(x); }
CABSETTINGS_FACTOR double TUnits::ConvertTonnesToPounds(float x) { return UnitFactors::TonnesToPounds(x); }
CABSETTINGS_FACTOR double TUnits::ConvertPoundsToTonnes(float x) { return UnitFactors::PoundsToTonnes(x); }
CABSETTINGS_FACTOR double TUnits::ConvertKilogramsPerHectareToPoundsPerAcre(float x)
{
    return UnitFactors::KilogramsPerHectareToPoundsPerAcre(x);
}
CABSETTINGS_FACTOR double TUnits::ConvertPoundsPerAcreToKilogramsPerHectare(float x)
{
    return UnitFactors::PoundsPerAcreToKilogramsPerHectare(x);
}
CABSETTINGS_FACTOR double TUnits::ConvertKilogramsPerLiterToPoundsPerGallon(float x)
{
    return UnitFactors::KilogramsPerLiterToPoundsPerGallon(x);
}
CABSETTINGS_FACTOR double TUnits::ConvertKilogramsPerLiterToPoundsPerUSGallon(float x)
{
    return UnitFactors::KilogramsPerLiterToPoundsPerUSGallon(x);
}
CABSETTINGS_FACTOR double TUnits::ConvertPoundsPerGallonToKilogramsPerLiter(float x)
{
    return UnitFactors::PoundsPerGallonToKilogramsPerLiter(x);
}
CABSETTINGS_FACTOR double TUnits::ConvertPoundsPerUSGallonToKilogramsPerLiter(float x)
{
    return UnitFactors::PoundsPerUSGallonToKilogramsPerLiter(x);
}
CABSETTINGS_FACTOR double TUnits::ConvertKilogramsPerLiterToPoundsPerCubicFoot(float x)
{
    return UnitFactors::KilogramsPerLiterToPoundsPerCubicFoot(x);
}
CABSETTINGS_FACTOR double TUnits::ConvertKilogramsPerCubicMeterToPoundsPerCubicFoot(float x)
{
    return UnitFactors::KilogramsPerCubicMeterToPoundsPerCubicFoot(x);
}
CABSETTINGS_FACTOR double TUnits::ConvertPoundsPerCubicFootToKilogramsPerCubicMeter(float x)
{
    return UnitFactors::PoundsPerCubicFootToKilogramsPerCubicMeter(x);
}
CABSETTINGS_FACTOR double TUnits::ConvertKilogramsPerLiterToPoundsPerUSBushel(float x)
{
    return UnitFactors::Narrow(UnitFactors::Widen(x) * UnitFactors::PoundsPerKilogram * UnitFactors::LitersPerUSBushel);
}
CABSETTINGS_FACTOR double TUnits::ConvertKilogramsPerLiterToPoundsPerUKBushel(float x)
{
    return UnitFactors::Narrow(UnitFactors::Widen(x) * UnitFactors::PoundsPerKilogram * UnitFactors::LitersPerUKBushel);
}

// Seeds

CABSETTINGS_FACTOR double TUnits::ConvertKiloseedsPerHectareToKiloseedsPerAcre(float x)
{
    return UnitFactors::KiloseedsPerHectareToKiloseedsPerAcre(x);
}
CABSETTINGS_FACTOR double TUnits::ConvertKiloseedsPerAcreToKiloseedsPerHectare(float x)
{
    return UnitFactors::KiloseedsPerAcreToKiloseedsPerHectare(x);
}

// Temperatures

CABSETTINGS_FACTOR double TUnits::ConvertCelsiusToFahrenheit(float x)
{
    return UnitFactors::Narrow(UnitFactors::Widen(x) / UnitFactors::CelsiusPerFahrenheit +
                               UnitFactors::FreezingPointFahrenheit);
}
CABSETTINGS_FACTOR double TUnits::ConvertFahrenheitToCelsius(float x)
{
    return UnitFactors::Narrow((UnitFactors::Widen(x) - UnitFactors::FreezingPointFahrenheit) *
                               UnitFactors::CelsiusPerFahrenheit);
}

// Liquids by mass: one litre counts as one kilogram

CABSETTINGS_FACTOR double TUnits::ConvertLitersToPounds(float x)
{
    return UnitFactors::Narrow(UnitFactors::Widen(x) / UnitFactors::Thousand * UnitFactors::PoundsPerTonne);
}
CABSETTINGS_FACTOR double TUnits::ConvertPoundsToLiters(float x)
{
    return UnitFactors::Narrow(UnitFactors::Widen(x) / UnitFactors::PoundsPerTonne * UnitFactors::Thousand);
}

// Rates per area, across quantities

CABSETTINGS_FACTOR double TUnits::ConvertLitersPerHectareToCubicMetersPerHectare(float x)
{
    return UnitFactors::LitersPerHectareToCubicMetersPerHectare(x);
}
CABSETTINGS_FACTOR double TUnits::ConvertLitersPerHectareToTonnesPerHectare(float x)
{
    return UnitFactors::LitersPerHectareToTonnesPerHectare(x);
}
CABSETTINGS_FACTOR double TUnits::ConvertCubicMetersPerHectareToLitersPerHectare(float x)
{
    return UnitFactors::CubicMetersPerHectareToLitersPerHectare(x);
}
CABSETTINGS_FACTOR double TUnits::ConvertTonnesPerHectareToLitersPerHectare(float x)
{
    return UnitFactors::TonnesPerHectareToLitersPerHectare(x);
}
CABSETTINGS_FACTOR double TUnits::ConvertCubicMetersPerHectareToCubicFeetPerAcre(float x)
{
    return UnitFactors::CubicMetersPerHectareToCubicFeetPerAcre(x);
}
CABSETTINGS_FACTOR double TUnits::ConvertCubicFeetPerAcreToCubicMetersPerHectare(float x)
{
    return UnitFactors::CubicFeetPerAcreToCubicMetersPerHectare(x);
}
CABSETTINGS_FACTOR double TUnits::ConvertCubicFeetPerAcreToLitersPerHectare(float x)
{
    return UnitFactors::CubicFeetPerAcreToLitersPerHectare(x);
}
CABSETTINGS_FACTOR double TUnits::ConvertTonnesPerHectareToPoundsPerAcre(float x)
{
    return UnitFactors::TonnesPerHectareToPoundsPerAcre(x);
}
CABSETTINGS_FACTOR double TUnits::ConvertPoundsPerAcreToTonnesPerHectare(float x)
{
    return UnitFactors::PoundsPerAcreToTonnesPerHectare(x);
}
CABSETTINGS_FACTOR double TUnits::ConvertMilliLitersPerAcreToLitersPerHectare(float x)
{
    return UnitFactors::MilliLitersPerAcreToLitersPerHectare(x);
}
CABSETTINGS_FACTOR double TUnits::ConvertCubicMetersPerAcreToLitersPerHectare(float x)
{
    return UnitFactors::Narrow(UnitFactors::Widen(x) * UnitFactors::AcresPerHectare * UnitFactors::Thousand);
}
CABSETTINGS_FACTOR double TUnits::ConvertTonnesPerAcreToLitersPerHectare(float x)
{
    return UnitFactors::Narrow(UnitFactors::Widen(x) * UnitFactors::AcresPerHectare * UnitFactors::Thousand);
}
CABSETTINGS_FACTOR double TUnits::ConvertLitersPerHectareToCubicMetersPerAcre(float x)
{
    return UnitFactors::LitersPerHectareToCubicMetersPerAcre(x);
}
CABSETTINGS_FACTOR double TUnits::ConvertLitersPerHectareToTonnesPerAcre(float x)
{
    return UnitFactors::LitersPerHectareToTonnesPerAcre(x);
}
CABSETTINGS_FACTOR double TUnits::ConvertLitersPerHectareToCubicFeetPerAcre(float x)
{
    return UnitFactors::Narrow(UnitFactors::Widen(x) * UnitFactors::HectaresPerAcre * UnitFactors::CubicFeetPerLiter);
}
CABSETTINGS_FACTOR double TUnits::ConvertLitersPerHectareToPoundsPerAcre(float x)
{
    return UnitFactors::Narrow(UnitFactors::Widen(x) * UnitFactors::HectaresPerAcre / UnitFactors::Thousand *
                               UnitFactors::PoundsPerTonne);
}
CABSETTINGS_FACTOR double TUnits::ConvertLitersPerHectareToMilliLitersPerAcre(float x)
{
    return UnitFactors::Narrow(UnitFactors::Widen(x) * UnitFactors::HectaresPerAcre * UnitFactors::Thousand);
}

// Rates per travelled distance

CABSETTINGS_FACTOR double TUnits::ConvertLitersPerHectareToLitersPer100Meters(float x)
{
    return UnitFactors::LitersPerHectareToLitersPer100Meters(x);
}
CABSETTINGS_FACTOR double TUnits::ConvertLitersPer100MetersToLitersPerHectare(float x)
{
    return UnitFactors::LitersPer100MetersToLitersPerHectare(x);
}
CABSETTINGS_FACTOR double TUnits::ConvertLitersPerHectareToEnglishGallonsPer100Yards(float x)
{
    return UnitFactors::LitersPerHectareToEnglishGallonsPer100Yards(x);
}
CABSETTINGS_FACTOR double TUnits::ConvertLitersPerHectareToUSGallonsPer100Yards(float x)
{
    return UnitFactors::LitersPerHectareToUSGallonsPer100Yards(x);
}
CABSETTINGS_FACTOR double TUnits::ConvertEnglishGallonsPer100YardsToLitersPerHectare(float x)
{
    return UnitFactors::EnglishGallonsPer100YardsToLitersPerHectare(x);
}
CABSETTINGS_FACTOR double TUnits::ConvertUSGallonsPer100YardsToLitersPerHectare(float x)
{
    return UnitFactors::USGallonsPer100YardsToLitersPerHectare(x);
}
