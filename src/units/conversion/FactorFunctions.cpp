// The factor functions: one line for each. What they compute stands in the table of conversions.

#include "units/TUnits.h"
#include "units/table/Conversions.h"

using namespace Conversions;

// clang-format off

// Lengths
double TUnits::ConvertMillimetersToInches(float x)             { return InchesOfMillimeters.out(x); }
double TUnits::ConvertInchesToMillimeters(float x)             { return InchesOfMillimeters.in(x); }
double TUnits::ConvertMetersToMillimeters(float x)             { return Thousandths.out(x); }
double TUnits::ConvertMillimetersToMeters(float x)             { return Thousandths.in(x); }
double TUnits::ConvertMetersToCentimeters(float x)             { return Hundredths.out(x); }
double TUnits::ConvertCentimetersToMeters(float x)             { return Hundredths.in(x); }
double TUnits::ConvertMetersToFeet(float x)                    { return Feet.out(x); }
double TUnits::ConvertFeetToMeters(float x)                    { return Feet.in(x); }
double TUnits::ConvertMetersToInches(float x)                  { return Inches.out(x); }
double TUnits::ConvertInchesToMeters(float x)                  { return Inches.in(x); }
double TUnits::ConvertMetersToKilometers(float x)              { return Kilometers.out(x); }
double TUnits::ConvertMetersToMiles(float x)                   { return Miles.out(x); }
double TUnits::ConvertKilometersToMiles(float x)               { return MilesOfKilometers.out(x); }
double TUnits::ConvertKilometersPerHourToMilesPerHour(float x) { return MilesOfKilometers.out(x); }
double TUnits::ConvertMilesToKilometers(float x)               { return MilesOfKilometers.in(x); }
double TUnits::ConvertMilesPerHourToKilometersPerHour(float x) { return MilesOfKilometers.in(x); }
double TUnits::ConvertMilesToMeters(float x)                   { return Miles.in(x); }

// Areas
double TUnits::ConvertHectaresToAcres(float x)     { return Acres.out(x); }
double TUnits::ConvertPerAcreToPerHectare(float x) { return Per(Acres).in(x); }
double TUnits::ConvertAcresToHectares(float x)     { return Acres.in(x); }
double TUnits::ConvertPerHectareToPerAcre(float x) { return Per(Acres).out(x); }
double TUnits::ConvertSqMetersToHectares(float x)  { return SquareMeters.in(x); }
double TUnits::ConvertSqMetersToAcres(float x)     { return AcresOfSquareMeters.out(x); }
double TUnits::ConvertHectaresToSqMeters(float x)  { return SquareMeters.out(x); }

// Speeds
double TUnits::ConvertMetersPerSecondToKilometersPerHour(float x) { return Kph.out(x); }
double TUnits::ConvertMetersPerSecondToMilesPerHour(float x)      { return Mph.out(x); }

// Volumes, masses, densities and counts, by powers of ten
double TUnits::ConvertLitersToMilliLiters(float x)                       { return Thousandths.out(x); }
double TUnits::ConvertPerMilliLiterToPerLiter(float x)                   { return Per(Thousandths).in(x); }
double TUnits::ConvertCubicMetersToLiters(float x)                       { return Thousands.in(x); }
double TUnits::ConvertTonnesToLiters(float x)                            { return Thousands.in(x); }
double TUnits::ConvertPulsesPerLiterToPulsesPerCubicMeter(float x)       { return Per(Thousands).out(x); }
double TUnits::ConvertPulsesPerLiterToPulsesPerTonne(float x)            { return Per(Thousands).out(x); }
double TUnits::ConvertKilogramsPerLiterToKilogramsPerCubicMeter(float x) { return Per(Thousands).out(x); }
double TUnits::ConvertMilliLitersToLiters(float x)                       { return Thousandths.in(x); }
double TUnits::ConvertPerLiterToPerMilliLiter(float x)                   { return Per(Thousandths).out(x); }
double TUnits::ConvertLitersToCubicMeters(float x)                       { return Thousands.out(x); }
double TUnits::ConvertLitersToTonnes(float x)                            { return Thousands.out(x); }
double TUnits::ConvertPulsesPerCubicMeterToPulsesPerLiter(float x)       { return Per(Thousands).in(x); }
double TUnits::ConvertPulsesPerTonneToPulsesPerLiter(float x)            { return Per(Thousands).in(x); }
double TUnits::ConvertKilogramsPerCubicMeterToKilogramsPerLiter(float x) { return Per(Thousands).in(x); }

