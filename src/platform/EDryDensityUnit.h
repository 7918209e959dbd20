#pragma once

/// Unit of granular densities. Values of PARAM_DRY_DENSITY_UNIT: stored data and hosts use the numbers, which never
/// change.
enum EDryDensityUnit : int
{
    DRY_DENSITY_UNIT_KG_PER_LITRE = 0,
    DRY_DENSITY_UNIT_KG_PER_CUBIC_METRE = 1,
    DRY_DENSITY_UNIT_KG_PER_US_BUSHEL = 2,
    DRY_DENSITY_UNIT_KG_PER_UK_BUSHEL = 3,
};
