#include "LockOrder.h"

#include <QFile>

#include <set>

namespace {

/// "| `system` | region | when |" gives "system", "region" and "when".
QByteArrayList Cells(const QByteArray& row)
{
    QByteArrayList cells;
    for (const QByteArray& cell : row.split('|'))
        cells.append(cell.trimmed());
    return cells.mid(1, cells.size() - 2); // without what stands before the first and behind the last bar
}

/// What may be waited for by a thread that holds @p lock.
std::set<QByteArray> Reachable(const QByteArray& lock, const std::vector<LockOrder::FPair>& pairs)
{
    std::set<QByteArray> reached;
    std::vector<QByteArray> open{lock};
    while (!open.empty()) {
        const QByteArray held = open.back();
        open.pop_back();
        for (const LockOrder::FPair& pair : pairs) {
            if (pair.first == held && reached.insert(pair.second).second)
                open.push_back(pair.second);
        }
    }
    return reached;
}

QString Sentence(const char* format, const QByteArray& held, const QByteArray& taken)
{
    return QString::fromLatin1(format).arg(QString::fromUtf8(held), QString::fromUtf8(taken));
}

} // namespace

std::vector<LockOrder::FPair> LockOrder::Documented(const QString& page, const QByteArray& heading)
{
    std::vector<FPair> pairs;
    QFile file(page);
    if (!file.open(QIODevice::ReadOnly))
        return pairs;
    bool isUnder = false;
    int row = 0;
    while (!file.atEnd()) {
        const QByteArray line = file.readLine().trimmed();
        if (line.startsWith('#')) {
            isUnder = line == "## " + heading;
            row = 0;
        }
        if (!isUnder || !line.startsWith('|') || ++row <= 2) // the title of the table, and the line below it
            continue;
        const QByteArrayList cells = Cells(line);
        pairs.emplace_back(cells.value(0), cells.value(1));
    }
    return pairs;
}

QStringList LockOrder::Faults(const std::vector<FPair>& documented, const std::vector<LockRecord::tagPair>& recorded)
{
    QStringList faults;
    std::set<FPair> seen;
    for (const LockRecord::tagPair& pair : recorded) {
        seen.emplace(pair.held, pair.taken);
        if (Reachable(pair.held, documented).count(pair.taken) == 0)
            faults +=
                Sentence("\"%2\" was taken while \"%1\" was held, which is not documented", pair.held, pair.taken);
    }
    for (const FPair& pair : documented) {
        if (seen.count(pair) == 0)
            faults += Sentence("\"%2\" was never taken while \"%1\" was held, although that is documented", pair.first,
                               pair.second);
        if (Reachable(pair.second, documented).count(pair.first) > 0)
            faults += Sentence("\"%1\" and \"%2\" are documented in both orders", pair.first, pair.second);
    }
    return faults;
}
