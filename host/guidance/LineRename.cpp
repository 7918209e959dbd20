#include "guidance/LineRename.h"

#include "fields/FieldPath.h"
#include "fields/FieldPlaces.h"
#include "fields/FieldRename.h"
#include "fields/FileTree.h"
#include "fields/TFieldLock.h"
#include "parameters/TParameterCatalogue.h"
#include "stores/DurableFiles.h"
#include "stores/DurableFolder.h"
#include "system/TSystemSettings.h"
#include "system/TSystemSettingsProxy.h"
#include "terminal/ActiveItems.h"

#include <algorithm>
#include <cerrno>

namespace {

const int PatienceMs = 5000;
const QLatin1Char Separator('/');
const QLatin1String NewSuffix("new-line");
const QLatin1String OldSuffix("old-line");

/// The folder with the folders of the lines.
QString LinesFolder()
{
    const TSystemSettingsProxy system;
    return system.GetInternalDrivePath() + system.GetCFFPath() + QLatin1String(TSystemSettings::ABLinesFolder);
}

QString Own(const QString& lines, const QString& suffix)
{
    return lines + Separator + QLatin1String(FileTree::OwnPrefix) + suffix;
}

/// What a program that died has left.
bool RemoveIfThere(const QString& folder, QString* error)
{
    return !FileTree::Exists(folder) || FileTree::Remove(folder, error);
}

bool IsFree(const QString& lines, const QString& name, const QString& newName, QString* error)
{
    const QStringList names = FileTree::Folders(lines);
    const auto taken = std::find_if(names.begin(), names.end(), [&](const QString& other) {
        return other == newName || (other != name && FieldPath::Folded(other) == FieldPath::Folded(newName));
    });
    if (taken == names.end())
        return true;
    *error = QString::fromLatin1("cannot rename \"%1\": \"%2\" exists already").arg(name, *taken);
    return false;
}

/// Files that have the name of the line get the new one.
bool CopyLine(const QString& source, const QString& target, const QString& name, const QString& newName, QString* error)
{
    QList<FileTree::tagEntry> entries;
    if (!FileTree::List(source, &entries, error) || !MakeFolderDurably(target, error))
        return false;
    return std::all_of(entries.begin(), entries.end(), [&](const FileTree::tagEntry& entry) {
        const bool isNamed = FieldRename::HasItsName(entry.path, name);
        const QString copy = target + Separator + (isNamed ? newName + entry.path.mid(name.size()) : entry.path);
        return entry.isFolder ? MakeFolderDurably(copy, error)
                              : DurableFiles::Copy(source + Separator + entry.path, copy, error);
    });
}

bool Run(TParameterStore& store, const QString& lines, const QString& name, const QString& newName, QString* error)
{
    const QString before = lines + Separator + name;
    const QString after = lines + Separator + newName;
    const QString made = Own(lines, NewSuffix);
    const QString removed = Own(lines, OldSuffix);
    if (!RemoveIfThere(made, error) || !RemoveIfThere(removed, error))
        return false;
    if (!CopyLine(before, made, name, newName, error) || !FileTree::Rename(made, after, error)) {
        QString problem; // the first one is said
        RemoveIfThere(made, &problem);
        return false;
    }
    const tagParameter& line = *TParameterCatalogue::Find(PARAM_ACTIVE_AB_LINE);
    if (ActiveItems::Name(line) == name && !ActiveItems::Select(store, line, newName)) {
        *error = QLatin1String("cannot store the selection");
        return false;
    }
    return FileTree::Rename(before, removed, error) && FileTree::Remove(removed, error);
}

} // namespace

bool RenameGuidanceLine(TParameterStore& store, const QString& name, const QString& newName, QString* error)
{
    error->clear();
    const tagParameter& line = *TParameterCatalogue::Find(PARAM_ACTIVE_AB_LINE);
    if (!TParameterCatalogue::Read(line, newName, error).isValid())
        return false;
    const QString lines = LinesFolder();
    const QString clients = TSystemSettingsProxy().GetInternalDrivePath() + FieldPlaces::FolderOfItems({});
    if (!MakeFolderDurably(clients, error))
        return false;
    const TFieldLock lock(clients, TFieldLock::ALONE, PatienceMs);
    if (!lock.IsHeld()) {
        *error = lock.Reason();
        return false;
    }
    if (name.isEmpty() || newName.isEmpty() || !FileTree::Folders(lines).contains(name)) {
        *error = QString::fromLatin1("cannot rename \"%1\": %2").arg(name, DurableFiles::SystemText(ENOENT));
        return false;
    }
    return name == newName || (IsFree(lines, name, newName, error) && Run(store, lines, name, newName, error));
}
