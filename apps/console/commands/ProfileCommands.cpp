// export and import: the settings of a terminal in a file.

#include "console/commands/Commands.h"
#include "console/line/CommandLine.h"
#include "console/line/Messages.h"
#include "console/line/Output.h"
#include "console/terminal/Session.h"

#include "parameters/ParameterText.h"
#include "profiles/ProfileGroups.h"
#include "profiles/ProfileImport.h"
#include "profiles/TProfile.h"
#include "terminal/DataFolder.h"

#include <QJsonArray>
#include <QJsonObject>

#include <optional>

namespace {

const char* const GroupsOption = "groups";
const char* const DryRunOption = "dry-run";
const char* const OursOption = "ours";
const char* const TheirsOption = "theirs";
const char* const EditedOption = "edited";

/// "1 parameter", "2 parameters"
QString Counted(int count, const char* word)
{
    return QString::fromLatin1(count == 1 ? "%1 %2" : "%1 %2s").arg(count).arg(QLatin1String(word));
}

void AddGroupsOption(TCommandLine* line, const QString& description, const QStringList& defaults)
{
    line->AddOption(QLatin1String(GroupsOption),
                    QString::fromLatin1("%1, separated by commas: %2.")
                        .arg(description, ParameterText::Alternatives(ProfileGroups::All())),
                    QLatin1String("GROUPS"), defaults.join(QLatin1Char(',')));
}

/// The groups that were asked for. Nothing, after a message, when one is unknown.
std::optional<QStringList> Groups(const TCommandLine& line)
{
    const QStringList groups = line.Value(QLatin1String(GroupsOption)).split(QLatin1Char(','));
    for (const QString& group : groups) {
        if (!ProfileGroups::All().contains(group)) {
            line.Misused(Messages::NotAmong(QLatin1String("group"), group, ProfileGroups::All()));
            return std::nullopt;
        }
    }
    return groups;
}

QString OrNotSet(const std::optional<QString>& text) { return text ? OrNone(*text) : QLatin1String("(not set)"); }

QJsonValue Json(const std::optional<QString>& text) { return text ? QJsonValue(*text) : QJsonValue(); }

QJsonObject BeginJson(const tagParameter& parameter)
{
    return {{QLatin1String("number"), static_cast<int>(parameter.id)}, {QLatin1String("name"), parameter.name}};
}

QJsonArray ChangesJson(const ProfileImport::tagResult& result)
{
    QJsonArray array;
    for (const ProfileImport::tagChange& change : result.changes) {
        QJsonObject object = BeginJson(*change.parameter);
        object.insert(QLatin1String("old"), Json(change.ours));
        object.insert(QLatin1String("new"), change.theirs);
        array.append(object);
    }
    return array;
}

QJsonArray ConflictsJson(const ProfileImport::tagResult& result)
{
    QJsonArray array;
    for (const ProfileImport::tagConflict& conflict : result.conflicts) {
        QJsonObject object = BeginJson(*conflict.parameter);
        object.insert(QLatin1String("ours"), Json(conflict.ours));
        object.insert(QLatin1String("theirs"), conflict.theirs);
        object.insert(QLatin1String("base"), conflict.base);
        array.append(object);
    }
    return array;
}

QJsonObject OriginJson(const tagProfileOrigin& origin)
{
    return {{QLatin1String("terminal"), origin.terminal},
            {QLatin1String("software"), origin.software},
            {QLatin1String("time"), origin.time},
            {QLatin1String("timeSource"), origin.timeSource}};
}

void PrintResultJson(const TProfile& profile, const ProfileImport::tagResult& result)
{
    PrintJson(QJsonObject{{QLatin1String("format"), profile.Format()},
                          {QLatin1String("origin"), OriginJson(profile.Origin())},
                          {QLatin1String("changes"), ChangesJson(result)},
                          {QLatin1String("conflicts"), ConflictsJson(result)},
                          {QLatin1String("ignored"), QJsonArray::fromStringList(profile.Ignored())},
                          {QLatin1String("notSelected"), result.notSelected},
                          {QLatin1String("applied"), result.isApplied}});
}

void PrintChanges(const QList<ProfileImport::tagChange>& changes)
{
    if (changes.isEmpty())
        return;
    QList<QStringList> rows{{QLatin1String("Parameter"), QLatin1String("Old"), QLatin1String("New")}};
    for (const ProfileImport::tagChange& change : changes)
        rows.append({change.parameter->name, OrNotSet(change.ours), OrNone(change.theirs)});
    PrintTable(rows);
}

void PrintConflicts(const QList<ProfileImport::tagConflict>& conflicts)
{
    if (conflicts.isEmpty())
        return;
    QList<QStringList> rows{
        {QLatin1String("Conflict"), QLatin1String("Ours"), QLatin1String("Theirs"), QLatin1String("Base")}};
    for (const ProfileImport::tagConflict& conflict : conflicts)
        rows.append(
            {conflict.parameter->name, OrNotSet(conflict.ours), OrNone(conflict.theirs), OrNone(conflict.base)});
    PrintTable(rows);
}

void PrintResult(const TProfile& profile, const ProfileImport::tagResult& result, bool isDryRun)
{
    PrintConflicts(result.conflicts);
    PrintChanges(result.changes);
    for (const QString& ignored : profile.Ignored())
        PrintLine(QLatin1String("Ignored: ") + ignored);
    if (result.isApplied || isDryRun) {
        const QString others =
            result.notSelected == 0 ? QString() : QString::fromLatin1("; %1 of other groups").arg(result.notSelected);
        PrintLine(QString::fromLatin1("%1 %2%3").arg(Counted(static_cast<int>(result.changes.size()), "parameter"),
                                                     QLatin1String(isDryRun ? "to change" : "changed"), others));
    }
}

/// How conflicts are resolved. Nothing, after a message, when both sides are asked for.
std::optional<ProfileImport::EResolution> Resolution(const TCommandLine& line)
{
    const bool isOurs = line.IsSet(QLatin1String(OursOption));
    const bool isTheirs = line.IsSet(QLatin1String(TheirsOption));
    if (isOurs && isTheirs) {
        line.Misused(QLatin1String("unexpected --theirs beside --ours; expected one of them"));
        return std::nullopt;
    }
    if (isOurs)
        return ProfileImport::RESOLUTION_OURS;
    return isTheirs ? ProfileImport::RESOLUTION_THEIRS : ProfileImport::RESOLUTION_NONE;
}

int FailEach(const QStringList& problems)
{
    for (const QString& problem : problems)
        Fail(problem);
    return STATUS_FAILED;
}

int Import(const tagContext& context, const TProfile& profile, const ProfileImport::tagOptions& options,
           const TCommandLine& line)
{
    TSession session;
    if (!session.Open(context, SESSION_STORE))
        return STATUS_FAILED;
    const bool isDryRun = line.IsSet(QLatin1String(DryRunOption));
    const auto& run = isDryRun ? ProfileImport::Compare : ProfileImport::Apply;
    const ProfileImport::tagResult result =
        run(profile, session.Store(), DataFolder::StoreFile(context.dataFolder), options);
    if (!result.error.isEmpty())
        return Fail(QString::fromLatin1("nothing is imported: %1").arg(result.error));
    if (line.WantsJson())
        PrintResultJson(profile, result);
    else
        PrintResult(profile, result, isDryRun);
    if (result.conflicts.isEmpty() || options.resolution != ProfileImport::RESOLUTION_NONE)
        return STATUS_DONE;
    return Fail(QString::fromLatin1("nothing is imported: %1; --ours keeps the values of this terminal, --theirs takes "
                                    "those of the profile")
                    .arg(Counted(static_cast<int>(result.conflicts.size()), "conflict")));
}

} // namespace

