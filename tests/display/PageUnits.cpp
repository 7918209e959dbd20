#include "support/TOpenDisplay.h"
#include "support/VisibleItems.h"

#include <QRegularExpression>
#include <QtTest>

/// Everything that a page shows with a unit is in the operator's system, and comes from the library.
class PageUnits : public QObject
{
    Q_OBJECT

private slots:
    void noPageShowsAUnitOfTheOtherSystem_data();
    void noPageShowsAUnitOfTheOtherSystem();
    void everyQuantityIsATextOfTheLibrary_data();
    void everyQuantityIsATextOfTheLibrary();
};

namespace {

struct tagChoice
{
    const char* parameter;
    int value;
};

struct tagSystem
{
    const char* name;
    QList<tagChoice> choices;
    QStringList others; ///< units that nothing may be measured in
};

const QStringList& MetricUnits()
{
    static const QStringList units = {QLatin1String("m"),    QLatin1String("mm"),    QLatin1String("cm"),
                                      QLatin1String("km"),   QLatin1String("ha"),    QLatin1String("ha/hr"),
                                      QLatin1String("kph"),  QLatin1String("km/h"),  QLatin1String("L"),
                                      QLatin1String("L/ha"), QLatin1String("L/min"), QLatin1String("mL"),
                                      QLatin1String("kg"),   QLatin1String("kg/ha"), QLatin1String("kPa"),
                                      QLatin1String("bar"),  QString::fromUtf8("°C")};
    return units;
}

const QStringList& OtherUnits()
{
    static const QStringList units = {QLatin1String("ft"),      QLatin1String("in"),    QLatin1String("yd"),
                                      QLatin1String("mi"),      QLatin1String("ac"),    QLatin1String("ac/hr"),
                                      QLatin1String("mph"),     QLatin1String("gal"),   QLatin1String("gal/ac"),
                                      QLatin1String("gal/min"), QLatin1String("fl.oz"), QLatin1String("lb"),
                                      QLatin1String("lb/ac"),   QLatin1String("psi"),   QString::fromUtf8("°F")};
    return units;
}

QList<tagSystem> Systems()
{
    const QList<tagChoice> metric = {{"units.metric", true},
                                     {"units.us", false},
                                     {"units.area", 0},
                                     {"units.pressure", 0},
                                     {"units.short-distance", 0}};
    const QList<tagChoice> us = {{"units.metric", false},
                                 {"units.us", true},
                                 {"units.area", 1},
                                 {"units.pressure", 1},
                                 {"units.short-distance", 2}};
    QList<tagChoice> english = us;
    english[1].value = false;
    english[4].value = 1;
    return {{"metric", metric, OtherUnits()}, {"US", us, MetricUnits()}, {"English", english, MetricUnits()}};
}

void AddSystems()
{
    QTest::addColumn<int>("system");
    for (int system = 0; system < Systems().size(); ++system)
        QTest::newRow(Systems().at(system).name) << system;
}

void Choose(TOpenDisplay& display, const tagSystem& system)
{
    for (const tagChoice& choice : system.choices) {
        const QVariant before = display.Parameter(QLatin1String(choice.parameter));
        const bool isSwitch = before.userType() == QMetaType::Bool;
        display.SetParameter(QLatin1String(choice.parameter),
                             isSwitch ? QVariant(choice.value != 0) : QVariant(choice.value));
    }
}

/// The texts that have a number and behind it a word that may be a unit: "8.37 ha", "24.00m".
const QRegularExpression& Measured()
{
    static const QRegularExpression expression(
        QString::fromUtf8("(?:^|[\\s(])([+-]?(?:\\d[\\d.,]*|----) ?)([A-Za-z°][A-Za-z0-9.°/³²]*)"));
    return expression;
}

/// The units that a text shows: behind a number, or alone where a tile shows number and unit apart.
QStringList UnitsIn(const QQuickItem& item)
{
    const QString text = VisibleItems::Text(item);
    if (item.objectName() == QLatin1String("unit"))
        return {text};
    QStringList units;
    QRegularExpressionMatchIterator matches = Measured().globalMatch(text);
    while (matches.hasNext())
        units.append(matches.next().captured(2));
    return units;
}

} // namespace

void PageUnits::noPageShowsAUnitOfTheOtherSystem_data() { AddSystems(); }

void PageUnits::noPageShowsAUnitOfTheOtherSystem()
{
    QFETCH(int, system);
    TOpenDisplay display(QSize(1280, 800));
    QVERIFY2(display.IsOpen(), qPrintable(display.Problem()));
    display.MakeExample();
    const tagSystem chosen = Systems().at(system);
    Choose(display, chosen);
    int units = 0;
    for (const QString& view : TOpenDisplay::Views()) {
        display.Show(view);
        for (const QQuickItem* text : VisibleItems::Texts(display.Content())) {
            for (const QString& unit : UnitsIn(*text)) {
                ++units;
                QVERIFY2(!chosen.others.contains(unit),
                         qPrintable(view + QLatin1String(": ") + VisibleItems::Describe(*text)));
            }
        }
    }
    // A walk that finds no unit proves nothing: the work page alone has seven tiles.
    const int least = 12;
    QVERIFY(units >= least);
}

void PageUnits::everyQuantityIsATextOfTheLibrary_data() { AddSystems(); }

void PageUnits::everyQuantityIsATextOfTheLibrary()
{
    QFETCH(int, system);
    TOpenDisplay display(QSize(1280, 800));
    QVERIFY2(display.IsOpen(), qPrintable(display.Problem()));
    display.MakeExample();
    Choose(display, Systems().at(system));
    const QStringList units = MetricUnits() + OtherUnits();
    int quantities = 0;
    for (const QString& view : TOpenDisplay::Views()) {
        display.Show(view);
        QStringList given = display.ExampleTexts();
        for (const QObject* quantity : display.Quantities())
            given << quantity->property("text").toString() << quantity->property("unit").toString();
        for (const QQuickItem* item : VisibleItems::Texts(display.Content())) {
            const QString text = VisibleItems::Text(*item);
            for (const QString& unit : UnitsIn(*item)) {
                if (!units.contains(unit))
                    continue;
                ++quantities;
                const bool isGiven = std::any_of(given.begin(), given.end(), [&text](const QString& quantity) {
                    return !quantity.isEmpty() && text.contains(quantity);
                });
                QVERIFY2(isGiven, qPrintable(view + QLatin1String(": ") + VisibleItems::Describe(*item)));
            }
        }
    }
    QVERIFY(quantities > 0);
}

QTEST_MAIN(PageUnits)
#include "PageUnits.moc"
