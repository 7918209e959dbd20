#include "nmea/TNmeaSentenceParser.h"

TNmeaSentenceParser::TNmeaSentenceParser() : QNmeaPositionInfoSource(RealTimeMode) {}

TNmeaSentenceParser::tagSentence TNmeaSentenceParser::Parse(const QByteArray& line)
{
    tagSentence sentence;
    if (parsePosInfoFromNmeaData(line.constData(), static_cast<int>(line.size()), &sentence.info, &sentence.hasFix))
        sentence.type = line.mid(3, 3); // after "$" and the two letters of the talker
    return sentence;
}
