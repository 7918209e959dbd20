#pragma once

#include "units/TUnits.h"

#include <QByteArray>

#include <vector>

/// What the conversions are to give, stated as texts of arithmetic that share nothing with the library's own.
namespace Expected {

/// The value passed on in steps, from left to right: "* 0.3048" and "- 32" in extended precision, with the number as
/// 32-bit float ("/ 3.6d": as double); the name of a factor function, which takes its argument as 32-bit float and
/// gives a double. No step at all leaves the value as it is.
double Evaluate(const QByteArray& steps, double value);

/// A factor function and its steps.
struct tagFactor
{
    const char* name;
    double (*function)(float);
    const char* steps;
};

/// All of them.
const std::vector<tagFactor>& Factors();

/// A hub, by its two functions.
struct tagHub
{
    const char* name;
    double (*from)(double, EUnitsType);
    double (*to)(double, EUnitsType);
    std::vector<EUnitsType> types; ///< for which ConvertUnit() uses it
};

const std::vector<tagHub>& Hubs();

/// The measures in use.
struct tagMeasures
{
    const char* name;
    bool metric;
    bool us;
};

extern const tagMeasures AllMeasures[4];

/// From the hub into @p unit, and back.
double FromHub(const tagHub& hub, double value, EUnitsType unit, const tagMeasures& measures);
double ToHub(const tagHub& hub, double value, EUnitsType unit, const tagMeasures& measures);

/// By the rule for any two units.
double ConvertUnit(double value, EUnitsType from, EUnitsType to, const tagMeasures& measures);

/// Bit by bit, so that -0 is not 0; any NaN is the same.
bool AreSame(double a, double b);

/// @p number as a unit, whether it is one or not.
inline EUnitsType Unit(int number) { return static_cast<EUnitsType>(number); }

/// 0 to 114, and numbers that are no unit.
const std::vector<int>& UnitNumbers();

/// For messages: a double with every digit.
QByteArray Digits(double value);

} // namespace Expected
