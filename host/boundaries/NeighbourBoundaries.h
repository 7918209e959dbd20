#pragma once

#include "boundaries/Boundary.h"

#include <QString>

#include <vector>

/// The boundaries of the other fields of a farm, so that a map can show where they begin. Boundaries that are not in
/// their fields, or cannot be read, are left out. Reads the disk; may be called from any thread while a terminal runs.
///
/// @code
/// for (const tagBoundary& neighbour : NeighbourBoundaries(client, farm, field))
///     map.AddInactive(neighbour.external);
/// @endcode
///
/// @return nothing when one of the names is empty.
CABHOST_EXPORT std::vector<tagBoundary> NeighbourBoundaries(const QString& client, const QString& farm,
                                                            const QString& field);
