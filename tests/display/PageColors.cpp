#include "support/TOpenDisplay.h"
#include "support/VisibleItems.h"

#include "colors/ColorContrast.h"

#include <QHash>
#include <QtTest>

#include <cmath>

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

const double LeastContrast = 4.5;
const double LeastContrastOfFigures = 7;

/// Letters of this size are figures that are read at a glance.
const int FigureSize = 48;

const double MostLuminanceAtNight = 0.08;

/// Linear light of a channel from 0 to 255, as sRGB defines it.
double Linear(int channel)
{
    const double value = channel / 255.0;
    return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
}

double Luminance(const QColor& color)
{
    return 0.2126 * Linear(color.red()) + 0.7152 * Linear(color.green()) + 0.0722 * Linear(color.blue());
}

/// The greatest contrast of a pixel of the place, which is in the middle of a stroke, against the colour that most
/// pixels have.
double Contrast(const QImage& picture, const QRect& place)
{
    QHash<QRgb, int> counts;
    QRgb ground = picture.pixel(place.topLeft());
    for (int y = place.top(); y <= place.bottom(); ++y) {
        for (int x = place.left(); x <= place.right(); ++x) {
            const QRgb pixel = picture.pixel(x, y);
            if (++counts[pixel] > counts.value(ground))
                ground = pixel;
        }
    }
    double greatest = 1;
    for (const QRgb pixel : counts.keys())
        greatest = std::max(greatest, ContrastRatio(QColor(pixel), QColor(ground)));
    return greatest;
}

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
            const double contrast = Contrast(picture, place);
            if (contrast < (isFigure ? LeastContrastOfFigures : LeastContrast))
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
    display.SetParameter(QLatin1String("display.day-switching"), 0);
    display.SetParameter(QLatin1String("display.day"), false);
    for (const QString& view : TOpenDisplay::Views()) {
        display.Show(view);
        const QImage picture = display.Picture();
        QVERIFY(!picture.isNull());
        QHash<QRgb, int> counts;
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x)
                ++counts[picture.pixel(x, y)];
        }
        QVERIFY2(!counts.contains(QColor(Qt::white).rgb()), qPrintable(view));
        double sum = 0;
        for (auto count = counts.cbegin(); count != counts.cend(); ++count)
            sum += Luminance(QColor(count.key())) * count.value();
        const double mean = sum / (double(picture.width()) * picture.height());
        qDebug("%s: mean luminance %.4f", qPrintable(view), mean);
        QVERIFY2(mean < MostLuminanceAtNight, qPrintable(view + QString::fromLatin1(": %1").arg(mean)));
    }
}

QTEST_MAIN(PageColors)
#include "PageColors.moc"
