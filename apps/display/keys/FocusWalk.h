#pragma once

class QQuickItem;

/// The directions of the arrow keys.
enum EFocusDirection : int
{
    FOCUS_LEFT,
    FOCUS_RIGHT,
    FOCUS_UP,
    FOCUS_DOWN,
};

/// The stop of Tab below @p root that lies nearest to @p from in this direction, as the eye sees it. Items that are
/// hidden or disabled are no stops. Null when none lies there. With a @p from that is null or no stop, the first stop
/// from the top left.
QQuickItem* NextFocus(QQuickItem* root, QQuickItem* from, EFocusDirection direction);
