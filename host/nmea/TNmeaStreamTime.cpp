#include "nmea/TNmeaStreamTime.h"

namespace {

const int MillisecondsPerDay = 24 * 60 * 60 * 1000;
const int LongestStep = 60 * 1000;

} // namespace

qint64 TNmeaStreamTime::Advance(const QByteArray& line)
{
    const QTime timeOfDay = m_Parser.Parse(line).info.timestamp().time();
    if (!timeOfDay.isValid())
        return m_Elapsed;
    if (m_TimeOfDay.isValid()) {
        const int step = (m_TimeOfDay.msecsTo(timeOfDay) + MillisecondsPerDay) % MillisecondsPerDay; // over midnight
        m_Elapsed += step <= LongestStep ? step : 0;
    }
    m_TimeOfDay = timeOfDay;
    return m_Elapsed;
}
