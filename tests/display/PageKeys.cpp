#include "support/TOpenDisplay.h"
#include "support/VisibleItems.h"

#include "diagnostics/UserLogEntries.h"
#include "display/keys/FocusWalk.h"
#include "display/map/TMapItem.h"
#include "display/shot/OverlayTable.h"

#include <QPointer>
#include <QSignalSpy>
#include <QtTest>

#include <algorithm>

namespace {

/// No page has so many stops.
const int MostStops = 1500;

QString ClassOf(const QQuickItem& item) { return QString::fromLatin1(item.metaObject()->className()); }

/// What the keyboard stops at for a target: the nearest item around it that is a stop, or the field beside it.
QQuickItem* StopOf(const QQuickItem* target)
{
    for (QQuickItem* item = target->parentItem(); item; item = item->parentItem()) {
        if (item->activeFocusOnTab())
            return item;
        for (QQuickItem* const child : item->childItems()) {
            if (child->inherits("QQuickTextInput") && child->activeFocusOnTab())
                return child;
        }
    }
    return nullptr;
}

/// The keypad hears the keyboard itself, so its keys are no stops.
bool IsHeardByKeypad(const QQuickItem& target)
{
    const QQuickItem* item = &target;
    while (item && !ClassOf(*item).startsWith(QLatin1String("KeypadKey")))
        item = item->parentItem();
    return item != nullptr;
}

/// The frame of what has the focus; null when none is drawn.
QQuickItem* RingOf(const QQuickItem& stop)
{
    QList<QQuickItem*> near = stop.childItems();
    near += stop.parentItem()->childItems();
    for (QQuickItem* const item : near) {
        const bool isRing = ClassOf(*item).startsWith(QLatin1String("FocusRing")) && item->isVisible();
        if (isRing && item->property("target").value<QQuickItem*>() == &stop)
            return item;
    }
    return nullptr;
}

/// What is wrong with how the focus shows; empty when nothing is.
QString WhatIsUnseen(const QQuickItem& stop)
{
    const QQuickItem* const ring = RingOf(stop);
    // A field has a border that changes, and a cursor.
    const QQuickItem* const frame = ring ? ring : stop.inherits("QQuickTextInput") ? stop.parentItem() : nullptr;
    if (!frame)
        return QLatin1String("has no frame");
    const QRectF whole = frame->mapRectToScene(QRectF(0, 0, frame->width(), frame->height()));
    const double most = 1; // places are at fractions of a pixel
    return VisibleItems::SeenPart(*frame).adjusted(-most, -most, most, most).contains(whole)
               ? QString()
               : QLatin1String("has a frame that is cut off");
}

bool IsBelow(const QQuickItem* item, const QQuickItem* root)
{
    while (item && item != root)
        item = item->parentItem();
    return item != nullptr;
}

/// What covers the page in this view; null when nothing does.
QQuickItem* CoverOf(const TOpenDisplay& display, const QString& view)
{
    const tagOverlay* const overlay = FindOverlay(view);
    QQuickItem* const shown = overlay ? VisibleItems::Named(display.Content(), QLatin1String(overlay->shown)) : nullptr;
    return shown && shown->metaObject()->indexOfMethod("close()") >= 0 ? shown : nullptr;
}

/// As any first key after a tap: this one does nothing else.
void ShowFocus(QQuickWindow& window) { QTest::keyClick(&window, Qt::Key_Shift); }

/// Presses Tab or Shift+Tab until the focus is where it began. Says what is wrong on the way.
QStringList Walk(const TOpenDisplay& display, const QString& view, bool isForward)
{
    QQuickWindow& window = display.Window();
    QStringList found;
    struct tagMissing
    {
        QPointer<QQuickItem> stop;
        QString name;
    };
    QList<tagMissing> missing;
    for (const QQuickItem* target : VisibleItems::Targets(display.Content())) {
        const QString name = view + QLatin1String(": ") + VisibleItems::NameOf(*target);
        if (QQuickItem* const stop = StopOf(target))
            missing.append({stop, name});
        else if (!IsHeardByKeypad(*target))
            found.append(name + QLatin1String(" is no stop"));
    }
    ShowFocus(window);
    QQuickItem* const cover = CoverOf(display, view);
    // The last stop: the first one may be a button that turns a list, which goes away at the list's end.
    QQuickItem* const first = TabFocus(cover ? cover : &display.Content(), nullptr, false);
    first->forceActiveFocus(Qt::TabFocusReason);
    QQuickItem* stop = nullptr;
    for (int step = 0; step < MostStops && stop != first; ++step) {
        QTest::keyClick(&window, Qt::Key_Tab, isForward ? Qt::NoModifier : Qt::ShiftModifier);
        stop = window.activeFocusItem();
        if (!stop || !IsFocusStop(*stop))
            return found << view + QLatin1String(": the focus is lost");
        missing.erase(
            std::remove_if(missing.begin(), missing.end(), [stop](const tagMissing& row) { return row.stop == stop; }),
            missing.end());
        const QString wrong = WhatIsUnseen(*stop);
        if (!wrong.isEmpty())
            found.append(view + QLatin1String(": ") + VisibleItems::NameOf(*stop) + QLatin1Char(' ') + wrong);
        if (cover && !IsBelow(stop, cover))
            found.append(view + QLatin1String(": the focus is behind it"));
    }
    if (stop != first)
        found.append(view + QLatin1String(": the walk has no end"));
    for (const tagMissing& row : missing) {
        // The rows that have the focus are shown: at the last one there is nothing to turn to.
        if (!row.stop || row.stop->isEnabled())
            found.append(row.name + QLatin1String(isForward ? " is not reached" : " is not reached backwards"));
    }
    return found;
}

void Activate(TOpenDisplay& display)
{
    display.Window().requestActivate();
    QVERIFY(QTest::qWaitForWindowActive(&display.Window()));
}

/// The first stop of the page that is made of this file, or has this name.
QQuickItem* FindStop(QQuickItem& root, const QString& name)
{
    const bool isIt = ClassOf(root).startsWith(name + QLatin1String("_QMLTYPE")) || root.objectName() == name;
    if (!root.isVisible() || !root.isEnabled())
        return nullptr;
    if (isIt && !VisibleItems::SeenPart(root).isEmpty())
        return IsFocusStop(root) ? &root : TabFocus(&root, &root, true);
    for (QQuickItem* const child : root.childItems()) {
        if (QQuickItem* const found = FindStop(*child, name))
            return found;
    }
    return nullptr;
}

} // namespace

