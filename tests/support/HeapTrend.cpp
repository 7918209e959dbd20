#include "HeapTrend.h"

#include <cmath>
#include <malloc.h>
#include <numeric>

/// Only there with a sanitizer, which has a heap of its own.
extern "C" __attribute__((weak)) std::size_t __sanitizer_get_current_allocated_bytes();

namespace {

constexpr std::size_t Blocks = 8;

/// In standard errors, which have no unit. Student's distribution of as many blocks, less two for the line, has 0.00001
/// beyond it.
constexpr double NoiseAllowed = 12;

std::vector<double> BlockMeans(const std::vector<double>& samples)
{
    const std::size_t each = samples.size() / Blocks;
    const std::size_t first = samples.size() - each * Blocks;
    std::vector<double> means;
    for (std::size_t at = first; at < samples.size(); at += each) {
        const auto begin = samples.begin() + static_cast<std::ptrdiff_t>(at);
        means.push_back(std::accumulate(begin, begin + static_cast<std::ptrdiff_t>(each), 0.0) /
                        static_cast<double>(each));
    }
    return means;
}

} // namespace

std::size_t HeapTrend::BytesInUse()
{
    if (__sanitizer_get_current_allocated_bytes != nullptr)
        return __sanitizer_get_current_allocated_bytes();
    const struct mallinfo2 info = mallinfo2();
    return info.uordblks + info.hblkhd;
}

HeapTrend::tagTrend HeapTrend::Of(const std::vector<double>& samples)
{
    if (samples.size() < Blocks)
        return {0, 0};
    const std::vector<double> means = BlockMeans(samples);
    const auto count = static_cast<double>(Blocks);
    const double middle = (count - 1) / 2;
    const double mean = std::accumulate(means.begin(), means.end(), 0.0) / count;
    double across = 0;
    double along = 0;
    for (std::size_t block = 0; block < Blocks; ++block) {
        const double at = static_cast<double>(block) - middle;
        across += at * at;
        along += at * (means[block] - mean);
    }
    const double slope = along / across;
    double scatter = 0;
    for (std::size_t block = 0; block < Blocks; ++block) {
        const double off = means[block] - mean - slope * (static_cast<double>(block) - middle);
        scatter += off * off;
    }
    const double error = std::sqrt(scatter / (count - 2) / across);
    return {slope * count, error * count};
}

bool HeapTrend::IsGrowing(const tagTrend& trend) { return trend.growth > NoiseAllowed * trend.noise; }
