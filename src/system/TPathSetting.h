#pragma once

#include "platform/EParamID.h"
#include "platform/Export.h"

#include <QDir>
#include <QString>

/// The active item of one kind (job, vehicle, boundary, …): a name kept in the store, and the file that goes by it.
///
/// Each item lives in a folder of its own under the category's folder, for instance Vehicles/Deere/Deere.ini. The
/// operations call one another through the virtual table, so that a derived class can move its files elsewhere. No lock
/// of its own; no errors are reported: a folder that cannot be made still gives a path.
class CABSETTINGS_EXPORT TPathSetting
{
public:
    /// @param parameter where the name is stored; not touched here.
    /// @param folder the category's folder, relative.
    /// @param extension of the item's file, with its dot.
    /// @param defaultPrefix what default names start with.
    TPathSetting(EParamID parameter, const QString& folder, const QString& extension, const QString& defaultPrefix);

    virtual ~TPathSetting();

    /// Takes the default name, in memory only.
    virtual void Initialise();

    /// Brings the stored name back into memory and stores @p name. An empty @p name stores the name in memory instead,
    /// so that the store holds it; NoName asks for an explicitly empty one.
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

    /// Asks Restore() for an explicitly empty name.
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
