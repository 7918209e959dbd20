#pragma once

#include <QPointer>
#include <QQuickItem>
#include <QQuickWindow>
#include <QRectF>

#include <array>

/// Moves the keyboard's focus among what is below it: with Tab, and with the arrow keys that nobody else takes. Fills
/// the window.
///
///     FocusKeys { anchors.fill: parent; WorkPage {} }
///
/// While keys are used, the item with the focus is always in view: when it goes away, is disabled or scrolled away, or
/// a page or question takes the focus without a stop of its own, the focus goes to its "firstStop", or to the stop
/// nearest to the last one. Taps move no focus, except to a field that is typed into.
///
/// byKeys says whether keys are used: what has the focus is framed then. A tap ends it. The first key after that shows
/// where the focus is: an arrow, Tab, Enter or the space bar does nothing else when the focus was not framed, so that
/// no key acts on what is not seen. What is typed into a field does not count; a key that leaves it does.
class TFocusKeys : public QQuickItem
{
    Q_OBJECT
    Q_PROPERTY(bool byKeys READ IsByKeys NOTIFY byKeysChanged)

public:
    explicit TFocusKeys(QQuickItem* parent = nullptr);

    bool IsByKeys() const { return m_IsByKeys; }

    /// Sees the keys and taps of the window first.
    bool eventFilter(QObject* watched, QEvent* event) override;

signals:
    void byKeysChanged();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void itemChange(ItemChange change, const ItemChangeData& value) override;

private:
    void Watch(QQuickWindow* window);
    void SetByKeys(bool isByKeys);
    bool ShowFocus(const QKeyEvent& event);
    bool MoveByTab(const QKeyEvent& event);
    void FollowFocus();
    void KeepFocusLater();
    void KeepFocus();

    QPointer<QQuickWindow> m_Window;
    QPointer<QQuickItem> m_Stop; ///< that had the focus last
    QRectF m_Place;              ///< of that stop, in the scene
    std::array<QMetaObject::Connection, 2> m_StopChanges;
    bool m_IsByKeys = false; ///< a key was pressed, and nothing was tapped since
    bool m_IsKeeping = false;
};
