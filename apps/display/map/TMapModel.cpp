#include "display/map/TMapModel.h"

TMapModel::TMapModel(QObject* parent) : QObject(parent) {}

void TMapModel::SetAreas(const QVector<tagMapArea>& areas)
{
    m_Areas = areas;
    emit AreasChanged();
}

void TMapModel::SetStrips(const QVector<tagMapStrip>& strips)
{
    m_Strips = strips;
    emit StripsReset();
}

void TMapModel::AddStrip(const tagMapStrip& strip)
{
    m_Strips.append(strip);
    emit StripAdded();
}

void TMapModel::SetFlags(const QVector<QPointF>& flags)
{
    m_Flags = flags;
    emit FlagsChanged();
}

void TMapModel::SetVehicle(const tagMapVehicle& vehicle)
{
    m_Vehicle = vehicle;
    m_HasVehicle = true;
    emit VehicleChanged();
}

void TMapModel::ClearVehicle()
{
    m_HasVehicle = false;
    emit VehicleChanged();
}

void TMapModel::SetGuidance(const tagMapGuidance& guidance)
{
    m_Guidance = guidance;
    m_HasGuidance = true;
    emit GuidanceChanged();
}

void TMapModel::ClearGuidance()
{
    m_HasGuidance = false;
    emit GuidanceChanged();
}
