#pragma once

#include "HostExport.h"
#include "platform/TConfigManager.h"
#include "sun/DaySwitchStep.h"

/// Switches PARAM_DAY_MODE when the sun rises and sets, as PARAM_DAY_SWITCHING says.
///
/// \code
/// TDaySwitch daySwitch(store);
/// if (receiver.GetStatus().hasFix)
///     daySwitch.Look({status.latitude, status.longitude}, status.utc);
/// \endcode
///
/// It switches only at the moment at which the sun passes the level. Between two such moments the operator's own choice
/// stays, also across a restart: the time of the last switch is kept in PARAM_DAY_SWITCHED. At a start, the scheme
/// follows the sun when the sun has passed the level since then, and at the very first start. Nothing else is stored.
///
/// With DAY_SWITCHING_BY_HAND it does nothing. When PARAM_DAY_SWITCHING changes, the next crossing is the first one
/// that switches.
///
/// Use it from one thread at a time.
class CABHOST_EXPORT TDaySwitch
{
public:
    /// Whether the times that Look() gets are those of today.
    enum ETimes
    {
        TIMES_OF_TODAY,
        TIMES_OF_A_RECORDING, ///< the scheme follows the recording until the program ends; nothing is stored
    };

    /// @param store must outlive the object.
    explicit TDaySwitch(TConfigManager& store, ETimes times = TIMES_OF_TODAY);

    /// Call it for every fix. Looks at the sun once a minute of @p utc; the calls in between cost nothing.
    /// @param place where the terminal is. An invalid place is ignored.
    /// @param utc the time of the fix, in UTC. An invalid time is ignored.
    void Look(const tagSunPlace& place, const QDateTime& utc);

private:
    bool IsDue(const QDateTime& utc) const;

    TConfigManager& m_Store;
    bool m_Persists;
    tagSunWatch m_Watch;
    QDateTime m_LastLook;
};
