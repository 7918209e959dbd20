#pragma once

#include "console/line/Usage.h"

#include <QStringList>

/// The manual page, written by the commands themselves: "cabsettings --manual" prints it.
namespace Manual {

/// Whether the line asks a command for its part of the page.
bool IsAsked(const QStringList& arguments);

/// Prints what stands before and behind the commands.
void PrintHead();
void PrintTail();

/// Prints the part of one command.
void PrintCommand(const tagUsage& usage);

} // namespace Manual
