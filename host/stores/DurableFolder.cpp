#include "stores/DurableFolder.h"

#include "platform/DurableCopy.h"
#include "stores/DurableFiles.h"

#include <QFileInfo>

#include <cerrno>

#include <sys/stat.h>

namespace {

const mode_t FolderMode = 0775; // less the umask

bool IsFolder(const QString& path)
{
    struct stat status = {};
    return stat(path.toUtf8().constData(), &status) == 0 && S_ISDIR(status.st_mode);
}

// Another program may make it at the same time. A file or a link to nothing of this name is no folder.
bool MakeOrFind(const QString& path)
{
    if (mkdir(path.toUtf8().constData(), FolderMode) == 0)
        return true;
    if (errno != EEXIST)
        return false;
    const bool isFolder = IsFolder(path);
    errno = ENOTDIR;
    return isFolder;
}

bool SyncNameOf(const QString& path) { return SyncFolder(QFileInfo(path).path().toUtf8()); }

bool Make(const QString& path, QString* reason)
{
    const QString parent = QFileInfo(path).path();
    if (parent != path && !IsFolder(parent) && !Make(parent, reason))
        return false;
    if (MakeOrFind(path) && SyncNameOf(path))
        return true;
    *reason = DurableFiles::SystemReason(QLatin1String("cannot make the folder"), path);
    return false;
}

} // namespace

bool MakeFolderDurably(const QString& path, QString* reason)
{
    if (!IsFolder(path))
        return Make(path, reason);
    if (SyncNameOf(path)) // the program that has made the folder may not have synced its name
        return true;
    *reason = DurableFiles::SystemReason(QLatin1String("cannot sync"), QFileInfo(path).path());
    return false;
}
