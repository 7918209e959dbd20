#include "CoreTest.h"
#include "TLogRoom.h"

#include <QtTest>

#include <sys/syscall.h>
#include <sys/uio.h>
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
QByteArray Calls; ///< "v13 w6": thirteen bytes in pieces, then six

void Listen(const QByteArray& coming = QByteArray())
{
    Coming = coming;
    Calls.clear();
    IsListening = true;
}

int CallCount() { return Calls.isEmpty() ? 0 : static_cast<int>(Calls.count(' ')) + 1; }

/// How many bytes the call may write; negative with errno set.
int Admitted(char kind, std::size_t length)
{
    if (!IsListening)
        return Unlimited;
    Calls += (Calls.isEmpty() ? QByteArray() : QByteArray(" ")) + kind + QByteArray::number(static_cast<int>(length));
    const char next = Coming.isEmpty() ? '*' : Coming[0];
    Coming.remove(0, 1);
    if (next == 'E' || next == 'F') {
        errno = next == 'E' ? EINTR : ENOSPC;
        return -1;
    }
    return next == '*' ? Unlimited : next - '0';
}

ssize_t Write(int file, const void* data, std::size_t length) { return syscall(SYS_write, file, data, length); }

} // namespace

// Found before those of the C library, by the library under test too.

extern "C" __attribute__((visibility("default"))) ssize_t write(int file, const void* data, std::size_t length)
{
    const int admitted = Admitted('w', length);
    return admitted < 0 ? -1 : Write(file, data, std::min(length, static_cast<std::size_t>(admitted)));
}

extern "C" __attribute__((visibility("default"))) ssize_t writev(int file, const iovec* pieces, int count)
{
    QByteArray whole;
    for (int index = 0; index < count; ++index)
        whole.append(static_cast<const char*>(pieces[index].iov_base), static_cast<int>(pieces[index].iov_len));
    const std::size_t length = static_cast<std::size_t>(whole.size());
    const int admitted = Admitted('v', length);
    return admitted < 0 ? -1 : Write(file, whole.constData(), std::min(length, static_cast<std::size_t>(admitted)));
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
        {"whole", "", "w6", "abcdef"},
        {"interrupted", "E", "w6 w6", "abcdef"},
        {"interrupted twice", "EE", "w6 w6 w6", "abcdef"},
        {"short", "2", "w6 w4", "abcdef"},
        {"short, interrupted", "2E", "w6 w4 w4", "abcdef"},
        {"byte by byte", "111111", "w6 w5 w4 w3 w2 w1", "abcdef"},
        {"full", "F", "w6", ""},
        {"short, full", "2F", "w6 w4", "ab"},
        {"interrupted, full", "EF", "w6 w6", ""},
        {"takes nothing", "0", "w6", ""},
        {"short, takes nothing", "50", "w6 w1", "abcde"},
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
        {"whole", "", "v13", "0123456abcdef", true},
        {"interrupted", "E", "v13 w7 w6", "0123456abcdef", true},
        {"staged bytes short", "3", "v13 w4 w6", "0123456abcdef", true},
        {"staged bytes short twice", "31", "v13 w4 w3 w6", "0123456abcdef", true},
        {"staged bytes short, interrupted", "3E", "v13 w4 w4 w6", "0123456abcdef", true},
        {"staged bytes alone", "7", "v13 w6", "0123456abcdef", true},
        {"line short", "9", "v13 w4", "0123456abcdef", true},
        {"line short, interrupted", "9E", "v13 w4 w4", "0123456abcdef", true},
        {"takes nothing", "0", "v13 w7 w6", "0123456abcdef", true},
        {"staged bytes cut off", "3F", "v13 w4 w6", "012abcdef", true},
        {"staged bytes cut off later", "32F", "v13 w4 w2 w6", "01234abcdef", true},
        {"staged bytes cut off, line short", "3F2", "v13 w4 w6 w4", "012abcdef", true},
        {"staged bytes take nothing more", "30", "v13 w4 w6", "012abcdef", true},
        {"staged bytes lost", "FF", "v13 w7 w6", "abcdef", true},
        {"staged bytes cut off, line lost", "3FF", "v13 w4 w6", "012", false},
        {"staged bytes cut off, line cut off", "3F2F", "v13 w4 w6 w4", "012ab", false},
        {"line lost", "7F", "v13 w6", "0123456", false},
        {"line cut off", "9F", "v13 w4", "0123456ab", false},
        {"all lost", "FFF", "v13 w7 w6", "", false},
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
        {"room for both", 16, "", "v13", "___0123456abcdef", ""},
        {"the line passes the limit", 15, "", "v13", "___0123456abcdef", ""},
        {"the staged bytes reach the limit", 10, "", "v13", "___0123456abcdef", ""},
        {"the staged bytes pass the limit", 9, "", "w7 w6", "___0123456", "abcdef"},
        {"every staged byte passes the limit", 3, "", "w7 w6", "___0123456", "abcdef"},
        {"staged bytes short", 9, "6", "w7 w1 w6", "___0123456", "abcdef"},
        {"staged bytes cut off before the limit", 9, "6F", "w7 w1 w6", "___012345abcdef", ""},
        {"staged bytes lost", 9, "F", "w7 w6", "___abcdef", ""},
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
