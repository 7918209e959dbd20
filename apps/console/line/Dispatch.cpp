#include "console/line/Command.h"
#include "console/line/Completion.h"
#include "console/line/Output.h"

#include <QList>

#include <algorithm>

int Dispatch(const QString& program, const tagCommand* commands, std::size_t count, const tagContext& context,
             const QStringList& arguments)
{
    const QString word = arguments.value(0);
    if (word == QLatin1String("--help") || word == QLatin1String("-h")) {
        QList<QStringList> rows;
        for (std::size_t i = 0; i < count; ++i)
            rows.append({QLatin1String("  ") + QLatin1String(commands[i].name), QLatin1String(commands[i].summary)});
        Print(QString::fromLatin1("Usage: %1 COMMAND ...\n\nCommands:\n").arg(program));
        PrintTable(rows);
        Print(QString::fromLatin1("\n%1 COMMAND --help tells more of each.\n").arg(program));
        return STATUS_DONE;
    }

    QStringList names;
    for (std::size_t i = 0; i < count; ++i)
        names.append(QLatin1String(commands[i].name));
    if (arguments.size() == 1 && Completion::IsAsked(arguments)) {
        PrintLine(names.join(QLatin1Char('\n')));
        return STATUS_DONE;
    }

    if (word == QLatin1String("--manual")) {
        for (std::size_t i = 0; i < count; ++i)
            commands[i].run(context, {QLatin1String(commands[i].name), word});
        return STATUS_DONE;
    }

    const tagCommand* const command = std::find_if(commands, commands + count, [&word](const tagCommand& candidate) {
        return word == QLatin1String(candidate.name);
    });
    if (command != commands + count)
        return command->run(context, arguments);

    const QString problem = word.isEmpty() ? QLatin1String("a command is missing")
                                           : QString::fromLatin1("there is no command \"%1\"").arg(word);
    return Misuse(QString::fromLatin1("%1; the commands are %2 (see %3 --help)")
                      .arg(problem, names.join(QLatin1String(", ")), program));
}
