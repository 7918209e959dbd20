#include "nmea/TSerialSource.h"

namespace {

/// Not QSerialPort::errorString(), which is in the machine's language.
struct tagReason
{
    QSerialPort::SerialPortError error;
    const char* text;
};

constexpr tagReason Reasons[] = {
    {QSerialPort::DeviceNotFoundError, "no such device"},
    {QSerialPort::PermissionError, "no permission, or in use by another program"},
    {QSerialPort::OpenError, "it is open already"},
    {QSerialPort::ReadError, "it cannot be read"},
    {QSerialPort::ResourceError, "it was unplugged"},
    {QSerialPort::UnsupportedOperationError, "it is not a serial device, or does not take these settings"},
};

QString Reason(QSerialPort::SerialPortError error)
{
    for (const tagReason& reason : Reasons)
        if (reason.error == error)
            return QLatin1String(reason.text);
    return QString::fromLatin1("serial port error %1").arg(static_cast<int>(error));
}

} // namespace

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
        Failed(Reason(error));
}
