#include "TTemporaryFolder.h"

#include "../../system/TPrivateMounts.h"
#include "../stores/StoreTestSupport.h"
#include "diagnostics/UserLogEntries.h"
#include "nmea/NmeaChecksum.h"
#include "profiles/TProfile.h"
#include "stores/TSqliteStore.h"
#include "support/SupportBundle.h"
#include "terminal/DataFolder.h"
#include "terminal/TTerminal.h"

#include <QtTest>

#include <archive.h>
#include <archive_entry.h>

#include <memory>

/// libarchive does not end the compression of a member whose writing has failed. The sanitizer reads this function.
extern "C" __attribute__((visibility("default"))) const char* __lsan_default_suppressions();
extern "C" const char* __lsan_default_suppressions() { return "leak:deflateInit2_"; }

/// Support bundles: what is in them, and what is not in an anonymous one.
class SupportBundles : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void everyPartIsInTheBundle();
    void logsAreCopiedAsTheyAre();
    void progressNamesEachMember();
    void anAnonymousBundleHoldsNoNameAndNoPosition();
    void anAnonymousProfileCanBeRead();
    void aNameHasOneWordEverywhere();
    void sentencesAreBlanked_data();
    void sentencesAreBlanked();
    void entriesAreBlanked_data();
    void entriesAreBlanked();
    void aLineThatIsTooLongIsLeftOut();
    void whatCannotBeReadIsSaid();
    void aListThatIsNotCompleteIsSaidWithoutNames();
    void damageOfTheStoreIsSaid_data();
    void damageOfTheStoreIsSaid();
    void aStoreThatCannotBeReadIsSaid();
    void aStickIsInTheBundle();
    void onlyLogsWithTheNamesOfALogAreTaken();
    void entriesInLatin1AreBlanked();
    void logsThatCannotBeListedAreSaid();
    void anArchiveThatCannotBeWrittenKeepsTheFormerOne_data();
    void anArchiveThatCannotBeWrittenKeepsTheFormerOne();
    void whatAKilledProgramLeftIsRemoved();

private:
    using TMembers = QMap<QString, QByteArray>;

    QString Archive() const { return m_Folder->Path(QLatin1String("support.zip")); }
    QString Data() const { return m_Folder->Path(QLatin1String("terminal")); }

    void MakeFile(const QString& path, const QByteArray& content = QByteArray("x")) const
    {
        m_Folder->MakeFile(QLatin1String("terminal/internal/") + path, content);
    }

    bool Write(bool isAnonymous, const TSupportProgress& progress = {})
    {
        return WriteSupportBundle(*m_Store, Archive(), {Data(), QLatin1String("1.2.3"), isAnonymous}, progress,
                                  &m_Bundle, &m_Error);
    }

    TMembers Members() const;
    TMembers Members(bool isAnonymous)
    {
        if (!Write(isAnonymous))
            qFatal("%s", qPrintable(m_Error));
        return Members();
    }

    std::unique_ptr<TTemporaryFolder> m_Folder;
    std::unique_ptr<TSqliteStore> m_Store;
    std::unique_ptr<TTerminal> m_Terminal;
    tagSupportBundle m_Bundle;
    QString m_Error;
};

namespace {

const QLatin1String NmeaLog("Diagnostics/NMEA00001.csv");

/// What an operator has typed, in all the places where it may turn up.
struct tagNamed
{
    EParamID parameter;
    const char* name;
};

constexpr tagNamed Names[] = {
    {PARAM_CLIENT, "Caf\u00e9 M\u00fcller"}, // composed
    {PARAM_FARM, "Obere M\u00fchle"},         {PARAM_FIELD, "Flurst\u00fcck 17"},
    {PARAM_ACTIVE_JOB, "Gerste2024"},         {PARAM_ACTIVE_BOUNDARY, "Grenzweg"},
    {PARAM_ACTIVE_AB_LINE, "Nordkante"},      {PARAM_ACTIVE_VEHICLE, "Hofschlepper"},
    {PARAM_ACTIVE_IMPLEMENT, "Drille (4m)"},  {PARAM_ACTIVE_SPRAYER, "Spritzlein"},
    {PARAM_ACTIVE_BOOM_LEVELLER, "Ausleger"},
};

QString Name(const tagNamed& row) { return QString::fromUtf8(row.name); }

const char* const RemovedName = "Altacker";                  // in the user log alone
const char* const FormerName = "Sandgrube";                  // in the journal alone
const char* const OtherNames[] = {"Kuhweide", "Heidepflug"}; // in folders alone

/// Pieces of positions, as they are written in sentences, logs and texts.
const char* const Positions[] = {"5233.12345", "01324.54321", "52.5520575", "13.4090535", "33'07", "4807.038"};

} // namespace

