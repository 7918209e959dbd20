#pragma once

#include "platform/Export.h"
#include "units/EUnitsType.h"

#include <QChar>
#include <QDate>
#include <QString>

/// Converts values between units, and shows them as texts in the units that the operator chose.
///
/// @code
/// const double gallons = TUnits::ConvertUnit(150, UNITS_L_PER_HA, UNITS_US_GAL_PER_AC);            // 16.035
/// const QString rate = TUnits::GetValueString(12.25, UNITS_L_PER_HA, 1, nullptr);                  // "12.3 L/ha"
/// const QString speed = TUnits::GetValueString(5, UNITS_KPH, TUnits::DefaultPrecision, nullptr);   // "18.0 kph"
/// @endcode
///
/// Each quantity has a hub: litres for volumes, kilograms for weights. Hosts store and exchange values in the hub. A
/// value is converted from the hub when it is shown, and back when it is typed. GetConversionHub() and GetStoredUnit()
/// name the units.
///
/// All functions are static and may be called from any thread. They read the parameters from the host's store at every
/// call; only the decimal point is read once in a process.
///
/// A precision is a number of decimals. -1 asks for the default of the unit; a number below -1 shows 6 decimals. No
/// more than a million decimals are shown; a double has 1074 at most. A threshold rule is passed by pointer, null for
/// none, and wins over both. Texts have the decimal point of the display.
class CABSETTINGS_EXPORT TUnits
{
public:
    /// Another precision for values from a threshold on.
    struct tagThresholdSpec
    {
        float threshold; ///< in the unit shown
        int precision;   ///< decimals of values that are not below the threshold
    };

    /// The precision that asks for the default of the unit.
    static constexpr int DefaultPrecision = -1;

    /// The precision that asks GetValueString() for decimals that depend on the value. Only the three rates of
    /// IsUnitAbbrDynamicPrecisionSupported() know it; other units show 100 decimals.
    static constexpr int DynamicPrecision = 100;

    // ---- Factors --------------------------------------------------------------------------------------------------

    // From the unit named first to the unit named second. The argument is a 32-bit float, and so is every constant; the
    // result is computed from them in extended precision. Every argument has a result; NaN and infinity pass through.

    // Lengths
    static double ConvertMillimetersToInches(float x);
    static double ConvertInchesToMillimeters(float x);
    static double ConvertMetersToMillimeters(float x);
    static double ConvertMillimetersToMeters(float x);
    static double ConvertMetersToCentimeters(float x);
    static double ConvertCentimetersToMeters(float x);
    static double ConvertMetersToFeet(float x);
    static double ConvertFeetToMeters(float x);
    static double ConvertMetersToInches(float x);
    static double ConvertInchesToMeters(float x);
    static double ConvertMetersToKilometers(float x);
    static double ConvertMetersToMiles(float x);
    static double ConvertKilometersToMiles(float x);
    static double ConvertKilometersPerHourToMilesPerHour(float x);
    static double ConvertMilesToKilometers(float x);
    static double ConvertMilesPerHourToKilometersPerHour(float x);
    static double ConvertMilesToMeters(float x);

    // Areas
    static double ConvertHectaresToAcres(float x);
    static double ConvertPerAcreToPerHectare(float x);
    static double ConvertAcresToHectares(float x);
    static double ConvertPerHectareToPerAcre(float x);
    static double ConvertSqMetersToHectares(float x);
    static double ConvertSqMetersToAcres(float x);
    static double ConvertHectaresToSqMeters(float x);

    // Speeds
    static double ConvertMetersPerSecondToKilometersPerHour(float x);
    static double ConvertMetersPerSecondToMilesPerHour(float x);

    // Volumes, masses, densities and counts, by powers of ten
    static double ConvertLitersToMilliLiters(float x);
    static double ConvertPerMilliLiterToPerLiter(float x);
    static double ConvertCubicMetersToLiters(float x);
    static double ConvertTonnesToLiters(float x);
    static double ConvertPulsesPerLiterToPulsesPerCubicMeter(float x);
    static double ConvertPulsesPerLiterToPulsesPerTonne(float x);
    static double ConvertKilogramsPerLiterToKilogramsPerCubicMeter(float x);
    static double ConvertMilliLitersToLiters(float x);
    static double ConvertPerLiterToPerMilliLiter(float x);
    static double ConvertLitersToCubicMeters(float x);
    static double ConvertLitersToTonnes(float x);
    static double ConvertPulsesPerCubicMeterToPulsesPerLiter(float x);
    static double ConvertPulsesPerTonneToPulsesPerLiter(float x);
    static double ConvertKilogramsPerCubicMeterToKilogramsPerLiter(float x);

