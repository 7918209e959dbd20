#include "CoreTest.h"
#include "StandingClock.h"
#include "TLogRoom.h"

#include <QtTest>

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

int main(int argc, char** argv) { return RunCoreTest<LogRotation>(argc, argv); }

#include "LogRotation.moc"
