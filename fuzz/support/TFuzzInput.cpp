#include "support/TFuzzInput.h"

#include <QtEndian>

#include <algorithm>
#include <cstring>

namespace {

const int MostShortBytes = 255;
const int MostBytes = 65535;

template <class TNumber>
QByteArray LittleEndian(TNumber number)
{
    QByteArray bytes(static_cast<int>(sizeof number), '\0');
    qToLittleEndian(number, bytes.data());
    return bytes;
}

template <class TNumber>
TNumber FromLittleEndian(QByteArray bytes)
{
    while (bytes.size() < static_cast<int>(sizeof(TNumber)))
        bytes.append('\0');
    return qFromLittleEndian<TNumber>(bytes.constData());
}

} // namespace

QByteArray TFuzzInput::Take(int length)
{
    const QByteArray taken = m_Bytes.mid(m_At, length);
    m_At += static_cast<int>(taken.size());
    return taken;
}

unsigned char TFuzzInput::Byte() { return FromLittleEndian<quint8>(Take(1)); }

int TFuzzInput::Int() { return FromLittleEndian<qint32>(Take(sizeof(qint32))); }

double TFuzzInput::Double()
{
    const quint64 bits = FromLittleEndian<quint64>(Take(sizeof(quint64)));
    double number = 0;
    std::memcpy(&number, &bits, sizeof number);
    return number;
}

QByteArray TFuzzInput::Bytes() { return Take(FromLittleEndian<quint16>(Take(sizeof(quint16)))); }

TFuzzSeed& TFuzzSeed::Byte(int value) { return Rest(QByteArray(1, static_cast<char>(value))); }

TFuzzSeed& TFuzzSeed::Int(int value) { return Rest(LittleEndian<qint32>(value)); }

TFuzzSeed& TFuzzSeed::Double(double value)
{
    quint64 bits = 0;
    std::memcpy(&bits, &value, sizeof bits);
    return Rest(LittleEndian(bits));
}

TFuzzSeed& TFuzzSeed::ShortBytes(const QByteArray& bytes)
{
    const int size = std::min(static_cast<int>(bytes.size()), MostShortBytes);
    return Byte(size).Rest(bytes.left(size));
}

TFuzzSeed& TFuzzSeed::Bytes(const QByteArray& bytes)
{
    const int size = std::min(static_cast<int>(bytes.size()), MostBytes);
    return Rest(LittleEndian(static_cast<quint16>(size))).Rest(bytes.left(size));
}

TFuzzSeed& TFuzzSeed::Rest(const QByteArray& bytes)
{
    m_Bytes.append(bytes);
    return *this;
}
