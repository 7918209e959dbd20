// history and undo: the journal of changes.

#include "console/commands/Commands.h"
#include "console/line/CommandLine.h"
#include "console/line/Output.h"
#include "console/terminal/ParameterArgument.h"
#include "console/terminal/Session.h"

#include "stores/ChangeJournal.h"

#include <QJsonArray>

#include <algorithm>
#include <iterator>
#include <limits>
#include <optional>

namespace {

const char* const CountOption = "count";

struct tagSourceName
{
    ETimeSource source;
    const char* name;
};

constexpr tagSourceName SourceNames[] = {
    {TIME_SOURCE_NONE, "none"},
    {TIME_SOURCE_OPERATOR, "operator"},
    {TIME_SOURCE_RECEIVER, "receiver"},
};

QString SourceName(ETimeSource source)
{
    const auto row = std::find_if(std::begin(SourceNames), std::end(SourceNames),
                                  [source](const tagSourceName& name) { return name.source == source; });
    return row == std::end(SourceNames) ? QString::number(source) : QString::fromLatin1(row->name);
}

QJsonObject Json(const ChangeJournal::tagEntry& entry)
{
    QJsonObject object = ChangeJson(entry.parameter, entry.oldValue, entry.newValue);
    object.insert(QLatin1String("entry"), entry.number);
    object.insert(QLatin1String("time"), entry.time);
    object.insert(QLatin1String("utc"), entry.utc);
    object.insert(QLatin1String("timeSource"), SourceName(entry.timeSource));
    object.insert(QLatin1String("author"), entry.author);
    return object;
}

QStringList Row(const ChangeJournal::tagEntry& entry)
{
    QString time = entry.time.left(19); // to the second
    time.replace(QLatin1Char('T'), QLatin1Char(' '));
    return {QString::number(entry.number), time, SourceName(entry.timeSource), Harmless(entry.author),
            ChangeText(entry.parameter, entry.oldValue, entry.newValue)};
}

} // namespace

int RunHistory(const tagContext& context, const QStringList& arguments)
{
    TCommandLine line(
        QLatin1String("history"), QLatin1String("[PARAMETER]"),
        QLatin1String(
            "Prints the changes of the parameters, or of one, the newest first: number, time on the "
            "terminal's clock, where the clock had its time from (none, operator, receiver), who made the "
            "change, and the old and the new value. The terminal keeps the last 10000 entries. What the display "
            "itself changes of the clock, the drives and the numbers of log files has one entry for each "
            "parameter and minute."),
        QLatin1String("cabsettings history units.area"));
    line.AddOption(QLatin1String(CountOption), QLatin1String("Number of changes."), QLatin1String("N"),
                   QLatin1String("20"));
    line.AddJsonOption(QLatin1String("Prints an array of objects: entry, time, utc (the machine's clock), timeSource, "
                                     "author, number, name, old, oldText, new, newText. Absent values are null."));
    if (const auto status = line.Read(arguments, 0, 1))
        return *status;
    const auto count = line.WholeNumber(QLatin1String(CountOption), 1, std::numeric_limits<int>::max());
    if (!count)
        return STATUS_MISUSED;
    ChangeJournal::tagQuery query = {std::nullopt, *count};
    if (!line.Words().isEmpty()) {
        const auto parameter = ReadParameter(line.Words().first(), line);
        if (!parameter)
            return STATUS_MISUSED;
        query.parameter = parameter->id;
    }

    TSession session;
    if (!session.Open(context, SESSION_STORE))
        return STATUS_FAILED;
    ChangeJournal::tagJournal journal;
    QString error;
    if (!ChangeJournal::Read(session.Store(), query, &journal, &error))
        return Fail(error);
    QList<QStringList> rows;
    QJsonArray array;
    for (const ChangeJournal::tagEntry& entry : std::as_const(journal.entries)) {
        rows.append(Row(entry));
        array.append(Json(entry));
    }
    if (line.WantsJson())
        PrintJson(array);
    else
        PrintTable(rows);
    int status = STATUS_DONE;
    for (const qint64 number : std::as_const(journal.damaged))
        status = Fail(QString::fromLatin1("entry %1 is damaged").arg(number));
    return status;
}

int RunUndo(const tagContext& context, const QStringList& arguments)
{
    TCommandLine line(QLatin1String("undo"), QLatin1String("[ENTRY]"),
                      QLatin1String("Gives a parameter the value that it had before a change, and prints what was "
                                    "changed. ENTRY is a number that `cabsettings history` prints; without it, the "
                                    "newest change is undone. A change is not undone when the parameter has got "
                                    "another value since. Undoing an undo sets the value again."),
                      QLatin1String("cabsettings undo"));
    line.AddJsonOption(QLatin1String("Prints an object: number, name, old, oldText, new, newText."));
    if (const auto status = line.Read(arguments, 0, 1))
        return *status;
    std::optional<qint64> number;
    if (!line.Words().isEmpty()) {
        bool isNumber = false;
        number = line.Words().first().toLongLong(&isNumber);
        if (!isNumber || *number < 1)
            return line.Misused(QString::fromLatin1("invalid entry \"%1\"; expected a number that `cabsettings "
                                                    "history` prints")
                                    .arg(line.Words().first()));
    }

    TSession session;
    if (!session.Open(context, SESSION_STORE))
        return STATUS_FAILED;
    ChangeJournal::tagEntry undone;
    QString error;
    if (!ChangeJournal::Undo(session.Store(), number, &undone, &error))
        return Fail(error);
    if (line.WantsJson())
        PrintJson(ChangeJson(undone.parameter, undone.newValue, undone.oldValue));
    else
        PrintLine(ChangeText(undone.parameter, undone.newValue, undone.oldValue));
    return STATUS_DONE;
}
