#include "TReceivingDisplay.h"

#include "diagnostics/EReceiverEvent.h"
#include "nmea/NmeaChecksum.h"
#include "nmea/TNmeaReceiver.h"
#include "nmea/TTimeGuard.h"
#include "parameters/ETimeSource.h"
#include "parameters/HostParameters.h"
#include "parameters/UtcText.h"
#include "platform/BuildDate.h"
#include "region/TRegionSettingsProxy.h"

#include <QtTest>

#include <cmath>

namespace {

QByteArray Line(const QByteArray& body) { return '$' + body + NmeaChecksum(body) + "\r\n"; }

QByteArray Rmc(const char* time, char status = 'A', const char* date = "010524")
{
    return Line(QByteArray("GPRMC,") + time + ',' + status + ",5212.0000000,N,01030.0000000,E,10.000,90.00," + date +
                ",,,A");
}

QByteArray RmcAt(const QDateTime& utc)
{
    return Rmc(QLocale::c().toString(utc, QLatin1String("HHmmss.zzz")).toLatin1().constData(), 'A',
               QLocale::c().toString(utc, QLatin1String("ddMMyy")).toLatin1().constData());
}

QByteArray Gga(const char* time, char quality)
{
    return Line(QByteArray("GPGGA,") + time + ",5212.0000000,N,01030.0000000,E," + quality + ",12,0.7,80.5,M,0.0,M,,");
}

QByteArray Zda(const char* time) { return Line(QByteArray("GPZDA,") + time + ",01,05,2024,00,00"); }

QByteArray Damaged(QByteArray line) { return line.replace(8, 1, "x"); }

using TLines = QList<QByteArray>;

} // namespace

class NmeaReceiver : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_Display = std::make_unique<TReceivingDisplay>(); }
    void cleanup() { m_Display.reset(); }

    void everyLineIsLoggedAsReceived();
    void aClosedLogIsCounted();
    void linesAreCountedByTheirWorth();

    void onlyValidTimesReachTheClock_data();
    void onlyValidTimesReachTheClock();
    void theClockIsSetOnceASecond();
    void theClockGoesByTheOperatorsOffset();

    void eventsReachTheUserLog_data();
    void eventsReachTheUserLog();
    void aFixThatComesAndGoesDoesNotFillTheLog_data();
    void aFixThatComesAndGoesDoesNotFillTheLog();
    void entriesCarryTheClockAsItStands();

    void badChecksumsAreReportedByTheMinute_data();
    void badChecksumsAreReportedByTheMinute();

    void timesOfALiveReceiverAreChecked_data();
    void timesOfALiveReceiverAreChecked();
    void aReasonIsToldOnceUntilItIsOver();
    void theNewestTimeIsKeptOnceADay();
    void theSourceOfTheTimeIsKept();

    void theStatusShowsTheLastValues();
    void valuesWithoutAFixAreNotTaken();

private:
    /// What the display has seen, in the tests of live receivers.
    static QDateTime Newest() { return QDateTime(BuildDate().addDays(400), QTime(11, 7, 0), Qt::UTC); }

    /// The entries about the check of times, from the code on.
    QStringList ChecksOfTime() const
    {
        QStringList checks;
        for (const QString& entry : m_Display->Entries()) {
            const QString check = entry.section(QLatin1Char('/'), 2);
            if (check.startsWith(QLatin1String("7,")) || check.startsWith(QLatin1String("8,")))
                checks.append(check);
        }
        return checks;
    }

    std::unique_ptr<TReceivingDisplay> m_Display;
};

void NmeaReceiver::everyLineIsLoggedAsReceived()
{
    const TLines lines = {Rmc("110709.00"),
                          Damaged(Rmc("110710.00")),
                          QByteArray("\0\xff\x80 noise\n", 10),
                          "\r\n",
                          "$GPGSV,3,1",
                          QByteArray(4096, '\0'),
                          Gga("110711.00", '1').replace("\r\n", "\n"),
                          "$GPTXT,no checksum\r\n",
                          "$GPRMC,1107"};
    TNmeaReceiver receiver(NMEA_RECORDED);
    for (const QByteArray& line : lines)
        receiver.Receive(line);
    QCOMPARE(receiver.GetStatus().unloggedLines, qint64(0));
    QCOMPARE(m_Display->NmeaLog(), lines.join());
}

