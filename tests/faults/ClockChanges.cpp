#include "FaultResults.h"
#include "FileCalls.h"
#include "MemoryFolder.h"
#include "TTemporaryFolder.h"

#include "copies/StoreCopies.h"
#include "diagnostics/LogTimes.h"
#include "logs/TDiagnosticLog.h"
#include "logs/TLogSeries.h"
#include "logs/TNEMADiagnosticLogProxy.h"
#include "parameters/HostParameters.h"
#include "stores/ChangeJournal.h"
#include "stores/TMemoryStore.h"
#include "stores/TSqliteStore.h"
#include "system/TSystemSettingsProxy.h"
#include "terminal/TTerminal.h"

#include <QtTest>

#include <memory>

namespace {

constexpr std::int64_t Day = 24 * 60 * 60;
constexpr std::int64_t Of2026 = 1767225600; // 2026-01-01 00:00 UTC
constexpr std::int64_t Of2038 = 2147483647; // the last second that 32 bits can count
constexpr std::int64_t Now = Of2026 + 200 * Day + 12 * 60 * 60;

/// What the machine's clock shows, first and then, in seconds since 1970.
struct tagChange
{
    const char* name;
    std::int64_t before;
    std::int64_t after;
    std::int64_t step; ///< of the times of files, in seconds; 0: as fine as can be
};

constexpr tagChange Changes[] = {
    {"not changed", Now, Now, 0},
    {"set back a day", Now, Now - Day, 0},
    {"forward a year", Now, Now + 365 * Day, 0},
    {"back from a year ahead", Now + 365 * Day, Now, 0},
    {"back to 1970", Now, 40, 0},
    {"on from 1970", 40, Now, 0},
    {"back across 1970", 40, -40, 0},
    {"on across 1970", -40, 40, 0},
    {"on across 2038", Of2038 - 20, Of2038 + 20, 0},
    {"back across 2038", Of2038 + 20, Of2038 - 20, 0},
    {"times of two seconds", Now, Now, 2},
    {"times of two seconds, set back a day", Now, Now - Day, 2},
    {"times of two seconds, on across 2038", Of2038 - 20, Of2038 + 20, 2},
};

constexpr int MostFiles = 4;
constexpr int FileBytes = 100;
constexpr int LinesOfFile = 6; // that fill one

QByteArray Line(int number) { return QByteArray::number(number).rightJustified(17, '0') + "\r\n"; }

void SetClock(std::int64_t seconds, std::int64_t step)
{
    FileCalls::SetClock({0, 0, -1});
    FileCalls::tagClock clock;
    clock.shift = seconds - static_cast<std::int64_t>(std::time(nullptr));
    clock.step = step;
    FileCalls::SetClock(clock);
}

} // namespace

/// The machine's clock is set while the terminal is off or on, and files have coarse times.
class ClockChanges : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void aLogGoesOnAfterARestart_data() { AddChanges(); }
    void aLogGoesOnAfterARestart();
    void anOpenLogLosesNothingThatIsKept_data() { AddChanges(); }
    void anOpenLogLosesNothingThatIsKept();
    void aTerminalKeepsItsNewestLines_data() { AddChanges(); }
    void aTerminalKeepsItsNewestLines();
    void theJournalKeepsItsOrder_data() { AddChanges(); }
    void theJournalKeepsItsOrder();
    void eachDayHasItsCopy_data() { AddChanges(); }
    void eachDayHasItsCopy();
    void copiesOnDemandKeepTheirNumbers_data() { AddChanges(); }
    void copiesOnDemandKeepTheirNumbers();

private:
    static void AddChanges();

    QString Path(const char* name) const { return m_Folder->Path(QLatin1String(name)); }
    QString Base() const { return Path("user.log"); }
    std::unique_ptr<TDiagnosticLog> OpenLog();
    void WriteLines(TDiagnosticLog& log, int count);
    QByteArray Kept() const;
    std::unique_ptr<TSqliteStore> OpenStore() const;
    void Report(const char* operation) const;

    std::unique_ptr<TTemporaryFolder> m_Folder;
    std::unique_ptr<TMemoryStore> m_Parameters;
    int m_Lines = 0;
};

void ClockChanges::initTestCase() { KeepTemporaryFilesInMemory(); }

void ClockChanges::init()
{
    m_Folder = std::make_unique<TTemporaryFolder>();
    m_Parameters = std::make_unique<TMemoryStore>();
    m_Parameters->SetParameter(PARAM_USER_LOG_FILE_NUMBER, 1, true);
    ConfigManager = m_Parameters.get();
    m_Lines = 0;
    FileCalls::Watch(QFile::encodeName(m_Folder->Path()));
}

void ClockChanges::cleanup()
{
    FileCalls::SetClock({0, 0, -1});
    FileCalls::Ignore();
    ConfigManager = nullptr;
}

void ClockChanges::AddChanges()
{
    QTest::addColumn<int>("change");
    for (int change = 0; change < static_cast<int>(std::size(Changes)); ++change)
        QTest::newRow(Changes[change].name) << change;
}

