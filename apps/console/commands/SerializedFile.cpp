#include "console/commands/SerializedFile.h"

#include "serialization/TBinarySerializer.h"

#include <QBuffer>
#include <QJsonArray>
#include <QtEndian>

#include <algorithm>
#include <cmath>

namespace SerializedFile {

namespace {

const int HeaderSize = 8;
const int LengthSize = 4;
const quint32 NullLength = 0xFFFFFFFF;

QByteArray Marker() { return QByteArray::fromHex("feedbaac"); }

QString Name(const char* text) { return QString::fromLatin1(text); }

QString InHex(int offset) { return QString::fromLatin1("0x%1").arg(offset, 8, 16, QLatin1Char('0')); }

QJsonValue ToJson(unsigned int value) { return static_cast<qint64>(value); }
QJsonValue ToJson(int value) { return value; }
QJsonValue ToJson(bool value) { return value; }
QJsonValue ToJson(double value) { return std::isfinite(value) ? QJsonValue(value) : QString::number(value); }
QJsonValue ToJson(float value) { return ToJson(static_cast<double>(value)); }
QJsonValue ToJson(const QString& value) { return value.isNull() ? QJsonValue() : value; }
QJsonValue ToJson(const QByteArray& value)
{
    return value.isNull() ? QJsonValue() : QString::fromLatin1(value.toHex());
}

QJsonValue ToJson(const QVector<int>& value)
{
    QJsonArray elements;
    for (const int element : value)
        elements.append(element);
    return elements;
}

/// The bytes, read by the library itself.
template <typename T>
QJsonValue ValueOf(QByteArray bytes)
{
    QBuffer device(&bytes);
    device.open(QIODevice::ReadOnly);
    T value = T();
    TBinarySerializer(&device) >> value;
    return ToJson(value);
}

struct tagType
{
    const char* name;
    int size;       ///< of the whole value; of one step of its length, when it has one
    int lengthUnit; ///< how many bytes the length counts at once; 0 without a length
    bool isNullable;
    QJsonValue (*value)(QByteArray bytes);
};

const tagType TypeRows[] = {
    {"uint", 4, 0, false, ValueOf<unsigned int>}, {"int", 4, 0, false, ValueOf<int>},
    {"float", 8, 0, false, ValueOf<float>},       {"double", 8, 0, false, ValueOf<double>},
    {"bool", 1, 0, false, ValueOf<bool>},         {"string", 2, 1, true, ValueOf<QString>},
    {"ints", 4, 4, false, ValueOf<QVector<int>>}, {"bytes", 1, 1, true, ValueOf<QByteArray>},
};

const tagType& TypeOf(const QString& name)
{
    return *std::find_if(std::begin(TypeRows), std::end(TypeRows),
                         [&name](const tagType& row) { return name == QLatin1String(row.name); });
}

class TFileReader
{
public:
    explicit TFileReader(const QByteArray& file) : m_File(file), m_Size(static_cast<int>(file.size())) {}

    tagContent Read(const QList<QStringList>& layouts)
    {
        if (m_Size == 0)
            Refuse(0, Name("the file is empty; expected the marker of a block, fe ed ba ac, and its version"));
        while (!m_Content.misfit && m_Position < m_Size) {
            if (!ReadHeader())
                break;
            if (layouts.isEmpty())
                TakeData();
            else
                ReadValues(layouts.value(std::min(m_Content.blocks.size(), layouts.size()) - 1));
        }
        return m_Content;
    }

private:
    void Refuse(int offset, const QString& reason) { m_Content.misfit = tagMisfit{offset, reason}; }

    QByteArray Bytes(int offset, int size) const { return m_File.mid(offset, size); }

    quint32 Number(int offset) const { return qFromBigEndian<quint32>(m_File.constData() + offset); }

