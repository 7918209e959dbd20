#include "stores/DurableFolder.h"

#include "platform/DurableCopy.h"
#include "stores/DurableFiles.h"

#include <QFileInfo>

#include <cerrno>

#include <sys/stat.h>

namespace {

const mode_t FolderMode = 0777; // less the umask

} // namespace

bool MakeFolderDurably(const QString& path, QString* reason)
{
    struct stat status = {};
    if (stat(path.toUtf8().constData(), &status) == 0 && S_ISDIR(status.st_mode))
        return true;
    const QString parent = QFileInfo(path).path();
    if (parent != path && !MakeFolderDurably(parent, reason))
        return false;
    const bool isThere = mkdir(path.toUtf8().constData(), FolderMode) == 0 || errno == EEXIST;
    if (isThere && SyncFolder(parent.toUtf8()))
        return true;
    *reason = DurableFiles::SystemReason(QLatin1String("cannot make the folder"), path);
    return false;
}