// Volumes and what is counted or weighed by volume
double TUnits::ConvertLitersToCubicFeet(float x)                       { return CubicFeet.out(x); }
double TUnits::ConvertCubicFeetToLiters(float x)                       { return CubicFeet.in(x); }
double TUnits::ConvertCubicMetersToCubicFeet(float x)                  { return CubicFeetOfCubicMeters.out(x); }
double TUnits::ConvertCubicFeetToCubicMeters(float x)                  { return CubicFeetOfCubicMeters.in(x); }
double TUnits::ConvertPulsesPerCubicFootToPulsesPerCubicMeter(float x) { return Per(CubicFeetOfCubicMeters).in(x); }
double TUnits::ConvertPulsesPerCubicMeterToPulsesPerCubicFeet(float x) { return Per(CubicFeetOfCubicMeters).out(x); }
double TUnits::ConvertUSBushelsToLiters(float x)                       { return USBushels.in(x); }
double TUnits::ConvertLitersToUSBushels(float x)                       { return USBushels.out(x); }
double TUnits::ConvertKilogramsPerLiterToKilogramsPerUSBushel(float x) { return Per(USBushels).out(x); }
double TUnits::ConvertKilogramsPerUSBushelToKilogramsPerLiter(float x) { return Per(USBushels).in(x); }
double TUnits::ConvertUKBushelsToLiters(float x)                       { return UKBushels.in(x); }
double TUnits::ConvertLitersToUKBushels(float x)                       { return UKBushels.out(x); }
double TUnits::ConvertKilogramsPerLiterToKilogramsPerUKBushel(float x) { return Per(UKBushels).out(x); }
double TUnits::ConvertKilogramsPerUKBushelToKilogramsPerLiter(float x) { return Per(UKBushels).in(x); }
double TUnits::ConvertLitersToUSGallons(float x)                       { return USGallons.out(x); }
double TUnits::ConvertPerUSGallonToPerLiter(float x)                   { return Per(USGallons).in(x); }
double TUnits::ConvertPulsesPerUSGallonToPulsesPerLiter(float x)       { return Per(USGallons).in(x); }
double TUnits::ConvertUSGallonsToLiters(float x)                       { return USGallons.in(x); }
double TUnits::ConvertPulsesPerLiterToPulsesPerUSGallon(float x)       { return Per(USGallons).out(x); }
double TUnits::ConvertLitersToEnglishGallons(float x)                  { return EnglishGallons.out(x); }
double TUnits::ConvertPerEnglishGallonToPerLiter(float x)              { return Per(EnglishGallons).in(x); }
double TUnits::ConvertPulsesPerEnglishGallonToPulsesPerLiter(float x)  { return Per(EnglishGallons).in(x); }
double TUnits::ConvertEnglishGallonsToLiters(float x)                  { return EnglishGallons.in(x); }
double TUnits::ConvertPulsesPerLiterToPulsesPerEnglishGallon(float x)  { return Per(EnglishGallons).out(x); }
double TUnits::ConvertLitersToUSFluidOunces(float x)                   { return USFluidOunces.out(x); }
double TUnits::ConvertPerUSFluidOunceToPerLiter(float x)               { return Per(USFluidOunces).in(x); }
double TUnits::ConvertUSFluidOuncesToLiters(float x)                   { return USFluidOunces.in(x); }
double TUnits::ConvertPerLiterToPerUSFluidOunce(float x)               { return Per(USFluidOunces).out(x); }
double TUnits::ConvertMilliLitersToUSFluidOunces(float x)              { return USFluidOuncesOfMilliliters.out(x); }
double TUnits::ConvertPerUSFluidOunceToPerMilliLiter(float x)          { return Per(USFluidOuncesOfMilliliters).in(x); }
double TUnits::ConvertUSFluidOuncesToMilliLiters(float x)              { return USFluidOuncesOfMilliliters.in(x); }
double TUnits::ConvertPerMilliLiterToPerUSFluidOunce(float x)          { return Per(USFluidOuncesOfMilliliters).out(x); }
double TUnits::ConvertLitersToEnglishFluidOunces(float x)              { return EnglishFluidOunces.out(x); }
double TUnits::ConvertPerEnglishFluidOunceToPerLiter(float x)          { return Per(EnglishFluidOunces).in(x); }
double TUnits::ConvertEnglishFluidOuncesToLiters(float x)              { return EnglishFluidOunces.in(x); }
double TUnits::ConvertPerLiterToPerEnglishFluidOunce(float x)          { return Per(EnglishFluidOunces).out(x); }
double TUnits::ConvertMilliLitersToEnglishFluidOunces(float x)         { return EnglishFluidOuncesOfMilliliters.out(x); }
double TUnits::ConvertPerEnglishFluidOunceToPerMilliLiter(float x)     { return Per(EnglishFluidOuncesOfMilliliters).in(x); }
double TUnits::ConvertEnglishFluidOuncesToMilliLiters(float x)         { return EnglishFluidOuncesOfMilliliters.in(x); }
double TUnits::ConvertPerMilliLiterToPerEnglishFluidOunce(float x)     { return Per(EnglishFluidOuncesOfMilliliters).out(x); }

