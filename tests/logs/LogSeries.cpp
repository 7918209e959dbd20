#include "CoreTest.h"
#include "Latin1.h"
#include "TLogRoom.h"

#include "logs/TLogSeries.h"

#include <QtTest>

#include <cerrno>
#include <vector>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

/// Which files of a folder a log takes for its own.
class LogSeries : public QObject
{
    Q_OBJECT

private slots:
    void otherFilesDoNotBelongToTheSeries();
    void whatIsNoFileDoesNotBelongToTheSeries_data();
    void whatIsNoFileDoesNotBelongToTheSeries();
    void aLinkToAFileBelongsToTheSeries();
    void hiddenFilesBelongToTheirSeries();
    void aFileIsFoundAmongManyOthers();
    void stemAndExtensionDoNotOverlap();
    void filesWithoutANumberBelongToTheSeries();
    void aStemIsTakenLetterByLetter_data();
    void aStemIsTakenLetterByLetter();
    void theBasePathIsSplitAtItsLastSeparators_data();
    void theBasePathIsSplitAtItsLastSeparators();
    void aSeriesMayLieInTheCurrentFolder();
    void aZeroInThePathLeavesOthersAlone();
    void aZeroInTheFolderReadsNoOther();
    void aFolderThatCannotBeReadIsToldByItsError_data();
    void aFolderThatCannotBeReadIsToldByItsError();
    void aNameThatCannotBeLookedAtStopsTheExport();
};

void LogSeries::otherFilesDoNotBelongToTheSeries()
{
    const TLogRoom room;
    const char* const others[] = {"other00005.log", "user00005.txt", "user00005.log.bak", "auser00005.log", "user.lo",
                                  "use.log",        "ser00005.log",  "user00005log",      "users",          "00005.log",
                                  ".log",           "user"};
    for (const char* other : others)
        room.MakeFile(QLatin1String(other), 500, 1000);
    room.folder.MakeFolder(QLatin1String("logs/user00007.log"));
    room.folder.MakeFile(QLatin1String("logs/deeper/user00009.log"));
    TDiagnosticLog log(0, 10, 2, room.parameter);
    QVERIFY(log.Restore(room.Base(), 0, 0));
    for (int number = 1; number <= 5; ++number)
        QVERIFY(Log(log, Bytes(11)));

    for (const char* other : others)
        QCOMPARE(static_cast<int>(room.Content(QLatin1String(other)).size()), 500);
    QVERIFY(room.folder.Exists(QLatin1String("logs/deeper/user00009.log")));
    QVERIFY(room.folder.Exists(QLatin1String("logs/user00007.log")));
    QVERIFY(room.Files().contains(room.Numbered(5)));
    QVERIFY(room.Files().contains(room.Numbered(6)));
    QVERIFY(!room.Files().contains(room.Numbered(4)));
}

void LogSeries::whatIsNoFileDoesNotBelongToTheSeries_data()
{
    QTest::addColumn<QString>("kind");
    const char* const kinds[] = {"folder", "pipe", "link to nothing", "link to a folder", "name that is no text"};
    for (const char* kind : kinds)
        QTest::newRow(kind) << QString::fromLatin1(kind);
}

void LogSeries::whatIsNoFileDoesNotBelongToTheSeries()
{
    QFETCH(QString, kind);
    const TLogRoom room;
    room.MakeFile(1, 20, 0);
    const QByteArray folder = QFile::encodeName(room.folder.Path(QLatin1String("logs/")));
    const QByteArray name = kind == QLatin1String("name that is no text") ? "user\xFF\xFE.log" : "user00009.log";
    const QByteArray path = folder + name;
    if (kind == QLatin1String("folder"))
        QCOMPARE(mkdir(path.constData(), 0700), 0);
    else if (kind == QLatin1String("pipe"))
        QCOMPARE(mkfifo(path.constData(), 0600), 0);
    else if (kind == QLatin1String("link to nothing"))
        QCOMPARE(symlink("nowhere", path.constData()), 0);
    else if (kind == QLatin1String("link to a folder"))
        QCOMPARE(symlink("..", path.constData()), 0);
    else {
        const int file = open(path.constData(), O_CREAT | O_WRONLY, 0600);
        if (file < 0)
            QSKIP("The disk takes no such name.", SkipSingle);
        close(file);
    }

    TDiagnosticLog log(0, 10, 2, room.parameter);
    QVERIFY(log.Restore(room.Base(), 0, 0));
    QVERIFY(Log(log, "second"));
    const TDiagnosticLog::tagExportResult result = log.Export(room.folder.Path());
    const int removed = ::remove(path.constData());
    QCOMPARE(removed, 0);
    QCOMPARE(room.FileList(), QString::fromLatin1("user00001.log user00002.log"));
    QCOMPARE(room.Content(2), QByteArray("second"));
    QCOMPARE(result.filesFound, 2);
}

