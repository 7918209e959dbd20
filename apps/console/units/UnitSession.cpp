#include "console/units/UnitSession.h"

#include "console/terminal/Store.h"
#include "console/units/UnitNames.h"

#include "platform/TConfigManager.h"
#include "region/TRegionSettings.h"
#include "terminal/Catalogue.h"
#include "terminal/FirstStartValues.h"
#include "units/TUnitAbbreviations.h"

#include <cmath>

namespace {

const char* const SystemOption = "system";

struct tagSystem
{
    const char* name;
    bool metric;
    bool us;
};

constexpr tagSystem Systems[] = {
    {"metric", true, false},
    {"us", false, true},
    {"english", false, false},
};

} // namespace

TUnitSession::TUnitSession() = default;
TUnitSession::~TUnitSession() { ConfigManager = nullptr; }

void TUnitSession::AddOptions(TCommandLine& line)
{
    line.AddOption(QLatin1String(SystemOption),
                   QLatin1String("Measures for this call, whatever is stored: metric, us or english."),
                   QLatin1String("SYSTEM"));
}

std::optional<int> TUnitSession::Open(const tagContext& context, const TCommandLine& line)
{
    const QString wanted = line.Value(QLatin1String(SystemOption));
    const tagSystem* chosen = nullptr;
    for (const tagSystem& system : Systems) {
        if (wanted == QLatin1String(system.name))
            chosen = &system;
    }
    if (!wanted.isEmpty() && !chosen)
        return line.Misused(QString::fromLatin1("--system takes metric, us or english, not \"%1\"").arg(wanted));

    m_Store = OpenStore(context);
    if (!m_Store)
        return STATUS_FAILED;
    SetFirstStartValues(*m_Store);
    if (chosen) {
        m_Store->SetParameter(PARAM_METRIC, chosen->metric, false);
        m_Store->SetParameter(PARAM_US_MEASURES, chosen->us, false);
    }
    ConfigManager = m_Store.get();
    TUnitAbbreviations::Initialize();
    return std::nullopt;
}

void TUnitSession::SpeakTheOperatorsLanguage()
{
    TRegionSettings::InitializeLanguageStrings();
    InstallCatalogue(m_Translator);
    TUnitAbbreviations::Initialize();
}

std::optional<EUnitsType> ReadUnit(const TCommandLine& line, const QString& text)
{
    const auto unit = UnitNames::Find(text);
    if (!unit)
        line.Misused(QString::fromLatin1("there is no unit \"%1\"; \"cabsettings units\" lists what is accepted: an "
                                         "abbreviation, a name or a number")
                         .arg(text));
    return unit;
}

std::optional<double> ReadNumber(const TCommandLine& line, const QString& text)
{
    bool isNumber = false;
    const double number = text.toDouble(&isNumber);
    if (isNumber && std::isfinite(number))
        return number;
    line.Misused(
        QString::fromLatin1("\"%1\" is not a number; digits with a full stop are accepted, such as 12.5").arg(text));
    return std::nullopt;
}
