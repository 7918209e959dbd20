#pragma once

/// What the rates of a sprayer are related to. Values of PARAM_SPRAYER_RATE_BASIS: stored data and hosts use the
/// numbers, which never change.
enum ESprayerRateBasis : int
{
    SPRAYER_RATE_BASIS_TRAVEL = 0, ///< per travelled distance, if PARAM_RATE_PER_TRAVEL is set too
    SPRAYER_RATE_BASIS_AREA = 1,   ///< as is any number but 0
};
