#include "StoreTestSupport.h"
#include "parameters/HostParameters.h"
#include "stores/ChangeJournal.h"
#include "stores/TPersistenceHold.h"

#include <QDateTime>
#include <QtTest>

#include <atomic>
#include <chrono>
#include <thread>

namespace {

const int MostEntries = 10000; // as ChangeJournal.h says

// For code that looks before it waits. The test passes without it.
const std::chrono::milliseconds TimeToGoWrong(100);

const ChangeJournal::tagQuery Everything = {std::nullopt, 2 * MostEntries};

ChangeJournal::tagJournal JournalOf(const TSqliteStore& store, const ChangeJournal::tagQuery& query = Everything)
{
    ChangeJournal::tagJournal journal;
    QString error;
    if (!ChangeJournal::Read(store, query, &journal, &error))
        qWarning("%s", qPrintable(error));
    return journal;
}

QList<ChangeJournal::tagEntry> EntriesOf(const TSqliteStore& store) { return JournalOf(store).entries; }

// "12 library 8960 1 -> 2", from the newest to the oldest.
QStringList LinesOf(const TSqliteStore& store, const ChangeJournal::tagQuery& query = Everything)
{
    QStringList lines;
    for (const ChangeJournal::tagEntry& entry : JournalOf(store, query).entries)
        lines += QString::fromLatin1("%1 %2 %3 %4 -> %5")
                     .arg(QString::number(entry.number), entry.author, QString::number(entry.parameter),
                          entry.oldValue.isValid() ? entry.oldValue.toString() : QLatin1String("absent"),
                          entry.newValue.isValid() ? entry.newValue.toString() : QLatin1String("absent"));
    return lines;
}

QStringList Lines(std::initializer_list<const char*> lines)
{
    QStringList texts;
    for (const char* line : lines)
        texts += QString::fromLatin1(line);
    return texts;
}

} // namespace

class StoreJournal : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { m_Store.reset(); }

    void everyKindOfChangeIsNoted_data();
    void everyKindOfChangeIsNoted();
    void whatChangesNothingOnTheDiskIsNotNoted();
    void theAuthorIsThatOfTheChange();
    void theAuthorIsThatOfTheThread();
    void theTimeIsThatOfTheTerminal();
    void entriesAreReadNewestFirstByParameterAndCount();
    void theOldestGoWhenThereAreTooMany();
    void severalStoresShareOneJournal();

    void aFileWithoutAJournalGetsOne();
    void theGoodCopyHasTheJournal();
    void theRepairOfARowIsNoted();
    void aDamagedEntryCostsItselfAlone_data();
    void aDamagedEntryCostsItselfAlone();
    void aJournalOfAnotherFormCostsNoParameter();
    void aDamagedPageOfTheJournalCostsNoParameter();
    void aGoodCopyWithADamagedJournalIsUsed();

    void anUndoneChangeHasItsFormerValue_data();
    void anUndoneChangeHasItsFormerValue();
    void theNewestChangeIsUndoneWithoutANumber();
    void aChangeThatWasChangedAgainIsNotUndone();
    void aChangeDuringAnUndoIsSeen();
    void aChangeOfAnUnknownParameterIsUndone();
    void anUndoThatCannotReadSaysSo();
    void anUndoThatCannotWriteSaysSo();
    void whatIsNotThereIsNotUndone();

private:
    void Reopen();
    void DamageJournalPage(const QString& path);

    std::unique_ptr<QTemporaryDir> m_Folder;
    QString m_Path;
    std::unique_ptr<TSqliteStore> m_Store;
};

void StoreJournal::init()
{
    m_Folder = MakeFolder();
    m_Path = m_Folder->filePath(QLatin1String("settings.db"));
    m_Store = OpenStore(m_Path);
}

void StoreJournal::Reopen()
{
    m_Store.reset();
    m_Store = OpenStore(m_Path);
}

