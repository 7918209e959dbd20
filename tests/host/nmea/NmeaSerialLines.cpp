#include "NmeaCatch.h"
#include "TPseudoTerminal.h"

#include <QTemporaryDir>

namespace {

const QByteArray Sentence = "$GPZDA,120000.00,01,05,2024,,*60\r\n";

} // namespace

class NmeaSerialLines : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_Folder = new QTemporaryDir; }
    void cleanup() { delete m_Folder; }

    void theLineIsSetUp_data();
    void theLineIsSetUp();
    void linesMayBeCutAnywhere();
    void everyByteComesThrough();
    void aMissingDeviceIsWaitedFor();
    void aVanishedDeviceIsWaitedFor();
    void aLossEndsTheLine();
    void whatIsNoSerialDeviceIsWaitedFor_data();
    void whatIsNoSerialDeviceIsWaitedFor();
    void itCanBeStoppedAtAnyMoment_data();
    void itCanBeStoppedAtAnyMoment();

private:
    QString Device() const { return m_Folder->filePath(QLatin1String("receiver")); }
    tagSerialAddress Address(int baud = 4800) const { return {Device(), baud}; }

    QTemporaryDir* m_Folder;
};

void NmeaSerialLines::theLineIsSetUp_data()
{
    QTest::addColumn<int>("baud");
    QTest::addColumn<unsigned>("code");
    QTest::newRow("4800") << 4800 << static_cast<unsigned>(B4800);
    QTest::newRow("9600") << 9600 << static_cast<unsigned>(B9600);
    QTest::newRow("19200") << 19200 << static_cast<unsigned>(B19200);
    QTest::newRow("38400") << 38400 << static_cast<unsigned>(B38400);
    QTest::newRow("57600") << 57600 << static_cast<unsigned>(B57600);
    QTest::newRow("115200") << 115200 << static_cast<unsigned>(B115200);
    QTest::newRow("230400") << 230400 << static_cast<unsigned>(B230400);
    QTest::newRow("460800") << 460800 << static_cast<unsigned>(B460800);
    QTest::newRow("921600") << 921600 << static_cast<unsigned>(B921600);
}

void NmeaSerialLines::theLineIsSetUp()
{
    QFETCH(int, baud);
    QFETCH(unsigned, code);
    const TPseudoTerminal receiver;
    QVERIFY(receiver.IsThere() && receiver.PlugIn(Device()));
    TNmeaInput input(Address(baud));
    tagCatch caught(input);
    input.Start();
    QVERIFY(receiver.Write(Sentence));
    QVERIFY(caught.WaitForLines(1));
    QCOMPARE(caught.Stream(), Sentence);

    const termios line = receiver.Line();
    QCOMPARE(cfgetispeed(&line), code);
    QCOMPARE(cfgetospeed(&line), code);
    QCOMPARE(line.c_cflag & (CSIZE | PARENB | CSTOPB | CRTSCTS), static_cast<tcflag_t>(CS8));
    QCOMPARE(line.c_iflag & (IXON | IXOFF | IXANY | ICRNL | ISTRIP), static_cast<tcflag_t>(0));
    QCOMPARE(line.c_lflag & (ICANON | ECHO | ISIG), static_cast<tcflag_t>(0));
    input.Stop();
    QVERIFY(caught.Ok());
    QVERIFY(caught.losses.isEmpty());
}

void NmeaSerialLines::linesMayBeCutAnywhere()
{
    const TPseudoTerminal receiver;
    QVERIFY(receiver.IsThere() && receiver.PlugIn(Device()));
    TNmeaInput input(Address());
    tagCatch caught(input);
    input.Start();
    for (int cut = 0; cut <= Sentence.size(); ++cut) {
        // The first line shows that what came with it has been received.
        QVERIFY(receiver.Write("$A*41\r\n" + Sentence.left(cut)));
        QVERIFY(caught.WaitForLines(2 * cut + 1));
        QVERIFY(receiver.Write(Sentence.mid(cut)));
        QVERIFY(caught.WaitForLines(2 * cut + 2));
        QCOMPARE(caught.Line(2 * cut), QByteArray("$A*41\r\n"));
        QCOMPARE(caught.Line(2 * cut + 1), Sentence);
    }
    QVERIFY(caught.losses.isEmpty());
}

void NmeaSerialLines::everyByteComesThrough()
{
    QByteArray bytes;
    for (int byte = 0; byte < 256; ++byte)
        bytes += static_cast<char>(byte);
    bytes += '\n';
    const TPseudoTerminal receiver;
    QVERIFY(receiver.IsThere() && receiver.PlugIn(Device()));
    TNmeaInput input(Address());
    tagCatch caught(input);
    input.Start();
    for (int round = 1; round <= 50; ++round) { // in portions that a line's buffer holds
        QVERIFY(receiver.Write(bytes));
        QVERIFY(caught.WaitForLines(2 * round));
    }
    QCOMPARE(caught.Stream(), bytes.repeated(50));
}

