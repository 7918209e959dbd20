#include "TQuickTerminal.h"

#include "../../host/nmea/TReceiverServer.h"

#include "nmea/NmeaChecksum.h"
#include "parameters/HostParameters.h"
#include "receiver/SimulatedField.h"
#include "receiver/TReceiver.h"
#include "region/TRegionSettingsProxy.h"

#include <cmath>

/// The receiver in QML: what it says while its stream comes, stops, is lost and ends.
class ReceiverStates : public QObject
{
    Q_OBJECT

private slots:
    void itIsOffAtFirst();
    void theSimulatorDrives();
    void aPositionIsToldOnceForEachEpoch();
    void aServerIsLostAndComesBack();
    void silenceIsSaid();
    void aRecordingIsPlayedToItsEnd();
    void aRecordingOfTheDisplayIsItsTime();
    void anAddressThatCannotBeReadIsSaid_data();
    void anAddressThatCannotBeReadIsSaid();
    void aNewAddressIsUsedAtOnce();
    void aLostFixIsSaid();
    void itMayBeStoppedAtAnyTime();
    void whatIsShownStaysCurrent();
    void aRunningReceiverShowsNothingElse();

private:
    static QMap<int, QVariant> At(const QString& address) { return {{PARAM_RECEIVER_ADDRESS, address}}; }
    static QString AddressOf(const TReceiverServer& server)
    {
        return QString::fromLatin1("tcp://127.0.0.1:%1").arg(server.Port());
    }

    static QByteArray Line(const QByteArray& body) { return '$' + body + NmeaChecksum(body) + "\r\n"; }

    /// An epoch of RMC and GGA, ten of them a second.
    static QByteArray Epoch(int tenths, const char* status = "A", int quality = 4)
    {
        const QByteArray time = "1200" + QByteArray::number(tenths / 10).rightJustified(2, '0') + '.' +
                                QByteArray::number(tenths % 10) + "0";
        const QByteArray position = "5200.0000" + QByteArray::number(tenths % 10) + ",N,01000.00000,E";
        return Line("GNRMC," + time + ',' + status + ',' + position + ",10.000,015.00,010526,,,R") +
               Line("GNGGA," + time + ',' + position + ',' + QByteArray::number(quality) + ",14,0.8,80.0,M,0.0,M,1,1");
    }
};

void ReceiverStates::itIsOffAtFirst()
{
    const TQuickTerminal terminal;
    QCOMPARE(terminal.Text("Receiver.address"), QLatin1String("simulator"));
    QCOMPARE(terminal.Get("Receiver.running").toBool(), false);
    QCOMPARE(terminal.Text("Receiver.state"), QLatin1String("off"));
    QCOMPARE(terminal.Text("Receiver.reason"), QString());
    QCOMPARE(terminal.Get("Receiver.hasFix").toBool(), false);
    QVERIFY(terminal.Get("isNaN(Receiver.latitude) && isNaN(Receiver.age)").toBool());
    QCOMPARE(terminal.Text("Receiver.ageText"), QString());
    QCOMPARE(&CabQuick::Receiver(), terminal.Named("Receiver"));
}

void ReceiverStates::theSimulatorDrives()
{
    const TQuickTerminal terminal;
    QSignalSpy positions(terminal.Named("Receiver"), SIGNAL(positionChanged()));
    terminal.Get("Receiver.running = true");
    QCOMPARE(terminal.Text("Receiver.state"), QLatin1String("connecting"));
    QTRY_VERIFY_WITH_TIMEOUT(positions.size() >= 20, Patience);
    QCOMPARE(terminal.Text("Receiver.state"), QLatin1String("receiving"));
    QVERIFY(terminal.Get("Receiver.hasFix").toBool());
    QCOMPARE(terminal.Get("Receiver.quality").toInt(), 4);
    QCOMPARE(terminal.Text("Receiver.fixText"), QLatin1String("RTK"));
    QCOMPARE(terminal.Text("Receiver.ageText"), QString::fromLatin1("0.1 s"));
    const tagFieldPlan plan = CabQuick::SimulatedPlan();
    QVERIFY(std::abs(terminal.Get("Receiver.latitude").toDouble() - plan.latitude) < 0.01);
    QVERIFY(std::abs(terminal.Get("Receiver.longitude").toDouble() - plan.longitude) < 0.01);
    QVERIFY(terminal.Get("Receiver.speed").toDouble() > 0);
    const qint64 behind = CabQuick::Receiver().Status().utc.secsTo(QDateTime::currentDateTimeUtc());
    QVERIFY2(std::abs(behind) <= Deadline / 1000, qPrintable(QString::number(behind)));
    QTRY_VERIFY_WITH_TIMEOUT(terminal.Get("Receiver.lines").toDouble() >= 80, Patience);
    QCOMPARE(terminal.Get("Receiver.badChecksums").toDouble(), 0.0);
    QCOMPARE(terminal.Store().GetParameter(PARAM_NEWEST_TIME), QVariant()); // a real receiver is checked without it
}