void StoreJournal::everyKindOfChangeIsNoted_data()
{
    QTest::addColumn<QVariant>("before");
    QTest::addColumn<QVariant>("after");
    QTest::newRow("a new one") << QVariant() << QVariant(1);
    QTest::newRow("another value") << QVariant(1) << QVariant(2);
    QTest::newRow("another type") << QVariant(1) << QVariant(QLatin1String("1"));
    QTest::newRow("a removal") << QVariant(true) << QVariant();
    QTest::newRow("an empty text") << QVariant(QLatin1String("a\nb")) << QVariant(QLatin1String(""));
    QTest::newRow("bytes") << QVariant(QByteArray("\0\n\xff", 3)) << QVariant(0.1);
}

void StoreJournal::everyKindOfChangeIsNoted()
{
    QFETCH(QVariant, before);
    QFETCH(QVariant, after);
    QVERIFY(m_Store->SetParameter(PARAM_CLIENT, before, true));
    QVERIFY(m_Store->SetParameter(PARAM_CLIENT, after, true));
    const auto entries = EntriesOf(*m_Store);
    QCOMPARE(static_cast<int>(entries.size()), before.isValid() ? 2 : 1);
    const ChangeJournal::tagEntry& entry = entries.first();
    QCOMPARE(entry.number, static_cast<qint64>(entries.size()));
    QCOMPARE(entry.parameter, static_cast<int>(PARAM_CLIENT));
    QCOMPARE(entry.oldValue, before);
    QCOMPARE(entry.oldValue.userType(), before.userType());
    QCOMPARE(entry.newValue, after);
    QCOMPARE(entry.newValue.userType(), after.userType());
    QCOMPARE(entry.author, QLatin1String("library"));
    QCOMPARE(entry.timeSource, TIME_SOURCE_NONE);
}

void StoreJournal::whatChangesNothingOnTheDiskIsNotNoted()
{
    QVERIFY(m_Store->SetParameter(PARAM_AREA_UNIT, 1, true));
    QVERIFY(m_Store->SetParameter(PARAM_AREA_UNIT, 1, true));
    QVERIFY(m_Store->SetParameter(PARAM_FARM, QLatin1String("Hill"), false));
    QVERIFY(m_Store->SetParameter(PARAM_CLIENT, QVariant(), true));
    {
        TPersistenceHold hold(*m_Store);
        m_Store->SetParameter(PARAM_AREA_UNIT, 2, true);
        hold.Abandon();
    }
    {
        const TPersistenceHold hold(*m_Store);
        m_Store->SetParameter(PARAM_AREA_UNIT, 2, true);
        m_Store->SetParameter(PARAM_AREA_UNIT, 1, true);
    }
    QCOMPARE(LinesOf(*m_Store), Lines({"1 library 8960 absent -> 1"}));
}

void StoreJournal::theAuthorIsThatOfTheChange()
{
    {
        const TPersistenceHold hold(*m_Store);
        const TChangeAuthor tool(CHANGE_AUTHOR_TOOL);
        m_Store->SetParameter(Param(1), 1, true);
        {
            const TChangeAuthor import(CHANGE_AUTHOR_IMPORT);
            m_Store->SetParameter(Param(2), 1, true);
        }
        m_Store->SetParameter(Param(3), 1, true);
    } // written by none of them
    QVERIFY(m_Store->SetParameter(Param(4), 1, true));
    QCOMPARE(LinesOf(*m_Store), Lines({"4 library 4 absent -> 1", "3 tool 3 absent -> 1", "2 import 2 absent -> 1",
                                       "1 tool 1 absent -> 1"}));
}

void StoreJournal::theAuthorIsThatOfTheThread()
{
    const TChangeAuthor author(CHANGE_AUTHOR_OPERATOR);
    std::thread([&] { m_Store->SetParameter(Param(1), 1, true); }).join();
    QVERIFY(m_Store->SetParameter(Param(2), 1, true));
    QCOMPARE(LinesOf(*m_Store), Lines({"2 operator 2 absent -> 1", "1 library 1 absent -> 1"}));
}

