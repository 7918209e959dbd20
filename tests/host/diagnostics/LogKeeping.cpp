#include "CoreTest.h"
#include "TFileSizeLimit.h"
#include "TLogRoom.h"

#include "diagnostics/TLogKeeper.h"
#include "logs/TDiagnosticLogProxy.h"

#include <QtTest>

/// How a log that has failed goes on, and what is said in it.
class LogKeeping : public QObject
{
    Q_OBJECT

private slots:
    void aFailedLogGoesOnAndSaysWhatItLost();
    void aLogThatFailedBeforeTheFirstLineLosesNone();
    void attemptsComeSeldomerAndSeldomer_data();
    void attemptsComeSeldomerAndSeldomer();
    void aLineBeforeAMissingNextFileIsNotLost();
    void aFullDiskIsSaidWhenThereIsRoomAgain_data();
    void aFullDiskIsSaidWhenThereIsRoomAgain();
    void theLineThatTellsIsNotCounted();
    void everyLostLineIsCountedOnce_data();
    void everyLostLineIsCountedOnce();
    void aClosedLogStaysClosed();
    void theEndTriesOnceMore();
    void theEndTellsOfStagedLines();
    void theEndKnowsWhatItCouldNotSay();
    void theEndForgets();
};

namespace {

/// A façade of one log, for one thread.
class TPlainProxy : public TDiagnosticLogProxy
{
public:
    using TDiagnosticLogProxy::TDiagnosticLogProxy;
    void Lock() override {}
    void Unlock() override {}
};

/// A keeper with its log, by a clock that stands still.
struct TKeptLog
{
    explicit TKeptLog(int stagingSize = 0, int maxFileSize = 10)
        : log(stagingSize, maxFileSize, 4, TLogRoom::parameter)
        , proxy(log)
        , keeper(&TKeptLog::Say, [this] { return now; })
    {}

    /// "<3 lost, 14:05:09 to 14:05:12>".
    static void Say(TDiagnosticLogProxy& to, const TLogKeeper::tagGap& gap)
    {
        const QString text = QString::fromLatin1("<%1 lost, %2 to %3>\n")
                                 .arg(QString::number(gap.lines), gap.from.time().toString(Qt::ISODate),
                                      gap.to.time().toString(Qt::ISODate));
        const QByteArray line = text.toLatin1();
        to.LogDiagnostic(line.constData(), static_cast<int>(line.size()));
    }

    TLogKeeper::tagResult Write(const QByteArray& line)
    {
        return keeper.Write(proxy, [this, &line] { return Log(log, line); });
    }

    bool IsWritten(const QByteArray& line) { return Write(line).isWritten; }

    void Pass(int milliseconds)
    {
        now += milliseconds;
        TTestClock::time = TTestClock::time.addMSecs(milliseconds);
    }

    TDiagnosticLog log;
    TPlainProxy proxy;
    TLogKeeper keeper;
    qint64 now = 5000000;
};

const int NoLimit = 1000000;

void Block(const TLogRoom& room, int number) { room.folder.MakeFolder(QLatin1String("logs/") + room.Numbered(number)); }
bool Free(const TLogRoom& room, int number) { return QDir().rmdir(room.Path(room.Numbered(number))); }

} // namespace

void LogKeeping::aFailedLogGoesOnAndSaysWhatItLost()
{
    const TLogRoom room;
    TTestClock::time = QTime(14, 5, 9);
    TKeptLog kept;
    QVERIFY(kept.log.Restore(room.Base(), 0, 0));
    Block(room, 2);
    QVERIFY(kept.IsWritten("past the limit\n"));
    QVERIFY(!kept.IsWritten("lost\n")); // tries at once
    kept.Pass(500);
    QVERIFY(!kept.IsWritten("lost\n"));
    kept.Pass(2500);
    QCOMPARE(kept.Write("lost\n").lostLines, qint64(1));
    QVERIFY(Free(room, 2));
    kept.Pass(60000);
    QVERIFY(kept.IsWritten("kept\n"));
    QCOMPARE(room.Content(2), QByteArray("<3 lost, 14:05:09 to 14:05:12>\n"));
    QCOMPARE(room.Content(3), QByteArray("kept\n"));
}

void LogKeeping::aLogThatFailedBeforeTheFirstLineLosesNone()
{
    const TLogRoom room;
    TKeptLog kept;
    Block(room, 1);
    QVERIFY(!kept.log.Restore(room.Base(), 0, 0));
    QVERIFY(Free(room, 1));
    QVERIFY(kept.IsWritten("kept\n"));
    QCOMPARE(room.Content(1), QByteArray("kept\n"));
}

