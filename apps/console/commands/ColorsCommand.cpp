// colors: the two schemes of the display.

#include "console/commands/ColorCheck.h"
#include "console/commands/Commands.h"
#include "console/line/CommandLine.h"
#include "console/line/Messages.h"
#include "console/line/Output.h"
#include "console/terminal/Session.h"

#include "parameters/ParameterText.h"
#include "parameters/TParameterCatalogue.h"

#include <QColor>
#include <QJsonArray>
#include <QJsonObject>

#include <unistd.h>

namespace {

const char* const ColorOption = "color";
const char* const CheckOption = "check";

const char* const Day = "day";
const char* const Night = "night";
const QString Levels = QLatin1String("display.night-");

const int ValueWidth = 9; // "#aarrggbb"
const int Gap = 2;
const char* const Unpainted = "    ";

/// An element that both schemes have.
struct tagElement
{
    QString name;
    EParameterType type;
};

QString ParameterName(const QString& mode, const QString& element)
{
    return QLatin1String("colors.") + mode + QLatin1Char('.') + element;
}

QList<tagElement> Elements()
{
    const QString group = ParameterName(QLatin1String(Day), QString());
    QList<tagElement> elements;
    for (const tagParameter& parameter : TParameterCatalogue::Parameters()) {
        if (parameter.name.startsWith(group))
            elements.append({parameter.name.mid(group.size()), parameter.type});
    }
    return elements;
}

QVariant Value(TParameterStore& store, const QString& mode, const tagElement& element)
{
    return store.GetParameter(TParameterCatalogue::Find(ParameterName(mode, element.name))->id);
}

/// As the display reads it: invalid when the value is not a colour.
QColor Color(TParameterStore& store, const QString& mode, const tagElement& element)
{
    return Value(store, mode, element).value<QColor>();
}

QString Text(TParameterStore& store, const QString& mode, const tagElement& element)
{
    return ParameterText::FromValue(element.type == PARAMETER_COLOR ? QVariant(Color(store, mode, element))
                                                                    : Value(store, mode, element));
}

/// The cell of a table: a sample of the colour when @p isPainted, and the value.
QString Cell(TParameterStore& store, const QString& mode, const tagElement& element, bool isPainted)
{
    QString text = Text(store, mode, element).leftJustified(ValueWidth + Gap);
    if (!isPainted)
        return text;
    const QColor color = element.type == PARAMETER_COLOR ? Color(store, mode, element) : QColor();
    if (!color.isValid())
        return QLatin1String(Unpainted) + QLatin1Char(' ') + text;
    return QString::fromLatin1("\033[48;2;%1;%2;%3m%4\033[0m %5")
        .arg(color.red())
        .arg(color.green())
        .arg(color.blue())
        .arg(QLatin1String(Unpainted), text);
}

void PrintElements(TParameterStore& store, const QStringList& modes, bool isPainted)
{
    const QList<tagElement> elements = Elements();
    int width = 0;
    for (const tagElement& element : elements)
        width = qMax(width, static_cast<int>(element.name.size()) + Gap);

    QString titles = QString(width, QLatin1Char(' '));
    for (const QString& mode : modes) {
        titles += isPainted ? QLatin1String(Unpainted) + QLatin1Char(' ') : QString();
        titles += mode.leftJustified(ValueWidth + Gap);
    }
    PrintTrimmed(titles);
    for (const tagElement& element : elements) {
        QString line = element.name.leftJustified(width);
        for (const QString& mode : modes)
            line += Cell(store, mode, element, isPainted);
        PrintTrimmed(line);
    }
}

QList<const tagParameter*> LevelParameters()
{
    QList<const tagParameter*> levels;
    for (const tagParameter& parameter : TParameterCatalogue::Parameters()) {
        if (parameter.name.startsWith(Levels))
            levels.append(&parameter);
    }
    return levels;
}

void PrintLevels(TParameterStore& store)
{
    QList<QStringList> rows;
    const QList<const tagParameter*> levels = LevelParameters();
    for (const tagParameter* level : levels) {
        rows.append({level->name.mid(Levels.size()), TParameterCatalogue::Text(*level, store.GetParameter(level->id)) +
                                                         QLatin1Char(' ') + level->unit});
    }
    Print(QLatin1String("\nLevels at night:\n"));
    PrintTable(rows);
}

QJsonObject Json(TParameterStore& store, const QString& active, const QStringList& modes)
{
    QJsonArray colors;
    QJsonArray numbers;
    const QList<tagElement> elements = Elements();
    for (const tagElement& element : elements) {
        const bool isColor = element.type == PARAMETER_COLOR;
        QJsonObject object{{QLatin1String("name"), element.name}};
        for (const QString& mode : modes)
            object.insert(mode, isColor ? QJsonValue(Text(store, mode, element))
                                        : QJsonValue(Value(store, mode, element).toInt()));
        (isColor ? colors : numbers).append(object);
    }
    QJsonArray levels;
    if (modes.contains(QLatin1String(Night))) {
        const QList<const tagParameter*> parameters = LevelParameters();
        for (const tagParameter* level : parameters) {
            levels.append(QJsonObject{{QLatin1String("name"), level->name.mid(Levels.size())},
                                      {QLatin1String("value"), store.GetParameter(level->id).toInt()},
                                      {QLatin1String("unit"), level->unit}});
        }
    }
    return {{QLatin1String("mode"), active},
            {QLatin1String("colors"), colors},
            {QLatin1String("numbers"), numbers},
            {QLatin1String("levels"), levels}};
}

/// Whether standard output is a terminal that shows colours, and NO_COLOR does not forbid them.
bool CanPaint()
{
    const QByteArray terminal = qgetenv("TERM");
    return isatty(STDOUT_FILENO) && !terminal.isEmpty() && terminal != "dumb" &&
           qEnvironmentVariableIsEmpty("NO_COLOR");
}

} // namespace

