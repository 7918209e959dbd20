#include "transfer/TTransfer.h"

#include "module/TBackground.h"
#include "module/TParameterHub.h"
#include "parameters/ItemNames.h"
#include "texts/HostText.h"

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

TTransfer::TTransfer(QObject* parent) : QObject(parent) {}

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
