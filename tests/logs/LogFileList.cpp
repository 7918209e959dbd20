#include "CoreTest.h"
#include "Latin1.h"
#include "TLogRoom.h"

#include "logs/TLogSeries.h"

#include <QtTest>

#include <dirent.h>
#include <dlfcn.h>
#include <sys/stat.h>

#include <cerrno>

namespace {

/// The value of errno with which fstatat() fails for the file of this number; 0 when it works.
int statError = 0;
const char* const UnknownFile = "user00002.log";

/// The value of errno with which readdir() fails after this many entries; 0 when it works.
int readError = 0;
int entriesBefore = 0;

} // namespace

/// Takes the place of the C library's function. The name under which a program calls it depends on its file offsets and
/// on its times: both have 64 bits here.
extern "C" __attribute__((visibility("default"))) int fstatat(int folder, const char* name, struct stat* status,
                                                              int flags) noexcept
{
    static const char* const symbol = sizeof(time_t) > sizeof(long) ? "__fstatat64_time64" : "fstatat64";
    static const auto original =
        reinterpret_cast<int (*)(int, const char*, struct stat*, int)>(dlsym(RTLD_NEXT, symbol));
    if (statError != 0 && QByteArray(name) == UnknownFile) {
        errno = statError;
        return -1;
    }
    return original(folder, name, status, flags);
}

extern "C" __attribute__((visibility("default"))) dirent* readdir(DIR* folder)
{
    static const auto original = reinterpret_cast<dirent* (*)(DIR*)>(dlsym(RTLD_NEXT, "readdir64"));
    if (readError != 0 && entriesBefore-- == 0) {
        errno = readError;
        return nullptr;
    }
    return original(folder);
}

/// What a tool learns of the files of a log: the same as the log itself goes by.
class LogFileList : public QObject
{
    Q_OBJECT

private slots:
    void filesAreListedFromTheOldestToTheNewest_data();
    void filesAreListedFromTheOldestToTheNewest();
    void theFileWrittenLastIsTheNewestOfEqualOnes();
    void aFileIsListedWithItsSizeTimeAndNumber();
    void aTimeIsToldInWholeMilliseconds();
    void whatTheListHeldBeforeIsGone();
    void theLogGoesOnInTheLastFileOfTheList_data();
    void theLogGoesOnInTheLastFileOfTheList();
    void aMissingFolderHasNoFiles();
    void aFileOfWhichNothingIsKnownIsMissed_data();
    void aFileOfWhichNothingIsKnownIsMissed();
    void aFolderIsReadToItsEndOrMissed_data();
    void aFolderIsReadToItsEndOrMissed();
    void aLinkToNothingIsNoFile();
    void aNumberIsWrittenInFiveDigits_data();
    void aNumberIsWrittenInFiveDigits();
};

namespace {

/// Makes the files of "user00001.log@5 userguide.log@7", each modified at the given second.
void MakeFiles(const TLogRoom& room, const QString& files)
{
    const QStringList words = files.split(QLatin1Char(' '));
    for (const QString& word : words)
        room.MakeFile(word.section(QLatin1Char('@'), 0, 0), 10, word.section(QLatin1Char('@'), 1).toInt());
}

QString Names(const std::vector<TLogSeries::tagFile>& files)
{
    QStringList names;
    for (const TLogSeries::tagFile& file : files)
        names.append(file.name);
    return names.join(Latin1(" "));
}

const struct
{
    const char* name;
    const char* files;
    const char* oldestFirst;
} Folders[] = {
    {"by time", "user00001.log@3 user00002.log@1 user00003.log@2", "user00002.log user00003.log user00001.log"},
    {"by number at equal times", "user00010.log@1 user00009.log@1 user00011.log@1",
     "user00009.log user00010.log user00011.log"},
    {"round the last number", "user00001.log@1 user99999.log@1 user99998.log@1",
     "user99998.log user99999.log user00001.log"},
    {"round the last number, to zero", "user00000.log@1 user99998.log@1 user00001.log@1",
     "user99998.log user00000.log user00001.log"},
    {"half of all numbers apart", "user00001.log@1 user50000.log@1", "user00001.log user50000.log"},
    {"more than half of them apart", "user00001.log@1 user50001.log@1", "user50001.log user00001.log"},
    {"without a number", "user00001.log@1 userguide.log@1 user.log@1", "user.log userguide.log user00001.log"},
    {"without a number, but newer", "user00001.log@1 userguide.log@2", "user00001.log userguide.log"},
    {"of others", "user00001.log@1 other00002.log@2 user00003.txt@3 user00004.log.bak@4", "user00001.log"},
};

} // namespace

