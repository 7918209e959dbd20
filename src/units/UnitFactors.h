#pragma once

#include <cfloat>

/// What the factor functions of TUnits multiply by and divide by; those are the ones to call.
///
/// Each constant is a 32-bit float, and each result is what extended precision gives from those floats: recorded data
/// was computed so, and exact factors would shift it.
namespace UnitFactors {

using Wide = long double;

constexpr double Narrow(Wide value) { return static_cast<double>(value); }

/// The float that an argument is. Some processors calculate with more digits than it has, and an inline function would
/// get them all.
inline Wide Widen(float x)
{
    if constexpr (FLT_EVAL_METHOD == 0)
        return Wide(x);
    const volatile float stored = x;
    return Wide(stored);
}

/// From one unit to another.
struct tagFactor
{
    float times;
    float over;

    /// A quotient has bits without end: it is rounded twice, to extended precision and then to a double, and once in
    /// 4,096 that gives another last bit than rounding it at once. A product of two floats has 48 bits, which a double
    /// holds as they are.
    double operator()(float x) const
    {
        const Wide wide = Widen(x);
        return over == 1.0f ? Narrow(wide) * static_cast<double>(times) : Narrow(wide * Wide(times) / Wide(over));
    }
};

constexpr tagFactor Times(float factor) { return {factor, 1.0f}; }
constexpr tagFactor Over(float divisor) { return {1.0f, divisor}; }
constexpr tagFactor TimesOver(float factor, float divisor) { return {factor, divisor}; }

inline constexpr float AcresPerHectare = 2.4710538f;
inline constexpr float BarPerKilopascal = 0.01f;
inline constexpr float CelsiusPerFahrenheit = 0.55555558f;
inline constexpr float CubicFeetPerCubicMeter = 35.314667f;
inline constexpr float CubicFeetPerLiter = 0.035314668f;
inline constexpr float EnglishFluidOuncesPerAcrePerMilliLiterPerHectare = 0.014242992f;
inline constexpr float EnglishFluidOuncesPerEnglishGallon = 160.0f;
inline constexpr float EnglishFluidOuncesPerLiter = 35.19508f;
inline constexpr float EnglishFluidOuncesPerMilliLiter = 0.035195f;
inline constexpr float EnglishGallonsPerAcrePerLiterPerHectare = 0.089018703f;
inline constexpr float EnglishGallonsPerLiter = 0.21996924f;
inline constexpr float FeetPerMeter = 3.2808399f;
inline constexpr float FreezingPointFahrenheit = 32.0f;
inline constexpr float HectaresPerAcre = 0.40468565f;
inline constexpr float HectaresPerSqMeter = 0.0001f;
inline constexpr float Hundred = 100.0f;
inline constexpr float InchesPerMeter = 39.370079f;
inline constexpr float InchesPerMillimeter = 0.039370079f;
inline constexpr float KilometersPerMeter = 0.001f;
inline constexpr float KilometersPerMile = 1.609344f;
inline constexpr float KphPerMeterPerSecond = 3.5999999f;
inline constexpr float LitersPerUKBushel = 36.368736f;
inline constexpr float LitersPerUSBushel = 35.239071f;
inline constexpr float MetersPerFoot = 0.3048f;
inline constexpr float MetersPerMile = 1609.344f;
inline constexpr float MilesPerKilometer = 0.62137121f;
inline constexpr float MilesPerMeter = 0.0006213712f;
inline constexpr float MphPerMeterPerSecond = 2.2369363f;
inline constexpr float PoundsPerKilogram = 2.2046225f;
inline constexpr float PoundsPerTonne = 2204.6226f;
inline constexpr float PsiPerKilopascal = 0.14504001f;
inline constexpr float SqMetersPerAcre = 4046.8564f;
inline constexpr float SqMetersPerHectare = 10000.0f;
inline constexpr float Thousand = 1000.0f;
inline constexpr float USFluidOuncesPerAcrePerMilliLiterPerHectare = 0.0136832f;
inline constexpr float USFluidOuncesPerLiter = 33.814022f;
inline constexpr float USFluidOuncesPerMilliLiter = 0.033814002f;
inline constexpr float USFluidOuncesPerUSGallon = 128.0f;
inline constexpr float USGallonsPerAcrePerLiterPerHectare = 0.1069f;
inline constexpr float USGallonsPerLiter = 0.26416999f;
inline constexpr float YardsPer100Meters = 109.36133f;

// Lengths

inline constexpr tagFactor MillimetersToInches = Times(InchesPerMillimeter);
inline constexpr tagFactor InchesToMillimeters = Over(InchesPerMillimeter);
inline constexpr tagFactor MetersToMillimeters = Times(Thousand);
inline constexpr tagFactor MillimetersToMeters = Over(Thousand);
inline constexpr tagFactor MetersToCentimeters = Times(Hundred);
inline constexpr tagFactor CentimetersToMeters = Over(Hundred);
inline constexpr tagFactor MetersToFeet = Times(FeetPerMeter);
inline constexpr tagFactor FeetToMeters = Times(MetersPerFoot);
inline constexpr tagFactor MetersToInches = Times(InchesPerMeter);
inline constexpr tagFactor InchesToMeters = Over(InchesPerMeter);
inline constexpr tagFactor MetersToKilometers = Times(KilometersPerMeter);
inline constexpr tagFactor MetersToMiles = Times(MilesPerMeter);
inline constexpr tagFactor KilometersToMiles = Times(MilesPerKilometer);
inline constexpr tagFactor KilometersPerHourToMilesPerHour = Times(MilesPerKilometer);
inline constexpr tagFactor MilesToKilometers = Times(KilometersPerMile);
inline constexpr tagFactor MilesPerHourToKilometersPerHour = Times(KilometersPerMile);
inline constexpr tagFactor MilesToMeters = Times(MetersPerMile);

// Areas

inline constexpr tagFactor HectaresToAcres = Times(AcresPerHectare);
inline constexpr tagFactor PerAcreToPerHectare = Times(AcresPerHectare);
inline constexpr tagFactor AcresToHectares = Times(HectaresPerAcre);
inline constexpr tagFactor PerHectareToPerAcre = Times(HectaresPerAcre);
inline constexpr tagFactor SqMetersToHectares = Times(HectaresPerSqMeter);
inline constexpr tagFactor SqMetersToAcres = Over(SqMetersPerAcre);
inline constexpr tagFactor HectaresToSqMeters = Times(SqMetersPerHectare);

// Speeds

inline constexpr tagFactor MetersPerSecondToKilometersPerHour = Times(KphPerMeterPerSecond);
inline constexpr tagFactor MetersPerSecondToMilesPerHour = Times(MphPerMeterPerSecond);

// Volumes, masses, densities and counts, by powers of ten

inline constexpr tagFactor LitersToMilliLiters = Times(Thousand);
inline constexpr tagFactor PerMilliLiterToPerLiter = Times(Thousand);
inline constexpr tagFactor CubicMetersToLiters = Times(Thousand);
inline constexpr tagFactor TonnesToLiters = Times(Thousand);
inline constexpr tagFactor PulsesPerLiterToPulsesPerCubicMeter = Times(Thousand);
inline constexpr tagFactor PulsesPerLiterToPulsesPerTonne = Times(Thousand);
inline constexpr tagFactor KilogramsPerLiterToKilogramsPerCubicMeter = Times(Thousand);
inline constexpr tagFactor MilliLitersToLiters = Over(Thousand);
inline constexpr tagFactor PerLiterToPerMilliLiter = Over(Thousand);
inline constexpr tagFactor LitersToCubicMeters = Over(Thousand);
inline constexpr tagFactor LitersToTonnes = Over(Thousand);
inline constexpr tagFactor PulsesPerCubicMeterToPulsesPerLiter = Over(Thousand);
inline constexpr tagFactor PulsesPerTonneToPulsesPerLiter = Over(Thousand);
inline constexpr tagFactor KilogramsPerCubicMeterToKilogramsPerLiter = Over(Thousand);

// Volumes and what is counted or weighed by volume

inline constexpr tagFactor LitersToCubicFeet = Times(CubicFeetPerLiter);
inline constexpr tagFactor CubicFeetToLiters = Over(CubicFeetPerLiter);
inline constexpr tagFactor CubicMetersToCubicFeet = Times(CubicFeetPerCubicMeter);
inline constexpr tagFactor CubicFeetToCubicMeters = Over(CubicFeetPerCubicMeter);
inline constexpr tagFactor PulsesPerCubicFootToPulsesPerCubicMeter = Times(CubicFeetPerCubicMeter);
inline constexpr tagFactor PulsesPerCubicMeterToPulsesPerCubicFeet = Over(CubicFeetPerCubicMeter);
inline constexpr tagFactor USBushelsToLiters = Times(LitersPerUSBushel);
inline constexpr tagFactor LitersToUSBushels = Over(LitersPerUSBushel);
inline constexpr tagFactor KilogramsPerLiterToKilogramsPerUSBushel = Times(LitersPerUSBushel);
inline constexpr tagFactor KilogramsPerUSBushelToKilogramsPerLiter = Over(LitersPerUSBushel);
inline constexpr tagFactor UKBushelsToLiters = Times(LitersPerUKBushel);
inline constexpr tagFactor LitersToUKBushels = Over(LitersPerUKBushel);
inline constexpr tagFactor KilogramsPerLiterToKilogramsPerUKBushel = Times(LitersPerUKBushel);
inline constexpr tagFactor KilogramsPerUKBushelToKilogramsPerLiter = Over(LitersPerUKBushel);
inline constexpr tagFactor LitersToUSGallons = Times(USGallonsPerLiter);
inline constexpr tagFactor PerUSGallonToPerLiter = Times(USGallonsPerLiter);
inline constexpr tagFactor PulsesPerUSGallonToPulsesPerLiter = Times(USGallonsPerLiter);
inline constexpr tagFactor USGallonsToLiters = Over(USGallonsPerLiter);
inline constexpr tagFactor PulsesPerLiterToPulsesPerUSGallon = Over(USGallonsPerLiter);
inline constexpr tagFactor LitersToEnglishGallons = Times(EnglishGallonsPerLiter);
inline constexpr tagFactor PerEnglishGallonToPerLiter = Times(EnglishGallonsPerLiter);
inline constexpr tagFactor PulsesPerEnglishGallonToPulsesPerLiter = Times(EnglishGallonsPerLiter);
inline constexpr tagFactor EnglishGallonsToLiters = Over(EnglishGallonsPerLiter);
inline constexpr tagFactor PulsesPerLiterToPulsesPerEnglishGallon = Over(EnglishGallonsPerLiter);
inline constexpr tagFactor LitersToUSFluidOunces = Times(USFluidOuncesPerLiter);
inline constexpr tagFactor PerUSFluidOunceToPerLiter = Times(USFluidOuncesPerLiter);
inline constexpr tagFactor USFluidOuncesToLiters = Over(USFluidOuncesPerLiter);
inline constexpr tagFactor PerLiterToPerUSFluidOunce = Over(USFluidOuncesPerLiter);
inline constexpr tagFactor MilliLitersToUSFluidOunces = Times(USFluidOuncesPerMilliLiter);
inline constexpr tagFactor PerUSFluidOunceToPerMilliLiter = Times(USFluidOuncesPerMilliLiter);
inline constexpr tagFactor USFluidOuncesToMilliLiters = Over(USFluidOuncesPerMilliLiter);
inline constexpr tagFactor PerMilliLiterToPerUSFluidOunce = Over(USFluidOuncesPerMilliLiter);
inline constexpr tagFactor LitersToEnglishFluidOunces = Times(EnglishFluidOuncesPerLiter);
inline constexpr tagFactor PerEnglishFluidOunceToPerLiter = Times(EnglishFluidOuncesPerLiter);
inline constexpr tagFactor EnglishFluidOuncesToLiters = Over(EnglishFluidOuncesPerLiter);
inline constexpr tagFactor PerLiterToPerEnglishFluidOunce = Over(EnglishFluidOuncesPerLiter);
inline constexpr tagFactor MilliLitersToEnglishFluidOunces = Times(EnglishFluidOuncesPerMilliLiter);
inline constexpr tagFactor PerEnglishFluidOunceToPerMilliLiter = Times(EnglishFluidOuncesPerMilliLiter);
inline constexpr tagFactor EnglishFluidOuncesToMilliLiters = Over(EnglishFluidOuncesPerMilliLiter);
inline constexpr tagFactor PerMilliLiterToPerEnglishFluidOunce = Over(EnglishFluidOuncesPerMilliLiter);

// Liquid rates per area

inline constexpr tagFactor LitersPerHectareToUSGallonsPerAcre = Times(USGallonsPerAcrePerLiterPerHectare);
inline constexpr tagFactor USGallonsPerAcreToLitersPerHectare = Over(USGallonsPerAcrePerLiterPerHectare);
inline constexpr tagFactor LitersPerHectareToEnglishGallonsPerAcre = Times(EnglishGallonsPerAcrePerLiterPerHectare);
inline constexpr tagFactor EnglishGallonsPerAcreToLitersPerHectare = Over(EnglishGallonsPerAcrePerLiterPerHectare);
inline constexpr tagFactor MilliLitersPerHectareToUSFluidOuncesPerAcre =
    Times(USFluidOuncesPerAcrePerMilliLiterPerHectare);
inline constexpr tagFactor USFluidOuncesPerAcreToMilliLitersPerHectare =
    Over(USFluidOuncesPerAcrePerMilliLiterPerHectare);
inline constexpr tagFactor MilliLitersPerHectareToEnglishFluidOuncesPerAcre =
    Times(EnglishFluidOuncesPerAcrePerMilliLiterPerHectare);
inline constexpr tagFactor EnglishFluidOuncesPerAcreToMilliLitersPerHectare =
    Over(EnglishFluidOuncesPerAcrePerMilliLiterPerHectare);

// Pressures

inline constexpr tagFactor KilopascalsToPoundsPerSquareInch = Times(PsiPerKilopascal);
inline constexpr tagFactor PoundsPerSquareInchToKilopascals = Over(PsiPerKilopascal);
inline constexpr tagFactor KilopascalsToBar = Times(BarPerKilopascal);
inline constexpr tagFactor BarToKilopascals = Over(BarPerKilopascal);

// Masses, and what is counted or weighed by mass

inline constexpr tagFactor PulsesPerTonneToPulsesPerPound = Over(PoundsPerTonne);
inline constexpr tagFactor PulsesPerPoundToPulsesPerTonne = Times(PoundsPerTonne);
inline constexpr tagFactor PulsesPerKPHToPulsesPerMPH = Over(MilesPerKilometer);
inline constexpr tagFactor PulsesPerMPHToPulsesPerKPH = Times(MilesPerKilometer);
inline constexpr tagFactor KilogramsToPounds = Times(PoundsPerKilogram);
inline constexpr tagFactor PoundsToKilograms = Over(PoundsPerKilogram);
inline constexpr tagFactor TonnesToPounds = Times(PoundsPerTonne);
inline constexpr tagFactor PoundsToTonnes = Over(PoundsPerTonne);
inline constexpr tagFactor KilogramsPerHectareToPoundsPerAcre = TimesOver(PoundsPerKilogram, AcresPerHectare);
inline constexpr tagFactor PoundsPerAcreToKilogramsPerHectare = TimesOver(AcresPerHectare, PoundsPerKilogram);
inline constexpr tagFactor KilogramsPerLiterToPoundsPerGallon = TimesOver(PoundsPerKilogram, EnglishGallonsPerLiter);
inline constexpr tagFactor KilogramsPerLiterToPoundsPerUSGallon = TimesOver(PoundsPerKilogram, USGallonsPerLiter);
inline constexpr tagFactor PoundsPerGallonToKilogramsPerLiter = TimesOver(EnglishGallonsPerLiter, PoundsPerKilogram);
inline constexpr tagFactor PoundsPerUSGallonToKilogramsPerLiter = TimesOver(USGallonsPerLiter, PoundsPerKilogram);
inline constexpr tagFactor KilogramsPerLiterToPoundsPerCubicFoot = TimesOver(PoundsPerKilogram, CubicFeetPerLiter);
inline constexpr tagFactor KilogramsPerCubicMeterToPoundsPerCubicFoot =
    TimesOver(PoundsPerKilogram, CubicFeetPerCubicMeter);
inline constexpr tagFactor PoundsPerCubicFootToKilogramsPerCubicMeter =
    TimesOver(CubicFeetPerCubicMeter, PoundsPerKilogram);

// Seeds

inline constexpr tagFactor KiloseedsPerHectareToKiloseedsPerAcre = Over(AcresPerHectare);
inline constexpr tagFactor KiloseedsPerAcreToKiloseedsPerHectare = Times(AcresPerHectare);

// Rates per area, across quantities

inline constexpr tagFactor LitersPerHectareToCubicMetersPerHectare = Over(Thousand);
inline constexpr tagFactor LitersPerHectareToTonnesPerHectare = Over(Thousand);
inline constexpr tagFactor CubicMetersPerHectareToLitersPerHectare = Times(Thousand);
inline constexpr tagFactor TonnesPerHectareToLitersPerHectare = Times(Thousand);
inline constexpr tagFactor CubicMetersPerHectareToCubicFeetPerAcre = TimesOver(CubicFeetPerCubicMeter, AcresPerHectare);
inline constexpr tagFactor CubicFeetPerAcreToCubicMetersPerHectare = TimesOver(AcresPerHectare, CubicFeetPerCubicMeter);
inline constexpr tagFactor CubicFeetPerAcreToLitersPerHectare = TimesOver(AcresPerHectare, CubicFeetPerLiter);
inline constexpr tagFactor TonnesPerHectareToPoundsPerAcre = TimesOver(PoundsPerTonne, AcresPerHectare);
inline constexpr tagFactor PoundsPerAcreToTonnesPerHectare = TimesOver(AcresPerHectare, PoundsPerTonne);
inline constexpr tagFactor MilliLitersPerAcreToLitersPerHectare = TimesOver(AcresPerHectare, Thousand);
inline constexpr tagFactor LitersPerHectareToCubicMetersPerAcre = TimesOver(HectaresPerAcre, Thousand);
inline constexpr tagFactor LitersPerHectareToTonnesPerAcre = TimesOver(HectaresPerAcre, Thousand);

// Rates per travelled distance

inline constexpr tagFactor LitersPerHectareToLitersPer100Meters = Over(Hundred);
inline constexpr tagFactor LitersPer100MetersToLitersPerHectare = Times(Hundred);
inline constexpr tagFactor LitersPerHectareToEnglishGallonsPer100Yards =
    TimesOver(EnglishGallonsPerLiter, YardsPer100Meters);
inline constexpr tagFactor LitersPerHectareToUSGallonsPer100Yards = TimesOver(USGallonsPerLiter, YardsPer100Meters);
inline constexpr tagFactor EnglishGallonsPer100YardsToLitersPerHectare =
    TimesOver(YardsPer100Meters, EnglishGallonsPerLiter);
inline constexpr tagFactor USGallonsPer100YardsToLitersPerHectare = TimesOver(YardsPer100Meters, USGallonsPerLiter);

} // namespace UnitFactors
