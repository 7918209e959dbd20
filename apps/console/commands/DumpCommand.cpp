// dump: the contents of a file of serialized blocks.

#include "console/commands/Commands.h"
#include "console/commands/SerializedFile.h"
#include "console/line/CommandLine.h"
#include "console/line/Messages.h"
#include "console/line/Output.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <utility>

namespace {

using namespace SerializedFile;

const char* const ValuesOption = "values";

const qint64 LargestFile = 1 << 30;
const int BytesInRow = 16;
const int FirstOfText = 0x20; ///< printable characters of ASCII
const int LastOfText = 0x7E;

/// The bytes of a file or of a pipe; more than LargestFile when it has more. One read of that size would ask for as
/// much memory, however little there is to read.
QByteArray ReadAll(QFile& file)
{
    const qint64 pieceBytes = 0x10000;
    QByteArray bytes;
    for (QByteArray piece = file.read(pieceBytes); !piece.isEmpty(); piece = file.read(pieceBytes)) {
        bytes += piece;
        if (bytes.size() > LargestFile)
            break;
    }
    return bytes;
}

QString InHex(int offset) { return QString::fromLatin1("%1").arg(offset, 8, 16, QLatin1Char('0')); }

/// The printable bytes as text, a full stop for each other byte.
QString AsText(const QByteArray& bytes)
{
    QString text;
    for (const char byte : bytes)
        text += byte >= FirstOfText && byte <= LastOfText ? QLatin1Char(byte) : QLatin1Char('.');
    return text;
}

/// The value on one line.
QString Compact(const QJsonValue& value)
{
    const QByteArray array = QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact);
    return QString::fromUtf8(array.mid(1, array.size() - 2));
}

/// One line for each sixteen bytes; the first line has the value.
void PrintValue(const tagValue& value)
{
    const int size = static_cast<int>(value.bytes.size());
    for (int i = 0; i < size; i += BytesInRow) {
        const QByteArray row = value.bytes.mid(i, BytesInRow);
        QString line = QString::fromLatin1("  %1  %2 ")
                           .arg(InHex(value.offset + i))
                           .arg(QString::fromLatin1(row.toHex(' ')), -3 * BytesInRow);
        if (value.value.isUndefined())
            line += AsText(row);
        else if (i == 0)
            line += QString::fromLatin1("%1 %2").arg(value.type, -7).arg(Compact(value.value));
        PrintTrimmed(line);
    }
}

void PrintText(const QList<tagBlock>& blocks)
{
    int number = 0;
    for (const tagBlock& block : blocks) {
        Print(QString::fromLatin1("%1  block %2, version %3\n")
                  .arg(InHex(block.offset))
                  .arg(++number)
                  .arg(block.version));
        for (const tagValue& value : block.values)
            PrintValue(value);
    }
}

void PrintJson(const QList<tagBlock>& blocks)
{
    QJsonArray array;
    for (const tagBlock& block : blocks) {
        QJsonArray values;
        for (const tagValue& value : block.values) {
            QJsonObject object{{QLatin1String("offset"), value.offset},
                               {QLatin1String("type"), value.type},
                               {QLatin1String("bytes"), QString::fromLatin1(value.bytes.toHex())}};
            if (!value.value.isUndefined())
                object.insert(QLatin1String("value"), value.value);
            values.append(object);
        }
        array.append(QJsonObject{{QLatin1String("offset"), block.offset},
                                 {QLatin1String("version"), static_cast<qint64>(block.version)},
                                 {QLatin1String("values"), values}});
    }
    PrintJson(array);
}

/// The types in "string,int"; empty, after a message, when one of them is unknown.
QStringList ReadLayout(const QString& text, const TCommandLine& line)
{
    QStringList types = text.split(QLatin1Char(','));
    for (const QString& type : std::as_const(types)) {
        if (Types().contains(type))
            continue;
        line.Misused(Messages::NotAmong(QLatin1String("type of value"), type, Types()));
        return {};
    }
    return types;
}

} // namespace

int RunDump(const tagContext&, const QStringList& arguments)
{
    TCommandLine line(
        QLatin1String("dump"), QLatin1String("FILE"),
        QLatin1String("Prints the blocks of a file that a serializer has written: versions, and values in hexadecimal "
                      "with their offsets. The file does not hold the types of its values; --values names them. "
                      "Without --values a block ends at the next marker, even when a value looks like that marker."),
        QLatin1String("cabsettings dump implement.bin --values string,float,ints"));
    line.AddOption(QLatin1String(ValuesOption),
                   QString::fromLatin1("Types of the values of a block, separated by commas: %1. Each further --values "
                                       "is for the next block, the last one for all that follow.")
                       .arg(Types().join(QLatin1String(", "))),
                   QLatin1String("TYPES"));
    line.AddJsonOption(
        QLatin1String("Prints an array of objects: offset, version, values (offset, type, bytes, value)."));
    if (const auto status = line.Read(arguments, 1, 1))
        return *status;

    QList<QStringList> layouts;
    const QStringList texts = line.Values(QLatin1String(ValuesOption));
    for (const QString& text : texts) {
        const QStringList layout = ReadLayout(text, line);
        if (layout.isEmpty())
            return STATUS_MISUSED;
        layouts.append(layout);
    }

    const QString path = line.Words().at(0);
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return Fail(QString::fromLatin1("cannot read \"%1\": %2").arg(path, file.errorString()));
    const QByteArray bytes = ReadAll(file);
    if (file.error() != QFileDevice::NoError)
        return Fail(QString::fromLatin1("cannot read \"%1\": %2").arg(path, file.errorString()));
    if (bytes.size() > LargestFile)
        return Fail(QString::fromLatin1("cannot read \"%1\": it is larger than 1 GiB").arg(path));

    const tagContent content = Read(bytes, layouts);
    if (line.WantsJson())
        PrintJson(content.blocks);
    else
        PrintText(content.blocks);
    if (!content.misfit)
        return STATUS_DONE;
    return Fail(QString::fromLatin1("invalid data in \"%1\" at offset %2 (%3): %4")
                    .arg(path, QLatin1String("0x") + InHex(content.misfit->offset))
                    .arg(content.misfit->offset)
                    .arg(content.misfit->reason));
}
