#include "stores/TParameterStore.h"

#include "diagnostics/DiagnosticTexts.h"
#include "stores/StoredValue.h"

#include <QMutexLocker>
#include <QReadLocker>
#include <QWriteLocker>

#include <limits>

namespace {

void Assign(QMap<int, QVariant>* values, int id, const QVariant& value)
{
    if (value.isValid())
        values->insert(id, value);
    else
        values->remove(id);
}

} // namespace

TParameterStore::TParameterStore() : m_HoldCount(0) {}
TParameterStore::~TParameterStore() = default;

bool TParameterStore::SetParameter(EParamID id, const QVariant& value, bool persist)
{
    {
        const QWriteLocker memory(&m_MemoryLock);
        Assign(&m_Values, id, value);
        if (!persist)
            return true;
        m_Wishes.insert(id, tagWish{value, 0});
    }

    const QMutexLocker disk(&m_DiskMutex);
    if (m_HoldCount > 0)
        return true;
    {
        // While this thread waited, another one's transaction may have taken the wish along.
        const QReadLocker memory(&m_MemoryLock);
        const auto wish = m_Wishes.constFind(id);
        if (wish == m_Wishes.constEnd())
            return true;
        if (wish->failures > 0)
            return false;
    }
    if (!PersistWishes(0, 0))
        return false;
    // The disk works again: what failed once gets its second chance, apart from the above so that a value that can
    // never be written (too large for the disk, say) does not keep the others from it.
    PersistWishes(1, 1);
    return true;
}

QVariant TParameterStore::GetParameter(EParamID id)
{
    const QReadLocker memory(&m_MemoryLock);
    return m_Values.value(id);
}

bool TParameterStore::HasParameter(EParamID id)
{
    const QReadLocker memory(&m_MemoryLock);
    return m_Values.contains(id);
}

const QString& TParameterStore::GetDiagnosticText(EDiagnosticComponent component, EDiagnosticType type, int code)
{
    return DiagnosticText(component, type, code);
}

QMap<int, QVariant> TParameterStore::Values() const
{
    const QReadLocker memory(&m_MemoryLock);
    return m_Values;
}

void TParameterStore::HoldPersistence()
{
    const QMutexLocker disk(&m_DiskMutex);
    ++m_HoldCount;
}

bool TParameterStore::ReleasePersistence()
{
    const QMutexLocker disk(&m_DiskMutex);
    if (m_HoldCount > 0)
        --m_HoldCount;
    return m_HoldCount > 0 || PersistWishes(0, std::numeric_limits<int>::max());
}

void TParameterStore::TakeStored(const QMap<int, QVariant>& values, const QSet<int>& unreadable)
{
    const QMutexLocker disk(&m_DiskMutex);
    const QWriteLocker memory(&m_MemoryLock);
    m_Values = values;
    m_OnDisk = values;
    m_UnknownOnDisk = unreadable;
}

bool TParameterStore::PersistOutstanding()
{
    const QMutexLocker disk(&m_DiskMutex);
    return m_HoldCount == 0 && PersistWishes(0, std::numeric_limits<int>::max());
}

bool TParameterStore::PersistWishes(int minFailures, int maxFailures)
{
    const QMap<int, QVariant> changes = TakeChanges(minFailures, maxFailures);
    if (changes.isEmpty())
        return true;
    const bool done = Persist(changes);
    Settle(changes, done);
    return done;
}

QMap<int, QVariant> TParameterStore::TakeChanges(int minFailures, int maxFailures)
{
    QMap<int, QVariant> changes;
    const QWriteLocker memory(&m_MemoryLock);
    for (auto wish = m_Wishes.begin(); wish != m_Wishes.end();) {
        const int id = wish.key();
        if (!m_UnknownOnDisk.contains(id) && IsSameValue(wish->value, m_OnDisk.value(id))) {
            wish = m_Wishes.erase(wish);
            continue;
        }
        if (wish->failures >= minFailures && wish->failures <= maxFailures)
            changes.insert(id, wish->value);
        ++wish;
    }
    return changes;
}

void TParameterStore::Settle(const QMap<int, QVariant>& changes, bool done)
{
    const QWriteLocker memory(&m_MemoryLock);
    for (auto change = changes.constBegin(); change != changes.constEnd(); ++change) {
        const int id = change.key();
        if (done) {
            Assign(&m_OnDisk, id, change.value());
            m_UnknownOnDisk.remove(id);
        } else {
            m_UnknownOnDisk.insert(id); // a transaction that failed in its last step may yet be found after a restart
        }
        const auto wish = m_Wishes.find(id);
        if (wish == m_Wishes.end() || !IsSameValue(wish->value, change.value()))
            continue; // set anew while the disk worked
        if (done)
            m_Wishes.erase(wish);
        else
            ++wish->failures;
    }
}