void NmeaReceiver::aClosedLogIsCounted()
{
    TNmeaReceiver receiver(NMEA_RECORDED);
    receiver.Receive(Rmc("110709.00"));
    TNEMADiagnosticLogProxy().Close();
    receiver.Receive(Rmc("110710.00"));
    QCOMPARE(receiver.GetStatus().unloggedLines, qint64(1));
    QCOMPARE(receiver.GetStatus().utc.time(), QTime(11, 7, 10)); // and used all the same
}

void NmeaReceiver::linesAreCountedByTheirWorth()
{
    TNmeaReceiver receiver(NMEA_RECORDED);
    const TLines lines = {
        Rmc("110709.00"),  Line("PXYZ,1"), Line("GPGSV,1,1,00"), Damaged(Zda("110709.00")), "$GPTXT\r\n",
        "no sentence\r\n", "\r\n"};
    for (const QByteArray& line : lines)
        receiver.Receive(line);
    const TNmeaReceiver::tagStatus& status = receiver.GetStatus();
    QCOMPARE(status.lines, qint64(7));
    QCOMPARE(status.sentences, qint64(3));
    QCOMPARE(status.badChecksums, qint64(1));
    QCOMPARE(status.damagedLines, qint64(3));
}

void NmeaReceiver::onlyValidTimesReachTheClock_data()
{
    QTest::addColumn<TLines>("lines");
    QTest::addColumn<QDateTime>("utc"); // invalid: the clock is left alone

    const auto row = [](const char* name, const TLines& lines, const QDateTime& utc = QDateTime()) {
        QTest::newRow(name) << lines << utc;
    };
    const auto at = [](int hour, int minute, int second, QDate date = QDate(2024, 5, 1)) {
        return QDateTime(date, QTime(hour, minute, second), Qt::UTC);
    };
    const QByteArray fixed = Rmc("110709.00");

    row("nothing", {});
    row("RMC", {fixed}, at(11, 7, 9));
    row("RMC of another talker", {Line("GNRMC,110709.00,A,5212.0,S,01030.0,W,,,010524,,,A")}, at(11, 7, 9));
    row("RMC without fractions", {Rmc("110709")}, at(11, 7, 9));
    row("fractions are dropped", {Rmc("110709.999")}, at(11, 7, 9));
    row("the last one counts", {fixed, Rmc("110710.00"), Rmc("110711.00")}, at(11, 7, 11));
    row("time may run backwards", {fixed, Rmc("110708.00")}, at(11, 7, 8));
    row("midnight", {Rmc("235959.00", 'A', "280224"), Rmc("000000.00", 'A', "290224")},
        at(0, 0, 0, QDate(2024, 2, 29)));
    row("the last year of two digits", {Rmc("110709.00", 'A', "311299")}, at(11, 7, 9, QDate(2099, 12, 31)));
    row("RMC with status V", {Rmc("110709.00", 'V')});
    row("RMC without a position", {Line("GPRMC,110709.00,A,,,,,,,010524,,,A")});
    row("RMC without a date", {Rmc("110709.00", 'A', "")});
    row("RMC with half a date", {Rmc("110709.00", 'A', "0105")});
    row("RMC of a day that does not exist", {Rmc("110709.00", 'A', "310424")});
    row("RMC without a time", {Rmc("")});
    row("RMC with a damaged checksum", {Damaged(fixed)});
    row("RMC without a checksum", {fixed.left(fixed.indexOf('*')) + "\r\n"});
    row("RMC cut short", {fixed.left(40)});
    row("no such hour", {fixed, Rmc("250709.00")}, at(11, 7, 9));
    row("leap second", {Rmc("235959.00"), Rmc("235960.00"), Rmc("235960.50")}, at(23, 59, 59));
    row("GGA", {Gga("110709.00", '1'), Gga("110710.00", '1')});
    row("GLL", {fixed, Line("GPGLL,5212.0,N,01030.0,E,110712.00,A,A")}, at(11, 7, 9));
    row("ZDA without a fix", {Zda("110709.00")});
    row("ZDA after a lost fix", {fixed, Rmc("110710.00", 'V'), Zda("110710.00")}, at(11, 7, 9));
    row("ZDA beside RMC", {fixed, Zda("110710.00")}, at(11, 7, 10));
    row("ZDA beside GGA", {Gga("110709.00", '1'), Zda("110709.00"), Gga("110710.00", '1'), Zda("110710.00")},
        at(11, 7, 10));
    row("ZDA with two digits of the year", {fixed, Line("GPZDA,110712.00,01,05,24,00,00")}, at(11, 7, 9));
    row("ZDA before 2000", {fixed, Line("GPZDA,110712.00,06,01,1980,00,00")}, at(11, 7, 9));
}

