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

/// Reads an NMEA stream from wherever it comes and hands on its lines as received, from the event loop of its thread,
/// to which it returns after every 64 KiB at most.
///
/// A server and a serial device may come and go: they are waited for and opened again for as long as it takes, with a
/// pause between the tries that grows to eight seconds. Only a server whose host has never been found is an error. What
/// came of a line before a loss is handed on with a line end, so that neither here nor in a log does it run into the
/// line that comes next. Silence is no loss. A server that is gpsd is asked for NMEA; its own answers are lines too.
class CABHOST_EXPORT TNmeaInput : public QObject
{
    Q_OBJECT

public:
    /// @param speed of a file, which is played by the times of its own sentences: how many times as fast as it was
    ///        recorded. 0, and what is no positive number: as fast as it can be read. Everything that is no file comes
    ///        as fast as it is sent.
    explicit TNmeaInput(const NmeaAddress& address, double speed = 0, QObject* parent = nullptr);
    ~TNmeaInput() override;

    /// Opens and reads as soon as the event loop runs. For one stream; call it once.
    void Start();

    /// Ends the stream here; Finished() follows before the return. What a file holds further on is not handed on; of a
    /// live source, a line that has come in part is. Without effect before Start() and after the end. May be called
    /// from a slot of any signal here.
    void Stop();

signals:
    void LineReceived(const QByteArray& line);

    /// A server or a serial device is gone, or not there to begin with, and is tried again and again. Once for each
    /// loss, with the reason; SourceRegained() when it is there.
    void SourceLost(const QString& reason);
    void SourceRegained();

    /// Once, at the end. @p error says what could not be opened or read and why, when not @p ok; else it is empty.
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
    std::unique_ptr<TNmeaStreamTime> m_StreamTime; ///< of what is paced
    TNmeaLineSplitter m_Splitter;
    QByteArray m_Waiting; ///< the line that is not due yet
    double m_DueAt;       ///< milliseconds on m_Elapsed
    QElapsedTimer m_Elapsed;
    QTimer m_Timer;
    bool m_IsRunning;
    bool m_IsAtEnd; ///< of what can be read
};
