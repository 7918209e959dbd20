#include "transfer/TransferJobs.h"

#include "fields/TOpenDrive.h"
#include "logs/TLogSeries.h"
#include "logs/TNEMADiagnosticLogProxy.h"
#include "logs/TUserDiagnosticLogProxy.h"
#include "module/CabQuick.h"
#include "parameters/HostParameters.h"
#include "parameters/TParameterCatalogue.h"
#include "platform/TFileSystemHelper.h"
#include "region/TRegionSettingsProxy.h"
#include "settings/ParameterTexts.h"
#include "settings/ParameterTitles.h"
#include "support/SupportBundle.h"
#include "system/TSystemSettings.h"
#include "system/TSystemSettingsProxy.h"
#include "terminal/Storage.h"
#include "texts/HostText.h"
#include "transfer/TransferProblem.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <cerrno>
#include <cstring>

namespace {

const QLatin1String ProfileExtension(".profile");

const char* const ConflictText =
    QT_TRANSLATE_NOOP("Transfer", "Nothing is imported: some settings were changed here and in the profile.");

QString Translated(const char* text) { return QCoreApplication::translate("Transfer", text); }

tagTransferResult Failed(const QString& text) { return {false, text, {}, {}}; }
tagTransferResult Done(const QString& text) { return {true, text, {}, {}}; }

QString SoftwareVersion() { return TSystemSettingsProxy().GetSoftwareVersion(false); }

tagTransferResult RunOnStick(const std::function<tagTransferResult(const TOpenDrive& stick)>& work)
{
    const tagDriveSpace drive = Storage::Stick();
    if (!drive.isMounted)
        return Failed(Translated(QT_TRANSLATE_NOOP("Transfer", "No stick is plugged in.")));
    const TOpenDrive stick(drive.path);
    tagTransferResult result = work(stick);
    const bool isSynced = !result.isDone || stick.Sync();
    if (!stick.IsThere())
        return Failed(Translated(QT_TRANSLATE_NOOP("Transfer", "The stick was removed before everything was on it.")));
    if (!isSynced)
        return Failed(Translated(QT_TRANSLATE_NOOP("Transfer", "The stick could not be written to the end.")));
    result.text = stick.Readable(result.text);
    return result;
}

/// Does the work and says in the list of problems how it has failed, whether or not a page still shows the transfer.
tagTransferResult OnStick(const std::function<tagTransferResult(const TOpenDrive& stick)>& work)
{
    CabQuick::ClearProblem(NoStickProblem);
    CabQuick::ClearProblem(StickProblem);
    tagTransferResult result = RunOnStick(work);
    if (!result.isDone)
        CabQuick::SetProblem(Storage::Stick().isMounted ? StickProblem : NoStickProblem, result.text);
    return result;
}

struct tagLogFile
{
    QString path;
    QString name;
    qint64 size;
};

/// False when these may not be all: @p problem is the sentence that says why.
bool AppendFiles(const QString& basePath, QList<tagLogFile>* files, QString* problem)
{
    const TLogSeries series(basePath);
    std::vector<TLogSeries::tagFile> found;
    if (!series.ReadFiles(QString(), &found)) {
        const QLatin1String reason(strerrordesc_np(errno)); // in English, as the host gives reasons
        *problem =
            CabQuick::HostText(QString::fromLatin1("cannot read \"%1\": %2").arg(QFileInfo(basePath).path(), reason));
        return false;
    }
    for (const TLogSeries::tagFile& file : found)
        files->append({series.GetPath(file.name), file.name, file.size});
    return true;
}

/// One file after the other, so that the logs can be written meanwhile. A file that its log has given up since is
/// passed over.
tagTransferResult CopyLogs(const TOpenDrive& stick, const TTransferProgress& progress)
{
    TUserDiagnosticLogProxy userLog;
    TNEMADiagnosticLogProxy nmeaLog;
    userLog.FlushTempBuffer();
    nmeaLog.FlushTempBuffer();
    QList<tagLogFile> files;
    QString problem;
    if (!AppendFiles(TSystemSettingsProxy().GetInternalUserLogPath(), &files, &problem) ||
        !AppendFiles(TSystemSettingsProxy().GetInternalNemaLogPath(), &files, &problem))
        return Failed(problem);
    qint64 all = 1;
    for (const tagLogFile& file : files)
        all += file.size;

    const QLatin1String diagnostics(TSystemSettings::DiagnosticsFolder);
    const QString folder = stick.Path(diagnostics);
    if (stick.HasLink(diagnostics) || !QDir().mkpath(folder))
        return Failed(Translated(QT_TRANSLATE_NOOP("Transfer", "The folder %1 cannot be made.")).arg(folder));
    qint64 done = 0;
    for (const tagLogFile& file : files) {
        const QString target = folder + QLatin1Char('/') + file.name;
        if (!TFileSystemHelper::FileCopy(file.path, target, true) && QFileInfo::exists(file.path))
            return Failed(Translated(QT_TRANSLATE_NOOP("Transfer", "The file %1 cannot be written.")).arg(target));
        done += file.size;
        progress(static_cast<double>(done) / static_cast<double>(all));
    }
    return Done(Translated(QT_TRANSLATE_NOOP("Transfer", "The logs are on the stick (files: %1)."))
                    .arg(QString::number(files.size())));
}

/// Texts as the operator reads them.
QVariantMap Row(const tagParameter& parameter, const std::optional<QString>& ours, const QString& theirs,
                const QString& base)
{
    const auto shown = [&parameter](const QString& text) {
        QString error;
        return ParameterTexts::Shown(parameter, TParameterCatalogue::Read(parameter, text, &error));
    };
    return {{QLatin1String("name"), parameter.name},
            {QLatin1String("title"), ParameterTitles::Title(parameter)},
            {QLatin1String("ours"), ours ? shown(*ours) : QString()},
            {QLatin1String("theirs"), shown(theirs)},
            {QLatin1String("base"), base.isNull() ? QString() : shown(base)}};
}

void FillRows(const ProfileImport::tagResult& from, tagTransferResult* to)
{
    for (const ProfileImport::tagChange& change : from.changes)
        to->changes.append(Row(*change.parameter, change.ours, change.theirs, QString()));
    for (const ProfileImport::tagConflict& conflict : from.conflicts)
        to->conflicts.append(Row(*conflict.parameter, conflict.ours, conflict.theirs, conflict.base));
}

using FImport = ProfileImport::tagResult (*)(const TProfile& profile, TSqliteStore& store, const QString& storeFile,
                                             const ProfileImport::tagOptions& options);

tagTransferResult ReadProfile(TSqliteStore& store, const QString& file, FImport import,
                              ProfileImport::EResolution resolution)
{
    QStringList problems;
    const auto profile = TProfile::Read(file, PROFILE_EDITS_REFUSED, &problems);
    if (!profile)
        return Failed(Translated(QT_TRANSLATE_NOOP("Transfer", "The profile cannot be used. %1"))
                          .arg(CabQuick::HostText(problems.first())));
    ProfileImport::tagOptions options;
    options.resolution = resolution;
    const ProfileImport::tagResult imported = import(*profile, store, store.Path(), options);
    if (!imported.error.isEmpty())
        return Failed(Translated(QT_TRANSLATE_NOOP("Transfer", "Nothing is imported. %1"))
                          .arg(CabQuick::HostText(imported.error)));
    tagTransferResult result;
    result.isDone = true;
    FillRows(imported, &result);
    return result;
}

/// Where a profile is from and of which day it is, as far as the file says.
QString OriginText(const tagProfileOrigin& origin, const QString& identity)
{
    const bool isOwn = !identity.isEmpty() && origin.terminal == identity;
    const QString from = isOwn ? Translated(QT_TRANSLATE_NOOP("Transfer", "This display"))
                               : Translated(QT_TRANSLATE_NOOP("Transfer", "Another display"));
    const QDateTime time = QDateTime::fromString(origin.time, Qt::ISODate);
    return time.isValid() ? from + QLatin1String(", ") + TRegionSettingsProxy().GetDateString(time.date()) : from;
}

} // namespace

