#include "StoreTestSupport.h"
#include "parameters/HostParameters.h"
#include "stores/ChangeJournal.h"
#include "stores/TPersistenceHold.h"

#include <QDateTime>
#include <QtTest>

#include <atomic>

namespace {

std::atomic<qint64> MachineSeconds{0}; // since 1970; the store asks for the time from a thread too

void SetMachineTime(const char* utc)
{
    MachineSeconds = QDateTime::fromString(QString::fromLatin1(utc), Qt::ISODate).toSecsSinceEpoch();
}

} // namespace

namespace {

/// As the C library has it; its own type is another one where times have more bits than addresses.
struct tagTimeOfDay
{
    long seconds;
    long microseconds;
};

} // namespace

/// The machine's clock, as Qt asks for it, stands still until a test moves it.
extern "C" __attribute__((visibility("default"))) int MachineTime(tagTimeOfDay* time, void*) __asm__("gettimeofday");

extern "C" int MachineTime(tagTimeOfDay* time, void* /*zone*/)
{
    *time = {static_cast<long>(MachineSeconds), 0};
    return 0;
}

/// Changes that the library makes of the device, which share entries of the journal.
class StoreJournalSharedEntries : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup() { m_Store.reset(); }

    void changesOfTheDeviceShareOneEntry();
    void severalParametersHaveOneEntryEach();
    void eachMinuteHasItsOwnEntry();
    void otherChangesHaveTheirOwn_data();
    void otherChangesHaveTheirOwn();
    void aChangeInBetweenBeginsANewEntry();
    void aChangeThatIsNotInTheJournalBeginsANewEntry();
    void aDamagedEntryIsNotShared();
    void severalStoresShareAnEntry();
    void aSharedEntryIsUndone();

private:
    void Set(EParamID parameter, const QVariant& value) { QVERIFY(m_Store->SetParameter(parameter, value, true)); }
    QStringList Lines() const;

    std::unique_ptr<QTemporaryDir> m_Folder;
    QString m_Path;
    std::unique_ptr<TSqliteStore> m_Store;
};

void StoreJournalSharedEntries::initTestCase()
{
    SetMachineTime("2026-05-04T10:00:07Z");
    QCOMPARE(QDateTime::currentDateTimeUtc().toString(Qt::ISODate), QLatin1String("2026-05-04T10:00:07Z"));
}

void StoreJournalSharedEntries::init()
{
    SetMachineTime("2026-05-04T10:00:00Z");
    m_Folder = MakeFolder();
    m_Path = m_Folder->filePath(QLatin1String("settings.db"));
    m_Store = OpenStore(m_Path);
}

// "12 10:00:59 library 8960 1 -> 2", from the newest to the oldest.
QStringList StoreJournalSharedEntries::Lines() const
{
    ChangeJournal::tagJournal journal;
    QString error;
    if (!ChangeJournal::Read(*m_Store, {}, &journal, &error))
        qWarning("%s", qPrintable(error));
    QStringList lines;
    for (const ChangeJournal::tagEntry& entry : std::as_const(journal.entries))
        lines += QString::fromLatin1("%1 %2 %3 %4 %5 -> %6")
                     .arg(QString::number(entry.number), entry.utc.mid(11, 8), entry.author,
                          QString::number(entry.parameter),
                          entry.oldValue.isValid() ? entry.oldValue.toString() : QLatin1String("absent"),
                          entry.newValue.isValid() ? entry.newValue.toString() : QLatin1String("absent"));
    return lines;
}

namespace {

QStringList List(std::initializer_list<const char*> lines)
{
    QStringList texts;
    for (const char* line : lines)
        texts += QString::fromLatin1(line);
    return texts;
}

} // namespace

void StoreJournalSharedEntries::changesOfTheDeviceShareOneEntry()
{
    for (int offset = 1; offset <= 59; ++offset) {
        MachineSeconds += 1;
        Set(PARAM_CLOCK_OFFSET, -offset);
    }
    QCOMPARE(Lines(), List({"1 10:00:59 library 8951 absent -> -59"}));
    m_Store.reset();
    m_Store = OpenStore(m_Path);
    Set(PARAM_CLOCK_OFFSET, QVariant());
    QCOMPARE(Lines(), List({"1 10:00:59 library 8951 absent -> absent"}));
}

void StoreJournalSharedEntries::severalParametersHaveOneEntryEach()
{
    for (int number = 1; number <= 20; ++number) {
        Set(PARAM_CLOCK_OFFSET, number);
        Set(PARAM_NMEA_LOG_FILE_NUMBER, number);
        TPersistenceHold hold(*m_Store);
        m_Store->SetParameter(PARAM_USER_LOG_FILE_NUMBER, number, true);
        m_Store->SetParameter(PARAM_CLOCK_OFFSET, -number, true);
        QVERIFY(hold.Release());
    }
    QCOMPARE(Lines(), List({"3 10:00:00 library 10472 absent -> 20", "2 10:00:00 library 10471 absent -> 20",
                            "1 10:00:00 library 8951 absent -> -20"}));
}