void NmeaReceiver::onlyValidTimesReachTheClock()
{
    QFETCH(TLines, lines);
    QFETCH(QDateTime, utc);
    const QDateTime before = TReceivingDisplay::Clock();
    TNmeaReceiver receiver(NMEA_RECORDED);
    for (const QByteArray& line : lines)
        receiver.Receive(line);

    QCOMPARE(TReceivingDisplay::Clock(), utc.isValid() ? TReceivingDisplay::LocalTime(utc) : before);
    QCOMPARE(receiver.GetStatus().utc.isValid(), utc.isValid());
    QCOMPARE(TRegionSettingsProxy().IsGPSTimeRecieved(), utc.isValid());
    if (utc.isValid())
        QCOMPARE(receiver.GetStatus().utc.toSecsSinceEpoch(), utc.toSecsSinceEpoch());
}

void NmeaReceiver::theClockIsSetOnceASecond()
{
    TNmeaReceiver receiver(NMEA_RECORDED);
    for (const char* time : {"110709.00", "110709.20", "110709.95", "110710.15", "110710.35"}) {
        receiver.Receive(Rmc(time));
        receiver.Receive(Zda(time));
    }
    const auto isClockOffset = [](const QPair<int, QVariant>& write) { return write.first == PARAM_CLOCK_OFFSET; };
    QCOMPARE(std::count_if(m_Display->store.writes.cbegin(), m_Display->store.writes.cend(), isClockOffset), 2);
    QCOMPARE(receiver.GetStatus().utc.time(), QTime(11, 7, 10, 350));
}

void NmeaReceiver::theClockGoesByTheOperatorsOffset()
{
    m_Display->store.values[PARAM_UTC_OFFSET_SET_BY_USER] =
        false; // the clock stands at 14:05: three hours ahead of the receiver
    TNmeaReceiver receiver(NMEA_RECORDED);
    receiver.Receive(Rmc("110509.00"));
    QCOMPARE(m_Display->store.values[PARAM_UTC_OFFSET_HOURS], QVariant(3));
    QCOMPARE(m_Display->store.values[PARAM_UTC_OFFSET_MINUTES], QVariant(0));
    QCOMPARE(TTestClock::time, QTime(14, 5, 9));
    QCOMPARE(TTestClock::date, QDate(2024, 5, 1));
}