void ReceiverStates::aPositionIsToldOnceForEachEpoch()
{
    TReceiverServer server;
    QVERIFY(server.Listen());
    const TQuickTerminal terminal(At(AddressOf(server)));
    QList<double> latitudes;
    QObject::connect(&CabQuick::Receiver(), &TReceiver::positionChanged,
                     [&latitudes] { latitudes.append(CabQuick::Receiver().Status().latitude); });
    terminal.Get("Receiver.running = true");
    const auto client = server.Accept();
    QVERIFY(client);
    QByteArray stream;
    for (int tenth = 0; tenth < 10; ++tenth)
        stream += Epoch(tenth);
    QVERIFY(TReceiverServer::Send(*client, stream)); // all at once, as after a stall
    QTRY_COMPARE_WITH_TIMEOUT(latitudes.size(), 10, Patience);
    for (int tenth = 0; tenth < 10; ++tenth)
        QVERIFY(std::abs(latitudes.at(tenth) - (52 + tenth * 0.00001 / 60)) < 1e-9);
    QCOMPARE(terminal.Get("Receiver.satellites").toInt(), 14);
    QCOMPARE(terminal.Text("Receiver.satellitesText"), QLatin1String("14"));
    QCOMPARE(terminal.Get("Receiver.hdop").toDouble(), 0.8);
    QCOMPARE(terminal.Get("Receiver.hdopText").toString(), QString::fromLatin1("0.8"));
}

void ReceiverStates::aServerIsLostAndComesBack()
{
    TReceiverServer server;
    QVERIFY(server.Listen());
    const TQuickTerminal terminal(At(AddressOf(server)));
    terminal.Get("Receiver.running = true");
    auto client = server.Accept();
    QVERIFY(client);
    QVERIFY(TReceiverServer::Send(*client, Epoch(1) + Epoch(2)));
    QTRY_COMPARE_WITH_TIMEOUT(terminal.Text("Receiver.state"), QLatin1String("receiving"), Patience);
    QTRY_VERIFY_WITH_TIMEOUT(terminal.Get("Receiver.hasFix").toBool(), Patience);
    client.reset();
    QTRY_COMPARE_WITH_TIMEOUT(terminal.Text("Receiver.state"), QLatin1String("lost"), Patience);
    QVERIFY(!terminal.Text("Receiver.reason").isEmpty());
    QCOMPARE(terminal.Text("Problems.first"), terminal.Text("Receiver.reason"));
    QVERIFY(!terminal.Get("Receiver.hasFix").toBool());
    QVERIFY(!terminal.Get("isNaN(Receiver.latitude)").toBool()); // the last known
    client = server.Accept();
    QVERIFY(client);
    QVERIFY(TReceiverServer::Send(*client, Epoch(30) + Epoch(31)));
    QTRY_COMPARE_WITH_TIMEOUT(terminal.Text("Receiver.state"), QLatin1String("receiving"), Patience);
    QTRY_VERIFY_WITH_TIMEOUT(terminal.Get("Receiver.hasFix").toBool(), Patience);
    QCOMPARE(terminal.Get("Problems.count").toInt(), 0);
}

void ReceiverStates::silenceIsSaid()
{
    TReceiverServer server;
    QVERIFY(server.Listen());
    const TQuickTerminal terminal(At(AddressOf(server)));
    terminal.Get("Receiver.running = true");
    const auto client = server.Accept();
    QVERIFY(client);
    QVERIFY(TReceiverServer::Send(*client, Epoch(1) + Epoch(2)));
    QTRY_VERIFY_WITH_TIMEOUT(terminal.Get("Receiver.hasFix").toBool(), Patience);
    QTRY_COMPARE_WITH_TIMEOUT(terminal.Text("Receiver.state"), QLatin1String("silent"), Deadline);
    QVERIFY(!terminal.Get("Receiver.hasFix").toBool());
    QCOMPARE(terminal.Text("Problems.first"), terminal.Text("Receiver.reason"));
    QVERIFY(terminal.Get("Receiver.age").toDouble() >= 2);
    QVERIFY(TReceiverServer::Send(*client, Epoch(51) + Epoch(52)));
    QTRY_COMPARE_WITH_TIMEOUT(terminal.Text("Receiver.state"), QLatin1String("receiving"), Patience);
    QTRY_VERIFY_WITH_TIMEOUT(terminal.Get("Receiver.hasFix").toBool(), Patience);
    QCOMPARE(terminal.Get("Problems.count").toInt(), 0);
}

