#include "Obstacles.h"

#include "boundaries/Boundary.h"
#include "boundaries/ExclusionZones.h"
#include "coverage/TCoverageFile.h"
#include "diagnostics/TLogTail.h"
#include "guidance/FlagPoints.h"
#include "guidance/GuidanceLine.h"
#include "machine/Implement.h"
#include "nmea/LoggedPosition.h"
#include "nmea/NmeaAddress.h"
#include "nmea/RecordedTime.h"
#include "platform/TFileSystemHelper.h"
#include "profiles/TProfile.h"
#include "stores/TSqliteStore.h"

#include <QtTest>

#include <memory>

namespace {

/// Whether something was read. What could not be read is said in @p error.
bool ReadSomeProfile(const QString& path, QString* error)
{
    QStringList problems;
    const bool isRead = TProfile::Read(path, PROFILE_EDITS_ACCEPTED, &problems).has_value();
    *error = problems.join(QLatin1Char('\n'));
    return isRead;
}

bool ReadSomeLine(const QString& path, QString* error) { return ReadGuidanceLine(path, error).has_value(); }
bool ReadSomeOutline(const QString& path, QString* error) { return ReadBoundary(path, error).has_value(); }
bool ReadSomeFlags(const QString& path, QString* error) { return ReadFlagPoints(path, error).has_value(); }
bool ReadSomeMachine(const QString& path, QString* error) { return ReadImplement(path, error).has_value(); }
bool ReadSomeZones(const QString& path, QString* error) { return ReadExclusionZones(path, error).has_value(); }

bool ReadZonesOfIndex(const QString& path, QString* error)
{
    const TTemporaryFolder folder;
    const QString shapes = folder.Path(QLatin1String("F1.shp"));
    return WriteExclusionZones(shapes, {{{52, 10}, {52.001, 10}, {52, 10.001}}}, error) &&
           QFile::remove(folder.Path(QLatin1String("F1.shx"))) &&
           QFile::rename(path, folder.Path(QLatin1String("F1.shx"))) && ReadExclusionZones(shapes, error).has_value();
}

bool ReadSomeCoverage(const QString& path, QString* error)
{
    tagCoverage found;
    return TCoverageFile::Open(path, &found, error) != nullptr;
}

bool CopySomeFile(const QString& path, QString* error)
{
    *error = QLatin1String("the library is told by the result alone");
    return TFileSystemHelper::FileCopy(path, path + QLatin1String(".copy"), true);
}

// A log takes files alone, so others are not of it.

bool ReadSomePosition(const QString& path, QString* error)
{
    *error = QLatin1String("there is none");
    return LastLoggedPosition(path.left(path.size() - 9) + QLatin1String(".csv")).has_value();
}

bool ReadSomeLog(const QString& path, QString* error)
{
    TLogTail tail(path.left(path.size() - 9) + QLatin1String(".csv"));
    const bool isRead = !tail.Read(error).isEmpty() || !tail.Unfinished().text.isEmpty();
    *error = QLatin1String("there is none");
    return isRead;
}

bool ReadSomeTime(const QString& path, QString* error)
{
    *error = QLatin1String("it is no recording");
    const NmeaAddress address = tagFileAddress{path};
    return IsRecording(address) || FirstRecordedTime(address).isValid();
}

struct tagReader
{
    const char* name;
    const char* file;
    bool (*read)(const QString& path, QString* error);
};

constexpr tagReader Readers[] = {
    {"profile", "tractor.profile", &ReadSomeProfile},
    {"guidance line", "line.ini", &ReadSomeLine},
    {"boundary", "F1.bdy", &ReadSomeOutline},
    {"flags", "flagpoints.ini", &ReadSomeFlags},
    {"implement", "machine.ini", &ReadSomeMachine},
    {"exclusion zones", "F1.shp", &ReadSomeZones},
    {"index of exclusion zones", "index", &ReadZonesOfIndex},
    {"coverage", "J_1.cov", &ReadSomeCoverage},
    {"source of a copy", "User00001.csv", &CopySomeFile},
    {"last logged position", "NMEA00001.csv", &ReadSomePosition},
    {"log", "User00001.csv", &ReadSomeLog},
    {"time of a recording", "drive.nmea", &ReadSomeTime},
};

} // namespace

