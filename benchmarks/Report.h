#pragma once

#include "Rows.h"

#include <cstdio>
#include <map>
#include <string>
#include <vector>

/// Gathers what the rows took, and tells it as Markdown.
class TReport final : public benchmark::BenchmarkReporter
{
public:
    bool ReportContext(const Context& context) override;
    void ReportRuns(const std::vector<Run>& runs) override;

    /// The name under which a row is known to the bench.
    static std::string NameOf(const tagRow& row);

    /// A table for each group that was measured.
    void PrintGroups(std::FILE* to) const;

    /// Each target with what was measured, for the groups that were measured.
    void PrintTargets(std::FILE* to) const;

    /// False when a row failed.
    bool IsComplete() const { return m_IsComplete; }

private:
    struct tagMeasured
    {
        std::vector<double> nanoseconds; ///< of a call, one for each repetition, in order
        double allocations;

        double At(double share) const;
        double Median() const { return At(0.5); }
    };

    const tagMeasured* Find(const tagRow& row) const;
    const tagRow* Best(const char* group, EKind kind) const;
    const tagRow* Named(const char* group, const char* name) const;
    double Ratio(const tagRow& row, const tagRow& against) const;
    void PrintRow(std::FILE* to, const tagRow& row, const tagMeasured& measured) const;

    std::map<std::string, tagMeasured> m_Measured;
    bool m_IsComplete = true;
};
