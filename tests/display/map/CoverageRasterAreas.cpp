#include "TestSeed.h"
#include "display/map/CoverageRaster.h"

#include <QtTest>

#include <limits>
#include <numeric>
#include <random>

namespace {

constexpr int Size = 64;

using Corners = std::array<QPointF, 4>;

Corners Box(double left, double top, double right, double bottom)
{
    return {QPointF(left, top), QPointF(right, top), QPointF(right, bottom), QPointF(left, bottom)};
}

double Sum(const TCoverageRaster& raster)
{
    double sum = 0;
    for (int y = 0; y < Size; ++y)
        sum += std::accumulate(raster.Row(y), raster.Row(y) + Size, 0);
    return sum / 255;
}

/// Turned about the middle of the tile.
Corners Turned(const Corners& corners, double degrees)
{
    const double angle = qDegreesToRadians(degrees);
    const QPointF middle(Size / 2.0, Size / 2.0);
    Corners turned;
    for (std::size_t corner = 0; corner < corners.size(); ++corner) {
        const QPointF d = corners[corner] - middle;
        turned[corner] = middle + QPointF(d.x() * std::cos(angle) - d.y() * std::sin(angle),
                                          d.x() * std::sin(angle) + d.y() * std::cos(angle));
    }
    return turned;
}

} // namespace

class CoverageRasterAreas : public QObject
{
    Q_OBJECT

private slots:
    void PixelsHoldTheAreaThatIsCovered()
    {
        TCoverageRaster raster(Size);
        QVERIFY(raster.Row(0) == nullptr);
        QVERIFY(raster.Add(Box(2, 3, 5.5, 4.25)));
        QCOMPARE(int(raster.Row(3)[2]), 255);
        QCOMPARE(int(raster.Row(3)[4]), 255);
        QCOMPARE(int(raster.Row(3)[5]), 128);
        QCOMPARE(int(raster.Row(4)[3]), 64);
        QCOMPARE(int(raster.Row(4)[5]), 32);
        QCOMPARE(int(raster.Row(3)[6]), 0);
        QCOMPARE(int(raster.Row(2)[3]), 0);
    }

    void TheAreaDoesNotDependOnTheDirection_data()
    {
        QTest::addColumn<double>("degrees");
        for (int degrees = 0; degrees < 360; degrees += 13)
            QTest::addRow("%d", degrees) << double(degrees);
    }
    void TheAreaDoesNotDependOnTheDirection()
    {
        QFETCH(double, degrees);
        TCoverageRaster raster(Size);
        QVERIFY(raster.Add(Turned(Box(20, 25, 44.5, 38.25), degrees)));
        // Each of some 80 pixels of the outline is rounded to 1/255.
        QVERIFY2(std::abs(Sum(raster) - 24.5 * 13.25) < 0.2, qPrintable(QString::number(Sum(raster))));
    }

    void NeighboursLeaveNoGap_data() { TheAreaDoesNotDependOnTheDirection_data(); }
    void NeighboursLeaveNoGap()
    {
        QFETCH(double, degrees);
        TCoverageRaster whole(Size);
        whole.Add(Turned(Box(12, 20, 52, 44), degrees));
        TCoverageRaster parts(Size);
        for (double x = 12; x < 52; x += 1.25)
            parts.Add(Turned(Box(x, 20, x + 1.25, 44), degrees));
        for (int y = 0; y < Size; ++y)
            for (int x = 0; x < Size; ++x)
                QVERIFY2(std::abs(whole.Row(y)[x] - parts.Row(y)[x]) <= 3,
                         qPrintable(QStringLiteral("%1, %2").arg(x).arg(y)));
    }

    void TheOrderDoesNotMatter()
    {
        std::mt19937 random(TestSeed());
        std::vector<Corners> all;
        for (int count = 0; count < 200; ++count) {
            Corners corners;
            for (QPointF& corner : corners)
                corner = QPointF(double(random() % 900) / 10 - 10, double(random() % 900) / 10 - 10);
            all.push_back(corners);
        }
        TCoverageRaster forward(Size);
        for (const Corners& corners : all)
            forward.Add(corners);
        TCoverageRaster backward(Size);
        for (auto corners = all.rbegin(); corners != all.rend(); ++corners)
            backward.Add(*corners);
        QVERIFY(forward == backward);
    }

    /// In a tight turn the inner end of the implement goes back.
    void BothHalvesOfCrossingSidesCount()
    {
        TCoverageRaster raster(Size);
        raster.Add({QPointF(10, 10), QPointF(30, 10), QPointF(10, 30), QPointF(30, 30)});
        QCOMPARE(int(raster.Row(12)[20]), 255);
        QCOMPARE(int(raster.Row(27)[20]), 255);
        QCOMPARE(int(raster.Row(20)[12]), 0);
    }

    void WhatReachesBeyondTheTileIsCutOff_data()
    {
        QTest::addColumn<double>("degrees");
        for (const double degrees : {0.0, 17.0, 45.0, 90.0, 133.0})
            QTest::addRow("%g", degrees) << degrees;
    }
    void WhatReachesBeyondTheTileIsCutOff()
    {
        QFETCH(double, degrees);
        TCoverageRaster raster(Size);
        QVERIFY(raster.Add(Turned(Box(-500, -500, 500, 500), degrees)));
        for (int y = 0; y < Size; ++y)
            for (int x = 0; x < Size; ++x)
                QVERIFY(raster.Row(y)[x] >= 254);
    }

    void NothingIsAddedOutside_data()
    {
        QTest::addColumn<QPointF>("corner");
        constexpr double Nan = std::numeric_limits<double>::quiet_NaN();
        constexpr double Inf = std::numeric_limits<double>::infinity();
        QTest::newRow("left") << QPointF(-60, 10);
        QTest::newRow("right") << QPointF(Size, 10);
        QTest::newRow("above") << QPointF(10, -60);
        QTest::newRow("below") << QPointF(10, Size);
        QTest::newRow("not a number") << QPointF(Nan, 10);
        QTest::newRow("infinite") << QPointF(10, Inf);
        QTest::newRow("too far") << QPointF(10, 1e12);
    }
    void NothingIsAddedOutside()
    {
        QFETCH(QPointF, corner);
        TCoverageRaster raster(Size);
        const QPointF offset(50, 50);
        QVERIFY(!raster.Add({corner, corner + QPointF(50, 0), corner + offset, corner + QPointF(0, 50)}));
        QCOMPARE(raster.Bytes(), std::size_t(0));
    }
};

QTEST_APPLESS_MAIN(CoverageRasterAreas)
#include "CoverageRasterAreas.moc"