    // Volumes and what is counted or weighed by volume
    static double ConvertLitersToCubicFeet(float x);
    static double ConvertCubicFeetToLiters(float x);
    static double ConvertCubicMetersToCubicFeet(float x);
    static double ConvertCubicFeetToCubicMeters(float x);
    static double ConvertPulsesPerCubicFootToPulsesPerCubicMeter(float x);
    static double ConvertPulsesPerCubicMeterToPulsesPerCubicFeet(float x);
    static double ConvertUSBushelsToLiters(float x);
    static double ConvertLitersToUSBushels(float x);
    static double ConvertKilogramsPerLiterToKilogramsPerUSBushel(float x);
    static double ConvertKilogramsPerUSBushelToKilogramsPerLiter(float x);
    static double ConvertUKBushelsToLiters(float x);
    static double ConvertLitersToUKBushels(float x);
    static double ConvertKilogramsPerLiterToKilogramsPerUKBushel(float x);
    static double ConvertKilogramsPerUKBushelToKilogramsPerLiter(float x);
    static double ConvertLitersToUSGallons(float x);
    static double ConvertPerUSGallonToPerLiter(float x);
    static double ConvertPulsesPerUSGallonToPulsesPerLiter(float x);
    static double ConvertUSGallonsToLiters(float x);
    static double ConvertPulsesPerLiterToPulsesPerUSGallon(float x);
    static double ConvertLitersToEnglishGallons(float x);
    static double ConvertPerEnglishGallonToPerLiter(float x);
    static double ConvertPulsesPerEnglishGallonToPulsesPerLiter(float x);
    static double ConvertEnglishGallonsToLiters(float x);
    static double ConvertPulsesPerLiterToPulsesPerEnglishGallon(float x);
    static double ConvertLitersToUSFluidOunces(float x);
    static double ConvertPerUSFluidOunceToPerLiter(float x);
    static double ConvertUSFluidOuncesToLiters(float x);
    static double ConvertPerLiterToPerUSFluidOunce(float x);
    static double ConvertMilliLitersToUSFluidOunces(float x);
    static double ConvertPerUSFluidOunceToPerMilliLiter(float x);
    static double ConvertUSFluidOuncesToMilliLiters(float x);
    static double ConvertPerMilliLiterToPerUSFluidOunce(float x);
    static double ConvertLitersToEnglishFluidOunces(float x);
    static double ConvertPerEnglishFluidOunceToPerLiter(float x);
    static double ConvertEnglishFluidOuncesToLiters(float x);
    static double ConvertPerLiterToPerEnglishFluidOunce(float x);
    static double ConvertMilliLitersToEnglishFluidOunces(float x);
    static double ConvertPerEnglishFluidOunceToPerMilliLiter(float x);
    static double ConvertEnglishFluidOuncesToMilliLiters(float x);
    static double ConvertPerMilliLiterToPerEnglishFluidOunce(float x);

    // Liquid rates per area
    static double ConvertLitersPerHectareToUSGallonsPerAcre(float x);
    static double ConvertUSGallonsPerAcreToLitersPerHectare(float x);
    static double ConvertLitersPerHectareToEnglishGallonsPerAcre(float x);
    static double ConvertEnglishGallonsPerAcreToLitersPerHectare(float x);
    static double ConvertMilliLitersPerHectareToUSFluidOuncesPerAcre(float x);
    static double ConvertUSFluidOuncesPerAcreToMilliLitersPerHectare(float x);
    static double ConvertMilliLitersPerHectareToEnglishFluidOuncesPerAcre(float x);
    static double ConvertEnglishFluidOuncesPerAcreToMilliLitersPerHectare(float x);
    static double ConvertLitersPerHectareToUSFluidOuncesPerAcre(float x);
    static double ConvertLitersPerHectareToEnglishFluidOuncesPerAcre(float x);
    static double ConvertUSFluidOuncesPerAcreToLitersPerHectare(float x);
    static double ConvertEnglishFluidOuncesPerAcreToLitersPerHectare(float x);

    // Pressures
    static double ConvertKilopascalsToPoundsPerSquareInch(float x);
    static double ConvertPoundsPerSquareInchToKilopascals(float x);
    static double ConvertKilopascalsToBar(float x);
    static double ConvertBarToKilopascals(float x);

