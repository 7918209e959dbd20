#include "../system/TDisplay.h"
#include "CoreTest.h"

#include "logs/TNEMADiagnosticLogProxy.h"
#include "logs/TUserDiagnosticLogProxy.h"

#include <QtTest>

namespace {

const char* const UserLog = "data/Diagnostics/User%1.csv";
const char* const NMEALog = "data/Diagnostics/NMEA%1.csv";

QString Numbered(const char* log, int number) { return QString::fromLatin1(log).arg(number, 5, 10, QLatin1Char('0')); }

} // namespace

/// The user log and the NMEA log of a display, as they are set up for their purposes.
class TwoLogs : public QObject
{
    Q_OBJECT

private slots:
    void bothAreOpenAfterAStart();
    void userEntriesGoStraightToTheFile();
    void trafficIsGatheredFirst();
    void eachKeepsFourFilesOfItsSize_data();
    void eachKeepsFourFilesOfItsSize();
    void aShutDownWritesWhatIsGathered();
};

void TwoLogs::bothAreOpenAfterAStart()
{
    TDisplay display;
    display.store.values[10471] = 30;
    display.store.values[10472] = 50;
    TSettings settings;
    Settings = &settings;
    settings.Initialise();
    settings.Restore();
    QVERIFY(display.folder.Exists(Numbered(NMEALog, 30)));
    QVERIFY(display.folder.Exists(Numbered(UserLog, 50)));
    QCOMPARE(display.store.values[10471], QVariant(31));
    QCOMPARE(display.store.values[10472], QVariant(51));
}

void TwoLogs::userEntriesGoStraightToTheFile()
{
    TDisplay display;
    display.settings.Restore();
    QVERIFY(TUserDiagnosticLogProxy().LogDiagnostic("a", 1));
    QCOMPARE(display.folder.Content(Numbered(UserLog, 0)), QByteArray("a"));
    QCOMPARE(display.folder.Content(Numbered(NMEALog, 0)), QByteArray());
}

void TwoLogs::trafficIsGatheredFirst()
{
    TDisplay display;
    display.settings.Restore();
    TNEMADiagnosticLogProxy proxy;
    const QByteArray sentence(1023, '$');
    QVERIFY(proxy.Log(sentence.constData(), 1023));
    QCOMPARE(display.folder.Content(Numbered(NMEALog, 0)), QByteArray());
    QVERIFY(proxy.Log("*", 1));
    QCOMPARE(display.folder.Content(Numbered(NMEALog, 0)), QByteArray(sentence + '*'));
    QCOMPARE(display.folder.Content(Numbered(UserLog, 0)), QByteArray());

    proxy.Close();
    QVERIFY(!proxy.Log("lost", 4));
}

void TwoLogs::eachKeepsFourFilesOfItsSize_data()
{
    QTest::addColumn<bool>("isUserLog");
    QTest::addColumn<int>("size");
    QTest::newRow("user log") << true << 1048576;
    QTest::newRow("NMEA log") << false << 262144;
}

void TwoLogs::eachKeepsFourFilesOfItsSize()
{
    QFETCH(bool, isUserLog);
    QFETCH(int, size);
    const char* const log = isUserLog ? UserLog : NMEALog;
    TDisplay display;
    display.settings.Restore();
    TUserDiagnosticLogProxy userLog;
    TNEMADiagnosticLogProxy nmeaLog;
    TDiagnosticLogProxy* const proxy = isUserLog ? static_cast<TDiagnosticLogProxy*>(&userLog) : &nmeaLog;

    const int more = 1024; // too much to be gathered
    const QByteArray bytes(size + more, 'x');
    QVERIFY(proxy->LogDiagnostic(bytes.constData(), size));
    QVERIFY(!display.folder.Exists(Numbered(log, 1)));
    QVERIFY(proxy->LogDiagnostic(bytes.constData(), more));
    for (int number = 1; number <= 4; ++number) {
        QVERIFY(display.folder.Exists(Numbered(log, number)));
        QVERIFY(proxy->LogDiagnostic(bytes.constData(), size + more));
    }
    for (int number = 0; number <= 6; ++number)
        QCOMPARE(display.folder.Exists(Numbered(log, number)), number >= 2 && number <= 5);
}

void TwoLogs::aShutDownWritesWhatIsGathered()
{
    const TDisplay display;
    {
        TSettings settings;
        Settings = &settings;
        settings.Restore();
        QVERIFY(TNEMADiagnosticLogProxy().Log("$GPGGA", 6));
        QCOMPARE(display.folder.Content(Numbered(NMEALog, 0)), QByteArray());
    }
    QCOMPARE(display.folder.Content(Numbered(NMEALog, 0)), QByteArray("$GPGGA"));
}

int main(int argc, char** argv) { return RunCoreTest<TwoLogs>(argc, argv); }

#include "TwoLogs.moc"
