#include "diagnostics/KeptLogs.h"

#include "diagnostics/UserLogEntries.h"
#include "stores/TMemoryStore.h"
#include "terminal/TTerminal.h"

#include <QTemporaryDir>
#include <QtTest>

#include <memory>

/// The logs of a terminal whose disk takes no file for a while.
class KeptLogs : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_Folder = std::make_unique<QTemporaryDir>(); }

    void theUserLogSaysWhatItLost();
    void theNmeaLogSaysWhatItLost();
    void aTerminalThatStopsSaysIt();

private:
    QString LogPath(const char* name) const
    {
        return m_Folder->filePath(QLatin1String("internal/Diagnostics/") + QLatin1String(name));
    }

    QByteArray Log(const char* name) const
    {
        QFile file(LogPath(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    /// Starts a terminal with a folder in the place of that file.
    bool StartBlocked(TTerminal& terminal, const char* name)
    {
        QString error;
        return m_Folder->isValid() && QDir().mkpath(LogPath(name)) && terminal.Start(m_Folder->path(), &error);
    }

    static bool AddEntry(const char* text)
    {
        return AddUserLogEntry(DIAG_COMPONENT_CONSOLE, DIAG_TYPE_EVENT, 7, QLatin1String(text), QString());
    }

    /// How often a write fails until it succeeds; without an end to it the test runs into its time limit.
    template <class Write>
    static int FailuresOf(Write write)
    {
        int failures = 0;
        for (; !write(); ++failures)
            QTest::qWait(50);
        return failures;
    }

    std::unique_ptr<QTemporaryDir> m_Folder;
};

void KeptLogs::theUserLogSaysWhatItLost()
{
    TMemoryStore store;
    TTerminal terminal(store);
    QVERIFY(StartBlocked(terminal, "User00001.csv"));
    QVERIFY(!AddEntry("lost"));
    QVERIFY(QDir().rmdir(LogPath("User00001.csv")));
    const int lost = 1 + FailuresOf([] { return AddEntry("kept"); });
    const QByteArray log = Log("User00001.csv");
    QCOMPARE(log.count('\n'), 2);
    QVERIFY2(log.contains(",Console,Event,Lines lost," + QByteArray::number(lost) + ",20"), log.constData());
    QVERIFY2(log.endsWith(",Console,Event,7,kept,\r\n"), log.constData());
}

void KeptLogs::theNmeaLogSaysWhatItLost()
{
    TMemoryStore store;
    TTerminal terminal(store);
    QVERIFY(StartBlocked(terminal, "NMEA00001.csv"));
    const QByteArray line = "$GPGGA,1\r\n";
    QCOMPARE(WriteNmeaLine(line), qint64(1));
    QVERIFY(QDir().rmdir(LogPath("NMEA00001.csv")));
    const int lost = 1 + FailuresOf([&line] { return WriteNmeaLine(line) == 0; });
    terminal.Stop();
    const QByteArray log = Log("NMEA00001.csv");
    QVERIFY2(log.contains(",Lines lost," + QByteArray::number(lost) + ",20"), log.constData());
    QVERIFY2(log.endsWith("\r\n" + line), log.constData());
}

void KeptLogs::aTerminalThatStopsSaysIt()
{
    TMemoryStore store;
    TTerminal terminal(store);
    QVERIFY(StartBlocked(terminal, "User00001.csv"));
    QVERIFY(!AddEntry("lost"));
    QVERIFY(QDir().rmdir(LogPath("User00001.csv")));
    terminal.Stop();
    const QByteArray log = Log("User00001.csv");
    QVERIFY2(log.contains(",Console,Event,Lines lost,1,20"), log.constData());
    QCOMPARE(log.count('\n'), 1);
}

QTEST_GUILESS_MAIN(KeptLogs)
#include "KeptLogs.moc"
