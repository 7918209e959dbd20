#include "support/CutOffTexts.h"
#include "support/TOpenDisplay.h"
#include "support/VisibleItems.h"

#include <QGuiApplication>
#include <QTranslator>
#include <QtTest>

/// All texts of all pages can be read: none is elided, cut off or small.
class PageTexts : public QObject
{
    Q_OBJECT

private slots:
    void noneIsCutOff_data();
    void noneIsCutOff();
    void longerWordsAreNotCutOff_data();
    void longerWordsAreNotCutOff();
    void allAreLargeEnough_data();
    void allAreLargeEnough();
};

namespace {

const QSize Sizes[] = {QSize(800, 480), QSize(1280, 800), QSize(1920, 1200), QSize(800, 1280)};

/// The smallest text, and the smallest figure of a tile.
const int LeastText = 24;
const int LeastFigure = 48;

void AddSizes()
{
    QTest::addColumn<QSize>("size");
    for (const QSize& size : Sizes)
        QTest::addRow("%dx%d", size.width(), size.height()) << size;
}

/// A language whose words are longer by a third.
class TLongerWords : public QTranslator
{
public:
    bool isEmpty() const override { return false; }

    QString translate(const char*, const char* text, const char*, int) const override
    {
        const QString word = QString::fromUtf8(text);
        const int share = 3;
        // Places of values stay; so do signs and abbreviations, which no language writes longer.
        const int shortest = 4;
        return word.size() < shortest ? word : word + QString(word.size() / share, QLatin1Char('n'));
    }
};

} // namespace

void PageTexts::noneIsCutOff_data() { AddSizes(); }

void PageTexts::noneIsCutOff()
{
    QFETCH(QSize, size);
    TOpenDisplay display(size);
    QVERIFY2(display.IsOpen(), qPrintable(display.Problem()));
    display.MakeExample();
    const QStringList found = CutOffTexts(display);
    QVERIFY2(found.isEmpty(), qPrintable(found.join(QLatin1Char('\n'))));
}

void PageTexts::longerWordsAreNotCutOff_data() { AddSizes(); }

void PageTexts::longerWordsAreNotCutOff()
{
    QFETCH(QSize, size);
    TLongerWords longer;
    QVERIFY(QCoreApplication::installTranslator(&longer));
    TOpenDisplay display(size);
    QVERIFY2(display.IsOpen(), qPrintable(display.Problem()));
    display.MakeExample();
    const QStringList found = CutOffTexts(display);
    QVERIFY2(found.isEmpty(), qPrintable(found.join(QLatin1Char('\n'))));
}

void PageTexts::allAreLargeEnough_data() { AddSizes(); }

void PageTexts::allAreLargeEnough()
{
    QFETCH(QSize, size);
    TOpenDisplay display(size);
    QVERIFY2(display.IsOpen(), qPrintable(display.Problem()));
    display.MakeExample();
    for (const QString& view : TOpenDisplay::Views()) {
        display.Show(view);
        for (const QQuickItem* text : VisibleItems::Texts(display.Content())) {
            const int letters = VisibleItems::ShownSize(*text);
            const bool isFigure = text->objectName() == QLatin1String("figure");
            QVERIFY2(letters >= (isFigure ? LeastFigure : LeastText),
                     qPrintable(view + QLatin1String(": ") + VisibleItems::Describe(*text) +
                                QString::fromLatin1(" has letters of %1").arg(letters)));
        }
    }
}

QTEST_MAIN(PageTexts)
#include "PageTexts.moc"