void LogSeries::aLinkToAFileBelongsToTheSeries()
{
    const TLogRoom room;
    room.MakeFile(1, 20, 0);
    room.MakeFile(QLatin1String("elsewhere"), 5, 1000);
    QVERIFY(QFile::link(QLatin1String("elsewhere"), room.Path(room.Numbered(4))));
    TDiagnosticLog log(0, 10, 4, room.parameter);
    QVERIFY(log.Restore(room.Base(), 0, 0));
    QVERIFY(Log(log, "new"));
    QCOMPARE(room.Content(QLatin1String("elsewhere")), QByteArray("xxxxxnew"));
}

void LogSeries::hiddenFilesBelongToTheirSeries()
{
    const TLogRoom room;
    room.MakeFile(QLatin1String(".user00004.log"), 5, 0);
    TDiagnosticLog log(0, 10, 2, room.parameter);
    QVERIFY(log.Restore(room.Path(QLatin1String(".user.log")), 0, 0));
    QVERIFY(Log(log, "012345"));
    QVERIFY(Log(log, "new"));
    QCOMPARE(room.FileList(), QString::fromLatin1(".user00004.log .user00005.log"));
    QCOMPARE(room.Content(QLatin1String(".user00005.log")), QByteArray("new"));
}

void LogSeries::aFileIsFoundAmongManyOthers()
{
    const TLogRoom room;
    for (int other = 0; other < 1000; ++other)
        room.folder.MakeFile(QString::fromLatin1("logs/other%1.log").arg(other));
    TDiagnosticLog log(0, 10, 4, room.parameter);
    QVERIFY(log.Restore(room.Base(), 0, 0));
    for (int number = 1; number <= 6; ++number)
        QVERIFY(Log(log, Bytes(11)));
    QCOMPARE(static_cast<int>(room.Files().size()), 1004);
    QCOMPARE(QStringList(room.Files().mid(1000)).join(QLatin1String(" ")),
             QString::fromLatin1("user00004.log user00005.log user00006.log user00007.log"));
}

void LogSeries::stemAndExtensionDoNotOverlap()
{
    const TLogRoom room;
    room.MakeFile(QLatin1String("a.b"), 5, 1000); // starts with the stem "a.b" and ends with the extension ".b"
    TDiagnosticLog log(0, 100, 4, room.parameter);
    QVERIFY(log.Restore(room.Path(QLatin1String("a.b.b")), 0, 0));
    QVERIFY(Log(log, "new"));
    QCOMPARE(room.Content(QLatin1String("a.b00001.b")), QByteArray("new"));
    QCOMPARE(room.Content(QLatin1String("a.b")), QByteArray("xxxxx"));
}

void LogSeries::filesWithoutANumberBelongToTheSeries()
{
    const TLogRoom room;
    room.MakeFile(QLatin1String("userguide.log"), 10, 1);
    room.MakeFile(QLatin1String("user.log"), 10, 2);
    {
        TDiagnosticLog log(0, 100, 2, room.parameter);
        QVERIFY(log.Restore(room.Base(), 0, 0));
        QVERIFY(Log(log, "new"));
        QCOMPARE(room.Content(QLatin1String("user.log")), QByteArray(10, 'x') + "new");
    }
    TDiagnosticLog log(0, 10, 2, room.parameter);
    QVERIFY(log.Restore(room.Base(), 0, 0));
    QCOMPARE(room.FileList(), QString::fromLatin1("user.log user00001.log"));
}

