#include "CoreTest.h"
#include "TBracketTranslator.h"
#include "TDisplay.h"

#include "system/TSystemSettings.h"
#include "system/TSystemSettingsProxy.h"

#include <QRegExp>
#include <QtTest>

using System = TSystemSettings;

class DriveNames : public QObject
{
    Q_OBJECT

private slots:
    // First, while nobody has set anything in this process.
    void theVersionIsUnknownUntilItIsSet();
    void fieldsLieOnTheDriveItselfUntilAnotherPlaceIsSet();

    void foldersKeepTheirNames_data();
    void foldersKeepTheirNames();
    void extensionsKeepTheirNames_data();
    void extensionsKeepTheirNames();
    void prefixesKeepTheirNames_data();
    void prefixesKeepTheirNames();
    void filesAndProfilesKeepTheirNames_data();
    void filesAndProfilesKeepTheirNames();

    void theBuildIsNeitherDevNorAlphaNorBeta();
    void theBuildTimeIsDateBlankTime();
    void builtInProfilesKeepTheLanguageOfTheStart();

private:
    struct tagName
    {
        const char* member;
        const char* actual;
        const char* expected;
    };

    template <std::size_t count>
    static void AddNames(const tagName (&names)[count]);

    static void CompareName();
};

template <std::size_t count>
void DriveNames::AddNames(const tagName (&names)[count])
{
    QTest::addColumn<QString>("actual");
    QTest::addColumn<QString>("expected");
    for (const tagName& name : names)
        QTest::newRow(name.member) << QString::fromLatin1(name.actual) << QString::fromLatin1(name.expected);
}

void DriveNames::CompareName()
{
    QFETCH(QString, actual);
    QFETCH(QString, expected);
    QCOMPARE(actual, expected);
}

void DriveNames::theVersionIsUnknownUntilItIsSet()
{
    const TDisplay display;
    QCOMPARE(System::SoftwareVersion, QString::fromLatin1("N/A"));
    QCOMPARE(TSystemSettingsProxy().GetSoftwareVersion(false), QString::fromLatin1("N/A"));
    QCOMPARE(TSystemSettingsProxy().GetSoftwareVersion(true), QString::fromLatin1("N/A"));
    QCOMPARE(TSystemSettingsProxy().GetPackageName(), QString::fromLatin1("kdm740-N/A"));
}

void DriveNames::fieldsLieOnTheDriveItselfUntilAnotherPlaceIsSet() { QCOMPARE(System().GetCFFRoot(), QString()); }

