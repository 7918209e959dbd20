#pragma once

#include "terminal/Storage.h"

#include <QObject>
#include <QString>
#include <QTimer>
#include <QtGlobal>

#include <optional>

class TProblems;
class TSqliteStore;

/// Looks every second for problems that no other class reports: a drive that is nearly full, logs that lose lines,
/// settings that are not on the disk. Tries to write these again.
class TProblemWatch : public QObject
{
    Q_OBJECT

public:
    /// @param problems its parent.
    explicit TProblemWatch(TProblems& problems);

private:
    struct tagLook
    {
        std::optional<tagSpace> drive;
        bool hasStick;
        qint64 lostLines; ///< of both logs, since the start
        bool hasFailedLog;
        bool isRecordingOff;
        QString writeFailure;
    };

    /// The appearances of the problems of the stick when a look began.
    struct tagStickProblems
    {
        int withStick;
        int withoutStick;
    };

    static tagLook LookNow(TSqliteStore& store);
    void Look();
    void Take(const tagLook& look, const tagStickProblems& before);
    void TakeStick(bool hasStick, const tagStickProblems& before);
    void TakeDrive(const std::optional<tagSpace>& drive);
    void TakeLogs(const tagLook& look);

    TProblems& m_Problems;
    bool m_IsNearlyFull = false;
    qint64 m_LostLines = 0;
    int m_LooksSinceLoss;
    QTimer m_Timer; ///< until the next look
};
