#pragma once

#include "HostExport.h"
#include "stores/TParameterStore.h"

#include <QHash>
#include <QMap>
#include <QMetaType>
#include <QMutex>
#include <QObject>
#include <QSet>
#include <QVariant>

#include <optional>

class QEvent;

/// One change of a parameter.
struct tagParameterChange
{
    int number;        ///< of the parameter; see EParamID
    QVariant oldValue; ///< invalid when the parameter was absent
    QVariant newValue; ///< invalid when the parameter was removed
};
Q_DECLARE_METATYPE(tagParameterChange)

/// Tells of changes of the parameters in a store.
///
/// @code
/// TParameterWatch watch(store);
/// QObject::connect(&watch, &TParameterWatch::Changed, &display, &TDisplay::ShowParameter);
/// store.SetParameter(PARAM_METRIC, true, true); // ShowParameter() is called from the event loop
/// @endcode
///
/// A watch tells of every change of a value in the store's memory, by whichever thread: of values that are set,
/// persistent or in memory alone, of those that other programs have written to the store's file, and of those that a
/// hold has taken back when it is abandoned. A value that is set during a hold is told at once. Setting the value that
/// a parameter already has is not a change.
///
/// Changes by other programs arrive within a second, or later while persistence is held; see TSqliteStore. A value that
/// another program has set in its memory alone does not arrive.
///
/// Changes of one parameter that come before the first of them is told are told as one, with the value before the first
/// and the value after the last. When these two are equal, nothing is told. So a slow receiver delays no thread, and
/// misses intermediate values only. The value of a parameter in the store may be newer than the one that is told.
///
/// Belongs to the thread that has made it, which needs an event loop. The signal is emitted there, and the watch is
/// destroyed there; other threads may change parameters meanwhile.
class CABHOST_EXPORT TParameterWatch : public QObject
{
    Q_OBJECT

public:
    /// Watches all parameters.
    /// @param store must outlive the watch.
    explicit TParameterWatch(TParameterStore& store, QObject* parent = nullptr);

    /// Watches the parameters with these numbers.
    TParameterWatch(TParameterStore& store, const QSet<int>& numbers, QObject* parent = nullptr);

    ~TParameterWatch() override;

signals:
    /// Changes are told in the order in which they began. A receiver may change parameters and may delete the watch.
    void Changed(const tagParameterChange& change);

protected:
    void customEvent(QEvent* event) override;

private:
    friend class TParameterStore; // calls Note() while its memory is locked

    void Note(int number, const QVariant& oldValue, const QVariant& newValue);
    bool TakeNext(tagParameterChange* change);

    TParameterStore& m_Store;
    const std::optional<QSet<int>> m_Numbers; // nothing: all

    QMutex m_Mutex;                              // guards the next four members
    QMap<quint64, tagParameterChange> m_Pending; // by their order
    QHash<int, quint64> m_Orders;                // of the pending change of each parameter
    quint64 m_LastOrder;
    bool m_IsPosted; // an event that will tell the pending changes is on its way
};
