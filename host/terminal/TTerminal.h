#pragma once

#include "HostExport.h"
#include "stores/TParameterStore.h"

#include <QString>
#include <QTranslator>

#include <memory>

class TSettings;
class TUserLogAccessor;

/// A terminal that runs: everything between a parameter store and a display that can use the façades.
///
/// Needs a QCoreApplication (for translations) and is used from its thread. One at a time: the library's globals belong
/// to it from Start() to Stop().
class CABHOST_EXPORT TTerminal
{
public:
    /// @p store must outlive the terminal.
    explicit TTerminal(TParameterStore& store);

    /// Stops.
    ~TTerminal();

    TTerminal(const TTerminal&) = delete;
    TTerminal& operator=(const TTerminal&) = delete;

    /// Gives absent parameters their first values, makes the folder tree, publishes store and settings, restores the
    /// clock, opens the logs, and brings the operator's last selections back. Nothing reaches the disk's store until
    /// all of it is in place, in one step: a power cut on the way loses no selection.
    ///
    /// @param dataFolder stands for the terminal; see DataFolder. PARAM_INTERNAL_DRIVE and PARAM_EXTERNAL_DRIVE, where
    ///        the store holds them, put the drives elsewhere.
    /// @param error says what failed and where when the result is false; the terminal is then stopped.
    bool Start(const QString& dataFolder, QString* error);

    /// Closes the logs, what they have staged included, and takes settings and store back. Does nothing when stopped.
    void Stop();

private:
    void PlaceDrives(const QString& dataFolder);
    void RestoreSettings();

    TParameterStore& m_Store;
    QTranslator m_Translator;
    std::unique_ptr<TSettings> m_Settings;
    std::unique_ptr<TUserLogAccessor> m_UserLogAccessor;
};
