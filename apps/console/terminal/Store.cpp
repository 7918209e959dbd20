#include "console/terminal/Store.h"

#include "console/line/Output.h"

#include "terminal/DataFolder.h"

#include <QDir>

std::unique_ptr<TSqliteStore> OpenStore(const tagContext& context)
{
    if (!QDir().mkpath(context.dataFolder)) {
        Fail(QString::fromLatin1("cannot make the data folder %1").arg(context.dataFolder));
        return nullptr;
    }
    QString error;
    std::unique_ptr<TSqliteStore> store = TSqliteStore::Open(DataFolder::StoreFile(context.dataFolder), &error);
    if (!store)
        Fail(error);
    return store;
}
