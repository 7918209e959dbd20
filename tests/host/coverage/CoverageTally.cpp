#include "Drive.h"

#include "coverage/TCoverageTally.h"

#include <QtTest>

#include <cmath>

namespace {

void AddAll(TCoverageTally& tally, const std::vector<tagCoverageStrip>& strips)
{
    for (const tagCoverageStrip& strip : strips)
        tally.Add(strip);
}

/// Passes side by side, @p spacing from each other.
void AddField(TCoverageTally& tally, double heading, double width, double spacing, int passes, int strips)
{
    const double radians = heading * std::acos(-1.0) / 180;
    for (int pass = 0; pass < passes; ++pass) {
        const tagPlanePoint start = {-300.123 + pass * spacing * std::cos(radians),
                                     77.7 - pass * spacing * std::sin(radians)};
        AddAll(tally, Pass(start, heading, width, 0.28, strips));
    }
}

void Compare(double actual, double expected, double relative)
{
    QVERIFY2(std::abs(actual - expected) <= relative * expected,
             qPrintable(QString::fromLatin1("%1 instead of %2").arg(actual, 0, 'f', 3).arg(expected, 0, 'f', 3)));
}

} // namespace

class CoverageTally : public QObject
{
    Q_OBJECT

private slots:
    void areasAreThoseOfTheGeometry_data();
    void areasAreThoseOfTheGeometry();
    void groundThatIsCoveredTwiceCountsOnce();
    void gapsAreNotCounted();
    void aTurnOnTheSpotCrossesItself();
    void stripsThatMeetLeaveNoSeam();
    void whatIsNoPlaceIsLeftOut();
    void clearForgetsAll();
};

void CoverageTally::areasAreThoseOfTheGeometry_data()
{
    QTest::addColumn<double>("heading");
    QTest::addColumn<double>("width");
    QTest::addColumn<double>("spacing");
    for (const double heading : {0.0, 15.0, 45.0, 90.0, 133.3, 180.0, 261.0}) {
        QTest::addRow("1 m at %g", heading) << heading << 1.0 << 0.9;
        QTest::addRow("12 m at %g", heading) << heading << 12.0 << 12.0;
        QTest::addRow("12 m with overlap at %g", heading) << heading << 12.0 << 11.37;
        QTest::addRow("48 m with overlap at %g", heading) << heading << 48.0 << 47.0;
    }
}

void CoverageTally::areasAreThoseOfTheGeometry()
{
    QFETCH(double, heading);
    QFETCH(double, width);
    QFETCH(double, spacing);
    const int passes = 8;
    const int strips = 600;
    TCoverageTally tally;
    AddField(tally, heading, width, spacing, passes, strips);
    const double length = strips * 0.28;
    const double expected = ((passes - 1) * spacing + width) * length;
    // Edges along the diagonal of the cells: all of them are off by the same part of a cell.
    const double diagonal = std::sqrt(0.5) * TCoverageTally::CellSize * length;
    Compare(tally.Area(), expected, std::max(0.001, std::fmod(heading, 45) == 0 ? diagonal / expected : 0));
    Compare(tally.Distance(), passes * length, 1e-9);
}

void CoverageTally::groundThatIsCoveredTwiceCountsOnce()
{
    TCoverageTally tally;
    AddField(tally, 15, 12, 12, 3, 500);
    const double once = tally.Area();
    AddField(tally, 15, 12, 12, 3, 500);
    QCOMPARE(tally.Area(), once);
    Compare(tally.Distance(), 2 * 3 * 500 * 0.28, 1e-9);

    // Across it, only the ends are new.
    TCoverageTally cross;
    AddAll(cross, Pass({-100, 0}, 90, 10, 0.5, 400));
    AddAll(cross, Pass({0, -100}, 0, 10, 0.5, 400));
    Compare(cross.Area(), 2 * 200 * 10 - 10 * 10, 0.001);
}

void CoverageTally::gapsAreNotCounted()
{
    TCoverageTally tally;
    AddField(tally, 30, 12, 12.5, 6, 500);
    Compare(tally.Area(), 6 * 12 * 500 * 0.28, 0.001);
}

void CoverageTally::aTurnOnTheSpotCrossesItself()
{
    // The left end goes forward while the right end goes back: two triangles that meet in the middle.
    TCoverageTally tally;
    tally.Add({{tagPlanePoint{-6, 0}, {6, 4}, {6, -4}, {-6, 8}}});
    // The ends run between y = 0 and 8 on the left and from 4 down to -4 on the right; the edges meet at x = 2.
    const double left = 8 * 8 / 2.0;
    const double right = 8 * 4 / 2.0;
    Compare(tally.Area(), left + right, 0.01);
}

void CoverageTally::stripsThatMeetLeaveNoSeam()
{
    for (const double heading : {0.0, 7.0, 45.0, 211.0}) {
        TCoverageTally inOne;
        AddAll(inOne, Pass({3.3, -4.4}, heading, 12, 280, 1));
        TCoverageTally inParts;
        AddAll(inParts, Pass({3.3, -4.4}, heading, 12, 0.28, 1000));
        Compare(inParts.Area(), inOne.Area(), 1e-5);
    }
}

void CoverageTally::whatIsNoPlaceIsLeftOut()
{
    TCoverageTally tally;
    const tagCoverageStrip good = Pass({0, 0}, 0, 12, 0.3, 1).front();
    for (const double wrong : {qQNaN(), qInf(), -qInf(), 1e7, 1e300}) {
        tagCoverageStrip strip = good;
        strip.corners[2].north = wrong;
        tally.Add(strip);
        strip = good;
        strip.corners[0].east = -wrong;
        tally.Add(strip);
    }
    QCOMPARE(tally.Area(), 0.0);
    QCOMPARE(tally.Distance(), 0.0);
    tally.Add(good);
    Compare(tally.Area(), 12 * 0.3, 0.01);
}

void CoverageTally::clearForgetsAll()
{
    TCoverageTally tally;
    AddField(tally, 0, 12, 12, 2, 100);
    tally.Clear();
    QCOMPARE(tally.Area(), 0.0);
    QCOMPARE(tally.Distance(), 0.0);
    AddField(tally, 0, 12, 12, 2, 100);
    Compare(tally.Area(), 24 * 28, 0.001);
}

QTEST_GUILESS_MAIN(CoverageTally)
#include "CoverageTally.moc"
