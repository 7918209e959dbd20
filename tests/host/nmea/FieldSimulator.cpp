#include "nmea/NmeaChecksum.h"
#include "nmea/TFieldSimulator.h"

#include <QHash>
#include <QNmeaPositionInfoSource>
#include <QtTest>

#include <algorithm>
#include <array>
#include <cmath>

namespace {

const double Pi = std::acos(-1.0);

double Radians(double degrees) { return degrees * Pi / 180; }

/// From -180 to 180.
double Difference(double degrees, double from) { return std::remainder(degrees - from, 360.0); }

class TParser : private QNmeaPositionInfoSource
{
public:
    TParser() : QNmeaPositionInfoSource(RealTimeMode) {}

    bool Parse(const QByteArray& line, QGeoPositionInfo& info, bool& hasFix)
    {
        return parsePosInfoFromNmeaData(line.constData(), static_cast<int>(line.size()), &info, &hasFix);
    }
};

using TVector = std::array<double, 3>;

/// Metres from the centre of the Earth, on WGS84.
TVector InSpace(double latitude, double longitude)
{
    const double e2 = 0.00669437999014132;
    const double phi = Radians(latitude);
    const double lambda = Radians(longitude);
    const double normal = 6378137.0 / std::sqrt(1 - e2 * std::pow(std::sin(phi), 2));
    return {normal * std::cos(phi) * std::cos(lambda), normal * std::cos(phi) * std::sin(lambda),
            normal * (1 - e2) * std::sin(phi)};
}

struct tagPoint
{
    QDateTime utc;
    double latitude;
    double longitude;
    double speed;  // m/s
    double course; // degrees
};

double Distance(const tagPoint& a, const tagPoint& b)
{
    const TVector from = InSpace(a.latitude, a.longitude);
    const TVector to = InSpace(b.latitude, b.longitude);
    return std::hypot(to[0] - from[0], to[1] - from[1], to[2] - from[2]);
}

/// Metres to the east and to the north of the place of the plan.
std::array<double, 2> OnTheField(const tagFieldPlan& plan, const tagPoint& point)
{
    const TVector origin = InSpace(plan.latitude, plan.longitude);
    const TVector there = InSpace(point.latitude, point.longitude);
    const TVector offset = {there[0] - origin[0], there[1] - origin[1], there[2] - origin[2]};
    const double phi = Radians(plan.latitude);
    const double lambda = Radians(plan.longitude);
    const double outwards = offset[0] * std::cos(lambda) + offset[1] * std::sin(lambda);
    return {offset[1] * std::cos(lambda) - offset[0] * std::sin(lambda),
            offset[2] * std::cos(phi) - outwards * std::sin(phi)};
}

/// Metres along the first pass, and to its right.
std::array<double, 2> AlongTheLines(const tagFieldPlan& plan, const tagPoint& point)
{
    const std::array<double, 2> place = OnTheField(plan, point);
    const double heading = Radians(plan.heading);
    return {place[0] * std::sin(heading) + place[1] * std::cos(heading),
            place[0] * std::cos(heading) - place[1] * std::sin(heading)};
}

QList<QByteArray> Lines(const QByteArray& epoch)
{
    QList<QByteArray> lines = epoch.split('\n');
    lines.removeLast();
    for (QByteArray& line : lines)
        line += '\n';
    return lines;
}

/// As the RMC sentences tell.
QList<tagPoint> Points(const tagFieldPlan& plan)
{
    TParser parser;
    QList<tagPoint> points;
    for (TFieldSimulator simulator(plan); !simulator.AtEnd();) {
        QGeoPositionInfo info;
        bool hasFix = false;
        parser.Parse(Lines(simulator.NextEpoch()).value(0), info, hasFix);
        points.append({info.timestamp(), info.coordinate().latitude(), info.coordinate().longitude(),
                       info.attribute(QGeoPositionInfo::GroundSpeed), info.attribute(QGeoPositionInfo::Direction)});
    }
    return points;
}

/// Those of a row of AddPlans(), which several functions look at.
const QList<tagPoint>& PointsOfRow(const tagFieldPlan& plan)
{
    static QHash<QByteArray, QList<tagPoint>> known;
    QList<tagPoint>& points = known[QTest::currentDataTag()];
    if (points.isEmpty())
        points = Points(plan);
    return points;
}

QByteArray Stream(const tagFieldPlan& plan)
{
    QByteArray stream;
    for (TFieldSimulator simulator(plan); !simulator.AtEnd();)
        stream += simulator.NextEpoch();
    return stream;
}

QDateTime Utc(int year, int month, int day, int hour, int minute, int second)
{
    return QDateTime(QDate(year, month, day), QTime(hour, minute, second), Qt::UTC);
}

} // namespace

