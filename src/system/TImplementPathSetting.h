#pragma once

#include "platform/Export.h"
#include "system/TPathSetting.h"

/// The active implement, whose file may live in the folder of the vehicle of the same name instead: a self-propelled
/// sprayer is vehicle and implement in one.
class CABSETTINGS_EXPORT TImplementPathSetting : public TPathSetting
{
public:
    using TPathSetting::TPathSetting;

    QString GetFolderPath(const QDir& root) const override;
    QString GetFileName(const QDir& root) const override;

    /// Folders of an item called @p name, relative to the root.
    QString GetVehicleFolder(const QString& name) const;
    QString GetImplementFolder(const QString& name) const;

    /// Whether the implement @p name lives in a vehicle's folder: the file is there, or PARAM_IMPLEMENT_FOLDER_CHOICE
    /// is 4.
    bool UsesVehicleFolder(const QDir& root, const QString& name) const;

    /// For any name, what GetFileName() and GetFolderPath() tell for the active one, and the whole path.
    QString GetFileNameForName(const QDir& root, const QString& name) const;
    QString GetFolderPath(const QDir& root, const QString& name) const;
    QString GetFilePathForName(const QDir& root, const QString& name) const;
};
