#include "Recordings.h"
#include "TReceivingDisplay.h"

#include "nmea/NmeaChecksum.h"
#include "nmea/TNmeaReceiver.h"

#include <QtTest>

#include <cmath>
#include <optional>

namespace {

/// With their line ends.
QList<QByteArray> Lines(const QByteArray& stream)
{
    QList<QByteArray> lines;
    for (qsizetype start = 0, end = 0; start < stream.size(); start = end) {
        const auto lineFeed = stream.indexOf('\n', static_cast<int>(start));
        end = lineFeed < 0 ? stream.size() : lineFeed + 1;
        lines.append(stream.mid(static_cast<int>(start), static_cast<int>(end - start)));
    }
    return lines;
}

void Receive(TNmeaReceiver& receiver, const QByteArray& stream)
{
    const QList<QByteArray> lines = Lines(stream);
    for (const QByteArray& line : lines)
        receiver.Receive(line);
    receiver.Finish();
}

/// The UTC of an RMC with a fix, a position and a right checksum; nothing for other lines.
std::optional<QDateTime> TimeOf(const QByteArray& line)
{
    static const QRegularExpression form(QLatin1String(
        "^\\$..RMC,(\\d\\d)(\\d\\d)(\\d\\d)[^,]*,A,[^,]+,[NS],[^,]+,[EW],[^,]*,[^,]*,(\\d\\d)(\\d\\d)(\\d\\d),"));
    const QRegularExpressionMatch match = form.match(QString::fromLatin1(line));
    if (CheckNmeaLine(line) != NMEA_RIGHT_CHECKSUM || !match.hasMatch())
        return std::nullopt;
    const auto number = [&](int group) { return match.captured(group).toInt(); };
    return QDateTime(QDate(2000 + number(6), number(5), number(4)), QTime(number(1), number(2), number(3)), Qt::UTC);
}

} // namespace

class NmeaRecordings : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_Display = std::make_unique<TReceivingDisplay>(); }
    void cleanup() { m_Display.reset(); }

    void theirLinesAreCounted_data();
    void theirLinesAreCounted();
    void theirEventsReachTheUserLog_data();
    void theirEventsReachTheUserLog();
    void theySetTheClockAndAreLoggedWhole_data();
    void theySetTheClockAndAreLoggedWhole();

private:
    std::unique_ptr<TReceivingDisplay> m_Display;
};

void NmeaRecordings::theirLinesAreCounted_data()
{
    QTest::addColumn<int>("sentences");
    QTest::addColumn<int>("badChecksums");
    QTest::addColumn<int>("damagedLines");
    QTest::newRow("one-talker.nmea") << 60 << 0 << 0;
    QTest::newRow("four-talkers.nmea") << 100 << 0 << 0;
    QTest::newRow("rising-rate.nmea") << 146 << 0 << 0;
    QTest::newRow("damaged.nmea") << 6 << 8 << 9;
    QTest::newRow("midnight.nmea") << 30 << 0 << 0;
    QTest::newRow("lost-fix.nmea") << 56 << 0 << 0;
    QTest::newRow("unstable-fix.nmea") << 55 << 0 << 0;
    QTest::newRow("gpsd.nmea") << 20 << 0 << 4;
}

void NmeaRecordings::theirLinesAreCounted()
{
    TNmeaReceiver receiver(NMEA_RECORDED);
    Receive(receiver, Recordings::Contents(Recordings::Own(QLatin1String(QTest::currentDataTag()))));
    const TNmeaReceiver::tagStatus& status = receiver.GetStatus();
    QTEST(static_cast<int>(status.sentences), "sentences");
    QTEST(static_cast<int>(status.badChecksums), "badChecksums");
    QTEST(static_cast<int>(status.damagedLines), "damagedLines");
    QCOMPARE(status.lines, status.sentences + status.badChecksums + status.damagedLines);
}

