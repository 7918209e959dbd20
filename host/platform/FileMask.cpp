#include "platform/FileMask.h"

#include <sys/stat.h>

void DenyWritingByOthers()
{
    const mode_t given = umask(S_IWOTH);
    umask(given | S_IWOTH);
}