void DriveNames::foldersKeepTheirNames_data()
{
    const tagName names[] = {
        {"JobsFolder", System::JobsFolder, "Jobs"},
        {"BoundariesFolder", System::BoundariesFolder, "Boundaries"},
        {"ShapefilesForBoundaryFolder", System::ShapefilesForBoundaryFolder, "Boundaries/ShapefilesForBoundary"},
        {"ABLinesFolder", System::ABLinesFolder, "ABLines"},
        {"PivotsFolder", System::PivotsFolder, "Pivots"},
        {"CurvesFolder", System::CurvesFolder, "Curves"},
        {"OptimalLinesFolder", System::OptimalLinesFolder, "OptimalLines"},
        {"ProjectLinesFolder", System::ProjectLinesFolder, "ProjectLines"},
        {"SteeringFolder", System::SteeringFolder, "Steering"},
        {"PerformanceTestFolder", System::PerformanceTestFolder, "Diagnostics/PerformanceTest"},
        {"FactoryVehiclesFolder", System::FactoryVehiclesFolder, "FactoryVehicles"},
        {"FactoryImplementsFolder", System::FactoryImplementsFolder, "FactoryImplements"},
        {"FactoryImplementsPartBFolder", System::FactoryImplementsPartBFolder, "FactoryImplementsPartB"},
        {"FactoryProductsFolder", System::FactoryProductsFolder, "FactoryProducts"},
        {"ImplementsFolder", System::ImplementsFolder, "Implements"},
        {"VehiclesFolder", System::VehiclesFolder, "Vehicles"},
        {"ZonesFolder", System::ZonesFolder, "Zones"},
        {"VRCShapeFilesFolder", System::VRCShapeFilesFolder, "VRC"},
        {"VRCXMLFilesFolder", System::VRCXMLFilesFolder, "VRCXML"},
        {"SprayerFolder", System::SprayerFolder, "Sprayer"},
        {"ReportsFolder", System::ReportsFolder, "Reports"},
        {"BoundaryShapefilesFolder", System::BoundaryShapefilesFolder, "BoundaryShapefiles"},
        {"CoverageShapefilesFolder", System::CoverageShapefilesFolder, "CoverageShapefiles"},
        {"DiagnosticsFolder", System::DiagnosticsFolder, "Diagnostics"},
        {"BoomLevellerFolder", System::BoomLevellerFolder, "BoomLeveller"},
        {"ClientsFolder", System::ClientsFolder, "Clients"},
        {"FarmsVirtualFolder", System::FarmsVirtualFolder, "Farms"},
        {"FieldsVirtualFolder", System::FieldsVirtualFolder, "Fields"},
        {"ProductsFolder", System::ProductsFolder, "Products"},
        {"CamerasFolder", System::CamerasFolder, "Cameras"},
        {"RemoteViewFolder", System::RemoteViewFolder, "RemoteView"},
        {"FernholdUploadsFolder", System::FernholdUploadsFolder, "FernholdUploads"},
        {"FernholdDownloadsFolder", System::FernholdDownloadsFolder, "FernholdDownloads"},
        {"FernholdTempDownloadsFolder", System::FernholdTempDownloadsFolder, "FernholdTempDownloads"},
        {"FernholdTempUploadsFolder", System::FernholdTempUploadsFolder, "FernholdTempUploads"},
        {"GlobalHomeScreensFolder", System::GlobalHomeScreensFolder, "GlobalHomeScreens"},
        {"WaterConservationProjectsFolder", System::WaterConservationProjectsFolder, "WaterManagementProjects"},
        {"GeoidFolder", System::GeoidFolder, "GeoidFiles"},
        {"CrashReportsFolder", System::CrashReportsFolder, "CrashReports"},
        {"VelmorUploadsFolder", System::VelmorUploadsFolder, "VelmorUploads"},
        {"VelmorDownloadsFolder", System::VelmorDownloadsFolder, "VelmorDownloads"},
        {"VelmorTempUploadsFolder", System::VelmorTempUploadsFolder, "VelmorTempUploads"},
        {"VelmorTempDownloadsFolder", System::VelmorTempDownloadsFolder, "VelmorTempDownloads"},
    };
    AddNames(names);
}

void DriveNames::foldersKeepTheirNames() { CompareName(); }

void DriveNames::extensionsKeepTheirNames_data()
{
    const tagName names[] = {
        {"IniExtension", System::IniExtension, ".ini"},
        {"CurveExtension", System::CurveExtension, ".crv"},
        {"CoverageExtension", System::CoverageExtension, ".cov"},
        {"BoundaryExtension", System::BoundaryExtension, ".bdy"},
        {"PdfExtension", System::PdfExtension, ".pdf"},
        {"ShpExtension", System::ShpExtension, ".shp"},
        {"ShxExtension", System::ShxExtension, ".shx"},
        {"DbfExtension", System::DbfExtension, ".dbf"},
        {"XMLExtension", System::XMLExtension, ".xml"},
        {"LogExtension", System::LogExtension, ".log"},
        {"PackageExtension", System::PackageExtension, ".ipk"},
        {"ChecksumExtension", System::ChecksumExtension, ".idx"},
        {"CSVExtension", System::CSVExtension, ".csv"},
        {"GPSQualityExtension", System::GPSQualityExtension, ".gps"},
        {"PbzExtension", System::PbzExtension, ".pbz"},
        {"PPDExtension", System::PPDExtension, ".ppd"},
        {"TpoExtension", System::TpoExtension, ".tpo"},
        {"TxtExtension", System::TxtExtension, ".txt"},
        {"BinExtension", System::BinExtension, ".bin"},
        {"ZIPExtension", System::ZIPExtension, ".tgz"},
        {"ZIP2Extension", System::ZIP2Extension, ".tar.gz"},
        {"BoomMaskExtension", System::BoomMaskExtension, ".msk"},
        {"WorkingLengthExtension", System::WorkingLengthExtension, ".wli"},
        {"DownForceRateExtension", System::DownForceRateExtension, ".dfr"},
    };
    AddNames(names);
}

