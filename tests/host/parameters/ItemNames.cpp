#include "parameters/ItemNames.h"

#include <QtTest>

/// The check of the names that operators give.
class ItemNamesTest : public QObject
{
    Q_OBJECT

private slots:
    void ordinaryNamesAreAccepted_data();
    void ordinaryNamesAreAccepted();
    void whatCannotBeAPathIsRefused_data();
    void whatCannotBeAPathIsRefused();
    void lengthCountsBytes_data();
    void lengthCountsBytes();
    void everySuggestionIsAccepted();
};

void ItemNamesTest::ordinaryNamesAreAccepted_data()
{
    QTest::addColumn<QString>("name");
    const char* const names[] = {
        "",      "F1",           "J_030524_1405", "North 40", "Müller & Söhne", "Поле 3",   "畑",
        "🚜",     "No Implement", "a.b",           ".hidden",  "v1.2.3",         "(spring)", "50% slope",
        "#1",    "Console",      "COM10",         "LPT0",     "CONTOUR",        "a'b",      "~tmp",
        "x+y=z", "[1]",          "a;b,c",         "-f",       "auxiliary"};
    for (const char* name : names)
        QTest::newRow(name) << QString::fromUtf8(name);
}

void ItemNamesTest::ordinaryNamesAreAccepted()
{
    QFETCH(QString, name);
    QCOMPARE(ItemNames::Problem(name, ItemNames::MostBytes), QString());
    QCOMPARE(ItemNames::Suggestion(name, ItemNames::MostBytes), name);
}

void ItemNamesTest::whatCannotBeAPathIsRefused_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("problem");
    QTest::addColumn<QString>("suggestion");
    const auto row = [](const char* name, const char* problem, const char* suggestion) {
        QTest::newRow(name) << QString::fromUtf8(name) << QString::fromUtf8(problem) << QString::fromUtf8(suggestion);
    };
    const char* const fat = ", which FAT file systems do not allow";
    row("a/b", "contains the separator \"/\"", "a_b");
    row("/", "contains the separator \"/\"", "_");
    row("../up", "contains the separator \"/\"", ".._up");
    row("a\\b", "contains the separator \"\\\"", "a_b");
    row(".", "refers to another folder", "_");
    row("..", "refers to another folder", "_");
    row("...", "ends in a full stop or a blank, which FAT file systems remove", "_");
    for (const char* character : {"\"", "*", ":", "<", ">", "?", "|"}) {
        const QByteArray name = QByteArray("a") + character;
        const QByteArray problem = QByteArray("contains \"") + character + "\"" + fat;
        row(name.constData(), problem.constData(), "a_");
    }
    row("a\tb", "contains the control character U+0009, which FAT file systems do not allow", "a_b");
    row("a\nb", "contains the control character U+000a, which FAT file systems do not allow", "a_b");
    row("\x7f", "contains the control character U+007f, which FAT file systems do not allow", "_");
    row("\xc2\x85x", "contains the control character U+0085, which FAT file systems do not allow", "x");
    row("F1.", "ends in a full stop or a blank, which FAT file systems remove", "F1");
    row("F1 ", "ends in a full stop or a blank, which FAT file systems remove", "F1");
    row("F1. .", "ends in a full stop or a blank, which FAT file systems remove", "F1");
    row(" ", "ends in a full stop or a blank, which FAT file systems remove", "_");
    row(" F1", "begins with a blank", "F1");
    row("CON", "is reserved on FAT file systems", "_CON");
    row("nul", "is reserved on FAT file systems", "_nul");
    row("Aux.txt", "is reserved on FAT file systems", "_Aux.txt");
    row("com1", "is reserved on FAT file systems", "_com1");
    row("LPT9.a.b", "is reserved on FAT file systems", "_LPT9.a.b");
    row("prn .x", "is reserved on FAT file systems", "_prn .x");

    QTest::newRow("a zero") << QString(QChar(0))
                            << QStringLiteral("contains the control character U+0000, which FAT "
                                              "file systems do not allow")
                            << QStringLiteral("_");
    QTest::newRow("a high half") << QString(QChar(0xD83D)) << QStringLiteral("contains an incomplete character")
                                 << QStringLiteral("_");
    QTest::newRow("a low half") << QLatin1Char('a') + QString(QChar(0xDE9C))
                                << QStringLiteral("contains an incomplete character") << QStringLiteral("a_");
}

void ItemNamesTest::whatCannotBeAPathIsRefused()
{
    QFETCH(QString, name);
    QFETCH(QString, problem);
    QFETCH(QString, suggestion);
    QCOMPARE(ItemNames::Problem(name, ItemNames::MostBytes), problem);
    QCOMPARE(ItemNames::Suggestion(name, ItemNames::MostBytes), suggestion);
}

void ItemNamesTest::lengthCountsBytes_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("most");
    QTest::addColumn<int>("bytes"); // of the suggestion
    QTest::addColumn<bool>("isAccepted");
    const QString latin(255, QLatin1Char('x'));
    const QString tractors = QString::fromUtf8("🚜").repeated(64);
    QTest::newRow("a folder of 255") << latin << ItemNames::MostBytes << 255 << true;
    QTest::newRow("a folder of 256") << latin + QLatin1Char('x') << ItemNames::MostBytes << 255 << false;
    QTest::newRow("an item of 251") << latin.left(251) << ItemNames::MostBytesOfItem << 251 << true;
    QTest::newRow("an item of 252") << latin.left(252) << ItemNames::MostBytesOfItem << 251 << false;
    QTest::newRow("128 umlauts") << QString(128, QChar(0xE4)) << ItemNames::MostBytes << 254 << false;
    QTest::newRow("64 tractors") << tractors << ItemNames::MostBytes << 252 << false;
    QTest::newRow("a stop where it is cut")
        << latin.left(254) + QLatin1String(".xyz") << ItemNames::MostBytes << 254 << false;
}

void ItemNamesTest::lengthCountsBytes()
{
    QFETCH(QString, name);
    QFETCH(int, most);
    QFETCH(int, bytes);
    QFETCH(bool, isAccepted);
    const QString problem = ItemNames::Problem(name, most);
    QCOMPARE(problem.isEmpty(), isAccepted);
    QCOMPARE(problem.contains(QString::fromLatin1("at most %1 are allowed").arg(most)), !isAccepted);
    const QString suggestion = ItemNames::Suggestion(name, most);
    QCOMPARE(static_cast<int>(suggestion.toUtf8().size()), bytes);
    QVERIFY(name.startsWith(suggestion));
}

void ItemNamesTest::everySuggestionIsAccepted()
{
    const QString characters = QString::fromUtf8("/\\.:* \taC\"OMN1ü🚜\x01");
    quint32 state = 2026;
    for (int round = 0; round < 20000; ++round) {
        QString name;
        state = state * 1664525u + 1013904223u;
        const quint32 length = state >> 28;
        for (quint32 i = 0; i < length; ++i) {
            state = state * 1664525u + 1013904223u;
            name += characters.at(static_cast<int>((state >> 16) % static_cast<quint32>(characters.size())));
        }
        const QString suggestion = ItemNames::Suggestion(name, 12);
        if (!ItemNames::Problem(suggestion, 12).isEmpty() || suggestion.isEmpty() != name.isEmpty())
            QFAIL(qPrintable(name + QLatin1String(" -> ") + suggestion));
    }
}

QTEST_APPLESS_MAIN(ItemNamesTest)
#include "ItemNames.moc"
