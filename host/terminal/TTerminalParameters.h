#pragma once

#include "stores/TParameterStore.h"

#include <QMap>
#include <QMutex>
#include <QString>

/// The parameters of a store as a running terminal hands them to the library. The two drives can always be used,
/// whatever this or another program stores; every other parameter is as the store has it.
///
/// The drives are those of DataFolder for the stored values. When the stored internal drive changes, the folders of the
/// display are made on the new one at the next read. When that fails, the drive in use stays, and this is said on
/// standard error once.
///
/// May be used from any thread.
class TTerminalParameters final : public TConfigManager
{
public:
    /// @param store must outlive the object.
    TTerminalParameters(TParameterStore& store, const QString& dataFolder);

    /// Takes up the drives and makes their folders. Must succeed before the drives are read.
    /// @return false when a folder of the internal drive cannot be made, which @p error then names.
    bool PlaceDrives(QString* error);

    /// Orders the times of a log's files now, and whenever the log goes on to its next file: with a clock that is
    /// behind the times of older files, the log would else remove what it has just written. To be called before the log
    /// is restored.
    /// @param number parameter with the number of the log's next file.
    void KeepInOrder(EParamID number, const QString& basePath);

    bool SetParameter(EParamID id, const QVariant& value, bool persist) override;
    QVariant GetParameter(EParamID id) override;
    bool HasParameter(EParamID id) override;
    const QString& GetDiagnosticText(EDiagnosticComponent component, EDiagnosticType type, int code) override;

private:
    /// A drive, and the stored value that it follows.
    struct tagDrive
    {
        QString asked;
        QString inUse;
    };

    QString Stored(EParamID drive);
    QString InternalDrive();
    QString ExternalDrive();
    bool UseInternalDrive(const QString& asked, QString* error);
    void UseExternalDrive(const QString& asked);

    TParameterStore& m_Store;
    const QString m_DataFolder;

    QMutex m_Mutex; // guards the drives and the logs
    tagDrive m_Internal;
    tagDrive m_External;
    QMap<int, QString> m_Logs; // base paths, by the parameter of the number
};
