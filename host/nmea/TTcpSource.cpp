#include "nmea/TTcpSource.h"

#include <netinet/in.h>
#include <netinet/tcp.h>
#include <sys/socket.h>
#include <unistd.h>

namespace {

const qint64 BufferSize = 0x10000;

/// How gpsd greets every client, and the request for NMEA.
const char GpsdGreeting[] = R"({"class":"VERSION")";
const char GpsdRequest[] = "?WATCH={\"enable\":true,\"nmea\":true};\n";
const int GreetingLength = static_cast<int>(sizeof GpsdGreeting) - 1;

struct tagSocketOption
{
    int level;
    int name;
    int value;
};

/// Receivers send every second. After ten seconds of silence the system asks the peer for a sign of life; without an
/// answer the connection is lost within half a minute.
const tagSocketOption WatchPeer[] = {
    {SOL_SOCKET, SO_KEEPALIVE, 1},
    {IPPROTO_TCP, TCP_KEEPIDLE, 10}, // seconds
    {IPPROTO_TCP, TCP_KEEPINTVL, 5},
    {IPPROTO_TCP, TCP_KEEPCNT, 3},
};

} // namespace

TTcpSource::TTcpSource(const tagTcpAddress& address) : m_Address(address)
{
    m_Socket.setReadBufferSize(BufferSize);
    connect(&m_Attempt, &TTcpAttempt::Connected, this, &TTcpSource::OnConnected);
    connect(&m_Attempt, &TTcpAttempt::Failed, this, &TTcpSource::Failed);
    connect(&m_Socket, &QTcpSocket::readyRead, this, &TTcpSource::OnReadyRead);
    // Queued: the socket can be used again only after its own slot has returned.
    connect(&m_Socket, &QTcpSocket::errorOccurred, this, &TTcpSource::OnError, Qt::QueuedConnection);
}

TTcpSource::~TTcpSource() { Close(); }

void TTcpSource::Connect()
{
    m_Beginning.clear();
    m_Attempt.Begin(m_Address.host, m_Address.port);
}

void TTcpSource::Disconnect()
{
    m_Attempt.Cancel();
    m_Socket.abort();
}

void TTcpSource::OnConnected(int socket)
{
    for (const tagSocketOption& option : WatchPeer)
        setsockopt(socket, option.level, option.name, &option.value, sizeof option.value);
    if (!m_Socket.setSocketDescriptor(socket)) {
        close(socket);
        OnError();
        return;
    }
    Made();
}

void TTcpSource::OnError() { Failed(m_Socket.errorString()); }

void TTcpSource::OnReadyRead()
{
    const QByteArray bytes = m_Socket.readAll();
    if (CompletesGreeting(bytes))
        m_Socket.write(GpsdRequest);
    Deliver(bytes);
}

bool TTcpSource::CompletesGreeting(const QByteArray& bytes)
{
    if (m_Beginning.size() == GreetingLength)
        return false;
    m_Beginning += bytes.left(GreetingLength - m_Beginning.size());
    return m_Beginning == GpsdGreeting;
}
