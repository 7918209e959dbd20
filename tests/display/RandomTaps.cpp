#include "TestSeed.h"
#include "support/TOpenDisplay.h"
#include "support/VisibleItems.h"

#include "display/fieldwork/TWork.h"
#include "module/CabQuick.h"
#include "receiver/TReceiver.h"

#include <QFile>
#include <QPointer>
#include <QQmlEngine>
#include <QtTest>

#include <cmath>
#include <ctime>
#include <random>
#include <unistd.h>

/// Whoever taps and types at random, while the terminal works on the simulated receiver, finds no warning of QML,
/// nothing that breaks, and no memory that grows.
class RandomTaps : public QObject
{
    Q_OBJECT

private slots:
    void leaveNoWarning_data();
    void leaveNoWarning();
};

namespace {

/// How many steps are taken at each size. CABSETTINGS_TEST_LENGTH=240 takes 240 times as many, which is about an
/// hour.
const int Steps = 80;
const char* const LengthVariable = "CABSETTINGS_TEST_LENGTH";

/// By how much the resident memory may grow after the first Steps, in which caches fill and pages are compiled. An hour
/// of coverage is a megabyte.
const double MostGrowth = 32;

/// Frames that take more of the processor are told.
const double SlowMilliseconds = 100;

/// How many of ten steps tap something that can be tapped, and how many tap anywhere; the others press keys.
const int OnTargets = 7;
const int Anywhere = 2;

/// How many steps a locked screen is tapped, about.
const int UnlockedAfter = 10;

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

int Length()
{
    const QByteArray given = qgetenv(LengthVariable);
    return given.isEmpty() ? 1 : given.toInt();
}

double ResidentMegabytes()
{
    QFile file(QLatin1String("/proc/self/statm"));
    if (!file.open(QIODevice::ReadOnly))
        return std::nan("");
    const double bytesPerMegabyte = 1024 * 1024;
    return file.readAll().split(' ').value(1).toDouble() * static_cast<double>(sysconf(_SC_PAGESIZE)) /
           bytesPerMegabyte;
}

double WorkedMilliseconds()
{
    timespec time = {};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) / 1e6;
}

/// What each frame took of the processor, with all that led to it: the tap, positions, the making of a page.
class TFrameCosts
{
public:
    explicit TFrameCosts(QQuickWindow& window)
    {
        m_Connection = QObject::connect(&window, &QQuickWindow::frameSwapped, [this] {
            const double now = WorkedMilliseconds();
            Count(now - m_Since);
            m_Since = now;
        });
    }
    ~TFrameCosts() { QObject::disconnect(m_Connection); }

    TFrameCosts(const TFrameCosts&) = delete;
    TFrameCosts& operator=(const TFrameCosts&) = delete;

    /// What was done before is not of the display.
    void Begin()
    {
        m_Since = WorkedMilliseconds();
        m_Slowest = 0;
    }

    double Slowest() const { return m_Slowest; } ///< since Begin()
    int Frames() const { return m_Frames; }
    int SlowFrames() const { return m_SlowFrames; }

private:
    void Count(double cost)
    {
        ++m_Frames;
        m_SlowFrames += cost > SlowMilliseconds ? 1 : 0;
        m_Slowest = std::max(m_Slowest, cost);
    }

    QMetaObject::Connection m_Connection;
    double m_Since = WorkedMilliseconds();
    double m_Slowest = 0;
    int m_Frames = 0;
    int m_SlowFrames = 0;
};

void StartWork(const TOpenDisplay& display)
{
    TWork::Of(*qmlEngine(&display.Window()))->SetWorking(true);
    CabQuick::Receiver().SetRunning(true);
}

/// Taps hardly ever last long enough to unlock the screen: all steps that follow would meet the lock only.
bool Unlock(TOpenDisplay& display)
{
    const QPointer<QQuickItem> button = VisibleItems::Target(display.Content(), QLatin1String("Unlock"));
    if (!button)
        return true;
    const QPoint place = VisibleItems::SeenPart(*button).center().toPoint();
    QTest::mousePress(&display.Window(), Qt::LeftButton, Qt::NoModifier, place);
    const bool isUnlocked = QTest::qWaitFor([&button] { return !button || !button->isVisible(); });
    QTest::mouseRelease(&display.Window(), Qt::LeftButton, Qt::NoModifier, place);
    return isUnlocked;
}

QString Step(TOpenDisplay& display, TChance& chance, TFrameCosts& costs)
{
    costs.Begin();
    const int kind = chance.Below(10);
    if (kind < OnTargets) {
        const QList<QQuickItem*> targets = VisibleItems::Targets(display.Content());
        if (targets.isEmpty())
            return QLatin1String("nothing to tap");
        const QQuickItem* const target = targets.at(chance.Below(static_cast<int>(targets.size())));
        const QString what = QLatin1String("tap ") + VisibleItems::Describe(*target);
        const QPointF place = VisibleItems::SeenPart(*target).center();
        costs.Begin();
        display.Tap(place);
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
    StartWork(display);
    TChance chance(TestSeed());
    TFrameCosts costs(display.Window());
    QStringList steps;
    double warm = 0;
    for (int step = 0; step < Steps * Length(); ++step) {
        if (step == Steps)
            warm = ResidentMegabytes();
        const int shown = 10;
        if (steps.size() > shown)
            steps.removeFirst();
        steps.append(Step(display, chance, costs));
        if (chance.Below(UnlockedAfter) == 0)
            QVERIFY(Unlock(display));
        QVERIFY2(display.Warnings().isEmpty(), qPrintable(display.Warnings().join(QLatin1Char('\n')) +
                                                          QLatin1String("\nafter\n") + steps.join(QLatin1Char('\n'))));
        if (costs.Slowest() > SlowMilliseconds)
            qDebug("%.0f ms of the processor: %s", costs.Slowest(), qPrintable(steps.last()));
    }
    qDebug("%d frames, %d of them above %.0f ms of the processor", costs.Frames(), costs.SlowFrames(),
           SlowMilliseconds);
    if (warm > 0) {
        const double end = ResidentMegabytes();
        qDebug("memory: %.1f MB after %d steps, %.1f MB after %d", warm, Steps, end, Steps * Length());
        QVERIFY2(end - warm < MostGrowth, qPrintable(QString::fromLatin1("%1 MB").arg(end - warm)));
    }
}

QTEST_MAIN(RandomTaps)
#include "RandomTaps.moc"
