#include "sun/DaySwitchStep.h"

#include <QtTest>

namespace {

const tagSunPlace Field = {52.2, 10.5};
const tagSunPlace FarNorth = {78.2, 15.6};
const QDate Date(2026, 3, 5);

const int Nothing = -1;
const int Night = 0;
const int Day = 1;

const int Minute = 60;
const int Hour = 60 * Minute;

} // namespace

/// Only a sun that passes the level switches, and only once.
class DaySwitchSteps : public QObject
{
    Q_OBJECT

private slots:
    void aStepFollowsTheSun_data();
    void aStepFollowsTheSun();
    void aDaySwitchesTwice_data();
    void aDaySwitchesTwice();
    void aDriveTowardsTheSunsetMissesNothing();
    void aTimeThatJumpsToAndFroSwitchesOnce();

private:
    static QDateTime Rise(ESunLevel level = SUN_LEVEL_HORIZON) { return SunTimes(Field, Date, level).rise; }
    static QDateTime Set(ESunLevel level = SUN_LEVEL_HORIZON) { return SunTimes(Field, Date, level).set; }
    static int Switched(const tagDaySwitchStep& step) { return step.day ? int{*step.day} : Nothing; }
};

void DaySwitchSteps::aStepFollowsTheSun_data()
{
    QTest::addColumn<QDateTime>("until");
    QTest::addColumn<int>("wasUp"); ///< -1 when it is not known
    QTest::addColumn<QDateTime>("utc");
    QTest::addColumn<bool>("isFarNorth");
    QTest::addColumn<int>("switched");
    const auto row = [](const char* name, const QDateTime& until, int wasUp, const QDateTime& utc, int switched,
                        bool isFarNorth = false) {
        QTest::newRow(name) << until << wasUp << utc << isFarNorth << switched;
    };
    const auto at = [](int month, int day, int hour) {
        return QDateTime(QDate(2026, month, day), QTime(hour, 0), Qt::UTC);
    };
    const QDateTime rise = Rise();
    const QDateTime set = Set();
    const QDateTime never;

    row("the first start ever, by day", never, -1, rise.addSecs(Hour), Day);
    row("the first start ever, at night", never, -1, set.addSecs(Hour), Night);
    row("the first start ever, in the polar night", never, -1, at(12, 21, 12), Nothing, true);
    row("the first start ever, under the midnight sun", never, -1, at(6, 21, 0), Nothing, true);

    row("a start before the sunset that follows", rise.addSecs(Minute), -1, set.addSecs(-Minute), Nothing);
    row("a start after it", rise.addSecs(Minute), -1, set.addSecs(Minute), Night);
    row("a start on the next day, of the same kind", rise.addSecs(Minute), -1, rise.addDays(1).addSecs(Hour), Day);
    row("a start weeks later", rise.addDays(-40), -1, set.addSecs(Hour), Night);
    row("a start weeks later, in the polar night", at(10, 1, 12), -1, at(12, 21, 12), Nothing, true);
    row("a start with a time from before", set.addDays(3), -1, set.addSecs(Minute), Nothing);

    row("up, and still up", rise.addSecs(Hour), 1, rise.addSecs(Hour + Minute), Nothing);
    row("up, and down", set.addSecs(-30), 1, set.addSecs(30), Night);
    row("down, and up", rise.addSecs(-30), 0, rise.addSecs(30), Day);
    row("down, and still down", set.addSecs(Hour), 0, set.addSecs(Hour + Minute), Nothing);
    row("the same moment again", set.addSecs(30), 0, set.addSecs(30), Nothing);
    row("a gap without a crossing", rise.addSecs(Hour), 1, rise.addSecs(5 * Hour), Nothing);
    row("a gap over the sunset", set.addSecs(-Hour), 1, set.addSecs(2 * Hour), Night);
    row("a gap over a night", set.addSecs(-Hour), 1, rise.addDays(1).addSecs(Hour), Day);
    row("back over the sunset", set.addSecs(30), 0, set.addSecs(-30), Nothing);
    row("back by years", set, 0, set.addYears(-3).addSecs(-Hour), Nothing);
    row("the midnight sun goes on", at(6, 21, 0), 1, at(6, 21, 23), Nothing, true);
}