void ReceiverStates::aRecordingIsPlayedToItsEnd()
{
    const TTemporaryFolder folder;
    QByteArray recording;
    for (int tenth = 0; tenth < 12; ++tenth)
        recording += Epoch(tenth);
    recording += "$GNGGA,damaged*00\r\nnoise\r\n";
    folder.MakeFile(QLatin1String("field.nmea"), recording);
    const TQuickTerminal terminal(At(folder.Path(QLatin1String("field.nmea"))));
    QSignalSpy positions(terminal.Named("Receiver"), SIGNAL(positionChanged()));
    terminal.Get("Receiver.running = true");
    QTRY_COMPARE_WITH_TIMEOUT(terminal.Text("Receiver.state"), QLatin1String("ended"), Patience);
    QCOMPARE(positions.size(), 12);
    QCOMPARE(terminal.Text("Receiver.utc"), QLatin1String("2026-05-01 12:00:01"));
    QCOMPARE(terminal.Get("Receiver.lines").toDouble(), 26.0);
    QCOMPARE(terminal.Get("Receiver.sentences").toDouble(), 24.0);
    QCOMPARE(terminal.Get("Receiver.badChecksums").toDouble(), 1.0);
    QCOMPARE(terminal.Get("Receiver.damagedLines").toDouble(), 1.0);
    QCOMPARE(terminal.Text("Receiver.linesText"), QLatin1String("26"));
    QCOMPARE(terminal.Text("Receiver.sentencesText"), QLatin1String("24"));
    QCOMPARE(terminal.Text("Receiver.badChecksumsText"), QLatin1String("1"));
    QCOMPARE(terminal.Text("Receiver.damagedLinesText"), QLatin1String("1"));
    QVERIFY(terminal.Get("Receiver.running").toBool());
    QVERIFY(!terminal.Text("Receiver.reason").isEmpty());
    QCOMPARE(terminal.Text("Problems.first"), terminal.Text("Receiver.reason"));
    terminal.Get("Receiver.running = false");
    QCOMPARE(terminal.Text("Receiver.state"), QLatin1String("off"));
    QCOMPARE(terminal.Get("Problems.count").toInt(), 0);
}

void ReceiverStates::aRecordingOfTheDisplayIsItsTime()
{
    const TTemporaryFolder folder;
    folder.MakeFile(QLatin1String("field.nmea"), Epoch(0) + Epoch(1));
    const TQuickTerminal terminal(At(folder.Path(QLatin1String("field.nmea"))));
    terminal.Get("Receiver.running = true");
    QTRY_COMPARE_WITH_TIMEOUT(terminal.Text("Receiver.state"), QLatin1String("ended"), Patience);
    const QDateTime local = QDateTime(QDate(2026, 5, 1), QTime(12, 0), Qt::UTC).toLocalTime();
    QCOMPARE(TRegionSettingsProxy().GetDate(), local.date());
    QCOMPARE(TRegionSettingsProxy().GetTime().hour(), local.time().hour());
    QTRY_COMPARE_WITH_TIMEOUT(terminal.Text("Clock.source"), QLatin1String("receiver"), Patience);
}

void ReceiverStates::anAddressThatCannotBeReadIsSaid_data()
{
    QTest::addColumn<QString>("address");
    QTest::newRow("no file") << QString::fromLatin1("/nowhere/field.nmea");
    QTest::newRow("a folder") << QString::fromLatin1("/");
    QTest::newRow("no address") << QString::fromLatin1("tcp://");
}

void ReceiverStates::anAddressThatCannotBeReadIsSaid()
{
    QFETCH(QString, address);
    const TQuickTerminal terminal(At(address));
    terminal.Get("Receiver.running = true");
    QTRY_COMPARE_WITH_TIMEOUT(terminal.Text("Receiver.state"), QLatin1String("lost"), Patience);
    QVERIFY(!terminal.Text("Receiver.reason").isEmpty());
    QCOMPARE(terminal.Text("Problems.first"), terminal.Text("Receiver.reason"));
}

void ReceiverStates::aNewAddressIsUsedAtOnce()
{
    const TQuickTerminal terminal(At(QLatin1String("/nowhere/field.nmea")));
    terminal.Get("Receiver.running = true");
    QTRY_COMPARE_WITH_TIMEOUT(terminal.Text("Receiver.state"), QLatin1String("lost"), Patience);
    terminal.Store().SetParameter(PARAM_RECEIVER_ADDRESS, QLatin1String("simulator"), true);
    QTRY_COMPARE_WITH_TIMEOUT(terminal.Text("Receiver.address"), QLatin1String("simulator"), Patience);
    QTRY_COMPARE_WITH_TIMEOUT(terminal.Text("Receiver.state"), QLatin1String("receiving"), Patience);
    QCOMPARE(terminal.Get("Problems.count").toInt(), 0);
}