/// Everything that can be done by taps can be done by keys, and the focus is always seen.
class PageKeys : public QObject
{
    Q_OBJECT

private slots:
    void reachEveryTarget_data();
    void reachEveryTarget();
    void doWhatATapDoes_data();
    void doWhatATapDoes();
    void returnToWhereTheyWere_data();
    void returnToWhereTheyWere();
    void goOnWhenWhatTheyActOnGoesAway();
    void showTheirFrameUntilATap_data();
    void showTheirFrameUntilATap();
    void typeIntoAFieldWithoutAFrame();
    void reachNothingBelowTheLock();
    void walkThroughLists();
    void turnPagesOfLists_data();
    void turnPagesOfLists();
    void scrollTheLogs();
};

void PageKeys::reachEveryTarget_data()
{
    QTest::addColumn<QSize>("size");
    QTest::newRow("800x480") << QSize(800, 480);
    QTest::newRow("1280x800") << QSize(1280, 800);
}

void PageKeys::reachEveryTarget()
{
    QFETCH(const QSize, size);
    TOpenDisplay display(size);
    QVERIFY2(display.IsOpen(), qPrintable(display.Problem()));
    display.MakeExample();
    Activate(display);
    QStringList found;
    for (const QString& view : TOpenDisplay::Views()) {
        display.Show(view);
        found += Walk(display, view, true);
        found += Walk(display, view, false);
    }
    QVERIFY2(found.isEmpty(), qPrintable(found.join(QLatin1Char('\n'))));
}

void PageKeys::doWhatATapDoes_data()
{
    QTest::addColumn<QString>("view");
    QTest::addColumn<QString>("stop");
    QTest::addColumn<QByteArray>("signal");
    const auto row = [](const char* stop, const char* view, const char* signal) {
        QTest::newRow(stop) << QString::fromLatin1(view) << QString::fromLatin1(stop)
                            << QByteArray::number(QSIGNAL_CODE) + signal;
    };
    row("Door", "work", "clicked()");
    row("QuantityTile", "work", "clicked()");
    row("RateTile", "work", "clicked()");
    row("IconButton", "work", "clicked()");
    row("WorkingButton", "work", "clicked()");
    row("Segments", "settings-units", "chosen(QVariant)");
    row("ListRow", "settings-about", "clicked()");
    row("PushButton", "receiver", "clicked()");
    row("ValueButton", "settings-machine", "clicked()");
    row("Swatch", "settings-colors", "clicked()");
    row("remove", "item", "clicked()");
}

