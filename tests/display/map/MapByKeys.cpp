#include "MapWindow.h"

#include "display/map/MapKeys.h"

#include <QtTest>

#include <algorithm>
#include <memory>

/// The map is moved, zoomed and turned by keys while it has the focus.
class MapByKeys : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { m_Map.reset(); }
    void anArrowShowsWhatLiesThere_data();
    void anArrowShowsWhatLiesThere();
    void plusAndMinusZoom();
    void homeFollowsTheVehicle();
    void aLetterTurnsIt();
    void everyKeyIsTaken();
    void otherKeysGoOn();
    void withoutTheFocusNothingMoves();

private:
    bool Press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QKeyEvent event(QEvent::KeyPress, key, modifiers);
        QCoreApplication::sendEvent(m_Map->window.get(), &event);
        return event.isAccepted();
    }

    std::unique_ptr<tagMapWindow> m_Map;
};

void MapByKeys::init()
{
    m_Map = std::make_unique<tagMapWindow>(QSize(800, 400));
    m_Map->map->SetHeadingUp(false);
    m_Map->model.SetVehicle({QPointF(0, 0), 0, 12, 2, false});
    m_Map->map->forceActiveFocus();
    QVERIFY(m_Map->map->IsFollowing());
}

void MapByKeys::anArrowShowsWhatLiesThere_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<QPointF>("by"); // pixels of the ground
    const double step = 400 * LookPart;
    QTest::newRow("left") << int(Qt::Key_Left) << QPointF(step, 0);
    QTest::newRow("right") << int(Qt::Key_Right) << QPointF(-step, 0);
    QTest::newRow("up") << int(Qt::Key_Up) << QPointF(0, step);
    QTest::newRow("down") << int(Qt::Key_Down) << QPointF(0, -step);
}

void MapByKeys::anArrowShowsWhatLiesThere()
{
    QFETCH(const int, key);
    QFETCH(const QPointF, by);
    const QPointF place(30, 20);
    const QPointF before = m_Map->map->pointOf(place);
    QVERIFY(Press(key));
    const QPointF moved = m_Map->map->pointOf(place) - before;
    QVERIFY2(std::abs(moved.x() - by.x()) < 0.01 && std::abs(moved.y() - by.y()) < 0.01,
             qPrintable(QString::fromLatin1("%1, %2").arg(moved.x()).arg(moved.y())));
    QVERIFY(!m_Map->map->IsFollowing());
}

void MapByKeys::plusAndMinusZoom()
{
    const int before = m_Map->map->Zoom();
    QVERIFY(Press(Qt::Key_Plus, Qt::ShiftModifier));
    QVERIFY(Press(Qt::Key_Equal));
    QVERIFY(Press(Qt::Key_Plus, Qt::KeypadModifier));
    QCOMPARE(m_Map->map->Zoom(), before + 3);
    QVERIFY(Press(Qt::Key_Minus));
    QCOMPARE(m_Map->map->Zoom(), before + 2);
    QVERIFY(m_Map->map->IsFollowing());
}

void MapByKeys::homeFollowsTheVehicle()
{
    const QPointF before = m_Map->map->pointOf(QPointF(0, 0));
    Press(Qt::Key_Up);
    QVERIFY(m_Map->map->pointOf(QPointF(0, 0)) != before);
    QVERIFY(Press(Qt::Key_Home));
    QVERIFY(m_Map->map->IsFollowing());
    QCOMPARE(m_Map->map->pointOf(QPointF(0, 0)), before);
}

/// Heading or north up is a setting: the map asks for it.
void MapByKeys::aLetterTurnsIt()
{
    QSignalSpy turns(m_Map->map, &TMapItem::turnWanted);
    QVERIFY(Press(Qt::Key_N));
    QCOMPARE(turns.count(), 1);
}

void MapByKeys::everyKeyIsTaken()
{
    for (const tagMapKey& row : MapKeys) {
        QVERIFY(Press(row.key));
        QVERIFY(!Press(row.key, Qt::ControlModifier));
    }
}

void MapByKeys::otherKeysGoOn()
{
    const int others[] = {Qt::Key_Escape, Qt::Key_Return, Qt::Key_A, Qt::Key_PageDown};
    QVERIFY(std::none_of(std::begin(others), std::end(others), [this](int key) { return Press(key); }));
    QVERIFY(m_Map->map->IsFollowing());
}

void MapByKeys::withoutTheFocusNothingMoves()
{
    m_Map->map->setFocus(false);
    const int before = m_Map->map->Zoom();
    for (const tagMapKey& row : MapKeys)
        Press(row.key);
    QCOMPARE(m_Map->map->Zoom(), before);
    QVERIFY(m_Map->map->IsFollowing());
}

QTEST_MAIN(MapByKeys)
#include "MapByKeys.moc"
