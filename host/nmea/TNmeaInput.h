#pragma once

#include "HostExport.h"
#include "nmea/NmeaAddress.h"
#include "nmea/TNmeaLineSplitter.h"

#include <QByteArray>
#include <QElapsedTimer>
#include <QObject>
#include <QString>
#include <QTimer>

#include <memory>

class TByteSource;
class TNmeaStreamTime;

/// Reads an NMEA stream from a file, a pipe, a server or a serial device, and emits its lines as received. Works in the
/// event loop of its thread, and returns to it after at most 64 KiB.
///
/// \code
/// TNmeaInput input(*ReadNmeaAddress(QLatin1String("tcp://localhost:2947"), &error));
/// QObject::connect(&input, &TNmeaInput::LineReceived, [&](const QByteArray& line) { receiver.Receive(line); });
/// input.Start();
/// \endcode
///
/// A server or a serial device may be absent at the start, or get lost: it is tried again without limit, with pauses
/// that grow to eight seconds. A server whose name cannot be resolved is no exception. Silence is not a loss.
///
/// If the source is lost within a line, the part that was received is emitted with a line end, so that it does not run
/// into the next line, here or in a log. If a server is gpsd, it is asked for NMEA; its own answers are emitted as
/// lines.
class CABHOST_EXPORT TNmeaInput : public QObject
{
    Q_OBJECT

public:
    /// @param speed how many times as fast as it was recorded a file is played, by the times in its sentences. As fast
    ///        as it can be read if @p speed is 0 or not a positive number. Other sources ignore it.
    explicit TNmeaInput(const NmeaAddress& address, double speed = 0, QObject* parent = nullptr);
    ~TNmeaInput() override;

    /// Opens the source and reads, as soon as the event loop runs. Call it once.
    void Start();

    /// Ends the stream; Finished() is emitted before the return. From a live source, everything that was received is
    /// emitted first, an incomplete last line included; from a file, nothing more. Does nothing before Start() and
    /// after the end. May be called from a slot of any signal of this class.
    void Stop();

signals:
    void LineReceived(const QByteArray& line);

    /// A server or a serial device is lost, or was not there at the start. It is tried again until SourceRegained().
    /// Emitted once for each loss.
    void SourceLost(const QString& reason);
    void SourceRegained();

    /// Emitted once, at the end. @p error is what could not be opened or read, and why; empty when @p ok.
    void Finished(bool ok, const QString& error);

private:
    void Step();
    void Take(const QByteArray& bytes);
    void BreakLine(const QString& reason);
    void TakeEnd(const QString& error);
    void HandOn();
    QByteArray NextLine();
    double Wait() const;
    void End(const QString& error);

    const double m_Speed;
    std::unique_ptr<TByteSource> m_Source;
    std::unique_ptr<TNmeaStreamTime> m_StreamTime; ///< of a file that is played by its times; else null
    TNmeaLineSplitter m_Splitter;
    QByteArray m_Waiting; ///< a line that is not due yet
    double m_DueAt;       ///< when the last line read is due, milliseconds on m_Elapsed
    QElapsedTimer m_Elapsed;
    QTimer m_Timer;
    bool m_IsRunning;
    bool m_IsAtEnd; ///< the source has no more bytes
};
