#include "TProfileRoom.h"

#include <sys/stat.h>

/// Files that are no profiles, or that are damaged or wrong.
class ProfileProblems : public QObject, private TProfileRoom
{
    Q_OBJECT

private slots:
    void init();

    void problemsNameTheirLine_data();
    void problemsNameTheirLine();
    void allProblemsAreListed();
    void manyProblemsAreCounted();
    void aTextMayHoldWhatLooksLikeAComment();
    void laterVersionsAreReadAsFarAsTheyAreKnown();
    void whatIsNoFileIsRefused_data();
    void whatIsNoFileIsRefused();
    void anEnormousFileIsRefusedAtOnce();
    void noPrefixOfAProfileIsAProfile();
    void noDamagedByteGoesUnseen_data();
    void noDamagedByteGoesUnseen();
};

void ProfileProblems::init() { Renew(); }

void ProfileProblems::problemsNameTheirLine_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("after");
    QTest::addColumn<QString>("problem"); // its beginning
    const auto row = [](const char* name, const char* before, const char* after, const char* problem) {
        QTest::newRow(name) << QByteArray(before) << QByteArray(after) << Utf8("tractor.profile") + Utf8(problem);
    };
    row("no choice", "\"bar\"", "\"torr\"",
        ":13: invalid value \"torr\" for units.pressure; expected kPa (0), psi (1) or bar (2)");
    row("out of range", "\"value\": 30", "\"value\": 130",
        ":14: invalid value \"130\" for display.night-lightbar; expected a whole number from 0 to 100");
    row("a number as text", "\"value\": 30", "\"value\": \"30\"",
        ":14: invalid value \"30\" for display.night-lightbar; expected a whole number from 0 to 100");
    row("a fraction", "\"value\": 30", "\"value\": 30.5",
        ":14: invalid value 30.5 for display.night-lightbar; expected a whole number from 0 to 100");
    row("a switch as number", "\"value\": false", "\"value\": 0",
        ":12: invalid value 0 for units.metric; expected true or false");
    row("null", "\"value\": false", "\"value\": null", ":12: invalid value  for units.metric; expected true or false");
    row("a list", "\"value\": false", "\"value\": [true]",
        ":12: invalid value [true] for units.metric; expected true or false");
    row("another type", "\"type\": \"bool\"", "\"type\": \"int\"",
        ":12: invalid type \"int\" for units.metric; expected bool");
    row("a number that is not the name's", "8953", "8954",
        ":12: number 8954 and name \"units.metric\" disagree; units.us has the number 8954");
    row("an unknown number", "8953", "4711",
        ":12: number 4711 and name \"units.metric\" disagree; units.metric has the number 8953");
    row("an unknown name", "units.metric", "units.metrik",
        ":12: number 8953 and name \"units.metrik\" disagree; units.metric has the number 8953");
    row("a name of two lines", "units.metric", "units.\nmetric",
        ":12: number 8953 and name \"units. metric\" disagree; units.metric has the number 8953");
    row("a name of two lines, by escape", "units.metric", "units.\\u2028metric",
        ":12: number 8953 and name \"units. metric\" disagree; units.metric has the number 8953");
    row("a text as the base of a number", "\"base\": 30", "\"base\": \"30\"",
        ":14: base: invalid value \"30\" for display.night-lightbar; expected a whole number from 0 to 100");
    row("a base out of range", "\"base\": 30", "\"base\": 101",
        ":14: base: invalid value \"101\" for display.night-lightbar; expected a whole number from 0 to 100");
    row("a parameter twice", "  ],",
        ",{\"number\": 8953, \"name\": \"units.metric\", \"type\": \"bool\", \"value\": true}],",
        ":15: units.metric again; line 12 has it too");
    row("a key twice", "\"format\": 1", "\"format\": 1, \"format\": 1", ":3: not valid JSON: Duplicate key: 'format'");
    row("no value", ", \"value\": false", "", ":12: missing \"value\"");
    row("no number", "\"number\": 8953, ", "", ":12: missing \"number\"");
    row("no name", "\"name\": \"units.metric\", ", "", ":12: missing \"name\"");
    row("a number as name", "\"units.metric\"", "8953", ":12: invalid \"name\"; expected a text");
    row("no parameter", "\"groups\": [\"units\", \"display\"],\n  \"parameters\": [",
        "\"groups\": [],\n  \"parameters\": [7,", ":11: invalid parameter; expected an object");
    row("no format", "  \"format\": 1,\n", "", ":1: missing \"format\"");
    row("format 0", "\"format\": 1", "\"format\": 0", ":3: invalid format; expected 1");
    row("format as text", "\"format\": 1", "\"format\": \"1\"", ":3: invalid \"format\"; expected a whole number");
    row("no hash", ",\n  \"sha256\": \"@\"", "", ":1: missing \"sha256\"");
    row("no terminal", "    \"terminal\": \"6ba7b810-9dad-41d1-80b4-00c04fd430c8\",\n", "", ":4: missing \"terminal\"");
    row("origin as list", "\"groups\": [\"units\", \"display\"]", "\"groups\": {}",
        ":10: invalid \"groups\"; expected an array");
    row("another product", "cabsettings profile", "sprayer backup",
        ":1: not a profile; expected the product \"cabsettings profile\", found sprayer backup");
    row("no product", "  \"product\": \"cabsettings profile\",\n", "",
        ":1: not a profile; expected the product \"cabsettings profile\"");
    row("a comma missing", "\"bool\", \"value\"", "\"bool\" \"value\"",
        ":12: not valid JSON: Missing ',' or '}' in object declaration");
    row("a comma too many", "\"base\": 30}", "\"base\": 30},", ":15: not valid JSON: ");
    const char* const comment = "not valid JSON: a comment; expected JSON without // and /* */";
    const auto commentAt = [&](const char* name, const char* before, const char* after, int line) {
        row(name, before, after, (':' + QByteArray::number(line) + ": " + comment).constData());
    };
    commentAt("a comment before it", "{\n  \"product\"", "// ours\n{\n  \"product\"", 1);
    commentAt("a comment in an object", "  \"format\"", "  // the first\n  \"format\"", 3);
    commentAt("a comment in several lines", "  \"format\"", "  /* the\n  first */ \"format\"", 3);
    commentAt("a comment in an array", "[\"units\"", "[/* all */ \"units\"", 10);
    commentAt("a comment behind a value", "\"format\": 1,", "\"format\": 1, // the first", 3);
    commentAt("a comment behind a name", "\"format\":", "\"format\" /* the first */:", 3);
    commentAt("a comment behind a backslash", "\"cabsettings profile\",", "\"\\\\\", // ours", 2);
    commentAt("a comment behind it", "\"@\"\n}", "\"@\"\n} // end", 17);
    row("something behind it", "\"@\"\n}", "\"@\"\n} {}", ":17: not valid JSON: ");
}

