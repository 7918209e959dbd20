#include "nmea/TNmeaLineSplitter.h"

#include <algorithm>

void TNmeaLineSplitter::Append(const char* data, int length)
{
    m_Buffer.remove(0, m_Start);
    m_Start = 0;
    m_Buffer.append(data, length);
}

QByteArray TNmeaLineSplitter::TakeLine()
{
    const auto from = m_Buffer.cbegin() + m_Start;
    const auto to = from + std::min<qint64>(MaxLineLength, m_Buffer.cend() - from);
    const auto lineFeed = std::find(from, to, '\n');
    if (lineFeed == to && to - from < MaxLineLength)
        return QByteArray();

    QByteArray line(from, static_cast<int>((lineFeed == to ? to : lineFeed + 1) - from));
    m_Start += static_cast<int>(line.size());
    return line;
}

QByteArray TNmeaLineSplitter::TakeRest()
{
    QByteArray rest = m_Buffer.mid(m_Start);
    m_Buffer.clear();
    m_Start = 0;
    return rest;
}
