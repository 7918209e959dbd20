#include "console/line/Command.h"
#include "console/line/Completion.h"
#include "console/line/Messages.h"
#include "console/line/Output.h"

#include "parameters/ParameterText.h"

#include <algorithm>

namespace {

using TCommands = std::vector<tagCommand>;

QStringList Names(const TCommands& commands)
{
    QStringList names;
    for (const tagCommand& command : commands)
        names.append(QLatin1String(command.name));
    return names;
}

void PrintHelp(const QString& group, const TCommands& commands)
{
    const QString start = (QLatin1String("cabsettings [--data DIR] ") + group).trimmed();
    QList<QStringList> rows;
    for (const tagCommand& command : commands)
        rows.append({QLatin1String("  ") + QLatin1String(command.name), QLatin1String(command.summary)});
    PrintLine(QString::fromLatin1("Usage: %1 COMMAND ...\n\nCommands:").arg(start));
    PrintTable(rows);
    PrintLine(QString::fromLatin1("\nRun %1 COMMAND --help for the help of a command.").arg(start));
}

int SayWhatIsExpected(const QString& group, const QString& word, const QStringList& names)
{
    QString problem = Messages::NotAmong(QLatin1String("command"), word, names);
    if (word.isEmpty())
        problem = QLatin1String("missing command; expected ") + ParameterText::Alternatives(names);
    else if (word.startsWith(QLatin1Char('-')))
        problem = Messages::Unknown(QLatin1String("option"), word, {}, ParameterText::Alternatives(names));
    if (group.isEmpty())
        return Misuse(QString::fromLatin1("%1 (see cabsettings --help)").arg(problem));
    return Misuse(QString::fromLatin1("%1: %2 (see cabsettings %1 --help)").arg(group, problem));
}

} // namespace

int Dispatch(const QString& group, const TCommands& commands, const tagContext& context, const QStringList& arguments)
{
    const QString word = arguments.value(0);
    const QStringList names = Names(commands);
    if (word == QLatin1String("--help") || word == QLatin1String("-h")) {
        PrintHelp(group, commands);
        return STATUS_DONE;
    }
    if (arguments.size() == 1 && Completion::IsAsked(arguments)) {
        PrintLine(names.join(QLatin1Char('\n')));
        return STATUS_DONE;
    }
    if (word == QLatin1String("--manual")) {
        for (const tagCommand& command : commands)
            command.run(context, {QLatin1String(command.name), word});
        return STATUS_DONE;
    }
    const auto index = names.indexOf(word);
    if (index < 0)
        return SayWhatIsExpected(group, word, names);
    return commands[static_cast<std::size_t>(index)].run(context, arguments);
}
