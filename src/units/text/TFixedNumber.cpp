#include "units/text/TFixedNumber.h"

#include "platform/QtCompat.h"

#include <algorithm>
#include <cstdint>
#include <cstring>

// A double is an integer of 53 bits times a power of two. The part behind the point is kept as an integer in units of
// 2^-60. A multiplication by ten moves the next digit into the four bits above these 60. Nothing is lost, so the rest
// behind the last decimal, compared with one half, decides how to round. All arithmetic is on integers: some processors
// calculate with more digits than a double has.

namespace {

using std::uint32_t;
using std::uint64_t;

const int StandardDecimals = 6;       // of the number formatter, where no number of decimals is given
const int GreatestDecimals = 1000000; // a double has at most 1074 that are not zero
const int StoredBits = 52;            // of the 53; the first is always set
const int ExponentOfUnit = 1075;
const int FractionBits = 60;
const uint64_t SignBit = 1ULL << 63;
const uint64_t FirstBit = 1ULL << StoredBits;
const uint64_t FractionMask = (1ULL << FractionBits) - 1;

int BitsBehindPoint(uint64_t magnitude) { return ExponentOfUnit - static_cast<int>(magnitude >> StoredBits); }

/// Whether Rounded() can compute the digits of the double with these bits, without its sign: the whole part has at most
/// 31 bits, and the rest at most 60. A rest with more bits belongs to a value below 0.004, which is 0 with two
/// decimals.
bool IsOfEverydaySize(uint64_t magnitude, int decimals)
{
    const int bits = BitsBehindPoint(magnitude);
    return bits > StoredBits - 31 && (bits <= FractionBits || decimals <= 2 || magnitude == 0);
}

struct tagDigits
{
    uint32_t whole;
    uint32_t behindPoint; // the decimals as a number, with a leading 1 that keeps their zeros
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

/// The digits of 0 to 99, two each. They halve the number of divisions.
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

/// Writes the digits of @p number so that they end at @p end. Returns where they begin.
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
        // Qt 4.8 reads -2 as 4,294,967,294 decimals. Qt 5 reads -128 as a code for the shortest text.
        // With some 2^30 decimals and more, Qt runs out of the length of its texts and aborts.
        m_Other = QString::number(value, 'f', decimals < 0 ? StandardDecimals : std::min(decimals, GreatestDecimals));
        m_Begin = m_Other.constData();
        m_End = m_Begin + m_Other.size();
        return;
    }
    const tagDigits digits = Rounded(magnitude, decimals);
    QChar* const point = m_Room + PointAt;
    m_End = decimals > 0 ? point + 1 + decimals : point;
    WriteBefore(point + 1 + decimals, digits.behindPoint);
    *point = QLatin1Char('.'); // replaces the leading 1
    QChar* begin = WriteBefore(point, digits.whole);
    if (bits > SignBit) // Qt shows zero without a sign
        *--begin = QLatin1Char('-');
    m_Begin = begin;
}