void LogKeeping::attemptsComeSeldomerAndSeldomer_data()
{
    QTest::addColumn<int>("attempts");
    QTest::addColumn<int>("wait");
    const int waits[] = {1000, 2000, 4000, 8000, 16000, 32000, 60000, 60000, 60000};
    int attempts = 0;
    for (const int wait : waits)
        QTest::newRow(QByteArray::number(++attempts).constData()) << attempts << wait;
}

void LogKeeping::attemptsComeSeldomerAndSeldomer()
{
    QFETCH(int, attempts);
    QFETCH(int, wait);
    const TLogRoom room;
    TKeptLog kept(0, NoLimit);
    Block(room, 1);
    QVERIFY(!kept.log.Restore(room.Base(), 0, 0));
    int lost = 0;
    for (int attempt = 1; attempt <= attempts; ++attempt, ++lost) {
        QVERIFY(!kept.IsWritten("lost\n"));
        if (attempt < attempts)
            kept.Pass(60000);
    }
    QVERIFY(Free(room, 1));
    kept.Pass(wait - 1);
    QVERIFY(!kept.IsWritten("too early\n"));
    kept.Pass(1);
    QVERIFY(kept.IsWritten("kept\n"));
    QVERIFY2(room.Content(1).startsWith("<" + QByteArray::number(lost + 1) + " lost, "), room.Content(1).constData());
    QVERIFY(room.Content(1).endsWith(">\nkept\n"));
}

void LogKeeping::aLineBeforeAMissingNextFileIsNotLost()
{
    const TLogRoom room;
    TKeptLog kept;
    QVERIFY(kept.log.Restore(room.Base(), 0, 0));
    Block(room, 2);
    const TLogKeeper::tagResult result = kept.Write("past the limit\n");
    QVERIFY(result.isWritten);
    QCOMPARE(result.lostLines, qint64(0));
    QVERIFY(Free(room, 2));
    QVERIFY(kept.IsWritten("next\n"));
    QCOMPARE(room.Content(1), QByteArray("past the limit\n"));
    QCOMPARE(room.Content(2), QByteArray("next\n"));
}

void LogKeeping::aFullDiskIsSaidWhenThereIsRoomAgain_data()
{
    QTest::addColumn<int>("stagingSize");
    QTest::addColumn<int>("lost"); ///< what is still staged is not lost yet
    QTest::newRow("no buffer") << 0 << 6;
    QTest::newRow("buffer for three lines") << 16 << 4;
}

void LogKeeping::aFullDiskIsSaidWhenThereIsRoomAgain()
{
    QFETCH(int, stagingSize);
    QFETCH(int, lost);
    const TLogRoom room;
    TTestClock::time = QTime(14, 5, 9);
    TKeptLog kept(stagingSize, NoLimit);
    QVERIFY(kept.log.Restore(room.Base(), 0, 0));
    int found = 0;
    {
        const TFileSizeLimit limit(0);
        QVERIFY(limit.IsSet());
        for (int line = 0; line < 6; ++line)
            found += static_cast<int>(kept.Write("lost\n").lostLines);
    }
    QCOMPARE(found, lost);
    kept.Pass(60000);
    QVERIFY(kept.IsWritten("kept\n"));
    kept.log.Close();
    const QByteArray said = "<" + QByteArray::number(lost) + " lost, 14:05:09 to 14:05:09>\n";
    const QByteArray staged = QByteArray("lost\n").repeated(6 - lost);
    QCOMPARE(room.Content(1), QByteArray(staged + said + "kept\n"));
}

void LogKeeping::theLineThatTellsIsNotCounted()
{
    const TLogRoom room;
    TTestClock::time = QTime(14, 5, 9);
    TKeptLog kept(0, NoLimit);
    QVERIFY(kept.log.Restore(room.Base(), 0, 0));
    {
        const TFileSizeLimit limit(0);
        for (int line = 0; line < 5; ++line) {
            QVERIFY(!kept.IsWritten("lost\n"));
            kept.Pass(60000); // time to try to say it
        }
    }
    QVERIFY(kept.IsWritten("kept\n"));
    QCOMPARE(room.Content(1), QByteArray("<5 lost, 14:05:09 to 14:09:09>\nkept\n"));
}

void LogKeeping::everyLostLineIsCountedOnce_data()
{
    QTest::addColumn<int>("stagingSize");
    QTest::newRow("no buffer") << 0;
    QTest::newRow("buffer for three lines") << 16;
    QTest::newRow("buffer for all lines") << 1000;
}

