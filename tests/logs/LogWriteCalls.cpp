#include "CoreTest.h"
#include "TLogRoom.h"

#include <QtTest>

#include <sys/syscall.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>

namespace {

const int Unlimited = 1024 * 1024;
const long long NoLimit = 1024 * 1024;

/// What the coming calls to write meet, one letter each: a digit for as many bytes and no more, "E" for an
/// interruption by a signal, "F" for a full disk. Whole writes follow, and went before.
QByteArray Coming;
bool IsListening = false;
QByteArray Calls; ///< "13 6": thirteen bytes, then six

void Listen(const QByteArray& coming = QByteArray())
{
    Coming = coming;
    Calls.clear();
    IsListening = true;
}

int CallCount() { return Calls.isEmpty() ? 0 : static_cast<int>(Calls.count(' ')) + 1; }

/// How many bytes the call may write; negative with errno set.
int Admitted(std::size_t length)
{
    if (!IsListening)
        return Unlimited;
    Calls += (Calls.isEmpty() ? QByteArray() : QByteArray(" ")) + QByteArray::number(static_cast<int>(length));
    const char next = Coming.isEmpty() ? '*' : Coming[0];
    Coming.remove(0, 1);
    if (next == 'E' || next == 'F') {
        errno = next == 'E' ? EINTR : ENOSPC;
        return -1;
    }
    return next == '*' ? Unlimited : next - '0';
}

} // namespace

// Found before that of the C library, by the library under test too.

extern "C" __attribute__((visibility("default"))) ssize_t write(int file, const void* data, std::size_t length)
{
    const int admitted = Admitted(length);
    return admitted < 0 ? -1 : syscall(SYS_write, file, data, std::min(length, static_cast<std::size_t>(admitted)));
}

class LogWriteCalls : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();

    void linesAreWrittenInAsFewCallsAsCanBe_data();
    void linesAreWrittenInAsFewCallsAsCanBe();
    void anEntryIsOneCall();
    void aRotationAddsNoCall();
    void aWriteGoesOnWhereItBrokeOff_data();
    void aWriteGoesOnWhereItBrokeOff();
    void stagedBytesAndLineAreOneWrite_data();
    void stagedBytesAndLineAreOneWrite();
    void aLineLongerThanTheBufferIsAWriteOfItsOwn_data();
    void aLineLongerThanTheBufferIsAWriteOfItsOwn();
    void stagedBytesThatEndTheirFileAreAWriteOfTheirOwn_data();
    void stagedBytesThatEndTheirFileAreAWriteOfTheirOwn();
};

void LogWriteCalls::cleanup() { IsListening = false; }

void LogWriteCalls::linesAreWrittenInAsFewCallsAsCanBe_data()
{
    QTest::addColumn<int>("stagingSize");
    QTest::addColumn<int>("length");
    QTest::addColumn<int>("lines");
    QTest::addColumn<int>("calls");

    QTest::newRow("no buffer") << 0 << 70 << 100 << 100;
    QTest::newRow("no buffer, nothing to write") << 0 << 0 << 100 << 0;
    QTest::newRow("all staged") << 1024 << 70 << 14 << 0;
    QTest::newRow("first that does not fit") << 1024 << 70 << 15 << 1;
    QTest::newRow("fifteen lines a call") << 1024 << 70 << 1500 << 100;
    QTest::newRow("one byte a line") << 10 << 1 << 100 << 10;
    QTest::newRow("every second line") << 100 << 70 << 100 << 50;
    QTest::newRow("no line fits") << 60 << 70 << 100 << 100;
    QTest::newRow("every line fills the buffer") << 70 << 70 << 100 << 100;
}

void LogWriteCalls::linesAreWrittenInAsFewCallsAsCanBe()
{
    QFETCH(int, stagingSize);
    QFETCH(int, length);
    QFETCH(int, lines);
    QFETCH(int, calls);
    const TLogRoom room;
    TDiagnosticLog log(stagingSize, NoLimit, 4, room.parameter);
    QVERIFY(log.Restore(room.Base(), 0, 0));
    const QByteArray line(length, 'x');
    bool areLogged = true;
    Listen();
    for (int count = 0; count < lines; ++count)
        areLogged = Log(log, line) && areLogged;
    IsListening = false;
    QCOMPARE(CallCount(), calls);
    QVERIFY(areLogged);
}

void LogWriteCalls::anEntryIsOneCall()
{
    const TLogRoom room;
    TDiagnosticLog log(0, NoLimit, 4, room.parameter);
    QVERIFY(log.Restore(room.Base(), 0, 0));
    const QString texts[] = {QString(), QLatin1String("text"), QString(2000, QLatin1Char('x'))};
    for (const QString& text : texts) {
        Listen();
        const bool isLogged = log.AddEntry(text);
        IsListening = false;
        QCOMPARE(CallCount(), 1);
        QVERIFY(isLogged);
    }
}

