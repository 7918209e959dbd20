#pragma once

/// Unit of areas, and of rates per area. Values of PARAM_AREA_UNIT: stored data and hosts use the numbers, which never
/// change.
enum EAreaUnit : int
{
    AREA_UNIT_HECTARE = 0,
    AREA_UNIT_ACRE = 1,
};
