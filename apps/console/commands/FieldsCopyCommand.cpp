// fields copy: clients, farms, fields and jobs to a stick and back.

#include "console/commands/FieldsCommand.h"
#include "console/line/CommandLine.h"
#include "console/line/Output.h"
#include "console/terminal/FieldArgument.h"
#include "console/terminal/Session.h"

#include "fields/FieldPath.h"

#include <QElapsedTimer>
#include <QJsonObject>

#include <cstdio>
#include <unistd.h>

namespace {

const QLatin1String ToOption("to");
const QLatin1String ForceOption("force");

/// One line on the terminal that is written over; nothing when standard error is not a terminal.
class TCopyProgress
{
public:
    TCopyProgress() : m_IsTerminal(isatty(STDERR_FILENO) != 0) {}
    ~TCopyProgress()
    {
        if (m_Timer.isValid())
            std::fputs(WipeLine, stderr);
    }
    TCopyProgress(const TCopyProgress&) = delete;
    TCopyProgress& operator=(const TCopyProgress&) = delete;

    void Show(const tagFieldCopyState& state)
    {
        if (!m_IsTerminal || (m_Timer.isValid() && m_Timer.elapsed() < IntervalMs))
            return;
        m_Timer.start();
        const qint64 percent = state.allBytes > 0 ? 100 * state.bytes / state.allBytes : 100;
        const QString line = QString::fromLatin1("%1 of %2 files, %3 of %4 bytes (%5 %)")
                                 .arg(state.files)
                                 .arg(state.allFiles)
                                 .arg(state.bytes)
                                 .arg(state.allBytes)
                                 .arg(percent);
        std::fprintf(stderr, "%s%s", WipeLine, line.toUtf8().constData());
        std::fflush(stderr);
    }

private:
    static constexpr int IntervalMs = 200;
    static constexpr char WipeLine[] = "\r\033[K";

    const bool m_IsTerminal;
    QElapsedTimer m_Timer; ///< since the line was last shown
};

} // namespace

int RunFieldsCopy(const tagContext& context, const QStringList& arguments)
{
    TCommandLine line(
        QLatin1String("fields copy"), QLatin1String("PATH"),
        QLatin1String(
            "Copies a client, a farm, a field or a job, with all files and folders in it, to the same place on "
            "the other drive. PATH is CLIENT[/FARM[/FIELD[/JOB]]]. Each file is read back and compared by "
            "checksum before it gets its name. A copy that was interrupted goes on where it was when the "
            "command is run again: files that are there already are skipped. Refuses when files on the other "
            "drive differ. Prints what was copied; on a terminal also the progress."),
        QLatin1String("cabsettings fields copy Smith/North --to stick"));
    line.AddOption(ToOption, QLatin1String("Where to: stick, or internal for a copy from the stick. Required."),
                   QLatin1String("DRIVE"));
    line.AddOption(ForceOption, QLatin1String("Replaces files that differ."));
    line.AddJsonOption(QLatin1String("Prints an object: kind, path, to, copied and identical (numbers of files), bytes "
                                     "(of what was copied)."));
    OfferFieldPaths(line, context, ToOption, true);
    if (const auto status = line.Read(arguments, 1, 1))
        return *status;
    if (!line.IsSet(ToOption))
        return line.Misused(QLatin1String("missing option; expected --to stick or --to internal"));
    const auto target = FieldDriveNames::Read(line, ToOption);
    const QStringList path = target ? ReadFieldPath(line) : QStringList();
    if (path.isEmpty())
        return STATUS_MISUSED;

    TSession session;
    if (!session.Open(context, SESSION_TERMINAL))
        return STATUS_FAILED;
    tagFieldCopy copy = {};
    QString error;
    EFieldResult result = FIELD_FAILED;
    {
        TCopyProgress progress;
        result = TFieldTree(session.Store())
                     .Copy(
                         path, *target, line.IsSet(ForceOption),
                         [&progress](const tagFieldCopyState& state) { progress.Show(state); }, &copy, &error);
    }
    if (result != FIELD_DONE)
        return FailFields(result, error, "replaces them");
    if (line.WantsJson()) {
        PrintJson(QJsonObject{{QLatin1String("kind"), FieldPath::Kind(path)},
                              {QLatin1String("path"), FieldPath::Text(path)},
                              {QLatin1String("to"), line.Value(ToOption)},
                              {QLatin1String("copied"), copy.copied},
                              {QLatin1String("identical"), copy.identical},
                              {QLatin1String("bytes"), copy.bytes}});
    } else {
        PrintLine(QString::fromLatin1("%1 files copied (%2 bytes), %3 already there")
                      .arg(copy.copied)
                      .arg(copy.bytes)
                      .arg(copy.identical));
    }
    return STATUS_DONE;
}
