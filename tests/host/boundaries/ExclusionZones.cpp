#include "TTemporaryFolder.h"

#include "boundaries/ExclusionZones.h"

#include <QtTest>

#include <shapefil.h>
#include <sys/resource.h>

#include <algorithm>
#include <utility>
#include <vector>

namespace {

const std::vector<TGeoRing> Zones = {
    {{52, 10}, {52, 10.001}, {52.001, 10.001}, {52.001, 10}},      // counterclockwise
    {{-33, -70.002}, {-33.001, -70.001}, {-33.002, -70.002}},      // clockwise
    {{52.01, 10}, {52.02, 10.01}, {52.0, 10.02}, {52.005, 10.01}}, // not convex
};

/// The corners of a ring, wherever it begins and whichever way it turns.
std::vector<std::pair<double, double>> Corners(const TGeoRing& ring)
{
    std::vector<std::pair<double, double>> corners;
    for (const tagGeoPoint& corner : ring)
        corners.emplace_back(corner.latitude, corner.longitude);
    std::sort(corners.begin(), corners.end());
    return corners;
}

void MakeShape(const QByteArray& path, int parts, const int* starts, int corners, const double* longitudes,
               const double* latitudes)
{
    const SHPHandle file = SHPCreate(path.constData(), SHPT_POLYGON);
    SHPObject* const shape =
        SHPCreateObject(SHPT_POLYGON, -1, parts, starts, nullptr, corners, longitudes, latitudes, nullptr, nullptr);
    SHPWriteObject(file, -1, shape);
    SHPDestroyObject(shape);
    SHPClose(file);
}

} // namespace

class ExclusionZones : public QObject
{
    Q_OBJECT

private slots:
    void zonesComeBack();
    void partsOfOneShapeAreZones_data();
    void partsOfOneShapeAreZones();
    void ringsOfFewCornersAreNoZones();
    void aRingThatIsNotClosedIsAZone();
    void noFileIsNoError();
    void aMissingIndexIsSaid();
    void otherShapesAreRefused();
    void otherCoordinatesAreRefused();
    void theIndexOfOtherZonesIsNotUsed();
    void filesThatAreTooLargeAreRefused_data();
    void filesThatAreTooLargeAreRefused();
    void whatCannotBeReadAgainIsNotWritten();
    void aFileThatCannotBeOpenedIsNotSaidToBeDamaged();
    void damagedFilesDoNoHarm_data();
    void damagedFilesDoNoHarm();
    void whatIsNoZoneIsNotWritten();

private:
    static QString Path(const TTemporaryFolder& folder) { return folder.Path(QLatin1String("Zones/F1/F1.shp")); }
};

void ExclusionZones::zonesComeBack()
{
    const TTemporaryFolder folder;
    QString error;
    QVERIFY2(WriteExclusionZones(Path(folder), Zones, &error), qPrintable(error));
    QVERIFY(folder.Exists(QLatin1String("Zones/F1/F1.dbf")));
    const auto zones = ReadExclusionZones(Path(folder), &error);
    QVERIFY2(zones, qPrintable(error));
    QCOMPARE(zones->size(), Zones.size());
    for (std::size_t i = 0; i < Zones.size(); ++i)
        QCOMPARE(Corners(zones->at(i)), Corners(Zones[i]));

    QVERIFY2(WriteExclusionZones(Path(folder), {Zones[1]}, &error), qPrintable(error));
    QCOMPARE(ReadExclusionZones(Path(folder), &error)->size(), std::size_t(1));
}

void ExclusionZones::partsOfOneShapeAreZones_data()
{
    QTest::addColumn<int>("type");
    QTest::newRow("places") << SHPT_POLYGON;
    QTest::newRow("with heights") << SHPT_POLYGONZ;
    QTest::newRow("with measures") << SHPT_POLYGONM;
}

void ExclusionZones::partsOfOneShapeAreZones()
{
    QFETCH(int, type);
    const TTemporaryFolder folder;
    const QByteArray path = folder.Path(QLatin1String("F1.shp")).toUtf8();
    const int starts[] = {0, 4};
    const double longitudes[] = {10, 10, 11, 10, 20, 20, 21, 20};
    const double latitudes[] = {50, 51, 50, 50, 50, 51, 50, 50};
    const SHPHandle file = SHPCreate(path.constData(), type);
    SHPObject* const shape = SHPCreateObject(type, -1, 2, starts, nullptr, 8, longitudes, latitudes, nullptr, nullptr);
    SHPWriteObject(file, -1, shape);
    SHPDestroyObject(shape);
    SHPClose(file);

    QString error;
    const auto zones = ReadExclusionZones(QString::fromUtf8(path), &error);
    QVERIFY2(zones, qPrintable(error));
    QCOMPARE(zones->size(), std::size_t(2));
    QCOMPARE(Corners(zones->front()), Corners({{50, 10}, {51, 10}, {50, 11}}));
}

