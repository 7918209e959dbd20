#include "console/units/UnitNames.h"

#include "units/TUnitAbbreviations.h"
#include "units/TUnits.h"
#include "units/table/UnitTable.h"

#include <QStringList>

#include <array>
#include <string_view>
#include <utility>

namespace {

/// The compiler's own text for the enumerator: told nowhere else, so it cannot drift.
template <EUnitsType Unit>
constexpr std::string_view EnumeratorName()
{
    const std::string_view text = __PRETTY_FUNCTION__;
    const std::size_t start = text.find("UNITS_");
    return text.substr(start, text.find_first_of("];", start) - start);
}

template <std::size_t... Numbers>
constexpr std::array<std::string_view, sizeof...(Numbers)> EnumeratorNames(std::index_sequence<Numbers...>)
{
    return {EnumeratorName<static_cast<EUnitsType>(Numbers)>()...};
}

constexpr auto Names = EnumeratorNames(std::make_index_sequence<UnitCount>());

static_assert(Names[UNITS_LONGITUDE] == "UNITS_LONGITUDE", "the compiler names enumerators in another way");

struct tagQuantity
{
    EUnitsType hub;
    const char* name;
};

constexpr tagQuantity QuantityTable[] = {
    {UNITS_METERS, "distance"},
    {UNITS_HECTARES, "area"},
    {UNITS_METERS_PER_MIN, "speed per minute"},
    {UNITS_METERS_PER_SECOND, "speed"},
    {UNITS_HZ_PER_KPH, "speed calibration"},
    {UNITS_HECTARES_PER_HOUR, "productivity"},
    {UNITS_LITERS, "volume"},
    {UNITS_L_PER_HA, "liquid rate"},
    {UNITS_L_PER_MIN, "flow"},
    {UNITS_L_PER_REV, "volume per revolution"},
    {UNITS_KPA, "pressure"},
    {UNITS_M_PER_PULSE, "wheel calibration"},
    {UNITS_PULSES_PER_L, "flow calibration"},
    {UNITS_KG, "weight"},
    {UNITS_KG_N, "nitrogen weight"},
    {UNITS_KG_PER_HA, "weight rate"},
    {UNITS_KG_N_PER_HA, "nitrogen rate"},
    {UNITS_KG_PER_MIN, "discharge"},
    {UNITS_KG_N_PER_MIN, "nitrogen discharge"},
    {UNITS_KG_PER_REV, "weight per revolution"},
    {UNITS_KG_PER_L, "density"},
    {UNITS_PULSES_PER_KG_N, "nitrogen calibration"},
    {UNITS_KSEEDS_PER_HA, "seed rate"},
    {UNITS_SECONDS, "time"},
    {UNITS_MILLISECONDS, "time"},
    {UNITS_MINUTES, "time"},
    {UNITS_HOURS, "time"},
    {UNITS_HERTZ, "frequency"},
    {UNITS_CELSIUS, "temperature"},
    {UNITS_FAHRENHEIT, "temperature"},
    {UNITS_RPM, "rotation"},
    {UNITS_AMPERES, "current"},
    {UNITS_WATTS, "power"},
    {UNITS_MILLIWATTS, "power"},
    {UNITS_LATITUDE, "position"},
    {UNITS_LONGITUDE, "position"},
};

constexpr const char* FamilyNames[] = {"neutral", "metric", "imperial", "US"};

QString Text(std::string_view text) { return QString::fromLatin1(text.data(), static_cast<int>(text.size())); }

} // namespace

QList<EUnitsType> UnitNames::All()
{
    QList<EUnitsType> units;
    for (const tagUnit& unit : UnitTable)
        units.append(unit.type);
    return units;
}

QString UnitNames::Name(EUnitsType unit)
{
    return FindUnit(unit) ? Text(Names[static_cast<std::size_t>(unit)]) : QString();
}

QString UnitNames::Shown(EUnitsType unit)
{
    const QString abbreviation = TUnitAbbreviations::GetStringFromUnitType(unit, true);
    return abbreviation.isEmpty() ? Name(unit) : abbreviation;
}

QStringList UnitNames::AllShown()
{
    QStringList names;
    for (const tagUnit& unit : UnitTable)
        names.append(Shown(unit.type));
    return names;
}

QString UnitNames::Quantity(EUnitsType unit)
{
    const EUnitsType hub = TUnits::GetConversionHub(unit);
    for (const tagQuantity& quantity : QuantityTable) {
        if (quantity.hub == hub)
            return QLatin1String(quantity.name);
    }
    return QLatin1String("none");
}

QStringList UnitNames::Quantities()
{
    QStringList names;
    for (const tagQuantity& quantity : QuantityTable)
        names.append(QLatin1String(quantity.name));
    names.removeDuplicates();
    return names;
}

QString UnitNames::Family(EUnitsType unit)
{
    if (TUnits::DependsOnUSMeasures(unit))
        return QLatin1String("imperial or US");
    const tagUnit* const row = FindUnit(unit);
    return row ? QLatin1String(FamilyNames[row->family]) : QString();
}

std::optional<EUnitsType> UnitNames::Find(const QString& text)
{
    bool isNumber = false;
    const int number = text.toInt(&isNumber);
    if (isNumber)
        return FindUnit(number) ? std::optional<EUnitsType>(static_cast<EUnitsType>(number)) : std::nullopt;
    for (const tagUnit& unit : UnitTable) {
        if (Name(unit.type).compare(text, Qt::CaseInsensitive) == 0)
            return unit.type;
    }
    const EUnitsType unit = TUnitAbbreviations::GetUnitTypeFromString(text, true);
    return unit != UNITS_NONE ? std::optional<EUnitsType>(unit) : std::nullopt;
}
