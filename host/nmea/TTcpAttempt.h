#pragma once

#include <QHostAddress>
#include <QHostInfo>
#include <QList>
#include <QObject>
#include <QSocketNotifier>
#include <QTimer>

#include <memory>

/// Attempts to connect to a server, at each of its addresses once.
///
/// QTcpSocket goes on trying for half a minute, without a pause, when a server resets connections before it has seen
/// that they are made; so connections are made here.
class TTcpAttempt : public QObject
{
    Q_OBJECT

public:
    TTcpAttempt();
    ~TTcpAttempt() override;

    /// Begins an attempt; what is left of an earlier one is dropped. One of the signals follows, unless Cancel() is
    /// called; it may be emitted before this returns.
    void Begin(const QString& host, quint16 port);

    /// Ends the attempt without a signal.
    void Cancel();

signals:
    /// @param socket a connected one, which belongs to the receiver of the signal from now on.
    void Connected(int socket);
    void Failed(const QString& reason);

private slots:
    void OnFound(const QHostInfo& info);

private:
    void TryNext();
    bool IsBegun(const QHostAddress& address);
    void OnAnswer();
    void GiveUp(int error);
    void Close();

    quint16 m_Port = 0;
    int m_LookUp = -1;               ///< of the name; -1: none
    QList<QHostAddress> m_Addresses; ///< that were not tried
    QString m_Reason;                ///< why the last one has failed
    int m_Socket = -1;
    std::unique_ptr<QSocketNotifier> m_Notifier;
    QTimer m_Patience;
};
