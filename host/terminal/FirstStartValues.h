#pragma once

#include "HostExport.h"
#include "stores/TParameterStore.h"

/// Gives every parameter that the store does not hold its value for a first start: a metric display in English that
/// shows the machine's local time, with a colour scheme for day and one for night. What the store holds stays.
CABHOST_EXPORT void SetFirstStartValues(TParameterStore& store);
