// support: a bundle for the service desk.

#include "console/commands/Commands.h"
#include "console/line/CommandLine.h"
#include "console/line/Output.h"
#include "console/terminal/Session.h"

#include "support/SupportBundle.h"

#include <QFileInfo>
#include <QJsonArray>
#include <QJsonObject>

#include <cstdio>
#include <unistd.h>

namespace {

const QLatin1String AnonymousOption("anonymous");
const char* const WipeLine = "\r\033[K";

void ShowMember(const QString& member, int number, int count)
{
    const QString line = QString::fromLatin1("%1 of %2: %3").arg(number + 1).arg(count).arg(member);
    std::fprintf(stderr, "%s%s", WipeLine, line.toUtf8().constData());
    std::fflush(stderr);
}

} // namespace

int RunSupport(const tagContext& context, const QStringList& arguments)
{
    TCommandLine line(
        QLatin1String("support"), QLatin1String("FILE"),
        QLatin1String(
            "Writes a zip archive for the service desk: the settings as a profile, the parameters, the journal of "
            "their changes, both logs, a "
            "check of the store, versions, memory and drives, and the names and sizes of all files. An existing "
            "FILE is replaced when the new archive is complete and on the disk."),
        QLatin1String("cabsettings support /media/usb/support.zip --anonymous"));
    line.AddOption(AnonymousOption,
                   QLatin1String("Replaces the names of clients, farms, fields, jobs and other items by words such as "
                                 "client-1, and removes positions. What else operators have written in entries of the "
                                 "user log stays."));
    line.AddJsonOption(QLatin1String("Prints an object: path, anonymous, bytes, members (the names of the files in the "
                                     "archive), problems (what could not be read)."));
    if (const auto status = line.Read(arguments, 1, 1))
        return *status;

    TSession session;
    if (!session.Open(context, SESSION_TERMINAL))
        return STATUS_FAILED;
    const QString path = line.Words().first();
    const tagSupportRequest request = {context.dataFolder, QLatin1String(CABSETTINGS_VERSION),
                                       line.IsSet(AnonymousOption)};
    const bool isTerminal = isatty(STDERR_FILENO) != 0;
    tagSupportBundle bundle;
    QString error;
    const bool isWritten =
        WriteSupportBundle(session.Store(), path, request,
                           isTerminal ? TSupportProgress(ShowMember) : TSupportProgress(), &bundle, &error);
    if (isTerminal)
        std::fputs(WipeLine, stderr);
    if (!isWritten)
        return Fail(Harmless(error));
    for (const QString& problem : bundle.problems)
        Fail(Harmless(problem)); // said; the bundle is complete without it
    if (line.WantsJson()) {
        PrintJson(QJsonObject{{QLatin1String("path"), path},
                              {QLatin1String("anonymous"), request.isAnonymous},
                              {QLatin1String("bytes"), QFileInfo(path).size()},
                              {QLatin1String("members"), QJsonArray::fromStringList(bundle.members)},
                              {QLatin1String("problems"), QJsonArray::fromStringList(bundle.problems)}});
    } else {
        PrintLine(QString::fromLatin1("%1 files in \"%2\"").arg(bundle.members.size()).arg(path));
    }
    return STATUS_DONE;
}
