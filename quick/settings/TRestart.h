#pragma once

#include <QObject>
#include <QString>

/// Whether the display needs a restart, as the singleton `Restart` in QML: the language and the decimal sign stay what
/// they were at the start of the program.
///
/// @code
/// Message { visible: Restart.needed; text: Restart.reason; onAccepted: Restart.request() }
/// Connections { target: Restart; function onRequested() { ... } }
/// @endcode
class TRestart : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool needed READ IsNeeded NOTIFY reasonChanged)
    Q_PROPERTY(QString reason READ Reason NOTIFY reasonChanged) ///< one sentence; empty when none is needed

public:
    explicit TRestart(QObject* parent = nullptr);

    bool IsNeeded() const { return !m_Reason.isEmpty(); }
    QString Reason() const { return m_Reason; }

    /// Emits requested(). The program decides how it restarts.
    Q_INVOKABLE void request();

signals:
    void reasonChanged();
    void requested();

private:
    void Look();

    QString m_Reason;
};
