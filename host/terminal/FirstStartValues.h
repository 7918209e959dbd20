#pragma once

#include "HostExport.h"
#include "stores/TParameterStore.h"

/// Gives every parameter that is absent from the store its value of a first start; see
/// TParameterCatalogue::FirstValue(). They make a metric display in English that shows the machine's local time and has
/// a colour scheme for day and one for night. The terminal also gets its identity, a random UUID. Parameters that are
/// in the store stay as they are.
///
/// @code
/// TPersistenceHold hold(store); // one transaction
/// SetFirstStartValues(store);
/// @endcode
CABHOST_EXPORT void SetFirstStartValues(TParameterStore& store);
