#pragma once

#include "HostExport.h"

#include <QByteArray>

/// Cuts a stream of bytes into lines, byte for byte: put together again in order, the lines are the stream. What a line
/// holds does not matter, and how the stream was cut into calls of Append() does not either.
///
/// A line ends with a line feed, which belongs to it as a carriage return before it does. Of what goes on for longer
/// than MaxLineLength, every MaxLineLength bytes are handed on as if they were a line, so that a wrong line speed or a
/// file that is no text cannot fill the memory. Used by one thread.
class CABHOST_EXPORT TNmeaLineSplitter
{
public:
    /// Bytes, line end included.
    static constexpr int MaxLineLength = 4096;

    void Append(const char* data, int length);

    /// The next line; empty when there is no complete one.
    QByteArray TakeLine();

    /// At the end of the stream, when TakeLine() has no more: the last line if it has no line end, else empty.
    QByteArray TakeRest();

private:
    QByteArray m_Buffer;
    int m_Start = 0; ///< what stands before it has been taken
};