void ReceiverStates::aLostFixIsSaid()
{
    TReceiverServer server;
    QVERIFY(server.Listen());
    const TQuickTerminal terminal(At(AddressOf(server)));
    terminal.Get("Receiver.running = true");
    const auto client = server.Accept();
    QVERIFY(client);
    QVERIFY(TReceiverServer::Send(*client, Epoch(1, "A", 5) + Epoch(2, "A", 5)));
    QTRY_COMPARE_WITH_TIMEOUT(terminal.Get("Receiver.quality").toInt(), 5, Patience);
    const QString floating = terminal.Text("Receiver.fixText");
    QSignalSpy positions(terminal.Named("Receiver"), SIGNAL(positionChanged()));
    QVERIFY(TReceiverServer::Send(*client, Line("GNRMC,120000.30,V,,,,,,,010526,,,N") +
                                               Line("GNGGA,120000.30,,,,,0,03,,,M,,M,,")));
    QTRY_VERIFY_WITH_TIMEOUT(!terminal.Get("Receiver.hasFix").toBool(), Patience);
    QTRY_COMPARE_WITH_TIMEOUT(terminal.Get("Receiver.satellites").toInt(), 3, Patience);
    QCOMPARE(terminal.Get("Receiver.quality").toInt(), 0);
    QVERIFY(terminal.Text("Receiver.fixText") != floating);
    QVERIFY(positions.size() <= 1); // of the second epoch
    QCOMPARE(terminal.Text("Receiver.state"), QLatin1String("receiving"));
}

void ReceiverStates::itMayBeStoppedAtAnyTime()
{
    const TQuickTerminal terminal;
    for (int round = 0; round < 20; ++round) {
        terminal.Get("Receiver.running = true");
        if (round % 3 == 0)
            QTRY_COMPARE_WITH_TIMEOUT(terminal.Text("Receiver.state"), QLatin1String("receiving"), Patience);
        terminal.Get("Receiver.running = false");
        QCOMPARE(terminal.Text("Receiver.state"), QLatin1String("off"));
    }
    terminal.Get("Receiver.running = true"); // the terminal ends while it runs
}

void ReceiverStates::whatIsShownStaysCurrent()
{
    const TQuickTerminal terminal;
    TReceiver& receiver = CabQuick::Receiver();
    terminal.Store().SetParameter(PARAM_DAY_MODE, false, true); // it is noon in the sentences
    QSignalSpy positions(&receiver, &TReceiver::positionChanged);
    for (int tenth = 0; tenth < 15; ++tenth)
        receiver.Show(Epoch(tenth));
    QCOMPARE(positions.size(), 15);
    QCOMPARE(receiver.State(), TReceiver::STATE_RECEIVING);
    QCOMPARE(receiver.IsRunning(), false);
    QCOMPARE(receiver.FixText(), QLatin1String("RTK"));
    QCOMPARE(receiver.AgeText(), QLatin1String("0.1 s"));
    QCOMPARE(receiver.Lines(), 30.0);
    QCOMPARE(receiver.Utc(), QLatin1String("2026-05-01 12:00:01"));
    QCOMPARE(TRegionSettingsProxy().GetDate(), QDate(2026, 5, 1));
    QCOMPARE(terminal.Store().GetParameter(PARAM_DAY_MODE).toBool(), false);
    QSignalSpy states(&receiver, &TReceiver::stateChanged);
    QSignalSpy ages(&receiver, &TReceiver::ageChanged);
    QVERIFY(!states.wait(TReceiver::SilenceMs + 1000));
    QCOMPARE(ages.size(), 0);
}

void ReceiverStates::aRunningReceiverShowsNothingElse()
{
    TReceiverServer server;
    QVERIFY(server.Listen());
    const TQuickTerminal terminal(At(AddressOf(server)));
    TReceiver& receiver = CabQuick::Receiver();
    receiver.Show(Epoch(0));
    QCOMPARE(receiver.Lines(), 2.0);
    receiver.SetRunning(true);
    QCOMPARE(receiver.State(), TReceiver::STATE_CONNECTING);
    QCOMPARE(receiver.Lines(), 0.0);
    receiver.Show(Epoch(1));
    QCOMPARE(receiver.State(), TReceiver::STATE_CONNECTING);
    QCOMPARE(receiver.Lines(), 0.0);
}

QTEST_GUILESS_MAIN(ReceiverStates)
#include "ReceiverStates.moc"
