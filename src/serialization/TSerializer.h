#pragma once

#include "platform/Export.h"

#include <QByteArray>
#include <QString>
#include <QVector>

/// A typed stream for the host's own binary files. Headers mark the beginning of a block and its version.
///
///     serializer.writeStartOfDataBlock(2);
///     serializer << width << name;   // into a TBinarySerializer
///     serializer >> width >> name;   // and back, in the same order
///
/// Values are read in the order in which they were written; the stream does not store their types. Use an object from
/// one thread at a time. It cannot be deleted through this class: a virtual destructor would change the positions of
/// the virtual operations, by which programs built before call them.
class CABSETTINGS_EXPORT TSerializer
{
public:
    /// True when nothing is left to read.
    virtual bool atEnd() = 0;

    /// Writes the header of a block, eight bytes: the marker FE ED BA AC and @p version, most significant byte first.
    virtual void writeStartOfDataBlock(unsigned int version);

    /// Reads the header of a block. If the next four bytes are not the marker, returns false and leaves @p version
    /// unchanged; the four bytes are consumed. If nothing follows the header, returns false too; @p version is read.
    virtual bool readStartOfDataBlock(unsigned int& version);

    virtual TSerializer& operator<<(const unsigned int& value) = 0;
    virtual TSerializer& operator<<(const int& value) = 0;
    virtual TSerializer& operator<<(const float& value) = 0;
    virtual TSerializer& operator<<(const double& value) = 0;
    virtual TSerializer& operator<<(const bool& value) = 0;
    virtual TSerializer& operator<<(const QString& value) = 0;
    virtual TSerializer& operator<<(const QVector<int>& value) = 0;
    virtual TSerializer& operator<<(const QByteArray& value) = 0;

    virtual TSerializer& operator>>(unsigned int& value) = 0;
    virtual TSerializer& operator>>(int& value) = 0;
    virtual TSerializer& operator>>(float& value) = 0;
    virtual TSerializer& operator>>(double& value) = 0;
    virtual TSerializer& operator>>(bool& value) = 0;
    virtual TSerializer& operator>>(QString& value) = 0;
    virtual TSerializer& operator>>(QVector<int>& value) = 0;
    virtual TSerializer& operator>>(QByteArray& value) = 0;

    /// Does not compile for pointers, such as string literals: they would be written as a bool.
    template <typename T>
    TSerializer& operator<<(const T* value) = delete;

protected:
    ~TSerializer() = default;
};
