#include "diagnostics/KeptLogs.h"

#include "diagnostics/EConsoleEvent.h"
#include "diagnostics/TLogKeeper.h"
#include "logs/TNEMADiagnosticLogProxy.h"
#include "logs/TUserDiagnosticLogProxy.h"

#include <QLocale>

namespace {

QString IsoText(const QDateTime& time) { return QLocale::c().toString(time, QLatin1String("yyyy-MM-dd'T'HH:mm:ss")); }

QString Period(const TLogKeeper::tagGap& gap) { return IsoText(gap.from) + QLatin1Char(' ') + IsoText(gap.to); }

} // namespace

TLogKeeper& UserLogKeeper()
{
    static TLogKeeper keeper([](TDiagnosticLogProxy& log, const TLogKeeper::tagGap& gap) {
        static_cast<TUserDiagnosticLogProxy&>(log).AddEntry(
            DIAG_COMPONENT_CONSOLE, DIAG_TYPE_EVENT, CONSOLE_EVENT_LINES_LOST, QString::number(gap.lines), Period(gap));
    });
    return keeper;
}

/// The line begins with date and time, and so is none that a receiver sends.
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

void FinishLogs()
{
    TUserDiagnosticLogProxy userLog;
    UserLogKeeper().Finish(userLog);
    TNEMADiagnosticLogProxy nmeaLog;
    NmeaLogKeeper().Finish(nmeaLog);
}
