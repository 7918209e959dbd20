#pragma once

#include "display/map/TMapItem.h"

#include <QQuickItemGrabResult>
#include <QQuickWindow>
#include <QSignalSpy>

#include <memory>

/// A window of the software renderer with nothing but the map.
struct tagMapWindow
{
    TMapModel model;
    std::unique_ptr<QQuickWindow> window;
    TMapItem* map;

    explicit tagMapWindow(const QSize& size = QSize(800, 800))
    {
        static const bool isSoftware = [] {
            QQuickWindow::setSceneGraphBackend(QStringLiteral("software"));
            return true;
        }();
        Q_UNUSED(isSoftware)
        window = std::make_unique<QQuickWindow>();
        window->resize(size);
        map = new TMapItem(window->contentItem());
        map->setSize(size);
        map->SetModel(&model);
        window->show();
    }

    /// What is seen; null after ten seconds.
    QImage Picture() const
    {
        const QSharedPointer<QQuickItemGrabResult> grab = map->grabToImage();
        if (!grab)
            return {};
        QSignalSpy ready(grab.data(), &QQuickItemGrabResult::ready);
        return ready.count() > 0 || ready.wait(10000) ? grab->image() : QImage();
    }

    QPoint Pixel(const QPointF& place) const
    {
        const QPointF point = map->pointOf(place);
        return {int(std::floor(point.x())), int(std::floor(point.y()))};
    }
};

inline bool IsNear(const QColor& a, const QColor& b, int most = 3)
{
    return std::abs(a.red() - b.red()) <= most && std::abs(a.green() - b.green()) <= most &&
           std::abs(a.blue() - b.blue()) <= most;
}
