#pragma once

#include "platform/Export.h"
#include "region/ELanguage.h"

#include <QDate>
#include <QDateTime>
#include <QObject>
#include <QString>
#include <QTime>

/// Language, date and time formats, and the clock.
///
/// The display keeps local time as UTC plus an offset of whole hours and minutes. Until a GPS receiver has delivered
/// time the operator sets the clock by hand; from then on the clock follows GPS UTC and the operator chooses only the
/// offset. Reached through TRegionSettingsProxy, which serialises the calls; the static members are used without it.
class CABSETTINGS_EXPORT TRegionSettings : public QObject
{
    Q_OBJECT

public:
    TRegionSettings();

    /// Number of languages, the valid indices being 0 to one less.
    static constexpr int LanguageCount = 28;

    /// Each language's own name for itself, and the suffix of its translation files ("_de"). Empty texts until
    /// InitializeLanguageStrings() has run.
    static QString Languages[LanguageCount];
    static QString LanguageExtensions[LanguageCount];

    /// Fills both arrays. The host calls it once at start-up, before other threads read them.
    static void InitializeLanguageStrings();

    /// The language's own name; empty for a number that is no language.
    static QString GetLanguageString(ELanguage language);

    /// Suffix of the selected language's translation files; empty when the stored number is no language.
    QString GetLanguageExtension() const;

    /// The local time for the operator, "14:05:09" or "02:05:09 pm".
    QString GetTimeString() const;

    /// @p date for the operator, "Mar 5, 2024" or "5 Mar, 2024", the month translated; no month text for an invalid
    /// date.
    QString GetDateString(QDate date) const;
    QString GetDateString() const;

    /// The local date and time for file names, "030524_1405" or "050324_1405", and to the second "030524_140509".
    QString GetDateTimeString() const;
    QString GetDateTimeStringWithSeconds() const;

    /// The local clock.
    QDate GetDate() const;
    QTime GetTime() const;
    QDateTime GetDateTime() const;

    /// Whether GPS time has been accepted since this object was made.
    bool IsGPSTimeRecieved() const;

    /// Re-applies the stored clock offset, unless one is already in force.
    void Restore();

    /// Stores the offset between a local time and a UTC time of day, taken as the nearer way round the clock: from
    /// -12:00 to +12:00, both included.
    void ComputeTimeOffsets(int localHour, int localMinute, int utcHour, int utcMinute);

    /// The UTC time and date now. False, with the arguments untouched, until GPS time has been received.
    bool GetUTCTimeAndDate(QTime& time, QDate& date) const;

    /// Sets the clock from a UTC time, to whole seconds. The first time @p fromGPS stores the offset between the clock
    /// as it stood and GPS time, unless the operator's own offset is kept. Before GPS time, a time that does not come
    /// from GPS is taken as local. @p date is moved when the local time crosses midnight. Always true; the time is not
    /// validated.
    bool SetUTCTimeAndDate(QTime& time, QDate& date, bool fromGPS);

    /// The operator's settings. Once GPS time has been received, dates are ignored and times change only the offset
    /// from UTC; before that the clock is set as told and the offset becomes 0. An invalid date changes nothing.
    void SetUserDate(int year, int month, int day);
    void SetUserTime(int hour, int minute, int second);
    void SetUserDateTime(int year, int month, int day, int hour, int minute, int second);

private:
    QString StampedWith(const char* timeFormat) const;

    bool m_GPSTimeReceived;
};
