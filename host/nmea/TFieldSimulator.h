#pragma once

#include "HostExport.h"
#include "nmea/FieldPlan.h"

#include <QByteArray>

#include <memory>

/// Writes the NMEA stream of a receiver on a tractor that works a field: RMC, GGA, VTG and ZDA for each epoch, with
/// checksum, carriage return and line feed. Position, speed, course and time are consistent with each other. The same
/// plan gives the same bytes. Use it from one thread.
///
/// \code
/// TFieldSimulator simulator(plan);
/// while (!simulator.AtEnd())
///     file.write(simulator.NextEpoch());
/// \endcode
class CABHOST_EXPORT TFieldSimulator
{
public:
    /// @param plan one that CheckFieldPlan() accepts; any other gives no epochs.
    explicit TFieldSimulator(const tagFieldPlan& plan);
    ~TFieldSimulator();

    TFieldSimulator(const TFieldSimulator&) = delete;
    TFieldSimulator& operator=(const TFieldSimulator&) = delete;

    /// Whether the end of the last pass is reached.
    bool AtEnd() const;

    /// The sentences of the next epoch. The time of the first one is the plan's start. Empty at the end.
    QByteArray NextEpoch();

private:
    struct tagState;
    std::unique_ptr<tagState> m_State;
};
