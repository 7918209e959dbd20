#include "stores/TSqliteStore.h"

#include "stores/DayCopies.h"
#include "stores/StandardError.h"
#include "stores/StoreFileCopy.h"
#include "stores/StoredValue.h"
#include "stores/TDiskThread.h"
#include "stores/TSqliteStoreFile.h"
#include "stores/TWatchThread.h"

#include <QFileInfo>

namespace {

// One line for each reason, however often the operation is tried.
void SayOnce(const QString& failure, QString* said)
{
    if (!failure.isEmpty() && failure != *said)
        SayOnStandardError(failure);
    *said = failure;
}

} // namespace

std::unique_ptr<TSqliteStore> TSqliteStore::Open(const QString& path, QString* error, int patience)
{
    std::unique_ptr<TSqliteStore> store(new TSqliteStore(QFileInfo(path).absoluteFilePath(), patience));
    *error = store->Load();
    if (!error->isEmpty())
        store.reset();
    return store;
}

TSqliteStore::TSqliteStore(const QString& path, int patience)
    : m_Path(path)
    , m_DiskThread(std::make_unique<TDiskThread>())
    , m_File(std::make_unique<TSqliteStoreFile>(path, patience))
{}

TSqliteStore::~TSqliteStore()
{
    m_Watch.reset();
    PersistOutstanding();
    m_DiskThread->Do([this] { m_File.reset(); });
}

QString TSqliteStore::Load()
{
    QString error;
    StoreTable::tagContent content;
    m_DiskThread->Do([&] { error = m_File->Open(&content); });
    if (!error.isEmpty())
        return error;
    Take(content);
    m_Day = DayNow();
    m_Watch = std::make_unique<TWatchThread>([this] {
        LookAtDisk();
        CopyPastDay();
    });
    return {};
}

QDate TSqliteStore::DayNow() { return DayCopies::Today(GetParameter(PARAM_CLOCK_OFFSET).toInt()); }

// When the day changes: the day that is over ends with what is in the file now, and the new one begins with it.
void TSqliteStore::CopyPastDay()
{
    const QDate day = DayNow();
    if (day == m_Day)
        return;
    const QDate past = m_Day;
    m_Day = day;
    TSqliteConnection connection(m_Path, TSqliteConnection::SQLITE_ACCESS_READ, StoreFileCopy::CopyPatience);
    QString reason;
    if (!DayCopies::Make(connection, m_Path, past, DAY_COPY_ALWAYS, &reason) ||
        !DayCopies::Make(connection, m_Path, day, DAY_COPY_MISSING, &reason))
        SayOnStandardError(
            QString::fromLatin1("the copies in %1 cannot be made: %2").arg(DayCopies::Folder(m_Path), reason));
}

void TSqliteStore::Take(const StoreTable::tagContent& content)
{
    QMap<int, QString> problems;
    for (auto row = content.unreadable.constBegin(); row != content.unreadable.constEnd(); ++row)
        problems.insert(row.key(), row.value());
    QSet<int> damaged;
    for (const qlonglong number : content.damaged) {
        if (!StoreTable::IsParameter(number))
            continue;
        const int id = static_cast<int>(number);
        damaged.insert(id);
        problems.insert(id, QLatin1String("it does not match its digest"));
    }
    for (auto problem = problems.constBegin(); problem != problems.constEnd(); ++problem)
        if (m_Problems.value(problem.key()) != problem.value())
            SayOnStandardError(
                QString::fromLatin1("parameter %1 cannot be read: %2").arg(problem.key()).arg(problem.value()));
    m_Problems = problems;
    const QList<int> unreadable = content.unreadable.keys();
    TakeStored(content.values, QSet<int>(unreadable.cbegin(), unreadable.cend()), damaged);
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

QString TSqliteStore::WriteFailure() const
{
    const QMutexLocker locker(&m_FailureMutex);
    return m_LastWriteFailure;
}

bool TSqliteStore::WriteOutstanding()
{
    const bool isDone = PersistOutstanding();
    if (isDone)
        KeepWriteFailure(QString());
    return isDone;
}

void TSqliteStore::KeepWriteFailure(const QString& failure)
{
    const QMutexLocker locker(&m_FailureMutex);
    m_LastWriteFailure = failure;
}

bool TSqliteStore::CatchUp()
{
    QString failure;
    StoreTable::tagContent content;
    bool isChanged = false;
    m_DiskThread->Do([&] { failure = m_File->ReadChanged(&content, &isChanged); });
    SayOnce(failure, &m_ReadFailure);
    if (isChanged)
        Take(content);
    return failure.isEmpty();
}

bool TSqliteStore::Persist(const QMap<int, QVariant>& changes)
{
    QMap<int, EChangeAuthor> authors;
    for (auto change = changes.constBegin(); change != changes.constEnd(); ++change)
        authors.insert(change.key(), AuthorOf(change.key()));
    QString failure;
    QString journalDamage;
    m_DiskThread->Do([&] { failure = m_File->Write(changes, authors, &journalDamage); });
    if (!journalDamage.isEmpty())
        journalDamage = QString::fromLatin1("%1: changes are not in the journal: %2").arg(m_Path, journalDamage);
    SayOnce(journalDamage, &m_JournalFailure);
    SayOnce(failure, &m_WriteFailure);
    KeepWriteFailure(failure);
    return failure.isEmpty();
}
