#include "platform/StandardHandles.h"

#include <fcntl.h>
#include <unistd.h>

void ReserveStandardHandles()
{
    for (int handle = STDIN_FILENO; handle <= STDERR_FILENO; ++handle) {
        // A closed handle has no flags. The lowest free number is the one that open gives; and a handle that is open
        // the wrong way round fails as a closed one does.
        if (fcntl(handle, F_GETFD) == -1)
            open("/dev/null", handle == STDIN_FILENO ? O_WRONLY : O_RDONLY);
    }
}
