#include "console/terminal/ParameterArgument.h"
#include "console/line/Messages.h"

#include "parameters/ParameterText.h"

#include <QColor>

namespace {

QJsonValue Json(const QVariant& value)
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

} // namespace

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

QString ValueText(const tagParameter* known, const QVariant& value)
{
    return known ? TParameterCatalogue::Text(*known, value) : ParameterText::FromValue(value);
}

QJsonObject ParameterJson(int number, const QVariant& value)
{
    const tagParameter* const known = TParameterCatalogue::Find(number);
    QJsonObject object{
        {QLatin1String("number"), number},
        {QLatin1String("name"), known ? QJsonValue(known->name) : QJsonValue()},
        {QLatin1String("type"), known ? TParameterCatalogue::TypeName(known->type) : ParameterText::TypeName(value)},
        {QLatin1String("value"), Json(value)},
        {QLatin1String("text"), value.isValid() ? QJsonValue(ValueText(known, value)) : QJsonValue()}};
    if (known) {
        object.insert(QLatin1String("default"), Json(TParameterCatalogue::FirstValue(*known)));
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
