#include "platform/RegularFile.h"

#include "platform/Uninterrupted.h"

#include <fcntl.h>
#include <sys/stat.h>

namespace {

constexpr int Flags = O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC;

/// What is wrong with an open file; 0 for a regular one.
int Problem(int file)
{
    struct stat status = {};
    if (fstat(file, &status) != 0)
        return errno;
    return S_ISREG(status.st_mode) ? 0 : EINVAL;
}

} // namespace

int OpenRegularFile(const QByteArray& path, ELinks links)
{
    const int file = Uninterrupted([&] {
        return links == LINKS_FOLLOWED ? open(path.constData(), Flags) : open(path.constData(), Flags | O_NOFOLLOW);
    });
    const int problem = file >= 0 ? Problem(file) : 0;
    if (problem == 0)
        return file;
    close(file);
    errno = problem;
    return -1;
}
