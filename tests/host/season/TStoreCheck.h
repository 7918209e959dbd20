#pragma once

#include "stores/TSqliteStore.h"

#include <QDate>
#include <QList>

/// The journal of the store and its copies: they have what they must have, and no more. Throws TSeasonFault where that
/// is not so.
class TStoreCheck
{
public:
    /// Notes changes by the operator.
    void Changed(qint64 parameters) { m_Changes += parameters; }

    /// Call it at the end of a day, while the store is open.
    void LookAtJournal(const TSqliteStore& store);

    /// Call it when the store is closed. @param day on which it was open.
    void LookAtFiles(const QString& storeFile, const QDate& day);

    int MostEntries() const { return m_MostEntries; } ///< of the journal
    int MostCopies() const { return m_MostCopies; }

private:
    qint64 m_Changes = 0; ///< since the journal was looked at
    qint64 m_LastEntry = 0;
    QList<QDate> m_Days; ///< on which the store was open
    int m_MostEntries = 0;
    int m_MostCopies = 0;
};
