// run: the terminal on an NMEA stream.

#include "Command.h"
#include "CommandLine.h"
#include "Output.h"
#include "QuitOnSignal.h"
#include "RunProgress.h"
#include "RunSummary.h"
#include "Session.h"

#include "nmea/TNmeaInput.h"
#include "nmea/TNmeaReceiver.h"

#include <QCoreApplication>

#include <optional>

namespace {

const double GreatestSpeed = 1000;

/// Feeds the stream to the receiver until its end, or until a signal asks for it. Empty when the stream was read to its
/// end, else what went wrong.
QString Receive(const QString& source, double speed, TNmeaReceiver& receiver)
{
    QString problem;
    TNmeaInput input(source, speed);
    QObject::connect(&input, &TNmeaInput::LineReceived,
                     [&receiver](const QByteArray& line) { receiver.Receive(line); });
    QObject::connect(&input, &TNmeaInput::Finished, [&problem](bool, const QString& error) {
        problem = error;
        QCoreApplication::quit();
    });
    const TRunProgress progress(receiver);
    input.Start();
    QCoreApplication::exec();
    input.Stop();
    receiver.Finish();
    return problem;
}

} // namespace

int RunRun(const tagContext& context, const QStringList& arguments)
{
    TCommandLine line(QLatin1String("run"), QString(),
                      QLatin1String("Starts the terminal and feeds it an NMEA stream: the clock is set, the stream is "
                                    "logged. Ends with the stream, or on an interrupt, with a summary."),
                      QLatin1String("cabsettings run --nmea field.nmea"));
    line.AddOption(QLatin1String("nmea"), QLatin1String("The stream: a file, or - for standard input."),
                   QLatin1String("FILE"));
    line.AddOption(QLatin1String("speed"),
                   QLatin1String("How many times as fast as it was recorded a file is played; 0 as fast as it can be "
                                 "read."),
                   QLatin1String("N"), QLatin1String("0"));
    if (const auto status = line.Read(arguments, 0, 0))
        return *status;
    const QString source = line.Value(QLatin1String("nmea"));
    if (source.isEmpty())
        return line.Misused(QLatin1String("--nmea is missing; it takes a file, or - for standard input"));
    const auto speed = line.Number(QLatin1String("speed"), 0, GreatestSpeed);
    if (!speed)
        return STATUS_MISUSED;

    const TQuitOnSignal quitOnSignal; // before any thread starts, so that none takes the signal instead
    TSession session;
    if (!session.Open(context))
        return STATUS_FAILED;
    TNmeaReceiver receiver;
    const QString problem = Receive(source, *speed, receiver);
    if (!problem.isEmpty() && receiver.GetStatus().lines == 0)
        return Fail(problem); // nothing to sum up
    PrintRunSummary(session.Store(), receiver.GetStatus());
    if (!problem.isEmpty())
        return Fail(problem);
    if (receiver.GetStatus().unloggedLines > 0)
        return Fail(QString::fromLatin1("%1 lines could not be logged").arg(receiver.GetStatus().unloggedLines));
    return STATUS_DONE;
}
