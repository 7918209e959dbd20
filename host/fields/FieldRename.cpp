#include "fields/FieldRename.h"

#include "fields/FieldPlaces.h"
#include "fields/FieldSelection.h"
#include "fields/FileTree.h"
#include "platform/RegularFile.h"
#include "stores/DurableFiles.h"

#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

namespace {

using TChanges = QList<FieldSelection::tagChange>;

const QLatin1Char Separator('/');
const qint64 MostBytesOfNote = 0x100000;
const QLatin1String NoteSuffix("rename");
const QLatin1String PathKey("path");
const QLatin1String NameKey("name");
const QLatin1String SelectionKey("selection");
const QLatin1String ParameterKey("parameter");
const QLatin1String BeforeKey("before");
const QLatin1String AfterKey("after");

/// A renaming, as it is noted.
struct tagNote
{
    QStringList path;
    QString name;
    TChanges selection;

    QStringList NewPath() const { return path.mid(0, path.size() - 1) + QStringList(name); }
};

QString On(const QString& drive, const QString& relative) { return drive + Separator + relative; }

QString NotePath(const QString& drive)
{
    return On(drive, FieldPlaces::FolderOfItems({})) + Separator + QLatin1String(FileTree::OwnPrefix) + NoteSuffix;
}

QByteArray Json(const tagNote& note)
{
    QJsonArray selection;
    for (const FieldSelection::tagChange& change : note.selection)
        selection.append(
            QJsonObject{{ParameterKey, int(change.parameter)}, {BeforeKey, change.before}, {AfterKey, change.after}});
    return QJsonDocument(QJsonObject{{PathKey, QJsonArray::fromStringList(note.path)},
                                     {NameKey, note.name},
                                     {SelectionKey, selection}})
        .toJson();
}

/// Whether a name stays in its folder. Older items may have names that are not accepted any more.
bool IsEntry(const QString& name)
{
    return !name.isEmpty() && name != QLatin1String(".") && name != QLatin1String("..") && !name.contains(Separator);
}

/// A note without a path, and of no parameter, when @p json is none, has names that lead elsewhere, or parameters that
/// select nothing: another program may have written it.
tagNote FromJson(const QByteArray& json)
{
    const QJsonObject object = QJsonDocument::fromJson(json).object();
    tagNote note;
    const QJsonArray path = object.value(PathKey).toArray();
    for (const QJsonValue& name : path)
        note.path.append(name.toString());
    note.name = object.value(NameKey).toString();
    const QJsonArray selection = object.value(SelectionKey).toArray();
    for (const QJsonValue& value : selection) {
        const QJsonObject change = value.toObject();
        note.selection.append({static_cast<EParamID>(change.value(ParameterKey).toInt()),
                               change.value(BeforeKey).toString(), change.value(AfterKey).toString()});
    }
    const bool isOurs = IsEntry(note.name) && std::all_of(note.path.begin(), note.path.end(), IsEntry) &&
                        std::all_of(note.selection.begin(), note.selection.end(),
                                    [](const auto& change) { return FieldSelection::Selects(change.parameter); });
    return isOurs ? note : tagNote();
}

/// The new name of each file in @p folder that has the old one.
QList<QPair<QString, QString>> Renamings(const QString& folder, const QString& before, const QString& after)
{
    QList<QPair<QString, QString>> renamings;
    const QStringList files = FileTree::Files(folder);
    for (const QString& file : files) {
        if (FieldRename::HasItsName(file, before))
            renamings.append({folder + Separator + file, folder + Separator + after + file.mid(before.size())});
    }
    return renamings;
}

QString Beside(const QString& folder, const QString& name) { return QFileInfo(folder).path() + Separator + name; }

/// Renames what is in the folder of the item. What is renamed already stays, and so does what another program has made
/// under the new name meanwhile.
bool RenameInside(const QString& drive, const tagNote& note, QString* error)
{
    const QString& before = note.path.last();
    const QStringList folders = FieldPlaces::FoldersOfItsName(note.NewPath());
    for (const QString& relative : folders) {
        const QString folder = On(drive, relative);
        const QString named = Beside(folder, before);
        const bool isInField = relative != folders.first();
        const bool isToMove = isInField && FileTree::IsFolder(named) && !FileTree::Exists(folder);
        if (isToMove && !FileTree::Rename(named, folder, error))
            return false;
        const auto renamings = Renamings(folder, before, note.name);
        for (const auto& renaming : renamings) {
            if (!FileTree::Exists(renaming.second) && !FileTree::Rename(renaming.first, renaming.second, error))
                return false;
        }
    }
    return true;
}

/// What the operator has selected meanwhile stays.
TChanges StillUnselected(TParameterStore& store, TChanges changes)
{
    const auto isSelected = [&store](const FieldSelection::tagChange& change) {
        return !store.GetParameter(change.parameter).toString().isEmpty();
    };
    changes.erase(std::remove_if(changes.begin(), changes.end(), isSelected), changes.end());
    return changes;
}

bool Settle(TParameterStore& store, const QString& drive, const tagNote& note, QString* error)
{
    const bool isRenamed = !note.path.isEmpty() && FileTree::IsFolder(On(drive, FieldPlaces::Folder(note.NewPath())));
    if (isRenamed && !RenameInside(drive, note, error))
        return false;
    const TChanges changes = StillUnselected(store, note.selection);
    const bool isStored =
        isRenamed ? FieldSelection::StoreAfter(store, changes) : FieldSelection::StoreBefore(store, changes);
    if (!isStored) {
        *error = QLatin1String("cannot store the selection");
        return false;
    }
    return DurableFiles::Remove(NotePath(drive), error);
}

} // namespace

