#include "platform/DurableCopy.h"

#include "platform/RegularFile.h"
#include "platform/TDescriptor.h"
#include "platform/TUnfinishedCopy.h"
#include "platform/Uninterrupted.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdio>
#include <iterator>

namespace {

/// What file systems answer that cannot sync a folder, or do not let it be opened.
constexpr int CannotSyncFolders[] = {EINVAL, ENOTSUP, ENOSYS, EBADF, EACCES, EPERM};

QByteArray FolderOf(const QByteArray& path)
{
    const int separator = static_cast<int>(path.lastIndexOf('/'));
    if (separator < 0)
        return QByteArray(".");
    return separator == 0 ? QByteArray("/") : path.left(separator);
}

} // namespace

bool CopyContents(int from, int to, const std::function<void(const char*, int)>& seen)
{
    std::array<char, 0x10000> buffer;
    for (;;) {
        const ssize_t count = Uninterrupted([&] { return read(from, buffer.data(), buffer.size()); });
        if (count <= 0)
            return count == 0;
        if (to >= 0 && !WriteAll(to, buffer.data(), static_cast<std::size_t>(count)))
            return false;
        if (seen)
            seen(buffer.data(), static_cast<int>(count));
    }
}

bool CopyDurably(const QByteArray& source, const QByteArray& target, bool overwrite)
{
    if (!overwrite && access(target.constData(), F_OK) == 0) {
        errno = EEXIST;
        return false;
    }
    const TDescriptor from(OpenRegularFile(source));
    struct stat status = {};
    if (!from.IsOpen() || fstat(from.Get(), &status) != 0)
        return false;
    const QByteArray folder = FolderOf(target);
    TUnfinishedCopy copy(folder, status.st_mode); // as readable as its source
    return copy.Descriptor() >= 0 && CopyContents(from.Get(), copy.Descriptor()) && copy.Sync() &&
           copy.MoveTo(target, overwrite) && SyncFolder(folder);
}

bool RenameWithoutReplacing(const QByteArray& source, const QByteArray& target)
{
    if (renameat2(AT_FDCWD, source.constData(), AT_FDCWD, target.constData(), RENAME_NOREPLACE) == 0)
        return true;
    if (errno != EINVAL && errno != ENOSYS)
        return false;
    struct stat status = {};
    if (lstat(target.constData(), &status) == 0) {
        errno = EEXIST;
        return false;
    }
    return std::rename(source.constData(), target.constData()) == 0;
}

bool SyncFolder(const QByteArray& folder)
{
    const TDescriptor fd(Uninterrupted([&] { return open(folder.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC); }));
    if (fd.IsOpen() && Uninterrupted([&] { return fsync(fd.Get()); }) == 0)
        return true;
    return std::find(std::begin(CannotSyncFolders), std::end(CannotSyncFolders), errno) != std::end(CannotSyncFolders);
}
