#pragma once

/// Marks what is visible outside libcabquick.so; everything else is built with hidden visibility.
#define CABQUICK_EXPORT __attribute__((visibility("default")))
