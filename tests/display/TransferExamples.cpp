#include "support/TOpenDisplay.h"
#include "support/VisibleItems.h"

#include "display/shot/OverlayTable.h"

#include <QtTest>

/// The examples of transfers that have ended say sentences that the module itself says: they are translated with it.
class TransferExamples : public QObject
{
    Q_OBJECT

private slots:
    void sayWhatTheModuleSays();
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

QTEST_MAIN(TransferExamples)
#include "TransferExamples.moc"
