#include "parameters/ParameterText.h"

#include <QColor>
#include <QMetaType>

#include <algorithm>
#include <cmath>
#include <iterator>

namespace {

const char* const TrueWords[] = {"true", "yes", "on", "1"};
const char* const FalseWords[] = {"false", "no", "off", "0"};

template <std::size_t Count>
bool IsOneOf(const QString& text, const char* const (&words)[Count])
{
    return std::any_of(std::begin(words), std::end(words), [&text](const char* word) {
        return text.compare(QLatin1String(word), Qt::CaseInsensitive) == 0;
    });
}

QVariant ToBool(const QString& text)
{
    if (IsOneOf(text, TrueWords))
        return true;
    return IsOneOf(text, FalseWords) ? QVariant(false) : QVariant();
}

QVariant ToInt(const QString& text)
{
    bool isNumber = false;
    const int number = text.toInt(&isNumber);
    return isNumber ? QVariant(number) : QVariant();
}

QVariant ToDouble(const QString& text)
{
    bool isNumber = false;
    const double number = text.toDouble(&isNumber);
    return isNumber && std::isfinite(number) ? QVariant(number) : QVariant();
}

QVariant ToString(const QString& text) { return text; }

QVariant ToColor(const QString& text) { return QColor::isValidColor(text) ? QVariant(QColor(text)) : QVariant(); }

QString FromAny(const QVariant& value) { return value.toString(); }

QString FromColor(const QVariant& value)
{
    const QColor color = value.value<QColor>();
    if (!color.isValid())
        return QLatin1String("invalid");
    return color.name(color.alpha() == 255 ? QColor::HexRgb : QColor::HexArgb);
}

struct tagType
{
    const char* name;
    int metaType;
    QVariant (*toValue)(const QString& text);
    QString (*fromValue)(const QVariant& value);
    const char* accepted;
};

const tagType Types[] = {
    {"bool", QMetaType::Bool, ToBool, FromAny, "true or false"},
    {"int", QMetaType::Int, ToInt, FromAny, "a whole number from -2147483648 to 2147483647"},
    {"double", QMetaType::Double, ToDouble, FromAny, "a number, with a full stop"},
    {"string", QMetaType::QString, ToString, FromAny, "any text"},
    {"color", QMetaType::QColor, ToColor, FromColor, "a colour: #rrggbb, #aarrggbb or a name such as navy"},
};

const tagType* Find(const QVariant& value)
{
    for (const tagType& type : Types) {
        if (type.metaType == value.userType())
            return &type;
    }
    return nullptr;
}

} // namespace

QStringList ParameterText::TypeNames()
{
    QStringList names;
    for (const tagType& type : Types)
        names.append(QLatin1String(type.name));
    return names;
}

QString ParameterText::TypeName(const QVariant& value)
{
    const tagType* const type = Find(value);
    return QLatin1String(type ? type->name : value.typeName());
}

QString ParameterText::FromValue(const QVariant& value)
{
    const tagType* const type = Find(value);
    return type ? type->fromValue(value) : value.toString();
}

QVariant ParameterText::ToValue(const QString& typeName, const QString& text, QString* error)
{
    for (const tagType& type : Types) {
        if (typeName != QLatin1String(type.name))
            continue;
        QVariant value = type.toValue(text);
        if (!value.isValid())
            *error = QString::fromLatin1("\"%1\" is not %2").arg(text, QLatin1String(type.accepted));
        return value;
    }
    *error = QString::fromLatin1("there is no type \"%1\"; the types are %2")
                 .arg(typeName, TypeNames().join(QLatin1String(", ")));
    return QVariant();
}