    // Masses, and what is counted or weighed by mass
    static double ConvertPulsesPerTonneToPulsesPerPound(float x);
    static double ConvertPulsesPerPoundToPulsesPerTonne(float x);
    static double ConvertPulsesPerKPHToPulsesPerMPH(float x);
    static double ConvertPulsesPerMPHToPulsesPerKPH(float x);
    static double ConvertKilogramsToPounds(float x);
    static double ConvertPoundsToKilograms(float x);
    static double ConvertTonnesToPounds(float x);
    static double ConvertPoundsToTonnes(float x);
    static double ConvertKilogramsPerHectareToPoundsPerAcre(float x);
    static double ConvertPoundsPerAcreToKilogramsPerHectare(float x);
    static double ConvertKilogramsPerLiterToPoundsPerGallon(float x);
    static double ConvertKilogramsPerLiterToPoundsPerUSGallon(float x);
    static double ConvertPoundsPerGallonToKilogramsPerLiter(float x);
    static double ConvertPoundsPerUSGallonToKilogramsPerLiter(float x);
    static double ConvertKilogramsPerLiterToPoundsPerCubicFoot(float x);
    static double ConvertKilogramsPerCubicMeterToPoundsPerCubicFoot(float x);
    static double ConvertPoundsPerCubicFootToKilogramsPerCubicMeter(float x);
    static double ConvertKilogramsPerLiterToPoundsPerUSBushel(float x);
    static double ConvertKilogramsPerLiterToPoundsPerUKBushel(float x);

    // Seeds
    static double ConvertKiloseedsPerHectareToKiloseedsPerAcre(float x);
    static double ConvertKiloseedsPerAcreToKiloseedsPerHectare(float x);

    // Temperatures
    static double ConvertCelsiusToFahrenheit(float x);
    static double ConvertFahrenheitToCelsius(float x);

    // Liquids by mass: one litre counts as one kilogram
    static double ConvertLitersToPounds(float x);
    static double ConvertPoundsToLiters(float x);

    // Rates per area, across quantities
    static double ConvertLitersPerHectareToCubicMetersPerHectare(float x);
    static double ConvertLitersPerHectareToTonnesPerHectare(float x);
    static double ConvertCubicMetersPerHectareToLitersPerHectare(float x);
    static double ConvertTonnesPerHectareToLitersPerHectare(float x);
    static double ConvertCubicMetersPerHectareToCubicFeetPerAcre(float x);
    static double ConvertCubicFeetPerAcreToCubicMetersPerHectare(float x);
    static double ConvertCubicFeetPerAcreToLitersPerHectare(float x);
    static double ConvertTonnesPerHectareToPoundsPerAcre(float x);
    static double ConvertPoundsPerAcreToTonnesPerHectare(float x);
    static double ConvertMilliLitersPerAcreToLitersPerHectare(float x);
    static double ConvertCubicMetersPerAcreToLitersPerHectare(float x);
    static double ConvertTonnesPerAcreToLitersPerHectare(float x);
    static double ConvertLitersPerHectareToCubicMetersPerAcre(float x);
    static double ConvertLitersPerHectareToTonnesPerAcre(float x);
    static double ConvertLitersPerHectareToCubicFeetPerAcre(float x);
    static double ConvertLitersPerHectareToPoundsPerAcre(float x);
    static double ConvertLitersPerHectareToMilliLitersPerAcre(float x);

    // Rates per travelled distance
    static double ConvertLitersPerHectareToLitersPer100Meters(float x);
    static double ConvertLitersPer100MetersToLitersPerHectare(float x);
    static double ConvertLitersPerHectareToEnglishGallonsPer100Yards(float x);
    static double ConvertLitersPerHectareToUSGallonsPer100Yards(float x);
    static double ConvertEnglishGallonsPer100YardsToLitersPerHectare(float x);
    static double ConvertUSGallonsPer100YardsToLitersPerHectare(float x);

    // ---- Hubs -----------------------------------------------------------------------------------------------------

    // From the hub into the unit @p to, and from the unit @p from into the hub. A unit of another quantity leaves the
    // value as it is.
    //
    // Gallons and fluid ounces are US or English, as PARAM_US_MEASURES says. While PARAM_METRIC is set they leave the
    // value as it is. Units marked "(US)" do not depend on these parameters.

