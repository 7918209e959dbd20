#include "CoreTest.h"
#include "TDisplay.h"

#include "system/TSystemSettings.h"
#include "system/TSystemSettingsProxy.h"

#include <QtTest>

#include <type_traits>

namespace {

using System = TSystemSettings;
using Proxy = TSystemSettingsProxy;

/// When a name is missing, a path is either none at all or lacks the field's folder.
enum EWithoutField
{
    LiesOnTheDrive,
    HasNoPath,
};

template <class... Names>
struct tagPath
{
    const char* name;
    QString (System::*get)(Names...) const;
    QString (Proxy::*proxyGet)(Names...) const;
    EWithoutField withoutField;
    const char* file; ///< behind the field's folder; "%f" stands for the field, "%j" for the job
};

using Text = const QString&;
using tagJobPath = tagPath<Text, Text, Text, Text>;
using tagFieldPath = tagPath<Text, Text, Text>;

// clang-format off
const tagJobPath JobPaths[] = {
    {"job", &System::GetJobFilePath, &Proxy::GetJobFilePath, LiesOnTheDrive, "Jobs/%j/%j.ini"},
    {"coverage", &System::GetCoverageFilePath, &Proxy::GetCoverageFilePath, HasNoPath, "Jobs/%j/%j.cov"},
    {"per-point data", &System::GetPerPointDataJobPath, &Proxy::GetPerPointDataJobPath, HasNoPath, "Jobs/%j/%j_PPD.pbz"},
    {"area counters", &System::GetAreaCountersPath, &Proxy::GetAreaCountersPath, LiesOnTheDrive, "Jobs/%j/areacounters.ini"},
};

const tagFieldPath FieldPathTable[] = {
    {"boundary", &System::GetBoundaryFilePath, &Proxy::GetBoundaryFilePath, HasNoPath, "Boundaries/%f/%f.bdy"},
    {"exclusion zone", &System::GetExclusionZoneShapefilePath, &Proxy::GetExclusionZoneShapefilePath, HasNoPath, "Zones/%f/%f.shp"},
    {"flag points", &System::GetFlagPointsFilePath, &Proxy::GetFlagPointsFilePath, LiesOnTheDrive, "flagpoints.ini"},
};
// clang-format on

const int NameCount = 4; // client, farm, field, job

/// One of Smith, North, F1 and J_1, or an empty text where its bit of @p missing is set.
QString NameUnless(int missing, int index)
{
    const char* const names[NameCount] = {"Smith", "North", "F1", "J_1"};
    return (missing >> index) & 1 ? QString() : QString::fromLatin1(names[index]);
}

QByteArray RowName(const char* path, int missing)
{
    const char* const kinds[NameCount] = {", no client", ", no farm", ", no field", ", no job"};
    QByteArray name = path;
    for (int index = 0; index < NameCount; ++index) {
        if ((missing >> index) & 1)
            name += kinds[index];
    }
    return name;
}

template <class tagRow>
QString ExpectedPath(const tagRow& row, int missing)
{
    const bool isInField = (missing & 7) == 0;
    if (missing != 0 && row.withoutField == HasNoPath)
        return QString();
    const QString file = QString::fromLatin1(row.file)
                             .replace(QLatin1String("%f"), NameUnless(missing, 2))
                             .replace(QLatin1String("%j"), NameUnless(missing, 3));
    return QLatin1String(isInField ? "/data/Clients/Smith/North/F1/" : "/data/") + file;
}

/// A display whose internal drive is "/data/", for what does not touch the drive.
struct TPlainDisplay : TDisplay
{
    TPlainDisplay() { store.values[8910] = QLatin1String("/data/"); }
};

} // namespace

Q_DECLARE_METATYPE(const tagJobPath*)
Q_DECLARE_METATYPE(const tagFieldPath*)

