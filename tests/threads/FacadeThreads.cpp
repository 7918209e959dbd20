#include "FacadeThreads.h"

#include "Latin1.h"
#include "LockRecord.h"
#include "TWatchdog.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>

#include <algorithm>
#include <thread>

namespace {

constexpr std::chrono::minutes WatchdogLimit{2}; // under helgrind too, a call takes less than a second

const std::array<const char*, FacadeThreads::Most> ThreadNames = {"thread 0", "thread 1", "thread 2", "thread 3",
                                                                  "thread 4", "thread 5", "thread 6", "thread 7"};

void Work(tagWorker& worker, int rounds, std::vector<tagFacadeCall> calls, const std::vector<tagWork>& works,
          TWatchdog& watchdog)
{
    std::vector<const tagWork*> choice;
    for (const tagWork& work : works)
        choice.insert(choice.end(), static_cast<std::size_t>(work.weight), &work);

    for (int round = 0; round < rounds; ++round) {
        std::shuffle(calls.begin(), calls.end(), worker.random);
        for (const tagFacadeCall& call : calls) {
            watchdog.Begins(worker.number, call.name);
            call.call();
            const tagWork& work = *choice[static_cast<std::size_t>(worker.Draw(static_cast<int>(choice.size())))];
            watchdog.Begins(worker.number, work.name);
            if (!work.work(worker))
                worker.faults += Latin1("thread %1, round %2: %3").arg(worker.number).arg(round).arg(Latin1(work.name));
            worker.calls += 2;
        }
    }
    watchdog.Ends(worker.number);
}

} // namespace

void FacadeThreads::Run(std::vector<tagWorker>& workers, int rounds, const std::vector<tagFacadeCall>& calls,
                        const std::vector<tagWork>& works, void (*begin)(int thread), const char* hint)
{
    TWatchdog watchdog(static_cast<int>(workers.size()), WatchdogLimit, hint);
    std::vector<std::thread> threads;
    for (tagWorker& worker : workers) {
        threads.emplace_back([&worker, &watchdog, &calls, &works, rounds, begin] {
            LockRecord::NameThread(ThreadNames[static_cast<std::size_t>(worker.number)]);
            begin(worker.number);
            Work(worker, rounds, calls, works, watchdog);
        });
    }
    for (std::thread& thread : threads)
        thread.join();
}

QStringList FacadeThreads::LogFiles(const QString& folder, const char* stem)
{
    return QDir(folder).entryList({Latin1(stem) + QLatin1Char('*')}, QDir::Files, QDir::Name);
}

QByteArrayList FacadeThreads::LogLines(const QString& folder, const char* stem)
{
    QByteArrayList lines;
    for (const QString& name : LogFiles(folder, stem)) {
        QFile file(folder + QLatin1Char('/') + name);
        QByteArray content = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("not readable");
        QByteArrayList ofFile = content.replace("\r\n", "\n").split('\n');
        if (!ofFile.takeLast().isEmpty())
            ofFile.append("no line end");
        lines += ofFile;
    }
    return lines;
}

QByteArray FacadeThreads::WithoutStamp(const QByteArray& line)
{
    constexpr int StampLength = 24;
    static const QRegularExpression stamp(Latin1(R"(^\d{4}\.\d\d\.\d\d-\d\d:\d\d:\d\d:\d{3},)"));
    return stamp.match(Latin1(line)).hasMatch() ? line.mid(StampLength) : line;
}

std::array<QByteArrayList, FacadeThreads::Most + 1> FacadeThreads::ByThread(const QByteArrayList& lines)
{
    static const QRegularExpression text(Latin1("(?:^|,)([0-7])-[0-9]+-[a-h]*(?:,|$)"));
    std::array<QByteArrayList, Most + 1> threads;
    for (const QByteArray& line : lines) {
        const QRegularExpressionMatch match = text.match(Latin1(line));
        threads[match.hasMatch() ? match.captured(1).toUInt() : Most] += line;
    }
    return threads;
}
