#include "display/keys/FocusWalk.h"

#include <QList>
#include <QQuickItem>

#include <algorithm>
#include <cmath>
#include <limits>
#include <vector>

namespace {

struct tagStop
{
    QQuickItem* item;
    QRectF place; ///< of the scene
};

QRectF PlaceOf(const QQuickItem& item) { return item.mapRectToScene(QRectF(0, 0, item.width(), item.height())); }

/// The rows of a list are its children in the order in which they were made.
QList<QQuickItem*> ChildrenInOrder(const QQuickItem& item)
{
    QList<QQuickItem*> children = item.childItems();
    if (item.parentItem() && item.parentItem()->inherits("QQuickItemView"))
        std::stable_sort(children.begin(), children.end(),
                         [](const QQuickItem* first, const QQuickItem* second) { return first->y() < second->y(); });
    return children;
}

// A child of a hidden or disabled item is hidden or disabled itself.
void CollectStops(QQuickItem* item, std::vector<tagStop>& stops)
{
    if (!item->isVisible() || !item->isEnabled())
        return;
    if (IsFocusStop(*item))
        stops.push_back({item, PlaceOf(*item)});
    for (QQuickItem* const child : ChildrenInOrder(*item))
        CollectStops(child, stops);
}

std::vector<tagStop> StopsBelow(QQuickItem* item)
{
    std::vector<tagStop> stops;
    CollectStops(item, stops);
    return stops;
}

const QQuickItem* ListOf(const QQuickItem* item)
{
    while (item && !item->inherits("QQuickFlickable"))
        item = item->parentItem();
    return item;
}

/// What moves something of its own by the arrow keys, as the map does: they do not lead away from it.
bool TakesArrows(const QQuickItem& item) { return item.property("takesArrows").toBool(); }

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

double Between(const QRectF& first, const QRectF& second)
{
    return std::hypot(Gap(first.left(), first.right(), second.left(), second.right()),
                      Gap(first.top(), first.bottom(), second.top(), second.bottom())) +
           std::hypot(first.center().x() - second.center().x(), first.center().y() - second.center().y()) / 100;
}

} // namespace

bool IsFocusStop(const QQuickItem& item)
{
    return item.activeFocusOnTab() && item.isVisible() && item.isEnabled() && item.width() > 0 && item.height() > 0;
}

bool IsFocusSeen(const QQuickItem& item)
{
    QRectF seen = PlaceOf(item);
    for (const QQuickItem* around = item.parentItem(); around; around = around->parentItem()) {
        if (around->clip())
            seen &= PlaceOf(*around);
    }
    return !seen.isEmpty();
}

QQuickItem* NextFocus(QQuickItem* root, QQuickItem* from, EFocusDirection direction)
{
    const std::vector<tagStop> stops = StopsBelow(root);
    const auto current =
        std::find_if(stops.cbegin(), stops.cend(), [from](const tagStop& stop) { return stop.item == from; });
    const QQuickItem* const list = ListOf(from);
    const bool isAlongList = list && (direction == FOCUS_UP || direction == FOCUS_DOWN);
    QQuickItem* nearest = nullptr;
    bool isNearestInList = false;
    double least = std::numeric_limits<double>::infinity();
    for (const tagStop& stop : stops) {
        const bool isInList = list && ListOf(stop.item) == list;
        if ((!isInList && !IsFocusSeen(*stop.item)) || TakesArrows(*stop.item))
            continue;
        const double distance = current == stops.cend() ? stop.place.left() + SideWeight * stop.place.top()
                                                        : Distance(current->place, stop.place, direction);
        const bool isBetter = isAlongList && isInList != isNearestInList ? isInList : distance < least;
        if (std::isfinite(distance) && isBetter) {
            least = distance;
            nearest = stop.item;
            isNearestInList = isInList;
        }
    }
    return nearest;
}

QQuickItem* TabFocus(QQuickItem* root, QQuickItem* from, bool isForward)
{
    std::vector<tagStop> stops = from && !IsFocusStop(*from) ? StopsBelow(from) : std::vector<tagStop>();
    if (stops.empty())
        stops = StopsBelow(root);
    if (stops.empty())
        return nullptr;
    const auto current =
        std::find_if(stops.cbegin(), stops.cend(), [from](const tagStop& stop) { return stop.item == from; });
    if (current == stops.cend())
        return isForward ? stops.front().item : stops.back().item;
    if (isForward)
        return current + 1 == stops.cend() ? stops.front().item : (current + 1)->item;
    return current == stops.cbegin() ? stops.back().item : (current - 1)->item;
}

QQuickItem* NearestFocus(QQuickItem* scope, const QRectF& place)
{
    QQuickItem* nearest = nullptr;
    double least = std::numeric_limits<double>::infinity();
    for (const tagStop& stop : StopsBelow(scope)) {
        const double distance = Between(place, stop.place);
        if (distance < least && IsFocusSeen(*stop.item) && !TakesArrows(*stop.item)) {
            least = distance;
            nearest = stop.item;
        }
    }
    return nearest;
}
