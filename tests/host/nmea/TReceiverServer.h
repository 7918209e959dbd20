#pragma once

#include "Deadline.h"

#include <QTcpServer>
#include <QTcpSocket>
#include <QtTest>

#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

#include <memory>

/// A server that sends NMEA, on a port of its own. It refuses everybody until it listens.
class TReceiverServer
{
public:
    TReceiverServer()
    {
        m_Fd = socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
        sockaddr_in address = {};
        address.sin_family = AF_INET;
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        socklen_t size = sizeof address;
        auto* anyAddress = reinterpret_cast<sockaddr*>(&address);
        if (bind(m_Fd, anyAddress, size) == 0 && getsockname(m_Fd, anyAddress, &size) == 0)
            m_Port = ntohs(address.sin_port);
    }

    ~TReceiverServer()
    {
        if (!m_Server.isListening())
            close(m_Fd);
    }
    TReceiverServer(const TReceiverServer&) = delete;
    TReceiverServer& operator=(const TReceiverServer&) = delete;

    quint16 Port() const { return m_Port; }

    bool Listen() { return listen(m_Fd, 8) == 0 && m_Server.setSocketDescriptor(m_Fd); }

    /// The next one who connects; nobody at the deadline.
    std::unique_ptr<QTcpSocket> Accept()
    {
        if (!QTest::qWaitFor([this] { return m_Server.hasPendingConnections(); }, Deadline))
            return nullptr;
        std::unique_ptr<QTcpSocket> client(m_Server.nextPendingConnection());
        client->setParent(nullptr);
        return client;
    }

    /// Sends it to the last byte, after which letting go of the client is the end of the stream.
    static bool Send(QTcpSocket& client, const QByteArray& bytes)
    {
        client.write(bytes);
        return QTest::qWaitFor([&] { return client.bytesToWrite() == 0; }, Deadline);
    }

private:
    QTcpServer m_Server;
    int m_Fd;
    quint16 m_Port = 0;
};
