#include "support/FuzzStore.h"

#include "parameters/HostParameters.h"
#include "stores/TPersistenceHold.h"
#include "stores/TSqliteStore.h"
#include "support/FuzzTarget.h"
#include "support/TFuzzRoom.h"
#include "terminal/DataFolder.h"
#include "terminal/FirstStartValues.h"

namespace {

tagFuzzStore Make()
{
    const QString path = DataFolder::StoreFile(TFuzzRoom::Get().NewFolder());
    tagFuzzStore made;
    QString error;
    {
        const auto store = TSqliteStore::Open(path, &error);
        Expect(store != nullptr, "a store is made", error);
        const TPersistenceHold hold(*store);
        SetFirstStartValues(*store);
        store->SetParameter(PARAM_TERMINAL_IDENTITY, QLatin1String("6ba7b810-9dad-41d1-80b4-00c04fd430c8"), true);
        store->SetParameter(PARAM_CLIENT, QLatin1String("Smith"), true);
        made.goodValues = store->Values();
    }
    made.goodCopy = FuzzFiles::Content(path + QLatin1String(".good"));
    {
        const auto store = TSqliteStore::Open(path, &error);
        Expect(store != nullptr, "a store is opened", error);
        Expect(store->SetParameter(PARAM_CLIENT, QLatin1String("Jones"), true), "a value is stored");
        made.values = store->Values();
    }
    made.file = FuzzFiles::Content(path);
    return made;
}

} // namespace

const tagFuzzStore& tagFuzzStore::Get()
{
    static const tagFuzzStore made = Make();
    return made;
}

QString tagFuzzStore::Place() const
{
    const QString path = DataFolder::StoreFile(TFuzzRoom::Get().NewFolder());
    FuzzFiles::Make(path, file);
    FuzzFiles::Make(path + QLatin1String(".good"), goodCopy);
    return path;
}