    static double ConvertFromMeter(double value, EUnitsType to);
    static double ConvertToMeter(double value, EUnitsType from);
    static double ConvertFromHectare(double value, EUnitsType to);
    static double ConvertToHectare(double value, EUnitsType from);
    static double ConvertFromMetersPerMin(double value, EUnitsType to);
    static double ConvertToMetersPerMin(double value, EUnitsType from);
    static double ConvertFromMetersPerSecond(double value, EUnitsType to);
    static double ConvertToMetersPerSecond(double value, EUnitsType from);
    static double ConvertFromPulsesPerKilometerPerHour(double value, EUnitsType to);
    static double ConvertToPulsesPerKilometerPerHour(double value, EUnitsType from);
    static double ConvertFromLiter(double value, EUnitsType to);
    static double ConvertToLiter(double value, EUnitsType from);
    static double ConvertFromLitersPerHectare(double value, EUnitsType to);
    static double ConvertToLitersPerHectare(double value, EUnitsType from);
    static double ConvertFromLitersPerMinute(double value, EUnitsType to);
    static double ConvertToLitersPerMinute(double value, EUnitsType from);
    static double ConvertFromLitersPerRev(double value, EUnitsType to);
    static double ConvertToLitersPerRev(double value, EUnitsType from);
    static double ConvertFromKiloPascals(double value, EUnitsType to);
    static double ConvertToKiloPascals(double value, EUnitsType from);
    static double ConvertFromMetersPerPulse(double value, EUnitsType to);
    static double ConvertToMetersPerPulse(double value, EUnitsType from);
    static double ConvertFromPulsesPerLiter(double value, EUnitsType to);
    static double ConvertToPulsesPerLiter(double value, EUnitsType from);
    static double ConvertFromKilogram(double value, EUnitsType to);
    static double ConvertToKilogram(double value, EUnitsType from);
    static double ConvertFromKilogramsPerHectare(double value, EUnitsType to);
    static double ConvertToKilogramsPerHectare(double value, EUnitsType from);
    static double ConvertFromKilogramsPerLiter(double value, EUnitsType to);
    static double ConvertToKilogramsPerLiter(double value, EUnitsType from);
    static double ConvertFromPulsesPerKilogramNitrogen(double value, EUnitsType to);
    static double ConvertToPulsesPerKilogramNitrogen(double value, EUnitsType from);

    /// These two return the value as it is, whatever the unit.
    static double ConvertFromHectaresPerHour(double value, EUnitsType to);
    static double ConvertToHectaresPerHour(double value, EUnitsType from);

    /// Converts between a hub and a unit of its quantity, in either direction.
    ///
    /// Returns the value as it is when there is no such conversion, for example between two units that are not hubs.
    /// Ask CanConvert() before, where an unconverted value would do harm.
    static double ConvertUnit(double value, EUnitsType from, EUnitsType to);

    /// Whether ConvertUnit() converts from one unit to the other, under the measures in use now. True for a unit and
    /// itself.
    static bool CanConvert(EUnitsType from, EUnitsType to);

    /// The unit through which a value of @p type is converted: litres for volumes, metres per second for speeds,
    /// kilograms of nitrogen for nitrogen. Returns @p type itself when it is a hub, and for a number that is no unit.
    ///
    /// To convert between two units with the same hub, convert into the hub and out of it; both steps need
    /// CanConvert().
    static EUnitsType GetConversionHub(EUnitsType type);

    /// The factor that turns a value in the hub of @p unitType into the unit with that abbreviation. 1 for an unknown
    /// abbreviation, and for temperatures, which no factor converts.
    static double GetConversionFactor(int unitType, const QString& abbreviation);

    /// The default unit of the quantity: its hub, except km/h for speeds and plain masses for nitrogen. Returns @p type
    /// itself when there is no other.
    static EUnitsType DetermineDefaultUnitFromUnitsType(EUnitsType type);

    /// The unit of the value that GetValueString() takes for @p type: metres for millimetres and feet, metres per
    /// second for km/h, litres for millilitres, cubic metres, tonnes and bushels. Returns @p type itself where
    /// GetValueString() shows the value as it is, as it does for acres and pounds, and for a number that is no unit.
    static EUnitsType GetStoredUnit(EUnitsType type);

    /// Whether the size of the unit depends on PARAM_US_MEASURES. True for gallons and fluid ounces, alone and in
    /// rates, flows, densities and pulse counts. False for those marked "(US)", and for a number that is no unit.
    static bool DependsOnUSMeasures(EUnitsType type);

