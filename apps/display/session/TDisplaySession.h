#pragma once

#include "display/options/DisplayOptions.h"

#include <QQmlApplicationEngine>
#include <QString>

#include <memory>

class QQuickWindow;
class TSqliteStore;
class TTerminal;

/// A running display: the terminal of a data folder, what QML sees of it, and the window.
///
/// @code
/// TDisplaySession session;
/// if (!session.Open(options, &error))
///     return Fail(error);
/// CabQuick::Receiver().SetRunning(true);
/// @endcode
///
/// One at a time, in the thread of the application object, which must be a QGuiApplication.
class TDisplaySession
{
public:
    TDisplaySession();

    /// Closes the window, then stops the terminal.
    ~TDisplaySession();

    TDisplaySession(const TDisplaySession&) = delete;
    TDisplaySession& operator=(const TDisplaySession&) = delete;

    /// Makes the data folder when it is missing, stores what the options say of receiver and language, and starts the
    /// terminal. False, with the reason in @p error, when something fails.
    /// @param patience how many milliseconds it waits while another program has the settings locked, which it says on
    ///        standard error.
    bool Start(const tagDisplayOptions& options, QString* error, int patience = 10000);

    /// Opens the window with the page that the options name. To be called after Start(). False, with the reason in
    /// @p error, when the pages cannot be loaded.
    bool OpenWindow(const tagDisplayOptions& options, QString* error);

    TSqliteStore& Store() const { return *m_Store; }

    /// To be called after OpenWindow().
    QQmlEngine& Engine() const { return *m_Engine; }

    /// Null before OpenWindow().
    QQuickWindow* Window() const;

private:
    std::unique_ptr<TSqliteStore> m_Store;
    std::unique_ptr<TTerminal> m_Terminal; ///< stops before its store goes
    std::unique_ptr<QQmlApplicationEngine> m_Engine;
};
