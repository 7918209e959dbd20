#pragma once

#include "platform/EParamID.h"

// Parameters of the host's own. They are in the store and in TParameterCatalogue beside those of the library, which
// does not read them. Their numbers begin at 20001, far from the library's; stored data uses them, so they never
// change.

inline constexpr EParamID PARAM_DAY_SWITCHING = static_cast<EParamID>(20001);     ///< int; an EDaySwitching
inline constexpr EParamID PARAM_TIME_SOURCE = static_cast<EParamID>(20002);       ///< int; an ETimeSource
inline constexpr EParamID PARAM_TIME_SOURCE_SINCE = static_cast<EParamID>(20003); ///< string; UTC, ISO 8601
inline constexpr EParamID PARAM_NEWEST_TIME = static_cast<EParamID>(20004);       ///< string; UTC, ISO 8601
inline constexpr EParamID PARAM_TERMINAL_IDENTITY = static_cast<EParamID>(20005); ///< string; a random UUID
inline constexpr EParamID PARAM_DAY_SWITCHED = static_cast<EParamID>(20006);      ///< string; UTC, ISO 8601
inline constexpr EParamID PARAM_RECEIVER_ADDRESS = static_cast<EParamID>(20007);  ///< string; "simulator" or an address
inline constexpr EParamID PARAM_HEADING_UP = static_cast<EParamID>(20008);        ///< bool; otherwise north is up
inline constexpr EParamID PARAM_TILES = static_cast<EParamID>(20009);             ///< string; names with commas between
