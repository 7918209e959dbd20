#pragma once

#include <QString>
#include <QStringList>

struct tagParameter;

/// The words that an operator reads for parameters, in the language of the display: short, where the catalogue's names
/// are for tools and its meanings are sentences.
namespace ParameterTitles {

/// "Metric units"
QString Title(const tagParameter& parameter);

/// The element of a colour's parameter, by day and by night: "Coverage". Empty for other parameters.
QString Element(const tagParameter& parameter);

/// What the parameter is for, as a text that begins with a capital.
QString Meaning(const tagParameter& parameter);

/// "min", "%"; empty for a number without a unit.
QString Unit(const tagParameter& parameter);

/// The word for a value: a choice by its number, true and false by 1 and 0. Empty when the value is not a choice.
QString Choice(const tagParameter& parameter, int value);

/// The word for a name in a list.
QString ListedName(const QString& name);

/// The place of the parameter on a page of settings: the smaller, the farther ahead.
int Place(const tagParameter& parameter);

/// The text before the first full stop of the parameter's name: "units".
QString Group(const tagParameter& parameter);

/// All groups, in the order in which a display shows them, and their titles.
QStringList Groups();
QString GroupTitle(const QString& group);

} // namespace ParameterTitles
