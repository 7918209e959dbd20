#pragma once

#include "HostExport.h"

#include <QString>

#include <optional>

/// The implement that a tractor pulls. The initial values are those of an implement that has no file.
struct tagImplement
{
    double width = 12; ///< metres that it covers
    double behind = 4; ///< metres from the antenna back to the implement; negative: it is in front
    int sections = 1;  ///< parts of the width that the machine can switch; coverage is of the whole width
};

/// What each member may be.
namespace ImplementRange {
constexpr double LeastWidth = 1;
constexpr double GreatestWidth = 48;
constexpr double LeastBehind = -5;
constexpr double GreatestBehind = 20;
constexpr int LeastSections = 1;
constexpr int GreatestSections = 64;
} // namespace ImplementRange

/// Empty when @p implement is within the ranges, else what is wrong: the member, its value, and what is accepted.
CABHOST_EXPORT QString CheckImplement(const tagImplement& implement);

/// Reads an implement, such as the one at TSystemSettings::GetActiveImplementPath(). Nothing when there is no file,
/// with an empty @p error; and when it cannot be read or is damaged, which @p error says in one line. May be called
/// from any thread.
///
/// @code
/// const tagImplement implement = ReadImplement(path, &error).value_or(tagImplement());
/// if (!error.isEmpty())
///     Show(error);
/// @endcode
CABHOST_EXPORT std::optional<tagImplement> ReadImplement(const QString& path, QString* error);

/// Writes an implement, so that it is on the disk; makes its folder. A power cut leaves the old file or the new one.
/// @return false, with @p error, when CheckImplement() refuses it or writing has failed.
CABHOST_EXPORT bool WriteImplement(const QString& path, const tagImplement& implement, QString* error);