void StoreJournal::theTimeIsThatOfTheTerminal()
{
    const int offset = 5 * 3600 + 1800;
    const QDateTime before = QDateTime::currentDateTimeUtc();
    {
        const TPersistenceHold hold(*m_Store);
        m_Store->SetParameter(PARAM_CLOCK_OFFSET, offset, true);
        m_Store->SetParameter(PARAM_TIME_SOURCE, TIME_SOURCE_RECEIVER, true);
    }
    const QDateTime after = QDateTime::currentDateTimeUtc();
    const auto entry = EntriesOf(*m_Store).first();
    QCOMPARE(entry.timeSource, TIME_SOURCE_RECEIVER);
    const QDateTime utc = QDateTime::fromString(entry.utc, Qt::ISODateWithMs);
    QVERIFY2(entry.utc.endsWith(QLatin1Char('Z')) && before <= utc && utc <= after, qPrintable(entry.utc));
    QCOMPARE(QString(entry.time + QLatin1Char('Z')), utc.addSecs(offset).toString(Qt::ISODateWithMs));
}

void StoreJournal::entriesAreReadNewestFirstByParameterAndCount()
{
    for (int value = 1; value <= 3; ++value)
        for (int number = 1; number <= 2; ++number)
            QVERIFY(m_Store->SetParameter(Param(number), value, true));
    QCOMPARE(LinesOf(*m_Store, {std::nullopt, 2}), Lines({"6 library 2 2 -> 3", "5 library 1 2 -> 3"}));
    QCOMPARE(LinesOf(*m_Store, {1, 100}),
             Lines({"5 library 1 2 -> 3", "3 library 1 1 -> 2", "1 library 1 absent -> 1"}));
    QCOMPARE(LinesOf(*m_Store, {1, 1}), Lines({"5 library 1 2 -> 3"}));
    QCOMPARE(LinesOf(*m_Store, {3, 100}), QStringList());
}

void StoreJournal::theOldestGoWhenThereAreTooMany()
{
    const int atOnce = 1000;
    const int surplus = 2500;
    for (int written = 0; written < MostEntries + surplus; written += atOnce / 2) {
        TPersistenceHold hold(*m_Store);
        for (int number = 0; number < atOnce / 2; ++number)
            m_Store->SetParameter(Param(number), written, true);
        QVERIFY(hold.Release());
    }
    const auto entries = EntriesOf(*m_Store);
    QCOMPARE(static_cast<int>(entries.size()), MostEntries);
    for (int index = 0; index < MostEntries; ++index)
        QCOMPARE(entries.at(index).number, static_cast<qint64>(MostEntries + surplus - index));
}

void StoreJournal::severalStoresShareOneJournal()
{
    const auto another = OpenStore(m_Path);
    for (int round = 1; round <= 20; ++round) {
        QVERIFY(m_Store->SetParameter(PARAM_AREA_UNIT, -round, true));
        QVERIFY(another->SetParameter(PARAM_AREA_UNIT, round, true));
    }
    const auto entries = EntriesOf(*m_Store);
    QCOMPARE(static_cast<int>(entries.size()), 40);
    for (int index = 1; index < entries.size(); ++index) {
        QCOMPARE(entries.at(index).number, entries.at(index - 1).number - 1);
        QCOMPARE(entries.at(index).newValue, entries.at(index - 1).oldValue);
    }
}

void StoreJournal::aFileWithoutAJournalGetsOne()
{
    QVERIFY(m_Store->SetParameter(PARAM_AREA_UNIT, 1, true));
    m_Store.reset();
    RunSql(m_Path, QLatin1String("DROP TABLE journal"));
    RunSql(m_Path, QLatin1String("DELETE FROM sqlite_sequence"));
    TStandardErrorCapture standardError;
    Reopen();
    QCOMPARE(LinesOf(*m_Store), QStringList());
    QVERIFY(m_Store->SetParameter(PARAM_AREA_UNIT, 2, true));
    QCOMPARE(LinesOf(*m_Store), Lines({"1 library 8960 1 -> 2"}));
    QCOMPARE(standardError.Lines(), QStringList());
}

