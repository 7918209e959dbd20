#include "console/line/Completion.h"

bool Completion::IsAsked(const QStringList& arguments)
{
    return !arguments.isEmpty() && arguments.last() == QLatin1String("--complete");
}

QString Completion::Placeholder(const QString& usage, const QStringList& words)
{
    QString next = usage.split(QLatin1Char(' ')).value(static_cast<int>(words.size()));
    return next.remove(QLatin1Char('[')).remove(QLatin1Char(']'));
}
