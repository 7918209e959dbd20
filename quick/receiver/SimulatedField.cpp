#include "receiver/SimulatedField.h"

namespace {

const int Passes = 36; // one and a half hours
const int Rate = 10;

} // namespace

tagFieldPlan CabQuick::SimulatedPlan()
{
    tagFieldPlan plan;
    plan.start = QDateTime::currentDateTimeUtc();
    plan.passes = Passes;
    plan.rate = Rate;
    return plan;
}
