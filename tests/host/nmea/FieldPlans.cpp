#include "nmea/FieldPlan.h"

#include <QtTest>

#include <functional>
#include <limits>

namespace {

using TChange = std::function<void(tagFieldPlan&)>;

const double NaN = std::numeric_limits<double>::quiet_NaN();
const double Infinity = std::numeric_limits<double>::infinity();

QDateTime Utc(int year, int month, int day) { return QDateTime(QDate(year, month, day), QTime(0, 0), Qt::UTC); }

} // namespace

Q_DECLARE_METATYPE(TChange)

class FieldPlans : public QObject
{
    Q_OBJECT

private slots:
    void theDefaultsAreAccepted();
    void limitsAreAccepted_data();
    void limitsAreAccepted();
    void whatIsBeyondIsRefusedByName_data();
    void whatIsBeyondIsRefusedByName();
};

void FieldPlans::theDefaultsAreAccepted() { QCOMPARE(CheckFieldPlan(tagFieldPlan()), QString()); }

void FieldPlans::limitsAreAccepted_data()
{
    QTest::addColumn<TChange>("change");
    const auto row = [](const char* name, const TChange& change) { QTest::newRow(name) << change; };

    row("least", [](tagFieldPlan& plan) {
        plan = {Utc(2001, 1, 1), -85, -180, -500, 0, 1, 0.5, 0.5, 0.5, 1, 1, 1, 0, 0, "GP"};
    });
    row("most", [](tagFieldPlan& plan) {
        plan = {Utc(2098, 12, 31), 85, 180, 9000, 360, 5000, 100, 60, 60, 50, 1000, 20, 10, 4294967295, "GN"};
    });
    row("start in another zone", [](tagFieldPlan& plan) {
        plan.start = QDateTime(QDate(2000, 12, 31), QTime(23, 0), Qt::OffsetFromUTC, -3600);
    });
}

void FieldPlans::limitsAreAccepted()
{
    QFETCH(TChange, change);
    tagFieldPlan plan;
    change(plan);
    QCOMPARE(CheckFieldPlan(plan), QString());
}

void FieldPlans::whatIsBeyondIsRefusedByName_data()
{
    QTest::addColumn<TChange>("change");
    QTest::addColumn<QString>("error");
    const auto row = [](const char* error, const TChange& change) {
        QTest::newRow(error) << change << QString::fromLatin1(error);
    };

    row("invalid latitude (degrees) 85.1; expected a number from -85 to 85",
        [](tagFieldPlan& plan) { plan.latitude = 85.1; });
    row("invalid latitude (degrees) nan; expected a number from -85 to 85",
        [](tagFieldPlan& plan) { plan.latitude = NaN; });
    row("invalid longitude (degrees) -180.5; expected a number from -180 to 180",
        [](tagFieldPlan& plan) { plan.longitude = -180.5; });
    row("invalid altitude (m) 9001; expected a number from -500 to 9000",
        [](tagFieldPlan& plan) { plan.altitude = 9001; });
    row("invalid heading (degrees) -1; expected a number from 0 to 360", [](tagFieldPlan& plan) { plan.heading = -1; });
    row("invalid pass length (m) 0.9; expected a number from 1 to 5000",
        [](tagFieldPlan& plan) { plan.passLength = 0.9; });
    row("invalid pass length (m) inf; expected a number from 1 to 5000",
        [](tagFieldPlan& plan) { plan.passLength = Infinity; });
    row("invalid swath width (m) 0; expected a number from 0.5 to 100",
        [](tagFieldPlan& plan) { plan.swathWidth = 0; });
    row("invalid speed (km/h) 60.5; expected a number from 0.5 to 60", [](tagFieldPlan& plan) { plan.speed = 60.5; });
    row("invalid turn speed (km/h) 8; expected a number from 0.5 to 7.5", [](tagFieldPlan& plan) {
        plan.speed = 7.5;
        plan.turnSpeed = 8;
    });
    row("invalid smallest turn radius (m) 0; expected a number from 1 to 50",
        [](tagFieldPlan& plan) { plan.smallestTurnRadius = 0; });
    row("invalid number of passes 0; expected a number from 1 to 1000", [](tagFieldPlan& plan) { plan.passes = 0; });
    row("invalid rate (Hz) 21; expected a number from 1 to 20", [](tagFieldPlan& plan) { plan.rate = 21; });
    row("invalid position noise (m) -0.01; expected a number from 0 to 10",
        [](tagFieldPlan& plan) { plan.noise = -0.01; });
    row("invalid start time \"2000-12-31T00:00:00Z\"; expected a date from 2001-01-01 to 2098-12-31",
        [](tagFieldPlan& plan) { plan.start = Utc(2000, 12, 31); });
    row("invalid start time \"2099-01-01T00:00:00Z\"; expected a date from 2001-01-01 to 2098-12-31",
        [](tagFieldPlan& plan) { plan.start = Utc(2099, 1, 1); });
    row("invalid start time \"\"; expected a date from 2001-01-01 to 2098-12-31",
        [](tagFieldPlan& plan) { plan.start = QDateTime(); });
    row("invalid talker \"XX\"; expected GN or GP", [](tagFieldPlan& plan) { plan.talker = "XX"; });
}

void FieldPlans::whatIsBeyondIsRefusedByName()
{
    QFETCH(TChange, change);
    tagFieldPlan plan;
    change(plan);
    QTEST(CheckFieldPlan(plan), "error");
}

QTEST_GUILESS_MAIN(FieldPlans)
#include "FieldPlans.moc"
