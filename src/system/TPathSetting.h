#pragma once

#include "platform/EParamID.h"
#include "platform/Export.h"

#include <QDir>
#include <QString>

/// The active item of one kind (job, vehicle, boundary, …): a name in the store, and the file of that name.
///
///     TPathSetting vehicle(PARAM_ACTIVE_VEHICLE, QLatin1String("Vehicles"), QLatin1String(".ini"), QString());
///     vehicle.SetName(QLatin1String("North"));
///     vehicle.GetPath(QLatin1String("/data")); // "/data/Vehicles/North/North.ini"
///
/// Each item has a folder of its own in the folder of its category. The operations call each other as virtual
/// functions, so that a derived class can keep its files elsewhere. There is no lock. Errors are not reported: when a
/// folder cannot be made, its path is returned all the same.
class CABSETTINGS_EXPORT TPathSetting
{
public:
    /// @param parameter where the name is stored; not touched here.
    /// @param folder the category's folder, relative.
    /// @param extension of the item's file, with its dot.
    /// @param defaultPrefix what default names start with.
    TPathSetting(EParamID parameter, const QString& folder, const QString& extension, const QString& defaultPrefix);

    virtual ~TPathSetting();

    /// Sets the default name, in memory only.
    virtual void Initialise();

    /// Reads the stored name into memory, then stores @p name. If @p name is empty, stores the name in memory instead.
    /// NoName stores an empty name.
    virtual void Restore(QString name);

    /// The stored name, or the one in memory when none is stored; empty before Initialise().
    virtual QString GetName() const;

    /// Path of the item's file under the folder @p root. Makes the item's folder, except for the built-in default
    /// items.
    virtual QString GetPath(const QString& root) const;

    /// Path of the item's file under @p prefix in the folders of the active client, farm and field; empty when one of
    /// them is not set. Makes the category's folder, not the item's.
    virtual QString GetCFFPath(const QString& prefix) const;

    virtual void SetName(const QString& name);

    /// Prefix and local date and time, for instance "J_030524_1405".
    virtual QString GetDefaultName() const;

    /// The item's folder and file name, relative to @p root and to that folder.
    virtual QString GetFolderPath(const QDir& root) const;
    virtual QString GetFileName(const QDir& root) const;

    /// Makes Restore() store an empty name.
    static const char* const NoName;

protected:
    const QString& Folder() const { return m_Folder; }
    const QString& Extension() const { return m_Extension; }

private:
    QString m_Name;
    QString m_Folder;
    QString m_Extension;
    QString m_DefaultPrefix;
    EParamID m_Parameter;
};
