#include "MapWindow.h"
#include "Track.h"

#include <QtTest>

#include <limits>

namespace {

constexpr double Nan = std::numeric_limits<double>::quiet_NaN();

tagMapVehicle VehicleAt(const QPointF& place, double heading) { return {place, heading, 12, 6, true}; }

bool IsClose(const QPointF& a, const QPointF& b)
{
    return std::abs(a.x() - b.x()) < 1e-6 && std::abs(a.y() - b.y()) < 1e-6;
}

} // namespace

class MapViewMoves : public QObject
{
    Q_OBJECT

private slots:
    void RoundStepsAreOneTwoOrFive_data()
    {
        QTest::addColumn<double>("most");
        QTest::addColumn<double>("step");
        QTest::newRow("1") << 1.0 << 1.0;
        QTest::newRow("1.99") << 1.99 << 1.0;
        QTest::newRow("2") << 2.0 << 2.0;
        QTest::newRow("4.9") << 4.9 << 2.0;
        QTest::newRow("5") << 5.0 << 5.0;
        QTest::newRow("30") << 30.0 << 20.0;
        QTest::newRow("1000") << 1000.0 << 1000.0;
        QTest::newRow("0.09") << 0.09 << 0.05;
        QTest::newRow("0") << 0.0 << 0.0;
        QTest::newRow("negative") << -3.0 << 0.0;
        QTest::newRow("not a number") << Nan << 0.0;
        QTest::newRow("infinite") << std::numeric_limits<double>::infinity() << 0.0;
    }
    void RoundStepsAreOneTwoOrFive()
    {
        QFETCH(double, most);
        QFETCH(double, step);
        QVERIFY2(std::abs(RoundStep(most) - step) < 1e-12, qPrintable(QString::number(RoundStep(most))));
    }

    void EveryZoomHasARoundScale_data()
    {
        QTest::addColumn<double>("unit");
        QTest::newRow("metres") << 1.0;
        QTest::newRow("feet") << 0.3048;
    }
    void EveryZoomHasARoundScale()
    {
        QFETCH(double, unit);
        TMapItem map;
        map.SetLengthUnit(unit);
        for (int zoom = 0; zoom < ZoomLevels; ++zoom) {
            map.SetZoom(zoom);
            QCOMPARE(map.Zoom(), zoom);
            QVERIFY(zoom == 0 || map.PixelMetres() < MetresPerPixel[std::size_t(zoom - 1)]);
            const double shown = map.ScaleMetres() / unit;
            const double digit = shown / std::pow(10, std::floor(std::log10(shown * 1.000001)));
            QVERIFY(std::abs(digit - 1) < 1e-6 || std::abs(digit - 2) < 1e-6 || std::abs(digit - 5) < 1e-6);
            QVERIFY(map.ScaleLength() <= GridPixelsMost + 1e-9 && map.ScaleLength() >= GridPixelsMost / 2.5 - 1e-9);
            QVERIFY(std::abs(map.ScaleLength() * map.PixelMetres() - map.ScaleMetres()) < 1e-9);
        }
    }

    void ZoomEndsAtItsLevels()
    {
        TMapItem map;
        QSignalSpy changes(&map, &TMapItem::zoomChanged);
        map.SetZoom(1);
        map.zoomOut();
        map.zoomOut();
        QCOMPARE(map.Zoom(), 0);
        QCOMPARE(changes.count(), 2);
        map.SetZoom(1000);
        QCOMPARE(map.Zoom(), ZoomLevels - 1);
        map.zoomIn();
        QCOMPARE(map.Zoom(), ZoomLevels - 1);
        QCOMPARE(changes.count(), 3);
        map.zoomOut();
        QCOMPARE(map.PixelMetres(), MetresPerPixel[MetresPerPixel.size() - 2]);
    }

    void PlacesAndPointsAreInverse_data()
    {
        QTest::addColumn<double>("bearing");
        for (const double bearing : {0.0, 33.0, 90.0, 180.0, 271.5})
            QTest::addRow("%g", bearing) << bearing;
    }
    void PlacesAndPointsAreInverse()
    {
        QFETCH(double, bearing);
        const tagMapView view = {{12, -7}, {300, 200}, bearing, 0.25};
        QVERIFY(IsClose(view.PointOf(view.centre), view.anchor));
        QVERIFY(IsClose(view.PlaceAt(view.PointOf({100, 40})), {100, 40}));
        // A place ahead is above.
        const double angle = qDegreesToRadians(bearing);
        const QPointF ahead = view.PointOf(view.centre + 10 * QPointF(std::sin(angle), std::cos(angle)));
        QVERIFY(IsClose(ahead, view.anchor - QPointF(0, 40)));
        // One to the right of it is on the right.
        const QPointF right = view.PointOf(view.centre + 10 * QPointF(std::cos(angle), -std::sin(angle)));
        QVERIFY(IsClose(right, view.anchor + QPointF(40, 0)));
    }

