#include "stores/TParameterWatch.h"

#include "stores/StoredValue.h"

#include <QCoreApplication>
#include <QEvent>
#include <QMutexLocker>
#include <QPointer>

TParameterWatch::TParameterWatch(TParameterStore& store, QObject* parent)
    : QObject(parent), m_Store(store), m_LastOrder(0), m_IsPosted(false)
{
    qRegisterMetaType<tagParameterChange>();
    m_Store.AddWatch(this);
}

TParameterWatch::TParameterWatch(TParameterStore& store, const QSet<int>& numbers, QObject* parent)
    : QObject(parent), m_Store(store), m_Numbers(numbers), m_LastOrder(0), m_IsPosted(false)
{
    qRegisterMetaType<tagParameterChange>();
    m_Store.AddWatch(this);
}

TParameterWatch::~TParameterWatch() { m_Store.RemoveWatch(this); }

// Called by any thread while the store's memory is locked, so it does nothing that could wait.
void TParameterWatch::Note(int number, const QVariant& oldValue, const QVariant& newValue)
{
    if (m_Numbers && !m_Numbers->contains(number))
        return;
    const QMutexLocker lock(&m_Mutex);
    const auto order = m_Orders.constFind(number);
    if (order == m_Orders.constEnd()) {
        ++m_LastOrder;
        m_Orders.insert(number, m_LastOrder);
        m_Pending.insert(m_LastOrder, {number, oldValue, newValue});
    } else if (IsSameValue(m_Pending.value(*order).oldValue, newValue)) {
        m_Pending.remove(*order);
        m_Orders.remove(number);
    } else {
        m_Pending[*order].newValue = newValue;
    }
    if (m_IsPosted || m_Pending.isEmpty())
        return;
    m_IsPosted = true;
    QCoreApplication::postEvent(this, new QEvent(QEvent::User));
}

bool TParameterWatch::TakeNext(tagParameterChange* change)
{
    const QMutexLocker lock(&m_Mutex);
    if (m_Pending.isEmpty())
        return false;
    *change = m_Pending.take(m_Pending.firstKey());
    m_Orders.remove(change->number);
    return true;
}

// One change is taken at a time, so that the order is right also when a receiver runs an event loop of its own. What is
// noted meanwhile has its own event, so that receivers that change parameters do not keep the event loop from its work.
void TParameterWatch::customEvent(QEvent*)
{
    int count = 0;
    {
        const QMutexLocker lock(&m_Mutex);
        m_IsPosted = false;
        count = static_cast<int>(m_Pending.size());
    }
    const QPointer<TParameterWatch> self(this);
    tagParameterChange change;
    while (self && count-- > 0 && TakeNext(&change))
        emit Changed(change);
}
