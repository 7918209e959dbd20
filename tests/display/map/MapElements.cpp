#include "MapWindow.h"

#include <QtTest>

namespace {

tagMapStrip Strip(float west, float south, float east, float north)
{
    return {{{{west, south}, {east, south}, {east, north}, {west, north}}}};
}

/// Metres from the origin along which the pictures are read; 0.25 m are a pixel.
constexpr double Pixel = 0.25;

/// A place between grid lines, which are 20 m from each other.
constexpr QPointF Bare(7, 13);

} // namespace

class MapElements : public QObject
{
    Q_OBJECT

    static void AddHeadings()
    {
        QTest::addColumn<double>("heading");
        for (const double heading : {0.0, 30.0, 90.0, 225.0})
            QTest::addRow("heading %g", heading) << heading;
    }

    static tagMapVehicle Vehicle(double heading = 0) { return {{0, 0}, heading, 12, 20, true}; }

    /// The number of changes between bare ground and anything else on the way.
    static int Dashes(const QImage& picture, QPoint from, QPoint step, const QColor& ground)
    {
        int changes = 0;
        bool wasGround = true;
        for (QPoint at = from; picture.rect().contains(at); at += step) {
            const bool isGround = IsNear(picture.pixelColor(at), ground, 8);
            changes += isGround != wasGround ? 1 : 0;
            wasGround = isGround;
        }
        return changes;
    }

private slots:
    void GroundAndGridAreWhereTheyAre_data() { AddHeadings(); }
    void GroundAndGridAreWhereTheyAre()
    {
        QFETCH(double, heading);
        tagMapWindow shown;
        shown.model.SetVehicle({{0, -500}, heading, 12, 20, true});
        shown.map->pan(0, 0);
        shown.model.SetVehicle({{0, 5000}, heading, 12, 20, true});
        const QImage picture = shown.Picture();
        QCOMPARE(picture.size(), QSize(800, 800));
        const QPointF middle = shown.map->placeAt({400, 400});
        const QPointF grid(std::round(middle.x() / 20) * 20, std::round(middle.y() / 20) * 20);
        QCOMPARE(shown.map->ScaleMetres(), 20.0);
        QVERIFY(IsNear(picture.pixelColor(shown.Pixel(grid + Bare)), shown.map->MapColor()));
        // A line of one pixel, turned, is spread over two.
        int darkest = 255;
        for (double off = -1; off <= 1; off += 0.25)
            darkest = std::min(darkest, picture.pixelColor(shown.Pixel(grid + QPointF(off * Pixel, 7))).red());
        QVERIFY(darkest < shown.map->MapColor().red() - 6);
    }

    void CoverageIsWhereTheImplementWas_data() { AddHeadings(); }
    void CoverageIsWhereTheImplementWas()
    {
        QFETCH(double, heading);
        tagMapWindow shown;
        shown.model.SetVehicle({{0, 0}, heading, 12, 2, true});
        for (float north = -30; north < 40; ++north)
            shown.model.AddStrip(Strip(24, north, 36, north + 1));
        const QImage picture = shown.Picture();
        for (double north = -29; north < 39; north += 3) {
            QVERIFY(IsNear(picture.pixelColor(shown.Pixel({30, north})), shown.map->CoverageColor()));
            QVERIFY(IsNear(picture.pixelColor(shown.Pixel({25.2, north})), shown.map->CoverageColor()));
            QVERIFY(!IsNear(picture.pixelColor(shown.Pixel({36.8, north})), shown.map->CoverageColor(), 20));
            QVERIFY(!IsNear(picture.pixelColor(shown.Pixel({23.2, north})), shown.map->CoverageColor(), 20));
        }
        QVERIFY(!IsNear(picture.pixelColor(shown.Pixel({30, 41})), shown.map->CoverageColor(), 20));
        // The seam is darker.
        int darkest = 255;
        for (double east = 24; east < 25; east += 0.1)
            darkest = std::min(darkest, picture.pixelColor(shown.Pixel({east, 11.5})).green());
        QVERIFY(darkest < shown.map->CoverageColor().green() - 10);
    }

