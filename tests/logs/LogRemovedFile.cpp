#include "CoreTest.h"
#include "StandingClock.h"
#include "TLogRoom.h"

#include <QtTest>

/// What a log does when another program removes the file that it has open.
class LogRemovedFile : public QObject
{
    Q_OBJECT

private slots:
    void aQuietLogLosesNoLine_data();
    void aQuietLogLosesNoLine();
    void aBusyLogNoticesWithinASecond();
    void theLogGoesOnInTheFileOfTheSecondWriter();
    void countAndLimitStayAsTheyWere();
    void whatIsStagedGoesToTheOtherFile();
    void withoutAnotherFileTheLogHasFailed();
    void anEmptyWriteLooksToo();
    void aFileThatIsThereIsKept();
    void aFileThatIsThereIsKeptBesideANewerOne();
    void theFileIsLookedAtOnceASecond();
    void aSecondHasAThousandWholeMilliseconds_data();
    void aSecondHasAThousandWholeMilliseconds();
};

namespace {

int Looks = 0; ///< calls of fstat()

const long long Second = 1000000000; // nanoseconds

const int StagingSizes[] = {0, 5, 100};

void Remove(const TLogRoom& room, int number) { QFile::remove(room.Path(TLogRoom::Numbered(number))); }

} // namespace

// Found before that of the C library, by the library under test too.

extern "C" __attribute__((visibility("default"))) int fstat(int file, struct stat* status) noexcept
{
    ++Looks;
    return fstatat(file, "", status, AT_EMPTY_PATH);
}

void LogRemovedFile::aQuietLogLosesNoLine_data()
{
    QTest::addColumn<int>("stagingSize");
    for (const int size : StagingSizes)
        QTest::newRow(QByteArray::number(size).constData()) << size;
}

void LogRemovedFile::aQuietLogLosesNoLine()
{
    QFETCH(int, stagingSize);
    const TLogRoom room;
    TDiagnosticLog log(stagingSize, 100, 4, room.parameter);
    QVERIFY(log.Restore(room.Base(), 0, 0));
    QVERIFY(Log(log, "first\n"));
    log.FlushTempBuffer();
    Remove(room, 1);
    StandingClock::nanoseconds += Second;
    QVERIFY(Log(log, "second\n"));
    log.Close();
    QCOMPARE(room.FileList(), QString::fromLatin1("user00002.log"));
    QCOMPARE(room.Content(2), QByteArray("second\n"));
    QCOMPARE(log.GetState().lostLines, 0LL);
}

void LogRemovedFile::aBusyLogNoticesWithinASecond()
{
    const TLogRoom room;
    TDiagnosticLog log(0, 1000, 4, room.parameter);
    QVERIFY(log.Restore(room.Base(), 0, 0));
    Remove(room, 1);
    int linesBefore = 0;
    for (; room.Files().isEmpty() && linesBefore < 100; ++linesBefore) {
        QVERIFY(Log(log, "line\n"));
        StandingClock::nanoseconds += Second / 10;
    }
    QCOMPARE(linesBefore, 11); // ten in the first second, and the one that went to the next file
    QCOMPARE(room.FileList(), QString::fromLatin1("user00002.log"));
    QCOMPARE(room.Content(2), QByteArray("line\n"));
}

void LogRemovedFile::theLogGoesOnInTheFileOfTheSecondWriter()
{
    const TLogRoom room;
    TDiagnosticLog quiet(0, 10, 2, room.parameter);
    QVERIFY(quiet.Restore(room.Base(), 0, 0));
    TDiagnosticLog busy(0, 10, 2, room.parameter);
    QVERIFY(busy.Restore(room.Base(), 0, 0));
    for (int file = 1; file <= 3; ++file)
        QVERIFY(Log(busy, "more than ten\n"));
    QCOMPARE(room.FileList(), QString::fromLatin1("user00003.log user00004.log"));

    StandingClock::nanoseconds += 5 * Second;
    QVERIFY(Log(quiet, "quiet\n"));
    QCOMPARE(room.FileList(), QString::fromLatin1("user00003.log user00004.log"));
    QCOMPARE(room.Content(4), QByteArray("quiet\n"));
}

void LogRemovedFile::countAndLimitStayAsTheyWere()
{
    const TLogRoom room;
    TDiagnosticLog log(0, 10, 4, room.parameter);
    QVERIFY(log.Restore(room.Base(), 1, 50));
    QVERIFY(Log(log, Bytes(20)));
    QVERIFY(QFile::remove(room.Base()));
    StandingClock::nanoseconds += Second;
    QVERIFY(Log(log, Bytes(40)));
    QCOMPARE(room.FileList(), QString::fromLatin1("user.log"));
    QCOMPARE(room.Content(QLatin1String("user.log")), Bytes(40));
}