    /// The unit in which the display shows a quantity, given its hub or metric unit. UNITS_NONE when the parameter that
    /// chooses is out of its range. Never a unit marked "(US)".
    static EUnitsType DetermineActualUnitFromUnitsType(EUnitsType type);

    /// Converts from the default unit of @p type to the unit in which the display shows it, and back, by ConvertUnit().
    /// Where that has no conversion (km/h and mph, temperatures, rates per travelled distance) the value is returned as
    /// it is.
    static double GetValueInCurrentUnit(double value, EUnitsType type);
    static double GetValueInDefaultUnit(double value, EUnitsType type);

    // ---- The operator's units -------------------------------------------------------------------------------------

    /// Whether a parameter chooses the unit shown for @p type: PARAM_AREA_UNIT, PARAM_PRESSURE_UNIT,
    /// PARAM_SHORT_DISTANCE_UNIT.
    static bool IsSpecifiedAreaUnit(EUnitsType type);
    static bool IsSpecifiedPressureUnit(EUnitsType type);
    static bool IsSpecifiedShortDistanceUnit(EUnitsType type);

    // From a rate per hectare to a rate per chosen area, and back. While acres are chosen, these are the factor
    // functions for acres. Otherwise the value is returned as it is: the unit of volume or mass is not converted
    // either. So use both directions of a pair, never one alone.

    static double ConvertPerHectareToPerSpecifiedAreaUnit(double x);
    static double ConvertPerSpecifiedAreaUnitToPerHectare(double x);
    static double ConvertLitersPerHectareToUSGallonsPerSpecifiedAreaUnit(double x);
    static double ConvertUSGallonsPerSpecifiedAreaUnitToLitersPerHectare(double x);
    static double ConvertLitersPerHectareToEnglishGallonsPerSpecifiedAreaUnit(double x);
    static double ConvertEnglishGallonsPerSpecifiedAreaUnitToLitersPerHectare(double x);
    static double ConvertLitersPerHectareToMilliLitersPerSpecifiedAreaUnit(double x);
    static double ConvertMilliLitersPerSpecifiedAreaUnitToLitersPerHectare(double x);
    static double ConvertLitersPerHectareToUSFluidOuncesPerSpecifiedAreaUnit(double x);
    static double ConvertUSFluidOuncesPerSpecifiedAreaUnitToLitersPerHectare(double x);
    static double ConvertLitersPerHectareToEnglishFluidOuncesPerSpecifiedAreaUnit(double x);
    static double ConvertEnglishFluidOuncesPerSpecifiedAreaUnitToLitersPerHectare(double x);
    static double ConvertLitersPerHectareToCubicMetersPerSpecifiedAreaUnit(double x);
    static double ConvertCubicMetersPerSpecifiedAreaUnitToLitersPerHectare(double x);
    static double ConvertLitersPerHectareToCubicFeetPerSpecifiedAreaUnit(double x);
    static double ConvertCubicFeetPerSpecifiedAreaUnitToLitersPerHectare(double x);
    static double ConvertLitersPerHectareToTonnesPerSpecifiedAreaUnit(double x);
    static double ConvertTonnesPerSpecifiedAreaUnitToLitersPerHectare(double x);
    static double ConvertLitersPerHectareToPoundsPerSpecifiedAreaUnit(double x);
    static double ConvertPoundsPerSpecifiedAreaUnitToLitersPerHectare(double x);
    static double ConvertKilogramsPerHectareToPoundsPerSpecifiedAreaUnit(double x);
    static double ConvertPoundsPerSpecifiedAreaUnitToKilogramsPerHectare(double x);

    /// From the stored value per hectare to the value that is shown in an entry field, and back. The value as it is
    /// where IsSpecifiedAreaUnit() is false.
    static double ConvertSpecifiedAreaUnitIn(double value, EUnitsType type);
    static double ConvertSpecifiedAreaUnitOut(double value, EUnitsType type);

    /// From kilopascals to the chosen unit of pressure, and back.
    static double ConvertSpecifiedPressureUnitIn(double value);
    static double ConvertSpecifiedPressureUnitOut(double value);

    /// From metres to the chosen unit of short distances, and back.
    static double ConvertSpecifiedShortDistanceUnitIn(double value, EUnitsType type);
    static double ConvertSpecifiedShortDistanceUnitOut(double value, EUnitsType type);

