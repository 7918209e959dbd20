#pragma once

#include <QString>

#include <cfloat>
#include <cmath>
#include <limits>

/// Pieces of texts that show numbers.
namespace NumberText {

/// The double that @p value is where it is stored: some processors calculate with more digits than that, and would make
/// 22 of the 22.999… that is 23 on all others.
inline double Stored(double value)
{
    if constexpr (FLT_EVAL_METHOD == 0)
        return value;
    const volatile double stored = value;
    return stored;
}

/// Toward zero; the nearest int for a value beyond its range, 0 for NaN.
inline int Truncated(double value)
{
    const double number = Stored(value);
    if (std::isnan(number))
        return 0;
    if (number >= static_cast<double>(std::numeric_limits<int>::max()))
        return std::numeric_limits<int>::max();
    if (number <= static_cast<double>(std::numeric_limits<int>::min()))
        return std::numeric_limits<int>::min();
    return static_cast<int>(number);
}

/// At least two characters, "07".
inline QString TwoDigits(int value) { return QString::number(value).rightJustified(2, QLatin1Char('0')); }

} // namespace NumberText