void StoreJournal::theGoodCopyHasTheJournal()
{
    QVERIFY(m_Store->SetParameter(PARAM_AREA_UNIT, 1, true));
    m_Store.reset();
    SetFileBytes(m_Path, QByteArray(5000, 'x'));
    QVERIFY(QFile::remove(m_Path));
    Reopen();
    QCOMPARE(LinesOf(*m_Store), Lines({"1 library 8960 absent -> 1"}));
    QVERIFY(m_Store->SetParameter(PARAM_AREA_UNIT, 2, true));
    QCOMPARE(LinesOf(*m_Store).first(), QLatin1String("2 library 8960 1 -> 2"));
}

void StoreJournal::theRepairOfARowIsNoted()
{
    QVERIFY(m_Store->SetParameter(PARAM_CLIENT, QLatin1String("Smith"), true));
    const QString damage = QLatin1String("UPDATE parameters SET value = 'Smyth'");
    const QString repair = QLatin1String("repair 8932 absent -> Smith");
    RunSql(m_Path, damage);
    QVERIFY(m_Store->SetParameter(PARAM_METRIC, true, true)); // from memory
    QVERIFY(LinesOf(*m_Store).contains(QLatin1String("2 ") + repair));
    m_Store.reset();
    RunSql(m_Path, damage + QLatin1String(" WHERE id = 8932"));
    Reopen(); // from the good copy
    QCOMPARE(LinesOf(*m_Store).first(), QString(QLatin1String("4 ") + repair));
    QCOMPARE(m_Store->GetParameter(PARAM_CLIENT), QVariant(QLatin1String("Smith")));
}

void StoreJournal::aDamagedEntryCostsItselfAlone_data()
{
    QTest::addColumn<QString>("damage");
    for (const char* damage : {"time = 'x'", "utc = 'x'", "time_source = 7", "author = 'tool'", "parameter = 8961",
                               "old_type = 'double'", "old_value = '7'", "new_type = NULL", "new_value = '7'",
                               "digest = 'x'", "new_type = 'date', digest = '0'", "entry = 77"})
        QTest::newRow(damage) << QString::fromLatin1(damage);
}

void StoreJournal::aDamagedEntryCostsItselfAlone()
{
    QFETCH(QString, damage);
    for (int value = 1; value <= 3; ++value)
        QVERIFY(m_Store->SetParameter(PARAM_AREA_UNIT, value, true));
    RunSql(m_Path, QString::fromLatin1("UPDATE journal SET %1 WHERE entry = 2").arg(damage));
    const ChangeJournal::tagJournal journal = JournalOf(*m_Store);
    QCOMPARE(LinesOf(*m_Store), Lines({"3 library 8960 2 -> 3", "1 library 8960 absent -> 1"}));
    QCOMPARE(journal.damaged, (QList<qint64>{damage.startsWith(QLatin1String("entry")) ? 77 : 2}));
    Reopen();
    QCOMPARE(m_Store->GetParameter(PARAM_AREA_UNIT), QVariant(3));
    QCOMPARE(static_cast<int>(EntriesOf(*m_Store).size()), 2);
}

void StoreJournal::aJournalOfAnotherFormCostsNoParameter()
{
    QVERIFY(m_Store->SetParameter(PARAM_AREA_UNIT, 1, true));
    RunSql(m_Path, QLatin1String("DROP TABLE journal"));
    RunSql(m_Path, QLatin1String("CREATE TABLE journal (text)"));
    TStandardErrorCapture standardError;
    // While it is open, changes are stored without the journal, and that is said once.
    QVERIFY(m_Store->SetParameter(PARAM_AREA_UNIT, 2, true));
    QVERIFY(m_Store->SetParameter(PARAM_AREA_UNIT, 3, true));
    QCOMPARE(static_cast<int>(standardError.Lines().size()), 1);
    QVERIFY2(standardError.Lines().first().startsWith(m_Path + QLatin1String(": changes are not in the journal: ")),
             qPrintable(standardError.Lines().first()));
    // The next start mends it.
    Reopen();
    QCOMPARE(standardError.Lines().last(),
             QString(QString::fromLatin1("%1: the table of its journal has another form; copied to %1.damaged-1; the "
                                         "journal begins anew")
                         .arg(m_Path)));
    QCOMPARE(m_Store->GetParameter(PARAM_AREA_UNIT), QVariant(3));
    QVERIFY(m_Store->SetParameter(PARAM_AREA_UNIT, 4, true));
    QCOMPARE(LinesOf(*m_Store), Lines({"1 library 8960 3 -> 4"}));
}

