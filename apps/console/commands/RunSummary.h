#pragma once

#include "nmea/TNmeaReceiver.h"
#include "stores/TParameterStore.h"

/// Prints what a run has come to: stream, clock, scheme, active items, paths, log files and drives. Closes the logs, so
/// that their sizes are final.
void PrintRunSummary(TParameterStore& store, const TNmeaReceiver::tagStatus& status, bool asJson);
