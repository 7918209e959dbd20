#pragma once

/// Ways from one unit to another, as tables of conversions hold them.
namespace Routes {

using TConversion = double (*)(double);

/// Stays as it is stored.
constexpr double Unchanged(double value) { return value; }

/// One factor function after the other; the argument of each is narrowed to 32 bits, as in any call.
template <double (*First)(float), double (*... Others)(float)>
double By(double value)
{
    const double result = First(static_cast<float>(value));
    if constexpr (sizeof...(Others) > 0)
        return By<Others...>(result);
    else
        return result;
}

} // namespace Routes
