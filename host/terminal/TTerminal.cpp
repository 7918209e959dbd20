#include "terminal/TTerminal.h"

#include "diagnostics/KeptLogs.h"
#include "diagnostics/TOneLineLogAccessor.h"
#include "parameters/ItemNames.h"
#include "platform/TLocalTime.h"
#include "region/TRegionSettings.h"
#include "settings/TSettings.h"
#include "stores/TPersistenceHold.h"
#include "system/TSystemSettingsProxy.h"
#include "terminal/FirstStartValues.h"
#include "terminal/TTerminalParameters.h"
#include "terminal/Translation.h"
#include "units/TUnitAbbreviations.h"

#include <QCoreApplication>
#include <QList>
#include <QPair>

namespace {

/// The operator's selections that TSettings::Restore() replaces by the built-in names.
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

TTerminal::TTerminal(TParameterStore& store) : m_Store(store), m_IsStarted(false) {}

TTerminal::~TTerminal() { Stop(); }

bool TTerminal::Start(const QString& dataFolder, QString* error, const tagTerminalOptions& options)
{
    Stop();
    if (Settings) {
        *error = QLatin1String("another terminal is running in this program");
        return false;
    }
    const QString version =
        options.softwareVersion.isEmpty() ? QCoreApplication::applicationVersion() : options.softwareVersion;
    const QString problem = ItemNames::Problem(version, ItemNames::MostBytes);
    if (!problem.isEmpty()) {
        *error = QString::fromLatin1("invalid software version \"%1\": the version %2").arg(version, problem);
        return false;
    }

    TPersistenceHold hold(m_Store);
    m_IsStarted = true;
    try {
        if (!PublishParameters(dataFolder, error)) {
            Stop();
            hold.Abandon();
            return false;
        }
        PublishSettings(version, options.clientRoot);
    } catch (...) {
        Stop();
        hold.Abandon();
        throw;
    }
    hold.Release(); // a store that cannot write says so itself; the display goes on with the values in memory
    return true;
}

void TTerminal::Stop()
{
    if (!m_IsStarted)
        return;
    m_IsStarted = false;
    UserLogAccessorPtr = nullptr;
    m_UserLogAccessor.reset();
    if (m_Settings)
        FinishLogs();
    Settings = nullptr;
    m_Settings.reset(); // closes the logs, which need the parameters
    QCoreApplication::removeTranslator(&m_Translator);
    TLocalTime::SetOffset(0);
    ConfigManager = nullptr;
    m_Parameters.reset();
}

bool TTerminal::PublishParameters(const QString& dataFolder, QString* error)
{
    SetFirstStartValues(m_Store);
    m_Parameters = std::make_unique<TTerminalParameters>(m_Store, dataFolder);
    if (!m_Parameters->PlaceDrives(error))
        return false;
    ConfigManager = m_Parameters.get();
    return true;
}

void TTerminal::PublishSettings(const QString& softwareVersion, const QString& clientRoot)
{
    TRegionSettings::InitializeLanguageStrings();
    InstallTranslation(m_Translator);
    TUnitAbbreviations::Initialize();

    const TSelections selections = StoredSelections(m_Store);
    m_Settings = std::make_unique<TSettings>();
    Settings = m_Settings.get();
    TSystemSettingsProxy().SetSoftwareVersion(softwareVersion);
    TSystemSettingsProxy().SetCFFRoot(clientRoot);
    Settings->Initialise();
    m_Parameters->KeepInOrder(PARAM_USER_LOG_FILE_NUMBER, TSystemSettingsProxy().GetInternalUserLogPath());
    m_Parameters->KeepInOrder(PARAM_NMEA_LOG_FILE_NUMBER, TSystemSettingsProxy().GetInternalNemaLogPath());
    Settings->Restore();
    for (const auto& selection : selections)
        m_Store.SetParameter(selection.first, selection.second, true);
    m_UserLogAccessor = std::make_unique<TOneLineLogAccessor>();
    UserLogAccessorPtr = m_UserLogAccessor.get();
}
