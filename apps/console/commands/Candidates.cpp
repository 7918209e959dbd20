#include "console/line/Candidates.h"

#include "console/logs/LogNames.h"
#include "console/units/UnitNames.h"
#include "terminal/ActiveItems.h"

#include "parameters/TParameterCatalogue.h"
#include "units/TUnitAbbreviations.h"

namespace {

QStringList ParameterNames(const QStringList&)
{
    QStringList names;
    for (const tagParameter& parameter : TParameterCatalogue::Parameters())
        names.append(parameter.name);
    return names;
}

/// The values of the parameter before it, when they can be listed.
QStringList Values(const QStringList& words)
{
    const tagParameter* const parameter = TParameterCatalogue::Find(words.value(0));
    if (!parameter)
        return {};
    if (parameter->type == PARAMETER_BOOL)
        return {QLatin1String("true"), QLatin1String("false")};
    QStringList names;
    for (const tagParameterChoice& choice : parameter->choices)
        names.append(choice.name);
    return names;
}

QStringList UnitWords(const QStringList&)
{
    TUnitAbbreviations::Initialize();
    return UnitNames::AllShown();
}

QStringList Kinds(const QStringList&) { return ActiveItems::Kinds(); }

QStringList Logs(const QStringList&) { return LogNames(); }

/// The values of a placeholder.
struct tagPlaceholder
{
    const char* word;
    QStringList (*candidates)(const QStringList& words);
};

const tagPlaceholder Placeholders[] = {
    {"PARAMETER", ParameterNames}, {"PATTERN", ParameterNames}, {"VALUE", Values}, {"UNIT", UnitWords},
    {"FROM", UnitWords},           {"TO", UnitWords},           {"KIND", Kinds},   {"LOG", Logs},
};

} // namespace

QStringList Candidates(const QString& placeholder, const QStringList& words)
{
    for (const tagPlaceholder& row : Placeholders) {
        if (placeholder == QLatin1String(row.word))
            return row.candidates(words);
    }
    return {};
}
