#include "CoreTest.h"
#include "TLogRoom.h"

#include <QtTest>

class LogEntries : public QObject
{
    Q_OBJECT

private slots:
    void anEntryIsALineWithDateAndTime_data();
    void anEntryIsALineWithDateAndTime();
    void entriesFollowOneAnother();
    void aLineIsStagedAsAWhole();
    void aLineIsNeverSplitBetweenFiles();
};

void LogEntries::anEntryIsALineWithDateAndTime_data()
{
    QTest::addColumn<QDate>("date");
    QTest::addColumn<QTime>("time");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QByteArray>("line");

    const QDate date(2024, 5, 1);
    const QTime time(13, 7, 9, 42);
    const QByteArray stamp = "2024.05.01-13:07:09:042,";
    const struct
    {
        const char* name;
        const char* text;
        const char* logged;
    } rows[] = {
        {"plain", "text", "text"},
        {"empty", "", ""},
        {"commas", "a,b,,c", "a,b,,c"},
        {"blanks", " a b ", " a b "},
        {"line end inside", "a\nb", "a\nb"},
        {"percent", "%1 %s", "%1 %s"},
        {"Latin-1", "Größe 5°", "Gr\366\337e 5\260"},
        {"other letters", "поле 畑", "???? ?"},
    };
    for (const auto& row : rows)
        QTest::newRow(row.name) << date << time << QString::fromUtf8(row.text)
                                << QByteArray(stamp + row.logged + "\r\n");

    const QString a = QLatin1String("a");
    QTest::newRow("midnight") << QDate(2024, 12, 31) << QTime(0, 0, 0, 0) << a
                              << QByteArray("2024.12.31-00:00:00:000,a\r\n");
    QTest::newRow("before midnight") << QDate(1999, 1, 9) << QTime(23, 59, 59, 999) << a
                                     << QByteArray("1999.01.09-23:59:59:999,a\r\n");
    QTest::newRow("one digit each") << QDate(2031, 2, 3) << QTime(4, 5, 6, 7) << a
                                    << QByteArray("2031.02.03-04:05:06:007,a\r\n");
}

void LogEntries::anEntryIsALineWithDateAndTime()
{
    QFETCH(QDate, date);
    QFETCH(QTime, time);
    QFETCH(QString, text);
    QFETCH(QByteArray, line);
    const TLogRoom room;
    TTestClock::date = date;
    TTestClock::time = time;
    TDiagnosticLog log(0, 1024, 4, room.parameter);
    QVERIFY(log.Restore(room.Base(), 0, 0));
    QVERIFY(log.AddEntry(text));
    QCOMPARE(room.Content(1), line);
}

void LogEntries::entriesFollowOneAnother()
{
    const TLogRoom room;
    TDiagnosticLog log(0, 1024, 4, room.parameter);
    QVERIFY(log.Restore(room.Base(), 0, 0));
    QVERIFY(log.AddEntry(QLatin1String("first")));
    TTestClock::time = TTestClock::time.addMSecs(1);
    QVERIFY(log.AddEntry(QLatin1String("second")));
    QCOMPARE(room.Content(1), QByteArray("2024.03.05-14:05:09:042,first\r\n2024.03.05-14:05:09:043,second\r\n"));
}

void LogEntries::aLineIsStagedAsAWhole()
{
    const TLogRoom room;
    const QByteArray line = "2024.03.05-14:05:09:042,ab\r\n";
    TDiagnosticLog log(2 * static_cast<int>(line.size()), 1024, 4, room.parameter);
    QVERIFY(log.Restore(room.Base(), 0, 0));
    QVERIFY(log.AddEntry(QLatin1String("ab")));
    QCOMPARE(room.Content(1), QByteArray());
    QVERIFY(log.AddEntry(QLatin1String("ab")));
    QCOMPARE(room.Content(1), QByteArray(line + line));
}

void LogEntries::aLineIsNeverSplitBetweenFiles()
{
    const TLogRoom room;
    const QByteArray line = "2024.03.05-14:05:09:042,ab\r\n";
    TDiagnosticLog log(0, line.size() + 1, 4, room.parameter);
    QVERIFY(log.Restore(room.Base(), 0, 0));
    for (int entry = 0; entry < 3; ++entry)
        QVERIFY(log.AddEntry(QLatin1String("ab")));
    QCOMPARE(room.Content(1), QByteArray(line + line));
    QCOMPARE(room.Content(2), line);
}

int main(int argc, char** argv) { return RunCoreTest<LogEntries>(argc, argv); }

#include "LogEntries.moc"
