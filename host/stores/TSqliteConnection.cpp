#include "stores/TSqliteConnection.h"

#include <QSqlError>
#include <QSqlQuery>
#include <QSqlRecord>

#include <algorithm>
#include <atomic>
#include <iterator>

namespace {

// How long another program may keep the file to itself before a read or a write gives up, in milliseconds.
const QString WaitOption = QLatin1String("QSQLITE_BUSY_TIMEOUT=5000");
const QString ReadOption = QLatin1String(";QSQLITE_OPEN_READONLY");

struct tagFailureCode
{
    int code;
    const char* words; ///< null where the database's own words will do
};

// Failures that say nothing against the content of the file.
constexpr tagFailureCode Surroundings[] = {
    {3, nullptr},                      // no permission
    {5, "in use by another program"},  // busy
    {6, "in use by another program"},  // locked
    {7, nullptr},                      // out of memory
    {8, nullptr},                      // read-only
    {10, nullptr},                     // input or output failed
    {13, nullptr},                     // disk full
    {14, nullptr},                     // cannot be opened
    {15, "in use by another program"}, // locking protocol
    {-1, nullptr},                     // no answer from the driver
};

// Reading less than was asked for, or nothing at all, is the file's fault: it is too short, or a bad block in it.
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
        return {text, true};
    return {surroundings->words != nullptr ? QString::fromLatin1(surroundings->words) : text, false};
}

QString NextName()
{
    static std::atomic<int> count{0};
    return QString::fromLatin1("cabhost-store-%1").arg(++count);
}

} // namespace

TSqliteConnection::TSqliteConnection(const QString& path, EAccess access)
    : m_Database(QSqlDatabase::addDatabase(QLatin1String("QSQLITE"), NextName())), m_Failure{QString(), false}
{
    m_Database.setDatabaseName(path);
    m_Database.setConnectOptions(access == SQLITE_ACCESS_READ ? WaitOption + ReadOption : WaitOption);
    if (!m_Database.open())
        m_Failure = FailureOf(m_Database.lastError());
}

TSqliteConnection::~TSqliteConnection()
{
    const QString name = m_Database.connectionName();
    m_Database.close();
    m_Database = QSqlDatabase(); // a connection can be removed only when no copy of it is left
    QSqlDatabase::removeDatabase(name);
}

QVector<TSqliteConnection::TRow> TSqliteConnection::Run(const QString& statement, const TRow& bound)
{
    QVector<TRow> rows;
    if (!m_Failure.text.isEmpty())
        return rows;
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
    m_Failure = {QString(), false};
    return failure;
}
