#include "Report.h"

#include "Targets.h"

#include <algorithm>
#include <cmath>
#include <cstring>

namespace {

bool IsSame(const char* a, const char* b) { return std::strcmp(a, b) == 0; }

const char* KindText(EKind kind)
{
    constexpr const char* texts[] = {"limit", "floor", "**ours**", "peer"};
    return texts[kind];
}

std::string RatioText(double ratio)
{
    char text[32];
    std::snprintf(text, sizeof text, ratio < 0.1 ? "%.3f" : "%.2f", ratio);
    return text;
}

} // namespace

double TReport::tagMeasured::At(double share) const
{
    const auto rank = static_cast<std::size_t>(std::ceil(share * static_cast<double>(nanoseconds.size())));
    return nanoseconds[rank > 0 ? rank - 1 : 0];
}

bool TReport::ReportContext(const Context&) { return true; }

void TReport::ReportRuns(const std::vector<Run>& runs)
{
    for (const Run& run : runs) {
        if (run.error_occurred) {
            std::fprintf(stderr, "bench: %s: %s\n", run.benchmark_name().c_str(), run.error_message.c_str());
            m_IsComplete = false;
        }
        if (run.error_occurred || run.run_type != Run::RT_Iteration)
            continue;
        tagMeasured& measured = m_Measured[run.run_name.function_name];
        const double nanoseconds = run.GetAdjustedRealTime();
        measured.nanoseconds.insert(
            std::upper_bound(measured.nanoseconds.begin(), measured.nanoseconds.end(), nanoseconds), nanoseconds);
        measured.allocations = run.counters.at(AllocationsCounter);
    }
}

std::string TReport::NameOf(const tagRow& row)
{
    return std::string(row.group) + "/" + std::to_string(static_cast<int>(row.kind)) + "/" + row.name;
}

const TReport::tagMeasured* TReport::Find(const tagRow& row) const
{
    const auto found = m_Measured.find(NameOf(row));
    return found != m_Measured.end() ? &found->second : nullptr;
}

const tagRow* TReport::Best(const char* group, EKind kind) const
{
    const tagRow* best = nullptr;
    for (const tagRow& row : TRows::All()) {
        if (row.kind == kind && IsSame(row.group, group) && Find(row) &&
            (!best || Find(row)->Median() < Find(*best)->Median()))
            best = &row;
    }
    return best;
}

const tagRow* TReport::Named(const char* group, const char* name) const
{
    for (const tagRow& row : TRows::All()) {
        if (IsSame(row.group, group) && IsSame(row.name, name) && Find(row))
            return &row;
    }
    return nullptr;
}

double TReport::Ratio(const tagRow& row, const tagRow& against) const
{
    return Find(row)->Median() / Find(against)->Median();
}

void TReport::PrintRow(std::FILE* to, const tagRow& row, const tagMeasured& measured) const
{
    std::fprintf(to, "| %s | %s | %.1f | %.1f | %.1f | %.1f | %g |", KindText(row.kind), row.name, measured.Median(),
                 measured.At(0), measured.At(0.99), measured.At(1), measured.allocations);
    for (const EKind kind : {ROW_LIMIT, ROW_FLOOR, ROW_PEER}) {
        const tagRow* const against = row.kind == ROW_OURS ? Best(row.group, kind) : nullptr;
        std::fprintf(to, " %s |", against ? RatioText(Ratio(row, *against)).c_str() : "");
    }
    std::fprintf(to, "\n");
}

void TReport::PrintGroups(std::FILE* to) const
{
    for (const tagGroup& group : Groups) {
        if (!Best(group.name, ROW_OURS))
            continue;
        std::fprintf(to, "### %s: %s\n\n", group.name, group.work);
        std::fprintf(
            to, "| Kind | Row | Median ns | Least ns | 99 %% ns | Greatest ns | Allocations | of limit | of floor | "
                "of best peer |\n|---|---|---:|---:|---:|---:|---:|---:|---:|---:|\n");
        for (const EKind kind : {ROW_LIMIT, ROW_FLOOR, ROW_OURS, ROW_PEER}) {
            for (const tagRow& row : TRows::All()) {
                if (row.kind == kind && IsSame(row.group, group.name) && Find(row))
                    PrintRow(to, row, *Find(row));
            }
        }
        std::fprintf(to, "\n");
    }
}

void TReport::PrintTargets(std::FILE* to) const
{
    for (const tagTarget& target : Targets) {
        const tagRow* const ours = Named(target.group, target.ours);
        if (!ours)
            continue; // of a group that was not asked for
        const tagRow* const against =
            *target.against ? Named(target.group, target.against) : Best(target.group, ROW_PEER);
        const char* const name = against ? against->name : target.against;
        if (!against) {
            std::fprintf(to, "| %s | %s | %s | not built | %s | |\n", target.group, target.ours, name,
                         RatioText(target.most).c_str());
            continue;
        }
        const double ratio = Ratio(*ours, *against);
        std::fprintf(to, "| %s | %s | %s | %s | %s | %s |\n", target.group, target.ours, name, RatioText(ratio).c_str(),
                     RatioText(target.most).c_str(), ratio <= target.most ? "met" : "**missed**");
    }
}
