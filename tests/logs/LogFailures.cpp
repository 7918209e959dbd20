#include "CoreTest.h"
#include "TFileSizeLimit.h"
#include "TLogRoom.h"

#include "logs/TUserDiagnosticLogProxy.h"
#include "settings/TSettings.h"

#include <QtTest>

/// What a log tells of its failures, and how it is opened again.
class LogFailures : public QObject
{
    Q_OBJECT

private slots:
    void aLogThatCannotBeOpenedHasFailed();
    void aMissingFolderIsAFailure();
    void withoutANextFileTheLogHasFailed();
    void aClosedLogHasNotFailed();
    void reopeningTakesNoNumber();
    void lostLinesAreCounted_data();
    void lostLinesAreCounted();
    void linesOfACutOffWriteAreCounted_data();
    void linesOfACutOffWriteAreCounted();
    void onlyWhatIsNotWrittenIsLost_data();
    void onlyWhatIsNotWrittenIsLost();
    void openingAnOpenLogIsNoFailure();
    void theFacadeTellsAndReopens();
};

namespace {

/// "open", "failed" or "closed", and the lines lost.
QString Told(const TDiagnosticLog::tagState& state)
{
    const char* const word = state.isOpen ? "open" : state.hasFailed ? "failed" : "closed";
    return QString::fromLatin1("%1, %2 lost").arg(QString::fromLatin1(word)).arg(state.lostLines);
}

/// Stands in the way of the file of that number.
void Block(const TLogRoom& room, int number) { room.folder.MakeFolder(QLatin1String("logs/") + room.Numbered(number)); }
bool Free(const TLogRoom& room, int number) { return QDir().rmdir(room.Path(room.Numbered(number))); }

} // namespace

void LogFailures::aLogThatCannotBeOpenedHasFailed()
{
    const TLogRoom room;
    Block(room, 1);
    TDiagnosticLog log(0, 10, 4, room.parameter);
    QCOMPARE(Told(log.GetState()), QString::fromLatin1("closed, 0 lost"));
    QVERIFY(!log.Reopen()); // was never restored
    QCOMPARE(Told(log.GetState()), QString::fromLatin1("closed, 0 lost"));
    QVERIFY(!log.Restore(room.Base(), 0, 0));
    QCOMPARE(Told(log.GetState()), QString::fromLatin1("failed, 0 lost"));
    QVERIFY(!log.Reopen());
    QVERIFY(!Log(log, "lost\n"));
    QCOMPARE(Told(log.GetState()), QString::fromLatin1("failed, 1 lost"));

    QVERIFY(Free(room, 1));
    QVERIFY(log.Reopen());
    QCOMPARE(Told(log.GetState()), QString::fromLatin1("open, 1 lost"));
    QVERIFY(!log.Reopen());
    QVERIFY(Log(log, "kept\n"));
    QCOMPARE(room.Content(1), QByteArray("kept\n"));
}

void LogFailures::aMissingFolderIsAFailure()
{
    const TLogRoom room;
    TDiagnosticLog log(0, 10, 4, room.parameter);
    QVERIFY(!log.Restore(room.Path(QLatin1String("missing/user.log")), 0, 0));
    QCOMPARE(Told(log.GetState()), QString::fromLatin1("failed, 0 lost"));
    QVERIFY(!log.Reopen());
    room.folder.MakeFolder(QLatin1String("logs/missing"));
    QVERIFY(log.Reopen());
    QVERIFY(Log(log, "kept\n"));
    QCOMPARE(room.Content(QLatin1String("missing/user00001.log")), QByteArray("kept\n"));
}

void LogFailures::withoutANextFileTheLogHasFailed()
{
    const TLogRoom room;
    TDiagnosticLog log(0, 10, 4, room.parameter);
    QVERIFY(log.Restore(room.Base(), 0, 0));
    Block(room, 2);
    QVERIFY(!Log(log, "past the limit\n")); // is written, but there is no next file
    QCOMPARE(Told(log.GetState()), QString::fromLatin1("failed, 0 lost"));
    QVERIFY(!Log(log, "lost\n"));
    QVERIFY(!log.AddEntry(QLatin1String("lost")));
    QCOMPARE(Told(log.GetState()), QString::fromLatin1("failed, 2 lost"));
    QVERIFY(Free(room, 2));
    QVERIFY(log.Reopen());
    QVERIFY(Log(log, "kept\n"));
    QCOMPARE(room.Content(1), QByteArray("past the limit\n"));
    QCOMPARE(room.Content(2), QByteArray("kept\n"));
    QCOMPARE(Told(log.GetState()), QString::fromLatin1("open, 2 lost"));
}

