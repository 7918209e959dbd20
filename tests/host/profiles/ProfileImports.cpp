#include "ImportRoom.h"
#include "SystemCalls.h"
#include "platform/EAreaUnit.h"
#include "stores/ChangeJournal.h"
#include "stores/TPersistenceHold.h"

#include <QCoreApplication>
#include <QSqlDatabase>
#include <QSqlQuery>

#include <atomic>
#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <thread>
#include <unistd.h>

using namespace ImportRoom;
using namespace ProfileImport;

namespace {

const int Impatience = 50;    // milliseconds
const int MostTerminals = 16; // as ProfileImport.h says

} // namespace

/// Two terminals, of which one imports what the other has exported.
class ProfileImports : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void everythingOfTheDefaultGroupsIsTaken();
    void groupsChooseWhatIsTaken();
    void nothingIsWrittenWithoutADifference();
    void comparingChangesNothing();
    void theJournalNamesTheImport();

    void conflictsFollowTheirRule_data();
    void conflictsFollowTheirRule();
    void anEditedProfileOfThisTerminalIsMerged();
    void whatWasKeptStaysAConflict();
    void anImportThatWasCutOffHasTwoBases();
    void aProfileOfNobodyHasNoBase();
    void theBasesOfTheLastTerminalsAreKept();

    void aLockedFileIsLeftAlone();
    void aFailedWriteChangesNothing();
    void aStoreThatIsGoneIsNotMade();
    void aSecondImportWaits();
    void importsAtTheSameTimeDoNotMix();

private:
    QString Path(const char* name) const { return m_Folder->filePath(Utf8(name)); }
    tagResult Import(const TProfile& profile, const tagOptions& options = {})
    {
        return Apply(profile, *m_Ours, Path("ours.db"), options);
    }

    std::unique_ptr<QTemporaryDir> m_Folder;
    std::unique_ptr<TSqliteStore> m_Ours;
    std::unique_ptr<TSqliteStore> m_Theirs;
};

void ProfileImports::init()
{
    SystemCalls::Count();
    m_Ours.reset();
    m_Theirs.reset();
    m_Folder = MakeFolder();
    m_Ours = NewTerminal(Path("ours.db"));
    m_Theirs = NewTerminal(Path("theirs.db"));
}

void ProfileImports::everythingOfTheDefaultGroupsIsTaken()
{
    const QString settings =
        Utf8("rates.basis=travel active.job=J_1 active.farm=North log.nmea-number=77 units.area=acre "
             "region.language=de display.day=false colors.day.map=#010203");
    Set(*m_Theirs, settings);
    const tagResult result = Import(Exported(*m_Theirs));
    QCOMPARE(result.error, QString());
    QVERIFY(result.isApplied);
    QCOMPARE(Text(result.changes),
             Utf8("rates.basis: area > travel, active.job: - > J_1, active.farm:  > North, units.area: hectare > acre, "
                  "region.language: en > de, display.day: true > false, colors.day.map: #e6e2d3 > #010203"));
    QCOMPARE(result.notSelected,
             static_cast<int>(TProfile::Of(*m_Theirs, {Utf8("device")}, QString()).Parameters().size()));
    QVERIFY(result.notSelected > 5);
    QString expected = settings;
    expected.replace(Utf8("log.nmea-number=77"), Utf8("log.nmea-number=1"));
    QCOMPARE(Values(*m_Ours, QString(settings).remove(QRegularExpression(Utf8("=\\S*")))), expected);
    const QMap<int, QVariant> values = m_Ours->Values();
    QVERIFY(values.value(PARAM_TERMINAL_IDENTITY) != m_Theirs->GetParameter(PARAM_TERMINAL_IDENTITY));
    m_Ours.reset();
    QCOMPARE(StoredValues(Path("ours.db")), values);
}

void ProfileImports::groupsChooseWhatIsTaken()
{
    Set(*m_Theirs, Utf8("units.area=acre region.language=de log.nmea-number=77"));
    tagOptions options;
    options.groups = QStringList{Utf8("region"), Utf8("device")};
    QVERIFY(Import(Exported(*m_Theirs), options).isApplied);
    QCOMPARE(Values(*m_Ours, Utf8("units.area region.language log.nmea-number")),
             Utf8("units.area=hectare region.language=de log.nmea-number=77"));
}

