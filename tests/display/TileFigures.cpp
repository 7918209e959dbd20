#include "support/TOpenDisplay.h"
#include "support/VisibleItems.h"

#include "display/fieldwork/TWork.h"
#include "parameters/HostParameters.h"
#include "parameters/TParameterCatalogue.h"
#include "platform/ELiquidUnit.h"
#include "platform/EParamID.h"
#include "platform/TConfigManager.h"
#include "units/TUnits.h"

#include <QtQml>
#include <QtTest>

/// Each tile of the work page shows the library's text for what the work has done.
class TileFigures : public QObject
{
    Q_OBJECT

private slots:
    void everyTileIsTested();
    void aFigureIsTheLibrarys_data();
    void aFigureIsTheLibrarys();
    void theFiguresAreLarge_data();
    void theFiguresAreLarge();
};

namespace {

using U = TUnits;

struct tagTile
{
    const char* name;
    const char* item; ///< that shows the figure
    QString (*text)(const TWork& work, bool metric, bool us);
};

float Narrow(double value) { return static_cast<float>(value); }

// clang-format off
const tagTile Tiles[] = {
    {"rate", "figure", [](const TWork& w, bool m, bool u) { return U::GetVolumePerAreaString(m, u, Narrow(w.Rate()), false, U::GetLiquidVolumePerAreaUnits(), -1, nullptr); }},
    {"rate", "set", [](const TWork& w, bool, bool) { return U::GetSprayerRequestedRateString(w.RateSet()); }},
    {"speed", "figure", [](const TWork& w, bool m, bool) { return U::GetSpeedString(m, Narrow(w.Speed()), false); }},
    {"area", "figure", [](const TWork& w, bool, bool) { return U::GetAreaString(Narrow(w.AreaDone()), -1, nullptr); }},
    {"left", "figure", [](const TWork& w, bool, bool) { return U::GetAreaString(Narrow(w.AreaLeft()), -1, nullptr); }},
    {"productivity", "figure", [](const TWork& w, bool, bool) { return U::GetProductivityString(Narrow(w.Productivity()), -1, nullptr); }},
    {"flow", "figure", [](const TWork& w, bool m, bool u) { return U::GetFlowRateString(m, u, Narrow(w.Flow()), false, U::GetLiquidFlowRateUnits(), -1, nullptr); }},
    {"pressure", "figure", [](const TWork& w, bool, bool) { return U::GetPressureString(Narrow(w.Pressure())); }},
    {"temperature", "figure", [](const TWork& w, bool m, bool) { return U::GetTemperatureString(m, w.Temperature(), -1, nullptr); }},
    {"distance", "figure", [](const TWork& w, bool m, bool) { return U::GetDistanceStringAdaptive(m, Narrow(w.Distance()), true, false); }},
    {"position", "position", [](const TWork& w, bool, bool) { return U::GetLatitudeString(w.Latitude()) + U::GetLongitudeString(w.Longitude()); }},
};
// clang-format on

/// A minute at 10 Hz.
const int Positions = 600;

/// Has no value of the work.
const char* const TimeTile = "time";

QString WithoutBlanks(QString text) { return text.remove(QLatin1Char(' ')); }

bool IsBelow(const QQuickItem* item, const QString& name)
{
    for (; item; item = item->parentItem()) {
        if (item->objectName() == name)
            return true;
    }
    return false;
}

/// What a tile shows in items with this name, without blanks.
QString Shown(TOpenDisplay& display, const tagTile& tile, const char* name)
{
    QString shown;
    for (const QQuickItem* text : VisibleItems::Texts(display.Content())) {
        if (text->objectName() == QLatin1String(name) &&
            IsBelow(text, QLatin1String("tile.") + QLatin1String(tile.name)))
            shown += VisibleItems::Text(*text);
    }
    return WithoutBlanks(shown);
}

QString Wanted(const tagTile& tile, const TWork& work)
{
    return WithoutBlanks(tile.text(work, ConfigManager->GetParameter(PARAM_METRIC).toBool(),
                                   ConfigManager->GetParameter(PARAM_US_MEASURES).toBool()));
}

} // namespace

