#include "display/keys/FocusWalk.h"

#include <QQuickItem>
#include <QVector>

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

namespace {

struct tagStop
{
    QQuickItem* item;
    QRectF place;
};

bool IsStop(const QQuickItem* item) { return item->activeFocusOnTab() && item->width() > 0 && item->height() > 0; }

// A child of a hidden or disabled item is hidden or disabled itself.
void CollectStops(QQuickItem* item, const QQuickItem* root, QVector<tagStop>& stops)
{
    if (!item->isVisible() || !item->isEnabled())
        return;
    if (IsStop(item))
        stops.append({item, item->mapRectToItem(root, QRectF(0, 0, item->width(), item->height()))});
    for (QQuickItem* const child : item->childItems())
        CollectStops(child, root, stops);
}

double Gap(double from, double to, double otherFrom, double otherTo)
{
    return std::max({0.0, otherFrom - to, from - otherTo});
}

// What lies to the side counts more than what lies ahead: the keys keep to their row or column.
constexpr double SideWeight = 4;

double Distance(const QRectF& from, const QRectF& to, EFocusDirection direction)
{
    const bool isAcross = direction == FOCUS_LEFT || direction == FOCUS_RIGHT;
    const bool isBack = direction == FOCUS_LEFT || direction == FOCUS_UP;
    const double ahead =
        (isAcross ? to.center().x() - from.center().x() : to.center().y() - from.center().y()) * (isBack ? -1 : 1);
    if (!(ahead > 1))
        return std::numeric_limits<double>::infinity();
    const double side = isAcross ? Gap(from.top(), from.bottom(), to.top(), to.bottom())
                                 : Gap(from.left(), from.right(), to.left(), to.right());
    const double centres =
        isAcross ? std::abs(to.center().y() - from.center().y()) : std::abs(to.center().x() - from.center().x());
    return ahead + SideWeight * side + centres / 100;
}

} // namespace

QQuickItem* NextFocus(QQuickItem* root, QQuickItem* from, EFocusDirection direction)
{
    QVector<tagStop> stops;
    CollectStops(root, root, stops);
    const auto current =
        std::find_if(stops.cbegin(), stops.cend(), [from](const tagStop& stop) { return stop.item == from; });
    QQuickItem* nearest = nullptr;
    double least = std::numeric_limits<double>::infinity();
    for (const tagStop& stop : std::as_const(stops)) {
        const double distance = current == stops.cend() ? stop.place.left() + SideWeight * stop.place.top()
                                                        : Distance(current->place, stop.place, direction);
        if (distance < least) {
            least = distance;
            nearest = stop.item;
        }
    }
    return nearest;
}
