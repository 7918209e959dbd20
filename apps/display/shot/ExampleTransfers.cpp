#include "display/shot/ExampleTransfers.h"

#include "parameters/HostParameters.h"
#include "platform/EParamID.h"
#include "profiles/ProfileGroups.h"
#include "profiles/ProfileImport.h"
#include "profiles/TProfile.h"
#include "region/TRegionSettingsProxy.h"
#include "stores/TSqliteStore.h"

#include <QCoreApplication>
#include <QDate>
#include <QTemporaryDir>
#include <QVariantMap>

#include <memory>

namespace {

const double Progress = 0.4;
const int LogFiles = 12;
const int ChangedSettings = 4;
const QLatin1String ProblemKey("example-transfer");
const QLatin1String Identity("6ba7b810-9dad-41d1-80b4-00c04fd430c8");
const QLatin1String ProfileName("Tractor_North");
const QDate ProfileDay(2024, 4, 28);

const int BacklightBefore = 30; ///< percent, of both terminals once
const int BacklightOurs = 45;
const int BacklightTheirs = 60;

/// The module's own sentence, in the language of the display.
QString Sentence(const char* text) { return QCoreApplication::translate("Transfer", text); }

/// While @p isThere, a stick is plugged in.
void Show(bool isThere, const tagShownTransfer& transfer)
{
    tagShownDrives drives = ExampleTransfers::Drives();
    if (!isThere)
        drives.stick.reset();
    CabQuick::ShowDrives(drives);
    CabQuick::ShowTransfer(isThere ? transfer : tagShownTransfer());
}

/// The module says a failed export in its list of problems, too.
void ShowFailed(bool isThere, const QString& error)
{
    Show(isThere, {{}, error, {}, {}});
    if (isThere)
        CabQuick::SetProblem(ProblemKey, error);
    else
        CabQuick::ClearProblem(ProblemKey);
}

TProfile ProfileOf(TSqliteStore& store) { return TProfile::Of(store, ProfileGroups::All(), QStringLiteral("1")); }

/// Writes a profile of another terminal into a folder. The backlight is taken from that terminal first, and changed on
/// both sides since, so it is in conflict; the other differences are changes.
/// @return the path of the profile.
QString WriteProfile(TSqliteStore& store, const QTemporaryDir& folder)
{
    QString error;
    const auto other = TSqliteStore::Open(folder.filePath(QStringLiteral("settings.db")), &error);
    if (!other)
        return {};
    other->SetParameter(PARAM_TERMINAL_IDENTITY, Identity, true);
    other->SetParameter(PARAM_BACKLIGHT_NIGHT_LEVEL, BacklightBefore, true);
    ProfileImport::Apply(ProfileOf(*other), store, store.Path(), {});
    store.SetParameter(PARAM_BACKLIGHT_NIGHT_LEVEL, BacklightOurs, true);

    other->SetParameter(PARAM_BACKLIGHT_NIGHT_LEVEL, BacklightTheirs, true);
    for (const EParamID id : {PARAM_METRIC, PARAM_HEADING_UP})
        other->SetParameter(id, !store.GetParameter(id).toBool(), true);
    for (const EParamID id : {PARAM_AREA_UNIT, PARAM_PRESSURE_UNIT})
        other->SetParameter(id, store.GetParameter(id).toInt() == 0 ? 1 : 0, true);
    const QString path = folder.filePath(ProfileName + QLatin1String(".profile"));
    return ProfileOf(*other).Write(path, &error) ? path : QString();
}

QVariantMap Row(const QString& file, const QString& name, const QString& text)
{
    return {{QStringLiteral("file"), file}, {QStringLiteral("name"), name}, {QStringLiteral("text"), text}};
}

QVariantList Profiles(const QString& file)
{
    const QString day = QLatin1String(", ") + TRegionSettingsProxy().GetDateString(ProfileDay);
    return {Row(file, ProfileName, Sentence("Another display") + day),
            Row(QString(), QStringLiteral("Backup"), Sentence("This display") + day),
            Row(QString(), QStringLiteral("damaged"), Sentence("It cannot be used."))};
}

/// The profiles with a transfer in place of the real one.
void ShowImport(TSqliteStore& store, bool isThere, tagShownTransfer transfer)
{
    static std::unique_ptr<QTemporaryDir> folder;
    static QVariant backlight;
    if (isThere) {
        folder = std::make_unique<QTemporaryDir>();
        backlight = store.GetParameter(PARAM_BACKLIGHT_NIGHT_LEVEL);
        transfer.profiles = Profiles(WriteProfile(store, *folder));
    } else {
        folder.reset();
        store.SetParameter(PARAM_BACKLIGHT_NIGHT_LEVEL, backlight, true);
    }
    Show(isThere, transfer);
}

} // namespace

tagShownDrives ExampleTransfers::Drives()
{
    return {{28000000000, 12300000000}, tagSpace{8000000000, 7400000000}, {2000000000, 1400000000}, 0.2};
}

void ExampleTransfers::SetRunning(TSqliteStore& /*store*/, bool isThere) { Show(isThere, {Progress, {}, {}, {}}); }

void ExampleTransfers::SetLogsDone(TSqliteStore& /*store*/, bool isThere)
{
    Show(isThere, {{}, {}, Sentence("The logs are on the stick (files: %1).").arg(QString::number(LogFiles)), {}});
}

void ExampleTransfers::SetLogsFailed(TSqliteStore& /*store*/, bool isThere)
{
    ShowFailed(isThere, Sentence("The stick was removed before everything was on it."));
}

void ExampleTransfers::SetProfileDone(TSqliteStore& /*store*/, bool isThere)
{
    const QString file = ProfileName + QLatin1String(".profile");
    Show(isThere, {{}, {}, Sentence("The profile is on the stick: %1.").arg(file), Profiles({})});
}

void ExampleTransfers::SetProfileFailed(TSqliteStore& /*store*/, bool isThere)
{
    ShowFailed(isThere, Sentence("The stick could not be written to the end."));
}

void ExampleTransfers::SetProfiles(TSqliteStore& store, bool isThere) { ShowImport(store, isThere, {}); }

void ExampleTransfers::SetImportRunning(TSqliteStore& store, bool isThere)
{
    ShowImport(store, isThere, {Progress, {}, {}, {}});
}

void ExampleTransfers::SetImportDone(TSqliteStore& store, bool isThere)
{
    const QString done =
        Sentence("The profile is imported (settings changed: %1).").arg(QString::number(ChangedSettings));
    ShowImport(store, isThere, {{}, {}, done, {}});
}

void ExampleTransfers::SetImportFailed(TSqliteStore& store, bool isThere)
{
    const QString reason = Sentence("Nothing is imported: some settings were changed here and in the profile.");
    ShowImport(store, isThere, {{}, reason, {}, {}});
}
