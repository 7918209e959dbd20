#include "display/fieldwork/TSimulatedController.h"

#include <QtTest>

#include <cmath>

namespace {

const double Step = 0.1; // seconds
const double Width = 12;

} // namespace

class SimulatedController : public QObject
{
    Q_OBJECT

private slots:
    void theRateIsHeld();
    void theFlowIsThatOfTheRate();
    void aChangeOfSpeedIsFollowed();
    void nothingIsAppliedWithoutWork_data();
    void nothingIsAppliedWithoutWork();
    void theSameDriveGivesTheSameValues();
};

void SimulatedController::theRateIsHeld()
{
    TSimulatedController controller;
    double sum = 0;
    double least = 1000;
    double greatest = 0;
    const int count = 36000; // an hour
    for (int i = 0; i < count; ++i) {
        const tagApplication application = controller.Advance(Step, 2.8, Width, true);
        QCOMPARE(application.rateSet, TSimulatedController::RateSet);
        QVERIFY(std::abs(application.rateError - (application.rate / application.rateSet - 1) * 100) < 1e-9);
        sum += application.rate;
        least = std::min(least, application.rate);
        greatest = std::max(greatest, application.rate);
    }
    QVERIFY(std::abs(sum / count - TSimulatedController::RateSet) < 2);
    QVERIFY(least > 0.85 * TSimulatedController::RateSet);
    QVERIFY(greatest < 1.15 * TSimulatedController::RateSet);
    QVERIFY(greatest - least > 2); // it is no constant
}

void SimulatedController::theFlowIsThatOfTheRate()
{
    TSimulatedController controller;
    double pressure = 0;
    for (const double speed : {1.0, 2.0, 3.0, 4.0}) {
        tagApplication application = {};
        for (int i = 0; i < 100; ++i)
            application = controller.Advance(Step, speed, Width, true);
        // A hectare is 10 000 square metres, a minute 60 seconds.
        QVERIFY(std::abs(application.flow - application.rate * speed * Width * 60 / 10000) < 1e-9);
        QVERIFY(application.pressure > pressure);
        pressure = application.pressure;
        QVERIFY(application.temperature > 10 && application.temperature < 30);
    }
}

void SimulatedController::aChangeOfSpeedIsFollowed()
{
    TSimulatedController controller;
    for (int i = 0; i < 50; ++i)
        controller.Advance(Step, 2, Width, true);
    // Faster with the flow as it was: too little comes on the ground, until the valve has followed.
    QVERIFY(controller.Advance(Step, 3, Width, true).rateError < -10);
    tagApplication application = {};
    for (int i = 0; i < 50; ++i)
        application = controller.Advance(Step, 3, Width, true);
    QVERIFY(std::abs(application.rateError) < 10);
}

void SimulatedController::nothingIsAppliedWithoutWork_data()
{
    QTest::addColumn<double>("speed");
    QTest::addColumn<bool>("isWorking");
    QTest::newRow("off") << 2.8 << false;
    QTest::newRow("at a standstill") << 0.0 << true;
    QTest::newRow("speed not known") << qQNaN() << true;
}

void SimulatedController::nothingIsAppliedWithoutWork()
{
    QFETCH(double, speed);
    QFETCH(bool, isWorking);
    TSimulatedController controller;
    controller.Advance(Step, 2.8, Width, true);
    const tagApplication application = controller.Advance(Step, speed, Width, isWorking);
    QCOMPARE(application.rate, 0.0);
    QCOMPARE(application.flow, 0.0);
    QCOMPARE(application.pressure, 0.0);
    QVERIFY(std::isnan(application.rateError));
    QCOMPARE(application.rateSet, TSimulatedController::RateSet);
}

void SimulatedController::theSameDriveGivesTheSameValues()
{
    TSimulatedController one;
    TSimulatedController other;
    for (int i = 0; i < 1000; ++i)
        QCOMPARE(one.Advance(Step, 2.8, Width, true).rate, other.Advance(Step, 2.8, Width, true).rate);
}

QTEST_GUILESS_MAIN(SimulatedController)
#include "SimulatedController.moc"
