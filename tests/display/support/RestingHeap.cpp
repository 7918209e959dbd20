#include "RestingHeap.h"

#include "HeapTrend.h"

#include "display/map/TMapItem.h"

#include <QCoreApplication>
#include <QEvent>
#include <QQmlEngine>

double RestingHeap(TOpenDisplay& display)
{
    display.ShowPage(QLatin1String("work"));
    display.Window().releaseResources(); // icons that are kept for a while
    qmlEngine(&display.Window())->collectGarbage();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    const TMapItem& map = *display.Window().findChild<TMapItem*>();
    return static_cast<double>(HeapTrend::BytesInUse()) - static_cast<double>(map.TileBytes());
}