    /// The unit of short distances by PARAM_SHORT_DISTANCE_UNIT. @p small asks for millimetres or inches. UNITS_FEET
    /// and UNITS_INCHES as @p type keep their unit unless metres are chosen.
    static EUnitsType GetShortDistanceUnits(bool small, EUnitsType type);

    /// From a typed value in the metric unit @p type to the stored one, and back: cubic metres to litres, for example.
    /// The value as it is while PARAM_METRIC is not set.
    static double NormaliseMetricValue(double value, EUnitsType type);
    static double DenormaliseMetricValue(double value, EUnitsType type);

    /// From a typed value in the imperial unit shown in place of @p metricType to the stored metric one, and back.
    /// Stored are litres for UNITS_MILLILITERS, and km/h for UNITS_KPH. Other types leave the value as it is.
    static double ConvertToMetric(double value, EUnitsType metricType);
    static double ConvertToImperial(double value, EUnitsType metricType);

    /// The unit that PARAM_LIQUID_UNIT, PARAM_DRY_VOLUME_UNIT or PARAM_DRY_DENSITY_UNIT chooses. UNITS_NONE when the
    /// parameter is out of its range.
    static EUnitsType GetLiquidVolumeUnits();
    static EUnitsType GetLiquidFlowRateUnits();
    static EUnitsType GetLiquidVolumePerAreaUnits();
    static EUnitsType GetLiquidFlowCalFactorUnits();
    static EUnitsType GetLiquidDensityUnits();
    static EUnitsType GetDryVolumeUnits();
    static EUnitsType GetDryDensityUnits();

    /// The calibration unit of a kind of tank, 0 to 8. UNITS_NONE for a kind without calibration.
    static EUnitsType GetTankCalFactorUnits(int kind, bool perMinute);

    // ---- Precision ------------------------------------------------------------------------------------------------

    /// The precision of @p spec when @p value, in the unit shown, is not below its threshold. Otherwise, and for NaN,
    /// @p precision.
    static int GetThresholdPrecision(float value, const tagThresholdSpec* spec, int precision);

    /// The decimals with which a unit is shown by default; -1 for a unit without a default.
    static int GetDefaultPrecision(EUnitsType type);

    /// @p precision, or the unit's default when it is -1.
    static int GetUnitPrecision(EUnitsType type, int precision);

    /// Whether the unit has decimals that depend on the value: UNITS_L_PER_HA, UNITS_KG_PER_HA, UNITS_KG_N_PER_HA.
    static bool IsUnitAbbrDynamicPrecisionSupported(EUnitsType type);

    /// The decimals of a rate by its value. 0 for a unit without such a rule, and for NaN.
    static int GetDynamicPrecision(float value, EUnitsType type);
    static int CalculateLiquidRateDynamicPrecision(float value);
    static int CalculateNH3RateDynamicPrecision(float value);
    static int CalculateGranularRateDynamicPrecision(float value);

    // ---- Numbers and units as texts -------------------------------------------------------------------------------

    /// The decimal point of stored numbers, a full stop; and that of the display, a comma when PARAM_DECIMAL_POINT is
    /// DECIMAL_POINT_COMMA. The parameter is read once in a process.
    static QChar InternalDecimalPointChar();
    static QChar DisplayableDecimalPointChar();

    /// Returns @p text with the decimal point of each number changed, to that of the display or back. To the display:
    /// only a point between two digits is changed. Back: a point after a digit, so that a typed "12," is read. Each
    /// reads PARAM_DECIMAL_POINT once in a process.
    static QString InternalToDisplayableFloatStr(const QString& text);
    static QString DisplayableToInternalFloatStr(const QString& text);

    /// The value, and @p unit directly behind it: pass a leading blank to separate them. A precision below 0 shows up
    /// to 6 significant digits. Two units have a meaning: "HH:mm:ss" shows hours as a time of day, "DD/MM/YYYY" shows a
    /// Julian day as a date.
    static QString GetValueString(double value, const QString& unit, int precision, const tagThresholdSpec* spec);

    /// The text that the operator sees for @p value, which is in GetStoredUnit(@p type): litres for UNITS_CUBIC_METERS,
    /// metres per second for UNITS_KPH. @p type chooses the quantity, the parameters choose the unit shown. A unit
    /// whose stored unit is itself shows the value as it is, for instance UNITS_GALLONS. DynamicPrecision asks for
    /// decimals that depend on the value.
    static QString GetValueString(double value, EUnitsType type, int precision, const tagThresholdSpec* spec);

