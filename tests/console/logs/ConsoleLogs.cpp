#include "ConsoleTest.h"

#include <QDateTime>

#include <csignal>

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/types.h>

using namespace ConsoleTest;

namespace {

/// The program while it follows a log.
class TFollower
{
public:
    TFollower(const TConsole& console, const char* words)
    {
        m_Process.start(QLatin1String(CABSETTINGS_PROGRAM),
                        QStringList{Utf8("--data"), console.DataFolder()} + Words(words));
        if (!m_Process.waitForStarted())
            qFatal("the program cannot be started");
    }

    /// All that has been printed so far.
    QString Output()
    {
        QCoreApplication::processEvents();
        m_Output += m_Process.readAllStandardOutput();
        return QString::fromUtf8(m_Output);
    }

    /// Its status after an interrupt; -1 when it does not end in good order.
    int Interrupt()
    {
        ::kill(static_cast<pid_t>(m_Process.processId()), SIGINT);
        const bool isEnded = m_Process.waitForFinished(30000) && m_Process.exitStatus() == QProcess::NormalExit;
        return isEnded ? m_Process.exitCode() : -1;
    }

    QString Errors() { return QString::fromUtf8(m_Process.readAllStandardError()); }

private:
    QProcess m_Process;
    QByteArray m_Output;
};

const int DeadlineMs = 30000;

const char* const NmeaLine = "$GNGGA,060224.600,5200.2080847,N,01000.0903395,E,4,12,0.7,80.0,M,0.0,M,1,1*4D\r\n";

} // namespace

class ConsoleLogs : public QObject
{
    Q_OBJECT

private slots:
    void anEntryIsLogged_data();
    void anEntryIsLogged();
    void theNewestLinesAreShown_data();
    void theNewestLinesAreShown();
    void tenLinesAreShownUnlessAsked();
    void linesArePrintedAsText_data();
    void linesArePrintedAsText();
    void entriesAreTakenApart_data();
    void entriesAreTakenApart();
    void aLogWithoutFilesIsAFailure();
    void aFileThatCannotBeReadIsAFailure();
    void theLogsOfAnotherDriveAreFound();
    void aFollowerGoesFromFileToFile();
    void aFollowerGoesOnAfterTheClockWasSetBack();
    void aFollowerStartsWithTheNewestLines();
    void aFollowerWaitsForALogThatBegins();
    void aFollowerPrintsAnObjectOnEachLine();
    void aFollowerEndsWhenItsOutputIsGone();
    void aTerminalThatRunsIsFollowed();
    void filesAreListedInTheirOrder();
    void theLogGoesOnInTheNewestFileOfTheList_data();
    void theLogGoesOnInTheNewestFileOfTheList();
    void aClockThatWasSetBackDoesNotReorderTheLog();
    void anEmptyListIsNoFailure();
    void logsAreExported();
    void anExportThatFailsSaysSo_data();
    void anExportThatFailsSaysSo();
    void wrongUsageSaysWhatIsAccepted_data();
    void wrongUsageSaysWhatIsAccepted();

private:
    static QString LogFile(const TConsole& console, const char* name)
    {
        return console.DataFolder() + Utf8("/internal/Diagnostics/") + Utf8(name);
    }

    static void Write(const TConsole& console, const char* name, const QByteArray& contents)
    {
        WriteFile(LogFile(console, name), contents);
    }

    /// With a modification time of @p second seconds after a fixed moment.
    static void WriteAt(const TConsole& console, const char* name, const QByteArray& contents, int second)
    {
        Write(console, name, contents);
        const timespec time = {1700000000 + second, 0};
        const timespec times[2] = {time, time};
        utimensat(AT_FDCWD, QFile::encodeName(LogFile(console, name)).constData(), times, 0);
    }

    static QString ReplaceEnds(QString text) { return text.replace(QLatin1Char('|'), QLatin1Char('\n')); }
};