    void StripsAppearAsTheyAreAdded()
    {
        tagMapWindow shown;
        shown.map->SetHeadingUp(false);
        shown.model.SetVehicle(Vehicle());
        QVERIFY(IsNear(shown.Picture().pixelColor(shown.Pixel({33, 33})), shown.map->MapColor()));
        shown.model.AddStrip(Strip(25, 25, 38, 38));
        QVERIFY(IsNear(shown.Picture().pixelColor(shown.Pixel({33, 33})), shown.map->CoverageColor()));
        shown.model.SetStrips({});
        QVERIFY(IsNear(shown.Picture().pixelColor(shown.Pixel({33, 33})), shown.map->MapColor()));
    }

    void BoundariesAreDrawnOnTheirOutline_data()
    {
        QTest::addColumn<int>("kind");
        QTest::addColumn<bool>("isDashed");
        QTest::newRow("external") << int(MAP_AREA_EXTERNAL_BOUNDARY) << false;
        QTest::newRow("internal") << int(MAP_AREA_INTERNAL_BOUNDARY) << false;
        QTest::newRow("inactive") << int(MAP_AREA_INACTIVE_BOUNDARY) << true;
    }
    void BoundariesAreDrawnOnTheirOutline()
    {
        QFETCH(int, kind);
        QFETCH(bool, isDashed);
        tagMapWindow shown;
        shown.map->SetHeadingUp(false);
        shown.map->SetGridColor(shown.map->MapColor());
        shown.map->SetCrossHairsColor(shown.map->MapColor());
        shown.model.SetAreas({{EMapArea(kind), QPolygonF(QRectF(-60, -50, 120, 100))}});
        const QImage picture = shown.Picture();
        const std::array<QColor, 3> colors = {shown.map->ExternalBoundaryColor(), shown.map->InternalBoundaryColor(),
                                              shown.map->InactiveBoundariesColor()};
        const QColor color = colors[std::size_t(kind)];
        for (const bool isAcross : {true, false}) {
            int onLine = 0;
            int inside = 0;
            int steps = 0;
            for (double at = -45; at <= 45; at += Pixel, ++steps) {
                onLine += IsNear(picture.pixelColor(shown.Pixel(isAcross ? QPointF(at, 50) : QPointF(-60, at))), color);
                inside += IsNear(picture.pixelColor(shown.Pixel(isAcross ? QPointF(at, 47) : QPointF(-57, at))),
                                 shown.map->MapColor());
            }
            QCOMPARE(inside, steps);
            if (isDashed) { // four of seven
                QVERIFY2(onLine > steps * 45 / 100 && onLine < steps * 65 / 100, qPrintable(QString::number(onLine)));
                QVERIFY(Dashes(picture, shown.Pixel({-45, 50}), {1, 0}, shown.map->MapColor()) > 10);
            } else {
                QCOMPARE(onLine, steps);
            }
        }
    }

    /// Colour is not the only sign of a zone.
    void ExclusionZonesAreHatched()
    {
        tagMapWindow shown;
        shown.map->SetHeadingUp(false);
        shown.map->SetGridColor(shown.map->MapColor());
        shown.map->SetCrossHairsColor(shown.map->MapColor());
        shown.model.SetAreas({{MAP_AREA_EXCLUSION_ZONE, QPolygonF(QRectF(-50, -40, 100, 80))}});
        const QImage picture = shown.Picture();
        int lines = 0;
        int tinted = 0;
        int bare = 0;
        for (double at = -45; at <= 45; at += Pixel) {
            const QColor color = picture.pixelColor(shown.Pixel({at, 10}));
            lines += IsNear(color, shown.map->ExclusionZoneColor(), 40);
            tinted += IsNear(color, Mix(shown.map->MapColor(), shown.map->ExclusionZoneColor(), 0.25), 6);
            bare += IsNear(color, shown.map->MapColor(), 6);
        }
        QVERIFY2(lines > 30 && tinted > 180 && bare == 0,
                 qPrintable(QStringLiteral("%1 %2 %3").arg(lines).arg(tinted).arg(bare)));
        QVERIFY(IsNear(picture.pixelColor(shown.Pixel({-52, 10})), shown.map->MapColor()));
    }