void NmeaReceiver::eventsReachTheUserLog_data()
{
    QTest::addColumn<TLines>("lines");
    QTest::addColumn<QStringList>("entries");

    const auto row = [](const char* name, const TLines& lines, const QStringList& entries) {
        QTest::newRow(name) << lines << entries;
    };
    // Component, type, and the name that the store gives the code.
    const auto entry = [](int code, const char* texts) {
        return QString::fromLatin1("GPS Receiver,Event,1/1/%1,%2").arg(code).arg(QLatin1String(texts));
    };
    const QString firstFix = entry(1, "52.2000000 10.5000000,");
    const QString lost = entry(2, ",");
    const QString regained = entry(3, ",");
    const QString timeSet = entry(4, "2024-05-01T11:07:09Z,2024-05-01T13:37:09");

    row("nothing", {}, {});
    row("first fix", {Rmc("110709.00")}, {firstFix, timeSet});
    row("south and west", {Line("GPRMC,110709.00,A,3351.5,S,07030.25,W,,,010524,,,A")},
        {entry(1, "-33.8583333 -70.5041667,"), timeSet});
    row("a fix that stays", {Rmc("110709.00"), Rmc("110710.00"), Gga("110710.00", '1')}, {firstFix, timeSet});
    row("no fix yet", {Rmc("110709.00", 'V'), Gga("110709.00", '0')}, {});
    row("lost", {Rmc("110709.00"), Rmc("110710.00", 'V'), Rmc("110711.00", 'V')}, {firstFix, timeSet, lost});
    row("lost with the position", {Rmc("110709.00"), Line("GPRMC,110710.00,A,,,,,,,010524,,,A")},
        {firstFix, timeSet, lost});
    row("regained", {Rmc("110709.00"), Rmc("110710.00", 'V'), Rmc("110711.00"), Rmc("110712.00")},
        {firstFix, timeSet, lost, regained, entry(4, "2024-05-01T11:07:11Z,2024-05-01T13:37:11")});
    row("regained within the second", {Rmc("110709.00"), Rmc("110709.20", 'V'), Rmc("110709.40"), Rmc("110710.00")},
        {firstFix, timeSet, lost, regained, entry(4, "2024-05-01T11:07:10Z,2024-05-01T13:37:10")});
    row("GGA does not speak beside RMC", {Rmc("110709.00"), Gga("110709.00", '0'), Gga("110710.00", '0')},
        {firstFix, timeSet});
    row("GGA before the RMC of its moment", {Gga("110709.00", '1'), Rmc("110709.00", 'V'), Gga("110710.00", '1')}, {});
    row("GGA alone", {Gga("110709.00", '1'), Gga("110710.00", '4'), Gga("110711.00", '0'), Gga("110712.00", '1')},
        {firstFix, lost, regained});
    row("other sentences do not speak",
        {Rmc("110709.00"), Line("GPGLL,,,,,110710.00,V,N"), Line("GPGSA,A,1,,,,,,,,,,,,,,,"),
         Line("GPVTG,,T,,M,,N,,K,N")},
        {firstFix, timeSet});
    row("damaged lines say nothing of the fix", {Rmc("110709.00"), Damaged(Rmc("110710.00", 'V')), "$GPRMC,1107\r\n"},
        {firstFix, timeSet, entry(5, "1,")});
    row("time without the first fix's date", {Rmc("110708.00", 'A', ""), Rmc("110709.00")}, {firstFix, timeSet});
}

void NmeaReceiver::aFixThatComesAndGoesDoesNotFillTheLog_data()
{
    QTest::addColumn<TLines>("lines");
    QTest::addColumn<QStringList>("entries"); ///< without what else is known of them

    const auto row = [](const char* name, const TLines& lines, const char* entries) {
        QTest::newRow(name) << lines << QString::fromLatin1(entries).split(QLatin1String("; "));
    };
    const QByteArray fix = Rmc("110709.00");
    const QByteArray none = Rmc("110709.00", 'V');
    const QByteArray fixOfNextMinute = Rmc("110800.00");
    const auto losses = [&](int count) {
        TLines lines;
        for (int loss = 0; loss < count; ++loss)
            lines += TLines{none, fix};
        return lines;
    };
    const int most = TNmeaReceiver::MostLosses;
    QCOMPARE(most, 3);
    const char* const told = "first; lost; back; lost; back; lost; back";

    row("as many losses as are told", TLines{fix} + losses(most), told);
    row("one more", TLines{fix} + losses(most + 1), "first; lost; back; lost; back; lost; back; 1 more, fix");
    row("a minute at 20 Hz", TLines{fix} + losses(600), "first; lost; back; lost; back; lost; back; 597 more, fix");
    row("the last one lasts", TLines{fix} + losses(most + 4) + TLines{none},
        "first; lost; back; lost; back; lost; back; 5 more, no fix");
    row("the next minute begins anew", TLines{fix} + losses(most + 2) + TLines{fixOfNextMinute, none, fixOfNextMinute},
        "first; lost; back; lost; back; lost; back; 2 more, fix; lost; back");
    row("back in the next minute", TLines{fix} + losses(most) + TLines{none, fixOfNextMinute, none, fixOfNextMinute},
        "first; lost; back; lost; back; lost; back; 1 more, fix; lost; back");
    TLines silent;
    for (int line = 0; line < TNmeaReceiver::LinesWithoutTime; ++line)
        silent += none;
    row("back after a long time", TLines{fix} + losses(most) + silent + TLines{fix},
        "first; lost; back; lost; back; lost; back; 1 more, no fix; back");
    row("told, and back in the next minute", TLines{fix, none} + silent + TLines{fixOfNextMinute}, "first; lost; back");
    row("without a time", TLines{Gga("110709.00", '1'), Gga("110709.00", '1')} + TLines{Gga("110709.00", '0')},
        "first; lost");
}