void ProfileProblems::problemsNameTheirLine()
{
    QFETCH(QByteArray, before);
    QFETCH(QByteArray, after);
    QFETCH(QString, problem);
    QVERIFY(QByteArray(Small).count(before) == 1 || before == "8953");
    Put(QByteArray(Small).replace(before, after));
    QVERIFY(!Read());
    QCOMPARE(static_cast<int>(Problems().size()), 1);
    QVERIFY2(Problems().first().startsWith(problem), qPrintable(Problems().first()));
    QVERIFY(!Problems().first().contains(QLatin1Char('\n')));
}

void ProfileProblems::allProblemsAreListed()
{
    Put(QByteArray(Small).replace("\"bar\"", "\"torr\"").replace("\"value\": 30", "\"value\": -1"));
    QVERIFY(!Read());
    QCOMPARE(
        Problems(),
        (QStringList{Utf8("tractor.profile:13: invalid value \"torr\" for units.pressure; expected kPa (0), psi (1) "
                          "or bar (2)"),
                     Utf8("tractor.profile:14: invalid value \"-1\" for display.night-lightbar; expected a whole "
                          "number from 0 to 100")}));
}

void ProfileProblems::manyProblemsAreCounted()
{
    QByteArray rows;
    for (int count = 0; count < 50; ++count)
        rows += "7,\n";
    Put(QByteArray(Small).replace("\"parameters\": [", "\"parameters\": [" + rows));
    QVERIFY(!Read());
    QCOMPARE(static_cast<int>(Problems().size()), 21);
    QCOMPARE(Problems().last(), Utf8("tractor.profile: 30 more"));
}

void ProfileProblems::aTextMayHoldWhatLooksLikeAComment()
{
    const QByteArray software("\"// 2.1 \\\" /* a \\\\ */\"");
    const QByteArray before = QByteArray(Small).mid(QByteArray(Small).indexOf("\"software\": ") + 12);
    Put(QByteArray(Small).replace(before.left(before.indexOf(',')), software));
    const auto read = Read();
    QVERIFY2(read, qPrintable(m_Problems.join(QLatin1Char('\n'))));
    QCOMPARE(read->Origin().software, Utf8("// 2.1 \" /* a \\ */"));
}

void ProfileProblems::laterVersionsAreReadAsFarAsTheyAreKnown()
{
    Put(QByteArray(Small)
            .replace("\"format\": 1", "\"format\": 2, \"season\": {\"year\": 2031}")
            .replace("\"base\": true", "\"base\": true, \"since\": 5")
            .replace("  ],", ",{\"number\": 31000, \"name\": \"future.thing\", \"type\": \"list\", \"value\": [1]}],"));
    const auto read = Read();
    QVERIFY2(read, qPrintable(m_Problems.join(QLatin1Char('\n'))));
    QCOMPARE(read->Format(), 2);
    QCOMPARE(static_cast<int>(read->Parameters().size()), 3);
    QCOMPARE(read->Ignored(),
             (QStringList{Utf8("line 12: the field \"since\" of units.metric"), Utf8("line 3: the field \"season\""),
                          Utf8("line 15: the parameter future.thing (31000)")}));
}

