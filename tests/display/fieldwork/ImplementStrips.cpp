#include "display/fieldwork/TStripMaker.h"

#include <QtTest>

#include <cmath>

namespace {

const QDateTime Start(QDate(2024, 5, 1), QTime(6, 0), Qt::UTC);

QDateTime At(double seconds) { return Start.addMSecs(std::llround(seconds * 1000)); }

bool IsAt(const tagPlanePoint& place, double east, double north)
{
    return std::abs(place.east - east) < 1e-9 && std::abs(place.north - north) < 1e-9;
}

} // namespace

class ImplementStrips : public QObject
{
    Q_OBJECT

private slots:
    void theEndsAreThoseOfTheImplement();
    void nothingIsCoveredWithoutWork();
    void aStandingVehicleCoversNothing();
    void gapsAreNotCovered_data();
    void gapsAreNotCovered();
    void aNewWidthBeginsANewStrip();
    void theFrontStaysInFrontWhenDrivingBack();
};

void ImplementStrips::theEndsAreThoseOfTheImplement()
{
    TStripMaker maker;
    maker.SetImplement({12, 4, 1});
    QVERIFY(!maker.MoveTo({{100, 50}, 0}, At(0), true)); // to the north
    auto strip = maker.MoveTo({{100, 51}, 0}, At(0.4), true);
    QVERIFY(strip);
    QVERIFY(IsAt(strip->corners[0], 94, 46)); // left and right before
    QVERIFY(IsAt(strip->corners[1], 106, 46));
    QVERIFY(IsAt(strip->corners[2], 106, 47)); // right and left after
    QVERIFY(IsAt(strip->corners[3], 94, 47));

    strip = maker.MoveTo({{101, 52}, 90}, At(0.8), true); // has turned to the east
    QVERIFY(strip);
    QVERIFY(IsAt(strip->corners[0], 94, 47)); // joins the one before
    QVERIFY(IsAt(strip->corners[1], 106, 47));
    QVERIFY(IsAt(strip->corners[2], 97, 46));
    QVERIFY(IsAt(strip->corners[3], 97, 58));
}

void ImplementStrips::nothingIsCoveredWithoutWork()
{
    TStripMaker maker;
    QVERIFY(!maker.MoveTo({{0, 0}, 0}, At(0), true));
    QVERIFY(!maker.MoveTo({{0, 1}, 0}, At(0.1), false));
    QVERIFY(!maker.MoveTo({{0, 2}, 0}, At(0.2), true)); // the first one again
    QVERIFY(maker.MoveTo({{0, 3}, 0}, At(0.3), true));
    QVERIFY(!maker.MoveTo({{0, 4}, qQNaN()}, At(0.4), true)); // its front is not known
    QVERIFY(!maker.MoveTo({{0, 5}, 0}, At(0.5), true));
}

void ImplementStrips::aStandingVehicleCoversNothing()
{
    TStripMaker maker;
    QVERIFY(!maker.MoveTo({{0, 0}, 0}, At(0), true));
    for (int i = 1; i < 1000; ++i)
        QVERIFY(!maker.MoveTo({{0.02 * (i % 3), 0.02 * (i % 2)}, 0}, At(i * 0.1), true));
    // What it has moved meanwhile is not lost.
    const auto strip = maker.MoveTo({{0, 0.5}, 0}, At(100), true);
    QVERIFY(strip);
    QVERIFY(IsAt(strip->corners[0], -6, -4));
}

void ImplementStrips::gapsAreNotCovered_data()
{
    QTest::addColumn<double>("metres");
    QTest::addColumn<double>("seconds");
    QTest::addColumn<bool>("isCovered");
    QTest::newRow("next fix") << 0.28 << 0.1 << true;
    QTest::newRow("fixes are missing") << 8.0 << 2.9 << true;
    QTest::newRow("jump") << 21.0 << 0.1 << false;
    QTest::newRow("long pause") << 5.0 << 3.1 << false;
    QTest::newRow("the clock went back") << 5.0 << -10.0 << false;
}

void ImplementStrips::gapsAreNotCovered()
{
    QFETCH(double, metres);
    QFETCH(double, seconds);
    QFETCH(bool, isCovered);
    TStripMaker maker;
    QVERIFY(!maker.MoveTo({{0, 0}, 0}, At(0), true));
    QCOMPARE(maker.MoveTo({{0, metres}, 0}, At(seconds), true).has_value(), isCovered);
    QVERIFY(maker.MoveTo({{0, metres + 0.3}, 0}, At(seconds + 0.1), true)); // and it goes on
}

void ImplementStrips::aNewWidthBeginsANewStrip()
{
    TStripMaker maker;
    QVERIFY(!maker.MoveTo({{0, 0}, 0}, At(0), true));
    maker.SetImplement({24, 0, 1});
    QVERIFY(!maker.MoveTo({{0, 0.3}, 0}, At(0.1), true));
    const auto strip = maker.MoveTo({{0, 0.6}, 0}, At(0.2), true);
    QVERIFY(strip);
    QVERIFY(IsAt(strip->corners[0], -12, 0.3));
}

void ImplementStrips::theFrontStaysInFrontWhenDrivingBack()
{
    QCOMPARE(HeadingAfter(qQNaN(), 200), 200.0);
    QCOMPARE(HeadingAfter(10, qQNaN()), 10.0); // stands
    QCOMPARE(HeadingAfter(350, 20), 20.0);     // turns
    QCOMPARE(HeadingAfter(20, 195), 15.0);     // drives back
    QCOMPARE(HeadingAfter(15, 190), 10.0);     // and goes on back
    QCOMPARE(HeadingAfter(10, 12), 12.0);      // forward again
    QCOMPARE(HeadingAfter(300, 125), 305.0);
}

QTEST_GUILESS_MAIN(ImplementStrips)
#include "ImplementStrips.moc"
