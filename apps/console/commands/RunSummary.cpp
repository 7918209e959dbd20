#include "console/commands/RunSummary.h"

#include "console/line/Output.h"
#include "console/logs/LogFiles.h"

#include "colors/TColorSettingsProxy.h"
#include "logs/TNEMADiagnosticLogProxy.h"
#include "logs/TUserDiagnosticLogProxy.h"
#include "region/TRegionSettingsProxy.h"
#include "system/TSystemSettingsProxy.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QLocale>

#include <cmath>
#include <cstdlib>

namespace {

using TRows = QList<QStringList>;

struct tagItem
{
    const char* title;
    QString (TSystemSettingsProxy::*text)() const;
};

const tagItem ActiveItems[] = {
    {"job", &TSystemSettingsProxy::GetActiveJob},
    {"boundary", &TSystemSettingsProxy::GetActiveBoundary},
    {"AB line", &TSystemSettingsProxy::GetActiveABLine},
    {"vehicle", &TSystemSettingsProxy::GetActiveVehicle},
    {"implement", &TSystemSettingsProxy::GetActiveImplement},
    {"sprayer", &TSystemSettingsProxy::GetActiveSprayer},
};

const tagItem Paths[] = {
    {"job", &TSystemSettingsProxy::GetActiveJobPath},
    {"coverage", &TSystemSettingsProxy::GetActiveCoveragePath},
    {"report", &TSystemSettingsProxy::GetActiveReportPath},
    {"field", &TSystemSettingsProxy::GetActiveFieldPath},
    {"area counters", &TSystemSettingsProxy::GetActiveAreaCountersPath},
    {"vehicle", &TSystemSettingsProxy::GetActiveVehiclePath},
    {"implement", &TSystemSettingsProxy::GetActiveImplementPath},
};

QString OrNone(const QString& text) { return text.isEmpty() ? QLatin1String("(none)") : text; }

QString Position(const TNmeaReceiver::tagStatus& status)
{
    if (std::isnan(status.latitude) || std::isnan(status.longitude))
        return QLatin1String("no position");
    return QString::fromLatin1("%1, %2").arg(status.latitude, 0, 'f', 7).arg(status.longitude, 0, 'f', 7);
}

TRows StreamRows(const TNmeaReceiver::tagStatus& status)
{
    return {
        {QLatin1String("Stream"), QLatin1String("lines"),
         QString::fromLatin1("%1 (%2 bad checksums, %3 damaged, %4 not logged)")
             .arg(status.lines)
             .arg(status.badChecksums)
             .arg(status.damagedLines)
             .arg(status.unloggedLines)},
        {QString(), QLatin1String("receiver"),
         QString::fromLatin1("%1, %2").arg(QLatin1String(status.hasFix ? "fix" : "no fix"), Position(status))},
    };
}

QJsonObject StreamJson(const TNmeaReceiver::tagStatus& status)
{
    const bool hasPosition = !std::isnan(status.latitude) && !std::isnan(status.longitude);
    return {{QLatin1String("lines"), status.lines},
            {QLatin1String("badChecksums"), status.badChecksums},
            {QLatin1String("damaged"), status.damagedLines},
            {QLatin1String("notLogged"), status.unloggedLines},
            {QLatin1String("hasFix"), status.hasFix},
            {QLatin1String("latitude"), hasPosition ? QJsonValue(status.latitude) : QJsonValue()},
            {QLatin1String("longitude"), hasPosition ? QJsonValue(status.longitude) : QJsonValue()}};
}

/// The stored offset of local time from UTC, "+05:30".
QString UtcOffset(TParameterStore& store)
{
    const int hours = store.GetParameter(PARAM_UTC_OFFSET_HOURS).toInt();
    const int minutes = store.GetParameter(PARAM_UTC_OFFSET_MINUTES).toInt();
    return QString::fromLatin1("%1%2:%3")
        .arg(QLatin1Char(hours < 0 || minutes < 0 ? '-' : '+'))
        .arg(std::abs(hours), 2, 10, QLatin1Char('0'))
        .arg(std::abs(minutes), 2, 10, QLatin1Char('0'));
}

TRows ClockRows(TParameterStore& store, const TNmeaReceiver::tagStatus& status)
{
    const TRegionSettingsProxy region;
    const QString source = region.IsGPSTimeRecieved() ? QString::fromLatin1("GPS, UTC%1").arg(UtcOffset(store))
                                                      : QLatin1String("not set by GPS");
    return {
        {QLatin1String("Clock"), QLatin1String("local"),
         QString::fromLatin1("%1 %2 (%3)").arg(region.GetDateString(), region.GetTimeString(), source)},
        {QString(), QLatin1String("last UTC"),
         status.utc.isValid() ? status.utc.toString(Qt::ISODate) : QLatin1String("(none)")},
        {QLatin1String("Scheme"), QString(), QLatin1String(TColorSettingsProxy().IsDayMode() ? "day" : "night")},
    };
}

template <std::size_t Count>
TRows ItemRows(const char* heading, const tagItem (&items)[Count])
{
    const TSystemSettingsProxy system;
    TRows rows;
    for (const tagItem& item : items) {
        rows.append({rows.isEmpty() ? QLatin1String(heading) : QString(), QLatin1String(item.title),
                     OrNone((system.*item.text)())});
    }
    return rows;
}

TRows LogRows()
{
    const TSystemSettingsProxy system;
    const QLocale numbers(QLocale::English);
    TRows rows;
    for (const QString& path : {system.GetInternalUserLogPath(), system.GetInternalNemaLogPath()}) {
        const QFileInfoList files = LogFiles(path);
        for (const QFileInfo& file : files) {
            rows.append({rows.isEmpty() ? QLatin1String("Logs") : QString(), file.fileName(),
                         QString::fromLatin1("%1 bytes").arg(numbers.toString(file.size()))});
        }
    }
    return rows;
}

template <class Count>
QString Free(Count total, Count free)
{
    return total > 0 ? QString::fromLatin1("%1 % free")
                           .arg(100.0 * static_cast<double>(free) / static_cast<double>(total), 0, 'f', 1)
                     : QLatin1String("unknown");
}

TRows DriveRows()
{
    const TSystemSettingsProxy system;
    unsigned total = 0;
    unsigned free = 0;
    system.GetFileSystemInfo(&total, &free);
    TRows rows = {{QLatin1String("Drives"), QLatin1String("internal"),
                   QString::fromLatin1("%1 (%2)").arg(system.GetInternalDrivePath(), Free(total, free))}};

    QString external;
    int usbTotal = 0;
    int usbFree = 0;
    const bool isMounted = system.GetExternalDrivePath(external) && system.GetUSBMemoryInfo(&usbTotal, &usbFree) == 1;
    rows.append({QString(), QLatin1String("removable"),
                 QString::fromLatin1("%1 (%2)").arg(external, isMounted ? Free(usbTotal, usbFree)
                                                                        : QLatin1String("not mounted"))});
    return rows;
}

/// An object for each heading, with what stands under it; a heading of one line has its text alone.
void PrintJson(const QJsonObject& stream, const TRows& rows)
{
    QJsonObject object{{QLatin1String("stream"), stream}};
    QString heading;
    for (const QStringList& row : rows) {
        heading = row.at(0).isEmpty() ? heading : row.at(0).toLower();
        if (row.at(1).isEmpty()) {
            object.insert(heading, row.at(2));
            continue;
        }
        QJsonObject items = object.value(heading).toObject();
        items.insert(row.at(1), row.at(2));
        object.insert(heading, items);
    }
    PrintBytes(QJsonDocument(object).toJson());
}

} // namespace

void PrintRunSummary(TParameterStore& store, const TNmeaReceiver::tagStatus& status, bool asJson)
{
    TRows rows = ClockRows(store, status) + ItemRows("Active", ActiveItems) + ItemRows("Paths", Paths);
    TUserDiagnosticLogProxy().Close();
    TNEMADiagnosticLogProxy().Close();
    rows += LogRows() + DriveRows();
    if (asJson)
        PrintJson(StreamJson(status), rows);
    else
        PrintTable(StreamRows(status) + rows);
}
