#pragma once

#include <QByteArray>

/// What becomes of a symbolic link that has the name of a file.
enum ELinks
{
    LINKS_FOLLOWED,
    LINKS_REFUSED, ///< errno is ELOOP
};

/// Opens a regular file to read it. Nothing else is opened for longer than it takes to see what it is: a pipe without a
/// writer would stop the program, and a device may have no end.
/// @return the descriptor; -1 with errno set, which is EINVAL for what is not a regular file.
int OpenRegularFile(const QByteArray& path, ELinks links = LINKS_FOLLOWED);