void ProfileImports::nothingIsWrittenWithoutADifference()
{
    const quint64 revision = m_Ours->Revision();
    const tagResult result = Import(Exported(*m_Theirs));
    QVERIFY(result.isApplied);
    QCOMPARE(Text(result.changes), QString());
    QCOMPARE(m_Ours->Revision(), revision);
}

void ProfileImports::comparingChangesNothing()
{
    Set(*m_Theirs, Utf8("units.area=acre"));
    const QMap<int, QVariant> before = m_Ours->Values();
    SystemCalls::Count();
    const tagResult result = Compare(Exported(*m_Theirs), *m_Ours, Path("ours.db"), {});
    QCOMPARE(SystemCalls::Counted(), 0);
    QCOMPARE(Text(result.changes), Utf8("units.area: hectare > acre"));
    QVERIFY(!result.isApplied);
    QCOMPARE(m_Ours->Values(), before);
}

void ProfileImports::theJournalNamesTheImport()
{
    Set(*m_Theirs, Utf8("units.area=acre region.language=de"));
    QVERIFY(Import(Exported(*m_Theirs)).isApplied);
    ChangeJournal::tagJournal journal;
    QString error;
    QVERIFY(ChangeJournal::Read(*m_Ours, {std::nullopt, 3}, &journal, &error));
    QCOMPARE(journal.entries.at(0).author, Utf8("import"));
    QCOMPARE(journal.entries.at(1).author, Utf8("import"));
    QVERIFY(journal.entries.at(2).author != Utf8("import"));
    QCOMPARE(journal.entries.at(1).parameter, int{PARAM_AREA_UNIT});
    QCOMPARE(journal.entries.at(1).oldValue, QVariant(int{AREA_UNIT_HECTARE}));
    QCOMPARE(journal.entries.at(1).newValue, QVariant(int{AREA_UNIT_ACRE}));
}

void ProfileImports::conflictsFollowTheirRule_data()
{
    QTest::addColumn<QString>("first"); // what they have at the first import; empty: there is none
    QTest::addColumn<QString>("ours");  // then
    QTest::addColumn<QString>("theirs");
    QTest::addColumn<QString>("changes");
    QTest::addColumn<QString>("conflicts");
    const auto row = [](const char* name, const char* first, const char* ours, const char* theirs, const char* changes,
                        const char* conflicts) {
        QTest::newRow(name) << Utf8(first) << Utf8(ours) << Utf8(theirs) << Utf8(changes) << Utf8(conflicts);
    };
    row("no base", "", "units.pressure=psi", "units.pressure=bar", "units.pressure: psi > bar", "");
    row("we have not changed it", "units.pressure=psi", "", "units.pressure=bar", "units.pressure: psi > bar", "");
    row("nobody has", "units.pressure=psi", "", "", "", "");
    row("both to the same", "units.pressure=psi", "units.pressure=bar", "units.pressure=bar", "", "");
    row("both", "units.pressure=psi", "units.pressure=kPa", "units.pressure=bar", "", "units.pressure: kPa, bar, psi");
    row("we alone", "units.pressure=psi", "units.pressure=bar", "", "", "units.pressure: bar, psi, psi");
    row("we have removed it", "active.job=J_1", "active.job=", "active.job=J_2", "", "active.job: -, J_2, J_1");
    row("one of two", "units.area=acre units.pressure=psi", "units.area=hectare", "units.area=acre units.pressure=bar",
        "units.pressure: psi > bar", "units.area: hectare, acre, acre");
    row("a colour", "colors.day.map=#010203", "colors.day.map=#010204", "colors.day.map=#010205", "",
        "colors.day.map: #010204, #010205, #010203");
}