// Closes the store and overwrites the root page of the journal.
void StoreJournal::DamageJournalPage(const QString& path)
{
    const int pageSize = RunSql(path, QLatin1String("PRAGMA page_size")).toInt();
    const int page = RunSql(path, QLatin1String("SELECT rootpage FROM sqlite_master WHERE name = 'journal'")).toInt();
    QByteArray bytes = FileBytes(path);
    QVERIFY(page > 1);
    bytes.replace((page - 1) * pageSize, pageSize, QByteArray(pageSize, '\x55'));
    SetFileBytes(path, bytes);
}

void StoreJournal::aDamagedPageOfTheJournalCostsNoParameter()
{
    QVERIFY(m_Store->SetParameter(PARAM_AREA_UNIT, 1, true));
    Reopen(); // the good copy has the first value
    QVERIFY(m_Store->SetParameter(PARAM_AREA_UNIT, 2, true));
    m_Store.reset();
    RunSql(m_Path, QLatin1String("CREATE TABLE other (number INTEGER)"));
    RunSql(m_Path, QLatin1String("INSERT INTO other VALUES (77)"));
    // Also when there is no good copy.
    QVERIFY(QFile::remove(m_Path + QLatin1String(".good")));
    DamageJournalPage(m_Path);
    TStandardErrorCapture standardError;
    Reopen();
    QCOMPARE(static_cast<int>(standardError.Lines().size()), 1);
    QVERIFY2(standardError.Lines().first().endsWith(QLatin1String("the journal begins anew")),
             qPrintable(standardError.Lines().first()));
    QCOMPARE(m_Store->Values(), (QMap<int, QVariant>{{PARAM_AREA_UNIT, 2}}));
    QCOMPARE(RunSql(m_Path, QLatin1String("SELECT number FROM other")), QVariant(77));
    QVERIFY(m_Store->SetParameter(PARAM_AREA_UNIT, 3, true));
    QCOMPARE(LinesOf(*m_Store), Lines({"1 library 8960 2 -> 3"}));
}

void StoreJournal::aGoodCopyWithADamagedJournalIsUsed()
{
    QVERIFY(m_Store->SetParameter(PARAM_AREA_UNIT, 1, true));
    m_Store.reset();
    DamageJournalPage(m_Path + QLatin1String(".good"));
    SetFileBytes(m_Path, FileBytes(m_Path).left(100) + QByteArray(9000, 'x'));
    TStandardErrorCapture standardError;
    Reopen();
    QVERIFY(m_Store);
    QCOMPARE(m_Store->Values(), (QMap<int, QVariant>{{PARAM_AREA_UNIT, 1}}));
}

void StoreJournal::anUndoneChangeHasItsFormerValue_data()
{
    QTest::addColumn<QVariant>("before");
    QTest::addColumn<QVariant>("after");
    QTest::newRow("a new one") << QVariant() << QVariant(1);
    QTest::newRow("another value") << QVariant(1) << QVariant(2);
    QTest::newRow("another type") << QVariant(1) << QVariant(QLatin1String("1"));
    QTest::newRow("a removal") << QVariant(1) << QVariant();
}

