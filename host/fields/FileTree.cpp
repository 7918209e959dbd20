#include "fields/FileTree.h"

#include "platform/DurableCopy.h"
#include "stores/DurableFiles.h"

#include <QFileInfo>

#include <cerrno>
#include <filesystem>
#include <system_error>

#include <sys/stat.h>

namespace {

namespace Std = std::filesystem;
using DurableFiles::SystemReason;

const QLatin1Char Separator('/');

Std::path Native(const QString& path) { return Std::path(path.toUtf8().constData()); }

QString Parent(const QString& path) { return QFileInfo(path).path(); }

QString Reason(const char* doing, const QString& path, const std::error_code& error)
{
    errno = error.value();
    return SystemReason(QLatin1String(doing), path);
}

bool IsFolderStatus(const Std::file_status& status) { return status.type() == Std::file_type::directory; }
bool IsFileStatus(const Std::file_status& status) { return status.type() == Std::file_type::regular; }

/// The names of the entries that @p isWanted chooses by their status, in order. A link is not what it leads to.
template <class Wanted>
bool Names(const QString& folder, Wanted isWanted, QStringList* names, std::error_code* error)
{
    Std::directory_iterator entry(Native(folder), *error);
    for (; !*error && entry != Std::directory_iterator(); entry.increment(*error)) {
        const QString name = QString::fromStdString(entry->path().filename().string());
        std::error_code vanished;
        if (!name.startsWith(QLatin1String(FileTree::OwnPrefix)) && isWanted(entry->symlink_status(vanished)))
            names->append(name);
    }
    names->sort();
    return !*error;
}

bool Append(const QString& root, const QString& relative, QList<FileTree::tagEntry>* entries, QString* reason)
{
    const QString folder = relative.isEmpty() ? root : root + Separator + relative;
    QStringList names;
    std::error_code error;
    if (!Names(
            folder, [](const Std::file_status&) { return true; }, &names, &error)) {
        *reason = Reason("cannot read", folder, error);
        return false;
    }
    for (const QString& name : names) {
        const QString path = relative.isEmpty() ? name : relative + Separator + name;
        struct stat status = {};
        if (lstat((root + Separator + path).toUtf8().constData(), &status) != 0) {
            *reason = SystemReason(QLatin1String("cannot read"), root + Separator + path);
            return false;
        }
        const bool isFolder = S_ISDIR(status.st_mode);
        if (!isFolder && !S_ISREG(status.st_mode)) {
            *reason = QString::fromLatin1("\"%1\" is neither a file nor a folder").arg(root + Separator + path);
            return false;
        }
        entries->append({path, isFolder ? 0 : static_cast<qint64>(status.st_size), isFolder});
        if (isFolder && !Append(root, path, entries, reason))
            return false;
    }
    return true;
}

bool Sync(const QString& folder, QString* reason)
{
    if (SyncFolder(folder.toUtf8()))
        return true;
    *reason = SystemReason(QLatin1String("cannot sync"), folder);
    return false;
}

} // namespace

bool FileTree::List(const QString& folder, QList<tagEntry>* entries, QString* reason)
{
    entries->clear();
    return Append(folder, QString(), entries, reason);
}

QStringList FileTree::Folders(const QString& folder)
{
    QStringList names;
    std::error_code missing;
    Names(folder, IsFolderStatus, &names, &missing);
    return names;
}

QStringList FileTree::Files(const QString& folder)
{
    QStringList names;
    std::error_code missing;
    Names(folder, IsFileStatus, &names, &missing);
    return names;
}

bool FileTree::IsFolder(const QString& path)
{
    std::error_code missing;
    return IsFolderStatus(Std::symlink_status(Native(path), missing));
}

bool FileTree::Exists(const QString& path)
{
    struct stat status = {};
    return lstat(path.toUtf8().constData(), &status) == 0;
}

bool FileTree::Rename(const QString& source, const QString& target, QString* reason)
{
    if (!RenameWithoutReplacing(source.toUtf8(), target.toUtf8())) {
        *reason = SystemReason(QLatin1String("cannot rename"), source);
        return false;
    }
    const QString from = Parent(source);
    const QString to = Parent(target);
    return Sync(to, reason) && (from == to || Sync(from, reason));
}

bool FileTree::Remove(const QString& folder, QString* reason)
{
    std::error_code error;
    Std::remove_all(Native(folder), error);
    if (error)
        *reason = Reason("cannot remove", folder, error);
    return !error;
}
