#include "stores/TSqliteStoreFile.h"

#include "stores/StandardError.h"
#include "stores/StoreHeader.h"

#include <QStringList>

namespace {

const int CopyPatience = 5000; // somebody may be looking into a copy with another tool
const QString Memory = QLatin1String(":memory:");

// What SQLite keeps beside a file. It must go where the file goes: left behind, it would be applied to the next file of
// that name.
constexpr const char* CompanionSuffixes[] = {"-wal", "-shm", "-journal"};

QStringList Companions(const QString& path)
{
    QStringList paths;
    for (const char* suffix : CompanionSuffixes)
        paths += path + QLatin1String(suffix);
    return paths;
}

QStringList WithCompanions(const QString& path) { return QStringList(path) + Companions(path); }

bool AnyExists(const QStringList& paths)
{
    for (const QString& path : paths)
        if (DurableFiles::Exists(path))
            return true;
    return false;
}

// Gives a file and its companions the first free name of the kind <name>.damaged-<n>.
bool MoveAside(const QString& path, QString* moved, QString* reason)
{
    int number = 0;
    do {
        ++number;
        *moved = QString::fromLatin1("%1.damaged-%2").arg(path).arg(number);
    } while (AnyExists(WithCompanions(*moved)));

    const QStringList sources = WithCompanions(path);
    const QStringList targets = WithCompanions(*moved);
    for (int index = 0; index < sources.size(); ++index)
        if (DurableFiles::Exists(sources.at(index)) &&
            !DurableFiles::Rename(sources.at(index), targets.at(index), reason))
            return false;
    return true;
}

// Moves away what stands in the way of a file that can be used, if there is anything, and says what was found.
bool SetAside(const QString& path, const tagStoreFinding& found, QString* reason)
{
    QString line = QString::fromLatin1("%1: %2").arg(path, found.words);
    if (AnyExists(WithCompanions(path))) {
        QString moved;
        if (!MoveAside(path, &moved, reason))
            return false;
        line += QString::fromLatin1("; moved to %1").arg(moved);
    }
    SayOnStandardError(line);
    return true;
}

// Looks at a file that nobody is at work on, and so has no companions.
tagStoreFinding CheckAtRest(const QString& path)
{
    tagStoreFinding finding = RecogniseStoreFile(path);
    if (finding.state != STORE_FILE_CLEAN)
        return finding;
    TSqliteConnection connection(path, TSqliteConnection::SQLITE_ACCESS_READ, CopyPatience);
    StoreTable::tagContent content;
    return StoreTable::Read(connection, &content);
}

// Puts a copy of the database in place as @p target. At every moment the target is what it was before or the copy,
// complete and in order.
bool CopyTo(TSqliteConnection& source, const QString& target, QString* reason)
{
    const QString fresh = target + QLatin1String(".new");
    for (const QString& remains : WithCompanions(fresh))
        if (!DurableFiles::Remove(remains, reason))
            return false;
    source.Run(QLatin1String("VACUUM INTO ?"), {fresh});
    const TSqliteConnection::tagFailure failure = source.TakeFailure();
    if (!failure.text.isEmpty()) {
        *reason = failure.text;
    } else if (DurableFiles::SyncContent(fresh, reason)) {
        const tagStoreFinding finding = CheckAtRest(fresh);
        if (finding.state == STORE_FILE_CLEAN)
            return DurableFiles::Rename(fresh, target, reason);
        *reason = finding.words;
    }
    QString ignored;
    DurableFiles::Remove(fresh, &ignored); // the room may be needed
    return false;
}

QString CannotBeUsed(const QString& path, const QString& reason)
{
    return QString::fromLatin1("%1 cannot be used: %2").arg(path, reason);
}

QString Refusal(const QString& path, const tagStoreFinding& found)
{
    if (found.state == STORE_FILE_INACCESSIBLE)
        return CannotBeUsed(path, found.words);
    return QString::fromLatin1("%1 is not accepted: found %2; accepted is an SQLite file with application id %3 and "
                               "schema %4")
        .arg(path, found.words)
        .arg(StoreTable::ApplicationId)
        .arg(StoreTable::SchemaVersion);
}

// Opens and reads a database that has been recognised as ours, and checks it throughout.
tagStoreFinding Connect(const QString& path, const QDeadlineTimer& deadline,
                        std::unique_ptr<TSqliteConnection>* connection, StoreTable::tagContent* content)
{
    auto opened = std::make_unique<TSqliteConnection>(path, TSqliteConnection::SQLITE_ACCESS_WRITE,
                                                      static_cast<int>(deadline.remainingTime()));
    tagStoreFinding finding = StoreTable::Read(*opened, content);
    if (finding.state != STORE_FILE_CLEAN)
        return finding;
    const QString mode = opened->Value(QLatin1String("PRAGMA journal_mode = WAL")).toString();
    opened->Run(QLatin1String("PRAGMA synchronous = FULL"));
    const TSqliteConnection::tagFailure failure = opened->TakeFailure();
    if (!failure.text.isEmpty())
        return {STORE_FILE_INACCESSIBLE, failure.text};
    if (mode != QLatin1String("wal"))
        return {STORE_FILE_INACCESSIBLE, QLatin1String("no write-ahead log is possible on its drive")};
    *connection = std::move(opened);
    return finding;
}

// The same, of whatever stands under the name.
tagStoreFinding RecogniseAndConnect(const QString& path, const QDeadlineTimer& deadline,
                                    std::unique_ptr<TSqliteConnection>* connection)
{
    tagStoreFinding finding = RecogniseStoreFile(path);
    StoreTable::tagContent content;
    return finding.state == STORE_FILE_CLEAN ? Connect(path, deadline, connection, &content) : finding;
}

bool IsOurs(EStoreFileState state) { return state == STORE_FILE_CLEAN || state == STORE_FILE_DAMAGED; }
bool IsNothing(EStoreFileState state) { return state == STORE_FILE_MISSING || state == STORE_FILE_EMPTY; }
bool IsBeyondUs(EStoreFileState state) { return state == STORE_FILE_NEWER || state == STORE_FILE_INACCESSIBLE; }

} // namespace

