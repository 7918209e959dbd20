#pragma once

#include "platform/Export.h"
#include "units/EUnitsType.h"

#include <QObject>
#include <QString>

/// Abbreviations of units and months in the language of the display. All members are static.
///
/// @code
/// TUnitAbbreviations::Initialize(); // once a translator is installed
/// const QString text = TUnitAbbreviations::GetStringFromUnitType(UNITS_L_PER_HA, true); // "L/ha"
/// const EUnitsType unit = TUnitAbbreviations::GetUnitTypeFromString(text, true);        // UNITS_L_PER_HA
/// @endcode
class CABSETTINGS_EXPORT TUnitAbbreviations : public QObject
{
    Q_OBJECT

public:
    /// Number of units. Valid numbers are 0 to UnitCount - 1.
    static constexpr int UnitCount = UNITS_COUNT;
    static constexpr int MonthCount = 12;

    /// Indexed by EUnitsType. Empty until Initialize() has run.
    static QString UnitAbbreviations[UnitCount];

    /// January first. Empty until Initialize() has run.
    static QString Months[MonthCount];

    /// Fills both arrays with translated texts. The host calls it when it has installed a translator, and again after a
    /// change of language. Not while other threads read the arrays.
    static void Initialize();

    /// The abbreviation. Empty for a unit without one, and for a number that is no unit. @p isIgnored has no effect.
    static QString GetStringFromUnitType(EUnitsType type, bool isIgnored);

    /// The first unit with this abbreviation, in upper or lower case. UNITS_NONE when there is none. @p isIgnored has
    /// no effect.
    static EUnitsType GetUnitTypeFromString(const QString& abbreviation, bool isIgnored);

    /// Whether a blank separates a number and the abbreviation. False for feet, inches, degrees and UNITS_NONE.
    static bool UnitTypeRequiresSpacing(EUnitsType type);
};
