#pragma once

#include "platform/Export.h"
#include "units/EUnitsType.h"
#include "units/UnitFactors.h"

#include <QChar>
#include <QDate>
#include <QString>

/// Conversion, rounding and text of every quantity.
///
/// Values are stored and exchanged in the default unit of their quantity, the hub; every value shown goes out of it,
/// every value typed comes back into it. All functions are static, keep no state but a few caches named below, and may
/// be called from any thread. Parameters are read from the host's store at every call.
///
/// A precision is a number of decimals. -1 asks for the default of the unit, a number below -1 for 6 decimals. A
/// threshold rule, by pointer and null for none, wins over both. Texts carry the decimal point of the display.
class CABSETTINGS_EXPORT TUnits
{
public:
    /// Switches to another precision for large values.
    struct tagThresholdSpec
    {
        float threshold; ///< in the unit shown; the rule applies from here
        int precision;   ///< decimals
    };

    /// Asks the GetValueString() of a unit for the precision that depends on the value itself.
    static constexpr int DynamicPrecision = 100;

    // ---- Factors --------------------------------------------------------------------------------------------------

    // From the unit named first to the unit named second. The argument is a 32-bit float, and so is every constant; the
    // result is computed in extended precision from those. A result is given for every argument. Inline, and exported
    // too.

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

    // From the hub into @p to, and from @p from into the hub. A unit that the hub does not know leaves the value as it
    // is. Gallons and fluid ounces are those of PARAM_US_MEASURES; when PARAM_METRIC is set there are none, and the
    // value stays, except for the units marked "(US)", which always convert.

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

    /// These two never convert.
    static double ConvertFromHectaresPerHour(double value, EUnitsType to);
    static double ConvertToHectaresPerHour(double value, EUnitsType from);

    /// Between a hub and another unit of its quantity, either way. Hands the value back as it is in every other case,
    /// between two units that are no hub too: ask CanConvert() where that would be a wrong dose.
    static double ConvertUnit(double value, EUnitsType from, EUnitsType to);

    /// Whether ConvertUnit() converts from the one to the other, under the measures in use now; true for a unit and
    /// itself.
    static bool CanConvert(EUnitsType from, EUnitsType to);

    /// The unit through which a value of @p type converts: litres for volumes, metres per second for speeds, kilograms
    /// of nitrogen for nitrogen. @p type itself when it is one, and for a number that is no unit. Two units with the
    /// same hub convert by way of it where CanConvert() accepts both steps.
    static EUnitsType GetConversionHub(EUnitsType type);

    /// The factor that turns a value in the hub of @p unitType (metres per second for speeds) into the unit with that
    /// abbreviation; 1 for an unknown abbreviation, and for temperatures, which no factor converts.
    static double GetConversionFactor(int unitType, const QString& abbreviation);

    /// The hub of the unit's quantity (km/h for speeds); the unit itself when it is one or has none.
    static EUnitsType DetermineDefaultUnitFromUnitsType(EUnitsType type);

    /// The unit of the value that GetValueString() takes for @p type: metres for millimetres and feet, metres per
    /// second for km/h, litres for millilitres, cubic metres, tonnes and bushels, and so on. @p type itself where
    /// GetValueString() shows the value as it is (acres, pounds, …), and for a number that is no unit.
    static EUnitsType GetStoredUnit(EUnitsType type);

    /// Whether the size of the unit depends on PARAM_US_MEASURES: true for gallons and fluid ounces, alone and in
    /// rates, flows, densities and pulse counts. False for those marked "(US)", and for a number that is no unit.
    static bool DependsOnUSMeasures(EUnitsType type);

    /// The unit in which a quantity is shown, given its hub or metric unit; UNITS_NONE when the parameter that chooses
    /// is out of its range. Never one marked "(US)".
    static EUnitsType DetermineActualUnitFromUnitsType(EUnitsType type);

    /// Between the hub of @p type and the unit in which @p type is shown, by ConvertUnit(): where that has no
    /// conversion (km/h and mph, degrees, rates per travelled distance), the value comes back as it is. CanConvert()
    /// tells.
    static double GetValueInCurrentUnit(double value, EUnitsType type);
    static double GetValueInDefaultUnit(double value, EUnitsType type);

    // ---- The operator's units -------------------------------------------------------------------------------------

    /// Whether the unit follows PARAM_AREA_UNIT, PARAM_PRESSURE_UNIT, PARAM_SHORT_DISTANCE_UNIT.
    static bool IsSpecifiedAreaUnit(EUnitsType type);
    static bool IsSpecifiedPressureUnit(EUnitsType type);
    static bool IsSpecifiedShortDistanceUnit(EUnitsType type);

    // Per hectare to per unit of area chosen, and back. While acres are chosen, by the factor function for acres;
    // otherwise the value comes back unchanged, for every pair. Mind that in hectares the unit of volume or mass is
    // then not converted either: the pair only makes sense with both directions.

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

    /// From the stored value per hectare to the value shown, and back. A type that is no IsSpecifiedAreaUnit() leaves
    /// the value as it is.
    static double ConvertSpecifiedAreaUnitIn(double value, EUnitsType type);
    static double ConvertSpecifiedAreaUnitOut(double value, EUnitsType type);

