#include "CoreTest.h"
#include "TLogRoom.h"

#include <QtTest>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdio>

Q_DECLARE_METATYPE(QList<int>)

class LogRotation : public QObject
{
    Q_OBJECT

private slots:
    void aFilePastItsLimitIsFollowedByTheNext_data();
    void aFilePastItsLimitIsFollowedByTheNext();
    void aRestartGoesOnInTheNewestFileWithRoom_data();
    void aRestartGoesOnInTheNewestFileWithRoom();
    void theOldestFileIsRemovedForANewOne();
    void onlyOneFileIsRemovedForANewOne();
    void thereMayBeFewerFilesThanAllowed();

    void theTimeOfTheLastWriteTellsTheNewest();
    void theTimeOfTheLastWriteTellsTheOldest();
    void atEqualTimesTheNumberTellsTheNewest_data();
    void atEqualTimesTheNumberTellsTheNewest();
    void atEqualTimesTheFileWrittenLastIsTheNewest();
    void aClockSetBackKeepsWhatWasJustWritten();

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

    void countAndLimitHoldUntilTheNextRotation();
    void aCountAndLimitOfZeroAreTheOriginalOnes();
    void anOpenLogIsNotRestored();
    void aClosedLogMayMoveToAnotherSeries();

    void whatASecondWriterAddsIsNotOverwritten();

    void aSingleFileHasNoNumber();
    void aSingleFilePastItsLimitBecomesASeries();
    void aSingleFileByConstructionIsNeverLeft();

    void aMissingFolderKeepsTheLogClosed();
    void aFolderThatIsRemovedClosesTheLogAtTheNextRotation();
    void aFileThatCannotBeOpenedKeepsTheLogClosed();
    void aDeviceNeverFills();
    void aZeroInThePathLeavesOthersAlone();
};

void LogRotation::aFilePastItsLimitIsFollowedByTheNext_data()
{
    QTest::addColumn<QList<int>>("lengths");
    QTest::addColumn<QList<int>>("sizes");

    QTest::newRow("nothing") << QList<int>() << (QList<int>() << 0);
    QTest::newRow("up to the limit") << (QList<int>() << 100) << (QList<int>() << 100);
    QTest::newRow("one past the limit") << (QList<int>() << 101) << (QList<int>() << 101 << 0);
    QTest::newRow("up to the limit by two") << (QList<int>() << 60 << 40) << (QList<int>() << 100);
    QTest::newRow("one past the limit by two") << (QList<int>() << 60 << 41) << (QList<int>() << 101 << 0);
    QTest::newRow("one from the limit on") << (QList<int>() << 100 << 1) << (QList<int>() << 101 << 0);
    QTest::newRow("nothing from the limit on") << (QList<int>() << 100 << 0) << (QList<int>() << 100);
    QTest::newRow("a write is never split") << (QList<int>() << 99 << 250) << (QList<int>() << 349 << 0);
    QTest::newRow("the next write goes to the next file")
        << (QList<int>() << 60 << 60 << 60) << (QList<int>() << 120 << 60);
    QTest::newRow("every write goes to a file of its own")
        << (QList<int>() << 101 << 102 << 103) << (QList<int>() << 101 << 102 << 103 << 0);
}

void LogRotation::aFilePastItsLimitIsFollowedByTheNext()
{
    QFETCH(QList<int>, lengths);
    QFETCH(QList<int>, sizes);
    const TLogRoom room;
    TDiagnosticLog log(0, 100, 9, room.parameter);
    QVERIFY(log.Restore(room.Base(), 0, 0));
    int length = 0;
    for (int next : lengths) {
        QVERIFY(Log(log, Bytes(next, length)));
        length += next;
    }

    QCOMPARE(room.Files().size(), sizes.size());
    int start = 0;
    for (int index = 0; index < static_cast<int>(sizes.size()); ++index) {
        QCOMPARE(room.Content(index + 1), Bytes(sizes[index], start));
        start += sizes[index];
    }
}