void ExclusionZones::ringsOfFewCornersAreNoZones()
{
    const TTemporaryFolder folder;
    const QByteArray path = folder.Path(QLatin1String("F1.shp")).toUtf8();
    const int starts[] = {0, 4, 5};
    const double longitudes[] = {10, 10, 11, 10, 20, 30, 31, 30};
    const double latitudes[] = {50, 51, 50, 50, 50, 50, 51, 50};
    MakeShape(path, 3, starts, 8, longitudes, latitudes);
    QString error;
    const auto zones = ReadExclusionZones(QString::fromUtf8(path), &error);
    QVERIFY2(zones, qPrintable(error));
    QCOMPARE(zones->size(), std::size_t(1));
    QCOMPARE(Corners(zones->front()), Corners({{50, 10}, {51, 10}, {50, 11}}));
}

void ExclusionZones::aRingThatIsNotClosedIsAZone()
{
    const TTemporaryFolder folder;
    const QByteArray path = folder.Path(QLatin1String("F1.shp")).toUtf8();
    const int starts[] = {0, 3};
    const double longitudes[] = {10, 10, 11, 20, 20, 21};
    const double latitudes[] = {50, 51, 52, 50, 51, 50}; // the second ends at the latitude of its beginning
    MakeShape(path, 2, starts, 6, longitudes, latitudes);
    QString error;
    const auto zones = ReadExclusionZones(QString::fromUtf8(path), &error);
    QVERIFY2(zones, qPrintable(error));
    QCOMPARE(zones->size(), std::size_t(2));
    QCOMPARE(Corners(zones->front()), Corners({{50, 10}, {51, 10}, {52, 11}}));
    QCOMPARE(Corners(zones->back()), Corners({{50, 20}, {51, 20}, {50, 21}}));
}

void ExclusionZones::noFileIsNoError()
{
    const TTemporaryFolder folder;
    QString error = QLatin1String("old");
    QVERIFY(!ReadExclusionZones(Path(folder), &error));
    QCOMPARE(error, QString());
}

void ExclusionZones::aMissingIndexIsSaid()
{
    const TTemporaryFolder folder;
    QString error;
    QVERIFY(WriteExclusionZones(Path(folder), Zones, &error));
    QVERIFY(QFile::remove(folder.Path(QLatin1String("Zones/F1/F1.shx"))));
    QVERIFY(!ReadExclusionZones(Path(folder), &error));
    QVERIFY2(error.contains(QLatin1String("has no index")), qPrintable(error));
}

void ExclusionZones::otherShapesAreRefused()
{
    const TTemporaryFolder folder;
    const QByteArray path = folder.Path(QLatin1String("F1.shp")).toUtf8();
    SHPClose(SHPCreate(path.constData(), SHPT_ARC));
    QString error;
    QVERIFY(!ReadExclusionZones(QString::fromUtf8(path), &error));
    QCOMPARE(error, QString::fromUtf8(path) + QLatin1String(" has no polygons"));
}

void ExclusionZones::otherCoordinatesAreRefused()
{
    const TTemporaryFolder folder;
    const QByteArray path = folder.Path(QLatin1String("F1.shp")).toUtf8();
    const double eastings[] = {600000, 600000, 600100, 600000};
    const double northings[] = {5760000, 5760100, 5760000, 5760000};
    const SHPHandle file = SHPCreate(path.constData(), SHPT_POLYGON);
    SHPObject* const shape = SHPCreateSimpleObject(SHPT_POLYGON, 4, eastings, northings, nullptr);
    SHPWriteObject(file, -1, shape);
    SHPDestroyObject(shape);
    SHPClose(file);
    QString error;
    QVERIFY(!ReadExclusionZones(QString::fromUtf8(path), &error));
    QCOMPARE(error, QString::fromUtf8(path) + QLatin1String(" has coordinates that are not degrees; expected WGS84"));
}

/// As a power cut leaves it between the renaming of two files.
void ExclusionZones::theIndexOfOtherZonesIsNotUsed()
{
    const TTemporaryFolder folder;
    QString error;
    const QLatin1String index("Zones/F1/F1.shx");
    QVERIFY(WriteExclusionZones(Path(folder), {{{52, 10}, {52, 11}, {53, 11}, {53, 10}, {52.5, 9}}}, &error));
    const QByteArray ofOthers = folder.Content(index);
    QVERIFY(WriteExclusionZones(Path(folder), Zones, &error));
    const auto zones = ReadExclusionZones(Path(folder), &error);
    QVERIFY(zones && folder.Content(index) != ofOthers);
    folder.MakeFile(index, ofOthers);
    const auto again = ReadExclusionZones(Path(folder), &error);
    QVERIFY2(again, qPrintable(error));
    QCOMPARE(again->size(), zones->size());
    for (std::size_t i = 0; i < zones->size(); ++i) {
        QCOMPARE(again->at(i).size(), zones->at(i).size());
        QCOMPARE(again->at(i).front().latitude, zones->at(i).front().latitude);
    }
}

