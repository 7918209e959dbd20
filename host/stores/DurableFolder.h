#pragma once

#include <QString>

/// Makes a folder and those above it that are missing. Their names are on the disk when this returns, and so is the
/// name of a folder that is there already. False when something else has the name.
/// @param reason one line that names the folder, when the result is false.
bool MakeFolderDurably(const QString& path, QString* reason);
