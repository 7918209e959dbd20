#include "console/logs/LogArgument.h"

#include "console/line/Messages.h"
#include "console/logs/LogNames.h"
#include "console/terminal/Session.h"

#include "terminal/DataFolder.h"

bool IsLog(const QString& word, const TCommandLine& line)
{
    if (LogNames().contains(word))
        return true;
    line.Misused(Messages::NotAmong(QLatin1String("log"), word, LogNames()));
    return false;
}

std::optional<QString> FindLogDrive(const tagContext& context)
{
    TSession session;
    if (!session.Open(context, SESSION_STORE))
        return std::nullopt;
    QString problem; // said when the terminal runs
    return DataFolder::InternalDrive(context.dataFolder, session.Store().GetParameter(PARAM_INTERNAL_DRIVE).toString(),
                                     &problem);
}
