#include "parameters/ParameterText.h"

#include <QColor>
#include <QList>
#include <QMetaType>
#include <QPair>

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

const int MostNear = 4;     ///< names that Near() gives
const int ShortestPart = 3; ///< of a name that tells it from others

/// How many characters must be inserted, removed, replaced or swapped with the next to make one text of the other.
int Distance(const QString& from, const QString& to)
{
    QList<int> twoBefore;
    QList<int> before;
    QList<int> row;
    for (int k = 0; k <= to.size(); ++k)
        row.append(k);
    for (int i = 1; i <= from.size(); ++i) {
        twoBefore = before;
        before = row;
        row[0] = i;
        for (int k = 1; k <= to.size(); ++k) {
            const bool isSame = from.at(i - 1) == to.at(k - 1);
            row[k] = std::min({before.at(k - 1) + (isSame ? 0 : 1), before.at(k) + 1, row.at(k - 1) + 1});
            if (i > 1 && k > 1 && from.at(i - 1) == to.at(k - 2) && from.at(i - 2) == to.at(k - 1))
                row[k] = std::min(row.at(k), twoBefore.at(k - 2) + 1);
        }
    }
    return row.last();
}

/// Smaller is nearer. A name that contains the text comes first, and one that differs in its group alone comes early.
int Remoteness(const QString& text, const QString& name)
{
    if (text.size() >= ShortestPart && name.contains(text))
        return 0;
    const QString last = name.section(QLatin1Char('.'), 1);
    const int distance = Distance(text, name);
    return last.isEmpty() ? distance : std::min(distance, 1 + Distance(text.section(QLatin1Char('.'), -1), last));
}

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
            *error = QString::fromLatin1("invalid value \"%1\"; expected %2").arg(text, QLatin1String(type.accepted));
        return value;
    }
    *error = QString::fromLatin1("unknown type \"%1\"; expected %2").arg(typeName, Alternatives(TypeNames()));
    return QVariant();
}

QString ParameterText::Alternatives(const QStringList& names)
{
    if (names.size() < 2)
        return names.join(QString());
    return QString::fromLatin1("%1 or %2").arg(names.mid(0, names.size() - 1).join(QLatin1String(", ")), names.last());
}

QStringList ParameterText::Near(const QString& text, const QStringList& names)
{
    const int farthest = std::min(3, static_cast<int>(text.size()) / 2);
    QList<QPair<int, QString>> found;
    for (const QString& name : names) {
        const int remoteness = Remoteness(text.toLower(), name.toLower());
        if (text.size() > 1 && remoteness <= farthest)
            found.append(qMakePair(remoteness, name));
    }
    std::sort(found.begin(), found.end());
    QStringList near;
    for (const auto& each : found.mid(0, MostNear))
        near.append(each.second);
    return near;
}
