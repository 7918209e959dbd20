#include "fields/FieldDrives.h"

#include "fields/FieldPath.h"
#include "fields/FieldPlaces.h"
#include "fields/FileTree.h"
#include "parameters/ParameterText.h"
#include "system/TSystemSettingsProxy.h"

#include <QDir>

namespace {

const QLatin1Char Separator('/');

QStringList Beginning(const QStringList& path, int count) { return path.mid(0, count); }

} // namespace

bool FieldDrives::Find(EFieldDrive drive, QString* root, QString* error)
{
    const TSystemSettingsProxy system;
    if (drive == FIELD_DRIVE_INTERNAL) {
        *root = QDir::cleanPath(system.GetInternalDrivePath());
        return true;
    }
    const QString mountPoint = QDir(ConfigManager->GetParameter(PARAM_EXTERNAL_DRIVE).toString()).absolutePath();
    // The library complains on standard error of a folder that does not exist.
    if (FileTree::Exists(mountPoint) && system.GetExternalDrivePath(*root)) {
        *root = QDir::cleanPath(*root);
        return true;
    }
    *error = QString::fromLatin1("no stick is mounted at \"%1\"").arg(mountPoint);
    return false;
}

bool FieldDrives::IsThere(const QString& root, const QStringList& path, QString* error)
{
    for (int i = 1; i <= path.size(); ++i) {
        const QStringList upTo = Beginning(path, i);
        if (FileTree::IsFolder(root + Separator + FieldPlaces::Folder(upTo)))
            continue;
        const QStringList names =
            FileTree::Folders(root + Separator + FieldPlaces::FolderOfItems(Beginning(path, i - 1)));
        QStringList near;
        for (const QString& name : ParameterText::Near(upTo.last(), names))
            near.append(QString::fromLatin1("\"%1\"").arg(name));
        *error = QString::fromLatin1("there is no %1 \"%2\"").arg(FieldPath::Kind(upTo), FieldPath::Text(upTo));
        if (!near.isEmpty())
            *error += QString::fromLatin1("; did you mean %1?").arg(ParameterText::Alternatives(near));
        return false;
    }
    return true;
}

bool FieldDrives::HasPlaceFor(const QString& root, const QStringList& path, const QString& renamed, QString* error)
{
    for (int i = 1; i <= path.size(); ++i) {
        const QString& name = path.at(i - 1);
        const QStringList above = Beginning(path, i - 1);
        const QStringList names = FileTree::Folders(root + Separator + FieldPlaces::FolderOfItems(above));
        if (names.contains(name))
            continue;
        for (const QString& other : names) {
            const bool isRenamed = i == path.size() && other == renamed;
            if (isRenamed || FieldPath::Folded(name) != FieldPath::Folded(other))
                continue;
            const QStringList upTo = Beginning(path, i);
            *error =
                QString::fromLatin1("a stick cannot hold the %1 \"%2\" beside \"%3\": it ignores letter case and the "
                                    "encoding of accents")
                    .arg(FieldPath::Kind(upTo), FieldPath::Text(upTo), FieldPath::Text(above + QStringList(other)));
            return false;
        }
    }
    return true;
}
