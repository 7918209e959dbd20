#include "terminal/Storage.h"

#include "fields/FileTree.h"
#include "platform/TConfigManager.h"
#include "system/TSystemSettingsProxy.h"

#include <QFileInfo>

#include <sys/statvfs.h>

namespace {

const qint64 BytesPerKilobyte = 1024; // of the memory

/// The façade counts in fragments, which are of another size on each file system.
template <class Count>
std::optional<tagSpace> InBytes(const QString& path, Count total, Count free)
{
    struct statvfs info;
    if (statvfs(path.toUtf8().constData(), &info) != 0)
        return std::nullopt;
    const auto fragment = static_cast<qint64>(info.f_frsize);
    return tagSpace{total * fragment, free * fragment};
}

} // namespace

tagDriveSpace Storage::InternalDrive()
{
    const TSystemSettingsProxy system;
    tagDriveSpace drive = {system.GetInternalDrivePath(), false, std::nullopt};
    unsigned total = 0;
    unsigned free = 0;
    drive.isMounted = system.GetFileSystemInfo(&total, &free) == 0;
    if (drive.isMounted)
        drive.space = InBytes(drive.path, total, free);
    return drive;
}

tagDriveSpace Storage::Stick()
{
    // Looked at first: the façade complains of a mount point that does not exist, on standard error.
    const QString mountPoint = ConfigManager->GetParameter(PARAM_EXTERNAL_DRIVE).toString();
    tagDriveSpace drive = {QFileInfo(mountPoint).absoluteFilePath(), false, std::nullopt};
    if (!FileTree::Exists(drive.path))
        return drive;
    const TSystemSettingsProxy system;
    drive.isMounted = system.GetExternalDrivePath(drive.path);
    int total = 0;
    int free = 0;
    if (drive.isMounted && system.GetUSBMemoryInfo(&total, &free) == 1)
        drive.space = InBytes(drive.path, total, free);
    return drive;
}

std::optional<tagSpace> Storage::Memory()
{
    unsigned total = 0;
    unsigned free = 0;
    if (TSystemSettingsProxy().GetMainMemoryInfo(&total, &free) != 0 || total == 0)
        return std::nullopt;
    return tagSpace{total * BytesPerKilobyte, free * BytesPerKilobyte};
}

std::optional<float> Storage::Load()
{
    float load = 0;
    return TSystemSettingsProxy().GetCpuLoadInfo(&load) == 0 ? std::optional<float>(load) : std::nullopt;
}
