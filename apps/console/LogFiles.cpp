#include "LogFiles.h"

#include <QDir>

QFileInfoList LogFiles(const QString& basePath)
{
    const QFileInfo base(basePath);
    const QString pattern = base.completeBaseName() + QLatin1String("*.") + base.suffix();
    return base.dir().entryInfoList({pattern}, QDir::Files, QDir::Name);
}
