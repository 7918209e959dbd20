#pragma once

#include "units/table/Stored.h"

// How a value in one unit becomes a value in another.
//
// Constants are 32-bit floats. The argument of a factor is narrowed to 32 bits, and the result is computed in extended
// precision: recorded data was computed so, and exact factors would shift it.

using Wide = long double;

/// @p x by way of an address of its own. Compilers otherwise use one stack slot for a factor's argument and its result;
/// some processors then forward the wrong store to the load, and the conversion takes two to three times as long.
inline Wide Widen(float x)
{
    const volatile float stored = x;
    return Wide(stored);
}

constexpr double Narrow(Wide value) { return static_cast<double>(value); }

/// x × times ÷ over × then, in that order.
struct tagFactor
{
    float times = 1.0f;
    float over = 1.0f;
    float then = 1.0f;

    constexpr tagFactor Times(float factor) const { return {times, over, factor}; }
    constexpr tagFactor Over(float divisor) const { return {times, divisor, then}; }

    /// A quotient is rounded twice, to extended precision and then to a double; once in 4,096 values that gives another
    /// last bit than one rounding. A product of two floats has 48 bits, which a double holds as they are.
    double operator()(float x) const
    {
        if (over == 1.0f && then == 1.0f)
            return static_cast<double>(Stored(x)) * static_cast<double>(times);
        return Narrow(Widen(x) * Wide(times) / Wide(over) * Wide(then));
    }
};

constexpr tagFactor Times(float factor) { return {factor, 1.0f, 1.0f}; }
constexpr tagFactor Over(float divisor) { return {1.0f, divisor, 1.0f}; }

/// One direction of a conversion: one factor or two, or a function where no factor will do.
class TRoute
{
public:
    using TFunction = double (*)(double);

    constexpr TRoute() = default;
    constexpr TRoute(tagFactor factor) : m_First(factor) {}
    constexpr TRoute(tagFactor first, tagFactor second) : m_First(first), m_Second(second), m_HasSecond(true) {}
    constexpr TRoute(TFunction function) : m_Function(function), m_IsFunction(true) {}

    double operator()(double value) const
    {
        if (m_IsFunction)
            return m_Function(value);
        const double result = m_First(static_cast<float>(value));
        return m_HasSecond ? m_Second(static_cast<float>(result)) : result;
    }

    /// Whether one multiplication and one division do: First() tells which.
    constexpr bool IsSingle() const { return !m_IsFunction && !m_HasSecond && m_First.then == 1.0f; }
    constexpr const tagFactor& First() const { return m_First; }

private:
    tagFactor m_First;
    tagFactor m_Second;
    bool m_HasSecond = false;
    TFunction m_Function = nullptr;
    bool m_IsFunction = false; // with sanitizers, comparing the pointer is no constant expression
};

/// Between a hub and a unit.
struct tagConversion
{
    TRoute out; ///< from the hub into the unit
    TRoute in;  ///< from the unit into the hub
};

/// By one factor, and back by the inverse of it. A factor of three constants has no inverse of this form: a row with
/// one does not compile.
constexpr tagConversion By(const tagFactor& factor)
{
    if (factor.then != 1.0f)
        throw "a factor of three constants";
    return {tagFactor{factor.times, factor.over, 1.0f}, tagFactor{factor.over, factor.times, 1.0f}};
}

/// One factor after the other; the value between them is narrowed to 32 bits too.
constexpr TRoute Then(const TRoute& first, const TRoute& second) { return {first.First(), second.First()}; }

/// By way of a unit between the two.
constexpr tagConversion Through(const tagConversion& first, const tagConversion& second)
{
    return {Then(first.out, second.out), Then(second.in, first.in)};
}

/// The conversion of what is counted or weighed per unit, where @p conversion is that of the unit.
constexpr tagConversion Per(const tagConversion& conversion) { return {conversion.in, conversion.out}; }

/// The conversion of a unit, and whether US and English measures make two sizes of it.
struct tagSizes
{
    constexpr tagSizes() = default;
    constexpr tagSizes(const tagConversion& conversion) : us(conversion), english(conversion), isConverted(true) {}
    constexpr tagSizes(const tagConversion& ofUS, const tagConversion& ofEnglish)
        : us(ofUS), english(ofEnglish), isConverted(true), dependsOnMeasures(true)
    {}

    tagConversion us;
    tagConversion english;
    bool isConverted = false;
    bool dependsOnMeasures = false;
};

constexpr tagSizes Per(const tagSizes& sizes) { return {Per(sizes.us), Per(sizes.english)}; }
