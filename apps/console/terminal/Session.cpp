#include "console/terminal/Session.h"

#include "console/line/Output.h"

#include "platform/TConfigManager.h"
#include "region/TRegionSettings.h"
#include "stores/TPersistenceHold.h"
#include "terminal/DataFolder.h"
#include "terminal/FirstStartValues.h"
#include "terminal/Translation.h"
#include "units/TUnitAbbreviations.h"

#include <QDir>

TSession::TSession() = default;

TSession::~TSession()
{
    m_Terminal.reset();
    ConfigManager = nullptr;
}

bool TSession::Open(const tagContext& context, ESession extent)
{
    if (!OpenStore(context))
        return false;
    const TChangeAuthor author(CHANGE_AUTHOR_LIBRARY); // what a start sets is not what the command sets
    if (extent == SESSION_TERMINAL)
        return StartTerminal(context);
    {
        const TPersistenceHold hold(*m_Store); // one transaction on a new store
        SetFirstStartValues(*m_Store);
    }
    if (extent == SESSION_UNITS)
        UseUnits(*m_Store);
    return true;
}

bool TSession::OpenStore(const tagContext& context)
{
    if (!QDir().mkpath(context.dataFolder)) {
        Fail(QString::fromLatin1("cannot create the data folder \"%1\"").arg(context.dataFolder));
        return false;
    }
    QString error;
    m_Store = TSqliteStore::Open(DataFolder::StoreFile(context.dataFolder), &error);
    if (!m_Store)
        Fail(error);
    return m_Store != nullptr;
}

bool TSession::StartTerminal(const tagContext& context)
{
    m_Terminal = std::make_unique<TTerminal>(*m_Store);
    QString error;
    if (m_Terminal->Start(context.dataFolder, &error, {QLatin1String(CABSETTINGS_VERSION)}))
        return true;
    Fail(error);
    return false;
}

void TSession::UseUnits(TParameterStore& store)
{
    ConfigManager = &store;
    TUnitAbbreviations::Initialize();
}

void TSession::UseOperatorsLanguage()
{
    TRegionSettings::InitializeLanguageStrings();
    InstallTranslation(m_Translator);
    TUnitAbbreviations::Initialize();
}
