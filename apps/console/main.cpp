#include "console/commands/Commands.h"
#include "console/line/Manual.h"
#include "console/line/Output.h"

#include <QCoreApplication>
#include <QStandardPaths>
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
#include <QTextCodec>
#endif

namespace {

const tagCommand Commands[] = {
    {"run", "Runs the terminal on an NMEA stream.", RunRun},
    {"simulate", "Writes the NMEA stream of a tractor working a field.", RunSimulate},
    {"get", "Prints a parameter.", RunGet},
    {"set", "Sets a parameter.", RunSet},
    {"reset", "Gives a parameter the value of a first start.", RunReset},
    {"list", "Lists the parameters.", RunList},
    {"describe", "Explains a parameter.", RunDescribe},
    {"colors", "Prints the colours by day and by night.", RunColors},
    {"clock", "Prints the clock and sets it.", RunClock},
    {"select", "Makes a job, a vehicle, a field... the active one.", RunSelect},
    {"selections", "Lists what is active.", RunSelections},
    {"paths", "Prints where everything lies.", RunPaths},
    {"storage", "Prints what is free on the drives and in memory.", RunStorage},
    {"units", "Lists the units.", RunUnits},
    {"convert", "Converts a value or a column of values.", RunConvert},
    {"show", "Prints a value as the operator sees it.", RunShow},
    {"dump", "Prints what stands in a file of serialized blocks.", RunDump},
    {"log", "Shows the logs, adds to them and exports them.", RunLog},
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
            return Misuse(QLatin1String("--data takes the folder that stands for the terminal"));
        arguments = arguments.mid(isApart ? 2 : 1);
    }
    if (arguments.value(0) == QLatin1String("--version")) {
        Print(QLatin1String("cabsettings " CABSETTINGS_VERSION "\n"));
        return STATUS_DONE;
    }
    const bool isManual = arguments == QStringList{QLatin1String("--manual")};
    if (isManual)
        Manual::PrintHead();
    const int status = Dispatch(QLatin1String("cabsettings [--data DIR]"), Commands, context, arguments);
    if (isManual)
        Manual::PrintTail();
    return status;
}

} // namespace

int main(int argc, char* argv[])
{
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    // Names of farms and fields are UTF-8 on the drives, whatever locale the program is started in.
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
#endif
    const QCoreApplication application(argc, argv);
    const int status = Run(QCoreApplication::arguments().mid(1));
    return FlushOutput() ? status : STATUS_FAILED;
}