void LogWriteCalls::aRotationAddsNoCall()
{
    const TLogRoom room;
    TDiagnosticLog log(0, 10, 4, room.parameter);
    QVERIFY(log.Restore(room.Base(), 0, 0));
    Listen();
    const bool isLogged = Log(log, Bytes(11));
    IsListening = false;
    QCOMPARE(CallCount(), 1);
    QVERIFY(isLogged);
    QCOMPARE(room.FileList(), QString::fromLatin1("user00001.log user00002.log"));
}

void LogWriteCalls::aWriteGoesOnWhereItBrokeOff_data()
{
    QTest::addColumn<QByteArray>("coming");
    QTest::addColumn<QByteArray>("calls");
    QTest::addColumn<QByteArray>("content");
    const struct
    {
        const char* name;
        const char* coming;
        const char* calls;
        const char* content;
    } rows[] = {
        {"whole", "", "6", "abcdef"},
        {"interrupted", "E", "6 6", "abcdef"},
        {"interrupted twice", "EE", "6 6 6", "abcdef"},
        {"short", "2", "6 4", "abcdef"},
        {"short, interrupted", "2E", "6 4 4", "abcdef"},
        {"byte by byte", "111111", "6 5 4 3 2 1", "abcdef"},
        {"full", "F", "6", ""},
        {"short, full", "2F", "6 4", "ab"},
        {"interrupted, full", "EF", "6 6", ""},
        {"takes nothing", "0", "6", ""},
        {"interrupted, takes nothing", "E0", "6 6", ""}, // errno still tells of the interruption
        {"short, takes nothing", "50", "6 1", "abcde"},
    };
    for (const auto& row : rows)
        QTest::newRow(row.name) << QByteArray(row.coming) << QByteArray(row.calls) << QByteArray(row.content);
}

void LogWriteCalls::aWriteGoesOnWhereItBrokeOff()
{
    QFETCH(QByteArray, coming);
    QFETCH(QByteArray, calls);
    QFETCH(QByteArray, content);
    const TLogRoom room;
    TDiagnosticLog log(0, 40, 4, room.parameter);
    QVERIFY(log.Restore(room.Base(), 0, 0));
    Listen(coming);
    const bool isLogged = Log(log, "abcdef");
    IsListening = false;
    QCOMPARE(Calls, calls);
    QCOMPARE(room.Content(1), content);
    QCOMPARE(isLogged, content.size() == 6);

    // The log knows how much the file holds.
    QVERIFY(log.WriteToLog(Bytes(40).constData(), 40 - static_cast<int>(content.size())));
    QCOMPARE(room.FileList(), QString::fromLatin1("user00001.log"));
    QVERIFY(log.WriteToLog("x", 1));
    QCOMPARE(room.FileList(), QString::fromLatin1("user00001.log user00002.log"));
}

void LogWriteCalls::stagedBytesAndLineAreOneWrite_data()
{
    QTest::addColumn<QByteArray>("coming");
    QTest::addColumn<QByteArray>("calls");
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<bool>("isLogged");
    const struct
    {
        const char* name;
        const char* coming;
        const char* calls;
        const char* content;
        bool isLogged;
    } rows[] = {
        {"whole", "", "13", "0123456abcdef", true},
        {"interrupted", "E", "13 13", "0123456abcdef", true},
        {"staged bytes short", "3", "13 10", "0123456abcdef", true},
        {"staged bytes short twice", "31", "13 10 9", "0123456abcdef", true},
        {"staged bytes short, interrupted", "3E", "13 10 10", "0123456abcdef", true},
        {"staged bytes alone", "7", "13 6", "0123456abcdef", true},
        {"line short", "9", "13 4", "0123456abcdef", true},
        {"line short, interrupted", "9E", "13 4 4", "0123456abcdef", true},
        {"staged bytes cut off", "3F", "13 10 6", "012abcdef", true},
        {"staged bytes cut off later", "32F", "13 10 8 6", "01234abcdef", true},
        {"staged bytes cut off, line short", "3F2", "13 10 6 4", "012abcdef", true},
        {"staged bytes take nothing more", "30", "13 10 6", "012abcdef", true},
        {"staged bytes lost", "F", "13 6", "abcdef", true},
        {"staged bytes cut off, line lost", "3FF", "13 10 6", "012", false},
        {"staged bytes cut off, line cut off", "3F2F", "13 10 6 4", "012ab", false},
        {"line lost", "7F", "13 6", "0123456", false},
        {"line cut off", "9F", "13 4", "0123456ab", false},
        {"all lost", "FF", "13 6", "", false},
    };
    for (const auto& row : rows) {
        QTest::newRow(row.name) << QByteArray(row.coming) << QByteArray(row.calls) << QByteArray(row.content)
                                << row.isLogged;
    }
}