class FieldPaths : public QObject
{
    Q_OBJECT

private slots:
    void theFieldsFolderNeedsAllNames_data();
    void theFieldsFolderNeedsAllNames();
    void theRootOfTheFieldsHoldsForTheProcess();
    void theRootOfTheFieldsComesFirst();

    void jobFiles_data();
    void jobFiles();
    void fieldFiles_data();
    void fieldFiles();
    void namesAreTakenAsTheyCome();
    void plainPathsMakeNoFolder();

    void theActiveFieldAndItsFlagPoints_data();
    void theActiveFieldAndItsFlagPoints();
    void elevationLiesBesideTheField_data();
    void elevationLiesBesideTheField();
    void perPointDataLieBesideTheJob_data();
    void perPointDataLieBesideTheJob();
    void areaCountersLieWithTheJobOrTheImplement_data();
    void areaCountersLieWithTheJobOrTheImplement();
    void offsetLinesLieBesideTheProjectLines_data();
    void offsetLinesLieBesideTheProjectLines();

    void anABLineOutsideAFieldGetsItsFolder();
    void aNewJobIsNamedAfterImplementAndTime();
    void jobsAreCountedByTheirFolders();
};

void FieldPaths::theFieldsFolderNeedsAllNames_data()
{
    QTest::addColumn<int>("missing");
    for (int missing = 0; missing < 8; ++missing)
        QTest::newRow(RowName("folder", missing).constData()) << missing;
}

void FieldPaths::theFieldsFolderNeedsAllNames()
{
    QFETCH(int, missing);
    const QString client = NameUnless(missing, 0);
    const QString farm = NameUnless(missing, 1);
    const QString field = NameUnless(missing, 2);
    TPlainDisplay display;
    display.SetField(client, farm, field);

    const QString folder = missing == 0 ? QString::fromLatin1("Clients/Smith/North/F1/") : QString();
    QCOMPARE(System().GetCFFPath(client, farm, field), folder);
    QCOMPARE(System().GetCFFPath(), folder);
    QCOMPARE(Proxy().GetCFFPath(client, farm, field), folder);
    QCOMPARE(Proxy().GetCFFPath(), folder);

    System().SetCFFRoot(QLatin1String("/media/usb"));
    const QString folderBelowRoot = missing == 0 ? QLatin1String("/media/usb/") + folder : QString();
    QCOMPARE(System().GetCFFPath(client, farm, field), folderBelowRoot);
    QCOMPARE(System().GetCFFPath(), folderBelowRoot);
}

void FieldPaths::theRootOfTheFieldsHoldsForTheProcess()
{
    const TPlainDisplay display;
    Proxy().SetCFFRoot(QLatin1String("/media/usb"));
    QCOMPARE(System().GetCFFRoot(), QString::fromLatin1("/media/usb"));
    QCOMPARE(Proxy().GetCFFRoot(), QString::fromLatin1("/media/usb"));
    System().SetCFFRoot(QString());
    QCOMPARE(Proxy().GetCFFRoot(), QString());
    QVERIFY(display.store.writes.isEmpty());
}

void FieldPaths::theRootOfTheFieldsComesFirst()
{
    TPlainDisplay display;
    display.SetField();
    System system;
    system.SetCFFRoot(QLatin1String("taskdata"));
    const QString smith = QLatin1String("Smith");
    const QString north = QLatin1String("North");
    const QString f1 = QLatin1String("F1");
    QCOMPARE(system.GetJobFilePath(smith, north, f1, QLatin1String("J_1")),
             QString::fromLatin1("/data/taskdata/Clients/Smith/North/F1/Jobs/J_1/J_1.ini"));
    QCOMPARE(system.GetBoundaryFilePath(smith, north, f1),
             QString::fromLatin1("/data/taskdata/Clients/Smith/North/F1/Boundaries/F1/F1.bdy"));
    QCOMPARE(system.GetActiveFieldPath(), QString::fromLatin1("/data/taskdata/Clients/Smith/North/F1/F1.ini"));

    // A drive and a root without a "/" between them are joined as they are.
    display.store.values[8910] = QLatin1String("/data");
    QCOMPARE(system.GetFlagPointsFilePath(smith, north, f1),
             QString::fromLatin1("/datataskdata/Clients/Smith/North/F1/flagpoints.ini"));
    system.SetCFFRoot(QLatin1String("/taskdata"));
    QCOMPARE(system.GetFlagPointsFilePath(smith, north, f1),
             QString::fromLatin1("/data/taskdata/Clients/Smith/North/F1/flagpoints.ini"));
}

