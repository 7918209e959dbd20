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
/// Local time is UTC plus an offset of whole hours and minutes. Before a GPS receiver has delivered time, the operator
/// sets the clock by hand. After that the clock follows GPS UTC, and the operator sets the offset only.
///
///     TRegionSettings::InitializeLanguageStrings();            // once, at start-up
///     const QString time = TRegionSettingsProxy().GetTimeString(); // "14:05:09"
///
/// All texts are the same whatever the locale of the machine. Use the object through TRegionSettingsProxy, which
/// serialises the calls; the static members need no façade.
class CABSETTINGS_EXPORT TRegionSettings : public QObject
{
    Q_OBJECT

public:
    TRegionSettings();

    /// Number of languages. Valid indices are 0 to LanguageCount - 1.
    static constexpr int LanguageCount = 28;

    /// Name of each language in that language, and the suffix of its translation files ("_de"). Empty before
    /// InitializeLanguageStrings().
    static QString Languages[LanguageCount];
    static QString LanguageExtensions[LanguageCount];

    /// Fills both arrays. The host calls it once at start-up, before other threads read them.
    static void InitializeLanguageStrings();

    /// Name of the language in that language; empty for an invalid number.
    static QString GetLanguageString(ELanguage language);

    /// Suffix of the translation files of the selected language; empty when the stored number is invalid.
    QString GetLanguageExtension() const;

    /// The local time as shown to the operator: "14:05:09", or "02:05:09 pm" without PARAM_24_HOUR_CLOCK.
    QString GetTimeString() const;

    /// @p date, or today, as shown to the operator: "5 Mar, 2024", or "Mar 5, 2024" with PARAM_MONTH_FIRST. The month
    /// is translated; an invalid date has none.
    QString GetDateString(QDate date) const;
    QString GetDateString() const;

    /// The local date and time for file names: "050324_1405", or "030524_1405" with PARAM_MONTH_FIRST; with seconds
    /// "050324_140509".
    QString GetDateTimeString() const;
    QString GetDateTimeStringWithSeconds() const;

    /// The local clock.
    QDate GetDate() const;
    QTime GetTime() const;
    QDateTime GetDateTime() const;

    /// Whether GPS time has been accepted since this object was constructed.
    bool IsGPSTimeRecieved() const;

    /// Applies the stored clock offset, unless the clock has one already.
    void Restore();

    /// Stores the offset of a local time of day from a UTC time of day. Of the two possible offsets it is the smaller
    /// one: -12:00 to +12:00, both included.
    void ComputeTimeOffsets(int localHour, int localMinute, int utcHour, int utcMinute);

    /// The UTC time and date now. False, with the arguments untouched, until GPS time has been received.
    bool GetUTCTimeAndDate(QTime& time, QDate& date) const;

    /// Sets the clock from a UTC time, to whole seconds. The first GPS time also stores the offset of the clock, as it
    /// was before, from GPS time; with PARAM_UTC_OFFSET_SET_BY_USER the stored offset is kept instead. Before the first
    /// GPS time, a time that does not come from GPS is local time. @p date is changed to the local date. Always returns
    /// true; the time is not validated.
    bool SetUTCTimeAndDate(QTime& time, QDate& date, bool fromGPS);

    /// What the operator enters. Before GPS time has been received, these set the clock, and the offset from UTC
    /// becomes 0. After that, dates are ignored, and times change the offset only. An invalid date changes nothing.
    void SetUserDate(int year, int month, int day);
    void SetUserTime(int hour, int minute, int second);
    void SetUserDateTime(int year, int month, int day, int hour, int minute, int second);

private:
    QString StampedWith(const char* timeFormat) const;

    bool m_GPSTimeReceived;
};
