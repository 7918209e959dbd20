#pragma once

#include "stores/TParameterStore.h"

/// Keeps a store's changes off the disk for a scope, and writes them in one transaction at its end: a power cut within
/// the scope leaves everything as it was before.
class TPersistenceHold
{
public:
    explicit TPersistenceHold(TParameterStore& store) : m_Store(&store) { store.HoldPersistence(); }
    ~TPersistenceHold() { Release(); }

    TPersistenceHold(const TPersistenceHold&) = delete;
    TPersistenceHold& operator=(const TPersistenceHold&) = delete;

    /// Ends the hold before the scope does. The result is that of TParameterStore::ReleasePersistence(); true when the
    /// hold has ended already.
    bool Release()
    {
        TParameterStore* const store = m_Store;
        m_Store = nullptr;
        return store == nullptr || store->ReleasePersistence();
    }

private:
    TParameterStore* m_Store;
};