// Liquid rates per area
double TUnits::ConvertLitersPerHectareToUSGallonsPerAcre(float x)               { return USGallonsPerAcre.out(x); }
double TUnits::ConvertUSGallonsPerAcreToLitersPerHectare(float x)               { return USGallonsPerAcre.in(x); }
double TUnits::ConvertLitersPerHectareToEnglishGallonsPerAcre(float x)          { return EnglishGallonsPerAcre.out(x); }
double TUnits::ConvertEnglishGallonsPerAcreToLitersPerHectare(float x)          { return EnglishGallonsPerAcre.in(x); }
double TUnits::ConvertMilliLitersPerHectareToUSFluidOuncesPerAcre(float x)      { return USFluidOuncesPerAcreOfMilliliters.out(x); }
double TUnits::ConvertUSFluidOuncesPerAcreToMilliLitersPerHectare(float x)      { return USFluidOuncesPerAcreOfMilliliters.in(x); }
double TUnits::ConvertMilliLitersPerHectareToEnglishFluidOuncesPerAcre(float x) { return EnglishFluidOuncesPerAcreOfMilliliters.out(x); }
double TUnits::ConvertEnglishFluidOuncesPerAcreToMilliLitersPerHectare(float x) { return EnglishFluidOuncesPerAcreOfMilliliters.in(x); }
double TUnits::ConvertLitersPerHectareToUSFluidOuncesPerAcre(float x)           { return USFluidOuncesPerAcre.out(x); }
double TUnits::ConvertLitersPerHectareToEnglishFluidOuncesPerAcre(float x)      { return EnglishFluidOuncesPerAcre.out(x); }
double TUnits::ConvertUSFluidOuncesPerAcreToLitersPerHectare(float x)           { return USFluidOuncesPerAcre.in(x); }
double TUnits::ConvertEnglishFluidOuncesPerAcreToLitersPerHectare(float x)      { return EnglishFluidOuncesPerAcre.in(x); }

// Pressures
double TUnits::ConvertKilopascalsToPoundsPerSquareInch(float x) { return Psi.out(x); }
double TUnits::ConvertPoundsPerSquareInchToKilopascals(float x) { return Psi.in(x); }
double TUnits::ConvertKilopascalsToBar(float x)                 { return Bar.out(x); }
double TUnits::ConvertBarToKilopascals(float x)                 { return Bar.in(x); }

// Masses, and what is counted or weighed by mass
double TUnits::ConvertPulsesPerTonneToPulsesPerPound(float x)             { return Per(PoundsOfTonnes).out(x); }
double TUnits::ConvertPulsesPerPoundToPulsesPerTonne(float x)             { return Per(PoundsOfTonnes).in(x); }
double TUnits::ConvertPulsesPerKPHToPulsesPerMPH(float x)                 { return PerMileOfKilometers.out(x); }
double TUnits::ConvertPulsesPerMPHToPulsesPerKPH(float x)                 { return PerMileOfKilometers.in(x); }
double TUnits::ConvertKilogramsToPounds(float x)                          { return Pounds.out(x); }
double TUnits::ConvertPoundsToKilograms(float x)                          { return Pounds.in(x); }
double TUnits::ConvertTonnesToPounds(float x)                             { return PoundsOfTonnes.out(x); }
double TUnits::ConvertPoundsToTonnes(float x)                             { return PoundsOfTonnes.in(x); }
double TUnits::ConvertKilogramsPerHectareToPoundsPerAcre(float x)         { return PoundsPerAcre.out(x); }
double TUnits::ConvertPoundsPerAcreToKilogramsPerHectare(float x)         { return PoundsPerAcre.in(x); }
double TUnits::ConvertKilogramsPerLiterToPoundsPerGallon(float x)         { return PoundsPerEnglishGallon.out(x); }
double TUnits::ConvertKilogramsPerLiterToPoundsPerUSGallon(float x)       { return PoundsPerUSGallon.out(x); }
double TUnits::ConvertPoundsPerGallonToKilogramsPerLiter(float x)         { return PoundsPerEnglishGallon.in(x); }
double TUnits::ConvertPoundsPerUSGallonToKilogramsPerLiter(float x)       { return PoundsPerUSGallon.in(x); }
double TUnits::ConvertKilogramsPerLiterToPoundsPerCubicFoot(float x)      { return PoundsPerCubicFoot.out(x); }
double TUnits::ConvertKilogramsPerCubicMeterToPoundsPerCubicFoot(float x) { return PoundsPerCubicFootOfCubicMeters.out(x); }
double TUnits::ConvertPoundsPerCubicFootToKilogramsPerCubicMeter(float x) { return PoundsPerCubicFootOfCubicMeters.in(x); }
double TUnits::ConvertKilogramsPerLiterToPoundsPerUSBushel(float x)       { return PoundsPerUSBushel.out(x); }
double TUnits::ConvertKilogramsPerLiterToPoundsPerUKBushel(float x)       { return PoundsPerUKBushel.out(x); }

