#include "TStoreCheck.h"

#include "Require.h"

#include "copies/StoreCopies.h"
#include "stores/ChangeJournal.h"
#include "stores/TChangeAuthor.h"

#include <QDir>
#include <QFileInfo>
#include <QSet>

#include <algorithm>
#include <functional>
#include <optional>

namespace {

/// What the journal and the copies keep.
constexpr int MostJournalEntries = 10000;
constexpr int MostDays = 7;
constexpr int MostWeeks = 4;

/// The days that are kept: the newest seven, and the newest of each of the newest four weeks.
QSet<QDate> KeptDays(QList<QDate> days)
{
    std::sort(days.begin(), days.end(), std::greater<QDate>());
    QSet<QDate> kept;
    QSet<QDate> mondays;
    for (int i = 0; i < days.size(); ++i) {
        const QDate monday = days.at(i).addDays(1 - days.at(i).dayOfWeek());
        const bool isNewest = !mondays.contains(monday);
        mondays.insert(monday);
        if (i < MostDays || (isNewest && mondays.size() <= MostWeeks))
            kept.insert(days.at(i));
    }
    return kept;
}

} // namespace

void TStoreCheck::LookAtJournal(const TSqliteStore& store)
{
    Require(store.WriteFailure().isEmpty(), "the store has not written everything");
    ChangeJournal::tagJournal journal;
    QString error;
    Require(ChangeJournal::Read(store, {std::nullopt, 2 * MostJournalEntries}, &journal, &error),
            "the journal cannot be read");
    Require(journal.damaged.isEmpty(), "entries of the journal are damaged");
    const int entries = static_cast<int>(journal.entries.size());
    Require(entries > 0 && entries <= MostJournalEntries, "the journal has too many entries");
    m_MostEntries = std::max(m_MostEntries, entries);
    const QString byOperator = ChangeAuthorName(CHANGE_AUTHOR_OPERATOR);
    const qint64 newest = journal.entries.first().number;
    qint64 number = newest;
    qint64 changes = 0;
    for (const ChangeJournal::tagEntry& entry : journal.entries) {
        RequireEqual(entry.number, number--, "the number of an entry of the journal");
        if (entry.number > m_LastEntry && entry.author == byOperator)
            ++changes;
    }
    RequireEqual(changes, m_Changes, "changes by the operator in the journal");
    m_Changes = 0;
    m_LastEntry = newest;
}

void TStoreCheck::LookAtFiles(const QString& storeFile, const QDate& day)
{
    m_Days.append(day);
    QList<QDate> days;
    for (const StoreCopies::tagCopy& copy : StoreCopies::List(storeFile))
        days.append(copy.day);
    Require(QSet<QDate>(days.cbegin(), days.cend()) == KeptDays(m_Days),
            "the copies of the store are not those to keep");
    m_MostCopies = std::max(m_MostCopies, static_cast<int>(days.size()));

    const QFileInfo file(storeFile);
    const QStringList beside = file.dir().entryList({file.fileName() + QLatin1Char('*')}, QDir::AllEntries, QDir::Name);
    const QStringList expected = {file.fileName(), file.fileName() + QLatin1String(".copies"),
                                  file.fileName() + QLatin1String(".good")};
    if (beside != expected)
        throw TSeasonFault(QLatin1String("files of the store: ") + beside.join(QLatin1Char(' ')));
}