void SupportBundles::init()
{
    m_Folder = std::make_unique<TTemporaryFolder>();
    QDir().mkpath(Data());
    m_Store = TSqliteStore::Open(DataFolder::StoreFile(Data()), &m_Error);
    QVERIFY2(m_Store != nullptr, qPrintable(m_Error));
    m_Terminal = std::make_unique<TTerminal>(*m_Store);
    QVERIFY2(m_Terminal->Start(Data(), &m_Error), qPrintable(m_Error));
}

void SupportBundles::cleanup()
{
    m_Terminal.reset();
    m_Store.reset();
}

SupportBundles::TMembers SupportBundles::Members() const
{
    TMembers members;
    archive* const zip = archive_read_new();
    archive_read_support_format_zip(zip);
    if (archive_read_open_filename(zip, QFile::encodeName(Archive()).constData(), 0x10000) != ARCHIVE_OK)
        qFatal("%s", archive_error_string(zip));
    archive_entry* entry = nullptr;
    while (archive_read_next_header(zip, &entry) == ARCHIVE_OK) {
        QByteArray content;
        QByteArray piece(0x10000, '\0');
        la_ssize_t count = 0;
        while ((count = archive_read_data(zip, piece.data(), static_cast<std::size_t>(piece.size()))) > 0)
            content.append(piece.constData(), static_cast<int>(count));
        if (count < 0)
            qFatal("%s", archive_error_string(zip));
        members.insert(QString::fromUtf8(archive_entry_pathname(entry)), content);
    }
    archive_read_free(zip);
    return members;
}

void SupportBundles::everyPartIsInTheBundle()
{
    m_Store->SetParameter(PARAM_METRIC, false, true);
    QVERIFY(AddUserLogEntry(DIAG_COMPONENT_CONSOLE, DIAG_TYPE_EVENT, 0, QLatin1String("started"), QString()));
    MakeFile(NmeaLog, "$GPZDA\r\n");
    MakeFile(QLatin1String("Clients/Smith/North/F1/F1.ini"), "12345");
    const TMembers members = Members(false);
    QCOMPARE(members.keys(),
             (QStringList{QLatin1String("files.txt"), QLatin1String("journal.txt"), QLatin1String("logs/NMEA00001.csv"),
                          QLatin1String("logs/User00001.csv"), QLatin1String("parameters.txt"),
                          QLatin1String("store-check.txt"), QLatin1String("system.txt"),
                          QLatin1String("terminal.profile"), QLatin1String("versions.txt")}));
    QCOMPARE(m_Bundle.problems, QStringList());
    QCOMPARE(m_Bundle.members.size(), members.size());
    const QMap<const char*, const char*> contents = {
        {"files.txt", "\ninternal/Clients/Smith/North/F1/F1.ini  5\n"},
        {"journal.txt", "8953 units.metric: true -> false\n"},
        {"parameters.txt", "8953 units.metric = false\n"},
        {"store-check.txt", "store: structure is whole\nparameters: "},
        {"system.txt", "memory: "},
        {"versions.txt", "cabsettings: 1.2.3\n"},
        {"logs/User00001.csv", ",Console,Event,0,started,\r\n"},
    };
    for (auto content = contents.cbegin(); content != contents.cend(); ++content) {
        const QByteArray member = members.value(QLatin1String(content.key()));
        QVERIFY2(member.contains(content.value()), (QByteArray(content.key()) + ": " + member).constData());
    }
    for (const char* program : {"Qt: 5.", "Qt: 6."}) {
        if (QByteArray(program).mid(4, 1) == QByteArray(qVersion()).left(1))
            QVERIFY(members.value(QLatin1String("versions.txt")).contains(program));
    }
    for (const char* program : {"SQLite: 3.", "libarchive: 3.", "JsonCpp: 1.", "libnova: "})
        QVERIFY2(members.value(QLatin1String("versions.txt")).contains(program), program);
}

