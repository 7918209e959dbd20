#pragma once

#include "console/line/Usage.h"

#include <QStringList>

/// The manual page, which "cabsettings --manual" prints. Each command prints its part.
namespace Manual {

/// Whether the line asks a command for its part of the page.
bool IsAsked(const QStringList& arguments);

/// Prints the parts before and after the commands.
void PrintHead();
void PrintTail();

/// Prints the part of one command.
void PrintCommand(const tagUsage& usage);

} // namespace Manual
