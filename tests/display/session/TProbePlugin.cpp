#include "support/VisibleItems.h"

#include <QGenericPlugin>
#include <QGuiApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QLocalSocket>
#include <QQuickItem>
#include <QQuickWindow>
#include <QtTest/qtestmouse.h>

/// Lets a test see and tap what another process shows, through a local socket to which it connects at its start. A
/// request is a line, and so is its answer:
///
///     texts        all texts that are seen, as a JSON array
///     texts NAME   those below the item with this object name
///     tap NAME     presses the target with this name; answers 1 before it does, 0 when there is none
class TProbe : public QObject
{
    Q_OBJECT

public:
    explicit TProbe(const QString& server)
    {
        connect(&m_Socket, &QLocalSocket::readyRead, this, &TProbe::Read);
        m_Socket.connectToServer(server);
    }

private:
    static QQuickItem* Content()
    {
        const QWindowList windows = QGuiApplication::topLevelWindows();
        auto* const window = windows.isEmpty() ? nullptr : qobject_cast<QQuickWindow*>(windows.first());
        return window && window->isExposed() ? window->contentItem() : nullptr;
    }

    static QQuickItem* Below(QQuickItem* item, const QString& name)
    {
        if (item->objectName() == name)
            return item;
        for (QQuickItem* const child : item->childItems()) {
            if (QQuickItem* const found = Below(child, name))
                return found;
        }
        return nullptr;
    }

    static QByteArray Texts(const QString& name)
    {
        QQuickItem* const content = Content();
        QQuickItem* const root = content && !name.isEmpty() ? Below(content, name) : content;
        QJsonArray texts;
        if (root) {
            for (const QQuickItem* text : VisibleItems::Texts(*root))
                texts.append(VisibleItems::Text(*text));
        }
        return QJsonDocument(texts).toJson(QJsonDocument::Compact);
    }

    void Answer(const QByteArray& text)
    {
        m_Socket.write(text + '\n');
        m_Socket.flush();
    }

    void Tap(const QString& name)
    {
        QQuickItem* const content = Content();
        const QQuickItem* const target = content ? VisibleItems::Target(*content, name) : nullptr;
        Answer(target ? "1" : "0");
        if (target)
            QTest::mouseClick(target->window(), Qt::LeftButton, Qt::NoModifier,
                              VisibleItems::SeenPart(*target).center().toPoint());
    }

    void Read()
    {
        while (m_Socket.canReadLine()) {
            const QString line = QString::fromUtf8(m_Socket.readLine()).trimmed();
            const QString name = line.section(QLatin1Char(' '), 1);
            if (line.startsWith(QLatin1String("tap ")))
                Tap(name);
            else
                Answer(Texts(name));
        }
    }

    QLocalSocket m_Socket;
};

/// QT_QPA_GENERIC_PLUGINS=probe:SERVER brings it into a program.
class TProbePlugin : public QGenericPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "probe.json")

public:
    QObject* create(const QString& /*name*/, const QString& server) override { return new TProbe(server); }
};

#include "TProbePlugin.moc"
