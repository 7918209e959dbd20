#include "display/keys/FocusWalk.h"
#include "display/keys/TFocusKeys.h"

#include <QQuickWindow>
#include <QtTest>

#include <map>
#include <memory>

/// The arrow keys move the focus to what lies in their direction.
class ArrowKeys : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void theNearestIsNext_data();
    void theNearestIsNext();
    void theEndStays();
    void whatIsHiddenOrDisabledIsPassedOver();
    void whatTakesArrowsIsPassedOver();
    void withoutAFocusTheFirstIsNext();
    void keysMoveTheFocusOfTheWindow();

private:
    QQuickItem* Add(const char* name, const QRectF& place);

    std::unique_ptr<QQuickWindow> m_Window;
    TFocusKeys* m_Root = nullptr;
    std::map<QString, QQuickItem*> m_Stops;
};

QQuickItem* ArrowKeys::Add(const char* name, const QRectF& place)
{
    auto* const stop = new QQuickItem(m_Root);
    stop->setObjectName(QLatin1String(name));
    stop->setPosition(place.topLeft());
    stop->setSize(place.size());
    stop->setActiveFocusOnTab(true);
    m_Stops[QLatin1String(name)] = stop;
    return stop;
}

/// Two columns of three, and a wide one below both.
void ArrowKeys::init()
{
    qputenv("QT_QUICK_BACKEND", "software");
    m_Window = std::make_unique<QQuickWindow>();
    m_Window->resize(400, 400);
    m_Root = new TFocusKeys(m_Window->contentItem());
    m_Root->setSize(QSizeF(400, 400));
    m_Root->setFocus(true);
    const char* const names[] = {"a1", "b1", "a2", "b2", "a3", "b3"};
    for (int index = 0; index < 6; ++index)
        Add(names[index], QRectF(10 + 110 * (index % 2), 10 + 90 * (index / 2), 100, 80));
    Add("wide", QRectF(10, 300, 210, 80));
    m_Window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_Window.get()));
}

void ArrowKeys::cleanup()
{
    m_Window.reset();
    m_Stops.clear();
}

void ArrowKeys::theNearestIsNext_data()
{
    QTest::addColumn<QString>("from");
    QTest::addColumn<int>("direction");
    QTest::addColumn<QString>("to");
    const auto row = [](const char* from, EFocusDirection direction, const char* to) {
        QTest::addRow("%s %d", from, direction)
            << QString::fromLatin1(from) << int(direction) << QString::fromLatin1(to);
    };
    row("a1", FOCUS_RIGHT, "b1");
    row("b2", FOCUS_LEFT, "a2");
    row("a1", FOCUS_DOWN, "a2");
    row("b3", FOCUS_UP, "b2");
    row("a3", FOCUS_DOWN, "wide");
    row("b3", FOCUS_DOWN, "wide");
    row("wide", FOCUS_UP, "a3");
}

void ArrowKeys::theNearestIsNext()
{
    QFETCH(const QString, from);
    QFETCH(const int, direction);
    QFETCH(const QString, to);
    QQuickItem* const next = NextFocus(m_Root, m_Stops[from], static_cast<EFocusDirection>(direction));
    QVERIFY(next);
    QCOMPARE(next->objectName(), to);
}

void ArrowKeys::theEndStays()
{
    QVERIFY(!NextFocus(m_Root, m_Stops[QLatin1String("a1")], FOCUS_LEFT));
    QVERIFY(!NextFocus(m_Root, m_Stops[QLatin1String("a1")], FOCUS_UP));
    QVERIFY(!NextFocus(m_Root, m_Stops[QLatin1String("wide")], FOCUS_DOWN));
}

void ArrowKeys::whatIsHiddenOrDisabledIsPassedOver()
{
    m_Stops[QLatin1String("a2")]->setVisible(false);
    m_Stops[QLatin1String("b2")]->setEnabled(false);
    QCOMPARE(NextFocus(m_Root, m_Stops[QLatin1String("a1")], FOCUS_DOWN)->objectName(), QLatin1String("a3"));
    QCOMPARE(NextFocus(m_Root, m_Stops[QLatin1String("b1")], FOCUS_DOWN)->objectName(), QLatin1String("b3"));
}

/// As the map, which lies below all others: it would be the nearest to every place.
void ArrowKeys::whatTakesArrowsIsPassedOver()
{
    QQuickItem* const below = Add("below", QRectF(0, 0, 400, 400));
    below->setProperty("takesArrows", true);
    below->setZ(-1);
    QCOMPARE(NextFocus(m_Root, m_Stops[QLatin1String("a1")], FOCUS_DOWN)->objectName(), QLatin1String("a2"));
    QCOMPARE(NextFocus(m_Root, nullptr, FOCUS_DOWN)->objectName(), QLatin1String("a1"));
    QCOMPARE(NearestFocus(m_Root, QRectF(240, 110, 20, 20))->objectName(), QLatin1String("b2"));
    QVERIFY(!NearestFocus(below, QRectF(0, 0, 20, 20)));
}

void ArrowKeys::withoutAFocusTheFirstIsNext()
{
    QCOMPARE(NextFocus(m_Root, nullptr, FOCUS_DOWN)->objectName(), QLatin1String("a1"));
    QCOMPARE(NextFocus(m_Root, m_Root, FOCUS_LEFT)->objectName(), QLatin1String("a1"));
}

void ArrowKeys::keysMoveTheFocusOfTheWindow()
{
    m_Window->requestActivate();
    QVERIFY(QTest::qWaitForWindowActive(m_Window.get()));
    const auto pressed = [this](Qt::Key key) {
        QTest::keyClick(m_Window.get(), key);
        return m_Window->activeFocusItem()->objectName();
    };
    QCOMPARE(pressed(Qt::Key_Down), QLatin1String("a1"));
    QCOMPARE(pressed(Qt::Key_Right), QLatin1String("b1"));
    QCOMPARE(pressed(Qt::Key_Right), QLatin1String("b1"));
    QCOMPARE(pressed(Qt::Key_Down), QLatin1String("b2"));
    QCOMPARE(pressed(Qt::Key_Left), QLatin1String("a2"));
    QCOMPARE(pressed(Qt::Key_A), QLatin1String("a2"));
}

QTEST_MAIN(ArrowKeys)
#include "ArrowKeys.moc"
