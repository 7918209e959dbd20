#pragma once

#include <QByteArray>
#include <QObject>
#include <QString>

/// A source of bytes. A recording is read piece by piece; a live source sends by itself.
class TByteSource : public QObject
{
    Q_OBJECT

public:
    /// Opens the source at the first call. For a recording, each call gives one piece or the end. For a live source,
    /// one call is enough.
    virtual void Read() = 0;

    /// Closes the source; no signal follows. May be called from a slot of any signal of this class. Does nothing when
    /// the source is closed.
    virtual void Close() = 0;

    /// Whether the source is a file. Valid after it was opened.
    virtual bool IsRecording() const = 0;

signals:
    /// At most 64 KiB.
    void Received(const QByteArray& bytes);

    /// A live source is lost, or not available yet. Bytes that come later do not continue those that came before.
    /// Emitted once for each loss.
    void Lost(const QString& reason);
    void Regained();

    /// @param error what could not be opened or read, and why; empty after a good end.
    void Ended(const QString& error);
};
