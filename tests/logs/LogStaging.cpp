#include "CoreTest.h"
#include "TLogRoom.h"

#include <QtTest>

Q_DECLARE_METATYPE(QList<int>)

class LogStaging : public QObject
{
    Q_OBJECT

private slots:
    void whatFillsTheBufferGoesToTheFile_data();
    void whatFillsTheBufferGoesToTheFile();

    void flushingTellsWhetherAnythingWasWritten_data();
    void flushingTellsWhetherAnythingWasWritten();
    void closingWritesWhatIsStaged();
    void destructionWritesWhatIsStaged();
    void closingWithoutFlushKeepsWhatIsStaged();
    void aFlushOfAClosedLogDropsWhatIsStaged();
    void closingAClosedLogKeepsWhatIsStaged();
    void writingPastTheBufferLeavesItAlone();
    void aClosedLogTakesNothing();
    void aLogThatWasNeverRestoredTakesNothing();
    void aNegativeLengthIsNoEntry();
    void rotationTakesTheStagedBytesFirst();
    void aFullFileWithoutAFolderForTheNextIsTold();
};

namespace {

const long long NoLimit = 1024 * 1024;

} // namespace

void LogStaging::whatFillsTheBufferGoesToTheFile_data()
{
    QTest::addColumn<int>("stagingSize");
    QTest::addColumn<QList<int>>("lengths");
    QTest::addColumn<int>("written");

    QTest::newRow("no buffer") << 0 << (QList<int>() << 3) << 3;
    QTest::newRow("no buffer, nothing") << 0 << (QList<int>() << 0) << 0;
    QTest::newRow("no buffer, several") << 0 << (QList<int>() << 3 << 1 << 2) << 6;
    QTest::newRow("smallest buffer") << 1 << (QList<int>() << 1) << 1;
    QTest::newRow("negative size") << -1 << (QList<int>() << 1) << 1;
    QTest::newRow("one byte left") << 10 << (QList<int>() << 9) << 0;
    QTest::newRow("exactly full") << 10 << (QList<int>() << 10) << 10;
    QTest::newRow("too long") << 10 << (QList<int>() << 11) << 11;
    QTest::newRow("far too long") << 10 << (QList<int>() << 1000) << 1000;
    QTest::newRow("one byte left by two") << 10 << (QList<int>() << 4 << 5) << 0;
    QTest::newRow("exactly full by two") << 10 << (QList<int>() << 4 << 6) << 10;
    QTest::newRow("one byte too many") << 10 << (QList<int>() << 4 << 7) << 11;
    QTest::newRow("last byte") << 10 << (QList<int>() << 9 << 1) << 10;
    QTest::newRow("nothing in the last byte") << 10 << (QList<int>() << 9 << 0) << 0;
    QTest::newRow("empty again after the file") << 10 << (QList<int>() << 4 << 6 << 9) << 10;
    QTest::newRow("full again after the file") << 10 << (QList<int>() << 4 << 6 << 9 << 1) << 20;
    QTest::newRow("byte by byte") << 4 << (QList<int>() << 1 << 1 << 1 << 1 << 1) << 4;
    QTest::newRow("1024 bytes, one left") << 1024 << (QList<int>() << 512 << 511) << 0;
    QTest::newRow("1024 bytes, full") << 1024 << (QList<int>() << 512 << 512) << 1024;
}

void LogStaging::whatFillsTheBufferGoesToTheFile()
{
    QFETCH(int, stagingSize);
    QFETCH(QList<int>, lengths);
    QFETCH(int, written);
    const TLogRoom room;
    TDiagnosticLog log(stagingSize, NoLimit, 4, room.parameter);
    QVERIFY(log.Restore(room.Base(), 0, 0));
    int length = 0;
    for (int next : lengths) {
        QVERIFY(Log(log, Bytes(next, length)));
        length += next;
    }
    QCOMPARE(room.Content(1), Bytes(written));
    log.Close();
    QCOMPARE(room.Content(1), Bytes(length));
}

