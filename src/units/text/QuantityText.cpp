#include "units/text/QuantityText.h"

#include "units/TUnitAbbreviations.h"
#include "units/text/DecimalPoint.h"
#include "units/text/TFixedNumber.h"

QString QuantityText::WithDecimals(const tagShown& shown, int decimals)
{
    return DecimalPoint::Shown(TFixedNumber(shown.value, decimals) % QLatin1Char(' ') %
                               TUnitAbbreviations::UnitAbbreviations[shown.unit]);
}

QString QuantityText::CloseWithDecimals(const tagShown& shown, int decimals)
{
    return DecimalPoint::Shown(TFixedNumber(shown.value, decimals) % TUnitAbbreviations::UnitAbbreviations[shown.unit]);
}

QString QuantityText::WithPrecisionOf(EUnitsType precisionUnit, const tagShown& shown, int precision,
                                      const TUnits::tagThresholdSpec* spec)
{
    const int asked = TUnits::GetThresholdPrecision(static_cast<float>(shown.value), spec, precision);
    return WithDecimals(shown, TUnits::GetUnitPrecision(precisionUnit, asked));
}

QString QuantityText::WithPrecision(const tagShown& shown, int precision, const TUnits::tagThresholdSpec* spec)
{
    return WithPrecisionOf(shown.unit, shown, precision, spec);
}