    void TheMapFollowsTheVehicle()
    {
        TMapModel model;
        TMapItem map;
        map.setSize({1000, 600});
        map.SetModel(&model);
        for (const double heading : {0.0, 45.0, 200.0}) {
            model.SetVehicle(VehicleAt({heading, 2 * heading}, heading));
            QVERIFY(IsClose(map.pointOf({heading, 2 * heading}), {500, 408})); // 68 % down: most is seen ahead
            QCOMPARE(map.Bearing(), heading);
        }
    }

    void NorthStaysUpWhereItIsChosen()
    {
        TMapModel model;
        TMapItem map;
        map.setSize({1000, 600});
        map.SetModel(&model);
        map.SetHeadingUp(false);
        model.SetVehicle(VehicleAt({10, 20}, 77));
        QCOMPARE(map.Bearing(), 0.0);
        QVERIFY(IsClose(map.pointOf({10, 20}), {500, 300}));
        QSignalSpy turns(&map, &TMapItem::bearingChanged);
        map.SetHeadingUp(true);
        QCOMPARE(map.Bearing(), 77.0);
        QCOMPARE(turns.count(), 1);
    }

    void TheVehicleStandsInTheFreePart()
    {
        TMapModel model;
        TMapItem map;
        map.setSize({1000, 600});
        map.SetModel(&model);
        model.SetVehicle(VehicleAt({0, 0}, 90));
        map.SetFree({100, 0, 500, 400});
        QVERIFY(IsClose(map.pointOf({0, 0}), {350, 272}));
        map.SetHeadingUp(false);
        QVERIFY(IsClose(map.pointOf({0, 0}), {350, 200}));
    }

    void AfterAPanTheGroundStays()
    {
        TMapModel model;
        TMapItem map;
        map.setSize({1000, 600});
        map.SetModel(&model);
        model.SetVehicle(VehicleAt({0, 0}, 30));
        const QPointF place = map.placeAt({200, 100});
        QSignalSpy follow(&map, &TMapItem::followChanged);
        map.pan(40, -25);
        QVERIFY(!map.IsFollowing());
        QCOMPARE(follow.count(), 1);
        QVERIFY(IsClose(map.pointOf(place), {240, 75}));

        model.SetVehicle(VehicleAt({500, 500}, 120));
        QVERIFY(IsClose(map.pointOf(place), {240, 75}));
        QCOMPARE(map.Bearing(), 30.0);

        const QPointF middle = map.placeAt({500, 300});
        map.zoomIn();
        QVERIFY(IsClose(map.pointOf(middle), {500, 300}));

        map.recentre();
        QVERIFY(map.IsFollowing());
        QVERIFY(IsClose(map.pointOf({500, 500}), {500, 408}));
        QCOMPARE(map.Bearing(), 120.0);
    }

    void APanEndsFarAwayAndIgnoresWhatIsNoNumber()
    {
        TMapItem map;
        map.setSize({1000, 600});
        map.pan(Nan, 0);
        QVERIFY(map.IsFollowing());
        map.pan(1e300, -1e300);
        const QPointF place = map.placeAt({500, 300});
        QVERIFY(std::abs(place.x()) <= 1e6 && std::abs(place.y()) <= 1e6);
    }

    void WithoutAVehicleTheFieldIsInTheMiddle()
    {
        TMapModel model;
        TMapItem map;
        map.setSize({1000, 600});
        map.SetModel(&model);
        QVERIFY(IsClose(map.pointOf({0, 0}), {500, 300}));
        model.SetAreas({{MAP_AREA_EXTERNAL_BOUNDARY, Outline({{100, 200}, {300, 200}, {300, 600}})}});
        QVERIFY(IsClose(map.pointOf({200, 400}), {500, 300}));
    }

    void AVehicleThatIsNowhereIsNotFollowed()
    {
        TMapModel model;
        TMapItem map;
        map.setSize({1000, 600});
        map.SetModel(&model);
        model.SetVehicle(VehicleAt({Nan, 0}, 0));
        QVERIFY(IsClose(map.pointOf({0, 0}), {500, 300}));
        model.SetVehicle(VehicleAt({5, 5}, Nan));
        QVERIFY(IsClose(map.pointOf({0, 0}), {500, 300}));
    }

    void TheMapOutlivesItsModel()
    {
        tagMapWindow shown;
        auto model = std::make_unique<TMapModel>();
        model->SetStrips({{{{{-6, 0}, {6, 0}, {6, 20}, {-6, 20}}}}});
        shown.map->SetModel(model.get());
        QVERIFY(IsNear(shown.Picture().pixelColor(shown.Pixel({0, 10})), shown.map->CoverageColor()));
        model.reset();
        QVERIFY(shown.map->Model() == nullptr);
        QVERIFY(IsNear(shown.Picture().pixelColor(shown.Pixel({0.5, 10.5})), shown.map->MapColor()));
    }
};

QTEST_MAIN(MapViewMoves)
#include "MapViewMoves.moc"