tagTransferResult TransferJobs::ExportLogs(const TTransferProgress& progress)
{
    return OnStick([&progress](const TOpenDrive& stick) { return CopyLogs(stick, progress); });
}

tagTransferResult TransferJobs::ExportProfile(TSqliteStore& store, const QString& name, const QStringList& groups)
{
    return OnStick([&](const TOpenDrive& stick) {
        const TProfile profile =
            TProfile::Of(store, groups.isEmpty() ? ProfileGroups::All() : groups, SoftwareVersion());
        const QString file = ProfileFileName(name);
        QString reason;
        if (!profile.Write(stick.Path(file), &reason))
            return Failed(Translated(QT_TRANSLATE_NOOP("Transfer", "The profile is not on the stick. %1"))
                              .arg(CabQuick::HostText(reason)));
        return Done(Translated(QT_TRANSLATE_NOOP("Transfer", "The profile is on the stick: %1.")).arg(file));
    });
}

tagTransferResult TransferJobs::WriteSupport(TSqliteStore& store, const QString& dataFolder, bool isAnonymous,
                                             const TTransferProgress& progress)
{
    return OnStick([&](const TOpenDrive& stick) {
        const QString file =
            QString::fromLatin1("support_%1.zip").arg(TRegionSettingsProxy().GetDateTimeStringWithSeconds());
        const tagSupportRequest request = {dataFolder, SoftwareVersion(), isAnonymous};
        const auto tell = [&progress](const QString&, int number, int count) {
            progress(static_cast<double>(number) / std::max(1, count));
        };
        tagSupportBundle bundle;
        QString error;
        if (!WriteSupportBundle(store, stick.Path(file), request, tell, &bundle, &error))
            return Failed(Translated(QT_TRANSLATE_NOOP("Transfer", "The file for support is not on the stick. %1"))
                              .arg(CabQuick::HostText(error)));
        return Done(Translated(QT_TRANSLATE_NOOP("Transfer", "The file for support is on the stick: %1.")).arg(file));
    });
}