void NmeaSerialLines::aMissingDeviceIsWaitedFor()
{
    TNmeaInput input(Address());
    tagCatch caught(input);
    input.Start();
    QVERIFY(caught.losses.isEmpty()); // told by the event loop, like everything else
    QVERIFY(caught.WaitForLosses(1));
    QCOMPARE(caught.losses.at(0).at(0).toString(), QString::fromLatin1("no such device"));

    const TPseudoTerminal receiver;
    QVERIFY(receiver.IsThere() && receiver.Write(Sentence) && receiver.PlugIn(Device()));
    QVERIFY(caught.WaitForReturns(1));
    QVERIFY(caught.WaitForLines(1));
    QCOMPARE(caught.Stream(), Sentence);
    QCOMPARE(caught.losses.size(), 1);
    QVERIFY(caught.end.isEmpty());
}

void NmeaSerialLines::aVanishedDeviceIsWaitedFor()
{
    TNmeaInput input(Address());
    tagCatch caught(input);
    input.Start();
    QVERIFY(caught.WaitForLosses(1));
    for (int round = 1; round <= 3; ++round) {
        TPseudoTerminal receiver;
        QVERIFY(receiver.IsThere() && receiver.PlugIn(Device()));
        QVERIFY(caught.WaitForReturns(round));
        QVERIFY(receiver.Write(Sentence));
        QVERIFY(caught.WaitForLines(round));
        receiver.PullOut();
        QVERIFY(caught.WaitForLosses(round + 1));
        QVERIFY(!caught.losses.at(round).at(0).toString().isEmpty());
    }
    QCOMPARE(caught.Stream(), Sentence.repeated(3));
    QCOMPARE(caught.losses.size(), 4);
    QCOMPARE(caught.returns.size(), 3);
    QVERIFY(caught.end.isEmpty());
}

void NmeaSerialLines::aLossEndsTheLine()
{
    TNmeaInput input(Address());
    tagCatch caught(input);
    input.Start();
    {
        TPseudoTerminal receiver;
        QVERIFY(receiver.IsThere() && receiver.PlugIn(Device()) && receiver.Write(Sentence + "$GPZDA,12"));
        QVERIFY(caught.WaitForLines(1));
    }
    QVERIFY(caught.WaitForLosses(1));
    QCOMPARE(caught.Stream(), Sentence + "$GPZDA,12\r\n");

    const TPseudoTerminal receiver;
    QVERIFY(receiver.IsThere() && receiver.PlugIn(Device()) && receiver.Write("0000.00,01,05,2024,,*60\r\n"));
    QVERIFY(caught.WaitForLines(3));
    QCOMPARE(caught.Line(2), QByteArray("0000.00,01,05,2024,,*60\r\n"));
}

void NmeaSerialLines::whatIsNoSerialDeviceIsWaitedFor_data()
{
    QTest::addColumn<QString>("target");
    QTest::newRow("a folder") << "/tmp";
    QTest::newRow("a file") << QCoreApplication::applicationFilePath();
    QTest::newRow("another device") << "/dev/null";
}

void NmeaSerialLines::whatIsNoSerialDeviceIsWaitedFor()
{
    QFETCH(QString, target);
    QVERIFY(QFile::link(target, Device())); // a name of its own: by it Qt excludes other programs
    TNmeaInput input(Address());
    tagCatch caught(input);
    input.Start();
    QVERIFY(caught.WaitForLosses(1));
    QCOMPARE(caught.losses.at(0).at(0).toString(),
             QString::fromLatin1("it is not a serial device, or does not take these settings"));
    QVERIFY(caught.end.isEmpty());
}

void NmeaSerialLines::itCanBeStoppedAtAnyMoment_data()
{
    QTest::addColumn<QString>("moment");
    for (const char* moment : {"at once", "while it waits", "while it receives", "within a line", "after a loss"})
        QTest::newRow(moment) << QString::fromLatin1(moment);
}

void NmeaSerialLines::itCanBeStoppedAtAnyMoment()
{
    QFETCH(QString, moment);
    const auto is = [&](const char* text) { return moment == QLatin1String(text); };
    TPseudoTerminal receiver;
    QVERIFY(receiver.IsThere());
    TNmeaInput input(Address());
    tagCatch caught(input);
    if (is("while it receives"))
        connect(&input, &TNmeaInput::LineReceived, this, [&] { input.Stop(); });
    if (!is("while it waits"))
        QVERIFY(receiver.PlugIn(Device()) && receiver.Write(Sentence + "$B"));
    input.Start();
    if (is("while it waits")) {
        QVERIFY(caught.WaitForLosses(1));
    } else if (!is("at once")) {
        QVERIFY(caught.WaitForLines(1));
    }
    if (is("after a loss")) {
        receiver.PullOut();
        QVERIFY(caught.WaitForLosses(1));
    }
    input.Stop();
    QCOMPARE(caught.end.size(), 1);
    QVERIFY(caught.Ok());
    if (is("while it receives") || is("within a line"))
        QCOMPARE(caught.Stream(), Sentence + "$B");
    for (int round = 0; round < 100; ++round)
        QCoreApplication::processEvents();
    QCOMPARE(caught.end.size(), 1);
}

QTEST_GUILESS_MAIN(NmeaSerialLines)
#include "NmeaSerialLines.moc"
