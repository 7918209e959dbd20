#include "TQuickTerminal.h"

#include "parameters/HostParameters.h"
#include "sun/EDaySwitching.h"

#include <QQmlApplicationEngine>
#include <QQuickItem>
#include <QQuickWindow>

/// The example of a display of one page works as it stands.
class OwnDisplay : public QObject
{
    Q_OBJECT

private slots:
    void itsButtonsSwitchUnitsAndColors();
};

namespace {

/// The item that shows @p text; null when there is none.
QQuickItem* Showing(QQuickItem* item, const QString& text)
{
    if (item->property("text").toString() == text)
        return item;
    for (QQuickItem* const child : item->childItems()) {
        if (QQuickItem* const found = Showing(child, text))
            return found;
    }
    return nullptr;
}

void Press(QQuickWindow* window, const QString& text)
{
    QTRY_VERIFY2(Showing(window->contentItem(), text), qPrintable(text));
    const QQuickItem* const label = Showing(window->contentItem(), text);
    const QPointF middle = label->mapToScene({label->width() / 2, label->height() / 2});
    QTest::mouseClick(window, Qt::LeftButton, Qt::NoModifier, middle.toPoint());
}

} // namespace

void OwnDisplay::itsButtonsSwitchUnitsAndColors()
{
    // By hand: after sunset on the simulator's field the first sentences would switch the colours to night.
    const TQuickTerminal terminal({{PARAM_DAY_SWITCHING, DAY_SWITCHING_BY_HAND}});
    const QQmlApplicationEngine engine(QUrl::fromLocalFile(QString::fromUtf8(CABSETTINGS_OWN_DISPLAY)));
    QCOMPARE(static_cast<int>(engine.rootObjects().size()), 1);
    auto* const window = qobject_cast<QQuickWindow*>(engine.rootObjects().first());
    QVERIFY(window && QTest::qWaitForWindowExposed(window));
    QObject* const speed = window->findChild<QObject*>(QLatin1String("speed"));
    QTRY_COMPARE(speed->property("unit").toString(), QLatin1String("kph"));
    const QColor day = window->color();

    Press(window, QLatin1String("Measures: Metric"));
    QTRY_COMPARE(speed->property("unit").toString(), QLatin1String("mph"));
    Press(window, QLatin1String("Measures: US or English"));
    QTRY_COMPARE(speed->property("unit").toString(), QLatin1String("kph"));
    Press(window, QLatin1String("Night"));
    QTRY_VERIFY(window->color() != day);
    Press(window, QLatin1String("Day"));
    QTRY_COMPARE(window->color(), day);
}

QTEST_MAIN(OwnDisplay)
#include "OwnDisplay.moc"
