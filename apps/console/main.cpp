#include "console/commands/Commands.h"
#include "console/line/Manual.h"
#include "console/line/Output.h"

#include "platform/FileMask.h"
#include "platform/StandardHandles.h"
#include "stores/TChangeAuthor.h"

#include <QCoreApplication>
#include <QStandardPaths>
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
#include <QTextCodec>
#endif

#include <clocale>

namespace {

const std::vector<tagCommand> Commands = {
    {"run", "Runs the terminal on an NMEA stream.", RunRun},
    {"simulate", "Writes the NMEA stream of a tractor that works a field.", RunSimulate},
    {"get", "Prints the value of a parameter.", RunGet},
    {"set", "Sets a parameter.", RunSet},
    {"reset", "Sets a parameter to its default.", RunReset},
    {"list", "Lists the parameters.", RunList},
    {"describe", "Explains a parameter.", RunDescribe},
    {"monitor", "Prints changes of parameters as they happen.", RunMonitor},
    {"export", "Writes the parameters to a file.", RunExport},
    {"import", "Takes parameters from a file.", RunImport},
    {"history", "Prints the changes of parameters.", RunHistory},
    {"undo", "Takes back a change of a parameter.", RunUndo},
    {"backup", "Lists, makes and restores copies of the parameters.", RunBackup},
    {"colors", "Prints the colours by day and by night.", RunColors},
    {"sun", "Prints when the sun rises and sets.", RunSun},
    {"clock", "Prints the clock, and sets it.", RunClock},
    {"select", "Selects a job, a vehicle, a field and so on.", RunSelect},
    {"selections", "Lists the selected items.", RunSelections},
    {"fields", "Works on clients, farms, fields and jobs.", RunFields},
    {"paths", "Prints the paths of files and folders.", RunPaths},
    {"storage", "Prints the free space of the drives and the memory.", RunStorage},
    {"support", "Writes an archive for the service desk.", RunSupport},
    {"units", "Lists the units.", RunUnits},
    {"convert", "Converts a value or a column of values.", RunConvert},
    {"show", "Prints a value as the operator sees it.", RunShow},
    {"dump", "Prints a file of serialized blocks.", RunDump},
    {"log", "Prints the logs, adds to them and exports them.", RunLog},
};

QString DefaultDataFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + QLatin1String("/cabsettings");
}

int Run(QStringList arguments)
{
    tagContext context = {DefaultDataFolder()};
    const QString option = QLatin1String("--data");
    const QString first = arguments.value(0);
    if (first == option || first.startsWith(option + QLatin1Char('='))) {
        const bool isApart = first == option;
        context.dataFolder = isApart ? arguments.value(1) : first.mid(option.size() + 1);
        if (context.dataFolder.isEmpty())
            return Misuse(QLatin1String("missing value; expected --data DIR"));
        arguments = arguments.mid(isApart ? 2 : 1);
    }
    if (arguments.value(0) == QLatin1String("--version")) {
        PrintLine(QLatin1String("cabsettings " CABSETTINGS_VERSION));
        return STATUS_DONE;
    }
    const bool isManual = arguments == QStringList{QLatin1String("--manual")};
    if (isManual)
        Manual::PrintHead();
    const int status = Dispatch(QString(), Commands, context, arguments);
    if (isManual)
        Manual::PrintTail();
    return status;
}

} // namespace

int main(int argc, char* argv[])
{
    ReserveStandardHandles();
    DenyWritingByOthers();
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    // Names of farms and fields are UTF-8 on the drives, whatever locale the program is started in.
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
#endif
    const QCoreApplication application(argc, argv);
    std::setlocale(LC_MESSAGES, "C"); // the reasons that the system gives are in the tool's language too
    const TChangeAuthor author(CHANGE_AUTHOR_TOOL);
    const int status = Run(QCoreApplication::arguments().mid(1));
    return FlushOutput() ? status : STATUS_FAILED;
}
