#pragma once

#include "nmea/NmeaAddress.h"
#include "nmea/TLinkSource.h"
#include "nmea/TTcpAttempt.h"

#include <QTcpSocket>

/// A server that sends NMEA. gpsd, which is known by its greeting, is asked for NMEA; its answers are part of the
/// stream. A peer that is switched off or out of reach is noticed within half a minute.
class TTcpSource : public TLinkSource
{
    Q_OBJECT

public:
    explicit TTcpSource(const tagTcpAddress& address);
    ~TTcpSource() override;

private:
    void Connect() override;
    void Disconnect() override;

    void OnConnected(int socket);
    void OnError();
    void OnReadyRead();
    bool CompletesGreeting(const QByteArray& bytes);

    const tagTcpAddress m_Address;
    TTcpAttempt m_Attempt;
    QTcpSocket m_Socket;
    QByteArray m_Beginning; ///< the first bytes of the connection, as many as the greeting has
};