    void GuidanceLinesAreASpacingApart_data() { AddHeadings(); }
    void GuidanceLinesAreASpacingApart()
    {
        QFETCH(double, heading);
        tagMapWindow shown;
        shown.map->SetGridColor(shown.map->MapColor());
        shown.map->SetCrossHairsColor(shown.map->MapColor());
        shown.model.SetVehicle({{0, 0}, heading, 2, 2, true});
        constexpr double Spacing = 24;
        shown.model.SetGuidance(
            {{-30, -100}, {-30, 50}, Spacing, 2, true}); // northwards: the second to the right is at 18
        const QImage picture = shown.Picture();
        const QColor active = shown.map->TrackColor();
        for (const double north : {-22.0, 25.0, 33.0}) {
            for (int line = -2; line <= 6; ++line) {
                const QPointF place(-30 + Spacing * line, north);
                if (!picture.rect().adjusted(2, 2, -2, -2).contains(shown.Pixel(place)))
                    continue;
                const QColor color = picture.pixelColor(shown.Pixel(place));
                if (line == 2) {
                    QVERIFY(IsNear(color, active, 6));
                    for (const double side : {-Pixel, Pixel}) // it is five pixels wide
                        QVERIFY(IsNear(picture.pixelColor(shown.Pixel(place + QPointF(side, 0))), active, 40));
                } else {
                    QVERIFY(!IsNear(color, active, 40));
                    QVERIFY(!IsNear(color, shown.map->MapColor(), 6));
                }
                const QPointF between = place + QPointF(Spacing / 2, 0);
                if (picture.rect().contains(shown.Pixel(between)))
                    QVERIFY(IsNear(picture.pixelColor(shown.Pixel(between)), shown.map->MapColor()));
            }
        }
    }

    /// All of them, near each other, would be a hatch in which the line to drive is lost.
    void NearGuidanceLinesAreShownNextToTheActiveOneOnly_data()
    {
        QTest::addColumn<double>("pixels");
        QTest::addColumn<int>("first");
        QTest::addColumn<int>("last");
        QTest::newRow("too near") << 17.0 << 3 << 3;
        QTest::newRow("near") << 18.0 << 1 << 5;
        QTest::newRow("12 m, first zoom") << 48.0 << 1 << 5;
        QTest::newRow("still near") << 69.0 << 1 << 5;
        QTest::newRow("apart") << 70.0 << -1 << 7;
    }
    void NearGuidanceLinesAreShownNextToTheActiveOneOnly()
    {
        QFETCH(double, pixels);
        QFETCH(int, first);
        QFETCH(int, last);
        tagMapWindow shown;
        shown.map->SetHeadingUp(false);
        shown.map->SetGridColor(shown.map->MapColor());
        shown.map->SetCrossHairsColor(shown.map->MapColor());
        const double spacing = pixels * Pixel;
        constexpr int Active = 3;
        shown.model.SetGuidance({{-Active * spacing, -100}, {-Active * spacing, 50}, spacing, Active, true});
        const QImage picture = shown.Picture();
        for (int line = Active - 4; line <= Active + 4; ++line) {
            const double east = (line - Active) * spacing;
            bool isThere = false;
            for (const double side : {-Pixel, 0.0, Pixel})
                isThere = isThere || !IsNear(picture.pixelColor(shown.Pixel({east + side, 33})), shown.map->MapColor());
            QVERIFY2(isThere == (line >= first && line <= last), qPrintable(QString::number(line)));
        }
    }