    /// The same text, split at its first blank.
    static void GetValueUnitString(double value, QString& valueText, QString& unitText, const QString& unit,
                                   int precision, const tagThresholdSpec* spec);
    static void GetValueUnitString(double value, QString& valueText, QString& unitText, EUnitsType type, int precision,
                                   const tagThresholdSpec* spec);

    // ---- Quantities -----------------------------------------------------------------------------------------------

    // Each shows a stored value as a text: number, one blank, abbreviation. The blank is there before a degree sign,
    // and behind a number without unit, too. @p metric chooses the metric system when true, the imperial one otherwise.
    // @p us chooses US measures when true, English ones otherwise.

    /// In the unit of PARAM_AREA_UNIT. When that is neither hectares nor acres, the value as it is, without a unit.
    static QString GetAreaString(float hectares, int precision, const tagThresholdSpec* spec);
    static QString GetProductivityString(float hectaresPerHour, int precision, const tagThresholdSpec* spec);
    static QString GetKiloseedsPerAreaString(double kiloseedsPerHectare, int precision, const tagThresholdSpec* spec);

    static QString GetTemperatureString(bool metric, double celsius, int precision, const tagThresholdSpec* spec);
    static QString GetSpeedStringForMetersPerMinute(bool metric, float metersPerMinute, int precision,
                                                    const tagThresholdSpec* spec);

    /// @p isIgnored has no effect.
    static QString GetSpeedString(bool metric, float metersPerSecond, bool isIgnored);

    /// In the unit of PARAM_SHORT_DISTANCE_UNIT. Feet and inches follow the number without a blank. @p small asks for
    /// millimetres or inches.
    static QString GetDistanceString(float meters, bool small, int precision, const tagThresholdSpec* spec);
    static QString GetDistanceStringInMetricOrImperialFeet(float meters, int precision, const tagThresholdSpec* spec);

    /// In a unit that suits the magnitude: cm, m or km; or inches, feet (with inches below 10 feet) or miles.
    static QString GetDistanceStringAdaptive(bool metric, float meters, bool wholeInches, bool noDecimals);

    static QString GetVolumeStringInCubicMeterOrCubicFeet(bool metric, float liters, int precision,
                                                          const tagThresholdSpec* spec);
    static QString GetVolumeStringInTonnes(bool metric, float liters, int precision, const tagThresholdSpec* spec);
    static QString GetVolumeStringInUSBushels(float liters, int precision, const tagThresholdSpec* spec);
    static QString GetVolumeStringInUKBushels(float liters, int precision, const tagThresholdSpec* spec);

    /// In mL or fluid ounces when @p small. Otherwise in @p product, which is a metric unit of volume or a bushel, or
    /// in its imperial partner. Any other @p product shows the value as it is, without a unit. Cubic metres, bushels
    /// and tonnes ignore the threshold rule.
    static QString GetVolumeString(bool metric, bool us, float liters, bool small, EUnitsType product, int precision,
                                   const tagThresholdSpec* spec);

    /// The same for flows, with a metric unit of flow as @p product. Cubic metres and tonnes ignore @p precision and
    /// the threshold rule.
    static QString GetFlowRateString(bool metric, bool us, float litersPerMinute, bool small, EUnitsType product,
                                     int precision, const tagThresholdSpec* spec);
    static QString GetFlowRateStringInCubicMetersPerMinute(bool metric, float litersPerMinute, int precision,
                                                           const tagThresholdSpec* spec);
    static QString GetFlowRateStringInTonnesPerMinute(bool metric, float litersPerMinute, int precision,
                                                      const tagThresholdSpec* spec);

    static QString GetWeightString(bool metric, float kilograms, int precision, const tagThresholdSpec* spec);
    static QString GetNitrogenWeightString(bool metric, float kilograms, int precision, const tagThresholdSpec* spec);
    static QString GetDischargeRateString(bool metric, float kilogramsPerMinute, int precision,
                                          const tagThresholdSpec* spec);
    static QString GetWeightPerRevolutionString(bool metric, double kilograms, int precision,
                                                const tagThresholdSpec* spec);
    static QString GetVolumePerRevolutionString(bool metric, bool us, double liters, int precision,
                                                const tagThresholdSpec* spec);

