#include "nmea/TTcpAttempt.h"

#include "stores/DurableFiles.h"

#include <algorithm>
#include <cerrno>
#include <iterator>
#include <utility>

#include <netdb.h>
#include <sys/socket.h>
#include <unistd.h>

namespace {

const int PatienceMs = 30000;

/// In the words of QTcpSocket, which tells of a connection that is lost later.
struct tagReason
{
    int error;
    const char* text;
};

constexpr tagReason Reasons[] = {
    {ECONNREFUSED, "Connection refused"}, {ECONNRESET, "The remote host closed the connection"},
    {EHOSTUNREACH, "Host unreachable"},   {ENETUNREACH, "Network unreachable"},
    {ETIMEDOUT, "Connection timed out"},
};

QString Reason(int error)
{
    const auto row = std::find_if(std::begin(Reasons), std::end(Reasons),
                                  [error](const tagReason& reason) { return reason.error == error; });
    return row != std::end(Reasons) ? QString::fromLatin1(row->text) : DurableFiles::SystemText(error);
}

} // namespace

TTcpAttempt::TTcpAttempt()
{
    m_Patience.setSingleShot(true);
    m_Patience.setInterval(PatienceMs);
    connect(&m_Patience, &QTimer::timeout, this, [this] { GiveUp(ETIMEDOUT); });
}

TTcpAttempt::~TTcpAttempt()
{
    m_Notifier.reset(); // no event loop may be there to delete it later
    Cancel();
}

void TTcpAttempt::Begin(const QString& host, quint16 port)
{
    Cancel();
    m_Port = port;
    const QHostAddress address(host);
    if (address.isNull()) {
        m_LookUp = QHostInfo::lookupHost(host, this, SLOT(OnFound(QHostInfo)));
        return;
    }
    m_Addresses = {address};
    TryNext();
}

void TTcpAttempt::Cancel()
{
    if (m_LookUp >= 0)
        QHostInfo::abortHostLookup(std::exchange(m_LookUp, -1));
    m_Addresses.clear();
    Close();
}

void TTcpAttempt::OnFound(const QHostInfo& info)
{
    if (info.lookupId() != m_LookUp) // of an attempt that was cancelled
        return;
    m_LookUp = -1;
    m_Reason = QLatin1String("Host not found"); // when there is no address
    m_Addresses = info.addresses();
    TryNext();
}

void TTcpAttempt::TryNext()
{
    while (!m_Addresses.isEmpty()) {
        if (IsBegun(m_Addresses.takeFirst()))
            return;
        m_Reason = Reason(errno);
        Close();
    }
    emit Failed(m_Reason);
}

/// Returns false with errno set.
bool TTcpAttempt::IsBegun(const QHostAddress& address)
{
    addrinfo hints = {};
    hints.ai_flags = AI_NUMERICHOST | AI_NUMERICSERV;
    hints.ai_socktype = SOCK_STREAM;
    addrinfo* found = nullptr;
    if (getaddrinfo(address.toString().toLatin1().constData(), QByteArray::number(m_Port).constData(), &hints,
                    &found) != 0) {
        errno = EHOSTUNREACH; // an interface that there is not
        return false;
    }
    m_Socket = socket(found->ai_family, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0);
    const bool isBegun =
        m_Socket >= 0 && (::connect(m_Socket, found->ai_addr, found->ai_addrlen) == 0 || errno == EINPROGRESS);
    const int error = errno;
    freeaddrinfo(found);
    errno = error;
    if (!isBegun)
        return false;
    m_Notifier = std::make_unique<QSocketNotifier>(m_Socket, QSocketNotifier::Write);
    QObject::connect(m_Notifier.get(), &QSocketNotifier::activated, this, &TTcpAttempt::OnAnswer);
    m_Patience.start();
    return true;
}

void TTcpAttempt::OnAnswer()
{
    int error = 0;
    socklen_t size = sizeof error;
    if (getsockopt(m_Socket, SOL_SOCKET, SO_ERROR, &error, &size) != 0)
        error = errno;
    if (error != 0) {
        GiveUp(error);
        return;
    }
    const int made = std::exchange(m_Socket, -1);
    Cancel();
    emit Connected(made);
}

void TTcpAttempt::GiveUp(int error)
{
    m_Reason = Reason(error);
    Close();
    TryNext();
}

void TTcpAttempt::Close()
{
    m_Patience.stop();
    if (m_Notifier) {
        m_Notifier->setEnabled(false);
        m_Notifier.release()->deleteLater(); // this may be its signal
    }
    if (m_Socket >= 0)
        close(m_Socket);
    m_Socket = -1;
}
