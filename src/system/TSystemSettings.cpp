#include "system/TSystemSettings.h"

#include "system/Folders.h"

using Text = QLatin1String;

// "Pivoted_", and the prefix that pivots share with project lines, are intended: existing files have these names.
TSystemSettings::TSystemSettings()
    // clang-format off
    : m_Job         (PARAM_ACTIVE_JOB,                      Text(JobsFolder),         Text(IniExtension),      tr(JobsPrefix))
    , m_Boundary    (PARAM_ACTIVE_BOUNDARY,                 Text(BoundariesFolder),   Text(BoundaryExtension), tr(BoundaryPrefix))
    , m_ABLine      (PARAM_ACTIVE_AB_LINE,                  Text(ABLinesFolder),      Text(IniExtension),      tr(ABLinePrefix))
    , m_Pivot       (PARAM_ACTIVE_PIVOT,                    Text(PivotsFolder),       Text(IniExtension),      tr(PivotPrefix))
    , m_Curve       (PARAM_ACTIVE_CURVE,                    Text(CurvesFolder),       Text(CurveExtension),    tr(CurvePrefix))
    , m_OptimalLines(PARAM_ACTIVE_OPTIMAL_LINES_SHAPE_FILE, Text(OptimalLinesFolder), Text(ShpExtension),      tr(OptimalLinesPrefix))
    , m_ProjectLines(PARAM_ACTIVE_PROJECT_LINES_SHAPE_FILE, Text(ProjectLinesFolder), Text(ShpExtension),      tr(ProjectLinesPrefix))
    , m_Steering    (PARAM_ACTIVE_STEERING_PROFILE,         Text(SteeringFolder),     Text(IniExtension),      QString())
    , m_Implement   (PARAM_ACTIVE_IMPLEMENT,                Text(ImplementsFolder),   Text(IniExtension),      tr("Pivoted_"))
    , m_Vehicle     (PARAM_ACTIVE_VEHICLE,                  Text(VehiclesFolder),     Text(IniExtension),      QString())
    , m_Zones       (PARAM_ACTIVE_ZONES_SHAPE_FILE,         Text(ZonesFolder),        Text(ShpExtension),      QString())
    , m_Sprayer     (PARAM_ACTIVE_SPRAYER,                  Text(SprayerFolder),      Text(IniExtension),      QString())
    , m_BoomLeveller(PARAM_ACTIVE_BOOM_LEVELLER,            Text(BoomLevellerFolder), Text(IniExtension),      QString())
    // clang-format on
    , m_LowRAMRecordingOff(false)
    , m_LowFlashRecordingOff(false)
{}

void TSystemSettings::Initialise()
{
    TPathSetting* const items[] = {&m_Job,          &m_Boundary,     &m_ABLine,   &m_Pivot,     &m_Curve,
                                   &m_OptimalLines, &m_ProjectLines, &m_Steering, &m_Implement, &m_Vehicle};
    for (TPathSetting* item : items)
        item->Initialise();
}

void TSystemSettings::Restore()
{
    const QString noName = QLatin1String(TPathSetting::NoName);
    TPathSetting* const fieldItems[] = {&m_Job,   &m_Boundary,     &m_ABLine,      &m_Pivot,
                                        &m_Curve, &m_OptimalLines, &m_ProjectLines};
    for (TPathSetting* item : fieldItems)
        item->Restore(noName);

    m_Steering.Restore(DefaultSteeringProfile);
    m_Implement.Restore(DefaultImplementProfile);
    m_Vehicle.Restore(DefaultVehicleProfile);
    m_Zones.Restore(QString());
    m_Sprayer.Restore(DefaultSprayerProfile);

    Folders::MakeFor(GetInternalDrive().filePath());
    QFileInfo externalDrive;
    GetExternalDrive(externalDrive);
    Folders::MakeFor(externalDrive.filePath());
}

bool TSystemSettings::UpdateLowRAMRecordingOff(bool off)
{
    const bool before = m_LowRAMRecordingOff;
    m_LowRAMRecordingOff = off;
    return before;
}

bool TSystemSettings::UpdateLowFlashRecordingOff(bool off)
{
    const bool before = m_LowFlashRecordingOff;
    m_LowFlashRecordingOff = off;
    return before;
}

bool TSystemSettings::IsLowRAMRecordingOff() const { return m_LowRAMRecordingOff; }
bool TSystemSettings::IsLowFlashRecordingOff() const { return m_LowFlashRecordingOff; }
