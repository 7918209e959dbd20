#pragma once

#include <QByteArray>
#include <QObject>
#include <QString>

/// Where the bytes of a stream come from. What is recorded waits to be read, what is live comes by itself.
class TByteSource : public QObject
{
    Q_OBJECT

public:
    /// Opens what is not open yet. Of a recording, each call gives one piece or the end; a live source is called once.
    virtual void Read() = 0;

    /// Nothing follows. May be called from a slot of any signal here; without effect when closed.
    virtual void Close() = 0;

    /// Known when it is open.
    virtual bool IsRecording() const = 0;

signals:
    /// 64 KiB at most.
    void Received(const QByteArray& bytes);

    /// A live source is gone, or not there yet: what comes next does not continue what came before. Once for each loss.
    void Lost(const QString& reason);
    void Regained();

    /// @param error says what could not be opened or read and why; empty at a good end.
    void Ended(const QString& error);
};
