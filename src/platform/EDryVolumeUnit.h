#pragma once

/// Unit of granular volumes. Values of PARAM_DRY_VOLUME_UNIT: stored data and hosts use the numbers, which never
/// change.
enum EDryVolumeUnit : int
{
    DRY_VOLUME_UNIT_LITRE = 0,
    DRY_VOLUME_UNIT_KILOGRAM = 1,
    DRY_VOLUME_UNIT_CUBIC_METRE = 2,
    DRY_VOLUME_UNIT_US_BUSHEL = 3,
    DRY_VOLUME_UNIT_UK_BUSHEL = 4,
};