void StoreJournal::anUndoneChangeHasItsFormerValue()
{
    QFETCH(QVariant, before);
    QFETCH(QVariant, after);
    QVERIFY(m_Store->SetParameter(PARAM_CLIENT, before, true));
    QVERIFY(m_Store->SetParameter(PARAM_CLIENT, after, true));
    const qint64 number = EntriesOf(*m_Store).first().number;
    QVERIFY(m_Store->SetParameter(PARAM_FARM, QLatin1String("Hill"), true));
    ChangeJournal::tagEntry undone;
    QString error;
    QVERIFY2(ChangeJournal::Undo(*m_Store, number, &undone, &error), qPrintable(error));
    QCOMPARE(undone.number, number);
    Reopen();
    QCOMPARE(m_Store->GetParameter(PARAM_CLIENT), before);
    QCOMPARE(m_Store->GetParameter(PARAM_CLIENT).userType(), before.userType());
    QCOMPARE(m_Store->GetParameter(PARAM_FARM), QVariant(QLatin1String("Hill")));
    const auto entry = EntriesOf(*m_Store).first();
    QCOMPARE(entry.author, QLatin1String("undo"));
    QCOMPARE(entry.oldValue, after);
    QCOMPARE(entry.newValue, before);
}

void StoreJournal::theNewestChangeIsUndoneWithoutANumber()
{
    QVERIFY(m_Store->SetParameter(PARAM_AREA_UNIT, 1, true));
    QVERIFY(m_Store->SetParameter(PARAM_METRIC, true, true));
    ChangeJournal::tagEntry undone;
    QString error;
    QVERIFY2(ChangeJournal::Undo(*m_Store, std::nullopt, &undone, &error), qPrintable(error));
    QCOMPARE(undone.parameter, static_cast<int>(PARAM_METRIC));
    QVERIFY(!m_Store->HasParameter(PARAM_METRIC));
    // The newest entry is that of the undo now.
    QVERIFY2(ChangeJournal::Undo(*m_Store, std::nullopt, &undone, &error), qPrintable(error));
    QCOMPARE(m_Store->GetParameter(PARAM_METRIC), QVariant(true));
}

void StoreJournal::aChangeThatWasChangedAgainIsNotUndone()
{
    QVERIFY(m_Store->SetParameter(PARAM_AREA_UNIT, 0, true));
    QVERIFY(m_Store->SetParameter(PARAM_AREA_UNIT, 1, true));
    QVERIFY(OpenStore(m_Path)->SetParameter(PARAM_AREA_UNIT, QVariant(), true)); // by another, a moment ago
    ChangeJournal::tagEntry undone;
    QString error;
    QVERIFY(!ChangeJournal::Undo(*m_Store, 2, &undone, &error));
    QCOMPARE(error, QLatin1String("units.area is absent now; entry 2 set it to \"acre\""));
    QCOMPARE(static_cast<int>(EntriesOf(*m_Store).size()), 3);
}

// The other program has changed the value when the undo begins, and commits while the undo waits for it.
void StoreJournal::aChangeDuringAnUndoIsSeen()
{
    QVERIFY(m_Store->SetParameter(PARAM_AREA_UNIT, 0, true));
    QVERIFY(m_Store->SetParameter(PARAM_AREA_UNIT, 1, true));
    TOtherProgram other(m_Path);
    other.Run(QLatin1String("BEGIN IMMEDIATE"));
    other.Run(QLatin1String("UPDATE parameters SET value = '0', digest = NULL WHERE id = 8960"));
    std::atomic<bool> isAtIt{false};
    bool isUndone = true;
    QString error;
    std::thread undoing([&] {
        isAtIt = true;
        ChangeJournal::tagEntry undone;
        isUndone = ChangeJournal::Undo(*m_Store, 2, &undone, &error);
    });
    while (!isAtIt)
        std::this_thread::yield();
    std::this_thread::sleep_for(TimeToGoWrong);
    other.Run(QLatin1String("COMMIT"));
    undoing.join();
    QVERIFY(!isUndone);
    QCOMPARE(error, QLatin1String("units.area is \"hectare\" now; entry 2 set it to \"acre\""));
    QCOMPARE(LinesOf(*m_Store), Lines({"2 library 8960 0 -> 1", "1 library 8960 absent -> 0"}));
}

