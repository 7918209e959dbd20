#pragma once

#include "HostExport.h"

#include <QString>
#include <QStringList>

/// The paths by which people name clients, farms, fields and jobs: "Smith/North/F1/J_1". In C++ a path is the list of
/// its names, from the client to the job; one name is a client, four names are a job.
///
/// @code
/// const QStringList path = FieldPath::Read(text, &error);
/// if (path.isEmpty())
///     return Fail(error);
/// @endcode
///
/// May be used from any thread.
namespace FieldPath {

/// The number of names in the path of a job.
constexpr int MostNames = 4;

/// The path that @p text is. Returns an empty list when a name is missing, is not accepted by TParameterCatalogue, or
/// is one too many; @p error then says what is wrong and what is accepted.
CABHOST_EXPORT QStringList Read(const QString& text, QString* error);

/// Whether the last name of @p path may be changed into @p name; if not, @p error says why, as Read() does.
CABHOST_EXPORT bool IsName(const QStringList& path, const QString& name, QString* error);

/// The names with "/" between them.
CABHOST_EXPORT QString Text(const QStringList& path);

/// "client", "farm", "field" or "job".
CABHOST_EXPORT QString Kind(const QStringList& path);

/// @p name without what a stick with a FAT file system ignores: letter case, and the way in which an accented letter is
/// composed. Names with the same result cannot be in one folder of a stick.
CABHOST_EXPORT QString Folded(const QString& name);

} // namespace FieldPath
