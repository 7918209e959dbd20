// log: the group of its commands; log add and log export, which need a terminal that runs.

#include "console/commands/Commands.h"
#include "console/line/CommandLine.h"
#include "console/line/Output.h"
#include "console/terminal/Session.h"

#include "diagnostics/UserLogEntries.h"
#include "fields/TOpenDrive.h"
#include "logs/TNEMADiagnosticLogProxy.h"
#include "logs/TUserDiagnosticLogProxy.h"

#include <QFileInfo>
#include <QJsonArray>
#include <QJsonObject>

#include <limits>

namespace {

int RunAdd(const tagContext& context, const QStringList& arguments)
{
    TCommandLine line(QLatin1String("log add"), QLatin1String("TEXT [TEXT2]"),
                      QLatin1String("Adds an entry to the user log. Commas and line breaks in a text become blanks."),
                      QLatin1String("cabsettings log add --component 3 --type 2 --code 512 \"Nozzle 7\" blocked"));
    line.AddOption(QLatin1String("component"),
                   QLatin1String("0 console, 1 GPS receiver, 2 steering controller, 3 implement, 4 none."),
                   QLatin1String("N"), QLatin1String("0"));
    line.AddOption(QLatin1String("type"), QLatin1String("0 parameter, 1 event, 2 trouble code."), QLatin1String("N"),
                   QLatin1String("1"));
    line.AddOption(QLatin1String("code"), QLatin1String("Number of the parameter, event or trouble code."),
                   QLatin1String("N"), QLatin1String("0"));
    if (const auto status = line.Read(arguments, 1, 2))
        return *status;
    const auto component = line.WholeNumber(QLatin1String("component"), DIAG_COMPONENT_CONSOLE, DIAG_COMPONENT_NONE);
    const auto type = line.WholeNumber(QLatin1String("type"), DIAG_TYPE_PARAM, DIAG_TYPE_DTC);
    const auto code = line.WholeNumber(QLatin1String("code"), 0, std::numeric_limits<int>::max());
    if (!component || !type || !code)
        return STATUS_MISUSED;

    TSession session;
    if (!session.Open(context, SESSION_TERMINAL))
        return STATUS_FAILED;
    const bool isLogged =
        AddUserLogEntry(static_cast<EDiagnosticComponent>(*component), static_cast<EDiagnosticType>(*type), *code,
                        line.Words().at(0), line.Words().value(1));
    return isLogged ? STATUS_DONE : Fail(QLatin1String("cannot write the entry to the user log"));
}

/// Copies one log, and reports it as a line or in @p array. False, after a message, when not every file could be
/// copied. After a stick was pulled its mount point is an empty folder, to which nothing is copied.
bool ExportOne(TDiagnosticLogProxy& log, const char* name, const char* title, const TOpenDrive& drive,
               const QString& target, QJsonArray* array)
{
    TDiagnosticLog::tagExportResult result = log.Export(drive.Path(QLatin1String(".")));
    result.allCopied = result.allCopied && drive.IsThere();
    if (array) {
        array->append(QJsonObject{{QLatin1String("log"), QLatin1String(name)},
                                  {QLatin1String("files"), result.filesFound},
                                  {QLatin1String("complete"), result.allCopied}});
    } else if (result.allCopied) {
        Print(QString::fromLatin1("%1: %2 files copied\n").arg(QLatin1String(title)).arg(result.filesHandled));
    }
    if (!result.allCopied)
        Fail(QString::fromLatin1("%1: cannot copy every file to \"%2\"").arg(QLatin1String(title), target));
    return result.allCopied;
}

int RunExport(const tagContext& context, const QStringList& arguments)
{
    TCommandLine line(
        QLatin1String("log export"), QLatin1String("DIR"),
        QLatin1String("Copies the files of both logs into a folder, and waits until they are on the disk."),
        QLatin1String("cabsettings log export /media/usb"));
    line.AddJsonOption(QLatin1String("Prints an array of objects: log, files (their number), complete."));
    if (const auto status = line.Read(arguments, 1, 1))
        return *status;
    const QString target = line.Words().first();
    if (!QFileInfo(target).isDir())
        return Fail(QString::fromLatin1("\"%1\" is not a folder; expected a folder that exists").arg(target));

    TSession session;
    if (!session.Open(context, SESSION_TERMINAL))
        return STATUS_FAILED;
    TUserDiagnosticLogProxy userLog;
    TNEMADiagnosticLogProxy nmeaLog;
    const bool isJson = line.WantsJson();
    QJsonArray array;
    const TOpenDrive drive(target); // one for both: it knows when the stick is another one, or none, meanwhile
    const bool isUserCopied = ExportOne(userLog, "user", "user log", drive, target, isJson ? &array : nullptr);
    const bool isNmeaCopied = ExportOne(nmeaLog, "nmea", "NMEA log", drive, target, isJson ? &array : nullptr);
    if (isJson)
        PrintJson(array);
    return isUserCopied && isNmeaCopied ? STATUS_DONE : STATUS_FAILED;
}

const std::vector<tagCommand> Commands = {
    {"add", "Adds an entry to the user log.", RunAdd},
    {"tail", "Prints the newest lines of a log.", RunLogTail},
    {"list", "Lists the files of both logs.", RunLogList},
    {"export", "Copies the files of both logs into a folder.", RunExport},
};

} // namespace

int RunLog(const tagContext& context, const QStringList& arguments)
{
    return Dispatch(QLatin1String("log"), Commands, context, arguments.mid(1));
}
