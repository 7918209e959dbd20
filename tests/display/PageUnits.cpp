#include "support/GivenTexts.h"
#include "support/TOpenDisplay.h"
#include "support/VisibleItems.h"

#include "platform/EDecimalPoint.h"
#include "units/TUnitAbbreviations.h"
#include "units/TUnits.h"
#include "units/table/UnitTable.h"

#include <QRegularExpression>
#include <QtTest>

#include <algorithm>

/// Everything that a page shows with a unit is in the operator's system, and comes from the library. So does every
/// other number.
class PageUnits : public QObject
{
    Q_OBJECT

private slots:
    void everyUnitIsSeen();
    void everyNumberIsSeen();
    void areTheChosenOnesAndTheLibrarys_data();
    void areTheChosenOnesAndTheLibrarys();
};

namespace {

/// As many as the tractor takes for a part of a pass.
const int Positions = 600;

const QSize Size(1280, 800);

const EDecimalPoint Sign = CABSETTINGS_DECIMAL_POINT;

/// What is stored before the display starts: a process keeps the decimal sign that it finds first.
QMap<QString, QVariant> First() { return {{QStringLiteral("region.decimal-point"), int{Sign}}}; }

QString DecimalSign() { return QLatin1String(Sign == DECIMAL_POINT_COMMA ? "," : "."); }

struct tagChoice
{
    const char* parameter;
    int value;
};

struct tagSystem
{
    const char* name;
    QList<tagChoice> choices;
    bool isMetric;
};

/// The abbreviations of the units of these families.
QStringList UnitsOfFamilies(const QList<EUnitFamily>& families)
{
    QStringList units;
    for (const tagUnit& unit : UnitTable) {
        const QString text = TUnitAbbreviations::GetStringFromUnitType(unit.type, true);
        if (families.contains(unit.family) && !text.isEmpty() && !units.contains(text))
            units.append(text);
    }
    return units;
}

QStringList MetricUnits() { return UnitsOfFamilies({FAMILY_METRIC}); }
QStringList OtherUnits() { return UnitsOfFamilies({FAMILY_IMPERIAL, FAMILY_US}); }

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
    return {{"metric", metric, true}, {"US", us, false}, {"English", english, false}};
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

/// A number with a unit of the library behind it: "8.37 ha", "24.00m", "12.50\"". The marks of feet and inches are
/// those of minutes and seconds, too: a number in a position has no unit.
QRegularExpression Measured()
{
    QStringList units = MetricUnits() + OtherUnits();
    std::sort(units.begin(), units.end(), [](const QString& one, const QString& other) {
        return one.size() > other.size(); // "m/s" before "m"
    });
    for (QString& unit : units)
        unit = QRegularExpression::escape(unit);
    return QRegularExpression(QString::fromUtf8("(?<![\\d.,°'\\w])[+-]?(?:\\d[\\d.,]*|----) ?(%1)(?![\\w/°])")
                                  .arg(units.join(QLatin1Char('|'))));
}

QStringList UnitsIn(const QString& text)
{
    static const QRegularExpression expression = Measured();
    QStringList units;
    QRegularExpressionMatchIterator matches = expression.globalMatch(text);
    while (matches.hasNext())
        units.append(matches.next().captured(1));
    return units;
}

/// The units that a text shows: behind a number, or alone where a tile shows number and unit apart.
QStringList UnitsOf(const QQuickItem& item)
{
    const QString text = VisibleItems::Text(item);
    return item.objectName() == QLatin1String("unit") ? QStringList(text) : UnitsIn(text);
}

/// Texts whose numbers no object gives as they are shown, by the object name of the text or of an item around it.
constexpr const char* OwnNumbers[] = {
    "key0",       "key1", "key2", "key3", "key4", "key5", "key6", "key7", "key8", "key9",
    "entry",      // what is typed
    "sentence",   // the ends of the range, which the page asks the quantity for one by one
    "clockEntry", // the parts of a date and a time, whole numbers of two or four digits
};

bool HasOwnNumbers(const QQuickItem* item)
{
    for (; item; item = item->parentItem()) {
        const QString name = item->objectName();
        if (std::any_of(std::begin(OwnNumbers), std::end(OwnNumbers),
                        [&name](const char* own) { return name == QLatin1String(own); }))
            return true;
    }
    return false;
}

} // namespace

