#include "system/TPathSetting.h"

#include "access/Parameters.h"
#include "region/TRegionSettingsProxy.h"
#include "system/Folders.h"
#include "system/TSystemSettings.h"

const char* const TPathSetting::NoName = "This string intentionally left blank!";

TPathSetting::TPathSetting(EParamID parameter, const QString& folder, const QString& extension,
                           const QString& defaultPrefix)
    : m_Folder(folder), m_Extension(extension), m_DefaultPrefix(defaultPrefix), m_Parameter(parameter)
{}

TPathSetting::~TPathSetting() = default;

void TPathSetting::Initialise() { m_Name = GetDefaultName(); }

void TPathSetting::Restore(QString name)
{
    if (Parameters::Has(m_Parameter))
        m_Name = Parameters::ReadString(m_Parameter);
    if (name.isEmpty())
        name = m_Name;
    else if (name == QLatin1String(NoName))
        name = QString();
    SetName(name);
}

QString TPathSetting::GetName() const
{
    return Parameters::Has(m_Parameter) ? Parameters::ReadString(m_Parameter) : m_Name;
}

QString TPathSetting::GetPath(const QString& root) const
{
    const QString name = GetName();
    const QDir dir(root);
    const QString folder = GetFolderPath(dir);

    // The built-in items have no files, so they get no folders.
    const bool isBuiltIn =
        name == TSystemSettings::DefaultVehicleProfile || name == TSystemSettings::DefaultSteeringProfile ||
        name == TSystemSettings::DefaultImplementProfile || name == TSystemSettings::DefaultSprayerProfile;
    if (!isBuiltIn && !dir.exists(folder))
        dir.mkpath(folder);
    return QDir(dir.absoluteFilePath(folder)).absoluteFilePath(GetFileName(dir));
}

QString TPathSetting::GetCFFPath(const QString& prefix) const
{
    const QString name = GetName();

    // Not through the façade, whose lock the caller may hold. The client's folder depends on stored parameters only.
    const QString cffPath = TSystemSettings::ActiveCFFPath();
    if (cffPath.isEmpty())
        return QString();

    const QDir category(prefix + cffPath + m_Folder);
    Folders::Make(category);
    return QDir(category.absoluteFilePath(name)).absoluteFilePath(name + m_Extension);
}

void TPathSetting::SetName(const QString& name)
{
    m_Name = name;
    Parameters::WriteString(m_Parameter, name);
}

QString TPathSetting::GetDefaultName() const { return m_DefaultPrefix + TRegionSettingsProxy().GetDateTimeString(); }

QString TPathSetting::GetFolderPath(const QDir&) const { return m_Folder + QLatin1Char('/') + GetName(); }

QString TPathSetting::GetFileName(const QDir&) const { return GetName() + m_Extension; }