int RunColors(const tagContext& context, const QStringList& arguments)
{
    TCommandLine line(
        QLatin1String("colors"), QLatin1String("[day|night]"),
        QLatin1String("Prints the colours of the map and the controls by day, by night or both, as #rrggbb (#aarrggbb "
                      "when translucent), the numbers of the background pictures, the levels at night, and the active "
                      "scheme. `cabsettings set display.day false` activates the scheme for the night. With --check, "
                      "prints the contrast of texts, controls and elements of the map instead, each with its bound. A "
                      "low contrast is a warning; the exit status is 0."),
        QLatin1String("cabsettings colors night"));
    line.AddOption(QLatin1String(ColorOption),
                   QLatin1String("Shows a sample of each colour: always, never or auto. With auto, samples appear on a "
                                 "terminal that has colours, unless NO_COLOR is set."),
                   QLatin1String("WHEN"), QLatin1String("auto"));
    line.AddOption(QLatin1String(CheckOption),
                   QLatin1String("Checks how well the colours can be told from what is behind them."));
    line.AddJsonOption(
        QLatin1String("Prints an object: mode, colors (name, day, night), numbers (name, day, night), levels "
                      "(name, value, unit). With --check, an array of objects: element, ground, scheme, color, "
                      "groundColor, ratio (null without a colour), bound, origin, verdict (ok, too low, no colour)."));
    if (const auto status = line.Read(arguments, 0, 1))
        return *status;
    QStringList modes = {QLatin1String(Day), QLatin1String(Night)};
    const QString wanted = line.Words().value(0);
    if (!line.Words().isEmpty()) {
        if (!modes.contains(wanted))
            return line.Misused(Messages::NotAmong(QLatin1String("scheme"), wanted, modes));
        modes = QStringList{wanted};
    }
    const QString when = line.Value(QLatin1String(ColorOption));
    const QStringList whens = {QLatin1String("always"), QLatin1String("never"), QLatin1String("auto")};
    if (!whens.contains(when))
        return line.InvalidValue(QLatin1String(ColorOption), ParameterText::Alternatives(whens));

    const bool checks = line.IsSet(QLatin1String(CheckOption));
    if (checks && line.IsSet(QLatin1String(ColorOption)))
        return line.Misused(QLatin1String("unexpected option --color; --check shows no samples"));

    TSession session;
    if (!session.Open(context, SESSION_STORE))
        return STATUS_FAILED;
    TParameterStore& store = session.Store();
    if (checks) {
        PrintColorCheck(store, modes, line.WantsJson());
        return STATUS_DONE;
    }
    const QString active = QLatin1String(store.GetParameter(PARAM_DAY_MODE).toBool() ? Day : Night);
    if (line.WantsJson()) {
        PrintJson(Json(store, active, modes));
        return STATUS_DONE;
    }
    Print(QString::fromLatin1("Active: %1\n\n").arg(active));
    PrintElements(store, modes, when == QLatin1String("always") || (when == QLatin1String("auto") && CanPaint()));
    if (modes.contains(QLatin1String(Night)))
        PrintLevels(store);
    return STATUS_DONE;
}
