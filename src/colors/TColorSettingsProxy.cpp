#include "colors/TColorSettingsProxy.h"

#include "access/TSettingsMembers.h"
#include "colors/TColorSettings.h"

using Proxy = TColorSettingsProxy;

Proxy::TColorSettingsProxy() : m_Target(&TSettingsMembers::Colors()) {}
Proxy::~TColorSettingsProxy() = default;

void Proxy::Restore() { m_Target->Restore(); }

void Proxy::SetDayMode(bool day) { m_Target->SetDayMode(day); }
bool Proxy::IsDayMode() const { return m_Target->IsDayMode(); }

int Proxy::GetLightbarNightLevel() const { return m_Target->GetLightbarNightLevel(); }
int Proxy::GetBacklightNightLevel() const { return m_Target->GetBacklightNightLevel(); }
int Proxy::GetButtonLedNightLevel() const { return m_Target->GetButtonLedNightLevel(); }

QColor Proxy::GetTextColor() const { return m_Target->GetTextColor(); }
QColor Proxy::GetButtonColor() const { return m_Target->GetButtonColor(); }
QColor Proxy::GetButtonTextColor() const { return m_Target->GetButtonTextColor(); }
QColor Proxy::GetBackgroundColor() const { return m_Target->GetBackgroundColor(); }
QColor Proxy::GetTitleColor() const { return m_Target->GetTitleColor(); }
QColor Proxy::GetExternalBoundaryColor() const { return m_Target->GetExternalBoundaryColor(); }
QColor Proxy::GetInternalBoundaryColor() const { return m_Target->GetInternalBoundaryColor(); }
QColor Proxy::GetInactiveBoundariesColor() const { return m_Target->GetInactiveBoundariesColor(); }
QColor Proxy::GetCoverageColor() const { return m_Target->GetCoverageColor(); }
QColor Proxy::GetVehicleColor() const { return m_Target->GetVehicleColor(); }
QColor Proxy::GetTrackColor() const { return m_Target->GetTrackColor(); }
QColor Proxy::GetMapColor() const { return m_Target->GetMapColor(); }
QColor Proxy::GetExclusionZoneColor() const { return m_Target->GetExclusionZoneColor(); }
QColor Proxy::GetGridColor() const { return m_Target->GetGridColor(); }
QColor Proxy::GetCrossHairsColor() const { return m_Target->GetCrossHairsColor(); }

void Proxy::SetTextColor(const QColor& color) { m_Target->SetTextColor(color); }
void Proxy::SetButtonColor(const QColor& color) { m_Target->SetButtonColor(color); }
void Proxy::SetButtonTextColor(const QColor& color) { m_Target->SetButtonTextColor(color); }
void Proxy::SetBackgroundColor(const QColor& color) { m_Target->SetBackgroundColor(color); }
void Proxy::SetTitleColor(const QColor& color) { m_Target->SetTitleColor(color); }
void Proxy::SetExternalBoundaryColor(const QColor& color) { m_Target->SetExternalBoundaryColor(color); }
void Proxy::SetInternalBoundaryColor(const QColor& color) { m_Target->SetInternalBoundaryColor(color); }
void Proxy::SetInactiveBoundariesColor(const QColor& color) { m_Target->SetInactiveBoundariesColor(color); }
void Proxy::SetCoverageColor(const QColor& color) { m_Target->SetCoverageColor(color); }
void Proxy::SetVehicleColor(const QColor& color) { m_Target->SetVehicleColor(color); }
void Proxy::SetTrackColor(const QColor& color) { m_Target->SetTrackColor(color); }
void Proxy::SetMapColor(const QColor& color) { m_Target->SetMapColor(color); }
void Proxy::SetExclusionZoneColor(const QColor& color) { m_Target->SetExclusionZoneColor(color); }
void Proxy::SetGridColor(const QColor& color) { m_Target->SetGridColor(color); }
void Proxy::SetCrossHairsColor(const QColor& color) { m_Target->SetCrossHairsColor(color); }

int Proxy::GetBackgroundNumber() const { return m_Target->GetBackgroundNumber(); }
void Proxy::SetBackgroundNumber(int number) { m_Target->SetBackgroundNumber(number); }
