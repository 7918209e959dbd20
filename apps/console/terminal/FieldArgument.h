#pragma once

#include "console/line/Command.h"
#include "console/line/CommandLine.h"

#include "fields/TFieldTree.h"

#include <QString>
#include <QStringList>

#include <optional>

/// The drives that hold clients, as they are typed.
namespace FieldDriveNames {

/// "internal", "stick"
QStringList All();

/// The drive that is the value of an option. Nothing, after a message, when it is none.
std::optional<EFieldDrive> Read(const TCommandLine& line, const QString& option);

} // namespace FieldDriveNames

/// Adds to @p line what the shell offers for PATH: the items on the drive that the option @p driveOption names, or on
/// the internal drive without such an option.
/// @param isOther whether the option names the drive that the items are not on.
void OfferFieldPaths(TCommandLine& line, const tagContext& context, const QString& driveOption = QString(),
                     bool isOther = false);

/// The path that is the first word of @p line. Empty, after a message, when it is none.
QStringList ReadFieldPath(const TCommandLine& line);
