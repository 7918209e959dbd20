#include "support/CutOffTexts.h"
#include "support/TOpenDisplay.h"

#include <QGuiApplication>
#include <QTranslator>
#include <QtTest>

/// All texts of all pages can be read: none is elided, cut off, small, or on another one.
class PageTexts : public QObject
{
    Q_OBJECT

private slots:
    void noneIsCutOffOrSmall_data();
    void noneIsCutOffOrSmall();
    void longerWordsAreNotCutOffOrSmall_data();
    void longerWordsAreNotCutOffOrSmall();
};

namespace {

const QSize Sizes[] = {QSize(800, 480), QSize(1280, 800), QSize(1920, 1200), QSize(800, 1280), QSize(480, 800)};

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

void PageTexts::noneIsCutOffOrSmall_data() { AddSizes(); }

void PageTexts::noneIsCutOffOrSmall()
{
    QFETCH(QSize, size);
    TOpenDisplay display(size);
    QVERIFY2(display.IsOpen(), qPrintable(display.Problem()));
    display.MakeExample();
    const QStringList found = CutOffTexts(display);
    QVERIFY2(found.isEmpty(), qPrintable(found.join(QLatin1Char('\n'))));
}

void PageTexts::longerWordsAreNotCutOffOrSmall_data() { AddSizes(); }

void PageTexts::longerWordsAreNotCutOffOrSmall()
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

QTEST_MAIN(PageTexts)
#include "PageTexts.moc"
