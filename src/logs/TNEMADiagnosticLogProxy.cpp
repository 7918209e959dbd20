#include "logs/TNEMADiagnosticLogProxy.h"

#include "access/TSettingsMembers.h"

using Proxy = TNEMADiagnosticLogProxy;

QMutex Proxy::Mutex;

Proxy::TNEMADiagnosticLogProxy() : TDiagnosticLogProxy(TSettingsMembers::NMEALog()) {}
Proxy::~TNEMADiagnosticLogProxy() = default;

void Proxy::Lock() { Mutex.lock(); }
void Proxy::Unlock() { Mutex.unlock(); }

bool Proxy::Log(const char* data, int length) { return LogDiagnostic(data, length); }
