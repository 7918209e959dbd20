#pragma once

#include "HostExport.h"

#include <QString>

/// Checks the names that operators give to clients, farms, fields, jobs, boundaries, machines and other items. The
/// library uses these names in paths as they are, and the files are copied to sticks with a FAT file system. So a name
/// is refused when it would lead to another folder or when FAT does not allow it.
///
/// @code
/// const QString problem = ItemNames::Problem(name, ItemNames::MostBytesOfItem);
/// if (!problem.isEmpty())
///     ShowHint(problem, ItemNames::Suggestion(name, ItemNames::MostBytesOfItem));
/// @endcode
///
/// May be used from any thread.
namespace ItemNames {

/// The longest name of a file or folder that FAT and the display's own file system allow, in bytes of UTF-8.
constexpr int MostBytes = 255;

/// The longest name of an item whose file has an extension. Every extension is a full stop and three letters.
constexpr int MostBytesOfItem = MostBytes - 4;

/// The reason why @p name is refused, as a text that can follow the name; empty when it is accepted. The empty name is
/// accepted.
CABHOST_EXPORT QString Problem(const QString& name, int mostBytes);

/// An accepted name that is similar to @p name: characters that are not allowed are replaced or removed, and what is
/// too long is cut. An accepted name is returned unchanged.
CABHOST_EXPORT QString Suggestion(const QString& name, int mostBytes);

} // namespace ItemNames
