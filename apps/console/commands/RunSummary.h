#pragma once

#include "nmea/TNmeaReceiver.h"
#include "stores/TParameterStore.h"

/// Prints the state at the end of a run: stream, clock, scheme, active items, paths, log files and drives. Closes the
/// logs first, so that the sizes of their files are final.
void PrintRunSummary(TParameterStore& store, const TNmeaReceiver::tagStatus& status, bool asJson);