void LogStaging::flushingTellsWhetherAnythingWasWritten_data()
{
    QTest::addColumn<int>("staged");
    QTest::addColumn<bool>("isWritten");
    QTest::newRow("something") << 5 << true;
    QTest::newRow("nothing") << 0 << false;
}

void LogStaging::flushingTellsWhetherAnythingWasWritten()
{
    QFETCH(int, staged);
    QFETCH(bool, isWritten);
    const TLogRoom room;
    TDiagnosticLog log(10, NoLimit, 4, room.parameter);
    QVERIFY(!log.FlushTempBuffer()); // closed
    QVERIFY(log.Restore(room.Base(), 0, 0));
    QVERIFY(Log(log, Bytes(staged)));
    QCOMPARE(log.FlushTempBuffer(), isWritten);
    QCOMPARE(room.Content(1), Bytes(staged));
    QVERIFY(!log.FlushTempBuffer());
    QCOMPARE(room.Content(1), Bytes(staged));
}

void LogStaging::closingWritesWhatIsStaged()
{
    const TLogRoom room;
    TDiagnosticLog log(10, NoLimit, 4, room.parameter);
    QVERIFY(log.Restore(room.Base(), 0, 0));
    QVERIFY(Log(log, "abc"));
    log.Close();
    QCOMPARE(room.Content(1), QByteArray("abc"));
    QVERIFY(!Log(log, "lost"));
    QVERIFY(log.Open());
    QVERIFY(!log.Open());
    QVERIFY(Log(log, "def"));
    log.Close();
    QCOMPARE(room.Content(1), QByteArray("abcdef"));
}

void LogStaging::destructionWritesWhatIsStaged()
{
    const TLogRoom room;
    {
        TDiagnosticLog log(10, NoLimit, 4, room.parameter);
        QVERIFY(log.Restore(room.Base(), 0, 0));
        QVERIFY(Log(log, "abc"));
    }
    QCOMPARE(room.Content(1), QByteArray("abc"));
}

void LogStaging::closingWithoutFlushKeepsWhatIsStaged()
{
    const TLogRoom room;
    TDiagnosticLog log(10, NoLimit, 4, room.parameter);
    QVERIFY(log.Restore(room.Base(), 0, 0));
    QVERIFY(Log(log, "abc"));
    log.CloseWithoutFlush();
    QCOMPARE(room.Content(1), QByteArray());
    QVERIFY(!Log(log, "lost"));
    QVERIFY(log.Open());
    QVERIFY(Log(log, "def"));
    QVERIFY(log.FlushTempBuffer());
    QCOMPARE(room.Content(1), QByteArray("abcdef"));
}

void LogStaging::aFlushOfAClosedLogDropsWhatIsStaged()
{
    const TLogRoom room;
    TDiagnosticLog log(10, NoLimit, 4, room.parameter);
    QVERIFY(log.Restore(room.Base(), 0, 0));
    QVERIFY(Log(log, "abc"));
    log.CloseWithoutFlush();
    QVERIFY(!log.FlushTempBuffer());
    QVERIFY(log.Open());
    QVERIFY(!log.FlushTempBuffer());
    log.Close();
    QCOMPARE(room.Content(1), QByteArray());
}

void LogStaging::closingAClosedLogKeepsWhatIsStaged()
{
    const TLogRoom room;
    TDiagnosticLog log(10, NoLimit, 4, room.parameter);
    QVERIFY(log.Restore(room.Base(), 0, 0));
    QVERIFY(Log(log, "abc"));
    log.CloseWithoutFlush();
    log.Close();
    log.CloseWithoutFlush();
    QVERIFY(log.Open());
    QVERIFY(log.FlushTempBuffer());
    QCOMPARE(room.Content(1), QByteArray("abc"));
}

