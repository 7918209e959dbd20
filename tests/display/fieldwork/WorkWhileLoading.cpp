#include "TWorkRoom.h"

#include <condition_variable>
#include <cstdarg>
#include <mutex>
#include <string>

#include <dlfcn.h>
#include <fcntl.h>
#include <unistd.h>

namespace {

const int Early = 50;
const int Later = 30;

// Not of Qt, whose own calls come by here.
std::mutex slowMutex;
std::condition_variable slowChanged;
std::string slowPath; // empty: no file is slow

/// A file that its readers wait for until it is let go.
class TSlowFile
{
public:
    explicit TSlowFile(const QString& path) { Set(path.toStdString()); }
    ~TSlowFile() { LetGo(); }

    TSlowFile(const TSlowFile&) = delete;
    TSlowFile& operator=(const TSlowFile&) = delete;

    static void LetGo() { Set(std::string()); }

private:
    static void Set(const std::string& path)
    {
        const std::lock_guard<std::mutex> lock(slowMutex);
        slowPath = path;
        slowChanged.notify_all();
    }
};

using TOpen = int(const char*, int, ...);

int OpenWhenItIsFast(const char* name, const char* path, int flags, mode_t mode)
{
    const auto original = reinterpret_cast<TOpen*>(dlsym(RTLD_NEXT, name));
    if ((flags & O_ACCMODE) == O_RDONLY) {
        std::unique_lock<std::mutex> lock(slowMutex);
        slowChanged.wait(lock, [path] { return slowPath != path; });
    }
    return original(path, flags, mode);
}

/// Begins the work anew, and does not wait for the job.
void Begin(TWorkRoom& room)
{
    room.work.reset();
    room.work = std::make_unique<TWork>(room.terminal.Named("Selections"));
}

void Choose(const TWorkRoom& room, const char* job)
{
    room.terminal.Named("Selections")->setProperty("job", QLatin1String(job));
    QCoreApplication::processEvents();
}

int StripsOfJob(TWorkRoom& room, const char* job)
{
    room.Select("job", job);
    room.Restart(); // from the disk
    return static_cast<int>(room.work->Map()->Strips().size());
}

QString Boundary(const TWorkRoom& room) { return room.FieldFile("Boundaries/F1/F1.bdy"); }

mode_t Mode(int flags, va_list rest)
{
    return (flags & O_CREAT) != 0 ? static_cast<mode_t>(va_arg(rest, unsigned)) : 0;
}

} // namespace

// These take the place of the C library's functions: libraries are built with one or the other.
#pragma GCC visibility push(default)
extern "C" {

int SlowOpen(const char* path, int flags, ...) __asm__("open");
int SlowOpen64(const char* path, int flags, ...) __asm__("open64");

int SlowOpen(const char* path, int flags, ...)
{
    va_list rest;
    va_start(rest, flags);
    const mode_t mode = Mode(flags, rest);
    va_end(rest);
    return OpenWhenItIsFast("open", path, flags, mode);
}

int SlowOpen64(const char* path, int flags, ...)
{
    va_list rest;
    va_start(rest, flags);
    const mode_t mode = Mode(flags, rest);
    va_end(rest);
    return OpenWhenItIsFast("open64", path, flags, mode);
}
}
#pragma GCC visibility pop

/// Ground that is covered while a job is loaded belongs to that job.
class WorkWhileLoading : public QObject
{
    Q_OBJECT

private slots:
    void theGroundIsAddedWhenTheJobIsThere();
    void theGroundIsWhatItWouldHaveBeen();
    void aPauseStaysAPause();
    void eachPieceHasTheWidthOfItsTime();
    void theGroundBelongsToTheJobThatWasChosen();
    void aJobThatIsChosenAgainHasItsGround();
    void groundThatCannotBeStoredIsSaid();
    void theEndOfTheProgramLosesNothing();
    void groundWithoutAJobIsOfNoJob();
    void nothingIsSetThatTheJobWouldReplace();
    void noLineIsChosenThatTheJobWouldReplace();
};

void WorkWhileLoading::theGroundIsAddedWhenTheJobIsThere()
{
    TWorkRoom room;
    room.work->SetWorking(true);
    room.Drive(Later);
    const double before = room.work->Distance();
    TSlowFile slow(Boundary(room));
    Begin(room);
    room.work->SetWorking(true);
    room.Drive(Early);
    QVERIFY(room.work->IsLoading());
    QCOMPARE(room.work->Map()->Strips().size(), 0);
    slow.LetGo();
    room.Load();
    QCOMPARE(room.work->Map()->Strips().size(), Later - 1 + Early - 1);
    QVERIFY(room.work->Distance() > before);
    room.Drive(Later); // joined to the last fix before the job was there
    QCOMPARE(room.work->Map()->Strips().size(), Later - 1 + Early - 1 + Later);
    QCOMPARE(StripsOfJob(room, "J_1"), Later - 1 + Early - 1 + Later);
    QCOMPARE(room.Problems(), QStringList());
}