void SupportBundles::logsAreCopiedAsTheyAre()
{
    // More than one piece, of bytes that are no text.
    QByteArray log;
    for (int i = 0; i < 200000; ++i)
        log.append(static_cast<char>(i * 7919 / 256));
    MakeFile(NmeaLog, log);
    QCOMPARE(Members(false).value(QLatin1String("logs/NMEA00001.csv")), log);
}

void SupportBundles::progressNamesEachMember()
{
    QStringList named;
    QVERIFY(Write(false, [&named](const QString& member, int number, int count) {
        named.append(QString::fromLatin1("%1 %2").arg(member).arg(number - count));
    }));
    QStringList expected;
    for (int i = 0; i < m_Bundle.members.size(); ++i)
        expected.append(QString::fromLatin1("%1 %2").arg(m_Bundle.members.at(i)).arg(i - m_Bundle.members.size()));
    QCOMPARE(named, expected);
    QVERIFY(!named.isEmpty());
}

void SupportBundles::anAnonymousBundleHoldsNoNameAndNoPosition()
{
    QString all;
    m_Store->SetParameter(PARAM_ACTIVE_JOB, QLatin1String(FormerName), true);
    for (const tagNamed& row : Names) {
        m_Store->SetParameter(row.parameter, Name(row), true);
        all += QLatin1String(" / ") + Name(row).toUpper() + QLatin1String(" / ") +
               Name(row).normalized(QString::NormalizationForm_D);
    }
    const QString field = QString::fromLatin1("Clients/%1/%2/%3/").arg(Name(Names[0]), Name(Names[1]), Name(Names[2]));
    MakeFile(field + Name(Names[2]) + QLatin1String(".ini"));
    MakeFile(field + Name(Names[0]).normalized(QString::NormalizationForm_D) + QLatin1String(".pdf"));
    MakeFile(field + QString::fromLatin1("Jobs/%1/%1_PPD.pbz").arg(Name(Names[3])));
    MakeFile(field + QString::fromLatin1("Boundaries/%1/%1.bdy").arg(Name(Names[4])));
    MakeFile(QString::fromLatin1("Vehicles/%1/%1.ini").arg(QLatin1String(OtherNames[1])));
    MakeFile(QString::fromLatin1("Clients/%1/Hof/Feld/Feld.ini").arg(QLatin1String(OtherNames[0])));
    m_Store->SetParameter(static_cast<EParamID>(29999), QString(Name(Names[0]) + QLatin1String(" 52.5520575")), true);
    QVERIFY(AddUserLogEntry(DIAG_COMPONENT_CONSOLE, DIAG_TYPE_EVENT, 0, all, QLatin1String("52.5520575 13.4090535")));
    QVERIFY(AddUserLogEntry(DIAG_COMPONENT_CONSOLE, DIAG_TYPE_EVENT, 0, QString::fromUtf8("at 52° 33'07.4\" N"),
                            QLatin1String(RemovedName)));
    QVERIFY(AddUserLogEntry(DIAG_COMPONENT_CONSOLE, DIAG_TYPE_PARAM, PARAM_FIELD, QLatin1String(RemovedName),
                            Name(Names[2])));
    MakeFile(NmeaLog, "$GNGGA,060000.00,5233.12345,N,01324.54321,E,4,12,0.7,80.0,M,40.1,M,1,1*5B\r\n"
                      "$GNRMC,060000.00,A,5233.12345,N,01324.543");

    // Without --anonymous, all of it is there: what is looked for below can be found.
    const auto text = [](const TMembers& members) {
        QByteArray bytes;
        for (auto member = members.cbegin(); member != members.cend(); ++member)
            bytes += member.key().toUtf8() + '\n' + member.value() + '\n';
        return QString(QString::fromUtf8(bytes) + QString::fromLatin1(bytes));
    };
    QStringList secrets = {QLatin1String(RemovedName), QLatin1String(FormerName), QLatin1String(OtherNames[0]),
                           QLatin1String(OtherNames[1])};
    for (const tagNamed& row : Names)
        secrets.append(Name(row));
    const QString decomposed = Name(Names[0]).normalized(QString::NormalizationForm_D);
    secrets += {decomposed, QLatin1String("Cafe? Mu?ller")}; // the second is what the log makes of the first
    const QString plain = text(Members(false));
    for (const QString& secret : secrets)
        QVERIFY2(plain.contains(secret, Qt::CaseInsensitive), qPrintable(secret + QLatin1Char('\n') + plain));

    for (const char* position : Positions)
        secrets.append(QString::fromUtf8(position));
    const QString anonymous = text(Members(true));
    for (const QString& secret : secrets)
        QVERIFY2(!anonymous.contains(secret, Qt::CaseInsensitive), qPrintable(secret + QLatin1Char('\n') + anonymous));
    QCOMPARE(Members().size(), m_Bundle.members.size());
}

