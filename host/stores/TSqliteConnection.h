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
    };

    /// @param path absolute, or ":memory:".
    TSqliteConnection(const QString& path, EAccess access);
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
    QSqlDatabase m_Database;
    tagFailure m_Failure;
};
