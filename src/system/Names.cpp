// Names on the drives. Existing files on displays and sticks have them: they never change.

#include "system/TSystemSettings.h"

const char* const TSystemSettings::JobsFolder = "Jobs";
const char* const TSystemSettings::BoundariesFolder = "Boundaries";
const char* const TSystemSettings::ShapefilesForBoundaryFolder = "Boundaries/ShapefilesForBoundary";
const char* const TSystemSettings::ABLinesFolder = "ABLines";
const char* const TSystemSettings::PivotsFolder = "Pivots";
const char* const TSystemSettings::CurvesFolder = "Curves";
const char* const TSystemSettings::OptimalLinesFolder = "OptimalLines";
const char* const TSystemSettings::ProjectLinesFolder = "ProjectLines";
const char* const TSystemSettings::SteeringFolder = "Steering";
const char* const TSystemSettings::PerformanceTestFolder = "Diagnostics/PerformanceTest";
const char* const TSystemSettings::FactoryVehiclesFolder = "FactoryVehicles";
const char* const TSystemSettings::FactoryImplementsFolder = "FactoryImplements";
const char* const TSystemSettings::FactoryImplementsPartBFolder = "FactoryImplementsPartB";
const char* const TSystemSettings::FactoryProductsFolder = "FactoryProducts";
const char* const TSystemSettings::ImplementsFolder = "Implements";
const char* const TSystemSettings::VehiclesFolder = "Vehicles";
const char* const TSystemSettings::ZonesFolder = "Zones";
const char* const TSystemSettings::VRCShapeFilesFolder = "VRC";
const char* const TSystemSettings::VRCXMLFilesFolder = "VRCXML";
const char* const TSystemSettings::SprayerFolder = "Sprayer";
const char* const TSystemSettings::ReportsFolder = "Reports";
const char* const TSystemSettings::BoundaryShapefilesFolder = "BoundaryShapefiles";
const char* const TSystemSettings::CoverageShapefilesFolder = "CoverageShapefiles";
const char* const TSystemSettings::DiagnosticsFolder = "Diagnostics";
const char* const TSystemSettings::BoomLevellerFolder = "BoomLeveller";
const char* const TSystemSettings::ClientsFolder = "Clients";
const char* const TSystemSettings::FarmsVirtualFolder = "Farms";
const char* const TSystemSettings::FieldsVirtualFolder = "Fields";
const char* const TSystemSettings::ProductsFolder = "Products";
const char* const TSystemSettings::CamerasFolder = "Cameras";
const char* const TSystemSettings::RemoteViewFolder = "RemoteView";
const char* const TSystemSettings::FernholdUploadsFolder = "FernholdUploads";
const char* const TSystemSettings::FernholdDownloadsFolder = "FernholdDownloads";
const char* const TSystemSettings::FernholdTempDownloadsFolder = "FernholdTempDownloads";
const char* const TSystemSettings::FernholdTempUploadsFolder = "FernholdTempUploads";
const char* const TSystemSettings::GlobalHomeScreensFolder = "GlobalHomeScreens";
const char* const TSystemSettings::WaterConservationProjectsFolder =
    "WaterManagementProjects"; // the folder kept its name when the feature was renamed
const char* const TSystemSettings::GeoidFolder = "GeoidFiles";
const char* const TSystemSettings::CrashReportsFolder = "CrashReports";
const char* const TSystemSettings::VelmorUploadsFolder = "VelmorUploads";
const char* const TSystemSettings::VelmorDownloadsFolder = "VelmorDownloads";
const char* const TSystemSettings::VelmorTempUploadsFolder = "VelmorTempUploads";
const char* const TSystemSettings::VelmorTempDownloadsFolder = "VelmorTempDownloads";

