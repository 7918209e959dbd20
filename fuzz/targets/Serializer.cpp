// The serializer, reading any bytes as any sequence of types.

#include "serialization/TBinarySerializer.h"
#include "support/FuzzTarget.h"
#include "support/TFuzzInput.h"

#include <QBuffer>

namespace {

const int MostValues = 64;

enum EType : int
{
    TYPE_UNSIGNED,
    TYPE_INT,
    TYPE_FLOAT,
    TYPE_DOUBLE,
    TYPE_BOOL,
    TYPE_STRING,
    TYPE_INTS,
    TYPE_BYTES,
    TYPE_BLOCK,
    TYPE_COUNT,
};

/// Moves one value from one serializer to another.
template <class T>
void Copy(TSerializer& from, TSerializer& to)
{
    T value = {};
    from >> value;
    to << value;
}

void CopyInts(TSerializer& from, TSerializer& to, int size)
{
    QVector<int> values;
    from >> values;
    Expect(values.size() <= size / static_cast<int>(sizeof(int)) + TBinarySerializer::MostMissingElements,
           "a list has no more elements than there are, and those that may be missing");
    to << values;
}

void CopyBlock(TSerializer& from, TSerializer& to)
{
    const unsigned untouched = 0x1234567;
    unsigned version = untouched;
    if (from.readStartOfDataBlock(version))
        to.writeStartOfDataBlock(version);
}

bool IsBlock(char type) { return static_cast<unsigned char>(type) % TYPE_COUNT == TYPE_BLOCK; }

/// Reads what @p types name, and writes it again.
QByteArray Rewritten(QByteArray bytes, const QByteArray& types)
{
    QByteArray written;
    QBuffer input(&bytes);
    QBuffer output(&written);
    input.open(QIODevice::ReadOnly);
    output.open(QIODevice::WriteOnly);
    TBinarySerializer from(&input);
    TBinarySerializer to(&output);
    for (const char type : types) {
        switch (static_cast<unsigned char>(type) % TYPE_COUNT) {
        case TYPE_UNSIGNED:
            Copy<unsigned>(from, to);
            break;
        case TYPE_INT:
            Copy<int>(from, to);
            break;
        case TYPE_FLOAT:
            Copy<float>(from, to);
            break;
        case TYPE_DOUBLE:
            Copy<double>(from, to);
            break;
        case TYPE_BOOL:
            Copy<bool>(from, to);
            break;
        case TYPE_STRING:
            Copy<QString>(from, to);
            break;
        case TYPE_INTS:
            CopyInts(from, to, static_cast<int>(bytes.size()));
            break;
        case TYPE_BYTES:
            Copy<QByteArray>(from, to);
            break;
        default:
            CopyBlock(from, to);
        }
    }
    Expect(from.atEnd() == (input.pos() == input.size()), "the end is where nothing is left");
    return written;
}

void Check(const QByteArray& bytes)
{
    TFuzzInput input(bytes);
    QByteArray types = input.ShortBytes().left(MostValues);
    const QByteArray content = input.Rest();
    Rewritten(content, types);
    // What is no block is not written again, so that it would not read back.
    for (char& type : types)
        type = IsBlock(type) ? char(TYPE_INT) : type;
    const QByteArray written = Rewritten(content, types);
    // A signalling NaN becomes a quiet one in a float, so the second writing is the one that stays.
    const QByteArray again = Rewritten(written, types);
    Expect(Rewritten(again, types) == again, "what was written reads back the same");
}

QList<QByteArray> Seeds()
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    TBinarySerializer serializer(&buffer);
    serializer << 7U << -3 << 1.5F << 2.25 << true << QString::fromLatin1("Smith") << QVector<int>{1, 2, 3}
               << QByteArray("raw");
    const QByteArray types("\0\1\2\3\4\5\6\7", 8);
    QByteArray block;
    QBuffer blockBuffer(&block);
    blockBuffer.open(QIODevice::WriteOnly);
    TBinarySerializer(&blockBuffer).writeStartOfDataBlock(2);
    return {TFuzzSeed().ShortBytes(types).Rest(bytes), TFuzzSeed().ShortBytes("\x8\x5\x6").Rest(block + bytes),
            TFuzzSeed().ShortBytes("\6").Rest(QByteArray("\xff\xff\xff\xff\0\0\0\1", 8)),
            TFuzzSeed().ShortBytes("\5").Rest(QByteArray("\0\0\0\3abc", 7))};
}

} // namespace

namespace FuzzTargets {

tagFuzzTarget Serializer() { return {"Serializer", Check, Seeds}; }

} // namespace FuzzTargets
