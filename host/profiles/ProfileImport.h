#pragma once

#include "HostExport.h"
#include "profiles/ProfileGroups.h"
#include "profiles/TProfile.h"
#include "stores/TSqliteStore.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

/// Takes the parameters of a profile into a store: all or none, whatever happens on the way.
///
/// A parameter that was changed on both sides is a conflict: the store's value (ours) differs from the profile's
/// (theirs), and also from the value that both once had (the base). The base is known in two cases:
/// - the profile comes from this terminal: the value at its export;
/// - this terminal has imported from the terminal of the profile before, and from fewer than 16 other terminals since:
///   the value that it took then.
/// Without a base, the profile's value is taken.
///
/// @code
/// ProfileImport::tagResult result = ProfileImport::Compare(profile, store, storeFile, {});
/// if (result.conflicts.isEmpty() && AskOperator(result.changes))
///     result = ProfileImport::Apply(profile, store, storeFile, {}); // result.isApplied: it is on the disk
/// @endcode
///
/// Each call is used by one thread; the store may be used by others, and by other programs, at the same time. Needs an
/// application object, for the database driver.
namespace ProfileImport {

/// What becomes of conflicts.
enum EResolution : int
{
    RESOLUTION_NONE, ///< nothing is imported when there is a conflict
    RESOLUTION_OURS,
    RESOLUTION_THEIRS,
};

struct tagOptions
{
    QStringList groups = ProfileGroups::ImportedByDefault();
    EResolution resolution = RESOLUTION_NONE;
    int patience = 5000; ///< how many milliseconds to wait for another import, and for a file that is locked
};

/// A parameter that the profile would change. Texts are those of TParameterCatalogue::Text().
struct tagChange
{
    const tagParameter* parameter;
    std::optional<QString> ours; ///< nothing when the store has no value
    QString theirs;
};

struct tagConflict
{
    const tagParameter* parameter;
    std::optional<QString> ours;
    QString theirs;
    QString base;
};

struct tagResult
{
    QList<tagChange> changes;     ///< in the order of their numbers; with conflicts that are resolved to theirs
    QList<tagConflict> conflicts; ///< in the order of their numbers, resolved or not
    int notSelected = 0;          ///< parameters of the profile that are not of the selected groups
    bool isApplied = false;       ///< only after Apply()
    QString error;                ///< one line, or empty; unresolved conflicts are not an error
};

/// What Apply() would do now. Changes nothing.
/// @param storeFile the path with which @p store was opened.
CABHOST_EXPORT tagResult Compare(const TProfile& profile, TSqliteStore& store, const QString& storeFile,
                                 const tagOptions& options);

/// Imports. The values are written in one transaction: after a power cut the store has all of them or none. When they
/// cannot be written, the store keeps its former values. Of two imports at the same time, one waits for the other.
/// @return what was changed, when isApplied; otherwise the store is unchanged, and there is an error or an unresolved
///         conflict.
CABHOST_EXPORT tagResult Apply(const TProfile& profile, TSqliteStore& store, const QString& storeFile,
                               const tagOptions& options);

} // namespace ProfileImport