void LogRotation::aRestartGoesOnInTheNewestFileWithRoom_data()
{
    QTest::addColumn<int>("size");
    QTest::addColumn<bool>("hasRoom");
    QTest::newRow("empty") << 0 << true;
    QTest::newRow("one below the limit") << 99 << true;
    QTest::newRow("at the limit") << 100 << false;
    QTest::newRow("past the limit") << 101 << false;
}

void LogRotation::aRestartGoesOnInTheNewestFileWithRoom()
{
    QFETCH(int, size);
    QFETCH(bool, hasRoom);
    const TLogRoom room;
    room.MakeFile(1, 200, 1);
    room.MakeFile(2, size, 2);
    TDiagnosticLog log(0, 100, 4, room.parameter);
    QVERIFY(log.Restore(room.Base(), 0, 0));
    QVERIFY(Log(log, "n"));
    const QByteArray old(size, 'x');
    QCOMPARE(room.Content(1), QByteArray(200, 'x'));
    QCOMPARE(room.Content(2), hasRoom ? old + "n" : old);
    QCOMPARE(room.Content(3), hasRoom ? QByteArray() : QByteArray("n"));
    QCOMPARE(room.Files().size(), hasRoom ? 2 : 3);
}

void LogRotation::theOldestFileIsRemovedForANewOne()
{
    const TLogRoom room;
    TDiagnosticLog log(0, 10, 3, room.parameter);
    QVERIFY(log.Restore(room.Base(), 0, 0));
    for (int number = 1; number <= 20; ++number) {
        QCOMPARE(room.Files().last(), room.Numbered(number));
        QCOMPARE(static_cast<int>(room.Files().size()), qMin(number, 3));
        QVERIFY(Log(log, QByteArray("written to ") + QByteArray::number(number)));
    }
    QCOMPARE(room.FileList(), QString::fromLatin1("user00019.log user00020.log user00021.log"));
    QCOMPARE(room.Content(19), QByteArray("written to 19"));
    QCOMPARE(room.Content(20), QByteArray("written to 20"));
    QCOMPARE(room.Content(21), QByteArray());
}

void LogRotation::onlyOneFileIsRemovedForANewOne()
{
    const TLogRoom room;
    for (int number = 1; number <= 6; ++number)
        room.MakeFile(number, 10, number);
    TDiagnosticLog log(0, 10, 3, room.parameter);
    QVERIFY(log.Restore(room.Base(), 0, 0));
    QCOMPARE(room.FileList(), QString::fromLatin1("user00002.log user00003.log user00004.log user00005.log "
                                                  "user00006.log user00007.log"));
}

void LogRotation::thereMayBeFewerFilesThanAllowed()
{
    const TLogRoom room;
    room.MakeFile(5, 10, 5);
    room.MakeFile(6, 10, 6);
    TDiagnosticLog log(0, 10, 4, room.parameter);
    QVERIFY(log.Restore(room.Base(), 0, 0));
    QCOMPARE(room.FileList(), QString::fromLatin1("user00005.log user00006.log user00007.log"));
    QVERIFY(Log(log, Bytes(11)));
    QCOMPARE(room.FileList(), QString::fromLatin1("user00005.log user00006.log user00007.log user00008.log"));
    QVERIFY(Log(log, Bytes(11)));
    QCOMPARE(room.FileList(), QString::fromLatin1("user00006.log user00007.log user00008.log user00009.log"));
}

void LogRotation::theTimeOfTheLastWriteTellsTheNewest()
{
    const TLogRoom room;
    room.MakeFile(3, 10, 900);
    room.MakeFile(8, 10, 100);
    room.MakeFile(5, 10, 500);
    TDiagnosticLog log(0, 100, 4, room.parameter);
    QVERIFY(log.Restore(room.Base(), 0, 0));
    QVERIFY(Log(log, "new"));
    QCOMPARE(room.Content(3), QByteArray(10, 'x') + "new");
}

