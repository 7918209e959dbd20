#pragma once

#include "HostExport.h"
#include "stores/TParameterStore.h"

#include <QString>

/// Renames a saved guidance line of the active field, or one outside of fields while no field is selected. When it was
/// selected, it is selected under its new name.
///
/// @code
/// if (!RenameGuidanceLine(store, QLatin1String("AB_1"), QLatin1String("Ditch"), &error))
///     Show(error);
/// @endcode
///
/// The line is copied under its new name, selected there, and then removed under the old one. So a power cut leaves it
/// under one of the names or under both, and what is selected is a whole line. Waits for programs that work on the
/// fields of this terminal for a few seconds. Needs a terminal that runs, whose store is @p store. May be used from any
/// thread.
///
/// False, with the reason in @p error, when there is no such line, the new name is not accepted or taken, also in other
/// letter case, or something cannot be stored. The line is there under its old name then, or under both.
CABHOST_EXPORT bool RenameGuidanceLine(TParameterStore& store, const QString& name, const QString& newName,
                                       QString* error);