void LogFileList::filesAreListedFromTheOldestToTheNewest_data()
{
    QTest::addColumn<QString>("files");
    QTest::addColumn<QString>("oldestFirst");
    for (const auto& folder : Folders)
        QTest::newRow(folder.name) << Latin1(folder.files) << Latin1(folder.oldestFirst);
}

void LogFileList::filesAreListedFromTheOldestToTheNewest()
{
    QFETCH(QString, files);
    QFETCH(QString, oldestFirst);
    const TLogRoom room;
    MakeFiles(room, files);
    QCOMPARE(Names(TLogSeries(room.Base()).GetFiles()), oldestFirst);
}

void LogFileList::theFileWrittenLastIsTheNewestOfEqualOnes()
{
    const TLogRoom room;
    MakeFiles(room, Latin1("user00001.log@5 user00002.log@5 user00003.log@5"));
    const TLogSeries series(room.Base());
    QCOMPARE(Names(series.GetFiles(series.GetPath(room.Numbered(1)))),
             Latin1("user00002.log user00003.log user00001.log"));
    QCOMPARE(Names(series.GetFiles(Latin1("/elsewhere/user00001.log"))),
             Latin1("user00001.log user00002.log user00003.log"));
}

void LogFileList::aFileIsListedWithItsSizeTimeAndNumber()
{
    const TLogRoom room;
    room.MakeFile(42, 123, 7);
    room.MakeFile(Latin1("user42a.log"), 5, 8);
    const std::vector<TLogSeries::tagFile> files = TLogSeries(room.Base()).GetFiles();
    QCOMPARE(static_cast<int>(files.size()), 2);
    QCOMPARE(files[0].size, qint64(123));
    QCOMPARE(files[0].modified, qint64(1700000007) * 1000);
    QCOMPARE(files[0].number.value_or(-1), 42);
    QVERIFY(!files[1].number);
}

void LogFileList::aTimeIsToldInWholeMilliseconds()
{
    const TLogRoom room;
    room.MakeFile(1, 10, 0);
    const timespec times[2] = {{1700000007, 500000000}, {1700000007, 500000000}};
    QCOMPARE(utimensat(AT_FDCWD, QFile::encodeName(room.Path(room.Numbered(1))).constData(), times, 0), 0);
    QCOMPARE(TLogSeries(room.Base()).GetFiles().front().modified, qint64(1700000007500));
}

void LogFileList::whatTheListHeldBeforeIsGone()
{
    const TLogRoom room;
    MakeFiles(room, Latin1("user00001.log@1"));
    const TLogSeries series(room.Base());
    std::vector<TLogSeries::tagFile> files;
    QVERIFY(series.ReadFiles(QString(), &files));
    QVERIFY(series.ReadFiles(QString(), &files));
    QCOMPARE(Names(files), Latin1("user00001.log"));
}

void LogFileList::theLogGoesOnInTheLastFileOfTheList_data() { filesAreListedFromTheOldestToTheNewest_data(); }

void LogFileList::theLogGoesOnInTheLastFileOfTheList()
{
    QFETCH(QString, files);
    const TLogRoom room;
    MakeFiles(room, files);
    const TLogSeries series(room.Base());
    const TLogSeries::tagFile newest = series.GetFiles().back();
    TDiagnosticLog log(0, 100, 4, room.parameter);
    QVERIFY(log.Restore(room.Base(), 0, 0));
    QVERIFY(Log(log, "new"));
    QCOMPARE(room.Content(newest.name), QByteArray(10, 'x') + "new");
}

void LogFileList::aMissingFolderHasNoFiles()
{
    const TLogRoom room;
    QVERIFY(TLogSeries(room.Base()).HasFolder());
    const TLogSeries missing(room.Path(Latin1("missing/user.log")));
    QVERIFY(!missing.HasFolder());
    QVERIFY(missing.GetFiles().empty());
    std::vector<TLogSeries::tagFile> files;
    QVERIFY(!missing.ReadFiles(QString(), &files));
    QCOMPARE(errno, ENOENT);
}

