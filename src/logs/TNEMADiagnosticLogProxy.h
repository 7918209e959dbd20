#pragma once

#include "logs/TDiagnosticLogProxy.h"
#include "platform/Export.h"

#include <QMutex>

/// Façade of the NMEA log of Settings. Safe from any thread: each call holds Mutex, which is not recursive.
///
///     TNEMADiagnosticLogProxy log;
///     const bool isLogged = log.Log(line.constData(), line.size());
class CABSETTINGS_EXPORT TNEMADiagnosticLogProxy : public TDiagnosticLogProxy
{
public:
    TNEMADiagnosticLogProxy();
    ~TNEMADiagnosticLogProxy() override;

    void Lock() override;
    void Unlock() override;
    static QMutex Mutex;

    /// Logs raw bytes as received. The same as LogDiagnostic().
    bool Log(const char* data, int length);
};
