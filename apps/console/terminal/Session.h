#pragma once

#include "console/line/Command.h"

#include "stores/TSqliteStore.h"
#include "terminal/TTerminal.h"

#include <memory>

/// A terminal that runs on the data folder while the session lives.
class TSession
{
public:
    TSession();
    ~TSession();

    /// Opens the store and starts the terminal. False when that fails, which is said.
    bool Open(const tagContext& context);

    TParameterStore& Store() { return *m_Store; }

private:
    std::unique_ptr<TSqliteStore> m_Store;
    std::unique_ptr<TTerminal> m_Terminal; ///< stops before its store goes
};