void DriveNames::extensionsKeepTheirNames() { CompareName(); }

void DriveNames::prefixesKeepTheirNames_data()
{
    const tagName names[] = {
        {"JobsPrefix", System::JobsPrefix, "J_"},
        {"BoundaryPrefix", System::BoundaryPrefix, "B_"},
        {"ABLinePrefix", System::ABLinePrefix, "L_"},
        {"PivotPrefix", System::PivotPrefix, "P_"},
        {"CurvePrefix", System::CurvePrefix, "C_"},
        {"OptimalLinesPrefix", System::OptimalLinesPrefix, "O_"},
        {"ProjectLinesPrefix", System::ProjectLinesPrefix, "P_"},
        {"NEMAPrefix", System::NEMAPrefix, "NMEA"},
        {"UserPrefix", System::UserPrefix, "User"},
    };
    AddNames(names);
}

void DriveNames::prefixesKeepTheirNames() { CompareName(); }

void DriveNames::filesAndProfilesKeepTheirNames_data()
{
    QTest::addColumn<QString>("actual");
    QTest::addColumn<QString>("expected");

    const struct
    {
        const char* member;
        QString actual;
        const char* expected;
    } names[] = {
        {"PackageName", QString::fromLatin1(System::PackageName), "kdm740"},
        {"Update", QString::fromLatin1(System::Update), "update"},
        {"DefaultVehicleProfile", System::DefaultVehicleProfile, "No Vehicle"},
        {"DefaultSteeringProfile", System::DefaultSteeringProfile, "No Profile"},
        {"DefaultSprayerProfile", System::DefaultSprayerProfile, "No Profile"},
        {"DefaultImplementProfile", System::DefaultImplementProfile, "No Implement"},
        {"TempGuidanceCurveFileName", System::TempGuidanceCurveFileName, "TempGuidanceCurveFile"},
        {"SPSprayerImplementFileName", System::SPSprayerImplementFileName, "Implement.ini"},
        {"TaskDataDir", System::TaskDataDir, "taskdata"},
        {"TaskDataXml", System::TaskDataXml, "TASKDATA.xml"},
        {"TaskDataCffParentDir", System::TaskDataCffParentDir, "taskdata_Clients"},
    };
    for (const auto& name : names)
        QTest::newRow(name.member) << name.actual << QString::fromLatin1(name.expected);
}

void DriveNames::filesAndProfilesKeepTheirNames() { CompareName(); }

void DriveNames::theBuildIsNeitherDevNorAlphaNorBeta()
{
    QVERIFY(!System::m_isDevBuild);
    QVERIFY(!System::m_isAlphaBuild);
    QVERIFY(!System::m_isBetaBuild);

    const TDisplay display;
    QVERIFY(!TSystemSettingsProxy().IsDevBuild());
    QVERIFY(!TSystemSettingsProxy().IsAlphaBuild());
    QVERIFY(!TSystemSettingsProxy().IsBetaBuild());
}

void DriveNames::theBuildTimeIsDateBlankTime()
{
    const QString text = QString::fromLatin1(System::CompileTime);
    QVERIFY2(QRegExp(QLatin1String("[A-Z][a-z]{2} [ 123]\\d \\d{4} \\d\\d:\\d\\d:\\d\\d")).exactMatch(text),
             System::CompileTime);
    const QDateTime time = QLocale::c().toDateTime(text.simplified(), QLatin1String("MMM d yyyy hh:mm:ss"));
    QVERIFY2(time.isValid(), System::CompileTime);
}

void DriveNames::builtInProfilesKeepTheLanguageOfTheStart()
{
    const TBracketTranslator translator("TSystemSettings");
    QCOMPARE(System::tr("No Vehicle"), QString::fromLatin1("[No Vehicle]"));
    QCOMPARE(System::DefaultVehicleProfile, QString::fromLatin1("No Vehicle"));
    QCOMPARE(System::DefaultSteeringProfile, QString::fromLatin1("No Profile"));
    QCOMPARE(System::DefaultSprayerProfile, QString::fromLatin1("No Profile"));
    QCOMPARE(System::DefaultImplementProfile, QString::fromLatin1("No Implement"));
}

int main(int argc, char** argv) { return RunCoreTest<DriveNames>(argc, argv); }

#include "DriveNames.moc"
