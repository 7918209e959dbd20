#include "fields/TOpenDrive.h"

#include "platform/Uninterrupted.h"

#include <QStringList>

#include <algorithm>

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <unistd.h>

namespace {

const QLatin1Char Separator('/');

} // namespace

TOpenDrive::TOpenDrive(const QString& root)
    : m_Root(root), m_Folder(open(root.toUtf8().constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC))
{}

bool TOpenDrive::IsThere() const
{
    struct stat named = {};
    struct stat opened = {};
    return m_Folder.IsOpen() && fstat(m_Folder.Get(), &opened) == 0 && stat(m_Root.toUtf8().constData(), &named) == 0 &&
           named.st_dev == opened.st_dev && named.st_ino == opened.st_ino;
}

QString TOpenDrive::Path(const QString& relative) const
{
    return QString::fromLatin1("/proc/self/fd/%1/").arg(m_Folder.Get()) + relative;
}

bool TOpenDrive::HasLink(const QString& relative) const
{
    const QStringList names = relative.split(Separator, Qt::SkipEmptyParts);
    QString path;
    return std::any_of(names.begin(), names.end(), [&](const QString& name) {
        path += name + Separator;
        struct stat status = {};
        const QByteArray entry = Path(path.chopped(1)).toUtf8();
        // What cannot be looked at may be one.
        return lstat(entry.constData(), &status) == 0 ? S_ISLNK(status.st_mode) : errno != ENOENT && errno != ENOTDIR;
    });
}

QString TOpenDrive::Readable(QString text) const { return text.replace(Path(QString()), m_Root + Separator); }

qint64 TOpenDrive::Free() const
{
    struct statvfs info = {};
    if (fstatvfs(m_Folder.Get(), &info) != 0)
        return -1;
    return static_cast<qint64>(info.f_bavail) * static_cast<qint64>(info.f_frsize);
}

bool TOpenDrive::Sync() const
{
    return Uninterrupted([&] { return syncfs(m_Folder.Get()); }) == 0;
}
