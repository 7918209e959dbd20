#include "settings/ParameterTexts.h"

#include "settings/ParameterTitles.h"

#include "parameters/ItemNames.h"
#include "parameters/ParameterText.h"
#include "parameters/TParameterCatalogue.h"
#include "system/TSystemSettings.h"

#include <QCoreApplication>

#include <cmath>
#include <limits>

namespace {

/// The characters that a name must not contain and that operators type most often.
const char* const NotInNames = "/ \\ : * ? \" < > |";

QString Translated(const char* text) { return QCoreApplication::translate("ParameterTexts", text); }

QVariantMap Choice(const QVariant& value, const QString& name, const QString& text)
{
    return {{QLatin1String("value"), value}, {QLatin1String("name"), name}, {QLatin1String("text"), text}};
}

bool HasRange(const tagParameter& parameter) { return parameter.type == PARAMETER_INT && parameter.choices.isEmpty(); }

QString WithUnit(const QString& number, const QString& unit)
{
    return unit.isEmpty() ? number : number + QLatin1Char(' ') + unit;
}

/// The values of a parameter that has a range. Empty when any whole number is one.
QString Range(const tagParameter& parameter)
{
    const auto number = [&parameter](int end) {
        return WithUnit(QString::number(end), ParameterTitles::Unit(parameter));
    };
    if (parameter.least == std::numeric_limits<int>::min())
        return QString();
    if (parameter.greatest == std::numeric_limits<int>::max())
        return Translated(QT_TRANSLATE_NOOP("ParameterTexts", "At least %1")).arg(number(parameter.least));
    return Translated(QT_TRANSLATE_NOOP("ParameterTexts", "%1 to %2"))
        .arg(QString::number(parameter.least), number(parameter.greatest));
}

QString WithRange(const QString& problem, const tagParameter& parameter)
{
    const QString range = Range(parameter);
    return range.isEmpty() ? problem : problem + QLatin1Char(' ') + range;
}

QString NotWhole() { return Translated(QT_TRANSLATE_NOOP("ParameterTexts", "Not a whole number.")); }

QString NotAccepted(const tagParameter& parameter)
{
    return Translated(QT_TRANSLATE_NOOP("ParameterTexts", "Not accepted. Expected: %1."))
        .arg(ParameterTexts::Accepts(parameter));
}

QString RangeProblem(const tagParameter& parameter, const QString& entered)
{
    bool isNumber = false;
    const double number = entered.toDouble(&isNumber);
    const bool isWhole = isNumber && std::trunc(number) == number;
    return WithRange(!isWhole ? NotWhole()
                     : number < parameter.least
                         ? Translated(QT_TRANSLATE_NOOP("ParameterTexts", "Below the least value."))
                         : Translated(QT_TRANSLATE_NOOP("ParameterTexts", "Above the greatest value.")),
                     parameter);
}

/// What the catalogue would say is for a tool: it names the parameter and repeats the value.
QString Problem(const tagParameter& parameter, const QString& entered)
{
    if (HasRange(parameter))
        return RangeProblem(parameter, entered);
    if (parameter.mostBytes > 0) {
        return Translated(QT_TRANSLATE_NOOP("ParameterTexts", "This cannot be the name of a file. Try: %1"))
            .arg(ItemNames::Suggestion(entered, parameter.mostBytes));
    }
    return NotAccepted(parameter);
}

/// Stored names that stand for none are the same in every language.
bool IsNone(const QString& item)
{
    return item == TSystemSettings::DefaultVehicleProfile || item == TSystemSettings::DefaultSteeringProfile ||
           item == TSystemSettings::DefaultSprayerProfile || item == TSystemSettings::DefaultImplementProfile;
}

} // namespace

QString ParameterTexts::Shown(const tagParameter& parameter, const QVariant& value)
{
    const bool isChoice = value.userType() == QMetaType::Bool || value.userType() == QMetaType::Int;
    QString choice = isChoice ? ParameterTitles::Choice(parameter, value.toInt()) : QString();
    if (!choice.isEmpty())
        return choice;
    const QString text = TParameterCatalogue::Text(parameter, value);
    if (parameter.mostBytes > 0)
        return ItemName(text);
    if (parameter.names.isEmpty())
        return text.isEmpty() ? text : WithUnit(text, ParameterTitles::Unit(parameter));

    QStringList names;
    for (const QString& name : text.split(QLatin1Char(','))) {
        const QString listed = ParameterTitles::ListedName(name);
        names.append(listed.isEmpty() ? name : listed);
    }
    return names.join(QLatin1String(", "));
}

QVariantList ParameterTexts::Choices(const tagParameter& parameter)
{
    QVariantList choices;
    for (const tagParameterChoice& choice : parameter.choices)
        choices.append(Choice(choice.value, choice.name, ParameterTitles::Choice(parameter, choice.value)));
    if (parameter.type == PARAMETER_BOOL) {
        for (const bool value : {true, false})
            choices.append(Choice(value, ParameterText::FromValue(value), ParameterTitles::Choice(parameter, value)));
    }
    for (const QString& name : parameter.names)
        choices.append(Choice(name, name, ParameterTitles::ListedName(name)));
    return choices;
}

QString ParameterTexts::ItemName(const QString& item)
{
    return IsNone(item) ? QCoreApplication::translate("TSystemSettings", item.toUtf8().constData()) : item;
}

/// What the catalogue says of items, numbers and choices is for a tool.
QString ParameterTexts::Accepts(const tagParameter& parameter)
{
    if (parameter.mostBytes > 0)
        return Translated(QT_TRANSLATE_NOOP("ParameterTexts", "a name without %1")).arg(QLatin1String(NotInNames));
    if (HasRange(parameter)) {
        const QString range = Range(parameter);
        return range.isEmpty() ? Translated(QT_TRANSLATE_NOOP("ParameterTexts", "a whole number")) : range;
    }
    QStringList texts;
    for (const QVariant& choice : Choices(parameter))
        texts.append(choice.toMap().value(QLatin1String("text")).toString());
    return texts.isEmpty() ? Translated(parameter.accepts.toUtf8().constData()) : texts.join(QLatin1String(", "));
}

std::optional<QString> ParameterTexts::Entered(const QVariant& value)
{
    switch (value.userType()) {
    case QMetaType::Double: // any number of QML may arrive as one
        return QString::number(value.toDouble(), 'g', std::numeric_limits<double>::max_digits10);
    case QMetaType::Bool:
    case QMetaType::Int:
    case QMetaType::QString:
    case QMetaType::QColor:
        return ParameterText::FromValue(value);
    default:
        return std::nullopt;
    }
}

QString ParameterTexts::TypeProblem(const tagParameter& parameter, const QVariant& value)
{
    const bool isText = value.userType() == QMetaType::QString;
    if (!isText || (parameter.type != PARAMETER_INT && parameter.type != PARAMETER_BOOL))
        return QString();
    return HasRange(parameter) ? WithRange(NotWhole(), parameter) : NotAccepted(parameter);
}

QVariant ParameterTexts::Read(const tagParameter& parameter, const QString& entered, QString* problem)
{
    QString error;
    QVariant value = TParameterCatalogue::Read(parameter, entered, &error);
    *problem = value.isValid() ? QString() : Problem(parameter, entered);
    return value;
}
