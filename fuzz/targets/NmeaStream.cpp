// The bytes of a receiver, cut anywhere, up to the clock.

#include "nmea/NmeaChecksum.h"
#include "nmea/TNmeaLineSplitter.h"
#include "nmea/TNmeaReceiver.h"
#include "nmea/TTimeGuard.h"
#include "parameters/HostParameters.h"
#include "platform/BuildDate.h"
#include "platform/TLocalTime.h"
#include "stores/TMemoryStore.h"
#include "support/FuzzTarget.h"
#include "support/TFuzzInput.h"
#include "support/TFuzzRoom.h"

#include <QDir>

#include <cmath>
#include <limits>

namespace {

const int FirstYear = 2000;
const int LastYear = 9999;                                                    // of the four digits of ZDA
const qint64 FarthestZone = 15 * 60 * 60;                                     // seconds
const qint64 FarthestOffset = std::numeric_limits<int>::max() - FarthestZone; // of the clock from the machine's
const int SeedBytes = 3000;

QList<QByteArray> Lines(const QByteArray& stream, int pieceLength)
{
    TNmeaLineSplitter splitter;
    QList<QByteArray> lines;
    for (int at = 0; at < stream.size(); at += pieceLength) {
        const QByteArray piece = stream.mid(at, pieceLength);
        splitter.Append(piece.constData(), static_cast<int>(piece.size()));
        for (QByteArray line = splitter.TakeLine(); !line.isEmpty(); line = splitter.TakeLine())
            lines.append(line);
    }
    const QByteArray rest = splitter.TakeRest();
    return rest.isEmpty() ? lines : lines << rest;
}

/// The line with the checksum that belongs to it, so that changed sentences get behind the check.
QByteArray WithRightChecksum(const QByteArray& line)
{
    const auto star = line.lastIndexOf('*');
    if (star < 1)
        return line;
    return line.left(star) + NmeaChecksum(line.mid(1, star - 1)) + "\r\n";
}

void ExpectInRange(double value, double least, double greatest, const char* promise)
{
    Expect(std::isnan(value) || (value >= least && value <= greatest), promise, QString::number(value));
}

/// The times of a recording are not checked. Those of a receiver lie in the 1024 weeks from the date of the software.
bool IsPossible(const QDateTime& utc, ENmeaOrigin origin)
{
    const QDateTime built(BuildDate(), QTime(0, 0), Qt::UTC);
    return origin == NMEA_RECORDED ? utc.date().year() >= FirstYear && utc.date().year() <= LastYear
                                   : utc >= built && utc < built.addDays(TTimeGuard::RolloverDays);
}

void ExpectSound(const TNmeaReceiver::tagStatus& status, ENmeaOrigin origin)
{
    Expect(status.lines == status.sentences + status.badChecksums + status.damagedLines,
           "a line is a sentence, has a wrong checksum, or is damaged");
    ExpectInRange(status.latitude, -90, 90, "a latitude is on the Earth");
    ExpectInRange(status.longitude, -180, 180, "a longitude is on the Earth");
    ExpectInRange(status.course, 0, 360, "a course is an angle");
    ExpectInRange(status.speed, 0, std::numeric_limits<double>::max(), "a speed is not negative, and finite");
    Expect(!std::isinf(status.altitude), "an altitude is finite");
    Expect(!status.utc.isValid() || status.utc.timeSpec() == Qt::UTC, "a valid time is in UTC");
    Expect(!status.utc.isValid() || IsPossible(status.utc, origin), "a valid time is possible",
           status.utc.toString(Qt::ISODate));
}

/// Whether the clock shows this time in some time zone.
bool IsShownByClock(const QDateTime& utc)
{
    const QDateTime clock(TLocalTime::currentDate(), TLocalTime::currentTime(), Qt::UTC);
    const bool isTooFar = std::abs(utc.secsTo(QDateTime::currentDateTimeUtc())) > FarthestOffset;
    return clock.isValid() && (isTooFar || std::abs(utc.secsTo(clock)) <= FarthestZone);
}

void Check(const QByteArray& bytes)
{
    TFuzzInput input(bytes);
    const ENmeaOrigin origin = input.Bool() ? NMEA_LIVE : NMEA_RECORDED;
    const bool repairs = input.Bool();
    const int pieceLength = 1 + input.Byte();
    const QByteArray stream = input.Rest();

    QList<QByteArray> lines = Lines(stream, pieceLength);
    Expect(lines.join() == stream, "all lines together are the stream");
    Expect(lines == Lines(stream, static_cast<int>(stream.size()) + 1), "the pieces of a stream do not matter");

    TFuzzRoom::Get().Store().SetParameter(PARAM_NEWEST_TIME, QVariant(), false); // from an earlier input
    TNmeaReceiver receiver(origin);
    QDateTime utc;
    for (QByteArray& line : lines) {
        Expect(line.size() <= TNmeaLineSplitter::MaxLineLength, "no line is longer than the longest");
        if (repairs)
            line = WithRightChecksum(line);
        receiver.Receive(line);
        ExpectSound(receiver.GetStatus(), origin);
        const bool isNewTime = receiver.GetStatus().utc != utc;
        utc = receiver.GetStatus().utc;
        Expect(!isNewTime || IsShownByClock(utc), "a valid time sets the clock", utc.toString(Qt::ISODate));
    }
    receiver.Finish();
    Expect(receiver.GetStatus().lines == lines.size(), "every line is counted");
    Expect(receiver.GetStatus().unloggedLines == 0, "every line is logged");
}

QList<QByteArray> Seeds()
{
    QList<QByteArray> seeds;
    const QDir recordings(QLatin1String(CABSETTINGS_TEST_DATA));
    for (const QString& name : recordings.entryList({QLatin1String("*.nmea")}, QDir::Files, QDir::Name)) {
        const QByteArray stream = FuzzFiles::Content(recordings.filePath(name));
        const auto end = stream.indexOf('\n', SeedBytes) + 1;
        const QByteArray beginning = end > 0 ? stream.left(end) : stream;
        seeds.append(TFuzzSeed().Byte(static_cast<int>(seeds.size()) % 2).Byte(1).Byte(200).Rest(beginning));
    }
    seeds.append(TFuzzSeed().Byte(1).Byte(1).Byte(7).Rest(
        "$GPRMC,235960.00,A,5212.00,S,01030.00,W,10.0,359.9,311298,,,A*00\r\n"
        "$GPZDA,000000.00,01,01,2099,00,00*00\r\n$GPRMC,,V,,,,,,,,,,N*53\r\n"));
    return seeds;
}

} // namespace

namespace FuzzTargets {

tagFuzzTarget NmeaStream() { return {"NmeaStream", Check, Seeds}; }

} // namespace FuzzTargets
