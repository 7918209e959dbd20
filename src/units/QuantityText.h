#pragma once

#include "units/ShownUnits.h"
#include "units/TUnits.h"

/// Writes values with their units, in the one form that quantities have: number, one blank, abbreviation. The blank
/// stays when there is no abbreviation.
namespace QuantityText {

/// With a given number of decimals.
QString WithDecimals(const tagShown& shown, int decimals);

/// The same without the blank.
QString CloseWithDecimals(const tagShown& shown, int decimals);

/// With the decimals that the threshold rule, the precision asked for, or else the default of @p precisionUnit give.
QString WithPrecisionOf(EUnitsType precisionUnit, const tagShown& shown, int precision,
                        const TUnits::tagThresholdSpec* spec);

/// The same, with the default of the unit shown.
QString WithPrecision(const tagShown& shown, int precision, const TUnits::tagThresholdSpec* spec);

} // namespace QuantityText
