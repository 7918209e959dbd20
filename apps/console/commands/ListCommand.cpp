// list and describe: the catalogue of parameters, with the values that they have.

#include "console/commands/Commands.h"
#include "console/line/CommandLine.h"
#include "console/line/Output.h"
#include "console/terminal/ParameterArgument.h"
#include "console/terminal/Session.h"

#include "parameters/ParameterText.h"

#include <QJsonArray>

namespace {

const char* const MarkdownOption = "markdown";

QStringList Row(int number, const QVariant& value)
{
    const tagParameter* const known = TParameterCatalogue::Find(number);
    return {QString::number(number), known ? known->name : QLatin1String("-"),
            known ? TParameterCatalogue::TypeName(known->type) : ParameterText::TypeName(value),
            ValueTextOrNotSet(known, value)};
}

/// The table of the documentation.
void PrintMarkdown()
{
    Print(QLatin1String("| Number | Name | Type | Default | Accepts | Unit | Meaning | Changes |\n"
                        "|---|---|---|---|---|---|---|---|\n"));
    for (const tagParameter& parameter : TParameterCatalogue::Parameters()) {
        Print(QString::fromLatin1("| %1 | `%2` | %3 | %4 | %5 | %6 | %7 | %8 |\n")
                  .arg(QString::number(parameter.id), parameter.name, TParameterCatalogue::TypeName(parameter.type),
                       parameter.firstValue.isValid() ? TParameterCatalogue::Text(parameter, parameter.firstValue)
                                                      : QString(),
                       parameter.accepts, parameter.unit, parameter.meaning, parameter.readers));
    }
}

QString WithUnit(const tagParameter& parameter, const QString& text)
{
    return parameter.unit.isEmpty() ? text : text + QLatin1Char(' ') + parameter.unit;
}

void PrintDescription(const tagParameter& parameter, const QVariant& value)
{
    const QVariant first = TParameterCatalogue::FirstValue(parameter);
    Print(QString::fromLatin1("%1 (%2): %3\n\n")
              .arg(parameter.name)
              .arg(static_cast<int>(parameter.id))
              .arg(parameter.meaning));
    PrintTable({{QLatin1String("  Type"), TParameterCatalogue::TypeName(parameter.type)},
                {QLatin1String("  Value"), value.isValid() ? WithUnit(parameter, ValueText(&parameter, value))
                                                           : ValueTextOrNotSet(&parameter, value)},
                {QLatin1String("  Default"), first.isValid() ? WithUnit(parameter, ValueText(&parameter, first))
                                                             : QLatin1String("chosen by the terminal")},
                {QLatin1String("  Accepts"), parameter.accepts},
                {QLatin1String("  Changes"), parameter.readers}});
}

} // namespace

int RunList(const tagContext& context, const QStringList& arguments)
{
    TCommandLine line(QLatin1String("list"), QLatin1String("[PATTERN]"),
                      QLatin1String("Lists the parameters: number, name, type and value. ") +
                          QLatin1String(PatternForm),
                      QLatin1String("cabsettings list units"));
    line.AddJsonOption(QLatin1String("Prints an array of objects, as `get --json` prints them."));
    line.AddOption(QLatin1String(MarkdownOption),
                   QLatin1String("Prints the table of the documentation: all parameters, without values."));
    if (const auto status = line.Read(arguments, 0, 1))
        return *status;
    if (line.IsSet(QLatin1String(MarkdownOption))) {
        PrintMarkdown();
        return STATUS_DONE;
    }
    const QString pattern = line.Words().value(0);
    TSession session;
    if (!session.Open(context, SESSION_STORE))
        return STATUS_FAILED;
    TParameterStore& store = session.Store();

    const QMap<int, QVariant> values = ListedValues(store);
    QList<QStringList> rows;
    QJsonArray array;
    for (auto it = values.constBegin(); it != values.constEnd(); ++it) {
        if (!FitsPattern(pattern, it.key()))
            continue;
        rows.append(Row(it.key(), it.value()));
        array.append(ParameterJson(it.key(), it.value()));
    }
    if (line.WantsJson())
        PrintJson(array);
    else
        PrintTable(rows);
    return rows.isEmpty() ? Fail(NoMatch(pattern)) : STATUS_DONE;
}

int RunDescribe(const tagContext& context, const QStringList& arguments)
{
    TCommandLine line(QLatin1String("describe"), QLatin1String("PARAMETER"),
                      QLatin1String("Explains a parameter, given by name or number: its meaning, its default, the "
                                    "accepted values and what depends on it."),
                      QLatin1String("cabsettings describe units.area"));
    line.AddJsonOption(QLatin1String("Prints an object, as `get --json` does."));
    if (const auto status = line.Read(arguments, 1, 1))
        return *status;
    const auto parameter = ReadParameter(line.Words().first(), line);
    if (!parameter)
        return STATUS_MISUSED;
    TSession session;
    if (!session.Open(context, SESSION_STORE))
        return STATUS_FAILED;
    TParameterStore& store = session.Store();

    const QVariant value = store.GetParameter(parameter->id);
    if (!parameter->known && !value.isValid())
        return Fail(QString::fromLatin1("%1 is not set").arg(parameter->Name()));
    if (line.WantsJson())
        PrintJson(ParameterJson(parameter->id, value));
    else if (parameter->known)
        PrintDescription(*parameter->known, value);
    else
        Print(QString::fromLatin1("%1 belongs to the host; the library does not use it\n").arg(parameter->Name()));
    return STATUS_DONE;
}
