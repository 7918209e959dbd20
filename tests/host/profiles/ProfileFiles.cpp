#include "SystemCalls.h"
#include "TTemporaryFolder.h"
#include "parameters/ETimeSource.h"
#include "parameters/HostParameters.h"
#include "platform/EPressureUnit.h"
#include "profiles/ProfileGroups.h"
#include "profiles/TProfile.h"
#include "stores/TMemoryStore.h"
#include "terminal/FirstStartValues.h"

#include <QColor>
#include <QRegularExpression>
#include <QtTest>

#include <cerrno>
#include <csignal>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

QString Utf8(const char* text) { return QString::fromUtf8(text); }

const char* const Name = "tractor.profile";

/// A profile as people see it, with a hash that belongs to it.
const char* const Small = R"({
  "product": "cabsettings profile",
  "format": 1,
  "origin": {
    "terminal": "6ba7b810-9dad-41d1-80b4-00c04fd430c8",
    "software": "1.0.0",
    "time": "2024-05-01T06:00:11Z",
    "timeSource": "receiver"
  },
  "groups": ["units", "display"],
  "parameters": [
    {"number": 8953, "name": "units.metric", "type": "bool", "value": false, "base": true},
    {"number": 8957, "name": "units.pressure", "type": "int", "value": "bar", "base": "kPa"},
    {"number": 9061, "name": "display.night-lightbar", "type": "int", "value": 30, "base": 30}
  ],
  "sha256": "@"
}
)";

} // namespace

class ProfileFiles : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void whatIsWrittenIsRead();
    void aParameterIsALine();
    void theHashIsAsDocumented();
    void theTimeOfTheExportIsUtc_data();
    void theTimeOfTheExportIsUtc();
    void valuesThatNobodyMayEnterAreLeftOut();
    void groupsChooseWhatIsExported();

    void editedFilesAreRefusedUnlessAskedFor();
    void layoutIsNoEdit();
    void problemsNameTheirLine_data();
    void problemsNameTheirLine();
    void allProblemsAreListed();
    void manyProblemsAreCounted();
    void laterVersionsAreReadAsFarAsTheyAreKnown();
    void whatIsNoFileIsRefused_data();
    void whatIsNoFileIsRefused();
    void anEnormousFileIsRefusedAtOnce();
    void noPrefixOfAProfileIsAProfile();
    void noDamagedByteGoesUnseen_data();
    void noDamagedByteGoesUnseen();

    void aFailureKeepsTheFormerFile_data();
    void aFailureKeepsTheFormerFile();
    void leftoversOfAKilledExportAreRemoved();

private:
    QString Path() const { return m_Folder->Path(Utf8(Name)); }
    void Put(const QByteArray& text) const { m_Folder->MakeFile(Utf8(Name), text); }

    /// Small with one text replaced; its hash is not checked by those who accept edits.
    void PutEdited(const char* before, const char* after) const { Put(QByteArray(Small).replace(before, after)); }

    TProfile Full();
    std::optional<TProfile> Read(EProfileEdits edits = PROFILE_EDITS_ACCEPTED)
    {
        return TProfile::Read(Path(), edits, &m_Problems);
    }
    QStringList Problems() const
    {
        QStringList problems = m_Problems;
        return problems.replaceInStrings(m_Folder->Path() + QLatin1Char('/'), QString());
    }

    std::unique_ptr<TTemporaryFolder> m_Folder;
    std::unique_ptr<TMemoryStore> m_Store;
    QStringList m_Problems;
};

void ProfileFiles::init()
{
    SystemCalls::Count();
    m_Folder = std::make_unique<TTemporaryFolder>();
    m_Store = std::make_unique<TMemoryStore>();
    SetFirstStartValues(*m_Store);
    m_Store->SetParameter(PARAM_ACTIVE_JOB, Utf8("Größe \"7\", 畑"), true);
    m_Store->SetParameter(PARAM_CLIENT, Utf8("Müller & Söhne"), true);
    m_Store->SetParameter(PARAM_MAP_COLOR_DAY, QColor(1, 2, 3, 4), true);
    m_Problems.clear();
}

TProfile ProfileFiles::Full() { return TProfile::Of(*m_Store, ProfileGroups::All(), Utf8("2.1.4-r7")); }

