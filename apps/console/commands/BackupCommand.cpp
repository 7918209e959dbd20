// backup: the copies that the store keeps of itself.

#include "console/commands/Commands.h"
#include "console/line/CommandLine.h"
#include "console/line/Output.h"
#include "console/terminal/ParameterArgument.h"
#include "console/terminal/Session.h"

#include "copies/StoreCopies.h"

#include <QJsonArray>

#include <optional>

namespace {

const char* const DryRunOption = "dry-run";
const char* const CopyFields = "name, day, path, size (in bytes).";

QJsonObject Json(const StoreCopies::tagCopy& copy)
{
    return {{QLatin1String("name"), copy.name},
            {QLatin1String("day"), copy.day.toString(Qt::ISODate)},
            {QLatin1String("path"), copy.path},
            {QLatin1String("size"), copy.size}};
}

QStringList Row(const StoreCopies::tagCopy& copy) { return {copy.name, QString::number(copy.size)}; }

int RunList(const tagContext& context, const QStringList& arguments)
{
    TCommandLine line(
        QLatin1String("backup list"), QString(),
        QLatin1String(
            "Lists the copies of the parameters, those of the newest day first: name and size in bytes. A copy is "
            "named after its day; one that was made on demand has a number behind it."),
        QLatin1String("cabsettings backup list"));
    line.AddJsonOption(QLatin1String("Prints an array of objects: ") + QLatin1String(CopyFields));
    if (const auto status = line.Read(arguments, 0, 0))
        return *status;
    TSession session;
    if (!session.Open(context, SESSION_STORE))
        return STATUS_FAILED;
    QList<QStringList> rows;
    QJsonArray array;
    for (const StoreCopies::tagCopy& copy : StoreCopies::List(session.Store().Path())) {
        rows.append(Row(copy));
        array.append(Json(copy));
    }
    if (line.WantsJson())
        PrintJson(array);
    else
        PrintTable(rows);
    return STATUS_DONE;
}

int RunNow(const tagContext& context, const QStringList& arguments)
{
    TCommandLine line(QLatin1String("backup now"), QString(),
                      QLatin1String("Makes a copy, waits until it is on the disk, and prints its name and its size in "
                                    "bytes. The last seven copies that were made in this way are kept."),
                      QLatin1String("cabsettings backup now"));
    line.AddJsonOption(QLatin1String("Prints an object: ") + QLatin1String(CopyFields));
    if (const auto status = line.Read(arguments, 0, 0))
        return *status;
    TSession session;
    if (!session.Open(context, SESSION_STORE))
        return STATUS_FAILED;
    StoreCopies::tagCopy made;
    QString error;
    if (!StoreCopies::Make(session.Store(), &made, &error))
        return Fail(error);
    if (line.WantsJson())
        PrintJson(Json(made));
    else
        PrintTable({Row(made)});
    return STATUS_DONE;
}

std::optional<StoreCopies::tagCopy> FindCopy(const QString& storeFile, const QString& name)
{
    for (const StoreCopies::tagCopy& copy : StoreCopies::List(storeFile)) {
        if (copy.name == name)
            return copy;
    }
    return std::nullopt;
}

void PrintDifferences(const QList<StoreCopies::tagDifference>& differences, bool isJson)
{
    QJsonArray array;
    for (const StoreCopies::tagDifference& difference : differences) {
        if (isJson)
            array.append(ChangeJson(difference.parameter, difference.now, difference.then));
        else
            PrintLine(ChangeText(difference.parameter, difference.now, difference.then));
    }
    if (isJson)
        PrintJson(array);
}

int RunRestore(const tagContext& context, const QStringList& arguments)
{
    TCommandLine line(
        QLatin1String("backup restore"), QLatin1String("WHICH"),
        QLatin1String("Gives the parameters the values of a copy, all or none, and prints the changes. WHICH is a name "
                      "that `cabsettings backup list` prints. What belongs to the terminal itself stays as "
                      "it is: its drives, the numbers of its log files, its clock and its identity."),
        QLatin1String("cabsettings backup restore 2026-05-04 --dry-run"));
    line.AddOption(QLatin1String(DryRunOption), QLatin1String("Prints the changes, and makes none."));
    line.AddJsonOption(QLatin1String("Prints an array of objects: number, name, old, oldText, new, newText. Absent "
                                     "values, and the name of a host's own parameter, are null."));
    if (const auto status = line.Read(arguments, 1, 1))
        return *status;
    const QString which = line.Words().first();

    TSession session;
    if (!session.Open(context, SESSION_STORE))
        return STATUS_FAILED;
    const auto copy = FindCopy(session.Store().Path(), which);
    if (!copy)
        return Fail(
            QString::fromLatin1("there is no copy \"%1\"; expected a name that `cabsettings backup list` prints")
                .arg(which));
    QList<StoreCopies::tagDifference> differences;
    QString error;
    const bool isDone = line.IsSet(QLatin1String(DryRunOption))
                            ? StoreCopies::Compare(session.Store(), *copy, &differences, &error)
                            : StoreCopies::Restore(session.Store(), *copy, &differences, &error);
    if (!isDone)
        return Fail(error);
    PrintDifferences(differences, line.WantsJson());
    return STATUS_DONE;
}

const std::vector<tagCommand> Commands = {
    {"list", "Lists the copies of the parameters.", RunList},
    {"now", "Makes a copy.", RunNow},
    {"restore", "Gives the parameters the values of a copy.", RunRestore},
};

} // namespace

int RunBackup(const tagContext& context, const QStringList& arguments)
{
    return Dispatch(QLatin1String("backup"), Commands, context, arguments.mid(1));
}
