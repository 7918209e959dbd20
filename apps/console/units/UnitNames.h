#pragma once

#include "units/EUnitsType.h"

#include <QList>
#include <QString>

#include <optional>

/// Units as people and tools name them.
namespace UnitNames {

/// All units, by number.
QList<EUnitsType> All();

/// The enumerator, "UNITS_L_PER_HA".
QString Name(EUnitsType unit);

/// The abbreviation, or the name of a unit that has none.
QString Shown(EUnitsType unit);

/// The quantity that the unit measures, "liquid rate"; every unit of a quantity has one hub.
QString Quantity(EUnitsType unit);
QStringList Quantities();

/// The measuring system, "metric".
QString Family(EUnitsType unit);

/// Finds a unit by abbreviation, name or number. Nothing when there is none.
std::optional<EUnitsType> Find(const QString& text);

} // namespace UnitNames
