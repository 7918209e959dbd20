#include "units/choice/ShownUnits.h"

#include "units/conversion/HistoricWays.h"
#include "units/conversion/UnitWays.h"

double ShownUnits::Convert(double value, EUnitsType stored, EUnitsType unit, bool us)
{
    const tagConversion* const historic = HistoricWays::Find(HistoricWays::IN_TEXTS, stored, unit);
    return historic ? historic->out(value) : UnitWays::Convert(value, stored, unit, us);
}
