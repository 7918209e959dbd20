#include "region/TRegionSettingsProxy.h"

#include "access/TSettingsMembers.h"
#include "region/TRegionSettings.h"

using Proxy = TRegionSettingsProxy;

QMutex Proxy::Mutex;

Proxy::TRegionSettingsProxy() : m_Target(TSettingsMembers::Region()) {}
Proxy::~TRegionSettingsProxy() = default;

void Proxy::Lock() const { Mutex.lock(); }
void Proxy::Unlock() const { Mutex.unlock(); }

QString Proxy::GetLanguageExtension() const { return m_Target.By(*this)->GetLanguageExtension(); }
QString Proxy::GetTimeString() const { return m_Target.By(*this)->GetTimeString(); }
QString Proxy::GetDateString(QDate date) const { return m_Target.By(*this)->GetDateString(date); }
QString Proxy::GetDateString() const { return m_Target.By(*this)->GetDateString(); }
QString Proxy::GetDateTimeString() const { return m_Target.By(*this)->GetDateTimeString(); }
QString Proxy::GetDateTimeStringWithSeconds() const { return m_Target.By(*this)->GetDateTimeStringWithSeconds(); }

QDate Proxy::GetDate() const { return m_Target.By(*this)->GetDate(); }
QTime Proxy::GetTime() const { return m_Target.By(*this)->GetTime(); }
QDateTime Proxy::GetDateTime() const { return m_Target.By(*this)->GetDateTime(); }

bool Proxy::IsGPSTimeRecieved() const { return m_Target.By(*this)->IsGPSTimeRecieved(); }

void Proxy::Restore() { m_Target.By(*this)->Restore(); }

bool Proxy::SetUTCTimeAndDate(QTime& time, QDate& date, bool fromGPS)
{
    return m_Target.By(*this)->SetUTCTimeAndDate(time, date, fromGPS);
}

void Proxy::SetUserDate(int year, int month, int day) { m_Target.By(*this)->SetUserDate(year, month, day); }

void Proxy::SetUserTime(int hour, int minute, int second) { m_Target.By(*this)->SetUserTime(hour, minute, second); }

void Proxy::SetUserDateTime(int year, int month, int day, int hour, int minute, int second)
{
    m_Target.By(*this)->SetUserDateTime(year, month, day, hour, minute, second);
}
