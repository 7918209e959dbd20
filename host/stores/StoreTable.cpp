#include "stores/StoreTable.h"

#include "stores/JournalTable.h"
#include "stores/StoredValue.h"

#include <QByteArray>
#include <QCryptographicHash>
#include <QStringList>

namespace StoreTable {

namespace {

// Part of every file of this schema, and compared with it: the text must not change.
const QString Schema = QLatin1String("CREATE TABLE parameters (id INTEGER PRIMARY KEY, type TEXT NOT NULL, "
                                     "value TEXT NOT NULL, digest TEXT)");

const QString Removal = QLatin1String("DELETE FROM parameters WHERE id = ?");

constexpr int DigestLength = 16;

// SQLite checks the structure of its file, not the bytes of the values. A row without a digest (NULL) is accepted, so
// that a value can be edited with the shell of SQLite.
QString Digest(qlonglong id, const tagStoredValue& stored)
{
    const QString text = QString::fromLatin1("%1 %2 ").arg(id).arg(stored.type) + stored.text;
    const QByteArray hash = QCryptographicHash::hash(text.toUtf8(), QCryptographicHash::Sha256).toHex();
    return QString::fromLatin1(hash.left(DigestLength));
}

tagStoreFinding Damaged(const QString& words) { return {STORE_FILE_DAMAGED, words}; }

// The failure of the connection if there is one, else the finding itself.
tagStoreFinding Verdict(TSqliteConnection& connection, const tagStoreFinding& finding)
{
    const TSqliteConnection::tagFailure failure = connection.TakeFailure();
    if (failure.text.isEmpty())
        return finding;
    return {failure.isDamage ? STORE_FILE_DAMAGED : STORE_FILE_INACCESSIBLE, failure.text};
}

tagStoreFinding CheckStructure(TSqliteConnection& connection, QString* journalDamage)
{
    const int version = connection.Value(QLatin1String("PRAGMA user_version")).toInt();
    if (version > SchemaVersion)
        return {STORE_FILE_NEWER, QString::fromLatin1("schema %1").arg(version)};
    const int application = connection.Value(QLatin1String("PRAGMA application_id")).toInt();
    const QString schema =
        connection.Value(QLatin1String("SELECT sql FROM sqlite_master WHERE name = 'parameters'")).toString();
    if (version != SchemaVersion || application != ApplicationId || schema != Schema)
        return Damaged(QLatin1String("its schema is missing or broken"));
    const QString sound = QLatin1String("ok");
    const QString check = connection.Value(QLatin1String("PRAGMA integrity_check(1)")).toString();
    if (check != sound) {
        // The parameters are worth more than the journal.
        if (connection.Value(QLatin1String("PRAGMA integrity_check(parameters)")).toString() != sound)
            return Damaged(check.simplified());
        *journalDamage = check.simplified();
    } else if (!JournalTable::IsOfOurForm(connection)) {
        *journalDamage = QLatin1String("the table of its journal has another form");
    }
    return {STORE_FILE_CLEAN, QString()};
}

void ReadInto(TSqliteConnection& connection, tagContent* content)
{
    const auto rows = connection.Run(QLatin1String("SELECT id, type, value, digest FROM parameters"));
    for (const TSqliteConnection::TRow& row : rows) {
        const qlonglong number = row.at(0).toLongLong();
        const int id = static_cast<int>(number);
        const tagStoredValue stored = {row.at(1).toString(), row.at(2).toString()};
        QVariant value;
        if (!row.at(3).isNull() && row.at(3).toString() != Digest(number, stored))
            content->damaged.append(number);
        else if (!IsParameter(number))
            continue;
        else if (DecodeValue(stored, &value))
            content->values.insert(id, value);
        else
            content->unreadable.insert(id, QString::fromLatin1("%1 \"%2\"").arg(stored.type, stored.text));
    }
}

void WriteRows(TSqliteConnection& connection, const QMap<int, QVariant>& changes)
{
    for (auto change = changes.constBegin(); change != changes.constEnd(); ++change) {
        const int id = change.key();
        tagStoredValue stored;
        if (EncodeValue(change.value(), &stored))
            connection.Run(QLatin1String("INSERT OR REPLACE INTO parameters VALUES (?, ?, ?, ?)"),
                           {id, stored.type, stored.text, Digest(id, stored)});
        else
            connection.Run(Removal, {id});
    }
}

// What is about to change. A row that does not match its digest has no value.
QVector<JournalTable::tagChange> ChangesOf(TSqliteConnection& connection, const QMap<int, QVariant>& changes,
                                           const QMap<int, EChangeAuthor>& authors)
{
    QVector<JournalTable::tagChange> found;
    for (auto change = changes.constBegin(); change != changes.constEnd(); ++change) {
        const int id = change.key();
        JournalTable::tagChange entry = {id, {}, {}, authors.value(id, CHANGE_AUTHOR_LIBRARY)};
        const auto rows =
            connection.Run(QLatin1String("SELECT type, value, digest FROM parameters WHERE id = ?"), {id});
        if (!rows.isEmpty()) {
            const tagStoredValue former = {rows.first().at(0).toString(), rows.first().at(1).toString()};
            const QVariant& digest = rows.first().at(2);
            if (digest.isNull() || digest.toString() == Digest(id, former))
                entry.former = former;
        }
        EncodeValue(change.value(), &entry.next);
        if (entry.former.type != entry.next.type || entry.former.text != entry.next.text)
            found.append(entry);
    }
    return found;
}

} // namespace

void Create(TSqliteConnection& connection)
{
    connection.Run(QString::fromLatin1("PRAGMA application_id = %1").arg(ApplicationId));
    connection.Run(QString::fromLatin1("PRAGMA user_version = %1").arg(SchemaVersion));
    connection.Run(Schema);
    JournalTable::Create(connection);
}

tagStoreFinding Read(TSqliteConnection& connection, tagContent* content)
{
    *content = {};
    QString journalDamage;
    tagStoreFinding finding = Verdict(connection, CheckStructure(connection, &journalDamage));
    if (finding.state == STORE_FILE_CLEAN)
        finding = ReadRows(connection, content);
    content->journalDamage = journalDamage;
    return finding;
}

tagStoreFinding ReadRows(TSqliteConnection& connection, tagContent* content)
{
    *content = {};
    ReadInto(connection, content);
    return Verdict(connection, {STORE_FILE_CLEAN, QString()});
}

QString DamageText(const QList<qlonglong>& damaged)
{
    if (damaged.size() == 1)
        return QString::fromLatin1("its parameter %1 does not match its digest").arg(damaged.first());
    QStringList numbers;
    for (const qlonglong number : damaged)
        numbers += QString::number(number);
    return QString::fromLatin1("its parameters %1 do not match their digests").arg(numbers.join(QLatin1String(", ")));
}

void Begin(TSqliteConnection& connection) { connection.Run(QLatin1String("BEGIN IMMEDIATE")); }

QString Commit(TSqliteConnection& connection)
{
    connection.Run(QLatin1String("COMMIT"));
    QString reason = connection.TakeFailure().text;
    if (!reason.isEmpty())
        RollBack(connection);
    return reason;
}

void RollBack(TSqliteConnection& connection)
{
    connection.TakeFailure();
    connection.Run(QLatin1String("ROLLBACK")); // fails when SQLite has rolled back by itself
    connection.TakeFailure();
}

void WriteAndNote(TSqliteConnection& connection, const QMap<int, QVariant>& changes,
                  const QMap<int, EChangeAuthor>& authors)
{
    const QVector<JournalTable::tagChange> entries = ChangesOf(connection, changes, authors);
    WriteRows(connection, changes);
    JournalTable::Append(connection, entries);
}

QString Write(TSqliteConnection& connection, const QMap<int, QVariant>& changes,
              const QMap<int, EChangeAuthor>& authors, QString* journalDamage)
{
    const auto isJournalDamaged = [&] {
        Begin(connection);
        const QVector<JournalTable::tagChange> entries = ChangesOf(connection, changes, authors);
        WriteRows(connection, changes);
        const bool areWritten = connection.Failure().text.isEmpty();
        JournalTable::Append(connection, entries);
        return areWritten && connection.Failure().isDamage;
    };
    // A drive that cannot be read once may be read the next time.
    bool isDamaged = isJournalDamaged();
    if (isDamaged) {
        RollBack(connection);
        isDamaged = isJournalDamaged();
    }
    if (isDamaged) {
        // A parameter is not lost because its change cannot be noted.
        *journalDamage = connection.Failure().text;
        RollBack(connection);
        Begin(connection);
        WriteRows(connection, changes);
    }
    return Commit(connection);
}

QString Repair(TSqliteConnection& connection, const QList<qlonglong>& damaged, const QMap<int, QVariant>& values)
{
    QMap<int, EChangeAuthor> authors;
    for (auto value = values.constBegin(); value != values.constEnd(); ++value)
        authors.insert(value.key(), CHANGE_AUTHOR_REPAIR);
    Begin(connection);
    const QVector<JournalTable::tagChange> entries = ChangesOf(connection, values, authors);
    for (const qlonglong number : damaged)
        connection.Run(Removal, {number});
    WriteRows(connection, values);
    JournalTable::Append(connection, entries);
    return Commit(connection);
}

void CopyRows(TSqliteConnection& connection, const QString& path)
{
    Create(connection);
    connection.Run(QLatin1String("ATTACH DATABASE ? AS source"), {path});
    connection.Run(QLatin1String("INSERT INTO parameters SELECT id, type, value, digest FROM source.parameters"));
    const auto others = connection.Run(
        QLatin1String("SELECT name, sql FROM source.sqlite_master WHERE type = 'table' AND name NOT LIKE 'sqlite^_%' "
                      "ESCAPE '^' AND name NOT IN ('parameters', 'journal')"));
    const bool areCopied = connection.Failure().text.isEmpty();
    for (const TSqliteConnection::TRow& other : others) {
        const QString name = other.at(0).toString();
        connection.Run(other.at(1).toString());
        connection.Run(QString::fromLatin1("INSERT INTO main.\"%1\" SELECT * FROM source.\"%1\"").arg(name));
        if (areCopied && !connection.TakeFailure().text.isEmpty()) {
            connection.Run(
                QString::fromLatin1("DROP TABLE IF EXISTS main.\"%1\"").arg(name)); // less than the parameters
            connection.TakeFailure();
        }
    }
    connection.Run(QLatin1String("DETACH DATABASE source"));
}

} // namespace StoreTable
