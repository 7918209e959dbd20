#pragma once

#include "units/TUnits.h"
#include "units/choice/ShownUnits.h"

/// Values with their units as texts: number, one blank, abbreviation. The blank is there without an abbreviation, too.
namespace QuantityText {

/// With this number of decimals.
QString WithDecimals(const tagShown& shown, int decimals);

/// Without the blank.
QString CloseWithDecimals(const tagShown& shown, int decimals);

/// With the decimals of the threshold rule, or else of @p precision, or else the default of @p precisionUnit.
QString WithPrecisionOf(EUnitsType precisionUnit, const tagShown& shown, int precision,
                        const TUnits::tagThresholdSpec* spec);

/// With the decimals of the threshold rule, or else of @p precision, or else the default of the unit shown.
QString WithPrecision(const tagShown& shown, int precision, const TUnits::tagThresholdSpec* spec);

} // namespace QuantityText
