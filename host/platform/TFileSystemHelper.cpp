#include "platform/TFileSystemHelper.h"

#include "platform/DurableCopy.h"

#include <QFile>

QRegExp TFileSystemHelper::LowerCaseFilenameExtensionRegExp() { return QRegExp(QLatin1String("\\.[a-z0-9]+")); }

bool TFileSystemHelper::FileCopy(const QString& source, const QString& destination, bool overwrite)
{
    return CopyDurably(QFile::encodeName(source), QFile::encodeName(destination), overwrite);
}
