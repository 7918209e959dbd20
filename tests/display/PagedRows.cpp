#include "support/TOpenDisplay.h"
#include "support/VisibleItems.h"

#include "region/TRegionSettings.h"

#include <QSet>
#include <QtTest>

/// A list that is longer than its page: its buttons lead to every row.
class PagedRows : public QObject
{
    Q_OBJECT

private slots:
    void everyRowIsReached_data();
    void everyRowIsReached();
    void theWayBackShowsTheFirstRows();
    void theKeysOfPagesTurnThem();
    void aColourIsChangedOnOnePage_data();
    void aColourIsChangedOnOnePage();
};

namespace {

QStringList Languages()
{
    QStringList names;
    for (int language = LANGUAGE_ENGLISH; language <= LANGUAGE_SLOVENIAN; ++language)
        names.append(TRegionSettings::GetLanguageString(static_cast<ELanguage>(language)));
    return names;
}

/// Those of the languages that can be tapped now, sorted.
QStringList Seen(TOpenDisplay& display)
{
    QStringList seen;
    const QStringList languages = Languages();
    for (const QQuickItem* target : VisibleItems::Targets(display.Content())) {
        if (languages.contains(VisibleItems::NameOf(*target)))
            seen.append(VisibleItems::NameOf(*target));
    }
    seen.sort();
    return seen;
}

bool ShowLanguages(TOpenDisplay& display)
{
    display.ShowPage(QLatin1String("settings-region"));
    while (!display.Tap(QLatin1String("Language"))) {
        if (!display.Tap(QLatin1String("Rows below")))
            return false;
    }
    return true;
}

} // namespace

void PagedRows::everyRowIsReached_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<int>("leastOnAPage");
    QTest::newRow("landscape") << QSize(1280, 800) << 12;
    QTest::newRow("small") << QSize(800, 480) << 4;
    QTest::newRow("portrait") << QSize(800, 1280) << 20;
}

void PagedRows::everyRowIsReached()
{
    QFETCH(QSize, size);
    QFETCH(int, leastOnAPage);
    TOpenDisplay display(size);
    QVERIFY2(display.IsOpen(), qPrintable(display.Problem()));
    QVERIFY(ShowLanguages(display));
    QSet<QString> reached;
    bool hasMore = true;
    while (hasMore) {
        const QStringList seen = Seen(display);
        const QSet<QString> page(seen.begin(), seen.end());
        QVERIFY2(!reached.intersects(page), qPrintable(seen.join(QLatin1Char(' '))));
        reached += page;
        hasMore = display.Tap(QLatin1String("Rows below"));
        if (hasMore)
            QVERIFY2(page.size() >= leastOnAPage, qPrintable(QString::number(page.size())));
    }
    QCOMPARE(reached.size(), Languages().size());
}

void PagedRows::theWayBackShowsTheFirstRows()
{
    TOpenDisplay display(QSize(800, 480));
    QVERIFY2(display.IsOpen(), qPrintable(display.Problem()));
    QVERIFY(ShowLanguages(display));
    const QStringList first = Seen(display);
    while (display.Tap(QLatin1String("Rows below"))) {
    }
    QVERIFY(Seen(display) != first);
    while (display.Tap(QLatin1String("Rows above"))) {
    }
    QCOMPARE(Seen(display), first);
}

void PagedRows::theKeysOfPagesTurnThem()
{
    TOpenDisplay display(QSize(1280, 800));
    QVERIFY2(display.IsOpen(), qPrintable(display.Problem()));
    QVERIFY(ShowLanguages(display));
    const QStringList first = Seen(display);
    display.Press(Qt::Key_PageDown);
    QVERIFY(!Seen(display).contains(first.first()));
    display.Press(Qt::Key_PageUp);
    QCOMPARE(Seen(display), first);
}

void PagedRows::aColourIsChangedOnOnePage_data()
{
    QTest::addColumn<QSize>("size");
    QTest::newRow("800x480") << QSize(800, 480);
    QTest::newRow("480x800") << QSize(480, 800);
    QTest::newRow("1280x800") << QSize(1280, 800);
}

/// All bars are seen with what they change.
void PagedRows::aColourIsChangedOnOnePage()
{
    QFETCH(const QSize, size);
    TOpenDisplay display(size);
    QVERIFY2(display.IsOpen(), qPrintable(display.Problem()));
    display.MakeExample();
    display.Show(QLatin1String("color"));
    for (const char* const bar : {"Hue", "Saturation", "Lightness"})
        QVERIFY2(VisibleItems::Target(display.Content(), QLatin1String(bar)), bar);
}

QTEST_MAIN(PagedRows)
#include "PagedRows.moc"
