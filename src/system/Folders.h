#pragma once

#include <QDir>
#include <QFileInfo>
#include <QString>

/// Folders that are made where they are missing.
namespace Folders {

/// Makes @p folder and those above it.
inline void Make(const QDir& folder)
{
    if (!folder.exists()) // cheaper than to make what is there
        folder.mkpath(folder.absolutePath());
}

/// Makes the folder of the file @p path; nothing when the path is empty.
inline void MakeFor(const QString& path)
{
    if (!path.isEmpty())
        Make(QFileInfo(path).dir());
}

} // namespace Folders
