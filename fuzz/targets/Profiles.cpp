// Profiles from a stick: reading, and import into the store of a terminal.

#include "profiles/ProfileImport.h"
#include "profiles/TProfile.h"
#include "stores/TSqliteStore.h"
#include "support/FuzzStore.h"
#include "support/FuzzTarget.h"
#include "support/TFuzzInput.h"
#include "support/TFuzzRoom.h"

namespace {

std::optional<TProfile> Read(const QByteArray& text, EProfileEdits edits)
{
    const QString path = TFuzzRoom::Get().Path("tractor.profile");
    FuzzFiles::Make(path, text);
    QStringList problems;
    std::optional<TProfile> profile = TProfile::Read(path, edits, &problems);
    Expect(profile.has_value() == problems.isEmpty(), "a profile is read, or it is said why not",
           problems.join(QLatin1Char(' ')));
    Expect(problems.size() <= 21, "no more than 20 problems are listed");
    for (const QString& problem : problems)
        Expect(!problem.contains(QLatin1Char('\n')), "a problem is one line", problem);
    Expect(FuzzFiles::Content(path) == text, "reading changes nothing");
    return profile;
}

/// The values that an import does not change are those of before.
void CheckImport(const TProfile& profile, const ProfileImport::tagOptions& options)
{
    const QString path = tagFuzzStore::Get().Place();
    QString error;
    auto store = TSqliteStore::Open(path, &error);
    Expect(store != nullptr, "the store opens", error);
    QMap<int, QVariant> expected = store->Values();
    const ProfileImport::tagResult compared = ProfileImport::Compare(profile, *store, path, options);
    Expect(store->Values() == expected && !compared.isApplied, "a comparison changes nothing");
    const ProfileImport::tagResult result = ProfileImport::Apply(profile, *store, path, options);
    if (!result.isApplied) {
        Expect(store->Values() == expected, "an import that is refused changes nothing", result.error);
        Expect(!result.error.isEmpty() || !result.conflicts.isEmpty(), "it is said why an import is refused");
        return;
    }
    Expect(result.changes.size() == compared.changes.size(), "an import changes what the comparison has told");
    for (const ProfileImport::tagChange& change : result.changes) {
        Expect(options.groups.contains(ProfileGroups::Of(change.parameter->name)), "only selected groups change");
        const QVariant value = store->GetParameter(static_cast<EParamID>(change.parameter->id));
        Expect(TParameterCatalogue::Text(*change.parameter, value) == change.theirs, "a value is that of the profile");
        expected[change.parameter->id] = value;
    }
    Expect(store->Values() == expected, "nothing else changes");
    store.reset();
    store = TSqliteStore::Open(path, &error);
    Expect(store && store->Values() == expected, "what was imported is on the disk", error);
}

void Check(const QByteArray& bytes)
{
    TFuzzInput input(bytes);
    const int choice = input.Byte();
    const QByteArray text = input.Rest();
    const auto whole = Read(text, PROFILE_EDITS_REFUSED);
    const auto profile = Read(text, PROFILE_EDITS_ACCEPTED);
    Expect(profile || !whole, "a profile that was not edited is accepted as an edited one");
    if (!profile)
        return;
    const QByteArray written = profile->Text();
    const auto again = Read(written, PROFILE_EDITS_REFUSED);
    Expect(again && again->Text() == written, "what was written reads back the same");

    ProfileImport::tagOptions options;
    options.resolution = static_cast<ProfileImport::EResolution>(choice % 3);
    if ((choice & 4) != 0)
        options.groups = ProfileGroups::All();
    CheckImport(*profile, options);
}

QList<QByteArray> Seeds()
{
    const QString path = tagFuzzStore::Get().Place();
    QString error;
    const auto store = TSqliteStore::Open(path, &error);
    Expect(store != nullptr, "the store opens", error);
    store->SetParameter(PARAM_METRIC, false, true);
    QList<QByteArray> seeds;
    int choice = 0;
    for (const QString& group : ProfileGroups::All())
        seeds.append(TFuzzSeed().Byte(choice++).Rest(TProfile::Of(*store, {group}, QLatin1String("2.1.4-r7")).Text()));
    return seeds;
}

} // namespace

namespace FuzzTargets {

tagFuzzTarget Profiles() { return {"Profiles", Check, Seeds}; }

} // namespace FuzzTargets
