#include "coverage/TCoverageTally.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>
#include <unordered_map>

namespace {

constexpr int CellsPerSide = 64;          // of a tile: a row of it is one number
constexpr double FarthestPlace = 1000000; // metres
constexpr double LongestStrip = 1000;
constexpr std::uint64_t FullRow = ~std::uint64_t(0);

struct tagTile
{
    std::array<std::uint64_t, CellsPerSide> rows = {};
    int covered = 0; ///< cells
};
constexpr std::size_t MostTiles = TCoverageTally::MostBytes / sizeof(tagTile);

/// The cells of a row from @p begin to before @p end, of the whole plane.
struct tagSpan
{
    int begin;
    int end;
};

/// What a strip covers of one row of cells. A strip that crosses itself, in a tight turn, has two spans.
struct tagRow
{
    std::array<tagSpan, 2> spans;
    int count = 0;
};

bool IsUsable(const tagCoverageStrip& strip)
{
    const tagPlanePoint& first = strip.corners[0];
    return std::all_of(strip.corners.begin(), strip.corners.end(), [&](const tagPlanePoint& corner) {
        return std::abs(corner.east) <= FarthestPlace && std::abs(corner.north) <= FarthestPlace &&
               std::abs(corner.east - first.east) <= LongestStrip &&
               std::abs(corner.north - first.north) <= LongestStrip;
    });
}

tagPlanePoint Cells(const tagPlanePoint& place)
{
    return {place.east / TCoverageTally::CellSize, place.north / TCoverageTally::CellSize};
}

/// The first cell whose centre is at @p place or behind it.
int FirstCell(double place) { return static_cast<int>(std::ceil(place - 0.5)); }

/// Where the line of two corners crosses the height @p north; the same number whichever corner comes first, so that
/// strips that share an edge neither overlap nor leave a gap.
double Crossing(const tagPlanePoint& one, const tagPlanePoint& other, double north)
{
    const tagPlanePoint& low = one.north < other.north ? one : other;
    const tagPlanePoint& high = one.north < other.north ? other : one;
    return low.east + (north - low.north) / (high.north - low.north) * (high.east - low.east);
}

tagRow Covered(const std::array<tagPlanePoint, 4>& corners, int row)
{
    const double north = row + 0.5;
    std::array<double, 4> crossings;
    crossings.fill(std::numeric_limits<double>::infinity()); // sorted to the end
    std::size_t count = 0;
    for (std::size_t i = 0; i < corners.size(); ++i) {
        const tagPlanePoint& from = corners[i];
        const tagPlanePoint& to = corners[(i + 1) % corners.size()];
        if ((from.north <= north) != (to.north <= north))
            crossings[count++] = Crossing(from, to, north);
    }
    std::sort(crossings.begin(), crossings.end());
    tagRow result;
    for (std::size_t i = 0; i + 1 < count; i += 2) {
        const tagSpan span = {FirstCell(crossings[i]), FirstCell(crossings[i + 1])};
        if (span.begin < span.end)
            result.spans[static_cast<std::size_t>(result.count++)] = span;
    }
    return result;
}

int TileOf(int cell) { return cell >= 0 ? cell / CellsPerSide : (cell + 1) / CellsPerSide - 1; }

std::uint64_t Key(int column, int row)
{
    return (static_cast<std::uint64_t>(static_cast<std::uint32_t>(column)) << 32) | static_cast<std::uint32_t>(row);
}

/// The bits of a tile's row that a span of the plane covers; @p first is the tile's first cell.
std::uint64_t Bits(const tagSpan& span, int first)
{
    const int begin = std::max(span.begin - first, 0);
    const int end = std::min(span.end - first, CellsPerSide);
    if (begin >= end)
        return 0;
    return (FullRow >> (CellsPerSide - (end - begin))) << begin;
}

int Count(std::uint64_t bits) { return __builtin_popcountll(bits); }

tagPlanePoint Middle(const tagPlanePoint& one, const tagPlanePoint& other)
{
    return {(one.east + other.east) / 2, (one.north + other.north) / 2};
}

} // namespace

struct TCoverageTally::tagState
{
    /// The tile, or null when it is covered all over or there is no room for it; @p isFull tells which.
    tagTile* Tile(int column, int row, bool* isFull);
    void AddBand(const std::array<tagPlanePoint, 4>& corners, int firstRow, int lastRow);
    void AddToTile(int column, int firstRow, int rowCount);