void LogRemovedFile::whatIsStagedGoesToTheOtherFile()
{
    const TLogRoom room;
    TDiagnosticLog log(10, 100, 4, room.parameter);
    QVERIFY(log.Restore(room.Base(), 0, 0));
    QVERIFY(Log(log, "staged\n"));
    Remove(room, 1);
    StandingClock::nanoseconds += Second;
    QVERIFY(Log(log, "written\n"));
    QCOMPARE(room.FileList(), QString::fromLatin1("user00002.log"));
    QCOMPARE(room.Content(2), QByteArray("staged\nwritten\n"));
}

void LogRemovedFile::withoutAnotherFileTheLogHasFailed()
{
    const TLogRoom room;
    TDiagnosticLog log(0, 100, 4, room.parameter);
    QVERIFY(log.Restore(room.Base(), 0, 0));
    Remove(room, 1);
    QVERIFY(QDir().rmdir(room.folder.Path(QLatin1String("logs"))));
    StandingClock::nanoseconds += Second;
    QVERIFY(!Log(log, "lost\n"));
    QVERIFY(!log.GetState().isOpen);
    QVERIFY(log.GetState().hasFailed);
    QCOMPARE(log.GetState().lostLines, 1LL);

    room.folder.MakeFolder(QLatin1String("logs"));
    QVERIFY(log.Reopen());
    QVERIFY(Log(log, "kept\n"));
    QCOMPARE(room.Content(2), QByteArray("kept\n"));
}

void LogRemovedFile::anEmptyWriteLooksToo()
{
    const TLogRoom room;
    TDiagnosticLog log(0, 100, 4, room.parameter);
    QVERIFY(log.Restore(room.Base(), 0, 0));
    Remove(room, 1);
    StandingClock::nanoseconds += Second;
    QVERIFY(log.WriteToLog("", 0));
    QCOMPARE(room.FileList(), QString::fromLatin1("user00002.log"));
}

void LogRemovedFile::aFileThatIsThereIsKept()
{
    const TLogRoom room;
    TDiagnosticLog log(0, 100, 4, room.parameter);
    QVERIFY(log.Restore(room.Base(), 0, 0));
    for (int line = 0; line < 3; ++line) {
        StandingClock::nanoseconds += 2 * Second;
        QVERIFY(Log(log, "line\n"));
    }
    QCOMPARE(room.FileList(), QString::fromLatin1("user00001.log"));
    QCOMPARE(room.Content(1), QByteArray("line\nline\nline\n"));
}

void LogRemovedFile::aFileThatIsThereIsKeptBesideANewerOne()
{
    const TLogRoom room;
    TDiagnosticLog log(0, 100, 4, room.parameter);
    QVERIFY(log.Restore(room.Base(), 0, 0));
    room.MakeFile(7, 3, 0);
    room.SetModified(room.Numbered(1), -1);
    StandingClock::nanoseconds += Second;
    QVERIFY(Log(log, "line\n"));
    QCOMPARE(room.Content(1), QByteArray("line\n"));
    QCOMPARE(room.Content(7), QByteArray("xxx"));
}

void LogRemovedFile::theFileIsLookedAtOnceASecond()
{
    const TLogRoom room;
    TDiagnosticLog log(0, 1000, 4, room.parameter);
    QVERIFY(log.Restore(room.Base(), 0, 0));
    Looks = 0;
    for (int line = 0; line < 35; ++line) {
        QVERIFY(Log(log, "line\n"));
        StandingClock::nanoseconds += Second / 10;
    }
    QCOMPARE(Looks, 3);
}

void LogRemovedFile::aSecondHasAThousandWholeMilliseconds_data()
{
    QTest::addColumn<qint64>("opened");
    QTest::addColumn<qint64>("written");
    QTest::addColumn<int>("looks");
    const qint64 ms = 1000000;
    QTest::newRow("999 ms") << 500 * ms << 1499 * ms << 0;
    QTest::newRow("999 ms and a part") << 500 * ms << 1500 * ms - 1 << 0;
    QTest::newRow("1000 ms") << 500 * ms << 1500 * ms << 1;
    QTest::newRow("1000 ms by whole ones") << 500 * ms + ms - 1 << 1500 * ms << 1;
    QTest::newRow("a later second") << 2000 * ms << 3000 * ms << 1;
    QTest::newRow("a later second, 999 ms") << 2001 * ms << 3000 * ms << 0;
}

void LogRemovedFile::aSecondHasAThousandWholeMilliseconds()
{
    QFETCH(qint64, opened);
    QFETCH(qint64, written);
    QFETCH(int, looks);
    const TLogRoom room;
    TDiagnosticLog log(0, 1000, 4, room.parameter);
    const long long start = StandingClock::nanoseconds - StandingClock::nanoseconds % Second;
    StandingClock::nanoseconds = start + opened;
    QVERIFY(log.Restore(room.Base(), 0, 0));
    Looks = 0;
    StandingClock::nanoseconds = start + written;
    QVERIFY(Log(log, "line\n"));
    QCOMPARE(Looks, looks);
}

int main(int argc, char** argv) { return RunCoreTest<LogRemovedFile>(argc, argv); }

#include "LogRemovedFile.moc"
