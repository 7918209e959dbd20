#pragma once

#include "platform/TConfigManager.h"

#include <QDate>
#include <QTime>

#include <array>
#include <chrono>

/// The cheapest host that the library can have: what a call costs here is the library's own, plus what its interfaces
/// demand. One thread only.

/// A store in memory: a parameter is one look into an array.
class TBenchStore final : public TConfigManager
{
public:
    /// The store in use: a display with US measures that has everything set.
    static TBenchStore& Instance();

    bool SetParameter(EParamID id, const QVariant& value, bool persist) override;
    QVariant GetParameter(EParamID id) override;
    bool HasParameter(EParamID id) override;
    const QString& GetDiagnosticText(EDiagnosticComponent component, EDiagnosticType type, int code) override;

    /// Forgets everything, as on a display that starts for the first time; only the drives are known.
    void Empty();

    /// What a display in use has stored.
    void Fill();

private:
    TBenchStore();

    std::array<QVariant, 0x4000> m_Values;
};

/// The clock of the host: each look at the time finds it a millisecond later. Rows that need a time take it from here.
struct TBenchClock
{
    static QDate Date();
    static QTime NextTime();

    /// The same time for those who count from 1970.
    static std::chrono::system_clock::time_point NextTimePoint();
};