void LogRotation::theTimeOfTheLastWriteTellsTheOldest()
{
    const TLogRoom room;
    room.MakeFile(3, 10, 300);
    room.MakeFile(4, 10, 100);
    room.MakeFile(8, 10, 500);
    TDiagnosticLog log(0, 10, 3, room.parameter);
    QVERIFY(log.Restore(room.Base(), 0, 0));
    QCOMPARE(room.FileList(), QString::fromLatin1("user00003.log user00008.log user00009.log"));
}

void LogRotation::atEqualTimesTheNumberTellsTheNewest_data()
{
    QTest::addColumn<QStringList>("files");
    QTest::addColumn<QString>("newest");
    QTest::addColumn<QString>("oldest");

    const struct
    {
        const char* name;
        const char* files;
        const char* newest;
        const char* oldest;
    } rows[] = {
        {"one", "user00007.log", "user00007.log", "user00007.log"},
        {"in a row", "user00001.log user00002.log user00003.log", "user00003.log", "user00001.log"},
        {"not in a row", "user00100.log user00020.log user00003.log", "user00100.log", "user00003.log"},
        {"first of a round", "user99998.log user99999.log user00001.log", "user00001.log", "user99998.log"},
        {"second of a round", "user99999.log user00001.log user00002.log", "user00002.log", "user99999.log"},
        {"last of a round", "user99997.log user99998.log user99999.log", "user99999.log", "user99997.log"},
        {"number zero", "user00001.log user00000.log", "user00001.log", "user00000.log"},
        {"no number", "user00001.log userguide.log", "user00001.log", "userguide.log"},
        {"no number in a round", "user99999.log user00001.log userguide.log", "user00001.log", "userguide.log"},
    };
    for (const auto& row : rows) {
        QTest::newRow(row.name) << QString::fromLatin1(row.files).split(QLatin1Char(' '))
                                << QString::fromLatin1(row.newest) << QString::fromLatin1(row.oldest);
    }
}

void LogRotation::atEqualTimesTheNumberTellsTheNewest()
{
    QFETCH(QStringList, files);
    QFETCH(QString, newest);
    QFETCH(QString, oldest);
    const TLogRoom room;
    for (const QString& file : files)
        room.MakeFile(file, 10, 0);
    {
        TDiagnosticLog log(0, 100, 4, room.parameter);
        QVERIFY(log.Restore(room.Base(), 0, 0));
        QVERIFY(Log(log, "new"));
        QCOMPARE(room.Content(newest), QByteArray(10, 'x') + "new");
    }
    room.SetModified(newest, 0);
    TDiagnosticLog log(0, 10, static_cast<int>(files.size()), room.parameter);
    if (files.size() > 1) { // one file is not rotated
        QVERIFY(log.Restore(room.Base(), 0, 0));
        QCOMPARE(static_cast<int>(room.Files().size()), static_cast<int>(files.size()));
        QVERIFY(!room.Files().contains(oldest));
    }
}

void LogRotation::atEqualTimesTheFileWrittenLastIsTheNewest()
{
    const TLogRoom room;
    TDiagnosticLog log(0, 100, 4, room.parameter);
    QVERIFY(log.Restore(room.Base(), 0, 0));
    QVERIFY(Log(log, "first"));
    log.Close();
    room.MakeFile(2, 0, 0);
    room.MakeFile(9, 0, 0);
    room.SetModified(room.Numbered(1), 0);
    QVERIFY(log.Restore(room.Base(), 0, 0));
    QVERIFY(Log(log, "second"));
    QCOMPARE(room.Content(1), QByteArray("firstsecond"));
    log.Close();

    // A file that is newer by its time is the newest all the same.
    room.SetModified(room.Numbered(1), 0);
    room.SetModified(room.Numbered(2), 1);
    QVERIFY(log.Restore(room.Base(), 0, 0));
    QVERIFY(Log(log, "third"));
    QCOMPARE(room.Content(2), QByteArray("third"));
}

