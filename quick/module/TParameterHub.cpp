#include "module/TParameterHub.h"

#include "stores/TSqliteStore.h"

TParameterHub::TParameterHub(TSqliteStore& store, const QString& dataFolder)
    : m_Store(store), m_DataFolder(dataFolder), m_Watch(store)
{
    connect(&m_Watch, &TParameterWatch::Changed, this,
            [this](const tagParameterChange& change) { emit Changed(change.number); });
}
