#pragma once

#include "TOpenDisplay.h"

/// What cannot be read as a whole in all views of the display: a line for each text, and for each view without a text.
QStringList CutOffTexts(TOpenDisplay& display);

/// As CutOffTexts(), also in the rows below those that a list shows first.
QStringList CutOffTextsOfAllRows(TOpenDisplay& display);
