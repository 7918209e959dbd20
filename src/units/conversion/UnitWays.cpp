#include "units/conversion/UnitWays.h"

#include "units/TUnits.h"
#include "units/conversion/HistoricWays.h"
#include "units/conversion/Measures.h"
#include "units/table/UnitTable.h"

#include <cstddef>

namespace {

/// From one unit to another: a multiplication and a division where these two do, so that most ways are data.
struct tagWay
{
    using TSpecial = double (*)(const tagWay& way, double value);

    double operator()(double value) const
    {
        if (special)
            return special(*this, value);
        // Every factor is multiplied and divided: a branch that saves the division is often mispredicted, which costs
        // more.
        return Narrow(Widen(static_cast<float>(value)) * Wide(times) / Wide(over));
    }

    /// The way of a unit of two sizes by one of them; these two follow it.
    const tagWay& OfSize(bool us) const { return us ? this[1] : this[2]; }

    float times = 1.0f;
    float over = 1.0f;
    TSpecial special = nullptr;
    const TRoute* route = nullptr; ///< for conversions that are not one multiplication and one division
};

double Unchanged(const tagWay&, double value) { return value; }

double ByRoute(const tagWay& way, double value) { return (*way.route)(value); }

/// The metric system has neither gallons nor fluid ounces, and leaves the value alone.
[[gnu::flatten]] double ByMeasures(const tagWay& way, double value)
{
    return Measures::IsMetric() ? value : way.OfSize(Measures::IsUS())(value);
}

constexpr tagWay Special(tagWay::TSpecial special) { return {1.0f, 1.0f, special, nullptr}; }

constexpr tagWay By(const TRoute& route)
{
    if (route.IsSingle())
        return {route.First().times, route.First().over, nullptr, nullptr};
    return {1.0f, 1.0f, ByRoute, &route};
}

/// The hub whose conversions @p hub has.
constexpr EUnitsType Like(EUnitsType hub)
{
    for (const HistoricWays::tagAlike& row : HistoricWays::HubsAlike) {
        if (row.hub == hub)
            return row.like;
    }
    return hub;
}

constexpr std::size_t CountWays(const tagSizes& sizes)
{
    return !sizes.isConverted ? 0 : sizes.dependsOnMeasures ? 6 : 2;
}

constexpr std::size_t CountWays()
{
    std::size_t count = 1;
    for (const tagUnit& unit : UnitTable)
        count += CountWays(unit.sizes);
    for (const HistoricWays::tagLiquid& liquid : HistoricWays::LiquidsByMass)
        count += CountWays(liquid.sizes);
    return count;
}

static_assert(CountWays() <= 256, "ways are numbered by a byte");

/// The conversions of all units by pairs of units, so that the way from one to another is found at once.
class TMap
{
public:
    constexpr TMap()
    {
        m_Ways[0] = Special(Unchanged);
        std::size_t next = 1;
        for (const tagUnit& unit : UnitTable) {
            if (!unit.sizes.isConverted)
                continue;
            for (const tagUnit& hub : UnitTable) {
                if (hub.hub == hub.type && Like(hub.type) == Like(unit.hub))
                    Number(hub.type, unit.type, unit.sizes, next);
            }
            Add(unit.sizes, next);
        }
        for (const HistoricWays::tagLiquid& liquid : HistoricWays::LiquidsByMass) {
            Number(liquid.hub, liquid.unit, liquid.sizes, next);
            Add(liquid.sizes, next);
        }
    }

    /// Leaves the value as it is where there is no way, and for numbers that are no unit.
    constexpr const tagWay& operator()(EUnitsType from, EUnitsType to) const
    {
        const auto row = static_cast<unsigned>(from);
        const auto column = static_cast<unsigned>(to);
        return m_Ways[(row | column) < Side ? m_Numbers[row][column] : 0];
    }

private:
    /// Gives the next ways to a pair of units: those out of the hub, then those into it.
    constexpr void Number(EUnitsType hub, EUnitsType unit, const tagSizes& sizes, std::size_t next)
    {
        m_Numbers[hub][unit] = static_cast<unsigned char>(next);
        m_Numbers[unit][hub] = static_cast<unsigned char>(next + CountWays(sizes) / 2);
    }

    constexpr void Add(const tagSizes& sizes, std::size_t& next)
    {
        Add(sizes.dependsOnMeasures, sizes.us.out, sizes.english.out, next);
        Add(sizes.dependsOnMeasures, sizes.us.in, sizes.english.in, next);
    }

    constexpr void Add(bool dependsOnMeasures, const TRoute& us, const TRoute& english, std::size_t& next)
    {
        if (dependsOnMeasures) {
            m_Ways[next++] = Special(ByMeasures);
            m_Ways[next++] = By(us);
        }
        m_Ways[next++] = By(english);
    }

    /// A power of two, so that one comparison covers both numbers.
    static constexpr unsigned Side = 128;
    static_assert(UnitCount <= Side, "each unit has its row");

    tagWay m_Ways[CountWays()] = {};
    unsigned char m_Numbers[Side][Side] = {}; ///< from, to; an index into the ways, 0 for none
};

constexpr TMap Ways;

} // namespace

double UnitWays::Convert(double value, EUnitsType from, EUnitsType to, bool us)
{
    const tagWay& way = Ways(from, to);
    return way.special == ByMeasures ? way.OfSize(us)(value) : way(value);
}

double TUnits::ConvertUnit(double value, EUnitsType from, EUnitsType to) { return Ways(from, to)(value); }

bool TUnits::CanConvert(EUnitsType from, EUnitsType to)
{
    if (from == to)
        return true;
    const auto special = Ways(from, to).special;
    return special != Unchanged && !(special == ByMeasures && Measures::IsMetric());
}
