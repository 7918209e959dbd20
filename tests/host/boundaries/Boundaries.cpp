#include "TTemporaryFolder.h"

#include "boundaries/Boundary.h"
#include "boundaries/NeighbourBoundaries.h"
#include "nmea/LocalPlane.h"
#include "stores/TMemoryStore.h"
#include "system/TSystemSettingsProxy.h"
#include "terminal/TTerminal.h"

#include <QtTest>

namespace {

/// A ring of places around one on the ground, from metres on its plane.
TGeoRing Ring(const TLocalPlane& plane, const std::vector<tagPlanePoint>& corners)
{
    TGeoRing ring;
    for (const tagPlanePoint& corner : corners) {
        const tagGroundPose ground = plane.ToGround(corner.east, corner.north, 0);
        ring.push_back({ground.latitude, ground.longitude});
    }
    return ring;
}

TGeoRing Rectangle(const TLocalPlane& plane, double east, double north, double width, double height)
{
    return Ring(plane, {{east, north}, {east + width, north}, {east + width, north + height}, {east, north + height}});
}

bool IsSame(const TGeoRing& one, const TGeoRing& other)
{
    return one.size() == other.size() &&
           std::equal(one.begin(), one.end(), other.begin(), [](const tagGeoPoint& a, const tagGeoPoint& b) {
               return a.latitude == b.latitude && a.longitude == b.longitude;
           });
}

} // namespace

class Boundaries : public QObject
{
    Q_OBJECT

private slots:
    void areasAreThoseOfTheGround_data();
    void areasAreThoseOfTheGround();
    void valuesComeBack();
    void damagedFilesAreRefused();
    void whatIsNoBoundaryIsNotWritten_data();
    void whatIsNoBoundaryIsNotWritten();
    void neighboursAreTheOtherFieldsOfTheFarm();

private:
    const TLocalPlane m_Plane = TLocalPlane(52, 10);
};

void Boundaries::areasAreThoseOfTheGround_data()
{
    QTest::addColumn<double>("latitude");
    QTest::addColumn<double>("longitude");
    QTest::newRow("middle of Europe") << 52.0 << 10.0;
    QTest::newRow("on the equator") << 0.0 << -60.0;
    QTest::newRow("south, at the date line") << -43.5 << 180.0;
    QTest::newRow("far north") << 69.0 << 19.0;
}

void Boundaries::areasAreThoseOfTheGround()
{
    QFETCH(double, latitude);
    QFETCH(double, longitude);
    const TLocalPlane plane(latitude, longitude);
    tagBoundary boundary = {Rectangle(plane, -200, -100, 600, 400), {}};
    QVERIFY(std::abs(BoundaryArea(boundary) - 240000) < 2.4);
    boundary.internals.push_back(Rectangle(plane, 0, 0, 50, 20));
    boundary.internals.push_back(Ring(plane, {{100, 100}, {100, 120}, {130, 100}}));
    std::reverse(boundary.external.begin(), boundary.external.end());
    QVERIFY(std::abs(BoundaryArea(boundary) - (240000 - 1000 - 300)) < 2.4);
    QCOMPARE(BoundaryArea(tagBoundary()), 0.0);
}

void Boundaries::valuesComeBack()
{
    const TTemporaryFolder folder;
    const QString path = folder.Path(QLatin1String("Boundaries/F1/F1.bnd"));
    const tagBoundary boundary = {
        Rectangle(m_Plane, 0, 0, 400, 300),
        {Rectangle(m_Plane, 10, 10, 20, 20), Ring(m_Plane, {{50, 50}, {70, 60}, {60, 90}, {40, 80}, {45, 60}})}};
    QString error;
    QVERIFY(!ReadBoundary(path, &error));
    QCOMPARE(error, QString());
    QVERIFY2(WriteBoundary(path, boundary, &error), qPrintable(error));
    const std::optional<tagBoundary> read = ReadBoundary(path, &error);
    QVERIFY2(read, qPrintable(error));
    QVERIFY(IsSame(read->external, boundary.external));
    QVERIFY(std::equal(read->internals.begin(), read->internals.end(), boundary.internals.begin(),
                       boundary.internals.end(), IsSame));
}

