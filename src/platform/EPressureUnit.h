#pragma once

/// Unit of pressures. Any other number shows no unit. Values of PARAM_PRESSURE_UNIT: stored data and hosts use the
/// numbers, which never change.
enum EPressureUnit : int
{
    PRESSURE_UNIT_KPA = 0,
    PRESSURE_UNIT_PSI = 1,
    PRESSURE_UNIT_BAR = 2,
};
