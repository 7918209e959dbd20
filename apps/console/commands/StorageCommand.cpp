// storage: drives, memory and load.

#include "console/commands/Commands.h"
#include "console/line/CommandLine.h"
#include "console/line/Output.h"
#include "console/terminal/Session.h"

#include "system/TSystemSettingsProxy.h"

#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonObject>
#include <QLocale>

#include <sys/statvfs.h>

#include <optional>

namespace {

const qint64 BytesPerKilobyte = 1024; // of the memory

struct tagSpace
{
    qint64 total; ///< bytes
    qint64 free;
};

struct tagDrive
{
    const char* name;
    QString path;
    bool isMounted;
    std::optional<tagSpace> space; ///< nothing when it is not mounted, or the system does not tell
};

/// The façade counts in fragments, which are of another size on each file system.
template <class Count>
std::optional<tagSpace> InBytes(const QString& path, Count total, Count free)
{
    struct statvfs info;
    if (statvfs(QFile::encodeName(path).constData(), &info) != 0)
        return std::nullopt;
    const auto fragment = static_cast<qint64>(info.f_frsize);
    return tagSpace{total * fragment, free * fragment};
}

tagDrive InternalDrive(const TSystemSettingsProxy& system)
{
    tagDrive drive = {"internal", system.GetInternalDrivePath(), false, std::nullopt};
    unsigned total = 0;
    unsigned free = 0;
    drive.isMounted = system.GetFileSystemInfo(&total, &free) == 0;
    if (drive.isMounted)
        drive.space = InBytes(drive.path, total, free);
    return drive;
}

/// @param path where it is mounted; the façade complains of one that does not exist.
tagDrive RemovableDrive(const TSystemSettingsProxy& system, const QString& path)
{
    tagDrive drive = {"removable", path, false, std::nullopt};
    drive.isMounted = QFileInfo::exists(path) && system.GetExternalDrivePath(drive.path);
    int total = 0;
    int free = 0;
    if (drive.isMounted && system.GetUSBMemoryInfo(&total, &free) == 1)
        drive.space = InBytes(drive.path, total, free);
    return drive;
}

std::optional<tagSpace> Memory(const TSystemSettingsProxy& system)
{
    unsigned total = 0;
    unsigned free = 0;
    if (system.GetMainMemoryInfo(&total, &free) != 0 || total == 0)
        return std::nullopt;
    return tagSpace{total * BytesPerKilobyte, free * BytesPerKilobyte};
}

std::optional<float> Load(const TSystemSettingsProxy& system)
{
    float load = 0;
    return system.GetCpuLoadInfo(&load) == 0 ? std::optional<float>(load) : std::nullopt;
}

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
    QJsonObject object = Json(drive.space);
    object.insert(QLatin1String("name"), QLatin1String(drive.name));
    object.insert(QLatin1String("path"), drive.path);
    object.insert(QLatin1String("mounted"), drive.isMounted);
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
    const TSystemSettingsProxy system;
    QString mountPoint;
    system.GetExternalDrivePath(mountPoint);
    const QList<tagDrive> drives = {InternalDrive(system), RemovableDrive(system, mountPoint)};
    const std::optional<tagSpace> memory = Memory(system);
    const std::optional<float> load = Load(system);
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
        const QString otherwise = drive.isMounted ? unknown : QLatin1String("(not mounted)");
        rows.append(Row(drive.name, drive.space, otherwise) + QStringList(drive.path));
    }
    rows.append(Row("memory", memory, unknown));
    rows.append({QLatin1String("load"), load ? QString::number(double(*load), 'f', 2) : unknown});
    PrintTable(rows);
    return STATUS_DONE;
}
