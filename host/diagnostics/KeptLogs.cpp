#include "diagnostics/KeptLogs.h"

#include "diagnostics/EConsoleEvent.h"
#include "diagnostics/TLogKeeper.h"
#include "logs/TNEMADiagnosticLogProxy.h"
#include "logs/TUserDiagnosticLogProxy.h"
#include "platform/IsoText.h"
#include "stores/StandardError.h"

namespace {

QString Period(const TLogKeeper::tagGap& gap) { return IsoText(gap.from) + QLatin1Char(' ') + IsoText(gap.to); }

qint64 Finish(TLogKeeper& keeper, TDiagnosticLogProxy& log, const char* name)
{
    const TLogKeeper::tagEnd end = keeper.Finish(log);
    if (end.untold.lines > 0)
        SayOnStandardError(QString::fromLatin1("the %1 log has lost %2 lines, %3")
                               .arg(QLatin1String(name), QString::number(end.untold.lines), Period(end.untold)));
    return end.lostLines;
}

} // namespace

TLogKeeper& UserLogKeeper()
{
    static TLogKeeper keeper([](TDiagnosticLogProxy& log, const TLogKeeper::tagGap& gap) {
        static_cast<TUserDiagnosticLogProxy&>(log).AddEntry(
            DIAG_COMPONENT_CONSOLE, DIAG_TYPE_EVENT, CONSOLE_EVENT_LINES_LOST, QString::number(gap.lines), Period(gap));
    });
    return keeper;
}

/// The line begins with a date, as no line of a receiver does.
TLogKeeper& NmeaLogKeeper()
{
    static TLogKeeper keeper([](TDiagnosticLogProxy& log, const TLogKeeper::tagGap& gap) {
        log.AddEntry(QString::fromLatin1("Lines lost,%1,%2").arg(QString::number(gap.lines), Period(gap)));
    });
    return keeper;
}

qint64 WriteNmeaLine(const QByteArray& line)
{
    TNEMADiagnosticLogProxy log;
    return NmeaLogKeeper()
        .Write(log, [&log, &line] { return log.Log(line.constData(), static_cast<int>(line.size())); })
        .lostLines;
}

tagLostLines FinishLogs()
{
    TUserDiagnosticLogProxy userLog;
    TNEMADiagnosticLogProxy nmeaLog;
    return {Finish(UserLogKeeper(), userLog, "user"), Finish(NmeaLogKeeper(), nmeaLog, "NMEA")};
}
