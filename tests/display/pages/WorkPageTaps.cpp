#include "TTemporaryFolder.h"
#include "support/VisibleItems.h"

#include "display/fieldwork/DemoField.h"
#include "display/fieldwork/TWork.h"
#include "display/map/TMapModel.h"
#include "display/session/TDisplaySession.h"

#include "module/CabQuick.h"
#include "nmea/TFieldSimulator.h"
#include "parameters/HostParameters.h"
#include "parameters/TParameterCatalogue.h"
#include "platform/EParamID.h"
#include "receiver/SimulatedField.h"
#include "receiver/TReceiver.h"
#include "stores/TSqliteStore.h"
#include "system/TSystemSettingsProxy.h"

#include <QQuickItem>
#include <QQuickWindow>
#include <QtTest>

#include <memory>
#include <utility>

namespace {

QRectF SceneRect(const QQuickItem& item) { return item.mapRectToScene(QRectF(0, 0, item.width(), item.height())); }

} // namespace

/// The work page: one tap each for what is done while driving, and a screen that can be locked.
class WorkPageTaps : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void dayAndNightChangeByOneTap();
    void theMapZoomsAndTurns();
    void theMapGoesByKeys();
    void aLineIsSetAndFollowed();
    void aSavedLineIsChosen();
    void aLineGetsAName();
    void aLineGetsAnotherName();
    void aFlagIsSet();
    void workingIsSwitched();
    void aTileOpensTheChoiceOfTiles();
    void theTilesAreTheOperators();
    void aLockedScreenTakesNoTaps();
    void everySizeShowsWhatIsNeeded_data() { AddSizes(); }
    void everySizeShowsWhatIsNeeded();
    void aLongMessageCoversNothing_data() { AddSizes(); }
    void aLongMessageCoversNothing();
    void everyTileIsReached_data() { AddSizes(); }
    void everyTileIsReached();

private:
    static void AddSizes();
    void Resize(const QSize& size);
    QQuickItem* Find(const char* name) const
    {
        return VisibleItems::Named(*m_Session->Window()->contentItem(), QLatin1String(name));
    }
    void Tap(const char* name) const;
    void Drive(int epochs);
    QQuickItem* Display() const { return Find("display"); }
    void FollowNewLine();

    std::unique_ptr<TTemporaryFolder> m_Folder;
    std::unique_ptr<TDisplaySession> m_Session;
    std::unique_ptr<TFieldSimulator> m_Simulator;
    TWork* m_Work = nullptr;
};

void WorkPageTaps::initTestCase()
{
    qputenv("QT_QUICK_BACKEND", "software");
    m_Folder = std::make_unique<TTemporaryFolder>();
    tagDisplayOptions options;
    options.dataFolder = m_Folder->Path();
    m_Session = std::make_unique<TDisplaySession>();
    QString error;
    QVERIFY2(m_Session->Start(options, &error), qPrintable(error));
    QVERIFY2(m_Session->OpenWindow(options, &error), qPrintable(error));
    QVERIFY2(MakeDemoField(m_Session->Engine(), &error), qPrintable(error));
    QVERIFY(QTest::qWaitForWindowExposed(m_Session->Window()));
    m_Work = TWork::Of(m_Session->Engine());
    QTRY_VERIFY(!m_Work->IsLoading());
    m_Simulator = std::make_unique<TFieldSimulator>(CabQuick::SimulatedPlan());
    Drive(100);
    QVERIFY(m_Work->HasPosition());
}

void WorkPageTaps::Drive(int epochs)
{
    for (int epoch = 0; epoch < epochs; ++epoch)
        CabQuick::Receiver().Show(m_Simulator->NextEpoch());
}

void WorkPageTaps::Tap(const char* name) const
{
    const QQuickItem* const item = Find(name);
    QVERIFY2(item, name);
    const QPointF middle = item->mapToScene(QPointF(item->width() / 2, item->height() / 2));
    QTest::mouseClick(m_Session->Window(), Qt::LeftButton, Qt::NoModifier, middle.toPoint());
}

