#include "display/fonts/DisplayFont.h"

#include <QFontMetricsF>
#include <QGuiApplication>
#include <QtTest>

/// The digits of the display's font have one width, and its texts are not set in the monospaced face.
class DigitWidths : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { InstallDisplayFont(); }
    void digitsHaveOneWidth_data();
    void digitsHaveOneWidth();
};

void DigitWidths::digitsHaveOneWidth_data()
{
    QTest::addColumn<int>("pixels");
    QTest::addColumn<bool>("isBold");
    for (const int pixels : {24, 30, 48, 50, 84}) {
        QTest::addRow("%d", pixels) << pixels << false;
        QTest::addRow("%d bold", pixels) << pixels << true;
    }
}

void DigitWidths::digitsHaveOneWidth()
{
    QFETCH(const int, pixels);
    QFETCH(const bool, isBold);
    QFont font = QGuiApplication::font();
    font.setPixelSize(pixels);
    font.setBold(isBold);
    const QFontMetricsF metrics(font);
    const double width = metrics.horizontalAdvance(QLatin1Char('0'));
    for (char digit = '1'; digit <= '9'; ++digit)
        QVERIFY2(qAbs(metrics.horizontalAdvance(QLatin1Char(digit)) - width) < 0.01,
                 qPrintable(QString(QLatin1Char(digit))));
    QVERIFY(metrics.horizontalAdvance(QLatin1Char('i')) < 0.7 * metrics.horizontalAdvance(QLatin1Char('m')));
}

QTEST_MAIN(DigitWidths)
#include "DigitWidths.moc"