void LogFailures::aClosedLogHasNotFailed()
{
    const TLogRoom room;
    Block(room, 2);
    TDiagnosticLog log(0, 10, 4, room.parameter);
    QVERIFY(log.Restore(room.Base(), 0, 0));
    log.Close();
    QCOMPARE(Told(log.GetState()), QString::fromLatin1("closed, 0 lost"));
    QVERIFY(!log.Reopen());
    QVERIFY(!Log(log, "lost\n"));
    QCOMPARE(Told(log.GetState()), QString::fromLatin1("closed, 1 lost"));

    QVERIFY(log.Open());
    QVERIFY(!Log(log, "past the limit\n"));
    QCOMPARE(Told(log.GetState()), QString::fromLatin1("failed, 1 lost"));
    log.Close(); // gives up
    QCOMPARE(Told(log.GetState()), QString::fromLatin1("closed, 1 lost"));
    QVERIFY(!log.Reopen());
}

void LogFailures::reopeningTakesNoNumber()
{
    const TLogRoom room;
    Block(room, 1);
    TDiagnosticLog log(0, 10, 4, room.parameter);
    QVERIFY(!log.Restore(room.Base(), 0, 0));
    for (int attempt = 0; attempt < 5; ++attempt)
        QVERIFY(!log.Reopen());
    QCOMPARE(static_cast<int>(room.store.writes.size()), 1);
    QVERIFY(Free(room, 1));
    QVERIFY(log.Reopen());
    QCOMPARE(room.FileList(), QString::fromLatin1("user00001.log"));
}

void LogFailures::lostLinesAreCounted_data()
{
    QTest::addColumn<QByteArray>("data");
    QTest::addColumn<int>("lines");
    QTest::newRow("a line") << QByteArray("abc\r\n") << 1;
    QTest::newRow("two lines") << QByteArray("abc\r\ndef\r\n") << 2;
    QTest::newRow("without an end") << QByteArray("abc") << 1;
    QTest::newRow("a line and a beginning") << QByteArray("abc\ndef") << 2;
    QTest::newRow("an empty line") << QByteArray("\n") << 1;
    QTest::newRow("nothing") << QByteArray() << 0;
}

void LogFailures::lostLinesAreCounted()
{
    QFETCH(QByteArray, data);
    QFETCH(int, lines);
    const TLogRoom room;
    TDiagnosticLog log(20, 10, 4, room.parameter);
    QVERIFY(!Log(log, data));
    QVERIFY(!log.WriteToLog(data.constData(), static_cast<int>(data.size())));
    QCOMPARE(log.GetState().lostLines, 2LL * lines);

    // What was staged is lost when it is dropped.
    QVERIFY(log.Restore(room.Base(), 0, 0));
    QVERIFY(Log(log, data));
    log.CloseWithoutFlush();
    QCOMPARE(log.GetState().lostLines, 2LL * lines);
    QVERIFY(!log.FlushTempBuffer());
    QCOMPARE(log.GetState().lostLines, 3LL * lines);
}

void LogFailures::linesOfACutOffWriteAreCounted_data()
{
    QTest::addColumn<int>("room");
    QTest::addColumn<int>("lost");
    QTest::newRow("no room") << 0 << 4;
    QTest::newRow("half a line") << 2 << 4;
    QTest::newRow("a line") << 4 << 3;
    QTest::newRow("a line and a half") << 6 << 3;
    QTest::newRow("what was staged") << 12 << 1;
    QTest::newRow("half of the last line") << 14 << 1;
    QTest::newRow("all") << 16 << 0;
}