void WorkPageTaps::dayAndNightChangeByOneTap()
{
    const bool wasDay = m_Session->Store().GetParameter(PARAM_DAY_MODE).toBool();
    Tap("dayNight");
    QTRY_COMPARE(m_Session->Store().GetParameter(PARAM_DAY_MODE).toBool(), !wasDay);
    Tap("dayNight");
    QTRY_COMPARE(m_Session->Store().GetParameter(PARAM_DAY_MODE).toBool(), wasDay);
}

void WorkPageTaps::theMapZoomsAndTurns()
{
    QQuickItem* const map = Find("map");
    QVERIFY(map);
    const int zoom = map->property("zoom").toInt();
    Tap("zoomIn");
    QCOMPARE(map->property("zoom").toInt(), zoom + 1);
    Tap("zoomOut");
    QCOMPARE(map->property("zoom").toInt(), zoom);
    Tap("turn");
    QTRY_COMPARE(map->property("headingUp").toBool(), false);
    QCOMPARE(m_Session->Store().GetParameter(PARAM_HEADING_UP).toBool(), false);
    Tap("turn");
    QTRY_COMPARE(map->property("headingUp").toBool(), true);
    QMetaObject::invokeMethod(map, "pan", Q_ARG(double, 80.0), Q_ARG(double, 40.0));
    QCOMPARE(map->property("follow").toBool(), false);
    Tap("recentre");
    QCOMPARE(map->property("follow").toBool(), true);
}

void WorkPageTaps::theMapGoesByKeys()
{
    QQuickWindow& window = *m_Session->Window();
    window.requestActivate();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    const QQuickItem* const map = Find("map");
    for (int step = 0; step < 100 && window.activeFocusItem() != map; ++step)
        QTest::keyClick(&window, Qt::Key_Tab);
    QCOMPARE(window.activeFocusItem(), map);
    const int zoom = map->property("zoom").toInt();
    QTest::keyClick(&window, Qt::Key_Plus);
    QCOMPARE(map->property("zoom").toInt(), zoom + 1);
    QTest::keyClick(&window, Qt::Key_Minus);
    QTest::keyClick(&window, Qt::Key_Right);
    QCOMPARE(map->property("follow").toBool(), false);
    QTest::keyClick(&window, Qt::Key_N);
    QTRY_COMPARE(map->property("headingUp").toBool(), false);
    QTest::keyClick(&window, Qt::Key_N);
    QTRY_COMPARE(map->property("headingUp").toBool(), true);
    QTest::keyClick(&window, Qt::Key_Home);
    QCOMPARE(map->property("follow").toBool(), true);
    QCOMPARE(window.activeFocusItem(), map);
    QTest::keyClick(&window, Qt::Key_Tab);
    QVERIFY(window.activeFocusItem() != map);
    QTest::keyClick(&window, Qt::Key_Right);
    QTest::keyClick(&window, Qt::Key_Down);
    QVERIFY(window.activeFocusItem() != map);
    QCOMPARE(map->property("follow").toBool(), true);
}

void WorkPageTaps::FollowNewLine()
{
    m_Work->clearLine();
    QVERIFY(!m_Work->HasLine());
    QVERIFY(!Find("lightBar"));
    Tap("setA");
    QVERIFY(m_Work->HasA());
    Drive(200);
    Tap("setB");
    QVERIFY(m_Work->HasLine());
}

void WorkPageTaps::aLineIsSetAndFollowed()
{
    FollowNewLine();
    QVERIFY(Find("lightBar"));
    QVERIFY(qAbs(m_Work->OffLine()) < 0.05);
}

void WorkPageTaps::aSavedLineIsChosen()
{
    FollowNewLine();
    const TSystemSettingsProxy system;
    QVERIFY(system.GetActiveABLine() != QLatin1String(DemoField::Line));
    Tap("lines");
    QVERIFY(Find("lineChoice"));
    Tap("line.AB_1");
    QVERIFY(!Find("lineChoice"));
    QCOMPARE(system.GetActiveABLine(), QLatin1String(DemoField::Line));
    QVERIFY(m_Work->HasLine());
    const QString file = system.GetActiveABLinePath();
    Tap("lines");
    Tap("stopLine");
    QVERIFY(!Find("lineChoice"));
    QVERIFY(!m_Work->HasLine() && !m_Work->HasA());
    QVERIFY(QFileInfo::exists(file));
}

