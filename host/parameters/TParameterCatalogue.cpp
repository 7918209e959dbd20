#include "parameters/TParameterCatalogue.h"

#include "parameters/ItemNames.h"
#include "parameters/ParameterRows.h"
#include "parameters/ParameterText.h"

#include <QColor>
#include <QDateTime>
#include <QDir>
#include <QHash>

#include <algorithm>

namespace {

using namespace ParameterRows;

const char* const TypeNames[] = {"bool", "int", "string", "color"}; // by EParameterType

QString Utf8(const char* text) { return QString::fromUtf8(text); }

tagParameter Begin(const tagAbout& about, EParameterType type)
{
    return {about.id, Utf8(about.name), type, {}, 0, 0, 0, {}, {}, {}, Utf8(about.meaning), Utf8(about.readers)};
}

tagParameter Parameter(const tagSwitch& row)
{
    tagParameter parameter = Begin(row.about, PARAMETER_BOOL);
    parameter.accepts = Utf8("true or false");
    parameter.firstValue = row.first;
    return parameter;
}

tagParameter Parameter(const tagSelection& row)
{
    tagParameter parameter = Begin(row.about, PARAMETER_INT);
    QStringList names;
    for (std::size_t i = 0; i < row.count; ++i) {
        parameter.choices.append({row.choices[i].value, Utf8(row.choices[i].name)});
        names.append(QString::fromLatin1("%1 (%2)").arg(Utf8(row.choices[i].name)).arg(row.choices[i].value));
    }
    parameter.accepts = names.join(Utf8(", "));
    parameter.firstValue = row.first;
    return parameter;
}

tagParameter Parameter(const tagNumber& row)
{
    tagParameter parameter = Begin(row.about, PARAMETER_INT);
    parameter.least = row.least;
    parameter.greatest = row.greatest;
    parameter.accepts = QString::fromLatin1("a whole number from %1 to %2").arg(row.least).arg(row.greatest);
    parameter.firstValue = row.first;
    parameter.unit = Utf8(row.unit);
    return parameter;
}

tagParameter Parameter(const tagDrive& row)
{
    tagParameter parameter = Begin(row.about, PARAMETER_STRING);
    parameter.accepts = Utf8(row.accepts);
    return parameter;
}

tagParameter Parameter(const tagItemName& row)
{
    tagParameter parameter = Begin(row.about, PARAMETER_STRING);
    parameter.mostBytes = row.hasExtension ? ItemNames::MostBytesOfItem : ItemNames::MostBytes;
    parameter.accepts =
        QString::fromLatin1("a name that a FAT stick can hold, of at most %1 bytes").arg(parameter.mostBytes);
    if (row.isFirstEmpty)
        parameter.firstValue = QString();
    return parameter;
}

tagParameter ColorParameter(EParamID id, const char* mode, const tagColor& row, QRgb first)
{
    tagParameter parameter = Begin({id, "", row.meaning, "the map and the controls"}, PARAMETER_COLOR);
    parameter.name = QString::fromLatin1("colors.%1.%2").arg(Utf8(mode), Utf8(row.name));
    parameter.meaning = QString::fromLatin1("colour of %1, by %2").arg(Utf8(row.meaning), Utf8(mode));
    parameter.accepts = Utf8("a colour: #rrggbb, #aarrggbb or a name such as navy");
    parameter.firstValue = QColor::fromRgb(first);
    return parameter;
}

template <class Row, std::size_t Count>
void Append(QList<tagParameter>* parameters, const Row (&rows)[Count])
{
    for (const Row& row : rows)
        parameters->append(Parameter(row));
}

QList<tagParameter> AllParameters()
{
    QList<tagParameter> parameters;
    Append(&parameters, Switches);
    Append(&parameters, Selections);
    Append(&parameters, Numbers);
    Append(&parameters, Drives);
    Append(&parameters, ParameterRows::ItemNames);
    for (const tagColor& row : Colors) {
        parameters.append(ColorParameter(row.day, "day", row, row.firstByDay));
        parameters.append(ColorParameter(row.night, "night", row, row.firstByNight));
    }
    tagParameter clock = Parameter(ClockOffset);
    clock.firstValue = QVariant(); // the machine's
    parameters.append(clock);
    std::sort(parameters.begin(), parameters.end(),
              [](const tagParameter& left, const tagParameter& right) { return left.id < right.id; });
    return parameters;
}

/// How many characters must be put in, taken out or replaced to make one text of the other.
int Distance(const QString& from, const QString& to)
{
    QList<int> row;
    for (int i = 0; i <= to.size(); ++i)
        row.append(i);
    for (int i = 1; i <= from.size(); ++i) {
        int diagonal = row.at(0);
        row[0] = i;
        for (int k = 1; k <= to.size(); ++k) {
            const int replaced = diagonal + (from.at(i - 1) == to.at(k - 1) ? 0 : 1);
            diagonal = row.at(k);
            row[k] = std::min({replaced, row.at(k) + 1, row.at(k - 1) + 1});
        }
    }
    return row.last();
}

/// Smaller is nearer; words that stand in the name, or share its last part, come before mere similarity.
int Remoteness(const QString& text, const QString& name)
{
    const QString last = name.section(QLatin1Char('.'), 1);
    if (name.contains(text))
        return 0;
    return std::min(Distance(text, name), 1 + Distance(text.section(QLatin1Char('.'), -1), last));
}

QString Problem(const tagParameter& parameter, const QVariant& value)
{
    switch (parameter.id) {
    case PARAM_INTERNAL_DRIVE:
        if (!value.toString().endsWith(QLatin1Char('/')))
            return Utf8("does not end in \"/\"");
        [[fallthrough]];
    case PARAM_EXTERNAL_DRIVE:
        return QDir::isAbsolutePath(value.toString()) ? QString() : Utf8("is not an absolute path");
    default:
        return QString();
    }
}

QVariant ReadChoice(const tagParameter& parameter, const QString& text)
{
    for (const tagParameterChoice& choice : parameter.choices) {
        if (text.compare(choice.name, Qt::CaseInsensitive) == 0 || text == QString::number(choice.value))
            return choice.value;
    }
    return QVariant();
}

} // namespace

