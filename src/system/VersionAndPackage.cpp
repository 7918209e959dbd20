#include "system/TSystemSettings.h"

#include <QDir>

namespace {

const char* const RevisionMark = "-r";
const int RevisionMarkLength = 2;

} // namespace

void TSystemSettings::SetSoftwareVersion(const QString& version) { SoftwareVersion = version; }

QString TSystemSettings::GetSoftwareVersion(bool beautify) const
{
    return beautify ? BeautifyVersion(SoftwareVersion) : SoftwareVersion;
}

QString TSystemSettings::BeautifyVersion(QString version)
{
    const int mark = static_cast<int>(version.indexOf(QLatin1String(RevisionMark)));
    if (mark < 0)
        return version;
    const int revision = mark + RevisionMarkLength;
    if (version.length() == revision + 1)
        version.insert(revision, QLatin1Char('0'));
    return version.replace(QLatin1String(RevisionMark), QLatin1String("."));
}

QString TSystemSettings::GetPackageName() const
{
    return QLatin1String(PackageName) + QLatin1Char('-') + SoftwareVersion;
}

QString TSystemSettings::GetReprogrammingPackageFilename() const { return UpdateFilename(PackageExtension); }
QString TSystemSettings::GetChecksumFilename() const { return UpdateFilename(ChecksumExtension); }

bool TSystemSettings::GetReprogrammingPackagePath(QString& path) const
{
    return GetUpdateFilePath(path, GetReprogrammingPackageFilename());
}

bool TSystemSettings::GetReprogrammingChecksumPath(QString& path) const
{
    return GetUpdateFilePath(path, GetChecksumFilename());
}

QString TSystemSettings::UpdateFilename(const char* extension) const
{
    return QLatin1String(PackageName) + QLatin1Char('_') + QLatin1String(Update) + QLatin1String(extension);
}

bool TSystemSettings::GetUpdateFilePath(QString& path, const QString& fileName) const
{
    QString drive;
    if (!GetExternalDrivePath(drive))
        return false;
    path = QDir(drive).absoluteFilePath(fileName);
    return true;
}
