#include "system/TImplementPathSetting.h"

#include "access/Parameters.h"
#include "platform/EImplementFolder.h"
#include "system/TSystemSettings.h"

QString TImplementPathSetting::GetFolderPath(const QDir& root) const { return GetFolderPath(root, GetName()); }

QString TImplementPathSetting::GetFileName(const QDir& root) const { return GetFileNameForName(root, GetName()); }

QString TImplementPathSetting::GetVehicleFolder(const QString& name) const
{
    return QLatin1String(TSystemSettings::VehiclesFolder) + QLatin1Char('/') + name;
}

QString TImplementPathSetting::GetImplementFolder(const QString& name) const
{
    return Folder() + QLatin1Char('/') + name;
}

bool TImplementPathSetting::UsesVehicleFolder(const QDir& root, const QString& name) const
{
    return root.exists(GetVehicleFolder(name) + QLatin1Char('/') + TSystemSettings::SPSprayerImplementFileName) ||
           Parameters::ReadInt(PARAM_IMPLEMENT_FOLDER_CHOICE) == IMPLEMENT_FOLDER_OF_VEHICLE;
}

QString TImplementPathSetting::GetFileNameForName(const QDir& root, const QString& name) const
{
    return UsesVehicleFolder(root, name) ? TSystemSettings::SPSprayerImplementFileName : name + Extension();
}

QString TImplementPathSetting::GetFolderPath(const QDir& root, const QString& name) const
{
    return UsesVehicleFolder(root, name) ? GetVehicleFolder(name) : GetImplementFolder(name);
}

QString TImplementPathSetting::GetFilePathForName(const QDir& root, const QString& name) const
{
    return root.absolutePath() + QLatin1Char('/') + GetFolderPath(root, name) + QLatin1Char('/') +
           GetFileNameForName(root, name);
}
