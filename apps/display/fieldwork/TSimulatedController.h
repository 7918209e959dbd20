#pragma once

#include <random>

/// What a rate controller measures while it applies a product.
struct tagApplication
{
    double rateSet;     ///< L/ha
    double rate;        ///< L/ha; 0 while nothing is applied
    double rateError;   ///< percent of the set rate; NaN while nothing is applied
    double flow;        ///< L/min
    double pressure;    ///< kPa
    double temperature; ///< of the product, degrees Celsius
};

/// The rate controller of a simulated sprayer: it holds its set rate within a few percent, and is late when the speed
/// changes. The same drive gives the same values.
///
/// @code
/// const tagApplication application = controller.Advance(0.1, speed, width, isWorking);
/// @endcode
class TSimulatedController
{
public:
    static constexpr double RateSet = 180; ///< L/ha

    /// @param seconds since the last call.
    /// @param speed in m/s.
    /// @param width of the implement in metres.
    tagApplication Advance(double seconds, double speed, double width, bool isWorking);

private:
    double Noise();

    std::mt19937 m_Engine = std::mt19937(20240501);
    double m_Error = 0; ///< of the rate, percent
    double m_Speed = 0; ///< for which the valve is set, m/s
    double m_Temperature = 17;
};
