#include "CoreTest.h"
#include "TLogRoom.h"

#include <QtTest>

class LogNumbering : public QObject
{
    Q_OBJECT

private slots:
    void theStoreTellsTheNextNumber_data();
    void theStoreTellsTheNextNumber();
    void numbersGoRound();
    void theStoreIsReadOnceOnly();
    void theStoreLearnsEveryNumberTaken();
    void eachLogHasItsParameter();

    void theSeriesTellsTheNextNumber_data();
    void theSeriesTellsTheNextNumber();
    void aNumberFoundIsNotStoredUntilOneIsTaken();
};

void LogNumbering::theStoreTellsTheNextNumber_data()
{
    QTest::addColumn<QVariant>("stored");
    QTest::addColumn<QString>("number");
    QTest::addColumn<int>("storedThen");

    QTest::newRow("first") << QVariant(1) << QString::fromLatin1("00001") << 2;
    QTest::newRow("any") << QVariant(42) << QString::fromLatin1("00042") << 43;
    QTest::newRow("last but one") << QVariant(99998) << QString::fromLatin1("99998") << 99999;
    QTest::newRow("last") << QVariant(99999) << QString::fromLatin1("99999") << 1;
    QTest::newRow("past the last") << QVariant(100000) << QString::fromLatin1("100000") << 1;
    QTest::newRow("far past the last") << QVariant(2147483647) << QString::fromLatin1("2147483647") << 1;
    QTest::newRow("zero") << QVariant(0) << QString::fromLatin1("00000") << 1;
    QTest::newRow("negative") << QVariant(-7) << QString::fromLatin1("000-7") << 1;
    QTest::newRow("absent") << QVariant() << QString::fromLatin1("00000") << 1;
    QTest::newRow("text") << QVariant(QLatin1String("many")) << QString::fromLatin1("00000") << 1;
    QTest::newRow("number as text") << QVariant(QLatin1String("12")) << QString::fromLatin1("00012") << 13;
}

void LogNumbering::theStoreTellsTheNextNumber()
{
    QFETCH(QVariant, stored);
    QFETCH(QString, number);
    QFETCH(int, storedThen);
    TLogRoom room;
    room.store.values[room.parameter] = stored;
    {
        TDiagnosticLog log(0, 100, 4, room.parameter);
        QVERIFY(room.store.writes.isEmpty());
        QCOMPARE(log.NextLogFileIterationNumber(), number);
        QCOMPARE(room.store.values[room.parameter], QVariant(storedThen));
    }
    room.store.values[room.parameter] = stored;
    TDiagnosticLog log(0, 100, 4, room.parameter);
    QVERIFY(log.Restore(room.Base(), 0, 0));
    QCOMPARE(room.FileList(), QString::fromLatin1("user%1.log").arg(number));
    QCOMPARE(room.store.values[room.parameter], QVariant(storedThen));
}

void LogNumbering::numbersGoRound()
{
    TLogRoom room;
    room.store.values[room.parameter] = 99997;
    TDiagnosticLog log(0, 10, 3, room.parameter);
    QVERIFY(log.Restore(room.Base(), 0, 0));
    const char* const expected[] = {
        "user99997.log",
        "user99997.log user99998.log",
        "user99997.log user99998.log user99999.log",
        "user00001.log user99998.log user99999.log",
        "user00001.log user00002.log user99999.log",
        "user00001.log user00002.log user00003.log",
        "user00002.log user00003.log user00004.log",
    };
    for (const char* files : expected) {
        QCOMPARE(room.FileList(), QString::fromLatin1(files));
        QVERIFY(Log(log, Bytes(11)));
    }
}

void LogNumbering::theStoreIsReadOnceOnly()
{
    TLogRoom room;
    TDiagnosticLog log(0, 10, 3, room.parameter);
    QCOMPARE(room.store.reads, QList<int>() << room.parameter);
    room.store.values[room.parameter] = 70;
    QVERIFY(log.Restore(room.Base(), 0, 0));
    QVERIFY(Log(log, Bytes(11)));
    QCOMPARE(room.FileList(), QString::fromLatin1("user00001.log user00002.log"));
    QCOMPARE(static_cast<int>(room.store.reads.size()), 1);
}