void ProfileFiles::whatIsWrittenIsRead()
{
    // A quotation mark is no character of a file name, so this one is not exported.
    QCOMPARE(static_cast<int>(Full().LeftOut().size()), 1);
    m_Store->SetParameter(PARAM_ACTIVE_JOB, Utf8("Größe 7, 畑"), true);
    const TProfile written = Full();
    QString reason;
    QVERIFY2(written.Write(Path(), &reason), qPrintable(reason));
    const auto read = Read(PROFILE_EDITS_REFUSED);
    QCOMPARE(m_Problems, QStringList());
    QVERIFY(read);
    QCOMPARE(read->Format(), 1);
    QCOMPARE(read->Origin().terminal, m_Store->GetParameter(PARAM_TERMINAL_IDENTITY).toString());
    QCOMPARE(read->Origin().software, Utf8("2.1.4-r7"));
    QCOMPARE(read->Groups(), ProfileGroups::All());
    QCOMPARE(read->Ignored(), QStringList());
    QCOMPARE(read->Parameters().size(), m_Store->Values().size());
    for (const tagProfileParameter& parameter : read->Parameters()) {
        QCOMPARE(parameter.value, m_Store->GetParameter(parameter.known->id));
        QVERIFY(parameter.base == TParameterCatalogue::Text(*parameter.known, parameter.value));
    }
    QCOMPARE(m_Folder->Entries(), QStringList{Utf8(Name)});
}

void ProfileFiles::aParameterIsALine()
{
    QString reason;
    QVERIFY(Full().Write(Path(), &reason));
    const QList<QByteArray> lines = m_Folder->Content(Utf8(Name)).split('\n');
    QVERIFY(lines.contains(
        R"(    {"number": 8953, "name": "units.metric", "type": "bool", "value": true, "base": true},)"));
    QVERIFY(lines.contains(
        R"(    {"number": 8957, "name": "units.pressure", "type": "int", "value": "kPa", "base": "kPa"},)"));
    QVERIFY(
        lines.contains("    {\"number\": 8932, \"name\": \"active.client\", \"type\": \"string\", \"value\": \"Müller "
                       "& Söhne\", \"base\": \"Müller & Söhne\"},"));
    QVERIFY(
        lines.contains("    {\"number\": 9078, \"name\": \"colors.day.map\", \"type\": \"color\", \"value\": "
                       "\"#04010203\", \"base\": \"#04010203\"},") ||
        m_Folder->Content(Utf8(Name)).contains("\"colors.day.map\", \"type\": \"color\", \"value\": \"#04010203\""));
    QCOMPARE(static_cast<int>(m_Folder->Content(Utf8(Name)).count("\"number\"")),
             static_cast<int>(Full().Parameters().size()));
}

// The expected text is put together here as the header describes it.
void ProfileFiles::theHashIsAsDocumented()
{
    const QByteArray canonical = "19:cabsettings profile,1:1,36:6ba7b810-9dad-41d1-80b4-00c04fd430c8,5:1.0.0,"
                                 "20:2024-05-01T06:00:11Z,8:receiver,13:units,display,"
                                 "4:8953,12:units.metric,4:bool,5:false,4:true,"
                                 "4:8957,14:units.pressure,3:int,3:bar,3:kPa,"
                                 "4:9061,22:display.night-lightbar,3:int,2:30,2:30,";
    Put(QByteArray(Small).replace('@', QCryptographicHash::hash(canonical, QCryptographicHash::Sha256).toHex()));
    QVERIFY2(Read(PROFILE_EDITS_REFUSED), qPrintable(m_Problems.join(QLatin1Char('\n'))));
}

void ProfileFiles::theTimeOfTheExportIsUtc_data()
{
    QTest::addColumn<int>("source");
    QTest::addColumn<int>("offset"); // of the clock less UTC of the machine, seconds
    QTest::addColumn<int>("hours");  // local time less UTC
    QTest::addColumn<int>("distance");
    QTest::newRow("none") << int{TIME_SOURCE_NONE} << 7200 << 2 << 0;
    QTest::newRow("receiver, in the same zone") << int{TIME_SOURCE_RECEIVER} << 7200 << 2 << 0;
    QTest::newRow("receiver, of a machine that is a day slow")
        << int{TIME_SOURCE_RECEIVER} << 86400 - 3600 << -1 << 86400;
    QTest::newRow("operator, of a machine that is a day slow") << int{TIME_SOURCE_OPERATOR} << 86400 << 0 << 86400;
}

