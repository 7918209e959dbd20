#pragma once

#include "HostExport.h"

#include <QByteArray>

/// Cuts a stream of bytes into lines. No byte is lost or changed: all lines together are the stream. Lines may hold any
/// bytes, and may come in any number of pieces.
///
/// \code
/// splitter.Append(bytes.constData(), bytes.size());
/// for (QByteArray line = splitter.TakeLine(); !line.isEmpty(); line = splitter.TakeLine())
///     receiver.Receive(line);
/// \endcode
///
/// A line ends with a line feed, which is part of the line. A line that is longer than MaxLineLength is cut there, so
/// that a wrong baud rate or a binary file does not fill the memory. Use it from one thread.
class CABHOST_EXPORT TNmeaLineSplitter
{
public:
    /// Bytes, line end included.
    static constexpr int MaxLineLength = 4096;

    void Append(const char* data, int length);

    /// Removes and returns the next line; empty when no line is complete.
    QByteArray TakeLine();

    /// Removes and returns everything that is left. Call it at the end of the stream, after the last TakeLine(): it is
    /// the last line when that has no line end, else empty.
    QByteArray TakeRest();

private:
    QByteArray m_Buffer;
    int m_Start = 0; ///< of the first line that was not taken
};