void LogNumbering::theStoreLearnsEveryNumberTaken()
{
    const TLogRoom room;
    TDiagnosticLog log(0, 10, 3, room.parameter);
    QVERIFY(log.Restore(room.Base(), 0, 0));
    QVERIFY(Log(log, Bytes(5)));
    log.Close();
    QVERIFY(log.Restore(room.Base(), 0, 0)); // takes none
    QVERIFY(Log(log, Bytes(6)));
    QVERIFY(Log(log, Bytes(11)));
    QList<QPair<int, QVariant>> writes;
    for (int next = 2; next <= 4; ++next)
        writes << qMakePair(static_cast<int>(room.parameter), QVariant(next));
    QCOMPARE(room.store.writes, writes);
    QVERIFY(room.store.allWritesPersist);
}

void LogNumbering::eachLogHasItsParameter()
{
    TLogRoom room;
    room.store.values[10471] = 30;
    room.store.values[10472] = 50;
    TDiagnosticLog nmeaLog(0, 10, 3, PARAM_NMEA_LOG_FILE_NUMBER);
    TDiagnosticLog userLog(0, 10, 3, PARAM_USER_LOG_FILE_NUMBER);
    QCOMPARE(nmeaLog.NextLogFileIterationNumber(), QString::fromLatin1("00030"));
    QCOMPARE(userLog.NextLogFileIterationNumber(), QString::fromLatin1("00050"));
    QCOMPARE(nmeaLog.NextLogFileIterationNumber(), QString::fromLatin1("00031"));
    QCOMPARE(room.store.values[10471], QVariant(32));
    QCOMPARE(room.store.values[10472], QVariant(51));
}

void LogNumbering::theSeriesTellsTheNextNumber_data()
{
    QTest::addColumn<QString>("newest");
    QTest::addColumn<QVariant>("stored");
    QTest::addColumn<QString>("next");
    QTest::addColumn<int>("storedThen");

    const struct
    {
        const char* name;
        const char* newest;
        QVariant stored;
        const char* next;
        int storedThen;
    } rows[] = {
        {"as stored", "user00007.log", 8, "user00008.log", 9},
        {"store behind", "user00007.log", 3, "user00008.log", 9},
        {"store ahead", "user00007.log", 90, "user00008.log", 9},
        {"store lost", "user00007.log", QVariant(), "user00008.log", 9},
        {"last but one", "user99998.log", QVariant(), "user99999.log", 1},
        {"last", "user99999.log", QVariant(), "user00001.log", 2},
        {"last, as stored", "user99999.log", 1, "user00001.log", 2},
        {"zero", "user00000.log", 50, "user00001.log", 2},
        {"without zeros", "user7.log", 50, "user00008.log", 9},
        {"no number", "userguide.log", 50, "user00050.log", 51},
        {"no digits", "user.log", 50, "user00050.log", 51},
        {"digits and more", "user00007a.log", 50, "user00050.log", 51},
        {"too great for a number", "user99999999999.log", 50, "user00050.log", 51},
    };
    for (const auto& row : rows) {
        QTest::newRow(row.name) << QString::fromLatin1(row.newest) << row.stored << QString::fromLatin1(row.next)
                                << row.storedThen;
    }
}

void LogNumbering::theSeriesTellsTheNextNumber()
{
    QFETCH(QString, newest);
    QFETCH(QVariant, stored);
    QFETCH(QString, next);
    QFETCH(int, storedThen);
    TLogRoom room;
    room.store.values[room.parameter] = stored;
    room.MakeFile(QLatin1String("user00500.log"), 10, 1);
    room.MakeFile(newest, 10, 2);
    TDiagnosticLog log(0, 10, 4, room.parameter);
    QVERIFY(log.Restore(room.Base(), 0, 0));
    QStringList files = QStringList() << QLatin1String("user00500.log") << newest << next;
    files.sort();
    QCOMPARE(room.Files(), files);
    QCOMPARE(room.store.values[room.parameter], QVariant(storedThen));
}

void LogNumbering::aNumberFoundIsNotStoredUntilOneIsTaken()
{
    const TLogRoom room;
    room.MakeFile(7, 5, 1);
    TDiagnosticLog log(0, 10, 4, room.parameter);
    QVERIFY(log.Restore(room.Base(), 0, 0));
    QVERIFY(Log(log, Bytes(5)));
    QVERIFY(room.store.writes.isEmpty());
    QVERIFY(Log(log, Bytes(1)));
    QCOMPARE(room.FileList(), QString::fromLatin1("user00007.log user00008.log"));
    QCOMPARE(static_cast<int>(room.store.writes.size()), 1);
    QCOMPARE(room.store.writes.first(), qMakePair(10472, QVariant(9)));
}

int main(int argc, char** argv) { return RunCoreTest<LogNumbering>(argc, argv); }

#include "LogNumbering.moc"
