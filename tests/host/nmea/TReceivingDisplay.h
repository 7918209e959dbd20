#pragma once

#include "TestHost.h"

#include "diagnostics/KeptLogs.h"
#include "logs/TNEMADiagnosticLogProxy.h"
#include "logs/TUserDiagnosticLogProxy.h"
#include "settings/TSettings.h"

#include <QDateTime>
#include <QFile>
#include <QStringList>
#include <QTemporaryDir>

/// A display whose clock stands still unless a receiver sets it. It runs two and a half hours ahead of UTC, by the
/// operator's choice. Its store gives the code of an event as "component/type/code".
class TReceivingDisplay
{
public:
    TReceivingDisplay()
    {
        TTestClock::Reset();
        store.values[PARAM_UTC_OFFSET_HOURS] = OffsetHours;
        store.values[PARAM_UTC_OFFSET_MINUTES] = OffsetMinutes;
        store.values[PARAM_UTC_OFFSET_SET_BY_USER] = true;
        m_Settings = std::make_unique<TSettings>();
        Settings = m_Settings.get();
        TUserDiagnosticLogProxy().Restore(PathOf("user.log"), 1, 0);
        TNEMADiagnosticLogProxy().Restore(PathOf("nmea.log"), 1, 1LL << 40);
    }

    ~TReceivingDisplay()
    {
        FinishLogs();
        Settings = nullptr;
    }

    TReceivingDisplay(const TReceivingDisplay&) = delete;
    TReceivingDisplay& operator=(const TReceivingDisplay&) = delete;

    static QDateTime Clock() { return QDateTime(TTestClock::date, TTestClock::time, Qt::UTC); }

    /// What the clock shows at @p utc.
    static QDateTime LocalTime(const QDateTime& utc)
    {
        return utc.addMSecs(QTime(OffsetHours, OffsetMinutes).msecsSinceStartOfDay());
    }

    /// Everything written to it; it is closed afterwards.
    QByteArray NmeaLog() const
    {
        TNEMADiagnosticLogProxy().Close();
        return Contents("nmea.log");
    }

    QByteArray UserLog() const { return Contents("user.log"); }

    /// The lines of the user log without date and time.
    QStringList Entries() const
    {
        const int timeLength = 24; // "2024.05.01-13:07:09:042,"
        QStringList entries = QString::fromLatin1(UserLog()).split(QLatin1String("\r\n"));
        entries.removeLast();
        for (QString& entry : entries)
            entry.remove(0, timeLength);
        return entries;
    }

    TTestStore store;

private:
    static const int OffsetHours = 2;
    static const int OffsetMinutes = 30;

    QString PathOf(const char* name) const { return m_Folder.filePath(QLatin1String(name)); }

    QByteArray Contents(const char* name) const
    {
        QFile file(PathOf(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    QTemporaryDir m_Folder;
    std::unique_ptr<TSettings> m_Settings;
};
