#pragma once

#include "nmea/TByteSource.h"

#include <QTimer>

/// A connection to a receiver. At the start and after each loss it tries to connect until it succeeds, without limit.
/// The pause before the next attempt doubles up to the longest pause. After bytes were received, it is the shortest
/// pause again.
class TLinkSource : public TByteSource
{
    Q_OBJECT

public:
    /// @param shortestPause, longestPause in milliseconds.
    explicit TLinkSource(int shortestPause = 250, int longestPause = 8000);

    void Read() override;
    void Close() override;
    bool IsRecording() const override { return false; }

protected:
    /// Starts an attempt to connect. Call Made() or Failed() when its result is known.
    virtual void Connect() = 0;

    /// Ends the connection, or the attempt.
    virtual void Disconnect() = 0;

    /// To be called when the connection is made.
    void Made();

    /// To be called when an attempt has failed or the connection is lost. Further calls for the same loss do nothing.
    void Failed(const QString& reason);

    void Deliver(const QByteArray& bytes);

private:
    const int m_ShortestPause;
    const int m_LongestPause;
    int m_NextPause;
    QTimer m_Pause;
    bool m_IsOpen;
    bool m_IsLost; ///< Lost() was emitted, Regained() was not
};