    /// From kilopascals to the pressure shown, and back.
    static double ConvertSpecifiedPressureUnitIn(double value);
    static double ConvertSpecifiedPressureUnitOut(double value);

    /// From metres to the short distance shown, and back.
    static double ConvertSpecifiedShortDistanceUnitIn(double value, EUnitsType type);
    static double ConvertSpecifiedShortDistanceUnitOut(double value, EUnitsType type);

    /// The unit for a short distance; @p small asks for the smaller one of the system.
    static EUnitsType GetShortDistanceUnits(bool small, EUnitsType type);

    /// Between the metric unit shown and the stored one (litres for millilitres, cubic metres, tonnes and bushels, …),
    /// while PARAM_METRIC is set; otherwise the value as it is.
    static double NormaliseMetricValue(double value, EUnitsType type);
    static double DenormaliseMetricValue(double value, EUnitsType type);

    /// Between the imperial unit shown in place of @p metricType and the stored metric one. Millilitre types give and
    /// take litres. Other types leave the value as it is.
    static double ConvertToMetric(double value, EUnitsType metricType);
    static double ConvertToImperial(double value, EUnitsType metricType);

    /// The unit that a parameter chooses for a product; UNITS_NONE when the parameter is out of its range.
    static EUnitsType GetLiquidVolumeUnits();
    static EUnitsType GetLiquidFlowRateUnits();
    static EUnitsType GetLiquidVolumePerAreaUnits();
    static EUnitsType GetLiquidFlowCalFactorUnits();
    static EUnitsType GetLiquidDensityUnits();
    static EUnitsType GetDryVolumeUnits();
    static EUnitsType GetDryDensityUnits();

    /// The calibration unit for a kind of tank, 0 to 8; UNITS_NONE for one that has none.
    static EUnitsType GetTankCalFactorUnits(int kind, bool perMinute);

    // ---- Precision ------------------------------------------------------------------------------------------------

    /// The precision of the rule when @p value, in the unit shown, has reached its threshold; else @p precision.
    static int GetThresholdPrecision(float value, const tagThresholdSpec* spec, int precision);

    /// The decimals that a unit is shown with; -1 for those that have none of their own.
    static int GetDefaultPrecision(EUnitsType type);

    /// @p precision, or the unit's default for -1.
    static int GetUnitPrecision(EUnitsType type, int precision);

    /// Whether the unit is one of the three rates whose precision can depend on the value.
    static bool IsUnitAbbrDynamicPrecisionSupported(EUnitsType type);

    /// The decimals of a rate of that unit, by its value; 0 for a unit without such a rule, and for NaN.
    static int GetDynamicPrecision(float value, EUnitsType type);
    static int CalculateLiquidRateDynamicPrecision(float value);
    static int CalculateNH3RateDynamicPrecision(float value);
    static int CalculateGranularRateDynamicPrecision(float value);

    // ---- Numbers and units as texts -------------------------------------------------------------------------------

    /// A full stop, and the point that the display shows: a comma when PARAM_DECIMAL_POINT is 1, read once in a
    /// process.
    static QChar InternalDecimalPointChar();
    static QChar DisplayableDecimalPointChar();

    /// @p text with the decimal point of each number in it changed. Shown: only a point between digits. Typed: a point
    /// after digits too, so that "12," is read. Each looks at PARAM_DECIMAL_POINT once in a process.
    static QString InternalToDisplayableFloatStr(const QString& text);
    static QString DisplayableToInternalFloatStr(const QString& text);

    /// The value with @p unit directly behind it (pass a leading blank for a space). Without precision (below 0) in
    /// general notation with 6 digits. Two units are more than text: "HH:mm:ss" shows hours as a time of day,
    /// "DD/MM/YYYY" a Julian day as a date.
    static QString GetValueString(double value, const QString& unit, int precision, const tagThresholdSpec* spec);

    /// The text that the operator sees for @p value, which is in GetStoredUnit(@p type): litres for UNITS_CUBIC_METERS,
    /// metres per second for UNITS_KPH. @p type chooses the quantity; the parameters choose the unit that is shown.
    /// Units without a choice (acres, pounds, …) show the value as it is. DynamicPrecision asks for the precision by
    /// value, for the rates that have one.
    static QString GetValueString(double value, EUnitsType type, int precision, const tagThresholdSpec* spec);

    /// The same, split at the first blank.
    static void GetValueUnitString(double value, QString& valueText, QString& unitText, const QString& unit,
                                   int precision, const tagThresholdSpec* spec);
    static void GetValueUnitString(double value, QString& valueText, QString& unitText, EUnitsType type, int precision,
                                   const tagThresholdSpec* spec);

    // ---- Quantities -----------------------------------------------------------------------------------------------

    // Each shows a stored value: number, one blank, abbreviation. The blank is always there, before a degree sign and
    // behind a number without unit too. "metric" chooses between the systems, "us" between US and English measures.