void NmeaReceiver::aFixThatComesAndGoesDoesNotFillTheLog()
{
    QFETCH(TLines, lines);
    TNmeaReceiver receiver(NMEA_RECORDED);
    for (const QByteArray& line : lines)
        receiver.Receive(line);
    receiver.Finish();

    QStringList entries;
    QStringList timesSet;
    for (const QString& entry : m_Display->Entries()) {
        const QString code = entry.section(QLatin1Char('/'), 2).section(QLatin1Char(','), 0, 0);
        const QString text1 = entry.section(QLatin1Char(','), 3, 3);
        const QString text2 = entry.section(QLatin1Char(','), 4, 4);
        switch (code.toInt()) {
        case RECEIVER_EVENT_FIRST_FIX:
            entries += QLatin1String("first");
            break;
        case RECEIVER_EVENT_FIX_LOST:
            entries += QLatin1String("lost");
            break;
        case RECEIVER_EVENT_FIX_REGAINED:
            entries += QLatin1String("back");
            break;
        case RECEIVER_EVENT_FIX_UNSTABLE:
            entries += QString::fromLatin1("%1 more, %2").arg(text1, text2);
            break;
        default:
            QCOMPARE(code.toInt(), static_cast<int>(RECEIVER_EVENT_TIME_SET));
            timesSet += entry;
        }
    }
    QTEST(entries, "entries");
    QVERIFY(timesSet.size() <= 1 + entries.count(QLatin1String("back")));
}

void NmeaReceiver::eventsReachTheUserLog()
{
    QFETCH(TLines, lines);
    TNmeaReceiver receiver(NMEA_RECORDED);
    for (const QByteArray& line : lines)
        receiver.Receive(line);
    receiver.Finish();
    QTEST(m_Display->Entries(), "entries");
}

void NmeaReceiver::entriesCarryTheClockAsItStands()
{
    TNmeaReceiver receiver(NMEA_RECORDED);
    receiver.Receive(Rmc("110709.00"));
    receiver.Receive(Rmc("110710.00", 'V'));
    QCOMPARE(m_Display->UserLog(),
             QByteArray("2024.03.05-14:05:09:042,GPS Receiver,Event,1/1/1,52.2000000 10.5000000,\r\n"
                        "2024.05.01-13:37:09:000,GPS Receiver,Event,1/1/4,2024-05-01T11:07:09Z,2024-05-01T13:37:09\r\n"
                        "2024.05.01-13:37:09:000,GPS Receiver,Event,1/1/2,,\r\n"));
}

