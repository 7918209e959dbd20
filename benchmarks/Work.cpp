#include "Work.h"

#include <QFile>

Work::tagRotatingLog::tagRotatingLog(const char* folder, int foreignFiles)
    : log(0, EntryLength - 1, 4, PARAM_USER_LOG_FILE_NUMBER)
{
    const QString path = BenchFolder::Fresh(folder);
    for (int i = 0; i < foreignFiles; ++i) {
        QFile file(path + QString::fromLatin1("/photo%1.jpg").arg(i));
        file.open(QIODevice::WriteOnly);
    }
    log.Restore(path + QLatin1String("/user.log"), 0, 0);
    for (int i = 0; i < 4; ++i) // the series is full
        log.LogDiagnostic(Entry, EntryLength);
}