void WorkPageTaps::aLineGetsAName()
{
    Tap("lines");
    Tap("newLine");
    QVERIFY(Find("nameEntry"));
    for (const char letter : {'D', 'i', 't', 'c', 'h'})
        QTest::sendKeyEvent(QTest::Click, m_Session->Window(), Qt::Key_unknown, QString(QLatin1Char(letter)),
                            Qt::NoModifier);
    QTest::keyClick(m_Session->Window(), Qt::Key_Return);
    QVERIFY(!Find("nameEntry") && !Find("lineChoice"));
    const TSystemSettingsProxy system;
    QCOMPARE(system.GetActiveABLine(), QLatin1String("Ditch"));
    QVERIFY(!m_Work->HasA());
    Tap("setA");
    Drive(200);
    Tap("setB");
    QVERIFY(m_Work->HasLine());
    QCOMPARE(system.GetActiveABLine(), QLatin1String("Ditch"));
    QTRY_VERIFY(QFileInfo::exists(system.GetActiveABLinePath()));
    Tap("lines");
    QVERIFY(Find("line.Ditch") && Find("line.Ditch")->property("chosen").toBool());
    QTest::keyClick(m_Session->Window(), Qt::Key_Escape);
    QVERIFY(!Find("lineChoice"));
}

/// The line is followed on, and its list is there again.
void WorkPageTaps::aLineGetsAnotherName()
{
    QCOMPARE(m_Work->loadLine(QLatin1String("Ditch")), QString());
    const double offLine = m_Work->OffLine();
    const auto type = [this](const char* text) {
        for (const char* letter = text; *letter; ++letter)
            QTest::sendKeyEvent(QTest::Click, m_Session->Window(), Qt::Key_unknown, QString(QLatin1Char(*letter)),
                                Qt::NoModifier);
        QTest::keyClick(m_Session->Window(), Qt::Key_Return);
    };
    Tap("lines");
    Tap("rename.Ditch");
    QVERIFY(Find("nameEntry") && !Find("lineChoice"));
    type("ab_1"); // another line has it, in other letter case
    QVERIFY(Find("nameEntry"));
    QTest::keyClick(m_Session->Window(), Qt::Key_A, Qt::ControlModifier);
    type("Hedge");
    QVERIFY(!Find("nameEntry") && Find("lineChoice"));
    const TSystemSettingsProxy system;
    QCOMPARE(system.GetActiveABLine(), QLatin1String("Hedge"));
    QVERIFY(QFileInfo::exists(system.GetActiveABLinePath()));
    QTRY_VERIFY(Find("line.Hedge") && Find("line.Hedge")->property("chosen").toBool());
    QVERIFY(!Find("line.Ditch"));
    QVERIFY(m_Work->HasLine());
    QCOMPARE(m_Work->OffLine(), offLine);
    QTest::keyClick(m_Session->Window(), Qt::Key_Escape);
    QVERIFY(!Find("lineChoice"));
    // What is brought back is the line that was renamed.
    QCOMPARE(m_Work->loadLine(QLatin1String(DemoField::Line)), QString());
    QCOMPARE(m_Work->loadLine(QLatin1String("Hedge")), QString());
    QVERIFY(m_Work->HasLine());
    QCOMPARE(m_Work->OffLine(), offLine);
}

void WorkPageTaps::aFlagIsSet()
{
    auto* const model = static_cast<TMapModel*>(m_Work->Map());
    const auto before = model->Flags().size();
    Tap("mark");
    QCOMPARE(model->Flags().size(), before + 1);
}

void WorkPageTaps::workingIsSwitched()
{
    QVERIFY(!m_Work->IsWorking());
    Tap("working");
    QVERIFY(m_Work->IsWorking());
    auto* const model = static_cast<TMapModel*>(m_Work->Map());
    const auto before = model->Strips().size();
    Drive(50);
    QVERIFY(model->Strips().size() > before);
    Tap("working");
    QVERIFY(!m_Work->IsWorking());
}

