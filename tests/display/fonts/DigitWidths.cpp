#include "display/fonts/DisplayFont.h"

#include <QFontMetricsF>
#include <QGuiApplication>
#include <QtTest>

/// The digits of the display's font have one width, and its texts are not set in the monospaced face.
class DigitWidths : public QObject
{
    Q_OBJECT

private slots:
    void digitsHaveOneWidth_data();
    void digitsHaveOneWidth();
};

void DigitWidths::digitsHaveOneWidth_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<int>("pixels");
    QTest::addColumn<bool>("isBold");
    for (const char* const language : {"", "ru", "ja"}) { // of each first font and each fallback
        for (const int pixels : {24, 30, 48, 50, 84}) {
            QTest::addRow("%s %d", language, pixels) << QString::fromLatin1(language) << pixels << false;
            QTest::addRow("%s %d bold", language, pixels) << QString::fromLatin1(language) << pixels << true;
        }
    }
}

void DigitWidths::digitsHaveOneWidth()
{
    QFETCH(const QString, language);
    QFETCH(const int, pixels);
    QFETCH(const bool, isBold);
    InstallDisplayFont(language);
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