void LogRotation::aClockSetBackKeepsWhatWasJustWritten()
{
    const int farAhead = 300000000;
    const TLogRoom room;
    room.MakeFile(1, 20, farAhead);
    room.MakeFile(2, 20, farAhead + 1);
    TDiagnosticLog log(0, 10, 3, room.parameter);
    QVERIFY(log.Restore(room.Base(), 0, 0));
    for (int number = 3; number < 8; ++number) {
        const QByteArray entry = "entry " + QByteArray::number(number) + " is long";
        QVERIFY(Log(log, entry));
        QCOMPARE(room.Content(number), entry);
        QCOMPARE(room.Files().size(), 3);
        QVERIFY(room.Files().contains(room.Numbered(number + 1)));
    }
}

void LogRotation::otherFilesDoNotBelongToTheSeries()
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

void LogRotation::whatIsNoFileDoesNotBelongToTheSeries_data()
{
    QTest::addColumn<QString>("kind");
    const char* const kinds[] = {"folder", "pipe", "link to nothing", "link to a folder", "name that is no text"};
    for (const char* kind : kinds)
        QTest::newRow(kind) << QString::fromLatin1(kind);
}

void LogRotation::whatIsNoFileDoesNotBelongToTheSeries()
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

void LogRotation::aLinkToAFileBelongsToTheSeries()
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

void LogRotation::hiddenFilesBelongToTheirSeries()
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

void LogRotation::aFileIsFoundAmongManyOthers()
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

void LogRotation::stemAndExtensionDoNotOverlap()
{
    const TLogRoom room;
    room.MakeFile(QLatin1String("a.b"), 5, 1000); // starts with the stem "a.b" and ends with the extension ".b"
    TDiagnosticLog log(0, 100, 4, room.parameter);
    QVERIFY(log.Restore(room.Path(QLatin1String("a.b.b")), 0, 0));
    QVERIFY(Log(log, "new"));
    QCOMPARE(room.Content(QLatin1String("a.b00001.b")), QByteArray("new"));
    QCOMPARE(room.Content(QLatin1String("a.b")), QByteArray("xxxxx"));
}

void LogRotation::filesWithoutANumberBelongToTheSeries()
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

void LogRotation::aStemIsTakenLetterByLetter_data()
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

void LogRotation::aStemIsTakenLetterByLetter()
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

void LogRotation::theBasePathIsSplitAtItsLastSeparators_data()
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

void LogRotation::theBasePathIsSplitAtItsLastSeparators()
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

void LogRotation::aSeriesMayLieInTheCurrentFolder()
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

void LogRotation::countAndLimitHoldUntilTheNextRotation()
{
    const TLogRoom room;
    TDiagnosticLog log(0, 100, 4, room.parameter);
    QVERIFY(log.Restore(room.Base(), 2, 10));
    QVERIFY(Log(log, Bytes(10)));
    QVERIFY(Log(log, Bytes(1))); // past 10, and from now on 100 and 4 hold, by which there is room in this file

    QVERIFY(Log(log, Bytes(88)));
    QCOMPARE(room.FileList(), QString::fromLatin1("user00001.log"));
    for (int number = 1; number <= 6; ++number)
        QVERIFY(Log(log, Bytes(101)));
    QCOMPARE(room.FileList(), QString::fromLatin1("user00004.log user00005.log user00006.log user00007.log"));
}

void LogRotation::aCountAndLimitOfZeroAreTheOriginalOnes()
{
    const TLogRoom room;
    TDiagnosticLog log(0, 100, 3, room.parameter);
    QVERIFY(log.Restore(room.Base(), 2, 10));
    log.Close();
    QVERIFY(log.Restore(room.Base(), 0, 0));
    QVERIFY(Log(log, Bytes(50)));
    QCOMPARE(room.FileList(), QString::fromLatin1("user00001.log"));
    for (int number = 1; number <= 6; ++number)
        QVERIFY(Log(log, Bytes(101)));
    QCOMPARE(static_cast<int>(room.Files().size()), 3);

    // Each for itself.
    log.Close();
    QVERIFY(log.Restore(room.Base(), 2, 0));
    log.Close();
    QVERIFY(log.Restore(room.Base(), 0, 1000));
    QVERIFY(Log(log, Bytes(500)));
    QVERIFY(Log(log, "x"));
    QCOMPARE(static_cast<int>(room.Content(room.Files().last()).size()), 501);
}

