#include "Latin1.h"
#include "MachineLocales.h"
#include "TTemporaryFolder.h"
#include "TestHost.h"

#include "logs/TUserDiagnosticLogProxy.h"
#include "nmea/NmeaChecksum.h"
#include "nmea/SentenceWriter.h"
#include "nmea/TNmeaReceiver.h"
#include "settings/TSettings.h"

#include <QLocale>

/// The language and place that a machine was set up for change neither what is taken from a receiver nor what a
/// simulated one sends.
class NmeaMachineLocale : public QObject
{
    Q_OBJECT

public:
    explicit NmeaMachineLocale(const QMap<QByteArray, QStringList>& texts) : m_Texts(texts) {}

private slots:
    void timesAreTakenAndSentInEveryLocale_data() { AddMachineLocales(); }
    void timesAreTakenAndSentInEveryLocale();

private:
    QMap<QByteArray, QStringList> m_Texts;
};

namespace {

const QDateTime Moment(QDate(2024, 5, 1), QTime(11, 7, 9), Qt::UTC);

/// The locale that Qt goes by, what is sent at that moment, the clock after that was received, and the entries.
QStringList Exchange()
{
    TTestClock::Reset();
    TTestStore store;
    store.values[PARAM_UTC_OFFSET_HOURS] = 2;
    store.values[PARAM_UTC_OFFSET_SET_BY_USER] = true;
    TSettings settings;
    Settings = &settings;
    const TTemporaryFolder folder;
    TUserDiagnosticLogProxy().Restore(folder.Path(Latin1("user.log")), 1, 0);

    TNmeaReceiver receiver(NMEA_RECORDED);
    const QByteArray sent = WriteSentences("GN", {Moment, 52.2, 10.5, 80, 0, 0});
    const QList<QByteArray> lines = sent.split('\n');
    for (const QByteArray& line : lines)
        receiver.Receive(line + '\n');

    TUserDiagnosticLogProxy().Close();
    Settings = nullptr;
    return {QLocale::system().name(), QString::fromLatin1(sent),
            QDateTime(TTestClock::date, TTestClock::time).toString(Qt::ISODate),
            QString::fromLatin1(folder.Content(Latin1("user.log")))};
}

QByteArray Sentence(const QByteArray& body) { return '$' + body + NmeaChecksum(body) + "\r\n"; }

} // namespace

void NmeaMachineLocale::timesAreTakenAndSentInEveryLocale()
{
    QFETCH(QByteArray, locale);
    const QStringList texts = m_Texts.value(locale);
    QCOMPARE(static_cast<int>(texts.size()), 4);
    QCOMPARE(texts.at(0), QString::fromLatin1(locale).section(QLatin1Char('.'), 0, 0));
    const QByteArray position = "5212.0000000,N,01030.0000000,E";
    QCOMPARE(texts.at(1), QString::fromLatin1(Sentence("GNRMC,110709.000,A," + position + ",0.000,000.00,010524,,,R") +
                                              Sentence("GNGGA,110709.000," + position + ",4,12,0.7,80.0,M,0.0,M,1,1") +
                                              Sentence("GNVTG,000.00,T,,M,0.000,N,0.000,K,R") +
                                              Sentence("GNZDA,110709.000,01,05,2024,00,00")));
    QCOMPARE(texts.at(2), Latin1("2024-05-01T13:07:09"));
    QVERIFY2(texts.at(3).endsWith(Latin1(",2024-05-01T11:07:09Z,2024-05-01T13:07:09\r\n")), qPrintable(texts.at(3)));
}

int main(int argc, char** argv)
{
    NmeaMachineLocale test(InMachineLocales(Exchange));
    const QCoreApplication application(argc, argv);
    return QTest::qExec(&test, argc, argv);
}

#include "NmeaMachineLocale.moc"
