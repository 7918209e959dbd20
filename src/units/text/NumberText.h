#pragma once

#include "units/table/Stored.h"

#include <QString>

#include <cmath>
#include <limits>

/// Pieces of texts that show numbers.
namespace NumberText {

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