tagTransferResult TransferJobs::CompareProfile(TSqliteStore& store, const QString& file)
{
    return ReadProfile(store, file, ProfileImport::Compare, ProfileImport::RESOLUTION_NONE);
}

tagTransferResult TransferJobs::ImportProfile(TSqliteStore& store, const QString& file,
                                              ProfileImport::EResolution resolution)
{
    tagTransferResult result = ReadProfile(store, file, ProfileImport::Apply, resolution);
    if (!result.isDone)
        return result;
    result.isDone = result.conflicts.isEmpty() || resolution != ProfileImport::RESOLUTION_NONE;
    result.text = result.isDone
                      ? Translated(QT_TRANSLATE_NOOP("Transfer", "The profile is imported (settings changed: %1)."))
                            .arg(QString::number(result.changes.size()))
                      : Translated(ConflictText);
    return result;
}

QVariantList TransferJobs::Profiles(TSqliteStore& store)
{
    QVariantList profiles;
    const tagDriveSpace drive = Storage::Stick();
    if (!drive.isMounted)
        return profiles;
    const QString identity = store.GetParameter(PARAM_TERMINAL_IDENTITY).toString();
    const QDir root(drive.path);
    // A link may lead out of the stick.
    const QStringList files = root.entryList({QLatin1Char('*') + ProfileExtension},
                                             QDir::Files | QDir::Readable | QDir::NoSymLinks, QDir::Name);
    for (const QString& file : files) {
        QStringList problems;
        const auto profile = TProfile::Read(root.filePath(file), PROFILE_EDITS_REFUSED, &problems);
        profiles.append(QVariantMap{
            {QLatin1String("file"), root.filePath(file)},
            {QLatin1String("name"), file.left(file.size() - ProfileExtension.size())},
            {QLatin1String("text"), profile ? OriginText(profile->Origin(), identity)
                                            : Translated(QT_TRANSLATE_NOOP("Transfer", "It cannot be used."))}});
    }
    return profiles;
}

QString TransferJobs::ProfileFileName(const QString& name)
{
    return name.endsWith(ProfileExtension) ? name : name + ProfileExtension;
}