    std::unordered_map<std::uint64_t, std::unique_ptr<tagTile>> tiles; ///< null: covered all over
    std::size_t partialTiles = 0;
    std::array<tagRow, CellsPerSide> band; ///< of one row of tiles
    std::int64_t covered = 0;              ///< cells
    double distance = 0;                   ///< metres
};

tagTile* TCoverageTally::tagState::Tile(int column, int row, bool* isFull)
{
    const std::uint64_t key = Key(column, row);
    const auto found = tiles.find(key);
    *isFull = found != tiles.end() && !found->second;
    if (found != tiles.end() || partialTiles >= MostTiles)
        return found != tiles.end() ? found->second.get() : nullptr;
    ++partialTiles;
    return tiles.emplace(key, std::make_unique<tagTile>()).first->second.get();
}

void TCoverageTally::tagState::AddToTile(int column, int firstRow, int rowCount)
{
    const int tileRow = TileOf(firstRow);
    const int firstCell = column * CellsPerSide;
    bool isFull = false;
    tagTile* tile = nullptr;
    for (int i = 0; i < rowCount; ++i) {
        std::uint64_t bits = 0;
        const tagRow& spans = band[static_cast<std::size_t>(i)];
        for (int span = 0; span < spans.count; ++span)
            bits |= Bits(spans.spans[static_cast<std::size_t>(span)], firstCell);
        if (bits == 0)
            continue;
        if (!tile) {
            tile = Tile(column, tileRow, &isFull);
            if (isFull)
                return;
        }
        if (!tile) { // no room: counted without looking for an overlap
            covered += Count(bits);
            continue;
        }
        std::uint64_t& row = tile->rows[static_cast<std::size_t>(firstRow + i - tileRow * CellsPerSide)];
        const int added = Count(bits & ~row);
        row |= bits;
        tile->covered += added;
        covered += added;
    }
    if (tile && tile->covered == CellsPerSide * CellsPerSide) {
        tiles[Key(column, tileRow)].reset();
        --partialTiles;
    }
}

void TCoverageTally::tagState::AddBand(const std::array<tagPlanePoint, 4>& corners, int firstRow, int lastRow)
{
    int least = std::numeric_limits<int>::max();
    int greatest = std::numeric_limits<int>::min();
    for (int row = firstRow; row <= lastRow; ++row) {
        tagRow& spans = band[static_cast<std::size_t>(row - firstRow)];
        spans = Covered(corners, row);
        for (int span = 0; span < spans.count; ++span) {
            least = std::min(least, spans.spans[static_cast<std::size_t>(span)].begin);
            greatest = std::max(greatest, spans.spans[static_cast<std::size_t>(span)].end - 1);
        }
    }
    if (least > greatest)
        return;
    for (int column = TileOf(least); column <= TileOf(greatest); ++column)
        AddToTile(column, firstRow, lastRow - firstRow + 1);
}

TCoverageTally::TCoverageTally() : m_State(std::make_unique<tagState>()) {}

TCoverageTally::~TCoverageTally() = default;

void TCoverageTally::Add(const tagCoverageStrip& strip)
{
    if (!IsUsable(strip))
        return;
    std::array<tagPlanePoint, 4> corners = {};
    std::transform(strip.corners.begin(), strip.corners.end(), corners.begin(), Cells);
    const auto range =
        std::minmax_element(corners.begin(), corners.end(), [](const tagPlanePoint& one, const tagPlanePoint& other) {
            return one.north < other.north;
        });
    const int last = FirstCell(range.second->north) - 1;
    for (int row = FirstCell(range.first->north); row <= last;) {
        const int lastOfTile = TileOf(row) * CellsPerSide + CellsPerSide - 1;
        m_State->AddBand(corners, row, std::min(last, lastOfTile));
        row = lastOfTile + 1;
    }

    const tagPlanePoint before = Middle(strip.corners[0], strip.corners[1]);
    const tagPlanePoint after = Middle(strip.corners[2], strip.corners[3]);
    m_State->distance += std::hypot(after.east - before.east, after.north - before.north);
}

void TCoverageTally::Clear() { m_State = std::make_unique<tagState>(); }

double TCoverageTally::Area() const { return static_cast<double>(m_State->covered) * CellSize * CellSize; }

double TCoverageTally::Distance() const { return m_State->distance; }
