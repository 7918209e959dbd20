#include "system/Folders.h"
#include "system/TSystemSettings.h"

QString TSystemSettings::GetActiveJob() const { return m_Job.GetName(); }
void TSystemSettings::SetActiveJob(const QString& name) { m_Job.SetName(name); }
QString TSystemSettings::GetActiveJobPath() const { return m_Job.GetCFFPath(GetInternalDrivePath()); }

QString TSystemSettings::GetActiveBoundary() const { return m_Boundary.GetName(); }
QString TSystemSettings::GetActiveBoundaryPath() const { return m_Boundary.GetCFFPath(GetInternalDrivePath()); }

void TSystemSettings::SetActiveBoundary(const QString& name)
{
    m_Boundary.SetName(name);
    Folders::MakeFor(GetActiveBoundaryPath());
}

QString TSystemSettings::GetActiveABLine() const { return m_ABLine.GetName(); }
void TSystemSettings::SetActiveABLine(const QString& name) { m_ABLine.SetName(name); }
QString TSystemSettings::GetDefaultABLineName() const { return m_ABLine.GetDefaultName(); }
QString TSystemSettings::GetActiveABLinePath() const { return m_ABLine.GetCFFPath(GetInternalDrivePath()); }

QString TSystemSettings::GetActivePivot() const { return m_Pivot.GetName(); }
void TSystemSettings::SetActivePivot(const QString& name) { m_Pivot.SetName(name); }
QString TSystemSettings::GetDefaultPivotName() const { return m_Pivot.GetDefaultName(); }
QString TSystemSettings::GetActivePivotPath() const { return m_Pivot.GetCFFPath(GetInternalDrivePath()); }

QString TSystemSettings::GetActiveCurve() const { return m_Curve.GetName(); }
void TSystemSettings::SetActiveCurve(const QString& name) { m_Curve.SetName(name); }
QString TSystemSettings::GetDefaultCurveName() const { return m_Curve.GetDefaultName(); }
QString TSystemSettings::GetActiveCurvePath() const { return m_Curve.GetCFFPath(GetInternalDrivePath()); }

QString TSystemSettings::GetActiveOptimalLinesShapeFile() const { return m_OptimalLines.GetName(); }
void TSystemSettings::SetActiveOptimalLinesShapeFile(const QString& name) { m_OptimalLines.SetName(name); }
QString TSystemSettings::GetDefaultOptimalLinesShapeFileName() const { return m_OptimalLines.GetDefaultName(); }

QString TSystemSettings::GetActiveOptimalLinesShapeFilePath() const
{
    return m_OptimalLines.GetCFFPath(GetInternalDrivePath());
}

QString TSystemSettings::GetActiveProjectLinesShapeFile() const { return m_ProjectLines.GetName(); }
void TSystemSettings::SetActiveProjectLinesShapeFile(const QString& name) { m_ProjectLines.SetName(name); }
QString TSystemSettings::GetDefaultProjectLinesShapeFileName() const { return m_ProjectLines.GetDefaultName(); }

QString TSystemSettings::GetActiveProjectLinesShapeFilePath() const
{
    return m_ProjectLines.GetCFFPath(GetInternalDrivePath());
}

QString TSystemSettings::GetActiveShapeFile() const { return m_Zones.GetName(); }
void TSystemSettings::SetActiveShapeFileName(const QString& name) { m_Zones.SetName(name); }
QString TSystemSettings::GetActiveShapeFilePath() const { return m_Zones.GetCFFPath(GetInternalDrivePath()); }

void TSystemSettings::SetActiveShapeFile(const QString& name)
{
    SetActiveShapeFileName(name);
    if (!name.isEmpty())
        Folders::MakeFor(GetActiveShapeFilePath());
}

QString TSystemSettings::GetActiveSteering() const { return m_Steering.GetName(); }
void TSystemSettings::SetActiveSteering(const QString& name) { m_Steering.SetName(name); }
QString TSystemSettings::GetActiveSteeringPath() const { return m_Steering.GetPath(GetInternalDrivePath()); }

QString TSystemSettings::GetActiveImplement() const { return m_Implement.GetName(); }
void TSystemSettings::SetActiveImplement(const QString& name) { m_Implement.SetName(name); }
QString TSystemSettings::GetActiveImplementPath() const { return m_Implement.GetPath(GetInternalDrivePath()); }

QString TSystemSettings::GetActiveVehicle() const { return m_Vehicle.GetName(); }
void TSystemSettings::SetActiveVehicle(const QString& name) { m_Vehicle.SetName(name); }
QString TSystemSettings::GetActiveVehiclePath() const { return m_Vehicle.GetPath(GetInternalDrivePath()); }

QString TSystemSettings::GetActiveSprayer() const { return m_Sprayer.GetName(); }
void TSystemSettings::SetActiveSprayer(const QString& name) { m_Sprayer.SetName(name); }
QString TSystemSettings::GetActiveSprayerPath() const { return m_Sprayer.GetPath(GetInternalDrivePath()); }

QString TSystemSettings::GetActiveReportPath() const
{
    return GetActiveJobPath().replace(QLatin1String(IniExtension), QLatin1String(PdfExtension));
}

QString TSystemSettings::GetActiveCoveragePath() const
{
    return GetActiveJobPath().replace(QLatin1String(IniExtension), QLatin1String(CoverageExtension));
}

QString TSystemSettings::GetShapeFilePath() const
{
    return QDir(GetInternalDrivePath()).absoluteFilePath(QLatin1String(ZonesFolder));
}

QString TSystemSettings::GetImplementPathForName(const QString& name) const
{
    return m_Implement.GetFilePathForName(QDir(GetInternalDrivePath()), name);
}
