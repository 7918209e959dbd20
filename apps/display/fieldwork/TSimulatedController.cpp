#include "display/fieldwork/TSimulatedController.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

const double ValveSeconds = 0.8;    ///< in which the valve follows a change of the speed, mostly
const double ErrorSeconds = 4;      ///< in which the controller takes an error back
const double ErrorStep = 1.5;       ///< percent, of the errors that come in a second
const double MostError = 25;        ///< percent
const double FlowPerMetre = 3;      ///< L/min, at which a nozzle row has the nominal pressure
const double NominalPressure = 250; ///< kPa
const double WarmTemperature = 24;
const double WarmingSeconds = 7200;
const double SlowestSpeed = 0.3; ///< m/s, below which nothing is applied
const double LongestStep = 1;    ///< seconds; a longer one is a pause

/// The part of a change that is done after some time.
double Part(double seconds, double constant) { return 1 - std::exp(-seconds / constant); }

double FlowOf(double rate, double speed, double width)
{
    const double squareMetresPerHectare = 10000;
    return rate * speed * width * 60 / squareMetresPerHectare;
}

} // namespace

/// From -1 to 1. Not by a distribution of the C++ library: their results differ from one library to the next.
double TSimulatedController::Noise()
{
    return 2 * static_cast<double>(m_Engine()) / static_cast<double>(std::mt19937::max()) - 1;
}

tagApplication TSimulatedController::Advance(double seconds, double speed, double width, bool isWorking)
{
    const double step = std::clamp(seconds, 0.0, LongestStep);
    m_Temperature += (WarmTemperature - m_Temperature) * Part(step, WarmingSeconds);
    const bool isApplying = isWorking && speed >= SlowestSpeed; // false for NaN
    if (!isApplying) {
        m_Error = 0;
        m_Speed = 0;
        return {RateSet, 0, std::numeric_limits<double>::quiet_NaN(), 0, 0, m_Temperature};
    }
    m_Speed = m_Speed > 0 ? m_Speed + (speed - m_Speed) * Part(step, ValveSeconds) : speed;
    m_Error += ErrorStep * std::sqrt(step) * Noise() - m_Error * Part(step, ErrorSeconds);

    const double most = RateSet * (1 + MostError / 100);
    const double least = RateSet * (1 - MostError / 100);
    const double rate = std::clamp(RateSet * (1 + m_Error / 100) * m_Speed / speed, least, most);
    const double flow = FlowOf(rate, speed, width);
    const double nominal = FlowPerMetre * width;
    const double pressure = NominalPressure * flow * flow / (nominal * nominal);
    return {RateSet, rate, (rate / RateSet - 1) * 100, flow, pressure, m_Temperature};
}
