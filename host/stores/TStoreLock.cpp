#include "stores/TStoreLock.h"

#include "platform/Uninterrupted.h"

#include <QList>
#include <QThread>

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

const unsigned long PollMilliseconds = 20;
const char Separator = ' ';
const char End = '\n';           // a line of the note without it is incomplete
const char Mark[] = "changed\n"; // the second line

/// Whether a lock's file has another name too. It may then be another program's file, and is not written. But a backup
/// of the folder can be what has linked it, and that must not keep the store closed. So a new file with the same note
/// takes the place of one that is not held: the death of a holder is still seen. One that is held is shared as it is.
bool HasOtherName(int file)
{
    struct stat status = {};
    return fstat(file, &status) == 0 && status.st_nlink > 1;
}

} // namespace

TStoreLock::TStoreLock(const QString& path)
    : m_Path(path), m_File(-1), m_IsAlone(false), m_IsOwn(false), m_WasLeftBehind(false), m_StaysBehind(false)
{}

TStoreLock::~TStoreLock()
{
    QString reason;
    if ((m_IsAlone || TakeAlone()) && IsStillThere() && !m_StaysBehind)
        DurableFiles::Remove(m_Path, &reason); // a file that stays is not locked, and does no harm
    Drop();
}

bool TStoreLock::Take(const QDeadlineTimer& deadline, QString* reason)
{
    bool isReplaced = false;
    for (;;) {
        const QByteArray path = m_Path.toUtf8();
        m_File = Uninterrupted([&] {
            // A file that has the name is cut, so it must not be one to which a link leads.
            return open(path.constData(), O_RDWR | O_CREAT | O_NOFOLLOW | O_CLOEXEC,
                        S_IRUSR | S_IWUSR | S_IRGRP | S_IROTH);
        });
        if (m_File < 0) {
            *reason = DurableFiles::SystemReason(QLatin1String("cannot make"), m_Path);
            return false;
        }
        if (TryToTake())
            return true;
        if (errno == EMLINK && !isReplaced) {
            isReplaced = DurableFiles::Write(m_Path, Note(), reason);
            Drop();
            if (!isReplaced)
                return false;
            continue;
        }
        const bool isTaken = errno == EWOULDBLOCK;
        if (!isTaken || deadline.hasExpired()) {
            *reason = isTaken
                          ? QString::fromLatin1("another program has locked %1 for longer than the timeout").arg(m_Path)
                          : DurableFiles::SystemReason(QLatin1String("cannot lock"), m_Path);
            Drop();
            return false;
        }
        Drop();
        QThread::msleep(PollMilliseconds);
    }
}

// Returns false with errno set.
bool TStoreLock::Lock(int kind) const
{
    return Uninterrupted([&] { return flock(m_File, kind | LOCK_NB); }) == 0;
}

// Returns false with errno set.
bool TStoreLock::TryToTake()
{
    m_IsAlone = Lock(LOCK_EX);
    if (!m_IsAlone && (errno != EWOULDBLOCK || !Lock(LOCK_SH)))
        return false;
    // The last holder may have removed the file before it was locked here. An exclusive holder may have ended between
    // the two attempts, before it had prepared the file for sharing. In both cases the caller tries again.
    DurableFiles::tagIdentity file;
    if (!IsStillThere() || !(m_IsAlone || FileInUse(&file))) {
        errno = EWOULDBLOCK;
        return false;
    }
    m_IsOwn = !HasOtherName(m_File);
    if (m_IsAlone && !m_IsOwn) {
        errno = EMLINK;
        return false;
    }
    m_WasLeftBehind = m_IsAlone && !Note().isEmpty();
    const off_t remainder = m_WasLeftBehind ? 1 : 0; // seen when this program is killed too, and no complete note
    return !m_IsAlone || Uninterrupted([&] { return ftruncate(m_File, remainder); }) == 0;
}

bool TStoreLock::Share(const DurableFiles::tagIdentity& file, QString* reason)
{
    const QByteArray note = QByteArray::number(static_cast<qulonglong>(file.device)) + Separator +
                            QByteArray::number(static_cast<qulonglong>(file.number)) + End;
    if (!WriteAllAt(m_File, note.constData(), static_cast<std::size_t>(note.size()), 0)) {
        *reason = DurableFiles::SystemReason(QLatin1String("cannot write"), m_Path);
        return false;
    }
    // flock() does not promise that the change is atomic: another process may have taken the lock exclusively.
    DurableFiles::tagIdentity noted;
    m_IsAlone = false;
    if (Lock(LOCK_SH) && IsStillThere() && FileInUse(&noted) && noted == file)
        return true;
    Drop();
    return false;
}

void TStoreLock::MarkChanged()
{
    // Every holder writes the same bytes to the same place. Without the mark, the good copy is older than it could be.
    const int place = static_cast<int>(Note().indexOf(End)) + 1;
    [[maybe_unused]] const bool isMarked = m_IsOwn && place > 0 && WriteAllAt(m_File, Mark, sizeof Mark - 1, place);
}

bool TStoreLock::IsMarkedChanged() const { return Note().endsWith(Mark); }

QByteArray TStoreLock::Note() const
{
    QByteArray note(128, '\0');
    const ssize_t length =
        Uninterrupted([&] { return pread(m_File, note.data(), static_cast<std::size_t>(note.size()), 0); });
    note.truncate(static_cast<int>(std::max(length, ssize_t{0})));
    return note;
}

bool TStoreLock::FileInUse(DurableFiles::tagIdentity* file) const
{
    const QByteArray note = Note();
    if (!note.contains(End))
        return false;
    const QList<QByteArray> numbers = note.left(note.indexOf(End)).split(Separator);
    bool isDevice = false;
    bool isNumber = false;
    *file = {static_cast<dev_t>(numbers.first().toULongLong(&isDevice)),
             static_cast<ino_t>(numbers.last().toULongLong(&isNumber))};
    return numbers.size() == 2 && isDevice && isNumber;
}

// Two holders that leave at the same time must not each find the lock held by the other, so each releases it before it
// tries. A new user that takes the lock in between does not depend on what the last holder does.
bool TStoreLock::TakeAlone()
{
    if (m_File >= 0) {
        flock(m_File, LOCK_UN);
        m_IsAlone = Lock(LOCK_EX) && IsStillThere();
        if (!m_IsAlone)
            Drop();
    }
    return m_IsAlone;
}

bool TStoreLock::IsStillThere() const
{
    struct stat status;
    DurableFiles::tagIdentity named;
    return fstat(m_File, &status) == 0 && DurableFiles::Identify(m_Path, &named) &&
           named == DurableFiles::tagIdentity{status.st_dev, status.st_ino};
}

void TStoreLock::Drop()
{
    if (m_File >= 0)
        close(m_File);
    m_File = -1;
    m_IsAlone = false;
}
