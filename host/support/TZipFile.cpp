#include "support/TZipFile.h"

#include "platform/DurableCopy.h"
#include "stores/DurableFiles.h"

#include <QFileInfo>

#include <archive.h>
#include <archive_entry.h>

#include <cerrno>
#include <ctime>

#include <sys/stat.h>
#include <unistd.h>

namespace {

const mode_t Permissions = 0644;

QByteArray FolderOf(const QString& path) { return QFileInfo(path).absolutePath().toUtf8(); }

} // namespace

TZipFile::TZipFile(const QString& path)
    : m_Path(path), m_File(FolderOf(path), Permissions), m_Archive(archive_write_new())
{
    if (m_File.Descriptor() < 0 || !m_Archive) {
        Fail();
        return;
    }
    Check(archive_write_set_format_zip(m_Archive));
    Check(archive_write_set_bytes_in_last_block(m_Archive, 1)); // an archive is not a tape
    Check(archive_write_open_fd(m_Archive, m_File.Descriptor()));
}

TZipFile::~TZipFile()
{
    if (m_Archive)
        archive_write_free(m_Archive);
}

bool TZipFile::Begin(const QString& member)
{
    if (!m_Reason.isEmpty())
        return false;
    archive_entry* const entry = archive_entry_new();
    archive_entry_set_pathname_utf8(entry, member.toUtf8().constData());
    archive_entry_set_filetype(entry, AE_IFREG);
    archive_entry_set_perm(entry, Permissions);
    archive_entry_set_mtime(entry, std::time(nullptr), 0);
    archive_entry_unset_size(entry); // known at the end of the member
    const bool isBegun = Check(archive_write_header(m_Archive, entry));
    archive_entry_free(entry);
    return isBegun;
}

bool TZipFile::Write(const QByteArray& piece)
{
    if (!m_Reason.isEmpty() || piece.isEmpty())
        return m_Reason.isEmpty();
    const la_ssize_t written = archive_write_data(m_Archive, piece.constData(), static_cast<std::size_t>(piece.size()));
    return Check(written == piece.size() ? ARCHIVE_OK : ARCHIVE_FATAL);
}

bool TZipFile::Finish()
{
    if (!m_Reason.isEmpty() || !Check(archive_write_close(m_Archive)))
        return false;
    const bool isThere = m_File.Sync() && m_File.MoveTo(m_Path.toUtf8(), true) && SyncFolder(FolderOf(m_Path));
    return isThere || Fail();
}

bool TZipFile::Check(int result)
{
    if (result >= ARCHIVE_WARN)
        return m_Reason.isEmpty();
    errno = archive_errno(m_Archive);
    return Fail();
}

bool TZipFile::Fail()
{
    if (m_Reason.isEmpty())
        m_Reason = DurableFiles::SystemReason(QLatin1String("cannot write"), m_Path);
    return false;
}
