#include "display/keys/TFocusKeys.h"

#include "display/keys/FocusWalk.h"

#include <QKeyEvent>
#include <QQuickWindow>

#include <algorithm>
#include <array>

namespace {

struct tagArrow
{
    int key;
    EFocusDirection direction;
};

constexpr std::array Arrows = {
    tagArrow{Qt::Key_Left, FOCUS_LEFT},
    tagArrow{Qt::Key_Right, FOCUS_RIGHT},
    tagArrow{Qt::Key_Up, FOCUS_UP},
    tagArrow{Qt::Key_Down, FOCUS_DOWN},
};

} // namespace

TFocusKeys::TFocusKeys(QQuickItem* parent) : QQuickItem(parent) { setFlag(ItemIsFocusScope); }

void TFocusKeys::keyPressEvent(QKeyEvent* event)
{
    event->ignore();
    const auto* const arrow =
        std::find_if(Arrows.begin(), Arrows.end(), [event](const tagArrow& row) { return row.key == event->key(); });
    if (arrow == Arrows.end() || window() == nullptr)
        return;
    if (QQuickItem* const next = NextFocus(this, window()->activeFocusItem(), arrow->direction)) {
        next->forceActiveFocus(Qt::TabFocusReason);
        event->accept();
    }
}
