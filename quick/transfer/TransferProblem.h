#pragma once

#include <QLatin1String>

/// The problems that tell of a transfer that has failed: without a stick, which is over when one is plugged in; and
/// with one, which is over when it is removed. Both are over when the next transfer begins.
inline const QLatin1String NoStickProblem("no-stick");
inline const QLatin1String StickProblem("stick");
