#include "NmeaCatch.h"
#include "TStandardInput.h"

#include "nmea/NmeaChecksum.h"
#include "nmea/TNmeaInput.h"

#include <QTemporaryDir>
#include <QtTest>

#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <limits>

namespace {

const double Fast = 0;
const double Hurried = 1e6; // by the file's times, which this fast are over at once

/// An hour of times, a second apart, and a last line without a line end.
QByteArray Recording()
{
    QByteArray stream;
    QTime time(11, 0);
    for (int second = 0; second < 3600; ++second, time = time.addSecs(1)) {
        const QByteArray body = "GPGGA," + QLocale::c().toString(time, QLatin1String("HHmmss")).toLatin1() +
                                ",5212.0,N,01030.0,E,1,12,0.7,80.5,M,0.0,M,,";
        stream += '$' + body + NmeaChecksum(body) + "\r\n";
    }
    return stream + "$GPGG";
}

/// Both ends of a pipe, closed at the end.
struct tagPipe
{
    tagPipe() { isOpen = pipe(ends.data()) == 0; }
    ~tagPipe()
    {
        CloseWriter();
        close(ends[0]);
    }
    tagPipe(const tagPipe&) = delete;
    tagPipe& operator=(const tagPipe&) = delete;

    void Write(const QByteArray& bytes)
    {
        QCOMPARE(write(ends[1], bytes.constData(), static_cast<std::size_t>(bytes.size())),
                 static_cast<ssize_t>(bytes.size()));
    }
    void CloseWriter()
    {
        if (ends[1] >= 0)
            close(ends[1]);
        ends[1] = -1;
    }

    bool isOpen;
    std::array<int, 2> ends;
};

} // namespace

class NmeaInput : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_Folder = new QTemporaryDir; }
    void cleanup() { delete m_Folder; }

    void filesComeOutWhole_data();
    void filesComeOutWhole();
    void theEventLoopRunsWhileAFileIsRead_data();
    void theEventLoopRunsWhileAFileIsRead();
    void theNextLineOfAFileWaitsForItsTime();
    void linesOfAPipeComeAsTheyAreSent();
    void aNamedPipeIsWaitedFor();
    void theStandardInputIsRead_data();
    void theStandardInputIsRead();
    void theStandardInputStaysOpen();
    void whatCannotBeReadIsNamed_data();
    void whatCannotBeReadIsNamed();
    void itCanBeStopped_data();
    void itCanBeStopped();
    void stoppingWithinALineIsTheEnd();
    void itMayBeDestroyedWhileItRuns();

private:
    QString Write(const QByteArray& stream) const;
    QString PathOf(const char* name) const { return m_Folder->filePath(QLatin1String(name)); }

    QTemporaryDir* m_Folder;
};

QString NmeaInput::Write(const QByteArray& stream) const
{
    QString path = PathOf("stream.nmea");
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(stream) != stream.size())
        return QString();
    return path;
}

void NmeaInput::filesComeOutWhole_data()
{
    QTest::addColumn<QByteArray>("stream");
    QTest::addColumn<double>("speed");
    QTest::addColumn<int>("lines");

    const auto rows = [](const char* name, const QByteArray& stream, int lines) {
        for (const double speed : {Fast, Hurried})
            QTest::newRow(qPrintable(QString::fromLatin1("%1, speed %2").arg(QLatin1String(name)).arg(speed)))
                << stream << speed << lines;
    };
    rows("empty", QByteArray(), 0);
    rows("one line", "$A*41\r\n", 1);
    rows("no line end", "$A*41", 1);
    rows("no line end of the last line", "$A*41\r\n$B", 2);
    rows("recording", Recording(), 3601);
    rows("no text", QByteArray(100000, '\0'), 25);
    QTest::newRow("speed that is no number") << Recording() << std::numeric_limits<double>::quiet_NaN() << 3601;
    QTest::newRow("speed below 0") << Recording() << -1.0 << 3601;
    QTest::newRow("speed beyond bounds") << Recording() << std::numeric_limits<double>::infinity() << 3601;
}

void NmeaInput::filesComeOutWhole()
{
    QFETCH(QByteArray, stream);
    QFETCH(double, speed);
    TNmeaInput input(tagFileAddress{Write(stream)}, speed);
    tagCatch caught(input);
    input.Start();
    QVERIFY(caught.lines.isEmpty()); // nothing before the event loop runs
    QVERIFY(caught.WaitForEnd());
    QVERIFY(caught.Ok());
    QCOMPARE(caught.Error(), QString());
    QCOMPARE(caught.Stream(), stream);
    QTEST(static_cast<int>(caught.lines.size()), "lines");
    QCOMPARE(caught.end.size(), 1);
}