void SupportBundles::anAnonymousProfileCanBeRead()
{
    m_Store->SetParameter(PARAM_CLIENT, QLatin1String("Smith"), true);
    const QByteArray profile = Members(true).value(QLatin1String("terminal.profile"));
    m_Folder->MakeFile(QLatin1String("profile"), profile);
    QStringList problems;
    const auto read = TProfile::Read(m_Folder->Path(QLatin1String("profile")), PROFILE_EDITS_REFUSED, &problems);
    QVERIFY2(read.has_value(), qPrintable(problems.join(QLatin1Char('\n'))));
    QVERIFY(profile.contains("\"client-1\""));
    QCOMPARE(m_Store->GetParameter(PARAM_CLIENT).toString(), QString::fromLatin1("Smith"));
}

void SupportBundles::aNameHasOneWordEverywhere()
{
    m_Store->SetParameter(PARAM_CLIENT, QLatin1String("Smith"), true);
    MakeFile(QLatin1String("Clients/Jones/North/F1/F1.ini"));
    MakeFile(QLatin1String("Clients/Smith/North/F1/F1.ini"), "12345");
    QVERIFY(AddUserLogEntry(DIAG_COMPONENT_CONSOLE, DIAG_TYPE_EVENT, 0, QLatin1String("for smith, F1 and F12"),
                            QLatin1String("No Vehicle")));
    const TMembers members = Members(true);
    QVERIFY2(members.value(QLatin1String("files.txt"))
                 .contains("\ninternal/Clients/client-2/farm-1/field-1/field-1.ini  5\n"),
             members.value(QLatin1String("files.txt")).constData());
    QVERIFY(members.value(QLatin1String("parameters.txt")).contains("active.client = client-2\n"));
    QVERIFY(members.value(QLatin1String("parameters.txt")).contains("active.vehicle = No Vehicle\n"));
    const QByteArray log = members.value(QLatin1String("logs/User00001.csv"));
    QVERIFY2(log.endsWith(",Console,Event,0,for client-2  field-1 and F12,No Vehicle\r\n"), log.constData());
}

void SupportBundles::sentencesAreBlanked_data()
{
    QTest::addColumn<QByteArray>("body");
    QTest::addColumn<QByteArray>("blanked");
    const auto row = [](const QByteArray& body, const QByteArray& blanked) {
        QTest::newRow(body.constData()) << body << blanked;
    };
    row("GPGGA,123519,4807.038,N,01131.000,E,1,08,0.9,545.4,M,46.9,M,,", "GPGGA,123519,,,,,1,08,0.9,,M,,M,,");
    row("GNRMC,123519,A,4807.038,N,01131.000,E,022.4,084.4,230394,003.1,W",
        "GNRMC,123519,A,,,,,022.4,084.4,230394,003.1,W");
    row("GLGLL,4916.45,N,12311.12,W,225444,A", "GLGLL,,,,,225444,A");
    row("GNGNS,014035.00,4332.69262,S,17235.48549,E,RR,13,0.9,25.63,11.24,,", "GNGNS,014035.00,,,,,RR,13,0.9,,,,");
    row("GNVTG,015.00,T,,M,3.240,N,6.000,K,R", "GNVTG,015.00,T,,M,3.240,N,6.000,K,R");
    row("GNZDA,060000.000,01,05,2024,00,00", "GNZDA,060000.000,01,05,2024,00,00");
    row("GPWPL,4807.038,N,01131.000,E,HOME", "GPWPL,");
    row("PXYZ,00,081350.00,4717.113210,N,00833.915187,E", "PXYZ,");
    row("GPGGA,123519,4807.038", "GPGGA,123519,");
}