void FieldPaths::jobFiles_data()
{
    QTest::addColumn<const tagJobPath*>("path");
    QTest::addColumn<int>("missing");
    for (const tagJobPath& path : JobPaths) {
        for (int missing = 0; missing < 16; ++missing)
            QTest::newRow(RowName(path.name, missing).constData()) << &path << missing;
    }
}

void FieldPaths::jobFiles()
{
    QFETCH(const tagJobPath*, path);
    QFETCH(int, missing);
    const TPlainDisplay display;
    const QString client = NameUnless(missing, 0);
    const QString farm = NameUnless(missing, 1);
    const QString field = NameUnless(missing, 2);
    const QString job = NameUnless(missing, 3);
    QCOMPARE((System().*path->get)(client, farm, field, job), ExpectedPath(*path, missing));
    QCOMPARE((Proxy().*path->proxyGet)(client, farm, field, job), ExpectedPath(*path, missing));
}

void FieldPaths::fieldFiles_data()
{
    QTest::addColumn<const tagFieldPath*>("path");
    QTest::addColumn<int>("missing");
    for (const tagFieldPath& path : FieldPathTable) {
        for (int missing = 0; missing < 8; ++missing)
            QTest::newRow(RowName(path.name, missing).constData()) << &path << missing;
    }
}

void FieldPaths::fieldFiles()
{
    QFETCH(const tagFieldPath*, path);
    QFETCH(int, missing);
    const TPlainDisplay display;
    const QString client = NameUnless(missing, 0);
    const QString farm = NameUnless(missing, 1);
    const QString field = NameUnless(missing, 2);
    QCOMPARE((System().*path->get)(client, farm, field), ExpectedPath(*path, missing));
    QCOMPARE((Proxy().*path->proxyGet)(client, farm, field), ExpectedPath(*path, missing));
}

void FieldPaths::namesAreTakenAsTheyCome()
{
    const TPlainDisplay display;
    QCOMPARE(System().GetJobFilePath(QString::fromUtf8("Müller & Söhne"), QLatin1String("../x"), QLatin1String("F//1 "),
                                     QString::fromUtf8("畑.ini")),
             QString::fromUtf8("/data/Clients/Müller & Söhne/../x/F//1 /Jobs/畑.ini/畑.ini.ini"));
}

void FieldPaths::plainPathsMakeNoFolder()
{
    TDisplay display;
    display.SetField();
    const System system;
    for (const tagJobPath& path : JobPaths)
        (system.*path.get)(NameUnless(0, 0), NameUnless(0, 1), NameUnless(0, 2), NameUnless(0, 3));
    for (const tagFieldPath& path : FieldPathTable)
        (system.*path.get)(NameUnless(0, 0), NameUnless(0, 1), NameUnless(0, 2));
    system.GetActiveFieldPath();
    system.GetActiveFlagPointsFilePath();
    system.GetActivePerPointDataElevationPath();
    system.GetDefaultJobName();
    system.GetNumberOfJobs();
    QCOMPARE(display.DriveContent(), QStringList());
    QVERIFY(display.store.writes.isEmpty());
}

