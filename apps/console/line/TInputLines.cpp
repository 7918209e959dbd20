#include "console/line/TInputLines.h"

#include "platform/Uninterrupted.h"

#include <algorithm>
#include <array>
#include <cstring>

QByteArray TInputLines::Next()
{
    auto end = m_Bytes.indexOf('\n', m_Begin);
    while (end < 0 && m_Bytes.size() - m_Begin < LongestLine) {
        const int searched = static_cast<int>(m_Bytes.size()) - m_Begin;
        if (!ReadPiece())
            break;
        end = m_Bytes.indexOf('\n', searched);
    }
    const int length = static_cast<int>(end < 0 ? m_Bytes.size() : end + 1) - m_Begin;
    QByteArray line = m_Bytes.mid(m_Begin, std::min(length, int{LongestLine}));
    m_Begin += static_cast<int>(line.size());
    return line;
}

/// Adds what the input has now, at least one byte. False at the end.
bool TInputLines::ReadPiece()
{
    // Qt would read a pipe byte by byte, and with a stream of the C library only to the first zero of a line.
    std::array<char, 0x10000> piece;
    const ssize_t count = Uninterrupted([&piece] { return read(STDIN_FILENO, piece.data(), piece.size()); });
    if (count < 0)
        m_Error = QString::fromLatin1(strerrordesc_np(errno));
    if (count <= 0)
        return false;
    m_Bytes.remove(0, m_Begin);
    m_Begin = 0;
    m_Bytes.append(piece.data(), static_cast<int>(count));
    return true;
}