void ConsoleLogs::anEntryIsLogged_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QByteArray>("line");
    QTest::newRow("one text") << QStringList{Utf8("started")} << QByteArray("Console,Event,0,started,");
    QTest::newRow("two texts") << QStringList{Utf8("a"), Utf8("b, c")} << QByteArray("Console,Event,0,a,b  c");
    QTest::newRow("trouble code") << Words("--component 3 --type 2 --code 512 Nozzle blocked")
                                  << QByteArray("Implement,DTC,512,Nozzle,blocked");
    QTest::newRow("a text that looks like an option")
        << QStringList{Utf8("--"), Utf8("-5 bar")} << QByteArray("Console,Event,0,-5 bar,");
    QTest::newRow("a parameter") << Words("--type 0 --code 8953 false true")
                                 << QByteArray("Console,Param,units.metric,false,true");
    QTest::newRow("a number that is no parameter") << Words("--type 0 --code 7 x") << QByteArray("Console,Param,7,x,");
    QTest::newRow("texts of several lines")
        << QStringList{Utf8("a\r\n2024.05.01-13:07:09:042,Console,Event,0,b,"), Utf8("c\v\f\u0085\u2028d")}
        << QByteArray("Console,Event,0,a  2024.05.01-13:07:09:042 Console Event 0 b ,c    d");
}

void ConsoleLogs::anEntryIsLogged()
{
    QFETCH(QStringList, arguments);
    QFETCH(QByteArray, line);
    const TConsole console;
    const TConsole::tagResult result = console.Run(Words("log add") + arguments);
    QCOMPARE(result.errors, QString());
    QCOMPARE(result.status, 0);
    const QByteArray log = Contents(LogFile(console, "User00001.csv"));
    QVERIFY2(log.endsWith(line + "\r\n"), log.constData());
    QCOMPARE(log.count('\n'), 1);
}

void ConsoleLogs::theNewestLinesAreShown_data()
{
    QTest::addColumn<QStringList>("files"); ///< "name@second:contents", modified at that second; | ends a line
    QTest::addColumn<int>("count");
    QTest::addColumn<QString>("shown");
    const auto row = [](const char* name, const QStringList& files, int count, const char* shown) {
        QTest::newRow(name) << files << count << Utf8(shown);
    };
    row("of one file", {Utf8("NMEA00001.csv@1:a|b|c|")}, 2, "b|c|");
    row("fewer than asked for", {Utf8("NMEA00001.csv@1:a|b|")}, 5, "a|b|");
    row("none", {Utf8("NMEA00001.csv@1:a|b|")}, 0, "");
    row("of an empty file", {Utf8("NMEA00001.csv@1:")}, 5, "");
    row("across files", {Utf8("NMEA00007.csv@1:a|b|"), Utf8("NMEA00008.csv@2:c|"), Utf8("NMEA00009.csv@3:d|")}, 3,
        "b|c|d|");
    row("of the older file alone", {Utf8("NMEA00007.csv@1:a|b|"), Utf8("NMEA00008.csv@2:")}, 1, "b|");
    row("by time, whatever the numbers", {Utf8("NMEA00009.csv@2:c|"), Utf8("NMEA00010.csv@1:b|")}, 2, "b|c|");
    row("by number where the times are equal", {Utf8("NMEA00010.csv@1:c|"), Utf8("NMEA00009.csv@1:b|")}, 2, "b|c|");
    row("00001 follows 99999",
        {Utf8("NMEA00001.csv@1:c|"), Utf8("NMEA00002.csv@1:d|"), Utf8("NMEA99998.csv@1:a|"),
         Utf8("NMEA99999.csv@1:b|")},
        4, "a|b|c|d|");
    row("a line that begins in one file and ends in the next",
        {Utf8("NMEA00001.csv@1:a|b1"), Utf8("NMEA00002.csv@2:b2|c|")}, 2, "b1b2|c|");
    row("a line without an end", {Utf8("NMEA00001.csv@1:a|b|c")}, 2, "b|c|");
    row("empty lines", {Utf8("NMEA00001.csv@1:a||b|")}, 3, "a||b|");
    row("of this log",
        {Utf8("NMEA00001.csv@1:a|"), Utf8("User00002.csv@1:b|"), Utf8("NMEA00002.txt@1:c|"), Utf8("nmea2.csv@1:d|")}, 5,
        "a|");
    row("of a hidden file", {Utf8(".NMEA00001.csv@1:a|"), Utf8("NMEA00002.csv@1:b|")}, 5, "b|");
    row("of an older copy", {Utf8("NMEA00001.csv@2:b|"), Utf8("NMEA-copy.csv@1:a|")}, 5, "a|b|");
    row("of a newer copy", {Utf8("NMEA00001.csv@1:b|"), Utf8("NMEA-copy.csv@2:a|")}, 5, "b|a|");
}