void ProfileImports::conflictsFollowTheirRule()
{
    QFETCH(QString, first);
    QFETCH(QString, ours);
    QFETCH(QString, theirs);
    QFETCH(QString, changes);
    QFETCH(QString, conflicts);
    if (!first.isEmpty()) {
        Set(*m_Theirs, first);
        QVERIFY(Import(Exported(*m_Theirs)).isApplied);
    }
    Set(*m_Ours, ours);
    Set(*m_Theirs, theirs);
    const TProfile profile = Exported(*m_Theirs);
    const QMap<int, QVariant> before = m_Ours->Values();

    const tagResult result = Import(profile);
    QCOMPARE(result.error, QString());
    QCOMPARE(Text(result.changes), changes);
    QCOMPARE(Text(result.conflicts), conflicts);
    QCOMPARE(result.isApplied, conflicts.isEmpty());
    if (conflicts.isEmpty())
        return;
    QCOMPARE(m_Ours->Values(), before);

    tagOptions options;
    options.resolution = RESOLUTION_OURS;
    const tagResult kept = Import(profile, options);
    QVERIFY(kept.isApplied);
    QCOMPARE(Text(kept.changes), changes);
    QCOMPARE(Text(kept.conflicts), conflicts);
    options.resolution = RESOLUTION_THEIRS;
    const tagResult taken = Import(profile, options);
    QVERIFY(taken.isApplied);
    QCOMPARE(Text(taken.conflicts), conflicts);
    for (const tagConflict& conflict : taken.conflicts)
        QCOMPARE(m_Ours->GetParameter(conflict.parameter->id), m_Theirs->GetParameter(conflict.parameter->id));
    QCOMPARE(Text(Import(profile).conflicts), QString());
}

void ProfileImports::anEditedProfileOfThisTerminalIsMerged()
{
    const QString file = Path("ours.profile");
    QString reason;
    QVERIFY(Exported(*m_Ours).Write(file, &reason));
    SetFileBytes(file, FileBytes(file)
                           .replace("\"value\": \"kPa\"", "\"value\": \"psi\"")
                           .replace("\"value\": \"litre\"", "\"value\": \"tonne\"")
                           .replace("\"units.dry-volume\", \"type\": \"int\", \"value\": \"tonne\"",
                                    "\"units.dry-volume\", \"type\": \"int\", \"value\": \"litre\""));
    Set(*m_Ours, Utf8("units.liquid=cubic-metre units.us=true"));
    QStringList problems;
    const auto profile = TProfile::Read(file, PROFILE_EDITS_ACCEPTED, &problems);
    QVERIFY2(profile, qPrintable(problems.join(QLatin1Char('\n'))));
    const tagResult result = Import(*profile);
    QCOMPARE(Text(result.changes), Utf8("units.pressure: kPa > psi"));
    QCOMPARE(Text(result.conflicts), Utf8("units.us: true, false, false; units.liquid: cubic-metre, tonne, litre"));
    QVERIFY(!result.isApplied);
}

void ProfileImports::whatWasKeptStaysAConflict()
{
    Set(*m_Theirs, Utf8("units.pressure=psi"));
    QVERIFY(Import(Exported(*m_Theirs)).isApplied);
    Set(*m_Ours, Utf8("units.pressure=bar"));
    tagOptions options;
    options.resolution = RESOLUTION_OURS;
    QVERIFY(Import(Exported(*m_Theirs), options).isApplied);
    QCOMPARE(Text(Import(Exported(*m_Theirs)).conflicts), Utf8("units.pressure: bar, psi, psi"));
}

// The rows are those that a program leaves which is killed in the middle of its second import.
void ProfileImports::anImportThatWasCutOffHasTwoBases()
{
    Set(*m_Theirs, Utf8("units.pressure=psi"));
    QVERIFY(Import(Exported(*m_Theirs)).isApplied);
    RunSql(Path("ours.db"), QString::fromLatin1("INSERT INTO imported VALUES ('%1', 8957, 1, 'bar')")
                                .arg(m_Theirs->GetParameter(PARAM_TERMINAL_IDENTITY).toString()));
    for (const char* value : {"psi", "bar"}) {
        Set(*m_Ours, Utf8("units.pressure=") + Utf8(value));
        Set(*m_Theirs, Utf8("units.pressure=kPa"));
        const tagResult result = Compare(Exported(*m_Theirs), *m_Ours, Path("ours.db"), {});
        QCOMPARE(Text(result.conflicts), QString());
        QCOMPARE(Text(result.changes), QString::fromLatin1("units.pressure: %1 > kPa").arg(Utf8(value)));
    }
    QVERIFY(Import(Exported(*m_Theirs)).isApplied);
    QCOMPARE(RunSql(Path("ours.db"), Utf8("SELECT count(*) FROM imported WHERE state = 1")).toInt(), 0);
    QCOMPARE(RunSql(Path("ours.db"), Utf8("SELECT value FROM imported WHERE id = 8957")).toString(), Utf8("kPa"));
}

