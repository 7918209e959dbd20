#pragma once

#include "stores/StoreFinding.h"

/// Looks at the header of a file, without writing to it or anything beside it. Clean means no more than that it says to
/// be ours, in a version that can be read.
tagStoreFinding RecogniseStoreFile(const QString& path);
