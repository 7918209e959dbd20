#pragma once

#include "stores/TSqliteConnection.h"

#include <QMap>
#include <QString>
#include <QStringList>

/// What imports have taken from other terminals: a table `imported` in the file of a store, with a row for each
/// terminal and parameter. A later import from the same terminal can so tell what was changed here in the meantime.
///
/// Values are noted before an import changes the store, and settled after it. When the program is killed in between, it
/// is not known whether the import took place: both the noted and the former value then count. A noted value without a
/// former one does not count.
///
/// Values of the MostTerminals terminals from which was imported last are kept; an import from another one removes
/// those of the terminal whose last import is the oldest.
///
/// The file must be open as a TSqliteStore while the object exists. Used by the thread that has made it.
class TImportedValues
{
public:
    /// So the table has fewer than 2,000 rows.
    static constexpr int MostTerminals = 16;

    /// @param storeFile absolute.
    /// @param patience how many milliseconds a write waits while another program has the file locked.
    TImportedValues(const QString& storeFile, int patience);

    /// The values, as texts, that imports have taken from @p terminal; for a parameter there are one or two. Writes
    /// nothing. @return false with a reason when the file cannot be read.
    bool Read(const QString& terminal, QMap<int, QStringList>* values, QString* reason);

    /// Notes what an import is about to take. @return false with a reason when that is not on the disk.
    bool Note(const QString& terminal, const QMap<int, QString>& values, QString* reason);

    /// The import has taken place. @p values are those of Note(). Removes the values of terminals that are not kept.
    bool Settle(const QString& terminal, const QMap<int, QString>& values, QString* reason);

    /// The import has not taken place.
    bool Forget(const QString& terminal, const QMap<int, QString>& values, QString* reason);

private:
    enum EPruning : int
    {
        TERMINALS_STAY,
        OLD_TERMINALS_GO,
    };

    bool Write(const QString& statement, const QString& terminal, const QMap<int, QString>& values, EPruning pruning,
               QString* reason);
    bool TakeReason(QString* reason);

    TSqliteConnection m_Connection;
};
