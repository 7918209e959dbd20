#pragma once

#include "StoreTestSupport.h"
#include "stores/TMemoryStore.h"

#include <QMap>
#include <QSet>
#include <QVariant>

#include <functional>

using TChanges = QMap<int, QVariant>;

inline void Apply(const TChanges& changes, TChanges* values)
{
    for (auto change = changes.begin(); change != changes.end(); ++change) {
        values->insert(change.key(), change.value());
        if (!change.value().isValid())
            values->remove(change.key());
    }
}

/// A store whose disk can fail and can be changed by other programs. Records the transactions.
class TRecordingStore : public TParameterStore
{
public:
    using TParameterStore::LookAtDisk;
    using TParameterStore::PersistOutstanding;
    using TParameterStore::TakeStored;

    std::function<bool(const TChanges&)> accepts = [](const TChanges&) { return true; };
    QList<TChanges> transactions; ///< including those that failed
    TChanges disk;
    QSet<int> unreadable;
    QSet<int> damaged;
    bool isReadable = true;
    std::function<void()> whileItIsRead = [] {};

    void Damage(int id)
    {
        damaged.insert(id);
        ChangeElsewhere({{id, QVariant()}});
    }

    void ChangeElsewhere(const TChanges& changes)
    {
        Apply(changes, &disk);
        m_IsChanged = true;
    }

protected:
    bool CatchUp() override
    {
        whileItIsRead();
        if (isReadable && m_IsChanged) {
            TakeStored(disk, unreadable, damaged);
            m_IsChanged = false;
        }
        return isReadable;
    }

    bool Persist(const TChanges& changes) override
    {
        transactions.append(changes);
        if (!accepts(changes))
            return false;
        for (const int id : changes.keys())
            damaged.remove(id);
        Apply(changes, &disk);
        return true;
    }

private:
    bool m_IsChanged = false;
};

inline bool Refuse(const TChanges&) { return false; }
inline bool Accept(const TChanges&) { return true; }