// What the keeper returns, what it says in the log, and what is missing there are the same lines.
void LogKeeping::everyLostLineIsCountedOnce()
{
    QFETCH(int, stagingSize);
    const TLogRoom room;
    TTestClock::time = QTime(14, 5, 9);
    TKeptLog kept(stagingSize, NoLimit);
    QVERIFY(kept.log.Restore(room.Base(), 0, 0));
    const int lines = 11;
    qint64 found = 0;
    {
        const TFileSizeLimit limit(0);
        for (int line = 0; line < lines; ++line) {
            found += kept.Write("lost\n").lostLines;
            kept.Pass(60000); // time to try to say it
        }
    }
    const TLogKeeper::tagEnd end = kept.keeper.Finish(kept.proxy);
    found += end.lostLines;
    QCOMPARE(end.untold.lines, qint64(0));
    const QByteArray content = room.Content(1);
    QCOMPARE(found, qint64(lines - content.count("lost\n")));
    if (found > 0)
        QVERIFY2(content.contains("<" + QByteArray::number(found) + " lost, 14:0"), content.constData());
}

void LogKeeping::aClosedLogStaysClosed()
{
    const TLogRoom room;
    TKeptLog kept(0, NoLimit);
    QVERIFY(kept.log.Restore(room.Base(), 0, 0));
    QVERIFY(kept.IsWritten("first\n"));
    kept.log.Close();
    for (int line = 0; line < 3; ++line) {
        kept.Pass(60000);
        QVERIFY(!kept.IsWritten("lost\n"));
    }
    QVERIFY(!kept.log.GetState().isOpen);
    QCOMPARE(room.Content(1), QByteArray("first\n"));
}

void LogKeeping::theEndTriesOnceMore()
{
    const TLogRoom room;
    TTestClock::time = QTime(14, 5, 9);
    TKeptLog kept(0, NoLimit);
    Block(room, 1);
    QVERIFY(!kept.log.Restore(room.Base(), 0, 0));
    QVERIFY(!kept.IsWritten("lost\n"));
    QVERIFY(Free(room, 1));
    kept.keeper.Finish(kept.proxy); // without the wait
    QCOMPARE(room.Content(1), QByteArray("<1 lost, 14:05:09 to 14:05:09>\n"));
}

void LogKeeping::theEndTellsOfStagedLines()
{
    const TLogRoom room;
    TKeptLog kept(1000, NoLimit);
    QVERIFY(kept.log.Restore(room.Base(), 0, 0));
    QVERIFY(kept.IsWritten("staged\n"));
    QVERIFY(kept.IsWritten("staged\n"));
    const TFileSizeLimit limit(0);
    const TLogKeeper::tagEnd end = kept.keeper.Finish(kept.proxy);
    QCOMPARE(end.lostLines, qint64(2));
    QCOMPARE(end.untold.lines, qint64(2));
}

void LogKeeping::theEndKnowsWhatItCouldNotSay()
{
    const TLogRoom room;
    TTestClock::time = QTime(14, 5, 9);
    TKeptLog kept(0, NoLimit);
    Block(room, 1);
    QVERIFY(!kept.log.Restore(room.Base(), 0, 0));
    QCOMPARE(kept.Write("lost\n").lostLines, qint64(1));
    kept.Pass(3000);
    QCOMPARE(kept.Write("lost\n").lostLines, qint64(1));
    const TLogKeeper::tagEnd end = kept.keeper.Finish(kept.proxy);
    QCOMPARE(end.lostLines, qint64(0));
    QCOMPARE(end.untold.lines, qint64(2));
    QCOMPARE(end.untold.from.time(), QTime(14, 5, 9));
    QCOMPARE(end.untold.to.time(), QTime(14, 5, 12));
}

void LogKeeping::theEndForgets()
{
    const TLogRoom room;
    TKeptLog kept(0, NoLimit);
    QVERIFY(!kept.IsWritten("lost\n")); // was never restored
    kept.keeper.Finish(kept.proxy);
    TDiagnosticLog next(0, NoLimit, 4, room.parameter);
    TPlainProxy proxy(next);
    QVERIFY(next.Restore(room.Base(), 0, 0));
    QVERIFY(kept.keeper.Write(proxy, [&next] { return Log(next, "kept\n"); }).isWritten);
    QCOMPARE(room.Content(1), QByteArray("kept\n"));
}

int main(int argc, char** argv) { return RunCoreTest<LogKeeping>(argc, argv); }

#include "LogKeeping.moc"
