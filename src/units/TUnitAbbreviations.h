#pragma once

#include "platform/Export.h"
#include "units/EUnitsType.h"

#include <QObject>
#include <QString>

/// Abbreviations of units and months in the language of the display. All static; the texts are empty until
/// Initialize() has run.
class CABSETTINGS_EXPORT TUnitAbbreviations : public QObject
{
    Q_OBJECT

public:
    /// Number of units, the valid numbers being 0 to one less.
    static constexpr int UnitCount = 115;
    static constexpr int MonthCount = 12;

    /// By EUnitsType.
    static QString UnitAbbreviations[UnitCount];

    /// January first.
    static QString Months[MonthCount];

    /// Fills both arrays. The host calls it once the translator of the language is installed, and again after a change
    /// of language; not while other threads read them.
    static void Initialize();

    /// The abbreviation; empty for a unit that has none and for a number that is no unit. @p isIgnored changes nothing.
    static QString GetStringFromUnitType(EUnitsType type, bool isIgnored);

    /// The first unit with that abbreviation, in upper or lower case; UNITS_NONE when there is none. @p isIgnored
    /// changes nothing.
    static EUnitsType GetUnitTypeFromString(const QString& abbreviation, bool isIgnored);

    /// Whether a blank stands between a number and the abbreviation: not before feet, inches and degrees, and not when
    /// there is no unit.
    static bool UnitTypeRequiresSpacing(EUnitsType type);
};
