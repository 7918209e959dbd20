#include "display/map/MapStyle.h"

namespace {

constexpr QColor DarkDetail(0x17, 0x1a, 0x1e);
constexpr QColor PaleDetail(0xd8, 0xcc, 0xb0); // nothing is white by night

} // namespace

QColor Mix(const QColor& first, const QColor& second, double part)
{
    const auto mix = [part](int from, int to) { return qRound(from + (to - from) * part); };
    return {mix(first.red(), second.red()), mix(first.green(), second.green()), mix(first.blue(), second.blue())};
}

QColor DetailOn(const QColor& ground)
{
    constexpr int Middle = 110;
    return qGray(ground.rgb()) > Middle ? DarkDetail : PaleDetail;
}
