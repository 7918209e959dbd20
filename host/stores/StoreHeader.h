#pragma once

#include "stores/StoreFinding.h"

/// Reads the header of a file, without writing to it or to the files beside it. Clean means that the header is that of
/// a store, in a version that can be read; the rest of the file is not checked.
tagStoreFinding RecogniseStoreFile(const QString& path);
