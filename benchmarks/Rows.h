#pragma once

#include "Allocations.h"

#include <benchmark/benchmark.h>

#include <initializer_list>
#include <vector>

/// What a row stands for in its group.
enum EKind : int
{
    ROW_LIMIT, ///< what the machine allows
    ROW_FLOOR, ///< the limit, plus what the interfaces demand: a read of the store, a lock, a system call
    ROW_OURS,
    ROW_PEER, ///< the same work by another well-known way
};

/// A piece of work that is measured beside the others of its group.
struct tagRow
{
    const char* group;
    EKind kind;
    const char* name;
    void (*measure)(benchmark::State& state);
};

/// Rows that enter the bench by being linked into it: a peer that is not installed leaves its file out, and so its
/// rows.
class TRows
{
public:
    TRows(std::initializer_list<tagRow> rows) { All().insert(All().end(), rows); }

    static std::vector<tagRow>& All()
    {
        static std::vector<tagRow> all;
        return all;
    }
};

/// Counter of a row: allocations of a call.
constexpr const char* AllocationsCounter = "allocations";

/// Measures @p Work, which is called with a running number to choose its input by. What it makes once is made before.
template <auto Work>
void Timed(benchmark::State& state)
{
    unsigned number = 0;
    Work(number++);
    for (auto _ : state) {
        auto result = Work(number++);
        benchmark::DoNotOptimize(result);
    }

    constexpr int calls = 16;
    const std::int64_t before = AllocationsSoFar();
    for (int call = 0; call < calls; ++call)
        Work(number++);
    state.counters[AllocationsCounter] = static_cast<double>(AllocationsSoFar() - before) / calls;
}