    void OnlyAIsAMark()
    {
        tagMapWindow shown;
        shown.map->SetHeadingUp(false);
        shown.model.SetGuidance({{30, 30}, {}, 12, 0, false});
        const QImage picture = shown.Picture();
        QVERIFY(IsNear(picture.pixelColor(shown.Pixel({30, 30})), shown.map->TrackColor()));
        QVERIFY(IsNear(picture.pixelColor(shown.Pixel({33, 33})), shown.map->MapColor()));
    }

    void FlagsPointAtTheirPlace_data() { AddHeadings(); }
    void FlagsPointAtTheirPlace()
    {
        QFETCH(double, heading);
        tagMapWindow shown;
        shown.map->SetFlagColor(QColor(255, 0, 255));
        shown.model.SetVehicle(Vehicle(heading));
        shown.model.SetFlags({{33, 27}, {-27, 15}});
        const QImage picture = shown.Picture();
        for (const QPointF& flag : shown.model.Flags()) {
            const QPoint foot = shown.Pixel(flag);
            QVERIFY(IsNear(picture.pixelColor(foot - QPoint(0, 8)), shown.map->FlagColor()));
            QVERIFY(!IsNear(picture.pixelColor(foot + QPoint(0, 4)), shown.map->FlagColor(), 60));
        }
        shown.model.SetFlags({{33, 27}});
        const QImage one = shown.Picture();
        QVERIFY(!IsNear(one.pixelColor(shown.Pixel({-27, 15}) - QPoint(0, 8)), shown.map->FlagColor(), 60));
        QVERIFY(IsNear(one.pixelColor(shown.Pixel({33, 27}) - QPoint(0, 8)), shown.map->FlagColor()));
    }

    void TheImplementIsAsWideAsItIs_data()
    {
        QTest::addColumn<bool>("isHeadingUp");
        QTest::addColumn<double>("width");
        for (const bool isHeadingUp : {true, false})
            for (const double width : {8.0, 12.0, 36.0})
                QTest::addRow("%s up, %g m", isHeadingUp ? "heading" : "north", width) << isHeadingUp << width;
    }
    void TheImplementIsAsWideAsItIs()
    {
        QFETCH(bool, isHeadingUp);
        QFETCH(double, width);
        tagMapWindow shown;
        shown.map->SetHeadingUp(isHeadingUp);
        shown.model.SetVehicle({{0, 0}, 60, width, 20, true});
        const QImage picture = shown.Picture();
        const QPointF ahead(std::sin(qDegreesToRadians(60.0)), std::cos(qDegreesToRadians(60.0)));
        const QPointF right(ahead.y(), -ahead.x());
        const QColor color = shown.map->VehicleColor();
        QVERIFY(IsNear(picture.pixelColor(shown.Pixel(ahead * 3)), color, 8) || !isHeadingUp); // cross hairs
        for (const double side : {-1.0, 1.0}) {
            const QPointF end = right * (side * width / 2) - ahead * 20;
            QVERIFY(IsNear(picture.pixelColor(shown.Pixel(end - right * side * 0.6)), color, 8));
            QVERIFY(!IsNear(picture.pixelColor(shown.Pixel(end + right * side * 0.8)), color, 60));
        }
    }

