#include "console/line/Completion.h"

#include "console/line/Candidates.h"

bool Completion::IsAsked(const QStringList& arguments)
{
    return !arguments.isEmpty() && arguments.last() == QLatin1String("--complete");
}

QStringList Completion::Words(const QString& usage, const QStringList& words)
{
    QString next = usage.split(QLatin1Char(' ')).value(static_cast<int>(words.size()));
    next.remove(QLatin1Char('[')).remove(QLatin1Char(']'));
    return Candidates(next, words);
}
