#include "access/Parameters.h"
#include "system/TSystemSettings.h"

#include <QByteArray>

#include <sys/stat.h>
#include <sys/statvfs.h>
#include <sys/sysinfo.h>

#include <algorithm>
#include <cstdio>
#include <fstream>
#include <limits>
#include <string>

namespace {

const float LoadScale = 1.0f / (1 << SI_LOAD_SHIFT); // loads[] of sysinfo(2) are fixed-point with 16 binary places

/// Whether a path is absolute and clean: no doubled separator, and no dot behind a separator. False for a hidden folder
/// too, which QDir then leaves as it is.
bool IsAbsoluteAndClean(const QString& path)
{
    const QLatin1Char separator('/');
    if (!path.startsWith(separator))
        return false;
    const QChar* const last = path.constEnd() - 1;
    for (const QChar* c = path.constBegin(); (c = std::find(c, last, separator)) != last;) {
        ++c;
        if (*c == separator || *c == QLatin1Char('.'))
            return false;
    }
    return true;
}

/// The absolute path of a drive. Most calls need it, and a display has stored it in this form already.
QString DrivePath(EParamID drive)
{
    QString path = Parameters::ReadString(drive);
    if (!IsAbsoluteAndClean(path))
        path = QFileInfo(path).absoluteFilePath();
    return path;
}

template <class T>
T Saturated(fsblkcnt_t count)
{
    return static_cast<T>(std::min(count, static_cast<fsblkcnt_t>(std::numeric_limits<T>::max())));
}

} // namespace

QFileInfo TSystemSettings::GetInternalDrive() const { return QFileInfo(Parameters::ReadString(PARAM_INTERNAL_DRIVE)); }
QString TSystemSettings::GetInternalDrivePath() const { return DrivePath(PARAM_INTERNAL_DRIVE); }

bool TSystemSettings::GetExternalDrive(QFileInfo& drive) const
{
    drive = QFileInfo(Parameters::ReadString(PARAM_EXTERNAL_DRIVE));
    return IsMountingPoint(drive.absoluteFilePath().toUtf8().constData());
}

bool TSystemSettings::GetExternalDrivePath(QString& path) const
{
    path = DrivePath(PARAM_EXTERNAL_DRIVE);
    return IsMountingPoint(path.toUtf8().constData());
}

bool TSystemSettings::IsExternalDrivePresent() const
{
    QFileInfo drive;
    GetExternalDrive(drive);
    return IsMountingPoint(drive.absoluteFilePath().toUtf8().constData());
}

int TSystemSettings::IsMountingPointWErr(const char* path)
{
    static const char* const error = "Error calling sys_stat(path)";

    // The path first, then its parent: "file/.." is an error, but a file is simply not a mount point.
    struct stat self;
    if (stat(path, &self) != 0) {
        std::perror(error);
        return -1;
    }
    if (!S_ISDIR(self.st_mode))
        return 0;

    struct stat parent;
    if (stat((QByteArray(path) + "/..").constData(), &parent) != 0) {
        std::perror(error);
        return -1;
    }
    return self.st_dev != parent.st_dev || self.st_ino == parent.st_ino ? 1 : 0;
}

bool TSystemSettings::IsMountingPoint(const char* path) { return IsMountingPointWErr(path) == 1; }

int TSystemSettings::GetFileSystemInfo(unsigned* total, unsigned* free) const
{
    struct statvfs info;
    const int result = statvfs(GetInternalDrivePath().toUtf8().constData(), &info);
    if (result != 0) {
        std::perror("Error calling sys_statvfs(internalPath)");
        return result;
    }
    *total = Saturated<unsigned>(info.f_blocks);
    *free = Saturated<unsigned>(info.f_bfree);
    return 0;
}

int TSystemSettings::GetUSBMemoryInfo(int* total, int* free) const
{
    const QByteArray path = DrivePath(PARAM_EXTERNAL_DRIVE).toUtf8();
    const int isMounted = IsMountingPointWErr(path.constData());
    if (isMounted == 0)
        return 0;

    struct statvfs info;
    if (isMounted < 0 || statvfs(path.constData(), &info) != 0) {
        std::perror("Error calling sys_statvfs(externalPath)");
        return -1;
    }
    *total = Saturated<int>(info.f_blocks);
    *free = Saturated<int>(info.f_bfree);
    return 1;
}

int TSystemSettings::GetMainMemoryInfo(unsigned* total, unsigned* free) const
{
    GetLinuxMemory(total, free);
    return 0;
}

void TSystemSettings::GetLinuxMemory(unsigned* total, unsigned* free)
{
    *total = 0;
    *free = 0;
    std::ifstream file("/proc/meminfo"); // reads as an empty file when it cannot be opened
    std::string key;
    std::string unit;
    unsigned value = 0;
    // The four keys that count all stand in the first lines.
    for (int found = 0; found < 4 && file >> key >> value;) {
        file >> unit;
        if (key == "MemTotal:") {
            *total = value;
            ++found;
        } else if (key == "MemFree:" || key == "Buffers:" || key == "Cached:") {
            *free += value; // what programs can have
            ++found;
        }
    }
}

int TSystemSettings::GetCpuLoadInfo(float* load) const
{
    struct sysinfo info;
    const int result = sysinfo(&info);
    if (result != 0) {
        std::perror("Error calling sys_sysinfo()");
        return result;
    }
    *load = static_cast<float>(info.loads[0]) * LoadScale;
    return 0;
}
