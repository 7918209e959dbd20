#include "display/fieldwork/EarlyFixes.h"

namespace {

bool IsSame(const tagImplement& first, const tagImplement& second)
{
    return first.width == second.width && first.behind == second.behind;
}

} // namespace

std::vector<tagCoverageStrip> StripsOf(const TEarlyFixes& fixes, const TLocalPlane& plane, TStripMaker* maker)
{
    const tagImplement own = maker->Implement();
    std::vector<tagCoverageStrip> strips;
    for (const tagEarlyFix& fix : fixes) {
        if (!IsSame(fix.implement, maker->Implement()))
            maker->SetImplement(fix.implement);
        if (!fix.isJoined)
            maker->Break();
        const tagVehiclePose pose = {plane.ToPlane(fix.place.latitude, fix.place.longitude), fix.heading};
        if (const auto strip = maker->MoveTo(pose, fix.utc, true))
            strips.push_back(*strip);
    }
    if (!IsSame(own, maker->Implement()))
        maker->SetImplement(own);
    return strips;
}

bool StoreEarlyFixes(const TEarlyFixes& fixes, tagJob* job)
{
    if (fixes.empty())
        return true;
    LoadHeldCoverage(job);
    const tagJob& used = job->later ? *job->later : *job;
    if (!used.coverage)
        return !job->isChosen;
    const tagGeoPoint origin = used.origin.value_or(job->origin.value_or(fixes.front().place));
    used.coverage->SetOrigin(origin); // only the first one counts
    TStripMaker maker;
    for (const tagCoverageStrip& strip : StripsOf(fixes, TLocalPlane(origin.latitude, origin.longitude), &maker))
        used.coverage->Add(strip);
    return used.coverage->Flush();
}