void ClockChanges::Report(const char* operation) const
{
    const int broken = QTest::currentTestFailed() ? 1 : 0;
    tagFaultResult{"ClockChanges", operation, QByteArray("clock ") + QTest::currentDataTag(), 1, 1 - broken, broken}
        .Append();
}

/// As a terminal does at its start.
std::unique_ptr<TDiagnosticLog> ClockChanges::OpenLog()
{
    OrderLogTimes(Base());
    auto log = std::make_unique<TDiagnosticLog>(0, FileBytes, MostFiles, PARAM_USER_LOG_FILE_NUMBER);
    if (!log->Restore(Base(), 0, 0))
        qFatal("the log cannot be opened");
    return log;
}

void ClockChanges::WriteLines(TDiagnosticLog& log, int count)
{
    for (int i = 0; i < count; ++i) {
        const QByteArray line = Line(++m_Lines);
        QVERIFY(log.LogDiagnostic(line.constData(), static_cast<int>(line.size())));
    }
}

/// The content of all files in the order of their numbers.
QByteArray ClockChanges::Kept() const
{
    QByteArray kept;
    const QStringList names = QDir(m_Folder->Path()).entryList(QDir::Files, QDir::Name);
    for (const QString& name : names)
        kept += m_Folder->Content(name);
    return kept;
}

// Three files before the change, and three after it: the log keeps the last four.
void ClockChanges::aLogGoesOnAfterARestart()
{
    QFETCH(int, change);
    SetClock(Changes[change].before, Changes[change].step);
    for (int start = 0; start < 2; ++start) {
        WriteLines(*OpenLog(), LinesOfFile);
        WriteLines(*OpenLog(), LinesOfFile / 2);
    }
    SetClock(Changes[change].after, Changes[change].step);
    for (int start = 0; start < 6; ++start)
        WriteLines(*OpenLog(), LinesOfFile / 2);

    QByteArray last;
    for (int line = 1; line <= m_Lines; ++line)
        last += Line(line);
    const QByteArray kept = Kept();
    QVERIFY2(last.endsWith(kept), kept.constData());
    QVERIFY(kept.size() >= (MostFiles - 1) * FileBytes);
    const int files = static_cast<int>(QDir(m_Folder->Path()).entryList(QDir::Files).size());
    QVERIFY2(files <= MostFiles, QByteArray::number(files).constData());

    // What is listed as the newest is the file of the last line.
    OrderLogTimes(Base());
    const TLogSeries series(Base());
    QVERIFY(m_Folder->Content(series.GetFiles().back().name).endsWith(Line(m_Lines)) ||
            m_Folder->Content(series.GetFiles().back().name).isEmpty());
    Report("log, restarted");
}

// The file that is written, and the one before it, are there whatever the clock does.
void ClockChanges::anOpenLogLosesNothingThatIsKept()
{
    QFETCH(int, change);
    SetClock(Changes[change].before, Changes[change].step);
    const auto log = OpenLog();
    WriteLines(*log, 3 * LinesOfFile);
    SetClock(Changes[change].after, Changes[change].step);
    for (int line = 0; line < 5 * LinesOfFile; ++line) {
        WriteLines(*log, 1);
        const QByteArray kept = Kept();
        QVERIFY(kept.endsWith(Line(m_Lines)));
        const QStringList names = QDir(m_Folder->Path()).entryList(QDir::Files, QDir::Name);
        QVERIFY(names.size() <= MostFiles);
        int former = 0;
        for (const QString& name : names) { // numbers rise, and none is used twice
            const int number = name.mid(4, 5).toInt();
            QVERIFY(number > former);
            former = number;
            QVERIFY(m_Folder->Content(name).size() % Line(0).size() == 0);
        }
        for (int number = 1; number <= m_Lines; ++number)
            QVERIFY(kept.count(Line(number)) <= 1);
    }
    Report("log, open");
}

// The log fills several files before the change, and several after it without a restart.
void ClockChanges::aTerminalKeepsItsNewestLines()
{
    constexpr int NmeaFiles = 4;
    constexpr int NmeaBytes = 0x40000;
    QFETCH(int, change);
    const std::int64_t times[] = {Changes[change].before, Changes[change].after};
    QByteArray all;
    QString base;
    for (const std::int64_t time : times) {
        SetClock(time, Changes[change].step);
        TTerminal terminal(*m_Parameters);
        QString error;
        QVERIFY2(terminal.Start(m_Folder->Path(), &error, {QLatin1String("1")}), qPrintable(error));
        base = TSystemSettingsProxy().GetInternalNemaLogPath();
        TNEMADiagnosticLogProxy log;
        for (int bytes = 0; bytes < 6 * NmeaBytes; bytes += 0x1000) {
            const QByteArray line = QByteArray::number(++m_Lines).rightJustified(0xffe, '0') + "\r\n";
            QVERIFY(log.LogDiagnostic(line.constData(), static_cast<int>(line.size())));
            all += line;
        }
    }
    const QFileInfo series(base);
    QByteArray kept;
    const QStringList names =
        series.dir().entryList({series.completeBaseName() + QLatin1String("0*")}, QDir::Files, QDir::Name);
    for (const QString& name : names) {
        QFile file(series.dir().filePath(name));
        QVERIFY(file.open(QIODevice::ReadOnly));
        kept += file.readAll();
    }
    QVERIFY2(all.endsWith(kept), "other lines than the newest were kept");
    QVERIFY(kept.size() >= (NmeaFiles - 1) * NmeaBytes);
    Report("log of a terminal");
}

