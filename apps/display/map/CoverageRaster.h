#pragma once

#include <QPointF>

#include <array>
#include <cstddef>
#include <vector>

/// How much of each pixel of a tile is covered, 0 to 255. Quadrangles add up to 255, so that the order in which they
/// are added does not matter, and neighbours that share an edge leave no gap.
///
///     TCoverageRaster covered(256);
///     covered.Add({QPointF(10, 10), QPointF(40, 10), QPointF(40, 20), QPointF(10, 20)});
///     const uchar value = covered.Row(15)[20]; // 255
class TCoverageRaster
{
public:
    explicit TCoverageRaster(int size) : m_Size(size) {}

    /// Adds the exact area of the quadrangle to each pixel; where its sides cross, both halves count. Memory is taken
    /// with the first one that touches the tile. False: the quadrangle lies outside.
    bool Add(const std::array<QPointF, 4>& corners);

    /// Null while nothing was added.
    const unsigned char* Row(int y) const
    {
        return m_Covered.empty() ? nullptr : m_Covered.data() + std::size_t(y) * std::size_t(m_Size);
    }
    std::size_t Bytes() const { return m_Covered.size(); }

    bool operator==(const TCoverageRaster& other) const { return m_Covered == other.m_Covered; }

private:
    int m_Size;
    std::vector<unsigned char> m_Covered;
};
