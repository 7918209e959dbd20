#include "blocks/DataBlock.h"

#include "serialization/TBinarySerializer.h"

#include <QBuffer>
#include <QtEndian>

#include <array>

namespace {

constexpr char Marker[] = "\xFE\xED\xBA\xAC";
constexpr int MarkerBytes = 4;
constexpr int ChecksumBytes = 4;

constexpr std::array<quint32, 256> ChecksumTable()
{
    const quint32 polynomial = 0xEDB88320;
    std::array<quint32, 256> table = {};
    for (quint32 byte = 0; byte < table.size(); ++byte) {
        quint32 rest = byte;
        for (int bit = 0; bit < 8; ++bit)
            rest = (rest & 1) != 0 ? (rest >> 1) ^ polynomial : rest >> 1;
        table[byte] = rest;
    }
    return table;
}

constexpr std::array<quint32, 256> Table = ChecksumTable();

unsigned Checksum(const char* bytes, qint64 count)
{
    quint32 sum = 0xFFFFFFFF;
    for (qint64 i = 0; i < count; ++i)
        sum = (sum >> 8) ^ Table[(sum ^ static_cast<unsigned char>(bytes[i])) & 0xFF];
    return sum ^ 0xFFFFFFFF;
}

} // namespace

QByteArray DataBlock::Framed(unsigned version, const QByteArray& payload)
{
    QByteArray bytes;
    bytes.reserve(payload.size() + FrameBytes);
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    TBinarySerializer serializer(&buffer);
    serializer.writeStartOfDataBlock(version);
    serializer << payload;
    serializer << Checksum(bytes.constData(), bytes.size());
    return bytes;
}

bool DataBlock::IsBlock(const QByteArray& bytes, int at, unsigned* version)
{
    if (QByteArray::fromRawData(bytes.constData() + at, static_cast<int>(bytes.size()) - at)
            .startsWith(QByteArray::fromRawData(Marker, MarkerBytes))) {
        if (bytes.size() - at >= MarkerBytes * 2)
            *version = qFromBigEndian<quint32>(bytes.constData() + at + MarkerBytes);
        return true;
    }
    return false;
}

qint64 DataBlock::ClaimedBytes(const QByteArray& bytes, int at)
{
    if (bytes.size() - at < BytesBeforePayload)
        return -1;
    return qFromBigEndian<quint32>(bytes.constData() + at + BytesBeforePayload - 4);
}

bool DataBlock::Take(const QByteArray& bytes, int* at, tagBlock* block)
{
    const qint64 claimed = ClaimedBytes(bytes, *at);
    if (claimed < 0 || claimed > bytes.size() - *at - FrameBytes)
        return false;
    const int length = static_cast<int>(claimed) + FrameBytes;
    QByteArray whole = QByteArray::fromRawData(bytes.constData() + *at, length);
    QBuffer buffer(&whole);
    buffer.open(QIODevice::ReadOnly);
    TBinarySerializer serializer(&buffer);
    if (!serializer.readStartOfDataBlock(block->version))
        return false;
    unsigned sum = 0;
    serializer >> block->payload >> sum;
    if (sum != Checksum(whole.constData(), length - ChecksumBytes))
        return false;
    *at += length;
    return true;
}

int DataBlock::Find(const QByteArray& bytes, int from)
{
    const QByteArray marker = QByteArray::fromRawData(Marker, MarkerBytes);
    tagBlock block;
    for (auto at = bytes.indexOf(marker, from); at >= 0; at = bytes.indexOf(marker, at + 1)) {
        int end = static_cast<int>(at);
        if (Take(bytes, &end, &block))
            return static_cast<int>(at);
    }
    return -1;
}
