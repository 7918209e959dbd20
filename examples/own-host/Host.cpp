// What the library imports from its host: the store in use, the clock and the file helper.

#include <QFile>

#include <cstdio>

#include "platform/TConfigManager.h"
#include "platform/TFileSystemHelper.h"
#include "platform/TLocalTime.h"

TConfigManager* ConfigManager = nullptr;

// The machine's clock, which the display does not set.
QDate TLocalTime::currentDate() { return QDate::currentDate(); }
QTime TLocalTime::currentTime() { return QTime::currentTime(); }
QDateTime TLocalTime::currentDateTime() { return QDateTime::currentDateTime(); }
int TLocalTime::SetDateTime(int, int, int, int, int, int) { return 0; }
int TLocalTime::GetOffset() { return 0; }
void TLocalTime::SetOffset(int) {}

QRegExp TFileSystemHelper::LowerCaseFilenameExtensionRegExp() { return QRegExp(QLatin1String("\\.[a-z0-9]+")); }

// The destination is replaced in one step, by a complete copy.
bool TFileSystemHelper::FileCopy(const QString& source, const QString& destination, bool overwrite)
{
    if (!overwrite && QFile::exists(destination))
        return false;
    const QString part = destination + QLatin1String(".part");
    QFile::remove(part); // of a copy that was interrupted
    const bool isCopied = QFile::copy(source, part) && std::rename(QFile::encodeName(part).constData(),
                                                                   QFile::encodeName(destination).constData()) == 0;
    if (!isCopied)
        QFile::remove(part);
    return isCopied;
}
