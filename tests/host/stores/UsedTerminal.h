#pragma once

#include "StoreTestSupport.h"

#include "stores/TPersistenceHold.h"
#include "terminal/DataFolder.h"
#include "terminal/TTerminal.h"

/// The file of the store of a terminal that has run in @p folder with these values. Empty when it could not run; the
/// reason is a warning of the test.
inline QByteArray StoreOfUsedTerminal(const QString& folder, const QMap<EParamID, QString>& values)
{
    const QString path = DataFolder::StoreFile(folder);
    {
        const auto store = OpenStore(path);
        if (!store)
            return {};
        TPersistenceHold hold(*store);
        for (auto value = values.begin(); value != values.end(); ++value)
            store->SetParameter(value.key(), value.value(), true);
        if (!hold.Release())
            return {};
        TTerminal terminal(*store);
        QString error;
        if (!terminal.Start(folder, &error)) {
            qWarning("%s", qPrintable(error));
            return {};
        }
    }
    return FileBytes(path);
}
