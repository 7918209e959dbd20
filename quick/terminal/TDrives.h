#pragma once

#include "module/CabQuick.h"

#include <QObject>
#include <QString>
#include <QTimer>

#include <optional>

/// The room on the drives and in the memory, and the load of the processor, looked at every two seconds in a thread of
/// its own. Sizes are in bytes, as QML knows numbers; NaN while they are not known. Each property notifies when its own
/// value has changed.
class TDrives : public QObject
{
    Q_OBJECT
    Q_PROPERTY(double internalFree READ InternalFree NOTIFY internalChanged)
    Q_PROPERTY(double internalTotal READ InternalTotal NOTIFY internalChanged)
    Q_PROPERTY(QString internalText READ InternalText NOTIFY internalTextChanged)
    Q_PROPERTY(bool hasStick READ HasStick NOTIFY hasStickChanged)
    Q_PROPERTY(double stickFree READ StickFree NOTIFY stickChanged)
    Q_PROPERTY(double stickTotal READ StickTotal NOTIFY stickChanged)
    Q_PROPERTY(QString stickText READ StickText NOTIFY stickTextChanged)
    Q_PROPERTY(double memoryFree READ MemoryFree NOTIFY memoryChanged)
    Q_PROPERTY(double memoryTotal READ MemoryTotal NOTIFY memoryChanged)
    Q_PROPERTY(QString memoryText READ MemoryText NOTIFY memoryTextChanged)
    Q_PROPERTY(double load READ Load NOTIFY loadChanged)

public:
    explicit TDrives(QObject* parent);

    double InternalFree() const { return Free(m_Internal); }
    double InternalTotal() const { return Total(m_Internal); }
    QString InternalText() const { return m_InternalText; } ///< "12.3 GB free of 28.1 GB"
    bool HasStick() const { return m_HasStick; }
    double StickFree() const { return Free(m_Stick); }
    double StickTotal() const { return Total(m_Stick); }
    QString StickText() const { return m_StickText; } ///< as InternalText(), or that there is no stick
    double MemoryFree() const { return Free(m_Memory); }
    double MemoryTotal() const { return Total(m_Memory); }
    QString MemoryText() const { return m_MemoryText; }

    /// 0 to 1, of all cores over the last minute.
    double Load() const { return m_Load; }

    /// Shows these in place of those that are there, from now on.
    void Show(const tagShownDrives& drives);

signals:
    void internalChanged();
    void internalTextChanged();
    void hasStickChanged();
    void stickChanged();
    void stickTextChanged();
    void memoryChanged();
    void memoryTextChanged();
    void loadChanged();

private:
    using TSpace = std::optional<tagSpace>;

    struct tagLook
    {
        TSpace internal;
        bool hasStick;
        TSpace stick;
        TSpace memory;
        double load;
    };

    static double Free(const TSpace& space);
    static double Total(const TSpace& space);
    static tagLook LookNow();
    void Look();
    void Take(const tagLook& look);

    TSpace m_Internal;
    TSpace m_Stick;
    TSpace m_Memory;
    bool m_HasStick = false;
    bool m_IsShown = false; ///< by Show()
    QString m_InternalText;
    QString m_StickText;
    QString m_MemoryText;
    double m_Load = 0;
    QTimer m_Timer; ///< until the next look
};
