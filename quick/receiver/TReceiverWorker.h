#pragma once

#include "nmea/FixQuality.h"
#include "nmea/TNmeaReceiver.h"
#include "stores/TParameterStore.h"

#include <QByteArray>
#include <QMetaType>
#include <QObject>
#include <QString>
#include <QTimer>

#include <memory>

class TDaySwitch;
class TNmeaInput;
class TSimulatedInput;

/// What the receiver has told up to a moment.
struct tagReceived
{
    TNmeaReceiver::tagStatus status;
    tagFixQuality quality;
    bool isPosition = false; ///< a position has come since the last one of these
};
Q_DECLARE_METATYPE(tagReceived)

/// The part of TReceiver that works in a thread of its own, so that the display never waits for the log's drive or for
/// the store: reads a stream, logs it, sets the clock, and switches between day and night.
///
/// One object reads one stream. Make it, move it to its thread, and call Start() there. Destroy it there, too: that
/// ends the stream.
class TReceiverWorker : public QObject
{
    Q_OBJECT

public:
    /// @param address "simulator", or one that ReadNmeaAddress() reads.
    TReceiverWorker(TParameterStore& store, const QString& address);
    ~TReceiverWorker() override;

    void Start();

    /// In place of Start(): takes whole sentences as if they had just come, in the thread that calls. Sets the clock,
    /// but leaves day and night alone.
    void Play(const QByteArray& sentences);

signals:
    /// Once for each epoch of the receiver, when its sentences are complete, and for lines without a position.
    void Received(const tagReceived& received);

    void Lost(const QString& reason);
    void Regained();

    /// The last signal. @p error is empty at a good end.
    void Ended(const QString& error);

private:
    void StartSimulator();
    void StartInput();
    void Take(const QByteArray& line);
    void Deliver();

    TParameterStore& m_Store;
    const QString m_Address;
    std::unique_ptr<TNmeaReceiver> m_Receiver;
    std::unique_ptr<TDaySwitch> m_DaySwitch;
    std::unique_ptr<TSimulatedInput> m_Simulator;
    std::unique_ptr<TNmeaInput> m_Input;
    QTimer m_Delivery; ///< when the lines that have come together are taken
    QByteArray m_Epoch;
    tagReceived m_Received; ///< not delivered yet
};
