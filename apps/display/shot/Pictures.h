#pragma once

#include "display/options/DisplayOptions.h"

#include <QString>

/// Writes a picture of the page or overlay that the options name, or of every page and of the overlays that are
/// pictured, as NAME.png or NAME-night.png into the options' folder, which is made when it is missing. The display
/// works on the example field, in a folder of its own that is removed at the end, at the same place and time in every
/// run: pictures of one build on one machine are equal.
///
/// False, with the reason in @p error, when something fails; earlier pictures stay.
bool WritePictures(const tagDisplayOptions& options, QString* error);
