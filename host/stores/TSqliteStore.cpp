#include "stores/TSqliteStore.h"

#include "stores/StandardError.h"
#include "stores/StoredValue.h"
#include "stores/TDiskThread.h"
#include "stores/TSqliteStoreFile.h"

#include <QFileInfo>

std::unique_ptr<TSqliteStore> TSqliteStore::Open(const QString& path, QString* error)
{
    std::unique_ptr<TSqliteStore> store(new TSqliteStore(QFileInfo(path).absoluteFilePath()));
    *error = store->Load();
    if (!error->isEmpty())
        store.reset();
    return store;
}

TSqliteStore::TSqliteStore(const QString& path)
    : m_DiskThread(std::make_unique<TDiskThread>()), m_File(std::make_unique<TSqliteStoreFile>(path))
{}

TSqliteStore::~TSqliteStore()
{
    PersistOutstanding();
    m_DiskThread->Do([this] { m_File.reset(); });
}

QString TSqliteStore::Load()
{
    QString error;
    StoreTable::tagContent content;
    m_DiskThread->Do([&] { error = m_File->Open(&content); });
    for (auto row = content.unreadable.constBegin(); error.isEmpty() && row != content.unreadable.constEnd(); ++row)
        SayOnStandardError(QString::fromLatin1("parameter %1 cannot be read: %2").arg(row.key()).arg(row.value()));
    const QList<int> unreadable = content.unreadable.keys();
    TakeStored(content.values, QSet<int>(unreadable.cbegin(), unreadable.cend()));
    return error;
}

bool TSqliteStore::SetParameter(EParamID id, const QVariant& value, bool persist)
{
    tagStoredValue stored;
    if (!persist || !value.isValid() || EncodeValue(value, &stored))
        return TParameterStore::SetParameter(id, value, persist);
    TParameterStore::SetParameter(id, value, false);
    SayOnStandardError(QString::fromLatin1("parameter %1 is kept in memory only: a value of type %2 cannot be stored")
                           .arg(static_cast<int>(id))
                           .arg(QLatin1String(value.typeName())));
    return false;
}

bool TSqliteStore::Persist(const QMap<int, QVariant>& changes)
{
    QString failure;
    m_DiskThread->Do([&] { failure = m_File->Write(changes); });
    if (!failure.isEmpty() && failure != m_LastFailure)
        SayOnStandardError(failure);
    m_LastFailure = failure;
    return failure.isEmpty();
}