// Seeds
double TUnits::ConvertKiloseedsPerHectareToKiloseedsPerAcre(float x) { return KiloseedsPerAcre.out(x); }
double TUnits::ConvertKiloseedsPerAcreToKiloseedsPerHectare(float x) { return KiloseedsPerAcre.in(x); }

// Temperatures
double TUnits::ConvertCelsiusToFahrenheit(float x) { return Fahrenheit.out(x); }
double TUnits::ConvertFahrenheitToCelsius(float x) { return Fahrenheit.in(x); }

// Liquids by mass: one litre counts as one kilogram
double TUnits::ConvertLitersToPounds(float x) { return PoundsOfLiters.out(x); }
double TUnits::ConvertPoundsToLiters(float x) { return PoundsOfLiters.in(x); }

// Rates per area, across quantities
double TUnits::ConvertLitersPerHectareToCubicMetersPerHectare(float x) { return Thousands.out(x); }
double TUnits::ConvertLitersPerHectareToTonnesPerHectare(float x)      { return Thousands.out(x); }
double TUnits::ConvertCubicMetersPerHectareToLitersPerHectare(float x) { return Thousands.in(x); }
double TUnits::ConvertTonnesPerHectareToLitersPerHectare(float x)      { return Thousands.in(x); }
double TUnits::ConvertCubicMetersPerHectareToCubicFeetPerAcre(float x) { return CubicFeetPerAcreOfCubicMeters.out(x); }
double TUnits::ConvertCubicFeetPerAcreToCubicMetersPerHectare(float x) { return CubicFeetPerAcreOfCubicMeters.in(x); }
double TUnits::ConvertCubicFeetPerAcreToLitersPerHectare(float x)      { return CubicFeetPerAcre.in(x); }
double TUnits::ConvertTonnesPerHectareToPoundsPerAcre(float x)         { return PoundsPerAcreOfTonnes.out(x); }
double TUnits::ConvertPoundsPerAcreToTonnesPerHectare(float x)         { return PoundsPerAcreOfTonnes.in(x); }
double TUnits::ConvertMilliLitersPerAcreToLitersPerHectare(float x)    { return ThousandthsPerAcre.in(x); }
double TUnits::ConvertCubicMetersPerAcreToLitersPerHectare(float x)    { return ThousandsPerAcre.in(x); }
double TUnits::ConvertTonnesPerAcreToLitersPerHectare(float x)         { return ThousandsPerAcre.in(x); }
double TUnits::ConvertLitersPerHectareToCubicMetersPerAcre(float x)    { return ThousandsPerAcre.out(x); }
double TUnits::ConvertLitersPerHectareToTonnesPerAcre(float x)         { return ThousandsPerAcre.out(x); }
double TUnits::ConvertLitersPerHectareToCubicFeetPerAcre(float x)      { return CubicFeetPerAcre.out(x); }
double TUnits::ConvertLitersPerHectareToPoundsPerAcre(float x)         { return PoundsPerAcreOfLiters.out(x); }
double TUnits::ConvertLitersPerHectareToMilliLitersPerAcre(float x)    { return ThousandthsPerAcre.out(x); }

// Rates per travelled distance
double TUnits::ConvertLitersPerHectareToLitersPer100Meters(float x)        { return Hundreds.out(x); }
double TUnits::ConvertLitersPer100MetersToLitersPerHectare(float x)        { return Hundreds.in(x); }
double TUnits::ConvertLitersPerHectareToEnglishGallonsPer100Yards(float x) { return EnglishGallonsPer100Yards.out(x); }
double TUnits::ConvertLitersPerHectareToUSGallonsPer100Yards(float x)      { return USGallonsPer100Yards.out(x); }
double TUnits::ConvertEnglishGallonsPer100YardsToLitersPerHectare(float x) { return EnglishGallonsPer100Yards.in(x); }
double TUnits::ConvertUSGallonsPer100YardsToLitersPerHectare(float x)      { return USGallonsPer100Yards.in(x); }
// clang-format on