void Boundaries::damagedFilesAreRefused()
{
    const TTemporaryFolder folder;
    const QLatin1String name("F1.bnd");
    QString error;
    QVERIFY(WriteBoundary(folder.Path(name), {Rectangle(m_Plane, 0, 0, 400, 300), {Rectangle(m_Plane, 9, 9, 9, 9)}},
                          &error));
    const QByteArray whole = folder.Content(name);
    for (int at = 0; at < whole.size(); ++at) {
        folder.MakeFile(name, whole.left(at));
        QVERIFY(!ReadBoundary(folder.Path(name), &error));
        QVERIFY(!error.isEmpty());
        QByteArray changed = whole;
        changed[at] = static_cast<char>(changed.at(at) ^ 1);
        folder.MakeFile(name, changed);
        QVERIFY(!ReadBoundary(folder.Path(name), &error));
        QVERIFY(!error.isEmpty());
    }
}

void Boundaries::whatIsNoBoundaryIsNotWritten_data()
{
    QTest::addColumn<double>("latitude"); // of the last corner; NaN of a missing one
    QTest::addColumn<int>("corners");
    QTest::newRow("two corners") << 52.0 << 2;
    QTest::newRow("no number") << qQNaN() << 4;
    QTest::newRow("not on the Earth") << 90.1 << 4;
}

void Boundaries::whatIsNoBoundaryIsNotWritten()
{
    QFETCH(double, latitude);
    QFETCH(int, corners);
    const TTemporaryFolder folder;
    const QString path = folder.Path(QLatin1String("F1.bnd"));
    TGeoRing ring = Rectangle(m_Plane, 0, 0, 400, 300);
    ring.resize(static_cast<std::size_t>(corners));
    ring.back().latitude = latitude;
    QString error;
    QVERIFY(!WriteBoundary(path, {ring, {}}, &error));
    QVERIFY2(error.startsWith(QLatin1String("invalid boundary")), qPrintable(error));
    QVERIFY(!WriteBoundary(path, {Rectangle(m_Plane, 0, 0, 400, 300), {ring}}, &error));
    QVERIFY(!QFile::exists(path));
}

void Boundaries::neighboursAreTheOtherFieldsOfTheFarm()
{
    const TTemporaryFolder folder;
    TMemoryStore store;
    TTerminal terminal(store);
    QString error;
    QVERIFY2(terminal.Start(folder.Path(), &error), qPrintable(error));
    const TSystemSettingsProxy system;
    const QString smith = QLatin1String("Smith");
    const QString north = QLatin1String("North");
    const auto write = [&](const char* farm, const char* field, double east) {
        return WriteBoundary(system.GetBoundaryFilePath(smith, QLatin1String(farm), QLatin1String(field)),
                             {Rectangle(m_Plane, east, 0, 100, 100), {}}, &error);
    };
    QVERIFY(write("North", "F1", 0) && write("North", "F2", 100) && write("North", "F3", 200));
    QVERIFY(write("South", "F4", 300));
    const QString damaged = system.GetBoundaryFilePath(smith, north, QLatin1String("F3"));
    QVERIFY(QFile::resize(damaged, 50));

    const std::vector<tagBoundary> neighbours = NeighbourBoundaries(smith, north, QLatin1String("F1"));
    QCOMPARE(neighbours.size(), std::size_t(1));
    QVERIFY(IsSame(neighbours.front().external, Rectangle(m_Plane, 100, 0, 100, 100)));
    QVERIFY(NeighbourBoundaries(smith, north, QString()).empty());
    QVERIFY(NeighbourBoundaries(smith, QLatin1String("West"), QLatin1String("F1")).empty());
}

QTEST_GUILESS_MAIN(Boundaries)
#include "Boundaries.moc"