void ProfileImports::aProfileOfNobodyHasNoBase()
{
    m_Theirs->SetParameter(PARAM_TERMINAL_IDENTITY, QVariant(), true);
    m_Ours->SetParameter(PARAM_TERMINAL_IDENTITY, QVariant(), true);
    Set(*m_Theirs, Utf8("units.pressure=psi"));
    const TProfile profile = Exported(*m_Theirs);
    QVERIFY(Import(profile).isApplied);
    Set(*m_Ours, Utf8("units.pressure=bar"));
    const tagResult result = Import(profile);
    QCOMPARE(Text(result.conflicts), QString());
    QVERIFY(result.isApplied);
}

void ProfileImports::theBasesOfTheLastTerminalsAreKept()
{
    const auto importFrom = [this](int terminal) {
        m_Theirs->SetParameter(
            PARAM_TERMINAL_IDENTITY,
            QString::fromLatin1("6ba7b810-9dad-41d1-80b4-%1").arg(terminal, 12, 10, QLatin1Char('0')), true);
        tagOptions options;
        options.resolution = RESOLUTION_OURS;
        return Import(Exported(*m_Theirs), options);
    };
    Set(*m_Theirs, Utf8("units.pressure=psi"));
    for (int terminal = 1; terminal <= MostTerminals; ++terminal)
        QVERIFY(importFrom(terminal).isApplied);
    QVERIFY(importFrom(1).isApplied); // the oldest is now 2
    QVERIFY(importFrom(MostTerminals + 1).isApplied);
    QVERIFY(importFrom(MostTerminals + 2).isApplied); // and now 4
    QCOMPARE(RunSql(Path("ours.db"), Utf8("SELECT count(DISTINCT terminal) FROM imported")).toInt(), MostTerminals);
    const int rows = RunSql(Path("ours.db"), Utf8("SELECT count(*) FROM imported")).toInt();

    Set(*m_Ours, Utf8("units.pressure=bar"));
    for (const int terminal : {1, 4, MostTerminals, MostTerminals + 1, MostTerminals + 2})
        QCOMPARE(Text(importFrom(terminal).conflicts), Utf8("units.pressure: bar, psi, psi"));
    for (const int terminal : {2, 3}) {
        Set(*m_Ours, Utf8("units.pressure=bar"));
        QCOMPARE(Text(importFrom(terminal).conflicts), QString());
    }
    QVERIFY(RunSql(Path("ours.db"), Utf8("SELECT count(*) FROM imported")).toInt() <= rows);
}

void ProfileImports::aLockedFileIsLeftAlone()
{
    Set(*m_Theirs, Utf8("units.area=acre"));
    const QMap<int, QVariant> before = m_Ours->Values();
    tagOptions options;
    options.patience = Impatience;
    {
        QSqlDatabase other = QSqlDatabase::addDatabase(Utf8("QSQLITE"), Utf8("other"));
        other.setDatabaseName(Path("ours.db"));
        QVERIFY(other.open());
        QSqlQuery query(other);
        QVERIFY(query.exec(Utf8("BEGIN IMMEDIATE")));
        const tagResult result = Import(Exported(*m_Theirs), options);
        QVERIFY(!result.isApplied);
        QCOMPARE(result.error,
                 Path("ours.db") +
                     Utf8(" cannot be written: another program has locked it for longer than the timeout"));
        QCOMPARE(m_Ours->Values(), before);
        QVERIFY(query.exec(Utf8("ROLLBACK")));
    }
    QSqlDatabase::removeDatabase(Utf8("other"));
    QVERIFY(Import(Exported(*m_Theirs), options).isApplied);
}