void LogWriteCalls::stagedBytesAndLineAreOneWrite()
{
    QFETCH(QByteArray, coming);
    QFETCH(QByteArray, calls);
    QFETCH(QByteArray, content);
    QFETCH(bool, isLogged);
    const TLogRoom room;
    TDiagnosticLog log(10, 40, 4, room.parameter);
    QVERIFY(log.Restore(room.Base(), 0, 0));
    Listen(coming);
    const bool isStaged = Log(log, "0123456");
    const bool isWritten = Log(log, "abcdef");
    IsListening = false;
    QVERIFY(isStaged);
    QCOMPARE(Calls, calls);
    QCOMPARE(room.Content(1), content);
    QCOMPARE(isWritten, isLogged);

    // Nothing is left staged, and the log knows how much the file holds.
    QVERIFY(!log.FlushTempBuffer());
    QVERIFY(log.WriteToLog(Bytes(40).constData(), 40 - static_cast<int>(content.size())));
    QCOMPARE(room.FileList(), QString::fromLatin1("user00001.log"));
    QVERIFY(log.WriteToLog("x", 1));
    QCOMPARE(room.FileList(), QString::fromLatin1("user00001.log user00002.log"));
}

void LogWriteCalls::aLineLongerThanTheBufferIsAWriteOfItsOwn_data()
{
    QTest::addColumn<int>("staged");
    QTest::addColumn<int>("length");
    QTest::addColumn<QByteArray>("calls");
    QTest::newRow("as long") << 9 << 10 << QByteArray("19");
    QTest::newRow("as long, a byte staged") << 1 << 10 << QByteArray("11");
    QTest::newRow("longer") << 9 << 11 << QByteArray("9 11");
    QTest::newRow("much longer") << 1 << 1000 << QByteArray("1 1000");
    QTest::newRow("longer, nothing staged") << 0 << 11 << QByteArray("11");
}

void LogWriteCalls::aLineLongerThanTheBufferIsAWriteOfItsOwn()
{
    QFETCH(int, staged);
    QFETCH(int, length);
    QFETCH(QByteArray, calls);
    const TLogRoom room;
    TDiagnosticLog log(10, NoLimit, 4, room.parameter);
    QVERIFY(log.Restore(room.Base(), 0, 0));
    Listen();
    const bool areLogged = Log(log, QByteArray(staged, 's')) && Log(log, QByteArray(length, 'l'));
    IsListening = false;
    QVERIFY(areLogged);
    QCOMPARE(Calls, calls);
    QCOMPARE(room.Content(1), QByteArray(staged, 's') + QByteArray(length, 'l'));
}

void LogWriteCalls::stagedBytesThatEndTheirFileAreAWriteOfTheirOwn_data()
{
    QTest::addColumn<int>("limit");
    QTest::addColumn<QByteArray>("coming");
    QTest::addColumn<QByteArray>("calls");
    QTest::addColumn<QByteArray>("first");
    QTest::addColumn<QByteArray>("second");
    const struct
    {
        const char* name;
        int limit;
        const char* coming;
        const char* calls;
        const char* first;
        const char* second;
    } rows[] = {
        {"room for both", 16, "", "13", "___0123456abcdef", ""},
        {"the line passes the limit", 15, "", "13", "___0123456abcdef", ""},
        {"the staged bytes reach the limit", 10, "", "13", "___0123456abcdef", ""},
        {"the staged bytes pass the limit", 9, "", "7 6", "___0123456", "abcdef"},
        {"every staged byte passes the limit", 3, "", "7 6", "___0123456", "abcdef"},
        {"staged bytes short", 9, "6", "7 1 6", "___0123456", "abcdef"},
        {"staged bytes cut off before the limit", 9, "6F", "7 1 6", "___012345abcdef", ""},
        {"staged bytes lost", 9, "F", "7 6", "___abcdef", ""},
    };
    for (const auto& row : rows) {
        QTest::newRow(row.name) << row.limit << QByteArray(row.coming) << QByteArray(row.calls) << QByteArray(row.first)
                                << QByteArray(row.second);
    }
}

void LogWriteCalls::stagedBytesThatEndTheirFileAreAWriteOfTheirOwn()
{
    QFETCH(int, limit);
    QFETCH(QByteArray, coming);
    QFETCH(QByteArray, calls);
    QFETCH(QByteArray, first);
    QFETCH(QByteArray, second);
    const TLogRoom room;
    TDiagnosticLog log(10, limit, 4, room.parameter);
    QVERIFY(log.Restore(room.Base(), 0, 0));
    QVERIFY(log.WriteToLog("___", 3));
    Listen(coming);
    const bool areLogged = Log(log, "0123456") && Log(log, "abcdef");
    IsListening = false;
    QVERIFY(areLogged);
    QCOMPARE(Calls, calls);
    QCOMPARE(room.Content(1), first);
    QCOMPARE(room.Content(2), second);
}

int main(int argc, char** argv) { return RunCoreTest<LogWriteCalls>(argc, argv); }

#include "LogWriteCalls.moc"