void PageKeys::doWhatATapDoes()
{
    QFETCH(const QString, view);
    QFETCH(const QString, stop);
    QFETCH(const QByteArray, signal);
    TOpenDisplay display(QSize(1280, 800));
    QVERIFY2(display.IsOpen(), qPrintable(display.Problem()));
    display.MakeExample();
    Activate(display);
    QVariantList said; // by a tap, then by each key
    for (const int key : {0, int(Qt::Key_Return), int(Qt::Key_Enter), int(Qt::Key_Space)}) {
        display.ShowPage(QLatin1String(view == QLatin1String("logs") ? "work" : "logs"));
        display.Show(view);
        QQuickItem* const item = FindStop(display.Content(), stop);
        QVERIFY(item);
        // Of a row of segments the row says what was chosen.
        QObject* sender = item;
        while (sender->metaObject()->indexOfSignal(signal.constData() + 1) < 0) {
            sender = qobject_cast<QQuickItem*>(sender)->parentItem();
            QVERIFY(sender);
        }
        QSignalSpy spy(sender, signal.constData());
        const QRectF place = item->mapRectToScene(QRectF(0, 0, item->width(), item->height()));
        if (key == 0) {
            display.Tap(place.center());
        } else {
            ShowFocus(display.Window());
            TabFocus(&display.Content(), item, true)->forceActiveFocus(Qt::TabFocusReason);
            const QImage before = display.Picture().copy(place.toRect());
            item->forceActiveFocus(Qt::TabFocusReason);
            const QImage after = display.Picture().copy(place.toRect());
            QVERIFY(!before.isNull());
            QVERIFY(before != after);
            QTest::keyClick(&display.Window(), static_cast<Qt::Key>(key));
        }
        QCOMPARE(spy.count(), 1);
        said.append(QVariant(spy.first()));
        QCOMPARE(said.last(), said.first());
    }
}

void PageKeys::returnToWhereTheyWere_data()
{
    QTest::addColumn<QString>("page");
    QTest::addColumn<QString>("button");
    const auto row = [](const char* page, const char* button) {
        QTest::newRow(button) << QString::fromLatin1(page) << QString::fromLatin1(button);
    };
    row("settings-machine", "implementWidth");
    row("settings-machine", "active.implement");
    row("settings-region", "setClock");
    row("settings-region", "region.language");
    row("settings-colors", "color");
    row("receiver", "address");
    row("fields", "add");
    row("fields", "change");
    row("work", "lock");
}

void PageKeys::returnToWhereTheyWere()
{
    QFETCH(const QString, page);
    QFETCH(const QString, button);
    TOpenDisplay display(QSize(1280, 800));
    QVERIFY2(display.IsOpen(), qPrintable(display.Problem()));
    display.MakeExample();
    Activate(display);
    display.SetParameter(QLatin1String("receiver.address"), QLatin1String("tcp://receiver.example.org:2947"));
    display.Show(page);
    display.Press(Qt::Key_Tab);
    QQuickItem* const stop = FindStop(display.Content(), button);
    QVERIFY(stop);
    stop->forceActiveFocus(Qt::TabFocusReason);
    display.Press(Qt::Key_Return);
    QQuickItem* const within = display.Window().activeFocusItem();
    QVERIFY(within && within != stop && IsFocusStop(*within));
    QCOMPARE(WhatIsUnseen(*within), QString());
    if (QQuickItem* const lock = VisibleItems::Named(display.Content(), QLatin1String("lockLayer"))) {
        QMetaObject::invokeMethod(lock, "close"); // a long hold of the button
        QTRY_COMPARE(display.Window().activeFocusItem(), stop);
    } else {
        display.Press(Qt::Key_Escape);
    }
    QCOMPARE(display.Window().activeFocusItem(), stop);
}

