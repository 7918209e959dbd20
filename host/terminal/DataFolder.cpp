#include "terminal/DataFolder.h"

#include "system/TSystemSettings.h"

#include <QDir>

using System = TSystemSettings;

QString DataFolder::StoreFile(const QString& dataFolder)
{
    return QDir(dataFolder).absoluteFilePath(QLatin1String("settings.db"));
}

QString DataFolder::InternalDrive(const QString& dataFolder)
{
    return QDir(dataFolder).absoluteFilePath(QLatin1String("internal/"));
}

QString DataFolder::ExternalDrive(const QString& dataFolder)
{
    return QDir(dataFolder).absoluteFilePath(QLatin1String("usb"));
}

bool DataFolder::MakeTree(const QString& internalDrive, QString* error)
{
    const char* const folders[] = {
        System::JobsFolder,
        System::ShapefilesForBoundaryFolder,
        System::ABLinesFolder,
        System::PivotsFolder,
        System::CurvesFolder,
        System::OptimalLinesFolder,
        System::ProjectLinesFolder,
        System::SteeringFolder,
        System::PerformanceTestFolder,
        System::FactoryVehiclesFolder,
        System::FactoryImplementsFolder,
        System::FactoryImplementsPartBFolder,
        System::FactoryProductsFolder,
        System::ImplementsFolder,
        System::VehiclesFolder,
        System::ZonesFolder,
        System::VRCShapeFilesFolder,
        System::VRCXMLFilesFolder,
        System::SprayerFolder,
        System::ReportsFolder,
        System::BoundaryShapefilesFolder,
        System::CoverageShapefilesFolder,
        System::BoomLevellerFolder,
        System::ClientsFolder,
        System::ProductsFolder,
        System::CamerasFolder,
        System::RemoteViewFolder,
        System::FernholdUploadsFolder,
        System::FernholdDownloadsFolder,
        System::FernholdTempDownloadsFolder,
        System::FernholdTempUploadsFolder,
        System::GlobalHomeScreensFolder,
        System::WaterConservationProjectsFolder,
        System::GeoidFolder,
        System::CrashReportsFolder,
        System::VelmorUploadsFolder,
        System::VelmorDownloadsFolder,
        System::VelmorTempUploadsFolder,
        System::VelmorTempDownloadsFolder,
    };
    const QDir drive(internalDrive);
    for (const char* folder : folders) {
        const QString path = drive.absoluteFilePath(QLatin1String(folder));
        if (!drive.mkpath(path)) {
            *error = QString::fromLatin1("cannot create the folder \"%1\"").arg(path);
            return false;
        }
    }
    return true;
}