const char* const TSystemSettings::IniExtension = ".ini";
const char* const TSystemSettings::CurveExtension = ".crv";
const char* const TSystemSettings::CoverageExtension = ".cov";
const char* const TSystemSettings::BoundaryExtension = ".bdy";
const char* const TSystemSettings::PdfExtension = ".pdf";
const char* const TSystemSettings::ShpExtension = ".shp";
const char* const TSystemSettings::ShxExtension = ".shx";
const char* const TSystemSettings::DbfExtension = ".dbf";
const char* const TSystemSettings::XMLExtension = ".xml";
const char* const TSystemSettings::LogExtension = ".log";
const char* const TSystemSettings::PackageExtension = ".ipk";
const char* const TSystemSettings::ChecksumExtension = ".idx";
const char* const TSystemSettings::CSVExtension = ".csv";
const char* const TSystemSettings::GPSQualityExtension = ".gps";
const char* const TSystemSettings::PbzExtension = ".pbz";
const char* const TSystemSettings::PPDExtension = ".ppd";
const char* const TSystemSettings::TpoExtension = ".tpo";
const char* const TSystemSettings::TxtExtension = ".txt";
const char* const TSystemSettings::BinExtension = ".bin";
const char* const TSystemSettings::ZIPExtension = ".tgz"; // a gzipped tar archive, not a zip archive
const char* const TSystemSettings::ZIP2Extension = ".tar.gz";
const char* const TSystemSettings::BoomMaskExtension = ".msk";
const char* const TSystemSettings::WorkingLengthExtension = ".wli";
const char* const TSystemSettings::DownForceRateExtension = ".dfr";

// Default names are made of these, so some of them can be translated.
const char* const TSystemSettings::JobsPrefix = QT_TRANSLATE_NOOP("TSystemSettings", "J_");
const char* const TSystemSettings::BoundaryPrefix = QT_TRANSLATE_NOOP("TSystemSettings", "B_");
const char* const TSystemSettings::ABLinePrefix = QT_TRANSLATE_NOOP("TSystemSettings", "L_");
const char* const TSystemSettings::PivotPrefix = QT_TRANSLATE_NOOP("TSystemSettings", "P_");
const char* const TSystemSettings::CurvePrefix = QT_TRANSLATE_NOOP("TSystemSettings", "C_");
const char* const TSystemSettings::OptimalLinesPrefix = QT_TRANSLATE_NOOP("TSystemSettings", "O_");
const char* const TSystemSettings::ProjectLinesPrefix = QT_TRANSLATE_NOOP("TSystemSettings", "P_");

const char* const TSystemSettings::NEMAPrefix = "NMEA";
const char* const TSystemSettings::UserPrefix = "User";

const char* const TSystemSettings::CompileTime = __DATE__ " " __TIME__;
const char* const TSystemSettings::PackageName = "kdm740";
const char* const TSystemSettings::Update = "update";

const bool TSystemSettings::m_isDevBuild = false;
const bool TSystemSettings::m_isAlphaBuild = false;
const bool TSystemSettings::m_isBetaBuild = false;

QString TSystemSettings::SoftwareVersion = QLatin1String("N/A");

// Translated when the library is loaded: stored selections hold these texts, so they must not change with the language
// while the display runs.
const QString TSystemSettings::DefaultVehicleProfile = tr("No Vehicle");
const QString TSystemSettings::DefaultSteeringProfile = tr("No Profile");
const QString TSystemSettings::DefaultSprayerProfile = tr("No Profile");
const QString TSystemSettings::DefaultImplementProfile = tr("No Implement");

const QString TSystemSettings::TempGuidanceCurveFileName = QLatin1String("TempGuidanceCurveFile");
const QString TSystemSettings::SPSprayerImplementFileName = QLatin1String("Implement") + QLatin1String(IniExtension);
const QString TSystemSettings::TaskDataDir = QLatin1String("taskdata");
const QString TSystemSettings::TaskDataXml = QLatin1String("TASKDATA.xml");
const QString TSystemSettings::TaskDataCffParentDir = TaskDataDir + QLatin1Char('_') + QLatin1String(ClientsFolder);

QString TSystemSettings::m_CFFRoot;
QString TSystemSettings::m_ClientsPath = QLatin1String(ClientsFolder) + QLatin1Char('/');
