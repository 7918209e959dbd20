#include "display/shot/OpenOverlay.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QKeyEvent>
#include <QMetaObject>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTimer>
#include <QVariant>

namespace {

constexpr int LookMs = 10;
constexpr int MostLooks = 3000;

/// What a Repeater or a Loader has made is a child for the eye alone. Hidden items are not found.
QQuickItem* FindShown(QQuickItem* item, const QLatin1String& name)
{
    if (!item->isVisible())
        return nullptr;
    if (item->objectName() == name)
        return item;
    for (QQuickItem* const child : item->childItems()) {
        if (QQuickItem* const found = FindShown(child, name))
            return found;
    }
    return nullptr;
}

/// Lists are filled by threads. Null when nothing of that name comes, or it stays disabled.
QQuickItem* Await(const QQuickWindow& window, const char* name)
{
    for (int look = 0; look < MostLooks; ++look) {
        QQuickItem* const item = FindShown(window.contentItem(), QLatin1String(name));
        if (item && item->isEnabled())
            return item;
        QEventLoop loop;
        QTimer::singleShot(LookMs, &loop, &QEventLoop::quit);
        loop.exec();
    }
    return nullptr;
}

bool Press(const QQuickWindow& window, const char* name)
{
    QQuickItem* const button = Await(window, name);
    return button && QMetaObject::invokeMethod(button, "clicked");
}

void Type(QQuickWindow& window, const QString& text)
{
    for (const QChar letter : text) {
        for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
            QKeyEvent event(type, Qt::Key_unknown, Qt::NoModifier, letter);
            QCoreApplication::sendEvent(&window, &event);
        }
    }
}

} // namespace

void OpenPage(const QQuickWindow& window, const tagPage& page)
{
    QMetaObject::invokeMethod(window.findChild<QQuickItem*>(QStringLiteral("display")), "open",
                              Q_ARG(QVariant, QString::fromLatin1(page.door)),
                              Q_ARG(QVariant, QString::fromLatin1(page.section)));
}

bool OpenOverlay(QQuickWindow& window, TSqliteStore& store, const tagOverlay& overlay, QString* error)
{
    OpenPage(window, *FindPage(QLatin1String(overlay.page)));
    if (overlay.change)
        overlay.change(store, true);
    for (const char* const name : overlay.presses) {
        if (name && !Press(window, name)) {
            *error = QString::fromLatin1("%1: there is no button \"%2\"")
                         .arg(QLatin1String(overlay.name), QLatin1String(name));
            return false;
        }
    }
    if (!Await(window, overlay.shown)) {
        *error = QString::fromLatin1("%1 does not open").arg(QLatin1String(overlay.name));
        return false;
    }
    Type(window, QLatin1String(overlay.typed));
    return true;
}

void CloseOverlay(QQuickWindow& window, TSqliteStore& store, const tagOverlay& overlay)
{
    QQuickItem* const item = FindShown(window.contentItem(), QLatin1String(overlay.shown));
    if (item && item->metaObject()->indexOfMethod("close()") >= 0)
        QMetaObject::invokeMethod(item, "close");
    if (overlay.change)
        overlay.change(store, false);
    OpenPage(window, *FindPage(QStringLiteral("work")));
}
