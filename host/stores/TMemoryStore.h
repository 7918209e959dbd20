#pragma once

#include "stores/TParameterStore.h"

/// A parameter store that forgets everything at the end of the program, for tests and for a display whose disk cannot
/// be used. Takes values of any type; persistent writes succeed like the others.
class CABHOST_EXPORT TMemoryStore final : public TParameterStore
{
public:
    TMemoryStore();
    ~TMemoryStore() override;

protected:
    bool Persist(const QMap<int, QVariant>& changes) override;
};
