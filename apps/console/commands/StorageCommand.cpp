// storage: drives, memory and load.

#include "console/commands/Commands.h"
#include "console/line/CommandLine.h"
#include "console/line/Output.h"
#include "console/terminal/Session.h"

#include "terminal/Storage.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QLocale>

#include <optional>

namespace {

struct tagDrive
{
    const char* name;
    tagDriveSpace drive;
};

QString Readable(qint64 bytes)
{
    return QString::fromLatin1("%1 (%2)").arg(QString::number(bytes),
                                              QLocale::c().formattedDataSize(bytes, 1, QLocale::DataSizeIecFormat));
}

QStringList Row(const char* name, const std::optional<tagSpace>& space, const QString& otherwise)
{
    return {QLatin1String(name), space ? Readable(space->total) : otherwise, space ? Readable(space->free) : QString()};
}

/// Null for what is not known.
QJsonObject Json(const std::optional<tagSpace>& space)
{
    return {{QLatin1String("total"), space ? QJsonValue(space->total) : QJsonValue()},
            {QLatin1String("free"), space ? QJsonValue(space->free) : QJsonValue()}};
}

QJsonObject Json(const tagDrive& drive)
{
    QJsonObject object = Json(drive.drive.space);
    object.insert(QLatin1String("name"), QLatin1String(drive.name));
    object.insert(QLatin1String("path"), drive.drive.path);
    object.insert(QLatin1String("mounted"), drive.drive.isMounted);
    return object;
}

} // namespace

int RunStorage(const tagContext& context, const QStringList& arguments)
{
    TCommandLine line(
        QLatin1String("storage"), QString(),
        QLatin1String(
            "Prints the size and the free space of the drives and of the memory in bytes, and the load of the "
            "processor over the last minute (1 means that one core is busy). Memory that caches files counts as free."),
        QLatin1String("cabsettings storage"));
    line.AddJsonOption(QLatin1String("Prints an object: drives (name, path, mounted, total, free), memory (total, "
                                     "free), load. Unknown values are null."));
    if (const auto status = line.Read(arguments, 0, 0))
        return *status;

    TSession session;
    if (!session.Open(context, SESSION_TERMINAL))
        return STATUS_FAILED;
    const QList<tagDrive> drives = {{"internal", Storage::InternalDrive()}, {"removable", Storage::Stick()}};
    const std::optional<tagSpace> memory = Storage::Memory();
    const std::optional<float> load = Storage::Load();
    if (line.WantsJson()) {
        QJsonArray array;
        for (const tagDrive& drive : drives)
            array.append(Json(drive));
        const QJsonObject object{{QLatin1String("drives"), array},
                                 {QLatin1String("memory"), Json(memory)},
                                 {QLatin1String("load"), load ? QJsonValue(double(*load)) : QJsonValue()}};
        PrintJson(object);
        return STATUS_DONE;
    }

    const QString unknown = QLatin1String("(not known)");
    QList<QStringList> rows = {
        {QString(), QLatin1String("total"), QLatin1String("free"), QLatin1String("path")},
    };
    for (const tagDrive& drive : drives) {
        const QString otherwise = drive.drive.isMounted ? unknown : QLatin1String("(not mounted)");
        rows.append(Row(drive.name, drive.drive.space, otherwise) + QStringList(drive.drive.path));
    }
    rows.append(Row("memory", memory, unknown));
    rows.append({QLatin1String("load"), load ? QString::number(double(*load), 'f', 2) : unknown});
    PrintTable(rows);
    return STATUS_DONE;
}
