#pragma once

#include "QuickExport.h"
#include "nmea/FieldPlan.h"

namespace CabQuick {

/// The field that TReceiver drives on when its address is "simulator": passes of 400 m, 12 m apart, to the right of the
/// first one. The start of the plan is now.
///
/// @code
/// const tagFieldPlan plan = CabQuick::SimulatedPlan();
/// DrawField(plan.latitude, plan.longitude, plan.heading);
/// @endcode
CABQUICK_EXPORT tagFieldPlan SimulatedPlan();

} // namespace CabQuick
