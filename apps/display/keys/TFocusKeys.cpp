#include "display/keys/TFocusKeys.h"

#include "display/keys/FocusWalk.h"

#include <QKeyEvent>
#include <QMetaObject>
#include <QQuickWindow>
#include <QVariant>

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

/// Move the focus, or act on what has it.
constexpr std::array ActingKeys = {Qt::Key_Left,    Qt::Key_Right,  Qt::Key_Up,    Qt::Key_Down, Qt::Key_Tab,
                                   Qt::Key_Backtab, Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space};

const tagArrow* ArrowOf(int key)
{
    const auto* const arrow =
        std::find_if(Arrows.begin(), Arrows.end(), [key](const tagArrow& row) { return row.key == key; });
    return arrow == Arrows.end() ? nullptr : arrow;
}

/// A list has only those rows that are in view: it makes the next one.
void Reveal(QQuickItem* from, bool isDown)
{
    for (QQuickItem* item = from; item; item = item->parentItem()) {
        if (item->metaObject()->indexOfMethod("reveal(QVariant)") >= 0)
            QMetaObject::invokeMethod(item, "reveal", Q_ARG(QVariant, isDown));
    }
}

} // namespace

TFocusKeys::TFocusKeys(QQuickItem* parent) : QQuickItem(parent)
{
    setFlag(ItemIsFocusScope);
    Watch(window());
}

void TFocusKeys::itemChange(ItemChange change, const ItemChangeData& value)
{
    if (change == ItemSceneChange)
        Watch(value.window);
    QQuickItem::itemChange(change, value);
}

void TFocusKeys::Watch(QQuickWindow* window)
{
    if (m_Window) {
        m_Window->removeEventFilter(this);
        disconnect(m_Window, nullptr, this, nullptr);
    }
    m_Window = window;
    if (!m_Window)
        return;
    m_Window->installEventFilter(this);
    connect(m_Window, &QQuickWindow::activeFocusItemChanged, this, &TFocusKeys::FollowFocus);
}

bool TFocusKeys::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::MouseButtonPress || event->type() == QEvent::TouchBegin)
        SetByKeys(false);
    if (event->type() == QEvent::KeyPress) {
        const auto& key = *static_cast<const QKeyEvent*>(event);
        KeepFocusLater();
        if (ShowFocus(key) || MoveByTab(key))
            return true;
    }
    return QQuickItem::eventFilter(watched, event);
}

void TFocusKeys::SetByKeys(bool isByKeys)
{
    if (isByKeys == m_IsByKeys)
        return;
    m_IsByKeys = isByKeys;
    emit byKeysChanged();
}

/// Returns whether that is all that the key does. A field of text has a cursor that is seen at all times, and its keys
/// may be those on the screen.
bool TFocusKeys::ShowFocus(const QKeyEvent& event)
{
    const QQuickItem* const item = m_Window->activeFocusItem();
    if (m_IsByKeys || (item && (item->flags() & ItemAcceptsInputMethod)))
        return false;
    SetByKeys(true);
    return item && IsFocusStop(*item) &&
           std::find(ActingKeys.begin(), ActingKeys.end(), event.key()) != ActingKeys.end();
}

/// Qt's own order takes the rows of a list in the order in which they were made, which scrolling changes.
bool TFocusKeys::MoveByTab(const QKeyEvent& event)
{
    const bool isTab = event.key() == Qt::Key_Tab || event.key() == Qt::Key_Backtab;
    if (!isTab || (event.modifiers() & ~Qt::ShiftModifier) != Qt::NoModifier)
        return false;
    SetByKeys(true);
    const bool isForward = event.key() == Qt::Key_Tab && !(event.modifiers() & Qt::ShiftModifier);
    Reveal(m_Window->activeFocusItem(), isForward);
    if (QQuickItem* const next = TabFocus(this, m_Window->activeFocusItem(), isForward))
        next->forceActiveFocus(isForward ? Qt::TabFocusReason : Qt::BacktabFocusReason);
    return true;
}

void TFocusKeys::keyPressEvent(QKeyEvent* event)
{
    event->ignore();
    const tagArrow* const arrow = ArrowOf(event->key());
    if (!arrow || !m_Window)
        return;
    if (arrow->direction == FOCUS_UP || arrow->direction == FOCUS_DOWN)
        Reveal(m_Window->activeFocusItem(), arrow->direction == FOCUS_DOWN);
    if (QQuickItem* const next = NextFocus(this, m_Window->activeFocusItem(), arrow->direction)) {
        SetByKeys(true);
        next->forceActiveFocus(Qt::TabFocusReason);
        event->accept();
    }
}

void TFocusKeys::FollowFocus()
{
    QQuickItem* const item = m_Window->activeFocusItem();
    if (item && item != m_Stop && IsFocusStop(*item)) {
        for (QMetaObject::Connection& change : m_StopChanges)
            disconnect(change);
        m_Stop = item;
        m_StopChanges = {connect(item, &QQuickItem::visibleChanged, this, &TFocusKeys::KeepFocusLater),
                         connect(item, &QQuickItem::enabledChanged, this, &TFocusKeys::KeepFocusLater)};
    }
    KeepFocusLater();
}

/// The focus goes several ways while a page or a question opens or closes: only where it comes to rest counts.
void TFocusKeys::KeepFocusLater()
{
    if (m_IsKeeping)
        return;
    m_IsKeeping = true;
    QMetaObject::invokeMethod(this, &TFocusKeys::KeepFocus, Qt::QueuedConnection);
}

void TFocusKeys::KeepFocus()
{
    m_IsKeeping = false;
    if (!m_Window)
        return;
    QQuickItem* const item = m_Window->activeFocusItem();
    if (item && IsFocusStop(*item) && IsFocusSeen(*item)) {
        m_Place = item->mapRectToScene(QRectF(0, 0, item->width(), item->height()));
        return;
    }
    if (!m_IsByKeys)
        return;
    for (QQuickItem* scope = item ? item : this; scope; scope = scope->parentItem()) {
        auto* const first = scope->property("firstStop").value<QQuickItem*>();
        QQuickItem* const stop = first && IsFocusStop(*first) ? first : NearestFocus(scope, m_Place);
        if (stop) {
            stop->forceActiveFocus(Qt::TabFocusReason);
            return;
        }
    }
}