void FieldPaths::theActiveFieldAndItsFlagPoints_data()
{
    QTest::addColumn<QString>("client");
    QTest::addColumn<QString>("field");
    QTest::addColumn<QString>("fieldPath");
    QTest::addColumn<QString>("flagPoints");

    const struct
    {
        const char* name;
        const char* client;
        const char* field;
        const char* fieldPath;
        const char* flagPoints;
    } rows[] = {
        {"all names", "Smith", "F1", "Clients/Smith/North/F1/F1.ini", "Clients/Smith/North/F1/flagpoints.ini"},
        {"no client", "", "F1", "F1.ini", "flagpoints.ini"},
        {"no field", "Smith", "", ".ini", "flagpoints.ini"},
    };
    for (const auto& row : rows) {
        QTest::newRow(row.name) << QString::fromLatin1(row.client) << QString::fromLatin1(row.field)
                                << QString::fromLatin1(row.fieldPath) << QString::fromLatin1(row.flagPoints);
    }
}

void FieldPaths::theActiveFieldAndItsFlagPoints()
{
    QFETCH(QString, client);
    QFETCH(QString, field);
    QFETCH(QString, fieldPath);
    QFETCH(QString, flagPoints);
    TPlainDisplay display;
    display.SetField(client, QLatin1String("North"), field);
    QCOMPARE(System().GetActiveFieldPath(), QLatin1String("/data/") + fieldPath);
    QCOMPARE(Proxy().GetActiveFieldPath(), QLatin1String("/data/") + fieldPath);
    QCOMPARE(System().GetActiveFlagPointsFilePath(), QLatin1String("/data/") + flagPoints);
    QCOMPARE(Proxy().GetActiveFlagPointsFilePath(), QLatin1String("/data/") + flagPoints);
}

void FieldPaths::elevationLiesBesideTheField_data()
{
    QTest::addColumn<QString>("field");
    QTest::addColumn<QString>("path");

    QTest::newRow("plain") << QString::fromLatin1("F1")
                           << QString::fromLatin1("/data/Clients/Smith/North/F1/F1_Elevation.pbz");
    QTest::newRow("'.ini' in the field")
        << QString::fromLatin1("F.ini1")
        << QString::fromLatin1("/data/Clients/Smith/North/F_Elevation.pbz1/F_Elevation.pbz1_Elevation.pbz");
    QTest::newRow("placeholder in the field")
        << QString::fromLatin1("%1") << QString::fromLatin1("/data/Clients/Smith/North/%1/%1_Elevation.pbz");
    QTest::newRow("no field") << QString() << QString::fromLatin1("/data/_Elevation.pbz");
}

void FieldPaths::elevationLiesBesideTheField()
{
    QFETCH(QString, field);
    QFETCH(QString, path);
    TPlainDisplay display;
    display.SetField(QLatin1String("Smith"), QLatin1String("North"), field);
    QCOMPARE(System().GetActivePerPointDataElevationPath(), path);
    QCOMPARE(Proxy().GetActivePerPointDataElevationPath(), path);
}

void FieldPaths::perPointDataLieBesideTheJob_data()
{
    QTest::addColumn<QString>("field");
    QTest::addColumn<QString>("job");
    QTest::addColumn<QString>("path");

    const struct
    {
        const char* name;
        const char* field;
        const char* job;
        const char* path;
    } rows[] = {
        {"plain", "F1", "J_1", "F1/Jobs/J_1/J_1_PPD.pbz"},
        {"'.ini' in the job", "F1", "J.ini", "F1/Jobs/J_PPD.pbz/J_PPD.pbz_PPD.pbz"},
        {"'.ini' in the field", "F.ini", "J", "F_PPD.pbz/Jobs/J/J_PPD.pbz"},
        {"'.INI' is another thing", "F.INI", "J", "F.INI/Jobs/J/J_PPD.pbz"},
    };
    for (const auto& row : rows) {
        QTest::newRow(row.name) << QString::fromLatin1(row.field) << QString::fromLatin1(row.job)
                                << QString::fromLatin1(row.path);
    }
}

