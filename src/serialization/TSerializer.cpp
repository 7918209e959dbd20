#include "serialization/TSerializer.h"

namespace {

const int BlockMarker = static_cast<int>(0xFEEDBAAC);

} // namespace

void TSerializer::writeStartOfDataBlock(unsigned int version)
{
    *this << BlockMarker;
    *this << version;
}

bool TSerializer::readStartOfDataBlock(unsigned int& version)
{
    int marker = 0;
    *this >> marker;
    if (marker != BlockMarker)
        return false;
    *this >> version;
    return !atEnd();
}
