#include "nmea/TSerialSource.h"

TSerialSource::TSerialSource(const tagSerialAddress& address)
{
    m_Port.setPortName(address.device);
    m_Port.setBaudRate(address.baud); // the rest is as Qt has it: 8N1, no flow control
    connect(&m_Port, &QSerialPort::readyRead, this, [this] { Deliver(m_Port.readAll()); });
    // Later, when the port is done with it: it may be opened again only then.
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
    if (m_Port.isOpen()) // else closing is an error of its own
        m_Port.close();
}

void TSerialSource::OnError(QSerialPort::SerialPortError error)
{
    if (error != QSerialPort::NoError)
        Failed(m_Port.errorString());
}