void FieldPaths::perPointDataLieBesideTheJob()
{
    QFETCH(QString, field);
    QFETCH(QString, job);
    QFETCH(QString, path);
    TDisplay display;
    display.store.values[8919] = job;
    QCOMPARE(System().GetActivePerPointDataJobPath(), QString());

    display.SetField(QLatin1String("Smith"), QLatin1String("North"), field);
    const QString expected = display.OnDrive(QLatin1String("Clients/Smith/North/") + path);
    QCOMPARE(System().GetActivePerPointDataJobPath(), expected);
    QCOMPARE(Proxy().GetActivePerPointDataJobPath(), expected);
}

void FieldPaths::areaCountersLieWithTheJobOrTheImplement_data()
{
    QTest::addColumn<bool>("isInField");
    QTest::addColumn<QString>("folderThere");
    QTest::addColumn<int>("folderChoice");
    QTest::addColumn<QString>("path");

    const QString job = QLatin1String("Clients/Smith/North/F1/Jobs/J_1/areacounters.ini");
    const QString implement = QLatin1String("Implements/Boom/areacounters.ini");
    const QString vehicle = QLatin1String("Vehicles/Boom/areacounters.ini");
    const QString jobFolder = QLatin1String("Clients/Smith/North/F1/Jobs/J_1");

    QTest::newRow("the job has a folder") << true << jobFolder << 0 << job;
    QTest::newRow("the job has a folder, whatever the choice") << true << jobFolder << 4 << job;
    QTest::newRow("another job has a folder")
        << true << QString::fromLatin1("Clients/Smith/North/F1/Jobs/J_2") << 0 << implement;
    QTest::newRow("the job has none") << true << QString() << 0 << implement;
    QTest::newRow("the job has none, implement with its vehicle") << true << QString() << 4 << vehicle;
    QTest::newRow("no field") << false << QString() << 0 << implement;
    QTest::newRow("no field, but a folder of the job outside")
        << false << QString::fromLatin1("Jobs/J_1") << 0 << implement;
    QTest::newRow("no field, implement with its vehicle") << false << QString() << 4 << vehicle;
}

void FieldPaths::areaCountersLieWithTheJobOrTheImplement()
{
    QFETCH(bool, isInField);
    QFETCH(QString, folderThere);
    QFETCH(int, folderChoice);
    QFETCH(QString, path);
    TDisplay display;
    if (isInField)
        display.SetField();
    if (!folderThere.isEmpty())
        display.folder.MakeFolder(QLatin1String("data/") + folderThere);
    display.store.values[9103] = folderChoice;
    display.store.values[8919] = QLatin1String("J_1");
    display.store.values[8928] = QLatin1String("Boom");
    QCOMPARE(System().GetActiveAreaCountersPath(), display.OnDrive(path));
    QCOMPARE(Proxy().GetActiveAreaCountersPath(), display.OnDrive(path));
}

void FieldPaths::offsetLinesLieBesideTheProjectLines_data()
{
    QTest::addColumn<QString>("field");
    QTest::addColumn<QString>("lines");
    QTest::addColumn<QString>("pathOfA");
    QTest::addColumn<QString>("pathOfB");

    const struct
    {
        const char* name;
        const char* field;
        const char* lines;
        const char* pathOfA;
        const char* pathOfB;
    } rows[] = {
        {"plain", "F1", "P_1", "F1/ProjectLines/P_1/P_1A.shp", "F1/ProjectLines/P_1/P_1B.shp"},
        {"'.shp' in the name", "F1", "P.shp1", "F1/ProjectLines/P1/P1A.shp", "F1/ProjectLines/P1/P1B.shp"},
        {"'.shp' in the field", "F.shp", "P", "F/ProjectLines/P/PA.shp", "F/ProjectLines/P/PB.shp"},
        {"'.SHP' is another thing", "F.SHP", "P", "F.SHP/ProjectLines/P/PA.shp", "F.SHP/ProjectLines/P/PB.shp"},
    };
    for (const auto& row : rows) {
        QTest::newRow(row.name) << QString::fromLatin1(row.field) << QString::fromLatin1(row.lines)
                                << QString::fromLatin1(row.pathOfA) << QString::fromLatin1(row.pathOfB);
    }
}

