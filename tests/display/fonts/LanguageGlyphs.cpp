#include "../../translations/TCatalogue.h"
#include "../support/RunInLanguage.h"

#include "display/fonts/DisplayFont.h"

#include <QGlyphRun>
#include <QRawFont>
#include <QTextLayout>
#include <QtTest>

/// Every sign of every text of a language is drawn by a font that the display depends on, and no word by two of them.
/// The language is the program's first argument: Qt 6 draws all signs of Japan and China in the face that it has used
/// first.
class LanguageGlyphs : public QObject
{
    Q_OBJECT

public:
    explicit LanguageGlyphs(const QString& language) : m_Language(language) {}

private slots:
    void initTestCase() { InstallDisplayFont(m_Language); }
    void textsAreDrawnByTheDisplaysFonts_data() { AddWeights(); }
    void textsAreDrawnByTheDisplaysFonts();
    void wordsAreOfOneFont_data() { AddWeights(); }
    void wordsAreOfOneFont();
    void signsOfChinaAndJapanAreTheirOwn();

private:
    static void AddWeights();
    static QFont Font(bool isBold);

    QString m_Language;
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

void LanguageGlyphs::AddWeights()
{
    QTest::addColumn<bool>("isBold");
    QTest::newRow("regular") << false;
    QTest::newRow("bold") << true;
}

QFont LanguageGlyphs::Font(bool isBold)
{
    QFont font = QGuiApplication::font();
    font.setPixelSize(24);
    font.setBold(isBold);
    return font;
}

void LanguageGlyphs::textsAreDrawnByTheDisplaysFonts()
{
    QFETCH(bool, isBold);
    const QFont font = Font(isBold);
    const QStringList families = DisplayFamilies(m_Language);
    const QStringList texts = Texts(m_Language);
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
    QFETCH(bool, isBold);
    const QFont font = Font(isBold);
    QFont first(DisplayFamilies(m_Language).first());
    first.setPixelSize(font.pixelSize());
    first.setBold(isBold);
    const QRawFont raw = QRawFont::fromFont(first);
    for (const QString& text : Texts(m_Language)) {
        for (const QChar character : text) {
            if (character.isLetter() && !IsEastAsian(character))
                QVERIFY2(raw.supportsCharacter(character), qPrintable(QString(character) + QLatin1String(": ") + text));
        }
    }
}

void LanguageGlyphs::signsOfChinaAndJapanAreTheirOwn()
{
    const bool isChinese = m_Language == QLatin1String("zh");
    const QString sign(QChar(0x76f4)); // "straight", which the two write differently
    const QList<QGlyphRun> runs = Runs(sign, Font(false));
    QCOMPARE(runs.size(), 1);
    QCOMPARE(Family(runs.first()), QLatin1String(isChinese ? "Noto Sans CJK SC" : "Noto Sans CJK JP"));
}

int main(int argc, char** argv) { return RunInLanguage<LanguageGlyphs>(argc, argv); }

#include "LanguageGlyphs.moc"
