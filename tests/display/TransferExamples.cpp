#include "support/TOpenDisplay.h"
#include "support/VisibleItems.h"

#include "display/shot/OverlayTable.h"

#include <QTranslator>
#include <QtTest>

#include <algorithm>
#include <iterator>
#include <utility>

/// The examples say what the display itself says: their sentences are translated with it.
class TransferExamples : public QObject
{
    Q_OBJECT

private slots:
    void sayWhatTheModuleSays();
    void everySentenceOfThemIsTranslated();
    void aRunningTransferSaysWhatItDoes_data();
    void aRunningTransferSaysWhatItDoes();
};

namespace {

QMap<QString, QString> Sentences(const QString& language)
{
    QMap<QString, QString> sentences;
    TOpenDisplay display(QSize(1280, 800), language);
    if (!display.IsOpen())
        return sentences;
    display.MakeExample();
    for (const tagOverlay& overlay : Overlays) {
        if (QLatin1String(overlay.shown) != QLatin1String("transferEnd"))
            continue;
        const QString name = QLatin1String(overlay.name);
        display.Show(name);
        for (const QQuickItem* text : VisibleItems::Texts(display.Content())) {
            if (text->objectName() == QLatin1String(overlay.shown))
                sentences.insert(name, VisibleItems::Text(*text));
        }
    }
    return sentences;
}

/// Hears each text that is asked for, and leaves it to the other translators.
class THeardTexts : public QTranslator
{
public:
    using TText = QPair<QByteArray, QByteArray>; ///< context and text

    bool isEmpty() const override { return false; }

    QString translate(const char* context, const char* text, const char*, int) const override
    {
        m_Texts.insert({context, text});
        return QString();
    }

    QSet<TText> Take() { return std::exchange(m_Texts, {}); }

private:
    mutable QSet<TText> m_Texts;
};

/// Of the sentences that the examples take from the display; pages have contexts of their own.
const QByteArray Contexts[] = {"Transfer", "TWork", "Host"};

} // namespace

void TransferExamples::sayWhatTheModuleSays()
{
    const QMap<QString, QString> english = Sentences(QStringLiteral("en"));
    const QMap<QString, QString> german = Sentences(QStringLiteral("de"));
    QVERIFY(!english.isEmpty());
    for (auto sentence = english.begin(); sentence != english.end(); ++sentence) {
        QVERIFY2(!german.value(sentence.key()).isEmpty(), qPrintable(sentence.key()));
        QVERIFY2(german.value(sentence.key()) != sentence.value(), qPrintable(sentence.key()));
    }
}

/// Also those that stand in lists and in the messages above a page.
void TransferExamples::everySentenceOfThemIsTranslated()
{
    TOpenDisplay display(QSize(1280, 800), QStringLiteral("de"));
    QVERIFY2(display.IsOpen(), qPrintable(display.Problem()));
    display.MakeExample();
    THeardTexts heard;
    QVERIFY(QCoreApplication::installTranslator(&heard));
    QSet<QByteArray> contexts;
    for (const tagOverlay& overlay : Overlays) {
        if (!overlay.change)
            continue;
        heard.Take();
        display.Show(QLatin1String(overlay.name));
        const QSet<THeardTexts::TText> texts = heard.Take();
        for (const THeardTexts::TText& text : texts) {
            if (std::find(std::begin(Contexts), std::end(Contexts), text.first) == std::end(Contexts))
                continue;
            contexts.insert(text.first);
            QVERIFY2(QCoreApplication::translate(text.first, text.second) != QString::fromUtf8(text.second),
                     (QByteArray(overlay.name) + ": " + text.second).constData());
        }
    }
    QCoreApplication::removeTranslator(&heard);
    QCOMPARE(static_cast<std::size_t>(contexts.size()), std::size(Contexts));
}

void TransferExamples::aRunningTransferSaysWhatItDoes_data()
{
    QTest::addColumn<QString>("words");
    QTest::newRow("export-running") << "Writing";
    QTest::newRow("profile-running") << "Writing";
    QTest::newRow("import-running") << "Reading";
}

void TransferExamples::aRunningTransferSaysWhatItDoes()
{
    QFETCH(const QString, words);
    TOpenDisplay display(QSize(1280, 800), QStringLiteral("en"));
    QVERIFY2(display.IsOpen(), qPrintable(display.Problem()));
    display.MakeExample();
    display.Show(QString::fromLatin1(QTest::currentDataTag()));
    QStringList said;
    for (const QQuickItem* text : VisibleItems::Texts(display.Content()))
        said.append(VisibleItems::Text(*text));
    said = said.filter(QRegularExpression(QLatin1String("^(Writing|Reading)$")));
    QCOMPARE(said, QStringList(words));
}

QTEST_MAIN(TransferExamples)
#include "TransferExamples.moc"
