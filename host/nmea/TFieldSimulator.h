#pragma once

#include "HostExport.h"
#include "nmea/FieldPlan.h"

#include <QByteArray>

#include <memory>

/// Writes what a receiver on a tractor that works a field would send: at each epoch RMC, GGA, VTG and ZDA, with right
/// checksums, each ended by carriage return and line feed. Position, speed, course and time agree with one another, and
/// the same plan gives the same bytes. Used by one thread.
class CABHOST_EXPORT TFieldSimulator
{
public:
    /// @param plan one that CheckFieldPlan() accepts; for any other there are no epochs.
    explicit TFieldSimulator(const tagFieldPlan& plan);
    ~TFieldSimulator();

    TFieldSimulator(const TFieldSimulator&) = delete;
    TFieldSimulator& operator=(const TFieldSimulator&) = delete;

    /// Whether the last pass is done.
    bool AtEnd() const;

    /// The sentences of the next epoch, the first standing at the plan's start; empty at the end.
    QByteArray NextEpoch();

private:
    struct tagState;
    std::unique_ptr<tagState> m_State;
};
