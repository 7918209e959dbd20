// fields: the group of its commands; clients, farms, fields and jobs on the drives.

#include "console/commands/FieldsCommand.h"

#include "console/commands/Commands.h"
#include "console/line/CommandLine.h"
#include "console/line/Output.h"
#include "console/terminal/FieldArgument.h"
#include "console/terminal/Session.h"

#include "fields/FieldPath.h"

#include <QJsonArray>
#include <QJsonObject>

namespace {

const QLatin1String ForceOption("force");
const QLatin1String OnOption("on");
const QLatin1String PathWord("PATH");
const QLatin1String PathHelp("PATH is CLIENT[/FARM[/FIELD[/JOB]]].");
const QLatin1String PathJson("Prints an object: kind, path.");

QJsonObject Json(const QStringList& path)
{
    return {{QLatin1String("kind"), FieldPath::Kind(path)}, {QLatin1String("path"), FieldPath::Text(path)}};
}

QJsonObject Json(const tagFieldItem& item)
{
    QJsonObject object = Json(item.path);
    object.insert(QLatin1String("files"), item.files);
    object.insert(QLatin1String("bytes"), item.bytes);
    object.insert(QLatin1String("active"), item.isActive);
    return object;
}

void PrintItems(const QList<tagFieldItem>& items)
{
    QList<QStringList> rows = {
        {QLatin1String("path"), QLatin1String("kind"), QLatin1String("files"), QLatin1String("bytes")}};
    for (const tagFieldItem& item : items) {
        rows.append({Harmless(FieldPath::Text(item.path)), FieldPath::Kind(item.path), QString::number(item.files),
                     QString::number(item.bytes)});
        if (item.isActive)
            rows.last().append(QLatin1String("active"));
    }
    PrintTable(rows);
}

int RunFieldsList(const tagContext& context, const QStringList& arguments)
{
    TCommandLine line(
        QLatin1String("fields list"), QLatin1String("[PATH]"),
        QLatin1String("Lists clients, farms, fields and jobs, with the number and the size of the files in "
                      "them. ") +
            PathHelp + QLatin1String(" With PATH, lists that item and what is in it."),
        QLatin1String("cabsettings fields list Smith/North"));
    line.AddOption(OnOption, QLatin1String("Lists what is on this drive: internal or stick."), QLatin1String("DRIVE"),
                   QLatin1String("internal"));
    line.AddJsonOption(QLatin1String("Prints an array of objects: kind, path, files, bytes, active (the item is "
                                     "selected, or holds what is selected)."));
    OfferFieldPaths(line, context, OnOption);
    if (const auto status = line.Read(arguments, 0, 1))
        return *status;
    const auto drive = FieldDriveNames::Read(line, OnOption);
    const QStringList path = line.Words().isEmpty() ? QStringList() : ReadFieldPath(line);
    if (!drive || (path.isEmpty() && !line.Words().isEmpty()))
        return STATUS_MISUSED;

    TSession session;
    if (!session.Open(context, SESSION_TERMINAL))
        return STATUS_FAILED;
    QList<tagFieldItem> items;
    QString error;
    if (TFieldTree(session.Store()).List(*drive, path, &items, &error) != FIELD_DONE)
        return Fail(Harmless(error));
    if (!line.WantsJson()) {
        PrintItems(items);
        return STATUS_DONE;
    }
    QJsonArray array;
    for (const tagFieldItem& item : items)
        array.append(Json(item));
    PrintJson(array);
    return STATUS_DONE;
}

int RunFieldsAdd(const tagContext& context, const QStringList& arguments)
{
    TCommandLine line(QLatin1String("fields add"), PathWord,
                      QLatin1String("Adds a client, a farm, a field or a job, and those above it that are missing. ") +
                          PathHelp +
                          QLatin1String(" Refuses a name that a stick takes for that of a neighbour: a stick ignores "
                                        "letter case."),
                      QLatin1String("cabsettings fields add \"Smith/North/Field 1\""));
    line.AddJsonOption(PathJson);
    OfferFieldPaths(line, context);
    if (const auto status = line.Read(arguments, 1, 1))
        return *status;
    const QStringList path = ReadFieldPath(line);
    if (path.isEmpty())
        return STATUS_MISUSED;

    TSession session;
    if (!session.Open(context, SESSION_TERMINAL))
        return STATUS_FAILED;
    QString error;
    if (TFieldTree(session.Store()).Add(path, &error) != FIELD_DONE)
        return Fail(Harmless(error));
    if (line.WantsJson())
        PrintJson(Json(path));
    return STATUS_DONE;
}

int RunFieldsRename(const tagContext& context, const QStringList& arguments)
{
    TCommandLine line(
        QLatin1String("fields rename"), QLatin1String("PATH NAME"),
        QLatin1String("Renames a client, a farm, a field or a job, and the files in it that have its name. "
                      "When it is selected, it stays selected. ") +
            PathHelp,
        QLatin1String("cabsettings fields rename Smith/North \"North farm\""));
    line.AddJsonOption(QLatin1String("Prints an object: kind, path (the new one), before (the old one)."));
    OfferFieldPaths(line, context);
    if (const auto status = line.Read(arguments, 2, 2))
        return *status;
    const QStringList path = ReadFieldPath(line);
    if (path.isEmpty())
        return STATUS_MISUSED;
    const QString name = line.Words().at(1);
    QString error;
    if (!FieldPath::IsName(path, name, &error))
        return line.Misused(error);

    TSession session;
    if (!session.Open(context, SESSION_TERMINAL))
        return STATUS_FAILED;
    if (TFieldTree(session.Store()).Rename(path, name, &error) != FIELD_DONE)
        return Fail(Harmless(error));
    if (line.WantsJson()) {
        QJsonObject object = Json(path.mid(0, path.size() - 1) + QStringList(name));
        object.insert(QLatin1String("before"), FieldPath::Text(path));
        PrintJson(object);
    }
    return STATUS_DONE;
}

int RunFieldsRemove(const tagContext& context, const QStringList& arguments)
{
    TCommandLine line(QLatin1String("fields remove"), PathWord,
                      QLatin1String("Removes a client, a farm, a field or a job with everything in it. ") + PathHelp +
                          QLatin1String(" Refuses what holds files and what is selected."),
                      QLatin1String("cabsettings fields remove Smith/North/F1/J_1 --force"));
    line.AddOption(ForceOption,
                   QLatin1String("Removes it all the same. When it was selected, nothing is selected in its "
                                 "place."));
    line.AddJsonOption(PathJson);
    OfferFieldPaths(line, context);
    if (const auto status = line.Read(arguments, 1, 1))
        return *status;
    const QStringList path = ReadFieldPath(line);
    if (path.isEmpty())
        return STATUS_MISUSED;

    TSession session;
    if (!session.Open(context, SESSION_TERMINAL))
        return STATUS_FAILED;
    QString error;
    const EFieldResult result = TFieldTree(session.Store()).Remove(path, line.IsSet(ForceOption), &error);
    if (result != FIELD_DONE)
        return FailFields(result, error, "removes it");
    if (line.WantsJson())
        PrintJson(Json(path));
    return STATUS_DONE;
}

const std::vector<tagCommand> Commands = {
    {"list", "Lists clients, farms, fields and jobs.", RunFieldsList},
    {"add", "Adds one.", RunFieldsAdd},
    {"rename", "Renames one.", RunFieldsRename},
    {"remove", "Removes one with everything in it.", RunFieldsRemove},
    {"copy", "Copies one to a stick, or from a stick.", RunFieldsCopy},
};

} // namespace

int FailFields(EFieldResult result, const QString& error, const char* withForce)
{
    return Fail(Harmless(
        result == FIELD_REFUSED ? QString::fromLatin1("%1; --force %2").arg(error, QLatin1String(withForce)) : error));
}

int RunFields(const tagContext& context, const QStringList& arguments)
{
    return Dispatch(QLatin1String("fields"), Commands, context, arguments.mid(1));
}
