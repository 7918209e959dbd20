#pragma once

#include "platform/EParamID.h"

#include <QString>
#include <QStringList>

/// Where clients, farms, fields and jobs are on a drive. Every path is the library's own, made relative to the drive,
/// so that it is valid on the stick too. Needs a terminal that runs.
namespace FieldPlaces {

/// One level of the tree, and the parameter that holds the active name.
struct tagLevel
{
    const char* kind;
    EParamID parameter;
};

inline constexpr tagLevel Levels[] = {
    {"client", PARAM_CLIENT},
    {"farm", PARAM_FARM},
    {"field", PARAM_FIELD},
    {"job", PARAM_ACTIVE_JOB},
};

inline const tagLevel& LevelOf(const QStringList& path) { return Levels[path.size() - 1]; }

/// The folder of an item.
QString Folder(const QStringList& path);

/// The folder that holds the folders of the items one level below @p path; of the clients for the empty path.
QString FolderOfItems(const QStringList& path);

/// The folders in which files have the name of the item: its own first, then those in a field that are named after it.
/// Empty for clients and farms.
QStringList FoldersOfItsName(const QStringList& path);

/// The parameter that selects the content of the folder FoldersOfItsName(path)[i] of a field, for i > 0.
EParamID ParameterOfItsName(int i);

} // namespace FieldPlaces
