#include "TTemporaryFolder.h"

#include "diagnostics/LogTimes.h"
#include "logs/TLogSeries.h"

#include <QtTest>

#include <ctime>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr qint64 Milliseconds = 1000;
constexpr qint64 Future = 2114380800; // 2037-01-01, in seconds

QString Text(const char* text) { return QLatin1String(text); }

struct tagRow
{
    const char* name;
    const char* files;   ///< with the seconds since 1970 of their times
    const char* changed; ///< with the milliseconds that they get
    const char* newest;  ///< that the log goes on with
};

constexpr tagRow Rows[] = {
    {"in order", "user00001.log@100 user00002.log@200 user00003.log@300", "", "user00003.log"},
    {"of one time", "user00001.log@100 user00002.log@100 user00003.log@100", "", "user00003.log"},
    {"in order, before 1970", "user00001.log@-300 user00002.log@-200", "", "user00002.log"},
    {"in order, ahead of the clock", "user00001.log@2114380800 user00002.log@2114380900", "", "user00002.log"},
    {"around the last number", "user99998.log@100 user99999.log@200 user00001.log@300", "", "user00001.log"},
    {"the last one is older", "user00001.log@100 user00002.log@200 user00003.log@40", "user00003.log@200001",
     "user00003.log"},
    {"the last two are older", "user00001.log@100 user00002.log@200 user00003.log@40 user00004.log@50",
     "user00003.log@200001 user00004.log@200002", "user00004.log"},
    {"the last one is older and before 1970", "user00001.log@-100 user00002.log@-200", "user00002.log@-99999",
     "user00002.log"},
    {"one in between is older", "user00001.log@100 user00002.log@50 user00003.log@300", "user00002.log@100001",
     "user00003.log"},
    {"the first number is older than the last", "user99999.log@200 user00001.log@100", "user00001.log@200001",
     "user00001.log"},
    {"an old copy with a date", "user00001.log@100 user00002.log@200 user20240501.log@50", "", "user00002.log"},
    {"a date, around the last number", "user99999.log@200 user00001.log@100 user20240501.log@50",
     "user00001.log@200001", "user00001.log"},
    {"a negative number", "user-0001.log@300 user-2147483648.log@250 user00001.log@400", "", "user00001.log"},
    {"the greatest number", "user2147483647.log@50 user00001.log@100 user00002.log@200", "", "user00002.log"},
    {"number zero", "user00000.log@300 user00001.log@100 user00002.log@400", "", "user00002.log"},
    {"past the last number", "user100000.log@50 user99999.log@100", "", "user99999.log"},
    {"a copy with fewer digits", "user1.log@300 user2.log@150 user00001.log@100 user00002.log@400", "",
     "user00002.log"},
    {"a copy with more digits", "user000003.log@50 user00001.log@100 user00002.log@200", "", "user00002.log"},
    {"a sign", "user+0003.log@50 user00001.log@100 user00002.log@200", "", "user00002.log"},
    {"no number", "userguide.log@50 user.log@60 user00001.log@100 user00002.log@200", "", "user00002.log"},
    {"no files", "", "", ""},
};

/// Names with the numbers that stand behind them.
QMap<QString, qint64> Read(const char* words)
{
    QMap<QString, qint64> read;
    const QStringList all = Text(words).split(QLatin1Char(' '), Qt::SkipEmptyParts);
    for (const QString& word : all)
        read.insert(word.section(QLatin1Char('@'), 0, 0), word.section(QLatin1Char('@'), 1).toLongLong());
    return read;
}

void SetTime(const QString& path, qint64 seconds)
{
    const timespec times[] = {{static_cast<time_t>(seconds), 0}, {static_cast<time_t>(seconds), 0}};
    if (utimensat(AT_FDCWD, QFile::encodeName(path).constData(), times, AT_SYMLINK_NOFOLLOW) != 0)
        qFatal("cannot set the time of %s", qPrintable(path));
}

qint64 TimeOf(const QString& path)
{
    struct stat status = {};
    if (lstat(QFile::encodeName(path).constData(), &status) != 0)
        qFatal("no %s", qPrintable(path));
    return status.st_mtim.tv_sec * Milliseconds + status.st_mtim.tv_nsec / 1000000;
}

} // namespace

