// simulate: the NMEA stream of a tractor working a field.

#include "console/commands/Commands.h"
#include "console/line/CommandLine.h"
#include "console/line/Output.h"

#include "nmea/TFieldSimulator.h"

#include <QFile>

#include <limits>

namespace {

struct tagRealOption
{
    const char* name;
    const char* description;
    double tagFieldPlan::*value;
};

const tagRealOption RealOptions[] = {
    {"lat", "Latitude of the first line's start, degrees, north positive.", &tagFieldPlan::latitude},
    {"lon", "Longitude of the first line's start, degrees, east positive.", &tagFieldPlan::longitude},
    {"altitude", "Metres above sea level.", &tagFieldPlan::altitude},
    {"heading", "Direction of the first line, degrees from true north.", &tagFieldPlan::heading},
    {"length", "Length of a line, metres.", &tagFieldPlan::passLength},
    {"width", "Distance from one line to the next, metres.", &tagFieldPlan::swathWidth},
    {"speed", "Speed on the line, km/h.", &tagFieldPlan::speed},
    {"turn-speed", "Speed in the headland turns, km/h.", &tagFieldPlan::turnSpeed},
    {"turn-radius", "Radius of the tightest turn, metres.", &tagFieldPlan::smallestTurnRadius},
    {"noise", "Greatest error of a position, metres.", &tagFieldPlan::noise},
};

struct tagWholeOption
{
    const char* name;
    const char* description;
    int tagFieldPlan::*value;
};

const tagWholeOption WholeOptions[] = {
    {"passes", "Number of lines.", &tagFieldPlan::passes},
    {"rate", "Positions per second.", &tagFieldPlan::rate},
};

const char* const StartOption = "start";
const char* const SeedOption = "noise-seed";
const char* const OutputOption = "output";
const int GreatestInt = std::numeric_limits<int>::max();

void AddOptions(TCommandLine& line)
{
    const tagFieldPlan plan;
    for (const tagRealOption& option : RealOptions)
        line.AddOption(QLatin1String(option.name), QLatin1String(option.description), QLatin1String("N"),
                       QString::number(plan.*option.value));
    for (const tagWholeOption& option : WholeOptions)
        line.AddOption(QLatin1String(option.name), QLatin1String(option.description), QLatin1String("N"),
                       QString::number(plan.*option.value));
    line.AddOption(QLatin1String(StartOption), QLatin1String("Time of the first position, UTC."), QLatin1String("TIME"),
                   plan.start.toString(Qt::ISODate));
    line.AddOption(QLatin1String(SeedOption), QLatin1String("The same seed gives the same noise."), QLatin1String("N"),
                   QString::number(plan.noiseSeed));
    line.AddOption(QLatin1String(OutputOption), QLatin1String("File to write, or - for standard output."),
                   QLatin1String("FILE"), QLatin1String("-"));
}

/// The plan as typed. Prints a message and returns nothing when an option is not accepted.
std::optional<tagFieldPlan> ReadPlan(const TCommandLine& line)
{
    tagFieldPlan plan;
    for (const tagRealOption& option : RealOptions) {
        const auto value = line.Number(QLatin1String(option.name));
        if (!value)
            return std::nullopt;
        plan.*option.value = *value;
    }
    for (const tagWholeOption& option : WholeOptions) {
        const auto value = line.WholeNumber(QLatin1String(option.name), -GreatestInt, GreatestInt);
        if (!value)
            return std::nullopt;
        plan.*option.value = *value;
    }
    const auto seed = line.WholeNumber(QLatin1String(SeedOption), 0, GreatestInt);
    if (!seed)
        return std::nullopt;
    plan.noiseSeed = static_cast<unsigned>(*seed);

    const QString start = line.Value(QLatin1String(StartOption));
    plan.start = QDateTime::fromString(start, Qt::ISODate);
    if (!plan.start.isValid() || plan.start.timeSpec() == Qt::LocalTime) {
        line.InvalidValue(QLatin1String(StartOption), QLatin1String("a time in UTC such as 2026-04-01T06:00:00Z"));
        return std::nullopt;
    }
    const QString problem = CheckFieldPlan(plan);
    if (!problem.isEmpty()) {
        line.Misused(problem);
        return std::nullopt;
    }
    return plan;
}

int WriteTo(QFile& file, TFieldSimulator& simulator)
{
    while (!simulator.AtEnd()) {
        const QByteArray epoch = simulator.NextEpoch();
        if (file.write(epoch) != epoch.size())
            break;
    }
    if (!simulator.AtEnd() || !file.flush())
        return Fail(QString::fromLatin1("cannot write \"%1\": %2").arg(file.fileName(), file.errorString()));
    return STATUS_DONE;
}

} // namespace

int RunSimulate(const tagContext&, const QStringList& arguments)
{
    TCommandLine line(QLatin1String("simulate"), QString(),
                      QLatin1String("Writes the NMEA stream (RMC, GGA, VTG, ZDA) of a tractor that works a field along "
                                    "parallel lines and turns at the headlands."),
                      QLatin1String("cabsettings simulate --passes 12 --rate 10 --output field.nmea"));
    AddOptions(line);
    if (const auto status = line.Read(arguments, 0, 0))
        return *status;
    const auto plan = ReadPlan(line);
    if (!plan)
        return STATUS_MISUSED;

    TFieldSimulator simulator(*plan);
    const QString output = line.Value(QLatin1String(OutputOption));
    if (output != QLatin1String("-")) {
        QFile file(output);
        if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate))
            return Fail(QString::fromLatin1("cannot write \"%1\": %2").arg(output, file.errorString()));
        return WriteTo(file, simulator);
    }
    while (!simulator.AtEnd() && !OutputFailed())
        PrintBytes(simulator.NextEpoch());
    return STATUS_DONE;
}
