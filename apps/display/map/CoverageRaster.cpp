#include "display/map/CoverageRaster.h"

#include <algorithm>
#include <cmath>

namespace {

/// A part of the tile, in which the sides of one quadrangle leave what they change from one pixel to the next.
struct tagWindow
{
    int left;
    int top;
    int width;
    int height;
    std::vector<float>& changes; ///< two more in a row than the width

    float* Row(int y) const { return changes.data() + std::ptrdiff_t(y) * (width + 2); }
};

/// One side of the quadrangle within one row, of the height dy. The part left of the window covers whole rows.
void AddToRow(float* row, int width, float from, float to, float dy)
{
    if (from > to)
        std::swap(from, to);
    const auto right = float(width);
    if (to <= 0) {
        row[0] += dy;
        return;
    }
    if (from >= right)
        return;
    if (from < 0) {
        const float outside = -from / (to - from);
        row[0] += dy * outside;
        dy *= 1 - outside;
        from = 0;
    }
    if (to > right) {
        dy *= (right - from) / (to - from);
        to = right;
    }

    const int first = int(from);
    const int end = int(std::ceil(to));
    if (end <= first + 1) {
        const float middle = (from + to) / 2 - float(first);
        row[first] += dy * (1 - middle);
        row[first + 1] += dy * middle;
        return;
    }
    // The area right of the side grows with the square in the first and the last pixel, and evenly between them.
    const float slope = 1 / (to - from);
    const float inFirst = float(first) + 1 - from;
    const float inLast = to - float(end - 1);
    float before = slope * inFirst * inFirst / 2;
    row[first] += dy * before;
    for (int pixel = first + 1; pixel < end - 1; ++pixel) {
        const float area = slope * (inFirst + float(pixel - first) - 0.5F);
        row[pixel] += dy * (area - before);
        before = area;
    }
    const float last = 1 - slope * inLast * inLast / 2;
    row[end - 1] += dy * (last - before);
    row[end] += dy * (1 - last);
}

void AddSide(const tagWindow& window, const QPointF& from, const QPointF& to)
{
    if (from.y() == to.y())
        return;
    const bool isDown = from.y() < to.y();
    const QPointF& upper = isDown ? from : to;
    const QPointF& lower = isDown ? to : from;
    const double perRow = (lower.x() - upper.x()) / (lower.y() - upper.y());
    const double top = std::max(upper.y() - window.top, 0.0);
    const double bottom = std::min(lower.y() - window.top, double(window.height));
    for (int y = int(top); y < bottom; ++y) {
        const double start = std::max(double(y), top);
        const double end = std::min(double(y + 1), bottom);
        const double x = upper.x() - window.left + (start + window.top - upper.y()) * perRow;
        const auto height = float(end - start);
        AddToRow(window.Row(y), window.width, float(x), float(x + (end - start) * perRow), isDown ? height : -height);
    }
}

} // namespace

bool TCoverageRaster::Add(const std::array<QPointF, 4>& corners)
{
    // False of what is not a number, too.
    constexpr double FarthestPixel = 1e9;
    for (const QPointF& corner : corners)
        if (!(std::abs(corner.x()) < FarthestPixel && std::abs(corner.y()) < FarthestPixel))
            return false;
    const auto [west, east] = std::minmax({corners[0].x(), corners[1].x(), corners[2].x(), corners[3].x()});
    const auto [north, south] = std::minmax({corners[0].y(), corners[1].y(), corners[2].y(), corners[3].y()});
    if (east <= 0 || south <= 0 || west >= m_Size || north >= m_Size)
        return false;
    if (m_Covered.empty())
        m_Covered.resize(std::size_t(m_Size) * std::size_t(m_Size));

    thread_local std::vector<float> changes;
    const int left = int(std::max(west, 0.0));
    const int top = int(std::max(north, 0.0));
    const int width = int(std::ceil(std::min(east, double(m_Size)))) - left;
    const int height = int(std::ceil(std::min(south, double(m_Size)))) - top;
    const tagWindow window = {left, top, width, height, changes};
    changes.assign(std::size_t(width + 2) * std::size_t(height), 0.0F);
    for (std::size_t corner = 0; corner < corners.size(); ++corner)
        AddSide(window, corners[corner], corners[(corner + 1) % corners.size()]);

    for (int y = 0; y < height; ++y) {
        const float* change = window.Row(y);
        unsigned char* covered = m_Covered.data() + std::ptrdiff_t(top + y) * m_Size + left;
        float area = 0;
        for (int x = 0; x < width; ++x) {
            area += change[x];
            covered[x] = static_cast<unsigned char>(std::min(covered[x] + qRound(std::abs(area) * 255), 255));
        }
    }
    return true;
}