Q_DECLARE_METATYPE(tagFieldPlan)

class FieldSimulator : public QObject
{
    Q_OBJECT

private slots:
    void everySentenceIsRead_data() { AddPlans(); }
    void everySentenceIsRead();
    void theSentencesOfAnEpochAgree_data() { AddPlans(); }
    void theSentencesOfAnEpochAgree();
    void theWayIsSpeedTimesTime_data() { AddPlans(); }
    void theWayIsSpeedTimesTime();
    void theCourseFollowsTheWay_data() { AddPlans(); }
    void theCourseFollowsTheWay();
    void passesAreParallelAndASwathApart_data() { AddPlans(); }
    void passesAreParallelAndASwathApart();
    void turnsAreSlowAndNoTighterThanTheSmallest_data() { AddPlans(); }
    void turnsAreSlowAndNoTighterThanTheSmallest();
    void itStartsAtThePlaceAndEndsWithTheLastPass_data() { AddPlans(); }
    void itStartsAtThePlaceAndEndsWithTheLastPass();

    void epochsKeepTheRate_data();
    void epochsKeepTheRate();
    void datesRollOver_data();
    void datesRollOver();
    void anglesAreWrittenWithoutASixtiethMinute_data();
    void anglesAreWrittenWithoutASixtiethMinute();
    void aFullCircleIsZero();
    void theSamePlanGivesTheSameBytes();
    void noiseStaysWithinItsBound();
    void aPlanThatCannotBeWorkedHasNoEpochs();

private:
    static void AddPlans();
};

void FieldSimulator::AddPlans()
{
    QTest::addColumn<tagFieldPlan>("plan");

    const auto row = [](const char* name, const auto& change) {
        tagFieldPlan plan;
        plan.passLength = 60;
        plan.passes = 4;
        plan.rate = 10;
        change(plan);
        QTest::newRow(name) << plan;
    };
    const auto at = [](double latitude, double longitude) {
        return [latitude, longitude](tagFieldPlan& plan) {
            plan.latitude = latitude;
            plan.longitude = longitude;
        };
    };
    row("small field", [](tagFieldPlan&) {});
    row("semicircles", [](tagFieldPlan& plan) { plan.swathWidth = 24; });
    row("narrow swath", [](tagFieldPlan& plan) { plan.swathWidth = 1.5; });
    row("short passes", [](tagFieldPlan& plan) {
        plan.passLength = 3;
        plan.passes = 3;
    });
    row("no slower in the turn", [](tagFieldPlan& plan) { plan.turnSpeed = plan.speed; });
    row("fast", [](tagFieldPlan& plan) {
        plan.speed = 30;
        plan.rate = 20;
    });
    row("one pass", [](tagFieldPlan& plan) { plan.passes = 1; });
    row("long passes to the south west", [](tagFieldPlan& plan) {
        plan.passLength = 5000;
        plan.heading = 225;
        plan.speed = 60;
        plan.rate = 10;
        plan.passes = 2;
    });
    row("equator", at(0, 0));
    row("south and west", at(-33.5, -70.5));
    row("far north", at(85, 25));
    row("far south", at(-85, -120));
    row("antimeridian", at(-17, 179.9999));
    row("antimeridian far north", at(84.9, -180));
    row("a long field far north", [](tagFieldPlan& plan) {
        plan.latitude = 85;
        plan.heading = 90;
        plan.passLength = 5000;
        plan.speed = 50;
        plan.rate = 10;
        plan.passes = 2;
    });
    row("GP", [](tagFieldPlan& plan) { plan.talker = "GP"; });
}

