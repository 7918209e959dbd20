#include "TQuickTerminal.h"

#include "diagnostics/KeptLogs.h"
#include "diagnostics/TLogTail.h"
#include "diagnostics/UserLogEntries.h"

#include <QAbstractItemModel>

/// The newest lines of the logs in QML.
class LogLines : public QObject
{
    Q_OBJECT

private slots:
    void newLinesComeAtTheEnd();
    void theKindChoosesTheLog();
    void theNewestStay();
    void aPausedListStands();
    void whatIsNotPrintedIsABlank();
    void aLineThatIsCutIsMarked();

private:
    static QString Line(const TQuickTerminal& terminal, int row)
    {
        const auto* const model = qobject_cast<QAbstractItemModel*>(terminal.Object());
        return model->index(row, 0).data(model->roleNames().key("line")).toString();
    }

    static QString Last(const TQuickTerminal& terminal)
    {
        return Line(terminal, terminal.Get("self.count").toInt() - 1);
    }

    static void Say(const QString& text)
    {
        AddUserLogEntry(DIAG_COMPONENT_CONSOLE, DIAG_TYPE_EVENT, 0, text, QString());
    }
    static void Say(const char* text) { Say(QString::fromLatin1(text)); }
};

void LogLines::newLinesComeAtTheEnd()
{
    TQuickTerminal terminal;
    Say("first");
    terminal.Load("Log { kind: Log.User }");
    QTRY_VERIFY_WITH_TIMEOUT(Last(terminal).contains(QLatin1String("first")), Patience);
    QSignalSpy resets(terminal.Object(), SIGNAL(modelReset()));
    Say("second");
    QTRY_VERIFY_WITH_TIMEOUT(Last(terminal).contains(QLatin1String("second")), Patience);
    QCOMPARE(resets.size(), 0);
    QCOMPARE(terminal.Text("self.error"), QString());
}

void LogLines::theKindChoosesTheLog()
{
    TQuickTerminal terminal;
    Say("an entry");
    terminal.Load("Log { kind: Log.Nmea }");
    WriteNmeaLine("$GPGLL,,,,,,V,N*64\r\n");
    QTRY_COMPARE_WITH_TIMEOUT(Last(terminal), QLatin1String("$GPGLL,,,,,,V,N*64"),
                              Patience); // staged in memory, and shown
    terminal.Get("self.kind = Log.User");
    QTRY_VERIFY_WITH_TIMEOUT(Last(terminal).contains(QLatin1String("an entry")), Patience);
    terminal.Get("self.kind = Log.Nmea");
    QTRY_COMPARE_WITH_TIMEOUT(terminal.Get("self.count").toInt(), 1, Patience);
    QCOMPARE(Last(terminal), QLatin1String("$GPGLL,,,,,,V,N*64"));
}

void LogLines::theNewestStay()
{
    TQuickTerminal terminal;
    for (int line = 0; line < 1200; ++line)
        WriteNmeaLine("line " + QByteArray::number(line) + "\r\n");
    terminal.Load("Log { kind: Log.Nmea }");
    QTRY_COMPARE_WITH_TIMEOUT(terminal.Get("self.count").toInt(), 500, Patience);
    QCOMPARE(Line(terminal, 0), QLatin1String("line 700"));
    for (int line = 1200; line < 1300; ++line)
        WriteNmeaLine("line " + QByteArray::number(line) + "\r\n");
    QTRY_COMPARE_WITH_TIMEOUT(Last(terminal), QLatin1String("line 1299"), Patience);
    QCOMPARE(terminal.Get("self.count").toInt(), 500);
    QCOMPARE(Line(terminal, 0), QLatin1String("line 800"));
    for (int line = 1300; line < 2300; ++line)
        WriteNmeaLine("line " + QByteArray::number(line) + "\r\n");
    QTRY_COMPARE_WITH_TIMEOUT(Last(terminal), QLatin1String("line 2299"), Patience);
    QCOMPARE(terminal.Get("self.count").toInt(), 500);
    QCOMPARE(Line(terminal, 0), QLatin1String("line 1800"));
}

void LogLines::aPausedListStands()
{
    TQuickTerminal terminal;
    Say("before");
    terminal.Load("Log {}");
    QTRY_VERIFY_WITH_TIMEOUT(Last(terminal).contains(QLatin1String("before")), Patience);
    terminal.Get("self.paused = true");
    Say("meanwhile");
    // A second list shows it while the first one stands.
    const QVariant other = terminal.Get("Qt.createQmlObject('import CabSettings 1.0; Log {}', self)");
    auto* const live = qobject_cast<QAbstractItemModel*>(other.value<QObject*>());
    QVERIFY(live);
    const auto newest = [live] {
        return live->index(live->rowCount() - 1, 0).data(live->roleNames().key("line")).toString();
    };
    QTRY_VERIFY_WITH_TIMEOUT(newest().contains(QLatin1String("meanwhile")), Patience);
    QVERIFY(Last(terminal).contains(QLatin1String("before")));
    terminal.Get("self.paused = false");
    QTRY_VERIFY_WITH_TIMEOUT(Last(terminal).contains(QLatin1String("meanwhile")), Patience);
}

void LogLines::whatIsNotPrintedIsABlank()
{
    TQuickTerminal terminal;
    terminal.Load("Log { kind: Log.Nmea }");
    WriteNmeaLine(QByteArray("a\0b\x1b[31m\x7f c\r\n", 13));
    QTRY_COMPARE_WITH_TIMEOUT(Last(terminal), QLatin1String("a b [31m  c"), Patience);
}

void LogLines::aLineThatIsCutIsMarked()
{
    TQuickTerminal terminal;
    terminal.Load("Log { kind: Log.Nmea }");
    WriteNmeaLine(QByteArray(TLogTail::LongestLine + 1, 'x') + "\r\n");
    QTRY_COMPARE_WITH_TIMEOUT(terminal.Get("self.count").toInt(), 1, Patience);
    QVERIFY(Last(terminal) == QString(TLogTail::LongestLine, QLatin1Char('x')) + TLogTail::CutMark);
}

QTEST_GUILESS_MAIN(LogLines)
#include "LogLines.moc"