TSqliteStoreFile::TSqliteStoreFile(const QString& path, int patience)
    : m_Path(path)
    , m_GoodPath(path + QLatin1String(".good"))
    , m_Patience(patience)
    , m_Lock(path + QLatin1String(".lock"))
    , m_Identity{}
{}

TSqliteStoreFile::~TSqliteStoreFile()
{
    if (!m_Connection)
        return;
    m_Connection.reset();
    if (m_Lock.TakeAlone() && IsStillThere()) {
        TSqliteConnection connection(m_Path, TSqliteConnection::SQLITE_ACCESS_WRITE, m_Patience);
        MakeGoodCopy(connection);
    }
}

QString TSqliteStoreFile::Open(StoreTable::tagContent* content)
{
    const QDeadlineTimer deadline(m_Patience);
    bool isShared = false;
    while (!isShared) {
        QString reason;
        if (!m_Lock.Take(deadline, &reason))
            return CannotBeUsed(m_Path, reason);
        if (m_Lock.IsAlone() && !Prepare(deadline, &reason))
            return reason;
        isShared = !m_Lock.IsAlone() || m_Lock.Share(m_Identity, &reason);
        if (!reason.isEmpty())
            return CannotBeUsed(m_Path, reason);
    }
    return OpenPrepared(deadline, content);
}

// Alone with the file, makes it fit to be used. Leaves nothing of it open: while the lock goes over from alone to
// shared somebody else may be alone with the file, and look at it from outside SQLite. A process that does so loses all
// the locks that its own connections have on the file.
bool TSqliteStoreFile::Prepare(const QDeadlineTimer& deadline, QString* reason)
{
    std::unique_ptr<TSqliteConnection> connection;
    tagStoreFinding found = RecogniseAndConnect(m_Path, deadline, &connection);
    if (found.state != STORE_FILE_CLEAN && !IsBeyondUs(found.state)) {
        if (!Replace(found, reason))
            return false;
        found = RecogniseAndConnect(m_Path, deadline, &connection);
    }
    if (found.state != STORE_FILE_CLEAN) {
        *reason = Refusal(m_Path, found);
        return false;
    }
    DurableFiles::Identify(m_Path, &m_Identity);
    MakeGoodCopy(*connection);
    return true;
}

