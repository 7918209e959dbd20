#include "colors/TColorSettingsProxy.h"
#include "logs/TNEMADiagnosticLogProxy.h"
#include "logs/TUserDiagnosticLogProxy.h"
#include "region/TRegionSettingsProxy.h"
#include "stores/TMemoryStore.h"
#include "system/TSystemSettingsProxy.h"
#include "terminal/TTerminal.h"
#include "units/TUnitAbbreviations.h"
#include "units/TUnits.h"

#include <QColor>
#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QtTest>

#include <atomic>
#include <functional>
#include <memory>
#include <thread>
#include <vector>

namespace {

const int ThreadCount = 4;
const int Rounds = 250;

/// The work of one of the display's threads, done in a loop. Returns whether it has succeeded.
using FWork = std::function<bool(int thread, int round)>;

/// Does the work in all threads at the same time. Returns the number of failures.
int FailuresInThreads(const FWork& work)
{
    // Relaxed, so that only the locks of the façades order the threads. No thread ends before the last one has begun.
    std::atomic<int> failures{0};
    std::atomic<int> awaited{ThreadCount};
    std::vector<std::thread> threads;
    for (int thread = 0; thread < ThreadCount; ++thread) {
        threads.emplace_back([&work, &failures, &awaited, thread] {
            awaited.fetch_sub(1, std::memory_order_relaxed);
            while (awaited.load(std::memory_order_relaxed) > 0)
                std::this_thread::yield();
            for (int round = 0; round < Rounds; ++round)
                if (!work(thread, round))
                    failures.fetch_add(1, std::memory_order_relaxed);
        });
    }
    for (std::thread& thread : threads)
        thread.join();
    return failures;
}

int Number(int thread, int round) { return thread * Rounds + round; }

bool LogEvent(int thread, int round)
{
    return TUserDiagnosticLogProxy().AddEntry(DIAG_COMPONENT_CONSOLE, DIAG_TYPE_EVENT, Number(thread, round),
                                              QLatin1String("first"), QLatin1String("second"));
}

bool LogSentence(int thread, int round)
{
    const QByteArray sentence = "$TEST," + QByteArray::number(Number(thread, round)) + "\r\n";
    return TNEMADiagnosticLogProxy().Log(sentence.constData(), static_cast<int>(sentence.size()));
}

bool SelectVehicle(int thread, int)
{
    static const QRegularExpression vehicle(QLatin1String("^Vehicle[0-3]$"));
    TSystemSettingsProxy().SetActiveVehicle(QString::fromLatin1("Vehicle%1").arg(thread));
    return vehicle.match(TSystemSettingsProxy().GetActiveVehicle()).hasMatch();
}

bool ComposeNames(int, int)
{
    static const QRegularExpression vehicle(QLatin1String("/Vehicle[0-3]\\b"));
    static const QRegularExpression line(QLatin1String("^L_[0-9]{6}_[0-9]{4}$"));
    const TSystemSettingsProxy system;
    return vehicle.match(system.GetActiveVehiclePath()).hasMatch() &&
           line.match(system.GetDefaultABLineName()).hasMatch();
}

bool ChooseColour(int thread, int)
{
    TColorSettingsProxy().SetMapColor(QColor(thread, 100, 200));
    const QColor color = TColorSettingsProxy().GetMapColor();
    return color.red() < ThreadCount && color.green() == 100 && color.blue() == 200;
}

std::atomic<int> SwitchedOn{0};

bool SwitchOnAndOff(int, int)
{
    TSystemSettingsProxy system;
    if (!system.UpdateLowRAMRecordingOff(true)) // returns the previous state, which was off
        SwitchedOn.fetch_add(1, std::memory_order_relaxed);
    if (system.UpdateLowRAMRecordingOff(false))
        SwitchedOn.fetch_sub(1, std::memory_order_relaxed);
    return true;
}

bool SetClock(int thread, int)
{
    QTime time(12, 0, 0);
    QDate date(2030 + thread, 6, 15);
    TRegionSettingsProxy region;
    region.SetUTCTimeAndDate(time, date, true);
    const int year = region.GetDate().year();
    return region.IsGPSTimeRecieved() && year >= 2030 && year < 2030 + ThreadCount &&
           region.GetDateTimeString().size() == 11;
}

QStringList TextsOfAllUnits()
{
    QStringList texts;
    for (int number = 0; number < TUnitAbbreviations::UnitCount; ++number) {
        QString value;
        QString unit;
        TUnits::GetValueUnitString(12.345, value, unit, static_cast<EUnitsType>(number), 2, nullptr);
        texts += TUnits::InternalToDisplayableFloatStr(value) + unit;
    }
    return texts;
}

bool ShowValues(int, int) { return TextsOfAllUnits().contains(QLatin1String("12.35ha")); }

} // namespace

