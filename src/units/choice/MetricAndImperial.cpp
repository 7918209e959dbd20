// Typed values: between the metric unit shown, the imperial unit shown in its place, and the stored unit.

#include "units/TUnits.h"
#include "units/choice/Choices.h"
#include "units/conversion/HistoricWays.h"
#include "units/conversion/Measures.h"

namespace {

/// The imperial unit in which a value of @p type is typed; UNITS_NONE where it is typed as it is stored. Units per area
/// go by the area chosen, and have none here; nitrogen does, per acre.
EUnitsType ImperialUnit(EUnitsType type)
{
    if (type == UNITS_KG_N_PER_HA)
        return UNITS_LB_N_PER_AC;
    const tagUnit* const unit = FindUnit(type);
    return unit && !TUnits::IsSpecifiedAreaUnit(type) ? unit->imperial : UNITS_NONE;
}

/// The unit that a typed value is kept in: for speeds km/h, although texts take metres per second.
EUnitsType KeptUnit(EUnitsType type) { return type == UNITS_KPH ? type : TUnits::GetStoredUnit(type); }

/// Whether a typed value of @p type is metric in another unit than it is kept in.
bool IsNormalised(EUnitsType type) { return ImperialUnit(type) != UNITS_NONE && Measures::IsMetric(); }

} // namespace

double TUnits::NormaliseMetricValue(double value, EUnitsType type)
{
    return IsNormalised(type) ? ConvertUnit(value, type, KeptUnit(type)) : value;
}

double TUnits::DenormaliseMetricValue(double value, EUnitsType type)
{
    return IsNormalised(type) ? ConvertUnit(value, KeptUnit(type), type) : value;
}

double TUnits::ConvertToMetric(double value, EUnitsType metricType)
{
    const EUnitsType imperial = ImperialUnit(metricType);
    const EUnitsType kept = KeptUnit(metricType);
    const tagConversion* const historic = HistoricWays::Find(HistoricWays::IN_ENTRIES, kept, imperial);
    return historic ? historic->in(value) : ConvertUnit(value, imperial, kept);
}

double TUnits::ConvertToImperial(double value, EUnitsType metricType)
{
    const EUnitsType imperial = ImperialUnit(metricType);
    const EUnitsType kept = KeptUnit(metricType);
    const tagConversion* const historic = HistoricWays::Find(HistoricWays::IN_ENTRIES, kept, imperial);
    return historic ? historic->out(value) : ConvertUnit(value, kept, imperial);
}