/// The button that takes a setting back goes away when it has done so; a page goes with Escape.
void PageKeys::goOnWhenWhatTheyActOnGoesAway()
{
    TOpenDisplay display(QSize(1280, 800));
    QVERIFY2(display.IsOpen(), qPrintable(display.Problem()));
    display.MakeExample();
    Activate(display);
    display.SetParameter(QLatin1String("units.metric"), false);
    display.Show(QLatin1String("settings-units"));
    display.Press(Qt::Key_Tab);
    QQuickItem* const row = FindStop(display.Content(), QLatin1String("parameter row"));
    QVERIFY(row && ClassOf(*row).startsWith(QLatin1String("IconButton")));
    row->forceActiveFocus(Qt::TabFocusReason);
    display.Press(Qt::Key_Return);
    QTRY_VERIFY(!row->isVisible());
    const auto isSeen = [&display] {
        const QQuickItem* const stop = display.Window().activeFocusItem();
        return stop && IsFocusStop(*stop) && WhatIsUnseen(*stop).isEmpty();
    };
    QTRY_VERIFY(isSeen());
    QVERIFY(IsBelow(display.Window().activeFocusItem(), row->parentItem()));
    display.Press(Qt::Key_Escape);
    QTRY_VERIFY(isSeen());
    QVERIFY(!qobject_cast<TMapItem*>(display.Window().activeFocusItem())); // arrow keys would move it
    display.Tap(QPointF(400, 300));
    display.ShowPage(QLatin1String("receiver"));
    QVERIFY(!isSeen()); // who works by taps sees no focus
}

void PageKeys::showTheirFrameUntilATap_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("Tab") << int(Qt::Key_Tab);
    QTest::newRow("arrow") << int(Qt::Key_Left);
    QTest::newRow("Enter") << int(Qt::Key_Return);
    QTest::newRow("space bar") << int(Qt::Key_Space);
}

/// The first key after a tap shows where the focus is, and does not act on what was not seen.
void PageKeys::showTheirFrameUntilATap()
{
    QFETCH(const int, key);
    TOpenDisplay display(QSize(1280, 800));
    QVERIFY2(display.IsOpen(), qPrintable(display.Problem()));
    Activate(display);
    display.Show(QLatin1String("settings-units"));
    QQuickItem* const stop = FindStop(display.Content(), QLatin1String("door.logs"));
    QVERIFY(stop);
    QVERIFY(!RingOf(*stop));
    display.Press(Qt::Key_Tab);
    stop->forceActiveFocus(Qt::TabFocusReason);
    QVERIFY(RingOf(*stop));

    QVERIFY(display.Tap(QLatin1String("Acre")));
    QCOMPARE(display.Window().activeFocusItem(), stop);
    QVERIFY(!RingOf(*stop));
    QSignalSpy clicked(stop, SIGNAL(clicked()));
    display.Press(static_cast<Qt::Key>(key));
    QCOMPARE(display.Window().activeFocusItem(), stop);
    QVERIFY(RingOf(*stop));
    QCOMPARE(clicked.count(), 0);

    display.Press(Qt::Key_Left);
    QQuickItem* const next = display.Window().activeFocusItem();
    QVERIFY(next != stop);
    QCOMPARE(WhatIsUnseen(*next), QString());
}

/// They may be keys on the screen, which are tapped.
void PageKeys::typeIntoAFieldWithoutAFrame()
{
    TOpenDisplay display(QSize(1280, 800));
    QVERIFY2(display.IsOpen(), qPrintable(display.Problem()));
    Activate(display);
    const QObject& keys = *display.Window().findChild<QObject*>(QLatin1String("display"));
    display.ShowPage(QStringLiteral("fields"));
    QVERIFY(display.Tap(QStringLiteral("New client")));
    display.Type(QStringLiteral("North"));
    display.Press(Qt::Key_Left);
    QVERIFY(!keys.property("byKeys").toBool());
    display.Press(Qt::Key_Tab);
    QVERIFY(keys.property("byKeys").toBool());
}

/// Escape leads from any page to the map, but not from a screen that is locked.
void PageKeys::reachNothingBelowTheLock()
{
    TOpenDisplay display(QSize(1280, 800));
    QVERIFY2(display.IsOpen(), qPrintable(display.Problem()));
    Activate(display);
    display.Show(QLatin1String("settings-units"));
    const QObject& pages = *display.Window().findChild<QObject*>(QLatin1String("display"));
    QCOMPARE(pages.property("page").toString(), QStringLiteral("settings"));
    QVERIFY(display.Tap(QLatin1String("Lock the screen")));
    QVERIFY(VisibleItems::Named(display.Content(), QLatin1String("lockLayer")));
    for (const Qt::Key key : {Qt::Key_Escape, Qt::Key_Tab, Qt::Key_Down, Qt::Key_Escape})
        display.Press(key);
    QVERIFY(VisibleItems::Named(display.Content(), QLatin1String("lockLayer")));
    QCOMPARE(pages.property("page").toString(), QStringLiteral("settings"));
}

