#include "stores/TImportedValues.h"

namespace {

const int Settled = 0; // the state of a row; 1: noted

const QString Table = QLatin1String("CREATE TABLE IF NOT EXISTS imported (terminal TEXT NOT NULL, id INTEGER NOT NULL, "
                                    "state INTEGER NOT NULL, value TEXT NOT NULL, PRIMARY KEY (terminal, id, state))");

// Each import gives the rows of its terminal new numbers.
const QString Pruning =
    QLatin1String("DELETE FROM imported WHERE terminal NOT IN (SELECT terminal FROM imported GROUP BY terminal "
                  "ORDER BY max(rowid) DESC LIMIT ?)");

QString NotNull(const QString& text) { return text.isNull() ? QString::fromLatin1("") : text; }

} // namespace

TImportedValues::TImportedValues(const QString& storeFile, int patience)
    : m_Connection(storeFile, TSqliteConnection::SQLITE_ACCESS_WRITE, patience)
{
    m_Connection.Run(QLatin1String("PRAGMA synchronous = FULL"));
}

bool TImportedValues::Read(const QString& terminal, QMap<int, QStringList>* values, QString* reason)
{
    values->clear();
    const bool isMade =
        m_Connection.Value(QLatin1String("SELECT count(*) FROM sqlite_master WHERE name = 'imported'")).toInt() == 1;
    if (isMade) {
        const auto rows = m_Connection.Run(
            QLatin1String("SELECT id, state, value FROM imported WHERE terminal = ? ORDER BY id, state"), {terminal});
        for (const TSqliteConnection::TRow& row : rows) {
            const int id = row.at(0).toInt();
            if (row.at(1).toInt() == Settled || values->contains(id))
                (*values)[id].append(row.at(2).toString());
        }
    }
    return TakeReason(reason);
}

bool TImportedValues::Note(const QString& terminal, const QMap<int, QString>& values, QString* reason)
{
    return Write(QLatin1String("INSERT OR REPLACE INTO imported VALUES (?, ?, 1, ?)"), terminal, values, TERMINALS_STAY,
                 reason);
}

bool TImportedValues::Settle(const QString& terminal, const QMap<int, QString>& values, QString* reason)
{
    return Write(QLatin1String("UPDATE OR REPLACE imported SET state = 0 WHERE terminal = ? AND id = ? AND state = 1 "
                               "AND value = ?"),
                 terminal, values, OLD_TERMINALS_GO, reason);
}

bool TImportedValues::Forget(const QString& terminal, const QMap<int, QString>& values, QString* reason)
{
    return Write(QLatin1String("DELETE FROM imported WHERE terminal = ? AND id = ? AND state = 1 AND value = ?"),
                 terminal, values, TERMINALS_STAY, reason);
}

bool TImportedValues::Write(const QString& statement, const QString& terminal, const QMap<int, QString>& values,
                            EPruning pruning, QString* reason)
{
    m_Connection.Run(QLatin1String("BEGIN IMMEDIATE"));
    m_Connection.Run(Table);
    for (auto value = values.constBegin(); value != values.constEnd(); ++value)
        m_Connection.Run(statement, {terminal, value.key(), NotNull(value.value())});
    if (pruning == OLD_TERMINALS_GO)
        m_Connection.Run(Pruning, {MostTerminals});
    m_Connection.Run(QLatin1String("COMMIT"));
    if (TakeReason(reason))
        return true;
    m_Connection.Run(QLatin1String("ROLLBACK")); // fails when SQLite has rolled back by itself
    m_Connection.TakeFailure();
    return false;
}

bool TImportedValues::TakeReason(QString* reason)
{
    const TSqliteConnection::tagFailure failure = m_Connection.TakeFailure();
    if (!failure.text.isEmpty())
        *reason = failure.text;
    return failure.text.isEmpty();
}
