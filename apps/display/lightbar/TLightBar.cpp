#include "display/lightbar/TLightBar.h"

#include <QPainter>

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

// The middle segment is wider, so that it is found without counting.
constexpr double MiddleShare = 1.6;
constexpr double GapShare = 0.25;
constexpr double DimmestLevel = 0.25;

int LitSegments(double offLine)
{
    const double distance = std::abs(offLine);
    if (!(distance > TLightBar::SegmentMetres / 2))
        return 0;
    // The comparison comes before the conversion: a distance may be larger than an int.
    const double segments = std::ceil(distance / TLightBar::SegmentMetres);
    const int count = segments < TLightBar::SideSegments ? static_cast<int>(segments) : TLightBar::SideSegments;
    return offLine > 0 ? -count : count;
}

int Mix(int from, int to, double share) { return qRound(from + (to - from) * share); }

} // namespace

TLightBar::TLightBar(QQuickItem* parent)
    : QQuickPaintedItem(parent), m_OffLine(std::numeric_limits<double>::quiet_NaN())
{
    setAntialiasing(true);
}

void TLightBar::SetOffLine(double metres)
{
    if (metres == m_OffLine || (std::isnan(metres) && std::isnan(m_OffLine)))
        return;
    const bool hadLine = !std::isnan(m_OffLine);
    m_OffLine = metres;
    emit offLineChanged();
    const int lit = LitSegments(metres);
    if (lit == m_Lit && hadLine == !std::isnan(metres))
        return;
    m_Lit = lit;
    update();
    emit litChanged();
}

template <typename Value>
void TLightBar::Assign(Value& member, const Value& value)
{
    if (member == value)
        return;
    member = value;
    update();
    emit lookChanged();
}

void TLightBar::SetLevel(double level) { Assign(m_Level, std::clamp(level, 0.0, 1.0)); }
void TLightBar::SetCentreColor(const QColor& color) { Assign(m_CentreColor, color); }
void TLightBar::SetSideColor(const QColor& color) { Assign(m_SideColor, color); }
void TLightBar::SetDarkColor(const QColor& color) { Assign(m_DarkColor, color); }

QColor TLightBar::LitColor(const QColor& color) const
{
    const double share = DimmestLevel + (1 - DimmestLevel) * m_Level;
    return {Mix(m_DarkColor.red(), color.red(), share), Mix(m_DarkColor.green(), color.green(), share),
            Mix(m_DarkColor.blue(), color.blue(), share)};
}

void TLightBar::paint(QPainter* painter)
{
    painter->setPen(Qt::NoPen);
    painter->setRenderHint(QPainter::Antialiasing);
    const double step = width() / (2 * SideSegments + MiddleShare);
    const double gap = step * GapShare;
    double x = 0;
    for (int segment = -SideSegments; segment <= SideSegments; ++segment) {
        const double share = segment == 0 ? step * MiddleShare : step;
        const bool isLit = segment == 0 ? !std::isnan(m_OffLine)
                                        : (segment > 0) == (m_Lit > 0) && std::abs(segment) <= std::abs(m_Lit);
        painter->setBrush(isLit ? LitColor(segment == 0 ? m_CentreColor : m_SideColor) : m_DarkColor);
        painter->drawRoundedRect(QRectF(x + gap / 2, 0, share - gap, height()), gap / 2, gap / 2);
        x += share;
    }
}
