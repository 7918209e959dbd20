#include "guidance/LineOffset.h"

#include <QtTest>

#include <cmath>

namespace {

const double Pi = std::acos(-1.0);
const double NaN = std::numeric_limits<double>::quiet_NaN();

/// A place @p along metres from A towards B, and @p right of the line; the line has @p heading degrees.
tagPlanePoint Beside(double heading, double along, double right)
{
    const double radians = heading * Pi / 180;
    return {1000 + along * std::sin(radians) + right * std::cos(radians),
            -500 + along * std::cos(radians) - right * std::sin(radians)};
}

} // namespace

class LineOffsets : public QObject
{
    Q_OBJECT

private slots:
    void theNearestLineIsFound_data();
    void theNearestLineIsFound();
    void theSideIsThatOfTheDriver_data();
    void theSideIsThatOfTheDriver();
    void farPlacesHaveALine();
};

void LineOffsets::theNearestLineIsFound_data()
{
    QTest::addColumn<double>("right");
    QTest::addColumn<int>("line");
    QTest::addColumn<double>("distance");
    QTest::newRow("on the line") << 0.0 << 0 << 0.0;
    QTest::newRow("a little right") << 0.08 << 0 << 0.08;
    QTest::newRow("a little left") << -0.08 << 0 << -0.08;
    QTest::newRow("almost halfway") << 5.99 << 0 << 5.99;
    QTest::newRow("more than halfway") << 6.01 << 1 << -5.99;
    QTest::newRow("left of line 2") << 23.5 << 2 << -0.5;
    QTest::newRow("right of line -3") << -35.0 << -3 << 1.0;
}

void LineOffsets::theNearestLineIsFound()
{
    QFETCH(double, right);
    QFETCH(int, line);
    QFETCH(double, distance);
    for (int heading = 0; heading < 360; heading += 15) {
        const tagPlanePoint a = Beside(heading, 0, 0);
        const tagPlanePoint b = Beside(heading, 150, 0);
        for (const double along : {-400.0, 0.0, 75.0, 900.0}) {
            const tagLineOffset offset = OffsetFromLines(a, b, 12, Beside(heading, along, right), heading);
            QCOMPARE(offset.line, line);
            QVERIFY(std::abs(offset.distance - distance) < 1e-9);
            QVERIFY(offset.isAlong);
        }
    }
}

void LineOffsets::theSideIsThatOfTheDriver_data()
{
    QTest::addColumn<double>("turned"); // degrees from the direction of the line
    QTest::addColumn<bool>("isAlong");
    QTest::newRow("along") << 0.0 << true;
    QTest::newRow("a little aside") << 30.0 << true;
    QTest::newRow("almost across") << -89.0 << true;
    QTest::newRow("across, going back") << 91.0 << false;
    QTest::newRow("back") << 180.0 << false;
    QTest::newRow("back, a whole turn on") << -540.0 << false;
    QTest::newRow("not known") << NaN << true;
}

void LineOffsets::theSideIsThatOfTheDriver()
{
    QFETCH(double, turned);
    QFETCH(bool, isAlong);
    for (int heading = 0; heading < 360; heading += 15) {
        const tagPlanePoint a = Beside(heading, 0, 0);
        const tagPlanePoint b = Beside(heading, 150, 0);
        const tagLineOffset offset = OffsetFromLines(a, b, 12, Beside(heading, 50, 12.3), heading + turned);
        QCOMPARE(offset.isAlong, isAlong);
        QCOMPARE(offset.line, 1);
        QVERIFY(std::abs(offset.distance - (isAlong ? 0.3 : -0.3)) < 1e-9);
    }
}

void LineOffsets::farPlacesHaveALine()
{
    const tagLineOffset offset = OffsetFromLines({0, 0}, {0, 1}, 1, {1e12, 0}, 0);
    QCOMPARE(offset.line, std::numeric_limits<int>::max());
}

QTEST_GUILESS_MAIN(LineOffsets)
#include "LineOffsets.moc"
