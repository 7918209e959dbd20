#include "support/TOpenDisplay.h"
#include "support/VisibleItems.h"

#include <QtTest>

/// What a finger is to hit on any page is large enough, and apart from what is beside it and from the text above it.
class PageTargets : public QObject
{
    Q_OBJECT

private slots:
    void areLargeEnoughAndApart_data();
    void areLargeEnoughAndApart();
    void allHaveNames();
};

namespace {

/// On a screen of 160 dots per inch, and on one of 480 lines, which has about 130.
const int LeastSize = 76;
const int LeastSizeOfLowScreen = 60;
const double LeastGap = 8;

/// Between the line of a text and what is below it: the tail of a letter that reaches a button looks like a part of it.
const double LeastGapBelowText = 2;

/// Places are at fractions of a pixel.
const double Tolerance = 0.51;

void AddSizes()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<int>("least");
    QTest::newRow("800x480") << QSize(800, 480) << LeastSizeOfLowScreen;
    QTest::newRow("480x800") << QSize(480, 800) << LeastSizeOfLowScreen;
    QTest::newRow("800x1280") << QSize(800, 1280) << LeastSize;
    QTest::newRow("1024x768") << QSize(1024, 768) << LeastSize;
    QTest::newRow("1280x800") << QSize(1280, 800) << LeastSize;
    QTest::newRow("1920x1200") << QSize(1920, 1200) << LeastSize;
}

/// How far two places are from each other; 0 when they overlap.
double Gap(const QRectF& first, const QRectF& second)
{
    const double across = std::max(first.left() - second.right(), second.left() - first.right());
    const double along = std::max(first.top() - second.bottom(), second.top() - first.bottom());
    return std::max(0.0, std::max(across, along));
}

bool Touches(const QQuickItem& text, const QQuickItem& target)
{
    const QRectF letters = VisibleItems::Letters(text);
    const QRectF place = VisibleItems::SeenPart(target);
    const bool isAbove = letters.center().y() < place.top() && place.top() - letters.bottom() < LeastGapBelowText;
    const bool isInColumn = letters.left() < place.right() && letters.right() > place.left();
    return isAbove && isInColumn && VisibleItems::Layer(text) == VisibleItems::Layer(target);
}

} // namespace

void PageTargets::areLargeEnoughAndApart_data() { AddSizes(); }

void PageTargets::areLargeEnoughAndApart()
{
    QFETCH(QSize, size);
    QFETCH(int, least);
    TOpenDisplay display(size);
    QVERIFY2(display.IsOpen(), qPrintable(display.Problem()));
    QVERIFY(display.Window().minimumWidth() <= size.width() && display.Window().minimumHeight() <= size.height());
    QCOMPARE(display.Window().size(), size);
    display.MakeExample();
    QStringList found;
    for (const QString& view : TOpenDisplay::Views()) {
        display.Show(view);
        const QList<QQuickItem*> targets = VisibleItems::Targets(display.Content());
        const QList<QQuickItem*> texts = VisibleItems::Texts(display.Content());
        QVERIFY(!targets.isEmpty());
        for (const QQuickItem* target : targets) {
            const QRectF whole = VisibleItems::WholePart(*target);
            if (std::min(whole.width(), whole.height()) < least - Tolerance)
                found.append(view + QLatin1String(": ") + VisibleItems::Describe(*target) + QLatin1String(" is small"));
            for (const QQuickItem* text : texts) {
                if (Touches(*text, *target))
                    found.append(view + QLatin1String(": ") + VisibleItems::Describe(*text) +
                                 QLatin1String(" touches ") + VisibleItems::Describe(*target));
            }
        }
        for (int first = 0; first < targets.size(); ++first) {
            for (int second = first + 1; second < targets.size(); ++second) {
                const QRectF one = VisibleItems::SeenPart(*targets.at(first));
                const QRectF other = VisibleItems::SeenPart(*targets.at(second));
                // A button that lies on a larger target, such as the map, is hit first.
                const bool isOnTop = one.contains(other);
                if (!isOnTop && Gap(one, other) < LeastGap - Tolerance)
                    found.append(view + QLatin1String(": ") + VisibleItems::Describe(*targets.at(first)) +
                                 QLatin1String(" and ") + VisibleItems::Describe(*targets.at(second)) +
                                 QLatin1String(" are near each other"));
            }
        }
    }
    QVERIFY2(found.isEmpty(), qPrintable(found.join(QLatin1Char('\n'))));
}

void PageTargets::allHaveNames()
{
    TOpenDisplay display(QSize(1280, 800));
    QVERIFY2(display.IsOpen(), qPrintable(display.Problem()));
    display.MakeExample();
    for (const QString& view : TOpenDisplay::Views()) {
        display.Show(view);
        for (const QQuickItem* target : VisibleItems::Targets(display.Content()))
            QVERIFY2(!VisibleItems::NameOf(*target).isEmpty(),
                     qPrintable(view + QLatin1String(": ") + VisibleItems::Describe(*target)));
    }
}

QTEST_MAIN(PageTargets)
#include "PageTargets.moc"
