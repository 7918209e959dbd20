#pragma once

#include "console/line/Command.h"

#include "stores/TSqliteStore.h"
#include "terminal/TTerminal.h"

#include <QTranslator>

#include <memory>

/// How much of the terminal a command needs.
enum ESession
{
    SESSION_STORE,   ///< the parameters, with the values of a first start
    SESSION_UNITS,   ///< also the library's conversions and texts; makes no folders, opens no logs
    SESSION_TERMINAL ///< the terminal runs, as on the display: clock, folders, paths, logs
};

/// The terminal of the data folder, open while the session lives. One at a time.
///
/// \code
/// TSession session;
/// if (!session.Open(context, SESSION_STORE))
///     return STATUS_FAILED;
/// session.Store().GetParameter(PARAM_METRIC);
/// \endcode
class TSession
{
public:
    TSession();
    ~TSession();
    TSession(const TSession&) = delete;
    TSession& operator=(const TSession&) = delete;

    /// Makes the data folder when it is missing. False when something fails, after a message on standard error.
    bool Open(const tagContext& context, ESession extent);

    TSqliteStore& Store() { return *m_Store; }

    /// Loads the operator's language: names of units and texts follow it from now on. In SESSION_UNITS they are English
    /// until then. Needs SESSION_UNITS.
    void UseOperatorsLanguage();

private:
    bool OpenStore(const tagContext& context);
    bool StartTerminal(const tagContext& context);
    static void UseUnits(TParameterStore& store);

    std::unique_ptr<TSqliteStore> m_Store;
    std::unique_ptr<TTerminal> m_Terminal; ///< stops before its store goes
    QTranslator m_Translator;
};
