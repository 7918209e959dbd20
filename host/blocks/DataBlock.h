#pragma once

#include <QByteArray>

/// Blocks of the library's serializer that show whether they are whole: the header with the version, the length of the
/// payload, the payload, and a checksum of all that. Files consist of one block or of several, one behind the other.
///
/// | Bytes | What                                           |
/// |-------|------------------------------------------------|
/// | 4     | marker FE ED BA AC                             |
/// | 4     | version                                        |
/// | 4     | length of the payload                          |
/// |       | payload                                        |
/// | 4     | CRC-32 of everything before it, as ZIP has it  |
///
/// Numbers have their most significant byte first.
namespace DataBlock {

/// Number of bytes beside the payload, and how many of them are before it.
constexpr int FrameBytes = 16;
constexpr int BytesBeforePayload = 12;

struct tagBlock
{
    unsigned version = 0;
    QByteArray payload;
};

QByteArray Framed(unsigned version, const QByteArray& payload);

/// Whether @p bytes begin at @p at with the marker of a block. Its version is then in @p version, if it is there.
bool IsBlock(const QByteArray& bytes, int at, unsigned* version);

/// The length of the payload that the block at @p at claims; -1 when its header is cut off.
qint64 ClaimedBytes(const QByteArray& bytes, int at);

/// Takes the block at @p at, and moves @p at behind it. Returns false, with @p at unchanged, when there is no block, or
/// not the whole one, or its checksum is wrong.
bool Take(const QByteArray& bytes, int* at, tagBlock* block);

/// The place of the first whole block from @p from on; -1 when there is none.
int Find(const QByteArray& bytes, int from);

} // namespace DataBlock
