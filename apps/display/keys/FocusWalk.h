#pragma once

#include <QRectF>

class QQuickItem;

/// The directions of the arrow keys.
enum EFocusDirection : int
{
    FOCUS_LEFT,
    FOCUS_RIGHT,
    FOCUS_UP,
    FOCUS_DOWN,
};

/// The keyboard can act on the item: it is a stop of Tab, visible and enabled.
bool IsFocusStop(const QQuickItem& item);

/// Something of the item is inside everything around it that clips. What is not has been scrolled away.
bool IsFocusSeen(const QQuickItem& item);

/// The stop of Tab below @p root that lies nearest to @p from in this direction, as the eye sees it. Items that are
/// hidden or disabled are no stops; what is scrolled away is passed over, except in the list that has @p from, whose
/// other rows come first above and below it. What has the property takesArrows is passed over, too: no arrow key leads
/// away from it. Null when none lies there. With a @p from that is null or no stop, the first stop from the top left.
QQuickItem* NextFocus(QQuickItem* root, QQuickItem* from, EFocusDirection direction);

/// The stop of Tab below @p root after @p from, or before it: in the order of the items, and the rows of a list from
/// the top down, whichever was made first. Begins again after the last one. With a @p from that is no stop, the first
/// or last stop within it; without one, below @p root. Null when there is none.
QQuickItem* TabFocus(QQuickItem* root, QQuickItem* from, bool isForward);

/// The stop below @p scope that is seen and lies nearest to a place of the scene. What has the property takesArrows is
/// none: it may fill the page, and is nearest to every place then. Null when there is none.
QQuickItem* NearestFocus(QQuickItem* scope, const QRectF& place);