void ProfileFiles::theTimeOfTheExportIsUtc()
{
    QFETCH(int, source);
    QFETCH(int, offset);
    QFETCH(int, hours);
    QFETCH(int, distance);
    m_Store->SetParameter(PARAM_TIME_SOURCE, source, true);
    m_Store->SetParameter(PARAM_CLOCK_OFFSET, offset, true);
    m_Store->SetParameter(PARAM_UTC_OFFSET_HOURS, hours, true);
    m_Store->SetParameter(PARAM_UTC_OFFSET_MINUTES, 0, true);
    const QDateTime before = QDateTime::currentDateTimeUtc().addSecs(distance - 1); // the text has no milliseconds
    const QDateTime time = QDateTime::fromString(Full().Origin().time, Qt::ISODate);
    QVERIFY(time >= before && time <= QDateTime::currentDateTimeUtc().addSecs(distance));
    QVERIFY(Full().Origin().time.endsWith(QLatin1Char('Z')));
    QCOMPARE(Full().Origin().timeSource, Utf8(QTest::currentDataTag()).section(QLatin1Char(','), 0, 0));
}

void ProfileFiles::valuesThatNobodyMayEnterAreLeftOut()
{
    m_Store->SetParameter(PARAM_AREA_UNIT, 7, true);
    m_Store->SetParameter(PARAM_METRIC, Utf8("perhaps"), true);
    const TProfile profile = Full();
    QCOMPARE(static_cast<int>(profile.LeftOut().size()), 3); // with the job's name
    QVERIFY(profile.LeftOut().contains(Utf8("invalid value \"7\" for units.area; expected hectare (0) or acre (1)")));
    for (const tagProfileParameter& parameter : profile.Parameters())
        QVERIFY(parameter.known->id != PARAM_AREA_UNIT && parameter.known->id != PARAM_METRIC);
}

void ProfileFiles::groupsChooseWhatIsExported()
{
    const TProfile profile = TProfile::Of(*m_Store, {Utf8("region"), Utf8("device")}, QString());
    QVERIFY(profile.Parameters().size() > 4);
    for (const tagProfileParameter& parameter : profile.Parameters())
        QVERIFY(profile.Groups().contains(ProfileGroups::Of(parameter.known->name)));
}

void ProfileFiles::editedFilesAreRefusedUnlessAskedFor()
{
    QString reason;
    QVERIFY(Full().Write(Path(), &reason));
    const QByteArray text = m_Folder->Content(Utf8(Name));
    const QByteArray edited = QByteArray(text).replace(R"("value": "kPa")", R"("value": "psi")");
    QVERIFY(edited != text);
    Put(edited);
    QVERIFY(!Read(PROFILE_EDITS_REFUSED));
    QCOMPARE(Problems(),
             QStringList{Utf8("tractor.profile: its content does not match its hash; it was edited or is damaged")});
    const auto read = Read(PROFILE_EDITS_ACCEPTED);
    QVERIFY(read);
    for (const tagProfileParameter& parameter : read->Parameters())
        if (parameter.known->id == PARAM_PRESSURE_UNIT) {
            QCOMPARE(parameter.value, QVariant(int{PRESSURE_UNIT_PSI}));
            QVERIFY(parameter.base == Utf8("kPa"));
        }
}

void ProfileFiles::layoutIsNoEdit()
{
    QString reason;
    QVERIFY(Full().Write(Path(), &reason));
    const QByteArray text = m_Folder->Content(Utf8(Name));
    for (const QByteArray& other : {"\xef\xbb\xbf" + text, QByteArray(text).replace("\n", "\r\n"),
                                    QByteArray(text).replace("\n", " "), QByteArray(text).replace(", ", ",\n\t")}) {
        Put(other);
        QVERIFY2(Read(PROFILE_EDITS_REFUSED), qPrintable(m_Problems.join(QLatin1Char('\n'))));
    }
}

void ProfileFiles::problemsNameTheirLine_data()
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
    row("something behind it", "\"@\"\n}", "\"@\"\n} {}", ":17: not valid JSON: ");
}

