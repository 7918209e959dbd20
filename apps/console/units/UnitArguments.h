#pragma once

#include "console/line/Command.h"
#include "console/line/CommandLine.h"
#include "console/terminal/Session.h"

#include "units/EUnitsType.h"

#include <optional>

/// Adds "--system", which replaces the stored measures for one call.
void AddMeasuresOption(TCommandLine& line);

/// Opens @p session for conversions and texts, with the measures that "--system" asks for. The status when that failed,
/// after a message.
std::optional<int> OpenUnits(TSession& session, const tagContext& context, const TCommandLine& line);

/// The unit that was typed. Prints a message and returns nothing when there is no such unit. Needs OpenUnits().
std::optional<EUnitsType> ReadUnit(const TCommandLine& line, const QString& text);

/// The finite number that was typed, with a full stop. Prints a message and returns nothing when it is not a number.
std::optional<double> ReadNumber(const TCommandLine& line, const QString& text);
