// log list: the files of the logs.

#include "console/commands/Commands.h"
#include "console/line/CommandLine.h"
#include "console/line/Output.h"
#include "console/logs/LogArgument.h"
#include "console/logs/LogNames.h"

#include "logs/TLogSeries.h"

#include <QDateTime>
#include <QJsonArray>
#include <QJsonObject>

int RunLogList(const tagContext& context, const QStringList& arguments)
{
    TCommandLine line(
        QLatin1String("log list"), QLatin1String("[LOG]"),
        QString::fromLatin1("Lists the files of both logs or of one (%1), the oldest first: number, size in bytes, "
                            "time of the last change in UTC. The log goes on in the file marked newest. When the clock "
                            "was set back, the terminal moves times forward to keep the files in their order.")
            .arg(LogNames().join(QLatin1String(", "))),
        QLatin1String("cabsettings log list"));
    line.AddJsonOption(QLatin1String(
        "Prints an array of objects: log, file, path, number (null in a name without one), size, modified, newest."));
    if (const auto status = line.Read(arguments, 0, 1))
        return *status;
    const QStringList wanted = line.Words().isEmpty() ? LogNames() : line.Words();
    if (!IsLog(wanted.first(), line))
        return STATUS_MISUSED;

    const auto drive = FindLogDrive(context);
    if (!drive)
        return STATUS_FAILED;
    QJsonArray array;
    QList<QStringList> rows = {{QLatin1String("log"), QLatin1String("file"), QLatin1String("number"),
                                QLatin1String("size"), QLatin1String("modified")}};
    for (const QString& log : wanted) {
        const TLogSeries series(LogBasePath(log, *drive));
        const std::vector<TLogSeries::tagFile> files = series.GetFiles();
        for (const TLogSeries::tagFile& file : files) {
            const bool isNewest = &file == &files.back();
            const auto& number = file.number;
            const QString modified = QDateTime::fromMSecsSinceEpoch(file.modified, Qt::UTC).toString(Qt::ISODate);
            array.append(QJsonObject{{QLatin1String("log"), log},
                                     {QLatin1String("file"), file.name},
                                     {QLatin1String("path"), series.GetPath(file.name)},
                                     {QLatin1String("number"), number ? QJsonValue(*number) : QJsonValue()},
                                     {QLatin1String("size"), file.size},
                                     {QLatin1String("modified"), modified},
                                     {QLatin1String("newest"), isNewest}});
            rows.append({log, file.name, number ? QString::number(*number) : QString(QLatin1Char('-')),
                         QString::number(file.size), modified});
            if (isNewest)
                rows.last().append(QLatin1String("newest"));
        }
    }
    if (line.WantsJson())
        PrintJson(array);
    else
        PrintTable(rows);
    return STATUS_DONE;
}
