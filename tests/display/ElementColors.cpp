#include "support/PictureLight.h"
#include "support/TOpenDisplay.h"
#include "support/VisibleItems.h"

#include "display/backgrounds/BackgroundTable.h"
#include "display/fieldwork/TWork.h"
#include "display/map/TMapItem.h"
#include "display/map/TMapModel.h"
#include "parameters/TParameterCatalogue.h"

#include <QHash>
#include <QSet>
#include <QtTest>

#include <algorithm>
#include <cmath>
#include <memory>

/// Each element of the two colour schemes is drawn where its name says: another colour shows there, and is gone when it
/// is reset.
class ElementColors : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase() { m_Display.reset(); }
    void everyElementHasAPlace();
    void aColorShowsWhereItsNameSays_data();
    void aColorShowsWhereItsNameSays();
    void theBackgroundHasThePictureOfItsNumber_data();
    void theBackgroundHasThePictureOfItsNumber();

private:
    std::unique_ptr<TOpenDisplay> m_Display;
};

namespace {

using TPlaces = QVector<QRectF>;

/// Pixels away from a point within which a line through it is drawn.
const double Near = 3;

/// As many positions as the tractor takes into the second pass.
const int Positions = 6000;

/// From it the whole of the example field is seen.
const int Zoom = 4;

const QColor Marker(255, 0, 255);

TPlaces Whole(const TOpenDisplay& display, const char* name)
{
    const QQuickItem* const item = VisibleItems::Named(display.Content(), QLatin1String(name));
    return item ? TPlaces{VisibleItems::SeenPart(*item)} : TPlaces();
}

/// The half of the band above the pages in which the place stands. In the other one the clock goes on.
TPlaces PlaceInBand(const TOpenDisplay& display)
{
    TPlaces places = Whole(display, "stateBand");
    for (QRectF& place : places)
        place.setWidth(place.width() / 2);
    return places;
}

TMapItem& Map(const TOpenDisplay& display) { return *display.Window().findChild<TMapItem*>(); }

const TMapModel& Model(const TOpenDisplay& display)
{
    return *qobject_cast<TMapModel*>(TWork::Of(display.Engine())->Map());
}

QRectF Around(const QPointF& point, double distance)
{
    return QRectF(point.x() - distance, point.y() - distance, 2 * distance, 2 * distance);
}

/// Around a place of the field, in the window.
QRectF AroundPlace(const TOpenDisplay& display, const QPointF& place, double distance = Near)
{
    const TMapItem& map = Map(display);
    return Around(map.mapToScene(map.pointOf(place)), distance);
}

/// The part of the map that nothing stands on.
QRectF Free(const TOpenDisplay& display)
{
    const TMapItem& map = Map(display);
    return map.mapRectToScene(map.Free());
}

/// Along the outlines of the areas of a kind.
TPlaces Outlines(const TOpenDisplay& display, EMapArea kind)
{
    const int stepsOfEdge = 64;
    TPlaces places;
    for (const tagMapArea& area : Model(display).Areas()) {
        for (int corner = 0; area.kind == kind && corner < area.outline.size(); ++corner) {
            const QPointF from = area.outline.at(corner);
            const QPointF to = area.outline.at((corner + 1) % area.outline.size());
            for (int step = 0; step < stepsOfEdge; ++step)
                places.append(AroundPlace(display, from + (to - from) * step / stepsOfEdge));
        }
    }
    return places;
}

/// Beside the middle of the strips, along which the guidance line runs.
TPlaces Covered(const TOpenDisplay& display)
{
    TPlaces places;
    for (const tagMapStrip& strip : Model(display).Strips()) {
        const tagMapStrip::tagPlace& left = strip.corners[0];
        const tagMapStrip::tagPlace& right = strip.corners[1];
        places.append(
            AroundPlace(display, QPointF(0.8 * left.east + 0.2 * right.east, 0.8 * left.north + 0.2 * right.north), 1));
    }
    return places;
}

/// Along the line that is followed.
TPlaces Line(const TOpenDisplay& display)
{
    const tagMapGuidance* const guidance = Model(display).Guidance();
    if (!guidance)
        return {};
    const QPointF along = guidance->b - guidance->a;
    const double length = std::hypot(along.x(), along.y());
    const QPointF right = QPointF(along.y(), -along.x()) / length * guidance->activeLine * guidance->spacing;
    TPlaces places;
    for (double metres = 0; metres < length; ++metres)
        places.append(AroundPlace(display, guidance->a + along * metres / length + right));
    return places;
}

/// Where an element of the schemes is drawn.
struct tagElementPlace
{
    const char* element; ///< as in the name of its parameter
    const char* view;
    TPlaces (*places)(const TOpenDisplay&);
    int least; ///< pixels of its colour
};

// clang-format off
const tagElementPlace Places[] = {
    {"text", "settings-units", [](const TOpenDisplay& d) { return Whole(d, "name"); }, 40},
    {"title", "settings-units", [](const TOpenDisplay& d) { return Whole(d, "title"); }, 40},
    {"button", "settings-region", [](const TOpenDisplay& d) { return Whole(d, "setClock"); }, 2000},
    {"button-text", "settings-region", [](const TOpenDisplay& d) { return Whole(d, "setClock"); }, 40},
    {"background", "settings-units", PlaceInBand, 20000},
    {"external-boundary", "work", [](const TOpenDisplay& d) { return Outlines(d, MAP_AREA_EXTERNAL_BOUNDARY); }, 200},
    {"internal-boundary", "work", [](const TOpenDisplay& d) { return Outlines(d, MAP_AREA_INTERNAL_BOUNDARY); }, 40},
    {"inactive-boundaries", "work", [](const TOpenDisplay& d) { return Outlines(d, MAP_AREA_INACTIVE_BOUNDARY); }, 100},
    {"coverage", "work", Covered, 100},
    {"vehicle", "work", [](const TOpenDisplay& d) { return TPlaces{AroundPlace(d, Model(d).Vehicle()->place, 12)}; }, 40},
    {"track", "work", Line, 200},
    {"map", "work", [](const TOpenDisplay& d) { return TPlaces{Free(d)}; }, 50000},
    {"exclusion-zone", "work", [](const TOpenDisplay& d) { return Outlines(d, MAP_AREA_EXCLUSION_ZONE); }, 40},
    {"grid", "work", [](const TOpenDisplay& d) { return TPlaces{Free(d)}; }, 400},
    {"cross-hairs", "work", [](const TOpenDisplay& d) { return TPlaces{Around(Free(d).center(), 24)}; }, 20},
};
// clang-format on

double Distance(QRgb one, QRgb other)
{
    return std::sqrt(std::pow(qRed(one) - qRed(other), 2) + std::pow(qGreen(one) - qGreen(other), 2) +
                     std::pow(qBlue(one) - qBlue(other), 2));
}

/// The pixels of the places which have come nearer to the marker by a third at least: a line of one pixel that lies
/// between two has half of its colour in each.
int Marked(const TPlaces& places, const QImage& before, const QImage& after)
{
    QSet<qint64> marked;
    for (const QRectF& place : places) {
        const QRect pixels = place.toAlignedRect() & before.rect();
        for (int y = pixels.top(); y <= pixels.bottom(); ++y) {
            for (int x = pixels.left(); x <= pixels.right(); ++x) {
                const double was = Distance(before.pixel(x, y), Marker.rgb());
                const double is = Distance(after.pixel(x, y), Marker.rgb());
                if (is < was * 2 / 3)
                    marked.insert(qint64{y} * before.width() + x);
            }
        }
    }
    return int(marked.size());
}

bool AreEqual(const TPlaces& places, const QImage& one, const QImage& other)
{
    return std::all_of(places.begin(), places.end(), [&](const QRectF& place) {
        const QRect pixels = place.toAlignedRect() & one.rect();
        // Of a place beyond the window, copy() would take the whole picture, in which the clock goes on.
        return pixels.isEmpty() || one.copy(pixels) == other.copy(pixels);
    });
}

/// The colours of both schemes in the catalogue.
QVector<tagParameter> Colors()
{
    QVector<tagParameter> colors;
    for (const tagParameter& parameter : TParameterCatalogue::Parameters()) {
        if (parameter.name.startsWith(QLatin1String("colors.")) && parameter.type == PARAMETER_COLOR)
            colors.append(parameter);
    }
    return colors;
}

QString ElementOf(const tagParameter& parameter) { return parameter.name.section(QLatin1Char('.'), 2); }

const tagElementPlace* PlaceOf(const QString& element)
{
    const auto* const row =
        std::find_if(std::begin(Places), std::end(Places),
                     [&element](const tagElementPlace& place) { return element == QLatin1String(place.element); });
    return row == std::end(Places) ? nullptr : row;
}

} // namespace

