#include "support/UsedLibraries.h"

#include "stores/TSqliteConnection.h"

#include <archive.h>
#include <json/version.h>
#include <libnova/utility.h>

namespace {

QString QtVersion() { return QLatin1String(qVersion()); }

QString SqliteVersion()
{
    const int patience = 0; // for a database in memory
    TSqliteConnection connection(QLatin1String(":memory:"), TSqliteConnection::SQLITE_ACCESS_WRITE, patience);
    return connection.Value(QLatin1String("SELECT sqlite_version()")).toString();
}

QString JsonCppVersion() { return QLatin1String(JSONCPP_VERSION_STRING); }

/// "libarchive 3.6.2"
QString LibarchiveVersion() { return QString::fromLatin1(archive_version_string()).section(QLatin1Char(' '), -1); }

QString LibnovaVersion() { return QLatin1String(ln_get_version()); }

/// Of a library that does not tell its version.
QString UnknownVersion() { return QString(); }

struct tagLibrary
{
    const char* name;
    QString (*version)();
    const char* licence;
    const char* use;
};

constexpr tagLibrary Libraries[] = {
    {"Qt", QtVersion, "LGPL-3.0-only", "Windows, files and connections"},
    {"SQLite", SqliteVersion, "public domain", "The file of the settings"},
    {"JsonCpp", JsonCppVersion, "MIT", "Profiles of settings"},
    {"libarchive", LibarchiveVersion, "BSD-2-Clause", "Files for support"},
    {"libnova", LibnovaVersion, "LGPL-2.0-or-later", "Sunrise and sunset"},
    {"Shapelib", UnknownVersion, "MIT OR LGPL-2.0-or-later", "Boundaries and zones"},
};

} // namespace

QList<tagUsedLibrary> UsedLibraries()
{
    QList<tagUsedLibrary> libraries;
    for (const tagLibrary& row : Libraries)
        libraries.append({row.name, row.version(), row.licence, row.use});
    return libraries;
}