const QList<tagParameter>& TParameterCatalogue::Parameters()
{
    static const QList<tagParameter> parameters = AllParameters();
    return parameters;
}

const tagParameter* TParameterCatalogue::Find(int number)
{
    const QList<tagParameter>& all = Parameters();
    const auto found = std::lower_bound(all.begin(), all.end(), number,
                                        [](const tagParameter& parameter, int id) { return parameter.id < id; });
    return found != all.end() && found->id == number ? &*found : nullptr;
}

const tagParameter* TParameterCatalogue::Find(const QString& nameOrNumber)
{
    bool isNumber = false;
    const int number = nameOrNumber.toInt(&isNumber);
    if (isNumber)
        return Find(number);
    const QList<tagParameter>& all = Parameters();
    const auto found = std::find_if(all.begin(), all.end(), [&nameOrNumber](const tagParameter& parameter) {
        return parameter.name.compare(nameOrNumber, Qt::CaseInsensitive) == 0;
    });
    return found != all.end() ? &*found : nullptr;
}

QStringList TParameterCatalogue::Near(const QString& text)
{
    const int farthest = std::min(3, static_cast<int>(text.size()) / 2);
    const int most = 4;
    QList<QPair<int, QString>> found;
    for (const tagParameter& parameter : Parameters()) {
        const int remoteness = Remoteness(text.toLower(), parameter.name);
        if (!text.isEmpty() && remoteness <= farthest)
            found.append(qMakePair(remoteness, parameter.name));
    }
    std::sort(found.begin(), found.end());
    QStringList names;
    for (const auto& each : found.mid(0, most))
        names.append(each.second);
    return names;
}

QString TParameterCatalogue::TypeName(EParameterType type) { return Utf8(TypeNames[type]); }

QVariant TParameterCatalogue::Read(const tagParameter& parameter, const QString& text, QString* error)
{
    QVariant value = parameter.choices.isEmpty() ? ParameterText::ToValue(TypeName(parameter.type), text, error)
                                                 : ReadChoice(parameter, text);
    QString problem;
    if (!value.isValid()) {
        problem = Utf8("is refused");
    } else if (parameter.type == PARAMETER_INT && parameter.choices.isEmpty()) {
        if (value.toInt() < parameter.least || value.toInt() > parameter.greatest)
            problem = Utf8("is out of range");
    } else if (parameter.mostBytes > 0) {
        problem = ItemNames::Problem(text, parameter.mostBytes);
    } else {
        problem = Problem(parameter, value);
    }
    if (problem.isEmpty())
        return value;

    const QString advice =
        parameter.mostBytes > 0
            ? QString::fromLatin1("; \"%1\" would do").arg(ItemNames::Suggestion(text, parameter.mostBytes))
            : QString();
    *error = QString::fromLatin1("%1: \"%2\" %3; accepted: %4%5")
                 .arg(parameter.name, text, problem, parameter.accepts, advice);
    return QVariant();
}

QString TParameterCatalogue::Text(const tagParameter& parameter, const QVariant& value)
{
    for (const tagParameterChoice& choice : parameter.choices) {
        if (value.userType() == QMetaType::Int && value.toInt() == choice.value)
            return choice.name;
    }
    return ParameterText::FromValue(value);
}

QVariant TParameterCatalogue::FirstValue(const tagParameter& parameter)
{
    // The display's clock is an offset from UTC; before anyone has set it, it shows what the machine takes for local.
    return parameter.id == PARAM_CLOCK_OFFSET ? QVariant(QDateTime::currentDateTime().offsetFromUtc())
                                              : parameter.firstValue;
}
