#pragma once

#include "HostExport.h"
#include "platform/EParamID.h"

#include <QList>
#include <QString>
#include <QStringList>
#include <QVariant>

/// The type of a parameter's value.
enum EParameterType : int
{
    PARAMETER_BOOL,
    PARAMETER_INT,
    PARAMETER_STRING,
    PARAMETER_COLOR,
};

/// A value of a parameter, and its name.
struct tagParameterChoice
{
    int value;
    QString name;
};

/// The description of one parameter.
struct tagParameter
{
    EParamID id;
    QString name; ///< for instance "units.metric"
    EParameterType type;
    QList<tagParameterChoice> choices; ///< the only values of an int; empty when there is a range, and for other types
    int least;                         ///< the range of an int without choices
    int greatest;
    int mostBytes;       ///< longest name, for a name that ItemNames checks; 0 for other parameters
    QString accepts;     ///< a text that says which values are accepted
    QVariant firstValue; ///< see TParameterCatalogue::FirstValue()
    QString unit;        ///< empty when the value has no unit
    QString meaning;
    QString readers;   ///< a text that says what the parameter has an effect on
    QStringList names; ///< of what a list may hold, for a string with commas between names; empty for other parameters
};

/// The list of all parameters that the library uses. Programs use it to check and to explain what people enter: at a
/// prompt, in a dialogue, in a file that is imported. Values that the library writes itself are not checked.
///
/// @code
/// const tagParameter* const parameter = TParameterCatalogue::Find(QLatin1String("units.area"));
/// const QVariant value = TParameterCatalogue::Read(*parameter, text, &error);
/// if (value.isValid())
///     store.SetParameter(parameter->id, value, true);
/// @endcode
///
/// May be used from any thread.
class CABHOST_EXPORT TParameterCatalogue
{
public:
    TParameterCatalogue() = delete;

    /// All parameters, in the order of their numbers.
    static const QList<tagParameter>& Parameters();

    /// The parameter with this number, or with this name or number; null when there is none. Letter case is ignored.
    static const tagParameter* Find(int number);
    static const tagParameter* Find(const QString& nameOrNumber);

    /// The names that are similar to @p text; see ParameterText::Near().
    static QStringList Near(const QString& text);

    /// "bool", "int", "string" or "color".
    static QString TypeName(EParameterType type);

    /// Reads what people have entered. A choice is given by its name or its number. Returns an invalid variant when the
    /// text is not accepted; @p error then names the parameter and says what is wrong and what is accepted.
    static QVariant Read(const tagParameter& parameter, const QString& text, QString* error);

    /// The value as a text that Read() accepts. A choice is written by its name.
    static QString Text(const tagParameter& parameter, const QVariant& value);

    /// The value of a first start, at this moment on this machine; invalid when the parameter is absent at first.
    static QVariant FirstValue(const tagParameter& parameter);
};