void ConsoleLogs::theNewestLinesAreShown()
{
    QFETCH(QStringList, files);
    QFETCH(int, count);
    QFETCH(QString, shown);
    const TConsole console;
    for (const QString& file : files) {
        const QString contents = file.section(QLatin1Char(':'), 1).replace(QLatin1Char('|'), Utf8("\r\n"));
        const QString name = file.section(QLatin1Char(':'), 0, 0);
        WriteAt(console, name.section(QLatin1Char('@'), 0, 0).toLatin1().constData(), contents.toLatin1(),
                name.section(QLatin1Char('@'), 1).toInt());
    }
    const TConsole::tagResult result = console.Run(Words("log tail nmea -n") + QStringList(QString::number(count)));
    QCOMPARE(result.errors, QString());
    QCOMPARE(result.output, ReplaceEnds(shown));
    QCOMPARE(result.status, 0);
}

void ConsoleLogs::tenLinesAreShownUnlessAsked()
{
    const TConsole console;
    for (int i = 1; i <= 12; ++i)
        Write(console, "NMEA00001.csv", QByteArray::number(i) + "\r\n");
    QCOMPARE(Run(console, "log tail nmea").output, Utf8("3\n4\n5\n6\n7\n8\n9\n10\n11\n12\n"));
}

void ConsoleLogs::linesArePrintedAsText_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<QString>("text");
    QTest::newRow("Latin-1") << QByteArray("Feld S\xfc"
                                           "d, 20 \xb0\r\n")
                             << Utf8("Feld Süd, 20 °") << Utf8("Feld Süd, 20 °");
    const int longest = 65536;
    const QString cut = QString(longest, QLatin1Char('x')) + Utf8("…");
    QTest::newRow("a line that is cut") << QByteArray(longest + 1, 'x') + "\r\n" << cut << cut;
    QTest::newRow("line feed alone") << QByteArray("a\n") << Utf8("a") << Utf8("a");
    QTest::newRow("tabulator") << QByteArray("a\tb\r\n") << Utf8("a\tb") << Utf8("a\tb");
    QTest::newRow("what a terminal would obey")
        << QByteArray("a\x1b[2Jb\x07\r\n") << Utf8("a\\x1b[2Jb\\x07") << Utf8("a\x1b[2Jb\x07");
    QTest::newRow("a byte for it above 127") << QByteArray("a\x9b"
                                                           "c\r\n")
                                             << Utf8("a\\x9bc")
                                             << QString::fromLatin1("a\x9b"
                                                                    "c");
    QTest::newRow("zero") << QByteArray("a\0b\r\n", 5) << Utf8("a\\x00b") << QString::fromLatin1("a\0b", 3);
}

void ConsoleLogs::linesArePrintedAsText()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, shown);
    QFETCH(QString, text);
    const TConsole console;
    Write(console, "NMEA00001.csv", bytes);
    QCOMPARE(Run(console, "log tail nmea").output, shown + QLatin1Char('\n'));
    QCOMPARE(Array(Run(console, "log tail nmea --json")),
             (QJsonArray{QJsonObject{{Utf8("file"), Utf8("NMEA00001.csv")}, {Utf8("text"), text}}}));
}

void ConsoleLogs::entriesAreTakenApart_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<QStringList>("fields"); ///< time, component, type, code, text1, text2; none in a line that is none
    QTest::newRow("an event") << Utf8("2024.05.01-13:07:09:042,GPS Receiver,Event,Time set,from,to")
                              << QStringList{Utf8("2024-05-01T13:07:09.042"),
                                             Utf8("GPS Receiver"),
                                             Utf8("Event"),
                                             Utf8("Time set"),
                                             Utf8("from"),
                                             Utf8("to")};
    QTest::newRow("empty fields")
        << Utf8("2024.05.01-13:07:09:042,,DTC,512,,")
        << QStringList{Utf8("2024-05-01T13:07:09.042"), QString::fromLatin1(""), Utf8("DTC"), Utf8("512"),
                       QString::fromLatin1(""),         QString::fromLatin1("")};
    QTest::newRow("commas in the host's text")
        << Utf8("2024.05.01-13:07:09:042,Console,Param,a, b, and c,x,y") << QStringList{Utf8("2024-05-01T13:07:09.042"),
                                                                                        Utf8("Console"),
                                                                                        Utf8("Param"),
                                                                                        Utf8("a, b, and c"),
                                                                                        Utf8("x"),
                                                                                        Utf8("y")};
    QTest::newRow("a line of another kind")
        << Utf8("2024.05.01-13:07:09:042,started") << QStringList{Utf8("2024-05-01T13:07:09.042")};
    QTest::newRow("no line at all") << Utf8("what is this") << QStringList();
}

