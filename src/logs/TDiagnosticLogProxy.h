#pragma once

#include "access/TLockedTarget.h"
#include "logs/TDiagnosticLog.h"
#include "platform/Export.h"

#include <QString>

/// Base of the log façades: forwards to one log, under the lock of the derived class. See TDiagnosticLog for what each
/// operation does.
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

    /// Not virtual, so that the order of the virtual operations stays as it is.
    bool Reopen();
    bool FlushTempBuffer();
    TDiagnosticLog::tagState GetState();

    virtual void Lock() = 0;
    virtual void Unlock() = 0;

protected:
    TLockedTarget<TDiagnosticLog> m_Log;
};
