#include <QDirIterator>
#include <QRegularExpression>
#include <QtTest>

/// No page shows a text of its own that is not marked for translation.
class PageLiterals : public QObject
{
    Q_OBJECT

private slots:
    void pagesShowNoneUntranslated();
    void oneWouldBeFound_data();
    void oneWouldBeFound();
};

namespace {

/// The properties of which an operator reads the text, or hears it.
const char* const Shown =
    "text|title|meaning|label|placeholder|action|accessibleName|Accessible\\.name|description|detail|error|"
    "message|hint|value|unit|number|add|none";

/// What compares with a name, or asks for something by its name, shows no text.
const char* const Names = R"([!=]==?\s*"[^"]*"|\b(?!qsTr\b)\w+\(\s*"[^"]*")";

const char* const Marked = R"(\b(?:qsTr\(|qsTranslate\("\w+",)\s*"(?:[^"\\]|\\.)*"(?:\s*,\s*"(?:[^"\\]|\\.)*")?)";

QString Pattern(const char* pattern) { return QString::fromLatin1(pattern); }

/// The literals that would be shown as they are.
QStringList Literals(QString page)
{
    page.remove(QRegularExpression(Pattern("(?m)^\\s*//.*$|\\s//\\s.*$"), QRegularExpression::MultilineOption));
    page.remove(QRegularExpression(Pattern(Marked)));
    page.remove(QRegularExpression(Pattern(Names)));
    const QRegularExpression shown(
        Pattern(R"re(\b(%1)\s*:\s*([^\n{;]*(?:\n\s*[?:+][^\n{;]*)*))re").arg(Pattern(Shown)));
    const QRegularExpression literal(Pattern(R"re("[^"]*")re"));
    const QRegularExpression letter(Pattern(R"re(\p{L})re"));
    const QRegularExpression next(Pattern(",\\s*\\w+\\s*:")); // within an object
    QStringList found;
    QRegularExpressionMatchIterator properties = shown.globalMatch(page);
    while (properties.hasNext()) {
        const QRegularExpressionMatch property = properties.next();
        const QString value = property.captured(2).section(next, 0, 0);
        QRegularExpressionMatchIterator literals = literal.globalMatch(value);
        while (literals.hasNext()) {
            const QString text = literals.next().captured();
            if (letter.match(text).hasMatch())
                found.append(property.captured(1) + QLatin1String(": ") + text);
        }
    }
    return found;
}

/// What a choice stores is no text.
bool IsName(const QString& literal)
{
    static const QRegularExpression name(Pattern(R"re(\Avalue: "[a-z][a-z0-9.\-]*"\z)re"));
    return name.match(literal).hasMatch();
}

} // namespace

void PageLiterals::pagesShowNoneUntranslated()
{
    QStringList found;
    int pages = 0;
    QDirIterator files(Pattern(CABSETTINGS_PAGES), {Pattern("*.qml")}, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        QFile file(files.next());
        QVERIFY(file.open(QIODevice::ReadOnly));
        ++pages;
        for (const QString& literal : Literals(QString::fromUtf8(file.readAll()))) {
            if (!IsName(literal))
                found.append(files.fileName() + QLatin1String(": ") + literal);
        }
    }
    QVERIFY(pages > 50);
    QVERIFY2(found.isEmpty(), qPrintable(found.join(QLatin1Char('\n'))));
}

void PageLiterals::oneWouldBeFound_data()
{
    QTest::addColumn<QString>("page");
    for (const char* page :
         {"text: \"Rate\"", "title: isDay ? qsTr(\"Day\") : \"Night\"", "Accessible.name: title + \" stick \" + number",
          "text: n + \" files\"", "    label: (\"Name\")", "title: isDay\n    ? qsTr(\"Day\")\n    : \"Night\""})
        QTest::newRow(page) << QString::fromLatin1(page);
}

void PageLiterals::oneWouldBeFound()
{
    QFETCH(QString, page);
    const QStringList found = Literals(page);
    QCOMPARE(found.size(), 1);
    QVERIFY(!IsName(found.first()));
}

QTEST_GUILESS_MAIN(PageLiterals)
#include "PageLiterals.moc"
