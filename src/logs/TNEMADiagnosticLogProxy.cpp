#include "logs/TNEMADiagnosticLogProxy.h"

#include "settings/TSettings.h"

using Proxy = TNEMADiagnosticLogProxy;

QMutex Proxy::Mutex;

Proxy::TNEMADiagnosticLogProxy() : TDiagnosticLogProxy(Settings->m_NEMALog) {}
Proxy::~TNEMADiagnosticLogProxy() = default;

void Proxy::Lock() { Mutex.lock(); }
void Proxy::Unlock() { Mutex.unlock(); }

bool Proxy::Log(const char* data, int length) { return LogDiagnostic(data, length); }