void NmeaReceiver::badChecksumsAreReportedByTheMinute_data()
{
    QTest::addColumn<TLines>("lines");
    QTest::addColumn<QStringList>("counts"); // those before the end, and the one that the end adds

    const auto row = [](const char* name, const TLines& lines, const QStringList& counts) {
        QTest::newRow(name) << lines << counts;
    };
    const QByteArray bad = Damaged(Zda("110709.00"));
    const QString atTheEnd = QLatin1String("end");
    const auto text = [](int count) { return QString::number(count); };
    const auto times = [](int count, const QByteArray& line) {
        TLines lines;
        for (int at = 0; at < count; ++at)
            lines.append(line);
        return lines;
    };

    row("none", {Rmc("110709.00"), Rmc("110809.00")}, {atTheEnd});
    row("within the minute", {Rmc("110709.00"), bad, Rmc("110759.99"), bad}, {atTheEnd, text(2)});
    row("at its end", {Rmc("110709.00"), bad, bad, Rmc("110800.00"), Rmc("110900.00")}, {text(2), atTheEnd});
    row("minute by minute", {Rmc("110759.00"), bad, Rmc("110800.00"), bad, bad, bad, Rmc("110900.00"), bad},
        {text(1), text(3), atTheEnd, text(1)});
    row("backwards", {Rmc("110800.00"), bad, Rmc("110700.00")}, {text(1), atTheEnd});
    row("the same minute of another day", {Rmc("110709.00"), bad, Rmc("110709.00", 'A', "020524")},
        {text(1), atTheEnd});
    row("before the first time", {bad, Rmc("110709.00"), bad}, {text(1), atTheEnd, text(1)});
    row("few lines without a time", times(TNmeaReceiver::LinesWithoutTime - 1, bad),
        {atTheEnd, text(TNmeaReceiver::LinesWithoutTime - 1)});
    row("many lines without a time", times(TNmeaReceiver::LinesWithoutTime + 1, bad),
        {text(TNmeaReceiver::LinesWithoutTime), atTheEnd, text(1)});
    row("time without a fix is none", TLines{bad} + times(TNmeaReceiver::LinesWithoutTime, Rmc("110709.00", 'V')),
        {text(1), atTheEnd});
    row("many lines with a time", TLines{bad} + times(2 * TNmeaReceiver::LinesWithoutTime, Rmc("110709.00")),
        {text(1), atTheEnd});
    row("many lines within the minute",
        TLines{Rmc("110709.00"), bad} + times(2 * TNmeaReceiver::LinesWithoutTime, Rmc("110709.00")),
        {atTheEnd, text(1)});
}

void NmeaReceiver::badChecksumsAreReportedByTheMinute()
{
    QFETCH(TLines, lines);
    TNmeaReceiver receiver(NMEA_RECORDED);
    const auto counts = [this] {
        QStringList texts;
        for (const QString& entry : m_Display->Entries().filter(QLatin1String("1/1/5")))
            texts.append(entry.section(QLatin1Char(','), 3, 3));
        return texts;
    };
    for (const QByteArray& line : lines)
        receiver.Receive(line);
    QStringList told = counts();
    told.append(QLatin1String("end"));
    receiver.Finish();
    receiver.Finish(); // adds nothing
    told += counts().mid(told.size() - 1);
    QTEST(told, "counts");
}

void NmeaReceiver::timesOfALiveReceiverAreChecked_data()
{
    QTest::addColumn<int>("origin");
    QTest::addColumn<QDateTime>("received");
    QTest::addColumn<QDateTime>("used"); ///< invalid: the clock is left alone
    QTest::addColumn<QString>("newest"); ///< afterwards
    QTest::addColumn<QStringList>("entries");
    const QDateTime kept = Newest();
    const QDateTime hour = kept.addSecs(3600);
    const QDateTime day = kept.addDays(1);
    const QDateTime rolledOver = hour.addDays(-TTimeGuard::RolloverDays);
    const QDateTime back = kept.addDays(-2);
    const QDateTime old(QDate(2024, 5, 1), QTime(11, 7, 9), Qt::UTC);
    const auto row = [&](const char* name, ENmeaOrigin origin, const QDateTime& received, const QDateTime& used,
                         const QDateTime& newest, const QStringList& entries) {
        QTest::newRow(name) << int{origin} << received << used << UtcText(newest) << entries;
    };
    const auto corrected = [](const QDateTime& received, const QDateTime& used) {
        return QString::fromLatin1("7,%1,%2").arg(UtcText(received), UtcText(used));
    };
    const auto refused = [](const QDateTime& received, const char* reason) {
        return QString::fromLatin1("8,%1,%2").arg(UtcText(received), QLatin1String(reason));
    };

    row("an hour later", NMEA_LIVE, hour, hour, kept, {});
    row("a day later", NMEA_LIVE, day, day, day, {});
    row("a rollover back", NMEA_LIVE, rolledOver, hour, kept, {corrected(rolledOver, hour)});
    row("two days back", NMEA_LIVE, back, QDateTime(), kept, {refused(back, "behind the newest time")});
    row("before the build", NMEA_LIVE, old, QDateTime(), kept, {refused(old, "before the software was built")});
    row("a recording, two days back", NMEA_RECORDED, back, back, kept, {});
    row("a recording, before the build", NMEA_RECORDED, old, old, kept, {});
    row("a recording, years ahead", NMEA_RECORDED, kept.addYears(3), kept.addYears(3), kept, {});
}

