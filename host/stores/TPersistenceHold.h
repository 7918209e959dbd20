#pragma once

#include "stores/TParameterStore.h"

/// Holds persistence of a store for a scope: nothing is written until the end of the scope, and then everything in one
/// transaction. A power cut within the scope leaves the disk as it was before.
///
/// @code
/// TPersistenceHold hold(store);
/// store.SetParameter(PARAM_CLIENT, client, true);
/// const bool isStored = store.SetParameter(PARAM_FARM, farm, true) && hold.Release();
/// @endcode
///
/// Used by one thread.
class TPersistenceHold
{
public:
    /// @param store must outlive the hold.
    explicit TPersistenceHold(TParameterStore& store) : m_Store(&store) { store.HoldPersistence(); }

    /// Releases, unless the hold has been released or abandoned.
    ~TPersistenceHold() { Release(); }

    TPersistenceHold(const TPersistenceHold&) = delete;
    TPersistenceHold& operator=(const TPersistenceHold&) = delete;

    /// Ends the hold before the scope ends and writes its changes.
    /// @return the result of TParameterStore::ReleasePersistence(); true when the hold has ended before.
    bool Release()
    {
        TParameterStore* const store = End();
        return store == nullptr || store->ReleasePersistence();
    }

    /// Ends the hold before the scope ends and takes its changes back.
    /// @return the result of TParameterStore::AbandonPersistence(); true when the hold has ended before.
    bool Abandon()
    {
        TParameterStore* const store = End();
        return store == nullptr || store->AbandonPersistence();
    }

private:
    TParameterStore* End()
    {
        TParameterStore* const store = m_Store;
        m_Store = nullptr;
        return store;
    }

    TParameterStore* m_Store; // null once the hold has ended
};