void FieldSimulator::everySentenceIsRead()
{
    QFETCH(tagFieldPlan, plan);
    QCOMPARE(CheckFieldPlan(plan), QString());
    const int longestSentence = 82; // NMEA 0183, with the line end
    const QList<QByteArray> types = {"RMC,", "GGA,", "VTG,", "ZDA,"};
    TParser parser;
    for (TFieldSimulator simulator(plan); !simulator.AtEnd();) {
        const QList<QByteArray> lines = Lines(simulator.NextEpoch());
        QCOMPARE(lines.size(), types.size());
        for (int at = 0; at < lines.size(); ++at) {
            const QByteArray& line = lines.at(at);
            QGeoPositionInfo info;
            bool hasFix = false;
            QVERIFY2(parser.Parse(line, info, hasFix), line.constData());
            QCOMPARE(CheckNmeaLine(line), NMEA_RIGHT_CHECKSUM);
            QVERIFY2(line.startsWith('$' + plan.talker + types.at(at)), line.constData());
            QVERIFY2(line.endsWith("\r\n"), line.constData());
            QVERIFY2(line.size() <= longestSentence, line.constData());
        }
    }
}

void FieldSimulator::theSentencesOfAnEpochAgree()
{
    QFETCH(tagFieldPlan, plan);
    TParser parser;
    for (TFieldSimulator simulator(plan); !simulator.AtEnd();) {
        const QList<QByteArray> lines = Lines(simulator.NextEpoch());
        std::array<QGeoPositionInfo, 4> infos;
        std::array<bool, 4> fixes = {};
        for (std::size_t at = 0; at < infos.size(); ++at)
            parser.Parse(lines.value(static_cast<int>(at)), infos[at], fixes[at]);
        const auto& [rmc, gga, vtg, zda] = infos;
        QVERIFY(fixes[0] && fixes[1]);
        QCOMPARE(gga.coordinate().latitude(), rmc.coordinate().latitude());
        QCOMPARE(gga.coordinate().longitude(), rmc.coordinate().longitude());
        QCOMPARE(gga.coordinate().altitude(), plan.altitude);
        QCOMPARE(gga.timestamp().time(), rmc.timestamp().time());
        QCOMPARE(zda.timestamp(), rmc.timestamp());
        QCOMPARE(vtg.attribute(QGeoPositionInfo::Direction), rmc.attribute(QGeoPositionInfo::Direction));
        const double speeds = vtg.attribute(QGeoPositionInfo::GroundSpeed) - // km/h and knots, in three decimals
                              rmc.attribute(QGeoPositionInfo::GroundSpeed);
        QVERIFY(std::abs(speeds) < 0.0005);
    }
}

void FieldSimulator::theWayIsSpeedTimesTime()
{
    QFETCH(tagFieldPlan, plan);
    const double tolerance = 0.002; // metres
    const QList<tagPoint>& points = PointsOfRow(plan);
    QVERIFY(points.size() > 10);
    for (int at = 1; at < points.size(); ++at) {
        const tagPoint& before = points.at(at - 1);
        const tagPoint& point = points.at(at);
        const double seconds = static_cast<double>(before.utc.msecsTo(point.utc)) / 1000;
        const double way = (before.speed + point.speed) / 2 * seconds;
        const double error = Distance(before, point) - way;
        QVERIFY2(std::abs(error) < tolerance, qPrintable(QString::fromLatin1("epoch %1: %2 m").arg(at).arg(error)));
    }
}

void FieldSimulator::theCourseFollowsTheWay()
{
    QFETCH(tagFieldPlan, plan);
    const double tolerance = 1.0; // degrees; the way from epoch to epoch is short, and written in tenths of millimetres
    const QList<tagPoint>& points = PointsOfRow(plan);
    for (int at = 1; at < points.size(); ++at) {
        const tagPoint& before = points.at(at - 1);
        const tagPoint& point = points.at(at);
        tagFieldPlan here = plan;
        here.latitude = before.latitude;
        here.longitude = before.longitude;
        const std::array<double, 2> way = OnTheField(here, point);
        const double bearing = std::atan2(way[0], way[1]) * 180 / Pi;
        const double course = before.course + Difference(point.course, before.course) / 2;
        QVERIFY2(std::abs(Difference(bearing, course)) < tolerance,
                 qPrintable(QString::fromLatin1("epoch %1: %2, not %3").arg(at).arg(bearing).arg(course)));
    }
}

