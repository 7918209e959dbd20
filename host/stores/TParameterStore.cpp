#include "stores/TParameterStore.h"

#include "diagnostics/DiagnosticTexts.h"
#include "stores/StoredValue.h"
#include "stores/TParameterWatch.h"

#include <QMutexLocker>
#include <QReadLocker>
#include <QWriteLocker>

#include <limits>
#include <utility>

namespace {

const int AnyNumber = std::numeric_limits<int>::max();

void Assign(QMap<int, QVariant>* values, int id, const QVariant& value)
{
    if (value.isValid())
        values->insert(id, value);
    else
        values->remove(id);
}

} // namespace

TParameterStore::TParameterStore() : m_Revision(0) {}
TParameterStore::~TParameterStore() = default;

bool TParameterStore::SetParameter(EParamID id, const QVariant& value, bool persist)
{
    {
        const QWriteLocker memory(&m_MemoryLock);
        Remember(id, value);
        if (!persist)
            return true;
        m_Wishes.insert(id, tagWish{value, 0, TChangeAuthor::Current()});
    }

    const QMutexLocker disk(&m_DiskMutex);
    if (!m_Holds.isEmpty())
        return true;
    {
        // The transaction of another thread may have written the value while this thread waited.
        const QReadLocker memory(&m_MemoryLock);
        const auto wish = m_Wishes.constFind(id);
        if (wish == m_Wishes.constEnd())
            return true;
        if (wish->failures > 0)
            return false;
    }
    if (!PersistWishes(0, 0))
        return false;
    // The disk works again, so values that have failed once are tried again. They get a transaction of their own: a
    // value that can never be written, because it is too large for the disk, must not make the others fail.
    if (!Wishes(1, 1).isEmpty())
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

quint64 TParameterStore::Revision() const
{
    const QReadLocker memory(&m_MemoryLock);
    return m_Revision;
}

void TParameterStore::HoldPersistence()
{
    const QMutexLocker disk(&m_DiskMutex);
    const QReadLocker memory(&m_MemoryLock);
    m_Holds.append({m_Values, m_Wishes});
}

bool TParameterStore::ReleasePersistence()
{
    const QMutexLocker disk(&m_DiskMutex);
    if (!m_Holds.isEmpty())
        m_Holds.removeLast();
    return PersistAfterHold();
}

bool TParameterStore::AbandonPersistence()
{
    const QMutexLocker disk(&m_DiskMutex);
    if (!m_Holds.isEmpty()) {
        const tagHold hold = m_Holds.takeLast();
        const QWriteLocker memory(&m_MemoryLock);
        RememberAll(hold.values);
        m_Wishes = hold.wishes;
    }
    return PersistAfterHold();
}

// The caller holds m_DiskMutex.
bool TParameterStore::PersistAfterHold()
{
    if (!m_Holds.isEmpty())
        return true;
    DropFulfilledWishes(); // before the changes of other programs are taken in
    return PersistWishes(0, AnyNumber);
}

void TParameterStore::TakeStored(const QMap<int, QVariant>& values, const QSet<int>& unreadable,
                                 const QSet<int>& damaged)
{
    // Compared before memory is locked, because readers wait for that lock.
    QSet<int> absent = unreadable;
    QSet<int> rescued;
    for (const int id : damaged)
        (m_OnDisk.contains(id) ? rescued : absent).insert(id);
    QMap<int, QVariant> news;
    for (auto value = values.constBegin(); value != values.constEnd(); ++value)
        if (!IsSameValue(value.value(), m_OnDisk.value(value.key())))
            news.insert(value.key(), value.value());
    for (auto former = m_OnDisk.constBegin(); former != m_OnDisk.constEnd(); ++former)
        if (!values.contains(former.key()) && !rescued.contains(former.key()))
            news.insert(former.key(), QVariant());
    for (const int id : absent)
        if (!m_UnknownOnDisk.contains(id))
            news.insert(id, QVariant());

    const QWriteLocker memory(&m_MemoryLock);
    for (auto parameter = news.constBegin(); parameter != news.constEnd(); ++parameter) {
        const int id = parameter.key();
        Assign(&m_OnDisk, id, parameter.value());
        if (absent.contains(id))
            m_UnknownOnDisk.insert(id);
        else if (!m_Wishes.contains(id))
            m_UnknownOnDisk.remove(id);
        if (!m_Wishes.contains(id))
            Remember(id, parameter.value());
    }
    for (const int id : m_Rescued)
        if (!rescued.contains(id) && !m_Wishes.contains(id))
            m_UnknownOnDisk.remove(id);
    m_Rescued = rescued;
    m_UnknownOnDisk += rescued;
}

void TParameterStore::LookAtDisk()
{
    const QMutexLocker disk(&m_DiskMutex);
    if (m_Holds.isEmpty())
        CatchUp();
}

bool TParameterStore::PersistOutstanding()
{
    const QMutexLocker disk(&m_DiskMutex);
    if (!m_Holds.isEmpty())
        return false;
    return (Wishes(0, AnyNumber).isEmpty() && m_Rescued.isEmpty()) || PersistWishes(0, AnyNumber);
}

void TParameterStore::AddWatch(TParameterWatch* watch)
{
    const QWriteLocker memory(&m_MemoryLock);
    m_Watches.append(watch);
}

// When this returns, no thread is telling the watch anything.
void TParameterStore::RemoveWatch(TParameterWatch* watch)
{
    const QWriteLocker memory(&m_MemoryLock);
    m_Watches.removeOne(watch);
}

// The caller holds m_MemoryLock for writing, as for the next two functions.
void TParameterStore::Tell(int id, const QVariant& oldValue, const QVariant& newValue)
{
    for (TParameterWatch* const watch : std::as_const(m_Watches))
        watch->Note(id, oldValue, newValue);
}

void TParameterStore::Remember(int id, const QVariant& value)
{
    const QVariant former = m_Values.value(id);
    Assign(&m_Values, id, value);
    if (IsSameValue(former, value))
        return;
    ++m_Revision;
    Tell(id, former, value);
}

void TParameterStore::RememberAll(const QMap<int, QVariant>& values)
{
    const QMap<int, QVariant> former = m_Values;
    for (auto value = former.constBegin(); value != former.constEnd(); ++value)
        if (!values.contains(value.key()))
            Remember(value.key(), QVariant());
    for (auto value = values.constBegin(); value != values.constEnd(); ++value)
        Remember(value.key(), value.value());
}

bool TParameterStore::PersistWishes(int minFailures, int maxFailures)
{
    const bool isKnown = CatchUp();
    if (isKnown)
        DropFulfilledWishes();
    QMap<int, QVariant> changes;
    m_Authors.clear();
    for (const int id : m_Rescued) {
        changes.insert(id, m_OnDisk.value(id));
        m_Authors.insert(id, CHANGE_AUTHOR_REPAIR);
    }
    const QMap<int, tagWish> wishes = Wishes(minFailures, maxFailures);
    for (auto wish = wishes.constBegin(); wish != wishes.constEnd(); ++wish) {
        changes.insert(wish.key(), wish->value);
        m_Authors.insert(wish.key(), wish->author);
    }
    if (changes.isEmpty())
        return true;
    const bool done = isKnown && Persist(changes);
    Settle(changes, done);
    return done;
}

QMap<int, TParameterStore::tagWish> TParameterStore::Wishes(int minFailures, int maxFailures) const
{
    QMap<int, tagWish> wishes;
    const QReadLocker memory(&m_MemoryLock);
    for (auto wish = m_Wishes.constBegin(); wish != m_Wishes.constEnd(); ++wish)
        if (wish->failures >= minFailures && wish->failures <= maxFailures)
            wishes.insert(wish.key(), *wish);
    return wishes;
}

// Removes the wishes for values that are known to be on the disk.
void TParameterStore::DropFulfilledWishes()
{
    const QWriteLocker memory(&m_MemoryLock);
    for (auto wish = m_Wishes.begin(); wish != m_Wishes.end();) {
        const int id = wish.key();
        const bool isFulfilled = !m_UnknownOnDisk.contains(id) && IsSameValue(wish->value, m_OnDisk.value(id));
        wish = isFulfilled ? m_Wishes.erase(wish) : ++wish;
    }
}

void TParameterStore::Settle(const QMap<int, QVariant>& changes, bool done)
{
    const QWriteLocker memory(&m_MemoryLock);
    for (auto change = changes.constBegin(); change != changes.constEnd(); ++change) {
        const int id = change.key();
        if (done) {
            Assign(&m_OnDisk, id, change.value());
            m_UnknownOnDisk.remove(id);
            m_Rescued.remove(id);
        } else {
            m_UnknownOnDisk.insert(
                id); // after a restart, a transaction that failed in its last step may turn out to be on the disk
        }
        const auto wish = m_Wishes.find(id);
        if (wish == m_Wishes.end() || !IsSameValue(wish->value, change.value()))
            continue; // set again during the write
        if (done)
            m_Wishes.erase(wish);
        else
            ++wish->failures;
    }
}
