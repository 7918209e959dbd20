#include "BenchFolder.h"

#include <QDir>
#include <QTemporaryDir>

QString BenchFolder::Path()
{
    static const QTemporaryDir folder(QDir::tempPath() + QLatin1String("/bench-XXXXXX"));
    if (!folder.isValid())
        qFatal("bench: cannot make a folder in %s", qPrintable(QDir::tempPath()));
    return folder.path();
}

QString BenchFolder::Fresh(const char* name)
{
    const QString path = Path() + QLatin1Char('/') + QLatin1String(name);
    QDir(path).removeRecursively();
    QDir().mkpath(path);
    return path;
}
