#include "stores/DurableFiles.h"

#include <QFileInfo>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace DurableFiles {

namespace {

// What was opened is closed again whether or not it could be synced; the reason is that of the first failure.
bool Sync(const QString& path, int flags, QString* reason)
{
    const int file = open(path.toUtf8().constData(), flags | O_CLOEXEC);
    const bool isSynced = file >= 0 && fsync(file) == 0;
    if (!isSynced)
        *reason = SystemReason(QLatin1String("cannot sync"), path);
    if (file >= 0)
        close(file);
    return isSynced;
}

bool SyncFolderOf(const QString& path, QString* reason)
{
    return Sync(QFileInfo(path).path(), O_RDONLY | O_DIRECTORY, reason);
}

} // namespace

QString SystemReason(const QString& doing, const QString& path)
{
    return QString::fromLatin1("%1 %2: %3").arg(doing, path, QString::fromLocal8Bit(std::strerror(errno)));
}

bool Identify(const QString& path, tagIdentity* identity)
{
    struct stat status;
    if (stat(path.toUtf8().constData(), &status) != 0)
        return false;
    *identity = {status.st_dev, status.st_ino};
    return true;
}

bool Exists(const QString& path)
{
    tagIdentity identity;
    return Identify(path, &identity);
}

bool SyncContent(const QString& path, QString* reason) { return Sync(path, O_RDONLY, reason); }

bool Rename(const QString& source, const QString& target, QString* reason)
{
    if (std::rename(source.toUtf8().constData(), target.toUtf8().constData()) == 0)
        return SyncFolderOf(target, reason);
    *reason = SystemReason(QLatin1String("cannot rename"), source);
    return false;
}

bool Remove(const QString& path, QString* reason)
{
    if (unlink(path.toUtf8().constData()) == 0 || errno == ENOENT)
        return true;
    *reason = SystemReason(QLatin1String("cannot remove"), path);
    return false;
}

} // namespace DurableFiles