void ExclusionZones::filesThatAreTooLargeAreRefused_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("shapes") << QString::fromLatin1("Zones/F1/F1.shp");
    QTest::newRow("index") << QString::fromLatin1("Zones/F1/F1.shx");
}

/// What is behind the zones is a hole, and takes no space.
void ExclusionZones::filesThatAreTooLargeAreRefused()
{
    QFETCH(QString, name);
    const TTemporaryFolder folder;
    QString error;
    QVERIFY(WriteExclusionZones(Path(folder), Zones, &error));
    const qint64 most = qint64{64} * 1024 * 1024;
    QVERIFY(QFile::resize(folder.Path(name), most));
    QVERIFY2(ReadExclusionZones(Path(folder), &error), qPrintable(error));
    QVERIFY(QFile::resize(folder.Path(name), most + 1));
    QVERIFY(!ReadExclusionZones(Path(folder), &error));
    QCOMPARE(error, folder.Path(name) + QLatin1String(" is too large: it has 67108865 bytes, a file of exclusion zones "
                                                      "has at most 67108864"));
}

void ExclusionZones::whatCannotBeReadAgainIsNotWritten()
{
    const TTemporaryFolder folder;
    QString error;
    QVERIFY(WriteExclusionZones(Path(folder), Zones, &error));
    const QByteArray before = folder.Content(QLatin1String("Zones/F1/F1.shp"));
    const TGeoRing zone((std::size_t{64} << 20) / 16, tagGeoPoint{52, 10});
    QVERIFY(!WriteExclusionZones(Path(folder), {zone}, &error));
    QVERIFY2(error.contains(QLatin1String("F1.shp is too large")), qPrintable(error));
    QCOMPARE(folder.Content(QLatin1String("Zones/F1/F1.shp")), before);
    QCOMPARE(ReadExclusionZones(Path(folder), &error).value_or(std::vector<TGeoRing>()).size(), Zones.size());
}

/// A machine that has no descriptor left, as one on which a program loses them.
void ExclusionZones::aFileThatCannotBeOpenedIsNotSaidToBeDamaged()
{
    const TTemporaryFolder folder;
    QString error;
    QVERIFY(WriteExclusionZones(Path(folder), Zones, &error));
    rlimit usual = {};
    QCOMPARE(getrlimit(RLIMIT_NOFILE, &usual), 0);
    const rlimit none = {0, usual.rlim_max};
    QCOMPARE(setrlimit(RLIMIT_NOFILE, &none), 0);
    const auto zones = ReadExclusionZones(Path(folder), &error);
    QCOMPARE(setrlimit(RLIMIT_NOFILE, &usual), 0);
    QVERIFY(!zones);
    QCOMPARE(error, QLatin1String("cannot read ") + Path(folder) + QLatin1String(": Too many open files"));
}

void ExclusionZones::damagedFilesDoNoHarm_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("shapes") << QString::fromLatin1("Zones/F1/F1.shp");
    QTest::newRow("index") << QString::fromLatin1("Zones/F1/F1.shx");
}

void ExclusionZones::damagedFilesDoNoHarm()
{
    // A shapefile has no checksum: a changed byte may pass as another place. A file that is cut off never passes.
    QFETCH(QString, name);
    const TTemporaryFolder folder;
    QString error;
    QVERIFY(WriteExclusionZones(Path(folder), Zones, &error));
    const QByteArray whole = folder.Content(name);
    for (int at = 0; at < whole.size(); ++at) {
        folder.MakeFile(name, whole.left(at));
        QVERIFY2(!ReadExclusionZones(Path(folder), &error), qPrintable(QString::number(at)));
        QVERIFY(!error.isEmpty());
        for (const int bits : {0x01, 0x80, 0xFF}) {
            QByteArray changed = whole;
            changed[at] = static_cast<char>(changed.at(at) ^ bits);
            folder.MakeFile(name, changed);
            const auto zones = ReadExclusionZones(Path(folder), &error);
            QCOMPARE(zones.has_value(), error.isEmpty());
            for (const TGeoRing& zone : zones.value_or(std::vector<TGeoRing>()))
                QVERIFY(std::all_of(zone.begin(), zone.end(), IsGeoPoint));
        }
    }
}

void ExclusionZones::whatIsNoZoneIsNotWritten()
{
    const TTemporaryFolder folder;
    QString error;
    QVERIFY(!WriteExclusionZones(Path(folder), {{{52, 10}, {52, 11}}}, &error));
    QVERIFY(!WriteExclusionZones(Path(folder), {{{52, 10}, {52, 11}, {qQNaN(), 11}}}, &error));
    QVERIFY(folder.Entries().isEmpty());
    folder.MakeFile(QLatin1String("Zones"));
    QVERIFY(!WriteExclusionZones(Path(folder), Zones, &error));
    QCOMPARE(
        error,
        QString::fromLatin1("cannot make the folder %1: Not a directory").arg(folder.Path(QLatin1String("Zones"))));
}

QTEST_GUILESS_MAIN(ExclusionZones)
#include "ExclusionZones.moc"
