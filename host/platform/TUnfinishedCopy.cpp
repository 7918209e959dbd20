#include "platform/TUnfinishedCopy.h"

#include "platform/DurableCopy.h"
#include "platform/Uninterrupted.h"

#include <QRandomGenerator>

#include <dirent.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <memory>

namespace {

const char Prefix[] = "/.cabsettings-copy-";
const char Letters[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789";
const int LettersOfName = 6;
const int Attempts = 10;

/// Others never get the permission to write, whatever the umask.
const mode_t Permissions = S_IRWXU | S_IRWXG | S_IROTH | S_IXOTH;

QByteArray NewName()
{
    QByteArray name = Prefix;
    for (int i = 0; i < LettersOfName; ++i)
        name += Letters[QRandomGenerator::system()->bounded(static_cast<int>(sizeof Letters) - 1)];
    return name;
}

/// Whether @p path names the open, regular file @p descriptor.
bool IsNamed(const QByteArray& path, int descriptor)
{
    struct stat named = {};
    struct stat opened = {};
    return lstat(path.constData(), &named) == 0 && fstat(descriptor, &opened) == 0 && S_ISREG(opened.st_mode) &&
           named.st_dev == opened.st_dev && named.st_ino == opened.st_ino;
}

void RemoveUnlessInUse(const QByteArray& path)
{
    const int file =
        Uninterrupted([&] { return open(path.constData(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC); });
    if (file < 0)
        return;
    if (Uninterrupted([&] { return flock(file, LOCK_EX | LOCK_NB); }) == 0 && IsNamed(path, file))
        unlink(path.constData());
    close(file);
}

} // namespace

void RemoveUnfinishedCopies(const QByteArray& folder)
{
    const std::unique_ptr<DIR, int (*)(DIR*)> entries(opendir(folder.constData()), closedir);
    if (!entries)
        return;
    const auto length = static_cast<int>(qstrlen(Prefix)) + LettersOfName;
    while (const dirent* entry = readdir(entries.get())) {
        const QByteArray name = QByteArray("/") + entry->d_name;
        if (name.startsWith(Prefix) && name.size() == length)
            RemoveUnlessInUse(folder + name);
    }
}

TUnfinishedCopy::TUnfinishedCopy(const QByteArray& folder, mode_t mode) : m_Descriptor(-1)
{
    RemoveUnfinishedCopies(folder);
    for (int attempt = 0; attempt < Attempts && m_Descriptor < 0 && Make(folder, mode); ++attempt)
        LockOrDrop();
}

TUnfinishedCopy::~TUnfinishedCopy()
{
    const int error = errno;
    if (!m_Path.isEmpty())
        unlink(m_Path.constData());
    Close();
    errno = error;
}

bool TUnfinishedCopy::Make(const QByteArray& folder, mode_t mode)
{
    // O_EXCL: neither another file nor a link that has the name is opened.
    for (int attempt = 0; attempt < Attempts && m_Descriptor < 0; ++attempt) {
        m_Path = folder + NewName();
        m_Descriptor = Uninterrupted(
            [&] { return open(m_Path.constData(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, mode & Permissions); });
        if (m_Descriptor < 0 && errno != EEXIST)
            break;
    }
    if (m_Descriptor < 0)
        m_Path.clear();
    return m_Descriptor >= 0;
}

// Another process that removes leftovers may find the new file before it is locked, and then removes it. Where a file
// system has no locks, no leftovers are removed.
void TUnfinishedCopy::LockOrDrop()
{
    const bool isLockedElsewhere =
        Uninterrupted([&] { return flock(m_Descriptor, LOCK_EX | LOCK_NB); }) != 0 && errno == EWOULDBLOCK;
    struct stat status = {};
    const bool isRemoved = fstat(m_Descriptor, &status) == 0 && status.st_nlink == 0;
    if (isLockedElsewhere || isRemoved) {
        Close();
        m_Path.clear();
        errno = EWOULDBLOCK;
    }
}

void TUnfinishedCopy::Close()
{
    if (m_Descriptor >= 0)
        close(m_Descriptor);
    m_Descriptor = -1;
}

bool TUnfinishedCopy::Sync() const
{
    return Uninterrupted([&] { return fsync(m_Descriptor); }) == 0;
}

// The file stays locked until it has its new name.
bool TUnfinishedCopy::MoveTo(const QByteArray& target, bool overwrite)
{
    const bool isMoved =
        overwrite ? rename(m_Path.constData(), target.constData()) == 0 : RenameWithoutReplacing(m_Path, target);
    if (isMoved)
        m_Path.clear();
    return isMoved;
}
