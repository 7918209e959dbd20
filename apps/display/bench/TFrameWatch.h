#pragma once

#include <QObject>

#include <functional>
#include <optional>

class QQuickWindow;

/// What a frame took, in milliseconds. Where others need the processors too, it took longer than it was worked on.
struct tagFrameTime
{
    double elapsed;
    double worked; ///< by the processors for this process
};

/// Draws frames of a window one by one and says how long each took. The time in which the window waits to be asked for
/// the next frame is left out, where the renderer draws in the thread of the application object.
class TFrameWatch : public QObject
{
    Q_OBJECT

public:
    explicit TFrameWatch(QQuickWindow& window);

    /// What the change and the frame that follows it take together; nothing where no frame follows within ten seconds.
    std::optional<tagFrameTime> Frame(const std::function<void()>& change);

    bool eventFilter(QObject* object, QEvent* event) override;

private:
    QQuickWindow& m_Window;
    tagFrameTime m_Asked = {}; ///< when the window was last asked to draw
};
