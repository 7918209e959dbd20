#include "Track.h"

#include "display/map/MapScale.h"
#include "display/map/TMapTiles.h"

#include <QtTest>

namespace {

QPolygonF Ground(double left, double bottom, double width, double height)
{
    QPolygonF ground(QRectF(left, bottom, width, height));
    ground.removeLast();
    return ground;
}

/// What a window of 1280 × 800 pixels sees around a place.
QPolygonF Window(const QPointF& centre, double metresPerPixel)
{
    return Ground(centre.x() - 640 * metresPerPixel, centre.y() - 400 * metresPerPixel, 1280 * metresPerPixel,
                  800 * metresPerPixel);
}

} // namespace

class MapTilesGrow : public QObject
{
    Q_OBJECT

private slots:
    void TilesThatGrewAreThoseOfAFullRepaint_data()
    {
        QTest::addColumn<double>("metresPerPixel");
        QTest::addColumn<double>("detail");
        for (const double metres : MetresPerPixel)
            QTest::addRow("%g m", metres) << metres << 1.0;
        QTest::newRow("0.25 m, two pixels for one") << 0.125 << 2.0;
    }
    void TilesThatGrewAreThoseOfAFullRepaint()
    {
        QFETCH(double, metresPerPixel);
        QFETCH(double, detail);
        const QVector<tagMapStrip> track = CrookedTrack(1200, 12, 11);
        const QPolygonF ground = Window({-40, 25}, metresPerPixel);
        TMapModel model;
        TMapTiles grown;
        grown.SetModel(&model);
        grown.SetScale(metresPerPixel, detail);
        grown.Show(ground);
        int shown = 0;
        for (const tagMapStrip& strip : track) {
            model.AddStrip(strip);
            shown += grown.AddStrip() ? 1 : 0;
            if (shown % 100 == 1)
                grown.Show(ground);
        }
        QVERIFY(shown > 0);

        TMapTiles fresh;
        fresh.SetModel(&model);
        fresh.SetScale(metresPerPixel, detail);
        const std::vector<TMapTiles::Place> places = grown.Show(ground);
        QCOMPARE(fresh.Show(ground), places);
        int covered = 0;
        for (const TMapTiles::Place& place : places) {
            QCOMPARE(grown.Tile(place).picture, fresh.Tile(place).picture);
            covered += fresh.Tile(place).covered.Bytes() > 0 ? 1 : 0;
        }
        QVERIFY(covered > 0);
    }

    void WhatTilesShareIsTheSame()
    {
        TMapModel model;
        model.SetStrips(CrookedTrack(1500, 12, 11));
        model.SetGuidance({{-80, -90}, {-40, 160}, 12, 0, true});
        model.SetAreas({{MAP_AREA_EXTERNAL_BOUNDARY, QPolygonF(QRectF(-120, -60, 190, 170))},
                        {MAP_AREA_INACTIVE_BOUNDARY, Outline({{-130, -70}, {90, -65}, {60, 130}})},
                        {MAP_AREA_EXCLUSION_ZONE, Outline({{-100, -50}, {20, -20}, {-40, 60}})}});
        TMapTiles tiles;
        tiles.SetModel(&model);
        tiles.SetScale(0.25, 1);
        tiles.SetGrid(20);
        const std::vector<TMapTiles::Place> places = tiles.Show(Window({-40, 25}, 0.25));
        const auto has = [&](const TMapTiles::Place& place) {
            return std::find(places.begin(), places.end(), place) != places.end();
        };
        int compared = 0;
        for (const TMapTiles::Place& place : places) {
            const TMapTiles::Place east(place.first + 1, place.second);
            const TMapTiles::Place south(place.first, place.second + 1);
            for (int at = 0; at < TMapTiles::TilePixels; ++at) {
                for (int seam = 0; seam < 2; ++seam) {
                    const auto isNear = [](QRgb a, QRgb b) {
                        return std::abs(qRed(a) - qRed(b)) <= 8 && std::abs(qGreen(a) - qGreen(b)) <= 8 &&
                               std::abs(qBlue(a) - qBlue(b)) <= 8;
                    };
                    const QImage& picture = tiles.Tile(place).picture;
                    if (has(east))
                        QVERIFY(isNear(picture.pixel(254 + seam, at), tiles.Tile(east).picture.pixel(seam, at)));
                    if (has(south))
                        QVERIFY(isNear(picture.pixel(at, 254 + seam), tiles.Tile(south).picture.pixel(at, seam)));
                    ++compared;
                }
            }
        }
        QVERIFY(compared > 0);
    }