void NmeaInput::theEventLoopRunsWhileAFileIsRead_data()
{
    QTest::addColumn<double>("speed");
    QTest::newRow("fast") << Fast;
    QTest::newRow("by its times") << Hurried;
}

void NmeaInput::theEventLoopRunsWhileAFileIsRead()
{
    QFETCH(double, speed);
    TNmeaInput input(tagFileAddress{Write(Recording())}, speed);
    tagCatch caught(input);
    int linesAtOnce = 0;
    int most = 0;
    connect(&input, &TNmeaInput::LineReceived, this, [&] { most = std::max(most, ++linesAtOnce); });
    QTimer other;
    connect(&other, &QTimer::timeout, this, [&] { linesAtOnce = 0; });
    other.start(0);
    input.Start();
    QVERIFY(caught.WaitForEnd());
    QVERIFY(most > 0);
    QVERIFY(most < caught.lines.size() / 2);
}

void NmeaInput::theNextLineOfAFileWaitsForItsTime()
{
    TNmeaInput input(tagFileAddress{Write(Recording())}, 1e-6); // the second line is due in eleven days
    tagCatch caught(input);
    input.Start();
    QVERIFY(caught.lines.wait(Deadline));
    for (int round = 0; round < 1000; ++round)
        QCoreApplication::processEvents();
    QCOMPARE(caught.lines.size(), 1);
    QVERIFY(caught.end.isEmpty());
    input.Stop();
    QVERIFY(caught.Ok());
}

void NmeaInput::linesOfAPipeComeAsTheyAreSent()
{
    tagPipe pipe;
    QVERIFY(pipe.isOpen);
    TNmeaInput input(tagFileAddress{QString::fromLatin1("/dev/fd/%1").arg(pipe.ends[0])},
                     1e-6); // which holds for files alone
    tagCatch caught(input);
    input.Start();

    pipe.Write("$GPZDA,120000.00,01,05,2024,,*60\r\n$GP");
    QVERIFY(caught.lines.wait(Deadline));
    QCOMPARE(caught.Stream(), QByteArray("$GPZDA,120000.00,01,05,2024,,*60\r\n"));
    pipe.Write("ZDA,130000.00,01,05,2024,,*61\r\nre");
    QVERIFY(caught.lines.wait(Deadline));
    QCOMPARE(caught.lines.size(), 2);
    QVERIFY(caught.end.isEmpty());
    pipe.Write("st");
    pipe.CloseWriter();
    QVERIFY(caught.WaitForEnd());
    QVERIFY(caught.Ok());
    QCOMPARE(caught.lines.last().value(0).toByteArray(), QByteArray("rest"));
}

void NmeaInput::aNamedPipeIsWaitedFor()
{
    const QString path = PathOf("pipe");
    QCOMPARE(mkfifo(QFile::encodeName(path).constData(), S_IRUSR | S_IWUSR), 0);
    TNmeaInput input(tagFileAddress{path});
    tagCatch caught(input);
    input.Start();
    for (int round = 0; round < 100; ++round)
        QCoreApplication::processEvents();
    QVERIFY(caught.end.isEmpty()); // nobody has opened the other end

    QFile writer(path);
    QVERIFY(writer.open(QIODevice::WriteOnly));
    writer.write("$A*41\r\n");
    writer.close();
    QVERIFY(caught.WaitForEnd());
    QVERIFY(caught.Ok());
    QCOMPARE(caught.Stream(), QByteArray("$A*41\r\n"));
}

void NmeaInput::theStandardInputIsRead_data()
{
    QTest::addColumn<bool>("isPipe");
    QTest::newRow("pipe") << true;
    QTest::newRow("file") << false;
}

void NmeaInput::theStandardInputIsRead()
{
    QFETCH(bool, isPipe);
    const QByteArray stream = "$A*41\r\n$B*42\n$C";
    tagPipe pipe;
    QFile file(Write(stream));
    QVERIFY(pipe.isOpen && file.open(QIODevice::ReadOnly));
    pipe.Write(stream);
    pipe.CloseWriter();

    const TStandardInput standardInput(isPipe ? pipe.ends[0] : file.handle());
    TNmeaInput input(tagFileAddress{QString::fromLatin1("-")});
    tagCatch caught(input);
    input.Start();
    QVERIFY(caught.WaitForEnd());
    QVERIFY(caught.Ok());
    QCOMPARE(caught.lines.size(), 3);
    QCOMPARE(caught.Stream(), stream);
}