/// The times of a log's files before the log is opened.
class LogFileTimes : public QObject
{
    Q_OBJECT

private slots:
    void onlyWhatIsOutOfOrderIsChanged_data();
    void onlyWhatIsOutOfOrderIsChanged();
    void linksAreLeftAlone();
    void nothingFollowsAFileThatIsNotOfTheLog();
};

void LogFileTimes::onlyWhatIsOutOfOrderIsChanged_data()
{
    QTest::addColumn<QString>("newest");
    QTest::addColumn<int>("row");
    for (int row = 0; row < static_cast<int>(std::size(Rows)); ++row)
        QTest::newRow(Rows[row].name) << Text(Rows[row].newest) << row;
}

void LogFileTimes::onlyWhatIsOutOfOrderIsChanged()
{
    QFETCH(int, row);
    QFETCH(QString, newest);
    const TTemporaryFolder folder;
    const QMap<QString, qint64> files = Read(Rows[row].files);
    const QMap<QString, qint64> changed = Read(Rows[row].changed);
    for (auto file = files.cbegin(); file != files.cend(); ++file) {
        folder.MakeFile(file.key(), "x");
        SetTime(folder.Path(file.key()), file.value());
    }
    const QString base = folder.Path(Text("user.log"));
    for (int time = 0; time < 2; ++time) { // the second time it has nothing to do
        OrderLogTimes(base);
        for (auto file = files.cbegin(); file != files.cend(); ++file) {
            const qint64 expected = changed.value(file.key(), file.value() * Milliseconds);
            QVERIFY2(TimeOf(folder.Path(file.key())) == expected, qPrintable(file.key()));
        }
    }
    const std::vector<TLogSeries::tagFile> listed = TLogSeries(base).GetFiles();
    QCOMPARE(listed.empty() ? QString() : listed.back().name, newest);
}

void LogFileTimes::linksAreLeftAlone()
{
    const TTemporaryFolder folder;
    for (const char* const name : {"user00001.log", "user00003.log", "elsewhere/kept.txt"})
        folder.MakeFile(Text(name), "x");
    const QString target = folder.Path(Text("elsewhere/kept.txt"));
    const QString link = folder.Path(Text("user00002.log"));
    QCOMPARE(symlink(QFile::encodeName(target).constData(), QFile::encodeName(link).constData()), 0);
    SetTime(folder.Path(Text("user00001.log")), 300);
    SetTime(target, 100);
    SetTime(link, 100);
    SetTime(folder.Path(Text("user00003.log")), 400);
    OrderLogTimes(folder.Path(Text("user.log")));
    QCOMPARE(TimeOf(target), 100 * Milliseconds);
    QCOMPARE(TimeOf(link), 100 * Milliseconds);
    QCOMPARE(TimeOf(folder.Path(Text("user00001.log"))), 300 * Milliseconds);
    QCOMPARE(TimeOf(folder.Path(Text("user00003.log"))), 400 * Milliseconds);

    SetTime(target, Future); // and give nothing to those after them
    OrderLogTimes(folder.Path(Text("user.log")));
    QCOMPARE(TimeOf(target), Future * Milliseconds);
    QCOMPARE(TimeOf(folder.Path(Text("user00003.log"))), 400 * Milliseconds);
}

void LogFileTimes::nothingFollowsAFileThatIsNotOfTheLog()
{
    const TTemporaryFolder folder;
    folder.MakeFolder(Text("user00001.log"));
    folder.MakeFile(Text("user1.log"), "x");
    folder.MakeFile(Text("user00002.log"), "x");
    SetTime(folder.Path(Text("user00001.log")), 500);
    SetTime(folder.Path(Text("user1.log")), 500);
    SetTime(folder.Path(Text("user00002.log")), 400);
    OrderLogTimes(folder.Path(Text("user.log")));
    QCOMPARE(TimeOf(folder.Path(Text("user00002.log"))), 400 * Milliseconds);
}

QTEST_GUILESS_MAIN(LogFileTimes)
#include "LogFileTimes.moc"
