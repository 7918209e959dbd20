#include "support/TOpenDisplay.h"
#include "support/VisibleItems.h"

#include "units/TUnits.h"

#include <QtTest>

#include <algorithm>

/// The page of units has an example of every quantity, and shows at once what a choice changes.
class UnitExamples : public QObject
{
    Q_OBJECT

private slots:
    void everyQuantityIsReached_data() { AddSizes(); }
    void everyQuantityIsReached();
    void aTapShowsWhatItChanges_data();
    void aTapShowsWhatItChanges();
    void aChoiceThatChangesWhatIsShownTurnsNoPage();

private:
    static void AddSizes();
};

namespace {

const QSize Sizes[] = {QSize(800, 480), QSize(1280, 800), QSize(1920, 1200), QSize(800, 1280)};

QStringList Shown(TOpenDisplay& display, const char* name)
{
    QStringList texts;
    for (const QQuickItem* text : VisibleItems::Texts(display.Content())) {
        if (text->objectName() == QLatin1String(name))
            texts.append(VisibleItems::Text(*text));
    }
    return texts;
}

bool IsOfExamples(const QQuickItem* item)
{
    for (; item; item = item->parentItem()) {
        if (item->objectName() == QLatin1String("example turner"))
            return true;
    }
    return false;
}

/// Turns the page of the examples, or that of the settings.
bool TurnDown(TOpenDisplay& display, bool isOfExamples)
{
    for (const QQuickItem* target : VisibleItems::Targets(display.Content())) {
        if (VisibleItems::NameOf(*target) == QLatin1String("Rows below") && IsOfExamples(target) == isOfExamples) {
            display.Tap(VisibleItems::SeenPart(*target).center());
            return true;
        }
    }
    return false;
}

bool TapChoice(TOpenDisplay& display, const QString& choice)
{
    while (!display.Tap(choice)) {
        if (!TurnDown(display, false))
            return false;
    }
    return true;
}

} // namespace

void UnitExamples::AddSizes()
{
    QTest::addColumn<QSize>("size");
    for (const QSize& size : Sizes)
        QTest::addRow("%dx%d", size.width(), size.height()) << size;
}

void UnitExamples::everyQuantityIsReached()
{
    QFETCH(const QSize, size);
    TOpenDisplay display(size);
    QVERIFY2(display.IsOpen(), qPrintable(display.Problem()));
    display.ShowPage(QLatin1String("settings-units"));
    QStringList titles;
    do {
        const QStringList page = Shown(display, "example title");
        QVERIFY(!page.isEmpty());
        QCOMPARE(Shown(display, "example").size(), page.size());
        titles += page;
    } while (TurnDown(display, true));
    QCOMPARE(titles.size(), 36);
    QCOMPARE(titles.removeDuplicates(), 0);
    for (const char* const title : {"Area", "Rate", "Travelled distance", "Nitrogen per area", "Latitude", "Percent"})
        QVERIFY2(titles.contains(QLatin1String(title)), title);
}

void UnitExamples::aTapShowsWhatItChanges_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QString>("choice");
    QTest::addColumn<QString>("title");
    QTest::addColumn<bool>("isPressure");
    for (const QSize& size : Sizes) {
        const auto row = [&size](const char* choice, const char* title, bool isPressure) {
            QTest::addRow("%s %dx%d", title, size.width(), size.height())
                << size << QString::fromLatin1(choice) << QString::fromLatin1(title) << isPressure;
        };
        row("psi", "Pressure", true);
        row("Foot", "Distance", false);
    }
}

void UnitExamples::aTapShowsWhatItChanges()
{
    QFETCH(const QSize, size);
    QFETCH(const QString, choice);
    QFETCH(const QString, title);
    QFETCH(const bool, isPressure);
    TOpenDisplay display(size);
    QVERIFY2(display.IsOpen(), qPrintable(display.Problem()));
    display.ShowPage(QLatin1String("settings-units"));
    const auto wanted = [isPressure] {
        return isPressure ? TUnits::GetPressureString(252) : TUnits::GetDistanceString(24, false, -1, nullptr);
    };
    const QString before = wanted();
    QVERIFY(TapChoice(display, choice));
    QVERIFY(wanted() != before);
    const auto place = Shown(display, "example title").indexOf(title);
    QVERIFY2(place >= 0, qPrintable(Shown(display, "example title").join(QLatin1Char(' '))));
    QCOMPARE(Shown(display, "example").value(place), wanted());
}

void UnitExamples::aChoiceThatChangesWhatIsShownTurnsNoPage()
{
    TOpenDisplay display(QSize(1280, 800));
    QVERIFY2(display.IsOpen(), qPrintable(display.Problem()));
    display.ShowPage(QLatin1String("settings-units"));
    const QStringList isShown = {QLatin1String("Temperature"), QLatin1String("Volume")};
    const auto isThere = [&](const QStringList& titles) {
        return std::any_of(isShown.begin(), isShown.end(),
                           [&](const QString& title) { return titles.contains(title); });
    };
    while (!isThere(Shown(display, "example title")))
        QVERIFY(TurnDown(display, true));
    const QStringList titles = Shown(display, "example title");
    const QStringList texts = Shown(display, "example");
    display.SetParameter(QLatin1String("units.metric"), !display.Parameter(QLatin1String("units.metric")).toBool());
    QCOMPARE(Shown(display, "example title"), titles);
    QVERIFY(Shown(display, "example") != texts);
}

QTEST_MAIN(UnitExamples)
#include "UnitExamples.moc"
