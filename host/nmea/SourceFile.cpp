#include "nmea/SourceFile.h"

#include <QFile>

#include <fcntl.h>
#include <unistd.h>

int OpenSourceFile(const QString& path)
{
    // A copy of the descriptor, so that the caller can close it. Without O_NONBLOCK: the flag would hold for every
    // process that shares the standard input.
    if (path == QLatin1String("-"))
        return fcntl(STDIN_FILENO, F_DUPFD_CLOEXEC, 0);
    // O_NONBLOCK: do not wait for a pipe's writer or a modem's carrier.
    return open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY);
}
