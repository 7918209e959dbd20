// select and selections: what is active on the display.

#include "console/commands/Commands.h"
#include "console/line/CommandLine.h"
#include "console/line/Messages.h"
#include "console/line/Output.h"
#include "console/terminal/Session.h"
#include "terminal/ActiveItems.h"

#include <QJsonArray>
#include <QJsonObject>

namespace {

QJsonObject Json(const tagParameter& item)
{
    const QString path = ActiveItems::Path(item);
    return {{QLatin1String("kind"), ActiveItems::Kind(item)},
            {QLatin1String("name"), ActiveItems::Name(item)},
            {QLatin1String("path"), path.isEmpty() ? QJsonValue() : QJsonValue(path)}};
}

} // namespace

int RunSelect(const tagContext& context, const QStringList& arguments)
{
    TCommandLine line(QLatin1String("select"), QLatin1String("KIND [NAME]"),
                      QString::fromLatin1("Selects an item, as the operator does; an empty NAME clears the selection. "
                                          "Without NAME, prints the selected item. KIND is one of: %1.")
                          .arg(ActiveItems::Kinds().join(QLatin1String(", "))),
                      QLatin1String("cabsettings select job \"North 40\""));
    line.AddJsonOption(QLatin1String("Prints an object: kind, name, path (the item's file, null without one). Creates "
                                     "the item's folder, as the display does."));
    if (const auto status = line.Read(arguments, 1, 2))
        return *status;
    const QString kind = line.Words().first();
    const tagParameter* const item = ActiveItems::Find(kind);
    if (!item)
        return line.Misused(Messages::NotAmong(QLatin1String("kind"), kind, ActiveItems::Kinds()));
    const bool isGiven = line.Words().size() > 1;
    const QString name = line.Words().value(1);
    QString error;
    if (isGiven && !TParameterCatalogue::Read(*item, name, &error).isValid())
        return line.Misused(error);

    TSession session;
    if (!session.Open(context, SESSION_TERMINAL))
        return STATUS_FAILED;
    if (isGiven && !ActiveItems::Select(session.Store(), *item, name))
        return Fail(QString::fromLatin1("cannot store the %1").arg(kind));
    if (line.WantsJson())
        PrintJson(Json(*item));
    else if (!isGiven)
        PrintLine(ActiveItems::Name(*item));
    return STATUS_DONE;
}

int RunSelections(const tagContext& context, const QStringList& arguments)
{
    TCommandLine line(QLatin1String("selections"), QString(),
                      QLatin1String("Lists the selected items by kind, with the paths of their files. Creates the "
                                    "items' folders, as the display does."),
                      QLatin1String("cabsettings selections"));
    line.AddJsonOption(QLatin1String(
        "Prints an array of objects: kind, name (empty when nothing is selected), path (null without one)."));
    if (const auto status = line.Read(arguments, 0, 0))
        return *status;

    TSession session;
    if (!session.Open(context, SESSION_TERMINAL))
        return STATUS_FAILED;
    const QList<const tagParameter*> items = ActiveItems::All();
    if (line.WantsJson()) {
        QJsonArray array;
        for (const tagParameter* item : items)
            array.append(Json(*item));
        PrintJson(array);
        return STATUS_DONE;
    }
    QList<QStringList> rows = {{QLatin1String("kind"), QLatin1String("name"), QLatin1String("path")}};
    for (const tagParameter* item : items)
        rows.append({ActiveItems::Kind(*item), OrNone(ActiveItems::Name(*item)), OrNone(ActiveItems::Path(*item))});
    PrintTable(rows);
    return STATUS_DONE;
}
