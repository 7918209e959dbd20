#pragma once

#include "access/TLockedTarget.h"
#include "platform/Export.h"

#include <QDate>
#include <QDateTime>
#include <QMutex>
#include <QString>
#include <QTime>

class TRegionSettings;

/// Façade of the region settings of Settings; see TRegionSettings for what the operations do.
///
///     const TRegionSettingsProxy region;
///     label->setText(region.GetDateString() + QLatin1Char(' ') + region.GetTimeString());
///
/// Safe from any thread: each call holds Mutex. The mutex is not recursive: a thread that holds it already waits for
/// ever.
class CABSETTINGS_EXPORT TRegionSettingsProxy
{
public:
    TRegionSettingsProxy();
    virtual ~TRegionSettingsProxy();

    void Lock() const;
    void Unlock() const;
    static QMutex Mutex;

    QString GetLanguageExtension() const;
    QString GetTimeString() const;
    QString GetDateString(QDate date) const;
    QString GetDateString() const;
    QString GetDateTimeString() const;
    QString GetDateTimeStringWithSeconds() const;

    QDate GetDate() const;
    QTime GetTime() const;
    QDateTime GetDateTime() const;

    bool IsGPSTimeRecieved() const;
    void Restore();
    bool SetUTCTimeAndDate(QTime& time, QDate& date, bool fromGPS);
    void SetUserDate(int year, int month, int day);
    void SetUserTime(int hour, int minute, int second);
    void SetUserDateTime(int year, int month, int day, int hour, int minute, int second);

private:
    TLockedTarget<TRegionSettings> m_Target;
};