void NmeaReceiver::timesOfALiveReceiverAreChecked()
{
    QFETCH(int, origin);
    QFETCH(QDateTime, received);
    QFETCH(QDateTime, used);
    QFETCH(QString, newest);
    QFETCH(QStringList, entries);
    m_Display->store.values[PARAM_NEWEST_TIME] = UtcText(Newest());
    const QDateTime before = TReceivingDisplay::Clock();
    TNmeaReceiver receiver(static_cast<ENmeaOrigin>(origin));
    receiver.Receive(RmcAt(received));
    receiver.Receive(RmcAt(received.addMSecs(200)));
    QCOMPARE(TReceivingDisplay::Clock(), used.isValid() ? TReceivingDisplay::LocalTime(used) : before);
    QCOMPARE(receiver.GetStatus().utc, used.isValid() ? used.addMSecs(200) : QDateTime());
    QCOMPARE(receiver.GetStatus().hasFix, true);
    QCOMPARE(m_Display->store.values[PARAM_NEWEST_TIME].toString(), newest);
    QCOMPARE(ChecksOfTime(), entries);
}

void NmeaReceiver::aReasonIsToldOnceUntilItIsOver()
{
    const QDateTime newest = Newest();
    m_Display->store.values[PARAM_NEWEST_TIME] = UtcText(newest);
    TNmeaReceiver receiver(NMEA_LIVE);
    const auto receive = [&receiver](const QDateTime& begin) {
        for (int second = 0; second < 180; ++second)
            receiver.Receive(RmcAt(begin.addSecs(second)));
    };
    receive(newest.addDays(-10));
    QCOMPARE(static_cast<int>(ChecksOfTime().size()), 1);
    receive(newest.addDays(-20));
    QCOMPARE(static_cast<int>(ChecksOfTime().size()), 1);
    receive(newest.addYears(-2)); // another reason
    QCOMPARE(static_cast<int>(ChecksOfTime().size()), 2);
    receive(newest); // right for three minutes
    receive(newest.addDays(-10));
    QCOMPARE(static_cast<int>(ChecksOfTime().size()), 3);

    // A receiver that is right and wrong in turn does not fill the log.
    for (int second = 180; second < 600; ++second) {
        receiver.Receive(RmcAt(newest.addSecs(second)));
        receiver.Receive(RmcAt(newest.addDays(-10).addSecs(second)));
    }
    QCOMPARE(static_cast<int>(ChecksOfTime().size()), 3);

    // A single time far ahead is told when the right one shows that it was wrong.
    receiver.Receive(RmcAt(newest.addDays(100)));
    QCOMPARE(static_cast<int>(ChecksOfTime().size()), 3);
    receiver.Receive(RmcAt(newest.addSecs(600)));
    QCOMPARE(ChecksOfTime().mid(3),
             QStringList{QString::fromLatin1("8,%1,far ahead of the newest time and not confirmed")
                             .arg(UtcText(newest.addDays(100)))});
}

void NmeaReceiver::theNewestTimeIsKeptOnceADay()
{
    const QDateTime newest = Newest();
    TNmeaReceiver receiver(NMEA_LIVE);
    const int hours = 100;
    for (int hour = 0; hour < hours; ++hour)
        receiver.Receive(RmcAt(newest.addSecs(hour * 3600)));
    const auto isNewest = [](const QPair<int, QVariant>& write) { return write.first == PARAM_NEWEST_TIME; };
    QCOMPARE(std::count_if(m_Display->store.writes.cbegin(), m_Display->store.writes.cend(), isNewest),
             static_cast<std::ptrdiff_t>(1 + hours / 24));
    QCOMPARE(m_Display->store.values[PARAM_NEWEST_TIME].toString(), UtcText(newest.addDays(4)));
}

