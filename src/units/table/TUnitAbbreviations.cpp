#include "units/TUnitAbbreviations.h"

#include "platform/QtCompat.h"
#include "units/table/UnitTable.h"

QString TUnitAbbreviations::UnitAbbreviations[UnitCount];
QString TUnitAbbreviations::Months[MonthCount];

static_assert(UnitCount == TUnitAbbreviations::UnitCount, "one abbreviation for each unit");

namespace {

const char* const MonthNames[] = {
    QT_TRANSLATE_NOOP("TUnitAbbreviations", "Jan"), QT_TRANSLATE_NOOP("TUnitAbbreviations", "Feb"),
    QT_TRANSLATE_NOOP("TUnitAbbreviations", "Mar"), QT_TRANSLATE_NOOP("TUnitAbbreviations", "Apr"),
    QT_TRANSLATE_NOOP("TUnitAbbreviations", "May"), QT_TRANSLATE_NOOP("TUnitAbbreviations", "Jun"),
    QT_TRANSLATE_NOOP("TUnitAbbreviations", "Jul"), QT_TRANSLATE_NOOP("TUnitAbbreviations", "Aug"),
    QT_TRANSLATE_NOOP("TUnitAbbreviations", "Sep"), QT_TRANSLATE_NOOP("TUnitAbbreviations", "Oct"),
    QT_TRANSLATE_NOOP("TUnitAbbreviations", "Nov"), QT_TRANSLATE_NOOP("TUnitAbbreviations", "Dec"),
};

static_assert(sizeof(MonthNames) / sizeof(MonthNames[0]) == TUnitAbbreviations::MonthCount, "twelve months");

const QChar DegreeSign(0xB0);

} // namespace

void TUnitAbbreviations::Initialize()
{
    const char* const context = staticMetaObject.className();
    for (int i = 0; i < MonthCount; ++i)
        Months[i] = QtCompat::Translate(context, MonthNames[i], nullptr);
    for (const tagUnit& unit : UnitTable) {
        if (unit.abbreviation.text)
            UnitAbbreviations[unit.type] =
                QtCompat::Translate(context, unit.abbreviation.text, unit.abbreviation.comment);
    }

    // These are not translated.
    UnitAbbreviations[UNITS_INCHES] = QLatin1Char('"');
    UnitAbbreviations[UNITS_CELSIUS] = QString(DegreeSign) + QLatin1Char('C');
    UnitAbbreviations[UNITS_FAHRENHEIT] = QString(DegreeSign) + QLatin1Char('F');

    // These are composed of translated texts.
    const QString hertzPer = UnitAbbreviations[UNITS_HERTZ] + QLatin1Char('/');
    UnitAbbreviations[UNITS_HZ_PER_KPH] = hertzPer + UnitAbbreviations[UNITS_KPH];
    UnitAbbreviations[UNITS_HZ_PER_MPH] = hertzPer + UnitAbbreviations[UNITS_MPH];
}

QString TUnitAbbreviations::GetStringFromUnitType(EUnitsType type, bool)
{
    return FindUnit(type) ? UnitAbbreviations[type] : QString();
}

EUnitsType TUnitAbbreviations::GetUnitTypeFromString(const QString& abbreviation, bool)
{
    for (const tagUnit& unit : UnitTable) {
        if (UnitAbbreviations[unit.type].compare(abbreviation, Qt::CaseInsensitive) == 0)
            return unit.type;
    }
    return UNITS_NONE;
}

bool TUnitAbbreviations::UnitTypeRequiresSpacing(EUnitsType type)
{
    const tagUnit* const unit = FindUnit(type);
    return !unit || unit->takesSpace;
}
