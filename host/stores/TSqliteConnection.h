#pragma once

#include <QSqlDatabase>
#include <QString>
#include <QVariant>
#include <QVector>

/// One connection to an SQLite file. Belongs to the thread that made it.
class TSqliteConnection
{
public:
    using TRow = QVector<QVariant>;

    enum EAccess : int
    {
        SQLITE_ACCESS_READ,
        SQLITE_ACCESS_WRITE,
    };

    /// Why something failed; everything is well while the text is empty.
    struct tagFailure
    {
        QString text;
        bool isDamage; ///< the content of the file is to blame, not its surroundings
        bool isBusy;   ///< somebody else kept the file to himself for longer than there was patience
    };

    /// @param path absolute, or ":memory:".
    /// @param patience for how many milliseconds a statement waits for others who keep the file to themselves.
    TSqliteConnection(const QString& path, EAccess access, int patience);

    /// Another patience, from the next statement on.
    void SetPatience(int patience) { m_Patience = patience; }

    ~TSqliteConnection();

    TSqliteConnection(const TSqliteConnection&) = delete;
    TSqliteConnection& operator=(const TSqliteConnection&) = delete;

    /// Runs one statement to its end. Once something has failed, nothing is run until the failure is taken.
    QVector<TRow> Run(const QString& statement, const TRow& bound = {});

    /// The first value of the first row; invalid when there is none.
    QVariant Value(const QString& statement);

    /// The first thing that has failed since this was asked last.
    tagFailure TakeFailure();

private:
    QVector<TRow> RunOnce(const QString& statement, const TRow& bound);

    QSqlDatabase m_Database;
    tagFailure m_Failure;
    int m_Patience;
};
