#include "fields/FieldCopy.h"

#include "fields/FieldDrives.h"
#include "fields/FieldPath.h"
#include "fields/FieldPlaces.h"
#include "parameters/ItemNames.h"
#include "platform/DurableCopy.h"
#include "platform/RegularFile.h"
#include "platform/TUnfinishedCopy.h"
#include "stores/DurableFiles.h"
#include "stores/DurableFolder.h"

#include <QCryptographicHash>
#include <QFileInfo>
#include <QHash>

#include <algorithm>

#include <fcntl.h>
#include <sys/stat.h>

namespace {

const QLatin1Char Separator('/');

QString Parent(const QString& path) { return QFileInfo(path).path(); }
QString Name(const QString& path) { return QFileInfo(path).fileName(); }

QString Quoted(const QString& text) { return QLatin1Char('"') + text + QLatin1Char('"'); }

/// The checksum of what can be read from @p file; empty with errno set when that fails.
QByteArray Checksum(int file)
{
    QCryptographicHash hash(QCryptographicHash::Sha256);
    const bool isRead = CopyContents(
        file, -1, [&hash](const char* data, int length) { hash.addData(QByteArray::fromRawData(data, length)); });
    return isRead ? hash.result() : QByteArray();
}

QByteArray ChecksumOfFile(const QString& path)
{
    const TDescriptor file(OpenRegularFile(path.toUtf8(), LINKS_REFUSED));
    return file.IsOpen() ? Checksum(file.Get()) : QByteArray();
}

/// From the drive, not from the memory of the system, as far as the system lets it.
QByteArray ChecksumReadBack(int file)
{
    posix_fadvise(file, 0, 0, POSIX_FADV_DONTNEED);
    return lseek(file, 0, SEEK_SET) == 0 ? Checksum(file) : QByteArray();
}

/// A failure is ignored: the content is what counts.
void TakeOverTime(const struct stat& source, int file)
{
    const struct timespec times[] = {source.st_atim, source.st_mtim};
    static_cast<void>(futimens(file, times));
}

} // namespace

TFieldCopy::TFieldCopy(const QString& from, const QString& to, const TFieldCopyProgress& progress)
    : m_From(from), m_To(to), m_ToRoot(to), m_Progress(progress), m_Copy(), m_State()
{}

EFieldResult TFieldCopy::Run(const QStringList& path, bool force, tagFieldCopy* copy, QString* error)
{
    const EFieldResult result = CopyAll(path, force, error);
    *copy = m_Copy;
    if (result != FIELD_FAILED)
        return result;
    if (!m_To.IsThere() || !m_From.IsThere())
        *error = QLatin1String("the stick was pulled");
    *error = m_From.Readable(m_To.Readable(*error));
    if (m_Copy.copied > 0)
        *error += QString::fromLatin1("; %1 of %2 files are copied, and the next copy goes on from there")
                      .arg(m_State.files)
                      .arg(m_State.allFiles);
    return result;
}

EFieldResult TFieldCopy::CopyAll(const QStringList& path, bool force, QString* error)
{
    if (!FieldDrives::IsThere(m_From.Path(QLatin1String(".")), path, error) || !ListSource(path, error) ||
        !FieldDrives::HasPlaceFor(m_To.Path(QLatin1String(".")), path, QString(), error) || !FitsOnStick(error))
        return FIELD_FAILED;
    const EFieldResult compared = CompareWithTarget(force, error);
    if (compared != FIELD_DONE)
        return compared;
    return HasRoom(error) && CopyMissing(error) && m_To.IsThere() ? FIELD_DONE : FIELD_FAILED;
}

bool TFieldCopy::ListSource(const QStringList& path, QString* error)
{
    m_Folder = FieldPlaces::Folder(path);
    if (!FileTree::List(m_From.Path(m_Folder), &m_Entries, error))
        return false;
    for (FileTree::tagEntry& entry : m_Entries) {
        entry.path.prepend(m_Folder + Separator);
        m_State.allFiles += entry.isFolder ? 0 : 1;
        m_State.allBytes += entry.size;
    }
    return true;
}

// Also on the way to the internal drive: what lies there is copied to a stick sooner or later.
bool TFieldCopy::FitsOnStick(QString* error) const
{
    QHash<QString, QStringList> names; // by folder
    for (const FileTree::tagEntry& entry : m_Entries) {
        const QString problem = ItemNames::Problem(Name(entry.path), ItemNames::MostBytes);
        if (!problem.isEmpty()) {
            *error = QString::fromLatin1("cannot copy %1: the name %2").arg(Quoted(entry.path), problem);
            return false;
        }
        names[Parent(entry.path)].append(Name(entry.path));
    }
    for (auto folder = names.cbegin(); folder != names.cend(); ++folder) {
        if (!FitsBeside(folder.key(), folder.value(), error))
            return false;
    }
    return true;
}

