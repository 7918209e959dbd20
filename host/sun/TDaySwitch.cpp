#include "sun/TDaySwitch.h"

#include "parameters/HostParameters.h"
#include "parameters/UtcText.h"
#include "sun/EDaySwitching.h"

namespace {

const int SecondsBetweenLooks = 60;

/// A crossing so soon after the last switch is the same one again, at the place where a vehicle starts that was moved.
const int SecondsOfOneCrossing = 30 * 60;

/// Empty when the operator alone switches.
std::optional<ESunLevel> LevelOf(int switching)
{
    switch (switching) {
    case DAY_SWITCHING_SUNSET:
        return SUN_LEVEL_HORIZON;
    case DAY_SWITCHING_TWILIGHT:
        return SUN_LEVEL_TWILIGHT;
    default:
        return std::nullopt;
    }
}

} // namespace

TDaySwitch::TDaySwitch(TConfigManager& store, ETimes times) : m_Store(store), m_Persists(times == TIMES_OF_TODAY)
{
    if (m_Persists)
        m_Watch.until = FromUtcText(store.GetParameter(PARAM_DAY_SWITCHED).toString()).addSecs(SecondsOfOneCrossing);
}

void TDaySwitch::Look(const tagSunPlace& place, const QDateTime& utc)
{
    if (!utc.isValid() || !IsDue(utc) || !IsSunPlace(place))
        return;
    m_LastLook = utc;
    const std::optional<ESunLevel> level = LevelOf(m_Store.GetParameter(PARAM_DAY_SWITCHING).toInt());
    if (!level) {
        m_Watch = {utc, std::nullopt, SUN_LEVEL_HORIZON};
        return;
    }
    const tagDaySwitchStep step = StepDaySwitch(m_Watch, place, utc, *level);
    m_Watch = step.watch;
    if (!step.day)
        return;
    if (m_Store.GetParameter(PARAM_DAY_MODE).toBool() != *step.day)
        m_Store.SetParameter(PARAM_DAY_MODE, *step.day, m_Persists);
    if (m_Persists)
        m_Store.SetParameter(PARAM_DAY_SWITCHED, UtcText(utc), true);
}

bool TDaySwitch::IsDue(const QDateTime& utc) const
{
    return !m_LastLook.isValid() || utc < m_LastLook || m_LastLook.secsTo(utc) >= SecondsBetweenLooks;
}