void ElementColors::initTestCase()
{
    m_Display = std::make_unique<TOpenDisplay>(QSize(1280, 800));
    QVERIFY2(m_Display->IsOpen(), qPrintable(m_Display->Problem()));
    m_Display->MakeExample();
    m_Display->Drive(Positions);
    m_Display->SetParameter(QLatin1String("display.day-switching"), 0);
    m_Display->ShowPage(QLatin1String("work"));
    Map(*m_Display).SetZoom(Zoom);
}

/// The catalogue has every element twice, and the table above has each once.
void ElementColors::everyElementHasAPlace()
{
    QCOMPARE(Colors().size(), 2 * int(std::size(Places)));
    for (const tagParameter& parameter : Colors())
        QVERIFY2(PlaceOf(ElementOf(parameter)), qPrintable(parameter.name));
}

void ElementColors::aColorShowsWhereItsNameSays_data()
{
    QTest::addColumn<QString>("name");
    for (const tagParameter& parameter : Colors())
        QTest::newRow(qPrintable(parameter.name)) << parameter.name;
}

void ElementColors::aColorShowsWhereItsNameSays()
{
    QFETCH(const QString, name);
    const tagParameter& parameter = *TParameterCatalogue::Find(name);
    const tagElementPlace* const row = PlaceOf(ElementOf(parameter));
    QVERIFY(row);
    TOpenDisplay& display = *m_Display;
    display.SetParameter(QLatin1String("display.day"), name.startsWith(QLatin1String("colors.day.")));
    display.Show(QLatin1String(row->view));
    const TPlaces places = row->places(display);
    QVERIFY(!places.isEmpty());

    // With the colour of a first start.
    QImage before;
    const auto isStill = [&] {
        before = display.Picture();
        return AreEqual(places, before, display.Picture());
    };
    QTRY_VERIFY(isStill());
    display.SetParameter(name, Marker);
    QTRY_VERIFY(Marked(places, before, display.Picture()) >= row->least);
    display.SetParameter(name, TParameterCatalogue::FirstValue(parameter));
    QTRY_VERIFY(AreEqual(places, before, display.Picture()));
}

