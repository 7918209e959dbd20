#pragma once

#include <QString>

/// Makes a folder and those above it that are missing. Their names are on the disk when this returns.
/// @param reason one line that names the folder, when the result is false.
bool MakeFolderDurably(const QString& path, QString* reason);
