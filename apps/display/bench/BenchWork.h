#pragma once

#include <QString>

class QQmlEngine;

/// Begins the work of a bench: makes a field and selects its job, whose coverage goes into a file; waits until it is
/// loaded; and works on it with the simulated receiver, all the time and in turns too.
///
/// @code
/// QString error;
/// if (!StartBenchWork(session.Engine(), &error))
///     return Fail(error);
/// @endcode
///
/// Call it while a terminal is published. False, with the reason in @p error, when the field cannot be made.
bool StartBenchWork(QQmlEngine& engine, QString* error);
