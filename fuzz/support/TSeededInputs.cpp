#include "support/TSeededInputs.h"

#include <algorithm>

namespace {

const int MostChanges = 5;
const int MostRandomBytes = 8;
const int MostPieceBytes = 64;
const int Bits = 8;

/// Where numbers end, in one to eight bytes and as text.
const char* const Ends[] = {"00",         "01",       "7f",       "80",       "ff",     "7fff",
                            "ffff",       "00000080", "ffffff7f", "ffffffff", "f07f",   "000000000000f07f",
                            "3939393939", "2d31",     "302e35",   "31653939", "6e616e", "696e66"};

enum EChange : int
{
    CHANGE_BIT,
    CHANGE_BYTE,
    CHANGE_END,    ///< the end of a range instead of what is there
    CHANGE_INSERT, ///< any bytes
    CHANGE_ERASE,
    CHANGE_REPEAT,  ///< a piece of the input once more
    CHANGE_SPLICE,  ///< a piece of another input, between
    CHANGE_REPLACE, ///< a piece of another input instead of what is there
    CHANGE_COUNT
};

/// Sizes are of another type with Qt 6.
template <class TList>
int Count(const TList& list)
{
    return static_cast<int>(list.size());
}

} // namespace

QByteArray TSeededInputs::Next(int most)
{
    if (!m_IsSorted)
        std::sort(m_Beginnings.begin(), m_Beginnings.end());
    m_IsSorted = true;
    QByteArray input = m_Beginnings.isEmpty() ? QByteArray() : m_Beginnings.at(Below(Count(m_Beginnings)));
    for (int changes = 1 + Below(MostChanges); changes > 0; --changes)
        Change(input);
    input.truncate(most);
    return input.isEmpty() ? QByteArray(1, '\0') : input;
}

/// From 0 to below @p end, which is positive.
int TSeededInputs::Below(int end) { return static_cast<int>(m_Random() % static_cast<unsigned>(end)); }

/// A piece of one of the inputs to begin with.
QByteArray TSeededInputs::Piece()
{
    if (m_Beginnings.isEmpty())
        return QByteArray();
    const QByteArray& from = m_Beginnings.at(Below(Count(m_Beginnings)));
    const int at = Below(Count(from) + 1);
    return from.mid(at, 1 + Below(MostPieceBytes));
}

void TSeededInputs::Change(QByteArray& input)
{
    const int size = Count(input);
    const int change = size > 0 ? Below(CHANGE_COUNT) : CHANGE_INSERT;
    const int at = Below(size + 1);
    const int byte = std::min(at, size - 1);
    switch (change) {
    case CHANGE_BIT:
        input[byte] = static_cast<char>(input.at(byte) ^ 1 << Below(Bits));
        break;
    case CHANGE_BYTE:
        input[byte] = static_cast<char>(Below(256));
        break;
    case CHANGE_END: {
        const QByteArray end = QByteArray::fromHex(Ends[Below(static_cast<int>(std::size(Ends)))]);
        input.replace(at, end.size(), end);
        break;
    }
    case CHANGE_INSERT:
        for (int count = 1 + Below(MostRandomBytes); count > 0; --count)
            input.insert(at, static_cast<char>(Below(256)));
        break;
    case CHANGE_ERASE:
        input.remove(at, 1 + Below(MostPieceBytes));
        break;
    case CHANGE_REPEAT: {
        const int length = 1 + Below(MostPieceBytes); // before its place is drawn, whatever the compiler
        input.insert(at, input.mid(Below(size), length));
        break;
    }
    case CHANGE_SPLICE:
        input.insert(at, Piece());
        break;
    case CHANGE_REPLACE: {
        const QByteArray piece = Piece();
        input.replace(at, piece.size(), piece);
        break;
    }
    }
}
