#include "Rows.h"
#include "Work.h"

#include <QDataStream>

#include <cstring>

namespace {

using namespace Work;

QVector<int> CopiedList(unsigned number)
{
    static QVector<int> from(1000, 1);
    static QVector<int> to(1000, 0);
    from[0] = static_cast<int>(number);
    std::memcpy(to.data(), from.constData(), 1000 * sizeof(int));
    return to;
}

const TRows Rows = {
    {"serial.scalars", ROW_OURS, "TBinarySerializer", Timed<Scalars<TBinarySerializer>>},
    {"serial.scalars", ROW_PEER, "QDataStream", Timed<Scalars<QDataStream>>},

    {"serial.list", ROW_LIMIT, "the integers copied", Timed<CopiedList>},
    {"serial.list", ROW_OURS, "TBinarySerializer", Timed<List<TBinarySerializer>>},
    {"serial.list", ROW_PEER, "QDataStream", Timed<List<QDataStream>>},

    {"serial.record", ROW_OURS, "TBinarySerializer", Timed<Record<TBinarySerializer>>},
    {"serial.record", ROW_PEER, "QDataStream", Timed<Record<QDataStream>>},
};

} // namespace
