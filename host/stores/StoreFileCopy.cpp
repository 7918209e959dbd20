#include "stores/StoreFileCopy.h"

#include "stores/DurableFiles.h"
#include "stores/StoreHeader.h"

namespace StoreFileCopy {

namespace {

constexpr const char* CompanionSuffixes[] = {LogSuffix, "-shm", "-journal"};

} // namespace

QStringList Companions(const QString& path)
{
    QStringList paths;
    for (const char* suffix : CompanionSuffixes)
        paths += path + QLatin1String(suffix);
    return paths;
}

QStringList WithCompanions(const QString& path) { return QStringList(path) + Companions(path); }

tagStoreFinding CheckAtRest(const QString& path, StoreTable::tagContent* content)
{
    tagStoreFinding finding = RecogniseStoreFile(path);
    if (finding.state != STORE_FILE_CLEAN)
        return finding;
    TSqliteConnection connection(path, TSqliteConnection::SQLITE_ACCESS_READ, CopyPatience);
    return StoreTable::Read(connection, content);
}

bool CopyTo(TSqliteConnection& source, const QString& target, EDamagedRows damagedRows, QString* reason)
{
    const QString fresh = target + QLatin1String(".new");
    for (const QString& remains : WithCompanions(fresh))
        if (!DurableFiles::Remove(remains, reason))
            return false;
    source.Run(QLatin1String("VACUUM INTO ?"), {fresh});
    const TSqliteConnection::tagFailure failure = source.TakeFailure();
    if (!failure.text.isEmpty()) {
        *reason = failure.text;
    } else if (DurableFiles::SyncContent(fresh, reason)) {
        StoreTable::tagContent content;
        const tagStoreFinding finding = CheckAtRest(fresh, &content);
        const bool isClean = finding.state == STORE_FILE_CLEAN && content.journalDamage.isEmpty();
        if (isClean && (damagedRows == DAMAGED_ROWS_ACCEPTED || content.damaged.isEmpty()))
            return DurableFiles::Rename(fresh, target, reason);
        *reason = isClean ? StoreTable::DamageText(content.damaged) : finding.words + content.journalDamage;
    }
    QString ignored;
    DurableFiles::Remove(fresh, &ignored); // its space may be needed
    return false;
}

} // namespace StoreFileCopy