    void OnlyTilesThatShowAStripArePaintedAgain()
    {
        TMapModel model;
        TMapTiles tiles;
        tiles.SetModel(&model);
        tiles.SetScale(0.25, 1);
        const QPolygonF ground = Window({0, 0}, 0.25);
        std::map<TMapTiles::Place, quint64> before;
        for (const TMapTiles::Place& place : tiles.Show(ground))
            before[place] = tiles.Tile(place).version;

        model.AddStrip({{{{10, 10}, {22, 10}, {22, 11}, {10, 11}}}});
        QVERIFY(tiles.AddStrip());
        int painted = 0;
        for (const TMapTiles::Place& place : tiles.Show(ground))
            painted += tiles.Tile(place).version == before[place] ? 0 : 1;
        QCOMPARE(painted, 1);

        model.AddStrip({{{{5010, 10}, {5022, 10}, {5022, 11}, {5010, 11}}}});
        QVERIFY(!tiles.AddStrip());
    }

    void TilesBesideATurnedWindowAreNotPainted()
    {
        TMapTiles tiles;
        tiles.SetScale(1, 1);
        const std::size_t upright = tiles.Show(Ground(-1000, -1000, 2000, 2000)).size();
        const std::size_t turned = tiles.Show(Outline({{-1000, 0}, {0, 1000}, {1000, 0}, {0, -1000}})).size();
        QVERIFY2(turned < upright * 3 / 4, qPrintable(QStringLiteral("%1 of %2").arg(turned).arg(upright)));
        QVERIFY(turned > upright / 2);
    }

    /// Across twenty kilometres, as wide as the window.
    void MemoryIsBounded()
    {
        TMapModel model;
        QVector<tagMapStrip> strips;
        for (int metre = 0; metre < 20000; ++metre)
            strips.append(
                tagMapStrip{{{{float(metre), 6}, {float(metre), -6}, {float(metre + 1), -6}, {float(metre + 1), 6}}}});
        model.SetStrips(strips);
        TMapTiles tiles;
        tiles.SetModel(&model);
        tiles.SetScale(0.25, 1);
        std::size_t tilesMost = 0;
        std::size_t bytesMost = 0;
        for (int metre = 0; metre < 20000; metre += 40) {
            const std::size_t seen = tiles.Show(Window({double(metre), 0}, 0.25)).size();
            QVERIFY(tiles.Count() <= seen + TMapTiles::Spare);
            tilesMost = std::max(tilesMost, tiles.Count());
            bytesMost = std::max(bytesMost, tiles.Bytes());
        }
        QVERIFY(tilesMost >= TMapTiles::Spare);
        QVERIFY2(bytesMost < 24'000'000, qPrintable(QString::number(bytesMost)));
    }

    void ANewColourIsPainted()
    {
        TMapModel model;
        model.SetStrips(CrookedTrack(500, 12, 11));
        TMapTiles tiles;
        tiles.SetModel(&model);
        tiles.SetScale(0.25, 1);
        const QPolygonF ground = Window({-40, 25}, 0.25);
        tiles.Show(ground);
        tagMapColors colors;
        colors.coverage = QColor(1, 2, 3);
        tiles.SetColors(colors);
        bool isFound = false;
        for (const TMapTiles::Place& place : tiles.Show(ground)) {
            const QImage& picture = tiles.Tile(place).picture;
            for (int y = 0; y < picture.height() && !isFound; ++y)
                for (int x = 0; x < picture.width() && !isFound; ++x)
                    isFound = picture.pixelColor(x, y) == colors.coverage;
        }
        QVERIFY(isFound);
    }
};

QTEST_GUILESS_MAIN(MapTilesGrow)
#include "MapTilesGrow.moc"
