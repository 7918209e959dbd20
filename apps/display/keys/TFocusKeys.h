#pragma once

#include <QQuickItem>

/// Moves the keyboard's focus among what is below it with the arrow keys that nobody else takes. Fills the window.
///
///     FocusKeys { anchors.fill: parent; WorkPage {} }
class TFocusKeys : public QQuickItem
{
    Q_OBJECT

public:
    explicit TFocusKeys(QQuickItem* parent = nullptr);

protected:
    void keyPressEvent(QKeyEvent* event) override;
};