bool FieldRename::HasItsName(const QString& file, const QString& name)
{
    const QChar next = file.size() > name.size() ? file.at(name.size()) : QChar();
    return file.startsWith(name) && (next == QLatin1Char('.') || next == QLatin1Char('_'));
}

QString FieldRename::Obstacle(const QString& drive, const QStringList& path, const QString& name)
{
    const QStringList folders = FieldPlaces::FoldersOfItsName(path);
    for (const QString& relative : folders) {
        const QString folder = On(drive, relative);
        QString named = Beside(folder, name);
        if (relative != folders.first() && FileTree::Exists(named))
            return named;
        const auto renamings = Renamings(folder, path.last(), name);
        for (const auto& renaming : renamings) {
            if (FileTree::Exists(renaming.second))
                return renaming.second;
        }
    }
    return QString();
}

bool FieldRename::Run(TParameterStore& store, const QString& drive, const QStringList& path, const QString& name,
                      QString* error)
{
    const tagNote note = {path, name, FieldSelection::AfterRename(path, name)};
    if (!DurableFiles::Write(NotePath(drive), Json(note), error))
        return false;
    bool isRenamed = FieldSelection::StoreNothing(store, note.selection);
    if (!isRenamed)
        *error = QLatin1String("cannot store the selection");
    else
        isRenamed = FileTree::Rename(On(drive, FieldPlaces::Folder(path)),
                                     On(drive, FieldPlaces::Folder(note.NewPath())), error);
    QString problem;
    const bool isSettled = Settle(store, drive, note, &problem);
    if (isRenamed && !isSettled)
        *error = problem;
    return isRenamed && isSettled;
}

bool FieldRename::Finish(TParameterStore& store, const QString& drive, QString* error)
{
    if (!FileTree::Exists(NotePath(drive)))
        return true;
    QFile note;
    const int descriptor = OpenRegularFile(NotePath(drive).toUtf8(), LINKS_REFUSED);
    if (descriptor < 0 || !note.open(descriptor, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle)) {
        *error = DurableFiles::SystemReason(QLatin1String("cannot read"), NotePath(drive));
        return false;
    }
    return Settle(store, drive, FromJson(note.read(MostBytesOfNote)), error);
}
