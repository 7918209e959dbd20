#include "nmea/TSerialSource.h"

TSerialSource::TSerialSource(const tagSerialAddress& address)
{
    m_Port.setPortName(address.device);
    m_Port.setBaudRate(address.baud); // Qt's defaults for the rest: 8N1, no flow control
    connect(&m_Port, &QSerialPort::readyRead, this, [this] { Deliver(m_Port.readAll()); });
    // Queued: the port can be opened again only after its own slot has returned.
    connect(&m_Port, &QSerialPort::errorOccurred, this, &TSerialSource::OnError, Qt::QueuedConnection);
}

TSerialSource::~TSerialSource() { Close(); }

void TSerialSource::Connect()
{
    if (m_Port.open(QIODevice::ReadOnly))
        Made();
}

void TSerialSource::Disconnect()
{
    if (m_Port.isOpen()) // to close a closed port is an error
        m_Port.close();
}

void TSerialSource::OnError(QSerialPort::SerialPortError error)
{
    if (error != QSerialPort::NoError)
        Failed(m_Port.errorString());
}