void SupportBundles::sentencesAreBlanked()
{
    QFETCH(QByteArray, body);
    QFETCH(QByteArray, blanked);
    const QByteArray damaged = "$GPGGA,123519,4807.038,N*00";
    MakeFile(NmeaLog, '$' + body + NmeaChecksum(body) + "\r\n" + damaged + "\r\n" + body);
    const QList<QByteArray> lines = Members(true).value(QLatin1String("logs/NMEA00001.csv")).split('\n');
    QCOMPARE(lines.size(), 3);
    QCOMPARE(lines.at(0), '$' + blanked + NmeaChecksum(blanked) + '\r');
    QCOMPARE(CheckNmeaLine(lines.at(0)), NMEA_RIGHT_CHECKSUM);
    QCOMPARE(lines.at(1), QByteArray("(27 bytes that are not a whole sentence)\r"));
    QCOMPARE(lines.at(2), "(" + QByteArray::number(body.size()) + " bytes that are not a whole sentence)");
}

void SupportBundles::entriesAreBlanked_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("blanked");
    const auto row = [](const char* text, const char* blanked) {
        QTest::newRow(text) << QString::fromUtf8(text) << QString::fromUtf8(blanked);
    };
    row("52.5520575 -13.4090535", "(position) (position)");
    row("at 5233.12345N", "at (position)N");
    row("52°33'07.4\"N 13° 24' 32.6'' E", "(position)N (position) E");
    row("52°33\u203207.4\u2033N", "(position)N"); // the log has no such signs
    row("48° 07.038' N", "(position) N");
    row("12.5 bar at 3.75 m", "12.5 bar at 3.75 m");
    row("SMITH and Smithson", "client-1 and client-1son");
    row("F1 F10 xF1 F1.", "field-1 F10 xF1 field-1.");
}

void SupportBundles::entriesAreBlanked()
{
    QFETCH(QString, text);
    QFETCH(QString, blanked);
    MakeFile(QLatin1String("Clients/Smith/North/F1/F1.ini"));
    QVERIFY(AddUserLogEntry(DIAG_COMPONENT_CONSOLE, DIAG_TYPE_EVENT, 0, text, QString()));
    const QString log = QString::fromLatin1(Members(true).value(QLatin1String("logs/User00001.csv")));
    QCOMPARE(log.section(QLatin1Char(','), 4, 4), blanked);
}

void SupportBundles::aLineThatIsTooLongIsLeftOut()
{
    MakeFile(QLatin1String("Clients/Smith/North/F1/F1.ini"));
    MakeFile(QLatin1String("Diagnostics/User00001.csv"),
             "first\r\n" + QByteArray("Smith").repeated(50000) + "\r\nlast Smith\r\n" + QByteArray(100000, 'x'));
    QCOMPARE(Members(true).value(QLatin1String("logs/User00001.csv")),
             QByteArray("first\r\n(a line that is too long)\nlast client-1\r\n(a line that is too long)"));
}

void SupportBundles::whatCannotBeReadIsSaid()
{
    const QString link = Data() + QLatin1String("/internal/loop");
    QVERIFY(QFile::link(QLatin1String("loop"), link));
    QVERIFY(Write(false));
    QCOMPARE(m_Bundle.problems, QStringList(QString::fromLatin1("\"%1\" is neither a file nor a folder").arg(link)));
    QVERIFY(Members().value(QLatin1String("files.txt")).endsWith("is neither a file nor a folder\n"));
    QCOMPARE(Members().size(), m_Bundle.members.size());
}

void SupportBundles::aListThatIsNotCompleteIsSaidWithoutNames()
{
    QVERIFY(QFile::link(QLatin1String("Smith"), Data() + QLatin1String("/internal/Smith")));
    QVERIFY(Write(true));
    QCOMPARE(m_Bundle.problems, QStringList(QLatin1String("the list is not complete")));
    const QByteArray files = Members().value(QLatin1String("files.txt"));
    QVERIFY2(files.endsWith("\nthe list is not complete\n"), files.constData());
}

