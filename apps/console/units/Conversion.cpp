#include "console/units/Conversion.h"

#include "console/units/UnitNames.h"

#include "platform/TConfigManager.h"
#include "units/TUnits.h"

#include <cmath>

namespace {

bool IsMetric() { return ConfigManager->GetParameter(PARAM_METRIC).toBool(); }
bool IsUS() { return ConfigManager->GetParameter(PARAM_US_MEASURES).toBool(); }

bool DependOnUSMeasures(EUnitsType from, EUnitsType to)
{
    return from != to && (TUnits::DependsOnUSMeasures(from) || TUnits::DependsOnUSMeasures(to));
}

QString UnitsText(EUnitsType from, EUnitsType to)
{
    return QString::fromLatin1("%1 to %2").arg(UnitNames::Shown(from), UnitNames::Shown(to));
}

QString OtherQuantities(EUnitsType from, EUnitsType to)
{
    return QString::fromLatin1("cannot convert %1: %2 measures %3 and %4 measures %5")
        .arg(UnitsText(from, to), UnitNames::Shown(from), UnitNames::Quantity(from), UnitNames::Shown(to),
             UnitNames::Quantity(to));
}

QString NoConversion(EUnitsType from, EUnitsType to)
{
    const char* const reason =
        IsMetric() && DependOnUSMeasures(from, to)
            ? "the size of a gallon or fluid ounce is not defined while parameter 8953 (metric) is true; use --system "
              "us "
              "or --system english, or set 8953 to false and 8954 to true (US) or false (English)"
            : "the display has no conversion between them";
    return QString::fromLatin1("cannot convert %1: %2").arg(UnitsText(from, to), QLatin1String(reason));
}

} // namespace

std::optional<TConversionRoute> TConversionRoute::Find(EUnitsType from, EUnitsType to, QString* problem)
{
    if (UnitNames::Quantity(from) != UnitNames::Quantity(to)) {
        *problem = OtherQuantities(from, to);
        return std::nullopt;
    }
    const EUnitsType hub = TUnits::GetConversionHub(from);
    const bool areTemperatures = hub == UNITS_CELSIUS || hub == UNITS_FAHRENHEIT;
    const bool canConvert =
        hub == TUnits::GetConversionHub(to) && TUnits::CanConvert(from, hub) && TUnits::CanConvert(hub, to);
    if (from == to || areTemperatures || canConvert)
        return TConversionRoute(from, hub, to);
    *problem = NoConversion(from, to);
    return std::nullopt;
}

std::optional<double> TConversionRoute::Convert(double value) const
{
    double result = value;
    if (m_From == UNITS_CELSIUS && m_To == UNITS_FAHRENHEIT)
        result = TUnits::ConvertToImperial(value, UNITS_CELSIUS);
    else if (m_From == UNITS_FAHRENHEIT && m_To == UNITS_CELSIUS)
        result = TUnits::ConvertToMetric(value, UNITS_CELSIUS);
    else if (m_From != m_To)
        result = TUnits::ConvertUnit(TUnits::ConvertUnit(value, m_From, m_Via), m_Via, m_To);
    return std::isfinite(result) ? std::optional<double>(result) : std::nullopt;
}

QString TConversionRoute::Units() const { return UnitsText(m_From, m_To); }

QString TConversionRoute::Decision() const
{
    if (!DependOnUSMeasures(m_From, m_To))
        return QString();
    return QString::fromLatin1("%1 measures, because parameter 8953 (metric) is false and 8954 (US) is %2")
        .arg(QLatin1String(IsUS() ? "US" : "English"), QLatin1String(IsUS() ? "true" : "false"));
}
