#pragma once

#include "HostExport.h"
#include "nmea/TNmeaLineSplitter.h"

#include <QByteArray>
#include <QElapsedTimer>
#include <QObject>
#include <QString>
#include <QTimer>

#include <memory>

class QSocketNotifier;
class TNmeaStreamTime;

/// Reads an NMEA stream, a file, a pipe, a device or the standard input, and hands on its lines as received, from the
/// event loop of its thread, to which it returns after every 64 KiB at most.
class CABHOST_EXPORT TNmeaInput : public QObject
{
    Q_OBJECT

public:
    /// @param path of what is read; "-" is the standard input. A device is read as it is set up.
    /// @param speed of a file, which is played by the times of its own sentences: how many times as fast as it was
    ///        recorded. 0, and what is no positive number: as fast as it can be read. Everything that is no file comes
    ///        as fast as it is sent.
    explicit TNmeaInput(const QString& path, double speed = 0, QObject* parent = nullptr);
    ~TNmeaInput() override;

    /// Opens and reads as soon as the event loop runs. For one stream; call it once.
    void Start();

    /// Ends the stream here; Finished() follows before the return. What a file holds further on is not handed on; of a
    /// live source, a line that has come in part is. Without effect before Start() and after the end. May be called
    /// from a slot of LineReceived().
    void Stop();

signals:
    void LineReceived(const QByteArray& line);

    /// Once, at the end. @p error says what could not be opened or read and why, when not @p ok; else it is empty.
    void Finished(bool ok, const QString& error);

private:
    void Step();
    bool Open();
    bool Read();
    void HandOn();
    QByteArray NextLine();
    double Wait() const;
    void Fail(int error);
    void End(bool ok, const QString& error);

    const QString m_Path;
    const double m_Speed;
    std::unique_ptr<TNmeaStreamTime> m_StreamTime; ///< of what is paced
    TNmeaLineSplitter m_Splitter;
    QByteArray m_Waiting; ///< the line that is not due yet
    double m_DueAt;       ///< milliseconds on m_Elapsed
    QElapsedTimer m_Elapsed;
    QTimer m_Timer;
    QSocketNotifier* m_Notifier;
    int m_Fd;
    bool m_IsRunning;
    bool m_IsAtEnd; ///< of what can be read
};
