#pragma once

#include "HostExport.h"

#include <QString>
#include <QtGlobal>

#include <optional>

/// Room on a drive or in the memory, in bytes.
struct tagSpace
{
    qint64 total;
    qint64 free;
};

/// A drive of the terminal.
struct tagDriveSpace
{
    QString path;                  ///< where it is mounted
    bool isMounted;                ///< true for an internal drive that exists
    std::optional<tagSpace> space; ///< empty when it is not mounted, or the system does not tell
};

/// The drives, the memory and the load of the terminal.
///
/// @code
/// const tagDriveSpace stick = Storage::Stick();
/// if (stick.space)
///     Show(stick.space->free);
/// @endcode
///
/// Needs a terminal that runs. May be used from any thread. Asking for a drive may take long when it does not answer.
namespace Storage {

CABHOST_EXPORT tagDriveSpace InternalDrive();

/// The removable drive. Its free space has the part that the system reserves.
CABHOST_EXPORT tagDriveSpace Stick();

/// Main memory; what caches files counts as free. Empty when it is not known.
CABHOST_EXPORT std::optional<tagSpace> Memory();

/// Load of the processor over the last minute; 1 means that one core is busy. Empty when it is not known.
CABHOST_EXPORT std::optional<float> Load();

} // namespace Storage