void ConsoleLogs::entriesAreTakenApart()
{
    QFETCH(QString, line);
    QFETCH(QStringList, fields);
    const TConsole console;
    Write(console, "User00003.csv", line.toLatin1() + "\r\n");
    const QJsonArray lines = Array(Run(console, "log tail user --json"));
    QCOMPARE(static_cast<int>(lines.size()), 1);
    QJsonObject expected{{Utf8("file"), Utf8("User00003.csv")}, {Utf8("text"), line}};
    const char* const names[] = {"time", "component", "type", "code", "text1", "text2"};
    for (int i = 0; i < 6; ++i)
        expected.insert(Utf8(names[i]), i < fields.size() ? QJsonValue(fields.at(i)) : QJsonValue());
    QCOMPARE(lines.first().toObject(), expected);
}

void ConsoleLogs::aLogWithoutFilesIsAFailure()
{
    const TConsole console;
    const TConsole::tagResult result = Run(console, "log tail user");
    QCOMPARE(result.status, 1);
    QCOMPARE(result.errors,
             Utf8("cabsettings: the user log has no file in \"%1/internal/Diagnostics\"\n").arg(console.DataFolder()));
    // Whoever looks at a log does not begin one.
    QVERIFY(!QFile::exists(LogFile(console, "User00001.csv")));
}

void ConsoleLogs::aFileThatCannotBeReadIsAFailure()
{
    const TConsole console;
    Write(console, "User00001.csv", "a\r\n");
    QVERIFY(QFile::link(Utf8("/proc/self/mem"), LogFile(console, "User00002.csv")));
    const TConsole::tagResult result = Run(console, "log tail user");
    QCOMPARE(result.status, 1);
    QCOMPARE(result.output, Utf8("a\n"));
    QVERIFY2(result.errors.contains(Utf8("cannot read \"%1\": ").arg(LogFile(console, "User00002.csv"))),
             qPrintable(result.errors));
}

void ConsoleLogs::theLogsOfAnotherDriveAreFound()
{
    const TConsole console;
    const QString drive = console.Path("data/");
    QCOMPARE(console.Run({Utf8("set"), Utf8("system.internal-drive"), drive}).status, 0);
    QCOMPARE(Run(console, "log add here").status, 0);
    QVERIFY(Run(console, "log tail user").output.endsWith(Utf8(",here,\n")));
    QCOMPARE(Array(Run(console, "log list user --json")).first().toObject().value(Utf8("path")).toString(),
             drive + Utf8("Diagnostics/User00001.csv"));
}

void ConsoleLogs::aFollowerGoesFromFileToFile()
{
    const TConsole console;
    Write(console, "NMEA99998.csv", "1\r\n");
    TFollower follower(console, "log tail --follow nmea");
    QTRY_COMPARE_WITH_TIMEOUT(follower.Output(), Utf8("1\n"), DeadlineMs);
    Write(console, "NMEA99998.csv", "2\r\n3 beg");
    QTRY_COMPARE_WITH_TIMEOUT(follower.Output(), Utf8("1\n2\n"), DeadlineMs);
    // The log goes on in the next file, in the midst of a line, then in that of the first number.
    Write(console, "NMEA99999.csv", "ins and ends\r\n4\r\n");
    QTRY_COMPARE_WITH_TIMEOUT(follower.Output(), Utf8("1\n2\n3 begins and ends\n4\n"), DeadlineMs);
    QVERIFY(QFile::remove(LogFile(console, "NMEA99998.csv")));
    Write(console, "NMEA00001.csv", "5\r\n");
    QTRY_VERIFY_WITH_TIMEOUT(follower.Output().endsWith(Utf8("4\n5\n")), DeadlineMs);
    QVERIFY(QFile::remove(LogFile(console, "NMEA99999.csv")));
    Write(console, "NMEA00001.csv", "6\r\n");
    QTRY_VERIFY_WITH_TIMEOUT(follower.Output().endsWith(Utf8("5\n6\n")), DeadlineMs);
    // Somebody has emptied the folder, and the log begins anew.
    QVERIFY(QFile::remove(LogFile(console, "NMEA00001.csv")));
    Write(console, "NMEA00001.csv", "7\r\n");
    QTRY_VERIFY_WITH_TIMEOUT(follower.Output().endsWith(Utf8("6\n7\n")), DeadlineMs);
    // What is there at the end is printed, complete or not.
    Write(console, "NMEA00001.csv", "8 without end");
    QCOMPARE(follower.Interrupt(), 0);
    QCOMPARE(follower.Errors(), QString());
    QCOMPARE(follower.Output(), Utf8("1\n2\n3 begins and ends\n4\n5\n6\n7\n8 without end\n"));
}

