#pragma once

#include "HostExport.h"
#include "platform/EParamID.h"

#include <QList>
#include <QString>
#include <QStringList>
#include <QVariant>

/// What kind of value a parameter has.
enum EParameterType : int
{
    PARAMETER_BOOL,
    PARAMETER_INT,
    PARAMETER_STRING,
    PARAMETER_COLOR,
};

/// A value that has a name of its own.
struct tagParameterChoice
{
    int value;
    QString name;
};

/// Everything that is known about one parameter.
struct tagParameter
{
    EParamID id;
    QString name; ///< for people and tools, for instance "units.metric"
    EParameterType type;
    QList<tagParameterChoice> choices; ///< of an int that has no others; else empty
    int least;                         ///< of an int without choices
    int greatest;
    int mostBytes;       ///< of an operator's name (see ItemNames); 0 for every other text
    QString accepts;     ///< what people may enter, in words
    QVariant firstValue; ///< see TParameterCatalogue::FirstValue()
    QString unit;        ///< empty without one
    QString meaning;
    QString readers; ///< what changes with it
};

/// Every parameter that the library uses, by number and by name. What people enter is checked against it: at a prompt,
/// in a dialogue, in a file that is imported. What the library writes itself never is.
///
/// May be used from any thread.
class CABHOST_EXPORT TParameterCatalogue
{
public:
    TParameterCatalogue() = delete;

    /// In the order of their numbers.
    static const QList<tagParameter>& Parameters();

    /// Null when there is none of that number, or of that name or number.
    static const tagParameter* Find(int number);
    static const tagParameter* Find(const QString& nameOrNumber);

    /// Names that @p text may have been meant to be, the nearest first; none when nothing is near.
    static QStringList Near(const QString& text);

    /// "bool", "int", "string" or "color".
    static QString TypeName(EParameterType type);

    /// What people wrote, as the parameter's value: choices go by name or number. An invalid variant, with @p error
    /// naming the parameter, what is wrong and what is accepted, when it is none.
    static QVariant Read(const tagParameter& parameter, const QString& text, QString* error);

    /// The value as people write it: a choice by its name.
    static QString Text(const tagParameter& parameter, const QVariant& value);

    /// The value of a first start on this machine at this moment; invalid when it follows from the terminal itself.
    static QVariant FirstValue(const tagParameter& parameter);
};
