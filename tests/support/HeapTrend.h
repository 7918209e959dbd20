#pragma once

#include <cstddef>
#include <vector>

/// Memory that grows: a line through samples of the heap, with what the samples themselves say of their noise.
namespace HeapTrend {

/// Bytes of the heap in use, of all threads, also under a sanitizer. Freed memory that the heap keeps is not in it,
/// unlike in the resident memory, which rises to the most that was ever in use at a time and stays there in pieces.
std::size_t BytesInUse();

struct tagTrend
{
    double growth; ///< from the first sample to the last one, along the line; in the unit of the samples
    double noise;  ///< the standard error of the growth, in the same unit: bytes of samples in bytes
};

/// The line through the samples, which were taken at equal distances. Neighbours that depend on each other, such as
/// those taken while a cache was full, are averaged in few blocks first: the scatter of the blocks around the line is
/// the noise. Without as many samples as blocks, all is 0.
tagTrend Of(const std::vector<double>& samples);

/// The growth is more than noise. By chance alone it is once in a hundred thousand times.
bool IsGrowing(const tagTrend& trend);

} // namespace HeapTrend
