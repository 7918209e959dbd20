#pragma once

#include "stores/TParameterStore.h"

/// A parameter store that keeps nothing after the end of the program. For tests, and for a display whose disk cannot be
/// used. Values can have any type, and persistent writes always succeed.
///
/// @code
/// TMemoryStore store;
/// TTerminal terminal(store);
/// terminal.Start(folder, &error);
/// @endcode
///
/// May be used from any thread.
class CABHOST_EXPORT TMemoryStore final : public TParameterStore
{
public:
    TMemoryStore();
    ~TMemoryStore() override;

protected:
    bool Persist(const QMap<int, QVariant>& changes) override;
};
