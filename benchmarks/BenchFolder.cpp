#include "BenchFolder.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <linux/magic.h>
#include <sys/vfs.h>

namespace {

struct tagFileSystem
{
    long magic;
    const char* name;
};

constexpr long XfsMagic = 0x58465342; // from statfs(2): the kernel's header lacks it

constexpr tagFileSystem FileSystems[] = {
    {EXT4_SUPER_MAGIC, "ext4"},           {TMPFS_MAGIC, "tmpfs"}, {BTRFS_SUPER_MAGIC, "btrfs"},
    {OVERLAYFS_SUPER_MAGIC, "overlayfs"}, {XfsMagic, "xfs"},
};

} // namespace

QString BenchFolder::Path()
{
    static const QTemporaryDir folder(QDir::tempPath() + QLatin1String("/bench-XXXXXX"));
    if (!folder.isValid())
        qFatal("bench: cannot make a folder in %s", qPrintable(QDir::tempPath()));
    return folder.path();
}

QString BenchFolder::Fresh(const char* name)
{
    const QString path = Path() + QLatin1Char('/') + QLatin1String(name);
    QDir(path).removeRecursively();
    QDir().mkpath(path);
    return path;
}

const char* BenchFolder::FileSystem()
{
    struct statfs info;
    if (statfs(QFile::encodeName(Path()).constData(), &info) == 0) {
        for (const tagFileSystem& fileSystem : FileSystems) {
            if (fileSystem.magic == static_cast<long>(info.f_type))
                return fileSystem.name;
        }
    }
    return "";
}
