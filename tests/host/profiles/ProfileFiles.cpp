#include "SystemCalls.h"
#include "TProfileRoom.h"
#include "parameters/ETimeSource.h"
#include "parameters/HostParameters.h"
#include "platform/EPressureUnit.h"

#include <QCryptographicHash>

#include <cerrno>
#include <csignal>
#include <sys/wait.h>
#include <unistd.h>

/// What an export writes, an import reads; a failure on the way keeps the file that was there.
class ProfileFiles : public QObject, private TProfileRoom
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
    void aChoiceMayBeWrittenByItsNumber();
    void layoutIsNoEdit();
    void aFailureKeepsTheFormerFile_data();
    void aFailureKeepsTheFormerFile();
    void leftoversOfAKilledExportAreRemoved();
};

void ProfileFiles::init()
{
    SystemCalls::Count();
    Renew();
    m_Store->SetParameter(PARAM_ACTIVE_JOB, Utf8("Größe \"7\", 畑"), true);
}

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
    const QString color = Utf8(R"(    {"number": %1, "name": "colors.day.map", "type": "color", )"
                               R"("value": "#04010203", "base": "#04010203"},)");
    QVERIFY(lines.contains(color.arg(int{PARAM_MAP_COLOR_DAY}).toUtf8()));
    QCOMPARE(static_cast<int>(m_Folder->Content(Utf8(Name)).count("\"number\"")),
             static_cast<int>(Full().Parameters().size()));
}

// The hashed text is put together as the header of TProfile describes it.
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

void ProfileFiles::aChoiceMayBeWrittenByItsNumber()
{
    QString reason;
    QVERIFY(Full().Write(Path(), &reason));
    Put(m_Folder->Content(Utf8(Name)).replace(R"("value": "kPa", "base": "kPa")", R"("value": 1, "base": 2)"));
    const auto read = Read(PROFILE_EDITS_ACCEPTED);
    QVERIFY2(read, qPrintable(m_Problems.join(QLatin1Char('\n'))));
    QVERIFY(read->Text().contains(R"("value": "psi", "base": "bar")"));
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

void ProfileFiles::aFailureKeepsTheFormerFile_data()
{
    QTest::addColumn<int>("error");
    QTest::addColumn<QString>("text");
    QTest::newRow("a full disk") << ENOSPC << Utf8("No space left on device");
    QTest::newRow("a pulled stick") << EIO << Utf8("Input/output error");
    QTest::newRow("a read-only stick") << EROFS << Utf8("Read-only file system");
}

// The first call that fails is every one in turn. When only the last one fails, the sync of the folder, the new file is
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