void NmeaRecordings::theirEventsReachTheUserLog_data()
{
    QTest::addColumn<QStringList>("entries");
    const auto row = [](const char* name, const QStringList& texts) {
        QStringList entries;
        for (const QString& text : texts)
            entries.append(QLatin1String("GPS Receiver,Event,1/1/") + text);
        QTest::newRow(name) << entries;
    };
    const auto firstFix = [](const char* position) {
        return QString::fromLatin1("1,%1,").arg(QLatin1String(position));
    };
    const auto timeSet = [](const char* utc, const char* local) {
        return QString::fromLatin1("4,%1Z,%2").arg(QLatin1String(utc), QLatin1String(local));
    };
    const QString lost = QLatin1String("2,,");
    const QString regained = QLatin1String("3,,");
    const char* const start = "52.2000000 10.5000000";

    row("one-talker.nmea", {firstFix(start), timeSet("2024-05-01T06:00:00", "2024-05-01T08:30:00")});
    row("four-talkers.nmea", {firstFix(start), timeSet("2024-05-01T11:07:09", "2024-05-01T13:37:09")});
    row("rising-rate.nmea", {firstFix(start), timeSet("2024-05-01T12:30:00", "2024-05-01T15:00:00")});
    row("damaged.nmea",
        {firstFix(start), timeSet("2024-05-01T14:00:00", "2024-05-01T16:30:00"), QLatin1String("5,8,")});
    row("midnight.nmea", {firstFix(start), timeSet("2024-02-29T23:59:55", "2024-03-01T02:29:55")});
    row("lost-fix.nmea", {firstFix("52.2000760 10.5001253"), timeSet("2024-05-01T15:10:04", "2024-05-01T17:40:04"),
                          lost, regained, timeSet("2024-05-01T15:10:20", "2024-05-01T17:40:20")});
    row("unstable-fix.nmea", {firstFix(start), timeSet("2024-05-01T15:20:10", "2024-05-01T17:50:10"), lost, regained,
                              timeSet("2024-05-01T15:20:12", "2024-05-01T17:50:12"), lost, regained,
                              timeSet("2024-05-01T15:20:14", "2024-05-01T17:50:14"), lost, regained,
                              timeSet("2024-05-01T15:20:16", "2024-05-01T17:50:16"), QLatin1String("6,17,fix")});
    row("gpsd.nmea", {firstFix(start), timeSet("2024-05-01T16:00:00", "2024-05-01T18:30:00")});
}

void NmeaRecordings::theirEventsReachTheUserLog()
{
    TNmeaReceiver receiver(NMEA_RECORDED);
    Receive(receiver, Recordings::Contents(Recordings::Own(QLatin1String(QTest::currentDataTag()))));
    QTEST(m_Display->Entries(), "entries");
}

void NmeaRecordings::theySetTheClockAndAreLoggedWhole_data()
{
    QTest::addColumn<QString>("path");
    for (const QString& path : Recordings::All())
        QTest::newRow(qPrintable(QFileInfo(path).fileName())) << path;
}

void NmeaRecordings::theySetTheClockAndAreLoggedWhole()
{
    QFETCH(QString, path);
    const QByteArray stream = Recordings::Contents(path);
    QDateTime last;
    const QList<QByteArray> lines = Lines(stream);
    for (const QByteArray& line : lines)
        last = TimeOf(line).value_or(last);
    QVERIFY(last.isValid());

    TNmeaReceiver receiver(NMEA_RECORDED);
    Receive(receiver, stream);
    const TNmeaReceiver::tagStatus& status = receiver.GetStatus();
    QCOMPARE(TReceivingDisplay::Clock(), TReceivingDisplay::LocalTime(last));
    QCOMPARE(status.utc.toSecsSinceEpoch(), last.toSecsSinceEpoch());
    QVERIFY(status.hasFix);
    QVERIFY(!std::isnan(status.latitude) && !std::isnan(status.longitude));
    QCOMPARE(status.lines, static_cast<qint64>(lines.size()));
    QCOMPARE(status.lines, status.sentences + status.badChecksums + status.damagedLines);
    QCOMPARE(status.unloggedLines, qint64(0));
    QCOMPARE(m_Display->Entries().filter(QLatin1String("1/1/1,")).size(), 1);
    QCOMPARE(m_Display->NmeaLog(), stream);
}

QTEST_GUILESS_MAIN(NmeaRecordings)
#include "NmeaRecordings.moc"
