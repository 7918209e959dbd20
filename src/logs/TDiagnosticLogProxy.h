#pragma once

#include "access/TLockedTarget.h"
#include "logs/TDiagnosticLog.h"
#include "platform/Export.h"

#include <QString>

/// Base of the log façades. Forwards each operation to one log while it holds the lock of the derived class. See
/// TDiagnosticLog for what the operations do.
///
///     TUserDiagnosticLogProxy userLog;
///     TDiagnosticLogProxy& log = userLog;
///     log.AddEntry(QLatin1String("started"));
class CABSETTINGS_EXPORT TDiagnosticLogProxy
{
public:
    explicit TDiagnosticLogProxy(TDiagnosticLog& log);
    virtual ~TDiagnosticLogProxy();

    virtual bool Restore(const QString& basePath, int maxFileCount, long long maxFileSize);
    virtual TDiagnosticLog::tagExportResult Export(const QString& target);
    virtual void Close();
    virtual bool AddEntry(const QString& text);
    virtual bool LogDiagnostic(const char* data, int length);

    /// Not virtual: programs that were built before call the virtual operations by their position.
    bool Reopen();
    bool FlushTempBuffer();
    TDiagnosticLog::tagState GetState();

    virtual void Lock() = 0;
    virtual void Unlock() = 0;

protected:
    TLockedTarget<TDiagnosticLog> m_Log;
};
