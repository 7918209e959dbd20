#include "units/TFixedNumber.h"

#include "platform/QtCompat.h"

#include <cstdint>
#include <cstring>

// A double is a whole number of 53 bits times a power of two. Its part behind the point is held in units of 2^-60: the
// four bits above are room for the one digit that a multiplication by ten pushes out. Nothing is lost on the way, so
// what is left behind the last decimal tells, against one half, how to round. All of it is whole numbers: some
// processors calculate with more digits than a double holds.

namespace {

using std::uint32_t;
using std::uint64_t;

const int StandardDecimals = 6; // of the number formatter, where no number of decimals is given
const int StoredBits = 52;      // of the 53; the first is always set
const int ExponentOfUnit = 1075;
const int FractionBits = 60;
const uint64_t SignBit = 1ULL << 63;
const uint64_t FirstBit = 1ULL << StoredBits;
const uint64_t FractionMask = (1ULL << FractionBits) - 1;

int BitsBehindPoint(uint64_t magnitude) { return ExponentOfUnit - static_cast<int>(magnitude >> StoredBits); }

/// Whether the steps below hold for the double with these bits, its sign left out: the whole part, rounded up, has 31
/// bits, and the rest has 60. What has more is below 0.004, and 0 with up to two decimals.
bool IsOfEverydaySize(uint64_t magnitude, int decimals)
{
    const int bits = BitsBehindPoint(magnitude);
    return bits > StoredBits - 31 && (bits <= FractionBits || decimals <= 2 || magnitude == 0);
}

struct tagDigits
{
    uint32_t whole;
    uint32_t behindPoint; // as a number, with a 1 in front that keeps its zeros
};

tagDigits Rounded(uint64_t magnitude, int decimals)
{
    const int bits = BitsBehindPoint(magnitude);
    const uint64_t significand = (magnitude & (FirstBit - 1)) | FirstBit;
    const bool isSmall = bits > FractionBits;
    uint32_t whole = isSmall ? 0 : static_cast<uint32_t>(significand >> bits);
    uint64_t rest = isSmall ? 0 : significand << (FractionBits - bits) & FractionMask;
    uint32_t one = 1;
    uint32_t behindPoint = 0;
    for (int i = 0; i < decimals; ++i) {
        rest *= 10;
        behindPoint = behindPoint * 10 + static_cast<uint32_t>(rest >> FractionBits);
        rest &= FractionMask;
        one *= 10;
    }
    behindPoint += static_cast<uint32_t>(rest >> (FractionBits - 1));
    if (behindPoint == one) {
        behindPoint = 0;
        ++whole;
    }
    return {whole, one + behindPoint};
}

/// The digits of 0 to 99, two each: half the divisions of one by one.
struct tagPairs
{
    char digits[100][2];

    constexpr tagPairs() : digits()
    {
        for (unsigned i = 0; i < 100; ++i) {
            digits[i][0] = static_cast<char>('0' + i / 10);
            digits[i][1] = static_cast<char>('0' + i % 10);
        }
    }
};

constexpr tagPairs Pairs;

/// Writes the digits up to @p end, and tells where they begin.
QChar* WriteBefore(QChar* end, uint32_t number)
{
    QChar* begin = end;
    for (; number >= 10; number /= 100) {
        const char* const pair = Pairs.digits[number % 100];
        *--begin = QLatin1Char(pair[1]);
        *--begin = QLatin1Char(pair[0]);
    }
    if (number > 0 || begin == end)
        *--begin = QChar('0' + number);
    return begin;
}

} // namespace

TFixedNumber::TFixedNumber(double value, int decimals)
{
    uint64_t bits = 0;
    static_assert(sizeof bits == sizeof value, "a double has 64 bits");
    std::memcpy(&bits, &value, sizeof bits);
    const uint64_t magnitude = bits & ~SignBit;
    const bool isCounted = decimals >= 0 && decimals <= MostDecimals;
    if (!QtCompat::RoundsTiesAwayFromZero || !isCounted || !IsOfEverydaySize(magnitude, decimals)) {
        // Qt 4.8 takes a negative number of decimals for 4,294,967,294 of them, and Qt 5 takes -128 for a code.
        m_Other = QString::number(value, 'f', decimals < 0 ? StandardDecimals : decimals);
        m_Begin = m_Other.constData();
        m_End = m_Begin + m_Other.size();
        return;
    }
    const tagDigits digits = Rounded(magnitude, decimals);
    QChar* const point = m_Room + PointAt;
    m_End = decimals > 0 ? point + 1 + decimals : point;
    WriteBefore(point + 1 + decimals, digits.behindPoint);
    *point = QLatin1Char('.'); // in place of the 1
    QChar* begin = WriteBefore(point, digits.whole);
    if (bits > SignBit) // of zero, Qt shows no sign
        *--begin = QLatin1Char('-');
    m_Begin = begin;
}
