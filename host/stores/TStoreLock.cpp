#include "stores/TStoreLock.h"

#include "stores/DurableFiles.h"

#include <QDeadlineTimer>
#include <QThread>

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

const unsigned long PollMilliseconds = 20;

} // namespace

TStoreLock::TStoreLock(const QString& path) : m_Path(path), m_File(-1) {}

TStoreLock::~TStoreLock()
{
    if (m_File < 0)
        return;
    QString reason;
    if (IsStillThere())
        DurableFiles::Remove(m_Path, &reason); // one that stays does no harm: it is not locked
    Drop();
}

bool TStoreLock::Take(int milliseconds, QString* reason)
{
    const QDeadlineTimer deadline(milliseconds);
    for (;;) {
        m_File = open(m_Path.toUtf8().constData(), O_RDWR | O_CREAT | O_CLOEXEC, S_IRUSR | S_IWUSR | S_IRGRP | S_IROTH);
        if (m_File < 0) {
            *reason = DurableFiles::SystemReason(QLatin1String("cannot make"), m_Path);
            return false;
        }
        if (flock(m_File, LOCK_EX | LOCK_NB) == 0) {
            if (IsStillThere())
                return true;
            Drop(); // the one who held it has removed the file in between: try for the new one
            continue;
        }
        const bool isTaken = errno == EWOULDBLOCK || errno == EINTR;
        if (!isTaken || deadline.hasExpired()) {
            *reason = isTaken ? QString::fromLatin1("in use by another program: %1 is locked").arg(m_Path)
                              : DurableFiles::SystemReason(QLatin1String("cannot lock"), m_Path);
            Drop();
            return false;
        }
        Drop();
        QThread::msleep(PollMilliseconds);
    }
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
    close(m_File);
    m_File = -1;
}
