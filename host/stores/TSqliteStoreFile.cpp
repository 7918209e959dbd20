#include "stores/TSqliteStoreFile.h"

#include "stores/DayCopies.h"
#include "stores/JournalTable.h"
#include "stores/StandardError.h"
#include "stores/StoreFileCopy.h"
#include "stores/StoreHeader.h"

#include <QStringList>

using namespace StoreFileCopy;

namespace {

const QString Memory = QLatin1String(":memory:");

bool AnyExists(const QStringList& paths)
{
    for (const QString& path : paths)
        if (DurableFiles::Exists(path))
            return true;
    return false;
}

using TTransfer = bool (*)(const QString& source, const QString& target, QString* reason);

// Moves or copies a file and its companions to the first free name of the form <name>.damaged-<n>.
bool KeepAside(const QString& path, TTransfer transfer, QString* kept, QString* reason)
{
    int number = 0;
    do {
        ++number;
        *kept = QString::fromLatin1("%1.damaged-%2").arg(path).arg(number);
    } while (AnyExists(WithCompanions(*kept)));

    const QStringList sources = WithCompanions(path);
    const QStringList targets = WithCompanions(*kept);
    for (int index = 0; index < sources.size(); ++index)
        if (DurableFiles::Exists(sources.at(index)) && !transfer(sources.at(index), targets.at(index), reason))
            return false;
    return true;
}

// Moves a file that cannot be used aside, if there is one, and says what was found.
bool SetAside(const QString& path, const tagStoreFinding& found, QString* reason)
{
    QString line = QString::fromLatin1("%1: %2").arg(path, found.words);
    if (AnyExists(WithCompanions(path))) {
        QString kept;
        if (!KeepAside(path, DurableFiles::Rename, &kept, reason))
            return false;
        line += QString::fromLatin1("; moved to %1").arg(kept);
    }
    SayOnStandardError(line);
    return true;
}

QString CannotBeUsed(const QString& path, const QString& reason)
{
    return QString::fromLatin1("%1 cannot be used: %2").arg(path, reason);
}

QString CannotBeWritten(const QString& path, const QString& reason)
{
    return QString::fromLatin1("%1 cannot be written: %2").arg(path, reason);
}

QString RepairText(const QList<qlonglong>& damaged, const QMap<int, QVariant>& values)
{
    QStringList texts;
    for (const qlonglong number : damaged) {
        const bool hasValue = StoreTable::IsParameter(number) && values.contains(static_cast<int>(number));
        texts += QString::fromLatin1(hasValue ? "parameter %1 has its value from the last good copy"
                                              : "parameter %1 is lost")
                     .arg(number);
    }
    return texts.join(QLatin1String(", "));
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

// Opens, checks and reads a database whose header is a store's.
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

bool IsDamage(const tagStoreFinding& finding, const StoreTable::tagContent& content)
{
    const bool hasDamage = !content.journalDamage.isEmpty() || !content.damaged.isEmpty();
    return finding.state == STORE_FILE_DAMAGED || finding.state == STORE_FILE_FOREIGN ||
           (finding.state == STORE_FILE_CLEAN && hasDamage);
}

// A drive that cannot be read once may be read the next time: only what is found twice is damage, because the changes
// since the last good copy are lost with a file that is set aside, and all values with a good copy that is.
template <class Look>
tagStoreFinding LookTwice(StoreTable::tagContent* content, Look look)
{
    *content = {};
    tagStoreFinding first = look();
    if (!IsDamage(first, *content))
        return first;
    *content = {};
    return look();
}

// The same as Connect() for any file.
tagStoreFinding RecogniseAndConnect(const QString& path, const QDeadlineTimer& deadline,
                                    std::unique_ptr<TSqliteConnection>* connection, StoreTable::tagContent* content)
{
    return LookTwice(content, [&] {
        connection->reset();
        const tagStoreFinding finding = RecogniseStoreFile(path);
        return finding.state == STORE_FILE_CLEAN ? Connect(path, deadline, connection, content) : finding;
    });
}

tagStoreFinding CheckGoodCopy(const QString& path, StoreTable::tagContent* content)
{
    return LookTwice(content, [&] { return CheckAtRest(path, content); });
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
    , m_IsMarked(false)
    , m_IsCopyOwed(false)
{}

TSqliteStoreFile::~TSqliteStoreFile()
{
    if (!m_Connection)
        return;
    if (m_IsCopyOwed || Version() != m_FirstVersion) // changed by another program or connection
        m_Lock.MarkChanged();
    m_Connection.reset();
    if (m_Lock.TakeAlone() && IsStillThere() && m_Lock.IsMarkedChanged()) {
        TSqliteConnection connection(m_Path, TSqliteConnection::SQLITE_ACCESS_WRITE, m_Patience);
        if (!MakeGoodCopy(connection, DAY_COPY_CHANGED))
            m_Lock.LeaveBehind(); // the next program tries again
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
        if (m_Lock.IsAlone() && !Prepare(deadline, &reason)) {
            if (m_Lock.WasLeftBehind())
                m_Lock.LeaveBehind();
            return reason;
        }
        isShared = !m_Lock.IsAlone() || m_Lock.Share(m_Identity, &reason);
        if (!reason.isEmpty())
            return CannotBeUsed(m_Path, reason);
    }
    return OpenPrepared(deadline, content);
}

// Repairs or replaces the file if that is needed, while no other program uses it. Closes it again, for two reasons:
// while the lock changes from exclusive to shared, another program may become the only user and replace the file; and a
// process that opens the file outside SQLite loses the locks that its own connections have on it.
bool TSqliteStoreFile::Prepare(const QDeadlineTimer& deadline, QString* reason)
{
    std::unique_ptr<TSqliteConnection> connection;
    StoreTable::tagContent content;
    bool mayDiffer = m_Lock.WasLeftBehind() || AnyExists(Companions(m_Path));
    tagStoreFinding found = RecogniseAndConnect(m_Path, deadline, &connection, &content);
    mayDiffer =
        mayDiffer || found.state != STORE_FILE_CLEAN || !content.journalDamage.isEmpty() || !content.damaged.isEmpty();
    if (found.state != STORE_FILE_CLEAN && !IsBeyondUs(found.state)) {
        if (!Replace(found, reason))
            return false;
        found = RecogniseAndConnect(m_Path, deadline, &connection, &content);
    }
    if (found.state == STORE_FILE_CLEAN && !content.journalDamage.isEmpty()) {
        connection.reset();
        if (!DropJournal(content.journalDamage) && !Replace({STORE_FILE_DAMAGED, content.journalDamage}, reason))
            return false;
        found = RecogniseAndConnect(m_Path, deadline, &connection, &content);
    }
    if (found.state == STORE_FILE_CLEAN && !content.damaged.isEmpty()) {
        connection.reset();
        KeepAndRepair(content.damaged);
        found = RecogniseAndConnect(m_Path, deadline, &connection, &content);
    }
    if (found.state != STORE_FILE_CLEAN) {
        *reason = Refusal(m_Path, found);
        return false;
    }
    DurableFiles::Identify(m_Path, &m_Identity);
    JournalTable::Create(*connection); // before the disk is full
    connection->TakeFailure();         // without it, parameters can be stored all the same
    m_IsCopyOwed = (mayDiffer || IsGoodCopyDue(*connection)) && !MakeGoodCopy(*connection, DAY_COPY_MISSING);
    return true;
}

// Opens the file that the first program has prepared. Other programs may use it already, so nothing is repaired here.
QString TSqliteStoreFile::OpenPrepared(const QDeadlineTimer& deadline, StoreTable::tagContent* content)
{
    m_Lock.FileInUse(&m_Identity);
    if (!IsStillThere())
        return CannotBeUsed(m_Path, QLatin1String("it is not the file that another program has open"));
    tagStoreFinding found = Connect(m_Path, deadline, &m_Connection, content);
    if (found.state == STORE_FILE_CLEAN && !content->journalDamage.isEmpty()) {
        m_Connection.reset();
        found = {STORE_FILE_DAMAGED, content->journalDamage};
    }
    if (found.state == STORE_FILE_DAMAGED)
        return CannotBeUsed(
            m_Path, QString::fromLatin1("%1; it can be repaired when no other program uses it").arg(found.words));
    if (found.state != STORE_FILE_CLEAN)
        return Refusal(m_Path, found);
    m_Connection->SetPatience(m_Patience);
    m_FirstVersion = Version();
    return {};
}

// Replaces a file that cannot be used by the last good copy or an empty store, and says so.
bool TSqliteStoreFile::Replace(const tagStoreFinding& found, QString* reason)
{
    StoreTable::tagContent content;
    const tagStoreFinding good = CheckGoodCopy(m_GoodPath, &content);
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
        if (!content.journalDamage.isEmpty())
            return PutRowsInPlace(m_GoodPath, reason);
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

// Keeps a copy of a file with damaged rows, then gives these rows the values of the last good copy or removes them.
// Says so. Without a copy, and when the good copy cannot be read at present, the file stays as it is.
void TSqliteStoreFile::KeepAndRepair(const QList<qlonglong>& damaged)
{
    const QString found = QString::fromLatin1("%1: %2; ").arg(m_Path, StoreTable::DamageText(damaged));
    QString kept;
    QString reason;
    if (!KeepAside(m_Path, DurableFiles::Copy, &kept, &reason)) {
        SayOnStandardError(found + reason);
        return;
    }
    SayOnStandardError(found + QString::fromLatin1("copied to %1").arg(kept));

    StoreTable::tagContent good;
    const tagStoreFinding finding = CheckGoodCopy(m_GoodPath, &good);
    if (IsBeyondUs(finding.state)) { // the values may be in it
        SayOnStandardError(Refusal(m_GoodPath, finding));
        return;
    }
    QMap<int, QVariant> values;
    for (auto value = good.values.constBegin(); value != good.values.constEnd(); ++value)
        if (damaged.contains(value.key()))
            values.insert(value.key(), value.value());
    TSqliteConnection connection(m_Path, TSqliteConnection::SQLITE_ACCESS_WRITE, CopyPatience);
    reason = StoreTable::Repair(connection, damaged, values);
    if (reason.isEmpty())
        SayOnStandardError(QString::fromLatin1("%1: %2").arg(m_Path, RepairText(damaged, values)));
    else
        SayOnStandardError(CannotBeWritten(m_Path, reason));
}

// Gives the file an empty journal, after keeping a copy of the damaged one. Says so.
bool TSqliteStoreFile::DropJournal(const QString& damage)
{
    QString kept;
    QString reason;
    // SQLite would apply a log that it has left behind to the new file.
    const bool isDone = !AnyExists(Companions(m_Path)) && KeepAside(m_Path, DurableFiles::Copy, &kept, &reason) &&
                        PutRowsInPlace(m_Path, &reason);
    if (isDone)
        SayOnStandardError(
            QString::fromLatin1("%1: %2; copied to %3; the journal begins anew").arg(m_Path, damage, kept));
    return isDone;
}

bool TSqliteStoreFile::PutRowsInPlace(const QString& source, QString* reason)
{
    TSqliteConnection rows(Memory, TSqliteConnection::SQLITE_ACCESS_WRITE, CopyPatience);
    StoreTable::CopyRows(rows, source);
    return PutInPlace(rows, reason);
}

bool TSqliteStoreFile::PutInPlace(TSqliteConnection& source, QString* reason)
{
    if (CopyTo(source, m_Path, DAMAGED_ROWS_ACCEPTED, reason))
        return true;
    *reason = QString::fromLatin1("%1 cannot be made: %2").arg(m_Path, *reason);
    return false;
}

QString TSqliteStoreFile::ReadChanged(StoreTable::tagContent* content, bool* isChanged)
{
    const QVariant version = Version();
    QString reason = m_Connection->TakeFailure().text;
    *isChanged = reason.isEmpty() && version != m_Version;
    if (*isChanged)
        reason = StoreTable::ReadRows(*m_Connection, content).words;
    if (!reason.isEmpty()) {
        *isChanged = false;
        return QString::fromLatin1("%1 cannot be read: %2").arg(m_Path, reason);
    }
    m_Version = version; // asked before the rows were read: a later change is seen next time
    return {};
}

QString TSqliteStoreFile::Write(const QMap<int, QVariant>& changes, const QMap<int, EChangeAuthor>& authors,
                                QString* journalDamage)
{
    if (!m_IsMarked)
        m_Lock.MarkChanged();
    m_IsMarked = true;
    QString reason = StoreTable::Write(*m_Connection, changes, authors, journalDamage);
    // SQLite can still write to a file that was deleted or moved, or whose drive is gone. Such a write has failed.
    if (reason.isEmpty() && !(IsStillThere() && DurableFiles::Exists(m_Path + QLatin1String(LogSuffix))))
        reason = QLatin1String("it is no longer there");
    return reason.isEmpty() ? reason : CannotBeWritten(m_Path, reason);
}

bool TSqliteStoreFile::IsStillThere() const
{
    DurableFiles::tagIdentity named;
    return DurableFiles::Identify(m_Path, &named) && named == m_Identity;
}

QVariant TSqliteStoreFile::Version() const { return m_Connection->Value(QLatin1String("PRAGMA data_version")); }

bool TSqliteStoreFile::IsGoodCopyDue(TSqliteConnection& source) const
{
    return !DurableFiles::Exists(m_GoodPath) ||
           !DurableFiles::Exists(DayCopies::File(m_Path, {DayCopies::Today(source), 0}));
}

// And the copy of the day. Says why when one of them cannot be made.
bool TSqliteStoreFile::MakeGoodCopy(TSqliteConnection& source, EDayCopy when)
{
    const QDate day = DayCopies::Today(source);
    QString reason;
    QString path = m_GoodPath;
    bool isMade = CopyTo(source, m_GoodPath, DAMAGED_ROWS_REFUSED, &reason);
    if (isMade) {
        path = DayCopies::File(m_Path, {day, 0});
        isMade = DayCopies::Make(source, m_Path, day, when, &reason);
    }
    if (!isMade)
        SayOnStandardError(QString::fromLatin1("%1 cannot be made: %2").arg(path, reason));
    return isMade;
}