// Opens what the first one has prepared. Nothing can be repaired here: others are at work on it.
QString TSqliteStoreFile::OpenPrepared(const QDeadlineTimer& deadline, StoreTable::tagContent* content)
{
    m_Lock.FileInUse(&m_Identity);
    if (!IsStillThere())
        return CannotBeUsed(m_Path, QLatin1String("it is not the file that another program has open"));
    const tagStoreFinding found = Connect(m_Path, deadline, &m_Connection, content);
    if (found.state == STORE_FILE_DAMAGED)
        return CannotBeUsed(
            m_Path, QString::fromLatin1("%1; it can be repaired when no other program uses it").arg(found.words));
    if (found.state != STORE_FILE_CLEAN)
        return Refusal(m_Path, found);
    m_Connection->SetPatience(m_Patience);
    return {};
}

// Puts a file that can be used in the place of one that cannot, and says so.
bool TSqliteStoreFile::Replace(const tagStoreFinding& found, QString* reason)
{
    const tagStoreFinding good = CheckAtRest(m_GoodPath);
    if (IsBeyondUs(good.state)) {
        *reason = Refusal(m_GoodPath, good);
        return false;
    }
    if (found.state == STORE_FILE_FOREIGN && !IsOurs(good.state)) {
        *reason = Refusal(m_Path, found);
        return false;
    }

    const bool isNew = IsNothing(found.state) && good.state == STORE_FILE_MISSING && !AnyExists(Companions(m_Path));
    if (!isNew && !SetAside(m_Path, found, reason))
        return false;
    if (good.state == STORE_FILE_CLEAN) {
        TSqliteConnection copy(m_GoodPath, TSqliteConnection::SQLITE_ACCESS_READ, CopyPatience);
        SayOnStandardError(QString::fromLatin1("%1: going on with the last good copy %2").arg(m_Path, m_GoodPath));
        return PutInPlace(copy, reason);
    }
    if (good.state != STORE_FILE_MISSING && !SetAside(m_GoodPath, good, reason))
        return false;
    if (!isNew)
        SayOnStandardError(QString::fromLatin1("%1: no good copy, going on with an empty store").arg(m_Path));
    TSqliteConnection empty(Memory, TSqliteConnection::SQLITE_ACCESS_WRITE, CopyPatience);
    StoreTable::Create(empty);
    return PutInPlace(empty, reason);
}

bool TSqliteStoreFile::PutInPlace(TSqliteConnection& source, QString* reason)
{
    if (CopyTo(source, m_Path, reason))
        return true;
    *reason = QString::fromLatin1("%1 cannot be made: %2").arg(m_Path, *reason);
    return false;
}

QString TSqliteStoreFile::ReadChanged(StoreTable::tagContent* content, bool* isChanged)
{
    const QVariant version = m_Connection->Value(QLatin1String("PRAGMA data_version"));
    QString reason = m_Connection->TakeFailure().text;
    *isChanged = reason.isEmpty() && version != m_Version;
    if (*isChanged)
        reason = StoreTable::ReadRows(*m_Connection, content).words;
    if (!reason.isEmpty()) {
        *isChanged = false;
        return QString::fromLatin1("%1 cannot be read: %2").arg(m_Path, reason);
    }
    m_Version = version; // asked before the rows: what changes meanwhile is seen the next time
    return {};
}

QString TSqliteStoreFile::Write(const QMap<int, QVariant>& changes)
{
    QString reason = StoreTable::Write(*m_Connection, changes);
    // A file that was deleted or moved, or whose drive is gone, can still be written: into nothing.
    if (reason.isEmpty() && !(IsStillThere() && DurableFiles::Exists(m_Path + QLatin1String(CompanionSuffixes[0]))))
        reason = QLatin1String("it is no longer there");
    return reason.isEmpty() ? reason : QString::fromLatin1("%1 cannot be written: %2").arg(m_Path, reason);
}

bool TSqliteStoreFile::IsStillThere() const
{
    DurableFiles::tagIdentity named;
    return DurableFiles::Identify(m_Path, &named) && named == m_Identity;
}

void TSqliteStoreFile::MakeGoodCopy(TSqliteConnection& source)
{
    QString reason;
    if (!CopyTo(source, m_GoodPath, &reason))
        SayOnStandardError(QString::fromLatin1("%1 cannot be made: %2").arg(m_GoodPath, reason));
}
