#include "units/QuantityText.h"

#include "units/TUnitAbbreviations.h"

QString QuantityText::WithDecimals(const tagShown& shown, int decimals)
{
    return TUnits::InternalToDisplayableFloatStr(QString::number(shown.value, 'f', decimals) + QLatin1Char(' ') +
                                                 TUnitAbbreviations::UnitAbbreviations[shown.unit]);
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