void WorkPageTaps::aTileOpensTheChoiceOfTiles()
{
    Tap("tile.speed");
    QCOMPARE(Display()->property("page").toString(), QLatin1String("settings"));
    QCOMPARE(Display()->property("section").toString(), QLatin1String("tiles"));
    Tap("door.work");
    QCOMPARE(Display()->property("page").toString(), QLatin1String("work"));
}

void WorkPageTaps::theTilesAreTheOperators()
{
    QVERIFY(Find("tile.rate") && Find("tile.left") && !Find("tile.position"));
    m_Session->Store().SetParameter(PARAM_TILES, QLatin1String("position,time,speed"), true);
    QTRY_VERIFY(Find("tile.position"));
    QVERIFY(Find("tile.time") && Find("tile.speed") && !Find("tile.rate") && !Find("tile.left"));
    QVERIFY(Find("tile.position")->y() <= Find("tile.time")->y());
    m_Session->Store().SetParameter(PARAM_TILES, QLatin1String("rate,speed,area,productivity,flow,pressure,left"),
                                    true);
    QTRY_VERIFY(Find("tile.left"));
}

void WorkPageTaps::aLockedScreenTakesNoTaps()
{
    Tap("lock");
    QVERIFY(Find("unlock"));
    Tap("working");
    Tap("door.logs");
    QVERIFY(!m_Work->IsWorking());
    QCOMPARE(Display()->property("page").toString(), QLatin1String("work"));
    Tap("unlock"); // too short
    QVERIFY(Find("unlock"));
    const QQuickItem* const button = Find("unlock");
    const QPoint place = button->mapToScene(QPointF(button->width() / 2, button->height() / 2)).toPoint();
    QTest::mousePress(m_Session->Window(), Qt::LeftButton, Qt::NoModifier, place);
    QTRY_VERIFY(!Find("unlock"));
    QTest::mouseRelease(m_Session->Window(), Qt::LeftButton, Qt::NoModifier, place);
    Tap("door.logs");
    QCOMPARE(Display()->property("page").toString(), QLatin1String("logs"));
    Tap("door.work");
}

void WorkPageTaps::AddSizes()
{
    QTest::addColumn<QSize>("size");
    for (const QSize& size : {QSize(800, 480), QSize(480, 800), QSize(1024, 600), QSize(800, 1280), QSize(1280, 800),
                              QSize(1920, 1200), QSize(1200, 1920)})
        QTest::addRow("%dx%d", size.width(), size.height()) << size;
}

void WorkPageTaps::Resize(const QSize& size)
{
    m_Session->Window()->resize(size);
    QTRY_COMPARE(Display()->size(), QSizeF(size));
    QCoreApplication::processEvents();
}

/// Nothing of what is tapped while driving lies outside of the window, over something else, or is too small.
void WorkPageTaps::everySizeShowsWhatIsNeeded()
{
    QFETCH(const QSize, size);
    Resize(size);
    const double least = size.width() >= 1024 ? 76 : 60;
    QVector<QRectF> places;
    for (const char* const name : {"zoomIn", "zoomOut", "turn", "recentre", "setA", "setB", "lines", "mark", "working",
                                   "tile.rate", "tile.speed", "door.work", "door.settings"}) {
        const QQuickItem* const item = Find(name);
        QVERIFY2(item, name);
        const QRectF place = SceneRect(*item);
        QVERIFY2(QRectF(QPointF(0, 0), QSizeF(size)).contains(place), name);
        QVERIFY2(place.width() >= least && place.height() >= least, name);
        for (const QRectF& other : std::as_const(places))
            QVERIFY2(!place.adjusted(-7, -7, 7, 7).intersects(other), name);
        places.append(place);
    }
}