void TileFigures::everyTileIsTested()
{
    QStringList tested = {QLatin1String(TimeTile)};
    for (const tagTile& tile : Tiles)
        tested.append(QLatin1String(tile.name));
    tested.removeDuplicates();
    QStringList names = TParameterCatalogue::Find(PARAM_TILES)->names;
    names.sort();
    tested.sort();
    QCOMPARE(tested, names);
}

void TileFigures::aFigureIsTheLibrarys_data()
{
    QTest::addColumn<bool>("metric");
    QTest::addColumn<bool>("us");
    QTest::addColumn<int>("liquid");
    QTest::newRow("metric") << true << false << int(LIQUID_UNIT_LITRE);
    QTest::newRow("US") << false << true << int(LIQUID_UNIT_LITRE);
    QTest::newRow("English") << false << false << int(LIQUID_UNIT_LITRE);
    // The rate has the unit of the product, the requested rate litres: neither text is that of the other.
    QTest::newRow("cubic metres") << true << false << int(LIQUID_UNIT_CUBIC_METRE);
}

void TileFigures::aFigureIsTheLibrarys()
{
    QFETCH(const bool, metric);
    QFETCH(const bool, us);
    QFETCH(const int, liquid);
    TOpenDisplay display(QSize(1280, 800));
    QVERIFY2(display.IsOpen(), qPrintable(display.Problem()));
    display.MakeExample();
    display.SetParameter(QLatin1String("units.metric"), metric);
    display.SetParameter(QLatin1String("units.us"), us);
    display.SetParameter(QLatin1String("units.area"), metric ? 0 : 1);
    display.SetParameter(QLatin1String("units.liquid"), liquid);
    display.ShowPage(QLatin1String("work"));
    display.Drive(Positions);
    const TWork& work = *TWork::Of(*qmlEngine(&display.Window()));
    QVERIFY(work.Distance() > 0);
    for (const tagTile& tile : Tiles) {
        display.SetParameter(QLatin1String("display.tiles"), QString::fromLatin1(tile.name));
        const bool isFigure = qstrcmp(tile.item, "figure") == 0;
        const auto shown = [&] {
            const QString text = Shown(display, tile, tile.item);
            return isFigure ? text + Shown(display, tile, "unit") : text;
        };
        if (qstrcmp(tile.item, "set") == 0) {
            // The words around it are of the display. It has no unit where its unit is that of the rate above it.
            const bool hasUnit = liquid != LIQUID_UNIT_LITRE;
            QTRY_COMPARE(shown() + (hasUnit ? QString() : Shown(display, tile, "unit")),
                         QLatin1String("set") + Wanted(tile, work));
            continue;
        }
        QTRY_COMPARE(shown(), Wanted(tile, work));
    }
}

void TileFigures::theFiguresAreLarge_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<int>("least");
    QTest::newRow("800x480") << QSize(800, 480) << 48;
    QTest::newRow("480x800") << QSize(480, 800) << 48;
    QTest::newRow("1280x800") << QSize(1280, 800) << 48;
    QTest::newRow("800x1280") << QSize(800, 1280) << 48;
    QTest::newRow("1920x1200") << QSize(1920, 1200) << 72;
}

/// All but the position, whose two lines are texts.
void TileFigures::theFiguresAreLarge()
{
    QFETCH(const QSize, size);
    QFETCH(const int, least);
    TOpenDisplay display(size);
    QVERIFY2(display.IsOpen(), qPrintable(display.Problem()));
    display.MakeExample();
    display.ShowPage(QLatin1String("work"));
    display.Drive(Positions);
    for (const QString& name : TParameterCatalogue::Find(PARAM_TILES)->names) {
        display.SetParameter(QLatin1String("display.tiles"), name);
        int figures = 0;
        for (const QQuickItem* text : VisibleItems::Texts(display.Content())) {
            if (text->objectName() != QLatin1String("figure"))
                continue;
            ++figures;
            const int shown = VisibleItems::ShownSize(*text);
            QVERIFY2(shown >= least, qPrintable(name + QLatin1String(": ") + VisibleItems::Describe(*text) +
                                                QString::fromLatin1(" has digits of %1").arg(shown)));
        }
        QCOMPARE(figures, name == QLatin1String("position") ? 0 : 1);
    }
}

QTEST_MAIN(TileFigures)
#include "TileFigures.moc"
