#include "console/units/UnitArguments.h"

#include "console/units/UnitNames.h"

#include <cmath>

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
                   QLatin1String("Measures for this call, whatever is stored: metric, us or english."),
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
    if (!wanted.isEmpty() && !chosen)
        return line.Misused(QString::fromLatin1("--system takes metric, us or english, not \"%1\"").arg(wanted));

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
    if (!unit)
        line.Misused(QString::fromLatin1("there is no unit \"%1\"; \"cabsettings units\" lists what is accepted: an "
                                         "abbreviation, a name or a number")
                         .arg(text));
    return unit;
}

std::optional<double> ReadNumber(const TCommandLine& line, const QString& text)
{
    bool isNumber = false;
    const double number = text.toDouble(&isNumber);
    if (isNumber && std::isfinite(number))
        return number;
    line.Misused(
        QString::fromLatin1("\"%1\" is not a number; digits with a full stop are accepted, such as 12.5").arg(text));
    return std::nullopt;
}
