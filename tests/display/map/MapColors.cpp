#include "MapWindow.h"
#include "Track.h"

#include <QtTest>

#include <set>

namespace {

/// A property of the item and a place of the field below where it is seen alone.
struct tagElement
{
    const char* property;
    QPointF place;
};

constexpr QPointF Flag(-44, 30);

const std::vector<tagElement> Elements = {
    {"mapColor", {47, 13}},
    {"gridColor", {60.1, 13}},
    {"coverageColor", {26, 13}},
    {"coverageEdgeColor", {20.2, 13}},
    {"trackColor", {-30, -11}},
    {"externalBoundaryColor", {70, 33}},
    {"internalBoundaryColor", {-70, 33}},
    {"inactiveBoundariesColor", {-70, 46.1}},
    {"exclusionZoneColor", {-15, 30}},
    {"vehicleColor", {4, -20}},
    {"crossHairsColor", {0, 0}}, // of the window, not of the field
    {"flagColor", Flag},
};

tagMapStrip Strip(float west, float south, float east, float north)
{
    return {{{{west, south}, {east, south}, {east, north}, {west, north}}}};
}

/// With every element once, north up.
void Fill(tagMapWindow& shown)
{
    shown.map->SetHeadingUp(false);
    shown.model.SetStrips({Strip(20, -20, 32, 40)});
    shown.model.SetAreas({{MAP_AREA_EXTERNAL_BOUNDARY, Outline({{70, -70}, {70, 90}, {71, 90}, {71, -70}})},
                          {MAP_AREA_INTERNAL_BOUNDARY, Outline({{-70, 20}, {-70, 40}, {-75, 40}, {-75, 20}})},
                          {MAP_AREA_INACTIVE_BOUNDARY, Outline({{-71.5, 46}, {-40, 46}, {-40, 48}, {-71.5, 48}})},
                          {MAP_AREA_EXCLUSION_ZONE, Outline({{-15, 25}, {-15, 35}, {-8, 35}, {-8, 25}})}});
    shown.model.SetGuidance({{-30, 0}, {-30, 10}, 1000, 0, true});
    shown.model.SetFlags({Flag});
    shown.model.SetVehicle({{0, -10}, 0, 12, 10, true});
}

} // namespace

class MapColors : public QObject
{
    Q_OBJECT

private slots:
    /// Every colour of the item is in the table, so that a new one is looked at.
    void TheTableIsWhole()
    {
        std::set<QByteArray> known;
        for (const tagElement& element : Elements)
            known.insert(element.property);
        const QMetaObject& item = TMapItem::staticMetaObject;
        for (int index = item.propertyOffset(); index < item.propertyCount(); ++index)
            if (QByteArray(item.property(index).typeName()) == "QColor")
                QVERIFY2(known.count(item.property(index).name()) == 1, item.property(index).name());
    }

    void EachColourChangesThePictureWhereItsNameSays_data()
    {
        QTest::addColumn<QByteArray>("property");
        QTest::addColumn<QPointF>("place");
        for (const tagElement& element : Elements)
            QTest::newRow(element.property) << QByteArray(element.property) << element.place;
    }
    void EachColourChangesThePictureWhereItsNameSays()
    {
        QFETCH(QByteArray, property);
        QFETCH(QPointF, place);
        tagMapWindow shown;
        Fill(shown);
        const QImage before = shown.Picture();
        QSignalSpy changes(shown.map, &TMapItem::colorsChanged);
        const QColor other(255, 0, 255);
        QVERIFY(shown.map->setProperty(property, other));
        QCOMPARE(changes.count(), 1);
        QCOMPARE(shown.map->property(property).value<QColor>(), other);
        const QImage after = shown.Picture();

        QPoint pixel = shown.Pixel(place);
        if (property == "crossHairsColor")
            pixel = {400 + 15, 400};
        else if (property == "flagColor")
            pixel -= QPoint(0, 8);
        QVERIFY2(IsNear(after.pixelColor(pixel), other, 90), qPrintable(after.pixelColor(pixel).name()));
        QVERIFY(!IsNear(before.pixelColor(pixel), other, 90));

        // Nowhere else, but for the ground: its colour frames the vehicle and the flags, and shines through.
        if (property == "mapColor")
            return;
        for (const tagElement& element : Elements) {
            if (element.property == property)
                continue;
            const QPoint elsewhere = QByteArray(element.property) == "crossHairsColor" ? QPoint(400 - 15, 400)
                                     : QByteArray(element.property) == "flagColor"
                                         ? shown.Pixel(element.place) - QPoint(0, 8)
                                         : shown.Pixel(element.place);
            QVERIFY2(after.pixelColor(elsewhere) == before.pixelColor(elsewhere), element.property);
        }
    }
};

QTEST_MAIN(MapColors)
#include "MapColors.moc"
