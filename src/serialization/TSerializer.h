#pragma once

#include "platform/Export.h"

#include <QByteArray>
#include <QString>
#include <QVector>

/// A typed stream for a host's own binary files, with headers that mark where a versioned block begins.
///
/// Written in one order, values are read back in the same order; nothing in the stream tells their types. An instance
/// belongs to one thread at a time. Not deleted through this class: there is no virtual destructor, whose slots would
/// move the operations that other builds call by place.
class CABSETTINGS_EXPORT TSerializer
{
public:
    /// True when nothing is left to read.
    virtual bool atEnd() = 0;

    /// Writes the eight bytes that begin a block: the marker FE ED BA AC, and @p version, the greater bytes first.
    virtual void writeStartOfDataBlock(unsigned int version);

    /// Reads the beginning of a block. False, with @p version untouched, when the next four bytes, which are consumed,
    /// are not the marker. False as well, with @p version read, when nothing follows the header: a block carries data.
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

    /// Refused by the compiler: a pointer, a string literal among them, would be written as a bool.
    template <typename T>
    TSerializer& operator<<(const T* value) = delete;

protected:
    ~TSerializer() = default;
};
