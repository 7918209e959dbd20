#include "parameters/ParameterGroups.h"

#include "parameters/TParameterCatalogue.h"

#include <algorithm>
#include <iterator>
#include <string>
#include <string_view>

namespace {

using ParameterGroups::Device;

/// A member is the name of one parameter, or, with a full stop at its end, the beginning of the names of several.
struct tagMember
{
    const char* group;
    const char* member;
};

constexpr tagMember Members[] = {
    {"units", "units."},
    {"units", "rates."},
    {"region", "region."},
    {"colors", "colors."},
    {"display", "display.day"},
    {"display", "display.day-switching"},
    {"display", "display.night-lightbar"},
    {"display", "display.night-backlight"},
    {"display", "display.night-buttons"},
    {"display", "display.heading-up"},
    {"display", "display.tiles"},
    {"machine", "active.vehicle"},
    {"machine", "active.implement"},
    {"machine", "active.sprayer"},
    {"machine", "active.boom-leveller"},
    {"machine", "active.steering-profile"},
    {"machine", "system.implement-folder"},
    {"selections", "active.client"},
    {"selections", "active.farm"},
    {"selections", "active.field"},
    {"selections", "active.job"},
    {"selections", "active.boundary"},
    {"selections", "active.ab-line"},
    {"selections", "active.pivot"},
    {"selections", "active.curve"},
    {"selections", "active.optimal-lines"},
    {"selections", "active.project-lines"},
    {"selections", "active.zones"},
    {Device, "system.internal-drive"},
    {Device, "system.external-drive"},
    {Device, "display.day-switched"},
    {Device, "log."},
    {Device, "clock."},
    {Device, "terminal."},
    {Device, "receiver."},
};

constexpr bool Covers(std::string_view member, std::string_view name)
{
    return member.back() == '.' ? name.substr(0, member.size()) == member : name == member;
}

/// Whether no member covers another, so that no parameter can be in two groups.
constexpr bool AreApart()
{
    for (const tagMember& one : Members)
        for (const tagMember& other : Members)
            if (&one != &other && Covers(one.member, other.member))
                return false;
    return true;
}

static_assert(AreApart());

} // namespace

QStringList ParameterGroups::All()
{
    QStringList groups;
    for (const tagMember& row : Members) {
        const QString group = QLatin1String(row.group);
        if (!groups.contains(group))
            groups.append(group);
    }
    return groups;
}

QString ParameterGroups::Of(const QString& parameterName)
{
    const std::string name = parameterName.toStdString();
    const auto* const found = std::find_if(std::begin(Members), std::end(Members),
                                           [&name](const tagMember& row) { return Covers(row.member, name); });
    return found == std::end(Members) ? QString() : QString::fromLatin1(found->group);
}

bool ParameterGroups::IsOfDevice(int parameter)
{
    const tagParameter* const known = TParameterCatalogue::Find(parameter);
    return known && Of(known->name) == QLatin1String(Device);
}
