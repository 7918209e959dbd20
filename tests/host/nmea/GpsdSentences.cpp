#include "NmeaCatch.h"
#include "Recordings.h"
#include "TGpsd.h"
#include "TPseudoTerminal.h"

#include "nmea/TNmeaReceiver.h"
#include "platform/TLocalTime.h"
#include "stores/TMemoryStore.h"
#include "terminal/TTerminal.h"

#include <cmath>

namespace {

/// A receiver that sends a recording again and again, line by line.
class TTestReceiver : public QObject
{
public:
    explicit TTestReceiver(const QString& recording)
    {
        const QByteArray stream = Recordings::Contents(Recordings::Own(recording));
        for (const QByteArray& line : stream.trimmed().split('\n'))
            m_Lines.append(line + '\n');
        m_Device.LoseWhatIsNotRead();
        connect(&m_Timer, &QTimer::timeout, this, [this] {
            const QByteArray& line = m_Lines.at(m_Next++ % m_Lines.size());
            if (m_Device.Write(line))
                m_Sent += line;
        });
        m_Timer.start(1);
    }

    QString Device() const { return m_Device.Name(); }

    /// What has gone out on the line.
    QByteArray Sent() const { return m_Sent; }

    int LineCount() const { return static_cast<int>(m_Lines.size()); }

private:
    TPseudoTerminal m_Device;
    QList<QByteArray> m_Lines;
    QTimer m_Timer;
    QByteArray m_Sent;
    int m_Next = 0;
};

/// The lines caught without gpsd's own answers.
QByteArray Sentences(const tagCatch& caught)
{
    QByteArray sentences;
    for (const QList<QVariant>& line : caught.lines) {
        const QByteArray text = line.value(0).toByteArray();
        if (text.startsWith('$'))
            sentences += text;
    }
    return sentences;
}

bool WaitForSentences(const tagCatch& caught, int count)
{
    return QTest::qWaitFor([&] { return Sentences(caught).count('\n') >= count; }, Deadline);
}

tagTcpAddress AddressOf(quint16 port) { return {QLatin1String("127.0.0.1"), port}; }

} // namespace

/// The receiver input on the gpsd of this machine.
class GpsdSentences : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        if (!QFileInfo(QLatin1String(CABSETTINGS_GPSD)).isExecutable())
            QSKIP("gpsd is not installed");
    }

    void theyComeAsTheReceiverSendsThem_data();
    void theyComeAsTheReceiverSendsThem();
    void theyComeAgainAfterARestart();
    void theySetTheClock();
};

void GpsdSentences::theyComeAsTheReceiverSendsThem_data()
{
    QTest::addColumn<QString>("recording");
    QTest::newRow("one talker") << "one-talker.nmea";
    QTest::newRow("four talkers") << "four-talkers.nmea";
    QTest::newRow("rising rate") << "rising-rate.nmea";
}

void GpsdSentences::theyComeAsTheReceiverSendsThem()
{
    QFETCH(QString, recording);
    const TTestReceiver receiver(recording);
    const quint16 port = FreePort();
    TGpsd gpsd(receiver.Device(), port);
    TNmeaInput input(AddressOf(port));
    tagCatch caught(input);
    input.Start();
    QVERIFY(WaitForSentences(caught, 2 * receiver.LineCount()));
    QVERIFY(gpsd.IsRunning());
    QVERIFY(caught.Line(0).startsWith("{\"class\":\"VERSION\""));
    const QByteArray sentences = Sentences(caught);
    QVERIFY2(receiver.Sent().contains(sentences), sentences.constData()); // each of them, and in that order
}

void GpsdSentences::theyComeAgainAfterARestart()
{
    const TTestReceiver receiver(QLatin1String("one-talker.nmea"));
    const quint16 port = FreePort();
    auto gpsd = std::make_unique<TGpsd>(receiver.Device(), port);
    TNmeaInput input(AddressOf(port));
    tagCatch caught(input);
    input.Start();
    QVERIFY(WaitForSentences(caught, 1));
    const int losses = static_cast<int>(caught.losses.size()); // one when it was asked before it listened
    gpsd.reset();
    QVERIFY(caught.WaitForLosses(losses + 1));

    caught.lines.clear();
    gpsd = std::make_unique<TGpsd>(receiver.Device(), port);
    QVERIFY(caught.WaitForReturns(losses + 1));
    QVERIFY(WaitForSentences(caught, receiver.LineCount()));
    QVERIFY(receiver.Sent().contains(Sentences(caught)));
    QVERIFY(caught.end.isEmpty());
}

void GpsdSentences::theySetTheClock()
{
    const QTemporaryDir folder;
    TMemoryStore store;
    store.SetParameter(PARAM_UTC_OFFSET_SET_BY_USER, true, true);
    store.SetParameter(PARAM_UTC_OFFSET_HOURS, 2, true);
    TTerminal terminal(store);
    QString error;
    QVERIFY2(terminal.Start(folder.path(), &error), qPrintable(error));

    const TTestReceiver receiver(QLatin1String("one-talker.nmea")); // from 06:00:00 to 06:00:09 on 1 May 2024
    const quint16 port = FreePort();
    TGpsd gpsd(receiver.Device(), port);
    TNmeaReceiver lines(NMEA_RECORDED);
    TNmeaInput input(AddressOf(port));
    connect(&input, &TNmeaInput::LineReceived, this, [&](const QByteArray& line) { lines.Receive(line); });
    input.Start();
    const TNmeaReceiver::tagStatus& status = lines.GetStatus();
    QVERIFY(QTest::qWaitFor([&] { return status.sentences >= 2 * receiver.LineCount(); }, Deadline));
    input.Stop();
    QVERIFY(gpsd.IsRunning());
    QVERIFY(status.hasFix);
    QCOMPARE(status.badChecksums, qint64(0));
    QCOMPARE(status.utc.date(), QDate(2024, 5, 1));
    QCOMPARE(status.utc.time().hour(), 6);
    QCOMPARE(qRound(status.latitude * 100), 5220);
    QCOMPARE(TLocalTime::currentDate(), QDate(2024, 5, 1));
    QCOMPARE(TLocalTime::currentTime().hour(), 8);
}

QTEST_GUILESS_MAIN(GpsdSentences)
#include "GpsdSentences.moc"
