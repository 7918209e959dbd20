#include "display/lightbar/TLightBar.h"

#include <QPainter>
#include <QSignalSpy>
#include <QtTest>

#include <cmath>
#include <limits>

namespace {

const double NoLine = std::numeric_limits<double>::quiet_NaN();
const QColor Centre(0, 200, 0);
const QColor Side(200, 100, 0);
const QColor Dark(40, 40, 40);

} // namespace

/// The light bar: which segments are lit at which distance, and on which side.
class LightBar : public QObject
{
    Q_OBJECT

private slots:
    void distancesLightSegments_data();
    void distancesLightSegments();
    void theSideToSteerToIsLit_data();
    void theSideToSteerToIsLit();
    void nothingIsLitWithoutALine();
    void theLevelDimsWhatIsLit();
    void onlyAnotherSegmentIsTold();

private:
    static QImage Picture(TLightBar& bar);

    /// The colour in the middle of a segment; 0 is the middle one, -1 the first on its left.
    static QColor Segment(const QImage& image, int segment);
};

QImage LightBar::Picture(TLightBar& bar)
{
    bar.setSize(QSizeF(832, 40));
    bar.SetCentreColor(Centre);
    bar.SetSideColor(Side);
    bar.SetDarkColor(Dark);
    QImage image(832, 40, QImage::Format_RGB32);
    image.fill(Qt::black);
    QPainter painter(&image);
    bar.paint(&painter);
    return image;
}

QColor LightBar::Segment(const QImage& image, int segment)
{
    const double half = 0.8; // of the middle one, in widths of the others
    const double step = image.width() / (2 * TLightBar::SideSegments + 2 * half);
    const double offset = segment == 0 ? 0 : segment > 0 ? half + segment - 0.5 : segment - half + 0.5;
    return image.pixelColor(static_cast<int>(image.width() / 2 + offset * step), image.height() / 2);
}

void LightBar::distancesLightSegments_data()
{
    QTest::addColumn<double>("offLine");
    QTest::addColumn<int>("lit");
    QTest::newRow("on the line") << 0.0 << 0;
    QTest::newRow("within half a segment") << 0.025 << 0;
    QTest::newRow("a little right: steer left") << 0.03 << -1;
    QTest::newRow("a little left: steer right") << -0.03 << 1;
    QTest::newRow("8 cm left") << -0.08 << 2;
    QTest::newRow("10 cm right") << 0.0999 << -2;
    QTest::newRow("all") << -0.31 << 7;
    QTest::newRow("more than all") << -2.0 << 7;
    QTest::newRow("far beyond an int") << 1e18 << -7;
    QTest::newRow("endless") << -std::numeric_limits<double>::infinity() << 7;
    QTest::newRow("no line") << NoLine << 0;
}

void LightBar::distancesLightSegments()
{
    QFETCH(const double, offLine);
    QFETCH(const int, lit);
    TLightBar bar;
    bar.SetOffLine(offLine);
    QCOMPARE(bar.Lit(), lit);
}

void LightBar::theSideToSteerToIsLit_data()
{
    QTest::addColumn<double>("offLine");
    QTest::addColumn<int>("first");
    QTest::addColumn<int>("last");
    QTest::newRow("left of the line") << -0.12 << 1 << 3;
    QTest::newRow("right of the line") << 0.12 << -3 << -1;
    QTest::newRow("on the line") << 0.01 << 0 << 0;
}

void LightBar::theSideToSteerToIsLit()
{
    QFETCH(const double, offLine);
    QFETCH(const int, first);
    QFETCH(const int, last);
    TLightBar bar;
    bar.SetOffLine(offLine);
    const QImage image = Picture(bar);
    for (int segment = -TLightBar::SideSegments; segment <= TLightBar::SideSegments; ++segment) {
        const bool isLit = segment >= first && segment <= last;
        const QColor expected = segment == 0 ? Centre : isLit ? Side : Dark;
        QVERIFY2(Segment(image, segment) == expected, qPrintable(QString::number(segment)));
    }
}

void LightBar::nothingIsLitWithoutALine()
{
    TLightBar bar;
    QVERIFY(std::isnan(bar.OffLine()));
    const QImage image = Picture(bar);
    for (int segment = -TLightBar::SideSegments; segment <= TLightBar::SideSegments; ++segment)
        QCOMPARE(Segment(image, segment), Dark);
}

void LightBar::theLevelDimsWhatIsLit()
{
    TLightBar bar;
    bar.SetOffLine(-1);
    int before = Side.red() + 1;
    for (const double level : {1.0, 0.6, 0.2, 0.0}) {
        bar.SetLevel(level);
        const QImage image = Picture(bar);
        const int red = Segment(image, 3).red();
        QVERIFY2(red < before, qPrintable(QString::number(level)));
        before = red;
    }
    QVERIFY(before > Dark.red()); // it never goes out
    bar.SetLevel(-3);
    QCOMPARE(bar.Level(), 0.0);
    bar.SetLevel(3);
    QCOMPARE(bar.Level(), 1.0);
}

void LightBar::onlyAnotherSegmentIsTold()
{
    TLightBar bar;
    bar.SetOffLine(0.06);
    QSignalSpy lit(&bar, &TLightBar::litChanged);
    QSignalSpy offLine(&bar, &TLightBar::offLineChanged);
    bar.SetOffLine(0.07);
    bar.SetOffLine(0.07);
    QCOMPARE(offLine.size(), 1);
    QCOMPARE(lit.size(), 0);
    bar.SetOffLine(0.12);
    QCOMPARE(lit.size(), 1);
    bar.SetOffLine(NoLine);
    bar.SetOffLine(NoLine);
    QCOMPARE(lit.size(), 2);
    QCOMPARE(offLine.size(), 3);
}

QTEST_MAIN(LightBar)
#include "LightBar.moc"