void NmeaReceiver::theSourceOfTheTimeIsKept()
{
    m_Display->store.values[PARAM_TIME_SOURCE] = int{TIME_SOURCE_OPERATOR};
    TNmeaReceiver receiver(NMEA_RECORDED);
    receiver.Receive(Rmc("110708.00", 'V'));
    QCOMPARE(m_Display->store.values[PARAM_TIME_SOURCE].toInt(), int{TIME_SOURCE_OPERATOR});
    for (const char* time : {"110709.00", "110710.00", "110711.00"})
        receiver.Receive(Rmc(time));
    QCOMPARE(m_Display->store.values[PARAM_TIME_SOURCE].toInt(), int{TIME_SOURCE_RECEIVER});
    QCOMPARE(m_Display->store.values[PARAM_TIME_SOURCE_SINCE].toString(), QString::fromLatin1("2024-05-01T11:07:09Z"));
    const auto isSource = [](const QPair<int, QVariant>& write) {
        return write.first == PARAM_TIME_SOURCE || write.first == PARAM_TIME_SOURCE_SINCE;
    };
    QCOMPARE(std::count_if(m_Display->store.writes.cbegin(), m_Display->store.writes.cend(), isSource),
             static_cast<std::ptrdiff_t>(2));
}

void NmeaReceiver::theStatusShowsTheLastValues()
{
    TNmeaReceiver receiver(NMEA_RECORDED);
    const TNmeaReceiver::tagStatus& status = receiver.GetStatus();
    QVERIFY(!status.hasFix);
    QVERIFY(std::isnan(status.latitude) && std::isnan(status.longitude) && std::isnan(status.altitude));
    QVERIFY(std::isnan(status.speed) && std::isnan(status.course));

    receiver.Receive(Rmc("110709.00"));
    QVERIFY(status.hasFix);
    QCOMPARE(status.latitude, 52.2);
    QCOMPARE(status.longitude, 10.5);
    QVERIFY(std::isnan(status.altitude));
    QCOMPARE(status.speed, 10 * 1852.0 / 3600);
    QCOMPARE(status.course, 90.0);

    receiver.Receive(Gga("110709.00", '4'));
    QCOMPARE(status.altitude, 80.5);
    receiver.Receive(Line("GPVTG,123.40,T,,M,,N,36.000,K,A"));
    QCOMPARE(status.speed, 10.0);
    QCOMPARE(status.course, 123.4);

    receiver.Receive(Line("GPRMC,110710.00,A,3351.5,S,07030.25,W,0.0,,010524,,,A"));
    QCOMPARE(status.latitude, -(33 + 51.5 / 60));
    QCOMPARE(status.longitude, -(70 + 30.25 / 60));
    QCOMPARE(status.altitude, 80.5);
    QCOMPARE(status.speed, 0.0);
    QVERIFY(std::isnan(status.course));
    QCOMPARE(status.utc, QDateTime(QDate(2024, 5, 1), QTime(11, 7, 10), Qt::UTC));
}

void NmeaReceiver::valuesWithoutAFixAreNotTaken()
{
    TNmeaReceiver receiver(NMEA_RECORDED);
    const TNmeaReceiver::tagStatus& status = receiver.GetStatus();
    receiver.Receive(Rmc("110709.00", 'V'));
    receiver.Receive(Gga("110709.00", '1'));
    QVERIFY(std::isnan(status.latitude) && std::isnan(status.speed));

    receiver.Receive(Rmc("110710.00"));
    receiver.Receive(Line("GPRMC,110711.00,V,3351.5,S,07030.25,W,0.0,,010524,,,N"));
    QVERIFY(!status.hasFix);
    QCOMPARE(status.latitude, 52.2);
    QCOMPARE(status.utc.time(), QTime(11, 7, 10));
}

QTEST_GUILESS_MAIN(NmeaReceiver)
#include "NmeaReceiver.moc"
