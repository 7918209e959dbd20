#pragma once

#include "HostExport.h"

#include <QString>

/// Names that operators give: of clients, farms and fields, and of jobs, boundaries, machines and the like. The library
/// composes paths of them as they are, and the files travel on sticks with a FAT file system; so what could leave its
/// folder, or what FAT cannot hold, is refused where it is entered.
namespace ItemNames {

/// What FAT and the display's own file system allow for a file or folder, in bytes of UTF-8.
constexpr int MostBytes = 255;

/// What is left of it for an item whose file has an extension, all of which are a full stop and three letters.
constexpr int MostBytesOfItem = MostBytes - 4;

/// Why @p name is refused, in words that can follow it; empty when it is accepted, as the empty name is.
CABHOST_EXPORT QString Problem(const QString& name, int mostBytes);

/// A name as near to @p name as can be that is accepted.
CABHOST_EXPORT QString Suggestion(const QString& name, int mostBytes);

} // namespace ItemNames
