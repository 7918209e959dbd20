#include "console/line/Messages.h"

#include "parameters/ParameterText.h"

namespace Messages {

QString Unexpected(const QString& argument, const QString& expected)
{
    return QString::fromLatin1("unexpected argument \"%1\"; expected %2")
        .arg(argument, expected.isEmpty() ? QLatin1String("no arguments") : expected);
}

QString Missing(const QString& expected) { return QString::fromLatin1("missing argument; expected %1").arg(expected); }

QString Invalid(const QString& thing, const QString& word, const QString& expected)
{
    return QString::fromLatin1("invalid %1 \"%2\"; expected %3").arg(thing, word, expected);
}

QString Unknown(const QString& thing, const QString& word, const QStringList& near, const QString& expected)
{
    const QString beginning = QString::fromLatin1("unknown %1 \"%2\"").arg(thing, word);
    if (near.isEmpty())
        return QString::fromLatin1("%1; expected %2").arg(beginning, expected);
    QStringList quoted;
    for (const QString& name : near)
        quoted.append(QString::fromLatin1("\"%1\"").arg(name));
    return QString::fromLatin1("%1; did you mean %2?").arg(beginning, ParameterText::Alternatives(quoted));
}

QString NotAmong(const QString& thing, const QString& word, const QStringList& names)
{
    return Unknown(thing, word, ParameterText::Near(word, names), ParameterText::Alternatives(names));
}

} // namespace Messages
