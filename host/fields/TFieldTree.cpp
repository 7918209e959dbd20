#include "fields/TFieldTree.h"

#include "fields/FieldCopy.h"
#include "fields/FieldDrives.h"
#include "fields/FieldPath.h"
#include "fields/FieldPlaces.h"
#include "fields/FieldRename.h"
#include "fields/FieldSelection.h"
#include "fields/FileTree.h"
#include "fields/TFieldLock.h"
#include "fields/TOpenDrive.h"
#include "platform/TUnfinishedCopy.h"
#include "stores/DurableFiles.h"
#include "stores/DurableFolder.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <memory>

namespace {

const QLatin1Char Separator('/');
const int PatienceMs = 5000;
const QLatin1String RemovedPrefix(".cabsettings-removed-");
const QLatin1String Placeholder("XXXXXX"); // replaced by mkdtemp()

QString ClientsFolder(const QString& drive) { return drive + Separator + FieldPlaces::FolderOfItems({}); }

bool RemoveRemoved(const QString& clients, QString* error)
{
    std::error_code missing;
    QStringList leftovers;
    for (const auto& entry : std::filesystem::directory_iterator(clients.toUtf8().constData(), missing)) {
        const QString name = QString::fromStdString(entry.path().filename().string());
        if (name.startsWith(RemovedPrefix))
            leftovers.append(clients + Separator + name);
    }
    return std::all_of(leftovers.begin(), leftovers.end(),
                       [error](const QString& folder) { return FileTree::Remove(folder, error); });
}

/// Finishes what programs that died have left. The lock must be held alone.
bool FinishOthers(TParameterStore& store, const QString& drive, QString* error)
{
    const QString clients = ClientsFolder(drive);
    RemoveUnfinishedCopies(clients.toUtf8());
    return FieldRename::Finish(store, drive, error) && RemoveRemoved(clients, error);
}

/// The internal drive, locked, with nothing unfinished on it.
struct tagWorkshop
{
    QString drive;
    std::unique_ptr<TFieldLock> lock;
};

bool Enter(TParameterStore& store, tagWorkshop* workshop, QString* error)
{
    if (!FieldDrives::Find(FIELD_DRIVE_INTERNAL, &workshop->drive, error))
        return false;
    const QString clients = ClientsFolder(workshop->drive);
    if (!MakeFolderDurably(clients, error))
        return false;
    workshop->lock = std::make_unique<TFieldLock>(clients, TFieldLock::ALONE, PatienceMs);
    if (!workshop->lock->IsHeld()) {
        *error = workshop->lock->Reason();
        return false;
    }
    return FinishOthers(store, workshop->drive, error);
}

bool Append(const QString& drive, const QStringList& path, const QStringList& active, QList<tagFieldItem>* items,
            QString* error)
{
    if (!path.isEmpty()) {
        QList<FileTree::tagEntry> entries;
        if (!FileTree::List(drive + Separator + FieldPlaces::Folder(path), &entries, error))
            return false;
        tagFieldItem item = {path, 0, 0, !active.isEmpty() && active.mid(0, path.size()) == path};
        for (const FileTree::tagEntry& entry : entries) {
            item.files += entry.isFolder ? 0 : 1;
            item.bytes += entry.size;
        }
        items->append(item);
    }
    if (path.size() == FieldPath::MostNames)
        return true;
    const QStringList names = FileTree::Folders(drive + Separator + FieldPlaces::FolderOfItems(path));
    return std::all_of(names.begin(), names.end(), [&](const QString& name) {
        return Append(drive, path + QStringList(name), active, items, error);
    });
}

/// Moves a folder out of sight, in one step, to be removed there.
bool Discard(const QString& clients, const QString& folder, QString* error)
{
    QByteArray bin = (clients + Separator + RemovedPrefix + Placeholder).toUtf8();
    if (mkdtemp(bin.data()) == nullptr) {
        *error = DurableFiles::SystemReason(QLatin1String("cannot create"), QString::fromUtf8(bin));
        return false;
    }
    const QString discarded = QString::fromUtf8(bin);
    return FileTree::Rename(folder, discarded + QLatin1String("/item"), error) && FileTree::Remove(discarded, error);
}

/// Whether the way to an item on the stick is one of folders. A link might lead into the folders of this terminal.
bool IsOnStick(const QString& stick, const QStringList& path, QString* error)
{
    const QString folder = FieldPlaces::Folder(path);
    if (!TOpenDrive(stick).HasLink(folder))
        return true;
    *error = QString::fromLatin1("\"%1\" is neither a file nor a folder").arg(stick + Separator + folder);
    return false;
}

} // namespace

TFieldTree::TFieldTree(TParameterStore& store) : m_Store(store) {}

EFieldResult TFieldTree::List(EFieldDrive drive, const QStringList& path, QList<tagFieldItem>* items, QString* error)
{
    items->clear();
    QString root;
    if (!FieldDrives::Find(drive, &root, error))
        return FIELD_FAILED;
    QStringList active;
    if (drive == FIELD_DRIVE_INTERNAL) {
        // A list does not wait: while another program works, there is nothing to finish.
        const TFieldLock lock(ClientsFolder(root), TFieldLock::ALONE, 0);
        QString problem; // a drive that cannot be written to can still be listed
        if (lock.IsHeld())
            FinishOthers(m_Store, root, &problem);
        active = FieldSelection::Active();
    } else if (!IsOnStick(root, path, error)) {
        return FIELD_FAILED;
    }
    if (!path.isEmpty() && !FieldDrives::IsThere(root, path, error))
        return FIELD_FAILED;
    return Append(root, path, active, items, error) ? FIELD_DONE : FIELD_FAILED;
}