// As a newer version of the host has stored it.
void StoreJournal::aChangeOfAnUnknownParameterIsUndone()
{
    const EParamID unknown = Param(29999);
    QVERIFY(m_Store->SetParameter(unknown, QLatin1String("x"), true));
    QVERIFY(m_Store->SetParameter(unknown, 2.5, true));
    ChangeJournal::tagEntry undone;
    QString error;
    QVERIFY(!ChangeJournal::Undo(*m_Store, 1, &undone, &error));
    QCOMPARE(error, QLatin1String("parameter 29999 is \"2.5\" now; entry 1 set it to \"x\""));
    QVERIFY2(ChangeJournal::Undo(*m_Store, 2, &undone, &error), qPrintable(error));
    QCOMPARE(m_Store->GetParameter(unknown), QVariant(QLatin1String("x")));
}

void StoreJournal::anUndoThatCannotReadSaysSo()
{
    QVERIFY(m_Store->SetParameter(PARAM_AREA_UNIT, 1, true));
    ChangeJournal::tagEntry undone;
    QString error;
    RunSql(m_Path, QLatin1String("ALTER TABLE parameters RENAME TO former"));
    QVERIFY(!ChangeJournal::Undo(*m_Store, 1, &undone, &error));
    QVERIFY2(error.startsWith(m_Path + QLatin1String(" cannot be read: ")), qPrintable(error));
    RunSql(m_Path, QLatin1String("ALTER TABLE former RENAME TO parameters"));
    RunSql(m_Path, QLatin1String("ALTER TABLE journal RENAME COLUMN digest TO former"));
    QVERIFY(!ChangeJournal::Undo(*m_Store, 1, &undone, &error));
    QVERIFY2(error.startsWith(QString::fromLatin1("the journal of %1 cannot be read: ").arg(m_Path)),
             qPrintable(error));
    QCOMPARE(m_Store->GetParameter(PARAM_AREA_UNIT), QVariant(1));
}

void StoreJournal::anUndoThatCannotWriteSaysSo()
{
    QVERIFY(m_Store->SetParameter(PARAM_AREA_UNIT, 1, true));
    RunSql(m_Path,
           QLatin1String("CREATE TRIGGER full BEFORE INSERT ON journal BEGIN SELECT RAISE(ABORT, 'full'); END"));
    ChangeJournal::tagEntry undone;
    QString error;
    QVERIFY(!ChangeJournal::Undo(*m_Store, std::nullopt, &undone, &error));
    QVERIFY2(error.startsWith(m_Path + QLatin1String(" cannot be written: full")), qPrintable(error));
    QCOMPARE(m_Store->GetParameter(PARAM_AREA_UNIT), QVariant(1));
    QCOMPARE(LinesOf(*m_Store), Lines({"1 library 8960 absent -> 1"}));
    const QString away = m_Path + QLatin1String(".away");
    QVERIFY(QFile::rename(m_Path, away));
    QVERIFY(!ChangeJournal::Undo(*m_Store, std::nullopt, &undone, &error));
    QCOMPARE(error, QString(m_Path + QLatin1String(" cannot be written: it is no longer there")));
    QVERIFY(!QFile::exists(m_Path));
}

void StoreJournal::whatIsNotThereIsNotUndone()
{
    ChangeJournal::tagEntry undone;
    QString error;
    QVERIFY(!ChangeJournal::Undo(*m_Store, std::nullopt, &undone, &error));
    QCOMPARE(error, QLatin1String("the journal has no entries"));
    QVERIFY(m_Store->SetParameter(PARAM_AREA_UNIT, 1, true));
    QVERIFY(!ChangeJournal::Undo(*m_Store, 7, &undone, &error));
    QCOMPARE(error, QLatin1String("the journal has no entry 7"));
    RunSql(m_Path, QLatin1String("UPDATE journal SET new_value = '2'"));
    QVERIFY(!ChangeJournal::Undo(*m_Store, 1, &undone, &error));
    QCOMPARE(error, QLatin1String("entry 1 of the journal is damaged"));
    QCOMPARE(m_Store->GetParameter(PARAM_AREA_UNIT), QVariant(1));
}

QTEST_GUILESS_MAIN(StoreJournal)
#include "StoreJournal.moc"