/// The page gets lower. What floats on the map stays apart, and the row of buttons has one margin at both ends.
void WorkPageTaps::aLongMessageCoversNothing()
{
    QFETCH(const QSize, size);
    Resize(size);
    QCOMPARE(m_Work->loadLine(QLatin1String(DemoField::Line)), QString());
    const QLatin1String key("example");
    CabQuick::SetProblem(key,
                         QString::fromLatin1("The coverage is kept in memory until it can be stored. ").repeated(4));
    QTRY_VERIFY(Find("problem") && Find("linePanel"));
    QTRY_VERIFY(SceneRect(*Find("linePanel")).top() >= SceneRect(*Find("problem")).bottom());
    QMap<QString, QRectF> places;
    for (const char* const name : {"linePanel", "turnTiles", "zoomIn", "zoomOut", "turn", "recentre", "setA", "setB",
                                   "lines", "mark", "working", "tile.rate"}) {
        const QQuickItem* const item = Find(name);
        if (!item && qstrcmp(name, "turnTiles") == 0)
            continue; // a large window shows all tiles
        QVERIFY2(item, name);
        const QRectF place = SceneRect(*item);
        QVERIFY2(QRectF(QPointF(0, 0), QSizeF(size)).contains(place), name);
        for (auto other = places.constBegin(); other != places.constEnd(); ++other)
            QVERIFY2(!place.adjusted(-5, -5, 5, 5).intersects(other.value()),
                     qPrintable(QLatin1String(name) + QLatin1String(" is on ") + other.key()));
        places.insert(QLatin1String(name), place);
    }
    if (places[QLatin1String("working")].top() == places[QLatin1String("setA")].top() && size.width() == 480)
        QCOMPARE(size.width() - places[QLatin1String("working")].right(), places[QLatin1String("zoomIn")].left());
    CabQuick::ClearProblem(key);
    QTRY_VERIFY(!Find("problem"));
}

/// All tiles that are chosen show, on as many pages as the window needs, each within the window and beside the others.
/// A key turns the page as a tap does.
void WorkPageTaps::everyTileIsReached()
{
    QFETCH(const QSize, size);
    const QStringList all = TParameterCatalogue::Find(PARAM_TILES)->names;
    m_Session->Store().SetParameter(PARAM_TILES, all.join(QLatin1Char(',')), true);
    Resize(size);
    // All of them have room on no page.
    QTRY_VERIFY(Find("turnTiles"));
    QStringList found;
    bool byKey = false;
    for (int page = 0; found.size() < all.size(); ++page) {
        QVERIFY2(page < all.size(), qPrintable(found.join(QLatin1Char(' '))));
        QVector<QRectF> places = {SceneRect(*Find("turnTiles")), SceneRect(*Find("working")),
                                  SceneRect(*Find("zoomIn")), SceneRect(*Find("setA"))};
        for (const QString& name : all) {
            const QQuickItem* const tile = Find(qPrintable(QLatin1String("tile.") + name));
            if (!tile)
                continue;
            QVERIFY2(!found.contains(name), qPrintable(name));
            found.append(name);
            const QRectF place = SceneRect(*tile);
            QVERIFY2(QRectF(QPointF(0, 0), QSizeF(size)).contains(place), qPrintable(name));
            for (const QRectF& other : std::as_const(places))
                QVERIFY2(!place.adjusted(-7, -7, 7, 7).intersects(other), qPrintable(name));
            places.append(place);
        }
        if (byKey) {
            QTest::keyClick(m_Session->Window(), Qt::Key_Shift); // the first key after a tap shows the focus alone
            Find("turnTiles")->forceActiveFocus();
            QTest::keyClick(m_Session->Window(), Qt::Key_Return);
        } else {
            Tap("turnTiles");
        }
        byKey = !byKey;
        QCoreApplication::processEvents();
    }
    QCOMPARE(QSet<QString>(found.begin(), found.end()), QSet<QString>(all.begin(), all.end()));
    // After the last page the first one comes again.
    QVERIFY(Find("tile.rate"));
    m_Session->Store().SetParameter(PARAM_TILES, QLatin1String("speed"), true);
    QTRY_VERIFY(Find("tile.speed") && !Find("tile.rate"));
    QVERIFY(!Find("turnTiles"));
    m_Session->Store().SetParameter(PARAM_TILES,
                                    TParameterCatalogue::FirstValue(*TParameterCatalogue::Find(PARAM_TILES)), true);
    QTRY_VERIFY(Find("tile.rate"));
}

QTEST_MAIN(WorkPageTaps)
#include "WorkPageTaps.moc"