void ConsoleLogs::aFollowerGoesOnAfterTheClockWasSetBack()
{
    const TConsole console;
    Write(console, "NMEA00001.csv", "1\r\n");
    TFollower follower(console, "log tail --follow nmea");
    QTRY_COMPARE_WITH_TIMEOUT(follower.Output(), Utf8("1\n"), DeadlineMs);
    Write(console, "NMEA00001.csv", "2 beg");
    WriteAt(console, "NMEA00002.csv", "ins\r\n", 0);
    QTRY_COMPARE_WITH_TIMEOUT(follower.Output(), Utf8("1\n2 begins\n"), DeadlineMs);
    WriteAt(console, "NMEA00002.csv", "3\r\n4 beg", 1);
    WriteAt(console, "NMEA00003.csv", "ins\r\n", -100);
    QTRY_COMPARE_WITH_TIMEOUT(follower.Output(), Utf8("1\n2 begins\n3\n4 begins\n"), DeadlineMs);
    QCOMPARE(follower.Interrupt(), 0);
}

void ConsoleLogs::aFollowerStartsWithTheNewestLines()
{
    const TConsole console;
    Write(console, "User00001.csv", "1\r\n2\r\n3\r\n");
    TFollower two(console, "log tail -n 2 --follow user");
    TFollower none(console, "log tail -n 0 --follow user");
    QTRY_COMPARE_WITH_TIMEOUT(two.Output(), Utf8("2\n3\n"), DeadlineMs);
    // The second has no other sign of being ready than that it prints what comes from then on.
    QTRY_VERIFY_WITH_TIMEOUT((Write(console, "User00001.csv", "4\r\n"), !none.Output().isEmpty()), DeadlineMs);
    QVERIFY2(none.Output().startsWith(Utf8("4\n")), qPrintable(none.Output()));
    QTRY_VERIFY_WITH_TIMEOUT(two.Output().startsWith(Utf8("2\n3\n4\n")), DeadlineMs);
    QCOMPARE(two.Interrupt(), 0);
    QCOMPARE(none.Interrupt(), 0);
}

void ConsoleLogs::aFollowerWaitsForALogThatBegins()
{
    const TConsole console;
    TFollower follower(console, "log tail --follow user");
    QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(console.DataFolder() + Utf8("/settings.db")), DeadlineMs);
    QCOMPARE(Run(console, "log add begun").status, 0);
    QTRY_VERIFY_WITH_TIMEOUT(follower.Output().endsWith(Utf8(",Console,Event,0,begun,\n")), DeadlineMs);
    QCOMPARE(follower.Interrupt(), 0);
    QCOMPARE(follower.Errors(), QString());
}

void ConsoleLogs::aFollowerPrintsAnObjectOnEachLine()
{
    const TConsole console;
    Write(console, "NMEA00001.csv", "a\r\nb\r\n");
    TFollower follower(console, "log tail --follow --json nmea");
    QTRY_COMPARE_WITH_TIMEOUT(follower.Output(),
                              Utf8("{\"file\":\"NMEA00001.csv\",\"text\":\"a\"}\n"
                                   "{\"file\":\"NMEA00001.csv\",\"text\":\"b\"}\n"),
                              DeadlineMs);
    Write(console, "NMEA00002.csv", "c\r\n");
    QTRY_VERIFY_WITH_TIMEOUT(follower.Output().endsWith(Utf8("\n{\"file\":\"NMEA00002.csv\",\"text\":\"c\"}\n")),
                             DeadlineMs);
    QCOMPARE(follower.Interrupt(), 0);
}

