#include "TCatalogue.h"

#include <QFile>
#include <QRegularExpression>
#include <QtTest>

#include <algorithm>
#include <map>

/// The words of the trade are the same in all texts of a language, and those of the glossary.
class Glossary : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void everyTermHasAWord_data() { AddLanguages(); }
    void everyTermHasAWord();
    void textsUseTheWords_data() { AddLanguages(); }
    void textsUseTheWords();

private:
    struct tagEntry
    {
        QString word;
        QStringList forms;
        QString source;
    };
    using TEntries = std::map<QString, tagEntry>;

    static void AddLanguages();
    static QStringList Terms(const TEntries& entries);

    std::map<QString, TEntries> m_Languages;
};

namespace {

const QString English(QStringLiteral("en"));
const QString German(QStringLiteral("de"));

constexpr int Columns = 5;
constexpr int LeastTerms = 60;

/// The term as a whole word, in singular or plural. What stands in brackets behind it is no part of it.
QRegularExpression Finder(const QString& term)
{
    QString word = QRegularExpression::escape(term.section(QLatin1String(" ("), 0, 0));
    if (word.endsWith(QLatin1Char('y')))
        word = word.chopped(1) + QLatin1String("(y|ie)");
    return QRegularExpression(QLatin1String("\\b") + word + QLatin1String("(s|es)?\\b"),
                              QRegularExpression::CaseInsensitiveOption);
}

} // namespace

void Glossary::AddLanguages()
{
    QTest::addColumn<QString>("language");
    const QStringList languages = QStringLiteral(CABSETTINGS_LANGUAGES).split(QLatin1Char(' '));
    for (const QString& language : languages) {
        if (language != English)
            QTest::newRow(qPrintable(language)) << language;
    }
}

QStringList Glossary::Terms(const TEntries& entries)
{
    QStringList terms;
    for (const auto& entry : entries)
        terms.append(entry.first);
    return terms;
}

void Glossary::initTestCase()
{
    QFile file(QStringLiteral(CABSETTINGS_TRANSLATIONS "/glossary.tsv"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QStringList lines = QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'));
    for (const QString& line : lines) {
        if (line.isEmpty() || line.startsWith(QLatin1Char('#')))
            continue;
        const QStringList fields = line.split(QLatin1Char('\t'));
        QVERIFY2(fields.size() == Columns, qPrintable(line));
        TEntries& entries = m_Languages[fields.at(0)];
        QVERIFY2(entries.find(fields.at(1)) == entries.end(), qPrintable(line)); // twice
        entries[fields.at(1)] = {fields.at(2), fields.at(3).split(QLatin1Char('|')), fields.at(4)};
    }
}

void Glossary::everyTermHasAWord()
{
    QFETCH(QString, language);
    const TEntries& entries = m_Languages[language];
    QVERIFY(static_cast<int>(entries.size()) >= LeastTerms);
    QCOMPARE(Terms(entries), Terms(m_Languages[German]));
    for (const auto& entry : entries) {
        QVERIFY2(!entry.second.word.isEmpty() && !entry.second.source.isEmpty(), qPrintable(entry.first));
        for (const QString& form : entry.second.forms)
            QVERIFY2(!form.isEmpty() && form == form.toLower(), qPrintable(entry.first));
    }
}

void Glossary::textsUseTheWords()
{
    QFETCH(QString, language);
    const TCatalogue catalogue(QStringLiteral(CABSETTINGS_TRANSLATIONS "/cabsettings_%1.ts").arg(language));
    QCOMPARE(catalogue.Error(), QString());
    QStringList others;
    int uses = 0;
    for (const auto& entry : m_Languages[language]) {
        const QRegularExpression finder = Finder(entry.first);
        for (const tagMessage& message : catalogue.Messages()) {
            if (!finder.match(message.source).hasMatch())
                continue;
            ++uses;
            for (const QString& text : message.forms) {
                const auto isIn = [&text](const QString& form) { return text.toLower().contains(form); };
                const QStringList& forms = entry.second.forms;
                if (std::none_of(forms.begin(), forms.end(), isIn))
                    others.append(QStringLiteral("%1: \"%2\" is \"%3\", without %4")
                                      .arg(entry.first, message.source, text, forms.join(QLatin1String(" or "))));
            }
        }
    }
    QVERIFY2(others.isEmpty(), qPrintable(others.join(QLatin1Char('\n'))));
    QVERIFY(uses > LeastTerms);
}

QTEST_GUILESS_MAIN(Glossary)
#include "Glossary.moc"