void LogFailures::linesOfACutOffWriteAreCounted()
{
    QFETCH(int, room);
    QFETCH(int, lost);
    const TLogRoom logRoom;
    TDiagnosticLog log(14, 1000, 4, logRoom.parameter);
    QVERIFY(log.Restore(logRoom.Base(), 0, 0));
    {
        const TFileSizeLimit limit(room);
        QVERIFY(limit.IsSet());
        Log(log, "abc\n");
        Log(log, "def\n");
        Log(log, "ghi\n");
        Log(log, "jkl\n"); // does not fit into the buffer: all four are written
    }
    QCOMPARE(log.GetState().lostLines, static_cast<long long>(lost));
    QCOMPARE(log.GetState().isOpen, true);
}

void LogFailures::onlyWhatIsNotWrittenIsLost_data()
{
    QTest::addColumn<int>("stagingSize");
    QTest::addColumn<int>("room");
    QTest::addColumn<int>("lost");
    QTest::newRow("straight to the file, nothing") << 0 << 12 << 3;
    QTest::newRow("straight to the file, a letter") << 0 << 13 << 3;
    QTest::newRow("straight to the file, a line") << 0 << 14 << 2;
    QTest::newRow("straight to the file, two lines") << 0 << 16 << 1;
    QTest::newRow("behind the staged ones, nothing") << 14 << 12 << 3;
    QTest::newRow("behind the staged ones, a letter") << 14 << 13 << 3;
    QTest::newRow("behind the staged ones, a line") << 14 << 14 << 2;
    QTest::newRow("behind the staged ones, two lines") << 14 << 16 << 1;
}

void LogFailures::onlyWhatIsNotWrittenIsLost()
{
    QFETCH(int, stagingSize);
    QFETCH(int, room);
    QFETCH(int, lost);
    const TLogRoom logRoom;
    TDiagnosticLog log(stagingSize, 1000, 4, logRoom.parameter);
    QVERIFY(log.Restore(logRoom.Base(), 0, 0));
    // Lines stand before and behind those that are logged: whoever counts in the wrong place counts these.
    const QByteArray others(40, '\n');
    const QByteArray lines("j\nk\nl\n");
    const QByteArray data = others + lines + others;
    {
        const TFileSizeLimit limit(room);
        QVERIFY(limit.IsSet());
        QVERIFY(Log(log, "abcdefghijk\n"));
        QVERIFY(!log.LogDiagnostic(data.constData() + others.size(), static_cast<int>(lines.size())));
    }
    QCOMPARE(log.GetState().lostLines, static_cast<long long>(lost));
}

void LogFailures::openingAnOpenLogIsNoFailure()
{
    const TLogRoom room;
    TDiagnosticLog log(0, 10, 4, room.parameter);
    QVERIFY(log.Restore(room.Base(), 0, 0));
    QVERIFY(!log.Open());
    QVERIFY(!log.GetState().hasFailed);

    TDiagnosticLog unnamed(0, 10, 4, room.parameter);
    QVERIFY(!unnamed.Open());
    QVERIFY(!unnamed.GetState().hasFailed);
}

void LogFailures::theFacadeTellsAndReopens()
{
    const TLogRoom room;
    TSettings settings;
    Settings = &settings;
    Block(room, 1);
    TUserDiagnosticLogProxy log;
    QVERIFY(!log.Restore(room.Base(), 0, 0));
    QVERIFY(!log.AddEntry(QLatin1String("lost")));
    QCOMPARE(Told(log.GetState()), QString::fromLatin1("failed, 1 lost"));
    QVERIFY(!log.Reopen());
    QVERIFY(Free(room, 1));
    QVERIFY(log.Reopen());
    QVERIFY(log.AddEntry(QLatin1String("kept")));
    QVERIFY(!log.FlushTempBuffer()); // nothing is staged
    QCOMPARE(Told(log.GetState()), QString::fromLatin1("open, 1 lost"));
    QVERIFY(room.Content(1).endsWith(",kept\r\n"));
    Settings = nullptr;
}

int main(int argc, char** argv) { return RunCoreTest<LogFailures>(argc, argv); }

#include "LogFailures.moc"
