#pragma once

#include <QList>
#include <QString>
#include <QStringList>

/// Folders with everything in them. Names are passed to the system in UTF-8, whatever the locale. The host's own
/// temporary files and folders are not seen. Operations that fail give a reason that names the file.
namespace FileTree {

/// What the names of the host's own temporary files and folders begin with.
inline constexpr char OwnPrefix[] = ".cabsettings-";

/// A file or a folder.
struct tagEntry
{
    QString path; ///< relative to the folder that was listed
    qint64 size;  ///< bytes; 0 for a folder
    bool isFolder;
};

/// Everything in @p folder, in the order of the names, a folder before its content. False when a folder cannot be read,
/// or holds something else than files and folders.
bool List(const QString& folder, QList<tagEntry>* entries, QString* reason);

/// The names of the folders in @p folder, in order; none when there is no such folder.
QStringList Folders(const QString& folder);

/// The names of the files in @p folder, in order.
QStringList Files(const QString& folder);

bool IsFolder(const QString& path);
bool Exists(const QString& path);

/// Renames a file or a folder; both folders are on the disk when this returns. False when @p target exists.
bool Rename(const QString& source, const QString& target, QString* reason);

/// Removes a folder with everything in it, its temporary files too.
bool Remove(const QString& folder, QString* reason);

} // namespace FileTree
