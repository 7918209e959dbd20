#include "console/units/UnitArguments.h"

#include "console/line/Messages.h"
#include "console/line/Number.h"
#include "console/units/UnitNames.h"

#include "parameters/ParameterText.h"

namespace {

const char* const SystemOption = "system";

struct tagSystem
{
    const char* name;
    bool metric;
    bool us;
};

constexpr tagSystem Systems[] = {
    {"metric", true, false},
    {"us", false, true},
    {"english", false, false},
};

} // namespace

void AddMeasuresOption(TCommandLine& line)
{
    line.AddOption(QLatin1String(SystemOption),
                   QLatin1String("Uses these measures instead of the stored ones: metric, us or english."),
                   QLatin1String("SYSTEM"));
}

std::optional<int> OpenUnits(TSession& session, const tagContext& context, const TCommandLine& line)
{
    const QString wanted = line.Value(QLatin1String(SystemOption));
    const tagSystem* chosen = nullptr;
    for (const tagSystem& system : Systems) {
        if (wanted == QLatin1String(system.name))
            chosen = &system;
    }
    if (line.IsSet(QLatin1String(SystemOption)) && !chosen)
        return line.InvalidValue(QLatin1String(SystemOption), QLatin1String("metric, us or english"));

    if (!session.Open(context, SESSION_UNITS))
        return STATUS_FAILED;
    if (chosen) {
        session.Store().SetParameter(PARAM_METRIC, chosen->metric, false);
        session.Store().SetParameter(PARAM_US_MEASURES, chosen->us, false);
    }
    return std::nullopt;
}

std::optional<EUnitsType> ReadUnit(const TCommandLine& line, const QString& text)
{
    const auto unit = UnitNames::Find(text);
    if (!unit) {
        line.Misused(
            Messages::Unknown(QLatin1String("unit"), text, ParameterText::Near(text, UnitNames::AllShown()),
                              QLatin1String("an abbreviation, a name or a number that `cabsettings units` prints")));
    }
    return unit;
}

std::optional<double> ReadNumber(const TCommandLine& line, const QString& text)
{
    const auto number = FiniteNumber(text);
    if (!number) {
        line.Misused(Messages::Invalid(QLatin1String("number"), text, QLatin1String(FiniteNumberForm)));
    }
    return number;
}
