#include "colors/ColorContrast.h"
#include "parameters/TParameterCatalogue.h"
#include "stores/TMemoryStore.h"
#include "terminal/FirstStartValues.h"

#include <QtTest>

#include <cmath>

namespace {

const double Precision = 0.005;

QString Utf8(const char* text) { return QString::fromUtf8(text); }

/// "track on map, day"
QString Name(const tagContrastCheck& check)
{
    return QString::fromLatin1("%1 on %2, %3").arg(check.element, check.ground, Utf8(check.isDay ? "day" : "night"));
}

const tagContrastCheck& Find(const QList<tagContrastCheck>& checks, const QString& name)
{
    const auto found =
        std::find_if(checks.begin(), checks.end(), [&](const tagContrastCheck& check) { return Name(check) == name; });
    if (found == checks.end())
        qFatal("there is no pair %s", qPrintable(name));
    return *found;
}

} // namespace

/// Contrasts are those of WCAG 2.1, and the schemes of a first start reach all bounds.
class ColorContrasts : public QObject
{
    Q_OBJECT

private slots:
    void ratiosAreThoseOfTheDefinition_data();
    void ratiosAreThoseOfTheDefinition();
    void theOrderOfOpaqueColoursIsFree();
    void theBuiltInSchemesPass_data();
    void theBuiltInSchemesPass();
    void everyColourIsChecked();
    void everyBoundHasAnOrigin();
    void textsHaveTheHighestBound();
    void aPoorColourIsFound();
    void aColourThatIsNoneIsNotLegible();

private:
    static QList<tagContrastCheck> FirstStart()
    {
        TMemoryStore store;
        SetFirstStartValues(store);
        return CheckContrasts(store);
    }
};

void ColorContrasts::ratiosAreThoseOfTheDefinition_data()
{
    QTest::addColumn<QColor>("color");
    QTest::addColumn<QColor>("ground");
    QTest::addColumn<double>("ratio");
    const auto row = [](const char* name, const char* color, const char* ground, double ratio) {
        QTest::newRow(name) << QColor(Utf8(color)) << QColor(Utf8(ground)) << ratio;
    };
    row("black on white", "#000000", "#ffffff", 21);
    row("white on black", "#ffffff", "#000000", 21);
    row("equal", "#336699", "#336699", 1);
    // The well-known greys on white around the bounds 4.5 and 3, and the pure colours.
    row("the lightest grey for texts", "#767676", "#ffffff", 4.54);
    row("one step lighter", "#777777", "#ffffff", 4.48);
    row("the lightest grey for graphics", "#949494", "#ffffff", 3.03);
    row("red on white", "#ff0000", "#ffffff", 4.00);
    row("green on white", "#00ff00", "#ffffff", 1.37);
    row("blue on white", "#0000ff", "#ffffff", 8.59);
    row("the linear part", "#0a0a0a", "#000000", 1.06);
    row("half of black over white", "#80000000", "#ffffff", 4.00);
    row("nothing of black over white", "#00000000", "#ffffff", 1);
    row("a translucent ground counts as opaque", "#000000", "#80ffffff", 21);
}

void ColorContrasts::ratiosAreThoseOfTheDefinition()
{
    QFETCH(QColor, color);
    QFETCH(QColor, ground);
    QFETCH(double, ratio);
    const double found = ContrastRatio(color, ground);
    QVERIFY2(std::abs(found - ratio) < Precision, qPrintable(QString::number(found)));
}

void ColorContrasts::theOrderOfOpaqueColoursIsFree()
{
    const QColor first(0xd8, 0xc7, 0xa8);
    const QColor second(0x0b, 0x0d, 0x0f);
    QCOMPARE(ContrastRatio(first, second), ContrastRatio(second, first));
}

void ColorContrasts::theBuiltInSchemesPass_data()
{
    QTest::addColumn<double>("ratio");
    QTest::addColumn<double>("bound");
    for (const tagContrastCheck& check : FirstStart())
        QTest::newRow(qPrintable(Name(check))) << check.ratio << check.bound;
}

