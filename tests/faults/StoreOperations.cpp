#include "Operations.h"

#include "copies/StoreCopies.h"
#include "parameters/HostParameters.h"
#include "profiles/ProfileImport.h"
#include "stores/ChangeJournal.h"
#include "stores/TMemoryStore.h"
#include "stores/TPersistenceHold.h"
#include "stores/TSqliteStore.h"

#include <QDir>

#include <algorithm>

namespace {

constexpr int Patience = 200; // milliseconds: nobody else uses the store
constexpr int Rounds = 6;
constexpr int MostOnDemand = 7;
constexpr EParamID Written[] = {PARAM_ACTIVE_JOB, PARAM_ACTIVE_VEHICLE, PARAM_ACTIVE_IMPLEMENT};
constexpr int OldValues = 40; // parameters that no operation changes

QString Path(const QString& folder) { return folder + QLatin1String("/settings.db"); }

std::unique_ptr<TSqliteStore> Open(const QString& folder)
{
    QString error;
    return TSqliteStore::Open(Path(folder), &error, Patience);
}

QString Text(int round) { return QString::fromLatin1("round %1").arg(round); }

EParamID Untouched(int number) { return static_cast<EParamID>(100000 + number); }

void SetOld(TParameterStore& store)
{
    TPersistenceHold hold(store);
    for (int number = 0; number < OldValues; ++number)
        store.SetParameter(Untouched(number), number, true);
    for (const EParamID id : Written)
        store.SetParameter(id, Text(0), true);
    if (!hold.Release())
        qFatal("no store");
}

void PrepareStore(const QString& folder) { SetOld(*Open(folder)); }

void PrepareNothing(const QString& folder) { QDir().mkpath(folder); }

/// What every operation leaves: the parameters that it does not change, a journal that can be read, and no file that
/// was set aside as damaged.
QByteArray BrokenStore(const QString& folder, const TSqliteStore* store, bool isOld)
{
    if (!store)
        return "the store cannot be opened";
    const QMap<int, QVariant> values = store->Values();
    for (int number = 0; isOld && number < OldValues; ++number) {
        if (values.value(Untouched(number)) != QVariant(number))
            return "a value that was not changed is missing";
    }
    ChangeJournal::tagJournal journal;
    QString error;
    if (!ChangeJournal::Read(*store, {}, &journal, &error) || !journal.damaged.isEmpty())
        return "the journal cannot be read: " + error.toUtf8();
    if (!QDir(folder).entryList({QLatin1String("*.damaged-*")}).isEmpty())
        return "the store was damaged";
    return QByteArray();
}

/// What the next program leaves, after it has changed something and has ended.
QByteArray LeftoversOfNext(const QString& folder)
{
    {
        const auto store = Open(folder);
        if (!store || !store->SetParameter(PARAM_ACTIVE_SPRAYER, QLatin1String("next"), true))
            return "the next program cannot write";
    }
    const auto store = Open(folder);
    if (!store || store->GetParameter(PARAM_ACTIVE_SPRAYER) != QVariant(QLatin1String("next")))
        return "what the next program has written is not there";
    return Leftovers(folder);
}

/// The newest entry of the journal for @p id is about the value that the store has.
bool IsNoted(const TSqliteStore& store, EParamID id)
{
    ChangeJournal::tagJournal journal;
    QString error;
    ChangeJournal::tagQuery query;
    query.parameter = id;
    query.most = 1;
    return ChangeJournal::Read(store, query, &journal, &error) && !journal.entries.isEmpty() &&
           journal.entries.first().newValue == store.Values().value(id);
}

// Single parameters.

bool SetRounds(const QString& folder, const std::function<void()>& begin, TPromises& promises)
{
    begin();
    auto store = Open(folder);
    bool isDone = store != nullptr;
    for (int round = 1; store && round <= Rounds; ++round) {
        if (store->SetParameter(Written[round % 3], Text(round), true))
            promises.Make(round);
        else
            isDone = false;
    }
    return isDone;
}

template <bool IsOld>
QByteArray BrokenRounds(const QString& folder, const tagAftermath& after)
{
    {
        const auto store = Open(folder);
        const QByteArray broken = BrokenStore(folder, store.get(), IsOld);
        if (!broken.isEmpty())
            return broken;
        for (int which = 0; which < 3; ++which) {
            const QVariant value = store->Values().value(Written[which]);
            const int round = value.toString().section(QLatin1Char(' '), 1).toInt();
            int promised = 0;
            for (const int number : after.promises)
                promised = number % 3 == which ? number : promised;
            if (round < promised)
                return "round " + QByteArray::number(promised) + " is missing";
            if ((IsOld || value.isValid()) && (value != QVariant(Text(round)) || (round > 0 && round % 3 != which)))
                return "a value that was never set: " + value.toString().toUtf8();
            if (value.isValid() && !IsNoted(*store, Written[which]))
                return "a change is not in the journal";
        }
    }
    return LeftoversOfNext(folder);
}

/// Of operations that change all the written parameters or none.
template <class IsNew>
QByteArray BrokenWhole(const QString& folder, const tagAftermath& after, IsNew isNew)
{
    {
        const auto store = Open(folder);
        const QByteArray broken = BrokenStore(folder, store.get(), true);
        if (!broken.isEmpty())
            return broken;
        int changed = 0;
        for (const EParamID id : Written) {
            changed += isNew(*store, id) ? 1 : 0;
            if (!isNew(*store, id) && store->GetParameter(id) != QVariant(Text(0)))
                return "a value that was never set";
            if (!IsNoted(*store, id))
                return "a change is not in the journal";
        }
        if (changed != 0 && changed != 3)
            return "a part of the parameters";
        if (!after.promises.empty() && changed != 3)
            return "what was stored is not there";
    }
    return LeftoversOfNext(folder);
}

bool IsRoundOne(TSqliteStore& store, EParamID id) { return store.GetParameter(id) == QVariant(Text(1)); }

bool SetTogether(const QString& folder, const std::function<void()>& begin, TPromises& promises)
{
    begin();
    const auto store = Open(folder);
    if (!store)
        return false;
    TPersistenceHold hold(*store);
    for (const EParamID id : Written)
        store->SetParameter(id, Text(1), true);
    const bool isDone = hold.Release();
    if (isDone)
        promises.Make(1);
    return isDone;
}

QByteArray BrokenTogether(const QString& folder, const tagAftermath& after)
{
    return BrokenWhole(folder, after, &IsRoundOne);
}

// An import.

bool Import(const QString& folder, const std::function<void()>& begin, TPromises& promises)
{
    TMemoryStore theirs;
    for (const EParamID id : Written)
        theirs.SetParameter(id, Text(1), true);
    theirs.SetParameter(PARAM_TERMINAL_IDENTITY, QLatin1String("6ba7b810-9dad-41d1-80b4-00c04fd430c8"), true);
    const TProfile profile = TProfile::Of(theirs, ProfileGroups::All(), QString());
    begin();
    const auto store = Open(folder);
    ProfileImport::tagOptions options;
    options.groups = ProfileGroups::All();
    options.patience = Patience;
    options.resolution = ProfileImport::RESOLUTION_THEIRS;
    const bool isDone = store && ProfileImport::Apply(profile, *store, Path(folder), options).isApplied;
    if (isDone)
        promises.Make(1);
    return isDone;
}

// A copy, and what is restored from one.

void PrepareCopy(const QString& folder)
{
    {
        const auto store = Open(folder);
        SetOld(*store);
        for (const EParamID id : Written)
            store->SetParameter(id, Text(1), true);
    }
    const auto store = Open(folder);
    StoreCopies::tagCopy copy;
    QString error;
    if (!StoreCopies::Make(*store, &copy, &error))
        qFatal("%s", qPrintable(error));
    TPersistenceHold hold(*store);
    for (const EParamID id : Written)
        store->SetParameter(id, Text(0), true);
    hold.Release();
}

/// The copies on demand, the newest first.
QList<StoreCopies::tagCopy> OnDemand(const QString& folder)
{
    QList<StoreCopies::tagCopy> copies;
    for (const StoreCopies::tagCopy& copy : StoreCopies::List(Path(folder))) {
        if (copy.name.count(QLatin1Char('-')) == 3)
            copies.append(copy);
    }
    return copies;
}

bool RestoreCopy(const QString& folder, const std::function<void()>& begin, TPromises& promises)
{
    const StoreCopies::tagCopy copy = OnDemand(folder).last();
    begin();
    const auto store = Open(folder);
    QList<StoreCopies::tagDifference> changed;
    QString error;
    const bool isDone = store && StoreCopies::Restore(*store, copy, &changed, &error);
    if (isDone)
        promises.Make(1);
    return isDone;
}

bool MakeCopy(const QString& folder, const std::function<void()>& begin, TPromises& promises)
{
    begin();
    const auto store = Open(folder);
    StoreCopies::tagCopy copy;
    QString error;
    const bool isDone = store && StoreCopies::Make(*store, &copy, &error);
    if (isDone)
        promises.Make(copy.name.section(QLatin1Char('-'), 3).toInt());
    return isDone;
}

QByteArray BrokenCopies(const QString& folder, const tagAftermath& after)
{
    const QList<StoreCopies::tagCopy> copies = OnDemand(folder);
    const int newest = copies.isEmpty() ? 0 : copies.first().name.section(QLatin1Char('-'), 3).toInt();
    if (copies.isEmpty() || newest < (after.promises.empty() ? 1 : after.promises.front()))
        return "a copy is missing";
    if (copies.size() > MostOnDemand)
        return "too many copies";
    const auto store = Open(folder);
    const QByteArray broken = BrokenStore(folder, store.get(), true);
    if (!broken.isEmpty())
        return broken;
    for (const StoreCopies::tagCopy& copy : StoreCopies::List(Path(folder))) {
        QList<StoreCopies::tagDifference> differences;
        QString error;
        if (!StoreCopies::Compare(*store, copy, &differences, &error))
            return error.toUtf8();
    }
    StoreCopies::tagCopy made;
    QString error;
    if (!StoreCopies::Make(*store, &made, &error))
        return "the next copy fails: " + error.toUtf8();
    return LeftoversOfNext(folder);
}

// The journal.

void PrepareChange(const QString& folder)
{
    const auto store = Open(folder);
    SetOld(*store);
    store->SetParameter(PARAM_ACTIVE_JOB, Text(1), true);
}

bool Undo(const QString& folder, const std::function<void()>& begin, TPromises& promises)
{
    begin();
    const auto store = Open(folder);
    ChangeJournal::tagEntry undone;
    QString error;
    const bool isDone = store && ChangeJournal::Undo(*store, std::nullopt, &undone, &error);
    if (isDone)
        promises.Make(1);
    return isDone;
}

QByteArray BrokenUndo(const QString& folder, const tagAftermath& after)
{
    {
        const auto store = Open(folder);
        const QByteArray broken = BrokenStore(folder, store.get(), true);
        if (!broken.isEmpty())
            return broken;
        const QVariant value = store->Values().value(PARAM_ACTIVE_JOB);
        if (value != QVariant(Text(0)) && (value != QVariant(Text(1)) || !after.promises.empty()))
            return "what was undone is not: " + value.toString().toUtf8();
        if (!IsNoted(*store, PARAM_ACTIVE_JOB))
            return "a change is not in the journal";
    }
    return LeftoversOfNext(folder);
}

} // namespace

std::vector<tagOperation> StoreOperations()
{
    return {
        {"first start of a store", &PrepareNothing, &SetRounds, &BrokenRounds<false>, true, true, 8},
        {"parameters, one by one", &PrepareStore, &SetRounds, &BrokenRounds<true>, true, true, 8},
        {"parameters, together", &PrepareStore, &SetTogether, &BrokenTogether, true, true, 8},
        {"import of a profile", &PrepareStore, &Import, &BrokenTogether, true, true, 8},
        {"undo", &PrepareChange, &Undo, &BrokenUndo, true, true, 8},
        {"copy of a store", &PrepareCopy, &MakeCopy, &BrokenCopies, true, true, 8},
        {"restored copy", &PrepareCopy, &RestoreCopy, &BrokenTogether, true, true, 8},
    };
}