void LogSeries::aStemIsTakenLetterByLetter_data()
{
    QTest::addColumn<QString>("stem");
    QTest::addColumn<QString>("wouldMatch");
    QTest::newRow("any letters") << QString::fromLatin1("a*b") << QString::fromLatin1("axxb00009.log");
    QTest::newRow("any letter") << QString::fromLatin1("a?b") << QString::fromLatin1("axb00009.log");
    QTest::newRow("one of") << QString::fromLatin1("a[xy]b") << QString::fromLatin1("axb00009.log");
    QTest::newRow("all but") << QString::fromLatin1("a[^z]b") << QString::fromLatin1("axb00009.log");
    QTest::newRow("backslash") << QString::fromLatin1("a\\b") << QString::fromLatin1("ab00009.log");
    QTest::newRow("placeholder") << QString::fromLatin1("a%1b") << QString::fromLatin1("a1b00009.log");
    QTest::newRow("open bracket") << QString::fromLatin1("a[b") << QString::fromLatin1("ab00009.log");
    QTest::newRow("other letters") << QString::fromUtf8("größe-畑") << QString::fromUtf8("groesse-畑00009.log");
}

void LogSeries::aStemIsTakenLetterByLetter()
{
    QFETCH(QString, stem);
    QFETCH(QString, wouldMatch);
    const TLogRoom room;
    room.MakeFile(wouldMatch, 5, 1000);
    const QString base = room.Path(stem + QLatin1String(".log"));
    {
        TDiagnosticLog log(0, 10, 2, room.parameter);
        QVERIFY(log.Restore(base, 0, 0));
        for (int number = 1; number <= 4; ++number)
            QVERIFY(Log(log, Bytes(11)));
    }
    QStringList files = QStringList() << stem + QLatin1String("00004.log") << stem + QLatin1String("00005.log")
                                      << wouldMatch;
    files.sort();
    QCOMPARE(room.Files(), files);
    QCOMPARE(static_cast<int>(room.Content(wouldMatch).size()), 5);

    // They are found again.
    TDiagnosticLog log(0, 10, 2, room.parameter);
    QVERIFY(log.Restore(base, 0, 0));
    QVERIFY(Log(log, "new"));
    QCOMPARE(room.Content(stem + QLatin1String("00005.log")), QByteArray("new"));
}

void LogSeries::theBasePathIsSplitAtItsLastSeparators_data()
{
    QTest::addColumn<QString>("base");
    QTest::addColumn<QString>("first");
    QTest::newRow("plain") << QString::fromLatin1("user.log") << QString::fromLatin1("user00001.log");
    QTest::newRow("two dots") << QString::fromLatin1("user.tar.log") << QString::fromLatin1("user.tar00001.log");
    QTest::newRow("no dot") << QString::fromLatin1("user") << QString::fromLatin1("user00001");
    QTest::newRow("dot at the end") << QString::fromLatin1("user.") << QString::fromLatin1("user00001.");
    QTest::newRow("dot at the start") << QString::fromLatin1(".log") << QString::fromLatin1("00001.log");
    QTest::newRow("digits in the stem") << QString::fromLatin1("user7.log") << QString::fromLatin1("user700001.log");
    QTest::newRow("dot in the folder") << QString::fromLatin1("a.b/user") << QString::fromLatin1("a.b/user00001");
    QTest::newRow("folder by a detour") << QString::fromLatin1("a.b/../user.log")
                                        << QString::fromLatin1("user00001.log");
}

void LogSeries::theBasePathIsSplitAtItsLastSeparators()
{
    QFETCH(QString, base);
    QFETCH(QString, first);
    const TLogRoom room;
    room.folder.MakeFolder(QLatin1String("logs/a.b"));
    TDiagnosticLog log(0, 100, 4, room.parameter);
    QVERIFY(log.Restore(room.Path(base), 0, 0));
    QVERIFY(Log(log, "first"));
    QCOMPARE(room.Content(first), QByteArray("first"));
    log.Close();
    QVERIFY(log.Restore(room.Path(base), 0, 0));
    QVERIFY(Log(log, "second"));
    QCOMPARE(room.Content(first), QByteArray("firstsecond"));
}

