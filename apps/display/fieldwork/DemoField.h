#pragma once

#include <QString>

class QQmlEngine;

/// The names of the field for a first look at the display.
namespace DemoField {
inline constexpr const char* Client = "Smith";
inline constexpr const char* Farm = "North";
inline constexpr const char* Field = "F1";
inline constexpr const char* Job = "J_1";
inline constexpr const char* Line = "AB_1";
} // namespace DemoField

/// Writes a field around the drive of the simulated receiver: its boundary with a pond, an exclusion zone, the field
/// beside it, and a guidance line along its first pass; and selects the job. Files that exist stay as they are. Call it
/// while a terminal is published.
///
/// @code
/// if (isFirstStart && !MakeDemoField(engine, &error))
///     return Fail(error);
/// @endcode
///
/// @param engine one that knows `import CabSettings 1.0`.
/// @param error says what failed when the result is false.
bool MakeDemoField(QQmlEngine& engine, QString* error);