void SupportBundles::damageOfTheStoreIsSaid_data()
{
    QTest::addColumn<QStringList>("statements");
    QTest::addColumn<QString>("member");
    QTest::addColumn<QByteArray>("expected");
    const auto row = [](const char* name, const QStringList& statements, const char* member,
                        const QByteArray& expected) {
        QTest::newRow(name) << statements << QString::fromLatin1(member) << expected;
    };
    row("a parameter", {QLatin1String("UPDATE parameters SET value = 'x' WHERE id = 8953")}, "store-check.txt",
        "\ndamage: its parameter 8953 does not match its digest\n");
    row("a value that is none", {QLatin1String("UPDATE parameters SET value = 'x', digest = NULL WHERE id = 8953")},
        "store-check.txt", "\nparameter 8953 cannot be read\n");
    row("a table that is not there", {QLatin1String("DROP TABLE parameters")}, "store-check.txt",
        "store: its schema is missing or broken\n");
    row("an entry", {QLatin1String("UPDATE journal SET new_value = 'x' WHERE entry = 1")}, "journal.txt",
        "\nentry 1 cannot be read\n");
    row("the journal",
        {QLatin1String("ALTER TABLE journal RENAME TO former"), QLatin1String("CREATE TABLE journal (entry INTEGER)")},
        "store-check.txt", "\njournal: the table of its journal has another form\n");
}

void SupportBundles::damageOfTheStoreIsSaid()
{
    QFETCH(QStringList, statements);
    QFETCH(QString, member);
    QFETCH(QByteArray, expected);
    QVERIFY(m_Store->SetParameter(PARAM_METRIC, false, true));
    for (const QString& statement : statements)
        RunSql(DataFolder::StoreFile(Data()), statement);
    const QByteArray content = Members(false).value(member);
    QVERIFY2(('\n' + content).contains(expected), content.constData());
}

// What cannot be looked at is a problem of the bundle, not a finding about the store.
void SupportBundles::aStoreThatCannotBeReadIsSaid()
{
    const QString path = DataFolder::StoreFile(Data());
    m_Terminal.reset();
    m_Store.reset();
    QVERIFY(QFile::remove(path));
    const QString elsewhere = m_Folder->Path(QLatin1String("elsewhere.db"));
    m_Store = TSqliteStore::Open(elsewhere, &m_Error);
    QVERIFY2(m_Store != nullptr, qPrintable(m_Error));
    m_Terminal = std::make_unique<TTerminal>(*m_Store);
    QVERIFY2(m_Terminal->Start(Data(), &m_Error), qPrintable(m_Error));
    QVERIFY(Write(false));
    const QString check = QString::fromUtf8(Members().value(QLatin1String("store-check.txt")));
    QVERIFY2(check.startsWith(QLatin1String("cannot check the store: ")), qPrintable(check));
    QCOMPARE(m_Bundle.problems, QStringList(check.trimmed()));
}

void SupportBundles::aStickIsInTheBundle()
{
    if (!PrivateMounts::ArePermitted())
        QSKIP("Mounting is not permitted here.");
    QVERIFY(Members(false).value(QLatin1String("system.txt")).contains("\nstick: none\n"));
    const TMemoryDrive drive(Data() + QLatin1String("/usb"), "size=1m");
    QVERIFY(drive.IsMounted());
    const QString system = QString::fromUtf8(Members(false).value(QLatin1String("system.txt")));
    static const QRegularExpression blocks(QLatin1String("\nstick: [1-9]\\d* blocks, [1-9]\\d* free\n"));
    QVERIFY2(system.contains(blocks), qPrintable(system));
}

// A name that no log gives may be one that is not safe in an archive.
void SupportBundles::onlyLogsWithTheNamesOfALogAreTaken()
{
    MakeFile(NmeaLog, "$GPZDA\r\n");
    MakeFile(QLatin1String("Diagnostics/NMEA1.csv"));
    MakeFile(QLatin1String("Diagnostics/NMEA00001.csv.old"));
    MakeFile(QLatin1String("Diagnostics/NMEAx.csv"));
    const QStringList logs = QStringList(Members(false).keys()).filter(QLatin1String("NMEA"));
    QCOMPARE(logs, QStringList(QLatin1String("logs/NMEA00001.csv")));
}