/// The arrow keys go through all rows of a list, down and up.
void PageKeys::walkThroughLists()
{
    TOpenDisplay display(QSize(800, 480));
    QVERIFY2(display.IsOpen(), qPrintable(display.Problem()));
    display.MakeExample();
    Activate(display);
    display.Show(QLatin1String("settings-display"));
    QQuickItem* const first = FindStop(display.Content(), QLatin1String("parameter row"));
    QVERIFY(first);
    first->forceActiveFocus(Qt::TabFocusReason);
    QQuickItem* list = first;
    while (!list->property("lastRow").isValid())
        list = list->parentItem();
    const auto row = [list] {
        QVariant at;
        QMetaObject::invokeMethod(list, "focusedRow", Q_RETURN_ARG(QVariant, at));
        return at.toInt();
    };
    const int count = list->property("count").toInt();
    QVERIFY(count > list->property("lastRow").toInt() + 1);
    QCOMPARE(row(), 0);
    const auto go = [&](Qt::Key key, int to) {
        for (int step = 0; step < 6 * count && row() != to; ++step) {
            display.Press(key);
            QVERIFY(row() >= 0);
            QCOMPARE(WhatIsUnseen(*display.Window().activeFocusItem()), QString());
        }
        QCOMPARE(row(), to);
    };
    go(Qt::Key_Down, count - 1);
    go(Qt::Key_Up, 0);
}

void PageKeys::turnPagesOfLists_data()
{
    QTest::addColumn<QString>("page");
    QTest::addColumn<QString>("stop");
    QTest::newRow("list") << QStringLiteral("settings-display") << QStringLiteral("parameter row");
    QTest::newRow("column") << QStringLiteral("settings-region") << QStringLiteral("setClock");
}

void PageKeys::turnPagesOfLists()
{
    QFETCH(const QString, page);
    QFETCH(const QString, stop);
    TOpenDisplay display(QSize(800, 480));
    QVERIFY2(display.IsOpen(), qPrintable(display.Problem()));
    display.MakeExample();
    Activate(display);
    display.Show(page);
    display.Press(Qt::Key_Tab);
    QQuickItem* const first = FindStop(display.Content(), stop);
    QVERIFY(first);
    first->forceActiveFocus(Qt::TabFocusReason);
    QQuickItem* list = first;
    while (!list->property("lastRow").isValid())
        list = list->parentItem();
    const auto turn = [&](Qt::Key key) {
        display.Press(key);
        const QQuickItem* const now = display.Window().activeFocusItem();
        QVERIFY(now && IsFocusStop(*now) && IsBelow(now, list));
        QCOMPARE(WhatIsUnseen(*now), QString());
    };
    const int before = list->property("firstRow").toInt();
    turn(Qt::Key_PageDown);
    QVERIFY(list->property("firstRow").toInt() > before);
    turn(Qt::Key_PageUp);
    QCOMPARE(list->property("firstRow").toInt(), before);
}

void PageKeys::scrollTheLogs()
{
    TOpenDisplay display(QSize(800, 480));
    QVERIFY2(display.IsOpen(), qPrintable(display.Problem()));
    display.MakeExample();
    Activate(display);
    for (int line = 0; line < 50; ++line)
        AddUserLogEntry(DIAG_COMPONENT_CONSOLE, DIAG_TYPE_EVENT, 0, QStringLiteral("entry"), QString());
    display.Show(QLatin1String("logs"));
    QQuickItem* const lines = FindStop(display.Content(), QLatin1String("lines"));
    QVERIFY(lines);
    QTRY_VERIFY(lines->property("contentHeight").toDouble() > 2 * lines->height());
    lines->forceActiveFocus(Qt::TabFocusReason);
    const auto place = [&](Qt::Key key) {
        display.Press(key);
        return lines->property("contentY").toDouble();
    };
    const double top = place(Qt::Key_Home);
    const double below = place(Qt::Key_Down);
    QVERIFY(below > top);
    QVERIFY(place(Qt::Key_PageDown) > below + lines->height() / 2);
    QCOMPARE(display.Window().activeFocusItem(), lines);
    QVERIFY(place(Qt::Key_PageUp) <= below);
    QCOMPARE(place(Qt::Key_Home), top);
    place(Qt::Key_End);
    QVERIFY(lines->property("atYEnd").toBool());
}

QTEST_MAIN(PageKeys)
#include "PageKeys.moc"
