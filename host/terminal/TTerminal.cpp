#include "terminal/TTerminal.h"

#include "diagnostics/KeptLogs.h"
#include "diagnostics/TOneLineLogAccessor.h"
#include "platform/TLocalTime.h"
#include "region/TRegionSettings.h"
#include "settings/TSettings.h"
#include "stores/TPersistenceHold.h"
#include "terminal/DataFolder.h"
#include "terminal/FirstStartValues.h"
#include "terminal/Translation.h"
#include "units/TUnitAbbreviations.h"

#include <QCoreApplication>
#include <QDir>
#include <QList>
#include <QPair>

namespace {

/// What the operator has chosen, and TSettings::Restore() replaces by what a display starts with.
constexpr EParamID Selections[] = {
    PARAM_ACTIVE_JOB,
    PARAM_ACTIVE_BOUNDARY,
    PARAM_ACTIVE_AB_LINE,
    PARAM_ACTIVE_PIVOT,
    PARAM_ACTIVE_CURVE,
    PARAM_ACTIVE_OPTIMAL_LINES_SHAPE_FILE,
    PARAM_ACTIVE_PROJECT_LINES_SHAPE_FILE,
    PARAM_ACTIVE_ZONES_SHAPE_FILE,
    PARAM_ACTIVE_STEERING_PROFILE,
    PARAM_ACTIVE_IMPLEMENT,
    PARAM_ACTIVE_VEHICLE,
    PARAM_ACTIVE_SPRAYER,
};

using TSelections = QList<QPair<EParamID, QVariant>>;

TSelections StoredSelections(TParameterStore& store)
{
    TSelections selections;
    for (const EParamID id : Selections) {
        if (store.HasParameter(id))
            selections.append(qMakePair(id, store.GetParameter(id)));
    }
    return selections;
}

} // namespace

TTerminal::TTerminal(TParameterStore& store) : m_Store(store) {}

TTerminal::~TTerminal() { Stop(); }

bool TTerminal::Start(const QString& dataFolder, QString* error)
{
    Stop();
    TPersistenceHold hold(m_Store);
    ConfigManager = &m_Store;
    SetFirstStartValues(m_Store);
    PlaceDrives(dataFolder);
    if (!DataFolder::MakeTree(m_Store.GetParameter(PARAM_INTERNAL_DRIVE).toString(), error)) {
        Stop();
        return false;
    }

    TRegionSettings::InitializeLanguageStrings();
    InstallTranslation(m_Translator);
    TUnitAbbreviations::Initialize();
    RestoreSettings();
    m_UserLogAccessor = std::make_unique<TOneLineLogAccessor>();
    UserLogAccessorPtr = m_UserLogAccessor.get();

    hold.Release(); // a store that cannot write says so itself; the display goes on with what it has in memory
    return true;
}

void TTerminal::Stop()
{
    UserLogAccessorPtr = nullptr;
    m_UserLogAccessor.reset();
    if (m_Settings)
        FinishLogs();
    m_Settings.reset(); // closes the logs, which still need the store
    Settings = nullptr;
    QCoreApplication::removeTranslator(&m_Translator);
    TLocalTime::SetOffset(0);
    ConfigManager = nullptr;
}

/// The composed paths need an internal drive that ends in "/". A drive that follows the data folder is not persisted,
/// so that the folder can be moved or copied as a whole; its mount point is made, as a system has it.
void TTerminal::PlaceDrives(const QString& dataFolder)
{
    if (!m_Store.HasParameter(PARAM_INTERNAL_DRIVE))
        m_Store.SetParameter(PARAM_INTERNAL_DRIVE, DataFolder::InternalDrive(dataFolder), false);
    if (!m_Store.HasParameter(PARAM_EXTERNAL_DRIVE)) {
        const QString mountPoint = DataFolder::ExternalDrive(dataFolder);
        QDir().mkpath(mountPoint);
        m_Store.SetParameter(PARAM_EXTERNAL_DRIVE, mountPoint, false);
    }

    const QString internal = m_Store.GetParameter(PARAM_INTERNAL_DRIVE).toString();
    if (!internal.endsWith(QLatin1Char('/')))
        m_Store.SetParameter(PARAM_INTERNAL_DRIVE, internal + QLatin1Char('/'), false);
}

void TTerminal::RestoreSettings()
{
    const TSelections selections = StoredSelections(m_Store);
    m_Settings = std::make_unique<TSettings>();
    Settings = m_Settings.get();
    Settings->Initialise();
    Settings->Restore();
    for (const auto& selection : selections)
        m_Store.SetParameter(selection.first, selection.second, true);
}
