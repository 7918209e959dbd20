#pragma once

#include "TOpenDisplay.h"

/// The bytes of HeapTrend::BytesInUse() while the display shows the work page and has cleared up, without the tiles of
/// its map: how many of them there are depends on what is seen.
double RestingHeap(TOpenDisplay& display);
