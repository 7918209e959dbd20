#pragma once

#include "TOpenDisplay.h"

#include <QStringList>

/// Numbers in the texts of pages, and who has written them.
namespace GivenTexts {

/// Every text with a digit that the objects in C++ give the pages now: the properties and the lists of the module's and
/// the display's types and singletons, which have their numbers from the library.
QStringList All(TOpenDisplay& display);

/// What is left of a text with a digit when every part that is given is taken out; empty when no digit is
/// left. A part is taken out as a whole only: "12.5" has no "2".
/// @param given longest first
QString Rest(const QString& text, const QStringList& given);

} // namespace GivenTexts
