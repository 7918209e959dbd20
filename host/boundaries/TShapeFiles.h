#pragma once

#include <QByteArray>

#include <shapefil.h>

#include <map>
#include <string>

/// The files of a shapefile in memory, for the library that reads and writes them. It takes nothing from the disk, and
/// leaves it to its caller when and how they come there.
///
/// @code
/// TShapeFiles files;
/// SAHooks hooks = files.Hooks();
/// SHPClose(SHPCreateLL("zones.shp", SHPT_POLYGON, &hooks));
/// Write(files["shp"]);
/// @endcode
///
/// The library's calls do not tell whose files they are about: one object at a time may exist in a thread, and it is
/// used in that thread alone.
class TShapeFiles
{
public:
    TShapeFiles();
    ~TShapeFiles();

    TShapeFiles(const TShapeFiles&) = delete;
    TShapeFiles& operator=(const TShapeFiles&) = delete;

    /// What SHPOpenLL() and its like are called with. The names of files are told apart by their extensions.
    static SAHooks Hooks();

    /// The content of the file with this extension: "shp", "shx" or "dbf".
    QByteArray& operator[](const char* extension) { return m_Files[extension]; }

private:
    friend struct tagShapeCalls;

    std::map<std::string, QByteArray> m_Files;
};
