#include "nmea/TLinkSource.h"

#include <algorithm>
#include <utility>

TLinkSource::TLinkSource(int shortestPause, int longestPause)
    : m_ShortestPause(shortestPause)
    , m_LongestPause(longestPause)
    , m_NextPause(shortestPause)
    , m_IsOpen(false)
    , m_IsLost(false)
{
    m_Pause.setSingleShot(true);
    connect(&m_Pause, &QTimer::timeout, this, [this] { Connect(); });
}

void TLinkSource::Read()
{
    m_IsOpen = true;
    Connect();
}

void TLinkSource::Close()
{
    if (!std::exchange(m_IsOpen, false))
        return;
    m_Pause.stop();
    Disconnect();
}

void TLinkSource::Made()
{
    if (std::exchange(m_IsLost, false))
        emit Regained();
}

void TLinkSource::Failed(const QString& reason)
{
    if (!m_IsOpen || m_Pause.isActive()) // closed, or reported already
        return;
    Disconnect();
    m_Pause.start(m_NextPause);
    m_NextPause = std::min(2 * m_NextPause, m_LongestPause);
    if (!std::exchange(m_IsLost, true))
        emit Lost(reason);
}

void TLinkSource::Deliver(const QByteArray& bytes)
{
    m_NextPause = m_ShortestPause;
    emit Received(bytes);
}