void ConsoleLogs::aFollowerEndsWhenItsOutputIsGone()
{
    const TConsole console;
    Write(console, "NMEA00001.csv", "a\r\n");
    QProcess process;
    process.setStandardOutputFile(Utf8("/dev/full"));
    process.start(QLatin1String(CABSETTINGS_PROGRAM),
                  QStringList{Utf8("--data"), console.DataFolder()} + Words("log tail --follow nmea"));
    QVERIFY(process.waitForFinished());
    QCOMPARE(process.exitCode(), 1);
    const QByteArray errors = process.readAllStandardError();
    QVERIFY2(errors.contains("standard output"), errors.constData());
    QCOMPARE(errors.count('\n'), 1);
}

void ConsoleLogs::aTerminalThatRunsIsFollowed()
{
    const TConsole console;
    Write(console, "NMEA00001.csv", "begin\r\n");
    TFollower follower(console, "log tail -n 1 --follow nmea");
    const QString begin = Utf8("begin\n");
    QTRY_COMPARE_WITH_TIMEOUT(follower.Output(), begin, DeadlineMs); // what comes from here on, it sees
    QProcess terminal;
    terminal.start(QLatin1String(CABSETTINGS_PROGRAM),
                   QStringList{Utf8("--data"), console.DataFolder()} + Words("run --nmea -"));
    QVERIFY(terminal.waitForStarted());
    // Enough for two changes of the file, in portions that the follower has time for.
    const QByteArray portion = QByteArray(NmeaLine).repeated(500);
    const int portions = 0x90000 / static_cast<int>(portion.size());
    QVERIFY(portions * 500 * static_cast<int>(qstrlen(NmeaLine)) > 2 * 0x40000);
    for (int i = 1; i <= portions; ++i) {
        terminal.write(portion);
        // What the log has staged comes with the next portion.
        QTRY_VERIFY_WITH_TIMEOUT(follower.Output().count(QLatin1Char('\n')) >= 500 * i - 50, DeadlineMs);
    }
    terminal.closeWriteChannel();
    QVERIFY(terminal.waitForFinished());
    QCOMPARE(terminal.exitCode(), 0);
    QTRY_COMPARE_WITH_TIMEOUT(static_cast<int>(follower.Output().count(QLatin1Char('\n'))), 1 + 500 * portions,
                              DeadlineMs);
    QCOMPARE(follower.Output(),
             begin + QString::fromLatin1(NmeaLine).remove(QLatin1Char('\r')).repeated(500 * portions));
    QCOMPARE(follower.Interrupt(), 0);
    QCOMPARE(static_cast<int>(Array(Run(console, "log list nmea --json")).size()), 3);
}

void ConsoleLogs::filesAreListedInTheirOrder()
{
    const TConsole console;
    WriteAt(console, "User00001.csv", "ab", 1);
    WriteAt(console, "User99999.csv", "abc", 1);
    WriteAt(console, "NMEA00004.csv", "a", 1);
    WriteAt(console, "NMEA-copy.csv", QByteArray(), 1);
    const TConsole::tagResult result = Run(console, "log list --json");
    QCOMPARE(result.errors, QString());
    QCOMPARE(result.status, 0);
    struct tagFile
    {
        const char* log;
        const char* name;
        int number; ///< 0 for none
        int size;
        bool isNewest;
    };
    const tagFile expected[] = {
        {"user", "User99999.csv", 99999, 3, false},
        {"user", "User00001.csv", 1, 2, true},
        {"nmea", "NMEA-copy.csv", 0, 0, false},
        {"nmea", "NMEA00004.csv", 4, 1, true},
    };
    const QJsonArray files = Array(result);
    const QStringList lines = Run(console, "log list").output.split(QLatin1Char('\n'));
    QCOMPARE(static_cast<int>(files.size()), 4);
    QCOMPARE(static_cast<int>(lines.size()), 6);
    QCOMPARE(lines.first().simplified(), Utf8("log file number size modified"));
    for (int i = 0; i < 4; ++i) {
        const tagFile& file = expected[i];
        const QString path = LogFile(console, file.name);
        const QString modified = QFileInfo(path).lastModified().toUTC().toString(Qt::ISODate);
        QVERIFY(modified.endsWith(QLatin1Char('Z')));
        QCOMPARE(files.at(i).toObject(),
                 (QJsonObject{{Utf8("log"), Utf8(file.log)},
                              {Utf8("file"), Utf8(file.name)},
                              {Utf8("path"), path},
                              {Utf8("number"), file.number == 0 ? QJsonValue() : QJsonValue(file.number)},
                              {Utf8("size"), file.size},
                              {Utf8("modified"), modified},
                              {Utf8("newest"), file.isNewest}}));
        const QString number = file.number == 0 ? Utf8("-") : QString::number(file.number);
        QStringList cells = {Utf8(file.log), Utf8(file.name), number, QString::number(file.size), modified};
        if (file.isNewest)
            cells.append(Utf8("newest"));
        QCOMPARE(lines.at(i + 1).simplified(), cells.join(QLatin1Char(' ')));
    }
    const QJsonArray nmea = Array(Run(console, "log list nmea --json"));
    QCOMPARE(nmea, (QJsonArray{files.at(2), files.at(3)}));
}

