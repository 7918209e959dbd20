#include "stores/TSqliteConnection.h"

#include <QDeadlineTimer>
#include <QSqlError>
#include <QSqlQuery>
#include <QSqlRecord>

#include <algorithm>
#include <atomic>
#include <iterator>

namespace {

const QString ReadOption = QLatin1String(";QSQLITE_OPEN_READONLY");

// SQLite polls a locked file at growing intervals, and then misses the gaps that a program leaves which writes a lot.
// So it polls for this long at most, and the statement is then started again.
const int AskMilliseconds = 20;

struct tagFailureCode
{
    int code;
    bool isBusy;
};

// Result codes of SQLite that do not mean that the content of the file is damaged.
constexpr tagFailureCode Surroundings[] = {
    {3, false},  // no permission
    {5, true},   // busy
    {6, true},   // locked
    {7, false},  // out of memory
    {8, false},  // read-only
    {10, false}, // input or output failed
    {13, false}, // disk full
    {14, false}, // cannot be opened
    {15, true},  // locking protocol
    {-1, false}, // no answer from the driver
};

// Two input errors do mean damage: a short read (the file is truncated) and a failed read (a bad block).
constexpr int ReadFailures[] = {10 | (1 << 8), 10 | (2 << 8)};

TSqliteConnection::tagFailure FailureOf(const QSqlError& error)
{
    bool isNumber = false;
    const int given = error.nativeErrorCode().toInt(&isNumber);
    const int code = isNumber ? given : -1;
    QString text = (error.databaseText().isEmpty() ? error.driverText() : error.databaseText()).simplified();
    if (text.isEmpty())
        text = QString::fromLatin1("error %1 of the database").arg(code);
    const auto surroundings =
        std::find_if(std::begin(Surroundings), std::end(Surroundings),
                     [code](const tagFailureCode& row) { return row.code == (code < 0 ? code : code & 0xff); });
    const bool isRead = std::find(std::begin(ReadFailures), std::end(ReadFailures), code) != std::end(ReadFailures);
    if (surroundings == std::end(Surroundings) || isRead)
        return {text, true, false};
    return {surroundings->isBusy ? QString::fromLatin1("another program has locked it for longer than the timeout")
                                 : text,
            false, surroundings->isBusy};
}

QString NextName()
{
    static std::atomic<int> count{0};
    return QString::fromLatin1("cabhost-store-%1").arg(++count);
}

} // namespace

TSqliteConnection::TSqliteConnection(const QString& path, EAccess access, int patience)
    : m_Database(QSqlDatabase::addDatabase(QLatin1String("QSQLITE"), NextName())), m_Failure{}, m_Patience(patience)
{
    m_Database.setDatabaseName(path);
    const QString wait = QString::fromLatin1("QSQLITE_BUSY_TIMEOUT=%1").arg(AskMilliseconds);
    m_Database.setConnectOptions(access == SQLITE_ACCESS_READ ? wait + ReadOption : wait);
    if (!m_Database.open())
        m_Failure = FailureOf(m_Database.lastError());
}

TSqliteConnection::~TSqliteConnection()
{
    const QString name = m_Database.connectionName();
    m_Database.close();
    m_Database = QSqlDatabase(); // a connection can be removed only when no copy of it exists
    QSqlDatabase::removeDatabase(name);
}

QVector<TSqliteConnection::TRow> TSqliteConnection::Run(const QString& statement, const TRow& bound)
{
    if (!m_Failure.text.isEmpty())
        return {};
    const QDeadlineTimer deadline(m_Patience);
    QVector<TRow> rows = RunOnce(statement, bound);
    while (m_Failure.isBusy && !deadline.hasExpired()) {
        m_Failure = {};
        rows = RunOnce(statement, bound);
    }
    return rows;
}

QVector<TSqliteConnection::TRow> TSqliteConnection::RunOnce(const QString& statement, const TRow& bound)
{
    QVector<TRow> rows;
    QSqlQuery query(m_Database);
    query.setForwardOnly(true);
    bool isDone = query.prepare(statement);
    for (const QVariant& value : bound)
        query.addBindValue(value);
    isDone = isDone && query.exec();
    const int columns = query.record().count();
    while (isDone && query.next()) {
        TRow row;
        for (int column = 0; column < columns; ++column)
            row += query.value(column);
        rows += row;
    }
    if (query.lastError().isValid())
        m_Failure = FailureOf(query.lastError());
    return rows;
}

QVariant TSqliteConnection::Value(const QString& statement)
{
    const QVector<TRow> rows = Run(statement);
    return rows.isEmpty() ? QVariant() : rows.first().value(0);
}

TSqliteConnection::tagFailure TSqliteConnection::TakeFailure()
{
    tagFailure failure = m_Failure;
    m_Failure = {};
    return failure;
}
