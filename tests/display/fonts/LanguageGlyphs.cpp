#include "../../translations/TCatalogue.h"

#include "display/fonts/DisplayFont.h"

#include <QGlyphRun>
#include <QGuiApplication>
#include <QRawFont>
#include <QTextLayout>
#include <QtTest>

/// Every sign of every text is drawn by a font that the display depends on, and no word by two of them.
class LanguageGlyphs : public QObject
{
    Q_OBJECT

private slots:
    void textsAreDrawnByTheDisplaysFonts_data() { AddLanguages(); }
    void textsAreDrawnByTheDisplaysFonts();
    void wordsAreOfOneFont_data() { AddLanguages(); }
    void wordsAreOfOneFont();
    void signsOfChinaAndJapanAreTheirOwn();

private:
    static void AddLanguages();
    static QFont Font(const QString& language, bool isBold);
};

namespace {

QStringList Texts(const QString& language)
{
    const TCatalogue catalogue(QString::fromUtf8(CABSETTINGS_TRANSLATIONS "/cabsettings_%1.ts").arg(language));
    QStringList texts;
    for (const tagMessage& message : catalogue.Messages())
        texts += message.forms;
    return texts;
}

/// The runs of one font each that draw the text.
QList<QGlyphRun> Runs(const QString& text, const QFont& font)
{
    QTextLayout layout(text, font);
    layout.beginLayout();
    layout.createLine();
    layout.endLayout();
    return layout.glyphRuns();
}

/// Qt 5 names the first font with all families.
QString Family(const QGlyphRun& run) { return run.rawFont().familyName().section(QLatin1Char(','), 0, 0); }

/// Han, kana, and their punctuation.
bool IsEastAsian(QChar character)
{
    switch (character.script()) {
    case QChar::Script_Han:
    case QChar::Script_Hiragana:
    case QChar::Script_Katakana:
        return true;
    default:
        return (character.unicode() >= 0x3000 && character.unicode() <= 0x30ff) || character.unicode() >= 0xff00;
    }
}

} // namespace

void LanguageGlyphs::AddLanguages()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<bool>("isBold");
    for (const QString& language : QString::fromUtf8(CABSETTINGS_LANGUAGES).split(QLatin1Char(' '))) {
        QTest::addRow("%s", qPrintable(language)) << language << false;
        QTest::addRow("%s bold", qPrintable(language)) << language << true;
    }
}

QFont LanguageGlyphs::Font(const QString& language, bool isBold)
{
    InstallDisplayFont(language);
    QFont font = QGuiApplication::font();
    font.setPixelSize(24);
    font.setBold(isBold);
    return font;
}

void LanguageGlyphs::textsAreDrawnByTheDisplaysFonts()
{
    QFETCH(QString, language);
    QFETCH(bool, isBold);
    const QFont font = Font(language, isBold);
    const QStringList families = DisplayFamilies(language);
    const QStringList texts = Texts(language);
    QVERIFY(!texts.isEmpty());
    for (QString text : texts) {
        const QList<QGlyphRun> runs = Runs(text.remove(QLatin1Char('\n')), font);
        QVERIFY2(!runs.isEmpty() || text.trimmed().isEmpty(), qPrintable(text));
        for (const QGlyphRun& run : runs) {
            const QString family = Family(run);
            QVERIFY2(families.contains(family), qPrintable(family + QLatin1String(": ") + text));
            QVERIFY2(!run.glyphIndexes().contains(0), qPrintable(text));
        }
    }
}

/// Letters of two faces in one word are of two weights and heights.
void LanguageGlyphs::wordsAreOfOneFont()
{
    QFETCH(QString, language);
    QFETCH(bool, isBold);
    const QFont font = Font(language, isBold);
    QFont first(DisplayFamilies(language).first());
    first.setPixelSize(font.pixelSize());
    first.setBold(isBold);
    const QRawFont raw = QRawFont::fromFont(first);
    for (const QString& text : Texts(language)) {
        for (const QChar character : text) {
            if (character.isLetter() && !IsEastAsian(character))
                QVERIFY2(raw.supportsCharacter(character), qPrintable(QString(character) + QLatin1String(": ") + text));
        }
    }
}

void LanguageGlyphs::signsOfChinaAndJapanAreTheirOwn()
{
    const QString sign(QChar(0x76f4)); // "straight", which the two write differently
    const QList<QGlyphRun> japanese = Runs(sign, Font(QLatin1String("ja"), false));
    const QList<QGlyphRun> chinese = Runs(sign, Font(QLatin1String("zh"), false));
    QCOMPARE(japanese.size(), 1);
    QCOMPARE(chinese.size(), 1);
    QCOMPARE(Family(japanese.first()), QLatin1String("Noto Sans CJK JP"));
    QCOMPARE(Family(chinese.first()), QLatin1String("Noto Sans CJK SC"));
    QVERIFY(japanese.first().glyphIndexes() != chinese.first().glyphIndexes());
}

QTEST_MAIN(LanguageGlyphs)
#include "LanguageGlyphs.moc"
