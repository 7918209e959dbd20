#include "console/commands/RunSummary.h"

#include "console/line/Output.h"
#include "platform/UtcOffset.h"
#include "terminal/ActiveItems.h"

#include "colors/TColorSettingsProxy.h"
#include "logs/TLogSeries.h"
#include "logs/TNEMADiagnosticLogProxy.h"
#include "logs/TUserDiagnosticLogProxy.h"
#include "region/TRegionSettingsProxy.h"
#include "system/TSystemSettingsProxy.h"

#include <QJsonObject>
#include <QLocale>

#include <cmath>

namespace {

using TRows = QList<QStringList>;

/// The items of the summary, of all that can be active.
constexpr EParamID ShownItems[] = {
    PARAM_ACTIVE_JOB,     PARAM_ACTIVE_BOUNDARY,  PARAM_ACTIVE_AB_LINE,
    PARAM_ACTIVE_VEHICLE, PARAM_ACTIVE_IMPLEMENT, PARAM_ACTIVE_SPRAYER,
};

/// The items whose files the summary shows.
constexpr EParamID ShownFiles[] = {PARAM_ACTIVE_JOB, PARAM_FIELD, PARAM_ACTIVE_VEHICLE, PARAM_ACTIVE_IMPLEMENT};

/// A file that belongs to the active job.
struct tagJobFile
{
    const char* title;
    QString (TSystemSettingsProxy::*path)() const;
};

constexpr tagJobFile JobFiles[] = {
    {"coverage", &TSystemSettingsProxy::GetActiveCoveragePath},
    {"report", &TSystemSettingsProxy::GetActiveReportPath},
    {"area counters", &TSystemSettingsProxy::GetActiveAreaCountersPath},
};

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

TRows ClockRows(TParameterStore& store, const TNmeaReceiver::tagStatus& status)
{
    const TRegionSettingsProxy region;
    const QString source = region.IsGPSTimeRecieved()
                               ? QString::fromLatin1("GPS, UTC%1").arg(StoredUtcOffset(store).Text())
                               : QLatin1String("not set by GPS");
    return {
        {QLatin1String("Clock"), QLatin1String("local"),
         QString::fromLatin1("%1 %2 (%3)").arg(region.GetDateString(), region.GetTimeString(), source)},
        {QString(), QLatin1String("last UTC"),
         status.utc.isValid() ? status.utc.toString(Qt::ISODate) : QLatin1String("(none)")},
        {QLatin1String("Scheme"), QString(), QLatin1String(TColorSettingsProxy().IsDayMode() ? "day" : "night")},
    };
}

/// Only the first row has the heading.
void Append(TRows* rows, const char* heading, const QString& title, const QString& text)
{
    rows->append({rows->isEmpty() ? QLatin1String(heading) : QString(), title, OrNone(text)});
}

TRows ItemRows()
{
    TRows rows;
    for (const EParamID id : ShownItems) {
        const tagParameter& item = *TParameterCatalogue::Find(id);
        Append(&rows, "Active", ActiveItems::Kind(item), ActiveItems::Name(item));
    }
    return rows;
}

TRows PathRows()
{
    TRows rows;
    for (const EParamID id : ShownFiles) {
        const tagParameter& item = *TParameterCatalogue::Find(id);
        Append(&rows, "Paths", ActiveItems::Kind(item), ActiveItems::Path(item));
    }
    const TSystemSettingsProxy system;
    for (const tagJobFile& file : JobFiles)
        Append(&rows, "Paths", QLatin1String(file.title), (system.*file.path)());
    return rows;
}

TRows LogRows()
{
    const TSystemSettingsProxy system;
    const QLocale numbers(QLocale::English);
    TRows rows;
    for (const QString& path : {system.GetInternalUserLogPath(), system.GetInternalNemaLogPath()}) {
        for (const TLogSeries::tagFile& file : TLogSeries(path).GetFiles()) {
            rows.append({rows.isEmpty() ? QLatin1String("Logs") : QString(), file.name,
                         QString::fromLatin1("%1 bytes").arg(numbers.toString(file.size))});
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

/// An object for each heading, with its rows; a heading of one row has only its text.
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
    PrintJson(object);
}

} // namespace

void PrintRunSummary(TParameterStore& store, const TNmeaReceiver::tagStatus& status, bool asJson)
{
    TRows rows = ClockRows(store, status) + ItemRows() + PathRows();
    TUserDiagnosticLogProxy().Close();
    TNEMADiagnosticLogProxy().Close();
    rows += LogRows() + DriveRows();
    if (asJson)
        PrintJson(StreamJson(status), rows);
    else
        PrintTable(StreamRows(status) + rows);
}
