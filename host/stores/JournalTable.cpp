#include "stores/JournalTable.h"

#include "parameters/ETimeSource.h"
#include "parameters/HostParameters.h"

#include <QByteArray>
#include <QCryptographicHash>
#include <QDateTime>
#include <QStringList>

namespace JournalTable {

namespace {

// Compared with what is in the file: the text must not change.
const QString Schema =
    QLatin1String("CREATE TABLE journal (entry INTEGER PRIMARY KEY AUTOINCREMENT, time TEXT NOT NULL, "
                  "utc TEXT NOT NULL, time_source INTEGER NOT NULL, author TEXT NOT NULL, parameter INTEGER NOT NULL, "
                  "old_type TEXT, old_value TEXT, new_type TEXT, new_value TEXT, digest TEXT NOT NULL)");

const QString FormQuery = QLatin1String("SELECT sql FROM sqlite_master WHERE name = 'journal'");

constexpr int DigestLength = 16;

// Texts of values have no control characters, so the separator keeps the parts apart.
QString Digest(const tagRow& row)
{
    const QStringList parts = {QString::number(row.number),
                               row.time,
                               row.utc,
                               QString::number(row.timeSource),
                               row.author,
                               QString::number(row.parameter),
                               row.former.type,
                               row.former.text,
                               row.next.type,
                               row.next.text};
    const QByteArray hash =
        QCryptographicHash::hash(parts.join(QLatin1Char('\n')).toUtf8(), QCryptographicHash::Sha256).toHex();
    return QString::fromLatin1(hash.left(DigestLength));
}

int StoredInt(TSqliteConnection& connection, int parameter)
{
    const auto rows =
        connection.Run(QLatin1String("SELECT value FROM parameters WHERE id = ? AND type = 'int'"), {parameter});
    return rows.isEmpty() ? 0 : rows.first().value(0).toInt();
}

struct tagMoment
{
    QString time;
    QString utc;
    int timeSource;
};

// From the file, not from the clock of this process: a program that only sets a parameter has not set up its clock.
tagMoment Now(TSqliteConnection& connection)
{
    const QDateTime utc = QDateTime::currentDateTimeUtc();
    const QDateTime local = utc.addSecs(StoredInt(connection, PARAM_CLOCK_OFFSET));
    return {local.date().toString(Qt::ISODate) + QLatin1Char('T') + local.time().toString(Qt::ISODateWithMs),
            utc.toString(Qt::ISODateWithMs), StoredInt(connection, PARAM_TIME_SOURCE)};
}

QVariant OrNull(const tagStoredValue& value, const QString& part)
{
    return value.type.isEmpty() ? QVariant() : QVariant(part);
}

void Insert(TSqliteConnection& connection, const tagRow& row)
{
    connection.Run(QLatin1String("INSERT INTO journal VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)"),
                   {row.number, row.time, row.utc, row.timeSource, row.author, row.parameter,
                    OrNull(row.former, row.former.type), OrNull(row.former, row.former.text),
                    OrNull(row.next, row.next.type), OrNull(row.next, row.next.text), Digest(row)});
}

} // namespace

bool IsOfOurForm(TSqliteConnection& connection)
{
    const QVariant form = connection.Value(FormQuery);
    return !form.isValid() || form.toString() == Schema;
}

void Create(TSqliteConnection& connection)
{
    if (!connection.Value(FormQuery).isValid())
        connection.Run(Schema);
}

void Append(TSqliteConnection& connection, const QVector<tagChange>& changes)
{
    if (changes.isEmpty())
        return;
    Create(connection);
    // Not the largest number in the table: a number is not used again when the table is emptied by hand.
    qint64 number =
        connection.Value(QLatin1String("SELECT seq FROM sqlite_sequence WHERE name = 'journal'")).toLongLong();
    const tagMoment now = Now(connection);
    for (const tagChange& change : changes)
        Insert(connection, {++number, now.time, now.utc, now.timeSource, ChangeAuthorName(change.author),
                            change.parameter, change.former, change.next});
    connection.Run(QLatin1String("DELETE FROM journal WHERE entry <= ?"), {number - MostEntries});
}

void Read(TSqliteConnection& connection, const tagFilter& filter, QVector<tagRow>* rows, QList<qint64>* damaged)
{
    if (!connection.Value(FormQuery).isValid())
        return;
    QString where;
    TSqliteConnection::TRow bound;
    if (filter.parameter) {
        where = QLatin1String(" WHERE parameter = ?");
        bound += *filter.parameter;
    } else if (filter.number) {
        where = QLatin1String(" WHERE entry = ?");
        bound += *filter.number;
    }
    bound += filter.most;
    const auto found = connection.Run(
        QString::fromLatin1("SELECT entry, time, utc, time_source, author, parameter, old_type, old_value, new_type, "
                            "new_value, digest FROM journal%1 ORDER BY entry DESC LIMIT ?")
            .arg(where),
        bound);
    for (const TSqliteConnection::TRow& cells : found) {
        const tagRow row = {cells.at(0).toLongLong(),
                            cells.at(1).toString(),
                            cells.at(2).toString(),
                            cells.at(3).toInt(),
                            cells.at(4).toString(),
                            cells.at(5).toInt(),
                            {cells.at(6).toString(), cells.at(7).toString()},
                            {cells.at(8).toString(), cells.at(9).toString()}};
        if (cells.at(10).toString() == Digest(row))
            rows->append(row);
        else
            damaged->append(row.number);
    }
}

} // namespace JournalTable
