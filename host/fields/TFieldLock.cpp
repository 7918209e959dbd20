#include "fields/TFieldLock.h"

#include "platform/Uninterrupted.h"
#include "stores/DurableFiles.h"

#include <QElapsedTimer>
#include <QThread>

#include <cerrno>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace {

const unsigned long PauseMs = 20;

} // namespace

TFieldLock::TFieldLock(const QString& clients, EKind kind, int patienceMs) : m_Folder(-1)
{
    const QByteArray path = clients.toUtf8();
    m_Folder = Uninterrupted([&] { return open(path.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC); });
    if (m_Folder < 0) {
        m_Reason = DurableFiles::SystemReason(QLatin1String("cannot open"), clients);
        return;
    }
    QElapsedTimer timer;
    timer.start();
    const int operation = (kind == SHARED ? LOCK_SH : LOCK_EX) | LOCK_NB;
    while (Uninterrupted([&] { return flock(m_Folder, operation); }) != 0) {
        if (errno == EWOULDBLOCK && timer.elapsed() < patienceMs) {
            QThread::msleep(PauseMs);
            continue;
        }
        m_Reason = errno == EWOULDBLOCK ? QLatin1String("another program is working on the fields; try again later")
                                        : DurableFiles::SystemReason(QLatin1String("cannot lock"), clients);
        close(m_Folder);
        m_Folder = -1;
        return;
    }
}

TFieldLock::~TFieldLock()
{
    if (m_Folder >= 0)
        close(m_Folder);
}