void LogRotation::anOpenLogIsNotRestored()
{
    const TLogRoom room;
    TDiagnosticLog log(0, 10, 4, room.parameter);
    QVERIFY(log.Restore(room.Base(), 0, 0));
    QVERIFY(!log.Restore(room.Path(QLatin1String("other.log")), 1, 1));
    QVERIFY(Log(log, "0123456789"));
    QCOMPARE(room.FileList(), QString::fromLatin1("user00001.log"));
    QVERIFY(Log(log, "x"));
    QCOMPARE(room.FileList(), QString::fromLatin1("user00001.log user00002.log"));
}

void LogRotation::aClosedLogMayMoveToAnotherSeries()
{
    const TLogRoom room;
    TDiagnosticLog log(0, 10, 4, room.parameter);
    QVERIFY(log.Restore(room.Base(), 0, 0));
    QVERIFY(Log(log, "user"));
    log.Close();
    QVERIFY(log.Restore(room.Path(QLatin1String("other.csv")), 0, 0));
    QVERIFY(Log(log, "other"));
    QCOMPARE(room.Content(1), QByteArray("user"));
    QCOMPARE(room.Content(QLatin1String("other00002.csv")), QByteArray("other"));
}

void LogRotation::whatASecondWriterAddsIsNotOverwritten()
{
    const TLogRoom room;
    TDiagnosticLog log(0, 100, 4, room.parameter);
    QVERIFY(log.Restore(room.Base(), 0, 0));
    TDiagnosticLog second(0, 100, 4, room.parameter);
    QVERIFY(second.Restore(room.Base(), 0, 0));
    QVERIFY(Log(log, "a"));
    QVERIFY(Log(second, "bb"));
    QVERIFY(Log(log, "ccc"));
    QVERIFY(Log(second, "d"));
    QCOMPARE(room.FileList(), QString::fromLatin1("user00001.log"));
    QCOMPARE(room.Content(1), QByteArray("abbcccd"));
}

void LogRotation::aSingleFileHasNoNumber()
{
    const TLogRoom room;
    TDiagnosticLog log(0, 10, 4, room.parameter);
    QVERIFY(log.Restore(room.Base(), 1, 100));
    QVERIFY(Log(log, "first"));
    log.Close();
    QVERIFY(log.Restore(room.Base(), 1, 100));
    QVERIFY(Log(log, "second"));
    QCOMPARE(room.FileList(), QString::fromLatin1("user.log"));
    QCOMPARE(room.Content(QLatin1String("user.log")), QByteArray("firstsecond"));
    QVERIFY(room.store.writes.isEmpty());
}

void LogRotation::aSingleFilePastItsLimitBecomesASeries()
{
    const TLogRoom room;
    TDiagnosticLog log(0, 20, 3, room.parameter);
    QVERIFY(log.Restore(room.Base(), 1, 10));
    QVERIFY(Log(log, Bytes(11))); // 20 bytes and three files from now on: room in this file
    QCOMPARE(room.FileList(), QString::fromLatin1("user.log"));
    QVERIFY(Log(log, Bytes(10)));
    QCOMPARE(room.FileList(), QString::fromLatin1("user.log user00001.log"));
    QCOMPARE(static_cast<int>(room.Content(QLatin1String("user.log")).size()), 21);
    for (int number = 1; number <= 4; ++number)
        QVERIFY(Log(log, Bytes(21)));
    QCOMPARE(room.FileList(), QString::fromLatin1("user00003.log user00004.log user00005.log"));
}

void LogRotation::aSingleFileByConstructionIsNeverLeft()
{
    const TLogRoom room;
    TDiagnosticLog log(0, 10, 1, room.parameter);
    QVERIFY(log.Restore(room.Base(), 0, 0));
    for (int number = 0; number < 5; ++number)
        QVERIFY(Log(log, Bytes(11, 11 * number)));
    QCOMPARE(room.FileList(), QString::fromLatin1("user.log"));
    QCOMPARE(room.Content(QLatin1String("user.log")), Bytes(55));
}

