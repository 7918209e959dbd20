#pragma once

#include <cfloat>

/// @p value as memory holds it. Some processors calculate with more digits than a float or double has: they would make
/// 22 of the 22.999… that is 23 on all others.
template <class Number>
Number Stored(Number value)
{
    if constexpr (FLT_EVAL_METHOD == 0)
        return value;
    const volatile Number stored = value;
    return stored;
}