void FieldSimulator::passesAreParallelAndASwathApart()
{
    QFETCH(tagFieldPlan, plan);
    const double centimetre = 0.01;
    // Between the ends, and a little: turns may reach back into the field.
    QVector<int> epochsOfPass(plan.passes);
    int pass = 0;
    for (const tagPoint& point : PointsOfRow(plan)) {
        const auto [along, right] = AlongTheLines(plan, point);
        const bool isOnNext = std::abs(right - (pass + 1) * plan.swathWidth) < centimetre;
        const bool isAlong = std::abs(Difference(point.course, plan.heading + (pass % 2 == 0 ? 180 : 0))) < 1;
        if (isOnNext && isAlong)
            ++pass;
        if (std::abs(right - pass * plan.swathWidth) < centimetre && along > -centimetre &&
            along < plan.passLength + centimetre)
            ++epochsOfPass[std::min(pass, plan.passes - 1)];
    }
    QCOMPARE(pass, plan.passes - 1);
    const double secondsAtFullSpeed = plan.passLength / (plan.speed / 3.6);
    for (const int epochs : epochsOfPass)
        QVERIFY2(epochs >= static_cast<int>(secondsAtFullSpeed * plan.rate), qPrintable(QString::number(epochs)));
}

void FieldSimulator::turnsAreSlowAndNoTighterThanTheSmallest()
{
    QFETCH(tagFieldPlan, plan);
    const double radius = std::max(plan.smallestTurnRadius, plan.swathWidth / 2);
    const QList<tagPoint>& points = PointsOfRow(plan);
    double turned = 0;
    for (int at = 1; at < points.size(); ++at) {
        const tagPoint& before = points.at(at - 1);
        const tagPoint& point = points.at(at);
        const double change = std::abs(Difference(point.course, before.course));
        if (change < 0.1) // no turn; the meridians close in by less
            continue;
        turned += change;
        const double way = Distance(before, point);
        QVERIFY(Radians(change) <= way / radius * 1.01 + Radians(0.03));
        QVERIFY(std::min(before.speed, point.speed) * 3.6 < plan.turnSpeed + 0.01);
    }
    QVERIFY(turned >= (plan.passes - 1) * 170);
}

void FieldSimulator::itStartsAtThePlaceAndEndsWithTheLastPass()
{
    QFETCH(tagFieldPlan, plan);
    const QList<tagPoint>& points = PointsOfRow(plan);
    const double lastStep = plan.speed / 3.6 / plan.rate;

    const auto [startAlong, startRight] = AlongTheLines(plan, points.first());
    QVERIFY(std::hypot(startAlong, startRight) < 0.001);
    QVERIFY(std::abs(Difference(points.first().course, plan.heading)) < 0.01);
    QCOMPARE(points.first().utc, plan.start);

    const auto [along, right] = AlongTheLines(plan, points.last());
    QVERIFY(std::abs(right - (plan.passes - 1) * plan.swathWidth) < 0.01);
    QVERIFY(std::abs(along - (plan.passes % 2 == 1 ? plan.passLength : 0)) <= lastStep + 0.01);
}

void FieldSimulator::epochsKeepTheRate_data()
{
    QTest::addColumn<int>("rate");
    for (const int rate : {1, 2, 3, 5, 7, 10, 16, 20})
        QTest::newRow(qPrintable(QString::fromLatin1("%1 Hz").arg(rate))) << rate;
}

void FieldSimulator::epochsKeepTheRate()
{
    QFETCH(int, rate);
    tagFieldPlan plan;
    plan.rate = rate;
    plan.passes = 1;
    const QList<tagPoint> points = Points(plan);
    for (int at = 0; at < points.size(); ++at) {
        const double milliseconds = at * 1000.0 / rate;
        QVERIFY(std::abs(static_cast<double>(plan.start.msecsTo(points.at(at).utc)) - milliseconds) <= 0.5);
    }
}

void FieldSimulator::datesRollOver_data()
{
    QTest::addColumn<QDateTime>("start");
    QTest::addColumn<QByteArray>("lastRmcDate");
    QTest::addColumn<QByteArray>("lastZdaDate");

    const auto row = [](const char* name, const QDateTime& start, const char* rmc, const char* zda) {
        QTest::newRow(name) << start << QByteArray(rmc) << QByteArray(zda);
    };
    row("midnight", Utc(2024, 5, 1, 23, 59, 58), "020524", "02,05,2024");
    row("month", Utc(2023, 4, 30, 23, 59, 58), "010523", "01,05,2023");
    row("leap day", Utc(2024, 2, 28, 23, 59, 58), "290224", "29,02,2024");
    row("after the leap day", Utc(2024, 2, 29, 23, 59, 58), "010324", "01,03,2024");
    row("no leap day", Utc(2023, 2, 28, 23, 59, 58), "010323", "01,03,2023");
    row("year", Utc(2024, 12, 31, 23, 59, 58), "010125", "01,01,2025");
    row("another zone's midnight", QDateTime(QDate(2024, 5, 2), QTime(1, 59, 58), Qt::OffsetFromUTC, 7200), "020524",
        "02,05,2024");
}

