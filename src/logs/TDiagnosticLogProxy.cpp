#include "logs/TDiagnosticLogProxy.h"

using Proxy = TDiagnosticLogProxy;
using tagExportResult = TDiagnosticLog::tagExportResult;

Proxy::TDiagnosticLogProxy(TDiagnosticLog& log) : m_Log(log) {}
Proxy::~TDiagnosticLogProxy() = default;

bool Proxy::Restore(const QString& basePath, int maxFileCount, long long maxFileSize)
{
    return m_Log.By(*this)->Restore(basePath, maxFileCount, maxFileSize);
}

tagExportResult Proxy::Export(const QString& target) { return m_Log.By(*this)->Export(target); }
void Proxy::Close() { m_Log.By(*this)->Close(); }
bool Proxy::AddEntry(const QString& text) { return m_Log.By(*this)->AddEntry(text); }
bool Proxy::Reopen() { return m_Log.By(*this)->Reopen(); }
bool Proxy::FlushTempBuffer() { return m_Log.By(*this)->FlushTempBuffer(); }
TDiagnosticLog::tagState Proxy::GetState() { return m_Log.By(*this)->GetState(); }
bool Proxy::LogDiagnostic(const char* data, int length) { return m_Log.By(*this)->LogDiagnostic(data, length); }
