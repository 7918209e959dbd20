// run: the terminal on an NMEA stream.

#include "console/commands/Commands.h"
#include "console/commands/RunProgress.h"
#include "console/commands/RunSummary.h"
#include "console/line/CommandLine.h"
#include "console/line/Output.h"
#include "console/line/QuitOnSignal.h"
#include "console/terminal/Session.h"

#include "diagnostics/KeptLogs.h"
#include "nmea/NmeaAddress.h"
#include "nmea/RecordedTime.h"
#include "nmea/TNmeaInput.h"
#include "nmea/TNmeaReceiver.h"
#include "sun/TDaySwitch.h"

#include <QCoreApplication>

#include <optional>
#include <variant>

namespace {

const double GreatestSpeed = 1000;

/// Feeds the stream to the receiver until its end, or until a signal asks for it. Empty when the stream was read to its
/// end, else what went wrong.
QString Receive(const QString& source, const NmeaAddress& address, double speed, TNmeaReceiver& receiver,
                TDaySwitch& daySwitch)
{
    QString problem;
    TRunProgress progress(receiver);
    TNmeaInput input(address, speed);
    QObject::connect(&input, &TNmeaInput::LineReceived, [&receiver, &daySwitch](const QByteArray& line) {
        receiver.Receive(line);
        const TNmeaReceiver::tagStatus& status = receiver.GetStatus();
        if (status.hasFix)
            daySwitch.Look({status.latitude, status.longitude}, status.utc);
    });
    QObject::connect(&input, &TNmeaInput::Finished, [&problem](bool, const QString& error) {
        problem = error;
        QCoreApplication::quit();
    });
    QObject::connect(&input, &TNmeaInput::SourceLost, [&progress, &source](const QString& reason) {
        progress.Say(QString::fromLatin1("%1: %2; trying again").arg(source, reason));
    });
    QObject::connect(&input, &TNmeaInput::SourceRegained,
                     [&progress, &source] { progress.Say(QString::fromLatin1("%1: connected").arg(source)); });
    input.Start();
    QCoreApplication::exec();
    input.Stop();
    receiver.Finish();
    return problem;
}

void AddOptions(TCommandLine& line)
{
    line.AddOption(
        QLatin1String("nmea"),
        QLatin1String(
            "Source of the stream: a file or a pipe; - for standard input; tcp://HOST:PORT for a server that sends "
            "NMEA, or for gpsd; serial:///dev/NAME?baud=N for a serial device, at 4800 baud without baud=N."),
        QLatin1String("SOURCE"));
    line.AddOption(QLatin1String("speed"),
                   QLatin1String("Plays a file N times as fast as it was recorded; 0 plays it as fast as it can be "
                                 "read. A pipe is read as fast as it is sent."),
                   QLatin1String("N"), QLatin1String("0"));
    line.AddOption(QLatin1String("now"),
                   QLatin1String("Plays a file as a live receiver: the clock begins at the machine's time, as with "
                                 "pipes, servers and devices, and the first time of the file sets it."));
    line.AddJsonOption(QLatin1String("Prints the summary as an object."));
}

} // namespace

int RunRun(const tagContext& context, const QStringList& arguments)
{
    TCommandLine line(
        QLatin1String("run"), QString(),
        QLatin1String(
            "Starts the terminal and feeds it an NMEA stream: the stream sets the clock and is logged. Ends at the end "
            "of the stream or at an interrupt, and prints a summary. If closing takes longer than five seconds, "
            "another interrupt stops the program at once. A server or a serial device that is missing is tried again. "
            "A file is a recording: the clock begins at its first time, in the machine's time zone. The colours "
            "switch between day and night as display.day-switching says; with a recording, only until its end."),
        QLatin1String("cabsettings run --nmea field.nmea\n"
                      "  cabsettings run --nmea - <field.nmea\n"
                      "  cabsettings run --nmea tcp://localhost:2947\n"
                      "  cabsettings run --nmea 'serial:///dev/ttyUSB0?baud=9600'"));
    AddOptions(line);
    if (const auto status = line.Read(arguments, 0, 0))
        return *status;
    const QString source = line.Value(QLatin1String("nmea"));
    if (source.isEmpty())
        return line.Misused(QLatin1String("missing option; expected --nmea SOURCE: a file, - for standard input, "
                                          "tcp://HOST:PORT or serial:///dev/NAME"));
    QString error;
    const auto address = ReadNmeaAddress(source, &error);
    if (!address)
        return line.Misused(error);
    const auto speed = line.Number(QLatin1String("speed"), 0, GreatestSpeed);
    if (!speed)
        return STATUS_MISUSED;
    if (*speed > 0 && !std::holds_alternative<tagFileAddress>(*address))
        return line.Misused(QString::fromLatin1("unexpected option --speed; %1 is not a file").arg(source));
    const bool isNow = line.IsSet(QLatin1String("now"));
    if (isNow && !std::holds_alternative<tagFileAddress>(*address))
        return line.Misused(QString::fromLatin1("unexpected option --now; %1 is not a file").arg(source));

    const TQuitOnSignal quitOnSignal; // before any thread starts, so that none takes the signal instead
    TSession session;
    if (!session.Open(context, SESSION_TERMINAL))
        return STATUS_FAILED;
    const TChangeAuthor author(CHANGE_AUTHOR_LIBRARY); // from here on it is the terminal that changes parameters
    const bool isRecording = IsRecording(*address);
    const QDateTime begin = isRecording && !isNow ? FirstRecordedTime(*address) : QDateTime();
    if (begin.isValid())
        BeginClockAt(begin, session.Store());
    TNmeaReceiver receiver(isRecording ? NMEA_RECORDED : NMEA_LIVE);
    TDaySwitch daySwitch(session.Store(), isRecording ? TDaySwitch::TIMES_OF_A_RECORDING : TDaySwitch::TIMES_OF_TODAY);
    const QString problem = Receive(source, *address, *speed, receiver, daySwitch);
    if (!problem.isEmpty() && receiver.GetStatus().lines == 0)
        return Fail(problem); // nothing to sum up
    TNmeaReceiver::tagStatus status = receiver.GetStatus();
    status.unloggedLines += FinishLogs().nmeaLog;
    PrintRunSummary(session.Store(), status, line.WantsJson());
    if (!problem.isEmpty())
        return Fail(problem);
    if (status.unloggedLines > 0)
        return Fail(QString::fromLatin1("cannot log %1 lines").arg(status.unloggedLines));
    return STATUS_DONE;
}
