#pragma once

#include "console/line/Command.h"
#include "console/line/CommandLine.h"

#include <optional>

/// Whether the word names a log; says so when it does not.
bool IsLog(const QString& word, const TCommandLine& line);

/// The drive on which the logs lie. From the store alone: to look at the logs no terminal need be started, which would
/// open them. Nothing when the store cannot be opened, which is said.
std::optional<QString> FindLogDrive(const tagContext& context);
