#include "module/TParameterHub.h"

#include "stores/TChangeAuthor.h"
#include "stores/TPersistenceHold.h"
#include "stores/TSqliteStore.h"

#include <QMutexLocker>

TParameterHub::TParameterHub(TSqliteStore& store, const QString& dataFolder)
    : m_Store(store)
    , m_DataFolder(dataFolder)
    , m_LanguageAtStart(store.GetParameter(PARAM_LANGUAGE).toInt())
    , m_DecimalPointAtStart(store.GetParameter(PARAM_DECIMAL_POINT).toInt())
    , m_Watch(store)
    , m_Writer(new QObject)
{
    connect(&m_Watch, &TParameterWatch::Changed, this,
            [this](const tagParameterChange& change) { emit Changed(change.number); });
    m_Writer->moveToThread(&m_DiskThread);
    connect(&m_DiskThread, &QThread::finished, m_Writer, &QObject::deleteLater);
    m_DiskThread.start();
}

TParameterHub::~TParameterHub()
{
    // The last in the queue: what was written before it is done.
    QMetaObject::invokeMethod(m_Writer, [this] { m_DiskThread.quit(); });
    m_DiskThread.wait();
}

void TParameterHub::Write(int number, const QVariant& value)
{
    {
        const TChangeAuthor author(CHANGE_AUTHOR_OPERATOR);
        const QMutexLocker lock(&m_Mutex);
        m_Unwritten.insert(number, value);
        m_Store.SetParameter(static_cast<EParamID>(number), value, false);
    }
    QMetaObject::invokeMethod(m_Writer, [this] { WriteToDisk(); });
}

void TParameterHub::WriteToDisk()
{
    const TChangeAuthor author(CHANGE_AUTHOR_OPERATOR);
    QHash<int, QVariant> values;
    bool areAccepted = true;
    TPersistenceHold transaction(m_Store);
    {
        // Only the newest value of each, and none newer in between: an older one would come back into memory, and so to
        // the pages, with its write. No disk is waited for here, since the store is held.
        const QMutexLocker lock(&m_Mutex);
        values.swap(m_Unwritten);
        for (auto value = values.begin(); value != values.end();) {
            const auto id = static_cast<EParamID>(value.key());
            if (m_Store.GetParameter(id) != value.value()) { // set by others meanwhile, who were the last
                value = values.erase(value);
                continue;
            }
            areAccepted = m_Store.SetParameter(id, value.value(), true) && areAccepted;
            ++value;
        }
    }
    const bool areOnDisk = transaction.Release() && areAccepted;
    for (auto value = values.cbegin(); value != values.cend(); ++value)
        emit Written(value.key(), areOnDisk);
}
