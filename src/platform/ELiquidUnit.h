#pragma once

/// Unit of liquid volumes, flows and rates. Values of PARAM_LIQUID_UNIT: stored data and hosts use the numbers, which
/// never change.
enum ELiquidUnit : int
{
    LIQUID_UNIT_LITRE = 0,
    LIQUID_UNIT_CUBIC_METRE = 1,
    LIQUID_UNIT_TONNE = 2,
};
