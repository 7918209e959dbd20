#pragma once

#include "HostExport.h"
#include "stores/TSqliteStore.h"

#include <QDate>
#include <QList>
#include <QString>
#include <QVariant>

/// The copies that a store keeps of itself: of each of the last seven days, and the newest of each of the last four
/// weeks, on which it was open; see TSqliteStore. And the last seven copies that were made on demand.
///
/// @code
/// const QList<StoreCopies::tagCopy> copies = StoreCopies::List(store->Path()); // the newest first
/// QList<StoreCopies::tagDifference> changed;
/// const bool isRestored = StoreCopies::Restore(*store, copies.first(), &changed, &error);
/// @endcode
///
/// The functions may be called from any thread. They wait for the disk.
namespace StoreCopies {

struct tagCopy
{
    QString name; ///< its day, "2026-05-04"; of a copy that Make() has made, "2026-05-04-1"
    QDate day;    ///< on the terminal's clock
    QString path;
    qint64 size; ///< in bytes
};

/// A parameter that has another value in the copy.
struct tagDifference
{
    int parameter;
    QVariant now;  ///< invalid when the parameter is absent
    QVariant then; ///< in the copy; invalid when it is absent there
};

/// The copies of the store in the file @p storeFile, those of the newest day first. They are not checked.
CABHOST_EXPORT QList<tagCopy> List(const QString& storeFile);

/// Makes a copy now, which stays as it is when the store makes the copy of the day. False, with one line in @p error,
/// when it is not on the disk.
CABHOST_EXPORT bool Make(const TSqliteStore& store, tagCopy* made, QString* error);

/// Finds what Restore() would change. Parameters of the group "device" of ProfileGroups belong to the terminal as it is
/// now, its log numbers and its clock for instance, and are left out.
/// @return false, with one line in @p error, when the copy is damaged or cannot be read.
CABHOST_EXPORT bool Compare(TSqliteStore& store, const tagCopy& copy, QList<tagDifference>* differences,
                            QString* error);

/// Gives the parameters the values that they have in the copy, in one transaction: whatever happens, all or none. The
/// journal names the author restore; watches are told of each change.
/// @param changed receives what was changed.
/// @return false, with one line in @p error, when the copy is damaged or cannot be read, or when the values cannot be
///         stored. The store is then unchanged.
CABHOST_EXPORT bool Restore(TSqliteStore& store, const tagCopy& copy, QList<tagDifference>* changed, QString* error);

} // namespace StoreCopies
