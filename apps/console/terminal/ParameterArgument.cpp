#include "console/terminal/ParameterArgument.h"
#include "console/line/Messages.h"
#include "console/line/Output.h"

#include "parameters/ParameterText.h"

#include <QColor>
#include <QRegularExpression>

QString tagParameterArgument::Name() const
{
    return known ? known->name : QString::fromLatin1("parameter %1").arg(static_cast<int>(id));
}

std::optional<tagParameterArgument> ReadParameter(const QString& word, const TCommandLine& line)
{
    bool isNumber = false;
    const int number = word.toInt(&isNumber);
    const tagParameter* const known = TParameterCatalogue::Find(word);
    if (known)
        return tagParameterArgument{known->id, known, isNumber};
    if (isNumber && number >= 0)
        return tagParameterArgument{static_cast<EParamID>(number), nullptr, true};

    line.Misused(Messages::Unknown(QLatin1String("parameter"), word, TParameterCatalogue::Near(word),
                                   QLatin1String("a name or a number that `cabsettings list` prints")));
    return std::nullopt;
}

bool FitsPattern(const QString& pattern, int number)
{
    if (pattern.isEmpty())
        return true;
    const tagParameter* const known = TParameterCatalogue::Find(number);
    const QRegularExpression expression(QRegularExpression::wildcardToRegularExpression(pattern),
                                        QRegularExpression::CaseInsensitiveOption);
    if (expression.match(QString::number(number)).hasMatch())
        return true;
    return known && (expression.match(known->name).hasMatch() || known->name.contains(pattern, Qt::CaseInsensitive));
}

QString NoMatch(const QString& pattern) { return QString::fromLatin1("no parameter matches \"%1\"").arg(pattern); }

QMap<int, QVariant> ListedValues(const TParameterStore& store)
{
    QMap<int, QVariant> values = store.Values();
    for (const tagParameter& parameter : TParameterCatalogue::Parameters()) {
        if (!values.contains(parameter.id))
            values.insert(parameter.id, QVariant());
    }
    return values;
}

QString ValueText(const tagParameter* known, const QVariant& value)
{
    return known ? TParameterCatalogue::Text(*known, value) : ParameterText::FromValue(value);
}

QString ValueTextOrNotSet(const tagParameter* known, const QVariant& value)
{
    return value.isValid() ? ValueText(known, value) : QLatin1String("(not set)");
}

QJsonValue ValueJson(const QVariant& value)
{
    switch (value.userType()) {
    case QMetaType::Bool:
        return value.toBool();
    case QMetaType::Int:
        return value.toInt();
    case QMetaType::Double:
        return value.toDouble();
    default:
        return value.isValid() ? QJsonValue(ParameterText::FromValue(value)) : QJsonValue();
    }
}

QString ChangeText(int number, const QVariant& oldValue, const QVariant& newValue)
{
    const tagParameter* const known = TParameterCatalogue::Find(number);
    return Harmless(QString::fromLatin1("%1: %2 -> %3")
                        .arg(known ? known->name : QString::number(number), OrNone(ValueTextOrNotSet(known, oldValue)),
                             OrNone(ValueTextOrNotSet(known, newValue))));
}

QJsonObject ChangeJson(int number, const QVariant& oldValue, const QVariant& newValue)
{
    const tagParameter* const known = TParameterCatalogue::Find(number);
    const auto text = [known](const QVariant& value) {
        return value.isValid() ? QJsonValue(ValueText(known, value)) : QJsonValue();
    };
    return {{QLatin1String("number"), number},
            {QLatin1String("name"), known ? QJsonValue(known->name) : QJsonValue()},
            {QLatin1String("old"), ValueJson(oldValue)},
            {QLatin1String("oldText"), text(oldValue)},
            {QLatin1String("new"), ValueJson(newValue)},
            {QLatin1String("newText"), text(newValue)}};
}

QJsonObject ParameterJson(int number, const QVariant& value)
{
    const tagParameter* const known = TParameterCatalogue::Find(number);
    QJsonObject object{
        {QLatin1String("number"), number},
        {QLatin1String("name"), known ? QJsonValue(known->name) : QJsonValue()},
        {QLatin1String("type"), known ? TParameterCatalogue::TypeName(known->type) : ParameterText::TypeName(value)},
        {QLatin1String("value"), ValueJson(value)},
        {QLatin1String("text"), value.isValid() ? QJsonValue(ValueText(known, value)) : QJsonValue()}};
    if (known) {
        object.insert(QLatin1String("default"), ValueJson(TParameterCatalogue::FirstValue(*known)));
        object.insert(QLatin1String("accepts"), known->accepts);
        object.insert(QLatin1String("unit"), known->unit);
        object.insert(QLatin1String("meaning"), known->meaning);
        object.insert(QLatin1String("readers"), known->readers);
    } else {
        for (const char* field : {"default", "accepts", "unit", "meaning", "readers"})
            object.insert(QLatin1String(field), QJsonValue());
    }
    return object;
}
