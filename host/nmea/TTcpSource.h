#pragma once

#include "nmea/NmeaAddress.h"
#include "nmea/TLinkSource.h"

#include <QTcpSocket>

/// A server that sends NMEA. One that turns out to be gpsd is asked to; its own answers come along with the stream.
/// A peer that is gone without a word, switched off or out of reach, is noticed within half a minute.
class TTcpSource : public TLinkSource
{
    Q_OBJECT

public:
    explicit TTcpSource(const tagTcpAddress& address);
    ~TTcpSource() override;

private:
    void Connect() override;
    void Disconnect() override;

    void OnConnected();
    void OnError();
    void OnReadyRead();
    bool CompletesGreeting(const QByteArray& bytes);

    const tagTcpAddress m_Address;
    QTcpSocket m_Socket;
    QByteArray m_Beginning; ///< of what the server sends, as far as it tells gpsd from others
    bool m_HostIsKnown;     ///< it has been found once: it exists
};