EFieldResult TFieldTree::Add(const QStringList& path, QString* error)
{
    tagWorkshop workshop;
    if (!Enter(m_Store, &workshop, error))
        return FIELD_FAILED;
    const QString folder = workshop.drive + Separator + FieldPlaces::Folder(path);
    if (FileTree::Exists(folder)) {
        *error = QString::fromLatin1("the %1 \"%2\" exists already").arg(FieldPath::Kind(path), FieldPath::Text(path));
        return FIELD_FAILED;
    }
    if (!FieldDrives::HasPlaceFor(workshop.drive, path, QString(), error))
        return FIELD_FAILED;
    return MakeFolderDurably(folder, error) ? FIELD_DONE : FIELD_FAILED;
}

EFieldResult TFieldTree::Rename(const QStringList& path, const QString& name, QString* error)
{
    tagWorkshop workshop;
    if (!Enter(m_Store, &workshop, error) || !FieldDrives::IsThere(workshop.drive, path, error))
        return FIELD_FAILED;
    const QStringList newPath = path.mid(0, path.size() - 1) + QStringList(name);
    if (FileTree::Exists(workshop.drive + Separator + FieldPlaces::Folder(newPath))) {
        *error =
            QString::fromLatin1("the %1 \"%2\" exists already").arg(FieldPath::Kind(path), FieldPath::Text(newPath));
        return FIELD_FAILED;
    }
    if (!FieldDrives::HasPlaceFor(workshop.drive, newPath, path.last(), error))
        return FIELD_FAILED;
    const QString obstacle = FieldRename::Obstacle(workshop.drive, path, name);
    if (!obstacle.isEmpty()) {
        *error =
            QString::fromLatin1("cannot rename \"%1\": \"%2\" exists already").arg(FieldPath::Text(path), obstacle);
        return FIELD_FAILED;
    }
    return FieldRename::Run(m_Store, workshop.drive, path, name, error) ? FIELD_DONE : FIELD_FAILED;
}

EFieldResult TFieldTree::Remove(const QStringList& path, bool force, QString* error)
{
    tagWorkshop workshop;
    if (!Enter(m_Store, &workshop, error) || !FieldDrives::IsThere(workshop.drive, path, error))
        return FIELD_FAILED;
    const QString folder = workshop.drive + Separator + FieldPlaces::Folder(path);
    QList<FileTree::tagEntry> entries;
    if (!force && !FileTree::List(folder, &entries, error))
        return FIELD_FAILED;
    const auto files =
        std::count_if(entries.begin(), entries.end(), [](const FileTree::tagEntry& entry) { return !entry.isFolder; });
    const QString kind = FieldPath::Kind(path);
    const QString name = FieldPath::Text(path);
    const bool isActive = FieldSelection::IsActive(path);
    if (!force && (files > 0 || isActive)) {
        const char* const holding =
            isActive ? "the %1 \"%2\" is active and holds %3 file(s)" : "the %1 \"%2\" holds %3 file(s)";
        *error = files == 0 ? QString::fromLatin1("the %1 \"%2\" is active").arg(kind, name)
                            : QString::fromLatin1(holding).arg(kind, name, QString::number(files));
        return FIELD_REFUSED;
    }
    // The selection first: it never names what is gone.
    const auto changes = FieldSelection::AfterRemoval(path);
    if (!FieldSelection::StoreAfter(m_Store, changes)) {
        *error = QLatin1String("cannot store the selection");
        return FIELD_FAILED;
    }
    if (Discard(ClientsFolder(workshop.drive), folder, error))
        return FIELD_DONE;
    if (FileTree::IsFolder(folder))
        FieldSelection::StoreBefore(m_Store, changes);
    return FIELD_FAILED;
}

EFieldResult TFieldTree::Copy(const QStringList& path, EFieldDrive target, bool force,
                              const TFieldCopyProgress& progress, tagFieldCopy* copy, QString* error)
{
    tagWorkshop workshop;
    QString stick;
    if (!Enter(m_Store, &workshop, error) || !FieldDrives::Find(FIELD_DRIVE_STICK, &stick, error) ||
        !IsOnStick(stick, path, error))
        return FIELD_FAILED;
    // Copies go on side by side, and nothing is renamed or removed meanwhile.
    workshop.lock.reset();
    const TFieldLock lock(ClientsFolder(workshop.drive), TFieldLock::SHARED, PatienceMs);
    if (!lock.IsHeld()) {
        *error = lock.Reason();
        return FIELD_FAILED;
    }
    const bool isToStick = target == FIELD_DRIVE_STICK;
    TFieldCopy run(isToStick ? workshop.drive : stick, isToStick ? stick : workshop.drive, progress);
    return run.Run(path, force, copy, error);
}