void FieldPaths::offsetLinesLieBesideTheProjectLines()
{
    QFETCH(QString, field);
    QFETCH(QString, lines);
    QFETCH(QString, pathOfA);
    QFETCH(QString, pathOfB);
    TDisplay display;
    display.store.values[8925] = lines;
    QCOMPARE(System().GetOffsetLinesShapeFilePathA(), QString());
    QCOMPARE(System().GetOffsetLinesShapeFilePathB(), QString());

    display.SetField(QLatin1String("Smith"), QLatin1String("North"), field);
    const QString farm = display.OnDrive(QLatin1String("Clients/Smith/North/"));
    QCOMPARE(System().GetOffsetLinesShapeFilePathA(), farm + pathOfA);
    QCOMPARE(System().GetOffsetLinesShapeFilePathB(), farm + pathOfB);
    QCOMPARE(Proxy().GetOffsetLinesShapeFilePathA(), farm + pathOfA);
    QCOMPARE(Proxy().GetOffsetLinesShapeFilePathB(), farm + pathOfB);
}

void FieldPaths::anABLineOutsideAFieldGetsItsFolder()
{
    TDisplay display;
    display.SetField();
    System().SetCFFRoot(QLatin1String("taskdata"));
    const QStringList folders = QStringList() << QLatin1String("ABLines/") << QString::fromUtf8("ABLines/Süd 1/");
    const QString line = QString::fromUtf8("Süd 1");
    const QString path = display.OnDrive(QString::fromUtf8("ABLines/Süd 1/Süd 1.ini"));
    QCOMPARE(System().GetABLinePath(line), path);
    QCOMPARE(display.DriveContent(), folders);
    QCOMPARE(Proxy().GetABLinePath(line), path);
    QCOMPARE(display.DriveContent(), folders);
}

void FieldPaths::aNewJobIsNamedAfterImplementAndTime()
{
    TDisplay display;
    QCOMPARE(System().GetDefaultJobName(), QString::fromLatin1("J__050324_1405"));
    display.store.values[8928] = QLatin1String("Boom 24");
    QCOMPARE(System().GetDefaultJobName(), QString::fromLatin1("J_Boom 24_050324_1405"));
    display.store.values[9012] = true;
    QCOMPARE(Proxy().GetDefaultJobName(), QString::fromLatin1("J_Boom 24_030524_1405"));
}

void FieldPaths::jobsAreCountedByTheirFolders()
{
    static_assert(std::is_same<decltype(System().GetNumberOfJobs()), long long>::value, "counts are 64 bits wide");
    TDisplay display;
    display.SetField();
    QCOMPARE(System().GetNumberOfJobs(), 0LL);
    display.folder.MakeFolder(QLatin1String("data/Jobs"));
    QCOMPARE(System().GetNumberOfJobs(), 0LL);

    display.folder.MakeFolder(QLatin1String("data/Jobs/J_1/inner"));
    display.folder.MakeFolder(QString::fromUtf8("data/Jobs/J_Süd"));
    display.folder.MakeFolder(QLatin1String("data/Jobs/no prefix"));
    display.folder.MakeFile(QLatin1String("data/Jobs/J_2"));
    display.folder.MakeFile(QLatin1String("data/Jobs/J_1/J_1.ini"));
    display.folder.MakeFolder(QLatin1String("data/Clients/Smith/North/F1/Jobs/J_3"));
    QCOMPARE(System().GetNumberOfJobs(), 3LL);
    QCOMPARE(Proxy().GetNumberOfJobs(), 3LL);
}

int main(int argc, char** argv) { return RunCoreTest<FieldPaths>(argc, argv); }

#include "FieldPaths.moc"
