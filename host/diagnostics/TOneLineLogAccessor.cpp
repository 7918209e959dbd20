#include "diagnostics/TOneLineLogAccessor.h"

#include "diagnostics/UserLogEntries.h"

TOneLineLogAccessor::TOneLineLogAccessor() = default;
TOneLineLogAccessor::~TOneLineLogAccessor() = default;

bool TOneLineLogAccessor::AddEntry(EDiagnosticComponent component, EDiagnosticType type, int code, const QString& text1,
                                   const QString& text2)
{
    return AddUserLogEntry(component, type, code, text1, text2);
}