void ColorContrasts::theBuiltInSchemesPass()
{
    QFETCH(double, ratio);
    QFETCH(double, bound);
    QVERIFY2(ratio >= bound, qPrintable(QString::fromLatin1("%1 of %2").arg(ratio).arg(bound)));
}

void ColorContrasts::everyColourIsChecked()
{
    QSet<QString> checked;
    QSet<QString> names;
    for (const tagContrastCheck& check : FirstStart()) {
        const QString scheme = Utf8(check.isDay ? "colors.day." : "colors.night.");
        checked << scheme + check.element << scheme + check.ground;
        QVERIFY2(!names.contains(Name(check)), qPrintable(Name(check)));
        names.insert(Name(check));
    }
    for (const tagParameter& parameter : TParameterCatalogue::Parameters()) {
        if (parameter.type == PARAMETER_COLOR)
            QVERIFY2(checked.contains(parameter.name), qPrintable(parameter.name));
    }
}

void ColorContrasts::everyBoundHasAnOrigin()
{
    for (const tagContrastCheck& check : FirstStart()) {
        QVERIFY2(check.bound > 1, qPrintable(Name(check)));
        const bool isOfWcag = check.origin.startsWith(Utf8("WCAG 2.1, "));
        QVERIFY2(isOfWcag || check.origin.startsWith(Utf8("own: ")), qPrintable(Name(check)));
        QCOMPARE(isOfWcag, check.bound >= 3); // only own bounds are lower
    }
}

void ColorContrasts::textsHaveTheHighestBound()
{
    const QList<tagContrastCheck> checks = FirstStart();
    for (const char* text : {"text on background", "text on map", "title on background", "button-text on button"}) {
        for (const char* scheme : {", day", ", night"})
            QCOMPARE(Find(checks, Utf8(text) + Utf8(scheme)).bound, 4.5);
    }
    QCOMPARE(Find(checks, Utf8("track on map, night")).bound, 3.0);
    QCOMPARE(Find(checks, Utf8("coverage on map, day")).bound, 2.0);
    QCOMPARE(Find(checks, Utf8("coverage on map, night")).bound, 1.5);
}

void ColorContrasts::aPoorColourIsFound()
{
    TMemoryStore store;
    SetFirstStartValues(store);
    const EParamID map = TParameterCatalogue::Find(Utf8("colors.night.map"))->id;
    const EParamID track = TParameterCatalogue::Find(Utf8("colors.night.track"))->id;
    store.SetParameter(track, store.GetParameter(map), true);
    const QList<tagContrastCheck> checks = CheckContrasts(store);
    const tagContrastCheck& poor = Find(checks, Utf8("track on map, night"));
    QVERIFY(!poor.isLegible);
    QCOMPARE(poor.ratio, 1.0);
    QVERIFY(Find(checks, Utf8("track on map, day")).isLegible);
    QVERIFY(Find(checks, Utf8("vehicle on map, night")).isLegible);
}

void ColorContrasts::aColourThatIsNoneIsNotLegible()
{
    TMemoryStore store;
    SetFirstStartValues(store);
    store.SetParameter(TParameterCatalogue::Find(Utf8("colors.day.text"))->id, QVariant(), true);
    store.SetParameter(TParameterCatalogue::Find(Utf8("colors.day.button"))->id, 7, true);
    const QList<tagContrastCheck> checks = CheckContrasts(store);
    for (const char* name : {"text on background, day", "button-text on button, day", "button on background, day"}) {
        const tagContrastCheck& check = Find(checks, Utf8(name));
        QVERIFY2(std::isnan(check.ratio), name);
        QVERIFY2(!check.isLegible, name);
    }
}

QTEST_GUILESS_MAIN(ColorContrasts)
#include "ColorContrasts.moc"
