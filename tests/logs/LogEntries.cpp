#include "CoreTest.h"
#include "TLogRoom.h"

#include <QtTest>

#include <cstdlib>

class LogEntries : public QObject
{
    Q_OBJECT

private slots:
    void anEntryIsALineWithDateAndTime_data();
    void anEntryIsALineWithDateAndTime();
    void oddDatesAndTimesAreWrittenToo_data();
    void oddDatesAndTimesAreWrittenToo();
    void aCharacterIsAByte_data();
    void aCharacterIsAByte();
    void textsOfAnyLengthAreLoggedWhole_data();
    void textsOfAnyLengthAreLoggedWhole();
    void entriesFollowOneAnother();
    void everyEntryHasItsOwnDate();
    void theDateIsAskedBeforeTheTime();
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

void LogEntries::oddDatesAndTimesAreWrittenToo_data()
{
    QTest::addColumn<QDate>("date");
    QTest::addColumn<QTime>("time");
    QTest::addColumn<QByteArray>("stamp");

    const QDate date(2024, 5, 1);
    const QTime time(13, 7, 9, 42);
    QTest::newRow("no date") << QDate() << time << QByteArray("13:07:09:042,");
    QTest::newRow("impossible date") << QDate(2023, 2, 29) << time << QByteArray("13:07:09:042,");
    QTest::newRow("year 0") << QDate(0, 5, 1) << time << QByteArray("13:07:09:042,");
    QTest::newRow("no time") << date << QTime() << QByteArray("2024.05.01-");
    QTest::newRow("impossible time") << date << QTime(24, 0) << QByteArray("2024.05.01-");
    QTest::newRow("neither") << QDate() << QTime() << QByteArray();
    QTest::newRow("first day of all") << QDate(1, 1, 1) << time << QByteArray("0001.01.01-13:07:09:042,");
    QTest::newRow("last day of four digits") << QDate(9999, 12, 31) << time << QByteArray("9999.12.31-13:07:09:042,");
    QTest::newRow("leap day") << QDate(2024, 2, 29) << time << QByteArray("2024.02.29-13:07:09:042,");

    QTest::newRow("year of one digit") << QDate(7, 1, 2) << time << QByteArray("0007.01.02-13:07:09:042,");
    QTest::newRow("year of five digits") << QDate(10000, 1, 1) << time << QByteArray("10000.01.01-13:07:09:042,");
    QTest::newRow("year of six digits") << QDate(123456, 7, 8) << time << QByteArray("123456.07.08-13:07:09:042,");
    QTest::newRow("year -1") << QDate(-1, 12, 31) << time << QByteArray("-0001.12.31-13:07:09:042,");
    QTest::newRow("year -4712") << QDate(-4712, 6, 7) << time << QByteArray("-4712.06.07-13:07:09:042,");
}

void LogEntries::oddDatesAndTimesAreWrittenToo()
{
    QFETCH(QDate, date);
    QFETCH(QTime, time);
    QFETCH(QByteArray, stamp);
    const TLogRoom room;
    TTestClock::date = date;
    TTestClock::time = time;
    TDiagnosticLog log(0, 1024, 4, room.parameter);
    QVERIFY(log.Restore(room.Base(), 0, 0));
    QVERIFY(log.AddEntry(QLatin1String("a")));
    QCOMPARE(room.Content(1), QByteArray(stamp + "a\r\n"));
}

void LogEntries::aCharacterIsAByte_data()
{
    QTest::addColumn<QString>("letter");
    QTest::addColumn<QByteArray>("byte");
    QTest::newRow("NUL") << QString(QChar(0)) << QByteArray(1, '\0');
    QTest::newRow("control") << QString(QChar(0x1F)) << QByteArray("\x1F");
    QTest::newRow("U+007F") << QString(QChar(0x7F)) << QByteArray("\x7F");
    QTest::newRow("U+0080") << QString(QChar(0x80)) << QByteArray("\x80");
    QTest::newRow("U+00FF") << QString(QChar(0xFF)) << QByteArray("\xFF");
    QTest::newRow("U+0100") << QString(QChar(0x100)) << QByteArray("?");
    QTest::newRow("U+0141") << QString(QChar(0x141)) << QByteArray("?");
    QTest::newRow("U+FFFF") << QString(QChar(0xFFFF)) << QByteArray("?");
    QTest::newRow("surrogate pair") << QString::fromUtf8("🚜") << QByteArray("??");
    QTest::newRow("half a pair") << QString(QChar(0xD83D)) << QByteArray("?");
    QTest::newRow("combining") << QString::fromUtf8("e\u0301") << QByteArray("e?");
}

void LogEntries::aCharacterIsAByte()
{
    QFETCH(QString, letter);
    QFETCH(QByteArray, byte);
    const TLogRoom room;
    TDiagnosticLog log(0, 1024 * 1024, 4, room.parameter);
    QVERIFY(log.Restore(room.Base(), 0, 0));
    QByteArray lines;
    for (int place = 0; place <= 20; ++place) { // at every place of a text
        const QString before(place, QLatin1Char('b'));
        const QString after(20 - place, QLatin1Char('a'));
        QVERIFY(log.AddEntry(before + letter + after));
        lines += "2024.03.05-14:05:09:042," + before.toLatin1() + byte + after.toLatin1() + "\r\n";
    }
    QCOMPARE(room.Content(1), lines);
}

void LogEntries::textsOfAnyLengthAreLoggedWhole_data()
{
    QTest::addColumn<int>("stagingSize");
    QTest::newRow("no buffer") << 0;
    QTest::newRow("buffer") << 300;
}

void LogEntries::textsOfAnyLengthAreLoggedWhole()
{
    QFETCH(int, stagingSize);
    const TLogRoom room;
    TDiagnosticLog log(stagingSize, 64 * 1024 * 1024, 4, room.parameter);
    QVERIFY(log.Restore(room.Base(), 0, 0));
    QByteArray lines;
    for (int length = 0; length < 600; ++length) {
        const QByteArray text = Bytes(length, length);
        QVERIFY(log.AddEntry(QString::fromLatin1(text.constData(), length)));
        lines += "2024.03.05-14:05:09:042," + text + "\r\n";
    }
    const QByteArray longText = Bytes(1000000);
    QVERIFY(log.AddEntry(QString::fromLatin1(longText.constData(), 1000000)));
    log.Close();
    QVERIFY(room.Content(1) == QByteArray(lines + "2024.03.05-14:05:09:042," + longText + "\r\n"));
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

void LogEntries::everyEntryHasItsOwnDate()
{
    const TLogRoom room;
    TDiagnosticLog log(0, 1024, 4, room.parameter);
    QVERIFY(log.Restore(room.Base(), 0, 0));
    const QDate dates[] = {QDate(),           QDate(2024, 3, 5), QDate(2024, 3, 5), QDate(2024, 3, 6),
                           QDate(2024, 3, 5), QDate(),           QDate(2024, 3, 5)};
    QByteArray lines;
    for (const QDate& date : dates) {
        TTestClock::date = date;
        QVERIFY(log.AddEntry(QLatin1String("a")));
        lines += date.isValid() ? "2024.03.0" + QByteArray::number(date.day()) + '-' : QByteArray();
        lines += "14:05:09:042,a\r\n";
    }
    QCOMPARE(room.Content(1), lines);
}

/// A midnight between the two makes an entry a day too old, never a day too new.
void LogEntries::theDateIsAskedBeforeTheTime()
{
    const TLogRoom room;
    TDiagnosticLog log(0, 1024, 4, room.parameter);
    QVERIFY(log.Restore(room.Base(), 0, 0));
    QStringList calls;
    TTestClock::onCall = [&calls](const QString& call) { calls.append(call); };
    const bool isLogged = log.AddEntry(QLatin1String("a"));
    TTestClock::onCall = nullptr;
    QVERIFY(isLogged);
    QCOMPARE(calls, QStringList() << QLatin1String("currentDate") << QLatin1String("currentTime"));
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

int main(int argc, char** argv)
{
    // A machine whose language has digits of its own, which Latin-1 has not.
    unsetenv("LC_ALL");
    setenv("LC_CTYPE", "C.UTF-8", 1);
    for (const char* category : {"LANG", "LC_NUMERIC", "LC_TIME"})
        setenv(category, "fa_IR.UTF-8", 1);
    return RunCoreTest<LogEntries>(argc, argv);
}

#include "LogEntries.moc"