bool TFieldCopy::FitsBeside(const QString& folder, const QStringList& names, QString* error) const
{
    QHash<QString, QString> byFolded;
    const QString target = m_To.Path(folder);
    const QStringList all = FileTree::Folders(target) + FileTree::Files(target) + names;
    for (const QString& name : all) {
        const QString folded = FieldPath::Folded(name);
        const QString other = byFolded.value(folded, name);
        if (other != name) {
            *error = QString::fromLatin1("a stick cannot hold %1 beside %2: it ignores letter case and the encoding of "
                                         "accents")
                         .arg(Quoted(folder + Separator + name), Quoted(other));
            return false;
        }
        byFolded.insert(folded, name);
    }
    return true;
}

EFieldResult TFieldCopy::CompareWithTarget(bool force, QString* error)
{
    QStringList different;
    for (const FileTree::tagEntry& entry : m_Entries) {
        const QString target = m_To.Path(entry.path);
        const bool isThere = FileTree::Exists(target);
        if (isThere && FileTree::IsFolder(target) != entry.isFolder) {
            *error = QString::fromLatin1("%1 is a folder on one drive and a file on the other").arg(Quoted(entry.path));
            return FIELD_FAILED;
        }
        if (entry.isFolder)
            continue;
        if (isThere && QFileInfo(target).size() == entry.size) {
            const QByteArray checksum = ChecksumOfFile(m_From.Path(entry.path));
            if (!checksum.isEmpty() && checksum == ChecksumOfFile(target)) {
                ++m_Copy.identical;
                ++m_State.files;
                m_State.bytes += entry.size;
                Report(0);
                continue;
            }
        }
        m_Missing.insert(entry.path);
        if (isThere)
            different.append(entry.path);
    }
    if (different.isEmpty() || force)
        return FIELD_DONE;
    *error = QString::fromLatin1("%1 file(s) that are on the drive already differ, the first is %2")
                 .arg(different.size())
                 .arg(Quoted(different.first()));
    return FIELD_REFUSED;
}

bool TFieldCopy::HasRoom(QString* error) const
{
    const qint64 free = m_To.Free();
    const qint64 needed = m_State.allBytes - m_State.bytes;
    if (free < 0 || needed <= free)
        return true;
    *error =
        QString::fromLatin1("the files need %1 bytes; %2 are free on %3").arg(needed).arg(free).arg(Quoted(m_ToRoot));
    return false;
}

bool TFieldCopy::CopyMissing(QString* error)
{
    QStringList folders(m_Folder);
    for (const FileTree::tagEntry& entry : m_Entries) {
        if (entry.isFolder)
            folders.append(entry.path);
    }
    for (const QString& folder : folders) {
        if (!MakeFolderDurably(m_To.Path(folder), error))
            return false;
        RemoveUnfinishedCopies(m_To.Path(folder).toUtf8());
    }
    return std::all_of(m_Entries.cbegin(), m_Entries.cend(), [&](const FileTree::tagEntry& entry) {
        return !m_Missing.contains(entry.path) || (m_To.IsThere() && CopyFile(entry.path, error));
    });
}

bool TFieldCopy::CopyFile(const QString& path, QString* error)
{
    const QByteArray from = m_From.Path(path).toUtf8();
    const TDescriptor source(OpenRegularFile(from, LINKS_REFUSED));
    struct stat status = {};
    if (!source.IsOpen() || fstat(source.Get(), &status) != 0)
        return Fail("cannot read", path, error);

    const QByteArray folder = m_To.Path(Parent(path)).toUtf8();
    TUnfinishedCopy copy(folder, status.st_mode);
    QCryptographicHash hash(QCryptographicHash::Sha256);
    qint64 bytes = 0;
    const auto take = [&](const char* data, int length) {
        hash.addData(QByteArray::fromRawData(data, length));
        bytes += length;
        Report(bytes);
    };
    if (copy.Descriptor() < 0 || !CopyContents(source.Get(), copy.Descriptor(), take))
        return Fail("cannot copy", path, error);
    TakeOverTime(status, copy.Descriptor());
    if (!copy.Sync())
        return Fail("cannot copy", path, error);
    if (ChecksumReadBack(copy.Descriptor()) != hash.result()) {
        *error =
            QString::fromLatin1("%1 reads back differently from the drive; the drive may be damaged").arg(Quoted(path));
        return false;
    }
    if (!copy.MoveTo(m_To.Path(path).toUtf8(), true) || !SyncFolder(folder))
        return Fail("cannot copy", path, error);

    ++m_Copy.copied;
    m_Copy.bytes += bytes;
    ++m_State.files;
    m_State.bytes += bytes;
    Report(0);
    return true;
}

bool TFieldCopy::Fail(const char* doing, const QString& path, QString* error) const
{
    *error = DurableFiles::SystemReason(QLatin1String(doing), Quoted(path));
    return false;
}

void TFieldCopy::Report(qint64 bytesOfFile) const
{
    if (!m_Progress)
        return;
    tagFieldCopyState state = m_State;
    state.bytes += bytesOfFile;
    m_Progress(state);
}
