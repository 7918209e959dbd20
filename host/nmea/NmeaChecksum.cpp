#include "nmea/NmeaChecksum.h"

namespace {

QByteArray WithoutLineEnd(const QByteArray& line)
{
    int length = static_cast<int>(line.size());
    if (length > 0 && line.at(length - 1) == '\n')
        --length;
    if (length > 0 && line.at(length - 1) == '\r')
        --length;
    return line.left(length);
}

} // namespace

QByteArray NmeaChecksum(const QByteArray& body)
{
    unsigned sum = 0;
    for (const char character : body)
        sum ^= static_cast<unsigned char>(character);
    return '*' + QByteArray::number(sum, 16).rightJustified(2, '0').toUpper();
}

ENmeaVerdict CheckNmeaLine(const QByteArray& line)
{
    const QByteArray sentence = WithoutLineEnd(line);
    const int star = static_cast<int>(sentence.indexOf('*'));
    if (sentence.size() < 2 || star == 1 || !(sentence.startsWith('$') || sentence.startsWith('!')))
        return NMEA_NO_SENTENCE;
    if (star < 0)
        return NMEA_NO_CHECKSUM;
    const bool isRight = sentence.mid(star).toUpper() == NmeaChecksum(sentence.mid(1, star - 1));
    return isRight ? NMEA_RIGHT_CHECKSUM : NMEA_WRONG_CHECKSUM;
}
