#pragma once

#include "console/line/Command.h"
#include "console/line/CommandLine.h"

#include <optional>

/// Whether @p word is the name of a log. Prints a message when it is not.
bool IsLog(const QString& word, const TCommandLine& line);

/// The internal drive, where the logs are. Reads the store only: a running terminal would open the logs. Nothing, after
/// a message, when the store cannot be opened.
std::optional<QString> FindLogDrive(const tagContext& context);