    /// The tractor is drawn larger than it is.
    void TheTractorDoesNotHideTheImplement_data()
    {
        QTest::addColumn<double>("behind");
        for (const double behind : {-5.0, -1.0, 0.0, 3.0, 20.0})
            QTest::addRow("%g m", behind) << behind;
    }
    void TheTractorDoesNotHideTheImplement()
    {
        QFETCH(double, behind);
        tagMapWindow shown;
        shown.map->SetGridColor(shown.map->MapColor());
        shown.model.SetVehicle({{0, 0}, 0, 8, behind, true});
        const QImage picture = shown.Picture();
        const QPoint bar = shown.Pixel({0, -behind});
        const QColor color = shown.map->VehicleColor();
        const int toTractor = behind < 0 ? 1 : -1;
        for (const int side : {-1, 1}) { // beside the drawbar
            QVERIFY(IsNear(picture.pixelColor(bar + QPoint(side * 14, 0)), color));
            QVERIFY(IsNear(picture.pixelColor(bar + QPoint(side * 6, toTractor * 6)), shown.map->MapColor(), 60));
            QVERIFY(IsNear(picture.pixelColor(bar + QPoint(side * 6, -toTractor * 6)), shown.map->MapColor()));
        }
    }

    void ALiftedImplementIsAnOutline()
    {
        tagMapWindow shown;
        shown.map->SetHeadingUp(false);
        shown.model.SetVehicle({{0, 0}, 0, 12, 20, true});
        const QPoint bar = shown.Pixel({3, -20});
        QVERIFY(IsNear(shown.Picture().pixelColor(bar), shown.map->VehicleColor()));
        shown.model.SetVehicle({{0, 0}, 0, 12, 20, false});
        QVERIFY(IsNear(shown.Picture().pixelColor(bar), shown.map->MapColor()));
        shown.model.ClearVehicle();
        shown.map->SetGridColor(shown.map->MapColor());
        QVERIFY(IsNear(shown.Picture().pixelColor(shown.Pixel({0, -20})), shown.map->MapColor()));
    }

    void CrossHairsAreInTheMiddleOfTheFreePart()
    {
        tagMapWindow shown;
        shown.map->SetFree({0, 0, 400, 300});
        const QImage picture = shown.Picture();
        for (const QPoint& arm : {QPoint(-15, 0), QPoint(15, 0), QPoint(0, -15), QPoint(0, 15)})
            QVERIFY(IsNear(picture.pixelColor(QPoint(200, 150) + arm), shown.map->CrossHairsColor()));
        QVERIFY(!IsNear(picture.pixelColor(QPoint(215, 165)), shown.map->CrossHairsColor(), 40));
    }

    void NothingIsDrawnOutsideTheItem()
    {
        tagMapWindow shown;
        shown.window->setColor(Qt::magenta);
        shown.map->setPosition({100, 100});
        shown.map->setSize({200, 150});
        const QSharedPointer<QQuickItemGrabResult> grab = shown.window->contentItem()->grabToImage(QSize(800, 800));
        QVERIFY(grab);
        QSignalSpy ready(grab.data(), &QQuickItemGrabResult::ready);
        QVERIFY(ready.wait(10000));
        const QImage picture = grab->image();
        QVERIFY(IsNear(picture.pixelColor(107, 113), shown.map->MapColor()));
        for (const QPoint& outside : {QPoint(90, 150), QPoint(310, 150), QPoint(200, 90), QPoint(200, 260)})
            QVERIFY(!IsNear(picture.pixelColor(outside), shown.map->MapColor(), 20));
    }

    /// Two pictures of the same are the same.
    void APictureDoesNotDependOnTheWayToIt()
    {
        const auto fill = [](tagMapWindow& shown) {
            shown.model.SetVehicle(Vehicle(40));
            for (float north = -30; north < 40; ++north)
                shown.model.AddStrip(Strip(24, north, 36, north + 1));
        };
        tagMapWindow straight;
        fill(straight);
        tagMapWindow detour;
        detour.Picture();
        detour.map->zoomIn();
        fill(detour);
        detour.Picture();
        detour.map->pan(300, 20);
        detour.Picture();
        detour.map->zoomOut();
        detour.map->recentre();
        QCOMPARE(detour.Picture(), straight.Picture());
    }
};

QTEST_MAIN(MapElements)
#include "MapElements.moc"
