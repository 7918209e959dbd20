#pragma once

#include "platform/Export.h"
#include "system/TPathSetting.h"

/// The active implement. Its file may be in the folder of the vehicle with the same name instead: a self-propelled
/// sprayer is vehicle and implement in one.
///
///     const TImplementPathSetting implement(PARAM_ACTIVE_IMPLEMENT, QLatin1String("Implements"),
///                                           QLatin1String(".ini"), QString());
///     const QString path = implement.GetFilePathForName(QDir(drive), QLatin1String("Boom 24"));
class CABSETTINGS_EXPORT TImplementPathSetting : public TPathSetting
{
public:
    using TPathSetting::TPathSetting;

    QString GetFolderPath(const QDir& root) const override;
    QString GetFileName(const QDir& root) const override;

    /// Folders of an item called @p name, relative to the root.
    QString GetVehicleFolder(const QString& name) const;
    QString GetImplementFolder(const QString& name) const;

    /// Whether the file of the implement @p name is in the folder of a vehicle: it exists there, or
    /// PARAM_IMPLEMENT_FOLDER_CHOICE is IMPLEMENT_FOLDER_OF_VEHICLE.
    bool UsesVehicleFolder(const QDir& root, const QString& name) const;

    /// As GetFileName() and GetFolderPath(), but for any name, and the whole path.
    QString GetFileNameForName(const QDir& root, const QString& name) const;
    QString GetFolderPath(const QDir& root, const QString& name) const;
    QString GetFilePathForName(const QDir& root, const QString& name) const;
};
