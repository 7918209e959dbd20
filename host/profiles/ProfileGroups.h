#pragma once

#include "HostExport.h"

#include <QString>
#include <QStringList>

/// The groups in which people export and import parameters. Every parameter of TParameterCatalogue is in exactly one.
///
/// @code
/// ProfileGroups::Of(QLatin1String("units.area")); // "units"
/// for (const QString& group : ProfileGroups::ImportedByDefault())
///     AddCheckBox(group);
/// @endcode
///
/// May be used from any thread.
namespace ProfileGroups {

/// All groups: units, region, colors, display, machine, selections and device.
CABHOST_EXPORT QStringList All();

/// All groups but "device". The parameters of that group belong to one terminal: its drives, the numbers of its log
/// files, its clock, its receiver and its identity. An import takes them only when the group is named.
CABHOST_EXPORT QStringList ImportedByDefault();

/// The group of a parameter of the catalogue; empty for any other name.
CABHOST_EXPORT QString Of(const QString& parameterName);

} // namespace ProfileGroups
