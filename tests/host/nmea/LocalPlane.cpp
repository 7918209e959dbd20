#include "nmea/LocalPlane.h"

#include <QtTest>

#include <cmath>

class LocalPlane : public QObject
{
    Q_OBJECT

private slots:
    void placesComeBack_data();
    void placesComeBack();
    void distancesAreThoseOfTheEllipsoid_data();
    void distancesAreThoseOfTheEllipsoid();
};

void LocalPlane::placesComeBack_data()
{
    QTest::addColumn<double>("latitude");
    QTest::addColumn<double>("longitude");
    for (const double latitude : {-89.9, -52.0, 0.0, 0.0001, 45.0, 69.5, 90.0})
        for (const double longitude : {-180.0, -77.25, 0.0, 10.0, 179.9999})
            QTest::addRow("%g %g", latitude, longitude) << latitude << longitude;
}

void LocalPlane::placesComeBack()
{
    QFETCH(double, latitude);
    QFETCH(double, longitude);
    const TLocalPlane plane(latitude, longitude);
    for (const double east : {-100000.0, -731.5, 0.0, 0.01, 12.0, 100000.0}) {
        for (const double north : {-100000.0, -0.02, 0.0, 431.25, 100000.0}) {
            const tagGroundPose ground = plane.ToGround(east, north, 0);
            const tagPlanePoint place = plane.ToPlane(ground.latitude, ground.longitude);
            QVERIFY2(
                std::hypot(place.east - east, place.north - north) < 1e-6,
                qPrintable(QString::fromLatin1("%1 %2: %3 %4").arg(east).arg(north).arg(place.east).arg(place.north)));
        }
    }
}

void LocalPlane::distancesAreThoseOfTheEllipsoid_data()
{
    // One degree of the meridian and of the parallel on WGS84, in metres, as published tables have them.
    QTest::addColumn<double>("latitude");
    QTest::addColumn<double>("ofLatitude");
    QTest::addColumn<double>("ofLongitude");
    QTest::newRow("0") << 0.0 << 110574.27 << 111319.49;
    QTest::newRow("45") << 45.0 << 111131.75 << 78846.81;
    QTest::newRow("60") << 60.0 << 111412.24 << 55799.98;
}

void LocalPlane::distancesAreThoseOfTheEllipsoid()
{
    QFETCH(double, latitude);
    QFETCH(double, ofLatitude);
    QFETCH(double, ofLongitude);
    const double step = 0.01;
    const TLocalPlane plane(latitude, 10);
    const tagPlanePoint east = plane.ToPlane(latitude, 10 + step);
    const tagPlanePoint north = plane.ToPlane(latitude + step, 10);
    QVERIFY(std::abs(east.east - step * ofLongitude) < 0.01);
    QVERIFY(std::abs(north.north - step * ofLatitude) < 0.2); // a degree's table is of its middle
    QVERIFY(std::abs(north.east) < 1e-6);
}

QTEST_GUILESS_MAIN(LocalPlane)
#include "LocalPlane.moc"
