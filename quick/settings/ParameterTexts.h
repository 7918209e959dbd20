#pragma once

#include <QString>
#include <QVariant>

#include <optional>

struct tagParameter;

/// Values of parameters as an operator reads and enters them.
namespace ParameterTexts {

/// The value as a text: "Hectare", "30 %", "#1d4f7c". Empty when there is no value.
QString Shown(const tagParameter& parameter, const QVariant& value);

/// The name of an item as the operator reads it. "No Vehicle" and the other names that mean that nothing is selected
/// are in the language of the display; any other name stays as it is.
QString ItemName(const QString& item);

/// Which values are accepted, as words that can follow "Expected:".
QString Accepts(const tagParameter& parameter);

/// The values to choose from, each a map of value, name and text: of a choice, of true and false, and of the names that
/// a list may hold. Empty for other parameters.
QVariantList Choices(const tagParameter& parameter);

/// The text of a value that QML sets, as Read() takes it. Nothing for what cannot be a value, such as undefined.
std::optional<QString> Entered(const QVariant& value);

/// What is wrong with the type of a value that QML sets; empty when nothing is. A number, a choice and a yes or no are
/// not set as texts: what an operator types is read by Read().
QString TypeProblem(const tagParameter& parameter, const QVariant& value);

/// The value that was entered. Invalid when it is not accepted; @p problem is then one sentence for the operator.
QVariant Read(const tagParameter& parameter, const QString& entered, QString* problem);

} // namespace ParameterTexts