/// A pipe, a device, a socket or a folder where a file is expected: nothing waits for it, and nothing is read from it.
class HostileSources : public QObject
{
    Q_OBJECT

private slots:
    void whatIsNoFileIsNotRead_data();
    void whatIsNoFileIsNotRead();
    void aStoreThatIsNoFileIsNotUsed_data();
    void aStoreThatIsNoFileIsNotUsed();
    void enormousWorkIsRefusedAtOnce_data();
    void enormousWorkIsRefusedAtOnce();
};

Q_DECLARE_METATYPE(const tagObstacle*)
Q_DECLARE_METATYPE(const tagReader*)

void HostileSources::whatIsNoFileIsNotRead_data()
{
    QTest::addColumn<const tagReader*>("reader");
    QTest::addColumn<const tagObstacle*>("obstacle");
    for (const tagReader& reader : Readers) {
        for (const tagObstacle& obstacle : OtherKinds)
            QTest::addRow("%s: %s", reader.name, obstacle.name) << &reader << &obstacle;
    }
}

void HostileSources::whatIsNoFileIsNotRead()
{
    QFETCH(const tagReader*, reader);
    QFETCH(const tagObstacle*, obstacle);
    const TTemporaryFolder folder;
    const QString path = folder.Path(QLatin1String(reader->file));
    QVERIFY(obstacle->make(path.toUtf8().constData(), ""));
    QString error;
    QVERIFY(!reader->read(path, &error));
    QVERIFY(!error.isEmpty());
}

void HostileSources::aStoreThatIsNoFileIsNotUsed_data()
{
    QTest::addColumn<const tagObstacle*>("obstacle");
    QTest::addColumn<bool>("isReplaced");
    for (const tagObstacle& obstacle : OtherKinds) {
        // A link to what is empty is replaced as an empty file is; what it leads to stays.
        const bool isEmpty = QByteArray(obstacle.name) == "device without content";
        QTest::newRow(obstacle.name) << &obstacle << isEmpty;
    }
}

void HostileSources::aStoreThatIsNoFileIsNotUsed()
{
    QFETCH(const tagObstacle*, obstacle);
    QFETCH(bool, isReplaced);
    const TTemporaryFolder folder;
    const QString path = folder.Path(QLatin1String("settings.db"));
    QVERIFY(obstacle->make(path.toUtf8().constData(), ""));
    QString error;
    const auto store = TSqliteStore::Open(path, &error);
    QVERIFY2((store != nullptr) == isReplaced, qPrintable(error));
    QCOMPARE(error.isEmpty(), isReplaced);
    QCOMPARE(QFileInfo(path).isFile() && !QFileInfo(path).isSymLink(), isReplaced);
}

void HostileSources::enormousWorkIsRefusedAtOnce_data()
{
    QTest::addColumn<const tagReader*>("reader");
    for (const tagReader& reader : Readers) {
        const QByteArray name = reader.name;
        if (!name.startsWith("index") && !name.contains("log") && !name.contains("copy") && !name.contains("record"))
            QTest::newRow(reader.name) << &reader;
    }
}

/// The file is a hole, and takes no space.
void HostileSources::enormousWorkIsRefusedAtOnce()
{
    QFETCH(const tagReader*, reader);
    const TTemporaryFolder folder;
    folder.MakeFile(QLatin1String(reader->file));
    const QString path = folder.Path(QLatin1String(reader->file));
    QVERIFY(QFile::resize(path, (qint64{1} << 31) + 1));
    QString error;
    QVERIFY(!reader->read(path, &error));
    QVERIFY(!error.isEmpty());
}

QTEST_GUILESS_MAIN(HostileSources)
#include "HostileSources.moc"