// Every call in turn is the first that fails, as on a full disk.
void ProfileImports::aFailedWriteChangesNothing()
{
    Set(*m_Theirs, Utf8("units.area=acre units.us=true region.language=de"));
    const TProfile profile = Exported(*m_Theirs);
    QMap<int, QVariant> before = m_Ours->Values();
    tagOptions options;
    options.resolution = RESOLUTION_THEIRS; // an import is taken back by hand below
    int failures = 0;
    TStandardErrorCapture standardError;
    for (int nth = 1;; ++nth) {
        SystemCalls::Fail(nth, ENOSPC);
        const tagResult result = Import(profile, options);
        const bool isDone = SystemCalls::Counted() < nth;
        SystemCalls::Count();
        if (result.isApplied) {
            QCOMPARE(static_cast<int>(result.changes.size()), 3);
            QCOMPARE(Values(*m_Ours, Utf8("units.area region.language")), Utf8("units.area=acre region.language=de"));
            Set(*m_Ours, Utf8("units.area=hectare units.us=false region.language=en"));
            if (isDone)
                break;
        } else {
            ++failures;
            QVERIFY(!result.error.isEmpty());
        }
        QCOMPARE(m_Ours->Values(), before);
        m_Ours.reset();
        m_Ours = OpenStore(Path("ours.db"));
        QCOMPARE(m_Ours->Values(), before);
    }
    QVERIFY2(failures >= 4, qPrintable(QString::number(failures)));
}

void ProfileImports::aStoreThatIsGoneIsNotMade()
{
    QVERIFY(QFile::remove(Path("ours.db")));
    TStandardErrorCapture standardError;
    const tagResult result = Import(Exported(*m_Theirs));
    QVERIFY(!result.isApplied);
    QCOMPARE(result.error, Path("ours.db") + Utf8(" is no longer there"));
    QVERIFY(!QFile::exists(Path("ours.db")));
    QVERIFY(!QFile::exists(Path("ours.db.import")));
}

void ProfileImports::aSecondImportWaits()
{
    const int file = open(Path("ours.db.import").toUtf8().constData(), O_RDWR | O_CREAT | O_CLOEXEC, 0600);
    QCOMPARE(flock(file, LOCK_EX), 0);
    tagOptions options;
    options.patience = Impatience;
    const tagResult result = Import(Exported(*m_Theirs), options);
    QVERIFY(!result.isApplied);
    QCOMPARE(
        result.error,
        QString::fromLatin1("another program has locked %1 for longer than the timeout").arg(Path("ours.db.import")));
    close(file);
    QVERIFY(Import(Exported(*m_Theirs), options).isApplied);
}

// Each profile has the same text in all names, so a mixture would show.
void ProfileImports::importsAtTheSameTimeDoNotMix()
{
    const char* const names[] = {"active.client", "active.farm", "active.field", "active.job", "active.vehicle"};
    QList<TProfile> profiles;
    for (const char* value : {"A", "B"}) {
        QString settings;
        for (const char* name : names)
            settings += QString::fromLatin1("%1=%2 ").arg(Utf8(name), Utf8(value));
        Set(*m_Theirs, settings);
        profiles.append(Exported(*m_Theirs));
    }
    tagOptions options;
    options.resolution = RESOLUTION_THEIRS;
    options.patience = SoonMilliseconds;
    const int rounds = 20;
    std::atomic<int> failures{0};
    const auto import = [&](const TProfile& profile) {
        const auto store = OpenStore(Path("ours.db"));
        for (int round = 0; round < rounds; ++round)
            if (!Apply(profile, *store, Path("ours.db"), options).isApplied)
                ++failures;
    };
    std::thread one(import, profiles.at(0));
    std::thread other(import, profiles.at(1));
    one.join();
    other.join();
    QCOMPARE(failures.load(), 0);
    m_Ours.reset();
    const auto store = OpenStore(Path("ours.db"));
    QSet<QString> values;
    for (const char* name : names)
        values.insert(store->GetParameter(TParameterCatalogue::Find(Utf8(name))->id).toString());
    QCOMPARE(static_cast<int>(values.size()), 1);
    QCOMPARE(NamesBeside(Path("ours.db")).filter(Utf8("import")), QStringList());
}

QTEST_GUILESS_MAIN(ProfileImports)
#include "ProfileImports.moc"
