#pragma once

#include <QSqlDatabase>
#include <QString>
#include <QVariant>
#include <QVector>

/// One connection to an SQLite file. Used by the thread that has made it.
class TSqliteConnection
{
public:
    using TRow = QVector<QVariant>;

    enum EAccess : int
    {
        SQLITE_ACCESS_READ,
        SQLITE_ACCESS_WRITE,
    };

    /// The reason of a failure. The text is empty when nothing has failed.
    struct tagFailure
    {
        QString text;
        bool isDamage; ///< the content of the file is damaged
        bool isBusy;   ///< another program locked the file for longer than the timeout
    };

    /// @param path absolute, or ":memory:".
    /// @param patience how many milliseconds a statement waits while another program has the file locked.
    TSqliteConnection(const QString& path, EAccess access, int patience);

    /// Changes the timeout, from the next statement on.
    void SetPatience(int patience) { m_Patience = patience; }

    ~TSqliteConnection();

    TSqliteConnection(const TSqliteConnection&) = delete;
    TSqliteConnection& operator=(const TSqliteConnection&) = delete;

    /// Runs one statement to its end. After a failure, statements do nothing until TakeFailure() is called.
    QVector<TRow> Run(const QString& statement, const TRow& bound = {});

    /// The first value of the first row; invalid when there is none.
    QVariant Value(const QString& statement);

    /// The first failure since the last call of TakeFailure(); its text is empty when nothing has failed.
    const tagFailure& Failure() const { return m_Failure; }

    /// Returns the first failure since the last call, and clears it.
    tagFailure TakeFailure();

private:
    QVector<TRow> RunOnce(const QString& statement, const TRow& bound);

    QSqlDatabase m_Database;
    tagFailure m_Failure;
    int m_Patience;
};