void WorkWhileLoading::theGroundIsWhatItWouldHaveBeen()
{
    QVector<tagMapStrip> strips[2];
    double areas[2] = {};
    for (const bool isSlow : {false, true}) {
        TWorkRoom room;
        std::unique_ptr<TSlowFile> slow;
        if (isSlow)
            slow = std::make_unique<TSlowFile>(Boundary(room));
        Begin(room);
        if (!isSlow)
            room.Load();
        room.work->SetWorking(true);
        room.Drive(Early);
        QCOMPARE(room.work->IsLoading(), isSlow);
        slow.reset();
        room.Load();
        room.Drive(Later);
        strips[isSlow ? 1 : 0] = room.work->Map()->Strips();
        areas[isSlow ? 1 : 0] = room.work->AreaDone();
    }
    QCOMPARE(strips[0].size(), Early + Later - 1);
    QCOMPARE(strips[1].size(), strips[0].size());
    for (int i = 0; i < strips[0].size(); ++i) {
        for (int corner = 0; corner < 4; ++corner) {
            const auto at = static_cast<std::size_t>(corner);
            QCOMPARE(strips[1].at(i).corners[at].east, strips[0].at(i).corners[at].east);
            QCOMPARE(strips[1].at(i).corners[at].north, strips[0].at(i).corners[at].north);
        }
    }
    QCOMPARE(areas[1], areas[0]);
}

void WorkWhileLoading::aPauseStaysAPause()
{
    TWorkRoom room;
    TSlowFile slow(Boundary(room));
    Begin(room);
    room.Drive(Later);
    room.work->SetWorking(true);
    room.Drive(Early);
    room.work->SetWorking(false);
    room.Drive(Later);
    room.work->SetWorking(true);
    room.Drive(Early);
    room.work->SetWorking(false); // between two fixes
    room.work->SetWorking(true);
    room.Drive(Early);
    room.work->SetWorking(false);
    slow.LetGo();
    room.Load();
    QCOMPARE(room.work->Map()->Strips().size(), 3 * (Early - 1));
    room.work->SetWorking(true);
    room.Drive(Later);
    QCOMPARE(room.work->Map()->Strips().size(), 3 * (Early - 1) + Later - 1);
}

void WorkWhileLoading::eachPieceHasTheWidthOfItsTime()
{
    TWorkRoom room;
    TSlowFile slow(Boundary(room));
    Begin(room);
    room.work->SetWorking(true);
    room.Drive(Early);
    room.work->SetImplementWidth(24);
    room.Drive(Early);
    slow.LetGo();
    room.Load();
    room.Drive(Later);
    const QVector<tagMapStrip>& strips = room.work->Map()->Strips();
    QCOMPARE(strips.size(), Early - 1 + Early - 1 + Later);
    const auto width = [&strips](int at) {
        const auto& corners = strips.at(at).corners;
        return std::hypot(corners[1].east - corners[0].east, corners[1].north - corners[0].north);
    };
    const double millimetre = 0.001;
    QVERIFY(std::abs(width(0) - 12) < millimetre);
    QVERIFY(std::abs(width(Early - 2) - 12) < millimetre);
    QVERIFY(std::abs(width(Early - 1) - 24) < millimetre);
    QVERIFY(std::abs(width(static_cast<int>(strips.size()) - 1) - 24) < millimetre);
    QCOMPARE(room.work->ImplementWidth(), 24.0);
}

void WorkWhileLoading::theGroundBelongsToTheJobThatWasChosen()
{
    TWorkRoom room;
    TSlowFile slow(Boundary(room));
    Begin(room);
    room.work->SetWorking(true);
    room.Drive(Early);
    Choose(room, "J_2"); // J_1 was never there
    room.Drive(Later);
    QVERIFY(room.work->IsLoading());
    slow.LetGo();
    room.Load();
    QCOMPARE(room.work->JobText(), QLatin1String("J_2"));
    QCOMPARE(room.work->Map()->Strips().size(), Later - 1);
    room.work->SetWorking(false);
    QCOMPARE(StripsOfJob(room, "J_1"), Early - 1);
    QCOMPARE(StripsOfJob(room, "J_2"), Later - 1);
}