int RunExport(const tagContext& context, const QStringList& arguments)
{
    TCommandLine line(QLatin1String("export"), QLatin1String("FILE"),
                      QLatin1String("Writes the parameters to a profile, a file that people can read and edit and that "
                                    "`cabsettings import` takes to this terminal or to another one. A file of that "
                                    "name is replaced. When the command has ended, the file is on the drive."),
                      QLatin1String("cabsettings export /media/stick/tractor.profile"));
    AddGroupsOption(&line, QLatin1String("Groups to export"), ProfileGroups::All());
    line.AddJsonOption(QLatin1String("Prints an object: file, groups, origin, parameters (their number), leftOut."));
    if (const auto status = line.Read(arguments, 1, 1))
        return *status;
    const auto groups = Groups(line);
    if (!groups)
        return STATUS_MISUSED;

    TSession session;
    if (!session.Open(context, SESSION_STORE))
        return STATUS_FAILED;
    const QString file = line.Words().first();
    const TProfile profile = TProfile::Of(session.Store(), *groups, QLatin1String(CABSETTINGS_VERSION));
    QString reason;
    if (!profile.Write(file, &reason))
        return Fail(reason);
    const int count = static_cast<int>(profile.Parameters().size());
    if (line.WantsJson()) {
        PrintJson(QJsonObject{{QLatin1String("file"), file},
                              {QLatin1String("groups"), QJsonArray::fromStringList(*groups)},
                              {QLatin1String("origin"), OriginJson(profile.Origin())},
                              {QLatin1String("parameters"), count},
                              {QLatin1String("leftOut"), QJsonArray::fromStringList(profile.LeftOut())}});
        return STATUS_DONE;
    }
    for (const QString& leftOut : profile.LeftOut())
        PrintLine(QLatin1String("Left out: ") + leftOut);
    PrintLine(Counted(count, "parameter") + QLatin1String(" exported"));
    return STATUS_DONE;
}

