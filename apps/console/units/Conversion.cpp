#include "console/units/Conversion.h"

#include "console/units/UnitNames.h"

#include "platform/TConfigManager.h"
#include "units/TUnits.h"
#include "units/UnitTable.h"

namespace {

/// A liquid's mass and volume stand for one another: one litre counts as one kilogram.
struct tagLiquidByMass
{
    EUnitsType volume;
    EUnitsType mass;
};

constexpr tagLiquidByMass LiquidsByMass[] = {
    {UNITS_LITERS, UNITS_LB},
    {UNITS_L_PER_HA, UNITS_LB_PER_AC},
    {UNITS_L_PER_HA, UNITS_LB_PER_HA},
};

bool MeasureTheSame(EUnitsType from, EUnitsType to)
{
    if (UnitNames::Quantity(from) == UnitNames::Quantity(to))
        return true;
    for (const tagLiquidByMass& pair : LiquidsByMass) {
        if ((from == pair.volume && to == pair.mass) || (from == pair.mass && to == pair.volume))
            return true;
    }
    return false;
}

bool IsMetric() { return ConfigManager->GetParameter(PARAM_METRIC).toBool(); }
bool IsUS() { return ConfigManager->GetParameter(PARAM_US_MEASURES).toBool(); }

/// Whether the unit's size depends on the measures in use.
bool IsOpen(EUnitsType unit)
{
    const QString name = UnitNames::Name(unit);
    return !name.contains(QLatin1String("US_")) &&
           (name.contains(QLatin1String("GAL")) || name.contains(QLatin1String("FLOZ")) || unit == UNITS_FLUID_OUNCES);
}

bool IsTemperature(EUnitsType unit) { return unit == UNITS_CELSIUS || unit == UNITS_FAHRENHEIT; }

} // namespace

std::optional<TConversionRoute> TConversionRoute::Find(EUnitsType from, EUnitsType to, QString* problem)
{
    if (!MeasureTheSame(from, to)) {
        *problem =
            QString::fromLatin1("%1 measures %2 and %3 measures %4; two units of one quantity are accepted")
                .arg(UnitNames::Shown(from), UnitNames::Quantity(from), UnitNames::Shown(to), UnitNames::Quantity(to));
        return std::nullopt;
    }
    if (TUnits::CanConvert(from, to) || (IsTemperature(from) && IsTemperature(to)))
        return TConversionRoute(from, to, to);
    for (const tagUnit& hub : UnitTable) {
        if (hub.type != from && hub.type != to && MeasureTheSame(from, hub.type) &&
            TUnits::CanConvert(from, hub.type) && TUnits::CanConvert(hub.type, to))
            return TConversionRoute(from, hub.type, to);
    }
    *problem = QString::fromLatin1("%1 is not converted to %2").arg(UnitNames::Shown(from), UnitNames::Shown(to));
    if (IsMetric() && (IsOpen(from) || IsOpen(to)))
        *problem +=
            QLatin1String(" while parameter 8953 (metric) is true: it leaves open which gallon is meant; set 8953 "
                          "to false and 8954 to US or English measures, or use --system us or english");
    return std::nullopt;
}

double TConversionRoute::operator()(double value) const
{
    if (m_From == UNITS_CELSIUS && m_To == UNITS_FAHRENHEIT)
        return TUnits::ConvertToImperial(value, UNITS_CELSIUS);
    if (m_From == UNITS_FAHRENHEIT && m_To == UNITS_CELSIUS)
        return TUnits::ConvertToMetric(value, UNITS_CELSIUS);
    return TUnits::ConvertUnit(TUnits::ConvertUnit(value, m_From, m_Via), m_Via, m_To);
}

QString TConversionRoute::Decision() const
{
    if (m_From == m_To || !(IsOpen(m_From) || IsOpen(m_To)))
        return QString();
    return QString::fromLatin1("%1 measures, because parameter 8953 (metric) is false and 8954 (US) is %2")
        .arg(QLatin1String(IsUS() ? "US" : "English"), QLatin1String(IsUS() ? "true" : "false"));
}
