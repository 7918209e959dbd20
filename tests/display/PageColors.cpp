#include "support/PictureLight.h"
#include "support/TOpenDisplay.h"
#include "support/VisibleItems.h"

#include <QtTest>

/// What the pictures of the pages look like by day and by night: texts can be read, and at night nothing dazzles.
class PageColors : public QObject
{
    Q_OBJECT

private slots:
    void textsCanBeRead_data();
    void textsCanBeRead();
    void theNightIsDark();
};

namespace {

const double LeastContrastOfFigures = 7;

/// Letters of this size are figures that are read at a glance.
const int FigureSize = 48;

/// As many positions as the tractor takes for the first passes, and the part of the picture that they fill at least.
const int PositionsOfPasses = 6000;
const double LeastPartCovered = 0.04;

bool IsEnabled(const QQuickItem& item)
{
    return item.isEnabled() && (!item.parentItem() || IsEnabled(*item.parentItem()));
}

/// Of a text on a button that cannot be pressed now.
bool IsDimmed(const QQuickItem& item)
{
    for (const QQuickItem* owner = &item; owner; owner = owner->parentItem()) {
        if (owner->opacity() < 1)
            return true;
    }
    return !IsEnabled(item);
}

} // namespace

void PageColors::textsCanBeRead_data()
{
    QTest::addColumn<bool>("isDay");
    QTest::newRow("day") << true;
    QTest::newRow("night") << false;
}

void PageColors::textsCanBeRead()
{
    QFETCH(bool, isDay);
    TOpenDisplay display(QSize(1280, 800));
    QVERIFY2(display.IsOpen(), qPrintable(display.Problem()));
    display.MakeExample();
    display.SetParameter(QLatin1String("display.day-switching"), 0);
    display.SetParameter(QLatin1String("display.day"), isDay);
    QStringList found;
    for (const QString& view : TOpenDisplay::Views()) {
        display.Show(view);
        const QImage picture = display.Picture();
        QVERIFY(!picture.isNull());
        for (const QQuickItem* text : VisibleItems::Texts(display.Content())) {
            const QRect place = VisibleItems::SeenPart(*text).toAlignedRect() & picture.rect();
            if (IsDimmed(*text) || place.isEmpty())
                continue;
            const bool isFigure = isDay && VisibleItems::ShownSize(*text) >= FigureSize;
            const double contrast = PictureLight::Contrast(picture, place);
            if (contrast < (isFigure ? LeastContrastOfFigures : PictureLight::LeastContrast))
                found.append(view + QLatin1String(": ") + VisibleItems::Describe(*text) +
                             QString::fromLatin1(" has a contrast of %1").arg(contrast));
        }
    }
    QVERIFY2(found.isEmpty(), qPrintable(found.join(QLatin1Char('\n'))));
}

void PageColors::theNightIsDark()
{
    TOpenDisplay display(QSize(1280, 800));
    QVERIFY2(display.IsOpen(), qPrintable(display.Problem()));
    display.MakeExample();
    // Ground that was covered is lighter than the map.
    display.Drive(PositionsOfPasses);
    display.SetParameter(QLatin1String("display.day-switching"), 0);
    display.SetParameter(QLatin1String("display.day"), false);
    const QColor coverage = display.Parameter(QLatin1String("colors.night.coverage")).value<QColor>();
    for (const QString& view : TOpenDisplay::Views()) {
        display.Show(view);
        const QImage picture = display.Picture();
        QVERIFY(!picture.isNull());
        if (view == QLatin1String("work"))
            QVERIFY(PictureLight::PartOf(picture, coverage) > LeastPartCovered);
        QVERIFY2(!PictureLight::HasWhite(picture), qPrintable(view));
        const double mean = PictureLight::MeanLuminance(picture);
        qDebug("%s: mean luminance %.4f", qPrintable(view), mean);
        QVERIFY2(mean < PictureLight::MostLuminanceAtNight, qPrintable(view + QString::fromLatin1(": %1").arg(mean)));
    }
}

QTEST_MAIN(PageColors)
#include "PageColors.moc"