void PageUnits::everyUnitIsSeen()
{
    const TOpenDisplay display(Size, QString(), First()); // the terminal gives the units their names
    QVERIFY2(display.IsOpen(), qPrintable(display.Problem()));
    const double value = 12.5;
    const int precision = 2;
    for (const QString& unit : MetricUnits() + OtherUnits()) {
        QCOMPARE(UnitsIn(QLatin1String("12.50") + unit), QStringList(unit));
        QCOMPARE(UnitsIn(QLatin1String("set -12.50 ") + unit + QLatin1Char(',')), QStringList(unit));
    }
    QCOMPARE(UnitsIn(TUnits::GetValueString(value, UNITS_INCHES, precision, nullptr)).size(), 1);
    QCOMPARE(UnitsIn(TUnits::GetValueString(value, UNITS_FEET, precision, nullptr)).size(), 1);
    QCOMPARE(UnitsIn(TUnits::GetLatitudeString(value)), QStringList());
    QCOMPARE(UnitsIn(TUnits::GetLongitudeString(value)), QStringList());
}

void PageUnits::everyNumberIsSeen()
{
    const QStringList given = {QLatin1String("12.5 km"), QLatin1String("12.5"), QLatin1String("J_1"),
                               QLatin1String("2")};
    for (const char* text : {"", "----", "Area", "12.5", "2", "12.5 km", "12.5 km, 2", "J_1, 12.5 m", "2 of 2."})
        QCOMPARE(GivenTexts::Rest(QLatin1String(text), given), QString());
    for (const char* text : {"12.50", "12", "12,5", "112.5", "22", "2.2", "J_12", "3 of 2", "0.2"})
        QVERIFY2(!GivenTexts::Rest(QLatin1String(text), given).isEmpty(), text);
}

void PageUnits::areTheChosenOnesAndTheLibrarys_data()
{
    QTest::addColumn<int>("system");
    for (int system = 0; system < Systems().size(); ++system)
        QTest::newRow(Systems().at(system).name) << system;
}

void PageUnits::areTheChosenOnesAndTheLibrarys()
{
    QFETCH(int, system);
    const tagSystem chosen = Systems().at(system);
    TOpenDisplay display(Size, QString(), First());
    QVERIFY2(display.IsOpen(), qPrintable(display.Problem()));
    display.MakeExample();
    Choose(display, chosen);
    display.Drive(Positions);
    const QStringList others = chosen.isMetric ? OtherUnits() : MetricUnits();
    int found = 0;
    QStringList strange;
    for (const QString& view : TOpenDisplay::Views()) {
        display.Show(view);
        QStringList given = display.ExampleTexts();
        for (const QObject* quantity : display.Quantities()) {
            QCOMPARE(quantity->property("decimalSign").toString(), DecimalSign());
            given << quantity->property("text").toString() << quantity->property("unit").toString();
        }
        const QStringList numbers = GivenTexts::All(display);
        for (const QQuickItem* item : VisibleItems::Texts(display.Content())) {
            const QString text = VisibleItems::Text(*item);
            const QString what = view + QLatin1String(": ") + VisibleItems::Describe(*item);
            if (!HasOwnNumbers(item) && !GivenTexts::Rest(text, numbers).isEmpty())
                strange.append(what);
            const QStringList units = UnitsOf(*item);
            if (units.isEmpty())
                continue;
            ++found;
            for (const QString& unit : units)
                QVERIFY2(!others.contains(unit), qPrintable(what));
            const bool isGiven = std::any_of(given.begin(), given.end(), [&text](const QString& quantity) {
                return !quantity.isEmpty() && text.contains(quantity);
            });
            QVERIFY2(isGiven, qPrintable(what));
        }
    }
    strange.removeDuplicates(); // what is on every page
    QVERIFY2(strange.isEmpty(), qPrintable(strange.join(QLatin1Char('\n'))));
    // A walk that finds no unit proves nothing: the work page alone has seven tiles.
    const int least = 12;
    QVERIFY(found >= least);
}

QTEST_MAIN(PageUnits)
#include "PageUnits.moc"