void LogStaging::writingPastTheBufferLeavesItAlone()
{
    const TLogRoom room;
    TDiagnosticLog log(10, NoLimit, 4, room.parameter);
    QVERIFY(!log.WriteToLog("x", 1)); // closed
    QVERIFY(log.Restore(room.Base(), 0, 0));
    QVERIFY(Log(log, "abc"));
    QVERIFY(log.WriteToLog("def", 3));
    QCOMPARE(room.Content(1), QByteArray("def"));
    log.Close();
    QCOMPARE(room.Content(1), QByteArray("defabc"));
}

void LogStaging::aClosedLogTakesNothing()
{
    const TLogRoom room;
    TDiagnosticLog log(10, NoLimit, 4, room.parameter);
    QVERIFY(log.Restore(room.Base(), 0, 0));
    log.Close();
    QVERIFY(!Log(log, "lost"));
    QVERIFY(!log.WriteToLog("lost", 4));
    QVERIFY(!log.AddEntry(QLatin1String("lost")));
    QVERIFY(log.Open());
    log.Close();
    QCOMPARE(room.Content(1), QByteArray());
}

void LogStaging::aLogThatWasNeverRestoredTakesNothing()
{
    const TLogRoom room;
    TDiagnosticLog log(10, NoLimit, 4, room.parameter);
    QVERIFY(!log.Open());
    QVERIFY(!Log(log, "lost"));
    QVERIFY(!log.AddEntry(QLatin1String("lost")));
    QVERIFY(!log.FlushTempBuffer());
    QCOMPARE(log.GenerateNextFileName(), QString());
    log.Close();
    log.CloseWithoutFlush();
    QVERIFY(room.Files().isEmpty());
    QVERIFY(room.store.writes.isEmpty());
}

void LogStaging::aNegativeLengthIsNoEntry()
{
    const TLogRoom room;
    TDiagnosticLog log(10, NoLimit, 4, room.parameter);
    QVERIFY(log.Restore(room.Base(), 0, 0));
    QVERIFY(Log(log, "abc"));
    QVERIFY(!log.LogDiagnostic("def", -1));
    QVERIFY(!log.WriteToLog("def", -1));
    QVERIFY(Log(log, "ghi"));
    log.Close();
    QCOMPARE(room.Content(1), QByteArray("abcghi"));
}

void LogStaging::rotationTakesTheStagedBytesFirst()
{
    const TLogRoom room;
    TDiagnosticLog log(10, 12, 4, room.parameter);
    QVERIFY(log.Restore(room.Base(), 0, 0));
    QVERIFY(Log(log, "0123456"));
    QVERIFY(Log(log, "abcdef")); // fills the buffer: both go to the file, which has grown past its limit
    QCOMPARE(room.Content(1), QByteArray("0123456abcdef"));
    QVERIFY(Log(log, "ghi"));
    log.Close();
    QCOMPARE(room.Content(2), QByteArray("ghi"));

    // A close that makes the file grow past its limit starts the next one as well.
    QVERIFY(log.Open());
    QVERIFY(log.WriteToLog("jklmnopq", 8));
    QVERIFY(Log(log, "rstuv"));
    log.Close();
    QCOMPARE(room.Content(2), QByteArray("ghijklmnopqrstuv"));
    QCOMPARE(room.FileList(), QString::fromLatin1("user00001.log user00002.log user00003.log"));
    QVERIFY(log.Open());
    QVERIFY(log.WriteToLog("w", 1));
    QCOMPARE(room.Content(3), QByteArray("w"));
}

void LogStaging::aFullFileWithoutAFolderForTheNextIsTold()
{
    const TLogRoom room;
    TDiagnosticLog log(10, 10, 4, room.parameter);
    QVERIFY(log.Restore(room.Base(), 0, 0));
    QVERIFY(Log(log, Bytes(6))); // staged
    QVERIFY(QFile::remove(room.Path(room.Numbered(1))));
    QVERIFY(QDir(room.folder.Path()).rmdir(QLatin1String("logs")));
    QVERIFY(!Log(log, Bytes(6)));
    QVERIFY(!log.GetState().isOpen);
}

int main(int argc, char** argv) { return RunCoreTest<LogStaging>(argc, argv); }

#include "LogStaging.moc"
