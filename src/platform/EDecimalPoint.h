#pragma once

/// Sign before the decimals of a displayed number. Values of PARAM_DECIMAL_POINT: stored data and hosts use the
/// numbers, which never change.
enum EDecimalPoint : int
{
    DECIMAL_POINT_FULL_STOP = 0, ///< as is any number but 1
    DECIMAL_POINT_COMMA = 1,
};