void ElementColors::theBackgroundHasThePictureOfItsNumber_data()
{
    QTest::addColumn<bool>("isDay");
    QTest::newRow("day") << true;
    QTest::newRow("night") << false;
}

/// Each picture of the table differs from the others and from the plain ground, which other numbers show.
void ElementColors::theBackgroundHasThePictureOfItsNumber()
{
    QFETCH(const bool, isDay);
    TOpenDisplay& display = *m_Display;
    const QString name = QLatin1String(isDay ? "colors.day.background-number" : "colors.night.background-number");
    display.SetParameter(QLatin1String("display.day"), isDay);
    // Below the list of its sections nothing stands on the ground.
    display.Show(QLatin1String("settings-units"));
    const QRectF ground = Whole(display, "ground").value(0);
    const QRectF door = Whole(display, "door.work").value(0);
    const QRectF below(door.left(), door.top() - 46, door.width(), 36);
    QVERIFY(ground.contains(below));
    const auto picture = [&](int number) {
        display.SetParameter(name, number);
        return display.Picture().copy(below.toAlignedRect());
    };
    const QImage plain = picture(0);
    const QColor color =
        display.Parameter(QLatin1String(isDay ? "colors.day.background" : "colors.night.background")).value<QColor>();
    QCOMPARE(PictureLight::PartOf(plain, color), 1.0);
    QVector<QImage> pictures = {plain};
    for (const tagBackground& row : Backgrounds) {
        pictures.append(picture(row.number));
        for (int other = 0; other + 1 < pictures.size(); ++other)
            QVERIFY2(pictures.last() != pictures.at(other), qPrintable(QString::number(row.number)));
        // It does not take from what stands on it.
        QVERIFY(PictureLight::Contrast(pictures.last(), pictures.last().rect()) < 1.25);
    }
    QCOMPARE(picture(Backgrounds.back().number + 1), plain);
    const tagParameter& parameter = *TParameterCatalogue::Find(name);
    // The pictures of a first start are in the table.
    const int first = TParameterCatalogue::FirstValue(parameter).toInt();
    QVERIFY(picture(first) != plain);
}

QTEST_MAIN(ElementColors)
#include "ElementColors.moc"
