#include "HeapTrend.h"
#include "TestLength.h"
#include "TestSeed.h"
#include "support/RestingHeap.h"
#include "support/TOpenDisplay.h"
#include "support/VisibleItems.h"

#include "display/fieldwork/TWork.h"
#include "display/map/TMapModel.h"
#include "module/CabQuick.h"
#include "receiver/TReceiver.h"

#include <QFile>
#include <QPointer>
#include <QQmlEngine>
#include <QtTest>

#include <cmath>
#include <ctime>
#include <memory>
#include <random>
#include <unistd.h>
#include <vector>

/// Whoever taps and types at random, while the terminal works on the simulated receiver, finds no warning of QML,
/// nothing that breaks, and no memory that grows.
class RandomTaps : public QObject
{
    Q_OBJECT

private slots:
    void seeMemoryThatIsKept();
    void tellGrowthFromNoise_data();
    void tellGrowthFromNoise();
    void leaveNoWarning_data();
    void leaveNoWarning();
};

namespace {

/// How many steps are taken at each size. CABSETTINGS_TEST_LENGTH=300 takes 300 times as many, which is about an
/// hour.
const int Steps = 50;

/// After how many steps the memory is looked at.
const int SampleSteps = 5;

/// What the map keeps of the work: a strip of coverage, with what the figures need of it, and a flag, with its picture.
const double BytesPerStrip = 64;
const double BytesPerFlag = 850;

/// No frame takes more of the processor.
const double SlowMilliseconds = 100;

/// Runs of this length or longer fail by a slow frame or by memory that grows. Any run tells of both: in a short one,
/// other tests may take the place of its memory in the caches of the processor, and its own caches still fill.
const int LengthToJudge = 10;

/// What the display's caches never take while they fill, in bytes. They take up to 0.9 MB. Any run fails beyond it.
const double MostOfCaches = 3e6;

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

double Megabytes(double bytes)
{
    const double bytesPerMegabyte = 1024 * 1024;
    return bytes / bytesPerMegabyte;
}

double ResidentMegabytes()
{
    QFile file(QLatin1String("/proc/self/statm"));
    if (!file.open(QIODevice::ReadOnly))
        return std::nan("");
    return Megabytes(file.readAll().split(' ').value(1).toDouble() * static_cast<double>(sysconf(_SC_PAGESIZE)));
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

private:
    void Count(double cost)
    {
        ++m_Frames;
        m_Slowest = std::max(m_Slowest, cost);
    }

    QMetaObject::Connection m_Connection;
    double m_Since = WorkedMilliseconds();
    double m_Slowest = 0;
    int m_Frames = 0;
};

void StartWork(const TOpenDisplay& display)
{
    TWork::Of(*qmlEngine(&display.Window()))->SetWorking(true);
    CabQuick::Receiver().SetRunning(true);
}

/// The restart that an operator may ask for ends the program. Here no event loop would run any more, and no frame be
/// drawn. Something has to hear of it all the same: the engine warns of an end that nobody hears of.
void GoOnAtRestart(const TOpenDisplay& display)
{
    QQmlEngine& engine = *qmlEngine(&display.Window());
    QObject::disconnect(&engine, &QQmlEngine::exit, QCoreApplication::instance(), nullptr);
    QObject::connect(&engine, &QQmlEngine::exit, &engine, [] { qDebug("restart asked for"); });
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

/// Compiles what is compiled once, and loads what is kept from then on: each page is shown, and the list of languages,
/// whose names need fonts of many scripts.
void WarmUp(TOpenDisplay& display)
{
    for (const QString& page : TOpenDisplay::Pages())
        display.ShowPage(page);
    display.ShowPage(QLatin1String("settings-region"));
    while (!display.Tap(QLatin1String("Language")) && display.Tap(QLatin1String("Rows below"))) {
    }
}

/// What the memory was, now and then.
class THeapSamples
{
public:
    void Take(TOpenDisplay& display)
    {
        const double heap = RestingHeap(display);
        const TMapModel& map = *qobject_cast<TMapModel*>(TWork::Of(*qmlEngine(&display.Window()))->Map());
        m_Heap.push_back(heap - static_cast<double>(map.Strips().size()) * BytesPerStrip -
                         static_cast<double>(map.Flags().size()) * BytesPerFlag);
        m_Resident.push_back(ResidentMegabytes());
    }

    /// Bytes, without those of coverage and flags.
    const std::vector<double>& Heap() const { return m_Heap; }

    /// The samples at the start, at the quarters and at the end.
    void Tell() const
    {
        const int quarters = 4;
        for (std::size_t quarter = 0; quarter <= quarters; ++quarter) {
            const std::size_t at = (m_Heap.size() - 1) * quarter / quarters;
            qDebug("sample %d of %d: heap %.2f MB, resident memory %.1f MB", static_cast<int>(at + 1),
                   static_cast<int>(m_Heap.size()), Megabytes(m_Heap[at]), m_Resident[at]);
        }
    }

private:
    std::vector<double> m_Heap;
    std::vector<double> m_Resident;
};

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

void RandomTaps::seeMemoryThatIsKept()
{
    const std::size_t before = HeapTrend::BytesInUse();
    const std::size_t each = 1000;
    const std::size_t count = 10000;
    std::vector<std::unique_ptr<char[]>> kept;
    for (std::size_t index = 0; index < count; ++index)
        kept.push_back(std::make_unique<char[]>(each));
    kept.push_back(std::make_unique<char[]>(each * count));
    QVERIFY(HeapTrend::BytesInUse() >= before + 2 * each * count);
}

void RandomTaps::tellGrowthFromNoise_data()
{
    QTest::addColumn<int>("samples");
    QTest::addColumn<double>("bytesPerSample");
    QTest::addColumn<bool>("isGrowing");
    QTest::newRow("none, few") << 12 << 0.0 << false;
    QTest::newRow("none, many") << 4000 << 0.0 << false;
    QTest::newRow("less, few") << 12 << -1e6 << false;
    QTest::newRow("growth, few") << 12 << 1e6 << true;
    QTest::newRow("growth far below the noise, many") << 4000 << 200.0 << true;
}

void RandomTaps::tellGrowthFromNoise()
{
    QFETCH(int, samples);
    QFETCH(double, bytesPerSample);
    QFETCH(bool, isGrowing);
    std::mt19937 generator(TestSeed());
    std::normal_distribution<double> noise(20e6, 200e3);
    std::vector<double> heap;
    for (int sample = 0; sample < samples; ++sample)
        heap.push_back(noise(generator) + sample * bytesPerSample);
    QCOMPARE(HeapTrend::IsGrowing(HeapTrend::Of(heap)), isGrowing);
}

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
    GoOnAtRestart(display);
    TChance chance(TestSeed());
    TFrameCosts costs(display.Window());
    QStringList steps;
    QStringList slow;
    double longest = 0; // of the steps: the looks at the memory are not of the display
    WarmUp(display);
    THeapSamples heap;
    for (int step = 0; step < Steps * TestLength(); ++step) {
        if (step % SampleSteps == 0)
            heap.Take(display);
        const int shown = 10;
        if (steps.size() > shown)
            steps.removeFirst();
        const int frames = costs.Frames();
        steps.append(Step(display, chance, costs));
        QVERIFY2(costs.Frames() > frames,
                 qPrintable(QLatin1String("no frame after\n") + steps.join(QLatin1Char('\n'))));
        if (chance.Below(UnlockedAfter) == 0)
            QVERIFY(Unlock(display));
        QVERIFY2(display.Warnings().isEmpty(), qPrintable(display.Warnings().join(QLatin1Char('\n')) +
                                                          QLatin1String("\nafter\n") + steps.join(QLatin1Char('\n'))));
        longest = std::max(longest, costs.Slowest());
        if (costs.Slowest() > SlowMilliseconds)
            slow.append(
                QString::fromLatin1("%1 ms of the processor: %2").arg(costs.Slowest(), 0, 'f', 0).arg(steps.last()));
    }
    qDebug("%d steps, %d of them with a frame above %.0f ms of the processor, the longest %.0f ms",
           Steps * TestLength(), static_cast<int>(slow.size()), SlowMilliseconds, longest);
    for (const QString& step : slow)
        qDebug("%s", qPrintable(step));
    heap.Tell();
    const HeapTrend::tagTrend trend = HeapTrend::Of(heap.Heap());
    const QString growth = QString::fromLatin1("the heap grows by %1 MB, give or take %2 MB")
                               .arg(Megabytes(trend.growth), 0, 'f', 3)
                               .arg(Megabytes(trend.noise), 0, 'f', 3);
    qDebug("%s", qPrintable(growth));
    QVERIFY2(trend.growth < MostOfCaches, qPrintable(growth));
    if (TestLength() < LengthToJudge)
        return;
    QVERIFY2(!HeapTrend::IsGrowing(trend), qPrintable(growth));
    QVERIFY2(slow.isEmpty(), qPrintable(slow.join(QLatin1Char('\n'))));
}

QTEST_MAIN(RandomTaps)
#include "RandomTaps.moc"
