#include "platform/TFileSystemHelper.h"

#include <QByteArray>
#include <QFile>
#include <QFileInfo>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdio>
#include <cstdlib>

namespace {

/// A file descriptor, closed at the end.
class TDescriptor
{
public:
    explicit TDescriptor(int fd) : m_Fd(fd) {}
    ~TDescriptor() { Close(); }
    TDescriptor(const TDescriptor&) = delete;
    TDescriptor& operator=(const TDescriptor&) = delete;

    int Get() const { return m_Fd; }
    bool IsOpen() const { return m_Fd >= 0; }

    /// False when the system reports a write that failed late.
    bool Close()
    {
        const int fd = m_Fd;
        m_Fd = -1;
        return fd < 0 || close(fd) == 0;
    }

private:
    int m_Fd;
};

bool WriteAll(int fd, const char* data, ssize_t length)
{
    while (length > 0) {
        const ssize_t written = write(fd, data, static_cast<std::size_t>(length));
        if (written < 0 && errno == EINTR)
            continue;
        if (written <= 0)
            return false;
        data += written;
        length -= written;
    }
    return true;
}

bool CopyContents(int from, int to)
{
    std::array<char, 0x10000> buffer;
    for (;;) {
        const ssize_t count = read(from, buffer.data(), buffer.size());
        if (count < 0 && errno == EINTR)
            continue;
        if (count <= 0)
            return count == 0;
        if (!WriteAll(to, buffer.data(), count))
            return false;
    }
}

/// Fills the new file @p to with the contents of @p source, down to the disk.
bool FillAndSync(const QByteArray& source, int to)
{
    const TDescriptor from(open(source.constData(), O_RDONLY | O_CLOEXEC));
    struct stat status = {};
    if (!from.IsOpen() || fstat(from.Get(), &status) != 0 || !S_ISREG(status.st_mode))
        return false;
    // Temporary files are made private; the copy is to be as readable as its source. FAT knows no permissions, which
    // is no reason to fail.
    static_cast<void>(fchmod(to, status.st_mode & (S_IRWXU | S_IRWXG | S_IRWXO)));
    return CopyContents(from.Get(), to) && fsync(to) == 0;
}

bool MoveIntoPlace(const QByteArray& from, const QByteArray& to, bool overwrite)
{
    if (overwrite)
        return rename(from.constData(), to.constData()) == 0;
    if (renameat2(AT_FDCWD, from.constData(), AT_FDCWD, to.constData(), RENAME_NOREPLACE) == 0)
        return true;
    const bool isSupported = errno != EINVAL && errno != ENOSYS;
    return !isSupported && access(to.constData(), F_OK) != 0 && rename(from.constData(), to.constData()) == 0;
}

/// Brings the folder's entries to the disk. Some file systems cannot, and keep their entries in order by themselves.
void SyncFolder(const QByteArray& folder)
{
    const TDescriptor fd(open(folder.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (fd.IsOpen())
        static_cast<void>(fsync(fd.Get()));
}

} // namespace

QRegExp TFileSystemHelper::LowerCaseFilenameExtensionRegExp() { return QRegExp(QLatin1String("\\.[a-z0-9]+")); }

// Through a temporary name in the same folder: whatever happens on the way, a pulled stick or a power cut, the
// destination is the old file or the complete new one.
bool TFileSystemHelper::FileCopy(const QString& source, const QString& destination, bool overwrite)
{
    const QByteArray target = QFile::encodeName(destination);
    const QByteArray folder = QFile::encodeName(QFileInfo(destination).path());
    if (!overwrite && QFileInfo::exists(destination))
        return false;

    QByteArray temporary = folder + "/.copy-XXXXXX";
    TDescriptor copy(mkostemp(temporary.data(), O_CLOEXEC));
    if (!copy.IsOpen())
        return false;
    if (!FillAndSync(QFile::encodeName(source), copy.Get()) || !copy.Close() ||
        !MoveIntoPlace(temporary, target, overwrite)) {
        unlink(temporary.constData());
        return false;
    }
    SyncFolder(folder);
    return true;
}