int RunImport(const tagContext& context, const QStringList& arguments)
{
    TCommandLine line(QLatin1String("import"), QLatin1String("FILE"),
                      QLatin1String("Imports a profile: prints each parameter that changes, with its old and its new "
                                    "value, and changes all of them or none. A parameter that was changed here and is "
                                    "different in the profile is a conflict; nothing is imported then, unless --ours "
                                    "or --theirs tells which value to take."),
                      QLatin1String("cabsettings import /media/stick/tractor.profile --dry-run"));
    AddGroupsOption(&line, QLatin1String("Groups to import"), ProfileGroups::ImportedByDefault());
    line.AddOption(QLatin1String(DryRunOption), QLatin1String("Prints what would change, and changes nothing."));
    line.AddOption(QLatin1String(OursOption), QLatin1String("Keeps the values of this terminal in conflicts."));
    line.AddOption(QLatin1String(TheirsOption), QLatin1String("Takes the values of the profile in conflicts."));
    line.AddOption(QLatin1String(EditedOption), QLatin1String("Accepts a file that was edited after its export."));
    line.AddJsonOption(QLatin1String("Prints an object: format, origin, changes (number, name, old, new), conflicts "
                                     "(number, name, ours, theirs, base), ignored, notSelected, applied."));
    if (const auto status = line.Read(arguments, 1, 1))
        return *status;
    const auto groups = Groups(line);
    const auto resolution = groups ? Resolution(line) : std::nullopt;
    if (!resolution)
        return STATUS_MISUSED;

    QStringList problems;
    const EProfileEdits edits =
        line.IsSet(QLatin1String(EditedOption)) ? PROFILE_EDITS_ACCEPTED : PROFILE_EDITS_REFUSED;
    const auto profile = TProfile::Read(line.Words().first(), edits, &problems);
    if (!profile)
        return FailEach(problems);
    ProfileImport::tagOptions options;
    options.groups = *groups;
    options.resolution = *resolution;
    return Import(context, *profile, options, line);
}
