#pragma once

/// Marks what is visible outside libcabhost.so; everything else is built with hidden visibility.
#define CABHOST_EXPORT __attribute__((visibility("default")))
