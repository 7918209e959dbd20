#pragma once

#include "platform/TConfigManager.h"

#include <QMap>
#include <QMutex>

/// A host for threads: a store that is slow at random, a clock that any thread may set, and plain copies of files. The
/// clock has no lock and orders no threads.

/// The store in use from its construction to its destruction.
class TSlowStore final : public TConfigManager
{
public:
    TSlowStore();
    ~TSlowStore() override;

    bool SetParameter(EParamID id, const QVariant& value, bool persist) override;
    QVariant GetParameter(EParamID id) override;
    bool HasParameter(EParamID id) override;

    /// The same text for each code.
    const QString& GetDiagnosticText(EDiagnosticComponent component, EDiagnosticType type, int code) override;

    /// Its lock, to be given a name.
    const QMutex& Lock() const { return m_Mutex; }

    static const char* const DiagnosticText;

private:
    /// Goes on at once, after other threads have had their turn, or after up to a fifth of a millisecond.
    static void Dawdle();

    QMutex m_Mutex;
    QMap<int, QVariant> m_Values;
    const QString m_Text;
};

/// Begins the pauses of the store in the calling thread. They are other ones for each number and for each TestSeed().
void SeedPauses(int thread);

/// Sets the clock to 2024-03-05 14:05:09 UTC. Each look at it finds it a millisecond later.
void ResetClock();
