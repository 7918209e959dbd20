#pragma once

#include "nmea/NmeaAddress.h"
#include "nmea/TLinkSource.h"

#include <QSerialPort>

/// A receiver on a serial line.
class TSerialSource : public TLinkSource
{
    Q_OBJECT

public:
    explicit TSerialSource(const tagSerialAddress& address);
    ~TSerialSource() override;

private:
    void Connect() override;
    void Disconnect() override;
    void OnError(QSerialPort::SerialPortError error);

    QSerialPort m_Port;
};
