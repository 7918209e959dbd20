#pragma once

#include "serialization/TSerializer.h"

#include <QDataStream>

class QIODevice;

// Used by its concrete type, so that nothing is deleted through a base; a host may still derive from it.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wnon-virtual-dtor"

/// The typed stream in the byte format of QDataStream: the most significant byte first, on every machine.
///
///     QFile file(path);
///     if (file.open(QIODevice::WriteOnly))
///         TBinarySerializer(&file) << width << name;
///
/// | Type                | Bytes                                                                                 |
/// |---------------------|---------------------------------------------------------------------------------------|
/// | unsigned int, int   | 4                                                                                     |
/// | float, double       | 8, IEEE 754; a float is written as a double, as QDataStream does                      |
/// | bool                | 1: 0 or 1; any byte but 0 reads as true                                               |
/// | QString             | length in bytes (4), then UTF-16; a null string has the length FF FF FF FF            |
/// | QByteArray          | length (4), then the bytes; a null array has the length FF FF FF FF                   |
/// | QVector<int>        | number of elements (4), then 4 for each                                               |
///
/// The version of QDataStream is its default. For these types the bytes are the same in Qt 4.8, 5 and 6.
///
/// Any bytes can be read safely. What is missing at the end of the stream reads as zero, or as an empty text or array.
/// Missing elements of a list read as zero too, up to MostMissingElements of them. A list in which more are missing is
/// damaged: it keeps the elements that are there and allocates no more memory than these need.
class CABSETTINGS_EXPORT TBinarySerializer : public TSerializer
{
public:
    /// Greatest number of missing list elements that read as zero; they take 256 KiB.
    static const int MostMissingElements = 65536;

    /// @param device an open device, which must outlive the serializer; null reads as an empty stream.
    explicit TBinarySerializer(QIODevice* device);

    bool atEnd() override;

    using TSerializer::operator<<;
    TSerializer& operator<<(const unsigned int& value) override;
    TSerializer& operator<<(const int& value) override;
    TSerializer& operator<<(const float& value) override;
    TSerializer& operator<<(const double& value) override;
    TSerializer& operator<<(const bool& value) override;
    TSerializer& operator<<(const QString& value) override;
    TSerializer& operator<<(const QVector<int>& value) override;
    TSerializer& operator<<(const QByteArray& value) override;

    TSerializer& operator>>(unsigned int& value) override;
    TSerializer& operator>>(int& value) override;
    TSerializer& operator>>(float& value) override;
    TSerializer& operator>>(double& value) override;
    TSerializer& operator>>(bool& value) override;
    TSerializer& operator>>(QString& value) override;
    TSerializer& operator>>(QVector<int>& value) override;
    TSerializer& operator>>(QByteArray& value) override;

private:
    QDataStream m_Stream;
};

#pragma GCC diagnostic pop
