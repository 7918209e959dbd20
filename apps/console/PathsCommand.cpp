// paths: where the files of a client, farm, field and job lie.

#include "Command.h"
#include "CommandLine.h"
#include "Output.h"
#include "Session.h"

#include "system/TSystemSettingsProxy.h"

namespace {

struct tagNames
{
    QString client;
    QString farm;
    QString field;
    QString job;
};

struct tagPath
{
    const char* title;
    QString (*path)(const TSystemSettingsProxy& system, const tagNames& names);
};

using Proxy = TSystemSettingsProxy;

const tagPath Paths[] = {
    {"job", [](const Proxy& s, const tagNames& n) { return s.GetJobFilePath(n.client, n.farm, n.field, n.job); }},
    {"coverage",
     [](const Proxy& s, const tagNames& n) { return s.GetCoverageFilePath(n.client, n.farm, n.field, n.job); }},
    {"per-point data",
     [](const Proxy& s, const tagNames& n) { return s.GetPerPointDataJobPath(n.client, n.farm, n.field, n.job); }},
    {"area counters",
     [](const Proxy& s, const tagNames& n) { return s.GetAreaCountersPath(n.client, n.farm, n.field, n.job); }},
    {"boundary", [](const Proxy& s, const tagNames& n) { return s.GetBoundaryFilePath(n.client, n.farm, n.field); }},
    {"exclusion zones",
     [](const Proxy& s, const tagNames& n) { return s.GetExclusionZoneShapefilePath(n.client, n.farm, n.field); }},
    {"flag points",
     [](const Proxy& s, const tagNames& n) { return s.GetFlagPointsFilePath(n.client, n.farm, n.field); }},
};

} // namespace

int RunPaths(const tagContext& context, const QStringList& arguments)
{
    TCommandLine line(QLatin1String("paths"), QString(),
                      QLatin1String("Prints where the files of a client, farm, field and job lie. What is not given is "
                                    "taken as empty; a file that means nothing outside a field has then no path."),
                      QLatin1String("cabsettings paths --client Smith --farm North --field F1 --job J_1"));
    for (const char* name : {"client", "farm", "field", "job"})
        line.AddOption(QLatin1String(name), QString::fromLatin1("Name of the %1.").arg(QLatin1String(name)),
                       QLatin1String("NAME"));
    if (const auto status = line.Read(arguments, 0, 0))
        return *status;
    const tagNames names = {line.Value(QLatin1String("client")), line.Value(QLatin1String("farm")),
                            line.Value(QLatin1String("field")), line.Value(QLatin1String("job"))};

    TSession session;
    if (!session.Open(context))
        return STATUS_FAILED;
    const TSystemSettingsProxy system;
    QList<QStringList> rows;
    for (const tagPath& row : Paths) {
        const QString path = row.path(system, names);
        rows.append({QLatin1String(row.title), path.isEmpty() ? QLatin1String("(none without a field)") : path});
    }
    PrintTable(rows);
    return STATUS_DONE;
}
