#include "platform/UtcOffset.h"

#include <cstdlib>

namespace {

const int MinutesPerHour = 60;
const int SecondsPerMinute = 60;

} // namespace

int tagUtcOffset::Seconds() const { return (hours * MinutesPerHour + minutes) * SecondsPerMinute; }

QString tagUtcOffset::Text() const
{
    const int all = std::abs(Seconds()) / SecondsPerMinute;
    return QString::fromLatin1("%1%2:%3")
        .arg(QLatin1Char(Seconds() < 0 ? '-' : '+'))
        .arg(all / MinutesPerHour, 2, 10, QLatin1Char('0'))
        .arg(all % MinutesPerHour, 2, 10, QLatin1Char('0'));
}

tagUtcOffset StoredUtcOffset(TParameterStore& store)
{
    return {store.GetParameter(PARAM_UTC_OFFSET_HOURS).toInt(), store.GetParameter(PARAM_UTC_OFFSET_MINUTES).toInt()};
}
