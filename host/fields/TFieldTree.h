#pragma once

#include "HostExport.h"
#include "stores/TParameterStore.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <functional>

/// A drive that holds clients.
enum EFieldDrive : int
{
    FIELD_DRIVE_INTERNAL,
    FIELD_DRIVE_STICK, ///< PARAM_EXTERNAL_DRIVE, when it is mounted
};

/// How an operation on the fields has ended.
enum EFieldResult : int
{
    FIELD_DONE,
    FIELD_REFUSED, ///< data or a selection would be lost; nothing has changed, and force does it
    FIELD_FAILED,  ///< force does not help
};

/// A client, a farm, a field or a job on a drive.
struct tagFieldItem
{
    QStringList path; ///< see FieldPath
    int files;        ///< the files in it, at any depth
    qint64 bytes;     ///< their sizes together
    bool isActive;    ///< it is selected, or holds what is; always false on a stick
};

/// What a copy has done.
struct tagFieldCopy
{
    int copied;    ///< files that were copied
    int identical; ///< files that were there already
    qint64 bytes;  ///< the size of what was copied
};

/// How far a copy is, at the end of each file and of each piece of a long one.
struct tagFieldCopyState
{
    int files; ///< done
    int allFiles;
    qint64 bytes; ///< done
    qint64 allBytes;
};

using TFieldCopyProgress = std::function<void(const tagFieldCopyState&)>;

/// The clients, farms, fields and jobs of the terminal: the folders of TSystemSettings, with everything in them.
///
/// @code
/// TFieldTree tree(store);
/// if (tree.Rename({QLatin1String("Smith"), QLatin1String("North")}, QLatin1String("South"), &error) != FIELD_DONE)
///     Show(error);
/// @endcode
///
/// Needs a terminal that runs, whose store is @p store. May be used from any thread, one object by one thread at a
/// time. Programs that work on the fields of one terminal at the same time wait for each other for a few seconds. What
/// a program that died has left unfinished is finished or removed by the next operation of any program.
///
/// An operation that does not end with FIELD_DONE says why in @p error, in one line.
class CABHOST_EXPORT TFieldTree
{
public:
    /// @param store must outlive the object.
    explicit TFieldTree(TParameterStore& store);

    /// The items in @p path and the item itself; all items for the empty path. An item comes before what it holds, and
    /// names are in the order of their Unicode characters.
    EFieldResult List(EFieldDrive drive, const QStringList& path, QList<tagFieldItem>* items, QString* error);

    /// Makes the folder of an item, and of those above it that are missing. Fails when the item exists, and when a
    /// stick cannot hold it beside its neighbours; see FieldPath::Folded().
    EFieldResult Add(const QStringList& path, QString* error);

    /// Renames an item. The files in it that have its name are renamed with it ("J_1.cov", the boundary of the field),
    /// and so are the selections. A power cut leaves the item with one of the two names, and either it is selected or
    /// nothing is; the next operation then selects it again.
    EFieldResult Rename(const QStringList& path, const QString& name, QString* error);

    /// Removes an item with everything in it. Without @p force, refuses what holds files and what is active. When the
    /// item was active, the built-in items are selected, as at a first start. A power cut leaves the whole item or
    /// nothing.
    EFieldResult Remove(const QStringList& path, bool force, QString* error);

    /// Copies an item, with all files and folders in it, from the other drive to the same place on @p target. A file
    /// counts as copied when it has been read back and has the same checksum; only then does it get its name. What is
    /// on the drive already with the same checksum is not copied again, so a copy that was cut off, by a pulled stick
    /// too, goes on where it was. Without @p force, refuses when a file on the drive differs. Before the first file is
    /// copied, it is certain that all names can be on a stick and that there is room for all files.
    /// @param progress is called in the thread of the caller; may be empty.
    /// @param copy what was done, also when the copy has failed.
    EFieldResult Copy(const QStringList& path, EFieldDrive target, bool force, const TFieldCopyProgress& progress,
                      tagFieldCopy* copy, QString* error);

private:
    TParameterStore& m_Store;
};