    static QString GetDensityString(bool metric, bool us, double kilogramsPerLiter, int precision,
                                    const tagThresholdSpec* spec);
    static QString GetDensityStringInKilogramsPerCubicMeter(bool metric, double kilogramsPerLiter, int precision,
                                                            const tagThresholdSpec* spec);

    /// Pounds per US bushel are shown only with @p us, pounds per UK bushel only without. Otherwise the value is shown
    /// as it is, without a unit.
    static QString GetDensityStringInKilogramsPerUSBushel(bool metric, bool us, double kilogramsPerLiter, int precision,
                                                          const tagThresholdSpec* spec);
    static QString GetDensityStringInKilogramsPerUKBushel(bool metric, bool us, double kilogramsPerLiter, int precision,
                                                          const tagThresholdSpec* spec);

    /// In the unit of PARAM_PRESSURE_UNIT. kPa and psi are shown without decimals from 100 on.
    static QString GetPressureString(float kilopascals);

    static QString GetPulsesPerSpeedUnitString(bool metric, float hertzPerKph);
    static QString GetWheelCalFactorString(bool metric, float metersPerPulse);

    /// In @p product, a metric unit of pulses, or in its imperial partner. Any other @p product shows the value as it
    /// is, without a unit.
    static QString GetFlowCalFactorString(bool metric, bool us, float pulses, EUnitsType product);

    // ---- Rates ----------------------------------------------------------------------------------------------------

    /// Returns the rate in the unit shown for the chosen area, and sets @p unit to that unit. US gallons have the plain
    /// units. When PARAM_AREA_UNIT is neither hectares nor acres, and for any other @p product, the rate is returned as
    /// it is and @p unit is UNITS_NONE.
    static double GetWeightPerAreaValue(EUnitsType& unit, bool metric, float kilogramsPerHectare);
    static double GetVolumePerAreaValue(EUnitsType& unit, bool metric, bool us, float litersPerHectare,
                                        bool smallVolume, EUnitsType product);

    static QString GetWeightPerAreaString(bool metric, float kilogramsPerHectare, int precision,
                                          const tagThresholdSpec* spec);
    static QString GetVolumePerAreaString(bool metric, bool us, float litersPerHectare, bool small, EUnitsType product,
                                          int precision, const tagThresholdSpec* spec);
    static QString GetVolumePerAreaStringInCubicMetersPerSpecifiedAreaUnit(bool metric, float litersPerHectare,
                                                                           int precision, const tagThresholdSpec* spec);
    static QString GetVolumePerAreaStringInTonnesPerSpecifiedAreaUnit(bool metric, float litersPerHectare,
                                                                      int precision, const tagThresholdSpec* spec);

    /// With decimals that depend on the value. When PARAM_AREA_UNIT is neither hectares nor acres they show 0, without
    /// a unit.
    static QString GetWeightPerAreaStringDynamicPrecision(double kilogramsPerHectare);
    static QString GetNitrogenWeightPerAreaStringDynamicPrecision(double kilogramsPerHectare);
    static QString GetSprayerRequestedRateString(double litersPerHectare);

    /// "12.50 kg/ha (3.20%)". An error beyond 999 % is shown as ">999%" or "<-999%". A number that is not finite is
    /// shown as "----". Without @p perArea the rate is shown as it is, without a unit.
    static QString GetDischargeRateAndRelativeErrorString(bool metric, bool perArea, float rate,
                                                          float relativeErrorPercent);

    /// The same for rates of volume. @p isIgnored has no effect.
    static QString GetFlowRateAndRelativeErrorString(bool metric, bool us, bool smallVolume, float rate,
                                                     float relativeErrorPercent, bool isIgnored, EUnitsType product);

    // ---- Positions, durations and dates ---------------------------------------------------------------------------

    /// As PARAM_DEGREES_MINUTES_SECONDS says: 12°34'56.78"N or -33.86785000, always with a full stop. Seconds are not
    /// carried into the minutes: 60.00 is possible.
    static QString GetLatitudeString(double degrees);
    static QString GetLongitudeString(double degrees);

    /// In seconds below one minute, in minutes below one hour, otherwise in hours.
    static QString GetDurationString(float hours);

    /// "02:05 hrs" for 125 minutes; "> 100 hrs" from 101 hours on.
    static QString GetFormattedDurationString(double minutes);

    /// "Mar 3, 2014" or "3 Mar, 2014". An invalid date has no month name.
    static QString GetDateString(bool monthFirst, const QDate& date);
};