void NmeaInput::theStandardInputStaysOpen()
{
    tagPipe pipe;
    QVERIFY(pipe.isOpen);
    const TStandardInput standardInput(pipe.ends[0]);
    {
        TNmeaInput input(tagFileAddress{QString::fromLatin1("-")});
        tagCatch caught(input);
        input.Start();
        pipe.Write("$A*41\r\n");
        QVERIFY(caught.lines.wait(Deadline));
        input.Stop();
    }
    pipe.Write("x");
    char byte = 0;
    QCOMPARE(read(STDIN_FILENO, &byte, 1), static_cast<ssize_t>(1));
    QCOMPARE(byte, 'x');
}

void NmeaInput::whatCannotBeReadIsNamed_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("error");

    const auto row = [](const char* name, const char* path, const char* error) {
        QTest::newRow(name) << QString::fromLatin1(path) << QString::fromLatin1(error);
    };
    row("missing file", "/no/such/stream.nmea", "cannot open /no/such/stream.nmea: No such file or directory");
    row("no name", "", "cannot open : No such file or directory");
    row("directory", "/", "cannot read /: Is a directory");
    row("part of the name is a file", "/dev/null/x", "cannot open /dev/null/x: Not a directory");
    row("read error", "/proc/self/mem", "cannot read /proc/self/mem: Input/output error");
}

void NmeaInput::whatCannotBeReadIsNamed()
{
    QFETCH(QString, path);
    TNmeaInput input(tagFileAddress{path});
    tagCatch caught(input);
    input.Start();
    QVERIFY(caught.end.isEmpty()); // told by the event loop, like everything else
    QVERIFY(caught.WaitForEnd());
    QVERIFY(!caught.Ok());
    QTEST(caught.Error(), "error");
    QVERIFY(caught.lines.isEmpty());
    input.Stop();
    QCOMPARE(caught.end.size(), 1);
}

void NmeaInput::itCanBeStopped_data()
{
    QTest::addColumn<bool>("isRunning");
    QTest::newRow("before the event loop runs") << false;
    QTest::newRow("while it waits") << true;
}

void NmeaInput::itCanBeStopped()
{
    QFETCH(bool, isRunning);
    tagPipe pipe;
    TNmeaInput input(tagFileAddress{QString::fromLatin1("/dev/fd/%1").arg(pipe.ends[0])});
    tagCatch caught(input);
    input.Stop();
    QVERIFY(caught.end.isEmpty()); // not started

    input.Start();
    pipe.Write("$A*41\r\n$B");
    if (isRunning)
        QVERIFY(caught.lines.wait(Deadline));
    input.Stop();
    QCOMPARE(caught.end.size(), 1);
    QVERIFY(caught.Ok());
    QCOMPARE(caught.Stream(), QByteArray(isRunning ? "$A*41\r\n$B" : "")); // the part that came of a line, too

    for (int round = 0; round < 100; ++round)
        QCoreApplication::processEvents();
    input.Stop();
    QCOMPARE(caught.end.size(), 1);
}

void NmeaInput::stoppingWithinALineIsTheEnd()
{
    TNmeaInput input(tagFileAddress{Write(Recording())});
    tagCatch caught(input);
    connect(&input, &TNmeaInput::LineReceived, this, [&] {
        if (caught.lines.size() == 10)
            input.Stop();
    });
    input.Start();
    QVERIFY(caught.WaitForEnd());
    QCOMPARE(caught.lines.size(), 10);
    QCOMPARE(caught.end.size(), 1);
    QVERIFY(caught.Ok());
}

void NmeaInput::itMayBeDestroyedWhileItRuns()
{
    tagPipe pipe;
    const QString path = QString::fromLatin1("/dev/fd/%1").arg(pipe.ends[0]);
    for (const int rounds : {0, 1, 10}) {
        TNmeaInput input(tagFileAddress{path});
        input.Start();
        for (int round = 0; round < rounds; ++round)
            QCoreApplication::processEvents();
    }
    pipe.Write("$A*41\r\n");
    for (int round = 0; round < 10; ++round)
        QCoreApplication::processEvents();
}

QTEST_GUILESS_MAIN(NmeaInput)
#include "NmeaInput.moc"
