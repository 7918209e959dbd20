#pragma once

#include "HostExport.h"
#include "stores/TParameterStore.h"

#include <QString>
#include <QTranslator>

#include <memory>

class TSettings;
class TTerminalParameters;
class TUserLogAccessor;

/// What the display tells a terminal at its start.
struct tagTerminalOptions
{
    /// The version of the display's software. It is part of file names and package names, so it must be a possible file
    /// name. Empty: QCoreApplication::applicationVersion(). When that is empty too, the names have nothing in its
    /// place.
    QString softwareVersion = QString();

    /// The folder of the internal drive in which the folders of the clients are, without "/" at its end. Empty: the
    /// drive itself. See TSystemSettings::SetCFFRoot().
    QString clientRoot = QString();
};

/// A running terminal: creates, restores and publishes everything that the façades need.
///
/// @code
/// TTerminal terminal(store); // declared after the store: it closes the logs while the store is still there
/// if (!terminal.Start(folder, &error, {QLatin1String("2.1.4-r7")}))
///     return Fail(error);
/// @endcode
///
/// One terminal can run at a time, because Settings, ConfigManager and UserLogAccessorPtr belong to it from Start() to
/// Stop(). Needs a QCoreApplication, for translations, and is used from its thread.
class CABHOST_EXPORT TTerminal
{
public:
    /// @param store must outlive the terminal.
    explicit TTerminal(TParameterStore& store);

    /// Stops.
    ~TTerminal();

    TTerminal(const TTerminal&) = delete;
    TTerminal& operator=(const TTerminal&) = delete;

    /// Gives absent parameters the values of a first start, makes the folders, publishes parameters and settings,
    /// restores the clock, opens the logs, and brings the operator's last selections back. Stops first when it is
    /// running.
    ///
    /// The changes to the store are written in one step when everything has succeeded: neither a power cut nor a start
    /// that fails loses a selection or leaves anything in the store.
    ///
    /// While the terminal runs, the library's drives are always usable. PARAM_INTERNAL_DRIVE and PARAM_EXTERNAL_DRIVE
    /// name them; a drive is in the data folder when its parameter is empty, absent or not accepted by
    /// TParameterCatalogue. When the internal drive is changed, by whichever program, its folders are made at the next
    /// read. When they cannot be made, the terminal goes on with the drive in use.
    ///
    /// @param dataFolder the folder that stands for the terminal; see DataFolder.
    /// @param error says what failed, and where, when the result is false. The terminal is then stopped.
    bool Start(const QString& dataFolder, QString* error, const tagTerminalOptions& options = {});

    /// Closes the logs, writes what they have staged, and takes back what Start() has published. Does nothing when this
    /// terminal is not running, even when another one is.
    void Stop();

private:
    bool PublishParameters(const QString& dataFolder, QString* error);
    void PublishSettings(const QString& softwareVersion, const QString& clientRoot);

    TParameterStore& m_Store;
    bool m_IsStarted;
    QTranslator m_Translator;
    std::unique_ptr<TTerminalParameters> m_Parameters;
    std::unique_ptr<TSettings> m_Settings;
    std::unique_ptr<TUserLogAccessor> m_UserLogAccessor;
};
