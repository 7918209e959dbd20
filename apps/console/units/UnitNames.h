#pragma once

#include "units/EUnitsType.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

/// Units as people and tools name them.
namespace UnitNames {

/// All units, by number.
QList<EUnitsType> All();

/// The enumerator, "UNITS_L_PER_HA".
QString Name(EUnitsType unit);

/// The abbreviation, or the name of a unit that has none.
QString Shown(EUnitsType unit);
QStringList AllShown();

/// The quantity that the unit measures, "liquid rate". Nitrogen is a substance of its own: "nitrogen rate".
QString Quantity(EUnitsType unit);
QStringList Quantities();

/// The measuring system: "metric"; "imperial or US" when the settings decide, as for gallons.
QString Family(EUnitsType unit);

/// Finds a unit by abbreviation, name or number. Nothing when there is none.
std::optional<EUnitsType> Find(const QString& text);

} // namespace UnitNames
