#pragma once

#include <QString>

/// A text of the test as Qt's string.
inline QString Latin1(const char* text) { return QString::fromLatin1(text); }