void FieldSimulator::datesRollOver()
{
    QFETCH(QDateTime, start);
    tagFieldPlan plan;
    plan.start = start;
    plan.rate = 1;
    TFieldSimulator simulator(plan);
    QCOMPARE(Lines(simulator.NextEpoch()).value(3).split(',').value(1), QByteArray("235958.000"));
    QCOMPARE(Lines(simulator.NextEpoch()).value(3).split(',').value(1), QByteArray("235959.000"));

    const QList<QByteArray> lines = Lines(simulator.NextEpoch());
    QCOMPARE(lines.value(0).split(',').value(1), QByteArray("000000.000"));
    QTEST(lines.value(0).split(',').value(9), "lastRmcDate");
    QTEST(lines.value(3).split(',').mid(2, 3).join(','), "lastZdaDate");
}

void FieldSimulator::anglesAreWrittenWithoutASixtiethMinute_data()
{
    QTest::addColumn<double>("latitude");
    QTest::addColumn<double>("longitude");
    QTest::addColumn<QByteArray>("written");

    const auto row = [](const char* name, double latitude, double longitude, const char* written) {
        QTest::newRow(name) << latitude << longitude << QByteArray(written);
    };
    row("plain", 52.25, 10.5, "5215.0000000,N,01030.0000000,E");
    row("south and west", -5.125, -170.75, "0507.5000000,S,17045.0000000,W");
    row("single minutes", 1 / 60.0, 1 / 30.0, "0001.0000000,N,00002.0000000,E");
    row("almost a degree", 52 - 1e-11, 10 - 1e-11, "5200.0000000,N,01000.0000000,E");
    row("just below a degree", 52 - 1e-7 / 60, 10 - 1e-7 / 60, "5159.9999999,N,00959.9999999,E");
    row("almost a minute", 52.5 - 1e-11, 100 + 1 / 60.0 - 1e-11, "5230.0000000,N,10001.0000000,E");
    row("almost a degree south and west", -52 + 1e-11, -10 + 1e-11, "5200.0000000,S,01000.0000000,W");
}

void FieldSimulator::anglesAreWrittenWithoutASixtiethMinute()
{
    tagFieldPlan plan;
    QFETCH(double, latitude);
    QFETCH(double, longitude);
    plan.latitude = latitude;
    plan.longitude = longitude;
    TFieldSimulator simulator(plan);
    QTEST(Lines(simulator.NextEpoch()).value(0).split(',').mid(3, 4).join(','), "written");
}

void FieldSimulator::aFullCircleIsZero()
{
    tagFieldPlan plan;
    for (const double heading : {0.0, 0.004, 359.996, 360.0}) {
        plan.heading = heading;
        TFieldSimulator simulator(plan);
        QCOMPARE(Lines(simulator.NextEpoch()).value(0).split(',').value(8), QByteArray("000.00"));
    }
}

void FieldSimulator::theSamePlanGivesTheSameBytes()
{
    tagFieldPlan plan;
    plan.passes = 2;
    plan.noise = 0.02;
    const QByteArray stream = Stream(plan);
    QCOMPARE(Stream(plan), stream);
    ++plan.noiseSeed;
    QVERIFY(Stream(plan) != stream);
}

void FieldSimulator::noiseStaysWithinItsBound()
{
    tagFieldPlan plan;
    plan.passes = 2;
    const QList<tagPoint> quiet = Points(plan);
    plan.noise = 0.02;
    const QList<tagPoint> noisy = Points(plan);
    QCOMPARE(noisy.size(), quiet.size());
    double most = 0;
    for (int at = 0; at < quiet.size(); ++at)
        most = std::max(most, Distance(quiet.at(at), noisy.at(at)));
    QVERIFY(most < plan.noise * std::sqrt(2.0) + 0.001);
    QVERIFY(most > plan.noise / 2);
}

void FieldSimulator::aPlanThatCannotBeWorkedHasNoEpochs()
{
    tagFieldPlan plan;
    plan.rate = 0;
    TFieldSimulator simulator(plan);
    QVERIFY(simulator.AtEnd());
    QCOMPARE(simulator.NextEpoch(), QByteArray());
}

QTEST_GUILESS_MAIN(FieldSimulator)
#include "FieldSimulator.moc"
