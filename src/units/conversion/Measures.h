#pragma once

#include "access/Parameters.h"

/// The measures in use, read from the host's store at every call.
namespace Measures {

inline bool IsMetric() { return Parameters::ReadBool(PARAM_METRIC); }

/// US rather than English gallons and fluid ounces; without meaning in the metric system.
inline bool IsUS() { return Parameters::ReadBool(PARAM_US_MEASURES); }

} // namespace Measures
