#pragma once

#include "units/table/tagConversion.h"

/// The conversions that the units name. Each is named after the unit that its hub is converted into; "Of" names the hub
/// where there is more than one: Feet are those of a metre, CubicFeetOfCubicMeters those of a cubic metre.
namespace Conversions {

// clang-format off

// Constants of more than one conversion.
inline constexpr float AcresPerHectare        = 2.4710538f;
inline constexpr float HectaresPerAcre        = 0.40468565f;
inline constexpr float CelsiusPerFahrenheit   = 0.55555558f;
inline constexpr float CubicFeetPerCubicMeter = 35.314667f;
inline constexpr float CubicFeetPerLiter      = 0.035314668f;
inline constexpr float EnglishGallonsPerLiter = 0.21996924f;
inline constexpr float USGallonsPerLiter      = 0.26416999f;
inline constexpr float KilometersPerMeter     = 0.001f;
inline constexpr float LitersPerUKBushel      = 36.368736f;
inline constexpr float LitersPerUSBushel      = 35.239071f;
inline constexpr float MilesPerKilometer      = 0.62137121f;
inline constexpr float MphPerMeterPerSecond   = 2.2369363f;
inline constexpr float PoundsPerKilogram      = 2.2046225f;
inline constexpr float PoundsPerTonne         = 2204.6226f;
inline constexpr float PsiPerKilopascal       = 0.14504001f;
inline constexpr float YardsPer100Meters      = 109.36133f;

// clang-format on

// The ways that no factor goes. The divisors are those of recorded data: two of them are shorter than the factors of
// the way out. These four do not narrow the value to 32 bits.
inline double KilometersToMeters(double value) { return Narrow(Wide(Stored(value)) / Wide(KilometersPerMeter)); }
inline double KphToMetersPerSecond(double value) { return value / 3.6; }
inline double MphToMetersPerSecond(double value) { return Narrow(Wide(Stored(value)) / Wide(MphPerMeterPerSecond)); }
inline double PsiToKilopascals(double value) { return value / 0.14504; }

inline double CelsiusToFahrenheit(double value)
{
    return Narrow(Widen(static_cast<float>(value)) / Wide(CelsiusPerFahrenheit) + 32);
}

inline double FahrenheitToCelsius(double value)
{
    return Narrow((Widen(static_cast<float>(value)) - 32) * Wide(CelsiusPerFahrenheit));
}

// clang-format off

// By powers of ten. A thousand Thousandths make one of the hub
inline constexpr tagConversion Thousandths = By(Times(1000.0f));
inline constexpr tagConversion Thousands   = By(Over(1000.0f));
inline constexpr tagConversion Hundredths  = By(Times(100.0f));
inline constexpr tagConversion Hundreds    = By(Over(100.0f));

// Lengths and speeds
inline constexpr tagConversion Feet                = {Times(3.2808399f), Times(0.3048f)};
inline constexpr tagConversion Inches              = By(Times(39.370079f));
inline constexpr tagConversion InchesOfMillimeters = By(Times(0.039370079f));
inline constexpr tagConversion Kilometers          = {Times(KilometersPerMeter), KilometersToMeters};
inline constexpr tagConversion Miles               = {Times(0.0006213712f), Times(1609.344f)};
inline constexpr tagConversion MilesOfKilometers   = {Times(MilesPerKilometer), Times(1.609344f)};
inline constexpr tagConversion PerMileOfKilometers = By(Over(MilesPerKilometer));
inline constexpr tagConversion Kph                 = {Times(3.5999999f), KphToMetersPerSecond};
inline constexpr tagConversion Mph                 = {Times(MphPerMeterPerSecond), MphToMetersPerSecond};

// Areas
inline constexpr tagConversion Acres               = {Times(AcresPerHectare), Times(HectaresPerAcre)};
inline constexpr tagConversion AcresOfSquareMeters = By(Over(4046.8564f));
inline constexpr tagConversion SquareMeters        = {Times(10000.0f), Times(0.0001f)};
inline constexpr tagConversion KiloseedsPerAcre    = By(Over(AcresPerHectare));

// Volumes
inline constexpr tagConversion CubicFeet                       = By(Times(CubicFeetPerLiter));
inline constexpr tagConversion CubicFeetOfCubicMeters          = By(Times(CubicFeetPerCubicMeter));
inline constexpr tagConversion UKBushels                       = By(Over(LitersPerUKBushel));
inline constexpr tagConversion USBushels                       = By(Over(LitersPerUSBushel));
inline constexpr tagConversion EnglishGallons                  = By(Times(EnglishGallonsPerLiter));
inline constexpr tagConversion USGallons                       = By(Times(USGallonsPerLiter));
inline constexpr tagConversion EnglishFluidOunces              = By(Times(35.19508f));
inline constexpr tagConversion USFluidOunces                   = By(Times(33.814022f));
inline constexpr tagConversion EnglishFluidOuncesOfMilliliters = By(Times(0.035195f));
inline constexpr tagConversion USFluidOuncesOfMilliliters      = By(Times(0.033814002f));

// Masses, pressures, temperatures
inline constexpr tagConversion Pounds         = By(Times(PoundsPerKilogram));
inline constexpr tagConversion PoundsOfTonnes = By(Times(PoundsPerTonne));
inline constexpr tagConversion Psi            = By(Times(PsiPerKilopascal));
inline constexpr tagConversion PsiOfTheHub    = {Times(PsiPerKilopascal), PsiToKilopascals};
inline constexpr tagConversion Bar            = By(Times(0.01f));
inline constexpr tagConversion Fahrenheit     = {CelsiusToFahrenheit, FahrenheitToCelsius};

// Liquids by mass: one litre counts as one kilogram
inline constexpr tagConversion PoundsOfLiters = {Over(1000.0f).Times(PoundsPerTonne), Over(PoundsPerTonne).Times(1000.0f)};
inline constexpr tagConversion PoundsByTonnes = Through(Thousands, PoundsOfTonnes);

// Densities and pulses
inline constexpr tagConversion PoundsPerEnglishGallon          = By(Times(PoundsPerKilogram).Over(EnglishGallonsPerLiter));
inline constexpr tagConversion PoundsPerUSGallon               = By(Times(PoundsPerKilogram).Over(USGallonsPerLiter));
inline constexpr tagConversion PoundsPerCubicFootOfCubicMeters = By(Times(PoundsPerKilogram).Over(CubicFeetPerCubicMeter));
inline constexpr tagConversion PoundsPerCubicFoot              = {Times(PoundsPerKilogram).Over(CubicFeetPerLiter), Then(PoundsPerCubicFootOfCubicMeters.in, Over(1000.0f))};
inline constexpr tagConversion PoundsPerUKBushel               = {Times(PoundsPerKilogram).Times(LitersPerUKBushel), Then(Pounds.in, Over(LitersPerUKBushel))};
inline constexpr tagConversion PoundsPerUSBushel               = {Times(PoundsPerKilogram).Times(LitersPerUSBushel), Then(Pounds.in, Over(LitersPerUSBushel))};
inline constexpr tagConversion PulsesPerCubicFoot              = Through(Per(Thousands), Per(CubicFeetOfCubicMeters));
inline constexpr tagConversion PulsesPerPound                  = Through(Per(Thousands), Per(PoundsOfTonnes));

// Rates per acre, of those per hectare
inline constexpr tagConversion ThousandsPerAcre                       = {Times(HectaresPerAcre).Over(1000.0f), Times(AcresPerHectare).Times(1000.0f)};
inline constexpr tagConversion ThousandthsPerAcre                     = {Times(HectaresPerAcre).Times(1000.0f), Times(AcresPerHectare).Over(1000.0f)};
inline constexpr tagConversion CubicFeetPerAcre                       = {Times(HectaresPerAcre).Times(CubicFeetPerLiter), Times(AcresPerHectare).Over(CubicFeetPerLiter)};
inline constexpr tagConversion CubicFeetPerAcreOfCubicMeters          = By(Times(CubicFeetPerCubicMeter).Over(AcresPerHectare));
inline constexpr tagConversion EnglishGallonsPerAcre                  = By(Times(0.089018703f));
inline constexpr tagConversion USGallonsPerAcre                       = By(Times(0.1069f));
inline constexpr tagConversion EnglishFluidOuncesPerAcreOfMilliliters = By(Times(0.014242992f));
inline constexpr tagConversion USFluidOuncesPerAcreOfMilliliters      = By(Times(0.0136832f));
inline constexpr tagConversion EnglishFluidOuncesPerAcre              = {EnglishGallonsPerAcre.out.First().Times(160.0f), Then(EnglishFluidOuncesPerAcreOfMilliliters.in, Over(1000.0f))};
inline constexpr tagConversion USFluidOuncesPerAcre                   = {USGallonsPerAcre.out.First().Times(128.0f), Then(USFluidOuncesPerAcreOfMilliliters.in, Over(1000.0f))};
inline constexpr tagConversion PoundsPerAcre                          = By(Times(PoundsPerKilogram).Over(AcresPerHectare));
inline constexpr tagConversion PoundsByKilogramsPerAcre               = Through(Per(Acres), Pounds);
inline constexpr tagConversion PoundsPerAcreOfTonnes                  = By(Times(PoundsPerTonne).Over(AcresPerHectare));
inline constexpr tagConversion PoundsPerAcreOfLiters                  = {Times(HectaresPerAcre).Over(1000.0f).Times(PoundsPerTonne), Then(PoundsPerAcreOfTonnes.in, Times(1000.0f))};

// Rates per travelled distance, of those per hectare
inline constexpr tagConversion EnglishGallonsPer100Yards = By(Times(EnglishGallonsPerLiter).Over(YardsPer100Meters));
inline constexpr tagConversion USGallonsPer100Yards      = By(Times(USGallonsPerLiter).Over(YardsPer100Meters));

// Two sizes under one name: by US and by English measures
inline constexpr tagSizes Gallons            = {USGallons, EnglishGallons};
inline constexpr tagSizes FluidOunces        = {USFluidOunces, EnglishFluidOunces};
inline constexpr tagSizes PoundsPerGallon    = {PoundsPerUSGallon, PoundsPerEnglishGallon};
inline constexpr tagSizes GallonsPerAcre     = {USGallonsPerAcre, EnglishGallonsPerAcre};
inline constexpr tagSizes FluidOuncesPerAcre = {USFluidOuncesPerAcre, EnglishFluidOuncesPerAcre};
inline constexpr tagSizes GallonsPer100Yards = {USGallonsPer100Yards, EnglishGallonsPer100Yards};

// clang-format on

} // namespace Conversions
