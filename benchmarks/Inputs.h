#pragma once

#include <array>
#include <cstddef>
#include <random>

/// The same inputs for every row: as many as fit into the nearest cache, in an order that nobody can guess.
namespace Inputs {

constexpr std::size_t Count = 1024;

/// Everyday values of a display, 0.01 to 9999.99.
inline const std::array<double, Count> Values = [] {
    std::array<double, Count> values;
    std::mt19937 random(1);
    std::uniform_int_distribution<int> hundredths(1, 999999);
    for (double& value : values)
        value = hundredths(random) / 100.0;
    return values;
}();

inline const std::array<float, Count> Floats = [] {
    std::array<float, Count> floats;
    for (std::size_t i = 0; i < Count; ++i)
        floats[i] = static_cast<float>(Values[i]);
    return floats;
}();

inline double Value(unsigned number) { return Values[number % Count]; }
inline float Float(unsigned number) { return Floats[number % Count]; }

} // namespace Inputs
