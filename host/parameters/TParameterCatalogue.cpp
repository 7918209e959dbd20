#include "parameters/TParameterCatalogue.h"

#include "nmea/NmeaAddress.h"
#include "parameters/ItemNames.h"
#include "parameters/ParameterRows.h"
#include "parameters/ParameterText.h"
#include "parameters/UtcText.h"

#include <QColor>
#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QHash>
#include <QSet>
#include <QUuid>

#include <algorithm>

namespace {

using namespace ParameterRows;

const char* const TypeNames[] = {"bool", "int", "string", "color"}; // by EParameterType

QString Utf8(const char* text) { return QString::fromUtf8(text); }

tagParameter Begin(const tagAbout& about, EParameterType type)
{
    return {about.id, Utf8(about.name), type, {}, 0, 0, 0, {}, {}, {}, Utf8(about.meaning), Utf8(about.readers), {}};
}

tagParameter Parameter(const tagSwitch& row)
{
    tagParameter parameter = Begin(row.about, PARAMETER_BOOL);
    parameter.accepts = Utf8(QT_TRANSLATE_NOOP("ParameterTexts", "true or false"));
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
    parameter.accepts = ParameterText::Alternatives(names);
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

tagParameter Parameter(const tagText& row)
{
    tagParameter parameter = Begin(row.about, PARAMETER_STRING);
    parameter.accepts = Utf8(row.accepts);
    if (row.first)
        parameter.firstValue = Utf8(row.first);
    return parameter;
}

tagParameter Parameter(const tagNameList& row)
{
    tagParameter parameter = Begin(row.about, PARAMETER_STRING);
    for (std::size_t i = 0; i < row.count; ++i)
        parameter.names.append(Utf8(row.names[i]));
    parameter.accepts = QString::fromLatin1("names with commas between them, each at most once: %1")
                            .arg(ParameterText::Alternatives(parameter.names));
    parameter.firstValue = Utf8(row.first);
    return parameter;
}

tagParameter Parameter(const tagTime& row)
{
    tagParameter parameter = Begin(row.about, PARAMETER_STRING);
    parameter.accepts = Utf8(QT_TRANSLATE_NOOP("ParameterTexts", "a time in UTC, such as 2026-03-05T13:05:09Z"));
    return parameter;
}

tagParameter Parameter(const tagItem& row)
{
    tagParameter parameter = Begin(row.about, PARAMETER_STRING);
    parameter.mostBytes = row.hasExtension ? ItemNames::MostBytesOfItem : ItemNames::MostBytes;
    parameter.accepts =
        QString::fromLatin1("a name of at most %1 bytes that FAT file systems allow").arg(parameter.mostBytes);
    if (row.isFirstEmpty)
        parameter.firstValue = QString();
    return parameter;
}

tagParameter ColorParameter(EParamID id, const char* mode, const tagColor& row, QRgb first)
{
    tagParameter parameter = Begin({id, "", row.meaning, "the map and the controls"}, PARAMETER_COLOR);
    parameter.name = QString::fromLatin1("colors.%1.%2").arg(Utf8(mode), Utf8(row.name));
    parameter.meaning = QString::fromLatin1("colour of %1, by %2").arg(Utf8(row.meaning), Utf8(mode));
    parameter.accepts =
        Utf8(QT_TRANSLATE_NOOP("ParameterTexts", "a colour: #rrggbb, #aarrggbb or a name such as navy"));
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
    Append(&parameters, Texts);
    Append(&parameters, NameLists);
    Append(&parameters, Times);
    Append(&parameters, Items);
    for (const tagColor& row : Colors) {
        parameters.append(ColorParameter(row.day, "day", row, row.firstByDay));
        parameters.append(ColorParameter(row.night, "night", row, row.firstByNight));
    }
    tagParameter clock = Parameter(ClockOffset);
    clock.firstValue = QVariant(); // depends on the machine; see FirstValue()
    parameters.append(clock);
    std::sort(parameters.begin(), parameters.end(),
              [](const tagParameter& left, const tagParameter& right) { return left.id < right.id; });
    return parameters;
}

/// Whether @p path leads to the root folder.
bool IsRoot(const QString& path) { return QFileInfo(QDir::cleanPath(path)).canonicalFilePath() == QDir::rootPath(); }

/// Standard input is a file for a tool, not for a display.
bool IsReceiverAddress(const QString& text)
{
    QString error;
    const std::optional<NmeaAddress> address = ReadNmeaAddress(text, &error);
    if (!address || text == Utf8(SimulatorAddress))
        return address.has_value();
    const auto* const file = std::get_if<tagFileAddress>(&*address);
    return !file || QDir::isAbsolutePath(file->path);
}

/// Whether @p text names some of @p names, none twice. The empty text names none.
bool IsListOf(const QStringList& names, const QString& text)
{
    const QStringList listed = text.isEmpty() ? QStringList() : text.split(QLatin1Char(','));
    QSet<QString> seen;
    return std::all_of(listed.begin(), listed.end(), [&names, &seen](const QString& name) {
        const bool isNew = !seen.contains(name);
        seen.insert(name);
        return isNew && names.contains(name);
    });
}

/// Whether people may give the parameter @p value, which has the parameter's type.
bool IsAccepted(const tagParameter& parameter, const QVariant& value)
{
    const QString text = value.toString();
    switch (int{parameter.id}) {
    case PARAM_INTERNAL_DRIVE:
        return QDir::isAbsolutePath(text) && text.endsWith(QLatin1Char('/')) && !IsRoot(text);
    case PARAM_EXTERNAL_DRIVE:
        return QDir::isAbsolutePath(text);
    case PARAM_TERMINAL_IDENTITY:
        return !QUuid(text).isNull() && QUuid(text).toString(QUuid::WithoutBraces) == text;
    case PARAM_TIME_SOURCE_SINCE:
    case PARAM_NEWEST_TIME:
    case PARAM_DAY_SWITCHED:
        return FromUtcText(text).isValid();
    case PARAM_RECEIVER_ADDRESS:
        return IsReceiverAddress(text);
    default:
        if (!parameter.names.isEmpty())
            return IsListOf(parameter.names, text);
        const bool isNumber = parameter.type == PARAMETER_INT && parameter.choices.isEmpty();
        return !isNumber || (value.toInt() >= parameter.least && value.toInt() <= parameter.greatest);
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
    QStringList names;
    for (const tagParameter& parameter : Parameters())
        names.append(parameter.name);
    return ParameterText::Near(text, names);
}

QString TParameterCatalogue::TypeName(EParameterType type) { return Utf8(TypeNames[type]); }

QVariant TParameterCatalogue::Read(const tagParameter& parameter, const QString& text, QString* error)
{
    QVariant value = parameter.choices.isEmpty() ? ParameterText::ToValue(TypeName(parameter.type), text, error)
                                                 : ReadChoice(parameter, text);
    const bool isName = parameter.mostBytes > 0;
    const QString problem = isName ? ItemNames::Problem(text, parameter.mostBytes) : QString();
    if (value.isValid() && problem.isEmpty() && IsAccepted(parameter, value))
        return value;

    const QString invalid = QString::fromLatin1("invalid value \"%1\" for %2").arg(text, parameter.name);
    *error = isName ? QString::fromLatin1("%1: the name %2; did you mean \"%3\"?")
                          .arg(invalid, problem, ItemNames::Suggestion(text, parameter.mostBytes))
                    : QString::fromLatin1("%1; expected %2").arg(invalid, parameter.accepts);
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
    // The display's clock is an offset from UTC. Until it is set, it shows the machine's local time.
    return parameter.id == PARAM_CLOCK_OFFSET ? QVariant(QDateTime::currentDateTime().offsetFromUtc())
                                              : parameter.firstValue;
}
