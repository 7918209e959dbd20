#include "display/map/TStripIndex.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double SquareMetres = 64;

/// A strip is as long as the vehicle drives between two fixes. A longer one, of a receiver that was lost, is looked at
/// for every part of the field.
constexpr qint64 SquaresMost = 64;

struct tagSquares
{
    qint64 west;
    qint64 east;
    qint64 south;
    qint64 north;

    qint64 Count() const { return (east - west + 1) * (north - south + 1); }
};

tagSquares SquaresOf(double west, double east, double south, double north)
{
    const auto square = [](double metres) { return qint64(std::floor(metres / SquareMetres)); };
    return {square(west), square(east), square(south), square(north)};
}

quint64 Key(qint64 east, qint64 north) { return (quint64(quint32(east)) << 32) | quint32(north); }

double Distance(const tagMapStrip::tagPlace& a, const tagMapStrip::tagPlace& b)
{
    return std::hypot(double(b.east) - double(a.east), double(b.north) - double(a.north));
}

bool IsSame(const tagMapStrip::tagPlace& a, const tagMapStrip::tagPlace& b)
{
    return a.east == b.east && a.north == b.north;
}

/// Beyond these, places are no places; the map is good for 100 km around its origin.
bool IsPlace(const tagMapStrip::tagPlace& place)
{
    constexpr float Most = 1e7F;
    return std::abs(place.east) < Most && std::abs(place.north) < Most;
}

void Extend(std::vector<TStripIndex::tagRun>& runs, int strip)
{
    if (!runs.empty() && runs.back().last == strip)
        ++runs.back().last;
    else
        runs.push_back({strip, strip + 1});
}

} // namespace

void TStripIndex::Reset(const QVector<tagMapStrip>& strips)
{
    m_Squares.clear();
    m_Wide.clear();
    m_Travelled.clear();
    m_Travelled.reserve(std::size_t(strips.size()));
    Append(strips);
}

void TStripIndex::Append(const QVector<tagMapStrip>& strips)
{
    for (int index = int(m_Travelled.size()); index < strips.size(); ++index)
        Add(strips[index], index);
}

void TStripIndex::Add(const tagMapStrip& strip, int index)
{
    const double before = m_Travelled.empty() ? 0 : m_Travelled.back();
    if (!std::all_of(strip.corners.begin(), strip.corners.end(), IsPlace)) {
        m_Travelled.push_back(before);
        return;
    }
    const auto& [left, right, rightAfter, leftAfter] = strip.corners;
    m_Travelled.push_back(before + std::max(Distance(left, leftAfter), Distance(right, rightAfter)));

    const auto [west, east] = std::minmax({left.east, right.east, rightAfter.east, leftAfter.east});
    const auto [south, north] = std::minmax({left.north, right.north, rightAfter.north, leftAfter.north});
    const tagSquares squares = SquaresOf(double(west), double(east), double(south), double(north));
    if (squares.Count() > SquaresMost) {
        Extend(m_Wide, index);
        return;
    }
    for (qint64 x = squares.west; x <= squares.east; ++x)
        for (qint64 y = squares.south; y <= squares.north; ++y)
            Extend(m_Squares[Key(x, y)], index);
}

std::vector<TStripIndex::tagRun> TStripIndex::Within(const QRectF& ground) const
{
    std::vector<tagRun> found = m_Wide;
    const tagSquares squares = SquaresOf(ground.left(), ground.right(), ground.top(), ground.bottom());
    const auto take = [&found](const std::vector<tagRun>& runs) {
        found.insert(found.end(), runs.begin(), runs.end());
    };
    if (squares.Count() < qint64(m_Squares.size())) {
        for (qint64 x = squares.west; x <= squares.east; ++x) {
            for (qint64 y = squares.south; y <= squares.north; ++y) {
                const auto square = m_Squares.find(Key(x, y));
                if (square != m_Squares.end())
                    take(square->second);
            }
        }
    } else {
        for (const auto& [key, runs] : m_Squares) {
            const auto x = qint64(qint32(quint32(key >> 32)));
            const auto y = qint64(qint32(quint32(key)));
            if (x >= squares.west && x <= squares.east && y >= squares.south && y <= squares.north)
                take(runs);
        }
    }

    std::sort(found.begin(), found.end(), [](const tagRun& a, const tagRun& b) { return a.first < b.first; });
    std::vector<tagRun> merged;
    for (const tagRun& run : found) {
        if (!merged.empty() && run.first <= merged.back().last)
            merged.back().last = std::max(merged.back().last, run.last);
        else
            merged.push_back(run);
    }
    return merged;
}

int TStripIndex::Runs() const
{
    std::size_t runs = m_Wide.size();
    for (const auto& square : m_Squares)
        runs += square.second.size();
    return int(runs);
}

/// The strip begins where the one before it ends.
bool TStripIndex::Continues(const QVector<tagMapStrip>& strips, int strip)
{
    if (strip == 0)
        return false;
    const auto& before = strips[strip - 1].corners;
    const auto& corners = strips[strip].corners;
    return IsSame(before[3], corners[0]) && IsSame(before[2], corners[1]);
}

bool TStripIndex::EndsByStep(int strip, double step) const
{
    const auto index = std::size_t(strip);
    const double before = index == 0 ? 0 : m_Travelled[index - 1];
    return std::floor(m_Travelled[index] / step) > std::floor(before / step);
}

int TStripIndex::PieceStart(const QVector<tagMapStrip>& strips, int strip, double step) const
{
    while (strip > 0 && !EndsPiece(strips, strip - 1, step))
        --strip;
    return strip;
}

tagMapStrip TStripIndex::Piece(const QVector<tagMapStrip>& strips, int first, int last)
{
    const auto& start = strips[first].corners;
    const auto& end = strips[last].corners;
    return {{start[0], start[1], end[2], end[3]}};
}
