#pragma once

#include <QString>

/// Opens a file, a pipe or a device for reading, without waiting for its other end. "-" is the standard input.
/// @return the descriptor, to be closed by the caller; -1 with errno set on failure.
int OpenSourceFile(const QString& path);
