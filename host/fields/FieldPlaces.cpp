#include "fields/FieldPlaces.h"

#include "system/TSystemSettingsProxy.h"

#include <QDir>
#include <QFileInfo>

namespace {

using Proxy = TSystemSettingsProxy;

/// The library composes the paths of fields and jobs alone. A name that stands in for those that are missing is cut
/// off again.
const QString StandIn = QLatin1String("x");

const int NamesOfField = 3;
const int NamesOfJob = 4;

QString Parent(const QString& path) { return QFileInfo(path).path(); }

QString RelativeToDrive(const QString& path) { return path.mid(Proxy().GetInternalDrivePath().size()); }

QStringList Filled(QStringList path, int count)
{
    while (path.size() < count)
        path.append(StandIn);
    return path;
}

QString JobFolder(const QStringList& path)
{
    return Parent(RelativeToDrive(Proxy().GetJobFilePath(path.at(0), path.at(1), path.at(2), path.at(3))));
}

/// A folder in a field that is named after the field, and the parameter that selects its content.
struct tagNamedFolder
{
    QString (Proxy::*file)(const QString& client, const QString& farm, const QString& field) const;
    EParamID parameter;
};

constexpr tagNamedFolder NamedFolders[] = {
    {&Proxy::GetBoundaryFilePath, PARAM_ACTIVE_BOUNDARY},
    {&Proxy::GetExclusionZoneShapefilePath, PARAM_ACTIVE_ZONES_SHAPE_FILE},
};

} // namespace

QString FieldPlaces::Folder(const QStringList& path)
{
    if (path.size() == NamesOfJob)
        return JobFolder(path);
    const QStringList filled = Filled(path, NamesOfField);
    QString folder = QDir::cleanPath(Proxy().GetCFFPath(filled.at(0), filled.at(1), filled.at(2)));
    for (int i = static_cast<int>(path.size()); i < NamesOfField; ++i)
        folder = Parent(folder);
    return folder;
}

QString FieldPlaces::FolderOfItems(const QStringList& path)
{
    return path.size() == NamesOfField ? Parent(JobFolder(Filled(path, NamesOfJob))) : Folder(path);
}

QStringList FieldPlaces::FoldersOfItsName(const QStringList& path)
{
    if (path.size() < NamesOfField)
        return {};
    QStringList folders(Folder(path));
    if (path.size() == NamesOfField) {
        for (const tagNamedFolder& row : NamedFolders)
            folders.append(Parent(RelativeToDrive((Proxy().*row.file)(path.at(0), path.at(1), path.at(2)))));
    }
    return folders;
}

EParamID FieldPlaces::ParameterOfItsName(int i) { return NamedFolders[i - 1].parameter; }
