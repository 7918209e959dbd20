#pragma once

#include "nmea/TByteSource.h"

#include <QTimer>

/// A link to a receiver. Making it is tried until it stands, at first and after each loss, for ever. The pause before
/// the next try doubles up to the longest one; once something has been received it is the shortest one again.
class TLinkSource : public TByteSource
{
    Q_OBJECT

public:
    /// Milliseconds.
    explicit TLinkSource(int shortestPause = 250, int longestPause = 8000);

    void Read() override;
    void Close() override;
    bool IsRecording() const override { return false; }

protected:
    /// Tries to make the link, and sooner or later tells how it went: Made() or Failed().
    virtual void Connect() = 0;

    /// Leaves no link, and no try to make one.
    virtual void Disconnect() = 0;

    void Made();
    void Failed(const QString& reason); ///< also when what was made is lost; may be told more than once
    void Deliver(const QByteArray& bytes);
    bool IsOpen() const { return m_IsOpen; }

private:
    const int m_ShortestPause;
    const int m_LongestPause;
    int m_NextPause;
    QTimer m_Pause;
    bool m_IsOpen;
    bool m_IsLost; ///< and that has been said
};