void LogRotation::aMissingFolderKeepsTheLogClosed()
{
    const TLogRoom room;
    TDiagnosticLog log(10, 100, 4, room.parameter);
    QVERIFY(!log.Restore(room.Path(QLatin1String("missing/user.log")), 0, 0));
    QVERIFY(!log.Open());
    QVERIFY(!Log(log, "lost"));
    QVERIFY(!log.AddEntry(QLatin1String("lost")));
    QVERIFY(!log.FlushTempBuffer());
    QCOMPARE(log.GenerateNextFileName(), QString());
    QVERIFY(!log.Restore(room.Path(QLatin1String("missing/user.log")), 1, 0));
    QVERIFY(!Log(log, "lost"));
    QCOMPARE(room.folder.Entries(), QStringList() << QLatin1String("logs/"));
    QVERIFY(room.store.writes.isEmpty());

    // As soon as there is one, it takes entries.
    QVERIFY(log.Restore(room.Base(), 0, 0));
    QVERIFY(Log(log, "kept"));
    log.Close();
    QCOMPARE(room.Content(1), QByteArray("kept"));
}

void LogRotation::aFolderThatIsRemovedClosesTheLogAtTheNextRotation()
{
    const TLogRoom room;
    TDiagnosticLog log(0, 10, 4, room.parameter);
    QVERIFY(log.Restore(room.Base(), 0, 0));
    QVERIFY(QFile::remove(room.Path(room.Numbered(1))));
    QVERIFY(QDir().rmdir(room.folder.Path(QLatin1String("logs"))));
    QVERIFY(Log(log, Bytes(10)));
    QVERIFY(!Log(log, Bytes(1)));
    QVERIFY(!Log(log, "lost"));
    QVERIFY(!log.Open());
    QVERIFY(room.folder.Entries().isEmpty());

    room.folder.MakeFolder(QLatin1String("logs"));
    QVERIFY(log.Restore(room.Base(), 0, 0));
    QVERIFY(Log(log, "kept"));
    QCOMPARE(room.Content(2), QByteArray("kept"));
}

void LogRotation::aFileThatCannotBeOpenedKeepsTheLogClosed()
{
    const TLogRoom room;
    room.folder.MakeFolder(QLatin1String("logs/user00001.log")); // a folder in its place
    TDiagnosticLog log(0, 10, 4, room.parameter);
    QVERIFY(!log.Restore(room.Base(), 0, 0));
    QVERIFY(!Log(log, "lost"));
    QVERIFY(!log.Open());
    QVERIFY(QDir().rmdir(room.Path(QLatin1String("user00001.log"))));
    QVERIFY(log.Open());
    QVERIFY(Log(log, "kept"));
    QCOMPARE(room.Content(1), QByteArray("kept"));
}

void LogRotation::aDeviceNeverFills()
{
    const TLogRoom room;
    QVERIFY(QFile::link(QLatin1String("/dev/null"), room.Path(QLatin1String("silent.log"))));
    TDiagnosticLog log(0, 10, 1, room.parameter);
    QVERIFY(log.Restore(room.Path(QLatin1String("silent.log")), 0, 0));
    for (int line = 0; line < 3; ++line)
        QVERIFY(log.LogDiagnostic("abcdefghijklmnop", 16));
    log.Close();
    QVERIFY(room.Files().isEmpty() || room.FileList() == QLatin1String("silent.log"));
}

void LogRotation::aZeroInThePathLeavesOthersAlone()
{
    const TLogRoom room;
    room.MakeFile(QLatin1String("almanac.log"), 3, 0);
    TDiagnosticLog log(0, 10, 1000, room.parameter);
    log.Restore(room.Path(QLatin1String("a")) + QChar(0) + QLatin1String("b.log"), 0, 0);
    log.LogDiagnostic("abc", 3);
    log.Close();
    QCOMPARE(room.Content(QLatin1String("almanac.log")), QByteArray("xxx"));
}

int main(int argc, char** argv) { return RunCoreTest<LogRotation>(argc, argv); }

#include "LogRotation.moc"
