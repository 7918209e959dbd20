#include "TestSeed.h"
#include "support/TOpenDisplay.h"
#include "support/VisibleItems.h"

#include <QtTest>

#include <random>

/// Whoever taps and types at random finds no warning of QML, and nothing that breaks.
class RandomTaps : public QObject
{
    Q_OBJECT

private slots:
    void leaveNoWarning_data();
    void leaveNoWarning();
};

namespace {

const int Steps = 400;

/// How many of ten steps tap something that can be tapped, and how many tap anywhere; the others press keys.
const int OnTargets = 7;
const int Anywhere = 2;

const Qt::Key Keys[] = {Qt::Key_Tab,   Qt::Key_Return, Qt::Key_Escape,   Qt::Key_Down, Qt::Key_Up, Qt::Key_Left,
                        Qt::Key_Right, Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_1,    Qt::Key_A,  Qt::Key_Backspace};

class TChance
{
public:
    explicit TChance(unsigned seed) : m_Generator(seed) {}
    int Below(int count) { return std::uniform_int_distribution<int>(0, count - 1)(m_Generator); }

private:
    std::mt19937 m_Generator;
};

QString Step(TOpenDisplay& display, TChance& chance)
{
    const int kind = chance.Below(10);
    if (kind < OnTargets) {
        const QList<QQuickItem*> targets = VisibleItems::Targets(display.Content());
        if (targets.isEmpty())
            return QLatin1String("nothing to tap");
        const QQuickItem* const target = targets.at(chance.Below(static_cast<int>(targets.size())));
        const QString what = QLatin1String("tap ") + VisibleItems::Describe(*target);
        display.Tap(VisibleItems::SeenPart(*target).center());
        return what;
    }
    if (kind < OnTargets + Anywhere) {
        const QSize size = display.Window().size();
        const QPointF place(chance.Below(size.width()), chance.Below(size.height()));
        display.Tap(place);
        return QString::fromLatin1("tap at %1, %2").arg(place.x()).arg(place.y());
    }
    const Qt::Key key = Keys[chance.Below(static_cast<int>(std::size(Keys)))];
    display.Press(key);
    return QString::fromLatin1("press key %1").arg(key);
}

} // namespace

void RandomTaps::leaveNoWarning_data()
{
    QTest::addColumn<QSize>("size");
    QTest::newRow("landscape") << QSize(1280, 800);
    QTest::newRow("small") << QSize(800, 480);
    QTest::newRow("portrait") << QSize(800, 1280);
}

void RandomTaps::leaveNoWarning()
{
    QFETCH(QSize, size);
    TOpenDisplay display(size);
    QVERIFY2(display.IsOpen(), qPrintable(display.Problem()));
    TChance chance(TestSeed());
    QStringList steps;
    for (int step = 0; step < Steps; ++step) {
        steps.append(Step(display, chance));
        const int shown = 10;
        QVERIFY2(display.Warnings().isEmpty(),
                 qPrintable(display.Warnings().join(QLatin1Char('\n')) + QLatin1String("\nafter\n") +
                            steps.mid(std::max(0, step - shown)).join(QLatin1Char('\n'))));
    }
}

QTEST_MAIN(RandomTaps)
#include "RandomTaps.moc"
