#pragma once

/// Marks what is visible outside libcabsettings.so; everything else is built with hidden visibility.
///
/// The imported declarations of this folder carry it as well: with hidden visibility the linker would refuse to look
/// for their definitions in the host.
#define CABSETTINGS_EXPORT __attribute__((visibility("default")))