void ProfileFiles::problemsNameTheirLine()
{
    QFETCH(QByteArray, before);
    QFETCH(QByteArray, after);
    QFETCH(QString, problem);
    QVERIFY(QByteArray(Small).count(before) == 1 || before == "8953");
    PutEdited(before.constData(), after.constData());
    QVERIFY(!Read());
    QCOMPARE(static_cast<int>(Problems().size()), 1);
    QVERIFY2(Problems().first().startsWith(problem), qPrintable(Problems().first()));
    QVERIFY(!Problems().first().contains(QLatin1Char('\n')));
}

void ProfileFiles::allProblemsAreListed()
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

void ProfileFiles::manyProblemsAreCounted()
{
    QByteArray rows;
    for (int count = 0; count < 50; ++count)
        rows += "7,\n";
    PutEdited("\"parameters\": [", "\"parameters\": [" + rows);
    QVERIFY(!Read());
    QCOMPARE(static_cast<int>(Problems().size()), 21);
    QCOMPARE(Problems().last(), Utf8("tractor.profile: 30 more"));
}

void ProfileFiles::laterVersionsAreReadAsFarAsTheyAreKnown()
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

void ProfileFiles::whatIsNoFileIsRefused_data()
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

void ProfileFiles::whatIsNoFileIsRefused()
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
void ProfileFiles::anEnormousFileIsRefusedAtOnce()
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

void ProfileFiles::noPrefixOfAProfileIsAProfile()
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

void ProfileFiles::noDamagedByteGoesUnseen_data()
{
    QTest::addColumn<int>("bit");
    for (int bit = 0; bit < 8; ++bit)
        QTest::addRow("bit %d", bit) << bit;
}

// A change of layout may be accepted, then the content is the same.
void ProfileFiles::noDamagedByteGoesUnseen()
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

void ProfileFiles::aFailureKeepsTheFormerFile_data()
{
    QTest::addColumn<int>("error");
    QTest::addColumn<QString>("text");
    QTest::newRow("a full disk") << ENOSPC << Utf8("No space left on device");
    QTest::newRow("a pulled stick") << EIO << Utf8("Input/output error");
    QTest::newRow("a read-only stick") << EROFS << Utf8("Read-only file system");
}

// The first call that fails is every one in turn. Only when the last one fails, the sync of the folder, the new file is
// there already; "done" is not said all the same.
void ProfileFiles::aFailureKeepsTheFormerFile()
{
    QFETCH(int, error);
    QFETCH(QString, text);
    Put("former");
    QString reason;
    int nth = 1;
    SystemCalls::Fail(nth, error);
    while (!Full().Write(Path(), &reason)) {
        const int made = SystemCalls::Counted();
        SystemCalls::Count();
        QCOMPARE(reason, QString::fromLatin1("cannot write %1: %2").arg(Path(), text));
        const QByteArray content = m_Folder->Content(Utf8(Name));
        QVERIFY(content == "former" || (made == nth && content.startsWith("{\n  \"product\"")));
        // A stick that is gone keeps what was on it until the next export.
        QVERIFY(Full().Write(Path(), &reason));
        QCOMPARE(m_Folder->Entries(), QStringList{Utf8(Name)});
        Put("former");
        SystemCalls::Fail(++nth, error);
    }
    SystemCalls::Count();
    QVERIFY2(nth >= 5, qPrintable(QString::number(nth))); // write, sync, rename, sync of the folder
}

void ProfileFiles::leftoversOfAKilledExportAreRemoved()
{
    QString reason;
    int nth = 1;
    for (bool isDone = false; !isDone; ++nth) {
        Put("former");
        const pid_t child = fork();
        if (child == 0) {
            SystemCalls::Kill(nth);
            _exit(Full().Write(Path(), &reason) ? 0 : 1);
        }
        int status = 0;
        QCOMPARE(waitpid(child, &status, 0), child);
        isDone = WIFEXITED(status);
        QVERIFY(isDone ? WEXITSTATUS(status) == 0 : WTERMSIG(status) == SIGKILL);
        const QByteArray content = m_Folder->Content(Utf8(Name));
        QVERIFY(content == "former" || content.endsWith("\"\n}\n"));
        QVERIFY(Full().Write(Path(), &reason));
        QCOMPARE(m_Folder->Entries(), QStringList{Utf8(Name)});
    }
    QVERIFY(nth >= 5);
}

QTEST_APPLESS_MAIN(ProfileFiles)
#include "ProfileFiles.moc"
