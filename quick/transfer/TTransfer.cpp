#include "transfer/TTransfer.h"

#include "module/SharedObject.h"
#include "module/TBackground.h"
#include "module/TParameterHub.h"
#include "parameters/ItemNames.h"
#include "texts/HostText.h"
#include "transfer/TShownTransfer.h"

#include <cmath>
#include <memory>

namespace {

const char* const Lane = "transfer";
const double ProgressStep = 0.01;

TSqliteStore& Store() { return TParameterHub::Instance().Store(); }

ProfileImport::EResolution ResolutionOf(const QString& name)
{
    if (name == QLatin1String("ours"))
        return ProfileImport::RESOLUTION_OURS;
    return name == QLatin1String("theirs") ? ProfileImport::RESOLUTION_THEIRS : ProfileImport::RESOLUTION_NONE;
}

} // namespace

TTransfer::TTransfer(QObject* parent) : QObject(parent), m_Shown(*SharedObject<TShownTransfer>())
{
    for (const auto told : {&TTransfer::stateChanged, &TTransfer::progressChanged, &TTransfer::profilesChanged})
        connect(&m_Shown, &TShownTransfer::changed, this, told);
}

TTransfer::EState TTransfer::State() const
{
    const tagShownTransfer& shown = m_Shown.Transfer();
    if (shown.progress)
        return Running;
    if (!shown.error.isEmpty())
        return Failed;
    return shown.result.isEmpty() ? m_State : Done;
}

double TTransfer::Progress() const { return m_Shown.Transfer().progress.value_or(m_Progress); }

QString TTransfer::Error() const
{
    const QString& shown = m_Shown.Transfer().error;
    return shown.isEmpty() && State() == Failed ? m_Text : shown;
}

QString TTransfer::Result() const
{
    const QString& shown = m_Shown.Transfer().result;
    return shown.isEmpty() && State() == Done ? m_Text : shown;
}

template <class Job>
void TTransfer::Begin(Job job, EState after)
{
    if (m_State == Running)
        return;
    SetProgress(0);
    SetState(Running);
    TBackground::Lane(Lane).Run(this, job, [this, after](const tagTransferResult& result) { Take(result, after); });
}

void TTransfer::exportLogs()
{
    Begin([progress = ProgressTeller()] { return TransferJobs::ExportLogs(progress); });
}

void TTransfer::exportProfile(const QString& name, const QStringList& groups)
{
    if (!checkName(name).isEmpty()) {
        SetState(Failed, checkName(name));
        return;
    }
    Begin([&store = Store(), name, groups] { return TransferJobs::ExportProfile(store, name, groups); });
}

void TTransfer::compareProfile(const QString& file)
{
    Begin([&store = Store(), file] { return TransferJobs::CompareProfile(store, file); }, Idle);
}

void TTransfer::importProfile(const QString& file, const QString& resolution)
{
    Begin([&store = Store(), file, resolution] {
        return TransferJobs::ImportProfile(store, file, ResolutionOf(resolution));
    });
}

void TTransfer::writeSupport(bool anonymous)
{
    Begin([&store = Store(), folder = TParameterHub::Instance().DataFolder(), anonymous, progress = ProgressTeller()] {
        return TransferJobs::WriteSupport(store, folder, anonymous, progress);
    });
}

QVariantList TTransfer::profiles()
{
    if (!m_Shown.Transfer().profiles.isEmpty())
        return m_Shown.Transfer().profiles;
    if (!m_IsLooking) {
        m_IsLooking = true;
        TBackground::Lane(Lane).Run(
            this, [&store = Store()] { return TransferJobs::Profiles(store); },
            [this](const QVariantList& profiles) {
                m_IsLooking = false;
                if (profiles == m_Profiles)
                    return;
                m_Profiles = profiles;
                emit profilesChanged();
            });
    }
    return m_Profiles;
}

QString TTransfer::checkName(const QString& name) const
{
    if (name.isEmpty())
        return tr("The name is empty.");
    const QString problem = ItemNames::Problem(TransferJobs::ProfileFileName(name), ItemNames::MostBytes);
    return CabQuick::HostText(problem);
}

/// Tells each hundredth once.
TTransferProgress TTransfer::ProgressTeller()
{
    TBackground* const lane = &TBackground::Lane(Lane);
    const auto told = std::make_shared<double>(0);
    return [lane, told, owner = QPointer<QObject>(this), this](double progress) {
        if (progress < *told + ProgressStep)
            return;
        *told = progress;
        lane->Tell(owner, [this, progress] { SetProgress(progress); });
    };
}

void TTransfer::SetState(EState state, const QString& text)
{
    if (state == m_State && text == m_Text)
        return;
    m_State = state;
    m_Text = text;
    emit stateChanged();
}

void TTransfer::SetProgress(double progress)
{
    if (progress == m_Progress)
        return;
    m_Progress = progress;
    emit progressChanged();
}

void TTransfer::Take(const tagTransferResult& result, EState after)
{
    if (result.changes != m_Changes || result.conflicts != m_Conflicts) {
        m_Changes = result.changes;
        m_Conflicts = result.conflicts;
        emit differencesChanged();
    }
    if (result.isDone)
        SetProgress(1);
    SetState(result.isDone ? after : Failed, result.text);
}
