// monitor: changes of parameters, by whichever program, as they happen.

#include "console/commands/Commands.h"
#include "console/line/CommandLine.h"
#include "console/line/Output.h"
#include "console/line/QuitOnSignal.h"
#include "console/terminal/ParameterArgument.h"
#include "console/terminal/Session.h"

#include "stores/TParameterWatch.h"

#include <QCoreApplication>

#include <cstdio>
#include <limits>
#include <optional>

namespace {

const char* const CountOption = "count";

/// How many of the parameters that are listed fit. A number fits before the host has set it.
int CountOf(const QString& pattern, const TParameterStore& store)
{
    QMap<int, QVariant> values = ListedValues(store);
    bool isNumber = false;
    const int number = pattern.toInt(&isNumber);
    if (isNumber && number >= 0)
        values.insert(number, QVariant());
    int count = 0;
    for (auto value = values.constBegin(); value != values.constEnd(); ++value)
        count += FitsPattern(pattern, value.key()) ? 1 : 0;
    return count;
}

} // namespace

int RunMonitor(const tagContext& context, const QStringList& arguments)
{
    TCommandLine line(
        QLatin1String("monitor"), QLatin1String("[PATTERN]"),
        QLatin1String("Prints a line for each change of a parameter, by whichever program, until an interrupt: name, "
                      "old and new value. A change is printed within a second; of changes that follow each other "
                      "faster, intermediate values may be left out. A line on standard error says when the command is "
                      "ready. ") +
            QLatin1String(PatternForm),
        QLatin1String("cabsettings monitor units"));
    line.AddOption(QLatin1String(CountOption), QLatin1String("Ends after N changes."), QLatin1String("N"));
    line.AddJsonOption(QLatin1String("Prints an object on each line: number, name, old, oldText, new, newText. Absent "
                                     "values, and the name of a host's own parameter, are null."));
    if (const auto status = line.Read(arguments, 0, 1))
        return *status;
    int left = std::numeric_limits<int>::max();
    if (line.IsSet(QLatin1String(CountOption))) {
        const auto count = line.WholeNumber(QLatin1String(CountOption), 1, left);
        if (!count)
            return STATUS_MISUSED;
        left = *count;
    }
    const bool isEndless = !line.IsSet(QLatin1String(CountOption));
    const QString pattern = line.Words().value(0);

    const TQuitOnSignal quitOnSignal; // before any thread starts, so that none takes the signal instead
    TSession session;
    if (!session.Open(context, SESSION_STORE))
        return STATUS_FAILED;
    TParameterWatch watch(session.Store());
    QObject::connect(&watch, &TParameterWatch::Changed, [&](const tagParameterChange& change) {
        if (left == 0 || !FitsPattern(pattern, change.number))
            return;
        if (line.WantsJson())
            PrintJsonLine(ChangeJson(change.number, change.oldValue, change.newValue));
        else
            PrintLine(ChangeText(change.number, change.oldValue, change.newValue));
        std::fflush(stdout);
        if (!isEndless)
            --left;
        if (left == 0 || OutputFailed())
            QCoreApplication::quit();
    });
    const int count = CountOf(pattern, session.Store());
    if (count == 0)
        return Fail(NoMatch(pattern));
    Announce(QString::fromLatin1("watching %1 %2")
                 .arg(count)
                 .arg(count == 1 ? QLatin1String("parameter") : QLatin1String("parameters")));
    QCoreApplication::exec();
    return STATUS_DONE;
}
