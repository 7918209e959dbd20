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
    void aFileThatIsThereIsKept();
    void theFileIsLookedAtOnceASecond();
};

namespace {

int Looks = 0; ///< calls of fstat()

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
    StandingClock::milliseconds += 1000;
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
        StandingClock::milliseconds += 100;
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

    StandingClock::milliseconds += 5000;
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
    StandingClock::milliseconds += 1000;
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
    StandingClock::milliseconds += 1000;
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
    StandingClock::milliseconds += 1000;
    QVERIFY(!Log(log, "lost\n"));
    QVERIFY(!log.GetState().isOpen);
    QVERIFY(log.GetState().hasFailed);
    QCOMPARE(log.GetState().lostLines, 1LL);

    room.folder.MakeFolder(QLatin1String("logs"));
    QVERIFY(log.Reopen());
    QVERIFY(Log(log, "kept\n"));
    QCOMPARE(room.Content(2), QByteArray("kept\n"));
}

void LogRemovedFile::aFileThatIsThereIsKept()
{
    const TLogRoom room;
    TDiagnosticLog log(0, 100, 4, room.parameter);
    QVERIFY(log.Restore(room.Base(), 0, 0));
    for (int line = 0; line < 3; ++line) {
        StandingClock::milliseconds += 2000;
        QVERIFY(Log(log, "line\n"));
    }
    QCOMPARE(room.FileList(), QString::fromLatin1("user00001.log"));
    QCOMPARE(room.Content(1), QByteArray("line\nline\nline\n"));
}

void LogRemovedFile::theFileIsLookedAtOnceASecond()
{
    const TLogRoom room;
    TDiagnosticLog log(0, 1000, 4, room.parameter);
    QVERIFY(log.Restore(room.Base(), 0, 0));
    Looks = 0;
    for (int line = 0; line < 35; ++line) {
        QVERIFY(Log(log, "line\n"));
        StandingClock::milliseconds += 100;
    }
    QCOMPARE(Looks, 3);
}

int main(int argc, char** argv) { return RunCoreTest<LogRemovedFile>(argc, argv); }

#include "LogRemovedFile.moc"
