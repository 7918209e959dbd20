#include "diagnostics/UserLogEntries.h"

#include "diagnostics/KeptLogs.h"
#include "diagnostics/TLogKeeper.h"
#include "logs/TUserDiagnosticLogProxy.h"

#include <algorithm>
#include <iterator>

namespace {

/// The log writes Latin-1, in which the last two become "?". They are replaced all the same: a blank reads better.
constexpr ushort LineBreaks[] = {0x0A, 0x0B, 0x0C, 0x0D, 0x1C, 0x1D, 0x1E, 0x85, 0x2028, 0x2029};

bool IsLineBreak(QChar character)
{
    return std::find(std::begin(LineBreaks), std::end(LineBreaks), character.unicode()) != std::end(LineBreaks);
}

} // namespace

QString WithoutLineBreaks(const QString& text)
{
    QString line = text;
    std::replace_if(line.begin(), line.end(), IsLineBreak, QChar(QLatin1Char(' ')));
    return line;
}

bool AddUserLogEntry(EDiagnosticComponent component, EDiagnosticType type, int code, const QString& text1,
                     const QString& text2)
{
    TUserDiagnosticLogProxy log;
    const auto write = [&] {
        return log.AddEntry(component, type, code, WithoutLineBreaks(text1), WithoutLineBreaks(text2));
    };
    return UserLogKeeper().Write(log, write).isWritten;
}