void DaySwitchSteps::aStepFollowsTheSun()
{
    QFETCH(QDateTime, until);
    QFETCH(int, wasUp);
    QFETCH(QDateTime, utc);
    QFETCH(bool, isFarNorth);
    QFETCH(int, switched);
    const tagSunWatch watch = {until, wasUp < 0 ? std::nullopt : std::optional<bool>(wasUp > 0), SUN_LEVEL_HORIZON};
    const tagDaySwitchStep step = StepDaySwitch(watch, isFarNorth ? FarNorth : Field, utc, SUN_LEVEL_HORIZON);
    QCOMPARE(Switched(step), switched);
    QCOMPARE(step.watch.until, utc);
    QVERIFY(step.watch.wasUp.has_value());

    // Whatever was decided, the same moment decides nothing more.
    QCOMPARE(Switched(StepDaySwitch(step.watch, isFarNorth ? FarNorth : Field, utc, SUN_LEVEL_HORIZON)), Nothing);
}

void DaySwitchSteps::aDaySwitchesTwice_data()
{
    QTest::addColumn<int>("level");
    QTest::addColumn<int>("interval"); ///< of the looks, in seconds
    QTest::newRow("sunset, every minute") << int{SUN_LEVEL_HORIZON} << Minute;
    QTest::newRow("twilight, every minute") << int{SUN_LEVEL_TWILIGHT} << Minute;
    QTest::newRow("sunset, seldom") << int{SUN_LEVEL_HORIZON} << 45 * Minute;
}

void DaySwitchSteps::aDaySwitchesTwice()
{
    QFETCH(int, level);
    QFETCH(int, interval);
    const ESunLevel sunLevel = static_cast<ESunLevel>(level);
    const QDateTime midnight(Date, QTime(0, 0), Qt::UTC);
    tagSunWatch watch = {midnight, false, sunLevel};
    QList<QDateTime> days;
    QList<QDateTime> nights;
    for (int seconds = interval; seconds < 24 * Hour; seconds += interval) {
        const QDateTime utc = midnight.addSecs(seconds);
        const tagDaySwitchStep step = StepDaySwitch(watch, Field, utc, sunLevel);
        watch = step.watch;
        if (step.day)
            (*step.day ? days : nights).append(utc);
    }
    QCOMPARE(static_cast<int>(days.size()), 1);
    QCOMPARE(static_cast<int>(nights.size()), 1);
    const auto verifySoonAfter = [&](const QDateTime& found, const QDateTime& expected) {
        QVERIFY(expected.secsTo(found) >= 0 && expected.secsTo(found) <= interval);
    };
    verifySoonAfter(days.first(), Rise(sunLevel));
    verifySoonAfter(nights.first(), Set(sunLevel));
}

void DaySwitchSteps::aDriveTowardsTheSunsetMissesNothing()
{
    // East at half a degree a minute, the sun sets everywhere on the way just before the look before.
    const QDateTime set = Set();
    tagSunWatch watch = {set.addSecs(-Minute), true, SUN_LEVEL_HORIZON};
    QVERIFY(IsSunUp(Field, watch.until, SUN_LEVEL_HORIZON));
    const tagSunPlace east = {Field.latitude, Field.longitude + 1};
    QVERIFY(!IsSunUp(east, watch.until, SUN_LEVEL_HORIZON));
    QCOMPARE(Switched(StepDaySwitch(watch, east, set.addSecs(-30), SUN_LEVEL_HORIZON)), Night);
}

void DaySwitchSteps::aTimeThatJumpsToAndFroSwitchesOnce()
{
    for (const int distance : {Minute, 3 * Hour}) {
        const QDateTime day = Set().addSecs(-distance);
        const QDateTime night = Set().addSecs(distance);
        tagSunWatch watch = {day, true, SUN_LEVEL_HORIZON};
        for (int jump = 0; jump < 10; ++jump) {
            const bool isForth = jump % 2 == 0;
            const tagDaySwitchStep step = StepDaySwitch(watch, Field, isForth ? night : day, SUN_LEVEL_HORIZON);
            QCOMPARE(Switched(step), isForth ? Night : Nothing); // never back to the day
            watch = step.watch;
        }
    }
}

QTEST_GUILESS_MAIN(DaySwitchSteps)
#include "DaySwitchSteps.moc"
