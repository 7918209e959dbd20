#include "stores/StoreTable.h"

#include "stores/StoredValue.h"

#include <QByteArray>
#include <QCryptographicHash>

namespace StoreTable {

namespace {

// Every file of this schema carries exactly this text, which is therefore never reworded.
const QString Schema = QLatin1String("CREATE TABLE parameters (id INTEGER PRIMARY KEY, type TEXT NOT NULL, "
                                     "value TEXT NOT NULL, digest TEXT)");

constexpr int DigestLength = 16;

// SQLite checks the structure of its file, not the bytes of the values. A row that was written by hand may go without
// (NULL), so that a value can be repaired with the shell of SQLite.
QString Digest(qlonglong id, const tagStoredValue& stored)
{
    const QString text = QString::fromLatin1("%1 %2 ").arg(id).arg(stored.type) + stored.text;
    const QByteArray hash = QCryptographicHash::hash(text.toUtf8(), QCryptographicHash::Sha256).toHex();
    return QString::fromLatin1(hash.left(DigestLength));
}

tagStoreFinding Damaged(const QString& words) { return {STORE_FILE_DAMAGED, words}; }

// The connection's failure if there is one, else the finding itself.
tagStoreFinding Verdict(TSqliteConnection& connection, const tagStoreFinding& finding)
{
    const TSqliteConnection::tagFailure failure = connection.TakeFailure();
    if (failure.text.isEmpty())
        return finding;
    return {failure.isDamage ? STORE_FILE_DAMAGED : STORE_FILE_INACCESSIBLE, failure.text};
}

tagStoreFinding CheckStructure(TSqliteConnection& connection)
{
    const int version = connection.Value(QLatin1String("PRAGMA user_version")).toInt();
    if (version > SchemaVersion)
        return {STORE_FILE_NEWER, QString::fromLatin1("schema %1").arg(version)};
    const int application = connection.Value(QLatin1String("PRAGMA application_id")).toInt();
    const QString schema =
        connection.Value(QLatin1String("SELECT sql FROM sqlite_master WHERE name = 'parameters'")).toString();
    if (version != SchemaVersion || application != ApplicationId || schema != Schema)
        return Damaged(QLatin1String("its schema is missing or broken"));
    const QString check = connection.Value(QLatin1String("PRAGMA integrity_check(1)")).toString();
    if (check != QLatin1String("ok"))
        return Damaged(check.simplified());
    return {STORE_FILE_CLEAN, QString()};
}

tagStoreFinding CheckRows(TSqliteConnection& connection, tagContent* content)
{
    const auto rows = connection.Run(QLatin1String("SELECT id, type, value, digest FROM parameters"));
    for (const TSqliteConnection::TRow& row : rows) {
        const qlonglong id = row.at(0).toLongLong();
        const tagStoredValue stored = {row.at(1).toString(), row.at(2).toString()};
        if (!row.at(3).isNull() && row.at(3).toString() != Digest(id, stored))
            return Damaged(QString::fromLatin1("its parameter %1 does not match its digest").arg(id));
        if (id != static_cast<int>(id))
            continue; // written by hand, it is no parameter's
        QVariant value;
        if (DecodeValue(stored, &value))
            content->values.insert(static_cast<int>(id), value);
        else
            content->unreadable.insert(static_cast<int>(id),
                                       QString::fromLatin1("%1 \"%2\"").arg(stored.type, stored.text));
    }
    return {STORE_FILE_CLEAN, QString()};
}

} // namespace

void Create(TSqliteConnection& connection)
{
    connection.Run(QString::fromLatin1("PRAGMA application_id = %1").arg(ApplicationId));
    connection.Run(QString::fromLatin1("PRAGMA user_version = %1").arg(SchemaVersion));
    connection.Run(Schema);
}

tagStoreFinding Read(TSqliteConnection& connection, tagContent* content)
{
    *content = {};
    const tagStoreFinding finding = Verdict(connection, CheckStructure(connection));
    return finding.state == STORE_FILE_CLEAN ? ReadRows(connection, content) : finding;
}

tagStoreFinding ReadRows(TSqliteConnection& connection, tagContent* content)
{
    *content = {};
    return Verdict(connection, CheckRows(connection, content));
}

QString Write(TSqliteConnection& connection, const QMap<int, QVariant>& changes)
{
    connection.Run(QLatin1String("BEGIN IMMEDIATE"));
    for (auto change = changes.constBegin(); change != changes.constEnd(); ++change) {
        const int id = change.key();
        tagStoredValue stored;
        if (EncodeValue(change.value(), &stored))
            connection.Run(QLatin1String("INSERT OR REPLACE INTO parameters VALUES (?, ?, ?, ?)"),
                           {id, stored.type, stored.text, Digest(id, stored)});
        else
            connection.Run(QLatin1String("DELETE FROM parameters WHERE id = ?"), {id});
    }
    connection.Run(QLatin1String("COMMIT"));
    QString reason = connection.TakeFailure().text;
    if (!reason.isEmpty()) {
        connection.Run(QLatin1String("ROLLBACK")); // fails where the failure has rolled back already
        connection.TakeFailure();
    }
    return reason;
}

} // namespace StoreTable
