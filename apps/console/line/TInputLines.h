#pragma once

#include <QByteArray>
#include <QString>

/// The lines of standard input, whatever bytes stand in them.
///
/// @code
/// TInputLines lines;
/// for (QByteArray line = lines.Next(); !line.isEmpty(); line = lines.Next())
///     PrintBytes(line);
/// @endcode
class TInputLines
{
public:
    /// Bytes, with the line feed.
    static const int LongestLine = 1024 * 1024;

    /// A line with its line feed, which the last line may lack. Of a longer line than the longest, its first bytes, as
    /// many as the longest has: they do not end in a line feed. Empty at the end, and when the input cannot be read.
    QByteArray Next();

    /// Why the input cannot be read; empty while it can.
    QString Error() const { return m_Error; }

private:
    bool ReadPiece();

    QByteArray m_Bytes;
    int m_Begin = 0; ///< of the next line
    QString m_Error;
};
