#pragma once

#include <QString>
#include <QStringList>

/// The groups of the parameters, as ProfileGroups describes them.
namespace ParameterGroups {

/// The group of what belongs to one terminal.
constexpr const char* Device = "device";

QStringList All();

/// The group of a parameter of the catalogue; empty for any other name.
QString Of(const QString& parameterName);

/// Whether a parameter belongs to one terminal. False for a number that the catalogue does not know.
bool IsOfDevice(int parameter);

} // namespace ParameterGroups