void ConsoleLogs::theLogGoesOnInTheNewestFileOfTheList_data()
{
    QTest::addColumn<QStringList>("oldestFirst");
    const auto row = [](const char* name, const char* files) { QTest::newRow(name) << Words(files); };
    row("by number", "User00001.csv User00002.csv");
    row("round the last number", "User99999.csv User00001.csv");
    row("without a number", "User00001.csv User-copy.csv");
    row("of another spelling", "user00009.csv User00009.CSV User00001.csv");
}

void ConsoleLogs::theLogGoesOnInTheNewestFileOfTheList()
{
    QFETCH(QStringList, oldestFirst);
    const TConsole console;
    for (int i = 0; i < oldestFirst.size(); ++i)
        WriteAt(console, oldestFirst.at(i).toLatin1().constData(), "a\r\n", i);
    const QJsonObject newest = Array(Run(console, "log list user --json")).last().toObject();
    QCOMPARE(newest.value(Utf8("newest")), QJsonValue(true));
    QCOMPARE(newest.value(Utf8("file")).toString(), oldestFirst.last());
    QCOMPARE(Run(console, "log add next").status, 0);
    QVERIFY(Contents(newest.value(Utf8("path")).toString()).endsWith(",next,\r\n"));
    QVERIFY(Run(console, "log tail user -n 1").output.endsWith(Utf8(",next,\n")));
}

// The second file was written after the first one, by a clock that had been set back.
void ConsoleLogs::aClockThatWasSetBackDoesNotReorderTheLog()
{
    const TConsole console;
    WriteAt(console, "User00002.csv", "a\r\n", 0);
    WriteAt(console, "User00001.csv", "a\r\n", 1);
    QCOMPARE(Run(console, "log add next").status, 0);
    const QJsonObject newest = Array(Run(console, "log list user --json")).last().toObject();
    QCOMPARE(newest.value(Utf8("file")).toString(), Utf8("User00002.csv"));
    QVERIFY(Contents(newest.value(Utf8("path")).toString()).endsWith(",next,\r\n"));
}

void ConsoleLogs::anEmptyListIsNoFailure()
{
    const TConsole console;
    const TConsole::tagResult result = Run(console, "log list --json");
    QCOMPARE(result.status, 0);
    QCOMPARE(result.output.simplified(), Utf8("[ ]"));
    QVERIFY(!QFile::exists(LogFile(console, "User00001.csv")));
}

void ConsoleLogs::logsAreExported()
{
    const TConsole console;
    QCOMPARE(Run(console, "log add first").status, 0);
    QCOMPARE(Run(console, "log add second").status, 0);
    const QString stick = console.Path("stick");
    QVERIFY(QDir().mkpath(stick));
    const TConsole::tagResult result = console.Run({Utf8("log"), Utf8("export"), stick});
    QCOMPARE(result.errors, QString());
    QCOMPARE(result.status, 0);
    QCOMPARE(result.output, Utf8("user log: 1 files copied\nNMEA log: 1 files copied\n"));
    const QByteArray copy = Contents(stick + Utf8("/User00001.csv"));
    QVERIFY(copy.contains("first") && copy.contains("second"));
    QCOMPARE(copy, Contents(LogFile(console, "User00001.csv")));

    Write(console, "NMEA00002.csv", "a\r\n");
    const auto exported = [](const char* log, int files) {
        return QJsonObject{{Utf8("log"), Utf8(log)}, {Utf8("files"), files}, {Utf8("complete"), true}};
    };
    QCOMPARE(Array(console.Run({Utf8("log"), Utf8("export"), Utf8("--json"), stick})),
             (QJsonArray{exported("user", 1), exported("nmea", 2)}));
}