std::unique_ptr<TSqliteStore> ClockChanges::OpenStore() const
{
    QString error;
    auto store = TSqliteStore::Open(Path("settings.db"), &error);
    if (!store)
        qFatal("%s", qPrintable(error));
    return store;
}

void ClockChanges::theJournalKeepsItsOrder()
{
    QFETCH(int, change);
    const std::int64_t times[] = {Changes[change].before, Changes[change].after};
    int value = 0;
    for (const std::int64_t time : times) {
        SetClock(time, Changes[change].step);
        const auto store = OpenStore();
        for (int i = 0; i < 3; ++i)
            QVERIFY(store->SetParameter(PARAM_ACTIVE_JOB, QString::number(++value), true));
    }
    const auto store = OpenStore();
    ChangeJournal::tagJournal journal;
    QString error;
    QVERIFY2(ChangeJournal::Read(*store, {}, &journal, &error), qPrintable(error));
    QCOMPARE(static_cast<int>(journal.entries.size()), value);
    QVERIFY(journal.damaged.isEmpty());
    for (int i = 0; i < value; ++i) {
        const ChangeJournal::tagEntry& entry = journal.entries.at(i);
        QCOMPARE(entry.newValue.toInt(), value - i);
        QCOMPARE(entry.number, static_cast<qint64>(value - i));
        const QDateTime utc = QDateTime::fromString(entry.utc, Qt::ISODateWithMs);
        const qint64 distance = utc.toMSecsSinceEpoch() / 1000 - times[i < 3 ? 1 : 0];
        QVERIFY2(qAbs(distance) < 1000, qPrintable(entry.utc));
    }
    ChangeJournal::tagEntry undone;
    QVERIFY(ChangeJournal::Undo(*store, std::nullopt, &undone, &error));
    QCOMPARE(store->GetParameter(PARAM_ACTIVE_JOB).toInt(), value - 1);
    Report("journal");
}

void ClockChanges::eachDayHasItsCopy()
{
    QFETCH(int, change);
    const std::int64_t times[] = {Changes[change].before, Changes[change].after};
    QStringList days;
    int value = 0;
    for (const std::int64_t time : times) {
        SetClock(time, Changes[change].step);
        QVERIFY(OpenStore()->SetParameter(PARAM_ACTIVE_JOB, QString::number(++value), true));
        days.append(QDateTime::fromSecsSinceEpoch(time, Qt::UTC).date().toString(Qt::ISODate));
    }
    days.removeDuplicates();
    days.sort();
    std::reverse(days.begin(), days.end());
    const auto store = OpenStore();
    QStringList names;
    for (const StoreCopies::tagCopy& copy : StoreCopies::List(store->Path())) {
        names.append(copy.name);
        QList<StoreCopies::tagDifference> differences;
        QString error;
        QVERIFY2(StoreCopies::Compare(*store, copy, &differences, &error), qPrintable(error));
    }
    QCOMPARE(names, days);
    QCOMPARE(store->GetParameter(PARAM_ACTIVE_JOB).toInt(), value);
    Report("copies of days");
}

// The newest one is on top when the clock has gone on; one that was made is never replaced.
void ClockChanges::copiesOnDemandKeepTheirNumbers()
{
    QFETCH(int, change);
    const std::int64_t times[] = {Changes[change].before, Changes[change].after, Changes[change].before};
    QStringList made;
    for (const std::int64_t time : times) {
        SetClock(time, Changes[change].step);
        const auto store = OpenStore();
        QVERIFY(store->SetParameter(PARAM_ACTIVE_JOB, QString::number(made.size()), true));
        StoreCopies::tagCopy copy;
        QString error;
        QVERIFY2(StoreCopies::Make(*store, &copy, &error), qPrintable(error));
        QVERIFY2(!made.contains(copy.name), qPrintable(copy.name));
        made.append(copy.name);
    }
    const auto store = OpenStore();
    int found = 0;
    for (const StoreCopies::tagCopy& copy : StoreCopies::List(store->Path())) {
        if (!made.contains(copy.name))
            continue;
        QList<StoreCopies::tagDifference> changed;
        QString error;
        QVERIFY2(StoreCopies::Restore(*store, copy, &changed, &error), qPrintable(error));
        QCOMPARE(store->GetParameter(PARAM_ACTIVE_JOB).toInt(), static_cast<int>(made.indexOf(copy.name)));
        ++found;
    }
    QCOMPARE(found, static_cast<int>(made.size()));
    Report("copies on demand");
}

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    ClockChanges test;
    return QTest::qExec(&test, argc, argv);
}
#include "ClockChanges.moc"