// As a log of an older terminal is.
void SupportBundles::entriesInLatin1AreBlanked()
{
    m_Store->SetParameter(PARAM_CLIENT, QString::fromUtf8("M\u00fcller"), true);
    MakeFile(QLatin1String("Diagnostics/User00001.csv"), "t,Console,Event,0,for M\xfcller \xb0,\r\n");
    QCOMPARE(Members(true).value(QLatin1String("logs/User00001.csv")),
             QByteArray("t,Console,Event,0,for client-1 \xb0,\r\n"));
}

// Names that stand only in the user log would be in an anonymous bundle, in the list of the files for example.
void SupportBundles::logsThatCannotBeListedAreSaid()
{
    const QString folder = Data() + QLatin1String("/internal/Diagnostics");
    QVERIFY(QDir().rename(folder, folder + QLatin1String(".gone")));
    MakeFile(QLatin1String("Diagnostics"));
    const QString problem = QString::fromLatin1("cannot read %1: Not a directory").arg(folder);
    QVERIFY(Write(false));
    QCOMPARE(m_Bundle.problems, (QStringList{problem, problem})); // of both logs
    QCOMPARE(Members().value(QLatin1String("logs/User-problem.txt")), problem.toUtf8() + '\n');
    QCOMPARE(Members().value(QLatin1String("logs/NMEA-problem.txt")), problem.toUtf8() + '\n');
    QVERIFY(!Write(true));
    QCOMPARE(m_Error, problem);
}

void SupportBundles::anArchiveThatCannotBeWrittenKeepsTheFormerOne_data()
{
    QTest::addColumn<unsigned long>("flags");
    QTest::addColumn<QByteArray>("options");
    QTest::addColumn<QString>("reason");
    QTest::newRow("full") << 0UL << QByteArray("size=12k") << "No space left on device";
    QTest::newRow("read-only") << static_cast<unsigned long>(MS_RDONLY) << QByteArray("size=1m")
                               << "Read-only file system";
}

void SupportBundles::anArchiveThatCannotBeWrittenKeepsTheFormerOne()
{
    if (!PrivateMounts::ArePermitted())
        QSKIP("Mounting is not permitted here.");
    QFETCH(unsigned long, flags);
    QFETCH(QByteArray, options);
    QFETCH(QString, reason);
    QByteArray log;
    for (unsigned i = 0; i < 100000; ++i)
        log.append(static_cast<char>((i * i * 2654435761u) >> 13)); // does not compress
    MakeFile(NmeaLog, log);
    m_Folder->MakeFolder(QLatin1String("stick"));
    const QString stick = m_Folder->Path(QLatin1String("stick"));
    const TMemoryDrive drive(stick, "size=1m");
    m_Folder->MakeFile(QLatin1String("stick/support.zip"), "former");
    QVERIFY(drive.MountAgain(flags, options.constData()));
    const QString path = stick + QLatin1String("/support.zip");
    QVERIFY(!WriteSupportBundle(*m_Store, path, {Data(), QString(), false}, {}, &m_Bundle, &m_Error));
    QCOMPARE(m_Error, QString::fromLatin1("cannot write %1: %2").arg(path, reason));
    QCOMPARE(m_Folder->Content(QLatin1String("stick/support.zip")), QByteArray("former"));
    QCOMPARE(m_Folder->Entries().filter(QLatin1String("stick/")).size(), 2);
}

void SupportBundles::whatAKilledProgramLeftIsRemoved()
{
    m_Folder->MakeFile(QLatin1String(".cabsettings-copy-a1B2c3"), "half");
    QVERIFY(Write(false));
    QVERIFY(!m_Folder->Exists(QLatin1String(".cabsettings-copy-a1B2c3")));
    QVERIFY(Members().size() > 5);
}

int main(int argc, char* argv[])
{
    PrivateMounts::Enter();
    const QCoreApplication application(argc, argv);
    SupportBundles test;
    return QTest::qExec(&test, argc, argv);
}

#include "SupportBundles.moc"
