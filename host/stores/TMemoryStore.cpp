#include "stores/TMemoryStore.h"

TMemoryStore::TMemoryStore() = default;
TMemoryStore::~TMemoryStore() = default;

bool TMemoryStore::Persist(const QMap<int, QVariant>&) { return true; }
