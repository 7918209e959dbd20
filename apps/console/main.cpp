#include "Command.h"
#include "Output.h"

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
    {"list", "Lists the parameters.", RunList},
    {"paths", "Prints where the files of a job lie.", RunPaths},
    {"units", "Lists the units.", RunUnits},
    {"convert", "Converts a value or a column of values.", RunConvert},
    {"show", "Prints a value as the operator sees it.", RunShow},
    {"dump", "Prints what stands in a file of serialized blocks.", RunDump},
    {"log", "Adds to the logs and exports them.", RunLog},
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
    return Dispatch(QLatin1String("cabsettings [--data DIR]"), Commands, context, arguments);
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
