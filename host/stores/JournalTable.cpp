#include "stores/JournalTable.h"

#include "parameters/ETimeSource.h"
#include "parameters/HostParameters.h"
#include "parameters/ParameterGroups.h"

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

const QString Select = QLatin1String("SELECT entry, time, utc, time_source, author, parameter, old_type, old_value, "
                                     "new_type, new_value, digest FROM journal");
const QString Newest = QLatin1String(" ORDER BY entry DESC LIMIT ?");

constexpr int DigestLength = 16;
constexpr int ToTheMinute = 16; // of an ISO 8601 time: "2026-05-04T12:34"
constexpr int MostShared = 40;  // newest rows that are looked at; the device has fewer parameters

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

void Write(TSqliteConnection& connection, const tagRow& row)
{
    connection.Run(QLatin1String("INSERT OR REPLACE INTO journal VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)"),
                   {row.number, row.time, row.utc, row.timeSource, row.author, row.parameter,
                    OrNull(row.former, row.former.type), OrNull(row.former, row.former.text),
                    OrNull(row.next, row.next.type), OrNull(row.next, row.next.text), Digest(row)});
}

// Nothing when the row does not match its digest.
std::optional<tagRow> RowOf(const TSqliteConnection::TRow& cells)
{
    const tagRow row = {cells.at(0).toLongLong(),
                        cells.at(1).toString(),
                        cells.at(2).toString(),
                        cells.at(3).toInt(),
                        cells.at(4).toString(),
                        cells.at(5).toInt(),
                        {cells.at(6).toString(), cells.at(7).toString()},
                        {cells.at(8).toString(), cells.at(9).toString()}};
    return cells.at(10).toString() == Digest(row) ? std::optional<tagRow>(row) : std::nullopt;
}

bool IsSame(const tagStoredValue& one, const tagStoredValue& other)
{
    return one.type == other.type && one.text == other.text;
}

// Whether changes of one parameter share a row.
bool IsShared(int parameter, const QString& author)
{
    return author == ChangeAuthorName(CHANGE_AUTHOR_LIBRARY) && ParameterGroups::IsOfDevice(parameter);
}

// The row that the change shares, if there is one.
std::optional<tagRow> SharedRow(TSqliteConnection& connection, const tagChange& change, const tagMoment& now)
{
    if (!IsShared(change.parameter, ChangeAuthorName(change.author)))
        return std::nullopt;
    for (const TSqliteConnection::TRow& cells : connection.Run(Select + Newest, {MostShared})) {
        const std::optional<tagRow> row = RowOf(cells);
        if (!row || !IsShared(row->parameter, row->author) || row->utc.left(ToTheMinute) != now.utc.left(ToTheMinute))
            return std::nullopt;
        if (row->parameter == change.parameter)
            return IsSame(row->next, change.former) ? row : std::nullopt;
    }
    return std::nullopt;
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
    for (const tagChange& change : changes) {
        const std::optional<tagRow> shared = SharedRow(connection, change, now);
        Write(connection,
              {shared ? shared->number : ++number, now.time, now.utc, now.timeSource, ChangeAuthorName(change.author),
               change.parameter, shared ? shared->former : change.former, change.next});
    }
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
    for (const TSqliteConnection::TRow& cells : connection.Run(Select + where + Newest, bound)) {
        if (const std::optional<tagRow> row = RowOf(cells))
            rows->append(*row);
        else
            damaged->append(cells.at(0).toLongLong());
    }
}

} // namespace JournalTable