void StoreJournalSharedEntries::eachMinuteHasItsOwnEntry()
{
    Set(PARAM_CLOCK_OFFSET, 1);
    SetMachineTime("2026-05-04T10:00:59Z");
    Set(PARAM_CLOCK_OFFSET, 2);
    SetMachineTime("2026-05-04T10:01:00Z");
    Set(PARAM_CLOCK_OFFSET, 3);
    SetMachineTime("2026-05-04T11:01:00Z");
    Set(PARAM_CLOCK_OFFSET, 4);
    SetMachineTime("2026-05-04T10:01:30Z"); // the machine's clock was set back
    Set(PARAM_CLOCK_OFFSET, 5);
    QCOMPARE(Lines(), List({"4 10:01:30 library 8951 4 -> 5", "3 11:01:00 library 8951 3 -> 4",
                            "2 10:01:00 library 8951 2 -> 3", "1 10:00:59 library 8951 absent -> 2"}));
}

void StoreJournalSharedEntries::otherChangesHaveTheirOwn_data()
{
    QTest::addColumn<int>("parameter");
    QTest::addColumn<int>("author");
    QTest::newRow("a unit") << int{PARAM_AREA_UNIT} << int{CHANGE_AUTHOR_LIBRARY};
    QTest::newRow("a parameter that is not in the catalogue") << 31000 << int{CHANGE_AUTHOR_LIBRARY};
    QTest::newRow("by an operator") << int{PARAM_CLOCK_OFFSET} << int{CHANGE_AUTHOR_OPERATOR};
    QTest::newRow("by a tool") << int{PARAM_CLOCK_OFFSET} << int{CHANGE_AUTHOR_TOOL};
    QTest::newRow("by an undo") << int{PARAM_CLOCK_OFFSET} << int{CHANGE_AUTHOR_UNDO};
}

void StoreJournalSharedEntries::otherChangesHaveTheirOwn()
{
    QFETCH(int, parameter);
    QFETCH(int, author);
    const TChangeAuthor scope(static_cast<EChangeAuthor>(author));
    for (int value = 1; value <= 3; ++value)
        Set(Param(parameter), value);
    QCOMPARE(static_cast<int>(Lines().size()), 3);
}

void StoreJournalSharedEntries::aChangeInBetweenBeginsANewEntry()
{
    Set(PARAM_CLOCK_OFFSET, 1);
    Set(PARAM_AREA_UNIT, 1);
    Set(PARAM_CLOCK_OFFSET, 2);
    {
        const TChangeAuthor tool(CHANGE_AUTHOR_TOOL);
        Set(PARAM_CLOCK_OFFSET, 3);
    }
    Set(PARAM_CLOCK_OFFSET, 4);
    Set(PARAM_CLOCK_OFFSET, 5);
    QCOMPARE(Lines(),
             List({"5 10:00:00 library 8951 3 -> 5", "4 10:00:00 tool 8951 2 -> 3", "3 10:00:00 library 8951 1 -> 2",
                   "2 10:00:00 library 8960 absent -> 1", "1 10:00:00 library 8951 absent -> 1"}));
}

void StoreJournalSharedEntries::aChangeThatIsNotInTheJournalBeginsANewEntry()
{
    Set(PARAM_CLOCK_OFFSET, 1);
    RunSql(m_Path, QLatin1String("UPDATE parameters SET value = '7', digest = NULL"));
    Set(PARAM_CLOCK_OFFSET, 2);
    QCOMPARE(Lines(), List({"2 10:00:00 library 8951 7 -> 2", "1 10:00:00 library 8951 absent -> 1"}));
}

void StoreJournalSharedEntries::aDamagedEntryIsNotShared()
{
    Set(PARAM_CLOCK_OFFSET, 1);
    RunSql(m_Path, QLatin1String("UPDATE journal SET old_value = '7'"));
    Set(PARAM_CLOCK_OFFSET, 2);
    QCOMPARE(Lines(), List({"2 10:00:00 library 8951 1 -> 2"}));
}

void StoreJournalSharedEntries::severalStoresShareAnEntry()
{
    const auto another = OpenStore(m_Path);
    for (int offset = 1; offset <= 20; ++offset) {
        Set(PARAM_CLOCK_OFFSET, offset);
        QVERIFY(another->SetParameter(PARAM_CLOCK_OFFSET, -offset, true));
    }
    QCOMPARE(Lines(), List({"1 10:00:00 library 8951 absent -> -20"}));
}

void StoreJournalSharedEntries::aSharedEntryIsUndone()
{
    Set(PARAM_CLOCK_OFFSET, 1);
    SetMachineTime("2026-05-04T10:01:00Z");
    Set(PARAM_CLOCK_OFFSET, 2);
    Set(PARAM_CLOCK_OFFSET, 3);
    ChangeJournal::tagEntry undone;
    QString error;
    QVERIFY2(ChangeJournal::Undo(*m_Store, std::nullopt, &undone, &error), qPrintable(error));
    QCOMPARE(m_Store->GetParameter(PARAM_CLOCK_OFFSET), QVariant(1));
    Set(PARAM_CLOCK_OFFSET, 4);
    QCOMPARE(Lines(), List({"4 10:01:00 library 8951 1 -> 4", "3 10:01:00 undo 8951 3 -> 1",
                            "2 10:01:00 library 8951 1 -> 3", "1 10:00:00 library 8951 absent -> 1"}));
}

QTEST_GUILESS_MAIN(StoreJournalSharedEntries)
#include "StoreJournalSharedEntries.moc"