/// The façades are called as a display calls them, from all of its threads at the same time.
class FacadesUnderThreads : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void theUserLogHoldsEveryEntryWhole();
    void theNmeaLogHoldsEverySentenceWhole();
    void everyFacadeAnswersWhileOthersAreCalled();

private:
    QStringList LoggedLines(const char* pattern);
    static QStringList AllNumbered(const char* line);

    std::unique_ptr<QTemporaryDir> m_Folder;
    std::unique_ptr<TMemoryStore> m_Store;
    std::unique_ptr<TTerminal> m_Terminal;
};

void FacadesUnderThreads::init()
{
    m_Folder = std::make_unique<QTemporaryDir>();
    m_Store = std::make_unique<TMemoryStore>();
    m_Terminal = std::make_unique<TTerminal>(*m_Store);
    QString error;
    QVERIFY2(m_Terminal->Start(m_Folder->path(), &error), qPrintable(error));
}

void FacadesUnderThreads::cleanup()
{
    m_Terminal.reset();
    m_Store.reset();
}

QStringList FacadesUnderThreads::LoggedLines(const char* pattern)
{
    m_Terminal->Stop(); // writes the staged bytes
    const QDir folder(m_Folder->filePath(QLatin1String("internal/Diagnostics")));
    const QStringList names = folder.entryList(QStringList(QLatin1String(pattern)));
    QFile file(folder.filePath(names.value(0)));
    if (names.size() != 1 || !file.open(QIODevice::ReadOnly))
        return QStringList();
    return QString::fromLatin1(file.readAll()).split(QLatin1String("\r\n"), Qt::SkipEmptyParts);
}

QStringList FacadesUnderThreads::AllNumbered(const char* line)
{
    QStringList lines;
    for (int number = 0; number < ThreadCount * Rounds; ++number)
        lines += QString::fromLatin1(line).arg(number);
    lines.sort();
    return lines;
}

void FacadesUnderThreads::theUserLogHoldsEveryEntryWhole()
{
    QCOMPARE(FailuresInThreads(LogEvent), 0);
    const int stampLength = 24; // "2024.03.05-14:05:09:042,"
    QStringList entries;
    for (const QString& line : LoggedLines("User*.csv"))
        entries += line.mid(stampLength);
    entries.sort();
    QCOMPARE(entries, AllNumbered("Console,Event,%1,first,second"));
}

void FacadesUnderThreads::theNmeaLogHoldsEverySentenceWhole()
{
    QCOMPARE(FailuresInThreads(LogSentence), 0);
    QStringList sentences = LoggedLines("NMEA*.csv");
    sentences.sort();
    QCOMPARE(sentences, AllNumbered("$TEST,%1"));
}

void FacadesUnderThreads::everyFacadeAnswersWhileOthersAreCalled()
{
    const std::vector<FWork> all = {LogEvent,       LogSentence,  SelectVehicle, ComposeNames,
                                    SwitchOnAndOff, ChooseColour, SetClock,      ShowValues};
    // A thread reads what another thread has set.
    QVERIFY(SelectVehicle(0, 0) && ChooseColour(0, 0) && SetClock(0, 0));
    const int failures = FailuresInThreads([&all](int thread, int round) {
        return all[static_cast<std::size_t>(thread + round) % all.size()](thread, round);
    });
    QCOMPARE(failures, 0);
    QCOMPARE(SwitchedOn.load(), 0); // switched on as often as off
}

QTEST_GUILESS_MAIN(FacadesUnderThreads)
#include "FacadesUnderThreads.moc"
