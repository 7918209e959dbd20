#include "serialization/TBinarySerializer.h"

#include <QtEndian>

#include <algorithm>

namespace {

/// Number of list elements that are read or written in one call.
const int BlockElements = 4096;

void WriteElements(QDataStream& stream, const int* elements, int count)
{
    int block[BlockElements];
    while (count > 0) {
        const int size = std::min(count, BlockElements);
        std::transform(elements, elements + size, block, [](int element) { return qToBigEndian(element); });
        stream.writeRawData(reinterpret_cast<const char*>(block), size * static_cast<int>(sizeof(int)));
        elements += size;
        count -= size;
    }
}

/// Number of whole elements left in the stream, but not more than @p most.
int ReadElements(QDataStream& stream, int* elements, int most)
{
    const int bytes = stream.readRawData(reinterpret_cast<char*>(elements), most * static_cast<int>(sizeof(int)));
    const int count = std::max(bytes, 0) / static_cast<int>(sizeof(int));
    std::transform(elements, elements + count, elements, [](int element) { return qFromBigEndian(element); });
    return count;
}

} // namespace

TBinarySerializer::TBinarySerializer(QIODevice* device) : m_Stream(device) {}

bool TBinarySerializer::atEnd() { return m_Stream.atEnd(); }

TSerializer& TBinarySerializer::operator<<(const unsigned int& value)
{
    m_Stream << value;
    return *this;
}

TSerializer& TBinarySerializer::operator<<(const int& value)
{
    m_Stream << value;
    return *this;
}

TSerializer& TBinarySerializer::operator<<(const float& value)
{
    m_Stream << value;
    return *this;
}

TSerializer& TBinarySerializer::operator<<(const double& value)
{
    m_Stream << value;
    return *this;
}

TSerializer& TBinarySerializer::operator<<(const bool& value)
{
    m_Stream << value;
    return *this;
}

TSerializer& TBinarySerializer::operator<<(const QString& value)
{
    m_Stream << value;
    return *this;
}

TSerializer& TBinarySerializer::operator<<(const QVector<int>& value)
{
    m_Stream << static_cast<quint32>(value.size());
    WriteElements(m_Stream, value.constData(), static_cast<int>(value.size()));
    return *this;
}

TSerializer& TBinarySerializer::operator<<(const QByteArray& value)
{
    m_Stream << value;
    return *this;
}

TSerializer& TBinarySerializer::operator>>(unsigned int& value)
{
    m_Stream >> value;
    return *this;
}

TSerializer& TBinarySerializer::operator>>(int& value)
{
    m_Stream >> value;
    return *this;
}

TSerializer& TBinarySerializer::operator>>(float& value)
{
    m_Stream >> value;
    return *this;
}

TSerializer& TBinarySerializer::operator>>(double& value)
{
    m_Stream >> value;
    return *this;
}

TSerializer& TBinarySerializer::operator>>(bool& value)
{
    m_Stream >> value;
    return *this;
}

TSerializer& TBinarySerializer::operator>>(QString& value)
{
    m_Stream >> value;
    return *this;
}

TSerializer& TBinarySerializer::operator>>(QVector<int>& value)
{
    quint32 claimed = 0;
    m_Stream >> claimed;

    // The list grows as it is read: a wrong length may stand for gigabytes that are not there.
    int count = 0;
    bool isShort = false;
    while (!isShort && static_cast<quint32>(count) < claimed) {
        const int wanted = static_cast<int>(std::min<quint32>(claimed - static_cast<quint32>(count), BlockElements));
        value.resize(count + wanted);
        const int read = ReadElements(m_Stream, value.data() + count, wanted);
        isShort = read < wanted;
        count += read;
    }
    value.resize(count); // also when an element was cut short
    if (claimed - static_cast<quint32>(count) <= MostMissingElements)
        value.resize(static_cast<int>(claimed));
    return *this;
}

TSerializer& TBinarySerializer::operator>>(QByteArray& value)
{
    m_Stream >> value;
    return *this;
}