void ConsoleLogs::anExportThatFailsSaysSo_data()
{
    QTest::addColumn<QString>("target");
    QTest::addColumn<bool>("isTried");
    QTest::newRow("no such folder") << Utf8("nowhere") << false;
    QTest::newRow("a file") << Utf8("file") << false;
    QTest::newRow("a folder in the way of a file") << Utf8("blocked") << true;
}

void ConsoleLogs::anExportThatFailsSaysSo()
{
    QFETCH(QString, target);
    QFETCH(bool, isTried);
    const TConsole console;
    QCOMPARE(Run(console, "log add x").status, 0);
    WriteFile(console.Path("file"), QByteArray());
    QVERIFY(QDir().mkpath(console.Path("blocked/User00001.csv/x")));
    const QString folder = console.Path(target.toLatin1().constData());
    const TConsole::tagResult result = console.Run({Utf8("log"), Utf8("export"), folder});
    QCOMPARE(result.status, 1);
    QVERIFY2(result.errors.contains(folder), qPrintable(result.errors));
    const TConsole::tagResult asJson = console.Run({Utf8("log"), Utf8("export"), folder, Utf8("--json")});
    QCOMPARE(asJson.status, 1);
    QCOMPARE(asJson.errors, result.errors);
    QCOMPARE(Find(Array(asJson), "log", Utf8("user")).value(Utf8("complete")),
             isTried ? QJsonValue(false) : QJsonValue(QJsonValue::Undefined));
}

void ConsoleLogs::wrongUsageSaysWhatIsAccepted_data()
{
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<QString>("named");
    QTest::addColumn<QString>("accepted");
    const auto row = [](const char* name, const char* arguments, const char* named, const char* accepted) {
        QTest::newRow(name) << Utf8(arguments) << Utf8(named) << Utf8(accepted);
    };
    row("no command", "log", "missing command", "add, tail, list or export");
    row("unknown command", "log burn", "\"burn\"", "add, tail, list or export");
    row("add without text", "log add", "missing", "TEXT");
    row("add of three texts", "log add a b c", "\"c\"", "TEXT [TEXT2]");
    row("add with a bad component", "log add --component 9 x", "--component", "0 to 4");
    row("add with a bad type", "log add --type x y", "--type", "0 to 2");
    row("add with a bad code", "log add --code -1 y", "--code", "0 to 2147483647");
    row("tail of no log", "log tail", "missing", "LOG");
    row("tail of an unknown log", "log tail gps", "\"gps\"", "user or nmea");
    row("tail of two logs", "log tail user nmea", "\"nmea\"", "LOG");
    row("tail of a bad number", "log tail -n few user", "\"few\" for -n", "0 to 2147483647");
    row("tail of a negative number", "log tail -n -3 user", "\"-3\" for -n", "0 to 2147483647");
    row("tail without its number", "log tail user -n", "n", "log tail --help");
    row("tail with an unknown option", "log tail user --all", "all", "log tail --help");
    row("list of an unknown log", "log list gps", "\"gps\"", "user or nmea");
    row("list of two logs", "log list user nmea", "\"nmea\"", "[LOG]");
    row("export without folder", "log export", "missing", "DIR");
    row("export into two folders", "log export a b", "\"b\"", "DIR");
}

void ConsoleLogs::wrongUsageSaysWhatIsAccepted()
{
    QFETCH(QString, arguments);
    QFETCH(QString, named);
    QFETCH(QString, accepted);
    const TConsole console;
    VerifyMisused(console.Run(arguments.split(QLatin1Char(' '))), named, accepted);
}

QTEST_GUILESS_MAIN(ConsoleLogs)
#include "ConsoleLogs.moc"
