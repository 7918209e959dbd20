#include "support/CutOffTexts.h"
#include "support/RunInLanguage.h"
#include "support/TOpenDisplay.h"

#include <QtTest>

#include <utility>

/// All texts of all pages can be read in a language: none is elided, cut off or outside of the screen. The language is
/// the program's first argument.
class PageLanguages : public QObject
{
    Q_OBJECT

public:
    explicit PageLanguages(const QString& language) : m_Language(language) {}

private slots:
    void noneIsCutOff_data();
    void noneIsCutOff();

private:
    QString m_Language;
};

namespace {

/// Each size takes some seconds for a language: the slim window is tested with those that have long words.
const QStringList LanguagesWithLongWords = {QStringLiteral("de"), QStringLiteral("el"), QStringLiteral("fi"),
                                            QStringLiteral("hu"), QStringLiteral("ja"), QStringLiteral("ru")};

} // namespace

void PageLanguages::noneIsCutOff_data()
{
    QTest::addColumn<QSize>("size");
    QVector<QSize> sizes = {QSize(800, 480), QSize(1280, 800)};
    if (LanguagesWithLongWords.contains(m_Language))
        sizes.append(QSize(480, 800));
    for (const QSize& size : std::as_const(sizes))
        QTest::addRow("%s %dx%d", qPrintable(m_Language), size.width(), size.height()) << size;
}

void PageLanguages::noneIsCutOff()
{
    QFETCH(QSize, size);
    TOpenDisplay display(size, m_Language);
    QVERIFY2(display.IsOpen(), qPrintable(display.Problem()));
    display.MakeExample();
    const QStringList found = CutOffTextsOfAllRows(display);
    QVERIFY2(found.isEmpty(), qPrintable(found.join(QLatin1Char('\n'))));
}

int main(int argc, char** argv) { return RunInLanguage<PageLanguages>(argc, argv); }

#include "PageLanguages.moc"
