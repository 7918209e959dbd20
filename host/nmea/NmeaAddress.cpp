#include "nmea/NmeaAddress.h"

#include <QHostAddress>
#include <QRegularExpression>
#include <QStringList>

#include <algorithm>
#include <iterator>

namespace {

const int GreatestPort = 65535;

/// The first is the standard's own rate, with which receivers are delivered.
const int BaudRates[] = {4800, 9600, 19200, 38400, 57600, 115200, 230400, 460800, 921600};

std::optional<NmeaAddress> ReadTcp(const QString& text)
{
    static const QRegularExpression form(QLatin1String(R"(^//(?:\[([^\]]+)\]|([^][/?#:@%\s]+)):(\d{1,5})/?\z)"));
    const QRegularExpressionMatch match = form.match(text);
    const int port = match.captured(3).toInt();
    const QString number = match.captured(1);
    if (!match.hasMatch() || port < 1 || port > GreatestPort)
        return std::nullopt;
    if (!number.isEmpty() && QHostAddress(number).protocol() != QAbstractSocket::IPv6Protocol)
        return std::nullopt;
    return tagTcpAddress{number + match.captured(2), static_cast<quint16>(port)};
}

std::optional<NmeaAddress> ReadSerial(const QString& text)
{
    static const QRegularExpression form(QLatin1String(R"(^//(/[^?]*[^?/])(?:\?baud=(\d{1,9}))?\z)"));
    const QRegularExpressionMatch match = form.match(text);
    const QString given = match.captured(2);
    const int baud = given.isEmpty() ? BaudRates[0] : given.toInt();
    if (!match.hasMatch() || std::find(std::begin(BaudRates), std::end(BaudRates), baud) == std::end(BaudRates))
        return std::nullopt;
    return tagSerialAddress{match.captured(1), baud};
}

std::optional<NmeaAddress> ReadUnknown(const QString&) { return std::nullopt; }

QString ExpectedTcp()
{
    return QString::fromLatin1("tcp://HOST:PORT with a port from 1 to %1 and an IPv6 address in brackets")
        .arg(GreatestPort);
}

QString ExpectedSerial()
{
    QStringList rates;
    for (const int rate : BaudRates)
        rates.append(QString::number(rate));
    return QString::fromLatin1("serial:///dev/NAME or serial:///dev/NAME?baud=N with N one of %1")
        .arg(rates.join(QLatin1String(", ")));
}

QString ExpectedAny()
{
    return QLatin1String("a file, - for standard input, tcp://HOST:PORT or serial:///dev/NAME?baud=N");
}

struct tagForm
{
    const char* beginning;
    std::optional<NmeaAddress> (*read)(const QString& rest);
    QString (*expected)();
};

/// What begins like none of these is a file.
const tagForm Forms[] = {
    {"tcp:", ReadTcp, ExpectedTcp},
    {"serial:", ReadSerial, ExpectedSerial},
    {"[a-z][a-z0-9+.-]*://", ReadUnknown, ExpectedAny},
};

} // namespace

std::optional<NmeaAddress> ReadNmeaAddress(const QString& text, QString* error)
{
    for (const tagForm& form : Forms) {
        const QRegularExpression beginning(QLatin1Char('^') + QLatin1String(form.beginning),
                                           QRegularExpression::CaseInsensitiveOption);
        const QRegularExpressionMatch match = beginning.match(text);
        if (!match.hasMatch())
            continue;
        auto address = form.read(text.mid(match.capturedLength()));
        if (!address)
            *error = QString::fromLatin1("invalid source \"%1\"; expected %2").arg(text, form.expected());
        return address;
    }
    return tagFileAddress{text};
}
