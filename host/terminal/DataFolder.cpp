#include "terminal/DataFolder.h"

#include "parameters/TParameterCatalogue.h"
#include "system/TSystemSettings.h"

#include <QDir>

using System = TSystemSettings;

namespace {

/// Whether the catalogue accepts @p drive as the value of @p id. If not, says so in @p problem.
bool IsAccepted(EParamID id, const QString& drive, QString* problem)
{
    return TParameterCatalogue::Read(*TParameterCatalogue::Find(id), drive, problem).isValid();
}

} // namespace

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

QString DataFolder::InternalDrive(const QString& dataFolder, const QString& stored, QString* problem)
{
    const QLatin1Char separator('/');
    const QString drive = stored.endsWith(separator) ? stored : stored + separator;
    const bool isUsed = !stored.isEmpty() && IsAccepted(PARAM_INTERNAL_DRIVE, drive, problem);
    return isUsed ? drive : InternalDrive(dataFolder);
}

QString DataFolder::ExternalDrive(const QString& dataFolder, const QString& stored, QString* problem)
{
    const bool isUsed = !stored.isEmpty() && IsAccepted(PARAM_EXTERNAL_DRIVE, stored, problem);
    return isUsed ? stored : ExternalDrive(dataFolder);
}

QStringList DataFolder::Folders()
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
    QStringList names;
    for (const char* folder : folders)
        names.append(QLatin1String(folder));
    return names;
}

bool DataFolder::MakeTree(const QString& internalDrive, QString* error)
{
    const QDir drive(internalDrive);
    const QStringList folders = Folders();
    for (const QString& folder : folders) {
        const QString path = drive.absoluteFilePath(folder);
        if (!drive.mkpath(path)) {
            *error = QString::fromLatin1("cannot create the folder \"%1\"").arg(path);
            return false;
        }
    }
    return true;
}
