#pragma once

#include "QuickExport.h"

namespace CabQuick {

/// Registers the types of the module as CabSettings 1.0, unless that is done. Without a terminal that is published the
/// types are unavailable, and a warning says so. QML calls it at the first import, by way of the plugin or without it.
CABQUICK_EXPORT void RegisterTypes();

} // namespace CabQuick