void LogSeries::aSeriesMayLieInTheCurrentFolder()
{
    const TLogRoom room;
    const QString folderBefore = QDir::currentPath();
    QVERIFY(QDir::setCurrent(room.folder.Path(QLatin1String("logs"))));
    TDiagnosticLog log(0, 10, 2, room.parameter);
    const bool isRestored = log.Restore(QLatin1String("user.log"), 0, 0);
    bool isWritten = true;
    for (int number = 1; number <= 4; ++number)
        isWritten = Log(log, Bytes(11)) && isWritten;
    QDir::setCurrent(folderBefore);
    QVERIFY(isRestored);
    QVERIFY(isWritten);
    QCOMPARE(room.FileList(), QString::fromLatin1("user00004.log user00005.log"));
}

void LogSeries::aZeroInThePathLeavesOthersAlone()
{
    const TLogRoom room;
    room.MakeFile(QLatin1String("almanac.log"), 3, 0);
    TDiagnosticLog log(0, 10, 1000, room.parameter);
    log.Restore(room.Path(QLatin1String("a")) + QChar(0) + QLatin1String("b.log"), 0, 0);
    log.LogDiagnostic("abc", 3);
    log.Close();
    QCOMPARE(room.Content(QLatin1String("almanac.log")), QByteArray("xxx"));
}

void LogSeries::aZeroInTheFolderReadsNoOther()
{
    const TLogRoom room;
    room.MakeFile(1, 3, 0);
    const TLogSeries series(room.folder.Path(QLatin1String("logs")) + QChar(0) + QLatin1String("/user.log"));
    std::vector<TLogSeries::tagFile> files;
    errno = 0;
    const bool isRead = series.ReadFiles(QString(), &files);
    const int error = errno;
    QVERIFY(!isRead);
    QCOMPARE(error, ENOENT);
    QVERIFY(files.empty());
}

void LogSeries::aFolderThatCannotBeReadIsToldByItsError_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<int>("error");
    QTest::newRow("no folder") << Latin1("nowhere/user.log") << ENOENT;
    QTest::newRow("a file") << Latin1("logs/file/user.log") << ENOTDIR;
}

void LogSeries::aFolderThatCannotBeReadIsToldByItsError()
{
    QFETCH(QString, path);
    QFETCH(int, error);
    const TLogRoom room;
    room.MakeFile(Latin1("file"), 3, 0);
    std::vector<TLogSeries::tagFile> files;
    errno = 0;
    const bool isRead = TLogSeries(room.folder.Path(path)).ReadFiles(QString(), &files);
    const int told = errno;
    QVERIFY(!isRead);
    QCOMPARE(told, error);
}

// A file that exists and cannot be looked at may be one with entries. A link to a name that no system takes is such a
// file.
void LogSeries::aNameThatCannotBeLookedAtStopsTheExport()
{
    const TLogRoom room;
    room.MakeFile(1, 3, 0);
    room.MakeFile(2, 3, 1);
    const QByteArray target(300, 'n');
    for (int number : {3, 4}) {
        const QByteArray link = QFile::encodeName(room.Path(room.Numbered(number)));
        QCOMPARE(symlink(target.constData(), link.constData()), 0);
    }
    const TLogSeries series(room.Base());
    std::vector<TLogSeries::tagFile> files;
    const bool isRead = series.ReadFiles(QString(), &files);
    const int error = errno;
    QVERIFY(!isRead);
    QCOMPARE(error, ENAMETOOLONG);
    QCOMPARE(static_cast<int>(files.size()), 2);

    TDiagnosticLog log(0, 1000, 4, room.parameter);
    QVERIFY(log.Restore(room.Base(), 0, 0));
    room.folder.MakeFolder(QLatin1String("stick"));
    const TDiagnosticLog::tagExportResult result = log.Export(room.folder.Path(QLatin1String("stick")));
    QVERIFY(!result.allCopied);
    QCOMPARE(result.filesFound, 0);
}

int main(int argc, char** argv) { return RunCoreTest<LogSeries>(argc, argv); }

#include "LogSeries.moc"
