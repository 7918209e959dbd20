#pragma once

#include "TOpenDisplay.h"

/// What cannot be read in all views of the display: a line for each text that is not whole, has small letters, or
/// stands on another one, and for each view without a text.
QStringList CutOffTexts(TOpenDisplay& display);

/// As CutOffTexts(), also in the rows below those that a list shows first.
QStringList CutOffTextsOfAllRows(TOpenDisplay& display);