    /// By PARAM_AREA_UNIT; a value beyond hectares and acres is shown as it is, without unit.
    static QString GetAreaString(float hectares, int precision, const tagThresholdSpec* spec);
    static QString GetProductivityString(float hectaresPerHour, int precision, const tagThresholdSpec* spec);
    static QString GetKiloseedsPerAreaString(double kiloseedsPerHectare, int precision, const tagThresholdSpec* spec);

    static QString GetTemperatureString(bool metric, double celsius, int precision, const tagThresholdSpec* spec);
    static QString GetSpeedStringForMetersPerMinute(bool metric, float metersPerMinute, int precision,
                                                    const tagThresholdSpec* spec);

    /// @p isIgnored changes nothing.
    static QString GetSpeedString(bool metric, float metersPerSecond, bool isIgnored);

    /// By PARAM_SHORT_DISTANCE_UNIT; feet and inches stand close to the number. @p small asks for the smaller unit.
    static QString GetDistanceString(float meters, bool small, int precision, const tagThresholdSpec* spec);
    static QString GetDistanceStringInMetricOrImperialFeet(float meters, int precision, const tagThresholdSpec* spec);

    /// In the unit that suits the magnitude: cm, m, km, or inches, feet (with inches below 10 feet), miles.
    static QString GetDistanceStringAdaptive(bool metric, float meters, bool wholeInches, bool noDecimals);

    static QString GetVolumeStringInCubicMeterOrCubicFeet(bool metric, float liters, int precision,
                                                          const tagThresholdSpec* spec);
    static QString GetVolumeStringInTonnes(bool metric, float liters, int precision, const tagThresholdSpec* spec);
    static QString GetVolumeStringInUSBushels(float liters, int precision, const tagThresholdSpec* spec);
    static QString GetVolumeStringInUKBushels(float liters, int precision, const tagThresholdSpec* spec);

    /// @p small shows mL or fluid ounces; else @p product, a unit of volume, tells what in. Another product: the value
    /// as it is, without unit. Cubic metres, bushels and tonnes follow no threshold rule here.
    static QString GetVolumeString(bool metric, bool us, float liters, bool small, EUnitsType product, int precision,
                                   const tagThresholdSpec* spec);

    /// The same for flows; cubic metres and tonnes show their default precision here.
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

    /// Pounds per bushel exist for the bushel of the measures in use; for the other the value is shown as it is,
    /// without unit.
    static QString GetDensityStringInKilogramsPerUSBushel(bool metric, bool us, double kilogramsPerLiter, int precision,
                                                          const tagThresholdSpec* spec);
    static QString GetDensityStringInKilogramsPerUKBushel(bool metric, bool us, double kilogramsPerLiter, int precision,
                                                          const tagThresholdSpec* spec);

    /// By PARAM_PRESSURE_UNIT; kPa and psi without decimals from 100 on.
    static QString GetPressureString(float kilopascals);

    static QString GetPulsesPerSpeedUnitString(bool metric, float hertzPerKph);
    static QString GetWheelCalFactorString(bool metric, float metersPerPulse);

    /// @p product, a unit of pulses per something, tells what in; another one: the value as it is, without unit.
    static QString GetFlowCalFactorString(bool metric, bool us, float pulses, EUnitsType product);

    // ---- Rates ----------------------------------------------------------------------------------------------------

    /// The rate in the unit shown for the area in use, and that unit. US gallons are reported by the plain units. For
    /// an area that is neither hectares nor acres, and for another product, the value as it is and UNITS_NONE.
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

    /// With the decimals that suit the value; 0 without unit when the area is neither hectares nor acres.
    static QString GetWeightPerAreaStringDynamicPrecision(double kilogramsPerHectare);
    static QString GetNitrogenWeightPerAreaStringDynamicPrecision(double kilogramsPerHectare);
    static QString GetSprayerRequestedRateString(double litersPerHectare);

    /// "12.50 kg/ha (3.20%)", the error cut at 999 %; "----" for what is not a finite number.
    static QString GetDischargeRateAndRelativeErrorString(bool metric, bool perArea, float rate,
                                                          float relativeErrorPercent);

    /// The same for volumes. @p isIgnored changes nothing.
    static QString GetFlowRateAndRelativeErrorString(bool metric, bool us, bool smallVolume, float rate,
                                                     float relativeErrorPercent, bool isIgnored, EUnitsType product);

    // ---- Positions, durations and dates ---------------------------------------------------------------------------

    /// By PARAM_DEGREES_MINUTES_SECONDS, always with a full stop: 12°34'56.78"N or -33.86785000. Seconds are not
    /// carried: 60.00 is shown as such.
    static QString GetLatitudeString(double degrees);
    static QString GetLongitudeString(double degrees);

    /// In seconds, minutes or hours, by magnitude.
    static QString GetDurationString(float hours);

    /// "02:05 hrs"; "> 100 hrs" from 101 hours on.
    static QString GetFormattedDurationString(double minutes);

    /// "Mar 3, 2014" or "3 Mar, 2014"; no month name for an invalid date.
    static QString GetDateString(bool monthFirst, const QDate& date);
};

#include "units/UnitConversions.h"