void ProfileProblems::whatIsNoFileIsRefused_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QByteArray>("content"); // of a file to make
    QTest::addColumn<QString>("problem");
    const auto row = [](const char* name, const char* path, const QByteArray& content, const char* problem) {
        QTest::newRow(name) << Utf8(path) << content << Utf8(problem);
    };
    row("missing", "missing", QByteArray(), "missing: cannot be read: No such file or directory");
    row("folder", ".", QByteArray(), ".: not a regular file");
    row("device", "/dev/zero", QByteArray(), "/dev/zero: not a regular file");
    row("pipe", "pipe", QByteArray(), "pipe: not a regular file");
    row("empty", "file", " \n", "file: the file is empty");
    row("no text", "file", QByteArray("\xff\xfe{", 3), "file: not a profile: it is not text in UTF-8");
    row("a word", "file", "hello", "file:1: not valid JSON: ");
    row("a list", "file", "[]", "file:1: not a profile; expected an object");
    row("a number", "file", "12", "file:1: not valid JSON: ");
    row("nested deeply", "file", QByteArray(100000, '['), "file: not valid JSON: it is nested too deeply");
    row("nested deeply in a value", "file", "{\"a\": " + QByteArray(100000, '[') + "}",
        "file: not valid JSON: it is nested too deeply");
}

void ProfileProblems::whatIsNoFileIsRefused()
{
    QFETCH(QString, path);
    QFETCH(QByteArray, content);
    QFETCH(QString, problem);
    QCOMPARE(mkfifo(m_Folder->Path(Utf8("pipe")).toUtf8().constData(), 0600), 0);
    if (!content.isEmpty())
        m_Folder->MakeFile(path, content);
    const QString whole = QDir::isAbsolutePath(path) ? path : m_Folder->Path(path);
    QVERIFY(!TProfile::Read(whole, PROFILE_EDITS_ACCEPTED, &m_Problems));
    QCOMPARE(static_cast<int>(Problems().size()), 1);
    QVERIFY2(Problems().first().startsWith(problem), qPrintable(Problems().first()));
}

// The file is a hole, and takes no space.
void ProfileProblems::anEnormousFileIsRefusedAtOnce()
{
    Put(Small);
    const qint64 gigabyte = qint64{1} << 30;
    QVERIFY(QFile::resize(Path(), gigabyte));
    QVERIFY(!Read());
    QCOMPARE(Problems(),
             QStringList{Utf8("tractor.profile: not a profile: it has 1073741824 bytes, a profile has at most "
                              "4194304")});
    QVERIFY(QFile::resize(Path(), TProfile::MostBytes + 1));
    QVERIFY(!Read());
    QVERIFY(Problems().first().contains(Utf8("it has 4194305 bytes")));
    Put(Small + QByteArray(static_cast<int>(TProfile::MostBytes) - static_cast<int>(qstrlen(Small)), ' '));
    QVERIFY(Read());
}

void ProfileProblems::noPrefixOfAProfileIsAProfile()
{
    const QByteArray text = Small;
    const int end = static_cast<int>(text.lastIndexOf('}'));
    for (int length = 1; length <= end; ++length) {
        Put(text.left(length));
        QVERIFY2(!Read(), qPrintable(QString::number(length)));
        QCOMPARE(static_cast<int>(m_Problems.size()), 1);
        const bool isSaid = m_Problems.first().contains(Utf8("cut off: ")) || m_Problems.first().contains(Utf8("JSON"));
        QVERIFY2(isSaid, qPrintable(m_Problems.first()));
    }
}

void ProfileProblems::noDamagedByteGoesUnseen_data()
{
    QTest::addColumn<int>("bit");
    for (int bit = 0; bit < 8; ++bit)
        QTest::addRow("bit %d", bit) << bit;
}

// A change of layout may be accepted; then the content is the same.
void ProfileProblems::noDamagedByteGoesUnseen()
{
    QFETCH(int, bit);
    QString reason;
    QVERIFY(TProfile::Of(*m_Store, {Utf8("units")}, Utf8("1.0")).Write(Path(), &reason));
    const QByteArray text = m_Folder->Content(Utf8(Name));
    const auto original = Read(PROFILE_EDITS_REFUSED);
    QVERIFY(original);
    int refused = 0;
    for (int at = 0; at < text.size(); ++at) {
        QByteArray damaged = text;
        damaged[at] = static_cast<char>(damaged.at(at) ^ (1 << bit));
        Put(damaged);
        const auto read = Read(PROFILE_EDITS_REFUSED);
        QVERIFY(read.has_value() == m_Problems.isEmpty());
        refused += read ? 0 : 1;
        if (!read)
            continue;
        QCOMPARE(read->Parameters().size(), original->Parameters().size());
        for (int index = 0; index < static_cast<int>(read->Parameters().size()); ++index) {
            QCOMPARE(read->Parameters().at(index).known, original->Parameters().at(index).known);
            QCOMPARE(read->Parameters().at(index).value, original->Parameters().at(index).value);
        }
    }
    QVERIFY2(refused > text.size() / 2, qPrintable(QString::number(refused)));
}

QTEST_APPLESS_MAIN(ProfileProblems)
#include "ProfileProblems.moc"