    bool ReadHeader()
    {
        const QByteArray marker = Marker();
        const QByteArray found = Bytes(m_Position, static_cast<int>(marker.size()));
        for (int i = 0; i < found.size(); ++i) {
            if (found.at(i) == marker.at(i))
                continue;
            Refuse(m_Position + i,
                   QString::fromLatin1("expected the marker of a block, %1; found %2")
                       .arg(QString::fromLatin1(marker.toHex(' ')), QString::fromLatin1(found.toHex(' '))));
            return false;
        }
        if (m_Size - m_Position < HeaderSize) {
            Refuse(m_Size, QString::fromLatin1("the file ends inside the header at %1").arg(InHex(m_Position)));
            return false;
        }
        if (m_Size - m_Position == HeaderSize) {
            Refuse(m_Size, QString::fromLatin1("no data follows the header at %1").arg(InHex(m_Position)));
            return false;
        }
        m_Content.blocks.append({m_Position, Number(m_Position + 4), {}});
        m_Position += HeaderSize;
        return true;
    }

    void TakeData()
    {
        const int next = static_cast<int>(m_File.indexOf(Marker(), m_Position));
        const int end = next < 0 ? m_Size : next;
        if (end > m_Position)
            Take(end - m_Position, Name("data"), QJsonValue(QJsonValue::Undefined));
    }

    void ReadValues(const QStringList& layout)
    {
        for (const QString& name : layout) {
            const tagType& type = TypeOf(name);
            const std::optional<int> size = SizeOf(type);
            if (!size)
                return;
            Take(*size, name, type.value(Bytes(m_Position, *size)));
        }
    }

    void Take(int size, const QString& type, const QJsonValue& value)
    {
        m_Content.blocks.last().values.append({m_Position, Bytes(m_Position, size), type, value});
        m_Position += size;
    }

    /// How many bytes the value at the position has; nothing, and a misfit, when it cannot be one.
    std::optional<int> SizeOf(const tagType& type)
    {
        const int left = m_Size - m_Position;
        if (left < (type.lengthUnit == 0 ? type.size : LengthSize)) {
            Refuse(m_Size, QString::fromLatin1("the file ends inside the value of type %1 at %2")
                               .arg(Name(type.name), InHex(m_Position)));
            return std::nullopt;
        }
        if (type.lengthUnit == 0) {
            if (type.size == 1 && static_cast<unsigned char>(m_File.at(m_Position)) > 1) {
                Refuse(m_Position,
                       Name("expected a bool, 00 or 01; found ") + QString::fromLatin1(Bytes(m_Position, 1).toHex()));
                return std::nullopt;
            }
            return type.size;
        }

        const quint32 length = Number(m_Position);
        if (type.isNullable && length == NullLength)
            return LengthSize;
        const quint64 bytes = static_cast<quint64>(length) * static_cast<unsigned int>(type.lengthUnit);
        if (bytes % static_cast<unsigned int>(type.size) != 0) {
            Refuse(m_Position, QString::fromLatin1("a value of type %1 claims %2 bytes; expected an even number")
                                   .arg(Name(type.name))
                                   .arg(bytes));
            return std::nullopt;
        }
        if (bytes > static_cast<quint64>(left - LengthSize)) {
            Refuse(m_Position, QString::fromLatin1("a value of type %1 claims %2 bytes; the file has %3 more")
                                   .arg(Name(type.name))
                                   .arg(bytes)
                                   .arg(left - LengthSize));
            return std::nullopt;
        }
        return LengthSize + static_cast<int>(bytes);
    }

    const QByteArray& m_File;
    int m_Size;
    int m_Position = 0;
    tagContent m_Content;
};

} // namespace

QStringList Types()
{
    QStringList names;
    for (const tagType& row : TypeRows)
        names.append(Name(row.name));
    return names;
}

tagContent Read(const QByteArray& file, const QList<QStringList>& layouts) { return TFileReader(file).Read(layouts); }

} // namespace SerializedFile
