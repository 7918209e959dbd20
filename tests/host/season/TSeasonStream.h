#pragma once

#include "nmea/TFieldSimulator.h"

#include <QByteArray>

/// The bytes of a receiver at work: every half hour it passes trees and has no fix for two seconds, and every seven
/// minutes a sentence is damaged on the line.
class TSeasonStream
{
public:
    /// @param plan of ten epochs per second.
    explicit TSeasonStream(const tagFieldPlan& plan) : m_Simulator(plan) {}

    QByteArray NextEpoch();

    int Losses() const { return m_Losses; }   ///< of the fix, so far
    int Damaged() const { return m_Damaged; } ///< sentences, so far

private:
    TFieldSimulator m_Simulator;
    int m_Epoch = 0;
    int m_Losses = 0;
    int m_Damaged = 0;
};
