#pragma once

#include <QFileInfo>
#include <QtGlobal>

/// Lets the temporary folders of this program be in memory where that is possible, because thousands of files are
/// synced. A folder that the environment names is taken instead.
inline void KeepTemporaryFilesInMemory()
{
    if (qgetenv("TMPDIR").isEmpty() && QFileInfo(QLatin1String("/dev/shm")).isWritable())
        qputenv("TMPDIR", "/dev/shm");
}
