#pragma once

#include "logs/TDiagnosticLogProxy.h"
#include "platform/Export.h"

#include <QMutex>

/// The way to the NMEA log of Settings, under a lock of its own.
class CABSETTINGS_EXPORT TNEMADiagnosticLogProxy : public TDiagnosticLogProxy
{
public:
    TNEMADiagnosticLogProxy();
    ~TNEMADiagnosticLogProxy() override;

    void Lock() override;
    void Unlock() override;
    static QMutex Mutex;

    /// Logs raw bytes as received; LogDiagnostic() by another name.
    bool Log(const char* data, int length);
};
