#pragma once

#include <QByteArray>
#include <QJsonValue>
#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

/// Files that TBinarySerializer has written: blocks, each with a header and its values.
namespace SerializedFile {

struct tagValue
{
    int offset; ///< of the first byte, in the file
    QByteArray bytes;
    QString type;     ///< one of Types(), or "data" when the values of the block were not named
    QJsonValue value; ///< undefined for data; numbers that JSON does not have are texts, bytes are hexadecimal
};

struct tagBlock
{
    int offset; ///< of the header
    unsigned int version;
    QList<tagValue> values;
};

/// The first byte that cannot be part of such a file, and why.
struct tagMisfit
{
    int offset;
    QString reason;
};

struct tagContent
{
    QList<tagBlock> blocks; ///< the blocks before the misfit
    std::optional<tagMisfit> misfit;
};

/// The names of the types of values.
QStringList Types();

/// Reads @p file. A file does not tell the types of its values: @p layouts names them, the first list for the first
/// block and so on, the last for all that follow. Without layouts the data of a block reaches to the next marker.
tagContent Read(const QByteArray& file, const QList<QStringList>& layouts);

} // namespace SerializedFile