void LogFileList::aFileOfWhichNothingIsKnownIsMissed_data()
{
    QTest::addColumn<int>("error");
    QTest::addColumn<bool>("isRead");
    QTest::newRow("cannot be read") << EIO << false;
    QTest::newRow("access denied") << EACCES << false;
    QTest::newRow("not permitted") << EPERM << false;
    QTest::newRow("removed meanwhile") << ENOENT << true;
}

void LogFileList::aFileOfWhichNothingIsKnownIsMissed()
{
    QFETCH(int, error);
    QFETCH(bool, isRead);
    const TLogRoom room;
    MakeFiles(room, Latin1("user00001.log@1 user00002.log@2 user00003.log@3"));
    room.folder.MakeFolder(Latin1("stick"));
    TDiagnosticLog log(0, 100, 4, room.parameter);
    QVERIFY(log.Restore(room.Base(), 0, 0));
    std::vector<TLogSeries::tagFile> files;
    statError = error;
    const bool isWhole = TLogSeries(room.Base()).ReadFiles(QString(), &files);
    const int reason = errno;
    const TDiagnosticLog::tagExportResult result = log.ExportFile(room.folder.Path(Latin1("stick")));
    statError = 0;
    QCOMPARE(isWhole, isRead);
    QVERIFY(isRead || reason == error);
    QCOMPARE(Names(files), Latin1("user00001.log user00003.log"));
    QCOMPARE(result.allCopied, isRead);
}

void LogFileList::aFolderIsReadToItsEndOrMissed_data()
{
    QTest::addColumn<int>("before");
    QTest::newRow("nothing is read") << 0;
    QTest::newRow("one entry is read") << 1;
    QTest::newRow("the end is not read") << 5; // behind both folders and three files
}

void LogFileList::aFolderIsReadToItsEndOrMissed()
{
    QFETCH(int, before);
    const TLogRoom room;
    MakeFiles(room, Latin1("user00001.log@1 user00002.log@2 user00003.log@3"));
    std::vector<TLogSeries::tagFile> files;
    entriesBefore = before;
    readError = EIO;
    const bool isRead = TLogSeries(room.Base()).ReadFiles(QString(), &files);
    const int reason = errno;
    readError = 0;
    QVERIFY(!isRead);
    QCOMPARE(reason, EIO);
    QCOMPARE(entriesBefore, -1);
}

void LogFileList::aLinkToNothingIsNoFile()
{
    const TLogRoom room;
    MakeFiles(room, Latin1("user00001.log@1"));
    QVERIFY(QFile::link(room.Path(Latin1("elsewhere")), room.Path(room.Numbered(2))));
    QVERIFY(QFile::link(room.Path(room.Numbered(3)), room.Path(room.Numbered(3))));
    QVERIFY(QFile::link(room.Path(Latin1("user00001.log/below")), room.Path(room.Numbered(4))));
    std::vector<TLogSeries::tagFile> files;
    QVERIFY(TLogSeries(room.Base()).ReadFiles(QString(), &files));
    QCOMPARE(Names(files), Latin1("user00001.log"));
}

void LogFileList::aNumberIsWrittenInFiveDigits_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("next");
    QTest::newRow("first") << 1 << Latin1("user00001.log") << 2;
    QTest::newRow("last but one") << 99998 << Latin1("user99998.log") << 99999;
    QTest::newRow("last") << 99999 << Latin1("user99999.log") << 1;
    QTest::newRow("past the last") << 100000 << Latin1("user100000.log") << 1;
    QTest::newRow("zero") << 0 << Latin1("user00000.log") << 1;
    QTest::newRow("negative") << -7 << Latin1("user000-7.log") << 1;
}

void LogFileList::aNumberIsWrittenInFiveDigits()
{
    QFETCH(int, number);
    QFETCH(QString, name);
    QFETCH(int, next);
    QCOMPARE(TLogSeries(Latin1("/logs/user.log")).GetName(number), name);
    QCOMPARE(TLogSeries::GetNumberAfter(number), next);
}

int main(int argc, char** argv) { return RunCoreTest<LogFileList>(argc, argv); }

#include "LogFileList.moc"