void WorkWhileLoading::aJobThatIsChosenAgainHasItsGround()
{
    TWorkRoom room;
    TSlowFile slow(Boundary(room));
    Begin(room);
    room.work->SetWorking(true);
    room.Drive(Early);
    Choose(room, "J_2");
    room.Drive(Later);
    Choose(room, "J_1");
    room.Drive(Early);
    QVERIFY(room.work->IsLoading());
    slow.LetGo();
    room.Load();
    QCOMPARE(room.work->JobText(), QLatin1String("J_1"));
    QCOMPARE(room.work->Map()->Strips().size(), 2 * (Early - 1));
    QCOMPARE(StripsOfJob(room, "J_2"), Later - 1);
    QCOMPARE(StripsOfJob(room, "J_1"), 2 * (Early - 1));
}

void WorkWhileLoading::groundThatCannotBeStoredIsSaid()
{
    TWorkRoom room;
    QFile coverage(room.FieldFile("Jobs/J_1/J_1.cov"));
    QVERIFY(QDir().mkpath(QFileInfo(coverage).path()));
    QVERIFY(coverage.open(QIODevice::WriteOnly) && coverage.write("no coverage") > 0);
    coverage.close();
    TSlowFile slow(Boundary(room));
    Begin(room);
    room.work->SetWorking(true);
    room.Drive(Early);
    room.work->SetWorking(false);
    Choose(room, "J_2"); // J_1 was never there
    slow.LetGo();
    QVERIFY(room.HasProblem("what is covered is not stored"));
}

void WorkWhileLoading::theEndOfTheProgramLosesNothing()
{
    TWorkRoom room;
    TSlowFile slow(Boundary(room));
    Begin(room);
    room.work->SetWorking(true);
    room.Drive(Early);
    QVERIFY(room.work->IsLoading());
    slow.LetGo();
    room.work.reset(); // before it has taken the job
    room.Restart();
    QCOMPARE(room.work->Map()->Strips().size(), Early - 1);
}

void WorkWhileLoading::groundWithoutAJobIsOfNoJob()
{
    TWorkRoom room;
    Choose(room, "");
    room.Load();
    TSlowFile slow(Boundary(room));
    Begin(room);
    room.work->SetWorking(true);
    room.Drive(Early);
    QVERIFY(room.work->IsLoading());
    Choose(room, "J_2");
    slow.LetGo();
    room.Load();
    QCOMPARE(room.work->JobText(), QLatin1String("J_2"));
    QCOMPARE(room.work->Map()->Strips().size(), 0);
    QCOMPARE(StripsOfJob(room, "J_1"), 0);
}

void WorkWhileLoading::nothingIsSetThatTheJobWouldReplace()
{
    TWorkRoom room;
    TSlowFile slow(Boundary(room));
    Begin(room);
    room.Drive(1);
    QVERIFY(room.work->HasPosition());
    QVERIFY(!room.work->setA());
    QVERIFY(!room.work->setB());
    QVERIFY(!room.work->mark());
    slow.LetGo();
    room.Load();
    QVERIFY(room.work->HasLine());
    QVERIFY(room.work->setA());
    QVERIFY(room.work->mark());
}

void WorkWhileLoading::noLineIsChosenThatTheJobWouldReplace()
{
    TWorkRoom room;
    room.Drive(1);
    const double offLine = room.work->OffLine();
    QVERIFY(room.work->HasLine() && !std::isnan(offLine));
    TSlowFile slow(Boundary(room));
    Begin(room);
    const QString refusal = room.work->loadLine(QStringLiteral("AB_2"));
    QVERIFY(refusal.contains(QLatin1String("still being read")));
    QCOMPARE(room.work->saveLine(QStringLiteral("AB_2")), refusal);
    QCOMPARE(room.work->clearLine(), refusal);
    const QObject* const selections = room.terminal.Named("Selections");
    QCOMPARE(selections->property("abLine").toString(), QLatin1String(DemoField::Line));
    slow.LetGo();
    room.Load();
    QVERIFY(room.work->HasLine());
    QCOMPARE(room.work->clearLine(), QString());
    QVERIFY(!room.work->HasLine());
    QCOMPARE(room.work->loadLine(QLatin1String(DemoField::Line)), QString());
    QVERIFY(room.work->HasLine());
    QCOMPARE(room.work->loadLine(QStringLiteral("AB_2")), QString()); // the next line's
    QVERIFY(!room.work->HasA());
    QCOMPARE(selections->property("abLine").toString(), QLatin1String("AB_2"));
    QVERIFY(!QFileInfo::exists(TSystemSettingsProxy().GetActiveABLinePath()));
}

QTEST_MAIN(WorkWhileLoading)
#include "WorkWhileLoading.moc"
